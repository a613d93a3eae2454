// The price lines of a contract that has hundreds, by keyboard alone in a real browser, and the
// outcome looked up in the database.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, afterEach, before, beforeEach, describe, test } from 'node:test';
import { control, focused, open, serve, startBrowser, until } from './support.js';

const program = process.env.TELLURIX_WORKBENCH;
const lineCount = 500;
const contract = "(SELECT ID_VERTRAG FROM VERTRAEGE WHERE VERTRAG_NAME = 'R-2025-001 Fichte Wolfsberg')";
const manyLines = `
DECLARE @place int
DELETE FROM VERTRAG_PREISE WHERE ID_VERTRAG = ${contract}
SET @place = 1
WHILE @place <= ${lineCount}
BEGIN
  INSERT INTO VERTRAG_PREISE (ID_VERTRAG, ORDNUNG, BEZEICHNUNG, SELEKTION_VALUE, PREIS, EURO, ID_WARENEINHEIT)
  SELECT ID_VERTRAG, @place, 'Preis ' + CAST(@place AS nvarchar(10)), '83 IN (''TA'') ;', 50, 1, 1
  FROM VERTRAEGE WHERE ID_VERTRAG = ${contract}
  SET @place = @place + 1
END`;

describe('hundreds of price lines', { skip: program ? false : 'TELLURIX_WORKBENCH names no program' }, () => {
  let browser;
  let folder;
  let server;
  let page;
  let problems;

  const sql = (statement) => {
    const output = execFileSync(program, ['sql', '--database', join(folder, 'trade.db'), statement]);
    return JSON.parse(output.toString().trim().split('\n').at(-1)).rows;
  };
  const top = (form) => page.locator(`.window:not(.behind)[data-form="${form}"]`).waitFor();
  const press = async (...keys) => {
    for (const key of keys) await page.keyboard.press(key);
  };
  /** Goes on with Tab until a control has the focus. */
  const tabTo = async (name, tab = 'Tab') => {
    for (let i = 0; i < 60; ++i) {
      const before = await focused(page);
      if (before === name) return;
      await press(tab);
      await until(async () => (await focused(page)) !== before, 'the next control');
    }
    throw new Error(`${tab} never came to ${name}`);
  };
  const currentRow = () => control(page, 'MSFlexGrid1').locator('[role=row].current');
  /** Waits until the current row is that one and shows that text. */
  const showsRow = (place, text) => until(async () => {
    const row = currentRow();
    const index = Number(await row.getAttribute('aria-rowindex')) - 1;
    const shown = await row.textContent();
    return (index === place && shown.includes(text)) || [index, shown];
  }, `row ${place} with ${text}`);
  const focusOn = (name) => until(async () => (await focused(page)) === name || focused(page), `focus on ${name}`);
  const line = (place, columns) =>
    sql(`SELECT ${columns} FROM VERTRAG_PREISE WHERE ID_VERTRAG = ${contract} AND ORDNUNG = ${place}`);
  const price = (place) => Number(line(place, 'PREIS')[0][0]);
  const places = () => {
    const rows = sql(`SELECT ORDNUNG FROM VERTRAG_PREISE WHERE ID_VERTRAG = ${contract} ORDER BY ORDNUNG`);
    return rows.map(([place]) => place);
  };
  const upTo = (count) => Array.from({ length: count }, (_, index) => index + 1);

  before(async () => {
    browser = await startBrowser();
  });
  after(() => browser?.close());
  beforeEach(async () => {
    folder = mkdtempSync(join(tmpdir(), 'tellurix-'));
    sql(manyLines);
    server = await serve(program, '--database', join(folder, 'trade.db'), '--port', '0');
    ({ page, problems } = await open(browser, server.address));
    await page.keyboard.type('Wolfsberg');
    await until(async () => (await page.locator('.grid-row').count()) === 1, 'one contract found');
    await press('Alt+f');
    await top('F_Vertrag');
    await press('Alt+p');
    await top('F_VertragPreise');
    await tabTo('MSFlexGrid1');
    await press('End');
    await showsRow(lineCount, `Preis ${lineCount}`);
  });
  afterEach(async () => {
    await page?.context().close();
    await server?.stop();
    rmSync(folder, { recursive: true });
    assert.deepEqual(problems, []);
  });

  test('prices are edited in their cells', async () => {
    await press('7');
    assert.equal(await focused(page), 'MSFlexGrid1', 'without the tick the cell stays closed');
    await tabTo('chkEdit');
    await press('Space');
    await tabTo('MSFlexGrid1', 'Shift+Tab');
    const column = () => currentRow().locator('.current').getAttribute('data-column');
    await until(async () => {
      if ((await column()) === '2') return true;
      await press('ArrowRight');
      return column();
    }, 'the price');

    await page.keyboard.type('77,5');
    await focusOn('txtEdit');
    await press('Enter');
    await showsRow(500, '77,50');
    await focusOn('MSFlexGrid1');
    await page.keyboard.type('80');
    await press('ArrowUp');
    await showsRow(499, '50,00');
    await page.keyboard.type('81');
    await press('ArrowDown');
    await showsRow(500, '80,00');
    await page.keyboard.type('9');
    await focusOn('txtEdit');
    await press('Escape');
    await focusOn('MSFlexGrid1');
    await showsRow(500, '80,00');
    assert.deepEqual([498, 499, 500].map(price), [50, 81, 80]);
  });

  test('a new line is saved with its quick selection, moved up and deleted again', async () => {
    await tabTo('cmdNeu');
    await press('Enter');
    await focusOn('txtBEZEICHNUNG');
    await page.keyboard.type('Größe über 20 cm');
    await tabTo('txtPreis');
    await page.keyboard.type('99,5');
    await tabTo('txtHa');
    await page.keyboard.type('FI');
    await tabTo('txtLange');
    await page.keyboard.type('4.5,6');
    await tabTo('cmdSpeichern');
    await press('Enter');
    await showsRow(501, 'Größe über 20 cm');
    await focusOn('MSFlexGrid1');
    const [name, stored, selection] = line(501, 'BEZEICHNUNG, PREIS, SELEKTION_VALUE')[0];
    assert.deepEqual([name, Number(stored)], ['Größe über 20 cm', 99.5]);
    assert.match(selection, /83 IN \('FI'\)/);
    assert.match(selection, /94 IN \(4\.5, 6\)/);

    await tabTo('UpDown1');
    await press('ArrowUp');
    await showsRow(500, 'Größe über 20 cm');
    assert.equal(line(500, 'BEZEICHNUNG')[0][0], 'Größe über 20 cm');
    assert.equal(line(501, 'BEZEICHNUNG')[0][0], 'Preis 500');
    assert.deepEqual(places(), upTo(501));

    await tabTo('cmdLoschen');
    await press('Enter');
    await showsRow(500, 'Preis 500');
    assert.equal(line(500, 'BEZEICHNUNG')[0][0], 'Preis 500');
    assert.deepEqual(places(), upTo(500));
  });
});
