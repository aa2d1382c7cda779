// Serial or parallel: each array member opens a region exactly from its threshold on, on the
// path its operands choose. Regions are counted by interposing the runtime's entry that every
// region with a requested team size passes through (see regions.hpp).
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "elementwise.hpp"
#include "regions.hpp"

namespace tt {
namespace {

// Work estimates and thresholds, as documented for each family and pattern.
enum class E { MatOne, MatArr, LenOne, LenCount, ThreeLen, VecPlusCount, TwoCount };
struct Limits {
  int32_t sC, sG, lC32, lG32, lC64, lG64, p32, p64;
};
struct ThresholdRow {
  const char* family;
  const char* patterns;
  E est;
  Limits lim;
};
constexpr Limits kMatrix{36864, 18432, 18432, 18432, 18432, 18432, 9216, 9216};
constexpr Limits kVector{20001, 20001, 40001, 40001, 20001, 20001, 20001, 20001};
constexpr Limits kCountOnly{20000, 20000, 40000, 40000, 20000, 20000, 20000, 20000};
constexpr Limits kSaxpy{40001, 40001, 40001, 40001, 40001, 40001, 40001, 40001};
constexpr Limits kLComb{20001, 20001, 40001, 20001, 20001, 20001, 20001, 20001};
const ThresholdRow kRows[] = {
    {"Add", "mam tam mat tat", E::MatOne, kMatrix},
    {"Add", "mama tama tata", E::MatArr, kMatrix},
    {"Add", "vav vac", E::LenOne, kVector},
    {"Add", "vaca", E::LenCount, kVector},
    {"Add", "vava", E::ThreeLen, kVector},
    {"Add", "vca", E::VecPlusCount, kVector},
    {"Sub", "mam tam mat tat mma mta tma tta", E::MatOne, kMatrix},
    {"Sub", "mama mata tama tata", E::MatArr, kMatrix},
    {"Sub", "vav vva vac", E::LenOne, kVector},
    {"Sub", "vaca cava", E::LenCount, kVector},
    {"Sub", "vava", E::ThreeLen, kVector},
    {"Sub", "vca cav", E::VecPlusCount, kVector},
    {"Sub", "cva", E::TwoCount, kCountOnly},  // counts the objects only, not their lengths
    {"Saxpy", "vav vva", E::LenOne, kSaxpy},
    {"Saxpy", "vava", E::ThreeLen, kSaxpy},
    {"LComb", "vav", E::LenOne, kLComb},
    {"LComb", "vava", E::ThreeLen, kLComb},
};
// Members that compute their estimate and still never open a region.
const char* const kNeverParallel[] = {"tarnSub_vva_64f_P"};

int64_t estimateOf(E e, int64_t wh, int64_t count) {
  switch (e) {
    case E::MatOne: return (2 * count + 1) * wh;
    case E::MatArr: return 3 * count * wh;
    case E::LenOne: return 2 * wh * count + wh;
    case E::LenCount: return 2 * wh * count + count;
    case E::ThreeLen: return 3 * wh * count;
    case E::VecPlusCount: return wh * count + wh + count;
    case E::TwoCount: return 2 * count;
  }
  return 0;
}

const ThresholdRow* rowOf(const Name& nm) {
  for (const auto& r : kRows)
    if (nm.family == r.family && (" " + std::string(r.patterns) + " ").find(" " + nm.pattern + " ") != std::string::npos)
      return &r;
  return nullptr;
}

int regionsOf(const MemberFn& m, const EwShape& s, int count, const Style& st) {
  return regionsOpenedBy([&] { runElementwise(m, s, count, st, 2, 3, [](double, double, const Args&, int) { return 0.0; }); });
}

TEST(Thresholds, RegionFromTheThresholdOfThePathOn) {
  int members = 0;
  for (const MemberFn& m : allMembers()) {
    const Name nm = parseName(m.name);
    const ThresholdRow* row = rowOf(nm);
    if (!row) continue;
    ++members;
    const bool matrix = nm.pattern.find_first_of("mt") != std::string::npos;
    const EwShape shape = matrix ? EwShape{3, 3} : EwShape{1, 3};
    for (bool contig : {true, false}) {
      if (nm.layout == 'P' && !contig) continue;
      const Limits& l = row->lim;
      const bool f32 = nm.esize == 4;
      const int32_t thr = nm.layout == 'P' ? (f32 ? l.p32 : l.p64)
                          : nm.layout == 'S' ? (contig ? l.sC : l.sG)
                          : f32 ? (contig ? l.lC32 : l.lG32) : (contig ? l.lC64 : l.lG64);
      int count = 2;
      while (estimateOf(row->est, shape.h * shape.w, count) < thr) ++count;
      const Style& st = style(contig ? "packed" : "strided");
      EXPECT_EQ(regionsOf(m, shape, count - 1, st), 0) << m.name << (contig ? " contiguous" : " general");
      const bool never = std::find(std::begin(kNeverParallel), std::end(kNeverParallel), std::string(m.name)) !=
                         std::end(kNeverParallel);
      EXPECT_EQ(regionsOf(m, shape, count, st), never ? 0 : 1) << m.name << (contig ? " contiguous" : " general");
    }
  }
  EXPECT_GT(members, 0);
}

// One thread, or fewer objects than threads, never opens a region, however large the objects.
TEST(Thresholds, NoRegionWithOneThreadOrFewObjects) {
  const MemberFn& m = member("tarnAdd_mama_32f");
  EXPECT_EQ(regionsOpenedBy([&] { runElementwise(m, {3, 3}, 5000, style("packed"), 1, 1, refAdd); }), 0);
  EXPECT_EQ(regionsOpenedBy([&] { runElementwise(m, {200, 200}, 3, style("packed"), 4, 1, refAdd); }), 0);
  EXPECT_EQ(regionsOpenedBy([&] { runElementwise(m, {200, 200}, 4, style("packed"), 4, 1, refAdd); }), 1);
}

}  // namespace
}  // namespace tt
