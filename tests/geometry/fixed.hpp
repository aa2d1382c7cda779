// Operands of the fixed-size geometry members: each ends right before an inaccessible page
// behind a lead of canaries, so a kernel that touches one byte outside its floats (a 16-byte
// access to a 3-vector, say) faults or shows.
#pragma once

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>
#include <string>

#include "operand.hpp"

namespace tt {

struct Fixed {
  static constexpr int kLead = 16;
  Storage mem;
  float* p;
  explicit Fixed(int floats) : mem(size_t(kLead + 4 * floats), true), p(reinterpret_cast<float*>(mem.data() + kLead)) {}
  Fixed(const Fixed&) = delete;
  bool leadIntact() const {
    for (int i = 0; i < kLead; ++i)
      if (mem.data()[i] != kFill) return false;
    return true;
  }
};

// The export of that name, as a pointer of the type its parameter list has.
template <class Fn>
Fn exported(const std::string& name) {
  void* p = dlsym(RTLD_DEFAULT, name.c_str());
  if (!p) ADD_FAILURE() << "no export " << name;
  return reinterpret_cast<Fn>(p);
}

inline uint32_t bitsOf(float v) {
  uint32_t b;
  std::memcpy(&b, &v, 4);
  return b;
}

// A float with many significant bits; with `specials`, now and then a NaN, an infinity, a
// signed zero, a denormal or the largest float.
inline float value(std::mt19937& rng, bool specials = false) {
  static const float kSpecial[] = {NAN, INFINITY, -INFINITY, 0.0f, -0.0f, 1e-40f, 3.4028235e38f};
  if (specials && rng() % 12 == 0) return kSpecial[rng() % 7];
  return float(randomValue(rng, 4));
}

// Equal bits, any NaN matching any NaN (which of two NaN operands an instruction passes on is
// the compiler's choice).
inline ::testing::AssertionResult sameFloats(const float* got, const float* want, int n) {
  for (int i = 0; i < n; ++i)
    if (std::isnan(got[i]) ? !std::isnan(want[i]) : bitsOf(got[i]) != bitsOf(want[i])) {
      char text[96];
      std::snprintf(text, sizeof text, "element %d: %a (%08x), want %a (%08x)", i, double(got[i]), bitsOf(got[i]),
                    double(want[i]), bitsOf(want[i]));
      return ::testing::AssertionFailure() << text;
    }
  return ::testing::AssertionSuccess();
}

}  // namespace tt
