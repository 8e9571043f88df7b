# SPDX-License-Identifier: GPL-3.0-or-later
"""Small things of the shopping list's departments, and the laid table of a feast."""
import math

import kitchen.sides as sides
import prvky
from lib import fish as fishlib
from lib import food, table
from lib.core import box, curve_points, group, lathe, mat, outline_solid, put, smooth_profile, sphere, tube


def Oddeleni0():
    """Fish: a whole trout on paper with a lemon."""
    paper = put(outline_solid(table.rounded_rect(4.3, 2.7, .2, jitter=.05), .06, mat("shoppaper", ((.4, "cdbb92"), (.6, "e2d3ac")), .9, noise=5), .02), 0, 0, 0, turn=-8)
    return group([paper, put(fishlib.fish("trout", "raw", 4.1, seed=4), .05, .25, .1, turn=14), put(food.lemon_half(.5), 1.1, -.85, .06), put(food.sprig("dill", .8), -1.1, -.75, .08, turn=30)])


def Oddeleni1():
    """Vegetables and fruit: carrots, tomatoes, a lemon, parsley."""
    def carrot():
        way = curve_points([(0, 0, 0), (1.2, .05, 0), (2.6, 0, 0)], 8)
        body = tube(way, [.42 * (1 - i / len(way)) ** .7 + .01 for i in range(len(way))], food.carrot_mat(), 24)
        return group([body, put(food.sprig("parsley", .55), -.35, 0, 0, turn=180)])

    parts = [put(carrot(), -.9, -1.0, .42, turn=-14), put(carrot(), -1.2, -.35, .5, turn=6)]
    parts += [put(food.cherry_tomato(.78), x, y, 0) for x, y in ((-.7, .95), (.85, .9))]
    parts += [put(food.cherry_tomato(.62), .15, .35, 0), put(sphere(.6, food.peel(), scale=(1.25, 1, 1), n=32), 1.4, -.3, .6, turn=20)]
    return group(parts)


def Oddeleni2():
    """Milk, eggs, butter."""
    milk = mat("milk", "f4efe2", .3, sss=.3)
    body = lathe(smooth_profile([(.01, 0), (.7, 0), (.95, .5), (.9, 1.3), (.55, 2.0), (.62, 2.5), (.7, 2.62), (.56, 2.5), (.45, 2.0), (.01, 1.9)], 6), table.porcelain("ece6da"), 48)
    band = lathe([(.953, .62), (.965, .72), (.96, .86)], prvky.teal(), 48)
    handle = tube(curve_points([(.58, 0, 2.3), (1.3, 0, 2.15), (1.35, 0, 1.2), (.92, 0, .8)], 6), .13, table.porcelain("ece6da"), 12)
    jug = put(group([body, band, handle, lathe([(.01, 2.35), (.55, 2.35)], milk, 32)]), -.75, .5, 0, turn=20)
    shell = mat("eggshell", ((.4, "c98f62"), (.6, "deb48a")), .45, .3, noise=3)
    eggs = [put(sphere(.52, shell, scale=(1, .8, .8), n=32), x, y, .42, turn=t) for x, y, t in ((-.35, -1.15, 20), (.75, -1.3, -30))]
    return group([jug, *eggs, put(food.butter(1.15), 1.15, .05, 0, turn=-18)])


def Oddeleni3():
    """Dry goods: a loaf, a bag of flour."""
    bag = put(box(1.5, 1.0, 2.3, mat("flour", ((.4, "d6c7a4"), (.6, "eadfc2")), .8, bump=.2, bumpscale=4), .2), -.75, .55, 0, turn=12)
    fold = put(box(1.35, .3, .35, mat("flour", "d6c7a4", .8), .08), -.75, .55, 2.25, turn=12)
    band = put(box(1.53, 1.03, .5, prvky.teal(), .12), -.75, .55, .9, turn=12)
    return group([bag, fold, band, put(food.roll(2.9, .72), .6, -.95, 0, turn=-12), put(food.bread("rye", 2.2, 1.9, .4, 5), 1.15, .25, .75, tilt=62, turn=-24)])


def Oddeleni4():
    """Spices: a mortar with its pestle, pepper beside it, a bay leaf."""
    stone = mat("mortar", ((.35, "6d6a62"), (.5, "918c80"), (.65, "aaa494")), .6, .3, noise=6, bump=.2, bumpscale=18)
    mortar = lathe(smooth_profile([(.01, 0), (.9, 0), (1.0, .2), (.85, .5), (1.3, 1.2), (1.45, 2.0), (1.3, 2.05), (1.1, 1.3), (.01, .9)], 6), stone, 64)
    way = curve_points([(-.2, 0, 1.2), (.5, .1, 2.2), (1.25, .2, 3.2)], 6)
    pestle = tube(way, [.18 + .17 * abs(1 - 2 * i / (len(way) - 1)) ** 2 for i in range(len(way))], stone, 20)
    corn = mat("peppercorn", "241c16", .6, bump=.4, bumpscale=30)
    corns = [put(sphere(.14, corn, n=14), x, y, .14) for x, y in ((-1.5, -.9), (-1.15, -1.15), (-1.75, -.5), (-.8, -1.3), (1.35, -1.0))]
    return group([put(mortar, .1, .3, 0), put(pestle, .1, .3, 0), *corns, put(food.leaf("bay", 1.7), .75, -1.3, .06, turn=24)])


def Oddeleni5():
    """Drinks: a bottle of wine, a glass of beer."""
    return group([put(table.bottle(4.7, .78), -.8, .3, 0, turn=-30), put(table.tumbler(2.5, .82, "beer"), 1.0, -.35, 0)])


def Oddeleni6():
    """What else there is: a paper bag with handles."""
    kraft = mat("kraft", ((.4, "a5824e"), (.6, "bd9a63")), .85, .1, noise=4, bump=.15, bumpscale=8)
    parts = [put(box(2.6, 1.4, 3.0, kraft, .06), 0, 0, 0)]
    for y in (-.6, .6):
        parts.append(tube(curve_points([(-.6, y, 2.9), (-.5, y, 3.7), (.5, y, 3.7), (.6, y, 2.9)], 8), .09, mat("cord", "7a5a30", .8), 10))
    fish = put(prvky.fishshape(.8, .05, prvky.red(), .02), 0, -.73, 1.5, tilt=90)
    return put(group(parts + [fish]), 0, 0, 0, turn=16)


def Hostina():
    """A laid table: plate and bowl, fork and knife, a candle."""
    plate = table.plate(1.75, rim="teal")
    bowl = table.bowl(1.05, .62, "ece6da", rim="teal")
    parts = [plate, put(bowl, 0, 0, .14), put(food.liquid("fishsoup", .92, .5), 0, 0, .14), put(food.sprig("parsley", .4), .1, .1, .62)]
    parts += [put(table.fork(3.0), -2.1, -1.3, .05, turn=90), put(table.tableknife(3.2), 2.1, -1.4, .05, turn=90)]
    parts.append(put(table.candle(1.5, .26), 1.35, 1.75, 0))
    return group(parts)


THINGS = ("Oddeleni0", "Oddeleni1", "Oddeleni2", "Oddeleni3", "Oddeleni4", "Oddeleni5", "Oddeleni6", "Hostina")
STANDING = {"Oddeleni1": (34, .7, 5.6), "Oddeleni2": (24, 1.1, 5.2), "Oddeleni3": (24, 1.1, 5.2), "Oddeleni4": (26, 1.3, 5.6), "Oddeleni5": (12, 2.2, 6.2), "Oddeleni6": (16, 1.8, 5.6), "Hostina": (42, .5, 6.2)}
