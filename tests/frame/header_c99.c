/* Compiled as strict C99 with warnings as errors: the header declares every export in plain C. */
#include "tarn.h"

tarnStatus addPacked(const float* a, const float* b, float* d, int32_t count) {
  return tarnAdd_mama_32f(a, 36, 12, 4, b, 36, 12, 4, d, 36, 12, 4, 3, 3, count);
}

int versionMajor(void) { return tarnGetLibVersion()->major; }
