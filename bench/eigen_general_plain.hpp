// Plain model of the general eigenvalue iteration, written from its statement step by step:
// indices from 1, the stated range of every update (the active block only for the eigenvalue
// members; columns K..n and rows 1..K+3 for the eigenvector members), every operation rounded
// in the element type except where double precision is stated for floats. Larger/smaller of two
// values are a > b ? a : b and a < b ? a : b, the library's reading where a NaN meets them.
#pragma once

#include <cmath>
#include <cstddef>
#include <type_traits>
#include <vector>

namespace tt::geigref {

template <class T> struct Consts;
template <> struct Consts<float> {
  static constexpr float eps = 1.1920928955078125e-07f, fourEps = 4.76837158203125e-07f;
  static constexpr float tiny = 2.350988701644575e-38f, tinyFloor = 4.70197740328915e-38f;
  static constexpr float smlnumBase = 1.9721522630525295e-31f;
};
template <> struct Consts<double> {
  static constexpr double eps = 2.220446049250313e-16, fourEps = 8.881784197001252e-16;
  static constexpr double tiny = 4.450147717014403e-308, tinyFloor = 8.900295434028806e-308;
  static constexpr double smlnumBase = 2.004168360008973e-292;
};

// Which member's iteration: absolute deflation on the active block, or relative deflation on the
// whole matrix; `blockTiny` is the tiny of the search and of the 2 by 2 block.
struct Mode {
  bool relative;
  double blockTiny;
};

template <class T>
class Model {
 public:
  using C = Consts<T>;
  static constexpr bool kF32 = std::is_same_v<T, float>;

  // src row-major, n by n; re, im receive what the member writes (places not reached keep their
  // content). Returns the status.
  int run(const std::vector<T>& src, int n, Mode mode, std::vector<T>& re, std::vector<T>& im) {
    n_ = n;
    mode_ = mode;
    h_.resize(size_t(n) * n);
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j) h_[size_t(i) * n + j] = src[size_t(i) * n + j];  // H = transpose(src)
    hessenberg();
    return qr(re, im);
  }

 private:
  T& H(int r, int c) { return h_[size_t(c - 1) * n_ + size_t(r - 1)]; }
  static T mx(T a, T b) { return a > b ? a : b; }
  static T mn(T a, T b) { return a < b ? a : b; }

  static T pythag(T a, T b) {
    const T big = mx(std::fabs(a), std::fabs(b)), small = mn(std::fabs(a), std::fabs(b));
    T mag = big;
    if (small >= C::tiny) {
      const T q = small * small / (big * big);
      if constexpr (kF32) mag = big * float(std::sqrt(double(q) + 1.0));
      else mag = big * std::sqrt(q + 1.0);
    }
    if (C::tiny > mag) mag = C::tinyFloor;
    return mag;
  }

  // Returns tau; beta through `beta`; x scaled in place unless its norm is below tiny.
  static T reflect(T alpha, T* x, int m, T& beta) {
    T s = 0;
    for (int i = 0; i < m; ++i) s = s + x[i] * x[i];
    const T xnorm = std::sqrt(s);
    if (C::tiny > xnorm) {
      beta = alpha;
      return T(0);
    }
    const T mag = pythag(alpha, xnorm);
    beta = alpha < 0 ? mag : -mag;
    const T tau = (beta - alpha) / beta;
    const T f = T(1) / (alpha - beta);
    for (int i = 0; i < m; ++i) x[i] = x[i] * f;
    return tau;
  }

  void hessenberg() {
    const int n = n_;
    std::vector<T>& w = w_;
    w.resize(size_t(n) + 1);
    for (int k = 1; k <= n - 1; ++k) {
      const T alpha = H(k + 1, k);
      T beta = alpha, tau = 0;
      if (k < n - 1) {
        std::vector<T>& x = x_;
        x.clear();
        for (int r = k + 2; r <= n; ++r) x.push_back(H(r, k));
        tau = reflect(alpha, x.data(), int(x.size()), beta);
        for (int r = k + 2; r <= n; ++r) H(r, k) = x[size_t(r - k - 2)];
      }
      if (std::fabs(tau) > C::tiny) {
        H(k + 1, k) = 1;
        auto v = [&](int r) { return H(r, k); };
        for (int j = 1; j <= n; ++j) {
          T s = 0;
          for (int c = k + 1; c <= n; ++c) s = s + H(j, c) * v(c);
          w[size_t(j)] = s;
        }
        for (int j = 1; j <= n; ++j)
          for (int c = k + 1; c <= n; ++c) H(j, c) = H(j, c) - v(c) * tau * w[size_t(j)];
        for (int j = k + 1; j <= n; ++j) {
          T s = 0;
          for (int r = k + 1; r <= n; ++r) s = s + v(r) * H(r, j);
          for (int r = k + 1; r <= n; ++r) H(r, j) = H(r, j) - v(r) * tau * s;
        }
      }
      H(k + 1, k) = beta;
    }
    for (int k = 1; k <= n; ++k)
      for (int r = k + 2; r <= n; ++r) H(r, k) = 0;
  }

  bool small(int K, int L, int I) {
    const T sub = std::fabs(H(K, K - 1));
    if (!mode_.relative) return C::eps >= sub;
    T tst = std::fabs(H(K - 1, K - 1)) + std::fabs(H(K, K));
    if (T(mode_.blockTiny) >= tst) {
      tst = 0;
      for (int j = L; j <= I; ++j) {
        T s = 0;
        for (int r = L; r <= (j + 1 < I ? j + 1 : I); ++r) s = s + std::fabs(H(r, j));
        tst = mx(s, tst);
      }
    }
    return mx(C::eps * tst, T(n_) * C::smlnumBase) >= sub;
  }

  int qr(std::vector<T>& re, std::vector<T>& im) {
    const int n = n_;
    int budget = 30 * n, I = n;
    while (I > 0) {
      int L = 1, its = 0;
      for (;;) {
        if (its == budget) break;
        int K = I;
        while (K > L && !small(K, L, I)) --K;
        L = K;
        if (L > 1) H(L, L - 1) = 0;
        if (L >= I - 1) break;
        T h33, h44, h43h34;
        if (its == 10 || its == 20) {
          const T s = std::fabs(H(I, I - 1)) + std::fabs(H(I - 1, I - 2));
          h44 = T(0.75) * s + H(I, I);
          h33 = h44;
          h43h34 = T(-0.4375) * s * s;
        } else {
          h33 = H(I - 1, I - 1);
          h44 = H(I, I);
          h43h34 = H(I, I - 1) * H(I - 1, I);
          const T hd = T(0.5) * (h33 - h44);
          T disc = hd * hd + h43h34;
          if (disc > 0) {
            disc = std::sqrt(disc);
            const T ave = T(0.5) * (h44 + h33);
            const T r = 0 > ave ? ave - disc : ave + disc;
            h44 = std::fabs(h33) - std::fabs(h44) > 0 ? (h44 * h33 - h43h34) / r : r;
            h33 = h44;
            h43h34 = 0;
          }
        }
        int M = I - 2;
        T u[3];
        for (;; --M) {
          const T h11 = H(M, M), h22 = H(M + 1, M + 1), h21 = H(M + 1, M), h12 = H(M, M + 1);
          const T h44s = h44 - h11, h33s = h33 - h11;
          u[0] = (h44s * h33s - h43h34) / h21 + h12;
          u[1] = ((h22 - h11) - h44s) - h33s;
          u[2] = H(M + 2, M + 1);
          T s;
          if constexpr (kF32)
            s = float(double(std::fabs(u[0])) + double(std::fabs(u[1])) + double(std::fabs(u[2])));
          else
            s = std::fabs(u[0]) + std::fabs(u[1]) + std::fabs(u[2]);
          for (T& x : u) x = x / s;
          if (M == L) break;
          const T h00 = H(M - 1, M - 1), h10 = H(M, M - 1);
          if (std::fabs(u[0]) * C::eps * (std::fabs(h11) + std::fabs(h22) + std::fabs(h00)) >=
              (std::fabs(u[1]) + std::fabs(u[2])) * std::fabs(h10))
            break;
        }
        for (int K = M; K <= I - 1; ++K) {
          const int nr = I - K + 1 < 3 ? I - K + 1 : 3;
          if (K > M)
            for (int i = 0; i < nr; ++i) u[i] = H(K + i, K - 1);
          T beta;
          const T t1 = reflect(u[0], u + 1, nr - 1, beta);
          if (K > M) {
            H(K, K - 1) = beta;
            H(K + 1, K - 1) = 0;
            if (K < I - 1) H(K + 2, K - 1) = 0;
          } else if (M > L) {
            H(K, K - 1) = -H(K, K - 1);
          }
          const T t[3] = {t1, t1 * u[1], nr == 3 ? t1 * u[2] : T(0)};
          const int jEnd = mode_.relative ? n : I;
          for (int j = K; j <= jEnd; ++j) {
            T s = H(K, j) + u[1] * H(K + 1, j);
            if (nr == 3) s = s + u[2] * H(K + 2, j);
            for (int i = 0; i < nr; ++i) H(K + i, j) = H(K + i, j) - s * t[i];
          }
          const int rEnd = nr == 3 ? (K + 3 < I ? K + 3 : I) : I;
          for (int j = mode_.relative ? 1 : L; j <= rEnd; ++j) {
            T s = H(j, K) + u[1] * H(j, K + 1);
            if (nr == 3) s = s + u[2] * H(j, K + 2);
            for (int i = 0; i < nr; ++i) H(j, K + i) = H(j, K + i) - s * t[i];
          }
        }
        ++its;
      }
      if (L < I - 1) return -205;
      if (L == I) {
        re[size_t(I - 1)] = H(I, I);
        im[size_t(I - 1)] = 0;
      } else {
        T a = H(I - 1, I - 1), b = H(I - 1, I), c = H(I, I - 1), d = H(I, I), w1 = 0, w2 = 0;
        block(a, b, c, d, w1, w2);
        re[size_t(I - 2)] = a;
        im[size_t(I - 2)] = w1;
        re[size_t(I - 1)] = d;
        im[size_t(I - 1)] = w2;
      }
      budget -= its;
      I = L - 1;
    }
    return 0;
  }

  static T rootProduct(T x, T y) {
    if constexpr (kF32) return float(std::sqrt(double(x)) * std::sqrt(double(y)));
    else return std::sqrt(x) * std::sqrt(y);
  }

  void block(T& a, T& b, T& c, T& d, T& w1, T& w2) const {
    const T tiny = T(mode_.blockTiny);
    if (tiny >= std::fabs(c)) return;
    if (tiny >= std::fabs(b)) {
      const T t = a;
      a = d;
      d = t;
      b = -c;
      c = 0;
      return;
    }
    if (tiny >= std::fabs(a - d)) {
      w1 = rootProduct(std::fabs(b), std::fabs(c));
      w2 = -w1;
      return;
    }
    const T p = T(0.5) * (a - d);
    const T bcmax = mx(std::fabs(b), std::fabs(c));
    const T bcmis = mn(std::fabs(b), std::fabs(c)) * ((b < 0) == (c < 0) ? T(1) : T(-1));
    const T scale = mx(std::fabs(p), bcmax);
    T z = p / scale * p + bcmax / scale * bcmis;
    if (z >= C::fourEps) {
      z = rootProduct(scale, z);
      z = p > 0 ? p + z : p - z;
      a = d + z;
      d = d - bcmax / z * bcmis;
      b = b - c;
      c = 0;
      return;
    }
    const T sigma = b + c;
    const T tau = pythag(sigma, a - d);
    T cs;
    if constexpr (kF32) cs = float(std::sqrt(0.5 * (1.0 + double(std::fabs(sigma)) / double(tau))));
    else cs = std::sqrt(0.5 * (1 + std::fabs(sigma) / tau));
    const T sn = sigma >= 0 ? -p / (tau * cs) : p / (tau * cs);
    const T aa = a * cs + b * sn, bb = b * cs - a * sn, cc = c * cs + d * sn, dd = d * cs - c * sn;
    const T b2 = bb * cs + dd * sn, c2 = cc * cs - aa * sn;
    const T t = T(0.5) * ((aa + dd) * cs + (cc - bb) * sn);
    if (std::fabs(c2) <= tiny || std::fabs(b2) <= tiny) {
      a = d = t;
      b = -c2;
      c = 0;
    } else if ((b2 < 0) != (c2 < 0)) {
      a = d = t;
      b = b2;
      c = c2;
      w1 = std::sqrt(std::fabs(b2)) * std::sqrt(std::fabs(c2));
      w2 = -w1;
    } else if (b2 >= 0) {
      a = t + p;
      d = t - p;
      b = b2 - c2;
      c = 0;
    } else {
      a = t - p;
      d = t + p;
      b = b2 - c2;
      c = 0;
    }
  }

  int n_ = 0;
  Mode mode_{};
  std::vector<T> h_, w_, x_;  // kept from call to call
};

}  // namespace tt::geigref
