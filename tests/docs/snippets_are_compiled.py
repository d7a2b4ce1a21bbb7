#!/usr/bin/env python3
"""snippets_are_compiled.py PAGE SOURCE...: does every C++ snippet of the page stand in one of the sources, which are
compiled?

White space does not count. Prints each snippet that the sources lack; the exit status is 1 then, or when the page has
none.
"""
import pathlib
import re
import sys


def plain(text):
    """The text without white space."""
    return "".join(text.split())


def main():
    page, *sources = (pathlib.Path(name).read_text(encoding="utf-8") for name in sys.argv[1:])
    snippets = re.findall(r"```cpp\n(.*?)```", page, re.DOTALL)
    missing = [each for each in snippets if not any(plain(each) in plain(source) for source in sources)]
    for snippet in missing:
        print(f"{' '.join(sys.argv[2:])} has not\n{snippet}")
    return 1 if missing or not snippets else 0


if __name__ == "__main__":
    sys.exit(main())
