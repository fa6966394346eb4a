// Inorganic compounds with their names, made of ions and of a list.

import { lcm } from '../shared/fraction.js';

// `noun` in the nominative, with its gender; `genitive` with its article. `number` is the oxidation number of those that have
// several; `aliases` are other names of the same element.
const CATIONS = [
  { formula: 'Li', charge: 1, noun: 'λίθιο', genitive: 'του λιθίου' },
  { formula: 'Na', charge: 1, noun: 'νάτριο', genitive: 'του νατρίου' },
  { formula: 'K', charge: 1, noun: 'κάλιο', genitive: 'του καλίου' },
  { formula: 'Mg', charge: 2, noun: 'μαγνήσιο', genitive: 'του μαγνησίου' },
  { formula: 'Ca', charge: 2, noun: 'ασβέστιο', genitive: 'του ασβεστίου' },
  { formula: 'Ba', charge: 2, noun: 'βάριο', genitive: 'του βαρίου' },
  {
    formula: 'Al',
    charge: 3,
    noun: 'αργίλιο',
    genitive: 'του αργιλίου',
    aliases: { noun: 'αλουμίνιο', genitive: 'του αλουμινίου' },
  },
  { formula: 'Zn', charge: 2, noun: 'ψευδάργυρος', genitive: 'του ψευδαργύρου', isMasculine: true },
  { formula: 'Ag', charge: 1, noun: 'άργυρος', genitive: 'του αργύρου', isMasculine: true },
  { formula: 'Fe', charge: 2, noun: 'σίδηρος', genitive: 'του σιδήρου', isMasculine: true, number: 'II' },
  { formula: 'Fe', charge: 3, noun: 'σίδηρος', genitive: 'του σιδήρου', isMasculine: true, number: 'III' },
  { formula: 'Cu', charge: 2, noun: 'χαλκός', genitive: 'του χαλκού', isMasculine: true, number: 'II' },
  { formula: 'Pb', charge: 2, noun: 'μόλυβδος', genitive: 'του μολύβδου', isMasculine: true, number: 'II' },
  { formula: 'NH4', charge: 1, noun: 'αμμώνιο', genitive: 'του αμμωνίου', isPolyatomic: true },
];

// `adjective` in its two genders, neuter first; or `noun`, which takes the genitive of the cation.
const ANIONS = [
  { formula: 'F', charge: 1, adjective: ['φθοριούχο', 'φθοριούχος'] },
  { formula: 'Cl', charge: 1, adjective: ['χλωριούχο', 'χλωριούχος'] },
  { formula: 'Br', charge: 1, adjective: ['βρωμιούχο', 'βρωμιούχος'] },
  { formula: 'I', charge: 1, adjective: ['ιωδιούχο', 'ιωδιούχος'] },
  { formula: 'S', charge: 2, adjective: ['θειούχο', 'θειούχος'] },
  { formula: 'O', charge: 2, noun: 'οξείδιο' },
  { formula: 'OH', charge: 1, noun: 'υδροξείδιο', isPolyatomic: true },
  { formula: 'NO3', charge: 1, adjective: ['νιτρικό', 'νιτρικός'], isPolyatomic: true },
  { formula: 'SO4', charge: 2, adjective: ['θειικό', 'θειικός'], isPolyatomic: true },
  { formula: 'CO3', charge: 2, adjective: ['ανθρακικό', 'ανθρακικός'], isPolyatomic: true },
  { formula: 'PO4', charge: 3, adjective: ['φωσφορικό', 'φωσφορικός'], isPolyatomic: true },
];

// Compounds that do not exist or cannot be kept in water and air.
const MISSING = new Set(['AgOH', 'NH4OH', '(NH4)2O', 'Al2(CO3)3', 'Fe2(CO3)3', 'FeI3', 'CuI2', 'Fe2S3', 'Al2S3']);

const MOLECULES = [
  ['HCl', 'υδροχλωρικό οξύ', 'υδροχλώριο'],
  ['HNO3', 'νιτρικό οξύ'],
  ['H2SO4', 'θειικό οξύ'],
  ['H2CO3', 'ανθρακικό οξύ'],
  ['H3PO4', 'φωσφορικό οξύ'],
  ['CO', 'μονοξείδιο του άνθρακα'],
  ['CO2', 'διοξείδιο του άνθρακα'],
  ['SO2', 'διοξείδιο του θείου'],
  ['SO3', 'τριοξείδιο του θείου'],
  ['NO2', 'διοξείδιο του αζώτου'],
  ['NH3', 'αμμωνία'],
].map(([formula, ...names]) => ({ formula, names, level: 3 }));

const times = ({ formula, isPolyatomic }, count) => {
  if (count === 1) return formula;
  return `${isPolyatomic ? `(${formula})` : formula}${count}`;
};

function namesOf(cation, anion) {
  const number = cation.number ? `(${cation.number})` : '';
  const made = ({ noun, genitive }) =>
    anion.noun
      ? `${anion.noun} ${genitive}${number}`
      : `${anion.adjective[cation.isMasculine ? 1 : 0]} ${noun}${number}`;
  return [made(cation), ...(cation.aliases ? [made(cation.aliases)] : [])];
}

function salt(cation, anion) {
  const charge = Number(lcm(BigInt(cation.charge), BigInt(anion.charge)));
  const counts = [charge / cation.charge, charge / anion.charge];
  return {
    formula: times(cation, counts[0]) + times(anion, counts[1]),
    names: namesOf(cation, anion),
    level: cation.isPolyatomic || anion.isPolyatomic ? 2 : 1,
    cation,
    anion,
    counts,
  };
}

// Of levels 1 (ions of one atom), 2 (ions of several atoms) and 3 (acids and molecules): { formula, names (the usual one
// first), level } and, for those of ions, { cation, anion, counts }.
export const COMPOUNDS = [
  ...CATIONS.flatMap(cation => ANIONS.map(anion => salt(cation, anion))).filter(({ formula }) => !MISSING.has(formula)),
  ...MOLECULES,
];
