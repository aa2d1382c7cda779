// A member's check sequence as the member table spells it: letters run left to right, the first
// failing one decides the status.
#pragma once

#include <vector>

#include "members.hpp"

namespace tt {

inline tarnStatus statusOf(char letter) {
  switch (letter) {
    case 'N': return tarnStatusNullPointer;
    case 'C': return tarnStatusBadCount;
    case 'Z': return tarnStatusBadSize;
    case 'H': return tarnStatusShapeMismatch;
    case 'T': case 'E': case 'O': return tarnStatusBadStride;
    case 'R': return tarnStatusBadRoiShift;
  }
  return 1;
}

// A check of the sequence: its letter, and `s` or `d` when it covers only the blocks the member
// reads or only those it writes.
struct Check {
  char letter, scope;
};
inline std::vector<Check> checksOf(const char* seq) {
  std::vector<Check> out;
  for (const char* p = seq; *p; ++p) out.push_back({*p, p[1] == 's' || p[1] == 'd' ? *++p : char(0)});
  return out;
}

// Whether pointer argument `i` of `m` is one the check covers.
inline bool inScope(const MemberFn& m, int i, char scope) { return scope == 0 || (scope == 'd') == m.blk[i].out; }

}  // namespace tt
