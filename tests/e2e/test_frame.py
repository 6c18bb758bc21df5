import re

from board_document import Board
from board_sockets import PLACE
from desktop import HEIGHT, WIDTH, DesktopTest, until, whole

MINIMISE, MAXIMISE, CLOSE = 0x08, 0x10, 0x20  # of a window's functions, in the Motif hints


class Frame(DesktopTest):
    def test_the_window_keeps_its_size(self):
        veltrix = self.start()
        width, height = veltrix.size()
        hints = veltrix.property("WM_NORMAL_HINTS")
        for bound in "minimum", "maximum":
            self.assertIn(f"specified {bound} size: {width} by {height}", hints)
        functions = int(veltrix.property("_MOTIF_WM_HINTS").split("=")[1].split(",")[1], 16)
        self.assertTrue(functions & CLOSE)
        self.assertFalse(functions & (MINIMISE | MAXIMISE))

    def test_it_stands_in_the_middle(self):
        veltrix = self.start()
        place = veltrix.property("WM_NORMAL_HINTS")
        x, y = map(int, re.search(r"location: (\d+), (\d+)", place).groups())
        width, height = veltrix.size()
        # The server's screen is 1600 by 1300; half of it is left on each side.
        self.assertAlmostEqual(x, (1600 - width) / 2, delta=1)
        self.assertAlmostEqual(y, (1300 - height) / 2, delta=1)

    def test_a_changed_board_is_asked_about(self):
        veltrix = self.start()
        self.assertEqual(veltrix.title(), "Veltrix versie 2.0")
        veltrix.click("Drukknop 1")
        veltrix.leave()
        veltrix.shows("the pressed button", self.render(Board(buttons=[True, False])))
        veltrix.close()
        veltrix.window(r"Veltrix versie 2\.0").keys("Escape")
        veltrix.alone()
        veltrix.keys("ctrl+z")
        veltrix.shows("the board as it began", self.render(Board()))
        veltrix.close()
        self.ends_well(veltrix)

    def test_the_board_is_crisp_on_every_screen(self):
        board = Board(wires=[("Drukknop 1 Uit Geel", "LED 1 Ingang")], buttons=[True, False])
        path = self.put("bel.vtx", board)
        for scale in 2, 3:
            with self.subTest(scale=scale):
                veltrix = self.start(path, scale=scale, title=".* bel.vtx")
                veltrix.leave()
                veltrix.shows("the board", self.render(board, scale))
                veltrix.click("Drukknop 1")
                veltrix.leave()
                off = Board(wires=board.wires)
                veltrix.shows("the button let go", self.render(off, scale))

    def test_a_screen_between_two_scales_keeps_the_boards_proportions(self):
        for scale in 1.25, 1.5:
            with self.subTest(scale=scale):
                veltrix = self.start(scale=scale)
                width, height = veltrix.size()
                self.assertEqual(width, whole(WIDTH * scale))
                self.assertGreater(height, HEIGHT * scale)
                veltrix.leave()
                rest = veltrix.board()
                veltrix.click("Drukknop 1")
                veltrix.leave()
                until("the pressed button", lambda: veltrix.board() != rest)
                x, y = PLACE["Drukknop 1"]
                for at in veltrix.board().differences(rest):
                    self.assertLess(abs(at[0] / scale - x), 20, "beside the button")
                    self.assertLess(abs(at[1] / scale - y), 20, "beside the button")
