# SPDX-License-Identifier: GPL-3.0-or-later
"""Where things stand: sight lines from pixels of the 800 x 600 screen to points of the room, in decimetres."""
import math

import numpy as np
from mathutils import Vector

from lib.core import put


EYE = Vector((0, 0, 15.6))
PITCH = math.radians(14.5)
FOCAL = 300 / math.tan(math.radians(22.5))   # pixels of the 800 x 600 screen
TABLE = 7.4
WALL = 36.0
S = .35                                      # dish units -> decimetres


def ray(px, py):
    """Direction of the sight line through a screen pixel (y forward, z up)."""
    x, u = (px - 400) / FOCAL, (300 - py) / FOCAL
    return Vector((x, math.cos(PITCH) + u * math.sin(PITCH), -math.sin(PITCH) + u * math.cos(PITCH)))


def seen_at(points):
    """Screen pixels behind which points (n x 3) of the room lie."""
    d = np.asarray(points) - np.array(EYE)
    depth = d @ np.array(ray(400, 300))
    up = d @ np.array((0, math.sin(PITCH), math.cos(PITCH)))
    return np.stack([400 + FOCAL * d[:, 0] / depth, 300 - FOCAL * up / depth], -1)


def at_height(px, py, z):
    d = ray(px, py)
    return EYE + d * ((z - EYE.z) / d.z)


def at_table(px, py):
    return at_height(px, py, TABLE)


def at_wall(px, py, depth=WALL):
    d = ray(px, py)
    return EYE + d * (depth / d.y)


def scale_at(p):
    """Decimetres per screen pixel at a point."""
    return (p - EYE).dot(ray(400, 300).normalized()) / FOCAL


def stand(o, px, py, width_px=None, width=None, turn=0, z=None):
    """Stands a thing on the table with its foot at (px, py); width_px scales its own width to so many pixels."""
    p = at_table(px, py) if z is None else at_height(px, py, z)
    k = S if width_px is None else width_px * scale_at(p) / width
    put(o, p.x, p.y, p.z, turn, scale=k)
    return o
