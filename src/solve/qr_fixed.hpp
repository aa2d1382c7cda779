// Householder QR of matrices whose sizes are known at compile time, held in locals: the bodies
// that take several objects at once in the lanes of a register. They perform, element for
// element, the operations of the loops over memory in qr_decomp.cpp and qr_back_subst.cpp, which
// stay the reference for every size; these only keep the matrix in registers.
#pragma once

#include "lanes.hpp"

namespace tarn::qr {

using namespace solve;

// Reflectors of an h by w matrix: one per column, none for the last column of a square one.
constexpr int reflectors(int h, int w) { return w == h ? w - 1 : w; }

// Column-norm limit: a squared norm strictly below it fails the object.
template <class T>
inline constexpr T kNormLimit = sizeof(T) == 4 ? T(0x1p-23f) : T(0x1p-52);

// x(k)*y(k) + x(k+1)*y(k+1) + ... + x(h-1)*y(h-1) as two accumulators, one over the even and one
// over the odd positions counted from k, each starting at 0, added at the end.
template <int H, class V, class X, class Y>
inline V pairSum(int k, const X& x, const Y& y) {
  V s0 = constant<V>(0), s1 = constant<V>(0);
  int i = k;
  for (; i + 1 < H; i += 2) {
    s0 = s0 + x(i) * y(i);
    s1 = s1 + x(i + 1) * y(i + 1);
  }
  if (i < H) s0 = s0 + x(i) * y(i);
  return s0 + s1;
}

// Reduces a in place. Returns 0, or the lanes of the first stage at which some lane's squared
// column norm fell below the limit; the values of a are then incomplete.
template <int H, int W, class V>
[[gnu::noinline]] int reduceFixed(V (&a)[H][W]) {
  using T = ElemOf<V>;
  constexpr int K = reflectors(H, W);
  V v[H];
  for (int k = 0; k < K; ++k) {
    const V n2 = pairSum<H, V>(k, [&](int i) { return a[i][k]; }, [&](int i) { return a[i][k]; });
    if (const int bad = belowMask(n2, kNormLimit<T>)) return bad;
    const V alpha = a[k][k];
    const V n = negUnlessPositive(alpha, sqrtOf(n2));
    const V r = constant<V>(1) / (alpha + n);
    v[k] = constant<V>(1);
    for (int i = k + 1; i < H; ++i) v[i] = a[i][k] * r;
    const V q = pairSum<H, V>(k, [&](int i) { return v[i]; }, [&](int i) { return v[i]; });
    const V beta = constant<V>(-2) / q;
    for (int j = k; j < W; ++j) {
      const V s = pairSum<H, V>(k, [&](int i) { return a[i][j]; }, [&](int i) { return v[i]; }) * beta;
      for (int i = k; i < H; ++i) a[i][j] = a[i][j] + v[i] * s;
    }
    for (int i = k + 1; i < H; ++i) a[i][k] = v[i];
  }
  return 0;
}

// -2/q of each stored reflector, q = 1 + the squares of its stored elements in order.
template <int H, int W, class V>
inline void scalesFixed(const V (&a)[H][W], V (&g)[reflectors(H, W) > 0 ? reflectors(H, W) : 1]) {
  for (int k = 0; k < reflectors(H, W); ++k) {
    V q = constant<V>(1);
    for (int i = k + 1; i < H; ++i) q = q + a[i][k] * a[i][k];
    g[k] = constant<V>(-2) / q;
  }
}

// Applies the reflectors to c (b on entry) and solves R x = c by back substitution.
template <int H, int W, class V>
[[gnu::noinline]] void solveFixed(const V (&a)[H][W], const V (&g)[reflectors(H, W) > 0 ? reflectors(H, W) : 1],
                                  V (&c)[H], V (&x)[W]) {
  for (int k = 0; k < reflectors(H, W); ++k) {
    const V t = c[k];
    V s = t;
    for (int i = k + 1; i < H; ++i) s = s + c[i] * a[i][k];
    const V f = g[k] * s;
    c[k] = t + f;
    for (int i = k + 1; i < H; ++i) c[i] = c[i] + a[i][k] * f;
  }
  x[W - 1] = c[W - 1] / a[W - 1][W - 1];
  for (int i = W - 2; i >= 0; --i) {
    V s = constant<V>(0);
    for (int j = i + 1; j < W; ++j) s = s + a[i][j] * x[j];
    x[i] = (c[i] - s) / a[i][i];
  }
}

// Calls f.template operator()<H, W>() for the shapes with a body in locals (3 to 6 rows, 3 up
// to the rows in columns) and returns true, or returns false.
template <class F>
inline bool withFixedShape(int32_t h, int32_t w, F&& f) {
  if (h < 3 || h > 6 || w < 3 || w > h) return false;
  switch (h * 8 + w) {
    case 3 * 8 + 3: f.template operator()<3, 3>(); break;
    case 4 * 8 + 3: f.template operator()<4, 3>(); break;
    case 4 * 8 + 4: f.template operator()<4, 4>(); break;
    case 5 * 8 + 3: f.template operator()<5, 3>(); break;
    case 5 * 8 + 4: f.template operator()<5, 4>(); break;
    case 5 * 8 + 5: f.template operator()<5, 5>(); break;
    case 6 * 8 + 3: f.template operator()<6, 3>(); break;
    case 6 * 8 + 4: f.template operator()<6, 4>(); break;
    case 6 * 8 + 5: f.template operator()<6, 5>(); break;
    default: f.template operator()<6, 6>(); break;
  }
  return true;
}

}  // namespace tarn::qr
