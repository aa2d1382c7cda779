// Test support for the data-movement families: operands placed in canary-filled arenas in every
// layout, any export called by name, and the whole arena compared with the reference's.
//
// The library runs on arena A; the reference runs on B, a byte copy of A taken before the call
// and addressed by the same offsets. Comparing A and B whole checks the results bit for bit and
// that nothing outside the destination was written.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "../ref/move_ref.hpp"
#include "members.hpp"
#include "tarn.h"

namespace movetest {

using ref::Lay;
using ref::Place;

using Args = tt::Args;

// A member callable by name, as the shared harness lists it.
struct Entry {
  const char* name;
  tarnStatus (*fn)(const Args&);
  const char* checks;
};

// Members whose name starts with `prefix`, e.g. "tarnCopy_".
inline std::vector<Entry> members(std::string_view prefix) {
  std::vector<Entry> out;
  for (const auto& m : tt::allMembers())
    if (std::string_view(m.name).substr(0, prefix.size()) == prefix) out.push_back({m.name, m.call, m.checks});
  return out;
}

// What a name says: "tarnCopy_ma_64f_PS" -> pattern "ma", es 8, layouts P and S.
struct Name {
  std::string pattern;
  int es;
  Lay lay, lay2;
};
inline Lay layOf(char ch) { return ch == 'L' ? Lay::L : ch == 'P' ? Lay::P : Lay::S; }
inline Name parse(std::string_view name) {
  const size_t a = name.find('_'), b = name.find('_', a + 1), c = name.find('_', b + 1);
  Name n;
  n.pattern = std::string(name.substr(a + 1, b - a - 1));
  n.es = name.substr(b + 1, 3) == "64f" ? 8 : 4;
  const std::string_view suf = c == std::string_view::npos ? "" : name.substr(c + 1);
  n.lay = suf.empty() ? Lay::S : layOf(suf[0]);
  n.lay2 = suf.size() > 1 ? layOf(suf[1]) : n.lay;
  return n;
}

constexpr std::byte kCanary{0xA5};

class Arena {
 public:
  explicit Arena(size_t bytes) : size_(bytes), a_(alloc(bytes)), b_(alloc(bytes)) {
    std::memset(a_.get(), int(kCanary), size_);
  }
  std::byte* lib() { return a_.get(); }
  std::byte* model() { return b_.get(); }
  void snapshot() { std::memcpy(b_.get(), a_.get(), size_); }
  bool same() const { return std::memcmp(a_.get(), b_.get(), size_) == 0; }
  size_t firstDifference() const {
    for (size_t i = 0; i < size_; ++i)
      if (a_[i] != b_[i]) return i;
    return size_;
  }
  // Reserves `bytes` starting `misalign` bytes behind a 64-byte boundary; returns the offset.
  int64_t take(int64_t bytes, int misalign = 0) {
    top_ = (top_ + 63) / 64 * 64 + 64 + misalign;  // a canary gap between regions
    const int64_t at = top_;
    top_ += bytes;
    if (size_t(top_ + 64) > size_) throw std::runtime_error("arena too small");
    return at;
  }

 private:
  struct Free {
    void operator()(std::byte* p) const { std::free(p); }
  };
  static std::unique_ptr<std::byte[], Free> alloc(size_t n) {
    return std::unique_ptr<std::byte[], Free>(static_cast<std::byte*>(std::aligned_alloc(64, (n + 63) / 64 * 64)));
  }
  size_t size_;
  std::unique_ptr<std::byte[], Free> a_, b_;
  int64_t top_ = 0;
};

// How an operand is spread out.
enum class Form {
  Packed,       // elements and rows back to back, 16-byte aligned start
  Padded,       // gaps behind rows and objects, start off a 16-byte boundary
  Strided,      // element stride of two or three elements
  Interleaved,  // objects interleaved element by element (S), shifted tables (L, P)
  Rows16,       // 16-byte aligned start, rows and objects on 16-byte boundaries
};
inline constexpr Form kForms[] = {Form::Packed, Form::Padded, Form::Strided, Form::Interleaved, Form::Rows16};

inline int32_t up16(int32_t v) { return (v + 15) / 16 * 16; }

// Places `count` objects of rows x cols (stored shape) in layout `lay`. `array` false: a single
// object, which in LayoutS and LayoutP has no object stride.
inline Place place(Arena& ar, Lay lay, int rows, int cols, int count, int es, Form f, bool array = true) {
  Place p;
  p.lay = lay;
  p.rows = rows;
  p.cols = cols;
  const int32_t pad = f == Form::Padded ? 3 * es : 0;
  p.elem = f == Form::Strided ? (cols % 2 ? 2 * es : 3 * es) : es;
  p.row = cols * p.elem + pad;
  if (f == Form::Rows16) p.row = up16(cols * es);
  const int misalign = f == Form::Padded ? es : 0;
  if (lay == Lay::S) {
    if (f == Form::Interleaved && array) {
      p.elem = count * es;
      p.row = cols * p.elem;
      p.obj = es;
    } else {
      p.obj = rows * p.row + pad;
      if (f == Form::Rows16) p.obj = up16(p.obj);
    }
    if (!array) p.obj = 0;
    const int64_t extent = int64_t(count - 1) * p.obj + int64_t(rows - 1) * p.row + int64_t(cols - 1) * p.elem + es;
    p.base = ar.take(extent, misalign);
  } else if (lay == Lay::L) {
    p.roi = f == Form::Interleaved ? 2 * es : 0;
    const int64_t extent = int64_t(rows - 1) * p.row + int64_t(cols - 1) * p.elem + es + p.roi;
    for (int n = 0; n < count; ++n) p.entries.push_back(ar.take(extent, misalign));
    std::reverse(p.entries.begin(), p.entries.end());  // objects in no particular order
  } else {
    p.roi = f == Form::Interleaved || f == Form::Padded ? 2 * es : 0;
    if (array) p.obj = f == Form::Strided ? 2 * es : f == Form::Interleaved ? rows * cols * es : es;
    if (f == Form::Interleaved) {  // structure of arrays read as an array of structures
      const int64_t at = ar.take(int64_t(rows) * cols * es + int64_t(count) * p.obj + p.roi);
      for (int e = 0; e < rows * cols; ++e) p.entries.push_back(at + int64_t(e) * es);
    } else {
      const int64_t stream = int64_t(count - 1) * p.obj + es + p.roi;
      for (int e = 0; e < rows * cols; ++e) p.entries.push_back(ar.take(stream, misalign));
      if (rows * cols > 2) std::swap(p.entries.front(), p.entries.back());
    }
  }
  return p;
}

// The operand in the form the call takes, with its tables kept alive here.
class Bound {
 public:
  tt::ArgBlk bind(const Place& p, std::byte* arena) {
    tt::ArgBlk o;
    o.obj = p.obj;
    o.row = p.row;
    o.elem = p.elem;
    o.roi = p.roi;
    if (p.lay == Lay::S) {
      o.ptr = arena + p.base;
    } else {
      auto& t = tables_.emplace_back();
      for (int64_t e : p.entries) t.push_back(arena + e);
      o.ptr = t.data();
    }
    return o;
  }

 private:
  std::vector<std::vector<void*>> tables_;
};

// Bit patterns a float path would disturb: signalling NaNs, negative zero, denormals.
inline void fillElem(std::byte* p, int es, std::mt19937& rng) {
  const uint32_t f[] = {0x7f800001u, 0xffa00000u, 0x80000000u, 0x00000001u, 0x807fffffu};
  const uint64_t d[] = {0x7ff0000000000001ull, 0xfff4000000000000ull, 0x8000000000000000ull, 1ull,
                        0x800fffffffffffffull};
  const unsigned k = rng() % 8;
  if (es == 4) {
    const uint32_t v = k < 5 ? f[k] : uint32_t(rng());
    std::memcpy(p, &v, 4);
  } else {
    const uint64_t v = k < 5 ? d[k] : (uint64_t(rng()) << 32 | rng());
    std::memcpy(p, &v, 8);
  }
}
inline void fill(std::byte* arena, const Place& p, int count, int es, std::mt19937& rng) {
  for (int n = 0; n < count; ++n)
    for (int r = 0; r < p.rows; ++r)
      for (int c = 0; c < p.cols; ++c) fillElem(arena + p.at(n, r, c), es, rng);
}

inline const char* formName(Form f) {
  switch (f) {
    case Form::Packed: return "packed";
    case Form::Padded: return "padded";
    case Form::Strided: return "strided";
    case Form::Interleaved: return "interleaved";
    case Form::Rows16: return "rows16";
  }
  return "";
}

}  // namespace movetest
