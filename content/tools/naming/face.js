import { parseFormula } from '../shared/formula.js';
import { field, formulaNodes, liveRegion, makeTools, part, row, select, show, textInput } from '../shared/parts.js';
import { checkFormula, checkName, pick, reason } from './logic.js';

const LEVELS = [
  ['1', 'Μονοατομικά ιόντα'],
  ['2', 'Και πολυατομικά ιόντα'],
  ['3', 'Και οξέα, οξείδια αμετάλλων'],
];
const DIRECTIONS = [
  ['formula', 'Από το όνομα στον τύπο'],
  ['name', 'Από τον τύπο στο όνομα'],
];

const VERDICTS = {
  right: '✓ Σωστά.',
  wrong: '✗ Όχι. Δοκίμασε ξανά.',
  empty: 'Γράψε πρώτα την απάντησή σου.',
  number: 'Σχεδόν. Έλεγξε τον αριθμό οξείδωσης στην παρένθεση.',
  order:
    'Τα άτομα είναι σωστά, ο τύπος όμως δεν γράφεται έτσι. Πρώτο γράφεται το κατιόν, και τα ιόντα με πολλά άτομα μένουν ενωμένα.',
};

const printed = formula => formulaNodes(parseFormula(formula).pieces);

// One box: a question, the reader's answer, and how many were right at the first try.
class Practice {
  constructor(box, level) {
    this.levels = select(LEVELS, level);
    this.directions = select(DIRECTIONS, 'formula');
    this.asked = part('p', { class: 'equation' });
    this.typed = textInput('', { class: 'formula' });
    this.answer = field('', this.typed);
    this.check = part('button', { type: 'submit' }, 'Έλεγξε');
    this.giveUp = part(
      'button',
      { type: 'button', class: 'quiet', click: () => this.showAnswer() },
      'Δείξε την απάντηση',
    );
    this.said = liveRegion();
    this.count = part('p', { class: 'note' });
    Object.assign(this, { compound: null, right: 0, all: 0 });
    this.fill(box);
    this.ask();
  }

  fill(box) {
    for (const choice of [this.levels, this.directions]) choice.addEventListener('change', () => this.ask());
    const submit = event => {
      event.preventDefault();
      this.isOver ? this.goOn() : show(this.said, this.typed, () => this.judge());
    };
    box.append(
      row(field('Τι θα εξασκήσεις;', this.directions), field('Ενώσεις', this.levels)),
      part(
        'form',
        { novalidate: true, submit },
        this.asked,
        this.answer,
        part('p', { class: 'buttons' }, this.check, this.giveUp),
      ),
      this.said,
      this.count,
    );
  }

  get asksFormula() {
    return this.directions.value === 'formula';
  }

  ask() {
    this.compound = pick(Number(this.levels.value), this.compound);
    this.asked.replaceChildren(...(this.asksFormula ? [this.compound.names[0]] : printed(this.compound.formula)));
    this.answer.querySelector('label').textContent = this.asksFormula ? 'Ποιος είναι ο τύπος;' : 'Ποιο είναι το όνομα;';
    this.typed.value = '';
    this.said.replaceChildren();
    this.wait(false);
    this.isFirstTry = true;
  }

  goOn() {
    this.ask();
    this.typed.focus();
  }

  // Between the end of a question and the next one.
  wait(isOver) {
    this.isOver = isOver;
    this.check.textContent = isOver ? 'Επόμενη' : 'Έλεγξε';
    this.giveUp.hidden = isOver;
  }

  // Only first tries count.
  note(isRight) {
    if (this.isFirstTry) [this.right, this.all] = [this.right + (isRight ? 1 : 0), this.all + 1];
    this.isFirstTry = false;
    this.count.textContent = `Σωστές με την πρώτη: ${this.right} από ${this.all}.`;
  }

  judge() {
    const verdict = this.asksFormula
      ? checkFormula(this.compound, this.typed.value)
      : checkName(this.compound, this.typed.value);
    const isRight = verdict === 'right';
    if (verdict !== 'empty') this.note(isRight);
    if (isRight) this.wait(true);
    return [
      part('p', { class: isRight ? 'right' : 'false' }, VERDICTS[verdict]),
      ...(isRight ? [this.solution()] : []),
    ];
  }

  showAnswer() {
    this.note(false);
    this.wait(true);
    show(this.said, this.typed, () => [this.solution()]);
    this.check.focus();
  }

  solution() {
    return part('p', {}, `${this.compound.names[0]}: `, printed(this.compound.formula), '. ', reason(this.compound));
  }
}

makeTools('naming', 'Εξασκήσου στην ονοματολογία', (box, { level = '2' }) => new Practice(box, level));
