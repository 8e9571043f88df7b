# SPDX-License-Identifier: GPL-3.0-or-later
"""Fish as it comes from the kitchen: steaks, fillets, cubes, breaded, rolled, cured."""
import math
import random

import numpy as np
from mathutils import Matrix, Vector

from .. import core
from ..core import fbm, grid_faces, group, lathe, mat, mesh, put, scatter, smooth_profile, tube
from ..table import wood
from .flakes import flakes, steak
from .shapes import blob, loft, slab
from .surfaces import crumb, fishskin, flesh, gherkin_mat, onion_mat


BACK = ((0, 1.62), (.3, 1.56), (.72, 1.22), (1.04, .55), (1.1, -.2), (1.0, -1.0), (.84, -1.75), (.58, -2.45))
CAVITY = ((0, -.16), (.1, -.2), (.26, -.55), (.4, -1.05), (.46, -1.6), (.4, -2.3))


def _arch(points, n):
    """n points at equal steps along a curve and its mirror image, from the left end to the right one."""
    half = np.array(smooth_profile(points, 14))
    line = np.concatenate([(half * (-1, 1))[:0:-1], half])
    way = np.r_[0, np.cumsum(np.hypot(*np.diff(line, axis=0).T))]
    t = np.linspace(0, way[-1], n)
    return np.stack([np.interp(t, way, line[:, k]) for k in (0, 1)], -1)


def horseshoe(state="roasted", size=1.0, seed=None, kind="carp", meat="white", calm=0.0):
    """Cross-cut steak: thick round the backbone, two thin belly flaps that stand apart, skin round the outside.
    calm: how far the rings in the middle of the muscles are smoothed away."""
    seed = random.randrange(999) if seed is None else seed
    rnd = random.Random(seed)
    n = 96
    O, I = _arch(BACK, n), _arch(CAVITY, n)
    apart, lean = rnd.uniform(-.16, .02), rnd.uniform(-.14, .14)
    for curve in (O, I):
        low = np.clip(-curve[:, 1], 0, 9) ** 1.5
        curve[:, 0] += np.sign(curve[:, 0]) * apart * low * .4 + lean * low * .5
    O *= (1 + .06 * (fbm(np.c_[O * 1.1, np.full(n, seed * .3)], 3, seed) * 2 - 1))[:, None] * size
    I *= size
    t = np.linspace(0, 1, n)
    end = np.sqrt(np.clip(np.minimum(t, 1 - t) / .03, 0, 1))[:, None]
    mid = (O + I) / 2
    Oe, Ie = mid + (O - mid) * end, mid + (I - mid) * end
    h = .66 * size
    if state == "breaded":
        o = loft(Oe, Ie, h, crumb("gold"), None, .12, .1, seed, .05)
        return group([o, crumbs_on(o, 260, "gold")])
    sk = {"raw": "raw", "blue": "blue", "poached": "poached", "grilled": "grilled"}.get(state, "roasted")
    m, uv = steak(Oe, Ie, meat, "poached" if state in ("raw", "blue", "poached") else "roasted", seed, calm=calm)
    o = loft(Oe, Ie, h, m, fishskin(kind, sk), .05, .08, seed, .03)
    planar(o, uv)
    o.data.materials.append(mat("membrane", ((.4, "8a6a44"), (.6, "b8966a")), .35, coat=.4, noise=2.5, bump=.2, bumpscale=6))
    for f in o.data.polygons:
        if f.index % 11 > 8:   # the wall of the belly
            f.material_index = 2
    parts = [o, put(_backbone(size), lean * -.1, .1 * size, h * 1.02)]
    if state == "grilled":
        parts.append(grillmarks(parts[0], seed))
    return group(parts)


def planar(o, uv):
    """Lays a picture on a mesh from above; uv turns vertices into points of the picture."""
    me = o.data
    v = np.empty(len(me.vertices) * 3, np.float32)
    me.vertices.foreach_get("co", v)
    idx = np.empty(len(me.loops), np.int32)
    me.loops.foreach_get("vertex_index", idx)
    me.uv_layers[0].data.foreach_set("uv", uv(v.reshape(-1, 3))[idx].astype(np.float32).ravel())


def _backbone(size):
    """A cut vertebra level with the flesh: a ring, dark in the middle."""
    bone = mat("vertebra", ((.4, "b79a6c"), (.6, "ddc9a0")), .5, coat=.2, noise=5)
    ring = lathe(smooth_profile([(.05, .02), (.1, .05), (.16, .045), (.19, 0)], 4), bone, 20)
    heart = lathe([(.01, .022), (.06, .024), (.07, 0)], mat("marrow", "6b3a22", .5, coat=.3), 16)
    return put(group([ring, heart]), scale=(size * .72, size * .66, size * .5))


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
            if hit and abs(nor.z) > .6:
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
    """The crumbs of a crust, ten times n: a few coarse ones, most fine, some fried darker, some paler than the rest."""
    polys = [p for p in o.data.polygons if p.normal.z > -.2]
    lump = _lump(6)
    tints = [(kind, .62)] + [(other, .19) for other in ("brown", "pale") if other != kind]
    return group([scatter(*lump, [_crumb_at(o.data, p, size) for p in random.choices(polys, [p.area for p in polys], k=int(10 * n * share))], crumb(tint))
                  for tint, share in tints])


def _crumb_at(me, polygon, size):
    corners = random.sample(list(polygon.vertices), 3)
    u, v = sorted((random.random(), random.random()))
    at = sum((me.vertices[c].co * w for c, w in zip(corners, (u, v - u, 1 - v))), Vector())
    s = size * min(2.2, random.expovariate(1.6) + .25)
    return Matrix.Translation(at) @ Matrix.Rotation(random.random() * 6, 4, random.choice("XYZ")) @ Matrix.Diagonal((s, s * random.uniform(.6, 1), s * .8, 1))


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
    top = fishskin(skin, state if state != "baked" else "roasted") if skin else flakes(kind, state, 8, seed % 3 + 1)
    return slab(pts, h, top, 2.3, .09, 1.1, 22, .12, .02, 7, seed, side=flakes(kind, "poached", 8, 1) if skin else None)


def block(kind="pink", state="seared", sx=3.0, sy=1.6, h=1.0, skin=None, seed=None):
    """Portion of a thick fillet with cut sides: high along the back, thinner towards the belly, skin below or on top."""
    seed = random.randrange(999) if seed is None else seed
    cooked = state in ("seared", "roasted", "baked", "grilled")
    top = fishskin(skin, "roasted") if skin else flakes(kind, "seared" if cooked else "poached", 5, seed % 3 + 1)
    o = slab(blob(sx, sy, .07, 72, 4.2, seed), h, top, 4.6, .06, 1.2, 22, .1, .025, 7, seed, side=flakes(kind, "poached", 5, seed % 3 + 1), taper=.03)
    for v in o.data.vertices:
        v.co.z *= 1 - .28 * (.5 - v.co.y / sy) + .06 * math.sin(v.co.x * 1.3)
    return o


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
    return slab(blob(s * random.uniform(.85, 1.25), s * random.uniform(.8, 1.1), .24, 44, 3.2, seed), s * random.uniform(.6, .85), flakes(kind, state, 3, random.randrange(1, 4)), 3.6, .12, 2.4, 14, .05, .045, 7, seed)


def flake(kind="tuna", s=.7, state="poached"):
    """Torn flake of cooked fish."""
    return slab(blob(s * random.uniform(.9, 1.5), s * random.uniform(.5, .8), .4, 36, 2.6), s * .42, flakes(kind, state, 2, random.randrange(1, 4)), 2.6, .1, 3, 10, 0, .03, 9)


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
