// Sub: dst = minuend - subtrahend element by element, the minuend named first in the pattern.
// The constant-first forms (cv, cva, cav, cava) share their argument lists with the vector-first
// ones; the shared entry reads the operands in the order of the arithmetic, so only the sign of
// the operation tells them apart.
#include "elementwise.hpp"

namespace tarn::sub {

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  return elementwise::run<elementwise::SubOp, P, T, L>(elementwise::SubOp{}, plan, c);
}

}  // namespace tarn::sub

#define TARN_IMPL_sub
#include "bindings.hpp"
