// The parallel wrapper's split, its serial fallbacks, its shared status and scratch, and the
// load-time feature flag.
#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <mutex>
#include <vector>

#include "dispatch.hpp"
#include "platform.hpp"
#include "start.hpp"

namespace tarn {
namespace {

struct Seen {
  int32_t first, n;
  bool inRegion;
  std::byte* scratch;
};

std::vector<Seen> runWith(int threads, int32_t count, size_t scratch = 0, tarnStatus (*st)(int32_t) = nullptr,
                          tarnStatus* result = nullptr) {
  std::vector<Seen> seen;
  std::mutex mu;
  omp_set_num_threads(threads);
  const tarnStatus s = parallelRun<true>(count, scratch, [&](int32_t first, int32_t n, std::byte* p) {
    std::lock_guard<std::mutex> lock(mu);
    seen.push_back({first, n, omp_in_parallel() != 0, p});
    return st ? st(first) : tarnStatusOk;
  });
  omp_set_num_threads(1);
  if (result) *result = s;
  std::sort(seen.begin(), seen.end(), [](const Seen& a, const Seen& b) { return a.first < b.first; });
  return seen;
}

TEST(ParallelWrapper, SplitsByTheTeamWithTheRemainderFirst) {
  struct Case {
    int threads;
    int32_t count;
    std::vector<std::pair<int32_t, int32_t>> slices;  // (first, n); empty slices included
    bool region;
  };
  const Case cases[] = {
      {3, 10, {{0, 4}, {4, 3}, {7, 3}}, true},
      {4, 4, {{0, 1}, {1, 1}, {2, 1}, {3, 1}}, true},
      {2, 7, {{0, 4}, {4, 3}}, true},
      {4, 3, {{0, 3}}, false},   // fewer objects than threads: serial, whatever the size
      {1, 1000, {{0, 1000}}, false},
  };
  for (const Case& c : cases) {
    const auto seen = runWith(c.threads, c.count);
    ASSERT_EQ(seen.size(), c.slices.size()) << c.threads << " " << c.count;
    for (size_t i = 0; i < seen.size(); ++i) {
      EXPECT_EQ(seen[i].first, c.slices[i].first);
      EXPECT_EQ(seen[i].n, c.slices[i].second);
      EXPECT_EQ(seen[i].inRegion, c.region);
    }
  }
}

TEST(ParallelWrapper, ScratchIsOneBlockCutPerThread) {
  const auto seen = runWith(3, 9, 256);
  ASSERT_EQ(seen.size(), 3u);
  std::vector<std::byte*> p;
  for (const auto& s : seen) p.push_back(s.scratch);
  std::sort(p.begin(), p.end());
  EXPECT_NE(p[0], nullptr);
  EXPECT_EQ(p[1] - p[0], 256);
  EXPECT_EQ(p[2] - p[1], 256);
  EXPECT_EQ(runWith(1, 9, 256)[0].scratch, nullptr);  // the serial path uses the caller's buffer
}

TEST(ParallelWrapper, FailingSlicesReportOneStatusAndOthersFinish) {
  tarnStatus s = 0;
  const auto seen = runWith(4, 8, 0, [](int32_t first) -> tarnStatus { return first >= 4 ? tarnStatusSingular : tarnStatusOk; }, &s);
  EXPECT_EQ(seen.size(), 4u);
  EXPECT_EQ(s, tarnStatusSingular);
  runWith(4, 8, 0, nullptr, &s);
  EXPECT_EQ(s, tarnStatusOk);
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
