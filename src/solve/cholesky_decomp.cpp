// CholeskyDecomp: the lower factor of each symmetric positive definite matrix, its diagonal
// stored as reciprocals. Orders 3 to 6 run groups of objects in lanes where the operands allow
// it; a group with a failing lane goes back to the plain body object by object, which stops at
// the failing object with exactly its finished elements written.
#include "cholesky_lanes.hpp"

namespace tarn::cholesky_decomp {

using namespace tarn::chol;

template <class T, int N, bool Array, class S, class D>
tarnStatus fixedOrder(const S& src, const D& dst, int32_t count) {
  constexpr int G = solve::kGroup<T>;
  auto one = [&](int32_t n) { return factorExpanded<T, N>(src.obj(n), dst.obj(n)); };
  if constexpr (!Array) {
    return one(0);
  } else {
    auto allowed = [&](int32_t n) { return solve::clear<G>(dst, src, n, N, N, count); };
    constexpr bool kPerGroup = solve::IsTableArray<S>::value;
    return solve::walk<G>(count, count >= G && (kPerGroup || allowed(0)), [&](int32_t n) {
      if (kPerGroup && !allowed(n)) return false;
      using F = FactorLanes<T, N>;
      F f;
      decltype(src.obj(0)) v[G];
      for (int l = 0; l < G; ++l) v[l] = src.obj(n + l);
      f.load(v);
      f.run();
      if (simd::anyLane(f.fail)) return false;
      solve::Spilled<T, F::kElems> out;
      for (int e = 0; e < F::kElems; ++e) out.put(e, f.a[e]);
      for (int l = 0; l < G; ++l) {
        const auto d = dst.obj(n + l);
        for (int i = 0; i < N; ++i)
          for (int j = 0; j <= i; ++j) storeElem(d.at(i, j), out.at(tri(i, j), l));
      }
      return true;
    }, one);
  }
}

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  const int32_t order = c.order;
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) -> tarnStatus {
    const auto src = operandOf<T, L, Contig, S.a>(s.op[0], order);
    const auto dst = operandOf<T, L, Contig, Operand{'m', S.anyArray}, true>(s.op[1], order);
    const int32_t count = S.anyArray ? s.count : 1;  // a single object: a count the compiler sees
    switch (order) {
      case 3: return fixedOrder<T, 3, S.anyArray>(cached<9>(src), cached<9>(dst), count);
      case 4: return fixedOrder<T, 4, S.anyArray>(cached<16>(src), cached<16>(dst), count);
      case 5: return fixedOrder<T, 5, S.anyArray>(cached<25>(src), cached<25>(dst), count);
      case 6: return fixedOrder<T, 6, S.anyArray>(cached<36>(src), cached<36>(dst), count);
    }
    for (int32_t n = 0; n < count; ++n)
      if (const tarnStatus st = factorLoop<T>(src.obj(n), dst.obj(n), order)) return st;
    return tarnStatusOk;
  });
}

}  // namespace tarn::cholesky_decomp

#define TARN_IMPL_cholesky_decomp
#include "bindings.hpp"
