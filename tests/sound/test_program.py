"""The real program on a desktop and a sound server of the test's own: somebody presses the door
bell and listens, and meanwhile the server hangs.

Exit 77 where no sound server or no desktop can be had; ctest counts that as skipped.
"""
import array
import contextlib
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "tests/e2e"), str(ROOT / "tests/cli/model")]
from desktop import Desktop, Veltrix, missing, until  # noqa: E402

SKIPPED = 77
BELL = ROOT / "examples/deurbel.vtx"
BUTTON = 30, 180  # the push button 1, in board pixels
RATE = 44100
FORMAT = ["--raw", "--format=s16le", "--channels=1", f"--rate={RATE}", "--latency-msec=10"]


class NoServer(Exception):
    """No sound server can be started here."""


class SoundServer:
    """A loudspeaker that nobody hears, and an input that hears the sink "feed"."""

    def __enter__(self):
        with contextlib.ExitStack() as stack:
            folder = stack.enter_context(tempfile.TemporaryDirectory(prefix="veltrix-sound-"))
            socket = f"{folder}/server"
            environment = os.environ | dict.fromkeys(
                ("HOME", "XDG_RUNTIME_DIR", "PULSE_STATE_PATH", "PULSE_RUNTIME_PATH"), folder)
            for name in ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "PULSE_SERVER"):
                environment.pop(name, None)
            os.environ["PULSE_SERVER"] = f"unix:{socket}"
            os.environ["PULSE_COOKIE"] = environment["PULSE_COOKIE"] = f"{folder}/cookie"
            modules = [f"module-native-protocol-unix auth-anonymous=1 socket={socket}",
                       "module-null-sink sink_name=out norewinds=1",
                       "module-null-sink sink_name=feed norewinds=1",
                       "module-remap-source source_name=mic master=feed.monitor "
                       "source_properties=device.description=Mic"]
            self.log = stack.enter_context(open(f"{folder}/log", "w+b"))
            try:
                # A test that is killed must not leave its server behind.
                self.process = subprocess.Popen(
                    ["setpriv", "--pdeathsig", "KILL", "pulseaudio", "-n", "--daemonize=no",
                     "--use-pid-file=no", "--exit-idle-time=-1", "--realtime=no",
                     "--high-priority=no"] +
                    [word for module in modules for word in ("-L", module)],
                    env=environment, stdout=self.log, stderr=self.log)
            except OSError as error:
                raise NoServer(error) from error
            stack.callback(self._end)
            until("the sound server", self._answers)
            self._stack = stack.pop_all()
        return self

    def __exit__(self, *_):
        self._stack.close()

    def _answers(self):
        if self.process.poll() is not None:
            self.log.seek(0)
            raise NoServer(self.log.read().decode(errors="replace"))
        return subprocess.run(["pactl", "stat"], stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, check=False).returncode == 0

    def _end(self):
        if self.process.poll() is None:
            self.hang(False)
            self.process.terminate()
            self.process.wait()

    def hang(self, hanging=True):
        self.process.send_signal(signal.SIGSTOP if hanging else signal.SIGCONT)


@contextlib.contextmanager
def recording(folder):
    """What the loudspeaker plays from now on; gives a function that answers the samples so far."""
    file = folder / "recorded"
    with open(file, "wb") as out:
        process = subprocess.Popen(["parec", "-d", "out.monitor", *FORMAT], stdout=out)

    def samples():
        data = file.read_bytes()
        return array.array("h", data[:len(data) // 2 * 2])
    try:
        until("the recording", samples)
        yield samples
    finally:
        process.kill()
        process.wait()


def loud(samples):
    return any(abs(sample) > 200 for sample in samples)


class Program(unittest.TestCase):
    def setUp(self):
        self.server = self.enter(SoundServer())

    def enter(self, context):
        value = context.__enter__()
        self.addCleanup(context.__exit__, None, None, None)
        return value

    def start(self):
        self.desktop = self.enter(Desktop())
        return Veltrix(self.desktop, BELL, title=".*deurbel.*")

    def ring(self, veltrix):
        """Presses the button and sees that the board answers."""
        veltrix.leave()
        before = veltrix.board()
        veltrix.click(BUTTON)
        veltrix.leave()
        until("the lamps", lambda: veltrix.board() != before)

    def end(self, veltrix):
        veltrix.keys("alt+F4")
        box = veltrix.window("Veltrix.*")
        box.keys("Tab", "Return")
        self.assertEqual(veltrix.ended(), 0, veltrix.log())

    def test_door_bell_rings_until_it_is_let_go(self):
        veltrix = self.start()
        with recording(self.desktop.folder) as heard:
            self.ring(veltrix)
            until("the bell", lambda: loud(heard()))
            ringing = len(heard())
            until("more than the length of the file", lambda: len(heard()) > ringing + 3 * RATE)
            second = heard()[-RATE:]
            self.assertTrue(all(loud(second[at:at + RATE // 10])
                                for at in range(0, len(second), RATE // 10)))
            self.ring(veltrix)
            until("silence", lambda: not loud(heard()[-RATE // 2:]))
        self.assertEqual(veltrix.log(), "")
        self.end(veltrix)

    def test_dialog_shows_what_is_heard(self):
        veltrix = self.start()
        veltrix.keys("alt+w", "Up", "Return")
        dialog = veltrix.window("Geluid Sensor")
        dialog.focus()
        until("the dialog", lambda: len(set(dialog.picture().data)) > 2)
        quiet = dialog.picture()
        # Two meters, of which a good part is filled; not a button that gets the focus.
        bars = 2 * 150 * 14
        tone = self.desktop.folder / "tone"
        # A saw of 441 swings a second.
        saw = array.array("h", [i % 100 * 400 - 20000 for i in range(30 * RATE)])
        tone.write_bytes(saw.tobytes())
        player = self.desktop.start("pacat", "-d", "feed", *FORMAT, str(tone))
        until("a meter", lambda: len(dialog.picture().differences(quiet)) > bars)
        player.kill()
        until("silence", lambda: len(dialog.picture().differences(quiet)) < bars / 8)
        dialog.keys("Return")
        veltrix.alone()
        self.end(veltrix)

    def test_server_that_hangs_from_the_start_holds_up_nothing(self):
        self.server.hang()
        veltrix = self.start()
        self.ring(veltrix)
        self.end(veltrix)

    def test_server_that_hangs_later_holds_up_nothing(self):
        veltrix = self.start()
        self.ring(veltrix)
        self.server.hang()
        self.ring(veltrix)
        self.ring(veltrix)
        self.end(veltrix)


def why_not():
    """Why these tests cannot run here; nothing when they can."""
    needed = ["pulseaudio", "pactl", "pacat", "parec"]
    if any(shutil.which(tool) is None for tool in needed):
        return "these Debian packages are missing: pulseaudio pulseaudio-utils"
    if missing():
        return missing()
    try:
        with SoundServer():
            return None
    except NoServer as error:
        return f"the sound server does not start: {error}"


if __name__ == "__main__":
    reason = why_not()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main()
