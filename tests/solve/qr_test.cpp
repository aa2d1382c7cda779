// QRDecomp and QRBackSubst against their models, in every member, layout and placement; column
// norms at and around the limit; failing objects across thread slices, each thread in its own
// part of the scratch.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "ref/solve_ref.hpp"
#include "solve.hpp"

namespace tt {
namespace {

struct Shape {
  int h, w;
};
// No reflector (1x1), the general loop, every shape with a body in locals, and beyond them.
const Shape kShapes[] = {{1, 1}, {2, 1}, {2, 2}, {3, 3}, {4, 3}, {4, 4}, {5, 2},
                         {5, 5}, {6, 3}, {6, 4}, {6, 6}, {7, 7}, {8, 5}};

bool isDecomp(const MemberFn& m) { return parseName(m.name).family == "QRDecomp"; }

// Blocks: QRDecomp src, buffer, dst; QRBackSubst src1, buffer, src2, dst. The buffer carries
// over from object to object; square orders 3 to 6 of the solver keep b in locals.
std::string runQR(const MemberFn& m, const Style& st, Shape s, SolveCall c) {
  const bool decomp = isDecomp(m);
  c.m = &m;
  c.st = &st;
  c.width = s.w;
  c.height = s.h;
  c.extent = [=](int b) {
    return b == 1 ? Extent{1, s.h} : b == 0 || decomp ? Extent{s.h, s.w} : Extent{1, b == 3 ? s.w : s.h};
  };
  return runSolve(c, [=]<class T>(Images<T>& im) -> tarnStatus {
    ref::Mat<T> a(s.h, s.w);
    std::copy(im.e[0], im.e[0] + s.h * s.w, a.e.begin());
    std::vector<T> buf(im.e[1], im.e[1] + s.h), x, cb;
    if (decomp) {
      const int status = ref::qrDecomp(a, buf);
      std::copy(a.e.begin(), a.e.end(), im.e[2]);
      std::copy(buf.begin(), buf.end(), im.e[1]);
      return status;
    }
    ref::qrSolve(a, std::vector<T>(im.e[2], im.e[2] + s.h), x, cb);
    std::copy(x.begin(), x.end(), im.e[3]);
    if (!(s.h == s.w && s.h >= 3 && s.h <= 6)) std::copy(cb.begin(), cb.end(), im.e[1]);
    return tarnStatusOk;
  });
}

// Every member, every shape, the placements in turn; arrays of 7 objects (a short last group in
// both types), exceptional values in every other shape, and in place in some.
TEST(QR, EveryMemberMatchesTheModel) {
  int i = 0;
  for (const char* family : {"QRDecomp", "QRBackSubst"})
    for (const MemberFn* m : membersOf(family))
      for (const Shape s : kShapes) {
        const Style& st = styles()[size_t(i++) % styles().size()];
        const bool inPlace = i % 5 == 0 && (isDecomp(*m) || s.h == s.w) && std::string(st.name) != "soa";
        SolveCall c;
        c.count = 7;
        c.specials = i % 2;
        c.seed = unsigned(i);
        c.onto = inPlace ? (isDecomp(*m) ? 0 : 2) : -1;
        EXPECT_EQ(runQR(*m, st, s, c), "");
      }
}

// A column fails when its squared norm from the diagonal down is strictly below 2^-23 (32f) or
// 2^-52 (64f); the last column of a square matrix is never tested. The status is typed here, the
// results come from the model.
TEST(QR, ColumnNormLimit) {
  struct Case {
    Shape s;
    double col32[2], col64[2];  // rows 0 and 1 of column 0; rows below are 0
    int status;
  };
  const double below32 = 0x1p-12 * (1 - 0x1p-24), below64 = 0x1p-26 * (1 - 0x1p-53);
  const Case cases[] = {
      {{2, 1}, {0x1p-12, 0x1p-12}, {0x1p-26, 0}, 0},  // exactly on the limit
      {{2, 1}, {0x1p-12, below32}, {below64, 0}, -10},  // one step below
      {{3, 2}, {0x1p-12, 0x1p-12}, {0x1p-26, 0}, 0},
      {{3, 2}, {below32, 0x1p-12}, {below64, 0}, -10},
      {{1, 1}, {0, 0}, {0, 0}, 0},  // no reflector at all
      {{2, 2}, {1, 0}, {1, 0}, 0},  // the last column, zero below the diagonal, is not tested
  };
  for (const char* name :
       {"tarnQRDecomp_m_32f", "tarnQRDecomp_m_64f_P", "tarnQRDecomp_ma_32f_L", "tarnQRDecomp_ma_64f"})
    for (const Case& c : cases) {
      const bool f64 = parseName(name).esize == 8;
      SolveCall r;
      r.count = 3;
      r.status = c.status;
      r.fill = [&](CallFixture& fx, std::mt19937& rng) {
        fx.fillSources(rng, false);
        for (int n = 0; n < (fx.isArray(0) ? fx.count() : 1); ++n) {
          for (int i = 0; i < c.s.h; ++i) fx.block(0).set(n, i, 0, i < 2 ? (f64 ? c.col64 : c.col32)[i] : 0.0);
          if (c.s.w == 2 && c.s.h == 2) fx.block(0).set(n, 1, 1, 0.0);
        }
      };
      EXPECT_EQ(runQR(member(name), style("guarded"), c.s, r), "");
    }
}

// Objects with a zero column fail: every slice stops at its own first failure, later objects of
// the slice are untouched, the others finish; 1 to 4 threads.
TEST(QR, FailuresAcrossThreadSlices) {
  struct Case {
    const char* name;
    Shape s;
    int count;
    std::vector<int> failing;
    int column;  // zeroed column: 1 fails at stage 1 with stage 0 applied
  };
  const Case cases[] = {
      {"tarnQRDecomp_ma_32f", {4, 4}, 100, {10, 30, 60, 99}, 1},
      {"tarnQRDecomp_ma_64f_P", {5, 5}, 60, {0, 59}, 0},
      {"tarnQRDecomp_ma_32f_L", {7, 3}, 50, {24, 25}, 2},
      {"tarnQRDecomp_ma_32f", {5, 3}, 400, {}, 0},
      {"tarnQRBackSubst_mava_32f_L", {5, 3}, 400, {}, 0},
      {"tarnQRBackSubst_mva_64f", {5, 3}, 400, {}, 0},
  };
  for (const Case& c : cases)
    for (int threads = 1; threads <= 4; ++threads) {
      SolveCall r;
      r.count = c.count;
      r.threads = threads;
      r.parallel = true;
      r.fill = [&](CallFixture& fx, std::mt19937& rng) {
        fx.fillSources(rng, false);
        for (int n : c.failing)
          for (int i = 0; i < c.s.h; ++i) fx.block(0).set(n, i, c.column, 0.0);
      };
      EXPECT_EQ(runQR(member(c.name), style("padded"), c.s, r), "");
    }
}

}  // namespace
}  // namespace tt
