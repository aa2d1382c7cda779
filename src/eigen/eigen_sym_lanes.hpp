// Eigenvalues of symmetric matrices of orders 3 to 6, several objects at once: one object in
// each lane of a register (four floats or two doubles), every lane doing exactly the operations
// of eigen_sym.hpp on its own object, in the same order, so each object keeps its bits.
//
// The reduction has a fixed shape; a reflection a lane leaves out is undone by a select. The
// sweeps differ per object in direction, in where the matrix splits and in how many sweeps each
// eigenvalue takes, so each lane carries its own l, m, sweep counter and product:
//   - a lane that sweeps downward works on its diagonals reversed (d'[j] = d[n-1-j], e'[j] =
//     e[n-2-j]); the downward sweep is then, operation for operation, the upward one, except that
//     it takes d[m] into its product at every search that stops at a small element, applies the
//     end-of-loop test on t for l = 0 too, and forms its product differently at the end;
//   - a round first lets every lane search (and step to its next eigenvalue) until it has a
//     block to sweep, then all lanes with a block make one sweep together: the rotation at index
//     i runs for the lanes with l <= i < m, from i = n-2 down, and the others keep their state.
// A lane that fails (no convergence, or a product not above eps) is handed back: the caller
// runs the plain path on that object, which writes dst and scratch as the failure leaves them.
#pragma once

#include "eigen_sym.hpp"
#include "simd.hpp"


namespace tarn::eigsym {

// K registers of lanes that move together: K groups of objects whose dependency chains the
// processor overlaps. Every operation applies to each register alike.
template <class T, int K>
struct Pack {
  simd::Vec<T> v[K];
};

namespace pack {

template <class T, int K, class F>
inline Pack<T, K> map(F f) {
  Pack<T, K> r;
  for (int g = 0; g < K; ++g) r.v[g] = f(g);
  return r;
}
#define TARN_PACK_BINARY(name)                                                        \
  template <class T, int K>                                                           \
  inline Pack<T, K> name(const Pack<T, K>& a, const Pack<T, K>& b) {                  \
    return map<T, K>([&](int g) { return simd::name(a.v[g], b.v[g]); });              \
  }
TARN_PACK_BINARY(add)
TARN_PACK_BINARY(sub)
TARN_PACK_BINARY(mul)
TARN_PACK_BINARY(div)
TARN_PACK_BINARY(gt)
TARN_PACK_BINARY(le)
TARN_PACK_BINARY(eq)
TARN_PACK_BINARY(andMask)
TARN_PACK_BINARY(orMask)
TARN_PACK_BINARY(andNot)
#undef TARN_PACK_BINARY
template <class T, int K>
inline Pack<T, K> sqrt(const Pack<T, K>& a) {
  return map<T, K>([&](int g) { return simd::sqrt(a.v[g]); });
}
template <class T, int K>
inline Pack<T, K> abs(const Pack<T, K>& a) {
  return map<T, K>([&](int g) { return simd::abs(a.v[g]); });
}
template <class T, int K>
inline Pack<T, K> select(const Pack<T, K>& m, const Pack<T, K>& a, const Pack<T, K>& b) {
  return map<T, K>([&](int g) { return simd::select(m.v[g], a.v[g], b.v[g]); });
}
// One bit per lane, group by group.
template <class T, int K>
inline int bits(const Pack<T, K>& m) {
  int b = 0;
  for (int g = 0; g < K; ++g) b |= simd::bits(m.v[g]) << (g * simd::kLanes<T>);
  return b;
}

}  // namespace pack

template <class T, int N, int K>
struct ValuesLanes {
  using V = Pack<T, K>;
  static constexpr int W = simd::kLanes<T> * K;  // objects at once

  static V c(double v) { return pack::map<T, K>([&](int) { return simd::set1(T(v)); }); }
  static V ones() { return pack::map<T, K>([&](int) { return simd::allOnes<T>(); }); }
  // arr[idx] per lane, idx an exact small integer per lane.
  template <int Len>
  static V pick(const V* arr, V idx) {
    V acc = arr[0];
    for (int j = 1; j < Len; ++j) acc = pack::select(pack::eq(idx, c(j)), arr[j], acc);
    return acc;
  }
  static V small(V e) { return pack::le(pack::mul(pack::abs(e), c(0.5)), c(kEps<T>)); }

  // in[(r*N + c)*W + o]: element (r, c) of lane o. out[j*W + o]: value j of lane o, sorted
  // descending. Returns the lanes that fail, one bit each.
  static int solve(const T* in, T* out) {
    const V eps = c(kEps<T>), zero = c(0), one = c(1), two = c(2);
    V a[N][N];
    for (int r = 0; r < N; ++r)
      for (int q = 0; q < N; ++q)
        for (int g = 0; g < K; ++g) a[r][q].v[g] = simd::load<simd::kLanes<T>, false>(in + (r * N + q) * W + g * simd::kLanes<T>);
    reduce(a, eps, zero, two);

    V d[N], e[N];
    for (int j = 0; j < N; ++j) d[j] = a[j][j];
    for (int j = 0; j + 1 < N; ++j) e[j] = a[j + 1][j];
    e[N - 1] = zero;
    // Downward lanes: ties and NaN included. Their diagonals are reversed.
    const V dn = pack::andNot(ones(), pack::gt(pack::abs(d[N - 1]), pack::abs(d[0])));
    {
      V rd[N], re[N];
      for (int j = 0; j < N; ++j) rd[j] = pack::select(dn, d[N - 1 - j], d[j]);
      for (int j = 0; j + 1 < N; ++j) re[j] = pack::select(dn, e[N - 2 - j], e[j]);
      for (int j = 0; j < N; ++j) d[j] = rd[j];
      for (int j = 0; j + 1 < N; ++j) e[j] = re[j];
    }

    V l = zero, m = zero, iter = zero, P = one;
    V active = ones(), failed = zero;
    const V last = c(N - 1);
    for (;;) {
      // Search until every active lane has a block l..m to sweep or is done.
      V pending = active;
      while (pack::bits(pending)) {
        V mm = last;
        for (int j = N - 2; j >= 0; --j) mm = pack::select(pack::andMask(pack::le(l, c(j)), small(e[j])), c(j), mm);
        const V split = pack::andMask(pack::andMask(pending, dn), pack::gt(last, mm));
        if (pack::bits(split)) P = pack::select(split, pack::mul(P, pick<N>(d, mm)), P);
        const V adv = pack::andMask(pending, pack::eq(mm, l));
        m = pack::select(pack::andNot(pending, adv), mm, m);
        l = pack::add(l, pack::andMask(adv, one));
        iter = pack::andNot(iter, adv);
        const V fin = pack::andMask(adv, pack::eq(l, last));
        active = pack::andNot(active, fin);
        pending = pack::andNot(adv, fin);
      }
      const V over = pack::andMask(active, pack::eq(iter, c(kMaxSweeps)));
      failed = pack::orMask(failed, over);
      active = pack::andNot(active, over);
      if (!pack::bits(active)) break;
      iter = pack::add(iter, pack::andMask(active, one));
      sweep(d, e, l, m, active, dn, eps, zero, one, two);
    }

    // Products: upward from d[0]; downward, the searches' product times the last d[0].
    V Pu = one;
    for (int j = 0; j < N; ++j) Pu = pack::mul(Pu, d[j]);
    P = pack::select(dn, pack::mul(P, d[N - 1]), Pu);
    V v[N];
    for (int j = 0; j < N; ++j) v[j] = pack::select(dn, d[N - 1 - j], d[j]);
    failed = pack::orMask(failed, pack::le(pack::abs(P), eps));

    // Selection sort, descending, the first of equals kept.
    for (int i = 0; i + 1 < N; ++i) {
      V best = v[i], at = c(i);
      for (int j = i + 1; j < N; ++j) {
        const V more = pack::gt(v[j], best);
        best = pack::select(more, v[j], best);
        at = pack::select(more, c(j), at);
      }
      const V old = v[i];
      v[i] = best;
      for (int j = i + 1; j < N; ++j) v[j] = pack::select(pack::eq(at, c(j)), old, v[j]);
    }
    for (int j = 0; j < N; ++j)
      for (int g = 0; g < K; ++g) simd::store<simd::kLanes<T>, false>(out + j * W + g * simd::kLanes<T>, v[j].v[g]);
    return pack::bits(failed);
  }

  static void reduce(V (&a)[N][N], V eps, V zero, V two) {
    for (int k = 0; k + 2 < N; ++k) {
      V s = pack::mul(a[k + 1][k], a[k + 1][k]);  // 0 + x*x is x*x
      for (int i = k + 2; i < N; ++i) s = pack::add(s, pack::mul(a[i][k], a[i][k]));
      const V norm = pack::sqrt(s);
      const V av = a[k + 1][k];
      const V pos = pack::gt(av, eps), mid = pack::le(pack::abs(av), eps);
      V u[N];
      u[k + 1] = pack::select(pos, pack::add(av, norm), pack::select(mid, norm, pack::sub(av, norm)));
      for (int i = k + 2; i < N; ++i) u[i] = a[i][k];
      const V h = pack::select(pos, pack::mul(pack::add(s, pack::mul(av, norm)), two),
                               pack::select(mid, pack::add(s, s), pack::mul(pack::sub(s, pack::mul(av, norm)), two)));
      const V skip = pack::le(h, eps);
      const int skipped = pack::bits(skip);
      if (skipped == (1 << W) - 1) continue;
      const V beta = pack::div(two, h);
      V old[N][N];
      if (skipped)
        for (int i = k; i < N; ++i)
          for (int j = k; j < N; ++j) old[i][j] = a[i][j];
      for (int j = k; j < N; ++j) {
        V sum = zero;
        for (int i = k + 1; i < N; ++i) sum = pack::add(sum, pack::mul(a[i][j], u[i]));
        const V w = pack::mul(beta, sum);
        for (int i = k + 1; i < N; ++i) a[i][j] = pack::sub(a[i][j], pack::mul(w, u[i]));
      }
      for (int i = k; i < N; ++i) {
        V sum = zero;
        for (int j = k + 1; j < N; ++j) sum = pack::add(sum, pack::mul(a[i][j], u[j]));
        const V w = pack::mul(beta, sum);
        for (int j = k + 1; j < N; ++j) a[i][j] = pack::sub(a[i][j], pack::mul(w, u[j]));
      }
      if (skipped)
        for (int i = k; i < N; ++i)
          for (int j = k; j < N; ++j) a[i][j] = pack::select(skip, old[i][j], a[i][j]);
    }
  }

  // One sweep of the block l..m of every lane in `go`, in the upward form.
  static void sweep(V (&d)[N], V (&e)[N], V l, V m, V go, V dn, V eps, V zero, V one, V two) {
    const V dl = pick<N>(d, l), el = pick<N - 1>(e, l);
    V g = pack::div(pack::sub(pick<N>(d, pack::add(l, one)), dl), pack::mul(two, el));
    const V root = pack::sqrt(pack::add(pack::mul(g, g), one));
    const V den = pack::select(pack::gt(g, eps), pack::add(g, root), pack::sub(g, root));
    g = pack::add(pack::sub(pick<N>(d, m), dl), pack::div(el, den));
    V s = one, cs = one, p = zero, t = zero;
    const V mLess = pack::sub(m, one);
    for (int i = N - 2; i >= 0; --i) {
      V act = pack::andMask(go, pack::andMask(pack::le(l, c(i)), pack::gt(m, c(i))));
      if (!pack::bits(act)) continue;
      const V f = pack::mul(s, e[i]), b = pack::mul(cs, e[i]);
      const V r = pack::sqrt(pack::add(pack::mul(f, f), pack::mul(g, g)));
      if (i + 1 < N - 1) e[i + 1] = pack::select(pack::andNot(act, pack::eq(mLess, c(i))), r, e[i + 1]);
      const V ex = pack::andMask(act, pack::le(pack::abs(r), eps));
      if (pack::bits(ex)) {
        // The block splits: e[m-1] is cleared, and these lanes search again.
        d[i + 1] = pack::select(ex, pack::sub(d[i + 1], p), d[i + 1]);
        for (int j = 0; j + 1 < N; ++j) e[j] = pack::select(pack::andMask(ex, pack::eq(mLess, c(j))), zero, e[j]);
        go = pack::andNot(go, ex);
        act = pack::andNot(act, ex);
      }
      const V cn = pack::div(g, r), sn = pack::div(f, r);
      const V g2 = pack::sub(d[i + 1], p);
      const V tn = pack::add(pack::mul(pack::sub(d[i], g2), sn), pack::mul(pack::add(cn, cn), b));
      const V pn = pack::mul(tn, sn);
      d[i + 1] = pack::select(act, pack::add(g2, pn), d[i + 1]);
      g = pack::select(act, pack::sub(pack::mul(tn, cn), b), g);
      cs = pack::select(act, cn, cs);
      s = pack::select(act, sn, s);
      p = pack::select(act, pn, p);
      t = pack::select(act, tn, t);
    }
    // A small last t skips the update: upward only for l > 0, downward always.
    const V keep = pack::andMask(pack::le(pack::abs(t), eps), pack::orMask(pack::gt(l, zero), dn));
    const V upd = pack::andNot(go, keep);
    if (!pack::bits(upd)) return;
    for (int j = 0; j + 1 < N; ++j) {
      const V at = pack::andMask(upd, pack::eq(l, c(j)));
      d[j] = pack::select(at, pack::sub(d[j], p), d[j]);
      e[j] = pack::select(at, g, e[j]);
    }
  }
};

// Eigenvalues of the objects of an array, W at a time, while whole groups remain: k is the
// first object not done on return. At the first object that fails, the plain path runs on it
// and its status is returned; objects behind it are not touched.
template <class T, int N, int K, class A>
tarnStatus valuesInLanes(const A& src, T* scratch, T* dst, int32_t count, int32_t& k) {
  constexpr int W = ValuesLanes<T, N, K>::W;
  alignas(16) T in[N * N * W];
  alignas(16) T out[N * W];
  for (; k + W <= count; k += W) {
    for (int o = 0; o < W; ++o) {
      const auto v = src.obj(k + o);
      for (int r = 0; r < N; ++r)
        for (int q = 0; q < N; ++q) in[(r * N + q) * W + o] = *v.at(r, q);
    }
    const int failed = ValuesLanes<T, N, K>::solve(in, out);
    for (int o = 0; o < W; ++o) {
      T* d = byteAdd(dst, off32(k + o, N * int32_t(sizeof(T))));
      if (failed >> o & 1) {
        if (const tarnStatus st = valuesOne(src.obj(k + o), scratch, d, N)) {
          k += o;
          return st;
        }
        continue;
      }
      for (int j = 0; j < N; ++j) d[j] = out[j * W + o];
    }
  }
  return tarnStatusOk;
}

}  // namespace tarn::eigsym
