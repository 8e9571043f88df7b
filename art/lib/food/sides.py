# SPDX-License-Identifier: GPL-3.0-or-later
"""Potatoes, dumplings, bread, rice, pasta."""
import math
import random

import numpy as np
from mathutils import Matrix, Vector

from .. import core
from ..core import fbm, grid_faces, group, lathe, mat, mesh, put, scatter, smooth_profile, sphere, tube
from .shapes import blob, slab


def potato_mat(kind="boiled"):
    return {"boiled": mat("potato", ((.36, "d8b45c"), (.5, "e6c873"), (.64, "efd994")), .36, .5, sss=.14, coat=.35, noise=1.5, bump=.16, bumpscale=3.5, sssradius=(.3, .2, .08)),
            "roast": mat("potatoroast", ((.36, "8a5216"), (.48, "c98f38"), (.62, "e6bf6a")), .4, .5, sss=.06, coat=.4, noise=2.6, detail=9, bump=.3, bumpscale=8),
            "cut": mat("potatocut", ((.4, "e2c675"), (.6, "edd896")), .42, .4, sss=.12, coat=.25, noise=3, bump=.12, bumpscale=10),
            "mash": mat("mash", ((.4, "e3cd8d"), (.6, "efe0ae")), .5, .35, sss=.16, coat=.12, noise=3, bump=.15, bumpscale=9)}[kind]


def potato(state="boiled", r=.78, seed=None):
    """Peeled potato, whole."""
    seed = random.randrange(999) if seed is None else seed
    rnd = random.Random(seed)
    o = sphere(r, potato_mat("roast" if state == "roast" else "boiled"), scale=(rnd.uniform(1.05, 1.32), rnd.uniform(.85, 1.0), rnd.uniform(.76, .9)), n=44, rough=.16, roughscale=1.4, seed=seed)
    zmin = min(v.co.z for v in o.data.vertices)
    for v in o.data.vertices:
        v.co.z = max(v.co.z - zmin - r * .06, 0)
    return o


def potato_half(r=.8, state="boiled", seed=None):
    """Half a potato, cut side up and tilted a little."""
    o = slab(blob(2.2 * r, 1.65 * r, .08, 48, 2.1, seed), r * .72, potato_mat("cut"), 9, .04, 1.5, 14, .03, .012, 9, seed, side=potato_mat("roast" if state == "roast" else "boiled"), taper=.5)
    return put(group([o]), tilt=0)


def potatoes_mash(r=2.0, h=1.1, swirl=True, seed=3):
    """Mound of mashed potato; swirl draws the spoon's spiral into it."""
    nu, nv = 44, 120
    v = []
    q = np.linspace(0, 1, nu)
    for i in range(nu):
        for j in range(nv):
            a = 2 * np.pi * j / nv
            z = h * (1 - q[i] ** 2.4) * (.82 + .18 * np.cos(q[i] * 3))
            rr = r * q[i] * (1 + .06 * math.sin(3 * a + seed))
            if swirl:
                z += .13 * h * math.sin(q[i] * 16 - a * 1.0) * (1 - q[i] ** 6) * min(1, q[i] * 4)
            v.append((rr * math.cos(a), rr * math.sin(a), max(0, z)))
    v = np.array(v)
    v[:, 2] += .05 * (fbm(v * 2.2, 3, seed) - .5) * (v[:, 2] > .05)
    return mesh(v, grid_faces(nu, nv, True), potato_mat("mash"))


def chip(length=2.2, w=.34):
    """Potato chip (cut, fried)."""
    o = slab(blob(length * random.uniform(.8, 1.1), w, .1, 40, 6), w * .95, mat("chip", ((.36, "c98a2e"), (.5, "e2b04e"), (.64, "efcc7c")), .42, .45, noise=2.5, bump=.15, bumpscale=10, coat=.2), 6, .03, 2, 10, 0, .01, 9)
    return o


def dumpling_slice(r=1.25, h=.42):
    """Slice of bread dumpling: white, porous, browner rim."""
    m = mat("dumpling", ((.38, "d6c49c"), (.5, "ece0c2"), (.62, "f5eedb")), .75, .25, sss=.1, noise=5, detail=9, bump=.55, bumpscale=14)
    s = mat("dumplingrim", ((.4, "cbb483"), (.6, "dfceA6".lower())), .6, noise=4, bump=.25, bumpscale=8)
    return slab(blob(2 * r, 1.6 * r, .06, 64, 2.2), h, m, 7, .03, 1.6, 18, .02, .025, 7, side=s, taper=.0)


def dumpling_ball(r=.42, kind="fish"):
    m = mat("fishball", ((.4, "ddd2b8"), (.6, "f0e9d6")), .5, .4, sss=.12, coat=.3, noise=4, bump=.35, bumpscale=9)
    o = sphere(r * random.uniform(.85, 1.12), m, scale=(1.1, 1, .92), n=30, rough=.1, roughscale=2.2, seed=random.randrange(99))
    for v in o.data.vertices:
        v.co.z += r * .85
    return o


def bread(kind="rye", sx=3.6, sy=2.6, h=.5, seed=None):
    """Slice of bread, lying: rye, white, toast, loaf (small round-ended white slice)."""
    cr = {"rye": ("8a6842", "a98558", "bf9c6c"), "dark": ("3f2a18", "57391f", "6d4a2a"), "white": ("d9c49a", "eadcba", "f3ead0"), "toast": ("a56a2a", "cf9a50", "e3bb78"), "loaf": ("dbc79c", "ecdfbf", "f5edd6")}[kind]
    cu = {"rye": "4a2812", "dark": "24150a", "white": "a8692a", "toast": "8a5220", "loaf": "b5742c"}[kind]
    m = mat("bread-" + kind, tuple(zip((.38, .5, .62), cr)), .85, .2, noise=4.5, detail=10, bump=.8, bumpscale=11)
    s = mat("crust-" + kind, ((.4, cu), (.6, "".join(f"{min(255, int(int(cu[i:i+2], 16) * 1.4)):02x}" for i in (0, 2, 4)))), .55, .3, noise=3, bump=.35, bumpscale=9)
    n = 90
    a = np.arange(n) / n * 2 * np.pi
    c, s_ = np.cos(a), np.sin(a)
    p = 2.6
    pts = np.stack([np.sign(c) * np.abs(c) ** (2 / p) * sx / 2, np.sign(s_) * np.abs(s_) ** (2 / p) * sy / 2 * np.where(s_ > 0, 1.0, .9)], -1)
    pts *= (1 + .05 * (fbm(np.stack([c * 2, s_ * 2, np.full(n, random.random() * 50)], -1), 3, 1) * 2 - 1))[:, None]
    return slab(pts, h, m, 12, .03, 1.5, 20, .0, .04, 6, seed, side=s, taper=.01)


def toast_triangle(s=1.6):
    pts = []
    base = [(-s, -s * .6), (s, -s * .6), (0, s * .7)]
    for i in range(3):
        a, b = base[i], base[(i + 1) % 3]
        for k in range(14):
            f = (k + .5) / 14
            pts.append((a[0] * (1 - f) + b[0] * f, a[1] * (1 - f) + b[1] * f))
    bread("toast")  # makes the material
    m = core._materials["bread-toast"]
    core.bpy.data.objects.remove(core.scene.collection.objects[-1])
    return slab(pts, .3, m, 10, .02, 2, 14, 0, .02, 8, side=core._materials["crust-toast"], taper=.0)


def roll(length=3.0, r=.8):
    """Bread roll (rohlík): a bent bar rolled up from dough, thick in the middle, with salt and poppy seed."""
    m = mat("rollcrust", ((.34, "7a3d10"), (.48, "b06a26"), (.6, "d29a4c"), (.72, "e8c486")), .38, .4, noise=1.4, detail=8, bump=.12, bumpscale=14, coat=.35)
    x = np.linspace(-1, 1, 120)
    turns = np.mod(x * 3.6 + .3, 1)   # where one turn of the dough ends on the next
    rad = r * (1 - .52 * np.abs(x) ** 1.7) * np.sqrt(np.clip((1 - np.abs(x)) / .05, .04, 1)) * (.965 + .05 * turns ** 1.5)
    o = tube([(q * length / 2, -.13 * q * q * length, r * .8) for q in x], list(rad), m, 36)
    grains = []
    tops = [p for p in o.data.polygons if p.normal.z > .35]
    for kind, n in (("f4efe4", 26), ("2a2620", 60)):
        v, f = _grain()
        ts = [Matrix.Translation(random.choice(tops).center) @ Matrix.Rotation(random.random() * 6, 4, "Z") @ Matrix.Diagonal((.04, .03, .025, 1) if kind[0] == "f" else (.018, .014, .014, 1)) for _ in range(n)]
        grains.append(scatter(v, f, ts, mat("grain" + kind, kind, .5)))
    return group([o, *grains])


def crouton(s=.34):
    m = mat("crouton", ((.36, "8f541b"), (.5, "c98d41"), (.64, "e6bb70")), .6, .3, noise=4, bump=.5, bumpscale=14)
    return slab(blob(s * 2, s * 2, .08, 24, 6), s * 1.5, m, 6, .04, 3, 8, 0, .03, 7)


def rice(rx=1.8, ry=1.8, h=1.2, n=1900, col="white"):
    """Mound of rice grains."""
    gv, gf = _grain()
    ts = []
    for _ in range(n):
        a, q = random.random() * 6.283, math.sqrt(random.random())
        x, y = rx * q * math.cos(a), ry * q * math.sin(a)
        z = h * math.sqrt(max(0, 1 - q ** 2.6)) + random.uniform(-.05, .02)
        nrm = Vector((x / rx ** 2, y / ry ** 2, .25 + z / h ** 2)).normalized()
        ts.append(Matrix.Translation((x, y, max(.03, z))) @ Vector((0, 0, 1)).rotation_difference(nrm).to_matrix().to_4x4() @ Matrix.Rotation(random.random() * 6.28, 4, "Z") @ Matrix.Rotation(random.uniform(-.4, .4), 4, "Y") @ Matrix.Diagonal((random.uniform(.13, .17),) + (.055, .05, 1)))
    c = {"white": (("0.4", "e9e2d0"), ("0.6", "f7f3e8")), "yellow": (("0.4", "d9b24a"), ("0.6", "edd07a"))}[col]
    m = mat("rice" + col, tuple((float(a_), b_) for a_, b_ in c), .35, .5, sss=.12, coat=.3)
    core_ = lathe(smooth_profile([(.01, h * .96), (rx * .6, h * .82), (rx * .95, h * .3), (rx * .98, 0)], 5), m)
    core_.scale = (1, ry / rx, 1)
    return group([scatter(gv, gf, ts, m), core_])


def _grain():
    v, n, k = [], 7, 6
    for i in range(n):
        p = math.pi * i / (n - 1)
        for j in range(k):
            a = 2 * math.pi * j / k
            v.append((-math.cos(p), math.sin(p) * math.cos(a), math.sin(p) * math.sin(a)))
    return v, grid_faces(n, k, True)


def spaghetti(r=2.3, h=1.0, n=90, col="e8c878"):
    """Nest of long pasta."""
    m = mat("pasta", ((.4, "e0b95e"), (.6, "efd48a")), .3, .5, sss=.1, coat=.45, noise=3)
    parts = []
    for i in range(n):
        q = random.random() ** .6
        rr = r * (.2 + .78 * q)
        a0 = random.random() * 6.28
        ex, ph = random.uniform(.75, 1.15), random.random() * 3
        zz = h * (1 - (rr / r) ** 2) * random.uniform(.5, 1.05) + .07
        cx, cy = random.uniform(-.25, .25) * r, random.uniform(-.25, .25) * r
        L = random.uniform(2.0, 5.2)
        pts = []
        for k in range(34):
            a = a0 + L * k / 33
            x, y = cx + rr * ex * math.cos(a), cy + rr * math.sin(a) / ex
            d = math.hypot(x, y) / r
            pts.append((x, y, max(.06, zz * max(.15, 1.15 - d * d) + .09 * math.sin(a * 2.5 + ph))))
        parts.append(tube(pts, .052, m, 7))
    return group(parts)


def elbow(s=.42):
    """Elbow macaroni (kolínko)."""
    m = mat("pasta", ((.4, "e0b95e"), (.6, "efd48a")), .3, .5, sss=.1, coat=.45, noise=3)
    a0 = random.uniform(1.2, 1.7)
    pts = [(s * math.cos(a) - s * .6, s * math.sin(a) - s * .3, .14) for a in np.linspace(0, a0, 10)]
    o = tube(pts, .14, m, 12, caps=False)
    t = o.modifiers.new("t", "SOLIDIFY")
    t.thickness = .04
    return o
