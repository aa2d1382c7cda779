// Test operands: objects placed in a canary-filled arena in any layout, so a test can hand the
// same logical objects to a member in LayoutS, LayoutL or LayoutP, packed, padded, strided,
// interleaved or misaligned, and afterwards prove that no byte outside the elements changed.
#pragma once

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "members.hpp"

namespace tt {

struct Style {
  const char* name;
  int elemGap = 1;      // element stride in elements (LayoutS/L), object stride in elements (LayoutP)
  int rowPad = 0;       // extra elements behind each row
  int objPadBytes = 0;  // extra bytes between objects (multiple of 8)
  int misalign = 0;     // elements between a 64-byte boundary and the first element
  int alignTo = 0;      // round row and object strides and bases up to this many bytes
  bool soa = false;     // objects interleaved element by element (arrays only)
  bool guard = false;   // the last element ends right before an inaccessible page
  int misalignBytes = 0;  // bytes more than `misalign`: elements off their own alignment
};

// Bytes an operand lives in. Guarded storage ends at a page the process may not touch, so a
// kernel that reads or writes one byte past an operand's last element faults.
class Storage {
 public:
  Storage(size_t size, bool guard);
  Storage(const Storage& o);
  Storage& operator=(const Storage&) = delete;
  ~Storage();
  uint8_t* data() const { return data_; }
  size_t size() const { return size_; }
  bool guarded() const { return map_ != nullptr; }

 private:
  std::vector<uint8_t> vec_;
  uint8_t* map_ = nullptr;
  size_t mapSize_ = 0;
  uint8_t* data_ = nullptr;
  size_t size_ = 0;
};

// The placements the sweeps run: each reaches a different branch of the kernels.
const std::vector<Style>& styles();
const Style& style(const std::string& name);

class Operand {
 public:
  // `count` objects of `rows` x `cols` stored elements (a vector is one row) in layout 'S', 'L'
  // or 'P'. `array` says whether the block has an object stride or table.
  Operand(char layout, int esize, int rows, int cols, int count, bool array, const Style& st);

  // A copy owns its own arena: its elements, table and block point into the copy.
  Operand(const Operand& o);
  Operand& operator=(const Operand&) = delete;

  ArgBlk blk() const { return blk_; }
  int esize() const { return esize_; }
  int count() const { return count_; }

  uint64_t bits(int n, int r, int c) const;
  void setBits(int n, int r, int c, uint64_t v);
  double get(int n, int r, int c) const;
  void set(int n, int r, int c, double v);

  // Fills every element with values drawn from `rng`; with `specials`, some are NaN, infinities,
  // signed zeros and denormals.
  void fillRandom(std::mt19937& rng, bool specials);

  std::vector<uint8_t> snapshot() const { return {mem_->data(), mem_->data() + mem_->size()}; }
  bool unchangedSince(const std::vector<uint8_t>& s) const { return s == snapshot(); }
  // Every byte that is not an element still holds the fill pattern.
  bool canariesIntact() const;
  void* at(int n, int r, int c) const;

 private:
  size_t place(size_t bytes, size_t align);
  int esize_, rows_, cols_, count_;
  std::unique_ptr<Storage> mem_;  // base_ is its 64-byte aligned start, or its start when guarded
  uint8_t* base_ = nullptr;
  size_t used_ = 0;
  std::vector<size_t> off_;   // byte offset of element (n, r, c)
  std::vector<void*> table_;
  ArgBlk blk_;
};

inline constexpr uint8_t kFill = 0xA5;

// A value with many significant bits, so rounding and operand order show in the result.
double randomValue(std::mt19937& rng, int esize);

// Bits of a value of the element type.
uint64_t bitsOf(double v, int esize);
double valueOf(uint64_t bits, int esize);

}  // namespace tt
