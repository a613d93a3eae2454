import { picture } from '../pictures.js';
import { text } from '../texts.js';
import { View } from './view.js';

export class UpDown extends View {
  constructor(window, state) {
    const element = document.createElement('span');
    super(window, state, element, element);
    element.classList.add('up-down');
    element.tabIndex = 0;
    element.setAttribute('role', 'group');
    element.append(this.#half('up', true), this.#half('down', false));
  }

  #half(name, up) {
    const button = document.createElement('button');
    button.type = 'button';
    button.tabIndex = -1;
    button.setAttribute('aria-label', text(name));
    button.append(picture(name));
    button.addEventListener('click', () => this.perform({ type: 'step', up }));
    return button;
  }

  draw() {
    for (const button of this.element.children) button.disabled = !this.state.enabled;
  }
}
