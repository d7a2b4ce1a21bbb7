#!/usr/bin/env python3
"""complete_in_shell.py VARO_ROBOT SCRIPTS ROBOTS SHELL: does the completion of varo-robot work in that shell?

Types lines into an interactive bash, zsh or fish, in a folder with robots, presses the tabulator, and has the shell
itself print the words of what became of the line. SCRIPTS is the folder of the completion scripts. The exit status is 1
when a line is not completed as it should be, and 77 when the shell is not installed.
"""
import os
import pathlib
import pty
import shutil
import sys
import tempfile
import threading
import time

ODD_NAME = """it's $(touch hacked); a "name\""""
ODD = ('<robotDescription name="Odd"><root name="Base"/><sensor name="it\'s $(touch hacked); a &quot;name&quot;" '
       'parent="Base" type="bumper"/></robotDescription>')

# What is typed behind "varo-robot", the cursor at "|", and the words that the shell makes of it.
LINES = [
    ("lis|", "list"),
    ("help conv|", "help convert"),
    ("list chain| robots/minimal.xml", "list chains robots/minimal.xml"),
    ("list chains robots/min|", "list chains robots/minimal.xml"),
    ("list robots/minimal.xml chai|", "list robots/minimal.xml chains"),
    ("info --js|", "info --json"),
    ("check --format sa|", "check --format sarif"),
    ("check --format=sa|", "check --format=sarif"),
    ("check --rule empty-ch|", "check --rule empty-chain"),
    ("show robots/minimal.xml Nec|", "show robots/minimal.xml Neck"),
    ("show Nec| robots/minimal.xml", "show Neck robots/minimal.xml"),
    ("pose --posture Cr| robots/humanoid.xml", "pose --posture Crouch robots/humanoid.xml"),
    ("pose robots/minimal.xml --joint Tu|", "pose robots/minimal.xml --joint Turn="),
    ("pose robots/minimal.xml --joint=Tu|", "pose robots/minimal.xml --joint=Turn="),
    ("pose robots/minimal.xml --joint Turn=0.5 --relative-to Tur|",
     "pose robots/minimal.xml --joint Turn=0.5 --relative-to Turn"),
    ("show odd.xml it|", ["show", "odd.xml", ODD_NAME]),
]
SHELLS = {
    "bash": (["bash", "--norc", "--noprofile", "-i"], "source {}/varo-robot.bash"),
    "zsh": (["zsh", "-f", "-i"], "bindkey -e; autoload -U compinit; compinit -u -D; source {}/_varo-robot"),
    "fish": (["fish", "--no-config", "--private", "-i"],
             "set -g fish_autosuggestion_enabled 0; source {}/varo-robot.fish"),
}
PATIENCE = 30  # seconds
TO_BEGIN, TO_END, LEFT = "\x01", "\x05", "\x02"


class Shell:
    """An interactive one, in a folder of its own."""

    def __init__(self, arguments, folder, path):
        self.folder = folder
        process, self.terminal = pty.fork()
        if process == 0:
            os.chdir(folder)
            os.environ.update(HOME=str(folder), TERM="dumb", LC_ALL="C.UTF-8",
                              PATH=f"{path}:{os.environ['PATH']}")
            os.execvp(arguments[0], arguments)
        threading.Thread(target=self._drain, daemon=True).start()

    def _drain(self):
        try:
            while os.read(self.terminal, 4096):
                pass
        except OSError:
            pass  # the shell has ended

    def type(self, text):
        os.write(self.terminal, text.encode())

    def answer(self, text, name):
        """What the command line prints; None when it does not come to an end."""
        self.type(f"{text} > {name}.part; mv {name}.part {name}\n")
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if (self.folder / name).exists():
                return (self.folder / name).read_text()
            time.sleep(0.02)
        return None


def completed(shell, line, name):
    before, after = line.split("|")
    shell.type(f"varo-robot {before}{after}" + LEFT * len(after) + "\t" + TO_BEGIN + r"printf '%s\n' " + TO_END)
    words = shell.answer("", name)
    return None if words is None else words.splitlines()[1:]


def main():
    tool, scripts, robots, name = sys.argv[1:]
    arguments, setup = SHELLS[name]
    if shutil.which(arguments[0]) is None:
        print(f"{name} is not installed")
        return 77
    failures = 0
    with tempfile.TemporaryDirectory() as folder:
        place = pathlib.Path(folder)
        (place / "robots").symlink_to(pathlib.Path(robots).resolve())
        (place / "odd.xml").write_text(ODD)
        shell = Shell(arguments, place, pathlib.Path(tool).resolve().parent)
        shell.type(setup.format(pathlib.Path(scripts).resolve()) + "\n")
        if shell.answer("echo ready", "ready") is None:
            print(f"{name} does not start")
            return 1
        for number, (line, expected) in enumerate(LINES):
            if name == "fish" and "|" != line[-1]:
                continue  # it does not tell what stands behind the cursor
            words = completed(shell, line, f"answer{number}")
            wanted = expected.split() if isinstance(expected, str) else expected
            if words != wanted:
                failures += 1
                print(f"{line} became {words} instead of {wanted}")
        if (place / "hacked").exists():
            failures += 1
            print("a name was run as a command")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
