// Copy: every object of an array from one layout to another, element by element.
//
// Objects in ascending order, rows, then columns: each element is read and then written before
// the next one is read, so when the operands overlap a later element reads what an earlier one
// wrote. Every path keeps that order; they differ only in how an element's address is found.
//   elementLoop  any size: the accessors place each element, columns two at a time.
//   fixedLoop    3x3 and 4x4 matrices, vectors of 3 and 4: the element offsets inside an object
//                (or a LayoutP operand's table entries) are taken once per call, so an object
//                costs its object address and one load and one store per element.
//   packedRun    LayoutS to LayoutS with both operands one gapless run of elements that do not
//                overlap: the order cannot be seen, and the run moves as one block.
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "move.hpp"

namespace tarn::copy {
namespace {

// Addresses of the elements of one object, in the order they move (row by row), from a
// per-call description of the operand: `object(n)` once per object, then `at(o, e)`. LayoutS and
// LayoutL objects also know their span of bytes (`ext` past the object's address; -1 when an
// offset would leave the 32-bit range offsets are formed in) and whether they are one gapless
// run of elements.
template <class E, int N>
struct FixedS {  // LayoutS: base + n*objStride + offset of the element
  E* base;
  int32_t objStride;
  std::ptrdiff_t off[N];
  int64_t ext;
  bool gapless;
  E* object(int32_t n) const { return byteAdd(base, off32(n, objStride)); }
  E* at(E* o, int e) const { return byteAdd(o, off[e]); }
};
template <class E, int N>
struct FixedL {  // LayoutL: table[n] + roiShift + offset of the element
  E* const* tbl;
  int32_t roi;
  std::ptrdiff_t off[N];
  int64_t ext;
  bool gapless;
  E* object(int32_t n) const { return byteAdd(tbl[n], roi); }
  E* at(E* o, int e) const { return byteAdd(o, off[e]); }
};
template <class E, int N>
struct FixedP {  // LayoutP: table[e] + (roiShift + n*objStride), the entries read once
  E* entry[N];
  int32_t roi, objStride;
  int32_t object(int32_t n) const { return int32_t(roi + int32_t(off32(n, objStride))); }
  E* at(int32_t o, int e) const { return byteAdd(entry[e], o); }
};

template <int H, int W, class E, class F>
void describe(F& f, int32_t row, int32_t elem) {
  for (int e = 0; e < H * W; ++e) f.off[e] = off32(e / W, row) + off32(e % W, elem);
  const int64_t ext = int64_t(H - 1) * row + int64_t(W - 1) * elem + int64_t(sizeof(E));
  f.ext = ext > INT32_MAX ? -1 : ext;
  f.gapless = elem == int32_t(sizeof(E)) && (H == 1 || row == W * int32_t(sizeof(E)));
}
template <int H, int W, class E, bool C>
FixedS<E, H * W> fixedOf(const ArrS<E, C>& a) {
  FixedS<E, H * W> f{a.base, a.objStride, {}, 0, false};
  describe<H, W, E>(f, a.row, a.elem);
  return f;
}
template <int H, int W, class E, bool C>
FixedL<E, H * W> fixedOf(const ArrL<E, C>& a) {
  FixedL<E, H * W> f{a.tbl, a.roi, {}, 0, false};
  describe<H, W, E>(f, a.row, a.elem);
  return f;
}
template <int H, int W, class E>
FixedP<E, H * W> fixedOf(const ArrP<E>& a) {
  FixedP<E, H * W> f{{}, a.roi, a.objStride};
  for (int e = 0; e < H * W; ++e) f.entry[e] = a.tbl[(e / W) * a.sw + e % W];
  return f;
}

// Bytes [lo, hi).
struct Span {
  uintptr_t lo, hi;
};
inline bool apart(Span a, Span b) { return a.hi <= b.lo || b.hi <= a.lo; }
inline Span spanAt(const void* p, int64_t ext) {
  const auto lo = reinterpret_cast<uintptr_t>(p);
  return {lo, lo + uintptr_t(ext)};
}

// The bytes an operand covers over the whole call: one span for LayoutS, one per element stream
// for LayoutP; unknown (n = -1) for LayoutL, whose objects lie anywhere, and where an offset
// would leave the 32-bit range.
template <int N>
struct Spans {
  Span s[N];
  int n = -1;
};
template <class E, int N>
Spans<N> spansOf(const FixedS<E, N>& f, int32_t count) {
  Spans<N> r;
  const int64_t last = int64_t(count - 1) * f.objStride;
  if (f.ext < 0 || last > INT32_MAX) return r;
  r.s[0] = spanAt(f.base, last + f.ext);
  r.n = 1;
  return r;
}
template <class E, int N>
Spans<N> spansOf(const FixedL<E, N>&, int32_t) {
  return {};
}
template <class E, int N>
Spans<N> spansOf(const FixedP<E, N>& f, int32_t count) {
  Spans<N> r;
  const int64_t last = int64_t(f.roi) + int64_t(count - 1) * f.objStride;
  if (last > INT32_MAX) return r;
  for (int e = 0; e < N; ++e) r.s[e] = spanAt(byteAdd(f.entry[e], f.roi), last - f.roi + int64_t(sizeof(E)));
  r.n = N;
  return r;
}
template <int N>
bool apart(const Spans<N>& a, const Spans<N>& b) {
  if (a.n < 0 || b.n < 0) return false;
  for (int i = 0; i < a.n; ++i)
    for (int k = 0; k < b.n; ++k)
      if (!apart(a.s[i], b.s[k])) return false;
  return true;
}

// One object's elements into registers and out again: where nothing of the destination object
// lies in the source's elements still to be read, this is the element order's result.
template <int N, class F, class O, class T>
void readObject(const F& f, O o, T* x) {
  if constexpr (requires { f.gapless; })
    if (f.gapless) return void(std::memcpy(x, o, N * sizeof(T)));
  for (int e = 0; e < N; ++e) move::moveElem(x + e, f.at(o, e));
}
template <int N, class F, class O, class T>
void writeObject(const F& f, O o, const T* x) {
  if constexpr (requires { f.gapless; })
    if (f.gapless) return void(std::memcpy(o, x, N * sizeof(T)));
  for (int e = 0; e < N; ++e) move::moveElem(f.at(o, e), x + e);
}

template <int H, int W, class D, class S>
void fixedLoop(const D& dst, const S& src, int32_t count) {
  constexpr int N = H * W;
  using T = std::remove_const_t<std::remove_pointer_t<decltype(dst.obj(0).at(0, 0))>>;
  const auto d = fixedOf<H, W>(dst);
  const auto s = fixedOf<H, W>(src);
  auto ordered = [&](auto od, auto os) {
    for (int e = 0; e < N; ++e) move::moveElem(d.at(od, e), s.at(os, e));
  };
  auto block = [&](auto od, auto os) {
    T x[N];
    readObject<N>(s, os, x);
    writeObject<N>(d, od, x);
  };
  // Operands apart from each other: no order can be seen, objects move whole.
  if (apart(spansOf(d, count), spansOf(s, count))) {
    for (int32_t n = 0; n < count; ++n) block(d.object(n), s.object(n));
    return;
  }
  // A LayoutL operand against a strided one: objects move whole where the two objects are apart
  // (objects follow each other, so only an overlap inside one pair of objects could be seen).
  if constexpr (requires { d.ext; s.ext; })
    if (d.ext >= 0 && s.ext >= 0) {
      for (int32_t n = 0; n < count; ++n) {
        auto* od = d.object(n);
        auto* os = s.object(n);
        if (apart(spanAt(od, d.ext), spanAt(os, s.ext))) block(od, os);
        else ordered(od, os);
      }
      return;
    }
  for (int32_t n = 0; n < count; ++n) ordered(d.object(n), s.object(n));
}

// Both operands one gapless run of count*h*w elements, apart from each other.
template <class T, class D, class S>
bool packedRun(const D& dst, const S& src, int32_t count, int32_t h, int32_t w) {
  if constexpr (std::is_same_v<D, ArrS<T, false>> && std::is_same_v<S, ArrS<const T, false>>) {
    constexpr int32_t es = sizeof(T);
    auto gapless = [&](const auto& a) {
      return a.elem == es && (h == 1 || a.row == w * es) && (count == 1 || a.objStride == h * w * es);
    };
    if (!gapless(dst) || !gapless(src)) return false;
    // Object offsets are 32-bit products: a run past 2 GiB is left to the element loop.
    const uint64_t bytes = uint64_t(count) * uint64_t(h) * uint64_t(w) * es;
    if (bytes > uint64_t(INT32_MAX)) return false;
    const auto x = reinterpret_cast<uintptr_t>(dst.base), y = reinterpret_cast<uintptr_t>(src.base);
    if (x < y + bytes && y < x + bytes) return false;
    std::memcpy(dst.base, src.base, bytes);
    return true;
  } else {
    return false;
  }
}

}  // namespace

template <Pat P, class T, Layout LS, Layout LD>
tarnStatus run(const Plan&, const Call& c) {
  const auto [h, w] = move::extentOf<P>(c);
  const auto dst = move::arrayOf<T, LD>(c.op[1], w);
  const auto src = move::arrayOf<const T, LS>(c.op[0], w);
  if (packedRun<T>(dst, src, c.count, h, w)) return tarnStatusOk;
  if (h == 3 && w == 3) fixedLoop<3, 3>(dst, src, c.count);
  else if (h == 4 && w == 4) fixedLoop<4, 4>(dst, src, c.count);
  else if (h == 1 && w == 3) fixedLoop<1, 3>(dst, src, c.count);
  else if (h == 1 && w == 4) fixedLoop<1, 4>(dst, src, c.count);
  else move::elementLoop(dst, src, c.count, h, w);
  return tarnStatusOk;
}

}  // namespace tarn::copy

#define TARN_IMPL_copy
#include "bindings.hpp"
