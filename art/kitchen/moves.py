"""How each thing moves: pose(parts, button, phase)."""
import math

from mathutils import Vector

from lib import core
from lib.core import put


REST = {}
_slap = {}


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


def pose(P, button, f):
    """Moves the thing of a button to phase f (0 and 1 are the same picture)."""
    w = 2 * math.pi * f
    sn, cs, up = math.sin(w), math.cos(w), (1 - math.cos(w)) / 2
    if button == 0:
        _move(P["door"], rz=-24 * up)
    elif button == 1:
        _move(P["plaque"], ry=-170 * up)
    elif button == 2:
        g, holder, water = P["tub"]
        _move(holder, rz=24 * sn, dz=.22 * math.sin(2 * w), dx=.25 * sn)
        _move(water, rz=16 * sn)
    elif button == 3:
        for i, o in enumerate(P["basket"][:-1]):
            q = math.sin(w + i * .9) - math.sin(i * .9)
            _move(o, dz=.22 * max(0, q), rz=12 * q)
    elif button == 4:
        for i, o in enumerate(P["books"]):
            q = max(0.0, math.sin(w - i * .55 + .2)) ** 2 * (1 - math.cos(w)) / 2
            _move(o, dz=.25 * q, dy=-.9 * q, rx=6 * q)
    elif button == 5:
        g, fil, bub = P["pan"]
        for i, o in enumerate(fil):
            _move(o, dz=.45 * up * (1 if i else .7), rx=(14 if i else -10) * up, dx=.15 * sn)
        for i, o in enumerate(bub):
            ph = math.sin(w + i * 1.7)
            _move(o, sx=1 + .5 * ph, sy=1 + .5 * ph, sz=1 + .6 * ph)
    elif button == 6:
        hour, minute = P["clock"]
        _move(minute, rz=-360 * f)
    elif button == 7:
        needle, knobs, ww = P["radio"]
        _move(needle, dx=ww * .21 * sn)
        for i, k in enumerate(knobs):
            _move(k, rz=70 * sn * (1 if i else -1))
    elif button == 8:
        g, lid = P["pot"]
        _move(lid, dz=.75 * up, rx=10 * sn * up, ry=8 * up, dx=.25 * up)
        for i, s in enumerate(P["steam"]):
            q = max(.001, up)
            _move(s, dz=.9 * f, dx=.3 * math.sin(w + i), sx=q, sy=q, sz=q)
    elif button == 9:
        g, f1, f2, bubs = P["aquarium"]
        _move(f1, rz=0)
        put(f1, .75 * math.sin(w), -.6 * math.cos(w) - .3, 1.75 + .12 * math.sin(2 * w), turn=math.degrees(w) + 180)
        put(f2, -.6 * math.sin(w), .5 * math.cos(w) - .1, 2.75 + .1 * math.sin(w), turn=math.degrees(w))
        for i, b in enumerate(bubs):
            q = (f + i / len(bubs)) % 1
            put(b, -.5 + .5 * i + .1 * math.sin(q * 9), -.5, .6 + 2.7 * q, scale=math.sin(math.pi * q) ** .5 + .02)
    elif button == 10:
        btn, bulb = P["camera"]
        _move(btn, dz=-.1 * up)
        flash = max(0.0, 1 - abs(f - .5) * 7)
        m = core._materials["bulb"].node_tree.nodes["Principled BSDF"]
        m.inputs["Emission Strength"].default_value = 60 * flash
        fl = core._materials["flashglass"].node_tree.nodes["Principled BSDF"]
        fl.inputs["Emission"].default_value = (1, .9, .7, 1)
        fl.inputs["Emission Strength"].default_value = 14 * flash
    elif button == 11:
        for i, o in enumerate(P["crate"]):
            _move(o, rz=7 * math.sin(w + i * 2.1) - 7 * math.sin(i * 2.1), dz=.18 * max(0, math.sin(w + i * 2.1)))
    elif button == 12:
        slap(P["board"], f)
    elif button == 13:
        _move(P["brush"], dx=.55 * sn, dy=.3 * (1 - cs) / 2, dz=.35 * up, ry=8 * sn)
    elif button == 14:
        _move(P["candle"], sx=1 + .18 * sn, sz=1 + .3 * math.sin(2 * w + .0), ry=9 * sn)
    elif button == 15:
        _move(P["wine"], rx=6 * sn, ry=6 * (cs - 1))
    elif button == 16:
        _move(P["salad"], dz=.35 * up, rz=22 * sn)
    elif button == 17:
        _move(P["cloche"], dz=1.0 * up, dx=.5 * up, ry=14 * up)
    elif button == 18:
        for i, o in enumerate(P["projector"]):
            _move(o, ry=72 * f)


def slap(f_obj, f):
    """The tail of the fish on the board rises and falls."""
    w = 2 * math.pi * f
    k = (1 - math.cos(w)) / 2
    for o in core.tree(f_obj):
        if o.type != "MESH":
            continue
        if o.name not in _slap:
            _slap[o.name] = [v.co.copy() for v in o.data.vertices]
        for v, c in zip(o.data.vertices, _slap[o.name]):
            t = max(0.0, c.x - .5)
            v.co = (c.x - .25 * k * t * t, c.y - 1.15 * k * t * t, c.z)
        o.data.update()
