#!/usr/bin/env python3
"""Holds the schemas against what they describe: the examples and sessions are valid, what lint calls
unknown, misspelt, of a wrong kind or missing is not, and what is right beside it is. Prints each
document that is judged otherwise and ends with 1 then."""

import json
import sys
from pathlib import Path

from jsonschema import Draft202012Validator

ROOT = Path(__file__).resolve().parents[2]
FIXTURES = ROOT / "tests/rulesctl/lint"
CODES = ["unknown-key", "unknown-value", "wrong-kind", "missing-member"]
# What is right there is said elsewhere in the template: the kind of a default by its control's type.
BEYOND_SCHEMAS = {"wrong-kind/default-of-type.json"}
# What a player refuses to do, and a schema too.
WRONG_STEPS = [{}, {"do": "prss"}, {"do": "press"}, {"do": "press", "at": [1]},
               {"do": "wait"}, {"do": "expect"}, {"do": "expect", "value": 1, "box": None},
               {"do": "set", "scene": "rule", "key": "a", "value": 1},
               {"do": "key", "keys": "A", "times": 0}, {"do": "load", "tempalte": "F"}]


def validator(name):
    schema = json.loads((ROOT / "schema" / name).read_text(encoding="utf-8"))
    Draft202012Validator.check_schema(schema)
    return Draft202012Validator(schema)


def documents(pattern):
    for path in sorted(ROOT.glob(pattern)):
        yield path.relative_to(ROOT), json.loads(path.read_text(encoding="utf-8"))


def steps(pattern):
    for path in sorted(ROOT.glob(pattern)):
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            if line.strip():
                yield f"{path.relative_to(ROOT)}:{number}", json.loads(line)


def main():
    template, session = validator("template.schema.json"), validator("session.schema.json")
    right = list(documents("examples/*/template.json"))
    wrong = []
    for code in CODES:
        for path, document in documents(f"tests/rulesctl/lint/{code}/*.json"):
            if path.name.endswith(".twin.json"):
                right.append((path, document))
            elif f"{code}/{path.name}" not in BEYOND_SCHEMAS:
                wrong.append((path, document))
    played = list(steps("examples/*/*.jsonl")) + list(steps("docs/*.jsonl"))
    faults = [f"{path}: refused: {error.message}" for path, document in right
              for error in template.iter_errors(document)]
    faults += [f"{path}: accepted" for path, document in wrong if template.is_valid(document)]
    faults += [f"{path}: refused: {error.message}" for path, step in played
               for error in session.iter_errors(step)]
    faults += [f"{step}: accepted" for step in WRONG_STEPS if session.is_valid(step)]
    if not (len(right) > 20 and len(wrong) > 20 and len(played) > 100):
        faults.append("there is too little to judge")
    print("\n".join(faults) or f"{len(right)} and {len(wrong)} templates, {len(played)} steps")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
