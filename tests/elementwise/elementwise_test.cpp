// The element-wise families and the products with a constant swept the same way: every member
// against its family's reference on shapes that reach every body, in every placement, some in
// place over the first operand; then what a model cannot show: how tc stores its source, the
// order of elements in overlapping runs, and the table members that take any shift.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ref/elementwise_ref.hpp"

namespace tt {
namespace {

const EwShape kMatrixShapes[] = {{3, 3}, {4, 4}, {5, 5}, {6, 6}, {1, 1}, {2, 2}, {3, 4}, {4, 3}, {2, 5}, {7, 7}, {9, 4}};
const EwShape kVectorShapes[] = {{1, 3}, {1, 4}, {1, 5}, {1, 6}, {1, 1}, {1, 2}, {1, 7}, {1, 8}, {1, 9}, {1, 17}, {1, 35}};

struct Family {
  const char* name;
  size_t members;
  RefOp ref;
  char letter = 0;  // only the patterns with this letter: Mul with a constant
};
const Family kFamilies[] = {{"Add", 92, refAdd},       {"Sub", 154, refSub},       {"Saxpy", 22, refSaxpy},
                            {"LComb", 16, refLComb}, {"Mul", 42, refMul, 'c'}};
std::vector<const MemberFn*> membersOf(const Family& f) {
  auto all = tt::membersOf(f.name);
  std::erase_if(all, [&](const MemberFn* m) { return f.letter && parseName(m->name).pattern.find(f.letter) == std::string::npos; });
  return all;
}

bool isMatrixPattern(const std::string& p) { return p.find_first_of("mt") != std::string::npos; }
std::vector<EwShape> shapesOf(const std::string& pattern) {
  return isMatrixPattern(pattern) ? std::vector<EwShape>(std::begin(kMatrixShapes), std::end(kMatrixShapes))
                                  : std::vector<EwShape>(std::begin(kVectorShapes), std::end(kVectorShapes));
}

// Three objects are written over the first operand (same description) where it has the result's
// form: each element is read before it is written and nothing else reads it.
TEST(Elementwise, EveryMemberShapeAndPlacement) {
  const std::string inPlace = " mm vv mam vav mama vava vac mc mac vc ";
  for (const Family& f : kFamilies) {
    const auto members = membersOf(f);
    ASSERT_EQ(members.size(), f.members) << f.name;
    for (const MemberFn* m : members) {
      const std::string p = parseName(m->name).pattern;
      unsigned seed = 1;
      for (const EwShape& s : shapesOf(p))
        for (const Style& st : styles())
          for (int count : {1, 3, 9})  // 9: whole groups of packed objects and a remainder
            EXPECT_EQ(runElementwise(*m, s, count, st, 1, seed++, f.ref,
                                     count == 3 && inPlace.find(" " + p + " ") != std::string::npos).failure, "");
    }
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

// In tc, width 2 and height 3: src has 2 rows and 3 columns, dst 3 rows and 2 columns.
TEST(Elementwise, TransposedSourceIsStoredWithWidthRows) {
  const float src[2][3] = {{1, 2, 3}, {4, 5, 6}};
  float dst[3][2] = {};
  ASSERT_EQ(tarnMul_tc_32f(&src[0][0], 12, 4, 2.0f, &dst[0][0], 8, 4, 2, 3), tarnStatusOk);
  const float want[3][2] = {{2, 8}, {4, 10}, {6, 12}};
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 2; ++j) EXPECT_EQ(dst[i][j], want[i][j]) << i << j;
}

// The two table members without a shift check take a negative roiShift as it is and read at the
// shifted addresses: tables point one element behind each element.
TEST(Elementwise, TableMembersWithoutShiftCheckReadAtTheShiftedAddress) {
  float src[4] = {0, 1, 2, 3}, vals[2] = {10, 20}, out[6] = {};
  const float* tbl[3] = {&src[1], &src[2], &src[3]};
  float* dtbl[3] = {&out[0], &out[1], &out[2]};
  ASSERT_EQ(tarnSub_cav_32f_P(tbl, -4, vals, 4, dtbl, 0, 12, 3, 2), tarnStatusOk);
  const float want[6] = {10, 9, 8, 20, 19, 18};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(out[i], want[i]) << i;
  double s64[4] = {1, 2, 3, 100}, v64[2] = {10, 20}, d64[6] = {};
  const double* t64[3] = {s64 + 1, s64 + 2, s64 + 3};
  double* dt64[3] = {d64, d64 + 1, d64 + 2};
  ASSERT_EQ(tarnAdd_vca_64f_P(t64, -8, v64, 8, dt64, 0, 24, 3, 2), tarnStatusOk);
  EXPECT_TRUE(d64[0] == 11 && d64[3] == 21 && d64[5] == 23);  // src(0) + val[0], src(0) + val[1]
}

}  // namespace
}  // namespace tt
