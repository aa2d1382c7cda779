// The eigenproblems from inside: the lanes that solve several matrices at once, and the fixed
// orders of the symmetric vectors, give each object the status and bits of the plain path, with
// failing and succeeding objects side by side; the double shift is exceptional at iterations 10
// and 20 only; a quasi-triangular form no source can produce reaches both ends of the
// substitution's unsolvable 2 by 2 system.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include "../../src/eigen/eigen_general_vectors.hpp"
#include "../../src/eigen/eigen_sym_lanes.hpp"
#include "../../src/eigen/eigen_values_lanes.hpp"

namespace tarn {
namespace {

using geig::Side;
using geig::Sq;

// Equal bits, or NaN on both sides: which operand's NaN an operation passes on is the compiler's
// choice wherever it may swap the operands of + and *.
template <class T>
bool same(const T* a, const T* b, size_t n) {
  for (size_t i = 0; i < n; ++i)
    if (std::memcmp(&a[i], &b[i], sizeof(T)) != 0 && !(std::isnan(a[i]) && std::isnan(b[i]))) return false;
  return true;
}

// ---- General: lanes, shifts, substitution ------------------------------------------------------

template <class T>
struct Src {  // packed row-major matrices of order n
  const T* p;
  int n;
  struct Obj {
    const T* p;
    int n;
    const T* at(int i, int j) const { return p + i * n + j; }
  };
  Obj obj(int32_t k) const { return {p + size_t(k) * n * n, n}; }
};

// Random matrices with NaN matrices, matrices too large for the absolute test (floats), zero and
// triangular ones among them; the last 20 all succeed.
template <class T, int N>
void generalLanes(unsigned seed) {
  std::mt19937 rng(seed);
  std::uniform_real_distribution<double> u(-1, 1);
  std::uniform_int_distribution<int> kind(0, 29);
  const int count = 257;
  std::vector<T> a(size_t(count) * N * N);
  for (int k = 0; k < count; ++k) {
    T* m = a.data() + size_t(k) * N * N;
    const int what = k + 20 < count ? kind(rng) : 29;
    for (int e = 0; e < N * N; ++e) m[e] = what == 2 ? T(0) : T(u(rng) * (what == 1 ? 1e20 : 1.0));
    if (what == 0) m[N + 1] = T(NAN);
    for (int i = 0; what == 3 && i < N; ++i)
      for (int j = i + 1; j < N; ++j) m[i * N + j] = 0;
  }
  int failed = 0, passed = 0;
  for (int from = 0; from < count; from += 17) {  // failures at every place of the lanes
    const Src<T> src{a.data() + size_t(from) * N * N, N};
    const int32_t cnt = count - from;
    std::vector<T> re1(size_t(cnt) * N, T(7)), im1 = re1, re2 = re1, im2 = re1;
    tarnStatus s1 = 0;
    for (int32_t k = 0; k < cnt && !s1; ++k) {
      T h[N * N + 2 * N];
      std::memcpy(h, src.obj(k).p, sizeof(T) * N * N);
      const Sq<T, N> H{h, N};
      geig::hessenberg(H, h + N * N, h + N * N + N);
      geig::clearBelow(H);
      s1 = geig::francis<T, Side::Values, N>(H, nullptr, re1.data() + size_t(k) * N, im1.data() + size_t(k) * N);
    }
    geig::ValueLanes<T, N> lanes;
    EXPECT_EQ(s1, lanes.walk(src, cnt, re2.data(), im2.data())) << "order " << N << " from " << from;
    EXPECT_TRUE(same(re1.data(), re2.data(), re1.size()) && same(im1.data(), im2.data(), im1.size()))
        << "order " << N << " from " << from;
    (s1 ? failed : passed) += 1;
  }
  EXPECT_GT(failed, 0);
  EXPECT_GT(passed, 0);
}

TEST(GeneralEigenLanes, TheBitsOfTheOneMatrixIteration) {
  (generalLanes<float, 3>(1), generalLanes<float, 4>(2), generalLanes<float, 5>(3), generalLanes<float, 6>(4));
  (generalLanes<double, 3>(5), generalLanes<double, 4>(6), generalLanes<double, 6>(7));
}

// The first column of the shifted product for a sweep from M = L = 1 on a 3 by 3 block: at
// iterations 10 and 20 from s = |h32| + |h21|, h44 = h33 = 0.75 s + h33, h43h34 = -0.4375 s s;
// at every other iteration the ordinary shift.
TEST(GeneralEigenShift, ExceptionalAtTenAndTwentyOnly) {
  double a[9] = {2, 0.5, 0, -1, 3, 0.25, 0.5, 1, -1};  // column-major, 1-based H(r, c)
  const Sq<double, 3> H{a, 3};
  geig::Francis<double, Side::Values, 3> f;
  f.H = H;
  f.I = 3;
  f.L = 1;
  f.its = 0;
  f.start();
  const double ordinary[3] = {f.u1, f.u2, f.u3};
  const double s = std::fabs(H(3, 2)) + std::fabs(H(2, 1)), h44 = 0.75 * s + H(3, 3), h43h34 = -0.4375 * s * s;
  const double hs = h44 - H(1, 1);
  double e[3] = {(hs * hs - h43h34) / H(2, 1) + H(1, 2), ((H(2, 2) - H(1, 1)) - hs) - hs, H(3, 2)};
  const double sum = (std::fabs(e[0]) + std::fabs(e[1])) + std::fabs(e[2]);
  for (double& x : e) x /= sum;
  for (int its = 0; its <= 45; ++its) {
    f.its = its;
    f.start();
    const double* want = its == 10 || its == 20 ? e : ordinary;
    EXPECT_TRUE(f.u1 == want[0] && f.u2 == want[1] && f.u3 == want[2]) << "iteration " << its;
  }
}

// T (column-major, order 4 or 3), Q = I: the substitution of one side alone.
template <bool Right>
int substituteOn(std::vector<float> t, int n) {
  std::vector<float> v(size_t(n) * n, 0.0f), norm(static_cast<size_t>(n)), work(size_t(4) * n);
  for (int i = 0; i < n; ++i) v[size_t(i * n + i)] = 1;
  const Sq<float, 0> T{t.data(), n};
  for (int j = 1; j <= n; ++j) {
    float s = 0;
    for (int k = Right ? 1 : j + 1; k <= (Right ? j - 1 : n); ++k) s += std::fabs(Right ? T(k, j) : T(j, k));
    norm[size_t(j - 1)] = s;
  }
  float* w = work.data();
  return geig::substitute<float, Side::Right, 0, Right>(T, Sq<float, 0>{v.data(), n}, norm.data(), w, w + n,
                                                        w + 2 * n, w + 3 * n);
}

// A 2 by 2 block (1 d; -d 1) with d below eps: every entry of its system for an eigenvalue 1
// lies below smin. A real right-hand side ends quietly, a complex one with
// tarnStatusVectorSolveFailed; with d above eps the same forms solve.
TEST(GeneralEigenSubstitution, UnsolvableBlocksInBothForms) {
  for (float d : {1e-9f, 1e-3f}) {
    const int stop = d < 1e-7f ? geig::kStopQuietly : geig::kVectorsDone;
    const int fail = d < 1e-7f ? int(tarnStatusVectorSolveFailed) : geig::kVectorsDone;
    // Right vectors: the block at rows 1-2, then eigenvalue 1 (real) or the pair 1 +- d i.
    EXPECT_EQ(substituteOn<true>({1, -d, 0, d, 1, 0, 0.5f, 0.25f, 1}, 3), stop) << d;
    EXPECT_EQ(substituteOn<true>({1, -d, 0, 0, d, 1, 0, 0, 0.5f, 0.25f, 1, d, 2, 3, -d, 1}, 4), fail) << d;
    // Left vectors: eigenvalue 1 or the pair first, the block behind it.
    EXPECT_EQ(substituteOn<false>({1, 0, 0, 0.5f, 1, -d, 0.25f, d, 1}, 3), stop) << d;
    EXPECT_EQ(substituteOn<false>({1, -d, 0, 0, d, 1, 0, 0, 0.5f, 0.25f, 1, -d, 2, 3, d, 1}, 4), fail) << d;
  }
}

// ---- Symmetric: lanes and fixed orders ---------------------------------------------------------

// Dense; small integers (ties, singular products); sparse; scaled far up or down; tridiagonal
// with off-diagonal elements around 2 eps; diagonal with equal ends (the sweep's direction); now
// and then a NaN (no convergence).
template <class T>
std::vector<T> symmetric(std::mt19937& rng, int n, int kind) {
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  std::uniform_int_distribution<int> small(-3, 3), coin(0, 1), scale(-30, 30), pick(0, 199);
  const double eps = sizeof(T) == 4 ? 0x1p-23 : 0x1p-52, f = kind == 3 ? std::ldexp(1.0, scale(rng)) : 1.0;
  std::vector<T> a(size_t(n * n));
  for (int r = 0; r < n; ++r)
    for (int c = r; c < n; ++c) {
      double v = kind == 1 ? small(rng) : u(rng) * f;
      if (kind == 2 && r != c && coin(rng)) v = 0;
      if (kind == 4 && c > r && c == r + 1) {
        const int up = coin(rng);  // one draw per statement, so every compiler draws alike
        v = eps * (1 + up) * (1 + small(rng) * 0x1p-10);
      } else if (kind == 4 && c > r) {
        v = 0;
      }
      if (kind == 5) v = r != c ? 0 : (r == 0 || r == n - 1) ? 0.5 : u(rng);
      a[size_t(r * n + c)] = a[size_t(c * n + r)] = T(v);
    }
  if (pick(rng) == 0) a[1] = a[size_t(n)] = T(NAN);
  return a;
}

template <class T, int N>
void symLanes() {
  using Lanes = eigsym::ValuesLanes<T, N, 2>;
  constexpr int W = Lanes::W;
  std::mt19937 rng(N * 10 + int(sizeof(T)));
  int failed[2] = {0, 0}, mixed = 0;
  for (int batch = 0; batch < 6000 / W; ++batch) {
    std::vector<std::vector<T>> mats;
    alignas(16) T in[N * N * W], out[N * W];
    for (int o = 0; o < W; ++o) {
      mats.push_back(symmetric<T>(rng, N, (batch + o) % 6));
      for (int e = 0; e < N * N; ++e) in[e * W + o] = mats.back()[size_t(e)];
    }
    const int fails = Lanes::solve(in, out);
    mixed += fails != 0 && fails != (1 << W) - 1;
    for (int o = 0; o < W; ++o) {
      T scratch[N * N], dst[N], lane[N];
      const StridedObj<const T, true> src{mats[size_t(o)].data(), int32_t(N * sizeof(T)), int32_t(sizeof(T))};
      const tarnStatus st = eigsym::valuesOne(src, scratch, dst, N);
      ASSERT_EQ(st != 0, (fails >> o & 1) != 0) << "order " << N << " batch " << batch << " lane " << o;
      for (int j = 0; j < N; ++j) lane[j] = out[j * W + o];
      ASSERT_TRUE(st != 0 || same(lane, dst, N)) << "order " << N << " batch " << batch << " lane " << o;
      if (st) ++failed[st == tarnStatusSingular ? 0 : 1];
    }
  }
  EXPECT_GT(failed[0], 10);
  EXPECT_GT(failed[1], 10);
  EXPECT_GT(mixed, 10);
}

TEST(EigenSymLanes, EveryLaneMatchesThePlainPath) {
  (symLanes<float, 3>(), symLanes<float, 4>(), symLanes<float, 5>(), symLanes<float, 6>());
  (symLanes<double, 3>(), symLanes<double, 4>(), symLanes<double, 5>(), symLanes<double, 6>());
}

// Orders 3 to 6 with vectors, in storage of their own size, leave values and vectors (and what
// the caller left there, on failure) as the plain path in scratch does.
template <class Pr, int N>
void fixedVectors() {
  using T = typename Pr::T;
  std::mt19937 rng(N * 7 + int(sizeof(T)) + Pr::kShiftAtZero);
  int failures = 0;
  for (int k = 0; k < 600; ++k) {
    const std::vector<T> a = symmetric<T>(rng, N, k % 6);
    const StridedObj<const T, true> src{a.data(), int32_t(N * sizeof(T)), int32_t(sizeof(T))};
    T scratch[N * N], v1[N], v2[N], z1[N * N], z2[N * N];
    for (int i = 0; i < N; ++i) v1[i] = v2[i] = T(-7);
    for (int i = 0; i < N * N; ++i) z1[i] = z2[i] = T(-9);
    const StridedObj<T, true> zv1{z1, int32_t(N * sizeof(T)), int32_t(sizeof(T))}, zv2{z2, int32_t(N * sizeof(T)), int32_t(sizeof(T))};
    const tarnStatus plain = eigsym::vectorsOne<Pr>(src, scratch, v1, zv1, N);
    failures += plain != 0;
    ASSERT_EQ(plain, (eigsym::vectorsFixed<Pr, N>(src, v2, zv2))) << "order " << N << " matrix " << k;
    ASSERT_TRUE(same(v1, v2, N) && same(z1, z2, N * N)) << "order " << N << " matrix " << k;
  }
  EXPECT_GT(failures, 0);
}

template <class Pr>
void fixedVectorsAllOrders() {
  (fixedVectors<Pr, 3>(), fixedVectors<Pr, 4>(), fixedVectors<Pr, 5>(), fixedVectors<Pr, 6>());
}

TEST(EigenSymVectors, FixedOrdersMatchThePlainPath) {
  fixedVectorsAllOrders<eigsym::Vectors64>();
  fixedVectorsAllOrders<eigsym::VectorsOne32<false>>();
  fixedVectorsAllOrders<eigsym::VectorsOne32<true>>();
  fixedVectorsAllOrders<eigsym::VectorsArr32>();
}

}  // namespace
}  // namespace tarn
