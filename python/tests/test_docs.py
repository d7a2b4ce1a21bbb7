"""What the documentation shows happens."""

import doctest
import re
from pathlib import Path

import pytest

import varorobotmodel

ROOT = Path(__file__).resolve().parents[2]


def run(text, name):
    parser, failures = doctest.DocTestParser(), []
    runner = doctest.DocTestRunner(optionflags=doctest.ELLIPSIS | doctest.NORMALIZE_WHITESPACE)
    test = parser.get_doctest(text, {}, name, name, 0)
    assert test.examples
    runner.run(test, out=failures.append)
    assert not failures, "".join(failures)


@pytest.mark.parametrize("name", ["python.md", "errors.md"])
def test_every_snippet_of_the_document(monkeypatch, name):
    monkeypatch.chdir(ROOT)
    document = (ROOT / "docs" / name).read_text(encoding="utf-8")
    blocks = re.findall(r"^```python\n(.*?)^```$", document, re.DOTALL | re.MULTILINE)
    assert all(block.startswith(">>> ") for block in blocks)
    run("\n".join(blocks), name)


def test_the_snippet_of_the_package(monkeypatch):
    monkeypatch.chdir(ROOT / "robots")
    run(varorobotmodel.__doc__, "varorobotmodel")
