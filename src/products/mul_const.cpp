// Mul with a constant: dst = src * val for a matrix (as stored or transposed) or a vector, one
// object or arrays, with one constant or one per object. Every result element is one rounded
// multiplication, src's element first, so the element-wise bodies serve with the product as
// their operation and every path gives the same bits; val 0 is an ordinary factor (NaN and
// infinity still give NaN).
#include "../elementwise/elementwise.hpp"

namespace tarn::mulc {

struct MulOp {
  static constexpr bool kArrayRowLoop = false, kNoPairLen4 = false;
  template <class T> T operator()(T a, T b) const { return a * b; }
  template <class V> V vec(V a, V b) const { return simd::mul(a, b); }
};

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  return elementwise::run<MulOp, P, T, L>(MulOp{}, plan, c);
}

}  // namespace tarn::mulc

#define TARN_IMPL_mulc
#include "bindings.hpp"
