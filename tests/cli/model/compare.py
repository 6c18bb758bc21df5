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
import json
import pathlib
import random
import shutil
import struct
import subprocess
import sys
import tempfile

import board_model
from board_model import BoardError, Board, CONNECTABLE, DocumentError, KIND, OUTPUT, Simulation

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
            source = rng.choice(rng.choice((TURNED, TURNED, SOURCES, SOURCES, SOURCES, CONNECTABLE)))
            ends = [source, target]
            rng.shuffle(ends)
            wires.append(tuple(ends))
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
    if style < 0.03:
        wires = []
    elif style < 0.65:
        wires = circuit(rng)
    elif style < 0.9:
        wires = [(any_name(rng), any_name(rng)) for _ in range(rng.randrange(1, 60))]
    else:
        wires = crowd(rng)
    if rng.random() < 0.3:
        for _ in range(rng.randrange(1, 6)):
            wires.insert(rng.randrange(len(wires) + 1), (any_name(rng), any_name(rng)))
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
        return rng.choice((0, 6, 7, 25, 35, 49, 50))
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
    if rng.random() < 0.1:
        data += rng.randbytes(rng.randrange(1, 200))
    return bytes(data)


CONTROLS = ("Sensor 1", "Sensor 2", "Drukknop 1", "Drukknop 2", "Drukknop 1", "Drukknop 2",
            "Comparator Regelaar", "Var. Spanning Regelaar", "Var. Spanning Regelaar",
            "Puls Generator Regelaar", "Geluids Sensor", "Pulsenteller Reset Drukknop",
            "Aanwijzer", "Aanwijzer")


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
    return str(rng.randrange(51) if rng.random() < 0.5 else rng.choice((0, 7, 25, 49, 50)))


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
        script = make_script(self.rng, ticks)
        self.document.write_bytes(data)
        with open(self.folder / "script.csv", "w", encoding="utf-8", newline="") as file:
            csv.writer(file, lineterminator="\n").writerows([("tick", "control", "value"), *script])

        self.compare_info(data)
        self.compare_check(data)
        self.compare_run(data, script, ticks)

    def compare_run(self, data, script, ticks):
        out, saved = self.folder / "out.csv", self.folder / "saved.vtx"
        self.start_well("run", self.document, "--ticks", ticks, "--script",
                        self.folder / "script.csv", "--format", "csv", "--rows", "all", "--out",
                        out, "--save", saved)

        simulation = Simulation(board_model.read(data))
        rows = []
        for tick in range(1, ticks + 1):
            for at, control, value in script:
                if at == tick:
                    simulation.control(control, value)
            simulation.tick()
            rows.append(simulation.row())
        expected = self.folder / "expected.csv"
        with open(expected, "w", encoding="utf-8", newline="") as file:
            csv.writer(file, lineterminator="\n").writerows([HEADER, *rows])
        expected_saved = simulation.board.write()
        (self.folder / "expected.vtx").write_bytes(expected_saved)

        with open(out, encoding="utf-8", newline="") as file:
            found = list(csv.reader(file))
        if not found or found[0] != HEADER:
            raise Difference(f"the columns are {found[:1]} instead of {HEADER}")
        for row, wanted in zip(found[1:], rows):
            for column, name in enumerate(HEADER):
                cell = row[column] if column < len(row) else None
                if cell != wanted[column]:
                    raise Difference(f"tick {wanted[0]}, {name}: the program says {cell!r}, "
                                     f"the model {wanted[column]!r}")
            if len(row) != len(HEADER):
                raise Difference(f"tick {wanted[0]}: {len(row)} cells in {len(HEADER)} columns")
        if len(found) - 1 != len(rows):
            raise Difference(f"{len(found) - 1} rows for {len(rows)} ticks")
        compare_bytes("saved document", saved.read_bytes(), expected_saved)

    def compare_info(self, data):
        pass

    def compare_check(self, data):
        pass


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
        folder = pathlib.Path(tempfile.mkdtemp(prefix=f"veltrix-{number}-"))
        case = Case(number, program, folder)
        try:
            case.check_alike(options.ticks)
        except (Difference, OSError, subprocess.TimeoutExpired) as difference:
            print(f"FAIL: case {number} ({options.ticks} ticks): {difference}\nfiles: {folder}")
            return 1
        shutil.rmtree(folder)
    print(f"OK: {options.count} cases from {options.seed}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
