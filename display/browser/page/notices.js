// What the page itself has to tell: that the connection is interrupted, that the session is over.
import { text } from './texts.js';

export class Notices {
  /** Nothing can be entered at the moment. */
  blocking = false;

  #banner = document.getElementById('banner');
  #ended = document.getElementById('ended');
  #offered = new Map(); // links to the files that have not been dismissed, by their numbers

  interrupted(is) {
    if (is === this.blocking) return;
    this.blocking = is;
    this.#banner.replaceChildren(...(is ? [text('interrupted')] : []));
  }

  /** A note that stays until it is dismissed and is in nobody's way. */
  tell(name) {
    this.#note(text(name));
  }

  /**
   * Files that were made for the user. Each is saved at once; the links stay for browsers that save
   * only what was asked for by hand.
   * @param files [{ name, address }]
   */
  offer(files) {
    const links = files.filter(({ address }) => !this.#offered.has(String(address))).map(({ name, address }) => {
      const link = document.createElement('a');
      link.href = address;
      link.download = name;
      link.textContent = name;
      this.#offered.set(String(address), link);
      return link;
    });
    if (links.length === 0) return;
    this.#note(text('fileMade'), ...this.#offered.values());
    for (const link of links) link.click();
  }

  #note(...content) {
    const dismiss = document.createElement('button');
    dismiss.textContent = '×';
    dismiss.tabIndex = -1;
    dismiss.setAttribute('aria-label', text('dismiss'));
    dismiss.addEventListener('click', () => {
      this.#banner.replaceChildren();
      this.#offered.clear();
    });
    this.#banner.replaceChildren(...content, dismiss);
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
