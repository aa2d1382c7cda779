// DotProduct, CrossProduct, L2Norm, FrobNorm and Trace against the plain models of
// ref/reduction_ref.hpp: every member on shapes that reach every body, in every placement
// (guarded operands prove the lane kernels read nothing past the last object; elements at every
// offset from a 16-byte boundary, the peels), counts around the blocks of four; in-place cross
// products; no scaling.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "harness.hpp"
#include "ref/reduction_ref.hpp"

namespace tt {
namespace {

struct Shape {
  int h, w;  // object rows and columns: a vector is 1 x len, Trace w x w, CrossProduct 1 x 3
};

// The model of one object of member `nm` (T the element type): `v(i, r, c)` reads block i as it
// was before the call, `addr(i)` is where block i's element (0, 0) lies.
template <class T, class V, class Addr>
std::vector<T> model(const Name& nm, bool contig, const Shape& sh, const Args& args, const V& v, const Addr& addr) {
  const bool P = nm.layout == 'P';
  auto squares = [&](int r0, int n, bool row) {
    ref::Terms<T> p;
    for (int k = 0; k < n; ++k) {
      const T x = v(0, row ? r0 : k, row ? k : r0);
      p.push_back(x * x);
    }
    return p;
  };
  if (nm.family == "CrossProduct") {
    const T x1 = v(0, 0, 0), y1 = v(0, 0, 1), z1 = v(0, 0, 2), x2 = v(1, 0, 0), y2 = v(1, 0, 1), z2 = v(1, 0, 2);
    return {y1 * z2 - z1 * y2, z1 * x2 - x1 * z2, x1 * y2 - y1 * x2};
  }
  if (nm.family == "DotProduct") {
    ref::Terms<T> p;
    for (int k = 0; k < sh.w; ++k) p.push_back(v(0, 0, k) * v(1, 0, k));
    return {P ? ref::eightSums(p) : !contig ? ref::strided(p) : ref::dotContiguous(p, addr(1), nm.pattern == "vav")};
  }
  if (nm.family == "L2Norm") {
    const auto p = squares(0, sh.w, true);
    return {std::sqrt(P || !contig ? ref::strided(p) : ref::normContiguous(p, addr(0)))};
  }
  if (nm.family == "Trace") {
    ref::Terms<T> d;
    for (int k = 0; k < sh.w; ++k) d.push_back(v(0, k, k));
    return {ref::trace(d)};
  }
  ref::FrobInput<T> in{{}, P, args.op[0].row, args.op[0].elem, addr(0)};
  for (int r = 0; r < sh.h; ++r) in.s.push_back(squares(r, sh.w, true));
  return {std::sqrt(sizeof(T) == 4 ? ref::frob32Sum(in) : ref::frob64Sum(in))};
}

// Runs member m on `count` objects of shape sh placed in style st and compares every result with
// the model; `alias` >= 0 writes dst over that source block. Empty when all is well.
std::string runCase(const MemberFn& m, const Shape& sh, int count, const Style& st, unsigned seed,
                    bool specials = false, int alias = -1) {
  const Name nm = parseName(m.name);
  const bool cross = nm.family == "CrossProduct";
  auto placedFx = placed(m, {{"len", sh.w}, {"width", sh.w}, {"widthHeight", sh.w}, {"height", sh.h}}, count, st, seed, specials);
  CallFixture& fx = *placedFx;
  Args& a = fx.args;
  if (alias >= 0) a.op[m.nop - 1] = a.op[alias];
  const bool contig = fx.contiguous();
  const tarnStatus status = fx.run(1);
  auto object = [&](int n) -> std::vector<double> {  // the model of object n
    auto at = [&](int i) { return fx.isArray(i) ? n : 0; };
    auto v = [&](int i, int r, int c) { return fx.before(i).get(at(i), r, c); };
    auto addr = [&](int i) { return uint64_t(reinterpret_cast<uintptr_t>(fx.block(i).at(at(i), 0, 0))); };
    if (nm.esize == 8) return model<double>(nm, contig, sh, a, v, addr);
    const auto f = model<float>(nm, contig, sh, a, [&](int i, int r, int c) { return float(v(i, r, c)); }, addr);
    return {f.begin(), f.end()};
  };
  std::string why = fx.compare(alias >= 0 ? alias : m.nop - 1, [&](int n, int, int c) { return cross ? object(n)[c] : object(c)[0]; },
                               alias >= 0 ? std::vector<int>{alias} : std::vector<int>{});
  if (status) why += "status " + std::to_string(status);
  return why.empty() ? why
                     : std::string(m.name) + " " + std::to_string(sh.h) + "x" + std::to_string(sh.w) + " count " +
                           std::to_string(count) + " " + st.name + ": " + why;
}

struct Family {
  const char* name;
  size_t members;
  std::vector<Shape> shapes;
};
// Fixed bodies, the lengths around them, whole and partial steps of 8 behind every peel.
const std::vector<Shape> kVectors = {{1, 1}, {1, 2}, {1, 3}, {1, 4},  {1, 5},  {1, 6},
                                     {1, 7}, {1, 8}, {1, 9}, {1, 12}, {1, 17}, {1, 35}};
const std::vector<Shape> kMatrices = {{1, 1}, {2, 2}, {3, 3}, {4, 4},  {5, 5},  {6, 6}, {7, 7},
                                      {3, 4}, {4, 3}, {1, 13}, {13, 1}, {2, 9}, {11, 3}};
const Family kFamilies[] = {
    {"DotProduct", 16, kVectors},
    {"CrossProduct", 22, {{1, 3}}},
    {"L2Norm", 10, kVectors},
    {"FrobNorm", 10, kMatrices},
    {"Trace", 10, {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7}, {8, 8}}},
};

// Besides the shared placements: objects with a gap between them, the last one right before an
// inaccessible page, so a 16-byte load of a 3-element row that is not the packed case is seen;
// and elements 8 and 12 bytes past a 64-byte boundary (2, off the element size, is a shared
// placement), where the peels up to a 16-byte boundary take 1 to 3 elements or there is no
// vector part.
TEST(Reductions, EveryMemberShapeAndPlacement) {
  std::vector<Style> placements = styles();
  placements.push_back({.name = "guarded-gapped", .objPadBytes = 8, .guard = true});
  for (int bytes : {8, 12}) placements.push_back({.name = "bytes", .misalignBytes = bytes});
  for (const Family& f : kFamilies) {
    const auto members = membersOf(f.name);
    ASSERT_EQ(members.size(), f.members) << f.name;
    for (const MemberFn* m : members) {
      const bool array = parseName(m->name).pattern.find('a') != std::string::npos;
      unsigned seed = 1;
      for (const Shape& sh : f.shapes)
        for (const Style& st : placements)
          for (int count : array ? std::vector<int>{1, 3, 4, 5, 8, 11} : std::vector<int>{1}) {
            const unsigned s = seed++;
            EXPECT_EQ(runCase(*m, sh, count, st, s, s % 3 == 0), "");
          }
    }
  }
}

// dst over either source: every object is read whole before it is written.
TEST(Reductions, CrossProductInPlace) {
  for (const MemberFn* m : membersOf("CrossProduct")) {
    const std::string p = parseName(m->name).pattern;
    for (int alias : {0, 1}) {
      if ((p == "vav" && alias == 1) || (p == "vva" && alias == 0)) continue;  // dst is the array
      for (const char* st : {"packed", "padded", "strided", "soa"})
        EXPECT_EQ(runCase(*m, {1, 3}, 9, style(st), 4, false, alias), "");
    }
  }
}

// The norms add plain squares: overflow gives infinity, squares below the smallest number are
// lost; the trace of a 1 x 1 matrix is its element.
TEST(Reductions, NoScalingAgainstOverflow) {
  const float big = 1e30f, small = 1e-30f, inf = std::numeric_limits<float>::infinity();
  const float v3[3] = {big, 1, 1}, s3[3] = {small, 0, 0};
  float d = 0;
  ASSERT_EQ(tarnL2Norm_v_32f(v3, 4, &d, 3), tarnStatusOk);
  EXPECT_EQ(d, inf);
  ASSERT_EQ(tarnL2Norm_v_32f(s3, 4, &d, 3), tarnStatusOk);
  EXPECT_EQ(d, 0.0f);
  ASSERT_EQ(tarnFrobNorm_m_32f(v3, 12, 4, 3, 1, &d), tarnStatusOk);
  EXPECT_EQ(d, inf);
  const double w[4] = {1e200, 0, 0, 1};
  double e = 0;
  ASSERT_EQ(tarnL2Norm_v_64f(w, 8, &e, 4), tarnStatusOk);
  EXPECT_EQ(e, std::numeric_limits<double>::infinity());
  ASSERT_EQ(tarnTrace_m_64f(w, 8, 8, 1, &e), tarnStatusOk);
  EXPECT_EQ(e, 1e200);
}

// Orders other than 3 to 6 store the running sum after every addition: with dst on the diagonal
// of its own matrix, the diagonal element read after that store is the sum so far.
TEST(Reductions, TraceStoresTheRunningSum) {
  float m[7][7] = {};
  for (int k = 0; k < 7; ++k) m[k][k] = float(1 << k);  // 1, 2, 4, ..., 64
  ASSERT_EQ(tarnTrace_m_32f(&m[0][0], 28, 4, 7, &m[3][3]), tarnStatusOk);
  // 1 + 2 + 4 stored into (3, 3), then read back as 7: 7 + 7 + 16 + 32 + 64.
  EXPECT_EQ(m[3][3], 126.0f);
  ASSERT_EQ(tarnTrace_m_32f(&m[0][0], 28, 4, 4, &m[3][3]), tarnStatusOk);  // order 4 stores once
  EXPECT_EQ(m[3][3], 1 + 2 + 4 + 126.0f);
}

}  // namespace
}  // namespace tt
