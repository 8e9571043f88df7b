# SPDX-License-Identifier: GPL-3.0-or-later
"""Sauces, soups, aspic, cream, steam."""
import math
import random

import numpy as np

from .. import core
from ..core import curve_points, fbm, grid_faces, group, mat, mesh, put, smooth_profile, thin_glass, tube
from .pieces import cube
from .shapes import blob, sheet, slab
from .vegetables import dice, pea


SAUCES = {
    "cream": ("ead9ae", "f3e8c8", .25), "dill": ("dfdcb0", "eeead0", .25), "dark": ("1e0d06", "3a1a0c", .12), "paprika": ("b5471a", "d56c34", .22), "butter": ("cf9a3c", "e6c274", .06),
    "mustard": ("c9992c", "dcb54e", .3), "hollandaise": ("e9bf42", "f3d470", .22), "tartar": ("e9e4cc", "f5f1e0", .35), "mayonnaise": ("efe3b8", "f6efd2", .3), "curry": ("c98a1e", "dfab3e", .22),
    "cranberry": ("5a0a10", "8a141a", .08), "tomato": ("a3280e", "c24420", .25), "soured": ("f0ece0", "faf8f0", .25), "peas": ("6d8f2c", "93ad4c", .5), "spread": ("c2a37c", "dcc19c", .5), "horseradish": ("efe9da", "f8f5ea", .4),
    "oil": ("c9a83a", "d9bd5a", .03), "juice": ("e2bd72", "f0d698", .05), "green": ("5d7a1c", "86a032", .15), "honeymustard": ("b5801a", "d6a436", .2), "fishsoup": ("a8782c", "bf9245", .1), "christmas": ("cfb078", "dfc594", .16),
    "halaszle": ("8f1c08", "b83414", .05), "broth": ("c98d2a", "dca744", .02), "smoked": ("dcc492", "ebdab2", .22), "vinegar": ("c9b06a", "dcc88a", .03), "dillcream": ("dccf8e", "ece2b4", .18), "risotto": ("e9dcb8", "f3ead0", .3),
}


def sauce_mat(kind):
    if kind == "gratin":
        return mat("gratin", ((.34, "9c5a1c"), (.43, "dba746"), (.62, "f2d993")), .35, .5, coat=.35, noise=1.8, detail=8, bump=.35, bumpscale=5)
    if kind == "sardine":
        return mat("sardine", ((.36, "c9b48a"), (.5, "e3d4ac"), (.64, "f0e6c8")), .45, .4, coat=.2, noise=3, detail=7, bump=.5, bumpscale=6)
    if kind == "spread":
        return mat("spread", ((.34, "8f6f4c"), (.46, "cfae84"), (.58, "e8d3b0"), (.7, "c98f62")), .5, .4, coat=.15, noise=5, detail=6, bump=.7, bumpscale=7)
    a, b, rough = SAUCES[kind]
    thin = kind in ("butter", "juice", "oil", "vinegar")
    clear = thin or kind in ("broth", "halaszle")
    soup = kind in ("fishsoup", "christmas", "smoked", "curry", "paprika")
    return mat("sauce-" + kind, ((.36, a), (.64, b)), .08 if soup else rough, .5, sss=0 if clear else .06, coat=1.0 if soup else .5, noise=1.6, bump=.06, bumpscale=3.5, trans=.2 if thin else .55 if clear else 0, ior=1.33)


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


def aspic_mat(tint="efc66a"):
    """Clear and amber, without refraction: what is set in it stays to be seen."""
    return thin_glass("aspic" + tint, tint, 1.9, .04, glow=.03)


def aspic_mould(r=2.2, h=1.7, flutes=14, tint="efc66a", deep=.045):
    """Turned-out fluted aspic; deep: how deep the flutes are, as a part of its radius."""
    nv = 168
    prof = smooth_profile([(1.0, 0), (.98, .15), (.93, .5), (.86, .8), (.75, .94), (.55, 1.0), (.01, .97)], 6)
    v = []
    for rr, z in prof:
        for j in range(nv):
            a = 2 * math.pi * j / nv
            k = 1 + deep * math.cos(a * flutes) * min(1, (1.02 - z) * 4) * min(1, rr * 1.5)
            v.append((r * rr * k * math.cos(a), r * rr * k * math.sin(a), h * z))
    return mesh(v, grid_faces(len(prof), nv, True), aspic_mat(tint))


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
    tr = nt.nodes.new("ShaderNodeBsdfTransparent")
    both = nt.nodes.new("ShaderNodeAddShader")   # a mixture of the two would be grainy
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

    def mth(op, a, b, clamp=True):
        n = nt.nodes.new("ShaderNodeMath")
        n.operation = op
        n.use_clamp = clamp
        for i, q in enumerate((a, b)):
            if hasattr(q, "links"):
                nt.links.new(q, n.inputs[i])
            else:
                n.inputs[i].default_value = q
        return n.outputs[0]

    sx = mth("SINE", mth("MULTIPLY", sep.outputs[0], 3.1416, False), 0)
    n_ = nt.nodes.new("ShaderNodeMath")
    n_.operation = "SINE"
    m2 = nt.nodes.new("ShaderNodeMath")
    m2.operation = "MULTIPLY"
    nt.links.new(sep.outputs[1], m2.inputs[0])
    m2.inputs[1].default_value = 3.1416
    nt.links.new(m2.outputs[0], n_.inputs[0])
    f = mth("MULTIPLY", mth("MULTIPLY", mth("POWER", sx, 1.6), n_.outputs[0]), mth("SUBTRACT", nz.outputs["Fac"], .38))
    nt.links.new(mth("MULTIPLY", f, strength * 4.8), em.inputs[1])
    nt.links.new(tr.outputs[0], both.inputs[0])
    nt.links.new(em.outputs[0], both.inputs[1])
    nt.links.new(both.outputs[0], out.inputs[0])
    nx, nz_ = 12, 40
    u, v = np.meshgrid(np.linspace(0, 1, nx), np.linspace(0, 1, nz_), indexing="ij")
    x = at[0] + (u - .5) * 2 * r * (.5 + v * .8) + .35 * r * np.sin(v * 5 + seed)
    y = np.full_like(u, at[1])
    z = at[2] + v * h
    o = mesh(np.stack([x, y, z], -1).reshape(-1, 3), grid_faces(nx, nz_), m, uv=np.stack([u, v], -1).reshape(-1, 2))
    o.visible_shadow = False
    return o
