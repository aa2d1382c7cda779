// DotProduct: sum of src1[k]*src2[k] per pair of vectors, one element of the plain result array
// per object.
//
// The order of the additions belongs to the path:
//   contiguous, 3 to 6 elements   32f left to right (vav_32f of 4: (p0 + p1) + (p2 + p3));
//                                  64f of 3 left to right, of 4 to 6 in pairs of lanes
//   contiguous, other lengths     the dot rule (reduce.hpp), aligned on each object's src2
//   strided                        3 to 6 left to right, else even and odd sums
//   LayoutP                        3 to 6 left to right, else eight sums by k mod 8
// Contiguous float arrays of 3 and 4 elements put four objects into the lanes of a register,
// each lane adding its object's products in the order above.
#include "reduce.hpp"

namespace tarn::dot_product {
namespace {

using reduce::Quad;

// 64f pairs of lanes: (p0 + p2, p1 + p3) summed; five elements add p4 behind; six elements
// take (p0, p1) + ((p2, p3) + (p4, p5)) and then its lanes.
template <int N, class P>
double pairs64(const P& p) {
  if constexpr (N == 4) return (p(0) + p(2)) + (p(1) + p(3));
  else if constexpr (N == 5) return ((p(0) + p(2)) + (p(1) + p(3))) + p(4);
  else return (p(0) + (p(2) + p(4))) + (p(1) + (p(3) + p(5)));
}

// One contiguous pair of N = 3..6 elements; Vav: the single src2 of an array call.
template <class T, int N, bool Vav, class P>
T contiguousSum(const P& p) {
  if constexpr (std::is_same_v<T, float>) {
    if constexpr (N == 4 && Vav) return reduce::halves<4, T>(p);
    else return reduce::leftToRight<N, T>(p);
  } else {
    if constexpr (N == 3) return reduce::leftToRight<3, T>(p);
    else return pairs64<N>(p);
  }
}

// Eight sums by k mod 8 over whole steps of 8, added left to right, then the remaining
// products one by one.
template <class T, class P>
T eightWay(int32_t n, const P& p) {
  T acc[8] = {};
  int32_t k = 0;
  for (; k + 8 <= n; k += 8)
    for (int j = 0; j < 8; ++j) acc[j] = acc[j] + p(k + j);
  T s = acc[0];
  for (int j = 1; j < 8; ++j) s = s + acc[j];
  for (; k < n; ++k) s = s + p(k);
  return s;
}

// Float arrays of N = 3 or 4 contiguous elements, four objects a register. src2 is one vector
// broadcast element by element (vav) or an array loaded like src1 (vava); each lane sums as its
// object alone would. Returns the objects done; the rest go one at a time.
template <int N, bool Vav, class A, class B, class BV>
int32_t lanes(const A& a, const B& b, const BV& single, float* d, int32_t count) {
  __m128 bk[N];
  if constexpr (Vav)
    for (int k = 0; k < N; ++k) bk[k] = simd::broadcast(reduce::elem(single.obj(0), k));
  auto sum = [&](const Quad<N>& x, const Quad<N>& y) {
    __m128 p[N];
    for (int k = 0; k < N; ++k) p[k] = simd::mul(x.v[k], Vav ? bk[k] : y.v[k]);
    if constexpr (N == 3) return simd::add(simd::add(p[0], p[1]), p[2]);
    else if constexpr (Vav) return simd::add(simd::add(p[0], p[1]), simd::add(p[2], p[3]));
    else return simd::add(simd::add(simd::add(p[0], p[1]), p[2]), p[3]);
  };
  auto quad = [](const auto& arr, int32_t n, bool last, bool packed) {
    if constexpr (N == 3 && std::is_same_v<std::decay_t<decltype(arr)>, ArrS<const float, true>>)
      if (packed) return reduce::quadPacked3(arr, n);
    return reduce::quadRow<N>(arr, n, 0, last);
  };
  const bool pa = reduce::packed3(a);
  if constexpr (N == 3) {
    // Packed 3-vectors: the products are taken on the loaded vectors as they lie in memory
    // (src2's elements repeated in the same pattern for vav) and only the products are
    // transposed, which halves the shuffles.
    if (pa && (Vav || reduce::packed3(b))) {
      const float* pb = nullptr;
      __m128 rep[3];
      if constexpr (Vav) {
        const float b0 = reduce::elem(single.obj(0), 0), b1 = reduce::elem(single.obj(0), 1),
                    b2 = reduce::elem(single.obj(0), 2);
        rep[0] = simd::constant(b0, b1, b2, b0);
        rep[1] = simd::constant(b1, b2, b0, b1);
        rep[2] = simd::constant(b2, b0, b1, b2);
      } else {
        pb = b.obj(0).p;
      }
      const float* pa0 = a.obj(0).p;
      return reduce::inBlocks(count, [&](int32_t n, bool) {
        reduce::readAhead(a, n);
        if constexpr (!Vav) reduce::readAhead(b, n);
        __m128 p[3], x, y, z;
        for (int k = 0; k < 3; ++k)
          p[k] = simd::mul(simd::load<4, false>(pa0 + 3 * ptrdiff_t(n) + 4 * k),
                           Vav ? rep[k] : simd::load<4, false>(pb + 3 * ptrdiff_t(n) + 4 * k));
        simd::deinterleave3(p[0], p[1], p[2], x, y, z);
        simd::store<4, false>(d + n, simd::add(simd::add(x, y), z));
      });
    }
  }
  if constexpr (Vav) {
    return reduce::inBlocks(count, [&](int32_t n, bool last) {
      reduce::readAhead(a, n);
      const Quad<N> x = quad(a, n, last, pa);
      simd::store<4, false>(d + n, sum(x, x));
    });
  } else {
    const bool pb = reduce::packed3(b);
    return reduce::inBlocks(count, [&](int32_t n, bool last) {
      reduce::readAhead(a, n);
      reduce::readAhead(b, n);
      const Quad<N> x = quad(a, n, last, pa);
      const Quad<N> y = quad(b, n, last, pb);
      simd::store<4, false>(d + n, sum(x, y));
    });
  }
}

template <class T, Layout L, bool Contig, Shape S, class A, class B>
void worker(const A& a, const B& b, T* d, int32_t count, int32_t len) {
  constexpr bool kVav = S.a.array && !S.b.array;
  auto fixed = [&]<int N>() {
    const auto xa = cached<N>(a);
    const auto xb = reduce::readOnce<N, T>(b);
    int32_t done = 0;
    if constexpr (std::is_same_v<T, float> && Contig && L != Layout::P && S.a.array && (N == 3 || N == 4))
      done = lanes<N, kVav>(a, b, xb, d, count);
    for (int32_t n = done; n < count; ++n) {
      const auto va = xa.obj(n);
      const auto vb = xb.obj(n);
      auto p = [&](int k) { return T(reduce::elem(va, k) * reduce::elem(vb, k)); };
      if constexpr (Contig && L != Layout::P) d[n] = contiguousSum<T, N, kVav>(p);
      else d[n] = reduce::leftToRight<N, T>(p);
    }
  };
  switch (len) {
    case 3: return fixed.template operator()<3>();
    case 4: return fixed.template operator()<4>();
    case 5: return fixed.template operator()<5>();
    case 6: return fixed.template operator()<6>();
  }
  for (int32_t n = 0; n < count; ++n) {
    const auto va = a.obj(n);
    const auto vb = b.obj(n);
    auto p = [&](int32_t k) { return T(reduce::elem(va, k) * reduce::elem(vb, k)); };
    if constexpr (L == Layout::P) d[n] = eightWay<T>(len, p);
    else if constexpr (!Contig) d[n] = reduce::evenOdd<T>(len, p);
    else d[n] = reduce::dotRule<T>(va.p, vb.p, len);
  }
}

}  // namespace

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) {
    const auto a = operandOf<T, L, Contig, S.a>(s.op[0], c.len);
    const auto b = operandOf<T, L, Contig, S.b>(s.op[1], c.len);
    const int32_t count = S.anyArray ? s.count : 1;  // a single pair has no object loop
    if (count > 0) worker<T, L, Contig, S>(a, b, plainOf<T>(s.op[2]), count, c.len);
    return tarnStatusOk;
  });
}

}  // namespace tarn::dot_product

#define TARN_IMPL_dot_product
#include "bindings.hpp"
