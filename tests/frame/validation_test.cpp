// Argument checks of every export: faults are injected by the letters of the member's check
// sequence, alone and in pairs, and the first failing check of the sequence (the same reading
// of the letters as the fuzz target's) must decide the status with nothing written. The pinned
// cases below tie the sequences of the members whose order departs to their descriptions.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "harness.hpp"

namespace tt {
namespace {

// Memory that every pointer of a valid call points into: tables whose entries point into the
// same pool, so a call that wrongly passed its checks would still stay inside it.
struct Pool {
  alignas(64) uint8_t data[1 << 16];
  void* table[64];
  Pool() {
    std::memset(data, 0, sizeof data);
    for (auto& t : table) t = data + 4096;
  }
};

// Every size 3 and every operand 3 by 3, so every shape rule holds until a fault breaks it.
struct Fixture {
  const MemberFn& m;
  int esize;
  Args base;
  Fixture(const MemberFn& mf, Pool& pool) : m(mf), esize(parseName(mf.name).esize) {
    for (int i = 0; i < m.nop; ++i) base.op[i] = {pool.table, 256, 32, esize, 0, 3, 3};
    base.width = base.height = base.len = base.order = 3;
    base.count = 2;
  }
  // Applies the fault of one check; false when the member has nothing the check looks at.
  bool inject(Check k, Args& a) const {
    const int bad = esize / 2;  // not a multiple of the element size
    switch (k.letter) {
      case 'N': a.op[m.nop - 1].ptr = nullptr; return true;
      case 'C': a.count = 0; return m.hasCount;
      case 'Z': {
        a.width = a.height = a.len = a.order = 0;
        bool any = m.sizes != 0;
        for (int i = 0; i < m.nop; ++i) {
          a.op[i].w = a.op[i].h = 0;
          any |= (m.blk[i].has & (kWidth | kHeight)) != 0;
        }
        return any;
      }
      case 'H':
        // The first operand with sizes of its own shrinks to 2 by 2: no factor of 3 fits it.
        // Without such sizes the rule is width <= height.
        for (int i = 0; i < m.nop; ++i)
          if (m.blk[i].has & kWidth) return a.op[i].w = a.op[i].h = 2, true;
        a.width = 4;
        return true;
      case 'R':
        for (int i = 0; i < m.nop; ++i)
          if ((m.blk[i].has & kRoi) && inScope(m, i, k.scope)) return a.op[i].roi = bad, true;
        return false;
      case 'T': case 'E': case 'O': {
        const uint8_t fields = k.letter == 'T' ? (kObj | kRow | kElem) : k.letter == 'E' ? (kRow | kElem) : kObj;
        for (int i = m.nop - 1; i >= 0; --i) {
          const uint8_t f = inScope(m, i, k.scope) ? m.blk[i].has & fields : 0;
          if (f & kElem) return a.op[i].elem = bad, true;
          if (f & kRow) return a.op[i].row = bad, true;
          if (f & kObj) return a.op[i].obj = bad, true;
        }
        return false;
      }
    }
    return false;
  }
};

TEST(Validation, FirstFailingCheckDecidesAndNothingIsWritten) {
  static Pool pool;
  for (const MemberFn& m : allMembers()) {
    const Fixture f(m, pool);
    const auto seq = checksOf(m.checks);
    for (size_t i = 0; i < seq.size(); ++i)
      for (size_t j = i; j < seq.size(); ++j) {
        Args a = f.base;
        if (!f.inject(seq[i], a) || !f.inject(seq[j], a)) continue;
        const auto before = std::vector<uint8_t>(pool.data, pool.data + sizeof pool.data);
        const bool shapeOk = seq[i].letter != 'H' && seq[j].letter != 'H';
        EXPECT_EQ(m.call(a), expected(m, a, f.esize, shapeOk)) << m.name << " faults " << seq[i].letter << seq[j].letter;
        EXPECT_TRUE(std::memcmp(before.data(), pool.data, sizeof pool.data) == 0) << m.name << " wrote on failure";
      }
  }
}

// Members whose order departs from the usual one, with the faults that tell the orders apart.
TEST(Validation, PinnedOrders) {
  static Pool pool;
  struct Case {
    const char* name;
    void (*fault)(Args&);
    tarnStatus want;
  };
  const Case cases[] = {
      {"tarnAdd_mam_32f", [](Args& a) { a.count = 0; a.op[0].row = 2; }, tarnStatusBadCount},
      {"tarnAdd_mam_32f", [](Args& a) { a.width = 0; a.op[0].row = 2; }, tarnStatusBadStride},
      {"tarnAdd_mama_32f", [](Args& a) { a.width = 0; a.op[0].row = 2; }, tarnStatusBadSize},
      {"tarnAdd_mam_32f_L", [](Args& a) { a.width = 0; a.op[0].row = 2; }, tarnStatusBadSize},
      {"tarnAdd_vav_32f", [](Args& a) { a.count = 0; a.len = 0; }, tarnStatusBadSize},
      {"tarnAdd_vac_32f", [](Args& a) { a.count = 0; a.len = 0; }, tarnStatusBadCount},
      {"tarnAdd_vav_32f", [](Args& a) { a.count = 0; a.op[1].elem = 0; }, tarnStatusBadStride},
      {"tarnAdd_vav_32f_L", [](Args& a) { a.count = 0; a.op[0].roi = -4; }, tarnStatusBadRoiShift},
      {"tarnAdd_vav_32f_P", [](Args& a) { a.count = 0; a.op[0].roi = -4; }, tarnStatusBadCount},
      {"tarnAdd_vca_32f_P", [](Args& a) { a.op[0].roi = -4; }, tarnStatusBadRoiShift},
      {"tarnAdd_vca_64f_P", [](Args& a) { a.op[0].roi = 3; a.count = 0; }, tarnStatusBadCount},
      {"tarnAdd_vaca_32f_P", [](Args& a) { a.op[1].obj = -4; }, tarnStatusBadStride},  // valObjStride
      {"tarnAdd_mam_32f", [](Args& a) { a.count = 1; a.op[0].obj = 0; }, tarnStatusBadStride},
      {"tarnAdd_mm_32f_P", [](Args& a) { a.op[2].roi = -4; a.width = 0; }, tarnStatusBadSize},
      {"tarnAdd_vc_64f", [](Args& a) { a.op[0].ptr = nullptr; a.len = -1; }, tarnStatusNullPointer},
      // Sub: mam and mma LayoutS check the count, strides, sizes; vav and vva part as in Add; cav
      // 32f LayoutP has no shift check, its 64f twin and the LayoutL form have one.
      {"tarnSub_mma_32f", [](Args& a) { a.count = 0; a.op[1].row = 2; }, tarnStatusBadCount},
      {"tarnSub_mma_32f", [](Args& a) { a.width = 0; a.op[1].row = 2; }, tarnStatusBadStride},
      {"tarnSub_mam_32f", [](Args& a) { a.width = 0; a.op[0].row = 2; }, tarnStatusBadStride},
      {"tarnSub_mta_32f", [](Args& a) { a.width = 0; a.op[1].row = 2; }, tarnStatusBadSize},
      {"tarnSub_mma_32f_L", [](Args& a) { a.width = 0; a.op[1].row = 2; }, tarnStatusBadSize},
      {"tarnSub_vav_32f", [](Args& a) { a.count = 0; a.len = 0; }, tarnStatusBadSize},
      {"tarnSub_vva_32f", [](Args& a) { a.count = 0; a.len = 0; }, tarnStatusBadCount},
      {"tarnSub_vav_32f", [](Args& a) { a.count = 0; a.op[0].elem = 2; }, tarnStatusBadStride},
      {"tarnSub_vav_32f_L", [](Args& a) { a.count = 0; a.op[0].roi = 2; }, tarnStatusBadRoiShift},
      {"tarnSub_vav_32f_P", [](Args& a) { a.count = 0; a.op[0].roi = 2; }, tarnStatusBadCount},
      {"tarnSub_vva_32f_L", [](Args& a) { a.count = 0; a.op[1].roi = 2; }, tarnStatusBadCount},
      {"tarnSub_cav_64f_P", [](Args& a) { a.op[0].roi = -8; }, tarnStatusBadRoiShift},
      {"tarnSub_cav_32f_P", [](Args& a) { a.op[0].roi = 2; }, tarnStatusOk},
      {"tarnSub_cav_32f_L", [](Args& a) { a.op[1].roi = 2; }, tarnStatusBadRoiShift},
      {"tarnSub_vca_32f_P", [](Args& a) { a.op[0].roi = 2; }, tarnStatusBadRoiShift},
      // Data movement: sizes before the count in Copy, the count first in Transpose arrays.
      {"tarnCopy_ma_32f_SS", [](Args& a) { a.count = 0; a.width = 0; }, tarnStatusBadSize},
      {"tarnTranspose_ma_32f", [](Args& a) { a.count = 0; a.width = 0; }, tarnStatusBadCount},
      {"tarnCopy_ma_32f_SS", [](Args& a) { a.count = 1; a.op[0].obj = 2; }, tarnStatusOk},
      {"tarnExtract_ma_32f", [](Args& a) { a.count = 1; a.op[0].obj = 2; }, tarnStatusBadStride},
      {"tarnCopy_va_32f_SP", [](Args& a) { a.op[0].elem = 2; a.op[1].roi = 2; }, tarnStatusBadRoiShift},
      {"tarnCopy_va_64f_SP", [](Args& a) { a.op[0].elem = 4; a.op[1].roi = 4; }, tarnStatusBadStride},
      {"tarnExtract_v_32f_P", [](Args& a) { a.op[1].ptr = nullptr; a.len = 0; }, tarnStatusNullPointer},
      {"tarnExtract_v_64f_P", [](Args& a) { a.op[1].ptr = nullptr; a.len = 0; }, tarnStatusBadSize},
      {"tarnLoadIdentity_ma_32f_P", [](Args& a) { a.op[0].roi = 2; a.count = 0; }, tarnStatusBadRoiShift},
      {"tarnLoadIdentity_ma_64f_P", [](Args& a) { a.op[0].roi = 4; a.count = 0; }, tarnStatusBadCount},
      // Products: the shape rule between the sizes and the strides; no stride step in a single
      // LayoutP product; an object stride is checked with count 1 too.
      {"tarnMul_mam_32f", [](Args& a) { a.op[1].h = 2; a.op[0].row = 2; }, tarnStatusShapeMismatch},
      {"tarnMul_mam_32f", [](Args& a) { a.op[1].h = 2; a.op[0].w = 0; }, tarnStatusBadSize},
      {"tarnMul_mta_64f", [](Args& a) { a.op[1].w = 2; }, tarnStatusShapeMismatch},  // src1Width = src2Width
      {"tarnMul_tma_64f", [](Args& a) { a.op[1].w = 2; }, tarnStatusOk},             // src1Height = src2Height
      {"tarnMul_mama_32f_L", [](Args& a) { a.count = 0; a.op[1].h = 2; }, tarnStatusBadCount},
      {"tarnMul_mm_32f_P", [](Args& a) { a.op[1].h = 2; a.op[2].roi = 2; }, tarnStatusShapeMismatch},
      {"tarnMul_mm_32f_P", [](Args& a) { a.op[2].roi = 2; }, tarnStatusBadRoiShift},
      {"tarnMul_mam_32f", [](Args& a) { a.count = 1; a.op[0].obj = 2; }, tarnStatusBadStride},
      // Reductions: the count before sizes; CrossProduct has no size, and its count and stride
      // checks change places with the operand form.
      {"tarnDotProduct_vav_32f", [](Args& a) { a.count = 0; a.len = 0; }, tarnStatusBadCount},
      {"tarnDotProduct_vava_64f_P", [](Args& a) { a.len = 0; a.op[1].roi = -8; }, tarnStatusBadSize},
      {"tarnL2Norm_va_32f_L", [](Args& a) { a.op[0].elem = 2; a.op[0].roi = 2; }, tarnStatusBadStride},
      {"tarnTrace_ma_64f", [](Args& a) { a.count = 0; a.order = 0; }, tarnStatusBadCount},
      {"tarnFrobNorm_m_32f_P", [](Args& a) { a.height = 0; a.op[0].roi = 2; }, tarnStatusBadSize},
      {"tarnCrossProduct_vav_32f", [](Args& a) { a.count = 0; a.op[1].elem = 2; }, tarnStatusBadStride},
      {"tarnCrossProduct_vva_32f", [](Args& a) { a.count = 0; a.op[1].elem = 2; }, tarnStatusBadCount},
      {"tarnCrossProduct_vav_64f_L", [](Args& a) { a.count = 0; a.op[0].roi = 4; }, tarnStatusBadRoiShift},
      {"tarnCrossProduct_vav_64f_L", [](Args& a) { a.op[0].roi = 4; a.op[2].elem = 4; }, tarnStatusBadStride},
      {"tarnCrossProduct_vav_32f_P", [](Args& a) { a.count = 0; a.op[0].roi = 2; }, tarnStatusBadCount},
      {"tarnCrossProduct_vav_32f_P", [](Args& a) { a.count = 0; a.op[2].obj = 2; }, tarnStatusBadStride},
      {"tarnCrossProduct_vava_64f_L", [](Args& a) { a.count = 0; a.op[2].elem = 4; }, tarnStatusBadCount},
      {"tarnCrossProduct_vva_32f_P", [](Args& a) { a.op[1].obj = 0; a.op[2].roi = -4; }, tarnStatusBadStride},
      {"tarnCrossProduct_vv_64f_P", [](Args& a) { a.op[2].roi = 4; a.op[0].ptr = nullptr; }, tarnStatusNullPointer},
      {"tarnCrossProduct_vv_64f_P", [](Args& a) { a.op[2].roi = 4; }, tarnStatusBadRoiShift},
      {"tarnCrossProduct_vv_32f", [](Args& a) { a.count = 0; a.op[0].elem = 0; }, tarnStatusBadStride},
      // QR checks width > height last, after strides and shifts; a null buffer is a null pointer.
      {"tarnQRDecomp_m_32f", [](Args& a) { a.width = 4; a.op[0].elem = 2; }, tarnStatusBadStride},
      {"tarnQRDecomp_ma_64f_L", [](Args& a) { a.width = 4; a.op[2].roi = 4; }, tarnStatusBadRoiShift},
      {"tarnQRDecomp_m_32f_P", [](Args& a) { a.width = 4; a.op[0].roi = -4; }, tarnStatusBadRoiShift},
      {"tarnQRDecomp_ma_32f", [](Args& a) { a.width = 4; a.count = 0; }, tarnStatusBadCount},
      {"tarnQRDecomp_ma_32f", [](Args& a) { a.width = 4; a.height = 0; }, tarnStatusBadSize},
      {"tarnQRDecomp_m_64f", [](Args& a) { a.width = 4; a.op[1].ptr = nullptr; }, tarnStatusNullPointer},
      {"tarnQRDecomp_ma_32f_P", [](Args& a) { a.width = 4; }, tarnStatusShapeMismatch},
      {"tarnQRBackSubst_mva_32f", [](Args& a) { a.width = 4; a.op[3].ptr = nullptr; }, tarnStatusNullPointer},
      {"tarnQRBackSubst_mv_32f", [](Args& a) { a.width = 4; a.op[2].elem = 2; }, tarnStatusBadStride},
      {"tarnQRBackSubst_mava_64f_P", [](Args& a) { a.width = 4; a.op[3].roi = 12; }, tarnStatusBadRoiShift},
      {"tarnQRBackSubst_mava_64f_P", [](Args& a) { a.width = 4; }, tarnStatusShapeMismatch},
      // Det and Invert: the buffer is required even where an order never uses it.
      {"tarnDet_m_32f", [](Args& a) { a.op[1].ptr = nullptr; a.order = 0; }, tarnStatusNullPointer},
      {"tarnDet_ma_64f_P", [](Args& a) { a.order = 0; a.op[0].roi = 4; }, tarnStatusBadSize},
      {"tarnInvert_ma_32f_L", [](Args& a) { a.op[0].roi = 2; a.op[0].elem = 2; }, tarnStatusBadStride},
      {"tarnInvert_m_64f_P", [](Args& a) { a.op[1].ptr = nullptr; a.op[0].roi = 4; }, tarnStatusNullPointer},
      // Solvers: the count before the size in arrays, the size before the strides in singles; the
      // mva LayoutL solve of Cholesky alone checks strides and shifts before the size and count.
      {"tarnLUDecomp_ma_32f", [](Args& a) { a.count = 0; a.order = 0; }, tarnStatusBadCount},
      {"tarnLUDecomp_m_64f", [](Args& a) { a.order = 0; a.op[2].row = 4; }, tarnStatusBadSize},
      {"tarnLUDecomp_ma_32f_P", [](Args& a) { a.op[2].obj = 2; a.op[0].roi = -4; }, tarnStatusBadStride},
      {"tarnLUBackSubst_mva_32f_L", [](Args& a) { a.op[1].ptr = nullptr; a.count = 0; }, tarnStatusNullPointer},
      {"tarnLUBackSubst_mava_64f_L", [](Args& a) { a.op[2].roi = 4; a.order = 0; }, tarnStatusBadSize},
      {"tarnCholeskyBackSubst_mva_32f_L", [](Args& a) { a.op[0].elem = 2; a.count = 0; }, tarnStatusBadStride},
      {"tarnCholeskyBackSubst_mva_32f", [](Args& a) { a.op[0].elem = 2; a.count = 0; }, tarnStatusBadCount},
      {"tarnCholeskyBackSubst_mva_64f_L", [](Args& a) { a.op[1].roi = -8; a.order = 0; }, tarnStatusBadRoiShift},
      {"tarnCholeskyBackSubst_mva_64f_L", [](Args& a) { a.order = 0; a.count = 0; }, tarnStatusBadSize},
      {"tarnCholeskyBackSubst_mava_32f_L", [](Args& a) { a.op[1].roi = -4; a.order = 0; }, tarnStatusBadSize},
      // Symmetric eigenproblems: sizes before the count, shifts before strides; scratch is
      // required even where it is not used; a bad object stride fails with one object too.
      {"tarnEigenValuesSym_ma_32f", [](Args& a) { a.count = 0; a.order = 0; }, tarnStatusBadSize},
      {"tarnEigenValuesSym_ma_64f", [](Args& a) { a.count = 0; a.op[0].elem = 4; }, tarnStatusBadCount},
      {"tarnEigenValuesSym_ma_32f", [](Args& a) { a.count = 1; a.op[0].obj = 2; }, tarnStatusBadStride},
      {"tarnEigenValuesSym_ma_32f_L", [](Args& a) { a.count = 0; a.op[0].roi = -4; }, tarnStatusBadCount},
      {"tarnEigenValuesSym_ma_64f_P", [](Args& a) { a.op[0].roi = 4; a.op[0].obj = 4; }, tarnStatusBadRoiShift},
      {"tarnEigenValuesSym_m_32f", [](Args& a) { a.order = 1; a.op[1].ptr = nullptr; }, tarnStatusNullPointer},
      {"tarnEigenValuesSym_m_64f_P", [](Args& a) { a.order = 0; a.op[0].roi = 3; }, tarnStatusBadSize},
      {"tarnEigenValuesVectorsSym_ma_32f_P", [](Args& a) { a.op[2].roi = 2; a.op[2].obj = 2; }, tarnStatusBadRoiShift},
      {"tarnEigenValuesVectorsSym_ma_64f_L", [](Args& a) { a.op[2].roi = -8; a.op[0].row = 4; }, tarnStatusBadRoiShift},
      {"tarnEigenValuesVectorsSym_ma_64f", [](Args& a) { a.count = 0; a.order = -1; }, tarnStatusBadSize},
      {"tarnEigenValuesVectorsSym_m_32f", [](Args& a) { a.op[2].elem = 2; a.order = 0; }, tarnStatusBadSize},
      {"tarnEigenValuesVectorsSym_m_32f_P", [](Args& a) { a.op[3].ptr = nullptr; a.order = 0; }, tarnStatusNullPointer},
      // General eigenproblems: the size before the count; shift before strides; the eigenvector
      // arrays check the source's shift and strides, then the destinations' shifts, then their
      // strides; the size functions the pointer before the size.
      {"tarnEigenValues_ma_32f", [](Args& a) { a.count = 0; a.order = 0; }, tarnStatusBadSize},
      {"tarnEigenValues_ma_32f", [](Args& a) { a.count = 1; a.op[0].obj = 0; }, tarnStatusBadStride},
      {"tarnEigenValues_ma_64f_P", [](Args& a) { a.op[0].roi = -8; a.op[0].obj = 4; }, tarnStatusBadRoiShift},
      {"tarnEigenValuesVectorsRight_ma_32f_L", [](Args& a) { a.op[0].elem = 2; a.op[1].roi = 2; }, tarnStatusBadStride},
      {"tarnEigenValuesVectorsRight_ma_32f_L", [](Args& a) { a.op[0].roi = 2; a.op[0].elem = 2; }, tarnStatusBadRoiShift},
      {"tarnEigenValuesVectorsLeft_ma_64f_P", [](Args& a) { a.op[0].obj = 4; a.op[1].roi = -8; }, tarnStatusBadStride},
      {"tarnEigenValuesVectors_ma_64f_P", [](Args& a) { a.op[1].obj = 4; a.op[2].roi = 4; }, tarnStatusBadRoiShift},
      {"tarnEigenValuesVectors_ma_32f_L", [](Args& a) { a.op[1].row = 0; a.op[2].roi = -4; }, tarnStatusBadRoiShift},
      {"tarnEigenValuesVectors_m_32f_P", [](Args& a) { a.op[2].roi = 2; a.order = 0; }, tarnStatusBadSize},
      {"tarnEigenValuesVectorsLeft_m_64f", [](Args& a) { a.op[1].elem = 4; a.order = 0; }, tarnStatusBadSize},
      {"tarnEigenValuesVectorsGetBufSize_32f", [](Args& a) { a.op[0].ptr = nullptr; a.order = 0; }, tarnStatusNullPointer},
      // Matrix-vector products: the shape step after the sizes, before strides and shifts; m
      // compares src1Width with src2Len, t src1Height; Gaxpy's src3Len is in the same step.
      {"tarnMul_mva_32f", [](Args& a) { a.count = 0; a.op[0].w = 0; }, tarnStatusBadCount},
      {"tarnMul_mva_32f", [](Args& a) { a.op[0].w = 0; a.op[1].w = 4; }, tarnStatusBadSize},
      {"tarnMul_mva_32f", [](Args& a) { a.op[1].w = 4; a.op[2].elem = 2; }, tarnStatusShapeMismatch},
      {"tarnMul_mv_32f", [](Args& a) { a.op[0].w = 4; a.op[1].w = 4; a.op[2].elem = 2; }, tarnStatusBadStride},
      {"tarnMul_tv_32f", [](Args& a) { a.op[0].w = 4; a.op[1].w = 4; a.op[2].elem = 2; }, tarnStatusShapeMismatch},
      {"tarnMul_tv_32f_P", [](Args& a) { a.op[0].h = 4; a.op[1].w = 3; a.op[2].roi = 2; }, tarnStatusShapeMismatch},
      {"tarnMul_mav_64f_L", [](Args& a) { a.op[1].elem = 4; a.op[0].roi = 4; }, tarnStatusBadStride},
      {"tarnMul_mva_32f", [](Args& a) { a.count = 1; a.op[1].obj = 0; }, tarnStatusBadStride},
      {"tarnGaxpy_mva_32f", [](Args& a) { a.op[2].w = 4; a.op[1].elem = 2; }, tarnStatusShapeMismatch},
      {"tarnGaxpy_mv_64f_P", [](Args& a) { a.op[2].w = 2; a.op[0].roi = -8; }, tarnStatusShapeMismatch},
      {"tarnGaxpy_mvav_32f_L", [](Args& a) { a.count = 0; a.op[2].w = 0; }, tarnStatusBadCount},
      // Products with a constant: vca and vaca check val for null, valObjStride as a stride
      // (LayoutP too), valRoiShift as a shift.
      {"tarnMul_vca_32f", [](Args& a) { a.op[1].ptr = nullptr; a.count = 0; }, tarnStatusNullPointer},
      {"tarnMul_vca_32f_P", [](Args& a) { a.op[1].obj = 2; a.op[0].roi = -4; }, tarnStatusBadStride},
      {"tarnMul_vaca_64f_P", [](Args& a) { a.op[1].obj = -8; }, tarnStatusBadStride},
      {"tarnMul_vaca_64f_L", [](Args& a) { a.op[1].roi = 4; }, tarnStatusBadRoiShift},
      {"tarnMul_mc_32f_P", [](Args& a) { a.width = 0; a.op[0].roi = 2; }, tarnStatusBadSize},
      {"tarnMul_mac_32f", [](Args& a) { a.count = 1; a.op[0].obj = 0; }, tarnStatusBadStride},
  };
  for (const Case& c : cases) {
    const MemberFn& m = member(c.name);
    const Fixture f(m, pool);
    Args a = f.base;
    c.fault(a);
    EXPECT_EQ(m.call(a), c.want) << c.name;
  }
}

}  // namespace
}  // namespace tt
