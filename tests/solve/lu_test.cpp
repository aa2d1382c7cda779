// LUDecomp and LUBackSubst against the plain models of tests/ref/factor_ref.hpp: every member,
// orders 1 to 8, every placement, results on their sources; batches whose pivot searches meet
// exchanges, ties, NaNs and pivots at and around both thresholds; failing objects at the start,
// middle and end of a batch and of each thread's slice.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "ref/factor_ref.hpp"
#include "solve.hpp"

namespace tt {
namespace {

// Objects whose factorisation succeeds, then the ones that fail.
enum class Kind { Random, Ties, NaNFirst, NaNLater, AtLimit, Last = AtLimit, BelowLimit, Zero };

// The pivot of a diagonal probe: on the limit where the test passes there, just past it where
// it fails. The expanded orders fail strictly below 2^-125 (2^-1021), the loop at or below
// 2^-23 (2^-52).
double probe(bool pass, int n, int esize) {
  const double inf = std::numeric_limits<double>::infinity();
  if (esize == 4) {
    const float e = 0x1p-125f, l = 0x1p-23f;
    return ref::dedicated(n) ? (pass ? e : std::nextafter(e, 0.0f)) : (pass ? std::nextafter(l, float(inf)) : l);
  }
  const double e = 0x1p-1021, l = 0x1p-52;
  return ref::dedicated(n) ? (pass ? e : std::nextafter(e, 0.0)) : (pass ? std::nextafter(l, inf) : l);
}

std::vector<double> luObject(Kind kind, int n, int esize, std::mt19937& rng) {
  std::vector<double> a(size_t(n * n));
  auto at = [&](int r, int c) -> double& { return a[size_t(r * n + c)]; };
  std::uniform_int_distribution<int> pick(0, n - 1), sign(0, 1);
  for (auto& v : a) v = randomValue(rng, esize);
  switch (kind) {
    case Kind::Random: break;
    case Kind::Ties:
      // Stage 0 brings the last row up (2 against +-1); stage 1 then meets equal magnitudes
      // everywhere, and the earliest in the current order is row 1, not row 0 (now last).
      if (n < 2) break;
      for (int i = 0; i < n; ++i) at(i, 0) = i == n - 1 ? 2.0 : sign(rng) ? 1.0 : -1.0;
      if (n < 3) break;
      at(n - 1, 1) = 2.0;
      for (int i = 0; i < n - 1; ++i) at(i, 1) = (sign(rng) ? 1.0 : -1.0) + at(i, 0);  // +-1 after stage 0
      break;
    case Kind::NaNFirst: at(0, 0) = std::nan(""); break;
    case Kind::NaNLater: at(n - 1, 0) = std::nan(""); break;
    case Kind::AtLimit:
    case Kind::BelowLimit:
    case Kind::Zero: {
      const int k = pick(rng);
      for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) at(r, c) = kind == Kind::Zero ? 0.0 : r == c ? 1.0 : 0.0;
      if (kind != Kind::Zero) at(k, k) = probe(kind == Kind::AtLimit, n, esize) * (sign(rng) ? 1 : -1);
      // A failing stage before the last exchanges first: a larger candidate, still too small,
      // one row down, so pivot shows whether the exchange came before the test.
      if (kind == Kind::BelowLimit && k + 1 < n) {
        at(k + 1, k) = at(k, k);
        at(k, k) *= 0.5;
      }
      break;
    }
  }
  return a;
}

// Matrices of random kinds, failing ones for the objects in `fail`; dst holds values the call must
// overwrite or keep.
std::string runLU(const MemberFn& m, int n, int count, const Style& st, int threads, bool parallel, bool inPlace,
                  const std::vector<int>& fail, unsigned seed) {
  SolveCall c{&m, [&](int b) { return orderExtent(m, b, n); }, count, &st, threads, parallel, inPlace ? 0 : -1};
  c.order = n;
  c.seed = seed;
  c.fill = [&](CallFixture& fx, std::mt19937& rng) {
    std::uniform_int_distribution<int> kind(0, int(Kind::Last)), bad{int(Kind::BelowLimit), int(Kind::Zero)};
    for (int k = 0; k < (fx.isArray(0) ? fx.count() : 1); ++k) {
      const bool f = std::find(fail.begin(), fail.end(), k) != fail.end();
      const auto a = luObject(Kind(f ? bad(rng) : kind(rng)), n, fx.esize(), rng);
      for (int i = 0; i < n * n; ++i) fx.block(0).set(k, i / n, i % n, a[size_t(i)]);
    }
    fx.block(2).fillRandom(rng, false);
  };
  return runSolve(c, [n]<class T>(Images<T>& im) { return ref::luDecomp<T>(im.e[0], im.e[2], im.p[1], n); });
}

TEST(LUDecomp, EveryMemberOrderAndPlacement) {
  unsigned seed = 1;
  for (const MemberFn* m : membersOf("LUDecomp"))
    for (int n = 1; n <= 8; ++n)
      for (const Style& st : styles()) {
        const int count = m->hasCount ? 11 : 1;  // whole groups of lanes and a tail
        seed += 2;
        EXPECT_EQ(runLU(*m, n, count, st, 1, false, false, {}, seed), "");
        EXPECT_EQ(runLU(*m, n, count, st, 1, false, seed % 3 == 0, {int(seed % unsigned(count))}, seed + 1), "");
      }
}

TEST(LUDecomp, FailingObjectsAcrossThreadSlices) {
  for (const MemberFn* m : membersOf("LUDecomp")) {
    if (!m->hasCount) continue;
    for (int n : {4, 7}) {
      const int count = 48000 / (n * n) + 5;  // past every limit of the family (40001 at most)
      for (int threads = 1; threads <= 4; ++threads) {
        const int q = count / threads, r = count % threads;
        // The start and end of the batch, of the first slice and of the second.
        for (std::vector<int> fail : {std::vector<int>{0, count - 1}, {q + (r > 0) - 1}, {q + (r > 0), count / 2}})
          EXPECT_EQ(runLU(*m, n, count, style("packed"), threads, true, false, fail, unsigned(count + threads)), "");
      }
    }
  }
}

// Argument blocks of LUBackSubst: the factor, pivots, b and x.
std::function<void(CallFixture&, std::mt19937&)> backFill(int n) {
  return [n](CallFixture& fx, std::mt19937& rng) {
    fx.block(0).fillRandom(rng, true);  // zeros on U's diagonal and NaNs go through as values
    fx.block(2).fillRandom(rng, false);
    fx.block(3).fillRandom(rng, false);
    std::vector<int32_t> p(static_cast<size_t>(n));
    const int objects = fx.isArray(1) ? fx.count() : 1;
    for (int k = 0; k < objects; ++k) {
      for (int i = 0; i < n; ++i) p[size_t(i)] = i;
      std::shuffle(p.begin(), p.end(), rng);
      for (int i = 0; i < n; ++i) fx.block(1).setBits(0, 0, k * n + i, uint32_t(p[size_t(i)]));
    }
  };
}

// The one-matrix form multiplies by 1/U(i,i) in the expanded orders. Past the limit, on every
// thread count too.
TEST(LUBackSubst, EveryMemberOrderAndPlacement) {
  unsigned seed = 100;
  for (const MemberFn* m : membersOf("LUBackSubst")) {
    const bool recip = parseName(m->name).pattern == "mva";
    auto model = [recip](int n) {
      return [n, recip]<class T>(Images<T>& im) -> tarnStatus {
        ref::luSolve<T>(im.e[0], im.p[1], im.e[2], im.e[3], n, recip);
        return tarnStatusOk;
      };
    };
    auto run = [&](int n, const Style& st, int count, int threads, bool inPlace) {
      SolveCall c{m, [&](int b) { return orderExtent(*m, b, n); }, count, &st, threads, threads > 1, inPlace ? 2 : -1};
      c.order = n;
      c.seed = seed++;
      c.fill = backFill(n);
      return runSolve(c, model(n));
    };
    for (int n = 1; n <= 8; ++n)
      for (const Style& st : styles())
        for (bool inPlace : {false, true}) EXPECT_EQ(run(n, st, m->hasCount ? 11 : 1, 1, inPlace), "");
    for (int threads = 2; threads <= 4 && m->hasCount; ++threads)
      EXPECT_EQ(run(4, style("packed"), 700, threads, false), "");
  }
}

// Objects that share rows (each object one row below the last, result on its source): every
// object must see the rows its predecessors wrote, as one object after the other does.
TEST(LUDecomp, OverlappingObjectsOnTheirSource) {
  constexpr int n = 3, count = 13, rows = count + n - 1;
  std::mt19937 rng(5);
  std::vector<float> buf(size_t(rows * n)), model;
  for (auto& v : buf) v = float(randomValue(rng, 4));
  model = buf;
  std::vector<int32_t> piv(size_t(count * n)), want(piv.size());
  for (int k = 0; k < count; ++k)
    ASSERT_EQ(ref::luDecomp<float>(&model[size_t(k * n)], &model[size_t(k * n)], &want[size_t(k * n)], n), 0);
  ASSERT_EQ(tarnLUDecomp_ma_32f(buf.data(), n * 4, n * 4, 4, piv.data(), buf.data(), n * 4, n * 4, 4, n, count), 0);
  EXPECT_EQ(piv, want);
  EXPECT_EQ(buf, model);
}

}  // namespace
}  // namespace tt
