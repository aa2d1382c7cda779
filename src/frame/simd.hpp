// The library's only SSE intrinsics. Kernels speak of chunks of a row: a run of 1, 2 or 4
// floats, or 1 or 2 doubles, loaded into one 16-byte register and stored back the same way, so
// no access ever covers an element outside the row. A row of 3 floats is one 8-byte and one
// 4-byte chunk: the fourth float of a 16-byte row slot, which may be the caller's, is never
// touched.
#pragma once

#include <pmmintrin.h>

#include <cstdint>
#include <type_traits>
#include <utility>

namespace tarn::simd {

template <class T> struct VecOf;
template <> struct VecOf<float> { using type = __m128; static constexpr int lanes = 4; };
template <> struct VecOf<double> { using type = __m128d; static constexpr int lanes = 2; };
template <class T> using Vec = typename VecOf<std::remove_const_t<T>>::type;
template <class T> inline constexpr int kLanes = VecOf<std::remove_const_t<T>>::lanes;

// Load a chunk of Len elements; Aligned only matters for a whole register.
template <int Len, bool Aligned>
inline __m128 load(const float* p) {
  if constexpr (Len == 4) return Aligned ? _mm_load_ps(p) : _mm_loadu_ps(p);
  else if constexpr (Len == 2) return _mm_castpd_ps(_mm_load_sd(reinterpret_cast<const double*>(p)));
  else return _mm_load_ss(p);
}
template <int Len, bool Aligned>
inline __m128d load(const double* p) {
  if constexpr (Len == 2) return Aligned ? _mm_load_pd(p) : _mm_loadu_pd(p);
  else return _mm_load_sd(p);
}
template <int Len, bool Aligned>
inline void store(float* p, __m128 v) {
  if constexpr (Len == 4) Aligned ? _mm_store_ps(p, v) : _mm_storeu_ps(p, v);
  else if constexpr (Len == 2) _mm_store_sd(reinterpret_cast<double*>(p), _mm_castps_pd(v));
  else _mm_store_ss(p, v);
}
template <int Len, bool Aligned>
inline void store(double* p, __m128d v) {
  if constexpr (Len == 2) Aligned ? _mm_store_pd(p, v) : _mm_storeu_pd(p, v);
  else _mm_store_sd(p, v);
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
  const __m128 ab = _mm_unpacklo_ps(_mm_load_ss(a), _mm_load_ss(b));
  const __m128 cd = _mm_unpacklo_ps(_mm_load_ss(c), _mm_load_ss(d));
  return _mm_movelh_ps(ab, cd);
}
inline __m128d gather2(const double* a, const double* b) { return _mm_loadh_pd(_mm_load_sd(a), b); }

// A 4-byte store that bypasses the caches; storeFence() orders all of them before what follows.
inline void streamStore(float* p, const float* s) {
  int32_t bits;
  __builtin_memcpy(&bits, s, 4);
  _mm_stream_si32(reinterpret_cast<int*>(p), bits);
}
inline void storeFence() { _mm_sfence(); }

}  // namespace tarn::simd

// ---- Matrix-vector products -----------------------------------------------------------------
// A run of Len elements of a row in one register, the lanes behind it zero. Three floats are
// a pair and a single on the way in and out, so the element behind the third is never touched.
namespace tarn::simd {

template <int Len>
inline __m128 loadPart(const float* p) {
  if constexpr (Len == 3) return _mm_movelh_ps(load<2, false>(p), _mm_load_ss(p + 2));
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
    _mm_store_ss(p + 2, _mm_movehl_ps(v, v));
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
inline __m128 dupPair(const float* p) { return _mm_castpd_ps(_mm_loaddup_pd(reinterpret_cast<const double*>(p))); }
// (a0 + a1, a2 + a3, b0 + b1, b2 + b3).
inline __m128 hadd(__m128 a, __m128 b) { return _mm_hadd_ps(a, b); }
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
