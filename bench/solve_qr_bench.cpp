// Inverse, determinant and QR least squares of batches: tarn against a plain loop, Eigen and
// LAPACKE per object, on the same packed batch of N matrices. Every contender's result is checked
// before it is timed: inverses by A*X = I, determinants against a double-precision expansion,
// least-squares solutions by the normal equations A^T (A x - b) = 0, each within a tolerance
// of its type (the contenders' algorithms differ, so their bits do).
#include <omp.h>
#include <tarn.h>

#include <Eigen/Dense>
#include <cmath>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#ifdef TARN_BENCH_LAPACKE
#include <lapacke.h>
#endif

#include "support.hpp"

using tarnbench::Buf;

namespace {

// The batch of a workload: N objects of h x w, packed unless `gap` spaces each element out.
struct Batch {
  int h, w, es, gap;  // gap: element stride in elements (1: packed)
  int32_t n;
  Buf a, b, f, x, d;  // source, right-hand sides, factors, solutions, results
  size_t obj() const { return size_t(h) * size_t(w) * size_t(gap); }  // elements per object
};

template <class T>
std::unique_ptr<Batch> makeBatch(int h, int w, int gap, int32_t n) {
  auto c = std::make_unique<Batch>();
  *c = Batch{h, w, int(sizeof(T)), gap, n, {}, {}, {}, {}, {}};
  const size_t all = c->obj() * size_t(n);
  c->a = Buf(all * sizeof(T));
  c->f = Buf(all * sizeof(T));
  c->d = Buf(all * sizeof(T));
  c->b = Buf(size_t(h) * size_t(n) * sizeof(T));
  c->x = Buf(size_t(w) * size_t(n) * sizeof(T));
  std::mt19937 rng(99);
  std::uniform_real_distribution<double> u(-1, 1);
  T* a = c->a.as<T>();
  for (size_t i = 0; i < all; ++i) a[i] = T(u(rng));
  for (int32_t k = 0; k < n; ++k)  // well away from singular
    for (int i = 0; i < std::min(h, w); ++i) a[(size_t(k) * c->obj()) + size_t((i * w + i) * gap)] += T(3);
  T* b = c->b.as<T>();
  for (size_t i = 0; i < size_t(h) * size_t(n); ++i) b[i] = T(u(rng));
  return c;
}

template <class T>
T elem(const Batch& c, const Buf& m, int32_t k, int r, int col) {
  return m.as<T>()[size_t(k) * c.obj() + size_t((r * c.w + col) * c.gap)];
}

// ---- Checks ----------------------------------------------------------------------------------

template <class T>
bool inverseHolds(const Batch& c) {
  const double tol = sizeof(T) == 4 ? 1e-4 : 1e-12;
  for (int32_t k = 0; k < c.n; k += 97)
    for (int i = 0; i < c.h; ++i)
      for (int j = 0; j < c.h; ++j) {
        double s = 0;
        for (int t = 0; t < c.h; ++t) s += double(elem<T>(c, c.a, k, i, t)) * double(elem<T>(c, c.d, k, t, j));
        if (std::fabs(s - (i == j)) > tol) return false;
      }
  return true;
}

template <class T, int N>
bool determinantHolds(const Batch& c) {
  for (int32_t k = 0; k < c.n; k += 97) {
    Eigen::Matrix<double, N, N> m;
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j) m(i, j) = double(elem<T>(c, c.a, k, i, j));
    if (std::fabs(m.determinant() - double(c.d.as<T>()[k])) > (sizeof(T) == 4 ? 1e-3 : 1e-11) * std::fabs(m.determinant()))
      return false;
  }
  return true;
}

template <class T>
bool leastSquaresHolds(const Batch& c) {
  for (int32_t k = 0; k < c.n; k += 97)
    for (int j = 0; j < c.w; ++j) {
      double g = 0;
      for (int i = 0; i < c.h; ++i) {
        double r = -double(c.b.as<T>()[size_t(k) * c.h + i]);
        for (int t = 0; t < c.w; ++t) r += double(elem<T>(c, c.a, k, i, t)) * double(c.x.as<T>()[size_t(k) * c.w + t]);
        g += double(elem<T>(c, c.a, k, i, j)) * r;
      }
      if (std::fabs(g) > (sizeof(T) == 4 ? 1e-3 : 1e-11)) return false;
    }
  return true;
}

// ---- Plain loops: the code a caller writes -----------------------------------------------------

void plainInverse4(const float* a, float* d) {
  float c[16];
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) {
      int r[3], s[3];
      for (int t = 0, u = 0, v = 0; t < 4; ++t) {
        if (t != i) r[u++] = t;
        if (t != j) s[v++] = t;
      }
      auto e = [&](int x, int y) { return a[r[x] * 4 + s[y]]; };
      const float m = e(0, 0) * (e(1, 1) * e(2, 2) - e(1, 2) * e(2, 1)) - e(0, 1) * (e(1, 0) * e(2, 2) - e(1, 2) * e(2, 0)) +
                      e(0, 2) * (e(1, 0) * e(2, 1) - e(1, 1) * e(2, 0));
      c[i * 4 + j] = (i + j) % 2 ? -m : m;
    }
  const float det = a[0] * c[0] + a[1] * c[1] + a[2] * c[2] + a[3] * c[3];
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) d[i * 4 + j] = c[j * 4 + i] / det;
}

template <class T, int N>
T plainDet(const T* a) {
  if constexpr (N == 3)
    return a[0] * (a[4] * a[8] - a[5] * a[7]) - a[1] * (a[3] * a[8] - a[5] * a[6]) + a[2] * (a[3] * a[7] - a[4] * a[6]);
  else {
    const T s0 = a[0] * a[5] - a[4] * a[1], s1 = a[0] * a[6] - a[4] * a[2], s2 = a[0] * a[7] - a[4] * a[3];
    const T s3 = a[1] * a[6] - a[5] * a[2], s4 = a[1] * a[7] - a[5] * a[3], s5 = a[2] * a[7] - a[6] * a[3];
    const T c5 = a[10] * a[15] - a[14] * a[11], c4 = a[9] * a[15] - a[13] * a[11], c3 = a[9] * a[14] - a[13] * a[10];
    const T c2 = a[8] * a[15] - a[12] * a[11], c1 = a[8] * a[14] - a[12] * a[10], c0 = a[8] * a[13] - a[12] * a[9];
    return s0 * c5 - s1 * c4 + s2 * c3 + s3 * c2 - s4 * c1 + s5 * c0;
  }
}

// Householder QR of an H x W row-major matrix in place, then x from b.
template <int H, int W>
void plainLeastSquares(const float* src, const float* b, float* x) {
  float a[H][W], c[H], v[H];
  std::memcpy(a, src, sizeof a);
  std::memcpy(c, b, sizeof c);
  for (int k = 0; k < (W == H ? W - 1 : W); ++k) {
    float n2 = 0;
    for (int i = k; i < H; ++i) n2 += a[i][k] * a[i][k];
    const float n = a[k][k] > 0 ? -std::sqrt(n2) : std::sqrt(n2);
    for (int i = k; i < H; ++i) v[i] = a[i][k];
    v[k] -= n;
    float q = 0;
    for (int i = k; i < H; ++i) q += v[i] * v[i];
    for (int j = k; j < W; ++j) {
      float s = 0;
      for (int i = k; i < H; ++i) s += v[i] * a[i][j];
      s = 2 * s / q;
      for (int i = k; i < H; ++i) a[i][j] -= s * v[i];
    }
    float s = 0;
    for (int i = k; i < H; ++i) s += v[i] * c[i];
    s = 2 * s / q;
    for (int i = k; i < H; ++i) c[i] -= s * v[i];
  }
  for (int i = W - 1; i >= 0; --i) {
    float s = c[i];
    for (int j = i + 1; j < W; ++j) s -= a[i][j] * x[j];
    x[i] = s / a[i][i];
  }
}

// ---- Workloads -------------------------------------------------------------------------------

struct Contender {
  std::string name;
  bool tarn;
  std::function<void(Batch&)> call;
};
struct Workload {
  std::string name;
  double bytesPerObj;
  std::function<std::unique_ptr<Batch>(int32_t)> setup;
  std::function<bool(const Batch&)> check;
  std::vector<Contender> contenders;
};

template <class T>
using RowMat = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

std::vector<Workload> workloads() {
  std::vector<Workload> w;
  // Inverse 4x4 32f: packed and 16-byte aligned (the paired path), and strided (every element
  // followed by a gap of one, the general path).
  for (int gap : {1, 2}) {
    Workload wl{gap == 1 ? "tarnInvert_ma_32f/4x4" : "tarnInvert_ma_32f_strided/4x4", 128,
                [gap](int32_t n) { return makeBatch<float>(4, 4, gap, n); }, inverseHolds<float>, {}};
    wl.contenders.push_back({"tarn", true, [gap](Batch& c) {
                               const int32_t es = 4 * gap;
                               tarnInvert_ma_32f(c.a.as<float>(), 16 * es, 4 * es, es, c.f.as<float>(), c.d.as<float>(),
                                                 16 * es, 4 * es, es, 4, c.n);
                             }});
    wl.contenders.push_back({"plain", false, [gap](Batch& c) {
                               float a[16], d[16];
                               for (int32_t k = 0; k < c.n; ++k) {
                                 for (int e = 0; e < 16; ++e) a[e] = c.a.as<float>()[size_t(k) * 16 * gap + e * gap];
                                 plainInverse4(a, d);
                                 for (int e = 0; e < 16; ++e) c.d.as<float>()[size_t(k) * 16 * gap + e * gap] = d[e];
                               }
                             }});
    wl.contenders.push_back({"eigen", false, [gap](Batch& c) {
                               using S = Eigen::Stride<Eigen::Dynamic, Eigen::Dynamic>;
                               for (int32_t k = 0; k < c.n; ++k) {
                                 const size_t o = size_t(k) * 16 * gap;
                                 if (gap == 1) {
                                   Eigen::Map<Eigen::Matrix4f, Eigen::Aligned16> d(c.d.as<float>() + o);
                                   d = Eigen::Map<const Eigen::Matrix4f, Eigen::Aligned16>(c.a.as<float>() + o).inverse();
                                 } else {  // through a matrix of its own: Eigen's 4x4 inverse stores
                                           // into a strided map as if it were packed
                                   const Eigen::Matrix4f m = Eigen::Map<const Eigen::Matrix4f, 0, S>(c.a.as<float>() + o, S(4 * gap, gap));
                                   const Eigen::Matrix4f inv = m.inverse();
                                   Eigen::Map<Eigen::Matrix4f, 0, S>(c.d.as<float>() + o, S(4 * gap, gap)) = inv;
                                 }
                               }
                             }});
#ifdef TARN_BENCH_LAPACKE
    wl.contenders.push_back({"lapacke", false, [gap](Batch& c) {
                               float m[16], work[64];
                               lapack_int piv[4];
                               for (int32_t k = 0; k < c.n; ++k) {
                                 const size_t o = size_t(k) * 16 * gap;
                                 for (int e = 0; e < 16; ++e) m[e] = c.a.as<float>()[o + e * gap];
                                 LAPACKE_sgetrf_work(LAPACK_COL_MAJOR, 4, 4, m, 4, piv);
                                 LAPACKE_sgetri_work(LAPACK_COL_MAJOR, 4, m, 4, piv, work, 64);
                                 for (int e = 0; e < 16; ++e) c.d.as<float>()[o + e * gap] = m[e];
                               }
                             }});
#endif
    w.push_back(std::move(wl));
  }
  // Determinants: 4x4 32f and 3x3 64f.
  auto det = [&w]<class T, int N>(const char* name, auto tarnCall) {
    Workload wl{std::string(name) + "/" + std::to_string(N) + "x" + std::to_string(N), double((N * N + 1) * sizeof(T)),
                [](int32_t n) { return makeBatch<T>(N, N, 1, n); }, determinantHolds<T, N>, {}};
    wl.contenders.push_back({"tarn", true, [tarnCall](Batch& c) {
                               const int32_t es = sizeof(T);
                               tarnCall(c.a.as<T>(), N * N * es, N * es, es, N, c.f.as<T>(), c.d.as<T>(), c.n);
                             }});
    wl.contenders.push_back({"plain", false, [](Batch& c) {
                               for (int32_t k = 0; k < c.n; ++k) c.d.as<T>()[k] = plainDet<T, N>(c.a.as<T>() + size_t(k) * N * N);
                             }});
    wl.contenders.push_back({"eigen", false, [](Batch& c) {
                               for (int32_t k = 0; k < c.n; ++k)
                                 c.d.as<T>()[k] = Eigen::Map<const Eigen::Matrix<T, N, N>>(c.a.as<T>() + size_t(k) * N * N).determinant();
                             }});
#ifdef TARN_BENCH_LAPACKE
    wl.contenders.push_back({"lapacke", false, [](Batch& c) {
                               T m[N * N];
                               lapack_int piv[N];
                               for (int32_t k = 0; k < c.n; ++k) {
                                 std::memcpy(m, c.a.as<T>() + size_t(k) * N * N, sizeof m);
                                 if constexpr (sizeof(T) == 4) LAPACKE_sgetrf_work(LAPACK_COL_MAJOR, N, N, m, N, piv);
                                 else LAPACKE_dgetrf_work(LAPACK_COL_MAJOR, N, N, m, N, piv);
                                 T d = 1;
                                 for (int i = 0; i < N; ++i) d *= piv[i] != i + 1 ? -m[i * N + i] : m[i * N + i];
                                 c.d.as<T>()[k] = d;
                               }
                             }});
#endif
    w.push_back(std::move(wl));
  };
  det.operator()<float, 4>("tarnDet_ma_32f", tarnDet_ma_32f);
  det.operator()<double, 3>("tarnDet_ma_64f", tarnDet_ma_64f);
  // Least squares: decomposition and solve of each system, 4x4 and 6x3 32f.
  auto qr = [&w]<int H, int W>() {
    Workload wl{"tarnQRDecomp_ma_32f+tarnQRBackSubst_mava_32f/" + std::to_string(H) + "x" + std::to_string(W),
                double(3 * H * W + H + W) * 4, [](int32_t n) { return makeBatch<float>(H, W, 1, n); },
                leastSquaresHolds<float>, {}};
    wl.contenders.push_back({"tarn", true, [](Batch& c) {
                               float buffer[H];
                               tarnQRDecomp_ma_32f(c.a.as<float>(), H * W * 4, W * 4, 4, buffer, c.f.as<float>(), H * W * 4,
                                                   W * 4, 4, W, H, c.n);
                               tarnQRBackSubst_mava_32f(c.f.as<float>(), H * W * 4, W * 4, 4, buffer, c.b.as<float>(), H * 4,
                                                        4, c.x.as<float>(), W * 4, 4, W, H, c.n);
                             }});
    wl.contenders.push_back({"plain", false, [](Batch& c) {
                               for (int32_t k = 0; k < c.n; ++k)
                                 plainLeastSquares<H, W>(c.a.as<float>() + size_t(k) * H * W, c.b.as<float>() + size_t(k) * H,
                                                         c.x.as<float>() + size_t(k) * W);
                             }});
    wl.contenders.push_back({"eigen", false, [](Batch& c) {
                               using M = Eigen::Matrix<float, H, W, W == 1 ? Eigen::ColMajor : Eigen::RowMajor>;
                               for (int32_t k = 0; k < c.n; ++k) {
                                 const Eigen::HouseholderQR<M> q(Eigen::Map<const M>(c.a.as<float>() + size_t(k) * H * W));
                                 Eigen::Map<Eigen::Matrix<float, W, 1>>(c.x.as<float>() + size_t(k) * W) =
                                     q.solve(Eigen::Map<const Eigen::Matrix<float, H, 1>>(c.b.as<float>() + size_t(k) * H));
                               }
                             }});
#ifdef TARN_BENCH_LAPACKE
    wl.contenders.push_back({"lapacke", false, [](Batch& c) {
                               // The row-major H x W matrix is the column-major W x H transpose: sgels with 'T'.
                               float m[H * W], r[H], work[256];
                               for (int32_t k = 0; k < c.n; ++k) {
                                 std::memcpy(m, c.a.as<float>() + size_t(k) * H * W, sizeof m);
                                 std::memcpy(r, c.b.as<float>() + size_t(k) * H, sizeof r);
                                 LAPACKE_sgels_work(LAPACK_COL_MAJOR, 'T', W, H, 1, m, W, r, H, work, 256);
                                 std::memcpy(c.x.as<float>() + size_t(k) * W, r, W * sizeof(float));
                               }
                             }});
#endif
    w.push_back(std::move(wl));
  };
  qr.operator()<4, 4>();
  qr.operator()<6, 3>();
  return w;
}

const std::vector<Workload>& all() {
  static const std::vector<Workload> kAll = workloads();
  return kAll;
}

struct Live {
  const Workload* wl = nullptr;
  std::unique_ptr<Batch> batch;
  std::vector<std::string> verified;
} gLive;

void run(benchmark::State& st, const Workload& wl, const Contender& k, int32_t n, int threads) {
  if (gLive.wl != &wl) {
    gLive.batch = wl.setup(n);
    gLive.wl = &wl;
    gLive.verified.clear();
  }
  Batch& c = *gLive.batch;
  if (std::find(gLive.verified.begin(), gLive.verified.end(), k.name) == gLive.verified.end()) {
    std::memset(c.d.p, 0xff, c.d.bytes);
    std::memset(c.x.p, 0xff, c.x.bytes);
    k.call(c);
    if (!wl.check(c)) {
      st.SkipWithError("result fails its check");
      return;
    }
    gLive.verified.push_back(k.name);
  }
  const int saved = omp_get_max_threads();
  if (k.tarn) omp_set_num_threads(threads);
  tarnbench::timeCalls(st, n, wl.bytesPerObj, [&] { k.call(c); });
  if (k.tarn) omp_set_num_threads(saved);
}

const bool kRegistered = [] {
  constexpr int32_t n = 100000;
  for (const Workload& wl : all())
    for (const Contender& k : wl.contenders)
      for (int t : {1, 2}) {
        if (!k.tarn && t > 1) continue;
        tarnbench::registerBench(wl.name + "/N:" + std::to_string(n) + "/" + k.name + "/T:" + std::to_string(t),
                                 [&wl, &k, t](benchmark::State& st) { run(st, wl, k, n, t); });
      }
  return true;
}();

}  // namespace
