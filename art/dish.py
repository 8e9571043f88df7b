# SPDX-License-Identifier: GPL-3.0-or-later
"""Renders one dish: blender -b -P art/dish.py -- NN [width height samples [file]]"""
import math
import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from lib import core, dishfile  # noqa: E402

SIZE = (2880, 2160)
SAMPLES = 4  # at 1440 x 1080 clean after the grain filter; glass wants more: the line "samples 20" of a description
SATURATION = 1.06  # the film look takes some colour away that food needs

a = core.arguments()
number = int(a[0])
target = a[4] if len(a) > 4 else os.path.join(core.RENDERED, "dishes", f"{number:02d}.jpg")
t = time.time()
source = os.path.join(core.ART, "dishes", f"{number:02d}.dish")
dishfile.build(source)
wanted = next((w[0] for c, w in dishfile.read(source) if c == "samples"), None)
# A picture twice as fine is as clean with half the samples.
finest = (*SIZE, max(2, math.ceil(int(wanted or SAMPLES) * 1440 / SIZE[0])))
width, height, samples = (int(x) for x in (a[1:4] or finest))
print("SET", round(time.time() - t, 1), "s")
px = core.render_linear(width, height, samples)
if wanted:
    px = core.calmed(px)
grey = px[:, :, :3] @ (0.2126, 0.7152, 0.0722)
px[:, :, :3] = (grey[:, :, None] + (px[:, :, :3] - grey[:, :, None]) * SATURATION).clip(0)
core.save(px, target, quality=88)
print("DONE", target, round(time.time() - t, 1), "s")
