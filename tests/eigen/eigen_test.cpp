// Symmetric and general eigenproblems through the exports. Bits: every member in every layout and
// placement gives those of the same objects packed in LayoutS, a matrix alone those of the same
// matrix in a batch, 2 and 3 threads those of 1, and a failing object ends the walk of its slice.
// Mathematics: spectra built in, residuals, orthonormal columns, trace and determinant. The odd
// rules of the families as small typed cases; parallel limits; scratch sizes.
#include <gtest/gtest.h>
#include <pmmintrin.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "harness.hpp"
#include "regions.hpp"
#include "scratch.hpp"

namespace tt {
namespace {

using Mat = std::vector<double>;  // row-major, every value exact in the element type
using Cx = std::complex<double>;
const std::vector<std::string> kSym = {"EigenValuesSym", "EigenValuesVectorsSym"},
                               kGeneral = {"EigenValues", "EigenValuesVectorsRight", "EigenValuesVectorsLeft", "EigenValuesVectors"},
                               kAll = {kSym[0], kSym[1], kGeneral[0], kGeneral[1], kGeneral[2], kGeneral[3]};
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

bool isSym(const std::string& family) { return family.ends_with("Sym"); }
double epsOf(int esize) { return esize == 4 ? 0x1p-23 : 0x1p-52; }
double inType(double v, int esize) { return esize == 4 ? double(float(v)) : v; }
std::string typed(const std::string& family, const char* form, int esize) {
  return "tarn" + family + form + (esize == 4 ? "_32f" : "_64f");
}
bool canary(uint64_t bits, int esize) { return bits == (esize == 4 ? 0xA5A5A5A5u : 0xA5A5A5A5A5A5A5A5u); }

// What a call left, object by object, as bits of the element type: the plain results (values, or
// real then imaginary parts) and the matrices (one or both sides), row-major.
struct Out {
  tarnStatus status = 0;
  int n = 0, esize = 4;
  std::vector<std::vector<uint64_t>> vals, vecs;
  std::string fault;  // a source or a byte outside the results changed
  double val(size_t k, int i) const { return valueOf(vals[k][size_t(i)], esize); }
  double vec(size_t k, int r, int c, int side = 0) const { return valueOf(vecs[k][size_t((side * n + r) * n + c)], esize); }
};

Out run(const MemberFn& m, int n, const std::vector<Mat>& mats, const Style& st = style("packed"), int threads = 1) {
  const Name nm = parseName(m.name);
  const int scratch = isSym(nm.family) ? 1 : m.nop - 1, count = int(mats.size());
  const int scratchLen = isSym(nm.family) ? n * n : n * (3 * n + 5);
  CallFixture fx(m, count, st, [&](int b) {
    return m.blk[b].kind ? Extent{n, n} : Extent{1, b == scratch ? scratchLen : n};
  });
  const int objs = fx.isArray(0) ? count : 1;
  for (int k = 0; k < objs; ++k)
    for (int r = 0; r < n; ++r)
      for (int c = 0; c < n; ++c) fx.block(0).set(k, r, c, mats[size_t(k)][size_t(r * n + c)]);
  fx.args.order = n;
  fx.args.count = count;
  Out o{fx.run(threads), n, nm.esize, {}, {}, fx.untouched()};
  for (int k = 0; k < objs; ++k) {
    o.vals.emplace_back();
    o.vecs.emplace_back();
    for (int b = 1; b < m.nop; ++b)
      for (int r = 0; b != scratch && r < n; ++r)
        for (int c = 0; c < (m.blk[b].kind ? n : 1); ++c)
          if (m.blk[b].kind) o.vecs.back().push_back(fx.block(b).bits(k, r, c));
          else o.vals.back().push_back(fx.block(b).bits(0, 0, k * n + r));
  }
  return o;
}

// ---- Matrices ----------------------------------------------------------------------------------

// Kinds that reach different branches: dense; sparse (splits, reflections left out); diagonal
// (symmetric) or lower triangular (H already triangular); small integers (ties, exact
// cancellation); scaled: symmetric elements over a wide range, general ones far down (in double
// below the float tiny, where the double left vectors' float threshold decides).
Mat source(std::mt19937& rng, int n, int kind, int esize, bool sym) {
  std::uniform_int_distribution<int> coin(0, 1), small(-3, 3);
  Mat a(size_t(n * n));
  for (int r = 0; r < n; ++r)
    for (int c = 0; c < n; ++c) {
      double v = kind == 3 ? small(rng) : randomValue(rng, esize);
      if ((kind == 1 && r != c && coin(rng)) || (kind == 2 && c > r)) v = 0;
      if (kind == 4) v = std::ldexp(v, sym ? 6 * small(rng) : esize == 4 ? -100 : -130);
      a[size_t(r * n + c)] = v;
    }
  for (int r = 0; sym && r < n; ++r)
    for (int c = 0; c < r; ++c) a[size_t(r * n + c)] = a[size_t(c * n + r)];
  return a;
}

// Q B Q^T with Q a random orthogonal matrix (Gram-Schmidt), rounded to the element type.
Mat similar(std::mt19937& rng, const Mat& b, int n, int esize) {
  std::normal_distribution<double> g;
  Mat q(size_t(n * n)), a(size_t(n * n));
  for (double& x : q) x = g(rng);
  for (int c = 0; c < n; ++c) {
    for (int p = 0; p < c; ++p) {
      double dot = 0;
      for (int r = 0; r < n; ++r) dot += q[size_t(r * n + c)] * q[size_t(r * n + p)];
      for (int r = 0; r < n; ++r) q[size_t(r * n + c)] -= dot * q[size_t(r * n + p)];
    }
    double s = 0;
    for (int r = 0; r < n; ++r) s += q[size_t(r * n + c)] * q[size_t(r * n + c)];
    for (int r = 0; r < n; ++r) q[size_t(r * n + c)] /= std::sqrt(s);
  }
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) {
      double s = 0;
      for (int k = 0; k < n; ++k)
        for (int l = 0; l < n; ++l) s += q[size_t(i * n + k)] * b[size_t(k * n + l)] * q[size_t(j * n + l)];
      a[size_t(i * n + j)] = inType(s, esize);
    }
  return a;
}

// A general matrix with distinct real eigenvalues and conjugate pairs far apart (a normal B of
// 1 by 1 and rotation-scaling 2 by 2 blocks); its spectrum goes to `spectrum`.
Mat separated(std::mt19937& rng, int n, int esize, std::vector<Cx>* spectrum = nullptr) {
  std::uniform_real_distribution<double> u(-1, 1);
  Mat b(size_t(n * n), 0.0);
  for (int i = 0; i < n; ++i) {
    const double lam = 1.5 * (i - n / 2) + 0.25 * u(rng);
    b[size_t(i * n + i)] = lam;
    if (i + 1 < n && u(rng) > 0) {
      const double w = 1 + 0.5 * std::fabs(u(rng));
      b[size_t((i + 1) * n + i + 1)] = lam;
      b[size_t(i * n + i + 1)] = w;
      b[size_t((i + 1) * n + i)] = -w;
      if (spectrum) spectrum->insert(spectrum->end(), {{lam, w}, {lam, -w}});
      ++i;
    } else if (spectrum) {
      spectrum->push_back(lam);
    }
  }
  return similar(rng, b, n, esize);
}

// ---- Bits on every path ------------------------------------------------------------------------

// Per family, type and order 1 to 8: eleven matrices the member solves (a whole group of lanes
// and a partial one for either type) in LayoutS packed are the reference. Every array member in
// every placement gives their bits; each matrix alone through the single member gives the bits
// it has in the batch (but the single 32f symmetric vectors, whose arithmetic is their own), and
// the single members give those bits in every placement.
TEST(Eigen, EveryLayoutPlacementAndSingleMatrixGivesTheSameBits) {
  std::mt19937 rng(11);
  for (const std::string& fam : kAll)
    for (int esize : {4, 8})
      for (int n = 1; n <= 8; ++n) {
        const std::string at = fam + " order " + std::to_string(n) + (esize == 4 ? " 32f " : " 64f ");
        const MemberFn& single = member(typed(fam, "_m", esize));
        std::vector<Mat> mats;
        std::vector<Out> alone;
        for (int kind = 0; mats.size() < 11 && kind < 500; ++kind) {
          const Mat a = source(rng, n, kind % 5, esize, isSym(fam));
          Out o = run(single, n, {a});
          if (o.status == 0 && (o.vecs[0].empty() || !canary(o.vecs[0][0], esize))) mats.push_back(a), alone.push_back(o);
        }
        const Out ref = run(member(typed(fam, "_ma", esize)), n, mats);
        ASSERT_EQ(ref.status, 0) << at;
        for (size_t k = 0; k < mats.size() && !(fam == "EigenValuesVectorsSym" && esize == 4); ++k)
          EXPECT_TRUE(alone[k].vals[0] == ref.vals[k] && alone[k].vecs[0] == ref.vecs[k]) << at << "object " << k;
        for (const Style& st : styles()) {
          if (st.misalignBytes % esize) continue;  // the eigen members ask for the element's alignment
          for (const char* suffix : {"", "_L", "_P"}) {
            const Out o = run(member(typed(fam, "_ma", esize) + suffix), n, mats, st);
            EXPECT_TRUE(o.status == 0 && o.vals == ref.vals && o.vecs == ref.vecs) << at << suffix << " " << st.name;
            EXPECT_EQ(o.fault, "") << at << suffix << " " << st.name;
          }
          for (const char* suffix : {"", "_P"})
            for (size_t k = 0; k < 3; ++k) {
              const Out o = run(member(typed(fam, "_m", esize) + suffix), n, {mats[k]}, st);
              EXPECT_TRUE(o.status == 0 && o.vals == alone[k].vals && o.vecs == alone[k].vecs)
                  << at << "single" << suffix << " " << st.name << " object " << k;
              EXPECT_EQ(o.fault, "") << at << suffix << " " << st.name;
            }
        }
      }
}

// Past the parallel limit, on 1, 2 and 3 threads, contiguous and strided: with no failing object
// every object holds the bits of the serial walk; with failing objects (first, inside a group of
// lanes, in the last one, in several slices) each slice stops at its first, behind which nothing
// is written, and the call returns the failure.
TEST(Eigen, SlicesOnOneToThreeThreadsStopAtTheirFirstFailure) {
  for (const std::string& fam : kAll)
    for (const MemberFn* m : membersOf(fam)) {
      if (parseName(m->name).pattern != "ma") continue;
      const bool sym = isSym(fam);
      const int count = fam == "EigenValuesSym" ? 2100 : fam == "EigenValuesVectorsSym" ? 60 : fam == "EigenValues" ? 520 : 140;
      const BatchRow row{m->name, 4, count, sym ? Fill::Symmetric : Fill::Random, sym ? Spoil::Zero : Spoil::NaN,
                         sym ? tarnStatusSingular : tarnStatusNoConvergence};
      for (const char* sn : {"packed", "strided"}) {
        const auto clean = makeBatch(row, style(sn), 5);
        ASSERT_EQ(clean->run(1), 0) << m->name;
        const std::vector<std::vector<int>> bads = {{}, {0}, {6}, {count - 2}, {5, count / 2 + 1, count - 3}};
        for (int threads = 1; threads <= 3; ++threads)
          for (const std::vector<int>& bad : bads) {
            const auto fx = makeBatch(row, style(sn), 5, bad);
            EXPECT_EQ(fx->run(threads), bad.empty() ? 0 : row.fails) << m->name << " threads " << threads;
            EXPECT_EQ(compareBatch(row, *fx, *clean, bad, threads) + fx->untouched(), "")
                << sn << " threads " << threads << " failing " << bad.size();
          }
      }
    }
}

// A region from E = n(n+1)count > 20000 (32f LayoutL contiguous: 40000), n(2n+1)count > 1700,
// n(n+1)count > 10000 and n(3n+1)count > 7000 on: E on the limit stays serial, the next E that
// exists opens one region, and the caller's scratch is then left alone. Fewer objects than
// threads stay serial whatever E is.
TEST(Eigen, RegionsFromTheLimitOn) {
  struct Case {
    const char* family;
    int nOn, countOn, nPast, countPast;
  };
  const Case cases[] = {{"EigenValuesSym", 4, 1000, 4, 1001},       {"EigenValuesVectorsSym", 2, 170, 3, 81},
                        {"EigenValues", 1, 5000, 1, 5001},          {"EigenValuesVectorsRight", 2, 500, 2, 501},
                        {"EigenValuesVectorsLeft", 2, 500, 2, 501}, {"EigenValuesVectors", 2, 500, 2, 501}};
  for (const Case& c : cases)
    for (const MemberFn* m : membersOf(c.family)) {
      const Name nm = parseName(m->name);
      if (nm.pattern != "ma") continue;
      for (const char* sn : {"packed", "strided"}) {
        const int wide = nm.family == "EigenValuesSym" && nm.esize == 4 && nm.layout == 'L' && sn == std::string("packed") ? 2 : 1;
        for (bool past : {false, true}) {
          const BatchRow row{m->name, past ? c.nPast : c.nOn, (past ? c.countPast : c.countOn) * wide,
                             isSym(c.family) ? Fill::Symmetric : Fill::Random};
          const auto fx = makeBatch(row, style(sn), 3);
          const int scratch = isSym(c.family) ? 1 : m->nop - 1;
          std::vector<ScratchBlock> blocks;
          EXPECT_EQ(regionsOpenedBy([&] { blocks = scratchDuring([&] { EXPECT_EQ(fx->run(2), 0) << m->name; }); }), past ? 1 : 0)
              << m->name << " " << sn << " count " << row.count;
          // Two threads' work space: a working matrix each, or what the general vector families ask for.
          const size_t per = size_t(isSym(c.family) ? row.n * row.n : row.n * (3 * row.n + 5)) * size_t(nm.esize);
          ASSERT_EQ(blocks.size(), past ? 1u : 0u) << m->name;
          EXPECT_TRUE(!past || (blocks[0].bytes == 2 * per && blocks[0].released &&
                                std::count(blocks[0].content.begin() + long(per) * 2, blocks[0].content.end(), kFill) == long(kScratchTail)))
              << m->name << " scratch of " << blocks[0].bytes;
          for (int e = 0; past && e < row.n * (3 * row.n + 5); ++e)
            ASSERT_EQ(fx->block(scratch).bits(0, 0, e), fx->before(scratch).bits(0, 0, e)) << m->name << " scratch";
        }
      }
    }
  const auto fx = makeBatch({"tarnEigenValues_ma_32f", 60, 3}, style("packed"), 3);  // E = 60*61*3 = 10980
  EXPECT_EQ(regionsOpenedBy([&] { fx->run(4); }), 0);
}

TEST(Eigen, ScratchSizes) {
  struct Case {
    std::string name;
    int32_t n, want;
  };
  const std::string v = "tarnEigenValuesGetBufSize", vv = "tarnEigenValuesVectorsGetBufSize";
  const Case cases[] = {{v + "_32f", 1, 24},     {v + "_64f", 1, 48},     {vv + "_32f", 1, 32}, {vv + "_64f", 1, 64},
                        {v + "_32f", 3, 96},     {vv + "_32f", 3, 168},  // then 32-bit arithmetic that wraps
                        {v + "_32f", 30000, -694367296},  {v + "_64f", 30000, -1388734592},
                        {vv + "_32f", 30000, -2084301888}, {vv + "_64f", 30000, 126363520}, {vv + "_64f", 2147483647, -16}};
  for (const Case& c : cases) {
    Args a;
    int32_t size = 7;
    a.op[0].ptr = &size;
    for (int32_t n : {c.n, 0, -1}) {  // the size is tested before anything is written
      a.order = n;
      EXPECT_EQ(member(c.name).call(a), n > 0 ? 0 : tarnStatusBadSize) << c.name;
      EXPECT_EQ(size, c.want) << c.name << " " << n;
    }
    a.op[0].ptr = nullptr;  // the pointer before the size
    EXPECT_EQ(member(c.name).call(a), tarnStatusNullPointer) << c.name;
  }
}

// ---- Symmetric: mathematics and the odd rules --------------------------------------------------

// Empty when the columns of object k of `o` are orthonormal eigenvectors of `a` for its values.
std::string symResidual(const Mat& a, const Out& o, size_t k, double tol) {
  const int n = o.n;
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < n; ++i) {
      double av = 0, dot = 0;
      for (int c = 0; c < n; ++c) av += a[size_t(i * n + c)] * o.vec(k, c, j);
      for (int r = 0; r < n; ++r) dot += o.vec(k, r, i) * o.vec(k, r, j);
      if (!(std::fabs(av - o.val(k, j) * o.vec(k, i, j)) <= tol) || !(std::fabs(dot - (i == j)) <= tol))
        return "vector " + std::to_string(j) + " row " + std::to_string(i);
    }
  return "";
}

// Q diag(lambda) Q^T with eigenvalues 1/n apart, signs mixed, all within 1.25 in magnitude (the
// tests are absolute: larger values in single precision may keep an off-diagonal element above
// 2 eps): the values in descending order (order 2 unsorted), orthonormal eigenvectors.
TEST(EigenSym, BuiltInSpectraAndOrthonormalVectors) {
  for (const std::string& fam : kSym)
    for (const MemberFn* m : membersOf(fam)) {
      const Name nm = parseName(m->name);
      std::mt19937 rng(11);
      for (int n = 1; n <= 8; ++n) {
        const double tol = (nm.esize == 4 ? 2e-5 : 4e-14) * n;
        Mat d(size_t(n * n), 0.0);
        std::vector<double> lam;
        for (int c = 0; c < n; ++c) lam.push_back(d[size_t(c * n + c)] = ((c + 1) * (c % 2 ? -1.0 : 1.0) + 0.25) / n);
        const Mat a = similar(rng, d, n, nm.esize);
        std::sort(lam.begin(), lam.end(), std::greater<>());
        if (n == 2 && lam[0] + lam[1] < 0) std::swap(lam[0], lam[1]);
        const Out o = run(*m, n, {a});
        ASSERT_EQ(o.status, 0) << m->name << " order " << n;
        for (int j = 0; j < n; ++j) EXPECT_NEAR(o.val(0, j), lam[size_t(j)], tol) << m->name << " order " << n;
        EXPECT_EQ(fam == "EigenValuesVectorsSym" ? symResidual(a, o, 0, tol) : "", "") << m->name << " order " << n;
      }
    }
}

// Matrices built from the member's eps; expectations typed from the rules of the family.
struct Typed {
  const char* what;
  int n;
  Mat (*make)(double eps);
  tarnStatus want;
  std::vector<double> (*values)(double eps) = nullptr;
  Mat vectors = {};                 // row-major, exact
  Mat (*solves)(double eps) = nullptr;  // the columns are orthonormal eigenvectors of this matrix
};

Mat itself(double) { return {}; }
// diag(2, 3, 4, 5) with (1, 0) = b and below it in column 0 x1, x2, symmetric.
Mat column0(double b, double x1, double x2) { return {2, b, x1, x2, b, 3, 0, 0, x1, 0, 4, 0, x2, 0, 0, 5}; }

TEST(EigenSym, TypedCases) {
  constexpr double t = 1 + 0x1p-20;  // one step above a limit, in both types
  using V = std::vector<double>;
  const Typed cases[] = {
      {"1x1 zero succeeds", 1, [](double) { return Mat{0}; }, 0, [](double) { return V{0}; }, {1}},
      {"2x2 zero is singular", 2, [](double) { return Mat(4, 0.0); }, tarnStatusSingular},
      {"2x2 determinant at eps is singular", 2, [](double e) { return Mat{1, 0, 0, e}; }, tarnStatusSingular},
      {"2x2 determinant above eps", 2, [](double e) { return Mat{1, 0, 0, e * t}; }, 0, nullptr, {}, itself},
      {"2x2 negative trace stays ascending", 2, [](double) { return Mat{-1, 0, 0, -2}; }, 0,
       [](double) { return V{-2, -1}; }},
      {"2x2 trace inside eps", 2, [](double) { return Mat{1, 0, 0, -1}; }, 0, [](double) { return V{1, -1}; }},
      {"2x2 identity", 2, [](double) { return Mat{1, 0, 0, 1}; }, 0, [](double) { return V{1, 1}; }, {0, -1, 1, 0}},
      {"3x3 zero is singular, values zero", 3, [](double) { return Mat(9, 0.0); }, tarnStatusSingular,
       [](double) { return V{0, 0, 0}; }},
      {"3x3 diagonal sorted", 3, [](double) { return Mat{1, 0, 0, 0, 3, 0, 0, 0, 2}; }, 0,
       [](double) { return V{3, 2, 1}; }, {0, 0, 1, 1, 0, 0, 0, 1, 0}},
      {"3x3 zero on the diagonal: unsorted", 3, [](double) { return Mat{1, 0, 0, 0, 0, 0, 0, 0, 2}; },
       tarnStatusSingular, [](double) { return V{1, 0, 2}; }, {1, 0, 0, 0, 1, 0, 0, 0, 1}},
      {"4x4 equal values keep their order", 4, [](double) { return Mat{2, 0, 0, 0, 0, 5, 0, 0, 0, 0, 2, 0, 0, 0, 0, 5}; },
       0, [](double) { return V{5, 5, 2, 2}; }, {0, 0, 0, 1, 1, 0, 0, 0, 0, 0, 1, 0, 0, 1, 0, 0}},
      // Off-diagonal elements of magnitude 2 eps count as zero; a step above they split the equal
      // diagonal elements.
      {"off-diagonal at 2 eps ignored", 3, [](double e) { return Mat{1, 2 * e, 0, 2 * e, 1, 0, 0, 0, 3}; }, 0,
       [](double) { return V{3, 1, 1}; }},
      {"off-diagonal above 2 eps taken", 3, [](double e) { return Mat{1, 2 * e * t, 0, 2 * e * t, 1, 0, 0, 0, 3}; }, 0,
       [](double e) { return V{3, 1 + 2 * e, 1 - 2 * e}; }},
      // The product of the values: eps exactly is singular, a step above is not.
      {"product at eps", 3, [](double e) { return Mat{1, 0, 0, 0, e, 0, 0, 0, 1}; }, tarnStatusSingular,
       [](double e) { return V{1, e, 1}; }},
      {"product above eps", 3, [](double e) { return Mat{1, 0, 0, 0, e * t, 0, 0, 0, 1}; }, 0,
       [](double e) { return V{1, 1, e * t}; }},
      {"NaN off the diagonal never converges", 3, [](double) { return Mat{1, kNaN, 0, kNaN, 2, 1, 0, 1, 3}; },
       tarnStatusNoConvergence},
      {"NaN on the diagonal of a diagonal matrix", 3, [](double) { return Mat{kNaN, 0, 0, 0, 2, 0, 0, 0, 1}; }, 0},
      // The trace of order 2 against -eps: at -eps the pair is +-q/2, a step below the larger
      // magnitude comes first.
      {"2x2 trace at -eps", 2, [](double e) { return Mat{0.125, 0.5, 0.5, -0.125 - e}; }, 0,
       [](double e) { return V{0.5 * std::hypot(0.25 + e, 1.0), -0.5 * std::hypot(0.25 + e, 1.0)}; }},
      {"2x2 trace a step below -eps", 2, [](double e) { return Mat{0.125, 0.5, 0.5, -0.125 - 2 * e}; }, 0,
       [](double e) {
         const double q = std::sqrt((0.25 + 2 * e) * (0.25 + 2 * e) + 1), v0 = 0.5 * (-2 * e - q);
         return V{v0, (0.125 * (-0.125 - 2 * e) - 0.25) / v0};
       }},
      // A reflection whose h is eps is left out, and the element it would have moved is never
      // read again; a step above it is applied.
      {"reflection with h at eps", 4, [](double e) { return e > 0x1p-30 ? column0(0, 0x1p-12, 0) : column0(0, 0x1p-27, 0x1p-27); },
       0, [](double) { return V{5, 4, 3, 2}; }, {0, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 0}},
      {"reflection with h a step above eps", 4,
       [](double e) { return e > 0x1p-30 ? column0(0, 0x1p-12 + 0x1p-22, 0) : column0(0, 0x1p-27 + 0x1p-47, 0x1p-27 + 0x1p-47); },
       0, nullptr, {}, itself},
      // With vectors a column whose norm exceeds its subdiagonal element by eps (in the member's
      // arithmetic) is left as it is, the elements below never read; by 2 eps it is reflected.
      {"column within eps of its form", 4,
       [](double e) { return e > 0x1p-30 ? column0(1, 0x1p-11, 0x1p-23) : column0(1, 0x1.4p-26, 0); }, 0, nullptr, {},
       [](double) { return column0(1, 0, 0); }},
      {"column 2 eps from its form", 4,
       [](double e) { return e > 0x1p-30 ? column0(1, 0x1p-11, 0x1p-11) : column0(1, 0x1p-25, 0); }, 0, nullptr, {}, itself},
      // An eigenvalue that takes exactly 30 sweeps succeeds; one that would take 31 fails.
      {"30 sweeps for one eigenvalue", 4,
       [](double e) {
         return e > 0x1p-30 ? Mat{2, 0, 3, -3, 0, -1, -1, 2, 3, -1, 1, 1, -3, 2, 1, -3}
                            : Mat{2, 2, 0, 1, 2, -3, -1, 3, 0, -1, 2, 2, 1, 3, 2, 2};
       },
       0, nullptr, {}, itself},
      {"31 sweeps for one eigenvalue", 4,
       [](double e) {
         return e > 0x1p-30 ? Mat{3, 3, -1, 0, 3, -1, 0, -3, -1, 0, -1, -1, 0, -3, -1, -1}
                            : Mat{-2, 2, 0, 0, 2, 2, -1, 3, 0, -1, 2, 0, 0, 3, 0, 0};
       },
       tarnStatusNoConvergence},
  };
  for (const std::string& fam : kSym)
    for (const MemberFn* m : membersOf(fam)) {
      const Name nm = parseName(m->name);
      const double eps = epsOf(nm.esize);
      for (const Typed& c : cases) {
        const Mat a = c.make(eps);
        const Out o = run(*m, c.n, std::vector<Mat>(nm.pattern == "ma" ? 5 : 1, a));
        const std::string what = std::string(c.what) + ": " + m->name;
        EXPECT_EQ(o.fault, "") << what;
        EXPECT_EQ(o.status, c.want) << what;
        for (size_t j = 0; c.values && j < c.values(eps).size(); ++j)
          EXPECT_NEAR(o.val(0, int(j)), c.values(eps)[j], 4 * eps) << what << " value " << j;
        if (fam == "EigenValuesSym") continue;
        for (int j = 0; j < int(c.vectors.size()); ++j) EXPECT_EQ(o.vec(0, j / c.n, j % c.n), c.vectors[size_t(j)]) << what;
        const double tol = (nm.esize == 4 ? 2e-5 : 4e-14) * c.n;
        EXPECT_EQ(c.solves ? symResidual(c.solves == itself ? a : c.solves(eps), o, 0, tol) : "", "") << what;
      }
    }
}

// The upward sweep's shift takes g + r for g > eps, and g - r for a g in (0, eps]; only the
// strided worker of a single 32f matrix with vectors takes g + r for any g > 0. A tridiagonal
// matrix whose first shift is g = eps/2 shows the difference.
TEST(EigenSym, ShiftOfTheStridedSingleFloatVectorsWorker) {
  for (const std::string& fam : kSym)
    for (const MemberFn* m : membersOf(fam)) {
      const double eps = epsOf(parseName(m->name).esize);
      const std::vector<Mat> mats(parseName(m->name).pattern == "ma" ? 3 : 1, Mat{1, 1, 0, 1, 1 + eps, 0.5, 0, 0.5, 3});
      const Out packed = run(*m, 3, mats), strided = run(*m, 3, mats, style("strided"));
      ASSERT_TRUE(packed.status == 0 && strided.status == 0) << m->name;
      const bool differs = packed.vals != strided.vals || packed.vecs != strided.vecs;
      EXPECT_EQ(differs, std::string(m->name) == "tarnEigenValuesVectorsSym_m_32f") << m->name;
    }
}

// ---- General: mathematics ----------------------------------------------------------------------

double frobenius(const Mat& a) { return std::sqrt(std::inner_product(a.begin(), a.end(), a.begin(), 0.0)); }

// Determinant by elimination with partial pivoting in long double.
double determinant(Mat m, int n) {
  std::vector<long double> a(m.begin(), m.end());
  long double det = 1;
  for (int c = 0; c < n; ++c) {
    int p = c;
    for (int r = c + 1; r < n; ++r)
      if (std::fabs(a[size_t(r * n + c)]) > std::fabs(a[size_t(p * n + c)])) p = r;
    if (p != c) det = -det;
    for (int j = 0; j < n; ++j) std::swap(a[size_t(c * n + j)], a[size_t(p * n + j)]);
    det *= a[size_t(c * n + c)];
    for (int r = c + 1; r < n && a[size_t(c * n + c)] != 0; ++r)
      for (int j = n - 1; j >= c; --j) a[size_t(r * n + j)] -= a[size_t(r * n + c)] / a[size_t(c * n + c)] * a[size_t(c * n + j)];
  }
  return double(det);
}

Cx eigenvalue(const Out& o, size_t k, int i) { return {o.val(k, i), o.val(k, o.n + i)}; }

// Residuals of every vector of one side, unit length, and a pair's largest component real.
void checkVectors(const Out& o, const Mat& a, int side, bool left, const std::string& what) {
  const int n = o.n;
  const double eps = epsOf(o.esize), tol = 16 * n * eps * frobenius(a);
  for (int j = 0; j < n;) {
    const bool pair = o.val(0, n + j) != 0;
    const Cx lam = left ? std::conj(eigenvalue(o, 0, j)) : eigenvalue(o, 0, j);  // a left pair's columns: the conjugate
    std::vector<Cx> x;
    double len = 0, best = 0;
    for (int i = 0; i < n; ++i) {
      x.emplace_back(o.vec(0, i, j, side), pair ? o.vec(0, i, j + 1, side) : 0.0);
      len += std::norm(x.back());
      best = std::max(best, std::norm(x.back()));
    }
    EXPECT_NEAR(len, 1.0, 8 * n * eps) << what << " vector " << j;
    bool realLargest = false;  // one of the largest components within rounding
    for (const Cx& c : x) realLargest |= std::norm(c) >= best - 8 * n * eps && std::fabs(c.imag()) <= 4 * eps;
    EXPECT_TRUE(realLargest) << what << " vector " << j;
    for (int i = 0; i < n; ++i) {
      Cx s = 0;
      for (int c = 0; c < n; ++c) s += (left ? a[size_t(i * n + c)] : a[size_t(c * n + i)]) * x[size_t(c)];
      EXPECT_LE(std::abs(s - lam * x[size_t(i)]), tol) << what << " vector " << j << " row " << i;
    }
    j += pair ? 2 : 1;
  }
}

// To a tolerance fixed by order and type: on matrices with a spectrum built in, that spectrum
// (a pair with its positive imaginary part first) and vectors that solve their equations; on
// random matrices the trace and the determinant.
TEST(GeneralEigen, SpectraTraceDeterminantAndVectors) {
  std::mt19937 rng(12);
  for (const std::string& fam : kGeneral)
    for (const MemberFn* m : membersOf(fam)) {
      const Name nm = parseName(m->name);
      for (int n = 1; n <= 8; ++n) {
        const std::string what = std::string(m->name) + " order " + std::to_string(n);
        std::vector<Cx> spectrum;
        const Mat a = separated(rng, n, nm.esize, &spectrum);
        const double tol = 16 * n * epsOf(nm.esize) * frobenius(a);
        const Out o = run(*m, n, {a});
        ASSERT_EQ(o.status, 0) << what;
        std::vector<bool> used(size_t(n), false);
        for (int i = 0; i < n; ++i) {
          EXPECT_TRUE(o.val(0, n + i) <= 0 || eigenvalue(o, 0, i + 1) == std::conj(eigenvalue(o, 0, i))) << what;
          size_t best = 0;
          for (size_t s = 0; s < spectrum.size(); ++s)
            if (!used[s] && (used[best] || std::abs(spectrum[s] - eigenvalue(o, 0, i)) < std::abs(spectrum[best] - eigenvalue(o, 0, i)))) best = s;
          used[best] = true;
          EXPECT_LE(std::abs(spectrum[best] - eigenvalue(o, 0, i)), tol) << what << " value " << i;
        }
        if (fam != "EigenValues") checkVectors(o, a, 0, fam == "EigenValuesVectorsLeft", what);
        if (fam == "EigenValuesVectors") checkVectors(o, a, 1, true, what + " left");
        Mat r(size_t(n * n));
        for (double& x : r) x = randomValue(rng, nm.esize);
        const Out q = run(*m, n, {r});
        if (q.status) continue;  // a vector system that cannot be solved; the values are the point here
        Cx sum = 0, prod = 1;
        double trace = 0;
        for (int i = 0; i < n; ++i) sum += eigenvalue(q, 0, i), prod *= eigenvalue(q, 0, i), trace += r[size_t(i * n + i)];
        const double rt = 16 * n * epsOf(nm.esize) * frobenius(r);
        EXPECT_NEAR(sum.real(), trace, rt) << what;
        EXPECT_EQ(sum.imag(), 0.0) << what;
        EXPECT_LE(std::abs(prod - determinant(r, n)), n * rt * std::pow(frobenius(r), n - 1)) << what;
      }
    }
}

// Blocks that stall the ordinary double shift: a weighted cyclic shift (its last block needs 22
// iterations, so the exceptional shift of iteration 20 decides it; eigenvalues the fifth roots of
// 6), a nilpotent matrix (32 iterations) and one that the relative test keeps for 42 iterations.
// Each converges to its trace and determinant.
TEST(GeneralEigen, StallingBlocksConverge) {
  struct Case {
    int n;
    Mat src;
    double det;
  };
  const Case cases[] = {
      {5, {0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 3, 2, 0, 0, 0, 0}, 6},
      {6, {0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0}, 0},
      {4, {0, 1, 0, 0, 0, 0, -1, 0, 0, 2, 0, 1, 1, 0, 0, 0}, 1},
  };
  for (const std::string& fam : kGeneral)
    for (const MemberFn* m : membersOf(fam))
      for (const Case& c : cases) {
        const Out o = run(*m, c.n, {c.src});
        const double tol = c.n * c.n * epsOf(o.esize) * 4;
        ASSERT_EQ(o.status, 0) << m->name << " order " << c.n;
        Cx sum = 0, prod = 1;
        for (int i = 0; i < c.n; ++i) sum += eigenvalue(o, 0, i), prod *= eigenvalue(o, 0, i);
        EXPECT_LE(std::abs(sum), tol) << m->name << " order " << c.n;
        EXPECT_LE(std::abs(prod - c.det), tol * 16) << m->name << " order " << c.n;
      }
}

// ---- General: the odd rules --------------------------------------------------------------------

// The stated results of small matrices that meet the odd rules, their vectors by their equations
// (but where equal diagonal elements make a real pair complex), and the unit vectors of diagonal
// and zero matrices (Q and T leave them), in the diagonal's order.
TEST(GeneralEigen, StatedResultsOfSpecialMatrices) {
  struct Case {
    const char* what;
    int n;
    Mat src;
    std::vector<double> re, im;
  };
  // Equal diagonal elements: always the pair sqrt(|b|) sqrt(|c|), roots and product in double.
  const double s2 = std::sqrt(2.0) * std::sqrt(2.0), s6 = std::sqrt(2.0) * std::sqrt(3.0);
  const Case cases[] = {
      {"1x1 zero", 1, {0}, {0}, {0}},
      {"1x1", 1, {-3.5}, {-3.5}, {0}},
      {"equal diagonal, b = c", 2, {1, 2, 2, 1}, {1, 1}, {s2, -s2}},
      {"equal diagonal, b c > 0", 2, {1, 2, 3, 1}, {1, 1}, {s6, -s6}},
      {"rotation", 2, {0, -1, 1, 0}, {0, 0}, {1, -1}},
      {"real pair", 2, {1, 2, 2, 3}, {2 - std::sqrt(5.0), 2 + std::sqrt(5.0)}, {0, 0}},
      {"upper triangular: the block exchanges a and d", 2, {1, 2, 0, 3}, {3, 1}, {0, 0}},
      {"lower triangular", 4, {2, 0, 0, 0, 5, -1, 0, 0, 7, 3, 4, 0, 1, 1, 1, 0.5}, {2, -1, 4, 0.5}, {0, 0, 0, 0}},
      {"diagonal", 3, {3, 0, 0, 0, -2, 0, 0, 0, 7}, {3, -2, 7}, {0, 0, 0}},
      {"zero", 3, Mat(9, 0.0), {0, 0, 0}, {0, 0, 0}},
  };
  const float y = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(1.0f)));
  const float approxOne = (-0.5f * y) * (1.0f * y * y - 3.0f);  // the left/right float normalisation of 1
  for (const std::string& fam : kGeneral)
    for (const MemberFn* m : membersOf(fam)) {
      const Name nm = parseName(m->name);
      for (const Case& c : cases) {
        const Out o = run(*m, c.n, {c.src});
        const std::string what = std::string(m->name) + " " + c.what, cw = c.what;
        ASSERT_EQ(o.status, 0) << what;
        for (int i = 0; i < c.n; ++i) {
          const double want = inType(c.re[size_t(i)], nm.esize);
          if (cw != "real pair") EXPECT_EQ(o.vals[0][size_t(i)], bitsOf(want, nm.esize)) << what << " re " << i;
          else EXPECT_NEAR(o.val(0, i), want, 1e-6) << what << " re " << i;
          EXPECT_EQ(o.vals[0][size_t(c.n + i)], bitsOf(inType(c.im[size_t(i)], nm.esize), nm.esize)) << what << " im " << i;
        }
        if (fam != "EigenValues" && !cw.starts_with("equal")) checkVectors(o, c.src, 0, fam == "EigenValuesVectorsLeft", what);
        if (fam == "EigenValuesVectors" && !cw.starts_with("equal")) checkVectors(o, c.src, 1, true, what + " left");
        if ((cw == "diagonal" || cw == "zero" || c.n == 1) && fam != "EigenValues") {
          const double one = nm.esize == 4 && fam != "EigenValuesVectors" && c.n > 1 ? double(approxOne) : 1.0;
          for (size_t e = 0; e < o.vecs[0].size(); ++e)
            EXPECT_EQ(o.vecs[0][e], bitsOf(e / c.n % c.n == e % c.n ? one : 0.0, nm.esize)) << what << " vector " << e;
        }
      }
    }
}

// b = c tiny with equal (zero) diagonal elements: the eigenvalue members deflate absolutely and
// return two real zeros; the vector members' relative test keeps the block, whose equal diagonal
// makes it the pair +-b i, except in the double left vectors, whose float tiny takes c as zero.
TEST(GeneralEigen, TinyBlockAndTheFloatTinyOfTheDoubleLeftVectors) {
  for (const std::string& fam : kGeneral)
    for (const MemberFn* m : membersOf(fam)) {
      const Name nm = parseName(m->name);
      const double b = nm.esize == 4 ? double(1e-30f) : 1e-200;
      const Out o = run(*m, 2, {{0, b, b, 0}});
      const bool real = fam == "EigenValues" || (fam == "EigenValuesVectorsLeft" && nm.esize == 8);
      EXPECT_TRUE(o.val(0, 0) == 0 && o.val(0, 1) == 0) << m->name;
      EXPECT_NEAR(o.val(0, 2), real ? 0 : b, b * 1e-6) << m->name;
      EXPECT_NEAR(o.val(0, 3), real ? 0 : -b, b * 1e-6) << m->name;
    }
}

// a - d = 0.002, b c just above -(a - d)^2 / 4: two real eigenvalues 1 +- 3e-5 (1 +- 3e-9 in
// double), which the block's rule places at t +- p, p the half-difference 0.001.
TEST(GeneralEigen, NearlyEqualRealPairKeepsTheHalfDifference) {
  for (const std::string& fam : kGeneral)
    for (const MemberFn* m : membersOf(fam)) {
      const bool f32 = parseName(m->name).esize == 4;
      const Out o = run(*m, 2, {{1.001, f32 ? -9.99e-7 : -(1e-6 - 1e-17), 1, 0.999}});
      ASSERT_EQ(o.status, 0) << m->name;
      EXPECT_NEAR(o.val(0, 0), 1.001, 1e-6) << m->name;
      EXPECT_NEAR(o.val(0, 1), 0.999, 1e-6) << m->name;
      EXPECT_EQ(o.vals[0][2] | o.vals[0][3], 0u) << m->name;
    }
}

// H = transpose(src) is already Hessenberg; its last row splits off at once with eigenvalue 9,
// the NaN of the leading block then exhausts the budget.
const Mat kNaNMatrix = {kNaN, 1, 0, 0, 1, 4, 1, 0, 2, 5, 7, 0, 3, 6, 8, 9};
// The second block's eigenvalues make |wr| + |wi| overflow, so smin is infinite and the leading
// block's system, every entry finite, counts as below it: a complex right-hand side that cannot
// be solved. For left vectors the same with the blocks exchanged.
Mat solveFailure(bool left, int esize) {
  const double a = esize == 4 ? 1.5e38 : 8e307, w = esize == 4 ? 2e38 : 1e308, b = a / 150;
  const Mat h = left ? Mat{a, -w, 1, 1, w, a, 1, 1, 0, 0, a, b, 0, 0, -b, a} : Mat{a, b, 1, 1, -b, a, 1, 1, 0, 0, a, -w, 0, 0, w, a};
  Mat src(16);
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) src[size_t(i * 4 + j)] = h[size_t(j * 4 + i)];
  return src;
}

TEST(GeneralEigen, FailuresKeepWhatTheyFoundAndEndTheWalk) {
  std::mt19937 rng(13);
  for (const std::string& fam : kGeneral)
    for (const MemberFn* m : membersOf(fam)) {
      const Name nm = parseName(m->name);
      // NaN: -205 with the eigenvalue found before it; vectors untouched.
      Out o = run(*m, 4, {kNaNMatrix});
      EXPECT_EQ(o.status, tarnStatusNoConvergence) << m->name;
      EXPECT_TRUE(o.val(0, 3) == 9.0 && o.vals[0][7] == 0u) << m->name;
      for (int i : {0, 1, 2, 4, 5, 6}) EXPECT_TRUE(canary(o.vals[0][size_t(i)], nm.esize)) << m->name << " " << i;
      for (uint64_t v : o.vecs[0]) EXPECT_TRUE(canary(v, nm.esize)) << m->name;
      // Finite but large: the shifts overflow and the budget runs out.
      const double big = nm.esize == 4 ? 1e20 : 1e160;
      o = run(*m, 3, {{big, 2 * big, 3 * big, 4 * big, 5 * big, 6 * big, 7 * big, 8 * big, 10 * big}});
      EXPECT_EQ(o.status, tarnStatusNoConvergence) << m->name;
      // Every subdiagonal element of H within eps: already reduced for the absolute test of the
      // eigenvalue members, whose result is then H's diagonal; not so for the relative test.
      const double e = nm.esize == 4 ? 1e-9 : 1e-20;
      o = run(*m, 3, {{e, 4 * e, 0, 2 * e, 5 * e, 7 * e, 3 * e, 6 * e, 8 * e}});
      EXPECT_EQ(o.status, 0) << m->name;
      bool diagonal = true;
      for (int i = 0; i < 3; ++i) diagonal &= o.vals[0][size_t(i)] == bitsOf((i == 0 ? 1 : i == 1 ? 5 : 8) * e, nm.esize);
      EXPECT_EQ(diagonal, fam == "EigenValues") << m->name;
      if (fam == "EigenValues" || nm.pattern != "ma") continue;
      // An unsolvable complex system ends the call with -2: the eigenvalues of that matrix
      // complete, its vectors and every later matrix untouched, earlier ones done.
      const std::vector<Mat> mats = {separated(rng, 4, nm.esize), solveFailure(fam == "EigenValuesVectorsLeft", nm.esize),
                                     separated(rng, 4, nm.esize)};
      o = run(*m, 4, mats, style("padded"));
      const Out first = run(member(typed(fam, "_m", nm.esize)), 4, {mats[0]}), second = run(member(typed(fam, "_m", nm.esize)), 4, {mats[1]});
      EXPECT_EQ(o.status, tarnStatusVectorSolveFailed) << m->name;
      EXPECT_EQ(second.status, tarnStatusVectorSolveFailed) << m->name;
      EXPECT_TRUE(o.vals[0] == first.vals[0] && o.vecs[0] == first.vecs[0] && o.vals[1] == second.vals[0]) << m->name;
      for (uint64_t v : o.vals[2]) EXPECT_TRUE(canary(v, nm.esize)) << m->name;
      for (size_t k : {1, 2})
        for (uint64_t v : o.vecs[k]) EXPECT_TRUE(canary(v, nm.esize)) << m->name << " object " << k;
    }
}

}  // namespace
}  // namespace tt
