// General (unsymmetric) eigenproblems: the parts every member shares.
//
// The working matrix H is the transpose of the source: the source is copied row after row into
// a column-major square, so each column of H is one contiguous run. H is reduced to upper
// Hessenberg form by Householder reflections, then taken to quasi-triangular form by the Francis
// double-shift QR iteration; each eigenvalue, or conjugate pair, is read off a 1 by 1 or 2 by 2
// diagonal block as soon as that block splits off.
//
// The eigenvalue members deflate on an absolute test (eps against the subdiagonal element) and
// update only the active block. The eigenvector members deflate on a test relative to the
// neighbouring diagonal, maintain the whole of T and update Q alongside, so the two kinds of
// member may return slightly different eigenvalues for one matrix.
//
// Everything is written once over a compile-time order N (0: the order is known at run time
// only); a fixed N lets the compiler unroll the short loops and keep the matrix on the stack,
// and changes no operation, so every order gives the same bits whichever body runs it.
#pragma once

#include <cmath>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "simd.hpp"
#include "tarn.h"

namespace tarn::geig {

// Which member a body serves: the eigenvalues alone, or eigenvalues and vectors of one or both
// sides.
enum class Side : uint8_t { Values, Right, Left, Both };

template <class T> struct Num;
template <> struct Num<float> {
  static constexpr float eps = 0x1p-23f, fourEps = 0x1p-21f, tiny = 0x1p-125f, tinyFloor = 0x1p-124f;
  static constexpr float smlnumBase = 0x1p-102f;  // tiny / eps
  static constexpr float oneMinusEps = 1.0f - 0x1p-23f;
  static constexpr float hugeFactor = 0x1p124f;
};
template <> struct Num<double> {
  static constexpr double eps = 0x1p-52, fourEps = 0x1p-50, tiny = 0x1p-1021, tinyFloor = 0x1p-1020;
  static constexpr double smlnumBase = 0x1p-969;  // tiny / eps
  static constexpr double oneMinusEps = 1.0 - 0x1p-52;
  static constexpr double hugeFactor = 0x1p1020;
};

// The constants one member works with. The double-precision left eigenvectors keep the float
// threshold in the QR search and in the 2 by 2 block (the reflectors keep their own), and every
// left or right member tells a scale factor from 1 by the float threshold too.
template <class T, Side S>
struct Cfg : Num<T> {
  static constexpr bool kF64 = std::is_same_v<T, double>;
  static constexpr T blockTiny = S == Side::Left && kF64 ? T(Num<float>::tiny) : Num<T>::tiny;
  static constexpr T scaleTiny = S == Side::Both && kF64 ? Num<T>::tiny : T(Num<float>::tiny);
  // The approximate reciprocal square root with one Newton step, or 1/sqrt.
  static constexpr bool kApproxInvSqrt = !kF64 && (S == Side::Left || S == Side::Right);
};

template <class T> inline T absv(T x) { return std::fabs(x); }
// The larger and the smaller of two values; with a NaN the second one.
template <class T> inline T larger(T a, T b) { return a > b ? a : b; }
template <class T> inline T smaller(T a, T b) { return a < b ? a : b; }

// sqrt(q + 1) for the magnitude of a reflector: a float quotient is widened, and the sum and
// the root are taken in double before the root is rounded back.
inline float rootOnePlus(float q) { return float(std::sqrt(double(q) + 1.0)); }
inline double rootOnePlus(double q) { return std::sqrt(q + 1.0); }

// sqrt(x) * sqrt(y), the roots of the 2 by 2 block: in double for floats, rounded once.
inline float rootProduct(float x, float y) { return float(std::sqrt(double(x)) * std::sqrt(double(y))); }
inline double rootProduct(double x, double y) { return std::sqrt(x) * std::sqrt(y); }

// sqrt(0.5 * (1 + x / y)): the whole expression in double for floats.
inline float halfCosine(float x, float y) { return float(std::sqrt(0.5 * (1.0 + double(x) / double(y)))); }
inline double halfCosine(double x, double y) { return std::sqrt(0.5 * (1.0 + x / y)); }

// |a| + |b| + |c|, for floats summed in double and rounded once.
inline float sum3(float a, float b, float c) { return float((double(std::fabs(a)) + double(std::fabs(b))) + double(std::fabs(c))); }
inline double sum3(double a, double b, double c) { return (std::fabs(a) + std::fabs(b)) + std::fabs(c); }

// 1/sqrt(s), or the processor's approximation improved by one Newton step.
template <bool Approx, class T>
inline T invSqrt(T s) {
  if constexpr (Approx) {
    const T y = simd::rsqrtApprox(s);
    return (T(-0.5) * y) * (s * y * y - T(3));
  } else {
    return T(1) / std::sqrt(s);
  }
}

// sqrt(x^2 + y^2) without overflow, never below tinyFloor. Shared by the reflectors and the
// 2 by 2 block, always with the element type's own thresholds.
template <class T>
inline T pythag(T x, T y) {
  using C = Num<T>;
  const T ax = absv(x), ay = absv(y);
  const T big = larger(ax, ay), small = smaller(ax, ay);
  T mag = big;
  if (small >= C::tiny) mag = big * rootOnePlus(small * small / (big * big));
  if (C::tiny > mag) mag = C::tinyFloor;
  return mag;
}

// A Householder reflector I - tau v v^T, v = (1, x), that maps (alpha, x) to (beta, 0), from
// alpha and the norm of x. A norm below tiny leaves x as it is: tau = 0 and beta = alpha.
template <class T>
struct Reflector {
  T beta, tau;
  bool scaled;  // x is to be multiplied by 1 / (alpha - beta)
};
template <class T>
inline Reflector<T> reflectorFrom(T alpha, T xnorm) {
  if (Num<T>::tiny > xnorm) return {alpha, T(0), false};
  const T mag = pythag(alpha, xnorm);
  const T beta = alpha < 0 ? mag : -mag;
  return {beta, (beta - alpha) / beta, true};
}
// The same for x[0..m), scaled in place to the tail of v; the norm is a plain sum of squares.
template <class T>
inline Reflector<T> reflector(T alpha, T* x, int m) {
  T s = 0;
  for (int i = 0; i < m; ++i) s += x[i] * x[i];
  const Reflector<T> r = reflectorFrom(alpha, std::sqrt(s));
  if (r.scaled) {
    const T scal = T(1) / (alpha - r.beta);
    for (int i = 0; i < m; ++i) x[i] *= scal;
  }
  return r;
}

// Column-major square, addressed from 1 as the algorithms are stated: (r, c) is a[(c-1)*n + r-1],
// or with W matrices interleaved element by element (the lanes of a vector), a[((c-1)*n + r-1)*W].
// Columns are contiguous runs only for W = 1.
template <class T, int N, int W = 1>
struct Sq {
  T* a;
  int dyn;
  constexpr int n() const { return N ? N : dyn; }
  T& operator()(int r, int c) const { return a[((c - 1) * n() + (r - 1)) * W]; }
  T* col(int c) const {
    static_assert(W == 1);
    return a + (c - 1) * n();
  }
};

// Householder reduction of H to upper Hessenberg form. The reflector scalars go to tau[0..n-2];
// the tails of the reflector vectors stay below the subdiagonal until clearBelow(). `w` holds n
// elements of work space.
template <class T, int N>
void hessenberg(Sq<T, N> H, T* tau, T* w) {
  const int n = H.n();
  for (int k = 1; k <= n - 1; ++k) {
    T* colk = H.col(k);
    const T alpha = colk[k];  // H(k+1, k)
    Reflector<T> r{alpha, T(0), false};
    if (k < n - 1) r = reflector(alpha, colk + k + 1, n - k - 1);
    tau[k - 1] = r.tau;
    if (absv(r.tau) > Num<T>::tiny) {
      colk[k] = T(1);
      const T* v = colk + k;  // v[c - k - 1] is v(c), c = k+1..n
      const T t = r.tau;
      // From the right: w = H(:, k+1..n) v, one column at a time, then H(:, c) -= v(c) tau w.
      for (int j = 0; j < n; ++j) w[j] = T(0);
      for (int c = k + 1; c <= n; ++c) {
        const T* hc = H.col(c);
        const T vc = v[c - k - 1];
        for (int j = 0; j < n; ++j) w[j] += hc[j] * vc;
      }
      for (int c = k + 1; c <= n; ++c) {
        T* hc = H.col(c);
        const T vt = v[c - k - 1] * t;
        for (int j = 0; j < n; ++j) hc[j] -= vt * w[j];
      }
      // From the left: for each column, s = v^T H(k+1..n, j), then H(r, j) -= v(r) tau s.
      for (int j = k + 1; j <= n; ++j) {
        T* hj = H.col(j) + k;
        T s = 0;
        for (int r = 0; r < n - k; ++r) s += v[r] * hj[r];
        for (int r = 0; r < n - k; ++r) hj[r] -= (v[r] * t) * s;
      }
    }
    colk[k] = r.beta;
  }
}

template <class T, int N>
void clearBelow(Sq<T, N> H) {
  const int n = H.n();
  for (int k = 1; k <= n - 2; ++k)
    for (int r = k + 2; r <= n; ++r) H(r, k) = T(0);
}

// The standardised 2 by 2 block (a b; c d): afterwards c = 0 for a real pair, or a = d and
// b c < 0 for a complex one; w1 >= 0 and w2 = -w1 are the imaginary parts, and (cs, sn) the
// rotation that did it (1, 0 where nothing turned).
template <class T>
struct Block2 {
  T a, b, c, d, w1, w2, cs, sn;
};

template <class T, Side S>
inline Block2<T> standardise(T a, T b, T c, T d) {
  using C = Cfg<T, S>;
  constexpr T tiny = C::blockTiny;
  Block2<T> o{a, b, c, d, T(0), T(0), T(1), T(0)};
  if (tiny >= absv(c)) return o;
  if (tiny >= absv(b)) {
    o.a = d;
    o.d = a;
    o.b = -c;
    o.c = T(0);
    o.cs = T(0);
    o.sn = T(1);
    return o;
  }
  if (tiny >= absv(a - d)) {
    // Equal diagonal elements: always a conjugate pair, whatever the signs of b and c.
    o.w1 = rootProduct(absv(b), absv(c));
    o.w2 = -o.w1;
    return o;
  }
  const T p = T(0.5) * (a - d);
  const T bcmax = larger(absv(b), absv(c));
  T bcmis = smaller(absv(b), absv(c));
  if ((b < 0) != (c < 0)) bcmis = -bcmis;
  const T scale = larger(absv(p), bcmax);
  T z = (p / scale) * p + (bcmax / scale) * bcmis;
  if (z >= C::fourEps) {
    // Real eigenvalues, not too close together.
    z = rootProduct(scale, z);
    z = p > 0 ? p + z : p - z;
    o.a = d + z;
    o.d = d - (bcmax / z) * bcmis;
    if constexpr (S != Side::Values) {
      const T pz = pythag(c, z);
      o.cs = z / pz;
      o.sn = c / pz;
    }
    o.b = b - c;
    o.c = T(0);
    return o;
  }
  // Complex or nearly equal real eigenvalues: equalise the diagonal.
  const T sigma = b + c;
  const T tau = pythag(sigma, a - d);
  const T cs = halfCosine(absv(sigma), tau);
  const T sn = sigma >= 0 ? -p / (tau * cs) : p / (tau * cs);
  const T aa = a * cs + b * sn, bb = b * cs - a * sn;
  const T cc = c * cs + d * sn, dd = d * cs - c * sn;
  const T b2 = bb * cs + dd * sn, c2 = cc * cs - aa * sn;
  const T t = T(0.5) * ((aa + dd) * cs + (cc - bb) * sn);
  o.cs = cs;
  o.sn = sn;
  if (absv(c2) <= tiny || absv(b2) <= tiny) {
    // b' is dropped even when c' is the small one.
    o.a = o.d = t;
    o.b = -c2;
    o.c = T(0);
    o.cs = -sn;
    o.sn = cs;
    return o;
  }
  if ((b2 < 0) != (c2 < 0)) {
    o.a = o.d = t;
    o.b = b2;
    o.c = c2;
    o.w1 = std::sqrt(absv(b2)) * std::sqrt(absv(c2));
    o.w2 = -o.w1;
    return o;
  }
  // b' and c' of one sign: a real pair t +- p, p the half-difference from above.
  if constexpr (S != Side::Values) {
    const T sab = std::sqrt(absv(b2)), sac = std::sqrt(absv(c2));
    const T u = invSqrt<C::kApproxInvSqrt>(absv(b2 + c2));
    o.cs = (cs * sab - sn * sac) * u;
    o.sn = (cs * sab + sn * sac) * u;
  }
  if (b2 < 0) {
    o.a = t - p;
    o.d = t + p;
  } else {
    o.a = t + p;
    o.d = t - p;
  }
  o.b = b2 - c2;
  o.c = T(0);
  return o;
}

// Francis double-shift QR on the Hessenberg matrix H until every diagonal block has split off;
// eigenvalue i goes to re[i], im[i] as soon as its block is done, in diagonal order. With
// Side::Values only the active block is updated and deflation is absolute; otherwise the whole
// of T is maintained, Q is updated alongside, deflation is relative and each 2 by 2 block's
// standardising rotation is applied to T and Q.
//
// The iteration is resumable: each step() makes one sweep or ends one block, so that the
// iterations of independent matrices can be interleaved on one thread. Each matrix keeps its
// own operations in its own order, and so its bits.
template <class T, Side S, int N, int W = 1>
struct Francis {
  using C = Cfg<T, S>;
  static constexpr bool kVec = S != Side::Values;

  Sq<T, N, W> H, Q;
  constexpr int n() const { return N ? N : dim; }
  T* re;
  T* im;
  int dim, budget, I, L, its;
  tarnStatus status = tarnStatusOk;

  int M = 0;  // where the next sweep starts, and its first reflector's vector
  T u1 = 0, u2 = 0, u3 = 0;

  Francis() = default;
  Francis(Sq<T, N, W> h, T* qa, T* re_, T* im_) : H(h), Q{qa, h.dyn}, re(re_), im(im_), dim(h.n()) {
    budget = 30 * n();  // one budget for all eigenvalues of the matrix
    I = n();
    L = 1;
    its = 0;
  }

  // Runs to the end and returns the status.
  tarnStatus run() {
    while (toSweep()) {
      chase();
      ++its;
    }
    return status;
  }

  // Column sums of absolute values over the active block L..I, each column j summing rows L to
  // min(j+1, I): the largest.
  T colMax() const {
    T best = 0;
    for (int j = L; j <= I; ++j) {
      T s = 0;
      const int last = j + 1 < I ? j + 1 : I;
      for (int r = L; r <= last; ++r) s += absv(H(r, j));
      if (s > best) best = s;
    }
    return best;
  }

  bool negligible(int K) const {
    const T sub = absv(H(K, K - 1));
    if constexpr (!kVec) {
      return C::eps >= sub;
    } else {
      T tst = absv(H(K - 1, K - 1)) + absv(H(K, K));
      if (C::blockTiny >= tst) tst = colMax();
      return larger(C::eps * tst, T(n()) * C::smlnumBase) >= sub;
    }
  }

  // Ends every block that has split off, up to the next sweep: false when the matrix is done or
  // has failed, true with the shifts taken and M, u1, u2, u3 set for the sweep.
  bool toSweep() {
    for (;;) {
      if (its == budget) {  // the budget is spent: L stays as the last search left it
        if (!finish()) return false;
        continue;
      }
      int K = I;
      for (; K > L; --K)
        if (negligible(K)) break;
      L = K;
      if (L > 1) H(L, L - 1) = T(0);
      if (L >= I - 1) {
        if (!finish()) return false;
        continue;
      }
      start();
      return true;
    }
  }

  // The active block L..I has split off, or the budget is spent.
  bool finish() {
    if (L < I - 1) {
      status = tarnStatusNoConvergence;
      return false;
    }
    if (L == I) {
      re[I - 1] = H(I, I);
      im[I - 1] = T(0);
    } else {
      block();
    }
    budget -= its;
    I = L - 1;
    L = 1;
    its = 0;
    return I > 0;
  }

  void block() {
    const Block2<T> b = standardise<T, S>(H(I - 1, I - 1), H(I - 1, I), H(I, I - 1), H(I, I));
    re[I - 2] = b.a;
    im[I - 2] = b.w1;
    re[I - 1] = b.d;
    im[I - 1] = b.w2;
    if constexpr (kVec) {
      H(I - 1, I - 1) = b.a;
      H(I - 1, I) = b.b;
      H(I, I - 1) = b.c;
      H(I, I) = b.d;
      const T cs = b.cs, sn = b.sn;
      for (int j = I + 1; j <= n(); ++j) {
        const T x = H(I - 1, j), y = H(I, j);
        H(I - 1, j) = cs * x + sn * y;
        H(I, j) = cs * y - sn * x;
      }
      T* c0 = H.col(I - 1);
      T* c1 = H.col(I);
      for (int j = 0; j < I - 2; ++j) {
        const T x = c0[j], y = c1[j];
        c0[j] = cs * x + sn * y;
        c1[j] = cs * y - sn * x;
      }
      T* q0 = Q.col(I - 1);
      T* q1 = Q.col(I);
      for (int j = 0; j < n(); ++j) {
        const T x = q0[j], y = q1[j];
        q0[j] = cs * x + sn * y;
        q1[j] = cs * y - sn * x;
      }
    }
  }

  void start() {
    // Shifts: the eigenvalues of the trailing 2 by 2, or, at iterations 10 and 20 only, an
    // exceptional pair.
    T h33, h44, h43h34;
    if (its == 10 || its == 20) {
      const T s = absv(H(I, I - 1)) + absv(H(I - 1, I - 2));
      h44 = T(0.75) * s + H(I, I);
      h33 = h44;
      h43h34 = T(-0.4375) * s * s;
    } else {
      h33 = H(I - 1, I - 1);
      h44 = H(I, I);
      h43h34 = H(I, I - 1) * H(I - 1, I);
      const T half = T(0.5) * (h33 - h44);
      T disc = half * half + h43h34;
      if (disc > 0) {
        disc = std::sqrt(disc);
        const T ave = T(0.5) * (h44 + h33);
        const T r = T(0) > ave ? ave - disc : ave + disc;
        if (absv(h33) - absv(h44) > 0) h44 = (h44 * h33 - h43h34) / r;
        else h44 = r;
        h33 = h44;
        h43h34 = T(0);
      }
    }

    // Where the sweep starts: the lowest M whose first column of the shifted product is
    // negligible against its neighbours (the only relative test of the eigenvalue members).
    M = I - 2;
    for (;; --M) {
      const T h11 = H(M, M), h22 = H(M + 1, M + 1), h21 = H(M + 1, M), h12 = H(M, M + 1);
      const T h44s = h44 - h11, h33s = h33 - h11;
      u1 = (h44s * h33s - h43h34) / h21 + h12;
      u2 = ((h22 - h11) - h44s) - h33s;
      u3 = H(M + 2, M + 1);
      const T s = sum3(u1, u2, u3);
      u1 /= s;
      u2 /= s;
      u3 /= s;
      if (M == L) break;
      const T h00 = H(M - 1, M - 1), h10 = H(M, M - 1);
      if ((absv(u1) * C::eps) * ((absv(h11) + absv(h22)) + absv(h00)) >= (absv(u2) + absv(u3)) * absv(h10)) break;
    }
  }

  // The double-shift sweep: chase the bulge from M down to I.
  void chase() {
    for (int K = M; K <= I - 1; ++K) {
      const bool three = I - K + 1 >= 3;
      if (K > M) {
        u1 = H(K, K - 1);
        u2 = H(K + 1, K - 1);
        if (three) u3 = H(K + 2, K - 1);
      }
      const Reflector<T> rf = reflectorFrom(u1, std::sqrt(three ? u2 * u2 + u3 * u3 : u2 * u2));
      if (rf.scaled) {
        const T scal = T(1) / (u1 - rf.beta);
        u2 *= scal;
        if (three) u3 *= scal;
      }
      if (K > M) {
        H(K, K - 1) = rf.beta;
        H(K + 1, K - 1) = T(0);
        if (K < I - 1) H(K + 2, K - 1) = T(0);
      } else if (M > L) {
        H(K, K - 1) = -H(K, K - 1);
      }
      const T t1 = rf.tau, t2 = t1 * u2;
      if (three) apply3(K, u2, u3, t1, t2, t1 * u3);
      else apply2(K, u2, t1, t2);
    }
  }

  // The reflector (1, u2, u3) from the left on rows K..K+2, columns K..n, and from the right on
  // columns K..K+2, every row (and on Q). The stated ranges are columns K..I and rows L..K+3 for
  // the eigenvalue members, rows 1..K+3 otherwise; what lies beyond them here is either a zero
  // below the subdiagonal, which a finite reflector leaves exactly zero, or lies outside every
  // block the iteration will read again (right of the active block, or above it in its
  // columns), so the eigenvalues are those of the stated ranges, bit for bit, and the loops
  // have fixed bounds.
  void apply3(int K, T u2, T u3, T t1, T t2, T t3) {
    for (int j = K; j <= n(); ++j) {
      T* h = &H(K, j);
      const T sum = (h[0] + u2 * h[1]) + u3 * h[2];
      h[0] -= sum * t1;
      h[1] -= sum * t2;
      h[2] -= sum * t3;
    }
    rotate3(H.col(K), u2, u3, t1, t2, t3);
    if constexpr (kVec) rotate3(Q.col(K), u2, u3, t1, t2, t3);
  }
  void rotate3(T* c0, T u2, T u3, T t1, T t2, T t3) const {
    const int m = n();
    for (int j = 0; j < m; ++j) {
      const T sum = (c0[j] + u2 * c0[j + m]) + u3 * c0[j + 2 * m];
      c0[j] -= sum * t1;
      c0[j + m] -= sum * t2;
      c0[j + 2 * m] -= sum * t3;
    }
  }
  // The same with (1, u2) at the foot of the block.
  void apply2(int K, T u2, T t1, T t2) {
    for (int j = K; j <= n(); ++j) {
      T* h = &H(K, j);
      const T sum = h[0] + u2 * h[1];
      h[0] -= sum * t1;
      h[1] -= sum * t2;
    }
    rotate2(H.col(K), u2, t1, t2);
    if constexpr (kVec) rotate2(Q.col(K), u2, t1, t2);
  }
  void rotate2(T* c0, T u2, T t1, T t2) const {
    const int m = n();
    for (int j = 0; j < m; ++j) {
      const T sum = c0[j] + u2 * c0[j + m];
      c0[j] -= sum * t1;
      c0[j + m] -= sum * t2;
    }
  }
};

template <class T, Side S, int N>
tarnStatus francis(Sq<T, N> H, T* qa, T* re, T* im) {
  return Francis<T, S, N>(H, qa, re, im).run();
}

// Calls f.template operator()<N>() with the order as a constant where a dedicated body exists,
// N = 0 otherwise.
template <class F>
inline decltype(auto) withOrder(int n, F&& f) {
  switch (n) {
    case 3: return f.template operator()<3>();
    case 4: return f.template operator()<4>();
    case 5: return f.template operator()<5>();
    case 6: return f.template operator()<6>();
    default: return f.template operator()<0>();
  }
}

}  // namespace tarn::geig
