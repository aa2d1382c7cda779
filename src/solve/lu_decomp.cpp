// LUDecomp: packed L and U with partial pivoting, the row order in pivot (widthHeight entries
// per object). Orders 3 to 6 run groups of objects in lanes where the operands allow it; a group
// with a failing lane goes back to the plain body object by object, which stops at the failing
// object with exactly its finished rows written.
#include "lu_lanes.hpp"

namespace tarn::lu_decomp {

using namespace tarn::lu;

template <class T, int N, bool Array, class S, class D>
tarnStatus fixedOrder(const S& src, const D& dst, int32_t* piv, int32_t count) {
  constexpr int G = solve::kGroup<T>;
  auto one = [&](int32_t n) { return factorExpanded<T, N>(src.obj(n), dst.obj(n), piv + size_t(n) * N); };
  if constexpr (!Array) {
    return one(0);
  } else {
  // Lanes need the pivots apart from both matrices, and dst apart from src or exactly on it.
  const solve::Span pivots = solve::plainSpan(piv, size_t(count) * N * 4);
  auto allowed = [&](int32_t n) {
    return !solve::meets(pivots, solve::footprint<G>(src, n, N, N, count)) &&
           !solve::meets(pivots, solve::footprint<G>(dst, n, N, N, count)) &&
           solve::clear<G>(dst, src, n, N, N, count);
  };
  constexpr bool kPerGroup = solve::IsTableArray<S>::value;
  return solve::walk<G>(count, count >= G && (kPerGroup || allowed(0)), [&](int32_t n) {
    if (kPerGroup && !allowed(n)) return false;
    FactorLanes<T, N> f;
    decltype(src.obj(0)) v[G];
    for (int l = 0; l < G; ++l) v[l] = src.obj(n + l);
    f.load(v);
    f.run();
    if (simd::anyLane(f.fail)) return false;
    solve::Spilled<T, N * N + N> out;
    for (int k = 0; k < N; ++k) {
      for (int c = 0; c < N; ++c) out.put(k * N + c, f.a[k][c]);
      out.put(N * N + k, f.piv[k]);
    }
    for (int l = 0; l < G; ++l) {
      const auto d = dst.obj(n + l);
      int32_t* p = piv + size_t(n + l) * N;
      for (int k = 0; k < N; ++k) {
        const int32_t row = int32_t(out.at(N * N + k, l));
        for (int c = 0; c < N; ++c) storeElem(d.at(row, c), out.at(k * N + c, l));
        p[k] = row;
      }
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
    int32_t* const piv = plainOf<int32_t>(s.op[1]);
    const auto dst = operandOf<T, L, Contig, Operand{'m', S.anyArray}, true>(s.op[2], order);
    // A single object is a count of 1 the compiler can see.
    const int32_t count = S.anyArray ? s.count : 1;
    switch (order) {
      case 3: return fixedOrder<T, 3, S.anyArray>(cached<9>(src), cached<9>(dst), piv, count);
      case 4: return fixedOrder<T, 4, S.anyArray>(cached<16>(src), cached<16>(dst), piv, count);
      case 5: return fixedOrder<T, 5, S.anyArray>(cached<25>(src), cached<25>(dst), piv, count);
      case 6: return fixedOrder<T, 6, S.anyArray>(cached<36>(src), cached<36>(dst), piv, count);
    }
    for (int32_t n = 0; n < count; ++n)
      if (const tarnStatus st = factorLoop<T>(src.obj(n), dst.obj(n), piv + size_t(n) * uint32_t(order), order))
        return st;
    return tarnStatusOk;
  });
}

}  // namespace tarn::lu_decomp

#define TARN_IMPL_lu_decomp
#include "bindings.hpp"
