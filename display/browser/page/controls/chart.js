// Bars side by side. Nothing of it is read out: a table of the same screen says it all.
import { View } from './view.js';

const namespace = 'http://www.w3.org/2000/svg';

function shape(name, className, attributes, content = '') {
  const element = document.createElementNS(namespace, name);
  element.setAttribute('class', className);
  for (const [key, value] of Object.entries(attributes)) element.setAttribute(key, value);
  element.textContent = content;
  return element;
}

const percent = (part) => `${(100 * part).toFixed(3)}%`;

export class Chart extends View {
  #legend = document.createElement('ul');
  #picture = shape('svg', 'picture-of-bars', {});

  constructor(window, state) {
    super(window, state, document.createElement('div'), null);
    this.element.classList.add('chart');
    this.element.setAttribute('aria-hidden', 'true');
    this.#legend.className = 'legend';
    this.element.append(this.#legend, this.#picture);
    this.#picture.addEventListener('click', (event) => {
      const bar = event.target.closest('[data-bar]')?.dataset.bar;
      if (bar !== undefined && this.usable) this.perform({ type: 'select', index: Number(bar), column: 0 });
    });
  }

  draw() {
    const { series, bars, marked } = this.state;
    this.#legend.replaceChildren(...series.map((name, i) => {
      const item = document.createElement('li');
      item.className = `series-${i}`;
      item.textContent = name;
      return item;
    }));
    this.#legend.hidden = series.length === 0;
    this.element.classList.toggle('usable', this.state.enabled);
    this.#picture.replaceChildren(
      ...this.#lines(),
      ...bars.flatMap((bar, i) => this.#bar(bar, i)),
      ...(marked >= 0 ? [this.#markedText()] : []),
      ...this.#today(),
      ...bars.map((bar, i) => this.#target(bar, i)),
    );
  }

  #height(value) {
    return Math.max(0, value) / this.state.top;
  }

  #lines() {
    const { top, step } = this.state;
    return Array.from({ length: Math.round(top / step) + 1 }, (_, i) => i * step).flatMap((value) => {
      const y = percent(1 - this.#height(value));
      return [
        shape('line', value === 0 ? 'base' : 'rule', { x1: '0', x2: '100%', y1: y, y2: y }),
        shape('text', 'figure', { x: '-0.5em', y, dy: '0.35em' }, String(value)),
      ];
    });
  }

  #bar({ name, values, empty }, i) {
    const { bars, marked, every } = this.state;
    const slot = 1 / bars.length;
    const part = 0.8 / Math.max(values.length, 1);
    const className = i === marked ? 'marked' : '';
    const shapes = values.map((value, series) => {
      const height = this.#height(value);
      return shape('rect', `bar series-${series} ${className}`, {
        x: percent(slot * (i + 0.1 + part * series)), width: percent(slot * part),
        y: percent(1 - height), height: percent(height),
      });
    });
    if (empty) {
      shapes.push(shape('rect', `none ${className}`, { x: percent(slot * (i + 0.1)), width: percent(slot * 0.8), y: '100%' }));
    }
    if (i % every === 0) {
      shapes.push(shape('text', 'name', { x: percent(slot * (i + 0.5)), y: '100%', dy: '1.4em' }, name));
    }
    return shapes;
  }

  #markedText() {
    const { bars, marked } = this.state;
    const { values, text } = bars[marked];
    const place = (marked + 0.5) / bars.length;
    const side = place < 0.1 ? 'start' : place > 0.9 ? 'end' : 'middle';
    const y = percent(1 - this.#height(Math.max(0, ...values)));
    return shape('text', 'value', { x: percent(place), y, dy: '-0.45em', 'text-anchor': side }, text);
  }

  #today() {
    const { today, todayText, bars } = this.state;
    if (today === null) return [];
    const place = today / bars.length;
    const left = place > 0.85;
    const x = percent(place);
    return [
      shape('line', 'today', { x1: x, x2: x, y1: '-1.25em', y2: '100%' }),
      shape('text', 'today-text', { x, dx: left ? '-0.35em' : '0.35em', y: '-0.6em', 'text-anchor': left ? 'end' : 'start' }, todayText),
    ];
  }

  /** What of the chart belongs to a bar: all above it and its name. */
  #target({ name, text }, i) {
    const slot = 1 / this.state.bars.length;
    const target = shape('rect', 'target', { x: percent(slot * i), width: percent(slot), y: '0', height: '100%', 'data-bar': i });
    target.append(shape('title', '', {}, `${name}: ${text}`));
    return target;
  }
}
