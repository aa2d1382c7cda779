// Argument checks as data: a member's sequence of check letters, run in order over the call.
#pragma once

#include <cstdint>

#include "call.hpp"
#include "members.hpp"

namespace tarn {

// Runs the letters of `checks` left to right over the blocks and sizes of the call; the first
// failing letter decides the status. A letter followed by `s` looks only at the blocks the member
// reads, by `d` only at those it writes. H applies the member's shape rule. Nothing of the
// operands is read: table entries are never looked at, only the pointers, strides, shifts, sizes
// and count the caller passed.
tarnStatus validate(const char* checks, Rule rule, const Call& c, int32_t esize);

}  // namespace tarn
