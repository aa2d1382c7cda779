// Add: every member against the reference on shapes that reach every body, in every placement,
// and on several threads past the thresholds.
#include <gtest/gtest.h>

#include <algorithm>

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
      const int count = matrix ? 2203 : 10007;  // past every threshold of the 3x3 forms
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

namespace tt {
namespace {

// dst the same as src1, with the same strides: each element is read before it is written and
// nothing else reads it, so every path gives the sum.
TEST(Add, InPlaceOverTheFirstOperand) {
  const char* patterns[] = {"mm", "vv", "mam", "vav", "mama", "vava", "vac"};
  for (const MemberFn* m : membersOf("Add")) {
    const Name nm = parseName(m->name);
    if (std::find(std::begin(patterns), std::end(patterns), nm.pattern) == std::end(patterns)) continue;
    const bool matrix = isMatrixPattern(nm.pattern);
    unsigned seed = 100;
    for (const EwShape& s : matrix ? std::vector<EwShape>(std::begin(kMatrixShapes), std::end(kMatrixShapes))
                                   : std::vector<EwShape>(std::begin(kVectorShapes), std::end(kVectorShapes)))
      for (const char* p : {"packed", "aligned16", "padded", "strided"})
        EXPECT_EQ(runElementwise(*m, s, 3, style(p), 1, seed++, refAdd, true).failure, "");
  }
}

// A long vector whose dst starts one element behind src1 reads, at each element, what the
// element before it wrote: the elements are processed in ascending order.
TEST(Add, OverlappingVectorRunsInAscendingOrder) {
  for (int len : {2, 7, 8, 9, 20, 33}) {
    std::vector<float> buf(len + 1), src2(len);
    for (int i = 0; i <= len; ++i) buf[i] = 1.0f + i;
    for (int i = 0; i < len; ++i) src2[i] = 0.5f * i;
    std::vector<float> want = buf;
    for (int i = 0; i < len; ++i) want[i + 1] = want[i] + src2[i];
    ASSERT_EQ(tarnAdd_vv_32f(buf.data(), 4, src2.data(), 4, buf.data() + 1, 4, len), tarnStatusOk);
    EXPECT_EQ(buf, want) << len;
  }
}

}  // namespace
}  // namespace tt
