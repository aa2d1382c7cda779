// Extract: an operand in any layout gathered into one dense buffer.
//
// `dst` receives object after object, each as `height` rows of `width` elements (a `t` operand
// as the matrix it is read as, i.e. transposed) or `len` elements. The loop is that of Copy:
// objects, rows, columns in pairs with a tail element. The LayoutP arrays of matrices and vectors
// turn it round: table entry by table entry, every object of that entry, so each entry is read
// once per call; only the order in which `dst` is written shows it.
#include "move.hpp"

namespace tarn::extract {

template <class T, class S>
void denseLoop(T* dst, const S& src, int32_t count, int32_t height, int32_t width) {
  for (int32_t n = 0; n < count; ++n) {
    const auto s = src.obj(n);
    for (int32_t r = 0; r < height; ++r) {
      int32_t c = 0;
      for (; c + 1 < width; c += 2, dst += 2) {
        move::moveElem(dst, s.at(r, c));
        move::moveElem(dst + 1, s.at(r, c + 1));
      }
      if (c < width) move::moveElem(dst++, s.at(r, c));
    }
  }
}

// Entry e of the table is element e of every object: objects n, n + 1 per step.
template <class T>
void byEntry(T* dst, const T* const* tbl, int32_t roi, int32_t objStride, int32_t count, int32_t elems) {
  for (int32_t e = 0; e < elems; ++e) {
    const T* p = byteAdd(tbl[e], roi);
    int32_t n = 0;
    for (; n + 1 < count; n += 2) {
      move::moveElem(dst + std::ptrdiff_t(n) * elems + e, byteAdd(p, off32(n, objStride)));
      move::moveElem(dst + std::ptrdiff_t(n + 1) * elems + e, byteAdd(p, off32(n + 1, objStride)));
    }
    if (n < count) move::moveElem(dst + std::ptrdiff_t(n) * elems + e, byteAdd(p, off32(n, objStride)));
  }
}

template <Pat P, class T, Layout L>
tarnStatus run(const Plan&, const Call& c) {
  constexpr Shape S = shapeOf(P);
  const auto [h, w] = move::extentOf<P>(c);
  const int32_t count = S.a.array ? c.count : 1;
  T* dst = static_cast<T*>(const_cast<void*>(c.op[1].ptr));
  if constexpr (L == Layout::P && S.a.array && S.a.kind != 't') {
    byEntry(dst, static_cast<const T* const*>(c.op[0].ptr), c.op[0].roi, c.op[0].obj, count, h * w);
  } else if constexpr (S.a.kind == 't') {
    // Stored with `width` rows of `height` elements; seen, and written, the other way round.
    const auto stored = move::arrayOf<const T, L>(c.op[0], h);
    denseLoop(dst, Trans<decltype(stored)>{stored}, count, h, w);
  } else {
    denseLoop(dst, move::arrayOf<const T, L>(c.op[0], w), count, h, w);
  }
  return tarnStatusOk;
}

}  // namespace tarn::extract

#define TARN_IMPL_extract
#include "bindings.hpp"
