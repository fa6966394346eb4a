'use strict';

// How elements are drawn, and how large they are. Radii in ångström: `ball` is for the ball-and-stick model only;
// `covalent` and `space` are common table values (Cordero et al. 2008; Bondi 1964, Mantina et al. 2009).
// The Greek names come as `elementNames` (element-names.js), made from the table of elements.

const elementLooks = new Map([
  ['H', '#f4f4f4', 0.26, 0.31, 1.10], ['He', '#c9f5f5', 0.30, 0.28, 1.40], ['Li', '#c886f5', 0.50, 1.28, 1.81],
  ['B', '#ffb5a8', 0.40, 0.84, 1.92], ['C', '#8c8f94', 0.38, 0.76, 1.70], ['N', '#3f5ff5', 0.37, 0.71, 1.55],
  ['O', '#ee2a1c', 0.36, 0.66, 1.52], ['F', '#8fdd55', 0.34, 0.57, 1.47], ['Ne', '#9fe0ee', 0.34, 0.58, 1.54],
  ['Na', '#a865ec', 0.56, 1.66, 2.27], ['Mg', '#84e01f', 0.54, 1.41, 1.73], ['Al', '#b9a8a8', 0.54, 1.21, 1.84],
  ['Si', '#e6c29a', 0.50, 1.11, 2.10], ['P', '#ff8a1a', 0.47, 1.07, 1.80], ['S', '#ffd12e', 0.46, 1.05, 1.80],
  ['Cl', '#2fd63a', 0.45, 1.02, 1.75], ['K', '#8a46cf', 0.62, 2.03, 2.75], ['Ca', '#4fc23a', 0.60, 1.76, 2.31],
  ['Mn', '#a07cc9', 0.54, 1.39, 2.00], ['Fe', '#dd6b35', 0.54, 1.32, 2.00], ['Co', '#e98aa2', 0.54, 1.26, 2.00],
  ['Ni', '#5fcf5f', 0.54, 1.24, 1.63], ['Cu', '#cc8238', 0.54, 1.32, 1.40], ['Zn', '#7f84b5', 0.54, 1.22, 1.39],
  ['Se', '#ffa12a', 0.48, 1.20, 1.90], ['Br', '#a8352a', 0.50, 1.20, 1.83], ['Ag', '#c3c6cc', 0.58, 1.45, 1.72],
  ['I', '#8e2aa8', 0.56, 1.39, 1.98], ['Pt', '#d0d0e0', 0.56, 1.36, 1.75], ['Au', '#f2c230', 0.56, 1.36, 1.66],
  ['Hg', '#b8b8d0', 0.56, 1.32, 1.55], ['Pb', '#6f7480', 0.58, 1.46, 2.02],
].map(([symbol, colour, ball, covalent, space]) => [symbol, { colour, ball, covalent, space }]));
const otherLook = { colour: '#d977d9', ball: 0.50, covalent: 1.50, space: 2.00 };
const lookOf = element => elementLooks.get(element) ?? otherLook;

/// "FE" or "fe" as the symbol is written; deuterium counts as hydrogen. Empty for what is no symbol.
function symbolOf(text) {
  const symbol = text.charAt(0).toUpperCase() + text.slice(1).toLowerCase();
  if (symbol === 'D' || symbol === 'T') return 'H';
  return Object.hasOwn(elementNames, symbol) ? symbol : '';
}

const nameOf = element => Object.hasOwn(elementNames, element) ? elementNames[element] : element;
