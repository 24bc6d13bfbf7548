"""Runs the recipes of docs/recipes.md on the outputs of an example, and compares what they print with what stands there.

usage: recipes_test.py LAGOMARE RECIPES EXAMPLE.sql
"""

import os
import pathlib
import re
import shutil
import sqlite3
import subprocess
import sys
import tempfile

os.environ["LC_ALL"] = "C.UTF-8"
INTERPRETERS = {"python": [sys.executable, "-c"], "r": ["Rscript", "-e"], "sh": ["bash", "-euo", "pipefail", "-c"]}


def missing(language, code):
    """The program or library that a recipe needs and this machine lacks, or nothing."""
    if language == "sh":
        return next((word for word in re.findall(r"^\w+", code, re.M) if not shutil.which(word)), None)
    if not shutil.which(INTERPRETERS[language][0]):
        return INTERPRETERS[language][0]
    loads = {"python": ("import {}", r"^import (\w+)"), "r": ("library({})", r"^library\((\w+)\)")}[language]
    return next((name for name in re.findall(loads[1], code, re.M)
                 if subprocess.run(INTERPRETERS[language] + [loads[0].format(name)], capture_output=True).returncode), None)


lagomare, recipes, example = sys.argv[1:]
text = pathlib.Path(recipes).read_text(encoding="utf-8")
blocks = re.findall(r"```(\w+)\n([^`]*)```\n\n```text\n([^`]*)```", text)
assert len(blocks) == text.count("```text")
with tempfile.TemporaryDirectory() as folder:
    database = sqlite3.connect(pathlib.Path(folder, "basin.mdb"))
    database.executescript(pathlib.Path(example).read_text(encoding="utf-8"))
    database.close()
    call = re.search(r"^lagomare (import .*)$", text, re.M)[1].split()
    subprocess.run([lagomare, *call, "--quiet"], cwd=folder, check=True)
    for language, code, expected in blocks:
        lacking = missing(language, code)
        if lacking:
            print(f"{lacking} is not installed, so this recipe is not run:\n{code}")
            continue
        ending = subprocess.run(INTERPRETERS[language] + [code], cwd=folder, capture_output=True, text=True)
        assert ending.returncode == 0, code + ending.stderr
        assert ending.stdout.split() == expected.split(), f"{code}prints\n{ending.stdout}"
