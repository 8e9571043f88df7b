# SPDX-License-Identifier: GPL-3.0-or-later
"""What hangs on the wall or stands along it."""
import math
import random


from lib import core, fish as fishlib, food, table
from lib.core import box, group, lathe, mat, mesh, outline_solid, put, smooth_profile, sphere
from .place import WALL, at_wall
from .room import pond
from .tablethings import fishicon


def door():
    a, b = at_wall(705, 40), at_wall(806, 40)
    w, h = b.x - a.x, at_wall(750, 34).z
    fr = table.wood("walnut", "z")
    box(.55, .7, h + .5, fr, .08, at=(a.x - .2, WALL - .2, 0))
    box(w + 1.4, .8, .6, fr, .08, at=((a.x + b.x) / 2, WALL - .22, h))
    mesh([(a.x, WALL - .05, 0), (b.x, WALL - .05, 0), (b.x, WALL - .05, h), (a.x, WALL - .05, h)], [(0, 1, 2, 3)], pond(), False, uv=[(.0, .0), (.6, .0), (.6, .97), (.0, .97)])
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
    leaf = mesh([(x * w * .31, y * h * .265, .04 + .05 * math.sin(x * 3)) for x in [i / 8 for i in range(9)] for y in (-1, 1)], core.grid_faces(9, 2), page)
    fi = put(fishicon(.6, mat("inkred", "b8402a", .6), .02), w * .16, 0, .12)
    pivot = group([leaf, fi])
    put(pivot, 0, 0, .36)
    g = group(objs + [pivot])
    put(g, p.x, WALL - .12, p.z, tilt=90)
    return pivot


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
    eye = magic_eye(.34)
    holder = put(group(eye), w * .33, h * .3, d + .1)
    g = group([case, cloth_, dial, needle, holder] + slats + marks + knobs)
    put(g, (a.x + b.x) / 2, WALL - .1, z + h / 2, tilt=90)
    return needle, knobs, w, eye[:2]


def magic_eye(r):
    """The tuning eye: two green fans that meet when the station is sharp, in a brass ring."""
    fans = []
    for s in (-1, 1):
        rim = [(s * r * math.sin(a), r * math.cos(a)) for a in [math.radians(18 + 144 * i / 12) for i in range(13)]]
        fans.append(mesh([(0, 0, .03)] + [(x, y, .03) for x, y in rim], [(0, i, i + 1) if s < 0 else (0, i + 1, i) for i in range(1, 13)], mat("eyegreen", "4ae08a", .4, emit="1fae5a", emit_strength=.7), False))
    ring = lathe(smooth_profile([(r * .98, .02), (r * 1.05, .12), (r * 1.22, .1), (r * 1.25, 0)], 4), mat("eyebrass", "d9b35e", .25, metal=1), 32)
    back = lathe([(.01, 0), (r, 0)], mat("eyedark", "06140e", .2, coat=.6), 32)
    return fans + [ring, back]


def cloche():
    m = mat("silver", ((.3, "b9bdbb"), (.7, "dfe0da")), .27, metal=1.0, noise=1)
    tray = lathe(smooth_profile([(.01, .12), (2.9, .12), (3.1, .2), (3.5, .34), (3.55, .28), (3.0, 0), (.01, 0)], 5), m, 96)
    dome = [lathe(smooth_profile([(2.75, 0), (2.85, .06), (2.75, .2), (2.68, .9), (2.2, 1.85), (1.2, 2.4), (.3, 2.52), (.01, 2.54)], 7), m, 96), lathe(smooth_profile([(.1, 2.5), (.12, 2.75), (.34, 2.9), (.36, 3.1), (.16, 3.22), (.01, 3.22)], 5), table.copper(), 32)]
    d = group(dome)
    inside = [put(fishlib.fish("trout", "fried", 3.6, seed=40), 0, .1, .14), put(food.lemon_half(.5), 1.2, -.9, .14), put(food.sprig("parsley", .8), -1.3, -.8, .14)]
    put(d, 0, 0, .2)
    return group([tray, d] + inside), d


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


def wine():
    b = table.bottle(8.6, 1.05)
    gl = thinned(table.wineglass(5.0, 1.15, None))
    liquid, top = wineliquid()
    glass = put(group([gl, liquid]), 2.3, -.9, 0)
    grapes = []
    gm = mat("grape", ((.4, "2a0f2c"), (.6, "5a2348")), .2, coat=.6, sss=.05)
    for i in range(16):
        a = i * 2.4
        q = .28 * math.sqrt(i)
        grapes.append(put(sphere(.36, gm, n=16), 3.9 + q * math.cos(a), -1.1 + q * math.sin(a) * .8, .35 + .28 * max(0, 1.4 - q)))
    return group([b, glass] + grapes), glass, liquid, top


def wineliquid():
    h, r = 5.0, 1.15
    hb = h * .44
    inn = smooth_profile([(r - .05, hb + (h - hb) * .5), (r * .8 - .06, hb + (h - hb) * .27), (.2, hb + .1), (0.01, hb + .06)], 6)
    zt = inn[0][1]
    wide = inn[0][0] - .012
    body = lathe([(.01, zt), (wide * .5, zt), (wide, zt)] + [(max(.01, a - .012), z) for a, z in inn[1:]], mat("winered", "9a1226", .05, trans=.35, ior=1.2, coat=.6), 48)
    return body, zt


def thinned(g):
    for o in core.tree(g):
        if o.type == "MESH":
            o.data.materials[0] = core.thin_glass("thinglass", "eef6f4", 1.4)
    return g
