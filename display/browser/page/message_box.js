// A message that has to be answered before anything else goes on. Only what the user does while it
// can be seen answers it: keys that were typed before wait for the window behind it. Some ask for a file,
// which is sent before they count as answered.
import { accessKey, announceAccessKey, showCaption } from './caption.js';
import { picture } from './pictures.js';
import { text } from './texts.js';
import { Upload } from './upload.js';

export class MessageBox {
  #root;
  #connection;
  #message = null;
  #answered = false;
  #upload = null;

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
    this.#upload?.cancel();
    this.#upload = null;
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
    const words = document.createElement('p');
    words.id = 'message-text';
    words.textContent = message.text;
    body.append(...(icon ? [icon] : []), words);
    const buttons = document.createElement('div');
    buttons.className = 'message-buttons';
    buttons.append(...message.buttons.map((button) => this.#button(button)));
    panel.append(title, body, ...(message.file ? [this.#fileParts(message.file)] : []), buttons);
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

  /** The browser's own dialog, and how far the file has come. */
  #fileParts({ endings }) {
    const parts = document.createElement('div');
    parts.className = 'message-file';
    const input = document.createElement('input');
    input.type = 'file';
    input.hidden = true;
    input.accept = endings.join(',');
    input.addEventListener('change', () => {
      if (input.files.length > 0) this.#send(input.files[0]);
      // The same one can be chosen again.
      input.value = '';
    });
    const progress = document.createElement('progress');
    progress.max = 1;
    progress.hidden = true;
    const note = document.createElement('p');
    note.setAttribute('role', 'status');
    parts.append(input, progress, note);
    return parts;
  }

  #send(file) {
    const note = this.#root.querySelector('.message-file p');
    const progress = this.#root.querySelector('progress');
    if (file.size > this.#message.file.bytes) {
      note.textContent = text('fileTooLarge');
      return;
    }
    const { id } = this.#message;
    note.textContent = `${text('fileSending')} ${file.name}`;
    progress.hidden = false;
    progress.value = 0;
    this.#upload = new Upload(this.#connection.addressOf(id), file, (part) => { progress.value = part; }, (status) => {
      this.#upload = null;
      if (this.#message?.id !== id) return;
      progress.hidden = true;
      if (status === 204) {
        this.#answered = true;
        this.#connection.say({ type: 'file', window: id, text: file.name });
      } else {
        note.textContent = text(status === 413 ? 'fileTooLarge' : 'fileNotSent');
      }
    });
  }

  #answer(answer) {
    if (this.#answered) return;
    if (this.#message.file && answer !== this.#message.escape) {
      if (!this.#upload) this.#root.querySelector('input[type=file]').click();
      return;
    }
    this.#answered = true;
    this.#connection.say({ type: 'answer', window: this.#message.id, answer });
  }
}
