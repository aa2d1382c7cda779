// Eigenvalues of several matrices at once, one matrix per lane of a vector register (four floats
// or two doubles).
//
// The QR iteration of one small matrix is one long chain of dependent square roots and
// divisions; matrices side by side in the lanes of a register share each instruction and hide
// that latency. Every lane performs exactly the operations of the one-matrix iteration
// (Francis::run) on its own matrix, in the same order, so its bits are those of that iteration:
//   - the search for a negligible subdiagonal element, the shifts, the start of the sweep and
//     the end of each block are the one-matrix code itself, run per lane on the lane's elements;
//   - the sweep runs in the lanes together, K from the smallest start to the largest end among
//     them; a lane outside its own range, or at its last step (two rows, not three), keeps or
//     takes its values by selection, never by an operation it would not have made.
// A lane whose matrix is done takes the next matrix of the array. Results reach the caller in
// object order, a matrix's eigenvalues only once every earlier matrix has succeeded; no matrix
// behind a failed one is taken up, so a failing matrix ends the walk exactly as the one-matrix
// walk does.
#pragma once

#include "eigen_general.hpp"
#include "simd.hpp"

namespace tarn::geig {

namespace lanes = simd::lanes;

// The lanes of R registers of T as one vector V of W lanes.
template <class T, int R>
struct LaneRegs;
template <class T>
struct LaneRegs<T, 1> {
  static constexpr int W = simd::kLanes<T>;
  using V = simd::Vec<T>;
  static V load(const T* p) { return lanes::lanesLoad(p); }
  static void store(T* p, V v) { lanes::lanesStore(p, v); }
  static V splat(T x) { return lanes::broadcast(x); }
  static V mask(const bool* f) { return lanes::laneMask(f, T(0)); }
  static V from(const T* v) { return lanes::lanesOf(v); }
};
template <class T>
struct LaneRegs<T, 2> {
  static constexpr int H = simd::kLanes<T>, W = 2 * H;
  using V = lanes::Pair<T>;
  static V load(const T* p) { return {lanes::lanesLoad(p), lanes::lanesLoad(p + H)}; }
  static void store(T* p, V v) {
    lanes::lanesStore(p, v.lo);
    lanes::lanesStore(p + H, v.hi);
  }
  static V splat(T x) { return {lanes::broadcast(x), lanes::broadcast(x)}; }
  static V mask(const bool* f) { return {lanes::laneMask(f, T(0)), lanes::laneMask(f + H, T(0))}; }
  static V from(const T* v) { return {lanes::lanesOf(v), lanes::lanesOf(v + H)}; }
};

template <class T, int N, int R = 2>
class ValueLanes {
 public:
  using Regs = LaneRegs<T, R>;
  static constexpr int W = Regs::W;
  using V = typename Regs::V;
  using F = Francis<T, Side::Values, N, W>;

  // The eigenvalues of src.obj(0..count-1) to re, im (N per object), as the one-matrix walk.
  template <class Src>
  tarnStatus walk(const Src& src, int32_t count, T* re, T* im) {
    int32_t next = 0, commit = 0, stop = count;  // objects from `stop` on are never loaded
    for (auto& p : pend_) p.done = false;
    for (int l = 0; l < W; ++l) running_[l] = false;
    for (;;) {
      // Every running lane to its next sweep, or to its end; an ended lane takes the next
      // matrix as long as the results in waiting have room.
      for (int l = 0; l < W; ++l) {
        for (;;) {
          if (running_[l]) {
            if (f_[l].toSweep()) break;
            Pending& p = pend_[obj_[l] % kWait];
            p.done = true;
            p.status = f_[l].status;
            p.from = f_[l].status ? f_[l].I : 0;  // a failed matrix keeps its finished blocks
            running_[l] = false;
            if (p.status && obj_[l] < stop) stop = obj_[l] + 1;
          }
          if (next >= stop || next - commit >= kWait) break;
          load(l, src, next++);
        }
      }
      // Results in object order.
      for (Pending* p = &pend_[commit % kWait]; commit < next && p->done; p = &pend_[commit % kWait]) {
        const std::ptrdiff_t at = std::ptrdiff_t(commit) * N;
        for (int i = p->from; i < N; ++i) {
          re[at + i] = p->re[i];
          im[at + i] = p->im[i];
        }
        if (p->status) return p->status;
        p->done = false;
        ++commit;
      }
      bool sweep[W];
      bool any = false;
      for (int l = 0; l < W; ++l) any |= sweep[l] = running_[l];
      if (!any) {
        if (next >= stop && commit >= next) return tarnStatusOk;
        continue;  // room for more matrices has just been made
      }
      chase(sweep);
      for (int l = 0; l < W; ++l)
        if (sweep[l]) ++f_[l].its;
    }
  }

 private:
  // Results of finished matrices wait here until every earlier one has finished.
  static constexpr int kWait = 8 * W;
  struct Pending {
    T re[N], im[N];
    tarnStatus status;
    int from;
    bool done;
  };

  T& at(int r, int c, int l) { return h_[((c - 1) * N + (r - 1)) * W + l]; }
  V get(int r, int c) const { return Regs::load(h_ + ((c - 1) * N + (r - 1)) * W); }
  void put(int r, int c, V v) { Regs::store(h_ + ((c - 1) * N + (r - 1)) * W, v); }

  // Matrix k into lane l: copied, reduced to Hessenberg form on its own, then spread into the
  // lane.
  template <class Src>
  void load(int l, const Src& src, int32_t k) {
    T a[N * N + 2 * N];
    const auto o = src.obj(k);
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j) a[i * N + j] = *o.at(i, j);
    const Sq<T, N> H{a, N};
    hessenberg(H, a + N * N, a + N * N + N);
    clearBelow(H);
    for (int i = 0; i < N * N; ++i) h_[i * W + l] = a[i];
    Pending& p = pend_[k % kWait];
    f_[l] = F(Sq<T, N, W>{h_ + l, N}, nullptr, p.re, p.im);
    obj_[l] = k;
    running_[l] = true;
  }

  // One sweep in every lane that asks for one: Francis::chase, lane by lane.
  void chase(const bool (&sweep)[W]) {
    const T zeroT = T(0);
    const V zero = Regs::splat(zeroT), one = Regs::splat(T(1));
    const V tiny = Regs::splat(Num<T>::tiny), tinyFloor = Regs::splat(Num<T>::tinyFloor);
    int kmin = N, kmax = 0;
    T s1[W], s2[W], s3[W];
    for (int l = 0; l < W; ++l) {
      const F& f = f_[l];
      s1[l] = sweep[l] ? f.u1 : zeroT;
      s2[l] = sweep[l] ? f.u2 : zeroT;
      s3[l] = sweep[l] ? f.u3 : zeroT;
      if (!sweep[l]) continue;
      kmin = f.M < kmin ? f.M : kmin;
      kmax = f.I - 1 > kmax ? f.I - 1 : kmax;
    }
    const V start1 = Regs::from(s1), start2 = Regs::from(s2), start3 = Regs::from(s3);
    for (int K = kmin; K <= kmax; ++K) {
      bool act[W], three[W], first[W], later[W], flip[W];
      for (int l = 0; l < W; ++l) {
        const F& f = f_[l];
        act[l] = sweep[l] && f.M <= K && K <= f.I - 1;
        three[l] = act[l] && f.I - K + 1 >= 3;
        first[l] = act[l] && K == f.M;
        later[l] = act[l] && K > f.M;
        flip[l] = first[l] && f.M > f.L;
      }
      const V A = Regs::mask(act), T3 = Regs::mask(three);
      const V F1 = Regs::mask(first), LT = Regs::mask(later);
      const bool deep = K + 2 <= N;  // a third row exists (some lane may use it)
      V u1 = start1, u2 = start2, u3 = start3;
      if (K > 1) {
        u1 = lanes::select(F1, start1, get(K, K - 1));
        u2 = lanes::select(F1, start2, get(K + 1, K - 1));
        if (deep) u3 = lanes::select(F1, start3, get(K + 2, K - 1));
      }
      // The reflector of (u1, u2[, u3]).
      const V x2 = lanes::mul(u2, u2);
      const V xs = deep ? lanes::select(T3, lanes::add(x2, lanes::mul(u3, u3)), x2) : x2;
      const V xnorm = lanes::sqrt(xs);
      const V plain = lanes::less(xnorm, tiny);  // norm below tiny: tau = 0, x stays
      const V ax = lanes::abs(u1), ay = lanes::abs(xnorm);
      const V big = lanes::larger(ax, ay), small = lanes::smaller(ax, ay);
      const V q = lanes::div(lanes::mul(small, small), lanes::mul(big, big));
      V mag = lanes::select(lanes::notLess(small, tiny), lanes::mul(big, lanes::rootOnePlus(q)), big);
      mag = lanes::select(lanes::less(mag, tiny), tinyFloor, mag);
      V beta = lanes::select(lanes::less(u1, zero), mag, lanes::neg(mag));
      const V tau = lanes::select(plain, zero, lanes::div(lanes::sub(beta, u1), beta));
      const V scal = lanes::div(one, lanes::sub(u1, beta));
      beta = lanes::select(plain, u1, beta);
      u2 = lanes::select(plain, u2, lanes::mul(u2, scal));
      u3 = lanes::select(plain, u3, lanes::mul(u3, scal));
      if (K > 1) {
        bool fl = false;
        for (int l = 0; l < W; ++l) fl |= flip[l];
        V hk = get(K, K - 1);
        if (fl) hk = lanes::select(Regs::mask(flip), lanes::neg(hk), hk);
        put(K, K - 1, lanes::select(LT, beta, hk));
        put(K + 1, K - 1, lanes::select(LT, zero, get(K + 1, K - 1)));
        if (deep) put(K + 2, K - 1, lanes::select(lanes::both(LT, T3), zero, get(K + 2, K - 1)));
      }
      const V t1 = tau, t2 = lanes::mul(t1, u2), t3 = lanes::mul(t1, u3);
      // From the left on rows K..K+2, columns K..N; from the right on columns K..K+2, all rows.
      for (int j = K; j <= N; ++j) {
        const V h0 = get(K, j), h1 = get(K + 1, j);
        V sum = lanes::add(h0, lanes::mul(u2, h1));
        if (deep) {
          const V h2 = get(K + 2, j);
          sum = lanes::select(T3, lanes::add(sum, lanes::mul(u3, h2)), sum);
          put(K + 2, j, lanes::select(T3, lanes::sub(h2, lanes::mul(sum, t3)), h2));
        }
        put(K, j, lanes::select(A, lanes::sub(h0, lanes::mul(sum, t1)), h0));
        put(K + 1, j, lanes::select(A, lanes::sub(h1, lanes::mul(sum, t2)), h1));
      }
      for (int j = 1; j <= N; ++j) {
        const V h0 = get(j, K), h1 = get(j, K + 1);
        V sum = lanes::add(h0, lanes::mul(u2, h1));
        if (deep) {
          const V h2 = get(j, K + 2);
          sum = lanes::select(T3, lanes::add(sum, lanes::mul(u3, h2)), sum);
          put(j, K + 2, lanes::select(T3, lanes::sub(h2, lanes::mul(sum, t3)), h2));
        }
        put(j, K, lanes::select(A, lanes::sub(h0, lanes::mul(sum, t1)), h0));
        put(j, K + 1, lanes::select(A, lanes::sub(h1, lanes::mul(sum, t2)), h1));
      }
    }
  }

  alignas(16) T h_[N * N * W];
  F f_[W];
  int32_t obj_[W];
  bool running_[W];
  Pending pend_[kWait];
};

}  // namespace tarn::geig
