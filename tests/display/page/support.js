// Starts a program that serves screens, and a browser that looks at it as a user does.
import { spawn } from 'node:child_process';
import { chromium, firefox } from 'playwright-core';

const speaksBidi = process.env.TELLURIX_BROWSER === 'firefox';
const quiet = [
  '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync',
];

/** Starts the program and waits for the address that it prints. */
export async function serve(program, ...options) {
  const child = spawn(program, options, { stdio: ['ignore', 'pipe', 'inherit'] });
  const address = await new Promise((resolve, reject) => {
    let output = '';
    child.stdout.on('data', (text) => {
      output += text;
      const found = /http:\S+/.exec(output);
      if (found) resolve(found[0]);
    });
    child.on('exit', () => reject(new Error(`${program} ended: ${output}`)));
    child.on('error', reject);
  });
  return {
    address,
    stop() {
      if (child.exitCode !== null || child.signalCode !== null) return Promise.resolve();
      const ended = new Promise((resolve) => child.on('exit', resolve));
      child.kill('SIGTERM');
      return ended;
    },
  };
}

/** Debian's Chromium, or with TELLURIX_BROWSER=firefox its Firefox, which is spoken to by WebDriver BiDi. */
export function startBrowser(options = []) {
  if (speaksBidi) {
    return firefox.launch({
      channel: 'moz-firefox',
      executablePath: process.env.FIREFOX ?? '/usr/bin/firefox-esr',
      firefoxUserPrefs: { 'dom.events.testing.asyncClipboard': true },
    });
  }
  return chromium.launch({ executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: [...quiet, ...options] });
}

/** Opens the address in a tab of its own browser profile, whose connection can be cut. */
export async function open(browser, address, size = { width: 1366, height: 768 }) {
  const context = await browser.newContext({ viewport: size });
  const page = await context.newPage();
  const problems = [];
  page.on('pageerror', (error) => problems.push(String(error)));
  page.on('console', (message) => {
    if (message.type() === 'error') problems.push(message.text());
  });
  await page.addInitScript(() => {
    const Genuine = WebSocket;
    const open = new Set();
    window.WebSocket = class extends Genuine {
      constructor(address) {
        super(address);
        open.add(this);
        this.addEventListener('message', ({ data }) => {
          window.lastAnswered = JSON.parse(data).ack ?? window.lastAnswered;
        });
        if (window.lineIsCut) this.close();
      }
      send(text) {
        window.lastSaid = JSON.parse(text).n ?? window.lastSaid;
        // A message that the session cannot take, every time that it is sent.
        super.send(window.spoilt?.test(text) ? text.slice(1) : text);
      }
    };
    window.cutLine = () => {
      window.lineIsCut = true;
      for (const socket of open) socket.close();
    };
    window.mendLine = () => {
      window.lineIsCut = false;
    };
  });
  await page.goto(address);
  await page.waitForSelector('.window');
  return { page, problems };
}

/** Lets the page read and write the clipboard; Firefox is told so when it starts. */
export async function allowClipboard(page) {
  if (!speaksBidi) await page.context().grantPermissions(['clipboard-read', 'clipboard-write']);
}

/** Clicks twice. By BiDi the driver does not count clicks, so the browser takes them for two. */
export async function doubleClick(found) {
  await found.dblclick();
  if (speaksBidi) await found.dispatchEvent('dblclick');
}

/** The control of that name in the topmost window. */
export function control(page, name) {
  return page.locator(`.window:not(.behind) [data-control="${name}"]`);
}

/** Name of the control that has the browser's focus. */
export function focused(page) {
  return page.evaluate(() => document.activeElement?.closest('[data-control]')?.dataset.control ?? '');
}

/** Waits until that control has the focus. */
export function hasFocus(page, name) {
  return until(async () => {
    const now = await focused(page);
    return now === name || now;
  }, `focus on ${name}`);
}

/** Waits until that form is the topmost window. */
export function top(page, form, options) {
  return page.locator(`.window:not(.behind)[data-form="${form}"]`).waitFor(options);
}

/** Presses keys, one after the other. */
export async function press(page, ...keys) {
  for (const key of keys) await page.keyboard.press(key);
}

/** Goes on with Tab, or back, until a control has the focus. */
export async function tabTo(page, name, tab = 'Tab') {
  for (let i = 0; i < 60; ++i) {
    const before = await focused(page);
    if (before === name) return;
    await press(page, tab);
    await until(async () => (await focused(page)) !== before, 'the next control');
  }
  throw new Error(`${tab} never came to ${name}`);
}

/** Waits until the session has dealt with everything that the page has told it. */
export async function settled(page) {
  await page.waitForFunction(() => window.lastAnswered >= window.lastSaid);
}

/** Waits until something is so: the condition answers true, or else what is so instead. */
export async function until(condition, what) {
  const end = Date.now() + 5000;
  for (;;) {
    const now = await condition();
    if (now === true) return;
    if (Date.now() > end) throw new Error(`${what}: ${JSON.stringify(now)}`);
    await new Promise((resolve) => setTimeout(resolve, 15));
  }
}
