// The whole program as its user has it: what the scenarios, which a browser plays too, do not show.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, readdirSync, readFileSync, rmSync, rmdirSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, afterEach, before, beforeEach, describe, test } from 'node:test';
import * as support from './support.js';
import { control, focused, open, serve, startBrowser, until } from './support.js';

const program = process.env.TELLURIX_WORKBENCH;
const contract = "VERTRAG_NAME = 'R-2025-001 Fichte Wolfsberg'";
const manyPriceLines = `
DECLARE @place int, @contract int
SET @contract = (SELECT ID_VERTRAG FROM VERTRAEGE WHERE ${contract})
DELETE FROM VERTRAG_PREISE WHERE ID_VERTRAG = @contract
SET @place = 1
WHILE @place <= 500
BEGIN
  INSERT INTO VERTRAG_PREISE (ID_VERTRAG, ORDNUNG, BEZEICHNUNG, SELEKTION_VALUE, PREIS, EURO, ID_WARENEINHEIT)
  VALUES (@contract, @place, 'Preis ' + CAST(@place AS nvarchar(10)), '83 IN (''TA'') ;', 50, 1, 1)
  SET @place = @place + 1
END`;

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
  const message = () => page.locator('.message');
  const top = (form) => support.top(page, form);
  const press = (...keys) => support.press(page, ...keys);
  const tabTo = (name, tab) => support.tabTo(page, name, tab);
  const sql = (statement) => {
    const output = execFileSync(program, ['sql', '--database', join(folder, 'trade.db'), statement]);
    return JSON.parse(output.toString().trim().split('\n').at(-1)).rows;
  };
  /** Of the first two price lines. */
  const prices = () => sql('SELECT PREIS FROM VERTRAG_PREISE WHERE ORDNUNG <= 2 AND ID_VERTRAG = '
    + `(SELECT ID_VERTRAG FROM VERTRAEGE WHERE ${contract}) ORDER BY ORDNUNG`).map(([price]) => Number(price));

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
  const openPrices = async () => {
    sql(manyPriceLines);
    await openContract();
    await press('Alt+p');
    await top('F_VertragPreise');
  };
  /** Lets prices be edited in the table, and goes to the price in the current row. */
  const goToPrice = async () => {
    await tabTo('chkEdit');
    await press('Space');
    await tabTo('MSFlexGrid1', 'Shift+Tab');
    await press('ArrowRight', 'ArrowRight');
  };
  /** Waits until a cell is edited, in sight, and its box has the focus and that text. */
  const editsCell = (text) => until(async () => {
    const now = await page.evaluate(() => {
      const box = document.activeElement;
      const { top, bottom } = box.getBoundingClientRect();
      const table = box.closest('.grid')?.getBoundingClientRect();
      return { text: box.value, seen: table?.top < top && bottom < table?.bottom };
    });
    return (now.text === text && now.seen) || now;
  }, `a cell with ${text}`);
  /** Paper in dark: what stands on top, and a list in columns, or all rows of a table below the heads of theirs. */
  const onPaper = async (name) => {
    await page.emulateMedia({ media: 'print', colorScheme: 'dark' });
    const paper = await control(page, name).evaluate((shown) => {
      dispatchEvent(new Event('beforeprint'));
      const lefts = (row) => [...row.children].filter((cell) => !cell.hidden).map((cell) => Math.round(cell.getBoundingClientRect().left)).join();
      const path = document.querySelector('.window:not(.behind) > .path');
      const says = ['::before', '::after'].map((part) => JSON.parse(getComputedStyle(path, part).content));
      const [head, ...rows] = shown.querySelectorAll('[role=row]');
      const table = head && {
        rows: rows.length, aligned: rows.every((row) => lefts(row) === lefts(head)),
        repeats: getComputedStyle(head).display, breaks: getComputedStyle(rows[0]).breakInside,
      };
      const names = [...shown.querySelectorAll('.name')].map((element) => element.getBoundingClientRect().left);
      const colour = getComputedStyle(document.body).color;
      dispatchEvent(new Event('afterprint'));
      return { says, colour, ...(table || { columns: new Set(names).size }) };
    });
    await page.emulateMedia({ media: null, colorScheme: null });
    return paper;
  };
  const interrupt = async () => {
    await page.evaluate(() => window.cutLine());
    await page.locator('#banner', { hasText: 'unterbrochen' }).waitFor();
    await page.evaluate(() => window.mendLine());
    await until(async () => (await page.locator('#banner').textContent()) === '', 'found again');
  };

  test('a text that would end its literal is refused, and stays as it was typed', async () => {
    const stored = `SELECT KOPF1, INVDATE FROM VERTRAEGE WHERE ${contract}`;
    const before = sql(stored);
    await openHeader();
    await tabTo('txtKopf(0)');
    await page.keyboard.type("O'Brien; DROP TABLE VERTRAEGE --");
    await tabTo('btnOk');
    await press('Enter');
    await message().waitFor();
    await press('Enter');
    await message().waitFor({ state: 'detached' });
    assert.equal(await value('txtKopf(0)'), "O'Brien; DROP TABLE VERTRAEGE --");
    assert.deepEqual(sql(stored), before);
  });

  test('an interrupted line finds the same windows and the text typed so far', async () => {
    await openHeader();
    await tabTo('txtKopf(1)');
    await page.keyboard.type('vor der Unterbrechung');
    await interrupt();
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

  test('the language can be changed while the program runs, on a phone behind the filters\' button', async () => {
    await page.setViewportSize({ width: 390, height: 844 });
    const language = control(page, 'cboLanguage');
    const isOpen = (open) => until(async () => {
      const now = [await page.locator('.more').getAttribute('aria-expanded'), await language.isVisible()].join();
      return now === `${open},${open}` || now;
    }, `open: ${open}`);
    await isOpen(false);
    await tabTo('cboLanguage');
    await isOpen(true);
    await page.locator('.more').click();
    await isOpen(false);
    await page.locator('.more').click();
    await isOpen(true);
    await press('ArrowDown');
    await until(async () => (await page.evaluate(() => document.documentElement.lang)) === 'en', 'English');
    await page.getByRole('button', { name: 'Open' }).waitFor();
  });

  test('of hundreds of price lines, the one that is edited, new, moved or next is in sight', async () => {
    await openContract();
    assert.deepEqual(await onPaper('List1'), {
      says: ['Vertrag (R-2025-001 Fichte Wolfsberg)', 'Sägewerk Kärnthaler · 01.01.2025 – 31.12.2025'], colour: 'rgb(23, 32, 29)', columns: 2,
    });
    await press('Escape');
    await top('F_Start');
    await openPrices();
    const current = () => control(page, 'MSFlexGrid1').locator('[role=row].current');
    const showsRow = (place, text) => until(async () => {
      const index = Number(await current().getAttribute('aria-rowindex')) - 1;
      const shown = await current().textContent();
      return (index === place && shown.includes(text)) || [index, shown];
    }, `row ${place} with ${text}`);

    assert.deepEqual(await onPaper('MSFlexGrid1'), {
      says: ['Preise – R-2025-001 Fichte Wolfsberg', 'Sägewerk Kärnthaler · 01.01.2025 – 31.12.2025'],
      colour: 'rgb(23, 32, 29)', rows: 500, aligned: true, repeats: 'table-header-group', breaks: 'avoid',
    });
    await until(async () => (await control(page, 'MSFlexGrid1').locator('.grid-row').count()) < 100, 'few rows on the screen');

    await tabTo('MSFlexGrid1');
    await press('Control+End', 'Home');
    await showsRow(500, 'Preis 500');
    await press('7');
    assert.equal(await focused(page), 'MSFlexGrid1', 'without the tick the cell stays closed');
    await goToPrice();
    await page.keyboard.type('80');
    await press('ArrowUp');
    await showsRow(499, '50,00');
    await press('ArrowDown');
    await showsRow(500, '80,00');
    await press('9');
    await support.hasFocus(page, 'txtEdit');
    await press('Escape');
    await showsRow(500, '80,00');

    await tabTo('cmdNeu');
    await press('Enter');
    await support.hasFocus(page, 'txtBEZEICHNUNG');
    await page.keyboard.type('Größe über 20 cm');
    await tabTo('txtHa');
    await page.keyboard.type('FI');
    await tabTo('cmdSpeichern');
    await press('Enter');
    await showsRow(501, 'Größe über 20 cm');
    await tabTo('UpDown1');
    await press('ArrowUp');
    await showsRow(500, 'Größe über 20 cm');
    await tabTo('cmdLoschen');
    await press('Enter');
    await showsRow(500, 'Preis 500');
  });

  test('a letter typed into a list chooses in it, right after one typed into the list before', async () => {
    await openContract();
    await press('Alt+p');
    await top('F_VertragPreise');
    for (const [letters, stored] of [[['r', 'Enter', 'c'], [2, false]], [['f', 'Enter', 'e'], [1, true]]]) {
      await tabTo('cmdNeu');
      await press('Enter');
      await support.hasFocus(page, 'txtBEZEICHNUNG');
      await tabTo('cboUnit');
      await press(...letters);
      await tabTo('txtHa');
      await page.keyboard.type('FI');
      await tabTo('cmdSpeichern');
      await press('Enter');
      await support.settled(page);
      assert.deepEqual(sql('SELECT TOP 1 ID_WARENEINHEIT, EURO FROM VERTRAG_PREISE ORDER BY ID DESC'), [stored]);
    }
  });

  test('an interruption and a reload leave a cell open with what was typed', async () => {
    await openPrices();
    await goToPrice();
    await control(page, 'MSFlexGrid1').locator('.current [data-column="2"]').dblclick();
    await support.hasFocus(page, 'txtEdit');
    await page.keyboard.type('7');
    await interrupt();
    await editsCell('7');
    await page.keyboard.type('1,');
    await editsCell('71,');
    await page.reload();
    await top('F_VertragPreise');
    await editsCell('71,');
    await page.keyboard.type('5');
    await press('Enter');
    await support.hasFocus(page, 'MSFlexGrid1');
    assert.deepEqual(prices(), [71.5, 50]);
  });

  test('a control that cannot be drawn is told, and all the others can be used', async () => {
    await page.route('**/controls/up_down.js', async (route) => {
      const response = await route.fetch();
      await route.fulfill({ response, body: (await response.text()).replace('draw() {', '$& throw new Error("up");') });
    });
    await page.reload();
    await openPrices();
    await page.locator('#banner', { hasText: 'nicht dargestellt' }).waitFor();
    await tabTo('cmdOk');
    await press('Enter');
    await top('F_Vertrag');
    assert.match(problems.splice(0).join(), /^Error: up$/);
  });

  test('what is typed after scrolling goes into the current cell, and Home leads back to it', async () => {
    await openPrices();
    await goToPrice();
    const table = control(page, 'MSFlexGrid1');
    const offset = () => table.evaluate((element) => element.scrollTop);
    const scrollAway = async () => {
      await table.hover();
      await page.mouse.wheel(0, 400);
      await until(async () => (await offset()) === 400 || offset(), 'scrolled');
    };
    await scrollAway();
    await page.keyboard.type('8,5');
    await editsCell('8,5');
    assert.deepEqual(prices(), [50, 50], 'nothing has been written yet');
    await press('Enter');
    await support.hasFocus(page, 'MSFlexGrid1');
    assert.deepEqual(prices(), [8.5, 50]);
    await scrollAway();
    await press('Home');
    await until(async () => (await offset()) === 0 || offset(), 'the first row is in sight');
  });

  test('a column is as wide as its edge was pulled, and fits its texts when that is pressed twice', async () => {
    await openPrices();
    const heading = control(page, 'MSFlexGrid1').getByRole('columnheader').nth(1);
    const width = async () => (await heading.boundingBox())?.width;
    const before = await width();
    const edge = await heading.locator('.column-edge').boundingBox();
    await page.mouse.move(edge.x + 3, edge.y + 5);
    await page.mouse.down();
    await page.mouse.move(edge.x - 57, edge.y + 5);
    await page.mouse.up();
    await until(async () => Math.abs((await width()) - before + 60) < 8 || [before, await width()], 'narrower by what it was pulled');
    await support.settled(page); // the session keeps whole characters
    const pulled = await width();
    await page.reload();
    await top('F_VertragPreise');
    await until(async () => Math.abs((await width()) - pulled) < 2 || width(), 'the session knows it');
    await heading.locator('.column-edge').dblclick();
    await until(async () => Math.abs((await width()) - pulled) > 5 || width(), 'as wide as its longest text');
  });

  /** The logistics of a contract with weeks and helpers. */
  const openLogistics = async () => {
    await page.keyboard.type('R-2025-004');
    await until(async () => (await page.locator('.grid-row').count()) === 1, 'one contract found');
    await press('Alt+f');
    await top('F_Vertrag');
    await control(page, 'btnLieferprofil_WVO').click();
    await top('F_Vertrag_WVO');
  };

  test('an original document goes from the user\'s machine into the folder of the contracts', async () => {
    // The sample trade has a folder beside its database.
    const documents = join(folder, 'vertragsdokumente');
    await openLogistics();
    rmdirSync(documents);
    await control(page, 'btnBearbeiten').click();
    // Somebody listens all the time: the browser's own dialog must not open before the driver takes it.
    page.on('filechooser', () => {});
    const copy = async (content, ...answers) => {
      const chooser = page.waitForEvent('filechooser');
      await control(page, 'btnOriginal').click();
      await message().waitFor();
      await press('Enter');
      await (await chooser).setFiles({ name: "Vertrag #1 ä.pdf", mimeType: 'application/pdf', buffer: Buffer.from(content) });
      for (const [text, button] of answers) {
        const asked = message().filter({ hasText: text });
        await asked.waitFor();
        await asked.getByRole('button', { name: button, exact: true }).click();
        await asked.waitFor({ state: 'detached' });
      }
      return readdirSync(folder).includes('vertragsdokumente')
        ? readdirSync(documents).map((name) => `${name}: ${readFileSync(join(documents, name))}`) : [];
    };
    assert.deepEqual(await copy('first', ['fehlgeschlagen', 'OK']), [], 'the folder is missing');
    mkdirSync(documents);
    const first = ["Vertrag #1 ä.pdf: first"];
    assert.deepEqual(await copy('first', ['erfolgreich', 'OK']), first);
    assert.match(await value('txtOriginal'), /^c:\\VertragsdokumenteOriginal\\Vertrag #1 ä\.pdf$/);
    assert.deepEqual(await copy('first', ['erfolgreich', 'OK']), first, 'the same file needs no question');
    assert.deepEqual(await copy('second', ['ersetzt', 'Nein']), first);
    assert.deepEqual(await copy('second', ['ersetzt', 'Ja'], ['erfolgreich', 'OK']), ["Vertrag #1 ä.pdf: second"]);
  });

  test('helpers are marked, taken over and sorted with the pointer and with Enter', async () => {
    await openLogistics();
    await control(page, 'SSTab1').getByRole('tab').nth(1).click();
    const weeks = () => control(page, 'DataGridKalendar').locator('.grid-row').allTextContents();
    await control(page, 'btnGenWeek').click();
    await until(async () => (await weeks())[0]?.startsWith('2024/48') || weeks(), 'weeks in their order');
    await control(page, 'DataGridKalendar').getByRole('columnheader').first().click();
    await until(async () => (await weeks())[0].startsWith('2025/05') || weeks(), 'the last week first');

    await control(page, 'SSTab1').getByRole('tab').nth(2).click();
    await control(page, 'btnWaldhelfer').click();
    await top('F_MultiSelection');
    await page.keyboard.type('straßer');
    await press('Enter');
    await support.hasFocus(page, 'grdList');
    await press('Space', 'Enter');
    await top('F_Vertrag_WVO');
    await until(async () => (await control(page, 'MSFG').getByText('Straßer Günther').count()) === 1, 'the helper is there');
  });

  test('what can be edited, is edited or wrong is seen in the cells, with the next keys beside it', async () => {
    const status = page.locator('.window:not(.behind) > .status');
    const table = control(page, 'MSFG');
    const cell = (column) => table.locator(`[data-row="0"] > [data-column="${column}"]`);
    const [contractName, announced, confirmed] = [1, 2, 3].map(cell);
    const looks = (found) => found.evaluate((element) => [
      element.className.split(' ').filter((name) => ['locked', 'edited'].includes(name)).join(' '),
      getComputedStyle(element).fontWeight, element.getAttribute('aria-description') ?? '',
    ]);
    await control(page, 'btnQuantityReports').click();
    await top('F_VertragMengenmeldung_WVO');
    await table.getByText('Bitte einen Waldhelfer wählen').waitFor();
    await page.keyboard.type('3001');
    await press('Tab');
    await table.getByText('Judenburg').waitFor();
    const { rows, aligned } = await onPaper('MSFG');
    assert.deepEqual({ rows, aligned }, { rows: 4, aligned: true }, 'three, and the sums below their columns');
    await control(page, 'btnBearbeiten').click();
    await support.hasFocus(page, 'MSFG');
    await page.keyboard.type('7');
    await press('Enter');
    await until(async () => (await status.locator('[role=status]').textContent()) === '1 Zeile geändert, noch nicht gespeichert', 'counted');
    assert.deepEqual(await looks(contractName), ['locked', '400', '']);
    assert.deepEqual(await looks(announced), ['edited', '600', 'geändert, noch nicht gespeichert']);
    assert.deepEqual(await looks(confirmed), ['', '400', '']);
    assert.deepEqual(await status.locator('.hints > span').allTextContents(),
      ['F2 Zelle ändern', 'Strg+S Speichern', 'Esc Bearb.Abbr.', 'F1 Tasten']);

    const size = page.viewportSize();
    await page.setViewportSize({ ...size, height: 370 }); // the last row stands right above the sums
    await press('ArrowRight', 'ArrowDown', 'ArrowDown');
    await page.keyboard.type('99999999');
    await press('Enter');
    await message().waitFor();
    await press('Enter');
    const error = table.locator('.error');
    await until(() => error.isVisible(), 'what is wrong');
    assert.match(await error.textContent(), /Das ist keine Menge/);
    const box = await table.locator('[data-row="2"] > [data-column="3"]').boundingBox();
    const [said, sums] = [await error.boundingBox(), await table.locator('.grid-sums').boundingBox()];
    assert.ok(said.y >= box.y + box.height && said.y < box.y + 2 * box.height, 'it stands below the cell');
    assert.ok(said.y + said.height > sums.y + 3, 'and reaches over the sums');
    const seen = await error.evaluate((element) => {
      const { left, bottom, width } = element.getBoundingClientRect();
      return document.elementFromPoint(left + width / 2, bottom - 2) === element;
    });
    assert.ok(seen, 'nothing covers it');
    await page.setViewportSize(size);
    await press('Escape', 'Escape');
    await message().waitFor();
    await message().getByRole('button', { name: 'Ja' }).click();
    await until(async () => (await looks(announced))[0] === '', 'nothing is edited');
    assert.deepEqual(await looks(contractName), ['', '400', '']);
  });

  test('on a low page the list of prices and all buttons stay, beside the change of all prices', async () => {
    await openPrices();
    await control(page, 'btnPreiseAendern').click();
    await support.hasFocus(page, 'txtWert');
    for (const [width, height] of [[1024, 700], [1366, 640], [1024, 640]]) {
      await page.setViewportSize({ width, height });
      await until(() => page.evaluate(() => {
        const window = document.querySelector('.window:not(.behind)');
        const place = (name) => window.querySelector(`[data-control="${name}"]`).getBoundingClientRect();
        const rows = window.querySelector('.grid').clientHeight / window.querySelector('.grid-row').offsetHeight;
        const content = window.querySelector('.content');
        const seen = ['btnPreiseAendern', 'cmdOk'].every((name) => place(name).bottom <= innerHeight)
          && place('txtWert').bottom < place('cmdOk').top;
        return (seen && rows >= 10 && content.scrollHeight === content.clientHeight) || { rows, field: place('txtWert').bottom };
      }), `${width} by ${height}`);
    }
  });

  test('the current contract is seen at a glance, and a bar of its loads leads to a week', async () => {
    const pane = page.locator('.gauges');
    await page.keyboard.type('faserholz judenburg');
    await until(async () => (await page.locator('.side .caption').first().textContent()).startsWith('R-2025-003'), 'its name');
    assert.equal(await pane.locator('tbody').count(), 2, 'a line and a bar for each quantity');
    assert.ok((await pane.locator('.track').first().boundingBox()).width > 300);
    assert.equal(await pane.locator('tr[aria-hidden="true"]').count(), 2, 'the words say what the bars show');

    await control(page, 'btnProvisionReports').click();
    await top('F_Bereitstellung_WVO');
    await support.hasFocus(page, 'txtVertrag');
    await page.keyboard.type('R-2025-003 Faserholz Judenburg');
    await press('Tab', 'Alt+w');
    await top('F_ZuegeJeWoche');
    await until(async () => (await page.locator('[data-form=F_ZuegeJeWoche] .chart .beam').count()) === 12, 'two bars a week');
    await page.locator('.chart .target').nth(4).click();
    await support.hasFocus(page, 'grdWochen');
    await press('Alt+w');
    await top('F_Bereitstellung_WVO');
    await until(async () => (await value('txtKalender')) === '23/2025', 'the week of the bar');
  });
});
