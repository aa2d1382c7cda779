// Sub beyond the shared sweeps: which operand is the minuend, the constant-first forms that share
// their twins' argument lists, and the validation orders that depart from the standard ones.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "elementwise.hpp"

namespace tt {
namespace {

// Hand-checked values: the minuend is the operand named first, whatever the argument order.
TEST(Sub, MinuendIsNamedFirst) {
  const float src[3] = {0.25f, 2.0f, -1.5f};
  float vc[3], cv[3];
  ASSERT_EQ(tarnSub_vc_32f(src, 4, 1.0f, vc, 4, 3), tarnStatusOk);
  ASSERT_EQ(tarnSub_cv_32f(src, 4, 1.0f, cv, 4, 3), tarnStatusOk);
  const float wantCv[3] = {0.75f, -1.0f, 2.5f};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(cv[i], wantCv[i]) << i;
    EXPECT_EQ(vc[i], -wantCv[i]) << i;
  }

  // mma: the single matrix minus each object of the array.
  const double one[4] = {10, 20, 30, 40};
  const double arr[8] = {1, 2, 3, 4, 5, 6, 7, 8};
  double d[8];
  ASSERT_EQ(tarnSub_mma_64f(one, 16, 8, arr, 32, 16, 8, d, 32, 16, 8, 2, 2, 2), tarnStatusOk);
  const double want[8] = {9, 18, 27, 36, 5, 14, 23, 32};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(d[i], want[i]) << i;

  // cav: the constant of each object minus the single vector; cva: the one constant minus each.
  const double v2[2] = {1, 2}, vals[2] = {10, 100};
  double e[4];
  ASSERT_EQ(tarnSub_cav_64f(v2, 8, vals, 8, e, 16, 8, 2, 2), tarnStatusOk);
  EXPECT_EQ(e[0], 9);
  EXPECT_EQ(e[1], 8);
  EXPECT_EQ(e[2], 99);
  EXPECT_EQ(e[3], 98);
  const double va[4] = {1, 2, 3, 4};
  ASSERT_EQ(tarnSub_cva_64f(va, 16, 8, 5.0, e, 16, 8, 2, 2), tarnStatusOk);
  EXPECT_EQ(e[0], 4);
  EXPECT_EQ(e[3], 1);
}

// The members whose check order departs from the standard one, each beside a member that keeps
// it: a call with two faults reports the first fault of its own order.
TEST(Sub, ValidationOrderDepartures) {
  float m[16] = {}, d[16] = {};
  float* mt[1] = {m};
  float* dt[1] = {d};
  struct Case {
    const char* what;
    tarnStatus got, want;
  };
  const Case cases[] = {
      // mam, mma (LayoutS): count, then strides, then sizes.
      {"mma count 0, stride 2", tarnSub_mma_32f(m, 16, 4, m, 64, 2, 4, d, 64, 16, 4, 4, 4, 0), tarnStatusBadCount},
      {"mma count 1, stride 2, width 0", tarnSub_mma_32f(m, 16, 4, m, 64, 2, 4, d, 64, 16, 4, 0, 4, 1), tarnStatusBadStride},
      {"mam count 1, stride 2, width 0", tarnSub_mam_32f(m, 64, 2, 4, m, 16, 4, d, 64, 16, 4, 0, 4, 1), tarnStatusBadStride},
      {"mama count 1, stride 2, width 0", tarnSub_mama_32f(m, 64, 2, 4, m, 64, 16, 4, d, 64, 16, 4, 0, 4, 1), tarnStatusBadSize},
      {"mta count 1, stride 2, width 0", tarnSub_mta_32f(m, 16, 4, m, 64, 2, 4, d, 64, 16, 4, 0, 4, 1), tarnStatusBadSize},
      {"mma_L count 1, stride 2, width 0", tarnSub_mma_32f_L(m, 16, 4, mt, 0, 2, 4, dt, 0, 16, 4, 0, 4, 1), tarnStatusBadSize},
      // vav: sizes, strides, shifts, count last.
      {"vav count 0, len 0", tarnSub_vav_32f(m, 16, 4, m, 4, d, 16, 4, 0, 0), tarnStatusBadSize},
      {"vva count 0, len 0", tarnSub_vva_32f(m, 4, m, 16, 4, d, 16, 4, 0, 0), tarnStatusBadCount},
      {"vav count 0, stride 2", tarnSub_vav_32f(m, 16, 2, m, 4, d, 16, 4, 4, 0), tarnStatusBadStride},
      {"vav_L count 0, roi 2", tarnSub_vav_32f_L(mt, 2, 4, m, 4, dt, 0, 4, 4, 0), tarnStatusBadRoiShift},
      {"vav_P count 0, roi 2", tarnSub_vav_32f_P(mt, 2, 16, mt, 0, dt, 0, 16, 1, 0), tarnStatusBadCount},
      {"vva_L count 0, roi 2", tarnSub_vva_32f_L(m, 4, mt, 2, 4, dt, 0, 4, 4, 0), tarnStatusBadCount},
      // cav 64f P keeps the shift check; its 32f twin has none (see below).
      {"cav_64f_P roi -8", tarnSub_cav_64f_P(reinterpret_cast<double* const*>(mt), -8, reinterpret_cast<double*>(m), 8,
                                             reinterpret_cast<double* const*>(dt), 0, 8, 1, 1),
       tarnStatusBadRoiShift},
      {"cav_32f_P roi 2", tarnSub_cav_32f_P(mt, 2, m, 4, dt, 0, 4, 1, 1), tarnStatusOk},
      {"cav_32f_L val roi 2", tarnSub_cav_32f_L(m, 4, mt, 2, dt, 0, 4, 1, 1), tarnStatusBadRoiShift},
      {"vca_32f_P roi 2", tarnSub_vca_32f_P(mt, 2, m, 4, dt, 0, 4, 1, 1), tarnStatusBadRoiShift},
  };
  for (const Case& c : cases) EXPECT_EQ(c.got, c.want) << c.what;
}

// tarnSub_cav_32f_P takes a negative roiShift as it is and reads at the shifted addresses.
TEST(Sub, CavSinglePrecisionTableTakesAnyShift) {
  float src[4] = {0, 1, 2, 3};  // the table points one element behind each element
  const float* tbl[3] = {&src[1], &src[2], &src[3]};
  float vals[2] = {10, 20};
  float out[6] = {};
  float* dtbl[3] = {&out[0], &out[1], &out[2]};
  ASSERT_EQ(tarnSub_cav_32f_P(tbl, -4, vals, 4, dtbl, 0, 12, 3, 2), tarnStatusOk);
  const float want[6] = {10, 9, 8, 20, 19, 18};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(out[i], want[i]) << i;
}

}  // namespace
}  // namespace tt
