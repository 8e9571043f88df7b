# SPDX-License-Identifier: GPL-3.0-or-later
"""Composed dishes and vessels that a single recipe needs: jars, moulds, loaves, tarts, parcels, trays."""
import math
import random

import numpy as np

from . import core, fish as fishlib, food, table
from .core import (curve_points, fbm, grid_faces, group, lathe, mat, mesh, outline_solid, put, smooth_profile, sphere, thin_glass, tube)


# ---------------------------------------------------------------- vessels

def jar(r=2.0, h=5.6, brine=.9, walls=2):
    """Tall preserving glass with clear brine to a part of its height. With one wall what stands in it is seen clearly."""
    if walls == 1:
        return _clearjar(r, h, brine)
    g = thin_glass("jarglass", "f8fcfb", 1.2)
    out = smooth_profile([(.01, 0), (r * .92, 0), (r, .2), (r, h * .8), (r * .86, h * .9), (r * .86, h)], 6)
    inn = [(max(.01, a - .09), z + (.12 if z < .3 else 0)) for a, z in reversed(out)]
    parts = [lathe(out + inn, g), put(table.torus(r * .9, .07, g), 0, 0, h)]
    wat = [(max(.01, a - .11), z + (.14 if z < .3 else 0)) for a, z in out if z < h * brine]
    parts.append(lathe(wat + [(.01, wat[-1][1])], thin_glass("brine", "fcf9e8", 1.0, glow=.012)))
    return group(parts)


def _clearjar(r, h, brine):
    """Only the outer face of the glass and the level of the brine: few faces between the eye and the food, so no grain."""
    out = smooth_profile([(.01, .02), (r * .9, .02), (r, .22), (r, h * .78), (r * .93, h * .86), (r * .84, h * .9), (r * .84, h)], 8)
    low, high = [q for q in out if q[1] <= h * brine], [q for q in out if q[1] >= h * brine]
    level = h * brine
    parts = [lathe(low, thin_glass("brineglass", "fbf8ec", .9, .06)), lathe(high, thin_glass("clearglass", "f8fcfb", .9, .06)),
             lathe([(.01, level), (low[-1][0] * .985, level), (low[-1][0], level + .03)], thin_glass("brinelevel", "fdfaf0", .8, .05))]
    rim = mat("jarrim", "dfeeea", .06, .6, coat=1.0, alpha=.55)
    return group(parts + [put(table.torus(r * .86, .075, rim), 0, 0, h), put(table.torus(r * .86, .05, rim), 0, 0, h * .92)])


def glassdish(sx=9, sy=5.5, h=1.5, level=.8):
    """Rectangular glass dish with clear vinegar bath."""
    g = thin_glass("dishglass", "f6fbfa", 1.2)
    wall = []
    o = outline_solid(table.rounded_rect(sx, sy, .8), h, g, .08, 3, holes=[table.rounded_rect(sx - .4, sy - .4, .65)])
    wall.append(o)
    wall.append(outline_solid(table.rounded_rect(sx - .2, sy - .2, .7), .14, g, .05))
    if level:
        n = 60
        u, v = np.meshgrid(np.linspace(-.5, .5, n), np.linspace(-.5, .5, n), indexing="ij")
        z = level * h + .03 * fbm(np.stack([u * 6, v * 6, u * 0], -1), 3, 2)
        wall.append(mesh(np.stack([u * (sx - .45), v * (sy - .45), z], -1).reshape(-1, 3), grid_faces(n, n), thin_glass("bath", "f6f1cf", 1.0)))
    return group(wall)


def tray(sx=11, sy=7, h=.7, kind="iron"):
    """Baking tray with a rolled rim; its floor is at z = 0.08."""
    m = {"iron": table.iron, "steel": table.steel, "silver": lambda: mat("silver", ((.3, "b9bdb9"), (.7, "dfe0da")), .18, metal=1, noise=1), "copper": table.copper}[kind]()
    prof = [(0.0, h), (.08, h + .07), (.16, h), (.28, h * .4), (.5, .08)]
    v = []
    for d, z in prof:
        pts = table.rounded_rect(sx - 2 * d, sy - 2 * d, max(.15, .9 - d))
        v += [(x, y, z) for x, y in pts]
    n = len(table.rounded_rect(sx, sy, .9))
    parts = [mesh(v, [tuple(reversed(f)) for f in grid_faces(len(prof), n, True)], m)]
    parts.append(put(outline_solid(table.rounded_rect(sx - .98, sy - .98, .4), .08, m, .01, 1), 0, 0, 0))
    under = [(x, y, 0.0) for x, y in table.rounded_rect(sx - 1, sy - 1, .4)] + [(x, y, h) for x, y in table.rounded_rect(sx, sy, .9)]
    parts.append(mesh(under, grid_faces(2, n, True), m))
    return group(parts)


def silvertray(sx=12, sy=6, h=.22):
    """Long oval tray with a beaded rim."""
    m = mat("silver", ((.3, "b9bdb9"), (.7, "dfe0da")), .18, metal=1, noise=1)
    o = lathe(smooth_profile([(.01, .1), (.8, .1), (.86, .14), (.97, h + .06), (1.0, h), (.97, h - .08), (.85, 0), (.01, 0)], 5), m, 128)
    o.scale = (sx / 2, sy / 2, 1)
    n = 90
    beads = [put(sphere(.085, m, n=10), sx / 2 * .985 * math.cos(2 * math.pi * i / n), sy / 2 * .985 * math.sin(2 * math.pi * i / n), h + .08) for i in range(n)]
    return group([o] + beads)


def ramekin(r=1.2, h=1.0, sauce="tartar", col="ece6da"):
    """Small pot filled with a sauce."""
    b = lathe(smooth_profile([(.01, 0), (r * .85, 0), (r * .92, .1), (r, h), (r * .96, h + .05), (r * .9, h - .05), (r * .8, .2), (.01, .18)], 5), table.porcelain(col), 64)
    l = put(food.liquid(sauce, r * .9, h * .82, wave=.14))
    return group([b, l])


def jug(r=1.1, h=2.0, sauce="dill"):
    parts = [lathe(smooth_profile([(.01, 0), (r * .8, 0), (r, h * .3), (r * .9, h * .65), (r * .72, h * .85), (r * .86, h), (r * .8, h), (r * .66, h * .85), (r * .82, h * .6), (.01, .2)], 6), table.porcelain("efeae0"), 64)]
    parts.append(tube(curve_points([(-r * .8, 0, h * .85), (-r * 1.5, 0, h * .8), (-r * 1.55, 0, h * .45), (-r * .95, 0, h * .3)], 6), .11, table.porcelain("efeae0"), 10))
    parts.append(put(food.liquid(sauce, r * .68, h * .84)))
    return group(parts)


def kettle(r=3.6, h=2.6):
    """Iron kettle that hangs from a small stand."""
    prof = smooth_profile([(.01, 0), (r * .5, .05), (r * .9, h * .3), (r, h * .65), (r * .94, h), (r * 1.0, h + .1), (r * .93, h + .05), (r * .9, h * .7), (r * .8, h * .35), (.01, .25)], 6)
    parts = [lathe(prof, table.iron())]
    parts.append(tube([(r * math.cos(a), 0, h * .95 + r * .95 * math.sin(a)) for a in np.linspace(0, math.pi, 40)], .1, table.iron(), 10))
    for s in (-1, 1):
        for y in (-1, 1):
            parts.append(tube([(s * r * 1.35, y * r * .7, -.5), (s * r * 1.12, 0, h + r * 1.2)], .13, table.iron(), 10))
    parts.append(tube([(-r * 1.2, 0, h + r * 1.2), (r * 1.2, 0, h + r * 1.2)], .13, table.iron(), 10))
    parts.append(tube([(0, 0, h + r * .9), (0, 0, h + r * 1.2)], .08, table.iron(), 8))
    return group(parts)


def cup(r=2.6, h=2.0, col="f1ece2"):
    """Two-handled cup."""
    parts = [table.bowl(r, h, col, rim="gold")]
    for s in (-1, 1):
        parts.append(tube(curve_points([(s * r * .93, 0, h * .85), (s * r * 1.28, 0, h * .95), (s * r * 1.38, 0, h * .62), (s * r * 1.1, 0, h * .38), (s * r * .8, 0, h * .42)], 6), .13, table.porcelain(col), 12))
    return group(parts)


def cone(h=5.2, r=2.0):
    """Paper cone standing in a wire stand, open at the top at height h."""
    p = mat("conepaper", ((.4, "cdb78c"), (.6, "e0cda4")), .8, noise=2, bump=.15, bumpscale=6)
    v = []
    n, k = 90, 16
    for j in range(k):
        f = j / (k - 1)
        for i in range(n):
            a = 2 * math.pi * 1.06 * i / (n - 1)
            rr = (.25 + (r - .25) * f) * (1 + .03 * (i / n))
            v.append((rr * math.cos(a), rr * math.sin(a), .3 + (h - .3) * f * (1 - .06 * math.cos(a + 1) * f)))
    parts = [mesh(v, grid_faces(k, n), p)]
    parts[0].modifiers.new("t", "SOLIDIFY").thickness = .06
    w = table.iron()
    for z in (h * .35, h * .72):
        parts.append(put(table.torus(.25 + (r - .25) * (z / h) + .1, .06, w, 60), 0, 0, z))
    for i in range(3):
        a = 2.1 * i + .4
        parts.append(tube([(1.7 * math.cos(a), 1.7 * math.sin(a), 0), (.95 * math.cos(a), .95 * math.sin(a), h * .35), ((r * .76 + .1) * math.cos(a), (r * .76 + .1) * math.sin(a), h * .74)], .06, w, 8))
    return group(parts)


def paper(sx=11, sy=8, crumple=.25, col="e4d6b4"):
    """Sheet of baking paper or plain paper."""
    m = mat("sheet" + col, ((.4, col), (.6, "efe6cc")), .75, noise=1, translucent=.15)
    nx, ny = 90, 70
    u, v = np.meshgrid(np.linspace(-.5, .5, nx), np.linspace(-.5, .5, ny), indexing="ij")
    p = np.stack([u * 7, v * 5, u * 0 + random.random() * 9], -1)
    z = .04 + crumple * np.abs(fbm(p, 4, random.randrange(99)) - .5) * 1.4
    z = z + crumple * 2.2 * np.clip(np.maximum(np.abs(u), np.abs(v)) * 2 - .82, 0, 1) ** 1.2 * 4
    return mesh(np.stack([u * sx, v * sy, z], -1).reshape(-1, 3), grid_faces(nx, ny), m)


def parcel(sx=10, sy=5.4, crisp=0.0):
    """Opened parcel of baking paper: boat with twisted ends. crisp: how sharply it is creased and how brown its edges are."""
    m = mat("parcel", ((.4, "cbb488"), (.6, "e3d2a8")), .7, noise=1.5, translucent=.2) if not crisp else _bakedpaper(crisp)
    nx, ny = 110, 60
    u, v = np.meshgrid(np.linspace(-1, 1, nx), np.linspace(-1, 1, ny), indexing="ij")
    w = np.clip(1 - np.abs(u) ** 3.2, .07, 1)
    fold = fbm(np.stack([u * 9, v * 4, u * 0], -1), 4, 5) - .5
    y = v * sy / 2 * w + .12 * fold
    z = .06 + 1.5 * np.abs(v) ** 3.2 * (.65 + .35 * w) + .45 * np.abs(fold) * (.35 + np.abs(v)) + .5 * np.clip(np.abs(u) - .82, 0, 1) * 3
    if crisp:
        crease = np.abs(fbm(np.stack([u * 5 + v, v * 3 - u, u * 0 + 4], -1), 3, 8) - .5) + .6 * np.abs(fbm(np.stack([u * 11 - v * 2, v * 6 + u, u * 0], -1), 2, 3) - .5)
        z = z + crisp * .9 * crease * (.25 + np.abs(v) ** 2)
    uv = np.stack([u / 2 + .5, v / 2 + .5], -1).reshape(-1, 2)
    o = mesh(np.stack([u * sx / 2, y, z], -1).reshape(-1, 3), grid_faces(nx, ny), m, uv=uv)
    o.modifiers.new("t", "SOLIDIFY").thickness = .04
    return o


def _bakedpaper(crisp):
    """Paper from the oven: pale, stained by fat in the middle, brown where its edges stood up."""
    v, u = np.mgrid[-1:1:400j, -1:1:700j]
    wide, fine = (fbm(np.stack([u * a, v * a * .6, u * 0], -1), 4, a) for a in (3, 14))
    edge = np.clip((np.maximum(np.abs(v), np.abs(u)) + .3 * (wide - .5) - .8) / .2, 0, 1)[..., None] * min(1, crisp)
    fat = np.clip((.62 + .5 * (wide - .5) - np.hypot(u, v * .9)) / .12, 0, 1)[..., None]
    pale, stain, brown, dark = (np.array(core.rgb(c)) ** (1 / 2.2) for c in ("eadfc4", "cfae74", "b0763a", "6a3a16"))
    img = pale * (.92 + .14 * fine[..., None])
    img = img + (stain - img) * fat * .55
    img = img + (brown + (dark - brown) * np.clip(edge * 2 - 1.3, 0, 1) - img) * edge * .85
    return mat("bakedpaper", "eadfc4", .55, .4, coat=.15, translucent=.2, image=core.picture("bakedpaper", img.clip(0, 1)))


def eggplate(r=4.2, n=8):
    """Round porcelain plate with hollows for eggs."""
    return table.plate(r, "f1ece2", "gold")


# ---------------------------------------------------------------- composed food

def jarroll():
    """A rolled herring standing upright, as they are packed into a jar."""
    g = food.rolled(.82, 1.5)
    g.rotation_euler = (0, math.radians(90), 0)
    g.location = (-.82, 0, .75)
    return group([g])


def smallherring(length=4.2, state="fried"):
    """Headless fried herring."""
    n = 80
    t = np.linspace(0, 2 * np.pi, n, endpoint=False)
    c, s = np.cos(t), np.sin(t)
    w = 1 - .75 * np.clip(c, 0, 1) ** 1.3
    pts = np.stack([np.sign(c) * np.abs(c) ** .7 * length / 2, s * .56 * w], -1)
    body = food.slab(pts, .62, food.fishskin("herring", "fried"), 2.2, .07, 1.3, 18, .12, .03, 6, None, taper=.1)
    tailm = mat("friedfin", ((.4, "4a240e"), (.6, "8a4f22")), .5)
    tl = food.slab([(length * .3, -.2), (length * .47, -.15), (length * .6, -.5), (length * .65, -.44), (length * .57, 0), (length * .65, .44), (length * .6, .5), (length * .47, .15), (length * .3, .2)], .2, tailm, 5, .02, 2, 6)
    tl.location = (0, 0, .12)
    return group([body, tl])


def splitfish(kind="tench", length=6.0):
    """Half of a small fish, skin up."""
    return food.fillet("white", "poached", length, 2.2, .75, kind)


def strip_pile(n=26, r=1.6, h=1.2):
    """Fried strips standing in a cone like flowers in a vase: upright in the middle, leaning outwards at the rim."""
    parts = []
    for i in range(n):
        a, q = i * 2.399, math.sqrt((i + .5) / n)
        lean = .1 + .75 * q + random.uniform(-.15, .15)
        d = core.Vector((math.sin(lean) * math.cos(a), math.sin(lean) * math.sin(a), math.cos(lean)))
        o = food.stick(random.uniform(1.9, 2.5), "gold", i)
        foot = core.Vector((r * .75 * q * math.cos(a), r * .75 * q * math.sin(a), h * (1 - q) - .6 + random.uniform(-.2, .2)))
        o.matrix_world = core.Matrix.Translation(foot + d) @ core.Vector((1, 0, 0)).rotation_difference(d).to_matrix().to_4x4()
        parts.append(o)
    return group(parts)


def skewer(n=3, r=.72, length=1.5):
    """Eel chunks with sage leaves between them on a wooden skewer, along x."""
    parts = [tube([(-n * 1.35, 0, r), (n * 1.35, 0, r)], .07, table.wood("pale"), 8)]
    for i in range(n):
        x = (i - (n - 1) / 2) * (length + .35)
        c = food.smokedpiece("eel", length)
        put(c, x, 0, r - .5, turn=random.uniform(-6, 6), scale=(1, 1.3, 1.3))
        parts.append(c)
        for k in (-.35, .3):
            l = food.leaf("sage", 1.5)
            v = [w.co for o in core.tree(l) if o.type == "MESH" for w in o.data.vertices]
            for w in v:
                b = w.x / .72
                w.y, w.x, w.z = .72 * math.sin(b) * 1.02, w.y + 0, .72 * math.cos(b) * 1.02 + w.z * .15
            put(l, x + k, 0, r + .04)
            parts.append(l)
    return group(parts)


def loaf(length=6.5, w=2.5, h=2.1, seed=4):
    """Baked fish loaf, standing whole."""
    m = mat("loafcrust", ((.36, "5d3212"), (.5, "97602a"), (.64, "c08c4c")), .5, .4, noise=2.2, detail=9, bump=.4, bumpscale=7, coat=.25)
    return food.slab(food.blob(length, w, .06, 80, 4, seed), h, m, 3.2, .12, 1.0, 26, .1, .05, 4, seed, taper=.02)


def _cut(draw, name, w=512, h=384):
    if name in core._materials:
        return core._materials[name]
    y, x = np.mgrid[-1:1:complex(h), -1:1:complex(w)]
    img = draw(x, y)
    return mat(name, "e0d0b0", .42, .45, sss=.06, coat=.25, image=core.picture(name, img))


def loafslice(w=2.4, h=2.1, th=.4):
    """Slice of the fish loaf: white, green flecks, a round of egg in the middle; lies flat."""
    def draw(x, y):
        n = fbm(np.stack([x * 7, y * 6, x * 0], -1), 4, 2)
        img = np.array([.88, .80, .66]) * (.86 + .26 * n[..., None])
        g = fbm(np.stack([x * 19, y * 16, x * 0 + 3], -1), 2, 7)
        img = np.where((g > .68)[..., None], np.array([.28, .42, .14]), img)
        r = np.hypot(x * 1.15, y)
        img = np.where((r < .46)[..., None], np.array([.97, .96, .92]), img)
        img = np.where((r < .27)[..., None], np.array([.93, .70, .20]) * (.9 + .2 * n[..., None]), img)
        return img
    m = _cut(draw, "loafcut")
    side = mat("loafcrust", ((.36, "5d3212"), (.5, "97602a"), (.64, "c08c4c")), .5, .4, noise=2.2, detail=9, bump=.4, bumpscale=7, coat=.25)
    return food.slab(food.blob(w, h, .04, 60, 3.4), th, m, 12, .02, 2, 18, 0, .015, 7, side=side, taper=0)


def terrineslice(w=2.6, h=2.0, th=.36):
    """Slice of layered terrine: white, green, pink."""
    def draw(x, y):
        n = fbm(np.stack([x * 5, y * 5, x * 0], -1), 4, 2)
        q = y + .06 * np.sin(x * 3) + (n - .5) * .08
        cols = [(-.42, (.90, .55, .42)), (.16, (.93, .90, .82)), (.42, (.42, .55, .22)), (2, (.92, .88, .80))]
        img = np.zeros(x.shape + (3,))
        done = np.zeros(x.shape, bool)
        for lim, c in cols:
            sel = (q < lim) & ~done
            img[sel] = c
            done |= sel
        d = fbm(np.stack([x * 16, y * 14, x * 0 + 1], -1), 2, 6)
        img = np.where(((d > .7) & (q > .42))[..., None], np.array([.86, .45, .30]), img)
        return img * (.9 + .2 * n[..., None])
    return food.slab(food.blob(w, h, .01, 60, 8), th, _cut(draw, "terrinecut"), 14, .006, 2, 18, 0, .006, 7, side=mat("terrineside", ((.4, "d9cdb4"), (.6, "efe6d2")), .3, coat=.5), taper=0)


def tart(r=4.0, h=1.0, missing=1.0, filling="quiche"):
    """Open tart in its crust with a fluted edge; missing: share left (0.85 = a wedge taken)."""
    crust = mat("tartcrust", ((.36, "8f5a22"), (.5, "c08a44"), (.64, "dcb06c")), .6, .3, noise=3, detail=8, bump=.3, bumpscale=9)
    fill = mat("quiche", ((.36, "b5772a"), (.48, "e0b350"), (.62, "f0d68a")), .4, .45, noise=1.1, detail=9, bump=.25, bumpscale=5, coat=.25, sss=.06)
    n, prof = 240, [(.0, h * .72), (.5, h * .74), (.86, h * .7), (.89, h * 1.0), (.94, h * 1.06), (.985, h * .98), (.93, .1), (.92, 0)]
    v = []
    for q, z in prof:
        for i in range(n):
            a = 2 * math.pi * missing * i / (n - 1)
            fl = 1 + (.02 * math.cos(a * 40) if q > .9 else 0)
            v.append((r * q * fl * math.cos(a), r * q * fl * math.sin(a), z + (.06 * (fbm([[q * 4 * math.cos(a), q * 4 * math.sin(a), 0]], 3, 3)[0] - .5) if q < .87 else 0)))
    f = grid_faces(len(prof), n)
    o = mesh(v, f, crust)
    o.data.materials.append(fill)
    o.data.polygons.foreach_set("material_index", [1 if i < 2 * (n - 1) else 0 for i in range(len(f))])
    parts = [o]
    if missing < 1:
        for a in (0, 2 * math.pi * missing):
            w = [(r * q * math.cos(a), r * q * math.sin(a), z) for q, z in prof] + [(0, 0, 0)]
            parts.append(mesh(w, [tuple(range(len(w)))], fill, False))
    return group(parts)


def wedge(r=4.0, h=1.0, share=.14):
    return tart(r, h, share)


def chlebicek(sx=3.2, sy=2.3):
    """Open sandwich: white loaf slice, potato salad, smoked trout, egg, gherkin, pepper."""
    parts = [food.bread("loaf", sx, sy, .42)]
    s = food.salad_heap(.95, .4, n=60)
    put(s, 0, 0, .4, scale=(1.35, .9, .8))
    parts.append(s)
    parts.append(put(food.slice_cured(2.1, 1.1, kind="smoked"), -.35, .1, .72, turn=25))
    parts.append(put(food.egg_slice(.52), .75, .3, .78, tilt=-12, turn=20))
    g = food.gherkin_fan(1.1, 4)
    parts.append(put(g, .15, -.72, .66, turn=-10))
    parts.append(put(food.strip("pepper", 1.0, .13), .7, -.35, .85, turn=60))
    parts.append(put(food.sprig("parsley", .42), -.95, .5, .8))
    return group(parts)


def baconwrap(length=3.4):
    """Perch fillet wrapped in bacon."""
    f = food.fillet("white", "roasted", length, 1.2, .6, "perch")
    parts = [f]
    for x in (-.9, 0, .8):
        b = food.bacon(2.2, .62)
        for v in b.data.vertices:
            q = v.co.x / .95
            r = .62 if x < .5 else .5
            v.co.x, v.co.y, v.co.z = v.co.y + 0, r * 1.02 * math.sin(q), max(.02, .1 + r * .98 * math.cos(q)) + (v.co.z - .05) * .5
        put(b, x, 0, 0.02, turn=random.uniform(-10, 10))
        parts.append(b)
    return group(parts)


def lentils(rx=2.2, ry=1.6, h=.5, n=1300):
    """Mound of brown lentils."""
    from mathutils import Matrix
    v, f = food._lump(8)
    ts = []
    for _ in range(n):
        a, q = random.random() * 6.283, math.sqrt(random.random())
        z = h * (1 - q ** 2.2) + random.uniform(0, .08)
        s = random.uniform(.085, .115)
        ts.append(Matrix.Translation((rx * q * math.cos(a), ry * q * math.sin(a), z)) @ Matrix.Rotation(random.random() * 6, 4, "Z") @ Matrix.Rotation(random.uniform(-.9, .9), 4, "X") @ Matrix.Diagonal((s, s, s * .5, 1)))
    m = mat("lentil", ((.36, "4a2f16"), (.5, "6f4a22"), (.64, "94693a")), .4, coat=.3, noise=1.5, detail=3)
    base = food.slab(food.blob(2 * rx, 2 * ry, .05, 50), h * .9, m, 2.2, .03)
    return group([core.scatter(v, f, ts, m), base])


def coldfish(kind="salmon", coat="cucumber", length=9.0):
    """Whole poached fish on its side covered by cucumber scales, or by mayonnaise with radish scales."""
    f = fishlib.fish(kind, "skinned" if kind == "salmon" else "poached", length, seed=9)
    parts = [f]
    if coat == "mayonnaise":
        m = food.sauce_mat("mayonnaise")
        b = [o for o in core.tree(f) if o.type == "MESH"][0]
        b.data.materials.clear()
        b.data.materials.append(m)
    core.bpy.context.view_layer.update()
    rows = 6
    for c in range(int(length * 2.7)):
        x = -.27 * length + c * length * .022 * 1.25
        if x > .33 * length:
            break
        for r in range(rows):
            y = (r - (rows - 1) / 2 + (.5 if c % 2 else 0)) * length * .034
            z, nor = core._cast(x, y, 20)
            if z < length * .035:
                continue
            s = (food.cucumber_slice(.026 * length, .05) if coat == "cucumber" else food.radish_slice(.022 * length, .05))
            o = group([s])
            q = core.Vector((0, 0, 1)).rotation_difference((nor + core.Vector((-.35, 0, 0))).normalized())
            o.matrix_world = core.Matrix.Translation((x, y, z + .015)) @ q.to_matrix().to_4x4()
            parts.append(o)
    return group(parts)


def basketlemon(r=.95):
    """Lemon cut into a little basket with a handle."""
    h = food.lemon_half(r)
    a = tube([(r * .93 * math.cos(t), 0, r * .95 + r * .8 * math.sin(t)) for t in np.linspace(0, math.pi, 24)], .1, food.peel(), 8)
    return group([h, put(a, scale=(1, 1.8, 1))])


def garlic():
    return sphere(.3, mat("garlic", ((.4, "cfc4ae"), (.6, "efe8d8")), .5, noise=2, stretch=(3, 3, .4)), (0, 0, .2), (1.3, .8, .8), n=20)


def milt(s=.8):
    """Soft white piece of milt."""
    return food.slab(food.blob(s * 1.5, s * .8, .35, 44), s * .5, mat("milt", ((.4, "e9dfc8"), (.6, "f6f0e2")), .35, sss=.2, coat=.5), 2.2, .12, 2, 14)


def pinksalad(r=2.4, h=1.3):
    return food.salad_heap(r, h, ("beet", "beet", "pinksalad", "potato", "apple", "herring"), 240, "pinkdress")


food.SAUCES["pinkdress"] = ("b04a6e", "d07a98", .3)


def asparagus_bundle(n=7, length=5.0, r=.2):
    """Spears laid in three layers, heads to the right."""
    parts = []
    for i in range(n):
        layer = 0 if i < 4 else 1 if i < 6 else 2
        k = i if i < 4 else i - 4 if i < 6 else 0
        parts.append(put(food.asparagus(length * random.uniform(.93, 1.04), r), random.uniform(-.15, .15), (k - (3 - layer) / 2) * 2.1 * r, layer * 1.7 * r, turn=random.uniform(-4, 4)))
    return group(parts)


def stuffing(length=4.5):
    """Bread and herb filling that shows along an opened belly."""
    m = mat("stuffing", ((.34, "5d7a2c"), (.46, "c99a54"), (.56, "e0bd80"), (.68, "a86a2c")), .7, .3, noise=4, detail=8, bump=.6, bumpscale=9)
    return food.slab(food.blob(length, .9, .3, 80), .55, m, 2.3, .15, 2, 18, 0, .08, 6)


def string(length=7.0, r=1.4, n=6):
    """Loops of kitchen string round a fish lying along x."""
    parts = []
    m = mat("string", "dccfae", .8)
    for i in range(n):
        x = (i / (n - 1) - .5) * length
        rr = r * (1 - (2 * i / (n - 1) - 1) ** 2 * .35)
        parts.append(tube([(x + .05 * math.sin(5 * t), rr * math.cos(t), .1 + rr * .78 * math.sin(t)) for t in np.linspace(0, math.pi, 22)], .045, m, 6))
    return group(parts)


def squareplate(s=8.4, col="f3f0ea"):
    """Square white plate with a raised rim."""
    m = table.porcelain(col)
    prof = [(0, .5), (.1, .56), (.25, .52), (1.0, .26), (1.3, .2), (1.5, .18)]
    v = []
    for d, z in prof:
        v += [(x, y, z) for x, y in table.rounded_rect(s - 2 * d, s - 2 * d, max(.3, .9 - d * .4))]
    n = len(table.rounded_rect(s, s, .9))
    low = [(x, y, 0.0) for x, y in table.rounded_rect(s - 2.4, s - 2.4, .5)] + [(x, y, .5) for x, y in table.rounded_rect(s, s, .9)]
    return group([mesh(v, [tuple(reversed(f)) for f in grid_faces(len(prof), n, True)], m), mesh(low, grid_faces(2, n, True), m), outline_solid(table.rounded_rect(s - 2.9, s - 2.9, .3), .18, m, .01, 1)])
