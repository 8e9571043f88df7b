"""Renders one dish: blender -b -P art/dish.py -- NN [width height samples [file]]"""
import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from lib import core, dishfile  # noqa: E402

a = core.arguments()
number = int(a[0])
width, height, samples = (int(x) for x in (a[1:4] or (1600, 1200, 24)))
target = a[4] if len(a) > 4 else os.path.join(core.RENDERED, "dishes", f"{number:02d}.jpg")
t = time.time()
dishfile.build(os.path.join(core.ART, "dishes", f"{number:02d}.dish"))
print("SET", round(time.time() - t, 1), "s")
with open(os.path.join(core.ART, "dishes", f"{number:02d}.dish"), encoding="utf-8") as f:
    core.render(target, width, height, samples, key=f.read())
print("DONE", target, round(time.time() - t, 1), "s")
