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
