// Transpose: every member and operand form, the unrolled orders, the tiled float kernel on
// aligned and unaligned rows and the double kernel, against the model.
#include "move_support.hpp"

namespace movetest {
namespace {

TEST(Transpose, EveryMemberShapeAndFormMatchesTheModel) {
  std::mt19937 rng(5);
  int calls = 0;
  for (const Entry& e : members("tarnTranspose_")) {
    const Name nm = parse(e.name);
    const bool array = nm.pattern == "ma";
    for (auto [h, w] : {std::pair{3, 3}, {4, 4}, {5, 5}, {6, 6}, {1, 1}, {3, 5}, {5, 3}, {2, 7}, {9, 70}, {70, 9},
                        {67, 13}})
      for (int count : array ? std::vector<int>{1, 2, 3} : std::vector<int>{1})
        for (Form fs : kForms)
          for (Form fd : {Form::Packed, Form::Rows16, Form::Padded, Form::Strided}) {
            Arena ar(1 << 19);
            const Place s = place(ar, nm.lay, h, w, count, nm.es, fs, array);
            const Place d = place(ar, nm.lay, w, h, count, nm.es, fd, array);
            fill(ar.lib(), s, count, nm.es, rng);
            ar.snapshot();
            Bound bl;
            Args a;
            a.op[0] = bl.bind(s, ar.lib());
            a.op[1] = bl.bind(d, ar.lib());
            a.width = w;
            a.height = h;
            a.count = count;
            ASSERT_EQ(e.fn(a), tarnStatusOk) << e.name;
            ref::transpose(ar.model(), s, d, count, nm.es);
            ASSERT_TRUE(ar.same()) << e.name << " " << h << "x" << w << " count " << count << " " << formName(fs)
                                   << " -> " << formName(fd) << ", first difference at byte "
                                   << ar.firstDifference();
            ++calls;
          }
  }
  EXPECT_GT(calls, 4000);
}

// The aligned 4 by 4 body of the LayoutS array: 16-byte rows, objects on 16-byte boundaries.
TEST(Transpose, AlignedFourByFourArray) {
  alignas(16) float src[3][4][4], dst[3][4][4];
  for (int i = 0; i < 48; ++i) (&src[0][0][0])[i] = float(i);
  ASSERT_EQ(tarnTranspose_ma_32f(&src[0][0][0], 64, 16, 4, 4, 4, &dst[0][0][0], 64, 16, 4, 3), tarnStatusOk);
  for (int n = 0; n < 3; ++n)
    for (int r = 0; r < 4; ++r)
      for (int c = 0; c < 4; ++c) EXPECT_EQ(dst[n][c][r], src[n][r][c]);
}

}  // namespace
}  // namespace movetest
