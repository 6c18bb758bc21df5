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
import subprocess
import sys
import tempfile

from board_conflicts import repeated, report, strangers
from board_document import read
from board_simulation import Simulation
from differences import Difference, compare_bytes, compare_lists
from program_rows import HEADER, rows_of_csv, rows_of_json, rows_of_vcd
from random_boards import break_document, make_board, make_document, make_script


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
        board = read(data)
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
        wires = read(data).wires
        lines = ["outputs wired together: " + line
                 for line in report(wires).split("\r\n")[:-1]]
        lines += [f'wire {position}: unknown socket "{shown(name)}"'
                  for position, name in strangers(wires)]
        for position, first in repeated(wires):
            one, other = map(shown, wires[position - 1])
            lines.append(f'wire {position}: duplicate of wire {first}, "{one}" to "{other}"')
        done = self.start_well("check", self.document, status=1 if lines else 0)
        compare_lists("check", done.stdout.decode().split("\n")[:-1], lines)

    def compare_run(self, data, script, ticks):
        script_path = self.folder / "script.csv"
        write_csv(script_path, [("tick", "control", "value"), *script])
        simulation = Simulation(read(data))
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
