# SPDX-License-Identifier: GPL-3.0-or-later
"""Plain home cooking: potato pancakes, tubes of pasta, spinach, sauerkraut, sardines in their tin, covered fillets."""
import math
import random

import numpy as np
from mathutils import Matrix, Vector

from ..core import fbm, grid_faces, group, mat, mesh, outline_solid, put, scatter, tube
from ..table import rounded_rect, steel
from .flakes import flakes
from .pieces import _cubelet, block, fillet, flake
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


def codsalad(r=2.0, h=1.0, n=46):
    """Mound of cod in mayonnaise: large flakes and thin strips of roots, bound by a dressing that shines between them."""
    base = slab(blob(2 * r, 1.8 * r, .14, 90), h * .8, sauce_mat("mayonnaise"), 2.3, .16, 1.4, 26, .05, .05, 4, taper=-.05)
    parts = [base]
    for i in range(n * 2):
        a, q = i * 2.399 + random.uniform(-.2, .2), math.sqrt((i + .5) / (n * 2)) * .93
        x, y = r * q * math.cos(a), .9 * r * q * math.sin(a)
        hit, loc, nor, _ = base.ray_cast(Vector((x, y, 9)), Vector((0, 0, -1)))
        if not hit:
            continue
        kind = ("fish", "carrot", "fish", "pea", "fish", "celeriac", "gherkin", "fish", "leek", "pea")[i % 10]
        o = flake("white", 1.0) if kind == "fish" else pea(.17) if kind == "pea" else dice("gherkin", .3) if kind == "gherkin" else strip(kind, random.uniform(.8, 1.2), .12)
        sunk = {"fish": .06, "pea": .13, "gherkin": .08}.get(kind, .03)
        turn = Vector((0, 0, 1)).rotation_difference(nor).to_matrix().to_4x4() @ Matrix.Rotation(random.random() * 6.28, 4, "Z") @ Matrix.Rotation(random.uniform(-.3, .3), 4, "X")
        o.matrix_world = Matrix.Translation(loc - nor * sunk) @ turn
        parts.append(o)
    return group(parts)


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


def salmonportion(sx=3.6, sy=2.0, h=1.0):
    """Salmon fried on its skin and served with it up: crisp skin, pink flakes along the cut sides, dark edges."""
    skin = mat("crispsalmon", ((.34, "3a2c20"), (.46, "7d7468"), (.58, "b4b0a6"), (.68, "d8d4c8")), .24, .6, coat=.8, metal=.35, noise=1.1, stretch=(.6, 1.6, 1), bump=.4, cells=13)
    o = block("pink", "poached", sx, sy, h, None, 7)
    o.data.materials.append(skin)
    for p in o.data.polygons:
        if abs(p.normal.z) > .8 and p.center.z > .5 * h:
            p.material_index = len(o.data.materials) - 1
    return group([o])


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
