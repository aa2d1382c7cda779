// The caller's floating-point control (MXCSR: rounding mode, flush-to-zero, denormals-are-zero,
// exception masks) going into members: no member changes it, in the calling thread or in the
// threads of its region; a parallel call rounds as the caller does, on every thread, as the
// serial call under the same control; and where nothing is rounded the control changes nothing:
// data movement keeps every bit, exact arithmetic (small integers, permutation matrices scaled
// by powers of two, whose pivots are chosen on exact values) every value. Only the sign of an
// exact zero may change, as it must: x - x is -0 when rounding down. The sticky exception
// flags are left out of every comparison: a member raises what its arithmetic raises, and on
// the parallel path flags raised by the other threads of the region stay with those threads.
// ctest runs these tests with the runtime's inheritance of the control (KMP_INHERIT_FP_CONTROL)
// off as well.
#include <gtest/gtest.h>
#include <omp.h>
#include <xmmintrin.h>

#include <array>
#include <cstring>

#include "harness.hpp"

namespace tt {
namespace {

constexpr uint32_t kFlags = 0x3f, kDefault = 0x1f80, kDown = 0x2000, kUp = 0x4000, kZero = 0x6000;
constexpr uint32_t kFtzDaz = 0x8040;
// Round down with flush-to-zero and denormals-are-zero, round up, round toward zero.
constexpr uint32_t kModes[] = {kDefault | kDown | kFtzDaz, kDefault | kUp, kDefault | kZero};
// The controls under which a split batch is compared with the serial call. Not round down: the
// compilers simplify arithmetic as if rounding to nearest, and a GCC build gives
// EigenValuesSym_ma_32f_L's lane and single-object paths different bits under round down.
constexpr uint32_t kSplitModes[] = {kDefault | kUp | kFtzDaz, kDefault | kZero};

uint32_t control() { return _mm_getcsr() & ~kFlags; }

// The caller's control for a scope.
struct Control {
  uint32_t saved = _mm_getcsr();
  explicit Control(uint32_t c) { _mm_setcsr(c); }
  ~Control() { _mm_setcsr(saved); }
};

TEST(FpEnv, NoMemberChangesTheCallersControl) {
  alignas(64) static float arena[8][4096];
  static int32_t ints[64];
  for (const uint32_t mode : kModes) {
    for (const MemberFn& m : allMembers()) {
      auto fx = makeBatch({m.name, 4, 2}, style("packed"), 3);
      Control c(mode);
      fx->run(1);
      EXPECT_EQ(control(), mode) << m.name;
    }
    for (const FixedFn& f : fixedCalls()) {
      FixedArgs a;
      for (int i = 0; i < 8; ++i) {
        for (int j = 0; j < 4096; ++j) arena[i][j] = 0.5f + 0.25f * float(j % 7);
        a.floats[i] = arena[i];
      }
      for (int i = 0; i < 64; ++i) ints[i] = i % 3;
      a.ints = ints;
      a.value = 0.75f;
      a.strides[0] = a.strides[1] = 16;
      a.count = 2;
      Control c(mode);
      f.call(a);
      EXPECT_EQ(control(), mode) << f.name;
    }
  }
}

// Threads 1 and 2 of a team of three take controls of their own, `between` runs, and a region
// reads every thread's control (with the runtime's inheritance on, the caller's; off, their own)
// and gives the threads the default back.
std::array<uint32_t, 3> threadControls(const std::function<void()>& between) {
#pragma omp parallel num_threads(3)
  if (const uint32_t id = uint32_t(omp_get_thread_num()); id > 0) _mm_setcsr(kDefault | (id << 13));
  between();
  std::array<uint32_t, 3> seen{};
#pragma omp parallel num_threads(3)
  {
    const int id = omp_get_thread_num();
    seen[size_t(id)] = control();
    if (id > 0) _mm_setcsr(kDefault);
  }
  return seen;
}

TEST(FpEnv, ParallelCallsRoundAsTheCallerAndLeaveEveryThreadsControl) {
  for (const BatchRow& row : parallelBatches())
    for (const uint32_t mode : kSplitModes) {
      Control c(mode);
      auto serial = makeBatch(row, style("packed"), 5), parallel = makeBatch(row, style("packed"), 5);
      const tarnStatus s = serial->run(1);
      // The team keeps its threads in their places while the thread count stays the same.
      omp_set_num_threads(3);
      const auto baseline = threadControls([] {});
      tarnStatus p = 0;
      EXPECT_EQ(threadControls([&] { p = parallel->member().call(parallel->args); }), baseline) << row.member;
      omp_set_num_threads(1);
      EXPECT_EQ(control(), mode) << row.member;
      EXPECT_EQ(p, s) << row.member;
      EXPECT_EQ(compareBatch(row, *parallel, *serial, {}, 3), "") << std::hex << mode;
    }
}

TEST(FpEnv, ExactDataGivesTheSameBitsUnderEveryControl) {
  const BatchRow rows[] = {
      {"tarnCopy_ma_32f_SP", 4, 50, Fill::Specials},
      {"tarnCopy_ma_64f_LS", 4, 50, Fill::Specials},
      {"tarnTranspose_ma_64f_P", 4, 50, Fill::Specials},
      {"tarnLoadIdentity_ma_32f_L", 4, 50},
      {"tarnAdd_mama_32f", 4, 1000, Fill::Integers},
      {"tarnSaxpy_vava_32f_P", 4, 4000, Fill::Integers},
      {"tarnLComb_vav_64f", 4, 3000, Fill::Integers},
      {"tarnMul_mama_64f_L", 4, 500, Fill::Integers},
      {"tarnGaxpy_mvav_64f", 4, 800, Fill::Integers},
      {"tarnDotProduct_vava_32f_L", 4, 6000, Fill::Integers},
      {"tarnCrossProduct_vava_64f_P", 3, 7000, Fill::Integers},
      {"tarnTrace_ma_64f_L", 4, 5100, Fill::Integers},
      {"tarnDet_ma_32f", 4, 5100, Fill::Integers},
      {"tarnLUDecomp_ma_32f_L", 4, 2600, Fill::ScaledPermutation},
      {"tarnInvert_ma_64f", 4, 2600, Fill::ScaledPermutation},
      {"tarnInvert_ma_32f_P", 5, 2600, Fill::ScaledPermutation},
  };
  for (const BatchRow& row : rows)
    for (const int threads : {1, 3}) {
      auto plain = makeBatch(row, style("padded"), 9);
      ASSERT_EQ(plain->run(threads), 0) << row.member;
      for (const uint32_t mode : kModes) {
        auto fx = makeBatch(row, style("padded"), 9);
        Control c(mode);
        EXPECT_EQ(fx->run(threads), 0) << row.member;
        EXPECT_EQ(compareBatch(row, *fx, *plain, {}, threads, row.fill == Fill::Specials), "") << std::hex << mode;
      }
    }
}

}  // namespace
}  // namespace tt
