// What a price costs that is typed into a cell of the price lines' grid, as its user waits for it in a
// browser: from the key that commits it (Down or Up) to the changed page, and to the frame with it.
//
//   node bench/grid_commit.mjs [BUILD FOLDER] [--lines N] [--commits N] [--unpaced]
//                              [--screenshot FILE]
//
// The build folder has the workbench and generate_database in it; build/bench by default. The browser's
// driver is that of tests/display/page (npm ci there). With --unpaced a frame begins as soon as there is
// something to draw, instead of with the screen's next sixtieth of a second: what redrawing itself costs.
import { execFileSync } from 'node:child_process';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { parseArgs } from 'node:util';
import { control, focused, open, serve, startBrowser, until } from '../tests/display/page/support.js';

const { values: options, positionals } = parseArgs({
  allowPositionals: true,
  options: {
    lines: { type: 'string', default: '500' },
    commits: { type: 'string', default: '400' },
    unpaced: { type: 'boolean', default: false },
    screenshot: { type: 'string' },
  },
});
const lines = Number(options.lines);
const commits = Number(options.commits);
const unmeasured = 20; // the browser compiles what it runs often
const build = positionals[0] ?? fileURLToPath(new URL('../build/bench', import.meta.url));
const program = join(build, 'standin/workbench/tellurix-workbench');
const grid = 'MSFlexGrid1';

const pause = (milliseconds) => new Promise((resolve) => setTimeout(resolve, milliseconds));

/** In the page: `awaitCommit` starts the clock of the next key that goes down; `drawn` gives its times. */
function installClock(name) {
  const table = document.querySelector(`.window:not(.behind) [data-control="${name}"]`);
  const currentCell = () => document.getElementById(table.getAttribute('aria-activedescendant'));
  const currentPlace = () => Number(currentCell()?.closest('[role=row]').getAttribute('aria-rowindex')) - 1;

  /** Waits until the cell that is current now shows the text, and the row of that place is current. */
  window.awaitCommit = (shown, place) => {
    const written = currentCell();
    let pressed = 0;
    addEventListener('keydown', (event) => { pressed = event.timeStamp; }, { capture: true, once: true });
    window.drawn = new Promise((resolve) => {
      const watch = new MutationObserver(() => {
        if (written.textContent !== shown || currentPlace() !== place) return;
        watch.disconnect();
        const changed = performance.now();
        requestAnimationFrame(() => {
          // What is posted from a frame's beginning comes when the page has done its part of the frame.
          const { port1, port2 } = new MessageChannel();
          port1.onmessage = () => resolve({ changed: changed - pressed, frame: performance.now() - pressed });
          port2.postMessage(null);
        });
      });
      watch.observe(table, { subtree: true, childList: true, characterData: true, attributes: true });
    });
  };
}

/** Opens the price lines, and goes to the price of the first with editing switched on. */
async function openPrices(page) {
  const windowOf = (form) => page.locator(`.window:not(.behind)[data-form="${form}"]`).waitFor();
  await page.keyboard.press('Alt+f');
  await windowOf('F_Vertrag');
  await page.keyboard.press('Alt+p');
  await windowOf('F_VertragPreise');
  await control(page, 'chkEdit').click();
  await until(() => control(page, 'chkEdit').isChecked(), 'editing switched on');
  const price = control(page, grid).locator('[aria-rowindex="2"] [data-column="2"]');
  await price.click();
  await until(async () => (await focused(page)) === grid, 'the grid');
  await until(() => price.evaluate((cell) => cell.classList.contains('current')), 'the first price');
}

async function measure(page) {
  await page.evaluate(installClock, grid);
  const times = { changed: [], frame: [] };
  const prices = new Map();
  let place = 1;
  let step = 1;
  for (let i = 0; i < unmeasured + commits; ++i) {
    if (place + step > lines || place + step < 1) step = -step;
    const price = `${11 + (i % 80)},5`;
    await page.keyboard.type(price);
    await until(async () => (await control(page, 'txtEdit').inputValue()) === price, 'the price typed');
    // A user has no regard for when the browser draws its frames.
    await pause(30 + Math.random() * 17);
    await page.evaluate(([shown, next]) => window.awaitCommit(shown, next), [`${price}0`, place + step]);
    await page.keyboard.press(step > 0 ? 'ArrowDown' : 'ArrowUp');
    const { changed, frame } = await page.evaluate(() => window.drawn);
    prices.set(place, price.replace(',', '.'));
    place += step;
    if (i < unmeasured) continue;
    times.changed.push(changed);
    times.frame.push(frame);
  }
  return { times, prices };
}

/** @throws unless every price that was typed is in the database */
function check(database, prices) {
  const statement = 'SELECT ORDNUNG, PREIS FROM VERTRAG_PREISE WHERE ID_VERTRAG = 1';
  const output = execFileSync(program, ['sql', '--database', database, statement]).toString();
  const stored = new Map(JSON.parse(output.trim().split('\n').at(-1)).rows.map(([at, value]) => [Number(at), Number(value)]));
  for (const [at, price] of prices) {
    if (stored.get(at) !== Number(price)) throw new Error(`line ${at}: ${stored.get(at)} instead of ${price}`);
  }
}

function report(name, measured) {
  const sorted = [...measured].sort((a, b) => a - b);
  const at = (percent) => sorted[Math.min(sorted.length - 1, Math.floor((sorted.length * percent) / 100))].toFixed(1);
  console.log(`${name.padEnd(22)} median ${at(50)} ms   95 % ${at(95)} ms   longest ${at(100)} ms`);
}

const folder = mkdtempSync(join(tmpdir(), 'tellurix-'));
const database = join(folder, 'trade.db');
let server;
let browser;
try {
  execFileSync(join(build, 'bench/generate_database'), [database, '--contracts', '1', '--lines', `${lines}`, '--logs', '0']);
  server = await serve(program, '--database', database, '--port', '0');
  browser = await startBrowser(options.unpaced ? ['--disable-frame-rate-limit', '--disable-gpu-vsync'] : []);
  const { page, problems } = await open(browser, server.address);
  await openPrices(page);
  const { times, prices } = await measure(page);
  if (options.screenshot) await page.screenshot({ path: options.screenshot });
  check(database, prices);
  if (problems.length > 0) throw new Error(problems.join('\n'));
  console.log(`${commits} prices committed in a grid of ${lines} lines, Chromium ${browser.version()}`);
  report('key to changed page', times.changed);
  report('key to frame', times.frame);
} finally {
  await browser?.close();
  await server?.stop();
  rmSync(folder, { recursive: true });
}
