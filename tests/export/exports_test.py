"""Compares what `lagomare import` writes with its JSON, value by value: CSV in both formats, GeoJSON, GeoPackage, workbook.

usage: exports_test.py LAGOMARE PROJECT…    each project a database, or SQL text that makes one
"""

import csv
import datetime
import importlib.util
import json
import pathlib
import shutil
import sqlite3
import struct
import subprocess
import sys
import tempfile

import openpyxl

# Numbers with 17 digits, one that is not finite, texts that spreadsheets take for something else, what CSV must quote, a
# node without a place.
ODD = """
update LgmResEvap set Valor = 9e999 where Mes = 3;
update LgmVazNat set Valor = Valor / 3.0 + 0.1;
update LgmResVmetaSC set Valor = 1e-7 / 3 where Data is null or rowid % 5 = 0;
update Tk_Pas_FEA set Coord_X = Coord_X + 1 / 3.0, Coord_Y = 0.1;
update Tk_Pas_FEA set Coord_X = 9e999 where NumPonto = 21;
update Tk_Res_FEA set VolIni = 0.1 + 0.2, Nome = case NumPonto when 1 then '=1+1' when 2 then '-x' else '12/3' end;
update Tk_Dem_FEA set Nome = case NumPonto when 11 then 'a;b,"c"' when 12 then ' e ' when 13 then '0123' else '' end;
"""

# More elements than a sheet has columns, and years before the first that a sheet's dates can be in.
MANY = """
update Tk_Gerais set DataHoraIni = '1899-07-01', Duracao = 1;
create temp table many as with recursive n(id) as (select 1000 union all select id + 1 from n limit 16400) select id from n;
insert into Tk_Pas_FEA select id, 'Foz ' || id, 500000, 8000000 from many;
insert into LgmVazNat select id, 1, id / 7.0 from many;
"""


def first_value(element, kind):
    return next((serie["values"][0] for serie in element["series"] if serie["kind"] == kind and serie["values"]), None)


def months(begin, count):
    year, month = int(begin[:4]), int(begin[5:7]) - 1
    return [f"{year + (month + n) // 12:04}-{(month + n) % 12 + 1:02}-01" for n in range(count)]


def all_series(document):
    """Element, series and state, in the order of the tables."""
    for element in document["nodes"] + document["links"]:
        for serie in element["series"]:
            yield element, serie, 0
        for state, entry in enumerate(element.get("settings", {}).get("states", []), 1):
            yield element, entry["series"], state


def tables_of(document):
    """The tables that the JSON amounts to: lists of rows, None where nothing is known."""
    def volumes(node):
        return [node.get("reservoir", {}).get(name) for name in ("initialVolume", "minimumVolume", "maximumVolume")]

    def identity(element):
        return [element["id"], element["kind"], element["kindName"], element["name"]]

    bounds = [None, *document["hydrologicalState"]["boundaries"], None]
    return {
        "nodes": [identity(node) + [node["x"], node["y"], node.get("settings", {}).get("priority")] + volumes(node)
                  for node in document["nodes"]],
        "links": [identity(link) + [link["upstream"], link["downstream"], link["bidirectional"],
                                    first_value(link, 42), first_value(link, 7)] for link in document["links"]],
        "series": [[element["id"], element["kind"], element["name"], serie["kind"], serie["name"], serie["unit"], state,
                    month, value]
                   for element, serie, state in all_series(document) if serie["values"]
                   for month, value in zip(months(serie["begin"], len(serie["values"])), serie["values"])],
        "curves": [[node["id"], number, *point] for node in document["nodes"]
                   for number, point in enumerate(node.get("reservoir", {}).get("areaVolumeCurve", []), 1)],
        "states": [[state + 1, bounds[state], bounds[state + 1]]
                   for state in range(document["hydrologicalState"]["states"])],
        "scenario": [[document["scenario"][name] for name in ("name", "begin", "end")] + [document["dialect"], "23S"]],
    }


def same(found, expected, what):
    for number, pair in enumerate(zip(found, expected)):
        assert pair[0] == pair[1], f"{what}, {number}: {pair[0]} for {pair[1]}"
    assert len(found) == len(expected), f"{what}: {len(found)} for {len(expected)}"


def check_csv(folder, expected, separator, comma, encoding):
    """Reads each field as what the JSON has in its place, and the names in the heads as they are published."""
    def read(field, value):
        if value is None or isinstance(value, str):
            return field or None if value is None else field
        return {"true": True, "false": False}[field] if isinstance(value, bool) else float(field.replace(comma, "."))

    for name, file in {"nodes": "elements", "links": "links", "series": "series", "curves": "curves"}.items():
        with open(folder / f"{file}.csv", encoding=encoding, newline="") as text:
            head, *rows = csv.reader(text, delimiter=separator, strict=True)
        assert head == HEADS[name], head
        same([[read(*pair) for pair in zip(*rows)] for rows in zip(rows, expected[name])], expected[name], name)
        assert len(rows) == len(expected[name])


HEADS = {
    "nodes": "id kind kind_name name longitude latitude priority initial_volume_hm3 minimum_volume_hm3 "
             "maximum_volume_hm3".split(),
    "links": "id kind kind_name name upstream_id downstream_id bidirectional flow_limit_m3s loss_percent".split(),
    "series": "element_id element_kind element_name series_kind series_name unit state date value".split(),
    "curves": "reservoir_id point level_m area_km2 volume_hm3".split(),
    "states": "state lower_boundary upper_boundary".split(),
    "scenario": "name begin end dialect utm_zone".split(),
}


def line_of(blob):
    """The positions of a GeoPackage geometry, whose envelope must hold just them."""
    if blob is None:
        return []
    magic, version, flags, srs = struct.unpack_from("<2sBBi", blob)
    assert (magic, version, flags, srs) == (b"GP", 0, 3, 4674), blob
    west, east, south, north = struct.unpack_from("<4d", blob, 8)
    order, kind = struct.unpack_from("<BI", blob, 40)
    count, offset = {1: (1, 45), 2: (2, 49)}[kind]
    assert order == 1 and (kind == 1 or struct.unpack_from("<I", blob, 45) == (2,))
    line = list(struct.iter_unpack("<2d", blob[offset:]))
    assert len(line) == count
    assert [west, south, east, north] == [min(x for x, y in line), min(y for x, y in line),
                                          max(x for x, y in line), max(y for x, y in line)]
    return line


def check_geopackage(file, expected):
    places = {row[0]: [(row[4], row[5])] if None not in row[4:6] else [] for row in expected["nodes"]}
    lines = {"nodes": list(places.values()),
             "links": [places[row[4]] + places[row[5]] if places[row[4]] and places[row[5]] else []
                       for row in expected["links"]]}
    database = sqlite3.connect(file)
    assert database.execute("pragma application_id").fetchone() == (0x47504B47,)
    assert database.execute("pragma user_version").fetchone() == (10300,)
    assert database.execute("pragma integrity_check").fetchone() == ("ok",)
    assert database.execute("pragma foreign_key_check").fetchall() == []
    for name, rows in expected.items():
        is_layer = name in lines
        head = [column[1] for column in database.execute(f"pragma table_info({name})")]
        assert head == ["fid"] + ["geom"] * is_layer + HEADS[name], head
        found = database.execute(f"select * from {name} order by fid").fetchall()
        if is_layer:
            same([line_of(row[1]) for row in found], lines[name], "geometry of " + name)
        same([list(row[1 + is_layer:]) for row in found], rows, name)
        for column, (_, _, kind, *_) in enumerate(database.execute(f"pragma table_info({name})").fetchall()):
            types = {"DOUBLE": {float}, "INTEGER": {int}, "BOOLEAN": {int}, "TEXT": {str}, "DATE": {str}}
            assert {type(row[column]) for row in found} <= types.get(kind, {bytes, int}) | {type(None)}, (name, column)
        indexes = database.execute("select count(*) from sqlite_master where type = 'index' and tbl_name = ? and sql "
                                   "is not null", [name]).fetchone()
        assert indexes == (0 if name in ("states", "scenario") else 1,), name
    database.close()
    if not shutil.which("ogrinfo") or not importlib.util.find_spec("osgeo_utils"):
        print("gdal-bin and python3-gdal are not both installed: the GeoPackage is not opened with them")
        return
    subprocess.run([sys.executable, "-m", "osgeo_utils.samples.validate_gpkg", file], check=True)
    ending = subprocess.run(["ogrinfo", "-ro", "-so", "-al", file], capture_output=True, text=True)
    assert ending.returncode == 0 and ending.stderr == "", ending
    for part in ["Geometry: Point", "Geometry: Line String", 'ID["EPSG",4674]', "date: Date", "value: Real",
                 f"Feature Count: {len(expected['series'])}"]:
        assert part in ending.stdout, part


def check_geojson(file, document, expected):
    collection = json.loads(file.read_text(encoding="utf-8"))
    positions = []

    def position(node):
        if None in (node["x"], node["y"]):
            return None
        positions.append([round(node["x"], 7), round(node["y"], 7)])
        return positions[-1]

    def geometry(kind, coordinates):
        return None if None in coordinates else {"type": kind, "coordinates": coordinates}

    def mean(element, kind):
        values = next((serie["values"] for serie in element["series"] if serie["kind"] == kind), [])
        total = 0.0
        for value in values:  # sum() rounds otherwise since Python 3.12
            total += value
        return total / len(values) if values else None

    places = {node["id"]: position(node) for node in document["nodes"]}
    features = []
    for node, row in zip(document["nodes"], expected["nodes"]):
        point = places[node["id"]]
        features.append(("node", geometry("Point", point) if point else None, row[:4], dict(zip(
            ["priority", "initialVolume", "minimumVolume", "maximumVolume", "meanNaturalFlow", "meanDemand"],
            row[6:] + [mean(node, 2), mean(node, 5)]))))
    for link, row in zip(document["links"], expected["links"]):
        features.append(("link", geometry("LineString", [places[row[4]], places[row[5]]]), row[:4], dict(zip(
            ["upstream", "downstream", "bidirectional", "flowLimit", "lossPercent"], row[4:]))))
    same(collection["features"], [
        {"type": "Feature", "id": f"{kind}-{identity[0]}", "geometry": place,
         "properties": {**dict(zip(["id", "kind", "kindName", "name"], identity)),
                        **{name: value for name, value in more.items() if value is not None}}}
        for kind, place, identity, more in features], "features")
    for feature in collection["features"]:
        for name in {"initialVolume", "meanNaturalFlow", "meanDemand", "flowLimit", "lossPercent"} & set(
                feature["properties"]):
            assert isinstance(feature["properties"][name], float), feature
    x, y = zip(*positions)
    assert collection["bbox"] == [min(x), min(y), max(x), max(y)]


def cells(sheet):
    return [list(row) for row in sheet.iter_rows(values_only=True)]


def empty_as_none(row):
    return [None if value == "" else value for value in row]


def sheet_date(text):
    """Days that spreadsheet programs do not agree about are texts."""
    return text if text < "1900-03" else datetime.datetime.fromisoformat(text)


def check_wide_sheet(sheet, suffix, columns):
    series = [serie for _, serie in columns]
    fill = [None] * (len(columns) - 1)
    dates = [sheet_date(month) for month in months(series[0]["begin"], len(series[0]["values"]))]
    same(cells(sheet),
         [["series", series[0]["name"] + suffix] + fill, ["unit", series[0]["unit"]] + fill,
          ["id"] + [element["id"] for element, _ in columns],
          empty_as_none(["name"] + [element["name"] for element, _ in columns])]
         + [list(row) for row in zip(dates, *(serie["values"] for serie in series))], sheet.title)
    assert sheet.freeze_panes == "B5"


def check_workbook(file, document, expected):
    workbook = openpyxl.load_workbook(file)
    as_dates = [sheet_date(value) if 0 < at < 3 else value for at, value in enumerate(expected["scenario"][0])]
    same(cells(workbook["scenario"]),
         [[name, value, None] for name, value in zip(HEADS["scenario"], as_dates)] + [[None] * 3, HEADS["states"]]
         + expected["states"], "scenario")
    for name in ("nodes", "links", "curves"):
        same(cells(workbook[name]), [HEADS[name]] + [empty_as_none(row) for row in expected[name]], name)
        assert workbook[name].freeze_panes == "A2"
    names = {0: "precipitation", 1: "evaporation", 2: "natural flow", 3: "target volume", 5: "demand", 7: "loss",
             42: "flow limit"}
    wide = {}
    for element, serie, state in all_series(document):
        if serie["values"]:
            wide.setdefault((serie["kind"], state), []).append((element, serie))
    sheets = []
    for (kind, state), columns in sorted(wide.items(), key=lambda item: item[0]):
        suffix = f", state {state}" if state else ""
        for part, first in enumerate(range(0, len(columns), 16383), 1):
            sheets.append(names[kind] + suffix + (f" ({part})" if part > 1 else ""))
            check_wide_sheet(workbook[sheets[-1]], suffix, columns[first:first + 16383])
    assert workbook.sheetnames == ["scenario", "nodes", "links", "curves"] + sheets
    formulas = [cell for sheet in workbook for row in sheet.iter_rows() for cell in row if cell.data_type == "f"]
    assert formulas == [], formulas


def run(lagomare, project, *options):
    subprocess.run([lagomare, "import", "--quiet", "--no-check", project, *options], check=True)


def check_small(lagomare, project, folder, document, expected):
    run(lagomare, project, "--csv", folder / "csv", "--geojson", folder / "geojson", "--gpkg", folder / "out.gpkg")
    run(lagomare, project, "--csv", folder / "excel", "--csv-format", "excel-br")
    check_csv(folder / "csv", expected, ",", ".", "utf-8")
    assert (folder / "excel" / "links.csv").read_bytes().startswith(b"\xef\xbb\xbfid;")
    check_csv(folder / "excel", expected, ";", ",", "utf-8-sig")
    check_geojson(folder / "geojson", document, expected)
    check_geopackage(folder / "out.gpkg", expected)


def check(lagomare, project, folder):
    run(lagomare, project, "--json", folder / "json", "--xlsx", folder / "out.xlsx")
    document = json.loads((folder / "json").read_text(encoding="utf-8"))
    expected = tables_of(document)
    check_workbook(folder / "out.xlsx", document, expected)
    if len(document["nodes"]) < 1000:
        check_small(lagomare, project, folder, document, expected)
    print(project, "-", len(expected["series"]), "values of series")


with tempfile.TemporaryDirectory() as temporary:
    lagomare, *projects = sys.argv[1:]
    for number, project in enumerate(projects):
        for variant, change in enumerate(["", ODD, MANY] if project.endswith("2013.sql") else [""]):
            folder = pathlib.Path(temporary, f"{number}-{variant}")
            folder.mkdir()
            database = project
            if project.endswith(".sql"):
                database = folder / "project.db"
                connection = sqlite3.connect(database)
                connection.executescript(pathlib.Path(project).read_text(encoding="utf-8") + change)
                connection.close()
            check(lagomare, database, folder)
