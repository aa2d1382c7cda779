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
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "move.hpp"
#include "simd.hpp"

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
  if (last > INT32_MAX || f.ext < 0) return r;  // GCC reads "ext < ... >" as a template
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
// The smallest span holding all of them.
template <int N>
Span hull(const Spans<N>& a) {
  Span h = a.s[0];
  for (int i = 1; i < a.n; ++i) h = {std::min(h.lo, a.s[i].lo), std::max(h.hi, a.s[i].hi)};
  return h;
}
template <int N>
bool apart(const Spans<N>& a, const Spans<N>& b) {
  if (a.n < 0 || b.n < 0) return false;
  if (apart(hull(a), hull(b))) return true;  // two separate arrays: no pair to look at
  for (int i = 0; i < a.n; ++i)
    for (int k = 0; k < b.n; ++k)
      if (!apart(a.s[i], b.s[k])) return false;
  return true;
}

// One object's elements into registers and out again (a gapless object as one run): where
// nothing of the destination object lies in the source's elements still to be read, this is
// the element order's result.
template <int N, bool Gapless, class F, class O, class T>
void readObject(const F& f, O o, T* x) {
  if constexpr (Gapless) std::memcpy(x, o, N * sizeof(T));
  else
    for (int e = 0; e < N; ++e) move::moveElem(x + e, f.at(o, e));
}
template <int N, bool Gapless, class F, class O, class T>
void writeObject(const F& f, O o, const T* x) {
  if constexpr (Gapless) std::memcpy(o, x, N * sizeof(T));
  else
    for (int e = 0; e < N; ++e) move::moveElem(f.at(o, e), x + e);
}

// A packed stream of n elements into another it does not overlap, four registers at a time.
// The C library's memcpy starts string moves at a few kilobytes, which costs more on streams of
// that length than these moves do.
template <class T>
void moveRun(T* d, const T* s, int32_t n) {
  constexpr int G = simd::kLanes<T>;
  int32_t i = 0;
  for (; i + 4 * G <= n; i += 4 * G) {
    const auto a = simd::load<G, false>(s + i), b = simd::load<G, false>(s + i + G);
    const auto c = simd::load<G, false>(s + i + 2 * G), e = simd::load<G, false>(s + i + 3 * G);
    simd::store<G, false>(d + i, a);
    simd::store<G, false>(d + i + G, b);
    simd::store<G, false>(d + i + 2 * G, c);
    simd::store<G, false>(d + i + 3 * G, e);
  }
  for (; i < n; ++i) move::moveElem(d + i, s + i);
}

// Two LayoutP operands apart from each other: stream by stream, each packed pair of streams as
// one run.
template <class T, int N>
void streams(const FixedP<T, N>& d, const FixedP<const T, N>& s, int32_t count) {
  constexpr int32_t es = sizeof(T);
  for (int e = 0; e < N; ++e) {
    if (d.objStride == es && s.objStride == es) {
      moveRun(d.at(d.object(0), e), s.at(s.object(0), e), count);
      continue;
    }
    for (int32_t n = 0; n < count; ++n) move::moveElem(d.at(d.object(n), e), s.at(s.object(n), e));
  }
}

// No two of them share a byte: writes to them can come in any order.
template <int N>
bool selfApart(const Spans<N>& a) {
  // Streams stored one after the other, the usual case, show it in one pass.
  bool ascending = a.n > 0;
  for (int i = 1; i < a.n && ascending; ++i) ascending = a.s[i - 1].hi <= a.s[i].lo;
  if (ascending) return true;
  for (int i = 0; i < a.n; ++i)
    for (int k = i + 1; k < a.n; ++k)
      if (!apart(a.s[i], a.s[k])) return false;
  return a.n > 0;
}

// Element e of G = lanes objects in one register: a full block of G elements of G objects is
// transposed between the objects' order and the streams' order.
template <class V>
void transposeLanes(V* v) {
  if constexpr (std::is_same_v<V, __m128>) simd::transpose4(v[0], v[1], v[2], v[3]);
  else simd::transpose2(v[0], v[1]);
}

// LayoutP with packed streams (objStride the element size) against LayoutS or LayoutL: G
// objects at once, one register per element holding it for the G objects. Into objects
// (`toObjects`) the G objects' elements are read from the streams first, then the objects are
// written one after the other; into streams the G objects are read first, then the streams
// written. `ok(n)` says whether objects n..n+G-1 can take that order; others move element by
// element. Returns false where the streams are not packed.
template <int N, bool G1, bool ToObjects, class FP, class FX, class Ok, class Ordered>
bool lanes(const FP& p, const FX& x, int32_t count, const Ok& ok, const Ordered& ordered) {
  using T = std::remove_const_t<std::remove_pointer_t<decltype(p.at(p.object(0), 0))>>;
  constexpr int G = simd::kLanes<T>, B = N / G;
  if (p.objStride != int32_t(sizeof(T))) return false;
  int32_t n = 0;
  for (; n + G <= count; n += G) {
    if (!ok(n)) {
      for (int k = 0; k < G; ++k) ordered(n + k);
      continue;
    }
    const auto op = p.object(n);
    T obj[G][N];
    simd::Vec<T> v[N];
    if constexpr (ToObjects) {
      for (int e = 0; e < N; ++e) v[e] = simd::load<G, false>(p.at(op, e));
      for (int b = 0; b < B; ++b) transposeLanes(v + b * G);
      for (int k = 0; k < G; ++k) {
        for (int b = 0; b < B; ++b) simd::store<G, false>(obj[k] + b * G, v[b * G + k]);
        for (int e = B * G; e < N; ++e) move::moveElem(obj[k] + e, p.at(p.object(n + k), e));
        writeObject<N, G1>(x, x.object(n + k), obj[k]);
      }
    } else {
      for (int k = 0; k < G; ++k) readObject<N, G1>(x, x.object(n + k), obj[k]);
      for (int b = 0; b < B; ++b) {
        for (int k = 0; k < G; ++k) v[b * G + k] = simd::load<G, false>(obj[k] + b * G);
        transposeLanes(v + b * G);
        for (int k = 0; k < G; ++k) simd::store<G, false>(p.at(op, b * G + k), v[b * G + k]);
      }
      for (int e = B * G; e < N; ++e)
        for (int k = 0; k < G; ++k) move::moveElem(p.at(p.object(n + k), e), obj[k] + e);
    }
  }
  for (; n < count; ++n) ordered(n);
  return true;
}

template <int H, int W, bool GD, bool GS, class FD, class FS>
void fixedLoop(const FD& d, const FS& s, int32_t count) {
  constexpr int N = H * W;
  using T = std::remove_const_t<std::remove_pointer_t<decltype(s.at(s.object(0), 0))>>;
  // Element by element; a gapless side's elements follow each other.
  auto ordered = [&](auto od, auto os) {
    for (int e = 0; e < N; ++e) {
      auto* to = [&] { if constexpr (GD) return od + e; else return d.at(od, e); }();
      auto* from = [&] { if constexpr (GS) return os + e; else return s.at(os, e); }();
      move::moveElem(to, from);
    }
  };
  auto block = [&](auto od, auto os) {
    T x[N];
    readObject<N, GS>(s, os, x);
    writeObject<N, GD>(d, od, x);
  };
  auto orderedAt = [&](int32_t n) { ordered(d.object(n), s.object(n)); };
  // LayoutP against objects: groups of objects where the objects are apart from every stream
  // (and, into streams, no two streams share a byte, so their writes can come in any order).
  constexpr bool kFromP = requires { s.entry; } && !requires { d.entry; };
  constexpr bool kToP = requires { d.entry; } && !requires { s.entry; };
  if constexpr (kFromP || kToP) {
    const auto& p = [&]() -> const auto& { if constexpr (kFromP) return s; else return d; }();
    const auto& x = [&]() -> const auto& { if constexpr (kFromP) return d; else return s; }();
    const auto ps = spansOf(p, count);
    if (ps.n > 0 && (kFromP || selfApart(ps)) && x.ext >= 0) {
      const Span h = hull(ps);
      constexpr int G = simd::kLanes<T>;
      bool done;
      if (const auto xs = spansOf(x, count); xs.n > 0) {
        const bool all = apart(xs.s[0], h);
        done = lanes<N, kFromP ? GD : GS, kFromP>(p, x, count, [&](int32_t) { return all; }, orderedAt);
      } else {
        auto ok = [&](int32_t n) {
          for (int k = 0; k < G; ++k)
            if (!apart(spanAt(x.object(n + k), x.ext), h)) return false;
          return true;
        };
        done = lanes<N, kFromP ? GD : GS, kFromP>(p, x, count, ok, orderedAt);
      }
      if (done) return;
    }
  }
  // Operands apart from each other: no order can be seen, objects move whole.
  if (apart(spansOf(d, count), spansOf(s, count))) {
    // Stream by stream where no two destination streams share a byte (their writes could
    // otherwise land in another order).
    if constexpr (requires { streams(d, s, count); })
      if (selfApart(spansOf(d, count))) return streams(d, s, count);
    for (int32_t n = 0; n < count; ++n) block(d.object(n), s.object(n));
    return;
  }
  // A LayoutL operand against a strided one: objects move whole where the two objects are apart
  // (objects follow each other, so only an overlap inside one pair of objects could be seen).
  // From scattered 3x3 float objects into a strided array the elements' own moves are quicker:
  // a whole object's 16-byte moves straddle cache lines on both sides.
  constexpr bool kElementwise = requires { s.tbl; d.objStride; } && N * sizeof(T) % 16 != 0;
  if constexpr (requires { d.ext; s.ext; } && !kElementwise)
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

// The fixed-size loop with the gapless objects of either side known at compile time.
template <int H, int W, class D, class S>
void fixed(const D& dst, const S& src, int32_t count) {
  const auto d = fixedOf<H, W>(dst);
  const auto s = fixedOf<H, W>(src);
  auto pick = [&]<bool GD>() {
    if constexpr (requires { s.gapless; })
      if (s.gapless) return fixedLoop<H, W, GD, true>(d, s, count);
    fixedLoop<H, W, GD, false>(d, s, count);
  };
  if constexpr (requires { d.gapless; })
    if (d.gapless) return pick.template operator()<true>();
  pick.template operator()<false>();
}

}  // namespace

template <Pat P, class T, Layout LS, Layout LD>
tarnStatus run(const Plan&, const Call& c) {
  const auto [h, w] = move::extentOf<P>(c);
  const auto dst = move::arrayOf<T, LD>(c.op[1], w);
  const auto src = move::arrayOf<const T, LS>(c.op[0], w);
  if (packedRun<T>(dst, src, c.count, h, w)) return tarnStatusOk;
  if (h == 3 && w == 3) fixed<3, 3>(dst, src, c.count);
  else if (h == 4 && w == 4) fixed<4, 4>(dst, src, c.count);
  else if (h == 1 && w == 3) fixed<1, 3>(dst, src, c.count);
  else if (h == 1 && w == 4) fixed<1, 4>(dst, src, c.count);
  else move::elementLoop(dst, src, c.count, h, w);
  return tarnStatusOk;
}

}  // namespace tarn::copy

#define TARN_IMPL_copy
#include "bindings.hpp"
