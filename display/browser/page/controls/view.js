// What all drawn controls have in common.
import { text } from '../texts.js';

let lastElementId = 0;

export function newElementId() {
  return `e${++lastElementId}`;
}

function errorText() {
  const element = document.createElement('span');
  element.className = 'error';
  element.id = newElementId();
  return element;
}

/** Words for readers alone. */
export function unseen(words) {
  const element = document.createElement('span');
  element.className = 'unseen';
  element.textContent = words;
  return element;
}

/** Shows who has changed what stands in an element, and says it to readers together with what else they are told. */
export function showChange(shown, who, described = shown, words = '') {
  shown.classList.toggle('edited', who === 'user');
  shown.classList.toggle('colleague', who === 'colleague');
  const description = [words, who && text(who)].filter(Boolean).join(' – ');
  if (description) described.setAttribute('aria-description', description);
  else described.removeAttribute('aria-description');
}

/**
 * Whether all in it is hidden, so that it takes no room. A style sheet could see that for itself, but the browser
 * would have to look at all places again whenever a row comes into a table.
 */
export function showVacancy(place) {
  place.classList.toggle('vacant', [...place.children].every((child) => child.hidden));
}

export class View {
  #error = null; // what stands beside it, once there has been something

  /**
   * @param element stands in the layout
   * @param focusElement gets the browser's focus, or null
   */
  constructor(window, state, element, focusElement) {
    this.window = window;
    this.state = {};
    this.element = element;
    this.focusElement = focusElement;
    element.classList.add('control');
    const named = focusElement ?? element;
    named.dataset.control = state.name;
    element.dataset.id = state.id;
    named.id ||= newElementId();
  }

  get desktop() {
    return this.window.desktop;
  }

  /** Takes over what the session says about it; left out is what has not changed. */
  update(changes) {
    const before = this.state;
    this.state = { ...before, ...changes };
    if (this.state.visible !== before.visible) {
      this.element.hidden = !this.state.visible;
      if (this.element.parentElement) showVacancy(this.element.parentElement);
    }
    const target = this.focusElement ?? this.element;
    // A warning is seen as a colour, and read as the description.
    const title = this.state.warning || this.state.tip || '';
    if (title !== target.title) target.title = title;
    this.element.classList.toggle('warns', Boolean(this.state.warning));
    this.element.classList.toggle('quiet', this.state.quiet);
    showChange(this.element, this.state.changedBy, target, this.state.warning);
    this.drawError();
    if ('disabled' in target) target.disabled = !this.state.enabled;
    else if (this.focusElement && this.state.enabled !== before.enabled) target.setAttribute('aria-disabled', !this.state.enabled);
    this.draw(changes, before);
  }

  draw() {}

  /** A control with an error is framed, and says beside it what is wrong. */
  drawError() {
    const { error } = this.state;
    if (!error && !this.#error) return;
    this.#error ??= errorText();
    const target = this.focusElement ?? this.element;
    this.element.classList.toggle('fails', Boolean(error));
    this.#error.textContent = error;
    this.#error.hidden = !error || !this.state.visible;
    if (error) {
      target.setAttribute('aria-invalid', 'true');
      if (this.element.parentNode) this.placeError(this.#error);
      target.setAttribute('aria-describedby', this.#error.id);
    } else {
      target.removeAttribute('aria-invalid');
      target.removeAttribute('aria-describedby');
    }
  }

  placeError(error) {
    this.element.after(error);
  }

  labelledBy(label) {
    this.focusElement?.setAttribute('aria-labelledby', label.element.id);
    label.names(this);
  }

  /** Named by the labels around it, and by its own words, where it has some. */
  labelledByAll(labels) {
    const target = this.focusElement;
    if (!target) return;
    const own = this.state.caption ? [target.id] : [];
    target.setAttribute('aria-labelledby', [...labels.map((label) => label.element.id), ...own].join(' '));
  }

  /** Whether it can be used, the frames around it considered. */
  get usable() {
    return this.state.enabled && !this.element.closest('fieldset[disabled]');
  }

  /** Tells the session what the user did with it, in its turn. */
  perform(event) {
    this.desktop.perform(this.window, { control: this.state.id, ...event });
  }

  get hasFocus() {
    return this.desktop.focused === this;
  }
}
