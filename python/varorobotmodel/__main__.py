"""The command-line tool: ``python3 -m varorobotmodel check robot.urdf`` is ``varo-robot check robot.urdf``."""

import os
import shutil
import sys
from pathlib import Path
from typing import Optional


def _find_tool() -> Optional[str]:
    """The tool that was installed with this package, or else the first one on the PATH."""
    beside = Path(__file__).parent / "bin" / "varo-robot"
    return str(beside) if os.access(beside, os.X_OK) else shutil.which("varo-robot")


def main() -> None:
    """Becomes the tool, which takes the arguments; ends with status 2 when there is none."""
    tool = _find_tool()
    if tool is None:
        print("varo-robot is not found: install it, or put its folder on the PATH.", file=sys.stderr)
        sys.exit(2)
    sys.stdout.flush()
    os.execv(tool, ["varo-robot", *sys.argv[1:]])


if __name__ == "__main__":
    main()
