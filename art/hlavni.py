"""Renders the main screen.

blender -b -P art/hlavni.py -- pozadi [samples]          the room at rest
blender -b -P art/hlavni.py -- pohyby [samples [button…]]  the frames of the moving things; those that exist are skipped
blender -b -P art/hlavni.py -- nahled FILE WIDTH SAMPLES  a quick look
"""
import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import numpy as np  # noqa: E402

import kitchen as H  # noqa: E402
from lib import core  # noqa: E402

OUT = os.path.join(core.RENDERED, "hlavni")
WIDTH, HEIGHT, TWIPS = 1600, 1200, 7.5
FRAMES = 10
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
    """Whole pixels that cover a button's frame, and the fraction of a pixel the frame begins behind them."""
    l, t = POSITIONS[button][0] / TWIPS, POSITIONS[button][1] / TWIPS
    x0, y0 = int(l), int(t)
    w, h = int(size[0] / TWIPS), int(size[1] / TWIPS)
    return (x0, y0, min(WIDTH, x0 + w + 1), min(HEIGHT, y0 + h + 1)), l - x0, t - y0


def shifted(p, fx, fy):
    """The pixels moved left and up by a fraction, so that a frame begins exactly at its position (rows run upwards)."""
    p = p[:, :-1] * (1 - fx) + p[:, 1:] * fx
    return p[1:] * (1 - fy) + p[:-1] * fy


def blur(a, n):
    k = np.ones(2 * n + 1) / (2 * n + 1)
    for axis in (0, 1):
        pad = [(n, n) if i == axis else (0, 0) for i in range(2)]
        a = np.apply_along_axis(lambda v: np.convolve(v, k, "valid"), axis, np.pad(a, pad, "edge"))
    return a


def changed(frame, rest):
    """Alpha: opaque where the frame differs from the room at rest, with a soft edge that ends inside the frame."""
    d = np.abs(np.log1p(8 * np.clip(frame[..., :3], 0, 4)) - np.log1p(8 * np.clip(rest[..., :3], 0, 4))).max(axis=2)
    d = blur(d, 1)
    m = blur((d > .05).astype(float), 5) > .12
    a = np.clip(blur(blur(m.astype(float), 2), 2) * 1.25, 0, 1)
    h, w = a.shape
    edge = np.minimum.outer(np.minimum(np.arange(h), np.arange(h)[::-1]), np.minimum(np.arange(w), np.arange(w)[::-1]))
    return a * np.clip(edge / 6, 0, 1)


def frames(samples, buttons, P):
    sizes = frame_sizes()
    core.scene.render.use_persistent_data = True
    for b in buttons or range(19):
        names = [os.path.join(OUT, "pohyby", f"{b:02d}-{k:02d}.png") for k in range(1, FRAMES + 1)]
        if all(os.path.exists(n) for n in names):
            continue
        box, fx, fy = region(b, sizes[b])
        H.pose(P, b, 0)
        rest = shifted(core.render_linear(WIDTH, HEIGHT, samples, box), fx, fy)
        for k, name in enumerate(names, 1):
            H.pose(P, b, k / FRAMES)
            px = shifted(core.render_linear(WIDTH, HEIGHT, samples, box), fx, fy)
            px[..., 3] = changed(px, rest)
            core.save(px, name, alpha=True)
        H.pose(P, b, 0)
        print("FRAMES", b, flush=True)


a = core.arguments()
t = time.time()
P = H.build()
for b in range(19):
    H.pose(P, b, 0)
print("SET", round(time.time() - t, 1), flush=True)
if a[0] == "nahled":
    core.render(a[1], int(a[2]), int(a[2]) * 3 // 4, int(a[3]))
elif a[0] == "pozadi":
    core.render(os.path.join(OUT, "pozadi.jpg"), WIDTH, HEIGHT, int(a[1]) if len(a) > 1 else 48, quality=90, key=H.text())
else:
    frames(int(a[1]) if len(a) > 1 else 32, [int(x) for x in a[2:]], P)
print("DONE", round(time.time() - t, 1))
