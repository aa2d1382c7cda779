// AffineTransform3DH: 3D points as columns through one strided 4x4 matrix, divided by the
// fourth coordinate w'. A point with |w'| not strictly above the smallest normal float gets the
// largest float in all three elements, the call's status becomes DivideByZero and the walk goes
// on. The two paths sum in different orders, both kept: the contiguous one
// (x*m[r][0] + y*m[r][1]) + (z*m[r][2] + m[r][3]) on four points at a time, one point to a lane,
// the strided one ((x*m[r][0] + m[r][3]) + y*m[r][1]) + z*m[r][2]; both then multiply by
// inv = 1/w'.
#include <cfloat>
#include <cmath>
#include <cstdint>

#include "call.hpp"
#include "dispatch.hpp"
#include "operand.hpp"
#include "simd.hpp"

namespace tarn::transform3dh {
namespace {

constexpr float kSmallest = FLT_MIN, kFailed = FLT_MAX;

// The matrix read once through its strides, as values and as broadcast registers.
struct Matrix {
  float m[4][4];
  __m128 e[4][4];
  explicit Matrix(const Blk& b) {
    for (int r = 0; r < 4; ++r)
      for (int c = 0; c < 4; ++c) {
        m[r][c] = loadElem(byteAdd(static_cast<const float*>(b.ptr), off32(r, b.row) + off32(c, b.elem)));
        e[r][c] = simd::broadcast(m[r][c]);
      }
  }
};

// K <= 4 points of consecutive elements, `srcStride` and `dstStride` bytes apart; true when
// none failed.
template <int K>
bool fourPoints(const Matrix& mx, const float* src, int32_t srcStride, float* dst, int32_t dstStride) {
  using simd::add, simd::mul;
  __m128 x, y, z;
  simd::gather3<K>(src, srcStride, x, y, z);
  auto row = [&](int r) {
    return add(add(mul(x, mx.e[r][0]), mul(y, mx.e[r][1])), add(mul(z, mx.e[r][2]), mx.e[r][3]));
  };
  const __m128 w = row(3);
  const __m128 ok = simd::absAbove(w, simd::broadcast(kSmallest));
  const __m128 inv = simd::div(simd::broadcast(1.0f), w), big = simd::broadcast(kFailed);
  simd::scatter3<K>(dst, dstStride, simd::select(ok, mul(row(0), inv), big), simd::select(ok, mul(row(1), inv), big),
                    simd::select(ok, mul(row(2), inv), big));
  return simd::signs(ok) == 0xF;  // lanes past K repeat point 0
}

tarnStatus contiguous(const Matrix& mx, const float* src, int32_t srcStride, float* dst, int32_t dstStride,
                      int32_t count) {
  bool ok = true;
  int32_t n = 0;
  for (; n + 4 <= count; n += 4) {
    ok &= fourPoints<4>(mx, byteAdd(src, off32(n, srcStride)), srcStride, byteAdd(dst, off32(n, dstStride)), dstStride);
  }
  const float* s = byteAdd(src, off32(n, srcStride));
  float* d = byteAdd(dst, off32(n, dstStride));
  switch (count - n) {
    case 3:
      ok &= fourPoints<3>(mx, s, srcStride, d, dstStride);
      break;
    case 2:
      ok &= fourPoints<2>(mx, s, srcStride, d, dstStride);
      break;
    case 1:
      ok &= fourPoints<1>(mx, s, srcStride, d, dstStride);
      break;
  }
  return ok ? tarnStatusOk : tarnStatusDivideByZero;
}

tarnStatus strided(const Matrix& mx, const Blk& src, const Blk& dst, int32_t count) {
  const auto& m = mx.m;
  bool ok = true;
  for (int32_t n = 0; n < count; ++n) {
    const float* p = byteAdd(static_cast<const float*>(src.ptr), off32(n, src.obj));
    float* q = byteAdd(static_cast<float*>(const_cast<void*>(dst.ptr)), off32(n, dst.obj));
    const float x = loadElem(p), y = loadElem(byteAdd(p, src.elem)), z = loadElem(byteAdd(p, off32(2, src.elem)));
    float t[4];
    for (int r = 0; r < 4; ++r) t[r] = ((x * m[r][0] + m[r][3]) + y * m[r][1]) + z * m[r][2];
    float out[3] = {kFailed, kFailed, kFailed};
    if (std::fabs(t[3]) > kSmallest) {
      const float inv = 1.0f / t[3];
      for (int i = 0; i < 3; ++i) out[i] = t[i] * inv;
    } else {
      ok = false;
    }
    storeElem(q, out[0]);
    storeElem(byteAdd(q, dst.elem), out[1]);
    storeElem(byteAdd(q, off32(2, dst.elem)), out[2]);
  }
  return ok ? tarnStatusOk : tarnStatusDivideByZero;
}

}  // namespace

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  const Matrix mx(c.op[0]);
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) -> tarnStatus {
    const Blk &src = s.op[1], &dst = s.op[2];
    if constexpr (Contig)
      return contiguous(mx, static_cast<const float*>(src.ptr), src.obj,
                        static_cast<float*>(const_cast<void*>(dst.ptr)), dst.obj, s.count);
    else
      return strided(mx, src, dst, s.count);
  });
}

}  // namespace tarn::transform3dh

#define TARN_IMPL_transform3dh
#include "bindings.hpp"
