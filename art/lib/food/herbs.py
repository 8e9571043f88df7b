# SPDX-License-Identifier: GPL-3.0-or-later
"""Sprigs and leaves."""
import math
import random

import numpy as np
from mathutils import Matrix, Vector

from ..core import grid_faces, group, mat, mesh, scatter, tube


def _leafshape(lobes=3, n=30, deep=.35, seed=0, ruffle=.18):
    """Flat leaf with lobes; base at the origin, pointing along +x, length 1."""
    rnd = random.Random(seed)
    v = [(0, 0, 0)]
    ring1, ring2 = [], []
    for i in range(n + 1):
        a = -2.3 + 4.6 * i / n
        rr = .5 * (1 - deep + deep * abs(math.cos(a * lobes * .68))) * (1 + .18 * rnd.uniform(-1, 1)) * (1 + .25 * math.cos(a))
        x, y = .5 + rr * math.cos(a), rr * 1.05 * math.sin(a)
        ring2.append((x, y, ruffle * (rnd.uniform(-1, 1) * .6 + .5 * math.cos(a * 5))))
        ring1.append((.3 + (x - .3) * .55, y * .55, .07 * math.cos(a * 2)))
    v += ring1 + ring2
    m = n + 1
    f = [(0, 1 + i, 2 + i) for i in range(n)] + grid_faces(2, m, offset=1)
    return v, f


def herb_mat(kind="parsley"):
    c = {"parsley": ("1c4a0c", "2f6b18", "4c8a28"), "dill": ("2c5a18", "4a7d28", "6d9a3c"), "basil": ("1f4f0e", "336f18", "5a9430"), "sage": ("55694a", "74886a", "94a58a"), "bay": ("2c3d18", "46592a", "66753c"),
         "mint": ("1f5a1c", "3a7a2c", "5d9a44"), "thyme": ("3a4c26", "566a38", "7c8a55"), "rosemary": ("26402a", "3f5a3c", "64785a"), "fir": ("0e2c1a", "1c4526", "356038"), "chives": ("2a5a14", "457d22", "68a038"), "lettuce": ("5d8a1e", "8ab036", "bfd56a")}[kind]
    return mat("herb-" + kind, tuple(zip((.36, .5, .64), c)), .38, .45, coat=.15, noise=2.4, detail=5, translucent=.25)


def sprig(kind="parsley", size=1.0, n=None):
    """A sprig lying about the origin: parsley, dill, thyme, rosemary, basil, mint, fir."""
    if kind == "dill":
        return _dill(size)
    if kind in ("thyme", "rosemary", "fir"):
        return _needles(kind, size)
    m = herb_mat(kind)
    parts = []
    lv, lf = _leafshape(3 if kind == "parsley" else 1, 34 if kind == "parsley" else 20, .42 if kind == "parsley" else .04, random.randrange(99), .2 if kind == "parsley" else .03)
    if kind == "basil" or kind == "mint":
        lv = [(x, y * .8, z + .3 * y * y - .15 * x * x) for x, y, z in lv]
    ts = []
    n = n or (22 if kind == "parsley" else 6)
    stems = []
    for i in range(n):
        a = i * 2.399 + random.uniform(-.3, .3)
        q = math.sqrt((i + .5) / n)
        d = .65 * q * size
        z = (.55 - .42 * q) * size * random.uniform(.75, 1.1)
        s = size * random.uniform(.34, .52) * (1 if kind == "parsley" else 1.7)
        ts.append(Matrix.Translation((d * math.cos(a), d * math.sin(a), z)) @ Matrix.Rotation(a + random.uniform(-.5, .5), 4, "Z") @ Matrix.Rotation(random.uniform(-.2, .55) * (1.2 - q * .4), 4, "Y") @ Matrix.Rotation(random.uniform(-.5, .5), 4, "X") @ Matrix.Diagonal((s, s, s, 1)))
        if i % 3 == 0:
            stems.append(tube([(-.05 * size, 0, 0.02), (d * .5 * math.cos(a), d * .5 * math.sin(a), z * .75), (d * math.cos(a), d * math.sin(a), z)], .022 * size, m, 5))
    parts.append(scatter(lv, lf, ts, m))
    return group(parts + stems)


def _needle():
    v = [(0, -.5, 0), (0, .5, 0), (0, 0, .7), (.6, -.35, .05), (.6, .35, .05), (.6, 0, .5), (1, 0, .1)]
    return v, [(0, 1, 2), (0, 3, 4, 1), (1, 4, 5, 2), (2, 5, 3, 0), (3, 6, 4), (4, 6, 5), (5, 6, 3)]


def _dill(size):
    """Feathery fronds on a bent stem."""
    m = herb_mat("dill")
    nv, nf = _needle()
    ts, stems = [], []
    L = 2.4 * size
    main = [(L * t - L * .5, .18 * size * math.sin(t * 3), .1 * size + .28 * size * math.sin(t * 2.6)) for t in np.linspace(0, 1, 14)]
    stems.append(tube(main, list(np.linspace(.035, .015, 14) * size), m, 6))
    for i in range(3, 14):
        for sgn in (-1, 1):
            b = Vector(main[i])
            ln = size * (1.0 - .055 * i) * random.uniform(.6, .85)
            d = Vector((math.cos(.75), sgn * math.sin(.75), random.uniform(-.15, .35))).normalized()
            stems.append(tube([b, b + d * ln * .5 + Vector((0, 0, .03)), b + d * ln], .011 * size, m, 4))
            for k in range(9):
                p = b + d * ln * (k + 1) / 9
                for s2 in (-1, 1):
                    w = (d + Vector((-d.y, d.x, 0)) * s2 * .9 + Vector((0, 0, random.uniform(-.4, .5)))).normalized()
                    q = Vector((1, 0, 0)).rotation_difference(w).to_matrix().to_4x4()
                    l = size * random.uniform(.13, .24)
                    ts.append(Matrix.Translation(p) @ q @ Matrix.Diagonal((l, .02 * size, .02 * size, 1)))
    return group([scatter(nv, nf, ts, m)] + stems)


def _needles(kind, size):
    m = herb_mat(kind)
    nv, nf = _needle()
    ts, stems = [], []
    L = {"thyme": 1.8, "rosemary": 2.2, "fir": 4.2}[kind] * size
    twigs = [([(L * t - L * .5, .1 * L * math.sin(t * 2.5) * .5, .1 * size) for t in np.linspace(0, 1, 16)], 1.0)]
    if kind == "fir":
        base = twigs[0][0]
        for i in (3, 5, 7, 9, 11):
            for sgn in (-1, 1):
                b = base[i]
                l = L * (.42 - .02 * i)
                twigs.append(([(b[0] + l * t * .75, b[1] + sgn * l * t * .62, b[2] + .1 * t * size) for t in np.linspace(0, 1, 10)], .8))
    brown = mat("twig", "4a2f18", .7)
    for pts, k in twigs:
        stems.append(tube(pts, list(np.linspace(.05, .02, len(pts)) * size * (1 if kind == "fir" else .6)), brown, 6))
        steps = int(len(pts) * (7 if kind == "fir" else 3))
        for s in range(steps):
            f = s / steps * (len(pts) - 1)
            i = int(f)
            p = Vector(pts[i]).lerp(Vector(pts[min(i + 1, len(pts) - 1)]), f - i)
            d0 = (Vector(pts[min(i + 1, len(pts) - 1)]) - Vector(pts[max(i - 1, 0)])).normalized()
            for _ in range(3 if kind == "fir" else 2):
                a = random.random() * 6.283
                side = Vector((-d0.y, d0.x, 0)) * math.cos(a) + Vector((0, 0, 1)) * abs(math.sin(a)) * .8
                w = (d0 * .7 + side).normalized()
                l = {"thyme": .2, "rosemary": .42, "fir": .36}[kind] * size * random.uniform(.75, 1.1)
                th = {"thyme": .09, "rosemary": .045, "fir": .03}[kind] * size
                ts.append(Matrix.Translation(p) @ Vector((1, 0, 0)).rotation_difference(w).to_matrix().to_4x4() @ Matrix.Diagonal((l, th, th * .7, 1)))
    return group([scatter(nv, nf, ts, m)] + stems)


def leaf(kind="bay", length=1.8):
    """Single leaf with a middle rib: bay, sage, basil."""
    nx, ny = 24, 9
    u, v = np.meshgrid(np.linspace(0, 1, nx), np.linspace(-1, 1, ny), indexing="ij")
    w = .34 * np.sin(np.pi * u ** .85) ** .8 * (1 if kind != "basil" else 1.35)
    z = .12 * np.abs(v) * np.sin(np.pi * u) + .1 * np.sin(u * 3) * .6 + .03 * np.sin(u * 22) * np.abs(v)
    o = mesh(np.stack([(u - .5), v * w, z + .02], -1).reshape(-1, 3) * length, grid_faces(nx, ny), herb_mat(kind))
    rib = tube([((f - .5) * length, 0, (.1 * math.sin(f * 3) * .6 + .02) * length + .01) for f in np.linspace(-.12, .98, 14)], .018 * length, mat("rib" + kind, "8a8f5c", .5), 5)
    return group([o, rib])


def lettuce(r=2.0, seed=None):
    """A frilled lettuce leaf."""
    seed = random.randrange(999) if seed is None else seed
    nu, nv = 26, 150
    v = []
    for i in range(nu):
        q = i / (nu - 1)
        for j in range(nv):
            a = -2.5 + 5.0 * j / (nv - 1)
            rr = r * q * (1 + .1 * math.sin(a * 3 + seed))
            fr = q ** 5 * (.22 * math.sin(a * 17 + seed) + .13 * math.sin(a * 31 + 2))
            z = .1 + .45 * q ** 2 * (.4 + .3 * math.sin(a * 2 + seed)) + fr * r * .5
            v.append((rr * math.cos(a), rr * math.sin(a) * .85, max(.02, z)))
    m = mat("lettuce", ((.36, "6a941f"), (.5, "94b83c"), (.64, "c6d978")), .35, .45, noise=1.2, coat=.25, translucent=.35, bump=.3, bumpscale=3)
    return mesh(v, grid_faces(nu, nv), m)
