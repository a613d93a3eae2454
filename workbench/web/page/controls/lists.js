// Lists of which one item is chosen: closed, and open.
import { newElementId, View } from './view.js';

class ItemView extends View {
  /** Index of the next item that begins with a text, or -1. */
  find(beginning) {
    const { items, selected } = this.state;
    // The same letter again goes on to the next one, more letters stay as long as they fit.
    const repeated = [...beginning].every((letter) => letter === beginning[0]);
    const wanted = repeated ? beginning[0] : beginning;
    const first = repeated ? selected + 1 : Math.max(selected, 0);
    for (let i = 0; i < items.length; ++i) {
      const index = (first + i) % items.length;
      if (items[index].toLocaleLowerCase().startsWith(wanted)) return index;
    }
    return -1;
  }
}

export class ComboBox extends ItemView {
  constructor(window, state) {
    const select = document.createElement('select');
    super(window, state, select, select);
    select.addEventListener('mousedown', (event) => {
      if (!this.desktop.busy) return;
      event.preventDefault();
      this.perform({ type: 'focus' });
    });
    select.addEventListener('change', () => {
      this.perform({ type: 'select', index: select.selectedIndex });
      // The session may have refused it.
      this.desktop.later(() => { select.selectedIndex = this.state.selected; });
    });
  }

  open() {
    try {
      this.element.showPicker?.();
    } catch {
      // The browser opens lists only soon after a key or click; arrows choose without that.
    }
  }

  draw(changes, before) {
    if (changes.items) {
      this.element.replaceChildren(...this.state.items.map((item) => new Option(item)));
    }
    if (this.state.width !== before.width) this.element.style.setProperty('--width', this.state.width);
    this.element.selectedIndex = this.state.selected;
  }
}

export class ListBox extends ItemView {
  constructor(window, state) {
    const list = document.createElement('div');
    super(window, state, list, list);
    list.classList.add('list', 'scrolls');
    list.tabIndex = 0;
    list.setAttribute('role', 'listbox');
    list.addEventListener('mousedown', (event) => {
      const option = event.target.closest('[role=option]');
      if (!option) return;
      event.preventDefault();
      if (this.usable) this.perform({ type: 'select', index: [...list.children].indexOf(option) });
    });
    list.addEventListener('dblclick', () => {
      if (this.usable) this.perform({ type: 'doubleClick' });
    });
  }

  draw(changes, before) {
    const { items, selected, rows, width } = this.state;
    if (changes.items) this.element.replaceChildren(...items.map((item) => this.#option(item)));
    this.element.style.setProperty('--rows', rows);
    this.element.style.setProperty('--width', width);
    if (!changes.items && before.selected === selected) return;
    this.element.querySelector('[aria-selected=true]')?.setAttribute('aria-selected', 'false');
    const current = this.element.children[selected];
    if (current) {
      current.setAttribute('aria-selected', 'true');
      current.scrollIntoView({ block: 'nearest' });
      this.element.setAttribute('aria-activedescendant', current.id);
    } else {
      this.element.removeAttribute('aria-activedescendant');
    }
  }

  shown() {
    this.element.children[this.state.selected]?.scrollIntoView({ block: 'nearest' });
  }

  #option(item) {
    const option = document.createElement('div');
    option.id = newElementId();
    option.setAttribute('role', 'option');
    option.setAttribute('aria-selected', 'false');
    option.textContent = item;
    return option;
  }
}
