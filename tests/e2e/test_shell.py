"""What surrounds the board, on a desktop of the test's own: the splash, the windows of help and
about, the way to the internet, and the desktop that knows board documents.

Exit 77 where no desktop can be had; ctest counts that as skipped.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import unittest.mock

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "tests/cli/model")]
from desktop import BUILD, LIMIT, Desktop, Veltrix, missing, until  # noqa: E402

SKIPPED = 77
BOARD = ROOT / "examples/deurbel.vtx"
MENU = {"Info": 0, "Uitleg": 1, "Op internet": 2}


def choose(program, item):
    """Chooses an item of the menu "Help" by the keyboard."""
    program.desktop.do("windowactivate", program.number)
    program.keys("alt+h", *["Down"] * MENU[item], "Return")


def close(window):
    """As the desktop's own key does."""
    window.keys("alt+F4")


class Start(unittest.TestCase):
    def test_the_splash_is_seen_and_gone_when_the_window_comes(self):
        with Desktop() as desktop:
            # The window manager's list tells of every window in the order in which they come.
            listed = desktop.folder / "windows"
            with open(listed, "wb") as file:
                desktop.start("stdbuf", "-oL", "xprop", "-root", "-spy", "_NET_CLIENT_LIST",
                              stdout=file)
            until("the list of windows", listed.read_bytes)
            program = Veltrix(desktop)
            main = hex(program.number)
            lists = [re.findall("0x[0-9a-f]+", line) for line in listed.read_text().splitlines()]
            shown = [windows for windows in lists if windows]
            self.assertNotIn(main, shown[0])
            self.assertEqual(len(shown[0]), 1, "the splash, and nothing beside it")
            for windows in shown:
                if main in windows:
                    self.assertNotIn(shown[0][0], windows, "the splash is gone")

    def test_without_a_display_one_line_says_so(self):
        names = ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")
        bare = {name: value for name, value in os.environ.items() if name not in names}
        for display, reason in ((None, "neither DISPLAY nor WAYLAND_DISPLAY is set"),
                                (":4999", "could not connect to display :4999")):
            environment = bare | ({"DISPLAY": display} if display else {})
            done = subprocess.run([BUILD / "veltrix", BOARD], env=environment, timeout=LIMIT,
                                  stderr=subprocess.PIPE, text=True, check=False)
            self.assertEqual(done.stderr, f"veltrix: no window can be shown: {reason}\n")
            self.assertEqual(done.returncode, 1)


class Help(unittest.TestCase):
    def setUp(self):
        # A browser that only notes where it was sent.
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        browser = self.folder / "xdg-open"
        browser.write_text(f'#!/bin/sh\necho "$@" >>{self.folder}/opened\n', encoding="utf-8")
        browser.chmod(0o700)
        path = f"{self.folder}:{os.environ['PATH']}"
        self.enterContext(unittest.mock.patch.dict(os.environ, PATH=path))
        self.desktop = self.enterContext(Desktop())
        self.program = Veltrix(self.desktop)

    def test_the_help_is_a_window_like_any_other(self):
        choose(self.program, "Uitleg")
        window = self.program.window("Hulp")
        self.assertEqual(window.size(), (686, 418))
        allowed = window.property("_NET_WM_ALLOWED_ACTIONS")
        for action in ("RESIZE", "MINIMIZE", "MAXIMIZE_HORZ", "MAXIMIZE_VERT"):
            self.assertIn(f"_NET_WM_ACTION_{action}", allowed)
        self.assertIn("Icon", window.property("_NET_WM_ICON"))
        until("the page", lambda: len(set(window.picture().data)) > 20)

        self.desktop.do("windowsize", window.number, 500, 350)
        until("the page in another size", lambda: window.picture().width == 500)
        choose(self.program, "Uitleg")
        window.focus()
        self.assertEqual(len(self.program.windows("^Hulp$")), 1)
        close(window)
        until("the help to close", lambda: not self.program.windows("^Hulp$"))
        self.assertIsNone(self.program.process.poll())

    def test_about_blocks_the_main_window_until_ok(self):
        button = "Drukknop 1"  # beside the about window, so that it can be clicked
        self.program.leave()
        released = self.program.board()
        choose(self.program, "Info")
        window = self.program.window("Over Veltrix Simulator versie 2")
        self.assertEqual(window.size(), (300, 300))
        # The second number says which parts the third one speaks of: a frame with nothing in it.
        hints = re.findall("0x[0-9a-f]+", window.property("_MOTIF_WM_HINTS"))
        self.assertEqual((int(hints[0], 16) & 2, int(hints[2], 16)), (2, 0))
        self.program.click(button)
        self.program.leave()
        window.keys("Return")
        until("about to close", lambda: not self.program.windows("^Over Veltrix"))
        self.program.shows("a board that nobody operated", released)
        self.program.click(button)
        self.program.leave()
        until("a pressed button", lambda: self.program.board() != released)

    def test_the_internet_is_named_and_opened(self):
        choose(self.program, "Op internet")
        box = self.program.window("Veltrix Simulator")
        self.assertFalse((self.folder / "opened").exists())
        box.keys("Return")
        until("the browser", (self.folder / "opened").exists)
        until("the address", lambda: (self.folder / "opened").read_text() ==
              "https://veltrix.example/\n")


@unittest.skipUnless(shutil.which("xdg-mime") and shutil.which("update-mime-database"),
                     "xdg-utils or shared-mime-info is not installed")
class Registration(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        self.data = self.desktop.folder / "XDG_DATA_HOME"
        self.board = self.desktop.folder / "mijn bord één.vtx"
        shutil.copy(BOARD, self.board)

    def start_and_register(self):
        program = Veltrix(self.desktop)
        for index in ("mime/mime.cache", "applications/mimeinfo.cache"):
            until(index, (self.data / index).exists)
        return program

    def test_the_desktop_knows_board_documents(self):
        self.start_and_register()
        def ask(*question):
            return self.desktop.ask("xdg-mime", "query", *question).strip()
        until("the type of a board", lambda: ask("filetype", str(self.board)) ==
              "application/x-veltrix")
        until("the program of the type", lambda: ask("default", "application/x-veltrix") ==
              "veltrix.desktop")
        subprocess.run(["desktop-file-validate", self.data / "applications/veltrix.desktop"],
                       check=True)

    def test_a_double_click_starts_the_program_with_the_board(self):
        close(self.start_and_register())
        opener = self.desktop.start("xdg-open", str(self.board))
        until("the program with the board", lambda: self.desktop.ask(
            "xdotool", "search", "--onlyvisible", "--name",
            r"^Veltrix versie 2\.0 - mijn bord één\.vtx$").strip() or opener.poll())

    def test_what_is_right_is_not_written_again(self):
        close(self.start_and_register())
        def times():
            return {str(file): file.stat().st_mtime_ns for file in self.data.rglob("*")
                    if file.is_file()}
        before = times()
        # It comes after the start, so something that comes still later has to be waited for.
        entry = self.data / "applications/veltrix.desktop"
        program = Veltrix(self.desktop)
        icon = self.data / "icons/hicolor/16x16/apps/veltrix.png"
        icon.write_bytes(b"an older icon")
        close(program)
        program.ended()
        program = Veltrix(self.desktop)
        until("the icon", lambda: icon.read_bytes() != b"an older icon")
        after = times()
        self.assertEqual(entry.stat().st_mtime_ns, before[str(entry)])
        self.assertEqual({name for name in after if after[name] != before.get(name)}, {str(icon)})


if __name__ == "__main__":
    reason = missing()
    if reason:
        print(reason)
        sys.exit(SKIPPED)
    unittest.main()
