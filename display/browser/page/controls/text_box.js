// A box to type into. The browser edits it, unless a filter has to see every character; either way
// the session knows each text before anything that depends on it.
import { picture } from '../pictures.js';
import { text as ownText } from '../texts.js';
import { characterOffset, insertion, keyEffect, lineEnds, typeable, unitOffset } from '../typing.js';
import { View } from './view.js';

export class TextBox extends View {
  #pick = null;
  #known = { start: 0, length: 0 }; // the selection as the session knows it
  #toShow = null; // a selection of the session that has not been shown yet
  #left = null; // the browser's selection when the box lost the focus
  #beforeComposing = null;
  #refusals = null; // as the session had counted them when the box was drawn last
  #hint = null;

  constructor(window, state) {
    const input = document.createElement(state.lines > 1 ? 'textarea' : 'input');
    const element = document.createElement('span');
    super(window, state, element, input);
    element.classList.add('text-box');
    element.classList.toggle('tall', state.lines > 1);
    element.append(input);
    if (state.lines <= 1) input.type = 'text';
    input.autocomplete = 'off';
    input.spellcheck = false;
    input.setAttribute('autocapitalize', 'off');
    input.addEventListener('mousedown', (event) => {
      if (this.hasFocus && !this.desktop.busy) return;
      event.preventDefault();
      if (this.usable) this.perform({ type: 'focus' });
    });
    input.addEventListener('blur', () => {
      this.#left = [input.selectionStart, input.selectionEnd, input.selectionDirection];
    });
    input.addEventListener('input', (event) => {
      if (!event.isComposing) this.#edited();
    });
    input.addEventListener('compositionstart', () => this.#composing());
    input.addEventListener('compositionend', (event) => this.#composed(event.data));
  }

  draw(changes, before) {
    const input = this.focusElement;
    const { locked, width, lines, maxLength, right, picks } = this.state;
    const shown = lineEnds(this.state.text, this.#severalLines);
    if (input.value !== shown) input.value = shown;
    // Most drawings of a box change its text: to say the rest again costs more than to look.
    if (locked !== before.locked) input.readOnly = locked;
    if (maxLength !== before.maxLength) {
      if (maxLength > 0) input.maxLength = maxLength;
      else input.removeAttribute('maxlength');
    }
    input.classList.toggle('right', right);
    if (width !== before.width) this.element.style.setProperty('--width', width);
    if (lines > 1 && lines !== before.lines) input.rows = lines;
    this.#drawPick(picks);
    this.#drawRefusal();
    if (changes.selection) {
      const [start, length] = changes.selection;
      this.#toShow = { start, length };
    }
  }

  /** Paper leaves empty boxes out, which its style sheet knows by this. */
  showOnPaper(printing) {
    this.focusElement.placeholder = printing ? ' ' : '';
  }

  /** What is told beside the box of a cell may lie over the head and the sums of the table. */
  drawError() {
    super.drawError();
    const { error, refusal } = this.state;
    this.element.closest('.grid-rows')?.classList.toggle('tells', Boolean(error || refusal));
  }

  /** Over a cell of a table it stands below the box, or above it where the table ends. */
  placeError(error) {
    const table = this.element.closest('.grid');
    if (!table) return super.placeError(error);
    this.element.append(error);
    const box = this.element.getBoundingClientRect();
    const room = table.getBoundingClientRect();
    this.element.classList.toggle('above', box.bottom + error.offsetHeight > room.top + table.clientHeight);
    this.element.classList.toggle('leftwards', box.left + error.offsetWidth > room.left + table.clientWidth);
    return undefined;
  }

  /** The box has got the focus: shows the selection that the session set, or the one it had. */
  focusPlaced() {
    const left = this.#left;
    this.#left = null;
    if (!this.#toShow) {
      // Some browsers select everything when the focus comes back.
      if (left) this.focusElement.setSelectionRange(...left);
      return;
    }
    const { start, length } = this.#toShow;
    this.#toShow = null;
    this.#known = { start, length };
    this.#showSelection(start, length);
  }

  /** The selection, if the session does not know it yet. */
  newSelection() {
    const now = this.#selection();
    if (now.start === this.#known.start && now.length === this.#known.length) return null;
    this.#known = now;
    return now;
  }

  /** Does what a key that waited would have done in the box. */
  typeKey(key) {
    if (key.text) {
      this.type(key.text);
      return;
    }
    // What the browser undoes by itself, where the session does not.
    if (key.ctrl && key.name.toLowerCase() === 'z') {
      document.execCommand('undo');
      return;
    }
    const input = this.focusElement;
    const effect = keyEffect(key, input.value, input.selectionStart, input.selectionEnd, input.selectionDirection);
    if (effect?.select) input.setSelectionRange(...effect.select);
    if (effect?.remove && !this.state.locked) {
      input.setRangeText('', ...effect.remove, 'end');
      this.#sayShown();
    }
  }

  /** Types text that waited. */
  type(text) {
    const input = this.focusElement;
    if (this.state.locked) return;
    const fits = insertion(text, input, this.state);
    if (fits === '') return;
    input.setRangeText(fits, input.selectionStart, input.selectionEnd, 'end');
    this.#sayShown();
  }

  #selection() {
    const { selectionStart, selectionEnd } = this.focusElement;
    const start = characterOffset(this.state.text, selectionStart, this.#severalLines);
    return { start, length: characterOffset(this.state.text, selectionEnd, this.#severalLines) - start };
  }

  get #severalLines() {
    return this.state.lines > 1;
  }

  /** The browser, or something that helps the user type, changed the text. */
  #edited() {
    const { value, selectionStart, selectionEnd } = this.focusElement;
    // What cannot be prevented may come while the session is busy; its drawing must not undo it.
    if (this.desktop.busy) this.desktop.later(() => this.#say(value, selectionStart, selectionEnd));
    else this.#say(value, selectionStart, selectionEnd);
  }

  #say(value, selectionStart, selectionEnd) {
    const input = this.focusElement;
    const text = typeable(value);
    const known = { text: this.state.text, ...this.#known };
    if (text === lineEnds(known.text, this.#severalLines)) return;
    if (input.value !== text) input.value = text;
    if (this.hasFocus) input.setSelectionRange(selectionStart, selectionEnd);
    this.state.text = text;
    this.#known = this.#selection();
    const event = { type: 'text', control: this.state.id, text, ...this.#known };
    if (!this.desktop.sayTo(this.window, event)) this.#takeBack(known);
  }

  /** Shows again what the session knows. */
  #takeBack({ text, start, length }) {
    this.state.text = text;
    this.#known = { start, length };
    this.focusElement.value = lineEnds(text, this.#severalLines);
    this.#showSelection(start, length);
  }

  #showSelection(start, length) {
    const { text } = this.state;
    const from = unitOffset(text, start, this.#severalLines);
    this.focusElement.setSelectionRange(from, unitOffset(text, start + length, this.#severalLines));
  }

  #sayShown() {
    const { value, selectionStart, selectionEnd } = this.focusElement;
    this.#say(value, selectionStart, selectionEnd);
  }

  #composing() {
    const { value, selectionStart, selectionEnd } = this.focusElement;
    const taken = this.desktop.busy || this.state.filtered;
    this.#beforeComposing = taken ? { value, selectionStart, selectionEnd } : null;
  }

  #composed(text) {
    const before = this.#beforeComposing;
    this.#beforeComposing = null;
    if (!before) {
      this.#edited();
      return;
    }
    const input = this.focusElement;
    input.value = before.value;
    input.setSelectionRange(before.selectionStart, before.selectionEnd);
    this.desktop.later(() => this.desktop.insert(text));
  }

  /** Whether a box that the browser edits would take only the beginning of a text. */
  cuts(text) {
    const all = insertion(text, this.focusElement, { ...this.state, maxLength: 0 });
    return !this.state.locked && insertion(text, this.focusElement, this.state) !== all;
  }

  /** Something typed was not taken: the box flashes, and what it takes stands under it for a while. */
  #drawRefusal() {
    const { refusal, refusals } = this.state;
    const flashes = this.#refusals !== null && refusals !== this.#refusals;
    this.#refusals = refusals;
    if (refusal && !this.#hint) {
      this.#hint = document.createElement('span');
      this.#hint.className = 'hint';
      this.#hint.setAttribute('role', 'alert');
      this.element.append(this.#hint);
    }
    if (this.#hint) {
      if (this.#hint.textContent !== refusal) this.#hint.textContent = refusal;
      this.#hint.hidden = !refusal;
    }
    if (!flashes || !refusal) return;
    this.element.classList.remove('flashes');
    void this.element.offsetWidth; // an animation begins anew only where it was seen to be away
    this.element.classList.add('flashes');
  }

  #drawPick(picks) {
    if (picks && !this.#pick) this.#pick = this.#pickButton();
    if (!this.#pick) return;
    this.#pick.hidden = !picks;
    this.element.classList.toggle('picks', Boolean(picks));
    this.#pick.disabled = !this.state.enabled || this.state.locked;
  }

  #pickButton() {
    const button = document.createElement('button');
    button.type = 'button';
    button.className = 'pick';
    button.tabIndex = -1;
    button.append(picture(this.state.picks));
    button.title = ownText('pick');
    button.setAttribute('aria-label', ownText('pick'));
    button.addEventListener('click', () => this.perform({ type: 'pick' }));
    this.element.append(button);
    return button;
  }
}
