"""Tells the first thing in which the program and the model differ."""


class Difference(Exception):
    """What the program says and the model does not."""


def compare_lists(what, found, wanted):
    for number, (one, other) in enumerate(zip(found, wanted), 1):
        if one != other:
            raise Difference(f"{what}, {number}: {one!r} by the program, {other!r} by the model")
    if len(found) != len(wanted):
        longer, by = (found, "program") if len(found) > len(wanted) else (wanted, "model")
        raise Difference(f"{what}: only by the {by}: {longer[min(len(found), len(wanted))]!r}")


def compare_bytes(what, found, wanted):
    for place, (one, other) in enumerate(zip(found, wanted)):
        if one != other:
            raise Difference(f"{what}, byte {place}: {one:#04x} in the program's, "
                             f"{other:#04x} in the model's")
    if len(found) != len(wanted):
        raise Difference(f"{what}: {len(found)} bytes by the program, {len(wanted)} by the model")
