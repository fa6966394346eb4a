import { liveRegion, makeTools, part } from '../shared/parts.js';
import { Score } from './logic.js';

let groups = 0;

// What the page says of an answer: { nodes, isRight, why }.
function readAnswer(item) {
  return {
    nodes: [...item.querySelector('.answer').childNodes],
    isRight: item.classList.contains('right'),
    why: item.querySelector('.why'),
  };
}

function choice(group, answer, index) {
  const button = part('input', { type: 'radio', name: group, value: String(index) });
  return part('p', { class: 'choice' }, part('label', {}, button, ' ', answer.nodes));
}

// `answered(isRight)` is told of each answer. The result has the form and a function that brings it back to its start.
function makeQuestion(source, number, answered) {
  const answers = [...source.querySelectorAll('li')].map(readAnswer);
  const explanation = source.querySelector('.explanation');
  const group = `quiz-${++groups}`;
  const said = liveRegion();
  const check = part('button', { type: 'submit' }, 'Έλεγξε');
  const asked = part('legend', {}, `${number}. `, [...source.querySelector('.asked').childNodes]);
  const choices = part(
    'fieldset',
    {},
    asked,
    answers.map((answer, i) => choice(group, answer, i)),
  );

  const tell = ({ isRight, why }) => {
    said.replaceChildren(
      part('p', { class: isRight ? 'right' : 'false' }, isRight ? '✓ Σωστά.' : '✗ Όχι. Δοκίμασε ξανά.'),
      ...(why ? [why] : []),
      ...(isRight && explanation ? [explanation] : []),
    );
    check.disabled = isRight;
    choices.disabled = isRight;
  };
  const submit = event => {
    event.preventDefault();
    const chosen = choices.querySelector('input:checked');
    if (!chosen) {
      said.replaceChildren(part('p', {}, 'Διάλεξε πρώτα μια απάντηση.'));
      return;
    }
    const answer = answers[Number(chosen.value)];
    tell(answer);
    answered(answer.isRight);
  };
  const reset = () => {
    said.replaceChildren();
    choices.disabled = check.disabled = false;
    for (const button of choices.querySelectorAll('input')) button.checked = false;
  };
  const node = part(
    'form',
    { class: 'question', novalidate: true, submit },
    choices,
    part('p', { class: 'buttons' }, check),
    said,
  );
  return { node, reset };
}

function build(box) {
  const sources = [...box.querySelectorAll('div.question')];
  const summary = liveRegion({ class: 'result summary' });
  let score = new Score(sources.length);
  const again = part(
    'button',
    {
      type: 'button',
      class: 'quiet',
      click: () => {
        score = new Score(sources.length);
        for (const question of questions) question.reset();
        summary.replaceChildren();
        questions[0].node.querySelector('input').focus();
      },
    },
    'Από την αρχή',
  );
  const questions = sources.map((source, i) =>
    makeQuestion(source, i + 1, isRight => {
      score.answer(i, isRight);
      if (score.isComplete)
        summary.replaceChildren(part('p', {}, score.summary), part('p', { class: 'buttons' }, again));
    }),
  );
  for (const [i, source] of sources.entries()) source.replaceWith(questions[i].node);
  box.append(summary);
}

makeTools('quiz', 'Έλεγξε τι έμαθες', build);
