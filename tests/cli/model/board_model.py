"""A board in plain Python: its documents, its conflict check and its ticks.

It shares no line with the program and is written to be read beside it, so that the two can be
held against each other: what both say is hardly a slip of one of them. It draws nothing; of a
wire's picture it knows only what makes drawing fail.

A document is bytes, a socket name is a str; the two meet in code page 1252, in which each of the
256 bytes is one character.
"""
import dataclasses
import math
import struct

INPUT, OUTPUT, CONTACT, CONTROL = 1, 2, 3, 0

# name, x, y, whether a wire may end there, kind; the order is the board's own.
SOCKETS = (
    ("Sensor 1", 44, 49, False, OUTPUT),
    ("Sensor 2", 44, 102, False, OUTPUT),
    ("Geluids Sensor", 31, 145, False, OUTPUT),
    ("Sensor 1 Uit Geel", 98, 50, True, OUTPUT),
    ("Sensor 2 Uit Geel", 98, 101, True, OUTPUT),
    ("Geluids Sensor Uit Geel", 98, 144, True, OUTPUT),
    ("Drukknop 1 Uit Geel", 98, 179, True, OUTPUT),
    ("Drukknop 2 Uit Geel", 98, 214, True, OUTPUT),
    ("Var. Spanning Uit Geel", 98, 256, True, OUTPUT),
    ("Puls Generator Uit Geel", 98, 295, True, OUTPUT),
    ("Transistor In", 133, 41, True, INPUT),
    ("EN-poort Ingang 1", 133, 110, True, INPUT),
    ("EN-poort Ingang 2", 133, 145, True, INPUT),
    ("Geheugen Set (In)", 134, 180, True, INPUT),
    ("Geheugen Reset (In)", 134, 215, True, INPUT),
    ("Transistor Uit", 199, 41, True, OUTPUT),
    ("EN-poort Uit", 199, 128, True, OUTPUT),
    ("Geheugen Uit", 200, 198, True, OUTPUT),
    ("Comparator In", 222, 42, True, INPUT),
    ("Comparator Uit", 287, 41, True, OUTPUT),
    ("OF-poort Ingang 1", 222, 111, True, INPUT),
    ("OF-poort Ingang 2", 222, 145, True, INPUT),
    ("OF-poort Uit", 287, 128, True, OUTPUT),
    ("Invertor Ingang", 222, 197, True, INPUT),
    ("Invertor Uitgang", 288, 197, True, OUTPUT),
    ("LED 1 Ingang", 322, 41, True, INPUT),
    ("LED 2 Ingang", 322, 75, True, INPUT),
    ("LED 3 Ingang", 323, 110, True, INPUT),
    ("LED 4 Ingang", 323, 145, True, INPUT),
    ("Zoemer", 323, 197, True, INPUT),
    ("Relais Controle (In)", 323, 245, True, INPUT),
    ("Relais Ingang 1 (in/uit)", 368, 246, True, CONTACT),
    ("Relais Ingang 2 (in/uit)", 393, 245, True, CONTACT),
    ("Relais Uitgang 1 (in/uit)", 369, 285, True, CONTACT),
    ("Relais Uitgang 2 (in/uit)", 394, 285, True, CONTACT),
    ("Pulsenteller Uitgang 1", 288, 250, True, OUTPUT),
    ("Pulsenteller Uitgang 2", 266, 249, True, OUTPUT),
    ("Pulsenteller Uitgang 4", 244, 249, True, OUTPUT),
    ("Pulsenteller Uitgang 8", 222, 250, True, OUTPUT),
    ("Pulsenteller Tel pulsen (In)", 133, 249, True, INPUT),
    ("Pulsenteller Teller aan/uit (In)", 133, 281, True, INPUT),
    ("Pulsenteller Reset (In)", 134, 305, True, INPUT),
    ("AD-omzetter In", 30, 336, True, INPUT),
    ("AD-omzetter Uitgang 8", 51, 335, True, OUTPUT),
    ("AD-omzetter Uitgang 4", 70, 335, True, OUTPUT),
    ("AD-omzetter Uitgang 2", 87, 335, True, OUTPUT),
    ("AD-omzetter Uitgang 1", 104, 335, True, OUTPUT),
    ("Drukknop 1", 30, 180, False, CONTROL),
    ("Drukknop 2", 29, 214, False, CONTROL),
    ("Var. Spanning In Zwart", 31, 256, True, CONTROL),
    ("Var. Spanning Regelaar", 63, 256, False, CONTROL),
    ("Puls Generator Regelaar", 64, 296, False, CONTROL),
    ("Pulsenteller Reset Drukknop", 200, 305, False, CONTROL),
    ("Comparator Regelaar", 266, 72, False, CONTROL),
)
CONNECTABLE = tuple(socket[0] for socket in SOCKETS if socket[3])
KIND = {socket[0]: socket[4] for socket in SOCKETS}
PLACE = {socket[0]: (socket[1], socket[2]) for socket in SOCKETS}

HIGH = 50
TABLE_SIZE = 100


class BoardError(Exception):
    """What makes the board give up a tick: a number or a subscript that does not fit."""


class DocumentError(Exception):
    """A document that cannot be taken for a board."""


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


# --- documents ---------------------------------------------------------------------------------

# Five bytes have no character of their own in the code page; each stands for the control
# character of the same number, so that no byte is lost.
_CHARACTERS = [bytes([byte]).decode("cp1252", errors="ignore") or chr(byte) for byte in range(256)]
_BYTES = {character: byte for byte, character in enumerate(_CHARACTERS)}


def text_of(data):
    return "".join(_CHARACTERS[byte] for byte in data)


def bytes_of(text):
    return bytes(_BYTES[character] for character in text)


DOCUMENT, SETTINGS, WIRES = -9510, 0x1000, 0x2000


def chunk(kind, body):
    return struct.pack("<hi", kind, len(body)) + body


@dataclasses.dataclass
class Board:
    """What a document keeps of a board."""
    wires: list = dataclasses.field(default_factory=list)
    counter: int = 0
    sensors: list = dataclasses.field(default_factory=lambda: [0, 0])
    pulse: int = 0
    comparator: int = 0
    voltage: int = 0
    buttons: list = dataclasses.field(default_factory=lambda: [False, False])

    def write(self):
        settings = struct.pack("<8i", 0, len(self.wires), self.counter, *self.sensors, self.pulse,
                               self.comparator, self.voltage)
        settings += bytes(0xFF if pressed else 0 for pressed in self.buttons)
        wires = b"".join(bytes_of(name) + b"\0" for wire in self.wires for name in wire)
        return chunk(DOCUMENT, chunk(SETTINGS, settings) + chunk(WIRES, wires))


def read(data):
    """The board of a document. Only the order of the chunks and the number of wires lead the way;
    the lengths do not, and what follows the last wire is nobody's."""
    position = 0

    def take(form):
        nonlocal position
        size = struct.calcsize(form)
        if position + size > len(data):
            raise DocumentError("the document ends too early")
        values = struct.unpack_from(form, data, position)
        position += size
        return values

    def enter(kind):
        found, _ = take("<hi")
        if found != kind:
            raise DocumentError(f"chunk {found} where {kind} belongs")

    def name():
        nonlocal position
        end = data.find(b"\0", position)
        if end < 0:
            raise DocumentError("the document ends inside a name")
        text = text_of(data[position:end])
        position = end + 1
        return text

    board = Board()
    enter(DOCUMENT)
    enter(SETTINGS)
    (_, count, board.counter, sensor1, sensor2, board.pulse, board.comparator,
     board.voltage) = take("<8i")
    if count < 0:
        raise DocumentError(f"{count} wires")
    if not 0 <= board.counter <= 9:
        raise DocumentError(f"a counter that shows {board.counter}")
    board.sensors = [sensor1, sensor2]
    board.buttons = [byte == 0xFF for byte in take("<BB")]
    enter(WIRES)
    for _ in range(count):
        board.wires.append((name(), name()))
    return board


# --- conflict check ----------------------------------------------------------------------------

def conflicts(wires):
    """The outputs of each net that joins two or more of them, net by net.

    A net is one text of names with bars between them, so a name with a bar in it falls apart into
    what may be names of their own; and a walk around a ring of wires names the place where it
    closes twice.
    """
    seen = [False] * len(wires)

    def rest(start):
        # Each level of the walk runs over all wires in order and descends in the middle of it; an
        # own stack, since a board may hold a longer chain than the interpreter allows calls.
        pieces = []
        stack = [_steps(wires, seen, start)]
        while stack:
            reached = next(stack[-1], None)
            if reached is None:
                stack.pop()
            else:
                pieces.append(reached)
                stack.append(_steps(wires, seen, reached))
        return "".join("|" + piece for piece in pieces)

    found = []
    for number, (first, second) in enumerate(wires):
        if seen[number]:
            continue
        seen[number] = True
        net = f"{first}|{second}|"
        net += rest(first) + "|"
        net += rest(second)
        outputs = [piece for piece in net.split("|") if KIND.get(piece) == OUTPUT]
        if len(outputs) >= 2:
            found.append(outputs)
    return found


def _steps(wires, seen, start):
    for number, (first, second) in enumerate(wires):
        if seen[number]:
            continue
        # A wire that returns to its own socket is followed from both of its ends.
        if first == start:
            seen[number] = True
            yield second
        if second == start:
            seen[number] = True
            yield first


def report(wires):
    return "".join(" en ".join(f'"{name}"' for name in outputs) + "\r\n"
                   for outputs in conflicts(wires))


def strangers(wires):
    """(position of the wire, name) of each end at a place where no wire may end."""
    return [(position, name) for position, wire in enumerate(wires, 1) for name in wire
            if name not in CONNECTABLE]


def repeated(wires):
    """(position, position of the first wire between the same two sockets) of each later one."""
    first = {}
    return [(position, first[frozenset(wire)]) for position, wire in enumerate(wires, 1)
            if first.setdefault(frozenset(wire), position) != position]


# --- ticks -------------------------------------------------------------------------------------

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
