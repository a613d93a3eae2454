// A message that has to be answered before anything else goes on. Only what the user does while it
// can be seen answers it: keys that were typed before wait for the window behind it.
import { accessKey, announceAccessKey, showCaption } from './caption.js';
import { picture } from './pictures.js';

export class MessageBox {
  #root;
  #connection;
  #message = null;
  #answered = false;

  constructor(root, connection) {
    this.#root = root;
    this.#connection = connection;
  }

  get shown() {
    return this.#message !== null;
  }

  /** It is there and has not been answered yet. */
  get asks() {
    return this.shown && !this.#answered;
  }

  /** @param message what the session says, or null when it has its answer */
  show(message) {
    this.#message = message;
    this.#answered = false;
    document.getElementById('desktop').inert = message !== null;
    if (message === null) {
      this.#root.replaceChildren();
      return;
    }
    const panel = document.createElement('section');
    panel.className = `message ${message.icon}`;
    panel.setAttribute('role', 'alertdialog');
    panel.setAttribute('aria-modal', 'true');
    panel.setAttribute('aria-labelledby', 'message-title');
    panel.setAttribute('aria-describedby', 'message-text');
    const title = document.createElement('h1');
    title.id = 'message-title';
    title.textContent = message.title;
    const body = document.createElement('div');
    body.className = 'message-body';
    const icon = picture(message.icon);
    const text = document.createElement('p');
    text.id = 'message-text';
    text.textContent = message.text;
    body.append(...(icon ? [icon] : []), text);
    const buttons = document.createElement('div');
    buttons.className = 'message-buttons';
    buttons.append(...message.buttons.map((button) => this.#button(button)));
    panel.append(title, body, buttons);
    this.#root.replaceChildren(panel);
    buttons.children[message.default].classList.add('default');
    buttons.children[message.default].focus();
  }

  /** @returns whether the key was for the message */
  key(event) {
    const buttons = [...this.#root.querySelectorAll('button')];
    const at = buttons.indexOf(document.activeElement);
    const step = { ArrowLeft: -1, ArrowUp: -1, ArrowRight: 1, ArrowDown: 1, Tab: event.shiftKey ? -1 : 1 }[event.key];
    if (step) {
      buttons[(Math.max(at, 0) + step + buttons.length) % buttons.length].focus();
    } else if (event.key === 'Escape' && !event.repeat) {
      this.#answer(this.#message.escape);
    } else if ((event.key === 'Enter' || event.key === ' ') && !event.repeat) {
      this.#answer(this.#message.buttons[at < 0 ? this.#message.default : at].answer);
    } else {
      if (event.ctrlKey || event.metaKey || event.key.length > 1) return false;
      const letter = event.key.toUpperCase();
      const chosen = this.#message.buttons.find((button) => accessKey(button.caption) === letter);
      if (chosen && !event.repeat) this.#answer(chosen.answer);
    }
    return true;
  }

  #button(description) {
    const button = document.createElement('button');
    button.className = 'button';
    const words = document.createElement('span');
    showCaption(words, description.caption);
    button.append(words);
    announceAccessKey(button, description.caption);
    button.addEventListener('click', () => this.#answer(description.answer));
    return button;
  }

  #answer(answer) {
    if (this.#answered) return;
    this.#answered = true;
    this.#connection.say({ type: 'answer', window: this.#message.id, answer });
  }
}
