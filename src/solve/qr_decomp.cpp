// QRDecomp: Householder reduction of a matrix with no more columns than rows. dst receives R on
// and above the diagonal and, below the diagonal of column k, reflector k without its leading 1;
// no scale is stored. A square matrix has one reflector fewer than columns: its last diagonal
// element is what the reflections leave there, never tested.
//
// The sums of squares and products of a stage run over rows k to h-1 in two accumulators (even
// and odd positions from k), so the leading 1 of the reflector and the diagonal row take part
// as the first term of each sum rather than being added apart.
#include "call.hpp"
#include "dispatch.hpp"
#include "qr_fixed.hpp"

namespace tarn::qr_decomp {

using qr::kNormLimit;
using qr::reflectors;

// One object: copies src to dst row by row, then reduces dst in place with `v` (h elements) as
// the reflector's work vector. The reference for every shape.
template <class T, class Src, class Dst>
tarnStatus reduceOne(const Src& s, const Dst& a, T* v, int32_t h, int32_t w) {
  for (int32_t r = 0; r < h; ++r)
    for (int32_t c = 0; c < w; ++c) storeElem(a.at(r, c), loadElem(s.at(r, c)));
  auto pairSum = [&](int32_t k, auto x, auto y) {
    T s0 = 0, s1 = 0;
    int32_t i = k;
    for (; i + 1 < h; i += 2) {
      s0 = s0 + x(i) * y(i);
      s1 = s1 + x(i + 1) * y(i + 1);
    }
    if (i < h) s0 = s0 + x(i) * y(i);
    return s0 + s1;
  };
  const int32_t K = reflectors(h, w);
  for (int32_t k = 0; k < K; ++k) {
    auto col = [&](int32_t j) { return [&a, j](int32_t i) { return loadElem(a.at(i, j)); }; };
    const T n2 = pairSum(k, col(k), col(k));
    if (std::fabs(n2) < kNormLimit<T>) return tarnStatusDivideByZero;
    const T alpha = loadElem(a.at(k, k));
    T n = std::sqrt(n2);
    if (!(alpha > T(0))) n = T(0) - n;
    const T r = T(1) / (alpha + n);
    v[k] = T(1);
    for (int32_t i = k + 1; i < h; ++i) v[i] = loadElem(a.at(i, k)) * r;
    auto vec = [v](int32_t i) { return v[i]; };
    const T beta = T(-2) / pairSum(k, vec, vec);
    for (int32_t j = k; j < w; ++j) {
      const T s = pairSum(k, col(j), vec) * beta;
      for (int32_t i = k; i < h; ++i) storeElem(a.at(i, j), loadElem(a.at(i, j)) + v[i] * s);
    }
    for (int32_t i = k + 1; i < h; ++i) storeElem(a.at(i, k), v[i]);
  }
  return tarnStatusOk;
}

// An array: shapes with a body in locals go kLanes objects at a time. A group in which some
// object fails is done again object by object, which stops at the failing one as the walk must;
// the group's dst is written only when all of it succeeded. After a whole group `v` is left as
// the reference leaves it after the group's last object: 1 at the reflectors' leading positions,
// then the last reflector.
template <class T, class Src, class Dst>
tarnStatus walk(const Src& src, const Dst& dst, T* v, int32_t count, int32_t h, int32_t w) {
  // Two registers of objects per pass: the stages are one long chain of dependent operations
  // (sums, a square root, two divisions), and two independent chains keep the units busy.
  using V = solve::Lanes<T, 2>;
  constexpr int NL = solve::kLanesOf<V>;
  int32_t n = 0;
  tarnStatus st = tarnStatusOk;
  qr::withFixedShape(h, w, [&]<int H, int W>() {
    constexpr int K = reflectors(H, W);
    for (; n < count; n += NL) {
      const int32_t nv = std::min<int32_t>(NL, count - n);
      const auto gs = solve::groupOf<NL>(src, n, nv);
      const auto gd = solve::groupOf<NL>(dst, n, nv);
      V a[H][W];
      solve::gather(gs.v, a);
      if (qr::reduceFixed(a) == 0) {
        solve::scatter(gd.v, a, nv);
        for (int i = 0; i < K; ++i) v[i] = T(1);
        for (int i = K; i < H; ++i) v[i] = solve::laneOf(a[i][K - 1], nv - 1);
        continue;
      }
      for (int32_t l = 0; l < nv; ++l)
        if ((st = reduceOne(src.obj(n + l), dst.obj(n + l), v, h, w))) return;
    }
  });
  if (st) return st;
  for (; n < count; ++n)
    if (const tarnStatus s = reduceOne(src.obj(n), dst.obj(n), v, h, w)) return s;
  return tarnStatusOk;
}

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) -> tarnStatus {
    const auto src = operandOf<T, L, Contig, S.a>(s.op[0], s.width);
    T* const v = plainOf<T>(s.op[1]);
    const auto dst = operandOf<T, L, Contig, Operand{'m', S.anyArray}, true>(s.op[2], s.width);
    if constexpr (S.anyArray) return walk(src, dst, v, s.count, s.height, s.width);
    else return reduceOne(src.obj(0), dst.obj(0), v, s.height, s.width);
  });
}

}  // namespace tarn::qr_decomp

#define TARN_IMPL_qr_decomp
#include "bindings.hpp"
