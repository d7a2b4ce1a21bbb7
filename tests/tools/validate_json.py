"""validate_json.py SCHEMA: says what in the JSON text on standard input breaks the schema; exit status 1 if anything."""
import json
import sys

import jsonschema

with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
validator = jsonschema.validators.validator_for(schema)
validator.check_schema(schema)
errors = list(validator(schema).iter_errors(json.load(sys.stdin)))
for error in errors:
    print("/".join(str(step) for step in error.absolute_path), error.message)
sys.exit(1 if errors else 0)
