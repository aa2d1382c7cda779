// LUBackSubst: x from the factors and pivot that LUDecomp left, for one system (mv), one matrix
// against many right-hand sides (mva) or many systems pairwise (mava). Never fails after
// validation: a zero on U's diagonal gives infinities or NaNs. In mva orders 3 to 6 load the
// factor once and multiply by the reciprocals of its diagonal, formed once; everywhere else
// each row is divided. Orders 3 to 6 run groups of vectors in lanes.
#include "lu_lanes.hpp"

namespace tarn::lu_back_subst {

using namespace tarn::lu;

// Stores x of the G objects at n from the lanes of y.
template <class T, int N, class X>
void storeGroup(const X& x, int32_t n, const simd::Vec<T> (&y)[N]) {
  solve::Spilled<T, N> out;
  for (int i = 0; i < N; ++i) out.put(i, y[i]);
  for (int l = 0; l < solve::kGroup<T>; ++l) {
    const auto xv = x.obj(n + l);
    for (int i = 0; i < N; ++i) storeElem(xv.at(0, i), out.at(i, l));
  }
}

// mava: each object with its own factor and pivots, dividing by U's diagonal.
template <class T, int N, class F, class B, class X>
tarnStatus pairs(const F& f, const int32_t* piv, const B& b, const X& x, int32_t count) {
  constexpr int G = solve::kGroup<T>;
  auto one = [&](int32_t n) {
    Factor<T, N> fo;
    fo.load(f.obj(n), piv + size_t(n) * N);
    solveExpanded<T, N, false>(fo, nullptr, b.obj(n), x.obj(n));
    return tarnStatusOk;
  };
  // Lanes need x apart from the factors and pivots, which each object reads at its turn, and
  // apart from b or exactly on it.
  const solve::Span pivots = solve::plainSpan(piv, size_t(count) * N * 4);
  auto allowed = [&](int32_t n) {
    const solve::Span xs = solve::footprint<G>(x, n, 1, N, count);
    return !solve::meets(xs, pivots) && !solve::meets(xs, solve::footprint<G>(f, n, N, N, count)) &&
           solve::clear<G>(x, b, n, 1, N, count);
  };
  constexpr bool kPerGroup = solve::IsTableArray<X>::value;
  return solve::walk<G>(count, count >= G && (kPerGroup || allowed(0)), [&](int32_t n) {
    if (kPerGroup && !allowed(n)) return false;
    using V = simd::Vec<T>;
    decltype(f.obj(0)) fv[G];
    decltype(b.obj(0)) bv[G];
    int32_t rows[N][G];
    for (int l = 0; l < G; ++l) {
      fv[l] = f.obj(n + l);
      bv[l] = b.obj(n + l);
      for (int i = 0; i < N; ++i) rows[i][l] = piv[size_t(n + l) * N + i];
    }
    V u[N][N], y[N];
    for (int i = 0; i < N; ++i) {
      for (int j = 0; j < N; ++j) u[i][j] = solve::gatherRows<T>(fv, rows[i], j);
      y[i] = solve::gatherCols<T>(bv, rows[i]);
    }
    solveLanes<T, N, false>(u, nullptr, y);
    storeGroup<T, N>(x, n, y);
    return true;
  }, one);
}

// mva: one factor for every vector, loaded once with the reciprocals of its diagonal.
template <class T, int N, class F, class B, class X>
tarnStatus shared(const F& f, const int32_t* piv, const B& b, const X& x, int32_t count) {
  constexpr int G = solve::kGroup<T>;
  Factor<T, N> fo;
  fo.load(f.obj(0), piv);
  T rc[N];
  for (int i = 0; i < N; ++i) rc[i] = T(1) / fo.u[i][i];
  auto one = [&](int32_t n) {
    solveExpanded<T, N, true>(fo, rc, b.obj(n), x.obj(n));
    return tarnStatusOk;
  };
  // The factor is in locals already: only b and x can meet.
  auto allowed = [&](int32_t n) { return solve::clear<G>(x, b, n, 1, N, count); };
  constexpr bool kPerGroup = solve::IsTableArray<X>::value;
  using V = simd::Vec<T>;
  V u[N][N], rv[N];
  for (int i = 0; i < N; ++i) {
    for (int j = 0; j < N; ++j) u[i][j] = simd::broadcast(fo.u[i][j]);
    rv[i] = simd::broadcast(rc[i]);
  }
  return solve::walk<G>(count, count >= G && (kPerGroup || allowed(0)), [&](int32_t n) {
    if (kPerGroup && !allowed(n)) return false;
    decltype(b.obj(0)) bv[G];
    for (int l = 0; l < G; ++l) bv[l] = b.obj(n + l);
    V y[N];
    for (int i = 0; i < N; ++i) y[i] = solve::gather<T>(bv, 0, fo.piv[i]);
    solveLanes<T, N, true>(u, rv, y);
    storeGroup<T, N>(x, n, y);
    return true;
  }, one);
}

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  const int32_t order = c.order;
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) -> tarnStatus {
    const auto f = operandOf<T, L, Contig, S.a>(s.op[0], order);
    const int32_t* const piv = plainOf<const int32_t>(s.op[1]);
    const auto b = operandOf<T, L, Contig, S.b>(s.op[2], order);
    const auto x = operandOf<T, L, Contig, Operand{'v', S.anyArray}, true>(s.op[3], order);
    const int32_t count = S.anyArray ? s.count : 1;  // a single system: a count the compiler sees
    auto fixed = [&]<int N>() {
      const auto fc = cached<N * N>(f);
      const auto bc = cached<N>(b);
      const auto xc = cached<N>(x);
      if constexpr (!S.anyArray) {
        Factor<T, N> fo;
        fo.load(fc.obj(0), piv);
        solveExpanded<T, N, false>(fo, nullptr, bc.obj(0), xc.obj(0));
        return tarnStatusOk;
      } else if constexpr (S.a.array) {
        return pairs<T, N>(fc, piv, bc, xc, count);
      } else {
        return shared<T, N>(fc, piv, bc, xc, count);
      }
    };
    switch (order) {
      case 3: return fixed.template operator()<3>();
      case 4: return fixed.template operator()<4>();
      case 5: return fixed.template operator()<5>();
      case 6: return fixed.template operator()<6>();
    }
    for (int32_t n = 0; n < count; ++n)
      solveLoop<T>(f.obj(n), S.a.array ? piv + size_t(n) * uint32_t(order) : piv, b.obj(n), x.obj(n), order);
    return tarnStatusOk;
  });
}

}  // namespace tarn::lu_back_subst

#define TARN_IMPL_lu_back_subst
#include "bindings.hpp"
