// EigenValuesSym: all eigenvalues of symmetric matrices, in descending order.
//
// Orders 3 to 6 of an array go through the lanes (eigen_sym_lanes.hpp) in whole groups; a
// single matrix, the objects of a last partial group, other orders and every object the lanes
// hand back take the plain path (eigen_sym.hpp). Both compute each object's bits alike.
#include "eigen_sym_lanes.hpp"

namespace tarn::eigen_values_sym {

using namespace eigsym;

// Groups of lanes taken together, so the processor overlaps their chains of divisions and roots.
inline constexpr int kGroups = 2;

template <bool Lanes, class T, class A>
tarnStatus values(const A& src, T* scratch, T* dst, int32_t n, int32_t count) {
  int32_t k = 0;
  if (Lanes && count >= simd::kLanes<T> * kGroups) {
    tarnStatus st = tarnStatusOk;
    switch (n) {
      case 3: st = valuesInLanes<T, 3, kGroups>(src, scratch, dst, count, k); break;
      case 4: st = valuesInLanes<T, 4, kGroups>(src, scratch, dst, count, k); break;
      case 5: st = valuesInLanes<T, 5, kGroups>(src, scratch, dst, count, k); break;
      case 6: st = valuesInLanes<T, 6, kGroups>(src, scratch, dst, count, k); break;
      default: break;
    }
    if (st != tarnStatusOk) return st;
  }
  for (; k < count; ++k)
    if (const tarnStatus st = valuesOne(src.obj(k), scratch, byteAdd(dst, off32(k, n * int32_t(sizeof(T)))), n))
      return st;  // the objects behind the first failure are not touched
  return tarnStatusOk;
}

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) -> tarnStatus {
    constexpr Shape S = shapeOf(P);
    const auto src = operandOf<T, L, Contig, S.a>(s.op[0], s.order);
    // A single matrix is one object, and no object loop surrounds it.
    return values<S.anyArray>(src, plainOf<T>(s.op[1]), plainOf<T>(s.op[2]), s.order, S.anyArray ? s.count : 1);
  });
}

}  // namespace tarn::eigen_values_sym

#define TARN_IMPL_eigen_values_sym
#include "bindings.hpp"
