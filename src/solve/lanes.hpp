// Numbers for the solving kernels, written once over a number type V: the element type itself
// (one object) or Lanes<T>, one element of several objects side by side in one register. Every
// operation of Lanes<T> is the element type's operation lane by lane, each rounded in the element
// type, so a kernel gives every object the bits the scalar instantiation gives it; what differs
// between the two is only how many objects one pass carries.
//
// Groups: the objects of a call are taken kLanes at a time. A group loads element (r, c) of each
// of its objects into one Lanes value and stores results back object by object; a short last
// group repeats its last object in the spare lanes, which are computed and never stored.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <type_traits>

#include "operand.hpp"
#include "simd.hpp"

namespace tarn::solve {

template <class T, int K = 1>
struct Lanes {
  simd::Vec<T> v[K];
};

#define TARN_LANES_OP(op, fn)                                          \
  template <class T, int K>                                            \
  inline Lanes<T, K> operator op(Lanes<T, K> a, Lanes<T, K> b) {       \
    Lanes<T, K> r;                                                     \
    for (int k = 0; k < K; ++k) r.v[k] = simd::fn(a.v[k], b.v[k]);    \
    return r;                                                          \
  }
TARN_LANES_OP(+, add)
TARN_LANES_OP(-, sub)
TARN_LANES_OP(*, mul)
TARN_LANES_OP(/, div)
#undef TARN_LANES_OP

template <class V> struct NumberOf {
  using Elem = V;
  static constexpr int kLanes = 1;
};
template <class T, int K> struct NumberOf<Lanes<T, K>> {
  using Elem = T;
  static constexpr int kLanes = K * simd::kLanes<T>;
};
template <class V> using ElemOf = typename NumberOf<V>::Elem;
template <class V> inline constexpr bool kScalar = std::is_same_v<V, ElemOf<V>>;

// Objects one pass of a kernel over V carries.
template <class V> inline constexpr int kLanesOf = NumberOf<V>::kLanes;
template <class T> inline constexpr int kLanes = simd::kLanes<T>;

// The same function of every register of a Lanes value.
template <class T, int K, class F>
inline Lanes<T, K> each(Lanes<T, K> x, F f) {
  for (int k = 0; k < K; ++k) x.v[k] = f(x.v[k]);
  return x;
}

template <class V>
inline V constant(ElemOf<V> x) {
  if constexpr (kScalar<V>) return x;
  else return each(V{}, [&](auto) { return simd::broadcast(x); });
}

template <class V>
inline V sqrtOf(V x) {
  if constexpr (kScalar<V>) return std::sqrt(x);
  else return each(x, [](auto r) { return simd::sqrt(r); });
}

// n where alpha > 0, else 0 - n (alpha 0 and NaN included).
template <class V>
inline V negUnlessPositive(V alpha, V n) {
  using T = ElemOf<V>;
  if constexpr (kScalar<V>) {
    return alpha > T(0) ? n : T(0) - n;
  } else {
    for (size_t k = 0; k < std::size(n.v); ++k)
      n.v[k] = simd::selectPositive(alpha.v[k], n.v[k], simd::sub(simd::broadcast(T(0)), n.v[k]));
    return n;
  }
}

// The lanes (bit l for lane l; 1 for a scalar) where |x| < tol.
template <class V>
inline int belowMask(V x, ElemOf<V> tol) {
  if constexpr (kScalar<V>) {
    return std::fabs(x) < tol;
  } else {
    int m = 0;
    for (size_t k = 0; k < std::size(x.v); ++k)
      m |= simd::lessMask(simd::abs(x.v[k]), simd::broadcast(tol)) << (k * kLanes<ElemOf<V>>);
    return m;
  }
}

// The processor's approximate reciprocal r0 of d with one Newton step: (r0 + r0) - d*(r0*r0).
inline float approxRecip(float d) {
  const float r0 = simd::rcp(d);
  return (r0 + r0) - d * (r0 * r0);
}
template <int K>
inline Lanes<float, K> approxRecip(Lanes<float, K> d) {
  const Lanes<float, K> r0 = each(d, [](__m128 r) { return simd::rcp(r); });
  return (r0 + r0) - d * (r0 * r0);
}

// Lane l of a Lanes value as a scalar.
template <class T, int K>
inline T laneOf(Lanes<T, K> x, int l) {
  alignas(16) T t[kLanes<T>];
  simd::store<kLanes<T>, true>(t, x.v[l / kLanes<T>]);
  return t[l % kLanes<T>];
}

// ---- Groups --------------------------------------------------------------------------------

// Views whose rows are runs of elements in memory: loaded a chunk at a time and transposed.
template <class View> struct RowsInMemory : std::false_type {};
template <class E> struct RowsInMemory<StridedObj<E, true>> : std::true_type {};

// The views of objects [first, first + n) of an accessor, the last repeated in spare lanes.
template <int N, class A>
inline auto groupOf(const A& a, int32_t first, int32_t n) {
  using View = decltype(a.obj(0));
  struct Group {
    View v[N];
  } g;
  for (int l = 0; l < N; ++l) g.v[l] = a.obj(first + std::min<int32_t>(l, n - 1));
  return g;
}

// Element addresses of the objects of a group: element (r0 + r, c) for r < H, c < W. The objects
// of one accessor share their strides (or their table), so the offsets are formed once per
// group, not once per element and object.
template <int H, int W, class View>
struct Places {  // any view: its own at()
  int r0;
  Places(const View&, int first) : r0(first) {}
  auto at(const View& v, int r, int c) const { return v.at(r0 + r, c); }
};
template <int H, int W, class E>
struct Places<H, W, StridedObj<E, false>> {
  std::ptrdiff_t off[H][W];
  Places(const StridedObj<E, false>& v, int r0) {
    for (int r = 0; r < H; ++r)
      for (int c = 0; c < W; ++c) off[r][c] = off32(r0 + r, v.row) + off32(c, v.elem);
  }
  E* at(const StridedObj<E, false>& v, int r, int c) const { return byteAdd(v.p, off[r][c]); }
};
template <int H, int W, class E>
struct Places<H, W, TableObj<E>> {
  E* base[H][W];
  Places(const TableObj<E>& v, int r0) {
    for (int r = 0; r < H; ++r)
      for (int c = 0; c < W; ++c) base[r][c] = v.tbl[(r0 + r) * v.sw + c];
  }
  E* at(const TableObj<E>& v, int r, int c) const { return byteAdd(base[r][c], v.off); }
};

// x[r][c] = element (r, c) of each object of the group, register k of x from views
// [k*lanes, (k+1)*lanes).
template <int H, int W, class T, int K, class View>
inline void gather(const View (&views)[K * kLanes<T>], Lanes<T, K> (&x)[H][W]) {
  for (int k = 0; k < K; ++k) {
    const View* v = views + k * kLanes<T>;
    if constexpr (RowsInMemory<View>::value) {
      for (int r = 0; r < H; ++r)
        simd::unroll<simd::chunks<T, W>()>([&]<int C>() {
          constexpr int off = simd::chunkOff<T, W>(C), len = simd::chunkLen<T, W>(C);
          if constexpr (std::is_same_v<T, float>) {
            __m128 y[4];
            for (int l = 0; l < 4; ++l) y[l] = simd::load<len, false>(v[l].rowPtr(r) + off);
            simd::transpose4(y[0], y[1], y[2], y[3]);
            for (int j = 0; j < len; ++j) x[r][off + j].v[k] = y[j];
          } else if constexpr (len == 2) {
            __m128d y0 = simd::load<2, false>(v[0].rowPtr(r) + off), y1 = simd::load<2, false>(v[1].rowPtr(r) + off);
            simd::transpose2(y0, y1);
            x[r][off].v[k] = y0;
            x[r][off + 1].v[k] = y1;
          } else {
            x[r][off].v[k] = simd::gather2(v[0].rowPtr(r) + off, v[1].rowPtr(r) + off);
          }
        });
    } else {
      const Places<H, W, View> p(v[0], 0);
      for (int r = 0; r < H; ++r)
        for (int c = 0; c < W; ++c) {
          if constexpr (std::is_same_v<T, float>)
            x[r][c].v[k] = simd::gather4(p.at(v[0], r, c), p.at(v[1], r, c), p.at(v[2], r, c), p.at(v[3], r, c));
          else
            x[r][c].v[k] = simd::gather2(p.at(v[0], r, c), p.at(v[1], r, c));
        }
    }
  }
}

// Element (r, c) of x to row r0 + r, column c of the first n objects of the group.
template <int H, int W, class T, int K, class View>
inline void scatter(const View (&views)[K * kLanes<T>], const Lanes<T, K> (&x)[H][W], int n, int r0 = 0) {
  for (int k = 0; k < K; ++k) {
    const View* v = views + k * kLanes<T>;
    const int m = std::clamp(n - k * kLanes<T>, 0, kLanes<T>);  // objects of this register
    if (m == 0) return;
    if constexpr (RowsInMemory<View>::value) {
      for (int r = 0; r < H; ++r)
        simd::unroll<simd::chunks<T, W>()>([&]<int C>() {
          constexpr int off = simd::chunkOff<T, W>(C), len = simd::chunkLen<T, W>(C);
          if constexpr (std::is_same_v<T, float>) {
            __m128 y[4];
            for (int j = 0; j < 4; ++j) y[j] = j < len ? x[r][off + j].v[k] : _mm_setzero_ps();
            simd::transpose4(y[0], y[1], y[2], y[3]);
            for (int l = 0; l < m; ++l) simd::store<len, false>(v[l].rowPtr(r0 + r) + off, y[l]);
          } else if constexpr (len == 2) {
            __m128d y0 = x[r][off].v[k], y1 = x[r][off + 1].v[k];
            simd::transpose2(y0, y1);
            simd::store<2, false>(v[0].rowPtr(r0 + r) + off, y0);
            if (m > 1) simd::store<2, false>(v[1].rowPtr(r0 + r) + off, y1);
          } else {
            simd::storeSd(v[0].rowPtr(r0 + r) + off, x[r][off].v[k]);
            if (m > 1) simd::storeHighSd(v[1].rowPtr(r0 + r) + off, x[r][off].v[k]);
          }
        });
    } else {
      const Places<H, W, View> p(v[0], r0);
      for (int r = 0; r < H; ++r)
        for (int c = 0; c < W; ++c) {
          alignas(16) T t[kLanes<T>];
          simd::store<kLanes<T>, true>(t, x[r][c].v[k]);
          for (int l = 0; l < m; ++l) storeElem(p.at(v[l], r, c), t[l]);
        }
    }
  }
}

// Row r of the group's objects from x[c] = element (r, c) of each, for the first n objects. A
// full register of 4-float rows goes out as halves (unpacked pairs and 8-byte stores), which
// leaves half the shuffles of a transpose to the store ports.
template <int W, class T, int K, class View>
inline void scatterRow(const View (&views)[K * kLanes<T>], const Lanes<T, K> (&x)[W], int r, int n) {
  if constexpr (RowsInMemory<View>::value && std::is_same_v<T, float> && W == 4) {
    if (n == K * 4) {
      for (int k = 0; k < K; ++k) {
        const View* v = views + 4 * k;
        const __m128 t0 = _mm_unpacklo_ps(x[0].v[k], x[1].v[k]), t1 = _mm_unpacklo_ps(x[2].v[k], x[3].v[k]);
        const __m128 t2 = _mm_unpackhi_ps(x[0].v[k], x[1].v[k]), t3 = _mm_unpackhi_ps(x[2].v[k], x[3].v[k]);
        simd::store<2, false>(v[0].rowPtr(r), t0);
        simd::store<2, false>(v[0].rowPtr(r) + 2, t1);
        simd::storeHigh(v[1].rowPtr(r), t0);
        simd::storeHigh(v[1].rowPtr(r) + 2, t1);
        simd::store<2, false>(v[2].rowPtr(r), t2);
        simd::store<2, false>(v[2].rowPtr(r) + 2, t3);
        simd::storeHigh(v[3].rowPtr(r), t2);
        simd::storeHigh(v[3].rowPtr(r) + 2, t3);
      }
      return;
    }
  }
  Lanes<T, K> one[1][W];
  for (int c = 0; c < W; ++c) one[0][c] = x[c];
  scatter(views, one, n, r);
}

// One object's elements as scalars, and back.
template <int H, int W, class T, class View>
inline void load1(const View& v, T (&x)[H][W]) {
  for (int r = 0; r < H; ++r)
    for (int c = 0; c < W; ++c) x[r][c] = loadElem(v.at(r, c));
}
template <int H, int W, class T, class View>
inline void store1(const View& v, const T (&x)[H][W]) {
  for (int r = 0; r < H; ++r)
    for (int c = 0; c < W; ++c) storeElem(v.at(r, c), x[r][c]);
}

// The element type's smallest normal number times 2*n*n*n, the product formed in 32-bit
// integers (wrapping) and converted to the element type.
template <class T>
inline T cubeTolerance(int32_t n) {
  const int32_t k = int32_t(2u * uint32_t(n) * uint32_t(n) * uint32_t(n));
  return T(k) * (std::is_same_v<T, float> ? T(0x1p-126f) : T(0x1p-1022));
}

}  // namespace tarn::solve
