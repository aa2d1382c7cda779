// The fixed 4x4 float product: each element the four products left to right from the first,
// aligned or not, with dst over either source, and the one pointer check of the fixed members.
#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "operand.hpp"
#include "ref/geometry_ref.hpp"
#include "tarn.h"

namespace tt {
namespace {

TEST(MulFixed, Mm4x4AlignedUnalignedAndInPlace) {
  std::mt19937 rng(5);
  alignas(16) float mem[3][20];
  for (int offset : {0, 1, 3}) {  // floats past a 16-byte boundary
    float *a = mem[0] + offset, *b = mem[1] + offset, *d = mem[2] + offset;
    for (int i = 0; i < 16; ++i) {
      a[i] = float(randomValue(rng, 4));
      b[i] = float(randomValue(rng, 4));
    }
    a[0] = -0.0f;  // -0 * x + ...: the sum starts from the first product, not from +0
    b[1] = 0.0f;
    float want[16];
    ref::mul(a, b, want);
    ASSERT_EQ(tarnMul_mm4x4_32f(a, b, d), tarnStatusOk);
    EXPECT_EQ(std::memcmp(d, want, sizeof want), 0) << offset;
    float a2[16], b2[16];
    std::memcpy(a2, a, sizeof a2);
    std::memcpy(b2, b, sizeof b2);
    ASSERT_EQ(tarnMul_mm4x4_32f(a2, b, a2), tarnStatusOk);
    EXPECT_EQ(std::memcmp(a2, want, sizeof want), 0) << "dst over src1 " << offset;
    ASSERT_EQ(tarnMul_mm4x4_32f(a, b2, b2), tarnStatusOk);
    EXPECT_EQ(std::memcmp(b2, want, sizeof want), 0) << "dst over src2 " << offset;
  }
  float x[16] = {};
  EXPECT_EQ(tarnMul_mm4x4_32f(nullptr, x, x), tarnStatusNullPointer);
  EXPECT_EQ(tarnMul_mm4x4_32f(x, nullptr, x), tarnStatusNullPointer);
  EXPECT_EQ(tarnMul_mm4x4_32f(x, x, nullptr), tarnStatusNullPointer);
}

}  // namespace
}  // namespace tt
