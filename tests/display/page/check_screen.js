// What a picture does not show by itself: whether texts are cut, controls stand over each other or outside of
// the sheet, and what the rules of accessibility find, in both themes.
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';

const rules = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

export const sizes = [[1920, 1080], [1366, 660], [1024, 640], [853, 533], [390, 844]];

/** @returns the findings on what the page shows now, as texts; the size and theme stay as they were */
export async function checkScreen(page, name) {
  const findings = [];
  const before = page.viewportSize();
  for (const [width, height] of sizes) {
    await page.setViewportSize({ width, height });
    await page.evaluate(() => new Promise((done) => { requestAnimationFrame(() => requestAnimationFrame(done)); }));
    const misplaced = await page.evaluate(findMisplaced);
    findings.push(...misplaced.map((finding) => `${name}, ${width} by ${height}: ${finding}`));
  }
  await page.setViewportSize(before);
  await page.evaluate(rules);
  for (const colorScheme of ['light', 'dark']) {
    await page.emulateMedia({ colorScheme });
    // All that dark changes are colours.
    const { violations } = await page.evaluate((only) => window.axe.run(only),
      colorScheme === 'dark' ? { runOnly: ['color-contrast'] } : {});
    findings.push(...violations.map(({ id, help, nodes }) => `${name}, ${colorScheme}: ${id}: ${help}: ${nodes.map(({ html }) => html.slice(0, 160)).join(' ')}`));
  }
  await page.emulateMedia({ colorScheme: null });
  return findings;
}

/** Runs in the page. */
function findMisplaced() {
  const top = document.querySelector('.message') ?? document.querySelector('.window:not(.behind)');
  const seen = (element) => element.checkVisibility() && element.getClientRects().length > 0;
  const nameOf = (element) => element.closest('[data-control]')?.dataset.control ?? (element.textContent || element.className);
  const findings = [];

  // Contents may be shortened, they can be looked at; what names them may not.
  const captions = '.button, .label, .check > span, .caption, [role=tab], [role=columnheader], h1, .error, p';
  for (const element of top.querySelectorAll(captions)) {
    if (seen(element) && element.scrollWidth > element.clientWidth + 1 && element.clientWidth > 1) {
      findings.push(`${nameOf(element)} is cut: ${element.textContent}`);
    }
  }

  for (const grid of top.querySelectorAll('.grid:has(.grid-row)')) {
    const height = (part) => grid.querySelector(part)?.offsetHeight ?? 0;
    const room = grid.clientHeight - height('.grid-head') - height('.grid-sums');
    if (seen(grid) && room < height('.grid-row')) findings.push(`${nameOf(grid)} shows no row`);
  }

  const words = document.createRange();
  for (const button of top.querySelectorAll('.button')) {
    words.selectNodeContents(button);
    const room = button.clientWidth - 2 * parseFloat(getComputedStyle(button).paddingLeft);
    if (seen(button) && words.getBoundingClientRect().width > room + 1) findings.push(`${nameOf(button)} is filled from edge to edge`);
  }

  for (const area of [document.documentElement, ...top.querySelectorAll('.content')]) {
    if (area.scrollWidth > area.clientWidth + 1) findings.push(`${area.className || 'page'} is ${area.scrollWidth - area.clientWidth} too wide`);
  }

  const kinds = '.text-box, .combo, .button, .check, .grid, .list, .label, .up-down, .bar, .path, .status';
  const placed = [...top.querySelectorAll(kinds)].filter((element) => seen(element) && element.textContent + element.innerHTML !== '')
    .map((element) => ({ element, box: element.getBoundingClientRect() }));
  placed.forEach(({ element, box }, at) => {
    for (const other of placed.slice(at + 1)) {
      if (element.contains(other.element) || other.element.contains(element)) continue;
      const scrolls = (e) => e.closest('.content') !== null;
      if (scrolls(element) !== scrolls(other.element)) continue; // the middle scrolls below the bar
      const width = Math.min(box.right, other.box.right) - Math.max(box.left, other.box.left);
      const height = Math.min(box.bottom, other.box.bottom) - Math.max(box.top, other.box.top);
      if (width > 1 && height > 1) findings.push(`${nameOf(element)} stands over ${nameOf(other.element)}`);
    }
  });
  return findings;
}
