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

#include <cstdint>
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
};
template <class T>
struct LCombOp {
  static constexpr bool kArrayRowLoop = false, kNoPairLen4 = true;
  T s1, s2;
  T operator()(T a, T b) const { return a * s1 + b * s2; }
  template <class V> V vec(V a, V b) const {
    return simd::add(simd::mul(a, simd::broadcast(s1)), simd::mul(b, simd::broadcast(s2)));
  }
};

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
        *dv.at(r, c) = op(*av.at(r, c), *bv.at(r, c));
        *dv.at(r, c + 1) = op(*av.at(r, c + 1), *bv.at(r, c + 1));
      }
      if (c < w) *dv.at(r, c) = op(*av.at(r, c), *bv.at(r, c));
    }
  }
}

// ---- rowBody -----------------------------------------------------------------------------

enum class Align { No, Yes, PerObject };

// Rows of one source operand as registers: loaded per object, preloaded once for the single
// operand of an array call, or a broadcast scalar.
template <class T, int H, int W, class A>
class RowReader {
  static constexpr bool kScalar = ScalarAccess<A>::value;
  static constexpr bool kShared = IsOne<A>::value;
  using R = simd::Row<T, W>;
  A a_;
  R pre_[kShared && !kScalar ? H : 1];

 public:
  explicit RowReader(const A& a) : a_(a) {
    if constexpr (kShared && kScalar) pre_[0] = simd::broadcastRow<W>(T(*a_.obj(0).at(0, 0)));
    else if constexpr (kShared)
      for (int r = 0; r < H; ++r) pre_[r] = simd::loadRow<W, false>(a_.obj(0).rowPtr(r));
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
    else if constexpr (kScalar) return simd::broadcastRow<W>(T(*o.at(0, 0)));
    else return simd::loadRow<W, Al>(o.rowPtr(r));
  }
};

template <int H, int W, Align Al, class T, class Op, class D, class A, class B>
void rowBody(const Op& op, const D& d, const A& a, const B& b, int32_t count) {
  const RowReader<T, H, W, A> ra(a);
  const RowReader<T, H, W, B> rb(b);
  auto one = [&]<bool Aligned>(const auto& dv, const auto& av, const auto& bv) {
    simd::Row<T, W> x[H];
    for (int r = 0; r < H; ++r) {
      const auto ya = ra.template row<Aligned>(av, r);
      const auto yb = rb.template row<Aligned>(bv, r);
      for (int k = 0; k < simd::chunks<T, W>(); ++k) x[r].c[k] = op.vec(ya.c[k], yb.c[k]);
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
template <class T> inline T elemAt(const T* p, int32_t i) { return p[i]; }
template <class T> inline T elemAt(const Broadcast<T>& s, int32_t) { return s.v; }
template <bool Al, class T> inline simd::Vec<T> vecAt(const T* p, int32_t i) { return simd::load<simd::kLanes<T>, Al>(p + i); }
template <bool Al, class T> inline simd::Vec<T> vecAt(const Broadcast<T>& s, int32_t) { return simd::broadcast(s.v); }
template <class T> inline bool alignedAt(const T* p, int32_t i) { return simd::aligned16(p + i); }
template <class T> inline bool alignedAt(const Broadcast<T>&, int32_t) { return true; }

template <class T, class Op, class SA, class SB>
void rowLoop(const Op& op, T* d, const SA& a, const SB& b, int32_t n) {
  constexpr int kL = simd::kLanes<T>, kStep = 8;
  int32_t i = 0;
  for (; i < n && !simd::aligned16(d + i); ++i) d[i] = op(elemAt(a, i), elemAt(b, i));
  auto steps = [&]<bool Al>() {
    for (; i + kStep <= n; i += kStep)
      simd::unroll<kStep / kL>([&]<int K>() {
        simd::store<kL, true>(d + i + K * kL, op.vec(vecAt<Al>(a, i + K * kL), vecAt<Al>(b, i + K * kL)));
      });
  };
  if (alignedAt(a, i) && alignedAt(b, i)) steps.template operator()<true>();
  else steps.template operator()<false>();
  for (; i < n; ++i) d[i] = op(elemAt(a, i), elemAt(b, i));
}

// ---- Operands from the call ----------------------------------------------------------------

template <class T, Layout L, bool Contig, Operand K, bool Write = false>
auto operandOf(const Blk& blk, int32_t sw, double val) {
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

// ---- The worker of one path ----------------------------------------------------------------

// Serial worker: objects [0, count) of the accessors it is given (a thread's slice or all).
template <class T, Layout L, bool Contig, Shape S, class Op, class D, class A, class B>
void worker(const Op& op, const D& d, const A& a, const B& b, int32_t count, int32_t h, int32_t w) {
  if (count < 1) return;  // a thread's slice may be empty
  constexpr bool kRows = Contig && L != Layout::P && S.a.kind != 't' && S.b.kind != 't';
  auto fixed = [&]<int H, int W>() {
    if constexpr (L == Layout::P) {
      const auto fa = frozen<H * W>(cached<H * W>(a));
      const auto fb = frozen<H * W>(cached<H * W>(b));
      plainBody<H, W>(op, cached<H * W>(d), fa, fb, count, H, W);
    } else if constexpr (kRows) {
      if constexpr (L == Layout::L) rowBody<H, W, Align::PerObject, T>(op, d, a, b, count);
      else if (alignedOperand(d) && alignedOperand(a) && alignedOperand(b)) rowBody<H, W, Align::Yes, T>(op, d, a, b, count);
      else rowBody<H, W, Align::No, T>(op, d, a, b, count);
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
      if constexpr (ScalarAccess<std::decay_t<decltype(acc)>>::value) return Broadcast<T>{*acc.obj(0).at(0, 0)};
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

// Builds the accessors of pattern P, picks the path (contiguous or general, serial or the
// wrapper) and runs it. Element-wise workers cannot fail.
template <class Op, Pat P, class T, Layout L>
tarnStatus run(const Op& op, const Spec& spec, const Call& c) {
  constexpr Shape S = shapeOf(P);
  constexpr bool kConstFirst = S.a.kind == 'c';
  constexpr bool kConstByValue = (S.a.kind == 'c' && !S.a.array) || (S.b.kind == 'c' && !S.b.array);
  constexpr int kIa = kConstFirst ? 1 : 0, kIb = kConstFirst ? 0 : 1, kId = kConstByValue ? 1 : 2;
  const int32_t h = S.matrix ? c.height : 1, w = S.matrix ? c.width : c.len;

  auto go = [&]<bool Contig>() -> tarnStatus {
    // A transposed operand is stored with `width` rows and `height` columns.
    auto sw = [&](Operand k) { return !S.matrix ? c.len : k.kind == 't' ? c.height : c.width; };
    const auto a = operandOf<T, L, Contig, S.a>(c.op[kIa], sw(S.a), c.val[0]);
    const auto b = operandOf<T, L, Contig, S.b>(c.op[kIb], sw(S.b), c.val[0]);
    const auto d = operandOf<T, L, Contig, Operand{S.matrix ? 'm' : 'v', S.anyArray}, true>(c.op[kId], w, 0);
    if constexpr (!S.anyArray) {
      worker<T, L, Contig, S>(op, d, a, b, 1, h, w);
      return tarnStatusOk;
    } else {
      auto work = [&](int32_t first, int32_t n, std::byte*) {
        worker<T, L, Contig, S>(op, d.from(first), a.from(first), b.from(first), n, h, w);
        return tarnStatusOk;
      };
      if (wantsWrapper(spec, c, Contig)) return parallelRun<false>(c.count, 0, work);
      return work(0, c.count, nullptr);
    }
  };
  if constexpr (L == Layout::P) {
    return go.template operator()<false>();
  } else {
    const int32_t es = int32_t(sizeof(T));
    bool contig = true;
    for (int i = 0; i < c.nop; ++i)
      if ((c.op[i].has & kElem) && c.op[i].elem != es) contig = false;
    return contig ? go.template operator()<true>() : go.template operator()<false>();
  }
}

}  // namespace tarn::elementwise
