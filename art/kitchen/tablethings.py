# SPDX-License-Identifier: GPL-3.0-or-later
"""What stands on the table."""
import math
import random


from lib import core, fish as fishlib, food, table
from lib.core import box, curve_points, group, lathe, mat, mesh, outline_solid, put, smooth_profile, sphere, tube


def tub():
    """Wooden tub with hoops, water and a live carp."""
    stave = table.wood("oak", "z")
    parts = []
    n = 22
    for i in range(n):
        a = 2 * math.pi * i / n
        v = []
        for z, r in ((0, 2.6), (2.6, 3.05)):
            for da, rr in ((-.46, r), (.46, r), (.46, r - .28), (-.46, r - .28)):
                q = a + da * 2 * math.pi / n
                v.append((rr * math.cos(q), rr * math.sin(q), z))
        o = mesh(v, [(0, 1, 5, 4), (1, 2, 6, 5), (2, 3, 7, 6), (3, 0, 4, 7), (4, 5, 6, 7)], stave, False)
        parts.append(o)
    for z, r in ((.55, 2.72), (1.9, 2.95)):
        parts.append(lathe([(r - .03, z - .16), (r + .05, z - .16), (r + .07, z + .16), (r, z + .16)], table.copper(), 64))
    g = group(parts)
    w = food.liquid("vinegar", 2.72, 2.0, wave=.05, clear=mat("tubwater", "2c6a6a", .02, .6, trans=.72, ior=1.2, coat=.6, bump=.25, bumpscale=1.6))
    bottom = put(lathe([(.01, 1.2), (2.7, 1.2)], mat("tubbottom", "4a3a22", .8), 40))
    w.parent = g
    bottom.parent = g
    carp = fishlib.fish("carp", "raw", 4.1, seed=5, lying=False)
    holder = group([carp])
    holder.parent = g
    put(carp, -.1, 0, 2.02)
    return g, holder, w


def basket():
    """Wicker basket heaped with potatoes, carrots, onion and parsley."""
    wick = mat("wicker", ((.35, "6b4420"), (.65, "a8763c")), .6, noise=4, bump=.3)
    parts = []
    n = 34
    for row in range(9):
        z = .16 + row * .21
        r = 2.3 + .065 * row
        pts = []
        for k in range(n * 4):
            a = 2 * math.pi * k / (n * 4)
            rr = r + .09 * math.sin(a * n / 2 + math.pi * (row % 2))
            pts.append((rr * math.cos(a) * 1.25, rr * math.sin(a), z))
        pts.append(pts[0])
        parts.append(tube(pts, .11, wick, 6, False))
    for k in range(n):
        a = 2 * math.pi * k / n
        parts.append(tube([(2.25 * math.cos(a) * 1.25, 2.25 * math.sin(a), 0), (2.85 * math.cos(a) * 1.25, 2.85 * math.sin(a), 1.95)], .07, wick, 6))
    parts.append(tube([(2.88 * math.cos(a) * 1.25, 2.88 * math.sin(a), 2.0 + .05 * math.sin(a * 20)) for a in [2 * math.pi * k / 120 for k in range(121)]], .17, wick, 8, False))
    parts.append(put(lathe([(.01, .7), (2.5, .7)], mat("basketin", "1c120a", .9), 40), scale=(1.25, 1, 1)))
    g = group(parts)
    items = []
    spots = [(-1.9, -.4, 1.5), (-.9, -1.2, 1.5), (.2, -1.4, 1.5), (-1.2, .7, 1.5), (0, .3, 1.7), (-.7, -.2, 2.3)]
    skin = mat("potatoskin", ((.36, "7c5528"), (.5, "a87a40"), (.64, "c99c5c")), .65, noise=2.2, detail=8, bump=.25, bumpscale=8)
    for i, (x, y, z) in enumerate(spots):
        o = food.potato("boiled", .95, seed=i + 3)
        o.data.materials[0] = skin
        put(o, x, y, z - .5, turn=i * 50)
        items.append(o)
    for i, (x, y, t) in enumerate(((1.7, -.9, 25), (2.0, -.1, 8), (1.7, .6, -14))):
        t_ = [k / 20 for k in range(21)]
        c = tube([((q - .5) * 2.8, .08 * math.sin(q * 5), 0) for q in t_], [max(.05, .42 * (1 - q * .85)) for q in t_], food.carrot_mat(), 16)
        gr = put(food.sprig("parsley", 1.2), -1.7, 0, -.1)
        cg = group([c, gr])
        put(cg, x, y, 2.05, turn=t + 180, roll=-12)
        items.append(cg)
    on = sphere(.85, mat("onionskin", ((.4, "8a4a1a"), (.6, "c98a3c")), .35, coat=.5, noise=1.5, stretch=(3, 3, .3)), scale=(1, 1, .85), n=36)
    put(on, .6, 1.0, 2.2)
    items.append(on)
    pars = put(food.sprig("parsley", 2.1), -.2, 1.5, 2.1)
    items.append(pars)
    top = group(items)
    top.parent = g
    return g, items


def fryingpan():
    p = table.pan(3.4, .85, "iron", True, turn=-18)
    fil = [put(food.fillet("white", "fried", 3.4, 1.5, .5, None, 4), -.3, .75, .14, turn=12), put(food.fillet("white", "fried", 3.2, 1.4, .5, None, 9), .2, -.95, .14, turn=-8)]
    oil = put(lathe([(.01, .16), (2.8, .16)], food.sauce_mat("butter"), 64))
    bub = []
    for i in range(26):
        a, q = random.random() * 6.28, math.sqrt(random.random()) * 2.6
        bub.append(put(sphere(.09, mat("bubble", "f6e2a0", .1, trans=.4, coat=1), n=10), q * math.cos(a), q * math.sin(a), .16))
    g = group([p, oil] + fil + bub)
    return g, fil, bub


def aquarium():
    """Glass bowl with water, pebbles, weed and two fish."""
    r = 2.6
    out = smooth_profile([(.01, 0), (1.3, .0), (2.0, .45), (r, 1.9), (2.35, 3.3), (1.75, 4.1), (1.95, 4.35)], 7)
    inn = [(max(.01, a - .07), z + (.07 if z < .5 else 0)) for a, z in reversed(out)]
    g = [lathe(out + inn, core.thin_glass("bowlglass", "e2f0ee"), 64)]
    wat = [(max(.01, a - .09), z + (.09 if z < .5 else 0)) for a, z in out if z < 3.5]
    g.append(lathe(wat + [(.01, wat[-1][1])], core.thin_glass("aquawater", "d9f1ec", 1.08, glow=.03), 64))
    peb = mat("pebble", ((.35, "6a5a44"), (.65, "b5a284")), .5, noise=1)
    for i in range(60):
        a, q = random.random() * 6.28, math.sqrt(random.random()) * 1.6
        g.append(put(sphere(random.uniform(.12, .22), peb, n=10, rough=.2), q * math.cos(a), q * math.sin(a), .22 + .1 * q * .6, scale=(1.2, 1, .7)))
    weed = mat("weed", ((.4, "1f5a24"), (.6, "3f8a36")), .4, translucent=.3)
    for i in range(7):
        x, y = random.uniform(-1.2, 1.2), random.uniform(.1, 1.0)
        pts = [(x + .18 * math.sin(t * 6 + i), y, .25 + t * random.uniform(1.8, 2.6)) for t in [k / 14 for k in range(15)]]
        g.append(tube(pts, [.1 * (1 - .7 * k / 14) for k in range(15)], weed, 5))
    f1 = group([fishlib.fish("goldfish", "raw", 2.7, seed=8, lying=False)])
    f2 = group([fishlib.fish("perch", "raw", 2.0, seed=9, lying=False)])
    for fish, strength in ((f1, .55), (f2, .4)):
        for o in core.tree(fish):
            for m in o.data.materials if o.type == "MESH" else ():
                lit(m, strength)
    bubbles = [sphere(.07, mat("airbubble", "dff6f6", .05, trans=.8, coat=1), n=10) for _ in range(4)]
    all_ = group(g + [f1, f2] + bubbles)
    return all_, f1, f2, bubbles


def lit(m, strength):
    """Makes a material shine a little in its own colours, as what swims behind glass and water must to be seen."""
    nt = m.node_tree
    b = nt.nodes["Principled BSDF"]
    for link in b.inputs["Base Color"].links:
        nt.links.new(link.from_socket, b.inputs["Emission"])
    b.inputs["Emission Strength"].default_value = strength if b.inputs["Base Color"].links else 0


def glow(colour, strength, power=1.5, seed=None):
    """A soft round shine that stands upright and casts no shadow, torn like a cloud when it has a seed; the first value of
    the object's colour is how dense it is."""
    m = core.bpy.data.materials.new("glow")
    m.use_nodes = True
    nt = m.node_tree
    nt.nodes.remove(nt.nodes["Principled BSDF"])

    def node(kind, *inputs, output=0, **options):
        n = nt.nodes.new("ShaderNode" + kind)
        for key, value in options.items():
            setattr(n, key, value)
        for i, q in enumerate(inputs):
            if hasattr(q, "links"):
                nt.links.new(q, n.inputs[i])
            else:
                n.inputs[i].default_value = q
        return n.outputs[output]
    place = node("TexCoord", output="Object")
    dense = node("Math", node("Math", 1.0, node("VectorMath", place, output="Value", operation="LENGTH"), operation="SUBTRACT", use_clamp=True), power, operation="POWER")
    if seed is not None:
        noise = node("TexNoise", node("VectorMath", place, (seed * 3.7, seed * 1.9, seed * 2.3)), 0, 1.7, 3, output="Fac")
        torn = node("Math", node("Math", noise, .3, operation="SUBTRACT", use_clamp=True), 2.2, operation="MULTIPLY", use_clamp=True)
        dense = node("Math", dense, torn, operation="MULTIPLY")
    dense = node("Math", dense, node("ObjectInfo", output="Color"), operation="MULTIPLY", use_clamp=True)
    mixed = node("MixShader", dense, node("BsdfTransparent"), node("Emission", (*colour, 1), strength))
    nt.links.new(mixed, nt.nodes["Material Output"].inputs[0])
    o = mesh([(-1, 0, -1), (1, 0, -1), (1, 0, 1), (-1, 0, 1)], [(0, 1, 2, 3)], m, False)
    o.visible_shadow = o.visible_diffuse = o.visible_glossy = False
    o.color = (0, 0, 0, 1)
    return o


def photo_camera():
    body = box(3.0, 1.0, 1.9, mat("cameraleather", ((.4, "17130f"), (.6, "2a231c")), .55, noise=12, bump=.5, bumpscale=40), .16)
    parts = [body, put(box(3.02, 1.02, .42, table.steel(), .12), 0, 0, 1.62), put(box(.9, .8, .4, table.steel(), .1), 0, 0, 1.98)]
    tubec = lathe(smooth_profile([(.01, .05), (.45, .02), (.55, .1), (.62, .5), (.78, .52), (.8, .1), (.84, -.1), (.85, -.5)], 5), table.steel(), 48)
    put(tubec, 0, -.55, .85, tilt=90)
    lens = put(sphere(.52, mat("lens", "0a1a2a", .02, .8, coat=1), scale=(1, 1, .35), n=32), 0, -.95, .85, tilt=90)
    ring = put(table.torus(.72, .06, table.copper()), 0, -1.05, .85, tilt=90)
    flash = put(outline_solid(table.rounded_rect(.62, .5, .08), .1, mat("flashglass", "dfe9ea", .1, coat=1), .02), 1.05, -.52, 1.45, tilt=90)
    btn = put(lathe([(.01, .16), (.16, .15), (.18, 0)], table.brass(), 24), -1.05, 0, 2.04)
    win = put(box(.34, .06, .24, mat("finder", "0e2a36", .05, coat=1), .02), 0, -.42, 2.08)
    bulb = put(sphere(.2, mat("bulb", "fff2cc", emit="ffe6b0", emit_strength=0.0), n=16), 1.05, -.62, 1.45)
    g = group(parts + [tubec, lens, ring, flash, btn, win, bulb])
    strap = tube(curve_points([(-1.5, 0, 1.6), (-2.1, -.2, .9), (-2.0, -.9, .12), (-.9, -1.9, .08), (.4, -2.1, .08), (1.6, -1.6, .08), (2.1, -.6, .4), (1.5, 0, 1.6)], 8), .09, mat("strap", "4a2a14", .6), 6)
    strap.parent = g
    burst = put(glow((1, .95, .82), 6, 3), 1.05, -.72, 1.52, scale=2.2)
    burst.parent = g
    return g, btn, burst


def crate():
    """Slatted crate of sea fish on ice, with a shell and a lemon."""
    w = table.wood("pale")
    parts = []
    for i in range(3):
        for s in (-1, 1):
            parts.append(put(box(6.4, .16, .55, w, .03), 0, s * 2.0, .1 + i * .62))
            parts.append(put(box(.16, 4.0, .55, w, .03), s * 3.2, 0, .1 + i * .62))
    for sx in (-1, 1):
        for sy in (-1, 1):
            parts.append(put(box(.3, .3, 2.0, w, .03), sx * 3.05, sy * 1.85, 0))
    ice = mat("ice", ((.4, "b5d6da"), (.6, "e6f4f4")), .12, .6, trans=.35, sss=.1, coat=.6, ior=1.3)
    iv, jf = food._cubelet()
    from mathutils import Matrix
    ts = []
    for _ in range(260):
        s = random.uniform(.14, .3)
        ts.append(Matrix.Translation((random.uniform(-2.9, 2.9), random.uniform(-1.8, 1.8), 1.3 + random.uniform(-.15, .3))) @ Matrix.Rotation(random.random() * 6, 4, "Z") @ Matrix.Rotation(random.random() * 6, 4, "X") @ Matrix.Diagonal((s, s * random.uniform(.7, 1.2), s * .8, 1)))
    parts.append(core.scatter(iv, jf, ts, ice, False))
    parts.append(put(box(6.2, 3.8, 1.2, ice, .05), 0, 0, .1))
    fishes = []
    for i, (k, L, x, y, t) in enumerate((("mackerel", 4.6, -.1, .95, 6), ("herring", 4.2, .2, .2, -4), ("mackerel", 4.4, -.2, -.65, 3))):
        f = fishlib.fish(k, "raw", L, seed=20 + i)
        h = group([f])
        put(h, x, y, 1.52, turn=t)
        fishes.append(h)
    n, m = 40, 16
    v = []
    for i in range(n):
        a = math.radians(-65 + 130 * i / (n - 1))
        for j in range(m):
            q = j / (m - 1)
            r = q * 1.05 * (1 + .03 * math.cos(i * 2 * math.pi / 3.3))
            v.append((r * math.sin(a), -r * math.cos(a), .38 * math.sin(q * 2.6) + .05 * math.cos(i * 2 * math.pi / 3.3) * q))
    sh = mesh(v, core.grid_faces(n, m), mat("shell", ((.35, "c9704a"), (.5, "e6b08a"), (.65, "f3dcc4")), .35, coat=.5, noise=1.4))
    put(sh, 2.2, -.9, 2.0, tilt=38, turn=20)
    lem = put(food.lemon_half(.6), -2.4, -1.15, 1.5, tilt=-35)
    g = group(parts + fishes + [sh, lem])
    return g, fishes, sh


def fishboard():
    b = table.board(7.4, 3.6, "pale", False, .42, .6)
    f = fishlib.fish("carp", "raw", 5.0, seed=31)
    put(f, -.35, .2, .42)
    kn = put(table.knife(4.6), .6, -1.35, .44, turn=4)
    par = put(food.sprig("parsley", .8), -3.0, -1.1, .42)
    lem = put(food.lemon_half(.62), 2.9, 1.0, .42)
    g = group([b, f, kn, par, lem])
    return g, f


def paintbox():
    m = table.wood("walnut")
    parts = [box(3.4, 2.3, .45, m, .06), put(box(3.1, 2.0, .06, mat("boxin", "1c120c", .8), 0), 0, 0, .42)]
    lid = put(group([box(3.4, .18, 2.1, m, .05), put(box(2.9, .02, 1.7, mat("pagep", "efe3c6", .8), 0), 0, -.1, .2), put(fishicon(1.15, mat("inkblue", "1d4a55", .6)), 0, -.13, 1.0, tilt=90)]), 0, 1.1, .4, tilt=-14)
    cols = ["b03a1c", "d9922c", "e6c84a", "4a7a2c", "1d5a6a", "26407a", "6a2a5a", "efe6d2"]
    for i, c in enumerate(cols):
        x, y = -1.15 + (i % 4) * .76, -.5 + (i // 4) * .85
        parts.append(put(lathe(smooth_profile([(.01, .05), (.2, .04), (.28, .0), (.33, .06), (.36, .0)], 4), mat("paint" + c, c, .2, coat=.8), 24), x, y, .46))
    handle = tube([(0, 0, 0), (1.5, 0, .02), (2.9, 0, .0)], [.1, .14, .05], mat("brushhandle", "7a1f16", .25, coat=.7), 12)
    fer = put(lathe([(.13, 0), (.14, .5), (.11, .5)], table.brass(), 16), 0, 0, 0, roll=-90)
    hair = tube([(-.45, 0, 0), (-.75, 0, 0), (-1.2, 0, .02)], [.12, .16, .01], mat("brushhair", ((.4, "2a1a10"), (.6, "5a3a20")), .6, noise=9, stretch=(1, 8, 8)), 14)
    paint = tube([(-.85, 0, 0), (-1.24, 0, .02)], [.13, .01], mat("paintb03a1c", "b03a1c", .2, coat=.8), 12)
    brush = group([handle, fer, hair, paint])
    g = group(parts + [lid])
    return g, brush


def fishicon(s, m, depth=.05):
    pts = curve_points([(-1, 0), (-.75, .3), (-.25, .46), (.3, .28), (.62, .1), (1.05, .42), (.96, 0), (1.05, -.42), (.62, -.1), (.3, -.28), (-.25, -.46), (-.75, -.3), (-1, 0)], 6)
    return outline_solid([(x * s, y * s) for x, y in pts[:-1]], depth, m, .012)


def microphone():
    st = [lathe(smooth_profile([(.01, .0), (.8, .0), (.82, .12), (.3, .24), (.12, .4), (.09, 2.6), (.16, 2.7), (.01, 2.75)], 5), table.brass(), 40)]
    head = sphere(.62, mat("micmesh", ((.4, "8a9294"), (.6, "c9cfcf")), .3, metal=1, bump=.8, bumpscale=18), scale=(.85, .85, 1.25), n=36)
    put(head, 0, 0, 3.35)
    ring = put(table.torus(.56, .06, table.copper()), 0, 0, 3.35)
    return group(st + [head, ring])


def projector():
    """Film projector: body, lens to the left, two reels above each other, a beam of light."""
    m = mat("projbody", ((.4, "12383d"), (.6, "1a4a50")), .32, coat=.6, noise=9, bump=.06, bumpscale=30)
    st = table.steel()
    parts = [box(2.6, 1.5, 2.5, m, .18), put(box(2.8, 1.7, .3, table.wood("walnut"), .08), 0, 0, -.05)]
    parts.append(put(lathe(smooth_profile([(.01, .9), (.36, .92), (.44, .85), (.44, .4), (.52, .36), (.52, 0)], 5), st, 40), -1.3, 0, 1.5, roll=-90))
    parts.append(put(sphere(.34, mat("projlens", "ffe9b8", .05, emit="ffdf9a", emit_strength=3.0), scale=(1, 1, .4), n=24), -2.22, 0, 1.5, roll=-90))
    for i in range(5):
        parts.append(put(box(.08, .06, .8, mat("vent", "06181a", .7), 0), .35 + i * .18, -.76, .5))
    parts.append(put(lathe([(.01, .1), (.28, .08), (.3, 0)], table.copper(), 32), -.55, -.76, 1.5, tilt=90))
    arms = [tube([(.6, 0, 2.4), (1.2, 0, 3.4), (1.7, 0, 4.0)], .14, st, 10), tube([(-.6, 0, 2.4), (-.8, 0, 3.2), (-1.0, 0, 3.9)], .14, st, 10)]
    reels = []
    for x, z, r, full in ((1.75, 4.1, 1.55, .55), (-1.25, 4.05, 1.4, .85)):
        rim = []
        for y in (-.22, .22):
            t = put(table.torus(r, .075, st, 72), 0, y, 0, tilt=90)
            rim.append(t)
            for k in range(5):
                a = 2 * math.pi * k / 5
                bar = put(box(r * .98, .05, .3, st, .03), r * .5 * math.cos(a), y, r * .5 * math.sin(a) - .0, roll=-math.degrees(a))
                rim.append(bar)
            hub = put(lathe([(.01, .05), (.36, .05), (.38, 0)], table.copper(), 32), 0, y, 0, tilt=90)
            rim.append(hub)
        film = put(lathe([(r * full, -.18), (r * full, .18), (.3, .18)], mat("film", ((.4, "1a0f0a"), (.6, "35221a")), .25, coat=.7, noise=1, stretch=(1, 1, 20)), 64), 0, 0, 0, tilt=90)
        rim.append(film)
        g = group(rim)
        put(g, x, -.35, z)
        reels.append(g)
    strip = tube([(1.2, -.35, 2.7), (.4, -.35, 2.55), (-.3, -.4, 2.5), (-.5, -.5, 1.9)], .05, mat("film", "24160f", .25), 6)
    beam = put(glow((1, .88, .6), 4, 2), -2.4, -.3, 1.54, scale=1.05)
    return group(parts + arms + reels + [strip, beam]), reels, beam
