# SPDX-License-Identifier: GPL-3.0-or-later
"""Whole fish: a body lofted from the outline of its kind, gill cover, mouth and eye socket worked into the surface,
fins with rays that grow out of the body, and a skin painted for the kind and for what the kitchen did to it.

A fish is made of length 1 (snout to root of the tail) with its head at -x and back up, then scaled. Lying on its side
it shows the side that faced -y.
"""
import math

import numpy as np
from mathutils import Vector

from . import core
from .core import fbm, grid_faces, group, mat, mesh, picture



def _text_of_skin():
    """The part of this file that the painted skins depend on."""
    with open(__file__, encoding="utf-8") as f:
        t = f.read()
    return t[t.index("KINDS = {"):t.index("def _fin(")]


# back and belly: (distance from the snout, height); w: width; fins as (from, to, height, …)
KINDS = {
    "carp": dict(top=((0, .0), (.04, .05), (.12, .1), (.22, .152), (.36, .182), (.5, .168), (.68, .115), (.85, .067), (1, .06)),
                 bot=((0, -.02), (.04, -.055), (.15, -.105), (.3, -.138), (.5, -.14), (.66, -.105), (.82, -.062), (.93, -.052), (1, -.058)),
                 w=.105, head=.255, eye=(.105, .24, .021), dorsal=(.36, .79, .075, .6), anal=(.71, .82, .085), pelvic=.44, pect=.27, tail=(.2, .36, .55),
                 back="3a3a22", side="9a7c3c", belly="d8c48a", fin="6b4a26", scales=30, scalehard=1.0, barbel=2, mouth=-.18),
    "trout": dict(top=((0, .01), (.04, .045), (.12, .08), (.25, .112), (.42, .122), (.6, .103), (.8, .062), (.93, .043), (1, .05)),
                  bot=((0, -.02), (.04, -.045), (.15, -.085), (.3, -.112), (.5, -.115), (.68, -.085), (.84, -.048), (.95, -.042), (1, -.05)),
                  w=.075, head=.22, eye=(.075, .3, .02), dorsal=(.42, .56, .09, 1), anal=(.7, .79, .07), pelvic=.52, pect=.235, tail=(.15, .27, .18), adipose=.8,
                  back="39402a", side="8f8a5c", belly="d9cfae", fin="7d6a3e", scales=70, scalehard=.25, spots=True, mouth=-.1),
    "salmon": dict(top=((0, .01), (.04, .04), (.12, .075), (.25, .11), (.42, .12), (.6, .1), (.8, .056), (.93, .038), (1, .048)),
                   bot=((0, -.02), (.04, -.045), (.15, -.085), (.3, -.112), (.5, -.113), (.68, -.082), (.84, -.044), (.95, -.038), (1, -.048)),
                   w=.075, head=.2, eye=(.068, .3, .015), dorsal=(.43, .55, .075, 1), anal=(.72, .8, .06), pelvic=.53, pect=.215, tail=(.16, .3, .3), adipose=.83,
                   back="2d3a44", side="9aa7aa", belly="dfe3de", fin="4c5355", scales=60, scalehard=.5, spots=True, mouth=-.1),
    "pike": dict(top=((0, .0), (.06, .012), (.13, .026), (.2, .055), (.3, .082), (.5, .09), (.72, .08), (.86, .048), (.94, .038), (1, .045)),
                 bot=((0, -.022), (.06, -.032), (.14, -.05), (.22, -.072), (.35, -.085), (.55, -.085), (.74, -.07), (.87, -.042), (.95, -.036), (1, -.045)),
                 w=.062, head=.27, eye=(.125, .5, .017), dorsal=(.73, .87, .09, 1), anal=(.75, .86, .08), pelvic=.52, pect=.28, tail=(.15, .28, .4),
                 back="2d3719", side="66713a", belly="d6cfa6", fin="7c5a2c", scales=80, scalehard=.25, blotch=True, mouth=-.25, snout=True),
    "zander": dict(top=((0, .0), (.05, .035), (.13, .06), (.25, .1), (.38, .112), (.55, .1), (.75, .066), (.9, .042), (1, .048)),
                   bot=((0, -.022), (.05, -.045), (.15, -.075), (.3, -.098), (.5, -.098), (.7, -.07), (.86, -.042), (.95, -.038), (1, -.048)),
                   w=.068, head=.27, eye=(.085, .35, .02), dorsal=(.29, .54, .11, .8), dorsal2=(.57, .8, .085), anal=(.62, .75, .075), pelvic=.31, pect=.28, tail=(.15, .28, .35),
                   back="394030", side="848467", belly="d9d5bd", fin="6f6a4c", scales=70, scalehard=.4, bars=True, mouth=-.12),
    "perch": dict(top=((0, .0), (.05, .04), (.13, .075), (.26, .14), (.38, .15), (.55, .125), (.75, .075), (.9, .045), (1, .05)),
                  bot=((0, -.022), (.05, -.05), (.15, -.09), (.3, -.118), (.5, -.12), (.7, -.085), (.86, -.048), (.95, -.042), (1, -.05)),
                  w=.08, head=.28, eye=(.09, .3, .024), dorsal=(.3, .58, .13, .8), dorsal2=(.61, .78, .09), anal=(.66, .77, .08), pelvic=.33, pect=.29, tail=(.16, .28, .3),
                  back="37421f", side="8b8a4a", belly="dcd3a4", fin="b0532a", scales=52, scalehard=.6, bars=True, mouth=-.12),
    "herring": dict(top=((0, .0), (.05, .035), (.13, .062), (.28, .092), (.45, .098), (.65, .078), (.85, .043), (.95, .034), (1, .04)),
                    bot=((0, -.03), (.05, -.05), (.15, -.08), (.3, -.105), (.5, -.108), (.7, -.08), (.86, -.042), (.95, -.034), (1, -.04)),
                    w=.06, head=.215, eye=(.07, .2, .026), dorsal=(.45, .58, .075, 1), anal=(.76, .87, .03), pelvic=.5, pect=.23, tail=(.17, .3, .75),
                    back="1f3942", side="a9b6b4", belly="e6e8e2", fin="6a7574", scales=48, scalehard=.7, mouth=.05),
    "mackerel": dict(top=((0, .0), (.05, .033), (.13, .06), (.28, .088), (.45, .094), (.65, .07), (.85, .032), (.95, .018), (1, .018)),
                     bot=((0, -.012), (.05, -.035), (.15, -.062), (.3, -.086), (.5, -.09), (.7, -.062), (.86, -.028), (.95, -.018), (1, -.018)),
                     w=.068, head=.24, eye=(.085, .15, .021), dorsal=(.31, .43, .08, 1), dorsal2=(.62, .7, .05), finlets=True, anal=(.63, .71, .05), pelvic=.33, pect=.25, tail=(.16, .32, .85),
                     back="16404a", side="a9bdb4", belly="e9ebe2", fin="4d6163", scales=90, scalehard=.12, waves=True, mouth=-.05),
    "catfish": dict(top=((0, .01), (.03, .045), (.1, .085), (.2, .115), (.32, .12), (.5, .095), (.75, .06), (.92, .036), (1, .03)),
                    bot=((0, -.02), (.03, -.05), (.12, -.085), (.25, -.115), (.38, -.115), (.52, -.085), (.75, -.055), (.92, -.034), (1, -.03)),
                    w=.11, head=.22, eye=(.07, .35, .009), dorsal=(.3, .36, .07, 1), anal=(.48, .95, .05), pelvic=.44, pect=.22, tail=(.11, .2, .05),
                    back="22241c", side="55523c", belly="c9c2a4", fin="3c3a2c", scales=0, scalehard=0, blotch=True, barbel=2, mouth=-.2),
    "eel": dict(top=((0, .008), (.03, .02), (.08, .03), (.2, .037), (.4, .039), (.6, .035), (.8, .026), (.93, .016), (1, .008)),
                bot=((0, -.008), (.03, -.02), (.08, -.028), (.2, -.036), (.4, -.039), (.6, -.034), (.8, -.024), (.93, -.014), (1, -.006)),
                w=.036, head=.12, eye=(.035, .35, .008), dorsal=(.3, .995, .018, 1), anal=(.42, .995, .016), pelvic=None, pect=.125, tail=(.03, .03, 0),
                back="23241a", side="5a5436", belly="cfc79c", fin="35331f", scales=0, scalehard=0, mouth=-.1),
    "cod": dict(top=((0, .0), (.04, .042), (.12, .075), (.25, .115), (.38, .12), (.55, .098), (.75, .055), (.9, .032), (1, .036)),
                bot=((0, -.03), (.04, -.055), (.15, -.092), (.3, -.118), (.45, -.112), (.62, -.075), (.8, -.04), (.93, -.03), (1, -.036)),
                w=.08, head=.27, eye=(.085, .35, .021), dorsal=(.29, .42, .1, 1), dorsal2=(.45, .64, .075), anal=(.5, .64, .06), pelvic=.27, pect=.29, tail=(.13, .24, .1),
                back="4b4630", side="948a62", belly="dedac6", fin="6d6748", scales=80, scalehard=.2, blotch=True, barbel=1, mouth=-.2),
    "flatfish": dict(top=((0, .0), (.05, .07), (.15, .16), (.3, .24), (.45, .255), (.65, .2), (.85, .09), (.95, .05), (1, .055)),
                     bot=((0, -.02), (.05, -.08), (.15, -.17), (.3, -.245), (.45, -.255), (.65, -.2), (.85, -.09), (.95, -.05), (1, -.055)),
                     w=.045, head=.24, eye=(.09, .3, .022), dorsal=(.08, .93, .07, 1), anal=(.2, .93, .07), pelvic=None, pect=.28, tail=(.15, .2, .0),
                     back="4a4430", side="6f6646", belly="8a8058", fin="5b533a", scales=70, scalehard=.2, blotch=True, mouth=.0),
    "tench": dict(top=((0, .0), (.04, .045), (.12, .09), (.25, .13), (.4, .142), (.6, .118), (.8, .082), (.93, .072), (1, .075)),
                  bot=((0, -.02), (.04, -.05), (.15, -.1), (.3, -.132), (.5, -.135), (.68, -.105), (.84, -.075), (.95, -.07), (1, -.075)),
                  w=.085, head=.24, eye=(.09, .2, .015), dorsal=(.46, .6, .1, 1), anal=(.7, .79, .08), pelvic=.48, pect=.25, tail=(.17, .3, .12),
                  back="2f3a1c", side="6d6a30", belly="b9a452", fin="3f3d22", scales=85, scalehard=.35, barbel=1, mouth=-.1),
}
_SELF = _text_of_skin()
# A bream is a carp's high-backed, silvery cousin.
KINDS["bream"] = dict(KINDS["carp"], back="4b5148", side="aab0a4", belly="e2e1d4", fin="5a5a52", scales=48, scalehard=.5,
                      barbel=0, w=.07, anal=(.58, .84, .09))
KINDS["goldfish"] = dict(KINDS["carp"], back="b5481a", side="e0771f", belly="efb04a", fin="d96a22", scales=26)


def _curve(points, t):
    x = np.array([p[0] for p in points])
    y = np.array([p[1] for p in points])
    d = np.linspace(0, 1, 801)
    v = np.interp(d, x, y)
    k = np.ones(41) / 41
    for _ in range(3):
        e = np.r_[2 * v[0] - v[20:0:-1], v, 2 * v[-1] - v[-2:-22:-1]]
        v = np.convolve(e, k, "valid")
    return np.interp(t, d, v)


def _shape(k, t):
    """Back, belly and half width at t."""
    top, bot = _curve(k["top"], t), _curve(k["bot"], t)
    nose = np.sqrt(np.clip(1 - (1 - np.clip(t / .06, 0, 1)) ** 2, 0, 1)) * .93 + .07
    mid = (top + bot) / 2
    half = (top - bot) / 2 * nose
    g = np.linspace(0, 1, 101)
    hm = ((_curve(k["top"], g) - _curve(k["bot"], g)) / 2).max()
    w = k["w"] * (half / hm) ** .72 * np.where(t > .7, 1 - (t - .7) * 1.9, 1)
    if k.get("snout"):
        w = np.where(t < .2, w * (1 + .35 * (1 - t / .2)), w)
    return mid, half, np.maximum(w, .006)


def _gill(k, s):
    """Where the gill cover ends, at relative height s (-1 belly … 1 back)."""
    return k["head"] - .035 * s * s - .01 * s - .05 * np.clip(s - .5, 0, 1)


def _relief(k, t, s, side, cooked, cuts):
    """Height of the surface over the lofted body: gill cover, mouth, socket, score cuts."""
    h = np.zeros_like(t)
    inhead = side * np.clip((.93 - np.abs(s)) / .15, 0, 1)
    g = t - _gill(k, s)
    h += .0085 * inhead * np.exp(np.clip(g, -1, 0) / .05) * (g < 0) * 1.0
    h -= .0055 * inhead * np.exp(-((g - .007) / .007) ** 2)
    pre = t - (_gill(k, s) * .72 + .005)
    h += .003 * inhead * np.exp(np.clip(pre, -1, 0) / .03) * (pre < 0)
    m = k["mouth"]
    ml = .3 * k["head"]
    line = s - (m - .25 * (t / ml))
    h -= .0085 * np.exp(-(line / .085) ** 2) * (t < ml) * np.clip((ml - t) / .02, 0, 1)
    et, es, er = k["eye"]
    mid, half, _ = _shape(k, np.array([et]))
    de = np.hypot(t - et, (s - es) * half[0] * 1.15)
    h += side * (.0035 * np.exp(-((de - er * 1.25) / (er * .3)) ** 2) - .004 * np.exp(-(de / (er * .8)) ** 2))
    for c in cuts:
        d = t - c - .05 * (s - .1)
        h -= .016 * np.exp(-(d / .0075) ** 2) * np.clip((.72 - np.abs(s - .05)) / .2, 0, 1) * side
        h += .004 * np.exp(-((np.abs(d) - .02) / .01) ** 2) * np.clip((.72 - np.abs(s - .05)) / .2, 0, 1) * side
    return h


def _scale_map(u, v, ncol, nrow):
    """Overlapping round scales: height 0..1 and edge 0..1 at u (0..1 along), v (0..1 around)."""
    x, y = u * ncol, v * nrow
    best = np.full(u.shape, 1e9)
    hgt = np.zeros(u.shape)
    edge = np.zeros(u.shape)
    r0 = np.floor(y)
    for dr in (-1, 0, 1, 2):
        r = r0 + dr
        off = np.mod(r, 2) * .5
        c0 = np.floor(x - off)
        for dc in (-1, 0, 1):
            cx = c0 + dc + off + .5
            dx, dy = (x - cx), (y - r) * .62
            d = np.hypot(dx, dy)
            inside = (d < .78) & (cx < best)
            best = np.where(inside, cx, best)
            hgt = np.where(inside, np.clip(.55 + dx * .6, 0, 1), hgt)
            edge = np.where(inside, np.clip((d - .6) / .18, 0, 1), edge)
    return hgt, edge


def _mix(a, b, f):
    return a + (b - a) * f[..., None]


def _s(hexa):
    return np.array([int(hexa[i:i + 2], 16) / 255 for i in (0, 2, 4)])


COOKS = {
    "raw": None,
    "roasted": ("5b2c0e", "a7652a", "d39a52"),
    "fried": ("7a3f12", "c07f35", "e0ae62"),
    "grilled": ("3a1d0c", "8d5526", "c08b4c"),
    "poached": ("6d7378", "aeb1ad", "dedacd"),
    "blue": ("35505e", "70909c", "b4c4c6"),
    "smoked": ("3e1d08", "9a5a16", "d79a38"),
}


def _skin(k, state, cuts, seed):
    """Painted skin: colour and height pictures over (distance from the snout, round the body)."""
    W, H = 1536, 768
    u = np.tile((np.arange(W) + .5) / W, (H, 1))
    a = (np.arange(H) + .5) / H * 2 * np.pi
    s1 = np.sin(a)
    s = np.tile(s1[:, None], (1, W))
    mid, half, w = _shape(k, u[0])
    pz = mid[None, :] + half[None, :] * s
    p = np.stack([u * 9, pz * 9, np.cos(a)[:, None] * np.ones_like(u)], -1)
    n1 = fbm(p * 1.2, 4, seed)
    n2 = fbm(p * 5, 4, seed + 3)
    n3 = fbm(p * 16, 3, seed + 5)
    back, sidec, belly = _s(k["back"]), _s(k["side"]), _s(k["belly"])
    q = s + (n1 - .5) * .35
    col = _mix(np.broadcast_to(belly, (H, W, 3)).copy(), sidec, np.clip((q + .75) / .6, 0, 1))
    col = _mix(col, back, np.clip((q - .15) / .6, 0, 1))
    head = np.clip((_gill(k, s) - u) / .01, 0, 1)
    if k.get("spots"):
        rng = np.random.default_rng(seed)
        for _ in range(230):
            ct, cs = rng.uniform(.1, .98), rng.uniform(-.25, 1)
            for ca in (math.asin(min(1, max(-1, cs))), math.pi - math.asin(min(1, max(-1, cs)))):
                r = rng.uniform(.003, .0075)
                hy = np.interp(ct, u[0], half)
                x0, x1 = int((ct - .02) * W), int((ct + .02) * W)
                yc = int((ca % (2 * np.pi)) / (2 * np.pi) * H)
                ys = np.arange(yc - 45, yc + 45) % H
                sl = np.ix_(ys, np.arange(max(0, x0), min(W, x1)))
                d = np.hypot(u[sl] - ct, (pz[sl] - (np.interp(ct, u[0], mid) + hy * math.sin(ca))))
                f = np.clip((r - d) / .002, 0, 1)
                col[sl] = _mix(col[sl], _s("1c1a14"), f * .85)
        if k is KINDS["trout"]:
            for _ in range(60):
                ct, cs = rng.uniform(.24, .95), rng.uniform(-.2, .45)
                ca = math.pi + math.asin(cs) * -1
                for ca in (math.asin(cs), math.pi - math.asin(cs)):
                    hy = np.interp(ct, u[0], half)
                    x0, x1 = int((ct - .02) * W), int((ct + .02) * W)
                    ys = np.arange(int((ca % 6.283) / 6.283 * H) - 45, int((ca % 6.283) / 6.283 * H) + 45) % H
                    sl = np.ix_(ys, np.arange(max(0, x0), min(W, x1)))
                    d = np.hypot(u[sl] - ct, (pz[sl] - (np.interp(ct, u[0], mid) + hy * math.sin(ca))))
                    col[sl] = _mix(col[sl], _s("d9cfae"), np.clip((.0095 - d) / .002, 0, 1) * .6)
                    col[sl] = _mix(col[sl], _s("b03a1c"), np.clip((.006 - d) / .002, 0, 1) * .9)
    if k.get("blotch"):
        col = _mix(col, belly * .9, np.clip((fbm(p * np.array([3.4, 4.5, 2]), 3, seed + 9) - .55) / .06, 0, 1) * np.clip((.75 - s) / .3, 0, 1) * .55 * (1 - head))
    if k.get("bars"):
        bar = np.sin(u * 2 * np.pi * 7.5 + 1 + (n1 - .5) * 2)
        col = _mix(col, back * .7, np.clip((bar - .25) / .35, 0, 1) * np.clip((s + .25) / .4, 0, 1) * (1 - head) * .75)
    if k.get("waves"):
        bar = np.sin(u * 2 * np.pi * 26 + 3.5 * np.sin(s * 7) + (n1 - .5) * 3)
        col = _mix(col, _s("0c2126"), np.clip((bar - .1) / .3, 0, 1) * np.clip((s - .12) / .12, 0, 1) * (1 - head))
    hgt = .5 + (n2 - .5) * .1
    if k["scales"]:
        nrow = max(12, int(k["scales"] * .9)) * 2
        sh, ed = _scale_map(u, a[:, None] / (2 * np.pi) * np.ones_like(u), k["scales"], nrow)
        body = (1 - head) * k["scalehard"]
        vis = 1.0 if state == "raw" else .3
        hgt = hgt + (sh - .5) * .35 * body * vis
        col = _mix(col, col * .52, ed * body * .8 * (1.0 if state == "raw" else .35))
        col = _mix(col, np.minimum(1, col * 1.25 + .04), np.clip(sh - .55, 0, 1) * body * (1 if state == "raw" else .2))
    lat = np.exp(-((s - .08 - .12 * np.cos(u * 3)) / .02) ** 2) * (1 - head)
    col = _mix(col, col * .6, lat * .6)
    if COOKS[state]:
        dark, middle, light = (_s(c) for c in COOKS[state])
        b = n1 * .55 + n2 * .3 + n3 * .15 + .06 * s
        cooked = _mix(np.broadcast_to(light, col.shape).copy(), middle, np.clip((b - .36) / .14, 0, 1))
        cooked = _mix(cooked, dark, np.clip((b - .53) / .13, 0, 1) * .85)
        keep = {"poached": .5, "blue": .45, "smoked": .25}.get(state, .22)
        col = cooked * (1 - keep) + col * keep
        col = _mix(col, dark * .8, head * np.clip((n2 - .5) / .2, 0, 1) * .5)
        if state == "grilled":
            for c in np.arange(.2, 1, .085):
                d = np.abs(u - c - .09 * s)
                col = _mix(col, _s("160b06"), np.clip((.012 - d) / .006, 0, 1) * np.clip((.8 - np.abs(s)) / .2, 0, 1) * (.55 + n2 * .5))
        hgt = hgt + (n3 - .5) * .25 + (n2 - .5) * .35
        if state in ("smoked",):
            col = np.clip(col * 1.05, 0, 1)
    g = u - _gill(k, s)
    col = _mix(col, col * .35, np.exp(-((g - .004) / .006) ** 2) * .8 * (np.abs(s) < .93))
    ml = .3 * k["head"]
    line = s - (k["mouth"] - .25 * (u / ml))
    col = _mix(col, col * .3, np.exp(-(line / .05) ** 2) * (u < ml) * .8)
    col = _mix(col, col * .25, np.exp(-(((u - k["eye"][0] * .5) / .006) ** 2 + ((s - k["eye"][1] - .12) / .06) ** 2)))
    for c in cuts:
        d = u - c - .05 * (s - .1)
        m = np.clip((.72 - np.abs(s - .05)) / .12, 0, 1)
        col = _mix(col, _s("e9dcc0"), np.clip((.011 - np.abs(d)) / .004, 0, 1) * m * (.75 + .25 * n3))
    return col, hgt


def _fin(base, out, rays, m, thick=.0035, wave=.004, ragged=.05, y0=0.0):
    """A membrane between a base line and an outer line (both (x, z)), ridged by its rays."""
    n, k = rays * 6, 9
    q = np.linspace(0, 1, n)
    B = np.stack([np.interp(q, np.linspace(0, 1, len(base)), [p[i] for p in base]) for i in (0, 1)], 1)
    O = np.stack([np.interp(q, np.linspace(0, 1, len(out)), [p[i] for p in out]) for i in (0, 1)], 1)
    ray = .5 + .5 * np.cos(q * rays * 2 * np.pi)
    O = B + (O - B) * (1 - ragged * (1 - ray) - ragged * .4 * np.random.rand(n))[:, None]
    v, uv = [], []
    for sgn in (1, -1):
        for j in range(k):
            f = j / (k - 1)
            P = B * (1 - f) + O * f
            y = y0 + sgn * (thick * (1 - .8 * f) * (.45 + .55 * ray)) + wave * math.sin(f * 2.2) * np.sin(q * 7 + 1)
            v += [(P[i, 0], y[i], P[i, 1]) for i in range(n)]
            uv += [(q[i], f) for i in range(n)]
    f = grid_faces(k, n) + [tuple(reversed(t)) for t in grid_faces(k, n, offset=k * n)]
    last = (k - 1) * n
    f += [(last + i, last + i + 1, k * n + last + i + 1, k * n + last + i) for i in range(n - 1)]
    return mesh(v, f, m, uv=uv)


COOKS["baked"] = ("7a4f22", "bd8f52", "e0c692")   # in its own steam: golden, the drawing of the skin shows


def _skinned(k, col, hgt):
    """The pictures of a poached fish whose skin was taken off between gills and tail: pink muscle layers."""
    H, W = hgt.shape[:2]
    u, a = (np.arange(W) + .5) / W, (np.arange(H) + .5) / H * 2 * np.pi
    s = np.sin(a)[:, None] * np.ones((1, W))
    u = np.tile(u, (H, 1))
    wide = fbm(np.stack([u * 5, s * 2, u * 0], -1), 4, 2)
    bare = np.clip((u - _gill(k, s) - .015) / .006, 0, 1) * np.clip((.9 - u + .01 * (wide - .5)) / .006, 0, 1)
    part = np.mod(u * 30 + 2.2 * np.abs(s - .1) + 1.2 * (wide - .5), 1)
    seam = np.clip((.14 - np.minimum(part, 1 - part)) / .1, 0, 1) * np.clip((wide - .3) * 2.5, 0, 1)
    flesh = _mix(np.broadcast_to(_s("ee9a72"), col.shape) * (.88 + .25 * wide[..., None]), _s("fbdcc2"), seam * .6)
    flat = hgt if hgt.ndim == 2 else hgt[..., 0]
    return _mix(col, flesh, bare), flat * (1 - bare) + bare * (.4 + .3 * part)


def _ranged(nt, value, least, most, low, high):
    """Lays a value between two others."""
    n = nt.nodes.new("ShaderNodeMapRange")
    for end, q in (("From Min", least), ("From Max", most), ("To Min", low), ("To Max", high)):
        n.inputs[end].default_value = q
    nt.links.new(value, n.inputs["Value"])
    return n.outputs[0]


def _crisped(m, crisp, scales):
    """Adds to a painted skin what is finer than its picture: scales that stand up, blisters, burnt specks, fat in places."""
    nt = m.node_tree
    skin, where = nt.nodes["Principled BSDF"], nt.nodes.new("ShaderNodeTexCoord").outputs["Object"]
    color, normal = (skin.inputs[n].links[0].from_socket for n in ("Base Color", "Normal"))
    specks = core._ramp(nt, core._noise(nt, where, 62, 9, .4, .68), ((.3, "3a1a08"), (.4, "b06a2c"), (.47, "ffffff")))
    burnt = nt.nodes.new("ShaderNodeMixRGB")
    burnt.blend_type = "MULTIPLY"
    nt.links.new(_ranged(nt, core._noise(nt, where, 5.5, 5), .41, .58, .08 * crisp, .85 * crisp), burnt.inputs[0])
    nt.links.new(color, burnt.inputs[1])
    nt.links.new(specks, burnt.inputs[2])
    nt.links.new(burnt.outputs[0], skin.inputs["Base Color"])
    cells = nt.nodes.new("ShaderNodeTexVoronoi")
    cells.inputs["Scale"].default_value = scales
    nt.links.new(where, cells.inputs["Vector"])
    for height, strength, distance in ((cells.outputs["Distance"], .5, .035), (core._noise(nt, where, 24, 6, 0, .6), .7, .14)):
        bump = nt.nodes.new("ShaderNodeBump")
        bump.inputs["Strength"].default_value = min(1, strength * crisp)
        bump.inputs["Distance"].default_value = distance
        nt.links.new(height, bump.inputs["Height"])
        nt.links.new(normal, bump.inputs["Normal"])
        normal = bump.outputs[0]
    nt.links.new(normal, skin.inputs["Normal"])
    nt.links.new(_ranged(nt, core._noise(nt, where, 9, 5), .38, .62, .16, .5), skin.inputs["Roughness"])


def fish(kind="carp", state="raw", length=6.0, cuts=0, seed=1, bend=0.0, lying=True, open_mouth=False, tailbend=0.0, crisp=0.0):
    """A whole fish. cuts: number of score cuts; bend: how much it curves sideways (radians over the length); crisp: how
    much its skin is blistered and browned in small, with its scales standing up."""
    k = KINDS[kind]
    cooked = state != "raw"
    cutpos = [.33 + i * (.46 / max(1, cuts - 1) if cuts > 1 else 0) for i in range(cuts)]
    name = f"skin-{kind}-{state}-{cuts}-{seed}"
    color = height = None
    if name not in core._materials:
        painted = "poached" if state == "skinned" else state
        col, hgt = core.cached(f"{_SELF}{kind}{painted}{cutpos}{seed}", lambda: _skin(k, painted, cutpos, seed))
        if state == "skinned":
            col, hgt = _skinned(k, col, hgt)
        color, height = picture(name, col), picture(name + "h", hgt, True)
    rough = {"raw": .2, "smoked": .22, "poached": .3, "blue": .25}.get(state, .34)
    skin = mat(name, k["side"], rough, .55, sss=.02, coat=.75 if not cooked else .45, image=color, height=height,
               heightscale=.55 if cooked else .4, metal=.25 if state == "raw" or state == "smoked" else 0)
    if crisp and "crisped" not in skin:
        _crisped(skin, crisp, 3.2 * max(k["scales"], 22))
        skin["crisped"] = True
    fc = k["fin"] if not cooked else {"poached": "8d8b80", "blue": "5d7680", "smoked": "6b3f14"}.get(state, "6a3c18")
    finm = mat(f"fin-{kind}-{state}", ((.35, fc), (.65, "".join(f"{min(255, int(int(fc[i:i+2], 16) * 1.35)):02x}" for i in (0, 2, 4)))), .38, noise=9,
               stretch=(1, 1, 4), translucent=.3, coat=.3)
    N, K = 210, 96
    t = np.r_[np.linspace(0, .33, 110, endpoint=False) ** 1.0, np.linspace(.33, 1, N - 110)]
    t = t * .9999
    mid, half, w = _shape(k, t)
    a = np.arange(K) / K * 2 * np.pi
    ca, sa = np.cos(a), np.sin(a)
    T, S = np.meshgrid(t, sa, indexing="ij")
    C = np.broadcast_to(ca, T.shape)
    side = np.clip(np.abs(C) * 1.6, 0, 1)
    rel = _relief(k, T, S, side, cooked, cutpos)
    if cooked:
        P = np.stack([T * 7, (mid[:, None] + half[:, None] * S) * 7, C], -1)
        rel = rel + (fbm(P, 4, seed) - .5) * .012 + (fbm(P * 4, 3, seed + 1) - .5) * .004
    Y = np.sign(C) * np.abs(C) ** .85 * (w[:, None]) + C * rel
    Z = mid[:, None] + S * (half[:, None]) + S * rel * .4
    X = T.copy()
    parts_v = np.stack([X, Y, Z], -1).reshape(-1, 3)
    V = (a / (2 * np.pi))
    uv = np.stack([T, np.broadcast_to(V, T.shape)], -1).reshape(-1, 2)
    f = grid_faces(N, K, True)
    cap = len(parts_v)
    parts_v = np.vstack([parts_v, [(t[-1], 0, mid[-1])], [(-.0012, 0, mid[0])]])
    uv = np.vstack([uv, [(1, .25)], [(0, .25)]])
    f += [((N - 1) * K + j, (N - 1) * K + (j + 1) % K, cap) for j in range(K)]
    f += [((j + 1) % K, j, cap + 1) for j in range(K)]
    # wrap of v: last column faces to first share v = 0 seam at the side; move the seam to the back
    body = mesh(parts_v, f, skin, uv=uv)
    _fix_seam(body)
    parts = [body]

    def top(x):
        m_, h_, _ = _shape(k, np.array([x]))
        return float(m_[0] + h_[0])

    def bot(x):
        m_, h_, _ = _shape(k, np.array([x]))
        return float(m_[0] - h_[0])

    def ridge(x0, x1, fn, n=12):
        return [(x, fn(x)) for x in np.linspace(x0, x1, n)]

    shrink = .8 if cooked else 1.0

    def dorsal(x0, x1, h, fall, rays, sgn=1):
        fn = (lambda x: top(x) - .012) if sgn > 0 else (lambda x: bot(x) + .012)
        base = ridge(x0, x1, fn)
        out = []
        for i, (x, z) in enumerate(base):
            q = i / (len(base) - 1)
            hh = h * shrink * min(1, (.25 + q * 7)) * (1 - (1 - (.3 if fall >= 1 else fall)) * q ** .8)
            out.append((x + .045 * q + h * .35, z + sgn * (hh + .012)))
        return _fin(base, out, rays, finm)

    d = k["dorsal"]
    parts.append(dorsal(d[0], d[1], d[2], d[3], max(9, int((d[1] - d[0]) * 42))))
    if k.get("dorsal2"):
        d2 = k["dorsal2"]
        parts.append(dorsal(d2[0], d2[1], d2[2], .5, 12))
    if k.get("anal"):
        an = k["anal"]
        parts.append(dorsal(an[0], an[1], an[2], .45, max(8, int((an[1] - an[0]) * 50)), -1))
    if k.get("adipose"):
        parts.append(dorsal(k["adipose"], k["adipose"] + .025, .035, .9, 3))
    if k.get("finlets"):
        for x in np.arange(.74, .93, .04):
            parts.append(dorsal(x, x + .014, .018, .8, 2))
            parts.append(dorsal(x, x + .014, .018, .8, 2, -1))
    tl, th, tf = k["tail"]
    zt, zb = top(.995) - .004, bot(.995) + .004
    n = 15
    base = [(.985, zb + (zt - zb) * i / (n - 1)) for i in range(n)]
    out = []
    for i in range(n):
        q = 2 * i / (n - 1) - 1
        out.append((.985 + tl * (1 - tf * (1 - abs(q) ** 1.3)) * (.82 + .18 * abs(q)), (zt + zb) / 2 + th * .5 * q * (1.0 if abs(q) < .98 else .97)))
    parts.append(_fin(base, out, 17, finm, .006, .008, .04))

    def paired(x, zrel, length_, spread, angle, rays, ysgn):
        m_, h_, w_ = _shape(k, np.array([x]))
        z = float(m_[0] + h_[0] * zrel)
        y = ysgn * (float(w_[0]) * math.sqrt(max(.02, 1 - zrel ** 2)) - .003)
        b = [(x, z + .014), (x + .006, z - .014)]
        n_ = 9
        o = []
        for i in range(n_):
            q = i / (n_ - 1)
            ang = math.radians(angle + spread * (.5 - q))
            L = length_ * shrink * (1 - .35 * q)
            o.append((x + L * math.cos(ang), z + L * math.sin(ang)))
        fin = _fin(b, o, rays, finm, .003, .004, .05)
        for vtx in fin.data.vertices:
            dx = math.hypot(vtx.co.x - x, vtx.co.z - z)
            vtx.co.y += y + ysgn * dx * .22
        return fin

    for sg in (-1, 1):
        parts.append(paired(k["pect"], -.52, .11, 42, -22, 9, sg))
        if k["pelvic"]:
            parts.append(paired(k["pelvic"], -.86, .085, 40, -38, 7, sg))
    et, es, er = k["eye"]
    m_, h_, w_ = _shape(k, np.array([et]))
    for sg in (-1, 1):
        parts.append(_eye(et, float(m_[0] + h_[0] * es), sg * (float(w_[0]) * (1 - es ** 2) ** .425), sg, er, cooked, k, float(w_[0]), float(h_[0]), es))
    for b in range(k.get("barbel", 0)):
        for sg in (-1, 1):
            L = .3 if kind == "catfish" and b == 0 else .05
            x0 = .018 + b * .02
            m0, h0, w0 = _shape(k, np.array([x0]))
            pts = [(x0, sg * float(w0[0]) * .6, float(m0[0] - h0[0] * .55)), (x0 - .0, sg * (float(w0[0]) + L * .25), float(m0[0] - h0[0]) - L * .2), (x0 + L * .5, sg * (float(w0[0]) + L * .3), float(m0[0] - h0[0]) - L * .5)]
            pts = core.curve_points(pts, 5)
            parts.append(core.tube(pts, list(np.linspace(.0055, .002, len(pts))), finm, 6))
    for o in parts:
        for vtx in o.data.vertices:
            c = vtx.co
            if o.location.length:
                c += o.location
            _bend(c, bend, tailbend)
        if o.location.length:
            o.location = (0, 0, 0)
        o.data.update()
    g = group(parts, "fish")
    e = group([g], "fishbase")
    if lying:
        g.rotation_euler = (math.radians(-90), 0, 0)
        g.scale = (length,) * 3
        lowest = max(v.co.y for v in body.data.vertices) * length
        g.location = (-.55 * length, 0, lowest * .94)
    else:
        g.scale = (length,) * 3
        g.location = (-.55 * length, 0, 0)
    return e


def _bend(c, bend, tailbend):
    """Curves the body sideways (towards +z when it lies: the tail lifts) and up and down its side."""
    if bend:
        t = c.x - .45
        c.z += bend * .5 * t * t - bend * .06
    if tailbend:
        t = max(0.0, c.x - .55)
        c.y -= tailbend * t * t


def _fix_seam(o):
    """UV of the faces over the v = 1 → 0 seam, which would squeeze the whole picture into them."""
    uv = o.data.uv_layers[0].data
    for p in o.data.polygons:
        vs = [uv[i].uv[1] for i in p.loop_indices]
        if max(vs) - min(vs) > .5:
            for i in p.loop_indices:
                if uv[i].uv[1] < .5:
                    uv[i].uv[1] += 1


def _eye(x, z, y, sg, r, cooked, k, w, h, es):
    """Eye ball sunk into the socket: iris and pupil are rings of one surface, so that they cannot come loose."""
    iris = mat("iris-cooked", "7d6a4c", .35) if cooked else mat("iris", ((.35, "8c6a1e"), (.65, "d8b75a")), .12, .6, coat=1, metal=.3, noise=40)
    pupil = mat("pupil-cooked", "d6ccb4", .3, coat=.5) if cooked else mat("pupil", "050505", .05, coat=1)
    ring = mat("eyering", "14110c", .4)
    nz = es * w / max(h, 1e-3) * .9
    nrm = Vector((-.12, sg * 1.0, nz)).normalized()
    cen = Vector((x, y, z)) - nrm * r * (.44 if cooked else .42)
    q = Vector((0, 0, 1)).rotation_difference(nrm)
    objs = []
    for prof, m in (([(.01, 0.0), (.3, -.018), (.45, -.045)], pupil), ([(.45, -.045), (.6, -.1), (.78, -.2), (.92, -.36)], iris), ([(.92, -.36), (1.0, -.5), (1.05, -.8)], ring)):
        o = core.lathe([(a_ * r, (b_ + .8) * r * .75) for a_, b_ in core.smooth_profile(prof, 4)], m, 32)
        for vtx in o.data.vertices:
            vtx.co = q @ vtx.co + cen
        objs.append(o)
    # one object: join by hand
    vs, fs, mi = [], [], []
    mats = []
    for o in objs:
        off = len(vs)
        mats.append(o.data.materials[0])
        vs += [tuple(v.co) for v in o.data.vertices]
        for p in o.data.polygons:
            fs.append(tuple(i + off for i in p.vertices))
            mi.append(len(mats) - 1)
    out = mesh(vs, fs, mats[0])
    for m in mats[1:]:
        out.data.materials.append(m)
    out.data.polygons.foreach_set("material_index", mi)
    for o in objs:
        core.bpy.data.objects.remove(o)
    return out
