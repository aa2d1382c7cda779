#include "platform.hpp"

#include <cpuid.h>
#include <omp.h>

#include <algorithm>
#include <atomic>

namespace tarn {

int32_t ownGetNumThreads() { return omp_get_max_threads(); }

namespace {

bool cpuid(unsigned leaf, unsigned sub, unsigned r[4]) {
  return __get_cpuid_count(leaf, sub, &r[0], &r[1], &r[2], &r[3]) != 0;
}

uint64_t xgetbv0() {
  unsigned lo, hi;
  __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
  return (uint64_t(hi) << 32) | lo;
}

// Leaf 4 enumerates the caches: size = ways * partitions * line size * sets.
int32_t largestCacheIntel() {
  unsigned r[4];
  uint64_t best = 0;
  for (unsigned i = 0; i < 16 && cpuid(4, i, r); ++i) {
    if ((r[0] & 0x1f) == 0) break;
    const uint64_t ways = ((r[1] >> 22) & 0x3ff) + 1, parts = ((r[1] >> 12) & 0x3ff) + 1;
    const uint64_t line = (r[1] & 0xfff) + 1, sets = uint64_t(r[2]) + 1;
    best = std::max(best, ways * parts * line * sets);
  }
  return best > 0x7fffffff ? 0x7fffffff : int32_t(best);
}

// Extended leaves 0x80000005/6: L1 data, L2 and L3 sizes.
int32_t largestCacheAmd() {
  unsigned r[4];
  uint64_t best = 0;
  if (cpuid(0x80000000u, 0, r) && r[0] >= 0x80000006u) {
    cpuid(0x80000005u, 0, r);
    best = uint64_t(r[2] >> 24) << 10;
    cpuid(0x80000006u, 0, r);
    best = std::max(best, uint64_t(r[2] >> 16) << 10);
    best = std::max(best, uint64_t(r[3] >> 18) << 19);
  }
  return best > 0x7fffffff ? 0x7fffffff : int32_t(best);
}

std::atomic<int32_t> cacheOverride{-1};

}  // namespace

uint64_t ownGetEnabledCpuFeatures() {
  unsigned r[4];
  uint64_t m = 0;
  if (!cpuid(1, 0, r)) return 0;
  const unsigned ecx = r[2], edx = r[3];
  if (edx & (1u << 23)) m |= 0x1;
  if (edx & (1u << 25)) m |= 0x2;
  if (edx & (1u << 26)) m |= 0x4;
  if (ecx & (1u << 0)) m |= 0x8;
  if (ecx & (1u << 9)) m |= 0x10;
  if (ecx & (1u << 22)) m |= 0x20;
  if (ecx & (1u << 19)) m |= 0x40;
  if (ecx & (1u << 20)) m |= 0x80;
  const bool ymm = (ecx & (1u << 27)) && (xgetbv0() & 0x6) == 0x6;
  if (ymm && (ecx & (1u << 28))) m |= 0x100;
  if (ecx & (1u << 25)) m |= 0x200;
  if (ecx & (1u << 1)) m |= 0x400;
  if (ecx & (1u << 30)) m |= 0x800;
  if (ecx & (1u << 29)) m |= 0x1000;
  if (ymm && (ecx & (1u << 12))) m |= 0x20000;
  if (cpuid(7, 0, r)) {
    if (ymm && (r[1] & (1u << 5))) m |= 0x2000;
    if (r[1] & (1u << 3)) m |= 0x4000;
    if (r[1] & (1u << 8)) m |= 0x8000;
    if (r[1] & (1u << 19)) m |= 0x10000;
  }
  return m;
}

int32_t ownGetMaxCacheSizeB(int32_t* size) {
  const int32_t forced = cacheOverride.load(std::memory_order_relaxed);
  if (forced >= 0) {
    *size = forced;
    return 0;
  }
  static const int32_t queried = [] {
    unsigned r[4];
    if (!cpuid(0, 0, r)) return 0;
    const bool intel = r[1] == 0x756e6547u;  // "Genu"
    const int32_t s = intel ? largestCacheIntel() : 0;
    return s ? s : largestCacheAmd();
  }();
  *size = queried;
  return 0;
}

void ownSetMaxCacheSizeOverride(int32_t bytes) { cacheOverride.store(bytes, std::memory_order_relaxed); }

}  // namespace tarn
