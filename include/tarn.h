/* tarn: batched kernels for small dense matrices and vectors.
 *
 * Generated from the member table by tarngen; do not edit by hand.
 * Strides and shifts are signed 32-bit byte counts. LayoutS (no suffix) takes a pointer and
 * strides, LayoutL (_L) a table of one pointer per object, LayoutP (_P) a table of one pointer
 * per element with a common object stride. */
#ifndef TARN_H
#define TARN_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Result of every member but tarnGetLibVersion: 0 on success, negative on failure. */
typedef int32_t tarnStatus;

enum {
  tarnStatusOk = 0,
  tarnStatusVectorSolveFailed = -2,
  tarnStatusBadSize = -6,
  tarnStatusNullPointer = -8,
  tarnStatusDivideByZero = -10,
  tarnStatusNotPositiveDefinite = -179,
  tarnStatusBadStride = -182,
  tarnStatusSingular = -195,
  tarnStatusBadRoiShift = -202,
  tarnStatusBadCount = -203,
  tarnStatusShapeMismatch = -204,
  tarnStatusNoConvergence = -205
};

/** The constant record returned by tarnGetLibVersion. */
typedef struct tarnLibraryVersion {
  int32_t major;         /* major version */
  int32_t minor;         /* minor version */
  int32_t majorBuild;    /* update number */
  int32_t build;         /* build number */
  char targetCpu[4];     /* processor-variant code, zero-filled */
  const char* name;      /* library and variant */
  const char* version;   /* version text */
  const char* buildDate; /* date of the build */
} tarnLibraryVersion;

/** Element-wise sum of the two operands, one rounded addition per element. */
tarnStatus tarnAdd_mam_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mam_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mam_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mam_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mam_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mam_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mama_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mama_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mama_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mama_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mama_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mama_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mat_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mat_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mat_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mat_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mat_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mat_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_mm_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnAdd_mm_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnAdd_mm_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnAdd_mm_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnAdd_tam_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tam_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tam_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tam_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tam_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tam_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tama_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tama_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tama_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tama_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tama_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tama_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tat_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tat_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tat_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tat_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tat_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tat_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tata_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tata_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tata_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tata_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tata_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tata_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnAdd_tm_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnAdd_tm_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnAdd_tm_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnAdd_tm_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnAdd_tt_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnAdd_tt_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnAdd_tt_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnAdd_tt_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnAdd_v2_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnAdd_v3_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnAdd_v4_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnAdd_vac_32f(const float* src, int32_t srcObjStride, int32_t srcElemStride, float val, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vac_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcElemStride, float val, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vac_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float val, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vac_64f(const double* src, int32_t srcObjStride, int32_t srcElemStride, double val, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vac_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcElemStride, double val, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vac_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double val, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vaca_32f(const float* src, int32_t srcObjStride, int32_t srcElemStride, const float* val, int32_t valObjStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vaca_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcElemStride, const float* const* val, int32_t valRoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vaca_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, const float* val, int32_t valObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vaca_64f(const double* src, int32_t srcObjStride, int32_t srcElemStride, const double* val, int32_t valObjStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vaca_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcElemStride, const double* const* val, int32_t valRoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vaca_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, const double* val, int32_t valObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vav_32f(const float* src1, int32_t src1ObjStride, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vav_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vav_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vav_64f(const double* src1, int32_t src1ObjStride, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vav_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vav_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vava_32f(const float* src1, int32_t src1ObjStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vava_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vava_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vava_64f(const double* src1, int32_t src1ObjStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vava_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vava_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vc_32f(const float* src, int32_t srcElemStride, float val, float* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnAdd_vc_32f_P(const float* const* src, int32_t srcRoiShift, float val, float* const* dst, int32_t dstRoiShift, int32_t len);
tarnStatus tarnAdd_vc_64f(const double* src, int32_t srcElemStride, double val, double* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnAdd_vc_64f_P(const double* const* src, int32_t srcRoiShift, double val, double* const* dst, int32_t dstRoiShift, int32_t len);
tarnStatus tarnAdd_vca_32f(const float* src, int32_t srcElemStride, const float* val, int32_t valObjStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vca_32f_L(const float* src, int32_t srcElemStride, const float* const* val, int32_t valRoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vca_32f_P(const float* const* src, int32_t srcRoiShift, const float* val, int32_t valObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vca_64f(const double* src, int32_t srcElemStride, const double* val, int32_t valObjStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vca_64f_L(const double* src, int32_t srcElemStride, const double* const* val, int32_t valRoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vca_64f_P(const double* const* src, int32_t srcRoiShift, const double* val, int32_t valObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnAdd_vv_32f(const float* src1, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnAdd_vv_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t len);
tarnStatus tarnAdd_vv_64f(const double* src1, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnAdd_vv_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t len);

/** 3D points as columns through a strided 4x4 matrix, divided by w'; a point with |w'| not above the smallest normal float gets the largest float and the status DivideByZero, and the walk goes on. */
tarnStatus tarnAffineTransform3DH_mva_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);

/** Points through a 4x4 float matrix, divided by the fourth coordinate, which is not tested. */
tarnStatus tarnAffineTransformCoord_m4v2_32f(const float* matrix, const float* src, float* dst);
tarnStatus tarnAffineTransformCoord_m4v2a_32f(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count);
tarnStatus tarnAffineTransformCoord_m4v3_32f(const float* matrix, const float* src, float* dst);
tarnStatus tarnAffineTransformCoord_m4v3a_32f(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count);

/** Directions through the upper rows of a 4x4 float matrix, without translation. */
tarnStatus tarnAffineTransformNormal_m4v2_32f(const float* matrix, const float* src, float* dst);
tarnStatus tarnAffineTransformNormal_m4v2a_32f(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count);
tarnStatus tarnAffineTransformNormal_m4v3_32f(const float* matrix, const float* src, float* dst);
tarnStatus tarnAffineTransformNormal_m4v3a_32f(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count);

/** Points through a 4x4 float matrix as row vectors (16 floats in row order), an implied w of 1 for 2- and 3-vectors; four floats out per point. */
tarnStatus tarnAffineTransform_m4v2_32f(const float* matrix, const float* src, float* dst);
tarnStatus tarnAffineTransform_m4v2a_32f(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count);
tarnStatus tarnAffineTransform_m4v3_32f(const float* matrix, const float* src, float* dst);
tarnStatus tarnAffineTransform_m4v3a_32f(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count);
tarnStatus tarnAffineTransform_m4v4_32f(const float* matrix, const float* src, float* dst);
tarnStatus tarnAffineTransform_m4v4a_32f(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count);

/** ((src2 - src1)*f + src1) + (src3 - src1)*g per element. */
tarnStatus tarnBaryCentric_v2_32f(const float* src1, const float* src2, const float* src3, float f, float g, float* dst);
tarnStatus tarnBaryCentric_v3_32f(const float* src1, const float* src2, const float* src3, float f, float g, float* dst);
tarnStatus tarnBaryCentric_v4_32f(const float* src1, const float* src2, const float* src3, float f, float g, float* dst);

/** Solves A x = b from the factor of CholeskyDecomp (reciprocals on its diagonal), with multiplications and subtractions only. */
tarnStatus tarnCholeskyBackSubst_mava_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyBackSubst_mava_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyBackSubst_mava_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyBackSubst_mava_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyBackSubst_mava_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyBackSubst_mava_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyBackSubst_mv_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* dst, int32_t dstElemStride, int32_t widthHeight);
tarnStatus tarnCholeskyBackSubst_mv_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t widthHeight);
tarnStatus tarnCholeskyBackSubst_mv_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* dst, int32_t dstElemStride, int32_t widthHeight);
tarnStatus tarnCholeskyBackSubst_mv_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t widthHeight);
tarnStatus tarnCholeskyBackSubst_mva_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyBackSubst_mva_32f_L(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyBackSubst_mva_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyBackSubst_mva_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyBackSubst_mva_64f_L(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyBackSubst_mva_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);

/** Cholesky factorisation A = L L^T of the lower triangle of src: dst holds L below the diagonal and 1/L(i,i) on it; the upper triangle is neither read nor written. */
tarnStatus tarnCholeskyDecomp_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, float* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight);
tarnStatus tarnCholeskyDecomp_m_32f_P(const float* const* src, int32_t srcRoiShift, float* const* dst, int32_t dstRoiShift, int32_t widthHeight);
tarnStatus tarnCholeskyDecomp_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, double* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight);
tarnStatus tarnCholeskyDecomp_m_64f_P(const double* const* src, int32_t srcRoiShift, double* const* dst, int32_t dstRoiShift, int32_t widthHeight);
tarnStatus tarnCholeskyDecomp_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyDecomp_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyDecomp_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyDecomp_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyDecomp_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnCholeskyDecomp_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);

/** Copies an array of matrices or vectors from one layout to another, element by element as raw bits. */
tarnStatus tarnCopy_ma_32f_LL(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_32f_LP(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_32f_LS(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_32f_PL(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_32f_PP(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_32f_PS(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_32f_SL(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_32f_SP(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_32f_SS(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_64f_LL(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_64f_LP(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_64f_LS(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_64f_PL(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_64f_PP(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_64f_PS(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_64f_SL(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_64f_SP(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_ma_64f_SS(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnCopy_va_32f_LL(const float* const* src, int32_t srcRoiShift, int32_t srcElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_32f_LP(const float* const* src, int32_t srcRoiShift, int32_t srcElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_32f_LS(const float* const* src, int32_t srcRoiShift, int32_t srcElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_32f_PL(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_32f_PP(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_32f_PS(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_32f_SL(const float* src, int32_t srcObjStride, int32_t srcElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_32f_SP(const float* src, int32_t srcObjStride, int32_t srcElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_32f_SS(const float* src, int32_t srcObjStride, int32_t srcElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_64f_LL(const double* const* src, int32_t srcRoiShift, int32_t srcElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_64f_LP(const double* const* src, int32_t srcRoiShift, int32_t srcElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_64f_LS(const double* const* src, int32_t srcRoiShift, int32_t srcElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_64f_PL(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_64f_PP(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_64f_PS(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_64f_SL(const double* src, int32_t srcObjStride, int32_t srcElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_64f_SP(const double* src, int32_t srcObjStride, int32_t srcElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnCopy_va_64f_SS(const double* src, int32_t srcObjStride, int32_t srcElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);

/** dst = src1 x src2 of 3-element vectors: each product rounded, then the difference; an object is read whole before it is written. Fixed forms: x1*y2 - y1*x2 of 2-vectors, the vector product of 3-vectors, the vector orthogonal to three 4-vectors. */
tarnStatus tarnCrossProduct_v2_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnCrossProduct_v3_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnCrossProduct_v4_32f(const float* src1, const float* src2, const float* src3, float* dst);
tarnStatus tarnCrossProduct_vav_32f(const float* src1, int32_t src1ObjStride, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnCrossProduct_vav_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t count);
tarnStatus tarnCrossProduct_vav_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnCrossProduct_vav_64f(const double* src1, int32_t src1ObjStride, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnCrossProduct_vav_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t count);
tarnStatus tarnCrossProduct_vav_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnCrossProduct_vava_32f(const float* src1, int32_t src1ObjStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnCrossProduct_vava_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t count);
tarnStatus tarnCrossProduct_vava_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnCrossProduct_vava_64f(const double* src1, int32_t src1ObjStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnCrossProduct_vava_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t count);
tarnStatus tarnCrossProduct_vava_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnCrossProduct_vv_32f(const float* src1, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* dst, int32_t dstElemStride);
tarnStatus tarnCrossProduct_vv_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift);
tarnStatus tarnCrossProduct_vv_64f(const double* src1, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* dst, int32_t dstElemStride);
tarnStatus tarnCrossProduct_vv_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift);
tarnStatus tarnCrossProduct_vva_32f(const float* src1, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnCrossProduct_vva_32f_L(const float* src1, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t count);
tarnStatus tarnCrossProduct_vva_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnCrossProduct_vva_64f(const double* src1, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnCrossProduct_vva_64f_L(const double* src1, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t count);
tarnStatus tarnCrossProduct_vva_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);

/** Determinant of each square matrix; a matrix found singular gives 0, never a failure; buffer holds widthHeight*(widthHeight+1) elements. */
tarnStatus tarnDet_m4_32f(const float* src, float* dst);
tarnStatus tarnDet_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, int32_t widthHeight, float* buffer, float* dst);
tarnStatus tarnDet_m_32f_P(const float* const* src, int32_t srcRoiShift, int32_t widthHeight, float* buffer, float* dst);
tarnStatus tarnDet_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, int32_t widthHeight, double* buffer, double* dst);
tarnStatus tarnDet_m_64f_P(const double* const* src, int32_t srcRoiShift, int32_t widthHeight, double* buffer, double* dst);
tarnStatus tarnDet_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, int32_t widthHeight, float* buffer, float* dst, int32_t count);
tarnStatus tarnDet_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, int32_t widthHeight, float* buffer, float* dst, int32_t count);
tarnStatus tarnDet_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, int32_t widthHeight, float* buffer, float* dst, int32_t count);
tarnStatus tarnDet_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, int32_t widthHeight, double* buffer, double* dst, int32_t count);
tarnStatus tarnDet_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, int32_t widthHeight, double* buffer, double* dst, int32_t count);
tarnStatus tarnDet_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, int32_t widthHeight, double* buffer, double* dst, int32_t count);

/** dst = sum of src1[k]*src2[k] per pair of vectors, one result element per object; the order of the additions depends on the length, the path and, for long contiguous vectors, the address of src2. The fixed 2-, 3- and 4-vector forms sum left to right from the first element. */
tarnStatus tarnDotProduct_v2_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnDotProduct_v3_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnDotProduct_v4_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnDotProduct_vav_32f(const float* src1, int32_t src1ObjStride, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* dst, int32_t len, int32_t count);
tarnStatus tarnDotProduct_vav_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* dst, int32_t len, int32_t count);
tarnStatus tarnDotProduct_vav_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, float* dst, int32_t len, int32_t count);
tarnStatus tarnDotProduct_vav_64f(const double* src1, int32_t src1ObjStride, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* dst, int32_t len, int32_t count);
tarnStatus tarnDotProduct_vav_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* dst, int32_t len, int32_t count);
tarnStatus tarnDotProduct_vav_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, double* dst, int32_t len, int32_t count);
tarnStatus tarnDotProduct_vava_32f(const float* src1, int32_t src1ObjStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t len, int32_t count);
tarnStatus tarnDotProduct_vava_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* dst, int32_t len, int32_t count);
tarnStatus tarnDotProduct_vava_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* dst, int32_t len, int32_t count);
tarnStatus tarnDotProduct_vava_64f(const double* src1, int32_t src1ObjStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t len, int32_t count);
tarnStatus tarnDotProduct_vava_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* dst, int32_t len, int32_t count);
tarnStatus tarnDotProduct_vava_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* dst, int32_t len, int32_t count);
tarnStatus tarnDotProduct_vv_32f(const float* src1, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* dst, int32_t len);
tarnStatus tarnDotProduct_vv_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, float* dst, int32_t len);
tarnStatus tarnDotProduct_vv_64f(const double* src1, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* dst, int32_t len);
tarnStatus tarnDotProduct_vv_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, double* dst, int32_t len);

/** Bytes of scratch a general eigenvalue member needs for matrices of order widthHeight: widthHeight*(widthHeight+5)*esize. */
tarnStatus tarnEigenValuesGetBufSize_32f(int32_t widthHeight, int32_t* bufSize);
tarnStatus tarnEigenValuesGetBufSize_64f(int32_t widthHeight, int32_t* bufSize);

/** All eigenvalues of each symmetric matrix, in descending order: Householder tridiagonalisation, then implicit QL or QR sweeps; scratch holds one widthHeight x widthHeight working matrix. */
tarnStatus tarnEigenValuesSym_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, float* scratch, float* dst, int32_t widthHeight);
tarnStatus tarnEigenValuesSym_m_32f_P(const float* const* src, int32_t srcRoiShift, float* scratch, float* dst, int32_t widthHeight);
tarnStatus tarnEigenValuesSym_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, double* scratch, double* dst, int32_t widthHeight);
tarnStatus tarnEigenValuesSym_m_64f_P(const double* const* src, int32_t srcRoiShift, double* scratch, double* dst, int32_t widthHeight);
tarnStatus tarnEigenValuesSym_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* scratch, float* dst, int32_t widthHeight, int32_t count);
tarnStatus tarnEigenValuesSym_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* scratch, float* dst, int32_t widthHeight, int32_t count);
tarnStatus tarnEigenValuesSym_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* scratch, float* dst, int32_t widthHeight, int32_t count);
tarnStatus tarnEigenValuesSym_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* scratch, double* dst, int32_t widthHeight, int32_t count);
tarnStatus tarnEigenValuesSym_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* scratch, double* dst, int32_t widthHeight, int32_t count);
tarnStatus tarnEigenValuesSym_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* scratch, double* dst, int32_t widthHeight, int32_t count);

/** Bytes of scratch a general eigenvector member needs for matrices of order widthHeight: widthHeight*(3*widthHeight+5)*esize. */
tarnStatus tarnEigenValuesVectorsGetBufSize_32f(int32_t widthHeight, int32_t* bufSize);
tarnStatus tarnEigenValuesVectorsGetBufSize_64f(int32_t widthHeight, int32_t* bufSize);

/** Eigenvalues with the eigenvectors v of src v = lambda v in columns, as in EigenValuesVectors. */
tarnStatus tarnEigenValuesVectorsLeft_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, float* dstVectors, int32_t dstRowStride, int32_t dstElemStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, float* scratch);
tarnStatus tarnEigenValuesVectorsLeft_m_32f_P(const float* const* src, int32_t srcRoiShift, float* const* dstVectors, int32_t dstRoiShift, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, float* scratch);
tarnStatus tarnEigenValuesVectorsLeft_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, double* dstVectors, int32_t dstRowStride, int32_t dstElemStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, double* scratch);
tarnStatus tarnEigenValuesVectorsLeft_m_64f_P(const double* const* src, int32_t srcRoiShift, double* const* dstVectors, int32_t dstRoiShift, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, double* scratch);
tarnStatus tarnEigenValuesVectorsLeft_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* dstVectors, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, int32_t count, float* scratch);
tarnStatus tarnEigenValuesVectorsLeft_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* const* dstVectors, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, int32_t count, float* scratch);
tarnStatus tarnEigenValuesVectorsLeft_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* const* dstVectors, int32_t dstRoiShift, int32_t dstObjStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, int32_t count, float* scratch);
tarnStatus tarnEigenValuesVectorsLeft_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* dstVectors, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, int32_t count, double* scratch);
tarnStatus tarnEigenValuesVectorsLeft_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* const* dstVectors, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, int32_t count, double* scratch);
tarnStatus tarnEigenValuesVectorsLeft_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* const* dstVectors, int32_t dstRoiShift, int32_t dstObjStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, int32_t count, double* scratch);

/** Eigenvalues with the eigenvectors v of transpose(src) v = lambda v in columns, as in EigenValuesVectors. */
tarnStatus tarnEigenValuesVectorsRight_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, float* dstVectors, int32_t dstRowStride, int32_t dstElemStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, float* scratch);
tarnStatus tarnEigenValuesVectorsRight_m_32f_P(const float* const* src, int32_t srcRoiShift, float* const* dstVectors, int32_t dstRoiShift, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, float* scratch);
tarnStatus tarnEigenValuesVectorsRight_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, double* dstVectors, int32_t dstRowStride, int32_t dstElemStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, double* scratch);
tarnStatus tarnEigenValuesVectorsRight_m_64f_P(const double* const* src, int32_t srcRoiShift, double* const* dstVectors, int32_t dstRoiShift, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, double* scratch);
tarnStatus tarnEigenValuesVectorsRight_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* dstVectors, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, int32_t count, float* scratch);
tarnStatus tarnEigenValuesVectorsRight_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* const* dstVectors, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, int32_t count, float* scratch);
tarnStatus tarnEigenValuesVectorsRight_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* const* dstVectors, int32_t dstRoiShift, int32_t dstObjStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, int32_t count, float* scratch);
tarnStatus tarnEigenValuesVectorsRight_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* dstVectors, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, int32_t count, double* scratch);
tarnStatus tarnEigenValuesVectorsRight_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* const* dstVectors, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, int32_t count, double* scratch);
tarnStatus tarnEigenValuesVectorsRight_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* const* dstVectors, int32_t dstRoiShift, int32_t dstObjStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, int32_t count, double* scratch);

/** Eigenvalues of each symmetric matrix in descending order, with the eigenvector of value j in column j of dstVectors; scratch holds one widthHeight x widthHeight working matrix. */
tarnStatus tarnEigenValuesVectorsSym_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, float* scratch, float* dstVectors, int32_t dstRowStride, int32_t dstElemStride, float* dstValues, int32_t widthHeight);
tarnStatus tarnEigenValuesVectorsSym_m_32f_P(const float* const* src, int32_t srcRoiShift, float* scratch, float* const* dstVectors, int32_t dstRoiShift, float* dstValues, int32_t widthHeight);
tarnStatus tarnEigenValuesVectorsSym_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, double* scratch, double* dstVectors, int32_t dstRowStride, int32_t dstElemStride, double* dstValues, int32_t widthHeight);
tarnStatus tarnEigenValuesVectorsSym_m_64f_P(const double* const* src, int32_t srcRoiShift, double* scratch, double* const* dstVectors, int32_t dstRoiShift, double* dstValues, int32_t widthHeight);
tarnStatus tarnEigenValuesVectorsSym_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* scratch, float* dstVectors, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, float* dstValues, int32_t widthHeight, int32_t count);
tarnStatus tarnEigenValuesVectorsSym_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* scratch, float* const* dstVectors, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, float* dstValues, int32_t widthHeight, int32_t count);
tarnStatus tarnEigenValuesVectorsSym_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* scratch, float* const* dstVectors, int32_t dstRoiShift, int32_t dstObjStride, float* dstValues, int32_t widthHeight, int32_t count);
tarnStatus tarnEigenValuesVectorsSym_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* scratch, double* dstVectors, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, double* dstValues, int32_t widthHeight, int32_t count);
tarnStatus tarnEigenValuesVectorsSym_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* scratch, double* const* dstVectors, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, double* dstValues, int32_t widthHeight, int32_t count);
tarnStatus tarnEigenValuesVectorsSym_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* scratch, double* const* dstVectors, int32_t dstRoiShift, int32_t dstObjStride, double* dstValues, int32_t widthHeight, int32_t count);

/** Eigenvalues with right (transpose(src) v = lambda v) and left (src v = lambda v) eigenvectors in columns, of unit length; a conjugate pair stores the real part of its vector in column j, the imaginary part in column j+1 (a left pair's v solves src v = conj(lambda_j) v). scratch: tarnEigenValuesVectorsGetBufSize bytes. */
tarnStatus tarnEigenValuesVectors_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, float* dstVectorsRight, int32_t dstRightRowStride, int32_t dstRightElemStride, float* dstVectorsLeft, int32_t dstLeftRowStride, int32_t dstLeftElemStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, float* scratch);
tarnStatus tarnEigenValuesVectors_m_32f_P(const float* const* src, int32_t srcRoiShift, float* const* dstVectorsRight, int32_t dstRightRoiShift, float* const* dstVectorsLeft, int32_t dstLeftRoiShift, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, float* scratch);
tarnStatus tarnEigenValuesVectors_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, double* dstVectorsRight, int32_t dstRightRowStride, int32_t dstRightElemStride, double* dstVectorsLeft, int32_t dstLeftRowStride, int32_t dstLeftElemStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, double* scratch);
tarnStatus tarnEigenValuesVectors_m_64f_P(const double* const* src, int32_t srcRoiShift, double* const* dstVectorsRight, int32_t dstRightRoiShift, double* const* dstVectorsLeft, int32_t dstLeftRoiShift, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, double* scratch);
tarnStatus tarnEigenValuesVectors_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* dstVectorsRight, int32_t dstRightObjStride, int32_t dstRightRowStride, int32_t dstRightElemStride, float* dstVectorsLeft, int32_t dstLeftObjStride, int32_t dstLeftRowStride, int32_t dstLeftElemStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, int32_t count, float* scratch);
tarnStatus tarnEigenValuesVectors_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* const* dstVectorsRight, int32_t dstRightRoiShift, int32_t dstRightRowStride, int32_t dstRightElemStride, float* const* dstVectorsLeft, int32_t dstLeftRoiShift, int32_t dstLeftRowStride, int32_t dstLeftElemStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, int32_t count, float* scratch);
tarnStatus tarnEigenValuesVectors_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* const* dstVectorsRight, int32_t dstRightRoiShift, int32_t dstRightObjStride, float* const* dstVectorsLeft, int32_t dstLeftRoiShift, int32_t dstLeftObjStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, int32_t count, float* scratch);
tarnStatus tarnEigenValuesVectors_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* dstVectorsRight, int32_t dstRightObjStride, int32_t dstRightRowStride, int32_t dstRightElemStride, double* dstVectorsLeft, int32_t dstLeftObjStride, int32_t dstLeftRowStride, int32_t dstLeftElemStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, int32_t count, double* scratch);
tarnStatus tarnEigenValuesVectors_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* const* dstVectorsRight, int32_t dstRightRoiShift, int32_t dstRightRowStride, int32_t dstRightElemStride, double* const* dstVectorsLeft, int32_t dstLeftRoiShift, int32_t dstLeftRowStride, int32_t dstLeftElemStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, int32_t count, double* scratch);
tarnStatus tarnEigenValuesVectors_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* const* dstVectorsRight, int32_t dstRightRoiShift, int32_t dstRightObjStride, double* const* dstVectorsLeft, int32_t dstLeftRoiShift, int32_t dstLeftObjStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, int32_t count, double* scratch);

/** Eigenvalues of general real matrices as real and imaginary parts, in diagonal order of the quasi-triangular form: a conjugate pair adjacent with its positive imaginary part first. scratch: tarnEigenValuesGetBufSize bytes. */
tarnStatus tarnEigenValues_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, float* scratch);
tarnStatus tarnEigenValues_m_32f_P(const float* const* src, int32_t srcRoiShift, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, float* scratch);
tarnStatus tarnEigenValues_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, double* scratch);
tarnStatus tarnEigenValues_m_64f_P(const double* const* src, int32_t srcRoiShift, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, double* scratch);
tarnStatus tarnEigenValues_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, int32_t count, float* scratch);
tarnStatus tarnEigenValues_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, int32_t count, float* scratch);
tarnStatus tarnEigenValues_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* dstValuesRe, float* dstValuesIm, int32_t widthHeight, int32_t count, float* scratch);
tarnStatus tarnEigenValues_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, int32_t count, double* scratch);
tarnStatus tarnEigenValues_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, int32_t count, double* scratch);
tarnStatus tarnEigenValues_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* dstValuesRe, double* dstValuesIm, int32_t widthHeight, int32_t count, double* scratch);

/** Gathers an operand into one dense buffer, row by row; a t operand arrives transposed. */
tarnStatus tarnExtract_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, float* dst, int32_t width, int32_t height);
tarnStatus tarnExtract_m_32f_P(const float* const* src, int32_t srcRoiShift, float* dst, int32_t width, int32_t height);
tarnStatus tarnExtract_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, double* dst, int32_t width, int32_t height);
tarnStatus tarnExtract_m_64f_P(const double* const* src, int32_t srcRoiShift, double* dst, int32_t width, int32_t height);
tarnStatus tarnExtract_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* dst, int32_t width, int32_t height, int32_t count);
tarnStatus tarnExtract_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* dst, int32_t width, int32_t height, int32_t count);
tarnStatus tarnExtract_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* dst, int32_t width, int32_t height, int32_t count);
tarnStatus tarnExtract_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* dst, int32_t width, int32_t height, int32_t count);
tarnStatus tarnExtract_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* dst, int32_t width, int32_t height, int32_t count);
tarnStatus tarnExtract_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* dst, int32_t width, int32_t height, int32_t count);
tarnStatus tarnExtract_t_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, float* dst, int32_t width, int32_t height);
tarnStatus tarnExtract_t_32f_P(const float* const* src, int32_t srcRoiShift, float* dst, int32_t width, int32_t height);
tarnStatus tarnExtract_t_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, double* dst, int32_t width, int32_t height);
tarnStatus tarnExtract_t_64f_P(const double* const* src, int32_t srcRoiShift, double* dst, int32_t width, int32_t height);
tarnStatus tarnExtract_ta_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* dst, int32_t width, int32_t height, int32_t count);
tarnStatus tarnExtract_ta_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* dst, int32_t width, int32_t height, int32_t count);
tarnStatus tarnExtract_ta_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* dst, int32_t width, int32_t height, int32_t count);
tarnStatus tarnExtract_ta_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* dst, int32_t width, int32_t height, int32_t count);
tarnStatus tarnExtract_ta_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* dst, int32_t width, int32_t height, int32_t count);
tarnStatus tarnExtract_ta_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* dst, int32_t width, int32_t height, int32_t count);
tarnStatus tarnExtract_v_32f(const float* src, int32_t srcElemStride, float* dst, int32_t len);
tarnStatus tarnExtract_v_32f_P(const float* const* src, int32_t srcRoiShift, float* dst, int32_t len);
tarnStatus tarnExtract_v_64f(const double* src, int32_t srcElemStride, double* dst, int32_t len);
tarnStatus tarnExtract_v_64f_P(const double* const* src, int32_t srcRoiShift, double* dst, int32_t len);
tarnStatus tarnExtract_va_32f(const float* src, int32_t srcObjStride, int32_t srcElemStride, float* dst, int32_t len, int32_t count);
tarnStatus tarnExtract_va_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcElemStride, float* dst, int32_t len, int32_t count);
tarnStatus tarnExtract_va_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* dst, int32_t len, int32_t count);
tarnStatus tarnExtract_va_64f(const double* src, int32_t srcObjStride, int32_t srcElemStride, double* dst, int32_t len, int32_t count);
tarnStatus tarnExtract_va_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcElemStride, double* dst, int32_t len, int32_t count);
tarnStatus tarnExtract_va_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* dst, int32_t len, int32_t count);

/** dst = the square root of the sum of squares of the elements of each matrix, without scaling. */
tarnStatus tarnFrobNorm_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, int32_t width, int32_t height, float* dst);
tarnStatus tarnFrobNorm_m_32f_P(const float* const* src, int32_t srcRoiShift, int32_t width, int32_t height, float* dst);
tarnStatus tarnFrobNorm_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, int32_t width, int32_t height, double* dst);
tarnStatus tarnFrobNorm_m_64f_P(const double* const* src, int32_t srcRoiShift, int32_t width, int32_t height, double* dst);
tarnStatus tarnFrobNorm_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, int32_t width, int32_t height, float* dst, int32_t count);
tarnStatus tarnFrobNorm_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, int32_t width, int32_t height, float* dst, int32_t count);
tarnStatus tarnFrobNorm_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, int32_t width, int32_t height, float* dst, int32_t count);
tarnStatus tarnFrobNorm_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, int32_t width, int32_t height, double* dst, int32_t count);
tarnStatus tarnFrobNorm_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, int32_t width, int32_t height, double* dst, int32_t count);
tarnStatus tarnFrobNorm_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, int32_t width, int32_t height, double* dst, int32_t count);

/** Returns the constant version record of the library. */
const tarnLibraryVersion* tarnGetLibVersion(void);

/** The cubic Hermite curve through src1 and src3 with tangents src2 and src4 at s, its basis formed in double. */
tarnStatus tarnHermite_v2_32f(const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst);
tarnStatus tarnHermite_v3_32f(const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst);
tarnStatus tarnHermite_v4_32f(const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst);

/** Writes the 4x4 identity. */
tarnStatus tarnIdentity_m4_32f(float* dst);

/** The Catmull-Rom spline between src2 and src3 at s: Hermite with the half differences of the neighbours as tangents. */
tarnStatus tarnInterpolationCatmullRom_v2_32f(const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst);
tarnStatus tarnInterpolationCatmullRom_v3_32f(const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst);
tarnStatus tarnInterpolationCatmullRom_v4_32f(const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst);

/** src1 + (src2 - src1)*s per element. */
tarnStatus tarnInterpolationLinear_v2_32f(const float* src1, const float* src2, float s, float* dst);
tarnStatus tarnInterpolationLinear_v3_32f(const float* src1, const float* src2, float s, float* dst);
tarnStatus tarnInterpolationLinear_v4_32f(const float* src1, const float* src2, float s, float* dst);

/** Inverse of each square matrix, or tarnStatusSingular; buffer holds widthHeight*(widthHeight+1) elements. */
tarnStatus tarnInvert_m4_32f(const float* src, float* det, float* dst);
tarnStatus tarnInvert_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, float* buffer, float* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight);
tarnStatus tarnInvert_m_32f_P(const float* const* src, int32_t srcRoiShift, float* buffer, float* const* dst, int32_t dstRoiShift, int32_t widthHeight);
tarnStatus tarnInvert_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, double* buffer, double* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight);
tarnStatus tarnInvert_m_64f_P(const double* const* src, int32_t srcRoiShift, double* buffer, double* const* dst, int32_t dstRoiShift, int32_t widthHeight);
tarnStatus tarnInvert_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* buffer, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnInvert_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* buffer, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnInvert_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* buffer, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);
tarnStatus tarnInvert_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* buffer, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnInvert_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* buffer, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnInvert_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* buffer, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);

/** Stores 1 if the 4x4 matrix equals the identity exactly (-0.0 counts as zero, NaN never equals), else 0. */
tarnStatus tarnIsIdentity_m4_32f(const float* src, int32_t* result);

/** dst = the square root of the sum of squares of each vector, without scaling: overflow gives infinity. */
tarnStatus tarnL2Norm_v_32f(const float* src, int32_t srcElemStride, float* dst, int32_t len);
tarnStatus tarnL2Norm_v_32f_P(const float* const* src, int32_t srcRoiShift, float* dst, int32_t len);
tarnStatus tarnL2Norm_v_64f(const double* src, int32_t srcElemStride, double* dst, int32_t len);
tarnStatus tarnL2Norm_v_64f_P(const double* const* src, int32_t srcRoiShift, double* dst, int32_t len);
tarnStatus tarnL2Norm_va_32f(const float* src, int32_t srcObjStride, int32_t srcElemStride, float* dst, int32_t len, int32_t count);
tarnStatus tarnL2Norm_va_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcElemStride, float* dst, int32_t len, int32_t count);
tarnStatus tarnL2Norm_va_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* dst, int32_t len, int32_t count);
tarnStatus tarnL2Norm_va_64f(const double* src, int32_t srcObjStride, int32_t srcElemStride, double* dst, int32_t len, int32_t count);
tarnStatus tarnL2Norm_va_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcElemStride, double* dst, int32_t len, int32_t count);
tarnStatus tarnL2Norm_va_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* dst, int32_t len, int32_t count);

/** dst = src1*val1 + src2*val2 per element: both products and the sum each rounded, never fused. */
tarnStatus tarnLComb_vav_32f(const float* src1, int32_t src1ObjStride, int32_t src1ElemStride, float val1, const float* src2, int32_t src2ElemStride, float val2, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnLComb_vav_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, float val1, const float* src2, int32_t src2ElemStride, float val2, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnLComb_vav_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, float val1, const float* const* src2, int32_t src2RoiShift, float val2, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnLComb_vav_64f(const double* src1, int32_t src1ObjStride, int32_t src1ElemStride, double val1, const double* src2, int32_t src2ElemStride, double val2, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnLComb_vav_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, double val1, const double* src2, int32_t src2ElemStride, double val2, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnLComb_vav_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, double val1, const double* const* src2, int32_t src2RoiShift, double val2, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnLComb_vava_32f(const float* src1, int32_t src1ObjStride, int32_t src1ElemStride, float val1, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float val2, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnLComb_vava_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, float val1, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float val2, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnLComb_vava_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, float val1, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float val2, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnLComb_vava_64f(const double* src1, int32_t src1ObjStride, int32_t src1ElemStride, double val1, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double val2, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnLComb_vava_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, double val1, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double val2, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnLComb_vava_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, double val1, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double val2, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnLComb_vv_32f(const float* src1, int32_t src1ElemStride, float val1, const float* src2, int32_t src2ElemStride, float val2, float* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnLComb_vv_32f_P(const float* const* src1, int32_t src1RoiShift, float val1, const float* const* src2, int32_t src2RoiShift, float val2, float* const* dst, int32_t dstRoiShift, int32_t len);
tarnStatus tarnLComb_vv_64f(const double* src1, int32_t src1ElemStride, double val1, const double* src2, int32_t src2ElemStride, double val2, double* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnLComb_vv_64f_P(const double* const* src1, int32_t src1RoiShift, double val1, const double* const* src2, int32_t src2RoiShift, double val2, double* const* dst, int32_t dstRoiShift, int32_t len);

/** Solves A x = b from the factors and pivot of LUDecomp: b is read through pivot, x is written by column. */
tarnStatus tarnLUBackSubst_mava_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const int32_t* pivot, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUBackSubst_mava_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const int32_t* pivot, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUBackSubst_mava_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const int32_t* pivot, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUBackSubst_mava_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const int32_t* pivot, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUBackSubst_mava_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const int32_t* pivot, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUBackSubst_mava_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const int32_t* pivot, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUBackSubst_mv_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const int32_t* pivot, const float* src2, int32_t src2ElemStride, float* dst, int32_t dstElemStride, int32_t widthHeight);
tarnStatus tarnLUBackSubst_mv_32f_P(const float* const* src1, int32_t src1RoiShift, const int32_t* pivot, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t widthHeight);
tarnStatus tarnLUBackSubst_mv_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const int32_t* pivot, const double* src2, int32_t src2ElemStride, double* dst, int32_t dstElemStride, int32_t widthHeight);
tarnStatus tarnLUBackSubst_mv_64f_P(const double* const* src1, int32_t src1RoiShift, const int32_t* pivot, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t widthHeight);
tarnStatus tarnLUBackSubst_mva_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const int32_t* pivot, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUBackSubst_mva_32f_L(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const int32_t* pivot, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUBackSubst_mva_32f_P(const float* const* src1, int32_t src1RoiShift, const int32_t* pivot, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUBackSubst_mva_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const int32_t* pivot, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUBackSubst_mva_64f_L(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const int32_t* pivot, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUBackSubst_mva_64f_P(const double* const* src1, int32_t src1RoiShift, const int32_t* pivot, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);

/** LU factorisation with partial pivoting: dst holds L (unit diagonal, not stored) and U packed, row k of the factors in row pivot[k]; rows are never moved. */
tarnStatus tarnLUDecomp_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, int32_t* pivot, float* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight);
tarnStatus tarnLUDecomp_m_32f_P(const float* const* src, int32_t srcRoiShift, int32_t* pivot, float* const* dst, int32_t dstRoiShift, int32_t widthHeight);
tarnStatus tarnLUDecomp_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, int32_t* pivot, double* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight);
tarnStatus tarnLUDecomp_m_64f_P(const double* const* src, int32_t srcRoiShift, int32_t* pivot, double* const* dst, int32_t dstRoiShift, int32_t widthHeight);
tarnStatus tarnLUDecomp_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, int32_t* pivot, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUDecomp_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, int32_t* pivot, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUDecomp_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, int32_t* pivot, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUDecomp_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, int32_t* pivot, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUDecomp_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, int32_t* pivot, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t widthHeight, int32_t count);
tarnStatus tarnLUDecomp_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, int32_t* pivot, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t widthHeight, int32_t count);

/** Sum of the squared elements, left to right. */
tarnStatus tarnLenSqr_v2_32f(const float* src, float* dst);
tarnStatus tarnLenSqr_v3_32f(const float* src, float* dst);
tarnStatus tarnLenSqr_v4_32f(const float* src, float* dst);

/** Euclidean length of the vector, by the correctly rounded square root. */
tarnStatus tarnLen_v2_32f(const float* src, float* dst);
tarnStatus tarnLen_v3_32f(const float* src, float* dst);
tarnStatus tarnLen_v4_32f(const float* src, float* dst);

/** Fills every matrix of the array with ones on the main diagonal and zeros elsewhere. */
tarnStatus tarnLoadIdentity_ma_32f(float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnLoadIdentity_ma_32f_L(float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnLoadIdentity_ma_32f_P(float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnLoadIdentity_ma_64f(double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnLoadIdentity_ma_64f_L(double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnLoadIdentity_ma_64f_P(double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);

/** Left-handed view matrix of a camera at eye looking at `at`, with up as the upward hint. */
tarnStatus tarnLookAtLH_m4_32f(const float* eye, const float* at, const float* up, float* dst);

/** Right-handed view matrix of a camera at eye looking at `at`, with up as the upward hint. */
tarnStatus tarnLookAtRH_m4_32f(const float* eye, const float* at, const float* up, float* dst);

/** Element-wise maximum a > b ? a : b: src2's element on NaN or equal zeros. */
tarnStatus tarnMax_v2_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnMax_v3_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnMax_v4_32f(const float* src1, const float* src2, float* dst);

/** Element-wise minimum a < b ? a : b: src2's element on NaN or equal zeros. */
tarnStatus tarnMin_v2_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnMin_v3_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnMin_v4_32f(const float* src1, const float* src2, float* dst);

/** The vector times the constant c, element by element. */
tarnStatus tarnMulC_v2_32f(const float* src, float c, float* dst);
tarnStatus tarnMulC_v3_32f(const float* src, float c, float* dst);
tarnStatus tarnMulC_v4_32f(const float* src, float c, float* dst);

/** dst = transpose of (src1 * src2) for 4x4 floats; dst must not overlap a source. */
tarnStatus tarnMulTranspose_m4_32f(const float* src1, const float* src2, float* dst);

/** Products: dst = op(src1) * op(src2) of matrices and vectors, each matrix read as stored (m) or transposed (t), its sizes describing it as stored; or an operand times a constant. */
tarnStatus tarnMul_mam_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mam_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mam_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_mam_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mam_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mam_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_mama_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mama_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mama_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_mama_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mama_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mama_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_mat_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mat_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mat_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_mat_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mat_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mat_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_mata_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mata_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mata_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_mata_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mata_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mata_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_mm4x4_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnMul_mm_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstRowStride, int32_t dstElemStride);
tarnStatus tarnMul_mm_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift);
tarnStatus tarnMul_mm_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstRowStride, int32_t dstElemStride);
tarnStatus tarnMul_mm_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift);
tarnStatus tarnMul_mma_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mma_32f_L(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mma_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_mma_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mma_64f_L(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mma_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_mt_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstRowStride, int32_t dstElemStride);
tarnStatus tarnMul_mt_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift);
tarnStatus tarnMul_mt_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstRowStride, int32_t dstElemStride);
tarnStatus tarnMul_mt_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift);
tarnStatus tarnMul_mta_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mta_32f_L(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mta_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_mta_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mta_64f_L(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_mta_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_tam_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tam_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tam_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_tam_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tam_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tam_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_tama_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tama_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tama_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_tama_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tama_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tama_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_tat_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tat_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tat_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_tat_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tat_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tat_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_tata_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tata_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tata_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_tata_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tata_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tata_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_tm_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstRowStride, int32_t dstElemStride);
tarnStatus tarnMul_tm_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift);
tarnStatus tarnMul_tm_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstRowStride, int32_t dstElemStride);
tarnStatus tarnMul_tm_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift);
tarnStatus tarnMul_tma_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tma_32f_L(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tma_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_tma_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tma_64f_L(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tma_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_tt_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstRowStride, int32_t dstElemStride);
tarnStatus tarnMul_tt_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift);
tarnStatus tarnMul_tt_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstRowStride, int32_t dstElemStride);
tarnStatus tarnMul_tt_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift);
tarnStatus tarnMul_tta_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tta_32f_L(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tta_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnMul_tta_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tta_64f_L(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnMul_tta_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);

/** The vector divided element by element by its length; a zero vector gives NaN. */
tarnStatus tarnNormalize_v2_32f(const float* src, float* dst);
tarnStatus tarnNormalize_v3_32f(const float* src, float* dst);
tarnStatus tarnNormalize_v4_32f(const float* src, float* dst);

/** Left-handed orthographic projection of a view volume of the given width and height, depth from zNear to zFar onto 0 to 1. */
tarnStatus tarnOrthoLH_m4_32f(float viewWidth, float viewHeight, float zNear, float zFar, float* dst);

/** Left-handed orthographic projection of the box left..right, bottom..top, zNear..zFar. */
tarnStatus tarnOrthoOffCenterLH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar, float* dst);

/** Right-handed orthographic projection of the box left..right, bottom..top, zNear..zFar. */
tarnStatus tarnOrthoOffCenterRH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar, float* dst);

/** Right-handed orthographic projection of a view volume of the given width and height, depth from zNear to zFar onto 0 to 1. */
tarnStatus tarnOrthoRH_m4_32f(float viewWidth, float viewHeight, float zNear, float zFar, float* dst);

/** Left-handed perspective projection from a vertical field of view in radians and an aspect ratio. */
tarnStatus tarnPerspectiveFovLH_m4_32f(float fovY, float aspect, float zNear, float zFar, float* dst);

/** Right-handed perspective projection from a vertical field of view in radians and an aspect ratio. */
tarnStatus tarnPerspectiveFovRH_m4_32f(float fovY, float aspect, float zNear, float zFar, float* dst);

/** Left-handed perspective projection with a near plane of the given width and height. */
tarnStatus tarnPerspectiveLH_m4_32f(float viewWidth, float viewHeight, float zNear, float zFar, float* dst);

/** Left-handed perspective projection of the near rectangle left..right, bottom..top. */
tarnStatus tarnPerspectiveOffCenterLH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar, float* dst);

/** Right-handed perspective projection of the near rectangle left..right, bottom..top. */
tarnStatus tarnPerspectiveOffCenterRH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar, float* dst);

/** Right-handed perspective projection with a near plane of the given width and height. */
tarnStatus tarnPerspectiveRH_m4_32f(float viewWidth, float viewHeight, float zNear, float zFar, float* dst);

/** Points through world, view and projection to viewport coordinates. */
tarnStatus tarnProject_m4v3_32f(const float* projection, const float* view, const float* world, const float* src, float viewportWidth, float viewportHeight, float minZ, float maxZ, float* dst);
tarnStatus tarnProject_m4v3a_32f(const float* projection, const float* view, const float* world, const float* src, int32_t srcStride, float viewportWidth, float viewportHeight, float minZ, float maxZ, float* dst, int32_t dstStride, int32_t count);

/** Solves R x = Q^T b (least squares for a tall matrix) from what QRDecomp stored; buffer holds height elements. */
tarnStatus tarnQRBackSubst_mava_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, float* buffer, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRBackSubst_mava_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, float* buffer, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRBackSubst_mava_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, float* buffer, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRBackSubst_mava_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, double* buffer, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRBackSubst_mava_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, double* buffer, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRBackSubst_mava_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, double* buffer, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRBackSubst_mv_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, float* buffer, const float* src2, int32_t src2ElemStride, float* dst, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnQRBackSubst_mv_32f_P(const float* const* src1, int32_t src1RoiShift, float* buffer, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnQRBackSubst_mv_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, double* buffer, const double* src2, int32_t src2ElemStride, double* dst, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnQRBackSubst_mv_64f_P(const double* const* src1, int32_t src1RoiShift, double* buffer, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnQRBackSubst_mva_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, float* buffer, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRBackSubst_mva_32f_L(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, float* buffer, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRBackSubst_mva_32f_P(const float* const* src1, int32_t src1RoiShift, float* buffer, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRBackSubst_mva_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, double* buffer, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRBackSubst_mva_64f_L(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, double* buffer, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRBackSubst_mva_64f_P(const double* const* src1, int32_t src1RoiShift, double* buffer, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);

/** Householder QR of a matrix with width <= height: R on and above the diagonal, each reflector below the diagonal of its column, its leading 1 implied; buffer holds height elements. */
tarnStatus tarnQRDecomp_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, float* buffer, float* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnQRDecomp_m_32f_P(const float* const* src, int32_t srcRoiShift, float* buffer, float* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnQRDecomp_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, double* buffer, double* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnQRDecomp_m_64f_P(const double* const* src, int32_t srcRoiShift, double* buffer, double* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnQRDecomp_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, float* buffer, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRDecomp_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, float* buffer, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRDecomp_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float* buffer, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRDecomp_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, double* buffer, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRDecomp_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, double* buffer, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnQRDecomp_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double* buffer, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);

/** Rotation by angle radians about an axis of any nonzero length. */
tarnStatus tarnRotationAxis_v3m4_32f(const float* axis, float angle, float* dst);

/** Rotation by angle radians about the x axis. */
tarnStatus tarnRotationX_m4_32f(float angle, float* dst);

/** Rotation by angle radians about the y axis. */
tarnStatus tarnRotationY_m4_32f(float angle, float* dst);

/** Rotation by roll about z, then pitch about x, then yaw about y, in radians. */
tarnStatus tarnRotationYawPitchRoll_m4_32f(float yaw, float pitch, float roll, float* dst);

/** Rotation by angle radians about the z axis: (1, 0, 0) goes to (cos, sin, 0). */
tarnStatus tarnRotationZ_m4_32f(float angle, float* dst);

/** dst = src1*val + src2 per element: the product and the sum each rounded, never fused. */
tarnStatus tarnSaxpy_vav_32f(const float* src1, int32_t src1ObjStride, int32_t src1ElemStride, float val, const float* src2, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vav_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, float val, const float* src2, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vav_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, float val, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vav_64f(const double* src1, int32_t src1ObjStride, int32_t src1ElemStride, double val, const double* src2, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vav_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, double val, const double* src2, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vav_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, double val, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vava_32f(const float* src1, int32_t src1ObjStride, int32_t src1ElemStride, float val, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vava_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, float val, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vava_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, float val, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vava_64f(const double* src1, int32_t src1ObjStride, int32_t src1ElemStride, double val, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vava_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, double val, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vava_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, double val, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vv_32f(const float* src1, int32_t src1ElemStride, float val, const float* src2, int32_t src2ElemStride, float* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnSaxpy_vv_32f_P(const float* const* src1, int32_t src1RoiShift, float val, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t len);
tarnStatus tarnSaxpy_vv_64f(const double* src1, int32_t src1ElemStride, double val, const double* src2, int32_t src2ElemStride, double* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnSaxpy_vv_64f_P(const double* const* src1, int32_t src1RoiShift, double val, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t len);
tarnStatus tarnSaxpy_vva_32f(const float* src1, int32_t src1ElemStride, float val, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vva_32f_L(const float* src1, int32_t src1ElemStride, float val, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vva_32f_P(const float* const* src1, int32_t src1RoiShift, float val, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vva_64f(const double* src1, int32_t src1ElemStride, double val, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vva_64f_L(const double* src1, int32_t src1ElemStride, double val, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSaxpy_vva_64f_P(const double* const* src1, int32_t src1RoiShift, double val, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);

/** Scaling by sx, sy, sz. */
tarnStatus tarnScaling_m4_32f(float sx, float sy, float sz, float* dst);

/** Element-wise difference, the operand named first minus the other, one rounded subtraction per element. */
tarnStatus tarnSub_cav_32f(const float* src, int32_t srcElemStride, const float* val, int32_t valObjStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_cav_32f_L(const float* src, int32_t srcElemStride, const float* const* val, int32_t valRoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_cav_32f_P(const float* const* src, int32_t srcRoiShift, const float* val, int32_t valObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_cav_64f(const double* src, int32_t srcElemStride, const double* val, int32_t valObjStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_cav_64f_L(const double* src, int32_t srcElemStride, const double* const* val, int32_t valRoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_cav_64f_P(const double* const* src, int32_t srcRoiShift, const double* val, int32_t valObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_cava_32f(const float* src, int32_t srcObjStride, int32_t srcElemStride, const float* val, int32_t valObjStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_cava_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcElemStride, const float* const* val, int32_t valRoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_cava_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, const float* val, int32_t valObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_cava_64f(const double* src, int32_t srcObjStride, int32_t srcElemStride, const double* val, int32_t valObjStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_cava_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcElemStride, const double* const* val, int32_t valRoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_cava_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, const double* val, int32_t valObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_cv_32f(const float* src, int32_t srcElemStride, float val, float* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnSub_cv_32f_P(const float* const* src, int32_t srcRoiShift, float val, float* const* dst, int32_t dstRoiShift, int32_t len);
tarnStatus tarnSub_cv_64f(const double* src, int32_t srcElemStride, double val, double* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnSub_cv_64f_P(const double* const* src, int32_t srcRoiShift, double val, double* const* dst, int32_t dstRoiShift, int32_t len);
tarnStatus tarnSub_cva_32f(const float* src, int32_t srcObjStride, int32_t srcElemStride, float val, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_cva_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcElemStride, float val, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_cva_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float val, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_cva_64f(const double* src, int32_t srcObjStride, int32_t srcElemStride, double val, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_cva_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcElemStride, double val, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_cva_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double val, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_mam_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mam_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mam_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mam_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mam_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mam_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mama_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mama_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mama_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mama_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mama_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mama_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mat_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mat_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mat_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mat_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mat_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mat_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mata_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mata_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mata_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mata_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mata_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mata_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mm_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnSub_mm_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnSub_mm_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnSub_mm_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnSub_mma_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mma_32f_L(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mma_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mma_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mma_64f_L(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mma_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mt_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnSub_mt_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnSub_mt_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnSub_mt_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnSub_mta_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mta_32f_L(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mta_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mta_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mta_64f_L(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_mta_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tam_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tam_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tam_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tam_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tam_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tam_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tama_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tama_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tama_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tama_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tama_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tama_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tat_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tat_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tat_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tat_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tat_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tat_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tata_32f(const float* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tata_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tata_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tata_64f(const double* src1, int32_t src1ObjStride, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tata_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tata_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tm_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnSub_tm_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnSub_tm_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnSub_tm_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnSub_tma_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tma_32f_L(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tma_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tma_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tma_64f_L(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tma_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tt_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnSub_tt_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnSub_tt_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height);
tarnStatus tarnSub_tt_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t width, int32_t height);
tarnStatus tarnSub_tta_32f(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tta_32f_L(const float* src1, int32_t src1RowStride, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tta_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tta_64f(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tta_64f_L(const double* src1, int32_t src1RowStride, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2RowStride, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_tta_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnSub_v2_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnSub_v3_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnSub_v4_32f(const float* src1, const float* src2, float* dst);
tarnStatus tarnSub_vac_32f(const float* src, int32_t srcObjStride, int32_t srcElemStride, float val, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vac_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcElemStride, float val, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vac_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, float val, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_vac_64f(const double* src, int32_t srcObjStride, int32_t srcElemStride, double val, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vac_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcElemStride, double val, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vac_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, double val, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_vaca_32f(const float* src, int32_t srcObjStride, int32_t srcElemStride, const float* val, int32_t valObjStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vaca_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcElemStride, const float* const* val, int32_t valRoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vaca_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, const float* val, int32_t valObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_vaca_64f(const double* src, int32_t srcObjStride, int32_t srcElemStride, const double* val, int32_t valObjStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vaca_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcElemStride, const double* const* val, int32_t valRoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vaca_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, const double* val, int32_t valObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_vav_32f(const float* src1, int32_t src1ObjStride, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vav_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vav_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_vav_64f(const double* src1, int32_t src1ObjStride, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vav_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vav_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_vava_32f(const float* src1, int32_t src1ObjStride, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vava_32f_L(const float* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vava_32f_P(const float* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_vava_64f(const double* src1, int32_t src1ObjStride, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vava_64f_L(const double* const* src1, int32_t src1RoiShift, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vava_64f_P(const double* const* src1, int32_t src1RoiShift, int32_t src1ObjStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_vc_32f(const float* src, int32_t srcElemStride, float val, float* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnSub_vc_32f_P(const float* const* src, int32_t srcRoiShift, float val, float* const* dst, int32_t dstRoiShift, int32_t len);
tarnStatus tarnSub_vc_64f(const double* src, int32_t srcElemStride, double val, double* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnSub_vc_64f_P(const double* const* src, int32_t srcRoiShift, double val, double* const* dst, int32_t dstRoiShift, int32_t len);
tarnStatus tarnSub_vca_32f(const float* src, int32_t srcElemStride, const float* val, int32_t valObjStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vca_32f_L(const float* src, int32_t srcElemStride, const float* const* val, int32_t valRoiShift, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vca_32f_P(const float* const* src, int32_t srcRoiShift, const float* val, int32_t valObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_vca_64f(const double* src, int32_t srcElemStride, const double* val, int32_t valObjStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vca_64f_L(const double* src, int32_t srcElemStride, const double* const* val, int32_t valRoiShift, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vca_64f_P(const double* const* src, int32_t srcRoiShift, const double* val, int32_t valObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_vv_32f(const float* src1, int32_t src1ElemStride, const float* src2, int32_t src2ElemStride, float* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnSub_vv_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, float* const* dst, int32_t dstRoiShift, int32_t len);
tarnStatus tarnSub_vv_64f(const double* src1, int32_t src1ElemStride, const double* src2, int32_t src2ElemStride, double* dst, int32_t dstElemStride, int32_t len);
tarnStatus tarnSub_vv_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, double* const* dst, int32_t dstRoiShift, int32_t len);
tarnStatus tarnSub_vva_32f(const float* src1, int32_t src1ElemStride, const float* src2, int32_t src2ObjStride, int32_t src2ElemStride, float* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vva_32f_L(const float* src1, int32_t src1ElemStride, const float* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, float* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vva_32f_P(const float* const* src1, int32_t src1RoiShift, const float* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);
tarnStatus tarnSub_vva_64f(const double* src1, int32_t src1ElemStride, const double* src2, int32_t src2ObjStride, int32_t src2ElemStride, double* dst, int32_t dstObjStride, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vva_64f_L(const double* src1, int32_t src1ElemStride, const double* const* src2, int32_t src2RoiShift, int32_t src2ElemStride, double* const* dst, int32_t dstRoiShift, int32_t dstElemStride, int32_t len, int32_t count);
tarnStatus tarnSub_vva_64f_P(const double* const* src1, int32_t src1RoiShift, const double* const* src2, int32_t src2RoiShift, int32_t src2ObjStride, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t len, int32_t count);

/** dst = the sum of the diagonal elements of each square matrix, diagonal element 0 first. */
tarnStatus tarnTrace_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, int32_t widthHeight, float* dst);
tarnStatus tarnTrace_m_32f_P(const float* const* src, int32_t srcRoiShift, int32_t widthHeight, float* dst);
tarnStatus tarnTrace_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, int32_t widthHeight, double* dst);
tarnStatus tarnTrace_m_64f_P(const double* const* src, int32_t srcRoiShift, int32_t widthHeight, double* dst);
tarnStatus tarnTrace_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, int32_t widthHeight, float* dst, int32_t count);
tarnStatus tarnTrace_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, int32_t widthHeight, float* dst, int32_t count);
tarnStatus tarnTrace_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, int32_t widthHeight, float* dst, int32_t count);
tarnStatus tarnTrace_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, int32_t widthHeight, double* dst, int32_t count);
tarnStatus tarnTrace_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, int32_t widthHeight, double* dst, int32_t count);
tarnStatus tarnTrace_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, int32_t widthHeight, double* dst, int32_t count);

/** Translation by tx, ty, tz in the fourth row. */
tarnStatus tarnTranslation_m4_32f(float tx, float ty, float tz, float* dst);

/** Writes the transpose of each matrix: dst has width rows and height columns. */
tarnStatus tarnTranspose_m4_32f(const float* src, float* dst);
tarnStatus tarnTranspose_m_32f(const float* src, int32_t srcRowStride, int32_t srcElemStride, int32_t width, int32_t height, float* dst, int32_t dstRowStride, int32_t dstElemStride);
tarnStatus tarnTranspose_m_32f_P(const float* const* src, int32_t srcRoiShift, int32_t width, int32_t height, float* const* dst, int32_t dstRoiShift);
tarnStatus tarnTranspose_m_64f(const double* src, int32_t srcRowStride, int32_t srcElemStride, int32_t width, int32_t height, double* dst, int32_t dstRowStride, int32_t dstElemStride);
tarnStatus tarnTranspose_m_64f_P(const double* const* src, int32_t srcRoiShift, int32_t width, int32_t height, double* const* dst, int32_t dstRoiShift);
tarnStatus tarnTranspose_ma_32f(const float* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, int32_t width, int32_t height, float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnTranspose_ma_32f_L(const float* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, int32_t width, int32_t height, float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnTranspose_ma_32f_P(const float* const* src, int32_t srcRoiShift, int32_t srcObjStride, int32_t width, int32_t height, float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);
tarnStatus tarnTranspose_ma_64f(const double* src, int32_t srcObjStride, int32_t srcRowStride, int32_t srcElemStride, int32_t width, int32_t height, double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnTranspose_ma_64f_L(const double* const* src, int32_t srcRoiShift, int32_t srcRowStride, int32_t srcElemStride, int32_t width, int32_t height, double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t count);
tarnStatus tarnTranspose_ma_64f_P(const double* const* src, int32_t srcRoiShift, int32_t srcObjStride, int32_t width, int32_t height, double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t count);

/** Viewport coordinates back through the inverse of (world * view) * projection; Singular when that product cannot be inverted. */
tarnStatus tarnUnproject_m4v3_32f(const float* projection, const float* view, const float* world, const float* src, float viewportWidth, float viewportHeight, float minZ, float maxZ, float* dst);
tarnStatus tarnUnproject_m4v3a_32f(const float* projection, const float* view, const float* world, const float* src, int32_t srcStride, float viewportWidth, float viewportHeight, float minZ, float maxZ, float* dst, int32_t dstStride, int32_t count);

#ifdef __cplusplus
}
#endif

#endif /* TARN_H */
