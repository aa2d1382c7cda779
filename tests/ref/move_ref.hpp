// Plain models of the data-movement families, written from the address formulas of the three
// layouts with 64-bit offsets. They work on byte offsets into an arena and move each element as
// its bytes, in the order the library documents: objects, rows, columns.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace ref {

enum class Lay { S, L, P };

// Where the elements of an operand lie: byte offsets into an arena.
struct Place {
  Lay lay = Lay::S;
  int rows = 1, cols = 1;  // the stored object
  int64_t base = 0;
  int32_t obj = 0, row = 0, elem = 0, roi = 0;
  std::vector<int64_t> entries;  // L: one per object; P: one per stored element, row-major

  int64_t at(int64_t n, int64_t r, int64_t c) const {
    switch (lay) {
      case Lay::S: return base + n * obj + r * row + c * elem;
      case Lay::L: return entries[n] + roi + r * row + c * elem;
      case Lay::P: return entries[r * cols + c] + roi + n * obj;
    }
    return 0;
  }
};

inline void moveBytes(std::byte* a, int64_t to, int64_t from, int es) { std::memmove(a + to, a + from, es); }

// dst(n, r, c) = src(n, r, c).
inline void copy(std::byte* a, const Place& s, const Place& d, int count, int es) {
  for (int n = 0; n < count; ++n)
    for (int r = 0; r < s.rows; ++r)
      for (int c = 0; c < s.cols; ++c) moveBytes(a, d.at(n, r, c), s.at(n, r, c), es);
}

// Dense rows of each object; `transposed`: the stored matrix is read as its transpose.
inline void extract(std::byte* a, const Place& s, bool transposed, int64_t dst, int count, int es) {
  const int rows = transposed ? s.cols : s.rows, cols = transposed ? s.rows : s.cols;
  int64_t k = 0;
  for (int n = 0; n < count; ++n)
    for (int r = 0; r < rows; ++r)
      for (int c = 0; c < cols; ++c, ++k)
        moveBytes(a, dst + k * es, transposed ? s.at(n, c, r) : s.at(n, r, c), es);
}

inline void identity(std::byte* a, const Place& d, int count, int es) {
  for (int n = 0; n < count; ++n)
    for (int r = 0; r < d.rows; ++r)
      for (int c = 0; c < d.cols; ++c) {
        const double v = r == c ? 1.0 : 0.0;
        const float f = float(v);
        std::memcpy(a + d.at(n, r, c), es == 4 ? static_cast<const void*>(&f) : &v, es);
      }
}

// dst(n, c, r) = src(n, r, c); src has rows x cols, dst cols x rows.
inline void transpose(std::byte* a, const Place& s, const Place& d, int count, int es) {
  for (int n = 0; n < count; ++n)
    for (int r = 0; r < s.rows; ++r)
      for (int c = 0; c < s.cols; ++c) moveBytes(a, d.at(n, c, r), s.at(n, r, c), es);
}

}  // namespace ref
