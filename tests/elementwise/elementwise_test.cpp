// The element-wise families swept the same way: every member against its family's reference on
// shapes that reach every body, in every placement; past every threshold on 1 to 4 threads with
// identical bits; in place over the first operand.
#include <gtest/gtest.h>

#include <algorithm>

#include "elementwise.hpp"
#include "ref/scaled_ref.hpp"

namespace tt {
namespace {

const EwShape kMatrixShapes[] = {{3, 3}, {4, 4}, {5, 5}, {6, 6}, {1, 1}, {2, 2}, {3, 4}, {4, 3}, {2, 5}, {7, 7}, {9, 4}};
const EwShape kVectorShapes[] = {{1, 3}, {1, 4}, {1, 5}, {1, 6}, {1, 1}, {1, 2}, {1, 7}, {1, 8}, {1, 9}, {1, 17}, {1, 35}};

struct Family {
  const char* name;
  size_t members;
  RefOp ref;
};
const Family kFamilies[] = {{"Add", 92, refAdd}, {"Sub", 154, refSub}, {"Saxpy", 22, refSaxpy}, {"LComb", 16, refLComb}};

bool isMatrixPattern(const std::string& p) { return p.find_first_of("mt") != std::string::npos; }
std::vector<EwShape> shapesOf(const std::string& pattern) {
  return isMatrixPattern(pattern) ? std::vector<EwShape>(std::begin(kMatrixShapes), std::end(kMatrixShapes))
                                  : std::vector<EwShape>(std::begin(kVectorShapes), std::end(kVectorShapes));
}

TEST(Elementwise, EveryMemberShapeAndPlacement) {
  for (const Family& f : kFamilies) {
    const auto members = membersOf(f.name);
    ASSERT_EQ(members.size(), f.members) << f.name;
    for (const MemberFn* m : members) {
      unsigned seed = 1;
      for (const EwShape& s : shapesOf(parseName(m->name).pattern))
        for (const Style& st : styles())
          for (int count : {1, 3, 9})  // 9: whole groups of packed objects and a remainder
            EXPECT_EQ(runElementwise(*m, s, count, st, 1, seed++, f.ref).failure, "");
    }
  }
}

// Counts past every threshold of the shapes used (Sub_cva counts only 2*count); len 4 packed
// is the contiguous float two-array case that some families run without a fixed body.
TEST(Elementwise, ThreadCountsGiveIdenticalBits) {
  for (const Family& f : kFamilies)
    for (const MemberFn* m : membersOf(f.name)) {
      const Name nm = parseName(m->name);
      if (nm.pattern.find('a') == std::string::npos) continue;
      const bool matrix = isMatrixPattern(nm.pattern);
      const std::pair<EwShape, const char*> matrixCases[] = {{{3, 3}, "packed"}, {{7, 5}, "strided"}};
      const std::pair<EwShape, const char*> vectorCases[] = {{{1, 3}, "packed"}, {{1, 4}, "packed"}, {{1, 9}, "strided"}};
      const int count = matrix ? 2203 : nm.pattern == "cva" ? 20001 : 7001;
      for (const auto& [s, p] : matrix ? std::vector(std::begin(matrixCases), std::end(matrixCases))
                                       : std::vector(std::begin(vectorCases), std::end(vectorCases))) {
        const EwRun one = runElementwise(*m, s, count, style(p), 1, 7, f.ref);
        EXPECT_EQ(one.failure, "");
        for (int threads : {2, 3, 4}) {
          const EwRun many = runElementwise(*m, s, count, style(p), threads, 7, f.ref);
          EXPECT_EQ(many.failure, "");
          EXPECT_TRUE(many.result == one.result) << m->name << " threads " << threads;
        }
      }
    }
}

// dst the same as the first operand, with the same strides: each element is read before it is
// written and nothing else reads it, so every path gives the result.
TEST(Elementwise, InPlaceOverTheFirstOperand) {
  // Patterns whose first operand has the result's form.
  const char* patterns[] = {"mm", "vv", "mam", "vav", "mama", "vava", "vac"};
  for (const Family& f : kFamilies)
    for (const MemberFn* m : membersOf(f.name)) {
      const Name nm = parseName(m->name);
      if (std::find(std::begin(patterns), std::end(patterns), nm.pattern) == std::end(patterns)) continue;
      unsigned seed = 100;
      for (const EwShape& s : shapesOf(nm.pattern))
        for (const char* p : {"packed", "aligned16", "padded", "strided"})
          EXPECT_EQ(runElementwise(*m, s, 3, style(p), 1, seed++, f.ref, true).failure, "");
    }
}

// A long vector whose dst starts one element behind src1 reads, at each element, what the
// element before it wrote: the elements are processed in ascending order.
TEST(Elementwise, OverlappingVectorRunsInAscendingOrder) {
  for (int len : {2, 7, 8, 9, 20, 33}) {
    std::vector<float> buf(len + 1), src2(len);
    for (int i = 0; i <= len; ++i) buf[i] = 1.0f + i;
    for (int i = 0; i < len; ++i) src2[i] = 0.5f * i;
    std::vector<float> sum = buf, diff = buf;
    for (int i = 0; i < len; ++i) sum[i + 1] = sum[i] + src2[i];
    for (int i = 0; i < len; ++i) diff[i + 1] = diff[i] - src2[i];
    std::vector<float> x = buf;
    ASSERT_EQ(tarnAdd_vv_32f(x.data(), 4, src2.data(), 4, x.data() + 1, 4, len), tarnStatusOk);
    EXPECT_EQ(x, sum) << len;
    x = buf;
    ASSERT_EQ(tarnSub_vv_32f(x.data(), 4, src2.data(), 4, x.data() + 1, 4, len), tarnStatusOk);
    EXPECT_EQ(x, diff) << len;
  }
}

}  // namespace
}  // namespace tt
