// White box: the store mode of the tiled float transpose follows the reported cache size, and
// both kernels give the exact transpose. Linked against the internal archive, whose cache
// override is the one the entries see.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

#include "platform.hpp"
#include "tarn.h"
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

// Source w x h with row padding, destination h wide with row padding, canaries behind.
void expectExactTranspose(int w, int h, int count, bool array) {
  const int sRow = w + 3, dRow = h + 5;
  std::mt19937 rng(w * 31 + h);
  std::vector<uint32_t> src(size_t(sRow) * h * count), dst(size_t(dRow) * w * count + 16, 0xA5A5A5A5u);
  for (auto& v : src) v = rng() | 0x7f800001u;  // NaN patterns, many signalling
  const int32_t sObj = sRow * h * 4, dObj = dRow * w * 4;
  const float* s = reinterpret_cast<const float*>(src.data());
  float* d = reinterpret_cast<float*>(dst.data());
  const tarnStatus st = array ? ownEntry_tarnTranspose_ma_32f(s, sObj, sRow * 4, 4, w, h, d, dObj, dRow * 4, 4, count)
                              : ownEntry_tarnTranspose_m_32f(s, sRow * 4, 4, w, h, d, dRow * 4, 4);
  ASSERT_EQ(st, tarnStatusOk);
  for (int n = 0; n < count; ++n)
    for (int c = 0; c < w; ++c)
      for (int r = 0; r < dRow; ++r) {
        const size_t at = size_t(n) * dRow * w + size_t(c) * dRow + r;
        const uint32_t want = r < h ? src[size_t(n) * sRow * h + size_t(r) * sRow + c] : 0xA5A5A5A5u;
        ASSERT_EQ(dst[at], want) << w << "x" << h << " object " << n << " at (" << c << ", " << r << ")";
      }
  for (int k = 0; k < 16; ++k) ASSERT_EQ(dst[dst.size() - 16 + k], 0xA5A5A5A5u);
}

TEST(TransposeKernels, StoreModeFollowsTheCache) {
  struct Case {
    int32_t cache;
    bool stream;
  };
  // 200 x 200 floats: 320000 bytes for both copies.
  for (const Case k : {Case{1 << 20, false}, Case{256 << 10, true}, Case{0, false}, Case{320000, false},
                       Case{319999, true}}) {
    const CacheOverride o(k.cache);
    EXPECT_EQ(transpose::streamForMatrix(false, 200, 200), k.stream) << k.cache;
    expectExactTranspose(200, 200, 1, false);
  }
  {
    const CacheOverride o(1);  // tiny: only sizes of at least 129 ask
    EXPECT_FALSE(transpose::streamForMatrix(false, 128, 1000));
    EXPECT_TRUE(transpose::streamForMatrix(false, 129, 129));
    EXPECT_TRUE(transpose::streamForMatrix(true, 3, 3));
  }
  // A whole call: above 131072 bytes and three quarters of the cache.
  {
    const CacheOverride o(160000);  // three quarters: 120000
    EXPECT_FALSE(transpose::streamForCall(64, 64, 3));   // 98304 bytes
    EXPECT_TRUE(transpose::streamForCall(64, 64, 5));    // 163840
    EXPECT_TRUE(transpose::streamForCall(40, 15, 55));   // 264000
  }
  {
    const CacheOverride o(1 << 20);
    EXPECT_FALSE(transpose::streamForCall(64, 64, 5));
  }
  {
    const CacheOverride o(0);
    EXPECT_FALSE(transpose::streamForCall(1000, 1000, 4));
  }
}

TEST(TransposeKernels, StripHeights) {
  EXPECT_EQ(transpose::stripHeight(false, 7, 64), 64);
  EXPECT_EQ(transpose::stripHeight(false, 7, 65), 64);
  EXPECT_EQ(transpose::stripHeight(true, 32, 300), 64);
  EXPECT_EQ(transpose::stripHeight(true, 33, 300), 300);
  EXPECT_EQ(transpose::stripHeight(false, 33, 300), 64);
}

// Both kernels, whole calls and single matrices, over shapes that cross strips and leave odd
// columns, give exactly the transpose and nothing beside it.
TEST(TransposeKernels, BothKernelsAreExact) {
  for (int32_t cache : {0, 4096, 1 << 30}) {
    const CacheOverride o(cache);
    for (auto [w, h] : {std::pair{7, 9}, {33, 130}, {130, 131}, {131, 200}, {16, 70}, {200, 200}}) {
      expectExactTranspose(w, h, 1, false);
      expectExactTranspose(w, h, 3, true);
    }
  }
}

}  // namespace
