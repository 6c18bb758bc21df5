"""Holds the conflict check of the board in Python to cases worked out by hand: what compare.py
measures the program with has to be right by itself.
"""
import unittest

from board_conflicts import conflicts, repeated, report, strangers


class Conflicts(unittest.TestCase):
    def test_no_wires(self):
        self.assertEqual(report([]), "")

    def test_two_outputs_at_one_input(self):
        wires = [("Sensor 1 Uit Geel", "EN-poort Ingang 1"),
                 ("EN-poort Ingang 1", "Drukknop 1 Uit Geel")]
        self.assertEqual(report(wires),
                         '"Sensor 1 Uit Geel" en "Drukknop 1 Uit Geel"\r\n')

    def test_chain(self):
        wires = [("LED 1 Ingang", "LED 2 Ingang"), ("LED 2 Ingang", "OF-poort Uit"),
                 ("EN-poort Uit", "LED 1 Ingang")]
        self.assertEqual(conflicts(wires), [["EN-poort Uit", "OF-poort Uit"]])

    def test_two_nets(self):
        wires = [("OF-poort Uit", "EN-poort Uit"), ("Zoemer", "LED 1 Ingang"),
                 ("Geheugen Uit", "Invertor Uitgang")]
        self.assertEqual(conflicts(wires), [["OF-poort Uit", "EN-poort Uit"],
                                            ["Geheugen Uit", "Invertor Uitgang"]])

    def test_ring_meets_its_output_again(self):
        output, first, second = "OF-poort Uit", "LED 1 Ingang", "LED 2 Ingang"
        ring = [(first, output), (first, second), (second, output)]
        self.assertEqual(conflicts(ring), [[output, output]])
        self.assertEqual(conflicts([(output, first)] + ring[1:]), [])

    def test_relay_contact_is_no_output(self):
        self.assertEqual(conflicts([("Relais Ingang 1 (in/uit)", "OF-poort Uit")]), [])

    def test_wire_to_itself(self):
        # Both its ends and, from a neighbour, both its directions count.
        self.assertEqual(conflicts([("OF-poort Uit", "OF-poort Uit")]),
                         [["OF-poort Uit"] * 2])
        self.assertEqual(conflicts([("Zoemer", "OF-poort Uit"),
                                    ("OF-poort Uit", "OF-poort Uit")]),
                         [["OF-poort Uit"] * 3])

    def test_bar_in_a_name(self):
        self.assertEqual(conflicts([("OF-poort Uit|EN-poort Uit", "Zoemer")]),
                         [["OF-poort Uit", "EN-poort Uit"]])

    def test_long_chain(self):
        wires = [(f"{number}", f"{number + 1}") for number in range(5000)]
        self.assertEqual(conflicts(wires), [])

    def test_names_and_repetitions(self):
        wires = [("Zoemer", "elders"), ("zoemer", "Zoemer"), ("elders", "Zoemer"),
                 ("Zoemer", "elders")]
        self.assertEqual(strangers(wires), [(1, "elders"), (2, "zoemer"),
                                            (3, "elders"), (4, "elders")])
        self.assertEqual(strangers([("Drukknop 1", "Zoemer")]), [(1, "Drukknop 1")])
        self.assertEqual(repeated(wires), [(3, 1), (4, 1)])
        self.assertEqual(repeated([("a", "a"), ("a", "b"), ("a", "a")]), [(3, 1)])


if __name__ == "__main__":
    unittest.main()
