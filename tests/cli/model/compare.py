#!/usr/bin/env python3
"""Runs random boards through veltrix-cli and through the model, and compares all they say.

    compare.py --program build/release/veltrix-cli --count 1000 --seed 1

Each case is made from its own number: the seed for the first, one more for each that follows. A
failing case prints its number and the first difference and leaves its files, so that

    compare.py --program ... --count 1 --seed NUMBER

repeats it. With --broken the documents are ones that hold no board; the program has to say so in
one line and end with 2.
"""
import argparse
import csv
import io
import json
import pathlib
import random
import re
import shutil
import struct
import subprocess
import sys
import tempfile

import board_model
from board_model import Board, CONNECTABLE, DocumentError, KIND, OUTPUT, Simulation

HEADER = ["tick", *CONNECTABLE, "LED 1", "LED 2", "LED 3", "LED 4", "Zoemer klinkt", "Teller"]
SOURCES = [name for name in CONNECTABLE if KIND[name] == OUTPUT]
TARGETS = [name for name in CONNECTABLE if KIND[name] != OUTPUT]
# The sources that a script can turn.
TURNED = [name for name in SOURCES if name.endswith("Uit Geel")]
# Names that no socket has, and places where no wire may end.
STRANGE = [
    "", " ", "sensor 1 uit geel", "Zoemer ", "LED 5 Ingang", "Sensor 1", "Drukknop 2",
    "Comparator Regelaar", board_model.COUNTED, "Zoemer|LED 1 Ingang",
    "Sensor 1 Uit Geel|OF-poort Uit", "|", "\u00e9\u00e9n", "\u20ac 5", "\x81\x8d\x8f\x90\x9d",
    "\u0178\u00ff", '"', "a,b", "a;b", "\t", "\r\n", "\x01\x1f\x7f", "\\", "</script>", "%s%n",
    "x" * 300,
]
EDGES = [-0x80000000, -0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFE, -1, 51, 1 << 16, -(1 << 16)]


class Difference(Exception):
    """What the program says and the model does not."""


# --- boards and scripts ------------------------------------------------------------------------

def any_name(rng):
    kind = rng.random()
    if kind < 0.75:
        return rng.choice(CONNECTABLE)
    if kind < 0.92:
        return rng.choice(STRANGE)
    return board_model.text_of(rng.randbytes(rng.randrange(1, 12)).replace(b"\0", b"?"))


def circuit(rng):
    """Wires as somebody would draw them: most inputs get one output, now and then a wrong one."""
    share = rng.choice((0.2, 0.6, 0.9, 1))
    wires = []
    for target in TARGETS:
        if rng.random() < share:
            kind = rng.choice((TURNED, TURNED, SOURCES, SOURCES, SOURCES, CONNECTABLE))
            ends = [rng.choice(kind), target]
            rng.shuffle(ends)
            wires.append(tuple(ends))
    rng.shuffle(wires)
    return wires


MODULES = ("OF-poort", "EN-poort", "Geheugen", "Invertor", "Comparator", "Transistor", "Relais",
           "Pulsenteller", "AD-omzetter")


def bench(rng):
    """A few modules with hands on all they listen to, and lamps on what they say."""
    lamps = [name for name in TARGETS if name.startswith("LED")] + ["Zoemer"]
    wires = []
    for module in rng.sample(MODULES, rng.randrange(1, 4)):
        for name in CONNECTABLE:
            if not name.startswith(module):
                continue
            if KIND[name] == OUTPUT:
                if rng.random() < 0.3:
                    wires.append((name, rng.choice(lamps)))
            elif rng.random() < 0.8:
                wires.append((rng.choice(TURNED + ["Var. Spanning Uit Geel"] * 4), name))
    rng.shuffle(wires)
    return wires


def crowd(rng):
    """More names than the board has room for, or nearly so."""
    start = rng.choice(SOURCES)
    names = [start] + [f"naam {number}" for number in range(rng.randrange(60, 110))]
    chain = rng.random() < 0.5
    wires = [(names[number - 1] if chain else start, names[number])
             for number in range(1, len(names))]
    if rng.random() < 0.5:
        rng.shuffle(wires)
    return wires[:len(wires) // 2] + circuit(rng) + wires[len(wires) // 2:]


def make_wires(rng):
    style = rng.random()
    if style < 0.02:
        wires = []
    elif style < 0.4:
        wires = bench(rng)
    elif style < 0.7:
        wires = circuit(rng)
    elif style < 0.92:
        wires = [(any_name(rng), any_name(rng)) for _ in range(rng.randrange(1, 60))]
    else:
        wires = crowd(rng)
    if rng.random() < 0.3:
        for _ in range(rng.randrange(1, 6)):
            wires.insert(rng.randrange(len(wires) + 1), (any_name(rng), any_name(rng)))
    if rng.random() < 0.15:
        wires += [("Var. Spanning Uit Geel", rng.choice(TARGETS))
                  for _ in range(rng.randrange(1, 5))]
    if rng.random() < 0.05:
        # Names that are no sockets lie all in one place: a wire between two of them has no bead.
        wires += [("Var. Spanning Uit Geel", "hier"), ("hier", "daar"), ("daar", any_name(rng))]
    if wires and rng.random() < 0.2:
        again = rng.choice(wires)
        wires.insert(rng.randrange(len(wires) + 1), again if rng.random() < 0.5 else again[::-1])
    if rng.random() < 0.1:
        name = any_name(rng)
        wires.insert(rng.randrange(len(wires) + 1), (name, name))
    return wires


def make_level(rng):
    kind = rng.random()
    if kind < 0.4:
        return rng.randrange(51)
    if kind < 0.8:
        return rng.choice((0, 6, 7, 20, 25, 35, 49, 50))
    if kind < 0.93:
        return rng.randrange(-12, 63)
    if kind < 0.97:
        return rng.randrange(-30, 120)
    return rng.choice(EDGES)


def make_mode(rng):
    return rng.randrange(3) if rng.random() < 0.85 else rng.choice([3, 4, 7, -1] + EDGES)


def make_board(rng):
    return Board(
        wires=make_wires(rng), counter=rng.randrange(10), sensors=[make_mode(rng), make_mode(rng)],
        pulse=rng.choice((0, 50, make_level(rng), make_level(rng))), comparator=make_level(rng),
        voltage=make_level(rng), buttons=[rng.random() < 0.5, rng.random() < 0.5])


def make_document(rng, board):
    """The board's document, now and then with what a reader has to pass over."""
    data = bytearray(board.write())
    if rng.random() < 0.1:
        struct.pack_into("<i", data, 12, rng.choice(EDGES))
    for place in (44, 45):
        if data[place] == 0 and rng.random() < 0.1:
            data[place] = rng.randrange(255)
    for place in (2, 8, 48):
        if rng.random() < 0.05:
            struct.pack_into("<i", data, place, rng.choice(EDGES + [0, len(data)]))
    if rng.random() < 0.1:
        data += rng.randbytes(rng.randrange(1, 200))
    if rng.random() < 0.05:
        # The first wires alone, or more than there are: the tail is read as names.
        struct.pack_into("<i", data, 16, rng.randrange(len(board.wires) + 5))
        data += b"\0" * rng.randrange(8)
    try:
        board_model.read(data)
    except DocumentError:
        return board.write()
    return bytes(data)


def break_document(rng, data):
    """The bytes of a document in which something is wrong or missing."""
    while True:
        broken = bytearray(data)
        way = rng.randrange(6)
        if way == 0:
            del broken[rng.randrange(len(broken)):]
        elif way == 1:
            struct.pack_into("<h", broken, rng.choice((0, 6, 46)), rng.randrange(-0x8000, 0x8000))
        elif way == 2:
            struct.pack_into("<i", broken, 16, rng.choice(
                (rng.randrange(0x80000000), -1, 0x7FFFFFFF, -0x80000000, len(data))))
        elif way == 3:
            struct.pack_into("<i", broken, 20, rng.choice((10, -1, 256, *EDGES)))
        elif way == 4:
            broken = bytearray(rng.randbytes(rng.randrange(300)))
        else:
            for _ in range(rng.randrange(1, 20)):
                broken[rng.randrange(len(broken))] = rng.randrange(256)
        try:
            board_model.read(broken)
        except DocumentError:
            return bytes(broken)


CONTROLS = ("Sensor 1", "Sensor 2", "Drukknop 1", "Drukknop 2", "Drukknop 1", "Drukknop 2",
            "Comparator Regelaar", "Var. Spanning Regelaar", "Var. Spanning Regelaar",
            "Puls Generator Regelaar", "Puls Generator Regelaar", "Geluids Sensor",
            "Pulsenteller Reset Drukknop", "Aanwijzer", "Aanwijzer")


def make_value(rng, control):
    if control.startswith("Sensor"):
        return str(rng.randrange(3))
    if control.startswith("Drukknop"):
        return str(rng.randrange(2))
    if control == "Pulsenteller Reset Drukknop":
        return rng.choice(("", "0", "1"))
    if control == "Aanwijzer":
        spot = rng.choice(((44, 49), (44, 102), (207, 188)))
        reach = rng.choice((0, 3, 60, 110, 300, 70000))
        return " ".join(str(centre + rng.randint(-reach, reach)) for centre in spot)
    return str(rng.randrange(51) if rng.random() < 0.3 else rng.choice((0, 0, 7, 25, 49, 50, 50)))


def make_script(rng, ticks):
    """Rows of (tick, control, value), in the order of their ticks."""
    if rng.random() < 0.1:
        return []
    rows = rng.randrange(1, 1 + ticks)
    return [(tick, control, make_value(rng, control))
            for tick in sorted(rng.randrange(1, ticks + 3) for _ in range(rows))
            for control in [rng.choice(CONTROLS)]]


# --- one case ----------------------------------------------------------------------------------

class Case:
    def __init__(self, number, program, folder):
        self.rng = random.Random(number)
        self.program = program
        self.folder = folder
        self.document = folder / "board.vtx"

    def start(self, *arguments):
        return subprocess.run([self.program, *map(str, arguments)], capture_output=True,
                              timeout=600, check=False)

    def start_well(self, *arguments, status=0):
        done = self.start(*arguments)
        if done.returncode != status:
            raise Difference(f"{arguments[0]} ended with {done.returncode} instead of {status}: "
                             f"{done.stderr.decode(errors='replace').strip()}")
        return done

    def check_alike(self, ticks):
        data = make_document(self.rng, make_board(self.rng))
        self.document.write_bytes(data)
        self.compare_info(data)
        self.compare_check(data)
        self.compare_run(data, make_script(self.rng, ticks), ticks)

    def compare_info(self, data):
        board = board_model.read(data)
        wanted = {
            "settings": {
                "Teller": board.counter,
                "Sensor 1": board.sensors[0],
                "Sensor 2": board.sensors[1],
                "Puls Generator Regelaar": board.pulse,
                "Comparator Regelaar": board.comparator,
                "Var. Spanning Regelaar": board.voltage,
                "Drukknop 1": int(board.buttons[0]),
                "Drukknop 2": int(board.buttons[1]),
            },
            "wires": [{"naam1": first, "naam2": second} for first, second in board.wires],
        }
        found = json.loads(self.start_well("info", self.document).stdout)
        compare_lists("info, settings", list(found["settings"].items()),
                      list(wanted["settings"].items()))
        compare_lists("info, wires", found["wires"], wanted["wires"])

    def compare_check(self, data):
        wires = board_model.read(data).wires
        lines = ["outputs wired together: " + line
                 for line in board_model.report(wires).split("\r\n")[:-1]]
        lines += [f'wire {position}: unknown socket "{shown(name)}"'
                  for position, name in board_model.strangers(wires)]
        for position, first in board_model.repeated(wires):
            one, other = map(shown, wires[position - 1])
            lines.append(f'wire {position}: duplicate of wire {first}, "{one}" to "{other}"')
        done = self.start_well("check", self.document, status=1 if lines else 0)
        compare_lists("check", done.stdout.decode().split("\n")[:-1], lines)

    def compare_run(self, data, script, ticks):
        script_path = self.folder / "script.csv"
        write_csv(script_path, [("tick", "control", "value"), *script])
        simulation = Simulation(board_model.read(data))
        wanted = []
        faults = []
        fault = None
        for tick in range(1, ticks + 1):
            for at, control, value in script:
                if at == tick:
                    simulation.control(control, value)
            simulation.tick()
            wanted.append(simulation.row())
            # Good ticks in between do not make a fault a new one: else a board that fails every
            # second tick would be told of fifty times a second.
            if simulation.fault and simulation.fault != fault:
                faults.append(f"veltrix-cli: {self.document}: tick {tick}")
                fault = simulation.fault
        write_csv(self.folder / "expected.csv", [HEADER, *wanted])
        saved = simulation.board.write()
        (self.folder / "expected.vtx").write_bytes(saved)

        done = self.run_rows(script_path, ticks, "csv", "all", wanted)
        compare_bytes("saved document", (self.folder / "saved.vtx").read_bytes(), saved)
        told = [": ".join(line.split(": ")[:3]) for line in done.stderr.decode().split("\n")[:-1]]
        compare_lists("abandoned ticks", told, faults)

        self.run_rows(script_path, ticks, self.rng.choice(("csv", "json", "vcd")),
                      self.rng.choice(("all", "changes", "last")), wanted)

    def run_rows(self, script, ticks, form, which, wanted):
        out = self.folder / f"{which}.{form}"
        done = self.start_well("run", self.document, "--ticks", ticks, "--script", script,
                               "--format", form, "--rows", which, "--out", out, "--save",
                               self.folder / "saved.vtx")
        if which == "last":
            wanted = wanted[-1:]
        elif which == "changes":
            wanted = wanted[:1] + [row for before, row in zip(wanted, wanted[1:])
                                   if row[1:] != before[1:]]
        text = out.read_bytes().decode()
        found = {"csv": rows_of_csv, "json": rows_of_json, "vcd": rows_of_vcd}[form](text)
        for row, row_wanted in zip(found, wanted):
            for name, cell, cell_wanted in zip(HEADER, row, row_wanted):
                if cell != cell_wanted:
                    raise Difference(f"{form}, {which}: tick {row_wanted[0]}, {name}: {cell!r} by "
                                     f"the program, {cell_wanted!r} by the model")
        compare_lists(f"{form}, {which}: ticks", [row[0] for row in found],
                      [row[0] for row in wanted])
        return done

    def check_broken(self):
        self.document.write_bytes(break_document(self.rng, make_board(self.rng).write()))
        out, saved = self.folder / "out", self.folder / "saved.vtx"
        for arguments in (("run", "--ticks", "3", "--out", out, "--save", saved), ("info",),
                          ("check",), ("render", "--out", out)):
            done = self.start_well(*arguments, self.document, status=2)
            if done.stdout or out.exists() or saved.exists():
                raise Difference(f"{arguments[0]} left something behind")
            errors = done.stderr.decode()
            if errors.count("\n") != 1 or not errors.endswith("\n") \
                    or not errors.startswith(f"veltrix-cli: {self.document}: "):
                raise Difference(f"{arguments[0]} says {errors!r} instead of one line")


def shown(name):
    """A name as check writes it: on one line, whatever is in it."""
    return "".join(f"\\x{ord(character):02X}" if ord(character) < 0x20 or character == "\x7f"
                   else character for character in name)


def write_csv(path, rows):
    with open(path, "w", encoding="utf-8", newline="") as file:
        csv.writer(file, lineterminator="\n").writerows(rows)


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


def compare_lists(what, found, wanted):
    for number, (one, other) in enumerate(zip(found, wanted), 1):
        if one != other:
            raise Difference(f"{what}, {number}: {one!r} by the program, {other!r} by the model")
    if len(found) != len(wanted):
        longer, by = (found, "program") if len(found) > len(wanted) else (wanted, "model")
        raise Difference(f"{what}: only by the {by}: {longer[min(len(found), len(wanted))]!r}")


def compare_bytes(what, found, wanted):
    for place, (one, other) in enumerate(zip(found, wanted)):
        if one != other:
            raise Difference(f"{what}, byte {place}: {one:#04x} in the program's, "
                             f"{other:#04x} in the model's")
    if len(found) != len(wanted):
        raise Difference(f"{what}: {len(found)} bytes by the program, {len(wanted)} by the model")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", type=pathlib.Path, required=True, help="veltrix-cli")
    parser.add_argument("--count", type=int, default=100, help="number of cases")
    parser.add_argument("--seed", type=int, default=1, help="number of the first case")
    parser.add_argument("--ticks", type=int, default=100, help="ticks of a case")
    parser.add_argument("--broken", action="store_true", help="documents that hold no board")
    options = parser.parse_args()

    program = options.program.resolve()
    for number in range(options.seed, options.seed + options.count):
        folder = pathlib.Path(tempfile.mkdtemp(prefix=f"veltrix-model-{number}-"))
        case = Case(number, program, folder)
        try:
            if options.broken:
                case.check_broken()
            else:
                case.check_alike(options.ticks)
        except (Difference, OSError, ValueError, subprocess.TimeoutExpired) as difference:
            print(f"FAIL: case {number} ({options.ticks} ticks): {difference}\nfiles: {folder}")
            return 1
        shutil.rmtree(folder)
    print(f"OK: {options.count} cases from {options.seed}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
