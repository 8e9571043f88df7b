# SPDX-License-Identifier: GPL-3.0-or-later
"""The room itself: walls, window on the pond, sideboard, shelves, lamp, light."""
import math
import random

import bpy
from mathutils import Vector

from lib import core, food, table
from lib.core import area, box, group, lathe, mat, mesh, outline_solid, put, rgb, smooth_profile, sphere, tube
from .place import TABLE, WALL, at_table, at_wall, stand
from .tablethings import fishicon

TABLE_END = 23.5   # the table's ends, dm to the left and right


def plaster():
    return mat("plaster", ((.3, "4a4536"), (.5, "544c3b"), (.7, "5f5643")), .85, .2, noise=.35, detail=8, bump=.25, bumpscale=2.5)


def room():
    w = plaster()
    mesh([(-60, WALL, 0), (60, WALL, 0), (60, WALL, 30), (-60, WALL, 30)], [(0, 1, 2, 3)], w, False)
    floor = table.wood("dark")
    mesh([(-60, -6, 0), (60, -6, 0), (60, WALL, 0), (-60, WALL, 0)], [(0, 1, 2, 3)], floor, False)
    # table top
    back = at_table(400, 312).y
    n = 7
    front = 6.0
    step = (back - front) / n
    m = table.wood("oak")
    for i in range(n):
        o = box(2 * TABLE_END, step - .06, .7, m, .07)
        put(o, random.uniform(-6, 6), front + step * (i + .5), TABLE - .7 + random.uniform(-.015, 0))
        for v in o.data.vertices:   # every board has its own piece of the grain, and all end at one line
            v.co.x -= o.location.x
    box(2 * TABLE_END - .6, .4, 1.0, table.wood("dark"), .05, at=(0, back - .5, TABLE - 1.7))
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
    for left, right in ((-60, at_wall(700, 40).x), (at_wall(812, 40).x, 60)):
        box(right - left, .25, .3, table.wood("walnut"), .06, at=((left + right) / 2, WALL - .1, z1))


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
    mesh([(x0, WALL - .03, z0), (x1, WALL - .03, z0), (x1, WALL - .03, z1), (x0, WALL - .03, z1)], [(0, 1, 2, 3)], pond(), False, uv=[(0, 0), (1, 0), (1, 1), (0, 1)])
    fr = mat("windowframe", ((.35, "4a3420"), (.65, "7a5a38")), .45, noise=2, stretch=(3, 3, .3), bump=.15, coat=.2)
    for x in (x0 - .12, x1 + .12):
        box(.42, .5, h + .6, fr, .06, at=(x, WALL - .2, z0 - .3))
    for z in (z0 - .3, z1 - .1):
        box(w + .8, .58, .4, fr, .06, at=(cx, WALL - .22, z))
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


def pond():
    """The view of the pond, which shines of itself."""
    if "pond" in bpy.data.materials:
        return bpy.data.materials["pond"]
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


def calendar(p):
    """Leaf calendar beside the window; returns its topmost leaf, which hangs on its upper edge."""
    w, h = 1.9, 2.7
    page = mat("page", "efe3c6", .8)
    g = [box(w, .1, h, mat("calback", "6a1f18", .5), .04), put(fishicon(.62, mat("inkblue", "1d4a55", .6)), 0, -.08, h * .8, tilt=90)]
    g.append(put(group([put(box(w * .9, .05, h * .62, page, .01), 0, 0, -h * .62), put(sphere(.34, mat("calred", "b8402a", .6), scale=(1, .1, 1), n=20), 0, -.03, -.8)]), 0, -.06, .12 + h * .62))
    leaf = [put(box(w * .9, .03, h * .62, page, .01), 0, 0, -h * .62)]
    ink = mat("ink", "43301f", .8)
    for r in range(4):
        for c in range(5):
            leaf.append(put(box(.16, .02, .12, mat("calred", "b8402a", .6) if c == 4 else ink, 0), -w * .33 + c * w * .165, -.025, .18 + r * .36 - h * .62))
    leaf = put(group(leaf), 0, -.11, .12 + h * .62)
    put(group(g + [leaf]), p.x, p.y, p.z)
    return leaf


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
            put(o, x, WALL - .45, z - L - .5, tilt=-90)
            tube([(x, WALL - .4, z), (x, WALL - .42, z - L + .4)], .08, table.brass(), 8)
        elif i in (1, 4):
            tube([(x, WALL - .4, z), (x, WALL - .42, z - L)], .07, table.copper(), 8)
            put(sphere(.42, table.copper(), scale=(1, .7, .7), n=24), x, WALL - .55, z - L - .15)
        elif i == 2:
            for k in range(9):
                put(garlic(), x + .26 * math.sin(k * 2.4), WALL - .45 - .12 * math.cos(k * 2.4), z - .5 - k * .25, tilt=25 * math.cos(k * 2.4), roll=-50 * math.sin(k * 2.4))
        else:
            for k in range(5):
                put(food.sprig("parsley", .9), x + .15 * math.sin(k * 2), WALL - .45, z - .5 - .38 * k, tilt=120, turn=k * 70)


def garlic():
    """A head of garlic: cloves that bulge, a dry neck."""
    m = mat("garlic", ((.4, "d3c3b4"), (.5, "ece2d0"), (.62, "c9a8ac")), .5, noise=2, stretch=(3, 3, .4))
    profile = smooth_profile([(.01, -.25), (.16, -.26), (.33, -.08), (.29, .1), (.1, .28), (.06, .46), (.04, .62)], 5)
    o = lathe(profile, m, 28)
    for v in o.data.vertices:
        a = math.atan2(v.co.y, v.co.x)
        q = 1 + .07 * abs(math.cos(3.5 * a)) * max(0, 1 - abs(v.co.z) * 3)
        v.co.x, v.co.y = v.co.x * q, v.co.y * q
    return o


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


def lights():
    core.world("1d4a52", .35)
    area((-17, 14, 27), (1, 24, 8), 4.5, 16500, "ffd6a0")
    area((-13, 30, 20), (2, 36, 12), 2.5, 2600, "ffc98a")
    area((16, 2, 26), (3, 22, 7), 9, 5200, "9fd2dc")
    area((0, -8, 26), (0, 18, 7), 12, 5200, "ffe6c8")
    area((13, 26, 20), (9, 35, 14), 3, 1500, "ffd2a0")
