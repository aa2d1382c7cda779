// Argument checks as data: a member's sequence of check letters, run in order over the call.
#pragma once

#include <cstdint>

#include "call.hpp"

namespace tarn {

// Runs the letters of `checks` left to right over every block and size of the call; the first
// failing letter decides the status. Nothing of the operands is read: table entries are never
// looked at, only the pointers, strides, shifts, sizes and count the caller passed.
tarnStatus validate(const char* checks, const Call& c, int32_t esize);

}  // namespace tarn
