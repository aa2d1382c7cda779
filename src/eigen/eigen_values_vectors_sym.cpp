// EigenValuesVectorsSym: eigenvalues of symmetric matrices in descending order, with the
// eigenvector of value j in column j of dstVectors.
//
// The precision follows the member: 64f computes in double; a single 32f matrix in single
// (its strided worker takes the shift of the upward sweep with g + r for any g > 0); 32f arrays
// keep single storage and compute their scalars in double.
#include "eigen_sym.hpp"
#include "dispatch.hpp"

namespace tarn::eigen_values_vectors_sym {

using namespace eigsym;

template <class Pr, int N, class A, class Z>
tarnStatus vectorsLoop(const A& src, typename Pr::T* scratch, const Z& z, typename Pr::T* values, int32_t n, int32_t count) {
  using T = typename Pr::T;
  for (int32_t k = 0; k < count; ++k) {
    T* v = byteAdd(values, off32(k, n * int32_t(sizeof(T))));
    const tarnStatus st = N ? vectorsFixed<Pr, N>(src.obj(k), v, z.obj(k)) : vectorsOne<Pr>(src.obj(k), scratch, v, z.obj(k), n);
    if (st) return st;  // the objects behind the first failure are not touched
  }
  return tarnStatusOk;
}

// Orders 3 to 6 in storage of their own size, the others through the plain path in scratch.
template <class Pr, class A, class Z>
tarnStatus vectors(const A& src, typename Pr::T* scratch, const Z& z, typename Pr::T* values, int32_t n, int32_t count) {
  switch (n) {
    case 3: return vectorsLoop<Pr, 3>(src, scratch, z, values, n, count);
    case 4: return vectorsLoop<Pr, 4>(src, scratch, z, values, n, count);
    case 5: return vectorsLoop<Pr, 5>(src, scratch, z, values, n, count);
    case 6: return vectorsLoop<Pr, 6>(src, scratch, z, values, n, count);
    default: return vectorsLoop<Pr, 0>(src, scratch, z, values, n, count);
  }
}

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) -> tarnStatus {
    constexpr Shape S = shapeOf(P);
    const auto src = operandOf<T, L, Contig, S.a>(s.op[0], s.order);
    const auto z = operandOf<T, L, Contig, Operand{'m', S.a.array}, true>(s.op[2], s.order);
    T* scratch = plainOf<T>(s.op[1]);
    T* values = plainOf<T>(s.op[3]);
    const int32_t count = S.anyArray ? s.count : 1;
    if constexpr (std::is_same_v<T, double>) return vectors<Vectors64>(src, scratch, z, values, s.order, count);
    else if constexpr (S.anyArray) return vectors<VectorsArr32>(src, scratch, z, values, s.order, count);
    else return vectors<VectorsOne32<L == Layout::S && !Contig>>(src, scratch, z, values, s.order, count);
  });
}

}  // namespace tarn::eigen_values_vectors_sym

#define TARN_IMPL_eigen_values_vectors_sym
#include "bindings.hpp"
