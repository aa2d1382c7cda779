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
]


@pytest.mark.parametrize("batch", [(), (5,), (2, 3)])
@pytest.mark.parametrize("n", [3, 4, 6])
@pytest.mark.parametrize("dtype", [F32, F64])
@pytest.mark.parametrize("case", AGREE, ids=[c[0] for c in AGREE])
def test_agrees_with_numpy(case, dtype, n, batch):
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
