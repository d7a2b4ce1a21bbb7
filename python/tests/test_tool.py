"""The package as a command."""

import os
import subprocess
import sys
from pathlib import Path

import varorobotmodel


def run(*arguments, path):
    environment = {**os.environ, "PATH": path}
    command = [sys.executable, "-m", "varorobotmodel", *arguments]
    return subprocess.run(command, capture_output=True, text=True, env=environment, check=False)


def test_the_package_is_the_tool(tool, robots, tmp_path):
    folder = os.path.dirname(tool)
    version = subprocess.run([tool, "--version"], capture_output=True, text=True, check=True).stdout
    assert run("--version", path=folder).stdout == version
    bad = run("check", tmp_path / "none.xml", path=folder)
    assert (bad.returncode, "none.xml" in bad.stderr) == (1, True)
    elsewhere = run("--version", path=str(tmp_path))
    if (Path(varorobotmodel.__file__).parent / "bin").exists():
        assert elsewhere.stdout == version
    else:
        assert (elsewhere.returncode, elsewhere.stdout) == (2, "") and "varo-robot is not found" in elsewhere.stderr
