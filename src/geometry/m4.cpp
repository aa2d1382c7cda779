// Fixed 4x4 float matrices, 16 floats in row order: identity, the exact identity test,
// transpose, determinant, inverse and the transposed product.
#include <cmath>
#include <cstdint>
#include <cstring>

#include "geometry.hpp"
#include "simd.hpp"

namespace tarn::m4 {

tarnStatus identity(float* dst) {
  for (int i = 0; i < 16; ++i) dst[i] = i % 5 == 0 ? 1.0f : 0.0f;
  return tarnStatusOk;
}

// Exact comparisons in index order up to the first element that differs: -0.0 is a zero, a
// NaN is never equal.
tarnStatus isIdentity(const float* src, int32_t* result) {
  int32_t same = 1;
  for (int i = 0; i < 16 && same; ++i) same = src[i] == (i % 5 == 0 ? 1.0f : 0.0f);
  *result = same;
  return tarnStatusOk;
}

// Sixteen moves, dst in index order; dst must not overlap src.
tarnStatus transpose(const float* src, float* dst) {
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) dst[4 * i + j] = src[4 * j + i];
  return tarnStatusOk;
}

// Expansion along the first row with the six 2x2 minors of the last two rows, every sum left
// to right.
tarnStatus det(const float* src, float* dst) {
  auto m = [src](int r, int c) { return src[4 * r + c]; };
  const float a = m(2, 2) * m(3, 3) - m(2, 3) * m(3, 2);
  const float b = m(3, 3) * m(2, 1) - m(2, 3) * m(3, 1);
  const float c = m(3, 2) * m(2, 1) - m(2, 2) * m(3, 1);
  const float d = m(3, 2) * m(2, 0) - m(2, 2) * m(3, 0);
  const float e = m(3, 3) * m(2, 0) - m(2, 3) * m(3, 0);
  const float f = m(3, 1) * m(2, 0) - m(2, 1) * m(3, 0);
  const float c0 = (m(1, 1) * a - m(1, 2) * b) + m(1, 3) * c;
  const float c1 = (a * m(1, 0) - m(1, 2) * e) + m(1, 3) * d;
  const float c2 = (b * m(1, 0) - e * m(1, 1)) + m(1, 3) * f;
  const float c3 = (c * m(1, 0) - m(1, 1) * d) + m(1, 2) * f;
  *dst = ((c0 * m(0, 0) - c1 * m(0, 1)) + c2 * m(0, 2)) - c3 * m(0, 3);
  return tarnStatusOk;
}

// Gauss-Jordan on a copy A of src beside B = I, the pivot searched along row k among the
// columns not yet used, which p[] records instead of swapping columns. Rows of A and B live in
// registers; a row operation on A runs over all four lanes, which changes only columns that no
// later step reads. The search is branch-free (the first of equal magnitudes stays, a NaN never
// replaces), so random matrices cost no mispredicted jumps. The limit on the pivot is absolute:
// twelve float epsilons.
tarnStatus invert(const float* src, float* det, float* dst) {
  constexpr float kLimit = 1.4305115e-6f;  // 0x35C00000
  __m128 a[4], b[4];
  for (int i = 0; i < 4; ++i) {
    a[i] = simd::load<4, false>(src + 4 * i);
    b[i] = simd::constant(i == 0, i == 1, i == 2, i == 3);
  }
  int p[4] = {0, 1, 2, 3};
  float d = 1.0f;
  bool singular = false;
  simd::unroll<4>([&]<int K>() {
    if (singular) return;
    alignas(16) float row[4];
    simd::store<4, true>(row, a[K]);
    int best = K, col = p[K];
    float mag = std::fabs(row[col]);
    simd::unroll<3 - K>([&]<int J0>() {
      const int c = p[K + 1 + J0];
      const float v = std::fabs(row[c]);
      const bool larger = v > mag;
      mag = larger ? v : mag;
      best = larger ? K + 1 + J0 : best;
      col = larger ? c : col;
    });
    const float pivot = row[col];
    if (std::fabs(pivot) < kLimit) {
      singular = true;
      return;
    }
    simd::unroll<3 - K>([&]<int J0>() { p[K + 1 + J0] = best == K + 1 + J0 ? p[K] : p[K + 1 + J0]; });
    p[K] = col;
    const __m128 pv = simd::broadcast(pivot);
    a[K] = simd::div(a[K], pv);
    b[K] = simd::div(b[K], pv);
    d = d * pivot;
    simd::unroll<4>([&]<int I>() {
      if constexpr (I != K) {
        alignas(16) float r[4];
        simd::store<4, true>(r, a[I]);
        const __m128 f = simd::broadcast(r[col]);
        a[I] = simd::sub(a[I], simd::mul(a[K], f));
        b[I] = simd::sub(b[I], simd::mul(f, b[K]));
      }
    });
  });
  if (singular) {
    if (det) *det = 0.0f;
    return tarnStatusSingular;
  }
  for (int i = 0; i < 4; ++i) simd::store<4, false>(dst + 4 * p[i], b[i]);
  if (det) {
    int swaps = 0;  // parity of p by its inversions
    for (int i = 0; i < 4; ++i)
      for (int j = i + 1; j < 4; ++j) swaps += p[i] > p[j];
    *det = swaps % 2 ? 0.0f - d : d;
  }
  return tarnStatusOk;
}

// dst[j][i] = row i of src1 times column j of src2, the four products summed left to right,
// computed and stored row i by row i: dst must not overlap a source.
tarnStatus mulTranspose(const float* src1, const float* src2, float* dst) {
  __m128 b[4];
  for (int k = 0; k < 4; ++k) b[k] = simd::load<4, false>(src2 + 4 * k);
  for (int i = 0; i < 4; ++i) {
    const float* a = src1 + 4 * i;
    __m128 s = simd::mul(simd::broadcast(a[0]), b[0]);
    s = simd::add(s, simd::mul(simd::broadcast(a[1]), b[1]));
    s = simd::add(s, simd::mul(simd::broadcast(a[2]), b[2]));
    s = simd::add(s, simd::mul(simd::broadcast(a[3]), b[3]));
    alignas(16) float row[4];
    simd::store<4, true>(row, s);
    for (int j = 0; j < 4; ++j) dst[4 * j + i] = row[j];
  }
  return tarnStatusOk;
}

}  // namespace tarn::m4

#define TARN_IMPL_m4
#include "bindings.hpp"
