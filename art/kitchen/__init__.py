# SPDX-License-Identifier: GPL-3.0-or-later
"""The kitchen by the pond at dusk: one room, a thing for every button of the main screen.

Things are put by where they are seen: at_table(px, py) and at_wall(px, py) give the point behind a pixel of the 800 x 600
screen, so that the picture fits the program's table of positions. build() returns the moving parts; pose(parts, button,
phase) brings one of them into a phase 0 … 1 of its loop.
"""
import os

from .moves import PARTS, SHINING, pose  # noqa: F401
from .place import at_wall  # noqa: F401
from .scene import build  # noqa: F401
from .tablethings import photo_camera  # noqa: F401


def text():
    """All that describes the kitchen, to tell whether a picture of it is still that of today."""
    here = os.path.dirname(os.path.abspath(__file__))
    out = ""
    for name in sorted(n for n in os.listdir(here) if n.endswith(".py")):
        with open(os.path.join(here, name), encoding="utf-8") as f:
            out += f.read()
    return out
