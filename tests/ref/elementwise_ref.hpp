// Plain model of the element-wise families: what one result element is, in the element type.
#pragma once

#include <functional>

namespace tt {

struct Args;

// One result element from the two operands in the order of the arithmetic (the pattern's
// letters), the call's scalars and the element size. Computed in float for esize 4 and in
// double for esize 8: one rounding per operation, no fused multiply-add.
using RefOp = std::function<double(double a, double b, const Args& args, int esize)>;

inline double inType(double v, int esize) { return esize == 4 ? double(float(v)) : v; }

inline double refAdd(double a, double b, const Args&, int esize) {
  return esize == 4 ? double(float(a) + float(b)) : a + b;
}
inline double refSub(double a, double b, const Args&, int esize) {
  return esize == 4 ? double(float(a) - float(b)) : a - b;
}

}  // namespace tt
