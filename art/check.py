#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails when a picture is missing or of a wrong size, when a moving thing does not move or does not come to rest, when two
dishes look nearly alike, when hot areas collide, a cursor's hot spot is off or the list of the films' things is wrong.

    art/check.py [--dishes]     with --dishes all fifty dishes must be there, else only those rendered are compared
"""
import itertools
import os
import subprocess
import sys

ART = os.path.dirname(os.path.abspath(__file__))
RENDERED = os.path.join(ART, "rendered")
ICONS = ("Tisk Help Zpet Konec Hudba ZvukOn ZvukOff Foto Vino Recept Uvod Odkazy Suroviny Pomucky Vlastni Hrat Stop Pauza NaZacatek NaKonec KapZpet KapDal Znovu Pomalu Lupa "
         "lzice zavazi Pribor2 Pribor4 Pribor6 Pribor8 Pribor10 Jablko SipkaNahoru SipkaDolu SipkaNahoruRychle SipkaDoluRychle Zaskrtnuto Nezaskrtnuto "
         "VolbaAno VolbaNe Skupina0 Skupina1 Skupina2 Skupina3 Ikona1 Ikona2 Ikona3 Ikona4 Varime Nakup Doma Kucharka Casovac "
         "Oddeleni0 Oddeleni1 Oddeleni2 Oddeleni3 Oddeleni4 Oddeleni5 Oddeleni6 Hostina").split()
CURSORS = ("ZPET", "SIPKANAHORU", "SIPKADOLU", "SIPKAVLEVO", "SIPKAVPRAVO")
SIZES = {f"prvky/{n}.png": (256, 256) for n in ICONS}
SIZES |= {f"prvky/{n}.png": (64, 64) for n in CURSORS}
SIZES |= {f"prvky/{n}.png": s for n, s in (("RamVen", (192, 192)), ("RamDovnitr", (192, 192)), ("Tlacitko", (360, 120)), ("TlacitkoStisk", (360, 120)),
                                           ("OkrajHorni", (64, 32)), ("OkrajLeft", (32, 64)), ("ZAHLAVI", (1600, 180)))}
SIZES["prvky/LogoTisk.png"] = (640, 400)   # the carp of the films, on the paper's white
SIZES |= {f"pozadi/{n}.jpg": (1600, 1200) for n in ("Sit", "recept", "seznam", "video", "konec", "uvod", "zprava", "stranka")}
SIZES |= {f"{n}-siroke.jpg": (3360, 1440) for n in ("hlavni/pozadi", "pozadi/uvod", "pozadi/stranka", "pozadi/recept", "pozadi/seznam", "pozadi/Sit", "pozadi/konec", "pozadi/video")}
SIZES |= {"pozadi/menu.jpg": (800, 600), "prvky/vino256.jpg": (1024, 768), "hlavni/pozadi.jpg": (1600, 1200)}
BUTTONS, FRAMES = 19, 10
HEAVIEST = 15e6   # bytes of all frames together
THUMB = (24, 18)
ALIKE = 0.055   # root mean square difference (of 1) under which two dishes would be taken for one another


def thumbnail(path):
    raw = subprocess.run(["convert", path, "-resize", "%dx%d!" % THUMB, "-depth", "8", "rgb:-"], stdout=subprocess.PIPE, check=True).stdout
    return list(raw)


def difference(a, b):
    return (sum((x - y) ** 2 for x, y in zip(a, b)) / len(a)) ** .5 / 255


def size(path):
    out = subprocess.run(["identify", "-format", "%w %h", path], stdout=subprocess.PIPE, check=True, text=True).stdout
    return tuple(int(x) for x in out.split())


def missing():
    for name, wanted in SIZES.items():
        path = os.path.join(RENDERED, name)
        if not os.path.exists(path):
            yield f"missing {name}"
        elif size(path) != wanted:
            yield f"{name} is {size(path)}, not {wanted}"


def layout(name):
    """The rows of a layout file, split into words."""
    with open(os.path.join(ART, "layout", name), encoding="utf-8") as f:
        return [ln.split() for ln in f if ln.strip() and ln[0] != "#"]


def opaque(paths):
    """Of each picture its size and how many of its pixels, 0 ... 1, cover what is below."""
    out = subprocess.run(["convert", *paths, "-alpha", "extract", "-format", "%w %h %[fx:mean]\\n", "info:"], stdout=subprocess.PIPE, check=True, text=True).stdout
    return [(int(w), int(h), float(a)) for w, h, a in (ln.split() for ln in out.splitlines())]


def frames():
    """The moving things: every frame there, of the layout's size, something moves, the loop ends with the room at rest."""
    heavy = 0
    for row in layout("hlavni.txt"):
        b = int(row[0])
        paths = [os.path.join(RENDERED, "hlavni", "pohyby", f"{b:02d}-{k:02d}.png") for k in range(1, FRAMES + 1)]
        gone = [os.path.basename(p) for p in paths if not os.path.exists(p)]
        if gone:
            yield f"missing hlavni/pohyby/{' '.join(gone)}"
            continue
        heavy += sum(os.path.getsize(p) for p in paths)
        found = opaque(paths)
        if any((w, h) != (int(float(row[5]) / 7.5), int(float(row[6]) / 7.5)) for w, h, _ in found):
            yield f"frames of button {b} are not of the layout's size"
        if found[-1][2] > 0 or sum(a < .001 for _, _, a in found) > 2:  # a thing may pass its place at rest once
            yield f"frames of button {b}: too few move, or the last is not the room at rest"
    if heavy > HEAVIEST:
        yield f"frames weigh {heavy / 1e6:.1f} MB"


def cursors():
    """Hot spots lie on their arrows."""
    for name, x, y in layout("kurzory.txt"):
        path = os.path.join(RENDERED, "prvky", name + ".png")
        if os.path.exists(path) and not opaque_at(path, int(x), int(y)):
            yield f"hot spot of {name} beside the arrow"


def opaque_at(path, x, y):
    """Whether there is anything within two pixels of a place given in hundredths."""
    w, h = size(path)
    cut = f"5x5+{max(0, w * x // 100 - 2)}+{max(0, h * y // 100 - 2)}"
    return float(subprocess.run(["convert", path, "-crop", cut, "-alpha", "extract", "-format", "%[fx:maxima]", "info:"], stdout=subprocess.PIPE, check=True, text=True).stdout) > .5


def dishes(complete):
    have = {n: os.path.join(RENDERED, "dishes", f"{n:02d}.jpg") for n in range(1, 51)}
    for n, path in list(have.items()):
        if not os.path.exists(path):
            del have[n]
            if complete:
                yield f"missing dish {n:02d}"
    thumbs = {n: thumbnail(p) for n, p in have.items()}
    for a, b in itertools.combinations(thumbs, 2):
        d = difference(thumbs[a], thumbs[b])
        if d < ALIKE:
            yield f"dishes {a} and {b} look alike ({d:.3f})"


def film():
    """Things of the films: what the list says of each is true, and none is left out of it."""
    folder = os.path.join(RENDERED, "film")
    with open(os.path.join(folder, "veci.txt"), encoding="utf-8") as f:
        rows = [ln.split() for ln in f if ln.strip() and ln[0] != "#"]
    files = {n for n in os.listdir(folder) if n.endswith(".webp")}
    for name, file, w, h, *numbers in rows:
        if file not in files or size(os.path.join(folder, file)) != (int(w), int(h)):
            yield f"film: {file} is missing or not {w} x {h}"
        elif len(numbers) != 4 or int(numbers[2]) > int(w):
            yield f"film: the line of {name} is wrong"
    yield from (f"film: {n} is not in veci.txt" for n in sorted(files - {row[1] for row in rows}))


def areas():
    rows = [[int(x) for x in row] for row in layout("hlavni.txt")]
    if [r[0] for r in rows] != list(range(BUTTONS)):
        yield "layout: buttons 0 to 18 expected"
    for r in rows:
        if r[3] < 600 or r[4] < 600 or r[1] < 0 or r[2] < 0 or r[1] + r[3] > 12000 or r[2] + r[4] > 9000:
            yield f"layout: hot area of button {r[0]} too small or outside"
    for a, b in itertools.combinations(rows, 2):
        w = min(a[1] + a[3], b[1] + b[3]) - max(a[1], b[1])
        h = min(a[2] + a[4], b[2] + b[4]) - max(a[2], b[2])
        if w > 90 and h > 90:
            yield f"layout: hot areas of {a[0]} and {b[0]} overlap"


def main(args):
    faults = [*missing(), *frames(), *cursors(), *areas(), *film(), *dishes("--dishes" in args)]
    print("\n".join(faults) or "all there")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
