import { announceAccessKey, showCaption } from '../caption.js';
import { newElementId, View } from './view.js';

export class CheckBox extends View {
  #caption = document.createElement('span');

  constructor(window, state) {
    const input = document.createElement('input');
    input.type = 'checkbox';
    const element = document.createElement('span');
    super(window, state, element, input);
    this.#caption.id = newElementId();
    input.setAttribute('aria-labelledby', this.#caption.id);
    element.classList.add('check');
    element.append(input, this.#caption);
    input.addEventListener('click', () => {
      this.perform({ type: 'click' });
      // The session may have refused it.
      this.desktop.later(() => this.draw());
    });
    input.addEventListener('mousedown', (event) => event.preventDefault());
    this.#caption.addEventListener('click', () => {
      if (this.usable) this.perform({ type: 'click' });
    });
  }

  draw() {
    this.focusElement.checked = this.state.checked;
    showCaption(this.#caption, this.state.caption);
    announceAccessKey(this.focusElement, this.state.caption);
  }

  labelledBy(label) {
    this.focusElement.setAttribute('aria-labelledby', `${label.element.id} ${this.#caption.id}`);
    label.names(this);
  }
}
