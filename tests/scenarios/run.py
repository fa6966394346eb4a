"""Runs one scenario: run.py DRIVER CONTENT SCENARIO. Exit status: 0 when every check holds, 1 when one fails, 2 for
wrong arguments."""

import json
import sys
from pathlib import Path

from desktop import Desktop
from form import parse_scenario, with_values
from fragment import difference, find_somewhere
from machine import Machine, Problem, demand


class Broken(Problem):
    """A problem after which the scenario cannot go on."""


class Run:
    """Carries a scenario out and reports each check that fails."""

    def __init__(self, driver, content, name):
        self.name = name
        self.machine = Machine(driver, content)
        self.driver = None
        self.answer = {}
        self.unchecked = None  # the line of the last command, unless an expectation has looked at its success
        self.captures = {}
        self.failed = False

    def run(self, steps, mistakes):
        """Runs the scenario; true when every check held."""
        for mistake in mistakes:
            self.fail(mistake)
        try:
            for step in steps:
                self.perform(step)
            self.finish_command()
            self.end_driver("end")
        except Broken as problem:
            self.fail(problem)
        finally:
            if self.driver:
                self.driver.process.kill()
                self.driver.end()
            self.machine.remove()
        return not self.failed

    def perform(self, step):
        try:
            getattr(self, step.kind)(step)
        except Broken as problem:
            raise Broken(f"{step.where}: {problem}") from problem
        except Problem as problem:
            self.fail(f"{step.where}: {problem}")

    def fail(self, message):
        print(f"{self.name}:{message}", flush=True)
        self.failed = True

    def change(self, step):
        self.finish_command()
        if step.what == "restart":
            return self.end_driver(step.where)
        demand(self.driver is None or step.what == "copy", "the machine cannot be changed while the program runs")
        try:
            self.machine.change(step.what, step.words, step.value)
        except (Problem, OSError, TypeError) as problem:
            raise Broken(problem) from problem

    def command(self, step):
        self.finish_command()
        if self.driver is None:
            self.start_driver()
        line = self.driver.ask(with_values(step.what, self.captures))
        try:
            self.answer = json.loads(line)
        except json.JSONDecodeError:
            raise Broken(f"no JSON: {line}" if line else "no answer") from None
        self.unchecked = step.where

    def finish_command(self):
        """Fails when the last command failed, unless an expectation has looked at `ok`."""
        where, self.unchecked = self.unchecked, None
        if where is not None and not self.answer.get("ok"):
            self.fail(f"{where}: not carried out: {self.answer}")

    def expectation(self, step):
        if step.what:
            self.command(step)
        if "ok" in step.value:
            self.unchecked = None
        kind = step.words[0]
        if kind is None:
            found = difference(self.answer, step.value)
            return demand(found is None, found)
        there = find_somewhere(self.answer, step.value) is not None
        demand(there == (kind == "somewhere"),
               f"there is {'' if there else 'no '}{step.value} in {self.answer}")

    def capture(self, step):
        found = find_somewhere(self.answer, step.value) or {}
        if step.words[0] not in found:
            raise Broken(f"no {step.words[0]} of {step.value} in {self.answer}")
        value = found[step.words[0]]
        self.captures[step.what] = value if isinstance(value, str) else json.dumps(value)

    def check(self, step):
        if step.what.endswith("loaded"):
            loaded = self.driver is not None and self.has_loaded(step.words[0])
            return demand(loaded == (step.what == "loaded"), f"{step.words[0]} is {'' if loaded else 'not '}loaded")
        self.machine.check(step.what, step.words[0], step.value)

    def has_loaded(self, library):
        return f"/{library}" in Path(f"/proc/{self.driver.process.pid}/maps").read_text(encoding="utf-8")

    def start_driver(self):
        try:
            self.machine.make()
        except Problem as problem:
            raise Broken(problem) from problem
        self.driver = Desktop(self.machine)

    def end_driver(self, where):
        driver, self.driver = self.driver, None
        if driver is None:
            return
        if (status := driver.end()) != 0:
            self.fail(f"{where}: the driver ended with {status}")


def main(arguments):
    if len(arguments) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    driver, content, scenario = map(Path, arguments)
    try:
        text = scenario.read_text(encoding="utf-8")
    except OSError as problem:
        print(problem, file=sys.stderr)
        return 2
    return 0 if Run(driver.resolve(), content, scenario.name).run(*parse_scenario(text)) else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
