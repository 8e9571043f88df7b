# SPDX-License-Identifier: GPL-3.0-or-later
"""The pictures of the galleries: blender -b -P art/sponzor.py -- NUMBER … [width height samples | siroke]

1 the things on the table that tell about the cookbook, 9 the fish of our waters, 13 how pictures, voices and music are
made; "siroke" renders the sides of the pictures that are there, for wide displays. Beside each picture a text is left with the place of each thing in thousandths of the picture ("x y width height
name"), from which content/sponzor.txt takes its click areas. Title and bar of the screen cover the top 9 and the bottom
11 hundredths.
"""
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import bpy  # noqa: E402
from bpy_extras.object_utils import world_to_camera_view  # noqa: E402
from mathutils import Vector  # noqa: E402

from kitchen import tablethings  # noqa: E402
import prvky  # noqa: E402
from lib import core, dishfile, fish as fishlib, food, table, wide  # noqa: E402
from lib.core import group, put  # noqa: E402

OUT = os.path.join(core.RENDERED, "sponzor")

def fish_of_our_waters():
    kinds = (("carp", "Kapr", 4.2), ("trout", "Pstruh", 4.2), ("pike", "Štika", 4.6),
             ("zander", "Candát", 4.4), ("perch", "Okoun", 3.8), ("tench", "Lín", 4.0),
             ("catfish", "Sumec", 4.5), ("eel", "Úhoř", 5.0), ("bream", "Bílé ryby", 3.8))
    table.boards("oak")
    things = []
    for i, (kind, name, length) in enumerate(kinds):
        x, y = (i % 3 - 1) * 5.15 + .1, 3.6 - (i // 3) * 3.18
        bend = .75 if kind == "eel" else .06
        f = put(fishlib.fish(kind, "raw", length, seed=i + 1, bend=bend), x, y, .14, turn=(-3, 2, -2, 3)[i % 4])
        things.append((name, f))
    core.evening(1.15)
    core.camera((0, 0, 30), (0, 0, 0), ortho=16)
    return things


def dish():
    parts = [table.plate(2.5, rim="blue", oval=1.2)]
    parts += [put(fishlib.fish("trout", "fried", 3.9, cuts=3, seed=3, bend=.18), 0, .35, .45, turn=4)]
    parts += [put(food.potato_half(.5), x, y, .42, turn=t) for x, y, t in ((.9, -.95, 20), (1.6, -.6, 80), (.2, -1.1, 140))]
    parts += [put(food.lemon_wedge(.6), -1.5, -.7, .35, turn=30), put(food.sprig("parsley", .7), -.7, -1.0, .35)]
    return group(parts)


def notes():
    return group([put(prvky.Hudba(), 0, .4, 0), put(prvky.sheet(2.6, 3.2, 6, .85), -.3, .1, .02, turn=8)])


def weights():
    return group([prvky.zavazi(), put(table.spoon(4.0, table.copper()), -1.2, -1.7, .12, turn=12),
                  put(table.spoon(3.2, table.copper()), -.9, -2.5, .12, turn=8)])


def microphone():
    return put(group([tablethings.microphone()]), 0, 0, 0, scale=.95)


def on_the_table(things, wood, cloth):
    table.boards(wood)
    table.cloth(cloth, 19, 10.5, (0, -.2), 2, .1)
    placed = []
    for name, thing, x, y, turn, scale in things:
        holder = put(group([thing]), x, y, .12, turn=turn, scale=scale)
        placed.append((name, holder))
    core.evening(1.1)
    dishfile._camera("high 50 turn 0 far 22 at 0 0 lens 52 blur 0".split())
    return placed


def about_the_cookbook():
    return on_the_table((("Kuchařka", prvky.Uvod(), -5.1, 2.5, 6, .95), ("Recepty", dish(), .3, 2.9, -3, .95),
                         ("Fotografie", tablethings.photo_camera()[0], 5.6, 2.9, -16, 1.05),
                         ("Váhy a lžíce", weights(), -4.5, -2.6, 0, .95),
                         ("Hudba a hlas", microphone(), .2, -2.6, 0, .95),
                         ("Vaše poznámky", prvky.Vlastni(), 5.2, -3.1, -6, .95)), "walnut", "linen")


def how_it_was_made():
    return on_the_table((("Obrazy", group([dish(), put(tablethings.photo_camera()[0], 4.2, .2, 0, turn=-30)]), -4.9, 2.3, 3, .9),
                         ("Videa", tablethings.projector()[0], 4.7, 1.5, 8, .66),
                         ("Hlasy", microphone(), -3.4, -3.0, 0, 1.0), ("Hudba a zvuky", notes(), 4.2, -3.2, -5, .9)), "dark", "teal")


def place(thing):
    """The rectangle of a thing in the picture, in thousandths."""
    camera = core.scene.camera
    corners = [o.matrix_world @ Vector(c) for o in core.tree(thing) if o.type == "MESH" for c in o.bound_box]
    seen = [world_to_camera_view(core.scene, camera, c) for c in corners]
    xs, ys = [p.x for p in seen], [1 - p.y for p in seen]
    x0, y0 = max(0, min(xs)), max(0, min(ys))
    return [round(1000 * v) for v in (x0, y0, min(1, max(xs)) - x0, min(1, max(ys)) - y0)]


SCENES = {1: about_the_cookbook, 9: fish_of_our_waters, 13: how_it_was_made}


def make(number, width, height, samples):
    core.start(number)
    core.scene.render.resolution_x, core.scene.render.resolution_y = width, height
    things = SCENES[number]()
    bpy.context.view_layer.update()
    os.makedirs(OUT, exist_ok=True)
    with open(os.path.join(OUT, f"{number}.txt"), "w", encoding="utf-8") as f:
        f.writelines(" ".join(map(str, place(o))) + f" {name}\n" for name, o in things)
    core.render(os.path.join(OUT, f"{number}.jpg"), width, height, samples)


def sides(number):
    core.start(number)
    SCENES[number]()
    wide.render(os.path.join(OUT, f"{number}.jpg"), 6, str(os.path.getmtime(__file__)), 720)


def main(words):
    if "siroke" in words:
        return [sides(int(n)) for n in words if n != "siroke"]
    numbers = [int(n) for n in words]
    size = numbers[-3:] if len(numbers) > 3 else [1600, 1200, 40]
    for number in numbers[:-3] or numbers or SCENES:
        try:
            make(number, *size)
            print("DONE", number, flush=True)
        except Exception as e:  # one bad picture must not stop the rest
            print("FAILED", number, repr(e), flush=True)


if __name__ == "__main__":
    main(core.arguments())
