// FrobNorm: the square root of the sum of squares of the elements of each matrix, without
// scaling, one element of the plain result array per object.
//
// 32f: one four-lane accumulator runs through the matrix and is reduced once, (l0 + l2) +
// (l1 + l3), before the square root. Square matrices of 2 to 5 have fixed sums (square32);
// every other shape is general (general32): a matrix whose rows follow each other without a gap
// is one run of width*height elements, others go row by row, and in both whole blocks of 8
// elements enter the accumulator as two vectors, single elements enter lane 0. A contiguous
// run first adds its elements up to a 16-byte boundary one by one in lane 0 (all of them if
// the run is not aligned to its element size), so its bits depend on its address. A LayoutP
// matrix is one run of its elements in table order, without that alignment step.
//
// 64f: row by row (frob64): a row of 8 or more elements runs in blocks of 8 through four
// two-lane accumulators, added (A0 + A1) + (A2 + A3), whose lanes, lane 0 first, join the one
// running sum; single elements follow. Every path of 64f keeps this order.
//
// Contiguous float arrays of 3x3 and 4x4 matrices put four objects into the lanes of a
// register with the sums of square32, so every object gets the bits it gets alone.
#include "reduce.hpp"

namespace tarn::frob_norm {
namespace {

using reduce::Quad;

// Square matrices of 2 to 5 floats; s(r, c) is the square of element (r, c), or four of them.
//   2: lanes (s00, s01, s10, s11), reduced.
//   3: (((s0 + s1) + s8) + (s2 + s3)) + ((s4 + s5) + (s6 + s7)), s(e) in row order: lanes
//      (s0 + s1, s4 + s5, s2 + s3, s6 + s7) with s8 added to lane 0, reduced.
//   4: lane c sums column c down the rows, reduced.
//   5: columns 0 to 3 in lanes row by row, each row's element 4 added to lane 0 behind them.
template <int N, class V, class S>
V square32(const S& s) {
  if constexpr (N == 2) {
    return (s(0, 0) + s(1, 0)) + (s(0, 1) + s(1, 1));
  } else if constexpr (N == 3) {
    auto e = [&](int i) { return s(i / 3, i % 3); };
    return (((e(0) + e(1)) + e(8)) + (e(2) + e(3))) + ((e(4) + e(5)) + (e(6) + e(7)));
  } else {
    V l[4];
    for (int c = 0; c < 4; ++c) l[c] = s(0, c);
    if constexpr (N == 5) l[0] = l[0] + s(0, 4);
    for (int r = 1; r < N; ++r) {
      for (int c = 0; c < 4; ++c) l[c] = l[c] + s(r, c);
      if constexpr (N == 5) l[0] = l[0] + s(r, 4);
    }
    return (l[0] + l[2]) + (l[1] + l[3]);
  }
}

// Elements [i, n) of a run or row into the accumulator: whole blocks of 8 as two vectors, the
// rest one by one in lane 0.
template <class At, class Load4>
inline void blocksThenSingles(__m128& acc, int32_t i, int32_t n, const At& at, const Load4& load4) {
  for (; i + 8 <= n; i += 8) {
    const __m128 x = load4(i), y = load4(i + 4);
    acc = simd::add(acc, simd::mul(x, x));
    acc = simd::add(acc, simd::mul(y, y));
  }
  for (; i < n; ++i) {
    const float e = loadElem(at(i));
    acc = simd::addLane0(acc, e * e);
  }
}

template <Layout L, bool Contig, class V>
float general32(const V& v, int32_t w, int32_t h) {
  __m128 acc = simd::zeroFloats();
  auto gathered = [](const auto& at) {
    return [&at](int32_t i) { return simd::gather4(at(i), at(i + 1), at(i + 2), at(i + 3)); };
  };
  if constexpr (L == Layout::P) {
    auto at = [&](int32_t i) { return v.at(i / w, i % w); };
    blocksThenSingles(acc, 0, w * h, at, gathered(at));
  } else if (v.row == int32_t(uint32_t(v.elem) * uint32_t(w))) {
    const int32_t n = w * h;
    auto at = [&](int32_t i) { return byteAdd(v.p, off32(i, v.elem)); };
    if constexpr (Contig) {
      int32_t i = 0;
      for (; i < n && !simd::aligned16(v.p + i); ++i) acc = simd::addLane0(acc, loadElem(v.p + i) * loadElem(v.p + i));
      blocksThenSingles(acc, i, n, at, [&](int32_t k) { return simd::load<4, true>(v.p + k); });
    } else {
      blocksThenSingles(acc, 0, n, at, gathered(at));
    }
  } else {
    for (int32_t r = 0; r < h; ++r) {
      auto at = [&](int32_t i) { return v.at(r, i); };
      if constexpr (Contig)
        blocksThenSingles(acc, 0, w, at, [&](int32_t k) { return simd::load<4, false>(v.rowPtr(r) + k); });
      else blocksThenSingles(acc, 0, w, at, gathered(at));
    }
  }
  return simd::sumLanes(acc);
}

template <Layout L, bool Contig, class V>
float frob32(const V& v, int32_t w, int32_t h) {
  auto sq = [&](int32_t r, int32_t c) {
    const float e = loadElem(v.at(r, c));
    return e * e;
  };
  if (w == h) {
    switch (w) {
      case 2: return simd::sqrtOf(square32<2, float>(sq));
      case 3: return simd::sqrtOf(square32<3, float>(sq));
      case 4: return simd::sqrtOf(square32<4, float>(sq));
      case 5: return simd::sqrtOf(square32<5, float>(sq));
    }
  }
  return simd::sqrtOf(general32<L, Contig>(v, w, h));
}

template <class V>
double frob64(const V& v, int32_t w, int32_t h) {
  double s = 0;
  for (int32_t r = 0; r < h; ++r) {
    int32_t k = 0;
    if (w >= 8) {
      __m128d a[4] = {simd::zeroDoubles(), simd::zeroDoubles(), simd::zeroDoubles(), simd::zeroDoubles()};
      for (; k + 8 <= w; k += 8)
        for (int j = 0; j < 4; ++j) {
          const __m128d x = simd::gather2(v.at(r, k + 2 * j), v.at(r, k + 2 * j + 1));
          a[j] = simd::add(a[j], simd::mul(x, x));
        }
      const __m128d t = simd::add(simd::add(a[0], a[1]), simd::add(a[2], a[3]));
      s = s + simd::low(t);
      s = s + simd::high(t);
    }
    for (; k < w; ++k) {
      const double e = loadElem(v.at(r, k));
      s = s + e * e;
    }
  }
  return simd::sqrtOf(s);
}

// 3x3 floats whose rows follow each other without a gap: each matrix is 9 elements in a row,
// loaded as 4 + 4 + 1 (nothing outside the object is read). The horizontal adds of the squares
// give (s0 + s1, s2 + s3, s4 + s5, s6 + s7); s8 joins lane 0; two more levels of horizontal adds
// over the four objects finish every sum in square32<3>'s order, object j in lane j.
template <class A>
int32_t gapless3(const A& a, float* d, int32_t count) {
  return reduce::inBlocks(count, [&](int32_t n, bool) {
    reduce::readAhead(a, n);
    __m128 h[4];
    for (int j = 0; j < 4; ++j) {
      const float* p = a.obj(n + j).p;
      const __m128 x = simd::load<4, false>(p), y = simd::load<4, false>(p + 4);
      const float z = loadElem(p + 8);  // objects may sit off their float boundary
      h[j] = simd::addLane0(simd::hadd(simd::mul(x, x), simd::mul(y, y)), z * z);
    }
    const __m128 t = simd::hadd(simd::hadd(h[0], h[1]), simd::hadd(h[2], h[3]));
    simd::store<4, false>(d + n, simd::sqrtLanes(t));
  });
}

// Contiguous float arrays of N x N (3 or 4) matrices, four objects a register: row r of the
// four objects is read and transposed, so element (r, c) of all four shares a register.
// Returns the objects done.
template <int N, class A>
int32_t lanes(const A& a, float* d, int32_t count) {
  if (N == 3 && a.row == 12) return gapless3(a, d, count);
  return reduce::inBlocks(count, [&](int32_t n, bool last) {
    reduce::readAhead(a, n);
    __m128 s[N][N];
    for (int r = 0; r < N; ++r) {
      const Quad<N> q = reduce::quadRow<N>(a, n, r, last && r == N - 1);
      for (int c = 0; c < N; ++c) s[r][c] = simd::mul(q.v[c], q.v[c]);
    }
    auto add = [](__m128 x, __m128 y) { return simd::add(x, y); };
    __m128 t;
    if constexpr (N == 3) {
      t = add(add(add(add(s[0][0], s[0][1]), s[2][2]), add(s[0][2], s[1][0])),
              add(add(s[1][1], s[1][2]), add(s[2][0], s[2][1])));
    } else {
      __m128 l[4];
      for (int c = 0; c < 4; ++c) l[c] = add(add(add(s[0][c], s[1][c]), s[2][c]), s[3][c]);
      t = add(add(l[0], l[2]), add(l[1], l[3]));
    }
    simd::store<4, false>(d + n, simd::sqrtLanes(t));
  });
}

template <class T, Layout L, bool Contig, Shape S, class A>
void worker(const A& a, T* d, int32_t count, int32_t w, int32_t h) {
  int32_t done = 0;
  if constexpr (std::is_same_v<T, float> && Contig && L != Layout::P && S.a.array) {
    if (w == h && w == 3) done = lanes<3>(a, d, count);
    else if (w == h && w == 4) done = lanes<4>(a, d, count);
  }
  auto each = [&]<int W, int H>() {
    const auto xa = [&] {
      if constexpr (W > 0) return cached<W * H>(a);
      else return a;
    }();
    for (int32_t n = done; n < count; ++n) {
      if constexpr (std::is_same_v<T, float>) d[n] = frob32<L, Contig>(xa.obj(n), W ? W : w, H ? H : h);
      else d[n] = frob64(xa.obj(n), W ? W : w, H ? H : h);
    }
  };
  if (w == h) {
    switch (w) {
      case 3: return each.template operator()<3, 3>();
      case 4: return each.template operator()<4, 4>();
      case 5: return each.template operator()<5, 5>();
      case 6: return each.template operator()<6, 6>();
    }
  }
  each.template operator()<0, 0>();
}

}  // namespace

template <Pat P, class T, Layout L>
tarnStatus run(const Plan& plan, const Call& c) {
  constexpr Shape S = shapeOf(P);
  return drive<T, L>(plan, c, [&]<bool Contig>(const Call& s) {
    const auto a = operandOf<T, L, Contig, S.a>(s.op[0], c.width);
    const int32_t count = S.anyArray ? s.count : 1;  // a single matrix has no object loop
    if (count > 0) worker<T, L, Contig, S>(a, plainOf<T>(s.op[1]), count, c.width, c.height);
    return tarnStatusOk;
  });
}

}  // namespace tarn::frob_norm

#define TARN_IMPL_frob_norm
#include "bindings.hpp"
