from planted import ROOT, PlantedTree


class Words(PlantedTree):
    def check(self):
        return self.start(str(ROOT / "tools/checks/words"), str(self.tree))

    def assert_found(self, text, fault, name="board/bad.h"):
        path = self.plant(name, text)
        self.assert_fails(self.check(), f"{name}:", fault, "FAIL: words (1 faults)")
        path.unlink()

    def test_plain_text_passes(self):
        self.plant("README.md", "A board of 24 sockets: één blik op https://www.w3.org/2000/svg\n")
        self.plant("examples/a.vtx", b"\xff\r\n")
        self.plant("images1/a.png", b"\0 \r")
        self.plant("build/release/notes.txt", "TO" "DO")
        self.assert_passes(self.check(), "OK: words (1 texts)")

    def test_each_rule(self):
        self.assert_found("// TO" "DO: later\n", "a note of work to be done: TO" "DO")
        self.assert_found("<" * 7 + " HEAD\n", "a mark of an unfinished merge")
        self.assert_found("// See bug " "#12.\n", "the number of a ticket")
        self.assert_found("// from /ho" "me/anna/board\n", "a path of somebody's machine")
        self.assert_found("// see https:/" "/elsewhere.net/x\n", "outside the tree: elsewhere.net")
        self.assert_found("int a; \n", "blanks at the end of the line")
        self.assert_found("int a;\r\n", "a carriage return", "x.md")
        self.assert_found("int a;", "the last line has no end")
        self.assert_found(b"caf\xe9\n", "not UTF-8")

    def test_tree_without_texts_is_no_success(self):
        self.assert_fails(self.check(), "there is no text")
