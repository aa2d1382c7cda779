// L2Norm: the square root of the sum of squares of each vector, the plain sum with no scaling
// (an element of 1e30 in 32f gives infinity), one element of the plain result array per object.
//
// The order of the additions belongs to the path:
//   contiguous, 3 to 6 elements   32f: 3 left to right, 4 to 6 (p0 + p1) + (p2 + p3), then p4,
//                                  or (p4 + p5); 64f in pairs of lanes (pairs64 below)
//   contiguous, other lengths     the dot rule of the vector with itself, aligned on src
//   strided and LayoutP           3 to 6 left to right, else even and odd sums. LayoutP has no
//                                  contiguous form: its elements are read one by one through
//                                  the table, like a strided vector's.
// Contiguous float arrays of 3 and 4 elements put four objects into the lanes of a register,
// each lane adding its object's squares in the order above and taking its own square root.
#include "reduce.hpp"

namespace tarn::l2_norm {
namespace {

using reduce::Quad;

// 64f pairs of lanes: three elements (p2 + p0) + p1; the lanes (p0 + p2, p1 + p3) summed for
// four; for five lane 0, then p4, then lane 1; for six the lanes of (p0 + p2 + p4, p1 + p3 + p5).
template <int N, class P>
double pairs64(const P& p) {
  if constexpr (N == 3) return (p(2) + p(0)) + p(1);
  else if constexpr (N == 4) return (p(0) + p(2)) + (p(1) + p(3));
  else if constexpr (N == 5) return ((p(0) + p(2)) + p(4)) + (p(1) + p(3));
  else return ((p(0) + p(2)) + p(4)) + ((p(1) + p(3)) + p(5));
}

template <class T, int N, class P>
T contiguousSum(const P& p) {
  if constexpr (std::is_same_v<T, double>) return pairs64<N>(p);
  else if constexpr (N == 3) return reduce::leftToRight<3, T>(p);
  else return reduce::halves<N, T>(p);
}

// Float arrays of N = 3 or 4 contiguous elements, four objects a register; returns the objects
// done.
template <int N, class A>
int32_t lanes(const A& a, float* d, int32_t count) {
  const bool packed = reduce::packed3(a);
  return reduce::inBlocks(count, [&](int32_t n, bool last) {
    reduce::readAhead(a, n);
    Quad<N> x;
    if constexpr (N == 3 && std::is_same_v<A, ArrS<const float, true>>)
      x = packed ? reduce::quadPacked3(a, n) : reduce::quadRow<N>(a, n, 0, last);
    else x = reduce::quadRow<N>(a, n, 0, last);
    __m128 s[N];
    for (int k = 0; k < N; ++k) s[k] = simd::mul(x.v[k], x.v[k]);
    const __m128 sum = N == 3 ? simd::add(simd::add(s[0], s[1]), s[N - 1])
                              : simd::add(simd::add(s[0], s[1]), simd::add(s[N - 2], s[N - 1]));
    simd::store<4, false>(d + n, simd::sqrtLanes(sum));
  });
}

template <class T, Layout L, bool Contig, Shape S, class A>
void worker(const A& a, T* d, int32_t count, int32_t len) {
  auto fixed = [&]<int N>() {
    const auto xa = cached<N>(a);
    int32_t done = 0;
    if constexpr (std::is_same_v<T, float> && Contig && L != Layout::P && S.a.array && (N == 3 || N == 4))
      done = lanes<N>(a, d, count);
    for (int32_t n = done; n < count; ++n) {
      const auto v = xa.obj(n);
      auto p = [&](int k) {
        const T x = reduce::elem(v, k);
        return T(x * x);
      };
      if constexpr (Contig && L != Layout::P) d[n] = simd::sqrtOf(contiguousSum<T, N>(p));
      else d[n] = simd::sqrtOf(reduce::leftToRight<N, T>(p));
    }
  };
  switch (len) {
    case 3: return fixed.template operator()<3>();
    case 4: return fixed.template operator()<4>();
    case 5: return fixed.template operator()<5>();
    case 6: return fixed.template operator()<6>();
  }
  for (int32_t n = 0; n < count; ++n) {
    const auto v = a.obj(n);
    auto p = [&](int32_t k) {
      const T x = reduce::elem(v, k);
      return T(x * x);
    };
    if constexpr (Contig && L != Layout::P) d[n] = simd::sqrtOf(reduce::dotRule<T>(v.p, v.p, len));
    else d[n] = simd::sqrtOf(reduce::evenOdd<T>(len, p));
  }
}

}  // namespace

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) {
    const auto a = operandOf<T, L, Contig, S.a>(s.op[0], c.len);
    const int32_t count = S.anyArray ? s.count : 1;  // a single vector has no object loop
    if (count > 0) worker<T, L, Contig, S>(a, plainOf<T>(s.op[1]), count, c.len);
    return tarnStatusOk;
  });
}

}  // namespace tarn::l2_norm

#define TARN_IMPL_l2_norm
#include "bindings.hpp"
