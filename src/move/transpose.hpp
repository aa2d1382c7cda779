// Internals of Transpose that the white-box tests reach: the store mode of the tiled float
// transpose and the tiled transpose of one matrix.
#pragma once

#include <cstdint>

namespace tarn::transpose {

// Whether a whole array call of `count` packed float matrices streams its stores: when source
// and destination together (width*8*height*count bytes) exceed 131072 bytes and three quarters
// of the largest cache.
bool streamForCall(int32_t width, int32_t height, int32_t count);

// The mode one matrix is transposed with: `stream` as the call decided it, or streaming when both
// sizes are at least 129 and the matrix's two copies exceed a known cache size.
bool streamForMatrix(bool stream, int32_t width, int32_t height);

// Rows of the source per kernel call.
int32_t stripHeight(bool stream, int32_t width, int32_t height);

// The tiled transpose of one matrix with packed rows: dst(c, r) = src(r, c). Strides in bytes.
void tiled(const float* src, int32_t srcRowStride, float* dst, int32_t dstRowStride, int32_t width, int32_t height,
           bool stream);

}  // namespace tarn::transpose
