"""Validates what `lagomare check --format json` writes against the published schema.

usage: check_schema_test.py LAGOMARE SCHEMA EXAMPLES
"""

import pathlib
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "support"))
from schema import SchemaTest  # noqa: E402

test = SchemaTest(*sys.argv[1:])


def checked(folder, dialect, change, exit_code):
    return test.output(folder, ("check", "--format", "json"), dialect, change, exit_code)


with tempfile.TemporaryDirectory() as folder:
    sound = checked(folder, "2013", "", 0)
    faulty = checked(folder, "2010", "create table Other (a, b); drop table Res; delete from Vazao where rowid = 5;"
                     "update Links set NoIni = ''; update ResEvap set Evap = x'ff' where rowid = 9;", 1)
    for document in (sound, faulty):
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
    test.refuse(sound, lambda document: document.pop("tables"))
    test.refuse(sound, lambda document: document.update(more=1))
    test.refuse(faulty, lambda document: document["faults"][0].pop("remedy"))
    test.refuse(faulty, lambda document: document["faults"][0].update(row=0, rows=1))
    test.refuse(faulty, lambda document: document["notRead"][0].update(columns=[]))
