// Gaxpy: dst = src1 * src2 + src3 for one matrix read as stored, with one vector or a batch of
// vectors, and an addend per vector (mva) or one for the call (mv, mvav). The addend is added
// last, to the complete sum of products.
#include "matvec.hpp"

namespace tarn::gaxpy {

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  constexpr bool kAddendArray = S.anyArray && S.c.kind == 0;  // mva: src3 is shaped like dst
  const int32_t w = c.op[0].w, h = c.op[0].h;
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) {
    const auto a = operandOf<T, L, Contig, Operand{'m', false}>(s.op[0], w);
    const auto v = operandOf<T, L, Contig, S.b>(s.op[1], s.op[1].w);
    const auto s3 = operandOf<T, L, Contig, Operand{'v', kAddendArray}>(s.op[2], s.op[2].w);
    const auto d = operandOf<T, L, Contig, Operand{'v', S.anyArray}, true>(s.op[3], h);
    matvec::worker<T, L, Contig, S, true>(d, a, v, s3, S.anyArray ? s.count : 1, w, h);
    return tarnStatusOk;
  });
}

}  // namespace tarn::gaxpy

#define TARN_IMPL_gaxpy
#include "bindings.hpp"
