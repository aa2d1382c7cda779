// Det: the determinant of each matrix, never a failure: a matrix found singular gives 0.
//
// Orders 3 to 6 are closed-form minor expansions with no tolerance (det_fixed.hpp), several
// matrices at a time in the lanes of a register in arrays. Orders 1, 2 and from 7 use an
// elimination of their own with partial pivoting on a row order, in `buffer`: n*n elements of
// working copy, row length n, followed by n row numbers. Its tolerance is 2*n^3 times the
// smallest normal number; a stage fails below it, the last element unless above it.
#include "call.hpp"
#include "det_fixed.hpp"
#include "dispatch.hpp"

namespace tarn::det {

template <class T, class Src>
T eliminate(const Src& src, T* w, int32_t n) {
  int32_t* const r = reinterpret_cast<int32_t*>(w + size_t(n) * size_t(n));
  const T tol = solve::cubeTolerance<T>(n);
  auto e = [&](int32_t row, int32_t col) -> T& { return w[r[row] * n + col]; };
  T result = 1, sign = 1;
  for (int32_t i = 0; i < n; ++i) {
    r[i] = i;
    for (int32_t j = 0; j < n; ++j) w[i * n + j] = loadElem(src.at(i, j));
  }
  for (int32_t k = 0; k + 1 < n; ++k) {
    int32_t pos = k;
    T best = std::fabs(e(k, k));
    for (int32_t i = k + 1; i < n; ++i)
      if (std::fabs(e(i, k)) > best) {
        best = std::fabs(e(i, k));
        pos = i;
      }
    if (pos != k) {
      std::swap(r[k], r[pos]);
      sign = -sign;
    }
    const T p = e(k, k);
    if (std::fabs(p) < tol) return T(0);
    for (int32_t i = k + 1; i < n; ++i) {
      const T f = e(i, k) / p;
      for (int32_t j = k + 1; j < n; ++j) e(i, j) = e(i, j) - f * e(k, j);
    }
    result = p * result;
  }
  const T x = e(n - 1, n - 1);
  if (!(std::fabs(x) > tol)) return T(0);
  return result * (x * sign);
}

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  const int32_t n = c.order;
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) -> tarnStatus {
    const auto src = operandOf<T, L, Contig, S.a>(s.op[0], n);
    T* const w = plainOf<T>(s.op[1]);
    T* const dst = plainOf<T>(s.op[2]);
    const int32_t count = S.anyArray ? s.count : 1;
    auto fixed = [&]<int N>() {
      if constexpr (S.anyArray) {
        using V = solve::Lanes<T>;
        constexpr int NL = solve::kLanesOf<V>;
        V a[N][N];
        for (int32_t k = 0; k < count; k += NL) {
          const int32_t nv = std::min<int32_t>(NL, count - k);
          solve::gather(solve::groupOf<NL>(src, k, nv).v, a);
          const V d = minors::detFixed<N>(a);
          if (nv == NL) {
            simd::store<NL, false>(dst + k, d.v[0]);
          } else {
            for (int l = 0; l < nv; ++l) dst[k + l] = solve::laneOf(d, l);
          }
        }
      } else {
        T a[N][N];
        solve::load1(src.obj(0), a);
        *dst = minors::detFixed<N>(a);
      }
    };
    switch (n) {
      case 3: fixed.template operator()<3>(); break;
      case 4: fixed.template operator()<4>(); break;
      case 5: fixed.template operator()<5>(); break;
      case 6: fixed.template operator()<6>(); break;
      default:
        for (int32_t k = 0; k < count; ++k) dst[k] = eliminate(src.obj(k), w, n);
    }
    return tarnStatusOk;
  });
}

}  // namespace tarn::det

#define TARN_IMPL_det
#include "bindings.hpp"
