// Plain models of the element-wise families and the products with a constant: one result
// element from the two operands (in the order of the pattern's letters) and the call's scalars,
// computed in float for esize 4 and in double for esize 8, one rounding per operation.
#pragma once

#include "harness.hpp"

namespace tt {

template <class T>
double inType(const Args& a, double x, double y, int esize) {
  return esize == 4 ? double(T::template op<float>(float(x), float(y), float(a.val[0]), float(a.val[1])))
                    : T::template op<double>(x, y, a.val[0], a.val[1]);
}
struct AddOp { template <class T> static T op(T a, T b, T, T) { return a + b; } };
struct SubOp { template <class T> static T op(T a, T b, T, T) { return a - b; } };
struct MulOp { template <class T> static T op(T a, T b, T, T) { return a * b; } };
// dst = src1*val + src2, dst = src1*val1 + src2*val2: each product rounded, then the sum.
struct SaxpyOp { template <class T> static T op(T a, T b, T v1, T) { return a * v1 + b; } };
struct LCombOp { template <class T> static T op(T a, T b, T v1, T v2) { return a * v1 + b * v2; } };

inline double refAdd(double a, double b, const Args& x, int e) { return inType<AddOp>(x, a, b, e); }
inline double refSub(double a, double b, const Args& x, int e) { return inType<SubOp>(x, a, b, e); }
inline double refMul(double a, double b, const Args& x, int e) { return inType<MulOp>(x, a, b, e); }
inline double refSaxpy(double a, double b, const Args& x, int e) { return inType<SaxpyOp>(x, a, b, e); }
inline double refLComb(double a, double b, const Args& x, int e) { return inType<LCombOp>(x, a, b, e); }

}  // namespace tt
