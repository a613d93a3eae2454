// The windows that are open, drawn as the session says. The topmost one can be used; the session
// says which of its controls has the focus.
import { placeCard } from './card.js';
import { isOverheard } from './keys.js';
import { buildLayout, countFilters } from './layout.js';
import { createView } from './controls/index.js';
import { newElementId } from './controls/view.js';
import { showPath } from './path.js';
import { picture } from './pictures.js';
import { StatusLine } from './status_line.js';
import { text } from './texts.js';

export class Desktop {
  /** The control that gets what is typed, or null. */
  focused = null;

  #root;
  #input;
  #windows = []; // the topmost last
  #placing = false;

  constructor(root, input) {
    this.#root = root;
    this.#input = input;
    root.addEventListener('focusin', (event) => this.#focusMoved(event));
    // Clicks beside the controls must not take the focus away, and a button gets it from the session:
    // one that throws input away is pressed without leaving the box before it.
    root.addEventListener('mousedown', (event) => {
      const { target } = event;
      if (target.closest('button') || !target.closest('input, textarea, select, .scrolls')) event.preventDefault();
    });
    addEventListener('resize', () => this.#placeCards());
    addEventListener('beforeprint', () => this.#print(true));
    addEventListener('afterprint', () => this.#print(false));
    for (const type of ['dragover', 'drop', 'submit']) {
      root.addEventListener(type, (event) => event.preventDefault());
    }
  }

  apply(drawing) {
    if (drawing.complete) this.#close(() => true);
    if (drawing.closed) this.#close((window) => drawing.closed.includes(window.id));
    this.#handOver(drawing.focus);
    for (const opened of drawing.opened ?? []) this.#open(opened);
    for (const changed of drawing.changed ?? []) this.#change(changed);
    if (drawing.busy !== undefined) {
      document.body.classList.toggle('busy', drawing.busy);
      this.#root.setAttribute('aria-busy', drawing.busy);
    }
    const top = this.#windows.at(-1);
    const { complete, opened, closed, changed } = drawing;
    if (complete || opened || closed || changed?.some(({ title }) => title !== undefined)) this.#stack(top);
    document.title = top?.title ?? '';
    this.focused = drawing.focus ? top?.views.get(drawing.focus.control) ?? null : null;
  }

  /**
   * A table takes the focus from the box in its cell before anything changes. Afterwards the browser would
   * have to lay out all that has changed first, while the user waits for the line that he has committed.
   */
  #handOver(focus) {
    const view = this.#windows.at(-1)?.views.get(focus?.control);
    if (view?.state.kind !== 'grid' || !view.element.contains(document.activeElement)) return;
    this.#placing = true;
    view.focusElement.focus({ preventScroll: true });
    this.#placing = false;
  }

  /** Shows the topmost sheet and the cards over it. */
  #stack(top) {
    const sheet = this.#windows.findLastIndex((window) => !window.card);
    this.#windows.forEach((window, index) => {
      window.element.inert = window !== top;
      window.element.classList.toggle('behind', window !== top);
      window.element.classList.toggle('covered', index < sheet);
    });
    // Nobody sees the path of a covered one.
    if (sheet >= 0) showPath(this.#windows[sheet].path, this.#windows.map(({ title }) => title));
    this.#placeCards();
  }

  #placeCards() {
    for (const { card, element, asks } of this.#windows) {
      if (card) placeCard(element, asks?.element);
    }
  }

  /** Gets ready for paper (style/print.css), and for the screen again. */
  #print(printing) {
    const { lang, style } = document.documentElement;
    style.setProperty('--printed', `"${new Date().toLocaleDateString(lang)}"`);
    const sheets = this.#windows.filter(({ card }) => !card);
    const sheet = sheets.at(-1);
    if (!sheet) return;
    sheet.path.dataset.title = sheet.title;
    sheet.path.dataset.subject = sheets.findLast(({ subject }) => subject)?.subject ?? '';
    for (const view of sheet.views.values()) view.showOnPaper?.(printing);
  }

  /** Puts the browser's focus where the session says it is. */
  placeFocus() {
    const top = this.#windows.at(-1);
    if (!top) return;
    this.#placing = true;
    const element = this.focused?.focusElement ?? top.element;
    if (document.activeElement !== element) {
      const strip = element.closest('.filters');
      // One that stands behind the button is shown with the others.
      if (strip && element.getClientRects().length === 0) strip.querySelector(':scope > .more')?.setAttribute('aria-expanded', 'true');
      element.focus({ preventScroll: false });
    }
    this.focused?.focusPlaced?.();
    this.#placing = false;
  }

  viewOf(element) {
    const id = element?.closest?.('[data-id]')?.dataset.id;
    return id === undefined ? undefined : this.#windows.at(-1)?.views.get(Number(id));
  }

  /** Tells the session something about the topmost window. */
  say(event) {
    const top = this.#windows.at(-1);
    if (top) this.#input.say({ window: top.id, ...event });
  }

  /** What the user did with the pointer to a control of a window, in its turn. */
  perform(window, event) {
    this.later(() => this.sayTo(window, event));
  }

  /** @return whether it can be told */
  sayTo(window, event) {
    return this.#input.say({ window: window.id, ...event });
  }

  /** Does something in its turn. */
  later(action) {
    this.#input.perform(action);
  }

  /** Text that does not come from a key: pasted, dictated, composed, or from a screen keyboard. */
  insert(inserted) {
    const view = this.focused;
    const { kind, locked, filtered, editable } = view?.state ?? {};
    if (kind === 'grid' && editable) this.paste(inserted);
    if (kind !== 'text' || locked) return;
    if (filtered) this.paste(inserted);
    else view.type(inserted);
  }

  /** Text that the session looks at before it comes into the box, or into the cells. */
  paste(inserted) {
    this.#saySelection();
    this.say({ type: 'paste', control: this.focused.state.id, text: inserted });
  }

  sayKey(key) {
    if (!key.code) return;
    this.#saySelection();
    // A column that is made wider or narrower begins at what is seen of it.
    const sizes = key.ctrl && ['ArrowLeft', 'ArrowRight'].includes(key.name);
    const width = (sizes && this.focused?.columnWidth?.()) || undefined;
    this.say({ type: 'key', key: key.code, shift: Boolean(key.shift), ctrl: Boolean(key.ctrl), alt: Boolean(key.alt), width });
  }

  sayCharacter(key) {
    this.#saySelection();
    if (isOverheard(this.focused, key)) this.sayKey(key);
    this.say({ type: 'character', character: key.text });
  }

  get busy() {
    return this.#input.busy;
  }

  /** Keys that change a box depend on where its caret is. */
  #saySelection() {
    const selection = this.focused?.newSelection?.();
    if (selection) this.say({ type: 'selection', control: this.focused.state.id, ...selection });
  }

  /** The browser moved the focus by itself: by touch, a screen reader, or the opening of a list. */
  #focusMoved(event) {
    if (this.#placing) return;
    const view = this.viewOf(event.target);
    if (!view || view === this.focused || view.focusElement !== event.target) return;
    this.perform(view.window, { type: 'focus', control: view.state.id });
  }

  #open({ id, form, title, subject, card, asks, layout, controls, status, hints }) {
    const element = document.createElement('section');
    element.className = card ? 'window card' : 'window';
    element.id = newElementId();
    element.tabIndex = -1;
    element.dataset.form = form;
    const window = { id, element, card, subject, views: new Map(), desktop: this };
    if (this.#windows.length > 0) {
      element.setAttribute('role', 'dialog');
      element.setAttribute('aria-modal', 'true');
    } else {
      element.setAttribute('role', 'region');
    }
    for (const state of controls) window.views.set(state.id, createView(window, state));
    // It stands beside the control that asked for it.
    window.asks = this.#windows.at(-1)?.views.get(asks) ?? null;
    element.classList.toggle('one-grid', controls.filter(({ kind }) => kind === 'grid').length === 1);
    // One may show another: a table that is being edited has a box in it.
    this.#draw(window, controls);
    const { content, bar, strips } = buildLayout(layout, window.views, element);
    window.strips = strips;
    const middle = document.createElement('div');
    middle.className = 'content scrolls';
    middle.append(content);
    window.path = this.#titleBar(window);
    window.status = new StatusLine(() => this.perform(window, { type: 'statusAction' }));
    element.append(window.path, middle, ...(bar ? [bar] : []), window.status.element);
    this.#title(window, title);
    if (card) window.asks?.element.classList.add('asked');
    this.#windows.push(window);
    this.#root.append(element);
    for (const view of window.views.values()) {
      view.shown?.();
      view.drawError(); // beside it was no place yet
    }
    window.status.draw(status);
    window.status.drawHints(hints);
    countFilters(strips);
  }

  #titleBar(window) {
    const bar = document.createElement('header');
    bar.className = 'path';
    const titles = document.createElement('div');
    titles.className = 'titles';
    bar.append(titles);
    if (!window.card) {
      const mark = document.createElement('span');
      mark.className = 'mark';
      mark.append(picture('tree'));
      bar.prepend(mark);
    }
    if (this.#windows.length > 0) {
      const close = document.createElement('button');
      close.className = 'close';
      close.tabIndex = -1;
      close.textContent = '×';
      close.title = text('close');
      close.setAttribute('aria-label', text('close'));
      close.addEventListener('click', () => this.perform(window, { type: 'close' }));
      bar.append(close);
    }
    return bar;
  }

  #title(window, title) {
    window.title = title;
    window.element.setAttribute('aria-label', title);
    if (window.card) showPath(window.path, [title]);
  }

  #change({ id, title, subject, controls, status, hints }) {
    const window = this.#windows.find((candidate) => candidate.id === id);
    if (!window) return;
    if (title !== undefined) this.#title(window, title);
    if (subject !== undefined) window.subject = subject;
    this.#draw(window, controls ?? []);
    countFilters(window.strips);
    if (status) window.status.draw(status);
    if (hints) window.status.drawHints(hints);
  }

  /** A control that cannot be drawn must not take the others along, and with them the whole session. */
  #draw(window, controls) {
    for (const state of controls) {
      try {
        window.views.get(state.id)?.update(state);
      } catch (error) {
        reportError(error);
      }
    }
  }

  #close(matches) {
    for (const window of this.#windows.filter(matches)) {
      window.asks?.element.classList.remove('asked');
      window.element.remove();
    }
    this.#windows = this.#windows.filter((window) => !matches(window));
    this.focused = null;
  }
}
