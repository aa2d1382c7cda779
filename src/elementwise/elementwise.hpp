// Bodies shared by the element-wise families: one binary operation, two operands, one result.
//
// An operation is a functor with a scalar and a register form. The bodies are written once over
// the operand accessors and compile-time sizes; the entry picks the body once per call, outside
// the object loop:
//   plainBody  objects, rows, columns by two with a tail element; every element read right
//              before its result is stored, so overlapping operands behave as if the elements
//              were processed in ascending order. With sizes given it is the unrolled body of
//              the general and LayoutP paths, with sizes 0 it is the general loop.
//   rowBody    contiguous rows of 3 to 6 elements in registers, chunk by chunk; a single operand
//              is loaded once before the object loop.
//   rowLoop    long contiguous rows: a scalar head up to a 16-byte boundary of dst, 8 elements
//              per step, a scalar tail.
#pragma once

#include <array>
#include <cstdint>
#include <numeric>
#include <type_traits>

#include "call.hpp"
#include "dispatch.hpp"
#include "operand.hpp"
#include "simd.hpp"

namespace tarn::elementwise {

// Besides the arithmetic an operation says which bodies its family has where families differ:
//   kArrayRowLoop  two arrays of long contiguous rows (mama, vava at other sizes) take the
//                  8-element row loop; without it they take the forward loop by two.
//   kNoPairLen4    the contiguous LayoutS 32f worker of two vector arrays has no len-4 body
//                  (len 4 falls to the forward loop by two).
// Neither changes a result: every element is computed by the same operations on every path.
//
// The single operand of an array call, loaded once before the object loop, may enter its
// product with a scalar once as well: an operation with `pre<I>` says what operand I contributes
// to the sum, and its `vecPre<PA, PB>` takes the operands flagged as already through it. Every
// product is the same rounding whether it is formed once or per object.
struct AddOp {
  static constexpr bool kArrayRowLoop = true, kNoPairLen4 = false;
  template <class T> T operator()(T a, T b) const { return a + b; }
  template <class V> V vec(V a, V b) const { return simd::add(a, b); }
};
struct SubOp {
  static constexpr bool kArrayRowLoop = false, kNoPairLen4 = false;
  template <class T> T operator()(T a, T b) const { return a - b; }
  template <class V> V vec(V a, V b) const { return simd::sub(a, b); }
};

// a*s + b and a*s1 + b*s2 with the scalars of the call captured: every product and the sum are
// separate operations, each rounded in the element type (the build forbids contraction, and the
// register forms use a multiply and an add, never a fused instruction).
template <class T>
struct SaxpyOp {
  static constexpr bool kArrayRowLoop = false, kNoPairLen4 = true;
  T s;
  T operator()(T a, T b) const { return a * s + b; }
  template <class V> V vec(V a, V b) const { return simd::add(simd::mul(a, simd::broadcast(s)), b); }
  template <int I, class V> V pre(V x) const { return I == 0 ? simd::mul(x, simd::broadcast(s)) : x; }
  template <bool PA, bool PB, class V> V vecPre(V a, V b) const {
    return simd::add(PA ? a : simd::mul(a, simd::broadcast(s)), b);
  }
};
template <class T>
struct LCombOp {
  static constexpr bool kArrayRowLoop = false, kNoPairLen4 = true;
  T s1, s2;
  T operator()(T a, T b) const { return a * s1 + b * s2; }
  template <class V> V vec(V a, V b) const {
    return simd::add(simd::mul(a, simd::broadcast(s1)), simd::mul(b, simd::broadcast(s2)));
  }
  template <int I, class V> V pre(V x) const { return simd::mul(x, simd::broadcast(I == 0 ? s1 : s2)); }
  template <bool PA, bool PB, class V> V vecPre(V a, V b) const {
    return simd::add(PA ? a : simd::mul(a, simd::broadcast(s1)), PB ? b : simd::mul(b, simd::broadcast(s2)));
  }
};

template <int I, class Op, class V>
V preOf(const Op& op, V x) {
  if constexpr (requires { op.template pre<I>(x); }) return op.template pre<I>(x);
  else return x;
}
template <bool PA, bool PB, class Op, class V>
V vecOf(const Op& op, V a, V b) {
  if constexpr (requires { op.template vecPre<PA, PB>(a, b); }) return op.template vecPre<PA, PB>(a, b);
  else return op.vec(a, b);
}

// ---- plainBody -------------------------------------------------------------------------

template <int H, int W, class Op, class D, class A, class B>
void plainBody(const Op& op, const D& d, const A& a, const B& b, int32_t count, int32_t height, int32_t width) {
  const int32_t h = H ? H : height, w = W ? W : width;
  for (int32_t n = 0; n < count; ++n) {
    const auto dv = d.obj(n);
    const auto av = a.obj(n);
    const auto bv = b.obj(n);
    for (int32_t r = 0; r < h; ++r) {
      int32_t c = 0;
      for (; c + 1 < w; c += 2) {
        storeElem(dv.at(r, c), op(loadElem(av.at(r, c)), loadElem(bv.at(r, c))));
        storeElem(dv.at(r, c + 1), op(loadElem(av.at(r, c + 1)), loadElem(bv.at(r, c + 1))));
      }
      if (c < w) storeElem(dv.at(r, c), op(loadElem(av.at(r, c)), loadElem(bv.at(r, c))));
    }
  }
}

// ---- rowBody -----------------------------------------------------------------------------

enum class Align { No, Yes, PerObject };

// Rows of one source operand (operand I of the operation) as registers: loaded per object,
// preloaded once for the single operand of an array call, or a broadcast scalar.
template <class T, int H, int W, class A>
class RowReader {
  static constexpr bool kScalar = ScalarAccess<A>::value;
  static constexpr bool kShared = IsOne<A>::value;
  using R = simd::Row<T, W>;
  A a_;
  R pre_[kShared && !kScalar ? H : 1];

 public:
  template <int I, class Op>
  RowReader(const A& a, const Op& op, std::integral_constant<int, I>) : a_(a) {
    if constexpr (kShared && kScalar) pre_[0] = simd::broadcastRow<W>(T(loadElem(a_.obj(0).at(0, 0))));
    else if constexpr (kShared)
      for (int r = 0; r < H; ++r) pre_[r] = simd::loadRow<W, false>(a_.obj(0).rowPtr(r));
    if constexpr (kShared)
      for (R& x : pre_)
        for (auto& v : x.c) v = preOf<I>(op, v);
  }
  auto object(int32_t n) const { return a_.obj(kShared ? 0 : n); }
  template <class O>
  bool aligned(const O& o) const {
    if constexpr (kShared || kScalar) return true;
    else return simd::aligned16(o.p) && (o.row & 15) == 0;
  }
  template <bool Al, class O>
  R row(const O& o, int r) const {
    if constexpr (kShared && kScalar) return pre_[0];
    else if constexpr (kShared) return pre_[r];
    else if constexpr (kScalar) return simd::broadcastRow<W>(T(loadElem(o.at(0, 0))));
    else return simd::loadRow<W, Al>(o.rowPtr(r));
  }
};

template <int H, int W, Align Al, class T, class Op, class D, class A, class B>
void rowBody(const Op& op, const D& d, const A& a, const B& b, int32_t count) {
  const RowReader<T, H, W, A> ra(a, op, std::integral_constant<int, 0>{});
  const RowReader<T, H, W, B> rb(b, op, std::integral_constant<int, 1>{});
  constexpr bool kPa = IsOne<A>::value, kPb = IsOne<B>::value;
  auto one = [&]<bool Aligned>(const auto& dv, const auto& av, const auto& bv) {
    simd::Row<T, W> x[H];
    for (int r = 0; r < H; ++r) {
      const auto ya = ra.template row<Aligned>(av, r);
      const auto yb = rb.template row<Aligned>(bv, r);
      for (int k = 0; k < simd::chunks<T, W>(); ++k) x[r].c[k] = vecOf<kPa, kPb>(op, ya.c[k], yb.c[k]);
    }
    for (int r = 0; r < H; ++r) simd::storeRow<W, Aligned>(dv.rowPtr(r), x[r]);
  };
  for (int32_t n = 0; n < count; ++n) {
    const auto dv = d.obj(n);
    const auto av = ra.object(n);
    const auto bv = rb.object(n);
    if constexpr (Al == Align::PerObject) {
      // Tables place each object anywhere, so the aligned body is chosen object by object.
      if (simd::aligned16(dv.p) && (dv.row & 15) == 0 && ra.aligned(av) && rb.aligned(bv))
        one.template operator()<true>(dv, av, bv);
      else
        one.template operator()<false>(dv, av, bv);
    } else {
      one.template operator()<Al == Align::Yes>(dv, av, bv);
    }
  }
}

// ---- rowLoop -----------------------------------------------------------------------------

template <class T>
struct Broadcast {
  T v;
};
template <class T> inline T elemAt(const T* p, int32_t i) { return loadElem(p + i); }
template <class T> inline T elemAt(const Broadcast<T>& s, int32_t) { return s.v; }
template <bool Al, class T> inline simd::Vec<T> vecAt(const T* p, int32_t i) { return simd::load<simd::kLanes<T>, Al>(p + i); }
template <bool Al, class T> inline simd::Vec<T> vecAt(const Broadcast<T>& s, int32_t) { return simd::broadcast(s.v); }
template <class T> inline bool alignedAt(const T* p, int32_t i) { return simd::aligned16(p + i); }
template <class T> inline bool alignedAt(const Broadcast<T>&, int32_t) { return true; }

template <class T, class Op, class SA, class SB>
void rowLoop(const Op& op, T* d, const SA a, const SB b, const int32_t n) {
  constexpr int kL = simd::kLanes<T>, kStep = 8;
  int32_t i = 0;
  for (; i < n && !simd::aligned16(d + i); ++i) storeElem(d + i, op(elemAt(a, i), elemAt(b, i)));
  auto steps = [&]<bool Al>() {
    for (; i + kStep <= n; i += kStep)
      simd::unroll<kStep / kL>([&]<int K>() {
        simd::store<kL, true>(d + i + K * kL, op.vec(vecAt<Al>(a, i + K * kL), vecAt<Al>(b, i + K * kL)));
      });
  };
  if (alignedAt(a, i) && alignedAt(b, i)) steps.template operator()<true>();
  else steps.template operator()<false>();
  for (; i < n; ++i) storeElem(d + i, op(elemAt(a, i), elemAt(b, i)));
}

inline bool overlaps(const void* a, const void* b, int32_t bytes) {
  const auto x = reinterpret_cast<uintptr_t>(a), y = reinterpret_cast<uintptr_t>(b);
  return x < y + uint32_t(bytes) && y < x + uint32_t(bytes);
}

template <class A> bool alignedOperand(const A&) { return true; }  // scalars
template <class T, bool C> bool alignedOperand(const ArrS<T, C>& a) {
  return simd::aligned16(a.base) && ((a.objStride | a.row) & 15) == 0;
}
template <class T, bool C> bool alignedOperand(const One<StridedObj<T, C>>& a) {
  return simd::aligned16(a.v.p) && (a.v.row & 15) == 0;
}

// ---- denseBody ---------------------------------------------------------------------------

// Packed batches: rows follow each other without a gap and objects too, so the array operands
// are single runs of elements and a group of G objects fills a whole number of 16-byte
// registers (3x3 floats: four objects are nine registers, 3x3 doubles: two objects are nine, a
// 4x4 float object is four registers at fixed displacements). Used for groups of up to 18
// registers (a 6x6 double object), each loaded, combined and stored in turn. Every register
// covers elements of the group only, so nothing outside the operands is touched; the objects
// left over after the last whole group take the row body.
template <class T, int H, int W>
struct Dense {
  static constexpr int kObjBytes = H * W * int(sizeof(T));
  static constexpr int kGroup = 16 / std::gcd(kObjBytes, 16);
  static constexpr int kRegs = kGroup * kObjBytes / 16;
  static constexpr bool kUse = kRegs <= 18;
};

template <int H, int W, class A> bool denseOperand(const A&) { return false; }  // one scalar per object
// A constant passed by value is the same in every lane of every register of a group.
template <int H, int W, class E> bool denseOperand(const One<ValueObj<E>>&) { return true; }
template <int H, int W, class E> bool denseOperand(const ArrS<E, true>& a) {
  constexpr int32_t row = W * int32_t(sizeof(E));
  return (H == 1 || a.row == row) && a.objStride == H * row;
}
template <int H, int W, class E> bool denseOperand(const One<StridedObj<E, true>>& a) {
  return H == 1 || a.v.row == W * int32_t(sizeof(E));
}
template <class A> bool denseAligned(const A& a) { return simd::aligned16(a.obj(0).p); }
template <class V> bool denseAligned(const One<V>&) { return true; }  // a source, read once

// One source of a group as registers: loaded per group, or the single operand of an array call
// repeated over the G objects of a group and loaded once, element by element.
template <class T, int H, int W, bool Al, class A>
class DenseReader {
  using Dn = Dense<T, H, W>;
  static constexpr int kL = simd::kLanes<T>;
  static constexpr bool kShared = IsOne<A>::value;
  const T* base_ = nullptr;
  simd::Vec<T> pre_[kShared ? Dn::kRegs : 1];

 public:
  template <int I, class Op>
  DenseReader(const A& a, const Op& op, std::integral_constant<int, I>) {
    if constexpr (!kShared) base_ = a.obj(0).p;
    if constexpr (kShared) {
      alignas(16) T rep[Dn::kRegs * kL];
      const auto o = a.obj(0);
      for (int g = 0; g < Dn::kGroup; ++g)
        for (int r = 0; r < H; ++r)
          for (int c = 0; c < W; ++c) rep[(g * H + r) * W + c] = loadElem(o.at(r, c));
      for (int k = 0; k < Dn::kRegs; ++k) pre_[k] = preOf<I>(op, simd::load<kL, true>(rep + k * kL));
    }
  }
  // Register k of the group whose first object lies `off` bytes behind object 0.
  simd::Vec<T> reg(std::ptrdiff_t off, int k) const {
    if constexpr (kShared) return pre_[k];
    else return simd::load<kL, Al>(byteAdd(base_, off) + k * kL);
  }
};

// Whole groups of the batch; returns the number of objects done.
template <int H, int W, bool Al, class T, class Op, class D, class A, class B>
int32_t denseBody(const Op& op, const D& d, const A& a, const B& b, int32_t count) {
  using Dn = Dense<T, H, W>;
  constexpr int kL = simd::kLanes<T>;
  const DenseReader<T, H, W, Al, A> ra(a, op, std::integral_constant<int, 0>{});
  const DenseReader<T, H, W, Al, B> rb(b, op, std::integral_constant<int, 1>{});
  constexpr bool kPa = IsOne<A>::value, kPb = IsOne<B>::value;
  // Every array operand has objStride kObjBytes here, so object n of each lies n*kObjBytes
  // bytes (a 32-bit product) behind its first; the offset is carried from group to group.
  T* const d0 = d.obj(0).p;
  const int32_t end = count - count % Dn::kGroup;
  uint32_t off = 0;
  for (int32_t n = 0; n < end; n += Dn::kGroup, off += uint32_t(Dn::kGroup * Dn::kObjBytes)) {
    const std::ptrdiff_t o = int32_t(off);
    T* pd = byteAdd(d0, o);
    for (int k = 0; k < Dn::kRegs; ++k) simd::store<kL, Al>(pd + k * kL, vecOf<kPa, kPb>(op, ra.reg(o, k), rb.reg(o, k)));
  }
  return end;
}

// ---- streamBody --------------------------------------------------------------------------

// LayoutP batches whose streams are packed (objStride equal to the element size): element e of
// consecutive objects is adjacent, so one register holds element e of 4 float or 2 double
// objects. A single operand is broadcast element by element once. The objects after the last
// whole register take the unrolled scalar body.
template <class A> bool packedStream(const A&) { return false; }
template <class E> bool packedStream(const ArrP<E>& a) { return a.objStride == int32_t(sizeof(E)); }
template <class E> bool packedStream(const One<TableObj<E>>&) { return true; }
template <class A> inline constexpr bool kStreams = false;  // LayoutP streams or one LayoutP object
template <class E> inline constexpr bool kStreams<ArrP<E>> = true;
template <class E> inline constexpr bool kStreams<One<TableObj<E>>> = true;

template <class T, int H, int W, class A>
class StreamReader {
  static constexpr bool kShared = IsOne<A>::value;
  static constexpr int kN = H * W;
  const T* base_[kShared ? 1 : kN];
  simd::Vec<T> pre_[kShared ? kN : 1];

 public:
  template <int I, class Op>
  StreamReader(const A& a, const Op& op, std::integral_constant<int, I>) {
    const auto o = a.obj(0);
    for (int e = 0; e < kN; ++e) {
      if constexpr (kShared) pre_[e] = preOf<I>(op, simd::broadcast(T(loadElem(o.at(e / W, e % W)))));
      else base_[e] = o.at(e / W, e % W);
    }
  }
  simd::Vec<T> reg(int e, std::ptrdiff_t off) const {
    if constexpr (kShared) return pre_[e];
    else return simd::load<simd::kLanes<T>, false>(byteAdd(base_[e], off));
  }
};

// Whole registers of objects; returns the number of objects done.
template <int H, int W, class T, class Op, class D, class A, class B>
int32_t streamBody(const Op& op, const D& d, const A& a, const B& b, int32_t count) {
  constexpr int kN = H * W, kL = simd::kLanes<T>;
  const StreamReader<T, H, W, A> ra(a, op, std::integral_constant<int, 0>{});
  const StreamReader<T, H, W, B> rb(b, op, std::integral_constant<int, 1>{});
  constexpr bool kPa = IsOne<A>::value, kPb = IsOne<B>::value;
  T* pd[kN];
  const auto dv = d.obj(0);
  for (int e = 0; e < kN; ++e) pd[e] = dv.at(e / W, e % W);
  const int32_t end = count - count % kL;
  for (int32_t n = 0; n < end; n += kL) {
    const std::ptrdiff_t off = off32(n, int32_t(sizeof(T)));
    for (int e = 0; e < kN; ++e) simd::store<kL, false>(byteAdd(pd[e], off), vecOf<kPa, kPb>(op, ra.reg(e, off), rb.reg(e, off)));
  }
  return end;
}

// Packed streams whose bytes lie apart (the destination's from every source's, and from each
// other): no order of the elements can be seen, so each stream runs as one long row through the
// 8-element loop, a single operand's element broadcast. Returns false, having done nothing,
// where bytes are shared or a byte offset would leave the 32-bit range.
template <int H, int W, class T, class Op, class D, class A, class B>
bool streamRows(const Op& op, const D& d, const A& a, const B& b, int32_t count) {
  constexpr int kN = H * W;
  constexpr int64_t es = sizeof(T);
  const int64_t bytes = int64_t(count) * es;
  T* pd[kN];
  const auto dv = d.obj(0);
  for (int e = 0; e < kN; ++e) pd[e] = dv.at(e / W, e % W);
  auto clash = [&](const void* p, int64_t len, int skip) {
    const auto x = reinterpret_cast<uintptr_t>(p);
    for (int e = 0; e < kN; ++e) {
      const auto y = reinterpret_cast<uintptr_t>(pd[e]);
      if (e != skip && x < y + uintptr_t(bytes) && y < x + uintptr_t(len)) return true;
    }
    return false;
  };
  if (int64_t(d.roi) + bytes > INT32_MAX) return false;
  for (int e = 0; e < kN; ++e)
    if (clash(pd[e], bytes, e)) return false;
  auto sources = [&](const auto& x) {
    using X = std::decay_t<decltype(x)>;
    std::conditional_t<IsOne<X>::value, Broadcast<T>, const T*> s[kN];
    const auto o = x.obj(0);
    for (int e = 0; e < kN; ++e) {
      const T* p = o.at(e / W, e % W);
      if constexpr (IsOne<X>::value) s[e] = {loadElem(p)};
      else s[e] = p;
    }
    return std::to_array(s);
  };
  auto apart = [&](const auto& x) {
    using X = std::decay_t<decltype(x)>;
    if constexpr (!IsOne<X>::value)
      if (int64_t(x.roi) + bytes > INT32_MAX) return false;
    const auto o = x.obj(0);
    for (int e = 0; e < kN; ++e)
      if (clash(o.at(e / W, e % W), IsOne<X>::value ? es : bytes, -1)) return false;
    return true;
  };
  if (!apart(a) || !apart(b)) return false;
  const auto sa = sources(a);
  const auto sb = sources(b);
  for (int e = 0; e < kN; ++e) rowLoop(op, pd[e], sa[e], sb[e], count);
  return true;
}

// Whether the rows of an operand follow each other without a gap; a scalar has no rows.
template <int W, class A> bool gaplessRows(const A&) { return ScalarAccess<A>::value; }
template <int W, class E> bool gaplessRows(const ArrS<E, true>& a) { return a.row == W * int32_t(sizeof(E)); }
template <int W, class E> bool gaplessRows(const ArrL<E, true>& a) { return a.row == W * int32_t(sizeof(E)); }
template <int W, class E> bool gaplessRows(const One<StridedObj<E, true>>& a) { return a.v.row == W * int32_t(sizeof(E)); }

// ---- The worker of one path ----------------------------------------------------------------

// Serial worker: objects [0, count) of the accessors it is given (a thread's slice or all).
template <class T, Layout L, bool Contig, Shape S, class Op, class D, class A, class B>
void worker(const Op& op, const D& d, const A& a, const B& b, int32_t count, int32_t h, int32_t w) {
  if (count < 1) return;  // a thread's slice may be empty
  constexpr bool kRows = Contig && L != Layout::P && S.a.kind != 't' && S.b.kind != 't';
  auto fixed = [&]<int H, int W>() {
    if constexpr (L == Layout::P) {
      // A single operand's values are taken once, before any result is stored.
      const auto fa = frozen<H * W>(cached<H * W>(a));
      const auto fb = frozen<H * W>(cached<H * W>(b));
      int32_t done = 0;
      if constexpr (S.anyArray)
        if (packedStream(d) && packedStream(a) && packedStream(b)) {
          if constexpr (kStreams<A> && kStreams<B>)
            if (streamRows<H, W, T>(op, d, a, b, count)) return;
          done = streamBody<H, W, T>(op, d, a, b, count);
        }
      if (done == 0) {
        plainBody<H, W>(op, cached<H * W>(d), fa, fb, count, H, W);
      } else if (done < count) {
        auto rest = [&](const auto& x, const auto& fx) {
          if constexpr (IsOne<std::decay_t<decltype(x)>>::value) return fx;
          else return cached<H * W>(x.from(done));
        };
        plainBody<H, W>(op, cached<H * W>(d.from(done)), rest(a, fa), rest(b, fb), count - done, H, W);
      }
    } else if constexpr (kRows) {
      auto rows = [&](const auto& d, const auto& a, const auto& b, int32_t count) {
        auto body = [&]<int RH, int RW>() {
          if constexpr (L == Layout::L) rowBody<RH, RW, Align::PerObject, T>(op, d, a, b, count);
          else if (alignedOperand(d) && alignedOperand(a) && alignedOperand(b)) rowBody<RH, RW, Align::Yes, T>(op, d, a, b, count);
          else rowBody<RH, RW, Align::No, T>(op, d, a, b, count);
        };
        // Rows that follow each other without a gap make each object one run of H*W elements,
        // taken in fewer chunks than row by row (3x3 floats: 4, 4, 1 instead of 2, 1 per row).
        if constexpr (H > 1 && (W * int(sizeof(T))) % 16 != 0)
          if (gaplessRows<W>(d) && gaplessRows<W>(a) && gaplessRows<W>(b)) return body.template operator()<1, H * W>();
        body.template operator()<H, W>();
      };
      if constexpr (L == Layout::S && S.anyArray && Dense<T, H, W>::kUse) {
        if (denseOperand<H, W>(d) && denseOperand<H, W>(a) && denseOperand<H, W>(b)) {
          const int32_t done = denseAligned(d) && denseAligned(a) && denseAligned(b)
                                   ? denseBody<H, W, true, T>(op, d, a, b, count)
                                   : denseBody<H, W, false, T>(op, d, a, b, count);
          if (done < count) rows(d.from(done), a.from(done), b.from(done), count - done);
          return;
        }
      }
      rows(d, a, b, count);
    } else {
      plainBody<H, W>(op, d, a, b, count, H, W);
    }
  };
  if constexpr (S.matrix) {
    if (h == w) {
      switch (h) {
        case 3: return fixed.template operator()<3, 3>();
        case 4: return fixed.template operator()<4, 4>();
        case 5: return fixed.template operator()<5, 5>();
        case 6: return fixed.template operator()<6, 6>();
      }
    }
  } else {
    constexpr bool kLen4 = !(Op::kNoPairLen4 && std::is_same_v<T, float> && L == Layout::S && Contig &&
                             S.a.array && S.b.array);
    switch (w) {
      case 3: return fixed.template operator()<1, 3>();
      case 4:
        if constexpr (kLen4) return fixed.template operator()<1, 4>();
        break;
      case 5: return fixed.template operator()<1, 5>();
      case 6: return fixed.template operator()<1, 6>();
    }
  }
  if constexpr (Op::kArrayRowLoop && kRows && S.a.array && S.b.array && S.a.kind != 'c' && S.b.kind != 'c') {
    // Two arrays of long contiguous rows (mama, vava): the 8-element loop, row by row.
    for (int32_t n = 0; n < count; ++n) {
      const auto dv = d.obj(n);
      const auto av = a.obj(n);
      const auto bv = b.obj(n);
      for (int32_t r = 0; r < h; ++r) rowLoop(op, dv.rowPtr(r), av.rowPtr(r), bv.rowPtr(r), w);
    }
    return;
  }
  if constexpr (kRows && !S.matrix && !S.anyArray) {
    // A single long vector: the 8-element loop unless dst overlaps a source, in which case the
    // forward loop keeps the ascending order of elements.
    T* pd = d.obj(0).rowPtr(0);
    const int32_t bytes = w * int32_t(sizeof(T));
    auto source = [&](const auto& acc) {
      if constexpr (ScalarAccess<std::decay_t<decltype(acc)>>::value) return Broadcast<T>{loadElem(acc.obj(0).at(0, 0))};
      else return acc.obj(0).rowPtr(0);
    };
    auto clashes = [&](const auto& s) {
      if constexpr (std::is_pointer_v<std::decay_t<decltype(s)>>) return overlaps(pd, s, bytes);
      else return false;
    };
    const auto sa = source(a);
    const auto sb = source(b);
    if (w > 6 && !clashes(sa) && !clashes(sb)) return rowLoop(op, pd, sa, sb, w);
  }
  plainBody<0, 0>(op, d, a, b, count, h, w);
}

// ---- Entry ---------------------------------------------------------------------------------

// Builds the accessors of pattern P over the call the driver hands to the path's worker (all
// objects, or one thread's slice) and runs the worker. Element-wise workers cannot fail.
template <class Op, Pat P, class T, Layout L>
tarnStatus run(const Op& op, const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  constexpr bool kConstFirst = S.a.kind == 'c';
  constexpr bool kConstByValue = (S.a.kind == 'c' && !S.a.array) || (S.b.kind == 'c' && !S.b.array);
  constexpr int kIa = kConstFirst ? 1 : 0, kIb = kConstFirst ? 0 : 1, kId = kConstByValue ? 1 : 2;
  const int32_t h = S.matrix ? c.height : 1, w = S.matrix ? c.width : c.len;
  // A transposed operand is stored with `width` rows and `height` columns.
  auto sw = [&](Operand k) { return !S.matrix ? c.len : k.kind == 't' ? c.height : c.width; };
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) {
    const auto a = operandOf<T, L, Contig, S.a>(s.op[kIa], sw(S.a), s.val[0]);
    const auto b = operandOf<T, L, Contig, S.b>(s.op[kIb], sw(S.b), s.val[0]);
    const auto d = operandOf<T, L, Contig, Operand{S.matrix ? 'm' : 'v', S.anyArray}, true>(s.op[kId], w, 0);
    // A single object is a count of 1 the compiler can see: no object loop around stores that
    // hit the same address every time (GCC 12's loop store motion has been seen to give such a
    // sunk vector store the aligned instruction whatever the pointer).
    worker<T, L, Contig, S>(op, d, a, b, S.anyArray ? s.count : 1, h, w);
    return tarnStatusOk;
  });
}

}  // namespace tarn::elementwise
