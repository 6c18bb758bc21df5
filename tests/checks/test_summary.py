from planted import ROOT, PlantedTree


class Summary(PlantedTree):
    """The figures come from ctest's own report, so a real ctest makes the report here."""

    def summary(self, tests, *options):
        self.plant("CTestTestfile.cmake", tests)
        self.start("ctest", "--test-dir", str(self.tree), "--output-junit",
                   str(self.tree / "results.xml"))
        return self.start(str(ROOT / "tools/checks/summary"), *options,
                          str(self.tree / "results.xml"))

    def last_line(self, result):
        return result.stdout.splitlines()[-1]

    def test_all_passed(self):
        result = self.summary("add_test(one true)\nadd_test(two true)\n")
        self.assert_passes(result)
        self.assertEqual(self.last_line(result), "2 passed, 0 failed")

    def test_failure_is_counted(self):
        result = self.summary("add_test(one true)\nadd_test(two false)\n")
        self.assert_fails(result)
        self.assertEqual(self.last_line(result), "1 passed, 1 failed")

    def test_every_check_has_a_line_and_the_tests_of_a_program_are_one(self):
        tests = ("add_test(check.words true)\nadd_test(check.tidy false)\n"
                 "add_test(tests_sim.Tick.One true)\nadd_test(tests_sim.clsGraph.Two true)\n"
                 "add_test(tests_cli.Script.One true)\nadd_test(tests_cli.Script.Two false)\n")
        self.assert_fails(self.summary(tests), "FAIL: check.tidy\nOK: check.words\n"
                          "FAIL: tests_cli (1 passed, 1 failed)\nOK: tests_sim (2 passed)\n")

    def test_program_that_was_not_built_is_a_failure(self):
        result = self.summary("add_test(one true)\nadd_test(two /does/not/exist)\n")
        self.assert_fails(result)
        self.assertEqual(self.last_line(result), "1 passed, 1 failed")

    def test_skipped_test_counts_as_neither_unless_it_must_run(self):
        tests = ('add_test(one true)\nadd_test(two sh -c "exit 77")\n'
                 "set_tests_properties(two PROPERTIES SKIP_RETURN_CODE 77)\n"
                 'add_test(three echo "[  SKIPPED ]")\n'
                 'set_tests_properties(three PROPERTIES SKIP_REGULAR_EXPRESSION "SKIPPED")\n')
        result = self.summary(tests)
        self.assert_passes(result, "skipped: two\nskipped: three\n")
        self.assertEqual(self.last_line(result), "1 passed, 0 failed")
        self.assert_fails(self.summary(tests, "--must-run", "^t"), "must run here: two",
                          "must run here: three")
        self.assert_passes(self.summary(tests, "--must-run", "^o"))

    def test_test_that_must_run_must_be_there(self):
        self.assert_fails(self.summary("add_test(one true)\n", "--must-run", "sound"),
                          "no test ran whose name matches sound")

    def test_no_test_at_all_is_no_success(self):
        self.assert_fails(self.summary(""), "no test ran")

    def test_missing_report_is_no_success(self):
        self.assert_fails(self.start(str(ROOT / "tools/checks/summary"), str(self.tree / "none")),
                          "none")
