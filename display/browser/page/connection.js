// The line to the session. Every message has a number, and counts as awaited until the session
// acknowledges that it has dealt with it. After an interruption the page connects again, repeats
// what did not arrive, and asks for a complete drawing.

const sessionKey = 'tellurix-session';
// Set when the page is left, so that it can claim its session when it is loaded again. A duplicated
// tab has a copy of the session's id but not of this, and gets a session of its own.
const leftKey = 'tellurix-left';

const retryDelays = [100, 250, 500, 1000, 2000];
const slowAfter = 300;
const noticeAfter = 400;
const giveUpAfter = 150_000;
const answerWithin = 5000;
// How the session closes a connection over which something came that it does not take.
const contentCodes = new Set([1003, 1007, 1009]);

/** Half of a character that takes two code units cannot be told; it becomes a mark for one. */
function asText(message) {
  return JSON.stringify(message, (_, value) => (typeof value === 'string' ? value.replace(/\p{Surrogate}/gu, '\uFFFD') : value));
}

export class Connection {
  onDrawing = () => {};
  onIdle = () => {};

  #notices;
  #socket = null;
  #session = sessionStorage.getItem(sessionKey) ?? '';
  #returning = sessionStorage.getItem(leftKey) !== null;
  #known = false; // this page has had its session before
  #drawn = false; // the complete drawing has come, and so has nothing been missed
  #ended = false;
  #lastNumber = 0;
  #messageBytes = Infinity; // the longest message that the session takes
  #contentRefused = false; // the last connection was closed for what came over it
  #dropped = false; // that has been given up, which the user has to know
  #awaited = [];
  #slowTimer = 0;
  #lostAt = 0;
  #noticeTimer = 0;
  #attempt = 0;

  constructor(notices) {
    this.#notices = notices;
    sessionStorage.removeItem(leftKey);
    addEventListener('pagehide', () => sessionStorage.setItem(leftKey, '1'));
    // A page that comes back from the browser's memory has not been loaded again.
    addEventListener('pageshow', () => sessionStorage.removeItem(leftKey));
  }

  /** Nothing that the user did is still on its way. */
  get idle() {
    return this.#drawn && this.#awaited.length === 0;
  }

  /** Where a file of the session goes, or comes from. */
  addressOf(file) {
    return new URL(`file/${this.#session}/${file}`, import.meta.url);
  }

  start() {
    const address = new URL('session', import.meta.url);
    address.protocol = 'ws:';
    const socket = new WebSocket(address);
    this.#socket = socket;
    socket.onopen = () => {
      socket.send(JSON.stringify({
        type: 'hello',
        session: this.#session,
        takeOver: this.#known || this.#returning,
        orNew: !this.#known,
      }));
    };
    socket.onmessage = (event) => {
      if (socket === this.#socket) this.#receive(JSON.parse(event.data));
    };
    socket.onclose = ({ code }) => {
      if (socket !== this.#socket) return;
      this.#contentRefused ||= contentCodes.has(code);
      this.#lost();
    };
  }

  /**
   * Sends one event; it waits here if the line is interrupted.
   * @return whether it can be told: one that is too long is refused, and the user told so
   */
  say(event) {
    const message = { n: this.#lastNumber + 1, ...event };
    if (!this.#fits(message)) {
      this.#notices.tell('tooLong');
      return false;
    }
    ++this.#lastNumber;
    this.#awaited.push(message);
    if (this.#drawn) this.#transmit(message);
    clearTimeout(this.#slowTimer);
    this.#slowTimer = setTimeout(() => document.body.classList.add('waiting'), slowAfter);
    return true;
  }

  #fits(message) {
    const text = asText(message);
    // A code unit takes three bytes at most.
    return text.length * 3 <= this.#messageBytes || new TextEncoder().encode(text).length <= this.#messageBytes;
  }

  #transmit(message) {
    if (this.#socket?.readyState === WebSocket.OPEN) this.#socket.send(asText(message));
  }

  #receive(message) {
    if (message.ended) {
      this.#end(message.ended);
    } else if (message.session) {
      this.#greeted(message);
    } else if (message.complete || this.#drawn) {
      this.#draw(message);
    }
  }

  #greeted({ session, received, messageBytes }) {
    this.#messageBytes = messageBytes;
    if (!this.#known) {
      if (this.#returning && session !== this.#session) this.#notices.tell('expired');
      this.#session = session;
      this.#known = true;
      sessionStorage.setItem(sessionKey, session);
      this.#lastNumber = Math.max(this.#lastNumber, received);
    }
    this.#awaited = this.#awaited.filter((message) => message.n > received && message.type !== 'redraw');
    // Repeated, the first one that did not get through would close the connection again, and for ever.
    if (this.#contentRefused) this.#dropped = this.#awaited.shift() !== undefined;
    this.#contentRefused = false;
    for (const message of this.#awaited) this.#transmit(message);
    const redraw = { n: ++this.#lastNumber, type: 'redraw' };
    this.#awaited.push(redraw);
    this.#transmit(redraw);
  }

  #draw(message) {
    if (message.complete) {
      this.#drawn = true;
      this.#found();
      if (this.#dropped) this.#notices.tell('dropped');
      this.#dropped = false;
    }
    if (message.ack !== undefined) {
      this.#awaited = this.#awaited.filter((awaited) => awaited.n > message.ack);
      if (this.#awaited.length === 0) {
        clearTimeout(this.#slowTimer);
        document.body.classList.remove('waiting');
      }
    }
    this.onDrawing(message);
    if (this.idle) this.onIdle();
  }

  #lost() {
    this.#drawn = false;
    if (this.#ended) return;
    if (this.#lostAt === 0) {
      this.#lostAt = Date.now();
      this.#noticeTimer = setTimeout(() => this.#notices.interrupted(true), noticeAfter);
    }
    if (Date.now() - this.#lostAt > giveUpAfter) {
      this.#end('unreachable');
      return;
    }
    const delay = retryDelays[Math.min(this.#attempt++, retryDelays.length - 1)];
    setTimeout(() => this.#retry(), delay);
  }

  /**
   * Connects again, if the application is there and knows this page's address. Started anew it has
   * another one, and would refuse every connection for ever, which a socket does not tell from an
   * application that is not there.
   */
  async #retry() {
    try {
      const { status } = await fetch(import.meta.url, { method: 'HEAD', signal: AbortSignal.timeout(answerWithin) });
      if (status === 403) this.#end('restarted');
      else this.start();
    } catch {
      this.#lost();
    }
  }

  #found() {
    clearTimeout(this.#noticeTimer);
    this.#lostAt = 0;
    this.#attempt = 0;
    this.#notices.interrupted(false);
  }

  #end(reason) {
    this.#ended = true;
    this.#found();
    clearTimeout(this.#slowTimer);
    document.body.classList.remove('waiting');
    // Whoever is asked to wait, or was sent away, keeps nothing to come back to.
    if (reason !== 'unreachable') sessionStorage.removeItem(sessionKey);
    this.#notices.ended(reason);
  }
}
