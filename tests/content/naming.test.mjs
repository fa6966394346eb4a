import assert from 'node:assert/strict';
import test from 'node:test';

import { table, tool } from './tables.mjs';

const { COMPOUNDS } = await tool('naming/compounds.js');
const { checkFormula, checkName, pick, reason } = await tool('naming/logic.js');
const { parseFormula } = await tool('shared/formula.js');

const named = formula => COMPOUNDS.find(compound => compound.formula === formula);

table('ions make formulas and names', formula => named(formula)?.names, [
  ['NaCl', ['χλωριούχο νάτριο']], ['AgCl', ['χλωριούχος άργυρος']], ['Ca(OH)2', ['υδροξείδιο του ασβεστίου']], ['Fe2O3', ['οξείδιο του σιδήρου(III)']],
  ['Fe2(SO4)3', ['θειικός σίδηρος(III)']], ['(NH4)2CO3', ['ανθρακικό αμμώνιο']], ['Al2O3', ['οξείδιο του αργιλίου', 'οξείδιο του αλουμινίου']],
  ['Mg3(PO4)2', ['φωσφορικό μαγνήσιο']], ['CuSO4', ['θειικός χαλκός(II)']], ['AgOH', undefined], ['CO2', ['διοξείδιο του άνθρακα']],
]);

test('each formula and each name belongs to one compound, and can be read', () => {
  for (const key of ['formula', 'names']) assert.equal(new Set(COMPOUNDS.map(compound => String(compound[key]))).size, COMPOUNDS.length);
  for (const { formula, cation, anion, counts } of COMPOUNDS) {
    assert.equal(parseFormula(formula).charge, 0);
    if (cation) assert.equal(counts[0] * cation.charge, counts[1] * anion.charge, formula);
  }
});

table('names are compared', (formula, typed) => checkName(named(formula), typed), [
  ['AgCl', 'Χλωριουχος  αργυροσ', 'right'], ['FeCl3', 'χλωριούχος σίδηρος (ΙΙΙ)', 'right'], ['FeCl3', 'χλωριούχος σίδηρος(3)', 'right'],
  ['FeCl3', 'χλωριούχος σίδηρος', 'number'], ['FeCl3', 'χλωριούχος σίδηρος(II)', 'number'], ['AgCl', 'χλωριούχο άργυρος', 'wrong'], ['NaCl', ' ', 'empty'],
  ['ZnSO4', 'θειϊκός ψευδάργυρος', 'right'], ['NaCl', 'χλωριούχο νάτριο(I)', 'wrong'],
]);
table('formulas are compared', (formula, typed) => checkFormula(named(formula), typed), [
  ['Ca(OH)2', 'Ca(OH)2', 'right'], ['Ca(OH)2', 'CaO2H2', 'order'], ['NaCl', 'ClNa', 'order'], ['CaCl2', 'CaCl', 'wrong'], ['Na2O', 'Νa₂Ο', 'right'], ['NaCl', 'NaCl^+', 'wrong'],
]);

test('no compound is asked twice running, and levels hold', () => {
  const first = pick(1, null, () => 0);
  assert.notEqual(pick(1, first, () => 0), first);
  assert.equal(pick(1, null, () => 0.9999).level, 1);
  assert.equal(pick(3, null, () => 0.9999).formula, 'NH3');
});

table('the reason is told', formula => reason(named(formula)), [
  ['Fe2(SO4)3', 'Για να είναι το συνολικό φορτίο μηδέν, χρειάζονται 2 Fe³⁺ και 3 SO₄²⁻. Ο αριθμός στην παρένθεση είναι ο αριθμός οξείδωσης του μετάλλου (Fe): +3.'],
  ['NaCl', 'Για να είναι το συνολικό φορτίο μηδέν, χρειάζονται ένα Na⁺ και ένα Cl⁻.'], ['SO2', ''],
]);
