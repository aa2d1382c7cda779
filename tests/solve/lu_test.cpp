// LUDecomp and LUBackSubst against the plain models of tests/ref/solve_ref.hpp: every member,
// orders 1 to 8, every placement, results on their sources; batches whose pivot searches meet
// exchanges, ties, NaNs and pivots at and around both thresholds; failing objects at the start,
// middle and end of a batch and of each thread's slice.
#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <thread>
#include <vector>

#include "ref/factor_ref.hpp"
#include "regions.hpp"
#include "factor.hpp"

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

// Matrices of the given kinds, object k taking kinds[k % size]; `fail` objects are failing ones.
SolveFill luFill(int n, std::vector<int> fail = {}) {
  return [n, fail](CallFixture& fx, std::mt19937& rng) {
    std::uniform_int_distribution<int> kind(0, int(Kind::Last));
    std::uniform_int_distribution<int> bad{int(Kind::BelowLimit), int(Kind::Zero)};
    for (int k = 0; k < (fx.isArray(0) ? fx.count() : 1); ++k) {
      const bool f = std::find(fail.begin(), fail.end(), k) != fail.end();
      const auto a = luObject(Kind(f ? bad(rng) : kind(rng)), n, fx.esize(), rng);
      for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) fx.block(0).set(k, r, c, a[size_t(r * n + c)]);
    }
    for (int b = 1; b < fx.member().nop; ++b)  // dst with values the call must overwrite or keep
      if (fx.member().blk[b].kind) fx.block(b).fillRandom(rng, false);
  };
}

template <class T>
SolveModel<T> luModel(int n) {
  return [n](Images<T>& im) { return ref::luDecomp<T>(im.e[0], im.e[2], im.p[1], n); };
}

std::string runLU(const MemberFn& m, int n, int count, const Style& st, int threads, bool parallel, bool inPlace,
                  const std::vector<int>& fail, unsigned seed) {
  return runSolve({&m, n, count, &st, threads, parallel, inPlace ? 0 : -1}, luFill(n, fail), luModel<float>(n),
                  luModel<double>(n), seed);
}

TEST(LUDecomp, EveryMemberOrderAndPlacement) {
  unsigned seed = 1;
  for (const MemberFn* m : membersOf("LUDecomp"))
    for (int n = 1; n <= 8; ++n)
      for (const Style& st : styles()) {
        const bool array = m->hasCount;
        const int count = array ? 11 : 1;  // whole groups of lanes and a tail
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
SolveFill backFill(int n) {
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

template <class T>
SolveModel<T> backModel(int n, bool reciprocals) {
  return [=](Images<T>& im) {
    ref::luSolve<T>(im.e[0], im.p[1], im.e[2], im.e[3], n, reciprocals);
    return tarnStatusOk;
  };
}

TEST(LUBackSubst, EveryMemberOrderAndPlacement) {
  unsigned seed = 100;
  for (const MemberFn* m : membersOf("LUBackSubst")) {
    const Name nm = parseName(m->name);
    for (int n = 1; n <= 8; ++n)
      for (const Style& st : styles())
        for (bool inPlace : {false, true}) {
          const int count = m->hasCount ? 11 : 1;
          const bool recip = nm.pattern == "mva";
          EXPECT_EQ(runSolve({m, n, count, &st, 1, false, inPlace ? 2 : -1}, backFill(n), backModel<float>(n, recip),
                             backModel<double>(n, recip), seed++),
                    "");
        }
    // Past the limit, on every thread count.
    if (m->hasCount)
      for (int threads = 2; threads <= 4; ++threads)
        EXPECT_EQ(runSolve({m, 4, 700, &style("packed"), threads, true, -1}, backFill(4),
                           backModel<float>(4, nm.pattern == "mva"), backModel<double>(4, nm.pattern == "mva"), seed++),
                  "");
  }
}

// The limits, typed from the documentation of each member: the first E that opens a region.
struct Limit {
  const char* name;
  int32_t contiguous, general;
};
const Limit kLimits[] = {
    {"tarnLUDecomp_ma_32f", 20001, 20001},   {"tarnLUDecomp_ma_32f_L", 40001, 20001},
    {"tarnLUDecomp_ma_32f_P", 20001, 20001}, {"tarnLUDecomp_ma_64f", 20001, 20001},
    {"tarnLUDecomp_ma_64f_L", 20001, 20001}, {"tarnLUDecomp_ma_64f_P", 20001, 20001},
};

// Order 1 makes E = count, so E lands on the limit itself; mva and mava at order 1 give E =
// 1 + 2*count and 3*count.
TEST(LUDecomp, RegionFromTheLimitOn) {
  for (const Limit& l : kLimits)
    for (bool contig : {true, false}) {
      const MemberFn& m = member(l.name);
      const int32_t limit = contig ? l.contiguous : l.general;
      const Style& st = style(contig ? "packed" : "strided");
      for (int32_t count : {limit - 1, limit})
        EXPECT_EQ(regionsOpenedBy([&] { runLU(m, 1, count, st, 2, count >= limit, false, {}, 5); }), count >= limit)
            << l.name << " contiguous " << contig << " count " << count;
    }
  for (const MemberFn* m : membersOf("LUBackSubst")) {
    if (!m->hasCount) continue;
    const bool mva = parseName(m->name).pattern == "mva";
    for (const char* st : {"packed", "strided"})
      for (int32_t count : mva ? std::vector<int32_t>{849, 850} : std::vector<int32_t>{566, 567}) {
        const bool open = (mva ? 1 + 2 * count : 3 * count) >= 1701;
        EXPECT_EQ(regionsOpenedBy([&] {
                    runSolve({m, 1, count, &style(st), 2, open, -1}, backFill(1), backModel<float>(1, mva),
                             backModel<double>(1, mva), 9);
                  }),
                  open)
            << m->name << " " << st << " count " << count;
      }
  }
}

// Factor, then solve, through the exports of both families: whatever the two agree on between
// them (the row order in pivot, the reciprocals on Cholesky's diagonal), x must solve A x = b.
// mava solves each system with its own factor, mva every right-hand side with the first factor.
template <class T>
struct Exports;
template <>
struct Exports<float> {
  static constexpr auto lu = tarnLUDecomp_ma_32f;
  static constexpr auto luPairs = tarnLUBackSubst_mava_32f;
  static constexpr auto luShared = tarnLUBackSubst_mva_32f;
  static constexpr auto chol = tarnCholeskyDecomp_ma_32f;
  static constexpr auto cholPairs = tarnCholeskyBackSubst_mava_32f;
  static constexpr auto cholShared = tarnCholeskyBackSubst_mva_32f;
};
template <>
struct Exports<double> {
  static constexpr auto lu = tarnLUDecomp_ma_64f;
  static constexpr auto luPairs = tarnLUBackSubst_mava_64f;
  static constexpr auto luShared = tarnLUBackSubst_mva_64f;
  static constexpr auto chol = tarnCholeskyDecomp_ma_64f;
  static constexpr auto cholPairs = tarnCholeskyBackSubst_mava_64f;
  static constexpr auto cholShared = tarnCholeskyBackSubst_mva_64f;
};

template <class T>
void factorThenSolve(bool cholesky, int n) {
  using X = Exports<T>;
  constexpr int count = 37, e = int(sizeof(T));
  const int os = n * n * e, rs = n * e;
  std::mt19937 rng(unsigned(n + 10 * cholesky));
  std::uniform_real_distribution<double> u(-1, 1);
  std::vector<T> a(size_t(n * n * count)), f(a.size()), b(size_t(n * count)), x(b.size()), y(b.size());
  std::vector<int32_t> piv(b.size());
  for (int k = 0; k < count; ++k) {
    std::vector<double> m(size_t(n * n));
    for (auto& v : m) v = u(rng);
    for (int r = 0; r < n; ++r)
      for (int c = 0; c < n; ++c) {
        double s = r == c ? double(n) : 0.0;  // M M^T + n I for Cholesky
        for (int j = 0; j < n; ++j) s += m[size_t(r * n + j)] * m[size_t(c * n + j)];
        a[size_t(k * n * n + r * n + c)] = T(cholesky ? s : m[size_t(r * n + c)]);
      }
  }
  for (auto& v : b) v = T(u(rng));
  if (cholesky) {
    ASSERT_EQ(X::chol(a.data(), os, rs, e, f.data(), os, rs, e, n, count), 0);
    ASSERT_EQ(X::cholPairs(f.data(), os, rs, e, b.data(), rs, e, x.data(), rs, e, n, count), 0);
    ASSERT_EQ(X::cholShared(f.data(), rs, e, b.data(), rs, e, y.data(), rs, e, n, count), 0);
  } else {
    ASSERT_EQ(X::lu(a.data(), os, rs, e, piv.data(), f.data(), os, rs, e, n, count), 0);
    ASSERT_EQ(X::luPairs(f.data(), os, rs, e, piv.data(), b.data(), rs, e, x.data(), rs, e, n, count), 0);
    ASSERT_EQ(X::luShared(f.data(), rs, e, piv.data(), b.data(), rs, e, y.data(), rs, e, n, count), 0);
  }
  // Backward error of each solution: |A x - b| against |A| |x| + |b|, row by row.
  const double tol = 16.0 * n * double(std::numeric_limits<T>::epsilon());
  for (int k = 0; k < count; ++k)
    for (int r = 0; r < n; ++r)
      for (bool shared : {false, true}) {
        const T* sys = &a[size_t((shared ? 0 : k) * n * n + r * n)];
        const T* sol = &(shared ? y : x)[size_t(k * n)];
        double s = -double(b[size_t(k * n + r)]), scale = std::fabs(double(b[size_t(k * n + r)]));
        for (int c = 0; c < n; ++c) {
          s += double(sys[c]) * double(sol[c]);
          scale += std::fabs(double(sys[c]) * double(sol[c]));
        }
        EXPECT_LE(std::fabs(s), tol * scale) << (cholesky ? "Cholesky" : "LU") << " order " << n << " system " << k
                                             << (shared ? " mva" : " mava") << " esize " << e;
      }
}

TEST(Solvers, FactorThenSolveEveryOrder) {
  for (bool cholesky : {false, true})
    for (int n = 1; n <= 8; ++n) {
      factorThenSolve<float>(cholesky, n);
      factorThenSolve<double>(cholesky, n);
    }
}

// Application threads calling at once, each with a region of its own, keep their own status.
TEST(LUDecomp, ConcurrentCallersKeepTheirStatus) {
  constexpr int n = 3, count = 3000;
  auto caller = [](bool singular, int* failures) {
    std::vector<float> a(size_t(n * n * count)), d(a.size());
    std::vector<int32_t> piv(size_t(n * count));
    for (int k = 0; k < count; ++k)
      for (int i = 0; i < n; ++i) a[size_t(k * 9 + i * 4)] = singular && k == count - 7 ? 0.0f : 2.0f;
    omp_set_num_threads(2);
    for (int rep = 0; rep < 20; ++rep)
      *failures += tarnLUDecomp_ma_32f(a.data(), 36, 12, 4, piv.data(), d.data(), 36, 12, 4, n, count) !=
                   (singular ? tarnStatusSingular : tarnStatusOk);
  };
  int bad[4] = {};
  std::vector<std::thread> ts;
  for (int i = 0; i < 4; ++i) ts.emplace_back(caller, i % 2 == 0, &bad[i]);
  for (auto& t : ts) t.join();
  for (int i = 0; i < 4; ++i) EXPECT_EQ(bad[i], 0) << "caller " << i;
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
