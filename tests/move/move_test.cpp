// Copy, Extract, LoadIdentity and Transpose: every member, over shapes that reach the unrolled
// square orders, the pair loops' tails, oblong and transposed reads and the tiled kernels, with
// source and destination in every placement, against the models; then the cases a model cannot
// show.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "move_check.hpp"

namespace movetest {
namespace {

TEST(Move, EveryMemberShapeAndPlacementMatchesTheModel) {
  const std::vector<std::pair<int, int>> mats = {{1, 1}, {3, 3}, {4, 4}, {5, 5}, {6, 6},
                                                 {2, 5}, {5, 3}, {3, 4}, {11, 17}};
  const std::vector<std::pair<int, int>> tall = {{9, 70}, {70, 9}, {67, 13}};  // strips and tails
  std::mt19937 rng(7);
  int calls = 0;
  for (const char* family : {"Copy", "Extract", "LoadIdentity", "Transpose"})
    for (const tt::MemberFn* m : tt::membersOf(family)) {
      const tt::Name nm = tt::parseName(m->name);
      std::vector<std::pair<int, int>> shapes = mats;
      if (nm.pattern[0] == 'v') shapes = {{1, 1}, {1, 3}, {1, 4}, {1, 7}};
      if (nm.family == "Transpose") shapes.insert(shapes.end(), tall.begin(), tall.end());
      for (auto [h, w] : shapes)
        for (int count : nm.pattern.back() == 'a' ? std::vector<int>{1, 2, 5} : std::vector<int>{1})
          for (const tt::Style& ss : tt::styles())
            for (const tt::Style& ds : tt::styles()) {
              if (nm.family == "LoadIdentity" && &ss != &tt::styles()[0]) continue;  // no source
              if (nm.family == "Extract" && ds.elemGap != 1) continue;                // dense dst
              ASSERT_EQ(runMove(m->call, m->name, h, w, count, ss, ds, rng), "");
              ++calls;
            }
    }
  EXPECT_GT(calls, 20000);
}

// Overlapping operands: elements move one after the other in ascending order, so a copy one
// element forward repeats the first element through the row.
TEST(Move, CopyOverlapFollowsTheElementOrder) {
  float buf[6] = {1, 2, 3, 4, 5, 6};
  ASSERT_EQ(tarnCopy_va_32f_SS(buf, 20, 4, buf + 1, 20, 4, 5, 1), tarnStatusOk);
  for (float v : buf) EXPECT_EQ(v, 1.0f);
}

// By hand, not through the model: a stored 2 x 3 matrix read transposed gives 3 rows of 2.
TEST(Move, ExtractTransposedReadGivesHeightRowsOfWidth) {
  const float stored[2][3] = {{1, 2, 3}, {4, 5, 6}};
  float out[7];
  std::fill(std::begin(out), std::end(out), -1.0f);
  ASSERT_EQ(tarnExtract_t_32f(&stored[0][0], 12, 4, out, 2, 3), tarnStatusOk);
  const float want[7] = {1, 4, 2, 5, 3, 6, -1};
  EXPECT_EQ(std::memcmp(out, want, sizeof out), 0);
}

}  // namespace
}  // namespace movetest
