// Plain model of Saxpy and LComb: the scalars of the call multiply the operand they stand
// behind; every product and the sum are rounded in the element type, one operation at a time.
#pragma once

#include "members.hpp"
#include "ref/elementwise_ref.hpp"

namespace tt {

template <class T>
inline T scaledSum(T a, T s1, T b, T s2, bool scaleB) {
  const T pa = a * s1;              // rounded product
  const T pb = scaleB ? b * s2 : b;  // rounded product, or b itself
  return pa + pb;                    // rounded sum
}

// dst = src1*val + src2: args.val[0] is val.
inline double refSaxpy(double a, double b, const Args& args, int esize) {
  return esize == 4 ? double(scaledSum<float>(float(a), float(args.val[0]), float(b), 0.0f, false))
                    : scaledSum<double>(a, args.val[0], b, 0.0, false);
}

// dst = src1*val1 + src2*val2: args.val[0] is val1, args.val[1] is val2.
inline double refLComb(double a, double b, const Args& args, int esize) {
  return esize == 4 ? double(scaledSum<float>(float(a), float(args.val[0]), float(b), float(args.val[1]), true))
                    : scaledSum<double>(a, args.val[0], b, args.val[1], true);
}

}  // namespace tt
