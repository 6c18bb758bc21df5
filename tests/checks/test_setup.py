from planted import ROOT, PlantedMachine


class Setup(PlantedMachine):
    """A machine on which only g++ and cmake are installed, until apt-get puts the rest there."""

    def setUp(self):
        super().setUp()
        self.lend("bash", "env", "sed", "grep", "cat", "mktemp", "rm")
        self.installed = self.plant("installed", "g++\ncmake\n")
        self.fake("id", "echo ${USER_NUMBER:-0}")
        self.fake("dpkg-query", 'for package; do grep -qxF -- "$package" "$INSTALLED" &&\n'
                  'echo "installed $package"; done; exit 1')
        self.fake("apt-cache", 'exit "${UNKNOWN:-0}"')
        self.fake("apt-get", '[[ $* != *" install "* ]] || printf "%s\\n" "$@" >>"$INSTALLED"')

    def setup(self, *groups, **environment):
        return self.start(str(ROOT / "setup"), *groups,
                          env=self.environment(INSTALLED=str(self.installed), **environment))

    def apt_calls(self):
        return [call for call in self.called() if call.startswith("apt-get")]

    def test_installs_only_what_is_missing_and_then_nothing(self):
        self.assert_passes(self.setup("run"))
        [call] = self.apt_calls()
        self.assertIn(" install -y --no-install-recommends ninja-build ", call)
        self.assertIn("DPkg::Lock::Timeout=600", call)
        self.assertNotIn("cmake", call)
        self.assertNotIn("libgtest-dev", call)
        self.assert_passes(self.setup("run"))
        self.assert_passes(self.setup())
        self.assertEqual(len(self.apt_calls()), 1)

    def test_groups(self):
        for group, package in [("test", "libgtest-dev"), ("bench", "libbenchmark-dev"),
                               ("all", "libbenchmark-dev")]:
            with self.subTest(group=group):
                self.installed.write_text("g++\ncmake\n")
                self.assert_passes(self.setup(group))
                self.assertIn(f" {package}", self.apt_calls()[-1])
        self.assert_fails(self.setup("everything"), "./setup [run|test|bench|all]")

    def test_fetches_package_lists_when_they_do_not_know_a_package(self):
        self.assert_passes(self.setup(UNKNOWN="100"))
        self.assertEqual([" update" in call for call in self.apt_calls()], [True, False])

    def test_fetches_package_lists_when_installing_from_old_ones_fails(self):
        self.fake("apt-get", '[[ $* != *" update"* ]] || touch "$INSTALLED.fresh"\n'
                  '[[ -e $INSTALLED.fresh ]]')
        self.lend("touch")
        self.assert_passes(self.setup())
        self.assertEqual([" update" in call for call in self.apt_calls()], [False, True, False])

    def test_shows_what_apt_says_when_it_fails(self):
        self.fake("apt-get", "echo no network here; exit 100")
        self.assert_fails(self.setup(), "no network here", "ninja-build", "administrator")

    def test_user_with_sudo(self):
        self.fake("sudo", '"$@"')
        self.assert_passes(self.setup(USER_NUMBER="1000"))
        self.assertTrue(any(call.startswith("sudo env DEBIAN_FRONTEND=noninteractive apt-get")
                            for call in self.called()))

    def test_user_without_sudo_is_told_what_an_administrator_must_install(self):
        result = self.setup(USER_NUMBER="1000")
        self.assertEqual(result.returncode, 1)
        self.assert_fails(result, "administrator", "ninja-build", "root or sudo")
        self.assertEqual(self.apt_calls(), [])

    def test_user_whom_sudo_refuses_is_told_the_same(self):
        self.fake("sudo", "exit 1")
        self.assert_fails(self.setup(USER_NUMBER="1000"), "administrator", "ninja-build")
        self.assertEqual(self.apt_calls(), [])

    def test_user_needs_no_sudo_when_nothing_is_missing(self):
        self.assert_passes(self.setup("all"))
        self.assert_passes(self.setup("all", USER_NUMBER="1000"))

    def test_wayland_alone_takes_one_package_more(self):
        self.assert_passes(self.setup(WAYLAND_DISPLAY="wayland-0", DISPLAY=":0"))
        self.assertNotIn("qt6-wayland", self.apt_calls()[-1])
        self.assert_passes(self.setup(WAYLAND_DISPLAY="wayland-0"))
        self.assertIn("qt6-wayland", self.apt_calls()[-1])

    def test_other_system_is_told_what_is_needed(self):
        (self.commands / "dpkg-query").unlink()
        result = self.setup()
        self.assert_passes(result)
        self.assertIn("ninja-build", result.stderr)
