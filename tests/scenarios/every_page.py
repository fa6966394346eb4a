"""Shows every page of a content folder and looks for faults: every_page.py DRIVER CONTENT [NUMBER…]. Faults are messages
of a page's scripts, files that a page asks for in vain, refused requests, message boxes, and pages that are not there or
that no page leads to. Exit status: 0 when there is none, 1 when there are some, 2 for wrong arguments."""

import json
import re
import subprocess
import sys
import threading
from pathlib import Path

from desktop import Desktop
from machine import Machine

# What the program logs of pages; all else on its standard error is of the machine.
FAULT = re.compile(r"platform\.browser\S*: |Not found: |Refused: |\.htm:\d+: |\.js:\d+: ")
# To these the section bar leads.
START_PAGES = (170070, 290000, 320000, 370001, 400000, 410000, 450000)
LINK = re.compile(rb'"kzpage-\d-(\d+)-(\d+)\.htm"')


def number_of(path):
    """The number of the page in a file of the data folder; nothing for other files."""
    parts = path.parts
    if len(parts) == 3:  # those of some lists lie in folders by their last digit
        parts = parts[0], parts[2], parts[1]
    digits = "".join(parts)
    return int(digits) if digits.isdigit() else None


def pages_of(content):
    """The numbers of the pages that there are, and the places of those that pages lead to."""
    numbers, places = set(), {page: (page, 0) for page in START_PAGES}
    for file in content.rglob("*"):
        number = number_of(file.relative_to(content))
        if file.is_file() and number is not None:
            numbers.add(number)
            for topic, entry in LINK.findall(file.read_bytes()):
                places[int(entry) or int(topic)] = int(topic), int(entry)
    return numbers, places


class Program:
    """The program, which shows page after page."""

    def __init__(self, driver, content):
        self.machine = Machine(driver, content)
        self.machine.environment["QT_LOGGING_RULES"] = "platform.browser*=true"
        self.machine.environment["QT_MESSAGE_PATTERN"] = "%{category}: %{message}"
        self.machine.make()
        self.faults, self.page = 0, "start"
        self.driver = Desktop(self.machine, stderr=subprocess.PIPE)
        self.listener = threading.Thread(target=self.listen)
        self.listener.start()

    def listen(self):
        for line in self.driver.process.stderr:
            if FAULT.search(line):
                self.fault(line.strip())

    def fault(self, what):
        self.faults += 1
        print(f"{self.page}: {what}", flush=True)

    def ask(self, line):
        """The answer to a command; a fault and nothing when there is none."""
        try:
            answer = json.loads(self.driver.ask(line) or "{}")
        except json.JSONDecodeError:
            answer = {}
        if not answer.get("ok"):
            self.fault(f"{line}: {answer.get('error', 'no answer')}")
        return answer

    def show(self, topic, entry):
        self.page = str(entry or topic)
        self.ask(f"control 1035 ShowItem {topic} {entry} true")
        page, state, trace = self.ask("page"), self.ask("state"), self.ask("trace")
        place = state.get("itemCode") if entry else state.get("pageId")
        if place != (entry or topic) or not page.get("title") or not page.get("text"):
            self.fault("is not shown")
        for event in trace.get("trace", []):
            if "box" in event or "refused" in event:
                self.fault(json.dumps(event, ensure_ascii=False))

    def end(self):
        status = self.driver.end()
        self.listener.join()
        self.page = "end"
        if status != 0:
            self.fault(f"the program ended with {status}")
        self.machine.remove()


def main(arguments):
    if len(arguments) < 2:
        print(__doc__, file=sys.stderr)
        return 2
    driver, content = Path(arguments[0]).resolve(), Path(arguments[1])
    numbers, places = pages_of(content)
    program = Program(driver, content)
    for number in sorted(numbers | set(places)):
        if number not in places or number not in numbers:
            program.page = str(number)
            program.fault("no page leads there" if number in numbers else "does not exist")
    program.page = "start"
    program.ask("start")
    program.ask("command 32775")
    program.ask("trace")
    chosen = {int(number) for number in arguments[2:]} or numbers
    shown = sorted(chosen & set(places))
    for number in shown:
        program.show(*places[number])
    program.end()
    print(f"{len(shown)} pages shown, {program.faults} faults")
    return 1 if program.faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
