// Tries the molecule viewer's reader and its drawing with altered molecule files:
// node molecule-files.mjs FINDINGS SEEDS, and then what to try:
//   --inputs N    N files, the same ones each time, however long each takes
//   --seconds N   files for so long, other ones each time
//   FILE          one file, again
// A finding is kept in the folder FINDINGS.

import { Session } from 'node:inspector';
import fs from 'node:fs';
import path from 'node:path';
import vm from 'node:vm';

const [findings, seedFolder, what, amount] = process.argv.slice(2);
const isFixed = what === '--inputs', isLong = what === '--seconds';
const root = path.join(import.meta.dirname ?? path.dirname(new URL(import.meta.url).pathname), '..');
const slowest = isLong ? 3000 : Infinity;   // milliseconds for one file

// ---- the viewer's scripts, with as much of a browser as they use ----

const finite = (...numbers) => { if (!numbers.every(Number.isFinite)) throw new TypeError('not finite'); };
const notNegative = (...radii) => { if (radii.some(radius => radius < 0)) throw new RangeError('negative radius'); };
const gradient = (...numbers) => {
  finite(...numbers);
  return { addColorStop(offset) { if (!(offset >= 0 && offset <= 1)) throw new RangeError('colour stop ' + offset); } };
};
const nothing = () => {};
const context = {
  setTransform: nothing, fillRect: nothing, beginPath: nothing, closePath: nothing, moveTo: nothing, lineTo: nothing,
  stroke: nothing, fill: nothing, arc(x, y, radius) { notNegative(radius); },
  ellipse(x, y, radiusX, radiusY) { notNegative(radiusX, radiusY); },
  createLinearGradient: gradient,
  createRadialGradient(x, y, radius, toX, toY, toRadius) { notNegative(radius, toRadius); return gradient(x, y, toX, toY, radius, toRadius); },
};

/// The elements of an XML text that can be read with ease; enough to reach the reader behind the browser's parser.
class DOMParser {
  parseFromString(text) {
    const all = [...text.matchAll(/<([\w:]+)((?:\s+[\w:]+\s*=\s*"[^"<]*")*)\s*\/?>/g)].map(([, name, attributes]) => {
      const values = new Map([...attributes.matchAll(/([\w:]+)\s*=\s*"([^"]*)"/g)].map(([, key, value]) => [key, value]));
      return {
        name: name.replace(/^.*:/, ''),
        getAttribute: key => values.get(key) ?? null,
        hasAttribute: key => values.has(key),
        getElementsByTagNameNS: (_, wanted) => all.filter(one => one.name === wanted),
      };
    });
    return { querySelector: () => null, getElementsByTagNameNS: (_, wanted) => all.filter(one => one.name === wanted) };
  }
}

const scripts = ['molecule-elements', 'molecule-files', 'molecule-geometry', 'molecule-canvas'].map(name => `controls/plugins/${name}.js`);
const table = fs.readFileSync(path.join(root, 'controls/elements/data/elements.tsv'), 'utf8').split('\n').slice(2);
const elementNames = Object.fromEntries(table.map(line => line.split('\t')).filter(row => row[2]).map(([, symbol, name]) => [symbol, name]));
const world = vm.createContext({ DOMParser, console, document: { createElement: () => ({ getContext: () => context }) } });
vm.runInContext(`const elementNames = ${JSON.stringify(elementNames)};`, world);
for (const script of scripts) new vm.Script(fs.readFileSync(path.join(root, script), 'utf8'), { filename: script }).runInContext(world);
const viewer = vm.runInContext('({ readMolecule, centre, Camera, CanvasDrawing, lookOf })', world);

function draw(molecule) {
  const drawing = new viewer.CanvasDrawing(molecule, '#000000');
  const camera = new viewer.Camera(molecule.fullReach);
  camera.resize(340, 290);
  drawing.resize(340, 290, 1);
  for (const style of ['wire', 'sticks', 'balls', 'spaces']) {
    drawing.setLook(style, () => true);
    drawing.draw(camera);
  }
}

/// What is wrong with how a file is treated; empty when nothing is. An Error of the reader's own is the right answer to
/// what is no molecule.
function fault(name, text) {
  const begun = performance.now();
  let molecule;
  try {
    molecule = viewer.centre(viewer.readMolecule(name, text));
  } catch (error) {
    if (error?.constructor?.name !== 'Error') return `reading: ${error?.stack ?? error}`;
  }
  try {
    if (molecule) draw(molecule);
  } catch (error) {
    return `drawing: ${error?.stack ?? error}`;
  }
  const taken = performance.now() - begun;
  return taken > slowest ? `took ${Math.round(taken)} ms` : '';
}

// ---- altered files ----

const words = ['999', '-1', '0', '1e308', '-1e308', '1e-320', 'NaN', 'Infinity', '', ' ', '0x1F', '1.5', '200001', '64999', '65001',
               '__proto__', 'constructor', 'toString', 'V3000', 'M  END', 'M  V30 ', 'END', 'BEGIN', 'ATOM', 'ENDMDL', 'CONECT', 'HETATM',
               '\0', '\u2028', '\r', 'Å', '\uD800'];

/// Numbers from 0 to 1 that look random (mulberry32): the same ones for the same seed.
function randomFrom(seed) {
  return () => {
    seed = seed + 0x6D2B79F5 | 0;
    let bits = Math.imul(seed ^ seed >>> 15, 1 | seed);
    bits = bits + Math.imul(bits ^ bits >>> 7, 61 | bits) ^ bits;
    return ((bits ^ bits >>> 14) >>> 0) / 4294967296;
  };
}

const random = randomFrom(isFixed ? 1 : Date.now());
const below = count => Math.floor(random() * count);
const oneOf = list => list[below(list.length)];
const splice = (text, at, count, put) => text.slice(0, at) + put + text.slice(at + count);
const onLines = change => text => { const lines = text.split('\n'); change(lines, below(lines.length)); return lines.join('\n'); };

const alterations = [
  text => splice(text, below(text.length), 1, String.fromCharCode(below(256))),
  text => splice(text, below(text.length), below(12), ''),
  text => splice(text, below(text.length), 0, oneOf(words)),
  text => { const found = [...text.matchAll(/\S+/g)]; const word = oneOf(found); return word ? splice(text, word.index, word[0].length, oneOf(words)) : text; },
  text => { const found = [...text.matchAll(/-?\d+\.?\d*/g)]; const word = oneOf(found); return word ? splice(text, word.index, word[0].length, oneOf(found)[0].padStart(word[0].length)) : text; },
  onLines((lines, i) => lines.splice(i, 0, lines[i])),
  onLines((lines, i) => lines.splice(i, 1)),
  onLines((lines, i) => { const j = below(lines.length); [lines[i], lines[j]] = [lines[j], lines[i]]; }),
  onLines((lines, i) => lines.splice(i, 0, ...Array(below(300)).fill(lines[i]))),
  (text, other) => text.slice(0, below(text.length)) + other.slice(below(other.length)),
  text => text.slice(0, below(text.length)),
];

function altered(text, other) {
  for (let i = 1 + below(6); i > 0; --i) text = oneOf(alterations)(text, other);
  return text.slice(0, 100000);
}

// ---- the run ----

const seeds = fs.readdirSync(seedFolder).sort().map(name => ({ name, text: fs.readFileSync(path.join(seedFolder, name), 'latin1') }));

function tryFile(name, text) {
  const found = fault(name, text);
  if (found) keep(name, text, found);
}

function keep(name, text, found) {
  fs.mkdirSync(findings, { recursive: true });
  const file = path.join(findings, `molecule-files-${Date.now()}-${name}`);
  fs.writeFileSync(file, text);
  console.error(`${found}\nThe file is kept: ${file}`);
  process.exit(1);
}

if (!isFixed && !isLong) {
  const found = fault(what, fs.readFileSync(what, 'utf8'));
  console.log(found || 'nothing is wrong');
  process.exit(found ? 1 : 0);
}

const session = new Session();
session.connect();
session.post('Profiler.enable');
session.post('Profiler.startPreciseCoverage', { callCount: false, detailed: true });

const end = Date.now() + amount * 1000;
let tried = 0;
for (const { name, text } of seeds) tryFile(name, text);
for (; isFixed ? tried < amount : Date.now() < end; ++tried) {
  const { name, text } = oneOf(seeds);
  tryFile(name, altered(text, oneOf(seeds).text));
}

session.post('Profiler.takePreciseCoverage', (_, { result }) => {
  const functions = result.filter(({ url }) => scripts.includes(url)).flatMap(script => script.functions);
  const ranges = functions.flatMap(one => one.ranges);
  console.log(`${tried} inputs, ${ranges.filter(({ count }) => count > 0).length} of ${ranges.length} blocks covered`);
});
