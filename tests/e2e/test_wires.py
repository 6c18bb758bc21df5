from board_document import Board
from board_sockets import PLACE
from desktop import DesktopTest, until

BUTTON, FIRST, LAST = "Drukknop 1", "Drukknop 1 Uit Geel", "LED 1 Ingang"
MIDDLE = tuple((a + b) // 2 for a, b in zip(PLACE[FIRST], PLACE[LAST]))
LED = 381, 35, 16, 16  # the middle of LED 1
REMOVE = "alt+w", "Right", "Down", "Down"  # the menu beside it has no access key


class Wires(DesktopTest):
    def test_a_wire_from_its_first_click_to_its_last(self):
        board = Board()
        veltrix = self.start()
        veltrix.leave()
        veltrix.shows("an empty board", self.render(board))
        empty = veltrix.board()

        veltrix.click(FIRST)
        veltrix.move(LAST)
        until("the wire in hand", lambda: veltrix.board().pixel(*MIDDLE) != empty.pixel(*MIDDLE))
        veltrix.click(LAST)
        veltrix.leave()
        board.wires.append((FIRST, LAST))
        veltrix.shows("the wire's beads", self.render(board))
        low = veltrix.board()
        self.assert_beads(low, empty)

        veltrix.click(BUTTON)
        veltrix.leave()
        board.buttons[0] = True
        veltrix.shows("the light", self.render(board))
        high = veltrix.board()
        self.assertNotEqual(high.pixel(*MIDDLE), low.pixel(*MIDDLE), "the wire has one colour")
        red, green, blue = high.part(*LED).mean()
        self.assertGreater(red, 1.5 * max(green, blue), "the LED is not red")
        self.assertGreater(red, 1.5 * low.part(*LED).mean()[0], "the LED was lit before")

        veltrix.keys("ctrl+z")
        board.buttons[0] = False
        veltrix.shows("the board before the press", low)
        veltrix.keys("ctrl+z")
        veltrix.shows("the board before the wire", empty)
        veltrix.keys("ctrl+y", "ctrl+y")
        veltrix.shows("the light again", high)

        veltrix.choose(*REMOVE)
        veltrix.move(MIDDLE)
        until("the mark on the wire", lambda: veltrix.board().pixel(*MIDDLE) not in
              (low.pixel(*MIDDLE), high.pixel(*MIDDLE)))
        veltrix.click(MIDDLE)
        veltrix.leave()
        board.wires.clear()
        board.buttons[0] = True
        veltrix.shows("the board without the wire", self.render(board))

        veltrix.close()
        question = veltrix.window(r"Veltrix versie 2\.0")
        question.keys("Tab", "space")  # no
        self.ends_well(veltrix)

    def assert_beads(self, board, empty):
        """A bead every ten pixels, each as wide as half its picture: the way between the ends is
        covered, and nothing is that lies further from it than a bead reaches."""
        (x1, y1), (x2, y2) = PLACE[FIRST], PLACE[LAST]
        covered = set(board.differences(empty))
        for part in range(1, 10):
            self.assertIn((x1 + (x2 - x1) * part // 10, y1 + (y2 - y1) * part // 10), covered)
        length = ((x2 - x1) ** 2 + (y2 - y1) ** 2) ** 0.5
        for x, y in covered:
            off = abs((x2 - x1) * (y - y1) - (y2 - y1) * (x - x1)) / length
            self.assertLess(off, 24, f"({x}, {y}) lies beside the wire")

    def test_a_wire_between_two_outputs_is_refused(self):
        veltrix = self.start()
        veltrix.wire("Drukknop 1 Uit Geel", "Drukknop 2 Uit Geel")
        box = veltrix.window(".*")
        box.keys("Return")
        veltrix.alone()
        veltrix.leave()
        veltrix.shows("an empty board", self.render(Board()))
        veltrix.close()  # unasked: the board is unchanged
        self.ends_well(veltrix)

    def test_escape_lets_go_of_the_wire_in_hand(self):
        veltrix = self.start()
        veltrix.leave()
        veltrix.shows("an empty board", self.render(Board()))
        empty = veltrix.board()
        veltrix.click(FIRST)
        veltrix.move(LAST)
        until("the wire in hand", lambda: veltrix.board().pixel(*MIDDLE) != empty.pixel(*MIDDLE))
        veltrix.keys("Escape")
        veltrix.leave()
        veltrix.shows("an empty board", empty)
        veltrix.close()
        self.ends_well(veltrix)
