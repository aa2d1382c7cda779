"""The numpy module: the same bits as the C exports, numpy's results within fixed tolerances,
arguments no member takes refused before any call, statuses as named exceptions."""
import ctypes
import os

import numpy as np
import pytest

import tarn

LIB = ctypes.CDLL(os.environ["TARN_SO"])
F32, F64 = np.float32, np.float64


def rand(shape, dtype, seed=0):
    return np.random.default_rng(seed).uniform(-2, 2, shape).astype(dtype)


def c_call(name, *args):
    """Calls an export directly: arrays as their data address, ints as int32, floats by type."""
    fn = getattr(LIB, name)
    conv = []
    for a in args:
        if isinstance(a, np.ndarray):
            conv.append(ctypes.c_void_p(a.ctypes.data))
        elif isinstance(a, (float, np.floating)):
            conv.append(ctypes.c_float(a) if "_32f" in name else ctypes.c_double(a))
        else:
            conv.append(ctypes.c_int32(a))
    fn.restype = ctypes.c_int32
    return fn(*conv)


def c_matmul_t(name, a, bt, n):
    # a: (N, n, n) packed; bt: a transposed view of packed b, passed as m with its own strides.
    d = np.zeros_like(a)
    e = a.itemsize
    st = c_call(name, a, n * n * e, n * e, e, n, n, bt, bt.strides[0], bt.strides[1], bt.strides[2], n, n,
                d, n * n * e, n * e, e, len(a))
    return st, d


class Out:
    """A result of one object in c_each: its shape and type."""

    def __init__(self, shape=(), dtype=F32):
        self.shape, self.dtype = shape, dtype


def c_each(name, *args):
    """Calls a fixed-size export once per object: arrays are batches (object i is x[i], copied
    into consecutive floats; a batch of numbers passes each by value), numbers are passed by
    value, Out places are results. Returns the
    first status other than 0 (or 0) and the results, a batch each."""
    n = next(len(a) for a in args if isinstance(a, np.ndarray))
    res = [np.zeros((n,) + a.shape, a.dtype) for a in args if isinstance(a, Out)]
    for i in range(n):
        one = [(float(a[i]) if a.ndim == 1 else np.ascontiguousarray(a[i])) if isinstance(a, np.ndarray) else
               np.zeros(a.shape, a.dtype) if isinstance(a, Out) else a for a in args]
        status = c_call(name, *one)
        for r, o in zip(res, [o for a, o in zip(args, one) if isinstance(a, Out)]):
            r[i] = o
        if status:
            return status, res
    return 0, res[0] if len(res) == 1 else tuple(res)


def f32(a, k, shape):
    """Float32 objects of `shape` cut from the stack a, one per matrix, some with strided elements."""
    flat = np.tile(a.astype(F32).reshape(len(a), -1), 4) * np.float32(1.5) ** np.arange(4 * a[0].size, dtype=F32)
    size = int(np.prod(shape))
    return flat[:, k:k + size].reshape((len(a),) + shape) if k >= 0 else flat[:, ::-1][:, :2 * size:2].reshape(
        (len(a),) + shape)


CASES = [
    # (what, tarn call, export call giving (status, result))
    ("add mama, one source a transposed view",
     lambda a, b: tarn.add(a, b.swapaxes(1, 2)),
     lambda a, b: (lambda d: (c_call("tarnAdd_mama_%s" % tag(a), a, a.strides[0], 3 * a.itemsize, a.itemsize,
                                     b, 9 * a.itemsize, a.itemsize, 3 * a.itemsize, d, 9 * a.itemsize, 3 * a.itemsize,
                                     a.itemsize, 3, 3, len(a)), d))(np.zeros_like(a))),
    ("mul mama, the right factor a transposed view",
     lambda a, b: tarn.mul(a, b.swapaxes(1, 2)),
     lambda a, b: c_matmul_t("tarnMul_mama_%s" % tag(a), a, b.swapaxes(1, 2), 3)),
    ("sub cv, the constant first",
     lambda a, b: tarn.sub(0.375, a[0, 0]),
     lambda a, b: (lambda d: (c_call("tarnSub_cv_%s" % tag(a), a, a.itemsize, 0.375, d, a.itemsize, 3), d))(
         np.zeros(3, a.dtype))),
    ("trace ma of every second matrix",
     lambda a, b: tarn.trace(a[::2]),
     lambda a, b: (lambda d: (c_call("tarnTrace_ma_%s" % tag(a), a, 18 * a.itemsize, 3 * a.itemsize, a.itemsize, 3,
                                     d, (len(a) + 1) // 2), d))(np.zeros((len(a) + 1) // 2, a.dtype))),
    ("dot_product vava over rows of matrices",
     lambda a, b: tarn.dot_product(a[:, 1], b[:, :, 2]),
     lambda a, b: (lambda d: (c_call("tarnDotProduct_vava_%s" % tag(a), a[:, 1].copy(), 3 * a.itemsize, a.itemsize,
                                     b[:, :, 2].copy(), 3 * a.itemsize, a.itemsize, d, 3, len(a)), d))(
         np.zeros(len(a), a.dtype))),
    # Fixed-size members, float32 whatever the stack: once per object, or once for a batch in
    # the array forms; elements consecutive (k >= 0) or strided and reversed (k < 0).
    ("normalize v3 into a strided out",
     lambda a, b: tarn.normalize(f32(a, 1, (3,)), out=np.zeros((len(a), 6), F32)[:, ::2]),
     lambda a, b: c_each("tarnNormalize_v3_32f", f32(a, 1, (3,)), Out((3,)))),
    ("normalize v4 of strided vectors", lambda a, b: tarn.normalize(f32(a, -1, (4,))),
     lambda a, b: c_each("tarnNormalize_v4_32f", f32(a, -1, (4,)), Out((4,)))),
    ("cross_product v4 of three, through the family", lambda a, b: tarn.cross_product(f32(a, 0, (4,)), f32(a, 4, (4,)),
                                                                                      f32(b, -1, (4,))),
     lambda a, b: c_each("tarnCrossProduct_v4_32f", f32(a, 0, (4,)), f32(a, 4, (4,)), f32(b, -1, (4,)), Out((4,)))),
    ("cross_product v2 to one float", lambda a, b: tarn.cross_product(f32(a, 0, (2,)), f32(b, -1, (2,))),
     lambda a, b: c_each("tarnCrossProduct_v2_32f", f32(a, 0, (2,)), f32(b, -1, (2,)), Out())),
    ("dot_product v3, the fixed member", lambda a, b: tarn.geometry.dot_product(f32(a, 2, (3,)), f32(b, -1, (3,))),
     lambda a, b: c_each("tarnDotProduct_v3_32f", f32(a, 2, (3,)), f32(b, -1, (3,)), Out())),
    ("hermite v2 with a value", lambda a, b: tarn.hermite(f32(a, 0, (2,)), f32(a, 2, (2,)), f32(b, -1, (2,)),
                                                          f32(b, 3, (2,)), 0.3),
     lambda a, b: c_each("tarnHermite_v2_32f", f32(a, 0, (2,)), f32(a, 2, (2,)), f32(b, -1, (2,)), f32(b, 3, (2,)),
                         0.3, Out((2,)))),
    ("rotation_axis: one axis, an array of angles", lambda a, b: tarn.rotation_axis(f32(a, 0, (3,))[0], a[:, 1, 1]),
     lambda a, b: c_each("tarnRotationAxis_v3m4_32f", np.broadcast_to(f32(a, 0, (3,))[0], (len(a), 3)),
                         a[:, 1, 1].astype(F32), Out((4, 4)))),
    ("look_at_rh of strided eyes", lambda a, b: tarn.look_at_rh(f32(a, -1, (3,)), f32(b, 0, (3,)), [0, 1, 0]),
     lambda a, b: c_each("tarnLookAtRH_m4_32f", f32(a, -1, (3,)), f32(b, 0, (3,)),
                         np.broadcast_to(np.float32([0, 1, 0]), (len(a), 3)), Out((4, 4)))),
    ("invert m4 with its determinant", lambda a, b: np.concatenate(
        [x.reshape(len(a), -1) for x in tarn.geometry.invert(f32(a, -1, (4, 4)) + 4 * np.eye(4, dtype=F32))], 1),
     lambda a, b: (lambda st, r: (st, np.concatenate([r[1].reshape(len(a), -1), r[0].reshape(len(a), -1)], 1)))(
         *c_each("tarnInvert_m4_32f", f32(a, -1, (4, 4)) + 4 * np.eye(4, dtype=F32), Out(), Out((4, 4))))),
    ("det m4, the fixed member", lambda a, b: tarn.geometry.det(f32(a, -1, (4, 4))),
     lambda a, b: c_each("tarnDet_m4_32f", f32(a, -1, (4, 4)), Out())),
    ("is_identity m4", lambda a, b: tarn.is_identity(np.stack([np.eye(4, dtype=F32), f32(a, 0, (4, 4))[0]])),
     lambda a, b: c_each("tarnIsIdentity_m4_32f", np.stack([np.eye(4, dtype=F32), f32(a, 0, (4, 4))[0]]),
                         Out((), np.int32))),
    ("affine_transform_coord m4v2a, one call for strided points",
     lambda a, b: tarn.affine_transform_coord(f32(b, 0, (4, 4))[0], a.astype(F32)[:, 1, :2]),
     lambda a, b: (lambda p, d: (c_call("tarnAffineTransformCoord_m4v2a_32f", f32(b, 0, (4, 4))[0].copy(), p,
                                        p.strides[0], d, 8, len(a)), d))(a.astype(F32)[:, 1, :2], np.zeros((len(a), 2), F32))),
    ("affine_transform_coord m4v3 once per matrix", lambda a, b: tarn.affine_transform_coord(f32(b, 0, (4, 4)), f32(a, -1, (3,))),
     lambda a, b: c_each("tarnAffineTransformCoord_m4v3_32f", f32(b, 0, (4, 4)), f32(a, -1, (3,)), Out((3,)))),
    ("project m4v3a, points copied to be consecutive",
     lambda a, b: tarn.project(*[f32(b, k, (4, 4))[0] for k in (0, 1, 2)], f32(a, -1, (3,)), 640, 480, 0.25, 1),
     lambda a, b: (lambda p, d: (c_call("tarnProject_m4v3a_32f", *[f32(b, k, (4, 4))[0].copy() for k in (0, 1, 2)], p,
                                        12, 640.0, 480.0, 0.25, 1.0, d, 12, len(a)), d))(
         np.ascontiguousarray(f32(a, -1, (3,))), np.zeros((len(a), 3), F32))),
]


def tag(a):
    return "32f" if a.dtype == F32 else "64f"


@pytest.mark.parametrize("dtype", [F32, F64])
@pytest.mark.parametrize("case", CASES, ids=[c[0] for c in CASES])
def test_same_bits_as_the_export(case, dtype):
    a, b = rand((7, 3, 3), dtype, 1), rand((7, 3, 3), dtype, 2)
    if case[0].startswith("add"):  # objects 4 elements apart from the next 9: a padded stack
        a = np.zeros((7, 12), dtype)
        a[:, :9] = rand((7, 9), dtype, 1)
        a = np.lib.stride_tricks.as_strided(a, (7, 3, 3), (12 * a.itemsize, 3 * a.itemsize, a.itemsize))
    got = case[1](a, b)
    status, want = case[2](a, b)
    assert status == 0
    assert got.dtype == want.dtype and got.shape == want.shape
    assert got.tobytes() == want.tobytes()


def m4(a):
    """4x4 matrices from the elements of a stack of any order (one, if it has no batch)."""
    return np.resize(a, a.shape[:-2] + (4, 4))


def rot_z(t):
    """Rotations of row vectors by t about z: (1, 0, 0) goes to (cos t, sin t, 0)."""
    r = np.zeros(t.shape + (4, 4))
    r[..., 0, 0] = r[..., 1, 1] = np.cos(t)
    r[..., 0, 1], r[..., 1, 0] = np.sin(t), -np.sin(t)
    r[..., 2, 2] = r[..., 3, 3] = 1
    return r


# Element-wise members round once per element, as numpy does: equal bits. Products and sums
# agree to a tolerance fixed by the length of the sum and the type.
TOL = {F32: 4e-6, F64: 1e-14}
AGREE = [
    ("add", lambda a, b: tarn.add(a, b), lambda a, b: a + b, 0),
    ("sub", lambda a, b: tarn.sub(a, b), lambda a, b: a - b, 0),
    ("sub with a constant", lambda a, b: tarn.sub(a[..., 0, :], 1.5), lambda a, b: a[..., 0, :] - a.dtype.type(1.5), 0),
    ("saxpy", lambda a, b: tarn.saxpy(a[..., 0, :], 0.5, b[..., 1, :]),
     lambda a, b: a[..., 0, :] * a.dtype.type(0.5) + b[..., 1, :], 0),
    ("transpose", lambda a, b: tarn.transpose(a), lambda a, b: a.swapaxes(-1, -2), 0),
    ("copy", lambda a, b: tarn.copy(a), lambda a, b: a, 0),
    ("extract of a transposed view", lambda a, b: tarn.extract(a.swapaxes(-1, -2)), lambda a, b: a.swapaxes(-1, -2), 0),
    ("mul", lambda a, b: tarn.mul(a, b), lambda a, b: a @ b, 8),
    ("mul by a transposed view", lambda a, b: tarn.mul(a, b.swapaxes(-1, -2)), lambda a, b: a @ b.swapaxes(-1, -2), 8),
    ("trace", lambda a, b: tarn.trace(a), lambda a, b: np.trace(a, axis1=-2, axis2=-1), 4),
    ("frob_norm", lambda a, b: tarn.frob_norm(a), lambda a, b: np.sqrt((a * a).sum(axis=(-2, -1))), 16),
    ("l2_norm", lambda a, b: tarn.l2_norm(a[..., 0, :]), lambda a, b: np.linalg.norm(a[..., 0, :], axis=-1), 4),
    ("dot_product", lambda a, b: tarn.dot_product(a[..., 0, :], b[..., 2, :]),
     lambda a, b: (a[..., 0, :] * b[..., 2, :]).sum(-1), 8),
    ("cross_product", lambda a, b: tarn.cross_product(a[..., 0, :3], b[..., 1, :3]),
     lambda a, b: np.cross(a[..., 0, :3], b[..., 1, :3]), 4),
    # The fixed-size members, float32 only (a marks them): the stacks are taken as float32.
    ("min v3", lambda a, b: tarn.min(a[..., 0, :3], b[..., 0, :3]), lambda a, b: np.minimum(a[..., 0, :3], b[..., 0, :3]),
     0, F32),
    ("max v4 of strided vectors", lambda a, b: tarn.max(m4(a)[..., :, 1], m4(b)[..., 2, ::-1]),
     lambda a, b: np.maximum(m4(a)[..., :, 1], m4(b)[..., 2, ::-1]), 0, F32),
    ("interpolation_linear v2", lambda a, b: tarn.interpolation_linear(a[..., 1, :2], b[..., 1, :2], 0.375),
     lambda a, b: a[..., 1, :2] + (b[..., 1, :2] - a[..., 1, :2]) * F32(0.375), 0, F32),
    ("barycentric v3", lambda a, b: tarn.barycentric(a[..., 0, :3], b[..., 0, :3], a[..., 1, :3], 0.25, 0.5),
     lambda a, b: ((b[..., 0, :3] - a[..., 0, :3]) * F32(0.25) + a[..., 0, :3]) + (a[..., 1, :3] - a[..., 0, :3]) * F32(0.5),
     0, F32),
    ("mul_c v4", lambda a, b: tarn.mul_c(a[..., 2, :3], -1.25), lambda a, b: a[..., 2, :3] * F32(-1.25), 0, F32),
    ("normalize v3", lambda a, b: tarn.normalize(a[..., 0, :3]),
     lambda a, b: a[..., 0, :3] / np.linalg.norm(a[..., 0, :3], axis=-1)[..., None], 4, F32),
    ("len_sqr v4", lambda a, b: tarn.len_sqr(b[..., :3, 0][..., [0, 1, 2, 1]]),
     lambda a, b: (b[..., :3, 0][..., [0, 1, 2, 1]] ** 2).sum(-1), 8, F32),
    ("rotation_z of an array of angles", lambda a, b: tarn.rotation_z(a[..., 0, 0]), lambda a, b: rot_z(a[..., 0, 0]), 2, F32),
    ("perspective_fov_rh", lambda a, b: tarn.perspective_fov_rh(1.25, 0.75, 0.5, 20.0),
     lambda a, b: np.array([[1 / np.tan(0.625) / 0.75, 0, 0, 0], [0, 1 / np.tan(0.625), 0, 0],
                            [0, 0, 20 / (0.5 - 20), -1], [0, 0, 0.5 * 20 / (0.5 - 20), 0]]), 2, F32),
    ("affine_transform v3 by one matrix", lambda a, b: tarn.affine_transform(np.resize(b, (4, 4)), a[..., 1, :3]),
     lambda a, b: np.concatenate([a[..., 1, :3], np.ones_like(a[..., 1, :1])], -1) @ np.resize(b, (4, 4)), 8, F32),
    ("mul_transpose m4", lambda a, b: tarn.mul_transpose(m4(a), m4(b)), lambda a, b: (m4(a) @ m4(b)).swapaxes(-1, -2), 8,
     F32),
]


@pytest.mark.parametrize("batch", [(), (5,), (2, 3)])
@pytest.mark.parametrize("n", [3, 4, 6])
@pytest.mark.parametrize("dtype", [F32, F64])
@pytest.mark.parametrize("case", AGREE, ids=[c[0] for c in AGREE])
def test_agrees_with_numpy(case, dtype, n, batch):
    dtype = case[4] if len(case) > 4 else dtype
    a, b = rand(batch + (n, n), dtype, 3), rand(batch + (n, n), dtype, 4)
    got, want = case[1](a, b), case[2](a, b)
    assert got.dtype == dtype and got.shape == want.shape
    if case[3] == 0:
        assert np.array_equal(got, want)
    else:
        np.testing.assert_allclose(got, want, rtol=0, atol=case[3] * n * TOL[dtype])


def test_out_is_written_and_returned():
    a, b = rand((4, 3, 3), F32, 5), rand((4, 3, 3), F32, 6)
    out = np.empty((8, 3, 3), F32)[::2]  # a strided result
    assert tarn.mul(a, b, out=out) is out
    np.testing.assert_allclose(out, a @ b, atol=1e-5)
    ident = np.full((2, 4, 4), 7.0)
    tarn.load_identity(out=ident)
    assert np.array_equal(ident, np.broadcast_to(np.eye(4), (2, 4, 4)))


REFUSED = [
    ("mixed dtypes", lambda: tarn.add(rand((2, 3, 3), F32), rand((2, 3, 3), F64)), TypeError),
    ("integer arrays", lambda: tarn.add(np.ones((3, 3), np.int64), np.ones((3, 3), np.int64)), TypeError),
    ("float16", lambda: tarn.add(np.ones((3, 3), np.float16), np.ones((3, 3), np.float16)), TypeError),
    ("no member: a constant first", lambda: tarn.add(1.0, np.ones(3)), TypeError),
    ("batches differ", lambda: tarn.add(rand((4, 3, 3), F32), rand((5, 3, 3), F32)), ValueError),
    ("matrices differ", lambda: tarn.add(rand((3, 3), F32), rand((3, 4), F32)), ValueError),
    ("inner sizes differ", lambda: tarn.mul(rand((2, 3, 4), F32), rand((2, 3, 4), F32)), ValueError),
    ("negative stride", lambda: tarn.add(rand((4, 3, 3), F32)[::-1], rand((4, 3, 3), F32)), ValueError),
    ("zero stride", lambda: tarn.add(np.broadcast_to(rand((3, 3), F32), (4, 3, 3)), rand((4, 3, 3), F32)), ValueError),
    ("out of another shape", lambda: tarn.add(rand((3, 3), F32), rand((3, 3), F32), out=np.empty((3, 4), F32)), ValueError),
    ("out of another type", lambda: tarn.add(rand((3, 3), F32), rand((3, 3), F32), out=np.empty((3, 3), F64)), TypeError),
    ("empty batch", lambda: tarn.add(rand((0, 3, 3), F32), rand((0, 3, 3), F32)), ValueError),
    ("fixed member of float64", lambda: tarn.normalize(rand((4, 3), F64)), TypeError),
    ("fixed member: a vector of 5", lambda: tarn.normalize(rand((4, 5), F32)), ValueError),
    ("fixed member: batches do not broadcast", lambda: tarn.min(rand((4, 3), F32), rand((5, 3), F32)), ValueError),
    ("fixed member: a string for a value", lambda: tarn.rotation_x("0.5"), TypeError),
    ("fixed member: out of another shape", lambda: tarn.normalize(rand((4, 3), F32), out=np.empty((3, 3), F32)), ValueError),
    ("fixed member: out with a zero stride",
     lambda: tarn.normalize(rand((4, 3), F32), out=np.broadcast_to(np.empty(3, F32), (4, 3))), ValueError),
]


@pytest.mark.parametrize("case", REFUSED, ids=[c[0] for c in REFUSED])
def test_refused_before_any_call(case):
    with pytest.raises(case[2]):
        case[1]()


def test_statuses_are_named_exceptions():
    named = {"SingularError": -195, "NoConvergenceError": -205, "NotPositiveDefiniteError": -179,
             "DivideByZeroError": -10, "VectorSolveFailedError": -2, "BadStrideError": -182}
    for name, status in named.items():
        cls = getattr(tarn, name)
        assert issubclass(cls, tarn.Error) and cls.status == status
    assert issubclass(tarn.BadStrideError, ValueError) and not issubclass(tarn.SingularError, ValueError)
    m = np.stack([np.eye(4, dtype=F32), np.eye(4, dtype=F32) * F32(1e-7)])  # the pivot limit is absolute
    with pytest.raises(tarn.SingularError):
        tarn.geometry.invert(m)
    with pytest.raises(tarn.SingularError):
        tarn.unproject(m[1], m[0], m[0], rand((3, 3), F32), 640, 480, 0, 1)


def test_family_names():
    assert {"add", "sub", "saxpy", "lcomb", "mul", "copy", "extract", "load_identity", "transpose", "dot_product",
            "cross_product", "l2_norm", "frob_norm", "trace"} <= set(tarn.families)
    names = {"LUDecomp": "lu_decomp", "LUBackSubst": "lu_back_subst", "EigenValuesSym": "eigen_values_sym",
             "QRDecomp": "qr_decomp", "L2Norm": "l2_norm", "EigenValuesVectorsGetBufSize":
             "eigen_values_vectors_get_buf_size", "Det": "det"}
    for family, snake in names.items():
        assert tarn.snake_case(family) == snake
    readable = {"LComb": "lcomb", "AffineTransform3DH": "affine_transform_3dh", "BaryCentric": "barycentric",
                "LookAtLH": "look_at_lh", "InterpolationCatmullRom": "interpolation_catmull_rom", "MulC": "mul_c"}
    for family, name in readable.items():
        assert tarn.names[family] == name and name in tarn.families


# tarn.linalg against numpy.linalg on well-conditioned stacks; the tolerance grows with the
# order and is fixed per type. A function whose family this library lacks is skipped, so it
# runs as soon as the family lands.
def spd(batch, n, dtype, seed):
    m = rand(batch + (n, n), F64, seed)
    return (m @ m.swapaxes(-1, -2) + n * np.eye(n)).astype(dtype)


def sorted_complex(w):
    return np.sort_complex(np.asarray(w, complex))


LINALG = [
    ("matmul", lambda a, b: tarn.linalg.matmul(a, b), lambda a, b: a @ b),
    ("inv", lambda a, b: tarn.linalg.inv(a), lambda a, b: np.linalg.inv(a)),
    ("det", lambda a, b: tarn.linalg.det(a), lambda a, b: np.linalg.det(a)),
    ("solve", lambda a, b: tarn.linalg.solve(a, b[..., 0]), lambda a, b: np.linalg.solve(a, b[..., :, :1])[..., 0]),
    ("cholesky_solve", lambda a, b: tarn.linalg.cholesky_solve(a, b[..., 0]),
     lambda a, b: np.linalg.solve(a, b[..., :, :1])[..., 0]),
    ("eigh", lambda a, b: tarn.linalg.eigh(a)[0], lambda a, b: np.linalg.eigh(a)[0]),
    ("eigvals", lambda a, b: np.sort(tarn.linalg.eigvals(a), axis=-1), lambda a, b: np.sort(np.linalg.eigvals(a), axis=-1)),
]
LTOL = {F32: 2e-5, F64: 1e-12}


@pytest.mark.parametrize("n", [3, 4, 5])
@pytest.mark.parametrize("dtype", [F32, F64])
@pytest.mark.parametrize("case", LINALG, ids=[c[0] for c in LINALG])
def test_linalg_agrees_with_numpy(case, dtype, n):
    if case[0] not in tarn.linalg.available():
        pytest.skip("this library has no family for %s yet" % case[0])
    a, b = spd((6,), n, dtype, 7), rand((6, n, n), dtype, 8)
    got, want = case[1](a, b), case[2](a, b)
    scale = max(1.0, float(np.abs(want).max()))
    np.testing.assert_allclose(got, want, rtol=0, atol=n * n * LTOL[dtype] * scale)
