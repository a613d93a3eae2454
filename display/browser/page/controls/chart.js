// Bars side by side. Nothing of it is read out: a table of the same screen says it all.
import { View } from './view.js';

function shape(name, className, attributes, content = '') {
  const element = document.createElementNS('http://www.w3.org/2000/svg', name);
  element.setAttribute('class', className);
  for (const [key, value] of Object.entries(attributes)) element.setAttribute(key, value);
  element.textContent = content;
  return element;
}

const percent = (part) => `${100 * part}%`;

export class Chart extends View {
  #legend = document.createElement('ul');
  #picture = shape('svg', 'bars', {});

  constructor(window, state) {
    super(window, state, document.createElement('div'), null);
    this.element.classList.add('chart');
    this.element.setAttribute('aria-hidden', 'true');
    this.element.append(this.#legend, this.#picture);
    this.#picture.addEventListener('click', ({ target: { dataset } }) => {
      if (dataset.bar && this.usable) this.perform({ type: 'select', index: Number(dataset.bar) });
    });
  }

  draw() {
    const { series, bars, top, step } = this.state;
    this.#legend.hidden = series.length === 0;
    this.#legend.replaceChildren(...series.map((name, i) => {
      const item = document.createElement('li');
      item.className = `series-${i}`;
      item.textContent = name;
      return item;
    }));
    const place = (bar) => percent(bar / bars.length);
    const height = (value) => percent(1 - Math.max(0, value) / top);
    const lines = Array.from({ length: Math.round(top / step) + 1 }, (_, i) => height(i * step)).flatMap((y, i) => [
      shape('line', i ? 'rule' : 'base', { x1: 0, x2: '100%', y1: y, y2: y }),
      shape('text', 'figure', { x: '-0.5em', y, dy: '0.35em' }, i * step),
    ]);
    this.#picture.replaceChildren(
      ...lines,
      ...bars.flatMap((bar, i) => this.#bar(bar, i, place, height)),
      ...this.#notes(place, height),
      // All above a bar belongs to it.
      ...bars.map(({ name, text }, i) => {
        const target = shape('rect', 'target', { x: place(i), width: place(1), height: '100%', 'data-bar': i });
        target.append(shape('title', '', {}, `${name}: ${text}`));
        return target;
      }),
    );
  }

  #bar({ name, values, empty }, i, place, height) {
    const { marked, every } = this.state;
    const mark = i === marked ? 'marked' : '';
    const part = 0.8 / values.length;
    return [
      ...values.map((value, series) => shape('rect', `beam series-${series} ${mark}`, {
        x: place(i + 0.1 + part * series), width: place(part), y: height(value), height: percent(Math.max(0, value) / this.state.top),
      })),
      ...(empty ? [shape('rect', `none ${mark}`, { x: place(i + 0.1), width: place(0.8), y: '100%' })] : []),
      ...(i % every ? [] : [shape('text', '', { x: place(i + 0.5), y: '100%', dy: '1.4em' }, name)]),
    ];
  }

  #notes(place, height) {
    const { bars, marked, today, todayText } = this.state;
    const notes = [];
    if (marked >= 0) {
      const { values, text } = bars[marked];
      notes.push(shape('text', 'value', { x: place(marked + 0.5), y: height(Math.max(...values)), dy: '-0.45em' }, text));
    }
    if (today !== null) {
      const x = place(today);
      notes.push(
        shape('line', 'today', { x1: x, x2: x, y1: '-1.25em', y2: '100%' }),
        shape('text', today / bars.length > 0.85 ? 'before' : 'behind', { x, y: '-0.6em' }, todayText),
      );
    }
    return notes;
  }
}
