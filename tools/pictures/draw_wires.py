#!/usr/bin/python3
"""Draws the nine wire looks and their one mask into images1/.

    tools/pictures/draw_wires.py

A wire is a chain of beads, each cut from a strip of 32 directions, so a look
is the same little drawing turned 32 times: better said once than kept alike by
hand in 288 places. The results are kept beside the other sources; the build
does not run this script. To change how wires look, change the table below,
run the script and look at a board full of wires at every scale.

What makes beads join into one cable:
- along the wire a bead is the same everywhere, so an overlap shows nothing;
- it is opaque over more than the largest gap between beads and then fades out
  slowly, so that a bead whose direction is a few degrees off blends into the
  next one instead of making a step;
- the outline narrows a little towards the ends, which keeps the corners of
  such a bead inside the cable;
- the outline belongs to the mask, is the same for all looks, and lies well
  inside the casing colour, which fills the frame: no foreign colour can show
  at the soft edge.
"""

import math
import os

FRAME = 32
DIRECTIONS = 32
FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "images1")

HALF_WIDTH = 3.7   # of the cable, casing included
TAPER = 0.045      # narrowing per pixel away from the middle of a bead
OPAQUE = 6.5       # half the length that covers fully: steps reach 15 on wires of any length
FADED = 11.5       # half the length over which anything shows

CASING = "#14161b"
LIGHT = (-0.6, -0.8)  # towards the light, as on the rest of the board

# look: core colour, half the core's width, colour and half width of the highlight
LOOKS = {
    8: ("#3d4250", 0.80, "#4d5363", 0.20),
    7: ("#54467f", 1.05, "#6b5c98", 0.25),
    6: ("#883f8c", 1.30, "#a25ca5", 0.30),
    5: ("#c0416f", 1.55, "#d76a90", 0.35),
    4: ("#e8603a", 1.80, "#f58a69", 0.40),
    3: ("#f98b1d", 2.05, "#ffb061", 0.45),
    2: ("#fdb91e", 2.30, "#ffd975", 0.50),
    1: ("#ffe94a", 2.55, "#fffde0", 0.75),
}


def angle(direction):
    """Degrees of a direction; a full turn counts as 2 x 3.14, as it does where beads are laid."""
    return 360 * 3.14 / math.pi * direction / DIRECTIONS


def number(value):
    return f"{value:.3f}".rstrip("0").rstrip(".")


def strip(title, definitions, paint):
    lines = [
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{FRAME * DIRECTIONS}" height="{FRAME}"'
        f' viewBox="0 0 {FRAME * DIRECTIONS} {FRAME}">',
        f"  <title>{title}</title>",
        "  <!-- Drawn by tools/pictures/draw_wires.py: edit the table there. -->",
        "  <defs>",
        *("    " + line for line in definitions),
        "  </defs>",
    ]
    for direction in range(DIRECTIONS):
        lines.append(
            f'  <svg x="{FRAME * direction}" width="{FRAME}" height="{FRAME}"'
            f' viewBox="-16 -16 {FRAME} {FRAME}">'
            f'<g transform="rotate({number(angle(direction))})">{paint(direction)}</g></svg>'
        )
    lines.append("</svg>")
    return "\n".join(lines) + "\n"


def save(name, text):
    with open(os.path.join(FOLDER, name), "w", encoding="utf-8") as file:
        file.write(text)


def band(half, colour, middle=0.0):
    return (
        f'<path d="M-24 {number(middle)}H24" stroke="{colour}"'
        f' stroke-width="{number(2 * half)}" fill="none"/>'
    )


def lit_side(direction):
    """How far across the cable the light falls: -1 to 1, seen from the bead's own axes."""
    turn = math.radians(angle(direction))
    return -math.sin(turn) * LIGHT[0] + math.cos(turn) * LIGHT[1]


def draw_levels():
    for look, (core, half, shine, shine_half) in LOOKS.items():
        definitions = [
            f'<g id="cable"><rect x="-24" y="-24" width="48" height="48" fill="{CASING}"/>'
            + band(half, core) + "</g>"
        ]
        save(
            f"Line{look}.svg",
            strip(
                f"Wire look {look}",
                definitions,
                lambda n: '<use href="#cable"/>'
                + band(shine_half, shine, 0.45 * half * lit_side(n)),
            ),
        )


def draw_removal():
    definitions = [
        '<g id="cable"><rect x="-24" y="-24" width="48" height="48" fill="#a3003f"/>'
        + band(2.7, "#ffffff")
        + '<path d="M-2.3 -2.3L2.3 2.3M-2.3 2.3L2.3 -2.3" stroke="#16181c"'
        ' stroke-width="1.5" fill="none"/></g>'
    ]
    save("Line9.svg", strip("Wire look 9: to be removed", definitions, lambda n: '<use href="#cable"/>'))


def draw_mask():
    stops = []
    steps = 8
    for side in (-1, 1):
        for step in range(steps + 1):
            part = step / steps
            place = OPAQUE + (FADED - OPAQUE) * part
            cover = 1 - part * part * (3 - 2 * part)
            stops.append((0.5 + side * place / (2 * FADED), cover))
    stops.sort()
    gradient = (
        f'<linearGradient id="fade" gradientUnits="userSpaceOnUse" x1="{-FADED}" x2="{FADED}"'
        ' y1="0" y2="0">'
        + "".join(
            f'<stop offset="{number(place)}" stop-color="#fff" stop-opacity="{number(cover)}"/>'
            for place, cover in stops
        )
        + "</linearGradient>"
    )
    end = number(HALF_WIDTH - TAPER * FADED)
    middle = number(HALF_WIDTH)
    outline = (
        f'<path id="bead" fill="url(#fade)" d="M{-FADED} -{end}L0 -{middle}L{FADED} -{end}'
        f'V{end}L0 {middle}L{-FADED} {end}Z"/>'
    )
    save(
        "LineMask.svg",
        strip(
            "Mask of all wire looks",
            [gradient, outline],
            lambda n: '<rect x="-24" y="-24" width="48" height="48"/><use href="#bead"/>',
        ),
    )


if __name__ == "__main__":
    draw_levels()
    draw_removal()
    draw_mask()
