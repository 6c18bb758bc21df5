from board_document import Board
from desktop import DesktopTest, until

BUTTON, FIRST, LAST = "Drukknop 1", "Drukknop 1 Uit Geel", "LED 1 Ingang"
SAVE_AS = "alt+b", "Down", "Down"  # as long as Bewaren, the third, is disabled
QUESTION = r"Veltrix versie 2\.0"


class Files(DesktopTest):
    def test_a_board_is_saved_and_opened_again(self):
        board = Board(wires=[(FIRST, LAST)])
        path = self.files / "deurbel.vtx"
        veltrix = self.start()
        veltrix.wire(FIRST, LAST)
        veltrix.choose(*SAVE_AS)
        dialog = veltrix.window("Bewaren als")
        dialog.type("deurbel")
        dialog.keys("Return")
        until("the file", path.exists)
        until("the caption", lambda: veltrix.title() == "Veltrix versie 2.0 - deurbel.vtx")
        self.assertEqual(path.read_bytes(), board.write())

        veltrix.click(BUTTON)
        board.buttons[0] = True
        veltrix.keys("ctrl+s")
        until("the file with the button", lambda: path.read_bytes() == board.write())
        veltrix.close()
        veltrix.window(QUESTION).keys("Tab", "space")  # no: it is saved, and still asked about
        self.ends_well(veltrix)

        veltrix = self.start(path, title=r"Veltrix versie 2\.0 - deurbel\.vtx")
        veltrix.leave()
        veltrix.shows("the board that was saved", self.render(board))
        veltrix.keys("ctrl+s")
        veltrix.close()
        box = veltrix.window(QUESTION)
        box.keys("Escape")
        veltrix.alone()
        self.assertEqual(path.read_bytes(), board.write())
        self.assertEqual(sorted(entry.name for entry in self.files.iterdir()),
                         ["deurbel.vtx", "render.png", "render.vtx"], "nothing is left beside it")

    def test_it_asks_before_it_overwrites(self):
        old = Board(counter=5)
        path = self.put("oud.vtx", old)
        veltrix = self.start()
        for keys in (("Tab", "space"), ("Return",)):
            self.assertEqual(path.read_bytes(), old.write())
            veltrix.choose(*SAVE_AS)
            dialog = veltrix.window("Bewaren als")
            dialog.type("oud.vtx")
            dialog.keys("Return")
            veltrix.window(QUESTION).keys(*keys)
            veltrix.alone()
        until("the new board in the file", lambda: path.read_bytes() == Board().write())
        veltrix.close()
        self.ends_well(veltrix)

    def test_a_file_that_is_not_there_is_told_of(self):
        veltrix = self.start(self.files / "weg.vtx")
        veltrix.window("Fout").keys("Return")
        veltrix.alone()
        veltrix.leave()
        veltrix.shows("an empty board", self.render(Board()))
        self.assertEqual(veltrix.title(), "Veltrix versie 2.0")
        veltrix.close()
        self.ends_well(veltrix)

    def test_a_folder_that_is_gone_does_not_take_the_board_with_it(self):
        stick = self.files / "stick"
        stick.mkdir()
        board = Board(wires=[(FIRST, LAST)])
        path = self.put("stick/bel.vtx", board)
        veltrix = self.start(path, title=r"Veltrix versie 2\.0 - bel\.vtx")
        path.unlink()
        stick.rmdir()
        veltrix.keys("ctrl+s")
        veltrix.window(QUESTION).keys("Return")
        veltrix.alone()
        veltrix.leave()
        veltrix.shows("the board", self.render(board))
        stick.mkdir()
        veltrix.keys("ctrl+s")
        until("the file in the new folder", lambda: path.exists() and
              path.read_bytes() == board.write())
