// Plain models of the reductions, one function per order of additions. Terms are products (or
// squares) already rounded in the element type T; every `+` below is one rounded addition in
// T, written out in the order the family keeps. Vector accumulators are modelled as arrays of
// lanes. Addresses are 64-bit integers.
#pragma once

#include <cstdint>
#include <vector>

namespace tt::ref {

template <class T>
using Terms = std::vector<T>;

// p0 + p1 + ... left to right.
template <class T>
T leftToRight(const Terms<T>& p) {
  T s = p[0];
  for (size_t k = 1; k < p.size(); ++k) s = s + p[k];
  return s;
}

// 0 + p0 + p1 + ...
template <class T>
T fromZero(const Terms<T>& p) {
  T s = 0;
  for (T x : p) s = s + x;
  return s;
}

// Strided vectors: unrolled 3 to 6 left to right; else even sum + odd sum, then a last odd term.
template <class T>
T strided(const Terms<T>& p) {
  const size_t n = p.size();
  if (n >= 3 && n <= 6) return leftToRight(p);
  T e = 0, o = 0;
  size_t k = 0;
  for (; k + 1 < n; k += 2) e = e + p[k], o = o + p[k + 1];
  T s = e + o;
  return k < n ? s + p[k] : s;
}

// DotProduct LayoutP: 3 to 6 left to right; else eight sums by k mod 8, added left to right,
// then the rest.
template <class T>
T eightSums(const Terms<T>& p) {
  const size_t n = p.size();
  if (n >= 3 && n <= 6) return leftToRight(p);
  T acc[8] = {0, 0, 0, 0, 0, 0, 0, 0};
  size_t k = 0;
  for (; k + 8 <= n; k += 8)
    for (int j = 0; j < 8; ++j) acc[j] = acc[j] + p[k + j];
  T s = acc[0];
  for (int j = 1; j < 8; ++j) s = s + acc[j];
  for (; k < n; ++k) s = s + p[k];
  return s;
}

// The dot rule of a contiguous run whose alignment comes from `addr`.
template <class T>
T dotRule(const Terms<T>& p, uint64_t addr) {
  const uint64_t es = sizeof(T), n = p.size(), mis = addr % 16;
  const uint64_t peel = mis ? (16 - mis) / es : 0;
  if (n < 8 || mis % es != 0 || n < peel + 8) return fromZero(p);
  T s = 0;
  uint64_t k = 0;
  for (; k < peel; ++k) s = s + p[k];
  // Slot j: position j of each step of 8; 32f: A0 = slots 0-3, A1 = 4-7; 64f: A0 = 0-1 ... A3 = 6-7.
  T slot[8] = {s, 0, 0, 0, 0, 0, 0, 0};
  for (; k + 8 <= n; k += 8)
    for (int j = 0; j < 8; ++j) slot[j] = slot[j] + p[k + j];
  T r;
  if (es == 4) {
    T l[4];
    for (int j = 0; j < 4; ++j) l[j] = slot[j] + slot[4 + j];  // A0 + A1
    r = (l[0] + l[2]) + (l[1] + l[3]);
  } else {
    const T l0 = (slot[0] + slot[2]) + (slot[4] + slot[6]);  // (A0 + A1) + (A2 + A3), lane 0
    const T l1 = (slot[1] + slot[3]) + (slot[5] + slot[7]);
    r = l0 + l1;
  }
  for (; k < n; ++k) r = r + p[k];
  return r;
}

// DotProduct, contiguous vectors. vav32: the 32f vav form, whose 4 elements add in halves.
template <class T>
T dotContiguous(const Terms<T>& p, uint64_t addrSrc2, bool vav) {
  const size_t n = p.size();
  if (n < 3 || n > 6) return dotRule(p, addrSrc2);
  if (sizeof(T) == 4) return n == 4 && vav ? (p[0] + p[1]) + (p[2] + p[3]) : leftToRight(p);
  switch (n) {
    case 4: return (p[0] + p[2]) + (p[1] + p[3]);
    case 5: return ((p[0] + p[2]) + (p[1] + p[3])) + p[4];
    case 6: return (p[0] + (p[2] + p[4])) + (p[1] + (p[3] + p[5]));
  }
  return leftToRight(p);
}

// L2Norm sum of squares, contiguous vectors.
template <class T>
T normContiguous(const Terms<T>& p, uint64_t addr) {
  const size_t n = p.size();
  if (n < 3 || n > 6) return dotRule(p, addr);
  if (sizeof(T) == 4) {
    if (n == 3) return (p[0] + p[1]) + p[2];
    const T q = (p[0] + p[1]) + (p[2] + p[3]);
    return n == 4 ? q : n == 5 ? q + p[4] : q + (p[4] + p[5]);
  }
  switch (n) {
    case 3: return (p[2] + p[0]) + p[1];
    case 4: return (p[0] + p[2]) + (p[1] + p[3]);
    case 5: return ((p[0] + p[2]) + p[4]) + (p[1] + p[3]);
  }
  return ((p[0] + p[2]) + p[4]) + ((p[1] + p[3]) + p[5]);
}

// A matrix as FrobNorm sees it: squares s[r][c] in T, and where its elements lie.
template <class T>
struct FrobInput {
  std::vector<std::vector<T>> s;  // squares, row by row
  bool table = false;             // LayoutP
  int64_t rowStride = 0, elemStride = 0;
  uint64_t addr = 0;  // element (0, 0)
};

// 32f: one accumulator of four lanes from zero, reduced (l0 + l2) + (l1 + l3).
template <class T>
T frob32Sum(const FrobInput<T>& in) {
  const size_t h = in.s.size(), w = in.s[0].size();
  const auto& s = in.s;
  T l[4] = {0, 0, 0, 0};
  auto reduced = [&] { return (l[0] + l[2]) + (l[1] + l[3]); };
  if (w == h && w == 2) return (s[0][0] + s[1][0]) + (s[0][1] + s[1][1]);
  if (w == h && w == 3)
    return (((s[0][0] + s[0][1]) + s[2][2]) + (s[0][2] + s[1][0])) + ((s[1][1] + s[1][2]) + (s[2][0] + s[2][1]));
  if (w == h && (w == 4 || w == 5)) {
    for (size_t r = 0; r < h; ++r) {
      for (int c = 0; c < 4; ++c) l[c] = l[c] + s[r][c];
      if (w == 5) l[0] = l[0] + s[r][4];
    }
    return reduced();
  }
  // General: a run of elements (or each row) in blocks of 8 as two 4-lane vectors, the rest
  // one by one in lane 0.
  auto blocks = [&](const std::vector<T>& e, size_t i) {
    for (; i + 8 <= e.size(); i += 8) {
      for (int j = 0; j < 4; ++j) l[j] = l[j] + e[i + j];
      for (int j = 0; j < 4; ++j) l[j] = l[j] + e[i + 4 + j];
    }
    for (; i < e.size(); ++i) l[0] = l[0] + e[i];
  };
  const bool run = in.table || in.rowStride == in.elemStride * int64_t(w);
  if (run) {
    std::vector<T> e;
    for (const auto& row : s) e.insert(e.end(), row.begin(), row.end());
    size_t i = 0;
    if (!in.table && in.elemStride == 4)
      for (; i < e.size() && (in.addr + 4 * i) % 16 != 0; ++i) l[0] = l[0] + e[i];
    blocks(e, i);
  } else {
    for (const auto& row : s) blocks(row, 0);
  }
  return reduced();
}

// 64f: row by row; rows of 8 or more in blocks of 8 through four 2-lane sums added
// (A0 + A1) + (A2 + A3), whose lane 0 and then lane 1 join the running sum; singles follow.
template <class T>
T frob64Sum(const FrobInput<T>& in) {
  T total = 0;
  for (const auto& row : in.s) {
    size_t k = 0;
    if (row.size() >= 8) {
      T a[4][2] = {};
      for (; k + 8 <= row.size(); k += 8)
        for (int j = 0; j < 4; ++j)
          for (int l = 0; l < 2; ++l) a[j][l] = a[j][l] + row[k + 2 * j + l];
      const T l0 = (a[0][0] + a[1][0]) + (a[2][0] + a[3][0]);
      const T l1 = (a[0][1] + a[1][1]) + (a[2][1] + a[3][1]);
      total = total + l0;
      total = total + l1;
    }
    for (; k < row.size(); ++k) total = total + row[k];
  }
  return total;
}

// Trace: orders 3 to 6 left to right, others from zero.
template <class T>
T trace(const Terms<T>& diag) {
  return diag.size() >= 3 && diag.size() <= 6 ? leftToRight(diag) : fromZero(diag);
}

}  // namespace tt::ref
