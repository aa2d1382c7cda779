// CrossProduct: dst = src1 x src2 of 3-element vectors,
//   (y1*z2 - z1*y2, z1*x2 - x1*z2, x1*y2 - y1*x2),
// each product rounded, then the difference. Every object is read whole before any of its
// elements is written, and objects are done in ascending order, so dst may be a source. The
// single vector of vav and vva is read once, before the object loop.
#include "reduce.hpp"

namespace tarn::cross_product {
namespace {

template <class T>
struct Vec3 {
  T x, y, z;
};

template <class T, class V>
Vec3<T> read(const V& v) {
  return {loadElem(v.at(0, 0)), loadElem(v.at(0, 1)), loadElem(v.at(0, 2))};
}

template <class T, class V>
void write(const V& v, const Vec3<T>& a, const Vec3<T>& b) {
  const T x = a.y * b.z - a.z * b.y;
  const T y = a.z * b.x - a.x * b.z;
  const T z = a.x * b.y - a.y * b.x;
  storeElem(v.at(0, 0), x);
  storeElem(v.at(0, 1), y);
  storeElem(v.at(0, 2), z);
}

// Float vectors with unit element stride: each vector is loaded as (x, 0, y, z), twelve bytes
// and no more; with R the rotation that gives (y, 0, z, x), a*R(b) - R(a)*b holds the result's
// z, x, y in lanes 0, 2, 3: the same products and differences as above, operand for operand.
inline void crossLanes(const float* a, const float* b, float* d) {
  const __m128 va = simd::loadX0YZ(a), vb = simd::loadX0YZ(b);
  const __m128 r = simd::sub(simd::mul(va, simd::rotateX0YZ(vb)), simd::mul(simd::rotateX0YZ(va), vb));
  simd::storeYZX(d, r);
}

// The same with both vectors read by 16-byte loads, (x, y, z, w), where the float behind each
// lies in its array: R = (y, z, x) gives a*R(b) - R(a)*b = (z, x, y) of the result, again the
// products and differences above operand for operand, and one rotation fewer.
inline void crossWide(const float* a, const float* b, float* d) {
  const __m128 va = simd::load<4, false>(a), vb = simd::load<4, false>(b);
  const __m128 r = simd::sub(simd::mul(va, simd::rotateYZX(vb)), simd::mul(simd::rotateYZX(va), vb));
  simd::store<2, false>(d, simd::rotateYZX(r));
  simd::store<1, false>(d + 2, r);
}

template <class T, Layout L, bool Contig, Shape S, class A, class B, class D>
void worker(const A& a, const B& b, const D& d, int32_t count) {
  const auto xa = reduce::readOnce<3, T>(a);
  const auto xb = reduce::readOnce<3, T>(b);
  const auto xd = cached<3>(d);
  if constexpr (std::is_same_v<T, float> && Contig && L != Layout::P && S.a.array && S.b.array) {
    // In LayoutS every object but the last is followed by more of its array.
    int32_t n = 0;
    if constexpr (L == Layout::S) {
      const float *pa = a.obj(0).p, *pb = b.obj(0).p;
      float* pd = d.obj(0).p;
      for (; n + 1 < count; ++n) {
        if ((n & 3) == 0) {
          simd::prefetch(byteAdd(pa, 4608));
          simd::prefetch(byteAdd(pb, 4608));
        }
        crossWide(pa, pb, pd);
        pa = byteAdd(pa, a.objStride);
        pb = byteAdd(pb, b.objStride);
        pd = byteAdd(pd, d.objStride);
      }
    }
    for (; n < count; ++n) crossLanes(a.obj(n).p, b.obj(n).p, d.obj(n).p);
  } else if constexpr (S.anyArray) {
    // The single vector's values are taken before the loop.
    auto single = [&] {
      if constexpr (!S.a.array) return read<T>(xa.obj(0));
      else if constexpr (!S.b.array) return read<T>(xb.obj(0));
      else return Vec3<T>{};
    };
    const Vec3<T> one = single();
    for (int32_t n = 0; n < count; ++n) {
      const Vec3<T> u = S.a.array ? read<T>(xa.obj(n)) : one;
      const Vec3<T> v = S.b.array ? read<T>(xb.obj(n)) : one;
      write(xd.obj(n), u, v);
    }
  } else {
    write(xd.obj(0), read<T>(xa.obj(0)), read<T>(xb.obj(0)));
  }
}

}  // namespace

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) {
    const auto a = operandOf<T, L, Contig, S.a>(s.op[0], 3);
    const auto b = operandOf<T, L, Contig, S.b>(s.op[1], 3);
    const auto d = operandOf<T, L, Contig, Operand{'v', S.anyArray}, true>(s.op[2], 3);
    const int32_t count = S.anyArray ? s.count : 1;  // a single pair has no object loop
    if (count > 0) worker<T, L, Contig, S>(a, b, d, count);
    return tarnStatusOk;
  });
}

}  // namespace tarn::cross_product

#define TARN_IMPL_cross_product
#include "bindings.hpp"
