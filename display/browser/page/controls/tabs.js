import { announceAccessKey, showCaption } from '../caption.js';
import { newElementId, View } from './view.js';

export class Tabs extends View {
  #list = document.createElement('div');
  #pages = [];
  #bars = [];

  constructor(window, state) {
    const element = document.createElement('div');
    super(window, state, element, null);
    element.classList.add('tabs');
    this.#list.setAttribute('role', 'tablist');
    element.append(this.#list);
  }

  addPage(content) {
    const page = document.createElement('div');
    page.className = 'page';
    page.id = newElementId();
    page.setAttribute('role', 'tabpanel');
    page.append(content);
    this.#bars.push(content.querySelector('.bar')); // they stand with the window's
    this.#pages.push(page);
    this.element.append(page);
    this.#connect();
  }

  draw() {
    const { captions, selected, enabled } = this.state;
    while (this.#list.children.length < captions.length) this.#list.append(this.#tab());
    while (this.#list.children.length > captions.length) this.#list.lastChild.remove();
    captions.forEach((caption, index) => {
      const tab = this.#list.children[index];
      showCaption(tab, caption);
      announceAccessKey(tab, caption);
      tab.setAttribute('aria-selected', index === selected);
      tab.tabIndex = index === selected ? 0 : -1;
      tab.disabled = !enabled;
    });
    this.focusElement = this.#list.children[selected] ?? null;
    this.#connect();
  }

  #tab() {
    const tab = document.createElement('button');
    tab.type = 'button';
    tab.id = newElementId();
    tab.setAttribute('role', 'tab');
    tab.addEventListener('click', () => {
      this.perform({ type: 'select', index: [...this.#list.children].indexOf(tab) });
    });
    return tab;
  }

  #connect() {
    this.#pages.forEach((page, index) => {
      const tab = this.#list.children[index];
      page.hidden = index !== this.state.selected;
      if (this.#bars[index]) this.#bars[index].hidden = page.hidden;
      if (!tab) return;
      page.setAttribute('aria-labelledby', tab.id);
      tab.setAttribute('aria-controls', page.id);
    });
  }
}
