// Sine and cosine of a float for the transform builders.
//
// The angle is written |x| = q*pi/2 + r with |r| <= pi/4. Below pi/4 nothing is reduced. Above,
// x = M * 2^e with a 24-bit integer M, and x*2/pi mod 4 is formed exactly in 128-bit integer
// arithmetic from the 128 bits of 2/pi that can matter: bits of weight 4 and more drop out of
// M * 2^e * (2/pi) as whole turns, and the bits past the 128 taken add less than 2^-102 of a
// quadrant. Rounding the fixed-point product to the nearest quadrant gives q and a remainder of
// 125 significant bits, far more than the closest float to a multiple of pi/2 needs. The
// remainder goes to double, and sine and cosine of r come from their Taylor polynomials to the
// terms of r^13 and r^12, whose truncation is below 2^-36 relative on [-pi/4, pi/4].
#include <cstdint>
#include <cstring>

#include "geometry.hpp"

namespace tarn::geo {
namespace {

using u128 = unsigned __int128;

// 2/pi in binary, 32 bits to a word, behind one word of zeros so that the window of an angle
// just above pi/4, which starts 25 bits before the binary point, needs no special case.
constexpr uint32_t kTwoOverPi[11] = {
    0x00000000, 0xA2F9836E, 0x4E441529, 0xFC2757D1, 0xF534DDC0, 0xDB629599,
    0x3C439041, 0xFE5163AB, 0xDEBBC561, 0xB7246E3A, 0x424DD2E0,
};

// pi/2 * 2^-126: one unit of the fixed-point remainder in radians.
constexpr double kQuadrantUnit = 0x1.921fb54442d18p-126;

// |x| (its bits, above pi/4 and finite) as quadrant q (mod 4) and remainder r in radians.
double reduce(uint32_t ax, uint32_t& q) {
  const u128 m = (ax & 0x7FFFFFu) | 0x800000u;
  const int e = int(ax >> 23) - 150;  // |x| = m * 2^e
  // Bits b[e-1] .. b[e+126] of 2/pi (b[1] is the first behind the point); in the table bit j,
  // counted from the most significant bit of word 0, is b[j-31].
  const int start = e + 30, w = start / 32, s = start % 32;
  const u128 a = (u128(kTwoOverPi[w]) << 96) | (u128(kTwoOverPi[w + 1]) << 64) | (u128(kTwoOverPi[w + 2]) << 32) |
                 kTwoOverPi[w + 3];
  const u128 window = s ? (a << s) | (kTwoOverPi[w + 4] >> (32 - s)) : a;
  // (x * 2/pi) mod 4 in units of 2^-126, wrapping as the mod does.
  const u128 p = m * window;
  q = uint32_t((p + (u128(1) << 125)) >> 126);
  const u128 f = p - (u128(q) << 126);  // the remainder as a signed 128-bit value
  const bool neg = (f >> 127) != 0;
  const u128 mag = neg ? -f : f;
  const double d = double(uint64_t(mag >> 64)) * 0x1p64 + double(uint64_t(mag));
  return (neg ? -d : d) * kQuadrantUnit;
}

}  // namespace

SinCos sinCos(float angle) {
  uint32_t ix;
  std::memcpy(&ix, &angle, 4);
  const uint32_t ax = ix & 0x7FFFFFFFu;
  if (ax >= 0x7F800000u) {  // infinity or NaN
    const float n = angle - angle;
    return {n, n};
  }
  // Below 2^-12, x*x/6 and x*x/2 are less than half an ulp of x and of 1: sin x is x itself
  // (-0.0 included) and cos x is 1.
  if (ax < 0x39800000u) return {angle, 1.0f};
  double r = angle;
  uint32_t q = 0;
  if (ax > 0x3F490FDBu) {  // above pi/4 rounded up to a float
    r = reduce(ax, q);
    if (ix >> 31) {  // -x = -q*pi/2 - r
      r = -r;
      q = 0u - q;
    }
  }
  const double r2 = r * r;
  const double sp =
      -1.0 / 6 +
      r2 * (1.0 / 120 + r2 * (-1.0 / 5040 + r2 * (1.0 / 362880 + r2 * (-1.0 / 39916800 + r2 * (1.0 / 6227020800)))));
  const double cp =
      -1.0 / 2 +
      r2 * (1.0 / 24 + r2 * (-1.0 / 720 + r2 * (1.0 / 40320 + r2 * (-1.0 / 3628800 + r2 * (1.0 / 479001600)))));
  const float s = float(r + (r * r2) * sp), c = float(1.0 + r2 * cp);
  switch (q & 3) {
    case 0:
      return {s, c};
    case 1:
      return {c, -s};
    case 2:
      return {-s, -c};
    default:
      return {-c, s};
  }
}

}  // namespace tarn::geo
