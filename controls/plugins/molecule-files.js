'use strict';

// Reads molecule files. A molecule is {atoms, bonds, charge}: an atom has `element`, `at` ([x, y, z] in ångström) and may
// have `note` (where it belongs) and `charge`; a bond has `a`, `b` (indexes of atoms) and `order` (1, 2, 3; 4 is aromatic);
// the whole has the `charge` of its atoms together. Each reader throws an Error when the file is not what it should be.

// A file may come from anywhere: these limits are checked before anything is computed.
const maxAtoms = 200000;
const maxBondsPerAtom = 12;
const maxFileLength = 32 << 20;   // letters
const maxCoordinate = 100000;     // ångström; what is farther away would be lost in drawing, or overflow
const maxCharge = 99;             // of an atom, in either direction

const linesOf = text => text.split(/\r\n|\r|\n/);
const field = (line, from, to) => line.slice(from, to).trim();

function number(text) {
  const value = (text ?? '') === '' ? NaN : Number(text);
  if (!Number.isFinite(value)) throw new Error('not a number: ' + text);
  return value;
}

function coordinate(text) {
  const value = number(text);
  if (Math.abs(value) > maxCoordinate) throw new Error('too far');
  return value;
}

/// The charge that a text tells; 0 for one that tells none.
function chargeIn(text) {
  const charge = Number((text ?? '').trim());
  return Number.isInteger(charge) && Math.abs(charge) <= maxCharge ? charge : 0;
}

function checkCounts(atoms, bonds) {
  if (atoms < 1 || atoms > maxAtoms || bonds < 0 || bonds > atoms * maxBondsPerAtom) throw new Error('no molecule');
}

function checked({ atoms, bonds }) {
  checkCounts(atoms.length, bonds.length);
  for (const { a, b } of bonds) if (!atoms[a] || !atoms[b] || a === b) throw new Error('no such atom');
  return { atoms, bonds, charge: atoms.reduce((sum, atom) => sum + (atom.charge ?? 0), 0) };
}

// ---- MOL and SDF; of several molecules in a file the first ----

function readMol(text) {
  const lines = linesOf(text);
  const counts = lines[3] ?? '';
  if (/V3000/.test(counts)) return readV3000(lines);
  const atomCount = number(field(counts, 0, 3)), bondCount = number(field(counts, 3, 6));
  checkCounts(atomCount, bondCount);
  if (lines.length < 4 + atomCount + bondCount) throw new Error('cut short');
  const charges = chargesIn(lines.slice(4 + atomCount + bondCount));
  return {
    atoms: lines.slice(4, 4 + atomCount).map((line, i) => ({
      at: [field(line, 0, 10), field(line, 10, 20), field(line, 20, 30)].map(coordinate),
      element: symbolOf(field(line, 31, 34)) || field(line, 31, 34),
      charge: charges.size > 0 ? charges.get(i) ?? 0 : chargeOfCode(field(line, 36, 39)),
    })),
    bonds: lines.slice(4 + atomCount, 4 + atomCount + bondCount).map(line => {
      const [a, b, order] = [field(line, 0, 3), field(line, 3, 6), field(line, 6, 9)].map(number);
      return { a: a - 1, b: b - 1, order };
    }),
  };
}

/// The charge by the code in an atom's own line, which older files have: 3 is +1, 5 is −1; 0 and 4 are none.
const chargeOfCode = code => /^[1-7]$/.test(code) ? 4 - Number(code) : 0;

/// The charges of atoms, by their indexes, in the lines of properties behind the bonds of the first molecule.
function chargesIn(lines) {
  const charges = new Map();
  for (const line of lines) {
    if (line.startsWith('M  END')) break;
    if (!line.startsWith('M  CHG')) continue;
    const words = line.slice(9).trim().split(/\s+/);
    for (let i = 0; i + 1 < words.length; i += 2) charges.set(Number(words[i]) - 1, chargeIn(words[i + 1]));
  }
  return charges;
}

function readV3000(lines) {
  const atoms = [], bonds = [], indexes = new Map();
  let block = '', ended = false;
  for (const line of lines) {
    if (line.startsWith('M  END')) { ended = true; break; }
    if (!line.startsWith('M  V30 ')) continue;
    const words = line.slice(7).trim().split(/\s+/);
    if (words[0] === 'BEGIN') block = words[1];
    else if (words[0] === 'END') block = '';
    else if (block === 'ATOM') {
      if (words.length < 5) throw new Error('cut short');
      indexes.set(words[0], atoms.length);
      const charge = chargeIn(words.find(word => word.startsWith('CHG='))?.slice(4));
      atoms.push({ element: symbolOf(words[1]) || words[1], at: words.slice(2, 5).map(coordinate), charge });
    } else if (block === 'BOND') {
      bonds.push({ a: indexes.get(words[2]), b: indexes.get(words[3]), order: number(words[1]) });
    }
  }
  if (!ended) throw new Error('cut short');
  return { atoms, bonds };
}

// ---- files that tell no bonds, or not all ----

/// A number for the box of space with these numbers along x, y and z; boxes side by side have different ones.
const boxKey = (x, y, z) => (x * 131072 + y) * 131072 + z;

/// Bonds between atoms that are as near to each other as their radii say. No substance has as many atoms in a box as
/// are looked at, nor as many bonds of an atom; so the time grows with the number of atoms only.
function bondsByDistance(atoms) {
  checkCounts(atoms.length, 0);
  const slack = 0.40, minLength = 0.4, size = 2.6, maxInBox = 24;
  const boxes = new Map();
  const radii = Float64Array.from(atoms, ({ element }) => lookOf(element).covalent);
  const counts = new Uint8Array(atoms.length);
  const bonds = [];
  const look = (i, box) => {
    const { at, element } = atoms[i];
    for (const j of box) {
      const other = atoms[j];
      if (element === 'H' && other.element === 'H' && atoms.length > 2) continue;
      const [dx, dy, dz] = [at[0] - other.at[0], at[1] - other.at[1], at[2] - other.at[2]];
      const square = dx * dx + dy * dy + dz * dz;
      const maxLength = Math.min(radii[i] + radii[j] + slack, size);
      if (square <= minLength * minLength || square >= maxLength * maxLength) continue;
      if (Math.max(counts[i], counts[j]) >= maxBondsPerAtom) continue;
      bonds.push({ a: j, b: i, order: 1 });
      ++counts[i];
      ++counts[j];
    }
  };
  atoms.forEach(({ at }, i) => {
    const [x, y, z] = at.map(v => Math.floor(v / size));
    for (let dx = -1; dx <= 1; ++dx) for (let dy = -1; dy <= 1; ++dy) for (let dz = -1; dz <= 1; ++dz) {
      const box = boxes.get(boxKey(x + dx, y + dy, z + dz));
      if (box) look(i, box);
    }
    const key = boxKey(x, y, z), box = boxes.get(key);
    if (!box) boxes.set(key, [i]); else if (box.length < maxInBox) box.push(i);
  });
  return bonds;
}

const symbols = Object.keys(elementNames);

function readXyz(text) {
  const lines = linesOf(text);
  const count = number((lines[0] ?? '').trim());
  checkCounts(count, 0);
  if (lines.length < 2 + count) throw new Error('cut short');
  const atoms = lines.slice(2, 2 + count).map(line => {
    const [element, x, y, z] = line.trim().split(/\s+/);
    const isNumber = /^\d+$/.test(element);
    const symbol = isNumber ? symbols[Number(element) - 1] : symbolOf(element ?? '');
    if (!symbol) throw new Error('no element: ' + element);
    return { element: symbol, at: [x, y, z].map(coordinate) };
  });
  return { atoms, bonds: bondsByDistance(atoms) };
}

/// An atom's element by its own column or, in older files, by its name, whose symbol ends in the second column.
function elementOfPdb(line) {
  const own = symbolOf(field(line, 76, 78).replace(/[^A-Za-z]/g, ''));
  const name = line.slice(12, 16);
  return own || symbolOf(/^[A-Z]{2}/.test(name.slice(0, 2)) && !/^H/.test(name) ? name.slice(0, 2) : '') ||
    symbolOf(name.replace(/[^A-Za-z]/g, '').charAt(0));
}

function readPdb(text) {
  const atoms = [], serials = new Map(), bonds = [];
  let open = true;
  for (const line of linesOf(text)) {
    const kind = field(line, 0, 6);
    if (kind === 'ENDMDL') open = false;
    if (open && (kind === 'ATOM' || kind === 'HETATM') && /^[ A1]?$/.test(line.charAt(16))) {
      serials.set(field(line, 6, 11), atoms.length);
      const element = elementOfPdb(line);
      if (!element) throw new Error('no element');
      atoms.push({
        element, at: [field(line, 30, 38), field(line, 38, 46), field(line, 46, 54)].map(coordinate),
        charge: chargeIn(field(line, 78, 80).replace(/^(\d)([+-])$/, '$2$1')),
        note: [field(line, 17, 20), field(line, 22, 26)].filter(word => word).join(' '),
      });
    }
    if (kind === 'CONECT') {
      const [a, ...others] = (line.slice(6).match(/.{1,5}/g) ?? []).map(word => serials.get(word.trim()));
      for (const b of others) if (a !== undefined && b > a) bonds.push({ a, b, order: 1 });
    }
  }
  const told = new Map(bonds.map(bond => [bond.a + ' ' + bond.b, bond]));
  return { atoms, bonds: [...told.values(), ...bondsByDistance(atoms).filter(({ a, b }) => !told.has(a + ' ' + b))] };
}

function readCml(text) {
  const xml = new DOMParser().parseFromString(text, 'application/xml');
  if (xml.querySelector('parsererror')) throw new Error('not well-formed');
  const molecule = xml.getElementsByTagNameNS('*', 'molecule')[0];
  if (!molecule) throw new Error('no molecule');
  const indexes = new Map();
  const atoms = [...molecule.getElementsByTagNameNS('*', 'atom')].map((atom, i) => {
    indexes.set(atom.getAttribute('id'), i);
    const flat = !atom.hasAttribute('x3');
    return {
      element: symbolOf(atom.getAttribute('elementType') ?? ''),
      at: flat ? [coordinate(atom.getAttribute('x2')), coordinate(atom.getAttribute('y2')), 0]
               : ['x3', 'y3', 'z3'].map(name => coordinate(atom.getAttribute(name))),
      charge: chargeIn(atom.getAttribute('formalCharge')),
    };
  });
  const orders = { 1: 1, 2: 2, 3: 3, S: 1, D: 2, T: 3, A: 4 };
  const bonds = [...molecule.getElementsByTagNameNS('*', 'bond')].map(bond => {
    const [a, b] = (bond.getAttribute('atomRefs2') ?? '').trim().split(/\s+/).map(id => indexes.get(id));
    return { a, b, order: orders[bond.getAttribute('order')] ?? 1 };
  });
  return { atoms, bonds };
}

const readers = { mol: readMol, sdf: readMol, sd: readMol, xyz: readXyz, pdb: readPdb, ent: readPdb, cml: readCml };

/// The molecule in a file of this name.
function readMolecule(name, text) {
  if (text.length > maxFileLength) throw new Error('too large');
  const extension = name.slice(name.lastIndexOf('.') + 1).toLowerCase();
  return checked((readers[extension] ?? readMol)(text));
}
