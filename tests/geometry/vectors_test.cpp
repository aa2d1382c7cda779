// Fixed 2-, 3- and 4-vectors against plain models of their stated sums, with exceptional
// values, every operand at the end of a guarded page, and dst over src1 where that is allowed
// (the 3-vector cross product then shows its in-order writes).
#include <functional>
#include <string>

#include "fixed.hpp"
#include "ref/geometry_ref.hpp"
#include "tarn.h"

namespace tt {
namespace {

using Srcs = float* const*;
using F = const float*;
struct Case {
  const char* family;
  bool aliasSafe;  // dst may be src1
  int srcs;        // source vectors (the 4-vector cross product takes one more); a float is k[0]
  std::function<int(int n, Srcs s, const float* k, float* d)> model;  // returns the floats written
  bool twoFloats = false;  // k[0] and k[1], which the shared table would make equal
};

// The export of family and size n through the shared fixed-size table: sources, dst, scalar.
tarnStatus call(const Case& c, const std::string& name, int n, Srcs s, const float* k, float* d) {
  if (c.twoFloats) return exported<tarnStatus (*)(F, F, F, float, float, float*)>(name)(s[0], s[1], s[2], k[0], k[1], d);
  FixedArgs a;
  const int srcs = c.srcs + (n == 4 && std::string(c.family) == "CrossProduct");
  for (int i = 0; i < srcs; ++i) a.floats[i] = s[i];
  a.floats[srcs] = d;
  a.value = k[0];
  for (const FixedFn& f : fixedCalls())
    if (name == f.name) return f.call(a);
  ADD_FAILURE() << "no export " << name;
  return -1;
}
int each(int n, float* d, const std::function<float(int)>& f) {
  float t[4];  // every element before the first store, as dst may be src1
  for (int i = 0; i < n; ++i) t[i] = f(i);
  std::memcpy(d, t, sizeof(float) * size_t(n));
  return n;
}
int catmullRom(int n, Srcs s, const float* k, float* d) {
  float t1[4], t2[4];
  for (int i = 0; i < n; ++i) t1[i] = (s[2][i] - s[0][i]) * 0.5f, t2[i] = (s[3][i] - s[1][i]) * 0.5f;
  return ref::hermite(s[1], t1, s[2], t2, k[0], d, n), n;
}
int cross(int n, Srcs s, const float*, float* d) {
  const float *a = s[0], *b = s[1], *c = s[2];
  if (n == 2) return d[0] = a[0] * b[1] - a[1] * b[0], 1;
  if (n == 3) {  // in order, each element from the sources as they then are
    d[0] = a[1] * b[2] - a[2] * b[1];
    d[1] = a[2] * b[0] - a[0] * b[2];
    d[2] = a[0] * b[1] - a[1] * b[0];
    return 3;
  }
  const float t1 = b[2] * c[3] - b[3] * c[2], t2 = c[3] * b[1] - b[3] * c[1], t3 = c[2] * b[1] - b[2] * c[1];
  const float t4 = c[3] * b[0] - b[3] * c[0], t5 = c[2] * b[0] - b[2] * c[0], t6 = c[1] * b[0] - b[1] * c[0];
  const float r[4] = {(t1 * a[1] - t2 * a[2]) + t3 * a[3], 0.0f - ((t1 * a[0] - t4 * a[2]) + t5 * a[3]),
                      (t2 * a[0] - t4 * a[1]) + t6 * a[3], 0.0f - ((t3 * a[0] - t5 * a[1]) + t6 * a[2])};
  return each(4, d, [&](int i) { return r[i]; });
}

const Case kCases[] = {
    {"Add", true, 2,
     [](int n, Srcs s, const float*, float* d) { return each(n, d, [&](int i) { return s[0][i] + s[1][i]; }); }},
    {"Sub", true, 2,
     [](int n, Srcs s, const float*, float* d) { return each(n, d, [&](int i) { return s[0][i] - s[1][i]; }); }},
    {"Min", true, 2,
     [](int n, Srcs s, const float*, float* d) {
       return each(n, d, [&](int i) { return s[0][i] < s[1][i] ? s[0][i] : s[1][i]; });
     }},
    {"Max", true, 2,
     [](int n, Srcs s, const float*, float* d) {
       return each(n, d, [&](int i) { return s[0][i] > s[1][i] ? s[0][i] : s[1][i]; });
     }},
    {"MulC", true, 1,
     [](int n, Srcs s, const float* k, float* d) { return each(n, d, [&](int i) { return s[0][i] * k[0]; }); }},
    {"InterpolationLinear", true, 2,
     [](int n, Srcs s, const float* k, float* d) {
       return each(n, d, [&](int i) { return s[0][i] + (s[1][i] - s[0][i]) * k[0]; });
     }},
    {"BaryCentric", true, 3,
     [](int n, Srcs s, const float* k, float* d) {
       return each(n, d, [&](int i) { return ((s[1][i] - s[0][i]) * k[0] + s[0][i]) + (s[2][i] - s[0][i]) * k[1]; });
     },
     true},
    {"Hermite", true, 4,
     [](int n, Srcs s, const float* k, float* d) { return ref::hermite(s[0], s[1], s[2], s[3], k[0], d, n), n; }},
    {"InterpolationCatmullRom", true, 4, catmullRom},
    {"DotProduct", false, 2, [](int n, Srcs s, const float*, float* d) { return *d = ref::dot(s[0], s[1], n), 1; }},
    {"LenSqr", false, 1, [](int n, Srcs s, const float*, float* d) { return *d = ref::dot(s[0], s[0], n), 1; }},
    {"Len", false, 1,
     [](int n, Srcs s, const float*, float* d) { return *d = std::sqrt(ref::dot(s[0], s[0], n)), 1; }},
    {"Normalize", true, 1,
     [](int n, Srcs s, const float*, float* d) {
       const float* v = s[0];  // the 4-vector adds x last
       const float len =
           std::sqrt(n == 4 ? ((v[1] * v[1] + v[2] * v[2]) + v[3] * v[3]) + v[0] * v[0] : ref::dot(v, v, n));
       return each(n, d, [&](int i) { return v[i] / len; });
     }},
    {"CrossProduct", true, 2, cross},
};

TEST(GeometryVectors, EveryMemberAgainstItsModel) {
  std::mt19937 rng(16);
  for (int n = 2; n <= 4; ++n) {
    Fixed src[4] = {Fixed(n), Fixed(n), Fixed(n), Fixed(n)}, dst(n), scalar(1);
    for (const Case& c : kCases) {
      const std::string name = "tarn" + std::string(c.family) + "_v" + std::to_string(n) + "_32f";
      for (int trial = 0; trial < 300; ++trial) {
        const bool alias = trial % 3 == 2 && c.aliasSafe && !(n == 2 && name.find("Cross") != std::string::npos);
        float in[4][4], k[2] = {value(rng) * 0.5f, value(rng) * 0.5f}, want[4] = {};
        for (auto& v : in)
          for (float& x : v) x = value(rng, trial % 2 == 1);
        for (int i = 0; i < 4; ++i) std::memcpy(src[i].p, in[i], sizeof(float) * size_t(n));
        if (alias) std::memcpy(want, in[0], sizeof want);
        float* const model[4] = {alias ? want : in[0], in[1], in[2], in[3]};
        const int outLen = c.model(n, model, k, want);
        float* out = alias ? src[0].p : outLen == 1 ? scalar.p : dst.p;
        float* const s[4] = {src[0].p, src[1].p, src[2].p, src[3].p};
        ASSERT_EQ(call(c, name, n, s, k, out), tarnStatusOk);
        ASSERT_TRUE(sameFloats(out, want, outLen)) << name << (alias ? " dst over src1" : "") << " trial " << trial;
        for (int i = alias ? 1 : 0; i < 4; ++i)
          ASSERT_EQ(std::memcmp(src[i].p, in[i], sizeof(float) * size_t(n)), 0) << name;
      }
      for (const Fixed* f : {&src[0], &src[1], &src[2], &src[3], &dst, &scalar})
        EXPECT_TRUE(f->leadIntact()) << c.family << n;
    }
  }
}

// a < b ? a : b and a > b ? a : b: src2's element on a NaN or on two zeros.
TEST(GeometryVectors, MinMaxTakeSrc2OnNaNAndZeros) {
  const struct {
    const char* name;
    float a, b, want;
  } rows[] = {{"tarnMax_v2_32f", 0.0f, -0.0f, -0.0f},
              {"tarnMin_v3_32f", -0.0f, 0.0f, 0.0f},
              {"tarnMin_v4_32f", NAN, 1.0f, 1.0f},
              {"tarnMax_v3_32f", 1.0f, NAN, NAN},
              {"tarnMax_v4_32f", NAN, -2.0f, -2.0f}};
  for (const auto& r : rows) {
    const float a[4] = {r.a, r.a, r.a, r.a}, b[4] = {r.b, r.b, r.b, r.b};
    float d[4];
    exported<tarnStatus (*)(F, F, float*)>(r.name)(a, b, d);
    EXPECT_TRUE(sameFloats(d, &r.want, 1)) << r.name;
  }
}

}  // namespace
}  // namespace tt
