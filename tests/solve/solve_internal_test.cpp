// White box: the bodies that run several objects in the lanes of one register against the plain
// bodies that run one object at a time, on many random objects with exceptional values (NaN,
// infinities, zeros, denormals): the same failing objects and, where an object succeeds, the
// same bits. And the lane-by-lane estimate of the reciprocal square root is rsqrtss's own.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "../../src/solve/cholesky_lanes.hpp"
#include "../../src/solve/lu_lanes.hpp"
#include "operand.hpp"
#include "factor.hpp"

namespace {

using namespace tarn;

template <class T>
T draw(std::mt19937& rng) {
  const int k = std::uniform_int_distribution<int>(0, 39)(rng);
  switch (k) {
    case 0: return std::numeric_limits<T>::quiet_NaN();
    case 1: return -std::numeric_limits<T>::infinity();
    case 2: return T(0);
    case 3: return std::numeric_limits<T>::denorm_min() * T(3);
    default: return T(tt::randomValue(rng, int(sizeof(T))));
  }
}

// Object l of a group of packed N x N (Rows = N) or N-element (Rows = 1) objects.
template <class T, int Rows, int N>
struct Group {
  static constexpr int G = solve::kGroup<T>;
  std::vector<T> v = std::vector<T>(size_t(G) * Rows * N);
  StridedObj<T, true> obj(int l) { return {v.data() + l * Rows * N, int32_t(N * sizeof(T)), int32_t(sizeof(T))}; }
  void fill(std::mt19937& rng) {
    for (auto& x : v) x = draw<T>(rng);
  }
};

template <class T>
T laneOf(simd::Vec<T> v, int l) {
  alignas(16) T s[solve::kGroup<T>];
  simd::storeLanes(s, v);
  return s[l];
}
template <class T>
bool flagged(simd::Vec<T> mask, int l) {
  const T v = laneOf<T>(mask, l);
  const T zero = T(0);
  return std::memcmp(&v, &zero, sizeof(T)) != 0;
}
template <class T>
bool same(T a, T b) {
  return std::memcmp(&a, &b, sizeof(T)) == 0 || (std::isnan(a) && std::isnan(b));
}

template <class T, int N>
void luOrder(std::mt19937& rng, int groups) {
  constexpr int G = solve::kGroup<T>;
  for (int g = 0; g < groups; ++g) {
    Group<T, N, N> a, d;
    Group<T, 1, N> b, x;
    a.fill(rng);
    b.fill(rng);
    if (g < 2 * N)  // unit matrices with one pivot on the limit (which passes) or just below it
      for (int l = 0; l < G; ++l)
        for (int r = 0; r < N; ++r)
          for (int c = 0; c < N; ++c) {
            const T lim = lu::Limits<T>::kExpanded;
            *a.obj(l).at(r, c) = r != c ? T(0) : r != g % N ? T(1) : (g + l) % 2 ? lim : std::nextafter(lim, T(0));
          }
    StridedObj<T, true> av[G], bv[G];
    for (int l = 0; l < G; ++l) av[l] = a.obj(l), bv[l] = b.obj(l);
    lu::FactorLanes<T, N> f;
    f.load(av);
    f.run();
    // The factor of the group, then one right-hand side per object solved in lanes.
    simd::Vec<T> y[N];
    int32_t rows[N][G], p[G][N];
    for (int l = 0; l < G; ++l)
      for (int k = 0; k < N; ++k) rows[k][l] = int32_t(laneOf<T>(f.piv[k], l));
    for (int k = 0; k < N; ++k) y[k] = solve::gatherCols<T>(bv, rows[k]);
    lu::solveLanes<T, N, false>(f.a, nullptr, y);
    for (int l = 0; l < G; ++l) {
      const tarnStatus st = lu::factorExpanded<T, N>(a.obj(l), d.obj(l), p[l]);
      ASSERT_EQ(st != 0, flagged<T>(f.fail, l)) << N;
      if (st) continue;
      lu::Factor<T, N> fo;
      fo.load(d.obj(l), p[l]);
      lu::solveExpanded<T, N, false>(fo, nullptr, b.obj(l), x.obj(l));
      for (int k = 0; k < N; ++k) {
        ASSERT_EQ(p[l][k], rows[k][l]);
        ASSERT_TRUE(same(*x.obj(l).at(0, k), laneOf<T>(y[k], l))) << "solve, order " << N;
        for (int c = 0; c < N; ++c) ASSERT_TRUE(same(*d.obj(l).at(p[l][k], c), laneOf<T>(f.a[k][c], l))) << N;
      }
    }
  }
}

template <class T, int N>
void cholOrder(std::mt19937& rng, int groups) {
  constexpr int G = solve::kGroup<T>;
  for (int g = 0; g < groups; ++g) {
    Group<T, N, N> a, d;
    Group<T, 1, N> b, x;
    a.fill(rng);
    b.fill(rng);
    for (auto& v : a.v) v = std::fabs(v) + (g % 2 ? T(0) : T(N));  // half of them mostly succeed
    StridedObj<T, true> av[G], bv[G];
    for (int l = 0; l < G; ++l) av[l] = a.obj(l), bv[l] = b.obj(l);
    chol::FactorLanes<T, N> f;
    f.load(av);
    f.run();
    simd::Vec<T> y[N];
    for (int k = 0; k < N; ++k) y[k] = solve::gather<T>(bv, 0, k);
    chol::solveLanes<T, N>(f.a, y);
    for (int l = 0; l < G; ++l) {
      const tarnStatus st = chol::factorExpanded<T, N>(a.obj(l), d.obj(l));
      ASSERT_EQ(st != 0, flagged<T>(f.fail, l)) << N;
      if (st) continue;
      chol::Factor<T, N> fo;
      fo.load(d.obj(l));
      chol::solveExpanded<T, N>(fo, b.obj(l), x.obj(l));
      for (int i = 0; i < N; ++i) {
        ASSERT_TRUE(same(*x.obj(l).at(0, i), laneOf<T>(y[i], l))) << "solve, order " << N;
        for (int j = 0; j <= i; ++j) ASSERT_TRUE(same(*d.obj(l).at(i, j), laneOf<T>(f.a[chol::tri(i, j)], l))) << N;
      }
    }
  }
}

TEST(SolveLanes, LUMatchesThePlainBodies) {
  std::mt19937 rng(11);
  luOrder<float, 3>(rng, 3000);
  luOrder<float, 4>(rng, 2000);
  luOrder<float, 5>(rng, 1000);
  luOrder<float, 6>(rng, 1000);
  luOrder<double, 3>(rng, 3000);
  luOrder<double, 6>(rng, 1000);
}

TEST(SolveLanes, CholeskyMatchesThePlainBodies) {
  std::mt19937 rng(12);
  cholOrder<float, 3>(rng, 3000);
  cholOrder<float, 4>(rng, 2000);
  cholOrder<float, 5>(rng, 1000);
  cholOrder<float, 6>(rng, 1000);
  cholOrder<double, 3>(rng, 3000);
  cholOrder<double, 6>(rng, 1000);
}

// Floats of both exponent parities, the smallest and largest exponents and denormals, with
// every pattern of the top 16 mantissa bits, in every lane position.
TEST(SolveLanes, RsqrtLaneByLaneIsTheScalarEstimate) {
  for (uint32_t e : {126u, 127u, 1u, 0u, 254u})
    for (uint32_t m = 0; m < (1u << 16); m += 4) {
      alignas(16) float in[4], out[4];
      for (int l = 0; l < 4; ++l) {
        const uint32_t bits = (e << 23) | ((m + uint32_t(l)) << 7) | uint32_t(l * 37);
        std::memcpy(&in[l], &bits, 4);
      }
      _mm_store_ps(out, simd::rsqrtEachLane(_mm_load_ps(in)));
      for (int l = 0; l < 4; ++l) ASSERT_TRUE(same(out[l], simd::rsqrtScalar(in[l]))) << in[l];
    }
}

}  // namespace
