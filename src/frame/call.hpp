// The call descriptor: what a binding makes of a member's flat C arguments.
//
// Every operand block of the argument list becomes one Blk, in argument order, with a mask of
// the fields the caller's block actually carries; validation and the families read blocks and
// sizes from here instead of fourteen loose integers.
#pragma once

#include <cstdint>

#include "tarn.h"

namespace tarn {

enum BlkField : uint8_t { kObj = 1, kRow = 2, kElem = 4, kRoi = 8 };
enum SizeField : uint8_t { kWidth = 1, kHeight = 2, kLen = 4 };

struct Blk {
  const void* ptr;  // base pointer, or the table of a LayoutL / LayoutP operand
  int32_t obj, row, elem, roi;
  uint8_t has;      // BlkField mask
};

struct Call {
  Blk op[4];
  uint8_t nop;
  uint8_t sizes;    // SizeField mask
  bool hasCount;
  int32_t width, height, len, count;
  double val[2];    // scalars passed by value; a float converts to double and back exactly
};

// Every pattern of the export list.
enum class Pat : uint8_t {
  none,
  m, t, v, ma, ta, va,
  mm, mt, tm, tt, vv, vc, cv,
  mam, tam, mat, tat, mma, mta, tma, tta, mama, mata, tama, tata,
  vav, vva, vava, vac, vca, vaca, cav, cva, cava,
};

constexpr const char* patName(Pat p) {
  constexpr const char* kNames[] = {
      "", "m", "t", "v", "ma", "ta", "va", "mm", "mt", "tm", "tt", "vv", "vc", "cv",
      "mam", "tam", "mat", "tat", "mma", "mta", "tma", "tta", "mama", "mata", "tama", "tata",
      "vav", "vva", "vava", "vac", "vca", "vaca", "cav", "cva", "cava"};
  return kNames[int(p)];
}

// The operands of a pattern in the order of the arithmetic: kind letter and whether an array.
struct Operand {
  char kind = 0;
  bool array = false;
};
struct Shape {
  Operand a, b;  // b.kind is 0 for one-operand patterns
  bool matrix, anyArray;
};
constexpr Shape shapeOf(Pat p) {
  const char* s = patName(p);
  Shape sh{};
  Operand* slot[2] = {&sh.a, &sh.b};
  int k = 0;
  for (int i = 0; s[i] && k < 2; ++i) {
    Operand o{s[i], s[i + 1] == 'a'};
    if (o.array) ++i;
    *slot[k++] = o;
    sh.matrix |= o.kind == 'm' || o.kind == 't';
    sh.anyArray |= o.array;
  }
  return sh;
}

}  // namespace tarn
