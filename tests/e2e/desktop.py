"""A desktop of a test's own: an X server without a screen, a window manager, and the real program
with somebody who clicks, types and looks.

Nothing here sleeps to let something happen: every step waits for what can be seen of it, and the
limit only ends a test that has failed.
"""
import contextlib
import math
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time
import unittest

from board_document import Board
from board_sockets import PLACE

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("VELTRIX_BUILD", ROOT / "build/release"))
SANITIZED = os.environ.get("VELTRIX_SANITIZED") == "ON"
LIMIT = 100  # seconds, on the slowest of machines
WIDTH, HEIGHT = 415, 376  # of the board
TOOLS = {"Xvfb": "xvfb", "openbox": "openbox", "xdotool": "xdotool", "xprop": "x11-utils",
         "import": "imagemagick"}


def missing():
    """Why no desktop can be made here; nothing when one can."""
    packages = sorted({TOOLS[tool] for tool in TOOLS if shutil.which(tool) is None})
    return f"these Debian packages are missing: {' '.join(packages)}" if packages else None


def until(what, condition):
    """The first thing that the condition finds; fails with `what` when it finds nothing."""
    end = time.monotonic() + LIMIT
    while True:
        found = condition()
        if found:
            return found
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.02)


def whole(number):
    """The nearest whole number, as a window's size is rounded."""
    return math.floor(number + 0.5)


class Picture:
    """Pixels, three bytes each."""

    def __init__(self, width, height, data):
        self.width, self.height, self.data = width, height, data

    @classmethod
    def of_ppm(cls, ppm):
        head = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", ppm)
        return cls(int(head[1]), int(head[2]), ppm[head.end():])

    @classmethod
    def of_file(cls, path):
        return cls.of_ppm(subprocess.run(["convert", path, "-depth", "8", "ppm:-"], check=True,
                                         stdout=subprocess.PIPE).stdout)

    def pixel(self, x, y):
        return tuple(self.data[3 * (y * self.width + x):][:3])

    def part(self, x, y, width, height):
        rows = (self.data[3 * (row * self.width + x):][:3 * width] for row in range(y, y + height))
        return Picture(width, height, b"".join(rows))

    def mean(self):
        """Its mean colour."""
        return tuple(sum(self.data[colour::3]) / (self.width * self.height)
                     for colour in range(3))

    def differences(self, other):
        """The places at which the two are not alike."""
        if (self.width, self.height) != (other.width, other.height):
            raise AssertionError(f"{self.width} by {self.height} pixels beside "
                                 f"{other.width} by {other.height}")
        if self.data == other.data:
            return []
        return [(at % self.width, at // self.width) for at in range(self.width * self.height)
                if self.data[3 * at:3 * at + 3] != other.data[3 * at:3 * at + 3]]

    def __eq__(self, other):
        return not self.differences(other)


class Desktop:
    """An X server and a window manager, gone with all that runs on them when the block ends."""

    def __enter__(self):
        with contextlib.ExitStack() as stack:
            self.folder = pathlib.Path(stack.enter_context(
                tempfile.TemporaryDirectory(prefix="veltrix-e2e-")))
            self._end = stack
            self._environment = {name: value for name, value in os.environ.items()
                                 if not name.startswith(("XDG_", "QT_", "DBUS_", "WAYLAND_"))}
            for name in ("HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                         "XDG_CACHE_HOME"):
                (self.folder / name).mkdir(mode=0o700)
                self._environment[name] = str(self.folder / name)
            self.files = self.folder / "één map"  # where programs start
            self.files.mkdir()
            self._environment["LC_ALL"] = "C.UTF-8"
            self._environment["DISPLAY"] = f":{self._start_server()}"
            # The first key changes the server's keyboard, and a window manager that learns of that
            # lets go of its keys for a moment: better before there is one.
            self.do("key", "Shift_L")
            self.start("openbox")
            until("the window manager", lambda: "_NET_SUPPORTING_WM_CHECK(WINDOW)" in
                  self.ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))
            self._end = stack.pop_all()
        return self

    def __exit__(self, *_):
        self._end.close()

    def _start_server(self):
        read, write = os.pipe()
        with open(read, encoding="ascii") as number:
            self.start("Xvfb", "-displayfd", str(write), "-screen", "0", "1600x1300x24",
                       "-nolisten", "tcp", "-noreset", pass_fds=[write])
            os.close(write)
            return int(number.readline())

    def start(self, *command, environment=None, **more):
        """Starts a program that is ended with the desktop if it does not end before."""
        streams = {"cwd": self.files, "stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL,
                   "stderr": subprocess.DEVNULL}
        process = subprocess.Popen(command, env=self._environment | (environment or {}),
                                   **(streams | more))
        self._end.callback(self._stop, process)
        return process

    @staticmethod
    def _stop(process):
        process.terminate()
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()

    def ask(self, *command):
        """What a command answers; nothing when it fails."""
        done = subprocess.run(command, env=self._environment, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True, timeout=LIMIT, check=False)
        return done.stdout if done.returncode == 0 else ""

    def do(self, *words):
        """One or more commands of xdotool."""
        subprocess.run(["xdotool", *map(str, words)], env=self._environment, check=True,
                       stdout=subprocess.DEVNULL, timeout=LIMIT)

    def picture(self, window):
        """What the screen shows of a window, without its frame."""
        done = subprocess.run(["import", "-silent", "-window", str(window), "-depth", "8", "ppm:-"],
                              env=self._environment, check=True, stdout=subprocess.PIPE,
                              timeout=LIMIT)
        return Picture.of_ppm(done.stdout)


class Window:
    """A window of a program."""

    def __init__(self, desktop, number):
        self.desktop, self.number = desktop, number

    def property(self, *names):
        return self.desktop.ask("xprop", "-id", str(self.number), *names)

    def title(self):
        return self.desktop.ask("xdotool", "getwindowname", str(self.number)).rstrip("\n")

    def size(self):
        found = dict(line.split("=") for line in self.desktop.ask(
            "xdotool", "getwindowgeometry", "--shell", str(self.number)).split())
        return int(found["WIDTH"]), int(found["HEIGHT"])

    def focus(self):
        """Waits until it has the keyboard, which a window gets when it opens."""
        until(f"the keyboard in {self.title()}", lambda: self.desktop.ask(
            "xdotool", "getactivewindow").strip() == str(self.number))

    def keys(self, *names):
        self.focus()
        self.desktop.do("key", "--clearmodifiers", *names)

    def type(self, text):
        self.focus()
        self.desktop.do("type", "--clearmodifiers", "--delay", "5", text)

    def close(self):
        """As the window manager does for the cross in the title bar."""
        self.keys("alt+F4")

    def picture(self):
        return self.desktop.picture(self.number)


class Veltrix(Window):
    """The program, with its main window. `arguments` are those of its command line."""

    def __init__(self, desktop, *arguments, scale=1, title=r"Veltrix versie 2\.0"):
        self.scale = scale
        self._log = desktop.folder / "veltrix.log"
        with open(self._log, "wb") as log:
            self.process = desktop.start(BUILD / "veltrix", *map(str, arguments), stderr=log,
                                         environment={"QT_SCALE_FACTOR": str(scale)})
        super().__init__(desktop, None)
        self.number = self.window(title).number
        until("the first picture", lambda: len(set(self.picture().data)) > 2)
        width, height = self.size()
        # The bar's height is the style's to choose.
        self.menu = height - whole(HEIGHT * scale)
        assert width == whole(WIDTH * scale), f"the window is {width} pixels wide"

    def log(self):
        return self._log.read_text(errors="replace")

    def numbers(self, title=".*"):
        """The numbers of its windows with a title, which is a regular expression."""
        found = self.desktop.ask("xdotool", "search", "--all", "--onlyvisible", "--pid",
                                 str(self.process.pid), "--name", f"^{title}$")
        return {int(number) for number in found.split()}

    def window(self, title):
        """Waits for a window with a title beside the main one."""
        def look():
            if self.process.poll() is not None:
                raise AssertionError(f"it ended with {self.process.returncode}: {self.log()}")
            return self.numbers(title) - {self.number}
        return Window(self.desktop, until(f"a window {title}", look).pop())

    def alone(self):
        """Waits until no other window of it is there."""
        until("the end of the other windows", lambda: self.numbers() == {self.number})

    def ended(self):
        """Waits for its end and answers its status."""
        until("the end", lambda: self.process.poll() is not None)
        return self.process.returncode

    # The board: places are sockets by name, or board pixels

    def place(self, where):
        x, y = PLACE[where] if isinstance(where, str) else where
        return int((x + 0.5) * self.scale), self.menu + int((y + 0.5) * self.scale)

    def move(self, where):
        self.desktop.do("mousemove", "--window", self.number, *self.place(where))

    def click(self, where, button=1):
        self.desktop.do("mousemove", "--window", self.number, *self.place(where), "click", button)

    def wire(self, first, second):
        self.click(first)
        self.click(second)

    def choose(self, access, *steps):
        """Opens a menu by its access key, walks to an item and chooses it. The walk begins at the
        menu's first item and passes over those that are disabled."""
        before = self.numbers()
        self.keys(access)
        menu = until("the menu", lambda: self.numbers() - before)
        self.desktop.do("key", *steps, "Return")
        until("the end of the menu", lambda: not self.numbers() & menu)

    def leave(self):
        """Takes the pointer off the window, so that no ring is on the board."""
        self.desktop.do("mousemove", 1, 1)

    def board(self):
        """What the screen shows of the board."""
        return self.picture().part(0, self.menu, *(whole(side * self.scale)
                                                   for side in (WIDTH, HEIGHT)))

    def shows(self, what, expected):
        """Waits until the board looks as expected."""
        def look():
            self.last = self.board()
            return self.last == expected
        try:
            until(what, look)
        except AssertionError as failure:
            wrong = self.last.differences(expected)
            raise AssertionError(f"{failure}: {len(wrong)} pixels differ, the first at "
                                 f"{wrong[:3]}; log: {self.log()}") from None


class DesktopTest(unittest.TestCase):
    """A test with a desktop of its own."""

    def setUp(self):
        if missing():
            self.skipTest(missing())
        self.desktop = Desktop()
        self.desktop.__enter__()
        self.addCleanup(self.desktop.__exit__)
        self.files = self.desktop.files

    def start(self, *arguments, **more):
        return Veltrix(self.desktop, *arguments, **more)

    def put(self, name, board):
        """A board as a document; answers its path."""
        path = self.files / name
        path.write_bytes(board.write())
        return path

    def render(self, board, scale=1, ticks=10):
        """The picture of a board after some ticks, drawn without a window."""
        document = self.put("render.vtx", board) if isinstance(board, Board) else board
        picture = self.files / "render.png"
        subprocess.run([BUILD / "veltrix-cli", "render", document, "--ticks", str(ticks),
                        "--scale", str(scale), "--out", picture], check=True, timeout=LIMIT)
        return Picture.of_file(picture)

    def ends_well(self, veltrix):
        """The program ends by itself, and nothing was found wrong with it."""
        status = veltrix.ended()
        self.assertEqual(status, 0, veltrix.log())
        self.assertNotRegex(veltrix.log(), "Sanitizer|runtime error")
