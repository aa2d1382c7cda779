// What the solving families share: a factor that its solver turns into solutions, and the work
// estimate from which each array member opens a parallel region.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "regions.hpp"
#include "solve.hpp"

namespace tt {
namespace {

// Factor, then solve, through the exports of both families of LU, Cholesky or QR: whatever the
// two agree on between them (the row order in pivot, the reciprocals on Cholesky's diagonal, the
// reflectors and their scales), x must solve A x = b, or for a tall A leave a residual orthogonal
// to A's columns. mava solves each system with its own factor, mva every b with the first one.
template <class T>
void factorThenSolve(const std::string& family, int h, int w) {
  constexpr int count = 37, e = int(sizeof(T));
  const bool qr = family == "QR", chol = family == "Cholesky";
  const int os = h * w * e, rs = w * e, vs = h * e;
  std::mt19937 rng(unsigned(h * 16 + w + (chol ? 100 : qr ? 200 : 0)));
  std::uniform_real_distribution<double> u(-1, 1);
  std::vector<T> a(size_t(h * w * count)), f(a.size()), b(size_t(h * count)), x(size_t(w * count)), y(x.size()),
      buf(static_cast<size_t>(h));
  std::vector<int32_t> piv(size_t(h * count));
  for (int k = 0; k < count; ++k) {
    std::vector<double> m(size_t(h * w));
    for (auto& v : m) v = u(rng);
    for (int r = 0; r < h; ++r)
      for (int c = 0; c < w; ++c) {
        double s = r == c ? double(w) : 0.0;  // M M^T + n I for Cholesky
        for (int j = 0; j < w; ++j) s += m[size_t(r * w + j)] * m[size_t(c * w + j)];
        a[size_t(k * h * w + r * w + c)] = T(chol ? s : m[size_t(r * w + c)]);
      }
  }
  for (auto& v : b) v = T(u(rng));
  const ArgBlk A{a.data(), os, rs, e}, F{f.data(), os, rs, e}, F0{f.data(), 0, rs, e}, B{b.data(), vs, 0, e},
      X{x.data(), w * e, 0, e}, Y{y.data(), w * e, 0, e}, P{piv.data()}, W{buf.data()};
  auto call = [&](const std::string& name, std::vector<ArgBlk> blocks) {
    if (!chol) blocks.insert(blocks.begin() + 1, qr ? W : P);  // pivot or work space after the matrix
    Args args;
    for (size_t i = 0; i < blocks.size(); ++i) args.op[i] = blocks[i];
    args.order = h;
    args.width = w;
    args.height = h;
    args.count = count;
    return member("tarn" + family + name + (e == 4 ? "_32f" : "_64f")).call(args);
  };
  ASSERT_EQ(call("Decomp_ma", {A, F}), 0);
  ASSERT_EQ(call("BackSubst_mava", {F, B, X}), 0);
  ASSERT_EQ(call("BackSubst_mva", {F0, B, Y}), 0);
  // Backward error of each solution through the normal equations: A^T (A x - b) against
  // |A|^T (|A| |x| + |b|), column by column.
  const double tol = 16.0 * h * double(std::numeric_limits<T>::epsilon());
  for (int k = 0; k < count; ++k)
    for (bool shared : {false, true}) {
      const T* sys = &a[size_t((shared ? 0 : k) * h * w)];
      const T* sol = &(shared ? y : x)[size_t(k * w)];
      std::vector<double> res(static_cast<size_t>(h)), scale(res.size());
      for (int r = 0; r < h; ++r) {
        res[size_t(r)] = -double(b[size_t(k * h + r)]);
        scale[size_t(r)] = std::fabs(double(b[size_t(k * h + r)]));
        for (int c = 0; c < w; ++c) {
          res[size_t(r)] += double(sys[r * w + c]) * double(sol[c]);
          scale[size_t(r)] += std::fabs(double(sys[r * w + c]) * double(sol[c]));
        }
      }
      for (int j = 0; j < w; ++j) {
        double s = 0, bound = 0;
        for (int r = 0; r < h; ++r) {
          s += double(sys[r * w + j]) * res[size_t(r)];
          bound += std::fabs(double(sys[r * w + j])) * scale[size_t(r)];
        }
        EXPECT_LE(std::fabs(s), tol * bound) << family << " " << h << "x" << w << " system " << k
                                             << (shared ? " mva" : " mava") << " esize " << e;
      }
    }
}

TEST(Solvers, FactorThenSolve) {
  for (const char* family : {"LU", "Cholesky", "QR"})
    for (int n = 1; n <= 8; ++n) {
      factorThenSolve<float>(family, n, n);
      factorThenSolve<double>(family, n, n);
    }
  for (int w : {1, 3, 5}) {
    factorThenSolve<float>("QR", 12, w);
    factorThenSolve<double>("QR", 12, w);
  }
}

// The first E that opens a region, per member and path (contiguous, general), typed from each
// member's documentation. At order 1 (a 1 by 1 QR) E is count for a decomposition and Det,
// 2*count for QRDecomp, 1 + 2*count for mva and 3*count for mava; Invert, whose order 1 never
// leaves the entry, runs at order 2, where E is 4*count.
// Per family and pattern: contiguous and general path of 32f in LayoutS, L and P, then of 64f.
struct Limit {
  const char* member;
  int32_t of[6][2];
};
const Limit kLimits[] = {
    {"LUDecomp_ma", {{20001, 20001}, {40001, 20001}, {20001, 20001}, {20001, 20001}, {20001, 20001}, {20001, 20001}}},
    {"LUBackSubst_mva", {{1701, 1701}, {1701, 1701}, {1701, 1701}, {1701, 1701}, {1701, 1701}, {1701, 1701}}},
    {"LUBackSubst_mava", {{1701, 1701}, {1701, 1701}, {1701, 1701}, {1701, 1701}, {1701, 1701}, {1701, 1701}}},
    {"CholeskyDecomp_ma", {{7501, 7501}, {2001, 2001}, {2001, 2001}, {2001, 2001}, {721, 2001}, {2001, 2001}}},
    {"CholeskyBackSubst_mva", {{1201, 1201}, {721, 721}, {721, 721}, {721, 721}, {721, 721}, {721, 721}}},
    {"CholeskyBackSubst_mava", {{2051, 1701}, {1701, 1701}, {1701, 1701}, {1701, 1701}, {1701, 1701}, {2051, 2051}}},
    {"QRDecomp_ma", {{2801, 2801}, {1801, 1801}, {1801, 1801}, {2801, 2801}, {1801, 1801}, {1801, 1801}}},
    {"QRBackSubst_mva", {{2801, 2801}, {1801, 1801}, {1801, 1801}, {2801, 2801}, {1801, 1801}, {1801, 1801}}},
    {"QRBackSubst_mava", {{2801, 2801}, {1801, 1801}, {1801, 1801}, {2801, 2801}, {1801, 1801}, {1801, 1801}}},
    {"Det_ma", {{20001, 20001}, {40001, 20001}, {20001, 20001}, {20001, 20001}, {20001, 20001}, {20001, 20001}}},
    {"Invert_ma", {{20001, 20001}, {40001, 20001}, {20001, 20001}, {20001, 20001}, {20001, 20001}, {20001, 20001}}},
};

TEST(Solvers, RegionFromTheLimitOn) {
  for (const Limit& l : kLimits)
    for (int t = 0; t < 6; ++t) {
      const char* layouts[] = {"", "_L", "_P"};
      const MemberFn& m = member(std::string("tarn") + l.member + (t < 3 ? "_32f" : "_64f") + layouts[t % 3]);
      const Name nm = parseName(m.name);
      const int n = nm.family == "Invert" ? 2 : 1;
      auto estimate = [&](int32_t c) {
        if (nm.pattern != "ma") return nm.pattern == "mva" ? 1 + 2 * c : 3 * c;
        return nm.family == "Invert" ? 4 * c : nm.family == "QRDecomp" ? 2 * c : c;
      };
      for (bool contig : {true, false}) {
        if (nm.layout == 'P' && !contig) continue;
        const int32_t limit = l.of[t][contig ? 0 : 1];
        int32_t count = 1;
        while (estimate(count) < limit) ++count;
        for (int32_t c : {count - 1, count}) {
          CallFixture fx(m, c, style(contig ? "packed" : "strided"), [&](int b) { return orderExtent(m, b, n); });
          fx.args.order = fx.args.width = fx.args.height = n;
          for (int b = 0; b < m.nop; ++b)  // identities, ones and pivots in order: nothing fails
            for (int k = 0; k < (fx.isArray(b) ? c : 1) && !m.blk[b].out; ++k)
              for (int i = 0; i < n; ++i)
                if (m.blk[b].kind == 0) fx.block(b).setBits(0, 0, k * n + i, uint32_t(i));
                else
                  for (int j = 0; j < n; ++j)
                    fx.block(b).set(k, m.blk[b].kind == 'm' ? i : 0, j, m.blk[b].kind != 'm' || i == j ? 1.0 : 0.0);
          EXPECT_EQ(regionsOpenedBy([&] { EXPECT_EQ(fx.run(2), 0) << m.name; }), estimate(c) >= limit)
              << m.name << (contig ? " contiguous" : " general") << " E " << estimate(c);
        }
      }
    }
}

}  // namespace
}  // namespace tt
