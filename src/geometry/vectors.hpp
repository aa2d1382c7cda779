// Fixed float vectors of N = 2, 3 or 4 consecutive elements: the exports themselves, inline so
// the builders call them at no cost. Element-wise work runs in the lanes of one register, each
// lane doing exactly the scalar operations of its element; a vector is loaded and stored as its
// own 8, 12 or 16 bytes. Every source is read before dst is written, except in the 3-vector
// cross product, which writes its elements in order from the sources as they then are.
#pragma once

#include "simd.hpp"
#include "tarn.h"

namespace tarn::vec {

using simd::loadVec;
using simd::storeVec;

template <int N>
tarnStatus add(const float* a, const float* b, float* d) {
  storeVec<N>(d, simd::add(loadVec<N>(a), loadVec<N>(b)));
  return tarnStatusOk;
}

template <int N>
tarnStatus sub(const float* a, const float* b, float* d) {
  storeVec<N>(d, simd::sub(loadVec<N>(a), loadVec<N>(b)));
  return tarnStatusOk;
}

template <int N>
tarnStatus mulC(const float* a, float c, float* d) {
  storeVec<N>(d, simd::mul(loadVec<N>(a), simd::broadcast(c)));
  return tarnStatusOk;
}

// a < b ? a : b and a > b ? a : b: src2's element on a NaN or on two zeros.
template <int N>
tarnStatus min(const float* a, const float* b, float* d) {
  storeVec<N>(d, simd::minLanes(loadVec<N>(a), loadVec<N>(b)));
  return tarnStatusOk;
}
template <int N>
tarnStatus max(const float* a, const float* b, float* d) {
  storeVec<N>(d, simd::maxLanes(loadVec<N>(a), loadVec<N>(b)));
  return tarnStatusOk;
}

// Sums from the first element on, left to right.
template <int N>
inline float dotOf(const float* a, const float* b) {
  float s = a[0] * b[0] + a[1] * b[1];
  for (int i = 2; i < N; ++i) s = s + a[i] * b[i];
  return s;
}

template <int N>
tarnStatus dot(const float* a, const float* b, float* d) {
  *d = dotOf<N>(a, b);
  return tarnStatusOk;
}

template <int N>
tarnStatus lenSqr(const float* a, float* d) {
  *d = dotOf<N>(a, a);
  return tarnStatusOk;
}

template <int N>
tarnStatus len(const float* a, float* d) {
  *d = simd::sqrtScalar(dotOf<N>(a, a));
  return tarnStatusOk;
}

// Each element divided by the length, one division per element (0/0 = NaN for a zero vector).
// The squares are summed in lane 0 from x on, except in the 4-vector, which sums from y on and
// adds x last.
template <int N>
tarnStatus normalize(const float* a, float* d) {
  using simd::add, simd::splat;
  const __m128 v = loadVec<N>(a), t = simd::mul(v, v);
  __m128 sq;
  if constexpr (N == 2) sq = add(t, splat<1>(t));
  else if constexpr (N == 3) sq = add(add(t, splat<1>(t)), simd::upperHalf(t));
  else sq = add(add(add(splat<1>(t), simd::upperHalf(t)), splat<3>(t)), t);
  storeVec<N>(d, simd::div(v, splat<0>(simd::sqrtFirst(sq))));
  return tarnStatusOk;
}

// x1*y2 - y1*x2.
inline tarnStatus cross2(const float* a, const float* b, float* d) {
  *d = a[0] * b[1] - a[1] * b[0];
  return tarnStatusOk;
}

// Elements in order, each from the sources as they are when it is formed: with dst over a
// source, later elements read what earlier ones wrote.
inline tarnStatus cross3(const float* a, const float* b, float* d) {
  d[0] = a[1] * b[2] - a[2] * b[1];
  d[1] = a[2] * b[0] - a[0] * b[2];
  d[2] = a[0] * b[1] - a[1] * b[0];
  return tarnStatusOk;
}

// The vector orthogonal to a, b and c, from the six 2x2 minors of b and c. All of it is formed
// before the first store, so dst may be any source. 0 - x is a subtraction from +0.0.
inline tarnStatus cross4(const float* a, const float* b, const float* c, float* d) {
  const float t1 = b[2] * c[3] - b[3] * c[2], t2 = c[3] * b[1] - b[3] * c[1], t3 = c[2] * b[1] - b[2] * c[1];
  const float t4 = c[3] * b[0] - b[3] * c[0], t5 = c[2] * b[0] - b[2] * c[0], t6 = c[1] * b[0] - b[1] * c[0];
  const float d0 = (t1 * a[1] - t2 * a[2]) + t3 * a[3];
  const float d1 = 0.0f - ((t1 * a[0] - t4 * a[2]) + t5 * a[3]);
  const float d2 = (t2 * a[0] - t4 * a[1]) + t6 * a[3];
  const float d3 = 0.0f - ((t3 * a[0] - t5 * a[1]) + t6 * a[2]);
  d[0] = d0;
  d[1] = d1;
  d[2] = d2;
  d[3] = d3;
  return tarnStatusOk;
}

// a + (b - a)*s.
template <int N>
tarnStatus lerp(const float* a, const float* b, float s, float* d) {
  const __m128 va = loadVec<N>(a);
  storeVec<N>(d, simd::add(va, simd::mul(simd::sub(loadVec<N>(b), va), simd::broadcast(s))));
  return tarnStatusOk;
}

// ((b - a)*f + a) + (c - a)*g.
template <int N>
tarnStatus baryCentric(const float* a, const float* b, const float* c, float f, float g, float* d) {
  const __m128 va = loadVec<N>(a);
  const __m128 t = simd::add(simd::mul(simd::sub(loadVec<N>(b), va), simd::broadcast(f)), va);
  storeVec<N>(d, simd::add(t, simd::mul(simd::sub(loadVec<N>(c), va), simd::broadcast(g))));
  return tarnStatusOk;
}

// Points p1, p2 with tangents t1, t2. The powers of s are rounded to float, the basis values are
// formed from them in double and rounded to float, the curve in float:
// (p1 - p2)*h2 + ((p1 + t1*h1) + t2*h3).
template <int N>
tarnStatus hermite(const float* p1, const float* t1, const float* p2, const float* t2, float s, float* d) {
  const float s2 = s * s, s3 = s2 * s;
  const double ds = s, ds2 = s2, ds3 = s3;
  const float h1 = float(((ds - ds2) - ds2) + ds3), h2 = float((ds3 - 3.0 * ds2) + ds3), h3 = float(ds3 - ds2);
  const __m128 vp1 = loadVec<N>(p1);
  const __m128 lead = simd::mul(simd::sub(vp1, loadVec<N>(p2)), simd::broadcast(h2));
  const __m128 tail = simd::add(simd::add(vp1, simd::mul(loadVec<N>(t1), simd::broadcast(h1))),
                                simd::mul(loadVec<N>(t2), simd::broadcast(h3)));
  storeVec<N>(d, simd::add(lead, tail));
  return tarnStatusOk;
}

// Hermite through p1 and p2 with the half differences of their neighbours as tangents.
template <int N>
tarnStatus catmullRom(const float* p0, const float* p1, const float* p2, const float* p3, float s, float* d) {
  alignas(16) float t1[4], t2[4];
  const __m128 half = simd::broadcast(0.5f);
  simd::store<4, true>(t1, simd::mul(simd::sub(loadVec<N>(p2), loadVec<N>(p0)), half));
  simd::store<4, true>(t2, simd::mul(simd::sub(loadVec<N>(p3), loadVec<N>(p1)), half));
  return hermite<N>(p1, t1, p2, t2, s, d);
}

}  // namespace tarn::vec
