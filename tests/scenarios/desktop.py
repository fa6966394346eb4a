"""The program on a machine, driven by commands from outside."""

import contextlib
import subprocess
import threading

PATIENCE = 60  # seconds for the answer to one command


class Desktop:
    """A driver process that carries out one command after another."""

    def __init__(self, machine, **options):
        command = [machine.driver, "--machine", machine.folder, *machine.arguments]
        self.process = subprocess.Popen(command, cwd=machine.folder, env=machine.environment, stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, encoding="utf-8", errors="replace", **options)

    def ask(self, line):
        """The answer to a line; empty when the driver ends or takes too long, which ends it."""
        limit = threading.Timer(PATIENCE, self.process.kill)
        limit.start()
        try:
            print(line, file=self.process.stdin, flush=True)
            return self.process.stdout.readline()
        except BrokenPipeError:
            return ""
        finally:
            limit.cancel()

    def end(self):
        """Ends the script; the driver's exit status."""
        with contextlib.suppress(BrokenPipeError):
            self.process.stdin.close()
        with self.process.stdout as answers:
            answers.read()
        return self.process.wait()
