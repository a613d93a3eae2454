// The cells of a grid as spreadsheets exchange them, as module/ui/input/grid_text.h says it: separated by
// tabs, lines by CR LF. A browser takes a copied text only in the moment of copying, so it is made here.

const oneCell = (text) => text.replace(/\r\n|[\t\r\n]/g, ' ');

/** What the user copies: the marked block, or else the current row; only columns that are seen. */
export function copiedCells({ columns, content, current, block }, withHeadings) {
  if (!block && current[0] < 0) return '';
  const [first, from, last, to] = block ?? [current[0], 0, current[0], columns.length - 1];
  const seen = columns.map((_, at) => at).filter((at) => at >= from && at <= to && columns[at].visible);
  const lines = content.slice(first, last + 1).map((texts) => seen.map((at) => texts[at] ?? ''));
  if (withHeadings) lines.unshift(seen.map((at) => columns[at].caption));
  return lines.map((cells) => cells.map(oneCell).join('\t')).join('\r\n');
}
