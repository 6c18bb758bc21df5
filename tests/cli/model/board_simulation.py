"""The ticks of a board in plain Python. It draws nothing; of a wire's picture it knows only what
makes drawing fail.
"""
import math
import struct

from board_sockets import CONNECTABLE, PLACE

HIGH = 50
TABLE_SIZE = 100


class BoardError(Exception):
    """What makes the board give up a tick: a number or a subscript that does not fit."""


def long(value):
    """The value as a whole 32-bit number; halves go to the even one."""
    whole = round(value)
    if not -0x80000000 <= whole <= 0x7FFFFFFF:
        raise BoardError("overflow")
    return whole


def single(value):
    return struct.unpack("<f", struct.pack("<f", value))[0]


def clock(tick):
    """The simulated time of day, in seconds, at which a tick happens."""
    return single(tick / 100.0)


class Wire:
    def __init__(self, first, second):
        self.ends = (first, second)
        self.done = False
        self.colour = 1
        (x1, y1), (x2, y2) = (PLACE.get(name, (0, 0)) for name in self.ends)
        self.beads = int(math.sqrt((x2 - x1) ** 2 + (y2 - y1) ** 2) / 10)

    def paint(self, level):
        colour = long(8 - level * 7 / 50)
        if colour == self.colour:
            return
        # The colour is kept before the beads are laid: a wire that cannot be painted fails once
        # and is left alone, bare, until its level asks for another colour.
        self.colour = colour
        if self.beads and not 0 <= colour <= 9:
            raise BoardError(f"no picture for a wire of colour {colour}")


class Levels:
    """The levels that a tick has come to know, at most a hundred."""

    def __init__(self):
        self.size = 0
        self.of = {}

    def add(self, name, level):
        if self.size == TABLE_SIZE:
            raise BoardError("the table of levels is full")
        self.size += 1
        self.of.setdefault(name, level)

    def __contains__(self, name):
        return name in self.of

    def get(self, name, default=0):
        return self.of.get(name, default)


COUNTED = "Pulsenteller Uitgang Collection"
SPOTS = ((44, 49), (44, 102))
RELAY = (
    ("Relais Ingang 1 (in/uit)", "Relais Uitgang 1 (in/uit)"),
    ("Relais Uitgang 1 (in/uit)", "Relais Ingang 1 (in/uit)"),
    ("Relais Ingang 2 (in/uit)", "Relais Uitgang 2 (in/uit)"),
    ("Relais Uitgang 2 (in/uit)", "Relais Ingang 2 (in/uit)"),
)


class Simulation:
    """A board that runs. tick() brings it one tick further; what a tick leaves behind is read
    from levels, leds, buzzer and board.counter."""

    def __init__(self, board):
        self.board = board
        self.wires = [Wire(*ends) for ends in board.wires]
        self.wired = {name for ends in board.wires for name in ends}
        self.levels = Levels()
        self.leds = [False] * 4
        self.buzzer = False
        self.pointer = (0, 0)
        self.sound = 0
        self.memory = 0
        self.last_pulse = 0
        self.generator = 0
        self.elapsed = 0.0
        self.last_time = 0.0
        self.sensor_levels = [0, 0]
        self.ticks = 0
        self.fault = None

    def control(self, name, value):
        board = self.board
        if name in ("Sensor 1", "Sensor 2"):
            board.sensors[int(name[-1]) - 1] = int(value)
        elif name in ("Drukknop 1", "Drukknop 2"):
            board.buttons[int(name[-1]) - 1] = int(value) != 0
        elif name == "Comparator Regelaar":
            board.comparator = int(value)
        elif name == "Var. Spanning Regelaar":
            board.voltage = int(value)
        elif name == "Puls Generator Regelaar":
            board.pulse = int(value)
        elif name == "Geluids Sensor":
            self.sound = int(value)
        elif name == "Pulsenteller Reset Drukknop":
            board.counter = 0
        elif name == "Aanwijzer":
            x, y = value.split()
            self.pointer = (int(x), int(y))
        else:
            raise ValueError(name)

    def tick(self):
        self.ticks += 1
        self.fault = None
        try:
            self._exchange(clock(self.ticks))
        except BoardError as fault:
            self.fault = str(fault)

    def row(self):
        """The tick as the program writes it, cell by cell, all text."""
        cells = [str(self.ticks)]
        cells += [str(self.levels.get(name, "")) for name in CONNECTABLE]
        cells += [str(int(lit)) for lit in self.leds]
        cells += [str(int(self.buzzer)), str(self.board.counter)]
        return cells

    def _exchange(self, now):
        board = self.board
        for wire in self.wires:
            wire.done = False
        self.levels = levels = Levels()

        for number, spot in enumerate(SPOTS):
            levels.add(f"Sensor {number + 1} Uit Geel", self._sensor(number, spot, now))
        for number, pressed in enumerate(board.buttons, 1):
            levels.add(f"Drukknop {number} Uit Geel", HIGH if pressed else 0)
        levels.add("Var. Spanning Uit Geel", board.voltage)
        levels.add("Geluids Sensor Uit Geel", self.sound)
        levels.add("Puls Generator Uit Geel", self.generator)
        for bit in (1, 2, 4, 8):
            levels.add(f"Pulsenteller Uitgang {bit}", HIGH if board.counter & bit else 0)

        half_period = 10 / (4.0 * board.pulse + 10)
        self.elapsed = single(self.elapsed + (now - self.last_time))
        self.last_time = now
        if board.pulse > 0 and self.elapsed > half_period:
            halves = math.trunc(self.elapsed / half_period)
            self.elapsed = single(self.elapsed - half_period * halves)
            self.generator = HIGH - self.generator

        while self._spread() | self._compute():
            pass

        for number in range(4):
            self.leds[number] = levels.get(f"LED {number + 1} Ingang") == HIGH
        self.buzzer = levels.get("Zoemer") == HIGH

    def _sensor(self, number, spot, now):
        mode = self.board.sensors[number]
        if mode == 0:
            level = 0
        elif mode == 1:
            dx, dy = (float(at - centre) for at, centre in zip(self.pointer, spot))
            level = long(50 - math.sqrt(dx * dx + dy * dy) / 2)
            level = min(max(level, 0), 50)
        elif mode == 2:
            level = long(math.sin(now / 5 * 2 * 3.14) * 20 + 30)
        else:
            return self.sensor_levels[number]
        self.sensor_levels[number] = level
        return level

    def _spread(self):
        """Lets each wire with one known end carry that level to the other; whether any did."""
        changed = False
        for wire in self.wires:
            if wire.done:
                continue
            first, second = wire.ends
            if (first in self.levels) == (second in self.levels):
                continue
            source, target = (first, second) if first in self.levels else (second, first)
            level = self.levels.get(source)
            self.levels.add(target, level)
            wire.paint(level)
            wire.done = True
            changed = True
        return changed

    def _compute(self):
        """Lets each module whose inputs are settled give its output; whether any did."""
        before = self.levels.size
        for output, inputs, rule in MODULES:
            if output not in self.levels and all(map(self._ready, inputs)):
                rule(self)
        return self.levels.size != before

    def _ready(self, name):
        return name in self.levels or name not in self.wired

    def _high(self, name):
        return self.levels.get(name) == HIGH

    def _or(self):
        high = self._high("OF-poort Ingang 1") or self._high("OF-poort Ingang 2")
        self.levels.add("OF-poort Uit", HIGH if high else 0)

    def _and(self):
        high = self._high("EN-poort Ingang 1") and self._high("EN-poort Ingang 2")
        self.levels.add("EN-poort Uit", HIGH if high else 0)

    def _memorise(self):
        if self._high("Geheugen Reset (In)"):
            self.memory = 0
        if self._high("Geheugen Set (In)"):
            self.memory = HIGH
        self.levels.add("Geheugen Uit", self.memory)

    def _invert(self):
        self.levels.add("Invertor Uitgang", long(50 - self.levels.get("Invertor Ingang")))

    def _compare(self):
        above = "Comparator In" in self.levels \
            and self.levels.get("Comparator In") >= self.board.comparator
        self.levels.add("Comparator Uit", HIGH if above else 0)

    def _conduct(self):
        open_ = "Transistor In" in self.levels and self.levels.get("Transistor In") < 7
        self.levels.add("Transistor Uit", HIGH if open_ else 0)

    def _switch(self, source, target):
        if source in self.levels:
            closed = self._high("Relais Controle (In)")
            self.levels.add(target, self.levels.get(source) if closed else 0)

    def _count(self):
        pulse_input = "Pulsenteller Tel pulsen (In)"
        if self._high("Pulsenteller Reset (In)"):
            self.board.counter = 0
        elif self.levels.get("Pulsenteller Teller aan/uit (In)", HIGH) == HIGH \
                and pulse_input in self.levels:
            pulse = self.levels.get(pulse_input)
            if pulse == HIGH and self.last_pulse == 0:
                self.board.counter = (self.board.counter + 1) % 10
            self.last_pulse = pulse
        self.levels.add(COUNTED, 0)

    def _convert(self):
        number = 0
        if "AD-omzetter In" in self.levels:
            number = min(long(self.levels.get("AD-omzetter In") * 16 / 50), 15)
        for bit in (1, 2, 4, 8):
            self.levels.add(f"AD-omzetter Uitgang {bit}", HIGH if number & bit else 0)


def _relay_path(source, target):
    # A contact waits for its own level only: the control counts as it stands at that moment.
    return target, (), lambda board: board._switch(source, target)


# The entry that shows that a module is finished, the inputs it waits for, and its rule; in the
# order in which the modules have their turn.
MODULES = (
    ("OF-poort Uit", ("OF-poort Ingang 1", "OF-poort Ingang 2"), Simulation._or),
    ("EN-poort Uit", ("EN-poort Ingang 1", "EN-poort Ingang 2"), Simulation._and),
    ("Geheugen Uit", ("Geheugen Set (In)", "Geheugen Reset (In)"), Simulation._memorise),
    ("Invertor Uitgang", ("Invertor Ingang",), Simulation._invert),
    ("Comparator Uit", ("Comparator In",), Simulation._compare),
    ("Transistor Uit", ("Transistor In",), Simulation._conduct),
    *(_relay_path(*path) for path in RELAY),
    (COUNTED, ("Pulsenteller Tel pulsen (In)", "Pulsenteller Teller aan/uit (In)",
               "Pulsenteller Reset (In)"), Simulation._count),
    ("AD-omzetter Uitgang 1", ("AD-omzetter In",), Simulation._convert),
)
