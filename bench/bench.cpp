// tarn against the code a caller would otherwise write, measured side by side in one run.
//
// This file holds the element-wise workloads and main(); each other family registers its own
// workloads from its own bench/<family>_bench.cpp through support.hpp, named the same way
// (workload/shape/N:n/contender/T:threads) so that report.py tabulates every family alike.
// Every workload here is one row of kWorkloads (end of this file): a name, the object shape and type,
// how the batch is laid out, the bytes one object costs, and the contenders:
//   tarn    the export, on 1 and 2 threads (omp_set_num_threads)
//   plain   the loop written the obvious way, compiled -O3 -msse3 -ffp-contract=off
//   gcc     the same loop compiled by g++ with the same flags
//   eigen   Eigen 3.4 fixed-size types mapped onto the same memory
//   glm     glm, where it has the type and the operation
//   memref  a 16-byte copy (one read stream) or triad (two read streams) over the same number
//           of bytes read and written, on 1 and 2 threads: what the memory system allows
// Every contender runs on the same buffers, and its result is compared bit for bit with a scalar
// reference before it is timed. Counters: ns/obj, best_ns/obj (the fastest single call), and
// bytes_per_second counts bytes read plus bytes written (tables of LayoutL included).
#include <benchmark/benchmark.h>
#include <omp.h>
#include <pmmintrin.h>
#include <tarn.h>

#include <Eigen/Core>
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <glm/glm.hpp>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "plain_loop.hpp"
#include "support.hpp"

using tarnbench::Buf;
using tarnbench::registerBench;
using tarnbench::timeCalls;

namespace {

using tarnbench::Form;
using tarnbench::Lay;
using tarnbench::PlainArgs;
using tarnbench::Plus;
using tarnbench::Minus;
using tarnbench::Axpy;
using tarnbench::Comb;

struct Shape {
  int h, w, esize;
  Lay lay;
  Form form;
  int elems() const { return h * w; }
};

// The batch of one workload at one N. S and L: objects packed one after the other (L's tables
// point at them in order). P: h*w streams of n elements, stream e at e*n, so objStride = esize.
// The single operand of ArrOne is one packed object (P: h*w table entries into it).
struct Ctx {
  Shape s;
  int32_t n;
  Buf a, b, d, expect;
  std::vector<const void*> ta, tb;  // L: one per object; P: one per element
  std::vector<void*> td;
  // Memory reference streams: the batch's own buffers where they hold the bytes (same pages,
  // same placement), else buffers of their own, made on first use.
  Buf ra, rb, rd;
  const std::byte* refA = nullptr;
  const std::byte* refB = nullptr;
  std::byte* refD = nullptr;
  size_t refStream = 0;
  std::vector<std::string> verified;

  int32_t os() const { return s.elems() * s.esize; }  // packed object stride
  int32_t rs() const { return s.w * s.esize; }        // packed row stride
  template <class T> const T* A() const { return a.as<const T>(); }
  template <class T> const T* B() const { return b.as<const T>(); }
  template <class T> T* D() const { return d.as<T>(); }
  template <class T> const T* const* TA() const { return reinterpret_cast<const T* const*>(ta.data()); }
  template <class T> const T* const* TB() const { return reinterpret_cast<const T* const*>(tb.data()); }
  template <class T> T* const* TD() const { return reinterpret_cast<T* const*>(td.data()); }
};

template <class T, class Op>
std::unique_ptr<Ctx> makeCtx(Shape s, int32_t n) {
  auto c = std::make_unique<Ctx>();
  c->s = s;
  c->n = n;
  const size_t e = size_t(s.elems()), all = e * size_t(n);
  c->a = Buf(all * sizeof(T));
  c->b = Buf((s.form == Form::ArrArr ? all : e) * sizeof(T));
  c->d = Buf(all * sizeof(T));
  c->expect = Buf(all * sizeof(T));
  std::mt19937 rng(12345);
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  T* a = c->a.as<T>();
  T* b = c->b.as<T>();
  for (size_t i = 0; i < all; ++i) a[i] = T(u(rng));
  for (size_t i = 0; i < c->b.bytes / sizeof(T); ++i) b[i] = T(u(rng));
  T* x = c->expect.as<T>();
  for (size_t i = 0; i < all; ++i) {
    // Element k of object n: flat index n*e + k in S and L, k*n + n' in P.
    const size_t k = s.lay == Lay::P ? i / size_t(n) : i % e;
    x[i] = Op{}(a[i], s.form == Form::ArrArr ? b[i] : b[k]);
  }
  if (s.lay == Lay::L) {
    for (int32_t i = 0; i < n; ++i) {
      c->ta.push_back(a + size_t(i) * e);
      if (s.form == Form::ArrArr) c->tb.push_back(b + size_t(i) * e);
      c->td.push_back(c->d.as<T>() + size_t(i) * e);
    }
  } else if (s.lay == Lay::P) {
    for (size_t k = 0; k < e; ++k) {
      c->ta.push_back(a + k * size_t(n));
      c->tb.push_back(s.form == Form::ArrArr ? b + k * size_t(n) : b + k);
      c->td.push_back(c->d.as<T>() + k * size_t(n));
    }
  }
  return c;
}

// ---- Contenders ----------------------------------------------------------------------------

enum class Who { Tarn, Peer, MemRef };
struct Contender {
  const char* name;
  Who who;
  std::function<void(const Ctx&, int threads)> call;
};

struct Workload {
  std::string name;  // export and shape, e.g. "tarnAdd_mama_32f/3x3"
  Shape shape;
  double bytesPerObj;
  std::function<std::unique_ptr<Ctx>(int32_t n)> setup;
  std::vector<Contender> contenders;
};

// Bytes read plus written per object: two sources and dst, or one source and dst (the single
// operand is read once per call), plus one table pointer per operand and object in LayoutL.
double bytesPerObj(Shape s) {
  const int streams = s.form == Form::ArrArr ? 3 : 2;
  return double(streams) * s.elems() * s.esize + (s.lay == Lay::L ? streams * double(sizeof(void*)) : 0.0);
}

// The loop a caller writes (plain_loop.hpp), built by this compiler or by g++.
PlainArgs plainArgs(const Ctx& c) {
  return {c.s.lay, c.s.form, c.n, c.a.p, c.b.p, c.d.p, c.ta.data(), c.tb.data(), c.td.data()};
}
template <class T, int H, int W, class Op>
void plainLoop(const Ctx& c, int) {
  tarnbench::plain::plainLoop<T, H, W, Op>(plainArgs(c));
}
#ifdef TARN_BENCH_GCC
}  // namespace
namespace tarnbench::gcc {
template <class T, int H, int W, class Op> void plainLoop(const PlainArgs&);  // gcc_plain.cpp
}
namespace {
template <class T, int H, int W, class Op>
void gccLoop(const Ctx& c, int) {
  tarnbench::gcc::plainLoop<T, H, W, Op>(plainArgs(c));
}
#endif

template <class T, int H, int W>
using EigenObj = Eigen::Matrix<T, H, W, (W == 1 ? Eigen::ColMajor : Eigen::RowMajor)>;

template <class T, int H, int W, class Op>
void eigenLoop(const Ctx& c, int) {
  using M = EigenObj<T, H, W>;
  using CM = Eigen::Map<const M>;
  using DM = Eigen::Map<M>;
  constexpr int E = H * W;
  const int32_t n = c.n;
  const bool one = c.s.form == Form::ArrOne;
  if (c.s.lay == Lay::S) {
    const CM b1(c.B<T>());
    for (int32_t i = 0; i < n; ++i) {
      const CM a(c.A<T>() + size_t(i) * E);
      DM d(c.D<T>() + size_t(i) * E);
      if (one) d = Op{}(a, b1);
      else {
        const CM b(c.B<T>() + size_t(i) * E);
        d = Op{}(a, b);
      }
    }
  } else if (c.s.lay == Lay::L) {
    const CM b1(c.B<T>());
    for (int32_t i = 0; i < n; ++i) {
      const CM a(c.TA<T>()[i]);
      DM d(c.TD<T>()[i]);
      if (one) d = Op{}(a, b1);
      else {
        const CM b(c.TB<T>()[i]);
        d = Op{}(a, b);
      }
    }
  } else {
    using V = Eigen::Array<T, Eigen::Dynamic, 1>;
    for (int e = 0; e < E; ++e) {
      const Eigen::Map<const V> a(c.TA<T>()[e], n);
      Eigen::Map<V> d(c.TD<T>()[e], n);
      if (one) d = Op{}(a, *c.TB<T>()[e]);
      else {
        const Eigen::Map<const V> b(c.TB<T>()[e], n);
        d = Op{}(a, b);
      }
    }
  }
}

// glm's types of the same size and memory order for element-wise work; void where it has none.
template <class T, int H, int W> struct GlmOf { using type = void; };
template <> struct GlmOf<float, 3, 3> { using type = glm::mat3; };
template <> struct GlmOf<float, 4, 4> { using type = glm::mat4; };
template <> struct GlmOf<double, 3, 3> { using type = glm::dmat3; };
template <> struct GlmOf<double, 4, 4> { using type = glm::dmat4; };
template <> struct GlmOf<float, 1, 3> { using type = glm::vec3; };
template <> struct GlmOf<double, 1, 3> { using type = glm::dvec3; };

template <class T, int H, int W, class Op>
void glmLoop(const Ctx& c, int) {
  using G = typename GlmOf<T, H, W>::type;
  static_assert(sizeof(G) == sizeof(T) * H * W);
  const int32_t n = c.n;
  const bool one = c.s.form == Form::ArrOne;
  const G& b1 = *reinterpret_cast<const G*>(c.B<T>());
  if (c.s.lay == Lay::S) {
    const G* a = reinterpret_cast<const G*>(c.A<T>());
    const G* b = reinterpret_cast<const G*>(c.B<T>());
    G* d = reinterpret_cast<G*>(c.D<T>());
    if (one)
      for (int32_t i = 0; i < n; ++i) d[i] = Op{}(a[i], b1);
    else
      for (int32_t i = 0; i < n; ++i) d[i] = Op{}(a[i], b[i]);
  } else {
    for (int32_t i = 0; i < n; ++i) {
      const G& a = *reinterpret_cast<const G*>(c.TA<T>()[i]);
      G& d = *reinterpret_cast<G*>(c.TD<T>()[i]);
      d = Op{}(a, one ? b1 : *reinterpret_cast<const G*>(c.TB<T>()[i]));
    }
  }
}

// The memory reference: 16-byte loads and stores over streams of the same total bytes, split
// over the threads like tarn's objects. Two read streams for ArrArr, one for ArrOne.
void memRange(const Ctx& c, size_t first, size_t last) {
  const __m128* a = reinterpret_cast<const __m128*>(c.refA);
  const __m128* b = reinterpret_cast<const __m128*>(c.refB);
  __m128* d = reinterpret_cast<__m128*>(c.refD);
  if (c.s.form == Form::ArrArr) {
    for (size_t i = first; i < last; ++i) _mm_store_ps(reinterpret_cast<float*>(d + i), _mm_add_ps(a[i], b[i]));
  } else {
    for (size_t i = first; i < last; ++i) _mm_store_ps(reinterpret_cast<float*>(d + i), a[i]);
  }
}
void memRef(const Ctx& c, int threads) {
  const size_t v = c.refStream / 16;
  if (threads == 1) return memRange(c, 0, v);
#pragma omp parallel num_threads(threads)
  {
    const size_t t = size_t(omp_get_num_threads()), id = size_t(omp_get_thread_num());
    memRange(c, v * id / t, v * (id + 1) / t);
  }
}

// ---- Rows ----------------------------------------------------------------------------------

// A row: the export's call and its shape; the peers follow from the shape and the operation.
template <class T, int H, int W, class Op = Plus>
Workload row(const char* exportName, Lay lay, Form form, std::function<void(const Ctx&)> tarn) {
  const Shape s{H, W, int(sizeof(T)), lay, form};
  Workload wl;
  wl.name = std::string(exportName) + "/" + (H == 1 ? "v" + std::to_string(W) : std::to_string(H) + "x" + std::to_string(W));
  wl.shape = s;
  wl.bytesPerObj = bytesPerObj(s);
  wl.setup = [s](int32_t n) { return makeCtx<T, Op>(s, n); };
  wl.contenders.push_back({"tarn", Who::Tarn, [tarn](const Ctx& c, int) { tarn(c); }});
  wl.contenders.push_back({"plain", Who::Peer, plainLoop<T, H, W, Op>});
#ifdef TARN_BENCH_GCC
  wl.contenders.push_back({"gcc", Who::Peer, gccLoop<T, H, W, Op>});
#endif
  wl.contenders.push_back({"eigen", Who::Peer, eigenLoop<T, H, W, Op>});
  if constexpr (!std::is_void_v<typename GlmOf<T, H, W>::type>)
    if (lay != Lay::P) wl.contenders.push_back({"glm", Who::Peer, glmLoop<T, H, W, Op>});
  wl.contenders.push_back({"memref", Who::MemRef, memRef});
  return wl;
}

// Adapters from a family's argument list to the packed batch of a Ctx.
template <class T>
auto mamaS(tarnStatus (*f)(const T*, int32_t, int32_t, int32_t, const T*, int32_t, int32_t, int32_t, T*, int32_t,
                           int32_t, int32_t, int32_t, int32_t, int32_t)) {
  return [f](const Ctx& c) {
    const int32_t es = sizeof(T);
    f(c.A<T>(), c.os(), c.rs(), es, c.B<T>(), c.os(), c.rs(), es, c.D<T>(), c.os(), c.rs(), es, c.s.w, c.s.h, c.n);
  };
}
template <class T>
auto mamS(tarnStatus (*f)(const T*, int32_t, int32_t, int32_t, const T*, int32_t, int32_t, T*, int32_t, int32_t,
                          int32_t, int32_t, int32_t, int32_t)) {
  return [f](const Ctx& c) {
    const int32_t es = sizeof(T);
    f(c.A<T>(), c.os(), c.rs(), es, c.B<T>(), c.rs(), es, c.D<T>(), c.os(), c.rs(), es, c.s.w, c.s.h, c.n);
  };
}
template <class T>
auto mamaL(tarnStatus (*f)(const T* const*, int32_t, int32_t, int32_t, const T* const*, int32_t, int32_t, int32_t,
                           T* const*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t)) {
  return [f](const Ctx& c) {
    const int32_t es = sizeof(T);
    f(c.TA<T>(), 0, c.rs(), es, c.TB<T>(), 0, c.rs(), es, c.TD<T>(), 0, c.rs(), es, c.s.w, c.s.h, c.n);
  };
}
template <class T>
auto mamaP(tarnStatus (*f)(const T* const*, int32_t, int32_t, const T* const*, int32_t, int32_t, T* const*, int32_t,
                           int32_t, int32_t, int32_t, int32_t)) {
  return [f](const Ctx& c) {
    const int32_t es = sizeof(T);
    f(c.TA<T>(), 0, es, c.TB<T>(), 0, es, c.TD<T>(), 0, es, c.s.w, c.s.h, c.n);
  };
}
template <class T>
auto vavaS(tarnStatus (*f)(const T*, int32_t, int32_t, const T*, int32_t, int32_t, T*, int32_t, int32_t, int32_t,
                           int32_t)) {
  return [f](const Ctx& c) {
    const int32_t es = sizeof(T);
    f(c.A<T>(), c.os(), es, c.B<T>(), c.os(), es, c.D<T>(), c.os(), es, c.s.w, c.n);
  };
}
template <class T>
auto vavS(tarnStatus (*f)(const T*, int32_t, int32_t, const T*, int32_t, T*, int32_t, int32_t, int32_t, int32_t)) {
  return [f](const Ctx& c) {
    const int32_t es = sizeof(T);
    f(c.A<T>(), c.os(), es, c.B<T>(), es, c.D<T>(), c.os(), es, c.s.w, c.n);
  };
}

// Saxpy and LComb take their scalars behind the operand they scale.
template <class T>
auto saxpyVavaS(tarnStatus (*f)(const T*, int32_t, int32_t, T, const T*, int32_t, int32_t, T*, int32_t, int32_t,
                                int32_t, int32_t)) {
  return [f](const Ctx& c) {
    const int32_t es = sizeof(T);
    f(c.A<T>(), c.os(), es, Axpy<T>::s, c.B<T>(), c.os(), es, c.D<T>(), c.os(), es, c.s.w, c.n);
  };
}
template <class T>
auto saxpyVavS(tarnStatus (*f)(const T*, int32_t, int32_t, T, const T*, int32_t, T*, int32_t, int32_t, int32_t,
                               int32_t)) {
  return [f](const Ctx& c) {
    const int32_t es = sizeof(T);
    f(c.A<T>(), c.os(), es, Axpy<T>::s, c.B<T>(), es, c.D<T>(), c.os(), es, c.s.w, c.n);
  };
}
template <class T>
auto lcombVavaS(tarnStatus (*f)(const T*, int32_t, int32_t, T, const T*, int32_t, int32_t, T, T*, int32_t, int32_t,
                                int32_t, int32_t)) {
  return [f](const Ctx& c) {
    const int32_t es = sizeof(T);
    f(c.A<T>(), c.os(), es, Comb<T>::s1, c.B<T>(), c.os(), es, Comb<T>::s2, c.D<T>(), c.os(), es, c.s.w, c.n);
  };
}
template <class T>
auto lcombVavS(tarnStatus (*f)(const T*, int32_t, int32_t, T, const T*, int32_t, T, T*, int32_t, int32_t, int32_t,
                               int32_t)) {
  return [f](const Ctx& c) {
    const int32_t es = sizeof(T);
    f(c.A<T>(), c.os(), es, Comb<T>::s1, c.B<T>(), es, Comb<T>::s2, c.D<T>(), c.os(), es, c.s.w, c.n);
  };
}

using enum Lay;
using enum Form;

// clang-format off
const std::vector<Workload> kWorkloads = {
  row<float, 3, 3>("tarnAdd_mama_32f",   S, ArrArr, mamaS(tarnAdd_mama_32f)),
  row<float, 4, 4>("tarnAdd_mama_32f",   S, ArrArr, mamaS(tarnAdd_mama_32f)),
  row<double, 3, 3>("tarnAdd_mama_64f",  S, ArrArr, mamaS(tarnAdd_mama_64f)),
  row<double, 4, 4>("tarnAdd_mama_64f",  S, ArrArr, mamaS(tarnAdd_mama_64f)),
  row<float, 3, 3>("tarnAdd_mam_32f",    S, ArrOne, mamS(tarnAdd_mam_32f)),
  row<float, 4, 4>("tarnAdd_mam_32f",    S, ArrOne, mamS(tarnAdd_mam_32f)),
  row<double, 3, 3>("tarnAdd_mam_64f",   S, ArrOne, mamS(tarnAdd_mam_64f)),
  row<double, 4, 4>("tarnAdd_mam_64f",   S, ArrOne, mamS(tarnAdd_mam_64f)),
  row<float, 3, 3>("tarnAdd_mama_32f_L", L, ArrArr, mamaL(tarnAdd_mama_32f_L)),
  row<float, 3, 3>("tarnAdd_mama_32f_P", P, ArrArr, mamaP(tarnAdd_mama_32f_P)),
  row<float, 1, 3>("tarnAdd_vava_32f",   S, ArrArr, vavaS(tarnAdd_vava_32f)),
  row<float, 1, 3>("tarnAdd_vav_32f",    S, ArrOne, vavS(tarnAdd_vav_32f)),
  // The rest of the element-wise families in cache and beyond: 6x6, 64f vectors, Sub, Saxpy, LComb.
  row<float, 6, 6>("tarnAdd_mama_32f",   S, ArrArr, mamaS(tarnAdd_mama_32f)),
  row<double, 6, 6>("tarnAdd_mama_64f",  S, ArrArr, mamaS(tarnAdd_mama_64f)),
  row<float, 6, 6>("tarnAdd_mam_32f",    S, ArrOne, mamS(tarnAdd_mam_32f)),
  row<double, 6, 6>("tarnAdd_mam_64f",   S, ArrOne, mamS(tarnAdd_mam_64f)),
  row<double, 1, 3>("tarnAdd_vava_64f",  S, ArrArr, vavaS(tarnAdd_vava_64f)),
  row<double, 1, 3>("tarnAdd_vav_64f",   S, ArrOne, vavS(tarnAdd_vav_64f)),
  row<float, 3, 3, Minus>("tarnSub_mama_32f",  S, ArrArr, mamaS(tarnSub_mama_32f)),
  row<float, 4, 4, Minus>("tarnSub_mama_32f",  S, ArrArr, mamaS(tarnSub_mama_32f)),
  row<float, 6, 6, Minus>("tarnSub_mama_32f",  S, ArrArr, mamaS(tarnSub_mama_32f)),
  row<double, 3, 3, Minus>("tarnSub_mama_64f", S, ArrArr, mamaS(tarnSub_mama_64f)),
  row<double, 4, 4, Minus>("tarnSub_mama_64f", S, ArrArr, mamaS(tarnSub_mama_64f)),
  row<double, 6, 6, Minus>("tarnSub_mama_64f", S, ArrArr, mamaS(tarnSub_mama_64f)),
  row<float, 3, 3, Minus>("tarnSub_mam_32f",   S, ArrOne, mamS(tarnSub_mam_32f)),
  row<float, 4, 4, Minus>("tarnSub_mam_32f",   S, ArrOne, mamS(tarnSub_mam_32f)),
  row<float, 1, 3, Minus>("tarnSub_vava_32f",  S, ArrArr, vavaS(tarnSub_vava_32f)),
  row<double, 1, 3, Minus>("tarnSub_vava_64f", S, ArrArr, vavaS(tarnSub_vava_64f)),
  row<float, 1, 3, Axpy<float>>("tarnSaxpy_vava_32f",   S, ArrArr, saxpyVavaS(tarnSaxpy_vava_32f)),
  row<double, 1, 3, Axpy<double>>("tarnSaxpy_vava_64f", S, ArrArr, saxpyVavaS(tarnSaxpy_vava_64f)),
  row<float, 1, 3, Axpy<float>>("tarnSaxpy_vav_32f",    S, ArrOne, saxpyVavS(tarnSaxpy_vav_32f)),
  row<double, 1, 3, Axpy<double>>("tarnSaxpy_vav_64f",  S, ArrOne, saxpyVavS(tarnSaxpy_vav_64f)),
  row<float, 1, 3, Comb<float>>("tarnLComb_vava_32f",   S, ArrArr, lcombVavaS(tarnLComb_vava_32f)),
  row<double, 1, 3, Comb<double>>("tarnLComb_vava_64f", S, ArrArr, lcombVavaS(tarnLComb_vava_64f)),
  row<float, 1, 3, Comb<float>>("tarnLComb_vav_32f",    S, ArrOne, lcombVavS(tarnLComb_vav_32f)),
  row<double, 1, 3, Comb<double>>("tarnLComb_vav_64f",  S, ArrOne, lcombVavS(tarnLComb_vav_64f)),
};
// clang-format on

constexpr int32_t kSizes[] = {2000, 100000, 1000000};

// ---- Driver --------------------------------------------------------------------------------

// One batch alive at a time: benchmarks run in registration order, workload by workload.
struct Cache {
  const Workload* wl = nullptr;
  int32_t n = 0;
  std::unique_ptr<Ctx> ctx;
} gCache;

Ctx& batch(const Workload& wl, int32_t n) {
  if (gCache.wl != &wl || gCache.n != n) {
    gCache.ctx.reset();
    gCache.ctx = wl.setup(n);
    gCache.wl = &wl;
    gCache.n = n;
  }
  return *gCache.ctx;
}

void prepareRef(Ctx& c, const Workload& wl) {
  if (c.refStream) return;
  const int streams = c.s.form == Form::ArrArr ? 3 : 2;
  c.refStream = size_t(wl.bytesPerObj * c.n / streams) / 16 * 16;
  if (c.refStream <= c.a.bytes && c.refStream <= c.d.bytes && (streams == 2 || c.refStream <= c.b.bytes)) {
    c.refA = c.a.p;
    c.refB = c.b.p;
    c.refD = c.d.p;
    return;
  }
  c.ra = Buf(c.refStream);
  c.rb = Buf(c.refStream);
  c.rd = Buf(c.refStream);
  std::memset(c.ra.p, 0, c.refStream);
  std::memset(c.rb.p, 0, c.refStream);
  std::memset(c.rd.p, 0, c.refStream);
  c.refA = c.ra.p;
  c.refB = c.rb.p;
  c.refD = c.rd.p;
}

// The result of a contender must equal the scalar reference bit for bit, dst fully written.
bool verify(Ctx& c, const Contender& k) {
  for (const auto& v : c.verified)
    if (v == k.name) return true;
  std::memset(c.d.p, 0xff, c.d.bytes);
  k.call(c, 1);
  if (std::memcmp(c.d.p, c.expect.p, c.d.bytes) != 0) return false;
  c.verified.push_back(k.name);
  return true;
}

void run(benchmark::State& st, const Workload& wl, const Contender& k, int32_t n, int threads) {
  Ctx& c = batch(wl, n);
  if (k.who == Who::MemRef) prepareRef(c, wl);
  else if (!verify(c, k)) {
    st.SkipWithError("result differs from the scalar reference");
    return;
  }
  const int saved = omp_get_max_threads();
  if (k.who == Who::Tarn) omp_set_num_threads(threads);
  timeCalls(st, n, wl.bytesPerObj, [&] { k.call(c, threads); });
  if (k.who == Who::Tarn) omp_set_num_threads(saved);
}

}  // namespace

int main(int argc, char** argv) {
  for (const Workload& wl : kWorkloads)
    for (int32_t n : kSizes)
      for (const Contender& k : wl.contenders)
        for (int t : {1, 2}) {
          if (k.who == Who::Peer && t > 1) continue;
          const std::string name = wl.name + "/N:" + std::to_string(n) + "/" + k.name + "/T:" + std::to_string(t);
          registerBench(name, [&wl, &k, n, t](benchmark::State& st) { run(st, wl, k, n, t); });
        }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  // The first workload would otherwise meet a core that has been idle: busy it for a moment.
  for (auto t0 = std::chrono::steady_clock::now(); std::chrono::steady_clock::now() - t0 < std::chrono::milliseconds(300);) {
  }
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
