// What the page itself has to tell: that the connection is interrupted, that the session is over.
import { text } from './texts.js';

export class Notices {
  /** Nothing can be entered at the moment. */
  blocking = false;

  #banner = document.getElementById('banner');
  #ended = document.getElementById('ended');

  interrupted(is) {
    if (is === this.blocking) return;
    this.blocking = is;
    document.body.classList.toggle('interrupted', is);
    this.#banner.replaceChildren(...(is ? [text('interrupted')] : []));
  }

  /** A note that stays until it is dismissed and is in nobody's way. */
  tell(name) {
    const dismiss = document.createElement('button');
    dismiss.textContent = '×';
    dismiss.tabIndex = -1;
    dismiss.setAttribute('aria-label', text('dismiss'));
    dismiss.addEventListener('click', () => this.#banner.replaceChildren());
    this.#banner.replaceChildren(text(name), dismiss);
  }

  ended(reason) {
    this.blocking = true;
    const panel = document.createElement('section');
    panel.setAttribute('role', 'alertdialog');
    panel.setAttribute('aria-modal', 'true');
    panel.setAttribute('aria-labelledby', 'ended-title');
    panel.setAttribute('aria-describedby', 'ended-text');
    const title = document.createElement('h1');
    title.id = 'ended-title';
    title.textContent = text('endedTitle');
    const explanation = document.createElement('p');
    explanation.id = 'ended-text';
    explanation.textContent = text('ended')[reason] ?? text('ended').closed;
    panel.append(title, explanation);
    document.getElementById('desktop').inert = true;
    document.getElementById('message-box').inert = true;
    this.#ended.replaceChildren(panel);
    if (reason === 'restarted') {
      // This page's address leads nowhere any more.
      panel.tabIndex = -1;
      panel.focus();
      return;
    }
    const again = document.createElement('button');
    again.className = 'button default';
    again.textContent = text('again');
    again.addEventListener('click', () => location.reload());
    panel.append(again);
    again.focus();
  }
}
