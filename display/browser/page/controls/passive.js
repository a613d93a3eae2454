// The controls that only show something.
import { showCaption } from '../caption.js';
import { newElementId, View } from './view.js';

export class Label extends View {
  #named = null;

  constructor(window, state) {
    super(window, state, document.createElement('span'), null);
    this.element.classList.add('label');
    // A click on it means the control that it names.
    this.element.addEventListener('click', () => this.#named?.perform({ type: 'focus' }));
  }

  names(view) {
    this.#named ??= view;
  }

  draw() {
    showCaption(this.element, this.state.caption);
    this.element.classList.toggle('disabled', !this.state.enabled);
    this.element.classList.toggle('highlighted', Boolean(this.state.highlighted));
  }
}

export class Frame extends View {
  #legend = document.createElement('legend');

  constructor(window, state) {
    super(window, state, document.createElement('fieldset'), null);
    this.content = document.createElement('div');
    this.content.className = 'column';
    this.element.className = 'control frame';
    this.#legend.id = newElementId();
    this.element.append(this.#legend, this.content);
  }

  draw() {
    showCaption(this.#legend, this.state.caption);
    this.#legend.hidden = this.state.caption === '';
    this.element.disabled = !this.state.enabled;
  }
}

export class ProgressBar extends View {
  constructor(window, state) {
    super(window, state, document.createElement('progress'), null);
  }

  draw() {
    this.element.max = Math.max(this.state.maximum, 1);
    this.element.value = this.state.value;
  }

  labelledBy(label) {
    this.element.setAttribute('aria-labelledby', label.element.id);
  }
}
