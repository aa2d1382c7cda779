// Transform builders: the sine and cosine they share against long double, and every builder
// against a model typed from its element table (all 16 elements, operands on guarded pages).
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "fixed.hpp"
#include "ref/geometry_ref.hpp"
#include "tarn.h"

namespace tt {
namespace {

// Sine and cosine as every builder gets them, read back from RotationZ: m[0][0] = c, m[0][1] = s.
struct SC {
  float s, c;
};
SC sinCos(float a) {
  float m[16];
  tarnRotationZ_m4_32f(a, m);
  return {m[1], m[0]};
}

double ulpsOff(float got, long double want) {
  const float w = float(want);
  if (std::isnan(w) || std::isnan(got)) return std::isnan(w) && std::isnan(got) ? 0 : 1e9;
  const double ulp = std::fabs(double(std::nextafter(std::fabs(w), INFINITY)) - std::fabs(w));
  return double(std::fabs(got - want)) / std::max(ulp, 1.4e-45);
}

TEST(GeometryBuilders, SineAndCosineWithinOneUlpAtAnySize) {
  std::mt19937 rng(7);
  std::vector<float> angles = {0.0f, -0.0f, 1e-30f, -1e-40f, 0.78539819f, 0.78539813f, 1.5707964f, 3.1415927f,
                               -4.712389f, 16367173.0f * 0x1p72f, 0x1.99bc5cp+27f, 1e38f, -3.4028235e38f, 1e9f, 100.0f};
  for (int i = 0; i < 20000; ++i) {  // every binade from 2^-20 to the largest float
    const uint32_t exponent = uint32_t(107 + rng() % 148) << 23;  // drawn before the rest, on any compiler
    const uint32_t bits = exponent | (rng() & 0x807FFFFFu);
    float a;
    std::memcpy(&a, &bits, 4);
    angles.push_back(a);
  }
  for (float a : angles) {
    const SC sc = sinCos(a);
    ASSERT_LE(ulpsOff(sc.s, sinl(a)), 1.0) << std::hexfloat << a;
    ASSERT_LE(ulpsOff(sc.c, cosl(a)), 1.0) << std::hexfloat << a;
  }
  EXPECT_EQ(bitsOf(sinCos(-0.0f).s), bitsOf(-0.0f));
  for (float a : {NAN, INFINITY, -INFINITY}) EXPECT_TRUE(std::isnan(sinCos(a).s) && std::isnan(sinCos(a).c));
}

// Models typed from the element tables. k holds the scalar arguments in order; LookAt's eye, at
// and up are k[0..8], RotationAxis's axis k[0..2] and its angle k[3]. m starts as zeros.
void lookAtModel(const float* k, bool lh, float* m) {
  float d[3], z[3], side[3], x[3], y[3];
  auto normalize = [](const float* v, float* out) {
    const float len = std::sqrt(ref::dot(v, v, 3));
    for (int i = 0; i < 3; ++i) out[i] = v[i] / len;
  };
  auto cross = [](const float* a, const float* b, float* out) {
    out[0] = a[1] * b[2] - a[2] * b[1], out[1] = a[2] * b[0] - a[0] * b[2], out[2] = a[0] * b[1] - a[1] * b[0];
  };
  for (int i = 0; i < 3; ++i) d[i] = lh ? k[3 + i] - k[i] : k[i] - k[3 + i];
  normalize(d, z);
  cross(k + 6, z, side);
  normalize(side, x);
  cross(z, x, y);
  for (int r = 0; r < 3; ++r) m[4 * r] = x[r], m[4 * r + 1] = y[r], m[4 * r + 2] = z[r];
  m[12] = 0.0f - ref::dot(x, k, 3), m[13] = 0.0f - ref::dot(y, k, 3), m[14] = 0.0f - ref::dot(z, k, 3), m[15] = 1.0f;
}
// Ortho and OrthoOffCenter: k = w, h, n, f or l, r, b, t, n, f.
void orthoModel(const float* k, bool lh, bool offCenter, float* m) {
  const float n = k[offCenter ? 4 : 2], f = k[offCenter ? 5 : 3];
  m[0] = offCenter ? 2.0f / (k[1] - k[0]) : 2.0f / k[0];
  m[5] = offCenter ? 2.0f / (k[3] - k[2]) : 2.0f / k[1];
  if (offCenter) m[12] = (k[0] + k[1]) / (0.0f - (k[1] - k[0])), m[13] = (k[2] + k[3]) / (0.0f - (k[3] - k[2]));
  m[10] = lh ? 1.0f / (f - n) : 1.0f / (n - f);
  m[14] = lh ? n / (0.0f - (f - n)) : n / (n - f);
  m[15] = 1;
}
// Perspective (kind 0: w, h, n, f), PerspectiveOffCenter (1: l, r, b, t, n, f), PerspectiveFov
// (2: fovY, aspect, n, f).
void perspectiveModel(const float* k, bool lh, int kind, float* m) {
  const float n = k[kind == 1 ? 4 : 2], f = k[kind == 1 ? 5 : 3];
  if (kind == 0) m[0] = (n + n) / k[0], m[5] = (n + n) / k[1];
  if (kind == 1) {
    m[0] = (n + n) / (k[1] - k[0]), m[5] = (n + n) / (k[3] - k[2]);
    m[8] = lh ? (k[0] + k[1]) / (0.0f - (k[1] - k[0])) : (k[0] + k[1]) / (k[1] - k[0]);
    m[9] = lh ? (k[2] + k[3]) / (0.0f - (k[3] - k[2])) : (k[2] + k[3]) / (k[3] - k[2]);
  }
  if (kind == 2) {
    const SC sc = sinCos(k[0] * 0.5f);
    const float y = sc.c / sc.s;
    m[0] = y / k[1], m[5] = y;
  }
  m[10] = lh ? f / (f - n) : f / (n - f);
  m[11] = lh ? 1.0f : -1.0f;
  m[14] = !lh ? (n * f) / (n - f) : kind == 2 ? (0.0f - n * f) / (f - n) : (n * f) / (0.0f - (f - n));
}
void rotationModel(float angle, int axis, float* m) {  // about x, y or z
  const SC sc = sinCos(angle);
  const int i = (axis + 1) % 3, j = (axis + 2) % 3;
  m[5 * axis] = m[15] = 1.0f;
  m[5 * i] = m[5 * j] = sc.c;
  m[4 * i + j] = sc.s;
  m[4 * j + i] = 0.0f - sc.s;
}
void upperLeft(const float* r, float* m) {  // a 3x3 block and the identity around it
  for (int i = 0; i < 9; ++i) m[4 * (i / 3) + i % 3] = r[i];
  m[15] = 1;
}

using Call = std::function<tarnStatus(const std::string& name, const float* k, const float* v, float* d)>;
template <size_t>
using Float = float;
// A builder of N floats by value: k[0] to k[N-1].
template <size_t N>
tarnStatus byValue(const std::string& n, const float* k, const float*, float* d) {
  return [&]<size_t... I>(std::index_sequence<I...>) {
    return exported<tarnStatus (*)(Float<I>..., float*)>(n)(k[I]..., d);
  }(std::make_index_sequence<N>{});
}

struct Builder {
  std::string name;
  Call call;  // v: k on a guarded page
  std::function<void(const float* k, float* m)> model;
};
std::vector<Builder> builders() {
  std::vector<Builder> b;
  for (bool lh : {true, false}) {
    const std::string h = lh ? "LH" : "RH";
    b.push_back({"LookAt" + h,
                 [](const std::string& n, const float*, const float* v, float* d) {
                   return exported<tarnStatus (*)(const float*, const float*, const float*, float*)>(n)(v, v + 3, v + 6,
                                                                                                        d);
                 },
                 [lh](const float* k, float* m) { lookAtModel(k, lh, m); }});
    b.push_back({"Ortho" + h, byValue<4>, [lh](const float* k, float* m) { orthoModel(k, lh, false, m); }});
    b.push_back({"OrthoOffCenter" + h, byValue<6>, [lh](const float* k, float* m) { orthoModel(k, lh, true, m); }});
    b.push_back({"Perspective" + h, byValue<4>, [lh](const float* k, float* m) { perspectiveModel(k, lh, 0, m); }});
    b.push_back({"PerspectiveOffCenter" + h, byValue<6>, [lh](const float* k, float* m) { perspectiveModel(k, lh, 1, m); }});
    b.push_back({"PerspectiveFov" + h, byValue<4>, [lh](const float* k, float* m) { perspectiveModel(k, lh, 2, m); }});
  }
  for (int axis = 0; axis < 3; ++axis)
    b.push_back({std::string("Rotation") + "XYZ"[axis], byValue<1>,
                 [axis](const float* k, float* m) { rotationModel(k[0], axis, m); }});
  b.push_back({"RotationAxis",
               [](const std::string& n, const float* k, const float* v, float* d) {
                 return exported<tarnStatus (*)(const float*, float, float*)>(n)(v, k[3], d);
               },
               [](const float* k, float* m) {
                 const SC sc = sinCos(k[3]);
                 const float s = sc.s, c = sc.c, len = std::sqrt(ref::dot(k, k, 3)), x = k[0] / len, y = k[1] / len;
                 const float z = k[2] / len, u = 1.0f - c;
                 const float r[9] = {(u * x) * x + c,     (u * y) * x + s * z, (u * z) * x - s * y,
                                     (u * x) * y - s * z, (u * y) * y + c,     (u * z) * y + s * x,
                                     s * y + (u * x) * z, (u * y) * z - s * x, c + (u * z) * z};
                 upperLeft(r, m);
               }});
  b.push_back({"RotationYawPitchRoll", byValue<3>, [](const float* k, float* m) {
                 const SC y = sinCos(k[0]), p = sinCos(k[1]), r = sinCos(k[2]);
                 const float u[9] = {r.s * (y.s * p.s) + y.c * r.c, p.c * r.s, r.s * (p.s * y.c) - y.s * r.c,
                                     (y.s * p.s) * r.c - y.c * r.s, p.c * r.c, y.s * r.s + r.c * (p.s * y.c),
                                     y.s * p.c, 0.0f - p.s, y.c * p.c};
                 upperLeft(u, m);
               }});
  b.push_back({"Scaling", byValue<3>, [](const float* k, float* m) { m[0] = k[0], m[5] = k[1], m[10] = k[2], m[15] = 1; }});
  b.push_back({"Translation", byValue<3>, [](const float* k, float* m) {
                 m[0] = m[5] = m[10] = m[15] = 1, m[12] = k[0], m[13] = k[1], m[14] = k[2];
               }});
  return b;
}

TEST(GeometryBuilders, EveryElementAsItsTableSays) {
  std::mt19937 rng(72);
  Fixed dst(16), vecs(9);
  for (const Builder& b : builders()) {
    const std::string name = "tarn" + b.name + (b.name == "RotationAxis" ? "_v3m4_32f" : "_m4_32f");
    for (int trial = 0; trial < 200; ++trial) {
      // Nothing is checked: all zeros and all equal (a zero axis, eye at `at`, zNear at zFar,
      // left at right) go through the arithmetic to NaN and infinity like any input.
      float k[9], want[16] = {};
      for (float& x : k) x = trial == 0 ? 0.0f : trial == 1 ? 1.5f : value(rng, trial % 4 == 3);
      std::memcpy(vecs.p, k, sizeof k);
      std::memset(dst.p, 0xA5, 64);
      b.model(k, want);
      ASSERT_EQ(b.call(name, k, vecs.p, dst.p), tarnStatusOk) << name;
      ASSERT_TRUE(sameFloats(dst.p, want, 16)) << name << " trial " << trial;
    }
  }
  EXPECT_TRUE(dst.leadIntact() && vecs.leadIntact());
  float m[16];
  tarnRotationX_m4_32f(0.0f, m);
  EXPECT_EQ(bitsOf(m[9]), 0u);  // 0 - s is +0.0
}

}  // namespace
}  // namespace tt
