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

/** Returns the constant version record of the library. */
const tarnLibraryVersion* tarnGetLibVersion(void);

/** Fills every matrix of the array with ones on the main diagonal and zeros elsewhere. */
tarnStatus tarnLoadIdentity_ma_32f(float* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnLoadIdentity_ma_32f_L(float* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnLoadIdentity_ma_32f_P(float* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnLoadIdentity_ma_64f(double* dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnLoadIdentity_ma_64f_L(double* const* dst, int32_t dstRoiShift, int32_t dstRowStride, int32_t dstElemStride, int32_t width, int32_t height, int32_t count);
tarnStatus tarnLoadIdentity_ma_64f_P(double* const* dst, int32_t dstRoiShift, int32_t dstObjStride, int32_t width, int32_t height, int32_t count);

/** Writes the transpose of each matrix: dst has width rows and height columns. */
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

#ifdef __cplusplus
}
#endif

#endif /* TARN_H */
