from planted import ROOT, PlantedTree


class Untested(PlantedTree):
    def check(self):
        return self.start(str(ROOT / "tools/checks/untested"), str(self.tree))

    def test_tested_headers_pass(self):
        self.plant("board/a.h")
        self.plant("tests/board/aTest.cpp")
        self.plant("app/qt/b.h")
        self.plant("tests/app/qt/bColoursTest.cpp")
        self.assert_passes(self.check(), "OK: untested (2 headers)")

    def test_untested_header_is_named(self):
        self.plant("board/a.h")
        self.plant("tests/sim/aTest.cpp")
        self.assert_fails(self.check(), "board/a.h: no test of its own, and no reason",
                          "FAIL: untested (1 faults)")

    def test_explained_header_is_listed_with_its_reason(self):
        self.plant("board/a.h")
        self.plant("tests/untested.txt", "# why\n\nboard/a.h only names\n")
        self.assert_passes(self.check(), "board/a.h: no test of its own: only names\n")

    def test_reason_must_be_given_and_hold(self):
        self.plant("board/a.h")
        self.plant("tests/untested.txt", "board/a.h\n")
        self.assert_fails(self.check(), "no reason")
        self.plant("tests/untested.txt", "board/a.h only names\nboard/gone.h only names\n")
        self.assert_fails(self.check(), "board/gone.h", "no such header")
        self.plant("tests/untested.txt", "board/a.h only names\n")
        self.plant("tests/board/aTest.cpp")
        self.assert_fails(self.check(), "board/a.h", "yet it has a test")
