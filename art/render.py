#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Renders every picture that is missing or whose description changed; may be stopped at any time and started again.

    art/render.py                 everything
    art/render.py dishes          only the dishes (also: hlavni, siroke, pohyby, prvky, pozadi, film)
    art/render.py dishes 7 12     only these dishes
    art/render.py --again …       although they are up to date

A dish is up to date when the text it was rendered from, kept as a hash in rendered/dishes/stav.txt, is the text of its
description. A change of the library alone renders nothing anew; --again does.
"""
import hashlib
import os
import subprocess
import sys

ART = os.path.dirname(os.path.abspath(__file__))
STATE = os.path.join(ART, "rendered", "dishes", "stav.txt")
THREADS = os.environ.get("ART_THREADS", "2")
NICE = os.environ.get("ART_NICE", "19")


def blender(script, *args):
    cmd = ["nice", "-n", NICE, "blender", "-t", THREADS, "-b", "-P", os.path.join(ART, script), "--", *args]
    # Blender takes its modules from the Python that it finds first, which must be the system's, with numpy.
    env = dict(os.environ, PATH="/usr/local/sbin:/usr/sbin:/usr/bin:/sbin:/bin")
    done = subprocess.run(cmd, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace", env=env)
    lines = [ln for ln in done.stdout.splitlines() if ln.startswith(("DONE", "FAILED", "FRAMES", "Error", "Traceback")) or "Error:" in ln]
    print("\n".join(ln for ln in lines if "Not freed" not in ln), flush=True)


def digest(number):
    with open(os.path.join(ART, "dishes", f"{number:02d}.dish"), "rb") as f:
        return hashlib.sha1(f.read()).hexdigest()[:12]


def recorded():
    try:
        with open(STATE, encoding="utf-8") as f:
            return dict(ln.split() for ln in f if ln.strip())
    except FileNotFoundError:
        return {}


def record(number, value):
    state = recorded()
    state[f"{number:02d}"] = value
    os.makedirs(os.path.dirname(STATE), exist_ok=True)
    with open(STATE, "w", encoding="utf-8") as f:
        f.writelines(f"{k} {v}\n" for k, v in sorted(state.items()))


def dishes(again, numbers):
    have = sorted(int(n[:2]) for n in os.listdir(os.path.join(ART, "dishes")) if n.endswith(".dish"))
    for number in [int(n) for n in numbers] or have:
        picture = os.path.join(ART, "rendered", "dishes", f"{number:02d}.jpg")
        value = digest(number)
        if not again and os.path.exists(picture) and recorded().get(f"{number:02d}") == value:
            continue
        before = os.path.getmtime(picture) if os.path.exists(picture) else 0
        blender("dish.py", str(number))
        if os.path.exists(picture) and os.path.getmtime(picture) > before:
            record(number, value)


def hlavni(again, _):
    if again or not os.path.exists(os.path.join(ART, "rendered", "hlavni", "pozadi.jpg")):
        blender("hlavni.py", "pozadi")


def pohyby(again, buttons):
    folder = os.path.join(ART, "rendered", "hlavni", "pohyby")
    if again:
        for n in os.listdir(folder) if os.path.isdir(folder) else []:
            if not buttons or str(int(n[:2])) in buttons:
                os.remove(os.path.join(folder, n))
    blender("hlavni.py", "pohyby", "16", *buttons)


def prvky(again, names):
    blender("prvky.py", *(names or ["all"]))


def pozadi(again, names):
    blender("pozadi.py", *(names or ["all"]))


def siroke(again, names):
    """The sides that wide displays show; hlavni is the kitchen."""
    for n in names or WIDE:
        folder = os.path.join(ART, "rendered", "hlavni" if n == "hlavni" else "pozadi")
        if again or not os.path.exists(os.path.join(folder, "pozadi-siroke.jpg" if n == "hlavni" else n + "-siroke.jpg")):
            blender("hlavni.py", "siroke") if n == "hlavni" else blender("pozadi.py", n + "-siroke")


def film(again, names):
    blender("film.py", *(names or ["all"]))


WIDE = ("hlavni", "uvod", "konec", "stranka", "seznam", "recept", "Sit", "video")
KINDS = {"prvky": prvky, "pozadi": pozadi, "hlavni": hlavni, "siroke": siroke, "pohyby": pohyby, "dishes": dishes}


def main(args):
    again = "--again" in args
    args = [a for a in args if a != "--again"]
    for kind in args[:1] or KINDS:
        KINDS[kind](again, args[1:])


if __name__ == "__main__":
    main(sys.argv[1:])
