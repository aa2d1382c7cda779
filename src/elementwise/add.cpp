// Add: dst = src1 + src2 element by element, in every operand form of the family.
#include "elementwise.hpp"

namespace tarn::add {

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  return elementwise::run<elementwise::AddOp, P, T, L>(elementwise::AddOp{}, plan, c);
}

}  // namespace tarn::add

#define TARN_IMPL_add
#include "bindings.hpp"
