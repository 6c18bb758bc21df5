"""Holds the ticks of the board in Python to cases worked out by hand: what compare.py
measures the program with has to be right by itself.
"""
import struct
import unittest

import board_simulation
from board_document import Board
from board_simulation import Simulation, Wire
from board_sockets import CONNECTABLE

MIDNIGHT_TO_NOON = 12 * 60 * 60 * 100


class Ticks(unittest.TestCase):
    def start(self, *wires, **settings):
        self.board = Board(wires=list(wires), **settings)
        self.simulation = Simulation(self.board)
        return self.simulation

    def level(self, name, ticks=1):
        for _ in range(ticks):
            self.simulation.tick()
        return self.simulation.levels.get(name, None)

    def levels_after(self, name, voltage, *wires, **settings):
        self.start(*wires, voltage=voltage, **settings)
        return self.level(name)


class Modules(Ticks):
    def test_empty_board(self):
        self.start()
        for name, level in (("OF-poort Uit", 0), ("EN-poort Uit", 0), ("Invertor Uitgang", 50),
                            ("Comparator Uit", 0), ("Transistor Uit", 0), ("Geheugen Uit", 0),
                            ("AD-omzetter Uitgang 1", 0), ("AD-omzetter Uitgang 2", 0),
                            ("AD-omzetter Uitgang 4", 0), ("AD-omzetter Uitgang 8", 0),
                            ("Relais Ingang 1 (in/uit)", None),
                            ("Relais Uitgang 2 (in/uit)", None), ("LED 1 Ingang", None)):
            with self.subTest(name=name):
                self.assertEqual(self.level(name), level)

    def test_gates(self):
        first, second = "Drukknop 1 Uit Geel", "Drukknop 2 Uit Geel"
        for buttons, either, both in (((0, 0), 0, 0), ((1, 0), 50, 0), ((0, 1), 50, 0),
                                      ((1, 1), 50, 50)):
            for gate, level in (("OF-poort", either), ("EN-poort", both)):
                with self.subTest(gate=gate, buttons=buttons):
                    self.start((first, f"{gate} Ingang 1"), (second, f"{gate} Ingang 2"),
                               buttons=[bool(pressed) for pressed in buttons])
                    self.assertEqual(self.level(f"{gate} Uit"), level)

    def test_gate_with_one_wire(self):
        for number in (1, 2):
            self.start(("Drukknop 1 Uit Geel", f"OF-poort Ingang {number}"),
                       ("Drukknop 1 Uit Geel", f"EN-poort Ingang {number}"),
                       buttons=[True, False])
            self.assertEqual(self.level("OF-poort Uit"), 50)
            self.assertEqual(self.level("EN-poort Uit"), 0)

    def test_only_fifty_is_high(self):
        for voltage, level in ((49, 0), (50, 50), (51, 0)):
            with self.subTest(voltage=voltage):
                self.assertEqual(self.levels_after(
                    "EN-poort Uit", voltage, ("Var. Spanning Uit Geel", "EN-poort Ingang 1"),
                    ("Var. Spanning Uit Geel", "EN-poort Ingang 2")), level)

    def test_gate_that_waits_for_itself(self):
        self.start(("EN-poort Uit", "EN-poort Ingang 1"), ("EN-poort Uit", "LED 1 Ingang"))
        self.assertIsNone(self.level("EN-poort Uit"))
        self.assertEqual(self.simulation.leds, [False] * 4)

    def test_invertor_is_analogue(self):
        for voltage, level in ((0, 50), (20, 30), (50, 0)):
            self.assertEqual(self.levels_after("Invertor Uitgang", voltage, (
                "Var. Spanning Uit Geel", "Invertor Ingang")), level)

    def test_comparator(self):
        for voltage, level in ((19, 0), (20, 50), (21, 50)):
            self.assertEqual(self.levels_after("Comparator Uit", voltage, (
                "Var. Spanning Uit Geel", "Comparator In"), comparator=20), level)

    def test_transistor_pulls_down_from_seven(self):
        for voltage, level in ((0, 50), (6, 50), (7, 0), (50, 0)):
            self.assertEqual(self.levels_after("Transistor Uit", voltage, (
                "Var. Spanning Uit Geel", "Transistor In")), level)

    def test_converter(self):
        for voltage, number in ((0, 0), (1, 0), (2, 1), (3, 1), (25, 8), (45, 14), (46, 15),
                                (47, 15), (48, 15), (50, 15), (51, 15)):
            with self.subTest(voltage=voltage):
                self.start(("Var. Spanning Uit Geel", "AD-omzetter In"), voltage=voltage)
                self.simulation.tick()
                bits = sum(bit for bit in (1, 2, 4, 8)
                           if self.simulation.levels.get(f"AD-omzetter Uitgang {bit}") == 50)
                self.assertEqual(bits, number)

    def test_memory(self):
        self.start(("Drukknop 1 Uit Geel", "Geheugen Set (In)"),
                   ("Drukknop 2 Uit Geel", "Geheugen Reset (In)"))
        for pressed, level in (((0, 0), 0), ((1, 0), 50), ((0, 0), 50), ((0, 1), 0), ((1, 1), 50),
                               ((0, 0), 50), ((0, 1), 0), ((0, 0), 0)):
            self.board.buttons = [bool(button) for button in pressed]
            self.assertEqual(self.level("Geheugen Uit"), level)

    def test_relay_passes_both_ways(self):
        control = ("Drukknop 1 Uit Geel", "Relais Controle (In)")
        for near, far in (("Ingang", "Uitgang"), ("Uitgang", "Ingang")):
            for path in (1, 2):
                for pressed, level in ((True, 33), (False, 0)):
                    with self.subTest(near=near, path=path, pressed=pressed):
                        self.start(control, ("Var. Spanning Uit Geel",
                                             f"Relais {near} {path} (in/uit)"),
                                   voltage=33, buttons=[pressed, False])
                        self.assertEqual(self.level(f"Relais {far} {path} (in/uit)"), level)

    def test_relay_does_not_wait_for_its_control(self):
        # The invertor has its turn before the relay, but its level reaches the control only in
        # the next pass, after the contacts were read.
        self.start(("Invertor Uitgang", "Relais Controle (In)"),
                   ("Var. Spanning Uit Geel", "Relais Ingang 1 (in/uit)"), voltage=33)
        self.assertEqual(self.level("Relais Uitgang 1 (in/uit)"), 0)
        self.assertEqual(self.level("Relais Controle (In)"), 50)


class Counter(Ticks):
    def count(self, levels, *wires):
        self.start(("Var. Spanning Uit Geel", "Pulsenteller Tel pulsen (In)"), *wires)
        for level in levels:
            self.board.voltage = level
            self.simulation.tick()
        return self.board.counter

    def test_rising_edges_from_zero_count(self):
        self.assertEqual(self.count((0, 50, 50, 0, 50)), 2)
        self.assertEqual(self.count((0, 30, 50)), 0)
        self.assertEqual(self.count((50,)), 1)

    def test_decimal_digit(self):
        self.assertEqual(self.count((0, 50) * 9), 9)
        self.assertEqual(self.count((0, 50) * 10), 0)

    def test_outputs_show_the_previous_count(self):
        self.count((0, 50))
        self.assertEqual(self.simulation.levels.get("Pulsenteller Uitgang 1"), 0)
        self.assertEqual(self.level("Pulsenteller Uitgang 1"), 50)

    def test_nine(self):
        self.start(counter=9)
        self.simulation.tick()
        self.assertEqual([self.simulation.levels.get(f"Pulsenteller Uitgang {bit}")
                          for bit in (1, 2, 4, 8)], [50, 0, 0, 50])

    def test_disabled_counter_forgets_no_edge(self):
        enable = ("Drukknop 1 Uit Geel", "Pulsenteller Teller aan/uit (In)")
        self.assertEqual(self.count((0, 50, 0, 50), enable), 0)
        self.board.buttons = [True, False]
        self.simulation.tick()
        self.assertEqual(self.board.counter, 1)

    def test_reset_input(self):
        self.start(("Drukknop 1 Uit Geel", "Pulsenteller Reset (In)"), counter=7,
                   buttons=[True, False])
        self.simulation.tick()
        self.assertEqual(self.board.counter, 0)

    def test_reset_button(self):
        self.start(counter=7)
        self.simulation.control("Pulsenteller Reset Drukknop", "")
        self.assertEqual(self.board.counter, 0)


class Sources(Ticks):
    def test_light_follows_the_pointer(self):
        for x, level in ((44, 50), (84, 30), (144, 0), (145, 0), (4, 30)):
            self.start(sensors=[1, 0])
            self.simulation.control("Aanwijzer", f"{x} 49")
            self.assertEqual(self.level("Sensor 1 Uit Geel"), level)

    def test_second_sensor_has_its_own_spot(self):
        self.start(sensors=[1, 1])
        self.simulation.control("Aanwijzer", "44 102")
        self.assertEqual(self.level("Sensor 2 Uit Geel"), 50)
        self.assertEqual(self.level("Sensor 1 Uit Geel"), 24)

    def test_slow_wave(self):
        self.start(sensors=[2, 2])
        levels = [self.level("Sensor 1 Uit Geel") for _ in range(500)]
        self.assertEqual((min(levels), max(levels)), (10, 50))
        self.assertEqual(levels[0], 30)
        self.assertEqual(levels[124], 50)
        self.assertEqual(levels[374], 10)
        self.assertEqual(self.simulation.levels.get("Sensor 2 Uit Geel"), levels[-1])

    def test_pulse_generator(self):
        # 10 / (4 x 50 + 10) s is 47.6 ms: the first toggle is in the fifth tick, and it shows in
        # the tick after.
        self.start(pulse=50)
        levels = [self.level("Puls Generator Uit Geel") for _ in range(12)]
        self.assertEqual(levels, [0] * 5 + [50] * 5 + [0] * 2)

    def test_pulse_generator_at_rest(self):
        self.start(pulse=0)
        self.assertEqual(self.level("Puls Generator Uit Geel", ticks=300), 0)
        self.assertEqual(self.simulation.elapsed, 3.0)

    def test_clock_is_single_precision(self):
        self.assertEqual(board_simulation.clock(1), struct.unpack("<f", b"\x0a\xd7\x23\x3c")[0])
        self.assertEqual(board_simulation.clock(MIDNIGHT_TO_NOON), 43200.0)
        self.assertNotEqual(board_simulation.clock(10), 0.1)

    def test_a_name_added_twice_keeps_its_first_level(self):
        levels = board_simulation.Levels()
        levels.add("Zoemer", 3)
        levels.add("Zoemer", 4)
        self.assertEqual((levels.get("Zoemer"), levels.size), (3, 2))


class Outputs(Ticks):
    def test_lamp_and_buzzer_need_exactly_fifty(self):
        wires = [("Var. Spanning Uit Geel", name) for name in ("LED 2 Ingang", "Zoemer")]
        for voltage, on in ((0, False), (49, False), (50, True), (51, False)):
            self.start(*wires, voltage=voltage)
            self.simulation.tick()
            self.assertEqual(self.simulation.leds, [False, on, False, False])
            self.assertEqual(self.simulation.buzzer, on)

    def test_row(self):
        self.start(("Drukknop 1 Uit Geel", "LED 1 Ingang"), buttons=[True, False], counter=3)
        self.simulation.tick()
        row = self.simulation.row()
        header = ("tick",) + CONNECTABLE
        self.assertEqual(row[0], "1")
        self.assertEqual(row[header.index("LED 1 Ingang")], "50")
        self.assertEqual(row[header.index("LED 2 Ingang")], "")
        self.assertEqual(row[len(header):], ["1", "0", "0", "0", "0", "3"])


class Wires(Ticks):
    def colour(self, level):
        wire = Wire("Sensor 1 Uit Geel", "Transistor In")
        wire.paint(level)
        return wire.colour

    def test_colours(self):
        for level, colour in ((0, 8), (25, 4), (35, 3), (50, 1), (57, 0), (-4, 9)):
            self.assertEqual(self.colour(level), colour)

    def test_two_sources_tied_together(self):
        self.start(("Drukknop 1 Uit Geel", "Drukknop 2 Uit Geel"), buttons=[True, False])
        self.assertEqual(self.level("Drukknop 2 Uit Geel"), 0)
        self.assertEqual(self.simulation.wires[0].colour, 1)

    def test_wire_that_cannot_be_painted_costs_one_tick(self):
        self.start(("Var. Spanning Uit Geel", "LED 1 Ingang"),
                   ("Drukknop 1 Uit Geel", "LED 2 Ingang"), voltage=90, buttons=[True, False])
        self.assertEqual(self.level("LED 1 Ingang"), 90)
        self.assertIn("colour -5", self.simulation.fault)
        self.assertIsNone(self.simulation.levels.get("LED 2 Ingang", None))
        self.assertEqual(self.simulation.leds, [False] * 4)
        self.assertEqual(self.level("LED 2 Ingang"), 50)
        self.assertIsNone(self.simulation.fault)
        self.assertEqual(self.simulation.leds, [False, True, False, False])

    def test_wire_without_beads_takes_any_colour(self):
        self.assertEqual(Wire("", "elders").beads, 0)
        self.assertEqual(Wire("Sensor 1 Uit Geel", "Transistor In").beads, 3)
        # The two outputs are the nearest sockets there are.
        self.assertEqual(Wire("AD-omzetter Uitgang 2", "AD-omzetter Uitgang 1").beads, 1)

    def test_full_table(self):
        # Eleven sources, six modules of one output, the mark of the counter and the converter's
        # four outputs leave room for 78 names.
        for names, fault in ((78, None), (79, "the table of levels is full")):
            with self.subTest(names=names):
                self.start(*(("Drukknop 1 Uit Geel", f"naam {number}") for number in range(names)),
                           buttons=[True, False])
                self.simulation.tick()
                self.assertEqual(self.simulation.levels.size, 100)
                self.assertEqual(self.simulation.fault, fault)

    def test_overflow(self):
        self.start(("Var. Spanning Uit Geel", "Invertor Ingang"), voltage=-0x80000000)
        self.simulation.tick()
        self.assertIn("colour", self.simulation.fault)
        self.assertIsNone(self.level("Invertor Uitgang"))
        self.assertIn("overflow", self.simulation.fault)


if __name__ == "__main__":
    unittest.main()
