"""The fixed-size float32 members: 2-, 3- and 4-vectors, 4x4 transform builders and operations,
and points through a 4x4 matrix, over numpy arrays.

Each family is a function here (``geometry.normalize``, ``geometry.look_at_lh``,
``geometry.affine_transform``, ...); those whose name no general family has are also in ``tarn``
itself. A vector is the last axis (2, 3 or 4 elements, which choose the member), a 4x4 matrix
the last two; leading axes make a batch, and arguments broadcast against each other as in numpy
(one matrix for many points, an array of angles for an array of rotations). Scalars are numbers
or arrays of the batch's shape. Arrays may have any strides: the member runs once per object,
and an object whose elements are not consecutive is copied into a local one for its call.
Where the library has an array form (``affine_transform`` and its kin, ``project``,
``unproject``) and one matrix serves a batch of points, that form runs once for the batch, with
the batch's own byte stride (the points are copied first if their elements are not
consecutive).

Results are allocated unless ``out=`` gives them (a tuple where a member writes several), a
result vector or matrix first; a single float (a length, a determinant) comes back as a scalar
or an array of the batch's shape. Sources must be float32 arrays (a list is taken as float32);
other dtypes raise TypeError, shapes that fit no member or do not broadcast raise ValueError,
before any call. The interpreter lock is released during the calls.
"""

import numpy as _np

# len, min and max are family names here: the built-ins they hide, under names of their own.
from builtins import len as _len  # noqa: E402

import tarn as _tarn
from . import _native
from ._members import FIXED as _FIXED, NAMES as _NAMES

_F32, _I32 = _np.dtype(_np.float32), _np.dtype(_np.int32)


class _Misfit(Exception):
    pass


class _Fixed:
    def __init__(self, entry):
        self.index, self.name, self.family, self.pattern, params = entry
        self.params = [dict(name=p[0], kind=p[1], of=p[2], dims=tuple(p[3])) for p in params]
        self.array = any(p["kind"] == "s" for p in self.params)
        self.inputs = [p for p in self.params if p["kind"] in "if"]
        outs = [p for p in self.params if p["kind"] in "or"]
        self.outputs = sorted(outs, key=lambda p: p["name"] != "dst")  # the result itself first
        self.strided = {p["of"] for p in self.params if p["kind"] == "s"}

    def bind(self, args, out):
        if _len(args) != _len(self.inputs):
            raise _Misfit("%s takes %d arguments" % (self.name, _len(self.inputs)))
        vals, batches = {}, []
        for p, a in zip(self.inputs, args):
            if p["kind"] == "f":
                if isinstance(a, _np.ndarray):
                    if a.dtype.kind not in "fiu":
                        raise TypeError("%s: %s must be a number or an array of numbers" % (self.name, p["name"]))
                    a = a.astype(_F32, copy=False)
                elif _np.isscalar(a) and not isinstance(a, (str, bytes)):
                    a = _np.asarray(a, _F32)
                else:
                    raise TypeError("%s: %s must be a number" % (self.name, p["name"]))
                batches.append(a.shape)
            else:
                if not isinstance(a, _np.ndarray):
                    a = _np.asarray(a, _F32)
                if a.dtype != _F32:
                    raise TypeError("%s: %s must be float32, not %s" % (self.name, p["name"], a.dtype))
                nd = _len(p["dims"])
                if a.ndim < nd or a.shape[a.ndim - nd:] != p["dims"]:
                    raise _Misfit("%s: %s must end in %s, not %s" % (self.name, p["name"], p["dims"], a.shape))
                batches.append(a.shape[: a.ndim - nd])
            vals[p["name"]] = a
        try:
            batch = _np.broadcast_shapes(*batches)
        except ValueError:
            raise ValueError("%s: batch shapes %s do not broadcast" % (self.name, batches)) from None
        if 0 in batch:
            raise ValueError("%s: an empty batch" % self.name)
        if self.array:  # one call for a batch of points under one matrix and one set of values
            if batch == ():
                raise _Misfit("%s: no batch" % self.name)
            for p, b in zip(self.inputs, batches):
                if (p["name"] in self.strided) != (b != ()):
                    raise _Misfit("%s: only %s may have a batch" % (self.name, ", ".join(sorted(self.strided))))
        outs = {}
        given = () if out is None else out if isinstance(out, tuple) else (out,)
        if out is not None and _len(given) != _len(self.outputs):
            raise ValueError("%s writes %d results" % (self.name, _len(self.outputs)))
        for p, o in zip(self.outputs, given):
            dt = _I32 if p["kind"] == "r" else _F32
            if not isinstance(o, _np.ndarray) or o.dtype != dt:
                raise TypeError("%s: out for %s must be a %s array" % (self.name, p["name"], dt))
            if o.shape != batch + p["dims"] or not o.flags.writeable:
                raise ValueError("%s: out for %s must be a writeable array of shape %s" % (self.name, p["name"],
                                                                                          batch + p["dims"]))
            if any(s == 0 for s, n in zip(o.strides, o.shape) if n > 1):
                raise ValueError("%s: out for %s has a zero stride" % (self.name, p["name"]))
            outs[p["name"]] = o
        return vals, outs, batch

    def run(self, vals, outs, batch):
        made = {}
        for p in self.outputs:
            if p["name"] not in outs:
                made[p["name"]] = outs[p["name"]] = _np.empty(batch + p["dims"], _I32 if p["kind"] == "r" else _F32)
        if self.array:
            status, back = self._run_array(vals, outs, batch)
        else:
            status, back = self._run_each(vals, outs, batch), ()
        if status != 0:
            _tarn._raise_status(status, self.name)
        for o, tmp in back:
            o[...] = tmp
        res = [outs[p["name"]] for p in self.outputs]
        res = [r[()] if r.ndim == 0 and p["name"] in made else r for r, p in zip(res, self.outputs)]
        return res[0] if _len(res) == 1 else tuple(res)

    def _run_each(self, vals, outs, batch):
        call = []
        for p in self.params:
            if p["kind"] == "f":
                a = _np.broadcast_to(vals[p["name"]], batch)
                call.append((a.ctypes.data, a.strides))
            else:
                a = vals[p["name"]] if p["kind"] == "i" else outs[p["name"]]
                nd = _len(p["dims"])
                if p["kind"] == "i":
                    a = _np.broadcast_to(a, batch + p["dims"])
                st = a.strides
                call.append((a.ctypes.data, st[: a.ndim - nd], st[a.ndim - nd:], p["dims"], p["kind"] != "i"))
        return _native.fixed(self.index, batch, tuple(call))

    def _run_array(self, vals, outs, batch):
        count = 1
        for n in batch:
            count *= n
        back, call, flat = [], [], {}
        for name in self.strided:
            p = next(q for q in self.params if q["name"] == name)
            writes = p["kind"] != "i"
            a = outs[name] if writes else vals[name]
            s = _point_stride(a, _len(p["dims"]))
            if s is None:  # elements not consecutive, or a batch no one stride describes
                tmp = _np.empty(batch + p["dims"], _F32)
                if writes:
                    back.append((a, tmp))
                else:
                    tmp[...] = a
                a, s = tmp, _point_stride(tmp, _len(p["dims"]))
            flat[name] = (a, s)
        for p in self.params:
            k = p["kind"]
            if k == "c":
                call.append(count)
            elif k == "s":
                call.append(flat[p["of"]][1])
            elif k == "f":
                call.append((vals[p["name"]].ctypes.data, ()))
            elif p["name"] in flat:
                call.append((flat[p["name"]][0].ctypes.data, (), (), (), False))
            else:
                a = vals[p["name"]] if k == "i" else outs[p["name"]]
                call.append((a.ctypes.data, (), a.strides, p["dims"], k != "i"))
        return _native.fixed(self.index, (), tuple(call)), back


def _point_stride(a, nd):
    """The byte stride between the points of a batch whose points are consecutive floats, or None."""
    inner = a.strides[a.ndim - nd:]
    if any(s != 4 for s, n in zip(inner, a.shape[a.ndim - nd:]) if n > 1):
        return None
    v = a.view()
    try:
        v.shape = (-1,) + a.shape[a.ndim - nd:]
    except AttributeError:
        return None
    s = v.strides[0] if v.shape[0] > 1 else 4
    return s if -0x80000000 <= s <= 0x7FFFFFFF else None


def _function(family, members):
    members = sorted(members, key=lambda m: not m.array)  # the array form first, where it fits
    name = _NAMES[family]

    def call(*args, out=None):
        first = None
        for m in members:
            try:
                bound = m.bind(args, out)
            except _Misfit as e:
                first = first or e
                continue
            return m.run(*bound)
        raise ValueError("%s: no member takes these shapes (%s)" % (name, first))

    call.__name__ = call.__qualname__ = name
    call.__doc__ = "%s, float32: members %s." % (family, ", ".join(m.pattern for m in members))
    call.members = [m.name for m in members]
    return call


def _build():
    by_family = {}
    for entry in _FIXED:
        m = _Fixed(entry)
        by_family.setdefault(m.family, []).append(m)
    out = {}
    for family, members in by_family.items():
        fn = _function(family, members)
        globals()[fn.__name__] = fn
        out[fn.__name__] = fn
    return out


functions = _build()
families = sorted(functions)
