"""Random boards, their documents and scripts for them. All that is random comes from the generator
that the caller hands in, so that a case can be made again from its number.
"""
import struct

from board_document import Board, DocumentError, read, text_of
from board_simulation import COUNTED
from board_sockets import CONNECTABLE, KIND, OUTPUT

SOURCES = [name for name in CONNECTABLE if KIND[name] == OUTPUT]
TARGETS = [name for name in CONNECTABLE if KIND[name] != OUTPUT]
# The sources that a script can turn.
TURNED = [name for name in SOURCES if name.endswith("Uit Geel")]
# Names that no socket has, and places where no wire may end.
STRANGE = [
    "", " ", "sensor 1 uit geel", "Zoemer ", "LED 5 Ingang", "Sensor 1", "Drukknop 2",
    "Comparator Regelaar", COUNTED, "Zoemer|LED 1 Ingang",
    "Sensor 1 Uit Geel|OF-poort Uit", "|", "\u00e9\u00e9n", "\u20ac 5", "\x81\x8d\x8f\x90\x9d",
    "\u0178\u00ff", '"', "a,b", "a;b", "\t", "\r\n", "\x01\x1f\x7f", "\\", "</script>", "%s%n",
    "x" * 300,
]
EDGES = [-0x80000000, -0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFE, -1, 51, 1 << 16, -(1 << 16)]


def any_name(rng):
    kind = rng.random()
    if kind < 0.75:
        return rng.choice(CONNECTABLE)
    if kind < 0.92:
        return rng.choice(STRANGE)
    return text_of(rng.randbytes(rng.randrange(1, 12)).replace(b"\0", b"?"))


def circuit(rng):
    """Wires as somebody would draw them: most inputs get one output, now and then a wrong one."""
    share = rng.choice((0.2, 0.6, 0.9, 1))
    wires = []
    for target in TARGETS:
        if rng.random() < share:
            kind = rng.choice((TURNED, TURNED, SOURCES, SOURCES, SOURCES, CONNECTABLE))
            ends = [rng.choice(kind), target]
            rng.shuffle(ends)
            wires.append(tuple(ends))
    rng.shuffle(wires)
    return wires


MODULES = ("OF-poort", "EN-poort", "Geheugen", "Invertor", "Comparator", "Transistor", "Relais",
           "Pulsenteller", "AD-omzetter")


def bench(rng):
    """A few modules with hands on all they listen to, and lamps on what they say."""
    lamps = [name for name in TARGETS if name.startswith("LED")] + ["Zoemer"]
    wires = []
    for module in rng.sample(MODULES, rng.randrange(1, 4)):
        for name in CONNECTABLE:
            if not name.startswith(module):
                continue
            if KIND[name] == OUTPUT:
                if rng.random() < 0.3:
                    wires.append((name, rng.choice(lamps)))
            elif rng.random() < 0.8:
                wires.append((rng.choice(TURNED + ["Var. Spanning Uit Geel"] * 4), name))
    rng.shuffle(wires)
    return wires


def crowd(rng):
    """More names than the board has room for, or nearly so."""
    start = rng.choice(SOURCES)
    names = [start] + [f"naam {number}" for number in range(rng.randrange(60, 110))]
    chain = rng.random() < 0.5
    wires = [(names[number - 1] if chain else start, names[number])
             for number in range(1, len(names))]
    if rng.random() < 0.5:
        rng.shuffle(wires)
    return wires[:len(wires) // 2] + circuit(rng) + wires[len(wires) // 2:]


def make_wires(rng):
    style = rng.random()
    if style < 0.02:
        wires = []
    elif style < 0.4:
        wires = bench(rng)
    elif style < 0.7:
        wires = circuit(rng)
    elif style < 0.92:
        wires = [(any_name(rng), any_name(rng)) for _ in range(rng.randrange(1, 60))]
    else:
        wires = crowd(rng)
    if rng.random() < 0.3:
        for _ in range(rng.randrange(1, 6)):
            wires.insert(rng.randrange(len(wires) + 1), (any_name(rng), any_name(rng)))
    if rng.random() < 0.15:
        wires += [("Var. Spanning Uit Geel", rng.choice(TARGETS))
                  for _ in range(rng.randrange(1, 5))]
    if rng.random() < 0.05:
        # Names that are no sockets lie all in one place: a wire between two of them has no bead.
        wires += [("Var. Spanning Uit Geel", "hier"), ("hier", "daar"), ("daar", any_name(rng))]
    if wires and rng.random() < 0.2:
        again = rng.choice(wires)
        wires.insert(rng.randrange(len(wires) + 1), again if rng.random() < 0.5 else again[::-1])
    if rng.random() < 0.1:
        name = any_name(rng)
        wires.insert(rng.randrange(len(wires) + 1), (name, name))
    return wires


def make_level(rng):
    kind = rng.random()
    if kind < 0.4:
        return rng.randrange(51)
    if kind < 0.8:
        return rng.choice((0, 6, 7, 20, 25, 35, 49, 50))
    if kind < 0.93:
        return rng.randrange(-12, 63)
    if kind < 0.97:
        return rng.randrange(-30, 120)
    return rng.choice(EDGES)


def make_mode(rng):
    return rng.randrange(3) if rng.random() < 0.85 else rng.choice([3, 4, 7, -1] + EDGES)


def make_board(rng):
    return Board(
        wires=make_wires(rng), counter=rng.randrange(10), sensors=[make_mode(rng), make_mode(rng)],
        pulse=rng.choice((0, 50, make_level(rng), make_level(rng))), comparator=make_level(rng),
        voltage=make_level(rng), buttons=[rng.random() < 0.5, rng.random() < 0.5])


def make_document(rng, board):
    """The board's document, now and then with what a reader has to pass over."""
    data = bytearray(board.write())
    if rng.random() < 0.1:
        struct.pack_into("<i", data, 12, rng.choice(EDGES))
    for place in (44, 45):
        if data[place] == 0 and rng.random() < 0.1:
            data[place] = rng.randrange(255)
    for place in (2, 8, 48):
        if rng.random() < 0.05:
            struct.pack_into("<i", data, place, rng.choice(EDGES + [0, len(data)]))
    if rng.random() < 0.1:
        data += rng.randbytes(rng.randrange(1, 200))
    if rng.random() < 0.05:
        # The first wires alone, or more than there are: the tail is read as names.
        struct.pack_into("<i", data, 16, rng.randrange(len(board.wires) + 5))
        data += b"\0" * rng.randrange(8)
    try:
        read(data)
    except DocumentError:
        return board.write()
    return bytes(data)


def break_document(rng, data):
    """The bytes of a document in which something is wrong or missing."""
    while True:
        broken = bytearray(data)
        way = rng.randrange(6)
        if way == 0:
            del broken[rng.randrange(len(broken)):]
        elif way == 1:
            struct.pack_into("<h", broken, rng.choice((0, 6, 46)), rng.randrange(-0x8000, 0x8000))
        elif way == 2:
            struct.pack_into("<i", broken, 16, rng.choice(
                (rng.randrange(0x80000000), -1, 0x7FFFFFFF, -0x80000000, len(data))))
        elif way == 3:
            struct.pack_into("<i", broken, 20, rng.choice((10, -1, 256, *EDGES)))
        elif way == 4:
            broken = bytearray(rng.randbytes(rng.randrange(300)))
        else:
            for _ in range(rng.randrange(1, 20)):
                broken[rng.randrange(len(broken))] = rng.randrange(256)
        try:
            read(broken)
        except DocumentError:
            return bytes(broken)


CONTROLS = ("Sensor 1", "Sensor 2", "Drukknop 1", "Drukknop 2", "Drukknop 1", "Drukknop 2",
            "Comparator Regelaar", "Var. Spanning Regelaar", "Var. Spanning Regelaar",
            "Puls Generator Regelaar", "Puls Generator Regelaar", "Geluids Sensor",
            "Pulsenteller Reset Drukknop", "Aanwijzer", "Aanwijzer")


def make_value(rng, control):
    if control.startswith("Sensor"):
        return str(rng.randrange(3))
    if control.startswith("Drukknop"):
        return str(rng.randrange(2))
    if control == "Pulsenteller Reset Drukknop":
        return rng.choice(("", "0", "1"))
    if control == "Aanwijzer":
        spot = rng.choice(((44, 49), (44, 102), (207, 188)))
        reach = rng.choice((0, 3, 60, 110, 300, 70000))
        return " ".join(str(centre + rng.randint(-reach, reach)) for centre in spot)
    return str(rng.randrange(51) if rng.random() < 0.3 else rng.choice((0, 0, 7, 25, 49, 50, 50)))


def make_script(rng, ticks):
    """Rows of (tick, control, value), in the order of their ticks."""
    if rng.random() < 0.1:
        return []
    rows = rng.randrange(1, 1 + ticks)
    return [(tick, control, make_value(rng, control))
            for tick in sorted(rng.randrange(1, ticks + 3) for _ in range(rows))
            for control in [rng.choice(CONTROLS)]]
