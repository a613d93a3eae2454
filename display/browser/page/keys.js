// Which key goes where. The session owns the rules of input, and those about keys that the browser may
// handle by itself (typing and moving inside a box) come from it as a table. What the page adds is how a
// browser is kept from keys of its own, and what it does in place of a native list.
import { keyUses } from './key_uses.js';

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

// These change the choice of a closed list; with Alt they open it.
const opening = new Set(['ArrowUp', 'ArrowDown', 'PageUp', 'PageDown']);
const awayFromPage = new Set(['ArrowLeft', 'ArrowRight', 'Home']);

const nobodysKeys = '0';

/** The session's answers, by its own rules. */
function answersFor(view) {
  return keyUses.answers[keyUses.of[view?.state.keys ?? nobodysKeys]];
}

function useOf(view, key) {
  if (key.alt || key.code === 0) return 'native';
  const { most, others } = answersFor(view)[key.ctrl ? 'ctrl' : 'plain'];
  return Object.keys(others).find((use) => others[use].includes(key.code)) ?? most;
}

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
  if (key.repeat && answersFor(view).once.includes(key.code)) return 'nobody';
  const use = useOf(view, key);
  if (use === 'rules') return 'session';
  if (use === 'nobody') return 'nobody';
  const kind = view?.state.kind;
  if (kind === 'combo' && (key.name === 'F4' || (key.alt && opening.has(key.name)))) return 'open';
  return key.text && view ? characterUse(view.state) : 'browser';
}

/** The browser knows how to type into a box, and the page how to look for an entry. */
function characterUse({ kind, characters }) {
  if (characters === 'rules') return 'character';
  return characters === 'native' && kind !== 'text' ? 'search' : 'browser';
}

/** Whether the session is also told a key that the browser deals with: a screen listens to it. */
export function isOverheard(view, key) {
  return useOf(view, key) === 'overheard';
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
