# SPDX-License-Identifier: GPL-3.0-or-later
"""Grounds of the screens: blender -b -P art/pozadi.py -- all | NAME … [samples=N]

Calm pictures on which texts, lists and pictures stand. Each function sets one of them.
"""
import math
import os
import random
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import bpy  # noqa: E402

from lib import core, fish as fishlib, food, table, wide  # noqa: E402
from lib.core import area, box, group, lathe, mat, mesh, outline_solid, put, smooth_profile, sphere, tube  # noqa: E402

OUT = os.path.join(core.RENDERED, "pozadi")
U = 40.0  # pixels of 1600 x 1200 in one unit when seen from straight above


def above(lamp=1.0, fill=.5):
    """Eye straight above a field of 40 x 30 units; the lamp at the upper left."""
    core.camera((0, 0, 60), (0, 0, 0), ortho=40)
    core.scene.view_settings.view_transform = "Standard"
    core.scene.view_settings.look = "None"
    core.world("7fa0a4", fill)
    area((-26, 20, 22), (-4, 2, 0), 14, 10500 * lamp, "ffdcb0")
    area((24, 10, 30), (0, 0, 0), 20, 4200 * lamp, "bfe0e6")
    sun = bpy.data.lights.new("sun", "SUN")
    sun.energy, sun.angle, sun.color = 1.0 * lamp, .6, core.rgb("fff0dc")
    o = bpy.data.objects.new("sun", sun)
    o.rotation_euler = (math.radians(-20), math.radians(-25), 0)
    core.scene.collection.objects.link(o)


def lacquer(name="lacq", a="0a2a2f", b="0e3a40", c="124449", rough=.34, along=(.12, 2.2, 1)):
    return mat(name, ((.3, a), (.5, b), (.7, c)), rough, .2, coat=.1, noise=.5, detail=9, stretch=along, bump=.05, bumpscale=3)


def px(x, y):
    """Screen point of 1600 x 1200 -> units."""
    return (x - 800) / U, (600 - y) / U


def slab_px(x0, y0, x1, y1, m, h=.3, r=.25, bevel=.08, z=0):
    a, b = px(x0, y0), px(x1, y1)
    o = outline_solid(table.rounded_rect(b[0] - a[0], a[1] - b[1], r), h, m, bevel)
    return put(o, (a[0] + b[0]) / 2, (a[1] + b[1]) / 2, z)


def frame_px(x0, y0, x1, y1, w=.35, m=None, z=0, r=.3):
    a, b = px(x0, y0), px(x1, y1)
    W, H = b[0] - a[0], a[1] - b[1]
    o = outline_solid(table.rounded_rect(W, H, r), .4, m or copper(), .14, 4, holes=[table.rounded_rect(W - 2 * w, H - 2 * w, max(.05, r - w))])
    return put(o, (a[0] + b[0]) / 2, (a[1] + b[1]) / 2, z)


def copper():
    return mat("gcopper", ((.3, "a5673a"), (.7, "d39a62")), .27, metal=1, noise=.4, detail=3)


def paper(name="paper"):
    return mat(name, ((.3, "f0e4c8"), (.5, "f4ead2"), (.7, "f7efdc")), .85, .15, noise=.22, detail=9)


def ground(m):
    mesh([(-45, -24, 0), (45, -24, 0), (45, 24, 0), (-45, 24, 0)], [(0, 1, 2, 3)], m, False)


def header(h=150):
    slab_px(-860, -60, 2460, h, lacquer("headlacq", "0b3036", "0e3a40", "124449"), .35, .05, .05)
    put(tube([(-41, 0, 0), (41, 0, 0)], .16, copper(), 16), 0, px(0, h)[1], .34)
    put(tube([(-41, 0, 0), (41, 0, 0)], .05, copper(), 12), 0, px(0, h - 16)[1], .36)


def Sit():
    """Photo grid: dark teal wood with a thin copper edge."""
    ground(lacquer("sit", "071f23", "0a2a2f", "0d3338", .4))
    frame_px(10, 10, 1590, 1190, .14, z=0)
    above(.5, .5)


def recept():
    """Recipe screen: warm paper on a dark table, band at the top, a bar of lacquer at the right for buttons."""
    table.boards("dark", length=110)
    header(140)
    slab_px(30, 168, 1400, 1170, paper(), .12, .3, .03)
    slab_px(1430, 168, 1570, 1170, lacquer("bar", "0b3036", "0e3a40", "124449"), .3, .35, .1)
    frame_px(1424, 162, 1576, 1176, .12, z=.05, r=.4)
    above(1.0)


def seznam():
    """Recipe list: two sheets, the left for the list, the right for the photo and the wines."""
    table.boards("dark", length=110)
    header(140)
    slab_px(30, 168, 980, 1090, paper(), .12, .3, .03)
    slab_px(1010, 168, 1570, 1090, lacquer("seznampanel", "0a2a2f", "0e3a40", "124449"), .25, .35, .08)
    frame_px(1004, 162, 1576, 1096, .12, z=.03, r=.4)
    slab_px(30, 1112, 1570, 1186, lacquer("bar", "0b3036", "0e3a40", "124449"), .3, .3, .1)
    above(1.0)


def video():
    """A little cinema: dark screen in a copper and wood frame, a curtain at each side, a shelf below."""
    ground(mat("wallv", ((.3, "081c20"), (.7, "0d2b30")), .8, noise=.3))
    cur = mat("curtain", ((.3, "4a120e"), (.7, "7a2318")), .7, .2, noise=.6, stretch=(3, .2, 1), sheen=.6)
    for s in (-1, 1):
        v = []
        nx, ny, folds = 470, 30, 380   # the last folds are those beyond the edge of a 4:3 display
        for i in range(-folds, nx - folds):
            uneven = 9 * float(core.fbm([[i * .021, s * 3, 0]], 3, 4)[0])   # no two folds of one width
            for j in range(ny):
                x = s * (20.5 - 4.6 * i / 89)
                fold = math.sin(i * .36 + uneven + .12 * math.sin(j * .3 + i * .05))
                v.append((x, -16 + 32 * j / (ny - 1), .75 + .55 * math.copysign(abs(fold) ** .8, fold) + .15 * math.sin(i * .23 + j * .2)))
        mesh(v, core.grid_faces(nx, ny), cur)
    slab_px(190, 90, 1410, 1000, table.wood("walnut"), .8, .5, .2)
    slab_px(238, 138, 1362, 952, mat("screen", "050c0e", .25, .4, coat=.15), .9, .35, .1, z=.06)
    frame_px(226, 126, 1374, 964, .3, z=.5, r=.5)
    slab_px(-840, 1046, 2440, 1240, table.wood("dark"), 2.2, .1, .2)
    put(tube([(-41, 0, 0), (41, 0, 0)], .14, copper(), 16), 0, px(0, 1048)[1], 2.2)
    above(.75)


def stranka():
    """Pages of text, index and tables: nothing but the dark boards of a table under a low lamp."""
    m = mat("pageboards", ((.3, "0a2a2f"), (.5, "0e373d"), (.7, "13454b")), .7, .1, noise=.5, detail=9, stretch=(.1, 1.8, 1), bump=.08, bumpscale=3)
    mesh([(-60, -24, -.3), (60, -24, -.3), (60, 24, -.3), (-60, 24, -.3)], [(0, 1, 2, 3)], mat("gap", "04100f", .9), False)
    for i in range(-3, 4):
        box(110, 6.52, .8, m, .03, at=(3.7 * i, 6.6 * i + 1.2, -.78))
    above(.66, .34)


def zprava():
    """Message box: teal cloth."""
    ground(table.fabric("teal"))
    table.cloth("teal", 60, 46, folds=.1)
    above(.7, .5)


def menu():
    """Menu panel: calm lacquered wood."""
    ground(mat("menuwood", ((.3, "0a2c31"), (.5, "0d373d"), (.7, "124349")), .8, .08, noise=.5, detail=9, stretch=(.1, 1.8, 1), bump=.08, bumpscale=3))
    above(.7, .3)


def uvod():
    """Splash: the pond at dusk. A jetty with a lantern and a rod in front; sky free for the title."""
    core.camera((0, -14, 3.4), (0, 10, 3.7), lens=30)
    for k in (-1, 0, 1):   # the sky mirrored goes on beyond the middle
        u, v = (0, 1) if k == 0 else (1, 0)
        mesh([(96 * k - 48, 50, -24), (96 * k + 48, 50, -24), (96 * k + 48, 50, 42), (96 * k - 48, 50, 42)], [(0, 1, 2, 3)], sky_material(), False, uv=[(u, 0), (v, 0), (v, 1), (u, 1)])
    water = mat("pondwater", "06242a", .06, .6, metal=0, coat=1, bump=.22, bumpscale=.9, bumpstretch=(.35, 1.6, 1), ior=1.33)
    mesh([(-90, -14, 0), (90, -14, 0), (90, 50, 0), (-90, 50, 0)], [(0, 1, 2, 3)], water, False)
    hills = mat("hills", "06191b", 1, 0, emit="0a3238", emit_strength=.35)
    for y, base, amp, seed in ((46, .8, 2.6, 3), (40, .3, 1.5, 9)):
        n = 288
        v = []
        for i in range(n):
            x = -50 + 100 * (i - 64) / 159
            h = base + amp * float(core.fbm([[x * .11 + seed, 0, seed]], 4, seed)[0]) + .5 * float(core.fbm([[x * .9, 3, seed]], 3, seed)[0]) + 1.6 * math.exp(-((x + 26) / 14) ** 2)
            v += [(x, y, -.2), (x, y, h)]
        mesh(v, [(2 * i, 2 * i + 2, 2 * i + 3, 2 * i + 1) for i in range(n - 1)], hills, False)
    # a house with a lit window far on the left
    hm = mat("hut", "0a1c1c", 1, 0)
    box(2.2, 1, 1.3, hm, 0, at=(-13.5, 39, .4))
    mesh([(-14.9, 38.4, 1.6), (-12.1, 38.4, 1.6), (-13.5, 38.4, 2.7)], [(0, 1, 2)], hm, False)
    mesh([(-13.9, 38.3, .8), (-13.3, 38.3, .8), (-13.3, 38.3, 1.3), (-13.9, 38.3, 1.3)], [(0, 1, 2, 3)], mat("lit", "ffb65c", emit="ffb65c", emit_strength=9), False)
    # jetty
    pl = table.wood("oak")
    for i in range(20):
        box(3.4 + random.uniform(-.12, .12), .56, .14, pl, .03, at=(5.4 + random.uniform(-.06, .06), -11.5 + i * .62, .55 + random.uniform(-.02, .02)))
    for y in (-8, -3.2, .6):
        for x in (3.9, 6.9):
            put(lathe([(.01, 1.1), (.16, 1.1), (.18, -1)], table.wood("dark", "z"), 16), x, y, .25)
    lantern(6.3, -1.2, .69, 1.15)
    tube([(4.6, -4.5, .75), (2.2, 2.5, 2.7), (.6, 7.5, 4.1)], [.06, .035, .015], table.wood("pale"), 8)
    tube([(.6, 7.5, 4.1), (.55, 8.2, 1.8), (.5, 8.6, .0)], .008, mat("lineg", "9fb0ae", .4), 4)
    put(sphere(.13, mat("float", "b8402a", .3, coat=.5, emit="b8402a", emit_strength=.15), scale=(1, 1, 1.5), n=16), .5, 8.6, .05)
    put(basketlike(), 4.55, -3.4, .69, turn=20)
    reeds(-1)
    reeds(1)
    far_sides()
    core.world("16424a", .5)
    for o in (area((-10, -12, 12), (2, 4, 0), 6, 500, "ffd6a0"), area((0, 30, 18), (0, 0, 0), 20, 900, "7fb6bd")):
        o.visible_glossy = False  # the water would mirror the lamps


def lantern(x, y, z, s=1.0):
    gl = core.thin_glass("lantglass", "fff0d0")
    parts = [lathe(smooth_profile([(.01, 0), (.34, 0), (.36, .1), (.2, .16), (.01, .17)], 4), table.brass(), 32), lathe([(.26, .16), (.3, .3), (.3, .85), (.24, 1.0)], gl, 32), lathe(smooth_profile([(.3, .98), (.32, 1.05), (.15, 1.25), (.01, 1.3)], 4), table.brass(), 32),
             put(sphere(.12, mat("lantflame", "ffcf80", emit="ffb04a", emit_strength=60), scale=(1, 1, 1.9), n=16), 0, 0, .5)]
    parts.append(put(table.torus(.3, .025, table.brass(), 40), 0, 0, 1.4, tilt=90))
    put(group(parts), x, y, z, scale=s)
    l = bpy.data.lights.new("lant", "POINT")
    l.energy, l.color, l.shadow_soft_size = 190, core.rgb("ffb65c"), .15
    o = bpy.data.objects.new("lant", l)
    o.location = (x, y - .0, z + .75 * s)
    core.scene.collection.objects.link(o)


def basketlike():
    wick = mat("wick2", ((.35, "4a2e16"), (.65, "8a5e2c")), .6, noise=4)
    parts = []
    for row in range(6):
        parts.append(tube([((.62 + .03 * row) * math.cos(a) * 1.2, (.62 + .03 * row) * math.sin(a), .08 + row * .13) for a in [2 * math.pi * k / 40 for k in range(41)]], .075, wick, 6, False))
    f = fishlib.fish("carp", "raw", 1.7, seed=2)
    put(f, .05, 0, .78, turn=30, tilt=6)
    return group(parts + [f])


def reeds(side):
    m = mat("reed", ((.4, "0c2a1c"), (.6, "254a2a")), .6)
    head = mat("reedhead", "3a2212", .8)
    rnd = random.Random(side + 5)
    for i in range(75):
        x = side * rnd.uniform(7.2, 15) if side > 0 else rnd.uniform(-15, -5.6)
        y = rnd.uniform(-5, 9)
        h = rnd.uniform(1.6, 4.2)
        lean = rnd.uniform(-.5, .5)
        pts = [(x + lean * t * t, y, h * t) for t in [k / 8 for k in range(9)]]
        tube(pts, [.045 * (1 - .85 * k / 8) for k in range(9)], m, 5)
        if rnd.random() < .3:
            e = pts[-2]
            tube([(e[0] + lean * .05 * t, e[1], e[2] - .3 + .62 * t) for t in (0, .06, .2, .5, .8, .94, 1)], [.02, .07, .1, .105, .095, .06, .015], head, 10)


def far_sides():
    """What only a wide display shows of the pond: more reeds and a moored boat."""
    m, head = mat("reed", "254a2a"), mat("reedhead", "3a2212")
    rnd = random.Random(21)
    for _ in range(110):
        side = rnd.choice((-1, 1))
        x, y, h, lean = side * rnd.uniform(13.5, 27), rnd.uniform(-4, 12), rnd.uniform(1.4, 4.4), rnd.uniform(-.5, .5)
        pts = [(x + lean * t * t, y, h * t) for t in [k / 8 for k in range(9)]]
        tube(pts, [.045 * (1 - .85 * k / 8) for k in range(9)], m, 5)
        if rnd.random() < .25:
            e = pts[-2]
            tube([(e[0] + lean * .05 * t, e[1], e[2] - .3 + .62 * t) for t in (0, .06, .2, .5, .8, .94, 1)], [.02, .07, .1, .105, .095, .06, .015], head, 10)
    put(boat(), -21.6, 13.5, -.08, turn=-14)


def boat():
    """A flat-bottomed rowing boat, its oars shipped."""
    m = mat("boat", ((.4, "1c2a22"), (.6, "33463a")), .5, noise=2, stretch=(.3, 3, 3), bump=.2, coat=.2)
    n, half, v = 24, 3.0, []
    for i in range(n):
        t = -1 + 2 * i / (n - 1)
        w, keel, rim = .95 * (1 - abs(t) ** 2.6) + .1, .1 + .42 * abs(t) ** 3, .72 + .3 * t * t
        v += [(half * t, s * w * k, z) for s, k, z in ((-1, 1, rim), (-1, .8, keel + .1), (1, .8, keel + .1), (1, 1, rim), (1, .93, rim), (1, .72, keel + .2), (-1, .72, keel + .2), (-1, .93, rim))]
    parts = [mesh(v, core.grid_faces(n, 8, True), m, False)]
    for x in (-1.1, .5):
        parts.append(box(.4, 1.8, .08, table.wood("oak"), .02, at=(x, 0, .52)))
    for s in (-1, 1):
        parts.append(tube([(-2.3, s * .3, .75), (1.9, s * .55, .85)], .05, table.wood("pale"), 8))
    return group(parts)


def sky_material():
    """Evening sky: orange over the trees, teal above, a few long clouds, a moon and stars."""
    if "sky" in bpy.data.materials:
        return bpy.data.materials["sky"]
    import numpy as np
    w, h = 1536, 1024
    y, x = np.mgrid[0:1:complex(h), 0:1:complex(w)]
    t = np.clip((y - .36) / .64, 0, 1)
    stops = ((0, (1.0, .55, .17)), (.10, (.93, .52, .24)), (.25, (.42, .46, .38)), (.5, (.10, .31, .33)), (1, (.025, .10, .125)))
    img = np.stack([np.interp(t, [s[0] for s in stops], [s[1][c] for s in stops]) for c in range(3)], -1)
    n = core.fbm(np.stack([x * 4, y * 26, np.zeros_like(x)], -1), 5, 3)
    cl = np.clip((n - .5) / .22, 0, 1) * np.exp(-((t - .2) / .16) ** 2)
    img = img + cl[..., None] * np.array([.30, .10, .0])
    cl2 = np.clip((core.fbm(np.stack([x * 3, y * 18, np.ones_like(x) * 7], -1), 5, 8) - .52) / .2, 0, 1) * np.clip((t - .3) / .2, 0, 1)
    img = img * (1 - .35 * cl2[..., None])
    d = np.hypot((x - .36) * w / h, y - .80)
    img = img + (np.clip((.02 - d) / .003, 0, 1) * .8 + .1 * np.exp(-(d / .06) ** 2))[..., None] * np.array([1, .94, .8])
    rng = np.random.default_rng(2)
    for _ in range(160):
        i, j = rng.integers(int(h * .62), h), rng.integers(0, w)
        img[i, j] += rng.uniform(.1, .5)
    im = core.picture("sky", np.clip(img, 0, 1))
    m = bpy.data.materials.new("sky")
    m.use_nodes = True
    nt = m.node_tree
    tx = nt.nodes.new("ShaderNodeTexImage")
    tx.image = im
    e = nt.nodes.new("ShaderNodeEmission")
    nt.links.new(tx.outputs[0], e.inputs[0])
    e.inputs[1].default_value = 1.1
    nt.links.new(e.outputs[0], nt.nodes["Material Output"].inputs[0])
    return m


def konec():
    """The kitchen with the lamp going out."""
    import kitchen as H
    P = H.build(wide=True)
    for b in range(19):
        H.pose(P, b, 0)
    H.pose(P, 0, .5)
    for l in bpy.data.lights:
        l.energy *= .05 if l.name != "lamp" else .14
    glows = {"lampglass": .55, "dial": .25, "projlens": .05, "eyegreen": .12, "skin-goldfish-raw-0-8": .12, "skin-perch-raw-0-9": .08}
    for name, strength in glows.items():
        core._materials[name].node_tree.nodes["Principled BSDF"].inputs["Emission Strength"].default_value = strength
    core._materials["aquawater"].node_tree.nodes["Emission"].inputs[1].default_value = .005
    core.scene.world.node_tree.nodes["Background"].inputs[1].default_value = .2
    x = H.at_wall(70, 210)
    area((x.x, x.y - 1.2, x.z + 1), (6, 14, 7), 5, 2100, "7fc4cf")


def vino256():
    """Wine still life by candle light: bottle, a red and a white glass, grapes, lemon and bread on a board."""
    table.boards("oak")
    wall = mat("winewall", ((.3, "123f45"), (.5, "1a535a"), (.7, "256a6e")), .9, .1, noise=.25, detail=9, bump=.15, bumpscale=2)
    mesh([(-40, 14, 0), (40, 14, 0), (40, 14, 40), (-40, 14, 40)], [(0, 1, 2, 3)], wall, False)
    put(table.cloth("linen", 15, 6, folds=.14), 1.6, -.9, 0, -7)
    put(table.bottle(9.2, 1.15), -3.3, 2.2, .03)
    put(table.wineglass(6.2, 1.45, "red", .52), -.2, .7, .05)
    put(table.wineglass(5.8, 1.3, "white", .5), 3.1, 1.5, .05)
    put(table.board(5.2, 2.7, "dark", False, .3, .4), -3.9, -2.1, .06, 14)
    for i in range(3):
        put(food.bread("rye", 2.3, 1.7, .42, i), -4.9 + i * .75, -2.2 + i * .1, .5 + .22 * i, 20 + 14 * i, roll=-14 if i else 0)
    put(food.lemon_half(.72), -2.6, -1.7, .38, tilt=-30)
    gm = mat("grape", ((.4, "3a1540"), (.6, "6e2c58")), .22, coat=.5, sss=.05)
    for i in range(38):
        a, q = i * 2.4, .34 * math.sqrt(i)
        put(sphere(.42, gm, n=20), 2.6 + q * math.cos(a) * 1.35, -2.0 + q * math.sin(a) * .8, .42 + .5 * max(0, 1.8 - q) * random.uniform(.6, 1))
    tube([(2.6, -1.9, 1.2), (2.3, -1.4, 1.7), (1.9, -1.0, 1.75)], [.07, .06, .09], table.wood("pale"), 8)
    put(table.candle(3.6, .5), 6.0, 3.6, 0)
    core.camera((-.2, -17, 6.6), (.5, 0, 3.3), 44, 2.0, (0, .7, 2.5))
    core.evening(1.25)
    flame = bpy.data.lights.new("flame", "POINT")
    flame.energy, flame.color, flame.shadow_soft_size = 420, core.rgb("ffb65c"), .3
    o = bpy.data.objects.new("flame", flame)
    o.location = (6.0, 3.4, 4.7)
    core.scene.collection.objects.link(o)
    area((-9, 5, 12), (1, 14, 5), 2.5, 1500, "ffbf76")


SIZES = {"vino256": (1024, 768), "menu": (800, 600)}
SAMPLES = {"uvod": 40, "konec": 24, "vino256": 24, "video": 16}


DUSK = {"uvod": .25, "konec": .3, "stranka": .3, "Sit": .3}
WIDE = {"uvod": (16, 1200), "konec": (8, 840)}   # of a wide ground: samples and lines of its rendered sides


def main(names):
    options = dict(n.split("=") for n in names if "=" in n)
    names = [n for n in names if "=" not in n]
    every = "Sit recept seznam video zprava menu stranka uvod vino256 konec".split()
    if names == ["all"]:
        names = [n for n in every if not os.path.exists(target(n))]
    for n in names:
        core.start(5)
        globals()[n.replace("-siroke", "")]()
        draw(n, options)
        print("DONE", n, flush=True)


def draw(n, options):
    """Renders the scene that is set: a ground, its wide version (NAME-siroke), or a look at that (look=FILE)."""
    key = n + str(os.path.getmtime(__file__))
    middle = n.replace("-siroke", "")
    if "look" in options:
        wide.widen()
        core.render(options["look"], 700, 300, int(options.get("samples", 4)))
    elif n in ("stranka", "video"):
        wide.whole(target(n), int(options.get("samples", 5)), key, DUSK.get(n, wide.DUSK))
    elif n != middle:
        samples, height = WIDE.get(middle, (5, 900))
        wide.render(target(middle), int(options.get("samples", samples)), key, int(options.get("lines", height)), dusk=DUSK.get(middle, wide.DUSK))
    else:
        w, h = SIZES.get(n, (1600, 1200))
        core.render(target(n), w, h, int(options.get("samples", SAMPLES.get(n, 10))), quality=88, key=key)


def target(n):
    return os.path.join(core.RENDERED, "prvky" if n == "vino256" else "pozadi", n + ".jpg")


if __name__ == "__main__":
    main(core.arguments())
