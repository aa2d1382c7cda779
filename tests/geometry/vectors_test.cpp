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

using V2 = tarnStatus (*)(const float*, const float*, float*);
using V1 = tarnStatus (*)(const float*, float*);
struct Exports {
  V2 add, sub, min, max, dot;
  tarnStatus (*mulC)(const float*, float, float*);
  V1 len, lenSqr, normalize;
  tarnStatus (*bary)(const float*, const float*, const float*, float, float, float*);
  tarnStatus (*hermite)(const float*, const float*, const float*, const float*, float, float*), (*catmull)(const float*, const float*, const float*, const float*, float, float*);
  tarnStatus (*lerp)(const float*, const float*, float, float*);
};
const Exports kExports[3] = {
    {tarnAdd_v2_32f, tarnSub_v2_32f, tarnMin_v2_32f, tarnMax_v2_32f, tarnDotProduct_v2_32f, tarnMulC_v2_32f, tarnLen_v2_32f,
     tarnLenSqr_v2_32f, tarnNormalize_v2_32f, tarnBaryCentric_v2_32f, tarnHermite_v2_32f, tarnInterpolationCatmullRom_v2_32f,
     tarnInterpolationLinear_v2_32f},
    {tarnAdd_v3_32f, tarnSub_v3_32f, tarnMin_v3_32f, tarnMax_v3_32f, tarnDotProduct_v3_32f, tarnMulC_v3_32f, tarnLen_v3_32f,
     tarnLenSqr_v3_32f, tarnNormalize_v3_32f, tarnBaryCentric_v3_32f, tarnHermite_v3_32f, tarnInterpolationCatmullRom_v3_32f,
     tarnInterpolationLinear_v3_32f},
    {tarnAdd_v4_32f, tarnSub_v4_32f, tarnMin_v4_32f, tarnMax_v4_32f, tarnDotProduct_v4_32f, tarnMulC_v4_32f, tarnLen_v4_32f,
     tarnLenSqr_v4_32f, tarnNormalize_v4_32f, tarnBaryCentric_v4_32f, tarnHermite_v4_32f, tarnInterpolationCatmullRom_v4_32f,
     tarnInterpolationLinear_v4_32f},
};

using Srcs = float* const*;
struct Case {
  const char* name;
  bool aliasSafe;  // dst may be src1
  std::function<tarnStatus(const Exports&, int n, Srcs s, const float* k, float* d)> call;
  std::function<int(int n, Srcs s, const float* k, float* d)> model;  // returns the floats written
};

int each(int n, float* d, const std::function<float(int)>& f) {
  for (int i = 0; i < n; ++i) d[i] = f(i);
  return n;
}

const Case kCases[] = {
    {"Add", true, [](const Exports& e, int, Srcs s, const float*, float* d) { return e.add(s[0], s[1], d); },
     [](int n, Srcs s, const float*, float* d) { return each(n, d, [&](int i) { return s[0][i] + s[1][i]; }); }},
    {"Sub", true, [](const Exports& e, int, Srcs s, const float*, float* d) { return e.sub(s[0], s[1], d); },
     [](int n, Srcs s, const float*, float* d) { return each(n, d, [&](int i) { return s[0][i] - s[1][i]; }); }},
    {"Min", true, [](const Exports& e, int, Srcs s, const float*, float* d) { return e.min(s[0], s[1], d); },
     [](int n, Srcs s, const float*, float* d) { return each(n, d, [&](int i) { return s[0][i] < s[1][i] ? s[0][i] : s[1][i]; }); }},
    {"Max", true, [](const Exports& e, int, Srcs s, const float*, float* d) { return e.max(s[0], s[1], d); },
     [](int n, Srcs s, const float*, float* d) { return each(n, d, [&](int i) { return s[0][i] > s[1][i] ? s[0][i] : s[1][i]; }); }},
    {"MulC", true, [](const Exports& e, int, Srcs s, const float* k, float* d) { return e.mulC(s[0], k[0], d); },
     [](int n, Srcs s, const float* k, float* d) { return each(n, d, [&](int i) { return s[0][i] * k[0]; }); }},
    {"InterpolationLinear", true, [](const Exports& e, int, Srcs s, const float* k, float* d) { return e.lerp(s[0], s[1], k[0], d); },
     [](int n, Srcs s, const float* k, float* d) { return each(n, d, [&](int i) { return s[0][i] + (s[1][i] - s[0][i]) * k[0]; }); }},
    {"BaryCentric", true, [](const Exports& e, int, Srcs s, const float* k, float* d) { return e.bary(s[0], s[1], s[2], k[0], k[1], d); },
     [](int n, Srcs s, const float* k, float* d) {
       return each(n, d, [&](int i) { return ((s[1][i] - s[0][i]) * k[0] + s[0][i]) + (s[2][i] - s[0][i]) * k[1]; });
     }},
    {"Hermite", true, [](const Exports& e, int, Srcs s, const float* k, float* d) { return e.hermite(s[0], s[1], s[2], s[3], k[0], d); },
     [](int n, Srcs s, const float* k, float* d) { return ref::hermite(s[0], s[1], s[2], s[3], k[0], d, n), n; }},
    {"InterpolationCatmullRom", true,
     [](const Exports& e, int, Srcs s, const float* k, float* d) { return e.catmull(s[0], s[1], s[2], s[3], k[0], d); },
     [](int n, Srcs s, const float* k, float* d) {
       float t1[4], t2[4];
       for (int i = 0; i < n; ++i) t1[i] = (s[2][i] - s[0][i]) * 0.5f, t2[i] = (s[3][i] - s[1][i]) * 0.5f;
       return ref::hermite(s[1], t1, s[2], t2, k[0], d, n), n;
     }},
    {"DotProduct", false, [](const Exports& e, int, Srcs s, const float*, float* d) { return e.dot(s[0], s[1], d); },
     [](int n, Srcs s, const float*, float* d) { return *d = ref::dot(s[0], s[1], n), 1; }},
    {"LenSqr", false, [](const Exports& e, int, Srcs s, const float*, float* d) { return e.lenSqr(s[0], d); },
     [](int n, Srcs s, const float*, float* d) { return *d = ref::dot(s[0], s[0], n), 1; }},
    {"Len", false, [](const Exports& e, int, Srcs s, const float*, float* d) { return e.len(s[0], d); },
     [](int n, Srcs s, const float*, float* d) { return *d = std::sqrt(ref::dot(s[0], s[0], n)), 1; }},
    {"Normalize", true, [](const Exports& e, int, Srcs s, const float*, float* d) { return e.normalize(s[0], d); },
     [](int n, Srcs s, const float*, float* d) {
       const float* v = s[0];  // the 4-vector adds x last
       const float sq = n == 4 ? ((v[1] * v[1] + v[2] * v[2]) + v[3] * v[3]) + v[0] * v[0] : ref::dot(v, v, n);
       const float len = std::sqrt(sq);
       float t[4];
       for (int i = 0; i < n; ++i) t[i] = v[i] / len;
       return each(n, d, [&](int i) { return t[i]; });
     }},
    {"CrossProduct", true,
     [](const Exports&, int n, Srcs s, const float*, float* d) {
       return n == 2 ? tarnCrossProduct_v2_32f(s[0], s[1], d)
                     : n == 3 ? tarnCrossProduct_v3_32f(s[0], s[1], d) : tarnCrossProduct_v4_32f(s[0], s[1], s[2], d);
     },
     [](int n, Srcs s, const float*, float* d) {
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
     }},
};

TEST(GeometryVectors, EveryMemberAgainstItsModel) {
  std::mt19937 rng(16);
  for (int n = 2; n <= 4; ++n) {
    Fixed src[4] = {Fixed(n), Fixed(n), Fixed(n), Fixed(n)}, dst(n), one(1);
    for (const Case& c : kCases) {
      int outLen = 0;
      for (int trial = 0; trial < 300; ++trial) {
        const bool alias = trial % 3 == 2 && c.aliasSafe && (n > 2 || std::string(c.name) != "CrossProduct");
        float in[4][4], k[2] = {value(rng) * 0.5f, value(rng) * 0.5f}, want[4] = {};
        for (auto& v : in)
          for (float& x : v) x = value(rng, trial % 2 == 1);
        for (int i = 0; i < 4; ++i) std::memcpy(src[i].p, in[i], sizeof(float) * size_t(n));
        float* const model[4] = {alias ? want : in[0], in[1], in[2], in[3]};
        if (alias) std::memcpy(want, in[0], sizeof want);
        outLen = c.model(n, model, k, want);
        float* out = alias ? src[0].p : outLen == 1 ? one.p : dst.p;
        float* const s[4] = {src[0].p, src[1].p, src[2].p, src[3].p};
        ASSERT_EQ(c.call(kExports[n - 2], n, s, k, out), tarnStatusOk);
        ASSERT_TRUE(sameFloats(out, want, outLen)) << c.name << " v" << n << (alias ? " dst over src1" : "") << " trial " << trial;
        for (int i = alias ? 1 : 0; i < 4; ++i) ASSERT_EQ(std::memcmp(src[i].p, in[i], sizeof(float) * size_t(n)), 0) << c.name;
      }
      for (const Fixed* f : {&src[0], &src[1], &src[2], &src[3], &dst, &one}) EXPECT_TRUE(f->leadIntact()) << c.name << " v" << n;
    }
  }
}

// Minimum and maximum are a < b ? a : b and a > b ? a : b: src2's element on NaN or two zeros.
TEST(GeometryVectors, MinMaxTakeSrc2OnNaNAndZeros) {
  struct Row {
    V2 fn;
    float a, b, want;
  } const rows[] = {
      {tarnMax_v2_32f, 0.0f, -0.0f, -0.0f}, {tarnMin_v2_32f, -0.0f, 0.0f, 0.0f}, {tarnMin_v3_32f, NAN, 1.0f, 1.0f},
      {tarnMax_v4_32f, NAN, -2.0f, -2.0f},  {tarnMax_v3_32f, 1.0f, NAN, NAN},    {tarnMin_v4_32f, 2.0f, 1.0f, 1.0f},
  };
  for (const Row& r : rows) {
    const float a[4] = {r.a, r.a, r.a, r.a}, b[4] = {r.b, r.b, r.b, r.b};
    float d[4];
    r.fn(a, b, d);
    EXPECT_TRUE(sameFloats(d, &r.want, 1)) << r.a << " " << r.b;
  }
}

}  // namespace
}  // namespace tt
