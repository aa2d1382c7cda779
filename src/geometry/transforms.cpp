// Points and normals through a 4x4 float matrix (16 floats in row order, row vectors from the
// left): one at a time or over arrays with byte strides of any sign, projection to a viewport
// and back. The single-point forms run the four result lanes of one register, each lane the
// scalar sum of its element in the stated order. The array form of the coordinate transform
// holds four points at a time as one register each of x, y and z, so that one division serves
// four points; each lane still forms its element's own sum in its own order.
#include <cstdint>
#include <type_traits>

#include "geometry.hpp"
#include "simd.hpp"

namespace tarn::xform {
namespace {

using simd::broadcast;
using simd::splat;

template <class T>
T* step(T* p, int32_t bytes) {
  using B = std::conditional_t<std::is_const_v<T>, const char, char>;
  return reinterpret_cast<T*>(reinterpret_cast<B*>(p) + bytes);
}

struct Rows {
  __m128 r0, r1, r2, r3;
  explicit Rows(const float* m)
      : r0(simd::load<4, false>(m)), r1(simd::load<4, false>(m + 4)), r2(simd::load<4, false>(m + 8)),
        r3(simd::load<4, false>(m + 12)) {}
};

// The point with an implied z of 0 (for 2-vectors) and w of 1.
template <int N>
__m128 affine(const Rows& m, __m128 v) {
  const __m128 x = splat<0>(v), y = splat<1>(v);
  if constexpr (N == 2) return simd::add(simd::add(simd::mul(x, m.r0), m.r3), simd::mul(y, m.r1));
  const __m128 z = splat<2>(v);
  if constexpr (N == 3)
    return simd::add(simd::add(simd::add(simd::mul(x, m.r0), m.r3), simd::mul(y, m.r1)), simd::mul(z, m.r2));
  const __m128 xyz = simd::add(simd::add(simd::mul(x, m.r0), simd::mul(y, m.r1)), simd::mul(z, m.r2));
  return simd::add(xyz, simd::mul(splat<3>(v), m.r3));
}

template <int N>
__m128 normal(const Rows& m, __m128 v) {
  const __m128 xy = simd::add(simd::mul(m.r0, splat<0>(v)), simd::mul(m.r1, splat<1>(v)));
  if constexpr (N == 2) return xy;
  else return simd::add(xy, simd::mul(m.r2, splat<2>(v)));
}

// Lanes divided by lane 3.
__m128 perspectiveDivide(__m128 t) { return simd::div(t, splat<3>(t)); }

// The array form of the 2-vector coordinate transform: lane 0 and w' start from y, lane 1 from
// x. a1 and a2 hold the matrix elements in the lanes of their products.
struct Coord2Arr {
  __m128 a1, a2, r3;
  explicit Coord2Arr(const float* m)
      : a1(simd::constant(m[4], m[1], 0.0f, m[7])), a2(simd::constant(m[0], m[5], 0.0f, m[3])),
        r3(simd::load<4, false>(m + 12)) {}
  __m128 operator()(__m128 v) const {  // v = (x, y, ...)
    const __m128 p1 = simd::pick<1, 0, 1, 1>(v, v), p2 = simd::pick<0, 1, 0, 0>(v, v);
    return perspectiveDivide(simd::add(simd::add(simd::mul(a1, p1), r3), simd::mul(a2, p2)));
  }
};

// The array form of the 3-vector coordinate transform on four points a lane: x' starts from y
// and ends with x, y' and z' start from x, w' starts from y and ends with x.
struct Coord3Arr {
  __m128 e[16];
  explicit Coord3Arr(const float* m) {
    for (int i = 0; i < 16; ++i) e[i] = broadcast(m[i]);
  }
  const __m128& at(int r, int c) const { return e[4 * r + c]; }
  template <int K>
  void operator()(const float* src, int32_t srcStride, float* dst, int32_t dstStride) const {
    __m128 x, y, z;
    simd::gather3<K>(src, srcStride, x, y, z);
    using simd::add, simd::mul;
    const __m128 xs = add(add(add(mul(at(1, 0), y), at(3, 0)), mul(at(2, 0), z)), mul(at(0, 0), x));
    const __m128 ys = add(add(add(mul(at(0, 1), x), at(3, 1)), mul(at(1, 1), y)), mul(at(2, 1), z));
    const __m128 zs = add(add(add(mul(at(0, 2), x), at(3, 2)), mul(at(1, 2), y)), mul(at(2, 2), z));
    const __m128 ws = add(add(add(mul(at(1, 3), y), at(3, 3)), mul(at(2, 3), z)), mul(at(0, 3), x));
    simd::scatter3<K>(dst, dstStride, simd::div(xs, ws), simd::div(ys, ws), simd::div(zs, ws));
  }
};

// Runs f(src, dst) over count points.
template <class F>
void each(const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count, F&& f) {
  for (int32_t n = 0; n < count; ++n, src = step(src, srcStride), dst = step(dst, dstStride)) f(src, dst);
}

}  // namespace

template <int N>
tarnStatus affineOne(const float* m, const float* src, float* dst) {
  simd::storeVec<4>(dst, affine<N>(Rows(m), simd::loadVec<N>(src)));
  return tarnStatusOk;
}

template <int N>
tarnStatus affineArr(const float* m, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count) {
  if (count < 1) return tarnStatusOk;
  const Rows r(m);
  each(src, srcStride, dst, dstStride, count,
       [&](const float* s, float* d) { simd::storeVec<4>(d, affine<N>(r, simd::loadVec<N>(s))); });
  return tarnStatusOk;
}

template <int N>
tarnStatus normalOne(const float* m, const float* src, float* dst) {
  simd::storeVec<N>(dst, normal<N>(Rows(m), simd::loadVec<N>(src)));
  return tarnStatusOk;
}

template <int N>
tarnStatus normalArr(const float* m, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count) {
  if (count < 1) return tarnStatusOk;
  const Rows r(m);
  each(src, srcStride, dst, dstStride, count,
       [&](const float* s, float* d) { simd::storeVec<N>(d, normal<N>(r, simd::loadVec<N>(s))); });
  return tarnStatusOk;
}

// ((x*m[0][i] + m[3][i]) + y*m[1][i]) / w' for both elements and w'.
tarnStatus coordV2(const float* m, const float* src, float* dst) {
  simd::storeVec<2>(dst, perspectiveDivide(affine<2>(Rows(m), simd::loadVec<2>(src))));
  return tarnStatusOk;
}

tarnStatus coordV2Arr(const float* m, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count) {
  if (count < 1) return tarnStatusOk;
  const Coord2Arr f(m);
  each(src, srcStride, dst, dstStride, count, [&](const float* s, float* d) { simd::storeVec<2>(d, f(simd::loadVec<2>(s))); });
  return tarnStatusOk;
}

// The rows as vectors: (R3 + R2*z) + (R0*x + R1*y), lanes 0 to 2 over lane 3.
tarnStatus coordV3(const float* m, const float* src, float* dst) {
  const Rows r(m);
  const __m128 v = simd::loadVec<3>(src);
  const __m128 t = simd::add(simd::add(r.r3, simd::mul(r.r2, splat<2>(v))),
                             simd::add(simd::mul(r.r0, splat<0>(v)), simd::mul(r.r1, splat<1>(v))));
  simd::storeVec<3>(dst, perspectiveDivide(t));
  return tarnStatusOk;
}

tarnStatus coordV3Arr(const float* m, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count) {
  if (count < 1) return tarnStatusOk;
  const Coord3Arr f(m);
  int32_t n = 0;
  for (; n + 4 <= count; n += 4, src = step(src, 4 * srcStride), dst = step(dst, 4 * dstStride))
    f.operator()<4>(src, srcStride, dst, dstStride);
  switch (count - n) {
    case 3: f.operator()<3>(src, srcStride, dst, dstStride); break;
    case 2: f.operator()<2>(src, srcStride, dst, dstStride); break;
    case 1: f.operator()<1>(src, srcStride, dst, dstStride); break;
  }
  return tarnStatusOk;
}

// World, view and projection in turn, each a coordinate transform, then to the viewport (no
// offset for its position).
namespace {
void projectPoint(const float* proj, const float* view, const float* world, const float* src, float vw, float vh,
                  float minZ, float maxZ, float* dst) {
  float t[3];
  coordV3(world, src, t);
  coordV3(view, t, t);
  coordV3(proj, t, t);
  dst[0] = ((t[0] + 1.0f) * vw) * 0.5f;
  dst[1] = ((1.0f - t[1]) * vh) * 0.5f;
  dst[2] = (1.0f - t[2]) * minZ + maxZ * t[2];
}

// Viewport coordinates to the cube the projection maps to.
void normalisedPoint(const float* src, float vw, float vh, float minZ, float maxZ, float* dst) {
  dst[0] = (2.0f * src[0]) / vw - 1.0f;
  dst[1] = 1.0f + (-2.0f * src[1]) / vh;
  dst[2] = (src[2] - minZ) / (maxZ - minZ);
}

// The inverse of (world * view) * projection; the determinant is not asked for.
tarnStatus unprojection(const float* proj, const float* view, const float* world, float* inv) {
  float wv[16], m[16];
  mul::mulMM4x4(world, view, wv);
  mul::mulMM4x4(wv, proj, m);
  return m4::invert(m, nullptr, inv);
}
}  // namespace

tarnStatus project(const float* proj, const float* view, const float* world, const float* src, float vw, float vh,
                   float minZ, float maxZ, float* dst) {
  projectPoint(proj, view, world, src, vw, vh, minZ, maxZ, dst);
  return tarnStatusOk;
}

tarnStatus projectArr(const float* proj, const float* view, const float* world, const float* src, int32_t srcStride,
                      float vw, float vh, float minZ, float maxZ, float* dst, int32_t dstStride, int32_t count) {
  if (count < 1) return tarnStatusOk;
  each(src, srcStride, dst, dstStride, count,
       [&](const float* s, float* d) { projectPoint(proj, view, world, s, vw, vh, minZ, maxZ, d); });
  return tarnStatusOk;
}

// dst holds the normalised point before the matrix is inverted, and keeps it when the product
// is singular.
tarnStatus unproject(const float* proj, const float* view, const float* world, const float* src, float vw, float vh,
                     float minZ, float maxZ, float* dst) {
  normalisedPoint(src, vw, vh, minZ, maxZ, dst);
  float inv[16];
  if (const tarnStatus s = unprojection(proj, view, world, inv)) return s;
  return coordV3(inv, dst, dst);
}

// One inverse for the whole array, formed before anything is written.
tarnStatus unprojectArr(const float* proj, const float* view, const float* world, const float* src, int32_t srcStride,
                        float vw, float vh, float minZ, float maxZ, float* dst, int32_t dstStride, int32_t count) {
  if (count < 1) return tarnStatusOk;
  float inv[16];
  if (const tarnStatus s = unprojection(proj, view, world, inv)) return s;
  each(src, srcStride, dst, dstStride, count, [&](const float* s, float* d) {
    float n[3];
    normalisedPoint(s, vw, vh, minZ, maxZ, n);
    coordV3(inv, n, d);
  });
  return tarnStatusOk;
}

}  // namespace tarn::xform

#define TARN_IMPL_xform
#include "bindings.hpp"
