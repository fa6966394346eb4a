import { mistakes, table, tool } from './tables.mjs';

const { balance } = await tool('balance/logic.js');

table('equations are balanced with the smallest whole numbers', equation => balance(equation).coefficients.join(' '), [
  ['H2 + O2 -> H2O', '2 1 2'], ['C3H8+O2->CO2+H2O', '1 5 3 4'], ['Fe + O2 = Fe2O3', '4 3 2'], ['N2 + H2 <=> NH3', '1 3 2'],
  ['KMnO4 + HCl -> KCl + MnCl2 + Cl2 + H2O', '2 16 2 2 5 8'], ['HCl(aq) + NaOH(aq) → NaCl(aq) + H2O(l)', '1 1 1 1'],
  ['Cu + Ag^+ -> Cu^2+ + Ag', '1 2 1 2'], ['MnO4^- + Fe^2+ + H^+ -> Mn^2+ + Fe^3+ + H2O', '1 5 8 1 5 4'],
  ['Cr2O7^2- + H+ + e- -> Cr^3+ + H2O', '1 14 6 2 7'], ['Na+ + Cl- -> NaCl', '1 1 1'], ['OH- + H+ -> H2O', '1 1 1'],
  ['Na+(aq) + OH-(aq) -> NaOH(s)', '1 1 1'],
  ['CuSO4·5H2O -> CuSO4 + H2O', '1 1 5'], ['K4Fe(CN)6 + H2SO4 + H2O -> K2SO4 + FeSO4 + (NH4)2SO4 + CO', '1 6 6 2 1 3 6'],
  ['(NH4)2Cr2O7 -> N2 + Cr2O3 + H2O', '1 1 1 4'], ['C57H110O6 + O2 -> CO2 + H2O', '2 163 114 110'],
]);

table('the unknowns follow one from another', equation => {
  const { conditions, chain, factor } = balance(equation);
  return [conditions.map(c => `${c.symbol}: ${c.text}`).join('; '), chain.map(step => `${step.letter}=${step.value}`).join(' '), factor];
}, [
  ['Fe + O2 -> Fe2O3', ['Fe: α = 2γ; O: 2β = 3γ', 'γ=1 α=2 β=3/2', 2]],
  ['C3H8 + O2 -> CO2 + H2O', ['C: 3α = γ; H: 8α = 2δ; O: 2β = 2γ + δ', 'α=1 γ=3 δ=4 β=5', 1]],
  ['Cu + Ag^+ -> Cu^2+ + Ag', ['Cu: α = γ; Ag: β = δ; : β = 2γ', 'α=1 γ=1 β=2 δ=2', 1]],
  ['I2 + S2O3^2- -> I^- + S4O6^2-', ['I: 2α = γ; S: 2β = 4δ; O: 3β = 6δ; : \u22122β = \u2212γ \u2212 2δ', 'δ=1 β=2 γ=2 α=1', 1]],
]);

table('both sides are compared', equation => balance(equation).rows.map(row => [row.left, row.right].join('; ')), [
  ['N2 + H2 -> NH3', ['1 × 2 = 2; 2 × 1 = 2', '3 × 2 = 6; 2 × 3 = 6']],
  ['Cu + Ag+ -> Cu^2+ + Ag', ['1 × 1 = 1; 1 × 1 = 1', '2 × 1 = 2; 2 × 1 = 2', '2 × 1 = 2; 1 × 2 = 2']],
]);

table('coefficients that were typed are judged', equation => {
  const { verdict, givenRows } = balance(equation);
  return [verdict, givenRows.filter(row => !row.isEqual).map(row => `${row.symbol}: ${row.left}; ${row.right}`)];
}, [
  ['2H2 + O2 -> 2 H2O', ['right', []]], ['4 H2 + 2 O2 -> 4 H2O', ['multiple', []]],
  ['H2 + O2 -> 2H2O', ['wrong', ['H: 1 × 2 = 2; 2 × 2 = 4']]], ['H2 + Cl2 -> HCl', ['none', ['H: 1 × 2 = 2; 1 × 1 = 1', 'Cl: 1 × 2 = 2; 1 × 1 = 1']]],
]);

mistakes('what cannot be balanced is told', balance, [
  ['', 'Γράψε μια χημική εξίσωση'], ['H2 + O2', 'Βάλε ένα βέλος'], ['H2 -> O2 -> H2O', 'περισσότερα από ένα βέλη'],
  ['-> H2O', 'Λείπει ένας χημικός τύπος'], ['H2 + -> H2O', 'Λείπει ένας χημικός τύπος'], ['H2 + O2 -> ', 'Λείπει ένας χημικός τύπος'],
  ['0 H2 + O2 -> H2O', '«0» δεν μπορεί να είναι συντελεστής'],
  ['Fe + O2 -> FeS', 'Οξυγόνο (O) υπάρχει μόνο αριστερά'], ['H2 -> H2O', 'Οξυγόνο (O) υπάρχει μόνο δεξιά'],
  ['Zn -> Zn^2+', 'κανένας συνδυασμός'], ['NO2 -> N2O3', 'κανένας συνδυασμός'], ['H2 + O2 -> H2', 'υπάρχει δύο φορές'],
  ['H2O2 -> H2O + O2 + H2', 'περισσότερες από μία αντιδράσεις'], ['CO2 + H2O -> C6H12O6 + O2 + N2', 'Άζωτο (N) υπάρχει μόνο δεξιά'],
  ['H2O + H2 -> H2O2', 'λάθος πλευρά'], ['H2O -> H2O2 + H2 + N2', 'Άζωτο (N) υπάρχει μόνο δεξιά'], ['NaCl + H2O -> NaOH + HCl + Na2O', 'περισσότερες'], ['H2 + O2 -> H2o', 'Κανένα στοιχείο', 'o'],
]);
