import { parseFormula } from '../shared/formula.js';
import { field, formulaNodes, liveRegion, makeTools, part, select, show, textInput } from '../shared/parts.js';
import { checkFormula, checkName, pick, reason } from './logic.js';

const LEVELS = [['1', 'Μονοατομικά ιόντα'], ['2', 'Και πολυατομικά ιόντα'], ['3', 'Και οξέα, οξείδια αμετάλλων']];
const DIRECTIONS = [['formula', 'Από το όνομα στον τύπο'], ['name', 'Από τον τύπο στο όνομα']];

const VERDICTS = {
  right: '✓ Σωστά.', wrong: '✗ Όχι. Δοκίμασε ξανά.', empty: 'Γράψε πρώτα την απάντησή σου.',
  number: 'Σχεδόν! Έλεγξε τον αριθμό οξείδωσης στην παρένθεση.',
  order: 'Τα άτομα είναι σωστά, ο τύπος όμως δεν γράφεται έτσι. Πρώτο γράφεται το κατιόν, και τα ιόντα με πολλά άτομα μένουν ενωμένα.',
};

const printed = formula => formulaNodes(parseFormula(formula).pieces);

function build(box, { level = '2' }) {
  const levels = select(LEVELS, level);
  const directions = select(DIRECTIONS, 'formula');
  const asked = part('p', { class: 'equation' });
  const typed = textInput('', { class: 'formula' });
  const answerField = field('', typed);
  const check = part('button', { type: 'submit' }, 'Έλεγξε');
  const giveUp = part('button', { type: 'button', class: 'quiet' }, 'Δείξε την απάντηση');
  const said = liveRegion();
  const count = part('p', { class: 'note' });
  let compound = null;
  let isOver = false;
  let isFirst = true;
  const score = { right: 0, all: 0 };

  const asksFormula = () => directions.value === 'formula';
  const ask = () => {
    compound = pick(Number(levels.value), compound);
    [isOver, isFirst] = [false, true];
    asked.replaceChildren(...(asksFormula() ? [compound.names[0]] : printed(compound.formula)));
    answerField.querySelector('label').textContent = asksFormula() ? 'Ποιος είναι ο τύπος;' : 'Ποιο είναι το όνομα;';
    typed.value = '';
    said.replaceChildren();
    check.textContent = 'Έλεγξε';
    giveUp.hidden = false;
  };
  const end = isRight => {
    if (isFirst) Object.assign(score, { right: score.right + (isRight ? 1 : 0), all: score.all + 1 });
    [isOver, isFirst] = [true, false];
    check.textContent = 'Επόμενη';
    giveUp.hidden = true;
    count.textContent = `Σωστές με την πρώτη: ${score.right} από ${score.all}.`;
  };
  const solution = () => part('p', {}, `${compound.names[0]}: `, printed(compound.formula), '. ', reason(compound));
  const judge = () => {
    const verdict = asksFormula() ? checkFormula(compound, typed.value) : checkName(compound, typed.value);
    const isRight = verdict === 'right';
    if (isRight) end(true);
    else if (verdict !== 'empty' && isFirst) [isFirst, score.all] = [false, score.all + 1];
    return [part('p', { class: isRight ? 'right' : 'false' }, VERDICTS[verdict]), ...(isRight ? [solution()] : [])];
  };
  const submit = event => {
    event.preventDefault();
    if (!isOver) {
      show(said, typed, judge);
      return;
    }
    ask();
    typed.focus();
  };
  giveUp.addEventListener('click', () => {
    end(false);
    said.classList.remove('wrong');
    said.replaceChildren(solution());
    check.focus();
  });
  levels.addEventListener('change', ask);
  directions.addEventListener('change', ask);
  box.append(part('div', { class: 'row' }, field('Τι θα εξασκήσεις;', directions), field('Ενώσεις', levels)),
    part('form', { novalidate: true, submit }, asked, answerField, part('p', { class: 'buttons' }, check, giveUp)), said, count);
  ask();
}

makeTools('naming', 'Εξασκήσου στην ονοματολογία', build);
