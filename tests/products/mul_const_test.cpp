// Mul with a constant: one rounded product per element, src's element first, on every path;
// tc and tac read a source stored with width rows; a constant 0 does not skip its operand;
// dst over src; each path's threshold, E typed from the docs, on and one below the limit.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "elementwise.hpp"
#include "regions.hpp"

namespace tt {
namespace {

double refMul(double a, double b, const Args&, int esize) {
  return esize == 4 ? double(float(a) * float(b)) : a * b;
}

std::vector<const MemberFn*> constMembers() {
  std::vector<const MemberFn*> out;
  for (const MemberFn* m : membersOf("Mul"))
    if (parseName(m->name).pattern.find('c') != std::string::npos) out.push_back(m);
  return out;
}
bool isMatrix(const std::string& p) { return p[0] == 'm' || p[0] == 't'; }

TEST(MulConst, EveryMemberShapeAndPlacement) {
  const auto members = constMembers();
  ASSERT_EQ(members.size(), 42u);
  const EwShape matrices[] = {{3, 3}, {4, 4}, {5, 5}, {6, 6}, {1, 1}, {2, 3}, {3, 2}, {4, 7}, {9, 4}};
  const EwShape vectors[] = {{1, 3}, {1, 4}, {1, 5}, {1, 6}, {1, 1}, {1, 2}, {1, 9}, {1, 17}};
  for (const MemberFn* m : members) {
    const std::string p = parseName(m->name).pattern;
    unsigned seed = 1;
    for (const EwShape& s : isMatrix(p) ? std::vector<EwShape>(std::begin(matrices), std::end(matrices))
                                        : std::vector<EwShape>(std::begin(vectors), std::end(vectors)))
      for (const Style& st : styles())
        for (int count : {1, 2, 9}) EXPECT_EQ(runElementwise(*m, s, count, st, 1, seed++, refMul).failure, "");
  }
}

// In tc, width 2 and height 3: src has 2 rows and 3 columns, dst 3 rows and 2 columns.
TEST(MulConst, TransposedSourceIsStoredWithWidthRows) {
  const float src[2][3] = {{1, 2, 3}, {4, 5, 6}};
  float dst[3][2] = {};
  ASSERT_EQ(tarnMul_tc_32f(&src[0][0], 12, 4, 2.0f, &dst[0][0], 8, 4, 2, 3), tarnStatusOk);
  const float want[3][2] = {{2, 8}, {4, 10}, {6, 12}};
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 2; ++j) EXPECT_EQ(dst[i][j], want[i][j]) << i << j;
}

// A constant 0 multiplies like any other: NaN and infinity give NaN.
TEST(MulConst, ZeroConstantDoesNotSkipItsOperand) {
  const double nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
  for (const MemberFn* m : constMembers()) {
    const Name nm = parseName(m->name);
    const bool matrix = isMatrix(nm.pattern), srcArr = nm.pattern[1] == 'a', valArr = nm.pattern.ends_with("ca");
    const int count = srcArr || valArr ? 3 : 1, h = matrix ? 4 : 1, w = 5;
    auto lay = [&](bool array) { return nm.layout == 'L' && !array ? 'S' : nm.layout; };
    Operand src(lay(srcArr), nm.esize, nm.pattern[0] == 't' ? w : h, nm.pattern[0] == 't' ? h : w, srcArr ? count : 1,
                srcArr, style("packed"));
    Operand val(nm.layout == 'L' ? 'L' : 'S', nm.esize, 1, 1, count, true, style("packed"));
    Operand dst(nm.layout, nm.esize, h, w, count, srcArr || valArr, style("packed"));
    for (int n = 0; n < (srcArr ? count : 1); ++n)
      for (int r = 0; r < (nm.pattern[0] == 't' ? w : h); ++r)
        for (int c = 0; c < (nm.pattern[0] == 't' ? h : w); ++c) src.set(n, r, c, (r + c) % 2 ? inf : nan);
    for (int n = 0; n < count; ++n) val.set(n, 0, 0, 0.0);
    Args args;
    args.op[0] = src.blk();
    if (valArr) args.op[1] = val.blk();
    args.op[valArr ? 2 : 1] = dst.blk();
    args.width = w;
    args.height = h;
    args.len = w;
    args.count = count;
    args.val[0] = 0.0;
    ASSERT_EQ(m->call(args), tarnStatusOk) << m->name;
    for (int n = 0; n < count; ++n)
      for (int r = 0; r < h; ++r)
        for (int c = 0; c < w; ++c) EXPECT_TRUE(std::isnan(dst.get(n, r, c))) << m->name << " " << n << " " << r << c;
    EXPECT_TRUE(dst.canariesIntact()) << m->name;
  }
}

// dst over src with the same strides: each element is read before it is written.
TEST(MulConst, InPlaceOverTheSource) {
  for (const MemberFn* m : constMembers()) {
    const std::string p = parseName(m->name).pattern;
    if (p != "mc" && p != "mac" && p != "vc" && p != "vac") continue;
    unsigned seed = 50;
    for (const EwShape& s : isMatrix(p) ? std::vector<EwShape>{{3, 3}, {4, 4}, {6, 6}, {5, 7}}
                                        : std::vector<EwShape>{{1, 3}, {1, 4}, {1, 9}, {1, 40}})
      for (const char* st : {"packed", "aligned16", "padded", "strided"})
        EXPECT_EQ(runElementwise(*m, s, 3, style(st), 1, seed++, refMul, true).failure, "");
  }
}

// Thresholds as documented: the smallest E that goes parallel per path. `mac`, `tac`: serial
// while E < 35001, but in LayoutL strided float E < 15001, and in LayoutP E <= 17000. `vac`:
// E <= 36864 contiguous LayoutS, else <= 18432; LayoutL <= 18432; LayoutP <= 9216. `vca`,
// `vaca`: E <= 36864, LayoutL <= 18432, LayoutP < 9217, whatever the contiguity.
TEST(MulConst, Thresholds) {
  for (const MemberFn* m : constMembers()) {
    const Name nm = parseName(m->name);
    const std::string& p = nm.pattern;
    if (p.find('a') == std::string::npos) continue;
    const bool f32 = nm.esize == 4;
    for (bool contig : {true, false}) {
      if (nm.layout == 'P' && !contig) continue;
      int64_t thr = 0;
      if (p == "mac" || p == "tac") thr = nm.layout == 'P' ? 17001 : nm.layout == 'L' && !contig && f32 ? 15001 : 35001;
      else if (p == "vac") thr = nm.layout == 'P' ? 9217 : nm.layout == 'L' ? 18433 : contig ? 36865 : 18433;
      else thr = nm.layout == 'P' ? 9217 : nm.layout == 'L' ? 18433 : 36865;
      auto estimate = [&](int64_t h, int64_t w, int64_t c) -> int64_t {
        if (p == "mac" || p == "tac") return 2 * w * h * c;
        if (p == "vac") return 2 * w * c;
        if (p == "vca") return w * (c + 1) + c;
        return c * (2 * w + 1);
      };
      for (int64_t target : {thr - 1, thr}) {
        EwShape shape{0, 0};
        int count = 0;
        for (int64_t miss = 0; miss < 3 && !count; ++miss)
          for (int h = 1; h <= (isMatrix(p) ? 8 : 1) && !count; ++h)
            for (int w = 1; w <= 8 && !count; ++w) {
              const int64_t want = target < thr ? target - miss : target + miss;
              for (int c = 2; estimate(h, w, c) <= want; ++c)
                if (estimate(h, w, c) == want) {
                  shape = {h, w}, count = c;
                  break;
                }
            }
        ASSERT_GT(count, 0) << m->name;
        const Style& st = style(contig ? "packed" : "strided");
        const int regions = regionsOpenedBy([&] { runElementwise(*m, shape, count, st, 2, 3, refMul); });
        EXPECT_EQ(regions, target < thr ? 0 : 1) << m->name << (contig ? " contiguous" : " strided") << " E " << target;
      }
    }
  }
}

}  // namespace
}  // namespace tt
