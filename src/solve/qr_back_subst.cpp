// QRBackSubst: solves R x = Q^T b, or the least-squares problem of a tall matrix, from what
// QRDecomp stored: each reflector is applied to b with its scale -2/q recomputed from the stored
// elements, then R is solved from the bottom row up with a real division per row. Elements of
// the transformed b beyond the width are the residual and are dropped. Never fails.
//
// Square matrices of order 3 to 6 keep b in locals and leave `buffer` alone; every other shape
// transforms b in `buffer`. Either way b is read in full before dst is written, so dst may be
// src2.
#include "call.hpp"
#include "dispatch.hpp"
#include "qr_fixed.hpp"

namespace tarn::qr_back_subst {

using qr::reflectors;

inline bool inLocals(int32_t h, int32_t w) { return w == h && h >= 3 && h <= 6; }

// One right-hand side: the reference for every shape.
template <class T, class A, class B, class X>
void solveOne(const A& a, const B& b, const X& x, T* buffer, int32_t h, int32_t w) {
  T local[6];
  const bool locals = inLocals(h, w);
  T* const c = locals ? local : buffer;
  for (int32_t i = 0; i < h; ++i) c[i] = loadElem(b.at(0, i));
  for (int32_t k = 0; k < reflectors(h, w); ++k) {
    const T t = c[k];
    T s = t, q = T(1);
    for (int32_t i = k + 1; i < h; ++i) {
      const T e = loadElem(a.at(i, k));
      s = s + c[i] * e;
      q = q + e * e;
    }
    const T g = (T(-2) / q) * s;
    c[k] = t + g;
    for (int32_t i = k + 1; i < h; ++i) c[i] = c[i] + loadElem(a.at(i, k)) * g;
  }
  // x in locals for the square orders, stored at the end; otherwise straight into dst.
  T xl[6];
  auto xget = [&](int32_t j) { return locals ? xl[j] : loadElem(x.at(0, j)); };
  auto xput = [&](int32_t j, T v) {
    if (locals) xl[j] = v;
    else storeElem(x.at(0, j), v);
  };
  xput(w - 1, c[w - 1] / loadElem(a.at(w - 1, w - 1)));
  for (int32_t i = w - 2; i >= 0; --i) {
    T s = T(0);
    for (int32_t j = i + 1; j < w; ++j) s = s + loadElem(a.at(i, j)) * xget(j);
    xput(i, (c[i] - s) / loadElem(a.at(i, i)));
  }
  if (locals)
    for (int32_t j = 0; j < w; ++j) storeElem(x.at(0, j), xl[j]);
}

// Arrays: shapes with a body in locals take kLanes right-hand sides at a time, against kLanes
// matrices (mava) or the one matrix (mva), whose elements and scales are then formed once. A
// shape that keeps b in `buffer` leaves there, after each group, the transformed b of the
// group's last object, as the reference would.
template <bool OneMatrix, class T, class A, class B, class X>
void walk(const A& a, const B& b, const X& x, T* buffer, int32_t count, int32_t h, int32_t w) {
  using V = solve::Lanes<T, 2>;  // two registers of objects per pass, as in QRDecomp
  constexpr int NL = solve::kLanesOf<V>;
  int32_t n = 0;
  qr::withFixedShape(h, w, [&]<int H, int W>() {
    constexpr int K = reflectors(H, W) > 0 ? reflectors(H, W) : 1;
    V m[H][W], g[K];
    if constexpr (OneMatrix) {
      const auto o = a.obj(0);
      for (int r = 0; r < H; ++r)
        for (int c = 0; c < W; ++c) m[r][c] = solve::constant<V>(loadElem(o.at(r, c)));
      qr::scalesFixed(m, g);
    }
    for (; n < count; n += NL) {
      const int32_t nv = std::min<int32_t>(NL, count - n);
      if constexpr (!OneMatrix) {
        solve::gather(solve::groupOf<NL>(a, n, nv).v, m);
        qr::scalesFixed(m, g);
      }
      V c[1][H], r[1][W];
      solve::gather(solve::groupOf<NL>(b, n, nv).v, c);
      qr::solveFixed(m, g, c[0], r[0]);
      solve::scatter(solve::groupOf<NL>(x, n, nv).v, r, nv);
      if (!inLocals(H, W))
        for (int i = 0; i < H; ++i) buffer[i] = solve::laneOf(c[0][i], nv - 1);
    }
  });
  for (; n < count; ++n) solveOne(a.obj(n), b.obj(n), x.obj(n), buffer, h, w);
}

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) -> tarnStatus {
    const auto a = operandOf<T, L, Contig, S.a>(s.op[0], s.width);
    T* const buffer = plainOf<T>(s.op[1]);
    const auto b = operandOf<T, L, Contig, S.b>(s.op[2], s.height);
    const auto x = operandOf<T, L, Contig, Operand{'v', S.anyArray}, true>(s.op[3], s.width);
    if constexpr (S.anyArray) walk<!S.a.array>(a, b, x, buffer, s.count, s.height, s.width);
    else solveOne(a.obj(0), b.obj(0), x.obj(0), buffer, s.height, s.width);
    return tarnStatusOk;
  });
}

}  // namespace tarn::qr_back_subst

#define TARN_IMPL_qr_back_subst
#include "bindings.hpp"
