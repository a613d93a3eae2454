// A table to be read, with a bar below each of its lines that shows the same to the eye.
import { View } from './view.js';

function make(name, className, ...children) {
  const element = document.createElement(name);
  element.className = className;
  element.append(...children);
  return element;
}

function heading(scope, text) {
  const cell = make('th', '', text);
  cell.scope = scope;
  cell.title = text;
  return cell;
}

export class Gauges extends View {
  constructor(window, state) {
    super(window, state, make('table', 'gauges'), null);
  }

  draw() {
    const { headings, lines } = this.state;
    this.element.setAttribute('aria-label', headings[0] ?? '');
    this.element.replaceChildren(
      make('thead', '', make('tr', '', ...headings.map((text) => heading('col', text)))),
      ...lines.map((line) => {
        const [name, ...figures] = line.cells;
        const words = make('tr', '', heading('row', name), ...figures.map((figure) => make('td', '', figure)));
        return make('tbody', line.warns ? 'warns' : '', words, this.#bar(line));
      }),
    );
  }

  #bar({ reached, permitted }) {
    const { scale, headings } = this.state;
    const piece = (className, from, to) => {
      const element = make('span', className);
      const [left, right] = [from, to].map((part) => (100 * Math.min(Math.max(part, 0), scale)) / scale);
      element.style.left = `${left}%`;
      if (to) element.style.width = `${Math.max(0, right - left)}%`;
      return element;
    };
    const cell = make('td', '', make('div', 'track', piece('reached', 0, Math.min(reached, 1)), piece('beyond', 1, reached),
      piece('tick', 1), piece('tick', permitted)));
    cell.colSpan = headings.length;
    const row = make('tr', '', cell);
    row.setAttribute('aria-hidden', 'true');
    return row;
  }
}
