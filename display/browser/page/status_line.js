// The last line of a window: what the last thing done has come to, and what can be done about it.
import { announceAccessKey, showCaption } from './caption.js';

export class StatusLine {
  element;

  #text = document.createElement('span');
  #action = document.createElement('button');

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
    this.element.append(this.#text, this.#action);
  }

  draw({ text, action }) {
    // In an element of its own, so that a text that is said again is noticed again.
    const words = document.createElement('span');
    words.textContent = text;
    this.#text.replaceChildren(words);
    this.#action.hidden = !action;
    showCaption(this.#action, action);
    announceAccessKey(this.#action, action);
  }
}
