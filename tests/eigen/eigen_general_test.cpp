// General eigenproblems: eigenvalues bit for bit against the plain model of the iteration in
// every member, layout and placement; eigenvectors by what they must satisfy (transpose(src)
// v = lambda v on the right, src v = lambda v on the left, unit length, a pair's largest
// component real) and by the same bits wherever and on however many threads they are computed;
// the odd rules, failures, thresholds and scratch sizes as stated for these families.
#include <gtest/gtest.h>
#include <pmmintrin.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "harness.hpp"
#include "ref/eigen_general_ref.hpp"
#include "regions.hpp"

namespace tt {
namespace {

using Mat = std::vector<double>;  // row-major, every value exact in the element type
enum class Fam { Values, Right, Left, Both };
constexpr uint64_t kCanary32 = 0xA5A5A5A5u, kCanary64 = 0xA5A5A5A5A5A5A5A5u;

struct Blocks {
  int dst1, dst2, re, im, scratch;
};
Fam famOf(const std::string& f) {
  return f == "EigenValues" ? Fam::Values : f == "EigenValuesVectorsRight" ? Fam::Right
       : f == "EigenValuesVectorsLeft" ? Fam::Left : Fam::Both;
}
Blocks blocksOf(Fam f) {
  return f == Fam::Values ? Blocks{-1, -1, 1, 2, 3} : f == Fam::Both ? Blocks{1, 2, 3, 4, 5} : Blocks{1, -1, 2, 3, 4};
}

// What one call left behind, as bits in the element type.
struct Out {
  tarnStatus status;
  int n, count, esize;
  std::vector<uint64_t> re, im, v1, v2;  // v: object k, element (i, j) at k*n*n + i*n + j
  std::string fault;
  bool scratchKept;  // the caller's scratch holds what it held before the call
  double val(const std::vector<uint64_t>& v, size_t i) const { return valueOf(v[i], esize); }
};

Out run(const MemberFn& m, int n, const std::vector<Mat>& mats, const Style& st, int threads) {
  const Name nm = parseName(m.name);
  const Blocks b = blocksOf(famOf(nm.family));
  const int count = int(mats.size());
  CallFixture fx(m, count, st, [&](int i) -> Extent {
    if (i == 0 || i == b.dst1 || i == b.dst2) return {n, n};
    return {1, i == b.scratch ? n * (3 * n + 5) : n};
  });
  const int objs = fx.isArray(0) ? count : 1;
  for (int k = 0; k < objs; ++k)
    for (int r = 0; r < n; ++r)
      for (int c = 0; c < n; ++c) fx.block(0).set(k, r, c, mats[size_t(k)][size_t(r * n + c)]);
  fx.args.order = n;
  Out o{fx.run(threads), n, objs, nm.esize, {}, {}, {}, {}, fx.untouched(), true};
  for (int e = 0; e < n * (3 * n + 5); ++e) o.scratchKept &= fx.block(b.scratch).bits(0, 0, e) == fx.before(b.scratch).bits(0, 0, e);
  for (int k = 0; k < objs; ++k) {
    for (int i = 0; i < n; ++i) {
      o.re.push_back(fx.block(b.re).bits(0, 0, k * n + i));
      o.im.push_back(fx.block(b.im).bits(0, 0, k * n + i));
    }
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j) {
        if (b.dst1 >= 0) o.v1.push_back(fx.block(b.dst1).bits(k, i, j));
        if (b.dst2 >= 0) o.v2.push_back(fx.block(b.dst2).bits(k, i, j));
      }
  }
  return o;
}

Mat randomMat(std::mt19937& rng, int n, int esize) {
  Mat a(size_t(n) * n);
  for (double& x : a) x = randomValue(rng, esize);
  return a;
}

// Q diag-blocks Q^T with distinct real eigenvalues and conjugate pairs far apart, Q random
// orthogonal; rounded to the element type.
Mat separated(std::mt19937& rng, int n, int esize) {
  std::uniform_real_distribution<double> u(-1, 1);
  Mat q(size_t(n) * n), bd(size_t(n) * n, 0.0);
  for (double& x : q) x = u(rng);
  for (int j = 0; j < n; ++j) {  // Gram-Schmidt on the columns
    for (int p = 0; p < j; ++p) {
      double d = 0;
      for (int i = 0; i < n; ++i) d += q[size_t(i * n + p)] * q[size_t(i * n + j)];
      for (int i = 0; i < n; ++i) q[size_t(i * n + j)] -= d * q[size_t(i * n + p)];
    }
    double s = 0;
    for (int i = 0; i < n; ++i) s += q[size_t(i * n + j)] * q[size_t(i * n + j)];
    for (int i = 0; i < n; ++i) q[size_t(i * n + j)] /= std::sqrt(s);
  }
  for (int i = 0; i < n; ++i) {
    const double lam = 1.5 * (i - n / 2) + 0.25 * u(rng);
    if (i + 1 < n && u(rng) > 0) {
      const double w = 1 + 0.5 * std::fabs(u(rng));
      bd[size_t(i * n + i)] = bd[size_t((i + 1) * n + i + 1)] = lam;
      bd[size_t(i * n + i + 1)] = w;
      bd[size_t((i + 1) * n + i)] = -w;
      ++i;
    } else {
      bd[size_t(i * n + i)] = lam;
    }
  }
  Mat a(size_t(n) * n, 0.0);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) {
      double s = 0;
      for (int k = 0; k < n; ++k)
        for (int l = 0; l < n; ++l) s += q[size_t(i * n + k)] * bd[size_t(k * n + l)] * q[size_t(j * n + l)];
      a[size_t(i * n + j)] = esize == 4 ? double(float(s)) : s;
    }
  return a;
}

// The model's eigenvalues of every object: the eigenvector members deflate relatively, and the
// double-precision left member keeps the float threshold in the search and the 2 by 2 block.
template <class T>
tarnStatus modelValues(const std::vector<Mat>& mats, int n, Fam f, bool f64Left, std::vector<uint64_t>& re,
                       std::vector<uint64_t>& im) {
  const double tiny = f64Left ? 2.350988701644575e-38 : geigref::Consts<T>::tiny;
  for (const Mat& m : mats) {
    std::vector<T> src(m.begin(), m.end()), r(size_t(n), T(0)), i(size_t(n), T(0));
    const int s = geigref::Model<T>().run(src, n, {f != Fam::Values, tiny}, r, i);
    for (int k = 0; k < n; ++k) {
      re.push_back(bitsOf(double(r[size_t(k)]), sizeof(T)));
      im.push_back(bitsOf(double(i[size_t(k)]), sizeof(T)));
    }
    if (s) return s;
  }
  return 0;
}
tarnStatus modelValues(const std::vector<Mat>& mats, int n, const Name& nm, std::vector<uint64_t>& re,
                       std::vector<uint64_t>& im) {
  const Fam f = famOf(nm.family);
  return nm.esize == 4 ? modelValues<float>(mats, n, f, false, re, im)
                       : modelValues<double>(mats, n, f, f == Fam::Left, re, im);
}

std::string where(const MemberFn& m, int n, const Style& st) {
  return std::string(m.name) + " order " + std::to_string(n) + " " + st.name;
}

TEST(GeneralEigen, ValuesFollowTheModelInEveryLayoutAndPlacement) {
  std::mt19937 rng(11);
  for (const char* fam : {"EigenValues", "EigenValuesVectorsRight", "EigenValuesVectorsLeft", "EigenValuesVectors"})
    for (const MemberFn* m : membersOf(fam)) {
      const Name nm = parseName(m->name);
      for (int n = 1; n <= 8; ++n)
        for (const char* sn : {"packed", "strided", "guarded-padded", "soa"}) {
          const Style& st = style(sn);
          std::vector<Mat> mats;
          for (int k = 0; k < 5; ++k) mats.push_back(k == 3 ? separated(rng, n, nm.esize) : randomMat(rng, n, nm.esize));
          for (int r = 0; r < n; ++r)  // one lower triangular source: H is already triangular
            for (int c = r + 1; c < n; ++c) mats[1][size_t(r * n + c)] = 0;
          // One source scaled far down, exactly: in double its subdiagonal lies between the
          // double and the float tiny, where the left vectors' float threshold decides.
          for (double& x : mats[4]) x = std::ldexp(x, nm.esize == 4 ? -100 : -130);
          const Out o = run(*m, n, mats, st, 1);
          std::vector<Mat> seen(mats.begin(), mats.begin() + o.count);
          std::vector<uint64_t> re, im;
          const tarnStatus want = modelValues(seen, n, nm, re, im);
          EXPECT_EQ(o.status, want) << where(*m, n, st);
          EXPECT_EQ(o.re, re) << where(*m, n, st);
          EXPECT_EQ(o.im, im) << where(*m, n, st);
          EXPECT_EQ(o.fault, "") << where(*m, n, st);
        }
    }
}

// Blocks that stall the ordinary double shift: a weighted cyclic shift (its last block needs
// 22 iterations, so the exceptional shift of iteration 20 decides it), a nilpotent matrix (32:
// iteration 30 takes the ordinary shift) and one that the relative test keeps for 42
// iterations (40 ordinary as well). Every member of every family against the model.
TEST(GeneralEigen, StallingBlocksTakeExceptionalShiftsAtTenAndTwentyOnly) {
  struct Case {
    int n;
    Mat src;
  };
  const Case cases[] = {
      {5, {0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 3, 2, 0, 0, 0, 0}},
      {6, {0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0}},
      {4, {0, 1, 0, 0, 0, 0, -1, 0, 0, 2, 0, 1, 1, 0, 0, 0}},
  };
  for (const char* fam : {"EigenValues", "EigenValuesVectorsRight", "EigenValuesVectorsLeft", "EigenValuesVectors"})
    for (const MemberFn* m : membersOf(fam)) {
      const Name nm = parseName(m->name);
      for (const Case& c : cases) {
        const Out o = run(*m, c.n, {c.src}, style("packed"), 1);
        std::vector<uint64_t> re, im;
        EXPECT_EQ(o.status, modelValues({c.src}, c.n, nm, re, im)) << m->name << " order " << c.n;
        EXPECT_EQ(o.re, re) << m->name << " order " << c.n;
        EXPECT_EQ(o.im, im) << m->name << " order " << c.n;
      }
    }
}

// Residuals of every vector, unit length, and a pair's largest component real.
void checkVectors(const Out& o, const std::vector<Mat>& mats, const std::vector<uint64_t>& v, bool left,
                  const std::string& what) {
  const int n = o.n;
  const double eps = o.esize == 4 ? 1.1920928955078125e-07 : 2.220446049250313e-16;
  for (int k = 0; k < o.count; ++k) {
    const Mat& a = mats[size_t(k)];
    double norm = 0;
    for (double x : a) norm += x * x;
    const double tol = 16 * n * eps * std::sqrt(norm);
    for (int j = 0; j < n;) {
      const size_t p = size_t(k * n + j);
      const bool pair = o.val(o.im, p) != 0;
      std::complex<double> lam(o.val(o.re, p), o.val(o.im, p));
      if (left) lam = std::conj(lam);  // a left pair's columns belong to the conjugate
      std::vector<std::complex<double>> x(static_cast<size_t>(n));
      double len = 0, best = -1, bestIm = 0;
      for (int i = 0; i < n; ++i) {
        const size_t e = size_t(k * n * n + i * n + j);
        x[size_t(i)] = {o.val(v, e), pair ? o.val(v, e + 1) : 0.0};
        len += std::norm(x[size_t(i)]);
        if (std::norm(x[size_t(i)]) > best) best = std::norm(x[size_t(i)]), bestIm = x[size_t(i)].imag();
      }
      EXPECT_NEAR(len, 1.0, 8 * n * eps) << what << " object " << k << " vector " << j;
      if (pair) EXPECT_LE(std::fabs(bestIm), 4 * eps) << what << " object " << k << " vector " << j;
      for (int i = 0; i < n; ++i) {
        std::complex<double> s = 0;
        for (int c = 0; c < n; ++c) s += (left ? a[size_t(i * n + c)] : a[size_t(c * n + i)]) * x[size_t(c)];
        EXPECT_LE(std::abs(s - lam * x[size_t(i)]), tol) << what << " object " << k << " vector " << j << " row " << i;
      }
      j += pair ? 2 : 1;
    }
  }
}

TEST(GeneralEigen, VectorsSolveTheirEquationsWithTheSameBitsEverywhere) {
  std::mt19937 rng(12);
  for (const char* fam : {"EigenValuesVectorsRight", "EigenValuesVectorsLeft", "EigenValuesVectors"})
    for (const MemberFn* m : membersOf(fam)) {
      const Name nm = parseName(m->name);
      const Fam f = famOf(nm.family);
      for (int n = 1; n <= 8; ++n) {
        std::vector<Mat> mats;
        for (int k = 0; k < 4; ++k) mats.push_back(separated(rng, n, nm.esize));
        const Out base = run(*m, n, mats, style("packed"), 1);
        ASSERT_EQ(base.status, 0) << m->name;
        const std::string what = std::string(m->name) + " order " + std::to_string(n);
        checkVectors(base, mats, base.v1, f == Fam::Left, what);
        if (f == Fam::Both) checkVectors(base, mats, base.v2, true, what + " left");
        for (const char* sn : {"strided", "guarded", "soa"}) {
          const Out o = run(*m, n, mats, style(sn), 1);
          EXPECT_EQ(o.v1, base.v1) << what << " " << sn;
          EXPECT_EQ(o.v2, base.v2) << what << " " << sn;
          EXPECT_EQ(o.fault, "") << what << " " << sn;
        }
      }
    }
}

// The stated results of small matrices that meet the odd rules.
TEST(GeneralEigen, StatedResultsOfSpecialMatrices) {
  struct Case {
    const char* what;
    int n;
    Mat src;
    std::vector<double> re, im;  // typed from the statement; NaN: only the order is stated
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
      {"lower triangular", 4, {2, 0, 0, 0, 5, -1, 0, 0, 7, 3, 4, 0, 1, 1, 1, 0.5}, {2, -1, 4, 0.5}, {0, 0, 0, 0}},
      {"diagonal", 3, {3, 0, 0, 0, -2, 0, 0, 0, 7}, {3, -2, 7}, {0, 0, 0}},
      {"zero", 3, Mat(9, 0.0), {0, 0, 0}, {0, 0, 0}},
  };
  const float y = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(1.0f)));
  const float approxOne = (-0.5f * y) * (1.0f * y * y - 3.0f);  // the left/right float normalisation of 1
  for (const char* fam : {"EigenValues", "EigenValuesVectorsRight", "EigenValuesVectorsLeft", "EigenValuesVectors"})
    for (const MemberFn* m : membersOf(fam)) {
      const Name nm = parseName(m->name);
      if (nm.layout == 'L') continue;
      for (const Case& c : cases) {
        const Out o = run(*m, c.n, {c.src}, style("packed"), 1);
        const std::string what = std::string(m->name) + " " + c.what;
        ASSERT_EQ(o.status, 0) << what;
        const bool exact = std::string(c.what) != "real pair";
        for (int i = 0; i < c.n; ++i) {
          const double want = nm.esize == 4 ? double(float(c.re[size_t(i)])) : c.re[size_t(i)];
          if (exact) EXPECT_EQ(o.re[size_t(i)], bitsOf(want, nm.esize)) << what << " re " << i;
          else EXPECT_NEAR(o.val(o.re, size_t(i)), want, 1e-6) << what << " re " << i;
          const double wi = nm.esize == 4 ? double(float(c.im[size_t(i)])) : c.im[size_t(i)];
          EXPECT_EQ(o.im[size_t(i)], bitsOf(wi, nm.esize)) << what << " im " << i;  // real: exactly +0
        }
        // Diagonal and zero matrices: Q and T leave the unit vectors, in the diagonal's order.
        const std::string cw = c.what;
        if ((cw == "diagonal" || cw == "zero" || c.n == 1) && famOf(nm.family) != Fam::Values) {
          const bool approx = nm.esize == 4 && famOf(nm.family) != Fam::Both && c.n > 1;
          const double one = approx ? double(approxOne) : 1.0;
          for (int i = 0; i < c.n; ++i)
            for (int j = 0; j < c.n; ++j) {
              EXPECT_EQ(o.v1[size_t(i * c.n + j)], bitsOf(i == j ? one : 0.0, nm.esize)) << what << " vector " << i << j;
              if (!o.v2.empty()) EXPECT_EQ(o.v2[size_t(i * c.n + j)], bitsOf(i == j ? one : 0.0, nm.esize)) << what;
            }
        }
      }
    }
}

// a - d = 0.002, b c just above -(a - d)^2 / 4: two real eigenvalues 1 +- 3e-5 (1 +- 3e-9 in
// double), which the block's rule places at t +- p, p the half-difference 0.001.
TEST(GeneralEigen, NearlyEqualRealPairKeepsTheHalfDifference) {
  for (const char* fam : {"EigenValues", "EigenValuesVectorsRight", "EigenValuesVectorsLeft", "EigenValuesVectors"})
    for (const MemberFn* m : membersOf(fam)) {
      const bool f32 = parseName(m->name).esize == 4;
      const Out o = run(*m, 2, {{1.001, f32 ? -9.99e-7 : -(1e-6 - 1e-17), 1, 0.999}}, style("packed"), 1);
      ASSERT_EQ(o.status, 0) << m->name;
      EXPECT_NEAR(o.val(o.re, 0), 1.001, 1e-6) << m->name;
      EXPECT_NEAR(o.val(o.re, 1), 0.999, 1e-6) << m->name;
      EXPECT_EQ(o.im[0] | o.im[1], 0u) << m->name;
    }
}

// src = (1 2; 0 3): the left vectors solve src v = lambda v, the right ones transpose(src) v.
TEST(GeneralEigen, LeftAndRightOfATriangularMatrix) {
  const double h = std::sqrt(0.5);
  for (const char* fam : {"EigenValuesVectorsRight", "EigenValuesVectorsLeft"})
    for (const MemberFn* m : membersOf(fam)) {
      const Out o = run(*m, 2, {{1, 2, 0, 3}}, style("packed"), 1);
      ASSERT_EQ(o.status, 0);
      EXPECT_EQ(o.val(o.re, 0), 3.0) << m->name;  // the block's exchange puts 3 first
      EXPECT_EQ(o.val(o.re, 1), 1.0) << m->name;
      const bool left = famOf(parseName(m->name).family) == Fam::Left;
      // Magnitudes of V, row by row, and the sign of the product of each column's two entries.
      const double mag[4] = {left ? h : 0.0, left ? 1.0 : h, left ? h : 1.0, left ? 0.0 : h};
      const int sign[2] = {left ? 1 : 0, left ? 0 : -1};
      for (int e = 0; e < 4; ++e) EXPECT_NEAR(std::fabs(o.val(o.v1, size_t(e))), mag[e], 1e-6) << m->name << " " << e;
      for (int col = 0; col < 2; ++col) {
        const double p = o.val(o.v1, size_t(col)) * o.val(o.v1, size_t(2 + col));
        EXPECT_EQ((p > 1e-3) - (p < -1e-3), sign[col]) << m->name << " column " << col;
      }
    }
}

// H = transpose(src) is already Hessenberg; its last row splits off at once with eigenvalue 9,
// the NaN of the leading block then exhausts the budget.
const Mat kNaNMatrix = {NAN, 1, 0, 0, 1, 4, 1, 0, 2, 5, 7, 0, 3, 6, 8, 9};
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

bool canary(uint64_t bits, int esize) { return bits == (esize == 4 ? kCanary32 : kCanary64); }

TEST(GeneralEigen, FailuresKeepWhatTheyFoundAndEndTheWalk) {
  std::mt19937 rng(13);
  for (const char* fam : {"EigenValues", "EigenValuesVectorsRight", "EigenValuesVectorsLeft", "EigenValuesVectors"})
    for (const MemberFn* m : membersOf(fam)) {
      const Name nm = parseName(m->name);
      const Fam f = famOf(nm.family);
      // NaN: -205 with the eigenvalue found before it; vectors untouched.
      Out o = run(*m, 4, {kNaNMatrix}, style("packed"), 1);
      EXPECT_EQ(o.status, tarnStatusNoConvergence) << m->name;
      EXPECT_EQ(o.val(o.re, 3), 9.0) << m->name;
      EXPECT_EQ(o.im[3], 0u) << m->name;
      for (int i = 0; i < 3; ++i) EXPECT_TRUE(canary(o.re[size_t(i)], nm.esize) && canary(o.im[size_t(i)], nm.esize)) << m->name;
      for (uint64_t v : o.v1) EXPECT_TRUE(canary(v, nm.esize)) << m->name;
      // Finite but large: the shifts overflow and the budget runs out.
      const double big = nm.esize == 4 ? 1e20 : 1e160;
      o = run(*m, 3, {{big, 2 * big, 3 * big, 4 * big, 5 * big, 6 * big, 7 * big, 8 * big, 10 * big}}, style("packed"), 1);
      EXPECT_EQ(o.status, tarnStatusNoConvergence) << m->name;
      // Every subdiagonal element of H within eps: already reduced for the absolute test of the
      // eigenvalue members, whose result is then H's diagonal; not so for the relative test.
      const double e = nm.esize == 4 ? 1e-9 : 1e-20;
      o = run(*m, 3, {{e, 4 * e, 0, 2 * e, 5 * e, 7 * e, 3 * e, 6 * e, 8 * e}}, style("packed"), 1);
      EXPECT_EQ(o.status, 0) << m->name;
      bool diagonal = true;
      for (int i = 0; i < 3; ++i) {
        diagonal &= o.re[size_t(i)] == bitsOf((i == 0 ? 1 : i == 1 ? 5 : 8) * e, nm.esize);
        if (f == Fam::Values) EXPECT_EQ(o.im[size_t(i)], 0u) << m->name;
      }
      EXPECT_EQ(diagonal, f == Fam::Values) << m->name;
      if (f == Fam::Values || !nm.pattern.ends_with("a")) continue;
      // An unsolvable complex system ends the call with -2: the eigenvalues of that matrix
      // complete, its vectors and every later matrix untouched, earlier ones done.
      const std::vector<Mat> mats = {separated(rng, 4, nm.esize), solveFailure(f == Fam::Left, nm.esize),
                                     separated(rng, 4, nm.esize)};
      o = run(*m, 4, mats, style("padded"), 1);
      EXPECT_EQ(o.status, tarnStatusVectorSolveFailed) << m->name;
      std::vector<uint64_t> re, im;
      modelValues({mats[0], mats[1]}, 4, nm, re, im);
      for (size_t i = 0; i < 8; ++i) EXPECT_TRUE(o.re[i] == re[i] && o.im[i] == im[i]) << m->name << " value " << i;
      for (size_t i = 8; i < 12; ++i) EXPECT_TRUE(canary(o.re[i], nm.esize) && canary(o.im[i], nm.esize)) << m->name;
      for (size_t e = 0; e < 48; ++e) EXPECT_EQ(canary(o.v1[e], nm.esize), e >= 16) << m->name << " element " << e;
    }
}

// Past the threshold, on 1 to 4 threads: each thread's slice stops at its first failing matrix;
// every other matrix holds exactly what it holds when computed alone.
TEST(GeneralEigen, FailuresAcrossThreadSlices) {
  std::mt19937 rng(14);
  struct Case {
    const char* family;
    int count;
  };
  for (const Case c : {Case{"EigenValues", 700}, Case{"EigenValuesVectorsRight", 160}}) {
    std::vector<Mat> mats;
    for (int k = 0; k < c.count; ++k) mats.push_back(randomMat(rng, 4, 4));
    for (int k : {3, c.count / 2, c.count / 2 + 1, c.count - 10}) mats[size_t(k)] = kNaNMatrix;
    std::vector<Out> alone;
    for (const Mat& a : mats) alone.push_back(run(member("tarn" + std::string(c.family) + "_m_32f"), 4, {a}, style("packed"), 1));
    for (const MemberFn* m : membersOf(c.family)) {
      const Name nm = parseName(m->name);
      if (nm.pattern != "ma" || nm.esize != 4) continue;
      for (int threads = 1; threads <= 4; ++threads) {
        const Out o = run(*m, 4, mats, style("strided"), threads);
        EXPECT_EQ(o.status, tarnStatusNoConvergence) << m->name << " threads " << threads;
        const int q = c.count / threads, r = c.count % threads;
        for (int t = 0; t < threads; ++t) {
          const int first = t < r ? t * (q + 1) : (q + 1) * r + (t - r) * q, n = t < r ? q + 1 : q;
          bool stopped = false;
          for (int k = first; k < first + n; ++k) {
            const Out& a = alone[size_t(k)];
            for (int i = 0; i < 4; ++i) {
              const size_t p = size_t(k * 4 + i);
              EXPECT_EQ(o.re[p], stopped ? kCanary32 : a.re[size_t(i)]) << m->name << " threads " << threads << " object " << k;
              EXPECT_EQ(o.im[p], stopped ? kCanary32 : a.im[size_t(i)]) << m->name << " threads " << threads << " object " << k;
            }
            for (size_t e = 0; e < a.v1.size(); ++e)
              EXPECT_EQ(o.v1[size_t(k) * 16 + e], stopped ? kCanary32 : a.v1[e]) << m->name << " object " << k;
            stopped |= a.status != 0;
          }
        }
      }
    }
  }
}

// A region from E = n(n+1)count > 10000 and n(3n+1)count > 7000 on, in every layout and type:
// E = 10000 and 7000 stay serial, the next E that exists opens one; the caller's scratch is then
// left alone. Fewer objects than threads stay serial whatever E is.
TEST(GeneralEigen, RegionsFromTheThresholdOn) {
  struct Case {
    const char* family;
    int n, serialCount;  // E of serialCount is the threshold itself
  };
  for (const Case c : {Case{"EigenValues", 1, 5000}, Case{"EigenValuesVectorsRight", 2, 500},
                       Case{"EigenValuesVectorsLeft", 2, 500}, Case{"EigenValuesVectors", 2, 500}})
    for (const MemberFn* m : membersOf(c.family)) {
      if (parseName(m->name).pattern != "ma") continue;
      for (int count : {c.serialCount, c.serialCount + 1}) {
        const std::vector<Mat> mats(size_t(count), Mat(size_t(c.n * c.n), 1.0));
        Out o{};
        EXPECT_EQ(regionsOpenedBy([&] { o = run(*m, c.n, mats, style("packed"), 2); }), count > c.serialCount ? 1 : 0)
            << m->name << " count " << count;
        EXPECT_EQ(o.status, 0) << m->name;
        if (count > c.serialCount) EXPECT_TRUE(o.scratchKept) << m->name;
      }
    }
  const MemberFn& m = member("tarnEigenValues_ma_32f");
  const std::vector<Mat> mats(3, Mat(60 * 60, 1.0));  // E = 60*61*3 = 10980
  EXPECT_EQ(regionsOpenedBy([&] { run(m, 60, mats, style("packed"), 4); }), 0);
}

TEST(GeneralEigen, ScratchSizes) {
  struct Case {
    const char* name;
    int32_t n, want;
  };
  const Case cases[] = {
      {"tarnEigenValuesGetBufSize_32f", 1, 24},       {"tarnEigenValuesGetBufSize_64f", 1, 48},
      {"tarnEigenValuesVectorsGetBufSize_32f", 1, 32}, {"tarnEigenValuesVectorsGetBufSize_64f", 1, 64},
      {"tarnEigenValuesGetBufSize_32f", 3, 96},       {"tarnEigenValuesVectorsGetBufSize_32f", 3, 168},
      // 32-bit arithmetic that wraps
      {"tarnEigenValuesGetBufSize_32f", 30000, -694367296},
      {"tarnEigenValuesGetBufSize_64f", 30000, -1388734592},
      {"tarnEigenValuesVectorsGetBufSize_32f", 30000, -2084301888},
      {"tarnEigenValuesVectorsGetBufSize_64f", 30000, 126363520},
      {"tarnEigenValuesVectorsGetBufSize_64f", 2147483647, -16},
  };
  for (const Case& c : cases) {
    Args a;
    int32_t size = 7;
    a.op[0].ptr = &size;
    a.order = c.n;
    EXPECT_EQ(member(c.name).call(a), 0) << c.name;
    EXPECT_EQ(size, c.want) << c.name << " " << c.n;
    for (int32_t bad : {0, -1}) {  // the size before anything is written
      a.order = bad;
      size = 7;
      EXPECT_EQ(member(c.name).call(a), tarnStatusBadSize) << c.name;
      EXPECT_EQ(size, 7) << c.name;
    }
    a.op[0].ptr = nullptr;  // the pointer before the size
    EXPECT_EQ(member(c.name).call(a), tarnStatusNullPointer) << c.name;
  }
}

}  // namespace
}  // namespace tt
