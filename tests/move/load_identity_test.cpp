// LoadIdentity: every member, square and oblong shapes, the fixed float paths (aligned and not),
// against the model; the whole arena must match, which also proves that the fourth float of a
// 16-byte row slot of a 3 by 3 matrix is left alone.
#include "move_support.hpp"

namespace movetest {
namespace {

TEST(LoadIdentity, EveryMemberShapeAndFormMatchesTheModel) {
  int calls = 0;
  for (const Entry& e : members("tarnLoadIdentity_")) {
    const Name nm = parse(e.name);
    for (auto [h, w] : {std::pair{3, 3}, {4, 4}, {1, 1}, {2, 3}, {3, 2}, {3, 4}, {4, 3}, {5, 5}, {8, 8}, {2, 9},
                        {11, 17}})
      for (int count : {1, 2, 3, 6})
        for (Form f : kForms) {
          Arena ar(1 << 16);
          const Place d = place(ar, nm.lay, h, w, count, nm.es, f);
          ar.snapshot();
          Bound bl;
          Args a;
          a.op[0] = bl.bind(d, ar.lib());
          a.width = w;
          a.height = h;
          a.count = count;
          ASSERT_EQ(e.fn(a), tarnStatusOk) << e.name;
          ref::identity(ar.model(), d, count, nm.es);
          ASSERT_TRUE(ar.same()) << e.name << " " << h << "x" << w << " count " << count << " " << formName(f)
                                 << ", first difference at byte " << ar.firstDifference();
          ++calls;
        }
  }
  EXPECT_EQ(calls, 6 * 11 * 4 * 5);
}

TEST(LoadIdentity, OddRowsOfTheOrder) {
  // count 1 takes any object stride; the float table member tests the shift before the count.
  float m[9];
  EXPECT_EQ(tarnLoadIdentity_ma_32f(m, 7, 12, 4, 3, 3, 1), tarnStatusOk);
  EXPECT_EQ(tarnLoadIdentity_ma_32f(m, 7, 12, 4, 3, 3, 2), tarnStatusBadStride);
  float* t[1] = {m};
  double* td[1] = {nullptr};
  EXPECT_EQ(tarnLoadIdentity_ma_32f_P(t, 2, 4, 1, 1, 0), tarnStatusBadRoiShift);
  td[0] = reinterpret_cast<double*>(m);
  EXPECT_EQ(tarnLoadIdentity_ma_64f_P(td, 2, 8, 1, 1, 0), tarnStatusBadCount);
}

}  // namespace
}  // namespace movetest
