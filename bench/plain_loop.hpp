// The loop a caller writes for an element-wise workload, one per layout, over raw pointers.
//
// The suite builds it twice: with the compiler of the rest of the suite (contender `plain`) and
// with g++ (contender `gcc`, gcc_plain.cpp), since a caller's loop may be compiled by either and
// their vectorisers differ. TARN_PLAIN_NS names the namespace of the copy a file builds.
#pragma once

#include <cstdint>

namespace tarnbench {

enum class Lay { S, L, P };          // packed objects / table of object pointers / one stream per element
enum class Form { ArrArr, ArrOne };  // mama, vava / mam, vav (second operand is one object)

// One batch as the loop sees it. S: objects packed one after the other. L: one pointer per object.
// P: one pointer per element, stream e holding element e of every object (the single operand of
// ArrOne: pointers into one packed object).
struct PlainArgs {
  Lay lay;
  Form form;
  int32_t n;
  const void* a;
  const void* b;
  void* d;
  const void* const* ta;
  const void* const* tb;
  void* const* td;
};

// The operations, for scalars, Eigen and glm alike; the scalars of Saxpy and LComb are fixed.
struct Plus {
  template <class X, class Y> auto operator()(const X& x, const Y& y) const { return x + y; }
};
struct Minus {
  template <class X, class Y> auto operator()(const X& x, const Y& y) const { return x - y; }
};
template <class T>
struct Axpy {
  static constexpr T s = T(0.75);
  template <class X, class Y> auto operator()(const X& x, const Y& y) const { return x * s + y; }
};
template <class T>
struct Comb {
  static constexpr T s1 = T(0.75), s2 = T(-1.25);
  template <class X, class Y> auto operator()(const X& x, const Y& y) const { return x * s1 + y * s2; }
};

}  // namespace tarnbench

#ifndef TARN_PLAIN_NS
#define TARN_PLAIN_NS plain
#endif

namespace tarnbench::TARN_PLAIN_NS {

template <class T, int H, int W, class Op>
void plainLoop(const PlainArgs& x) {
  constexpr int E = H * W;
  const int32_t n = x.n;
  const bool one = x.form == Form::ArrOne;
  if (x.lay == Lay::S) {
    const T* a = static_cast<const T*>(x.a);
    const T* b = static_cast<const T*>(x.b);
    T* d = static_cast<T*>(x.d);
    if (one) {
      for (int32_t i = 0; i < n; ++i)
        for (int r = 0; r < H; ++r)
          for (int k = 0; k < W; ++k) d[i * E + r * W + k] = Op{}(a[i * E + r * W + k], b[r * W + k]);
    } else {
      for (int32_t i = 0; i < n; ++i)
        for (int r = 0; r < H; ++r)
          for (int k = 0; k < W; ++k) d[i * E + r * W + k] = Op{}(a[i * E + r * W + k], b[i * E + r * W + k]);
    }
  } else if (x.lay == Lay::L) {
    for (int32_t i = 0; i < n; ++i) {
      const T* a = static_cast<const T*>(x.ta[i]);
      const T* b = one ? static_cast<const T*>(x.b) : static_cast<const T*>(x.tb[i]);
      T* d = static_cast<T*>(x.td[i]);
      for (int r = 0; r < H; ++r)
        for (int k = 0; k < W; ++k) d[r * W + k] = Op{}(a[r * W + k], b[r * W + k]);
    }
  } else {  // one stream per element: the structure-of-arrays loop
    for (int e = 0; e < E; ++e) {
      const T* a = static_cast<const T*>(x.ta[e]);
      const T* b = static_cast<const T*>(x.tb[e]);
      T* d = static_cast<T*>(x.td[e]);
      if (one)
        for (int32_t i = 0; i < n; ++i) d[i] = Op{}(a[i], b[0]);
      else
        for (int32_t i = 0; i < n; ++i) d[i] = Op{}(a[i], b[i]);
    }
  }
}

}  // namespace tarnbench::TARN_PLAIN_NS
