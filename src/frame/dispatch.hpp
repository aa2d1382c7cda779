// Serial or parallel: the work estimate, the thresholds, and the one parallel wrapper.
#pragma once

#include <omp.h>

#include <cstddef>
#include <cstdint>

#include "call.hpp"
#include "members.hpp"
#include "platform.hpp"

extern "C" {
void* kmpc_malloc(size_t size);  // the OpenMP runtime's allocator
void kmpc_free(void* ptr);
}

namespace tarn {

// E in wrapping 32-bit arithmetic; an overflow is not guarded and not meant to be reproduced.
inline int32_t estimate(Est e, const Call& c) {
  const uint32_t n = uint32_t(c.count), w = uint32_t(c.width), h = uint32_t(c.height), l = uint32_t(c.len);
  uint32_t v = 0;
  switch (e) {
    case Est::None: v = 0; break;
    case Est::TwoCountPlusOneWH: v = (2 * n + 1) * w * h; break;
    case Est::ThreeCountWH: v = 3 * n * w * h; break;
    case Est::TwoLenCountPlusLen: v = 2 * l * n + l; break;
    case Est::TwoLenCountPlusCount: v = 2 * l * n + n; break;
    case Est::ThreeLenCount: v = 3 * l * n; break;
    case Est::LenCountPlusLenPlusCount: v = l * n + l + n; break;
    case Est::TwoCount: v = 2 * n; break;
  }
  return int32_t(v);
}

// Whether the call goes to the parallel wrapper on the path chosen by `contig`.
inline bool wantsWrapper(const Plan& s, const Call& c, bool contig) {
  return s.parallel && estimate(s.est, c) >= (contig ? s.thrC : s.thrG);
}

// The slice of `count` objects that thread `id` of a team of `nt` takes: the first r threads one
// object more. 10 objects on 3 threads: q = 3, r = 1; slices of 4, 3, 3 from objects 0, 4, 7.
struct Slice {
  int32_t first, n;
};
inline Slice sliceOf(int32_t id, int32_t q, int32_t r) {
  return id < r ? Slice{id * (q + 1), q + 1} : Slice{(q + 1) * r + (id - r) * q, q};
}

// The parallel wrapper. `work(first, n, scratch)` is the serial worker of the call's path on
// objects [first, first + n); it returns the worker's status. A region opens only with at least
// two threads and at least as many objects as threads; otherwise the worker takes all objects
// here. The team learns its real size inside the region: the master splits by the team that was
// actually formed, a barrier publishes the split. In families that can fail, each thread stores
// its status under the library's one critical section if none is stored yet, so the first
// failing thread to arrive reports. Per-thread scratch, when asked for, is one block from the
// runtime's allocator, taken before the region and released after it.
template <bool CanFail, class Work>
tarnStatus parallelRun(int32_t count, size_t scratchPerThread, Work&& work) {
  int32_t status = 0;
  const int32_t t = ownGetNumThreads();
  if (!(t >= 2 && count >= t)) return work(0, count, static_cast<std::byte*>(nullptr));
  std::byte* scratch = nullptr;
  if (scratchPerThread) scratch = static_cast<std::byte*>(kmpc_malloc(size_t(t) * scratchPerThread));
  int32_t q = 0, r = 0;
#pragma omp parallel num_threads(ownGetNumThreads()) shared(q, r, status)
  {
#pragma omp master
    {
      const int32_t nt = omp_get_num_threads();
      q = count / nt;
      r = count % nt;
    }
#pragma omp barrier
    const int32_t id = omp_get_thread_num();
    const Slice s = sliceOf(id, q, r);
    const tarnStatus st = work(s.first, s.n, scratch ? scratch + size_t(id) * scratchPerThread : nullptr);
    if constexpr (CanFail) {
#pragma omp critical(tarnStatusLock)
      if (status == 0) status = st;
    }
  }
  if (scratch) kmpc_free(scratch);
  return CanFail ? status : tarnStatusOk;
}

}  // namespace tarn
