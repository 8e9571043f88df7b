# SPDX-License-Identifier: GPL-3.0-or-later
"""Layers for the films: things with transparency, all seen by one eye, so that they can be moved over each other.

blender -b -P art/film.py -- all | NAME … [look]     (those that exist are skipped with "all"; look: quarter size, into build/film)

Every thing is set about its own anchor, the origin, and rendered as large as it needs; veci.txt beside the pictures tells
name, file, size, anchor and how many pixels its own length has. See art/README.md.
"""
import math
import os
import random
import subprocess
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import bmesh  # noqa: E402
import bpy  # noqa: E402
import numpy as np  # noqa: E402
from mathutils import Vector  # noqa: E402

from lib import core, fish as fishlib, food, table, tools  # noqa: E402
from lib.core import box, curve_points, fbm, group, lathe, mat, mesh, outline_solid, put, smooth_profile, sphere, tube  # noqa: E402

OUT = os.path.join(core.RENDERED, "film")
HIGH = 64            # degrees of the eye over the table
UNIT = 200           # pixels of one unit (3.5 cm) in the whole view
CLOSE = 2            # how much larger a close view is
CARP = 6.2           # length of the carp from snout to tail root; with its tail it fills 1600 pixels

fishlib.KINDS["carpscaled"] = dict(fishlib.KINDS["carp"], scalehard=.1, side="a58c54", belly="dccca0", back="4a4830")


# ---------------------------------------------------------------- fish and their parts

def whole(kind="carp", over=False, state="raw", **more):
    """A fish on its side, head to the left, belly to the eye; over: turned over, so that its back is towards the eye."""
    f = fishlib.fish(kind, state, CARP if kind.startswith("carp") else 5.6, seed=3, **more)
    return put(group([f]), scale=(1, -1, 1)) if over else f


def inside(raw=True):
    return mat("rawcut" if raw else "cookedcut", ((.38, "d9a892"), (.5, "ecc9b4"), (.62, "f4ddcc")) if raw else ((.4, "e3d2b0"), (.6, "f4e8cf")), .3, .5, coat=.6, noise=2.5, bump=.25, cells=3)


def cut(f, a, b, m=None):
    """What of a fish lies between two distances from the snout; the cuts are closed with flesh."""
    m = m or inside()
    for o in [x for x in core.tree(f) if x.type == "MESH"]:
        bm = bmesh.new()
        bm.from_mesh(o.data)
        for at, way in ((a, -1), (b, 1)):
            if at is None:
                continue
            geom = bm.verts[:] + bm.edges[:] + bm.faces[:]
            done = bmesh.ops.bisect_plane(bm, geom=geom, plane_co=(at, 0, 0), plane_no=(way, 0, .12 * way), clear_outer=True)
            edges = [e for e in done["geom_cut"] if isinstance(e, bmesh.types.BMEdge)]
            if len(edges) > 30:
                for face in bmesh.ops.edgenet_fill(bm, edges=edges)["faces"]:
                    face.material_index, face.smooth = 1, False
        bm.to_mesh(o.data)
        bm.free()
        o.data.materials.append(m)
        if not len(o.data.vertices):
            bpy.data.objects.remove(o)
    return f


def outline(kind, a=.24, b=.985, n=70):
    """Outline of a fish between two distances from the snout, snout to the left, as long as the whole fish's length asks."""
    k = fishlib.KINDS[kind]
    t = np.linspace(a, b, n)
    mid, half, _ = fishlib._shape(k, t)
    line = np.concatenate([np.c_[t, mid + half], np.c_[t, mid - half][::-1]])
    return (line - (.55, 0)) * CARP


def fleshside(kind="carp", ribs=True, spine=False, scored=0, name=None):
    """Picture of the inner side of a half or a fillet: muscle layers, the red line, the belly's skin and the ribs in it."""
    h, w = 420, 900
    v, u = np.mgrid[-1:1:h * 1j, 0:1:w * 1j]
    wide = fbm(np.stack([u * 7, v * 3, u * 0], -1), 4, 3)
    fine = fbm(np.stack([u * 60, v * 22, u * 0], -1), 3, 6)
    part = np.mod(u * 26 + 2.4 * np.abs(v - .05) + 1.0 * (wide - .5), 1)
    seam = np.clip((.12 - np.minimum(part, 1 - part)) / .09, 0, 1)
    img = np.array([.90, .72, .63]) * (.86 + .24 * fine[..., None]) + (wide[..., None] - .5) * .12
    img = img + (np.array([.97, .88, .82]) - img) * (seam * .5)[..., None]
    red = np.exp(-((v - .06) / .035) ** 2)
    img = img + (np.array([.62, .2, .16]) - img) * (red * (.75 if spine else .45))[..., None]
    tall = .5 + .25 * part - .2 * seam
    if spine:
        bead = .5 + .5 * np.cos(u * 2 * np.pi * 34)
        bone = np.exp(-((v - .06) / .055) ** 2)
        img = img + (np.array([.88, .80, .70]) * (.8 + .25 * bead[..., None]) - img) * np.clip(bone * 1.3 - .2, 0, 1)[..., None]
        tall = tall + bone * (.3 + .15 * bead)
    belly = np.clip((.42 - u) / .06, 0, 1) * np.clip((.0 - v) / .12, 0, 1)
    if ribs:
        skin_ = np.array([.66, .42, .37]) * (.9 + .2 * wide[..., None])
        img = img + (skin_ - img) * (belly * .8)[..., None]
        rib = np.exp(-((np.mod(u * 30 + v * 3.2, 1) - .5) / .1) ** 2) * np.clip((.46 - u) / .05, 0, 1) * np.clip((.06 - v) / .1, 0, 1) * np.clip((v + .93) / .1, 0, 1)
        img = img + (np.array([.96, .92, .85]) - img) * (rib * .9)[..., None]
        tall = tall + .3 * rib
    if scored:
        lines = np.clip((.1 - np.abs(np.mod(u * scored, 1) - .5)) / .05, 0, 1) * np.clip((.97 - np.abs(v)) / .05, 0, 1)
        img = img * (1 - .45 * lines[..., None])
        tall = tall - .5 * lines
    name = name or f"inner-{kind}-{ribs}-{spine}-{scored}"
    return mat(name, "e6b8a0", .26, .55, coat=.7, image=core.picture(name, img.clip(0, 1)), height=core.picture(name + "h", np.repeat(tall.clip(0, 1)[..., None], 3, -1), True), heightscale=.5)


def half(kind="carp", skin=False, head=False, **more):
    """Half of a fish without its head: its inner side up, or its skin."""
    line = outline(kind)
    if skin:
        line = line * (1, -1)
    m = fleshside(kind, **more)
    o = food.slab(line, .42, m, 3.0, .05, .8, 20, .06, .01, 6, 3, side=food.fishskin(kind, "raw"))
    parts = [o]
    if skin:
        f = cut(whole("carpscaled"), .25, .985)
        for q in f.children:
            q.scale = (q.scale[0], q.scale[1] * .55, q.scale[2])
        bpy.data.objects.remove(o)
        return f
    if more.get("spine"):
        f = cut(whole("carpscaled"), .975, None)
        parts.append(f)
    return group(parts)


def fillet(skin=False, **more):
    """A fillet: a half without bones, its belly cut away."""
    line = outline("carp", .26, .97)
    line[:, 1] = np.maximum(line[:, 1], -.11 * CARP * np.clip((line[:, 0] / CARP + .32) / .25, .35, 1))
    if skin:
        return food.slab(line * (1, -1), .4, scaledskin(), 3.0, .05, .8, 20, .06, .01, 6, 3, side=food.fishskin("carp", "raw"))
    return food.slab(line, .4, fleshside(ribs=False, **more), 3.0, .05, .8, 20, .06, .01, 6, 3, side=food.fishskin("carp", "raw"))


def scaledskin():
    """The outer side of a fillet that lies with its back towards the eye: the bare pattern of scales, pale at the belly."""
    h, w = 420, 900
    v, u = np.mgrid[-1:1:h * 1j, 0:1:w * 1j]
    row = np.floor((v + 1) * 11)
    a, b = np.mod(u * 34 + .5 * np.mod(row, 2), 1) - .5, np.mod((v + 1) * 11, 1) - .5
    edge = np.clip((np.hypot(a + .12, b * .95) - .4) / .1, 0, 1)
    n = fbm(np.stack([u * 9, v * 4, u * 0], -1), 4, 5)
    t = np.clip(.5 - .55 * v + .2 * (n - .5), 0, 1)[..., None]
    img = np.array([.30, .27, .13]) * (1 - t) + np.array([.80, .72, .48]) * t
    img = img * (1 - .3 * edge[..., None]) * (.9 + .2 * n[..., None])
    line = np.exp(-((v - .02) / .012) ** 2) * (np.mod(u * 34, 1) < .6)
    img = img * (1 - .45 * line[..., None])
    return mat("scaledskin", "9a8a50", .24, .6, coat=.8, image=core.picture("scaledskin", img.clip(0, 1)), height=core.picture("scaledskinh", np.repeat((1 - edge)[..., None], 3, -1), True), heightscale=.3)


def finebones():
    """The forked fine bones of a fillet's back in a row, as if the flesh were glass."""
    m = mat("finebone", ((.4, "f6efdc"), (.6, "fffaf0")), .35, coat=.4)
    parts = []
    for i in range(19):
        x = -1.72 + i * .22
        y = .42 - .012 * i
        stem = [(x, y - .16, .1), (x + .1, y, .12)]
        parts.append(tube(stem, [.022, .02], m, 6))
        for dx, dy in ((.03, .2), (.2, .14)):
            parts.append(tube([stem[1], (stem[1][0] + dx, stem[1][1] + dy, .12)], [.02, .009], m, 6))
    return group(parts)


def friedfillet():
    """The scored fillet, fried."""
    line = outline("carp", .26, .97)
    line[:, 1] = np.maximum(line[:, 1], -.11 * CARP * np.clip((line[:, 0] / CARP + .32) / .25, .35, 1))
    return food.slab(line, .45, mat("friedscored", ((.36, "7a4416"), (.5, "b8762c"), (.62, "dba758")), .45, coat=.3, noise=5, detail=9, bump=.7, bumpscale=14), 3.0, .05, .8, 20, .06, .05, 7, 3)


def bare(f):
    """A cut fish as flat as a fillet and without its fins."""
    g = f.children[0]
    body = max(g.children, key=lambda o: len(o.data.vertices))
    for o in [o for o in g.children if o != body]:
        bpy.data.objects.remove(o)
    g.scale = (g.scale[0], g.scale[1] * .4, g.scale[2])
    return f


def frame(kind="carp", raw=True):
    """The backbone with ribs, spines and tail."""
    bone = mat("rawbone" if raw else "cookedbone", ((.4, "c9a48c"), (.5, "e0c8b4"), (.6, "b07c6a")) if raw else ((.4, "d9c8a4"), (.6, "efe4cc")), .35, coat=.5, noise=3)
    k = fishlib.KINDS[kind]
    t = np.linspace(.24, .98, 140)
    mid, half_, _ = fishlib._shape(k, t)
    spine = mid + half_ * .06
    x = (t - .55) * CARP
    parts = [tube(list(zip(x, spine * CARP, [.16] * len(t))), [(.1 + .025 * math.cos(i * 2 * math.pi / 4)) * (1 - .45 * i / 140) for i in range(140)], bone, 12)]
    for i in range(3, 138, 4):
        for way, reach in ((1, .86), (-1, .9 if t[i] < .62 else .8)):
            end = half_[i] * reach * CARP
            lean, bend = .32 * end, .12 * end
            y0 = spine[i] * CARP
            pts = [(x[i] + lean * q + bend * q * q * 0, y0 + way * end * q, .16 - .1 * q + (.22 * math.sin(math.pi * q) if way < 0 and t[i] < .6 else .04 * q)) for q in np.linspace(0, 1, 8)]
            parts.append(tube(pts, [.032 - .02 * q for q in np.linspace(0, 1, 8)], bone, 6))
    parts.append(cut(whole("carpscaled") if kind == "carp" else whole(kind, state="raw" if raw else "fried"), .965, None))
    return group(parts)


def opened(gutted=True, washed=False):
    """The carp with its belly cut open; gutted: empty, with the dark membrane along the spine; washed: without it."""
    f = whole("carpscaled")
    core.bpy.context.view_layer.update()
    k = fishlib.KINDS["carp"]
    nu, nv, v = 60, 14, []
    for i in range(nu):
        q = i / (nu - 1)
        t = .27 + .42 * q
        mid, half_, _ = fishlib._shape(k, np.array([t]))
        low = float(mid[0] - half_[0]) * CARP
        gap = .62 * math.sin(math.pi * q) ** .6 + .02
        for j in range(nv):
            y = low + .05 + gap * j / (nv - 1)
            z, _ = core._cast((t - .55) * CARP, y)
            v.append(((t - .55) * CARP, y, z + .035 - .02 * math.sin(math.pi * j / (nv - 1))))
    h, w = 160, 480
    b, a = np.mgrid[0:1:h * 1j, 0:1:w * 1j]
    n = fbm(np.stack([a * 9, b * 3, a * 0], -1), 4, 4)
    dark, wall = (np.array([.62, .36, .30]), np.array([.78, .52, .45])) if washed else (np.array([.20, .045, .04]), np.array([.52, .22, .18]))
    img = dark + (wall - dark) * np.clip(b * 1.5 - .15 + (n - .5) * .6, 0, 1)[..., None]
    rib = np.exp(-((np.mod(a * 15 + b * .8, 1) - .5) / .12) ** 2) * np.clip((b - .2) / .2, 0, 1)
    img = img + (np.array([.86, .66, .58]) - img) * (rib * .5)[..., None]
    m = mat("cavity", "5a1c16", .18, .6, coat=.9, image=core.picture("cavity-washed" if washed else "cavity", img.clip(0, 1)))
    uv = [(i / (nu - 1), j / (nv - 1)) for i in range(nu) for j in range(nv)]
    parts = [f, mesh(v, core.grid_faces(nu, nv), m, uv=uv)]
    lip = [v[i * nv + nv - 1] for i in range(nu)]
    parts.append(tube(lip, [.03 + .05 * math.sin(math.pi * i / (nu - 1)) for i in range(nu)], inside(), 10))
    if not gutted:
        g = entrails()
        parts.append(put(g, -.55, -.72, .95, scale=.72))
    return group(parts)


def gillcover(gills_in=True):
    """The gutted carp with its gill cover lifted: red gills in the opening, or nothing but the hollow."""
    g = opened(True)
    core.bpy.context.view_layer.update()
    nu, nv, v = 40, 12, []
    for i in range(nu):
        t = 2 * i / (nu - 1) - 1
        y = (.004 + t * .088) * CARP
        right = .252 - .03 * t * t
        wide = .062 * math.sqrt(max(0, 1 - t * t)) + .002
        for j in range(nv):
            x = (right - .012 - wide * (1 - j / (nv - 1)) - .55) * CARP
            v.append((x, y, core._cast(x, y)[0] + .03))
    h, w = 260, 120
    b, a = np.mgrid[0:1:h * 1j, 0:1:w * 1j]
    n = fbm(np.stack([a * 3, b * 8, a * 0], -1), 4, 7)
    if gills_in:
        arch = np.mod(a * 3 + .12 * n, 1)
        img = np.array([.48, .03, .03]) + np.array([.34, .06, .05]) * (.5 + .5 * np.cos(b * 2 * np.pi * 46 + 9 * n))[..., None] * .7
        img = img * (1 - .65 * np.exp(-((arch - .02) / .1) ** 2))[..., None]
        bow = np.exp(-((arch - .16) / .05) ** 2) * .7
        img = img + (np.array([.90, .72, .62]) - img) * bow[..., None]
    else:
        img = np.array([.16, .05, .05]) + np.array([.30, .13, .11]) * (a * .8 + .4 * (n - .5))[..., None]
    m = mat("gillhole%d" % gills_in, "6a1412", .2, .6, coat=.9, image=core.picture("gillhole%d" % gills_in, img.clip(0, 1)))
    uv = [(j / (nv - 1), i / (nu - 1)) for i in range(nu) for j in range(nv)]
    lid = mat("gilllid", ((.4, "6a5a30"), (.6, "b59c5a")), .25, .6, coat=.8, noise=3)
    left = [v[i * nv] for i in range(nu)]
    rim = [v[i * nv + nv - 1] for i in range(nu)]
    parts = [g, mesh(v, core.grid_faces(nu, nv), m, uv=uv), tube(rim, [.035] * nu, inside(), 8)]
    parts.append(tube([(x - .05, y, z + .12) for x, y, z in left], [.02 + .11 * math.sin(math.pi * i / (nu - 1)) for i in range(nu)], lid, 12))   # the lid, folded towards the eye
    return group(parts)


def entrails():
    """Liver, roe, swim bladder and the green gall bladder."""
    parts = []
    liver = mat("liver", ((.4, "5a1810"), (.6, "8a3020")), .15, .6, coat=1, noise=2)
    for i, (x, y, s) in enumerate(((-1.0, 0, .5), (-.5, .2, .55), (-.1, -.15, .45))):
        parts.append(put(sphere(s, liver, scale=(1.3, .7, .5), n=28, rough=.15, roughscale=1.5, seed=i), x, y, .25))
    roe = mat("rawroe", ((.4, "c98a4a"), (.6, "e0b070")), .3, coat=.7, noise=14, bump=.4, bumpscale=26)
    parts.append(put(sphere(.5, roe, scale=(1.9, .6, .55), n=28, rough=.1), .9, .15, .28, turn=-8))
    bladder = mat("bladder", ((.4, "d9d4cc"), (.6, "f2efe8")), .12, .6, coat=1, trans=.2)
    for x, s in ((.35, .34), (.95, .42)):
        parts.append(put(sphere(s, bladder, scale=(1.3, .8, .8), n=28), x, .55, .4))
    parts.append(put(sphere(.2, mat("gall", "2c4a14", .1, .6, coat=1, trans=.2), scale=(1.5, .8, .8), n=24), -.55, -.35, .55))
    gut = mat("gut", ((.4, "b0705c"), (.6, "d0988a")), .2, coat=.9, noise=2)
    parts.append(tube(curve_points([(-.2, -.5, .3), (.4, -.35, .35), (.9, -.5, .3), (1.4, -.25, .35), (1.7, .1, .3)], 8), .12, gut, 14))
    return group(parts)


def gallbladder():
    return put(sphere(.32, mat("gall", "2c4a14", .1, .6, coat=1, trans=.2), scale=(1.5, .85, .85), n=32), 0, 0, .25)


def gills():
    """The red gills of one side, lifted out."""
    m = mat("gill", ((.4, "7a1410"), (.6, "b0302a")), .25, coat=.8, noise=3)
    parts = []
    for k in range(3):
        r = .7 + .16 * k
        arc = [(r * math.cos(t) * .7, r * math.sin(t), .12 + .1 * k) for t in np.linspace(-1.2, 1.2, 20)]
        parts.append(tube(arc, .05, mat("gillbow", "e0b8a4", .4, coat=.5), 8))
        fine = [(r * math.cos(t) * .7, r * math.sin(t), .12 + .1 * k) for t in np.linspace(-1.15, 1.15, 64)]
        for i, p in enumerate(fine):
            q = Vector((p[0], p[1], 0)).normalized()
            reach = .34 + .05 * math.sin(i * 2.4)
            parts.append(tube([p, (p[0] + reach * q.x, p[1] + reach * q.y, p[2] + .02 * math.sin(i * 1.7))], [.032, .02], m, 5))
    return group(parts)


def scales():
    """A few loose scales."""
    m = core.thin_glass("scaleglass", "e9dcb8", 2.4, .1, glow=.02)
    parts = []
    for i in range(9):
        d = [(.17 * (1 + .08 * math.cos(3 * a)) * math.cos(a), .15 * math.sin(a), .03 * math.cos(a)) for a in [2 * math.pi * k / 20 for k in range(20)]]
        parts.append(put(mesh(d + [(0, 0, .05)], [(k, (k + 1) % 20, 20) for k in range(20)], m), random.uniform(-1, 1), random.uniform(-.7, .7), .05, turn=random.random() * 360, tilt=random.uniform(-25, 25)))
    return group(parts)


def steak(state="raw", kind="raw"):
    return food.horseshoe(state, 1.0, 4, "carp", kind)


# ---------------------------------------------------------------- tools and vessels

def scaler():
    """Scaler: a wooden grip, a bowed steel head with rows of teeth."""
    parts = [tube(curve_points([(-2.2, 0, .25), (-1.4, 0, .3), (-.5, 0, .25), (0, 0, .2)], 8), [.2, .24, .26, .27, .27, .27, .26, .26, .26, .27, .28, .28, .27, .25, .22, .2, .18, .17, .16, .15, .14, .13, .12, .12, .12][:25], table.wood("walnut"), 18)]
    head = outline_solid(table.rounded_rect(1.5, .75, .3), .1, table.steel(), .03)
    parts.append(put(head, .8, 0, .2))
    for i in range(7):
        for j in range(4):
            parts.append(put(lathe([(.06, 0), (.03, .1), (.005, .16)], table.steel(), 8), .25 + i * .18, -.26 + j * .17, .29))
    return group(parts)


def pliers():
    """Flat tweezers for pin bones."""
    parts = []
    for s in (-1, 1):
        line = curve_points([(-2.0, s * .05, .2), (-1.2, s * .2, .22), (0, s * .28, .22), (1.2, s * .16, .2), (1.9, s * .04, .18)], 8)
        parts.append(put(tube(line, [.1] * len(line), table.steel(), 8), scale=(1, 1, .8)))
    parts.append(put(box(.4, .26, .16, table.steel(), .05), -1.95, 0, .12))
    return group(parts)


def turner():
    m = table.steel()
    blade = outline_solid(table.rounded_rect(1.9, 1.5, .2), .05, m, .02, 2, holes=[table.rounded_rect(1.1, .12, .05), ])
    return group([put(blade, 1.0, 0, .1), tube(curve_points([(.1, 0, .12), (-.8, 0, .35), (-1.6, 0, .5)], 6), .09, m, 12), tube([(-1.6, 0, .5), (-4.2, 0, .75)], .2, table.wood("walnut"), 16)])


def filled(kind):
    """A deep plate for coating: flour, beaten egg, crumbs, milk or nothing."""
    parts = [table.plate(2.6, "e9e0cc", "teal", deep=.5)]
    if kind == "egg":
        parts.append(put(lathe([(.01, .55), (1.75, .55), (1.95, .57)], mat("beatenegg", ((.4, "e0a52c"), (.6, "efc04a")), .1, coat=1, noise=2), 64)))
    elif kind:
        col = {"flour": ((.4, "e3dac6"), (.6, "f6f0e2")), "crumbs": ((.38, "c08a44"), (.5, "d9ab62"), (.62, "ecc98c"))}[kind]
        m = mat("heap" + kind, col, .9, .1, noise=14 if kind == "crumbs" else 2, detail=9, bump=.6, bumpscale=22 if kind == "crumbs" else 5)
        parts.append(put(food.slab(food.blob(3.7, 3.6, .06, 60), .42, m, 2.2, .1, 1.6, 22, .04, .05 if kind == "crumbs" else .02, 7, 3), 0, 0, .22))
    return group(parts)


def potted(water=True, fish=None):
    """A pot with broth; fish: two steaks in it, raw or poached, that the broth covers."""
    g = group([table.pot(2.9, 2.4, "steel")])
    if water:
        put(food.liquid("broth", 2.78, 1.75, wave=.03, clear=mat("potwater", "b59a58", .04, .6, trans=.5, ior=1.2, coat=.9, bump=.12, bumpscale=2)), 0, 0, 0).parent = g
        for kind, n in (("carrot", 5), ("onion", 3)):
            for i in range(n):
                a = random.random() * 6.28
                o = food.carrot_slice(.4) if kind == "carrot" else food.onion_ring(.5)
                put(o, 1.9 * math.cos(a) * random.random(), 1.9 * math.sin(a) * random.random(), 1.72, tilt=random.uniform(-9, 9)).parent = g
    for x, turn in ((-1.15, 8), (1.15, -6)) if fish else ():
        put(food.horseshoe("raw" if fish == "raw" else "poached", .75, 4, "carp", "raw" if fish == "raw" else "white"), x, -.7, 1.3, turn=turn).parent = g
    if fish:   # a thin veil of broth over them
        put(food.liquid("broth", 2.74, 1.87, wave=.05, clear=mat("brothveil", "b59a58", .04, .6, coat=.9, alpha=.28, bump=.12, bumpscale=2)), 0, 0, 0).parent = g
    return g


def fried(fat=True):
    g = group([table.pan(3.4, .85, "iron", True, turn=-24)])
    if fat:
        put(lathe([(.01, .16), (2.8, .16)], food.sauce_mat("butter"), 64)).parent = g
    return g


def coated(state):
    """A piece of fillet on its way to the schnitzel: plain, floured, in egg, in crumbs, fried."""
    out = food.blob(3.2, 1.9, .16, 90, 2.4, 5)
    if state in ("crumbs", "fried"):
        return food.breaded(3.3, 2.0, .66, "pale" if state == "crumbs" else "gold", 5, 320)
    m = {"plain": fleshside(ribs=False, name="plainpiece"), "flour": mat("floured", ((.36, "d9bfae"), (.5, "efe6d8"), (.62, "f7f2e8")), .9, .1, noise=3, detail=9, bump=.2, bumpscale=12),
         "egg": mat("egged", ((.4, "dfa02c"), (.6, "f0c860")), .12, .6, coat=1, noise=2)}[state]
    return food.slab(out, .55, m, 2.3, .1, 1.2, 22, .1, .02, 6, 5)


def aspic(full=True):
    g = group([table.bowl(2.4, 1.7, "dfe9e6", rim="teal")])
    if full:
        put(lathe([(.01, 1.35), (1.7, 1.35), (2.2, 1.36)], mat("aspictop", "d9a640", .05, .6, trans=.45, ior=1.2, coat=1), 64)).parent = g
        for i in range(5):
            put(food.carrot_star(.3), 1.2 * math.cos(i * 1.26), 1.2 * math.sin(i * 1.26), 1.3).parent = g
        put(food.egg_slice(.55), 0, 0, 1.32).parent = g
    return g


def aspicstage(stage):
    """The mould with a first set layer (dno), or with fish and vegetables laid on it (kousky)."""
    g = aspic(False)
    put(lathe([(.01, .5), (1.2, .5), (1.62, .51)], mat("aspiclayer", "d9a640", .05, .6, trans=.45, ior=1.2, coat=1), 64)).parent = g
    if stage == "kousky":
        for i in range(6):
            a = i * 1.05
            put(food.flake("tuna", .75, "poached"), .95 * math.cos(a), .95 * math.sin(a), .5, turn=i * 50).parent = g
        for i in range(5):
            put(food.carrot_star(.28), 1.35 * math.cos(i * 1.26 + .5), 1.35 * math.sin(i * 1.26 + .5), .56).parent = g
        put(food.egg_slice(.5), 0, 0, .62).parent = g
    return g


def turnedout():
    """The aspic turned out onto a plate, fish and vegetables seen within."""
    parts = [table.plate(4.0, "ece6da", "blue"), put(lathe(table.smooth_profile([(2.2, .16), (2.12, .5), (1.85, 1.0), (1.3, 1.4), (.7, 1.55), (.01, 1.57)], 6), mat("aspicbody", "cf9a36", .05, .6, trans=.35, ior=1.15, coat=1), 96))]
    for i in range(6):
        a = i * 1.05
        parts.append(put(food.flake("tuna", .7, "poached"), 1.3 * math.cos(a), 1.3 * math.sin(a), 1.14, turn=i * 50, tilt=18))
    for i in range(5):
        parts.append(put(food.carrot_star(.3), .8 * math.cos(i * 1.26 + .5), .8 * math.sin(i * 1.26 + .5), 1.48))
    parts.append(put(food.egg_slice(.55), 0, 0, 1.52))
    for i in range(7):
        a = i * .9 + .4
        parts.append(put(food.sprig("parsley", .8), 2.9 * math.cos(a), 2.9 * math.sin(a), .3, turn=i * 70))
    return group(parts)


def mouldover():
    """The mould upside down: its foot and its outer side up."""
    return put(table.bowl(2.4, 1.7, "dfe9e6", rim="teal"), 0, 0, 1.86, scale=(1, 1, -1))


def rolledskin():
    """A fried fish's skin, rolled up across the fish."""
    outer, inner = food.fishskin("trout", "roasted"), mat("skininside", ((.4, "cdbb93"), (.6, "eee2c6")), .4, coat=.3, noise=3)
    v = []
    turns, n, k = 2.2, 60, 14
    for i in range(n):
        a = i / (n - 1) * turns * 2 * math.pi
        r = .05 + .3 * i / (n - 1)
        for j in range(k):
            y = -.62 + 1.24 * j / (k - 1)
            q = 1 - .18 * (y / .62) ** 2 + .05 * math.sin(y * 9 + a)
            v.append((r * q * math.cos(a), y + .03 * math.sin(a * 3), .36 + r * q * math.sin(a)))
    roll = mesh(v, core.grid_faces(n, k), outer)
    v2 = [(x * .97, y, .36 + (z - .36) * .97) for x, y, z in v]
    return group([roll, mesh(v2, core.grid_faces(n, k), inner)])


def ladle():
    """A ladle, its bowl at the anchor."""
    m = table.steel()
    cup = lathe(table.smooth_profile([(.01, 0), (.5, .06), (.85, .4), (.95, .8), (.9, .8), (.8, .42), (.45, .12), (.01, .08)], 5), m, 48)
    return group([cup, tube(curve_points([(.9, 0, .75), (1.6, 0, 1.1), (3.0, 0, 1.4), (5.0, 0, 1.5)], 8), .1, m, 12)])


def thermometer(dipped=False):
    """A probe thermometer: a steel needle, a round dial; dipped: what of it is seen above the broth."""
    m = table.steel()
    face = mat("dialface", "f4efe2", .4, coat=.5)
    parts = [tube([(-1.7 if dipped else -3.2, 0, .3), (.2, 0, .3)], [.048 if dipped else .03, .07], m, 12), put(lathe([(.01, 0), (.85, 0), (.9, .12), (.85, .26), (.76, .26)], m, 64), 1.0, 0, .15), put(lathe([(.01, .24), (.76, .24)], face, 64), 1.0, 0, .15)]
    for i in range(9):
        a = math.radians(-220 + i * 32.5)
        parts.append(put(box(.14, .035, .02, table.iron()), 1.0 + .6 * math.cos(a), .6 * math.sin(a), .41, turn=math.degrees(a)))
    a = math.radians(15)
    parts.append(put(box(.62, .05, .03, mat("needle", "a8281c", .4)), 1.0 + .22 * math.cos(a), .22 * math.sin(a), .43, turn=15))
    return group(parts)


def sliced():
    """A scored fillet from its side, bent open: leaves of flesh, in each the bits of a cut bone, on the skin that is whole."""
    m = mat("sliceleaf", ((.38, "dba794"), (.5, "ecc7b4"), (.62, "f6e0d4")), .28, .5, coat=.6, noise=2.5, bump=.25, cells=3)
    bone = mat("cutbone", "fff8ea", .3, coat=.5)
    parts, n, r = [], 17, 5.2
    for i in range(n):
        deg = -31 + 62 * i / (n - 1)
        a = math.radians(deg)
        leaf = [food.slab([(-.12, -.05), (.12, -.05), (.14, .9), (.13, 1.75), (-.13, 1.75), (-.14, .9)], .5, m, 6, .03, 2, 10, 0, .01, 6, i)]
        leaf += [put(sphere(.055, bone, scale=(1.5, .8, .5), n=16), 0, y, .5, turn=30) for y in (.95 + .05 * math.sin(i * 2.1), 1.2 + .05 * math.sin(i * 1.3))]
        parts.append(put(group(leaf), r * math.sin(a), r * math.cos(a) - r, 0, turn=-deg))
    arc = [math.radians(-33 + 66 * i / 60) for i in range(61)]
    band = [((r - .2) * math.sin(a), (r - .2) * math.cos(a) - r) for a in arc] + [((r + .02) * math.sin(a), (r + .02) * math.cos(a) - r) for a in reversed(arc)]
    parts.append(food.slab(np.array(band), .54, food.fishskin("carp", "raw"), 4, .03, 1, 30, 0, .01, 6, 3, side=food.fishskin("carp", "raw")))
    return group(parts)


def ground(kind):
    """What everything stands on, larger than the view: a white cloth, a dark hob with a ring that glows."""
    if kind == "ubrus":
        return group([table.boards("oak", 20, 4.2), table.cloth("damask", 19, 17, folds=.1)])
    parts = [box(20, 18, .4, mat("hob", "15191b", .62, .2), .02)]
    put(parts[0], 0, 0, -.4)
    for r, col, glow in ((3.1, "d8481c", 3.0), (2.6, "c23c16", 2.2), (2.1, "b03612", 1.8)):
        ring = mat("glow%.1f" % r, col, .6)
        s = ring.node_tree.nodes["Principled BSDF"]
        s.inputs["Emission"].default_value = (*core.rgb(col)[:3], 1)
        s.inputs["Emission Strength"].default_value = glow
        parts.append(put(table.torus(r, .05, ring), 0, 0, .01, scale=(1, 1, .2)))
    return group(parts)


def trout(part):
    """The fried trout that is boned at table: whole, its upper fillet, what lies below, the frame."""
    if part == "whole":
        return fishlib.fish("trout", "fried", 5.6, seed=3)
    line = outline("trout", .25, .96) * (5.6 / CARP)
    if part == "upper":
        return food.slab(line, .4, food.fishskin("trout", "roasted"), 2.3, .05, .9, 22, .08, .01, 6, 3, side=food.flakes("white", "poached", 12, 1))
    o = food.slab(line, .36, food.flakes("white", "poached", 14, 2), 3, .05, .9, 20, .05, .02, 6, 3, side=food.fishskin("trout", "roasted"))
    ends = cut(fishlib.fish("trout", "fried", 5.6, seed=3), None, .25, inside(False))
    tail = cut(fishlib.fish("trout", "fried", 5.6, seed=3), .96, None, inside(False))
    return group([o, ends, tail] if part == "lower" else [o])


THINGS = {
    "kapr": lambda: whole(), "kapr-rub": lambda: whole(over=True), "kapr-ocisteny": lambda: whole("carpscaled"), "kapr-ocisteny-rub": lambda: whole("carpscaled", True),
    "kapr-rozriznuty": lambda: opened(False), "kapr-vykuchany": lambda: opened(True), "kapr-hlava": lambda: cut(whole("carpscaled"), None, .25), "kapr-ocas": lambda: cut(whole("carpscaled"), .9, None),
    "kapr-trup": lambda: cut(whole("carpscaled"), .25, .9), "kapr-pulka-maso": lambda: half(), "kapr-pulka-pater": lambda: half(spine=True), "kapr-pulka-kuze": lambda: half(skin=True),
    "kapr-filet-maso": lambda: fillet(), "kapr-filet-kuze": lambda: fillet(True), "kapr-filet-prorezany": lambda: fillet(scored=34), "kapr-kostra": lambda: frame(),
    "pstruh": lambda: whole("trout"), "pstruh-rub": lambda: whole("trout", True), "pstruh-peceny": lambda: trout("whole"), "pstruh-filet-horni": lambda: trout("upper"),
    "pstruh-filet-dolni": lambda: trout("lower"), "pstruh-kostra": lambda: frame("trout", False),
    "podkova-syrova": lambda: steak(), "podkova-pecena": lambda: steak("roasted", "white"), "podkova-varena": lambda: steak("poached", "white"),
    "vnitrnosti": entrails, "zlucnik": gallbladder, "zabry": gills, "supiny": scales,
    "rez-syrovy": lambda: coated("plain"), "rez-mouka": lambda: coated("flour"), "rez-vejce": lambda: coated("egg"), "rez-strouhanka": lambda: coated("crumbs"), "rez-smazeny": lambda: coated("fried"),
    "nuz": lambda: table.knife(6.0), "skrabka": scaler, "pinzeta": pliers, "obracecka": turner, "lzice": lambda: table.spoon(5.6), "vidlicka": lambda: table.fork(5.6), "jidelni-nuz": lambda: table.tableknife(5.6),
    "prkno": lambda: table.board(11, 6.6, "pale", False, .5, .5), "panev": lambda: fried(False), "panev-tuk": fried, "hrnec": lambda: potted(False), "hrnec-voda": potted, "poklice": lambda: table.potlid(2.9, "steel"),
    "talir": lambda: table.plate(4.0, "ece6da", "blue"), "misa": lambda: table.bowl(2.4, 1.6, "ece6da", rim="teal"), "talir-mouka": lambda: filled("flour"), "talir-vejce": lambda: filled("egg"),
    "talir-strouhanka": lambda: filled("crumbs"), "forma": lambda: aspic(False), "forma-aspik": aspic, "citron": lambda: food.lemon_half(.9), "sul": lambda: table.bowl(1.0, .7, "e9e0cc", inside="f7f4ec", rim="copper"),
    "kapr-vymyty": lambda: opened(True, True), "kapr-filet-smazeny": lambda: friedfillet(), "prorez": sliced, "naberacka": ladle, "teplomer": thermometer, "teplomer-ponoreny": lambda: thermometer(True),
    "kapr-zabry": lambda: gillcover(True), "kapr-bez-zaber": lambda: gillcover(False), "kustky": finebones, "hrnec-ryba": lambda: potted(fish="raw"), "hrnec-ryba-varena": lambda: potted(fish="done"),
    "forma-dnem": mouldover, "svitek": rolledskin,
    "uterka": lambda: table.cloth("check", 5.2, 3.8, folds=.3), "forma-dno": lambda: aspicstage("dno"), "forma-kousky": lambda: aspicstage("kousky"), "aspik": turnedout,
    "ubrus": lambda: ground("ubrus"), "sporak": lambda: ground("sporak"), "cejn": lambda: whole("bream"),
} | tools.TOOLS
GROUNDS = {"ubrus": 70, "sporak": 70}   # of these the middle, 18 x 14 units, is rendered at so many pixels a unit
SMALLER = {"prkno": .66} | dict.fromkeys("panev panev-tuk hrnec hrnec-voda hrnec-ryba hrnec-ryba-varena forma-dnem poklice talir talir-mouka talir-vejce talir-strouhanka misa forma forma-aspik forma-dno forma-kousky aspik uterka pekac plech mrizka rybi-hrnec zapekaci-misa kastrol".split(), .5)   # share of the usual scale at which a large thing is rendered


def seen(o):
    """Left, low, right, high of a thing on the film's plane, units, and its own width along x."""
    core.bpy.context.view_layer.update()
    e = math.radians(HIGH)
    pts, dg = [], core.bpy.context.evaluated_depsgraph_get()
    for x in core.tree(o):
        if x.type == "MESH":
            me = x.evaluated_get(dg).to_mesh()
            pts += [x.matrix_world @ v.co for v in me.vertices]
    p = np.array(pts)
    up = p[:, 1] * math.sin(e) + p[:, 2] * math.cos(e)
    return p[:, 0].min(), up.min(), p[:, 0].max(), up.max()


def make(name, look):
    core.start(3)
    o = THINGS[name]()
    l, b, r, t = (-9, -7, 9, 7) if name in GROUNDS else (v + q for v, q in zip(seen(o), (-.06, -.06, .06, .06)))
    scale = (GROUNDS.get(name) or UNIT * SMALLER.get(name, 1)) * (.25 if look else 1)
    w, h = int((r - l) * scale), int((t - b) * scale)
    e = math.radians(HIGH)
    up = Vector((0, math.sin(e), math.cos(e)))
    mid = Vector(((l + r) / 2, 0, 0)) + up * ((b + t) / 2)
    core.camera(mid + Vector((0, -math.cos(e), math.sin(e))) * 40, mid, ortho=(r - l) if w >= h else (t - b))
    core.evening(1.0)
    core.scene.view_settings.exposure = .45
    if "steel" in core._materials:   # a bright sky for metal to mirror
        core.area(mid + Vector((-3, 6, 13)), mid, 16, 600, "eef2f0")
        shader = core._materials["steel"].node_tree.nodes["Principled BSDF"]
        for link in list(shader.inputs["Base Color"].links) + list(shader.inputs["Roughness"].links):
            core._materials["steel"].node_tree.links.remove(link)
        shader.inputs["Base Color"].default_value, shader.inputs["Roughness"].default_value = (.62, .64, .64, 1), .38
    for m in bpy.data.materials:   # light inside a surface takes time and shows little
        s = m.node_tree and m.node_tree.nodes.get("Principled BSDF")
        if s:
            s.inputs["Subsurface"].default_value = 0
    folder = os.path.join(core.BUILD, "film") if look else OUT
    os.makedirs(folder, exist_ok=True)
    core.scene.render.film_transparent = True
    png = os.path.join(core.BUILD, name + ".png")
    core.save(core.render_linear(w, h, 5), png, alpha=True)
    path = os.path.join(folder, name + ".webp")
    subprocess.run(["cwebp", "-quiet", "-q", "84", "-alpha_q", "90", "-m", "6", png, "-o", path], check=True)
    os.remove(png)
    if not look:
        note(name, w, h, round(-l * scale), round(t * scale), round((r - l - .12) * scale), scale)


def note(name, w, h, x, y, length, scale):
    """Keeps the line of a thing in the list of all."""
    path = os.path.join(OUT, "veci.txt")
    lines = {}
    if os.path.exists(path):
        with open(path, encoding="utf-8") as f:
            lines = {ln.split()[0]: ln for ln in f if ln.strip() and ln[0] != "#"}
    lines[name] = f"{name} {name}.webp {w} {h} {x} {y} {length} {scale:.0f}\n"
    with open(path, "w", encoding="utf-8") as f:
        f.write("# name, file, width, height, anchor x y from the left top corner, length of the thing, pixels of one unit (3.5 cm)\n")
        f.writelines(lines[n] for n in THINGS if n in lines)


def main(args):
    look = "look" in args
    names = [n for n in args if n != "look"]
    if names == ["all"]:
        names = [n for n in THINGS if not os.path.exists(os.path.join(OUT, n + ".webp"))]
    for n in names:
        try:
            make(n, look)
            print("DONE", n, flush=True)
        except Exception as e:  # one bad thing must not stop the rest
            print("FAILED", n, repr(e), flush=True)


main(core.arguments())
