# SPDX-License-Identifier: GPL-3.0-or-later
"""Small rendered things of the bars, frames, cursors and message icons.

blender -b -P art/prvky.py -- all | NAME …     (those that exist are skipped with "all")
"""
import math
import os
import random
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import bpy  # noqa: E402
import numpy as np  # noqa: E402

import stin  # noqa: E402
from lib import core, fish as fishlib, food, table  # noqa: E402
from lib.core import box, curve_points, group, lathe, mat, mesh, outline_solid, put, smooth_profile, sphere, text, tube  # noqa: E402

OUT = os.path.join(core.RENDERED, "prvky")


# ---------------------------------------------------------------- materials and shapes used by several

def cop():
    return mat("icopper", ((.35, "d08f50"), (.65, "eab07c")), .27, metal=1.0, noise=.7, detail=3)


def darkcop():
    return mat("idark", "5a3218", .35, metal=1.0)


def cream():
    return mat("icream", "f4ead2", .5, coat=.2)


def teal():
    return mat("iteal", "16555c", .25, coat=.6)


def red():
    return mat("ired", "b8402a", .28, coat=.6)


def ink():
    return mat("iink", "2b1d12", .6)


def lens_glass():
    return core.thin_glass("ilens", "d6efee", 1.5)


def poly(points, depth=.45, m=None, bevel=.09, holes=()):
    return outline_solid(points, depth, m or cop(), bevel, 4, holes)


def arrowhead(w=1.6, h=1.5, bevel=.1, m=None):
    return poly([(-w / 2, -h / 2), (w / 2, -h / 2), (0, h / 2)], .5, m, bevel)


def arc(R, w, a0, a1, n=40):
    """Outline of a thick arc, degrees."""
    a = [math.radians(a0 + (a1 - a0) * i / n) for i in range(n + 1)]
    return [((R + w / 2) * math.cos(x), (R + w / 2) * math.sin(x)) for x in a] + [((R - w / 2) * math.cos(x), (R - w / 2) * math.sin(x)) for x in reversed(a)]


def circle(r, n=64, at=(0, 0)):
    return [(at[0] + r * math.cos(2 * math.pi * i / n), at[1] + r * math.sin(2 * math.pi * i / n)) for i in range(n)]


def crossed(r, w):
    """Outline of a cross of two bars, 2 r long and 2 w wide."""
    q = [(r, -w), (r, w), (w, w)]
    return [(x * c - y * s, x * s + y * c) for c, s in ((1, 0), (0, 1), (-1, 0), (0, -1)) for x, y in q]


def fishshape(s=1.0, depth=.1, m=None, bevel=.03):
    pts = curve_points([(-1, 0), (-.75, .3), (-.25, .46), (.3, .28), (.62, .1), (1.05, .42), (.96, 0), (1.05, -.42), (.62, -.1), (.3, -.28), (-.25, -.46), (-.75, -.3), (-1, 0)], 6)
    return poly([(x * s, y * s) for x, y in pts[:-1]], depth, m or teal(), bevel)


def facing(o, tilt=30, z=0.0):
    """Turns a flat thing up towards the eye."""
    return put(group([o]), 0, 0, z + 2.0 * math.sin(math.radians(tilt)) + .12, tilt=tilt)


def sheet(w=2.4, h=3.0, lines=5, top=.62, m=None):
    parts = [outline_solid(table.rounded_rect(w, h, .08), .08, m or cream(), .02, 1)]
    for i in range(lines):
        l = w * (.72 if i < lines - 1 else .45)
        parts.append(put(box(l, .09, .02, ink(), 0), -w * .36 + l / 2, h * (top - .5) - i * h * .1, .08))
    return group(parts)


# ---------------------------------------------------------------- the things, by file name

def Tisk():
    body = [box(3.3, 2.1, 1.2, mat("printer", "d9ceb4", .35, coat=.4), .22), put(box(3.35, 2.15, .25, cop(), .1), 0, 0, .42), put(box(2.4, .1, .3, ink(), .03), 0, -1.02, .72)]
    page = put(sheet(2.2, 1.7, 0), 0, .75, 1.05, tilt=66)
    out = put(sheet(2.2, 1.9, 4, .8), 0, -1.75, .34, tilt=8)
    lamp = put(sphere(.1, mat("greenlamp", "6fae3a", emit="8fd04a", emit_strength=2), n=12), 1.25, -1.05, .95)
    return group(body + [page, out, lamp])


def Help():
    return facing(text("?", 6.0, cop(), .7, .1))


def Zpet():
    a = poly(arc(1.25, .62, -110, 150), .5)
    h = put(arrowhead(1.75, 1.35), -1.45, .28, .04, turn=-155 + 10)   # a little above the bow, so that the two do not flicker
    return facing(put(group([a, h]), .35, 0, 0, scale=.95))


def Konec():
    fr = [box(.28, .4, 3.6, cop(), .06, at=(-1.15, 0, 0)), box(.28, .4, 3.6, cop(), .06, at=(1.15, 0, 0)), box(2.58, .4, .3, cop(), .06, at=(0, 0, 3.4))]
    out = mesh([(-1, .1, 0), (1, .1, 0), (1, .1, 3.4), (-1, .1, 3.4)], [(0, 1, 2, 3)], mat("night", "0e3a40", emit="2a7d86", emit_strength=.7), False)
    leaf = group([put(box(1.95, .2, 3.3, table.wood("walnut", "z"), .05), .98, 0, 0), put(box(1.3, .1, 1.1, table.wood("walnut", "z"), .05), .98, -.12, .4), put(box(1.3, .1, 1.1, table.wood("walnut", "z"), .05), .98, -.12, 1.9), put(sphere(.14, table.brass(), n=16), 1.72, -.22, 1.65)])
    put(leaf, -1, -.1, 0, turn=-32)
    return put(group(fr + [out, leaf]), scale=.95)


def Hudba():
    m = cop()
    heads = [put(sphere(.62, m, scale=(1.2, .9, .55), n=32), x, y, .3, turn=22) for x, y in ((-1.1, -1.3), (1.2, -1.0))]
    stems = [put(box(.2, 2.9, .3, m, .06), x, y, .2) for x, y in ((-.48, .1), (1.82, .4))]
    beam = poly([(-.58, 1.05), (1.92, 1.35), (1.92, 2.0), (-.58, 1.7)], .36, m)
    return facing(put(group(heads + stems + [beam]), -.2, -.1, 0))


def _speaker():
    return [poly([(-1.9, -.6), (-1.15, -.6), (-.2, -1.45), (-.2, 1.45), (-1.15, .6), (-1.9, .6)], .7, cop(), .12)]


def ZvukOn():
    return facing(group(_speaker() + [poly(arc(r, .26, -48, 48), .3, mat("wave", "f1c98c", .25, metal=.6, coat=.5), .06) for r in (.75, 1.35, 1.95)]))


def ZvukOff():
    return facing(group(_speaker() + [put(poly(crossed(.85, .16), .4, red(), .07), 1.0, 0, .1, turn=45)]))


def Foto():
    import kitchen as H
    g, btn, bulb = H.photo_camera()
    for o in list(core.tree(g))[-1:]:
        o.hide_render = True
    return put(g, 0, 0, 0, turn=18, scale=1.12)


def Vino():
    return put(table.wineglass(4.6, 1.25, "red", .55), 0, 0, 0, scale=.92)


def Recept():
    s = sheet(2.7, 3.4, 4, .48)
    f = put(fishshape(.95, .1, red()), 0, .95, .09)
    b = [outline_solid(table.rounded_rect(2.95, 3.65, .12), .07, cop(), .02)]
    return facing(group([put(s, 0, 0, .08), put(f, 0, .95, .17)] + b))


def Uvod():
    v = []
    n = 16
    parts = []
    for s in (-1, 1):
        v = []
        for i in range(n):
            u = i / (n - 1)
            for y in (-1, 1):
                v.append((s * u * 2.0, y * 1.5, .35 + .32 * math.sin(u * 2.9) - .15 * u))
        o = mesh(v, core.grid_faces(n, 2), cream())
        sol = o.modifiers.new("t", "SOLIDIFY")
        sol.thickness = .16
        parts.append(o)
        parts.append(put(box(2.2, 3.3, .12, red(), .05), s * 1.08, 0, .12, roll=s * 3))
        for r in range(6 if s < 0 else 3):
            parts.append(put(box(1.3, .09, .02, ink(), 0), s * 1.0, (.95 if s < 0 else -.25) - r * .36, .72))
    parts.append(put(fishshape(.62, .06, red()), 1.0, .65, .72))
    return facing(group(parts), 24)


def Odkazy():
    a = put(sheet(1.9, 2.4, 4, .8), -.95, .45, .1, turn=8)
    b = put(sheet(1.9, 2.4, 4, .8), .95, -.45, .1, turn=8)
    links = [put(table.torus(.5, .14, cop(), 48), -.28, .05, .42, turn=20, scale=(1.3, .8, 1)), put(table.torus(.5, .14, cop(), 48), .36, -.12, .42, turn=20, tilt=62, scale=(1.3, .8, 1))]
    return facing(group([a, b] + links), 26)


def Suroviny():
    m = table.brass()
    post = lathe(smooth_profile([(.01, 0), (.95, 0), (.95, .16), (.3, .35), (.12, .6), (.1, 2.9), (.2, 3.0), (.01, 3.25)], 5), m, 48)
    beam = tube(curve_points([(-1.7, 0, 2.75), (-.8, 0, 3.05), (0, 0, 2.95), (.8, 0, 3.05), (1.7, 0, 2.95)], 6), .09, m, 10)
    parts = [post, beam]
    for s, z in ((-1, 1.25), (1, 1.45)):
        top = (s * 1.7, 0, 2.75 if s < 0 else 2.95)
        parts.append(put(lathe(smooth_profile([(.01, 0), (.5, .06), (.85, .3), (.9, .33), (.86, .36), (.5, .12), (.01, .07)], 5), cop(), 48), s * 1.7, 0, z))
        for k in range(3):
            q = 2 * math.pi * k / 3 + .5
            parts.append(tube([top, (s * 1.7 + .85 * math.cos(q), .85 * math.sin(q), z + .33)], .025, m, 5))
    parts.append(put(food.lemon_half(.55), -1.7, 0, 1.3, tilt=-12))
    parts.append(put(weight(.34), 1.7, 0, 1.52))
    return put(group(parts), scale=.98)


def weight(r):
    return lathe(smooth_profile([(.01, 0), (r, 0), (r, .08 * r), (r, 1.5 * r), (r * .75, 1.75 * r), (r * .3, 1.85 * r), (r * .28, 2.1 * r), (r * .48, 2.3 * r), (r * .4, 2.6 * r), (.01, 2.68 * r)], 6), table.brass(), 48)


def Pomucky():
    wires = []
    for k in range(6):
        a = math.pi * k / 6
        pts = []
        for i in range(25):
            q = math.pi * i / 24
            w = math.cos(q) * math.sin(q) ** .3 if 0 < i < 24 else 0
            pts.append((.2 + 2.2 * math.sin(q), .8 * w * math.cos(a), .75 + .65 * w * math.sin(a)))
        wires.append(tube(pts, .045, table.steel(), 6))
    handle = tube([(.25, 0, .75), (-.4, 0, .75), (-2.2, 0, .75)], [.17, .22, .26], table.wood("walnut"), 16)
    wh = put(group(wires + [handle]), 0, 0, -.1, turn=48, scale=.95)
    kn = put(table.knife(4.2), -.5, 1.2, .05, turn=-48)
    return facing(group([wh, kn]), 18)


def Vlastni():
    s = put(sheet(2.6, 3.0, 5, .8), -.2, 0, 0, turn=-6)
    body = tube([(0, 0, 0), (2.2, 0, 0)], .2, mat("pencil", "c98a1c", .3, coat=.6), 6)
    tip = tube([(0, 0, 0), (-.5, 0, 0)], [.2, .05], table.wood("pale"), 6)
    lead = tube([(-.45, 0, 0), (-.62, 0, 0)], [.06, .01], ink(), 6)
    fer = tube([(2.2, 0, 0), (2.45, 0, 0)], .21, table.brass(), 12)
    rub = tube([(2.45, 0, 0), (2.75, 0, 0)], .19, mat("rubber", "c9705a", .7), 12)
    p = put(group([body, tip, lead, fer, rub]), -.1, -.75, .3, turn=48, roll=-8)
    return facing(group([s, p]), 26)


def key(colour, *signs):
    """A key of a player: an enamelled dome in a copper ring, the sign raised on it in ivory."""
    enamel = mat("key" + colour, colour, .16, .5, coat=.9)
    ring = lathe(smooth_profile([(1.98, .0), (2.28, .05), (2.36, .25), (2.24, .46), (2.05, .44), (1.96, .3)], 5), cop(), 72)
    dome = lathe(smooth_profile([(.01, .52), (.8, .5), (1.5, .43), (2.0, .3)], 6), enamel, 72)
    return facing(group([ring, dome] + [put(poly(s, .3, mat("keysign", "fbf1d8", .35, coat=.5, emit="fbf1d8", emit_strength=.12), .07), 0, 0, .42) for s in signs]), 32)


def bar(x, w=.44, h=1.9):
    return [(x - w / 2, -h / 2), (x + w / 2, -h / 2), (x + w / 2, h / 2), (x - w / 2, h / 2)]


def pointer(x, s=1):
    """Triangle whose middle is at x, pointing right (s = 1) or left."""
    return [(x - .62 * s, -1.0), (x + .92 * s, 0), (x - .62 * s, 1.0)][::s]


def Hrat():
    return key("2f6b3a", pointer(0))


def Stop():
    return key("a83722", bar(0, 1.6, 1.6))


def Pauza():
    return key("16555c", bar(-.48, .5), bar(.48, .5))


def NaZacatek():
    return key("16555c", bar(-.95, .36), pointer(.25, -1))


def NaKonec():
    return key("16555c", bar(.95, .36), pointer(-.25))


def small(points, x, y=0, s=.62):
    return [(x + s * px, y + s * py) for px, py in points]


def KapZpet():
    """Two pointers to the left: to the chapter before."""
    return key("7a4a1c", small(pointer(0, -1), -.55, s=.78), small(pointer(0, -1), .6, s=.78))


def KapDal():
    return key("7a4a1c", small(pointer(0), -.6, s=.78), small(pointer(0), .55, s=.78))


def Znovu():
    """An arrow that turns round to its beginning: the chapter once more."""
    def bow(r, a0, a1):
        return [(r * math.cos(a), r * math.sin(a)) for a in [math.radians(a0 + (a1 - a0) * i / 24) for i in range(25)]]
    return key("7a4a1c", bow(1.12, -200, 70) + bow(.7, 70, -200), [(-1.5, .1), (-.34, .1), (-.92, 1.05)])


def Pomalu():
    """One half: at half the speed."""
    one = [(-.95, .1), (-.65, .1), (-.65, 1.15), (-.88, 1.15), (-1.2, .92), (-1.1, .72), (-.95, .8)]
    stroke = [(-.95, -1.1), (-.68, -1.1), (.95, 1.1), (.68, 1.1)]
    two = [(.25, -1.15), (1.2, -1.15), (1.2, -.92), (.66, -.92), (1.14, -.48), (1.18, -.25), (1.08, -.06), (.92, .05), (.7, .08), (.48, .02), (.34, -.12), (.26, -.32), (.5, -.36), (.56, -.22), (.7, -.15), (.86, -.2),
           (.92, -.32), (.84, -.46), (.25, -.95)]
    return key("16555c", one, stroke, two)


def Lupa():
    ring = put(table.torus(1.25, .2, cop()), -.4, .4, .5)
    gl = put(sphere(1.22, lens_glass(), scale=(1, 1, .16), n=40), -.4, .4, .5)
    h = tube([(.5, -.5, .5), (.8, -.8, .5), (2.1, -2.1, .45)], [.16, .24, .3], table.wood("walnut"), 20)
    return facing(group([ring, gl, h, put(sheet(2.4, 2.6, 6, .92), -.55, .35, .02)]), 26)


def lzice():
    return put(table.spoon(4.6, cop()), -1.7, -1.2, .1, turn=40, tilt=14)


def zavazi():
    return put(group([put(weight(.85), -.95, .2, 0), put(weight(.62), .6, -.35, 0), put(weight(.42), 1.65, -.75, 0)]), -.1, .1, 0)


def _cutlery(n, s):
    gr = []
    m = mat("isilver", ((.3, "c2c2bc"), (.7, "efece2")), .18, metal=1)
    for i in range(n):
        x = (i - (n - 1) / 2) * (4.0 / n if n > 1 else 1)
        f = put(table.fork(2.5, m), x - .30 * (1 if n < 3 else .62), -.3, .1, turn=90, scale=(1, .86 if n < 3 else .7, 1))
        k = put(table.tableknife(2.5, m), x + .38 * (1 if n < 3 else .62), -.3, .1, turn=90, scale=(1, .95 if n < 3 else .8, 1))
        gr += [f, k]
    gr.append(put(text(s, 3.1, mat("digit", "f0b878", .25, metal=.7, coat=.5), .5, .07), 0, -1.6, .1))
    return facing(group(gr), 30)


def Pribor2():
    return _cutlery(1, "2")


def Pribor4():
    return _cutlery(2, "4")


def Pribor6():
    return _cutlery(3, "6")


def Pribor8():
    return _cutlery(4, "8")


def Pribor10():
    return _cutlery(1, "?")


def Jablko():
    pr = smooth_profile([(.01, .22), (.35, .05), (.95, .12), (1.5, .75), (1.62, 1.55), (1.3, 2.35), (.7, 2.62), (.25, 2.42), (.01, 2.2)], 8)
    a = lathe(pr, mat("apple", ((.3, "8a1a10"), (.5, "c03a1c"), (.7, "e0a03a")), .18, .6, coat=.8, noise=.7, stretch=(1, 1, .3), detail=4), 64)
    st = tube(curve_points([(0, 0, 2.2), (.06, 0, 2.7), (.25, 0, 3.05)], 5), [.07] * 5 + [.1] * 6, mat("stalk", "4a2f18", .6), 8)
    lf = put(food.leaf("basil", 1.5), .75, -.05, 2.85, turn=12, roll=-22)
    return put(group([a, st, lf]), 0, 0, .12, scale=1.05)


def _chevrons(n, turn):
    """One chevron or two above each other, pointing up, turned."""
    low, notch = (-1.0, -.1) if n == 1 else (-.75, .1)
    pts = [(-1.6, -.55), (0, .85), (1.6, -.55), (1.6, low), (0, notch), (-1.6, low)]
    parts = [put(poly(pts, .55, cop(), .12), 0, y, 0) for y in ((.1,) if n == 1 else (.75, -.65))]
    return facing(put(group(parts), turn=turn))


def SipkaNahoru():
    return _chevrons(1, 0)


def SipkaDolu():
    return _chevrons(1, 180)


def SipkaNahoruRychle():
    return _chevrons(2, 0)


def SipkaDoluRychle():
    return _chevrons(2, 180)


def _check(on):
    r = table.rounded_rect
    parts = [poly(r(3.2, 3.2, .35), .4, cop(), .1, holes=[r(2.5, 2.5, .2)]), outline_solid(r(2.7, 2.7, .2), .12, mat("well", "0b2226", .5), .02)]
    if on:
        parts.append(put(poly([(-1.1, .1), (-.75, .5), (-.25, -.1), (1.1, 1.55), (1.5, 1.25), (-.2, -.95)], .35, mat("tick", "f1d98a", .25, metal=.5, coat=.6), .09), -.1, -.1, .3))
    return facing(group(parts))


def Zaskrtnuto():
    return _check(True)


def Nezaskrtnuto():
    return _check(False)


def _option(on):
    parts = [poly(circle(1.65), .4, cop(), .1, holes=[circle(1.25)]), outline_solid(circle(1.4), .12, mat("well", "0b2226", .5), .02)]
    if on:
        parts.append(put(sphere(.78, mat("tick", "f1d98a", .25, metal=.5, coat=.6), scale=(1, 1, .6)), 0, 0, .3))
    return facing(group(parts))


def VolbaAno():
    return _option(True)


def VolbaNe():
    return _option(False)


def Skupina0():
    b = table.bowl(1.9, 1.15, "ece6da", rim="teal")
    l = food.liquid("fishsoup", 1.72, .92)
    parts = [b, l]
    for i in range(6):
        parts.append(put(food.dice(random.choice(("carrot", "celeriac")), .4), 1.1 * math.cos(i * 2.2) * .8, 1.1 * math.sin(i * 2.2) * .8, .86, turn=i * 40))
    parts += [put(food.cube("white", "poached", .6), .25, -.35, .75), put(food.sprig("parsley", .55), -.2, .35, .9)]
    return group(parts)


def Skupina1():
    p = table.pan(1.7, .45, "iron", True, turn=25)
    f = put(fishlib.fish("trout", "fried", 2.5, cuts=3, seed=3), .05, .05, .12, turn=15)
    return put(group([p, f, put(food.lemon_slice(.36), .2, .1, .55, tilt=8)]), -.8, -.25, 0, scale=.82)


def Skupina2():
    p = table.plate(1.95, rim="teal")
    parts = [p, put(food.lettuce(1.0, 3), -.3, .3, .1)]
    parts += [put(food.rolled(.42, .8, 3), .3, -.35, .12, turn=20), put(food.egg_half(.36), -.75, -.5, .1, turn=30, tilt=-12), put(food.tomato_wedge(.5), .85, .55, .1, turn=60), put(food.onion_ring(.36, "red"), -.1, .55, .3, tilt=20)]
    return group(parts)


def Skupina3():
    m = mat("silver", ((.3, "b9bdb9"), (.7, "dfe0da")), .15, metal=1, noise=1)
    tray = lathe(smooth_profile([(.01, .1), (1.6, .1), (1.8, .2), (2.0, .26), (2.0, .2), (1.7, 0), (.01, 0)], 5), m, 96)
    tray.scale = (1.12, .82, 1)
    f = put(fishlib.fish("salmon", "poached", 2.9, seed=6), 0, .1, .1, turn=6)
    parts = [tray, f]
    for i in range(5):
        parts.append(put(food.cucumber_slice(.26, .06), -.7 + i * .33, .2, .55, tilt=12))
    parts += [put(food.lemon_half(.35), 1.1, -.75, .1), put(food.lemon_half(.35), -1.2, -.7, .1), put(food.sprig("parsley", .55), .2, -.85, .1)]
    return group(parts)


def _disc(col, sym):
    parts = [poly(circle(1.95), .35, cop(), .12), put(outline_solid(circle(1.7), .3, col, .1), 0, 0, .2)]
    parts.append(put(text(sym, 3.0, cream(), .3, .05), 0, 0, .45) if isinstance(sym, str) else put(sym, 0, 0, .45))
    return facing(group(parts))


def Ikona1():
    x = group([put(poly(crossed(1.1, .2), .3, cream(), .06), 0, 0, .05, turn=45)])
    return _disc(red(), x)


def Ikona2():
    return _disc(teal(), "?")


def Ikona3():
    t = [(2.05 * math.cos(math.radians(a)), 2.05 * math.sin(math.radians(a)) - .25) for a in (90, 210, 330)]
    s = [(x * .84, (y + .25) * .84 - .25) for x, y in t]
    rnd = lambda p: [(p[i][0] * (1 - f) + p[(i + 1) % 3][0] * f, p[i][1] * (1 - f) + p[(i + 1) % 3][1] * f) for i in range(3) for f in (.08, .92)]
    return facing(group([poly(rnd([(x * 1.12, y * 1.12) for x, y in t]), .35, cop(), .12), put(outline_solid(rnd([(x * 1.05, y * 1.05) for x, y in s]), .3, mat("amber", "dca032", .28, coat=.6), .08), 0, 0, .2), put(text("!", 2.5, ink(), .3, .05), 0, -.12, .45)]))


def Ikona4():
    return _disc(mat("igreen", "3f6b35", .28, coat=.6), "i")


# ---------------------------------------------------------------- frames and strips, seen straight from above

def sweep(w, h, profile, m):
    """A frame of size w x h whose section runs inwards: (distance from the outer edge, height)."""
    v = []
    for d, z in profile:
        for x, y in ((-1, -1), (1, -1), (1, 1), (-1, 1)):
            v.append((x * (w / 2 - d), y * (h / 2 - d), z))
    o = mesh(v, [tuple(reversed(f)) for f in core.grid_faces(len(profile), 4, True)], m, True)
    o.data.use_auto_smooth = True
    o.data.auto_smooth_angle = math.radians(50)
    return o


def plaincop(c="c98a52", rough=.3):
    return mat("pcop" + c, c, rough, metal=1.0)


RAISED = smooth_profile([(0, 0), (.06, .2), (.22, .36), (.42, .42), (.6, .36), (.74, .22), (.82, .12), (.9, .1), (1.0, .0)], 4)
PRESSED = smooth_profile([(0, .1), (.1, .18), (.22, .14), (.36, -.06), (.55, -.2), (.75, -.16), (.88, -.02), (.95, .06), (1.0, .04)], 4)


def topdown(width, height):
    """Camera straight above; 24 px are one unit. Even light, so that the strips tile."""
    core.camera((0, 0, 20), (0, 0, 0), ortho=max(width, height) / 24)
    core.world("4a6a70", .55)
    l = bpy.data.lights.new("s", "SUN")
    l.energy, l.color, l.angle = 4.2, core.rgb("ffe2bd"), .25
    o = bpy.data.objects.new("s", l)
    o.rotation_euler = (math.radians(-38), math.radians(-38), 0)
    core.scene.collection.objects.link(o)
    m = core.bpy.data.lights.new("s", "SUN")
    m.energy, m.color, m.angle = .9, core.rgb("9fd2dc"), .4
    p = bpy.data.objects.new("s", m)
    p.rotation_euler = (math.radians(35), math.radians(40), 0)
    core.scene.collection.objects.link(p)


def RamVen():
    sweep(8, 8, RAISED, plaincop())


def RamDovnitr():
    sweep(8, 8, PRESSED, plaincop("a86f40", .36))


def Tlacitko():
    put(outline_solid(table.rounded_rect(14.7, 4.7, .7), .7, plaincop("b97b47", .34), .22, 5))
    put(outline_solid(table.rounded_rect(13.7, 3.7, .4), .5, plaincop("d69a62", .42), .1, 4), 0, 0, .4)


def TlacitkoStisk():
    put(outline_solid(table.rounded_rect(14.7, 4.7, .7), .7, plaincop("8f5a30", .34), .22, 5, holes=[table.rounded_rect(13.7, 3.7, .4)]))
    put(outline_solid(table.rounded_rect(13.9, 3.9, .4), .2, plaincop("a87040", .45), .02, 2), 0, 0, -.1)


def _strip(vertical):
    """Carved edge: dark wood, a row of drops, a copper line on the inner side; repeats every 64 px."""
    p = 64 / 24
    wd, cp = mat("pwood", "3a2112", .42, coat=.3), plaincop()
    parts = [put(box(4 * p, .95, .3, wd, .08), 0, .18, 0), put(box(4 * p, .2, .4, cp, .07), 0, -.52, 0), put(box(4 * p, .1, .5, wd, .04), 0, .6, 0)]
    for i in range(-8, 9):
        parts.append(put(sphere(.24, mat("pwood2", "5d371c", .4, coat=.3), scale=(1.15, .9, .8), n=24), (i + .5) * p / 4 * 1.0, .16, .3))
    g = group(parts)
    if vertical:
        put(g, 0, 0, 0, turn=90)
        g.scale = (1, 1, 1)
    return g


def OkrajHorni():
    _strip(False)


def OkrajLeft():
    _strip(True)


def ZAHLAVI():
    W = 1600 / 24
    put(box(W + 4, 8, .3, mat("lacquer", ((.3, "0b3036"), (.5, "0e3a40"), (.7, "114349")), .28, .5, coat=.5, noise=.25, stretch=(.15, 2, 1), detail=8), .02), 0, 0, 0)
    cp = mat("hcop", ((.35, "b9773f"), (.65, "d89a62")), .26, metal=1, noise=.3)
    for y, w in ((-3.42, .34), (-2.98, .1), (3.5, .2)):
        put(tube([(-W, 0, 0), (W, 0, 0)], w, cp, 20), 0, y, .3)
    for i in range(-60, 61):
        put(sphere(.085, cp, n=12), i * .56, -3.2 + .05, .36)


TOPDOWN = {"RamVen": (192, 192), "RamDovnitr": (192, 192), "Tlacitko": (360, 120), "TlacitkoStisk": (360, 120), "OkrajHorni": (64, 32), "OkrajLeft": (32, 64), "ZAHLAVI": (1600, 180)}


# ---------------------------------------------------------------- cursors: 64 x 64, 24 px are one unit here too

def _cursor(points, mark=()):
    """Ivory and gold within a dark rim within a light line, so that it reads on light and dark; mark is inlaid in dark."""
    points = [(.83 * x, .83 * y) for x, y in points]
    put(outline_solid(_grow(points, .3), .06, mat("cursorline", "fff4d6", .6, emit="fff4d6", emit_strength=.5), .01), 0, 0, 0)
    put(outline_solid(_grow(points, .22), .1, mat("cursorrim", "06181b", .6), .02), 0, 0, .06)
    put(outline_solid(points, .4, mat("cursortop", "f6cf86", .3, metal=.2, coat=.7, emit="f0b860", emit_strength=.25), .1, 4), 0, 0, .14)
    for x, y, r in mark:
        put(outline_solid(circle(r, 20, (.83 * x, .83 * y)), .04, mat("cursorrim", "06181b", .6), .005), 0, 0, .54)


def _grow(pts, d):
    n = len(pts)
    out = []
    area = sum(pts[i][0] * pts[(i + 1) % n][1] - pts[(i + 1) % n][0] * pts[i][1] for i in range(n))
    s = 1 if area > 0 else -1
    for i in range(n):
        (ax, ay), (bx, by), (cx, cy) = pts[i - 1], pts[i], pts[(i + 1) % n]
        n1 = (s * (by - ay), -s * (bx - ax))
        n2 = (s * (cy - by), -s * (cx - bx))
        l1, l2 = math.hypot(*n1) or 1, math.hypot(*n2) or 1
        ux, uy = n1[0] / l1 + n2[0] / l2, n1[1] / l1 + n2[1] / l2
        k = max(.35, (ux * n1[0] + uy * n1[1]) / l1)
        out.append((bx + ux / k * d, by + uy / k * d))
    return out


def _fisharrow(deg):
    """A fish that swims where the cursor leads: its head is the arrow's, the tail forks."""
    half = [(0, 1.06), (.3, .74), (.9, .06), (.4, .12), (.24, -.42), (.62, -1.02)]
    points = half + [(0, -.74)] + [(-x, y) for x, y in reversed(half[1:])]
    a = math.radians(deg)

    def turned(x, y):
        return x * math.cos(a) - y * math.sin(a), x * math.sin(a) + y * math.cos(a)
    _cursor([turned(*p) for p in points], [(*turned(.2, .5), .085), (*turned(-.2, .5), .085)])


def SIPKANAHORU():
    _fisharrow(0)


def SIPKADOLU():
    _fisharrow(180)


def SIPKAVLEVO():
    _fisharrow(90)


def SIPKAVPRAVO():
    _fisharrow(-90)


def ZPET():
    """The way back: an arrow that turns round to the left."""
    def bow(r, a0, a1):
        return [(.2 + r * math.cos(a), -.14 + r * math.sin(a)) for a in [math.radians(a0 + (a1 - a0) * i / 14) for i in range(15)]]
    _cursor([(-1.1, .42), (-.4, 1.1), (-.4, .68)] + bow(.82, 90, -90) + [(-.5, -.96), (-.5, -.6)] + bow(.4, -90, 90) + [(-.4, .26), (-.4, -.26)])


CURSORS = ("ZPET", "SIPKANAHORU", "SIPKADOLU", "SIPKAVLEVO", "SIPKAVPRAVO")
ICONS = ("Tisk Help Zpet Konec Hudba ZvukOn ZvukOff Foto Vino Recept Uvod Odkazy Suroviny Pomucky Vlastni Hrat Stop Pauza NaZacatek NaKonec KapZpet KapDal Znovu Pomalu Lupa lzice zavazi "
         "Pribor2 Pribor4 Pribor6 Pribor8 Pribor10 Jablko SipkaNahoru SipkaDolu SipkaNahoruRychle SipkaDoluRychle Zaskrtnuto Nezaskrtnuto VolbaAno VolbaNe "
         "Skupina0 Skupina1 Skupina2 Skupina3 Ikona1 Ikona2 Ikona3 Ikona4 Varime Nakup Doma Kucharka Casovac "
         "Oddeleni0 Oddeleni1 Oddeleni2 Oddeleni3 Oddeleni4 Oddeleni5 Oddeleni6 Hostina").split()
FINE = "Vino Jablko Pribor2 Pribor4 Pribor6 Pribor8 Pribor10".split()   # glass and silver, which stay grainy else
STANDING = {"Konec": (10, 1.75, 6.2), "Vino": (10, 2.1, 6.4), "Suroviny": (14, 1.7, 6.4), "Jablko": (20, 1.55, 5.6), "Foto": (22, 1.0, 6.0), "Tisk": (34, .8, 6.6), "zavazi": (24, 1.05, 5.6)}


def studio(name):
    """Light and eye for a bar thing: the same lamp from the left as everywhere, with a soft shadow under it."""
    high, mid, span = STANDING.get(name, (52, 1.15, 5.9))
    core.world("b8a890", .8)
    core.area((-6, -1.0, 7.5), (0, 0, 1), 4.2, 1300, "ffe0b4")
    core.area((6, 3, 5), (0, 0, 1), 4, 380, "a9dbe6")
    core.area((0, -7, 5.0), (0, 0, 1), 5, 260, "ffecd6")
    e = math.radians(high)
    core.camera((0, -14 * math.cos(e), mid + 14 * math.sin(e)), (0, 0, mid), ortho=span * .86)
    s = mesh([(-9, -9, 0), (9, -9, 0), (9, 9, 0), (-9, 9, 0)], [(0, 1, 2, 3)], mat("ground", "808080", 1), False)
    s.is_shadow_catcher = True


def thing(name):
    """The function that builds a thing; those of the home's screens and of the shop have files of their own."""
    if name in globals():
        return globals()[name]
    import prvky_domov
    import prvky_obchod
    for module in (prvky_domov, prvky_obchod):
        STANDING.update(module.STANDING)
    return getattr(prvky_obchod if name in prvky_obchod.THINGS else prvky_domov, name)


def make(name):
    core.start(3)
    core.scene.view_settings.look = "Medium Contrast"
    thing(name)()
    path = os.path.join(OUT, name + ".png")
    if name in TOPDOWN:
        w, h = TOPDOWN[name]
        topdown(w, h)
        opaque = name in ("ZAHLAVI",)
        core.render(path, w, h, 16, alpha=not opaque, strength=.6)
    elif name in CURSORS:
        topdown(64, 64)
        core.render(path, 64, 64, 36, alpha=True, strength=0)
    else:
        studio(name)
        core.scene.render.film_transparent = True
        px = core.render_linear(256, 256, 64 if name in FINE else 14)
        px[..., 3] = np.clip((px[..., 3] - .12) / .88, 0, 1)  # the far shade of the shadow would draw the tile's edge
        core.save(px, path, alpha=True)
        stin.soften(path)


def main(names):
    everything = list(ICONS) + list(TOPDOWN) + list(CURSORS)
    if names == ["all"]:
        names = [n for n in everything if not os.path.exists(os.path.join(OUT, n + ".png"))]
    for n in names:
        try:
            make(n)
            print("DONE", n, flush=True)
        except Exception as e:  # one bad thing must not stop the rest
            print("FAILED", n, repr(e), flush=True)


if __name__ == "__main__":
    main(core.arguments())
