# SPDX-License-Identifier: GPL-3.0-or-later
"""What a wide display shows left and right of the main screen: the same room, ornament without buttons.

Everything is put by pixels of the 800 x 600 screen like the rest of the kitchen; they run from -300 to 1100 here.
"""
import math
import random

from mathutils import Vector

from lib import core, food, table
from lib.core import area, box, curve_points, group, lathe, mat, mesh, outline_solid, put, smooth_profile, sphere, tube
from .place import TABLE, WALL, at_height, at_wall, stand
from .tablethings import fishicon


def build():
    state = random.getstate()
    stove()
    bench()
    herbs()
    tackle()
    dresser()
    tableware()
    lights()
    random.setstate(state)


def span(px0, px1, depth, py=200):
    """Left end, right end and their middle at a depth of the room, dm."""
    a, b = at_wall(px0, py, depth).x, at_wall(px1, py, depth).x
    return a, b, (a + b) / 2


def stove():
    """Tiled stove with an iron plate, an oven door and two pots; a pipe leads up into the wall."""
    front, back = 32.2, WALL - .1
    a, b, x = span(-352, -182, front)
    top = at_wall(0, 204, front).z
    tile = mat("stovetile", ((.35, "c9bd9e"), (.5, "dccfae"), (.65, "e6dcc0")), .2, .5, coat=.6, noise=.8)
    edge = mat("stoveedge", ((.35, "0f3a40"), (.65, "1a545a")), .2, .5, coat=.6, noise=.8)
    core_ = mat("stovegrout", "3a3226", .9)
    box(b - a - .1, back - front - .1, top - .3, core_, 0, at=(x, (front + back) / 2, 0))
    n, rows = 6, int(top / 1.3)
    w, h = (b - a) / n, (top - .3) / rows
    for r in range(rows):
        for c in range(n):
            m = edge if r == rows - 1 or c in (0, n - 1) and r % 2 else tile
            box(w - .07, .16, h - .07, m, .06, at=(a + w * (c + .5), front + random.uniform(-.012, .012), r * h))
        for c in range(4):
            d = (back - front) / 4
            box(.16, d - .07, h - .07, edge if r == rows - 1 else tile, .06, at=(b, front + d * (c + .5), r * h))
    box(b - a + .5, back - front + .4, .3, table.iron(), .06, at=(x, (front + back) / 2, top - .3))
    tube([(a, front - .5, top - .75), (b, front - .5, top - .75)], .1, table.brass(), 12)
    for q in (a + .5, b - .5):
        tube([(q, front - .5, top - .75), (q, front + .1, top - .75)], .08, table.brass(), 8)
    door_ = group([box(3.0, .18, 2.6, table.iron(), .1), put(box(1.7, .1, .16, table.brass(), .06), 0, -.2, 2.1)])
    put(door_, a + (b - a) * .6, front - .12, top - 4.6)
    pipe(a + 1.5, back - 1.4, top)
    kettle(b - 1.7, front + 1.5, top)
    put(group([table.pot(3, 3.2, "enamelteal"), put(table.potlid(3, "steel"), 0, 0, 3.26)]), a + 3.9, front + 2.2, top, 20, scale=.46)
    put(table.pot(2.6, 2.2, "copper"), b - 3.6, front + 3.0, top, 60, scale=.4)


def pipe(x, y, z):
    m = table.iron()
    tube([(x, y, z), (x, y, z + 11)], .62, m, 28)
    for q in (.1, 3.6, 7.0):
        put(lathe([(.62, 0), (.7, .06), (.7, .3), (.62, .36)], m, 32), x, y, z + q)


def kettle(x, y, z):
    """Copper kettle with a bow."""
    m = table.copper()
    body = lathe(smooth_profile([(.01, 0), (1.0, 0), (1.16, .15), (1.1, .75), (.75, 1.2), (.4, 1.32), (.36, 1.42), (.01, 1.45)], 6), m, 48)
    knob = put(sphere(.12, table.brass(), n=16), 0, 0, 1.55)
    spout = tube(curve_points([(.95, 0, .5), (1.35, 0, .7), (1.5, 0, 1.15), (1.72, 0, 1.25)], 6), [.2 - .004 * i for i in range(19)], m, 14)
    bow = tube(curve_points([(-.8, 0, 1.1), (-.75, 0, 1.9), (0, 0, 2.25), (.75, 0, 1.9), (.8, 0, 1.1)], 6), .08, table.brass(), 10)
    return put(group([body, knob, spout, bow]), x, y, z, -25, scale=1.0)


def bench():
    """Bench against the stove; a cat is asleep on it."""
    a, b, x = span(-160, -66, 32.8, 290)
    z = at_wall(0, 268, 32.8).z
    box(b - a, 3.6, .35, table.wood("walnut"), .08, at=(x, 33.9, z - .35))
    box(b - a - .4, 3.0, z - .4, table.wood("dark"), .05, at=(x, 34.2, 0))
    cushion = outline_solid(table.rounded_rect(b - a - .3, 2.8, .5), .45, table.fabric("red"), .2, 4)
    put(cushion, x, 33.7, z)
    put(cat(), x + .1, 33.2, z + .42, 8, scale=1.05)


def cat():
    """A tabby rolled up: one long body round a middle, head on the paws, tail in front."""
    fur = mat("fur", ((.38, "3b342b"), (.5, "6f6350"), (.62, "948670")), .9, .1, noise=1.1, stretch=(2.6, .5, .6), detail=9, distort=1.2, bump=.5, bumpscale=26, sheen=.5)
    light = mat("furlight", ((.4, "a89a82"), (.6, "c9bda6")), .9, .1, noise=3, bump=.4, bumpscale=26, sheen=.5)
    n = 40
    turn = [math.radians(-70 + 285 * i / (n - 1)) for i in range(n)]
    line = [(1.02 * math.cos(t), .72 * math.sin(t), .48 + .1 * math.sin(math.pi * i / n)) for i, t in enumerate(turn)]
    girth = [.16 + .56 * math.sin(math.pi * min(1, (i + 4) / (n + 3))) ** .6 for i in range(n)]
    parts = [tube(line, girth, fur, 24)]
    hx, hy, hz = .62, -.78, .42
    parts.append(put(sphere(.42, fur, n=28), hx, hy, hz, turn=-25, scale=(1.08, .92, .86)))
    parts.append(put(sphere(.17, light, n=20), hx - .02, hy - .36, hz - .09, scale=(1.15, .8, .75)))
    for s in (-1, 1):
        ear = lathe([(.16, 0), (.13, .12), (.02, .3)], fur, 16)
        parts.append(put(ear, hx + s * .24, hy + .02, hz + .26, roll=s * 22, scale=(1, .55, 1)))
        eye = tube(curve_points([(-.09, 0, 0), (-.045, -.01, -.03), (0, -.015, -.04), (.045, -.01, -.03), (.09, 0, 0)], 4), .015, mat("catline", "1a140e", .6), 6)
        parts.append(put(eye, hx + s * .18, hy - .36, hz + .06, turn=s * 20))
        parts.append(put(sphere(.15, light, n=16), hx - .5 + s * .13, hy - .2, .15, scale=(1.5, 1, .8)))
    parts.append(put(sphere(.035, mat("catnose", "8a4a40", .4), n=10), hx - .02, hy - .5, hz - .03))
    tail = curve_points([(-.9, -.3, .3), (-1.0, -.75, .2), (-.5, -1.05, .17), (.1, -1.1, .17)], 8)
    parts.append(tube(tail, [.17 - .004 * i for i in range(len(tail))], fur, 14))
    return group(parts)


def herbs():
    """Bunches of herbs drying on a rod beside the window."""
    y = WALL - .6
    z = at_wall(-50, 74, y).z
    a, b, _ = span(-98, -14, y, 74)
    tube([(a, y, z), (b, y, z)], .1, table.wood("pale"), 10)
    for x in (a + .2, b - .2):
        tube([(x, WALL, z), (x, y, z)], .07, table.brass(), 8)
    for i, kind in enumerate(("dill", "thyme", "parsley", "dill", "rosemary")):
        bunch(kind, a + (b - a) * (.1 + .2 * i), y, z)


def bunch(kind, x, y, z):
    """A bunch hanging head down from a bast string."""
    bast = mat("bast", "b59b64", .8)
    tube([(x, y, z), (x, y, z - .5)], .03, bast, 6)
    put(sphere(.13, bast, n=12, scale=(1, 1, .7)), x, y, z - .62)
    for k in range(7):
        q = k * 2.4
        if kind == "parsley":
            put(food.sprig(kind, .75), x + .22 * math.cos(q), y - .1 + .1 * math.sin(q), z - 1.0 - .14 * k, tilt=180, turn=40 * k)
        else:
            half = {"dill": 1.2, "thyme": .9, "rosemary": 1.1}[kind]
            put(food.sprig(kind, 1.0), x + .3 * math.cos(q), y - .1 + .12 * math.sin(q), z - .55 - half, roll=90 - 14 * math.cos(q), turn=8 * math.sin(q))


def tackle():
    """Two rods lean in the corner by the door, a landing net and a creel hang beside them."""
    y = WALL - .5
    cane = table.wood("pale", "z")
    cork = mat("cork", ((.4, "8a6238"), (.6, "b98a54")), .8, noise=8)
    for px0, px1, top in ((868, 836, 8), (878, 862, 22)):
        foot, tip = at_wall(px0, 345, y - 1.4), at_wall(px1, top, y)
        tube([tuple(foot.lerp(tip, t)) for t in (0, .5, 1)], [.13, .09, .035], cane, 10)
        grip = [tuple(foot.lerp(tip, t)) for t in (.14, .3)]
        tube(grip, .17, cork, 14)
        reel = foot.lerp(tip, .33)
        put(lathe([(.01, .3), (.42, .3), (.46, .22), (.46, .08), (.42, 0), (.01, 0)], table.brass(), 28), reel.x, reel.y - .15, reel.z, tilt=90)
        for t in (.5, .68, .84, .97):
            q = foot.lerp(tip, t)
            put(table.torus(.09, .018, table.steel(), 20, 6), q.x, q.y - .14, q.z, tilt=90)
    net(at_wall(862, 96, y - .3), 1.25)


def net(p, r):
    """Landing net hanging by its hoop, its bag falling a little."""
    parts = [put(table.torus(r, .07, table.wood("pale"), 48, 10), 0, 0, 0, tilt=90)]
    parts.append(tube([(0, 0, -r), (0, .05, -r - 4.2)], .12, table.wood("walnut", "z"), 12))
    yarn = mat("yarn", "6f7f5c", .8)
    for s in (-1, 1):
        for k in range(-5, 6):
            pts = []
            for i in range(17):
                t = -1 + 2 * i / 16
                u, v = k / 6 * r, t * math.sqrt(1 - (k / 6) ** 2) * r
                sag = .75 * (1 - (u * u + v * v) / r ** 2)
                q = math.radians(45 * s)
                x, z = u * math.cos(q) - v * math.sin(q), u * math.sin(q) + v * math.cos(q)
                pts.append((x, -sag * .35, z - sag))
            parts.append(tube(pts, .018, yarn, 5))
    return put(group(parts), p.x, p.y, p.z, roll=6)


def dresser():
    """Dresser with painted plates on its rails, cups on hooks and preserves on its top."""
    front, back = 31.6, WALL - .1
    walnut, dark = table.wood("walnut"), table.wood("dark")
    a, b, x = span(902, 1112, front)
    top = at_wall(0, 268, front).z
    box(b - a + .4, back - front + .3, .35, walnut, .08, at=(x, (front + back) / 2, top - .35))
    box(b - a, back - front, top - .35, dark, .05, at=(x, (front + back) / 2 + .1, 0))
    for i in range(3):
        q = a + (b - a) * (i + .5) / 3
        box((b - a) / 3 - .25, .2, 1.4, walnut, .06, at=(q, front, top - 2.1))
        put(sphere(.15, table.copper(), n=16), q, front - .2, top - 1.4)
    hutch = WALL - 1.9
    a, b, x = span(908, 1112, hutch)
    roof = at_wall(0, 40, hutch).z
    box(b - a, .15, roof - top, table.wood("teal"), .02, at=(x, WALL - .12, top))
    for q in (a, b):
        box(.3, 1.9, roof - top, walnut, .06, at=(q, WALL - .95, top))
    box(b - a + .9, 2.3, .4, walnut, .12, at=(x, WALL - 1.05, roof - .3))
    levels = (at_wall(0, 188, hutch).z, at_wall(0, 116, hutch).z)
    for z in levels:
        box(b - a, 1.7, .22, walnut, .05, at=(x, WALL - .95, z - .22))
        tube([(a, WALL - 1.5, z + .28), (b, WALL - 1.5, z + .28)], .06, walnut, 8)
    rims = ("blue", "red", "teal", "green", "blue", "copper", "teal", "red")
    for j, z in enumerate(levels):
        for i in range(4):
            r = 1.12 if j else 1.3
            put(painted(rims[i + 4 * j], j == 0), a + (b - a) * (i + .5) / 4 - .1, WALL - 1.15, z + r * .98, tilt=76, scale=r / 4.045)
    for i in range(5):
        cup_ = table.bowl(1.5, 1.9, ("ece6da", "d8c9a4", "ece6da", "c9d2cc", "ece6da")[i], rim=("teal", "red", "blue", "green", "teal")[i])
        handle = tube(curve_points([(1.35, 0, 1.4), (2.1, 0, 1.3), (2.1, 0, .6), (1.1, 0, .5)], 6), .14, table.porcelain(), 10)
        put(group([cup_, handle]), a + (b - a) * (i + .5) / 5, WALL - 1.3, levels[1] - 1.15, 40, scale=.34)
        q = a + (b - a) * (i + .5) / 5
        tube([(q + .5, WALL - 1.3, levels[1] - .2), (q + .5, WALL - 1.3, levels[1] - .6)], .03, table.brass(), 6)
    for i, (px, col) in enumerate(((936, "6e1d14"), (966, "8a5a1c"), (992, "3a4a1c"))):
        p = at_wall(px, 262, 33.4)
        preserve(p.x, 33.4, top, col, 1 - .08 * (i % 2))
    jug(at_wall(1052, 262, 33.2).x, 33.2, top)


def painted(rim, fish):
    """A plate with a painted fish or a wreath in the middle, lying."""
    parts = [table.plate(4.0, "e9e0cc", rim)]
    ink = mat("paint" + rim, {"blue": "1d3f5f", "red": "8a3020", "teal": "16474c", "green": "3f6b35", "copper": "9a5a2c"}[rim], .3, coat=.5)
    if fish:
        parts.append(put(fishicon(1.1, ink, .02), 0, 0, .15))
    else:
        for k in range(9):
            q = 2 * math.pi * k / 9
            parts.append(put(sphere(.3, ink, scale=(1, .45, .06), n=14), 1.5 * math.cos(q), 1.5 * math.sin(q), .15, turn=math.degrees(q) + 55))
        parts.append(put(sphere(.4, ink, scale=(1, 1, .05), n=16), 0, 0, .15))
    return group(parts)


def preserve(x, y, z, col, s):
    """Jar of something put up for the winter, a cloth over its lid."""
    parts = [lathe(smooth_profile([(.01, 0), (.6, 0), (.66, .1), (.66, 1.15), (.5, 1.35), (.5, 1.5)], 5), mat("jam" + col, col, .08, .5, coat=1), 32)]
    parts.append(lathe(smooth_profile([(.74, 1.3), (.62, 1.48), (.56, 1.62), (.3, 1.68), (.01, 1.68)], 5), table.fabric("linen"), 32))
    parts.append(put(table.torus(.55, .04, mat("bast", "b59b64", .8), 32, 8), 0, 0, 1.47))
    parts.append(put(box(.62, .04, .42, mat("page", "efe3c6", .8), .01), 0, -.65, .45))
    return put(group(parts), x, y, z, scale=s)


def jug(x, y, z):
    glaze = mat("glaze", ((.35, "6b3a1c"), (.5, "8a4f28"), (.65, "a5683a")), .22, coat=.7, noise=1.2)
    body = lathe(smooth_profile([(.01, 0), (.7, 0), (.95, .5), (.9, 1.2), (.55, 1.8), (.6, 2.2), (.66, 2.3), (.55, 2.2), (.45, 1.8), (.01, 1.7)], 6), glaze, 48)
    band = lathe([(.955, .62), (.965, .7), (.96, .8)], table.porcelain("d9cba6"), 48)
    handle = tube(curve_points([(.55, 0, 2.0), (1.2, 0, 1.9), (1.25, 0, 1.1), (.9, 0, .75)], 6), .12, glaze, 12)
    return put(group([body, band, handle]), x, y, z, 30)


def tableware():
    """A few calm things on the ends of the table."""
    p = at_height(-112, 372, TABLE)
    put(table.board(7.6, 4.6, "pale", False, .35, .5), p.x, p.y, p.z, 12, scale=.5)
    put(loaf(), p.x - .2, p.y + .1, p.z + .18, 24, scale=.9)
    stand(table.bowl(3.4, 2.1, "8a5a34", inside="b9966a"), -128, 492, 104, 6.8)
    p = at_height(-128, 492, TABLE)
    onion = mat("onionskin", ((.4, "8a4a1a"), (.6, "c98a3c")), .35, coat=.5, noise=1.5, stretch=(3, 3, .3))
    for i, (x, y, z) in enumerate(((-.42, .1, .55), (.42, .2, .55), (0, -.4, .55), (.05, .1, 1.0))):
        put(sphere(.46, onion, scale=(1, 1, .88), n=28), p.x + x, p.y + y, p.z + z, turn=i * 60, tilt=20 * i)
    p = at_height(930, 366, TABLE)
    put(table.bowl(3.2, 1.8, "c9b892", rim="red"), p.x, p.y, p.z, scale=.46)
    egg = mat("eggshell", ((.4, "cfa27a"), (.6, "e2c3a0")), .5, .4, noise=1.4)
    for i in range(6):
        q = i * 1.15
        put(sphere(.36, egg, scale=(1, .8, .8), n=20), p.x + .62 * math.cos(q), p.y + .62 * math.sin(q), p.z + .62 + .12 * (i % 2), turn=i * 70)
    c = table.cloth("teal", 8, 5, folds=.25)
    p = at_height(1010, 478, TABLE)
    put(c, p.x, p.y, p.z, 16, scale=.46)
    stand(food.lemon_half(1.0), 930, 446, 26, 2.0, turn=40)


def loaf():
    """A round loaf of rye bread, floured, cut crosswise on top."""
    crust = mat("crust", ((.36, "3f220f"), (.5, "6b3f1c"), (.62, "9a6a38"), (.7, "cdb893")), .75, .2, noise=1.6, detail=10, bump=.35, bumpscale=9)
    o = sphere(1.3, crust, scale=(1.25, 1, .62), n=48, rough=.05, roughscale=1.6)
    o.location.z = .7
    cuts = [put(sphere(.5, mat("cutcrust", "c79a62", .8), scale=(1.1, .07, .1), n=16), -.5 + .5 * k, 0, 1.47 - .06 * abs(k - 1), turn=70) for k in range(3)]
    return group([o] + cuts)


def lights():
    """The stove's glow and a breath of the window; both end before the middle of the room."""
    p = at_wall(-170, 120, 24)
    area((p.x, p.y, p.z + 4), (p.x - 1, 33, 9), 3, 900, "ffc98a")
    p = at_wall(985, 60, 25)
    area((p.x, p.y, p.z + 3), (p.x + 1, 35, 11), 3, 1000, "ffd2a0")
