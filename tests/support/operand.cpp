#include "operand.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>

#include <sys/mman.h>
#include <unistd.h>

namespace tt {

const std::vector<Style>& styles() {
  static const std::vector<Style> kStyles = {
      {.name = "packed"},
      {.name = "aligned16", .alignTo = 16},
      {.name = "aligned64", .alignTo = 64},
      {.name = "padded", .rowPad = 1, .objPadBytes = 8, .misalign = 1},
      {.name = "strided", .elemGap = 2, .rowPad = 1, .objPadBytes = 24},
      {.name = "soa", .soa = true},
      {.name = "guarded", .guard = true},
      {.name = "guarded-padded", .rowPad = 1, .guard = true},
      {.name = "offElement", .misalignBytes = 2},
  };
  return kStyles;
}

const Style& style(const std::string& name) {
  for (const auto& s : styles())
    if (name == s.name) return s;
  std::abort();
}

static size_t roundUp(size_t v, size_t to) { return to ? (v + to - 1) / to * to : v; }

Storage::Storage(size_t size, bool guard) : size_(size) {
  if (!guard) {
    vec_.assign(size, kFill);
    data_ = vec_.data();
    return;
  }
  const size_t page = size_t(sysconf(_SC_PAGESIZE)), body = roundUp(size, page);
  mapSize_ = body + page;
  void* m = mmap(nullptr, mapSize_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (m == MAP_FAILED) std::abort();
  map_ = static_cast<uint8_t*>(m);
  mprotect(map_ + body, page, PROT_NONE);
  data_ = map_ + body - size;
  std::memset(data_, kFill, size);
}

Storage::Storage(const Storage& o) : Storage(o.size_, o.guarded()) { std::memcpy(data_, o.data_, size_); }

Storage::~Storage() {
  if (map_) munmap(map_, mapSize_);
}

size_t Operand::place(size_t bytes, size_t align) {
  used_ = roundUp(used_, align ? align : 1);
  const size_t at = used_;
  used_ += bytes + 16;  // a gap of canaries behind every piece
  return at;
}

Operand::Operand(char layout, int esize, int rows, int cols, int count, bool array, const Style& st)
    : esize_(esize), rows_(rows), cols_(cols), count_(count) {
  const size_t es = size_t(esize), elems = size_t(rows) * cols;
  off_.resize(size_t(count) * elems);
  auto idx = [&](int n, int r, int c) { return (size_t(n) * rows + r) * cols + c; };
  used_ = 64;  // leading canaries
  const bool soa = st.soa && array && count > 1;
  const size_t skew = st.misalign * es + size_t(st.misalignBytes);
  if (layout == 'P') {
    // One stream per stored element; objStride between the objects of a stream.
    const size_t obj = soa ? elems * es : es * st.elemGap + (st.objPadBytes / esize) * es;
    const int32_t roi = int32_t(es);
    table_.resize(elems);
    size_t soaBase = soa ? place(elems * es * count, 64) : 0;
    for (size_t e0 = 0; e0 < elems; ++e0) {
      const size_t e = elems - 1 - e0;  // streams in reverse order of their table entries
      const size_t start = soa ? soaBase + e * es : place((count - 1) * obj + es, st.alignTo) + skew;
      if (!soa) used_ += skew;
      for (int n = 0; n < count; ++n) off_[size_t(n) * elems + e] = start + n * obj;
    }
    blk_.obj = int32_t(obj);
    blk_.roi = roi;
  } else {
    const size_t elem = soa ? es * count : es * st.elemGap;
    size_t row = soa ? elem * cols : roundUp(elem * cols + st.rowPad * es, st.alignTo);
    if (rows == 1 && !soa) row = roundUp(elem * cols, st.alignTo);
    const size_t extent = (rows - 1) * row + (cols - 1) * elem + es;
    const size_t obj = soa ? es : roundUp(rows * row + st.objPadBytes, st.alignTo);
    if (layout == 'L' && array) {
      // Objects anywhere: placed in reverse order, odd objects nudged off the alignment so one
      // call meets aligned and unaligned objects.
      for (int n0 = 0; n0 < count; ++n0) {
        const int n = count - 1 - n0;
        const size_t start = place(extent + es, st.alignTo ? st.alignTo : 16) + skew + (st.alignTo && n % 2) * es;
        used_ += es;
        for (int r = 0; r < rows; ++r)
          for (int c = 0; c < cols; ++c) off_[idx(n, r, c)] = start + r * row + c * elem;
      }
      table_.resize(count);
      blk_.roi = int32_t(2 * es);
    } else {
      const size_t start = place((count - 1) * obj + extent, st.alignTo ? st.alignTo : 64) + skew;
      used_ += skew;
      for (int n = 0; n < count; ++n)
        for (int r = 0; r < rows; ++r)
          for (int c = 0; c < cols; ++c) off_[idx(n, r, c)] = start + n * obj + r * row + c * elem;
    }
    blk_.obj = int32_t(obj);
    blk_.row = int32_t(row);
    blk_.elem = int32_t(elem);
  }
  if (st.guard) {
    // Storage ends with the last element, right before the inaccessible page.
    size_t end = 0;
    for (size_t o : off_) end = std::max(end, o + es);
    mem_ = std::make_unique<Storage>(end, true);
    base_ = mem_->data();
  } else {
    mem_ = std::make_unique<Storage>(used_ + 64 + 64, false);
    base_ = mem_->data() + (64 - reinterpret_cast<uintptr_t>(mem_->data()) % 64) % 64;
  }
  if (layout == 'P') {
    for (size_t e = 0; e < elems; ++e) table_[e] = base_ + off_[e] - blk_.roi;
    blk_.ptr = table_.data();
  } else if (layout == 'L' && array) {
    for (int n = 0; n < count; ++n) table_[n] = base_ + off_[idx(n, 0, 0)] - blk_.roi;
    blk_.ptr = table_.data();
  } else {
    blk_.ptr = base_ + off_[0];
  }
}

Operand::Operand(const Operand& o)
    : esize_(o.esize_), rows_(o.rows_), cols_(o.cols_), count_(o.count_), mem_(std::make_unique<Storage>(*o.mem_)),
      used_(o.used_),
      off_(o.off_), table_(o.table_), blk_(o.blk_) {
  base_ = mem_->data() + (o.base_ - o.mem_->data());
  const std::ptrdiff_t delta = base_ - o.base_;
  for (auto& t : table_) t = static_cast<uint8_t*>(t) + delta;
  blk_.ptr = o.table_.empty() ? static_cast<void*>(static_cast<uint8_t*>(o.blk_.ptr) + delta) : table_.data();
}

void* Operand::at(int n, int r, int c) const { return base_ + off_[(size_t(n) * rows_ + r) * cols_ + c]; }

uint64_t Operand::bits(int n, int r, int c) const {
  uint64_t v = 0;
  std::memcpy(&v, at(n, r, c), size_t(esize_));
  return v;
}
void Operand::setBits(int n, int r, int c, uint64_t v) { std::memcpy(at(n, r, c), &v, size_t(esize_)); }
double Operand::get(int n, int r, int c) const { return valueOf(bits(n, r, c), esize_); }
void Operand::set(int n, int r, int c, double v) { setBits(n, r, c, bitsOf(v, esize_)); }

void Operand::fillRandom(std::mt19937& rng, bool specials) {
  std::uniform_int_distribution<int> pick(0, 15);
  const double specialValues[] = {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                                  -std::numeric_limits<double>::infinity(), -0.0,
                                  esize_ == 4 ? 1e-40 : 1e-310};
  for (int n = 0; n < count_; ++n)
    for (int r = 0; r < rows_; ++r)
      for (int c = 0; c < cols_; ++c) {
        const int k = pick(rng);
        set(n, r, c, specials && k < 5 ? specialValues[k] : randomValue(rng, esize_));
      }
}

bool Operand::canariesIntact() const {
  // A copy with every element's bytes set to the fill: intact when nothing else differs from it.
  std::vector<uint8_t> copy = snapshot();
  const size_t lead = size_t(base_ - mem_->data());
  for (size_t o : off_) std::memset(copy.data() + lead + o, kFill, size_t(esize_));
  return std::all_of(copy.begin(), copy.end(), [](uint8_t b) { return b == kFill; });
}

// uniform_real_distribution<double>(1, 2) draw for draw, without the long double logarithms the
// standard library evaluates on every draw (most of a sweep's time under a sanitizer).
static double mantissa(std::mt19937& rng) {
  const double lo = double(rng()), hi = double(rng());
  double u = (lo + hi * 4294967296.0) / 18446744073709551616.0;
  if (u >= 1.0) u = std::nextafter(1.0, 0.0);
  return u + 1.0;
}

double randomValue(std::mt19937& rng, int esize) {
  std::uniform_int_distribution<int> ex(-6, 6), sign(0, 1);
  // One draw per statement: the order in which a call's arguments are evaluated differs between
  // compilers, and with it the data.
  const double m = mantissa(rng);
  const int e = ex(rng);
  const double v = std::ldexp(m, e) * (sign(rng) ? -1 : 1);
  return esize == 4 ? double(float(v)) : v;
}

uint64_t bitsOf(double v, int esize) {
  if (esize == 8) {
    uint64_t b;
    std::memcpy(&b, &v, 8);
    return b;
  }
  const float f = float(v);
  uint32_t b;
  std::memcpy(&b, &f, 4);
  return b;
}

double valueOf(uint64_t bits, int esize) {
  if (esize == 8) {
    double d;
    std::memcpy(&d, &bits, 8);
    return d;
  }
  const uint32_t b = uint32_t(bits);
  float f;
  std::memcpy(&f, &b, 4);
  return f;
}

}  // namespace tt
