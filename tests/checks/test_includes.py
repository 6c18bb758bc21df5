from planted import ROOT, PlantedTree


class Includes(PlantedTree):
    def check(self):
        return self.start(str(ROOT / "tools/checks/includes"), str(self.tree))

    def assert_allowed(self, name, line):
        self.plant(name, line + "\n")
        self.assert_passes(self.check(), "OK: includes")

    def assert_found(self, name, line, fault):
        self.plant("board/clean.h", "#pragma once\n")
        path = self.plant(name, "// first line\n" + line + "\n")
        self.assert_fails(self.check(), f"{name}:2: {fault}", "FAIL: includes (1 faults)")
        path.unlink()

    def test_each_room_may_include_the_rooms_it_builds_on(self):
        for room in ("board", "instruments", "sim", "document", "editing", "app", "app/qt", "cli"):
            self.plant(f"{room}/a.h")
        for name, line in [("sim/b.h", '#include "instruments/a.h"'),
                           ("document/b.h", '#include "board/a.h"'),
                           ("editing/b.h", '#include "document/a.h"'),
                           ("app/b.h", '#include "editing/a.h"'),
                           ("app/qt/b.h", '#include "app/a.h"'),
                           ("app/qt/c.h", "#include <QWidget>"),
                           ("app/qt/d.cpp", '#include "d.moc"'),
                           ("cli/b.h", '#include "app/a.h"'),
                           ("board/b.h", "#include <queue>"),
                           ("tests/b.cpp", '#include "app/qt/a.h"'),
                           ("bench/b.cpp", "#include <QString>")]:
            with self.subTest(name=name, line=line):
                self.assert_allowed(name, line)

    def test_toolkit_in_a_room_without_it(self):
        for room in ("board", "instruments", "sim", "document", "editing", "app", "cli"):
            for header in ("<QString>", "<QtCore/QString>", "<QtGlobal>", "<qglobal.h>",
                           '"QString"'):
                with self.subTest(room=room, header=header):
                    self.assert_found(f"{room}/bad.h", f"#include {header}",
                                      f"{room} knows no toolkit")

    def test_include_of_a_room_below(self):
        for room, below in [("board", "instruments"), ("instruments", "sim"), ("sim", "document"),
                            ("document", "sim"), ("document", "editing"), ("editing", "app"),
                            ("app", "app/qt"), ("app", "cli"), ("cli", "app/qt"),
                            ("app/qt", "cli")]:
            self.plant(f"{below}/a.h")
            with self.subTest(room=room, below=below):
                self.assert_found(f"{room}/bad.cpp", f'#include "{below}/a.h"',
                                  f"{room} may not build on {below}")
                self.assert_found(f"{room}/bad.cpp", f"#include <{below}/a.h>",
                                  f"{room} may not build on {below}")

    def test_ways_to_hide_an_include(self):
        self.plant("sim/a.h")
        self.assert_found("board/bad.h", '  #  include   "sim/a.h"', "board may not build on sim")
        self.assert_found("board/bad.h", '/* x */ #include "sim/a.h"', "board may not build on sim")
        self.assert_found("board/bad.h", '#include \\\n"sim/a.h"', "board may not build on sim")
        self.assert_found("board/bad.h", '#include "../sim/a.h"', "include paths start at the root")
        self.assert_found("board/bad.h", '#include "board/../sim/a.h"', "include paths go straight")
        self.assert_found("board/bad.h", "#include SIM_HEADER", "the name behind #include")

    def test_include_of_what_stands_outside_the_house(self):
        self.plant("tests/a.h")
        self.assert_found("board/bad.h", '#include "tests/a.h"', "board may not build on what")

    def test_path_that_does_not_start_at_the_root(self):
        self.plant("board/a.h")
        self.assert_found("board/bad.h", '#include "a.h"', "include paths start at the root")

    def test_libraries_linked(self):
        self.assert_found("board/CMakeLists.txt", "veltrix_library(veltrix_board DEPENDS veltrix_sim)",
                          "board may not build on sim")
        self.assert_found("app/CMakeLists.txt", "target_link_libraries(veltrix_app veltrix_app_qt)",
                          "app may not build on app/qt")
        self.assert_found("sim/CMakeLists.txt", "target_link_libraries(veltrix_sim Qt6::Core)",
                          "sim knows no toolkit")
        self.assert_found("cli/CMakeLists.txt", "find_package(Qt6 REQUIRED)",
                          "cli knows no toolkit")
        self.assert_allowed("sim/CMakeLists.txt", "# Qt6::Core would be too much\n"
                            "veltrix_library(veltrix_sim DEPENDS veltrix_board)")

    def test_tree_without_sources_is_no_success(self):
        self.assert_fails(self.check(), "there is no source file")
