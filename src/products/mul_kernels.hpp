// The three orders of summation of a matrix product, written once over the operand accessors.
//
//   fixedKernel  square sizes 3 to 6: dst row i = a(i,0)*B0 + a(i,1)*B1 + ... + a(i,N-1)*B(N-1),
//                left to right from the first product, Bk row k of the right factor in
//                registers and a(i,k) broadcast. The rows of the right factor are loaded before
//                the first store of an object (once per call when it is the single operand), and
//                row i is stored before row i+1 of the left factor is read.
//   tile         the general shapes of the contiguous workers: 4 by 2 blocks of accumulators
//                from +0.0, an odd last column, then the last 1 to 3 rows; the m,t letters run
//                along k in lanes.
//   tripleLoop   the general shapes of the strided and LayoutP workers: rows, columns, k, each
//                sum from +0.0.
// Each result is fixed by its own order of additions, so the vector and scalar forms of a kernel,
// any layout and any thread count give the same bits.
#pragma once

#include <cstdint>
#include <type_traits>

#include "operand.hpp"
#include "simd.hpp"

namespace tarn::mul {

// An object whose rows are runs of elements in memory: a strided object with element stride
// esize, not read transposed.
template <class V> struct RowRun : std::false_type {};
template <class E> struct RowRun<StridedObj<E, true>> : std::true_type {};

// The single operand of an array call, however it is wrapped: loaded once per call.
template <class A> struct Single : IsOne<A> {};
template <class T, int N> struct Single<OneCached<T, N>> : std::true_type {};
template <class A> struct Single<Trans<A>> : Single<A> {};

template <class T> using Vec = simd::Vec<T>;

// Element k of a row held as chunks, in every lane.
template <class T, int N, int K>
Vec<T> lane(const simd::Row<T, N>& r) {
  constexpr int kChunk = [] {
    int c = 0;
    while (simd::chunkOff<T, N>(c) + simd::chunkLen<T, N>(c) <= K) ++c;
    return c;
  }();
  return simd::splat<K - simd::chunkOff<T, N>(kChunk)>(r.c[kChunk]);
}

// Row k of the right factor as registers.
template <class T, int N, class BV>
simd::Row<T, N> rightRow(const BV& bv, int k) {
  if constexpr (RowRun<BV>::value) {
    return simd::loadRow<N, false>(bv.rowPtr(k));
  } else {
    alignas(16) T tmp[N + 3];
    for (int j = 0; j < N; ++j) tmp[j] = loadElem(bv.at(k, j));
    return simd::loadRow<N, true>(static_cast<const T*>(tmp));
  }
}

// Row i of the left factor as registers, to broadcast its elements from.
template <class T, int N, class AV>
simd::Row<T, N> leftRow(const AV& av, int i) {
  if constexpr (RowRun<AV>::value) {
    return simd::loadRow<N, false>(av.rowPtr(i));
  } else {
    alignas(16) T tmp[N + 3];
    for (int k = 0; k < N; ++k) tmp[k] = loadElem(av.at(i, k));
    return simd::loadRow<N, true>(static_cast<const T*>(tmp));
  }
}

template <class T, int N, class DV>
void storeRow(const DV& dv, int i, const simd::Row<T, N>& r) {
  if constexpr (RowRun<DV>::value) {
    simd::storeRow<N, false>(dv.rowPtr(i), r);
  } else {
    alignas(16) T tmp[N + 3];
    simd::storeRow<N, true>(tmp, r);
    for (int j = 0; j < N; ++j) storeElem(dv.at(i, j), tmp[j]);
  }
}

// dst row i from the left factor's row (as registers) and the rows of the right factor.
template <class T, int N>
simd::Row<T, N> productRow(const simd::Row<T, N>& ar, const simd::Row<T, N>* b) {
  simd::Row<T, N> acc;
  const Vec<T> a0 = lane<T, N, 0>(ar);
  for (int c = 0; c < simd::chunks<T, N>(); ++c) acc.c[c] = simd::mul(a0, b[0].c[c]);
  simd::unroll<N - 1>([&]<int K>() {
    const Vec<T> ak = lane<T, N, K + 1>(ar);
    for (int c = 0; c < simd::chunks<T, N>(); ++c) acc.c[c] = simd::add(acc.c[c], simd::mul(ak, b[K + 1].c[c]));
  });
  return acc;
}

// Square products of order N over `count` objects. A single right factor is loaded once; a
// single left factor's rows too.
template <int N, class T, class D, class A, class B>
void fixedKernel(const D& d, const A& a, const B& b, int32_t count) {
  using R = simd::Row<T, N>;
  constexpr bool kSharedA = Single<A>::value, kSharedB = Single<B>::value;
  R preA[kSharedA ? N : 1], preB[kSharedB ? N : 1];
  if constexpr (kSharedA)
    for (int i = 0; i < N; ++i) preA[i] = leftRow<T, N>(a.obj(0), i);
  if constexpr (kSharedB)
    for (int k = 0; k < N; ++k) preB[k] = rightRow<T, N>(b.obj(0), k);
  for (int32_t n = 0; n < count; ++n) {
    const auto dv = d.obj(n);
    R rows[kSharedB ? 1 : N];
    const R* bk = preB;
    if constexpr (!kSharedB) {
      const auto bv = b.obj(n);
      for (int k = 0; k < N; ++k) rows[k] = rightRow<T, N>(bv, k);
      bk = rows;
    }
    const auto av = a.obj(n);
    for (int i = 0; i < N; ++i) {
      if constexpr (kSharedA) storeRow<T, N>(dv, i, productRow<T, N>(preA[i], bk));
      else storeRow<T, N>(dv, i, productRow<T, N>(leftRow<T, N>(av, i), bk));
    }
  }
}

// 3x3 floats whose rows all follow each other without a gap: each row one register (lane 3
// unused), the same sums in the same order as fixedKernel<3>. All of an object's sources are
// loaded before its first store.
template <class D, class A, class B>
void fixedKernel3Gapless(const D& d, const A& a, const B& b, int32_t count) {
  constexpr bool kSharedA = Single<A>::value, kSharedB = Single<B>::value;
  __m128 ra[3], rb[3];
  if constexpr (kSharedA) simd::loadRows3x3(a.obj(0).p, ra);
  if constexpr (kSharedB) simd::loadRows3x3(b.obj(0).p, rb);
  for (int32_t n = 0; n < count; ++n) {
    if constexpr (!kSharedA) simd::loadRows3x3(a.obj(n).p, ra);
    if constexpr (!kSharedB) simd::loadRows3x3(b.obj(n).p, rb);
    __m128 out[3];
    for (int i = 0; i < 3; ++i)
      out[i] = simd::add(simd::add(simd::mul(simd::splat<0>(ra[i]), rb[0]), simd::mul(simd::splat<1>(ra[i]), rb[1])),
                         simd::mul(simd::splat<2>(ra[i]), rb[2]));
    simd::storeRows3x3(d.obj(n).p, out);
  }
}

// ---- General shapes ---------------------------------------------------------------------------

struct Dims {
  int32_t rows, cols, inner;  // of dst, and the inner length K
};

// Rows, columns, k ascending, each sum from +0.0. The sum is kept in a register and stored after
// every product, or, with SumInDst, read from and written to dst at every product; dst is set to
// +0.0 before anything is read for that element.
template <bool SumInDst, class T, class DV, class AV, class BV>
void tripleLoop(const DV& dv, const AV& av, const BV& bv, Dims z) {
  for (int32_t i = 0; i < z.rows; ++i)
    for (int32_t j = 0; j < z.cols; ++j) {
      T* out = dv.at(i, j);
      storeElem(out, T(0));
      T s = T(0);
      int32_t k = 0;
      for (; k + 1 < z.inner; k += 2) {
        if constexpr (SumInDst) {
          storeElem(out, loadElem(out) + T(loadElem(av.at(i, k))) * T(loadElem(bv.at(k, j))));
          storeElem(out, loadElem(out) + T(loadElem(av.at(i, k + 1))) * T(loadElem(bv.at(k + 1, j))));
        } else {
          s = s + T(loadElem(av.at(i, k))) * T(loadElem(bv.at(k, j)));
          storeElem(out, s);
          s = s + T(loadElem(av.at(i, k + 1))) * T(loadElem(bv.at(k + 1, j)));
          storeElem(out, s);
        }
      }
      if (k < z.inner) {
        if constexpr (SumInDst) storeElem(out, loadElem(out) + T(loadElem(av.at(i, k))) * T(loadElem(bv.at(k, j))));
        else storeElem(out, s + T(loadElem(av.at(i, k))) * T(loadElem(bv.at(k, j))));
      }
    }
}

// The register tile of the contiguous workers. Letters decide two variants:
//   MT (m,t: both operands run along k): every sum in lanes along k, reduced at the end;
//   TM (t,m): the 2-row remainder keeps one accumulator per row instead of the even/odd pair.
template <bool MT, bool TM, class T, class DV, class AV, class BV>
void tile(const DV& dv, const AV& av, const BV& bv, Dims z) {
  const int32_t K = z.inner;
  auto p = [&](int32_t i, int32_t k, int32_t j) { return T(loadElem(av.at(i, k))) * T(loadElem(bv.at(k, j))); };
  constexpr int kL = 16 / int(sizeof(T));
  // Four lanes reduce as (l0 + l2) + (l1 + l3), two as l0 + l1.
  auto reduce = [](const T* l) { return kL == 4 ? (l[0] + l[2]) + (l[1] + l[3]) : l[0] + l[1]; };

  // A result of the 4 by 2 blocks and of the odd last column.
  auto blockSum = [&](int32_t i, int32_t j) {
    if constexpr (!MT) {
      T s = T(0);
      for (int32_t k = 0; k < K; ++k) s = s + p(i, k, j);
      return s;
    } else {
      const int32_t kv = K - K % kL;
      T l[kL] = {};
      for (int32_t k = 0; k < kv; k += kL)
        for (int q = 0; q < kL; ++q) l[q] = l[q] + p(i, k + q, j);
      T s = reduce(l);
      for (int32_t k = kv; k < K; ++k) s = s + p(i, k, j);
      return s;
    }
  };
  // A result of the last 1 to 3 rows.
  auto restSum = [&](int32_t i, int32_t j, int32_t nrows) {
    if constexpr (MT) {
      // Lanes only from K = 8 on, eight k per step: 32f in two accumulators for the first and
      // second four, 64f in four pairs, added before the reduction.
      const int32_t kv = K >= 8 ? K - K % 8 : 0;
      T acc[8] = {};
      for (int32_t k = 0; k < kv; k += 8)
        for (int q = 0; q < 8; ++q) acc[q] = acc[q] + p(i, k + q, j);
      T l[kL];
      if constexpr (kL == 4) {
        for (int q = 0; q < 4; ++q) l[q] = acc[q] + acc[4 + q];
      } else {
        for (int q = 0; q < 2; ++q) l[q] = (acc[q] + acc[2 + q]) + (acc[4 + q] + acc[6 + q]);
      }
      T s = reduce(l);
      for (int32_t k = kv; k < K; ++k) s = s + p(i, k, j);
      return s;
    } else {
      if (nrows == 3 || (nrows == 2 && TM)) {
        T s = T(0);
        for (int32_t k = 0; k < K; ++k) s = s + p(i, k, j);
        return s;
      }
      // Even and odd k in two sums up to the last complete pair, then the odd last one.
      T e = T(0), o = T(0);
      int32_t k = 0;
      for (; k + 1 < K; k += 2) {
        e = e + p(i, k, j);
        o = o + p(i, k + 1, j);
      }
      T s = e + o;
      if (k < K) s = s + p(i, k, j);
      return s;
    }
  };

  const int32_t rb = z.rows - z.rows % 4, cb = z.cols - z.cols % 2;
  for (int32_t i = 0; i < rb; i += 4)
    for (int32_t j = 0; j < cb; j += 2) {
      T r[8];
      for (int q = 0; q < 8; ++q) r[q] = blockSum(i + q / 2, j + q % 2);
      for (int q = 0; q < 8; ++q) storeElem(dv.at(i + q / 2, j + q % 2), r[q]);
    }
  if (z.cols % 2)
    for (int32_t i = 0; i < rb; i += 4) {
      T r[4];
      for (int q = 0; q < 4; ++q) r[q] = blockSum(i + q, z.cols - 1);
      for (int q = 0; q < 4; ++q) storeElem(dv.at(i + q, z.cols - 1), r[q]);
    }
  const int32_t rest = z.rows - rb;
  for (int32_t j = 0; rest && j < z.cols; ++j) {
    T r[3];
    for (int32_t q = 0; q < rest; ++q) r[q] = restSum(rb + q, j, rest);
    for (int32_t q = 0; q < rest; ++q) storeElem(dv.at(rb + q, j), r[q]);
  }
}

}  // namespace tarn::mul
