// Matrix times vector: the bodies of Mul's matrix-vector members and of Gaxpy
// (dst = src1 * src2 + src3).
//
// The kernel is chosen once per call, outside the object loop: the fixed sizes 3 to 6 (matrix
// square, vector of its order) have bodies with the object loop inside, every other shape a
// general body. The bits of a result depend on the path, and each path keeps its own order of
// additions:
//   fixed sizes   the products summed in the order of the kernel (Order below), starting from
//                 the first product; Gaxpy adds src3 last
//   contiguous    dot products in registers (dot), aligned on the vector where the member
//   general       aligns; arrays work on pairs of objects, an odd last object of a slice
//                 follows the single-object rule, so the bits of that object depend on where
//                 the thread slices begin
//   strided,      the triple loop: dst set to +0.0, the products added one by one with the
//   LayoutP, and  running sum stored after each
//   Gaxpy general
#pragma once

#include <algorithm>
#include <cstdint>
#include <type_traits>

#include "call.hpp"
#include "dispatch.hpp"
#include "operand.hpp"
#include "simd.hpp"

namespace tarn::matvec {

// How the N products p(k) = a(i, k) * v(k) of a result of the fixed sizes are summed.
//   LeftToRight  ((p0 + p1) + p2) + ...
//   Pair32       the float lanes: 3 (p0 + p1) + p2; 4 (p0 + p2) + (p1 + p3);
//                5 ((p0 + p1) + p4) + (p2 + p3), but row 4 ((p0 + p2) + p4) + (p1 + p3);
//                6 ((p0 + p2) + p4) + ((p1 + p3) + p5)
//   Pair64       the double lanes of Gaxpy: 3 (p0 + p1) + p2; 4 (p0 + p1) + (p2 + p3);
//                5 ((p0 + p1) + (p2 + p3)) + p4; 6 ((p0 + p1) + (p2 + p3)) + (p4 + p5)
enum class Order { LeftToRight, Pair32, Pair64 };

// One rounded addition or multiplication of scalars or of registers, lane by lane.
template <class V>
inline V plus(V a, V b) {
  if constexpr (std::is_floating_point_v<V>) return a + b;
  else return simd::add(a, b);
}

// The sum of p[0..N) in order O for result row `row` (row 4 differs in Pair32 at N 5). V is a
// scalar or a register whose lanes are rows starting at `row`.
template <Order O, int N, class V>
inline V sumOf(const V* p, int row) {
  if constexpr (O == Order::LeftToRight) {
    V s = p[0];
    for (int k = 1; k < N; ++k) s = plus(s, p[k]);
    return s;
  } else if constexpr (O == Order::Pair32) {
    if constexpr (N == 3) return plus(plus(p[0], p[1]), p[2]);
    else if constexpr (N == 4) return plus(plus(p[0], p[2]), plus(p[1], p[3]));
    else if constexpr (N == 5)
      return row == 4 ? plus(plus(plus(p[0], p[2]), p[4]), plus(p[1], p[3]))
                      : plus(plus(plus(p[0], p[1]), p[4]), plus(p[2], p[3]));
    else return plus(plus(plus(p[0], p[2]), p[4]), plus(plus(p[1], p[3]), p[5]));
  } else {
    if constexpr (N == 3) return plus(plus(p[0], p[1]), p[2]);
    else if constexpr (N == 4) return plus(plus(p[0], p[1]), plus(p[2], p[3]));
    else if constexpr (N == 5) return plus(plus(plus(p[0], p[1]), plus(p[2], p[3])), p[4]);
    else return plus(plus(plus(p[0], p[1]), plus(p[2], p[3])), plus(p[4], p[5]));
  }
}

// Mul has no third operand.
struct NoAddend {};

// Operands that are one object for the whole call, in any of their accessor forms.
template <class A> struct Single : IsOne<A> {};
template <class T, int N> struct Single<OneCached<T, N>> : std::true_type {};
template <class A> struct Single<Trans<A>> : Single<A> {};

// The objects a body walks: one when dst is a single object, a number the compiler sees, so no
// object loop surrounds stores that go to the same address each time.
template <class D>
inline int32_t objectsOf(int32_t count) {
  return Single<D>::value ? 1 : count;
}

// A LayoutS array runs through memory at a fixed stride; the line 4 KB ahead of object n is
// asked for early (the hardware's own prefetch falls behind a stream that is also computed on).
// Only an address is formed, as an integer: nothing is read there.
template <class X> inline void prefetchAhead(const X&, int32_t) {}
template <class E, bool C> inline void prefetchAhead(const ArrS<E, C>& x, int32_t n) {
  simd::prefetch(reinterpret_cast<uintptr_t>(x.base) + uintptr_t(int64_t(n) * x.objStride) + 4096);
}

// ---- Fixed sizes ---------------------------------------------------------------------------
// The bodies take their accessors by value: copies the stores through dst cannot reach, so the
// bases and strides stay in registers through the object loop.

// A row of N elements as registers: register j holds elements j*lanes on, in order.
template <class T, int N>
struct Lanes {
  static constexpr int kL = simd::kLanes<T>, kRegs = (N + kL - 1) / kL;
  simd::Vec<T> r[kRegs];
};
template <class T, int N, int J>
inline constexpr int kPart = std::min(simd::kLanes<T>, N - J * simd::kLanes<T>);

template <int N, class E>
inline Lanes<std::remove_const_t<E>, N> loadLanes(E* p) {
  using T = std::remove_const_t<E>;
  Lanes<T, N> x;
  simd::unroll<Lanes<T, N>::kRegs>([&]<int J>() { x.r[J] = simd::loadPart<kPart<T, N, J>>(p + J * simd::kLanes<T>); });
  return x;
}
template <int N, class T>
inline void storeLanes(T* p, const Lanes<T, N>& x) {
  simd::unroll<Lanes<T, N>::kRegs>([&]<int J>() { simd::storePart<kPart<T, N, J>>(p + J * simd::kLanes<T>, x.r[J]); });
}

// One stored matrix for a batch of contiguous vectors: its columns are gathered into registers
// once, the rows of the result are the lanes, and each object costs N broadcasts and N products
// per register, summed in order O (plus src3, last).
template <class T, int N, Order O, bool Gx, class D, class A, class V, class S3>
void columnsBody(const D d, const A a, const V v, const S3 s3, int32_t objects) {
  const int32_t count = objectsOf<D>(objects);
  constexpr int kL = simd::kLanes<T>, kR = Lanes<T, N>::kRegs;
  Lanes<T, N> col[N];
  const auto m = a.obj(0);
  for (int k = 0; k < N; ++k) {
    T c[N];
    for (int i = 0; i < N; ++i) c[i] = loadElem(m.at(i, k));
    col[k] = loadLanes<N>(static_cast<const T*>(c));
  }
  for (int32_t n = 0; n < count; ++n) {
    prefetchAhead(v, n);
    const auto xv = loadLanes<N>(v.obj(n).rowPtr(0));
    simd::Vec<T> b[N];
    simd::unroll<N>([&]<int K>() { b[K] = simd::splat<K % kL>(xv.r[K / kL]); });
    Lanes<T, N> s;
    for (int j = 0; j < kR; ++j) {
      simd::Vec<T> p[N];
      for (int k = 0; k < N; ++k) p[k] = simd::mul(col[k].r[j], b[k]);
      s.r[j] = sumOf<O, N>(p, j * kL);
    }
    if constexpr (Gx) {
      const auto t = loadLanes<N>(s3.obj(n).rowPtr(0));
      for (int j = 0; j < kR; ++j) s.r[j] = simd::add(s.r[j], t.r[j]);
    }
    storeLanes<N>(d.obj(n).rowPtr(0), s);
  }
}

// Packed batches of 3-element float vectors: four objects are three registers, turned into one
// register per element, so each row of the matrix costs three products and two sums for four
// objects, in the order (p0 + p1) + p2 of every kernel of this size, src3 last. Returns the
// objects done; the rest take columnsBody.
template <class X> bool packed3(const X&) { return true; }  // single operands, no addend
template <class E> bool packed3(const ArrS<E, true>& x) { return x.objStride == 12; }
template <class X> X fromObject(const X& x, int32_t first) {
  if constexpr (requires { x.from(first); }) return x.from(first);
  else return x;
}

template <bool Gx, class D, class A, class V, class S3>
int32_t dense3Body(const D d, const A a, const V v, const S3 s3, int32_t count) {
  using F = simd::Vec<float>;
  F m[3][3], one[3];
  const auto o = a.obj(0);
  for (int i = 0; i < 3; ++i)
    for (int k = 0; k < 3; ++k) m[i][k] = simd::broadcast(loadElem(o.at(i, k)));
  constexpr bool kAddendArray = Gx && !IsOne<S3>::value;
  if constexpr (Gx && !kAddendArray)
    for (int i = 0; i < 3; ++i) one[i] = simd::broadcast(loadElem(s3.obj(0).rowPtr(0) + i));
  const float* pv = v.obj(0).rowPtr(0);
  float* pd = d.obj(0).rowPtr(0);
  const float* ps = nullptr;
  if constexpr (kAddendArray) ps = s3.obj(0).rowPtr(0);
  // Object n lies n*12 bytes (a 32-bit product) behind object 0; carried from group to group.
  const int32_t end = count - count % 4;
  uint32_t off = 0;
  for (int32_t n = 0; n < end; n += 4, off += 48) {
    const std::ptrdiff_t b = int32_t(off);
    const float* x = byteAdd(pv, b);
    simd::prefetch(reinterpret_cast<uintptr_t>(x) + 4096);
    F e[3], r[3];
    simd::unpack3(simd::load<4, false>(x), simd::load<4, false>(x + 4), simd::load<4, false>(x + 8), e[0], e[1], e[2]);
    for (int i = 0; i < 3; ++i)
      r[i] = simd::add(simd::add(simd::mul(m[i][0], e[0]), simd::mul(m[i][1], e[1])), simd::mul(m[i][2], e[2]));
    if constexpr (kAddendArray) {
      const float* y = byteAdd(ps, b);
      simd::unpack3(simd::load<4, false>(y), simd::load<4, false>(y + 4), simd::load<4, false>(y + 8), e[0], e[1], e[2]);
      for (int i = 0; i < 3; ++i) r[i] = simd::add(r[i], e[i]);
    } else if constexpr (Gx) {
      for (int i = 0; i < 3; ++i) r[i] = simd::add(r[i], one[i]);
    }
    F out[3];
    simd::pack3(r[0], r[1], r[2], out[0], out[1], out[2]);
    float* y = byteAdd(pd, b);
    for (int j = 0; j < 3; ++j) simd::store<4, false>(y + 4 * j, out[j]);
  }
  return end;
}

// A matrix read transposed: its stored rows are the lanes of the result, so row k times the
// broadcast v(k) is product k of every result, summed left to right. A single matrix's rows and
// a single vector's broadcasts are loaded once.
template <class T, int N, class D, class A, class V>
void rowsBody(const D d, const A a, const V v, int32_t objects) {
  const int32_t count = objectsOf<D>(objects);
  constexpr bool kOneA = IsOne<A>::value, kOneV = IsOne<V>::value;
  constexpr int kR = Lanes<T, N>::kRegs;
  Lanes<T, N> rows[N];
  simd::Vec<T> b[N];
  if constexpr (kOneA)
    for (int k = 0; k < N; ++k) rows[k] = loadLanes<N>(a.obj(0).rowPtr(k));
  if constexpr (kOneV)
    for (int k = 0; k < N; ++k) b[k] = simd::broadcast(loadElem(v.obj(0).rowPtr(0) + k));
  for (int32_t n = 0; n < count; ++n) {
    if constexpr (!kOneA) {
      const auto m = a.obj(n);
      for (int k = 0; k < N; ++k) rows[k] = loadLanes<N>(m.rowPtr(k));
    }
    if constexpr (!kOneV) {
      const T* x = v.obj(n).rowPtr(0);
      for (int k = 0; k < N; ++k) b[k] = simd::broadcast(loadElem(x + k));
    }
    Lanes<T, N> s;
    for (int j = 0; j < kR; ++j) {
      s.r[j] = simd::mul(rows[0].r[j], b[0]);
      for (int k = 1; k < N; ++k) s.r[j] = simd::add(s.r[j], simd::mul(rows[k].r[j], b[k]));
    }
    storeLanes<N>(d.obj(n).rowPtr(0), s);
  }
}

// Float matrices of 3 or 4 read as stored, one per object: row i times the vector holds the
// products of result i. At 3 a 4 by 4 transposition (the fourth row zero) turns them into
// product k of every result, summed (p0 + p1) + p2; a row of 3 is loaded as a pair and a single.
// At 4, interleaving rows 0 and 1 (and 2 and 3) and adding the halves gives p0 + p2 and p1 + p3
// of each row side by side, and adding the halves of those gives (p0 + p2) + (p1 + p3).
template <int N, class D, class A, class V>
void transposedBody(const D d, const A a, const V v, int32_t objects) {
  const int32_t count = objectsOf<D>(objects);
  using F = simd::Vec<float>;
  constexpr bool kOneV = IsOne<V>::value;
  const F one = kOneV ? simd::loadPart<N>(v.obj(0).rowPtr(0)) : simd::zeros<float>();
  for (int32_t n = 0; n < count; ++n) {
    prefetchAhead(a, n);
    const auto m = a.obj(n);
    const F x = kOneV ? one : simd::loadPart<N>(v.obj(n).rowPtr(0));
    F p[4];
    for (int i = 0; i < N; ++i) p[i] = simd::mul(simd::loadPart<N>(m.rowPtr(i)), x);
    if constexpr (N == 3) {
      p[3] = simd::zeros<float>();
      simd::transpose4(p[0], p[1], p[2], p[3]);
      simd::storePart<3>(d.obj(n).rowPtr(0), sumOf<Order::Pair32, 3>(p, 0));
    } else {
      const F top = simd::add(simd::interleaveLow(p[0], p[1]), simd::interleaveHigh(p[0], p[1]));
      const F bottom = simd::add(simd::interleaveLow(p[2], p[3]), simd::interleaveHigh(p[2], p[3]));
      simd::store<4, false>(d.obj(n).rowPtr(0),
                            simd::add(simd::lowHalves(top, bottom), simd::highHalves(top, bottom)));
    }
  }
}

// One float 4 by 4 matrix for a batch of vectors: rows 0 and 1 (and 2 and 3) share registers,
// two columns at a time, (a00 a01 a10 a11) and (a02 a03 a12 a13), so the vector's pairs
// duplicated, (v0 v1 v0 v1) and (v2 v3 v2 v3), serve two rows at once: the sum of the two
// products holds p0 + p2 and p1 + p3 of both rows, and one horizontal addition of the two row
// pairs gives (p0 + p2) + (p1 + p3) of every row; src3 last.
template <bool Gx, class D, class A, class V, class S3>
void pairs4Body(const D d, const A a, const V v, const S3 s3, int32_t objects) {
  const int32_t count = objectsOf<D>(objects);
  using F = simd::Vec<float>;
  const auto m = a.obj(0);
  F c[4];
  for (int q = 0; q < 4; ++q) {
    const int r = 2 * (q / 2), k = 2 * (q % 2);
    c[q] = simd::constant(loadElem(m.at(r, k)), loadElem(m.at(r, k + 1)), loadElem(m.at(r + 1, k)), loadElem(m.at(r + 1, k + 1)));
  }
  for (int32_t n = 0; n < count; ++n) {
    prefetchAhead(v, n);
    const float* x = v.obj(n).rowPtr(0);
    const F lo = simd::dupPair(x), hi = simd::dupPair(x + 2);
    const F top = simd::add(simd::mul(c[0], lo), simd::mul(c[1], hi));
    const F bottom = simd::add(simd::mul(c[2], lo), simd::mul(c[3], hi));
    F r = simd::hadd(top, bottom);
    if constexpr (Gx) r = simd::add(r, simd::load<4, false>(s3.obj(n).rowPtr(0)));
    simd::store<4, false>(d.obj(n).rowPtr(0), r);
  }
}

// The scalar body of the fixed sizes: each result's N products summed in order O (src3 last).
// A single matrix or vector is read once, before the object loop.
template <class T, int N, Order O, bool Gx, class D, class A, class V, class S3>
void scalarBody(const D d, const A a, const V v, const S3 s3, int32_t objects) {
  const int32_t count = objectsOf<D>(objects);
  constexpr bool kOneA = Single<A>::value, kOneV = Single<V>::value;
  T m[N][N], x1[N];
  if constexpr (kOneA) {
    const auto o = a.obj(0);
    for (int i = 0; i < N; ++i)
      for (int k = 0; k < N; ++k) m[i][k] = loadElem(o.at(i, k));
  }
  if constexpr (kOneV) {
    const auto o = v.obj(0);
    for (int k = 0; k < N; ++k) x1[k] = loadElem(o.at(0, k));
  }
  for (int32_t n = 0; n < count; ++n) {
    [[maybe_unused]] const auto ao = a.obj(n);
    const auto vo = v.obj(n);
    const auto dv = d.obj(n);
    T x[N], out[N];
    for (int k = 0; k < N; ++k) x[k] = kOneV ? x1[k] : loadElem(vo.at(0, k));
    for (int i = 0; i < N; ++i) {
      T p[N];
      for (int k = 0; k < N; ++k) p[k] = (kOneA ? m[i][k] : loadElem(ao.at(i, k))) * x[k];
      out[i] = sumOf<O, N>(p, i);
      if constexpr (Gx) out[i] = out[i] + loadElem(s3.obj(n).at(0, i));
    }
    for (int i = 0; i < N; ++i) storeElem(dv.at(0, i), out[i]);
  }
}

// ---- General shapes --------------------------------------------------------------------------

// The triple loop of the strided and LayoutP paths, and of Gaxpy on every path: dst set to +0.0,
// then the products added in order, two per step, the running sum stored after each; Gaxpy then
// adds src3's element, read after dst was written, and stores again.
template <class T, bool Gx, class D, class A, class V, class S3>
void tripleLoop(const D d, const A a, const V v, const S3 s3, int32_t objects, int32_t rows, int32_t inner) {
  const int32_t count = objectsOf<D>(objects);
  for (int32_t n = 0; n < count; ++n) {
    const auto ao = a.obj(n);
    const auto vo = v.obj(n);
    const auto dv = d.obj(n);
    for (int32_t i = 0; i < rows; ++i) {
      T* dp = dv.at(0, i);
      storeElem(dp, T(0));
      T s = T(0);
      int32_t k = 0;
      for (; k + 1 < inner; k += 2) {
        s = s + loadElem(ao.at(i, k)) * loadElem(vo.at(0, k));
        storeElem(dp, s);
        s = s + loadElem(ao.at(i, k + 1)) * loadElem(vo.at(0, k + 1));
        storeElem(dp, s);
      }
      if (k < inner) {
        s = s + loadElem(ao.at(i, k)) * loadElem(vo.at(0, k));
        storeElem(dp, s);
      }
      if constexpr (Gx) storeElem(dp, T(s + loadElem(s3.obj(n).at(0, i))));
    }
  }
}

// A dot product of a contiguous row with a contiguous vector in registers: Step products per
// iteration in Step/lanes accumulators. With `peel` the loop is aligned on the vector: products
// are summed in a scalar until v reaches a 16-byte boundary, and that sum starts lane 0 of the
// first accumulator; a vector off an element boundary has no vector part. The vector part needs
// Step products behind the peel; without it the products are summed in order from +0.0. The
// accumulators are added (A0 + A1, or (A0 + A1) + (A2 + A3)), the lanes reduced as
// (l0 + l2) + (l1 + l3) or l0 + l1, and the products left over added one by one.
template <class T, int Step>
T dot(const T* a, const T* v, int32_t len, bool peel) {
  // v may start off its element boundary (a vector placed at any byte): single elements are read
  // through loadElem, which is defined at any address.
  constexpr int kL = simd::kLanes<T>, kAcc = Step / kL;
  constexpr int32_t kSize = sizeof(T);
  int32_t head = 0;
  bool vec = true;
  if (peel) {
    const auto mis = int32_t(reinterpret_cast<uintptr_t>(v) & 15);
    vec = mis % kSize == 0;
    head = mis ? (16 - mis) / kSize : 0;
  }
  T s = T(0);
  int32_t k = 0;
  if (!vec || len < head + Step) {
    for (; k < len; ++k) s = s + loadElem(a + k) * loadElem(v + k);
    return s;
  }
  for (; k < head; ++k) s = s + loadElem(a + k) * loadElem(v + k);
  simd::Vec<T> acc[kAcc];
  acc[0] = simd::inLow(s);
  for (int j = 1; j < kAcc; ++j) acc[j] = simd::zeros<T>();
  auto loop = [&]<bool Al>() {
    for (; k + Step <= len; k += Step)
      for (int j = 0; j < kAcc; ++j)
        acc[j] = simd::add(acc[j], simd::mul(simd::load<kL, false>(a + k + j * kL), simd::load<kL, Al>(v + k + j * kL)));
  };
  if (peel) loop.template operator()<true>();
  else loop.template operator()<false>();
  simd::Vec<T> sum = acc[0];
  if constexpr (kAcc == 2) sum = simd::add(acc[0], acc[1]);
  if constexpr (kAcc == 4) sum = simd::add(simd::add(acc[0], acc[1]), simd::add(acc[2], acc[3]));
  T r = simd::reduce(sum);
  for (; k < len; ++k) r = r + loadElem(a + k) * loadElem(v + k);
  return r;
}

// dot with a step chosen at run time: the register width, 4 or 8 elements.
template <class T>
T dotBy(int32_t step, const T* a, const T* v, int32_t len, bool peel) {
  if (step == 8) return dot<T, 8>(a, v, len, peel);
  if constexpr (simd::kLanes<T> == 2)
    if (step == 2) return dot<T, 2>(a, v, len, peel);
  return dot<T, 4>(a, v, len, peel);
}

// Contiguous objects as raw rows: matrix (row stride in bytes), vector, result.
template <class T>
struct Obj {
  const T* a;
  int32_t row;
  const T* v;
  T* d;
  const T* rowAt(int32_t i) const { return byteAdd(a, off32(i, row)); }
};

// A matrix read as stored, the single-product rule: rows in blocks of 8, one accumulator of a
// register each, as have 4 to 7 remaining rows; 1 to 3 remaining rows take 8 products a step;
// aligned on the vector.
template <class T>
void mvRows(const Obj<T>& o, int32_t rows, int32_t inner) {
  const int32_t rem = rows % 8;
  for (int32_t i = 0; i < rows; ++i)
    storeElem(o.d + i, dotBy<T>(i < rows - rem || rem >= 4 ? simd::kLanes<T> : 8, o.rowAt(i), o.v, inner, true));
}

// One object of a pair: rows in blocks of 4, one register accumulator each; one remaining row
// takes 8 products a step, two or three take 4 (in doubles two registers, as 8 products are
// four). Aligned on the vector only when it is the one vector of the call.
template <class T>
void pairRows(const Obj<T>& o, int32_t rows, int32_t inner, bool peel) {
  const int32_t rem = rows % 4;
  for (int32_t i = 0; i < rows; ++i)
    storeElem(o.d + i, dotBy<T>(i < rows - rem ? simd::kLanes<T> : rem == 1 ? 8 : 4, o.rowAt(i), o.v, inner, peel));
}

// Result i of a matrix read transposed runs down stored column i: k ascending from +0.0, or the
// even and the odd products in two sums that are then added, the last product of an odd count
// behind them.
template <class T>
T columnAscending(const Obj<T>& o, int32_t i, int32_t inner) {
  T s = T(0);
  for (int32_t k = 0; k < inner; ++k) s = s + loadElem(o.rowAt(k) + i) * loadElem(o.v + k);
  return s;
}
template <class T>
T columnSplit(const Obj<T>& o, int32_t i, int32_t inner) {
  T even = T(0), odd = T(0);
  int32_t k = 0;
  for (; k + 1 < inner; k += 2) {
    even = even + loadElem(o.rowAt(k) + i) * loadElem(o.v + k);
    odd = odd + loadElem(o.rowAt(k + 1) + i) * loadElem(o.v + k + 1);
  }
  T s = even + odd;
  if (k < inner) s = s + loadElem(o.rowAt(k) + i) * loadElem(o.v + k);
  return s;
}

// The single-product rule of a transposed matrix: results in blocks of 8, one sum each; of the
// remaining results 1 or 2 split their products, 3 to 7 have one sum each.
template <class T>
void tvRows(const Obj<T>& o, int32_t rows, int32_t inner) {
  const int32_t rem = rows % 8;
  for (int32_t i = 0; i < rows; ++i)
    storeElem(o.d + i, i < rows - rem || rem >= 3 ? columnAscending(o, i, inner) : columnSplit(o, i, inner));
}

// The general body of the contiguous workers of Mul. Arrays go by pairs of objects; the odd last
// object of the call (or of a thread's slice) follows the rule of the single product, also at
// the sizes 3 to 6 in the workers without fixed sizes. A transposed matrix's pair sums every
// result k ascending, the results past the last block of 4 included. The LayoutS float batch of
// vectors is the exception: every object alone, every row 8 products a step, aligned on the
// object's vector.
template <class T, Layout L, Shape S, class D, class A, class V>
void contiguousGeneral(const D d, const A a, const V v, int32_t objects, int32_t rows, int32_t inner) {
  const int32_t count = objectsOf<D>(objects);
  constexpr bool kT = S.a.kind == 't';
  constexpr bool kEach = !kT && L == Layout::S && std::is_same_v<T, float> && !S.a.array && S.b.array;
  constexpr bool kPeel = S.a.array && !S.b.array;  // aligned on the one vector of the call
  for (int32_t n = 0; n < count; ++n) {
    const auto m = a.obj(n);
    const Obj<T> o{m.p, m.row, v.obj(n).rowPtr(0), d.obj(n).rowPtr(0)};
    const bool lone = n == count - 1 && count % 2 == 1;
    if constexpr (kT) {
      if (lone) tvRows(o, rows, inner);
      else
        for (int32_t i = 0; i < rows; ++i) storeElem(o.d + i, columnAscending(o, i, inner));
    } else if constexpr (kEach) {
      for (int32_t i = 0; i < rows; ++i) storeElem(o.d + i, dotBy<T>(8, o.rowAt(i), o.v, inner, true));
    } else if (lone) {
      mvRows(o, rows, inner);
    } else {
      pairRows(o, rows, inner, kPeel);
    }
  }
}

// ---- The worker of one path ----------------------------------------------------------------

// Serial worker over objects [0, count) of the accessors it is handed (all, or a thread's
// slice). `a` describes the matrix as stored; S says whether it is read transposed and which
// operands are arrays; Gx adds src3 (s3), a vector of the result's length.
template <class T, Layout L, bool Contig, Shape S, bool Gx, class D, class A, class V, class S3>
void worker(const D& d, const A& a, const V& v, const S3& s3, int32_t count, int32_t width, int32_t height) {
  if (count < 1) return;  // a thread's slice may be empty
  constexpr bool kT = S.a.kind == 't', kF32 = std::is_same_v<T, float>;
  const int32_t rows = kT ? width : height, inner = kT ? height : width;
  auto seen = [](const auto& x) {
    if constexpr (kT) return Trans<std::decay_t<decltype(x)>>{x};
    else return x;
  };
  // Gaxpy sums in the order of its registers on every path. Mul does so in the float kernels
  // of a matrix read as stored over arrays, and left to right everywhere else (the double
  // registers included).
  constexpr Order kOrder = Gx ? (kF32 ? Order::Pair32 : Order::Pair64)
                              : kF32 && !kT && S.anyArray && Contig && L != Layout::P ? Order::Pair32
                                                                                    : Order::LeftToRight;
  // The contiguous LayoutL workers of one matrix for float vectors, of a transposed matrix for a
  // batch of vectors and of transposed double matrix arrays with vector arrays have no fixed
  // sizes.
  constexpr bool kFixed = Gx || !(Contig && L == Layout::L &&
                                  ((kF32 && !kT && !S.a.array) || (kT && !S.a.array) || (!kF32 && kT && S.b.array)));
  auto fixed = [&]<int N>() {
    if constexpr (L == Layout::P) {
      scalarBody<T, N, kOrder, Gx>(cached<N>(d), seen(cached<N * N>(a)), cached<N>(v), cached<N>(s3), count);
    } else if constexpr (!Contig) {
      scalarBody<T, N, kOrder, Gx>(d, seen(a), v, s3, count);
    } else if constexpr (!kT && !S.a.array && (Gx || S.anyArray)) {
      int32_t done = 0;
      if constexpr (N == 3 && kF32 && L == Layout::S && S.b.array)
        if (packed3(v) && packed3(d) && packed3(s3)) done = dense3Body<Gx>(d, a, v, s3, count);
      if constexpr (N == 4 && kF32) pairs4Body<Gx>(d, a, v, s3, count);
      else if (done < count)
        columnsBody<T, N, kOrder, Gx>(fromObject(d, done), a, fromObject(v, done), fromObject(s3, done), count - done);
    } else if constexpr (kT && S.anyArray) {
      rowsBody<T, N>(d, a, v, count);
    } else if constexpr (!kT && S.a.array && kF32 && N <= 4) {
      transposedBody<N>(d, a, v, count);
    } else {
      scalarBody<T, N, kOrder, Gx>(d, seen(a), v, s3, count);
    }
  };
  if constexpr (kFixed) {
    if (width == height) {
      switch (width) {
        case 3: return fixed.template operator()<3>();
        case 4: return fixed.template operator()<4>();
        case 5: return fixed.template operator()<5>();
        case 6: return fixed.template operator()<6>();
      }
    }
  }
  if constexpr (Gx || L == Layout::P || !Contig) tripleLoop<T, Gx>(d, seen(a), v, s3, count, rows, inner);
  else contiguousGeneral<T, L, S>(d, a, v, count, rows, inner);
}

}  // namespace tarn::matvec
