"""validate_json.py SCHEMA: says what in the JSON text on standard input breaks the schema; exit status 1 if anything.

A key that the schema does not state breaks it, too, in all objects that it states keys of.
"""
import json
import sys

import jsonschema


def closed(schema):
    """The schema, with no other keys than it states."""
    if isinstance(schema, list):
        return [closed(part) for part in schema]
    if not isinstance(schema, dict):
        return schema
    parts = {}
    for word, part in schema.items():
        has_names = word in ("properties", "definitions")
        parts[word] = {name: closed(value) for name, value in part.items()} if has_names else closed(part)
    return {"additionalProperties": False, **parts} if "properties" in schema else parts


with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
validator = jsonschema.validators.validator_for(schema)
validator.check_schema(schema)
errors = list(validator(closed(schema)).iter_errors(json.load(sys.stdin)))
for error in errors:
    print("/".join(str(step) for step in error.absolute_path), error.message)
sys.exit(1 if errors else 0)
