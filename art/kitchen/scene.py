# SPDX-License-Identifier: GPL-3.0-or-later
"""The whole kitchen."""
import math
import random

from mathutils import Vector

from lib import core, food, table
from lib.core import lathe, put
from . import sides
from .place import EYE, FOCAL, WALL, at_height, at_wall, ray, stand
from .room import calendar, decor, lamp, lights, room, runner, shelf, sideboard, window
from .tablethings import aquarium, basket, crate, fishboard, fryingpan, glow, microphone, paintbox, photo_camera, projector, tub
from .wallthings import books, cloche, clock, door, plaque, radio, saladbowl, wine


GLOSS = .28   # below this the renderer takes what a metal mirrors for its colour, and its grain cannot be filtered


def polish():
    """The kitchen's metals are kept shining: one gloss, and in the copper little cloud."""
    for name in ("copper", "steel", "brass", "silver"):
        m = core._materials[name]
        b = m.node_tree.nodes["Principled BSDF"]
        for link in list(b.inputs["Roughness"].links):
            m.node_tree.links.remove(link)
        b.inputs["Roughness"].default_value = GLOSS
    copper = core._materials["copper"].node_tree
    for link in list(copper.nodes["Principled BSDF"].inputs["Normal"].links):
        copper.links.remove(link)
    for e, col in zip(next(n for n in copper.nodes if n.type == "VALTORGB").color_ramp.elements, ("b5703e", "c07a45", "cc8852")):
        e.color = (*core.rgb(col), 1)


def build(wide=False):
    """The room; wide also with what stands beyond the edges of the main screen."""
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
    leaf = calendar(Vector((at_wall(143, 280).x, WALL - .12, at_wall(143, 268).z)))
    P["season"] = (leaf, flame)
    # on the table, from the back to the front
    g, f, sh = crate()
    stand(g, 234, 372, 116, 6.6, turn=-6)
    P["crate"] = f
    g, *P["wine"] = wine()
    stand(g, 492, 326, 84, 6.0, turn=0)
    g = table.pot(2.6, 2.5, "copper")
    soup = put(lathe([(.01, 2.0), (2.5, 2.0)], food.sauce_mat("fishsoup"), 48))
    soup.parent = g
    steam = [glow((.86, .9, .9), .75, seed=i) for i in range(9)]
    for o in steam:
        o.parent = g
    lid = table.potlid(2.6)
    lid.parent = g
    stand(g, 448, 413, 96, 6.2, turn=14)
    put(lid, .0, 0, 2.56)
    P["pot"] = (lid, steam)
    g, fil, bub = fryingpan()
    stand(g, 336, 392, 98, 7.0, turn=0)
    P["pan"] = (g, fil, bub)
    g, f = fishboard()
    stand(g, 594, 398, 176, 7.4, turn=-5)
    P["board"] = f
    g, *P["camera"] = photo_camera()
    stand(g, 160, 446, 86, 3.2, turn=14)
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
    put(brush, -.25, -.75, .62, turn=12, roll=-7)
    P["brush"] = brush
    stand(microphone(), 34, 520, 34, 1.6)
    g, *P["projector"] = projector()
    stand(g, 674, 606, 128, 4.6, turn=-14)
    decor()
    lamp()
    polish()
    runner()
    lights()
    if wide:
        sides.build()
    core.camera(EYE, EYE + ray(400, 300), 36 / 2 / math.tan(math.atan(400 / FOCAL)), None)
    return P
