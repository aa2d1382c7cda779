// EigenValues: every eigenvalue of one real square matrix or of each matrix of an array, as real
// and imaginary parts in diagonal order (a conjugate pair adjacent, its positive imaginary part
// first, a real eigenvalue with an imaginary part of exactly 0). No balancing, no sort; the only
// failure is non-convergence, after which the eigenvalues already found stay.
#include "call.hpp"
#include "dispatch.hpp"
#include "eigen_general.hpp"
#include "eigen_values_lanes.hpp"
#include "operand.hpp"

namespace tarn::eigen_values {
namespace {

using geig::Side;
using geig::Sq;

// One matrix, already copied into a (n*n, then n reflector scalars and n of work space).
template <class T, int N>
[[gnu::noinline]] tarnStatus valuesOf(T* a, int n, T* re, T* im) {
  const Sq<T, N> H{a, n};
  geig::hessenberg(H, a + n * n, a + n * n + n);
  geig::clearBelow(H);
  return geig::francis<T, Side::Values, N>(H, nullptr, re, im);
}

// The serial worker of every layout: each matrix in turn, the first failure ends the walk.
// Orders with a dedicated body run several matrices side by side in the lanes of a register,
// with the same bits; other orders work one matrix at a time in the caller's scratch.
template <class T, class Src>
tarnStatus walk(const Src& src, int n, int32_t count, T* re, T* im, T* scratch) {
  return geig::withOrder(n, [&]<int N>() -> tarnStatus {
    if constexpr (N != 0) {
      geig::ValueLanes<T, N> lanes;
      return lanes.walk(src, count, re, im);
    } else {
      for (int32_t k = 0; k < count; ++k) {
        const auto o = src.obj(k);
        for (int i = 0; i < n; ++i)
          for (int j = 0; j < n; ++j) scratch[i * n + j] = *o.at(i, j);
        const std::ptrdiff_t at = std::ptrdiff_t(k) * n;
        if (const tarnStatus s = valuesOf<T, 0>(scratch, n, re + at, im + at)) return s;
      }
      return tarnStatusOk;
    }
  });
}

}  // namespace

// The estimate and threshold are the row's; there is no contiguous path, so both paths of the
// driver run the same worker.
template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  return drive<T, L>(plan, c, [&]<bool>(const Call& s) -> tarnStatus {
    const auto src = operandOf<T, L, false, S.a>(s.op[0], s.order);
    return walk<T>(src, s.order, S.anyArray ? s.count : 1, plainOf<T>(s.op[1]), plainOf<T>(s.op[2]),
                   plainOf<T>(s.op[3]));
  });
}

}  // namespace tarn::eigen_values

#define TARN_IMPL_eigen_values
#include "bindings.hpp"
