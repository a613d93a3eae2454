// A table with a current cell. Rows are reused where they can be, so that a changed cell in a long
// table costs no more than a short one.
import { newElementId, View } from './view.js';

export class Grid extends View {
  #head = document.createElement('div');
  #body = document.createElement('div');
  #current = null; // the drawn current cell
  #scrolledTo = 0;
  #editor = null; // the box that floats over a cell while it is edited

  constructor(window, state) {
    const element = document.createElement('div');
    super(window, state, element, element);
    element.classList.add('grid', 'scrolls');
    element.tabIndex = 0;
    element.setAttribute('role', 'grid');
    this.#head.className = 'grid-head';
    this.#head.setAttribute('role', 'row');
    this.#body.className = 'grid-body';
    this.#body.setAttribute('role', 'rowgroup');
    element.append(this.#head, this.#body);
    element.addEventListener('mousedown', (event) => this.#pressed(event));
    element.addEventListener('dblclick', (event) => {
      if (event.target.closest('.cell-editor')) return;
      if (this.usable && event.target.closest('[role=gridcell]')) this.perform({ type: 'doubleClick' });
    });
    element.addEventListener('scroll', () => this.#scrolled());
  }

  draw(changes, before) {
    if (changes.columns) this.#drawColumns();
    if (changes.content) this.#drawRows(before.content ?? [], before.columns);
    this.element.style.setProperty('--rows', this.state.visibleRows);
    this.#drawCurrent();
    this.#drawEditor(this.state.editor);
  }

  shown() {
    this.#reveal();
  }

  #drawColumns() {
    const visible = this.state.columns.filter((column) => column.visible);
    // Where room is short, texts give way before numbers: half a name can still be recognised.
    const widths = visible.map(({ width, right }) => {
      const room = width + 2;
      return `minmax(${right ? room : Math.ceil(room / 2)}ch, ${room}fr)`;
    });
    this.element.style.setProperty('--columns', widths.join(' ') || '1fr');
    this.element.style.setProperty('--width', visible.reduce((sum, column) => sum + column.width + 2, 0));
    this.#head.replaceChildren(...visible.map((column) => {
      const cell = document.createElement('div');
      cell.setAttribute('role', 'columnheader');
      cell.classList.toggle('right', column.right);
      cell.textContent = column.caption;
      cell.title = column.caption;
      return cell;
    }));
    this.element.setAttribute('aria-colcount', visible.length);
  }

  #drawRows(before, columnsBefore) {
    const { content, columns } = this.state;
    this.element.setAttribute('aria-rowcount', content.length + 1);
    const sameColumns = JSON.stringify(columns) === JSON.stringify(columnsBefore);
    if (!sameColumns) this.#body.replaceChildren();
    while (this.#body.children.length > content.length) this.#body.lastChild.remove();
    const added = document.createDocumentFragment();
    content.forEach((row, index) => {
      const drawn = this.#body.children[index];
      if (drawn) this.#fill(drawn, row, before[index]);
      else added.append(this.#row(row, index));
    });
    this.#body.append(added);
    // Screen readers are told about the header row as the first.
    this.#head.setAttribute('aria-rowindex', 1);
  }

  #row(texts, index) {
    const row = document.createElement('div');
    row.className = 'grid-row';
    row.setAttribute('role', 'row');
    row.setAttribute('aria-rowindex', index + 2);
    this.state.columns.forEach((column, at) => {
      if (!column.visible) return;
      const cell = document.createElement('div');
      cell.setAttribute('role', 'gridcell');
      cell.dataset.column = at;
      if (column.right) cell.className = 'right';
      row.append(cell);
    });
    this.#fill(row, texts, undefined);
    return row;
  }

  #fill(row, texts, before) {
    for (const cell of row.children) {
      const shown = texts[cell.dataset.column] ?? '';
      if (before && before[cell.dataset.column] === shown) continue;
      cell.textContent = shown;
      cell.title = shown;
    }
  }

  #drawCurrent() {
    const [rowIndex, columnIndex] = this.state.current;
    const row = this.#body.children[rowIndex];
    const cell = row?.querySelector(`[data-column="${columnIndex}"]`) ?? row?.firstChild ?? null;
    if (cell === this.#current && row?.classList.contains('current') !== false) return;
    const rowBefore = this.#current?.parentElement;
    rowBefore?.classList.remove('current');
    rowBefore?.removeAttribute('aria-selected');
    this.#current?.classList.remove('current');
    this.#current = cell;
    if (!cell) {
      this.element.removeAttribute('aria-activedescendant');
      return;
    }
    row.classList.add('current');
    row.setAttribute('aria-selected', 'true');
    cell.classList.add('current');
    cell.id ||= newElementId();
    this.element.setAttribute('aria-activedescendant', cell.id);
    this.#reveal();
  }

  /** Puts the box that edits a cell into that cell; the rest of the page knows it as any text box. */
  #drawEditor(edited) {
    const box = edited ? this.window.views.get(edited.control) : null;
    if (this.#editor && this.#editor !== box) {
      this.#editor.element.remove();
      this.#editor = null;
    }
    if (!box) return;
    const cell = this.#body.children[edited.row]?.querySelector(`[data-column="${edited.column}"]`);
    if (!cell || box.element.parentElement === cell) return;
    this.#editor = box;
    box.element.classList.add('cell-editor');
    box.focusElement.setAttribute('aria-label', this.state.columns[edited.column].caption);
    cell.append(box.element);
  }

  /** Scrolls as far as needed; the header covers the first row's place. */
  #reveal() {
    const row = this.#current?.parentElement;
    if (!row) return;
    const top = row.offsetTop - this.#head.offsetHeight;
    const bottom = row.offsetTop + row.offsetHeight - this.element.clientHeight;
    if (this.element.scrollTop > top) this.element.scrollTop = top;
    else if (this.element.scrollTop < bottom) this.element.scrollTop = bottom;
    this.#scrolledTo = this.element.scrollTop;
  }

  #pressed(event) {
    if (event.target.closest('.cell-editor')) return;
    const cell = event.target.closest('[role=gridcell]');
    if (!cell) return;
    event.preventDefault();
    if (!this.usable) return;
    const index = [...this.#body.children].indexOf(cell.parentElement);
    this.perform({ type: 'select', index, column: Number(cell.dataset.column) });
  }

  #scrolled() {
    if (!this.state.scrolls || this.element.scrollTop === this.#scrolledTo) return;
    this.#scrolledTo = this.element.scrollTop;
    this.perform({ type: 'scroll' });
  }
}
