"""Long use of the program: endure.py pages|actions|kills DRIVER CONTENT [--count N] [--seed N].
pages    opens N pages (2,000), all kinds in any order. What the program and the engine's processes hold at the end is compared
         with what they held after 200: memory, open files and threads, which may be a tenth more since the engine takes
         some as it likes, and processes; and the files in the cache with those that belong there.
actions  does N things at random (1,000), as a user who tries everything. Best with a driver under AddressSanitizer and UBSan.
kills    ends the program by force at N random moments (200) of such use, and looks each time at what the next start finds.
Each run prints its seed, with which it does the same again. Prints each fault; exit status: 0 without, 1 with any, 2 for wrong
arguments. `actions` leaves what it did in a file that tests/scenarios/run.py takes."""

import argparse
import json
import random
import re
import signal
import sys
import tempfile
import threading
from pathlib import Path

import processes
from user import User

ROOT = Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "tests/scenarios"))

from desktop import Desktop  # noqa: E402
from every_page import pages_of  # noqa: E402
from machine import Machine, merge_into_json  # noqa: E402

FAULT = re.compile(r"Sanitizer|runtime error:|the program died|ASSERT|terminate called")
KEPT_PAGES, NAMED_FILES = 20, {"redirect.htm", "bigvid.htm", "chime.mol"}
LONGEST_LIFE = 8  # seconds
PRINTER = {"horzres": 480, "vertres": 680, "logpixelsy": 60}


class Program:
    """The program on a machine of its own; it can be started again and again."""

    def __init__(self, arguments):
        self.machine = Machine(arguments.driver.resolve(), arguments.content)
        self.machine.environment = {**sanitizer_options(), **self.machine.environment}
        self.machine.make()
        merge_into_json(self.machine.folder / "machine.json", {"printer": PRINTER})
        self.seed, self.faults = arguments.seed, 0
        self.desktop, self.said, self.former_cache = None, None, set()

    def launch(self):
        self.former_cache = self.cache()
        self.said = tempfile.TemporaryFile("w+", encoding="utf-8", errors="replace")
        self.desktop = Desktop(self.machine, stderr=self.said)

    def start(self):
        self.launch()
        self.ask("start")

    def ask(self, line):
        """The answer to a command; nothing when the program has ended."""
        try:
            answer = json.loads(self.desktop.ask(line) or "{}")
        except json.JSONDecodeError:
            answer = {}
        if "come to rest" in answer.get("error", ""):
            self.fault(f"{line}: {answer['error']}")
        return answer

    def fault(self, what):
        self.faults += 1
        print(f"fault: {what}", flush=True)

    def ended(self):
        """Whether the user has ended it, or it has died."""
        state = self.ask("state")
        return not state or state.get("error") == "there is no main window"

    def close(self):
        """Ends the program as a user does; the bookmarks that it had."""
        while self.ask("dialog").get("ok"):
            self.ask("key Escape")
        bookmarks = self.ask("state").get("bookmarks")
        self.ask("close")
        if self.end() == 0:
            self.check_end()
        return bookmarks

    def check_end(self):
        """A good end leaves nothing of its own in the cache, and nowhere a file that was being written."""
        if left := self.cache() - self.former_cache:
            self.fault(f"in the cache: {left}")
        if halves := list(self.machine.folder.rglob("*.tmp")):
            self.fault(f"halves are left: {halves}")

    def end(self):
        """Waits until all processes have ended; the status of the program, after a look at what it has said."""
        status = self.desktop.end()
        if left := processes.wait_for_end(20):
            self.fault(f"{len(left)} processes are left")
        self.said.seek(0)
        said = self.said.read()
        self.said.close()
        if status not in (0, -signal.SIGKILL) or FAULT.search(said):
            self.fault(f"the program ended with {status}: {said}")
        return status

    def cache(self):
        return {file.name for file in (self.machine.folder / "c/Kalyxo/cache").glob("*")}

    def check_start(self, bookmarks):
        """What the program must find when it starts: its settings, one of these lists of bookmarks, a tidy folder. The
        bookmarks that it has found; nothing when it ended before."""
        self.ask("start")
        places, state, trace = self.ask("app"), self.ask("state"), self.ask("trace")
        if not trace:
            return None
        if places.get("dataFolder") != "D:\\" or places.get("bookmarkFile") != "C:\\Kalyxo\\bookmark.dat":
            self.fault(f"other settings: {places}")
        if bookmarks and state.get("bookmarks") not in bookmarks:
            self.fault(f"other bookmarks: {state.get('bookmarks')}, not {bookmarks}")
        for box in (event["box"] for event in trace["trace"] if "box" in event):
            self.fault(f"a message at the start: {box}")
        if halves := [name for name in self.cache() if name.endswith(".tmp")]:
            self.fault(f"in the cache: {halves}")
        return state.get("bookmarks")


def sanitizer_options():
    """The environment in which the suite runs under the sanitizers."""
    presets = json.loads((ROOT / "CMakePresets.json").read_text(encoding="utf-8"))["testPresets"]
    chosen = next(preset["environment"] for preset in presets if preset["name"] == "asan")
    return {name: value.replace("${sourceDir}", str(ROOT)) for name, value in chosen.items()}


def endure_pages(program, places, count):
    program.start()
    program.ask("command 32775")  # pages are on show from here on
    step = min(200, count // 2)
    held = []
    for number in range(1, count + 1):
        if (number - 1) % len(places) == 0:
            random.shuffle(places)
        topic, entry = places[(number - 1) % len(places)]
        program.ask(f"control 1035 ShowItem {topic} {entry} true")
        state = program.ask("state")
        if (state.get("itemCode") if entry else state.get("pageId")) != (entry or topic):
            program.fault(f"{entry or topic} is not shown")
        if number % step == 0:
            held.append(holdings(program))
            print(number, "pages:", held[-1], flush=True)
    # In a short run caches are still filling, and the engine collects only when it has enough of what pages leave behind.
    growth = 1.1 if count >= 2000 else 1.5
    for what, amount in held[-1].items():
        if amount > (first := held[0][what]) * (1 if what == "processes" else growth):
            program.fault(f"{what}: {first}, later {amount}")
    files = program.cache() - NAMED_FILES
    if len(files) > KEPT_PAGES or not all(re.fullmatch(r"\d+\.htm", file) for file in files):
        program.fault(f"in the cache: {sorted(files)}")
    program.close()


def holdings(program):
    """What the processes hold while the same page rests on the screen."""
    program.ask("command 32775")
    program.ask("trace")  # what the driver has noted until then is no memory of the program
    program.ask("wait 3000")
    everyone, driver = processes.descendants(), program.desktop.process.pid
    return {"KB of the program": processes.memory(driver),
            "KB of the engine": sum(processes.memory(one) for one in everyone if one != driver),
            "processes": len(everyone), "threads": processes.count(everyone, "task"),
            "open files": processes.count(everyone, "fd")}


def endure_actions(program, places, count):
    log = Path(tempfile.gettempdir()) / f"kalyxo-actions-{program.seed}.kys"
    with log.open("w", encoding="utf-8") as file:
        print(f"#! machine {json.dumps({'printer': PRINTER})}\nstart", file=file)

        def ask(line):
            print(line, file=file, flush=True)
            return program.ask(line)

        program.start()
        user = User(random, places, ask)
        for _ in range(count):
            if program.ended():
                print("#! restart\nstart", file=file)
                program.end()
                program.start()
            user.act()
    bookmarks = program.close()
    program.launch()
    program.check_start([bookmarks])
    program.close()
    print("what was done:", log)


def endure_kills(program, places, count):
    user = User(random, places, program.ask)
    bookmarks, left = [], count  # the lists that the next start may find
    while left > 0:
        program.launch()
        kill = threading.Timer(random.uniform(0, LONGEST_LIFE), program.desktop.process.kill)
        kill.start()
        found = program.check_start(bookmarks)
        if found is not None:
            bookmarks = [found]
        for _ in range(random.randrange(10)):
            user.act()
        last = program.ask("state").get("bookmarks")
        program.ask("close")
        if program.end() == 0:
            program.check_end()
            bookmarks = [last] if last else []
        else:
            left -= 1
            bookmarks += [last] if last else []
            if left % 20 == 0:
                print(count - left, "kills", flush=True)
        kill.cancel()
    program.launch()
    program.check_start(bookmarks)
    program.close()


def main():
    modes = {"pages": (endure_pages, 2000), "actions": (endure_actions, 1000), "kills": (endure_kills, 200)}
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("mode", choices=modes)
    parser.add_argument("driver", type=Path)
    parser.add_argument("content", type=Path)
    parser.add_argument("--count", type=int)
    parser.add_argument("--seed", type=int, default=random.SystemRandom().randrange(10**6))
    arguments = parser.parse_args()
    print("seed", arguments.seed, flush=True)
    random.seed(arguments.seed)
    processes.adopt_orphans()
    program = Program(arguments)
    endure, usual = modes[arguments.mode]
    endure(program, sorted(pages_of(arguments.content)[1].values()), arguments.count or usual)
    program.machine.remove()
    print(f"{arguments.count or usual} {arguments.mode}, {program.faults} faults")
    return 1 if program.faults else 0


if __name__ == "__main__":
    sys.exit(main())
