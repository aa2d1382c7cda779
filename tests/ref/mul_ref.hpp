// Plain model of a matrix product's element in each of its orders of summation. `p(k)` is the
// product a(i,k) * b(k,j), rounded in T.
#pragma once

#include <functional>

namespace tt {

enum class MulOrder {
  Kernel,  // left to right from the first product
  Triple,  // left to right from +0.0
  Tile,    // the register tile of the contiguous workers
};

struct MulShape {
  int rows, cols, inner;  // R, C, K of dst and the inner length
  bool mt = false;        // letters m,t: sums in lanes along k
  bool tm = false;        // letters t,m: the 2-row remainder keeps one sum per row
};

template <class T>
T mulElement(MulOrder order, const MulShape& z, int i, const std::function<T(int k)>& p) {
  const int K = z.inner;
  if (order == MulOrder::Kernel) {
    T s = p(0);
    for (int k = 1; k < K; ++k) s = s + p(k);
    return s;
  }
  T s = T(0);
  if (order == MulOrder::Triple) {
    for (int k = 0; k < K; ++k) s = s + p(k);
    return s;
  }
  const int lanes = 16 / int(sizeof(T));
  auto reduce = [&](const T* l) { return lanes == 4 ? (l[0] + l[2]) + (l[1] + l[3]) : l[0] + l[1]; };
  const int rowsInBlocks = z.rows - z.rows % 4, rest = z.rows - rowsInBlocks;
  if (i < rowsInBlocks) {  // 4 by 2 blocks and the odd last column
    if (!z.mt) {
      for (int k = 0; k < K; ++k) s = s + p(k);
      return s;
    }
    const int kv = K - K % lanes;
    T l[4] = {};
    for (int k = 0; k < kv; ++k) l[k % lanes] = l[k % lanes] + p(k);
    s = reduce(l);
    for (int k = kv; k < K; ++k) s = s + p(k);
    return s;
  }
  if (z.mt) {  // eight k per step from K = 8 on, lanes added pairwise before the reduction
    const int kv = K >= 8 ? K - K % 8 : 0;
    T acc[8] = {};
    for (int k = 0; k < kv; ++k) acc[k % 8] = acc[k % 8] + p(k);
    T l[4];
    for (int q = 0; q < lanes; ++q)
      l[q] = lanes == 4 ? acc[q] + acc[4 + q] : (acc[q] + acc[2 + q]) + (acc[4 + q] + acc[6 + q]);
    s = reduce(l);
    for (int k = kv; k < K; ++k) s = s + p(k);
    return s;
  }
  if (rest == 3 || (rest == 2 && z.tm)) {
    for (int k = 0; k < K; ++k) s = s + p(k);
    return s;
  }
  T even = T(0), odd = T(0);
  for (int k = 0; k + 1 < K; k += 2) {
    even = even + p(k);
    odd = odd + p(k + 1);
  }
  s = even + odd;
  if (K % 2) s = s + p(K - 1);
  return s;
}

}  // namespace tt
