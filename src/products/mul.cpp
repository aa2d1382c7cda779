// Mul: matrix products.
#include "call.hpp"
#include "simd.hpp"

namespace tarn::mul {

// dst = src1 * src2 for 4x4 floats in rows of 16 bytes: each dst row is the sum, left to right,
// of src1[i][k] broadcast times row k of src2. All of src2 and every row of src1 are loaded
// before the first store, so dst may be either source.
template <bool Aligned>
void mm4x4(const float* a, const float* b, float* d) {
  const __m128 b0 = simd::load<4, Aligned>(b), b1 = simd::load<4, Aligned>(b + 4);
  const __m128 b2 = simd::load<4, Aligned>(b + 8), b3 = simd::load<4, Aligned>(b + 12);
  __m128 row[4];
  for (int i = 0; i < 4; ++i) row[i] = simd::load<4, Aligned>(a + 4 * i);
  __m128 out[4];
  for (int i = 0; i < 4; ++i) {
    const __m128 x = row[i];
    __m128 s = simd::mul(simd::splat<0>(x), b0);
    s = simd::add(s, simd::mul(simd::splat<1>(x), b1));
    s = simd::add(s, simd::mul(simd::splat<2>(x), b2));
    out[i] = simd::add(s, simd::mul(simd::splat<3>(x), b3));
  }
  for (int i = 0; i < 4; ++i) simd::store<4, Aligned>(d + 4 * i, out[i]);
}

tarnStatus mulMM4x4(const float* src1, const float* src2, float* dst) {
  if (!src1 || !src2 || !dst) return tarnStatusNullPointer;
  if (simd::aligned16(src1) && simd::aligned16(src2) && simd::aligned16(dst)) mm4x4<true>(src1, src2, dst);
  else mm4x4<false>(src1, src2, dst);
  return tarnStatusOk;
}

}  // namespace tarn::mul

#define TARN_IMPL_mul
#include "bindings.hpp"
