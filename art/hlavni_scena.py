"""The kitchen by the pond at dusk: one room, a thing for every button of the main screen.

Lengths in decimetres. Things are put by where they are seen: at_table(px, py) and at_wall(px, py) give the point of the
table top or of a wall plane behind a pixel of the 800 x 600 screen, so that the picture fits the table of positions.
build() returns the moving parts; pose(parts, button, phase) brings one of them into a phase 0 … 1 of its loop.
"""
import math
import os
import random
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import bpy  # noqa: E402
from mathutils import Vector  # noqa: E402

from lib import core, fish as fishlib, food, table  # noqa: E402
from lib.core import (area, box, curve_points, group, lathe, mat, mesh, outline_solid, put, rgb, smooth_profile, sphere, tube)  # noqa: E402

EYE = Vector((0, 0, 15.6))
PITCH = math.radians(14.5)
FOCAL = 300 / math.tan(math.radians(22.5))   # pixels of the 800 x 600 screen
TABLE = 7.4
WALL = 36.0
S = .35                                      # dish units -> decimetres


def ray(px, py):
    """Direction of the sight line through a screen pixel (y forward, z up)."""
    x, u = (px - 400) / FOCAL, (300 - py) / FOCAL
    return Vector((x, math.cos(PITCH) + u * math.sin(PITCH), -math.sin(PITCH) + u * math.cos(PITCH)))


def at_height(px, py, z):
    d = ray(px, py)
    return EYE + d * ((z - EYE.z) / d.z)


def at_table(px, py):
    return at_height(px, py, TABLE)


def at_wall(px, py, depth=WALL):
    d = ray(px, py)
    return EYE + d * (depth / d.y)


def scale_at(p):
    """Decimetres per screen pixel at a point."""
    return (p - EYE).dot(ray(400, 300).normalized()) / FOCAL


def stand(o, px, py, width_px=None, width=None, turn=0, z=None):
    """Stands a thing on the table with its foot at (px, py); width_px scales its own width to so many pixels."""
    p = at_table(px, py) if z is None else at_height(px, py, z)
    k = S if width_px is None else width_px * scale_at(p) / width
    put(o, p.x, p.y, p.z, turn, scale=k)
    return o


# ---------------------------------------------------------------- the room

def plaster():
    return mat("plaster", ((.3, "4a4536"), (.5, "544c3b"), (.7, "5f5643")), .85, .2, noise=.35, detail=8, bump=.25, bumpscale=2.5)


def room():
    w = plaster()
    mesh([(-30, WALL, 0), (30, WALL, 0), (30, WALL, 30), (-30, WALL, 30)], [(0, 1, 2, 3)], w, False)
    floor = table.wood("dark")
    mesh([(-40, -6, 0), (40, -6, 0), (40, WALL, 0), (-40, WALL, 0)], [(0, 1, 2, 3)], floor, False)
    # table top
    back = at_table(400, 312).y
    n = 7
    front = 6.0
    step = (back - front) / n
    m = table.wood("oak")
    for i in range(n):
        o = box(46, step - .06, .7, m, .07)
        put(o, random.uniform(-6, 6), front + step * (i + .5), TABLE - .7 + random.uniform(-.015, 0))
    box(46, .4, 1.0, table.wood("dark"), .05, at=(0, back - .5, TABLE - 1.7))
    # tiled strip behind the sideboard, wooden beam at the top
    tile = mat("tile", ((.35, "0f3a40"), (.5, "15484e"), (.65, "1d585c")), .16, .5, coat=.7, noise=.5)
    z0, z1 = at_wall(400, 300).z, at_wall(400, 214).z
    size = 1.45
    rows = int((z1 - z0) / size) + 1
    tiles = []
    for r in range(rows):
        for c in range(-9, 10):
            o = box(size - .07, .1, size - .07, tile, .05)
            put(o, c * size, WALL - .08 + random.uniform(-.012, .012), z1 - (r + 1) * size, roll=random.uniform(-.4, .4))
            tiles.append(o)
    group(tiles)
    box(60, .25, .3, table.wood("walnut"), .06, at=(0, WALL - .1, z1))


def sideboard():
    """Cupboard along the back wall whose top carries the salad bowl; drawers with copper knobs."""
    top = at_wall(600, 272, 33.2).z
    m, d = table.wood("walnut"), table.wood("dark")
    left, right = at_wall(140, 300, 33).x, at_wall(712, 300, 33).x
    box(right - left + .6, 4.4, .35, m, .08, at=((left + right) / 2, 34.0, top - .35))
    box(right - left, 3.8, top - .35, d, .05, at=((left + right) / 2, 34.2, 0))
    n = 8
    for i in range(n):
        x = left + (right - left) * (i + .5) / n
        box((right - left) / n - .22, .2, 1.35, m, .06, at=(x, 32.25, top - 2.0))
        put(sphere(.17, table.copper(), n=16), x, 32.0, top - 1.35)
        box((right - left) / n - .22, .2, 3.6, m, .06, at=(x, 32.25, top - 5.9))
    return top


def shelf(px0, px1, py, depth=1.9):
    """Wall shelf whose top is seen at py, with brackets."""
    a, b = at_wall(px0, py, WALL - depth * .5), at_wall(px1, py, WALL - depth * .5)
    z = a.z
    box(b.x - a.x, depth, .28, table.wood("walnut"), .06, at=((a.x + b.x) / 2, WALL - depth / 2, z - .28))
    for x in (a.x + .6, b.x - .6):
        br = outline_solid([(0, 0), (depth * .8, 0), (.15, -1.1), (0, -1.2)], .18, table.copper(), .03)
        put(br, x, WALL - .02, z - .28, tilt=90, turn=-90)
    return z


def window():
    """Window on the pond: sky, far trees, water with the reflection, a frame of old wood."""
    x0, x1 = at_wall(14, 200).x, at_wall(118, 200).x
    z0, z1 = at_wall(60, 322).z, at_wall(60, 112).z
    cx, cz, w, h = (x0 + x1) / 2, (z0 + z1) / 2, x1 - x0, z1 - z0
    mesh([(x0, WALL - .03, z0), (x1, WALL - .03, z0), (x1, WALL - .03, z1), (x0, WALL - .03, z1)], [(0, 1, 2, 3)], pond_material(), False, uv=[(0, 0), (1, 0), (1, 1), (0, 1)])
    fr = mat("windowframe", ((.35, "4a3420"), (.65, "7a5a38")), .45, noise=2, stretch=(3, 3, .3), bump=.15, coat=.2)
    for x in (x0 - .12, x1 + .12):
        box(.42, .5, h + .6, fr, .06, at=(x, WALL - .2, z0 - .3))
    for z in (z0 - .3, z1 - .1):
        box(w + .7, .5, .4, fr, .06, at=(cx, WALL - .2, z))
    box(.2, .3, h, fr, .04, at=(cx, WALL - .18, z0))
    box(w, .3, .18, fr, .04, at=(cx, WALL - .18, cz + h * .12))
    box(w + 1.6, 1.7, .26, fr, .06, at=(cx, WALL - .85, z0 - .5))
    return Vector((cx, WALL, z0 - .24)), w, h


def pond_pixels(w=512, h=768, moon=(.68, .82)):
    import numpy as np
    y, x = np.mgrid[0:1:complex(h), 0:1:complex(w)]
    hor = .40
    sky = np.zeros((h, w, 3))
    t = np.clip((y - hor) / (1 - hor), 0, 1)[..., None]
    low, mid_, high = np.array([.98, .56, .20]), np.array([.17, .40, .38]), np.array([.03, .135, .15])
    sky = np.where(t < .45, low + (mid_ - low) * (t / .45), mid_ + (high - mid_) * ((t - .45) / .55))
    n = core.fbm(np.stack([x * 3, y * 14, np.zeros_like(x)], -1), 4, 3)
    sky = sky + (np.clip((n - .52) / .2, 0, 1) * np.exp(-((y - .58) / .1) ** 2))[..., None] * np.array([.25, .10, .02])
    d = np.hypot((x - moon[0]) * w / h, y - moon[1])
    sky = sky + (np.clip((.028 - d) / .004, 0, 1) * .75 + .1 * np.exp(-(d / .06) ** 2))[..., None] * np.array([1, .93, .75])
    trees = hor + .012 + .05 * core.fbm(np.stack([x[0] * 9, np.zeros(w), np.ones(w)], -1), 4, 8) + .05 * np.exp(-((x[0] - .05) / .2) ** 2)
    pic = sky.copy()
    pic[y < trees[None, :]] = (.018, .062, .062)
    yy = (2 * hor - y)
    wob = (core.fbm(np.stack([x * 5, y * 60, np.zeros_like(x)], -1), 3, 5) - .5) * .05 * np.clip((hor - y) / hor, 0, 1) * 2
    xi = np.clip(((x + wob) * w).astype(int), 0, w - 1)
    yi = np.clip((yy * h).astype(int), 0, h - 1)
    water = pic[yi, xi] * .72 + np.array([.01, .04, .05])
    rip = core.fbm(np.stack([x * 8, y * 90, np.ones_like(x)], -1), 3, 9)
    water = water * (.85 + .3 * rip[..., None])
    pic = np.where((y < hor)[..., None], water, pic)
    reeds = np.zeros((h, w))
    rng = np.random.default_rng(4)
    for _ in range(46):
        x0 = rng.choice([rng.uniform(0, .3), rng.uniform(.82, 1)])
        top = rng.uniform(.22, .52)
        lean = rng.uniform(-.06, .06)
        yy2 = np.linspace(0, top, 300)
        xs = x0 + lean * (yy2 / top) ** 2
        for a, b in zip(xs, yy2):
            i, j = int(b * h), int(a * w)
            wd = max(1, int(2.5 * (1 - b / top)) + (3 if .8 < b / top < .95 and lean > 0 else 0))
            reeds[i:i + 2, max(0, j - wd):j + wd] = 1
    pic[reeds > 0] = (.012, .045, .045)
    return np.clip(pic, 0, 1)


def pond_material():
    im = core.picture("pond", pond_pixels())
    m = bpy.data.materials.new("pond")
    m.use_nodes = True
    nt = m.node_tree
    t = nt.nodes.new("ShaderNodeTexImage")
    t.image = im
    e = nt.nodes.new("ShaderNodeEmission")
    e.inputs[1].default_value = 1.5
    nt.links.new(t.outputs[0], e.inputs[0])
    nt.links.new(e.outputs[0], nt.nodes["Material Output"].inputs[0])
    return m


# ---------------------------------------------------------------- the things

def door():
    a, b = at_wall(705, 40), at_wall(806, 40)
    w, h = b.x - a.x, at_wall(750, 34).z
    fr = table.wood("walnut", "z")
    box(.55, .7, h + .5, fr, .08, at=(a.x - .2, WALL - .2, 0))
    box(w + 1.2, .7, .6, fr, .08, at=((a.x + b.x) / 2, WALL - .2, h))
    outside = mat("dooroutside", "0d3238", emit="1c5e68", emit_strength=1.4)
    mesh([(a.x, WALL - .05, 0), (b.x, WALL - .05, 0), (b.x, WALL - .05, h), (a.x, WALL - .05, h)], [(0, 1, 2, 3)], outside, False)
    dm = mat("doorwood", ((.35, "3a2112"), (.5, "593619"), (.65, "714a26")), .42, noise=2.2, stretch=(3, 3, .25), detail=10, bump=.2, coat=.2)
    parts = [box(w, .35, h, dm, .06)]
    for z0, z1 in ((1.2, h * .42), (h * .47, h * .94)):
        for x in (-w * .24, w * .24):
            parts.append(put(box(w * .36, .12, z1 - z0, dm, .08), x, -.2, z0))
    kn = [put(sphere(.26, table.brass(), n=20), -w * .4, -.42, h * .45), put(box(.3, .06, 1.1, table.brass(), .05), -w * .4, -.2, h * .45 - .55)]
    leaf = group([o for o in parts + kn])
    for o in leaf.children:
        o.location.x -= w / 2
    put(leaf, b.x, WALL - .35, 0, turn=0)
    return leaf


def plaque():
    """Copper-framed board with an open book and a fish on it."""
    p = at_wall(66, 52)
    w, h = at_wall(112, 52).x - at_wall(22, 52).x, at_wall(66, 8).z - at_wall(66, 92).z
    objs = []
    fr = outline_solid(table.rounded_rect(w, h, .35), .3, table.copper(), .1, holes=[table.rounded_rect(w - .8, h - .8, .2)])
    bd = outline_solid(table.rounded_rect(w - .7, h - .7, .2), .1, mat("plaqueboard", "0c2d32", .3, coat=.5), .02)
    objs += [fr, bd]
    page = mat("page", "efe3c6", .8, noise=4)
    book = []
    for s in (-1, 1):
        v, n = [], 14
        for i in range(n):
            u = i / (n - 1)
            for yy in (-1, 1):
                v.append((s * u * w * .34, yy * h * .27, .3 + .1 * math.sin(u * 3) - .12 * u * u))
        book.append(mesh(v, core.grid_faces(n, 2), page))
        for r in range(5):
            book.append(put(box(w * .22, .05, .01, mat("ink", "43301f", .8), 0), s * w * .17, h * (.15 - r * .08), .4))
    objs += book
    leaf = mesh([(x * w * .33, y * h * .265, .04 + .05 * math.sin(x * 3)) for x in [i / 8 for i in range(9)] for y in (-1, 1)], core.grid_faces(9, 2), page)
    fi = put(fishicon(.62, mat("inkred", "b8402a", .6), .02), w * .17, 0, .12)
    pivot = group([leaf, fi])
    put(pivot, 0, 0, .36)
    g = group(objs + [pivot])
    put(g, p.x, WALL - .12, p.z, tilt=90)
    return pivot


def tub():
    """Wooden tub with hoops, water and a live carp."""
    stave = table.wood("oak", "z")
    parts = []
    n = 22
    for i in range(n):
        a = 2 * math.pi * i / n
        v = []
        for z, r in ((0, 2.6), (2.6, 3.05)):
            for da, rr in ((-.46, r), (.46, r), (.46, r - .28), (-.46, r - .28)):
                q = a + da * 2 * math.pi / n
                v.append((rr * math.cos(q), rr * math.sin(q), z))
        o = mesh(v, [(0, 1, 5, 4), (1, 2, 6, 5), (2, 3, 7, 6), (3, 0, 4, 7), (4, 5, 6, 7)], stave, False)
        parts.append(o)
    for z, r in ((.55, 2.72), (1.9, 2.95)):
        parts.append(lathe([(r - .03, z - .16), (r + .05, z - .16), (r + .07, z + .16), (r, z + .16)], table.copper(), 64))
    g = group(parts)
    w = food.liquid("vinegar", 2.72, 2.0, wave=.05, clear=mat("tubwater", "2c6a6a", .02, .6, trans=.72, ior=1.2, coat=.6, bump=.25, bumpscale=1.6))
    bottom = put(lathe([(.01, 1.2), (2.7, 1.2)], mat("tubbottom", "4a3a22", .8), 40))
    w.parent = g
    bottom.parent = g
    carp = fishlib.fish("carp", "raw", 4.1, seed=5, lying=False)
    holder = group([carp])
    holder.parent = g
    put(carp, -.1, 0, 2.02)
    return g, holder, w


def basket():
    """Wicker basket heaped with potatoes, carrots, onion and parsley."""
    wick = mat("wicker", ((.35, "6b4420"), (.65, "a8763c")), .6, noise=4, bump=.3)
    parts = []
    n = 34
    for row in range(9):
        z = .16 + row * .21
        r = 2.3 + .065 * row
        pts = []
        for k in range(n * 4):
            a = 2 * math.pi * k / (n * 4)
            rr = r + .09 * math.sin(a * n / 2 + math.pi * (row % 2))
            pts.append((rr * math.cos(a) * 1.25, rr * math.sin(a), z))
        pts.append(pts[0])
        parts.append(tube(pts, .11, wick, 6, False))
    for k in range(n):
        a = 2 * math.pi * k / n
        parts.append(tube([(2.25 * math.cos(a) * 1.25, 2.25 * math.sin(a), 0), (2.85 * math.cos(a) * 1.25, 2.85 * math.sin(a), 1.95)], .07, wick, 6))
    parts.append(tube([(2.88 * math.cos(a) * 1.25, 2.88 * math.sin(a), 2.0 + .05 * math.sin(a * 20)) for a in [2 * math.pi * k / 120 for k in range(121)]], .17, wick, 8, False))
    parts.append(put(lathe([(.01, .7), (2.5, .7)], mat("basketin", "1c120a", .9), 40), scale=(1.25, 1, 1)))
    g = group(parts)
    items = []
    spots = [(-1.9, -.4, 1.5), (-.9, -1.2, 1.5), (.2, -1.4, 1.5), (-1.2, .7, 1.5), (0, .3, 1.7), (-.7, -.2, 2.3)]
    skin = mat("potatoskin", ((.36, "7c5528"), (.5, "a87a40"), (.64, "c99c5c")), .65, noise=2.2, detail=8, bump=.25, bumpscale=8)
    for i, (x, y, z) in enumerate(spots):
        o = food.potato("boiled", .95, seed=i + 3)
        o.data.materials[0] = skin
        put(o, x, y, z - .5, turn=i * 50)
        items.append(o)
    for i, (x, y, t) in enumerate(((1.7, -.9, 25), (2.0, -.1, 8), (1.7, .6, -14))):
        t_ = [k / 20 for k in range(21)]
        c = tube([((q - .5) * 2.8, .08 * math.sin(q * 5), 0) for q in t_], [max(.05, .42 * (1 - q * .85)) for q in t_], food.carrot_mat(), 16)
        gr = put(food.sprig("parsley", 1.2), -1.7, 0, -.1)
        cg = group([c, gr])
        put(cg, x, y, 2.05, turn=t + 180, roll=-12)
        items.append(cg)
    on = sphere(.85, mat("onionskin", ((.4, "8a4a1a"), (.6, "c98a3c")), .35, coat=.5, noise=1.5, stretch=(3, 3, .3)), scale=(1, 1, .85), n=36)
    put(on, .6, 1.0, 2.2)
    items.append(on)
    pars = put(food.sprig("parsley", 2.1), -.2, 1.5, 2.1)
    items.append(pars)
    top = group(items)
    top.parent = g
    return g, items


def books():
    m = [("6a1f18", "d9b35e"), ("173f44", "c9a45c"), ("3a4a22", "d9b35e"), ("7a5226", "efe0b4"), ("26323a", "d08f50"), ("8a3a1c", "efe0b4"), ("1d4a40", "d9b35e"), ("4a1a22", "c9a45c"), ("5a4a2a", "d9b35e")]
    parts, x = [], 0
    for i, (c, g) in enumerate(m):
        w = random.uniform(.62, 1.0)
        h = random.uniform(2.5, 3.25)
        o = group([put(box(w, 1.7, h, mat("book" + c, ((.4, c), (.6, c)), .5, noise=6, bump=.15, bumpscale=18), .1), 0, 0, 0)]
                  + [put(box(w * .92, .02, .09, mat("gilt" + g, g, .3, metal=.8), 0), 0, -.86, h * q) for q in (.12, .2, .8, .88)]
                  + [put(box(w * .5, .02, h * .3, mat("gilt" + g, g, .3, metal=.8), .0), 0, -.855, h * .42)])
        put(o, x + w / 2, 0, 0)
        parts.append(o)
        x += w + .03
    g = group(parts)
    return g, parts, x


def fryingpan():
    p = table.pan(3.4, .85, "iron", True, turn=-18)
    fil = [put(food.fillet("white", "fried", 3.4, 1.5, .5, None, 4), -.3, .75, .14, turn=12), put(food.fillet("white", "fried", 3.2, 1.4, .5, None, 9), .2, -.95, .14, turn=-8)]
    oil = put(lathe([(.01, .16), (2.8, .16)], food.sauce_mat("butter"), 64))
    bub = []
    for i in range(26):
        a, q = random.random() * 6.28, math.sqrt(random.random()) * 2.6
        bub.append(put(sphere(.09, mat("bubble", "f6e2a0", .1, trans=.4, coat=1), n=10), q * math.cos(a), q * math.sin(a), .16))
    g = group([p, oil] + fil + bub)
    return g, fil, bub


def clock():
    p = at_wall(357, 121)
    r = (at_wall(388, 121).x - at_wall(326, 121).x) / 2
    objs = [lathe(smooth_profile([(r * .86, .1), (r * .9, .4), (r, .36), (r * 1.02, .1), (r, 0)], 5), table.copper(), 64), lathe([(.01, .12), (r * .9, .12)], mat("clockface", "efe4c8", .5, coat=.4), 64)]
    ink = mat("clockink", "2b1d12", .5)
    for k in range(12):
        a = math.radians(30 * k)
        objs.append(put(box(.11 if k % 3 else .17, .34 if k % 3 else .5, .03, ink, 0), math.sin(a) * r * .72, math.cos(a) * r * .72, .13, turn=-30 * k))
    hour = put(group([put(outline_solid([(-.09, -.2), (.09, -.2), (.07, r * .35), (0, r * .48), (-.07, r * .35)], .05, ink, .01), 0, 0, 0)]), 0, 0, .18, turn=-246)
    minute = put(group([put(outline_solid([(-.06, -.25), (.06, -.25), (.04, r * .6), (0, r * .7), (-.04, r * .6)], .05, ink, .01), 0, 0, 0)]), 0, 0, .24)
    cap = put(sphere(.13, table.brass(), n=16), 0, 0, .28)
    g = group(objs + [hour, minute, cap])
    put(g, p.x, WALL - .1, p.z, tilt=90)
    return hour, minute


def radio(z):
    """Wireless set of the fifties: round corners, cloth front, lit dial, two knobs."""
    a, b = at_wall(396, 200, WALL - 1), at_wall(520, 200, WALL - 1)
    w, h, d = b.x - a.x, 3.35, 1.8
    case = outline_solid(table.rounded_rect(w, h, .6), d, mat("radiowood", ((.35, "4a2410"), (.5, "6f3a1a"), (.65, "8a4f26")), .2, noise=2, stretch=(.3, 3, 3), detail=9, coat=.8), .14)
    cloth_ = outline_solid(table.rounded_rect(w - .7, h * .52, .3), .06, mat("radiocloth", ((.4, "a88652"), (.6, "c9a870")), .8, noise=9, bump=.4, bumpscale=30), .02)
    put(cloth_, 0, h * .16, d)
    slats = [put(box(w - .9, .07, .05, table.brass(), .01), 0, h * (.02 + .075 * i), d + .06) for i in range(5)]
    dial = put(outline_solid(table.rounded_rect(w * .52, h * .2, .1), .06, mat("dial", "ffd992", .3, emit="ffb24a", emit_strength=2.2), .02), 0, -h * .28, d)
    needle = put(box(.06, h * .19, .03, mat("needle", "a8200c", .4, emit="ff3a14", emit_strength=1.5), 0), 0, -h * .28, d + .09)
    marks = [put(box(.03, h * (.06 if i % 3 else .1), .02, mat("clockink", "2b1d12", .5), 0), (i - 6) * w * .038, -h * .25, d + .07) for i in range(13)]
    knobs = []
    for s in (-1, 1):
        k = lathe(smooth_profile([(.01, .34), (.3, .32), (.36, .2), (.4, 0)], 4), mat("bakelite", "1c100a", .2, coat=.8), 32)
        k2 = put(box(.06, .3, .03, table.brass(), 0), 0, .15, .33)
        kg = group([k, k2])
        put(kg, s * w * .37, -h * .28, d)
        knobs.append(kg)
    g = group([case, cloth_, dial, needle] + slats + marks + knobs)
    put(g, (a.x + b.x) / 2, WALL - .1, z + h / 2, tilt=90)
    return needle, knobs, w


def aquarium():
    """Glass bowl with water, pebbles, weed and two fish."""
    r = 2.6
    out = smooth_profile([(.01, 0), (1.3, .0), (2.0, .45), (r, 1.9), (2.35, 3.3), (1.75, 4.1), (1.95, 4.35)], 7)
    inn = [(max(.01, a - .07), z + (.07 if z < .5 else 0)) for a, z in reversed(out)]
    g = [lathe(out + inn, core.thin_glass("bowlglass", "e2f0ee"), 64)]
    wat = [(max(.01, a - .09), z + (.09 if z < .5 else 0)) for a, z in out if z < 3.5]
    g.append(lathe(wat + [(.01, wat[-1][1])], core.thin_glass("aquawater", "a8dcd4", 1.08, glow=.022), 64))
    peb = mat("pebble", ((.35, "6a5a44"), (.65, "b5a284")), .5, noise=1)
    for i in range(60):
        a, q = random.random() * 6.28, math.sqrt(random.random()) * 1.6
        g.append(put(sphere(random.uniform(.12, .22), peb, n=10, rough=.2), q * math.cos(a), q * math.sin(a), .22 + .1 * q * .6, scale=(1.2, 1, .7)))
    weed = mat("weed", ((.4, "1f5a24"), (.6, "3f8a36")), .4, translucent=.3)
    for i in range(7):
        x, y = random.uniform(-1.2, 1.2), random.uniform(.1, 1.0)
        pts = [(x + .18 * math.sin(t * 6 + i), y, .25 + t * random.uniform(1.8, 2.6)) for t in [k / 14 for k in range(15)]]
        g.append(tube(pts, [.1 * (1 - .7 * k / 14) for k in range(15)], weed, 5))
    f1 = group([fishlib.fish("goldfish", "raw", 2.3, seed=8, lying=False)])
    f2 = group([fishlib.fish("perch", "raw", 1.8, seed=9, lying=False)])
    bubbles = [sphere(.07, mat("airbubble", "dff6f6", .05, trans=.8, coat=1), n=10) for _ in range(4)]
    all_ = group(g + [f1, f2] + bubbles)
    return all_, f1, f2, bubbles


def photo_camera():
    body = box(3.0, 1.0, 1.9, mat("cameraleather", ((.4, "17130f"), (.6, "2a231c")), .55, noise=12, bump=.5, bumpscale=40), .16)
    parts = [body, put(box(3.02, 1.02, .42, table.steel(), .12), 0, 0, 1.62), put(box(.9, .8, .4, table.steel(), .1), 0, 0, 1.98)]
    tubec = lathe(smooth_profile([(.01, .05), (.45, .02), (.55, .1), (.62, .5), (.78, .52), (.8, .1), (.84, -.1), (.85, -.5)], 5), table.steel(), 48)
    put(tubec, 0, -.55, .85, tilt=90)
    lens = put(sphere(.52, mat("lens", "0a1a2a", .02, .8, coat=1), scale=(1, 1, .35), n=32), 0, -.95, .85, tilt=90)
    ring = put(table.torus(.72, .06, table.copper()), 0, -1.05, .85, tilt=90)
    flash = put(outline_solid(table.rounded_rect(.62, .5, .08), .1, mat("flashglass", "dfe9ea", .1, coat=1), .02), 1.05, -.52, 1.45, tilt=90)
    btn = put(lathe([(.01, .16), (.16, .15), (.18, 0)], table.brass(), 24), -1.05, 0, 2.04)
    win = put(box(.34, .06, .24, mat("finder", "0e2a36", .05, coat=1), .02), 0, -.42, 2.08)
    bulb = put(sphere(.2, mat("bulb", "fff2cc", emit="ffe6b0", emit_strength=0.0), n=16), 1.05, -.62, 1.45)
    g = group(parts + [tubec, lens, ring, flash, btn, win, bulb])
    strap = tube(curve_points([(-1.5, 0, 1.6), (-2.1, -.2, .9), (-2.0, -.9, .12), (-.9, -1.9, .08), (.4, -2.1, .08), (1.6, -1.6, .08), (2.1, -.6, .4), (1.5, 0, 1.6)], 8), .09, mat("strap", "4a2a14", .6), 6)
    strap.parent = g
    return g, btn, bulb


def crate():
    """Slatted crate of sea fish on ice, with a shell and a lemon."""
    w = table.wood("pale")
    parts = []
    for i in range(3):
        for s in (-1, 1):
            parts.append(put(box(6.4, .16, .55, w, .03), 0, s * 2.0, .1 + i * .62))
            parts.append(put(box(.16, 4.0, .55, w, .03), s * 3.2, 0, .1 + i * .62))
    for sx in (-1, 1):
        for sy in (-1, 1):
            parts.append(put(box(.3, .3, 2.0, w, .03), sx * 3.05, sy * 1.85, 0))
    ice = mat("ice", ((.4, "b5d6da"), (.6, "e6f4f4")), .12, .6, trans=.35, sss=.1, coat=.6, ior=1.3)
    iv, jf = food._cubelet()
    from mathutils import Matrix
    ts = []
    for _ in range(260):
        s = random.uniform(.14, .3)
        ts.append(Matrix.Translation((random.uniform(-2.9, 2.9), random.uniform(-1.8, 1.8), 1.3 + random.uniform(-.15, .3))) @ Matrix.Rotation(random.random() * 6, 4, "Z") @ Matrix.Rotation(random.random() * 6, 4, "X") @ Matrix.Diagonal((s, s * random.uniform(.7, 1.2), s * .8, 1)))
    parts.append(core.scatter(iv, jf, ts, ice, False))
    parts.append(put(box(6.2, 3.8, 1.2, ice, .05), 0, 0, .1))
    fishes = []
    for i, (k, L, x, y, t) in enumerate((("mackerel", 4.6, -.1, .95, 6), ("herring", 4.2, .2, .2, -4), ("mackerel", 4.4, -.2, -.65, 3))):
        f = fishlib.fish(k, "raw", L, seed=20 + i)
        h = group([f])
        put(h, x, y, 1.52, turn=t)
        fishes.append(h)
    n, m = 40, 16
    v = []
    for i in range(n):
        a = math.radians(-65 + 130 * i / (n - 1))
        for j in range(m):
            q = j / (m - 1)
            r = q * 1.05 * (1 + .03 * math.cos(i * 2 * math.pi / 3.3))
            v.append((r * math.sin(a), -r * math.cos(a), .38 * math.sin(q * 2.6) + .05 * math.cos(i * 2 * math.pi / 3.3) * q))
    sh = mesh(v, core.grid_faces(n, m), mat("shell", ((.35, "c9704a"), (.5, "e6b08a"), (.65, "f3dcc4")), .35, coat=.5, noise=1.4))
    put(sh, 2.2, -.9, 2.0, tilt=38, turn=20)
    lem = put(food.lemon_half(.6), -2.4, -1.15, 1.5, tilt=-35)
    g = group(parts + fishes + [sh, lem])
    return g, fishes, sh


def fishboard():
    b = table.board(7.4, 3.6, "pale", False, .42, .6)
    f = fishlib.fish("carp", "raw", 5.0, seed=31)
    put(f, -.35, .2, .42)
    kn = put(table.knife(4.6), .6, -1.35, .44, turn=4)
    par = put(food.sprig("parsley", .8), -3.0, -1.1, .42)
    lem = put(food.lemon_half(.62), 2.9, 1.0, .42)
    g = group([b, f, kn, par, lem])
    return g, f


def paintbox():
    m = table.wood("walnut")
    parts = [box(3.4, 2.3, .45, m, .06), put(box(3.1, 2.0, .06, mat("boxin", "1c120c", .8), 0), 0, 0, .42)]
    lid = put(group([box(3.4, .18, 2.1, m, .05), put(box(2.9, .02, 1.7, mat("pagep", "efe3c6", .8), 0), 0, -.1, .2), put(fishicon(1.15, mat("inkblue", "1d4a55", .6)), 0, -.13, 1.0, tilt=90)]), 0, 1.1, .4, tilt=-14)
    cols = ["b03a1c", "d9922c", "e6c84a", "4a7a2c", "1d5a6a", "26407a", "6a2a5a", "efe6d2"]
    for i, c in enumerate(cols):
        x, y = -1.15 + (i % 4) * .76, -.5 + (i // 4) * .85
        parts.append(put(lathe(smooth_profile([(.01, .05), (.2, .04), (.28, .0), (.33, .06), (.36, .0)], 4), mat("paint" + c, c, .2, coat=.8), 24), x, y, .46))
    handle = tube([(0, 0, 0), (1.5, 0, .02), (2.9, 0, .0)], [.1, .14, .05], mat("brushhandle", "7a1f16", .25, coat=.7), 12)
    fer = put(lathe([(.13, 0), (.14, .5), (.11, .5)], table.brass(), 16), 0, 0, 0, roll=-90)
    hair = tube([(-.45, 0, 0), (-.75, 0, 0), (-1.2, 0, .02)], [.12, .16, .01], mat("brushhair", ((.4, "2a1a10"), (.6, "5a3a20")), .6, noise=9, stretch=(1, 8, 8)), 14)
    paint = tube([(-.85, 0, 0), (-1.24, 0, .02)], [.13, .01], mat("paintb03a1c", "b03a1c", .2, coat=.8), 12)
    brush = group([handle, fer, hair, paint])
    g = group(parts + [lid])
    return g, brush


def fishicon(s, m, depth=.05):
    pts = curve_points([(-1, 0), (-.75, .3), (-.25, .46), (.3, .28), (.62, .1), (1.05, .42), (.96, 0), (1.05, -.42), (.62, -.1), (.3, -.28), (-.25, -.46), (-.75, -.3), (-1, 0)], 6)
    return outline_solid([(x * s, y * s) for x, y in pts[:-1]], depth, m, .012)


def microphone():
    st = [lathe(smooth_profile([(.01, .0), (.8, .0), (.82, .12), (.3, .24), (.12, .4), (.09, 2.6), (.16, 2.7), (.01, 2.75)], 5), table.brass(), 40)]
    head = sphere(.62, mat("micmesh", ((.4, "8a9294"), (.6, "c9cfcf")), .3, metal=1, bump=.8, bumpscale=18), scale=(.85, .85, 1.25), n=36)
    put(head, 0, 0, 3.35)
    ring = put(table.torus(.56, .06, table.copper()), 0, 0, 3.35)
    return group(st + [head, ring])


def calendar(p):
    """Leaf calendar beside the window."""
    w, h = 1.9, 2.7
    g = [box(w, .1, h, mat("calback", "6a1f18", .5), .04), put(box(w * .9, .06, h * .62, mat("page", "efe3c6", .8), .01), 0, -.07, .12), put(fishicon(.62, mat("inkblue", "1d4a55", .6)), 0, -.08, h * .8, tilt=90)]
    ink = mat("ink", "43301f", .8)
    for r in range(4):
        for c in range(5):
            g.append(put(box(.16, .02, .12, mat("calred", "b8402a", .6) if c == 4 else ink, 0), -w * .33 + c * w * .165, -.11, .3 + r * .36))
    return put(group(g), p.x, p.y, p.z)


def wine():
    b = table.bottle(8.6, 1.05)
    gl = put(thinned(table.wineglass(5.0, 1.15, None)), 2.3, -.9, 0)
    liquid = wineliquid()
    put(liquid, 2.3, -.9, 0)
    grapes = []
    gm = mat("grape", ((.4, "2a0f2c"), (.6, "5a2348")), .2, coat=.6, sss=.05)
    for i in range(16):
        a = i * 2.4
        q = .28 * math.sqrt(i)
        grapes.append(put(sphere(.36, gm, n=16), 3.9 + q * math.cos(a), -1.1 + q * math.sin(a) * .8, .35 + .28 * max(0, 1.4 - q)))
    return group([b, gl, liquid] + grapes), liquid


def thinned(g):
    for o in core.tree(g):
        if o.type == "MESH":
            o.data.materials[0] = core.thin_glass("thinglass", "eef6f4", 1.4)
    return g


def wineliquid():
    h, r = 5.0, 1.15
    hb = h * .44
    inn = smooth_profile([(r - .05, hb + (h - hb) * .5), (r * .8 - .06, hb + (h - hb) * .27), (.2, hb + .1), (0.01, hb + .06)], 6)
    zt = inn[0][1]
    return lathe([(.01, zt), (inn[0][0] - .012, zt)] + [(max(.01, a - .012), z) for a, z in inn[1:]], mat("winered", "9a1226", .05, trans=.35, ior=1.2, coat=.6), 48)


def saladbowl():
    b = table.bowl(2.9, 1.9, "e2d5b8", rim="copper")
    parts = [b]
    for i in range(9):
        a = i * 2.4
        parts.append(put(food.lettuce(1.7, seed=i), 1.5 * math.cos(a), 1.5 * math.sin(a), 1.35, turn=math.degrees(a), roll=-25))
    for i in range(5):
        a = i * 1.257 + .4
        parts.append(put(food.cherry_tomato(.5), 1.35 * math.cos(a), 1.2 * math.sin(a) - .2, 1.95))
    for i in range(7):
        a = i * .9 + 1
        parts.append(put(food.cucumber_slice(.62), 1.5 * math.cos(a) * .8, 1.4 * math.sin(a) * .8 - .2, 2.2, turn=50 * i, tilt=40, roll=30 * math.sin(i)))
    for i in range(4):
        parts.append(put(food.onion_ring(.6, "red"), .7 * math.cos(i * 1.7), .7 * math.sin(i * 1.7), 2.4, tilt=30 * i))
    parts.append(put(food.egg_half(.62), .2, -1.3, 2.0, tilt=-35))
    g = group(parts[1:])
    w = group([b, g])
    return w, g


def cloche():
    m = mat("silver", ((.3, "b9bdbb"), (.7, "dfe0da")), .12, metal=1.0, noise=1)
    tray = lathe(smooth_profile([(.01, .12), (2.9, .12), (3.1, .2), (3.5, .34), (3.55, .28), (3.0, 0), (.01, 0)], 5), m, 96)
    dome = [lathe(smooth_profile([(2.75, 0), (2.85, .06), (2.75, .2), (2.68, .9), (2.2, 1.85), (1.2, 2.4), (.3, 2.52), (.01, 2.54)], 7), m, 96), lathe(smooth_profile([(.1, 2.5), (.12, 2.75), (.34, 2.9), (.36, 3.1), (.16, 3.22), (.01, 3.22)], 5), table.copper(), 32)]
    d = group(dome)
    inside = [put(fishlib.fish("trout", "fried", 3.6, seed=40), 0, .1, .14), put(food.lemon_half(.5), 1.2, -.9, .14), put(food.sprig("parsley", .8), -1.3, -.8, .14)]
    put(d, 0, 0, .2)
    return group([tray, d] + inside), d


def projector():
    """Film projector: body, lens to the left, two reels above each other, a beam of light."""
    m = mat("projbody", ((.4, "12383d"), (.6, "1a4a50")), .32, coat=.6, noise=9, bump=.06, bumpscale=30)
    st = table.steel()
    parts = [box(2.6, 1.5, 2.5, m, .18), put(box(2.8, 1.7, .3, table.wood("walnut"), .08), 0, 0, -.05)]
    parts.append(put(lathe(smooth_profile([(.01, .9), (.36, .92), (.44, .85), (.44, .4), (.52, .36), (.52, 0)], 5), st, 40), -1.3, 0, 1.5, roll=-90))
    parts.append(put(sphere(.34, mat("projlens", "ffe9b8", .05, emit="ffdf9a", emit_strength=3.0), scale=(1, 1, .4), n=24), -2.22, 0, 1.5, roll=-90))
    for i in range(5):
        parts.append(put(box(.08, .06, .8, mat("vent", "06181a", .7), 0), .35 + i * .18, -.76, .5))
    parts.append(put(lathe([(.01, .1), (.28, .08), (.3, 0)], table.copper(), 32), -.55, -.76, 1.5, tilt=90))
    arms = [tube([(.6, 0, 2.4), (1.2, 0, 3.4), (1.7, 0, 4.0)], .14, st, 10), tube([(-.6, 0, 2.4), (-.8, 0, 3.2), (-1.0, 0, 3.9)], .14, st, 10)]
    reels = []
    for x, z, r, full in ((1.75, 4.1, 1.55, .55), (-1.25, 4.05, 1.4, .85)):
        rim = []
        for y in (-.22, .22):
            t = put(table.torus(r, .075, st, 72), 0, y, 0, tilt=90)
            rim.append(t)
            for k in range(5):
                a = 2 * math.pi * k / 5
                bar = put(box(r * .98, .05, .3, st, .03), r * .5 * math.cos(a), y, r * .5 * math.sin(a) - .0, roll=-math.degrees(a))
                rim.append(bar)
            hub = put(lathe([(.01, .05), (.36, .05), (.38, 0)], table.copper(), 32), 0, y, 0, tilt=90)
            rim.append(hub)
        film = put(lathe([(r * full, -.18), (r * full, .18), (.3, .18)], mat("film", ((.4, "1a0f0a"), (.6, "35221a")), .25, coat=.7, noise=1, stretch=(1, 1, 20)), 64), 0, 0, 0, tilt=90)
        rim.append(film)
        g = group(rim)
        put(g, x, -.35, z)
        reels.append(g)
    strip = tube([(1.2, -.35, 2.7), (.4, -.35, 2.55), (-.3, -.4, 2.5), (-.5, -.5, 1.9)], .05, mat("film", "24160f", .25), 6)
    return group(parts + arms + reels + [strip]), reels


def decor():
    """Hanging copper, garlic and herbs over the sideboard."""
    rail_l, rail_r = at_wall(176, 186), at_wall(318, 186)
    tube([(rail_l.x, WALL - .5, rail_l.z), (rail_r.x, WALL - .5, rail_l.z)], .09, table.brass(), 10)
    xs = [rail_l.x + (rail_r.x - rail_l.x) * q for q in (.07, .24, .42, .6, .78, .95)]
    for i, x in enumerate(xs):
        L = (1.9, 2.3, 1.7, 2.5, 2.0, 1.8)[i]
        z = rail_l.z
        if i in (0, 3):
            o = table.pan(1.05 if i else .85, .3, "copper", False)
            put(o, x, WALL - .45, z - L - .5, tilt=90)
            tube([(x, WALL - .4, z), (x, WALL - .42, z - L + .4)], .08, table.brass(), 8)
        elif i in (1, 4):
            tube([(x, WALL - .4, z), (x, WALL - .42, z - L)], .07, table.copper(), 8)
            put(sphere(.42, table.copper(), scale=(1, .7, .7), n=24), x, WALL - .55, z - L - .15)
        elif i == 2:
            for k in range(9):
                put(sphere(.3, mat("garlic", ((.4, "cfc4ae"), (.6, "efe8d8")), .5, noise=2, stretch=(3, 3, .4)), scale=(1, .9, 1.05), n=18), x + .26 * math.sin(k * 2.4), WALL - .45 - .12 * math.cos(k * 2.4), z - .5 - k * .25)
        else:
            for k in range(5):
                put(food.sprig("parsley", .9), x + .15 * math.sin(k * 2), WALL - .45, z - .5 - .38 * k, tilt=120, turn=k * 70)


def runner():
    """Cloth across the table and the small things of cooking that lie about."""
    a, b = at_table(250, 500), at_table(720, 372)
    c = table.cloth("teal", 60, 17, folds=.16)
    put(c, (a.x + b.x) / 2 - 1, (a.y + b.y) / 2 - .6, TABLE, 9, scale=.24)
    stand(food.lemon_half(1.0), 268, 452, 24, 2.0)
    stand(food.lemon_wedge(1.0), 292, 466, 26, 2.6, turn=30)
    stand(food.sprig("dill", 1.2), 540, 440, 60, 3.0, turn=40)
    for i, (x, y) in enumerate(((566, 520), (582, 536), (552, 540))):
        stand(food.cherry_tomato(.5), x, y, 20, 1.0, turn=i * 40)
    stand(table.spoon(5.6, table.wood("pale")), 250, 492, 96, 5.8, turn=24)
    for i, (x, y) in enumerate(((300, 470), (309, 478), (520, 452))):
        stand(food.caper(.2), x, y, 5, .4)


def lamp():
    """Oil lamp hanging at the upper left, just over the edge of the picture: the glow of the room."""
    p = at_wall(226, 62, 30)
    glow = put(sphere(.8, mat("lampglass", "ffd9a0", .2, emit="ffb65c", emit_strength=9), scale=(.75, .75, 1), n=24), 0, 0, .1)
    shade = lathe(smooth_profile([(.35, 2.1), (.5, 1.9), (1.2, 1.5), (2.1, .55), (2.2, .35)], 5), mat("shade", "b5763c", .3, metal=.8, coat=.4), 64)
    rod = tube([(0, 0, 2.1), (0, 0, 9)], .07, table.brass(), 8)
    put(group([glow, shade, rod]), p.x, p.y, p.z)
    l = bpy.data.lights.new("lamp", "POINT")
    l.energy, l.color, l.shadow_soft_size = 900, rgb("ffc07a"), .8
    o = bpy.data.objects.new("lamp", l)
    o.location = (p.x, p.y, p.z - .9)
    core.scene.collection.objects.link(o)


# ---------------------------------------------------------------- everything together

def build():
    core.start(5)
    random.seed(5)
    P = {}
    room()
    top = sideboard()
    sill, ww, wh = window()
    P["door"] = door()
    P["plaque"] = plaque()
    z = shelf(134, 322, 168)
    g, parts, w = books()
    a = at_wall(144, 168, WALL - 1)
    put(g, a.x, WALL - .95, z, scale=(at_wall(304, 168, WALL - 1).x - a.x) / w)
    P["books"] = parts
    P["clock"] = clock()
    z = shelf(388, 528, 200)
    P["radio"] = radio(z)
    z = shelf(562, 692, 186)
    g, dome = cloche()
    p = at_height(628, 184, z)
    put(g, p.x, WALL - 1.05, z, scale=(at_wall(684, 180).x - at_wall(574, 180).x) / 7.1)
    P["cloche"] = dome
    g, inner = saladbowl()
    p = at_wall(634, 262, 33.4)
    put(g, p.x, 33.4, top, scale=(at_wall(684, 262, 33).x - at_wall(584, 262, 33).x) / 5.9)
    P["salad"] = inner
    # window sill: candle, calendar
    c = table.candle(2.2, .5)
    flame = c.children[-1]
    put(c, at_wall(70, 310).x, WALL - .95, sill.z, scale=.85)
    P["candle"] = flame
    calendar(Vector((at_wall(143, 280).x, WALL - .12, at_wall(143, 268).z)))
    # on the table, from the back to the front
    g, f, sh = crate()
    stand(g, 234, 372, 116, 6.6, turn=-6)
    P["crate"] = f
    g, liq = wine()
    stand(g, 492, 326, 84, 6.0, turn=0)
    P["wine"] = liq
    g = table.pot(2.6, 2.5, "copper")
    soup = put(lathe([(.01, 2.0), (2.5, 2.0)], food.sauce_mat("fishsoup"), 48))
    soup.parent = g
    P["steam"] = []
    for i in range(3):
        st = food.steam((0, 0, 0), 2.3, .8, .55, i * 2.7)
        e = group([st])
        e.parent = g
        put(e, (i - 1) * .9, -.3 * i, 2.7)
        P["steam"].append(e)
    lid = table.potlid(2.6)
    lid.parent = g
    stand(g, 448, 413, 96, 6.2, turn=14)
    put(lid, .0, 0, 2.56)
    P["pot"] = (g, lid)
    g, fil, bub = fryingpan()
    stand(g, 336, 392, 98, 7.0, turn=0)
    P["pan"] = (g, fil, bub)
    g, f = fishboard()
    stand(g, 594, 398, 176, 7.4, turn=-5)
    P["board"] = f
    g, btn, bulb = photo_camera()
    stand(g, 160, 446, 86, 3.2, turn=14)
    P["camera"] = (btn, bulb)
    g, f1, f2, bubs = aquarium()
    stand(g, 384, 486, 104, 5.2)
    P["aquarium"] = (g, f1, f2, bubs)
    g, holder, water = tub()
    stand(g, 460, 600, 190, 6.2)
    P["tub"] = (g, holder, water)
    g, items = basket()
    stand(g, 200, 640, 186, 7.4, turn=8)
    P["basket"] = items
    g, brush = paintbox()
    stand(g, 48, 592, 92, 3.6, turn=12)
    brush.parent = g
    put(brush, -.1, -.45, .75, turn=24, roll=-14)
    P["brush"] = brush
    stand(microphone(), 34, 520, 34, 1.6)
    g, reels = projector()
    stand(g, 674, 606, 128, 4.6, turn=-14)
    P["projector"] = reels
    decor()
    lamp()
    runner()
    lights()
    core.camera(EYE, EYE + ray(400, 300), 36 / 2 / math.tan(math.atan(400 / FOCAL)), None)
    return P


def lights():
    core.world("1d4a52", .35)
    area((-17, 14, 27), (1, 24, 8), 4.5, 16500, "ffd6a0")
    area((-13, 30, 20), (2, 36, 12), 2.5, 2600, "ffc98a")
    area((16, 2, 26), (3, 22, 7), 9, 5200, "9fd2dc")
    area((0, -8, 26), (0, 18, 7), 12, 5200, "ffe6c8")
    area((13, 26, 20), (9, 35, 14), 3, 1500, "ffd2a0")


def _set(o, **kw):
    for k, v in kw.items():
        setattr(o, k, v)


REST = {}


def _home(o):
    """Where a part stands when nothing moves."""
    if o.name not in REST:
        REST[o.name] = (o.location.copy(), o.rotation_euler.copy(), o.scale.copy())
    return tuple(q.copy() for q in REST[o.name])


def _move(o, dx=0, dy=0, dz=0, rx=0, ry=0, rz=0, sx=1.0, sy=1.0, sz=1.0):
    l, r, s = _home(o)
    o.location = l + Vector((dx, dy, dz))
    o.rotation_euler = (r.x + math.radians(rx), r.y + math.radians(ry), r.z + math.radians(rz))
    o.scale = (s.x * sx, s.y * sy, s.z * sz)


def pose(P, button, f):
    """Moves the thing of a button to phase f (0 and 1 are the same picture)."""
    w = 2 * math.pi * f
    sn, cs, up = math.sin(w), math.cos(w), (1 - math.cos(w)) / 2
    if button == 0:
        _move(P["door"], rz=-24 * up)
    elif button == 1:
        _move(P["plaque"], ry=-170 * up)
    elif button == 2:
        g, holder, water = P["tub"]
        _move(holder, rz=24 * sn, dz=.22 * math.sin(2 * w), dx=.25 * sn)
        _move(water, rz=16 * sn)
    elif button == 3:
        for i, o in enumerate(P["basket"][:-1]):
            q = math.sin(w + i * .9) - math.sin(i * .9)
            _move(o, dz=.22 * max(0, q), rz=12 * q)
    elif button == 4:
        for i, o in enumerate(P["books"]):
            q = max(0.0, math.sin(w - i * .55 + .2)) ** 2 * (1 - math.cos(w)) / 2
            _move(o, dz=.25 * q, dy=-.9 * q, rx=6 * q)
    elif button == 5:
        g, fil, bub = P["pan"]
        for i, o in enumerate(fil):
            _move(o, dz=.45 * up * (1 if i else .7), rx=(14 if i else -10) * up, dx=.15 * sn)
        for i, o in enumerate(bub):
            ph = math.sin(w + i * 1.7)
            _move(o, sx=1 + .5 * ph, sy=1 + .5 * ph, sz=1 + .6 * ph)
    elif button == 6:
        hour, minute = P["clock"]
        _move(minute, rz=-360 * f)
    elif button == 7:
        needle, knobs, ww = P["radio"]
        _move(needle, dx=ww * .21 * sn)
        for i, k in enumerate(knobs):
            _move(k, rz=70 * sn * (1 if i else -1))
    elif button == 8:
        g, lid = P["pot"]
        _move(lid, dz=.75 * up, rx=10 * sn * up, ry=8 * up, dx=.25 * up)
        for i, s in enumerate(P["steam"]):
            q = max(.001, up)
            _move(s, dz=.9 * f, dx=.3 * math.sin(w + i), sx=q, sy=q, sz=q)
    elif button == 9:
        g, f1, f2, bubs = P["aquarium"]
        _move(f1, rz=0)
        put(f1, .75 * math.sin(w), -.6 * math.cos(w) - .3, 1.75 + .12 * math.sin(2 * w), turn=math.degrees(w) + 180)
        put(f2, -.6 * math.sin(w), .5 * math.cos(w) - .1, 2.75 + .1 * math.sin(w), turn=math.degrees(w))
        for i, b in enumerate(bubs):
            q = (f + i / len(bubs)) % 1
            put(b, -.5 + .5 * i + .1 * math.sin(q * 9), -.5, .6 + 2.7 * q, scale=math.sin(math.pi * q) ** .5 + .02)
    elif button == 10:
        btn, bulb = P["camera"]
        _move(btn, dz=-.1 * up)
        flash = max(0.0, 1 - abs(f - .5) * 7)
        m = core._materials["bulb"].node_tree.nodes["Principled BSDF"]
        m.inputs["Emission Strength"].default_value = 60 * flash
        fl = core._materials["flashglass"].node_tree.nodes["Principled BSDF"]
        fl.inputs["Emission"].default_value = (1, .9, .7, 1)
        fl.inputs["Emission Strength"].default_value = 14 * flash
    elif button == 11:
        for i, o in enumerate(P["crate"]):
            _move(o, rz=7 * math.sin(w + i * 2.1) - 7 * math.sin(i * 2.1), dz=.18 * max(0, math.sin(w + i * 2.1)))
    elif button == 12:
        slap(P["board"], f)
    elif button == 13:
        _move(P["brush"], dx=.55 * sn, dy=.3 * (1 - cs) / 2, dz=.35 * up, ry=8 * sn)
    elif button == 14:
        _move(P["candle"], sx=1 + .18 * sn, sz=1 + .3 * math.sin(2 * w + .0), ry=9 * sn)
    elif button == 15:
        _move(P["wine"], rx=6 * sn, ry=6 * (cs - 1))
    elif button == 16:
        _move(P["salad"], dz=.35 * up, rz=22 * sn)
    elif button == 17:
        _move(P["cloche"], dz=1.0 * up, dx=.5 * up, ry=14 * up)
    elif button == 18:
        for i, o in enumerate(P["projector"]):
            _move(o, ry=72 * f)


_slap = {}


def slap(f_obj, f):
    """The tail of the fish on the board rises and falls."""
    w = 2 * math.pi * f
    k = (1 - math.cos(w)) / 2
    for o in core.tree(f_obj):
        if o.type != "MESH":
            continue
        if o.name not in _slap:
            _slap[o.name] = [v.co.copy() for v in o.data.vertices]
        for v, c in zip(o.data.vertices, _slap[o.name]):
            t = max(0.0, c.x - .5)
            v.co = (c.x - .25 * k * t * t, c.y - 1.15 * k * t * t, c.z)
        o.data.update()
