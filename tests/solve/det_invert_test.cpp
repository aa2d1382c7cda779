// Det and Invert against their models in every member, layout and placement, orders 1 to 8; the
// tolerances at and just past their limits, typed here; the aligned pairs and the block form;
// failing objects across thread slices, each thread in its own part of the scratch.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include <pmmintrin.h>

#include "ref/solve_ref.hpp"
#include "solve.hpp"

namespace tt {
namespace {

// Invert's one-object member on a packed copy of an object, or on one with a gap behind every
// element (its general path), so the dst image takes what that member writes.
template <class T>
tarnStatus invertOne(bool contiguous, const T* a, T* x, int n) {
  const int g = contiguous ? 1 : 2, es = int(sizeof(T));
  std::vector<T> s(size_t(n * n * g)), d(s.size()), buf(size_t(n * (n + 1)));
  for (int i = 0; i < n * n; ++i) s[size_t(i * g)] = a[i], d[size_t(i * g)] = x[i];
  Args args;
  args.op[0] = {s.data(), 0, n * g * es, g * es};
  args.op[1] = {buf.data()};
  args.op[2] = {d.data(), 0, n * g * es, g * es};
  args.order = n;
  const tarnStatus st = member(es == 4 ? "tarnInvert_m_32f" : "tarnInvert_m_64f").call(args);
  for (int i = 0; i < n * n; ++i) x[i] = d[size_t(i * g)];
  return st;
}

// Det: the closed forms and the elimination of the model. Invert: bit for bit the one-object
// member on the path with the same arithmetic. The contiguous float paths take an approximate
// reciprocal at orders 3 and 4 and the block form at 5 and 6, except the LayoutS array member at
// order 3, which divides as every other path does; the contiguous one-object double path alone
// doubles the tolerance at orders 3 and 4.
template <class T>
auto modelOf(const Name& nm, int n) {
  return [nm, n](Images<T>& im) -> tarnStatus {
    if (nm.family == "Invert") {
      const bool single = nm.pattern == "m", fast = im.contiguous && nm.layout != 'P';
      const bool same = nm.esize == 4 ? fast && (n != 3 || nm.layout == (single ? 'S' : 'L')) : fast && single;
      return invertOne<T>(same, im.e[0], im.e[2], n);
    }
    ref::Mat<T> a(n, n);
    std::copy(im.e[0], im.e[0] + n * n, a.e.begin());
    im.e[2][0] = ref::det(a);
    return tarnStatusOk;
  };
}

struct Case {
  int n, count = 7, threads = 1;
  bool specials = false, inPlace = false, pairs = false;
  unsigned seed = 1;
  std::function<void(CallFixture&)> prepare;
  int status = 1;  // typed by the test; 1: the model's only
};

// Closed forms never touch the buffer; what the elimination forms leave there is their own.
std::string check(const MemberFn& m, const Style& st, const Case& c) {
  SolveCall s{&m, [&](int b) { return orderExtent(m, b, c.n); }, c.count, &st, c.threads, c.threads > 1,
              c.inPlace ? 0 : -1, c.pairs};
  s.order = c.n;
  s.status = c.status;
  s.seed = c.seed;
  if (c.n < 3 || c.n > 6) s.opaque = {1};
  s.fill = [&](CallFixture& fx, std::mt19937& rng) {
    fx.fillSources(rng, c.specials);
    if (c.prepare) c.prepare(fx);
  };
  const Name nm = parseName(m.name);
  return runSolve(s, SolveModel<float>(modelOf<float>(nm, c.n)), SolveModel<double>(modelOf<double>(nm, c.n)));
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
        c.inPlace = family[0] == 'I' && i % 3 == 0 && (n == 1 || (n >= 3 && n <= 6)) && std::string(st.name) != "soa";
        EXPECT_EQ(check(*m, st, c), "");
      }
}

// The one-object member is the inverse on both paths, and its reciprocal of the determinant is
// the approximate one (rcpss and a Newton step, from this processor) exactly where the path
// documents it: diag(1, ..., 1, 3) ends in that reciprocal itself.
TEST(DetInvert, OneObjectPathsInvert) {
  std::mt19937 rng(4);
  std::uniform_real_distribution<double> u(-1, 1);
  for (const bool f32 : {true, false})
    for (const bool contiguous : {true, false})
      for (int n = 1; n <= 8; ++n) {
        std::vector<double> a(size_t(n * n)), x(a.size()), d(a.size());
        for (int i = 0; i < n * n; ++i) a[size_t(i)] = u(rng) + (i % (n + 1) ? 0.0 : n);
        for (int i = 0; i < n * n; ++i) d[size_t(i)] = i % (n + 1) ? 0.0 : i == n * n - 1 ? 3.0 : 1.0;
        const float r0 = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(3.0f)));
        const double q = f32 ? double(contiguous && n >= 3 && n <= 6 ? (r0 + r0) - 3.0f * (r0 * r0) : 1.0f / 3.0f) : 1.0 / 3;
        const double tol = f32 ? 1e-5 : 1e-14;
        auto check = [&](auto zero) {
          using T = decltype(zero);
          std::vector<T> at(a.begin(), a.end()), xt(a.size()), dt(d.begin(), d.end());
          EXPECT_EQ(invertOne<T>(contiguous, at.data(), xt.data(), n), 0);
          for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j) {
              double s = i == j ? -1.0 : 0.0;
              for (int k = 0; k < n; ++k) s += double(at[size_t(i * n + k)]) * double(xt[size_t(k * n + j)]);
              EXPECT_LE(std::fabs(s), tol) << n << " " << i << " " << j << (contiguous ? " contiguous" : " general");
            }
          EXPECT_EQ(invertOne<T>(contiguous, dt.data(), xt.data(), n), 0);
          EXPECT_EQ(double(xt.back()), q) << "order " << n << (contiguous ? " contiguous" : " general") << " f32 " << f32;
        };
        f32 ? check(0.0f) : check(0.0);
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
    CallFixture fx(m, 1, style("packed"), [&](int b) { return orderExtent(m, b, n); });
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
  };
  const PairCase cases[] = {
      {"tarnInvert_ma_32f", "aligned16", 4, {1}},
      {"tarnInvert_ma_32f", "aligned16", 4, {0}},
      {"tarnInvert_ma_32f", "aligned16", 4, {3}},
      {"tarnInvert_ma_32f", "aligned64", 3, {2}},  // the odd last object alone
      {"tarnInvert_ma_32f", "aligned16", 7, {5}},
      {"tarnInvert_ma_32f", "padded", 4, {1}},     // unaligned: one at a time
      {"tarnInvert_ma_32f_L", "aligned16", 4, {1}},
      {"tarnInvert_ma_64f", "aligned16", 4, {1}},
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
    EXPECT_EQ(check(member(p.name), style(p.style), c), "");
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
      {"tarnInvert_ma_64f_P", "packed", 7, 1500, {}},
      {"tarnDet_ma_64f", "strided", 3, 6700, {}},
      {"tarnDet_ma_32f_L", "packed", 5, 8001, {}},
      {"tarnDet_ma_64f", "packed", 7, 3000, {}},
      {"tarnDet_ma_32f_P", "packed", 7, 3000, {}},
  };
  for (const SliceCase& s : cases)
    for (int threads = 1; threads <= 4; ++threads) {
      Case c{s.n};
      c.count = s.count;
      c.threads = threads;
      c.pairs = std::string(s.name) == "tarnInvert_ma_32f";
      c.prepare = [&](CallFixture& fx) {
        for (int k : s.singular)
          for (int j = 0; j < s.n; ++j) fx.block(0).set(k, 0, j, 0.0);
      };
      EXPECT_EQ(check(member(s.name), style(s.style), c), "");
    }
}

}  // namespace
}  // namespace tt
