// Transform builders: view, projection, rotation, scaling and translation matrices for row
// vectors (16 floats in row order, the translation in row 3). Every element is written, each
// named element exactly by its expression and every other one +0.0; nothing is checked, so
// degenerate input yields infinities or NaNs with a status of 0. A negation is written 0 - x,
// which gives +0.0 for +0.0, and the doubled near plane is n + n.
#include <cstring>

#include "geometry.hpp"
#include "vectors.hpp"

namespace tarn::build {
namespace {

struct M4 {
  float e[16] = {};
  float& operator()(int r, int c) { return e[4 * r + c]; }
};

tarnStatus put(const M4& m, float* dst) {
  std::memcpy(dst, m.e, sizeof m.e);
  return tarnStatusOk;
}

M4 identity() {
  M4 m;
  for (int i = 0; i < 4; ++i) m(i, i) = 1.0f;
  return m;
}

}  // namespace

// The camera at eye looking at `at`: the view axis z, x = up cross z normalised, y = z cross x
// as it comes; these are the columns of the rotation, and row 3 moves eye to the origin.
template <bool LH>
tarnStatus lookAt(const float* eye, const float* at, const float* up, float* dst) {
  float dir[3], z[3], side[3], x[3], y[3], ex, ey, ez;
  if constexpr (LH)
    vec::sub<3>(at, eye, dir);
  else
    vec::sub<3>(eye, at, dir);
  vec::normalize<3>(dir, z);
  vec::cross3(up, z, side);
  vec::normalize<3>(side, x);
  vec::cross3(z, x, y);
  vec::dot<3>(x, eye, &ex);
  vec::dot<3>(y, eye, &ey);
  vec::dot<3>(z, eye, &ez);
  M4 m;
  for (int r = 0; r < 3; ++r) {
    m(r, 0) = x[r];
    m(r, 1) = y[r];
    m(r, 2) = z[r];
  }
  m(3, 0) = 0.0f - ex;
  m(3, 1) = 0.0f - ey;
  m(3, 2) = 0.0f - ez;
  m(3, 3) = 1.0f;
  return put(m, dst);
}

// Depth from [n, f] to [0, 1]; the right-handed forms look down -z.
template <bool LH>
tarnStatus ortho(float w, float h, float n, float f, float* dst) {
  M4 m;
  m(0, 0) = 2.0f / w;
  m(1, 1) = 2.0f / h;
  m(2, 2) = LH ? 1.0f / (f - n) : 1.0f / (n - f);
  m(3, 2) = LH ? n / (0.0f - (f - n)) : n / (n - f);
  m(3, 3) = 1.0f;
  return put(m, dst);
}

template <bool LH>
tarnStatus orthoOffCenter(float l, float r, float b, float t, float n, float f, float* dst) {
  M4 m;
  m(0, 0) = 2.0f / (r - l);
  m(1, 1) = 2.0f / (t - b);
  m(2, 2) = LH ? 1.0f / (f - n) : 1.0f / (n - f);
  m(3, 0) = (l + r) / (0.0f - (r - l));
  m(3, 1) = (b + t) / (0.0f - (t - b));
  m(3, 2) = LH ? n / (0.0f - (f - n)) : n / (n - f);
  m(3, 3) = 1.0f;
  return put(m, dst);
}

template <bool LH>
tarnStatus perspective(float w, float h, float n, float f, float* dst) {
  M4 m;
  m(0, 0) = (n + n) / w;
  m(1, 1) = (n + n) / h;
  m(2, 2) = LH ? f / (f - n) : f / (n - f);
  m(2, 3) = LH ? 1.0f : -1.0f;
  m(3, 2) = LH ? (n * f) / (0.0f - (f - n)) : (n * f) / (n - f);
  return put(m, dst);
}

template <bool LH>
tarnStatus perspectiveOffCenter(float l, float r, float b, float t, float n, float f, float* dst) {
  M4 m;
  m(0, 0) = (n + n) / (r - l);
  m(1, 1) = (n + n) / (t - b);
  m(2, 0) = LH ? (l + r) / (0.0f - (r - l)) : (l + r) / (r - l);
  m(2, 1) = LH ? (b + t) / (0.0f - (t - b)) : (b + t) / (t - b);
  m(2, 2) = LH ? f / (f - n) : f / (n - f);
  m(2, 3) = LH ? 1.0f : -1.0f;
  m(3, 2) = LH ? (n * f) / (0.0f - (f - n)) : (n * f) / (n - f);
  return put(m, dst);
}

// The cotangent of half the field of view as cos/sin. The left-handed form negates the
// numerator of m[3][2], unlike perspective<true>, which negates the denominator.
template <bool LH>
tarnStatus perspectiveFov(float fovY, float aspect, float n, float f, float* dst) {
  const geo::SinCos sc = geo::sinCos(fovY * 0.5f);
  const float y = sc.c / sc.s;
  M4 m;
  m(0, 0) = y / aspect;
  m(1, 1) = y;
  m(2, 2) = LH ? f / (f - n) : f / (n - f);
  m(2, 3) = LH ? 1.0f : -1.0f;
  m(3, 2) = LH ? (0.0f - n * f) / (f - n) : (n * f) / (n - f);
  return put(m, dst);
}

// Rotations by +angle about one axis: about z, (1, 0, 0) goes to (cos, sin, 0).
tarnStatus rotationX(float angle, float* dst) {
  const geo::SinCos sc = geo::sinCos(angle);
  M4 m = identity();
  m(1, 1) = sc.c;
  m(1, 2) = sc.s;
  m(2, 1) = 0.0f - sc.s;
  m(2, 2) = sc.c;
  return put(m, dst);
}

tarnStatus rotationY(float angle, float* dst) {
  const geo::SinCos sc = geo::sinCos(angle);
  M4 m = identity();
  m(0, 0) = sc.c;
  m(0, 2) = 0.0f - sc.s;
  m(2, 0) = sc.s;
  m(2, 2) = sc.c;
  return put(m, dst);
}

tarnStatus rotationZ(float angle, float* dst) {
  const geo::SinCos sc = geo::sinCos(angle);
  M4 m = identity();
  m(0, 0) = sc.c;
  m(0, 1) = sc.s;
  m(1, 0) = 0.0f - sc.s;
  m(1, 1) = sc.c;
  return put(m, dst);
}

// About an axis of any length, normalised here with three divisions; a zero axis gives NaN in
// the 3x3 block.
tarnStatus rotationAxis(const float* axis, float angle, float* dst) {
  const geo::SinCos sc = geo::sinCos(angle);
  const float s = sc.s, c = sc.c;
  const float len = simd::sqrtScalar((axis[0] * axis[0] + axis[1] * axis[1]) + axis[2] * axis[2]);
  const float x = axis[0] / len, y = axis[1] / len, z = axis[2] / len;
  const float u = 1.0f - c;
  M4 m = identity();
  m(0, 0) = (u * x) * x + c;
  m(0, 1) = (u * y) * x + s * z;
  m(0, 2) = (u * z) * x - s * y;
  m(1, 0) = (u * x) * y - s * z;
  m(1, 1) = (u * y) * y + c;
  m(1, 2) = (u * z) * y + s * x;
  m(2, 0) = s * y + (u * x) * z;
  m(2, 1) = (u * y) * z - s * x;
  m(2, 2) = c + (u * z) * z;
  return put(m, dst);
}

// A row vector is rolled (about z), then pitched (about x), then yawed (about y).
tarnStatus rotationYawPitchRoll(float yaw, float pitch, float roll, float* dst) {
  const geo::SinCos y = geo::sinCos(yaw), p = geo::sinCos(pitch), r = geo::sinCos(roll);
  const float sy = y.s, cy = y.c, sp = p.s, cp = p.c, sr = r.s, cr = r.c;
  M4 m = identity();
  m(0, 0) = sr * (sy * sp) + cy * cr;
  m(0, 1) = cp * sr;
  m(0, 2) = sr * (sp * cy) - sy * cr;
  m(1, 0) = (sy * sp) * cr - cy * sr;
  m(1, 1) = cp * cr;
  m(1, 2) = sy * sr + cr * (sp * cy);
  m(2, 0) = sy * cp;
  m(2, 1) = 0.0f - sp;
  m(2, 2) = cy * cp;
  return put(m, dst);
}

tarnStatus scaling(float sx, float sy, float sz, float* dst) {
  M4 m;
  m(0, 0) = sx;
  m(1, 1) = sy;
  m(2, 2) = sz;
  m(3, 3) = 1.0f;
  return put(m, dst);
}

tarnStatus translation(float tx, float ty, float tz, float* dst) {
  M4 m = identity();
  m(3, 0) = tx;
  m(3, 1) = ty;
  m(3, 2) = tz;
  return put(m, dst);
}

}  // namespace tarn::build

#define TARN_IMPL_build
#include "bindings.hpp"
