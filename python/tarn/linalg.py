"""numpy.linalg's stacked functions where tarn means the same: inv, det, solve, cholesky_solve,
eigh, eigvals, matmul, on arrays of shape (..., n, n) of float32 or float64.

Each is a few lines over the generated family functions; one whose family this build of the
library lacks raises NotImplementedError (``available()`` lists the others).
"""

import threading as _threading

import numpy as _np

import tarn as _tarn

# Work arrays a function needs but does not return (the factors and pivots of solve, the
# imaginary parts of eigvals) are kept per thread between calls of the same shape and type:
# a large fresh array is mapped page by page on its first write, and on stacks of small
# matrices that costs more than the factorisation itself. One set per thread and function is
# kept; ``release()`` drops them.
_kept = _threading.local()


def _work(key, shape, dtype):
    arrays = getattr(_kept, "arrays", None)
    if arrays is None:
        arrays = _kept.arrays = {}
    a = arrays.get(key)
    if a is None or a.shape != shape or a.dtype != dtype:
        a = arrays[key] = _np.empty(shape, dtype)
    return a


def release():
    """Drops the work arrays this thread keeps between calls."""
    _kept.arrays = {}


def _family(name):
    fn = getattr(_tarn, name, None)
    if fn is None:
        raise NotImplementedError("this tarn has no %s" % name)
    return fn


def _needs(*names):
    return all(hasattr(_tarn, n) for n in names)


_USES = {
    "inv": ("invert",),
    "det": ("det",),
    "solve": ("lu_decomp", "lu_back_subst"),
    "cholesky_solve": ("cholesky_decomp", "cholesky_back_subst"),
    "eigh": ("eigen_values_vectors_sym",),
    "eigvals": ("eigen_values",),
    "matmul": ("mul",),
}


def available():
    """The functions of this module that the library behind it can run."""
    return sorted(f for f, uses in _USES.items() if _needs(*uses))


def inv(a):
    """Inverse of each matrix; a singular one raises tarn.SingularError."""
    return _family("invert")(a)


def det(a):
    """Determinant of each matrix (a singular one gives 0)."""
    return _family("det")(a)


def _columns(b, a, solve_one):
    # b as in numpy.linalg.solve: a stack of vectors when it has one axis fewer than a, else a
    # stack of matrices solved column by column (each column a strided view, not a copy).
    b = _np.asarray(b)
    if b.ndim == a.ndim - 1:
        return solve_one(b)
    x = _np.empty(b.shape, b.dtype)
    for j in range(b.shape[-1]):
        solve_one(b[..., j], out=x[..., j])
    return x


def solve(a, b):
    """x with a @ x = b, by LU with partial pivoting."""
    a = _np.asarray(a)
    lu, pivot = _family("lu_decomp")(a, out=(_work("lu", a.shape, a.dtype), _work("pivot", a.shape[:-1], _np.int32)))
    back = _family("lu_back_subst")
    return _columns(b, a, lambda v, out=None: back(lu, pivot, v, out=out))


def cholesky_solve(a, b):
    """x with a @ x = b for symmetric positive definite a (its lower triangle is read)."""
    a = _np.asarray(a)
    factor = _family("cholesky_decomp")(a, out=_work("cholesky", a.shape, a.dtype))
    back = _family("cholesky_back_subst")
    return _columns(b, a, lambda v, out=None: back(factor, v, out=out))


def eigh(a):
    """(w, v) as numpy.linalg.eigh gives them: eigenvalues ascending, eigenvectors in columns."""
    vectors, values = _family("eigen_values_vectors_sym")(_np.asarray(a))
    return values[..., ::-1], vectors[..., ::-1]


def eigvals(a):
    """Eigenvalues of general matrices: real, or complex where any has an imaginary part."""
    a = _np.asarray(a)
    re, im = _family("eigen_values")(a, out=(_np.empty(a.shape[:-1], a.dtype), _work("im", a.shape[:-1], a.dtype)))
    if _np.any(im):
        return re + 1j * im
    return re


def matmul(a, b, out=None):
    """a @ b for stacks of matrices (or a matrix and a vector), as numpy.matmul without broadcasting."""
    return _family("mul")(a, b, out=out)
