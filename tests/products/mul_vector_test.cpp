// Mul with a matrix and a vector, and Gaxpy: every member against a model of the order of
// additions of the path its call takes, with the path decided here from the documented rules:
//   fixed sizes 3 to 6 (matrix square, vector of its order): the products from the first one,
//     left to right, except the float lane order of the contiguous m-letter arrays of Mul and
//     the lane orders of Gaxpy (float and double) on every path; src3 last
//   contiguous general shapes: dot products in registers, aligned on the vector where the
//     member aligns; arrays by pairs, an odd last object of a thread's slice by the single rule
//   strided, LayoutP, and Gaxpy's general shapes: k ascending from +0.0
// The sweeps place vectors at every offset modulo 16, split odd counts over 1 to 4 threads,
// and prove that nothing outside dst changed.
#include <gtest/gtest.h>

#include <cmath>

#include "harness.hpp"
#include "ref/matvec_ref.hpp"
#include "regions.hpp"

namespace tt {
namespace {

// What a member's name says about its operands.
struct Form {
  Name nm;
  bool gaxpy, t, aArr, vArr, s3Arr, anyArr;
};
Form formOf(const MemberFn& m) {
  Form f{parseName(m.name)};
  const std::string& p = f.nm.pattern;
  f.gaxpy = f.nm.family == "Gaxpy";
  f.t = p[0] == 't';
  f.aArr = p[1] == 'a';
  f.vArr = p.substr(f.aArr ? 2 : 1, 2) == "va";
  f.s3Arr = f.gaxpy && p == "mva";
  f.anyArr = f.aArr || f.vArr;
  return f;
}
std::vector<const MemberFn*> matvecMembers() {
  std::vector<const MemberFn*> out = membersOf("Gaxpy");
  for (const MemberFn* m : membersOf("Mul")) {
    const std::string p = parseName(m->name).pattern;
    if (p.find('v') != std::string::npos && p.find('c') == std::string::npos) out.push_back(m);
  }
  return out;
}


enum class MvFill { Random, Specials, NegativeZeros };

struct MvRun {
  std::vector<uint64_t> bits;  // dst in (object, element) order
  std::string failure;
};

// The expected result element i of one object, from the values the operands held before the
// call; `lone`: the object is the odd last one of its slice.
template <class T>
T expected(const Form& f, const CallFixture& fx, int n, int i, int w, int h, bool contig, bool lone) {
  const int rows = f.t ? w : h, inner = f.t ? h : w, lanes = 16 / int(sizeof(T));
  const Operand &a = fx.before(0), &v = fx.before(1);
  T p[64];
  for (int k = 0; k < inner; ++k)
    p[k] = T(f.t ? a.get(f.aArr ? n : 0, k, i) : a.get(f.aArr ? n : 0, i, k)) * T(v.get(f.vArr ? n : 0, 0, k));
  const T s3 = f.gaxpy ? T(fx.before(2).get(f.s3Arr ? n : 0, 0, i)) : T(0);
  const uintptr_t addr = reinterpret_cast<uintptr_t>(fx.block(1).at(f.vArr ? n : 0, 0, 0));
  const std::string& pat = f.nm.pattern;
  const bool f32 = sizeof(T) == 4;
  const bool noFixed = !f.gaxpy && contig && f.nm.layout == 'L' &&
                       (pat == "tva" || (f32 && pat == "mva") || (!f32 && pat == "tava"));
  if (w == h && w >= 3 && w <= 6 && !noFixed) {
    ref::Fixed order = ref::Fixed::LeftToRight;
    if (f.gaxpy) order = f32 ? ref::Fixed::Pair32 : ref::Fixed::Pair64;
    else if (contig && f32 && (pat == "mva" || pat == "mav" || pat == "mava")) order = ref::Fixed::Pair32;
    const T s = ref::fixedSum(p, inner, order, i);
    return f.gaxpy ? T(s + s3) : s;
  }
  if (f.gaxpy || !contig) {
    const T s = ref::ascending(p, inner);
    return f.gaxpy ? T(s + s3) : s;
  }
  if (f.t) {
    const int rem = rows % 8;
    if (!lone || i < rows - rem || rem >= 3) return ref::ascending(p, inner);
    return ref::evenOdd(p, inner);
  }
  if (pat == "mva" && f32 && f.nm.layout == 'S') return ref::laneDot(p, inner, 8, true, addr);
  if (lone) {
    const int rem = rows % 8;
    return ref::laneDot(p, inner, i < rows - rem || rem >= 4 ? lanes : 8, true, addr);
  }
  const int rem = rows % 4;
  return ref::laneDot(p, inner, i < rows - rem ? lanes : rem == 1 ? 8 : 4, pat == "mav", addr);
}

// Runs member `m` with src1 stored `w` wide and `h` high on `count` objects placed in style
// `st`, on `threads` threads, and compares every result with the model.
MvRun runMv(const MemberFn& m, int w, int h, int count, const Style& st, int threads, unsigned seed, MvFill fill) {
  const Form f = formOf(m);
  const int rows = f.t ? w : h, inner = f.t ? h : w, esize = f.nm.esize;
  const int dstBlock = f.gaxpy ? 3 : 2;
  auto placedFx = placed(m, {{"src1Width", w}, {"src1Height", h}, {"src2Len", inner}, {"src3Len", rows}}, count, st, seed,
                         fill == MvFill::Specials);
  CallFixture& fx = *placedFx;
  if (fill == MvFill::NegativeZeros) {  // every product -0.0, and src3 too
    for (int n = 0; n < (f.aArr ? count : 1); ++n)
      for (int r = 0; r < h; ++r)
        for (int c = 0; c < w; ++c) fx.block(0).set(n, r, c, -0.0);
    for (int n = 0; n < (f.vArr ? count : 1); ++n)
      for (int k = 0; k < inner; ++k) fx.block(1).set(n, 0, k, std::fabs(fx.block(1).get(n, 0, k)));
    if (f.gaxpy)
      for (int n = 0; n < (f.s3Arr ? count : 1); ++n)
        for (int i = 0; i < rows; ++i) fx.block(2).set(n, 0, i, -0.0);
  }
  tarnStatus status = 0;
  const bool region = regionsOpenedBy([&] { status = fx.run(threads); }) > 0;

  const bool contig = f.nm.layout != 'P' && fx.contiguous();
  // Each thread's slice, as the wrapper splits the objects when it opens a region.
  std::vector<bool> lone(size_t(count), false);
  const int parts = region ? threads : 1;
  for (int id = 0, first = 0; id < parts; ++id) {
    const int q = count / parts, r = count % parts, n = id < r ? q + 1 : q;
    if (n % 2) lone[size_t(first + n - 1)] = true;
    first += n;
  }

  std::string why = fx.compare(dstBlock, [&](int n, int, int i) {
    return esize == 4 ? double(expected<float>(f, fx, n, i, w, h, contig, lone[size_t(n)]))
                      : expected<double>(f, fx, n, i, w, h, contig, lone[size_t(n)]);
  });
  if (status != tarnStatusOk) why += "status " + std::to_string(status);
  MvRun run{fx.results(), ""};
  if (!why.empty())
    run.failure = std::string(m.name) + " " + std::to_string(w) + "x" + std::to_string(h) + " count " +
                  std::to_string(count) + " " + st.name + " threads " + std::to_string(threads) + ": " + why;
  return run;
}

// src1 stored width x height: the fixed sizes, then general shapes that reach one row, rows
// in blocks of 8 (and 4) with every remainder, inner lengths below and above a vector step
// with and without room for a peel.
const std::pair<int, int> kShapes[] = {{3, 3}, {4, 4}, {5, 5}, {6, 6},  {1, 1},  {2, 2},   {3, 4},  {4, 3}, {9, 1},
                                       {9, 2}, {9, 3}, {11, 5}, {12, 8}, {10, 9}, {13, 11}, {16, 12}, {7, 7}, {1, 9}};

// Vectors at every offset modulo 16 from a 64-byte boundary, beside the shared placements (one
// of which puts them off the element size, where there is no vector part).
std::vector<Style> placements() {
  std::vector<Style> s = styles();
  for (int off : {1, 2, 3}) s.push_back({.name = "offset", .misalign = off});
  return s;
}

TEST(MulVector, EveryMemberShapeAndPlacement) {
  const auto members = matvecMembers();
  ASSERT_EQ(members.size(), 60u);  // Mul: 8 + 36, Gaxpy: 4 + 12
  const auto places = placements();
  for (const MemberFn* m : members) {
    const Form f = formOf(*m);
    unsigned seed = 1;
    // Every shape and every placement meets every kind of data: three runs in five random, one
    // with all products -0.0, one with NaN, infinities and denormals in the matrix; packed
    // batches (the first placement) meet all three.
    const MvFill fills[] = {MvFill::Random, MvFill::Random, MvFill::Random, MvFill::NegativeZeros, MvFill::Specials};
    for (size_t j = 0; j < std::size(kShapes); ++j)
      for (size_t s = 0; s < places.size(); ++s)
        for (int count : f.anyArr ? std::vector<int>{1, 9} : std::vector<int>{1})
          for (size_t k = 0; k < (s == 0 ? 3u : 1u); ++k) {
            const MvFill fill = s == 0 ? fills[k + 2] : fills[(j + s + (count > 1)) % 5];
            EXPECT_EQ(runMv(*m, kShapes[j].first, kShapes[j].second, count, places[s], 1, seed++, fill).failure, "");
          }
  }
}

// Past every threshold, odd slices leave an odd last object in each thread, which takes the
// single-product rule in the contiguous general bodies: the model splits as the wrapper does.
TEST(MulVector, ThreadSlicesAndPairs) {
  int dependsOnTeam = 0;
  for (const MemberFn* m : matvecMembers()) {
    const Form f = formOf(*m);
    if (!f.anyArr) continue;
    struct Case {
      int w, h;
      const char* style;
      int count, arrays;  // odd counts past the path's threshold, with a single matrix or an array
    };
    // Some slices are odd for 2 to 4 threads.
    for (const Case& c :
         {Case{4, 4, "aligned16", 4609, 1845}, Case{10, 9, "packed", 1941, 373}, Case{9, 10, "strided", 971, 187}}) {
      const int count = f.aArr ? c.arrays : c.count;
      const MvRun one = runMv(*m, c.w, c.h, count, style(c.style), 1, 9, MvFill::Random);
      EXPECT_EQ(one.failure, "");
      for (int threads : {2, 3, 4}) {
        MvRun many;
        const int regions =
            regionsOpenedBy([&] { many = runMv(*m, c.w, c.h, count, style(c.style), threads, 9, MvFill::Random); });
        EXPECT_EQ(regions, 1) << m->name;
        EXPECT_EQ(many.failure, "");
        dependsOnTeam += many.bits != one.bits;
      }
    }
  }
  EXPECT_GT(dependsOnTeam, 20);  // the data tells the pair rule from the single rule
}

// Gaxpy's general path writes dst before it reads src3: with dst over src3 the addend is the
// sum itself.
TEST(MulVector, GaxpyGeneralWritesDstBeforeReadingSrc3) {
  const double a[2][2] = {{1, 2}, {3, 4}}, v[2] = {10, 100};
  double s3[2] = {1000, 2000};
  ASSERT_EQ(tarnGaxpy_mv_64f(&a[0][0], 16, 8, 2, 2, v, 8, 2, s3, 8, 2, s3, 8), tarnStatusOk);
  EXPECT_EQ(s3[0], 2 * 210.0);
  EXPECT_EQ(s3[1], 2 * 430.0);
}

}  // namespace
}  // namespace tt
