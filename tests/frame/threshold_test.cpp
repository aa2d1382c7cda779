// Serial or parallel: each array member of the element-wise, product, reduction and point
// transform families opens a region exactly from the threshold of the path its operands choose,
// with the estimate and the limits typed from the families' descriptions; and the region gives
// the bits of one thread on 2 and 3 threads. Regions are counted by interposing the runtime's
// entry that every region with a requested team size passes through (see regions.hpp).
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "harness.hpp"
#include "regions.hpp"

namespace tt {
namespace {

// The smallest E that opens a region: LayoutS contiguous and general, LayoutL contiguous and
// general for 32f and for 64f, LayoutP for 32f and for 64f.
struct Limits {
  int32_t sC, sG, lC32, lG32, lC64, lG64, p32, p64;
};
constexpr Limits kMatrix{36864, 18432, 18432, 18432, 18432, 18432, 9216, 9216};
constexpr Limits kVector{20001, 20001, 40001, 40001, 20001, 20001, 20001, 20001};
constexpr Limits kCountOnly{20000, 20000, 40000, 40000, 20000, 20000, 20000, 20000};
constexpr Limits kSaxpy{40001, 40001, 40001, 40001, 40001, 40001, 40001, 40001};
constexpr Limits kL32Contig{20001, 20001, 40001, 20001, 20001, 20001, 20001, 20001};
constexpr Limits kProduct{36865, 18433, 18433, 18433, 18433, 18433, 9217, 9217};
constexpr Limits kDot{40001, 20001, 40001, 20001, 40001, 20001, 20001, 40001};
constexpr Limits kNorm{20001, 20001, 20001, 20001, 20001, 20001, 20001, 20001};
constexpr Limits kGaxpy{5001, 5001, 5001, 5001, 5001, 5001, 5001, 5001};

// A call's sizes (0 where the member has none) and count n.
struct Z {
  int64_t w, h, len, wh, w1, h1, w2, h2, l2, l3, n;
};
// E of a call; p is the member's pattern.
using Estimate = int64_t (*)(const Z& z, const std::string& p);
// The Mul products: every operand's elements (an array's n times) and n times the result's.
int64_t productE(const Z& z, const std::string& p) {
  const bool t1 = p[0] == 't', a1 = p[1] == 'a', a2 = p.ends_with("a"), t2 = p[1 + a1] == 't';
  const int64_t rows = t1 ? z.w1 : z.h1, one = z.w1 * z.h1 * (a1 ? z.n : 1);
  if (p.find('v') != std::string::npos) return one + z.l2 * (a2 ? z.n : 1) + rows * z.n;
  return one + z.w2 * z.h2 * (a2 ? z.n : 1) + rows * (t2 ? z.h2 : z.w2) * z.n;
}
int64_t matOne(const Z& z, const std::string&) { return (2 * z.n + 1) * z.w * z.h; }
int64_t matArr(const Z& z, const std::string&) { return 3 * z.n * z.w * z.h; }
int64_t lenOne(const Z& z, const std::string&) { return 2 * z.len * z.n + z.len; }
int64_t lenCount(const Z& z, const std::string&) { return 2 * z.len * z.n + z.n; }
int64_t threeLen(const Z& z, const std::string&) { return 3 * z.len * z.n; }
int64_t vecPlusCount(const Z& z, const std::string&) { return z.len * (z.n + 1) + z.n; }

struct Row {
  const char* family;
  const char* patterns;
  Estimate est;
  Limits lim;
};
const Row kRows[] = {
    {"Add", "mam tam mat tat", matOne, kMatrix},
    {"Add", "mama tama tata", matArr, kMatrix},
    {"Add", "vav vac", lenOne, kVector},
    {"Add", "vaca", lenCount, kVector},
    {"Add", "vava", threeLen, kVector},
    {"Add", "vca", vecPlusCount, kVector},
    {"Sub", "mam tam mat tat mma mta tma tta", matOne, kMatrix},
    {"Sub", "mama mata tama tata", matArr, kMatrix},
    {"Sub", "vav vva vac", lenOne, kVector},
    {"Sub", "vaca cava", lenCount, kVector},
    {"Sub", "vava", threeLen, kVector},
    {"Sub", "vca cav", vecPlusCount, kVector},
    {"Sub", "cva", [](const Z& z, auto&) { return 2 * z.n; }, kCountOnly},  // not the lengths
    {"Saxpy", "vav vva", lenOne, kSaxpy},
    {"Saxpy", "vava", threeLen, kSaxpy},
    {"LComb", "vav", lenOne, kL32Contig},
    {"LComb", "vava", threeLen, kL32Contig},
    {"Mul", "mam mat tam tat mma mta tma tta mama mata tama tata mav tav mva tva mava tava", productE, kProduct},
    {"Mul", "mac tac", [](const Z& z, auto&) { return 2 * z.n * z.w * z.h; }, {35001, 35001, 35001, 15001, 35001, 35001, 17001, 17001}},
    {"Mul", "vac", [](const Z& z, auto&) { return 2 * z.len * z.n; }, kProduct},
    {"Mul", "vaca", lenCount, {36865, 36865, 18433, 18433, 18433, 18433, 9217, 9217}},
    {"Mul", "vca", vecPlusCount, {36865, 36865, 18433, 18433, 18433, 18433, 9217, 9217}},
    {"Gaxpy", "mva", [](const Z& z, auto&) { return z.n * (z.l2 + 2 * z.l3); }, kGaxpy},
    {"Gaxpy", "mvav", [](const Z& z, auto&) { return (z.n + 1) * z.l3 + z.n * z.l2; }, kGaxpy},
    {"DotProduct", "vav", [](const Z& z, auto&) { return z.len * (z.n + 1); }, kDot},
    {"DotProduct", "vava", [](const Z& z, auto&) { return 2 * z.len * z.n; }, kDot},
    {"CrossProduct", "vav vva", [](const Z& z, auto&) { return 2 * z.n; }, kCountOnly},
    {"CrossProduct", "vava", [](const Z& z, auto&) { return 3 * z.n; }, kVector},
    {"L2Norm", "va", [](const Z& z, auto&) { return z.len * z.n; }, kNorm},
    {"FrobNorm", "ma", [](const Z& z, auto&) { return z.w * z.h * z.n; }, kL32Contig},
    {"Trace", "ma", [](const Z& z, auto&) { return z.wh * z.n; }, kL32Contig},
    {"AffineTransform3DH", "mva", [](const Z& z, auto&) { return 6 * z.n; }, {1985, 1985, 0, 0, 0, 0, 0, 0}},
};
// Members that compute their estimate and still never open a region.
const char* const kNeverParallel[] = {"tarnSub_vva_64f_P", "tarnCrossProduct_vva_64f_P"};

const Row* rowOf(const Name& nm) {
  for (const auto& r : kRows)
    if (nm.family == r.family && (" " + std::string(r.patterns) + " ").find(" " + nm.pattern + " ") != std::string::npos)
      return &r;
  return nullptr;
}

// Sizes and count whose E is `target`, else the nearest E on the far side of the threshold:
// every size from 1, 5, 6, 7 (no combination enters a kernel of another size).
std::pair<Sizes, int> sizesFor(const MemberFn& m, const Row& row, int64_t target, bool below) {
  const std::string p = parseName(m.name).pattern;
  Sizes names;
  shapeOf(m.name)->sizes(names);
  std::pair<Sizes, int> best{{}, 0};
  int64_t miss = -1;
  const int kSizes[] = {1, 5, 6, 7};
  for (int code = 0; code < 1 << (2 * names.size()); ++code) {
    Sizes z;
    int shift = 0;
    for (const auto& [name, v] : names) z[name] = kSizes[(code >> shift) & 3], shift += 2;
    shapeOf(m.name)->sizes(z);
    auto e = [&](int64_t n) {
      auto g = [&](const char* k) -> int64_t { return z.count(k) ? z.at(k) : 0; };
      return row.est({g("width"), g("height"), g("len"), g("widthHeight"), g("src1Width"), g("src1Height"), g("src2Width"),
                      g("src2Height"), g("src2Len"), g("src3Len"), n}, p);
    };
    const int64_t b = e(0), a = e(1) - b;
    if (a <= 0) continue;
    const int64_t n = below ? (target - b) / a : (target - b + a - 1) / a;
    if (n < 2) continue;
    const int64_t off = std::abs(a * n + b - target);
    if (miss < 0 || off < miss) miss = off, best = {z, int(n)};
  }
  return best;
}

TEST(Thresholds, RegionFromTheThresholdOfThePathOnWithTheBitsOfOneThread) {
  for (const MemberFn& m : allMembers()) {
    const Name nm = parseName(m.name);
    const Row* row = rowOf(nm);
    if (!row) {  // every array member of these families has a row
      EXPECT_FALSE(m.hasCount && std::any_of(std::begin(kRows), std::end(kRows), [&](const Row& r) { return nm.family == r.family; }))
          << m.name;
      continue;
    }
    const bool never = std::find(std::begin(kNeverParallel), std::end(kNeverParallel), std::string(m.name)) !=
                       std::end(kNeverParallel);
    // The matrix-vector products take an odd last object of a slice by the single rule: their
    // own test follows the slices.
    const bool sameBits = !(nm.family == "Mul" && nm.pattern.find('v') != std::string::npos && nm.pattern[0] != 'v');
    for (bool contig : {true, false}) {
      if (nm.layout == 'P' && !contig) continue;
      const Limits& l = row->lim;
      const bool f32 = nm.esize == 4;
      const int32_t thr = nm.layout == 'P' ? (f32 ? l.p32 : l.p64)
                          : nm.layout == 'S' ? (contig ? l.sC : l.sG)
                          : f32 ? (contig ? l.lC32 : l.lG32) : (contig ? l.lC64 : l.lG64);
      const Style& st = style(contig ? "packed" : "strided");
      const std::string what = std::string(m.name) + (contig ? " contiguous" : " general");
      for (bool below : {true, false}) {
        const auto [z, count] = sizesFor(m, *row, below ? thr - 1 : thr, below);
        ASSERT_GT(count, 0) << what;
        std::vector<uint64_t> one;
        if (!below && sameBits) {
          auto fx = placed(m, z, count, st, 5);
          const tarnStatus s = fx->run(1);
          EXPECT_TRUE(s == tarnStatusOk || nm.family == "AffineTransform3DH") << what;
          one = fx->results();
        }
        for (int threads : {2, 3}) {
          if (below && threads == 3) continue;
          auto fx = placed(m, z, count, st, 5);
          EXPECT_EQ(regionsOpenedBy([&] { fx->run(threads); }), below || never ? 0 : 1) << what << " threads " << threads;
          if (!one.empty()) {
            EXPECT_TRUE(fx->results() == one) << what << " threads " << threads;
          }
        }
      }
    }
  }
}

// One thread, or fewer objects than threads, never opens a region, however large the objects.
TEST(Thresholds, NoRegionWithOneThreadOrFewObjects) {
  const MemberFn& m = member("tarnAdd_mama_32f");
  auto regions = [&](int w, int count, int threads) {
    return regionsOpenedBy([&] { placed(m, {{"width", w}, {"height", w}}, count, style("packed"), 1)->run(threads); });
  };
  EXPECT_EQ(regions(3, 5000, 1), 0);
  EXPECT_EQ(regions(200, 3, 4), 0);
  EXPECT_EQ(regions(200, 4, 4), 1);
}

}  // namespace
}  // namespace tt
