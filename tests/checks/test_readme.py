import os
import pathlib
import re
import shlex
import subprocess
import unittest

from planted import ROOT

README = (ROOT / "README.md").read_text(encoding="utf-8")
# "`./test` runs every command on this page, except `./test` itself, ... to itself."
EXCEPTIONS = re.search(r"`\./test` runs every command on this page, except (.*?)\.\n\n", README,
                       re.DOTALL)[1]


def commands():
    """Each command of the page as its words, in order."""
    blocks = re.findall(r"(?:^    \S.*\n)+", README, re.MULTILINE)
    return [shlex.split(line, comments=True) for block in blocks for line in block.splitlines()]


class Readme(unittest.TestCase):
    """What the page promises holds: whoever types its commands gets what it says."""

    def run_it(self, words):
        # No display, so that a window does not wait for somebody to close it.
        environment = {name: value for name, value in os.environ.items()
                       if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
        return subprocess.run([str(ROOT / words[0]), *words[1:]], cwd=ROOT, env=environment,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                              check=False)

    def test_every_command_works_or_is_named_as_one_that_is_not_run(self):
        ran = 0
        for words in commands():
            with self.subTest(" ".join(words)):
                if f"`{words[0]}`" in EXCEPTIONS:
                    continue
                done = self.run_it(words)
                self.assertEqual(done.returncode, 0, done.stdout)
                ran += 1
                if words[0] == "./run":
                    picture = pathlib.Path(done.stdout.splitlines()[-1])
                    self.assertTrue(picture.is_file(), done.stdout)
                if "--out" in words:
                    self.assertTrue((ROOT / words[words.index("--out") + 1]).is_file())
        self.assertGreaterEqual(ran, 6)

    def test_every_exception_is_a_command_of_the_page(self):
        named = {words[0] for words in commands()}
        self.assertLessEqual(set(re.findall(r"`(\S+?)`", EXCEPTIONS)), named)

    def test_every_link_and_every_file_it_names_is_there(self):
        links = re.findall(r"\]\(([^)]+)\)", README)
        files = re.findall(r"`((?:[\w.]+/)+[\w.]*)`", README)
        self.assertTrue(links and files)
        for name in links + files:
            with self.subTest(name):
                self.assertTrue((ROOT / name).exists())


if __name__ == "__main__":
    unittest.main()
