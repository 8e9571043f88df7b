# SPDX-License-Identifier: GPL-3.0-or-later
"""Cooked fish flesh: muscle layers that part into flakes, seams, a crust that is darker at its edges."""
import numpy as np

from .. import core
from ..core import fbm, mat

# raw colour, seam, crust, burnt crust
FLESH = {
    "raw": ("e6bfaa", "f6e2d6", "b8752c", "6b3a14"),
    "white": ("ead8b4", "b3925c", "b8752c", "6b3a14"), "pink": ("ee9a72", "fbd9bd", "b8622c", "6b2f14"), "cured": ("e2733f", "f6c29a", "b8622c", "6b2f14"),
    "grey": ("c9b5a6", "efe4d8", "a5723a", "5d3a1a"), "tuna": ("b8937a", "dcc4ae", "8f5a34", "4d2c17"), "eel": ("ded0b2", "b8a274", "a86f2c", "5d3214"),
}
POACHED = {"white": "f0e4cb", "pink": "f0a584"}


def _tone(h):
    return np.array([int(h[i:i + 2], 16) / 255 for i in (0, 2, 4)])


def _layers(phase, wide, fine):
    """Colour weight of the seams, and the height, of muscle layers one per unit of phase."""
    part = np.mod(phase, 1)
    seam = np.clip((.13 - np.minimum(part, 1 - part)) / .1, 0, 1) * np.clip(.35 + 2.4 * (wide - .4), 0, 1)
    tall = .25 + .55 * part ** .6 * np.clip((1 - part) / .12, 0, 1) + .22 * (fine - .5)
    return seam, tall


def _brown(img, f, crust, burnt, rough):
    """Lays a crust of strength f (0 ... 1) over a colour."""
    c = _tone(crust) + (_tone(burnt) - _tone(crust)) * np.clip(f * 1.7 - .9, 0, 1)[..., None]
    return img + (c * (.78 + .44 * rough[..., None]) - img) * np.clip(f, 0, 1)[..., None]


def flakes(kind="white", state="poached", layers=6, seed=1):
    """Material for a piece of fillet whose UV map runs along (u) and across (v): chevrons of flakes."""
    name = f"flakes-{kind}-{state}-{layers}-{seed}"
    if name in core._materials:
        return core._materials[name]
    raw, seam_, crust, burnt = FLESH[kind]
    cooked = state in ("roasted", "fried", "grilled", "baked", "seared")
    v, u = np.mgrid[0:1:320j, 0:1:480j]
    wide = fbm(np.stack([u * 3.2, v * 2.4, u * 0 + seed], -1), 4, seed)
    fine = fbm(np.stack([u * 34, v * 10, u * 0 + seed], -1), 3, seed + 4)
    bent = np.abs(v - .5 + .12 * (wide - .5))
    seam, tall = _layers(u * layers + bent * (1.1 + layers * .16) + 1.5 * (wide - .5), wide, fine)
    img = _tone(POACHED.get(kind, raw) if not cooked else raw) * (.86 + .2 * fine[..., None] + .1 * (wide - .5)[..., None])
    img = img + (_tone(seam_) - img) * (seam * (.75 if kind == "pink" else .6))[..., None]
    if cooked:
        rim = np.clip(1 - np.minimum(np.minimum(u, 1 - u) * 1.5, np.minimum(v, 1 - v)) / .2, 0, 1)
        img = _brown(img, np.clip(.18 + .62 * rim + (wide - .46) * 3.0, 0, 1) * (.95 - .5 * seam), crust, burnt, fine)
    height = core.picture(name + "h", np.repeat(np.clip(tall, 0, 1)[..., None], 3, -1), True)
    return mat(name, raw, .34, .5, sss=.05, coat=.45, image=core.picture(name, img.clip(0, 1)), height=height, heightscale=.55, sssradius=(.25, .14, .1))


def steak(outer, inner, kind="white", state="roasted", seed=1, n=360, calm=0.0):
    """Material and UV function for the cut across a fish between two curves: rings of muscle in four quarters, the dark
    line along the side, seams of fat, a crust along the edges when it was fried or baked."""
    both = np.concatenate([outer, inner])
    low, high = both.min(axis=0) - .12, both.max(axis=0) + .12
    y, x = np.mgrid[low[1]:high[1]:complex(n), low[0]:high[0]:complex(n)]
    size = (high[1] - low[1]) / 3.5
    p = np.stack([x, y], -1)
    rim = np.min([_near(p, outer), _near(p, inner)], axis=0) / size
    raw, seam_, crust, burnt = FLESH[kind]
    cooked = state in ("roasted", "fried", "grilled", "baked")
    X, Y = np.abs(x) / size, y / size
    wide = fbm(np.stack([X * 1.7, Y * 1.7, x * 0 + seed], -1), 4, seed)
    fine = fbm(np.stack([x * 9 / size, y * 9 / size, x * 0 + seed], -1), 4, seed + 3)
    back = np.hypot((X - .5) * 1.15, (Y - .62))
    belly = np.hypot((X - .92) * 1.5, (Y + .45) * .8)
    deep = np.minimum(back, belly + .06)
    seam, tall = _layers(deep * 5.2 + 2.2 * (wide - .5), wide, fine)
    seam = seam * np.clip((deep - .2) / .15, 0, 1)   # no bull's eye in the middle of a muscle
    tall = tall + (.55 - tall) * calm * np.clip(1.6 - deep * 2.2, 0, 1) + .4 * (fine - .5)
    seam = np.maximum(seam, np.clip((.035 - X) / .02, 0, 1) * (Y > .1) * .9)
    side = np.clip((.1 * np.clip(X - .55, 0, 1) - np.abs(Y - .1)) / .03 + .3, 0, 1) * np.clip((X - .5) / .2, 0, 1)
    base = "e2bf86" if cooked and kind == "white" else raw if cooked else POACHED.get(kind, raw)
    img = _tone(base) * (.84 + .26 * fine[..., None])
    img = img + (_tone("fbf0d8" if kind == "white" else seam_) - img) * (seam * (.2 if cooked else .5))[..., None]
    img = img + (_tone("8a5a3c") * .9 - img) * (side * (.6 if cooked else .35))[..., None]
    if cooked:
        # browned where it touched the pan: along the rim, and in spots on what stands out
        spots = np.clip((fbm(np.stack([x * 4.5 / size, y * 4.5 / size, x * 0 + seed], -1), 5, seed + 7) - .47) * 5, 0, 1)
        f = np.clip(1.0 - rim / .2, 0, 1) ** 1.5 * .9 + (wide - .5) * 1.7 + .2 + .55 * spots * (.4 + .9 * fine)
        img = _brown(img, np.clip(f, .06, 1) * (1 - .3 * seam), crust, burnt, fine)
    name = f"steak-{kind}-{state}-{seed}-{len(core._materials)}"
    height = core.picture(name + "h", np.repeat(np.clip(tall, 0, 1)[..., None], 3, -1), True)
    m = mat(name, raw, .42 if cooked else .33, .5, sss=.05, coat=.3, image=core.picture(name, img.clip(0, 1)), height=height, heightscale=.5, sssradius=(.25, .14, .1))
    return m, lambda v: ((np.asarray(v)[:, :2] - low) / (high - low))


def _near(p, curve):
    """Distance of every pixel to a curve given by close points."""
    d = np.full(p.shape[:2], 9.0)
    for q in curve[::2]:
        d = np.minimum(d, np.hypot(p[..., 0] - q[0], p[..., 1] - q[1]))
    return d
