// Geometry workloads: point clouds through a 4x4 matrix, and the per-call 4x4 and vector members.
//
//   tarnAffineTransformCoord_m4v3a_32f  packed 3D points, row vectors, divided by w'
//   tarnAffineTransform3DH_mva_32f      packed 3D points, columns, the guarded division (1 and 2 threads)
//   tarnMul_mm4x4_32f, tarnInvert_m4_32f, tarnNormalize_v3_32f   one call per object, 1000 objects
//
// Contenders: tarn; plain, the loop written in the member's own order (its result must equal
// tarn's bit for bit); glm with its packed types; glm-simd, glm's aligned types with its SSE code
// (GLM_FORCE_INTRINSICS), where glm has one for the operation. glm sums in its own order, so its
// results are checked against the plain loop to a relative 1e-5. glm's matrices are column-major:
// tarn's row-major matrix for row vectors is, in the same memory, glm's matrix for columns.
#define GLM_FORCE_INTRINSICS
#include <omp.h>
#include <tarn.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <glm/glm.hpp>
#include <glm/gtc/type_aligned.hpp>
#include <random>
#include <string>
#include <vector>

#include "support.hpp"

namespace {

using tarnbench::Buf;

struct Batch {
  int32_t n;
  Buf src, dst;
  std::vector<float> expect;
  alignas(16) float m[16];
  float* s() const { return src.as<float>(); }
  float* d() const { return dst.as<float>(); }
};

// A camera (LookAt times a perspective) for the row-vector transforms; its transpose for 3DH.
void camera(float* m, bool columns) {
  const float eye[3] = {3, 2, -12}, at[3] = {0, 0, 0}, up[3] = {0, 1, 0};
  float view[16], proj[16], vp[16];
  tarnLookAtLH_m4_32f(eye, at, up, view);
  tarnPerspectiveFovLH_m4_32f(0.8f, 1.5f, 0.5f, 100.0f, proj);
  tarnMul_mm4x4_32f(view, proj, vp);
  for (int i = 0; i < 16; ++i) m[i] = columns ? vp[4 * (i % 4) + i / 4] : vp[i];
}

void fillRandom(float* p, size_t k, float lo, float hi, unsigned seed) {
  std::mt19937 rng(seed);
  std::uniform_real_distribution<float> u(lo, hi);
  for (size_t i = 0; i < k; ++i) p[i] = u(rng);
}

// ---- Point clouds ---------------------------------------------------------------------------

void points(Batch& b, bool columns) {
  camera(b.m, columns);
  fillRandom(b.s(), size_t(b.n) * 3, -5, 5, 7);  // in front of the camera
}

void coordPlain(const Batch& b) {
  const float* m = b.m;
  for (int32_t k = 0; k < b.n; ++k) {
    const float *p = b.s() + 3 * size_t(k), x = p[0], y = p[1], z = p[2];
    const float w = ((m[7] * y + m[15]) + m[11] * z) + m[3] * x;
    float* q = b.d() + 3 * size_t(k);
    q[0] = (((m[4] * y + m[12]) + m[8] * z) + m[0] * x) / w;
    q[1] = (((m[1] * x + m[13]) + m[5] * y) + m[9] * z) / w;
    q[2] = (((m[2] * x + m[14]) + m[6] * y) + m[10] * z) / w;
  }
}

void h3dPlain(const Batch& b) {
  const float* m = b.m;
  for (int32_t k = 0; k < b.n; ++k) {
    const float *p = b.s() + 3 * size_t(k), x = p[0], y = p[1], z = p[2];
    float t[4];
    for (int r = 0; r < 4; ++r) t[r] = (x * m[4 * r] + y * m[4 * r + 1]) + (z * m[4 * r + 2] + m[4 * r + 3]);
    float* q = b.d() + 3 * size_t(k);
    const bool ok = std::fabs(t[3]) > 1.1754944e-38f;
    const float inv = 1.0f / t[3];
    for (int i = 0; i < 3; ++i) q[i] = ok ? t[i] * inv : 3.4028235e38f;
  }
}

// glm: G = the batch's matrix as glm reads it; rows (Coord) or columns (3DH) become columns.
template <class Mat, class V4>
void glmPoints(const Batch& b, bool h3d) {
  Mat g;
  std::memcpy(&g, b.m, 64);
  if (h3d) g = glm::transpose(g);
  for (int32_t k = 0; k < b.n; ++k) {
    const float* p = b.s() + 3 * size_t(k);
    const V4 r = g * V4(p[0], p[1], p[2], 1.0f);
    float* q = b.d() + 3 * size_t(k);
    if (h3d && !(std::fabs(r.w) > 1.1754944e-38f)) {
      q[0] = q[1] = q[2] = 3.4028235e38f;
      continue;
    }
    const V4 o = h3d ? r * (1.0f / r.w) : r / r.w;
    q[0] = o.x, q[1] = o.y, q[2] = o.z;
  }
}

// ---- Per call -------------------------------------------------------------------------------

void mulPlain(const Batch& b) {
  for (int32_t k = 0; k < b.n; ++k) {
    const float *x = b.s() + 32 * size_t(k), *y = x + 16;
    float* d = b.d() + 16 * size_t(k);
    for (int i = 0; i < 4; ++i)
      for (int j = 0; j < 4; ++j)
        d[4 * i + j] =
            ((x[4 * i] * y[j] + x[4 * i + 1] * y[4 + j]) + x[4 * i + 2] * y[8 + j]) + x[4 * i + 3] * y[12 + j];
  }
}

void invertOne(const float* src, float* dst) {  // Gauss-Jordan, pivot along the row
  float a[4][4], r[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
  std::memcpy(a, src, 64);
  int p[4] = {0, 1, 2, 3};
  for (int k = 0; k < 4; ++k) {
    int best = k;
    for (int j = k + 1; j < 4; ++j)
      if (std::fabs(a[k][p[j]]) > std::fabs(a[k][p[best]])) best = j;
    const float piv = a[k][p[best]];
    if (std::fabs(piv) < 1.4305115e-6f) return;
    std::swap(p[k], p[best]);
    for (int c = 0; c < 4; ++c) a[k][c] /= piv, r[k][c] /= piv;
    for (int i = 0; i < 4; ++i) {
      if (i == k) continue;
      const float f = a[i][p[k]];
      for (int c = 0; c < 4; ++c) a[i][c] -= a[k][c] * f, r[i][c] -= f * r[k][c];
    }
  }
  for (int i = 0; i < 4; ++i) std::memcpy(dst + 4 * p[i], r[i], 16);
}

void invertPlain(const Batch& b) {
  for (int32_t k = 0; k < b.n; ++k) invertOne(b.s() + 16 * size_t(k), b.d() + 16 * size_t(k));
}

void normalizePlain(const Batch& b) {
  for (int32_t k = 0; k < b.n; ++k) {
    const float* p = b.s() + 3 * size_t(k);
    const float len = std::sqrt((p[0] * p[0] + p[1] * p[1]) + p[2] * p[2]);
    for (int i = 0; i < 3; ++i) b.d()[3 * size_t(k) + i] = p[i] / len;
  }
}

template <class Mat>
void glmMul(const Batch& b) {
  for (int32_t k = 0; k < b.n; ++k) {
    Mat x, y;
    std::memcpy(&x, b.s() + 32 * size_t(k), 64);
    std::memcpy(&y, b.s() + 32 * size_t(k) + 16, 64);
    const Mat d = y * x;  // (x*y) in row-major memory
    std::memcpy(b.d() + 16 * size_t(k), &d, 64);
  }
}

template <class Mat>
void glmInvert(const Batch& b) {
  for (int32_t k = 0; k < b.n; ++k) {
    Mat x;
    std::memcpy(&x, b.s() + 16 * size_t(k), 64);
    const Mat d = glm::inverse(x);
    std::memcpy(b.d() + 16 * size_t(k), &d, 64);
  }
}

// ---- Workloads ------------------------------------------------------------------------------

struct Contender {
  std::string name;
  std::function<void(const Batch&)> call;
};
struct Workload {
  std::string name;
  std::vector<int32_t> sizes;
  double bytesPerObj;
  int srcFloats, dstFloats;
  std::function<void(Batch&)> setup;  // sources and matrix
  std::function<void(const Batch&)> model;
  std::vector<Contender> contenders;
  bool threaded = false;
};

bool close(const std::vector<float>& got, const std::vector<float>& want) {
  for (size_t i = 0; i < got.size(); ++i)
    if (!(std::fabs(got[i] - want[i]) <= 1e-5f * std::max(1.0f, std::fabs(want[i])))) return false;
  return true;
}

void runOne(benchmark::State& st, const Workload& wl, const Contender& k, int32_t n, int threads) {
  Batch b{n, Buf(size_t(n) * wl.srcFloats * 4), Buf(size_t(n) * wl.dstFloats * 4), {}, {}};
  wl.setup(b);
  const size_t out = size_t(n) * wl.dstFloats;
  wl.model(b);
  b.expect.assign(b.d(), b.d() + out);
  std::memset(b.d(), 0xff, out * 4);
  k.call(b);
  const std::vector<float> got(b.d(), b.d() + out);
  const bool exact = k.name == "tarn" || k.name == "plain";
  if (exact ? std::memcmp(got.data(), b.expect.data(), out * 4) != 0 : !close(got, b.expect)) {
    st.SkipWithError("result differs from the plain loop");
    return;
  }
  const int saved = omp_get_max_threads();
  omp_set_num_threads(threads);
  tarnbench::timeCalls(st, n, wl.bytesPerObj, [&] { k.call(b); });
  omp_set_num_threads(saved);
}

std::vector<Workload> workloads() {
  using glm::aligned_mat4, glm::aligned_vec4, glm::mat4, glm::vec4;
  const std::vector<int32_t> clouds = {2000, 100000, 1000000}, calls = {1000};
  return {
      {"tarnAffineTransformCoord_m4v3a_32f/v3",
       clouds,
       24,
       3,
       3,
       [](Batch& b) { points(b, false); },
       coordPlain,
       {{"tarn", [](const Batch& b) { tarnAffineTransformCoord_m4v3a_32f(b.m, b.s(), 12, b.d(), 12, b.n); }},
        {"plain", coordPlain},
        {"glm", [](const Batch& b) { glmPoints<mat4, vec4>(b, false); }},
        {"glm-simd", [](const Batch& b) { glmPoints<aligned_mat4, aligned_vec4>(b, false); }}}},
      {"tarnAffineTransform3DH_mva_32f/v3",
       clouds,
       24,
       3,
       3,
       [](Batch& b) { points(b, true); },
       h3dPlain,
       {{"tarn", [](const Batch& b) { tarnAffineTransform3DH_mva_32f(b.m, 16, 4, b.s(), 12, 4, b.d(), 12, 4, b.n); }},
        {"plain", h3dPlain},
        {"glm", [](const Batch& b) { glmPoints<mat4, vec4>(b, true); }},
        {"glm-simd", [](const Batch& b) { glmPoints<aligned_mat4, aligned_vec4>(b, true); }}},
       true},
      {"tarnMul_mm4x4_32f/4x4",
       calls,
       192,
       32,
       16,
       [](Batch& b) { fillRandom(b.s(), size_t(b.n) * 32, -1, 1, 8); },
       mulPlain,
       {{"tarn",
         [](const Batch& b) {
           for (int32_t k = 0; k < b.n; ++k)
             tarnMul_mm4x4_32f(b.s() + 32 * size_t(k), b.s() + 32 * size_t(k) + 16, b.d() + 16 * size_t(k));
         }},
        {"plain", mulPlain},
        {"glm", glmMul<mat4>},
        {"glm-simd", glmMul<aligned_mat4>}}},
      {"tarnInvert_m4_32f/4x4",
       calls,
       128,
       16,
       16,
       [](Batch& b) {
         fillRandom(b.s(), size_t(b.n) * 16, -1, 1, 9);
         for (int32_t k = 0; k < b.n; ++k)
           for (int i = 0; i < 4; ++i) b.s()[16 * size_t(k) + 5 * i] += 4.0f;  // well conditioned
       },
       invertPlain,
       {{"tarn",
         [](const Batch& b) {
           for (int32_t k = 0; k < b.n; ++k) tarnInvert_m4_32f(b.s() + 16 * size_t(k), nullptr, b.d() + 16 * size_t(k));
         }},
        {"plain", invertPlain},
        {"glm", glmInvert<mat4>},
        {"glm-simd", glmInvert<aligned_mat4>}}},
      {"tarnNormalize_v3_32f/v3",
       calls,
       24,
       3,
       3,
       [](Batch& b) { fillRandom(b.s(), size_t(b.n) * 3, -10, 10, 10); },
       normalizePlain,
       {{"tarn",
         [](const Batch& b) {
           for (int32_t k = 0; k < b.n; ++k) tarnNormalize_v3_32f(b.s() + 3 * size_t(k), b.d() + 3 * size_t(k));
         }},
        {"plain", normalizePlain},
        {"glm",
         [](const Batch& b) {
           for (int32_t k = 0; k < b.n; ++k) {
             const float* p = b.s() + 3 * size_t(k);
             const glm::vec3 v = glm::normalize(glm::vec3(p[0], p[1], p[2]));
             std::memcpy(b.d() + 3 * size_t(k), &v, 12);
           }
         }}}},
  };
}

const int kRegistered = [] {
  static const std::vector<Workload> kWorkloads = workloads();
  for (const Workload& wl : kWorkloads)
    for (int32_t n : wl.sizes)
      for (const Contender& k : wl.contenders)
        for (int t : {1, 2}) {
          if (t == 2 && !(wl.threaded && k.name == "tarn")) continue;
          const std::string name = wl.name + "/N:" + std::to_string(n) + "/" + k.name + "/T:" + std::to_string(t);
          tarnbench::registerBench(name, [&wl, &k, n, t](benchmark::State& st) { runOne(st, wl, k, n, t); });
        }
  return 0;
}();

}  // namespace
