// General eigenvectors: Q formed from the Hessenberg reflectors, the QR iteration run on the
// whole matrix with Q updated, eigenvectors of the quasi-triangular T by substitution,
// back-transformed by Q and normalised. All of it in the work space; the caller's destination
// is written once, at the end, by the member.
//
// Sides are named after the working matrix H (the transpose of the source): a right vector v
// satisfies H v = lambda v, a left vector transpose(v) H = lambda transpose(v). A conjugate pair
// at places j, j+1 (positive imaginary part first) keeps the real part of its vector in column
// j and the imaginary part in column j+1.
#pragma once

#include "eigen_general.hpp"

namespace tarn::geig {

// How an object ended besides a status: its vectors are done, or a 2 by 2 substitution step
// with a real right-hand side met a block it cannot solve. The latter ends the whole call with
// status 0 and without any vector written; with a complex right-hand side the same ends it with
// tarnStatusVectorSolveFailed.
inline constexpr int kVectorsDone = 0;
inline constexpr int kStopQuietly = 1;

// Q = H_1 H_2 ... H_{n-2}, accumulated from the last reflector back; the tails of the reflector
// vectors still lie below the subdiagonal of H, whose subdiagonal holds the betas (v's leading 1
// is implicit). A scalar at or below tiny counts as the identity.
template <class T, int N>
void formQ(Sq<T, N> H, const T* tau, Sq<T, N> Q) {
  const int n = H.n();
  for (int c = 1; c <= n; ++c)
    for (int r = 1; r <= n; ++r) Q(r, c) = r == c ? T(1) : T(0);
  for (int k = n - 2; k >= 1; --k) {
    const T t = tau[k - 1];
    if (!(absv(t) > Num<T>::tiny)) continue;
    const T* v = H.col(k);  // v(r) = v[r - 1] for r = k+2..n
    for (int j = k + 1; j <= n; ++j) {
      T* q = Q.col(j);
      T s = q[k];
      for (int r = k + 2; r <= n; ++r) s += v[r - 1] * q[r - 1];
      q[k] -= t * s;
      for (int r = k + 2; r <= n; ++r) q[r - 1] -= (t * v[r - 1]) * s;
    }
  }
}

// ---- Solving one diagonal block of the substitution -----------------------------------------

// Complete pivoting of a 2 by 2 system whose entries are numbered column by column: for the
// pivot p, its own number, the other entry of its column, the other of its row, the opposite.
inline constexpr int kPivot[4][4] = {{0, 1, 2, 3}, {1, 0, 3, 2}, {2, 3, 0, 1}, {3, 2, 1, 0}};

// (re + i im) / (c + i d) by the ratio of the smaller to the larger part of the divisor.
template <class T>
inline void complexDivide(T re, T im, T c, T d, T& outRe, T& outIm) {
  if (absv(d) <= absv(c)) {
    const T e = d / c, f = c + d * e;
    outRe = (re + im * e) / f;
    outIm = (im - re * e) / f;
  } else {
    const T e = c / d, f = d + c * e;
    outRe = (im + re * e) / f;
    outIm = (-re + im * e) / f;
  }
}

// pr x = scale * b with the pivot kept at least smin. `f` bounds the growth of the quotient.
template <class T>
inline T solve1(T pr, T b, T smin, T& scale) {
  T cnorm = absv(pr);
  if (cnorm < smin) {
    pr = smin;
    cnorm = smin;
  }
  const T bnorm = absv(b);
  scale = T(1);
  if (cnorm < T(1) && bnorm > T(1) && bnorm > Num<T>::hugeFactor * cnorm) scale = T(1) / bnorm;
  return (b * scale) / pr;
}

template <class T>
inline void solve1c(T pr, T pi, T re, T im, T smin, T bignum, T& xr, T& xi, T& scale) {
  T cnorm = absv(pr) + absv(pi);
  if (cnorm < smin) {
    pr = smin;
    pi = T(0);
    cnorm = smin;
  }
  const T bnorm = absv(re) + absv(im);
  scale = T(1);
  if (cnorm < T(1) && bnorm > T(1) && bnorm > bignum * cnorm) scale = T(1) / bnorm;
  const T q = scale / (pr * pr + pi * pi);
  xr = (pr * re + pi * im) * q;
  xi = (pr * im - pi * re) * q;
}

// C x = scale * b for a real 2 by 2 C (entries c[0] = C11, c[1] = C21, c[2] = C12, c[3] = C22).
// False when the largest entry is below smin: the system cannot be solved.
template <class T>
inline bool solve2(const T c[4], T b1, T b2, T smin, T bignum, T& x1, T& x2, T& scale) {
  T cmax = 0;
  int p = 0;
  for (int j = 0; j < 4; ++j)
    if (absv(c[j]) > cmax) {
      cmax = absv(c[j]);
      p = j;
    }
  if (cmax < smin) return false;
  const T u11 = c[p], l21c = c[kPivot[p][1]], u12 = c[kPivot[p][2]], c22 = c[kPivot[p][3]];
  const T u11r = T(1) / u11;
  const T l21 = u11r * l21c;
  T u22 = c22 - u12 * l21;
  if (absv(u22) < smin) u22 = smin;
  T r1 = b1, r2 = b2;
  if (p == 1 || p == 3) std::swap(r1, r2);  // the pivot lies in the second row
  r2 = r2 - l21 * r1;
  const T bound = larger(absv(r1 * (u22 * u11r)), absv(r2));
  scale = T(1);
  if (bound > T(1) && absv(u22) < T(1) && bound >= bignum * absv(u22)) scale = T(1) / bound;
  const T y2 = (r2 * scale) / u22;
  const T y1 = (scale * r1) * u11r - y2 * (u11r * u12);
  if (p >= 2) {  // the pivot lies in the second column
    x1 = y2;
    x2 = y1;
  } else {
    x1 = y1;
    x2 = y2;
  }
  return true;
}

// The same with a complex diagonal shift: C = cr + i diag(ci, ci), complex right-hand side.
template <class T>
inline bool solve2c(const T cr[4], T ci, const T br[2], const T bi[2], T smin, T bignum, T xr[2], T xi[2], T& scale) {
  const T civ[4] = {ci, T(0), T(0), ci};
  T cmax = 0;
  int p = 0;
  for (int j = 0; j < 4; ++j)
    if (absv(cr[j]) + absv(civ[j]) > cmax) {
      cmax = absv(cr[j]) + absv(civ[j]);
      p = j;
    }
  if (cmax < smin) return false;
  const T ur11 = cr[p], ui11 = civ[p];
  const T cr21 = cr[kPivot[p][1]], ci21 = civ[kPivot[p][1]];
  const T ur12 = cr[kPivot[p][2]], ui12 = civ[kPivot[p][2]];
  const T cr22 = cr[kPivot[p][3]], ci22 = civ[kPivot[p][3]];
  T ur11r, ui11r, lr21, li21, ur12s, ui12s, ur22, ui22;
  if (p == 0 || p == 3) {
    // A diagonal pivot: complex; the entries beside it are real.
    if (absv(ur11) > absv(ui11)) {
      const T t = ui11 / ur11;
      ur11r = T(1) / (ur11 * (T(1) + t * t));
      ui11r = -t * ur11r;
    } else {
      const T t = ur11 / ui11;
      ui11r = T(-1) / (ui11 * (T(1) + t * t));
      ur11r = -t * ui11r;
    }
    lr21 = cr21 * ur11r;
    li21 = cr21 * ui11r;
    ur12s = ur12 * ur11r;
    ui12s = ur12 * ui11r;
    ur22 = cr22 - ur12 * lr21;
    ui22 = ci22 - ur12 * li21;
  } else {
    // An off-diagonal pivot: real; the entries beside it are diagonal, complex.
    ur11r = T(1) / ur11;
    ui11r = T(0);
    lr21 = cr21 * ur11r;
    li21 = ci21 * ur11r;
    ur12s = ur12 * ur11r;
    ui12s = ui12 * ur11r;
    ur22 = cr22 - ur12 * lr21 + ui12 * li21;
    ui22 = -ur12 * li21 - ui12 * lr21;
  }
  T u22abs = absv(ur22) + absv(ui22);
  if (u22abs < smin) {
    ur22 = smin;
    ui22 = T(0);
    u22abs = smin;
  }
  const bool rowSwap = p == 1 || p == 3;
  T br1 = br[rowSwap ? 1 : 0], bi1 = bi[rowSwap ? 1 : 0];
  T br2 = br[rowSwap ? 0 : 1], bi2 = bi[rowSwap ? 0 : 1];
  br2 = br2 - lr21 * br1 + li21 * bi1;
  bi2 = bi2 - li21 * br1 - lr21 * bi1;
  const T bound = larger((absv(br1) + absv(bi1)) * (u22abs * (absv(ur11r) + absv(ui11r))), absv(br2) + absv(bi2));
  scale = T(1);
  if (bound > T(1) && u22abs < T(1) && bound >= bignum * u22abs) {
    scale = T(1) / bound;
    br1 *= scale;
    bi1 *= scale;
    br2 *= scale;
    bi2 *= scale;
  }
  T xr2, xi2;
  complexDivide(br2, bi2, ur22, ui22, xr2, xi2);
  const T xr1 = ur11r * br1 - ui11r * bi1 - ur12s * xr2 + ui12s * xi2;
  const T xi1 = ui11r * br1 + ur11r * bi1 - ui12s * xr2 - ur12s * xi2;
  const int a = p >= 2 ? 1 : 0;  // the pivot lies in the second column: unknowns swap
  xr[a] = xr1;
  xi[a] = xi1;
  xr[1 - a] = xr2;
  xi[1 - a] = xi2;
  return true;
}

// ---- Substitution ---------------------------------------------------------------------------

// The vectors of one side, built in V (Q on entry) from the last column back (right) or the
// first forward (left). `norm` holds, for each row or column the updates run along, the sum of
// magnitudes they multiply: a solution that could push the running vector past bignum scales
// the whole vector down first. x, y are the real and imaginary parts of the running vector,
// ar, ai accumulate the back-transformation.
template <class T, Side S, int N, bool Right>
int substitute(Sq<T, N> Tm, Sq<T, N> V, const T* norm, T* x, T* y, T* ar, T* ai) {
  using C = Cfg<T, S>;
  const int n = Tm.n();
  constexpr T tiny = Num<T>::tiny;
  const T smlnum = T(n) * C::smlnumBase;
  const T bignum = C::oneMinusEps / smlnum;
  const T floor = Right ? smlnum : Num<T>::tinyFloor;
  auto differs = [](T s) { return absv(s - T(1)) > C::scaleTiny; };
  // Entries of the system in the direction of the side: T itself for right vectors, its
  // transpose for left ones.
  auto at = [&](int r, int c) -> T { return Right ? Tm(r, c) : Tm(c, r); };
  // A 2 by 2 diagonal block whose first row is j (in the order the side walks). The test takes
  // the element type's own tiny on every member: the float threshold of the double-precision
  // left vectors stays in the QR search and the block standardisation, and does not reach here.
  auto blockAt = [&](int j) { return Right ? j > 1 && absv(Tm(j, j - 1)) > tiny : j < n && absv(Tm(j + 1, j)) > tiny; };

  int ki = Right ? n : 1;
  while (Right ? ki >= 1 : ki <= n) {
    const bool pair = blockAt(ki);
    const T wr = Tm(ki, ki);
    const T wi = pair ? std::sqrt(absv(Tm(Right ? ki : ki + 1, Right ? ki - 1 : ki))) *
                            std::sqrt(absv(Tm(Right ? ki - 1 : ki, Right ? ki : ki + 1)))
                      : T(0);
    const T smin = larger(C::eps * (absv(wr) + absv(wi)), floor);
    // Rows still to solve run from `first` towards `last` (1 or n), `step` apart.
    const int step = Right ? -1 : 1;
    const int first = pair ? ki + 2 * step : ki + step;
    const int lo = Right ? 1 : ki;  // the vector's entries: lo..hi
    const int hi = Right ? ki : n;
    auto scaleAll = [&](T s, bool cplx) {
      for (int k = lo; k <= hi; ++k) x[k - 1] *= s;
      if (cplx)
        for (int k = lo; k <= hi; ++k) y[k - 1] *= s;
    };
    // Every entry the side has not reached yet, minus the solved entry times its row or column.
    auto update = [&](int j, T vx, T* v) {
      if (Right)
        for (int k = 1; k < j; ++k) v[k - 1] -= vx * Tm(k, j);
      else
        for (int k = j + 1; k <= n; ++k) v[k - 1] -= vx * Tm(j, k);
    };
    auto pending = [&](int j) { return Right ? j >= 1 : j <= n; };

    if (!pair) {
      x[ki - 1] = T(1);
      if (Right)
        for (int k = 1; k < ki; ++k) x[k - 1] = -Tm(k, ki);
      else
        for (int k = ki + 1; k <= n; ++k) x[k - 1] = -Tm(ki, k);
      for (int j = first; pending(j);) {
        if (blockAt(j)) {
          const int j1 = Right ? j - 1 : j, j2 = j1 + 1;  // the block's rows, in index order
          const T c[4] = {at(j1, j1) - wr, at(j2, j1), at(j1, j2), at(j2, j2) - wr};
          T x1, x2, scale;
          if (!solve2(c, x[j1 - 1], x[j2 - 1], smin, bignum, x1, x2, scale)) return kStopQuietly;
          const T xnorm = larger(absv(x1), absv(x2));
          if (xnorm > T(1) && larger(norm[j1 - 1], norm[j2 - 1]) > bignum / xnorm) {
            x1 /= xnorm;
            x2 /= xnorm;
            scale /= xnorm;
          }
          if (differs(scale)) scaleAll(scale, false);
          x[j1 - 1] = x1;
          x[j2 - 1] = x2;
          if (Right) {
            for (int k = 1; k < j1; ++k) x[k - 1] -= x1 * Tm(k, j1);
            for (int k = 1; k < j1; ++k) x[k - 1] -= x2 * Tm(k, j2);
          } else {
            for (int k = j2 + 1; k <= n; ++k) x[k - 1] -= x1 * Tm(j1, k);
            for (int k = j2 + 1; k <= n; ++k) x[k - 1] -= x2 * Tm(j2, k);
          }
          j += 2 * step;
        } else {
          T scale;
          T v = solve1(Tm(j, j) - wr, x[j - 1], smin, scale);
          const T xnorm = absv(v);
          if (xnorm > T(1) && norm[j - 1] > bignum / xnorm) {
            v /= xnorm;
            scale /= xnorm;
          }
          if (differs(scale)) scaleAll(scale, false);
          x[j - 1] = v;
          update(j, v, x);
          j += step;
        }
      }
    } else {
      // The pair's own block gives the leading entries; for right vectors rows ki-1, ki, for
      // left vectors rows ki, ki+1 of T read transposed.
      const int r0 = Right ? ki - 1 : ki, r1 = r0 + 1;
      const T sup = Tm(r0, r1), sub = Tm(r1, r0);
      if (Right) {
        if (absv(sup) >= absv(sub)) {
          x[r0 - 1] = T(1);
          y[r1 - 1] = wi / sup;
        } else {
          x[r0 - 1] = -wi / sub;
          y[r1 - 1] = T(1);
        }
      } else {
        if (absv(sup) >= absv(sub)) {
          x[r0 - 1] = wi / sup;
          y[r1 - 1] = T(1);
        } else {
          x[r0 - 1] = T(1);
          y[r1 - 1] = -wi / sub;
        }
      }
      x[r1 - 1] = T(0);
      y[r0 - 1] = T(0);
      if (Right) {
        for (int k = 1; k < r0; ++k) {
          x[k - 1] = -x[r0 - 1] * Tm(k, r0);
          y[k - 1] = -y[r1 - 1] * Tm(k, r1);
        }
      } else {
        for (int k = r1 + 1; k <= n; ++k) {
          x[k - 1] = -x[r0 - 1] * Tm(r0, k);
          y[k - 1] = -y[r1 - 1] * Tm(r1, k);
        }
      }
      // The shift: wr + i wi for right vectors. The leading entries of a left pair belong to
      // the conjugate, transpose(v) H = conj(lambda) transpose(v), so the rest of the vector is
      // solved with wr - i wi and the whole column pair is one left vector in that sense
      // (v^H H = lambda v^H).
      const T ci = Right ? -wi : wi;
      for (int j = first; pending(j);) {
        if (blockAt(j)) {
          const int j1 = Right ? j - 1 : j, j2 = j1 + 1;
          const T cr[4] = {at(j1, j1) - wr, at(j2, j1), at(j1, j2), at(j2, j2) - wr};
          const T br[2] = {x[j1 - 1], x[j2 - 1]}, bi[2] = {y[j1 - 1], y[j2 - 1]};
          T vr[2], vi[2], scale;
          if (!solve2c(cr, ci, br, bi, smin, bignum, vr, vi, scale)) return tarnStatusVectorSolveFailed;
          const T xnorm = larger(absv(vr[0]) + absv(vi[0]), absv(vr[1]) + absv(vi[1]));
          if (xnorm > T(1) && larger(norm[j1 - 1], norm[j2 - 1]) > bignum / xnorm) {
            for (int q = 0; q < 2; ++q) {
              vr[q] /= xnorm;
              vi[q] /= xnorm;
            }
            scale /= xnorm;
          }
          if (differs(scale)) scaleAll(scale, true);
          x[j1 - 1] = vr[0];
          x[j2 - 1] = vr[1];
          y[j1 - 1] = vi[0];
          y[j2 - 1] = vi[1];
          if (Right) {
            for (int k = 1; k < j1; ++k) x[k - 1] -= vr[0] * Tm(k, j1);
            for (int k = 1; k < j1; ++k) x[k - 1] -= vr[1] * Tm(k, j2);
            for (int k = 1; k < j1; ++k) y[k - 1] -= vi[0] * Tm(k, j1);
            for (int k = 1; k < j1; ++k) y[k - 1] -= vi[1] * Tm(k, j2);
          } else {
            for (int k = j2 + 1; k <= n; ++k) x[k - 1] -= vr[0] * Tm(j1, k);
            for (int k = j2 + 1; k <= n; ++k) x[k - 1] -= vr[1] * Tm(j2, k);
            for (int k = j2 + 1; k <= n; ++k) y[k - 1] -= vi[0] * Tm(j1, k);
            for (int k = j2 + 1; k <= n; ++k) y[k - 1] -= vi[1] * Tm(j2, k);
          }
          j += 2 * step;
        } else {
          T vr, vi, scale;
          solve1c(Tm(j, j) - wr, ci, x[j - 1], y[j - 1], smin, bignum, vr, vi, scale);
          const T xnorm = absv(vr) + absv(vi);
          if (xnorm > T(1) && norm[j - 1] > bignum / xnorm) {
            vr /= xnorm;
            vi /= xnorm;
            scale /= xnorm;
          }
          if (differs(scale)) scaleAll(scale, true);
          x[j - 1] = vr;
          y[j - 1] = vi;
          update(j, vr, x);
          update(j, vi, y);
          j += step;
        }
      }
    }

    // Back-transformation: Q times the solution, the columns the side has passed first and the
    // vector's own leading column last; the result replaces column ki (pair: both columns).
    const int lead = ki;
    const int q0 = Right ? 1 : ki + 1, q1 = Right ? ki - 1 : n;
    for (int i = 0; i < n; ++i) ar[i] = T(0);
    if (pair)
      for (int i = 0; i < n; ++i) ai[i] = T(0);
    for (int j = q0; j <= q1; ++j) {
      const T* v = V.col(j);
      const T xj = x[j - 1];
      for (int i = 0; i < n; ++i) ar[i] += v[i] * xj;
      if (pair) {
        const T yj = y[j - 1];
        for (int i = 0; i < n; ++i) ai[i] += v[i] * yj;
      }
    }
    {
      const T* v = V.col(lead);
      const T xl = x[lead - 1];
      for (int i = 0; i < n; ++i) ar[i] = ar[i] + xl * v[i];
      if (pair) {
        const T yl = y[lead - 1];
        for (int i = 0; i < n; ++i) ai[i] = ai[i] + yl * v[i];
      }
    }
    // Divide by the largest magnitude.
    T emax = 0;
    for (int i = 0; i < n; ++i) {
      const T m = pair ? absv(ar[i]) + absv(ai[i]) : absv(ar[i]);
      if (m > emax) emax = m;
    }
    const T rmax = T(1) / emax;
    const bool rescale = emax > tiny;
    const int cRe = Right ? (pair ? ki - 1 : ki) : ki;
    T* vre = V.col(cRe);
    for (int i = 0; i < n; ++i) vre[i] = rescale ? ar[i] * rmax : ar[i];
    if (pair) {
      T* vim = V.col(cRe + 1);
      for (int i = 0; i < n; ++i) vim[i] = rescale ? ai[i] * rmax : ai[i];
    }
    ki += pair ? 2 * step : step;
  }
  return kVectorsDone;
}

// Unit length: a real vector alone (unless its sum of squares is at most tiny), a pair's two
// columns together, then turned so that its largest component is real.
template <class T, Side S, int N>
void normalise(Sq<T, N> V, const T* im) {
  using C = Cfg<T, S>;
  const int n = V.n();
  for (int i = 1; i <= n;) {
    T* x = V.col(i);
    // A lone last place is real whatever its imaginary part holds (only a NaN can put one
    // there).
    if (absv(im[i - 1]) <= Num<T>::tiny || i == n) {
      T s = 0;
      for (int k = 0; k < n; ++k) s += x[k] * x[k];
      if (s > Num<T>::tiny) {
        const T r = invSqrt<C::kApproxInvSqrt>(s);
        for (int k = 0; k < n; ++k) x[k] *= r;
      }
      ++i;
      continue;
    }
    T* y = V.col(i + 1);
    // Sum of squares of the real column, then of the imaginary one.
    T s = 0;
    for (int k = 0; k < n; ++k) s += x[k] * x[k];
    for (int k = 0; k < n; ++k) s += y[k] * y[k];
    const T r = invSqrt<C::kApproxInvSqrt>(s);
    for (int k = 0; k < n; ++k) {
      x[k] *= r;
      y[k] *= r;
    }
    int kb = 0;
    T best = x[0] * x[0] + y[0] * y[0];
    for (int k = 1; k < n; ++k) {
      const T m = x[k] * x[k] + y[k] * y[k];
      if (m > best) {
        best = m;
        kb = k;
      }
    }
    const T rr = std::sqrt(x[kb] * x[kb] + y[kb] * y[kb]);
    T cs = x[kb] / rr, sn = y[kb] / rr;
    if (absv(y[kb]) < absv(x[kb]) && cs < 0) {
      cs = -cs;
      sn = -sn;
    }
    for (int k = 0; k < n; ++k) {
      const T a = x[k], b = y[k];
      x[k] = cs * a + sn * b;
      y[k] = cs * b - sn * a;
    }
    i += 2;
  }
}

// Eigenvalues to re, im and the normalised vectors to V1 (right, or left for Side::Left) and
// V2 (left, Side::Both) for the matrix already copied into H. `work` holds 5n elements.
template <class T, Side S, int N>
int vectorsCore(Sq<T, N> H, Sq<T, N> V1, Sq<T, N> V2, T* work, T* re, T* im) {
  const int n = H.n();
  T* tau = work;  // later the imaginary accumulator
  T* norm = work + n;
  T* x = work + 2 * n;
  T* y = work + 3 * n;
  T* acc = work + 4 * n;
  hessenberg(H, tau, acc);
  formQ(H, tau, V1);
  clearBelow(H);
  if (const tarnStatus st = francis<T, S, N>(H, V1.a, re, im)) return st;
  if constexpr (S == Side::Both)
    for (int i = 0; i < n * n; ++i) V2.a[i] = V1.a[i];
  if constexpr (S == Side::Right || S == Side::Both) {
    for (int j = 1; j <= n; ++j) {
      T s = 0;
      for (int i = 1; i < j; ++i) s += absv(H(i, j));
      norm[j - 1] = s;
    }
    if (const int r = substitute<T, S, N, true>(H, V1, norm, x, y, acc, tau)) return r;
  }
  if constexpr (S == Side::Left || S == Side::Both) {
    const Sq<T, N> VL = S == Side::Both ? V2 : V1;
    for (int j = 1; j <= n; ++j) {
      T s = 0;
      for (int k = j + 1; k <= n; ++k) s += absv(H(j, k));
      norm[j - 1] = s;
    }
    if (const int r = substitute<T, S, N, false>(H, VL, norm, x, y, acc, tau)) return r;
  }
  normalise<T, S, N>(V1, im);
  if constexpr (S == Side::Both) normalise<T, S, N>(V2, im);
  return kVectorsDone;
}

}  // namespace tarn::geig
