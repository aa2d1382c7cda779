// CholeskyDecomp and CholeskyBackSubst against the plain models of tests/ref/factor_ref.hpp:
// every member, orders 1 to 8, every placement, results on their sources; pivots that cancel to
// exactly zero or to a tiny positive value, negative and NaN pivots, upper triangles of NaNs
// that must never be read; failing objects across thread slices; objects that overlap.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "ref/factor_ref.hpp"
#include "solve.hpp"

namespace tt {
namespace {

enum class Kind { Spd, Tiny, NaNPivot, Denormal, Last = Denormal, Cancels, Negative };

// A lower triangle (upper triangle NaN, never to be read) of the given kind; the probes sit on
// a random row k.
std::vector<double> cholObject(Kind kind, int n, int esize, std::mt19937& rng) {
  std::vector<double> a(size_t(n * n), std::nan(""));
  auto at = [&](int r, int c) -> double& { return a[size_t(r * n + c)]; };
  std::uniform_real_distribution<double> u(-0.5, 0.5);
  const int k = std::uniform_int_distribution<int>(0, n - 1)(rng);
  if (kind == Kind::Spd) {
    std::vector<double> l(size_t(n * n), 0.0);  // A = L L^T, L diagonally dominant
    for (int r = 0; r < n; ++r)
      for (int c = 0; c <= r; ++c) l[size_t(r * n + c)] = r == c ? 1.5 + u(rng) : u(rng);
    for (int r = 0; r < n; ++r)
      for (int c = 0; c <= r; ++c) {
        double s = 0;
        for (int j = 0; j <= c; ++j) s += l[size_t(r * n + j)] * l[size_t(c * n + j)];
        at(r, c) = esize == 4 ? double(float(s)) : s;
      }
    return a;
  }
  for (int r = 0; r < n; ++r)
    for (int c = 0; c <= r; ++c) at(r, c) = r == c ? 1.0 : 0.0;
  // Row k-1 is a unit row, so L(k, k-1) = 1 * (1/sqrt(1)) as the member computes it, and the
  // pivot of row k is src(k, k) - L(k, k-1)^2: exactly 0 for Cancels, one ulp for Tiny.
  const double r = esize == 4 ? double(ref::invSqrt(1.0f)) : ref::invSqrt(1.0);
  const double rr = esize == 4 ? double(float(r) * float(r)) : r * r;
  const double up = esize == 4 ? double(std::nextafter(float(rr), 2.0f)) : std::nextafter(rr, 2.0);
  switch (kind) {
    case Kind::Tiny:
    case Kind::Cancels:
      if (k == 0) {
        at(0, 0) = kind == Kind::Tiny ? (esize == 4 ? 0x1p-23 : 0x1p-52) : 0.0;
        break;
      }
      at(k, k - 1) = 1.0;
      at(k, k) = kind == Kind::Tiny ? up : rr;
      break;
    case Kind::NaNPivot: at(k, k) = std::nan(""); break;
    case Kind::Denormal: at(k, k) = esize == 4 ? 1e-40 : 1e-310; break;
    case Kind::Negative: at(k, k) = -std::fabs(randomValue(rng, esize)); break;
    default: break;
  }
  return a;
}

// Lower triangles of random kinds, failing ones for the objects in `fail`; dst's upper triangle
// must keep what it holds.
std::string runChol(const MemberFn& m, int n, int count, const Style& st, int threads, bool parallel, bool inPlace,
                    const std::vector<int>& fail, unsigned seed) {
  SolveCall c{&m, [&](int b) { return orderExtent(m, b, n); }, count, &st, threads, parallel, inPlace ? 0 : -1};
  c.order = n;
  c.seed = seed;
  c.fill = [&](CallFixture& fx, std::mt19937& rng) {
    std::uniform_int_distribution<int> kind(0, int(Kind::Last)), bad{int(Kind::Cancels), int(Kind::Negative)};
    for (int k = 0; k < (fx.isArray(0) ? fx.count() : 1); ++k) {
      const bool f = std::find(fail.begin(), fail.end(), k) != fail.end();
      const auto a = cholObject(Kind(f ? bad(rng) : kind(rng)), n, fx.esize(), rng);
      for (int i = 0; i < n * n; ++i) fx.block(0).set(k, i / n, i % n, a[size_t(i)]);
    }
    fx.block(1).fillRandom(rng, false);
  };
  return runSolve(c, [n]<class T>(Images<T>& im) { return ref::cholDecomp<T>(im.e[0], im.e[1], n); });
}

TEST(CholeskyDecomp, EveryMemberOrderAndPlacement) {
  unsigned seed = 1;
  for (const MemberFn* m : membersOf("CholeskyDecomp"))
    for (int n = 1; n <= 8; ++n)
      for (const Style& st : styles()) {
        const int count = m->hasCount ? 11 : 1;
        seed += 2;
        EXPECT_EQ(runChol(*m, n, count, st, 1, false, false, {}, seed), "");
        EXPECT_EQ(runChol(*m, n, count, st, 1, false, seed % 3 == 0, {int(seed % unsigned(count))}, seed + 1), "");
      }
}

TEST(CholeskyDecomp, FailingObjectsAcrossThreadSlices) {
  for (const MemberFn* m : membersOf("CholeskyDecomp")) {
    if (!m->hasCount) continue;
    for (int n : {2, 4}) {
      const int count = 8000 / (n * n) + 3;  // past every limit of the family (7501 at most)
      for (int threads = 1; threads <= 4; ++threads) {
        const int q = count / threads, r = count % threads;
        for (std::vector<int> fail : {std::vector<int>{0, count - 1}, {q + (r > 0) - 1}, {q + (r > 0), count / 2}})
          EXPECT_EQ(runChol(*m, n, count, style("packed"), threads, true, false, fail, unsigned(count + threads)), "");
      }
    }
  }
}

// The factor (its upper triangle NaN, never to be read), b and x.
std::function<void(CallFixture&, std::mt19937&)> backFill(int n) {
  return [n](CallFixture& fx, std::mt19937& rng) {
    fx.block(0).fillRandom(rng, false);
    for (int k = 0; k < (fx.isArray(0) ? fx.count() : 1); ++k)
      for (int r = 0; r < n; ++r)
        for (int c = r + 1; c < n; ++c) fx.block(0).set(k, r, c, std::nan(""));
    fx.block(1).fillRandom(rng, true);
    fx.block(2).fillRandom(rng, false);
  };
}

// Past the limit on every thread count too.
TEST(CholeskyBackSubst, EveryMemberOrderAndPlacement) {
  unsigned seed = 100;
  for (const MemberFn* m : membersOf("CholeskyBackSubst")) {
    auto run = [&](int n, const Style& st, int count, int threads, bool inPlace) {
      SolveCall c{m, [&](int b) { return orderExtent(*m, b, n); }, count, &st, threads, threads > 1, inPlace ? 1 : -1};
      c.order = n;
      c.seed = seed++;
      c.fill = backFill(n);
      return runSolve(c, [n]<class T>(Images<T>& im) -> tarnStatus {
        ref::cholSolve<T>(im.e[0], im.e[1], im.e[2], n);
        return tarnStatusOk;
      });
    };
    for (int n = 1; n <= 8; ++n)
      for (const Style& st : styles())
        for (bool inPlace : {false, true}) EXPECT_EQ(run(n, st, m->hasCount ? 11 : 1, 1, inPlace), "");
    for (int threads = 2; threads <= 4 && m->hasCount; ++threads)
      EXPECT_EQ(run(4, style("packed"), 700, threads, false), "");
  }
}

// Right-hand sides one element apart, each solved onto itself: every system must see the
// elements its predecessors wrote, as one system after the other does.
TEST(CholeskyBackSubst, OverlappingVectorsOnTheirSource) {
  constexpr int n = 4, count = 13;
  std::mt19937 rng(9);
  std::vector<double> f(size_t(count * n * n)), v(size_t(count + n - 1));
  for (auto& x : f) x = randomValue(rng, 8);
  for (auto& x : v) x = randomValue(rng, 8);
  std::vector<double> model = v;
  for (int k = 0; k < count; ++k)
    ref::cholSolve<double>(&f[size_t(k * n * n)], &model[size_t(k)], &model[size_t(k)], n);
  ASSERT_EQ(tarnCholeskyBackSubst_mava_64f(f.data(), n * n * 8, n * 8, 8, v.data(), 8, 8, v.data(), 8, 8, n, count), 0);
  for (size_t i = 0; i < v.size(); ++i) EXPECT_TRUE(sameValue(bitsOf(v[i], 8), bitsOf(model[i], 8), 8)) << i;
}

}  // namespace
}  // namespace tt
