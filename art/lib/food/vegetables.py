# SPDX-License-Identifier: GPL-3.0-or-later
"""Vegetables, fruit, eggs, nuts, butter, bacon."""
import math
import random

import numpy as np
from mathutils import Matrix

from .. import core
from ..core import curve_points, fbm, grid_faces, group, lathe, mat, mesh, put, scatter, smooth_profile, sphere, tube
from .pieces import _lump, grillmarks
from .shapes import blob, slab
from .sides import potato_mat
from .surfaces import gherkin_mat, onion_mat


def citrus(kind="lemon", r=.85):
    name = "citrus" + kind
    if name in core._materials:
        return core._materials[name]
    y, x = np.mgrid[-1:1:512j, -1:1:512j]
    rr, a = np.hypot(x, y) * 1.0, np.arctan2(y, x)
    seg = 9
    f = np.abs(np.mod(a / (2 * np.pi) * seg, 1) - .5)
    n = fbm(np.stack([a * 12 / 1.0 * np.cos(0) + 0 * x, rr * 5, np.zeros_like(x)], -1), 3, 3)
    pulp = np.array([.93, .80, .22]) * (.86 + .28 * n[..., None])
    pith = np.array([.95, .92, .78])
    peel = np.array([.90, .68, .07])
    inside = np.clip((rr * 0 + .85 - rr) / .02, 0, 1) * np.clip((rr - .07) / .02, 0, 1) * np.clip((.5 - f - .018 / np.maximum(rr, .06)) / .02, 0, 1)
    img = pith + (pulp - pith) * inside[..., None]
    img = img + (peel - img) * np.clip((rr - .945) / .02, 0, 1)[..., None]
    m = mat(name, "e8cc40", .22, .6, sss=.15, coat=.6, image=core.picture(name, img), height=core.picture(name + "h", inside * .6 + n * .3 * inside, True), heightscale=.25, sssradius=(.3, .25, .05))
    return m


def peel():
    return mat("peel", ((.4, "d9a010"), (.6, "edbf2c")), .35, .5, bump=.25, bumpscale=28, coat=.3)


def lemon_slice(r=.85, h=.12):
    n = 64
    a = np.arange(n) / n * 2 * np.pi
    k = 1 + .015 * np.sin(a * 3 + random.random() * 6)
    pts = np.stack([np.cos(a) * r * k, np.sin(a) * r * k], -1)
    return slab(pts, h, citrus(), 14, .01, 2, 14, 0, .0, side=peel(), taper=.0)


def lemon_wedge(r=.95):
    """An eighth-to-sixth of a lemon lying on its skin, flesh up."""
    n, k = 25, 15
    half = math.radians(34)
    prof = [(r * 1.32 * math.cos(p), r * math.sin(p)) for p in np.linspace(0.04, math.pi - .04, n)]
    grid = []
    for x, q in prof:
        for j in range(k):
            b = -half + 2 * half * j / (k - 1)
            grid.append((x, q * math.sin(b), r - q * math.cos(b)))
    o1 = mesh(grid, grid_faces(n, k), peel())
    parts = [o1]
    m = mat("lemonflesh", ((.3, "f0d654"), (.7, "f8e88e")), .2, .6, coat=.6, noise=4, bump=.2, bumpscale=9, stretch=(1, 1, 3), translucent=.3)
    wm = mat("pith", "f0e8cc", .6)
    for s in (-1, 1):
        for sc_, mm, off in ((1.0, wm, 0.0), (.9, m, .012)):
            gv = []
            for x, q in prof:
                for j in range(8):
                    d = q * j / 7 * sc_
                    bulge = .035 * math.sin(math.pi * j / 7) if mm is m else 0
                    gv.append((x * (sc_ if mm is m else 1), s * (d * math.sin(half) + off + bulge), r - d * math.cos(half) + bulge * .5 - (.0 if mm is wm else .04 * r * 0)))
            parts.append(mesh(gv, grid_faces(n, 8), mm))
    return group(parts)


def lemon_half(r=1.0):
    pr = smooth_profile([(.01, 0), (r * .25, .03), (r * .7, .25 * r), (r * .95, .65 * r), (r, .95 * r), (r * .97, r)], 6)
    o = lathe(pr, peel(), 64)
    n = 64
    a = np.arange(n) / n * 2 * np.pi
    pts = np.stack([np.cos(a) * r * .985, np.sin(a) * r * .985], -1)
    t = slab(pts, .05, citrus(), 14, .004, 2, 12, 0, 0, taper=0)
    put(t, 0, 0, r * .965)
    return group([o, t])


def tomato_mat():
    return mat("tomato", ((.4, "a81c0c"), (.6, "cf3a18")), .14, .6, sss=.1, coat=.7, noise=1.2, sssradius=(.3, .05, .02))


def tomato_slice(r=.95, h=.16):
    name = "tomatocut"
    if name not in core._materials:
        y, x = np.mgrid[-1:1:384j, -1:1:384j]
        rr, a = np.hypot(x, y), np.arctan2(y, x)
        n = fbm(np.stack([x * 5, y * 5, np.zeros_like(x)], -1), 3, 8)
        loc = np.clip((.78 - rr) / .03, 0, 1) * np.clip((rr - .28) / .03, 0, 1) * np.clip((np.abs(np.mod(a / 6.283 * 5, 1) - .5) * -1 + .5 - .07 - .0) / .03, 0, 1)
        img = np.array([.80, .20, .12]) + (np.array([.72, .30, .10]) - np.array([.80, .20, .12])) * loc[..., None] + ((n - .5) * .16)[..., None]
        seeds = np.clip((fbm(np.stack([x * 14, y * 14, np.ones_like(x)], -1), 2, 4) - .62) / .04, 0, 1) * loc
        img = img + (np.array([.9, .75, .35]) - img) * seeds[..., None] * .8
        img = img + (np.array([.9, .45, .35]) - img) * (np.clip((.1 - rr) / .08, 0, 1) * .6)[..., None]
        mat(name, "c83a20", .16, .6, sss=.15, coat=.7, image=core.picture(name, img), height=core.picture(name + "h", 1 - loc * .6, True), heightscale=.3, sssradius=(.3, .06, .03))
    return slab(blob(2 * r, 2 * r, .04, 56), h, core._materials[name], 10, .01, 2, 12, 0, 0, side=tomato_mat(), taper=0)


def tomato_wedge(r=1.0):
    g = lemon_wedge(r)
    ch = list(g.children)
    ch[0].data.materials[0] = tomato_mat()
    fl = mat("tomatoflesh", ((.4, "c23a1e"), (.6, "dd6a3c")), .2, .6, sss=.15, coat=.6, noise=4, bump=.3, bumpscale=8)
    for c in ch[1:]:
        c.data.materials[0] = fl
    g.scale = (.8, 1, 1)
    return group([g])


def cherry_tomato(r=.5, half=False):
    if half:
        o = tomato_slice(r, r * .9)
        return o
    o = sphere(r, tomato_mat(), scale=(1, 1, .94), n=32)
    for v in o.data.vertices:
        v.co.z += r * .92
    st = mat("stemgreen", "3c5a22", .5)
    parts = [o]
    for k in range(5):
        a = k * 1.257
        parts.append(tube([(0, 0, r * 1.84), (.5 * r * math.cos(a), .5 * r * math.sin(a), r * 1.8), (.75 * r * math.cos(a), .75 * r * math.sin(a), r * 1.62)], [.03, .035, .008], st, 6))
    g = group(parts)
    return g


def cucumber_slice(r=.62, h=.1):
    name = "cucumbercut"
    if name not in core._materials:
        y, x = np.mgrid[-1:1:256j, -1:1:256j]
        rr, a = np.hypot(x, y), np.arctan2(y, x)
        n = fbm(np.stack([x * 6, y * 6, np.zeros_like(x)], -1), 3, 8)
        img = np.array([.80, .87, .60]) + (np.array([.70, .80, .45]) - np.array([.80, .87, .60])) * np.clip((.55 - rr) / .06, 0, 1)[..., None] + ((n - .5) * .1)[..., None]
        sd = np.clip((.06 - np.abs(rr - .38)) / .03, 0, 1) * np.clip((np.cos(a * 12) - .3) / .3, 0, 1)
        img = img + (np.array([.88, .88, .68]) - img) * sd[..., None]
        img = img + (np.array([.16, .33, .10]) - img) * np.clip((rr - .93) / .03, 0, 1)[..., None]
        mat(name, "b9cf7a", .2, .5, sss=.15, coat=.6, image=core.picture(name, img), sssradius=(.1, .2, .05))
    return slab(blob(2 * r, 2 * r, .02, 44), h, core._materials[name], 10, .006, 2, 10, 0, 0, side=mat("cucumberskin", ((.4, "1f4214"), (.6, "3f6b24")), .3, coat=.5, noise=6), taper=0)


def gherkin_fan(length=2.2, n=6):
    parts = []
    for i in range(n):
        f = i / (n - 1) - .5
        o = slab(blob(length, .5, .05, 44, 2.4), .1, gherkin_mat(), 4, .02, 2, 10, .02, 0)
        put(o, length / 2, 0, 0)
        g = group([o])
        put(g, 0, 0, .1 + .05 * i, turn=f * 62, roll=-6)
        parts.append(g)
    return group(parts)


def gherkin(length=1.6):
    pts = [(x * length / 2, .12 * x * x, .3) for x in np.linspace(-1, 1, 20)]
    return tube(pts, [.3 * math.sqrt(max(.03, 1 - abs(x) ** 3)) for x in np.linspace(-1, 1, 20)], gherkin_mat(), 20)


def onion_ring(r=.7, kind="white", th=.1):
    """One ring, not quite round."""
    pr = [(r - th, 0), (r, 0), (r + .02, .11), (r - .01, .22), (r - th, .22), (r - th - .015, .11), (r - th, 0)]
    o = lathe(pr, onion_mat(kind), 56)
    o.scale = (random.uniform(.85, 1.1), random.uniform(.85, 1.1), 1)
    return group([o])


def carrot_mat():
    return mat("carrot", ((.4, "c9591a"), (.6, "e6802c")), .28, .5, sss=.12, coat=.5, noise=4, bump=.1, bumpscale=12, sssradius=(.3, .12, .03))


def carrot_slice(r=.45, h=.16):
    o = slab(blob(2 * r, 2 * r, .04, 40), h, carrot_mat(), 8, .01, 2, 10, 0, .005, taper=0)
    c = lathe([(.01, h + .012), (r * .42, h + .01), (r * .45, h)], mat("carrotheart", ((.4, "d97a24"), (.6, "eda648")), .3, coat=.5, noise=6), 24)
    return group([o, c])


def carrot_star(r=.42, h=.14, petals=6):
    a = np.arange(72) / 72 * 2 * np.pi
    rr = r * (.78 + .22 * np.cos(a * petals))
    o = slab(np.stack([rr * np.cos(a), rr * np.sin(a)], -1), h, carrot_mat(), 8, .005, 2, 10, 0, 0, taper=0)
    c = lathe([(.01, h + .015), (r * .3, h + .01), (r * .33, h)], mat("carrotheart", ((.4, "d97a24"), (.6, "eda648")), .3, coat=.5, noise=6), 24)
    return group([o, c])


def dice(col="carrot", s=.3):
    """Small cubes for soups and salads: carrot, celeriac, potato, beet, apple, gherkin, pepper, greenpepper, crackling (fried bacon)."""
    m = {"carrot": carrot_mat, "celeriac": lambda: mat("celeriac", ((.4, "d9cfa0"), (.6, "ebe4c2")), .35, sss=.15, coat=.4), "potato": lambda: potato_mat("cut"),
         "beet": lambda: mat("beet", ((.4, "5a0c22"), (.6, "86183a")), .22, sss=.1, coat=.6), "apple": lambda: mat("applecut", ((.4, "e6d9a2"), (.6, "f2e9c0")), .3, sss=.15, coat=.4),
         "gherkin": gherkin_mat, "pepper": lambda: mat("redpepper", ((.4, "a31709"), (.6, "cf3216")), .18, coat=.7, sss=.08), "greenpepper": lambda: mat("greenpepper", ((.4, "3c6a14"), (.6, "5f9426")), .18, coat=.7, sss=.08),
         "ham": lambda: mat("bacondice", ((.4, "a8453a"), (.6, "d98a78")), .3, coat=.5), "crackling": lambda: mat("crackling", ((.36, "5a2410"), (.5, "9c5428"), (.64, "d9a470")), .3, .5, coat=.6, noise=4, bump=.5, bumpscale=9), "pinksalad": lambda: mat("pinksalad", ((.4, "b0496a"), (.6, "d98aa0")), .3, coat=.5, sss=.1)}[col]()
    s2 = s * random.uniform(.8, 1.15)
    return slab(blob(s2, s2 * random.uniform(.8, 1.15), .05, 28, 6), s2 * random.uniform(.7, 1), m, 7, .015, 3, 8, 0, 0, taper=.02)


def strip(col="carrot", length=1.4, w=.14):
    """Julienne of carrot, celeriac, leek, pepper: thin bent strip."""
    m = {"carrot": carrot_mat, "celeriac": lambda: mat("celeriac", ((.4, "d9cfa0"), (.6, "ebe4c2")), .35, sss=.15, coat=.4), "leek": lambda: mat("leek", ((.4, "7fa23a"), (.6, "cfdc9a")), .3, sss=.15, coat=.5, noise=1.5),
         "pepper": lambda: mat("redpepper", ((.4, "a31709"), (.6, "cf3216")), .18, coat=.7, sss=.08), "lemonzest": peel}[col]()
    b = random.uniform(-.5, .5)
    pts = [((f - .5) * length, b * (f - .5) ** 2 * 2, w * .5 + .1 * abs(b) * math.sin(f * 3.1)) for f in np.linspace(0, 1, 10)]
    o = tube(pts, w * .55, m, 4)
    return group([put(o, scale=(1, 1, .8))])


def leek_ring(r=.42):
    parts = []
    for i in range(4):
        q = r * (1 - i * .22)
        c = ("5d8a24", "93b552", "c9d99a", "e6ebc8")[i]
        parts.append(lathe([(q - .03, 0), (q, 0), (q, .14), (q - .05, .15), (q - .06, 0)], mat("leekring" + c, c, .3, sss=.15, coat=.5), 32))
    return group(parts)


def pea(r=.17):
    o = sphere(r, mat("pea", ((.4, "56821c"), (.6, "86ad3a")), .28, .5, sss=.15, coat=.5, noise=4), n=16)
    for v in o.data.vertices:
        v.co.z += r * .9
    return o


def radish_slice(r=.45, h=.08):
    return slab(blob(2 * r, 2 * r, .04, 40), h, mat("radishcut", ((.4, "efe9e2"), (.6, "faf7f2")), .25, sss=.15, coat=.5), 9, .005, 2, 8, 0, 0, side=mat("radish", "b3173f", .25, coat=.6), taper=-.03)


def radish_flower(r=.4):
    parts = [radish_slice(r * .55, .1)]
    for k in range(7):
        a = k * 2 * math.pi / 7
        parts.append(put(radish_slice(r * .55, .06), r * .62 * math.cos(a), r * .62 * math.sin(a), .03, turn=math.degrees(a), roll=-18))
    return group(parts)


def mushroom_slice(s=1.0):
    """Slice of a boletus: pale flesh, a thin brown line round the cap, a bulging stem."""
    flesh = mat("boletus", ((.34, "a06a2c"), (.48, "d3aa66"), (.62, "ecd6a6")), .38, .5, sss=.08, coat=.45, noise=2.2, detail=8, bump=.18, bumpscale=9)
    brown = mat("boletuscap", ((.4, "4a2610"), (.6, "7c4a20")), .35, coat=.5, noise=3)
    wide = random.uniform(.74, .9)
    cap = [(wide * math.cos(a), .6 * math.sin(a) ** .8) for a in np.linspace(0, math.pi, 22)]
    cap += [(x, -.1 - .06 * math.cos(x * 4)) for x in np.linspace(-wide * .93, wide * .93, 14)]
    fat = random.uniform(.26, .36)
    stem = [(fat * (.72 + .28 * math.sin(q * 2.2)), .02 - 1.0 * q) for q in np.linspace(0, 1, 12)]
    stem += [(-x, y) for x, y in reversed(stem)]
    cap, stem = np.array(cap) * s, np.array(stem) * s
    rim = put(slab(cap * 1.07, .13 * s, brown, 6, .02, 2, 10, .02), 0, -.015 * s, .01)
    return group([rim, slab(cap, .16 * s, flesh, 7, .02, 2, 12, .02, .01, side=brown, taper=0), slab(stem, .15 * s, flesh, 6, .02, 2, 12, .02, .01, taper=0)])


def asparagus(length=5.0, r=.2):
    """A green spear, its head closed by pointed scales that hug it; a few smaller ones along the stem."""
    m = mat("asparagus", ((.36, "4a7a1e"), (.5, "76a03a"), (.64, "a8c262")), .26, .5, sss=.1, coat=.6, noise=1.5, stretch=(1, 4, 4))
    t = np.linspace(0, 1, 40)
    rad = [r * (1 if x < .74 else max(.03, 1.04 - ((x - .74) / .265) ** 2)) for x in t]
    parts = [tube([((x - .5) * length, .08 * math.sin(x * 4 + random.random() * .2), r) for x in t], rad, m, 16)]
    tip = mat("asparagustip", ((.38, "41621f"), (.5, "68803a"), (.62, "7a6a58")), .4, coat=.3, noise=6)
    tv = [(-.5, -.34, -.06), (-.5, .34, -.06), (-.5, 0, .1), (.05, -.3, .02), (.05, .3, .02), (.05, 0, .16), (.62, 0, .02)]
    tf = [(0, 3, 5, 2), (2, 5, 4, 1), (3, 6, 5), (5, 6, 4)]
    ts = []
    for i in range(40):
        f = .72 + .27 * i / 40 if i < 36 else .2 + .15 * (i - 36)
        a = i * 2.4
        k = r * max(.08, 1.04 - (max(0, f - .74) / .265) ** 2)
        s = r * (.7 if i >= 36 else .8 - .3 * i / 36)
        lean = -.1 - .9 * max(0, (f - .86) / .14)
        ts.append(Matrix.Translation(((f - .5) * length, k * .93 * math.cos(a), r + k * .93 * math.sin(a))) @ Matrix.Rotation(a - math.pi / 2, 4, "X") @ Matrix.Rotation(-lean * .5, 4, "Y") @ Matrix.Diagonal((s * 1.35, s * .9, s * .6, 1)))
    parts.append(scatter(tv, tf, ts, tip))
    return group(parts)


def corn(length=4.0, r=.62):
    gv, gf = _lump(8)
    ts = []
    rows, cols = 14, 22
    for i in range(rows):
        for j in range(cols):
            x = (j + .5) / cols
            q = r * math.sqrt(max(.15, 1 - (2 * x - 1.0) ** 6)) * (1 if x < .8 else 1 - (x - .8) * 1.6)
            a = 2 * math.pi * i / rows
            ts.append(Matrix.Translation(((x - .5) * length, q * math.cos(a), r + q * math.sin(a))) @ Matrix.Rotation(a, 4, "X") @ Matrix.Diagonal((.095, .14, .14, 1)))
    m = mat("corn", ((.36, "b5761a"), (.48, "e6b02c"), (.62, "f3d05a")), .28, .5, sss=.12, coat=.5, noise=1.1, detail=4)
    return scatter(gv, gf, ts, m)


def courgette_slice(r=.7, h=.2, grilled=True):
    o = slab(blob(2 * r, 1.7 * r, .03, 44), h, mat("courgette", ((.4, "b9b45a"), (.6, "dcd896")), .35, sss=.12, coat=.4, noise=3), 8, .01, 2, 12, 0, 0, side=mat("courgetteskin", ((.4, "23421a"), (.6, "4a6b2a")), .35, coat=.4, noise=6), taper=0)
    return group([o, grillmarks(o, 0, 4, "3a2410")]) if grilled else o


def aubergine_slice(r=.9):
    return slab(blob(2 * r, 1.8 * r, .05, 44), .24, mat("aubergine", ((.36, "8a6a34"), (.5, "b89a5c"), (.64, "d6c088")), .4, coat=.35, noise=3, bump=.2, bumpscale=8), 7, .03, 2, 12, 0, .01, side=mat("auberginskin", "26122a", .2, coat=.7), taper=0)


def pepper_piece(kind="pepper", s=.9):
    m = {"pepper": mat("redpepper", ((.4, "a31709"), (.6, "cf3216")), .18, coat=.7, sss=.08), "greenpepper": mat("greenpepper", ((.4, "3c6a14"), (.6, "5f9426")), .18, coat=.7, sss=.08), "yellowpepper": mat("yellowpepper", ((.4, "cf8f10"), (.6, "edb92c")), .18, coat=.7, sss=.08)}[kind]
    return slab(blob(s * 1.4, s * .8, .15, 40, 3), .14, m, 5, .08, 1.2, 12, .15)


def pepper_ring(r=.6, kind="greenpepper"):
    m = {"greenpepper": mat("greenpepper", ((.4, "3c6a14"), (.6, "5f9426")), .18, coat=.7, sss=.08), "pepper": mat("redpepper", ((.4, "a31709"), (.6, "cf3216")), .18, coat=.7, sss=.08)}[kind]
    pts = [(r * (1 + .1 * math.cos(3 * a + 1)) * math.cos(a), r * (1 + .1 * math.cos(3 * a + 1)) * math.sin(a), .1) for a in np.linspace(0, 2 * math.pi, 49)]
    return tube(pts, .085, m, 8, False)


def apple_slice(r=1.0):
    """Half-moon of a red apple."""
    a = np.linspace(0, math.pi, 30)
    pts = [(r * math.cos(x), r * .62 * math.sin(x)) for x in a] + [(-r * .5, .02), (-r * .15, .1), (r * .15, .1), (r * .5, .02)]
    return slab(pts, .16, mat("applecut", ((.4, "e6d9a2"), (.6, "f2e9c0")), .3, sss=.15, coat=.4), 9, .01, 2, 12, 0, 0, side=mat("appleskin", ((.4, "7c1410"), (.6, "b8301c")), .2, coat=.6, noise=5), taper=0)


def egg_half(r=.72):
    """Boiled egg, half: white with yolk."""
    n = 60
    a = np.arange(n) / n * 2 * np.pi
    pts = np.stack([np.cos(a) * r * 1.3 * (1 + .08 * np.cos(a)), np.sin(a) * r], -1)
    w = slab(pts, r * .85, mat("eggwhite", ((.4, "efece2"), (.6, "faf8f2")), .22, .5, sss=.2, coat=.5, sssradius=(.3, .28, .25)), 9, .0, 2, 14, 0, 0, taper=.45)
    y = put(sphere(r * .6, yolk_mat(), scale=(1, 1, .22), n=36), .06 * r, 0, r * .86)
    return group([w, y])


def yolk_mat():
    return mat("yolk", ((.4, "dc9418"), (.6, "efb63a")), .42, .4, sss=.15, coat=.15, noise=4, bump=.1, bumpscale=20, sssradius=(.3, .2, .04))


def egg_slice(r=.7, h=.14):
    o = slab(blob(2.1 * r, 2 * r, .02, 50), h, mat("eggwhite", ((.4, "efece2"), (.6, "faf8f2")), .22, .5, sss=.2, coat=.5, sssradius=(.3, .28, .25)), 9, .0, 2, 12, 0, 0, taper=0)
    y = put(sphere(r * .58, yolk_mat(), scale=(1, 1, .1), n=36), 0, 0, h)
    return group([o, y])


def yolk(r=.5):
    o = sphere(r, mat("rawyolk", ((.4, "e08a10"), (.6, "f0ad28")), .08, .6, sss=.2, coat=.9, sssradius=(.3, .2, .04)), scale=(1, 1, .72), n=40)
    for v in o.data.vertices:
        v.co.z += r * .66
    return o


def egg_piped(r=.72):
    """Stuffed egg: half with a piped star of yolk cream and a rolled anchovy."""
    g = egg_half(r)
    cream = []
    nu, nv = 30, 48
    v = []
    for i in range(nu):
        q = i / (nu - 1)
        for j in range(nv):
            a = 2 * math.pi * j / nv
            rr = r * .62 * (1 - q) ** .55 * (1 + .16 * math.cos(7 * a + q * 5))
            v.append((rr * math.cos(a), rr * math.sin(a), r * .84 + q * r * .5))
    cream.append(mesh(v, grid_faces(nu, nv, True), mat("yolkcream", ((.4, "e6b84a"), (.6, "f2d27c")), .45, sss=.15, coat=.2)))
    an = mat("anchovy", ((.36, "4a1f16"), (.5, "7a3a28"), (.64, "a8684c")), .25, coat=.7, noise=3, stretch=(1, 1, 4))
    coil = [(.3 * r * (1 - .5 * t) * math.cos(t * 11), .3 * r * (1 - .5 * t) * math.sin(t * 11), r * (1.26 + .22 * t)) for t in np.linspace(0, 1, 40)]
    cream.append(tube(coil, [.1 * r / .72 * min(1, 4 * (1 - t) + .3) for t in np.linspace(0, 1, 40)], an, 8))
    cream.append(put(caper(.11), 0, 0, r * 1.42))
    return group([g] + cream)


def caper(r=.13):
    o = sphere(r, mat("caper", ((.4, "3a4218"), (.6, "67702c")), .3, .5, coat=.5, noise=8, bump=.3, bumpscale=14), scale=(1.15, 1, .9), n=14, rough=.12)
    for v in o.data.vertices:
        v.co.z += r * .85
    return o


def olive(r=.3):
    m = mat("olive", ((.4, "120c12"), (.6, "2c2026")), .15, .6, coat=.8)
    o = put(torus_z(r, m), 0, 0, 0)
    return o


def torus_z(r, m):
    pr = smooth_profile([(r * .35, r * .55), (r * .5, r * .85), (r * .95, r * .6), (r * 1.05, 0), (r * .95, -r * .6), (r * .5, -r * .85), (r * .35, -r * .55)], 4)
    o = lathe([(a, z + r * .8) for a, z in pr], m, 28)
    return group([put(lathe([(r * .37, r * .2), (.01, r * .2)], mat("olivein", "0a0708", .5), 16), 0, 0, 0), o])


def raisin(s=.22):
    return sphere_on(s, mat("raisin", ((.4, "20100c"), (.6, "4a2a1c")), .3, coat=.6, noise=5, bump=.8, bumpscale=7), (1.4, 1, .8), .25)


def prune(s=.5):
    return sphere_on(s, mat("prune", ((.4, "120a0e"), (.6, "2e1a20")), .25, coat=.7, noise=3, bump=.8, bumpscale=4), (1.35, 1, .8), .22)


def walnut(s=.5):
    return sphere_on(s, mat("walnutmeat", ((.36, "7a4e22"), (.5, "a8763c"), (.64, "c99a5c")), .5, noise=3, bump=.8, bumpscale=5), (1.15, 1, .7), .35, 3.2)


def cranberry(s=.17):
    return sphere_on(s, mat("cranberry", ((.4, "6a0a10"), (.6, "a3161c")), .1, .6, coat=.9, sss=.05), (1, 1, .95), .03)


def sphere_on(r, m, scale, rough, rs=2.2):
    o = sphere(r, m, scale=scale, n=22, rough=rough, roughscale=rs, seed=random.randrange(500))
    zmin = min(v.co.z for v in o.data.vertices)
    for v in o.data.vertices:
        v.co.z -= zmin + r * .08
    return o


def almond(s=.5):
    n = 40
    a = np.arange(n) / n * 2 * np.pi
    pts = np.stack([np.cos(a) * s * .75, np.sin(a) * s * .42 * (1 - .45 * np.clip(np.cos(a), 0, 1))], -1)
    return slab(pts, .13, mat("almond", ((.4, "e6cd9a"), (.6, "f3e4c0")), .45, sss=.1, noise=5), 3, .01, 3, 10, .02)


def butter(s=.9):
    return slab(blob(s, s * .85, .05, 40, 6), s * .35, mat("butter", ((.4, "ecc95c"), (.6, "f5de8c")), .25, .5, sss=.25, coat=.4, sssradius=(.4, .3, .1)), 5, .04, 1.5, 12, 0, .01)


def herb_butter(r=.6):
    o = slab(blob(2 * r, 2 * r, .04, 44), .28, mat("herbbutter", ((.45, "edd27a"), (.56, "f2e09a"), (.63, "4a7a24")), .25, .5, sss=.2, coat=.4, noise=9, detail=3), 7, .02, 1.5, 12)
    return o


def butter_curl(r=.4):
    pts = [(r * (1 - .5 * t) * math.cos(t * 8), .25 * t, r + r * (1 - .5 * t) * math.sin(t * 8)) for t in np.linspace(0, 1, 40)]
    mat_ = mat("butter", ((.4, "ecc95c"), (.6, "f5de8c")), .25, .5, sss=.25, coat=.4, sssradius=(.4, .3, .1))
    o = tube(pts, .13, mat_, 10)
    o.scale = (1, 1.6, 1)
    return group([o])


def bacon(length=2.4, w=.5):
    """Rasher lying over something: wavy striped strip."""
    name = "bacon"
    if name not in core._materials:
        u, v = np.meshgrid(np.linspace(0, 1, 384), np.linspace(0, 1, 96))
        n = fbm(np.stack([u * 6, v * 3, np.zeros_like(u)], -1), 4, 2)
        st = np.sin(v * 14 + (n - .5) * 5)
        img = np.array([.62, .20, .12]) + (np.array([.93, .76, .55]) - np.array([.62, .20, .12])) * np.clip((st - .1) / .4, 0, 1)[..., None]
        img = img * (.75 + .4 * n[..., None])
        mat(name, "a84a30", .28, .5, coat=.6, image=core.picture(name, img))
    nx, ny = 40, 8
    u, v = np.meshgrid(np.linspace(0, 1, nx), np.linspace(0, 1, ny), indexing="ij")
    z = .05 + .05 * np.sin(u * 16 + v * 2) * .6 + .02 * random.random()
    o = mesh(np.stack([(u - .5) * length, (v - .5) * w + .04 * np.sin(u * 9), z], -1).reshape(-1, 3), grid_faces(nx, ny), core._materials[name], uv=np.stack([u, v], -1).reshape(-1, 2))
    s = o.modifiers.new("t", "SOLIDIFY")
    s.thickness = .06
    return o
