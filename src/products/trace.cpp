// Trace: the sum of the diagonal elements of each square matrix, (0, 0) first, one element of
// the plain result array per object. Orders 3 to 6 add left to right and store once. Other
// orders add two diagonal elements per step to a running sum from zero, storing the sum in dst
// after every addition, then the last element of an odd order: with dst on the diagonal of its
// own matrix, a later step reads the stored sum. No vector arithmetic: every path gives the same
// bits.
#include "reduce.hpp"

namespace tarn::trace {
namespace {

template <class T, int N, class A>
void unrolled(const A& a, T* d, int32_t count) {
  const auto xa = cached<N * N>(a);
  for (int32_t n = 0; n < count; ++n) {
    const auto v = xa.obj(n);
    T s = loadElem(v.at(0, 0));
    for (int k = 1; k < N; ++k) s = s + loadElem(v.at(k, k));
    d[n] = s;
  }
}

template <class T, class A>
void stepwise(const A& a, T* d, int32_t count, int32_t order) {
  for (int32_t n = 0; n < count; ++n) {
    const auto v = a.obj(n);
    T* out = d + n;
    T s = T(0);
    int32_t k = 0;
    for (; k + 1 < order; k += 2) {
      s = s + loadElem(v.at(k, k));
      *out = s;
      s = s + loadElem(v.at(k + 1, k + 1));
      *out = s;
    }
    if (k < order) {
      s = s + loadElem(v.at(k, k));
      *out = s;
    }
  }
}

}  // namespace

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) {
    const auto a = operandOf<T, L, Contig, S.a>(s.op[0], c.order);
    T* d = plainOf<T>(s.op[1]);
    const int32_t count = S.anyArray ? s.count : 1;  // a single matrix has no object loop
    if (count < 1) return tarnStatusOk;
    switch (c.order) {
      case 3: unrolled<T, 3>(a, d, count); break;
      case 4: unrolled<T, 4>(a, d, count); break;
      case 5: unrolled<T, 5>(a, d, count); break;
      case 6: unrolled<T, 6>(a, d, count); break;
      default: stepwise<T>(a, d, count, c.order);
    }
    return tarnStatusOk;
  });
}

}  // namespace tarn::trace

#define TARN_IMPL_trace
#include "bindings.hpp"
