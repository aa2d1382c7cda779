// Copy: every object of an array from one layout to another, element by element.
//
// One plain loop for all 36 members: objects in ascending order, rows, then columns two at a time
// with a tail element. Each element is read and then written before the next one is read, so
// when the operands overlap a later element reads what an earlier one wrote. No contiguous path,
// no alignment test, no block copy: the two accessors say where each element lies.
#include "move.hpp"

namespace tarn::copy {

template <Pat P, class T, Layout LS, Layout LD>
tarnStatus run(const Plan&, const Call& c) {
  const auto [h, w] = move::extentOf<P>(c);
  move::elementLoop(move::arrayOf<T, LD>(c.op[1], w), move::arrayOf<const T, LS>(c.op[0], w), c.count, h, w);
  return tarnStatusOk;
}

}  // namespace tarn::copy

#define TARN_IMPL_copy
#include "bindings.hpp"
