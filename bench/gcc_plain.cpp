// The plain loop of plain_loop.hpp built by g++ (-O3 -msse3 -ffp-contract=off), whatever
// compiler builds the rest of the suite: every shape, type and operation the workloads use.
#define TARN_PLAIN_NS gcc
#include "plain_loop.hpp"

namespace tarnbench::gcc {

#define TARN_GCC_SHAPES(T, Op)                          \
  template void plainLoop<T, 3, 3, Op>(const PlainArgs&); \
  template void plainLoop<T, 4, 4, Op>(const PlainArgs&); \
  template void plainLoop<T, 6, 6, Op>(const PlainArgs&); \
  template void plainLoop<T, 1, 3, Op>(const PlainArgs&);
#define TARN_GCC_OPS(T)           \
  TARN_GCC_SHAPES(T, Plus)        \
  TARN_GCC_SHAPES(T, Minus)       \
  TARN_GCC_SHAPES(T, Axpy<T>)     \
  TARN_GCC_SHAPES(T, Comb<T>)
TARN_GCC_OPS(float)
TARN_GCC_OPS(double)

}  // namespace tarnbench::gcc
