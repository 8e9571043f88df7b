# SPDX-License-Identifier: GPL-3.0-or-later
"""Kitchen tools that recipes ask for, lying on the table about the origin, seen by the films' eye."""
import math
import random

import numpy as np

from . import table
from .core import box, curve_points, grid_faces, group, lathe, mat, mesh, outline_solid, put, smooth_profile, tube


def grip(a, b, r=.2, z=.3, m=None):
    """A wooden handle along x."""
    k = [(a, .8), (a + (b - a) * .1, 1), (a + (b - a) * .5, .9), (a + (b - a) * .85, 1.05), (b, .75)]
    line = curve_points([(x, 0, z) for x, _ in k], 8)
    return tube(line, list(np.interp(range(len(line)), np.linspace(0, len(line) - 1, 5), [r * w for _, w in k])), m or table.wood("walnut"), 18)


def tray(w, d, h, m, lip=.12, corner=.5):
    """An open tin with rounded corners: a wall, a rim that stands out, a floor."""
    rings = []
    for grow, z in ((-.3, 0), (-.12, .05), (0, h * .5), (.06, h), (.06 + lip, h + .03), (.06 + lip, h + .07), (.04, h + .06), (-.03, h * .5), (-.2, .14), (-.45, .1)):
        rings.append([(x, y, z) for x, y in table.rounded_rect(w + 2 * grow, d + 2 * grow, max(.1, corner + grow), 8)])
    n = len(rings[0])
    f = grid_faces(len(rings), n, True) + [tuple(range(n - 1, -1, -1)), tuple(range(n * (len(rings) - 1), n * len(rings)))]
    return mesh([v for r in rings for v in r], f, m)


def enamel():
    return mat("darkenamel", ((.35, "14181a"), (.65, "23292c")), .22, .5, coat=.7, noise=9, bump=.03, bumpscale=20)


def roaster():
    parts = [tray(6.6, 4.4, 1.25, enamel(), .14, .7)]
    for s in (-1, 1):
        parts.append(tube(curve_points([(s * 3.3, -.8, 1.1), (s * 3.8, -.7, 1.2), (s * 3.95, 0, 1.22), (s * 3.8, .7, 1.2), (s * 3.3, .8, 1.1)], 6), .11, enamel()))
    return group(parts)


def bakingsheet():
    return group([tray(8.4, 6.2, .32, mat("bakedtin", ((.3, "4c4a46"), (.7, "77746d")), .34, metal=.9, noise=2.2, roughvar=.1), .16, .35)])


def saucepan():
    """A small pot with one long handle."""
    g = table.pan(2.1, 1.7, "steel", False)
    m = table.steel()
    return group([g, put(tube(curve_points([(2.05, 0, 1.35), (2.5, 0, 1.5), (3.1, 0, 1.62), (5.0, 0, 1.7)], 8), .16, m, 14), scale=(1, 1.5, 1))])


def fishkettle():
    """A long pot for a whole fish with its rack in it."""
    m = table.steel()
    parts = [tray(8.6, 2.9, 1.9, m, .08, 1.4)]
    parts += [tube([(x, -1.15, .5), (x, 1.15, .5)], .05, m, 8) for x in np.arange(-3.6, 3.61, .36)]
    parts += [tube([(-3.7, y, .45), (3.7, y, .45)], .06, m, 8) for y in (-.9, .9)]
    for s in (-1, 1):
        parts.append(tube(curve_points([(s * 4.3, -.6, 1.6), (s * 4.75, -.5, 1.68), (s * 4.9, 0, 1.7), (s * 4.75, .5, 1.68), (s * 4.3, .6, 1.6)], 6), .11, m))
    return group(parts)


def ovendish():
    return table.casserole(6.6, 4.4, 1.2, "e9e0cc", "b9a98a")


def sieve():
    """A fine sieve: a bowl of wires in a steel ring, at a handle."""
    m, r, parts = table.steel(), 1.75, []
    for along in (0, 1):
        for q in np.arange(-r + .09, r, .115):
            half = math.sqrt(r * r - q * q)
            line = [(half * math.cos(a), q, -.78 * half * math.sin(a) + .02) for a in np.linspace(0, math.pi, 25)]
            parts.append(tube([(y, x, z) if along else (x, y, z) for x, y, z in line], .017, m, 5, False))
    ring = lathe([(r + .1 * math.cos(a), .1 * math.sin(a)) for a in np.linspace(0, 2 * math.pi, 13)], m, 80)
    parts += [ring, tube(curve_points([(r, 0, 0), (r + 1.2, 0, .1), (r + 3.2, 0, .15)], 8), .12, m, 12)]
    return put(group(parts), 0, 0, 1.5)


def whisk():
    """Wire loops, spread round the handle's line."""
    m, parts = table.steel(), []
    for i in range(6):
        a = math.pi * i / 6 + .2
        loop = curve_points([(-.1, .12), (.7, .42), (1.7, .78), (2.5, .74), (2.98, .34), (3.05, 0), (2.98, -.34), (2.5, -.74), (1.7, -.78), (.7, -.42), (-.1, -.12)], 6)
        parts.append(tube([(x, q * math.cos(a), q * math.sin(a) + .8) for x, q in loop], .038, m, 8, False))
    parts += [tube([(-.4, 0, .8), (.1, 0, .8)], .2, m, 16), grip(-2.9, -.35, .24, .8)]
    return group(parts)


def grater():
    """A flat grater: a steel sheet with rows of raised holes, a bowed grip."""
    m = table.steel()
    dark = mat("hole", "0c0d0d", .8)
    parts = [outline_solid(table.rounded_rect(4.2, 1.9, .18), .07, m, .02)]
    for i in range(11):
        for j in range(5):
            x, y = -1.75 + i * .35, -.68 + j * .34 + (.085 if i % 2 else -.085)
            parts += [put(lathe(smooth_profile([(.125, 0), (.11, .07), (.07, .1)], 3), m, 14), x, y, .06), put(lathe([(.01, 0), (.075, 0)], dark, 12), x, y, .155)]
    for y in (-.84, .84):
        parts.append(tube([(-2.1, y, .1), (2.1, y, .1)], .08, m, 10))
    parts.append(tube(curve_points([(2.1, -.84, .1), (2.9, -.72, .12), (3.3, 0, .12), (2.9, .72, .12), (2.1, .84, .1)], 8), .09, m, 10))
    return group(parts)


def slottedturner():
    """A turner with slots that lets the fat run off."""
    m = table.steel()
    slots = [[(x, y + q) for x, y in table.rounded_rect(1.25, .13, .06)] for q in (-.48, -.16, .16, .48)]
    blade = outline_solid(table.rounded_rect(1.9, 1.5, .2), .05, m, .02, 2, holes=slots)
    return group([put(blade, 1.0, 0, .1), tube(curve_points([(.1, 0, .12), (-.8, 0, .35), (-1.6, 0, .5)], 6), .09, m, 12), grip(-4.2, -1.5, .2, .6)])



def pastrybrush():
    random.seed(5)
    parts = [grip(-3.2, -.1, .26, .32), put(tube([(-.2, 0, .32), (.45, 0, .32)], [.3, .36], table.steel(), 20), scale=(1, 1.45, 1))]
    hair = mat("bristles", ((.35, "b98a4a"), (.65, "e0bd84")), .6)
    for _ in range(260):
        y, z = random.uniform(-.42, .42), random.uniform(.12, .5)
        parts.append(tube([(.35, y, z), (1.0, y * 1.08, z), (1.75 + random.uniform(-.12, .1), y * 1.2 + random.uniform(-.04, .04), z * .9)], [.022, .02, .01], hair, 5, False))
    return group(parts)


def paperroll():
    """Kitchen paper: a roll that stands, its end loose."""
    white = mat("kitchenpaper", ((.4, "e8e4da"), (.6, "f7f5ee")), .95, .1, noise=24, bump=.3, bumpscale=26)
    edge = mat("paperedge", ((.4, "d8d3c6"), (.6, "f2efe6")), .95, .1, noise=20, stretch=(1, 1, .05))
    card = mat("cardboard", "a5835a", .9)
    h, r = 3.6, 1.5
    parts = [lathe([(r, 0), (r, h)], white, 96), lathe([(r, h), (.42, h)], edge, 96), lathe([(.42, h + .01), (.42, .3), (.36, .3), (.36, h + .01)], card, 48)]
    parts += [lathe([(q, h + .004), (q + .018, h + .004)], mat("paperline", "b9b2a2", .95), 96) for q in np.arange(.6, r, .18)]
    v = []
    for i in range(20):
        a = -.9 + i * .06
        q = r + .02 + .55 * max(0, i - 8) ** 1.6 / 45
        v += [(q * math.cos(a), q * math.sin(a), z) for z in (0, h)]
    return group(parts + [mesh(v, grid_faces(20, 2), white)])


def rack():
    """A wire rack."""
    m = table.steel()
    edge = [(x, y, .3) for x, y in table.rounded_rect(7.4, 5.0, .5)]
    parts = [tube(edge + edge[:2], .09, m, 10)]
    parts += [tube([(x, -2.45, .3), (x, 2.45, .3)], .045, m, 8) for x in np.arange(-3.3, 3.31, .41)]
    parts += [tube([(-3.65, y, .24), (3.65, y, .24)], .06, m, 8) for y in (-1.1, 1.1)]
    return group(parts)


def rollingpin():
    m = table.wood("pale")
    body = lathe(smooth_profile([(.01, -2.3), (.5, -2.3), (.58, -2.2), (.58, 0), (.58, 2.2), (.5, 2.3), (.01, 2.3)], 5), m, 48)
    parts = [put(body, 0, 0, .58, roll=90)]
    for s in (-1, 1):
        h = lathe(smooth_profile([(.14, 0), (.16, .1), (.25, .5), (.28, 1.0), (.2, 1.3), (.01, 1.36)], 5), m, 32)
        parts.append(put(h, s * 2.25, 0, .58, roll=90 * s))
    return group(parts)


def handblender():
    """A hand blender: a grip with a switch, a steel foot with its bell."""
    shell = mat("shell", ((.4, "e4e0d6"), (.6, "f2efe8")), .3, coat=.4)
    grip_ = lathe(smooth_profile([(.01, -3.3), (.36, -3.25), (.48, -2.6), (.5, -1.2), (.46, -.2), (.3, .1), (.01, .12)], 6), shell, 48)
    foot = lathe(smooth_profile([(.2, .05), (.2, .6), (.19, 2.0), (.25, 2.5), (.72, 2.85), (.78, 3.3), (.74, 3.32), (.66, 2.95), (.01, 2.6)], 6), table.steel(), 48)
    parts = [put(p, 0, 0, .8, roll=90) for p in (grip_, foot)]
    parts.append(put(box(.55, .3, .1, mat("switch", "17474b", .4, coat=.4), .05), -1.0, -.12, 1.26, tilt=14))
    parts.append(put(lathe([(.505, -.04), (.515, 0), (.505, .04)], mat("seam", "17474b", .4), 48), -1.75, 0, .8, roll=90))
    return group(parts)


def scissors():
    """Kitchen scissors, a little open."""
    m, hold = table.steel(), mat("shears", "17474b", .35, coat=.4)
    parts = []
    for s in (-1, 1):
        blade = outline_solid(curve_points([(-.4, -.14), (1.0, -.17), (3.0, -.02), (3.05, .03), (1.0, .17), (-.4, .16)], 5), .05, m, .012, 1)
        bow = [(-1.9 + .85 * math.cos(a), s * .42 + .46 * math.sin(a), .12) for a in np.linspace(0, 2 * math.pi, 40)]
        arm = tube(curve_points([(-.4, 0, .1), (-.9, s * .12, .12), (-1.2, s * .2, .12)], 6), .16, hold, 12)
        parts.append(put(group([blade, tube(bow, .15, hold, 12), arm]), 0, 0, .05 if s > 0 else .11, turn=-9 * s))
    parts.append(put(lathe(smooth_profile([(.16, 0), (.16, .08), (.01, .1)], 3), m, 24), 0, 0, .15))
    return group(parts)


def skewers():
    """Wooden skewers, thrown together."""
    random.seed(2)
    m = table.wood("pale")
    parts = []
    for i in range(9):
        y = random.uniform(-.5, .5)
        line = [(-3, 0, .07), (2.6, 0, .07), (3, 0, .07)]
        parts.append(put(tube(line, [.06, .06, .008], m, 10), random.uniform(-.2, .2), y, .05 * (i % 3), turn=random.uniform(-7, 7)))
    return group(parts)


def masher():
    """A potato masher: a bent wire at a grip."""
    m, wave = table.steel(), []
    for i in range(6):
        for y in ((-1, 1) if i % 2 == 0 else (1, -1)):
            wave.append((.1 + i * .3, y * .82, .15))
    parts = [tube(curve_points(wave, 5), .09, m, 10)]
    for s in (-1, 1):
        parts.append(tube(curve_points([(.1 if s < 0 else 1.6, -.82 if s < 0 else -.82, .15), (.4, s * .3, .9), (-.6, s * .12, 1.25), (-1.4, 0, 1.35)], 6), .09, m, 10))
    return group(parts + [grip(-4.0, -1.3, .25, 1.4)])


def tongs():
    m, parts = table.steel(), []
    for s in (-1, 1):
        line = curve_points([(-2.8, 0, .2), (-1.5, s * .3, .22), (.6, s * .42, .22), (2.0, s * .34, .2)], 8)
        parts.append(put(tube(line, .12, m, 10), scale=(1, 1, .6)))
        parts.append(put(outline_solid(table.rounded_rect(.9, .5, .2), .08, m, .03), 2.3, s * .3, .08, turn=-8 * s))
    return group(parts)


def needle():
    """A larding needle: a long point, an open end that holds the bacon."""
    m = table.steel()
    return group([tube([(-2.6, 0, .1), (-1.9, 0, .1), (1.6, 0, .1), (2.9, 0, .08)], [.12, .1, .075, .006], m, 12), tube([(-3.1, .1, .12), (-2.5, .04, .1)], .03, m, 8), tube([(-3.1, -.1, .12), (-2.5, -.04, .1)], .03, m, 8)])


TOOLS = {
    "papirove-uterky": paperroll, "sitko": sieve, "metla": whisk, "struhadlo": grater, "kastrol": saucepan, "lopatka": slottedturner, "stetec": pastrybrush,
    "mixer": handblender, "pekac": roaster, "mrizka": rack, "plech": bakingsheet, "rybi-hrnec": fishkettle, "spejle": skewers, "zapekaci-misa": ovendish,
    "nuzky": scissors, "valecek": rollingpin, "mackadlo": masher, "kleste": tongs, "jehla": needle,
}
