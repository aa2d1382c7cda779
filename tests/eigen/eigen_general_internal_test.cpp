// The general eigenproblems from inside: the lanes that run several matrices at once give the
// bits, statuses and partial results of the one-matrix iteration; and a quasi-triangular form no
// source can produce reaches both ends of the substitution's unsolvable 2 by 2 system.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include "../../src/eigen/eigen_general_vectors.hpp"
#include "../../src/eigen/eigen_values_lanes.hpp"

namespace tarn::geig {
namespace {

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

// Random matrices, with NaN matrices, matrices too large for the absolute test (floats), zero
// and triangular ones among them.
template <class T>
std::vector<T> batch(std::mt19937& rng, int n, int count) {
  std::uniform_real_distribution<double> u(-1, 1);
  std::uniform_int_distribution<int> kind(0, 29);
  std::vector<T> a(size_t(count) * n * n);
  for (int k = 0; k < count; ++k) {
    T* m = a.data() + size_t(k) * n * n;
    const int what = k + 20 < count ? kind(rng) : 29;  // the last ones all succeed
    for (int e = 0; e < n * n; ++e) m[e] = T(u(rng) * (what == 1 ? 1e20 : 1.0));
    if (what == 0) m[n + 1] = T(NAN);
    if (what == 2)
      for (int e = 0; e < n * n; ++e) m[e] = 0;
    if (what == 3)
      for (int i = 0; i < n; ++i)
        for (int j = i + 1; j < n; ++j) m[i * n + j] = 0;
  }
  return a;
}

template <class T, int N>
void compareLanes(unsigned seed) {
  std::mt19937 rng(seed);
  const int count = 257;
  const std::vector<T> a = batch<T>(rng, N, count);
  // Walks that start at every object, so that failures fall at every place of the lanes.
  int failed = 0, passed = 0;
  for (int from = 0; from < count; from += 17) {
    const Src<T> src{a.data() + size_t(from) * N * N, N};
    const int32_t cnt = count - from;
    std::vector<T> re1(size_t(cnt) * N, T(7)), im1 = re1, re2 = re1, im2 = re1;
    tarnStatus s1 = 0;
    for (int32_t k = 0; k < cnt && !s1; ++k) {
      T h[N * N + 2 * N];
      std::memcpy(h, src.obj(k).p, sizeof(T) * N * N);
      const Sq<T, N> H{h, N};
      hessenberg(H, h + N * N, h + N * N + N);
      clearBelow(H);
      s1 = francis<T, Side::Values, N>(H, nullptr, re1.data() + size_t(k) * N, im1.data() + size_t(k) * N);
    }
    ValueLanes<T, N> lanes;
    const tarnStatus s2 = lanes.walk(src, cnt, re2.data(), im2.data());
    EXPECT_EQ(s1, s2) << "order " << N << " from " << from;
    EXPECT_EQ(std::memcmp(re1.data(), re2.data(), re1.size() * sizeof(T)), 0) << "order " << N << " from " << from;
    EXPECT_EQ(std::memcmp(im1.data(), im2.data(), im1.size() * sizeof(T)), 0) << "order " << N << " from " << from;
    (s1 ? failed : passed) += 1;
  }
  EXPECT_GT(failed, 0);
  EXPECT_GT(passed, 0);
}

TEST(GeneralEigenLanes, TheBitsOfTheOneMatrixIteration) {
  compareLanes<float, 3>(1);
  compareLanes<float, 4>(2);
  compareLanes<float, 5>(3);
  compareLanes<float, 6>(4);
  compareLanes<double, 3>(5);
  compareLanes<double, 4>(6);
  compareLanes<double, 6>(7);
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
  return substitute<float, Side::Right, 0, Right>(T, Sq<float, 0>{v.data(), n}, norm.data(), w, w + n, w + 2 * n,
                                                  w + 3 * n);
}

// A 2 by 2 block (1 d; -d 1) with d below eps: every entry of its system for an eigenvalue 1
// lies below smin. A real right-hand side ends quietly, a complex one with
// tarnStatusVectorSolveFailed; with d above eps the same forms solve.
TEST(GeneralEigenSubstitution, UnsolvableBlocksInBothForms) {
  for (float d : {1e-9f, 1e-3f}) {
    const int stop = d < 1e-7f ? kStopQuietly : kVectorsDone;
    const int fail = d < 1e-7f ? int(tarnStatusVectorSolveFailed) : kVectorsDone;
    // Right vectors: the block at rows 1-2, then eigenvalue 1 (real) or the pair 1 +- d i.
    EXPECT_EQ(substituteOn<true>({1, -d, 0, d, 1, 0, 0.5f, 0.25f, 1}, 3), stop) << d;
    EXPECT_EQ(substituteOn<true>({1, -d, 0, 0, d, 1, 0, 0, 0.5f, 0.25f, 1, d, 2, 3, -d, 1}, 4), fail) << d;
    // Left vectors: eigenvalue 1 or the pair first, the block behind it.
    EXPECT_EQ(substituteOn<false>({1, 0, 0, 0.5f, 1, -d, 0.25f, d, 1}, 3), stop) << d;
    EXPECT_EQ(substituteOn<false>({1, -d, 0, 0, d, 1, 0, 0, 0.5f, 0.25f, 1, -d, 2, 3, d, 1}, 4), fail) << d;
  }
}

}  // namespace
}  // namespace tarn::geig
