# SPDX-License-Identifier: GPL-3.0-or-later
"""What cut fish, skin and crumbs look like."""

from ..core import mat


def flesh(kind="white", state="poached"):
    """Cut fish: white (cod, carp), pink (salmon), grey (herring); by state."""
    base = {"white": ("b8a47e", "d0bd98", "dfcfae"), "pink": ("d9764e", "ec9468", "f3b08a"), "cured": ("c94f28", "e2733f", "ee9a68"), "grey": ("a88f82", "c9b5a6", "dfd2c4"),
            "tuna": ("9a7560", "b8937a", "cfae94"), "eel": ("c9b48e", "ded0b2", "ece3cf")}[kind]
    stops = tuple(zip((.35, .5, .65), base))
    if state in ("roasted", "fried", "grilled", "baked"):
        dark = {"white": ("8a4f1a", "c08440", "dcb878"), "pink": ("a8552a", "dd8a58", "ecab80"), "eel": ("8a531f", "b98446", "d9b67e")}.get(kind, ("8c5a2c", "c0915a", "dfc498"))
        stops = tuple(zip((.36, .5, .64), dark))
    return mat(f"flesh-{kind}-{state}", stops, .38, .5, sss=.08, coat=.35, noise=2.2, detail=8, bump=.32, cells=3.4, bumpstretch=(.55, 2.4, 1.6), sssradius=(.25, .14, .1))


def fishskin(kind="carp", state="roasted"):
    cols = {("carp", "raw"): ("3a3a22", "7d6a38", "b09a5c"), ("carp", "roasted"): ("3e1f0b", "8a531e", "c08a3e"), ("carp", "blue"): ("31505f", "5d8496", "8fb0ba"), ("carp", "poached"): ("4d5142", "7c7b5c", "a9a37c"),
            ("carp", "grilled"): ("241408", "5d3716", "97692f"), ("trout", "roasted"): ("4a3417", "8d6a32", "c49d58"), ("zander", "roasted"): ("5b3a16", "a97a38", "d9b06a"),
            ("salmon", "roasted"): ("4b3a2a", "8d7350", "bb9c70"), ("salmon", "poached"): ("565c60", "8b9296", "b9bdb9"), ("herring", "raw"): ("6d8791", "a9bcc0", "dfe5e0"),
            ("pike", "roasted"): ("5d4318", "97782f", "c9ad62"), ("eel", "roasted"): ("2c1a0a", "5d3a15", "8f6425"), ("eel", "smoked"): ("1e1006", "4f2c0c", "8a5618"),
            ("mackerel", "smoked"): ("3c2a12", "8a6420", "cfa244"), ("tench", "poached"): ("2d3418", "565c2a", "8a8444"), ("tench", "golden"): ("3a2f10", "7a6320", "b08f3a"), ("herring", "fried"): ("5d3312", "a06a2a", "cd9c55"),
            ("perch", "roasted"): ("5a3d18", "96702f", "c9a55c")}.get((kind, state), ("4b2a10", "8f5d24", "c29248"))
    return mat(f"fskin-{kind}-{state}", tuple(zip((.36, .5, .64), cols)), .3, .55, coat=.6, noise=2.4, detail=8, bump=.3, cells=14, metal=.35 if state in ("raw",) else 0)


def crumb(kind="gold"):
    cols = {"gold": ("8a4c16", "c88635", "e6b665"), "brown": ("5c3012", "9c5f24", "c9924a"), "pale": ("b98846", "dcb878", "efd9a6"), "batter": ("b5701f", "dca047", "f0cd84")}[kind]
    return mat("crumb-" + kind, tuple(zip((.3, .5, .7), cols)), .62, .35, noise=3.2, detail=12, bump=.7, bumpscale=26, sss=.03)


def gherkin_mat():
    return mat("gherkin", ((.38, "4b5a1a"), (.5, "6d7a2a"), (.62, "939a45")), .25, .5, sss=.1, coat=.6, noise=5, bump=.4, bumpscale=7)


def onion_mat(kind="white"):
    c = {"white": ((.4, "e2ddc8"), (.6, "f4f1e4")), "red": ((.4, "8a2b4a"), (.6, "d59ab0"))}[kind]
    return mat("onion" + kind, c, .2, .5, sss=.2, coat=.6, noise=3, sssradius=(.3, .3, .25), stretch=(1, 1, 6))
