// Arranges the controls of a window as its layout tree says.
import { showVacancy } from './controls/view.js';
import { text } from './texts.js';

// What stands in a place is said by classes, as far as style sheets ask for an order: selectors that look into it for
// one would have the browser look again whenever a row comes into a table.
const builders = {
  control: (node, views) => viewOf(node, views).element,
  field: (node, views) => box('field', [labelOf(node, views), fieldContent(node, views)]),
  row(node, views) {
    const row = box('row', node.children.map((child) => build(child, views)));
    const has = (places) => row.querySelector(`:scope > ${places}`) !== null;
    row.classList.toggle('abreast', has('.frame + .frame.grows'));
    row.classList.toggle('of-three', has('.groups:first-child + .groups + .grows:last-child'));
    return row;
  },
  column: (node, views) => box('column', node.children.map((child) => build(child, views))),
  fields(node, views) {
    const table = box('fields', node.children.flatMap((child) => fieldCells(child, views)));
    table.style.setProperty('--columns', node.columns ?? 1);
    table.dataset.columns = node.columns ?? 1;
    return table;
  },
  table(node, views) {
    const table = box('table', node.children.map((child) => box('cell', [build(child, views)])));
    table.style.setProperty('--columns', node.columns);
    nameCells(node, views);
    return table;
  },
  groups: (node, views) => box('groups', node.children.map((child) => build(child, views))),
  /** A narrow screen shows the first one; the others are behind a button, which says how many are in use. */
  filters(node, views) {
    const strip = box('filters', node.children.map((child) => build(child, views)));
    if (node.children.length === 1) return strip;
    const more = document.createElement('button');
    more.type = 'button';
    more.tabIndex = -1;
    more.className = 'button more';
    more.addEventListener('click', () => more.setAttribute('aria-expanded', more.getAttribute('aria-expanded') !== 'true'));
    more.setAttribute('aria-expanded', 'false');
    strip.append(more);
    return strip;
  },
  sides(node, views) {
    const sides = node.children.map((child) => box('side', [build(child, views)]));
    sides.at(-1).tabIndex = 0; // it scrolls, and may have nothing in it that takes the focus
    const both = box('sides', sides);
    for (const side of sides) side.classList.toggle('glance', side.querySelector(':scope > .groups .gauges') !== null);
    both.classList.toggle('list-grows', sides[0].firstChild.classList.contains('grows'));
    both.classList.toggle('details-grow', sides.at(-1).firstChild.classList.contains('grows'));
    return both;
  },
  frame(node, views) {
    const frame = viewOf(node, views);
    frame.content.append(...node.children.map((child) => build(child, views)));
    if (node.children.length === 1 && node.children[0].kind === 'field') frame.repeats(viewOf(node.children[0], views));
    return frame.element;
  },
  section(node, views) {
    const [heading, ...children] = node.children;
    const frame = viewOf(node, views);
    const tools = (heading.children ?? []).map((child) => build(child, views));
    frame.heading.append(...tools);
    frame.heading.classList.toggle('equipped', tools.length > 0);
    const list = children.map((child) => views.get(child.control)).find((view) => view?.state.kind === 'grid');
    list?.countIn(frame.heading);
    return builders.frame({ ...node, children }, views);
  },
  sums(node, views) {
    const grid = viewOf(node, views);
    const [below] = node.children;
    const rows = below.kind === 'row' ? [below] : below.children;
    const frame = below.kind === 'frame' ? viewOf(below, views) : null;
    grid.showSums(rows.map(({ children }) => children.map((cell) => ({
      column: cell.columns ?? 1,
      content: cell.children.map((child) => build(child, views)),
    }))), frame);
    return grid.element;
  },
  bar(node, views) {
    const groups = node.children.map(({ children = [] }) => box('buttons', children.map((child) => build(child, views))));
    groups.at(-1).classList.add('closing');
    return box('bar', groups);
  },
  tabs(node, views) {
    const tabs = viewOf(node, views);
    node.children.forEach((child) => tabs.addPage(build(child, views)));
    return tabs.element;
  },
};

/**
 * @param window the element of the window
 * @returns what scrolls, the bar of buttons below it (those of a page, too, while that is shown), and the strips whose
 *   filters a narrow screen hides
 */
export function buildLayout(node, views, window) {
  const content = build(node, views);
  for (const place of content.querySelectorAll('.label-cell, .field-content, .buttons')) showVacancy(place);
  nameTheRest(views, window);
  const bars = [...content.querySelectorAll('.bar')];
  const bar = bars.pop() ?? null;
  bar?.prepend(...bars);
  bar?.remove();
  return { content, bar, strips: [...content.querySelectorAll('.filters:has(> .more)')] };
}

/** Says how many of the filters behind a button are in use. */
export function countFilters(strips) {
  for (const strip of strips) {
    const used = [...strip.querySelectorAll(':scope > :not(:first-child) :is(input, select)')].filter((control) => (
      !control.readOnly && (control.type === 'checkbox' ? control.checked : control.selectedIndex > 0 || (control.type === 'text' && control.value))));
    const words = used.length > 0 ? `${text('filters')} (${used.length})` : text('filters');
    if (strip.lastChild.textContent !== words) strip.lastChild.textContent = words;
  }
}

function build(node, views) {
  const complete = { children: [], ...node };
  const element = builders[complete.kind](complete, views);
  if (complete.grows) element.classList.add('grows');
  if (complete.children.some(({ grows }) => grows)) element.classList.add('stretches');
  if (complete.primary) element.classList.add('primary');
  return element;
}

function box(className, children) {
  const element = document.createElement('div');
  element.className = className;
  element.append(...children);
  return element;
}

function viewOf(node, views) {
  return views.get(node.control);
}

/**
 * What has no label is named by the button that stands in its row, or else by the frame around it; a table or a
 * list without either by the window.
 */
function nameTheRest(views, window) {
  for (const { element, focusElement, state: { kind, caption } } of views.values()) {
    if (!['text', 'check', 'list', 'grid'].includes(kind) || focusElement.hasAttribute('aria-label')) continue;
    if (focusElement.getAttribute('aria-labelledby') && (kind !== 'check' || caption)) continue;
    const beside = kind === 'grid' ? [] : element.closest('.row')?.querySelectorAll(':scope > .button') ?? [];
    const button = [...beside].find((found) => /\w{2}/.test(found.textContent));
    const frame = element.closest('.frame')?.querySelector('.caption:not(:empty)');
    const name = button ?? frame ?? (kind === 'grid' || kind === 'list' ? window : null);
    if (name) focusElement.setAttribute('aria-labelledby', name.id);
  }
}

/** The label of a field, tied to all controls of the field. */
function labelOf(node, views) {
  const label = viewOf(node, views);
  for (const child of node.children) views.get(child.control)?.labelledBy?.(label);
  return label.element;
}

function fieldContent(node, views) {
  return box('field-content', node.children.map((child) => build(child, views)));
}

/** The cells of a table are named by the label over their column and the one that their row begins with. */
function nameCells({ children, columns }, views) {
  children.slice(columns).forEach((child, i) => {
    const labels = [children[i % columns], children[columns + i - (i % columns)]];
    const names = labels.filter((label) => label !== child).map((label) => views.get(label.control));
    views.get(child.control)?.labelledByAll(names.filter((label) => label?.state.kind === 'label'));
  });
}

/**
 * One field of a table: a cell for the label and one for the rest, so that all of them stand in
 * line. A row that begins with a field is one too; what is none gets both cells.
 */
function fieldCells(node, views) {
  const field = node.kind === 'row' ? node.children?.[0] : node;
  if (field?.kind !== 'field') {
    const whole = build(node, views);
    whole.classList.add('whole');
    return [whole];
  }
  const rest = node.kind === 'row' ? node.children.slice(1) : [];
  const label = box('label-cell', [labelOf({ children: [], ...field }, views)]);
  const content = fieldContent({ children: [], ...field }, views);
  content.append(...rest.map((child) => build(child, views)));
  if (node.grows) for (const cell of [label, content]) cell.classList.add('grows');
  return [label, content];
}
