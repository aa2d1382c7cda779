// White box: the Cholesky bodies that run four float objects in the lanes of one register take
// each lane's reciprocal square root estimate from rsqrtss, as one object alone does, so a lane
// keeps its object's bits on any processor. Floats of both exponent parities, the smallest and
// largest exponents and denormals, with every pattern of the top 16 mantissa bits, in every lane.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "../../src/frame/simd.hpp"

namespace {

TEST(SolveLanes, RsqrtLaneByLaneIsTheScalarEstimate) {
  for (uint32_t e : {126u, 127u, 1u, 0u, 254u})
    for (uint32_t m = 0; m < (1u << 16); m += 4) {
      alignas(16) float in[4], out[4];
      for (uint32_t l = 0; l < 4; ++l) {
        const uint32_t bits = (e << 23) | ((m + l) << 7) | (l * 37);
        std::memcpy(&in[l], &bits, 4);
      }
      _mm_store_ps(out, tarn::simd::rsqrtEachLane(_mm_load_ps(in)));
      for (int l = 0; l < 4; ++l) {
        const float want = tarn::simd::rsqrtScalar(in[l]);
        ASSERT_EQ(std::memcmp(&out[l], &want, 4), 0) << in[l];
      }
    }
}

}  // namespace
