// What every workload file of the benchmark suite shares: aligned buffers, the timing loop with
// the suite's counters, and registration under the suite's naming scheme
// workload/shape/N:n/contender/T:threads, which report.py reads.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tarnbench {

// 64-byte aligned memory.
struct Buf {
  std::byte* p = nullptr;
  size_t bytes = 0;
  Buf() = default;
  explicit Buf(size_t n) : bytes(n) {
    p = static_cast<std::byte*>(std::aligned_alloc(64, (n + 63) / 64 * 64));
    if (!p) std::abort();
  }
  Buf(Buf&& o) noexcept : p(o.p), bytes(o.bytes) { o.p = nullptr; }
  Buf& operator=(Buf&& o) noexcept {
    std::swap(p, o.p);
    std::swap(bytes, o.bytes);
    return *this;
  }
  ~Buf() { std::free(p); }
  template <class T> T* as() const { return reinterpret_cast<T*>(p); }
};

// Times each call on its own: the sum is the benchmark's time and the fastest call is kept as
// best_ns/obj, which a busy machine disturbs far less than the sum. bytes_per_second counts bytes
// read plus bytes written.
inline void timeCalls(benchmark::State& st, int32_t n, double bytesPerObj, const std::function<void()>& call) {
  double best = 1e300;
  for (auto _ : st) {
    const auto t0 = std::chrono::steady_clock::now();
    call();
    benchmark::ClobberMemory();
    const double dt = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
    st.SetIterationTime(dt);
    best = std::min(best, dt);
  }
  st.SetBytesProcessed(int64_t(double(st.iterations()) * bytesPerObj * n));
  st.counters["ns/obj"] = benchmark::Counter(double(n) * 1e-9, benchmark::Counter::kIsIterationInvariantRate |
                                                                    benchmark::Counter::kInvert);
  st.counters["bytes_per_obj"] = bytesPerObj;
  st.counters["best_ns/obj"] = best * 1e9 / n;
}

// Registers a benchmark with manual timing and the minimum beside the suite's other statistics.
inline void registerBench(const std::string& name, std::function<void(benchmark::State&)> fn) {
  benchmark::RegisterBenchmark(name.c_str(), [fn = std::move(fn)](benchmark::State& st) { fn(st); })
      ->UseManualTime()
      ->ComputeStatistics("min", [](const std::vector<double>& v) { return *std::min_element(v.begin(), v.end()); });
}

}  // namespace tarnbench
