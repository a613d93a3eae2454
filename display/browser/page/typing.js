// Editing text in boxes. The session counts characters (code points) of its own text; the browser
// counts code units of what the box shows, in which line ends are one "\n" or, in a box of one
// line, nothing.

/** A text as a box shows it. */
export function lineEnds(text, severalLines) {
  return severalLines ? text.replace(/\r\n?/g, '\n') : text.replace(/[\r\n]/g, '');
}

/** How many units of what is shown the first `count` characters of a text take. */
export function unitOffset(text, count, severalLines) {
  return lineEnds([...text].slice(0, count).join(''), severalLines).length;
}

/** How many characters of a text the first `units` units of what is shown are. */
export function characterOffset(text, units, severalLines) {
  let count = 0;
  let shown = 0;
  for (const character of text) {
    if (shown >= units) break;
    // A line end of two characters is shown as one: its first half counts for nothing.
    if (character !== '\r') shown += character === '\n' && !severalLines ? 0 : character.length;
    ++count;
  }
  return count;
}

/** A text without the control characters that clipboards bring along: each becomes a blank. */
export function typeable(text) {
  return text.replace(/[^\P{Cc}\n]/gu, ' ');
}

/** As much of a text as can be typed into a box in place of what is selected. */
export function insertion(text, input, { maxLength, lines }) {
  const clean = typeable(lineEnds(text, lines > 1));
  if (maxLength <= 0) return clean;
  const rest = input.value.length - (input.selectionEnd - input.selectionStart);
  return clean.slice(0, Math.max(maxLength - rest, 0));
}

/**
 * What an editing key does: `select` is the new selection with its direction, `remove` the stretch
 * that goes.
 */
export function keyEffect(key, value, start, end, direction) {
  const backward = direction === 'backward';
  const anchor = backward ? end : start;
  const caret = backward ? start : end;
  const moved = (to) => {
    if (!key.shift) return { select: [to, to, 'none'] };
    return { select: [Math.min(anchor, to), Math.max(anchor, to), to < anchor ? 'backward' : 'forward'] };
  };
  const collapses = start !== end && !key.shift;
  switch (key.name) {
  case 'Backspace':
    return { remove: start !== end ? [start, end] : [key.ctrl ? wordBefore(value, start) : before(value, start), start] };
  case 'Delete':
    return { remove: start !== end ? [start, end] : [end, key.ctrl ? wordBehind(value, end) : behind(value, end)] };
  case 'ArrowLeft':
    return moved(key.ctrl ? wordBefore(value, caret) : collapses ? start : before(value, caret));
  case 'ArrowRight':
    return moved(key.ctrl ? wordBehind(value, caret) : collapses ? end : behind(value, caret));
  case 'Home':
    return moved(key.ctrl ? 0 : value.slice(0, caret).lastIndexOf('\n') + 1);
  case 'End': {
    const lineEnd = value.indexOf('\n', caret);
    return moved(key.ctrl || lineEnd < 0 ? value.length : lineEnd);
  }
  case 'a':
  case 'A':
    return key.ctrl ? { select: [0, value.length, 'forward'] } : null;
  default:
    return null;
  }
}

function before(value, at) {
  return at - ([...value.slice(0, at)].pop()?.length ?? 0);
}

function behind(value, at) {
  return at + ([...value.slice(at)][0]?.length ?? 0);
}

function wordBefore(value, at) {
  return at - /\S*\s*$/.exec(value.slice(0, at))[0].length;
}

function wordBehind(value, at) {
  return at + /^\S*\s*/.exec(value.slice(at))[0].length;
}
