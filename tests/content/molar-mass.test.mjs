import { mistakes, table, tool } from './tables.mjs';

const { molarMass } = await tool('molar-mass/logic.js');

table('the mass has the decimals of the least exact term', formula => molarMass(formula).massText, [
  ['H2O', '18,015'], ['NaCl', '58,44'], ['H2SO4', '98,07'], ['CuSO4·5H2O', '249,68'], ['C12H22O11', '342,297'], ['PbO2', '239,2'],
  ['SO4^2-', '96,06'], ['TcO4', '160,996'], ['Og', '294'],
]);
table('exercises give atomic masses with one decimal', formula => molarMass(formula, true).massText, [
  ['H2O', '18,0'], ['NaCl', '58,5'], ['MgCl2', '95,3'], ['CaCO3', '100,1'], ['C12H22O11', '342,0'], ['PbO2', '239,2'], ['TcO4', '161,0'],
]);
table('shares of the mass', formula => molarMass(formula).rows.map(row => [row.symbol, row.count, row.totalText, row.percent]), [
  ['H2O', [['H', 2, '2,016', '11,2'], ['O', 1, '15,999', '88,8']]],
  ['Fe2O3', [['Fe', 2, '111,690', '69,9'], ['O', 3, '47,997', '30,1']]],
]);
mistakes('what has no mass of its own is told', formula => molarMass(formula), [['e-', 'ηλεκτρόνιο'], ['', 'Γράψε']]);
