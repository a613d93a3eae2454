// Plays a scenario in a real browser: play_scenario.js SCENARIO DATABASE
// The steps are described in tests/scenarios/README.md.
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { checkScreen } from './check_screen.js';
import { allowClipboard, control, doubleClick, hasFocus, open, serve, settled, startBrowser, top, until } from './support.js';

const [scenario, database] = process.argv.slice(2);

/** The steps of a scenario; "open" becomes the steps that it stands for. */
function read(file) {
  const steps = [];
  readFileSync(file, 'utf8').split('\n').forEach((text, index) => {
    const found = [...text.matchAll(/#.*|"([^"]*)"|(\S+)/g)].filter(([whole]) => !whole.startsWith('#'));
    const meant = (quoted) => quoted?.replaceAll('\\t', '\t').replaceAll('\\n', '\n');
    const words = found.map(([, quoted, plain]) => ({ text: meant(quoted) ?? plain, quoted: quoted !== undefined }));
    if (words.length === 0) return;
    const [{ text: verb }, ...rest] = words;
    const add = (...step) => steps.push({ line: index + 1, verb: step[0], words: step.slice(1) });
    if (verb !== 'open') return add(verb, ...rest);
    add('window', { text: 'F_Start' });
    add('type', { text: 'txtSearch' }, rest[0]);
    add('key', { text: 'Enter' });
    add('window', { text: 'F_Vertrag' });
  });
  return steps;
}

const keyNames = {
  Esc: 'Escape', Ctrl: 'Control', Up: 'ArrowUp', Down: 'ArrowDown', Left: 'ArrowLeft', Right: 'ArrowRight',
};

/** As the browser's driver calls a key or a chord. */
function chord(word) {
  return word.split('+').map((part, at, all) => (at === all.length - 1 && all.length > 1 && part.length === 1
    ? part.toLowerCase() : keyNames[part] ?? part)).join('+');
}

class Player {
  #file = ''; // the last one that was made for the user

  constructor(page) {
    this.page = page;
    page.on('download', (download) => { this.#file = download.suggestedFilename(); });
  }

  window([form]) {
    return top(this.page, form.text, { timeout: 5000 });
  }

  async type(words) {
    if (!words[0].quoted) await this.#over(words[0].text);
    const text = words.at(-1).text;
    if (text === '') await this.page.keyboard.press('Delete');
    else await this.page.keyboard.type(text);
  }

  async key(words) {
    for (const { text } of words) {
      await this.page.keyboard.press(chord(text));
      await settled(this.page);
    }
  }

  click([name, half]) {
    if (name.text === 'status') return this.page.locator('.window:not(.behind) > .status button').click();
    const found = this.#control(name);
    if (half) return found.locator('button').nth(half.text === 'up' ? 0 : 1).click();
    return found.click();
  }

  async select([name, choice]) {
    const found = this.#control(name);
    if (!choice.quoted) {
      await this.#row(name, choice).first().click();
    } else if (await found.evaluate((element) => element.tagName === 'SELECT')) {
      await found.selectOption({ label: choice.text });
    } else {
      await found.locator('[role=option]').getByText(choice.text, { exact: true }).click();
    }
  }

  doubleClick([name, row]) {
    return doubleClick(this.#row(name, row).first());
  }

  async paste([name, { text }]) {
    // A click into a grid would go to another cell.
    if (await this.#control(name).getAttribute('role') !== 'grid') await this.#over(name.text);
    else await hasFocus(this.page, name.text);
    await this.page.evaluate((pasted) => navigator.clipboard.writeText(pasted), text);
    await this.page.keyboard.press('Control+v');
  }

  async answer([button, containing]) {
    const message = this.page.locator('.message');
    await message.waitFor({ timeout: 5000 });
    const text = await message.locator('#message-text').textContent();
    if (!text.includes(containing.text)) throw new Error(`the message is: ${text}`);
    await message.getByRole('button', { name: button.text, exact: true }).click();
  }

  async expect([name, ...rest]) {
    const wanted = rest.at(-1).text;
    if (name.text === 'focus') {
      await hasFocus(this.page, wanted);
      return;
    }
    if (name.text === 'status' || name.text === 'error') {
      const line = this.page.locator('.window:not(.behind) > .status [role=status]');
      const shown = () => (name.text === 'status' ? line.textContent() : this.#error(rest[0]));
      await until(async () => { const now = await shown(); return now === wanted || now; }, name.text);
      return;
    }
    if (name.text === 'clipboard') {
      const text = (await this.page.evaluate(() => navigator.clipboard.readText())).replaceAll('\r\n', '\n');
      if (text !== wanted) throw new Error(`it holds "${text}"`);
      return;
    }
    if (name.text === 'file') {
      await until(() => this.#file.includes(wanted) || this.#file, 'file');
      return;
    }
    const found = this.#control(name);
    const [row, ...cells] = rest;
    if (!row.quoted) {
      await until(async () => {
        const texts = (await this.#row(name, row).allTextContents()).map((text) => text.replace(/^– (?=\d)/, '-'));
        return cells.every(({ text }) => texts.includes(text)) || texts;
      }, 'cells');
      return;
    }
    await until(async () => { const now = await this.#shown(found); return now === wanted || now; }, name.text);
  }

  /**
   * Into the folder that TELLURIX_PICTURES names, as it looks to different users. With TELLURIX_CHECKS what is
   * found wrong with what is seen is told at the end.
   */
  async picture([name]) {
    if (process.env.TELLURIX_CHECKS) findings.push(...await checkScreen(this.page, name.text));
    if (!process.env.TELLURIX_PICTURES) return;
    const size = this.page.viewportSize();
    for (const { look, media = {}, width, height } of looks) {
      await this.page.emulateMedia({ colorScheme: null, forcedColors: null, ...media });
      await this.page.setViewportSize({ width, height });
      await this.page.screenshot({ path: `${process.env.TELLURIX_PICTURES}/browser-${look}-${name.text}.png`, animations: 'disabled' });
    }
    await this.page.emulateMedia({ colorScheme: null, forcedColors: null });
    await this.page.setViewportSize(size);
  }

  colleague([{ text }]) {
    execFileSync(process.env.TELLURIX_WORKBENCH, ['sql', '--database', database, text]);
  }

  close() {
    return this.page.locator('.window:not(.behind) .close').click();
  }

  #control({ text }) {
    return control(this.page, text);
  }

  /** The cells of a row, which counts from 1. */
  #row(name, row) {
    return this.#control(name).locator(`[aria-rowindex="${Number(row.text) + 1}"]`).locator('[role=gridcell]');
  }

  /** What describes a control as its error. */
  #error(name) {
    return this.#control(name).evaluate((element) => (element.getAttribute('aria-invalid') === 'true'
      ? document.getElementById(element.getAttribute('aria-describedby')).textContent : ''));
  }

  /** Goes to a box and selects its text. */
  async #over(name) {
    await control(this.page, name).click();
    await settled(this.page);
    await hasFocus(this.page, name);
    await this.page.keyboard.press('Control+a');
  }

  #shown(found) {
    return found.evaluate((element) => {
      if (element.type === 'checkbox') return element.checked ? 'ja' : 'nein';
      if (element.tagName === 'SELECT') return element.selectedOptions[0]?.textContent ?? '';
      if (element.getAttribute('role') === 'listbox') {
        return element.querySelector('[aria-selected=true]')?.textContent ?? '';
      }
      return element.value ?? element.textContent;
    });
  }
}

const looks = [
  { look: 'light', width: 1366, height: 660 },
  { look: 'dark', media: { colorScheme: 'dark' }, width: 1366, height: 660 },
  { look: 'forced', media: { forcedColors: 'active' }, width: 1366, height: 660 },
  { look: 'phone', width: 390, height: 844 },
];
const findings = [];

// A user may have chosen larger texts: TELLURIX_TEXT=24 is one and a half of the usual 16 pixels.
const text = process.env.TELLURIX_TEXT;
const browser = await startBrowser(text ? [`--blink-settings=defaultFontSize=${text}`] : []);
const server = await serve(process.env.TELLURIX_WORKBENCH, '--database', database, '--port', '0', '--user', 'test');
try {
  const { page, problems } = await open(browser, server.address);
  await allowClipboard(page);
  page.setDefaultTimeout(5000);
  const player = new Player(page);
  for (const { line, verb, words } of read(scenario)) {
    try {
      if (!Player.prototype[verb]) throw new Error('there is no such verb');
      if (verb !== 'answer' && verb !== 'picture' && await page.locator('.message').count() > 0) {
        throw new Error(`unexpected message: ${await page.locator('#message-text').textContent()}`);
      }
      await player[verb](words);
      await settled(page);
    } catch (error) {
      throw new Error(`${scenario}, line ${line} (${verb}): ${error.message}`);
    }
  }
  await player.window([{ text: 'F_Start' }]);
  if (findings.length > 0) throw new Error([...new Set(findings)].join('\n'));
  if (problems.length > 0) throw new Error(problems.join('\n'));
} catch (error) {
  console.error(error.message);
  process.exitCode = 1;
} finally {
  await server.stop();
  await browser.close();
}
