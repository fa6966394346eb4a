import { table, tool } from './tables.mjs';

const { Score } = await tool('quiz/logic.js');

table('only first answers count', (questions, answers) => {
  const score = new Score(questions);
  for (const [question, isRight] of answers) score.answer(question, isRight);
  return [score.isComplete, score.found, score.summary];
}, [
  [2, [[0, true]], [false, 1, 'Βρήκες με την πρώτη 1 από τις 2 ερωτήσεις.']],
  [2, [[1, true], [0, false], [0, true]], [true, 1, 'Βρήκες με την πρώτη 1 από τις 2 ερωτήσεις.']],
  [2, [[1, true], [0, true]], [true, 2, 'Βρήκες και τις 2 ερωτήσεις με την πρώτη.']],
  [1, [[0, false], [0, true]], [true, 0, 'Απάντησες σε όλες, καμία όμως με την πρώτη. Διάβασε ξανά τις εξηγήσεις και ξαναδοκίμασε.']],
  [1, [[0, true]], [true, 1, 'Τη βρήκες με την πρώτη.']],
]);
