// Lists of which one item is chosen: closed, and open.
import { newElementId, View } from './view.js';

const searchPause = 1000;

class ItemView extends View {
  #searched = ''; // what was typed in this visit, one letter soon after the other
  #searchedAt = 0;

  constructor(window, state, element, list = element) {
    super(window, state, element, list);
    // A list that is left forgets it: the first letter in the next one, or at the next visit, is a first one.
    list.addEventListener('blur', () => { this.#searched = ''; });
  }

  /** Chooses the next item that begins with what is being typed. A blank that begins nothing opens the list. */
  search(character) {
    const now = Date.now();
    if (now - this.#searchedAt > searchPause) this.#searched = '';
    this.#searchedAt = now;
    if (character === ' ' && this.#searched === '') {
      this.open?.();
      return;
    }
    this.#searched += character.toLocaleLowerCase();
    const index = this.#find(this.#searched);
    if (index >= 0) this.desktop.say({ type: 'select', control: this.state.id, index });
  }

  /** Index of the next item that begins with a text, or -1. */
  #find(beginning) {
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
    // When another item is shown, the browser's form filler looks at the form around it, or without one at the page.
    const element = document.createElement('form');
    super(window, state, element, select);
    element.classList.add('combo');
    element.append(select);
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
      this.focusElement.showPicker?.();
    } catch {
      // The browser opens lists only soon after a key or click; arrows choose without that.
    }
  }

  draw(changes, before) {
    if (changes.items) {
      this.focusElement.replaceChildren(...this.state.items.map((item) => new Option(item)));
    }
    if (this.state.width !== before.width) this.element.style.setProperty('--width', this.state.width);
    if (this.focusElement.selectedIndex !== this.state.selected) this.focusElement.selectedIndex = this.state.selected;
  }
}

function part(className, text) {
  const element = document.createElement('span');
  element.className = className;
  element.textContent = text;
  return element;
}

export class ListBox extends ItemView {
  #lines = document.createElement('div');

  constructor(window, state) {
    const list = document.createElement('div');
    super(window, state, list);
    list.classList.add('list', 'scrolls');
    list.tabIndex = 0;
    list.setAttribute('role', 'listbox');
    this.#lines.setAttribute('role', 'presentation');
    list.append(this.#lines);
    list.addEventListener('mousedown', (event) => {
      const option = event.target.closest('[role=option]');
      if (!option) return;
      event.preventDefault();
      if (this.usable) this.perform({ type: 'select', index: [...this.#lines.children].indexOf(option) });
    });
    list.addEventListener('dblclick', () => {
      if (this.usable) this.perform({ type: 'doubleClick' });
    });
  }

  draw(changes, before) {
    const { items, selected, rows, width, pairs } = this.state;
    if (changes.items) this.#lines.replaceChildren(...items.map((item) => this.#option(item)));
    this.#lines.style.setProperty('--half', Math.ceil(items.length / 2));
    this.element.classList.toggle('pairs', pairs);
    this.#lines.classList.toggle('pair-lines', pairs);
    this.element.style.setProperty('--rows', rows);
    this.element.style.setProperty('--width', width);
    if (!changes.items && before.selected === selected) return;
    this.element.querySelector('[aria-selected=true]')?.setAttribute('aria-selected', 'false');
    const current = this.#lines.children[selected];
    if (current) {
      current.setAttribute('aria-selected', 'true');
      current.scrollIntoView({ block: 'nearest' });
      this.element.setAttribute('aria-activedescendant', current.id);
    } else {
      this.element.removeAttribute('aria-activedescendant');
    }
  }

  shown() {
    this.#lines.children[this.state.selected]?.scrollIntoView({ block: 'nearest' });
  }

  #option(item) {
    const option = document.createElement('div');
    option.id = newElementId();
    option.setAttribute('role', 'option');
    option.setAttribute('aria-selected', 'false');
    const at = this.state.pairs ? item.indexOf(': ') : -1;
    if (at < 0) {
      option.textContent = item;
      return option;
    }
    // The whole text stays in it, for those who read or copy it.
    option.append(part('name', item.slice(0, at)), part('colon', ': '), part('value', item.slice(at + 2)));
    return option;
  }
}
