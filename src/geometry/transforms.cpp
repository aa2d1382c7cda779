// Points and normals through a 4x4 float matrix (16 floats in row order, row vectors from the
// left): one at a time or over arrays with byte strides of any sign, projection to a viewport
// and back. The single-point forms run the four result lanes of one register, each lane the
// scalar sum of its element in the stated order. The array forms of the coordinate transform,
// Project and Unproject hold four points at a time as one register each of x, y and z, so that
// one division serves four points; each lane still forms its element's own sum in its own order.
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "geometry.hpp"
#include "simd.hpp"

namespace tarn::xform {
namespace {

using simd::broadcast;
using simd::splat;

template <class T>
T* step(T* p, std::ptrdiff_t bytes) {
  using B = std::conditional_t<std::is_const_v<T>, const char, char>;
  return reinterpret_cast<T*>(reinterpret_cast<B*>(p) + bytes);
}

struct Rows {
  __m128 r0, r1, r2, r3;
  explicit Rows(const float* m)
      : r0(simd::load<4, false>(m)),
        r1(simd::load<4, false>(m + 4)),
        r2(simd::load<4, false>(m + 8)),
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
  if constexpr (N == 2)
    return xy;
  else
    return simd::add(xy, simd::mul(m.r2, splat<2>(v)));
}

// Lanes divided by lane 3.
__m128 perspectiveDivide(__m128 t) { return simd::div(t, splat<3>(t)); }

// The array form of the 2-vector coordinate transform: lane 0 and w' start from y, lane 1 from
// x. a1 and a2 hold the matrix elements in the lanes of their products.
struct Coord2Arr {
  __m128 a1, a2, r3;
  explicit Coord2Arr(const float* m)
      : a1(simd::constant(m[4], m[1], 0.0f, m[7])),
        a2(simd::constant(m[0], m[5], 0.0f, m[3])),
        r3(simd::load<4, false>(m + 12)) {}
  __m128 operator()(__m128 v) const {  // v = (x, y, ...)
    const __m128 p1 = simd::pick<1, 0, 1, 1>(v, v), p2 = simd::pick<0, 1, 0, 0>(v, v);
    return perspectiveDivide(simd::add(simd::add(simd::mul(a1, p1), r3), simd::mul(a2, p2)));
  }
};

// Four points a lane: x, y and z of up to four points in three registers, and a matrix as
// sixteen broadcast elements.
struct P3 {
  __m128 x, y, z;
};
struct Broadcast {
  __m128 e[16];
  explicit Broadcast(const float* m) {
    for (int i = 0; i < 16; ++i) e[i] = broadcast(m[i]);
  }
  const __m128& operator()(int r, int c) const { return e[4 * r + c]; }
};

// Runs f on the points four at a time (the last group with K < 4 of them), reading and writing
// each point's own 12 bytes.
template <class F>
void inFours(const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count, F&& f) {
  auto group = [&]<int K>() {
    P3 p;
    simd::gather3<K>(src, srcStride, p.x, p.y, p.z);
    const P3 q = f(p);
    simd::scatter3<K>(dst, dstStride, q.x, q.y, q.z);
  };
  int32_t n = 0;
  for (; n + 4 <= count;
       n += 4, src = step(src, 4 * std::ptrdiff_t(srcStride)), dst = step(dst, 4 * std::ptrdiff_t(dstStride)))
    group.template operator()<4>();
  switch (count - n) {
    case 3:
      group.template operator()<3>();
      break;
    case 2:
      group.template operator()<2>();
      break;
    case 1:
      group.template operator()<1>();
      break;
  }
}

// The array form of the 3-vector coordinate transform: x' starts from y and ends with x, y' and
// z' start from x, w' starts from y and ends with x.
P3 coordArr(const Broadcast& m, const P3& p) {
  using simd::add, simd::mul;
  const __m128 xs = add(add(add(mul(m(1, 0), p.y), m(3, 0)), mul(m(2, 0), p.z)), mul(m(0, 0), p.x));
  const __m128 ys = add(add(add(mul(m(0, 1), p.x), m(3, 1)), mul(m(1, 1), p.y)), mul(m(2, 1), p.z));
  const __m128 zs = add(add(add(mul(m(0, 2), p.x), m(3, 2)), mul(m(1, 2), p.y)), mul(m(2, 2), p.z));
  const __m128 ws = add(add(add(mul(m(1, 3), p.y), m(3, 3)), mul(m(2, 3), p.z)), mul(m(0, 3), p.x));
  return {simd::div(xs, ws), simd::div(ys, ws), simd::div(zs, ws)};
}

// The single form's sums, (m[3][i] + m[2][i]*z) + (m[0][i]*x + m[1][i]*y), on four points.
P3 coordOne(const Broadcast& m, const P3& p) {
  using simd::add, simd::mul;
  auto t = [&](int i) { return add(add(m(3, i), mul(m(2, i), p.z)), add(mul(m(0, i), p.x), mul(m(1, i), p.y))); };
  const __m128 w = t(3);
  return {simd::div(t(0), w), simd::div(t(1), w), simd::div(t(2), w)};
}

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
tarnStatus affineArr(const float* m, const float* src, int32_t srcStride, float* dst, int32_t dstStride,
                     int32_t count) {
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
tarnStatus normalArr(const float* m, const float* src, int32_t srcStride, float* dst, int32_t dstStride,
                     int32_t count) {
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

tarnStatus coordV2Arr(const float* m, const float* src, int32_t srcStride, float* dst, int32_t dstStride,
                      int32_t count) {
  if (count < 1) return tarnStatusOk;
  const Coord2Arr f(m);
  each(src, srcStride, dst, dstStride, count,
       [&](const float* s, float* d) { simd::storeVec<2>(d, f(simd::loadVec<2>(s))); });
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

tarnStatus coordV3Arr(const float* m, const float* src, int32_t srcStride, float* dst, int32_t dstStride,
                      int32_t count) {
  if (count < 1) return tarnStatusOk;
  const Broadcast b(m);
  inFours(src, srcStride, dst, dstStride, count, [&](const P3& p) { return coordArr(b, p); });
  return tarnStatusOk;
}

// World, view and projection in turn, each the single-point coordinate transform, then to the
// viewport (no offset for its position). The array forms take four points a lane through the
// same sums.
namespace {
struct Viewport {
  float w, h, minZ, maxZ;
};

// Viewport coordinates to the cube the projection maps to, for one point or four a lane.
void normalise(const float* s, Viewport vp, float* out) {
  out[0] = (2.0f * s[0]) / vp.w - 1.0f;
  out[1] = 1.0f + (-2.0f * s[1]) / vp.h;
  out[2] = (s[2] - vp.minZ) / (vp.maxZ - vp.minZ);
}
P3 normalise(const P3& s, Viewport vp) {
  using simd::add, simd::sub, simd::mul, simd::div;
  return {sub(div(mul(broadcast(2.0f), s.x), broadcast(vp.w)), broadcast(1.0f)),
          add(broadcast(1.0f), div(mul(broadcast(-2.0f), s.y), broadcast(vp.h))),
          div(sub(s.z, broadcast(vp.minZ)), broadcast(vp.maxZ - vp.minZ))};
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
  float t[3];
  coordV3(world, src, t);
  coordV3(view, t, t);
  coordV3(proj, t, t);
  dst[0] = ((t[0] + 1.0f) * vw) * 0.5f;
  dst[1] = ((1.0f - t[1]) * vh) * 0.5f;
  dst[2] = (1.0f - t[2]) * minZ + maxZ * t[2];
  return tarnStatusOk;
}

tarnStatus projectArr(const float* proj, const float* view, const float* world, const float* src, int32_t srcStride,
                      float vw, float vh, float minZ, float maxZ, float* dst, int32_t dstStride, int32_t count) {
  if (count < 1) return tarnStatusOk;
  const Broadcast w(world), v(view), p(proj);
  using simd::add, simd::sub, simd::mul;
  const __m128 one = broadcast(1.0f), half = broadcast(0.5f);
  inFours(src, srcStride, dst, dstStride, count, [&](const P3& s) {
    const P3 t = coordOne(p, coordOne(v, coordOne(w, s)));
    return P3{mul(mul(add(t.x, one), broadcast(vw)), half), mul(mul(sub(one, t.y), broadcast(vh)), half),
              add(mul(sub(one, t.z), broadcast(minZ)), mul(broadcast(maxZ), t.z))};
  });
  return tarnStatusOk;
}

// dst holds the normalised point before the matrix is inverted, and keeps it when the product
// is singular.
tarnStatus unproject(const float* proj, const float* view, const float* world, const float* src, float vw, float vh,
                     float minZ, float maxZ, float* dst) {
  normalise(src, {vw, vh, minZ, maxZ}, dst);
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
  const Broadcast m(inv);
  const Viewport vp{vw, vh, minZ, maxZ};
  inFours(src, srcStride, dst, dstStride, count, [&](const P3& s) { return coordOne(m, normalise(s, vp)); });
  return tarnStatusOk;
}

}  // namespace tarn::xform

#define TARN_IMPL_xform
#include "bindings.hpp"
