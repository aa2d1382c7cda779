// Every export of the shared object, callable by name from one argument record.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tarn.h"

namespace tt {

// Mirrors the library's call descriptor: one block per operand in argument order.
struct ArgBlk {
  void* ptr = nullptr;
  int32_t obj = 0, row = 0, elem = 0, roi = 0;
};
struct Args {
  ArgBlk op[4];
  int32_t width = 0, height = 0, len = 0, count = 0;
  double val[2] = {0, 0};
};

enum : uint8_t { kObj = 1, kRow = 2, kElem = 4, kRoi = 8 };  // fields an operand block carries
enum : uint8_t { kWidth = 1, kHeight = 2, kLen = 4 };       // size arguments

struct MemberFn {
  const char* name;
  tarnStatus (*call)(const Args&);
  const char* checks;  // the member's check letters, as the library runs them
  bool serialOnly;
  int nop;             // operand blocks, dst included
  uint8_t has[4];      // fields of each block
  uint8_t sizes;
  bool hasCount;
};

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
