// Saxpy and LComb beyond the shared sweeps: the reference can tell fused and swapped arithmetic
// apart, a zero scalar does not skip its operand, each scalar scales its own operand.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

#include "elementwise.hpp"
#include "ref/scaled_ref.hpp"

namespace tt {
namespace {

struct Family {
  const char* name;
  RefOp ref;
};
const Family kFamilies[] = {{"Saxpy", refSaxpy}, {"LComb", refLComb}};

// The reference must tell a fused multiply-add and swapped operands from the real thing on the
// data the sweep uses; otherwise the sweep above proves nothing about them.
TEST(SaxpyLComb, ReferenceSeesFusionAndOperandOrder) {
  std::mt19937 rng(3);
  int fusedDiffers = 0, swappedDiffers = 0;
  for (int i = 0; i < 200; ++i) {
    Args args;
    args.val[0] = randomValue(rng, 4);
    args.val[1] = randomValue(rng, 4);
    const double a = randomValue(rng, 4), b = randomValue(rng, 4);
    const float fused = std::fma(float(a), float(args.val[0]), float(b));
    fusedDiffers += bitsOf(refSaxpy(a, b, args, 4), 4) != bitsOf(fused, 4);
    swappedDiffers += bitsOf(refLComb(a, b, args, 4), 4) != bitsOf(refLComb(b, a, args, 4), 4);
  }
  EXPECT_GT(fusedDiffers, 20);
  EXPECT_GT(swappedDiffers, 150);
}

// A scalar 0 multiplies like any other: NaN and infinity in the operand it scales give NaN.
TEST(SaxpyLComb, ZeroScalarDoesNotSkipItsOperand) {
  const double nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
  for (const Family& f : kFamilies)
    for (const MemberFn* m : membersOf(f.name)) {
      const Name nm = parseName(m->name);
      const bool arr1 = nm.pattern.starts_with("va"), arr2 = nm.pattern.ends_with("va");
      const bool anyArray = arr1 || arr2;
      for (int len : {3, 4, 6, 9}) {
        const int count = anyArray ? 3 : 1;
        auto lay = [&](bool array) { return nm.layout == 'L' && !array ? 'S' : nm.layout; };
        Operand s1(lay(arr1), nm.esize, 1, len, arr1 ? count : 1, arr1, style("packed"));
        Operand s2(lay(arr2), nm.esize, 1, len, arr2 ? count : 1, arr2, style("packed"));
        Operand d(nm.layout, nm.esize, 1, len, count, anyArray, style("packed"));
        for (int n = 0; n < (arr1 ? count : 1); ++n)
          for (int i = 0; i < len; ++i) s1.set(n, 0, i, i % 2 ? inf : nan);
        for (int n = 0; n < (arr2 ? count : 1); ++n)
          for (int i = 0; i < len; ++i) s2.set(n, 0, i, 1.5);
        Args args;
        args.op[0] = s1.blk();
        args.op[1] = s2.blk();
        args.op[2] = d.blk();
        args.len = len;
        args.count = count;
        args.val[0] = 0.0;
        args.val[1] = 2.0;
        ASSERT_EQ(m->call(args), tarnStatusOk) << m->name;
        for (int n = 0; n < count; ++n)
          for (int i = 0; i < len; ++i) EXPECT_TRUE(std::isnan(d.get(n, 0, i))) << m->name << " " << n << " " << i;
        EXPECT_TRUE(d.canariesIntact()) << m->name;
      }
    }
}

// The scalars stand right behind the operand they multiply: val scales src1, never src2.
TEST(SaxpyLComb, ScalarsScaleTheirOwnOperand) {
  const float x[4] = {1, 2, 3, 4}, y[4] = {100, 200, 300, 400};
  float d[4];
  ASSERT_EQ(tarnSaxpy_vv_32f(x, 4, 0.5f, y, 4, d, 4, 4), tarnStatusOk);
  EXPECT_EQ(d[0], 100.5f);
  EXPECT_EQ(d[3], 402.0f);
  ASSERT_EQ(tarnLComb_vv_32f(x, 4, 2.0f, y, 4, 0.25f, d, 4, 4), tarnStatusOk);
  EXPECT_EQ(d[0], 27.0f);
  EXPECT_EQ(d[3], 108.0f);
  double e[6];
  const double a[6] = {1, 2, 3, 4, 5, 6}, one[3] = {10, 20, 30};
  ASSERT_EQ(tarnSaxpy_vva_64f(one, 8, 3.0, a, 24, 8, e, 24, 8, 3, 2), tarnStatusOk);
  EXPECT_EQ(e[0], 31);
  EXPECT_EQ(e[5], 96);
  ASSERT_EQ(tarnLComb_vav_64f(a, 24, 8, 2.0, one, 8, -1.0, e, 24, 8, 3, 2), tarnStatusOk);
  EXPECT_EQ(e[0], -8);
  EXPECT_EQ(e[5], -18);
}

}  // namespace
}  // namespace tt
