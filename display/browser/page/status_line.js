// The last line of a window: what the last thing done has come to, and what can be done about it.
import { announceAccessKey, showCaption } from './caption.js';
import { text as words } from './texts.js';

function emptyHint() {
  const hint = document.createElement('span');
  hint.append(document.createElement('kbd'), ' ');
  return hint;
}

export class StatusLine {
  element;

  #text = document.createElement('span');
  #action = document.createElement('button');
  #hints = document.createElement('span');
  #height = 0;

  /** @param act the offer has been pressed */
  constructor(act) {
    this.element = document.createElement('footer');
    this.element.className = 'status';
    // Readers are told what comes into a line that they know already, so it is there from the beginning.
    this.#text.setAttribute('role', 'status');
    this.#action.type = 'button';
    this.#action.tabIndex = -1;
    this.#action.hidden = true;
    this.#action.addEventListener('click', act);
    const working = document.createElement('span');
    working.className = 'working';
    working.textContent = words('working');
    this.#hints.className = 'hints';
    // Readers find all keys behind F1.
    this.#hints.setAttribute('aria-hidden', 'true');
    const line = document.createElement('div');
    line.className = 'line';
    line.append(working, this.#text, this.#action, this.#hints);
    this.element.append(line);
    new ResizeObserver(() => this.#resized()).observe(this.#text);
  }

  /** The line is as high as its text, which is seldom longer than the screen is wide. */
  #resized() {
    const height = this.#text.offsetHeight;
    if (height === this.#height) return;
    this.#height = height;
    this.element.style.setProperty('--said', height);
  }

  /** @param hints what the next key may be: [key, effect] */
  drawHints(hints) {
    while (this.#hints.children.length > hints.length) this.#hints.lastChild.remove();
    hints.forEach(([key, effect], at) => {
      const hint = this.#hints.children[at] ?? this.#hints.appendChild(emptyHint());
      const [cap, rest] = hint.childNodes;
      cap.textContent = key;
      rest.data = ` ${effect}`;
    });
  }

  draw({ text, action }) {
    // In an element of its own, so that a text that is said again is noticed again.
    const said = document.createElement('span');
    said.textContent = text;
    this.#text.replaceChildren(said);
    this.#action.hidden = !action;
    showCaption(this.#action, action);
    announceAccessKey(this.#action, action);
  }
}
