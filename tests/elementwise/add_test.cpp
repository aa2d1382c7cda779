// Add: every member against the reference on shapes that reach every body, in every placement,
// and on several threads past the thresholds.
#include <gtest/gtest.h>

#include "elementwise.hpp"

namespace tt {
namespace {

const EwShape kMatrixShapes[] = {{3, 3}, {4, 4}, {5, 5}, {6, 6}, {1, 1}, {2, 2}, {3, 4}, {4, 3}, {2, 5}, {7, 7}, {9, 4}};
const EwShape kVectorShapes[] = {{1, 3}, {1, 4}, {1, 5}, {1, 6}, {1, 1}, {1, 2}, {1, 7}, {1, 8}, {1, 9}, {1, 17}, {1, 35}};

bool isMatrixPattern(const std::string& p) { return p.find_first_of("mt") != std::string::npos; }

TEST(Add, EveryMemberShapeAndPlacement) {
  for (const MemberFn* m : membersOf("Add")) {
    const Name nm = parseName(m->name);
    const auto& shapes = isMatrixPattern(nm.pattern) ? kMatrixShapes : kVectorShapes;
    unsigned seed = 1;
    for (const EwShape& s : shapes)
      for (const Style& st : styles())
        for (int count : {1, 3})
          EXPECT_EQ(runElementwise(*m, s, count, st, 1, seed++, refAdd).failure, "");
  }
}

// Past every threshold, slices of 1 to 4 threads give the serial bits.
TEST(Add, ThreadCountsGiveIdenticalBits) {
  for (const MemberFn* m : membersOf("Add")) {
    const Name nm = parseName(m->name);
    if (nm.pattern.find('a') == std::string::npos) continue;
    const bool matrix = isMatrixPattern(nm.pattern);
    for (const EwShape s : matrix ? std::vector<EwShape>{{3, 3}, {7, 5}} : std::vector<EwShape>{{1, 3}, {1, 9}}) {
      const int count = matrix ? 2003 : 10007;
      const char* placements[] = {"packed", "strided"};
      for (const char* p : placements) {
        const EwRun one = runElementwise(*m, s, count, style(p), 1, 7, refAdd);
        EXPECT_EQ(one.failure, "");
        for (int threads : {2, 3, 4}) {
          const EwRun many = runElementwise(*m, s, count, style(p), threads, 7, refAdd);
          EXPECT_EQ(many.failure, "");
          EXPECT_TRUE(many.result == one.result) << m->name << " threads " << threads;
        }
      }
    }
  }
}

}  // namespace
}  // namespace tt
