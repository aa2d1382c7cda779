// The geometry kernels other members call: the builders call the sine and cosine routine and
// the 3-vector operations, Project and Unproject the single-point coordinate transform, Unproject
// the 4x4 product and inverse. Each is the very function behind its export.
#pragma once

#include "tarn.h"

namespace tarn::geo {

// Sine and cosine of one float angle from one evaluation. The angle is reduced exactly against
// 128 bits of 2/pi, whatever its size, and both polynomials run in double, so each result is
// within one ulp of the true value (nearly always the correctly rounded float), and the same on
// every machine: only integer arithmetic and rounded double operations, no library call.
struct SinCos {
  float s, c;
};
SinCos sinCos(float angle);

}  // namespace tarn::geo

namespace tarn::mul {
tarnStatus mulMM4x4(const float* src1, const float* src2, float* dst);
}

namespace tarn::m4 {
tarnStatus invert(const float* src, float* det, float* dst);
}

namespace tarn::xform {
tarnStatus coordV3(const float* m, const float* src, float* dst);
}
