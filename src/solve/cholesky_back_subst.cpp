// CholeskyBackSubst: x from the factor that CholeskyDecomp left, for one system (mv), one factor
// against many right-hand sides (mva: orders 3 to 6 load the factor once) or many systems
// pairwise (mava). Multiplications and subtractions only; never fails after validation. Orders
// 3 to 6 run groups of vectors in lanes.
#include "cholesky_lanes.hpp"

namespace tarn::cholesky_back_subst {

using namespace tarn::chol;

template <class T, int N, class X>
void storeGroup(const X& x, int32_t n, const simd::Vec<T> (&y)[N]) {
  solve::Spilled<T, N> out;
  for (int i = 0; i < N; ++i) out.put(i, y[i]);
  for (int l = 0; l < solve::kGroup<T>; ++l) {
    const auto xv = x.obj(n + l);
    for (int i = 0; i < N; ++i) storeElem(xv.at(0, i), out.at(i, l));
  }
}

// mava: each object with its own factor. Lanes need x apart from the factors, which each object
// reads at its turn, and apart from b or exactly on it.
template <class T, int N, class F, class B, class X>
tarnStatus pairs(const F& f, const B& b, const X& x, int32_t count) {
  constexpr int G = solve::kGroup<T>;
  constexpr int kElems = N * (N + 1) / 2;
  auto one = [&](int32_t n) {
    Factor<T, N> fo;
    fo.load(f.obj(n));
    solveExpanded<T, N>(fo, b.obj(n), x.obj(n));
    return tarnStatusOk;
  };
  auto allowed = [&](int32_t n) {
    return !solve::meets(solve::footprint<G>(x, n, 1, N, count), solve::footprint<G>(f, n, N, N, count)) &&
           solve::clear<G>(x, b, n, 1, N, count);
  };
  constexpr bool kPerGroup = solve::IsTableArray<X>::value;
  return solve::walk<G>(count, count >= G && (kPerGroup || allowed(0)), [&](int32_t n) {
    if (kPerGroup && !allowed(n)) return false;
    using V = simd::Vec<T>;
    decltype(f.obj(0)) fv[G];
    decltype(b.obj(0)) bv[G];
    for (int l = 0; l < G; ++l) {
      fv[l] = f.obj(n + l);
      bv[l] = b.obj(n + l);
    }
    V l[kElems], y[N];
    for (int i = 0; i < N; ++i) {
      for (int j = 0; j <= i; ++j) l[tri(i, j)] = solve::gather<T>(fv, i, j);
      y[i] = solve::gather<T>(bv, 0, i);
    }
    solveLanes<T, N>(l, y);
    storeGroup<T, N>(x, n, y);
    return true;
  }, one);
}

// mva: one factor for every vector, loaded once; only b and x can meet.
template <class T, int N, class F, class B, class X>
tarnStatus shared(const F& f, const B& b, const X& x, int32_t count) {
  constexpr int G = solve::kGroup<T>;
  using V = simd::Vec<T>;
  Factor<T, N> fo;
  fo.load(f.obj(0));
  auto one = [&](int32_t n) {
    solveExpanded<T, N>(fo, b.obj(n), x.obj(n));
    return tarnStatusOk;
  };
  V l[N * (N + 1) / 2];
  for (int i = 0; i < N; ++i)
    for (int j = 0; j <= i; ++j) l[tri(i, j)] = simd::broadcast(fo.l[i][j]);
  auto allowed = [&](int32_t n) { return solve::clear<G>(x, b, n, 1, N, count); };
  constexpr bool kPerGroup = solve::IsTableArray<X>::value;
  return solve::walk<G>(count, count >= G && (kPerGroup || allowed(0)), [&](int32_t n) {
    if (kPerGroup && !allowed(n)) return false;
    decltype(b.obj(0)) bv[G];
    for (int k = 0; k < G; ++k) bv[k] = b.obj(n + k);
    V y[N];
    for (int i = 0; i < N; ++i) y[i] = solve::gather<T>(bv, 0, i);
    solveLanes<T, N>(l, y);
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
    const auto b = operandOf<T, L, Contig, S.b>(s.op[1], order);
    const auto x = operandOf<T, L, Contig, Operand{'v', S.anyArray}, true>(s.op[2], order);
    const int32_t count = S.anyArray ? s.count : 1;  // a single system: a count the compiler sees
    auto fixed = [&]<int N>() {
      const auto fc = cached<N * N>(f);
      const auto bc = cached<N>(b);
      const auto xc = cached<N>(x);
      if constexpr (!S.anyArray) {
        Factor<T, N> fo;
        fo.load(fc.obj(0));
        solveExpanded<T, N>(fo, bc.obj(0), xc.obj(0));
        return tarnStatusOk;
      } else if constexpr (S.a.array) {
        return pairs<T, N>(fc, bc, xc, count);
      } else {
        return shared<T, N>(fc, bc, xc, count);
      }
    };
    switch (order) {
      case 3: return fixed.template operator()<3>();
      case 4: return fixed.template operator()<4>();
      case 5: return fixed.template operator()<5>();
      case 6: return fixed.template operator()<6>();
    }
    for (int32_t n = 0; n < count; ++n) solveLoop<T>(f.obj(n), b.obj(n), x.obj(n), order);
    return tarnStatusOk;
  });
}

}  // namespace tarn::cholesky_back_subst

#define TARN_IMPL_cholesky_back_subst
#include "bindings.hpp"
