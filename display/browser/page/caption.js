// Captions with "&" before their access key.

/** The caption as it is read. */
export function plainCaption(caption) {
  return caption.replace(/&([^])/g, '$1');
}

/** The capital of the access key, or nothing. */
export function accessKey(caption) {
  const match = /^(?:[^&]|&&)*&([^&])/.exec(caption);
  return match ? match[1].toUpperCase() : '';
}

/** Shows a caption in an element, with its access key underlined. */
export function showCaption(element, caption) {
  const parts = [];
  let plain = '';
  let marked = false;
  for (let i = 0; i < caption.length; ++i) {
    if (caption[i] !== '&' || i + 1 === caption.length) {
      plain += caption[i];
      continue;
    }
    const next = caption[++i];
    if (next === '&' || marked) {
      plain += next;
      continue;
    }
    const letter = document.createElement('u');
    letter.textContent = next;
    parts.push(plain, letter);
    plain = '';
    marked = true;
  }
  element.replaceChildren(...parts, plain);
}

/** Tells screen readers the access key of a control. */
export function announceAccessKey(element, caption) {
  const key = accessKey(caption);
  if (key) element.setAttribute('aria-keyshortcuts', `Alt+${key}`);
  else element.removeAttribute('aria-keyshortcuts');
}
