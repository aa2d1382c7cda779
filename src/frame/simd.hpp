// The library's only SSE intrinsics. Kernels speak of chunks of a row: a run of 1, 2 or 4
// floats, or 1 or 2 doubles, loaded into one 16-byte register and stored back the same way, so
// no access ever covers an element outside the row. A row of 3 floats is one 8-byte and one
// 4-byte chunk: the fourth float of a 16-byte row slot, which may be the caller's, is never
// touched.
#pragma once

#include <pmmintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

namespace tarn::simd {

// Moves of one element (or a float pair as one 8-byte chunk) between memory and lane 0, through
// memcpy: defined at any address and whatever type the bytes were written as. Some compilers'
// headers implement the single-element intrinsics as a plain dereference of a double or float
// pointer, which is neither. Each compiles to the one move instruction.
inline __m128 loadSs(const void* p) {
  float v;
  std::memcpy(&v, p, sizeof v);
  return _mm_set_ss(v);
}
inline __m128d loadSd(const void* p) {
  double v;
  std::memcpy(&v, p, sizeof v);
  return _mm_set_sd(v);
}
inline __m128d loadDupSd(const void* p) {
  double v;
  std::memcpy(&v, p, sizeof v);
  return _mm_set1_pd(v);
}
inline void storeSs(void* p, __m128 x) {
  const float v = _mm_cvtss_f32(x);
  std::memcpy(p, &v, sizeof v);
}
inline void storeSd(void* p, __m128d x) {
  const double v = _mm_cvtsd_f64(x);
  std::memcpy(p, &v, sizeof v);
}
inline void storeHighSd(void* p, __m128d x) { storeSd(p, _mm_unpackhi_pd(x, x)); }

template <class T> struct VecOf;
template <> struct VecOf<float> { using type = __m128; static constexpr int lanes = 4; };
template <> struct VecOf<double> { using type = __m128d; static constexpr int lanes = 2; };
template <class T> using Vec = typename VecOf<std::remove_const_t<T>>::type;
template <class T> inline constexpr int kLanes = VecOf<std::remove_const_t<T>>::lanes;

// Load a chunk of Len elements; Aligned only matters for a whole register.
template <int Len, bool Aligned>
inline __m128 load(const float* p) {
  if constexpr (Len == 4) return Aligned ? _mm_load_ps(p) : _mm_loadu_ps(p);
  else if constexpr (Len == 2) return _mm_castpd_ps(loadSd(p));
  else return loadSs(p);
}
template <int Len, bool Aligned>
inline __m128d load(const double* p) {
  if constexpr (Len == 2) return Aligned ? _mm_load_pd(p) : _mm_loadu_pd(p);
  else return loadSd(p);
}
template <int Len, bool Aligned>
inline void store(float* p, __m128 v) {
  if constexpr (Len == 4) Aligned ? _mm_store_ps(p, v) : _mm_storeu_ps(p, v);
  else if constexpr (Len == 2) storeSd(p, _mm_castps_pd(v));
  else storeSs(p, v);
}
template <int Len, bool Aligned>
inline void store(double* p, __m128d v) {
  if constexpr (Len == 2) Aligned ? _mm_store_pd(p, v) : _mm_storeu_pd(p, v);
  else storeSd(p, v);
}

inline __m128 broadcast(float v) { return _mm_set1_ps(v); }
inline __m128d broadcast(double v) { return _mm_set1_pd(v); }

// Lane K of v in every lane.
template <int K> inline __m128 splat(__m128 v) { return _mm_shuffle_ps(v, v, K * 0x55); }
template <int K> inline __m128d splat(__m128d v) { return _mm_shuffle_pd(v, v, K * 3); }

inline __m128 add(__m128 a, __m128 b) { return _mm_add_ps(a, b); }
inline __m128d add(__m128d a, __m128d b) { return _mm_add_pd(a, b); }
inline __m128 sub(__m128 a, __m128 b) { return _mm_sub_ps(a, b); }
inline __m128d sub(__m128d a, __m128d b) { return _mm_sub_pd(a, b); }
inline __m128 mul(__m128 a, __m128 b) { return _mm_mul_ps(a, b); }
inline __m128d mul(__m128d a, __m128d b) { return _mm_mul_pd(a, b); }

// A row of W elements as chunks: whole registers first, then a pair of floats, then a single.
// chunkLen<T, W>(k) and chunkOff<T, W>(k) describe chunk k; chunks<T, W>() counts them.
template <class T>
constexpr int chunkLenAt(int remaining) {
  constexpr int lanes = kLanes<T>;
  return remaining >= lanes ? lanes : remaining >= 2 ? 2 : 1;
}
template <class T, int W>
constexpr int chunks() {
  int n = 0;
  for (int left = W; left > 0; left -= chunkLenAt<T>(left)) ++n;
  return n;
}
template <class T, int W>
constexpr int chunkOff(int k) {
  int off = 0, left = W;
  for (int i = 0; i < k; ++i) {
    off += chunkLenAt<T>(left);
    left -= chunkLenAt<T>(left);
  }
  return off;
}
template <class T, int W>
constexpr int chunkLen(int k) {
  return chunkLenAt<T>(W - chunkOff<T, W>(k));
}

// Calls f.template operator()<K>() for K = 0..N-1.
template <int N, class F>
inline void unroll(F&& f) {
  [&]<int... K>(std::integer_sequence<int, K...>) { (f.template operator()<K>(), ...); }
  (std::make_integer_sequence<int, N>{});
}

// A row held in registers.
template <class T, int W>
struct Row {
  Vec<T> c[chunks<T, W>()];
};

template <int W, bool Aligned, class T>
inline Row<std::remove_const_t<T>, W> loadRow(T* p) {
  using U = std::remove_const_t<T>;
  Row<U, W> r;
  unroll<chunks<U, W>()>([&]<int K>() { r.c[K] = load<chunkLen<U, W>(K), Aligned>(p + chunkOff<U, W>(K)); });
  return r;
}
template <int W, bool Aligned, class T>
inline void storeRow(T* p, const Row<T, W>& r) {
  unroll<chunks<T, W>()>([&]<int K>() { store<chunkLen<T, W>(K), Aligned>(p + chunkOff<T, W>(K), r.c[K]); });
}
template <int W, class T>
inline Row<T, W> broadcastRow(T v) {
  Row<T, W> r;
  for (auto& c : r.c) c = broadcast(v);
  return r;
}

inline bool aligned16(const void* p) { return (reinterpret_cast<uintptr_t>(p) & 15) == 0; }

}  // namespace tarn::simd

// ---- Data movement --------------------------------------------------------------------------
// Shuffles, unpacks and plain loads and stores move bits unchanged, so everything below keeps
// every pattern, signalling NaNs included.
namespace tarn::simd {

inline __m128 constant(float a, float b, float c, float d) { return _mm_setr_ps(a, b, c, d); }
inline __m128 zeroFloats() { return _mm_setzero_ps(); }

// The upper two floats of v to p[0], p[1]: an 8-byte store.
inline void storeHigh(float* p, __m128 v) { _mm_storeh_pi(reinterpret_cast<__m64*>(p), v); }

// Four rows in, four columns out.
inline void transpose4(__m128& a, __m128& b, __m128& c, __m128& d) {
  const __m128 t0 = _mm_unpacklo_ps(a, b), t1 = _mm_unpacklo_ps(c, d);
  const __m128 t2 = _mm_unpackhi_ps(a, b), t3 = _mm_unpackhi_ps(c, d);
  a = _mm_movelh_ps(t0, t1);
  b = _mm_movehl_ps(t1, t0);
  c = _mm_movelh_ps(t2, t3);
  d = _mm_movehl_ps(t3, t2);
}
// (a0, a1), (b0, b1) -> (a0, b0), (a1, b1).
inline void transpose2(__m128d& a, __m128d& b) {
  const __m128d lo = _mm_unpacklo_pd(a, b);
  b = _mm_unpackhi_pd(a, b);
  a = lo;
}

// Four single floats from anywhere into one register, in order.
inline __m128 gather4(const float* a, const float* b, const float* c, const float* d) {
  const __m128 ab = _mm_unpacklo_ps(loadSs(a), loadSs(b));
  const __m128 cd = _mm_unpacklo_ps(loadSs(c), loadSs(d));
  return _mm_movelh_ps(ab, cd);
}
inline __m128d gather2(const double* a, const double* b) { return _mm_loadh_pd(loadSd(a), b); }

// A 4-byte store that bypasses the caches; storeFence() orders all of them before what follows.
inline void streamStore(float* p, const float* s) {
  int32_t bits;
  __builtin_memcpy(&bits, s, 4);
  _mm_stream_si32(reinterpret_cast<int*>(p), bits);
}
inline void storeFence() { _mm_sfence(); }

}  // namespace tarn::simd

// ---- 3x3 floats whose rows follow each other without a gap -------------------------------------
// Nine floats read as three rows of one register each, lane 3 undefined: rows 0 and 1 by 16-byte
// loads from their first element (their lane 3 is the next row's first element), row 2 by the
// load that ends at the object's last element, shifted down one lane. Nothing outside the nine
// floats is read.
namespace tarn::simd {

inline void loadRows3x3(const float* p, __m128 r[3]) {
  r[0] = _mm_loadu_ps(p);
  r[1] = _mm_loadu_ps(p + 3);
  const __m128 t = _mm_loadu_ps(p + 5);
  r[2] = _mm_shuffle_ps(t, t, _MM_SHUFFLE(3, 3, 2, 1));
}

// Three rows back into nine floats, nothing else written: rows 0 and 1 by 16-byte stores (row 1
// overwrites the undefined lane row 0 left), row 2 by a store ending at the last element that
// carries row 1's last element in front of it.
inline void storeRows3x3(float* p, const __m128 r[3]) {
  _mm_storeu_ps(p, r[0]);
  _mm_storeu_ps(p + 3, r[1]);
  const __m128 t = _mm_shuffle_ps(r[1], r[2], _MM_SHUFFLE(0, 0, 2, 2));  // r1.2 r1.2 r2.0 r2.0
  _mm_storeu_ps(p + 5, _mm_shuffle_ps(t, r[2], _MM_SHUFFLE(2, 1, 2, 0)));
}

}  // namespace tarn::simd

// ---- Reductions -------------------------------------------------------------------------------
// Horizontal sums in a fixed order, lane-0 arithmetic for scalar terms of a vector accumulator,
// square roots, and the loads that put four objects of 3 or 4 floats into lanes by object.
namespace tarn::simd {

// (l0 + l2) + (l1 + l3).
inline float sumLanes(__m128 v) {
  const __m128 t = _mm_add_ps(v, _mm_movehl_ps(v, v));
  return _mm_cvtss_f32(_mm_add_ss(t, _mm_shuffle_ps(t, t, 1)));
}
// l0 + l1.
inline double sumLanes(__m128d v) { return _mm_cvtsd_f64(_mm_add_sd(v, _mm_unpackhi_pd(v, v))); }

// v with x added to lane 0; the other lanes unchanged.
inline __m128 addLane0(__m128 v, float x) { return _mm_add_ss(v, _mm_set_ss(x)); }
inline __m128d addLane0(__m128d v, double x) { return _mm_add_sd(v, _mm_set_sd(x)); }
// Asks for the cache line of p ahead of its use; never faults, whatever p is.
inline void prefetch(const void* p) { _mm_prefetch(static_cast<const char*>(p), _MM_HINT_T0); }
// (a0 + a1, a2 + a3, b0 + b1, b2 + b3).
inline __m128 hadd(__m128 a, __m128 b) { return _mm_hadd_ps(a, b); }
inline __m128d zeroDoubles() { return _mm_setzero_pd(); }
// Lane 0 and lane 1 of a pair.
inline double low(__m128d v) { return _mm_cvtsd_f64(v); }
inline double high(__m128d v) { return _mm_cvtsd_f64(_mm_unpackhi_pd(v, v)); }
// x in lane 0, zeros elsewhere.
inline __m128 lane0(float x) { return _mm_set_ss(x); }
inline __m128d lane0(double x) { return _mm_set_sd(x); }

// The correctly rounded square root, one lane or every lane.
inline float sqrtOf(float x) { return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(x))); }
inline double sqrtOf(double x) { return _mm_cvtsd_f64(_mm_sqrt_sd(_mm_setzero_pd(), _mm_set_sd(x))); }
inline __m128 sqrtLanes(__m128 v) { return _mm_sqrt_ps(v); }

// Three floats (x, y, z, 0) with an 8-byte and a 4-byte load: nothing behind p[2] is read.
inline __m128 load3(const float* p) {
  return _mm_movelh_ps(_mm_castpd_ps(loadSd(p)), loadSs(p + 2));
}

// Four packed 3-vectors (48 bytes as a, b, c) into lanes by object: x, y, z of objects 0..3.
inline void deinterleave3(__m128 a, __m128 b, __m128 c, __m128& x, __m128& y, __m128& z) {
  // a = x0 y0 z0 x1, b = y1 z1 x2 y2, c = z2 x3 y3 z3
  const __m128 m = _mm_shuffle_ps(b, c, _MM_SHUFFLE(2, 1, 3, 2));  // x2 y2 x3 y3
  const __m128 n = _mm_shuffle_ps(a, b, _MM_SHUFFLE(1, 0, 2, 1));  // y0 z0 y1 z1
  x = _mm_shuffle_ps(a, m, _MM_SHUFFLE(2, 0, 3, 0));
  y = _mm_shuffle_ps(n, m, _MM_SHUFFLE(3, 1, 2, 0));
  z = _mm_shuffle_ps(n, c, _MM_SHUFFLE(3, 0, 3, 1));
}
// A 3-vector as (x, 0, y, z): one 4-byte and one 8-byte load.
inline __m128 loadX0YZ(const float* p) { return _mm_loadh_pi(loadSs(p), reinterpret_cast<const __m64*>(p + 1)); }
// Lanes (0, 2, 3) of the result read lanes (2, 3, 0) of v.
inline __m128 rotateX0YZ(__m128 v) { return _mm_shuffle_ps(v, v, _MM_SHUFFLE(0, 3, 1, 2)); }
// (v1, v2, v0, v3).
inline __m128 rotateYZX(__m128 v) { return _mm_shuffle_ps(v, v, _MM_SHUFFLE(3, 0, 2, 1)); }
// Lanes 2 and 3 to p[0] and p[1], lane 0 to p[2].
inline void storeYZX(float* p, __m128 v) {
  _mm_storeh_pi(reinterpret_cast<__m64*>(p), v);
  storeSs(p + 2, v);
}

}  // namespace tarn::simd

// ---- Solving --------------------------------------------------------------------------------
// Objects side by side in the lanes of one register: every lane does the scalar operation of its
// own object. Division and square root are the correctly rounded instructions, so a lane gives
// the bits of the scalar code; the approximate reciprocal is the processor's own, and rcpps gives
// each lane what rcpss gives the same value.
namespace tarn::simd {

inline __m128 div(__m128 a, __m128 b) { return _mm_div_ps(a, b); }
inline __m128d div(__m128d a, __m128d b) { return _mm_div_pd(a, b); }
inline __m128 sqrt(__m128 a) { return _mm_sqrt_ps(a); }
inline __m128d sqrt(__m128d a) { return _mm_sqrt_pd(a); }
inline __m128 abs(__m128 a) { return _mm_andnot_ps(_mm_set1_ps(-0.0f), a); }
inline __m128d abs(__m128d a) { return _mm_andnot_pd(_mm_set1_pd(-0.0), a); }

// Lane masks: bit l set when the comparison holds in lane l (false on a NaN).
inline int lessMask(__m128 a, __m128 b) { return _mm_movemask_ps(_mm_cmplt_ps(a, b)); }
inline int lessMask(__m128d a, __m128d b) { return _mm_movemask_pd(_mm_cmplt_pd(a, b)); }
// a where a lane of `than` is greater than 0, else b.
inline __m128 selectPositive(__m128 than, __m128 a, __m128 b) {
  const __m128 m = _mm_cmpgt_ps(than, _mm_setzero_ps());
  return _mm_or_ps(_mm_and_ps(m, a), _mm_andnot_ps(m, b));
}
inline __m128d selectPositive(__m128d than, __m128d a, __m128d b) {
  const __m128d m = _mm_cmpgt_pd(than, _mm_setzero_pd());
  return _mm_or_pd(_mm_and_pd(m, a), _mm_andnot_pd(m, b));
}

inline __m128 rcp(__m128 a) { return _mm_rcp_ps(a); }
inline float rcp(float a) { return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(a))); }

}  // namespace tarn::simd

// ---- Geometry --------------------------------------------------------------------------------
// Fixed vectors of 2, 3 or 4 floats in the low lanes of a register, loaded and stored with
// exactly their own bytes (a 3-vector as one 8-byte and one 4-byte access), and the few lane
// operations the geometry kernels add to the ones above. Every lane operation is the scalar
// operation of that lane, rounded alike.
namespace tarn::simd {

template <int N>
inline __m128 loadVec(const float* p) {
  if constexpr (N == 4) return _mm_loadu_ps(p);
  else if constexpr (N == 3) return _mm_movelh_ps(load<2, false>(p), loadSs(p + 2));
  else return load<2, false>(p);
}
template <int N>
inline void storeVec(float* p, __m128 v) {
  if constexpr (N == 4) _mm_storeu_ps(p, v);
  else {
    store<2, false>(p, v);
    if constexpr (N == 3) storeSs(p + 2, _mm_movehl_ps(v, v));
  }
}

// a < b ? a : b and a > b ? a : b per lane: b on NaN or equal zeros.
inline __m128 minLanes(__m128 a, __m128 b) { return _mm_min_ps(a, b); }
inline __m128 maxLanes(__m128 a, __m128 b) { return _mm_max_ps(a, b); }
inline float first(__m128 v) { return _mm_cvtss_f32(v); }
// Lanes 2 and 3 of v in lanes 0 and 1.
inline __m128 upperHalf(__m128 v) { return _mm_movehl_ps(v, v); }
// The correctly rounded square root of lane 0 in lane 0.
inline __m128 sqrtFirst(__m128 v) { return _mm_sqrt_ss(v); }
// The correctly rounded square root of one float.
inline float sqrtScalar(float x) { return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(x))); }

// Lanes (a[I], a[J], b[K], b[L]).
template <int I, int J, int K, int L>
inline __m128 pick(__m128 a, __m128 b) { return _mm_shuffle_ps(a, b, _MM_SHUFFLE(L, K, J, I)); }

inline __m128 absLanes(__m128 v) { return _mm_andnot_ps(_mm_set1_ps(-0.0f), v); }
// Lanes where a > b, all ones; false where either is NaN.
inline __m128 greater(__m128 a, __m128 b) { return _mm_cmpgt_ps(a, b); }
// Lanes where |v| > limit.
inline __m128 absAbove(__m128 v, __m128 limit) { return greater(absLanes(v), limit); }
inline __m128 select(__m128 mask, __m128 yes, __m128 no) { return _mm_or_ps(_mm_and_ps(mask, yes), _mm_andnot_ps(mask, no)); }
inline int signs(__m128 mask) { return _mm_movemask_ps(mask); }

// Up to four 3-vectors at p, p + stride, ... (byte stride of any sign) as three registers of
// x, y and z, one point to a lane; lanes past K repeat point 0. Each point is read as its own
// 8 and 4 bytes.
template <int K>
inline void gather3(const float* p, int32_t stride, __m128& x, __m128& y, __m128& z) {
  const float* q[4];
  for (int k = 0; k < 4; ++k)
    q[k] = k < K ? reinterpret_cast<const float*>(reinterpret_cast<const char*>(p) + std::ptrdiff_t(k) * stride) : p;
  const __m128 ab = _mm_loadh_pi(load<2, false>(q[0]), reinterpret_cast<const __m64*>(q[1]));
  const __m128 cd = _mm_loadh_pi(load<2, false>(q[2]), reinterpret_cast<const __m64*>(q[3]));
  x = pick<0, 2, 0, 2>(ab, cd);
  y = pick<1, 3, 1, 3>(ab, cd);
  z = gather4(q[0] + 2, q[1] + 2, q[2] + 2, q[3] + 2);
}
// The first K lanes of x, y, z back as 3-vectors at p, p + stride, ...
template <int K>
inline void scatter3(float* p, int32_t stride, __m128 x, __m128 y, __m128 z) {
  auto at = [&](int k) { return reinterpret_cast<float*>(reinterpret_cast<char*>(p) + std::ptrdiff_t(k) * stride); };
  const __m128 lo = _mm_unpacklo_ps(x, y), hi = _mm_unpackhi_ps(x, y);
  store<2, false>(at(0), lo);
  storeSs(at(0) + 2, z);
  if constexpr (K > 1) {
    storeHigh(at(1), lo);
    storeSs(at(1) + 2, splat<1>(z));
  }
  if constexpr (K > 2) {
    store<2, false>(at(2), hi);
    storeSs(at(2) + 2, _mm_movehl_ps(z, z));
  }
  if constexpr (K > 3) {
    storeHigh(at(3), hi);
    storeSs(at(3) + 2, splat<3>(z));
  }
}

}  // namespace tarn::simd

// ---- Solvers: one object per lane ----------------------------------------------------------
// The factorisations and substitutions run G objects at once, element (r, c) of object l in
// lane l of one register. Every lane performs exactly the operations one object performs on its
// own, in the same order and rounding, so each object keeps its bits. Comparisons give all-ones
// or all-zero lanes; selections are bitwise and so keep every pattern.
namespace tarn::simd {

// a > b ? a : b lane by lane, so a NaN in either keeps b: the strict test of a pivot search.
inline __m128 greaterOf(__m128 a, __m128 b) { return _mm_max_ps(a, b); }
inline __m128d greaterOf(__m128d a, __m128d b) { return _mm_max_pd(a, b); }

inline __m128 absOf(__m128 a) { return _mm_andnot_ps(_mm_set1_ps(-0.0f), a); }
inline __m128d absOf(__m128d a) { return _mm_andnot_pd(_mm_set1_pd(-0.0), a); }

inline __m128 lessThan(__m128 a, __m128 b) { return _mm_cmplt_ps(a, b); }
inline __m128d lessThan(__m128d a, __m128d b) { return _mm_cmplt_pd(a, b); }
inline __m128 lessEqual(__m128 a, __m128 b) { return _mm_cmple_ps(a, b); }
inline __m128d lessEqual(__m128d a, __m128d b) { return _mm_cmple_pd(a, b); }
inline __m128 greaterThan(__m128 a, __m128 b) { return _mm_cmpgt_ps(a, b); }
inline __m128d greaterThan(__m128d a, __m128d b) { return _mm_cmpgt_pd(a, b); }
inline __m128 equalTo(__m128 a, __m128 b) { return _mm_cmpeq_ps(a, b); }
inline __m128d equalTo(__m128d a, __m128d b) { return _mm_cmpeq_pd(a, b); }
inline __m128 either(__m128 a, __m128 b) { return _mm_or_ps(a, b); }
inline __m128d either(__m128d a, __m128d b) { return _mm_or_pd(a, b); }
inline bool anyLane(__m128 m) { return _mm_movemask_ps(m) != 0; }
inline bool anyLane(__m128d m) { return _mm_movemask_pd(m) != 0; }

// m ? a : b, bit by bit.
inline __m128d select(__m128d m, __m128d a, __m128d b) { return _mm_or_pd(_mm_and_pd(m, a), _mm_andnot_pd(m, b)); }

// Exchanges a and b in the lanes of m.
inline void swapWhere(__m128 m, __m128& a, __m128& b) {
  const __m128 d = _mm_and_ps(_mm_xor_ps(a, b), m);
  a = _mm_xor_ps(a, d);
  b = _mm_xor_ps(b, d);
}
inline void swapWhere(__m128d m, __m128d& a, __m128d& b) {
  const __m128d d = _mm_and_pd(_mm_xor_pd(a, b), m);
  a = _mm_xor_pd(a, d);
  b = _mm_xor_pd(b, d);
}

// rsqrtss on each lane: the scalar approximation of every lane on its own, never the packed
// instruction. The four estimates are independent, so they overlap in the pipeline.
inline __m128 rsqrtEachLane(__m128 d) {
  const __m128 r0 = _mm_rsqrt_ss(d);
  const __m128 r1 = _mm_rsqrt_ss(_mm_shuffle_ps(d, d, 1));
  const __m128 r2 = _mm_rsqrt_ss(_mm_movehl_ps(d, d));
  const __m128 r3 = _mm_rsqrt_ss(_mm_shuffle_ps(d, d, 3));
  return _mm_movelh_ps(_mm_unpacklo_ps(r0, r1), _mm_unpacklo_ps(r2, r3));
}
inline float rsqrtScalar(float d) { return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(d))); }

// Lanes to memory, aligned.
inline void storeLanes(float* p, __m128 v) { _mm_store_ps(p, v); }
inline void storeLanes(double* p, __m128d v) { _mm_store_pd(p, v); }

}  // namespace tarn::simd

// ---- Lanes of independent objects ----------------------------------------------------------
// Each lane of a register holds one object; masks are all-ones lanes. Division and square root
// are the correctly rounded instructions, so a lane computes exactly what the scalar operation
// on its object computes.
namespace tarn::simd {

inline __m128 set1(float v) { return _mm_set1_ps(v); }
inline __m128d set1(double v) { return _mm_set1_pd(v); }
template <class T> inline Vec<T> zeros();
template <> inline __m128 zeros<float>() { return _mm_setzero_ps(); }
template <> inline __m128d zeros<double>() { return _mm_setzero_pd(); }
template <class T> inline Vec<T> allOnes();
template <> inline __m128 allOnes<float>() { return _mm_castsi128_ps(_mm_set1_epi32(-1)); }
template <> inline __m128d allOnes<double>() { return _mm_castsi128_pd(_mm_set1_epi32(-1)); }

// div, sqrt, abs and select of the lanes are defined with the solving lanes above.

// Comparisons as masks; every one of them is false for NaN.
inline __m128 gt(__m128 a, __m128 b) { return _mm_cmpgt_ps(a, b); }
inline __m128d gt(__m128d a, __m128d b) { return _mm_cmpgt_pd(a, b); }
inline __m128 le(__m128 a, __m128 b) { return _mm_cmple_ps(a, b); }
inline __m128d le(__m128d a, __m128d b) { return _mm_cmple_pd(a, b); }
inline __m128 eq(__m128 a, __m128 b) { return _mm_cmpeq_ps(a, b); }
inline __m128d eq(__m128d a, __m128d b) { return _mm_cmpeq_pd(a, b); }

inline __m128 andMask(__m128 a, __m128 b) { return _mm_and_ps(a, b); }
inline __m128d andMask(__m128d a, __m128d b) { return _mm_and_pd(a, b); }
inline __m128 orMask(__m128 a, __m128 b) { return _mm_or_ps(a, b); }
inline __m128d orMask(__m128d a, __m128d b) { return _mm_or_pd(a, b); }
// a and not b.
inline __m128 andNot(__m128 a, __m128 b) { return _mm_andnot_ps(b, a); }
inline __m128d andNot(__m128d a, __m128d b) { return _mm_andnot_pd(b, a); }

// One bit per lane, lane 0 lowest.
inline int bits(__m128 m) { return _mm_movemask_ps(m); }
inline int bits(__m128d m) { return _mm_movemask_pd(m); }

}  // namespace tarn::simd

// ---- General eigenproblems ------------------------------------------------------------------
// Independent matrices in the lanes of one register: every lane operation below rounds exactly
// as the scalar operation on that lane's values, and selections move bits unchanged.
namespace tarn::simd {

// The processor's approximate reciprocal square root of s; its bits differ between processors.
inline float rsqrtApprox(float s) { return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(s))); }

}  // namespace tarn::simd

namespace tarn::simd::lanes {

using simd::add;
using simd::broadcast;
using simd::mul;
using simd::sub;

inline __m128 lanesLoad(const float* p) { return _mm_load_ps(p); }
inline __m128d lanesLoad(const double* p) { return _mm_load_pd(p); }
inline void lanesStore(float* p, __m128 v) { _mm_store_ps(p, v); }
inline void lanesStore(double* p, __m128d v) { _mm_store_pd(p, v); }
inline __m128 div(__m128 a, __m128 b) { return _mm_div_ps(a, b); }
inline __m128d div(__m128d a, __m128d b) { return _mm_div_pd(a, b); }
inline __m128 sqrt(__m128 a) { return _mm_sqrt_ps(a); }
inline __m128d sqrt(__m128d a) { return _mm_sqrt_pd(a); }
// a > b ? a : b and a < b ? a : b, lane by lane (the second operand where unordered).
inline __m128 larger(__m128 a, __m128 b) { return _mm_max_ps(a, b); }
inline __m128d larger(__m128d a, __m128d b) { return _mm_max_pd(a, b); }
inline __m128 smaller(__m128 a, __m128 b) { return _mm_min_ps(a, b); }
inline __m128d smaller(__m128d a, __m128d b) { return _mm_min_pd(a, b); }
// Sign bit cleared, or flipped.
inline __m128 abs(__m128 a) { return _mm_andnot_ps(_mm_set1_ps(-0.0f), a); }
inline __m128d abs(__m128d a) { return _mm_andnot_pd(_mm_set1_pd(-0.0), a); }
inline __m128 neg(__m128 a) { return _mm_xor_ps(_mm_set1_ps(-0.0f), a); }
inline __m128d neg(__m128d a) { return _mm_xor_pd(_mm_set1_pd(-0.0), a); }
// All-ones lanes where a < b, or a >= b (false where unordered).
inline __m128 less(__m128 a, __m128 b) { return _mm_cmplt_ps(a, b); }
inline __m128d less(__m128d a, __m128d b) { return _mm_cmplt_pd(a, b); }
inline __m128 notLess(__m128 a, __m128 b) { return _mm_cmpge_ps(a, b); }
inline __m128d notLess(__m128d a, __m128d b) { return _mm_cmpge_pd(a, b); }
// m ? a : b, lane by lane.
inline __m128 select(__m128 m, __m128 a, __m128 b) { return _mm_or_ps(_mm_and_ps(m, a), _mm_andnot_ps(m, b)); }
inline __m128d select(__m128d m, __m128d a, __m128d b) { return _mm_or_pd(_mm_and_pd(m, a), _mm_andnot_pd(m, b)); }
inline __m128 both(__m128 a, __m128 b) { return _mm_and_ps(a, b); }
inline __m128d both(__m128d a, __m128d b) { return _mm_and_pd(a, b); }
// A mask from one flag per lane.
inline __m128 laneMask(const bool* f, float) {
  return _mm_castsi128_ps(_mm_set_epi32(-int(f[3]), -int(f[2]), -int(f[1]), -int(f[0])));
}
inline __m128d laneMask(const bool* f, double) {
  return _mm_castsi128_pd(_mm_set_epi64x(-int64_t(f[1]), -int64_t(f[0])));
}
inline __m128 lanesOf(const float* v) { return _mm_loadu_ps(v); }
inline __m128d lanesOf(const double* v) { return _mm_loadu_pd(v); }
// sqrt(q + 1): floats widened, the sum and root in double, rounded back once.
inline __m128 rootOnePlus(__m128 q) {
  const __m128d one = _mm_set1_pd(1.0);
  const __m128d lo = _mm_sqrt_pd(_mm_add_pd(_mm_cvtps_pd(q), one));
  const __m128d hi = _mm_sqrt_pd(_mm_add_pd(_mm_cvtps_pd(_mm_movehl_ps(q, q)), one));
  return _mm_movelh_ps(_mm_cvtpd_ps(lo), _mm_cvtpd_ps(hi));
}
inline __m128d rootOnePlus(__m128d q) { return _mm_sqrt_pd(_mm_add_pd(q, _mm_set1_pd(1.0))); }


// Two registers of lanes used as one: twice the independent matrices per instruction stream.
template <class T>
struct Pair {
  Vec<T> lo, hi;
};
#define TARN_PAIR_OP2(name) \
  template <class T> inline Pair<T> name(Pair<T> a, Pair<T> b) { return {name(a.lo, b.lo), name(a.hi, b.hi)}; }
#define TARN_PAIR_OP1(name) \
  template <class T> inline Pair<T> name(Pair<T> a) { return {name(a.lo), name(a.hi)}; }
TARN_PAIR_OP2(add)
TARN_PAIR_OP2(sub)
TARN_PAIR_OP2(mul)
TARN_PAIR_OP2(div)
TARN_PAIR_OP2(larger)
TARN_PAIR_OP2(smaller)
TARN_PAIR_OP2(less)
TARN_PAIR_OP2(notLess)
TARN_PAIR_OP2(both)
TARN_PAIR_OP1(sqrt)
TARN_PAIR_OP1(abs)
TARN_PAIR_OP1(neg)
TARN_PAIR_OP1(rootOnePlus)
#undef TARN_PAIR_OP1
#undef TARN_PAIR_OP2
template <class T> inline Pair<T> select(Pair<T> m, Pair<T> a, Pair<T> b) {
  return {select(m.lo, a.lo, b.lo), select(m.hi, a.hi, b.hi)};
}

}  // namespace tarn::simd::lanes

// ---- Matrix-vector products -----------------------------------------------------------------
// A run of Len elements of a row in one register, the lanes behind it zero. Three floats are
// a pair and a single on the way in and out, so the element behind the third is never touched.
namespace tarn::simd {

template <int Len>
inline __m128 loadPart(const float* p) {
  if constexpr (Len == 3) return _mm_movelh_ps(load<2, false>(p), loadSs(p + 2));
  else return load<Len, false>(p);
}
template <int Len>
inline __m128d loadPart(const double* p) {
  return load<Len, false>(p);
}
template <int Len>
inline void storePart(float* p, __m128 v) {
  if constexpr (Len == 3) {
    store<2, false>(p, v);
    storeSs(p + 2, _mm_movehl_ps(v, v));
  } else {
    store<Len, false>(p, v);
  }
}
template <int Len>
inline void storePart(double* p, __m128d v) {
  store<Len, false>(p, v);
}

// A scalar in lane 0, +0.0 in the other lanes; all lanes +0.0.
inline __m128 inLow(float s) { return _mm_set_ss(s); }
inline __m128d inLow(double s) { return _mm_set_sd(s); }
template <class T> inline Vec<T> zeros() {
  if constexpr (kLanes<T> == 4) return _mm_setzero_ps();
  else return _mm_setzero_pd();
}

// The sum of the lanes of an accumulator: (l0 + l2) + (l1 + l3), or l0 + l1.
inline float reduce(__m128 v) {
  const __m128 h = _mm_add_ps(v, _mm_movehl_ps(v, v));
  return _mm_cvtss_f32(_mm_add_ss(h, _mm_shuffle_ps(h, h, 1)));
}
inline double reduce(__m128d v) { return _mm_cvtsd_f64(_mm_add_sd(v, _mm_unpackhi_pd(v, v))); }

// A hint to bring the cache line of address p closer: it never faults and reads nothing the
// program sees, so p may lie past the end of an operand.
inline void prefetch(uintptr_t p) { _mm_prefetch(reinterpret_cast<const char*>(p), _MM_HINT_T0); }

// The float pair at p in both halves (p0 p1 p0 p1): a load, no shuffle.
inline __m128 dupPair(const float* p) { return _mm_castpd_ps(loadDupSd(p)); }
// (a0, a1, b0, b1) and (a2, a3, b2, b3), as a pair of doubles moves; (a0 b0 a1 b1), (a2 b2 a3 b3).
inline __m128 lowHalves(__m128 a, __m128 b) { return _mm_movelh_ps(a, b); }
inline __m128 highHalves(__m128 a, __m128 b) { return _mm_movehl_ps(b, a); }
inline __m128 interleaveLow(__m128 a, __m128 b) { return _mm_unpacklo_ps(a, b); }
inline __m128 interleaveHigh(__m128 a, __m128 b) { return _mm_unpackhi_ps(a, b); }

// Four packed 3-element float objects in three registers (x0 y0 z0 x1 | y1 z1 x2 y2 |
// z2 x3 y3 z3) and the same as one register per element (x0 x1 x2 x3 | y0 .. | z0 ..).
inline void unpack3(__m128 r0, __m128 r1, __m128 r2, __m128& x, __m128& y, __m128& z) {
  const __m128 t0 = _mm_shuffle_ps(r1, r2, _MM_SHUFFLE(2, 1, 3, 2));  // x2 y2 x3 y3
  const __m128 t1 = _mm_shuffle_ps(r0, r1, _MM_SHUFFLE(1, 0, 2, 1));  // y0 z0 y1 z1
  x = _mm_shuffle_ps(r0, t0, _MM_SHUFFLE(2, 0, 3, 0));
  y = _mm_shuffle_ps(t1, t0, _MM_SHUFFLE(3, 1, 2, 0));
  z = _mm_shuffle_ps(t1, r2, _MM_SHUFFLE(3, 0, 3, 1));
}
inline void pack3(__m128 x, __m128 y, __m128 z, __m128& r0, __m128& r1, __m128& r2) {
  const __m128 lo = _mm_unpacklo_ps(x, y), hi = _mm_unpackhi_ps(x, y);  // x0 y0 x1 y1, x2 y2 x3 y3
  r0 = _mm_shuffle_ps(lo, _mm_shuffle_ps(z, x, _MM_SHUFFLE(1, 1, 0, 0)), _MM_SHUFFLE(2, 0, 1, 0));
  r1 = _mm_shuffle_ps(_mm_shuffle_ps(y, z, _MM_SHUFFLE(1, 1, 1, 1)), hi, _MM_SHUFFLE(1, 0, 2, 0));
  r2 = _mm_shuffle_ps(_mm_shuffle_ps(z, hi, _MM_SHUFFLE(2, 2, 2, 2)), _mm_shuffle_ps(hi, z, _MM_SHUFFLE(3, 3, 3, 3)),
                      _MM_SHUFFLE(2, 0, 2, 0));
}

}  // namespace tarn::simd

// ---- Floating-point control of region threads -----------------------------------------------
// MXCSR: rounding mode, flush-to-zero, denormals-are-zero and exception masks above bit 5, the
// sticky exception flags in bits 0 to 5.

namespace tarn::simd {

inline constexpr uint32_t kFpFlags = 0x3f;
inline uint32_t fpControl() { return _mm_getcsr(); }
inline void setFpControl(uint32_t csr) { _mm_setcsr(csr); }

}  // namespace tarn::simd
