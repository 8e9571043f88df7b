# SPDX-License-Identifier: GPL-3.0-or-later
"""Table tops, cloths, plates, bowls, pans, glasses."""
import math
import random

import numpy as np

from .core import (curve_points, fbm, grid_faces, group, lathe, mat, mesh, outline_solid, put, smooth_profile, sphere,
                   thin_glass, tube, box)

WOODS = {
    "oak": (("2c170b", "4a2a14", "6b4122"), 0.42),
    "dark": (("140a06", "24130a", "3b2212"), 0.38),
    "walnut": (("1d0f08", "38200f", "54341b"), 0.36),
    "pale": (("7d5a36", "a17a4c", "bd9764"), 0.5),
    "teal": (("0a2326", "103438", "1a4a4c"), 0.35),
    "grey": (("2c2b29", "46443f", "625d54"), 0.6),
}


def wood(kind="oak", along="x"):
    cols, rough = WOODS[kind]
    st = (0.25, 3.2, 3.2) if along == "x" else (3.2, 0.25, 3.2) if along == "y" else (3.2, 3.2, 0.25)
    return mat(f"wood-{kind}-{along}", tuple(zip((0.32, 0.5, 0.68), cols)), rough, 0.45, noise=2.2, detail=10, stretch=st,
               distort=0.7, bump=0.22, bumpscale=5, coat=0.12, roughvar=0.1)


COPPER = dict(col=(("0.3", "8c4a24"), ("0.7", "c27a46")))


def copper(worn=True):
    return mat("copper", ((0.3, "a4602f"), (0.5, "c07a45"), (0.72, "d89a68")), 0.24, metal=1.0, noise=1.6, detail=4,
               bump=0.05, bumpscale=6, roughvar=0.08)


def brass():
    return mat("brass", ((0.3, "a47a2e"), (0.7, "d9b35e")), 0.22, metal=1.0, noise=2, roughvar=0.08)


def steel():
    return mat("steel", ((0.3, "9aa3a4"), (0.7, "c3c8c6")), 0.25, metal=1.0, noise=1.5, roughvar=0.08)


def iron():
    return mat("iron", ((0.3, "151413"), (0.7, "2b2725")), 0.42, 0.5, noise=4, bump=0.12, bumpscale=30, coat=0.25)


def porcelain(col="ece6da"):
    return mat("porcelain" + col, col, 0.14, 0.5, coat=0.7, bump=0.01, bumpscale=1.5)


def glass(col="f4faf8", rough=0.0):
    return mat("glass" + col, col, rough, 0.5, trans=1.0, ior=1.45)


def boards(kind="oak", size=60, plank=5.2, along="x", length=None):
    """A table top of planks; top at z = 0. length: of a plank, when not that of a square top."""
    objs = []
    n = int(size / plank)
    m = wood(kind)
    for i in range(n):
        o = box(length or size, plank - 0.05, 0.8, m, 0.06)
        o.location = (random.uniform(-9, 9), (i - n / 2 + 0.5) * plank, -0.8 + random.uniform(-0.02, 0.01))
        objs.append(o)
    g = group(objs)
    if along == "y":
        put(g, turn=90)
    return g


def cloth(kind="linen", sx=14, sy=10, at=(0, 0), turn=0, folds=0.12, cover=None):
    """A cloth lying on the table with soft waves and a hem. kinds: linen, teal, check, stripe, red, white, damask."""
    nx, ny = 150, 110
    u, v = np.meshgrid(np.linspace(-0.5, 0.5, nx), np.linspace(-0.5, 0.5, ny), indexing="ij")
    p = np.stack([u * sx * 0.22, v * sy * 0.22, np.full_like(u, random.random() * 9)], -1)
    ridge = np.abs(fbm(p * 1.3, 3, random.randrange(99)) - 0.5) * 2
    z = 0.03 + folds * (fbm(p, 3, random.randrange(99)) * 1.2 + (1 - ridge) ** 6 * 0.5) - folds * 0.5
    z = np.maximum(z, 0.015)
    pts = np.stack([u * sx + 0.12 * np.sin(v * 9), v * sy + 0.1 * np.sin(u * 8), z], -1).reshape(-1, 3)
    uv = np.stack([(u + 0.5) * sx, (v + 0.5) * sy], -1).reshape(-1, 2)
    o = mesh(pts, grid_faces(nx, ny), fabric(kind), uv=uv)
    sol = o.modifiers.new("t", "SOLIDIFY")
    sol.thickness = 0.03
    put(o, at[0], at[1], 0.0, turn)
    return o


def fabric(kind):
    """Woven cloth, its pattern drawn on the UV map (1 = 1 unit)."""
    from . import core
    name = "cloth-" + kind
    if name in core._materials:
        return core._materials[name]
    base = {"linen": "c9bda2", "teal": "173f44", "check": "d8ccb4", "stripe": "d6cbb6", "red": "7a2a20", "white": "ddd6c8",
            "damask": "cfc6b4", "green": "33502f", "blue": "23425c", "ochre": "a9742f", "grey": "77746c"}[kind]
    m = mat(name, base, 0.85, 0.2, sheen=0.4)
    nt = m.node_tree
    b = nt.nodes["Principled BSDF"]
    uvn = nt.nodes.new("ShaderNodeUVMap")
    sep = nt.nodes.new("ShaderNodeSeparateXYZ")
    nt.links.new(uvn.outputs[0], sep.inputs[0])

    def math_node(op, a, k=None):
        n = nt.nodes.new("ShaderNodeMath")
        n.operation = op
        for i, val in enumerate((a, k)):
            if val is None:
                continue
            if hasattr(val, "links"):
                nt.links.new(val, n.inputs[i])
            else:
                n.inputs[i].default_value = val
        return n.outputs[0]

    tw = 38.0
    wx = math_node("SINE", math_node("MULTIPLY", sep.outputs[0], tw * 6.28))
    wy = math_node("SINE", math_node("MULTIPLY", sep.outputs[1], tw * 6.28))
    weave = math_node("MULTIPLY", wx, wy)
    bp = nt.nodes.new("ShaderNodeBump")
    bp.inputs["Strength"].default_value = 0.18
    bp.inputs["Distance"].default_value = 0.03
    nt.links.new(weave, bp.inputs["Height"])
    nt.links.new(bp.outputs[0], b.inputs["Normal"])
    line = {"check": "9a3a2c", "stripe": "1f4d55", "damask": "b7ad98", "blue": "c9c2ae"}.get(kind)
    if line:
        def band(out, period, width):
            return math_node("LESS_THAN", math_node("FRACT", math_node("DIVIDE", out, period)), width)
        x = band(sep.outputs[0], 1.1 if kind == "check" else 2.6, 0.5 if kind == "check" else 0.1)
        y = band(sep.outputs[1], 1.1 if kind == "check" else 2.6, 0.5 if kind == "check" else 0.1)
        if kind == "check":
            f = math_node("MULTIPLY", math_node("ADD", x, y), 0.42)
        elif kind == "stripe":
            f = math_node("MULTIPLY", y, 0.85)
        else:
            f = math_node("MULTIPLY", math_node("MAXIMUM", x, y), 0.6)
        mx = nt.nodes.new("ShaderNodeMixRGB")
        nt.links.new(f, mx.inputs[0])
        mx.inputs[1].default_value = (*core.rgb(base), 1)
        mx.inputs[2].default_value = (*core.rgb(line), 1)
        nt.links.new(mx.outputs[0], b.inputs["Base Color"])
    return m


def _flat(points, m, sx=1.0, sy=1.0):
    o = lathe(points, m, 128)
    o.scale = (sx, sy, 1)
    return o


RIMS = {"blue": "1d3f5f", "teal": "16474c", "copper": None, "red": "7c2a1d", "green": "3f6b35", "gold": None, "brown": "4d2c17"}


def plate(r=4.0, col="ece6da", rim="teal", oval=1.0, deep=0.0):
    """Dinner plate; oval > 1 stretches it along x; deep > 0 makes a soup plate. Food stands at about z = 0.14 + in the well."""
    k = r / 4.0
    d = deep
    prof = [(0.01, .14), (2.0, .14), (2.55, .17 + d * .05), (2.78, .28 + d * .45), (2.95, .36 + d), (3.4, .45 + d), (3.93, .56 + d),
            (4.03, .585 + d), (4.045, .555 + d), (3.95, .50 + d), (3.0, .28 + d), (2.7, .12 + d * .4), (2.45, .03), (2.3, 0.0), (0.01, .02)]
    prof = [(a * k, z * k) for a, z in smooth_profile(prof, 5)]
    parts = [_flat(prof, porcelain(col), oval)]
    if rim:
        m = copper() if rim == "copper" else brass() if rim == "gold" else mat("rim" + rim, RIMS[rim], 0.18, coat=0.6)
        for r0, r1 in ((3.74, 3.86),) + (((3.62, 3.65),) if rim not in ("copper", "gold") else ()):
            def z(q):
                return .45 + d + (q - 3.4) / (3.93 - 3.4) * .11 + 0.006
            parts.append(_flat([(r0 * k, z(r0) * k), (r1 * k, (z(r1)) * k)], m, oval))
    return group(parts)


def bowl(r=3.2, h=2.0, col="ece6da", inside=None, foot=True, rim=None, oval=1.0):
    """Bowl whose inside is a smooth curve; soup level at about 0.75 h has the radius inner_radius(r, h, z)."""
    out = [(0.01, 0.0), (r * .42, 0), (r * .44, .06 * h), (r * .62, .14 * h), (r * .86, .45 * h), (r * .98, .85 * h), (r, h)]
    inn = [(r - .06, h + .02), (r * .95 - .02, .85 * h), (r * .83, .48 * h), (r * .6, .2 * h), (r * .3, .11 * h), (0.01, .1 * h)]
    parts = [_flat(smooth_profile(out, 6), porcelain(col), oval), _flat(smooth_profile([(r, h)] + inn, 6), porcelain(inside or col), oval)]
    if rim:
        m = copper() if rim == "copper" else brass() if rim == "gold" else mat("rim" + rim, RIMS[rim], 0.18, coat=0.6)
        parts.append(put(torus(r - 0.02, 0.055, m), 0, 0, h, scale=(oval, 1, 1)))
    return group(parts)


def inner_radius(r, h, z):
    zs = [.1 * h, .2 * h, .48 * h, .85 * h, h]
    rs = [0.05, r * .6, r * .83, r * .95 - .02, r - .06]
    return float(np.interp(z, zs, rs))


def torus(R, r, m, n=96, k=14):
    return lathe([(R + r * math.cos(2 * math.pi * i / k), r * math.sin(2 * math.pi * i / k)) for i in range(k + 1)], m, n)


def board(sx=9, sy=6, kind="pale", handle=False, z=0.5, rounding=0.5):
    pts = rounded_rect(sx, sy, rounding)
    o = outline_solid(pts, z, wood(kind), 0.08)
    if not handle:
        return o
    h = outline_solid(rounded_rect(2.2, 1.1, 0.5), z, wood(kind), 0.08)
    h.location = (sx / 2 + 0.8, 0, 0)
    return group([o, h])


def slate(sx=9, sy=5.5):
    pts = rounded_rect(sx, sy, 0.08, jitter=0.05)
    return outline_solid(pts, 0.28, mat("slate", ((0.3, "1b2022"), (0.7, "30373a")), 0.55, 0.4, noise=2, bump=0.3, bumpscale=6), 0.04, 1)


def rounded_rect(sx, sy, r, n=8, jitter=0.0):
    pts = []
    for cx, cy, a0 in ((1, 1, 0), (-1, 1, 90), (-1, -1, 180), (1, -1, 270)):
        for i in range(n + 1):
            a = math.radians(a0 + 90 * i / n)
            pts.append((cx * (sx / 2 - r) + r * math.cos(a) + random.uniform(-jitter, jitter), cy * (sy / 2 - r) + r * math.sin(a) + random.uniform(-jitter, jitter)))
    return pts


def pan(r=4.0, h=0.9, material="iron", handle=True, turn=0):
    """Frying pan, floor at z = 0.1."""
    m = {"iron": iron, "copper": copper, "steel": steel}[material]()
    inside = iron() if material == "iron" else steel() if material == "copper" else m
    prof = smooth_profile([(0.01, 0), (r * .8, 0), (r * .87, .06), (r * .95, h * .6), (r * 1.02, h)], 6)
    inn = smooth_profile([(r * 1.02, h), (r * 1.0, h + .03), (r * .98, h - .02), (r * .92, h * .55), (r * .83, .14), (r * .75, .1), (0.01, .1)], 6)
    parts = [lathe(prof, m), lathe(inn, inside)]
    if handle:
        pts = curve_points([(r * .96, 0, h * .7), (r * 1.25, 0, h * 1.0), (r * 1.7, 0, h * 1.35), (r * 2.5, 0, h * 1.45)], 8)
        parts.append(put(tube(pts, [0.17] * 6 + [0.2] * (len(pts) - 6), iron() if material != "copper" else brass(), 14), scale=(1, 1.6, 1)))
    return put(group(parts), turn=turn)


def pot(r=3.0, h=2.6, material="copper", lid=None):
    """Two-handled pot without its lid; potlid() is the lid."""
    m = {"iron": iron, "copper": copper, "steel": steel, "enamel": lambda: mat("enamelred", "6e1d14", 0.12, coat=0.8),
         "enamelteal": lambda: mat("enamelteal", "13454b", 0.12, coat=0.8)}[material]()
    ins = steel() if material in ("copper", "steel") else porcelain("ddd8cc")
    parts = [lathe(smooth_profile([(0.01, 0), (r * .9, 0), (r * .97, .08), (r, .3), (r, h * .6), (r, h)], 5), m),
             lathe(smooth_profile([(r, h), (r + .08, h + .03), (r + .02, h + .07), (r - .08, h), (r - .08, .3), (r * .9, .12), (0.01, .1)], 5), ins)]
    for s in (-1, 1):
        pts = curve_points([(s * r * .98, -.75, h * .72), (s * (r + .45), -.6, h * .78), (s * (r + .6), 0, h * .8), (s * (r + .45), .6, h * .78), (s * r * .98, .75, h * .72)], 6)
        parts.append(tube(pts, 0.13, brass() if material == "copper" else m))
    return group(parts)


def potlid(r=3.0, material="copper"):
    m = {"iron": iron, "copper": copper, "steel": steel, "enamel": lambda: mat("enamelred", "6e1d14", 0.12, coat=0.8)}[material]()
    parts = [lathe(smooth_profile([(r + .02, 0), (r + .08, .05), (r * .9, .2), (r * .5, .42), (r * .15, .52), (0.01, .54)], 6), m),
             lathe(smooth_profile([(r + .02, 0), (r * .88, .12), (r * .5, .32), (0.01, .4)], 6), m),
             lathe(smooth_profile([(.12, .5), (.1, .72), (.3, .82), (.34, .95), (.2, 1.05), (.01, 1.07)], 5), brass())]
    return group(parts)


def casserole(sx=8, sy=5, h=1.3, col="e4dccb", outside=None):
    """Oven dish, oval, floor at z = 0.15."""
    o = []
    prof = smooth_profile([(0.01, 0), (.82, 0), (.88, .05), (.94, h * .6), (1.0, h)], 5)
    inn = smooth_profile([(1.0, h), (1.0, h + .04), (.955, h), (.89, h * .55), (.82, .2), (.7, .15), (0.01, .15)], 5)
    for p, m in ((prof, porcelain(outside or col)), (inn, porcelain(col))):
        q = lathe(p, m, 128)
        q.scale = (sx / 2, sy / 2, 1)
        o.append(q)
    for s in (-1, 1):
        e = lathe(smooth_profile([(.5, -.08), (.75, -.02), (.8, .04), (.7, .1), (.3, .1)], 4), porcelain(outside or col), 48)
        put(e, s * sx / 2, 0, h - .06, scale=(1, 1.3, 1))
        o.append(e)
    return group(o)


def wineglass(h=5.2, r=1.15, wine=None, level=0.5):
    """Wine glass; wine: white, red, rose."""
    hb = h * .44
    out = smooth_profile([(0.01, 0.0), (r * .9, 0.0), (r * .92, .05), (r * .4, .16), (.1, .3), (.085, hb * .6), (.1, hb - .1), (.22, hb),
                          (r * .8, hb + (h - hb) * .25), (r, hb + (h - hb) * .5), (r * .92, hb + (h - hb) * .8), (r * .78, h)], 6)
    inn = smooth_profile([(r * .78, h), (r * .78 - .03, h), (r * .92 - .05, hb + (h - hb) * .8), (r - .05, hb + (h - hb) * .5),
                          (r * .8 - .06, hb + (h - hb) * .27), (.2, hb + .1), (0.01, hb + .06)], 6)
    parts = [lathe(out + inn[1:], thin_glass("glassware", "eef6f4", 1.4), 64)]
    if wine:
        zt = hb + (h - hb) * level
        col = {"white": "f1dc8e", "red": "9a1226", "rose": "e79a86", "water": "eef6f6", "beer": "d98a1c"}[wine]
        ins = [(a - .012, z) for a, z in inn[1:] if z < zt - .01]
        rt = float(np.interp(zt, [z for a, z in reversed(inn)], [a for a, z in reversed(inn)])) - .012
        prof = [(0.01, zt), (rt, zt)] + ins
        parts.append(lathe(prof, mat("wine" + wine, col, 0.03, trans=.4 if wine == "red" else .75, ior=1.2, coat=.5), 64))
    return group(parts)


def tumbler(h=3, r=1.1, drink="beer"):
    out = [(0.01, 0), (r * .8, 0), (r * .84, .05), (r, h)]
    inn = [(r - .05, h), (r * .84 - .06, .25), (0.01, .22)]
    zt = h * .8
    rt = r * .84 - .07 + (r * .16 - 0) * (zt - .25) / (h - .25)
    parts = [lathe(out + inn, thin_glass("glassware", "eef6f4", 1.4), 64)]
    if drink:
        col = {"water": "eef6f6", "beer": "d98a1c"}[drink]
        parts.append(lathe([(0.01, zt), (rt, zt), (r * .84 - .07, .27), (0.01, .24)], mat("drink" + drink, col, .03, trans=.7, ior=1.2, coat=.5), 64))
        if drink == "beer":
            parts.append(lathe(smooth_profile([(rt, zt), (rt + .03, h * .97), (rt * .8, h * 1.04), (.01, h * 1.05)], 5), mat("foam", "f2e9d4", .7, sss=.2, bump=.2, bumpscale=20), 64))
    return group(parts)


def bottle(h=9, r=1.1, col="2c3a12", label="e6d8b4", wine=True):
    prof = smooth_profile([(.01, 0), (r * .9, 0), (r, .12), (r, h * .3), (r, h * .56), (r * .8, h * .66), (r * .36, h * .74), (r * .32, h * .9), (r * .38, h * .94), (r * .38, h * .97)], 6)
    g = mat("bottle" + col, col, .03, .6, coat=.8, trans=.35, ior=1.5)
    parts = [lathe(prof, g, 64)]
    caps = mat("capsule", "7c1f19", .35, coat=.3)
    parts.append(lathe(smooth_profile([(r * .335, h * .82), (r * .34, h * .92), (r * .4, h * .93), (r * .4, h * .985), (.01, h)], 4), caps, 48))
    parts.append(lathe([(r * 1.008, h * .16), (r * 1.008, h * .44)], mat("label" + label, ((.4, label), (.6, "d6c69c")), .8, noise=5), 64))
    for z in (.19, .41):
        parts.append(lathe([(r * 1.012, h * z), (r * 1.012, h * (z + .008))], mat("labelline", "7c2a1d", .6), 64))
    parts.append(lathe([(r * 1.012, h * .27), (r * 1.012, h * .34)], mat("labelband", "1a4a4c", .6), 64, arc=1))
    return group(parts)


def candle(h=3.0, r=.45, holder=True, flame=True):
    parts = [lathe(smooth_profile([(.01, 0), (r, 0), (r, h * .5), (r, h - .1), (r * .9, h), (r * .5, h - .08), (.01, h - .1)], 4), mat("wax", "efe2c4", .4, sss=.35, sssradius=(.6, .3, .15), emit="ffb765", emit_strength=.08), 40)]
    parts.append(tube([(0, 0, h - .1), (.02, 0, h + .22)], .03, iron(), 6))
    if holder:
        parts.append(lathe(smooth_profile([(.01, -.02), (r * 2.4, 0), (r * 2.5, .16), (r * 2.3, .1), (r * 1.15, .08), (r * 1.15, .4), (r * 1.02, .4)], 4), brass(), 48))
    if flame:
        f = lathe(smooth_profile([(.01, 0), (.1, .12), (.13, .28), (.07, .55), (.01, .78)], 6), mat("flame", "ffd27a", emit="ffb24a", emit_strength=14), 20)
        put(f, .02, 0, h + .12)
        parts.append(f)
    return group(parts)


def knife(length=6.0, turn=0):
    b = outline_solid(curve_points([(0, 0), (length * .62, 0), (length * .6, .32), (length * .35, .52), (0, .55)], 6), .05, steel(), .015, 1)
    h = outline_solid(rounded_rect(length * .4, .5, .2), .26, wood("dark"), .08)
    h.location = (-length * .2, .27, 0)
    rivets = [put(sphere(.06, brass(), n=10), -length * q, .27, .26) for q in (.1, .3)]
    return group([b, h] + rivets)


def _cutlery_bar(points, widths, thick, m):
    """Flat bar along x with the given widths and heights (x, z) – the body of forks and spoons."""
    v = []
    n = 10
    for (x, z), w in zip(points, widths):
        for k in range(n):
            a = 2 * math.pi * k / n
            v.append((x, w * math.cos(a), z + thick * math.sin(a)))
    f = grid_faces(len(points), n, True)
    f += [tuple(range(n)), tuple(reversed(range((len(points) - 1) * n, len(points) * n)))]
    return mesh(v, f, m)


def fork(length=5.6, m=None):
    m = m or steel()
    L = length
    pts = curve_points([(0, .05), (L * .2, .1), (L * .45, .2), (L * .62, .16), (L * .72, .1)], 6)
    w = np.interp([p[0] / L for p in pts], [0, .08, .2, .5, .6, .68, .72], [.2, .24, .16, .1, .12, .34, .36])
    parts = [_cutlery_bar(pts, w, .045, m)]
    for y in (-.3, -.1, .1, .3):
        tp = curve_points([(L * .705, y, .1), (L * .8, y * 1.0, .06), (L * .9, y * .95, .1), (L, y * .9, .2)], 5)
        parts.append(tube(tp, list(np.linspace(.062, .03, len(tp))), m, 8))
    return group(parts)


def spoon(length=5.6, m=None, bowl_r=.62):
    m = m or steel()
    L = length
    pts = curve_points([(0, .05), (L * .2, .1), (L * .5, .24), (L * .7, .16), (L * .76, .12)], 6)
    w = np.interp([p[0] / L for p in pts], [0, .08, .2, .55, .76], [.2, .26, .16, .1, .14])
    parts = [_cutlery_bar(pts, w, .05, m)]
    nu, nv, v = 14, 36, []
    for i in range(nu):
        q = i / (nu - 1)
        for j in range(nv):
            a = 2 * math.pi * j / nv
            v.append((L * .86 + q * math.cos(a) * bowl_r * 1.42, q * math.sin(a) * bowl_r * (1 - .12 * math.cos(a)), .03 + .3 * q ** 2.4))
    b = mesh(v, grid_faces(nu, nv, True), m)
    s = b.modifiers.new("t", "SOLIDIFY")
    s.thickness = .05
    s.offset = 1
    parts.append(b)
    return group(parts)


def tableknife(length=5.9, m=None):
    m = m or steel()
    L = length
    h = _cutlery_bar(curve_points([(0, .1), (L * .2, .12), (L * .45, .11), (L * .5, .1)], 5), [.2] * 5 + [.17] * 5 + [.13] * 6, .08, m)
    b = outline_solid(curve_points([(L * .48, -.12), (L * .7, -.2), (L * .93, -.2), (L, .08), (L * .98, .2), (L * .7, .2), (L * .48, .12)], 6), .05, m, .012, 1)
    b.location.z = .08
    return group([h, b])
