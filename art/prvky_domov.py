# SPDX-License-Identifier: GPL-3.0-or-later
"""Small things of the screens that help at home: cooking step by step, shopping, the pantry, one's own cookbook, the timer."""
import math

import kitchen.sides as sides
import prvky
from lib import food, table
from lib.core import box, curve_points, group, lathe, mat, mesh, outline_solid, put, smooth_profile, sphere, text, tube


def Varime():
    """A pot with its lid ajar, a wooden spoon in it."""
    parts = [table.pot(1.7, 1.9, "enamel"), put(table.potlid(1.7, "steel"), .25, .25, 2.02, roll=9, tilt=-6)]
    parts.append(put(lathe([(.01, 1.5), (1.6, 1.5)], food.sauce_mat("fishsoup"), 40)))
    spoon = tube(curve_points([(-.9, -.6, 1.2), (-1.5, -.7, 2.5), (-2.0, -.8, 3.5)], 6), .13, table.wood("pale"), 12)
    rim = lathe([(1.72, 1.78), (1.74, 1.86), (1.7, 1.94)], prvky.cream(), 64)
    return put(group(parts + [spoon, rim]), .15, 0, 0, turn=14, scale=.92)


def Nakup():
    """A string-handled basket with a shopping slip in front, two lines of it ticked."""
    from kitchen.tablethings import basket
    g, _ = basket()
    put(g, .1, .6, 0, turn=-8, scale=.62)
    slip = prvky.sheet(1.7, 2.2, 0)
    for i in range(4):
        z = .62 - .42 * i
        put(box(.95, .1, .03, prvky.ink(), 0), .18, z, .09).parent = slip
        if i < 2:
            tick = tube(curve_points([(-.68, z + .02, .12), (-.58, z - .12, .12), (-.38, z + .17, .12)], 4), .055, mat("tick", "3f6b35", .5), 8)
        else:
            tick = put(outline_solid(prvky.circle(.08, 16, (-.54, z)), .04, prvky.ink(), .01), 0, 0, .08)
        tick.parent = slip
    return group([g, put(slip, -.75, -1.5, .95, tilt=58, turn=-14)])


def Doma():
    """A shelf of the pantry: preserves, a bottle of oil, a bag of flour."""
    wood = table.wood("walnut")
    parts = [box(4.4, 1.3, .2, wood, .05), put(box(4.4, 1.3, .2, wood, .05), 0, 0, 2.1), put(box(4.4, .1, 3.9, table.wood("teal"), .02), 0, .62, .1)]
    parts += [put(box(.2, 1.3, 4.0, wood, .05), s * 2.2, 0, 0) for s in (-1, 1)] + [put(box(4.6, 1.4, .22, wood, .08), 0, 0, 3.9)]
    for x, z, col, s in ((-1.5, .2, "6e1d14", .92), (-.35, .2, "8a5a1c", .8), (1.45, 2.3, "3a4a1c", .8), (.2, 2.3, "6e1d14", .74)):
        parts.append(sides.preserve(x, -.05, z, col, s))
    parts.append(put(box(.95, .7, 1.25, mat("flour", ((.4, "d6c7a4"), (.6, "eadfc2")), .8, bump=.2, bumpscale=4), .16), .75, 0, .2))
    parts.append(put(table.bottle(1.55, .3, "8a6a14"), 1.65, 0, .2))
    parts += [put(sphere(.34, mat("onionskin", ((.4, "8a4a1a"), (.6, "c98a3c")), .35, coat=.5, noise=1.5, stretch=(3, 3, .3)), scale=(1, 1, .9), n=24), x, -.1, 2.6) for x in (-1.6, -.95)]
    return put(group(parts), scale=.92)


def Kucharka():
    """One's own cookbook, closed: cloth boards, a copper fish, a ribbon."""
    cover = mat("bookcloth", ((.4, "6a1f18"), (.6, "8a2a20")), .6, noise=6, bump=.2, bumpscale=20, coat=.1)
    parts = [outline_solid(table.rounded_rect(3.3, 4.2, .14), .14, cover, .05), put(box(3.1, 4.0, .62, mat("pages", ((.45, "d9cba6"), (.55, "efe3c6")), .8, noise=2, stretch=(.2, .2, 22)), .04), -.02, 0, .14),
             put(outline_solid(table.rounded_rect(3.3, 4.2, .14), .14, cover, .05), 0, 0, .76), put(box(.3, 4.2, .86, cover, .14), -1.6, 0, .02)]
    parts.append(put(prvky.fishshape(.95, .08, prvky.cop(), .03), .12, .35, .9))
    parts.append(put(box(1.8, .08, .04, prvky.cop(), .01), .12, -.75, .9))
    parts.append(put(box(1.2, .08, .04, prvky.cop(), .01), .12, -1.05, .9))
    parts.append(put(box(.26, 1.3, .03, mat("ribbon", "d9b35e", .5), .01), .9, -2.5, .5, tilt=-14))
    return prvky.facing(put(group(parts), 0, .25, 0, turn=9, scale=.84), 44)


def Casovac():
    """Kitchen timer: a round body, a white dial with strokes, the pointer at a quarter."""
    body = lathe(smooth_profile([(.01, 0), (1.55, 0), (1.9, .3), (1.95, .8), (1.75, 1.05), (.01, 1.06)], 6), prvky.teal(), 72)
    ring = lathe(smooth_profile([(1.5, 1.0), (1.62, 1.16), (1.8, 1.1), (1.86, .95)], 5), prvky.cop(), 72)
    dial = lathe([(.01, 1.1), (1.52, 1.1)], prvky.cream(), 64)
    parts = [body, ring, dial]
    for k in range(12):
        a = math.radians(30 * k)
        parts.append(put(box(.1 if k % 3 else .17, .3 if k % 3 else .42, .04, prvky.ink(), 0), 1.2 * math.sin(a), 1.2 * math.cos(a), 1.1, turn=-30 * k))
    wedge = [(0, 0, 1.115)] + [(1.0 * math.sin(a), 1.0 * math.cos(a), 1.115) for a in [math.radians(90 * i / 16) for i in range(17)]]
    parts.append(mesh(wedge, [(0, i + 1, i) for i in range(1, 17)], mat("share", "b8402a", .5), False))
    parts.append(put(outline_solid([(-.09, -.2), (.09, -.2), (.05, 1.05), (-.05, 1.05)], .07, prvky.ink(), .02), 0, 0, 1.14, turn=-90))
    parts.append(put(lathe(smooth_profile([(.01, .5), (.22, .48), (.3, .3), (.34, 0)], 4), prvky.cop(), 32), 0, 0, 1.14))
    return prvky.facing(group(parts), 40, -.3)


THINGS = ("Varime", "Nakup", "Doma", "Kucharka", "Casovac")
STANDING = {"Varime": (26, 1.4, 6.6), "Nakup": (30, 1.1, 6.6), "Doma": (12, 2.05, 6.6)}
