// Inverses of orders 3 to 6 in closed form: adjugates over a number type V (one object, or
// several in lanes), and the block form of orders 5 and 6 that the contiguous float paths take.
#pragma once

#include <utility>

#include "det_fixed.hpp"

namespace tarn::inverse {

using solve::ElemOf;

// Every cofactor carries its sign folded into its own operations (a subtraction taken the other
// way round, 0 - minor at orders 5 and 6), so a cofactor that cancels exactly is +0 at every
// order and the inverse of a diagonal matrix has no negative zeros. The determinant is the sum of
// the last row's elements times their cofactors, which is Det's value wherever it passes the
// tolerance (the two can differ only in the sign of an exact zero).

// Order 3: every cofactor C(i, j) straight from the elements; the determinant is the expansion
// on row 2, from its last column.
template <class V>
inline V adjugate3(const V (&a)[3][3], V (&c)[3][3]) {
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) {
      const int r0 = i == 0 ? 1 : 0, r1 = i == 2 ? 1 : 2, c0 = j == 0 ? 1 : 0, c1 = j == 2 ? 1 : 2;
      const V p = a[r0][c0] * a[r1][c1], q = a[r0][c1] * a[r1][c0];
      c[i][j] = (i + j) % 2 ? q - p : p - q;
    }
  return (a[2][2] * c[2][2] + a[2][1] * c[2][1]) + a[2][0] * c[2][0];
}

// Order 4: the 2 by 2 minors of rows 0, 1 and of rows 2, 3; the cofactors of rows 0 and 1 from
// those of rows 2, 3 and the cofactors of rows 2 and 3 from those of rows 0, 1. The determinant
// is the expansion on row 3.
// The cofactors of row 3 and the determinant, which need only rows 0 and 1's minors; then the
// other rows'. Split so that a caller can test the determinant before forming the rest.
template <class V>
inline V cofactorsLast4(const V (&a)[4][4], V (&c3)[4]) {
  minors::cofactorsRow<true>(a[2], minors::minors2(a[0], a[1]), c3);
  return ((a[3][0] * c3[0] + a[3][1] * c3[1]) + a[3][2] * c3[2]) + a[3][3] * c3[3];
}
template <class V>
inline void cofactorsRest4(const V (&a)[4][4], V (&c)[4][4]) {
  const minors::Minors2<V> top = minors::minors2(a[0], a[1]), low = minors::minors2(a[2], a[3]);
  minors::cofactorsRow<false>(a[1], low, c[0]);
  minors::cofactorsRow<true>(a[0], low, c[1]);
  minors::cofactorsRow<false>(a[3], top, c[2]);
}
template <class V>
inline V adjugate4(const V (&a)[4][4], V (&c)[4][4]) {
  const V d = cofactorsLast4(a, c[3]);
  cofactorsRest4(a, c);
  return d;
}

// Orders 5 and 6 off the block paths: each cofactor is the closed-form determinant of its minor;
// the determinant is Det's.
template <int N, class T>
inline T adjugateN(const T (&a)[N][N], T (&c)[N][N]) {
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) {
      T m[N - 1][N - 1];
      for (int r = 0, mr = 0; r < N; ++r) {
        if (r == i) continue;
        for (int k = 0, mk = 0; k < N; ++k)
          if (k != j) m[mr][mk++] = a[r][k];
        ++mr;
      }
      const T d = minors::detFixed<N - 1>(m);
      c[i][j] = (i + j) % 2 ? T(0) - d : d;
    }
  return minors::detFixed<N>(a);
}

template <int N, class V>
inline V adjugate(const V (&a)[N][N], V (&c)[N][N]) {
  if constexpr (N == 3) return adjugate3(a, c);
  else if constexpr (N == 4) return adjugate4(a, c);
  else return adjugateN<N>(a, c);
}

// out(i, j) = C(j, i) * q.
template <int N, class V>
inline void scaleTransposed(const V (&c)[N][N], V q, V (&out)[N][N]) {
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) out[i][j] = c[j][i] * q;
}

// ---- Block form, float --------------------------------------------------------------------

// The column of the largest magnitude among e[0..n): later columns win ties; with LastStrict, column
// n-1 wins only when strictly larger than all before it. A NaN never wins over what came first.
template <int N, bool LastStrict>
inline int pivotColumn(const float* e) {
  int j = 0;
  float best = std::fabs(e[0]);
  for (int c = 1; c < N; ++c) {
    const float m = std::fabs(e[c]);
    if (LastStrict && c == N - 1 ? m > best : m >= best) {
      best = m;
      j = c;
    }
  }
  return j;
}

// The inverse of [p R; c B] from r = q(p), R, l = c*r and the inverse Si of S = B - l*R:
// [r - r*(R.x), -r*(R Si); x, Si] with x = -(Si l). Every sum runs over ascending index.
template <int M>
inline void assemble(float r, const float (&R)[M], const float (&l)[M], const float (&si)[M][M],
                     float (&out)[M + 1][M + 1]) {
  float x[M];
  for (int i = 0; i < M; ++i) {
    float s = si[i][0] * l[0];
    for (int k = 1; k < M; ++k) s = s + si[i][k] * l[k];
    x[i] = -s;
  }
  for (int k = 0; k < M; ++k) {
    float s = R[0] * si[0][k];
    for (int i = 1; i < M; ++i) s = s + R[i] * si[i][k];
    out[0][k + 1] = -(r * s);
  }
  float s = R[0] * x[0];
  for (int i = 1; i < M; ++i) s = s + R[i] * x[i];
  out[0][0] = r - r * s;
  for (int i = 0; i < M; ++i) {
    out[i + 1][0] = x[i];
    for (int k = 0; k < M; ++k) out[i + 1][k + 1] = si[i][k];
  }
}

// One elimination stage on an (M+1) by (M+1) matrix whose pivot already stands at (0, 0):
// r, R, l and the Schur complement S = B - l*R.
template <int M>
inline float eliminate(const float (&a)[M + 1][M + 1], float (&R)[M], float (&l)[M], float (&s)[M][M]) {
  const float r = solve::approxRecip(a[0][0]);
  for (int k = 0; k < M; ++k) R[k] = a[0][k + 1];
  for (int i = 0; i < M; ++i) l[i] = a[i + 1][0] * r;
  for (int i = 0; i < M; ++i)
    for (int k = 0; k < M; ++k) s[i][k] = a[i + 1][k + 1] - l[i] * R[k];
  return r;
}

template <int N>
inline void swapColumns(float (&a)[N][N], int j, int k) {
  for (int i = 0; i < N; ++i) std::swap(a[i][j], a[i][k]);
}

// The 4 by 4 core: the order-4 adjugate tested against the tolerance of the whole order, with
// the approximate reciprocal of its determinant. False when singular.
inline bool core4(const float (&s)[4][4], float tol, float (&si)[4][4]) {
  float c[4][4];
  const float d = adjugate4(s, c);
  if (tol > std::fabs(d)) return false;
  scaleTransposed(c, solve::approxRecip(d), si);
  return true;
}

// Block form of order 5 or 6 on a: one (order 5) or two (order 6) pivot stages on rows 0 and 1,
// each pivot the largest magnitude of its row with its column exchanged to the front, then the
// 4 by 4 core; the inverse is assembled back through the stages and the column exchanges are
// undone as row exchanges. False when a pivot or the core is singular by tol.
inline bool blockInverse5(float (&a)[5][5], float tol, float (&out)[5][5]) {
  const int j = pivotColumn<5, true>(a[0]);
  if (tol > std::fabs(a[0][j])) return false;
  swapColumns(a, 0, j);
  float R[4], l[4], s[4][4], si[4][4];
  const float r = eliminate<4>(a, R, l, s);
  if (!core4(s, tol, si)) return false;
  assemble<4>(r, R, l, si, out);
  std::swap(out[0], out[j]);
  return true;
}

inline bool blockInverse6(float (&a)[6][6], float tol, float (&out)[6][6]) {
  const int j1 = pivotColumn<6, false>(a[0]);
  if (tol > std::fabs(a[0][j1])) return false;
  swapColumns(a, 0, j1);
  float R1[5], l1[5], m[5][5];
  const float r1 = eliminate<5>(a, R1, l1, m);
  // Stage 2 on the updated row 1: its column exchange is one of the whole matrix, so row 0's
  // part R1 is exchanged with it.
  const int j2 = pivotColumn<5, false>(m[0]);
  if (tol > std::fabs(m[0][j2])) return false;
  swapColumns(m, 0, j2);
  std::swap(R1[0], R1[j2]);
  float R2[4], l2[4], s[4][4], si[4][4], mi[5][5];
  const float r2 = eliminate<4>(m, R2, l2, s);
  if (!core4(s, tol, si)) return false;
  assemble<4>(r2, R2, l2, si, mi);
  assemble<5>(r1, R1, l1, mi, out);
  std::swap(out[1], out[1 + j2]);
  std::swap(out[0], out[j1]);
  return true;
}

}  // namespace tarn::inverse
