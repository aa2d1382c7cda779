"""tarn for numpy: batched kernels for small dense matrices and vectors.

Every family of the library is a function here in snake case (``tarn.add``, ``tarn.mul``,
``tarn.trace``, ...; ``names`` maps each family to its name). The fixed-size float32 members
(small vectors, 4x4 transforms) are in ``tarn.geometry`` and here too: a family of their own by
its name, a family shared with the general members (``add``, ``det``, ``cross_product``, ...)
falling back to them where no general member takes the arguments. Arguments are numpy arrays: a matrix is the last two axes, a vector the
last one, and any leading axes make an array of objects; a Python number is a constant. The
member is chosen from the arguments' shapes and dtype (float32 or float64), arrays are passed
with their own byte strides, never copied (a transposed view is only strides), results are
allocated unless ``out=`` gives them, and the interpreter lock is released during the call.

A 2-D argument is read as a matrix where the family has a member taking one, else as an array
of vectors; the member with the fewest arrays among those that fit is taken.

Results come back in the library's argument order, a result matrix or vector first. Statuses
other than 0 raise a subclass of ``tarn.Error`` named after the status; arguments that no member
takes raise TypeError, shapes that do not fit together or strides the library would reject
raise ValueError before any call.
"""

import numpy as _np

# len, min and max are family names here: the built-ins they hide, under names of their own.
from builtins import len as _len, max as _max  # noqa: E402

from . import _native
from ._members import MEMBERS as _MEMBERS, NAMES as _NAMES


class Error(Exception):
    """A status other than 0 from the library; ``status`` holds it."""

    status = None
    status_name = None


_STATUS_NAMES = {
    -2: "VectorSolveFailed",
    -6: "BadSize",
    -8: "NullPointer",
    -10: "DivideByZero",
    -179: "NotPositiveDefinite",
    -182: "BadStride",
    -195: "Singular",
    -202: "BadRoiShift",
    -203: "BadCount",
    -204: "ShapeMismatch",
    -205: "NoConvergence",
}
# Validation statuses mean the arguments were wrong, not the data: they are ValueErrors too.
_VALIDATION = {-6, -8, -182, -202, -203, -204}
_ERRORS = {}
for _s, _n in _STATUS_NAMES.items():
    _bases = (Error, ValueError) if _s in _VALIDATION else (Error,)
    _cls = type(_n + "Error", _bases, {"status": _s, "status_name": "tarnStatus" + _n, "__module__": __name__})
    _ERRORS[_s] = _cls
    globals()[_cls.__name__] = _cls


def _raise_status(status, name):
    cls = _ERRORS.get(status)
    if cls is None:
        err = Error("%s returned status %d" % (name, status))
        err.status = status
        raise err
    raise cls("%s returned %s (%d)" % (name, cls.status_name, status))


def snake_case(family):
    """The rule for a family's Python and C++ name: LUDecomp -> lu_decomp (``names`` holds the
    few families named otherwise, where the rule would split a word)."""
    out = []
    for i, ch in enumerate(family):
        if ch.isupper() and i > 0:
            prev = family[i - 1]
            next_lower = i + 1 < _len(family) and family[i + 1].islower()
            if prev.islower() or prev.isdigit() or (prev.isupper() and next_lower):
                out.append("_")
        out.append(ch.lower())
    return "".join(out)


class _Misfit(Exception):
    """These arguments do not fit this member: try the next one."""


class _Member:
    def __init__(self, entry):
        (self.index, self.name, self.family, self.pattern, self.esize, eqs, self.sizes, blocks, self.items,
         self.params) = entry
        self.dtype = _np.dtype(_np.float32 if self.esize == 4 else _np.float64)
        self.eqs = [(e, compile(e, self.name, "eval")) for e in eqs]
        self.blocks = [dict(name=b[0], slot=b[1], kind=b[2], array=b[3], out=b[4],
                            dims=[(d, compile(d, self.name, "eval")) for d in b[5]]) for b in blocks]
        self.arrays = self.pattern.count("a")
        # What the caller passes: sources and scalars; results and work space are made here.
        self.items = [it for it in self.items if it[0] == "v" or not self.blocks[it[1]]["out"]]
        # Results: a result matrix or vector first, then the other written pointers in order.
        outs = [i for i, b in enumerate(self.blocks) if b["out"] and b["slot"] in ("mat", "vec")]
        outs += [i for i, b in enumerate(self.blocks) if b["out"] and b["slot"] not in ("mat", "vec", "buffer")]
        self.outputs = outs

    def _obj_ndim(self, b):
        if b["kind"] in ("m", "t"):
            return 2
        if b["kind"] == "v" or b["slot"] in ("values", "pivot", "pivotin", "plain"):
            return _len(b["dims"])
        return 0

    def _elem_dtype(self, b):
        return _np.dtype(_np.int32) if b["slot"] in ("pivot", "pivotin", "size") else self.dtype

    def bind(self, args, out, keywords):
        """Checks the arguments against this member and returns the call, or raises _Misfit."""
        if _len(args) != _len(self.items):
            raise _Misfit("%d arguments, %s takes %d" % (_len(args), self.name, _len(self.items)))
        arrays, values, batch = {}, {}, None
        for (what, ref), a in zip(self.items, args):
            if what == "v":
                if isinstance(a, _np.ndarray) and a.ndim > 0 or not _np.isscalar(a) and not isinstance(a, _np.ndarray):
                    raise _Misfit("%s takes a number for %s" % (self.name, ref))
                values[ref] = float(a)
                continue
            b = self.blocks[ref]
            a = _np.asarray(a)
            want = self._elem_dtype(b)
            if a.dtype != want:
                raise _Misfit("%s takes %s for %s, not %s" % (self.name, want, b["name"], a.dtype))
            nd = self._obj_ndim(b)
            if b["array"] and a.ndim < nd + 1 or not b["array"] and a.ndim != nd:
                raise _Misfit("%s: %s has %d dimensions" % (self.name, b["name"], a.ndim))
            if b["array"]:
                shape = a.shape[: a.ndim - nd]
                if batch is None:
                    batch = shape
                elif shape != batch:
                    raise ValueError("%s: batch shapes %s and %s differ" % (self.name, batch, shape))
            arrays[ref] = a
        outs = self._outputs(out)
        for i, o in outs.items():
            b = self.blocks[i]
            nd = self._obj_ndim(b)
            if o.dtype != self._elem_dtype(b) or not o.flags.writeable:
                raise _Misfit("%s: out for %s must be writeable %s" % (self.name, b["name"], self._elem_dtype(b)))
            if b["array"]:
                if o.ndim < nd + 1:
                    raise _Misfit("%s: out for %s has %d dimensions" % (self.name, b["name"], o.ndim))
                shape = o.shape[: o.ndim - nd]
                if batch is None:
                    batch = shape
                elif shape != batch:
                    raise ValueError("%s: out batch shape %s differs from %s" % (self.name, shape, batch))
            arrays[i] = o
        # Sizes from the blocks that carry them; every other dimension must agree.
        sizes = {}
        for name, bi, d in self.sizes:
            if bi >= 0 and bi in arrays:
                a = arrays[bi]
                nd = self._obj_ndim(self.blocks[bi])
                sizes[name] = a.shape[a.ndim - nd + d]
            elif name in keywords:
                sizes[name] = int(keywords[name])
            else:
                raise _Misfit("%s: nothing gives %s" % (self.name, name))
        count = 1
        if batch is not None:
            for n in batch:
                count *= n
        sizes["count"] = count
        for i, a in arrays.items():
            b = self.blocks[i]
            nd = self._obj_ndim(b)
            for k, (text, code) in enumerate(b["dims"]):
                if a.shape[a.ndim - nd + k] != eval(code, {}, sizes):
                    raise ValueError("%s: %s has shape %s, where %s = %d" % (
                        self.name, b["name"], a.shape, text, eval(code, {}, sizes)))
        for text, code in self.eqs:
            if not eval(code, {}, sizes):
                raise ValueError("%s: the shapes do not fit (%s)" % (self.name, text))
        if count < 1 or any(v < 1 for v in sizes.values()):
            raise ValueError("%s: empty operands" % self.name)
        return _Bound(self, arrays, values, sizes, batch, out is not None)

    def _outputs(self, out):
        if out is None:
            return {}
        given = out if isinstance(out, tuple) else (out,)
        if _len(given) != _len(self.outputs):
            raise _Misfit("%s writes %d results" % (self.name, _len(self.outputs)))
        return {i: o for i, o in zip(self.outputs, given) if o is not None}


def _object_strides(a, nd, esize, name):
    """(obj, strides of the object's axes) of an array whose leading axes form the batch."""
    batch_nd = a.ndim - nd
    if batch_nd > 1:  # the batch as one axis with one stride, if the memory allows it
        v = a.view()
        try:
            v.shape = (-1,) + a.shape[batch_nd:]
        except AttributeError:
            raise ValueError("%s: the batch axes cannot be described by one object stride" % name) from None
        a = v
    strides = list(a.strides)
    for k, n in enumerate(a.shape):
        if n == 1:
            strides[k] = esize  # never stepped over: any valid stride
    for s in strides:
        if s <= 0 or s % esize or s > 0x7FFFFFFF:
            raise ValueError("%s: stride %d is not a positive multiple of %d bytes" % (name, s, esize))
    return a, strides


class _Bound:
    def __init__(self, member, arrays, values, sizes, batch, given):
        self.m, self.arrays, self.values, self.sizes, self.batch = member, arrays, values, sizes, batch

    def run(self):
        m = self.m
        keep = []  # arrays made here that must live through the call
        ptr, obj, row, elem = {}, {}, {}, {}
        for i, b in enumerate(m.blocks):
            nd = m._obj_ndim(b)
            dims = [eval(code, {}, self.sizes) for _, code in b["dims"]]
            if i not in self.arrays:
                dt = m._elem_dtype(b)
                if b["slot"] == "buffer":
                    a = _np.empty(_max(1, int(_np.prod(dims))), dt)
                else:
                    shape = (tuple(self.batch) if b["array"] else ()) + tuple(dims)
                    a = _np.empty(shape if shape else (1,), dt) if b["slot"] == "size" else _np.empty(shape, dt)
                self.arrays[i] = a
            a = self.arrays[i]
            if b["kind"] == "":  # plain pointers are dense
                if not a.flags.c_contiguous:
                    raise ValueError("%s: %s must be C-contiguous" % (m.name, b["name"]))
                ptr[i] = a.ctypes.data
                continue
            flat, st = _object_strides(a, nd, m.esize, m.name + " " + b["name"])
            keep.append(flat)
            ptr[i] = flat.ctypes.data
            k = 0
            if b["array"]:
                obj[i] = st[0]
                k = 1
            if nd == 2:
                row[i], elem[i] = st[k], st[k + 1]
            elif nd == 1:
                elem[i] = st[k]
        call = []
        for role, ref in m.params:
            if role == "ptr":
                call.append(ptr[ref])
            elif role == "obj":
                call.append(obj[ref])
            elif role == "row":
                call.append(row[ref])
            elif role == "elem":
                call.append(elem[ref])
            elif role == "value":
                call.append(self.values[ref])
            elif role in ("size", "count"):
                call.append(self.sizes[ref])
            else:
                raise TypeError("%s: LayoutS has no %s" % (m.name, role))
        status = _native.call(m.index, tuple(call))
        if status != 0:
            _raise_status(status, m.name)
        res = []
        for i in m.outputs:
            a = self.arrays[i]
            b = m.blocks[i]
            res.append(int(a[0]) if b["slot"] == "size" else a[()] if a.ndim == 0 else a)
        return res[0] if _len(res) == 1 else tuple(res)


def _family_function(family, members):
    members = sorted(members, key=lambda m: m.arrays)

    def call(*args, out=None, **keywords):
        dtype = keywords.pop("dtype", None)
        floats = {a.dtype for a in args if isinstance(a, _np.ndarray) and a.dtype.kind == "f"}
        if out is not None:
            floats |= {o.dtype for o in (out if isinstance(out, tuple) else (out,)) if o is not None and o.dtype.kind == "f"}
        if dtype is not None:
            floats.add(_np.dtype(dtype))
        for a in args:
            if isinstance(a, _np.ndarray) and a.dtype.kind not in "fi" or isinstance(a, _np.ndarray) and a.dtype.kind == "f" and a.dtype not in (_np.float32, _np.float64):
                raise TypeError("%s: arrays of %s are not supported" % (name, a.dtype))
        if _len(floats) > 1:
            raise TypeError("%s: arguments mix %s" % (name, ", ".join(sorted(str(f) for f in floats))))
        first = shape_error = None
        for m in members:
            if floats and m.dtype not in floats or not floats and m.dtype != _np.float64:
                continue
            try:
                bound = m.bind(args, out, keywords)
            except _Misfit as e:
                first = first or e
                continue
            except ValueError as e:
                shape_error = shape_error or e
                continue
            return bound.run()
        if call.fixed is not None:  # the family's fixed-size members, where no other fits
            try:
                return call.fixed(*args, out=out, **keywords)
            except (TypeError, ValueError):
                pass
        if shape_error is not None:
            raise shape_error
        raise TypeError("%s: no member takes these arguments (%s)" % (name, first))

    name = _NAMES[family]
    call.fixed = None
    call.__name__ = name
    call.__qualname__ = name
    call.__doc__ = "%s: members %s." % (family, ", ".join(sorted({m.pattern or "-" for m in members})))
    call.members = [m.name for m in members]
    return call


def _build():
    by_family = {}
    for entry in _MEMBERS:
        m = _Member(entry)
        by_family.setdefault(m.family, []).append(m)
    names = []
    for family, members in by_family.items():
        fn = _family_function(family, members)
        globals()[fn.__name__] = fn
        names.append(fn.__name__)
    return sorted(names)


names = dict(_NAMES)
families = _build()

from . import geometry  # noqa: E402  (the fixed-size members)

for _name, _fn in geometry.functions.items():
    if _name in globals():
        globals()[_name].fixed = _fn
        globals()[_name].members = globals()[_name].members + _fn.members
    else:
        globals()[_name] = _fn
        families.append(_name)
families.sort()

from . import linalg  # noqa: E402  (the familiar names, over the functions above)
