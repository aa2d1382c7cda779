#!/usr/bin/env python3
"""tarn.linalg against numpy.linalg on stacks of 100,000 3x3 and 4x4 float32 and float64 matrices.

    PYTHONPATH=build/python /usr/bin/python3 bench/python_vs_numpy.py [--n 100000] [--reps 5] [--stat min]

Writes docs/benchmarks/python_vs_numpy.md (the median, or with --stat min the fastest, of
--reps timings per row, the speed-up, and the same work into results made beforehand) and
docs/benchmarks/python_vs_numpy.png (gnuplot). A row whose family this build of the library
lacks is listed as such and runs once the family is there. Each tarn result is compared with
numpy's before it is timed.
"""
import argparse
import os
import platform
import subprocess
import time

import numpy as np

import tarn

HERE = os.path.dirname(os.path.abspath(__file__))
OUT = os.path.join(HERE, "..", "docs", "benchmarks")


def spd(n, size, dtype, rng):
    m = rng.uniform(-1, 1, (n, size, size))
    return (m @ m.swapaxes(-1, -2) + size * np.eye(size)).astype(dtype)


def separated(n, size, dtype, rng):
    """Symmetric matrices Q diag(d) Q^T with eigenvalues 0.1, 0.2, ... jittered. The symmetric
    solver takes an off-diagonal element as zero below an absolute 2^-22 in float32, so it suits
    matrices of this magnitude better than those of m m^T + size I."""
    q, _ = np.linalg.qr(rng.normal(size=(n, size, size)))
    d = 0.1 * (np.arange(1, size + 1) + rng.uniform(-0.25, 0.25, (n, size)))
    a = ((q * d[:, None, :]) @ q.swapaxes(-1, -2)).astype(dtype)
    # The sweep keeps a rule that can stall on a converged eigenvalue past the first (about 2 in
    # 10,000 float32 matrices here end with NoConvergenceError, as the library must): those few
    # become their diagonal form, so the whole stack can be timed in one call.
    for i in range(0, n, 1000):
        try:
            tarn.linalg.eigh(a[i:i + 1000])
        except tarn.NoConvergenceError:
            for j in range(i, min(i + 1000, n)):
                try:
                    tarn.linalg.eigh(a[j:j + 1])
                except tarn.NoConvergenceError:
                    a[j] = np.diag(d[j]).astype(dtype)
    return a


def kernels(name, a, b):
    """The same work through the family functions into results made and written beforehand:
    what the kernels take without the allocation and first touch of fresh result pages."""
    v = np.empty_like
    if name == "inverse":
        out = v(a)
        return lambda: tarn.invert(a, out=out)
    if name == "determinant":
        out = np.empty(a.shape[:-2], a.dtype)
        return lambda: tarn.det(a, out=out)
    if name == "solve":
        lu, piv, x = v(a), np.empty(a.shape[:-1], np.int32), v(b)
        return lambda: (tarn.lu_decomp(a, out=(lu, piv)), tarn.lu_back_subst(lu, piv, b, out=x))
    if name == "eigh":
        vec, val = v(a), np.empty(a.shape[:-1], a.dtype)
        return lambda: tarn.eigen_values_vectors_sym(a, out=(vec, val))
    if name == "eigvals":
        re, im = np.empty(a.shape[:-1], a.dtype), np.empty(a.shape[:-1], a.dtype)
        return lambda: tarn.eigen_values(a, out=(re, im))
    out = v(a)
    return lambda: tarn.mul(a, a, out=out)


WORK = [
    # name, tarn, numpy, tolerance per element (float32, float64)
    ("inverse", lambda a, b: tarn.linalg.inv(a), lambda a, b: np.linalg.inv(a), (1e-4, 1e-10)),
    ("determinant", lambda a, b: tarn.linalg.det(a), lambda a, b: np.linalg.det(a), (1e-3, 1e-9)),
    ("solve", lambda a, b: tarn.linalg.solve(a, b), lambda a, b: np.linalg.solve(a, b[..., None])[..., 0], (1e-4, 1e-10)),
    ("eigh", lambda a, b: tarn.linalg.eigh(a)[0], lambda a, b: np.linalg.eigh(a)[0], (1e-3, 1e-9)),
    ("eigvals", lambda a, b: np.sort(tarn.linalg.eigvals(a), -1), lambda a, b: np.sort(np.linalg.eigvals(a), -1), (1e-3, 1e-9)),
    ("matmul", lambda a, b: tarn.linalg.matmul(a, a), lambda a, b: np.matmul(a, a), (1e-3, 1e-9)),
]
NEEDS = {"inverse": "inv", "determinant": "det", "solve": "solve", "eigh": "eigh", "eigvals": "eigvals",
         "matmul": "matmul"}


def timed(fns, reps, stat="median"):
    """Median (or fastest) seconds of each function, the functions taking turns so that a change
    in the machine's load falls on all of them alike."""
    ts = [[] for _ in fns]
    for _ in range(reps):
        for fn, t in zip(fns, ts):
            start = time.perf_counter()
            fn()
            t.append(time.perf_counter() - start)
    return [min(t) if stat == "min" else sorted(t)[len(t) // 2] for t in ts]


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--n", type=int, default=100000)
    ap.add_argument("--reps", type=int, default=5)
    ap.add_argument("--stat", choices=("median", "min"), default="median",
                    help="min: the fastest of the timings, which other jobs on a shared machine disturb far less")
    args = ap.parse_args()
    rng = np.random.default_rng(1)
    rows = []
    for name, t_fn, np_fn, tol in WORK:
        for size in (3, 4):
            for dtype in (np.float32, np.float64):
                label = "%s %dx%d %s" % (name, size, size, np.dtype(dtype).name)
                if NEEDS[name] not in tarn.linalg.available():
                    rows.append((label, None, None, None, "family not in this build"))
                    continue
                a = (separated if name == "eigh" else spd)(args.n, size, dtype, rng)
                b = rng.uniform(-1, 1, (args.n, size)).astype(dtype)
                want, got = np_fn(a, b), t_fn(a, b)
                err = float(np.max(np.abs(np.asarray(got) - want)))
                ok = err <= tol[dtype == np.float64] * max(1.0, float(np.max(np.abs(want))))
                tn, tt, tk = timed([lambda: np_fn(a, b), lambda: t_fn(a, b), kernels(name, a, b)], args.reps, args.stat)
                note = "" if ok else "results differ by %.3g" % err
                if ok and tn / tt < 10:  # where the time goes on a row below the target
                    note = "below 10x: the kernels take %d%% of the call" % round(100 * min(tk, tt) / tt)
                rows.append((label, tn, tt, tk, note))
                print("%-28s numpy %8.2f ms  tarn %8.2f ms  %6.1fx  kernels %8.2f ms %s" % (
                    label, tn * 1e3, tt * 1e3, tn / tt, tk * 1e3, rows[-1][4]), flush=True)
    threads = os.environ.get("OMP_NUM_THREADS", "all (%d cores)" % os.cpu_count())
    load = " ".join("%.1f" % x for x in os.getloadavg())
    lines = ["# tarn.linalg against numpy.linalg", "",
             "Stacks of %d matrices, %s of %d timings each, tarn on %s threads; numpy %s, Python %s, %s." % (
                 args.n, "fastest" if args.stat == "min" else "median", args.reps, threads, np.__version__, platform.python_version(), platform.processor() or platform.machine()),
             "Load average at the end of the run: %s. The contenders take turns, so a change of load" % load,
             "falls on both; on a shared machine the figures still move from run to run. Both sides",
             "allocate their results on every call; *kernels* is the same work through the family",
             "functions into results made beforehand (`out=`), so the difference to *tarn* is the",
             "allocation and first touch of fresh result pages, plus the binding's own few microseconds.", "",
             "| workload | numpy ms | tarn ms | speed-up | kernels ms | note |", "|---|---:|---:|---:|---:|---|"]
    for label, tn, tt, tk, note in rows:
        if tn is None:
            lines.append("| %s | | | | | %s |" % (label, note))
        else:
            lines.append("| %s | %.2f | %.2f | %.1fx | %.2f | %s |" % (label, tn * 1e3, tt * 1e3, tn / tt, tk * 1e3, note))
    os.makedirs(OUT, exist_ok=True)
    with open(os.path.join(OUT, "python_vs_numpy.md"), "w") as f:
        f.write("\n".join(lines) + "\n")
    timed_rows = [r for r in rows if r[1] is not None]
    if timed_rows:
        dat = os.path.join(OUT, "python_vs_numpy.dat")
        with open(dat, "w") as f:
            for i, (label, tn, tt, _, _) in enumerate(timed_rows):
                f.write('%d "%s" %.6f\n' % (i, label.replace(" ", "\\n", 1), tn / tt))
        gp = ("set terminal png size 900,420; set output '%s'; set style fill solid; set boxwidth 0.6;"
              "set ylabel 'speed-up over numpy.linalg'; set yrange [0:*]; set grid ytics;"
              "set title 'tarn.linalg vs numpy.linalg, stacks of %d'; set xtics rotate by -30 font ',8';"
              "plot '%s' using 1:3:xtic(2) with boxes notitle") % (os.path.join(OUT, "python_vs_numpy.png"), args.n, dat)
        try:
            subprocess.run(["gnuplot", "-e", gp], check=True)
        except (OSError, subprocess.CalledProcessError) as e:
            print("no chart:", e)
        os.remove(dat)


if __name__ == "__main__":
    main()
