// A table with a current cell. Only the rows that are seen stand in the page, some more above and below
// them, and the current one, which screen readers are told about wherever it is: so that a changed cell
// in a long table costs no more than in a short one. Rows have a fixed height, which gives each its
// place and the whole its height to scroll.
import { isZero, readable } from '../figures.js';
import { copiedCells } from '../grid_text.js';
import { text } from '../texts.js';
import { charactersIn, ColumnEdge, headingWidth } from './column_edge.js';
import { newElementId, showChange, unseen, View } from './view.js';

const narrowly = ['', 'below', 'away']; // on a narrow screen
const orders = ['none', 'ascending', 'descending'];
const nameWidth = 12; // a text that wide is a name or the like, what is shorter is a date or a code
const rowsBeyond = 8; // drawn above and below those that are seen: scrolling shows no gaps

function sumCell() {
  const cell = document.createElement('div');
  cell.setAttribute('role', 'gridcell');
  return cell;
}

export class Grid extends View {
  #head = document.createElement('div');
  #body = document.createElement('div');
  #drawn = document.createElement('div'); // the rows in it that stand in the page
  #rows = new Map(); // these by their index
  #current = null; // the drawn current cell
  #scrolledTo = 0;
  #laidOut = false; // it has room on the screen, and is not on the page of a tab behind another
  #sums = document.createElement('div');
  #sumRows = new Map(); // the cells of each by their columns
  #whole = false; // all rows are drawn, for paper
  #looks = []; // the classes of a cell, by its column
  #changed = new Map(); // who has changed a cell, by its row and column
  #warnings = new Set(); // the cells whose text warns, in the same way
  #heads = null; // the caption over it, where it counts the rows
  #empty = null; // what stands there instead of rows
  #editor = null; // the box that floats over a cell while it is edited
  #opened = null; // that cell

  constructor(window, state) {
    const element = document.createElement('div');
    super(window, state, element, element);
    element.classList.add('grid', 'scrolls');
    element.tabIndex = 0;
    element.setAttribute('role', 'grid');
    element.setAttribute('aria-multiselectable', 'true');
    this.#head.className = 'grid-head';
    this.#head.setAttribute('role', 'row');
    // Screen readers are told about the header row as the first.
    this.#head.setAttribute('aria-rowindex', 1);
    this.#body.className = 'grid-body';
    this.#body.setAttribute('role', 'rowgroup');
    this.#drawn.className = 'grid-rows';
    this.#drawn.setAttribute('role', 'presentation');
    this.#body.append(this.#drawn);
    element.append(this.#head, this.#body);
    element.addEventListener('mousedown', (event) => this.#pressed(event));
    element.addEventListener('dblclick', (event) => {
      if (event.target.closest('.cell-editor')) return;
      if (this.usable && event.target.closest('[role=gridcell]')) this.perform({ type: 'doubleClick' });
    });
    this.#head.addEventListener('mousedown', (event) => {
      if (this.state.headings) event.preventDefault();
    });
    this.#head.addEventListener('click', (event) => {
      const cell = event.target.closest('.pressable > [role=columnheader]');
      if (cell && this.usable) this.perform({ type: 'heading', column: Number(cell.dataset.column) });
    });
    element.addEventListener('scroll', () => this.#scrolled());
    new ResizeObserver(() => this.#resized()).observe(element);
  }

  draw(changes, before) {
    if (changes.columns) this.#drawColumns();
    if (changes.headings !== before.headings) this.#head.classList.toggle('pressable', this.state.headings);
    if (changes.content) this.#takeRows();
    this.#drawEmpty();
    this.#showCount();
    if (changes.visibleRows !== before.visibleRows) this.element.style.setProperty('--rows', changes.visibleRows);
    // The browser is asked for places before anything changes, or it would have to lay out twice. To take
    // a box with the focus away is to ask as well.
    if (changes.reveal) this.#reveal();
    const wanted = this.#wanted();
    if (!this.state.editor) this.#removeEditor();
    this.#drawRows(wanted);
    if (changes.changedCells) this.#takeMarks();
    if (changes.block || before.block) for (const [index, row] of this.#rows) this.#markCells(row, index);
    if (changes.editable !== before.editable) this.element.setAttribute('aria-readonly', !this.state.editable);
    for (const [index, texts] of changes.changedRows ?? []) this.#takeRow(index, texts);
    this.#drawCurrent();
    if (this.state.editor) this.#drawEditor(this.state.editor);
  }

  shown() {
    this.#resized();
  }

  /** Paper does not scroll: all rows stand on it. */
  showOnPaper(printing) {
    this.#whole = printing;
    this.#drawRows();
  }

  /** What copying takes. */
  copied(withHeadings) {
    return copiedCells(this.state, withHeadings);
  }

  /** How wide the current column is shown, in average characters. */
  columnWidth() {
    const heading = this.#heading(this.state.current[1]);
    return heading ? charactersIn(heading.offsetWidth, this.element) : 0;
  }

  /**
   * Rows of sums, which stay in sight below the others.
   * @param rows of cells { column, content }
   * @param frame the frame that the screen keeps them in, or null
   */
  showSums(rows, frame) {
    this.element.classList.add('summed');
    const group = document.createElement('div');
    group.className = 'sums';
    group.setAttribute('role', 'rowgroup');
    frame?.standsAs(group);
    this.#sums.className = 'grid-sums';
    this.#sums.setAttribute('role', 'presentation');
    for (const cells of rows) {
      const row = document.createElement('div');
      row.setAttribute('role', 'row');
      this.#sumRows.set(row, new Map(cells.map(({ column, content }) => {
        const cell = sumCell();
        cell.append(...content);
        return [column, cell];
      })));
    }
    this.#sums.append(...this.#sumRows.keys());
    group.replaceChildren(this.#sums);
    this.element.append(group);
    this.#placeSums();
  }

  /** The sums stand in the columns that they belong to, beside empty cells; those of a hidden one are hidden. */
  #placeSums() {
    for (const [row, cells] of this.#sumRows) {
      row.replaceChildren(...this.state.columns.map(({ visible, right }, at) => {
        const cell = cells.get(at) ?? sumCell();
        cell.hidden = !visible;
        cell.classList.toggle('right', right);
        return cell;
      }));
    }
  }

  #drawColumns() {
    const { columns } = this.state;
    // While some cells can be edited, the others are seen to be locked.
    const locks = columns.some((column) => column.open);
    // What a line is known by stays where the others scroll.
    const name = columns.find(({ visible, right, width }) => visible && !right && width >= nameWidth);
    this.#looks = columns.map((column) => [
      column.right && 'right', locks && !column.open && 'locked', column === name && 'stays', column.remark && 'remark',
      narrowly[column.narrow],
    ].filter(Boolean).join(' '));
    const visible = this.state.columns.filter((column) => column.visible);
    // Where room is short, long texts give way before numbers and dates: half a name can still be recognised.
    // What the user has sized does neither give way nor grow.
    const widths = visible.map(({ width, right, sized, caption, order }) => {
      if (!caption && !sized) return `${width + 1}ch`; // marks of the row
      // A caption that is longer than what stands below it has to be read as well.
      const heading = headingWidth(caption) + (order ? 4.5 : 2.5);
      const room = sized ? width + 2 : Math.max(width + 2, heading);
      return sized ? `${room}ch` : `minmax(${right || width < nameWidth ? room : Math.max(heading, room / 2)}ch, ${room}fr)`;
    });
    this.element.style.setProperty('--columns', widths.join(' ') || '1fr');
    this.element.style.setProperty('--width', visible.reduce((sum, column) => sum + column.width + 2, 0));
    this.#head.replaceChildren(...visible.map((column, place) => {
      const cell = document.createElement('div');
      cell.setAttribute('role', 'columnheader');
      cell.dataset.column = this.state.columns.indexOf(column);
      cell.classList.toggle('right', column.right);
      cell.classList.toggle('stays', column === name);
      cell.textContent = column.caption;
      if (!column.caption) cell.append(unseen(text('mark')));
      cell.title = column.tip || column.caption;
      if (column.order) cell.setAttribute('aria-sort', orders[column.order]);
      new ColumnEdge(cell, {
        pulled: (track) => this.element.style.setProperty('--columns', widths.with(place, track).join(' ')),
        sized: (width) => {
          if (!this.usable) return this.#drawColumns();
          return this.perform({ type: 'columnSized', column: this.state.columns.indexOf(column), width });
        },
      });
      return cell;
    }));
    this.element.setAttribute('aria-colcount', visible.length);
    this.element.classList.toggle('stacks', visible.some(({ narrow }) => narrowly[narrow] === 'below'));
    this.#placeSums();
    this.#remove(() => true);
  }

  #takeRows() {
    const { content } = this.state;
    this.element.setAttribute('aria-rowcount', content.length + 1);
    this.element.style.setProperty('--count', content.length);
    this.#remove((index) => index >= content.length);
    for (const [index, row] of this.#rows) this.#fill(row, content[index]);
  }

  /** The heading over the table says how many rows there are, unless it ends with a number of its own. */
  countIn(heading) {
    this.#heads = heading.querySelector('.caption');
    this.#showCount();
  }

  #showCount() {
    if (!this.#heads) return;
    const says = /[^\d\s]\s*$/.test(this.#heads.textContent) && this.state.content.length > 0;
    this.#heads.dataset.count = says ? this.state.content.length : '';
  }

  #takeMarks() {
    this.#changed = new Map(this.state.changedCells.map(([row, column, who]) => [`${row}/${column}`, who]));
    this.#warnings = new Set(this.state.warnings.map(([row, column]) => `${row}/${column}`));
    for (const [index, row] of this.#rows) this.#mark(row, index);
  }

  #mark(row, index) {
    for (const cell of row.children) {
      const place = `${index}/${cell.dataset.column}`;
      showChange(cell, this.#changed.get(place));
      cell.classList.toggle('warns', this.#warnings.has(place));
    }
  }

  #drawEmpty() {
    const { content, empty } = this.state;
    const words = content.length === 0 ? empty : '';
    if (!words && !this.#empty) return;
    if (!this.#empty) {
      this.#empty = document.createElement('div');
      this.#empty.className = 'empty';
      this.#empty.id = newElementId();
      this.element.append(this.#empty);
    }
    this.#empty.textContent = words;
    this.#empty.hidden = !words;
    if (this.state.error) return; // which describes it
    if (words) this.element.setAttribute('aria-describedby', this.#empty.id);
    else this.element.removeAttribute('aria-describedby');
  }

  #takeRow(index, texts) {
    this.state.content[index] = texts;
    const row = this.#rows.get(index);
    if (row) this.#fill(row, texts);
  }

  /** Puts the rows into the page that have to be there now, and takes the others away. */
  #drawRows(wanted = this.#wanted()) {
    this.#remove((index) => !wanted.includes(index));
    let next = this.#drawn.firstChild;
    for (const index of wanted) {
      const drawn = this.#rows.get(index);
      if (drawn) {
        next = drawn.nextSibling;
        continue;
      }
      const row = this.#row(index);
      this.#rows.set(index, row);
      this.#drawn.insertBefore(row, next);
    }
  }

  /** Indices in their order: of the rows that are seen and those around them, of the current and the edited one. */
  #wanted() {
    const { content, current, editor } = this.state;
    if (this.#whole) return content.map((row, index) => index);
    const wanted = new Set([current[0], editor?.row ?? current[0]]);
    const height = this.#rowHeight;
    if (height > 0) {
      const first = Math.floor(this.element.scrollTop / height) - rowsBeyond;
      const last = Math.ceil((this.element.scrollTop + this.element.clientHeight) / height) + rowsBeyond;
      for (let index = first; index < last; ++index) wanted.add(index);
    }
    return [...wanted].filter((index) => index >= 0 && index < content.length).sort((a, b) => a - b);
  }

  #remove(matches) {
    for (const [index, row] of this.#rows) {
      if (!matches(index)) continue;
      row.remove();
      this.#rows.delete(index);
    }
  }

  #row(index) {
    const row = document.createElement('div');
    row.className = 'grid-row';
    row.style.setProperty('--at', index);
    row.setAttribute('role', 'row');
    row.setAttribute('aria-rowindex', index + 2);
    row.dataset.row = index;
    this.state.columns.forEach((column, at) => {
      if (!column.visible) return;
      const cell = document.createElement('div');
      cell.setAttribute('role', 'gridcell');
      cell.dataset.column = at;
      cell.className = this.#looks[at];
      row.append(cell);
    });
    this.#fill(row, this.state.content[index]);
    if (this.state.block) this.#markCells(row, index);
    if (this.#changed.size + this.#warnings.size > 0) this.#mark(row, index);
    return row;
  }

  #markCells(row, index) {
    const [first, from, last, to] = this.state.block ?? [0, 0, -1, -1];
    for (const cell of row.children) {
      const marked = index >= first && index <= last && cell.dataset.column >= from && cell.dataset.column <= to;
      cell.classList.toggle('marked', marked);
      if (marked) cell.setAttribute('aria-selected', 'true');
      else cell.removeAttribute('aria-selected');
    }
  }

  #heading(column) {
    return this.#head.querySelector(`[data-column="${column}"]`);
  }

  #fill(row, texts) {
    for (const cell of row.children) {
      const shown = texts[cell.dataset.column] ?? '';
      if (cell.title === shown) continue;
      cell.textContent = cell.classList.contains('right') ? readable(shown) : shown;
      cell.title = shown;
      cell.classList.toggle('zero', isZero(shown));
    }
  }

  #cell(row, column) {
    return this.#rows.get(row)?.querySelector(`[data-column="${column}"]`) ?? null;
  }

  #drawCurrent() {
    const [row, column] = this.state.current;
    const cell = this.#cell(row, column) ?? this.#rows.get(row)?.firstChild ?? null;
    if (cell === this.#current) return;
    const rowBefore = this.#current?.parentElement;
    rowBefore?.classList.remove('current');
    rowBefore?.removeAttribute('aria-selected');
    this.#current?.classList.remove('current');
    this.#current = cell;
    if (!cell) {
      this.element.removeAttribute('aria-activedescendant');
      return;
    }
    cell.parentElement.classList.add('current');
    cell.parentElement.setAttribute('aria-selected', 'true');
    cell.classList.add('current');
    cell.id ||= newElementId();
    this.element.setAttribute('aria-activedescendant', cell.id);
  }

  /** Puts the box that edits a cell into that cell; the rest of the page knows it as any text box. */
  #drawEditor({ control, row, column }) {
    const box = this.window.views.get(control);
    const cell = this.#cell(row, column);
    if (!cell || box.element.parentElement === cell) return;
    this.#removeEditor();
    this.#editor = box;
    box.element.classList.add('cell-editor');
    box.focusElement.setAttribute('aria-label', this.state.columns[column].caption);
    this.#opened = cell;
    this.#showOpened(true);
    cell.append(box.element);
    box.drawError();
  }

  #removeEditor() {
    if (!this.#editor) return;
    this.#showOpened(false);
    this.#drawn.classList.remove('tells');
    this.#editor.element.remove();
    this.#editor = null;
  }

  #showOpened(opened) {
    for (const element of [this.#opened, this.#opened.parentElement]) element.classList.toggle('opened', opened);
  }

  /** Of every row; 0 while nothing can be seen. */
  get #rowHeight() {
    const rows = this.state.content.length;
    return rows > 0 ? this.#body.offsetHeight / rows : this.#head.offsetHeight;
  }

  /** Scrolls as far as needed to the cell; the header covers what is behind it. */
  #reveal() {
    const [row, column] = this.state.far;
    const height = this.#rowHeight;
    if (row < 0 || height === 0) return;
    const top = row * height;
    const bottom = top + height + this.#head.offsetHeight - (this.element.clientHeight - this.#sums.offsetHeight);
    if (this.element.scrollTop > top) this.element.scrollTop = top;
    else if (this.element.scrollTop < bottom) this.element.scrollTop = bottom;
    this.#scrolledTo = this.element.scrollTop;
    const heading = this.#heading(column);
    if (!heading || this.element.scrollWidth <= this.element.clientWidth) return;
    const { offsetLeft, offsetWidth } = heading;
    if (offsetLeft + offsetWidth > this.element.scrollLeft + this.element.clientWidth) {
      this.element.scrollLeft = offsetLeft + offsetWidth - this.element.clientWidth;
    }
    const name = this.element.classList.contains('keeps-name') ? this.#head.querySelector('.stays') : null;
    const covered = name && name !== heading && name.offsetLeft <= this.element.scrollLeft ? name.offsetWidth : 0;
    if (offsetLeft < this.element.scrollLeft + covered) this.element.scrollLeft = offsetLeft - covered;
  }

  #resized() {
    const hadRoom = this.#laidOut;
    this.#laidOut = this.#rowHeight > 0;
    if (!this.#laidOut) return;
    const name = this.#head.querySelector('.stays');
    const { clientWidth, scrollWidth } = this.element;
    this.element.classList.toggle('keeps-name', name !== null && scrollWidth > clientWidth && 2 * name.offsetWidth < clientWidth);
    if (!hadRoom) this.#reveal();
    this.#drawRows();
  }

  #pressed(event) {
    if (event.target.closest('.cell-editor')) return;
    const cell = event.target.closest('[role=gridcell]');
    if (!cell) return;
    event.preventDefault();
    if (!this.usable) return;
    const { parentElement, dataset } = cell;
    this.perform({
      type: 'select', index: Number(parentElement.dataset.row), column: Number(dataset.column), extends: event.shiftKey,
    });
  }

  #scrolled() {
    if (this.element.scrollTop === this.#scrolledTo) return; // by the session, which has had the rows drawn
    this.#drawRows();
    this.#scrolledTo = this.element.scrollTop;
    // What was scrolled before the box opens must not reach the session behind the key that opens it.
    if (this.state.editor) this.perform({ type: 'scroll' });
  }
}
