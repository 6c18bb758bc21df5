import socket

from planted import PlantedMachine


class Run(PlantedMachine):
    """./run in a tree whose build leaves programs that only note how they were called."""

    def setUp(self):
        super().setUp()
        self.borrow("run")
        self.lend("bash", "env", "sed", "dirname", "mkdir", "mktemp", "timeout")
        self.fake("xdpyinfo", 'exit "${CLOSED:-0}"')
        self.plant("setup", '#!/bin/bash\necho "setup $*" >>"$CALLS"\n', executable=True)
        self.plant("tools/build", '#!/bin/bash\necho "build $*" >>"$CALLS"\n', executable=True)
        for program in ("veltrix", "veltrix-cli"):
            self.plant(f"build/release/{program}",
                       f'#!/bin/bash\necho "{program} in $PWD:" "$@" >>"$CALLS"\nexit "${{ENDS:-0}}"\n',
                       executable=True)
        self.caller = self.tree / "map van de beller"
        self.caller.mkdir()
        (self.caller / "één bord.vtx").touch()

    def run_it(self, *arguments, **environment):
        return self.start("run", *arguments, cwd=self.caller,
                          env=self.environment(**environment))

    def test_installs_and_builds_before_it_starts_the_window(self):
        self.assert_passes(self.run_it(DISPLAY=":7"))
        self.assertEqual(self.called(), ["setup run", "build release", "xdpyinfo ",
                                         f"veltrix in {self.caller}:"])

    def test_hands_on_the_board_in_the_folder_of_the_caller(self):
        self.assert_passes(self.run_it("één bord.vtx", DISPLAY=":7"))
        self.assertEqual(self.called()[-1], f"veltrix in {self.caller}: één bord.vtx")

    def test_ends_as_the_program_ends(self):
        self.assertEqual(self.run_it(DISPLAY=":7", ENDS="3").returncode, 3)

    def test_writes_a_picture_without_a_display(self):
        result = self.run_it("één bord.vtx")
        picture = self.tree / "build/pictures/één bord.png"
        self.assert_passes(result, "There is no display")
        self.assertEqual(result.stdout.splitlines()[-1], str(picture))
        self.assertEqual(self.called()[-1], f"veltrix-cli in {self.caller}: render één bord.vtx "
                         f"--ticks 100 --scale 2 --out {picture}")

    def test_writes_a_picture_when_the_display_does_not_open(self):
        result = self.run_it("één bord.vtx", DISPLAY=":7", CLOSED="1")
        self.assert_passes(result, "The display :7 cannot be opened")
        self.assertIn("veltrix-cli", self.called()[-1])

    def test_draws_the_empty_board_when_none_is_named(self):
        self.assert_passes(self.run_it(), str(self.tree / "build/pictures/leeg.png"))
        self.assertIn(f"render {self.tree / 'examples/leeg.vtx'} ", self.called()[-1])

    def test_wayland_display_counts_when_its_socket_is_there(self):
        self.assert_passes(self.run_it(WAYLAND_DISPLAY="wayland-0", XDG_RUNTIME_DIR=str(self.tree)),
                           "The display wayland-0 cannot be opened")
        with socket.socket(socket.AF_UNIX) as listener:
            listener.bind(str(self.tree / "wayland-0"))
            self.assert_passes(self.run_it(WAYLAND_DISPLAY="wayland-0",
                                           XDG_RUNTIME_DIR=str(self.tree)))
        self.assertTrue(self.called()[-1].startswith("veltrix in"))

    def test_missing_board_is_told_before_anything_is_built(self):
        result = self.run_it("weg.vtx")
        self.assert_fails(result, "there is no board document weg.vtx")
        self.assertEqual(self.called(), [])

    def test_missing_board_is_told_when_the_display_does_not_open(self):
        self.assert_fails(self.run_it("weg.vtx", DISPLAY=":7", CLOSED="1"), "weg.vtx")
        self.assertNotIn("veltrix-cli", self.called()[-1])

    def test_missing_board_is_left_to_the_window_to_tell(self):
        self.assert_passes(self.run_it("weg.vtx", DISPLAY=":7"))
        self.assertEqual(self.called()[-1], f"veltrix in {self.caller}: weg.vtx")

    def test_failed_build_starts_nothing(self):
        self.plant("tools/build", "#!/bin/bash\nexit 1\n", executable=True)
        self.assert_fails(self.run_it(DISPLAY=":7"))
        self.assertEqual(self.called(), ["setup run"])

    def test_picture_that_cannot_be_made_is_a_failure(self):
        self.assert_fails(self.run_it("één bord.vtx", ENDS="2"))
