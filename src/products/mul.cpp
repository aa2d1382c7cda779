// Mul with two matrices: dst = op(src1) * op(src2), each operand read as stored (m) or
// transposed (t), for one pair or for arrays of pairs; and the fixed 4x4 float product.
//
// Everything is decided once per call: layout, contiguity (the driver), then the size. The sizes
// are tested against 3, 4, 5 and 6 in that order; an order with a kernel in this worker takes the
// fixed kernel, every other shape the general path of the worker: the tile path for contiguous
// operands, the triple loop for strided ones and for LayoutP. Which orders have a kernel differs
// by worker, and decides the bits: a kernel sums from the first product, the general paths from
// +0.0 (so -0.0 survives only in a kernel), and the tile path has orders of its own.
#include <string_view>
#include <type_traits>

#include "call.hpp"
#include "dispatch.hpp"
#include "mul_kernels.hpp"
#include "simd.hpp"

namespace tarn::mul {

// ---- Which worker has which kernels -----------------------------------------------------------

constexpr bool is(Pat p, std::string_view name) { return std::string_view(patName(p)) == name; }

// Whether the worker of (pattern, type, layout, path) has a fixed kernel of order n.
template <Pat P, class T, Layout L, bool Contig>
constexpr bool hasKernel(int n) {
  constexpr bool f32 = sizeof(T) == 4;
  if constexpr (L == Layout::S && Contig) {
    return !(f32 && is(P, "tm") && n == 6);  // the single tm float product tiles at order 6
  } else if constexpr (L == Layout::L && Contig) {
    return !((f32 && is(P, "mta")) || is(P, "tta"));  // these tile at every order
  } else {
    // Workers whose only kernel is order 3.
    const bool only3 = f32 && ((L == Layout::S && (is(P, "mat") || is(P, "tam"))) ||
                               (L == Layout::L && (is(P, "mam") || is(P, "mat") || is(P, "tam") || is(P, "tat"))) ||
                               (L == Layout::P && (is(P, "mam") || is(P, "mat") || is(P, "tam"))));
    if (only3) return n == 3;
    return !(L == Layout::S && f32 && is(P, "mama") && n == 6);  // strided float mama: no order 6
  }
}

// In the workers whose only kernel is order 3, the triple loop keeps its running sum in dst.
template <Pat P, class T, Layout L, bool Contig>
constexpr bool sumInDst() {
  return !Contig && !hasKernel<P, T, L, Contig>(4);
}

// The general path: the tile path in the contiguous workers, but for the double mata in LayoutS,
// whose contiguous worker runs the triple loop with a fixed element stride.
template <Pat P, class T, Layout L, bool Contig>
constexpr bool tiles() {
  return Contig && !(L == Layout::S && sizeof(T) == 8 && is(P, "mata"));
}

// The order of the fixed kernel a call takes, or 0 for the general path. Three sizes are compared
// (the shape rule gives the fourth): src1Width, src1Height, and src2's size that the rule leaves
// free. Two members keep tests of their own:
//   the float mat, contiguous LayoutS, compares src2Height with 3 for order 4;
//   the float mm and double tt in LayoutP compare the bitwise OR of all four sizes with 3 and
//   then 4, so sizes 1 to 3 whose OR is 3 enter the order-3 kernel.
template <Pat P, class T, Layout L, bool Contig>
int kernelOrder(int32_t w1, int32_t h1, int32_t w2, int32_t h2) {
  constexpr Shape S = shapeOf(P);
  constexpr bool f32 = sizeof(T) == 4;
  const int32_t free2 = S.b.kind == 't' ? h2 : w2;
  int first = 3;
  if constexpr (L == Layout::P && ((f32 && is(P, "mm")) || (!f32 && is(P, "tt")))) {
    const int32_t all = w1 | h1 | w2 | h2;
    if (all == 3) return 3;
    if (all == 4) return 4;
    first = 5;
  }
  constexpr bool oddMat = L == Layout::S && Contig && f32 && is(P, "mat");
  for (int n = first; n <= 6; ++n) {
    const int32_t want2 = oddMat && n == 4 ? 3 : n;
    if (w1 == n && h1 == n && (oddMat && n == 4 ? h2 : free2) == want2) return hasKernel<P, T, L, Contig>(n) ? n : 0;
  }
  return 0;
}

// ---- The worker of one path ---------------------------------------------------------------------

// Serial worker over the objects of `s` (all of them, or a thread's slice): blocks 0, 1, 2 are
// src1, src2, dst, each with its stored sizes.
template <Pat P, class T, Layout L, bool Contig>
tarnStatus work(const Call& s) {
  constexpr Shape S = shapeOf(P);
  constexpr Operand kDst{'m', S.anyArray};
  const Blk &b1 = s.op[0], &b2 = s.op[1], &bd = s.op[2];
  // A single product is a count of 1 the compiler sees: no object loop around its stores.
  const int32_t count = S.anyArray ? s.count : 1;
  const Dims z{S.a.kind == 't' ? b1.w : b1.h, S.b.kind == 't' ? b2.h : b2.w, S.a.kind == 't' ? b1.h : b1.w};
  const int n = kernelOrder<P, T, L, Contig>(b1.w, b1.h, b2.w, b2.h);

  auto fixed = [&]<int N>() {
    // A kernel of order N reads and writes N by N objects: LayoutP tables are indexed with
    // width N, and read once per call.
    const auto a = cached<N * N>(operandOf<T, L, Contig, S.a>(b1, N));
    const auto b = cached<N * N>(operandOf<T, L, Contig, S.b>(b2, N));
    const auto d = cached<N * N>(operandOf<T, L, Contig, kDst, true>(bd, N));
    if constexpr (N == 3 && std::is_same_v<T, float> && RowRun<decltype(a.obj(0))>::value &&
                  RowRun<decltype(b.obj(0))>::value && RowRun<decltype(d.obj(0))>::value) {
      if (b1.row == 12 && b2.row == 12 && bd.row == 12) return fixedKernel3Gapless(d, a, b, count);
    }
    fixedKernel<N, T>(d, a, b, count);
  };
  switch (n) {
    case 3: fixed.template operator()<3>(); return tarnStatusOk;
    case 4: fixed.template operator()<4>(); return tarnStatusOk;
    case 5: fixed.template operator()<5>(); return tarnStatusOk;
    case 6: fixed.template operator()<6>(); return tarnStatusOk;
  }
  const auto a = operandOf<T, L, Contig, S.a>(b1, b1.w);
  const auto b = operandOf<T, L, Contig, S.b>(b2, b2.w);
  const auto d = operandOf<T, L, Contig, kDst, true>(bd, z.cols);
  for (int32_t o = 0; o < count; ++o) {
    if constexpr (tiles<P, T, L, Contig>())
      tile<S.a.kind == 'm' && S.b.kind == 't', S.a.kind == 't' && S.b.kind == 'm', T>(d.obj(o), a.obj(o), b.obj(o), z);
    else
      tripleLoop<sumInDst<P, T, L, Contig>(), T>(d.obj(o), a.obj(o), b.obj(o), z);
  }
  return tarnStatusOk;
}

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) { return work<P, T, L, Contig>(s); });
}

// ---- The fixed 4x4 float product ---------------------------------------------------------------

// dst = src1 * src2 for 4x4 floats in rows of 16 bytes: each dst row is the sum, left to right,
// of src1[i][k] broadcast times row k of src2. All of src2 and every row of src1 are loaded
// before the first store, so dst may be either source.
template <bool Aligned>
void mm4x4(const float* a, const float* b, float* d) {
  const __m128 b0 = simd::load<4, Aligned>(b), b1 = simd::load<4, Aligned>(b + 4);
  const __m128 b2 = simd::load<4, Aligned>(b + 8), b3 = simd::load<4, Aligned>(b + 12);
  __m128 row[4];
  for (int i = 0; i < 4; ++i) row[i] = simd::load<4, Aligned>(a + 4 * i);
  __m128 out[4];
  for (int i = 0; i < 4; ++i) {
    const __m128 x = row[i];
    __m128 s = simd::mul(simd::splat<0>(x), b0);
    s = simd::add(s, simd::mul(simd::splat<1>(x), b1));
    s = simd::add(s, simd::mul(simd::splat<2>(x), b2));
    out[i] = simd::add(s, simd::mul(simd::splat<3>(x), b3));
  }
  for (int i = 0; i < 4; ++i) simd::store<4, Aligned>(d + 4 * i, out[i]);
}

tarnStatus mulMM4x4(const float* src1, const float* src2, float* dst) {
  if (!src1 || !src2 || !dst) return tarnStatusNullPointer;
  if (simd::aligned16(src1) && simd::aligned16(src2) && simd::aligned16(dst)) mm4x4<true>(src1, src2, dst);
  else mm4x4<false>(src1, src2, dst);
  return tarnStatusOk;
}

}  // namespace tarn::mul

#define TARN_IMPL_mul
#include "bindings.hpp"
