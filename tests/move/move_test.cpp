// Copy, Extract, LoadIdentity and Transpose: every member, over shapes that reach the unrolled
// square orders, the pair loops' tails, oblong and transposed reads and the tiled kernels, with
// source and destination in every placement, against the models; then the cases a model cannot
// show.
#include <gtest/gtest.h>

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

// Copy with the destination laid over the source at element shifts: alike, overlapping by an
// element, a row, an object, or apart. Objects are packed (LayoutS), packed behind a table
// (LayoutL) or element streams (LayoutP), or each destination object (stream) shares two
// elements with the next one (gap -2); the result must be what moving the elements one by one,
// objects ascending, gives on the same memory.
TEST(Move, CopyOverlapEveryPairFollowsTheElementOrder) {
  for (const tt::MemberFn* m : tt::membersOf("Copy"))
    for (int w : {3, 4}) {
      const tt::Name nm = tt::parseName(m->name);
      const int h = nm.pattern == "va" ? 1 : w, e = h * w, count = 5, es = nm.esize, all = e * count;
      for (int gap : {0, -2})
        for (int shift : {0, 1, -1, w, -w, e, -e, e + 1, 2 * all}) {
          std::vector<unsigned char> buf(size_t(5 * all) * es), want;
          for (size_t i = 0; i < buf.size(); ++i) buf[i] = static_cast<unsigned char>(i * 7 + i / es);
          const int at[2] = {2 * all, 2 * all + shift};  // first element of src, of dst
          std::vector<void*> tables[2];
          tt::Args a;
          // Element k of object n of operand x, and the operand's block.
          auto pos = [&](int x, int n, int k) {
            return at[x] + ((x ? nm.layout2 : nm.layout) == 'P' ? k * (count + x * gap) + n : n * (e + x * gap) + k);
          };
          for (int x : {0, 1}) {
            const char lay = x ? nm.layout2 : nm.layout;
            tt::ArgBlk& b = a.op[x];
            b.elem = es, b.row = w * es, b.obj = lay == 'P' ? es : (e + x * gap) * es;
            for (int k = 0; k < (lay == 'L' ? count : lay == 'P' ? e : 0); ++k)
              tables[x].push_back(&buf[size_t(lay == 'L' ? pos(x, k, 0) : pos(x, 0, k)) * es]);
            b.ptr = lay == 'S' ? static_cast<void*>(&buf[size_t(at[x]) * es]) : static_cast<void*>(tables[x].data());
          }
          a.width = a.len = w, a.height = h, a.count = count;
          want = buf;
          for (int n = 0; n < count; ++n)
            for (int k = 0; k < e; ++k) std::memcpy(&want[size_t(pos(1, n, k)) * es], &want[size_t(pos(0, n, k)) * es], es);
          ASSERT_EQ(m->call(a), tarnStatusOk);
          EXPECT_TRUE(buf == want) << m->name << " " << w << " shift " << shift << " gap " << gap;
        }
    }
}

}  // namespace
}  // namespace movetest
