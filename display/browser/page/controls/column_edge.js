// The right edge of a heading: the user pulls it to make the column wider or narrower, and presses it
// twice to make it fit its texts.

const fitting = 0;

/** The average width of a character where the columns of a grid are measured, in pixels. */
export function characterWidth(grid) {
  const probe = document.createElement('span');
  probe.className = 'hundred-characters';
  grid.append(probe);
  const width = probe.offsetWidth / 100;
  probe.remove();
  return width;
}

/** How many of them a heading of that width has room for. */
export function charactersIn(width, grid) {
  return Math.max(1, Math.round(width / characterWidth(grid)) - 2);
}

const pen = document.createElement('canvas').getContext('2d');

/** How wide a heading is, which is bold, in the characters that columns are measured in. */
export function headingWidth(caption) {
  const { fontFamily } = getComputedStyle(document.body);
  const width = (weight, text) => {
    pen.font = `${weight} 100px ${fontFamily}`;
    return pen.measureText(text).width;
  };
  return Math.ceil(10 * width(600, caption) / width(400, '0')) / 10;
}

export class ColumnEdge {
  #cell;
  #listener;
  #pulledFrom = null;

  /**
   * @param cell the heading
   * @param listener `pulled(track)` while it is pulled, with the width as CSS says it; `sized(width)` at
   * the end, in average characters
   */
  constructor(cell, listener) {
    this.#cell = cell;
    this.#listener = listener;
    const edge = document.createElement('span');
    edge.className = 'column-edge';
    edge.addEventListener('pointerdown', (event) => this.#pressed(edge, event));
    edge.addEventListener('pointermove', (event) => this.#moved(event));
    edge.addEventListener('pointerup', (event) => this.#released(event));
    edge.addEventListener('pointercancel', () => { this.#pulledFrom = null; });
    // It neither takes the focus from where the user types nor means the heading itself.
    edge.addEventListener('mousedown', (event) => event.preventDefault());
    edge.addEventListener('click', (event) => event.stopPropagation());
    edge.addEventListener('dblclick', (event) => {
      event.stopPropagation();
      this.#listener.sized(fitting);
    });
    cell.append(edge);
  }

  #pressed(edge, event) {
    if (event.button !== 0) return;
    edge.setPointerCapture(event.pointerId);
    this.#pulledFrom = { x: event.clientX, width: this.#cell.offsetWidth };
  }

  #moved(event) {
    if (this.#pulledFrom) this.#listener.pulled(`${this.#width(event)}px`);
  }

  #released(event) {
    if (!this.#pulledFrom) return;
    const width = this.#width(event);
    const moved = event.clientX !== this.#pulledFrom.x;
    this.#pulledFrom = null;
    if (moved) this.#listener.sized(charactersIn(width, this.#grid));
  }

  #width(event) {
    return Math.max(3 * characterWidth(this.#grid), this.#pulledFrom.width + event.clientX - this.#pulledFrom.x);
  }

  get #grid() {
    return this.#cell.closest('.grid');
  }
}
