from planted import PlantedTree

CLEAN = "int twice(int value);\n"


class Format(PlantedTree):
    def setUp(self):
        super().setUp()
        self.borrow(".clang-format", "tools/checks/format", "tools/checks/sources")

    def test_formatted_tree_passes(self):
        self.plant("board/a.cpp", CLEAN)
        self.plant("build/asan/moc_a.cpp", "int  a ;\n")
        self.assert_passes(self.start("tools/checks/format"), "OK: format")

    def test_unformatted_file_is_named(self):
        self.plant("board/a.cpp", CLEAN)
        self.plant("tests/board/map met spatie/b.h", "int  twice( int value );\n")
        self.assert_fails(self.start("tools/checks/format"), "b.h:1:", "FAIL: format")

    def test_tree_without_a_file_and_settings_that_nobody_understands_are_no_success(self):
        self.assert_fails(self.start("tools/checks/format"), "FAIL: format: there is no C++ file")
        self.plant("board/a.cpp", CLEAN)
        self.plant(".clang-format", "nonsense\n")
        self.assert_fails(self.start("tools/checks/format"), "FAIL: format")


class Shell(PlantedTree):
    def setUp(self):
        super().setUp()
        self.borrow("tools/checks/shell")

    def test_faultless_scripts_pass(self):
        self.plant("go", "#!/bin/sh\necho \"$1\"\n")
        self.plant("notes", "a $* that is no script\n")
        self.assert_passes(self.start("tools/checks/shell"), "OK: shell (2 scripts)")

    def test_fault_is_found_in_each_folder(self):
        for name in ("go", ".ci/go", "a b/go"):
            with self.subTest(name=name):
                path = self.plant(name, "#!/usr/bin/env bash\nrm $1\n")
                self.assert_fails(self.start("tools/checks/shell"), "SC2086", "FAIL: shell")
                path.unlink()


class Tidy(PlantedTree):
    def setUp(self):
        super().setUp()
        self.borrow(".clang-tidy", ".clang-format", "tools/checks/tidy")
        self.plant("CMakeLists.txt", "cmake_minimum_required(VERSION 3.25)\n"
                   "project(planted LANGUAGES CXX)\n"
                   "include_directories(.)\n"
                   "add_library(board board/a.cpp board/b.cpp)\n")
        self.plant("board/a.h", "#pragma once\nint* first();\n")
        self.plant("board/a.cpp", '#include "board/a.h"\n\nint* first() { return nullptr; }\n')
        self.plant("board/b.cpp", "int second() { return 2; }\n")

    def tidy(self):
        build = self.tree / "build"
        made = self.start("cmake", "-G", "Ninja", "-S", str(self.tree), "-B", str(build),
                          "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON")
        self.assert_passes(made)
        self.assert_passes(self.start("cmake", "--build", str(build)))
        return self.start("tools/checks/tidy", str(build))

    def test_only_what_changed_is_read_again(self):
        self.assert_passes(self.tidy(), "OK: tidy (2 files, 2 of them read now)")
        self.assert_passes(self.tidy(), "OK: tidy (2 files, 0 of them read now)")
        self.plant("board/a.h", "#pragma once\nint* first(); // another header\n")
        self.assert_passes(self.tidy(), "OK: tidy (2 files, 1 of them read now)")

    def test_finding_is_reported_until_it_is_gone(self):
        clean = (self.tree / "board/a.cpp").read_text()
        self.plant("board/a.cpp", clean.replace("nullptr", "0"))
        for _ in range(2):
            self.assert_fails(self.tidy(), "board/a.cpp:3:", "modernize-use-nullptr",
                              "FAIL: tidy (1 files with findings)")
        self.plant("board/a.cpp", clean)
        self.assert_passes(self.tidy(), "OK: tidy")

    def test_changed_settings_read_everything_again(self):
        self.assert_passes(self.tidy())
        settings = self.tree / ".clang-tidy"
        settings.write_text(settings.read_text() + "# another\n")
        self.assert_passes(self.tidy(), "2 of them read now")
