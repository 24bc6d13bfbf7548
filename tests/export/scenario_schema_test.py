"""Validates what `lagomare import --json` writes against the published schema.

usage: scenario_schema_test.py LAGOMARE SCHEMA EXAMPLES
"""

import copy
import json
import pathlib
import sqlite3
import subprocess
import sys
import tempfile

import jsonschema

lagomare, schema_file, examples = sys.argv[1:]
schema = json.loads(pathlib.Path(schema_file).read_text(encoding="utf-8"))
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)


def exported(folder, dialect, change, exit_code):
    database = pathlib.Path(folder, f"{dialect}-{exit_code}.db")
    connection = sqlite3.connect(database)
    text = pathlib.Path(examples, f"sao-francisco-{dialect}.sql").read_text(encoding="utf-8")
    connection.executescript(text + change)
    connection.close()
    ending = subprocess.run([lagomare, "import", "--json", "-", database], stdout=subprocess.PIPE)
    assert ending.returncode == exit_code, ending
    return json.loads(ending.stdout)


def refuse(document, change):
    spoiled = copy.deepcopy(document)
    change(spoiled)
    assert not validator.is_valid(spoiled), "the schema lets this pass"


with tempfile.TemporaryDirectory() as folder:
    scenario = exported(folder, "2013", "", 0)
    refused = exported(folder, "2013", "update Tk_Gerais set TipoSimul = 1;", 3)
    for document in (scenario, refused, exported(folder, "2010", "", 0),
                     exported(folder, "2010", "delete from DefGerais;", 4)):
        validator.validate(document)
    refuse(scenario, lambda document: document.pop("nodes"))
    refuse(scenario, lambda document: document.update(more=1))
    refuse(scenario, lambda document: document["nodes"][0].pop("reservoir"))
    refuse(scenario, lambda document: document["nodes"][0]["series"][0].update(begin="1999-01"))
    refuse(scenario, lambda document: document["links"][0].update(upstream=None))
    refuse(refused, lambda document: document.update(nodes=[]))
    refuse(refused, lambda document: document.update(status=3))
