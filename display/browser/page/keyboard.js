// Listens to the keyboard and the clipboard, and does each thing in its turn.
import { codeOf, decide, describe, isComposed, isFunctionKey, isOverheard, isShortcut } from './keys.js';

export class Keyboard {
  #desktop;
  #box;
  #input;
  #notices;
  #ctrlAlone = false;
  #copiesHeadings = false;

  constructor(desktop, box, input, notices) {
    this.#desktop = desktop;
    this.#box = box;
    this.#input = input;
    this.#notices = notices;
    document.addEventListener('keydown', (event) => this.#down(event), true);
    document.addEventListener('keyup', (event) => this.#up(event), true);
    document.addEventListener('beforeinput', (event) => this.#beforeInput(event), true);
    document.addEventListener('paste', (event) => this.#paste(event), true);
    document.addEventListener('copy', (event) => this.#copy(event, this.#copiesHeadings), true);
    document.addEventListener('cut', (event) => {
      if (this.#input.busy) event.preventDefault();
    }, true);
    // What Ctrl was pressed for was not the picker.
    for (const type of ['pointerdown', 'wheel', 'blur']) {
      addEventListener(type, () => { this.#ctrlAlone = false; }, { capture: true, passive: true });
    }
  }

  #down(event) {
    const key = describe(event);
    if (this.#notices.blocking) {
      const browsers = isShortcut(key) || isFunctionKey(key) || event.target.closest?.('#ended');
      if (!browsers) event.preventDefault();
      return;
    }
    if (this.#box.asks) {
      if (this.#box.key(event)) event.preventDefault();
      return;
    }
    if (key.name === 'Control') {
      if (!key.repeat) this.#ctrlAlone = !key.alt && !key.shift && !key.meta;
      return;
    }
    this.#ctrlAlone = false;
    if (key.name === 'Shift' || isComposed(event)) return;
    if (key.ctrl && key.shift && key.name.toLowerCase() === 'c' && this.#copiesCells) {
      // No browser copies by this key of itself.
      event.preventDefault();
      this.#copiesHeadings = true;
      document.execCommand('copy');
      this.#copiesHeadings = false;
      return;
    }
    if (this.#input.busy) {
      if (isShortcut(key) && !['a', 's', 'z'].includes(key.name.toLowerCase())) return;
      if (isFunctionKey(key) && !['F1', 'F2', 'F4'].includes(key.name)) return;
      event.preventDefault();
      this.#input.perform(() => this.#replay(key));
      return;
    }
    this.#desktop.placeFocus();
    const view = this.#desktop.focused;
    const who = decide(view, key);
    if (who === 'browser') {
      if (isOverheard(view, key)) this.#desktop.sayKey(key);
      // The browser would scroll the page, leave it, or mark all of it.
      const strays = key.code === 8 || key.code === 32 || (key.ctrl && key.code === 65);
      if (view?.state.kind !== 'text' && strays) event.preventDefault();
      return;
    }
    event.preventDefault();
    this.#act(who, view, key);
  }

  #up(event) {
    if (event.key === 'Alt') event.preventDefault();
    if (event.key !== 'Control' || !this.#ctrlAlone) return;
    this.#ctrlAlone = false;
    if (this.#notices.blocking || this.#box.asks) return;
    this.#input.perform(() => this.#desktop.say({ type: 'pickKey' }));
  }

  #replay(key) {
    const view = this.#desktop.focused;
    const who = decide(view, key);
    if (who !== 'browser') {
      this.#act(who, view, key);
      return;
    }
    if (isOverheard(view, key)) this.#desktop.sayKey(key);
    view?.typeKey?.(key);
  }

  #act(who, view, key) {
    if (who === 'session') this.#desktop.sayKey(key);
    if (who === 'access') this.#desktop.say({ type: 'accessKey', character: key.name });
    if (who === 'character') this.#desktop.sayCharacter(key);
    if (who === 'search') view.search(key.text);
    if (who === 'open') view.open?.();
  }

  /** Whether the browser may edit the box by itself now. */
  #isFree(element) {
    return !this.#input.busy && !this.#notices.blocking && !this.#desktop.viewOf(element)?.state.filtered;
  }

  #beforeInput(event) {
    const composing = event.isComposing || event.inputType === 'insertCompositionText';
    if (composing || this.#isFree(event.target)) return;
    if (event.inputType === 'insertLineBreak') {
      event.preventDefault();
      const key = { name: 'Enter', code: codeOf('Enter'), text: '' };
      this.#input.perform(() => this.#replay(key));
    } else if (event.inputType.startsWith('insert')) {
      event.preventDefault();
      const text = event.data ?? event.dataTransfer?.getData('text/plain') ?? '';
      if (text && !this.#notices.blocking) this.#input.perform(() => this.#desktop.insert(text));
    } else if (this.#input.busy || event.inputType.startsWith('history')) {
      // Undoing would bring back text past the filter.
      event.preventDefault();
    }
  }

  get #copiesCells() {
    return !this.#box.shown && Boolean(this.#desktop.focused?.copied);
  }

  /** A grid has no selection that a browser could copy: what it shows as current or marked is copied. */
  #copy(event, withHeadings) {
    if (!this.#copiesCells) return;
    const text = this.#desktop.focused.copied(withHeadings);
    if (!text) return;
    event.clipboardData.setData('text/plain', text);
    event.preventDefault();
  }

  #paste(event) {
    const text = event.clipboardData?.getData('text/plain') ?? '';
    // The browser would cut a text that is too long without a word.
    const view = this.#desktop.viewOf(event.target);
    const cut = view?.cuts?.(text);
    if (view?.state.kind !== 'grid' && this.#isFree(event.target) && !cut) return;
    event.preventDefault();
    if (!text || this.#notices.blocking || this.#box.shown) return;
    this.#input.perform(() => (cut ? this.#desktop.paste(text) : this.#desktop.insert(text)));
  }
}
