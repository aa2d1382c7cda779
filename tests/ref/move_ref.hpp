// Plain models of the data-movement families on test operands: every destination element takes
// the bits of the source element the mathematics names (or the identity's value), one by one in
// the order objects, rows, columns. The operands say where each element lies.
#pragma once

#include "support/operand.hpp"

namespace ref {

// dst(n, r, c) = src(n, r, c).
inline void copy(const tt::Operand& s, tt::Operand& d, int count, int rows, int cols) {
  for (int n = 0; n < count; ++n)
    for (int r = 0; r < rows; ++r)
      for (int c = 0; c < cols; ++c) d.setBits(n, r, c, s.bits(n, r, c));
}

// d is one dense row: object after object, `rows` rows of `cols`. A transposed operand is stored
// with `cols` rows of `rows` elements and read as its transpose.
inline void extract(const tt::Operand& s, tt::Operand& d, bool transposed, int count, int rows, int cols) {
  int k = 0;
  for (int n = 0; n < count; ++n)
    for (int r = 0; r < rows; ++r)
      for (int c = 0; c < cols; ++c) d.setBits(0, 0, k++, transposed ? s.bits(n, c, r) : s.bits(n, r, c));
}

inline void identity(tt::Operand& d, int count, int rows, int cols) {
  for (int n = 0; n < count; ++n)
    for (int r = 0; r < rows; ++r)
      for (int c = 0; c < cols; ++c) d.set(n, r, c, r == c ? 1.0 : 0.0);
}

// dst(n, c, r) = src(n, r, c); src has rows x cols, dst cols x rows.
inline void transpose(const tt::Operand& s, tt::Operand& d, int count, int rows, int cols) {
  for (int n = 0; n < count; ++n)
    for (int r = 0; r < rows; ++r)
      for (int c = 0; c < cols; ++c) d.setBits(n, c, r, s.bits(n, r, c));
}

}  // namespace ref
