# SPDX-License-Identifier: GPL-3.0-or-later
"""Plain home cooking: potato pancakes, tubes of pasta, spinach, sauerkraut, sardines in their tin, covered fillets."""
import math
import random

import numpy as np
from mathutils import Matrix, Vector

from ..core import fbm, grid_faces, group, mat, mesh, outline_solid, picture, put, rgb, scatter, tube
from ..table import rounded_rect, steel
from .flakes import flakes
from .pieces import _cubelet, fillet
from .sauces import sauce_mat
from .shapes import blob, slab
from .surfaces import fishskin
from .vegetables import dice, pea, strip


def _pancake():
    return mat("bramborak", ((.33, "54290c"), (.44, "a5651c"), (.56, "d09a44"), (.68, "e6c078")), .42, .45, noise=2.6, detail=10, bump=.6, bumpscale=8, coat=.3)


def _shreds(o, n):
    """Shreds of grated potato fried into a surface: golden, dark at their tips."""
    v, f = _cubelet()
    polys = [p for p in o.data.polygons if p.normal.z > -.1]
    size = [p.area for p in polys]   # as thick on the flat as at the rim, whose faces are many and small
    ts = []
    for p in random.choices(polys, size, k=n):
        along = random.random() * 6.28 if p.normal.z > .6 else random.choice((0, 3.14)) + random.uniform(-.5, .5)
        turn = Vector((0, 0, 1)).rotation_difference(p.normal).to_matrix().to_4x4() @ Matrix.Rotation(along, 4, "Z") @ Matrix.Rotation(random.uniform(-.07, .07), 4, "Y")
        ts.append(Matrix.Translation(p.center - p.normal * .008) @ turn @ Matrix.Diagonal((random.uniform(.06, .2), .02, .013, 1)))
    return scatter(v, f, ts, mat("shred", ((.34, "7a4212"), (.5, "c98f38"), (.64, "e8cb8c")), .4, coat=.3, noise=1.6, detail=4), False)


def bramborak(r=1.4, half=False, seed=None):
    """Carp fried in a potato pancake; half: cut through, the cut with its layer of white fish at the front."""
    seed = random.randrange(999) if seed is None else seed
    out = blob(2 * r, 1.75 * r, .2, 84, 2.2, seed)
    if half:
        out[:, 1] = np.maximum(out[:, 1], -.1 * r)
    m, parts = _pancake(), []
    for z, h, k in ((0, .36, 1.0), (.62, .34, .97)):
        o = slab(out * k, h, m, 2.4, .09, 1.6, 22, .08, .06, 5, seed, taper=.12)
        shreds = _shreds(o, 330)
        for q in (o, shreds):
            q.location.z = z
        parts += [o, shreds]
    fish = slab(out * .93 if half else out * .98, .4, flakes("white", "poached", 4, 1), 8, .03, 2, 14, 0, .03, 7, seed, taper=0)
    if not half:
        fish.data.materials.clear()
        fish.data.materials.append(m)
    parts.append(put(fish, 0, -.02 if half else 0, .28))
    return group(parts)


def penne(s=.62):
    """A quill of pasta with slanting ends and grooves."""
    m = mat("penne", ((.4, "e0bd6a"), (.6, "f0d898")), .3, .5, coat=.5, noise=3)
    n, r, v = 36, .17, []
    for x, slant in ((-s, 1), (s, 1)):
        for k in range(n):
            a = 2 * math.pi * k / n
            q = r * (1 + .05 * math.cos(a * 12))
            v.append((x + slant * .26 * math.sin(a), q * math.cos(a), q * math.sin(a) + r))
    o = mesh(v, grid_faces(2, n, True), m)
    o.modifiers.new("t", "SOLIDIFY").thickness = .035
    return o


def spinach(s=.8):
    """A wilted leaf of spinach, glossy with sauce."""
    m = mat("spinach", ((.36, "0f2e0a"), (.5, "1f4f14"), (.64, "3c7a26")), .28, .5, coat=.6, noise=2.2, translucent=.12)
    nx, ny, seed = 26, 16, random.random() * 50
    u, v = np.meshgrid(np.linspace(0, 1, nx), np.linspace(-1, 1, ny), indexing="ij")
    w = .42 * np.sin(np.pi * np.clip(u * .96 + .03, 0, 1)) ** .7
    z = .09 + .5 * (fbm(np.stack([u * 4, v * 1.6, u * 0 + seed], -1), 3, 3) - .45) - .12 * v * v
    p = np.stack([(u - .5) * 1.7, v * w + .12 * np.sin(u * 5 + seed), np.maximum(z, .02)], -1) * s
    return mesh(p.reshape(-1, 3), grid_faces(nx, ny), m)


def sauerkraut(r=1.3, h=.6, n=420):
    """Heap of cut sauerkraut with caraway."""
    m = mat("kraut", ((.38, "cdbb78"), (.5, "e0d29c"), (.62, "efe6c2")), .25, .5, coat=.6, noise=3)
    parts = [slab(blob(1.9 * r, 1.7 * r, .15, 50), h * .75, m, 2.2, .1, 2, 14, .05, .05, 6)]
    for _ in range(n // 3):
        a, q = random.random() * 6.28, math.sqrt(random.random())
        x, y, z = r * q * math.cos(a), r * .9 * q * math.sin(a), h * (1 - q * q) * random.uniform(.7, 1.05) + .06
        turn, bend, long_ = random.random() * 6.28, random.uniform(-1.4, 1.4), random.uniform(.35, .8)
        line = [(x + long_ * (t - .5) * math.cos(turn) + .2 * bend * math.sin(turn) * (t - .5) ** 2, y + long_ * (t - .5) * math.sin(turn) - .35 * bend * math.cos(turn) * (t - .5) ** 2,
                 max(.04, z + .14 * math.sin(t * 3.1 + bend) - .3 * (t - .5) ** 2)) for t in np.linspace(0, 1, 9)]
        parts.append(tube(line, random.uniform(.022, .036), m, 5))
    return group(parts)


def tin(sx=3.4, sy=2.2, h=.7):
    """An opened tin of sardines in oil, its lid rolled back."""
    m = steel()
    wall = outline_solid(rounded_rect(sx, sy, .6), h, m, .06, 3, holes=[rounded_rect(sx - .16, sy - .16, .54)])
    floor = outline_solid(rounded_rect(sx - .1, sy - .1, .55), .08, m, .02)
    oil = put(outline_solid(rounded_rect(sx - .2, sy - .2, .5), .1, mat("tinoil", "d9a93a", .05, .6, trans=.35, ior=1.3, coat=1), .02), 0, 0, h * .42)
    lid = [tube([(sx / 2 - .1 + .05 * i, -sy / 2 + .15, h + .12 + .06 * math.sin(i)), (sx / 2 - .1 + .05 * i, sy / 2 - .15, h + .12 + .06 * math.sin(i))], .2 - .03 * i, m, 16) for i in range(3)]
    parts = [wall, floor, oil, *lid]
    skin = mat("sardineskin", ((.34, "3d4f58"), (.46, "8fa0a4"), (.6, "d3dad6"), (.72, "a89a6a")), .2, .6, coat=.8, metal=.55, noise=1.3, stretch=(.5, 2.2, 1), bump=.2, cells=16)
    for i in range(4):
        n = 40
        x = np.linspace(-.5, .5, n)
        rad = .3 * np.clip(1.06 - .55 * (x + .5) ** 1.6, 0, 1) * np.sqrt(np.clip((.5 - np.abs(x)) / .06, .03, 1))
        o = tube([(q * sx * .84, .05 * math.sin(q * 3 + i), .22) for q in x], list(rad), skin, 20)
        parts.append(put(o, -.05, (i - 1.5) * .47, h * .42 - .06, turn=180 * (i % 2) + random.uniform(-3, 3), scale=(1, .82, 1)))
    return group(parts)


def codsalad(r=2.0, h=1.0, n=42):
    """Mound of cod in mayonnaise: large curved flakes laid like tiles over a core of thin strips of roots and gherkin, all
    of it coated; the dressing runs out between them at the foot."""
    base = slab(blob(1.75 * r, 1.55 * r, .16, 90), h * .8, sauce_mat("mayonnaise"), 2.1, .2, 1.6, 26, .05, .07, 4, taper=-.16)
    parts = [base]
    order = ("fish", "carrot", "pea", "celeriac", "gherkin", "fish", "carrot", "onion", "pea", "carrot", "gherkin")
    for i in range(n * 3):
        a, q = i * 2.399 + random.uniform(-.2, .2), math.sqrt((i + .5) / (n * 3)) * .94
        x, y = .875 * r * q * math.cos(a), .775 * r * q * math.sin(a)
        hit, loc, nor, _ = base.ray_cast(Vector((x, y, 9)), Vector((0, 0, -1)))
        if not hit:
            continue
        nor = nor if nor.z > 0 else -nor
        kind = order[i % len(order)]
        o = _codflake() if kind == "fish" else pea(.16) if kind == "pea" else dice("gherkin", .28) if kind == "gherkin" else strip("leek" if kind == "onion" else kind, random.uniform(.8, 1.2), .12)
        out = {"fish": .0, "pea": -.02, "gherkin": .02}.get(kind, .06)
        turn = Vector((0, 0, 1)).rotation_difference(nor).to_matrix().to_4x4() @ Matrix.Rotation(random.random() * 6.28, 4, "Z") @ Matrix.Rotation(random.uniform(-.35, .35), 4, "X")
        o.matrix_world = Matrix.Translation(loc + nor * (out - .05)) @ turn
        parts.append(o)
    return group(parts)


def _codflake():
    """One flake as it slides off a poached fillet: ribbed, a little bent, with a moist shine."""
    m = mat("codflake", ((.36, "e9dcc0"), (.5, "f5ecd8"), (.64, "fffaf0")), .16, .6, sss=.2, coat=.9, noise=2.2, stretch=(.5, 2.6, 1), bump=.3, bumpscale=7, sssradius=(.3, .22, .16))
    o = slab(blob(random.uniform(.9, 1.35), random.uniform(.6, .8), .26, 40, 3.0), random.uniform(.32, .44), m, 3.2, .1, 2.4, 14, .04, .04, 7)
    for v in o.data.vertices:
        v.co.z += .05 * math.sin(v.co.x * 9 + v.co.y * 3) - .12 * v.co.x * v.co.x
    return o


def halved(kind="tench", length=5.4, state="poached"):
    """Half of a fish braised skin up: scored skin, a pale cut edge, the tail drawn thin."""
    n = 110
    t = np.linspace(0, 2 * np.pi, n, endpoint=False)
    c, s = np.cos(t), np.sin(t)
    w = np.interp(c, (-1, -.6, 0, .55, .8, 1), (.75, 1.0, 1.0, .62, .34, .42))
    out = np.stack([np.sign(c) * np.abs(c) ** .8 * length / 2, s * length * .2 * w], -1)
    m = fishskin(kind, state)
    o = slab(out, length * .15, m, 2.1, .06, 1.0, 26, .1, .015, 7, 3, side=flakes("white", "poached", 9, 2), taper=-.02)
    parts = [o]
    cut = mat("scored", ((.4, "e9dcc0"), (.6, "f4ead4")), .4, coat=.4)
    for k in range(6):
        x = -length * .3 + k * length * .105
        half = length * .13 * float(np.interp(x, (-length / 2, 0, length / 2), (.8, 1, .5)))
        line = []
        for q in np.linspace(-1, 1, 13):
            hit, loc, _, _ = o.ray_cast(Vector((x + .18 * q, half * q, 9)), Vector((0, 0, -1)))
            if hit:
                line.append((loc.x, loc.y, loc.z - .012))
        if len(line) > 3:
            parts.append(tube(line, [.012 + .03 * math.sin(math.pi * i / (len(line) - 1)) for i in range(len(line))], cut, 6))
    return group(parts)


def salmonportion(sx=3.6, sy=2.0, h=1.0, seed=3):
    """A portion cut across a side of salmon and fried on its skin, served with it up: thick towards the back (left), thin
    towards the belly; the cut sides show the flakes, glassy in the middle, set pale at the rim, browned at the foot."""
    n, m = 300, 26
    out = _evenly(blob(sx, sy, .035, 4 * n, 6.5, seed), n)
    thick = np.interp(out[:, 0] / sx, (-.5, -.42, -.26, 0, .3, .5), (.6, .84, 1, .95, .74, .5)) * h
    f = np.linspace(0, 1, m)[:, None]
    x, y, z = (np.broadcast_to(q, (m, n)) for q in (out[None, :, 0], out[None, :, 1], f * thick))
    wide, fine, phase = _muscles(x, y, z, sx, h, seed)
    groove = np.clip((.12 - np.abs(np.mod(phase, 1) - .5)) / .12, 0, 1)
    swell = 1 + (.05 * np.sin(np.pi * f) + .035 * (wide - .5) - .03 * groove + .012 * (fine - .5)) * (sy / 2) / np.hypot(x, y).clip(.3)
    body = mesh(np.stack([x * swell, y * swell, z], -1).reshape(-1, 3), grid_faces(m, n, True), _cutsalmon(sx, sy, h, out, thick, seed),
                uv=np.stack([np.broadcast_to(np.arange(n) / (n - 1), (m, n)), np.broadcast_to(f, (m, n))], -1).reshape(-1, 2))
    return group([body, _salmonskin(out, thick, sx, sy, seed)])


def _evenly(outline, n):
    """n points at equal steps round an outline: a picture laid along it is stretched nowhere."""
    closed = np.concatenate([outline, outline[:1]])
    way = np.r_[0, np.cumsum(np.hypot(*np.diff(closed, axis=0).T))]
    t = np.linspace(0, way[-1], n, endpoint=False)
    return np.stack([np.interp(t, way, closed[:, k]) for k in (0, 1)], -1)


def _muscles(x, y, z, sx, h, seed):
    """Two noises and the phase of the muscle layers, which lie behind one another in bows from the skin to the foot."""
    wide = fbm(np.stack([x * .9, y * .9, z * 1.1 + seed], -1), 3, seed)
    fine = fbm(np.stack([x * 7, y * 7, z * 4], -1), 3, seed + 1)
    return wide, fine, np.hypot(x + .62 * sx, (z - .3 * h) * 1.5) * 2.3 + y * .8 + 1.0 * (wide - .5)


def _cutsalmon(sx, sy, h, out, thick, seed):
    """Material for the wall of a portion: its UV map runs round it (u) and up (v)."""
    v, u = np.mgrid[0:1:260j, 0:1:1500j]
    at = u * (len(out) - 1)
    x, y, tall = (np.interp(at, np.arange(len(out)), q) for q in (out[:, 0], out[:, 1], thick))
    wide, fine, phase = _muscles(x, y, v * tall, sx, h, seed)
    part = np.abs(np.mod(phase, 1) - .5)
    seam = np.clip((.09 - part) / .05, 0, 1) * np.clip(.45 + 2.2 * (wide - .35), 0, 1)
    set_ = np.clip(1 - np.minimum(v / .42, (1 - v) / .34), 0, 1)[..., None] ** .8
    rosy, pale, fat, brown, dark = (np.array(rgb(c)) ** (1 / 2.2) for c in ("e67c4c", "f3b490", "fdeada", "b87432", "6e3a16"))
    img = (rosy + (pale - rosy) * (.15 + .85 * set_)) * (.9 + .2 * fine[..., None])
    img = img + (fat - img) * (seam * .9)[..., None]
    under = np.clip((v - .93) / .05, 0, 1)[..., None]
    img = img + (np.array(rgb("8a6a50")) ** (1 / 2.2) - img) * under * .7
    crust = np.clip(1 - v / (.1 + .22 * wide), 0, 1)[..., None]
    img = img + (brown + (dark - brown) * np.clip(crust * 1.5 - .8, 0, 1) - img) * np.clip(crust * 1.5, 0, .9)
    deep = np.clip(.5 + .5 * np.clip(part / .3, 0, 1) + .3 * (fine - .5), 0, 1)
    height = picture("salmoncuth", np.repeat(deep[..., None], 3, -1), True)
    return mat("salmoncut", "e8825a", .3, .5, sss=.16, coat=.55, image=picture("salmoncut", img.clip(0, 1)), height=height, heightscale=.5, sssradius=(.3, .12, .06))


def _salmonskin(out, thick, sx, sy, seed):
    """The crisp skin: it curls at its ragged rim, dark along the back and silver towards the belly, blistered brown."""
    n, rings = len(out), 40
    q = np.sin(np.linspace(0, 1, rings) * np.pi / 2)[:, None]
    rim = 1.0 + .012 * np.sin(np.arange(n) * .7) + .02 * (fbm(np.stack([out[:, 0] * 3, out[:, 1] * 3, out[:, 0] * 0], -1), 3, seed) - .5)
    x, y = out[None, :, 0] * q * rim, out[None, :, 1] * q * rim
    tall = np.interp(x / sx, (-.5, -.42, -.26, 0, .3, .5), (.6, .84, 1, .95, .74, .5)) * thick.max()
    waves = fbm(np.stack([x * 1.6, y * 1.6, x * 0 + seed], -1), 3, seed + 2) - .5
    blisters = fbm(np.stack([x * 6, y * 6, x * 0 + seed], -1), 2, seed + 5) - .5
    z = tall + .035 + .1 * waves + .05 * blisters + .05 * q ** 6 - .14 * np.clip((q - .965) / .035, 0, 1) ** 2
    uv = np.stack([x / sx + .5, y / sy + .5], -1).reshape(-1, 2)
    return mesh(np.stack([x, y, z], -1).reshape(-1, 3), grid_faces(rings, n, True), _crispskin(sx, sy, seed), uv=uv)


def _crispskin(sx, sy, seed):
    v, u = np.mgrid[0:1:560j, 0:1:960j]
    x, y = u * sx, v * sy
    wide = fbm(np.stack([x * 1.1, y * 1.1, x * 0 + seed], -1), 4, seed)
    fine = fbm(np.stack([x * 9, y * 9, x * 0], -1), 3, seed + 7)
    row = np.floor(x / .085)
    scale = np.hypot(np.mod(x / .085, 1) - .15, (np.mod(y / .11 + .5 * np.mod(row, 2), 1) - .5) * 1.1)
    back = np.clip(1.15 - u * 1.5 + .5 * (wide - .5), 0, 1)[..., None]
    dark, silver, bronze, burnt = (np.array(rgb(c)) ** (1 / 2.2) for c in ("35332f", "aea48f", "a0662a", "3a1e0c"))
    img = (silver + (dark - silver) * back) * (.8 + .3 * np.clip(scale, 0, 1) + .25 * (fine - .5))[..., None]
    edge = np.clip(1 - np.minimum(np.minimum(u, 1 - u) * 1.6, np.minimum(v, 1 - v)) / .16, 0, 1)
    crisp = np.clip(.12 + .75 * edge + (wide - .45) * 4.4, 0, 1)[..., None]
    img = img + (bronze * (.75 + .5 * fine[..., None]) - img) * crisp * .8
    img = img + (burnt - img) * np.clip(crisp * 1.8 - 1.25, 0, .75)
    deep = np.clip(.5 * np.clip(scale * 1.1, 0, 1) + .7 * (fine - .2), 0, 1)
    height = picture("crispsalmonh", np.repeat(deep[..., None], 3, -1), True)
    return mat("crispsalmon", "8a7a5e", .26, .55, coat=.7, metal=.2, image=picture("crispsalmon", img.clip(0, 1)), height=height, heightscale=.45)


def spreadheap(sx=3.0, sy=2.0, h=.4):
    """Spread heaped on a slice with a knife: soft waves, bits of fish and egg in it."""
    m = sauce_mat("sardine")
    o = slab(blob(sx, sy, .16, 80, 2.6), h, m, 2.4, .16, 1.5, 26, .06, .05, 4)
    for v in o.data.vertices:
        if v.co.z > h * .4:
            v.co.z += .09 * math.sin(v.co.x * 4.2 + .8 * math.sin(v.co.y * 3)) * min(1, v.co.z / h)
    bits = []
    polys = [p for p in o.data.polygons if p.normal.z > .3]
    vs, fs = _cubelet()
    for col, n in (("f4efe0", 26), ("7d8a3a", 18), ("8a6a58", 22), ("e0a83a", 12)):
        ts = []
        for _ in range(n):
            q = random.uniform(.05, .1)
            ts.append(Matrix.Translation(random.choice(polys).center) @ Matrix.Rotation(random.random() * 6, 4, random.choice("XYZ")) @ Matrix.Diagonal((q, q * .8, q * .6, 1)))
        bits.append(scatter(vs, fs, ts, mat("bit" + col, col, .4, coat=.3), False))
    return group([o, *bits])
