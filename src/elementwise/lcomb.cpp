// LComb: dst = src1*val1 + src2*val2, both products and the sum each rounded in the element
// type. The product of a single src2 is formed again for every object.
#include "elementwise.hpp"

namespace tarn::lcomb {

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  using Op = elementwise::LCombOp<T>;
  return elementwise::run<Op, P, T, L>(Op{T(c.val[0]), T(c.val[1])}, plan, c);
}

}  // namespace tarn::lcomb

#define TARN_IMPL_lcomb
#include "bindings.hpp"
