// Copy between every pair of layouts, 3x3 and 4x4 floats, against the loops a caller writes for
// that pair: objects outer and elements inner (plain), and where a side is LayoutP also one
// stream after the other (streams).
// The source holds the same objects in every layout (LayoutL's tables point at the packed
// objects, LayoutP's at element streams); each contender's result is checked bit for bit.
#include <tarn.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "support.hpp"

namespace {

using tarnbench::Buf;

enum class L { S, L, P };

struct Batch {
  int h, w, n;
  Buf a, ap, d, dp;                   // source packed and as streams, destination the same
  std::vector<const float*> taL, taP;  // source tables: one per object, one per element
  std::vector<float*> tdL, tdP;
  int e() const { return h * w; }
  Batch(int h_, int w_, int n_) : h(h_), w(w_), n(n_) {
    const size_t all = size_t(e()) * n;
    a = Buf(all * 4), ap = Buf(all * 4), d = Buf(all * 4), dp = Buf(all * 4);
    for (size_t i = 0; i < all; ++i) a.as<float>()[i] = float(i % 1021) * 0.25f - 17.0f;
    for (int k = 0; k < n; ++k)
      for (int x = 0; x < e(); ++x) ap.as<float>()[size_t(x) * n + k] = a.as<float>()[size_t(k) * e() + x];
    for (int k = 0; k < n; ++k) taL.push_back(a.as<float>() + size_t(k) * e()), tdL.push_back(d.as<float>() + size_t(k) * e());
    for (int x = 0; x < e(); ++x) taP.push_back(ap.as<float>() + size_t(x) * n), tdP.push_back(dp.as<float>() + size_t(x) * n);
  }
};

// The loop written for the pair, objects outer or streams outer.
template <L X, L Y, int H, int W, bool Streams>
void loop(const Batch& b) {
  constexpr int E = H * W;
  const int n = b.n;
  const float* a = b.a.as<const float>();
  float* d = b.d.as<float>();
  auto src = [&](int k, int x) {
    if constexpr (X == L::S) return a[size_t(k) * E + x];
    else if constexpr (X == L::L) return b.taL[k][x];
    else return b.taP[x][k];
  };
  auto dst = [&](int k, int x) -> float& {
    if constexpr (Y == L::S) return d[size_t(k) * E + x];
    else if constexpr (Y == L::L) return b.tdL[k][x];
    else return b.tdP[x][k];
  };
  if constexpr (Streams) {
    for (int x = 0; x < E; ++x)
      for (int k = 0; k < n; ++k) dst(k, x) = src(k, x);
  } else {
    for (int k = 0; k < n; ++k)
      for (int x = 0; x < E; ++x) dst(k, x) = src(k, x);
  }
}

template <L X, L Y>
tarnStatus tarnCall(const Batch& b) {
  const int32_t os = b.e() * 4, rs = b.w * 4, es = 4, w = b.w, h = b.h, n = b.n;
  const float* a = b.a.as<const float>();
  float* d = b.d.as<float>();
  const float* const* aL = b.taL.data();
  const float* const* aP = b.taP.data();
  float* const* dL = b.tdL.data();
  float* const* dP = b.tdP.data();
  if constexpr (X == L::S && Y == L::S) return tarnCopy_ma_32f_SS(a, os, rs, es, d, os, rs, es, w, h, n);
  else if constexpr (X == L::S && Y == L::L) return tarnCopy_ma_32f_SL(a, os, rs, es, dL, 0, rs, es, w, h, n);
  else if constexpr (X == L::S && Y == L::P) return tarnCopy_ma_32f_SP(a, os, rs, es, dP, 0, es, w, h, n);
  else if constexpr (X == L::L && Y == L::S) return tarnCopy_ma_32f_LS(aL, 0, rs, es, d, os, rs, es, w, h, n);
  else if constexpr (X == L::L && Y == L::L) return tarnCopy_ma_32f_LL(aL, 0, rs, es, dL, 0, rs, es, w, h, n);
  else if constexpr (X == L::L && Y == L::P) return tarnCopy_ma_32f_LP(aL, 0, rs, es, dP, 0, es, w, h, n);
  else if constexpr (X == L::P && Y == L::S) return tarnCopy_ma_32f_PS(aP, 0, es, d, os, rs, es, w, h, n);
  else if constexpr (X == L::P && Y == L::L) return tarnCopy_ma_32f_PL(aP, 0, es, dL, 0, rs, es, w, h, n);
  else return tarnCopy_ma_32f_PP(aP, 0, es, dP, 0, es, w, h, n);
}

// The destination holds the source's objects: packed ones equal `a`, streams equal `ap`.
bool verified(const Batch& b, L y) {
  const Buf& got = y == L::P ? b.dp : b.d;
  const Buf& want = y == L::P ? b.ap : b.a;
  return std::memcmp(got.p, want.p, size_t(b.e()) * b.n * 4) == 0;
}

std::shared_ptr<Batch> gBatch;
Batch& batch(int h, int w, int n) {
  if (!gBatch || gBatch->h != h || gBatch->w != w || gBatch->n != n) {
    gBatch.reset();
    gBatch = std::make_shared<Batch>(h, w, n);
  }
  return *gBatch;
}

template <L X, L Y, int H, int W>
void add() {
  const char names[] = "SLP";
  const std::string pair = {names[int(X)], names[int(Y)]};
  const std::string shape = std::to_string(H) + "x" + std::to_string(W);
  for (int n : {2000, 100000, 1000000})
    for (const char* who : {"tarn", "plain", "streams"}) {
      if (who[0] == 's' && X != L::P && Y != L::P) continue;
      const std::string name = "tarnCopy_ma_32f_" + pair + "/" + shape + "/N:" + std::to_string(n) + "/" + who + "/T:1";
      const char k = who[0];
      tarnbench::registerBench(name, [n, k](benchmark::State& st) {
        Batch& b = batch(H, W, n);
        auto call = [&] {
          if (k == 't') tarnCall<X, Y>(b);
          else if (k == 'p') loop<X, Y, H, W, false>(b);
          else loop<X, Y, H, W, true>(b);
        };
        std::memset(Y == L::P ? b.dp.p : b.d.p, 0xff, size_t(b.e()) * n * 4);
        call();
        if (!verified(b, Y)) return st.SkipWithError("result differs from the source");
        // Bytes read plus written, LayoutL's table pointers included.
        const double bytes = 8.0 * H * W + (X == L::L ? 8 : 0) + (Y == L::L ? 8 : 0);
        tarnbench::timeCalls(st, n, bytes, call);
      });
    }
}

template <int H, int W>
void addShape() {
  add<L::S, L::S, H, W>(), add<L::S, L::L, H, W>(), add<L::S, L::P, H, W>();
  add<L::L, L::S, H, W>(), add<L::L, L::L, H, W>(), add<L::L, L::P, H, W>();
  add<L::P, L::S, H, W>(), add<L::P, L::L, H, W>(), add<L::P, L::P, H, W>();
}

const int kRegistered = (addShape<3, 3>(), addShape<4, 4>(), 0);

}  // namespace
