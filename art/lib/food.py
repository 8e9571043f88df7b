"""What lies on the plates: pieces of fish, side dishes, vegetables, herbs, sauces, liquids."""
import math
import random

import numpy as np
from mathutils import Matrix, Vector

from . import core
from .core import (curve_points, fbm, grid_faces, group, lathe, mat, mesh, put, scatter, smooth_profile, sphere, tube)
from .table import wood


# ---------------------------------------------------------------- shapes

def blob(sx, sy, wob=0.12, n=64, p=2.0, seed=None):
    """Outline of an irregular rounded piece, sx by sy; p > 2 makes it squarer."""
    seed = random.randrange(9999) if seed is None else seed
    a = np.arange(n) / n * 2 * np.pi
    r = 1 + wob * (fbm(np.stack([np.cos(a) * 1.3, np.sin(a) * 1.3, np.full(n, seed * .37)], -1), 3, seed) * 2 - 1)
    c, s = np.cos(a), np.sin(a)
    return np.stack([np.sign(c) * np.abs(c) ** (2 / p) * sx / 2 * r, np.sign(s) * np.abs(s) ** (2 / p) * sy / 2 * r], -1)


def slab(outline, h, m, p=3.0, rough=0.04, rs=1.6, rings=18, dome=0.0, fine=0.0, frs=8.0, seed=None, side=None, taper=0.06, uv=True):
    """A piece with the given outline and height h whose upper edge is rounded (p: 2 = dome, 6 = block).
    side: another material for its wall."""
    seed = random.randrange(9999) if seed is None else seed
    out = np.asarray(outline, float)
    n = len(out)
    c = out.mean(axis=0)
    q = np.sin(np.linspace(0, 1, rings) * np.pi / 2) ** (.8 if p < 4 else .6)
    rows, zs = [], []
    for f in q[:-1]:
        rows.append(c + (out - c) * f)
        zs.append(np.full(n, h * (1 - f ** p) ** (1 / p) + dome * (1 - f * f)))
    hz = h * (1 - q[-2] ** p) ** (1 / p)
    wall = 5
    for i in range(1, wall + 1):
        f = i / wall
        rows.append(c + (out - c) * (1.0 - taper * f * f))
        zs.append(np.full(n, max(0.0, hz * (1 - f))))
    R = np.stack(rows)
    Z = np.stack(zs)
    P = np.concatenate([R, Z[..., None]], -1)
    nn = fbm(P * rs / max(.3, 1) + seed * 1.7, 3, seed) * 2 - 1
    d = rough * nn
    if fine:
        d = d + fine * (fbm(P * frs + seed, 3, seed + 3) * 2 - 1)
    out3 = (P - np.r_[c, 0])
    rad = np.linalg.norm(out3, axis=-1, keepdims=True) + 1e-6
    P = P + out3 / rad * d[..., None] * .6 + np.stack([np.zeros_like(d), np.zeros_like(d), d * (P[..., 2] > .02)], -1)
    P[..., 2] = np.maximum(P[..., 2], 0)
    v = P.reshape(-1, 3)
    f = grid_faces(len(rows), n, True)
    f = [tuple(reversed(t)) for t in f]
    f = [tuple(reversed(t)) for t in f]
    ox = (v[:, :2] - out.min(axis=0)) / (out.max(axis=0) - out.min(axis=0) + 1e-6)
    o = mesh(v, f, m, uv=ox if uv else None)
    if side:
        o.data.materials.append(side)
        first = (rings - 2) * n
        o.data.polygons.foreach_set("material_index", [1 if i >= first else 0 for i in range(len(f))])
    return o


def sheet(outline, z, m, thick=0.06, wave=0.0, rings=14, edge=0.08):
    """A pool or a thin layer; its rim falls softly to the ground."""
    out = np.asarray(outline, float)
    c = out.mean(axis=0)
    n = len(out)
    q = np.r_[np.linspace(0, .9, rings - 5), .94, .97, .985, .995, 1.0]
    rows = []
    for f in q:
        r = c + (out - c) * f
        e = np.clip((1 - f) / edge, 0, 1)
        zz = thick * math.sqrt(max(0.0, 1 - (1 - e) ** 2)) + wave * (fbm(np.c_[r * .9, np.zeros(n)], 3, 5) - .5) * e
        rows.append(np.c_[r, z + zz])
    return mesh(np.concatenate(rows), grid_faces(len(q), n, True), m)


def loft(outer, inner, h, m, side=None, bulge=0.05, rough=0.03, seed=0, fine=0.0):
    """A slice between two curves of the same number of points (horseshoe steaks): flat top of m, wall of `side`."""
    O, I = np.asarray(outer, float), np.asarray(inner, float)
    prof = [(-.03, 0.0), (-.05, h * .35), (-.03, h * .75), (.02, h * .95), (.08, h * 1.0), (.25, h * (1 + bulge)), (.5, h * (1 + bulge * 1.4)), (.75, h * (1 + bulge)), (.92, h * 1.0), (.98, h * .94), (1.0, h * .7), (1.0, 0.0)]
    fs = [p[0] for p in prof]
    n = len(O)
    rows = []
    for f, z in prof:
        xy = O + (I - O) * f
        rows.append(np.c_[xy, np.full(n, z)])
    P = np.stack(rows, 1)
    d = rough * (fbm(P * 1.4 + seed, 4, seed) * 2 - 1) + fine * (fbm(P * 9, 3, seed + 2) * 2 - 1)
    P[..., 2] += d * (P[..., 2] > .05)
    P[..., :2] += (d * .5)[..., None]
    k = len(prof)
    v = P.reshape(-1, 3)
    f = [tuple(reversed(t)) for t in grid_faces(n, k)]
    uv = np.stack([np.repeat(np.linspace(0, 1, n), k), np.tile(np.clip(fs, 0, 1), n)], -1)
    c0, c1 = len(v), len(v) + 1
    o = mesh(v, f, m, uv=uv)
    if side:
        o.data.materials.append(side)
        mi = [1 if (i % (k - 1)) < 3 else 0 for i in range(len(f))]
        o.data.polygons.foreach_set("material_index", mi)
    return o


# ---------------------------------------------------------------- surfaces of food

def flesh(kind="white", state="poached"):
    """Cut fish: white (cod, carp), pink (salmon), grey (herring); by state."""
    base = {"white": ("cdbb98", "e3d5b6", "efe6d0"), "pink": ("d9764e", "ec9468", "f3b08a"), "cured": ("c94f28", "e2733f", "ee9a68"), "grey": ("a88f82", "c9b5a6", "dfd2c4"),
            "tuna": ("9a7560", "b8937a", "cfae94"), "eel": ("c9b48e", "ded0b2", "ece3cf")}[kind]
    stops = tuple(zip((.35, .5, .65), base))
    if state in ("roasted", "fried", "grilled", "baked"):
        dark = {"white": ("8a4f1a", "c08440", "dcb878"), "pink": ("a8552a", "dd8a58", "ecab80"), "eel": ("8a531f", "b98446", "d9b67e")}.get(kind, ("8c5a2c", "c0915a", "dfc498"))
        stops = tuple(zip((.36, .5, .64), dark))
    return mat(f"flesh-{kind}-{state}", stops, .38, .5, sss=.08, coat=.35, noise=2.2, detail=8, bump=.32, cells=3.4, bumpstretch=(.55, 2.4, 1.6), sssradius=(.25, .14, .1))


def fishskin(kind="carp", state="roasted"):
    cols = {("carp", "roasted"): ("3e1f0b", "8a531e", "c08a3e"), ("carp", "blue"): ("31505f", "5d8496", "8fb0ba"), ("carp", "poached"): ("4d5142", "7c7b5c", "a9a37c"),
            ("carp", "grilled"): ("241408", "5d3716", "97692f"), ("trout", "roasted"): ("4a3417", "8d6a32", "c49d58"), ("zander", "roasted"): ("5b3a16", "a97a38", "d9b06a"),
            ("salmon", "roasted"): ("4b3a2a", "8d7350", "bb9c70"), ("salmon", "poached"): ("565c60", "8b9296", "b9bdb9"), ("herring", "raw"): ("6d8791", "a9bcc0", "dfe5e0"),
            ("pike", "roasted"): ("5d4318", "97782f", "c9ad62"), ("eel", "roasted"): ("2c1a0a", "5d3a15", "8f6425"), ("eel", "smoked"): ("1e1006", "4f2c0c", "8a5618"),
            ("mackerel", "smoked"): ("3c2a12", "8a6420", "cfa244"), ("tench", "poached"): ("2d3418", "565c2a", "8a8444"), ("herring", "fried"): ("5d3312", "a06a2a", "cd9c55"),
            ("perch", "roasted"): ("5a3d18", "96702f", "c9a55c")}.get((kind, state), ("4b2a10", "8f5d24", "c29248"))
    return mat(f"fskin-{kind}-{state}", tuple(zip((.36, .5, .64), cols)), .3, .55, coat=.6, noise=2.4, detail=8, bump=.3, cells=14, metal=.35 if state in ("raw",) else 0)


def crumb(kind="gold"):
    cols = {"gold": ("8a4c16", "c88635", "e6b665"), "brown": ("5c3012", "9c5f24", "c9924a"), "pale": ("b98846", "dcb878", "efd9a6"), "batter": ("b5701f", "dca047", "f0cd84")}[kind]
    return mat("crumb-" + kind, tuple(zip((.36, .5, .62), cols)), .62, .35, noise=6, detail=9, bump=.55, bumpscale=16, sss=.03)


# ---------------------------------------------------------------- pieces of fish

def horseshoe(state="roasted", size=1.0, seed=None, kind="carp", meat="white"):
    """Cross-cut steak: thick at the back, two belly flaps, skin round the outside."""
    seed = random.randrange(999) if seed is None else seed
    rnd = random.Random(seed)
    n = 72
    t = np.linspace(0, 1, n)
    ang = np.pi * (1.33 - 1.66 * t)
    rx, ry = 1.45 * size, 1.75 * size
    open_ = .18 * rnd.uniform(-.5, 1)
    O = np.stack([rx * np.cos(ang) * (1 + .05 * np.cos(2 * ang)), ry * np.sin(ang) * np.where(np.sin(ang) > 0, .85, 1.15)], -1)
    O[:, 0] += np.where(O[:, 1] < 0, np.sign(O[:, 0]) * open_ * -O[:, 1] * .4, 0)
    th = size * (.42 + .78 * np.sin(np.pi * t) ** 1.4)
    tang = np.gradient(O, axis=0)
    nor = np.stack([-tang[:, 1], tang[:, 0]], -1)
    nor /= np.linalg.norm(nor, axis=1)[:, None]
    sgn = -1 if (nor[n // 2] @ O[n // 2]) > 0 else 1
    end = np.sqrt(np.clip(np.minimum(t, 1 - t) / .05, 0, 1))
    mid = O + nor * sgn * (th * .5)[:, None]
    Oe = mid - nor * sgn * (th * .5 * end)[:, None]
    I = mid + nor * sgn * (th * .5 * end)[:, None]
    h = .75 * size
    if state == "breaded":
        o = loft(Oe, I, h, crumb("gold"), None, .12, .1, seed, .05)
        return group([o, crumbs_on(o, 260, "gold")])
    sk = {"blue": "blue", "poached": "poached", "grilled": "grilled"}.get(state, "roasted")
    fl = flesh(meat, {"blue": "poached", "poached": "poached"}.get(state, "roasted"))
    parts = [loft(Oe, I, h, fl, fishskin(kind, sk), .1, .07, seed, .02)]
    bone = mat("bone", "e6dcc2", .5)
    b = lathe(smooth_profile([(.01, .06), (.06, .1), (.13, .08), (.15, 0)], 4), bone, 20)
    put(b, 0, ry * .85 - th.max() * .83, h * 1.08, scale=size * 1.1)
    parts.append(b)
    red = mat("boned", ((.4, "a88a62"), (.6, "8a6038")), .5)
    for s in (-1, 1):
        parts.append(tube([(0, ry * .85 - th.max() * .83, h * 1.07), (s * .3 * size, ry * .45, h * 1.1)], .015, red, 6))
    if state == "grilled":
        parts.append(grillmarks(parts[0], seed))
    g = group(parts)
    return g


def grillmarks(o, seed=0, n=5, col="140a05"):
    """Dark bars burnt into the top of a piece."""
    vs = [o.matrix_world @ v.co for v in o.data.vertices]
    xs, ys = [v.x for v in vs], [v.y for v in vs]
    zt = max(v.z for v in vs)
    m = mat("burnt", col, .7, bump=.2, bumpscale=20)
    core.bpy.context.view_layer.update()
    quads, pts = [], []
    for k in range(n):
        x0 = min(xs) + (max(xs) - min(xs)) * (k + .5) / n
        run = []
        for y in np.arange(min(ys) - .1, max(ys) + .1, .07):
            x = x0 + (y - ys[0]) * .25
            hit, loc, nor, _ = o.ray_cast(Vector((x, y, zt + 2)), Vector((0, 0, -1)))
            if hit and nor.z > .6:
                run.append((loc.x, loc.y, loc.z))
            elif len(run) > 2:
                _bar(run, pts, quads)
                run = []
        if len(run) > 2:
            _bar(run, pts, quads)
    return mesh(pts, quads, m) if pts else None


def _bar(run, pts, quads, w=.085):
    off = len(pts)
    for i, (x, y, z) in enumerate(run):
        e = w * min(1, (i + .5) * .6, (len(run) - i - .5) * .6) * random.uniform(.8, 1.1)
        pts += [(x - e, y, z + .004), (x, y, z + .016), (x + e, y, z + .004)]
    for i in range(len(run) - 1):
        a = off + 3 * i
        quads += [(a, a + 1, a + 4, a + 3), (a + 1, a + 2, a + 5, a + 4)]


def crumbs_on(o, n, kind="gold", size=.035):
    """Loose crumbs stuck on a piece."""
    me = o.data
    polys = [p for p in me.polygons if p.normal.z > -.2]
    base_v, base_f = _lump(6)
    ts = []
    for _ in range(n):
        p = random.choice(polys)
        c = p.center
        s = size * random.uniform(.5, 1.5)
        ts.append(Matrix.Translation(c) @ Matrix.Rotation(random.random() * 6, 4, random.choice("XYZ")) @ Matrix.Diagonal((s, s * random.uniform(.6, 1), s * .7, 1)))
    return scatter(base_v, base_f, ts, crumb(kind))


def _lump(n=8):
    v, nu = [], n // 2 + 1
    rnd = random.Random(n)
    for i in range(nu):
        p = math.pi * i / (nu - 1)
        for j in range(n):
            a = 2 * math.pi * j / n
            k = rnd.uniform(.75, 1.1)
            v.append((k * math.sin(p) * math.cos(a), k * math.sin(p) * math.sin(a), math.cos(p)))
    return v, grid_faces(nu, n, True)


def fillet(kind="white", state="roasted", length=4.2, width=1.8, h=.6, skin=None, seed=None):
    """Fillet: one thick side, tapering to the tail. skin: kind of fish whose skin is on top."""
    seed = random.randrange(999) if seed is None else seed
    n = 80
    t = np.linspace(0, 2 * np.pi, n, endpoint=False)
    c, s = np.cos(t), np.sin(t)
    w = 1 - .45 * np.clip(c, 0, 1) ** 1.5
    pts = np.stack([np.sign(c) * np.abs(c) ** .75 * length / 2, s * width / 2 * w + .08 * length * np.cos(t * 2 + seed) * .3], -1)
    pts *= (1 + .05 * (fbm(np.stack([c * 2, s * 2, np.full(n, seed * .3)], -1), 3, seed) * 2 - 1))[:, None]
    top = fishskin(skin, state if state != "baked" else "roasted") if skin else flesh(kind, state)
    return slab(pts, h, top, 2.3, .09, 1.1, 22, .12, .02, 7, seed, side=flesh(kind, "poached") if skin else None)


def block(kind="pink", state="seared", sx=3.0, sy=1.6, h=1.0, skin=None, seed=None):
    """Thick piece of a fillet with cut sides."""
    top = fishskin(skin, "roasted") if skin else flesh(kind, "roasted" if state in ("seared", "roasted", "baked") else "poached")
    return slab(blob(sx, sy, .09, 72, 3.4, seed), h, top, 4.2, .09, 1.2, 20, .12, .03, 6, seed, side=flesh(kind, "poached"), taper=.03)


def cutlet(kind="pink", size=1.0, skin="salmon", state="poached", seed=None):
    """Salmon cutlet: horseshoe with the flaps closed."""
    return horseshoe("poached" if state == "poached" else state, size, seed, skin, kind)


def breaded(sx=3.2, sy=1.9, h=.65, kind="gold", seed=None, n=320):
    o = slab(blob(sx, sy, .22, 90, 2.3, seed), h, crumb(kind), 2.2, .14, 1.3, 24, .1, .07, 5, seed)
    return group([o, crumbs_on(o, n, kind)])


def battered(sx=5.0, sy=1.7, h=1.0, seed=None):
    """Fish in puffed beer batter."""
    m = mat("batter", ((.33, "9d5c18"), (.5, "d69a3f"), (.66, "efc878")), .42, .5, noise=2.2, detail=9, bump=.4, bumpscale=7, coat=.25)
    return slab(blob(sx, sy, .28, 110, 2.2, seed), h, m, 2.0, .3, 1.0, 30, .25, .12, 3.2, seed)


def patty(r=1.1, h=.6, kind="brown", seed=None):
    return breaded(2 * r, 2 * r * .95, h, kind, seed, 220)


def stick(length=2.2, kind="gold", seed=None):
    return breaded(length, .62, .5, kind, seed, 60)


def cube(kind="white", state="poached", s=.8, seed=None, skin=None):
    o = slab(blob(s * random.uniform(.85, 1.2), s * random.uniform(.8, 1.1), .1, 40, 4, seed), s * random.uniform(.7, .95), flesh(kind, state), 4.5, .07, 2.2, 12, .05, .02, 8, seed)
    return o


def flake(kind="tuna", s=.7, state="poached"):
    """Torn flake of cooked fish."""
    return slab(blob(s * random.uniform(.9, 1.5), s * random.uniform(.5, .8), .4, 36, 2.6), s * .42, flesh(kind, state), 2.6, .1, 3, 10, 0, .03, 9)


def rolled(r=.85, h=1.5, seed=None):
    """Rolled herring (rollmop) lying: spiral fillet with onion and gherkin inside, held by a stick. Its axis is x."""
    turns, n, w = 1.75, 90, h
    t = np.linspace(0, 1, n)
    a = t * turns * 2 * np.pi
    rr = .32 * r + (.68 * r) * t
    v = []
    prof = [(-.5, -.0), (-.48, .08), (0, .12), (.48, .08), (.5, 0), (.48, -.08), (0, -.1), (-.48, -.08)]
    for i in range(n):
        for x, d in prof:
            q = rr[i] + d * (1 - .6 * max(0, (t[i] - .92) / .08))
            v.append((x * w * (1 - .15 * t[i]) + .05 * math.sin(a[i] * 2), q * math.cos(a[i]), q * math.sin(a[i]) + r))
    f = grid_faces(n, len(prof), True)
    o = mesh(v, f, fishskin("herring", "raw"))
    o.data.materials.append(flesh("grey", "poached"))
    k = len(prof)
    o.data.polygons.foreach_set("material_index", [0 if (i % k) in (1, 2) else 1 for i in range(len(f))])
    inner = put(lathe(smooth_profile([(.01, -.5 * w), (.22 * r, -.48 * w), (.27 * r, 0), (.22 * r, .5 * w), (.01, .53 * w)], 4), gherkin_mat(), 20), 0, 0, r, roll=90)
    on = put(lathe([(.26 * r, -.42 * w), (.34 * r, -.46 * w), (.34 * r, .46 * w), (.26 * r, .5 * w)], onion_mat(), 24), 0, 0, r, roll=90)
    st = tube([(.1, -r * 1.25, r * 1.15), (-.05, r * 1.2, r * .95)], .035, wood("pale"), 8)
    return group([o, inner, on, st])


def slice_cured(length=3.2, width=1.5, seed=None, kind="cured"):
    """Thin slice of cured or smoked salmon with its pale lines, draped in waves."""
    seed = random.randrange(999) if seed is None else seed
    m = _salmonpic(kind)
    nx, ny = 46, 20
    u, v = np.meshgrid(np.linspace(0, 1, nx), np.linspace(-1, 1, ny), indexing="ij")
    ww = width / 2 * np.sqrt(np.clip(1 - (2 * u - 1) ** 4, 0.02, 1)) * (1 - .2 * u)
    x = (u - .5) * length
    y = v * ww + .12 * np.sin(u * 5 + seed)
    z = .05 + .10 * (fbm(np.stack([u * 4, v * 1.2, np.full_like(u, seed * .7)], -1), 3, seed)) + .05 * np.sin(u * 9 + seed) * (.4 + .6 * (v + 1) / 2)
    z = np.maximum(z, .02)
    o = mesh(np.stack([x, y, z], -1).reshape(-1, 3), grid_faces(nx, ny), m, uv=np.stack([u, v / 2 + .5], -1).reshape(-1, 2))
    s = o.modifiers.new("t", "SOLIDIFY")
    s.thickness = .05
    s.offset = -1
    return o


def _salmonpic(kind):
    name = "salmonslice" + kind
    if name in core._materials:
        return core._materials[name]
    w, h = 512, 256
    u = np.tile(np.linspace(0, 1, w), (h, 1))
    v = np.tile(np.linspace(-1, 1, h)[:, None], (1, w))
    n = fbm(np.stack([u * 6, v * 3, np.zeros_like(u)], -1), 3, 4)
    line = np.abs(np.mod(u * 9 + np.abs(v) * 1.6 + (n - .5) * 1.1, 1) - .5)
    f = np.clip((.1 - line) / .07, 0, 1) * .75
    a, b = (np.array(core.rgb(c)) ** (1 / 2.2) for c in (("e0632a", "f3c9a4") if kind == "cured" else ("c9552c", "eab38a")))
    img = a + (b - a) * f[..., None] + ((n - .5) * .18)[..., None]
    return mat(name, "e0632a", .25, .6, sss=.12, coat=.7, image=core.picture(name, img), sssradius=(.3, .1, .05))


def rose(kind="smoked", size=1.0):
    """A rose of smoked salmon slices."""
    parts = []
    for i in range(9):
        o = slice_cured(1.9 * size, 1.0 * size, kind=kind)
        r = .12 + .085 * i
        a = i * 2.2
        put(o, r * math.cos(a) * size, r * math.sin(a) * size, (.42 - .035 * i) * size, turn=math.degrees(a) + 90, tilt=62 - i * 4.5)
        parts.append(o)
    return group(parts)


def smokedpiece(kind="eel", length=2.0):
    """Round chunk of smoked eel: skin outside, flesh on the cut ends. Lies along x."""
    r = .55
    pr = [(.01, -length / 2), (r * .75, -length / 2), (r * .93, -length / 2 + .04), (r, -length / 2 + .15), (r * .98, length / 2 - .15), (r * .92, length / 2 - .04), (r * .75, length / 2), (.01, length / 2)]
    o = put(lathe(pr, fishskin(kind, "smoked" if kind != "raweel" else "roasted"), 40), 0, 0, r * .92, roll=90, scale=(.9, 1, 1))
    caps = []
    for s in (-1, 1):
        c = put(lathe([(.01, .012), (r * .84, .01), (r * .86, -.02)], flesh("eel", "poached"), 40), s * length / 2, 0, r * .92, roll=90 * s, scale=(.9, 1, 1))
        caps.append(c)
        caps.append(put(lathe([(.01, .03), (.1, .02), (.12, 0)], mat("bone", "e6dcc2", .5), 12), s * length / 2, 0, r * .95, roll=90 * s))
    return group([o] + caps)


def tartare(r=1.5, h=1.3, kind="cured"):
    """Cylinder of fine dice."""
    bv, bf = _cubelet()
    ts = []
    for _ in range(1500):
        q = random.random()
        a = random.random() * 6.283
        if q < .62:
            rr, z = r * random.uniform(.93, 1.0), random.uniform(.05, h)
        else:
            rr, z = r * math.sqrt(random.random()), h * random.uniform(.92, 1.02)
        s = random.uniform(.08, .13)
        ts.append(Matrix.Translation((rr * math.cos(a), rr * math.sin(a), z)) @ Matrix.Rotation(random.random() * 6, 4, "Z") @ Matrix.Rotation(random.uniform(-.6, .6), 4, "X") @ Matrix.Diagonal((s, s * random.uniform(.8, 1.3), s, 1)))
    m = mat("tartare", ((.35, "c24a20"), (.5, "e0693a"), (.65, "f0a070")), .25, .6, sss=.1, coat=.6, noise=1.5, detail=3)
    return group([scatter(bv, bf, ts, m, False), lathe([(.01, h * .95), (r * .95, h * .95), (r * .95, 0)], m)])


def _cubelet():
    v = [(x, y, z) for z in (-1, 1) for x, y in ((-1, -1), (1, -1), (1, 1), (-1, 1))]
    return v, [(3, 2, 1, 0), (4, 5, 6, 7), (0, 1, 5, 4), (1, 2, 6, 5), (2, 3, 7, 6), (3, 0, 4, 7)]


# ---------------------------------------------------------------- side dishes

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
    o = slab(blob(length * random.uniform(.8, 1.1), w, .1, 40, 6), w * .95, potato_mat("roast" if random.random() < .25 else "fry") if False else mat("chip", ((.36, "c98a2e"), (.5, "e2b04e"), (.64, "efcc7c")), .42, .45, noise=2.5, bump=.15, bumpscale=10, coat=.2), 6, .03, 2, 10, 0, .01, 9)
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
    """Bread roll (rohlík) with poppy or salt left out: bent bar with ends."""
    m = mat("rollcrust", ((.36, "8a4c18"), (.5, "b87a34"), (.64, "d9a860")), .45, .4, noise=2, bump=.2, bumpscale=6, coat=.3)
    pts = [(x * length / 2, -.12 * x * x * length, r * .8) for x in np.linspace(-1, 1, 24)]
    rad = [r * math.sqrt(max(.02, 1 - abs(x) ** 3.2)) * (.9 + .1 * math.cos(x * 20)) for x in np.linspace(-1, 1, 24)]
    return tube(pts, rad, m, 28)


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


# ---------------------------------------------------------------- vegetables and fruit

def citrus(kind="lemon", r=.85):
    w, name = 512, "citrus" + kind
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
    v, f = [], []
    prof = [(r * 1.32 * math.cos(p), r * math.sin(p)) for p in np.linspace(0.04, math.pi - .04, n)]
    grid = []
    for x, q in prof:
        for j in range(k):
            b = -half + 2 * half * j / (k - 1)
            grid.append((x, q * math.sin(b), r - q * math.cos(b)))
    o1 = mesh(grid, grid_faces(n, k), peel())
    parts = [o1]
    m = mat("lemonflesh", ((.4, "e3bf34"), (.6, "f3de7c")), .2, .6, sss=.2, coat=.6, noise=7, bump=.35, bumpscale=16, sssradius=(.3, .25, .05), stretch=(1, 1, 2))
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


def gherkin_mat():
    return mat("gherkin", ((.38, "4b5a1a"), (.5, "6d7a2a"), (.62, "939a45")), .25, .5, sss=.1, coat=.6, noise=5, bump=.4, bumpscale=7)


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


def onion_mat(kind="white"):
    c = {"white": ((.4, "e2ddc8"), (.6, "f4f1e4")), "red": ((.4, "8a2b4a"), (.6, "d59ab0"))}[kind]
    return mat("onion" + kind, c, .2, .5, sss=.2, coat=.6, noise=3, sssradius=(.3, .3, .25), stretch=(1, 1, 6))


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
    """Small cubes for soups and salads: carrot, celeriac, potato, beet, apple, gherkin, pepper, greenpepper."""
    m = {"carrot": carrot_mat, "celeriac": lambda: mat("celeriac", ((.4, "d9cfa0"), (.6, "ebe4c2")), .35, sss=.15, coat=.4), "potato": lambda: potato_mat("cut"),
         "beet": lambda: mat("beet", ((.4, "5a0c22"), (.6, "86183a")), .22, sss=.1, coat=.6), "apple": lambda: mat("applecut", ((.4, "e6d9a2"), (.6, "f2e9c0")), .3, sss=.15, coat=.4),
         "gherkin": gherkin_mat, "pepper": lambda: mat("redpepper", ((.4, "a31709"), (.6, "cf3216")), .18, coat=.7, sss=.08), "greenpepper": lambda: mat("greenpepper", ((.4, "3c6a14"), (.6, "5f9426")), .18, coat=.7, sss=.08),
         "ham": lambda: mat("bacondice", ((.4, "a8453a"), (.6, "d98a78")), .3, coat=.5), "pinksalad": lambda: mat("pinksalad", ((.4, "b0496a"), (.6, "d98aa0")), .3, coat=.5, sss=.1)}[col]()
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
    """Slice of a boletus: brown cap rim, pale body."""
    pts = curve_points([(-.12, -.8), (-.2, -.3), (-.22, .05), (-.7, .02), (-.78, .2), (-.5, .6), (0, .75), (.5, .6), (.78, .2), (.7, .02), (.22, .05), (.2, -.3), (.14, -.8), (-.0, -.86)], 5)
    pts = np.array(pts) * s
    m = mat("boletus", ((.36, "a8793c"), (.5, "d0a868"), (.64, "e6cc98")), .4, .5, sss=.08, coat=.45, noise=2.6, detail=8, bump=.2, bumpscale=10)
    return slab(pts, .17 * s, m, 5, .03, 2, 14, .02, .01, side=mat("boletuscap", ((.4, "4a2610"), (.6, "7c4a20")), .35, coat=.5, noise=3), taper=.0)


def asparagus(length=5.0):
    m = mat("asparagus", ((.38, "4f7a24"), (.5, "76993c"), (.64, "a3b95e")), .3, .5, sss=.1, coat=.5, noise=1.5, stretch=(1, 4, 4))
    t = np.linspace(0, 1, 30)
    rad = [.2 * (1 if x < .72 else max(.03, (1 - ((x - .72) / .28) ** 1.8))) * (.9 + .1 * math.cos(x * 60) * (x > .7)) + .012 for x in t]
    parts = [tube([((x - .5) * length, .08 * math.sin(x * 4 + random.random()), .2) for x in t], rad, m, 14)]
    tip = mat("asparagustip", ((.4, "3a4f2a"), (.6, "6a6a4c")), .4)
    tv = [(-.5, 0, 0), (0, .35, .1), (.5, 0, .16), (0, -.35, .1)]
    ts = []
    for i in range(26):
        f = .7 + .3 * i / 26
        a = i * 2.4
        r = .2 * max(.1, 1 - ((f - .72) / .28) ** 1.6) if f > .72 else .2
        ts.append(Matrix.Translation(((f - .5) * length, r * math.cos(a), .2 + r * math.sin(a))) @ Matrix.Rotation(a - math.pi / 2, 4, "X") @ Matrix.Rotation(-.3, 4, "Y") @ Matrix.Diagonal((.22, .2, .2, 1)))
    parts.append(scatter(tv, [(0, 1, 2, 3)], ts, tip))
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
            v.append((rr * math.cos(a), rr * math.sin(a), r * .84 + q * r * .75))
    cream.append(mesh(v, grid_faces(nu, nv, True), mat("yolkcream", ((.4, "e6b84a"), (.6, "f2d27c")), .45, sss=.15, coat=.2)))
    an = mat("anchovy", ((.36, "4a1f16"), (.5, "7a3a28"), (.64, "a8684c")), .25, coat=.7, noise=3, stretch=(1, 1, 4))
    pts = [(.26 * r * (1 - .35 * t) * math.cos(t * 9), .26 * r * (1 - .35 * t) * math.sin(t * 9), r * 1.22) for t in np.linspace(0, 1, 30)]
    cream.append(put(tube([(x, y, 0) for x, y, _ in pts], .085, an, 8), 0, 0, r * 1.3, tilt=0))
    cream.append(put(caper(.11), 0, 0, r * 1.34))
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


# ---------------------------------------------------------------- herbs

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


# ---------------------------------------------------------------- things that are strewn

def _bit(kind):
    """Mesh, material and size of one grain."""
    if kind == "caraway":
        return (*_grain(), mat("caraway", ((.4, "2a170a"), (.6, "5a3a1c")), .5), lambda: (random.uniform(.1, .15), .026, .024))
    if kind in ("parsley", "dillbits", "thymebits", "basilbits"):
        v, f = _leafshape(2, 8, .4, 3, .25)
        return v, f, herb_mat({"parsley": "parsley", "dillbits": "dill", "thymebits": "thyme", "basilbits": "basil"}[kind]), lambda: (random.uniform(.06, .17),) * 2 + (.12,)
    if kind == "dill":
        return (*_needle(), herb_mat("dill"), lambda: (random.uniform(.18, .4), .022, .02))
    if kind == "chives":
        v = [(math.copysign(1, x) if x else 0, y, z) for x in (-1, 1) for y, z in ((-.5, .1), (0, .6), (.5, .1), (0, -.3))]
        return v, [(0, 1, 5, 4), (1, 2, 6, 5), (2, 3, 7, 6), (3, 0, 4, 7)], herb_mat("chives"), lambda: (random.uniform(.07, .15), .09, .09)
    if kind == "pepper":
        return (*_lump(6), mat("peppergr", "1c1512", .6), lambda: (random.uniform(.015, .035),) * 3)
    if kind == "peppercorns":
        return (*_lump(8), mat("peppercorn", ((.4, "1c130e"), (.6, "3a2a20")), .5, bump=.5, bumpscale=20), lambda: (random.uniform(.07, .09),) * 3)
    if kind == "pinkpepper":
        return (*_lump(8), mat("pinkpepper", ((.4, "a32a3a"), (.6, "cf5a60")), .3, coat=.5), lambda: (random.uniform(.07, .09),) * 3)
    if kind == "mustardseed":
        return (*_lump(8), mat("mustardseed", ((.4, "b5872c"), (.6, "d9b35e")), .4), lambda: (random.uniform(.045, .06),) * 3)
    if kind == "roe":
        return (*_lump(10), mat("roegrain", ((.4, "d9641a"), (.6, "f0963a")), .12, .6, sss=.3, coat=.8, sssradius=(.2, .1, .04)), lambda: (random.uniform(.06, .085),) * 3)
    if kind == "redroe":
        return (*_lump(12), mat("redroe", ((.4, "d63c10"), (.6, "f0702a")), .08, .6, sss=.35, coat=.9, sssradius=(.2, .08, .03)), lambda: (random.uniform(.09, .12),) * 3)
    if kind == "caviar":
        return (*_lump(8), mat("caviar", "121416", .12, .6, coat=.9), lambda: (random.uniform(.05, .06),) * 3)
    if kind == "marjoram":
        return (*_lump(5), mat("marjoram", ((.4, "4a5228"), (.6, "717a44")), .7), lambda: (random.uniform(.03, .07), .03, .02))
    if kind == "paprika":
        return (*_lump(5), mat("paprikagr", "a82c0c", .7), lambda: (random.uniform(.015, .03),) * 3)
    if kind == "crumbs":
        return (*_lump(6), crumb("gold"), lambda: (random.uniform(.03, .07),) * 3)
    if kind == "cheese":
        return (*_needle(), mat("cheese", ((.4, "e0b24a"), (.6, "f0d07a")), .4, sss=.1), lambda: (random.uniform(.2, .45), .05, .04))
    if kind == "horseradish":
        return (*_needle(), mat("horseradish", ((.4, "e9e4d4"), (.6, "f7f4ea")), .5, sss=.15), lambda: (random.uniform(.15, .4), .035, .03))
    if kind == "zest":
        return (*_needle(), peel(), lambda: (random.uniform(.15, .3), .035, .02))
    if kind == "almondflakes":
        return _leafshape(1, 14, .05, 2, .04)[0], _leafshape(1, 14, .05, 2, .04)[1], mat("almondfl", ((.4, "dcb878"), (.6, "f0dcae")), .5), lambda: (random.uniform(.25, .38), random.uniform(.18, .26), .2)
    if kind == "fat":
        v = [(math.cos(a), math.sin(a), 0) for a in np.linspace(0, 2 * math.pi, 16, endpoint=False)] + [(0, 0, .18)]
        return v, [(i, (i + 1) % 16, 16) for i in range(16)], mat("fateye", "e0a52c", .05, .6, trans=.5, coat=1), lambda: (random.choice((.06, .09, .12, .2, .28)) * random.uniform(.8, 1.2),) * 2 + (.12,)
    raise KeyError(kind)


def sprinkle(kind, n, at=(0, 0), within=(1, 1), minz=-1.0, heap=0.0, only=None, lift=0.0):
    """Strews n grains over whatever lies there, each on the surface and along its slope. heap > 0: a little hill."""
    v, f, m, size = _bit(kind)
    core.bpy.context.view_layer.update()
    ts = []
    tries = 0
    while len(ts) < n and tries < n * 6:
        tries += 1
        a, q = random.random() * 6.283, math.sqrt(random.random())
        x, y = at[0] + within[0] * q * math.cos(a), at[1] + within[1] * q * math.sin(a)
        z, nor = core._cast(x, y)
        if z < minz or nor.z < .3:
            continue
        s = size()
        up = heap * max(0, 1 - q * q) * random.random() ** .5
        ts.append(Matrix.Translation((x, y, z + s[2] * .5 + up + lift)) @ Vector((0, 0, 1)).rotation_difference(nor).to_matrix().to_4x4() @ Matrix.Rotation(random.random() * 6.283, 4, "Z")
                  @ Matrix.Rotation(random.uniform(-.35, .35), 4, "Y") @ Matrix.Diagonal((*s, 1)))
    return scatter(v, f, ts, m)


# ---------------------------------------------------------------- sauces and liquids

SAUCES = {
    "cream": ("ead9ae", "f3e8c8", .25), "dill": ("c9cf94", "dde0b4", .25), "dark": ("1e0d06", "3a1a0c", .12), "paprika": ("c2541a", "dd7a32", .22), "butter": ("b5741a", "d69a36", .06),
    "mustard": ("c9992c", "dcb54e", .3), "hollandaise": ("e9bf42", "f3d470", .22), "tartar": ("e9e4cc", "f5f1e0", .35), "mayonnaise": ("efe3b8", "f6efd2", .3), "curry": ("d99a1e", "e9b842", .22),
    "cranberry": ("5a0a10", "8a141a", .08), "tomato": ("a3280e", "c24420", .25), "soured": ("f0ece0", "faf8f0", .25), "peas": ("6d8f2c", "93ad4c", .5), "spread": ("d9c4a6", "e9dabf", .5), "horseradish": ("efe9da", "f8f5ea", .4),
    "oil": ("c9a83a", "d9bd5a", .03), "juice": ("c9963a", "dcb25c", .05), "green": ("5d7a1c", "86a032", .15), "honeymustard": ("b5801a", "d6a436", .2), "fishsoup": ("c99c48", "ddb766", .1), "christmas": ("e3cb94", "efdeb4", .16),
    "halaszle": ("8f1c08", "b83414", .05), "broth": ("c98d2a", "dca744", .02), "smoked": ("e6d7b4", "f1e7cc", .22), "vinegar": ("d9cf9a", "e6deb4", .03), "risotto": ("e9dcb8", "f3ead0", .3),
}


def sauce_mat(kind):
    a, b, rough = SAUCES[kind]
    clear = kind in ("butter", "juice", "oil", "broth", "halaszle", "vinegar")
    return mat("sauce-" + kind, ((.36, a), (.64, b)), rough, .5, sss=0 if clear else .1, coat=.5, noise=1.6, bump=.06, bumpscale=3.5, trans=.55 if clear else 0, ior=1.33)


def pool(kind, sx=2.0, sy=1.4, thick=.09, z=None, at=(0, 0), wob=.28, seed=None):
    """Sauce poured on the plate: follows the plate under it."""
    out = blob(sx, sy, wob, 90, 2.0, seed)
    o = sheet(out, 0, sauce_mat(kind), thick, .03, 16, .12)
    put(o, at[0], at[1], 0)
    core.bpy.context.view_layer.update()
    hid = o.hide_viewport
    o.hide_viewport = True
    core.bpy.context.view_layer.update()
    for v in o.data.vertices:
        v.co.z += core._cast(v.co.x + at[0], v.co.y + at[1])[0] - .012
    o.hide_viewport = hid
    return o


def drape(kind, sx, sy, thick=.1, at=(0, 0), wob=.25, smooth=3):
    """Sauce poured over food: falls on what is there, smoothed."""
    nr, na = 34, 84
    out = blob(sx, sy, wob, na, 2.0)
    core.bpy.context.view_layer.update()
    Z = np.zeros((nr, na))
    q = np.linspace(0, 1, nr)
    XY = np.stack([out * f for f in q])
    for i in range(nr):
        for j in range(na):
            Z[i, j] = core._cast(XY[i, j, 0] + at[0], XY[i, j, 1] + at[1])[0]
    Z0 = Z.copy()
    for _ in range(smooth):
        P = np.pad(Z, ((1, 1), (0, 0)), "edge")
        Z = np.maximum(Z0 * .5 + Z * .5, (P[:-2] + P[2:] + np.roll(Z, 1, 1) + np.roll(Z, -1, 1)) / 4)
    e = np.clip((1 - q) / .1, 0, 1)
    Z = Z + (thick * np.sqrt(np.maximum(0, 1 - (1 - e) ** 2)))[:, None] - .02
    v = np.concatenate([XY + np.array(at), Z[..., None]], -1).reshape(-1, 3)
    return mesh(v, grid_faces(nr, na, True), sauce_mat(kind))


def liquid(kind, r, z, oval=1.0, wave=.02, clear=None):
    """Level surface of a soup or a sauce in a round vessel."""
    n, k = 96, 40
    a = np.arange(n) / n * 2 * np.pi
    rows = []
    for q in np.linspace(0, 1, k):
        x, y = r * q * np.cos(a), r * q * np.sin(a)
        zz = wave * (fbm(np.stack([x * .8, y * .8, np.zeros(n)], -1), 3, 3) - .5) + .05 * max(0, (q - .96) / .04) ** 2
        rows.append(np.stack([x * oval, y, z + zz], -1))
    return mesh(np.concatenate(rows), grid_faces(k, n, True), clear or sauce_mat(kind))


def swirl(kind="soured", r=1.0, turns=2.2, w=.12, z=None, at=(0, 0), lift=.02):
    """Spiral of cream or oil on a surface."""
    core.bpy.context.view_layer.update()
    pts = []
    for t in np.linspace(0.03, 1, 60):
        a = t * turns * 6.283
        x, y = at[0] + r * t * math.cos(a), at[1] + r * t * math.sin(a)
        pts.append((x, y, (core._cast(x, y)[0] if z is None else z) + lift - w * .25))
    rad = [w * (.5 + .5 * math.sin(i * .11) ** 2) * (1 - .6 * i / 60) for i in range(60)]
    return tube(pts, rad, sauce_mat(kind), 10)


def drops(kind, n, at=(0, 0), within=(2, 2), size=.16):
    """Single drops of sauce."""
    core.bpy.context.view_layer.update()
    parts = []
    for i in range(n):
        a, q = random.random() * 6.283, math.sqrt(random.random())
        x, y = at[0] + within[0] * q * math.cos(a), at[1] + within[1] * q * math.sin(a)
        z = core._cast(x, y)[0]
        s = size * random.uniform(.5, 1.3)
        parts.append(put(sheet(blob(2 * s, 2 * s, .08, 30), 0, sauce_mat(kind), s * .35, 0, 9, .5), x, y, z - .005))
    return group(parts)


def line(kind, points, w=.12):
    """Line of sauce drawn on the plate."""
    core.bpy.context.view_layer.update()
    pts = [(x, y, core._cast(x, y)[0] + .01) for x, y in curve_points(points, 10)]
    n = len(pts)
    return tube(pts, [w * (.35 + .65 * math.sin(math.pi * min(1, i / n * 1.15 + .05)) ** .6) for i in range(n)], sauce_mat(kind), 10)


def aspic_mat():
    return mat("aspic", "efc768", .03, .55, trans=1.0, ior=1.18, coat=.5)


def aspic_mould(r=2.2, h=1.7, flutes=14):
    """Turned-out fluted aspic."""
    nu, nv = 40, 168
    prof = smooth_profile([(1.0, 0), (.98, .15), (.93, .5), (.86, .8), (.75, .94), (.55, 1.0), (.01, .97)], 6)
    v = []
    for rr, z in prof:
        for j in range(nv):
            a = 2 * math.pi * j / nv
            k = 1 + .045 * math.cos(a * flutes) * min(1, (1.02 - z) * 4) * min(1, rr * 1.5)
            v.append((r * rr * k * math.cos(a), r * rr * k * math.sin(a), h * z))
    return mesh(v, grid_faces(len(prof), nv, True), aspic_mat())


def aspic_cube(s=.45):
    return slab(blob(s, s, .05, 24, 6), s * .8, aspic_mat(), 6, .01, 3, 8, taper=0)


def swirl_cream(r=.5, h=.6):
    """Piped rosette of cream."""
    nu, nv = 34, 56
    v = []
    for i in range(nu):
        q = i / (nu - 1)
        for j in range(nv):
            a = 2 * math.pi * j / nv
            rr = r * (1 - q) ** .6 * (1 + .14 * math.cos(6 * a + q * 7))
            v.append((rr * math.cos(a), rr * math.sin(a), h * q))
    return mesh(v, grid_faces(nu, nv, True), sauce_mat("soured"))


def salad_heap(r=1.8, h=.9, parts=("potato", "carrot", "pea", "gherkin"), n=160, dressing="mayonnaise"):
    """Mound of diced salad bound with dressing."""
    base = slab(blob(2 * r, 1.9 * r, .08, 60), h * .86, sauce_mat(dressing), 2.2, .1, 1.5, 20, .05, .04, 5)
    objs = [base]
    for i in range(n):
        a, q = i * 2.399, math.sqrt((i + .5) / n)
        x, y = r * .96 * q * math.cos(a), r * .92 * q * math.sin(a)
        z = h * .86 * math.sqrt(max(0.0, 1 - q ** 2.2)) + .05 - .12
        k = random.choice(parts)
        o = pea() if k == "pea" else cube("grey", "poached", .4) if k == "herring" else dice(k, .36)
        put(o, x, y, max(0, z) + random.uniform(-.04, .1), turn=random.random() * 360, tilt=random.uniform(-50, 50))
        objs.append(o)
    return group(objs)


def steam(at=(0, 0, 2), h=3.0, r=.6, strength=.25, seed=0):
    """Thin wisp of steam: a bent translucent band."""
    m = core.bpy.data.materials.new("steam")
    m.use_nodes = True
    nt = m.node_tree
    out = nt.nodes["Material Output"]
    nt.nodes.remove(nt.nodes["Principled BSDF"])
    em = nt.nodes.new("ShaderNodeEmission")
    em.inputs[0].default_value = (.75, .85, .9, 1)
    em.inputs[1].default_value = .8
    tr = nt.nodes.new("ShaderNodeBsdfTransparent")
    mx = nt.nodes.new("ShaderNodeMixShader")
    uvn = nt.nodes.new("ShaderNodeUVMap")
    sep = nt.nodes.new("ShaderNodeSeparateXYZ")
    nt.links.new(uvn.outputs[0], sep.inputs[0])
    nz = nt.nodes.new("ShaderNodeTexNoise")
    nz.inputs["Scale"].default_value = 2.2
    mp = nt.nodes.new("ShaderNodeMapping")
    mp.inputs["Scale"].default_value = (1.6, 1.0, 1)
    mp.inputs["Location"].default_value = (seed, seed * .37, 0)
    nt.links.new(uvn.outputs[0], mp.inputs[0])
    nt.links.new(mp.outputs[0], nz.inputs["Vector"])

    def mth(op, a, b):
        n = nt.nodes.new("ShaderNodeMath")
        n.operation = op
        n.use_clamp = True
        for i, q in enumerate((a, b)):
            if hasattr(q, "links"):
                nt.links.new(q, n.inputs[i])
            else:
                n.inputs[i].default_value = q
        return n.outputs[0]

    sx = mth("SINE", mth("MULTIPLY", sep.outputs[0], 3.1416), 0)
    n_ = nt.nodes.new("ShaderNodeMath")
    n_.operation = "SINE"
    m2 = nt.nodes.new("ShaderNodeMath")
    m2.operation = "MULTIPLY"
    nt.links.new(sep.outputs[1], m2.inputs[0])
    m2.inputs[1].default_value = 3.1416
    nt.links.new(m2.outputs[0], n_.inputs[0])
    f = mth("MULTIPLY", mth("MULTIPLY", mth("POWER", sx, 1.6), n_.outputs[0]), mth("SUBTRACT", nz.outputs["Fac"], .38))
    f = mth("MULTIPLY", f, strength * 6)
    nt.links.new(f, mx.inputs[0])
    nt.links.new(tr.outputs[0], mx.inputs[1])
    nt.links.new(em.outputs[0], mx.inputs[2])
    nt.links.new(mx.outputs[0], out.inputs[0])
    nx, nz_ = 12, 40
    u, v = np.meshgrid(np.linspace(0, 1, nx), np.linspace(0, 1, nz_), indexing="ij")
    x = at[0] + (u - .5) * 2 * r * (.5 + v * .8) + .35 * r * np.sin(v * 5 + seed)
    y = np.full_like(u, at[1])
    z = at[2] + v * h
    o = mesh(np.stack([x, y, z], -1).reshape(-1, 3), grid_faces(nx, nz_), m, uv=np.stack([u, v], -1).reshape(-1, 2))
    o.visible_shadow = False
    return o
