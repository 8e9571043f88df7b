#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the shadows round rendered things soft: no grain, and nothing left of them at the picture's edge, where they
would show as a square on paper or lacquer. The thing itself stays as it is. Done once after rendering (prvky.py).

    art/stin.py FILE.png …
"""
import subprocess
import sys

import numpy as np

DARK, SOLID = 40, .93      # of a pixel that is nothing but shadow: its lightest colour, its greatest alpha
REACH, EDGE = 4, .14       # pixels of the blur; share of the side over which a shadow ends
FLOOR = .05                # less shadow than this is none


def _blurred(a, r):
    """Three box filters in both directions."""
    for _ in range(3):
        for axis in (0, 1):
            padded = np.pad(a, [(r + 1, r) if k == axis else (0, 0) for k in (0, 1)], "edge").cumsum(axis=axis)
            n = a.shape[axis]
            a = (padded.take(range(2 * r + 1, 2 * r + 1 + n), axis) - padded.take(range(n), axis)) / (2 * r + 1)
    return a


def softened(rgba):
    """rgba: height x width x 4 bytes, straight alpha."""
    alpha = rgba[..., 3] / 255.0
    shade = (rgba[..., :3].max(axis=2) < DARK) & (alpha < SOLID)
    weight = _blurred(shade.astype(float), REACH)
    smooth = _blurred(np.where(shade, alpha, 0), REACH) / np.maximum(weight, 1e-3)
    h, w = alpha.shape
    y, x = np.mgrid[0:h, 0:w]
    inside = np.minimum(np.minimum(x, w - 1 - x) / w, np.minimum(y, h - 1 - y) / h) / EDGE
    fade = np.clip(inside, 0, 1) ** 2 * (3 - 2 * np.clip(inside, 0, 1))
    soft = np.clip((smooth - FLOOR) / (1 - FLOOR), 0, 1) * fade
    out = rgba.copy()
    out[shade, 3] = (soft[shade] * 255 + .5).astype(np.uint8)
    out[shade, :3] = rgba[shade, :3] // 2
    return out


def soften(path):
    size = subprocess.check_output(["convert", path, "-format", "%w %h", "info:"], text=True).split()
    w, h = (int(s) for s in size)
    raw = subprocess.check_output(["convert", path, "-depth", "8", "RGBA:-"])
    out = softened(np.frombuffer(raw, np.uint8).reshape(h, w, 4))
    subprocess.run(["convert", "-size", f"{w}x{h}", "-depth", "8", "RGBA:-", "-strip", "PNG32:" + path], input=out.tobytes(), check=True)


if __name__ == "__main__":
    for name in sys.argv[1:]:
        soften(name)
