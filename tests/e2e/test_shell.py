"""What surrounds the board: the splash, the windows of help and about, the way to the internet, and
the desktop that knows board documents.
"""
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
import unittest.mock

from desktop import BUILD, LIMIT, ROOT, DesktopTest, until

BOARD = ROOT / "examples/deurbel.vtx"
MENU = {"Info": 0, "Uitleg": 1, "Op internet": 2}


def activate(window):
    window.desktop.do("windowactivate", window.number)


def choose(program, item):
    """Chooses an item of the menu "Help" by the keyboard."""
    activate(program)
    program.keys("alt+h", *["Down"] * MENU[item], "Return")


class Start(DesktopTest):
    def test_the_splash_is_seen_and_gone_when_the_window_comes(self):
        # The window manager's list tells of every window in the order in which they come.
        listed = self.desktop.folder / "windows"
        with open(listed, "wb") as file:
            self.desktop.start("stdbuf", "-oL", "xprop", "-root", "-spy", "_NET_CLIENT_LIST",
                               stdout=file)
        until("the list of windows", listed.read_bytes)
        main = hex(self.start().number)
        lists = [re.findall("0x[0-9a-f]+", line) for line in listed.read_text().splitlines()]
        shown = [windows for windows in lists if windows]
        self.assertEqual(len(shown[0]), 1, "the splash, and nothing beside it")
        self.assertNotIn(main, shown[0])
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


class Help(DesktopTest):
    def setUp(self):
        # A browser that only notes where it was sent.
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.opened = folder / "opened"
        browser = folder / "xdg-open"
        browser.write_text(f'#!/bin/sh\necho "$@" >>{self.opened}\n', encoding="utf-8")
        browser.chmod(0o700)
        path = f"{folder}:{os.environ['PATH']}"
        self.enterContext(unittest.mock.patch.dict(os.environ, PATH=path))
        super().setUp()
        self.program = self.start()

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
        self.assertEqual(self.program.numbers("Hulp"), {window.number})
        window.close()
        self.program.alone()
        self.assertIsNone(self.program.process.poll())

    def test_the_program_ends_with_its_main_window_though_the_help_is_open(self):
        choose(self.program, "Uitleg")
        self.program.window("Hulp").focus()
        activate(self.program)
        self.program.close()
        self.ends_well(self.program)

    def test_about_blocks_the_main_window_until_ok(self):
        button = "Drukknop 1"  # beside the about window, so that it can be clicked
        self.program.leave()
        released = self.program.board()
        choose(self.program, "Info")
        window = self.program.window("Over Veltrix Simulator versie 2")
        self.assertEqual(window.size(), (300, 300))
        # The first number says which parts the others speak of; the third is the frame.
        hints = [int(hint, 16) for hint in
                 re.findall("0x[0-9a-f]+", window.property("_MOTIF_WM_HINTS"))]
        self.assertEqual((hints[0] & 2, hints[2]), (2, 0), "it has no frame")
        self.program.click(button)
        self.program.leave()
        window.keys("Return")
        self.program.alone()
        self.program.shows("a board that nobody operated", released)
        self.program.click(button)
        self.program.leave()
        until("a pressed button", lambda: self.program.board() != released)

    def test_the_internet_is_named_and_opened(self):
        choose(self.program, "Op internet")
        box = self.program.window("Veltrix Simulator")
        self.assertFalse(self.opened.exists())
        box.keys("Return")
        until("the browser", self.opened.exists)
        until("the address", lambda: self.opened.read_text() == "https://veltrix.example/\n")


@unittest.skipUnless(shutil.which("xdg-mime") and shutil.which("update-mime-database"),
                     "xdg-utils or shared-mime-info is not installed")
class Registration(DesktopTest):
    def setUp(self):
        super().setUp()
        self.data = self.desktop.folder / "XDG_DATA_HOME"
        self.board = self.files / "mijn bord.vtx"
        shutil.copy(BOARD, self.board)

    def start_and_register(self):
        program = self.start()
        for index in ("mime/mime.cache", "applications/mimeinfo.cache"):
            until(index, (self.data / index).exists)
        return program

    def end(self, program):
        program.close()
        self.ends_well(program)

    def times(self):
        return {file: file.stat().st_mtime_ns for file in self.data.rglob("*") if file.is_file()}

    def test_the_desktop_knows_board_documents(self):
        self.start_and_register()

        def ask(*question):
            return self.desktop.ask("xdg-mime", "query", *question).strip()
        until("the type of a board", lambda: ask("filetype", str(self.board)) ==
              "application/x-veltrix")
        until("the program of the type", lambda: ask("default", "application/x-veltrix") ==
              "veltrix.desktop")
        checked = subprocess.run(["desktop-file-validate", self.data /
                                  "applications/veltrix.desktop"],
                                 stdout=subprocess.PIPE, text=True, check=False)
        self.assertEqual(checked.stdout, "")

    def test_a_double_click_starts_the_program_with_the_board(self):
        self.end(self.start_and_register())
        self.desktop.start("xdg-open", str(self.board))
        until("the program with the board", lambda: self.desktop.ask(
            "xdotool", "search", "--onlyvisible", "--name",
            r"^Veltrix versie 2\.0 - mijn bord\.vtx$").strip())

    def test_only_what_is_wrong_is_written_again(self):
        self.end(self.start_and_register())
        icon = self.data / "icons/hicolor/256x256/mimetypes/application-x-veltrix.png"
        icon.write_bytes(b"an older icon")  # one of the last to be looked at
        before = self.times()
        program = self.start()
        until("the icon", lambda: icon.read_bytes() != b"an older icon")
        self.end(program)
        after = self.times()
        self.assertEqual({file for file in after if after[file] != before.get(file)}, {icon})
