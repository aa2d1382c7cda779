// Transpose: dst(c, r) = src(r, c) for each matrix; dst has `width` rows of `height` elements.
//
// Square matrices of order 3 to 6 take fully unrolled bodies in every worker (the packed 4 by 4
// ones through registers). Other sizes run, with strided elements, objects, rows and columns by
// two with a tail element; with packed float rows, the tiled transpose, which streams its stores
// past the caches when the two copies of the data would not fit in the largest one; with packed
// double rows, column by column, 8 source rows per step.
#include "transpose.hpp"

#include <algorithm>

#include "move.hpp"
#include "platform.hpp"
#include "simd.hpp"

namespace tarn::transpose {

using move::moveElem;

namespace {

int32_t largestCache() {
  int32_t size = 0;  // the query's status says nothing the value does not
  ownGetMaxCacheSizeB(&size);
  return size;
}

// Bytes of both copies of `count` float matrices, in 32-bit arithmetic like every byte count.
int32_t bothCopies(int32_t width, int32_t height, int32_t count) {
  return int32_t(uint32_t(width) * 8u * uint32_t(height) * uint32_t(count));
}

template <class T>
const T* elemAt(const T* p, int32_t r, int32_t c, int32_t rowStride) {
  return byteAdd(p, off32(r, rowStride)) + c;
}
template <class T>
T* elemAt(T* p, int32_t r, int32_t c, int32_t rowStride) {
  return byteAdd(p, off32(r, rowStride)) + c;
}

// A strip of `h` source rows. With 8-byte aligned source rows and 16-byte aligned destination
// rows, groups of 4 columns go through registers 4 rows at a time into aligned 16-byte pieces
// of dst; every other column is gathered element by element, scalar up to a 16-byte boundary
// of its dst row, 4 elements per aligned store, then a scalar tail.
void normalKernel(const float* src, int32_t sRow, float* dst, int32_t dRow, int32_t w, int32_t h) {
  int32_t c = 0;
  if ((reinterpret_cast<uintptr_t>(src) & 7) == 0 && (sRow & 7) == 0 && simd::aligned16(dst) && (dRow & 15) == 0) {
    for (; c + 4 <= w; c += 4) {
      int32_t r = 0;
      for (; r + 4 <= h; r += 4) {
        __m128 x0 = simd::load<4, false>(elemAt(src, r, c, sRow));
        __m128 x1 = simd::load<4, false>(elemAt(src, r + 1, c, sRow));
        __m128 x2 = simd::load<4, false>(elemAt(src, r + 2, c, sRow));
        __m128 x3 = simd::load<4, false>(elemAt(src, r + 3, c, sRow));
        simd::transpose4(x0, x1, x2, x3);
        simd::store<4, true>(elemAt(dst, c, r, dRow), x0);
        simd::store<4, true>(elemAt(dst, c + 1, r, dRow), x1);
        simd::store<4, true>(elemAt(dst, c + 2, r, dRow), x2);
        simd::store<4, true>(elemAt(dst, c + 3, r, dRow), x3);
      }
      for (; r < h; ++r)
        for (int k = 0; k < 4; ++k) moveElem(elemAt(dst, c + k, r, dRow), elemAt(src, r, c + k, sRow));
    }
  }
  for (; c < w; ++c) {
    float* d = elemAt(dst, c, 0, dRow);
    int32_t r = 0;
    for (; r < h && !simd::aligned16(d + r); ++r) moveElem(d + r, elemAt(src, r, c, sRow));
    for (; r + 4 <= h; r += 4)
      simd::store<4, true>(d + r, simd::gather4(elemAt(src, r, c, sRow), elemAt(src, r + 1, c, sRow),
                                                elemAt(src, r + 2, c, sRow), elemAt(src, r + 3, c, sRow)));
    for (; r < h; ++r) moveElem(d + r, elemAt(src, r, c, sRow));
  }
}

// Two source columns at a time, each element a 4-byte store that bypasses the caches; the fence
// makes them visible before the call returns.
void streamKernel(const float* src, int32_t sRow, float* dst, int32_t dRow, int32_t w, int32_t h) {
  int32_t c = 0;
  for (; c + 1 < w; c += 2)
    for (int32_t r = 0; r < h; ++r) {
      simd::streamStore(elemAt(dst, c, r, dRow), elemAt(src, r, c, sRow));
      simd::streamStore(elemAt(dst, c + 1, r, dRow), elemAt(src, r, c + 1, sRow));
    }
  if (c < w)
    for (int32_t r = 0; r < h; ++r) simd::streamStore(elemAt(dst, c, r, dRow), elemAt(src, r, c, sRow));
  simd::storeFence();
}

// Packed double rows: each dst row (a source column) 8 source rows per step, as 16-byte pieces
// when dst rows are 16-byte aligned, else element by element; then a scalar tail.
void columns64(const double* src, int32_t sRow, double* dst, int32_t dRow, int32_t w, int32_t h) {
  const bool wide = simd::aligned16(dst) && (dRow & 15) == 0;
  for (int32_t c = 0; c < w; ++c) {
    double* d = elemAt(dst, c, 0, dRow);
    int32_t r = 0;
    for (; r + 8 <= h; r += 8) {
      if (wide)
        for (int k = 0; k < 8; k += 2)
          simd::store<2, true>(d + r + k, simd::gather2(elemAt(src, r + k, c, sRow), elemAt(src, r + k + 1, c, sRow)));
      else
        for (int k = 0; k < 8; ++k) moveElem(d + r + k, elemAt(src, r + k, c, sRow));
    }
    for (; r < h; ++r) moveElem(d + r, elemAt(src, r, c, sRow));
  }
}

// ---- Square bodies of order 3 to 6 ----------------------------------------------------------

template <int N, class D, class S>
void unrolled(const D& dst, const S& src, int32_t count) {
  for (int32_t n = 0; n < count; ++n) {
    const auto d = dst.obj(n);
    const auto s = src.obj(n);
    simd::unroll<N * N>([&]<int K>() { moveElem(d.at(K % N, K / N), s.at(K / N, K % N)); });
  }
}

// Packed 4 by 4 through registers: four rows in, four columns out.
template <bool Aligned, class D, class S>
void regs4(const D& dst, const S& src, int32_t count) {
  using T = std::remove_const_t<typename decltype(src.obj(0))::Elem>;
  for (int32_t n = 0; n < count; ++n) {
    const auto d = dst.obj(n);
    const auto s = src.obj(n);
    if constexpr (sizeof(T) == 4) {
      __m128 x0 = simd::load<4, Aligned>(s.rowPtr(0)), x1 = simd::load<4, Aligned>(s.rowPtr(1));
      __m128 x2 = simd::load<4, Aligned>(s.rowPtr(2)), x3 = simd::load<4, Aligned>(s.rowPtr(3));
      simd::transpose4(x0, x1, x2, x3);
      simd::store<4, Aligned>(d.rowPtr(0), x0);
      simd::store<4, Aligned>(d.rowPtr(1), x1);
      simd::store<4, Aligned>(d.rowPtr(2), x2);
      simd::store<4, Aligned>(d.rowPtr(3), x3);
    } else {
      __m128d lo[4], hi[4];  // columns 0-1 and 2-3 of each source row
      for (int r = 0; r < 4; ++r) {
        lo[r] = simd::load<2, Aligned>(s.rowPtr(r));
        hi[r] = simd::load<2, Aligned>(s.rowPtr(r) + 2);
      }
      simd::transpose2(lo[0], lo[1]);
      simd::transpose2(lo[2], lo[3]);
      simd::transpose2(hi[0], hi[1]);
      simd::transpose2(hi[2], hi[3]);
      const __m128d rows[4][2] = {{lo[0], lo[2]}, {lo[1], lo[3]}, {hi[0], hi[2]}, {hi[1], hi[3]}};
      for (int r = 0; r < 4; ++r) {
        simd::store<2, Aligned>(d.rowPtr(r), rows[r][0]);
        simd::store<2, Aligned>(d.rowPtr(r) + 2, rows[r][1]);
      }
    }
  }
}

// Strided elements: src row by row, each element to its place in dst, which is seen transposed.
template <class D, class S>
void generalLoop(const D& dst, const S& src, int32_t count, int32_t w, int32_t h) {
  move::elementLoop(Trans<D>{dst}, src, count, h, w);
}

// Runs the unrolled body of order 3..6 if the matrices are square of that order.
template <class Body>
bool squareBody(int32_t w, int32_t h, Body&& body) {
  if (w != h) return false;
  switch (w) {
    case 3: body.template operator()<3>(); return true;
    case 4: body.template operator()<4>(); return true;
    case 5: body.template operator()<5>(); return true;
    case 6: body.template operator()<6>(); return true;
  }
  return false;
}

template <class T, Layout L, bool Array>
void contiguous(const Call& c, int32_t count, int32_t w, int32_t h) {
  const auto src = move::arrayOf<const T, L, true>(c.op[0], w);
  const auto dst = move::arrayOf<T, L, true>(c.op[1], h);
  const bool done = squareBody(w, h, [&]<int N>() {
    if constexpr (N == 4) {
      if constexpr (L == Layout::S && Array) {
        const Blk &s = c.op[0], &d = c.op[1];
        if (simd::aligned16(s.ptr) && simd::aligned16(d.ptr) && ((s.obj | d.obj) & 15) == 0 && s.row == 16 &&
            d.row == 16)
          return regs4<true>(dst, src, count);
      }
      regs4<false>(dst, src, count);
    } else {
      unrolled<N>(dst, src, count);
    }
  });
  if (done) return;
  if constexpr (sizeof(T) == 4) {
    const bool stream = Array && streamForCall(w, h, count);
    for (int32_t n = 0; n < count; ++n) {
      const auto s = src.obj(n);
      const auto d = dst.obj(n);
      tiled(s.p, s.row, d.p, d.row, w, h, stream);
    }
  } else {
    for (int32_t n = 0; n < count; ++n) {
      const auto s = src.obj(n);
      const auto d = dst.obj(n);
      columns64(s.p, s.row, d.p, d.row, w, h);
    }
  }
}

}  // namespace

bool streamForCall(int32_t width, int32_t height, int32_t count) {
  const int32_t total = bothCopies(width, height, count);
  if (total <= 131072) return false;
  const int32_t size = largestCache();
  return size != 0 && total > size - size / 4;
}

bool streamForMatrix(bool stream, int32_t width, int32_t height) {
  if (stream || std::min(width, height) < 129) return stream;
  const int32_t size = largestCache();
  return size != 0 && size < bothCopies(width, height, 1);
}

int32_t stripHeight(bool stream, int32_t width, int32_t height) {
  return height < 65 || (stream && width % 16 != 0) ? height : 64;
}

void tiled(const float* src, int32_t srcRowStride, float* dst, int32_t dstRowStride, int32_t width, int32_t height,
           bool stream) {
  stream = streamForMatrix(stream, width, height);
  const int32_t strip = stripHeight(stream, width, height);
  for (int32_t r = 0; r < height; r += strip) {
    const int32_t h = std::min(strip, height - r);
    const float* s = byteAdd(src, off32(r, srcRowStride));
    if (stream) streamKernel(s, srcRowStride, dst + r, dstRowStride, width, h);
    else normalKernel(s, srcRowStride, dst + r, dstRowStride, width, h);
  }
}

template <Pat P, class T, Layout L>
tarnStatus run(const Plan&, const Call& c) {
  constexpr bool kArray = P == Pat::ma;
  const int32_t w = c.width, h = c.height, count = kArray ? c.count : 1;
  if constexpr (L == Layout::P) {
    // The dst table is in row-major order of dst: element (c, r) is entry c*height + r.
    const auto src = move::arrayOf<const T, L>(c.op[0], w);
    const auto dst = move::arrayOf<T, L>(c.op[1], h);
    if (!squareBody(w, h, [&]<int N>() { unrolled<N>(cached<N * N>(dst), cached<N * N>(src), count); }))
      generalLoop(dst, src, count, w, h);
  } else {
    constexpr int32_t kSize = sizeof(T);
    if (c.op[0].elem == kSize && c.op[1].elem == kSize) {
      contiguous<T, L, kArray>(c, count, w, h);
    } else {
      const auto src = move::arrayOf<const T, L>(c.op[0], w);
      const auto dst = move::arrayOf<T, L>(c.op[1], h);
      if (!squareBody(w, h, [&]<int N>() { unrolled<N>(dst, src, count); })) generalLoop(dst, src, count, w, h);
    }
  }
  return tarnStatusOk;
}

}  // namespace tarn::transpose

#define TARN_IMPL_transpose
#include "bindings.hpp"
