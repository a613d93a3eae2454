import { announceAccessKey, plainCaption, showCaption } from '../caption.js';
import { picture } from '../pictures.js';
import { View } from './view.js';

export class Button extends View {
  constructor(window, state) {
    const button = document.createElement('button');
    button.type = 'button';
    super(window, state, button, button);
    button.classList.add('button');
    button.addEventListener('click', () => this.perform({ type: 'click' }));
  }

  draw() {
    const { caption, picture: name, tip } = this.state;
    const drawing = picture(name);
    this.element.classList.toggle('with-picture', drawing !== null);
    if (drawing) {
      this.element.replaceChildren(drawing);
      this.element.setAttribute('aria-label', plainCaption(caption) || tip);
      if (!tip && caption) this.element.title = plainCaption(caption);
    } else {
      const words = document.createElement('span');
      showCaption(words, caption);
      this.element.replaceChildren(words);
      this.element.removeAttribute('aria-label');
    }
    announceAccessKey(this.element, caption);
  }

  /** Its own caption names it better than the label beside it. */
  labelledBy(label) {
    if (!this.state.caption && !this.state.tip) super.labelledBy(label);
  }
}
