// The colours of the page, read from the file that they stand in: what has to be read or found stands out
// from every ground that it can stand on, in both themes (WCAG 2.2, 1.4.3 and 1.4.11).
import assert from 'node:assert/strict';
import { readFileSync, readdirSync } from 'node:fs';
import { test } from 'node:test';

const folder = new URL('../../../display/browser/page/', import.meta.url);
const tokens = readFileSync(new URL('style/tokens.css', folder), 'utf8');

const text = 4.5;
const mark = 3;
/** What stands out, by how much at least, and from what. */
const pairs = [
  ['ink', text, 'surface raised ground locked selected current hover error-ground warning-ground colleague-ground'],
  ['ink-2', text, 'surface raised ground locked selected current hover'],
  ['ink-3', text, 'surface raised selected current'],
  ['off', 4.25, 'surface raised locked'], // disabled texts are exempt; they are to be readable all the same
  ['link', text, 'surface raised'],
  ['on-accent', text, 'accent'],
  ['error', text, 'surface raised error-ground'],
  ['warning', text, 'surface raised selected current warning-ground'],
  ['colleague', text, 'surface raised colleague-ground'],
  ['edge', mark, 'surface raised ground'],
  ['accent', mark, 'surface raised selected current'],
  ['focus', mark, 'surface raised current selected error-ground'],
  ['bar', mark, 'surface raised track'],
];

function themes() {
  const [light, dark] = tokens.split('(prefers-color-scheme: dark)');
  const read = (part) => Object.fromEntries([...part.matchAll(/--([\w-]+): (#[0-9a-f]{6});/g)].map(([, name, value]) => [name, value]));
  return { light: read(light), dark: { ...read(light), ...read(dark) } };
}

function luminance(colour) {
  const [red, green, blue] = [1, 3, 5].map((at) => {
    const part = parseInt(colour.slice(at, at + 2), 16) / 255;
    return part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4;
  });
  return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
}

function contrast(one, other) {
  const [low, high] = [luminance(one), luminance(other)].sort((a, b) => a - b);
  return (high + 0.05) / (low + 0.05);
}

for (const [theme, colours] of Object.entries(themes())) {
  test(`${theme}: texts and marks stand out from their grounds`, () => {
    const weak = pairs.flatMap(([name, least, grounds]) => grounds.split(' ').map((ground) => {
      assert.ok(colours[name] && colours[ground], `${name} on ${ground}`);
      return [`${name} on ${ground}`, contrast(colours[name], colours[ground]), least];
    })).filter(([, ratio, least]) => ratio < least);
    assert.deepEqual(weak, []);
  });
}

test('dark has a value of its own for every colour', () => {
  const { light, dark } = themes();
  assert.deepEqual(Object.keys(light).filter((name) => light[name] === dark[name]), []);
});

test('no colour stands outside the file of colours', () => {
  const files = readdirSync(folder, { recursive: true }).filter((name) => /\.(css|js|html)$/.test(name) && !name.endsWith('tokens.css'));
  const outside = files.flatMap((name) => readFileSync(new URL(name, folder), 'utf8').split('\n')
    .filter((line) => /#[0-9a-f]{3,8}\b(?!-)|\b(rgb|hsl|lab|oklch)a?\(/i.test(line) && !/querySelector|getElementById/.test(line))
    .map((line) => `${name}: ${line.trim()}`));
  assert.deepEqual(outside, []);
});
