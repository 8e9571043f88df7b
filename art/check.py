#!/usr/bin/env python3
"""Fails when a picture is missing or of a wrong size, when two dishes look nearly alike, or when hot areas collide.

    art/check.py [--dishes]     with --dishes all fifty dishes must be there, else only those rendered are compared
"""
import itertools
import os
import subprocess
import sys

ART = os.path.dirname(os.path.abspath(__file__))
RENDERED = os.path.join(ART, "rendered")
ICONS = ("Tisk Help Zpet Konec Hudba ZvukOn ZvukOff Foto Vino Recept Uvod Odkazy Suroviny Pomucky Vlastni Hrat Stop Pauza NaZacatek NaKonec Lupa "
         "lzice zavazi Pribor2 Pribor4 Pribor6 Pribor8 Pribor10 Jablko SipkaNahoru SipkaDolu SipkaNahoruRychle SipkaDoluRychle Zaskrtnuto Nezaskrtnuto "
         "VolbaAno VolbaNe Skupina0 Skupina1 Skupina2 Skupina3 Ikona1 Ikona2 Ikona3 Ikona4").split()
SIZES = {f"prvky/{n}.png": (256, 256) for n in ICONS}
SIZES |= {f"prvky/{n}.png": (64, 64) for n in ("ZPET", "SIPKANAHORU", "SIPKADOLU", "SIPKAVLEVO", "SIPKAVPRAVO")}
SIZES |= {f"prvky/{n}.png": s for n, s in (("RamVen", (192, 192)), ("RamDovnitr", (192, 192)), ("Tlacitko", (360, 120)), ("TlacitkoStisk", (360, 120)),
                                           ("OkrajHorni", (64, 32)), ("OkrajLeft", (32, 64)), ("ZAHLAVI", (1600, 180)))}
SIZES |= {f"pozadi/{n}.jpg": (1600, 1200) for n in ("Sit", "recept", "seznam", "video", "konec", "uvod", "zprava")}
SIZES |= {"pozadi/menu.jpg": (800, 600), "prvky/vino256.jpg": (1024, 768), "hlavni/pozadi.jpg": (1600, 1200)}
FRAMES = [f"hlavni/pohyby/{b:02d}-{k:02d}.png" for b in range(19) for k in range(1, 11)]
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
    for name in FRAMES:
        if not os.path.exists(os.path.join(RENDERED, name)):
            yield f"missing {name}"


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


def areas():
    with open(os.path.join(ART, "layout", "hlavni.txt"), encoding="utf-8") as f:
        rows = [[int(x) for x in ln.split()] for ln in f if ln[0].isdigit()]
    if [r[0] for r in rows] != list(range(19)):
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
    faults = [*missing(), *areas(), *dishes("--dishes" in args)]
    print("\n".join(faults) or "all there")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
