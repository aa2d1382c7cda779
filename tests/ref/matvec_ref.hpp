// Plain models of the sums of a matrix-vector product. Each result is a sum of the products
// p[k] = a(i, k) * v(k), rounded in the element type T; the paths differ only in the order of
// the additions, and each function below is one such order, written out one scalar at a time.
#pragma once

#include <cstdint>

namespace tt::ref {

// k ascending from +0.0 (a sum of only -0.0 products is +0.0).
template <class T>
T ascending(const T* p, int n) {
  T s = T(0);
  for (int k = 0; k < n; ++k) s = s + p[k];
  return s;
}

// Even and odd products in two sums from +0.0 up to the last whole pair, added even + odd, the
// last product of an odd count behind them.
template <class T>
T evenOdd(const T* p, int n) {
  T even = T(0), odd = T(0);
  int k = 0;
  for (; k + 1 < n; k += 2) {
    even = even + p[k];
    odd = odd + p[k + 1];
  }
  T s = even + odd;
  if (k < n) s = s + p[k];
  return s;
}

// The sums of the fixed sizes 3 to 6, starting from the first product.
enum class Fixed { LeftToRight, Pair32, Pair64 };
template <class T>
T fixedSum(const T* p, int n, Fixed order, int row) {
  if (order == Fixed::LeftToRight) {
    T s = p[0];
    for (int k = 1; k < n; ++k) s = s + p[k];
    return s;
  }
  if (n == 3) return (p[0] + p[1]) + p[2];
  if (order == Fixed::Pair32) {
    if (n == 4) return (p[0] + p[2]) + (p[1] + p[3]);
    if (n == 5) return row == 4 ? ((p[0] + p[2]) + p[4]) + (p[1] + p[3]) : ((p[0] + p[1]) + p[4]) + (p[2] + p[3]);
    return ((p[0] + p[2]) + p[4]) + ((p[1] + p[3]) + p[5]);
  }
  if (n == 4) return (p[0] + p[1]) + (p[2] + p[3]);
  if (n == 5) return ((p[0] + p[1]) + (p[2] + p[3])) + p[4];
  return ((p[0] + p[1]) + (p[2] + p[3])) + (p[4] + p[5]);
}

// A dot product in 16-byte registers of 16/sizeof(T) lanes, `step` products per iteration in
// step/lanes accumulators, each starting at +0.0. With `peel`, the vector's address `addr`
// decides: off an element boundary there is no vector part; otherwise the products up to the
// next 16-byte boundary of the vector are summed first, from +0.0, into lane 0 of the first
// accumulator. The vector part needs `step` products after those, else the whole sum is
// `ascending`. Accumulators are added (A0 + A1, or (A0 + A1) + (A2 + A3)), lanes reduced as
// (l0 + l2) + (l1 + l3) or l0 + l1, the products left over added one at a time.
template <class T>
T laneDot(const T* p, int n, int step, bool peel, uintptr_t addr) {
  const int lanes = 16 / int(sizeof(T)), accs = step / lanes;
  int head = 0;
  if (peel) {
    const int mis = int(addr % 16);
    if (mis % int(sizeof(T)) != 0) return ascending(p, n);
    head = mis ? (16 - mis) / int(sizeof(T)) : 0;
  }
  if (n < head + step) return ascending(p, n);
  T acc[8] = {};  // accumulator j, lane l at j * lanes + l
  acc[0] = ascending(p, head);
  int k = head;
  for (; k + step <= n; k += step)
    for (int e = 0; e < step; ++e) acc[e] = acc[e] + p[k + e];
  T lane[4];
  for (int l = 0; l < lanes; ++l) {
    if (accs == 1) lane[l] = acc[l];
    else if (accs == 2) lane[l] = acc[l] + acc[lanes + l];
    else lane[l] = (acc[l] + acc[lanes + l]) + (acc[2 * lanes + l] + acc[3 * lanes + l]);
  }
  T r = lanes == 4 ? (lane[0] + lane[2]) + (lane[1] + lane[3]) : lane[0] + lane[1];
  for (; k < n; ++k) r = r + p[k];
  return r;
}

}  // namespace tt::ref
