# SPDX-License-Identifier: GPL-3.0-or-later
"""Wide grounds: the sides of a 21:9 picture whose 4:3 middle is there already.

The eye stays where it is and its film only grows to the left and right. The sides are rendered and laid beside the middle,
whose pixels are kept as they are, so that everything made to fit it still fits. Where the two meet, the side takes on
the middle's shade and gives it up again a little further out.
"""
import hashlib
import os
import subprocess
import tempfile

import numpy as np

from . import core

HEIGHT = 1440
WIDE, MIDDLE = HEIGHT * 21 // 9, HEIGHT * 4 // 3
SHARED = 48      # pixels of the middle that are rendered again to compare shades
FADE = 220       # pixels over which a side gives up the middle's shade
DUSK = .45       # how much darker a side is at its far edge


def widen():
    """The eye of a 4:3 picture sees 21:9, the same in the middle."""
    eye = core.scene.camera.data
    eye.sensor_fit = "HORIZONTAL"
    eye.sensor_width *= 7 / 4
    eye.ortho_scale *= 7 / 4


def wide_name(middle):
    return middle.replace(".jpg", "-siroke.jpg")


def render(middle, samples, key, height=HEIGHT, dusk=DUSK, strips=4):
    """Renders the sides of a picture file at a height and writes the wide picture beside it."""
    widen()
    core.scene.render.film_transparent = False
    scale = height / HEIGHT
    edge, whole, inner = int((WIDE - MIDDLE) / 2 * scale), int(WIDE * scale), int(SHARED * scale)
    boxes = ((0, edge + inner), (whole - edge - inner, whole))
    shown, kept = [], []
    for k, (x0, x1) in enumerate(boxes):
        linear = _side(whole, height, samples, f"{middle} {key} {k}", x0, x1, strips, kept)
        shown.append(sized(_shown(linear), int((WIDE - MIDDLE) / 2) + SHARED, HEIGHT))
    join(middle, shown, dusk)
    for name in kept:
        os.remove(name)


def whole(middle, samples, key, dusk=DUSK, height=1080, strips=4):
    """Renders a ground that is not there yet in its whole width; writes the wide picture and its middle, 1600 x 1200."""
    widen()
    core.scene.render.film_transparent = False
    w, kept = WIDE * height // HEIGHT, []
    p = sized(_shown(_side(w, height, samples, f"{middle} {key}", 0, w, strips, kept)), WIDE, HEIGHT)
    edge = (WIDE - MIDDLE) // 2
    far = np.clip(np.abs(np.arange(WIDE) - WIDE / 2 + .5) - MIDDLE / 2, 0, None) / edge
    p = p * (1 - dusk * far ** 1.7)[None, :, None]
    jpeg = ["-quality", "89", "-sampling-factor", "2x2"]
    _convert(p, jpeg, wide_name(middle))
    _convert(sized(p[:, edge:edge + MIDDLE], 1600, 1200), jpeg, middle)
    for name in kept:
        os.remove(name)


def _side(width, height, samples, key, x0, x1, strips, kept):
    """Linear pixels of columns x0 to x1, in strips that survive a stop; kept takes the names of their files."""
    tag = hashlib.sha1(f"{key} {width} {height} {samples} {strips}".encode()).hexdigest()[:16]
    folder = os.path.join(core.BUILD, "strips")
    os.makedirs(folder, exist_ok=True)
    core.scene.render.use_persistent_data = True
    parts = []
    for k in range(strips):
        name = os.path.join(folder, f"{tag}-{k}.npz")
        kept.append(name)
        if not os.path.exists(name):
            raw = core._raw(width, height, samples, (x0, height * k // strips, x1, height * (k + 1) // strips))
            np.savez(name + ".part.npz", *[p.astype(np.float16) for p in raw])
            os.rename(name + ".part.npz", name)
        with np.load(name) as z:
            parts.append([z[f"arr_{i}"].astype(np.float32) for i in range(3)])
    return core._clean(*[np.concatenate([p[i] for p in reversed(parts)]) for i in range(3)], 1.0, 7)


def _shown(linear):
    """Linear pixels as a screen shows them, 0 ... 1, bottom row first."""
    with tempfile.TemporaryDirectory() as folder:
        name = os.path.join(folder, "shown.png")
        core.save(linear, name)
        return core._load(name)[..., :3]


def _convert(pixels, args, target=None):
    """Pixels through ImageMagick: into a file, or back as pixels."""
    h, w, _ = pixels.shape
    raw = (np.clip(pixels[::-1], 0, 1) * 65535 + .5).astype("<u2").tobytes()
    cmd = ["convert", "-size", f"{w}x{h}", "-depth", "16", "-endian", "LSB", "rgb:-", *args]
    done = subprocess.run(cmd + [target or "rgb:-"], input=raw, stdout=subprocess.PIPE, check=True)
    return np.frombuffer(done.stdout, "<u2").astype(np.float32) / 65535 if target is None else None


def sized(pixels, width, height):
    if pixels.shape[:2] == (height, width):
        return pixels
    return _convert(pixels, ["-filter", "Lanczos", "-resize", f"{width}x{height}!"]).reshape(height, width, 3)[::-1]


def soft(a, n, axis=0):
    """Running mean over 2n + 1 along an axis."""
    pad = [(n, n) if i == axis else (0, 0) for i in range(a.ndim)]
    c = np.cumsum(np.pad(a, pad, "edge"), axis)
    c = np.concatenate([np.zeros_like(np.take(c, [0], axis)), c], axis)
    m = a.shape[axis]
    return (np.take(c, range(2 * n + 1, 2 * n + 1 + m), axis) - np.take(c, range(m), axis)) / (2 * n + 1)


def join(middle, sides, dusk=DUSK):
    """Writes NAME-siroke.jpg from the middle's file and its two rendered sides (each reaches into the middle)."""
    m = sized(core._load(middle)[..., :3], MIDDLE, HEIGHT)
    out = [m]
    for left, side in zip((True, False), sides):
        shared = side[:, -SHARED:] if left else side[:, :SHARED]
        mine = m[:, :SHARED] if left else m[:, -SHARED:]
        shade = soft(soft((mine - shared).mean(axis=1), 24), 24)
        own = side[:, :-SHARED] if left else side[:, SHARED:]
        n = own.shape[1]
        far = np.arange(n)[::-1] if left else np.arange(n)
        t = np.clip(1 - far / FADE, 0, 1)
        own = own + shade[:, None] * (t * t * (3 - 2 * t))[None, :, None]
        own = own * (1 - dusk * (far / n) ** 1.7)[None, :, None]
        out = [own] + out if left else out + [own]
    _convert(np.concatenate(out, axis=1), ["-quality", "89", "-sampling-factor", "2x2"], wide_name(middle))
