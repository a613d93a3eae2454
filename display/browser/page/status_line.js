// The last line of a window: what the last thing done has come to, and what can be done about it.
import { announceAccessKey, showCaption } from './caption.js';
import { text as words } from './texts.js';

export class StatusLine {
  element;

  #text = document.createElement('span');
  #action = document.createElement('button');
  #hints = document.createElement('span');

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
    this.element.append(working, this.#text, this.#action, this.#hints);
  }

  /** @param hints what the next key may be: [key, effect] */
  drawHints(hints) {
    this.#hints.replaceChildren(...hints.map(([key, effect]) => {
      const hint = document.createElement('span');
      const cap = document.createElement('kbd');
      cap.textContent = key;
      hint.append(cap, ` ${effect}`);
      return hint;
    }));
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
