// Matrix products of packed batches: tarn's Mul against the loop a caller would write, Eigen's
// fixed-size products and glm's, on the same buffers.
//
//   tarnMul_mama_32f 3x3 and 4x4, tarnMul_mama_64f 6x6: dst[n] = src1[n] * src2[n]
//   tarnMul_mam_32f 4x4: dst[n] = src1[n] * src2, one right factor for the whole batch
//
// tarn's result is checked bit for bit against a scalar loop in its own order (left to right
// from the first product); a peer's against the same loop to a relative 1e-5 (1e-13 for
// doubles), since a peer may associate its sums differently.
#include <glm/glm.hpp>
#include <omp.h>
#include <tarn.h>

#include <Eigen/Core>
#include <cmath>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "support.hpp"

namespace {

using tarnbench::Buf;

struct Batch {
  int n, order, count;
  bool shared;  // one right factor for the batch
  Buf a, b, d, expect;
};

template <class T>
Batch makeBatch(int n, int count, bool shared) {
  Batch bt{n, n, count, shared, Buf(size_t(count) * n * n * sizeof(T)), Buf(size_t(shared ? 1 : count) * n * n * sizeof(T)),
           Buf(size_t(count) * n * n * sizeof(T)), Buf(size_t(count) * n * n * sizeof(T))};
  std::mt19937 rng(17);
  std::uniform_real_distribution<T> u(T(-2), T(2));
  for (size_t i = 0; i < bt.a.bytes / sizeof(T); ++i) bt.a.as<T>()[i] = u(rng);
  for (size_t i = 0; i < bt.b.bytes / sizeof(T); ++i) bt.b.as<T>()[i] = u(rng);
  const T *a = bt.a.as<T>(), *b = bt.b.as<T>();
  T* e = bt.expect.as<T>();
  const size_t nn = size_t(n) * n;
  for (int o = 0; o < count; ++o)
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j) {
        const T* ao = a + o * nn;
        const T* bo = b + (shared ? 0 : o * nn);
        T s = ao[i * n] * bo[j];
        for (int k = 1; k < n; ++k) s = s + ao[i * n + k] * bo[k * n + j];
        e[o * nn + i * n + j] = s;
      }
  return bt;
}

// The obvious loop: every element a sum from zero over k.
template <class T, int N>
void plain(const Batch& bt) {
  const T *a = bt.a.as<T>(), *b = bt.b.as<T>();
  T* d = bt.d.as<T>();
  for (int o = 0; o < bt.count; ++o) {
    const T* ao = a + o * N * N;
    const T* bo = b + (bt.shared ? 0 : o * N * N);
    T* dd = d + o * N * N;
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j) {
        T s = 0;
        for (int k = 0; k < N; ++k) s += ao[i * N + k] * bo[k * N + j];
        dd[i * N + j] = s;
      }
  }
}

template <class T, int N>
void eigen(const Batch& bt) {
  using M = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  const T *a = bt.a.as<T>(), *b = bt.b.as<T>();
  T* d = bt.d.as<T>();
  for (int o = 0; o < bt.count; ++o)
    Eigen::Map<M>(d + o * N * N).noalias() =
        Eigen::Map<const M>(a + o * N * N) * Eigen::Map<const M>(b + (bt.shared ? 0 : o * N * N));
}

// glm is column-major: a row-major product d = a * b is, read as glm matrices, D' = B' * A'.
template <class M, int N>
void glmProduct(const Batch& bt) {
  const auto* a = reinterpret_cast<const M*>(bt.a.p);
  const auto* b = reinterpret_cast<const M*>(bt.b.p);
  auto* d = reinterpret_cast<M*>(bt.d.p);
  for (int o = 0; o < bt.count; ++o) d[o] = b[bt.shared ? 0 : o] * a[o];
}

template <class T>
void tarnMama(const Batch& bt);
template <>
void tarnMama<float>(const Batch& bt) {
  const int32_t n = bt.n, row = n * 4, obj = n * n * 4;
  if (bt.shared)
    tarnMul_mam_32f(bt.a.as<float>(), obj, row, 4, n, n, bt.b.as<float>(), row, 4, n, n, bt.d.as<float>(), obj, row, 4, bt.count);
  else
    tarnMul_mama_32f(bt.a.as<float>(), obj, row, 4, n, n, bt.b.as<float>(), obj, row, 4, n, n, bt.d.as<float>(), obj, row, 4, bt.count);
}
template <>
void tarnMama<double>(const Batch& bt) {
  const int32_t n = bt.n, row = n * 8, obj = n * n * 8;
  tarnMul_mama_64f(bt.a.as<double>(), obj, row, 8, n, n, bt.b.as<double>(), obj, row, 8, n, n, bt.d.as<double>(), obj, row, 8, bt.count);
}

template <class T>
bool close(const Batch& bt, bool exact) {
  if (exact) return std::memcmp(bt.d.p, bt.expect.p, bt.d.bytes) == 0;
  const T tol = sizeof(T) == 4 ? T(1e-5) : T(1e-13);
  for (size_t i = 0; i < bt.d.bytes / sizeof(T); ++i) {
    const T x = bt.d.as<T>()[i], y = bt.expect.as<T>()[i];
    if (!(std::fabs(x - y) <= tol * (T(1) + std::fabs(y)))) return false;
  }
  return true;
}

struct Row {
  std::string name;  // workload/shape
  int n;
  bool f64, shared;
  std::vector<std::pair<std::string, void (*)(const Batch&)>> peers;
};

template <class T, int N>
Row row(const char* exportName, bool shared, std::vector<std::pair<std::string, void (*)(const Batch&)>> extra = {}) {
  Row r{std::string(exportName) + "/" + std::to_string(N) + "x" + std::to_string(N), N, sizeof(T) == 8, shared, {}};
  r.peers = {{"plain", &plain<T, N>}, {"eigen", &eigen<T, N>}};
  for (auto& e : extra) r.peers.push_back(e);
  return r;
}

// The batch of the workload being timed: made when its first benchmark runs, freed when the next
// workload's runs (benchmarks run in the order they are registered).
template <class T>
const Batch& batchOf(const std::string& key, int n, int count, bool shared) {
  static std::string current;
  static std::unique_ptr<Batch> batch;
  if (key != current) {
    batch.reset();
    batch = std::make_unique<Batch>(makeBatch<T>(n, count, shared));
    current = key;
  }
  return *batch;
}

template <class T>
void runRow(const Row& r) {
  for (int32_t count : {2000, 100000, 1000000}) {
    const std::string key = r.name + "/" + std::to_string(count);
    // Bytes read and written: two sources and dst per object, or one source and dst.
    const double bytes = double((r.shared ? 2 : 3) * r.n * r.n * int(sizeof(T)));
    auto reg = [&](const std::string& who, int threads, void (*fn)(const Batch&), bool exact) {
      const std::string name = r.name + "/N:" + std::to_string(count) + "/" + who + "/T:" + std::to_string(threads);
      tarnbench::registerBench(name, [key, r, threads, fn, exact, count, bytes](benchmark::State& st) {
        const Batch& batch = batchOf<T>(key, r.n, count, r.shared);
        std::memset(batch.d.p, 0, batch.d.bytes);
        const int saved = omp_get_max_threads();
        omp_set_num_threads(threads);
        fn(batch);
        if (!close<T>(batch, exact)) {
          omp_set_num_threads(saved);
          st.SkipWithError("result differs from the scalar reference");
          return;
        }
        tarnbench::timeCalls(st, count, bytes, [&] { fn(batch); });
        omp_set_num_threads(saved);
      });
    };
    for (int t : {1, 2}) reg("tarn", t, &tarnMama<T>, true);
    for (const auto& [who, fn] : r.peers) reg(who, 1, fn, false);
  }
}

// Registered at start-up, beside the element-wise workloads of bench.cpp.
const bool registered = [] {
  runRow<float>(row<float, 3>("tarnMul_mama_32f", false, {{"glm", &glmProduct<glm::mat3, 3>}}));
  runRow<float>(row<float, 4>("tarnMul_mama_32f", false, {{"glm", &glmProduct<glm::mat4, 4>}}));
  runRow<double>(row<double, 6>("tarnMul_mama_64f", false));
  runRow<float>(row<float, 4>("tarnMul_mam_32f", true, {{"glm", &glmProduct<glm::mat4, 4>}}));
  return true;
}();

}  // namespace
