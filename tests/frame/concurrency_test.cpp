// Calls at the same time: several application threads, each call opening a region of its own,
// and calls from inside an application's own parallel region, nested regions off and on. A batch
// of every family with a parallel wrapper, clean or with failing objects in two slices: each
// call must return its own status and leave exactly the results its own slices make, whatever
// runs beside it. ctest runs these tests with OMP_NUM_THREADS of 1, 2, 3 and 5 as well.
#include <gtest/gtest.h>
#include <omp.h>

#include <latch>
#include <thread>

#include "harness.hpp"
#include "regions.hpp"

namespace tt {
namespace {

struct Job {
  const BatchRow* row;
  std::vector<int> bad;
  std::unique_ptr<CallFixture> fx;
  tarnStatus status = 0;
};

std::vector<Job> jobs() {
  std::vector<Job> out;
  for (const BatchRow& r : parallelBatches()) {
    out.push_back({&r, {}});
    if (r.spoil != Spoil::None) out.push_back({&r, {1, r.count / 2 + 1}});
  }
  return out;
}

// The clean batch of every row, run serially.
std::vector<std::unique_ptr<CallFixture>> references() {
  std::vector<std::unique_ptr<CallFixture>> out;
  for (const BatchRow& r : parallelBatches()) {
    out.push_back(makeBatch(r, style("packed"), 7));
    EXPECT_EQ(out.back()->run(1), 0) << r.member;
  }
  return out;
}

void check(const std::vector<Job>& js, const std::vector<std::unique_ptr<CallFixture>>& refs, int team,
           const char* how) {
  for (const Job& j : js) {
    const size_t row = size_t(j.row - parallelBatches().data());
    EXPECT_EQ(j.status, j.bad.empty() ? 0 : j.row->fails) << how << ": " << j.row->member;
    EXPECT_EQ(compareBatch(*j.row, *j.fx, *refs[row], j.bad, team), "") << how;
  }
}

TEST(Concurrency, ApplicationThreadsGetTheirOwnResultsAndStatus) {
  const int threads = envThreads(), callers = 4;
  const auto refs = references();
  std::vector<Job> js = jobs();
  std::latch ready(callers);
  const int regions = regionsOpenedBy([&] {
    std::vector<std::thread> pool;
    for (int t = 0; t < callers; ++t)
      pool.emplace_back([&, t] {
        for (size_t j = size_t(t); j < js.size(); j += callers)
          js[j].fx = makeBatch(*js[j].row, style("packed"), 7, js[j].bad);
        ready.arrive_and_wait();  // then all call at once
        for (size_t j = size_t(t); j < js.size(); j += callers) js[j].status = js[j].fx->run(threads);
      });
    for (auto& th : pool) th.join();
  });
  EXPECT_EQ(regions, threads > 1 ? int(js.size()) : 0);  // every call opened one region
  check(js, refs, threads, "application threads");
}

TEST(Concurrency, CallsFromInsideAnApplicationRegion) {
  const int threads = envThreads(), saved = omp_get_max_active_levels();
  const auto refs = references();
  for (int levels : {1, 2}) {
    omp_set_max_active_levels(levels);
    std::vector<Job> js = jobs();
#pragma omp parallel num_threads(3)
    for (size_t j = size_t(omp_get_thread_num()); j < js.size(); j += size_t(omp_get_num_threads())) {
      js[j].fx = makeBatch(*js[j].row, style("packed"), 7, js[j].bad);
      js[j].status = js[j].fx->run(threads);
    }
    // Nested regions off: the library's region is a team of one, which walks the whole batch.
    check(js, refs, levels > 1 ? threads : 1, levels > 1 ? "nested regions on" : "nested regions off");
  }
  omp_set_max_active_levels(saved);
}

}  // namespace
}  // namespace tt
