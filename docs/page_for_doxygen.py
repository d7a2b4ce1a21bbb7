#!/usr/bin/env python3
"""page_for_doxygen.py PAGE: prints a page of Markdown as doxygen takes it.

In doxygen headings have names, and links lead to those, that readers of Markdown make up of what a heading says. Files
that are no pages stand in files/ beside the site.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent


def fragment_of(heading):
    """What a heading is called in links: its words in small letters, joined by hyphens."""
    return re.sub(r"[^\w\- ]", "", heading.strip().lower()).replace(" ", "-")


def name_of(page):
    """Of a page, after its file; that of the front page is doxygen's."""
    return "index" if page.stem == "README" else page.stem.lower()


def anchor(page, fragment):
    """Of a heading on a page; no two pages may have one name in doxygen."""
    return f"{name_of(page)}-{fragment}"


def translated_link(page, target):
    path, _, fragment = target.partition("#")
    if re.match(r"\w+:", target):
        return target
    place = (ROOT / page.parent / path).resolve().relative_to(ROOT) if path else page
    if place.suffix == ".md" and place.parent.name in ("", "docs"):
        return "#" + (anchor(place, fragment) if fragment else name_of(place))
    return target if place.suffix in (".png", ".svg") else f"files/{place}"


def translated(page, text):
    lines = []
    isCode = False
    depth = 1  # of the heading before, which doxygen wants the next one to be at most one below
    for line in text.splitlines():
        isCode ^= line.lstrip().startswith("```")
        if not isCode:
            line = re.sub(r"\]\(([^)\s]+)\)", lambda link: f"]({translated_link(page, link[1])})", line)
            line = re.sub(r"`(::[^`]*)`", r"<code>\\\1</code>", line)  # which would be a link
            if line.startswith("# ") and name_of(page) != "index":
                line += f" {{#{name_of(page)}}}"
            heading = re.match(r"(#{2,}) (.*)", line)
            if heading:
                depth = min(len(heading[1]), depth + 1)
                line = f"{'#' * depth} {heading[2]} {{#{anchor(page, fragment_of(heading[2]))}}}"
        lines.append(line)
    return "\n".join(lines)


if __name__ == "__main__":
    name = pathlib.Path(sys.argv[1]).resolve().relative_to(ROOT)
    print(translated(name, (ROOT / name).read_text(encoding="utf-8")))
