// Determinants of orders 3 to 6 in closed form, over a number type V (one object, or several in
// lanes): minors of growing size from the top rows, the final expansion on the last row, no
// pivoting and no tolerance. Det returns them; Invert builds its cofactors from the same minors.
#pragma once

#include <bit>

#include "lanes.hpp"

namespace tarn::minors {

// (a00 a11 - a01 a10) a22 - (a00 a12 - a02 a10) a21 + (a01 a12 - a02 a11) a20.
template <class V>
inline V det3(const V (&a)[3][3]) {
  const V m01 = a[0][0] * a[1][1] - a[0][1] * a[1][0];
  const V m02 = a[0][0] * a[1][2] - a[0][2] * a[1][0];
  const V m12 = a[0][1] * a[1][2] - a[0][2] * a[1][1];
  return (m01 * a[2][2] - m02 * a[2][1]) + m12 * a[2][0];
}

// The six 2 by 2 minors m(j, k) = a(r, j) a(s, k) - a(r, k) a(s, j) of rows r and s, in the
// order 01 02 03 12 13 23.
template <class V>
struct Minors2 {
  V m01, m02, m03, m12, m13, m23;
};
template <class V>
inline Minors2<V> minors2(const V (&r)[4], const V (&s)[4]) {
  return {r[0] * s[1] - r[1] * s[0], r[0] * s[2] - r[2] * s[0], r[0] * s[3] - r[3] * s[0],
          r[1] * s[2] - r[2] * s[1], r[1] * s[3] - r[3] * s[1], r[2] * s[3] - r[3] * s[2]};
}

// The 3 by 3 minor of columns j0 < j1 < j2 expanded on `row` over 2 by 2 minors of two other
// rows: e(j0) m(j1 j2) - e(j1) m(j0 j2) + e(j2) m(j0 j1), left to right. With Neg the cofactor
// sign is folded in: e(j1) m(j0 j2) - e(j0) m(j1 j2) - e(j2) m(j0 j1), the same value negated
// exactly.
template <bool Neg, class V>
inline V expand3(V e0, V m12, V e1, V m02, V e2, V m01) {
  if constexpr (Neg) return (e1 * m02 - e0 * m12) - e2 * m01;
  else return (e0 * m12 - e1 * m02) + e2 * m01;
}

// The cofactors C(i, j) of row i of a 4 by 4 matrix, each the 3 by 3 minor that leaves out row i
// and column j, expanded on `e` (the one row of that minor that is not among the two rows of m)
// with its sign folded in; Odd when i is odd, so that C(i, 0) is negated. An expansion that
// cancels exactly gives +0 whatever its sign.
template <bool Odd, class V>
inline void cofactorsRow(const V (&e)[4], const Minors2<V>& m, V (&c)[4]) {
  c[0] = expand3<Odd>(e[1], m.m23, e[2], m.m13, e[3], m.m12);
  c[1] = expand3<!Odd>(e[0], m.m23, e[2], m.m03, e[3], m.m02);
  c[2] = expand3<Odd>(e[0], m.m13, e[1], m.m03, e[3], m.m01);
  c[3] = expand3<!Odd>(e[0], m.m12, e[1], m.m02, e[2], m.m01);
}

// Order 4: the minors of rows 0 and 1, the 3 by 3 minors with row 2, and the alternating sum on
// row 3, left to right: -a30 M30 + a31 M31 - a32 M32 + a33 M33.
template <class V>
inline V det4(const V (&a)[4][4]) {
  const Minors2<V> m = minors2(a[0], a[1]);
  const V* e = a[2];
  const V m0 = expand3<false>(e[1], m.m23, e[2], m.m13, e[3], m.m12);
  const V m1 = expand3<false>(e[0], m.m23, e[2], m.m03, e[3], m.m02);
  const V m2 = expand3<false>(e[0], m.m13, e[1], m.m03, e[3], m.m01);
  const V m3 = expand3<false>(e[0], m.m12, e[1], m.m02, e[2], m.m01);
  return ((a[3][1] * m1 - a[3][0] * m0) - a[3][2] * m2) + a[3][3] * m3;
}

// Any order from 4 up: the 2 by 2 minors of rows 0 and 1 for every pair of columns, then level
// by level the minors of rows 0 to L-1 for every set of L columns, each expanded on row L-1 with
// the signs alternating from + on its last column, terms in ascending column order; the last
// level is the determinant. Minors are kept by their set of columns as a bit mask.
template <int N, class V>
inline V ladderDet(const V (&a)[N][N]) {
  V m[1 << N];
  for (int j = 0; j < N; ++j)
    for (int k = j + 1; k < N; ++k) m[(1 << j) | (1 << k)] = a[0][j] * a[1][k] - a[0][k] * a[1][j];
  for (int level = 3; level <= N; ++level)
    for (unsigned set = 0; set < (1u << N); ++set) {
      if (std::popcount(set) != level) continue;
      int col[N], n = 0;
      for (int j = 0; j < N; ++j)
        if (set >> j & 1) col[n++] = j;
      const V* e = a[level - 1];
      auto term = [&](int t) { return e[col[t]] * m[set & ~(1u << col[t])]; };
      // Term t has the sign (-1)^(level-1+t): the first term is negative on even levels.
      const bool firstNegative = (level - 1) % 2 == 1;
      V s = firstNegative ? term(1) - term(0) : term(0);
      for (int t = firstNegative ? 2 : 1; t < level; ++t) s = (level - 1 + t) % 2 ? s - term(t) : s + term(t);
      m[set] = s;
    }
  return m[(1 << N) - 1];
}

template <int N, class V>
inline V detFixed(const V (&a)[N][N]) {
  if constexpr (N == 3) return det3(a);
  else if constexpr (N == 4) return det4(a);
  else return ladderDet<N>(a);
}

}  // namespace tarn::minors
