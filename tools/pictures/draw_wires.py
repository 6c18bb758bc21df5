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
- a bead whose direction is a few degrees off runs from one side of the wire to
  the other. It fades in over about the distance between beads, so that what
  is seen is the mean of it and its neighbour, which stays in the middle;
- the outline is an ellipse: its ends stay inside the cable when the bead is
  turned, and make a point that goes into the socket;
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
OPAQUE = 6.5       # half the length that covers fully; beads are mostly 10 to 12 apart
LENGTH = 13.5      # half the length over which anything shows
SOFT = 0.35        # blur: beads sit on whole pixels, and a soft edge hides the half pixel missed

CASING = "#14161b"
SHEATH = f'<rect x="-24" y="-24" width="48" height="48" fill="{CASING}"/>'
LIGHT = (-0.6, -0.8)  # towards the light, as on the rest of the board

# look: core colour, half the core's width, colour and half width of the highlight
LOOKS = {
    8: ("#3d4250", 0.80, "#4d5363", 0.20),
    7: ("#54467f", 1.05, "#6b5c98", 0.25),
    6: ("#924a9b", 1.30, "#ac68b4", 0.30),
    5: ("#c94b78", 1.55, "#de7599", 0.35),
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


def strip(title, ground, definitions, paint):
    lines = [
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{FRAME * DIRECTIONS}" height="{FRAME}"'
        f' viewBox="0 0 {FRAME * DIRECTIONS} {FRAME}">',
        f"  <title>{title}</title>",
        "  <!-- Drawn by tools/pictures/draw_wires.py: edit the table there. -->",
        "  <defs>",
        f'    <filter id="soft" color-interpolation-filters="sRGB"><feGaussianBlur stdDeviation="{SOFT}"/></filter>',
        *("    " + line for line in definitions),
        "  </defs>",
        f'  <rect width="{FRAME * DIRECTIONS}" height="{FRAME}" fill="{ground}"/>',
    ]
    for direction in range(DIRECTIONS):
        lines.append(
            f'  <svg x="{FRAME * direction}" width="{FRAME}" height="{FRAME}"'
            f' viewBox="-16 -16 {FRAME} {FRAME}">'
            f'<g filter="url(#soft)" transform="rotate({number(angle(direction))})">{paint(direction)}</g></svg>'
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
        definitions = [f'<g id="cable">{SHEATH}{band(half, core)}</g>']
        save(
            f"Line{look}.svg",
            strip(
                f"Wire look {look}",
                CASING,
                definitions,
                lambda n: '<use href="#cable"/>'
                + band(shine_half, shine, 0.45 * half * lit_side(n)),
            ),
        )


def draw_removal():
    definitions = [
        f'<g id="cable">{SHEATH}'
        + band(2.5, "#ffffff")
        + '<path d="M-4.8 -2.3L-.2 2.3M-4.8 2.3L-.2 -2.3" stroke="#d9003c"'
        ' stroke-width="1.8" fill="none"/></g>'
    ]
    save(
        "Line9.svg",
        strip("Wire look 9: to be removed", CASING, definitions, lambda n: '<use href="#cable"/>'),
    )


def draw_mask():
    gradient = (
        f'<linearGradient id="fade" gradientUnits="userSpaceOnUse" x1="{-LENGTH}" x2="{LENGTH}"'
        ' y1="0" y2="0">'
        + "".join(
            f'<stop offset="{number(0.5 + place / (2 * LENGTH))}" stop-color="#fff"'
            f' stop-opacity="{cover}"/>'
            for place, cover in ((-LENGTH, 0), (-OPAQUE, 1), (OPAQUE, 1), (LENGTH, 0))
        )
        + "</linearGradient>"
    )
    bead = f'<ellipse id="bead" rx="{LENGTH}" ry="{HALF_WIDTH}" fill="url(#fade)"/>'
    save(
        "LineMask.svg",
        strip(
            "Mask of all wire looks",
            "#000",
            [gradient, bead],
            lambda n: '<use href="#bead"/>',
        ),
    )


if __name__ == "__main__":
    draw_levels()
    draw_removal()
    draw_mask()
