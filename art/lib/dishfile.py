# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads a dish description (art/dishes/NN.dish) and sets the scene. The words are explained in art/README.md."""
import inspect
import math
import random

from mathutils import Euler, Vector

from . import core, fish as fishlib, food, forms, table
from .core import put, rest

VESSELS = {
    "plate": table.plate, "bowl": table.bowl, "board": table.board, "slate": table.slate, "pan": table.pan, "pot": table.pot, "casserole": table.casserole,
    "glass": table.wineglass, "tumbler": table.tumbler, "bottle": table.bottle, "candle": table.candle, "fork": table.fork, "spoon": table.spoon,
    "knife": table.knife, "tableknife": table.tableknife, "potlid": table.potlid,
}
THINGS = {n: f for n, f in vars(food).items() if inspect.isfunction(f) and f.__module__.startswith(food.__name__)}
VESSELS.update({n: getattr(forms, n) for n in ("jar", "glassdish", "tray", "silvertray", "ramekin", "jug", "kettle", "cup", "cone", "paper", "parcel", "eggplate", "squareplate")})
THINGS.update({n: f for n, f in vars(forms).items() if inspect.isfunction(f) and f.__module__ == forms.__name__ and n not in VESSELS})
THINGS["fish"] = fishlib.fish
PLACE = {"at": 2, "turn": 1, "size": 1, "on": 1, "count": 1, "within": 2, "tilt": 1, "roll": 1, "lift": 1, "sink": 1, "radius": 1, "level": 1, "spin": 1, "step": 2, "stepturn": 1, "steep": 1}
EXPOSURE = .45  # stops: food on white plates wants more light than the room


def _value(w):
    if len(w) == 6 and all(c in "0123456789abcdef" for c in w):
        return w  # a colour
    try:
        return float(w)
    except ValueError:
        return {"yes": True, "no": False, "none": None}.get(w, w)


def _split(fn, words):
    """Words of a line -> (positional, keyword, placement)."""
    names = list(inspect.signature(fn).parameters)
    pos, kw, place = [], {}, {}
    i = 0
    while i < len(words):
        w = words[i]
        if w in PLACE:
            n = PLACE[w]
            vals = [float(x) for x in words[i + 1:i + 1 + n]]
            place[w] = vals[0] if n == 1 else vals
            i += 1 + n
        elif w == "flat":
            place["flat"] = True
            i += 1
        elif w in names and i + 1 < len(words):
            v = _value(words[i + 1])
            kw[w] = v
            i += 2
        else:
            pos.append(_value(w))
            i += 1
    return pos, kw, place


def _make(fn, pos, kw):
    whole = {p.name for p in inspect.signature(fn).parameters.values() if p.name in ("n", "seed", "cuts") or type(p.default) is int and p.name in ("flutes", "lobes")}
    names = list(inspect.signature(fn).parameters)
    pos = [int(v) if k in whole and v is not None else v for k, v in zip(names, pos)]
    kw = {k: int(v) if k in whole and v is not None else v for k, v in kw.items()}
    return fn(*pos, **kw)


def _place_one(o, place, x, y, turn):
    size = place.get("size", 1)
    if "level" in place:
        t = random.uniform(-1, 1) * place.get("steep", 18)
        put(o, x, y, place["level"] - place.get("sink", .2), turn, place.get("tilt", 0) + t, place.get("roll", 0) + random.uniform(-1, 1) * place.get("steep", 18) * .6, size)
    elif "on" in place:
        put(o, x, y, place["on"], turn, place.get("tilt", 0), place.get("roll", 0), size)
    else:
        rest(o, x, y, place.get("radius", .5) * size, turn, place.get("sink", .03), 0 if place.get("flat") else place.get("steep", 32), size, place.get("lift", 0))
        if place.get("tilt") or place.get("roll"):
            o.matrix_world = o.matrix_world @ Euler((math.radians(place.get("tilt", 0)), math.radians(place.get("roll", 0)), 0)).to_matrix().to_4x4()


def _spots(place, n):
    """Where n things lie within an ellipse: the lowest free places first, so that heaps grow from below."""
    cx, cy = place.get("at", (0, 0))
    rx, ry = place.get("within", (1, 1))
    gap = place.get("radius", .5) * place.get("size", 1) * (1.9 if "level" in place else 1.55)
    got = []
    for _ in range(n):
        best, score = None, 1e9
        core.bpy.context.view_layer.update()
        for _ in range(24):
            a, q = random.random() * 6.283, math.sqrt(random.random())
            x, y = cx + rx * q * math.cos(a), cy + ry * q * math.sin(a)
            near = min([math.hypot(x - p, y - r) for p, r in got], default=9)
            z = core._cast(x, y)[0] if "level" not in place else 0
            s = z * .8 + max(0, gap - near) * (2.2 if z < .4 or "level" in place else 1.2) + .1 * q
            if s < score:
                best, score = (x, y), s
        got.append(best)
        yield best


def _thing(fn, words):
    pos, kw, place = _split(fn, words)
    n = int(place.get("count", 1))
    spin = place.get("spin", 180 if n > 1 and "step" not in place else 0)
    if "step" in place:
        x, y = place.get("at", (0, 0))
        for i in range(n):
            o = _make(fn, list(pos), dict(kw))
            _place_one(o, place, x + i * place["step"][0], y + i * place["step"][1], place.get("turn", 0) + i * place.get("stepturn", 0) + random.uniform(-1, 1) * place.get("spin", 4))
        return
    if n == 1:
        o = _make(fn, pos, kw)
        x, y = place.get("at", (0, 0))
        _place_one(o, place, x, y, place.get("turn", 0))
        return
    for x, y in _spots(place, n):
        o = _make(fn, list(pos), dict(kw))
        _place_one(o, place, x, y, place.get("turn", 0) + random.uniform(-spin, spin))


def _numbers(words, **defaults):
    out = dict(defaults)
    i = 0
    while i < len(words):
        d = defaults.get(words[i])
        n = len(d) if isinstance(d, (tuple, list)) else 1
        vals = [_value(x) for x in words[i + 1:i + 1 + n]]
        out[words[i]] = tuple(vals) if n > 1 else vals[0]
        i += 1 + n
    return out


def _camera(words):
    q = _numbers(words, high=46, turn=0, far=12.5, at=(0, 0), up=.3, lens=58, blur=1.0, focus=(None, None))
    a, e = math.radians(q["turn"]), math.radians(q["high"])
    t = Vector((q["at"][0], q["at"][1], q["up"]))
    pos = t + Vector((math.sin(a) * math.cos(e), -math.cos(a) * math.cos(e), math.sin(e))) * q["far"]
    f = t if q["focus"][0] is None else Vector((*q["focus"], q["up"]))
    core.camera(pos, t, q["lens"], 1.25 / q["blur"] if q["blur"] else None, f)


def backdrop(kind="dusk"):
    """A dark wall far behind with soft lights, for pictures taken from low down."""
    m = core.mat("backdrop", ((.35, "0b2a30"), (.65, "16484f")), 1, 0, noise=.05, emit="0d343a", emit_strength=.25)
    core.mesh([(-60, 26, -8), (60, 26, -8), (60, 26, 40), (-60, 26, 40)], [(0, 1, 2, 3)], m, False)
    for _ in range(9):
        warm = random.random() < .6
        core.sphere(random.uniform(.15, .4), core.mat("bokeh" + str(warm), "ffb45e" if warm else "7fc4cf", emit="ffb45e" if warm else "7fc4cf", emit_strength=5),
                    (random.uniform(-16, 16), random.uniform(17, 25), random.uniform(3, 10)), n=12)


def read(path):
    """[(command, words)] of a description; comments and empty lines left out."""
    out = []
    with open(path, encoding="utf-8") as f:
        for ln in f:
            ln = ln.split("#")[0].strip()
            if ln:
                w = ln.split()
                out.append((w[0], w[1:]))
    return out


def build(path):
    """Sets the whole scene of a description."""
    lines = read(path)
    seed = next((int(w[0]) for c, w in lines if c == "seed"), 7)
    core.start(seed)
    light = 1.0
    for cmd, w in lines:
        if cmd in ("name", "seed", "samples"):
            continue
        if cmd == "light":
            light = float(w[0])
        elif cmd == "table":
            table.boards(w[0], along=w[1] if len(w) > 1 else "x")
        elif cmd == "cloth":
            q = _numbers(w[1:], sx=14, sy=10, at=(0, 0), turn=0, folds=.12)
            table.cloth(w[0], q["sx"], q["sy"], q["at"], q["turn"], q["folds"])
        elif cmd == "camera":
            _camera(w)
        elif cmd == "backdrop":
            backdrop()
        elif cmd in ("sprinkle", "pool", "drape", "liquid", "swirl", "drops", "steam"):
            _poured(cmd, w)
        elif cmd == "line":
            p = [float(x) for x in w[2:]]
            food.line(w[0], list(zip(p[::2], p[1::2])), float(w[1]))
        elif cmd in VESSELS:
            _vessel(VESSELS[cmd], w)
        elif cmd in THINGS:
            _thing(THINGS[cmd], w)
        else:
            raise SystemExit(f"{path}: do not know '{cmd}'")
    _firm()
    core.evening(light)
    core.scene.view_settings.exposure = EXPOSURE
    core.scene.cycles.sample_clamp_direct = 6
    core.scene.cycles.sample_clamp_indirect = 2


def _firm():
    """Light that enters a surface takes two fifths of the time; where there is little of it nobody sees the difference."""
    for m in core.bpy.data.materials:
        shader = m.node_tree and m.node_tree.nodes.get("Principled BSDF")
        if shader and shader.inputs["Subsurface"].default_value < .15:
            shader.inputs["Subsurface"].default_value = 0


def _vessel(fn, words):
    pos, kw, place = _split(fn, words)
    o = _make(fn, pos, kw)
    x, y = place.get("at", (0, 0))
    if "on" not in place and fn in (table.fork, table.spoon, table.knife, table.tableknife):
        return rest(o, x, y, 1.2, place.get("turn", 0), -.01, 20, place.get("size", 1))
    z = place.get("on")
    if z is None:
        core.bpy.context.view_layer.update()
        for c in core.tree(o):
            c.hide_viewport = True
        z = core.drop(x, y)[0]
        for c in core.tree(o):
            c.hide_viewport = False
    put(o, x, y, z + place.get("lift", 0), place.get("turn", 0), place.get("tilt", 0), place.get("roll", 0), place.get("size", 1))


def _poured(cmd, w):
    if cmd == "sprinkle":
        q = _numbers(w[2:], at=(0, 0), within=(1, 1), minz=-1.0, maxz=99.0, heap=0.0, lift=0.0)
        food.sprinkle(w[0], int(w[1]), q["at"], q["within"], q["minz"], q["heap"], q["maxz"], q["lift"])
    elif cmd == "pool":
        q = _numbers(w[1:], sx=2, sy=1.4, thick=.09, at=(0, 0), wob=.28)
        food.pool(w[0], q["sx"], q["sy"], q["thick"], None, q["at"], q["wob"])
    elif cmd == "drape":
        q = _numbers(w[1:], sx=2, sy=1.4, thick=.1, at=(0, 0), wob=.25, smooth=3)
        food.drape(w[0], q["sx"], q["sy"], q["thick"], q["at"], q["wob"], int(q["smooth"]))
    elif cmd == "liquid":
        q = _numbers(w[1:], r=2.5, level=1.5, oval=1.0, wave=.03, at=(0, 0))
        put(food.liquid(w[0], q["r"], q["level"], q["oval"], q["wave"]), *q["at"])
    elif cmd == "swirl":
        q = _numbers(w[1:], r=1.0, turns=2.2, w=.12, at=(0, 0), lift=.02)
        food.swirl(w[0], q["r"], q["turns"], q["w"], None, q["at"], q["lift"])
    elif cmd == "drops":
        q = _numbers(w[2:], at=(0, 0), within=(2, 2), size=.16)
        food.drops(w[0], int(w[1]), q["at"], q["within"], q["size"])
    elif cmd == "steam":
        q = _numbers(w, at=(0, 0), up=1.5, h=3.5, r=.7, strength=.2)
        for i in range(3):
            food.steam((q["at"][0] + (i - 1) * .5, q["at"][1] + i * .3, q["up"]), q["h"], q["r"], q["strength"], i * 3.1)
