// White box: the lanes that solve several symmetric matrices at once give, object by object,
// the status and the bits of the plain path, on matrices chosen to reach every branch of the
// sweeps (both directions, splits inside a rotation loop, skipped updates, sweep limits, NaN,
// singular products), with failing and succeeding objects side by side in one register. The
// vectors of orders 3 to 6, computed in storage of their own size, leave values and vectors as
// the plain path in scratch does, failing objects included.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>

#include "ref/eigen_sym_ref.hpp"
#include "../../src/eigen/eigen_sym_lanes.hpp"

namespace {

using namespace tarn;

// Kinds of matrices: dense; small integers; sparse; scaled far up or down; tridiagonal with
// off-diagonal elements around 2*eps; diagonal with equal ends; one NaN now and then.
template <class T>
std::vector<T> matrix(std::mt19937& rng, int n, int kind) {
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  std::uniform_int_distribution<int> small(-3, 3), coin(0, 1), scale(-30, 30), pick(0, 199);
  const double eps = sizeof(T) == 4 ? 0x1p-23 : 0x1p-52, f = kind == 3 ? std::ldexp(1.0, scale(rng)) : 1.0;
  std::vector<T> a(size_t(n * n));
  for (int r = 0; r < n; ++r)
    for (int c = r; c < n; ++c) {
      double v = kind == 1 ? small(rng) : u(rng) * f;
      if (kind == 2 && r != c && coin(rng)) v = 0;
      if (kind == 4 && c > r) v = c == r + 1 ? eps * (1 + coin(rng)) * (1 + small(rng) * 0x1p-10) : 0;
      if (kind == 5) v = r != c ? 0 : (r == 0 || r == n - 1) ? 0.5 : u(rng);
      a[size_t(r * n + c)] = a[size_t(c * n + r)] = T(v);
    }
  if (pick(rng) == 0) a[1] = a[size_t(n)] = T(std::numeric_limits<double>::quiet_NaN());
  return a;
}

template <class T, int N>
void lanesMatchPlain() {
  using Lanes = eigsym::ValuesLanes<T, N, 2>;
  constexpr int W = Lanes::W;
  std::mt19937 rng(N * 10 + int(sizeof(T)));
  int up = 0, down = 0, splits = 0, tSkips = 0, failed[2] = {0, 0}, mixed = 0;
  for (int batch = 0; batch < 6000 / W; ++batch) {
    std::vector<std::vector<T>> mats;
    alignas(16) T in[N * N * W], out[N * W];
    for (int o = 0; o < W; ++o) {
      mats.push_back(matrix<T>(rng, N, (batch + o) % 6));
      for (int e = 0; e < N * N; ++e) in[e * W + o] = mats.back()[size_t(e)];
    }
    const int fails = Lanes::solve(in, out);
    mixed += fails != 0 && fails != (1 << W) - 1;
    for (int o = 0; o < W; ++o) {
      T scratch[N * N], dst[N];
      const StridedObj<const T, true> src{mats[size_t(o)].data(), int32_t(N * sizeof(T)), int32_t(sizeof(T))};
      const tarnStatus st = eigsym::valuesOne(src, scratch, dst, N);
      ASSERT_EQ(st != 0, (fails >> o & 1) != 0) << "order " << N << " batch " << batch << " lane " << o << " status " << st;
      if (st == 0) {
        for (int j = 0; j < N; ++j)
          ASSERT_EQ(std::memcmp(&out[j * W + o], &dst[j], sizeof(T)), 0)
              << "order " << N << " batch " << batch << " lane " << o << " value " << j << ": " << out[j * W + o]
              << " plain " << dst[j];
      }
      // What the model says the matrix went through.
      std::vector<T> val(static_cast<size_t>(N)), z;
      typename tt::eigref::Model<tt::eigref::ValuesArith<T>>::Events ev;
      const tarnStatus ms = tt::eigref::solve<tt::eigref::ValuesArith<T>>(mats[size_t(o)], N, val, z, &ev);
      ASSERT_EQ(ms, st);
      (ev.up ? up : down) += 1;
      splits += ev.splits > 0;
      tSkips += ev.tSkips > 0;
      if (st) ++failed[st == tarnStatusSingular ? 0 : 1];
    }
  }
  EXPECT_GT(up, 100);
  EXPECT_GT(down, 100);
  EXPECT_GT(tSkips, 2);
  EXPECT_GT(failed[0], 10);
  EXPECT_GT(failed[1], 10);
  EXPECT_GT(mixed, 10);
  EXPECT_GT(splits, 0) << "order " << N;
}

TEST(EigenSymLanes, EveryLaneMatchesThePlainPath) {
  lanesMatchPlain<float, 3>();
  lanesMatchPlain<float, 4>();
  lanesMatchPlain<float, 5>();
  lanesMatchPlain<float, 6>();
  lanesMatchPlain<double, 3>();
  lanesMatchPlain<double, 4>();
  lanesMatchPlain<double, 5>();
  lanesMatchPlain<double, 6>();
}

// Equal bits, or NaN on both sides: which operand's NaN an operation passes on, and with it the
// sign, is the compiler's choice wherever it may swap the operands of + and *.
template <class T>
bool sameElements(const T* a, const T* b, int n) {
  for (int i = 0; i < n; ++i)
    if (std::memcmp(&a[i], &b[i], sizeof(T)) != 0 && !(std::isnan(a[i]) && std::isnan(b[i]))) return false;
  return true;
}

template <class Pr, int N>
void fixedVectorsMatchPlain() {
  using T = typename Pr::T;
  std::mt19937 rng(N * 7 + int(sizeof(T)) + Pr::kShiftAtZero);
  int failures = 0;
  for (int k = 0; k < 600; ++k) {
    const std::vector<T> a = matrix<T>(rng, N, k % 6);
    const StridedObj<const T, true> src{a.data(), int32_t(N * sizeof(T)), int32_t(sizeof(T))};
    T scratch[N * N], v1[N], v2[N], z1[N * N], z2[N * N];
    for (int i = 0; i < N; ++i) v1[i] = v2[i] = T(-7);  // what the caller left there
    for (int i = 0; i < N * N; ++i) z1[i] = z2[i] = T(-9);
    const StridedObj<T, true> zv1{z1, int32_t(N * sizeof(T)), int32_t(sizeof(T))}, zv2{z2, int32_t(N * sizeof(T)), int32_t(sizeof(T))};
    const tarnStatus plain = eigsym::vectorsOne<Pr>(src, scratch, v1, zv1, N);
    const tarnStatus fixed = eigsym::vectorsFixed<Pr, N>(src, v2, zv2);
    failures += plain != 0;
    ASSERT_EQ(plain, fixed) << "order " << N << " matrix " << k;
    ASSERT_TRUE(sameElements(v1, v2, N)) << "order " << N << " matrix " << k;
    ASSERT_TRUE(sameElements(z1, z2, N * N)) << "order " << N << " matrix " << k;
  }
  EXPECT_GT(failures, 0);
}

template <class Pr>
void fixedVectorsAllOrders() {
  fixedVectorsMatchPlain<Pr, 3>();
  fixedVectorsMatchPlain<Pr, 4>();
  fixedVectorsMatchPlain<Pr, 5>();
  fixedVectorsMatchPlain<Pr, 6>();
}

TEST(EigenSymVectors, FixedOrdersMatchThePlainPath) {
  fixedVectorsAllOrders<eigsym::Vectors64>();
  fixedVectorsAllOrders<eigsym::VectorsOne32<false>>();
  fixedVectorsAllOrders<eigsym::VectorsOne32<true>>();
  fixedVectorsAllOrders<eigsym::VectorsArr32>();
}

}  // namespace
