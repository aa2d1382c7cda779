// Drives any element-wise member (two operands, one result of the same shape) from its name:
// builds the operands its pattern and layout call for, runs it, and compares every result
// element bit for bit with the reference operation applied in the element type.
#pragma once

#include <omp.h>

#include <string>
#include <vector>

#include "members.hpp"
#include "operand.hpp"
#include "ref/elementwise_ref.hpp"

namespace tt {

struct EwShape {
  int h, w;  // result rows and columns; vectors use h = 1, w = len
};

struct EwRun {
  std::vector<uint64_t> result;  // dst bits in (object, row, column) order
  std::string failure;           // empty when every check passed
};

// Runs member `m` on objects made from `seed`, in placement `st`, on `threads` threads.
// `op` is the reference of one element: op(a, b, args, esize) in the element type.
// With `inPlace` the result is written over the first operand (same description).
EwRun runElementwise(const MemberFn& m, const EwShape& shape, int count, const Style& st, int threads,
                     unsigned seed, const RefOp& op, bool inPlace = false);

}  // namespace tt
