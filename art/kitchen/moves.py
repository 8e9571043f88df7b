# SPDX-License-Identifier: GPL-3.0-or-later
"""How each thing moves: pose(parts, button, phase). Phases 0 and 1 are the same picture, the thing at rest."""
import math

from mathutils import Vector

from lib import core
from lib.core import put


REST = {}
_shapes = {}


def _home(o):
    """Where a part stands when nothing moves."""
    if o.name not in REST:
        REST[o.name] = (o.location.copy(), o.rotation_euler.copy(), o.scale.copy())
    return tuple(q.copy() for q in REST[o.name])


def _move(o, dx=0, dy=0, dz=0, rx=0, ry=0, rz=0, sx=1.0, sy=1.0, sz=1.0):
    l, r, s = _home(o)
    o.location = l + Vector((dx, dy, dz))
    o.rotation_euler = (r.x + math.radians(rx), r.y + math.radians(ry), r.z + math.radians(rz))
    o.scale = (s.x * sx, s.y * sy, s.z * sz)


def _shape(o, change):
    """Gives every vertex of a thing's meshes the place that change(its place at rest) names."""
    for part in core.tree(o):
        if part.type != "MESH":
            continue
        if part.name not in _shapes:
            _shapes[part.name] = [v.co.copy() for v in part.data.vertices]
        for v, c in zip(part.data.vertices, _shapes[part.name]):
            v.co = change(c)
        part.data.update()


def _glow(material, strength):
    m = core._materials[material].node_tree.nodes["Principled BSDF"]
    m.inputs["Emission Strength"].default_value = strength


def slap(fish, k):
    """The tail of a lying fish, lifted by k."""
    def lifted(c):
        t = max(0.0, c.x - .5)
        return Vector((c.x - .25 * k * t * t, c.y - 1.15 * k * t * t, c.z))
    _shape(fish, lifted)


def swim(fish, w, k):
    """A wave that runs from head to tail and grows on its way; at rest the body is straight."""
    def waved(c):
        return Vector((c.x, c.y + k * c.x * c.x * (math.sin(w - 4 * c.x) + math.sin(4 * c.x)), c.z))
    _shape(fish, waved)


def rise(f):
    """0 at rest, 1 in the middle of the loop."""
    return (1 - math.cos(2 * math.pi * f)) / 2


def door(P, f, w):
    _move(P["door"], rz=-24 * rise(f))


def plaque(P, f, w):
    _move(P["plaque"], ry=-150 * rise(f))


def tub(P, f, w):
    _, holder, water = P["tub"]
    sn = math.sin(w)
    _move(holder, rz=12 * sn, dz=.12 * math.sin(2 * w), dx=.1 * sn - .3 * rise(f))
    swim(holder, 2 * w, .14)
    _move(water, rz=16 * sn)


def basket(P, f, w):
    """What lies in front stirs; the herbs at the back reach over the top of the frame and stand still."""
    for i, o in enumerate(P["basket"][:-1]):
        q = math.sin(w + i * 1.3) - math.sin(i * 1.3)
        hop = max(0.0, math.sin(w - i * .35)) * rise(f)
        _move(o, dz=.3 * hop, rz=9 * q, rx=10 * math.sin(w) * (-1) ** i)


def books(P, f, w):
    for i, o in enumerate(P["books"]):
        q = max(0.0, math.sin(w - i * .55 + .2)) ** 2 * rise(f)
        _move(o, dz=.25 * q, dy=-.9 * q, rx=6 * q)


def pan(P, f, w):
    """One fillet is turned in the air, the other hops, the fat bubbles."""
    _, fillets, bubbles = P["pan"]
    t = min(1.0, max(0.0, (f - .1) / .8))
    air = 4 * t * (1 - t)
    _move(fillets[1], dz=2.5 * air, rx=360 * t * t * (3 - 2 * t), dx=.1 * air)
    _move(fillets[0], dz=.3 * rise(f), rx=-7 * rise(f))
    for i, o in enumerate(bubbles):
        q = 1 + .5 * (math.sin(w + i * 1.7) - math.sin(i * 1.7))
        _move(o, sx=q, sy=q, sz=q)


def clock(P, f, w):
    hour, minute = P["clock"]
    _move(minute, rz=-360 * f)
    _move(hour, rz=-7 * math.sin(w))


def radio(P, f, w):
    needle, knobs, ww, eye = P["radio"]
    _move(needle, dx=ww * .21 * math.sin(w))
    for i, k in enumerate(knobs):
        _move(k, rz=70 * math.sin(w) * (1 if i else -1))
    for i, half in enumerate(eye):
        _move(half, rz=(1 if i else -1) * (34 * rise(f) - 14 * math.sin(2 * w) ** 2))
    _glow("dial", 2.2 + 1.3 * rise(f))


def pot(P, f, w):
    lid, steam = P["pot"]
    up, rattle = rise(f), math.sin(3 * w) * rise(f)
    _move(lid, dz=.55 * up + .08 * rattle, ry=9 * up + 4 * rattle, rx=5 * rattle, dx=.2 * up)
    for i, s in enumerate(steam):
        q = (f + i * .618) % 1
        put(s, -2.1 + .42 * i + .3 * math.sin(5 * q + i), -2.1 + .1 * i, 2.7 + 2.2 * q, scale=.55 + .75 * q)
        s.color = (1.9 * up * math.sin(math.pi * q), 0, 0, 1)


def aquarium(P, f, w):
    _, f1, f2, bubbles = P["aquarium"]
    put(f1, .75 * math.sin(w), -.6 * math.cos(w) - .3, 1.75 + .12 * math.sin(2 * w), turn=math.degrees(w) + 180)
    put(f2, -.6 * math.sin(w), .5 * math.cos(w) - .1, 2.75 + .1 * math.sin(w), turn=math.degrees(w))
    for fish in (f1, f2):
        swim(fish, 2 * w, .15)
    for i, b in enumerate(bubbles):
        q = (f + i / len(bubbles)) % 1
        put(b, -.5 + .5 * i + .1 * math.sin(q * 9), -.5, .6 + 2.7 * q, scale=math.sin(math.pi * q) ** .5 + .02)


def camera(P, f, w):
    button, burst = P["camera"]
    _move(button, dz=-.1 * rise(f))
    flash = max(0.0, 1 - abs(f - .45) * 5)
    _glow("bulb", 300 * flash)
    burst.color = (1.2 * flash, 0, 0, 1)
    _glow("flashglass", 14 * flash)


def crate(P, f, w):
    for i, o in enumerate(P["crate"]):
        q = max(0.0, math.sin(w - i * .9)) * rise(f) ** .5
        _move(o, rz=6 * math.sin(w + i * 2.1) * rise(f), dz=.1 * q)
        slap(o, .85 * q)


def board(P, f, w):
    slap(P["board"], rise(f) * (1 + .18 * math.sin(2 * w)))


def brush(P, f, w):
    _move(P["brush"], dx=.55 * rise(f) + .08 * math.sin(2 * w), dy=.5 * math.sin(w), dz=.12 * rise(f), ry=4 * math.sin(w))


def season(P, f, w):
    """The leaf of the calendar comes forward past the post of the window and is turned up, the flame flickers."""
    leaf, flame = P["season"]
    _move(leaf, rx=-118 * rise(f), dy=-.35 * min(1, 8 * rise(f)))
    sn = math.sin(w)
    _move(flame, sx=1 + .25 * sn, sz=1 + .3 * math.sin(2 * w), ry=14 * sn)


def wine(P, f, w):
    """The glass is swirled on its foot, clear of the bottle; the wine in it stays level and climbs the wall."""
    glass, liquid, top = P["wine"]
    ax, ay = math.radians(5.5 * math.sin(w) + 2 * rise(f)), math.radians(7) * rise(f)
    _move(glass, ry=math.degrees(ax), rx=math.degrees(ay))

    def level(c):
        part = min(1.0, max(0.0, (c.z - (top - .9)) / .9)) ** 2
        return Vector((c.x, c.y, c.z + part * 1.7 * (math.tan(ax) * c.x - math.tan(ay) * c.y)))
    _shape(liquid, level)


def salad(P, f, w):
    _move(P["salad"], dz=.4 * abs(math.sin(w)) * rise(f) ** .5, rz=24 * math.sin(w))


def cloche(P, f, w):
    up = rise(f)
    _move(P["cloche"], dz=1.15 * up, dx=.5 * up, ry=16 * up)


def projector(P, f, w):
    reels, beam = P["projector"]
    for o in reels:
        _move(o, ry=144 * f)
    beam.color = (.75 * rise(f) * (1 + .3 * math.sin(5 * w)), 0, 0, 1)
    _glow("projlens", 3 + 5 * rise(f) * (1 + .35 * math.sin(5 * w)))


MOVES = (door, plaque, tub, basket, books, pan, clock, radio, pot, aquarium, camera, crate, board, brush, season, wine, salad, cloche, projector)

PARTS = ("door", "plaque", "tub", "basket", "books", "pan", "clock", "radio", "pot", "aquarium", "camera", "crate", "board", "brush", "season", "wine", "salad", "cloche", "projector")
SHINING = (7, 10, 18)   # buttons whose things light up what stands round them


def pose(P, button, f):
    """Moves the thing of a button to phase f."""
    f %= 1.0
    MOVES[button](P, f, 2 * math.pi * f)
