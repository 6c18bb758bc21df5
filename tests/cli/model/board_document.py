"""The documents of a board in plain Python.

A document is bytes, a socket name is a str; the two meet in code page 1252, in which each of the
256 bytes is one character.
"""
import dataclasses
import struct


class DocumentError(Exception):
    """A document that cannot be taken for a board."""


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
