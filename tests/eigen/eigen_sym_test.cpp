// Symmetric eigenvalues and eigenvectors: every member against the plain model in every layout
// and placement, orders 1 to 8; a mathematical check on well-separated spectra; the typed edge
// cases of the algorithm; failing objects on the serial path and across thread slices; and the
// parallel limits.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>
#include <sstream>

#include "harness.hpp"
#include "ref/eigen_sym_ref.hpp"
#include "regions.hpp"

namespace tt {
namespace {

using Mat = std::vector<double>;  // n*n, row-major, values representable in the element type
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

bool isValues(const Name& nm) { return nm.family == "EigenValuesSym"; }
bool isArray(const Name& nm) { return nm.pattern == "ma"; }

// Blocks: src, scratch, then values (dst) or vectors and values.
int valuesBlock(const Name& nm) { return isValues(nm) ? 2 : 3; }

// ---- The model, by member --------------------------------------------------------------------

template <class A>
tarnStatus modelAs(const Mat& a, int n, std::vector<double>& val, std::vector<double>& z) {
  using T = typename A::T;
  std::vector<T> s(a.begin(), a.end()), v(val.begin(), val.end()), zz(z.begin(), z.end());
  const tarnStatus st = eigref::solve<A>(s, n, v, zz);
  val.assign(v.begin(), v.end());
  z.assign(zz.begin(), zz.end());
  return st;
}

// The arithmetic each member is documented to use: values in the element type; vectors in
// double for 64f, in single for a single 32f matrix (whose strided worker shifts upward with
// g + r for g > 0), single storage with double scalars for 32f arrays.
tarnStatus model(const Name& nm, bool strided, const Mat& a, int n, std::vector<double>& val, std::vector<double>& z) {
  const bool f32 = nm.esize == 4;
  if (isValues(nm))
    return f32 ? modelAs<eigref::ValuesArith<float>>(a, n, val, z) : modelAs<eigref::ValuesArith<double>>(a, n, val, z);
  if (!f32) return modelAs<eigref::Vectors64Arith>(a, n, val, z);
  if (isArray(nm)) return modelAs<eigref::VectorsArr32Arith>(a, n, val, z);
  const bool quirk = nm.layout == 'S' && strided;
  return quirk ? modelAs<eigref::VectorsOne32Arith<true>>(a, n, val, z)
               : modelAs<eigref::VectorsOne32Arith<false>>(a, n, val, z);
}

// Parallel above these estimates, typed from the documentation of the families.
bool goesParallel(const Name& nm, bool contiguous, int n, int count) {
  if (!isArray(nm)) return false;
  if (isValues(nm)) {
    const int64_t limit = nm.esize == 4 && nm.layout == 'L' && contiguous ? 40000 : 20000;
    return int64_t(n) * (n + 1) * count > limit;
  }
  return int64_t(n) * (2 * n + 1) * count > 1700;
}

bool sameValue(uint64_t a, uint64_t b, int esize) {
  const double x = valueOf(a, esize), y = valueOf(b, esize);
  return a == b || (std::isnan(x) && std::isnan(y));
}

// ---- One call against the model ------------------------------------------------------------

struct Outcome {
  tarnStatus status = 0;
  std::vector<tarnStatus> allowed;  // statuses the call may return
  std::string why;                  // empty when every result matches the model
  std::vector<std::vector<double>> values, vectors;
};

Outcome runBatch(const MemberFn& m, int n, const std::vector<Mat>& mats, const Style& st, int threads) {
  const Name nm = parseName(m.name);
  const int count = int(mats.size()), vb = valuesBlock(nm);
  CallFixture fx(m, count, st, [&](int b) -> Extent {
    if (b == 0 || (b == 2 && !isValues(nm))) return {n, n};
    return {1, b == 1 ? n * n : n};
  });
  for (int k = 0; k < count; ++k)
    for (int r = 0; r < n; ++r)
      for (int c = 0; c < n; ++c) fx.block(0).set(k, r, c, mats[size_t(k)][size_t(r * n + c)]);
  fx.args.order = n;
  fx.args.count = count;
  const bool strided = fx.args.op[0].elem != nm.esize || (!isValues(nm) && fx.args.op[2].elem != nm.esize);
  Outcome out;
  out.status = fx.run(threads);

  // The slices the objects were walked in: one, or one per thread of the region.
  std::vector<std::pair<int, int>> slices{{0, count}};
  if (threads >= 2 && count >= threads && goesParallel(nm, !strided, n, count)) {
    slices.clear();
    const int q = count / threads, r = count % threads;
    for (int id = 0; id < threads; ++id)
      slices.push_back(id < r ? std::pair{id * (q + 1), q + 1} : std::pair{(q + 1) * r + (id - r) * q, q});
  }
  std::ostringstream why;
  const Operand &vals = fx.block(vb), &valsWas = fx.before(vb);
  for (auto [first, len] : slices) {
    tarnStatus sliceStatus = 0;
    for (int k = first; k < first + len; ++k) {
      std::vector<double> val(static_cast<size_t>(n)), z(static_cast<size_t>(n * n));
      for (int j = 0; j < n; ++j) val[size_t(j)] = valsWas.get(0, 0, k * n + j);
      if (!isValues(nm))
        for (int r = 0; r < n; ++r)
          for (int c = 0; c < n; ++c) z[size_t(r * n + c)] = fx.before(2).get(k, r, c);
      if (sliceStatus == 0) sliceStatus = model(nm, strided, mats[size_t(k)], n, val, z);
      int bad = 0;
      for (int j = 0; j < n; ++j)
        if (!sameValue(vals.bits(0, 0, k * n + j), bitsOf(val[size_t(j)], nm.esize), nm.esize) && bad++ < 2)
          why << "object " << k << " value " << j << " want " << val[size_t(j)] << " got " << vals.get(0, 0, k * n + j) << "; ";
      if (!isValues(nm))
        for (int r = 0; r < n; ++r)
          for (int c = 0; c < n; ++c)
            if (!sameValue(fx.block(2).bits(k, r, c), bitsOf(z[size_t(r * n + c)], nm.esize), nm.esize) && bad++ < 2)
              why << "object " << k << " vector (" << r << "," << c << ") want " << z[size_t(r * n + c)] << " got "
                  << fx.block(2).get(k, r, c) << "; ";
      std::vector<double> got(static_cast<size_t>(n)), gotZ(static_cast<size_t>(n * n));
      for (int j = 0; j < n; ++j) got[size_t(j)] = vals.get(0, 0, k * n + j);
      if (!isValues(nm))
        for (int r = 0; r < n; ++r)
          for (int c = 0; c < n; ++c) gotZ[size_t(r * n + c)] = fx.block(2).get(k, r, c);
      out.values.push_back(got);
      out.vectors.push_back(gotZ);
    }
    if (sliceStatus) out.allowed.push_back(sliceStatus);
  }
  if (out.allowed.empty()) out.allowed.push_back(0);
  if (std::find(out.allowed.begin(), out.allowed.end(), out.status) == out.allowed.end())
    why << "status " << out.status << " want " << out.allowed.front() << "; ";
  why << fx.untouched();
  out.why = why.str();
  if (!out.why.empty())
    out.why = std::string(m.name) + " order " + std::to_string(n) + " count " + std::to_string(count) + " " + st.name +
              " threads " + std::to_string(threads) + ": " + out.why;
  return out;
}

// ---- Matrices --------------------------------------------------------------------------------

double inType(double v, int esize) { return esize == 4 ? double(float(v)) : v; }

// Symmetric matrices of several kinds, each reaching other branches: dense; sparse (splits,
// reflections left out); diagonal; small integers (ties, exact cancellation, equal values);
// scaled far up or down (the absolute tests then act differently).
Mat symmetric(std::mt19937& rng, int n, int kind, int esize) {
  Mat a(size_t(n * n));
  std::uniform_int_distribution<int> coin(0, 1), small(-3, 3), scale(-20, 20);
  const double f = kind == 4 ? std::ldexp(1.0, scale(rng)) : 1.0;
  for (int r = 0; r < n; ++r)
    for (int c = r; c < n; ++c) {
      double v = kind == 3 ? small(rng) : randomValue(rng, esize) * f;
      if ((kind == 1 && r != c && coin(rng)) || (kind == 2 && r != c)) v = 0;
      a[size_t(r * n + c)] = a[size_t(c * n + r)] = inType(v, esize);
    }
  return a;
}

// A batch of matrices the member solves, so the whole batch is walked.
std::vector<Mat> solvableBatch(const Name& nm, std::mt19937& rng, int n, int count) {
  std::vector<Mat> out;
  for (int k = 0; int(out.size()) < count; ++k) {
    Mat a = symmetric(rng, n, k % 5, nm.esize);
    std::vector<double> val(static_cast<size_t>(n)), z(static_cast<size_t>(n * n));
    if (model(nm, false, a, n, val, z) == 0 && model(nm, true, a, n, val, z) == 0) out.push_back(a);
  }
  return out;
}

std::vector<const MemberFn*> allSym() {
  auto v = membersOf("EigenValuesSym"), w = membersOf("EigenValuesVectorsSym");
  v.insert(v.end(), w.begin(), w.end());
  return v;
}

// ---- Sweeps ------------------------------------------------------------------------------------

TEST(EigenSym, EveryMemberMatchesTheModel) {
  int members = 0;
  for (const MemberFn* m : allSym()) {
    ++members;
    const Name nm = parseName(m->name);
    std::mt19937 rng(7);
    for (int n = 1; n <= 8; ++n)
      for (const Style& st : styles()) {
        // Arrays of 11: whole groups of lanes and a partial one for every type.
        const auto mats = solvableBatch(nm, rng, n, isArray(nm) ? 11 : 1);
        const Outcome o = runBatch(*m, n, mats, st, 1);
        ASSERT_TRUE(o.why.empty()) << o.why;
      }
  }
  EXPECT_EQ(members, 20);
}

// Independently of the model: on spectra that are well separated, the values are the spectrum
// in descending order and the columns are orthonormal eigenvectors, to a tolerance fixed by
// order and type.
TEST(EigenSym, VectorsSolveTheEigenproblem) {
  for (const MemberFn* m : allSym()) {
    const Name nm = parseName(m->name);
    std::mt19937 rng(11);
    for (int n = 1; n <= 8; ++n) {
      const double tol = (nm.esize == 4 ? 2e-5 : 4e-14) * n;
      std::vector<Mat> mats;
      std::vector<std::vector<double>> spectra;
      for (int k = 0; k < (isArray(nm) ? 6 : 1); ++k) {
        // Q diag(lambda) Q' with Q orthonormal (Gram-Schmidt of a random matrix) and
        // eigenvalues 1/n apart, signs mixed, all within 1.25 in magnitude: the tests are absolute,
        // so larger values in single precision may keep an off-diagonal element above 2*eps.
        std::vector<double> q(static_cast<size_t>(n * n)), lam(static_cast<size_t>(n));
        std::normal_distribution<double> g;
        for (auto& x : q) x = g(rng);
        for (int c = 0; c < n; ++c) {
          for (int p = 0; p < c; ++p) {
            double dot = 0;
            for (int r = 0; r < n; ++r) dot += q[size_t(r * n + c)] * q[size_t(r * n + p)];
            for (int r = 0; r < n; ++r) q[size_t(r * n + c)] -= dot * q[size_t(r * n + p)];
          }
          double nrm = 0;
          for (int r = 0; r < n; ++r) nrm += q[size_t(r * n + c)] * q[size_t(r * n + c)];
          for (int r = 0; r < n; ++r) q[size_t(r * n + c)] /= std::sqrt(nrm);
          lam[size_t(c)] = ((c + 1) * (c % 2 ? -1.0 : 1.0) + 0.25) / n;
        }
        Mat a(size_t(n * n));
        for (int r = 0; r < n; ++r)
          for (int c = r; c < n; ++c) {
            double s = 0;
            for (int j = 0; j < n; ++j) s += q[size_t(r * n + j)] * lam[size_t(j)] * q[size_t(c * n + j)];
            a[size_t(r * n + c)] = a[size_t(c * n + r)] = inType(s, nm.esize);
          }
        std::sort(lam.begin(), lam.end(), std::greater<>());
        if (n == 2 && lam[0] + lam[1] < 0) std::swap(lam[0], lam[1]);  // order 2 is not sorted
        mats.push_back(a);
        spectra.push_back(lam);
      }
      const Outcome o = runBatch(*m, n, mats, style("packed"), 1);
      ASSERT_TRUE(o.why.empty()) << o.why;
      ASSERT_EQ(o.status, 0) << m->name << " order " << n;
      for (size_t k = 0; k < mats.size(); ++k) {
        for (int j = 0; j < n; ++j) EXPECT_NEAR(o.values[k][size_t(j)], spectra[k][size_t(j)], tol) << m->name << " order " << n;
        if (isValues(nm)) continue;
        const auto& v = o.vectors[k];
        for (int j = 0; j < n; ++j) {
          for (int r = 0; r < n; ++r) {
            double av = 0;
            for (int c = 0; c < n; ++c) av += mats[k][size_t(r * n + c)] * v[size_t(c * n + j)];
            EXPECT_NEAR(av, o.values[k][size_t(j)] * v[size_t(r * n + j)], tol) << m->name << " order " << n;
          }
          for (int i = 0; i <= j; ++i) {
            double dot = 0;
            for (int r = 0; r < n; ++r) dot += v[size_t(r * n + i)] * v[size_t(r * n + j)];
            EXPECT_NEAR(dot, i == j ? 1.0 : 0.0, tol) << m->name << " order " << n;
          }
        }
      }
    }
  }
}

// ---- Typed cases -------------------------------------------------------------------------------

// Matrices built from the member's eps; expectations typed from the algorithm's description.
struct Typed {
  const char* what;
  int n;
  Mat (*make)(double eps);
  tarnStatus want;
  std::vector<double> (*values)(double eps);  // nullptr: checked against the model only
  Mat vectors = {};                           // row-major, checked when given
};

TEST(EigenSym, TypedCases) {
  constexpr double t = 1 + 0x1p-20;  // one step above a limit, in both types
  const Typed cases[] = {
      {"1x1 zero succeeds", 1, [](double) { return Mat{0}; }, 0, [](double) { return std::vector<double>{0}; }, {1}},
      {"2x2 zero is singular", 2, [](double) { return Mat(4, 0.0); }, tarnStatusSingular, nullptr},
      {"2x2 determinant at eps is singular", 2, [](double e) { return Mat{1, 0, 0, e}; }, tarnStatusSingular, nullptr},
      {"2x2 determinant above eps", 2, [](double e) { return Mat{1, 0, 0, e * t}; }, 0, nullptr},
      {"2x2 negative trace stays ascending", 2, [](double) { return Mat{-1, 0, 0, -2}; }, 0,
       [](double) { return std::vector<double>{-2, -1}; }},
      {"2x2 trace inside eps", 2, [](double) { return Mat{1, 0, 0, -1}; }, 0,
       [](double) { return std::vector<double>{1, -1}; }},
      {"2x2 identity", 2, [](double) { return Mat{1, 0, 0, 1}; }, 0, [](double) { return std::vector<double>{1, 1}; },
       {0, -1, 1, 0}},
      {"3x3 zero is singular, values zero", 3, [](double) { return Mat(9, 0.0); }, tarnStatusSingular,
       [](double) { return std::vector<double>{0, 0, 0}; }},
      {"3x3 diagonal sorted", 3, [](double) { return Mat{1, 0, 0, 0, 3, 0, 0, 0, 2}; }, 0,
       [](double) { return std::vector<double>{3, 2, 1}; }, {0, 0, 1, 1, 0, 0, 0, 1, 0}},
      {"3x3 zero on the diagonal: unsorted", 3, [](double) { return Mat{1, 0, 0, 0, 0, 0, 0, 0, 2}; },
       tarnStatusSingular, [](double) { return std::vector<double>{1, 0, 2}; }, {1, 0, 0, 0, 1, 0, 0, 0, 1}},
      {"4x4 equal values keep their order", 4, [](double) { return Mat{2, 0, 0, 0, 0, 5, 0, 0, 0, 0, 2, 0, 0, 0, 0, 5}; },
       0, [](double) { return std::vector<double>{5, 5, 2, 2}; }, {0, 0, 0, 1, 1, 0, 0, 0, 0, 0, 1, 0, 0, 1, 0, 0}},
      // Off-diagonal elements of magnitude 2*eps count as zero; one step above they split the
      // equal diagonal elements.
      {"off-diagonal at 2 eps ignored", 3, [](double e) { return Mat{1, 2 * e, 0, 2 * e, 1, 0, 0, 0, 3}; }, 0,
       [](double) { return std::vector<double>{3, 1, 1}; }},
      {"off-diagonal above 2 eps taken", 3, [](double e) { return Mat{1, 2 * e * t, 0, 2 * e * t, 1, 0, 0, 0, 3}; }, 0,
       [](double e) { return std::vector<double>{3, 1 + 2 * e, 1 - 2 * e}; }},
      // The product of the values: eps exactly is singular, a step above is not.
      {"product at eps", 3, [](double e) { return Mat{1, 0, 0, 0, e, 0, 0, 0, 1}; }, tarnStatusSingular,
       [](double e) { return std::vector<double>{1, e, 1}; }},
      {"product above eps", 3, [](double e) { return Mat{1, 0, 0, 0, e * t, 0, 0, 0, 1}; }, 0,
       [](double e) { return std::vector<double>{1, 1, e * t}; }},
      {"NaN off the diagonal never converges", 3, [](double) { return Mat{1, kNaN, 0, kNaN, 2, 1, 0, 1, 3}; },
       tarnStatusNoConvergence, nullptr},
      {"NaN on the diagonal of a diagonal matrix", 3, [](double) { return Mat{kNaN, 0, 0, 0, 2, 0, 0, 0, 1}; }, 0,
       nullptr},
      // The trace of order 2 against -eps: at -eps the pair is +-q/2, a step below the larger
      // magnitude comes first.
      {"2x2 trace at -eps", 2, [](double e) { return Mat{0.125, 0.5, 0.5, -0.125 - e}; }, 0,
       [](double e) {
         const double q = std::sqrt((0.25 + e) * (0.25 + e) + 1);
         return std::vector<double>{0.5 * q, -0.5 * q};
       }},
      {"2x2 trace a step below -eps", 2, [](double e) { return Mat{0.125, 0.5, 0.5, -0.125 - 2 * e}; }, 0,
       [](double e) {
         const double q = std::sqrt((0.25 + 2 * e) * (0.25 + 2 * e) + 1), v0 = 0.5 * (-2 * e - q);
         return std::vector<double>{v0, (0.125 * (-0.125 - 2 * e) - 0.25) / v0};
       }},
      // A reflection whose h is eps is left out; a step above it is applied (and, with h tiny,
      // exchanges rows and columns 1 and 2).
      {"reflection with h at eps", 4,
       [](double e) {
         const double x = e > 0x1p-30 ? 0x1p-12 : 0x1p-27, y = e > 0x1p-30 ? 0 : 0x1p-27;
         return Mat{2, 0, x, y, 0, 3, 0, 0, x, 0, 4, 0, y, 0, 0, 5};
       },
       0, nullptr},
      {"reflection with h a step above eps", 4,
       [](double e) {
         const double x = e > 0x1p-30 ? 0x1p-12 + 0x1p-22 : 0x1p-27 + 0x1p-47, y = e > 0x1p-30 ? 0 : x;
         return Mat{2, 0, x, y, 0, 3, 0, 0, x, 0, 4, 0, y, 0, 0, 5};
       },
       0, nullptr},
      // With vectors a column whose norm exceeds its subdiagonal element by eps (in the
      // member's arithmetic) is left as it is; by the next step, 2*eps, it is reflected.
      {"column within eps of its form", 4,
       [](double e) {
         const double x1 = e > 0x1p-30 ? 0x1p-11 : 0x1.4p-26, x2 = e > 0x1p-30 ? 0x1p-23 : 0;
         return Mat{2, 1, x1, x2, 1, 3, 0, 0, x1, 0, 4, 0, x2, 0, 0, 5};
       },
       0, nullptr},
      {"column 2 eps from its form", 4,
       [](double e) {
         const double x1 = e > 0x1p-30 ? 0x1p-11 : 0x1p-25, x2 = e > 0x1p-30 ? 0x1p-11 : 0;
         return Mat{2, 1, x1, x2, 1, 3, 0, 0, x1, 0, 4, 0, x2, 0, 0, 5};
       },
       0, nullptr},
      // An eigenvalue that takes exactly 30 sweeps succeeds; one that would take 31 fails.
      {"30 sweeps for one eigenvalue", 4,
       [](double e) {
         return e > 0x1p-30 ? Mat{2, 0, 3, -3, 0, -1, -1, 2, 3, -1, 1, 1, -3, 2, 1, -3}
                            : Mat{2, 2, 0, 1, 2, -3, -1, 3, 0, -1, 2, 2, 1, 3, 2, 2};
       },
       0, nullptr},
      {"31 sweeps for one eigenvalue", 4,
       [](double e) {
         return e > 0x1p-30 ? Mat{3, 3, -1, 0, 3, -1, 0, -3, -1, 0, -1, -1, 0, -3, -1, -1}
                            : Mat{-2, 2, 0, 0, 2, 2, -1, 3, 0, -1, 2, 0, 0, 3, 0, 0};
       },
       tarnStatusNoConvergence, nullptr},
  };
  for (const MemberFn* m : allSym()) {
    const Name nm = parseName(m->name);
    const double eps = nm.esize == 4 ? 0x1p-23 : 0x1p-52;
    for (const Typed& c : cases) {
      const Mat a = c.make(eps);
      const Outcome o = runBatch(*m, c.n, std::vector<Mat>(isArray(nm) ? 5 : 1, a), style("packed"), 1);
      EXPECT_TRUE(o.why.empty()) << c.what << ": " << o.why;
      EXPECT_EQ(o.status, c.want) << c.what << ": " << m->name;
      if (c.values) {
        const auto want = c.values(eps);
        for (size_t j = 0; j < want.size(); ++j)
          EXPECT_NEAR(o.values[0][j], want[j], 4 * eps) << c.what << ": " << m->name << " value " << j;
      }
      if (!isValues(nm) && !c.vectors.empty())
        for (size_t j = 0; j < c.vectors.size(); ++j)
          EXPECT_EQ(o.vectors[0][j], c.vectors[j]) << c.what << ": " << m->name << " vector element " << j;
    }
  }
}

// The upward sweep's shift takes g + r for g > eps, and g - r for a g in (0, eps]; only the
// strided worker of a single 32f matrix with vectors takes g + r for any g > 0. A tridiagonal
// matrix whose first shift is g = eps/2 shows the difference.
TEST(EigenSym, ShiftOfTheStridedSingleFloatVectorsWorker) {
  for (const MemberFn* m : allSym()) {
    const Name nm = parseName(m->name);
    const double eps = nm.esize == 4 ? 0x1p-23 : 0x1p-52;
    const std::vector<Mat> mats(isArray(nm) ? 3 : 1, Mat{1, 1, 0, 1, 1 + eps, 0.5, 0, 0.5, 3});
    const Outcome packed = runBatch(*m, 3, mats, style("packed"), 1), strided = runBatch(*m, 3, mats, style("strided"), 1);
    EXPECT_TRUE(packed.why.empty()) << packed.why;
    EXPECT_TRUE(strided.why.empty()) << strided.why;
    const bool differs = packed.values != strided.values || packed.vectors != strided.vectors;
    EXPECT_EQ(differs, std::string(m->name) == "tarnEigenValuesVectorsSym_m_32f") << m->name;
  }
}

// ---- Failing objects ---------------------------------------------------------------------------

// Matrices that fail: the zero matrix is singular at every order from 2; a NaN off the diagonal
// never converges from order 3.
Mat failing(int n, bool nan) {
  Mat a(size_t(n * n), 0.0);
  if (nan) a[1] = a[size_t(n)] = kNaN;
  return a;
}

// A serial walk stops at its first failing object: the objects before it keep their results,
// the objects behind it are not touched. Positions inside a group of lanes, in the last partial
// group and first.
TEST(EigenSym, SerialBatchStopsAtTheFirstFailure) {
  for (const MemberFn* m : allSym()) {
    const Name nm = parseName(m->name);
    if (!isArray(nm)) continue;
    std::mt19937 rng(3);
    for (int n : {2, 3, 6})
      for (int at : {0, 5, 9}) {
        auto mats = solvableBatch(nm, rng, n, 11);
        const bool nan = n > 2 && at == 5;
        mats[size_t(at)] = failing(n, nan);
        mats[10] = failing(n, false);  // never reached
        const Outcome o = runBatch(*m, n, mats, style(at == 9 ? "strided" : "packed"), 1);
        EXPECT_TRUE(o.why.empty()) << o.why;
        EXPECT_EQ(o.status, nan ? tarnStatusNoConvergence : tarnStatusSingular) << m->name;
      }
  }
}

// Past the parallel limit each thread walks its own slice to its own first failure; the status
// is that of a failing slice. Failing objects in the first and in later slices.
TEST(EigenSym, FailingObjectsAcrossThreadSlices) {
  for (const MemberFn* m : allSym()) {
    const Name nm = parseName(m->name);
    if (!isArray(nm)) continue;
    std::mt19937 rng(5);
    const int n = 3, count = isValues(nm) ? 3400 : 101;  // above 40000 and 1700
    auto mats = solvableBatch(nm, rng, n, count);
    for (int threads = 1; threads <= 4; ++threads) {
      auto batch = mats;
      for (int at : {7, count / 2 + 1, count - 3}) batch[size_t(at)] = failing(n, at == 7);
      const Outcome o = runBatch(*m, n, batch, style(threads % 2 ? "packed" : "strided"), threads);
      EXPECT_TRUE(o.why.empty()) << o.why;
      // Slices of 3400 (101) objects on 1 to 4 threads: the failures fall into 1, 2, 3, 3 slices.
      EXPECT_EQ(o.allowed.size(), size_t(threads == 1 ? 1 : threads == 2 ? 2 : 3)) << m->name << " slices that fail";
    }
  }
}

// ---- Parallel limits -------------------------------------------------------------------------

// Values go parallel above n(n+1)*count = 20000, contiguous 32f LayoutL above 40000 (n = 4:
// count 1000 and 2000 land on the limits); vectors above n(2n+1)*count = 1700 (n = 2, count 170
// lands on it; n = 3, count 81 is 1701).
TEST(EigenSym, RegionsFromTheLimitOn) {
  for (const MemberFn* m : allSym()) {
    const Name nm = parseName(m->name);
    if (!isArray(nm)) continue;
    for (bool contig : {true, false}) {
      if (nm.layout == 'P' && !contig) continue;
      const Style& st = style(contig ? "packed" : "strided");
      const bool wide = isValues(nm) && nm.esize == 4 && nm.layout == 'L' && contig;
      const int nOn = isValues(nm) ? 4 : 2, countOn = isValues(nm) ? (wide ? 2000 : 1000) : 170;
      const int nAbove = isValues(nm) ? 4 : 3, countAbove = isValues(nm) ? countOn + 1 : 81;
      std::mt19937 rng(9);
      for (bool above : {false, true}) {
        const int n = above ? nAbove : nOn, count = above ? countAbove : countOn;
        const auto mats = solvableBatch(nm, rng, n, count);
        Outcome o;
        EXPECT_EQ(regionsOpenedBy([&] { o = runBatch(*m, n, mats, st, 2); }), above ? 1 : 0)
            << m->name << (contig ? " contiguous" : " strided") << " order " << n << " count " << count;
        EXPECT_TRUE(o.why.empty()) << o.why;
      }
    }
  }
}

}  // namespace
}  // namespace tt
