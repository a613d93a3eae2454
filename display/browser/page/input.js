// Keeps the order of everything the user does. What is done while the session is still busy with
// something earlier waits here and is done in its turn, so that fast typing loses nothing and goes
// where it was meant to: "12<Tab>34" types 34 into the box that Tab led to, however long the
// session takes to decide which one that is.

export class Input {
  /** Whether something has to be answered first, which nothing typed before may answer. */
  holds = () => false;

  #connection;
  #waiting = [];

  constructor(connection) {
    this.#connection = connection;
  }

  /** Something done now would have to wait, so the browser must not do it by itself. */
  get busy() {
    return this.#waiting.length > 0 || !this.#ready;
  }

  /** Does something as soon as its turn has come. */
  perform(action) {
    this.#waiting.push(action);
    this.proceed();
  }

  proceed() {
    while (this.#waiting.length > 0 && this.#ready) this.#waiting.shift()();
  }

  /** @return whether it can be told */
  say(event) {
    return this.#connection.say(event);
  }

  get #ready() {
    return this.#connection.idle && !this.holds();
  }
}
