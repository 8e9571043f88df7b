# SPDX-License-Identifier: GPL-3.0-or-later
"""Scene basics: start a scene, materials, meshes, noise, light, camera and the render itself.

Lengths in dishes: 1 unit is about 3.5 cm, a dinner plate has a radius of 4. Everything made here stands on z = 0 at the
origin until it is put somewhere.
"""
import ctypes
import hashlib
import math
import os
import random
import subprocess
import sys
import tempfile

import bpy
import numpy as np
from mathutils import Matrix, Vector

HERE = os.path.dirname(os.path.abspath(__file__))
ART = os.path.dirname(HERE)
RENDERED = os.path.join(ART, "rendered")
BUILD = os.path.join(ART, "build")

scene = None
_materials = {}


def start(seed=7):
    """A new empty scene. Everything random after it follows from seed."""
    global scene
    bpy.ops.wm.read_factory_settings(use_empty=True)
    scene = bpy.context.scene
    random.seed(seed)
    np.random.seed(seed)
    _materials.clear()
    _meshes.clear()
    r = scene.render
    r.engine = "CYCLES"
    c = scene.cycles
    c.device = "CPU"
    c.use_denoising = False
    c.max_bounces = 7
    c.diffuse_bounces = 3
    c.glossy_bounces = 3
    c.transmission_bounces = 6
    c.transparent_max_bounces = 16
    c.sample_clamp_indirect = 3
    c.sample_clamp_direct = 12
    c.blur_glossy = 0.6
    c.caustics_reflective = False
    c.caustics_refractive = False
    c.use_adaptive_sampling = True
    c.adaptive_threshold = 0.015
    scene.view_settings.view_transform = "Filmic"
    scene.view_settings.look = "Medium High Contrast"
    return scene


def rgb(h):
    """'c68a4e' -> linear colour triple."""
    out = []
    for i in (0, 2, 4):
        c = int(h[i:i + 2], 16) / 255
        out.append(c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4)
    return tuple(out)


# ---------------------------------------------------------------- materials

def _ramp(nt, fac, stops):
    r = nt.nodes.new("ShaderNodeValToRGB")
    e = r.color_ramp.elements
    while len(e) < len(stops):
        e.new(0.5)
    for el, (p, col) in zip(e, stops):
        el.position = p
        el.color = (*rgb(col), 1)
    nt.links.new(fac, r.inputs["Fac"])
    return r.outputs["Color"]


def _noise(nt, vec, scale, detail=6, distortion=0.0, rough=0.55):
    n = nt.nodes.new("ShaderNodeTexNoise")
    n.inputs["Scale"].default_value = scale
    n.inputs["Detail"].default_value = detail
    n.inputs["Distortion"].default_value = distortion
    n.inputs["Roughness"].default_value = rough
    nt.links.new(vec, n.inputs["Vector"])
    return n.outputs["Fac"]


def mat(name, col="ffffff", rough=0.5, spec=0.5, sss=0.0, coat=0.0, metal=0.0, trans=0.0, ior=1.45, alpha=1.0,
        noise=3.0, detail=6, stretch=(1, 1, 1), distort=0.0, bump=0.0, bumpscale=20.0, bumpstretch=None, emit=None,
        emit_strength=1.0, sssradius=(0.3, 0.15, 0.08), cells=0.0, image=None, height=None, heightscale=0.3,
        roughvar=0.0, coords="Object", translucent=0.0, sheen=0.0):
    """A material. col is one colour, or stops ((position, colour), …) laid over a noise of scale `noise`;
    image/height are pixel arrays made with picture() that lie on the UV map instead."""
    if name in _materials:
        return _materials[name]
    m = bpy.data.materials.new(name)
    m.use_nodes = True
    nt = m.node_tree
    b = nt.nodes["Principled BSDF"]
    first = col if isinstance(col, str) else col[len(col) // 2][1]
    b.inputs["Base Color"].default_value = (*rgb(first), 1)
    for key, value in (("Roughness", rough), ("Specular", spec), ("Subsurface", sss), ("Clearcoat", coat),
                       ("Metallic", metal), ("Transmission", trans), ("IOR", ior), ("Alpha", alpha), ("Sheen", sheen)):
        b.inputs[key].default_value = value
    b.inputs["Clearcoat Roughness"].default_value = 0.08
    b.inputs["Subsurface Radius"].default_value = sssradius
    if emit:
        b.inputs["Emission"].default_value = (*rgb(emit), 1)
        b.inputs["Emission Strength"].default_value = emit_strength
    tc = nt.nodes.new("ShaderNodeTexCoord")
    mp = nt.nodes.new("ShaderNodeMapping")
    mp.inputs["Scale"].default_value = stretch
    nt.links.new(tc.outputs[coords], mp.inputs["Vector"])
    color_out = None
    if image is not None:
        t = nt.nodes.new("ShaderNodeTexImage")
        t.image = image
        color_out = t.outputs["Color"]
    elif not isinstance(col, str):
        color_out = _ramp(nt, _noise(nt, mp.outputs[0], noise, detail, distort), col)
    if color_out is not None:
        nt.links.new(color_out, b.inputs["Base Color"])
        if sss:
            nt.links.new(color_out, b.inputs["Subsurface Color"])
    else:
        b.inputs["Subsurface Color"].default_value = (*rgb(first), 1)
    h = None
    if height is not None:
        t = nt.nodes.new("ShaderNodeTexImage")
        t.image = height
        h = t.outputs["Color"]
        bp = nt.nodes.new("ShaderNodeBump")
        bp.inputs["Strength"].default_value = heightscale
        bp.inputs["Distance"].default_value = 0.1
        nt.links.new(h, bp.inputs["Height"])
        nt.links.new(bp.outputs[0], b.inputs["Normal"])
    elif bump or cells:
        mb = nt.nodes.new("ShaderNodeMapping")
        mb.inputs["Scale"].default_value = bumpstretch or stretch
        nt.links.new(tc.outputs[coords], mb.inputs["Vector"])
        if cells:
            v = nt.nodes.new("ShaderNodeTexVoronoi")
            v.inputs["Scale"].default_value = cells
            nt.links.new(mb.outputs[0], v.inputs["Vector"])
            h = v.outputs["Distance"]
        else:
            h = _noise(nt, mb.outputs[0], bumpscale, 5, 0.0, 0.6)
        bp = nt.nodes.new("ShaderNodeBump")
        bp.inputs["Strength"].default_value = bump
        bp.inputs["Distance"].default_value = 0.12
        nt.links.new(h, bp.inputs["Height"])
        nt.links.new(bp.outputs[0], b.inputs["Normal"])
    if roughvar:
        mr = nt.nodes.new("ShaderNodeMapRange")
        mr.inputs["To Min"].default_value = max(0.02, rough - roughvar)
        mr.inputs["To Max"].default_value = min(1, rough + roughvar)
        mr.inputs["From Min"].default_value = 0.3
        mr.inputs["From Max"].default_value = 0.7
        nt.links.new(_noise(nt, mp.outputs[0], noise * 2.3, 4), mr.inputs["Value"])
        nt.links.new(mr.outputs[0], b.inputs["Roughness"])
    if translucent:
        out = nt.nodes["Material Output"]
        tr = nt.nodes.new("ShaderNodeBsdfTranslucent")
        tr.inputs["Color"].default_value = (*rgb(first), 1)
        if color_out is not None:
            nt.links.new(color_out, tr.inputs["Color"])
        mx = nt.nodes.new("ShaderNodeMixShader")
        mx.inputs[0].default_value = translucent
        nt.links.new(b.outputs[0], mx.inputs[1])
        nt.links.new(tr.outputs[0], mx.inputs[2])
        nt.links.new(mx.outputs[0], out.inputs["Surface"])
    _materials[name] = m
    return m


def thin_glass(name, col="eef8f6", ior=1.35, rough=0.02, glow=0.0):
    """Glass without refraction: lets light and shadows through and mirrors at the edges. Free of grain."""
    if name in _materials:
        return _materials[name]
    m = bpy.data.materials.new(name)
    m.use_nodes = True
    nt = m.node_tree
    nt.nodes.remove(nt.nodes["Principled BSDF"])
    tr = nt.nodes.new("ShaderNodeBsdfTransparent")
    tr.inputs[0].default_value = (*rgb(col), 1)
    gl = nt.nodes.new("ShaderNodeBsdfGlossy")
    gl.inputs[1].default_value = rough
    lw = nt.nodes.new("ShaderNodeLayerWeight")
    lw.inputs[0].default_value = 0.5
    pw = nt.nodes.new("ShaderNodeMath")
    pw.operation = "POWER"
    pw.inputs[1].default_value = 3.5 / ior
    nt.links.new(lw.outputs["Facing"], pw.inputs[0])
    mr = nt.nodes.new("ShaderNodeMapRange")
    mr.inputs["To Min"].default_value = 0.03
    mr.inputs["To Max"].default_value = 0.55
    nt.links.new(pw.outputs[0], mr.inputs["Value"])
    mx = nt.nodes.new("ShaderNodeMixShader")
    nt.links.new(mr.outputs[0], mx.inputs[0])
    nt.links.new(tr.outputs[0], mx.inputs[1])
    nt.links.new(gl.outputs[0], mx.inputs[2])
    out = mx.outputs[0]
    if glow:
        em = nt.nodes.new("ShaderNodeEmission")
        em.inputs[0].default_value = (*rgb(col), 1)
        em.inputs[1].default_value = glow
        ad = nt.nodes.new("ShaderNodeAddShader")
        nt.links.new(out, ad.inputs[0])
        nt.links.new(em.outputs[0], ad.inputs[1])
        out = ad.outputs[0]
    nt.links.new(out, nt.nodes["Material Output"].inputs[0])
    _materials[name] = m
    return m


def cached(key, make):
    """Arrays that take long to compute, kept on disk under a key that names everything they depend on."""
    tag = hashlib.sha1(key.encode()).hexdigest()[:16]
    path = os.path.join(BUILD, "cache", tag + ".npz")
    if os.path.exists(path):
        with np.load(path) as z:
            return [z[k].astype(np.float32) / 255 for k in sorted(z.files)]
    out = make()
    os.makedirs(os.path.dirname(path), exist_ok=True)
    np.savez_compressed(path, **{f"a{i}": np.clip(a * 255 + .5, 0, 255).astype(np.uint8) for i, a in enumerate(out)})
    return [np.clip(a, 0, 1) for a in out]


def picture(name, pixels, data=False):
    """Blender image from an array of height x width x 3 (sRGB 0..1 unless data) or height x width."""
    if pixels.ndim == 2:
        pixels = np.repeat(pixels[:, :, None], 3, axis=2)
    h, w, _ = pixels.shape
    im = bpy.data.images.new(name, w, h, float_buffer=data)
    if data:
        im.colorspace_settings.name = "Non-Color"
    px = np.ones((h, w, 4), np.float32)
    px[:, :, :3] = np.clip(pixels, 0, 1)
    im.pixels.foreach_set(px.ravel())
    im.update()
    return im


# ---------------------------------------------------------------- noise

_LATTICE = np.random.default_rng(1).random(64 ** 3, dtype=np.float32)


def noise3(p, seed=0):
    """Smooth value noise 0..1 at points p (n x 3)."""
    p = np.asarray(p, np.float32)
    i = np.floor(p)
    f = p - i
    f = f * f * (3 - 2 * f)
    i = i.astype(np.int32) + np.array([seed * 7, seed * 13, seed * 29], np.int32)
    ax, ay, az = ((i[..., 0] & 63) << 12, ((i[..., 0] + 1) & 63) << 12), ((i[..., 1] & 63) << 6, ((i[..., 1] + 1) & 63) << 6), (i[..., 2] & 63, (i[..., 2] + 1) & 63)
    fx, fy, fz = f[..., 0], f[..., 1], f[..., 2]

    def line(y, z):
        a, b = _LATTICE[ax[0] | ay[y] | az[z]], _LATTICE[ax[1] | ay[y] | az[z]]
        return a + (b - a) * fx

    def plane(z):
        a, b = line(0, z), line(1, z)
        return a + (b - a) * fy

    a, b = plane(0), plane(1)
    return a + (b - a) * fz


def fbm(p, octaves=4, seed=0, gain=0.5):
    p = np.asarray(p, float)
    out, amp, tot = 0, 1.0, 0.0
    for o in range(octaves):
        out = out + amp * noise3(p * (2.03 ** o), seed + o * 17)
        tot += amp
        amp *= gain
    return out / tot


# ---------------------------------------------------------------- meshes

_meshes = {}


def mesh(verts, faces, m, smooth=True, uv=None, sub=0, name="m"):
    """An object of these vertices and faces. uv: one pair per vertex."""
    me = bpy.data.meshes.new(name)
    me.from_pydata([tuple(map(float, v)) for v in verts], [], [tuple(int(i) for i in f) for f in faces])
    if uv is not None:
        layer = me.uv_layers.new()
        idx = np.empty(len(me.loops), np.int32)
        me.loops.foreach_get("vertex_index", idx)
        layer.data.foreach_set("uv", np.asarray(uv, np.float32)[idx].ravel())
    me.polygons.foreach_set("use_smooth", [smooth] * len(me.polygons))
    me.update()
    if m:
        me.materials.append(m)
    o = bpy.data.objects.new(name, me)
    scene.collection.objects.link(o)
    if sub:
        s = o.modifiers.new("s", "SUBSURF")
        s.render_levels = s.levels = sub
    return o


def grid_faces(nu, nv, wrap_v=False, offset=0):
    """Faces of a grid of nu x nv vertices (row-major); wrap_v closes the second direction."""
    f = []
    for i in range(nu - 1):
        for j in range(nv if wrap_v else nv - 1):
            k = (j + 1) % nv
            f.append((offset + i * nv + j, offset + i * nv + k, offset + (i + 1) * nv + k, offset + (i + 1) * nv + j))
    return f


def lathe(profile, m, n=96, arc=1.0):
    """Turned body: profile of (radius, z) from one end to the other."""
    v = []
    for r, z in profile:
        for i in range(n):
            a = 2 * math.pi * arc * i / n
            v.append((max(r, 1e-4) * math.cos(a), max(r, 1e-4) * math.sin(a), z))
    return mesh(v, grid_faces(len(profile), n, True), m)


def smooth_profile(points, n=8):
    """Rounds a turned profile: Catmull-Rom through the points, n steps each."""
    p = [np.array(q, float) for q in points]
    p = [2 * p[0] - p[1]] + p + [2 * p[-1] - p[-2]]
    out = []
    for i in range(1, len(p) - 2):
        for k in range(n):
            t = k / n
            out.append(0.5 * (2 * p[i] + (p[i + 1] - p[i - 1]) * t + (2 * p[i - 1] - 5 * p[i] + 4 * p[i + 1] - p[i + 2]) * t ** 2
                              + (3 * p[i] - p[i - 1] - 3 * p[i + 1] + p[i + 2]) * t ** 3))
    out.append(p[-2])
    return [tuple(q) for q in out]


def box(sx, sy, sz, m, bevel=0.03, segments=2, at=(0, 0, 0)):
    """Box with rounded edges, standing on z = 0."""
    x, y = sx / 2, sy / 2
    v = [(-x, -y, 0), (x, -y, 0), (x, y, 0), (-x, y, 0), (-x, -y, sz), (x, -y, sz), (x, y, sz), (-x, y, sz)]
    o = mesh(v, [(3, 2, 1, 0), (4, 5, 6, 7), (0, 1, 5, 4), (1, 2, 6, 5), (2, 3, 7, 6), (3, 0, 4, 7)], m, False)
    if bevel:
        b = o.modifiers.new("b", "BEVEL")
        b.width = bevel
        b.segments = segments
        o.data.use_auto_smooth = True
    o.location = at
    return o


def sphere(r, m, at=(0, 0, 0), scale=(1, 1, 1), n=32, rough=0.0, roughscale=2.0, seed=0):
    """Sphere, or a lump when rough is not 0."""
    v, nu, nv = [], n // 2 + 1, n
    for i in range(nu):
        p = math.pi * i / (nu - 1)
        for j in range(nv):
            a = 2 * math.pi * j / nv
            v.append((math.sin(p) * math.cos(a), math.sin(p) * math.sin(a), math.cos(p)))
    v = np.array(v)
    if rough:
        d = 1 + rough * (fbm(v * roughscale + seed * 7.3, 4, seed) * 2 - 1)
        v = v * d[:, None]
    v = v * np.array(scale) * r
    o = mesh(v, grid_faces(nu, nv, True), m)
    o.location = at
    return o


def tube(points, radius, m, n=10, caps=True):
    """Round bar through the points; radius is one number or one per point."""
    P = [Vector(p) for p in points]
    R = radius if hasattr(radius, "__len__") else [radius] * len(P)
    v = []
    up = Vector((0, 0, 1))
    for i, p in enumerate(P):
        t = (P[min(i + 1, len(P) - 1)] - P[max(i - 1, 0)]).normalized()
        if abs(t.dot(up)) > 0.95:
            up = Vector((1, 0, 0)) if abs(t.x) < 0.9 else Vector((0, 1, 0))
        a = t.cross(up).normalized()
        b = t.cross(a).normalized()
        up = -b if b.dot(up) < 0 else b
        for k in range(n):
            w = 2 * math.pi * k / n
            v.append(p + (a * math.cos(w) + up * math.sin(w)) * R[i])
    f = grid_faces(len(P), n, True)
    if caps:
        f.append(tuple(range(n)))
        f.append(tuple(reversed(range((len(P) - 1) * n, len(P) * n))))
    return mesh(v, f, m)


def curve_points(points, n=10):
    """Catmull-Rom through 2D or 3D points."""
    return [tuple(q) for q in smooth_profile(points, n)]


def scatter(verts, faces, transforms, m, smooth=True):
    """One object of many copies of a small mesh, each moved by a 4x4 matrix."""
    V = np.c_[np.asarray(verts, float), np.ones(len(verts))]
    allv, allf = [], []
    for k, t in enumerate(transforms):
        allv.append((V @ np.array(t).T)[:, :3])
        off = k * len(verts)
        allf.extend(tuple(i + off for i in f) for f in faces)
    if not allv:
        return None
    return mesh(np.concatenate(allv), allf, m, smooth)


def outline_solid(points, depth, m, bevel=0.05, segments=3, holes=()):
    """Flat shape cut from a sheet (points in x/y), with rounded edges, standing on z = 0."""
    cu = bpy.data.curves.new("c", "CURVE")
    cu.dimensions = "2D"
    cu.fill_mode = "BOTH"
    for ring in [points, *holes]:
        s = cu.splines.new("POLY")
        s.points.add(len(ring) - 1)
        for q, p in zip(s.points, ring):
            q.co = (p[0], p[1], 0, 1)
        s.use_cyclic_u = True
    cu.extrude = max(0.001, depth / 2 - bevel)
    cu.bevel_depth = bevel
    cu.bevel_resolution = segments
    o = bpy.data.objects.new("s", cu)
    o.data.materials.append(m)
    scene.collection.objects.link(o)
    return to_mesh(o, dz=depth / 2)


def to_mesh(o, dz=0.0):
    """Curve or text object turned into an ordinary mesh."""
    bpy.context.view_layer.update()
    dg = bpy.context.evaluated_depsgraph_get()
    me = bpy.data.meshes.new_from_object(o.evaluated_get(dg))
    for v in me.vertices:
        v.co.z += dz
    me.use_auto_smooth = True
    new = bpy.data.objects.new("t", me)
    new.matrix_world = o.matrix_world
    scene.collection.objects.link(new)
    bpy.data.objects.remove(o)
    return new


def text(s, size, m, depth=0.1, bevel=0.02, font="DejaVuSerif-Bold", align="CENTER"):
    """Solid letters lying on z = 0, in the middle of the origin."""
    cu = bpy.data.curves.new("t", "FONT")
    cu.body = s
    path = f"/usr/share/fonts/truetype/dejavu/{font}.ttf"
    if os.path.exists(path):
        cu.font = bpy.data.fonts.load(path, check_existing=True)
    cu.size = size
    cu.align_x = align
    cu.align_y = "CENTER"
    cu.extrude = depth / 2
    cu.bevel_depth = bevel
    o = bpy.data.objects.new("t", cu)
    o.data.materials.append(m)
    scene.collection.objects.link(o)
    return to_mesh(o, dz=depth / 2)


def group(objects, name="g"):
    """Objects bound together; move the returned one."""
    e = bpy.data.objects.new(name, None)
    scene.collection.objects.link(e)
    for o in objects:
        if o is not None and o.parent is None:
            o.parent = e
    return e


def put(o, x=0, y=0, z=0, turn=0, tilt=0, roll=0, scale=1):
    """Moves a thing: turn round z, tilt round x, roll round y, in degrees."""
    o.location = (x, y, z)
    o.rotation_euler = (math.radians(tilt), math.radians(roll), math.radians(turn))
    o.scale = (scale,) * 3 if not hasattr(scale, "__len__") else scale
    return o


def tree(o):
    """The object and all bound to it."""
    out = [o]
    for c in o.children:
        out += tree(c)
    return out


def linked(o):
    """A second copy of a thing that shares its meshes."""
    n = o.copy()
    scene.collection.objects.link(n)
    for c in o.children:
        k = linked(c)
        k.parent = n
        k.matrix_parent_inverse = c.matrix_parent_inverse.copy()
    return n


# ---------------------------------------------------------------- resting on what is below

def drop(x, y, top=60.0, ignore=()):
    """Height and normal of the highest surface at (x, y); the table when nothing is there."""
    bpy.context.view_layer.update()
    return _cast(x, y, top)


def _cast(x, y, top=60.0):
    dg = bpy.context.view_layer.depsgraph
    hit, loc, nor, *_ = scene.ray_cast(dg, Vector((x, y, top)), Vector((0, 0, -1)))
    if hit and nor.z < 0:
        nor = -nor
    return (loc.z, nor.copy()) if hit else (0.0, Vector((0, 0, 1)))


def rest(o, x, y, radius=0.2, turn=0.0, sink=0.02, tilt_limit=35.0, scale=1, lift=0.0):
    """Lays a thing (its bottom at z = 0) on whatever is at (x, y): plane through the heights found within radius."""
    hidden = [(c, c.hide_viewport) for c in tree(o)]
    for c, _ in hidden:
        c.hide_viewport = True
    bpy.context.view_layer.update()
    pts = []
    for k in range(13):
        a = k * 2.399
        r = radius * math.sqrt(k / 12)
        px, py = x + r * math.cos(a), y + r * math.sin(a)
        pts.append((px - x, py - y, _cast(px, py)[0]))
    for c, h in hidden:
        c.hide_viewport = h
    A = np.array([(1, p[0], p[1]) for p in pts])
    zs = np.array([p[2] for p in pts])
    c, gx, gy = np.linalg.lstsq(A, zs, rcond=None)[0]
    n = Vector((-gx, -gy, 1)).normalized()
    ang = n.angle(Vector((0, 0, 1)))
    lim = math.radians(tilt_limit)
    if ang > lim:
        n = Vector((0, 0, 1)).slerp(n, lim / ang)
    high = max(p[2] - (c + gx * p[0] + gy * p[1]) for p in pts)
    z = c + 0.35 * max(0.0, high)
    q = Vector((0, 0, 1)).rotation_difference(n)
    s = (scale,) * 3 if not hasattr(scale, "__len__") else scale
    o.matrix_world = (Matrix.Translation((x, y, z - sink + lift)) @ q.to_matrix().to_4x4()
                      @ Matrix.Rotation(math.radians(turn), 4, "Z") @ Matrix.Diagonal((*s, 1)))
    return o


# ---------------------------------------------------------------- light, camera

def area(at, target, size, energy, col="ffffff", size_y=None):
    l = bpy.data.lights.new("a", "AREA")
    l.size = size
    if size_y:
        l.shape = "RECTANGLE"
        l.size_y = size_y
    l.energy = energy
    l.color = rgb(col)
    o = bpy.data.objects.new("a", l)
    o.location = at
    o.rotation_euler = (Vector(target) - Vector(at)).to_track_quat("-Z", "Y").to_euler()
    scene.collection.objects.link(o)
    return o


def world(col="14383f", strength=0.6):
    w = bpy.data.worlds.new("w")
    scene.world = w
    w.use_nodes = True
    w.node_tree.nodes["Background"].inputs[0].default_value = (*rgb(col), 1)
    w.node_tree.nodes["Background"].inputs[1].default_value = strength


def evening(strength=1.0):
    """The light of every dish: warm lamp from the left, teal dusk all round, a cool rim from the window behind, and a
    broad soft one high behind the table, which moist and glazed things mirror."""
    world("3d6a72", 0.42 * strength)
    area((-7.5, 4.5, 8.5), (0, 0, 0.5), 3.4, 1900 * strength, "ffe2bd")
    area((6.5, 8.5, 5.0), (0, 0, 0.5), 4.5, 700 * strength, "a9dbe6")
    area((2.0, -9.0, 8.0), (0, 0, 0), 6.0, 300 * strength, "ffecd6")
    area((-1.5, 12.0, 11.5), (0, 0, 0.5), 7.0, 420 * strength, "fff0dc", 2.6)


def camera(at, target, lens=62, fstop=None, focus=None, sensor=36, ortho=None):
    c = bpy.data.cameras.new("c")
    c.lens = lens
    c.sensor_width = sensor
    if ortho:
        c.type = "ORTHO"
        c.ortho_scale = ortho
    o = bpy.data.objects.new("c", c)
    o.location = at
    o.rotation_euler = (Vector(target) - Vector(at)).to_track_quat("-Z", "Y").to_euler()
    if fstop:
        c.dof.use_dof = True
        c.dof.aperture_fstop = fstop
        c.dof.focus_distance = (Vector(focus or target) - Vector(at)).length
    scene.collection.objects.link(o)
    scene.camera = o
    return o


# ---------------------------------------------------------------- rendering

def _filter():
    """The compiled grain filter; compiled again when its source changed."""
    src = os.path.join(HERE, "denoise.cpp")
    tag = hashlib.sha1(open(src, "rb").read()).hexdigest()[:10]
    os.makedirs(BUILD, exist_ok=True)
    so = os.path.join(BUILD, f"denoise-{tag}.so")
    if not os.path.exists(so):  # another renderer may be compiling it at the same moment
        made = f"{so}.{os.getpid()}"
        subprocess.check_call(["g++", "-O3", "-march=native", "-ffast-math", "-fopenmp", "-shared", "-fPIC", "-std=c++20", src, "-o", made])
        os.replace(made, so)
    return ctypes.CDLL(so)


def _load(path):
    im = bpy.data.images.load(path)
    w, h = im.size
    px = np.empty(w * h * 4, np.float32)
    im.pixels.foreach_get(px)
    bpy.data.images.remove(im)
    return px.reshape(h, w, 4)


_nodes = {}


def _outputs(folder):
    """Compositor that writes picture, surface colour and normal as separate files."""
    scene.view_layers[0].cycles.denoising_store_passes = True
    scene.use_nodes = True
    nt = scene.node_tree
    nt.nodes.clear()
    rl = nt.nodes.new("CompositorNodeRLayers")
    out = nt.nodes.new("CompositorNodeOutputFile")
    out.base_path = folder
    out.format.file_format = "OPEN_EXR"
    out.format.color_depth = "32"
    out.format.color_mode = "RGBA"
    out.file_slots.clear()
    for slot, sock in (("image", "Image"), ("albedo", "Denoising Albedo"), ("normal", "Denoising Normal")):
        out.file_slots.new(slot + "_")
        nt.links.new(rl.outputs[sock], out.inputs[slot + "_"])


def _raw(width, height, samples, region):
    """Grainy colour with alpha, surface colour and normal of a region (all of the picture when None)."""
    r = scene.render
    r.resolution_x, r.resolution_y, r.resolution_percentage = width, height, 100
    scene.cycles.samples = samples
    scene.cycles.adaptive_min_samples = max(8, samples // 3)
    r.use_border = r.use_crop_to_border = region is not None
    if region:
        x0, y0, x1, y1 = region
        # A hundredth of a pixel more: rounding down must not add a row or a column.
        r.border_min_x, r.border_max_x = (x0 + .01) / width, (x1 + .01) / width
        r.border_min_y, r.border_max_y = (height - y1 + .01) / height, (height - y0 + .01) / height
    with tempfile.TemporaryDirectory() as folder:
        _outputs(folder + "/")
        r.filepath = os.path.join(folder, "full.exr")
        r.image_settings.file_format = "OPEN_EXR"
        bpy.ops.render.render(write_still=False)
        n = f"{scene.frame_current:04d}.exr"
        return [_load(os.path.join(folder, s + "_" + n)) for s in ("image", "albedo", "normal")]


def _clean(im, al, no, strength, radius):
    """The grain filter over the three pictures; straight (not multiplied) colour and alpha."""
    alpha = im[:, :, 3].astype(np.float32)
    c = np.ascontiguousarray(im[:, :, :3], np.float32)
    if scene.render.film_transparent:
        c /= np.maximum(alpha, 1e-4)[:, :, None]
    a3 = np.ascontiguousarray(np.clip(al[:, :, :3], 0, 1), np.float32)
    n3 = np.ascontiguousarray(no[:, :, :3], np.float32)
    a3[(a3.sum(axis=2) < 0.02)] = 1
    if strength > 0:
        c = _filtered(c, a3, n3, strength, radius, 2 if c.shape[1] >= COARSE else 0)
    return np.dstack([c, alpha])


COARSE = 1400   # from this width on the filter's reach is too short for the blotches that remain


def _halved(p):
    return np.ascontiguousarray((p[0::2, 0::2] + p[1::2, 0::2] + p[0::2, 1::2] + p[1::2, 1::2]) / 4)


def _doubled(p):
    """Twice the size, going over from pixel to pixel."""
    for axis in (0, 1):
        before = np.concatenate([p.take([0], axis), p.take(range(p.shape[axis] - 1), axis)], axis)
        after = np.concatenate([p.take(range(1, p.shape[axis]), axis), p.take([-1], axis)], axis)
        both = np.stack([p * .75 + before * .25, p * .75 + after * .25], axis + 1)
        p = both.reshape([n * 2 if k == axis else n for k, n in enumerate(p.shape)])
    return p


def _filtered(c, al, no, strength, radius, coarser):
    """The grain filter; then the light's coarse part from the picture in half the size, filtered in the same way."""
    fine, fp = c.copy(), ctypes.POINTER(ctypes.c_float)
    _filter().denoise(fine.ctypes.data_as(fp), al.ctypes.data_as(fp), no.ctypes.data_as(fp), c.shape[1], c.shape[0],
                      ctypes.c_float(strength), radius)
    if not coarser or c.shape[0] % 2 or c.shape[1] % 2:
        return fine
    small = _halved(al)
    coarse = _filtered(_halved(c), small, _halved(no), strength, radius, coarser - 1)
    return fine + _doubled((coarse - _halved(fine)) / (small + .03)) * (al + .03)


def render_linear(width, height, samples, region=None, strength=1.0, radius=7):
    """Linear RGBA pixels (bottom row first) without grain. region: (x0, y0, x1, y1) pixels from the top left."""
    return _clean(*_raw(width, height, samples, region), strength, radius)


def _around(p, reach):
    """Mean of every pixel's square neighbourhood; reach pixels to each side."""
    for axis in (0, 1):
        total = np.cumsum(np.pad(p, [(reach + 1, reach) if k == axis else (0, 0) for k in range(p.ndim)], "edge"), axis, dtype=np.float64)
        n = p.shape[axis]
        p = (total.take(range(2 * reach + 1, 2 * reach + 1 + n), axis) - total.take(range(n), axis)).astype(np.float32) / (2 * reach + 1)
    return p


def calmed(px):
    """Evens out the mirrored lamps on glass and jelly, where few samples leave bright and dark pixels side by side."""
    reach = max(2, px.shape[1] // 720)
    light = px[:, :, :3] @ np.array((.2126, .7152, .0722), np.float32)
    mean = _around(light, reach)
    rough = np.abs(light - _around(light, 1)) > .06 * mean   # an edge fills a fifth of its neighbourhood, grain the half
    grainy = _around(np.clip((_around(rough * (mean > .25).astype(np.float32), reach) - .36) / .12, 0, 1), reach)[:, :, None]
    px = px.copy()
    px[:, :, :3] += (_around(px[:, :, :3], reach) - px[:, :, :3]) * grainy
    return px


def render_strips(width, height, samples, key, strength=1.0, radius=7, strips=6):
    """As render_linear, in strips that are kept under key until all are there, so that a stopped render goes on later."""
    tag = hashlib.sha1(f"{key} {width} {height} {samples} {strips}".encode()).hexdigest()[:16]
    folder = os.path.join(BUILD, "strips")
    os.makedirs(folder, exist_ok=True)
    scene.render.use_persistent_data = True
    names = [os.path.join(folder, f"{tag}-{k}.npz") for k in range(strips)]
    for k, name in enumerate(names):
        if not os.path.exists(name):
            parts = _raw(width, height, samples, (0, height * k // strips, width, height * (k + 1) // strips))
            np.savez(name + ".part.npz", *[p.astype(np.float16) for p in parts])
            os.rename(name + ".part.npz", name)
    loaded = [np.load(n) for n in names]
    whole = [np.concatenate([z[f"arr_{i}"] for z in reversed(loaded)]).astype(np.float32) for i in range(3)]
    px = _clean(*whole, strength, radius)
    for n in names:
        os.remove(n)
    return px


def save(pixels, path, quality=88, alpha=False):
    """Writes linear pixels through the scene's film look as JPEG or PNG, by the file's ending."""
    h, w, _ = pixels.shape
    im = bpy.data.images.new("out", w, h, float_buffer=True, alpha=True)
    px = pixels.astype(np.float32).copy()
    if alpha:
        px[:, :, :3] *= px[:, :, 3:]
    else:
        px[:, :, 3] = 1
    im.pixels.foreach_set(px.ravel())
    im.update()
    s = scene.render.image_settings
    if path.endswith(".jpg"):
        s.file_format, s.color_mode, s.quality = "JPEG", "RGB", quality
    else:
        s.file_format, s.color_mode, s.color_depth, s.compression = "PNG", "RGBA" if alpha else "RGB", "8", 90
    os.makedirs(os.path.dirname(path), exist_ok=True)
    im.save_render(path, scene=scene)
    bpy.data.images.remove(im)


def render(path, width, height, samples, alpha=False, quality=88, strength=1.0, key=None):
    """Renders the scene into a file; with a key (a text that names the scene) in strips that survive a stop."""
    scene.render.film_transparent = alpha
    px = render_strips(width, height, samples, path + key, strength) if key else render_linear(width, height, samples, strength=strength)
    save(px, path, quality, alpha)


def arguments():
    """What stands after -- on the command line."""
    return sys.argv[sys.argv.index("--") + 1:] if "--" in sys.argv else []
