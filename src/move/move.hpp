// What the data-movement families share: operands as array accessors and the raw element move.
//
// These families never compute with an element: an element is its 4 or 8 bytes, moved with an
// integer-sized copy, so every bit pattern arrives unchanged. A single object is an array of one
// (its object stride is 0 in the call record) and a vector is a matrix of one row, so one loop
// serves every pattern of a family.
#pragma once

#include <cstdint>
#include <cstring>

#include "call.hpp"
#include "members.hpp"
#include "operand.hpp"

namespace tarn::move {

template <class T>
inline void moveElem(T* d, const T* s) {
  std::memcpy(d, s, sizeof(T));
}

// The operand of block `b` in layout L; `sw` is the stored width, which indexes LayoutP tables.
// E is `const T` for a source, T for a destination.
template <class E, Layout L, bool Contig = false>
auto arrayOf(const Blk& b, int32_t sw) {
  if constexpr (L == Layout::S) {
    return ArrS<E, Contig>{static_cast<E*>(const_cast<void*>(b.ptr)), b.obj, b.row, b.elem};
  } else if constexpr (L == Layout::L) {
    return ArrL<E, Contig>{static_cast<E* const*>(const_cast<void*>(b.ptr)), b.roi, b.row, b.elem};
  } else {
    return ArrP<E>{static_cast<E* const*>(const_cast<void*>(b.ptr)), b.roi, b.obj, sw};
  }
}

// Objects in ascending order, rows, then columns two at a time with a tail element: element
// (r, c) of each dst object from element (r, c) of the src object. Each element is read and then
// written before the next one is read, so when the operands overlap a later element reads what
// an earlier one wrote. A transposing caller hands in its dst seen transposed.
template <class D, class S>
void elementLoop(const D& dst, const S& src, int32_t count, int32_t height, int32_t width) {
  for (int32_t n = 0; n < count; ++n) {
    const auto d = dst.obj(n);
    const auto s = src.obj(n);
    for (int32_t r = 0; r < height; ++r) {
      int32_t c = 0;
      for (; c + 1 < width; c += 2) {
        moveElem(d.at(r, c), s.at(r, c));
        moveElem(d.at(r, c + 1), s.at(r, c + 1));
      }
      if (c < width) moveElem(d.at(r, c), s.at(r, c));
    }
  }
}

// Rows and columns of a call's objects: a vector is one row of `len` elements.
struct Extent {
  int32_t h, w;
};
template <Pat P>
Extent extentOf(const Call& c) {
  constexpr Shape S = shapeOf(P);
  if constexpr (S.matrix) return {c.height, c.width};
  else return {1, c.len};
}

}  // namespace tarn::move
