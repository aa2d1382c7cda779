// Operand accessors: where element (r, c) of object n lies, in each layout.
//
// An array accessor hands out one object view per object (`obj(n)`) and a thread's slice
// (`from(first)`); a view answers `at(r, c)` with the element's address. Offsets are formed as
// 32-bit byte products, as the operand model defines them. Vectors are 1-row matrices and
// constants are views whose every element is the one scalar.
#pragma once

#include <cstddef>
#include <cstring>
#include <cstdint>
#include <type_traits>

#include "call.hpp"

namespace tarn {

// a * b bytes, formed in 32 bits and sign-extended.
inline std::ptrdiff_t off32(int32_t a, int32_t b) { return int32_t(uint32_t(a) * uint32_t(b)); }

template <class T>
inline T* byteAdd(T* p, std::ptrdiff_t bytes) {
  using B = std::conditional_t<std::is_const_v<T>, const std::byte, std::byte>;
  return reinterpret_cast<T*>(reinterpret_cast<B*>(p) + bytes);
}

// An element read or written at any byte address a member lets through (a shift that is not a
// multiple of the element size in the members that take any shift, a caller's pointer off its
// element alignment): through memcpy, which compiles to the same single move.
template <class T>
inline std::remove_const_t<T> loadElem(T* p) {
  std::remove_const_t<T> v;
  std::memcpy(&v, p, sizeof v);
  return v;
}
template <class T>
inline void storeElem(T* p, T v) {
  std::memcpy(p, &v, sizeof v);
}

// ---- Object views ----------------------------------------------------------------------

// A strided object (LayoutS, and each object of LayoutL). With Contig the element stride is
// sizeof(T) as a constant, so a row is one run of elements.
template <class T, bool Contig>
struct StridedObj {
  using Elem = T;
  T* p;
  int32_t row, elem;
  T* at(int32_t r, int32_t c) const { return byteAdd(p, off32(r, row) + off32(c, Contig ? int32_t(sizeof(T)) : elem)); }
  T* rowPtr(int32_t r) const { return byteAdd(p, off32(r, row)); }
};

// An object of LayoutP: one table entry per stored element, plus the object's byte offset.
// `sw` is the stored width, so a transposed view reads entry c*sw + r with no special case.
template <class T>
struct TableObj {
  using Elem = T;
  T* const* tbl;
  int32_t off, sw;
  T* at(int32_t r, int32_t c) const { return byteAdd(tbl[r * sw + c], off); }
};

// The same with the table entries (roiShift included) copied once per call, for the fixed
// sizes, where the object loop then adds only the running object offset.
template <class T, int N>
struct CachedObj {
  using Elem = T;
  T* const* base;
  int32_t off, sw;
  T* at(int32_t r, int32_t c) const { return byteAdd(base[r * sw + c], off); }
};

// A scalar seen as an object whose every element is that scalar.
template <class T>
struct ScalarObj {
  using Elem = T;
  T* p;
  T* at(int32_t, int32_t) const { return p; }
};
template <class T>
struct ValueObj {
  using Elem = const T;
  T v;
  const T* at(int32_t, int32_t) const { return &v; }
};

template <class V>
struct TransObj {
  using Elem = typename V::Elem;
  V v;
  auto at(int32_t r, int32_t c) const { return v.at(c, r); }
};

// ---- Arrays ------------------------------------------------------------------------------

template <class T, bool Contig>
struct ArrS {  // base + n*obj + r*row + c*elem
  T* base;
  int32_t objStride, row, elem;
  StridedObj<T, Contig> obj(int32_t n) const { return {byteAdd(base, off32(n, objStride)), row, elem}; }
  ArrS from(int32_t first) const { return {byteAdd(base, off32(first, objStride)), objStride, row, elem}; }
};

template <class T, bool Contig>
struct ArrL {  // table[n] + roi + r*row + c*elem
  T* const* tbl;
  int32_t roi, row, elem;
  StridedObj<T, Contig> obj(int32_t n) const { return {byteAdd(tbl[n], roi), row, elem}; }
  ArrL from(int32_t first) const { return {tbl + first, roi, row, elem}; }
};

template <class T>
struct ArrP {  // table[r*sw + c] + roi + n*obj
  T* const* tbl;
  int32_t roi, objStride, sw;
  TableObj<T> obj(int32_t n) const { return {tbl, roi + int32_t(off32(n, objStride)), sw}; }
  ArrP from(int32_t first) const { return {tbl, roi + int32_t(off32(first, objStride)), objStride, sw}; }
};

template <class T, int N>
struct ArrPCached {
  T* base[N];
  int32_t objStride, sw;
  CachedObj<T, N> obj(int32_t n) const { return {base, int32_t(off32(n, objStride)), sw}; }
};

template <class T>
struct ConstArr {  // one scalar per object: val + n*valObjStride (LayoutS and LayoutP)
  T* p;
  int32_t objStride;
  ScalarObj<T> obj(int32_t n) const { return {byteAdd(p, off32(n, objStride))}; }
  ConstArr from(int32_t first) const { return {byteAdd(p, off32(first, objStride)), objStride}; }
};

template <class T>
struct ConstTable {  // LayoutL: table[n] + valRoiShift
  T* const* tbl;
  int32_t roi;
  ScalarObj<T> obj(int32_t n) const { return {byteAdd(tbl[n], roi)}; }
  ConstTable from(int32_t first) const { return {tbl + first, roi}; }
};

// The single operand of an array call: every object sees the same one, and slicing leaves it.
template <class V>
struct One {
  V v;
  V obj(int32_t) const { return v; }
  One from(int32_t) const { return *this; }
};

template <class A>
struct Trans {
  A a;
  TransObj<decltype(a.obj(0))> obj(int32_t n) const { return {a.obj(n)}; }
  Trans from(int32_t first) const { return {a.from(first)}; }
};

// ---- Traits for the bodies ----------------------------------------------------------------

template <class A> struct IsOne : std::false_type {};
template <class V> struct IsOne<One<V>> : std::true_type {};

// Operands whose rows are runs of elements in memory (contiguous strided, not transposed).
template <class A> struct RowAccess : std::false_type {};
template <class T> struct RowAccess<ArrS<T, true>> : std::true_type {};
template <class T> struct RowAccess<ArrL<T, true>> : std::true_type {};
template <class T> struct RowAccess<One<StridedObj<T, true>>> : std::true_type {};

// Operands that are one scalar per object.
template <class A> struct ScalarAccess : std::false_type {};
template <class T> struct ScalarAccess<ConstArr<T>> : std::true_type {};
template <class T> struct ScalarAccess<ConstTable<T>> : std::true_type {};
template <class T> struct ScalarAccess<One<ValueObj<T>>> : std::true_type {};

// For the fixed sizes, LayoutP tables are read once per call.
template <int N, class A>
auto cached(const A& a) {
  return a;
}
template <int N, class T>
auto cached(const ArrP<T>& a) {
  ArrPCached<T, N> c{};
  for (int i = 0; i < N; ++i) c.base[i] = byteAdd(a.tbl[i], a.roi);
  c.objStride = a.objStride;
  c.sw = a.sw;
  return c;
}
template <class T, int N>
struct OneCached {
  T* base[N];
  int32_t sw;
  CachedObj<T, N> obj(int32_t) const { return {base, 0, sw}; }
};
template <int N, class T>
auto cached(const One<TableObj<T>>& a) {
  OneCached<T, N> c{};
  for (int i = 0; i < N; ++i) c.base[i] = byteAdd(a.v.tbl[i], a.v.off);
  c.sw = a.v.sw;
  return c;
}
template <int N, class A>
auto cached(const Trans<A>& t) {
  auto inner = cached<N>(t.a);
  return Trans<decltype(inner)>{inner};
}

// The single operand of a LayoutP array call, read once per call into the accessor, as the
// fixed sizes do: every object then sees these values, whatever the call writes meanwhile.
template <class T>
struct ValuesObj {
  using Elem = const T;
  const T* v;
  int32_t sw;
  const T* at(int32_t r, int32_t c) const { return v + r * sw + c; }
};
template <class T, int N>
struct OneValues {
  T v[N];
  int32_t sw;
  ValuesObj<T> obj(int32_t) const { return {v, sw}; }
};
template <int N, class A>
auto frozen(const A& a) {
  return a;
}
template <int N, class U>
auto frozen(const OneCached<U, N>& a) {
  using T = std::remove_const_t<U>;
  OneValues<T, N> o;
  for (int i = 0; i < N; ++i) o.v[i] = loadElem(a.base[i]);
  o.sw = a.sw;
  return o;
}
template <int N, class A>
auto frozen(const Trans<A>& t) {
  auto inner = frozen<N>(t.a);
  return Trans<decltype(inner)>{inner};
}

// ---- Accessors from the call ----------------------------------------------------------------

// The accessor of a block of operand kind K (kind letter and array flag of the pattern) in layout
// L. `sw` is the stored width, which indexes LayoutP tables; `val` is the scalar of a constant
// passed by value. A source is read through `const T`, a destination (Write) through T.
template <class T, Layout L, bool Contig, Operand K, bool Write = false>
auto operandOf(const Blk& blk, int32_t sw, double val = 0) {
  using E = std::conditional_t<Write, T, const T>;
  if constexpr (K.kind == 'c') {
    if constexpr (!K.array) return One<ValueObj<T>>{{T(val)}};
    else if constexpr (L == Layout::L) return ConstTable<const T>{static_cast<const T* const*>(blk.ptr), blk.roi};
    else return ConstArr<const T>{static_cast<const T*>(blk.ptr), blk.obj};
  } else {
    auto plain = [&] {
      if constexpr (L == Layout::P) {
        auto tbl = static_cast<E* const*>(const_cast<void*>(blk.ptr));
        if constexpr (K.array) return ArrP<E>{tbl, blk.roi, blk.obj, sw};
        else return One<TableObj<E>>{{tbl, blk.roi, sw}};
      } else if constexpr (!K.array) {
        return One<StridedObj<E, Contig>>{{static_cast<E*>(const_cast<void*>(blk.ptr)), blk.row, blk.elem}};
      } else if constexpr (L == Layout::S) {
        return ArrS<E, Contig>{static_cast<E*>(const_cast<void*>(blk.ptr)), blk.obj, blk.row, blk.elem};
      } else {
        return ArrL<E, Contig>{static_cast<E* const*>(const_cast<void*>(blk.ptr)), blk.roi, blk.row, blk.elem};
      }
    };
    if constexpr (K.kind == 't') return Trans<decltype(plain())>{plain()};
    else return plain();
  }
}

// A plain pointer argument (scalar results, eigenvalues, pivots, a work buffer) as E*.
template <class E>
E* plainOf(const Blk& blk) {
  return static_cast<E*>(const_cast<void*>(blk.ptr));
}

}  // namespace tarn
