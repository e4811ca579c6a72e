"""Validates the traces of scripts, and the journals of the receipts that they leave:
validate_traces.py TILL SCHEMA SCRIPT..."""

import copy
import json
import subprocess
import sys
import tempfile

from jsonschema import Draft202012Validator


def trace_of(till, script):
    played = subprocess.run([till, "--trace", "-", "play", script], check=True,
                            stdout=subprocess.PIPE)
    return [json.loads(line) for line in played.stdout.splitlines()]


def journal_of(till, script):
    with tempfile.TemporaryDirectory() as folder:
        database = f"{folder}/till.sqlite"
        subprocess.run([till, "--db", database, "--quiet", "play", script], check=True,
                       stdout=subprocess.DEVNULL)
        told = subprocess.run([till, "--db", database, "journal", "1", "--json"], check=True,
                              stdout=subprocess.PIPE)
        return [json.loads(line) for line in told.stdout.splitlines()]


def spoilt(note):
    """The note with each field left out, and with one that no note has."""
    for field in note:
        yield {key: value for key, value in note.items() if key != field}
    yield {**copy.deepcopy(note), "surprise": 1}


def main():
    till, schema_path, *scripts = sys.argv[1:]
    with open(schema_path, encoding="utf-8") as file:
        schema = json.load(file)
    Draft202012Validator.check_schema(schema)
    validator = Draft202012Validator(schema)
    kinds = {}
    for script in scripts:
        for note in trace_of(till, script):
            kinds.setdefault(note["kind"], note)
            for error in validator.iter_errors(note):
                sys.exit(f"{script}: line {note['line']}: {error.message}")
        journal = journal_of(till, script)
        for number, note in enumerate(journal, 1):
            for error in validator.iter_errors(note):
                sys.exit(f"{script}: line {number} of its journal: {error.message}")
        if [note["line"] for note in journal] != list(range(1, len(journal) + 1)):
            sys.exit(f"{script}: lines of its journal are not numbered")
    # A schema that takes everything would say nothing.
    optional = {("event", "position"), ("outcome", "by"), ("action", "count")}
    for kind, note in kinds.items():
        for other in spoilt(note):
            missing = set(note) - set(other)
            if kind != "action" and not any((kind, field) in optional for field in missing) \
                    and validator.is_valid(other):
                sys.exit(f"taken without fault: {other}")
    known = {definition["properties"]["kind"]["const"] for definition in schema["oneOf"]}
    if missing := known - set(kinds):
        sys.exit(f"no script tells {missing}")


main()
