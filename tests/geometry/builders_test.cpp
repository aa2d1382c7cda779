// Transform builders: the sine and cosine they share against long double, every builder against
// a model typed from its element table (all 16 elements, operands on guarded pages), and the
// matrices against what they mean geometrically.
#include <functional>
#include <numbers>

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
  std::vector<float> angles = {0.0f, -0.0f, 1e-30f, -1e-40f, 0.78539819f, 0.78539813f, 1.5707964f, 3.1415927f, -4.712389f,
                               16367173.0f * 0x1p72f, 0x1.99bc5cp+27f, 1e38f, -3.4028235e38f, 1e9f, 100.0f};
  for (int i = 0; i < 20000; ++i) {  // every binade from 2^-20 to the largest float
    const uint32_t bits = (uint32_t(107 + rng() % 148) << 23) | (rng() & 0x807FFFFFu);
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

// Models: k holds the scalar arguments in order; LookAt's eye, at, up and RotationAxis's axis are
// k[0..8] and k[0..2]. m starts as zeros.
using Model = std::function<void(const float* k, float* m)>;
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
void rotationModel(float s, float c, int axis, float* m) {  // about x, y or z
  const int i = (axis + 1) % 3, j = (axis + 2) % 3;
  m[5 * axis] = m[15] = 1.0f;
  m[5 * i] = m[5 * j] = c;
  m[4 * i + j] = s;
  m[4 * j + i] = 0.0f - s;
}

struct Builder {
  const char* name;
  std::function<tarnStatus(const float* k, const float* v, float* d)> call;  // v: k on a guarded page
  Model model;
};
const Builder kBuilders[] = {
    {"LookAtLH", [](const float*, const float* v, float* d) { return tarnLookAtLH_m4_32f(v, v + 3, v + 6, d); },
     [](const float* k, float* m) { lookAtModel(k, true, m); }},
    {"LookAtRH", [](const float*, const float* v, float* d) { return tarnLookAtRH_m4_32f(v, v + 3, v + 6, d); },
     [](const float* k, float* m) { lookAtModel(k, false, m); }},
    {"OrthoLH", [](const float* k, const float*, float* d) { return tarnOrthoLH_m4_32f(k[0], k[1], k[2], k[3], d); },
     [](const float* k, float* m) {
       m[0] = 2.0f / k[0], m[5] = 2.0f / k[1], m[10] = 1.0f / (k[3] - k[2]), m[14] = k[2] / (0.0f - (k[3] - k[2])), m[15] = 1;
     }},
    {"OrthoRH", [](const float* k, const float*, float* d) { return tarnOrthoRH_m4_32f(k[0], k[1], k[2], k[3], d); },
     [](const float* k, float* m) {
       m[0] = 2.0f / k[0], m[5] = 2.0f / k[1], m[10] = 1.0f / (k[2] - k[3]), m[14] = k[2] / (k[2] - k[3]), m[15] = 1;
     }},
    {"OrthoOffCenterLH",
     [](const float* k, const float*, float* d) { return tarnOrthoOffCenterLH_m4_32f(k[0], k[1], k[2], k[3], k[4], k[5], d); },
     [](const float* k, float* m) {
       m[0] = 2.0f / (k[1] - k[0]), m[5] = 2.0f / (k[3] - k[2]), m[10] = 1.0f / (k[5] - k[4]);
       m[12] = (k[0] + k[1]) / (0.0f - (k[1] - k[0])), m[13] = (k[2] + k[3]) / (0.0f - (k[3] - k[2]));
       m[14] = k[4] / (0.0f - (k[5] - k[4])), m[15] = 1;
     }},
    {"OrthoOffCenterRH",
     [](const float* k, const float*, float* d) { return tarnOrthoOffCenterRH_m4_32f(k[0], k[1], k[2], k[3], k[4], k[5], d); },
     [](const float* k, float* m) {
       m[0] = 2.0f / (k[1] - k[0]), m[5] = 2.0f / (k[3] - k[2]), m[10] = 1.0f / (k[4] - k[5]);
       m[12] = (k[0] + k[1]) / (0.0f - (k[1] - k[0])), m[13] = (k[2] + k[3]) / (0.0f - (k[3] - k[2]));
       m[14] = k[4] / (k[4] - k[5]), m[15] = 1;
     }},
    {"PerspectiveLH", [](const float* k, const float*, float* d) { return tarnPerspectiveLH_m4_32f(k[0], k[1], k[2], k[3], d); },
     [](const float* k, float* m) {
       m[0] = (k[2] + k[2]) / k[0], m[5] = (k[2] + k[2]) / k[1], m[10] = k[3] / (k[3] - k[2]), m[11] = 1;
       m[14] = (k[2] * k[3]) / (0.0f - (k[3] - k[2]));
     }},
    {"PerspectiveRH", [](const float* k, const float*, float* d) { return tarnPerspectiveRH_m4_32f(k[0], k[1], k[2], k[3], d); },
     [](const float* k, float* m) {
       m[0] = (k[2] + k[2]) / k[0], m[5] = (k[2] + k[2]) / k[1], m[10] = k[3] / (k[2] - k[3]), m[11] = -1;
       m[14] = (k[2] * k[3]) / (k[2] - k[3]);
     }},
    {"PerspectiveOffCenterLH",
     [](const float* k, const float*, float* d) { return tarnPerspectiveOffCenterLH_m4_32f(k[0], k[1], k[2], k[3], k[4], k[5], d); },
     [](const float* k, float* m) {
       m[0] = (k[4] + k[4]) / (k[1] - k[0]), m[5] = (k[4] + k[4]) / (k[3] - k[2]);
       m[8] = (k[0] + k[1]) / (0.0f - (k[1] - k[0])), m[9] = (k[2] + k[3]) / (0.0f - (k[3] - k[2]));
       m[10] = k[5] / (k[5] - k[4]), m[11] = 1, m[14] = (k[4] * k[5]) / (0.0f - (k[5] - k[4]));
     }},
    {"PerspectiveOffCenterRH",
     [](const float* k, const float*, float* d) { return tarnPerspectiveOffCenterRH_m4_32f(k[0], k[1], k[2], k[3], k[4], k[5], d); },
     [](const float* k, float* m) {
       m[0] = (k[4] + k[4]) / (k[1] - k[0]), m[5] = (k[4] + k[4]) / (k[3] - k[2]);
       m[8] = (k[0] + k[1]) / (k[1] - k[0]), m[9] = (k[2] + k[3]) / (k[3] - k[2]);
       m[10] = k[5] / (k[4] - k[5]), m[11] = -1, m[14] = (k[4] * k[5]) / (k[4] - k[5]);
     }},
    {"PerspectiveFovLH", [](const float* k, const float*, float* d) { return tarnPerspectiveFovLH_m4_32f(k[0], k[1], k[2], k[3], d); },
     [](const float* k, float* m) {
       const SC sc = sinCos(k[0] * 0.5f);
       const float y = sc.c / sc.s;
       m[0] = y / k[1], m[5] = y, m[10] = k[3] / (k[3] - k[2]), m[11] = 1, m[14] = (0.0f - k[2] * k[3]) / (k[3] - k[2]);
     }},
    {"PerspectiveFovRH", [](const float* k, const float*, float* d) { return tarnPerspectiveFovRH_m4_32f(k[0], k[1], k[2], k[3], d); },
     [](const float* k, float* m) {
       const SC sc = sinCos(k[0] * 0.5f);
       const float y = sc.c / sc.s;
       m[0] = y / k[1], m[5] = y, m[10] = k[3] / (k[2] - k[3]), m[11] = -1, m[14] = (k[2] * k[3]) / (k[2] - k[3]);
     }},
    {"RotationX", [](const float* k, const float*, float* d) { return tarnRotationX_m4_32f(k[0], d); },
     [](const float* k, float* m) { rotationModel(sinCos(k[0]).s, sinCos(k[0]).c, 0, m); }},
    {"RotationY", [](const float* k, const float*, float* d) { return tarnRotationY_m4_32f(k[0], d); },
     [](const float* k, float* m) { rotationModel(sinCos(k[0]).s, sinCos(k[0]).c, 1, m); }},
    {"RotationZ", [](const float* k, const float*, float* d) { return tarnRotationZ_m4_32f(k[0], d); },
     [](const float* k, float* m) { rotationModel(sinCos(k[0]).s, sinCos(k[0]).c, 2, m); }},
    {"RotationAxis", [](const float* k, const float* v, float* d) { return tarnRotationAxis_v3m4_32f(v, k[3], d); },
     [](const float* k, float* m) {
       const SC sc = sinCos(k[3]);
       const float s = sc.s, c = sc.c, len = std::sqrt(ref::dot(k, k, 3)), x = k[0] / len, y = k[1] / len, z = k[2] / len;
       const float u = 1.0f - c;
       const float r[9] = {(u * x) * x + c,     (u * y) * x + s * z, (u * z) * x - s * y, (u * x) * y - s * z, (u * y) * y + c,
                           (u * z) * y + s * x, s * y + (u * x) * z, (u * y) * z - s * x, c + (u * z) * z};
       for (int i = 0; i < 9; ++i) m[4 * (i / 3) + i % 3] = r[i];
       m[15] = 1;
     }},
    {"RotationYawPitchRoll", [](const float* k, const float*, float* d) { return tarnRotationYawPitchRoll_m4_32f(k[0], k[1], k[2], d); },
     [](const float* k, float* m) {
       const float sy = sinCos(k[0]).s, cy = sinCos(k[0]).c, sp = sinCos(k[1]).s, cp = sinCos(k[1]).c;
       const float sr = sinCos(k[2]).s, cr = sinCos(k[2]).c;
       const float r[9] = {sr * (sy * sp) + cy * cr, cp * sr, sr * (sp * cy) - sy * cr, (sy * sp) * cr - cy * sr, cp * cr,
                           sy * sr + cr * (sp * cy), sy * cp, 0.0f - sp, cy * cp};
       for (int i = 0; i < 9; ++i) m[4 * (i / 3) + i % 3] = r[i];
       m[15] = 1;
     }},
    {"Scaling", [](const float* k, const float*, float* d) { return tarnScaling_m4_32f(k[0], k[1], k[2], d); },
     [](const float* k, float* m) { m[0] = k[0], m[5] = k[1], m[10] = k[2], m[15] = 1; }},
    {"Translation", [](const float* k, const float*, float* d) { return tarnTranslation_m4_32f(k[0], k[1], k[2], d); },
     [](const float* k, float* m) { m[0] = m[5] = m[10] = m[15] = 1, m[12] = k[0], m[13] = k[1], m[14] = k[2]; }},
};

TEST(GeometryBuilders, EveryElementAsItsTableSays) {
  std::mt19937 rng(72);
  Fixed dst(16), vecs(9);
  for (const Builder& b : kBuilders)
    for (int trial = 0; trial < 200; ++trial) {
      float k[9], want[16] = {};
      for (float& x : k) x = value(rng, trial % 4 == 3);
      std::memcpy(vecs.p, k, sizeof k);
      std::memset(dst.p, 0xA5, 64);
      b.model(k, want);
      ASSERT_EQ(b.call(k, vecs.p, dst.p), tarnStatusOk) << b.name;
      ASSERT_TRUE(sameFloats(dst.p, want, 16)) << b.name << " trial " << trial;
    }
  EXPECT_TRUE(dst.leadIntact() && vecs.leadIntact());
  float m[16];
  tarnRotationX_m4_32f(0.0f, m);
  EXPECT_EQ(bitsOf(m[9]), 0u);  // 0 - s is +0.0
}

// Row vector v times m, then divided by w.
void apply(const float* m, const float* v, float* out) { ref::coord(m, v, out, 3, false); }
void near(const float* got, std::initializer_list<float> want, float tol, const char* what) {
  int i = 0;
  for (float w : want) EXPECT_NEAR(got[i++], w, tol) << what << " element " << i - 1;
}

TEST(GeometryBuilders, MatricesDoWhatTheyAreFor) {
  const float pi2 = std::numbers::pi_v<float> / 2;
  float m[16], p[3];
  const float eye[3] = {1, 2, 3}, at[3] = {4, -2, 3}, up[3] = {0, 0, 1};  // |at - eye| = 5
  tarnLookAtLH_m4_32f(eye, at, up, m);
  apply(m, eye, p), near(p, {0, 0, 0}, 1e-6f, "LH eye");
  apply(m, at, p), near(p, {0, 0, 5}, 4e-6f, "LH at");
  tarnLookAtRH_m4_32f(eye, at, up, m);
  apply(m, at, p), near(p, {0, 0, -5}, 4e-6f, "RH at");
  const float ex[3] = {1, 0, 0}, ey[3] = {0, 1, 0}, ez[3] = {0, 0, 1}, axis[3] = {0, 0, 2};
  tarnRotationZ_m4_32f(pi2, m), apply(m, ex, p), near(p, {0, 1, 0}, 1e-7f, "RotationZ");
  tarnRotationX_m4_32f(pi2, m), apply(m, ey, p), near(p, {0, 0, 1}, 1e-7f, "RotationX");
  tarnRotationY_m4_32f(pi2, m), apply(m, ez, p), near(p, {1, 0, 0}, 1e-7f, "RotationY");
  tarnRotationAxis_v3m4_32f(axis, pi2, m), apply(m, ex, p), near(p, {0, 1, 0}, 1e-7f, "RotationAxis");
  tarnRotationYawPitchRoll_m4_32f(0, 0, pi2, m), apply(m, ex, p), near(p, {0, 1, 0}, 1e-7f, "roll");
  // Near and far planes to depths 0 and 1; right-handed views look down -z.
  const float n = 0.5f, f = 40.0f, nearL[3] = {0.1f, 0.2f, n}, farL[3] = {3, -1, f}, nearR[3] = {0.1f, 0.2f, -n},
              farR[3] = {3, -1, -f};
  auto depths = [&](const char* what, const float* lo, const float* hi) {
    apply(m, lo, p);
    EXPECT_NEAR(p[2], 0.0f, 1e-6f) << what;
    apply(m, hi, p);
    EXPECT_NEAR(p[2], 1.0f, 1e-6f) << what;
  };
  tarnPerspectiveLH_m4_32f(2, 1.5f, n, f, m), depths("PerspectiveLH", nearL, farL);
  tarnPerspectiveRH_m4_32f(2, 1.5f, n, f, m), depths("PerspectiveRH", nearR, farR);
  tarnPerspectiveFovLH_m4_32f(1.0f, 1.5f, n, f, m), depths("PerspectiveFovLH", nearL, farL);
  tarnPerspectiveFovRH_m4_32f(1.0f, 1.5f, n, f, m), depths("PerspectiveFovRH", nearR, farR);
  tarnPerspectiveOffCenterLH_m4_32f(-1, 2, -1, 1, n, f, m), depths("PerspectiveOffCenterLH", nearL, farL);
  tarnOrthoLH_m4_32f(4, 3, n, f, m), depths("OrthoLH", nearL, farL);
  tarnOrthoOffCenterRH_m4_32f(-1, 2, -1, 1, n, f, m), depths("OrthoOffCenterRH", nearR, farR);
  // The corner (r, t) of an off-centre near plane to the corner (1, 1) of the cube.
  const float corner[3] = {2, 1, n};
  tarnPerspectiveOffCenterLH_m4_32f(-1, 2, -1, 1, n, f, m), apply(m, corner, p), near(p, {1, 1, 0}, 1e-6f, "corner");
}

// Nothing is checked: degenerate input gives NaN or infinity with status 0, and the fixed
// elements stay.
TEST(GeometryBuilders, DegenerateInputGoesThroughTheArithmetic) {
  float m[16];
  const float zero[3] = {0, 0, 0}, eye[3] = {1, 1, 1}, up[3] = {0, 1, 0};
  ASSERT_EQ(tarnRotationAxis_v3m4_32f(zero, 0.3f, m), tarnStatusOk);
  for (int i = 0; i < 16; ++i) EXPECT_EQ(std::isnan(m[i]), i < 11 && i % 4 != 3) << i;
  EXPECT_EQ(m[15], 1.0f);
  ASSERT_EQ(tarnLookAtLH_m4_32f(eye, eye, up, m), tarnStatusOk);
  for (int i = 0; i < 15; ++i) EXPECT_EQ(std::isnan(m[i]), i % 4 != 3) << i;
  EXPECT_EQ(m[15], 1.0f);
  ASSERT_EQ(tarnOrthoLH_m4_32f(0, 1, 2, 2, m), tarnStatusOk);
  EXPECT_TRUE(std::isinf(m[0]) && std::isinf(m[10]));
}

}  // namespace
}  // namespace tt
