// The whole program as its user has it: contracts opened and edited by keyboard in a real browser,
// and the outcome looked up in the database.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, afterEach, before, beforeEach, describe, test } from 'node:test';
import { control, focused, open, serve, startBrowser, until } from './support.js';

const program = process.env.TELLURIX_WORKBENCH;
const contractName = 'R-2025-001 Fichte Wolfsberg';

describe('the workbench', { skip: program ? false : 'TELLURIX_WORKBENCH names no program' }, () => {
  let browser;
  let folder;
  let server;
  let page;
  let problems;

  before(async () => {
    browser = await startBrowser();
  });
  after(() => browser?.close());
  beforeEach(async () => {
    folder = mkdtempSync(join(tmpdir(), 'tellurix-'));
    server = await serve(program, '--database', join(folder, 'trade.db'), '--port', '0');
    ({ page, problems } = await open(browser, server.address));
  });
  afterEach(async () => {
    await page.context().close();
    await server.stop();
    rmSync(folder, { recursive: true });
    assert.deepEqual(problems, []);
  });

  const value = (name) => control(page, name).inputValue();
  const top = (form) => page.locator(`.window:not(.behind)[data-form="${form}"]`).waitFor();
  const message = () => page.locator('.message');
  const press = async (...keys) => {
    for (const key of keys) await page.keyboard.press(key);
  };
  /** Goes on with Tab until a control has the focus. */
  const tabTo = async (name) => {
    for (let i = 0; i < 60; ++i) {
      if ((await focused(page)) === name) return;
      const before = await focused(page);
      await press('Tab');
      await until(async () => (await focused(page)) !== before, 'the next control');
    }
    throw new Error(`Tab never came to ${name}`);
  };
  const row = (columns) => {
    const statement = `SELECT ${columns} FROM VERTRAEGE WHERE VERTRAG_NAME = '${contractName}'`;
    const output = execFileSync(program, ['sql', '--database', join(folder, 'trade.db'), statement]);
    return JSON.parse(output).rows[0];
  };

  const openContract = async () => {
    await page.keyboard.type('Wolfsberg');
    await until(async () => (await page.locator('.grid-row').count()) === 1, 'one contract found');
    await press('Alt+f');
    await top('F_Vertrag');
  };
  const openHeader = async () => {
    await openContract();
    // Two buttons share the letter: it goes to each in turn and presses none.
    await press('Alt+k', 'Alt+k', 'Enter');
    await top('F_HeaderVertrag');
  };

  test('a contract is found, opened, edited and closed by keyboard alone', async () => {
    await openHeader();
    await tabTo('txtDate1');
    await page.keyboard.type('5.6.2025');
    await tabTo('txtNumber(0)');
    await page.keyboard.type('12.5x');
    await tabTo('txtKopf(0)');
    await page.keyboard.type('frei Säge – größer als 20 cm');
    await tabTo('btnOk');
    await press('Enter');
    await top('F_Vertrag');
    await tabTo('btnSpeichern');
    await press('Enter');
    await top('F_Start');
    const [date, number, text] = row('CONVERT(nvarchar(10), INVDATE, 104), NUMM1, KOPF1');
    assert.deepEqual([date, Number(number), text], ['05.06.2025', 12.5, 'frei Säge – größer als 20 cm']);
  });

  test('a text that would end its literal is refused, and stays as it was typed', async () => {
    const before = row('KOPF1, INVDATE');
    await openHeader();
    await tabTo('txtKopf(0)');
    await page.keyboard.type("O'Brien; DROP TABLE VERTRAEGE --");
    await tabTo('btnOk');
    await press('Enter');
    await message().waitFor();
    await press('Enter');
    await message().waitFor({ state: 'detached' });
    assert.equal(await value('txtKopf(0)'), "O'Brien; DROP TABLE VERTRAEGE --");
    assert.deepEqual(row('KOPF1, INVDATE'), before);
  });

  test('a bad date is shown and keeps the focus; cancelling asks for no better one and writes nothing', async () => {
    const before = row('INVDATE');
    await openHeader();
    await tabTo('txtDate1');
    await page.keyboard.type('31.2.2025');
    await press('Tab');
    await message().waitFor();
    await press('Enter');
    await message().waitFor({ state: 'detached' });
    assert.equal(await focused(page), 'txtDate1');
    assert.equal(await value('txtDate1'), '31.2.2025');
    await page.locator('[data-control="btnCancel"]').click();
    await top('F_Vertrag');
    assert.deepEqual(row('INVDATE'), before);
  });

  test('an interrupted line finds the same windows and the text typed so far', async () => {
    await openHeader();
    await tabTo('txtKopf(1)');
    await page.keyboard.type('vor der Unterbrechung');
    await page.evaluate(() => window.cutLine());
    await page.locator('#banner', { hasText: 'unterbrochen' }).waitFor();
    await page.evaluate(() => window.mendLine());
    await until(async () => (await page.locator('#banner').textContent()) === '', 'found again');
    assert.equal(await page.locator('.window').count(), 3);
    await until(async () => (await value('txtKopf(1)')) === 'vor der Unterbrechung' || value('txtKopf(1)'), 'text');
    await page.reload();
    await top('F_HeaderVertrag');
    assert.equal(await value('txtKopf(1)'), 'vor der Unterbrechung');
    assert.equal(await focused(page), 'txtKopf(1)');
  });

  test('after a restart the page says where to go on, and so does its old address', async () => {
    await page.evaluate(() => window.cutLine());
    await server.stop();
    const { port } = new URL(server.address);
    const before = server.address;
    server = await serve(program, '--database', join(folder, 'trade.db'), '--port', port);
    await page.evaluate(() => window.mendLine());
    const ended = page.getByRole('alertdialog', { name: 'Sitzung beendet' });
    await ended.getByText('neu gestartet').waitFor();
    assert.equal(await ended.getByRole('button').count(), 0);
    await page.goto(before);
    await page.getByRole('heading', { name: 'Diese Adresse gilt nicht' }).waitFor();
    await page.goto(server.address);
    await top('F_Start');
    // The browser itself tells of an application that was away, and of an address that was refused.
    problems.splice(0, problems.length, ...problems.filter((text) => !/ERR_CONNECTION_REFUSED|403/.test(text)));
  });

  test('the language can be changed while the program runs', async () => {
    await tabTo('cboLanguage');
    await press('ArrowDown');
    await until(async () => (await page.evaluate(() => document.documentElement.lang)) === 'en', 'English');
    await page.getByRole('button', { name: 'Open' }).waitFor();
  });
});
