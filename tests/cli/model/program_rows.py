"""Reads the rows of a run in each of the program's formats, as the model writes them: cell by cell,
all text.
"""
import csv
import io
import json
import re

from board_sockets import CONNECTABLE
from differences import Difference, compare_lists

HEADER = ["tick", *CONNECTABLE, "LED 1", "LED 2", "LED 3", "LED 4", "Zoemer klinkt", "Teller"]


def rows_of_csv(text):
    rows = list(csv.reader(io.StringIO(text, newline="")))
    if not rows or rows[0] != HEADER:
        raise Difference(f"csv: the columns are {rows[:1]} instead of {HEADER}")
    for row in rows:
        if len(row) != len(HEADER):
            raise Difference(f"csv: {len(row)} cells in {len(HEADER)} columns: {row}")
    return rows[1:]


def rows_of_json(text):
    rows = []
    for row in json.loads(text):
        if list(row) != HEADER:
            raise Difference(f"json: the members are {list(row)} instead of {HEADER}")
        rows.append(["" if cell is None else str(cell) for cell in row.values()])
    return rows


def rows_of_vcd(text):
    """One row for each point of time, with the cells that are not named carried over."""
    head, body = text.split("$enddefinitions $end\n")
    variables = [line.split() for line in head.split("\n") if line.startswith("$var ")]
    names = [re.sub("[^A-Za-z0-9]+", "_", name).strip("_") for name in HEADER[1:]]
    compare_lists("vcd: variables", [variable[4] for variable in variables], names)
    column = {variable[3]: number for number, variable in enumerate(variables, 1)}
    width = {variable[3]: int(variable[2]) for variable in variables}
    if len(column) != len(names):
        raise Difference("vcd: two variables have one letter")
    row = [""] * len(HEADER)
    rows = []
    for line in body.split("\n")[:-1]:
        if line.startswith("#"):
            row = [line[1:], *row[1:]]
            rows.append(row)
        elif line[0] in "01b":
            bits, letter = line[1:].split() if line[0] == "b" else (line[0], line[1:])
            if bits == "x":
                row[column[letter]] = ""
                continue
            value = int(bits, 2)
            if len(bits) != width[letter]:
                raise Difference(f"vcd: {bits} for a variable of {width[letter]} bits")
            row[column[letter]] = str(value - (1 << 32) if value >> 31 else value)
        elif line not in ("$dumpvars", "$end"):
            raise Difference(f"vcd: a line {line!r}")
    return rows
