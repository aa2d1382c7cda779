// Extract: every member and operand form into a dense buffer, against the model.
#include "move_support.hpp"

namespace movetest {
namespace {

TEST(Extract, EveryMemberAndFormMatchesTheModel) {
  std::mt19937 rng(11);
  int calls = 0;
  for (const Entry& e : members("tarnExtract_")) {
    const Name nm = parse(e.name);
    const bool array = nm.pattern.size() == 2, transposed = nm.pattern[0] == 't', matrix = nm.pattern[0] != 'v';
    for (auto [h, w] : {std::pair{1, 1}, {3, 3}, {4, 4}, {2, 3}, {3, 2}, {5, 7}, {1, 6}})
      for (int count : array ? std::vector<int>{1, 2, 5} : std::vector<int>{1})
        for (Form f : kForms) {
          if (!matrix && h != 1) continue;
          Arena ar(1 << 16);
          // A t operand is stored with `width` rows of `height` elements.
          const Place s = place(ar, nm.lay, transposed ? w : h, transposed ? h : w, count, nm.es, f, array);
          const int64_t d = ar.take(int64_t(h) * w * count * nm.es, f == Form::Padded ? nm.es : 0);
          fill(ar.lib(), s, count, nm.es, rng);
          ar.snapshot();
          Bound bl;
          Args a;
          a.op[0] = bl.bind(s, ar.lib());
          a.op[1].ptr = ar.lib() + d;
          a.width = w;
          a.height = h;
          a.len = w;
          a.count = count;
          ASSERT_EQ(e.fn(a), tarnStatusOk) << e.name;
          ref::extract(ar.model(), s, transposed, d, count, nm.es);
          ASSERT_TRUE(ar.same()) << e.name << " " << h << "x" << w << " count " << count << " " << formName(f)
                                 << ", first difference at byte " << ar.firstDifference();
          ++calls;
        }
  }
  EXPECT_GT(calls, 1000);
}

// A stored matrix of 2 rows and 3 columns read transposed: 3 rows of 2.
TEST(Extract, TransposedReadGivesHeightRowsOfWidth) {
  const float stored[2][3] = {{1, 2, 3}, {4, 5, 6}};
  float out[7];
  std::fill(std::begin(out), std::end(out), -1.0f);
  ASSERT_EQ(tarnExtract_t_32f(&stored[0][0], 12, 4, out, 2, 3), tarnStatusOk);
  const float want[7] = {1, 4, 2, 5, 3, 6, -1};
  EXPECT_EQ(std::memcmp(out, want, sizeof out), 0);

  const float* tbl[6] = {&stored[0][0], &stored[0][1], &stored[0][2], &stored[1][0], &stored[1][1], &stored[1][2]};
  std::fill(std::begin(out), std::end(out), -1.0f);
  ASSERT_EQ(tarnExtract_t_32f_P(tbl, 0, out, 2, 3), tarnStatusOk);
  EXPECT_EQ(std::memcmp(out, want, sizeof out), 0);
}

// The single LayoutP members check the size before the pointers, except the float vector.
TEST(Extract, SizeBeforePointerInSingleTables) {
  const float x = 1;
  const float* tbl[1] = {&x};
  EXPECT_EQ(tarnExtract_m_32f_P(tbl, 0, nullptr, 0, 1), tarnStatusBadSize);
  EXPECT_EQ(tarnExtract_v_64f_P(reinterpret_cast<const double* const*>(tbl), 0, nullptr, 0), tarnStatusBadSize);
  EXPECT_EQ(tarnExtract_v_32f_P(tbl, 0, nullptr, 0), tarnStatusNullPointer);
  float out;
  EXPECT_EQ(tarnExtract_ma_32f(&x, 2, 4, 4, &out, 1, 1, 1), tarnStatusBadStride);  // every count
}

}  // namespace
}  // namespace movetest
