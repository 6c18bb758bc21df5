import os
import pathlib
import time

from board_document import Board
from desktop import SANITIZED, DesktopTest

SECONDS = 3
MEBIBYTE = 1024 * 1024


class Idle(DesktopTest):
    def test_what_an_idle_window_costs(self):
        """The processor's time is told and not judged: it is the machine's as much as ours."""
        veltrix = self.start()
        veltrix.leave()
        veltrix.shows("an empty board", self.render(Board()))
        process = pathlib.Path(f"/proc/{veltrix.process.pid}")

        def ticks():
            fields = (process / "stat").read_text().rpartition(")")[2].split()
            return int(fields[11]) + int(fields[12])

        before, began = ticks(), time.monotonic()
        time.sleep(SECONDS)  # what is measured is what happens meanwhile
        used = (ticks() - before) / os.sysconf("SC_CLK_TCK")
        elapsed = time.monotonic() - began
        resident = int((process / "statm").read_text().split()[1]) * os.sysconf("SC_PAGE_SIZE")
        print(f"idle: {100 * used / elapsed:.1f} % of a core, "
              f"{resident / MEBIBYTE:.1f} MiB resident")
        if not SANITIZED:
            self.assertLess(resident, 50_000_000)
