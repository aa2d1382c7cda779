// EigenValuesVectors, EigenValuesVectorsLeft, EigenValuesVectorsRight: eigenvalues and the
// eigenvectors of one or both sides of general real matrices. One body serves the three: copy,
// Hessenberg reduction, explicit Q, QR on the whole matrix, substitution, back-transformation,
// normalisation, and the caller's destination written once at the very end.
//
// In terms of the source: a right vector v solves transpose(src) v = lambda v, a left vector
// src v = lambda v (the working matrix is the source's transpose). For a conjugate pair at
// places j, j+1 column j holds the real and column j+1 the imaginary part; the left pair's
// columns satisfy src v = conj(lambda_j) v.
#include "call.hpp"
#include "dispatch.hpp"
#include "eigen_general_vectors.hpp"
#include "operand.hpp"

namespace tarn {
namespace {

using geig::Side;
using geig::Sq;

// One matrix copied into h; the vectors end in v1 (and v2 for both sides). `work` holds 5n.
template <class T, Side Sd, int N>
[[gnu::noinline]] int vectorsOf(T* h, T* v1, T* v2, T* work, int n, T* re, T* im) {
  return geig::vectorsCore<T, Sd, N>(Sq<T, N>{h, n}, Sq<T, N>{v1, n}, Sq<T, N>{v2, n}, work, re, im);
}

template <class T, class Dst>
void copyOut(const Dst& dst, int32_t k, const T* v, int n) {
  const auto o = dst.obj(k);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) *o.at(i, j) = v[j * n + i];
}

// The serial worker of every layout. A failing matrix ends the walk with its status; a
// substitution that stops on a real right-hand side ends it too, with status 0.
template <class T, Side Sd, class Src, class D1, class D2>
tarnStatus walk(const Src& src, const D1& dst1, const D2& dst2, int n, int32_t count, T* re, T* im, T* scratch) {
  if (n == 1) {  // the vector is 1 and the eigenvalue the element itself
    for (int32_t k = 0; k < count; ++k) {
      *dst1.obj(k).at(0, 0) = T(1);
      if constexpr (Sd == Side::Both) *dst2.obj(k).at(0, 0) = T(1);
      re[k] = *src.obj(k).at(0, 0);
      im[k] = T(0);
    }
    return tarnStatusOk;
  }
  return geig::withOrder(n, [&]<int N>() -> tarnStatus {
    // H, the vectors of each side, and the work vectors; the order of the caller's scratch.
    constexpr int kBlocks = Sd == Side::Both ? 3 : 2;
    T local[N ? kBlocks * N * N + 5 * N : 1];
    T* h = N ? local : scratch;
    const int nn = n * n;
    T* v1 = h + nn;
    T* v2 = Sd == Side::Both ? h + 2 * nn : v1;
    T* work = h + kBlocks * nn;
    for (int32_t k = 0; k < count; ++k) {
      const auto o = src.obj(k);
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) h[i * n + j] = *o.at(i, j);
      const std::ptrdiff_t at = std::ptrdiff_t(k) * n;
      const int r = vectorsOf<T, Sd, N>(h, v1, v2, work, n, re + at, im + at);
      if (r == geig::kStopQuietly) return tarnStatusOk;
      if (r != geig::kVectorsDone) return r;
      copyOut(dst1, k, v1, n);
      if constexpr (Sd == Side::Both) copyOut(dst2, k, v2, n);
    }
    return tarnStatusOk;
  });
}

template <Side Sd, Pat P, class T, Layout L>
tarnStatus runSide(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  constexpr Operand kDst{'m', S.anyArray};
  constexpr int kValues = Sd == Side::Both ? 3 : 2;  // blocks: src, dst (, dst), re, im, scratch
  return drive<T, L>(plan, c, [&]<bool>(const Call& s) -> tarnStatus {
    const int n = s.order;
    const auto src = operandOf<T, L, false, S.a>(s.op[0], n);
    const auto d1 = operandOf<T, L, false, kDst, true>(s.op[1], n);
    const auto d2 = operandOf<T, L, false, kDst, true>(s.op[kValues - 1], n);
    return walk<T, Sd>(src, d1, d2, n, S.anyArray ? s.count : 1, plainOf<T>(s.op[kValues]),
                       plainOf<T>(s.op[kValues + 1]), plainOf<T>(s.op[kValues + 2]));
  });
}

}  // namespace

namespace eigen_vectors_right {
template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  return runSide<Side::Right, P, T, L>(plan, c);
}
}  // namespace eigen_vectors_right

namespace eigen_vectors_left {
template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  return runSide<Side::Left, P, T, L>(plan, c);
}
}  // namespace eigen_vectors_left

namespace eigen_vectors_both {
template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  return runSide<Side::Both, P, T, L>(plan, c);
}
}  // namespace eigen_vectors_both

}  // namespace tarn

#define TARN_IMPL_eigen_vectors_right
#define TARN_IMPL_eigen_vectors_left
#define TARN_IMPL_eigen_vectors_both
#include "bindings.hpp"
