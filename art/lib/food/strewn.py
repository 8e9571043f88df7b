# SPDX-License-Identifier: GPL-3.0-or-later
"""Grains and small bits that are strewn over a dish."""
import math
import random

import numpy as np
from mathutils import Matrix, Vector

from .. import core
from ..core import mat, scatter
from .herbs import _leafshape, _needle, herb_mat
from .pieces import _lump
from .sides import _grain
from .surfaces import crumb
from .vegetables import peel


def _bit(kind):
    """Mesh, material and size of one grain."""
    if kind == "caraway":
        return (*_grain(), mat("caraway", ((.4, "2a170a"), (.6, "5a3a1c")), .5), lambda: (random.uniform(.1, .15), .026, .024))
    if kind in ("parsley", "dillbits", "thymebits", "basilbits"):
        v, f = _leafshape(2, 8, .4, 3, .25)
        return v, f, herb_mat({"parsley": "parsley", "dillbits": "dill", "thymebits": "thyme", "basilbits": "basil"}[kind]), lambda: (random.uniform(.06, .17),) * 2 + (.12,)
    if kind == "dill":
        return (*_needle(), herb_mat("dill"), lambda: (random.uniform(.18, .4), .022, .02))
    if kind == "chives":
        v = [(math.copysign(1, x) if x else 0, y, z) for x in (-1, 1) for y, z in ((-.5, .1), (0, .6), (.5, .1), (0, -.3))]
        return v, [(0, 1, 5, 4), (1, 2, 6, 5), (2, 3, 7, 6), (3, 0, 4, 7)], herb_mat("chives"), lambda: (random.uniform(.07, .15), .09, .09)
    if kind == "pepper":
        return (*_lump(6), mat("peppergr", "1c1512", .6), lambda: (random.uniform(.015, .035),) * 3)
    if kind == "peppercorns":
        return (*_lump(8), mat("peppercorn", ((.4, "1c130e"), (.6, "3a2a20")), .5, bump=.5, bumpscale=20), lambda: (random.uniform(.07, .09),) * 3)
    if kind == "pinkpepper":
        return (*_lump(8), mat("pinkpepper", ((.4, "a32a3a"), (.6, "cf5a60")), .3, coat=.5), lambda: (random.uniform(.07, .09),) * 3)
    if kind == "mustardseed":
        return (*_lump(8), mat("mustardseed", ((.4, "b5872c"), (.6, "d9b35e")), .4), lambda: (random.uniform(.045, .06),) * 3)
    if kind == "roe":
        return (*_lump(10), mat("roegrain", ((.4, "d9641a"), (.6, "f0963a")), .12, .6, sss=.3, coat=.8, sssradius=(.2, .1, .04)), lambda: (random.uniform(.06, .085),) * 3)
    if kind == "redroe":
        return (*_lump(12), mat("redroe", ((.4, "d63c10"), (.6, "f0702a")), .08, .6, sss=.35, coat=.9, sssradius=(.2, .08, .03)), lambda: (random.uniform(.09, .12),) * 3)
    if kind == "caviar":
        return (*_lump(8), mat("caviar", "121416", .12, .6, coat=.9), lambda: (random.uniform(.05, .06),) * 3)
    if kind == "marjoram":
        return (*_lump(5), mat("marjoram", ((.4, "4a5228"), (.6, "717a44")), .7), lambda: (random.uniform(.03, .07), .03, .02))
    if kind == "paprika":
        return (*_lump(5), mat("paprikagr", "a82c0c", .7), lambda: (random.uniform(.015, .03),) * 3)
    if kind == "crumbs":
        return (*_lump(6), crumb("gold"), lambda: tuple(random.uniform(.012, .05) for _ in range(3)))
    if kind == "cheese":
        return (*_needle(), mat("cheese", ((.4, "e0b24a"), (.6, "f0d07a")), .4, sss=.1), lambda: (random.uniform(.2, .45), .05, .04))
    if kind == "horseradish":
        return (*_needle(), mat("horseradish", ((.4, "e9e4d4"), (.6, "f7f4ea")), .5, sss=.15), lambda: (random.uniform(.15, .4), .035, .03))
    if kind == "zest":
        return (*_needle(), peel(), lambda: (random.uniform(.15, .3), .035, .02))
    if kind == "almondflakes":
        return _leafshape(1, 14, .05, 2, .04)[0], _leafshape(1, 14, .05, 2, .04)[1], mat("almondfl", ((.4, "dcb878"), (.6, "f0dcae")), .5), lambda: (random.uniform(.25, .38), random.uniform(.18, .26), .2)
    if kind == "fat":
        v = [(math.cos(a), math.sin(a), 0) for a in np.linspace(0, 2 * math.pi, 16, endpoint=False)] + [(0, 0, .18)]
        return v, [(i, (i + 1) % 16, 16) for i in range(16)], core.thin_glass("fateye", "efcf7a", 2.2), lambda: (random.choice((.05, .08, .1, .16, .22)) * random.uniform(.8, 1.2),) * 2 + (.07,)
    raise KeyError(kind)


def sprinkle(kind, n, at=(0, 0), within=(1, 1), minz=-1.0, heap=0.0, maxz=99.0, lift=0.0):
    """Strews n grains over whatever lies there, each on the surface and along its slope. heap > 0: a little hill."""
    v, f, m, size = _bit(kind)
    core.bpy.context.view_layer.update()
    ts = []
    tries = 0
    while len(ts) < n and tries < n * 6:
        tries += 1
        a, q = random.random() * 6.283, math.sqrt(random.random())
        x, y = at[0] + within[0] * q * math.cos(a), at[1] + within[1] * q * math.sin(a)
        z, nor = core._cast(x, y)
        if z < minz or z > maxz or nor.z < .3:
            continue
        s = size()
        up = heap * max(0, 1 - q * q) * random.random() ** .5
        ts.append(Matrix.Translation((x, y, z + s[2] * .5 + up + lift)) @ Vector((0, 0, 1)).rotation_difference(nor).to_matrix().to_4x4() @ Matrix.Rotation(random.random() * 6.283, 4, "Z")
                  @ Matrix.Rotation(random.uniform(-.35, .35), 4, "Y") @ Matrix.Diagonal((*s, 1)))
    return scatter(v, f, ts, m)
