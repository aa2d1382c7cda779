// Reductions against the loops a caller would write: dot and cross products of 3-vectors,
// their norms and the Frobenius norm of 3x3 matrices, float, packed LayoutS batches.
//
// Contenders: tarn (1 and 2 threads), plain (the obvious loop, built like everything else in
// the binary), eigen (fixed-size maps), glm (vec3 and mat3), memref (16-byte loads and stores
// over exactly the bytes the operation reads and writes, 1 and 2 threads). tarn's results must
// equal a scalar model of its own order of additions bit for bit; a peer may add in another
// order (Eigen's and glm's 3x3 norms do), so its results are checked to 1e-5 instead (the
// values are of order 1).
#include <omp.h>
#include <pmmintrin.h>
#include <tarn.h>

#include <Eigen/Core>
#include <Eigen/Geometry>
#include <cmath>
#include <cstring>
#include <glm/glm.hpp>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "support.hpp"

namespace {

using tarnbench::Buf;

// A batch: one or two packed source arrays of `in` floats per object, a result of `out` floats
// per object, and the model's results.
struct Batch {
  int32_t n = 0;
  Buf a, b, d;
  std::vector<float> expect;
};

using Call = void (*)(const Batch&);

struct Contender {
  const char* name;
  bool tarn, memref;
  Call call;
};

struct Reduction {
  const char* name;  // export and shape
  int in, sources, out;
  void (*model)(const float* a, const float* b, float* d);  // one object, in tarn's order
  std::vector<Contender> contenders;
};

// ---- Models of one object, in the order tarn keeps ----------------------------------------

void dotModel(const float* a, const float* b, float* d) { d[0] = (a[0] * b[0] + a[1] * b[1]) + a[2] * b[2]; }
void crossModel(const float* a, const float* b, float* d) {
  d[0] = a[1] * b[2] - a[2] * b[1];
  d[1] = a[2] * b[0] - a[0] * b[2];
  d[2] = a[0] * b[1] - a[1] * b[0];
}
void normModel(const float* a, const float*, float* d) { d[0] = std::sqrt((a[0] * a[0] + a[1] * a[1]) + a[2] * a[2]); }
void frobModel(const float* a, const float*, float* d) {
  float s[9];
  for (int e = 0; e < 9; ++e) s[e] = a[e] * a[e];
  d[0] = std::sqrt((((s[0] + s[1]) + s[8]) + (s[2] + s[3])) + ((s[4] + s[5]) + (s[6] + s[7])));
}

// ---- Peers ---------------------------------------------------------------------------------

void dotPlain(const Batch& c) {
  const float *a = c.a.as<float>(), *b = c.b.as<float>();
  float* d = c.d.as<float>();
  for (int32_t i = 0; i < c.n; ++i)
    d[i] = a[3 * i] * b[3 * i] + a[3 * i + 1] * b[3 * i + 1] + a[3 * i + 2] * b[3 * i + 2];
}
void dotEigen(const Batch& c) {
  using V = Eigen::Map<const Eigen::Vector3f>;
  for (int32_t i = 0; i < c.n; ++i) c.d.as<float>()[i] = V(c.a.as<float>() + 3 * i).dot(V(c.b.as<float>() + 3 * i));
}
void dotGlm(const Batch& c) {
  const auto* a = c.a.as<glm::vec3>();
  const auto* b = c.b.as<glm::vec3>();
  for (int32_t i = 0; i < c.n; ++i) c.d.as<float>()[i] = glm::dot(a[i], b[i]);
}
void crossPlain(const Batch& c) {
  const float *a = c.a.as<float>(), *b = c.b.as<float>();
  float* d = c.d.as<float>();
  for (int32_t i = 0; i < c.n; ++i, a += 3, b += 3, d += 3) {
    d[0] = a[1] * b[2] - a[2] * b[1];
    d[1] = a[2] * b[0] - a[0] * b[2];
    d[2] = a[0] * b[1] - a[1] * b[0];
  }
}
void crossEigen(const Batch& c) {
  using V = Eigen::Map<const Eigen::Vector3f>;
  for (int32_t i = 0; i < c.n; ++i)
    Eigen::Map<Eigen::Vector3f>(c.d.as<float>() + 3 * i) = V(c.a.as<float>() + 3 * i).cross(V(c.b.as<float>() + 3 * i));
}
void crossGlm(const Batch& c) {
  const auto* a = c.a.as<glm::vec3>();
  const auto* b = c.b.as<glm::vec3>();
  auto* d = c.d.as<glm::vec3>();
  for (int32_t i = 0; i < c.n; ++i) d[i] = glm::cross(a[i], b[i]);
}
void normPlain(const Batch& c) {
  const float* a = c.a.as<float>();
  for (int32_t i = 0; i < c.n; ++i, a += 3) c.d.as<float>()[i] = std::sqrt(a[0] * a[0] + a[1] * a[1] + a[2] * a[2]);
}
void normEigen(const Batch& c) {
  for (int32_t i = 0; i < c.n; ++i)
    c.d.as<float>()[i] = Eigen::Map<const Eigen::Vector3f>(c.a.as<float>() + 3 * i).norm();
}
void normGlm(const Batch& c) {
  const auto* a = c.a.as<glm::vec3>();
  for (int32_t i = 0; i < c.n; ++i) c.d.as<float>()[i] = glm::length(a[i]);
}
void frobPlain(const Batch& c) {
  const float* a = c.a.as<float>();
  for (int32_t i = 0; i < c.n; ++i, a += 9) {
    float s = 0;
    for (int e = 0; e < 9; ++e) s += a[e] * a[e];
    c.d.as<float>()[i] = std::sqrt(s);
  }
}
void frobEigen(const Batch& c) {
  using M = Eigen::Matrix<float, 3, 3, Eigen::RowMajor>;
  for (int32_t i = 0; i < c.n; ++i) c.d.as<float>()[i] = Eigen::Map<const M>(c.a.as<float>() + 9 * i).norm();
}
void frobGlm(const Batch& c) {  // the sum of its columns' squared lengths
  const auto* a = c.a.as<glm::mat3>();
  for (int32_t i = 0; i < c.n; ++i)
    c.d.as<float>()[i] =
        std::sqrt(glm::dot(a[i][0], a[i][0]) + glm::dot(a[i][1], a[i][1]) + glm::dot(a[i][2], a[i][2]));
}

// ---- tarn ------------------------------------------------------------------------------------

void dotTarn(const Batch& c) {
  tarnDotProduct_vava_32f(c.a.as<float>(), 12, 4, c.b.as<float>(), 12, 4, c.d.as<float>(), 3, c.n);
}
void crossTarn(const Batch& c) {
  tarnCrossProduct_vava_32f(c.a.as<float>(), 12, 4, c.b.as<float>(), 12, 4, c.d.as<float>(), 12, 4, c.n);
}
void normTarn(const Batch& c) { tarnL2Norm_va_32f(c.a.as<float>(), 12, 4, c.d.as<float>(), 3, c.n); }
void frobTarn(const Batch& c) { tarnFrobNorm_ma_32f(c.a.as<float>(), 36, 12, 4, 3, 3, c.d.as<float>(), c.n); }

// ---- Memory reference ----------------------------------------------------------------------

// Four objects are `in` 16-byte vectors of each source and `out` of the result: every vector
// is loaded once, and the results are their bitwise or.
template <int In, int Sources, int Out>
void memRange(const Batch& c, int32_t g0, int32_t g1) {
  const __m128* a = c.a.as<const __m128>();
  const __m128* b = c.b.as<const __m128>();
  float* d = c.d.as<float>();
  for (int32_t g = g0; g < g1; ++g) {
    __m128 x = a[size_t(g) * In];
    for (int j = 1; j < In; ++j) x = _mm_or_ps(x, a[size_t(g) * In + j]);
    if constexpr (Sources == 2)
      for (int j = 0; j < In; ++j) x = _mm_or_ps(x, b[size_t(g) * In + j]);
    for (int k = 0; k < Out; ++k) _mm_store_ps(d + (size_t(g) * Out + k) * 4, x);
  }
}
template <int In, int Sources, int Out>
void memRef(const Batch& c) {
  const int32_t groups = c.n / 4;
  if (omp_get_max_threads() == 1) return memRange<In, Sources, Out>(c, 0, groups);
#pragma omp parallel
  {
    const int32_t t = omp_get_num_threads(), id = omp_get_thread_num();
    memRange<In, Sources, Out>(c, int32_t(int64_t(groups) * id / t), int32_t(int64_t(groups) * (id + 1) / t));
  }
}

// clang-format off
const Reduction kReductions[] = {
  {"tarnDotProduct_vava_32f/v3", 3, 2, 1, dotModel,
   {{"tarn", true, false, dotTarn}, {"plain", false, false, dotPlain}, {"eigen", false, false, dotEigen},
    {"glm", false, false, dotGlm}, {"memref", false, true, memRef<3, 2, 1>}}},
  {"tarnCrossProduct_vava_32f/v3", 3, 2, 3, crossModel,
   {{"tarn", true, false, crossTarn}, {"plain", false, false, crossPlain}, {"eigen", false, false, crossEigen},
    {"glm", false, false, crossGlm}, {"memref", false, true, memRef<3, 2, 3>}}},
  {"tarnL2Norm_va_32f/v3", 3, 1, 1, normModel,
   {{"tarn", true, false, normTarn}, {"plain", false, false, normPlain}, {"eigen", false, false, normEigen},
    {"glm", false, false, normGlm}, {"memref", false, true, memRef<3, 1, 1>}}},
  {"tarnFrobNorm_ma_32f/3x3", 9, 1, 1, frobModel,
   {{"tarn", true, false, frobTarn}, {"plain", false, false, frobPlain}, {"eigen", false, false, frobEigen},
    {"glm", false, false, frobGlm}, {"memref", false, true, memRef<9, 1, 1>}}},
};
// clang-format on

// One batch alive at a time: benchmarks run in registration order.
std::unique_ptr<Batch> gBatch;
const Reduction* gOf = nullptr;

Batch& batchOf(const Reduction& r, int32_t n) {
  if (gOf == &r && gBatch->n == n) return *gBatch;
  gBatch.reset();
  auto c = std::make_unique<Batch>();
  c->n = n;
  c->a = Buf(size_t(n) * r.in * 4);
  c->b = Buf(size_t(n) * r.in * 4);
  c->d = Buf(size_t(n) * r.out * 4);
  std::mt19937 rng(777);
  std::uniform_real_distribution<float> u(-1.0f, 1.0f);
  for (size_t i = 0; i < size_t(n) * r.in; ++i) c->a.as<float>()[i] = u(rng), c->b.as<float>()[i] = u(rng);
  c->expect.resize(size_t(n) * r.out);
  for (int32_t i = 0; i < n; ++i)
    r.model(c->a.as<float>() + i * r.in, c->b.as<float>() + i * r.in, &c->expect[size_t(i) * r.out]);
  gBatch = std::move(c);
  gOf = &r;
  return *gBatch;
}

bool verified(const Batch& c, const Contender& k) {
  std::memset(c.d.p, 0xff, c.d.bytes);
  k.call(c);
  const float* d = c.d.as<float>();
  for (size_t i = 0; i < c.expect.size(); ++i) {
    const bool ok = k.tarn ? std::memcmp(d + i, &c.expect[i], 4) == 0
                           : std::fabs(d[i] - c.expect[i]) <= 1e-5f * (1 + std::fabs(c.expect[i]));
    if (!ok) return false;
  }
  return true;
}

void run(benchmark::State& st, const Reduction& r, const Contender& k, int32_t n, int threads) {
  Batch& c = batchOf(r, n);
  const int saved = omp_get_max_threads();
  omp_set_num_threads(threads);
  if (!k.memref && !verified(c, k)) {
    omp_set_num_threads(saved);
    st.SkipWithError("result differs from the model");
    return;
  }
  const double bytes = 4.0 * (r.in * r.sources + r.out);
  tarnbench::timeCalls(st, n, bytes, [&] { k.call(c); });
  omp_set_num_threads(saved);
}

const bool kRegistered = [] {
  for (const Reduction& r : kReductions)
    for (int32_t n : {2000, 100000, 1000000})
      for (const Contender& k : r.contenders)
        for (int t : {1, 2}) {
          if (!k.tarn && !k.memref && t > 1) continue;
          const std::string name =
              std::string(r.name) + "/N:" + std::to_string(n) + "/" + k.name + "/T:" + std::to_string(t);
          tarnbench::registerBench(name, [&r, &k, n, t](benchmark::State& st) { run(st, r, k, n, t); });
        }
  return true;
}();

}  // namespace
