// Products: one matrix applied to a batch of vectors (Mul_mva, Gaxpy_mva), a batch of matrices
// applied to a batch of vectors (Mul_mava), and a batch of matrices scaled by one constant
// (Mul_mac), against a plain loop, Eigen and glm on the same packed buffers, and against a memory
// reference over the same bytes.
//
// The contenders sum the products of a row in different orders, so each is verified against
// its own expectation before it is timed: tarn bit for bit against a scalar model of its
// documented order (the float lane order of these kernels: (p0 + p1) + p2 at 3,
// (p0 + p2) + (p1 + p3) at 4; src3 last), the peers against a double-precision product within a
// relative 1e-5. Bytes per object count the array operands read and written (the one matrix or
// the one constant is read once per call).
#include <omp.h>
#include <pmmintrin.h>
#include <tarn.h>

#include <Eigen/Core>
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

enum class Op { Mva, Mava, GaxpyMva, Mac };

struct Workload {
  const char* exportName;
  Op op;
  int n;  // order of the matrices
};

// The batch: `m` the matrices (one, or one per object), `v` the vectors, `s` Gaxpy's addends,
// `d` the results, all packed; `one` the constant of Mac.
struct Ctx {
  Workload work;
  int32_t count;
  Buf m, v, s, d, want, approx;
  float one = 0.7071067f;
  // Memory reference: `streams` - 1 read streams and one written, of `stream` bytes each.
  Buf ra, rb, rd;
  size_t stream = 0;
  int streams = 2;
  std::vector<std::string> verified;
  int elemsOut() const { return work.op == Op::Mac ? work.n * work.n : work.n; }
};

bool matrixArray(Op op) { return op == Op::Mava || op == Op::Mac; }

double bytesPerObj(const Workload& s) {
  const double nn = s.n * s.n * 4.0, nv = s.n * 4.0;
  switch (s.op) {
    case Op::Mva: return 2 * nv;
    case Op::Mava: return nn + 2 * nv;
    case Op::GaxpyMva: return 3 * nv;
    case Op::Mac: return 2 * nn;
  }
  return 0;
}

// tarn's documented order for the fixed sizes 3 and 4.
float laneSum(const float* p, int n) { return n == 3 ? (p[0] + p[1]) + p[2] : (p[0] + p[2]) + (p[1] + p[3]); }

std::unique_ptr<Ctx> makeCtx(const Workload& sp, int32_t count) {
  auto c = std::make_unique<Ctx>();
  c->work = sp;
  c->count = count;
  const size_t n = size_t(sp.n), objs = size_t(count);
  const size_t mats = matrixArray(sp.op) ? objs : 1;
  c->m = Buf(mats * n * n * 4);
  c->v = Buf(objs * n * 4);
  c->s = Buf(objs * n * 4);
  const size_t out = objs * size_t(c->elemsOut()) * 4;
  c->d = Buf(out);
  c->want = Buf(out);
  c->approx = Buf(objs * size_t(c->elemsOut()) * 8);
  std::mt19937 rng(7);
  std::uniform_real_distribution<float> u(-1.0f, 1.0f);
  for (size_t i = 0; i < mats * n * n; ++i) c->m.as<float>()[i] = u(rng);
  for (size_t i = 0; i < objs * n; ++i) c->v.as<float>()[i] = u(rng), c->s.as<float>()[i] = u(rng);
  float* want = c->want.as<float>();
  double* approx = c->approx.as<double>();
  for (size_t o = 0; o < objs; ++o) {
    if (sp.op == Op::Mac) {
      for (size_t e = 0; e < n * n; ++e) {
        want[o * n * n + e] = c->m.as<float>()[o * n * n + e] * c->one;
        approx[o * n * n + e] = want[o * n * n + e];
      }
      continue;
    }
    const float* a = c->m.as<float>() + (matrixArray(sp.op) ? o * n * n : 0);
    const float* x = c->v.as<float>() + o * n;
    for (size_t i = 0; i < n; ++i) {
      float p[4];
      double exact = 0;
      for (size_t k = 0; k < n; ++k) p[k] = a[i * n + k] * x[k], exact += double(a[i * n + k]) * x[k];
      float r = laneSum(p, int(n));
      if (sp.op == Op::GaxpyMva) r = r + c->s.as<float>()[o * n + i], exact += c->s.as<float>()[o * n + i];
      want[o * n + i] = r;
      approx[o * n + i] = exact;
    }
  }
  c->streams = sp.op == Op::Mava || sp.op == Op::GaxpyMva ? 3 : 2;
  c->stream = size_t(bytesPerObj(sp) * double(count) / c->streams) / 16 * 16;
  return c;
}

// ---- Contenders ----------------------------------------------------------------------------

void tarnCall(const Ctx& c) {
  const int n = c.work.n, row = 4 * n, obj = 4 * n * n;
  const float* m = c.m.as<const float>();
  const float* v = c.v.as<const float>();
  float* d = c.d.as<float>();
  switch (c.work.op) {
    case Op::Mva: tarnMul_mva_32f(m, row, 4, n, n, v, row, 4, n, d, row, 4, c.count); break;
    case Op::Mava: tarnMul_mava_32f(m, obj, row, 4, n, n, v, row, 4, n, d, row, 4, c.count); break;
    case Op::GaxpyMva:
      tarnGaxpy_mva_32f(m, row, 4, n, n, v, row, 4, n, c.s.as<const float>(), row, 4, n, d, row, 4, c.count);
      break;
    case Op::Mac: tarnMul_mac_32f(m, obj, row, 4, c.one, d, obj, row, 4, n, n, c.count); break;
  }
}

template <int N>
void plainLoop(const Ctx& c) {
  const float* m = c.m.as<const float>();
  const float* v = c.v.as<const float>();
  const float* s3 = c.s.as<const float>();
  float* d = c.d.as<float>();
  const int32_t count = c.count;
  if (c.work.op == Op::Mac) {
    for (int32_t o = 0; o < count; ++o)
      for (int e = 0; e < N * N; ++e) d[size_t(o) * N * N + e] = m[size_t(o) * N * N + e] * c.one;
    return;
  }
  const bool arr = c.work.op == Op::Mava, gx = c.work.op == Op::GaxpyMva;
  for (int32_t o = 0; o < count; ++o) {
    const float* a = m + (arr ? size_t(o) * N * N : 0);
    for (int i = 0; i < N; ++i) {
      float sum = 0;
      for (int k = 0; k < N; ++k) sum += a[i * N + k] * v[size_t(o) * N + k];
      d[size_t(o) * N + i] = gx ? sum + s3[size_t(o) * N + i] : sum;
    }
  }
}

template <int N>
void eigenLoop(const Ctx& c) {
  using M = Eigen::Matrix<float, N, N, Eigen::RowMajor>;
  using V = Eigen::Matrix<float, N, 1>;
  const int32_t count = c.count;
  if (c.work.op == Op::Mac) {
    for (int32_t o = 0; o < count; ++o)
      Eigen::Map<M>(c.d.as<float>() + size_t(o) * N * N) = Eigen::Map<const M>(c.m.as<const float>() + size_t(o) * N * N) * c.one;
    return;
  }
  const Eigen::Map<const M> one(c.m.as<const float>());
  for (int32_t o = 0; o < count; ++o) {
    const Eigen::Map<const V> x(c.v.as<const float>() + size_t(o) * N);
    Eigen::Map<V> y(c.d.as<float>() + size_t(o) * N);
    if (c.work.op == Op::Mava) y.noalias() = Eigen::Map<const M>(c.m.as<const float>() + size_t(o) * N * N) * x;
    else if (c.work.op == Op::GaxpyMva) y.noalias() = one * x + Eigen::Map<const V>(c.s.as<const float>() + size_t(o) * N);
    else y.noalias() = one * x;
  }
}

// glm's matrices are column-major: a row-major matrix in memory is the transpose to glm, and
// v * m is m's transpose times v, the row-major matrix times v.
template <int N>
void glmLoop(const Ctx& c) {
  using M = std::conditional_t<N == 3, glm::mat3, glm::mat4>;
  using V = std::conditional_t<N == 3, glm::vec3, glm::vec4>;
  const M* m = reinterpret_cast<const M*>(c.m.as<const float>());
  const V* v = reinterpret_cast<const V*>(c.v.as<const float>());
  const V* s3 = reinterpret_cast<const V*>(c.s.as<const float>());
  const int32_t count = c.count;
  if (c.work.op == Op::Mac) {
    M* d = reinterpret_cast<M*>(c.d.as<float>());
    for (int32_t o = 0; o < count; ++o) d[o] = m[o] * c.one;
    return;
  }
  V* d = reinterpret_cast<V*>(c.d.as<float>());
  const M one = m[0];
  if (c.work.op == Op::Mava)
    for (int32_t o = 0; o < count; ++o) d[o] = v[o] * m[o];
  else if (c.work.op == Op::GaxpyMva)
    for (int32_t o = 0; o < count; ++o) d[o] = v[o] * one + s3[o];
  else
    for (int32_t o = 0; o < count; ++o) d[o] = v[o] * one;
}

// Copy (one read stream) or triad (two), 16 bytes at a time with ordinary stores, split over
// the threads as tarn splits its objects.
void memRange(const Ctx& c, size_t first, size_t last) {
  const __m128* a = reinterpret_cast<const __m128*>(c.ra.p);
  const __m128* b = reinterpret_cast<const __m128*>(c.rb.p);
  __m128* d = reinterpret_cast<__m128*>(c.rd.p);
  if (c.streams == 3)
    for (size_t i = first; i < last; ++i) _mm_store_ps(reinterpret_cast<float*>(d + i), _mm_add_ps(a[i], b[i]));
  else
    for (size_t i = first; i < last; ++i) _mm_store_ps(reinterpret_cast<float*>(d + i), a[i]);
}
void memRef(Ctx& c, int threads) {
  if (!c.ra.p) {
    for (Buf* b : {&c.ra, &c.rb, &c.rd}) {
      *b = Buf(c.stream);
      std::memset(b->p, 0, c.stream);
    }
  }
  const size_t v = c.stream / 16;
  if (threads == 1) return memRange(c, 0, v);
#pragma omp parallel num_threads(threads)
  {
    const size_t t = size_t(omp_get_num_threads()), id = size_t(omp_get_thread_num());
    memRange(c, v * id / t, v * (id + 1) / t);
  }
}

// ---- Registration --------------------------------------------------------------------------

struct Cache {
  const Workload* work = nullptr;
  int32_t count = 0;
  std::unique_ptr<Ctx> ctx;
} gCache;

Ctx& batch(const Workload& s, int32_t count) {
  if (gCache.work != &s || gCache.count != count) {
    gCache.ctx.reset();
    gCache.ctx = makeCtx(s, count);
    gCache.work = &s;
    gCache.count = count;
  }
  return *gCache.ctx;
}

// tarn bit for bit against its order; a peer within a relative 1e-5 of the double product.
bool verify(Ctx& c, const std::string& who, void (*call)(const Ctx&)) {
  for (const auto& v : c.verified)
    if (v == who) return true;
  std::memset(c.d.p, 0xff, c.d.bytes);
  call(c);
  if (who == "tarn") {
    if (std::memcmp(c.d.p, c.want.p, c.d.bytes) != 0) return false;
  } else {
    const size_t elems = c.d.bytes / 4;
    for (size_t i = 0; i < elems; ++i) {
      const double x = c.approx.as<double>()[i], y = c.d.as<float>()[i];
      if (!(std::fabs(x - y) <= 1e-5 * (1 + std::fabs(x)))) return false;
    }
  }
  c.verified.push_back(who);
  return true;
}

const Workload kWorkloads[] = {
    {"tarnMul_mva_32f", Op::Mva, 4},       {"tarnMul_mva_32f", Op::Mva, 3},      {"tarnMul_mava_32f", Op::Mava, 4},
    {"tarnGaxpy_mva_32f", Op::GaxpyMva, 4}, {"tarnMul_mac_32f", Op::Mac, 3},
};
constexpr int32_t kSizes[] = {2000, 100000, 1000000};

struct Registrar {
  Registrar() {
    for (const Workload& s : kWorkloads) {
      const std::string wl = std::string(s.exportName) + "/" + std::to_string(s.n) + "x" + std::to_string(s.n);
      using Fn = void (*)(const Ctx&);
      const std::pair<const char*, Fn> peers[] = {
          {"plain", s.n == 3 ? plainLoop<3> : plainLoop<4>},
          {"eigen", s.n == 3 ? eigenLoop<3> : eigenLoop<4>},
          {"glm", s.n == 3 ? glmLoop<3> : glmLoop<4>},
      };
      for (int32_t count : kSizes) {
        const std::string at = wl + "/N:" + std::to_string(count) + "/";
        for (int t : {1, 2})
          tarnbench::registerBench(at + "tarn/T:" + std::to_string(t), [&s, count, t](benchmark::State& st) {
            Ctx& c = batch(s, count);
            if (!verify(c, "tarn", tarnCall)) return st.SkipWithError("result differs from tarn's documented order");
            const int saved = omp_get_max_threads();
            omp_set_num_threads(t);
            tarnbench::timeCalls(st, count, bytesPerObj(s), [&] { tarnCall(c); });
            omp_set_num_threads(saved);
          });
        for (auto [name, fn] : peers)
          tarnbench::registerBench(at + name + "/T:1", [&s, count, name = std::string(name), fn = fn](benchmark::State& st) {
            Ctx& c = batch(s, count);
            if (!verify(c, name, fn)) return st.SkipWithError("result differs from the product");
            tarnbench::timeCalls(st, count, bytesPerObj(s), [&] { fn(c); });
          });
        for (int t : {1, 2})
          tarnbench::registerBench(at + "memref/T:" + std::to_string(t), [&s, count, t](benchmark::State& st) {
            Ctx& c = batch(s, count);
            tarnbench::timeCalls(st, count, bytesPerObj(s), [&] { memRef(c, t); });
          });
      }
    }
  }
} gRegistrar;

}  // namespace
