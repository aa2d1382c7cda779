// LoadIdentity: ones on the main diagonal, zeros elsewhere, in every matrix of the array.
//
// Each row is first zeroed whole, then its diagonal element, if the row has one, set to 1; the
// matrices need not be square. Objects are filled in ascending order, so where objects overlap
// the later one's elements stand.
//
// The float member in LayoutS with packed rows fills arrays of 3D transforms and has fixed paths:
// 4 by 4 matrices are four constant rows stored whole, 3 by 3 matrices take each row from the
// upper three floats of a constant, as one 4-byte and one 8-byte store, so the fourth float of a
// 16-byte row slot is never touched.
#include "move.hpp"
#include "simd.hpp"

namespace tarn::load_identity {

template <class T, class D>
void plainFill(const D& dst, int32_t count, int32_t height, int32_t width) {
  for (int32_t n = 0; n < count; ++n) {
    const auto d = dst.obj(n);
    for (int32_t r = 0; r < height; ++r) {
      int32_t c = 0;
      for (; c + 1 < width; c += 2) {
        storeElem(d.at(r, c), T(0));
        storeElem(d.at(r, c + 1), T(0));
      }
      if (c < width) storeElem(d.at(r, c), T(0));
      if (r < width) storeElem(d.at(r, r), T(1));
    }
  }
}

// Packed float rows: base + n*objStride + r*rowStride, element stride 4.
struct PackedRows {
  float* base;
  int32_t objStride, rowStride;
  float* row(int32_t n, int32_t r) const { return byteAdd(base, off32(n, objStride) + off32(r, rowStride)); }
};

template <bool Aligned>
void fill4(const PackedRows& d, int32_t count) {
  const __m128 k[4] = {simd::constant(1, 0, 0, 0), simd::constant(0, 1, 0, 0), simd::constant(0, 0, 1, 0),
                       simd::constant(0, 0, 0, 1)};
  auto one = [&](int32_t n) {
    for (int r = 0; r < 4; ++r) simd::store<4, Aligned>(d.row(n, r), k[r]);
  };
  int32_t n = 0;
  for (; n + 1 < count; n += 2) {
    one(n);
    one(n + 1);
  }
  if (n < count) one(n);
}

void fill3(const PackedRows& d, int32_t count) {
  // Row r is the first float of k[r] and the upper half of k[r] behind it.
  const __m128 k[3] = {simd::constant(1, 0, 0, 0), simd::constant(0, 0, 1, 0), simd::constant(0, 0, 0, 1)};
  auto one = [&](int32_t n) {
    for (int r = 0; r < 3; ++r) {
      float* p = d.row(n, r);
      simd::store<1, false>(p, k[r]);
      simd::storeHigh(p + 1, k[r]);
    }
  };
  int32_t n = 0;
  for (; n + 1 < count; n += 2) {
    one(n);
    one(n + 1);
  }
  if (n < count) one(n);
}

void fillRows(const PackedRows& d, int32_t count, int32_t height, int32_t width) {
  const __m128 z = simd::zeroFloats();
  for (int32_t n = 0; n < count; ++n)
    for (int32_t r = 0; r < height; ++r) {
      float* p = d.row(n, r);
      int32_t c = 0;
      if (width >= 8)
        for (; c + 8 <= width; c += 8) {
          simd::store<4, false>(p + c, z);
          simd::store<4, false>(p + c + 4, z);
        }
      for (; c < width; ++c) storeElem(p + c, 0.0f);
      if (r < width) storeElem(p + r, 1.0f);
    }
}

template <Pat P, class T, Layout L>
tarnStatus run(const Plan&, const Call& c) {
  const Blk& b = c.op[0];
  if constexpr (L == Layout::S && sizeof(T) == 4) {
    if (b.elem == 4) {
      const PackedRows d{static_cast<float*>(const_cast<void*>(b.ptr)), b.obj, b.row};
      const bool aligned = simd::aligned16(b.ptr) && (b.obj & 15) == 0 && b.row == 16;
      if (c.width == 4 && c.height == 4) {
        if (aligned) fill4<true>(d, c.count);
        else fill4<false>(d, c.count);
      } else if (c.width == 3 && c.height == 3) {
        fill3(d, c.count);  // with 16-byte row slots the rows lie at 0, 16, 32 all the same
      } else {
        fillRows(d, c.count, c.height, c.width);
      }
      return tarnStatusOk;
    }
  }
  plainFill<T>(move::arrayOf<T, L>(b, c.width), c.count, c.height, c.width);
  return tarnStatusOk;
}

}  // namespace tarn::load_identity

#define TARN_IMPL_load_identity
#include "bindings.hpp"
