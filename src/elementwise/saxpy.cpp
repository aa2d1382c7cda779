// Saxpy: dst = src1*val + src2, the product and the sum each rounded in the element type.
#include "elementwise.hpp"

namespace tarn::saxpy {

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  using Op = elementwise::SaxpyOp<T>;
  return elementwise::run<Op, P, T, L>(Op{T(c.val[0])}, plan, c);
}

}  // namespace tarn::saxpy

#define TARN_IMPL_saxpy
#include "bindings.hpp"
