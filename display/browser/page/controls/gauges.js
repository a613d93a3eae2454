// A table to be read, with a bar below each of its lines that shows the same to the eye.
import { View } from './view.js';

function make(name, className, children = []) {
  const element = document.createElement(name);
  if (className) element.className = className;
  element.append(...children);
  return element;
}

const percent = (part) => `${(100 * part).toFixed(2)}%`;

export class Gauges extends View {
  constructor(window, state) {
    super(window, state, make('table', 'gauges'), null);
  }

  draw() {
    const { headings, lines } = this.state;
    const titles = headings.map((heading) => {
      const cell = make('th', '', [heading]);
      cell.scope = 'col';
      return cell;
    });
    this.element.replaceChildren(
      make('thead', '', [make('tr', '', titles)]),
      ...lines.map((line) => make('tbody', line.warns ? 'too-much' : '', [this.#words(line), this.#bar(line)])),
    );
  }

  #words({ cells }) {
    const [name, ...figures] = cells;
    const first = make('th', '', [make('span', 'name', [name])]);
    first.scope = 'row';
    first.title = name;
    return make('tr', '', [first, ...figures.map((figure) => make('td', '', [figure]))]);
  }

  #bar({ reached, permitted }) {
    const { scale, headings } = this.state;
    const of = (part) => percent(Math.min(Math.max(part, 0), scale) / scale);
    const piece = (className, properties) => {
      const element = make('span', className);
      Object.assign(element.style, properties);
      return element;
    };
    const track = make('div', 'track', [
      piece('reached', { width: of(Math.min(reached, 1)) }),
      piece('beyond', { left: of(1), width: `calc(${of(reached)} - ${of(1)})` }),
      piece('tick', { left: of(1) }),
      piece('tick', { left: of(permitted) }),
    ]);
    track.querySelector('.beyond').hidden = reached <= 1;
    const cell = make('td', 'bar', [track]);
    cell.colSpan = headings.length;
    const row = make('tr', '', [cell]);
    row.setAttribute('aria-hidden', 'true');
    return row;
  }
}
