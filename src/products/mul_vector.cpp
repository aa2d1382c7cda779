// Mul with a matrix and a vector: dst = op(src1) * src2 for one matrix and one vector, a batch
// of vectors, a batch of matrices or both, the matrix read as stored (m) or transposed (t).
#include "matvec.hpp"

namespace tarn::mulv {

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  // src1's sizes describe it as stored; dst has the rows of the matrix as the product sees it.
  const int32_t w = c.op[0].w, h = c.op[0].h, rows = S.a.kind == 't' ? w : h;
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) {
    const auto a = operandOf<T, L, Contig, Operand{'m', S.a.array}>(s.op[0], w);
    const auto v = operandOf<T, L, Contig, S.b>(s.op[1], s.op[1].w);
    const auto d = operandOf<T, L, Contig, Operand{'v', S.anyArray}, true>(s.op[2], rows);
    // A single product is a count of 1 the compiler can see.
    matvec::worker<T, L, Contig, S, false>(d, a, v, matvec::NoAddend{}, S.anyArray ? s.count : 1, w, h);
    return tarnStatusOk;
  });
}

}  // namespace tarn::mulv

#define TARN_IMPL_mulv
#include "bindings.hpp"
