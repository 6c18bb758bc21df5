import json
import os
import pty
import shutil
import subprocess

from planted import PlantedTree


class Build(PlantedTree):
    def setUp(self):
        super().setUp()
        self.borrow("tools/build")
        self.plant("CMakePresets.json", json.dumps({
            "version": 4,
            "configurePresets": [{"name": "release", "generator": "Ninja",
                                  "binaryDir": "${sourceDir}/build/${presetName}"}],
            "buildPresets": [{"name": "release", "configurePreset": "release"}]}))
        self.plant("CMakeLists.txt", "cmake_minimum_required(VERSION 3.25)\n"
                   "project(planted LANGUAGES NONE)\n"
                   "file(WRITE ${PROJECT_BINARY_DIR}/place ${PROJECT_SOURCE_DIR})\n"
                   "add_custom_command(OUTPUT made COMMAND ${CMAKE_COMMAND} -E copy\n"
                   "    ${PROJECT_SOURCE_DIR}/source made DEPENDS source VERBATIM)\n"
                   "add_custom_target(all_of_it ALL DEPENDS made)\n")
        self.plant("source", "first\n")

    def build(self, *arguments):
        return self.start("tools/build", *arguments)

    def test_builds_in_one_line(self):
        result = self.build("release")
        self.assert_passes(result)
        self.assertEqual(result.stdout + result.stderr, "OK: build (preset release)\n")
        self.assertEqual((self.tree / "build/release/made").read_text(), "first\n")

    def test_builds_on_a_terminal_also_when_there_is_nothing_to_do(self):
        master, terminal = pty.openpty()
        self.addCleanup(os.close, master)
        self.addCleanup(os.close, terminal)
        for _ in range(2):
            done = subprocess.run([self.tree / "tools/build", "release"], stdout=subprocess.PIPE,
                                  stderr=terminal, text=True, check=False)
            self.assertEqual((done.returncode, done.stdout), (0, "OK: build (preset release)\n"))

    def test_shows_why_building_failed(self):
        (self.tree / "source").unlink()
        self.assert_fails(self.build("release"), "source", "FAIL: building (preset release)")

    def test_shows_why_configuring_failed(self):
        self.plant("CMakeLists.txt", "nonsense()\n")
        self.assert_fails(self.build("release"), "nonsense", "FAIL: configuring (preset release)")

    def test_tree_that_was_moved_with_its_build_builds_where_it_is_now(self):
        self.assert_passes(self.build("release"))
        moved = self.tree / "elders"
        shutil.copytree(self.tree, moved, ignore=shutil.ignore_patterns("elders"))
        self.assert_passes(self.start("elders/tools/build", "release"))
        self.assertEqual((moved / "build/release/place").read_text(), str(moved))
