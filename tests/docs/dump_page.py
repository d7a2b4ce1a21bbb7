#!/usr/bin/env python3
"""dump_page.py PAGE SCHEMA: does the page list the keys of dump that the schema states, no less and no more?

Object by object; keys of objects within those stand anywhere on the page. What dump prints is as the schema says, another
test sees. Prints what is missing on either side; the exit status is 1 then.
"""
import json
import pathlib
import re
import sys


def keys_on(page):
    """The keys in the tables of the page, by the title above: those of the whole object first."""
    keys = {}
    for title, text in re.findall(r"^## (.*?)\n(.*?)(?=^## |\Z)", page, re.DOTALL | re.MULTILINE):
        keys["" if title == "The object" else title] = set(re.findall(r"^\| `(\w+)` \|", text, re.MULTILINE))
    return keys


def keys_of(schema):
    keys = {"": set(schema["properties"])}
    for name, value in schema["properties"].items():
        reference = value.get("items", {}).get("$ref", "")
        if reference:
            keys[name] = set(schema["definitions"][reference.rsplit("/", 1)[-1]]["properties"])
    return keys


def all_keys(value, within=()):
    """Those that the JSON value has at any depth: of a schema, the keys that it states."""
    for key, part in value.items() if isinstance(value, dict) else ():
        if within and within[-1] == "properties":
            yield key
        yield from all_keys(part, (*within, key))
    for part in value if isinstance(value, list) else ():
        yield from all_keys(part, within)


def main():
    page, schema = sys.argv[1:]
    stated = json.loads(pathlib.Path(schema).read_text(encoding="utf-8"))
    known = keys_of(stated)
    text = pathlib.Path(page).read_text(encoding="utf-8")
    written = keys_on(text)
    faults = []
    for name in sorted({*written, *known}):
        real = known.get(name, set())
        faults += [f"{name} {key} is not on the page" for key in sorted(real - written.get(name, set()))]
        faults += [f"{name} {key} is on the page alone" for key in sorted(written.get(name, set()) - real)]
    words = set(re.findall(r"`(\w+)`", text))
    faults += [f"{key} is not on the page" for key in sorted(set(all_keys(stated)) - words)]
    print("\n".join(faults), end="\n" if faults else "")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
