// LU and Cholesky: factorisation alone, and factorisation followed by the solve of one
// right-hand side per system, for a batch of packed LayoutS systems. Contenders:
//   tarn     tarnLUDecomp_ma (+ tarnLUBackSubst_mava), tarnCholeskyDecomp_ma (+ _mava)
//   plain    the textbook loops, one system after the other
//   eigen    Eigen's fixed-size PartialPivLU / LLT mapped onto each system
//   lapacke  LAPACKE's getrf/getrs and potrf/potrs (the _work forms: no NaN scan) per system
// Every contender factors into a buffer of its own and solves into one of its own; before it is
// timed its solutions are checked against the systems (relative residual).
#include <benchmark/benchmark.h>
#include <omp.h>
#include <tarn.h>

#include <Eigen/Cholesky>
#include <Eigen/Core>
#include <Eigen/LU>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#ifdef TARN_BENCH_LAPACKE
#include <lapacke.h>
#endif

#include "support.hpp"

using tarnbench::Buf;

namespace {

enum class Op { LU, LUSolve, Chol, CholSolve };

template <class T, int N>
struct Batch {
  int32_t n;
  Buf a, f, b, x, piv;  // systems, factors, right-hand sides, solutions, pivots
  explicit Batch(int32_t count, bool spd) : n(count) {
    a = Buf(size_t(count) * N * N * sizeof(T));
    f = Buf(a.bytes);
    b = Buf(size_t(count) * N * sizeof(T));
    x = Buf(b.bytes);
    piv = Buf(size_t(count) * N * sizeof(int32_t));
    std::mt19937 rng(2024);
    std::uniform_real_distribution<double> u(-1, 1);
    for (int32_t k = 0; k < count; ++k) {
      T* m = A(k);
      double l[N][N] = {};
      for (int r = 0; r < N; ++r)
        for (int c = 0; c < N; ++c) l[r][c] = c <= r ? (r == c ? 2 + u(rng) : u(rng)) : 0;
      for (int r = 0; r < N; ++r)
        for (int c = 0; c < N; ++c) {
          double s = 0;
          for (int j = 0; j < N; ++j) s += l[r][j] * l[c][j];
          m[r * N + c] = T(spd ? s : u(rng));  // SPD: L L^T; otherwise a general matrix
        }
      for (int i = 0; i < N; ++i) B(k)[i] = T(u(rng));
    }
  }
  T* A(int32_t k) const { return a.as<T>() + size_t(k) * N * N; }
  T* F(int32_t k) const { return f.as<T>() + size_t(k) * N * N; }
  T* B(int32_t k) const { return b.as<T>() + size_t(k) * N; }
  T* X(int32_t k) const { return x.as<T>() + size_t(k) * N; }
  int32_t* P(int32_t k) const { return piv.as<int32_t>() + size_t(k) * N; }

  // Largest |A x - b| relative to |A| |x| + |b| over the batch.
  double residual() const {
    double worst = 0;
    for (int32_t k = 0; k < n; ++k)
      for (int r = 0; r < N; ++r) {
        double s = -double(B(k)[r]), scale = std::fabs(double(B(k)[r]));
        for (int c = 0; c < N; ++c) {
          s += double(A(k)[r * N + c]) * double(X(k)[c]);
          scale += std::fabs(double(A(k)[r * N + c]) * double(X(k)[c]));
        }
        worst = std::max(worst, std::fabs(s) / scale);
      }
    return worst;
  }
};

// ---- plain: the textbook loops -----------------------------------------------------------

template <class T, int N>
void plainLU(const T* a, T* f, int32_t* p) {
  for (int i = 0; i < N * N; ++i) f[i] = a[i];
  for (int i = 0; i < N; ++i) p[i] = i;
  for (int k = 0; k < N; ++k) {
    int best = k;
    for (int i = k + 1; i < N; ++i)
      if (std::fabs(f[i * N + k]) > std::fabs(f[best * N + k])) best = i;
    if (best != k) {
      for (int c = 0; c < N; ++c) std::swap(f[k * N + c], f[best * N + c]);
      std::swap(p[k], p[best]);
    }
    for (int i = k + 1; i < N; ++i) {
      f[i * N + k] /= f[k * N + k];
      for (int j = k + 1; j < N; ++j) f[i * N + j] -= f[i * N + k] * f[k * N + j];
    }
  }
}
template <class T, int N>
void plainLUSolve(const T* f, const int32_t* p, const T* b, T* x) {
  for (int i = 0; i < N; ++i) {
    T s = b[p[i]];
    for (int j = 0; j < i; ++j) s -= f[i * N + j] * x[j];
    x[i] = s;
  }
  for (int i = N - 1; i >= 0; --i) {
    T s = x[i];
    for (int j = i + 1; j < N; ++j) s -= f[i * N + j] * x[j];
    x[i] = s / f[i * N + i];
  }
}
template <class T, int N>
void plainChol(const T* a, T* f) {
  for (int i = 0; i < N; ++i)
    for (int j = 0; j <= i; ++j) {
      T s = a[i * N + j];
      for (int k = 0; k < j; ++k) s -= f[i * N + k] * f[j * N + k];
      f[i * N + j] = i == j ? std::sqrt(s) : s / f[j * N + j];
    }
}
template <class T, int N>
void plainCholSolve(const T* f, const T* b, T* x) {
  for (int i = 0; i < N; ++i) {
    T s = b[i];
    for (int j = 0; j < i; ++j) s -= f[i * N + j] * x[j];
    x[i] = s / f[i * N + i];
  }
  for (int i = N - 1; i >= 0; --i) {
    T s = x[i];
    for (int j = i + 1; j < N; ++j) s -= f[j * N + i] * x[j];
    x[i] = s / f[i * N + i];
  }
}

// ---- Contenders ----------------------------------------------------------------------------

template <class T, int N>
using RowMat = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
template <class T, int N>
using Vec = Eigen::Matrix<T, N, 1>;

template <class T, int N>
void runTarn(Op op, const Batch<T, N>& s, int) {
  constexpr int32_t e = sizeof(T), os = N * N * e, rs = N * e, vs = N * e;
  const int32_t n = s.n;
  if constexpr (std::is_same_v<T, float>) {
    if (op == Op::LU || op == Op::LUSolve) {
      tarnLUDecomp_ma_32f(s.A(0), os, rs, e, s.P(0), s.F(0), os, rs, e, N, n);
      if (op == Op::LUSolve) tarnLUBackSubst_mava_32f(s.F(0), os, rs, e, s.P(0), s.B(0), vs, e, s.X(0), vs, e, N, n);
    } else {
      tarnCholeskyDecomp_ma_32f(s.A(0), os, rs, e, s.F(0), os, rs, e, N, n);
      if (op == Op::CholSolve) tarnCholeskyBackSubst_mava_32f(s.F(0), os, rs, e, s.B(0), vs, e, s.X(0), vs, e, N, n);
    }
  } else {
    tarnCholeskyDecomp_ma_64f(s.A(0), os, rs, e, s.F(0), os, rs, e, N, n);
    if (op == Op::CholSolve) tarnCholeskyBackSubst_mava_64f(s.F(0), os, rs, e, s.B(0), vs, e, s.X(0), vs, e, N, n);
  }
}

template <class T, int N>
void runPlain(Op op, const Batch<T, N>& s, int) {
  for (int32_t k = 0; k < s.n; ++k) {
    if (op == Op::LU || op == Op::LUSolve) {
      plainLU<T, N>(s.A(k), s.F(k), s.P(k));
      if (op == Op::LUSolve) plainLUSolve<T, N>(s.F(k), s.P(k), s.B(k), s.X(k));
    } else {
      plainChol<T, N>(s.A(k), s.F(k));
      if (op == Op::CholSolve) plainCholSolve<T, N>(s.F(k), s.B(k), s.X(k));
    }
  }
}

template <class T, int N>
void runEigen(Op op, const Batch<T, N>& s, int) {
  for (int32_t k = 0; k < s.n; ++k) {
    const Eigen::Map<const RowMat<T, N>> a(s.A(k));
    Eigen::Map<RowMat<T, N>> f(s.F(k));
    if (op == Op::LU || op == Op::LUSolve) {
      const Eigen::PartialPivLU<RowMat<T, N>> lu(a);
      if (op == Op::LUSolve) Eigen::Map<Vec<T, N>>(s.X(k)) = lu.solve(Eigen::Map<const Vec<T, N>>(s.B(k)));
      else f = lu.matrixLU();
    } else {
      const Eigen::LLT<RowMat<T, N>> llt(a);
      if (op == Op::CholSolve) Eigen::Map<Vec<T, N>>(s.X(k)) = llt.solve(Eigen::Map<const Vec<T, N>>(s.B(k)));
      else f = llt.matrixLLT();
    }
  }
}

#ifdef TARN_BENCH_LAPACKE
// Row-major systems seen column-major are their transposes: getrf factors A^T and getrs solves
// with it transposed; potrf with 'U' reads the lower triangle of the row-major A.
template <class T, int N>
void runLapacke(Op op, const Batch<T, N>& s, int) {
  lapack_int ip[N];
  for (int32_t k = 0; k < s.n; ++k) {
    T* f = s.F(k);
    for (int i = 0; i < N * N; ++i) f[i] = s.A(k)[i];
    const bool solve = op == Op::LUSolve || op == Op::CholSolve;
    if (solve)
      for (int i = 0; i < N; ++i) s.X(k)[i] = s.B(k)[i];
    if constexpr (std::is_same_v<T, float>) {
      if (op == Op::LU || op == Op::LUSolve) {
        LAPACKE_sgetrf_work(LAPACK_COL_MAJOR, N, N, f, N, ip);
        if (solve) LAPACKE_sgetrs_work(LAPACK_COL_MAJOR, 'T', N, 1, f, N, ip, s.X(k), N);
      } else {
        LAPACKE_spotrf_work(LAPACK_COL_MAJOR, 'U', N, f, N);
        if (solve) LAPACKE_spotrs_work(LAPACK_COL_MAJOR, 'U', N, 1, f, N, s.X(k), N);
      }
    } else {
      LAPACKE_dpotrf_work(LAPACK_COL_MAJOR, 'U', N, f, N);
      if (solve) LAPACKE_dpotrs_work(LAPACK_COL_MAJOR, 'U', N, 1, f, N, s.X(k), N);
    }
  }
}
#endif

template <class T, int N>
void add(Op op, int32_t n) {
  const char* what = op == Op::LU          ? "tarnLUDecomp_ma"
                     : op == Op::LUSolve   ? "tarnLUDecomp_ma+LUBackSubst_mava"
                     : op == Op::Chol      ? "tarnCholeskyDecomp_ma"
                                           : "tarnCholeskyDecomp_ma+CholeskyBackSubst_mava";
  const std::string wl = std::string(what) + (sizeof(T) == 4 ? "_32f/" : "_64f/") + std::to_string(N) + "x" +
                         std::to_string(N) + "/N:" + std::to_string(n) + "/";
  const bool solve = op == Op::LUSolve || op == Op::CholSolve;
  const bool lu = op == Op::LU || op == Op::LUSolve;
  // Bytes read and written: the system, the factor, the pivots; b and x when solving, and the
  // factor and pivots read once more by the solve.
  const double bytes = double(2 * N * N * sizeof(T)) + (lu ? 2.0 * N * 4 : 0.0) +
                       (solve ? double(N * N * sizeof(T) + 2 * N * sizeof(T)) + (lu ? N * 4.0 : 0.0) : 0.0);
  auto batch = std::make_shared<std::unique_ptr<Batch<T, N>>>();
  auto contender = [=](const char* who, int threads, void (*fn)(Op, const Batch<T, N>&, int)) {
    tarnbench::registerBench(wl + who + "/T:" + std::to_string(threads), [=](benchmark::State& st) {
      if (!*batch) *batch = std::make_unique<Batch<T, N>>(n, !lu);
      const Batch<T, N>& s = **batch;
      omp_set_num_threads(threads);
      // Verified through a solve in every case: a factor alone is checked by solving with it.
      fn(solve ? op : lu ? Op::LUSolve : Op::CholSolve, s, threads);
      const double r = s.residual();
      if (!(r < (sizeof(T) == 4 ? 1e-4 : 1e-12))) {
        st.SkipWithError(("residual " + std::to_string(r)).c_str());
        return;
      }
      tarnbench::timeCalls(st, n, bytes, [&] { fn(op, s, threads); });
      omp_set_num_threads(1);
    });
  };
  contender("tarn", 1, runTarn<T, N>);
  contender("tarn", 2, runTarn<T, N>);
  contender("plain", 1, runPlain<T, N>);
  contender("eigen", 1, runEigen<T, N>);
#ifdef TARN_BENCH_LAPACKE
  contender("lapacke", 1, runLapacke<T, N>);
#endif
}

const int registered = [] {
  constexpr int32_t n = 100000;
  for (Op op : {Op::LU, Op::LUSolve}) {
    add<float, 3>(op, n);
    add<float, 4>(op, n);
    add<float, 6>(op, n);
  }
  for (Op op : {Op::Chol, Op::CholSolve}) {
    add<float, 3>(op, n);
    add<float, 6>(op, n);
    add<double, 3>(op, n);
    add<double, 6>(op, n);
  }
  return 0;
}();

}  // namespace
