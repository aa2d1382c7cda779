// Plain models of the geometry members: scalar float code in the stated order of operations,
// matrices as m[4*r + c].
#pragma once

#include <cmath>
#include <cstring>

namespace tt::ref {

// ---- Vectors of n elements ----------------------------------------------------------------
inline float dot(const float* a, const float* b, int n) {
  float s = a[0] * b[0];
  for (int i = 1; i < n; ++i) s = s + a[i] * b[i];
  return s;
}
inline void hermite(const float* p1, const float* t1, const float* p2, const float* t2, float s, float* d, int n) {
  const float s2 = s * s, s3 = s2 * s;
  const float h1 = float(((double(s) - s2) - s2) + s3), h2 = float((double(s3) - 3.0 * s2) + s3),
              h3 = float(double(s3) - s2);
  for (int i = 0; i < n; ++i) {
    const float lead = (p1[i] - p2[i]) * h2, tail = (p1[i] + t1[i] * h1) + t2[i] * h3;
    d[i] = lead + tail;
  }
}

// ---- 4x4 ------------------------------------------------------------------------------------
inline void mul(const float* a, const float* b, float* d) {
  float t[16];
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j)
      t[4 * i + j] = ((a[4 * i] * b[j] + a[4 * i + 1] * b[4 + j]) + a[4 * i + 2] * b[8 + j]) + a[4 * i + 3] * b[12 + j];
  std::memcpy(d, t, sizeof t);
}

// Gauss-Jordan, pivot along the row among unused columns, strictly larger wins.
inline int invert(const float* src, float* det, float* dst) {
  float a[4][4], b[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
  std::memcpy(a, src, sizeof a);
  int p[4] = {0, 1, 2, 3};
  float d = 1.0f;
  for (int k = 0; k < 4; ++k) {
    int best = k;
    for (int j = k + 1; j < 4; ++j)
      if (std::fabs(a[k][p[j]]) > std::fabs(a[k][p[best]])) best = j;
    const float piv = a[k][p[best]];
    if (std::fabs(piv) < 1.4305115e-6f) {
      if (det) *det = 0.0f;
      return -195;
    }
    std::swap(p[k], p[best]);
    for (int c = 0; c < 4; ++c) {
      a[k][c] = a[k][c] / piv;
      b[k][c] = b[k][c] / piv;
    }
    d = d * piv;
    for (int i = 0; i < 4; ++i) {
      if (i == k) continue;
      const float f = a[i][p[k]];
      for (int j = k; j < 4; ++j) a[i][p[j]] = a[i][p[j]] - a[k][p[j]] * f;
      for (int c = 0; c < 4; ++c) b[i][c] = b[i][c] - f * b[k][c];
    }
  }
  for (int i = 0; i < 4; ++i) std::memcpy(dst + 4 * p[i], b[i], 16);
  int odd = 0;
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < i; ++j) odd ^= p[j] > p[i];
  if (det) *det = odd ? 0.0f - d : d;
  return 0;
}

// ---- Points ---------------------------------------------------------------------------------
// Element i of x*m[0] + ... by AffineTransform's sums (n = 2, 3, 4).
// `array`: the array form, where it adds in another order (coord only).
inline void affine(const float* m, const float* v, float* d, int n, bool = false) {
  for (int i = 0; i < 4; ++i) {
    if (n == 4)
      d[i] = ((v[0] * m[i] + v[1] * m[4 + i]) + v[2] * m[8 + i]) + v[3] * m[12 + i];
    else
      d[i] = (v[0] * m[i] + m[12 + i]) + v[1] * m[4 + i];
    if (n == 3) d[i] = d[i] + v[2] * m[8 + i];
  }
}
inline void coord(const float* m, const float* v, float* d, int n, bool array) {
  float t[4];
  const float x = v[0], y = v[1], z = n == 3 ? v[2] : 0.0f;
  for (int i = 0; i < 4; ++i) {
    const float mx = m[i] * x, my = m[4 + i] * y, mz = m[8 + i] * z, mt = m[12 + i];
    if (!array)
      t[i] = n == 2 ? (mx + mt) + my : (mt + mz) + (mx + my);
    else if (i == 0 || i == 3)
      t[i] = n == 2 ? (my + mt) + mx : ((my + mt) + mz) + mx;
    else
      t[i] = n == 2 ? (mx + mt) + my : ((mx + mt) + my) + mz;
  }
  for (int i = 0; i < n; ++i) d[i] = t[i] / t[3];
}
inline void normal(const float* m, const float* v, float* d, int n, bool = false) {
  float t[3];
  for (int i = 0; i < n; ++i)
    t[i] = n == 2 ? m[i] * v[0] + m[4 + i] * v[1] : (m[i] * v[0] + m[4 + i] * v[1]) + m[8 + i] * v[2];
  std::memcpy(d, t, sizeof(float) * size_t(n));
}
struct Viewport {
  float w, h, minZ, maxZ;
};
inline void project(const float* proj, const float* view, const float* world, const float* s, Viewport vp, float* d) {
  float t[3];
  coord(world, s, t, 3, false);
  coord(view, t, t, 3, false);
  coord(proj, t, t, 3, false);
  d[0] = ((t[0] + 1.0f) * vp.w) * 0.5f;
  d[1] = ((1.0f - t[1]) * vp.h) * 0.5f;
  d[2] = (1.0f - t[2]) * vp.minZ + vp.maxZ * t[2];
}
inline void normalised(const float* s, Viewport vp, float* d) {
  d[0] = (2.0f * s[0]) / vp.w - 1.0f;
  d[1] = 1.0f + (-2.0f * s[1]) / vp.h;
  d[2] = (s[2] - vp.minZ) / (vp.maxZ - vp.minZ);
}
inline int unprojection(const float* proj, const float* view, const float* world, float* inv) {
  float wv[16], m[16];
  mul(world, view, wv);
  mul(wv, proj, m);
  return invert(m, nullptr, inv);
}

// AffineTransform3DH on one point (columns, strided matrix already gathered into m): the
// contiguous or the strided path's sums; false when the point fails.
inline bool h3d(const float* m, const float* v, float* d, bool contiguous) {
  float t[4];
  for (int r = 0; r < 4; ++r) {
    const float* q = m + 4 * r;
    t[r] = contiguous ? (v[0] * q[0] + v[1] * q[1]) + (v[2] * q[2] + q[3])
                      : ((v[0] * q[0] + q[3]) + v[1] * q[1]) + v[2] * q[2];
  }
  const bool ok = std::fabs(t[3]) > 1.1754944e-38f;
  const float inv = 1.0f / t[3];
  for (int i = 0; i < 3; ++i) d[i] = ok ? t[i] * inv : 3.4028235e38f;
  return ok;
}

}  // namespace tt::ref
