"""Validates what `lagomare check --format json` writes against the published schema.

usage: check_schema_test.py LAGOMARE SCHEMA EXAMPLES
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


def checked(folder, dialect, change, exit_code):
    database = pathlib.Path(folder, f"{dialect}-{exit_code}.db")
    connection = sqlite3.connect(database)
    text = pathlib.Path(examples, f"sao-francisco-{dialect}.sql").read_text(encoding="utf-8")
    connection.executescript(text + change)
    connection.close()
    ending = subprocess.run([lagomare, "check", "--format", "json", database], stdout=subprocess.PIPE)
    assert ending.returncode == exit_code, ending
    return json.loads(ending.stdout)


def refuse(document, change):
    spoiled = copy.deepcopy(document)
    change(spoiled)
    assert not validator.is_valid(spoiled), "the schema lets this pass"


with tempfile.TemporaryDirectory() as folder:
    sound = checked(folder, "2013", "", 0)
    faulty = checked(folder, "2010", "create table Other (a, b); drop table Res; delete from Vazao where rowid = 5;"
                     "update Links set NoIni = ''; update ResEvap set Evap = x'ff' where rowid = 9;", 1)
    for document in (sound, faulty):
        validator.validate(document)
        counts = {severity: sum(fault["severity"] == severity for fault in document["faults"])
                  for severity in ("error", "warning", "note")}
        assert list(counts.values()) == [document["errors"], document["warnings"], document["notes"]], counts
    fault = next(fault for fault in faulty["faults"] if fault.get("table") == "ResEvap")
    assert [fault[name] for name in ("code", "row", "rows", "id", "element", "column", "value")] == [
        "not-a-number", 9, 1, 1, "Três Marias", "Evap", "FF"], fault
    assert {"table": "Other", "columns": None} in faulty["notRead"], faulty["notRead"]
    assert [(entry["table"], *entry["columns"]) for entry in sound["notRead"]] == [
        ("LgmVazNat", "Data"), ("Tk_Lnk_FEA", "Cmin"), ("LgmDemDemSC", "Data"), ("LgmResEvap", "Mes"),
        ("LgmResVmetaSC", "Data")], sound["notRead"]
    assert sound["project"].endswith(".db"), sound["project"]
    refuse(sound, lambda document: document.pop("tables"))
    refuse(sound, lambda document: document.update(more=1))
    refuse(faulty, lambda document: document["faults"][0].pop("remedy"))
    refuse(faulty, lambda document: document["faults"][0].update(row=0, rows=1))
    refuse(faulty, lambda document: document["notRead"][0].update(columns=[]))
