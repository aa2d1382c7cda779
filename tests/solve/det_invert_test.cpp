// Det and Invert against their models in every member, layout and placement, orders 1 to 8; the
// tolerances at and just past their limits, typed here; the aligned pairs and the block form;
// failing objects across thread slices; the per-thread scratch; where each array member's paths
// start opening parallel regions, for QR too.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "regions.hpp"
#include "scratch.hpp"
#include "solve.hpp"

namespace tt {
namespace {

// Blocks: src, buffer, dst (Det: one scalar per object).
Extent extentOf(bool det, int block, int n) {
  return block == 0 ? Extent{n, n} : block == 1 ? Extent{1, n * (n + 1)} : det ? Extent{1, 1} : Extent{n, n};
}

bool isDet(const MemberFn& m) { return parseName(m.name).family == "Det"; }

// What the member's path does with one object, from the tables of the family: the tolerance,
// the approximate reciprocal and the block form.
template <class T>
Outcome modelOf(const CallFixture& fx, int obj, int n) {
  const ref::Mat<T> a = matOf<T>(fx, 0, obj, n, n);
  Outcome o;
  if (isDet(fx.member())) {
    o.values = {double(ref::det(a))};
    return o;
  }
  const Name nm = parseName(fx.member().name);
  const bool single = nm.pattern == "m", contig = contiguousCall(fx);
  const bool fast = nm.esize == 4 && contig && nm.layout != 'P';  // the contiguous float paths
  T tol = ref::cubeTol<T>(n);
  if (nm.esize == 8 && single && nm.layout == 'S' && contig && (n == 3 || n == 4))
    tol = T(n == 3 ? 108 : 256) * ref::smallestNormal<T>();
  ref::Mat<T> out(n, n);
  bool ok = false;
  if (n == 1) {
    ok = std::fabs(a(0, 0)) > tol;
    out(0, 0) = T(1) / a(0, 0);
  } else if (n == 2 || n >= 7) {
    ok = ref::cofactorInverse(a, out);
  } else if (n >= 5 && fast) {
    if constexpr (sizeof(T) == 4) ok = ref::blockInverse(a, tol, out);
  } else {
    const bool approx = fast && (n != 3 || (single ? nm.layout == 'S' : nm.layout == 'L'));
    ok = ref::adjugateInverse(a, tol, approx, out);
  }
  o.values.assign(out.e.begin(), out.e.end());
  if (!ok) {
    o.status = tarnStatusSingular;
    // Untouched, but for the block form's work rows: src's rows 0 (and 1 at order 6).
    o.kept.assign(size_t(n * n), true);
    for (int k = 0; (n == 5 || n == 6) && fast && k < (n - 4) * n; ++k) {
      o.kept[size_t(k)] = false;
      o.values[size_t(k)] = a.e[size_t(k)];
    }
  }
  return o;
}

struct Case {
  int n, count = 7, threads = 1;
  bool parallel = false, specials = false, inPlace = false, pairs = false;
  unsigned seed = 1;
  std::function<void(CallFixture&)> prepare;
  int status = 1;  // typed by the test; 1: the model's only
};

std::string check(const MemberFn& m, const Style& st, const Case& c) {
  const bool det = isDet(m);
  CallFixture fx(m, c.count, st, [&](int b) { return extentOf(det, b, c.n); });
  fx.args.order = c.n;
  std::mt19937 rng(c.seed);
  fx.fillSources(rng, c.specials);
  if (c.prepare) c.prepare(fx);
  if (c.inPlace) fx.args.op[2] = fx.args.op[0];
  const int dst = c.inPlace ? 0 : 2;
  const tarnStatus got = fx.run(c.threads);
  int want = 0;
  std::string why = byType(fx.esize(), [&]<class T>() {
    auto place = [&](int obj, int k) { return det ? Place{0, 0, obj} : Place{obj, k / c.n, k % c.n}; };
    return compareWalk(fx, dst, det ? 1 : c.n * c.n, c.threads, c.parallel,
                       [&](int obj) { return modelOf<T>(fx, obj, c.n); }, place, want, c.pairs);
  });
  if (got != want || (c.status != 1 && got != c.status))
    why += "status " + std::to_string(got) + " want " + std::to_string(c.status != 1 ? c.status : want) + "; ";
  // Closed forms never touch the buffer; the elimination forms may.
  std::vector<int> writable = {c.inPlace ? 0 : 2};
  if (c.n < 3 || c.n > 6) writable.push_back(1);
  why += fx.untouched(writable);
  return why.empty() ? why
                     : std::string(m.name) + " order " + std::to_string(c.n) + " " + st.name + " count " +
                           std::to_string(c.count) + " threads " + std::to_string(c.threads) + ": " + why;
}

// Every member and order, the placements in turn: arrays of 7 (a short last group of lanes in
// both types), exceptional values in every other case, in place where the order allows it.
TEST(DetInvert, EveryMemberMatchesTheModel) {
  int i = 0;
  for (const char* family : {"Det", "Invert"})
    for (const MemberFn* m : membersOf(family))
      for (int n = 1; n <= 8; ++n) {
        const Style& st = styles()[size_t(i++) % styles().size()];
        Case c{n};
        c.specials = i % 2;
        c.seed = unsigned(i);
        c.inPlace = !isDet(*m) && i % 3 == 0 && (n == 1 || (n >= 3 && n <= 6)) && std::string(st.name) != "soa";
        EXPECT_EQ(check(*m, st, c), "");
      }
}

// Diagonal matrices put the determinant exactly on a tolerance or one step below it. tol(n) is
// 2 n^3 times the smallest normal number; the contiguous single-matrix 64f member uses 108 and
// 256 times it at orders 3 and 4. Order 1 passes only strictly above tol, orders 3 and 4 fail
// only strictly below it.
TEST(DetInvert, InverseTolerances) {
  struct Limit {
    const char* name;
    const char* style;
    std::vector<double> diag;
    int status;
  };
  const double m32 = 0x1p-126, m64 = 0x1p-1022, down32 = 1 - 0x1p-24, down64 = 1 - 0x1p-53;
  const Limit cases[] = {
      {"tarnInvert_m_32f", "packed", {2 * m32}, tarnStatusSingular},
      {"tarnInvert_ma_32f_L", "strided", {2 * m32 * (1 + 0x1p-23)}, 0},
      {"tarnInvert_ma_64f_P", "packed", {2 * m64}, tarnStatusSingular},
      {"tarnInvert_m_64f", "packed", {2 * m64 * (1 + 0x1p-52)}, 0},
      {"tarnInvert_ma_32f", "packed", {27, 0x1p-62, 0x1p-63}, 0},  // 54 * 2^-126
      {"tarnInvert_ma_32f", "packed", {27, 0x1p-62, 0x1p-63 * down32}, tarnStatusSingular},
      {"tarnInvert_m_32f", "strided", {1, 1, 0x1p-60, 0x1p-59}, 0},  // 128 * 2^-126
      {"tarnInvert_ma_32f_L", "packed", {1, 1, 0x1p-60, 0x1p-59 * down32}, tarnStatusSingular},
      {"tarnInvert_ma_64f", "packed", {27, 0x1p-500, 0x1p-521}, 0},  // 54 * 2^-1022
      {"tarnInvert_ma_64f", "strided", {27, 0x1p-500, 0x1p-521 * down64}, tarnStatusSingular},
      {"tarnInvert_m_64f", "strided", {27, 0x1p-500, 0x1p-521}, 0},
      {"tarnInvert_m_64f", "packed", {27, 0x1p-500, 0x1p-521}, tarnStatusSingular},  // below 108
      {"tarnInvert_m_64f", "packed", {27, 0x1p-499, 0x1p-521}, 0},                   // 108 exactly
      {"tarnInvert_m_64f_P", "packed", {1, 1, 0x1p-500, 0x1p-515}, 0},               // 128 exactly
      {"tarnInvert_m_64f", "packed", {1, 1, 0x1p-500, 0x1p-515}, tarnStatusSingular},  // below 256
      {"tarnInvert_m_64f", "packed", {1, 1, 0x1p-500, 0x1p-514}, 0},
  };
  for (const Limit& l : cases) {
    const int n = int(l.diag.size());
    Case c{n};
    c.count = 1;
    c.status = l.status;
    c.prepare = [&](CallFixture& fx) {
      for (int r = 0; r < n; ++r)
        for (int k = 0; k < n; ++k) fx.block(0).set(0, r, k, r == k ? l.diag[size_t(r)] : 0.0);
    };
    EXPECT_EQ(check(member(l.name), style(l.style), c), "");
  }
}

// Det: the closed orders have no tolerance; the elimination fails a stage strictly below tol and
// the last element unless strictly above it, giving 0. Values typed.
TEST(DetInvert, DeterminantLimits) {
  struct Limit {
    const char* name;
    std::vector<double> rows;  // row-major
    double want;
  };
  const double t1 = 2 * 0x1p-126, t2 = 16 * 0x1p-126, d1 = 2 * 0x1p-1022;
  const Limit cases[] = {
      {"tarnDet_m_32f", {t1}, 0},
      {"tarnDet_ma_32f", {t1 * (1 + 0x1p-23)}, t1 * (1 + 0x1p-23)},
      {"tarnDet_m_64f_P", {d1}, 0},
      {"tarnDet_ma_64f_L", {-d1 * (1 + 0x1p-52)}, -d1 * (1 + 0x1p-52)},
      {"tarnDet_m_32f", {t2, 0, 0, 1}, t2},                      // a stage passes at equality
      {"tarnDet_ma_32f_P", {t2 * (1 - 0x1p-24), 0, 0, 1}, 0},    // and fails below it
      {"tarnDet_m_32f", {1, 0, 0, t2}, 0},                       // the last element fails at equality
      {"tarnDet_ma_32f", {1, 0, 0, t2 * (1 + 0x1p-23)}, t2 * (1 + 0x1p-23)},
      {"tarnDet_m_64f", {0, 1, 1, 0}, -1},                       // a row exchange flips the sign
      {"tarnDet_ma_64f", {1, 2, 3, 2, 4, 6, 0, 1, 5}, 0},        // order 3: the expansion, exactly 0 here
      {"tarnDet_m_32f", {1e-20, 0, 0, 0, 1e-20, 0, 0, 0, 1e-20}, 0},  // no tolerance: the product underflows
  };
  for (const Limit& l : cases) {
    const int n = int(std::lround(std::sqrt(double(l.rows.size()))));
    Case c{n};
    c.count = 2;
    c.prepare = [&](CallFixture& fx) {
      for (int k = 0; k < (fx.isArray(0) ? fx.count() : 1); ++k)
        for (int r = 0; r < n; ++r)
          for (int j = 0; j < n; ++j) fx.block(0).set(k, r, j, l.rows[size_t(r * n + j)]);
    };
    const MemberFn& m = member(l.name);
    EXPECT_EQ(check(m, style("guarded"), c), "");
    CallFixture fx(m, 1, style("packed"), [&](int b) { return extentOf(true, b, n); });
    fx.args.order = n;
    c.prepare(fx);
    fx.run(1);
    EXPECT_EQ(fx.block(2).get(0, 0, 0), parseName(l.name).esize == 4 ? double(float(l.want)) : l.want) << l.name;
  }
  // 2 n^3 wraps in 32 bits from n = 1024 on: the tolerance turns negative and even a denormal last
  // element passes.
  const int n = 1024;
  std::vector<double> a(size_t(n) * n, 0.0), buffer(size_t(n) * (n + 1));
  for (int i = 0; i < n; ++i) a[size_t(i) * n + i] = i == n - 1 ? 0x1p-1070 : 1.0;
  double d = 1;
  ASSERT_EQ(tarnDet_m_64f(a.data(), n * 8, 8, n, buffer.data(), &d), 0);
  EXPECT_EQ(d, 0x1p-1070);
}

// Order 2 and from 7: a minor whose elimination finds no pivot gives tol, not 0. The 2 by 2
// identity's off-diagonal cofactors are 1 by 1 minors of 0.
TEST(DetInvert, CofactorFormGivesTolForASingularMinor) {
  float id2[4] = {1, 0, 0, 1}, out[4] = {}, buffer[6];
  ASSERT_EQ(tarnInvert_m_32f(id2, 8, 4, buffer, out, 8, 4, 2), 0);
  EXPECT_EQ(out[0], 1.0f);
  EXPECT_EQ(out[1], -16 * 0x1p-126f);
  EXPECT_EQ(out[2], -16 * 0x1p-126f);
  EXPECT_EQ(out[3], 1.0f);
}

// tarnInvert_ma_32f at order 4 takes aligned objects in pairs: a singular object leaves its
// partner unwritten too. Unaligned, and in the other members, objects stand alone.
TEST(DetInvert, AlignedPairs) {
  struct PairCase {
    const char* name;
    const char* style;
    int count;
    std::vector<int> singular;
    int written;  // objects written, from the first
  };
  const PairCase cases[] = {
      {"tarnInvert_ma_32f", "aligned16", 4, {1}, 0},
      {"tarnInvert_ma_32f", "aligned16", 4, {0}, 0},
      {"tarnInvert_ma_32f", "aligned16", 4, {3}, 2},
      {"tarnInvert_ma_32f", "aligned64", 3, {2}, 2},  // the odd last object alone
      {"tarnInvert_ma_32f", "aligned16", 7, {5}, 4},
      {"tarnInvert_ma_32f", "padded", 4, {1}, 1},     // unaligned: one at a time
      {"tarnInvert_ma_32f_L", "aligned16", 4, {1}, 1},
      {"tarnInvert_ma_64f", "aligned16", 4, {1}, 1},
  };
  for (const PairCase& p : cases) {
    Case c{4};
    c.count = p.count;
    c.status = tarnStatusSingular;
    c.pairs = std::string(p.name) == "tarnInvert_ma_32f" && std::string(p.style) != "padded";
    c.prepare = [&](CallFixture& fx) {
      for (int k : p.singular)
        for (int j = 0; j < 4; ++j) fx.block(0).set(k, 2, j, 0.0);
    };
    const MemberFn& m = member(p.name);
    EXPECT_EQ(check(m, style(p.style), c), "");
    CallFixture fx(m, p.count, style(p.style), [&](int b) { return extentOf(false, b, 4); });
    fx.args.order = 4;
    std::mt19937 rng(1);
    fx.fillSources(rng, false);
    c.prepare(fx);
    fx.run(1);
    for (int k = 0; k < p.count; ++k)
      EXPECT_EQ(fx.block(2).bits(k, 0, 0) != fx.before(2).bits(k, 0, 0), k < p.written) << p.name << " object " << k;
  }
}

// The block form fails on its own pivots and on the determinant of its 4 by 4 core, tested
// against the tolerance of the whole order; the adjugate paths test the whole determinant. A
// failing block form leaves src's row 0 (order 6: rows 0 and 1) in dst, the adjugate nothing.
TEST(DetInvert, BlockFormAgainstAdjugate) {
  struct BlockCase {
    const char* name;
    const char* style;
    int n;
    std::vector<double> row0;  // the rest of the matrix: the identity with `corner` last, or drawn
    double corner;             // when 0
    int status;
  };
  const double half5 = 125 * 0x1p-126, half6 = 216 * 0x1p-126;
  const BlockCase cases[] = {
      {"tarnInvert_m_32f", "packed", 5, {0, 0, 0, 0, 0}, 1, tarnStatusSingular},
      {"tarnInvert_m_32f", "strided", 5, {0, 0, 0, 0, 0}, 1, tarnStatusSingular},
      {"tarnInvert_ma_32f", "packed", 6, {0, 0, 0, 0, 0, 0}, 1, tarnStatusSingular},
      {"tarnInvert_ma_32f", "packed", 5, {0x1p20, 0, 0, 0, 0}, half5, tarnStatusSingular},  // core below tol(5)
      {"tarnInvert_ma_32f", "strided", 5, {0x1p20, 0, 0, 0, 0}, half5, 0},                   // whole det is not
      {"tarnInvert_ma_32f_L", "packed", 6, {0x1p20, 0, 0, 0, 0, 0}, half6, tarnStatusSingular},
      {"tarnInvert_ma_32f_P", "packed", 6, {0x1p20, 0, 0, 0, 0, 0}, half6, 0},
      {"tarnInvert_ma_32f", "packed", 6, {1, 2, -2, 0, 2, 1}, 0, 0},  // ties: the highest column wins
      {"tarnInvert_m_32f", "packed", 5, {1, 2, 0, -2, 2}, 0, 0},      // but column 4 only when alone
  };
  for (const BlockCase& b : cases) {
    Case c{b.n};
    c.count = 2;
    c.status = b.status;
    c.prepare = [&](CallFixture& fx) {
      for (int k = 0; k < (fx.isArray(0) ? fx.count() : 1); ++k)
        for (int r = 0; r < b.n; ++r)
          for (int j = 0; j < b.n; ++j)
            if (r == 0 || b.corner != 0)
              fx.block(0).set(k, r, j, r == 0 ? b.row0[size_t(j)] : r == j ? (r == b.n - 1 ? b.corner : 1.0) : 0.0);
    };
    EXPECT_EQ(check(member(b.name), style(b.style), c), "");
  }
}

// Failing objects across the slices of 1 to 4 threads; results do not depend on the threads.
TEST(DetInvert, ThreadSlices) {
  struct SliceCase {
    const char* name;
    const char* style;
    int n, count;
    std::vector<int> singular;
  };
  const SliceCase cases[] = {
      {"tarnInvert_ma_32f", "aligned16", 4, 2600, {100, 868, 1733, 2599}},
      {"tarnInvert_ma_64f_L", "packed", 3, 3400, {0, 1700, 1701}},
      {"tarnInvert_ma_32f_P", "packed", 2, 5001, {2500, 4000}},
      {"tarnDet_ma_64f", "strided", 3, 6700, {}},
      {"tarnDet_ma_32f_L", "packed", 5, 8001, {}},
  };
  for (const SliceCase& s : cases)
    for (int threads = 1; threads <= 4; ++threads) {
      Case c{s.n};
      c.count = s.count;
      c.threads = threads;
      c.parallel = threads > 1;
      c.pairs = std::string(s.name) == "tarnInvert_ma_32f";
      c.prepare = [&](CallFixture& fx) {
        for (int k : s.singular)
          for (int j = 0; j < s.n; ++j) fx.block(0).set(k, 0, j, 0.0);
      };
      std::string why;
      EXPECT_EQ(regionsOpenedBy([&] { why = check(member(s.name), style(s.style), c); }), threads > 1 ? 1 : 0)
          << s.name;
      EXPECT_EQ(why, "");
    }
}

// The parallel path takes one block of T * n(n+1) elements and each thread works in its own
// part: thread t's row numbers end as a permutation written there; the caller's buffer is idle.
TEST(DetInvert, PerThreadScratch) {
  struct ScratchCase {
    const char* name;
    int n, count;
  };
  for (const ScratchCase& sc : {ScratchCase{"tarnDet_ma_64f", 7, 3000}, ScratchCase{"tarnDet_ma_32f_P", 7, 3000},
                                ScratchCase{"tarnInvert_ma_32f", 2, 5001}, ScratchCase{"tarnInvert_ma_64f_P", 7, 1500}})
    for (int threads : {2, 3}) {
      const char* name = sc.name;
      const MemberFn& m = member(name);
      const int n = sc.n, count = sc.count;
      CallFixture fx(m, count, style("packed"), [&](int b) { return extentOf(isDet(m), b, n); });
      fx.args.order = n;
      std::mt19937 rng(3);
      fx.fillSources(rng, false);
      const auto blocks = scratchDuring([&] { EXPECT_EQ(fx.run(threads), 0); });
      ASSERT_EQ(blocks.size(), 1u) << name;
      const ScratchBlock& b = blocks[0];
      const size_t per = size_t(n * (n + 1) * fx.esize());
      EXPECT_EQ(b.bytes, threads * per) << name;
      for (size_t i = b.bytes; i < b.bytes + kScratchTail; ++i) ASSERT_EQ(b.content[i], kFill) << name;
      // Det leaves its row order, a permutation of 0..n-1; Invert's last minor the first n-1.
      const int perm = isDet(m) ? n : n - 1;
      for (int t = 0; t < threads; ++t) {
        std::vector<int32_t> rows(static_cast<size_t>(perm));
        std::memcpy(rows.data(), b.content.data() + t * per + size_t(n * n * fx.esize()), rows.size() * 4);
        std::sort(rows.begin(), rows.end());
        for (int i = 0; i < perm; ++i) EXPECT_EQ(rows[size_t(i)], i) << name << " thread " << t;
      }
      EXPECT_EQ(fx.untouched({2}), "") << name;  // the caller's buffer included
    }
}

// The first E that opens a region, per path, typed: Det widthHeight*count from 20001 (40001 on
// the contiguous LayoutL 32f path), Invert 2*widthHeight*count from 20001 likewise, QRDecomp
// 2*width*height*count from 2801 (LayoutL, LayoutP: 1801), QRBackSubst mva
// width*height+(width+height)*count and mava (width*(height+1)+height)*count alike.
TEST(DetInvert, RegionsFromTheThreshold) {
  struct Row {
    const char* family;
    const char* pattern;
    int h, w;
    int count;       // E for this count and shape
    int32_t e;       // typed E, checked against the formula
    int32_t limitS, limitL32C, limitL, limitP;
  };
  const Row rows[] = {
      {"Det", "ma", 1, 1, 20000, 20000, 20001, 40001, 20001, 20001},
      {"Det", "ma", 1, 1, 20001, 20001, 20001, 40001, 20001, 20001},
      {"Det", "ma", 1, 1, 40000, 40000, 20001, 40001, 20001, 20001},
      {"Det", "ma", 1, 1, 40001, 40001, 20001, 40001, 20001, 20001},
      {"Invert", "ma", 2, 2, 5000, 20000, 20001, 40001, 20001, 20001},
      {"Invert", "ma", 2, 2, 5001, 20004, 20001, 40001, 20001, 20001},
      {"Invert", "ma", 2, 2, 10000, 40000, 20001, 40001, 20001, 20001},
      {"Invert", "ma", 2, 2, 10001, 40004, 20001, 40001, 20001, 20001},
      {"QRDecomp", "ma", 1, 1, 900, 1800, 2801, 1801, 1801, 1801},
      {"QRDecomp", "ma", 1, 1, 901, 1802, 2801, 1801, 1801, 1801},
      {"QRDecomp", "ma", 1, 1, 1400, 2800, 2801, 1801, 1801, 1801},
      {"QRDecomp", "ma", 1, 1, 1401, 2802, 2801, 1801, 1801, 1801},
      {"QRBackSubst", "mva", 2, 2, 449, 1800, 2801, 1801, 1801, 1801},
      {"QRBackSubst", "mva", 1, 1, 900, 1801, 2801, 1801, 1801, 1801},
      {"QRBackSubst", "mva", 2, 2, 699, 2800, 2801, 1801, 1801, 1801},
      {"QRBackSubst", "mva", 1, 1, 1400, 2801, 2801, 1801, 1801, 1801},
      {"QRBackSubst", "mava", 2, 1, 360, 1800, 2801, 1801, 1801, 1801},
      {"QRBackSubst", "mava", 1, 1, 601, 1803, 2801, 1801, 1801, 1801},
      {"QRBackSubst", "mava", 2, 1, 560, 2800, 2801, 1801, 1801, 1801},
      {"QRBackSubst", "mava", 1, 1, 934, 2802, 2801, 1801, 1801, 1801},
  };
  for (const Row& r : rows) {
    const std::string f = r.family, p = r.pattern;
    const int64_t e = f == "Det" ? int64_t(r.h) * r.count
                      : f == "Invert" ? 2 * int64_t(r.h) * r.count
                      : f == "QRDecomp" ? 2 * int64_t(r.w) * r.h * r.count
                      : p == "mva" ? int64_t(r.w) * r.h + int64_t(r.w + r.h) * r.count
                                   : int64_t(r.w * (r.h + 1) + r.h) * r.count;
    ASSERT_EQ(e, r.e) << f << " " << p;
    for (const MemberFn* m : membersOf(f)) {
      const Name nm = parseName(m->name);
      if (nm.pattern != p) continue;
      for (bool contig : {true, false}) {
        if (nm.layout == 'P' && !contig) continue;
        const int32_t limit = nm.layout == 'S'   ? r.limitS
                              : nm.layout == 'P' ? r.limitP
                              : nm.esize == 4 && contig && (f == "Det" || f == "Invert") ? r.limitL32C
                                                                                         : r.limitL;
        CallFixture fx(*m, r.count, style(contig ? "packed" : "strided"), [&](int b) -> Extent {
          if (f == "Det" || f == "Invert") return extentOf(f == "Det", b, r.h);
          if (f == "QRDecomp") return b == 1 ? Extent{1, r.h} : Extent{r.h, r.w};
          return b == 0 ? Extent{r.h, r.w} : b == 3 ? Extent{1, r.w} : Extent{1, r.h};
        });
        fx.args.width = r.w;
        fx.args.height = r.h;
        fx.args.order = r.h;
        for (int i = 0; i < m->nop; ++i)  // values that fail nothing
          if (!m->blk[i].out && m->blk[i].kind)
            for (int k = 0; k < (fx.isArray(i) ? r.count : 1); ++k)
              for (int a = 0; a < (i == 0 ? r.h : 1); ++a)
                for (int b = 0; b < (i == 0 ? r.w : (m->blk[i].kind == 'v' ? r.h : r.w)); ++b)
                  fx.block(i).set(k, a, b, a == b || i != 0 ? 1.0 : 0.0);
        EXPECT_EQ(regionsOpenedBy([&] { fx.run(2); }), r.e >= limit ? 1 : 0)
            << m->name << (contig ? " contiguous" : " general") << " E " << r.e;
      }
    }
  }
}

}  // namespace
}  // namespace tt
