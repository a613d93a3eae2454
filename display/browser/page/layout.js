// Arranges the controls of a window as its layout tree says.

const builders = {
  control: (node, views) => viewOf(node, views).element,
  field: (node, views) => box('field', [labelOf(node, views), fieldContent(node, views)]),
  row: (node, views) => box('row', node.children.map((child) => build(child, views))),
  column: (node, views) => box('column', node.children.map((child) => build(child, views))),
  fields(node, views) {
    const table = box('fields', node.children.flatMap((child) => fieldCells(child, views)));
    table.style.setProperty('--columns', node.columns);
    return table;
  },
  table(node, views) {
    const table = box('table', node.children.map((child) => box('cell', [build(child, views)])));
    table.style.setProperty('--columns', node.columns);
    nameCells(node, views);
    return table;
  },
  frame(node, views) {
    const frame = viewOf(node, views);
    frame.content.append(...node.children.map((child) => build(child, views)));
    return frame.element;
  },
  tabs(node, views) {
    const tabs = viewOf(node, views);
    node.children.forEach((child) => tabs.addPage(build(child, views)));
    return tabs.element;
  },
};

export function buildLayout(node, views) {
  return build({ children: [], ...node }, views);
}

/** Names the tables and lists that no label stands with: by the frame around them, or by the window. */
export function nameTables(heading, views) {
  for (const { element, focusElement, state } of views.values()) {
    if (!['grid', 'list'].includes(state.kind) || focusElement.hasAttribute('aria-labelledby')) continue;
    const legend = element.closest('fieldset:has(> legend:not([hidden]))')?.querySelector('legend');
    focusElement.setAttribute('aria-labelledby', (legend ?? heading).id);
  }
}

function build(node, views) {
  const complete = { children: [], ...node };
  const element = builders[complete.kind](complete, views);
  if (complete.grows) element.classList.add('grows');
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
