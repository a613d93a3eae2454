// The browser display in a real browser, over a form with every kind of control.
import assert from 'node:assert/strict';
import { mkdtempSync, readFileSync, rmSync, truncateSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, beforeEach, afterEach, describe, test } from 'node:test';
import * as support from './support.js';
import { control, open, serve, startBrowser, until } from './support.js';

const program = process.env.TELLURIX_WEB_DEMO;

describe('the browser display', { skip: program ? false : 'TELLURIX_WEB_DEMO names no program' }, () => {
  let server;
  let browser;
  let page;
  let problems;

  before(async () => {
    server = await serve(program, '3000');
    browser = await startBrowser();
  });
  after(async () => {
    await browser?.close();
    await server?.stop();
  });
  beforeEach(async () => {
    ({ page, problems } = await open(browser, server.address));
  });
  afterEach(async () => {
    await page.context().close();
    assert.deepEqual(problems, []);
  });

  /** Types as fast as it goes; "\t" is the Tab key. */
  const type = async (text) => {
    for (const [index, part] of text.split('\t').entries()) {
      if (index > 0) await page.keyboard.press('Tab');
      await page.keyboard.type(part);
    }
  };
  const value = (name) => control(page, name).inputValue();
  const press = (...keys) => support.press(page, ...keys);
  const hasFocus = (name) => support.hasFocus(page, name);
  /** What the screen itself knows, not what the page shows. */
  const state = (expected) =>
    until(async () => {
      const shown = await value('txtState');
      return shown === expected || shown;
    }, `state ${expected}`);
  const message = () => page.locator('.message');

  test('typing without a pause across Tab and Enter loses nothing', async () => {
    await type('Müller & Söhne 🌲\t01.02.2024\t1234,5\tSäge');
    await press('Enter');
    await hasFocus('btnDelete');
    await state('Müller & Söhne 🌲|01.02.2024|1.234,50|Säge');
    assert.equal(await value('txtName'), 'Müller & Söhne 🌲');
  });

  test('keys typed during a slow handler go where it sends the focus, in their order', async () => {
    await type('zuerst');
    await press('Alt+g');
    await type('danxah');
    await press('Backspace', 'Backspace', 'Backspace');
    await type('n');
    await press('Home');
    await type('>');
    await press('Shift+End', 'Delete');
    await type('\t3.4.2024\t');
    await state('>|3.4.2024||');
    await hasFocus('txtAmount');
    assert.equal(await value('txtDate'), '03.04.2024');
  });

  test('what a browser loads of the page stays small', async () => {
    const loads = [];
    page.on('response', (response) => loads.push(response.body()));
    await page.reload();
    await page.waitForSelector('.window');
    const bytes = (await Promise.all(loads)).reduce((sum, body) => sum + body.length, 0);
    assert.ok(loads.length > 30 && bytes < 150_000, `${loads.length} files, ${bytes} bytes`);
  });

  test('Ctrl+Z typed during a slow handler undoes in its turn', async () => {
    await press('Alt+g');
    await type('x\t\t77');
    await press('Control+z');
    await type('5');
    await state('x||5|');
  });

  test('keys between a letter and its answer keep their places', async () => {
    await type('abc');
    await press('ArrowLeft', 'ArrowLeft');
    await type('XY');
    await press('Control+a');
    await type('neu');
    await press('Control+ArrowLeft');
    await type('_');
    await state('_neu|||');
  });

  test('a filter sees every character, typed and pasted', async () => {
    await page.context().grantPermissions(['clipboard-read', 'clipboard-write']);
    await press('Tab');
    await type('a1b2.x3');
    await state('|12.3||');
    await press('Backspace');
    await page.evaluate(() => navigator.clipboard.writeText('am 5.2024'));
    await press('Control+v');
    await state('|12.5.2024||');
    await press('Tab');
    await type('12.5');
    await state('|12.05.2024|12,5|');
  });

  test('text put in at once, as by dictation or a tool, is not lost to the drawing of the focus', async () => {
    await control(page, 'txtKunde').fill('auf einmal');
    await control(page, 'txtAmount').fill('x12,5y');
    await control(page, 'txtDate').fill('am 3.4.2024');
    await state('|3.4.2024|12,50|auf einmal');
    await control(page, 'chkClosed').check();
    await until(() => control(page, 'txtNotes').isDisabled(), 'frame disabled');
  });

  test('a choice that the session refuses is taken back', async () => {
    await press('Tab');
    await type('99');
    await control(page, 'chkClosed').click();
    await message().waitFor();
    await press('Enter');
    await until(async () => !(await control(page, 'chkClosed').isChecked()), 'not ticked');
    await control(page, 'cboType').selectOption('Verkauf Rundholz');
    await message().waitFor();
    await press('Enter');
    await until(async () => (await value('cboType')) === 'Einkauf Rundholz', 'as before');
    await hasFocus('txtDate');
  });

  test('a bad date keeps the focus, and what was typed meanwhile does not answer the message', async () => {
    await press('Tab');
    await type('31.02.2024\t77');
    await message().waitFor();
    assert.match(await message().textContent(), /31\.02\.2024/);
    await page.waitForTimeout(100);
    assert.equal(await message().count(), 1);
    await press('Escape');
    await message().waitFor({ state: 'detached' });
    await hasFocus('txtDate');
    // What was typed ahead is not lost: it comes to where the focus is now, over the selected text.
    await state('|77||');
  });

  test('what a box does not take makes it flash, with a hint under it; Ctrl+Z undoes in one go', async () => {
    await page.context().grantPermissions(['clipboard-read', 'clipboard-write']);
    const box = control(page, 'txtAmount');
    const around = (name) => page.locator(`.text-box:has([data-control="${name}"])`);
    const hint = around('txtAmount').locator('.hint');
    await box.click();
    await type('12x');
    await until(async () => (await hint.count()) > 0 && (await hint.isVisible()), 'hint');
    assert.match(await hint.textContent(), /^Hier passt eine Zahl bis 9+,99$/);
    assert.match(await around('txtAmount').getAttribute('class'), /flashes/);
    await type(',5');
    await until(async () => !(await hint.isVisible()), 'no hint');
    await state('||12,5|');
    await press('Control+z');
    await state('|||');

    // The browser would cut what is too long for a box that it edits by itself.
    await control(page, 'txtName').click();
    await page.evaluate(() => navigator.clipboard.writeText('x'.repeat(40)));
    await press('Control+v');
    const cut = around('txtName').locator('.hint');
    await until(async () => (await cut.count()) > 0 && (await cut.isVisible()), 'told');
    assert.equal(await cut.textContent(), 'Nicht alles passt: 30 von 40 Zeichen übernommen');
  });

  test('a box with an error is marked and described by it until it is right', async () => {
    await press('Tab');
    await type('99\t');
    await message().waitFor();
    await press('Enter');
    const date = control(page, 'txtDate');
    await until(async () => (await date.getAttribute('aria-invalid')) === 'true', 'invalid');
    const text = page.locator(`#${await date.getAttribute('aria-describedby')}`);
    assert.equal(await text.textContent(), 'TT.MM.JJJJ');
    const [box, beside] = [await date.boundingBox(), await text.boundingBox()];
    assert.ok(beside.x >= box.x + box.width && beside.y < box.y + box.height, 'it stands beside the box');
    await type('1.2.2025\t');
    await until(async () => (await date.getAttribute('aria-invalid')) === null, 'valid');
    assert.ok(!(await text.isVisible()));

    // An empty table is described by what it says instead of rows, or else by what is wrong.
    const described = await page.evaluate(async () => {
      const { Grid } = await import(new URL('controls/grid.js', document.querySelector('script').src));
      const grid = new Grid({}, { name: 'grdEmpty', id: 0 });
      document.body.append(grid.element);
      const state = { visible: true, enabled: true, columns: [], content: [], current: [-1, 0], far: [-1, 0], changedCells: [], warnings: [], empty: 'Leer' };
      const texts = ['', 'Falsch', ''].map((error) => {
        grid.update({ ...state, error });
        return document.getElementById(grid.element.getAttribute('aria-describedby')).textContent;
      });
      grid.element.remove();
      return texts;
    });
    assert.deepEqual(described, ['Leer', 'Falsch', 'Leer']);
  });

  test('the status line says what was done, and its offer is pressed by pointer and letter', async () => {
    const line = page.locator('.window:not(.behind) > .status');
    const said = (text) => until(async () => (await line.locator('[role=status]').textContent()) === text, text);
    await control(page, 'txtKunde').fill('Maier');
    await control(page, 'btnDelete').click();
    await said('Kunde entfernt');
    assert.equal(await line.locator('button').getAttribute('aria-keyshortcuts'), 'Alt+R');
    await press('Alt+r');
    await said('');
    await state('|||Maier');
    await control(page, 'btnDelete').click();
    await state('|||');
    await line.locator('button').click();
    await state('|||Maier');
    assert.ok(!(await line.locator('button').isVisible()), 'it is offered once');
    await hasFocus('btnDelete');
  });

  test('a click on another box asks the box that is left', async () => {
    await press('Tab');
    await type('99');
    await control(page, 'txtKunde').click();
    await message().waitFor();
    await press('Enter');
    await hasFocus('txtDate');
    await press('Backspace', 'Backspace');
    await control(page, 'txtKunde').click();
    await hasFocus('txtKunde');
  });

  test('a message is answered by letter, arrows, Enter and Esc', async () => {
    for (const [keys, answer] of [
      [['j'], 6], [['n'], 7], [['a'], 2], [['Enter'], 7], [['ArrowRight', 'Enter'], 2],
      [['Shift+Tab', ' '], 6], [['Escape'], 2], [['Alt+j'], 6],
    ]) {
      await press('Alt+f');
      await message().waitFor();
      await press(...keys);
      await message().waitFor({ state: 'detached' });
      await state(`Antwort ${answer}`);
      await hasFocus('btnQuestion');
    }
  });

  test('Ctrl alone, F4 and the small button open the picker, Ctrl with a letter does not', async () => {
    const picker = page.locator('[data-form=DemoPicker]');
    await control(page, 'txtKunde').focus();
    await hasFocus('txtKunde');
    await press('Control+c');
    await page.waitForTimeout(60);
    assert.equal(await picker.count(), 0);
    for (const opens of [() => press('Control'), () => press('F4'), () => page.locator('.pick').click()]) {
      await opens();
      await picker.waitFor();
      await press('Escape');
      await picker.waitFor({ state: 'detached' });
      await hasFocus('txtKunde');
    }
  });

  test('a window above takes the keys typed ahead and gives back what was chosen', async () => {
    await control(page, 'txtKunde').focus();
    await hasFocus('txtKunde');
    await press('F4');
    await type('abc\t');
    await press('ArrowDown', 'ArrowDown', 'Enter');
    await state('|||Sägewerk Ahrens');
    await hasFocus('txtKunde');
    assert.equal(await page.locator('.window').count(), 1);
  });

  test('only the topmost window can be used', async () => {
    await press('Alt+e');
    await message().waitFor();
    await press('Enter');
    await message().waitFor({ state: 'detached' });
    await control(page, 'btnOpen').click();
    await until(async () => (await page.locator('.window').count()) === 2, 'second window');
    assert.equal(await page.locator('.window.behind').evaluate((element) => element.inert), true);
    await type('oben');
    await state('oben|||');
    await page.locator('.close').click();
    await until(async () => (await page.locator('.window').count()) === 1, 'second window closed');
    assert.equal(await value('txtName'), '');
  });

  test('a list, a table, tabs and boxes follow the keyboard and the pointer', async () => {
    await control(page, 'cboType').focus();
    await hasFocus('cboType');
    await type('v');
    await press('ArrowDown');
    await until(async () => (await value('cboType')) === 'Verkauf Schnittholz', 'type');
    await control(page, 'cboType').selectOption('Einkauf Rundholz');
    await until(async () => (await value('cboType')) === 'Einkauf Rundholz', 'type chosen');

    await control(page, 'grdLines').focus();
    await hasFocus('grdLines');
    await press('Control+End', 'ArrowUp', 'Enter');
    await state('Zeile 599');
    await press('F2');
    await state('F2 in Zeile 599');
    assert.equal(await page.locator('.grid-row.current').getAttribute('aria-rowindex'), '600');
    await page.getByRole('gridcell', { name: '598', exact: true }).dblclick();
    await state('Zeile 598');
    await page.mouse.wheel(0, -300 * 24);
    const far = page.getByRole('gridcell', { name: '297', exact: true });
    await far.waitFor();
    assert.equal(await page.evaluate(() => {
      const cell = document.getElementById(document.activeElement.getAttribute('aria-activedescendant'));
      return cell?.parentElement.getAttribute('aria-rowindex');
    }), '599', 'the current row is out of sight, and screen readers still find it');
    await far.dblclick();
    await state('Zeile 297');

    await page.getByRole('tab', { name: 'Texte' }).click();
    await until(() => control(page, 'txtNotes').isVisible(), 'second page');
    await press('Alt+b');
    await hasFocus('txtNotes');
    await type('eins');
    await press('Control+Enter');
    await type('zwei');
    await until(async () => (await value('txtNotes')) === 'eins\nzwei', 'two lines');
    await press('Alt+s');
    await until(() => control(page, 'txtNotes').isDisabled(), 'frame disabled');
    assert.equal(await control(page, 'chkClosed').isChecked(), true);
    await page.getByRole('button', { name: 'Erhöhen' }).click();
    await until(async () => (await value('txtWeek')) === '15', 'week');
  });

  test('letters look for an item from the first one at each visit', async () => {
    await control(page, 'cboType').focus();
    await hasFocus('cboType');
    await type('verkauf s');
    await until(async () => (await value('cboType')) === 'Verkauf Schnittholz', 'by several letters');
    await press('Tab', 'Shift+Tab', 'e');
    await until(async () => (await value('cboType')) === 'Einkauf Rundholz' || value('cboType'), 'by a first letter');
    await control(page, 'lstSorts').focus();
    await hasFocus('lstSorts');
    const sort = async () => control(page, 'lstSorts').locator('[aria-selected=true]').textContent();
    await type('b');
    await press('Tab', 'Shift+Tab');
    await type('ei');
    await until(async () => (await sort()) === 'Eiche TF' || sort(), 'a sort');
  });

  test('what is too long to be told is refused, and nothing else is lost', async () => {
    await page.context().grantPermissions(['clipboard-read', 'clipboard-write']);
    await type('Müller\t1.2.2024');
    await page.evaluate(() => navigator.clipboard.writeText('ß1'.repeat(90_000)));
    const banner = page.locator('#banner');
    await control(page, 'txtKunde').focus();
    await hasFocus('txtKunde');
    await type('Säge');
    for (const [name, place, typed] of [['txtKunde', 'End', 'werk'], ['txtDate', 'Control+a', '3']]) {
      await control(page, name).focus();
      await hasFocus(name);
      await press(place, 'Control+v');
      await banner.getByText('zu lang').waitFor();
      await banner.getByRole('button').click();
      await type(typed);
    }
    await state('Müller|3||Sägewerk');
  });

  test('a message that the session does not take is not repeated, and the user told', async () => {
    await type('vor');
    await page.evaluate(() => { window.spoilt = /"character":"7"|"text":"vorX"/; });
    await type('X');
    const banner = page.locator('#banner', { hasText: 'nicht angenommen' });
    await banner.waitFor();
    await until(async () => (await value('txtName')) === 'vor' || value('txtName'), 'as the session knows it');
    await banner.getByRole('button').click();
    await type('her\t37');
    await banner.waitFor();
    await type('.2.2024\t');
    await state('vorher|3.2.2024||');
  });

  test('controls have roles, names and states for screen readers', async () => {
    await page.getByRole('textbox', { name: 'Vertragsname:' }).waitFor();
    await page.getByRole('combobox', { name: 'Vertragsart:' }).waitFor();
    await page.getByRole('checkbox', { name: 'Vertrag abgeschlossen' }).waitFor();
    await page.getByRole('button', { name: 'Kunde entfernen' }).waitFor();
    await page.getByRole('gridcell', { name: 'Lärche' }).first().waitFor();
    assert.equal(await page.evaluate(() => document.documentElement.lang), 'de');
    await press('Alt+f');
    await page.getByRole('alertdialog', { name: 'Tellurix' }).waitFor();
    await press('Escape');
    const headings = control(page, 'grdLines').getByRole('columnheader');
    assert.equal(await headings.nth(5).getAttribute('title'), 'je Einheit');
    assert.equal(await headings.nth(4).getAttribute('title'), 'Menge fm');
  });

  test('an interrupted line keeps the windows and everything typed', async () => {
    await type('vorher');
    await control(page, 'txtKunde').focus();
    await press('F4');
    await page.locator('[data-form=DemoPicker]').waitFor();
    await type('Suche');
    await page.waitForTimeout(100);
    await page.evaluate(() => {
      window.cutLine();
      // Typed into a line that is dead already, which nobody has noticed yet.
      document.execCommand('insertText', false, 'n');
    });
    await page.locator('#banner', { hasText: 'unterbrochen' }).waitFor();
    await type('verschluckt');
    await page.evaluate(() => window.mendLine());
    await until(async () => (await page.locator('#banner').textContent()) === '', 'found again');
    await until(async () => (await value('txtSearch')) === 'Suchen' || value('txtSearch'), 'typed text');
    // What the session knows comes with the next complete drawing.
    await page.reload();
    await page.locator('[data-form=DemoPicker]').waitFor();
    assert.equal(await value('txtSearch'), 'Suchen');
    await press('Escape');
    await state('vorher|||');
    assert.equal(await value('txtName'), 'vorher');
  });

  test('a message waits for its answer across an interruption and a reload', async () => {
    await press('Alt+f');
    await message().waitFor();
    await page.evaluate(() => {
      window.cutLine();
      setTimeout(window.mendLine, 50);
    });
    await page.waitForTimeout(400);
    await page.reload();
    await message().waitFor();
    await press('j');
    await state('Antwort 6');
  });

  test('a second tab has a session of its own, even a duplicated one', async () => {
    await type('erster');
    await state('erster|||');
    const copy = await page.evaluate(() => sessionStorage.getItem('tellurix-session'));
    const other = await page.context().newPage();
    await other.addInitScript((id) => sessionStorage.setItem('tellurix-session', id), copy);
    await other.goto(server.address);
    await other.waitForSelector('.window');
    assert.equal(await control(other, 'txtName').inputValue(), '');
    await type('!');
    await state('erster!|||');
  });

  test('a browser that stays away too long is told so and can start again', async () => {
    await type('weg');
    await page.evaluate(() => window.cutLine());
    await page.waitForTimeout(3300);
    await page.evaluate(() => window.mendLine());
    const ended = page.getByRole('alertdialog', { name: 'Sitzung beendet' });
    await ended.waitFor();
    await ended.getByRole('button', { name: 'Neu beginnen' }).click();
    await page.waitForSelector('.window');
    await ended.waitFor({ state: 'detached' });
    assert.equal(await value('txtName'), '');
  });

  test('a file of the user is sent, and one made for the user is saved', async (t) => {
    // Somebody listens all the time: the browser's own dialog must not open before the driver takes it.
    page.on('filechooser', () => {});
    const note = () => page.locator('.message-file p').textContent();
    const ask = async () => {
      await control(page, 'btnDocument').click();
      await message().waitFor();
    };
    const choose = async (file, ...keys) => {
      const chooser = page.waitForEvent('filechooser');
      await press(...keys);
      await (await chooser).setFiles(file);
    };
    const folder = mkdtempSync(join(tmpdir(), 'tellurix-'));
    t.after(() => rmSync(folder, { recursive: true }));
    const large = join(folder, 'groß.pdf');
    writeFileSync(large, '');
    truncateSync(large, 32 * 1024 * 1024 + 1);
    const small = { name: 'Vertrag ä #1.pdf', mimeType: 'application/pdf', buffer: Buffer.from('content') };

    await ask();
    await press('Escape');
    await state('keine Datei');
    await ask();
    await choose(large, 'Enter');
    await until(async () => (await note()).includes('zu groß') || note(), 'the file is refused');
    const save = page.waitForEvent('download');
    await choose(small, 'w');
    await state('Vertrag ä #1.pdf: 7');
    const saved = await save;
    assert.equal(saved.suggestedFilename(), 'Kopie von Vertrag ä #1.pdf');
    assert.equal(readFileSync(await saved.path(), 'utf8'), 'content');
    assert.equal(await page.locator('#banner a').textContent(), 'Kopie von Vertrag ä #1.pdf');

    // The same file once more, after a try that got no answer.
    await page.route('**/file/**', (route) => route.abort(), { times: 1 });
    await ask();
    await choose(small, 'Enter');
    await until(async () => (await note()).includes('noch einmal') || note(), 'the failure is told');
    problems.length = 0; // the browser notes the failed request
    const again = page.waitForEvent('download');
    await choose(small, 'Enter');
    await again;
    await until(async () => (await page.locator('#banner a').count()) === 2, 'both files are named');
    await message().waitFor({ state: 'detached' });
  });
});
