// The call descriptor: what a binding makes of a member's flat C arguments.
//
// Every pointer argument becomes one Blk, in argument order: an operand block with the strides
// and shift its layout gives it (and its own sizes where the member has per-operand sizes), or a
// plain pointer (a scalar result, eigenvalues, pivots, a work buffer). Each block says which of
// its fields the caller passed, whether the member reads or writes it, and how a thread's slice
// of an array call moves it. Validation, the driver and the families read blocks and sizes from
// here instead of seventeen loose integers.
#pragma once

#include <cstdint>

#include "members.hpp"
#include "tarn.h"

namespace tarn {

// Fields a block carries: strides, shift and its own sizes.
enum BlkField : uint8_t { kObj = 1, kRow = 2, kElem = 4, kRoi = 8, kWidth = 16, kHeight = 32 };
// Size arguments of the call as a whole.
enum SizeField : uint8_t { kSizeWidth = 1, kSizeHeight = 2, kSizeLen = 4, kSizeOrder = 8 };

// How a thread's slice [first, first + n) of an array call sees a block.
enum class Slice : uint8_t {
  Shared,       // single operands, tables of a single LayoutP operand, plain pointers shared by all
  ByObjStride,  // LayoutS arrays and LayoutS/LayoutP constant arrays: ptr + first*obj
  ByTable,      // LayoutL arrays: the table advanced by first entries
  ByRoi,        // LayoutP arrays: roi + first*obj, table unchanged
  ByElems,      // per-object plain arrays (scalar results, pivots, eigenvalues): ptr + first*perObj
  Scratch,      // the caller's work space: on the parallel path each thread gets its own
};

struct Blk {
  const void* ptr;  // base pointer, table of a LayoutL / LayoutP operand, or a plain pointer
  int32_t obj, row, elem, roi;
  int32_t w, h;     // the operand's own sizes: stored width (a vector's len) and height
  int32_t perObj;   // Slice::ByElems: bytes per object
  uint8_t has;      // BlkField mask
  char kind;        // m t v c for operands, 0 for a plain pointer
  bool out;         // written by the member
  Slice slice;
};

struct Call {
  Blk op[kMaxBlocks];
  uint8_t nop;
  uint8_t sizes;     // SizeField mask
  bool hasCount;
  int32_t width, height, len, order;  // order: widthHeight of square-matrix families
  int32_t count;     // 1 in members without a count
  int32_t est;       // the work estimate E, formed after validation
  int32_t scratch;   // bytes of per-thread work space the wrapper allocates, 0 for none
  double val[2];     // scalars passed by value; a float converts to double and back exactly
};

// Every pattern of the export list, from the member table.
enum class Pat : uint8_t {
#define TARN_PATTERN(id, text) id,
#include "patterns.inc"
#undef TARN_PATTERN
};

constexpr const char* patName(Pat p) {
  constexpr const char* kNames[] = {
#define TARN_PATTERN(id, text) text,
#include "patterns.inc"
#undef TARN_PATTERN
  };
  return kNames[int(p)];
}

// The operands of a pattern in the order of the arithmetic: kind letter and whether an array.
struct Operand {
  char kind = 0;
  bool array = false;
};
struct Shape {
  Operand a, b, c;  // kind 0 where the pattern has fewer operands
  bool matrix, anyArray;
};
constexpr Shape shapeOf(Pat p) {
  const char* s = patName(p);
  Shape sh{};
  Operand* slot[3] = {&sh.a, &sh.b, &sh.c};
  int k = 0;
  for (int i = 0; s[i] && k < 3; ++i) {
    Operand o{s[i], s[i + 1] == 'a'};
    if (o.array) ++i;
    *slot[k++] = o;
    sh.matrix |= o.kind == 'm' || o.kind == 't';
    sh.anyArray |= o.array;
  }
  return sh;
}

}  // namespace tarn
