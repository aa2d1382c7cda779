// Every export of the shared object, callable by name from one argument record.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tarn.h"

namespace tt {

// Mirrors the library's call descriptor: one block per pointer argument in argument order.
struct ArgBlk {
  void* ptr = nullptr;
  int32_t obj = 0, row = 0, elem = 0, roi = 0;
  int32_t w = 0, h = 0;  // the operand's own sizes, where the member has them
};
struct Args {
  ArgBlk op[6];
  int32_t width = 0, height = 0, len = 0, order = 0, count = 0;  // order: widthHeight
  double val[2] = {0, 0};
};

// Fields a block carries: strides, shift, its own width (or len) and height.
enum : uint8_t { kObj = 1, kRow = 2, kElem = 4, kRoi = 8, kWidth = 16, kHeight = 32 };
// Size arguments of the call as a whole.
enum : uint8_t { kSizeWidth = 1, kSizeHeight = 2, kSizeLen = 4, kSizeOrder = 8 };

struct BlkInfo {
  uint8_t has;  // fields of the block
  char kind;    // m t v c, 0 for a plain pointer
  bool out;     // written by the member
  bool array;   // one object per object of the call (an array operand, or per-object results)
};

struct MemberFn {
  const char* name;
  tarnStatus (*call)(const Args&);
  const char* checks;  // the member's check letters, as the library runs them
  bool serialOnly;
  int nop;             // pointer arguments, dst included
  BlkInfo blk[6];
  uint8_t sizes;
  bool hasCount;
};

// The fixed-size members, which take no argument record.
const std::vector<std::string>& fixedMembers();

// Arguments for a call of any fixed-size member: its float pointers take floats[0], floats[1]
// ... in order, an int32_t pointer takes ints, every float takes value, an array form's strides
// take strides[0] (its source) and strides[1] (its result).
struct FixedArgs {
  float* floats[8] = {};
  int32_t* ints = nullptr;
  float value = 0;
  int32_t strides[2] = {}, count = 0;
};
struct FixedFn {
  const char* name;
  tarnStatus (*call)(const FixedArgs&);
  int8_t len[8];  // floats of one object behind each float pointer (1: a single float)
  uint8_t out;    // bit i: the member writes through floats[i]
  uint8_t array;  // bit i: floats[i] is an array of `count` objects, its stride apart
  bool ints;      // the member writes an int32_t through ints
};
const std::vector<FixedFn>& fixedCalls();

const std::vector<MemberFn>& allMembers();
const MemberFn& member(std::string_view name);
std::vector<const MemberFn*> membersOf(std::string_view family);  // "Add" -> tarnAdd_*

// What a name says: family, pattern, element size and layout letters.
struct Name {
  std::string family, pattern;
  int esize = 4;
  char layout = 'S', layout2 = 'S';  // layout2: Copy's destination
};
Name parseName(std::string_view exportName);

}  // namespace tt
