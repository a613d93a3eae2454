// Which key goes where. The session owns the rules of input; the page only has to know which keys
// the browser may handle by itself (typing and moving inside a box) and which ones the session has
// to be asked about.

const codes = {
  Backspace: 8, Tab: 9, Enter: 13, Shift: 16, Control: 17, Alt: 18, Escape: 27, ' ': 32,
  PageUp: 33, PageDown: 34, End: 35, Home: 36, ArrowLeft: 37, ArrowUp: 38, ArrowRight: 39, ArrowDown: 40,
  Insert: 45, Delete: 46,
};

/** A key as the session knows it: by the code of its capital letter or digit, or of its name. */
export function codeOf(name) {
  if (/^[a-z0-9]$/i.test(name)) return name.toUpperCase().charCodeAt(0);
  if (isFunctionKey({ name })) return 111 + Number(name.slice(1));
  return codes[name] ?? 0;
}

/** What matters of a keyboard event, so that it can be kept and done later. */
export function describe(event) {
  const name = event.key;
  const single = [...name].length === 1;
  const level3 = event.getModifierState('AltGraph');
  const plain = level3 || (!event.ctrlKey && !event.altKey && !event.metaKey);
  return {
    name,
    code: codeOf(name),
    text: single && plain ? name : '',
    access: single && event.altKey && !event.ctrlKey && !event.metaKey && !level3,
    shift: event.shiftKey,
    ctrl: event.ctrlKey && !level3,
    alt: event.altKey && !level3,
    meta: event.metaKey,
    repeat: event.repeat,
  };
}

const inBox = new Set(['Backspace', 'Delete', 'ArrowLeft', 'ArrowRight', 'Home', 'End']);
const inLines = new Set(['ArrowUp', 'ArrowDown', 'PageUp', 'PageDown']);
const inList = new Set([...inLines, 'Home', 'End']);
const inGrid = new Set([...inList, 'ArrowLeft', 'ArrowRight', 'Delete', 'Insert', 'Backspace', ' ']);
const awayFromPage = new Set(['ArrowLeft', 'ArrowRight', 'Home']);
const pressing = new Set(['Enter', 'Escape', 'F4', ' ']);

/**
 * Who deals with a key:
 *   session    it is told the key
 *   access     it is told an access key
 *   character  it is told a character, which the box's filter may change or refuse
 *   browser    typing and moving in a box, copying, the browser's own keys
 *   search     the page looks for an entry that begins with what is typed
 *   open       the page opens the list
 *   nobody
 * @param view the control that has the focus, or null
 */
export function decide(view, key) {
  if (key.meta) return 'browser';
  if (key.access) return key.repeat ? 'nobody' : 'access';
  // Browsers open their menu or go to another page.
  if (key.name === 'Alt' || (key.alt && awayFromPage.has(key.name))) return 'nobody';
  const kind = view?.state.kind;
  // A key that is held down acts once where a second time would be an accident.
  if (key.repeat && pressing.has(key.name) && !(key.text && kind === 'text')) return 'nobody';
  if (key.name === 'F4' && kind === 'combo' && !key.alt) return 'open';
  if (key.name === 'F4' || key.name === 'Enter' || key.name === 'Escape') return 'session';
  if (key.name === 'Tab') return key.ctrl || key.alt ? 'browser' : 'session';
  if (!view) return 'browser';
  return byKind[kind]?.(view.state, key) ?? 'browser';
}

const byKind = {
  text(box, key) {
    if (key.text) return box.filtered && !box.locked ? 'character' : 'browser';
    if (box.keys && (key.name === 'Backspace' || key.name === 'Delete')) return key.ctrl ? 'browser' : 'session';
    if (box.keys && inLines.has(key.name) && box.lines === 1) return 'session';
    return 'browser';
  },
  combo(list, key) {
    if (key.alt && inLines.has(key.name)) return 'open';
    if (key.text) return 'search';
    return inList.has(key.name) ? 'session' : 'browser';
  },
  list(list, key) {
    if (key.text) return 'search';
    return inList.has(key.name) ? 'session' : 'browser';
  },
  grid(grid, key) {
    if (grid.characters && key.text) return 'character';
    return inGrid.has(key.name) || (grid.keys && key.text) ? 'session' : 'browser';
  },
  button: (button, key) => (key.name === ' ' ? 'session' : 'browser'),
  check: (check, key) => (key.name === ' ' ? 'session' : 'browser'),
  tabs: (tabs, key) => (key.name === 'ArrowLeft' || key.name === 'ArrowRight' ? 'session' : 'browser'),
  upDown: (upDown, key) => (key.name === 'ArrowUp' || key.name === 'ArrowDown' ? 'session' : 'browser'),
};

/** Whether the session is also told a key that the browser deals with: a screen listens to it. */
export function isOverheard(view, key) {
  return Boolean(view?.state.keys) && inBox.has(key.name) && view.state.kind === 'text';
}

/** Keys of which the browser knows more than their name; they come again as text. */
export function isComposed(event) {
  return event.isComposing || ['Process', 'Dead', 'Unidentified', 'Compose'].includes(event.key);
}

export function isFunctionKey(key) {
  return /^F\d+$/.test(key.name);
}

/** Copying, cutting and pasting come again as events of their own, the rest belongs to the browser. */
export function isShortcut(key) {
  return (key.ctrl || key.meta) && !key.access && [...key.name].length === 1;
}
