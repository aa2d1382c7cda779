// What the library would import from its sibling core library, provided here. Not exported.
#pragma once

#include <cstdint>

namespace tarn {

// Number of threads the library is to use: the OpenMP runtime's omp_get_max_threads(), so
// OMP_NUM_THREADS and omp_set_num_threads govern every parallel wrapper.
int32_t ownGetNumThreads();

// Processor features from cpuid, one bit each:
//   0x1 MMX   0x2 SSE    0x4 SSE2   0x8 SSE3    0x10 SSSE3   0x20 MOVBE
//   0x40 SSE4.1   0x80 SSE4.2   0x100 AVX   0x200 AES   0x400 CLMUL   0x800 RDRAND   0x1000 F16C
//   0x2000 AVX2   0x4000 BMI1   0x8000 BMI2  0x10000 ADX   0x20000 FMA
// "Enabled" means present; the OS save state of AVX is folded into the AVX, AVX2 and FMA bits.
uint64_t ownGetEnabledCpuFeatures();

// Size in bytes of the largest cache, 0 when unknown. Returns 0 (success) always; the value is
// stored through `size`.
int32_t ownGetMaxCacheSizeB(int32_t* size);

// Tests only: a value >= 0 replaces what ownGetMaxCacheSizeB reports, -1 restores the query.
void ownSetMaxCacheSizeOverride(int32_t bytes);

}  // namespace tarn
