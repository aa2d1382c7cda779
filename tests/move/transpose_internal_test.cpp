// White box: the store mode of the tiled float transpose follows the reported cache size, and
// both kernels give the exact transpose. Linked against the internal archive, whose cache
// override is the one the entries see.
#include <gtest/gtest.h>

#include "move_check.hpp"
#include "platform.hpp"
#include "../../src/move/transpose.hpp"

extern "C" tarnStatus ownEntry_tarnTranspose_m_32f(const float*, int32_t, int32_t, int32_t, int32_t, float*, int32_t,
                                                   int32_t);
extern "C" tarnStatus ownEntry_tarnTranspose_ma_32f(const float*, int32_t, int32_t, int32_t, int32_t, int32_t, float*,
                                                    int32_t, int32_t, int32_t, int32_t);

namespace {

using namespace tarn;

struct CacheOverride {
  explicit CacheOverride(int32_t bytes) { ownSetMaxCacheSizeOverride(bytes); }
  ~CacheOverride() { ownSetMaxCacheSizeOverride(-1); }
};

tarnStatus single(const tt::Args& a) {
  const tt::ArgBlk &s = a.op[0], &d = a.op[1];
  return ownEntry_tarnTranspose_m_32f(static_cast<const float*>(s.ptr), s.row, s.elem, a.width, a.height,
                                      static_cast<float*>(d.ptr), d.row, d.elem);
}
tarnStatus array(const tt::Args& a) {
  const tt::ArgBlk &s = a.op[0], &d = a.op[1];
  return ownEntry_tarnTranspose_ma_32f(static_cast<const float*>(s.ptr), s.obj, s.row, s.elem, a.width, a.height,
                                       static_cast<float*>(d.ptr), d.obj, d.row, d.elem, a.count);
}

TEST(TransposeKernels, StoreModeFollowsTheCache) {
  // One matrix of 200 x 200 floats: 320000 bytes for both copies; sizes below 129 never ask.
  for (auto [cache, stream] : {std::pair{1 << 20, false}, {256 << 10, true}, {0, false}, {320000, false},
                               {319999, true}}) {
    const CacheOverride o(cache);
    EXPECT_EQ(transpose::streamForMatrix(false, 200, 200), stream) << cache;
    EXPECT_FALSE(transpose::streamForMatrix(false, 128, 1000)) << cache;
    EXPECT_TRUE(transpose::streamForMatrix(true, 3, 3));
  }
  // A whole call: above 131072 bytes and three quarters of the cache.
  for (auto [cache, w, h, count, stream] : {std::tuple{160000, 64, 64, 3, false}, {160000, 64, 64, 5, true},
                                            {160000, 40, 15, 55, true}, {1 << 20, 64, 64, 5, false},
                                            {0, 1000, 1000, 4, false}}) {
    const CacheOverride o(cache);
    EXPECT_EQ(transpose::streamForCall(w, h, count), stream) << cache << " " << w << "x" << h << " x" << count;
  }
  // Strips of 64 source rows, whole matrices when short or when streaming odd widths.
  EXPECT_EQ(transpose::stripHeight(false, 7, 64), 64);
  EXPECT_EQ(transpose::stripHeight(false, 7, 65), 64);
  EXPECT_EQ(transpose::stripHeight(true, 32, 300), 64);
  EXPECT_EQ(transpose::stripHeight(true, 33, 300), 300);
}

// Both kernels, whole calls and single matrices, over shapes that cross strips and leave odd
// columns, on aligned and unaligned rows: exactly the transpose and nothing beside it.
TEST(TransposeKernels, BothKernelsAreExact) {
  std::mt19937 rng(3);
  const tt::Style* placements[] = {&tt::style("packed"), &tt::style("aligned16"), &tt::style("padded")};
  for (int32_t cache : {0, 4096, 1 << 30}) {
    const CacheOverride o(cache);
    for (auto [h, w] : {std::pair{9, 7}, {130, 33}, {131, 130}, {200, 131}, {70, 16}, {200, 200}})
      for (const tt::Style* ss : placements)
        for (const tt::Style* ds : placements) {
          ASSERT_EQ(movetest::runMove(single, "tarnTranspose_m_32f", h, w, 1, *ss, *ds, rng), "") << cache;
          ASSERT_EQ(movetest::runMove(array, "tarnTranspose_ma_32f", h, w, 3, *ss, *ds, rng), "") << cache;
        }
  }
}

}  // namespace
