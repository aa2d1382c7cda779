#include "batches.hpp"

#include <omp.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <sstream>

#include "solve.hpp"

namespace tt {

// Counts put E just past (1.02 to 1.35 times) the largest threshold of the member's paths.
const std::vector<BatchRow>& parallelBatches() {
  constexpr tarnStatus kSing = tarnStatusSingular, kDiv = tarnStatusDivideByZero;
  static const std::vector<BatchRow> kRows = {
      {"tarnAdd_mama_32f", 4, 1000},
      {"tarnSub_vava_64f_L", 3, 3000},
      {"tarnSaxpy_vava_32f_P", 4, 4000},
      {"tarnLComb_vav_64f", 4, 3000},
      {"tarnMul_mama_64f_L", 4, 500},
      {"tarnMul_mva_32f_P", 4, 1500},
      {"tarnMul_mac_32f", 4, 1200},
      {"tarnGaxpy_mvav_64f", 4, 800},
      {"tarnDotProduct_vava_32f_L", 4, 6000},
      {"tarnCrossProduct_vava_64f_P", 3, 7000},
      {"tarnL2Norm_va_64f", 4, 6000},
      {"tarnFrobNorm_ma_32f_P", 4, 1300},
      {"tarnTrace_ma_64f_L", 4, 5100},
      {"tarnDet_ma_32f", 4, 5100},
      {"tarnInvert_ma_64f", 4, 2600, Fill::Random, Spoil::Zero, kSing},
      {"tarnLUDecomp_ma_32f_L", 4, 2600, Fill::Random, Spoil::Zero, kSing},
      {"tarnLUBackSubst_mava_32f_P", 4, 80},
      {"tarnCholeskyDecomp_ma_64f", 4, 150, Fill::PosDef, Spoil::Zero, tarnStatusNotPositiveDefinite},
      {"tarnCholeskyBackSubst_mva_32f_L", 4, 100},
      {"tarnQRDecomp_ma_64f_P", 4, 60, Fill::Random, Spoil::Zero, kDiv},
      {"tarnQRBackSubst_mava_32f", 4, 130},
      {"tarnEigenValuesSym_ma_32f_L", 4, 2100, Fill::Symmetric, Spoil::Zero, kSing},
      {"tarnEigenValuesVectorsSym_ma_64f_P", 4, 60, Fill::Symmetric, Spoil::Zero, kSing},
      {"tarnEigenValues_ma_64f", 4, 520, Fill::Random, Spoil::NaN, tarnStatusNoConvergence},
      {"tarnEigenValuesVectors_ma_32f_L", 4, 140, Fill::Random, Spoil::NaN, tarnStatusNoConvergence},
      {"tarnEigenValuesVectorsLeft_ma_64f_P", 4, 140, Fill::Random, Spoil::NaN, tarnStatusNoConvergence},
      {"tarnEigenValuesVectorsRight_ma_32f", 4, 140, Fill::Random, Spoil::NaN, tarnStatusNoConvergence},
      // A failing point gets the largest float and the walk goes on.
      {"tarnAffineTransform3DH_mva_32f", 4, 400, Fill::Affine, Spoil::Point, kDiv, false},
  };
  return kRows;
}

Extent extentOfOrder(const MemberFn& m, int block, int n) {
  const BlkInfo& b = m.blk[block];
  if (b.kind == 'c') return {1, 1};
  if (b.kind == 'v') return {1, n};
  if (b.kind != 0) return {n, n};
  const bool pivots = std::string_view(m.name).starts_with("tarnLU");
  if (b.array) return {1, n, pivots ? 4 : 0};
  return {1, n * (3 * n + 5), pivots ? 4 : 0};
}

std::unique_ptr<CallFixture> makeBatch(const BatchRow& row, const Style& st, unsigned seed,
                                       const std::vector<int>& bad) {
  const MemberFn& m = member(row.member);
  const int n = row.n;
  auto fx = std::make_unique<CallFixture>(m, m.hasCount ? row.count : 1, st,
                                          [&](int b) { return extentOfOrder(m, b, n); });
  fx->args.width = fx->args.height = fx->args.len = fx->args.order = n;
  fx->args.val[0] = 0.75;
  fx->args.val[1] = -1.5;
  std::mt19937 rng(seed);
  fx->fillSources(rng, row.fill == Fill::Specials);
  Operand& src = fx->block(0);
  const int objs = fx->isArray(0) ? fx->count() : 1;
  std::uniform_int_distribution<int> small(-4, 4), order(0, n - 1);
  if (row.fill == Fill::Integers)
    for (int i = 0; i < m.nop; ++i)
      if (!m.blk[i].out && m.blk[i].kind != 0)
        for (int k = 0; k < (fx->isArray(i) ? fx->count() : 1); ++k)
          for (int r = 0; r < extentOfOrder(m, i, n).rows; ++r)
            for (int c = 0; c < extentOfOrder(m, i, n).cols; ++c) fx->block(i).set(k, r, c, small(rng));
  for (int k = 0; k < objs; ++k) {
    if (row.fill == Fill::ScaledPermutation) {
      const int shift = order(rng);
      for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) src.set(k, r, c, c == (r + shift) % n ? std::ldexp(1.0, small(rng)) : 0.0);
    }
    if (row.fill == Fill::Symmetric)
      for (int r = 0; r < n; ++r)
        for (int c = 0; c < r; ++c) src.set(k, c, r, src.get(k, r, c));
    if (row.fill == Fill::PosDef) {  // B B^T + n I
      std::vector<double> a(size_t(n * n));
      for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) a[size_t(r * n + c)] = src.get(k, r, c);
      for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) {
          double s = r == c ? n : 0;
          for (int j = 0; j < n; ++j) s += a[size_t(r * n + j)] * a[size_t(c * n + j)];
          src.set(k, r, c, s);
        }
    }
  }
  if (row.fill == Fill::Affine)  // w' = x + 1
    for (int c = 0; c < 4; ++c) src.set(0, 3, c, c == 0 || c == 3 ? 1.0 : 0.0);
  for (int i = 0; i < m.nop; ++i)
    if (m.blk[i].kind == 0 && !m.blk[i].out) {  // row orders: rotations of 0..n-1
      const int per = extentOfOrder(m, i, n).cols, objects = m.blk[i].array ? fx->count() : 1;
      for (int k = 0; k < objects; ++k)
        for (int r = 0; r < n; ++r) fx->block(i).setBits(0, 0, k * per + r, uint64_t((r + k) % n));
    }
  for (int k : bad) {
    if (row.spoil == Spoil::Point) {
      fx->block(1).set(k, 0, 0, -1.0);
      continue;
    }
    const double v = row.spoil == Spoil::NaN ? std::numeric_limits<double>::quiet_NaN() : 0.0;
    for (int r = 0; r < n; ++r)
      for (int c = 0; c < n; ++c) src.set(k, r, c, v);
  }
  return fx;
}

std::string compareBatch(const BatchRow& row, const CallFixture& got, const CallFixture& clean,
                         const std::vector<int>& bad, int team, bool signedZeros) {
  std::ostringstream why;
  int shown = 0;
  const MemberFn& m = got.member();
  const int count = got.count();
  for (auto [first, len] : slicesOf(count, team, team > 1 && count >= team)) {
    int stop = first + len;  // objects from here on in the slice are untouched
    for (int k : bad)
      if (row.stops && k >= first && k < stop) stop = k + 1;
    for (int i = 0; i < m.nop; ++i) {
      if (!m.blk[i].out || !m.blk[i].array) continue;
      const Extent e = extentOfOrder(m, i, row.n);
      const bool plain = m.blk[i].kind == 0;
      for (int k = first; k < first + len; ++k) {
        bool failing = false;
        for (int b : bad) failing |= b == k;
        if (failing) continue;
        for (int r = 0; r < e.rows; ++r)
          for (int c = 0; c < e.cols; ++c) {
            const int on = plain ? 0 : k, oc = plain ? k * e.cols + c : c;
            const uint64_t want = k >= stop ? got.before(i).bits(on, r, oc) : clean.block(i).bits(on, r, oc);
            const uint64_t have = got.block(i).bits(on, r, oc);
            const uint64_t magnitude = got.block(i).esize() == 4 ? 0x7fffffffu : ~0ull >> 1;
            if (have != want && (signedZeros || ((have | want) & magnitude) != 0) && shown++ < 3)
              why << row.member << " argument " << i << " object " << k << " (" << r << "," << c << ")"
                  << (k >= stop ? " written behind a failing object" : " differs") << "; ";
          }
      }
    }
  }
  return why.str();
}

int envThreads() {
  const char* s = std::getenv("OMP_NUM_THREADS");
  const int t = s ? std::atoi(s) : 0;
  return t > 0 ? t : omp_get_num_procs();
}

}  // namespace tt
