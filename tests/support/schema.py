"""What the tests of the published JSON Schemas share."""

import copy
import json
import pathlib
import sqlite3
import subprocess

import jsonschema


class SchemaTest:
    """Calls the program on changed examples and holds its outputs against a schema."""

    def __init__(self, lagomare, schema_file, examples):
        self.lagomare = lagomare
        self.examples = pathlib.Path(examples)
        schema = json.loads(pathlib.Path(schema_file).read_text(encoding="utf-8"))
        jsonschema.Draft202012Validator.check_schema(schema)
        self.validator = jsonschema.Draft202012Validator(schema)

    def output(self, folder, words, dialect, change, exit_code):
        """The JSON on standard output for the example of a dialect after a change in SQL."""
        database = pathlib.Path(folder, f"{dialect}-{exit_code}.db")
        connection = sqlite3.connect(database)
        connection.executescript((self.examples / f"sao-francisco-{dialect}.sql").read_text(encoding="utf-8") + change)
        connection.close()
        ending = subprocess.run([self.lagomare, *words, database], stdout=subprocess.PIPE)
        assert ending.returncode == exit_code, ending
        document = json.loads(ending.stdout)
        self.validator.validate(document)
        return document

    def refuse(self, document, change):
        """The schema must not let a spoiled document pass."""
        spoiled = copy.deepcopy(document)
        change(spoiled)
        assert not self.validator.is_valid(spoiled), "the schema lets this pass"
