// The path over a sheet: the titles of the windows that lead to it.

/**
 * @param bar the head of a window
 * @param titles the last one is where the user is
 */
export function showPath(bar, titles) {
  const parts = titles.map((title, index) => {
    const part = document.createElement(index + 1 < titles.length ? 'span' : 'h1');
    part.className = 'part';
    part.textContent = withoutRepeatedName(title, titles.slice(0, index));
    part.title = title;
    return part;
  });
  parts.at(-1)?.classList.add('current');
  parts.at(-2)?.classList.add('before');
  bar.querySelector('.titles').replaceChildren(...parts);
}

/** A title's tail " – name" is left out where the name stands before. */
function withoutRepeatedName(title, before) {
  const dash = title.lastIndexOf(' – ');
  const name = title.slice(dash + 3);
  return dash > 0 && before.some((other) => other.includes(name)) ? title.slice(0, dash) : title;
}
