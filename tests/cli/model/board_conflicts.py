"""What is wrong with the wires of a board, in plain Python."""
from board_sockets import CONNECTABLE, KIND, OUTPUT


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
