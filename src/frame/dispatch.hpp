// Serial or parallel: the road of every call after validation, the slicing of a call among the
// threads of a region, and the one parallel wrapper.
#pragma once

#include <omp.h>

#include <cstddef>
#include <cstdint>

#include "call.hpp"
#include "members.hpp"
#include "operand.hpp"
#include "platform.hpp"
#include "simd.hpp"

extern "C" {
void* kmpc_malloc(size_t size);  // the OpenMP runtime's allocator
void kmpc_free(void* ptr);
}

namespace tarn {

// The slice of `count` objects that thread `id` of a team of `nt` takes: the first r threads one
// object more. 10 objects on 3 threads: q = 3, r = 1; slices of 4, 3, 3 from objects 0, 4, 7.
struct ThreadSlice {
  int32_t first, n;
};
inline ThreadSlice threadSlice(int32_t id, int32_t q, int32_t r) {
  return id < r ? ThreadSlice{id * (q + 1), q + 1} : ThreadSlice{(q + 1) * r + (id - r) * q, q};
}

// The parallel wrapper. `work(first, n, scratch)` is the serial worker of the call's path on
// objects [first, first + n); it returns the worker's status. A region opens only with at least
// two threads and at least as many objects as threads; otherwise the worker takes all objects
// here. The team learns its real size inside the region: the master splits by the team that was
// actually formed, a barrier publishes the split. In families that can fail, each thread stores
// its status under the library's one critical section if none is stored yet, so the first
// failing thread to arrive reports. Per-thread scratch, when asked for, is one block from the
// runtime's allocator, taken before the region and released after it. Every thread of the
// region rounds, flushes and masks as the calling thread does: the runtime hands the caller's
// floating-point control to its team only while KMP_INHERIT_FP_CONTROL is on, so a thread whose
// control differs takes the caller's for its slice and gets its own back (flags included) after.
template <bool CanFail, class Work>
tarnStatus parallelRun(int32_t count, size_t scratchPerThread, Work&& work) {
  int32_t status = 0;
  const int32_t t = ownGetNumThreads();
  if (!(t >= 2 && count >= t)) return work(0, count, static_cast<std::byte*>(nullptr));
  std::byte* scratch = nullptr;
  if (scratchPerThread) scratch = static_cast<std::byte*>(kmpc_malloc(size_t(t) * scratchPerThread));
  int32_t q = 0, r = 0;
  const uint32_t control = simd::fpControl() & ~simd::kFpFlags;
#pragma omp parallel num_threads(ownGetNumThreads()) shared(q, r, status)
  {
#pragma omp master
    {
      const int32_t nt = omp_get_num_threads();
      q = count / nt;
      r = count % nt;
    }
#pragma omp barrier
    const uint32_t own = simd::fpControl();
    if ((own & ~simd::kFpFlags) != control) simd::setFpControl(control);
    const int32_t id = omp_get_thread_num();
    const ThreadSlice s = threadSlice(id, q, r);
    const tarnStatus st = work(s.first, s.n, scratch ? scratch + size_t(id) * scratchPerThread : nullptr);
    if constexpr (CanFail) {
#pragma omp critical(tarnStatusLock)
      if (status == 0) status = st;
    }
    if ((own & ~simd::kFpFlags) != control) simd::setFpControl(own);
  }
  if (scratch) kmpc_free(scratch);
  return CanFail ? status : tarnStatusOk;
}

// The call a thread's worker sees: every array operand moved to object `first` and `count`
// replaced by n; single operands and shared plain pointers stay; the caller's work space is
// replaced by the thread's part of the wrapper's scratch when the wrapper allocated one.
inline Call sliceCall(const Call& c, int32_t first, int32_t n, std::byte* scratch) {
  Call s = c;
  s.count = n;
  for (int i = 0; i < s.nop; ++i) {
    Blk& b = s.op[i];
    switch (b.slice) {
      case Slice::Shared: break;
      case Slice::ByObjStride: b.ptr = byteAdd(b.ptr, off32(first, b.obj)); break;
      case Slice::ByTable: b.ptr = static_cast<const void* const*>(b.ptr) + first; break;
      case Slice::ByRoi: b.roi = int32_t(uint32_t(b.roi) + uint32_t(off32(first, b.obj))); break;
      case Slice::ByElems: b.ptr = byteAdd(b.ptr, off32(first, b.perObj)); break;
      case Slice::Scratch:
        if (scratch) b.ptr = scratch;
        break;
    }
  }
  return s;
}

// A call is contiguous when every element stride it has equals the element size; row and object
// strides are free.
inline bool contiguous(const Call& c, int32_t esize) {
  for (int i = 0; i < c.nop; ++i)
    if ((c.op[i].has & kElem) && c.op[i].elem != esize) return false;
  return true;
}

// The road of a validated call: the contiguity test picks the path (LayoutP has one), then the
// serial worker of that path runs on all objects, or, from the path's threshold on, the parallel
// wrapper runs it on each thread's slice. Where a family tests E before contiguity it has one
// threshold for both paths, and the two orders choose alike. `work.template operator()<Contig>`
// is the family's serial worker of the path over the objects of the call it is handed.
template <class T, Layout L, class Work>
tarnStatus drive(const Plan& plan, const Call& c, Work&& work) {
  auto path = [&]<bool Contig>() -> tarnStatus {
    if (plan.parallel && c.est >= (Contig ? plan.thrC : plan.thrG)) {
      auto slice = [&](int32_t first, int32_t n, std::byte* scratch) {
        return work.template operator()<Contig>(sliceCall(c, first, n, scratch));
      };
      const size_t scratch = size_t(uint32_t(c.scratch));
      return plan.canFail ? parallelRun<true>(c.count, scratch, slice) : parallelRun<false>(c.count, scratch, slice);
    }
    return work.template operator()<Contig>(c);
  };
  if constexpr (L == Layout::P) return path.template operator()<false>();
  else return contiguous(c, int32_t(sizeof(T))) ? path.template operator()<true>() : path.template operator()<false>();
}

}  // namespace tarn
