"""Validates what `lagomare import --json` writes against the published schema.

usage: scenario_schema_test.py LAGOMARE SCHEMA EXAMPLES
"""

import pathlib
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "support"))
from schema import SchemaTest  # noqa: E402

test = SchemaTest(*sys.argv[1:])


def exported(folder, dialect, change, exit_code):
    return test.output(folder, ("import", "--json", "-"), dialect, change, exit_code)


with tempfile.TemporaryDirectory() as folder:
    scenario = exported(folder, "2013", "", 0)
    refused = exported(folder, "2013", "update Tk_Gerais set TipoSimul = 1;", 3)
    exported(folder, "2010", "", 0)
    exported(folder, "2010", "delete from DefGerais;", 4)
    test.refuse(scenario, lambda document: document.pop("nodes"))
    test.refuse(scenario, lambda document: document.update(more=1))
    test.refuse(scenario, lambda document: document["nodes"][0].pop("reservoir"))
    test.refuse(scenario, lambda document: document["nodes"][0]["series"][0].update(begin="1999-01"))
    test.refuse(scenario, lambda document: document["links"][0].update(upstream=None))
    test.refuse(refused, lambda document: document.update(nodes=[]))
    test.refuse(refused, lambda document: document.update(status=3))
