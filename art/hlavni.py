# SPDX-License-Identifier: GPL-3.0-or-later
"""Renders the main screen.

blender -b -P art/hlavni.py -- pozadi [samples]          the room at rest
blender -b -P art/hlavni.py -- pohyby [samples [button…]]  the frames of the moving things; those that exist are skipped
blender -b -P art/hlavni.py -- zkouska SAMPLES [button…]       frames for a look, into build/zkouska
blender -b -P art/hlavni.py -- siroke [samples]          what a wide display shows left and right of the room
blender -b -P art/hlavni.py -- nahled FILE WIDTH SAMPLES  a quick look at the wide room
"""
import os
import sys
import tempfile
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import numpy as np  # noqa: E402

import kitchen as H  # noqa: E402
from kitchen.place import seen_at  # noqa: E402
from lib import core, wide  # noqa: E402

OUT = os.path.join(core.RENDERED, "hlavni")
WIDTH, HEIGHT, TWIPS = 1600, 1200, 7.5
FRAMES = 10
LOOK = os.path.join(core.BUILD, "zkouska")
SHADOW = 34   # pixels round all that moves
EDGE = 12   # pixels over which a frame fades towards its own edge
POSITIONS = ((9335, 370), (317, 13), (5232, 7416), (1478, 8326), (1980, 1253), (4288, 5003), (4874, 1320), (5738, 1880), (4563, 5041), (4746, 6021),
             (1702, 5065), (2455, 4493), (5127, 4720), (267, 8186), (243, 3028), (7029, 3205), (8713, 2879), (8519, 1542), (8736, 6721))


def frame_sizes():
    """Frame width and height in twips by button, from the layout file."""
    out = {}
    with open(os.path.join(core.ART, "layout", "hlavni.txt"), encoding="utf-8") as f:
        for ln in f:
            w = ln.split("#")[0].split()
            if w:
                out[int(w[0])] = (int(w[5]), int(w[6]))
    return out


def region(button, size):
    """Whole pixels that cover a button's frame, and the fraction of a pixel by which the frame begins behind them."""
    l, t = POSITIONS[button][0] / TWIPS, POSITIONS[button][1] / TWIPS
    w, h = int(size[0] / TWIPS), int(size[1] / TWIPS)
    return (int(l), int(t), min(WIDTH, int(l) + w), min(HEIGHT, int(t) + h)), l - int(l), t - int(t)


def shown(linear):
    """Linear pixels as a screen shows them, 0 ... 1."""
    with tempfile.TemporaryDirectory() as folder:
        name = os.path.join(folder, "shown.png")
        core.save(linear, name)
        return core._load(name)[..., :3]


def shifted(p, box, fx, fy):
    """The part of a picture (rows run upwards) under a box that begins a fraction of a pixel further right and down."""
    def four(f):
        return (-f + 2 * f * f - f ** 3) / 2, (2 - 5 * f * f + 3 * f ** 3) / 2, (f + 4 * f * f - 3 * f ** 3) / 2, (f ** 3 - f * f) / 2
    rows = np.arange(HEIGHT - box[3], HEIGHT - box[1])
    columns = np.arange(box[0], box[2])
    p = sum(k * p[np.clip(rows - i, 0, HEIGHT - 1)] for i, k in zip((-1, 0, 1, 2), four(fy)))
    return np.clip(sum(k * p[:, np.clip(columns + i, 0, WIDTH - 1)] for i, k in zip((-1, 0, 1, 2), four(fx))), 0, 1)


def blur(a, n):
    for axis in (0, 1):
        p = np.pad(a, [(n, n) if i == axis else (0, 0) for i in range(2)], "edge")
        a = sum(np.take(p, range(k, k + a.shape[axis]), axis) for k in range(2 * n + 1)) / (2 * n + 1)
    return a


def fade(box):
    """Opacity towards those edges of a frame that are not edges of the screen."""
    w, h = box[2] - box[0], box[3] - box[1]
    far = np.full(max(w, h), 99.0)
    sides = [np.arange(w) if box[0] > 0 else far[:w], np.arange(w)[::-1] if box[2] < WIDTH else far[:w]]
    ends = [np.arange(h) if box[3] < HEIGHT else far[:h], np.arange(h)[::-1] if box[1] > 0 else far[:h]]
    near = np.minimum.outer(np.minimum(*ends), np.minimum(*sides))
    return np.clip(near / EDGE, 0, 1)


def over(frame, rest, ground):
    """A frame for the ground: the ground's own pixels, changed by what the frame changed against the room at rest."""
    d = np.abs(frame - rest).max(axis=2)
    mine = np.clip((blur(d, 2) - .05) / .12, 0, 1)[..., None]
    picture = frame * mine + np.clip(ground + frame - rest, 0, 1) * (1 - mine)
    mask = blur((blur(d, 1) > .018).astype(float), 4) > .1
    return np.dstack([picture, np.clip(blur(blur(mask.astype(float), 2), 2) * 1.2, 0, 1)])


def store(pixels, path):
    """Writes shown pixels with alpha; what cannot be seen has one colour."""
    pixels[pixels[..., 3] < .004] = 0
    im = core.bpy.data.images.new("frame", pixels.shape[1], pixels.shape[0], alpha=True)
    im.pixels.foreach_set(pixels.astype(np.float32).ravel())
    im.file_format, im.filepath_raw = "PNG", path
    im.save()
    core.bpy.data.images.remove(im)


def render(button, phase, samples, box, fx, fy):
    H.pose(P, button, phase)
    eye = core.scene.camera.data
    eye.shift_x, eye.shift_y = fx / WIDTH, -fy / WIDTH
    return shown(core.render_linear(WIDTH, HEIGHT, samples, box))


def meshes(part):
    """All meshes of a moving part: an object, or a tuple of objects and numbers."""
    if isinstance(part, (tuple, list)):
        return [m for p in part for m in meshes(p)]
    return [o for o in core.tree(part) if o.type == "MESH"] if hasattr(part, "children") else []


def points(mesh):
    """Where the vertices of a mesh are seen, pixels of the room's picture."""
    v = np.empty(len(mesh.data.vertices) * 3, np.float32)
    mesh.data.vertices.foreach_get("co", v)
    world = np.array(mesh.matrix_world)
    return WIDTH / 800 * seen_at(v.reshape(-1, 3) @ world[:3, :3].T + world[:3, 3])


def lively(button, box):
    """The part of a frame in which anything moves, with room for its shadow."""
    parts = meshes(P[H.PARTS[button]])
    seen = []
    for k in range(FRAMES):
        H.pose(P, button, k / FRAMES)
        core.bpy.context.view_layer.update()
        now = [points(m) for m in parts]
        if k == 0:
            rest = now
        seen += [q for r, n in zip(rest, now) if np.abs(r - n).max() > .2 for q in (r, n)]
    if not seen or button in H.SHINING:
        return box
    low, high = np.min([q.min(axis=0) for q in seen], axis=0) - SHADOW, np.max([q.max(axis=0) for q in seen], axis=0) + SHADOW
    return (max(box[0], int(low[0])), max(box[1], int(low[1])), min(box[2], int(high[0])), min(box[3], int(high[1])))


def within(part, inner, box):
    """A part of a frame put into the empty frame."""
    whole = np.zeros((box[3] - box[1], box[2] - box[0], 4))
    whole[box[3] - inner[3]:box[3] - inner[1], inner[0] - box[0]:inner[2] - box[0]] = part
    whole[..., 3] *= fade(box)
    return whole


def frames(folder, ground, samples, buttons):
    sizes = frame_sizes()
    core.scene.render.use_persistent_data = True
    os.makedirs(folder, exist_ok=True)
    ground = core._load(ground)[..., :3]
    for b in buttons or range(19):
        names = [os.path.join(folder, f"{b:02d}-{k:02d}.png") for k in range(1, FRAMES + 1)]
        if all(os.path.exists(n) for n in names):
            continue
        started = time.time()
        box, fx, fy = region(b, sizes[b])
        inner = lively(b, box)
        below = shifted(ground, inner, fx, fy)
        rest = render(b, 0, samples, inner, fx, fy)
        for k, name in enumerate(names, 1):
            now = rest if k == FRAMES else render(b, k / FRAMES, samples, inner, fx, fy)
            store(within(over(now, rest, below), inner, box), name)
        H.pose(P, b, 0)
        print("FRAMES", b, inner, round(time.time() - started), flush=True)


a = core.arguments()
t = time.time()
P = H.build(wide=a[0] in ("siroke", "nahled"))
for b in range(19):
    H.pose(P, b, 0)
print("SET", round(time.time() - t, 1), flush=True)
if a[0] == "nahled":
    wide.widen()
    core.render(a[1], int(a[2]), int(a[2]) * 3 // 7, int(a[3]))
elif a[0] == "siroke":
    wide.render(os.path.join(OUT, "pozadi.jpg"), int(a[1]) if len(a) > 1 else 10, H.text(), 1200)
elif a[0] == "zkouska":
    frames(LOOK, os.path.join(OUT, "pozadi.jpg"), int(a[1]), [int(x) for x in a[2:]])
elif a[0] == "pozadi":
    core.render(os.path.join(OUT, "pozadi.jpg"), WIDTH, HEIGHT, int(a[1]) if len(a) > 1 else 48, quality=90, key=H.text())
else:
    frames(os.path.join(OUT, "pohyby"), os.path.join(OUT, "pozadi.jpg"), int(a[1]) if len(a) > 1 else 32, [int(x) for x in a[2:]])
print("DONE", round(time.time() - t, 1))
