// The controls that only show something.
import { plainCaption, showCaption } from '../caption.js';
import { readable } from '../figures.js';
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
    showCaption(this.element, readable(this.state.caption));
    this.element.classList.toggle('disabled', !this.state.enabled);
    this.element.classList.toggle('strong', this.state.strong);
  }
}

export class Frame extends View {
  heading = document.createElement('div');
  content = document.createElement('div');

  #caption = document.createElement('span');

  constructor(window, state) {
    super(window, state, document.createElement('fieldset'), null);
    this.element.className = 'control frame';
    this.#caption.className = 'caption';
    this.#caption.id = newElementId();
    this.heading.className = 'heading';
    this.heading.append(this.#caption);
    this.content.className = 'column';
    const group = document.createElement('div');
    group.className = 'group';
    group.append(this.heading, this.content);
    this.element.append(group);
  }

  /** In a table a group of rows stands for it. */
  standsAs(element) {
    element.dataset.control = this.state.name;
    element.dataset.id = this.state.id;
    element.classList.add('control');
    element.hidden = this.element.hidden;
    this.element = element;
    this.draw();
  }

  /** Its only field has this label: a caption that says the same is only read out. */
  repeats(label) {
    this.heading.classList.toggle('repeated', plainCaption(label.state.caption) === plainCaption(this.state.caption));
  }

  draw() {
    const { caption, enabled } = this.state;
    showCaption(this.#caption, caption);
    this.heading.classList.toggle('nameless', !caption);
    if (caption) this.element.setAttribute('aria-label', plainCaption(caption));
    else this.element.removeAttribute('aria-label');
    this.element.disabled = !enabled;
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
