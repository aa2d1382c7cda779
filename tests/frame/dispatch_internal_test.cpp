// The parallel wrapper's scratch and the slices of its operands, and the load-time feature flag.
#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <mutex>
#include <vector>

#include "dispatch.hpp"
#include "platform.hpp"
#include "start.hpp"
#include "validate.hpp"

namespace tarn {
namespace {

// The scratch each slice of a call of `count` objects on `threads` threads gets, in address order.
std::vector<std::byte*> scratchOf(int threads, int32_t count, size_t scratch) {
  std::vector<std::byte*> seen;
  std::mutex mu;
  omp_set_num_threads(threads);
  parallelRun<true>(count, scratch, [&](int32_t, int32_t, std::byte* p) {
    std::lock_guard<std::mutex> lock(mu);
    seen.push_back(p);
    return tarnStatusOk;
  });
  omp_set_num_threads(1);
  std::sort(seen.begin(), seen.end());
  return seen;
}

TEST(ParallelWrapper, ScratchIsOneBlockCutPerThread) {
  const auto p = scratchOf(3, 9, 256);
  ASSERT_EQ(p.size(), 3u);
  EXPECT_NE(p[0], nullptr);
  EXPECT_EQ(p[1] - p[0], 256);
  EXPECT_EQ(p[2] - p[1], 256);
  EXPECT_EQ(scratchOf(1, 9, 256)[0], nullptr);  // the serial path uses the caller's buffer
}

// A thread's slice of a call: each kind of block moves its own way from object `first` on.
TEST(ParallelWrapper, SliceMovesEveryArrayOperandToItsFirstObject) {
  alignas(16) static std::byte mem[4096];
  static const void* table[16];
  Call c{};
  c.nop = 6;
  c.count = 10;
  auto blk = [&](int i, Slice s, int32_t obj, int32_t roi, int32_t perObj) {
    c.op[i] = Blk{i == 1 ? static_cast<const void*>(table) : mem + 64 * i, obj, 0, 0, roi, 0, 0, perObj, 0, 0, false, s};
  };
  blk(0, Slice::ByObjStride, 36, 0, 0);   // LayoutS array, constant arrays of LayoutS and LayoutP
  blk(1, Slice::ByTable, 0, 8, 0);        // LayoutL array: the table moves, the shift stays
  blk(2, Slice::ByRoi, 12, 4, 0);         // LayoutP array: the shift moves, the table stays
  blk(3, Slice::ByElems, 0, 0, 4 * 3);    // pivots of 3 rows per object
  blk(4, Slice::Scratch, 0, 0, 0);        // the caller's buffer
  blk(5, Slice::Shared, 0, 0, 0);         // a single operand
  std::byte* scratch = mem + 2048;
  const Call s = sliceCall(c, 3, 2, scratch);
  EXPECT_EQ(s.count, 2);
  EXPECT_EQ(s.op[0].ptr, mem + 0 + 3 * 36);
  EXPECT_EQ(s.op[1].ptr, static_cast<const void*>(table + 3));
  EXPECT_EQ(s.op[1].roi, 8);
  EXPECT_EQ(s.op[2].ptr, c.op[2].ptr);
  EXPECT_EQ(s.op[2].roi, 4 + 3 * 12);
  EXPECT_EQ(s.op[3].ptr, mem + 192 + 3 * 12);
  EXPECT_EQ(s.op[4].ptr, scratch);
  EXPECT_EQ(s.op[5].ptr, c.op[5].ptr);
  EXPECT_EQ(sliceCall(c, 3, 2, nullptr).op[4].ptr, c.op[4].ptr);  // serial: the caller's buffer
}

TEST(Start, FeaturesFlagNeedsBothBits) {
  EXPECT_EQ(featuresFlagOf(0x30), 1);
  EXPECT_EQ(featuresFlagOf(0x10), 0);
  EXPECT_EQ(featuresFlagOf(0x20), 0);
  EXPECT_EQ(featuresFlagOf(0xffff'ffff'ffff'ffcfull), 0);
  EXPECT_EQ(featuresFlag, featuresFlagOf(ownGetEnabledCpuFeatures()));
  EXPECT_NE(ownGetEnabledCpuFeatures() & 0x8, 0u);  // the library's baseline, SSE3
}

TEST(Platform, ThreadCountFollowsTheRuntime) {
  omp_set_num_threads(3);
  EXPECT_EQ(ownGetNumThreads(), 3);
  omp_set_num_threads(1);
  EXPECT_EQ(ownGetNumThreads(), 1);
}

}  // namespace
}  // namespace tarn
