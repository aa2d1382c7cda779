// Fixed 4x4 operations: determinant, inverse and products against models of their stated steps,
// the absolute limit on the pivot from both sides, the exact identity test, and the moves.
#include <algorithm>

#include "fixed.hpp"
#include "ref/geometry_ref.hpp"
#include "tarn.h"

namespace tt {
namespace {

float detModel(const float* s) {
  auto m = [s](int r, int c) { return s[4 * r + c]; };
  const float a = m(2, 2) * m(3, 3) - m(2, 3) * m(3, 2), b = m(3, 3) * m(2, 1) - m(2, 3) * m(3, 1);
  const float c = m(3, 2) * m(2, 1) - m(2, 2) * m(3, 1), d = m(3, 2) * m(2, 0) - m(2, 2) * m(3, 0);
  const float e = m(3, 3) * m(2, 0) - m(2, 3) * m(3, 0), f = m(3, 1) * m(2, 0) - m(2, 1) * m(3, 0);
  return (((m(1, 1) * a - m(1, 2) * b + m(1, 3) * c) * m(0, 0) - (a * m(1, 0) - m(1, 2) * e + m(1, 3) * d) * m(0, 1)) +
          (b * m(1, 0) - e * m(1, 1) + m(1, 3) * f) * m(0, 2)) -
         (c * m(1, 0) - m(1, 1) * d + m(1, 2) * f) * m(0, 3);
}

// Random matrices, and matrices of small integers whose rows tie in magnitude, so the rule
// that the first of equal pivots stays decides the order of elimination.
void fillMatrix(std::mt19937& rng, int trial, float* m) {
  for (int i = 0; i < 16; ++i) m[i] = trial % 2 ? float(int(rng() % 5) - 2) : value(rng, trial % 7 == 6);
}

TEST(GeometryM4, DetInvertAndProductsAgainstTheirModels) {
  std::mt19937 rng(44);
  Fixed a(16), b(16), d(16), det(1);
  int singular = 0;
  for (int trial = 0; trial < 2000; ++trial) {
    fillMatrix(rng, trial, a.p);
    fillMatrix(rng, trial + 1, b.p);
    float want[16], wantDet = 0.0f;
    ASSERT_EQ(tarnDet_m4_32f(a.p, det.p), tarnStatusOk);
    ASSERT_TRUE(sameFloats(det.p, &(wantDet = detModel(a.p)), 1)) << trial;
    // The inverse, with and without a determinant, into dst and over src.
    std::memcpy(d.p, b.p, 64);
    const int st = ref::invert(a.p, &wantDet, want);
    singular += st != 0;
    ASSERT_EQ(tarnInvert_m4_32f(a.p, det.p, d.p), st) << trial;
    ASSERT_TRUE(sameFloats(d.p, st ? b.p : want, 16)) << trial;  // unchanged when singular
    ASSERT_TRUE(sameFloats(det.p, &wantDet, 1)) << trial;
    std::memcpy(d.p, a.p, 64);
    ASSERT_EQ(tarnInvert_m4_32f(d.p, nullptr, d.p), st) << trial;
    ASSERT_TRUE(sameFloats(d.p, st ? a.p : want, 16)) << trial;
    // src1 * src2, transposed.
    float prod[16];
    ref::mul(a.p, b.p, prod);
    for (int i = 0; i < 16; ++i) want[i] = prod[4 * (i % 4) + i / 4];
    ASSERT_EQ(tarnMulTranspose_m4_32f(a.p, b.p, d.p), tarnStatusOk);
    ASSERT_TRUE(sameFloats(d.p, want, 16)) << trial;
    ASSERT_EQ(tarnTranspose_m4_32f(a.p, d.p), tarnStatusOk);
    for (int i = 0; i < 16; ++i) ASSERT_EQ(bitsOf(d.p[i]), bitsOf(a.p[4 * (i % 4) + i / 4]));
    // src1 * src2 from the first product on, then 0 to 3 floats past a 16-byte boundary over
    // either source.
    ASSERT_EQ(tarnMul_mm4x4_32f(a.p, b.p, d.p), tarnStatusOk);
    ASSERT_TRUE(sameFloats(d.p, prod, 16)) << trial;
    alignas(16) float u[2][20];
    float *x = u[0] + trial % 4, *y = u[1] + trial % 4, *over = trial % 3 ? x : y;
    std::memcpy(x, a.p, 64), std::memcpy(y, b.p, 64);
    ASSERT_EQ(tarnMul_mm4x4_32f(x, y, over), tarnStatusOk);
    ASSERT_TRUE(sameFloats(over, prod, 16)) << trial;
  }
  EXPECT_GT(singular, 20);
  for (const Fixed* f : {&a, &b, &d, &det}) EXPECT_TRUE(f->leadIntact());
  // The one check a fixed-size member makes.
  EXPECT_EQ(tarnMul_mm4x4_32f(nullptr, b.p, d.p), tarnStatusNullPointer);
  EXPECT_EQ(tarnMul_mm4x4_32f(a.p, nullptr, d.p), tarnStatusNullPointer);
  EXPECT_EQ(tarnMul_mm4x4_32f(a.p, b.p, nullptr), tarnStatusNullPointer);
}

// The limit is absolute, 1.4305115e-6 (bits 0x35C00000): a pivot exactly on it passes, one ulp
// below fails with det 0 and dst unchanged, whatever the scale of the rest of the matrix.
TEST(GeometryM4, PivotLimitIsAbsolute) {
  const float limit = 1.4305115e-6f, below = std::nextafter(limit, 0.0f);
  ASSERT_EQ(bitsOf(limit), 0x35C00000u);
  struct Row {
    float scale, last;
    tarnStatus want;
  } const rows[] = {{1, limit, tarnStatusOk},        {1, -limit, tarnStatusOk},          {1, below, tarnStatusSingular},
                    {1, -below, tarnStatusSingular}, {1e-7f, 1e-7f, tarnStatusSingular}, {1e-5f, 1e-5f, tarnStatusOk}};
  for (const Row& r : rows) {
    float m[16] = {}, d[16], det = 7.0f;
    for (int i = 0; i < 3; ++i) m[5 * i] = r.scale, m[5 * i + 1] = i ? r.scale / 2 : 0;
    m[15] = r.last;
    std::fill(d, d + 16, 3.0f);
    EXPECT_EQ(tarnInvert_m4_32f(m, &det, d), r.want) << r.scale << " " << r.last;
    float wantDet = 0.0f, inv[16];
    ref::invert(m, &wantDet, inv);
    EXPECT_EQ(det, wantDet) << r.last;
    if (r.want) EXPECT_EQ(std::count(d, d + 16, 3.0f), 16);
    EXPECT_EQ(tarnInvert_m4_32f(m, nullptr, d), r.want);
  }
}

TEST(GeometryM4, IdentityExactly) {
  float id[16];
  ASSERT_EQ(tarnIdentity_m4_32f(id), tarnStatusOk);
  for (int i = 0; i < 16; ++i) ASSERT_EQ(bitsOf(id[i]), i % 5 ? 0u : 0x3F800000u);
  struct Row {
    int at;
    float v;
    int32_t want;
  } const rows[] = {{-1, 0, 1},   {3, -0.0f, 1}, {7, 1e-30f, 0}, {0, std::nextafter(1.0f, 2.0f), 0},
                    {15, NAN, 0}, {12, NAN, 0}};
  for (const Row& r : rows) {
    Fixed m(16), result(1);
    std::memcpy(m.p, id, 64);
    if (r.at >= 0) m.p[r.at] = r.v;
    int32_t* res = reinterpret_cast<int32_t*>(result.p);
    *res = 5;
    ASSERT_EQ(tarnIsIdentity_m4_32f(m.p, res), tarnStatusOk);
    EXPECT_EQ(*res, r.want) << r.at << " " << r.v;
  }
}

}  // namespace
}  // namespace tt
