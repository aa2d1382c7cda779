// Copy: every layout pair, every operand form on both sides, odd sizes and counts, against the
// element-by-element model; the whole arena must match, so nothing outside dst is written.
#include "move_support.hpp"

namespace movetest {
namespace {

TEST(Copy, EveryPairAndFormMatchesTheModel) {
  struct Size {
    int rows, cols;
  };
  const Size mats[] = {{1, 1}, {3, 3}, {4, 4}, {2, 5}, {5, 3}};
  const Size vecs[] = {{1, 1}, {1, 3}, {1, 4}, {1, 7}};
  std::mt19937 rng(7);
  int calls = 0;
  for (const Entry& e : members("tarnCopy_")) {
    const Name nm = parse(e.name);
    const bool matrix = nm.pattern == "ma";
    for (const Size sz : matrix ? std::vector<Size>(std::begin(mats), std::end(mats))
                                : std::vector<Size>(std::begin(vecs), std::end(vecs)))
      for (int count : {1, 2, 5})
        for (Form fs : kForms)
          for (Form fd : {Form::Packed, Form::Padded, Form::Interleaved, Form::Strided}) {
            Arena ar(1 << 16);
            const Place s = place(ar, nm.lay, sz.rows, sz.cols, count, nm.es, fs);
            const Place d = place(ar, nm.lay2, sz.rows, sz.cols, count, nm.es, fd);
            fill(ar.lib(), s, count, nm.es, rng);
            ar.snapshot();
            Bound bl;
            Args a;
            a.op[0] = bl.bind(s, ar.lib());
            a.op[1] = bl.bind(d, ar.lib());
            a.width = sz.cols;
            a.height = sz.rows;
            a.len = sz.cols;
            a.count = count;
            ASSERT_EQ(e.fn(a), tarnStatusOk) << e.name;
            ref::copy(ar.model(), s, d, count, nm.es);
            ASSERT_TRUE(ar.same()) << e.name << " " << sz.rows << "x" << sz.cols << " count " << count << " "
                                   << formName(fs) << " -> " << formName(fd) << ", first difference at byte "
                                   << ar.firstDifference();
            ++calls;
          }
  }
  EXPECT_EQ(calls, 18 * (5 + 4) * 3 * 5 * 4);
}

// The object stride is checked, and used, only when there is more than one object.
TEST(Copy, ObjectStrideMattersOnlyForSeveralObjects) {
  float src[6] = {1, 2, 3, 4, 5, 6}, dst[6] = {};
  for (int32_t stride : {0, 3}) {
    EXPECT_EQ(tarnCopy_ma_32f_SS(src, stride, 12, 4, dst, stride, 12, 4, 3, 2, 1), tarnStatusOk);
    EXPECT_EQ(std::memcmp(src, dst, sizeof src), 0);
    EXPECT_EQ(tarnCopy_ma_32f_SS(src, stride, 12, 4, dst, 24, 12, 4, 3, 2, 2), tarnStatusBadStride);
  }
  EXPECT_EQ(tarnCopy_va_64f_SS(nullptr, 8, 8, nullptr, 8, 8, 0, 0), tarnStatusNullPointer);
  double d[2];
  EXPECT_EQ(tarnCopy_va_64f_SS(d, 8, 8, d, 8, 8, 0, 0), tarnStatusBadSize);
}

// With overlapping operands elements are moved one after the other, in ascending order: a copy
// one element forward repeats the first element through the row.
TEST(Copy, OverlapFollowsTheElementOrder) {
  float buf[6] = {1, 2, 3, 4, 5, 6};
  ASSERT_EQ(tarnCopy_va_32f_SS(buf, 20, 4, buf + 1, 20, 4, 5, 1), tarnStatusOk);
  for (float v : buf) EXPECT_EQ(v, 1.0f);
}

}  // namespace
}  // namespace movetest
