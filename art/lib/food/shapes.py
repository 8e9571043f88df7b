# SPDX-License-Identifier: GPL-3.0-or-later
"""The shapes that food is made of: blobs, slabs, sheets, lofts."""
import math
import random

import numpy as np

from ..core import fbm, grid_faces, mesh


def blob(sx, sy, wob=0.12, n=64, p=2.0, seed=None):
    """Outline of an irregular rounded piece, sx by sy; p > 2 makes it squarer."""
    seed = random.randrange(9999) if seed is None else seed
    a = np.arange(n) / n * 2 * np.pi
    r = 1 + wob * (fbm(np.stack([np.cos(a) * 1.3, np.sin(a) * 1.3, np.full(n, seed * .37)], -1), 3, seed) * 2 - 1)
    c, s = np.cos(a), np.sin(a)
    return np.stack([np.sign(c) * np.abs(c) ** (2 / p) * sx / 2 * r, np.sign(s) * np.abs(s) ** (2 / p) * sy / 2 * r], -1)


def slab(outline, h, m, p=3.0, rough=0.04, rs=1.6, rings=18, dome=0.0, fine=0.0, frs=8.0, seed=None, side=None, taper=0.06, uv=True):
    """A piece with the given outline and height h whose upper edge is rounded (p: 2 = dome, 6 = block).
    side: another material for its wall."""
    seed = random.randrange(9999) if seed is None else seed
    out = np.asarray(outline, float)
    n = len(out)
    c = out.mean(axis=0)
    q = np.sin(np.linspace(0, 1, rings) * np.pi / 2) ** (.8 if p < 4 else .6)
    rows, zs = [], []
    for f in q[:-1]:
        rows.append(c + (out - c) * f)
        zs.append(np.full(n, h * (1 - f ** p) ** (1 / p) + dome * (1 - f * f)))
    hz = h * (1 - q[-2] ** p) ** (1 / p)
    wall = 5
    for i in range(1, wall + 1):
        f = i / wall
        rows.append(c + (out - c) * (1.0 - taper * f * f))
        zs.append(np.full(n, max(0.0, hz * (1 - f))))
    R = np.stack(rows)
    Z = np.stack(zs)
    P = np.concatenate([R, Z[..., None]], -1)
    nn = fbm(P * rs / max(.3, 1) + seed * 1.7, 3, seed) * 2 - 1
    d = rough * nn
    if fine:
        d = d + fine * (fbm(P * frs + seed, 3, seed + 3) * 2 - 1)
    out3 = (P - np.r_[c, 0])
    rad = np.linalg.norm(out3, axis=-1, keepdims=True) + 1e-6
    P = P + out3 / rad * d[..., None] * .6 + np.stack([np.zeros_like(d), np.zeros_like(d), d * (P[..., 2] > .02)], -1)
    P[..., 2] = np.maximum(P[..., 2], 0)
    v = P.reshape(-1, 3)
    f = grid_faces(len(rows), n, True)
    f = [tuple(reversed(t)) for t in f]
    f = [tuple(reversed(t)) for t in f]
    ox = (v[:, :2] - out.min(axis=0)) / (out.max(axis=0) - out.min(axis=0) + 1e-6)
    o = mesh(v, f, m, uv=ox if uv else None)
    if side:
        o.data.materials.append(side)
        first = (rings - 2) * n
        o.data.polygons.foreach_set("material_index", [1 if i >= first else 0 for i in range(len(f))])
    return o


def sheet(outline, z, m, thick=0.06, wave=0.0, rings=14, edge=0.08):
    """A pool or a thin layer; its rim falls softly to the ground."""
    out = np.asarray(outline, float)
    c = out.mean(axis=0)
    n = len(out)
    q = np.r_[np.linspace(0, .9, rings - 5), .94, .97, .985, .995, 1.0]
    rows = []
    for f in q:
        r = c + (out - c) * f
        e = np.clip((1 - f) / edge, 0, 1)
        zz = thick * math.sqrt(max(0.0, 1 - (1 - e) ** 2)) + wave * (fbm(np.c_[r * .9, np.zeros(n)], 3, 5) - .5) * e
        rows.append(np.c_[r, z + zz])
    return mesh(np.concatenate(rows), grid_faces(len(q), n, True), m)


def loft(outer, inner, h, m, side=None, bulge=0.05, rough=0.03, seed=0, fine=0.0):
    """A slice between two curves of the same number of points (horseshoe steaks): flat top of m, wall of `side`."""
    O, I = np.asarray(outer, float), np.asarray(inner, float)
    prof = [(-.03, 0.0), (-.05, h * .35), (-.03, h * .75), (.02, h * .95), (.08, h * 1.0), (.25, h * (1 + bulge)), (.5, h * (1 + bulge * 1.4)), (.75, h * (1 + bulge)), (.92, h * 1.0), (.98, h * .94), (1.0, h * .7), (1.0, 0.0)]
    fs = [p[0] for p in prof]
    n = len(O)
    rows = []
    for f, z in prof:
        xy = O + (I - O) * f
        rows.append(np.c_[xy, np.full(n, z)])
    P = np.stack(rows, 1)
    d = rough * (fbm(P * 1.4 + seed, 4, seed) * 2 - 1) + fine * (fbm(P * 9, 3, seed + 2) * 2 - 1)
    P[..., 2] += d * (P[..., 2] > .05)
    P[..., :2] += (d * .5)[..., None]
    k = len(prof)
    v = P.reshape(-1, 3)
    f = [tuple(reversed(t)) for t in grid_faces(n, k)]
    uv = np.stack([np.repeat(np.linspace(0, 1, n), k), np.tile(np.clip(fs, 0, 1), n)], -1)
    o = mesh(v, f, m, uv=uv)
    if side:
        o.data.materials.append(side)
        mi = [1 if (i % (k - 1)) < 4 else 0 for i in range(len(f))]
        o.data.polygons.foreach_set("material_index", mi)
    return o
