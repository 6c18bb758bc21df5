"""A tree in a temporary folder, in which a test plants what a script is to find."""
import os
import pathlib
import shutil
import stat
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]


class PlantedTree(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="veltrix geplant é ")
        self.addCleanup(folder.cleanup)
        self.tree = pathlib.Path(folder.name)

    def plant(self, name, text="", executable=False):
        path = self.tree / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(text if isinstance(text, bytes) else text.encode())
        if executable:
            path.chmod(path.stat().st_mode | stat.S_IXUSR)
        return path

    def borrow(self, *names):
        """Copies files of the real tree, for scripts that work on the tree they stand in."""
        for name in names:
            (self.tree / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(ROOT / name, self.tree / name)

    def start(self, *command, **more):
        """Runs a command, the first word taken from the planted tree when it stands there."""
        program = self.tree / command[0]
        first = str(program) if program.exists() else command[0]
        return subprocess.run([first, *command[1:]], capture_output=True, text=True,
                              stdin=subprocess.DEVNULL, **more)

    def assert_passes(self, result, text=""):
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertIn(text, result.stdout)

    def assert_fails(self, result, *texts):
        self.assertNotEqual(result.returncode, 0, result.stdout + result.stderr)
        for text in texts:
            self.assertIn(text, result.stdout + result.stderr)


class PlantedMachine(PlantedTree):
    """The tree, and a PATH on which stand only the commands that the test puts there."""

    def setUp(self):
        super().setUp()
        self.commands = self.tree / "commands"
        self.commands.mkdir()
        self.calls = self.tree / "calls"
        self.calls.touch()

    def lend(self, *names):
        for name in names:
            os.symlink(shutil.which(name), self.commands / name)

    def fake(self, name, script="exit 0"):
        """A command that notes that it was called, and how, and then does what the script says."""
        self.plant(f"commands/{name}",
                   f'#!/bin/bash\necho "{name} $*" >>"$CALLS"\n{script}\n', executable=True)

    def environment(self, **more):
        return {"PATH": str(self.commands), "CALLS": str(self.calls), "LC_ALL": "C.UTF-8",
                "TMPDIR": str(self.tree), **more}

    def called(self):
        return self.calls.read_text().splitlines()
