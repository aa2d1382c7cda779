// What the factorisations and their solvers share: walking an array of objects in groups that
// run one object per lane, the loads and stores of such groups, and the test that decides
// whether a group may run in lanes at all.
//
// A group reads every source element of its G objects before it writes anything, then writes
// object after object, each in the order its plain body writes. The plain bodies read and
// write one object at a time. The two agree whenever no written byte of an object is read by
// a later object of the group, and a result lies either apart from its sources or exactly on
// them (same elements, objects apart from each other). Where that cannot be shown from the
// strides, the group takes the plain bodies.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "call.hpp"
#include "dispatch.hpp"
#include "operand.hpp"
#include "simd.hpp"

// Loops over the elements of a fixed order are expanded whole, and the bodies of a group are
// inlined into it: a group is straight-line code.
#define TARN_EXPAND _Pragma("GCC unroll 64")
#define TARN_INLINE __attribute__((always_inline)) inline

namespace tarn::solve {

template <class T> inline constexpr int kGroup = simd::kLanes<T>;  // objects per register

// ---- Where operands lie ------------------------------------------------------------------

struct Span {  // bytes [lo, hi)
  uintptr_t lo = 0, hi = 0;
};
inline bool meets(Span a, Span b) { return a.lo < b.hi && b.lo < a.hi; }
inline Span hull(Span a, Span b) { return {a.lo < b.lo ? a.lo : b.lo, a.hi > b.hi ? a.hi : b.hi}; }
template <class P> inline uintptr_t addr(P* p) { return reinterpret_cast<uintptr_t>(p); }
inline Span plainSpan(const void* p, size_t bytes) { return {addr(p), addr(p) + bytes}; }

// Bytes from element (0, 0) to the end of element (rows-1, cols-1) of a strided object.
template <class T, bool C>
inline uint32_t extent(const StridedObj<T, C>& o, int32_t rows, int32_t cols) {
  const int32_t elem = C ? int32_t(sizeof(T)) : o.elem;
  return uint32_t(off32(rows - 1, o.row) + off32(cols - 1, elem)) + uint32_t(sizeof(T));
}
template <class T, bool C>
inline Span spanOf(const StridedObj<T, C>& o, int32_t rows, int32_t cols) {
  return {addr(o.p), addr(o.p) + extent(o, rows, cols)};
}

// The bytes of every object of an operand the call touches. A table of LayoutP spans from its
// lowest entry to its highest.
template <class T, bool C>
Span spanOf(const ArrS<T, C>& a, int32_t rows, int32_t cols, int32_t count) {
  const Span first = spanOf(a.obj(0), rows, cols);
  return {first.lo, first.hi + uint32_t(off32(count - 1, a.objStride))};
}
template <class T, int N>
Span tableSpan(T* const (&base)[N], int32_t objStride, int32_t count) {
  uintptr_t lo = addr(base[0]), hi = lo;
  for (int i = 1; i < N; ++i) {
    lo = addr(base[i]) < lo ? addr(base[i]) : lo;
    hi = addr(base[i]) > hi ? addr(base[i]) : hi;
  }
  return {lo, hi + uint32_t(off32(count - 1, objStride)) + uint32_t(sizeof(T))};
}
template <class T, int N>
Span spanOf(const ArrPCached<T, N>& a, int32_t, int32_t, int32_t count) {
  return tableSpan(a.base, a.objStride, count);
}
template <class T, int N>
Span spanOf(const OneCached<T, N>& a, int32_t, int32_t, int32_t) {
  return tableSpan(a.base, 0, 1);
}
template <class T, bool C>
Span spanOf(const One<StridedObj<T, C>>& a, int32_t rows, int32_t cols, int32_t) {
  return spanOf(a.v, rows, cols);
}
// LayoutL: the hull of the G objects of a group.
template <int G, class T, bool C>
Span groupSpan(const ArrL<T, C>& a, int32_t n, int32_t rows, int32_t cols) {
  Span s = spanOf(a.obj(n), rows, cols);
  for (int l = 1; l < G; ++l) s = hull(s, spanOf(a.obj(n + l), rows, cols));
  return s;
}

template <class A> struct IsTableArray : std::false_type {};
template <class T, bool C> struct IsTableArray<ArrL<T, C>> : std::true_type {};

// Whether a result lies exactly on its source, element for element, with the elements of each
// object distinct and the objects of the call (or of the group at n) apart from each other.
template <class A, class B>
bool onItself(const A&, const B&, int32_t, int32_t, int32_t) {
  return false;  // LayoutP tables and single operands: never taken for the same memory
}
template <class T, bool C>
inline bool elementsDistinct(const StridedObj<T, C>& o, int32_t rows, int32_t cols) {
  return rows == 1 || uint32_t(o.row) >= extent(o, 1, cols);
}
template <class T, class U, bool C>
bool onItself(const ArrS<T, C>& a, const ArrS<U, C>& b, int32_t rows, int32_t cols, int32_t) {
  return addr(a.base) == addr(b.base) && a.objStride == b.objStride && (rows == 1 || a.row == b.row) &&
         (C || a.elem == b.elem) &&
         elementsDistinct(a.obj(0), rows, cols) && uint32_t(a.objStride) >= extent(a.obj(0), rows, cols);
}
template <int G, class T, class U, bool C>
bool onItselfGroup(const ArrL<T, C>& a, const ArrL<U, C>& b, int32_t n, int32_t rows, int32_t cols) {
  if ((rows > 1 && a.row != b.row) || (!C && a.elem != b.elem) || !elementsDistinct(a.obj(n), rows, cols)) return false;
  for (int l = 0; l < G; ++l) {
    if (addr(a.obj(n + l).p) != addr(b.obj(n + l).p)) return false;
    for (int m = l + 1; m < G; ++m)
      if (meets(spanOf(a.obj(n + l), rows, cols), spanOf(a.obj(n + m), rows, cols))) return false;
  }
  return true;
}

// The bytes an operand covers for the group of G objects at n: the whole call for LayoutS and
// LayoutP arrays and single operands, whose geometry is the same for every group, and the
// group's own objects for LayoutL.
template <int G, class A>
Span footprint(const A& a, int32_t n, int32_t rows, int32_t cols, int32_t count) {
  if constexpr (IsTableArray<A>::value) return groupSpan<G>(a, n, rows, cols);
  else return spanOf(a, rows, cols, count);
}
template <int G, class A, class B>
bool onItselfAt(const A& a, const B& b, int32_t n, int32_t rows, int32_t cols) {
  if constexpr (IsTableArray<A>::value && IsTableArray<B>::value) return onItselfGroup<G>(a, b, n, rows, cols);
  else return onItself(a, b, rows, cols, 0);
}
// A result may run in lanes against a source it does not touch, or lies exactly on.
template <int G, class W, class R>
bool clear(const W& w, const R& r, int32_t n, int32_t rows, int32_t cols, int32_t count) {
  return !meets(footprint<G>(w, n, rows, cols, count), footprint<G>(r, n, rows, cols, count)) ||
         onItselfAt<G>(r, w, n, rows, cols);
}

// ---- Loads and stores of a group ---------------------------------------------------------

// Element (r, c) of the G objects of views v into the lanes of one register.
template <class T, class View>
inline simd::Vec<T> gather(const View* v, int32_t r, int32_t c) {
  if constexpr (kGroup<T> == 4) return simd::gather4(v[0].at(r, c), v[1].at(r, c), v[2].at(r, c), v[3].at(r, c));
  else return simd::gather2(v[0].at(r, c), v[1].at(r, c));
}

// The same with a row of its own for each object.
template <class T, class View>
inline simd::Vec<T> gatherRows(const View* v, const int32_t* r, int32_t c) {
  if constexpr (kGroup<T> == 4) return simd::gather4(v[0].at(r[0], c), v[1].at(r[1], c), v[2].at(r[2], c), v[3].at(r[3], c));
  else return simd::gather2(v[0].at(r[0], c), v[1].at(r[1], c));
}

// Element c[l] of row 0 of each object: vectors read through an index of their own.
template <class T, class View>
inline simd::Vec<T> gatherCols(const View* v, const int32_t* c) {
  if constexpr (kGroup<T> == 4) return simd::gather4(v[0].at(0, c[0]), v[1].at(0, c[1]), v[2].at(0, c[2]), v[3].at(0, c[3]));
  else return simd::gather2(v[0].at(0, c[0]), v[1].at(0, c[1]));
}

// Registers of a group spilled lane by lane: lanes[k][l] is lane l of register k.
template <class T, int K>
struct Spilled {
  alignas(16) T lanes[K][kGroup<T>];
  void put(int k, simd::Vec<T> v) { simd::storeLanes(lanes[k], v); }
  T at(int k, int l) const { return lanes[k][l]; }
};

// ---- The walk over an array --------------------------------------------------------------

// Objects [0, count) in ascending order: groups of G through `group(n)` while `lanes` holds,
// which returns false when it stored nothing (a lane failed, or the group may not run in
// lanes); such a group, and the objects behind the last whole group, take `one(n)` object by
// object. The first failing object ends the walk with its status.
template <int G, class Group, class One>
tarnStatus walk(int32_t count, bool lanes, Group&& group, One&& one) {
  int32_t n = 0;
  if (lanes)
    for (; n + G <= count; n += G)
      if (!group(n))
        for (int l = 0; l < G; ++l)
          if (const tarnStatus st = one(n + l)) return st;
  for (; n < count; ++n)
    if (const tarnStatus st = one(n)) return st;
  return tarnStatusOk;
}

}  // namespace tarn::solve
