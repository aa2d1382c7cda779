// Symmetric eigenproblems: tarn against the same Householder + QL/QR algorithm written as a
// plain loop, Eigen's SelfAdjointEigenSolver (and its closed form for 3x3) and LAPACKE's syev,
// one object at a time, on N = 20,000 packed symmetric matrices. The plain loop must give
// tarn's bits; the peers, whose algorithms differ, must give the same eigenvalues to a
// tolerance before they are timed.
#include <benchmark/benchmark.h>
#include <lapacke.h>
#include <omp.h>
#include <tarn.h>

#include <Eigen/Eigenvalues>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "support.hpp"

namespace {

using tarnbench::Buf;

constexpr int32_t kN = 20000;

// ---- The plain loop: the prescribed algorithm, written the obvious way -------------------------

// S: scalars of reduction and sweep; Tt: t; Pr: the product; DivRot: rotations as g*(z/r) - f*(z'/r).
template <class T, class S, class Tt, class Pr, bool Vec, bool DivRot, int N>
int plainSym(const T* src, T* val, T* z) {
  const S eps = S(sizeof(T) == 4 ? 0x1p-23 : 0x1p-52);
  T a[N][N];
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) a[i][j] = src[i * N + j], z[i * N + j] = T(i == j);
  auto small = [&](T x) { return std::fabs(double(x) * 0.5) <= double(T(eps)); };
  for (int k = 0; k < N - 2; ++k) {
    S s = 0;
    for (int i = k + 1; i < N; ++i) s += S(a[i][k]) * S(a[i][k]);
    const S nrm = std::sqrt(s), x = S(a[k + 1][k]);
    if (Vec && eps >= std::fabs(nrm - x)) continue;
    for (int i = k + 2; i < N; ++i) val[i] = a[i][k];
    S h;
    if (x > eps) val[k + 1] = T(x + nrm), h = (s + x * nrm) * 2;
    else if (eps >= std::fabs(x)) val[k + 1] = T(nrm), h = s + s;
    else val[k + 1] = T(x - nrm), h = (s - x * nrm) * 2;
    if (eps >= h) continue;
    const S beta = 2 / h;
    for (int j = k; j < N; ++j) {
      S sum = 0;
      for (int i = k + 1; i < N; ++i) sum += S(a[i][j]) * S(val[i]);
      const S w = beta * sum;
      for (int i = k + 1; i < N; ++i) a[i][j] = T(S(a[i][j]) - w * S(val[i]));
    }
    for (int i = k; i < N; ++i) {
      S sum = 0;
      for (int j = k + 1; j < N; ++j) sum += S(a[i][j]) * S(val[j]);
      const S w = beta * sum;
      for (int j = k + 1; j < N; ++j) a[i][j] = T(S(a[i][j]) - w * S(val[j]));
    }
    if (!Vec) continue;
    for (int r = 1; r < N; ++r) {
      if (k == 0) {
        for (int j = r; j < N; ++j) z[r * N + j] = z[j * N + r] = T(r == j ? S(1) - beta * S(val[r]) * S(val[r]) : -beta * S(val[r]) * S(val[j]));
        continue;
      }
      S sum = 0;
      for (int j = k + 1; j < N; ++j) sum += S(val[j]) * S(z[r * N + j]);
      const S w = beta * sum;
      for (int j = k + 1; j < N; ++j) z[r * N + j] = T(S(z[r * N + j]) - w * S(val[j]));
    }
  }
  const bool up = std::fabs(a[N - 1][N - 1]) > std::fabs(a[0][0]);
  Pr P = 1;
  for (int kk = 0; kk < N - 1; ++kk) {
    const int l = up ? kk : N - 1 - kk;
    for (int iter = 0;; ++iter) {
      int m = l;
      if (up) {
        while (m < N - 1 && !small(a[m + 1][m])) ++m;
      } else {
        while (m > 0 && !small(a[m][m - 1])) --m;
        if (!Vec && m > 0) val[m] = a[m][m], P *= a[m][m];
      }
      if (m == l) break;
      if (iter == 30) return tarnStatusNoConvergence;
      const int o = up ? 1 : -1, el = up ? l : l - 1;
      S g = (S(a[l + o][l + o]) - S(a[l][l])) / (2 * S(a[el + 1][el]));
      S r = S(std::sqrt(double(g * g + 1)));
      g = S(a[m][m]) - S(a[l][l]) + S(a[el + 1][el]) / (g > eps ? g + r : g - r);
      S s = 1, c = 1, p = 0;
      Tt t = 0;
      bool split = false;
      for (int i = up ? m - 1 : m; up ? i >= l : i < l; i -= o) {
        const S f = s * S(a[i + 1][i]), b = c * S(a[i + 1][i]);
        r = std::sqrt(f * f + g * g);
        const int lo = up ? i + 1 : i, hi = up ? i : i + 1;
        if (i != (up ? m - 1 : m)) a[i + 1 + o][i + o] = T(r);
        if (eps >= std::fabs(r)) {
          a[lo][lo] = T(S(a[lo][lo]) - p);
          const int em = up ? m - 1 : m;
          a[em + 1][em] = 0;
          split = true;
          break;
        }
        c = g / r, s = f / r;
        if (Vec)
          for (int row = 0; row < N; ++row) {
            T& zi = z[row * N + i];
            T& zj = z[row * N + i + 1];
            const S x0 = zi, x1 = zj;
            if (DivRot) {
              const S y0 = x0 / r, y1 = x1 / r;
              zi = T(up ? g * y0 - f * y1 : g * y0 + f * y1), zj = T(up ? f * y0 + g * y1 : g * y1 - f * y0);
            } else {
              zi = T(up ? c * x0 - s * x1 : c * x0 + s * x1), zj = T(up ? s * x0 + c * x1 : c * x1 - s * x0);
            }
          }
        g = S(a[lo][lo]) - p;
        t = Tt((S(a[hi][hi]) - g) * s + (c + c) * b);
        p = S(t) * s;
        a[lo][lo] = T(g + p);
        g = S(t) * c - b;
      }
      if (split || (eps >= std::fabs(S(t)) && (!up || l > 0))) continue;
      a[l][l] = T(S(a[l][l]) - p), a[el + 1][el] = T(g);
    }
  }
  if (up || Vec) {
    P = 1;
    for (int i = 0; i < N; ++i) val[i] = a[i][i], P *= Pr(a[i][i]);
  } else {
    val[0] = a[0][0], P *= a[0][0];
  }
  if (Pr(T(eps)) >= std::fabs(P)) return tarnStatusSingular;
  for (int i = 0; i < N - 1; ++i) {
    int best = i;
    for (int j = i + 1; j < N; ++j)
      if (val[j] > val[best]) best = j;
    if (best == i) continue;
    std::swap(val[i], val[best]);
    if (Vec)
      for (int row = 0; row < N; ++row) std::swap(z[row * N + i], z[row * N + best]);
  }
  return 0;
}

// ---- Workloads -------------------------------------------------------------------------------

struct Batch {
  int n, esize;
  Buf src, scratch, vals, vecs, expectVals, expectVecs;
};

struct Contender {
  std::string name;
  bool tarn;
  std::function<void(Batch&)> call;
  double tol;  // 0: bit for bit against the plain loop; else eigenvalues to this tolerance
};

template <class T>
void fill(Batch& b, const std::function<bool(const T*, T*, T*)>& solves) {
  const int n = b.n, e = n * n;
  std::mt19937 rng(2024);
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  T* a = b.src.as<T>();
  std::vector<T> v(static_cast<size_t>(n)), z(static_cast<size_t>(e));
  for (int32_t k = 0; k < kN; ++k) {
    T* m = a + size_t(k) * e;
    do  // matrices the plain loop solves, so that every call walks the whole batch
      for (int r = 0; r < n; ++r)
        for (int c = r; c < n; ++c) m[r * n + c] = m[c * n + r] = T(u(rng));
    while (!solves(m, v.data(), z.data()));
  }
}

template <class T, bool Vec, class Plain>
std::unique_ptr<Batch> makeBatch(int n, Plain plain) {
  auto b = std::make_unique<Batch>();
  b->n = n;
  b->esize = sizeof(T);
  const size_t e = size_t(n) * n;
  b->src = Buf(e * kN * sizeof(T));
  b->scratch = Buf(e * sizeof(T));
  b->vals = Buf(n * size_t(kN) * sizeof(T));
  b->vecs = Buf(e * kN * sizeof(T));
  b->expectVals = Buf(n * size_t(kN) * sizeof(T));
  b->expectVecs = Buf(e * kN * sizeof(T));
  // Matrices the algorithm solves, and solves accurately: its absolute tests let a few random
  // matrices end a sweep early with a value off, where the peers would rightly disagree.
  fill<T>(*b, [&](const T* m, T* v, T* z) {
    if (plain(m, v, z) != 0) return false;
    Eigen::MatrixXd a(n, n);
    for (int r = 0; r < n; ++r)
      for (int c = 0; c < n; ++c) a(r, c) = m[r * n + c];
    const Eigen::VectorXd w = Eigen::SelfAdjointEigenSolver<Eigen::MatrixXd>(a, Eigen::EigenvaluesOnly).eigenvalues();
    for (int j = 0; j < n; ++j)
      if (!(std::fabs(double(v[j]) - w[n - 1 - j]) <= (sizeof(T) == 4 ? 4e-6 : 1e-13))) return false;
    return true;
  });
  for (int32_t k = 0; k < kN; ++k)
    plain(b->src.as<T>() + k * e, b->expectVals.as<T>() + size_t(k) * n, b->expectVecs.as<T>() + k * e);
  return b;
}

template <class T>
bool verify(Batch& b, const Contender& k, bool vec) {
  std::memset(b.vals.p, 0xff, b.vals.bytes);
  std::memset(b.vecs.p, 0xff, b.vecs.bytes);
  k.call(b);
  if (k.tol == 0)
    return std::memcmp(b.vals.p, b.expectVals.p, b.vals.bytes) == 0 &&
           (!vec || std::memcmp(b.vecs.p, b.expectVecs.p, b.vecs.bytes) == 0);
  const T* got = b.vals.as<T>();
  const T* want = b.expectVals.as<T>();
  for (size_t i = 0; i < size_t(b.n) * kN; ++i)
    if (!(std::fabs(double(got[i]) - double(want[i])) <= k.tol)) return false;
  return true;
}

// Eigen and LAPACKE give ascending values: turned around so all agree.
template <class T>
void descending(T* v, int n) {
  std::reverse(v, v + n);
}

template <class T, int N, bool Vec>
void eigenSolver(Batch& b, bool direct) {
  using M = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  Eigen::SelfAdjointEigenSolver<Eigen::Matrix<T, N, N>> es;
  const int opt = Vec ? Eigen::ComputeEigenvectors : Eigen::EigenvaluesOnly;
  for (int32_t k = 0; k < kN; ++k) {
    const Eigen::Map<const M> a(b.src.as<T>() + size_t(k) * N * N);
    if constexpr (N == 3)
      if (direct) es.computeDirect(a, opt);
      else es.compute(a, opt);
    else es.compute(a, opt);
    T* v = b.vals.as<T>() + size_t(k) * N;
    for (int j = 0; j < N; ++j) v[j] = es.eigenvalues()[N - 1 - j];
    if constexpr (Vec) Eigen::Map<M>(b.vecs.as<T>() + size_t(k) * N * N) = es.eigenvectors().rowwise().reverse();
  }
}

template <class T, int N, bool Vec>
void lapackeSyev(Batch& b) {
  T a[N * N], w[N];
  for (int32_t k = 0; k < kN; ++k) {
    std::memcpy(a, b.src.as<T>() + size_t(k) * N * N, sizeof a);
    if constexpr (std::is_same_v<T, float>) LAPACKE_ssyev(LAPACK_ROW_MAJOR, Vec ? 'V' : 'N', 'U', N, a, N, w);
    else LAPACKE_dsyev(LAPACK_ROW_MAJOR, Vec ? 'V' : 'N', 'U', N, a, N, w);
    T* v = b.vals.as<T>() + size_t(k) * N;
    for (int j = 0; j < N; ++j) v[j] = w[N - 1 - j];
    if constexpr (Vec)
      for (int r = 0; r < N; ++r)
        for (int c = 0; c < N; ++c) b.vecs.as<T>()[size_t(k) * N * N + r * N + c] = a[r * N + N - 1 - c];
  }
}

struct Workload {
  std::string name;
  std::function<std::unique_ptr<Batch>()> setup;
  bool vec;
  bool f64;
  std::vector<Contender> contenders;
};

template <class T, int N>
Workload valuesWorkload() {
  const double tol = N == 3 ? 2e-5 : 5e-5;
  Workload w{"tarnEigenValuesSym_ma_32f/" + std::to_string(N) + "x" + std::to_string(N),
             [] {
               return makeBatch<T, false>(N, [](const T* m, T* v, T* z) {
                 return plainSym<T, T, T, T, false, false, N>(m, v, z);
               });
             },
             false, false, {}};
  w.contenders = {
      {"tarn", true,
       [](Batch& b) {
         tarnEigenValuesSym_ma_32f(b.src.as<float>(), N * N * 4, N * 4, 4, b.scratch.as<float>(), b.vals.as<float>(), N, kN);
       },
       0},
      {"plain", false,
       [](Batch& b) {
         T z[N * N];
         for (int32_t k = 0; k < kN; ++k)
           plainSym<T, T, T, T, false, false, N>(b.src.as<T>() + size_t(k) * N * N, b.vals.as<T>() + size_t(k) * N, z);
       },
       0},
      {"eigen", false, [](Batch& b) { eigenSolver<T, N, false>(b, false); }, tol},
  };
  if (N == 3) w.contenders.push_back({"eigen-direct", false, [](Batch& b) { eigenSolver<T, N, false>(b, true); }, 1e-4});
  w.contenders.push_back({"lapacke", false, [](Batch& b) { lapackeSyev<T, N, false>(b); }, tol});
  return w;
}

template <class T, int N>
Workload vectorsWorkload() {
  constexpr bool f64 = std::is_same_v<T, double>;
  using S = double;
  using Tt = T;
  // 32f arrays: single storage, double scalars, rotations with 1/r taken into each element.
  auto solve = [](const T* m, T* v, T* z) { return plainSym<T, S, Tt, double, true, !f64, N>(m, v, z); };
  Workload w{std::string("tarnEigenValuesVectorsSym_ma_") + (f64 ? "64f/" : "32f/") + std::to_string(N) + "x" +
                 std::to_string(N),
             [solve] { return makeBatch<T, true>(N, solve); }, true, f64, {}};
  const double tol = f64 ? 1e-12 : 2e-5;
  w.contenders = {
      {"tarn", true,
       [](Batch& b) {
         constexpr int32_t es = sizeof(T);
         if constexpr (f64)
           tarnEigenValuesVectorsSym_ma_64f(b.src.as<double>(), N * N * es, N * es, es, b.scratch.as<double>(),
                                            b.vecs.as<double>(), N * N * es, N * es, es, b.vals.as<double>(), N, kN);
         else
           tarnEigenValuesVectorsSym_ma_32f(b.src.as<float>(), N * N * es, N * es, es, b.scratch.as<float>(),
                                            b.vecs.as<float>(), N * N * es, N * es, es, b.vals.as<float>(), N, kN);
       },
       0},
      {"plain", false,
       [solve](Batch& b) {
         for (int32_t k = 0; k < kN; ++k)
           solve(b.src.as<T>() + size_t(k) * N * N, b.vals.as<T>() + size_t(k) * N, b.vecs.as<T>() + size_t(k) * N * N);
       },
       0},
      {"eigen", false, [](Batch& b) { eigenSolver<T, N, true>(b, false); }, tol},
  };
  if (N == 3) w.contenders.push_back({"eigen-direct", false, [](Batch& b) { eigenSolver<T, N, true>(b, true); }, 1e-4});
  w.contenders.push_back({"lapacke", false, [](Batch& b) { lapackeSyev<T, N, true>(b); }, tol});
  return w;
}

const std::vector<Workload>& workloads() {
  static const std::vector<Workload> w = {valuesWorkload<float, 3>(), valuesWorkload<float, 6>(),
                                          vectorsWorkload<float, 3>(), vectorsWorkload<double, 6>()};
  return w;
}

std::unique_ptr<Batch> gBatch;
const Workload* gFor = nullptr;

void run(benchmark::State& st, const Workload& wl, const Contender& k, int threads) {
  if (gFor != &wl) {
    gBatch = wl.setup();
    gFor = &wl;
  }
  Batch& b = *gBatch;
  const bool ok = wl.f64 ? verify<double>(b, k, wl.vec) : verify<float>(b, k, wl.vec);
  if (!ok) {
    st.SkipWithError("result differs from the plain loop");
    return;
  }
  const int saved = omp_get_max_threads();
  if (k.tarn) omp_set_num_threads(threads);
  const double bytes = double(b.esize) * (b.n * b.n + b.n + (wl.vec ? b.n * b.n : 0));
  tarnbench::timeCalls(st, kN, bytes, [&] { k.call(b); });
  if (k.tarn) omp_set_num_threads(saved);
}

const bool kRegistered = [] {
  for (const Workload& wl : workloads())
    for (const Contender& k : wl.contenders)
      for (int t : {1, 2}) {
        if (!k.tarn && t > 1) continue;
        tarnbench::registerBench(wl.name + "/N:" + std::to_string(kN) + "/" + k.name + "/T:" + std::to_string(t),
                                 [&wl, &k, t](benchmark::State& st) { run(st, wl, k, t); });
      }
  return true;
}();

}  // namespace
