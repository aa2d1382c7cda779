// tarn.hpp: typed C++20 access to every export of tarn.h.
//
// Generated from the member table by tarngen; do not edit by hand.
//
// An operand is described once, by a view: a strided array (LayoutS), a table of object pointers
// with a shift (LayoutL), tables of element pointers (LayoutP), or a single object, each of
// matrices or vectors; `transposed(v)` reads a matrix as its transpose. Strides and shifts are
// bytes. One overloaded function per family (tarn::add, tarn::mul, ...) picks the member from the
// views' types at compile time; a combination that has no member does not compile. Sizes come
// from the views: views that disagree, or a result span that is too short, give
// errc::shape_mismatch before the library is called. Results are std::error_code in the `tarn`
// category; tarn::throwing:: has the same functions throwing tarn::error.
#ifndef TARN_HPP
#define TARN_HPP

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <system_error>
#include <type_traits>
#include <utility>

#include "tarn.h"

namespace tarn {

enum class errc : int32_t {
  vector_solve_failed = tarnStatusVectorSolveFailed,
  bad_size = tarnStatusBadSize,
  null_pointer = tarnStatusNullPointer,
  divide_by_zero = tarnStatusDivideByZero,
  not_positive_definite = tarnStatusNotPositiveDefinite,
  bad_stride = tarnStatusBadStride,
  singular = tarnStatusSingular,
  bad_roi_shift = tarnStatusBadRoiShift,
  bad_count = tarnStatusBadCount,
  shape_mismatch = tarnStatusShapeMismatch,
  no_convergence = tarnStatusNoConvergence,
};

// The name of a status as tarn.h spells it, or nullptr for a value that is none.
constexpr const char* status_name(int32_t s) {
  switch (s) {
    case tarnStatusOk: return "tarnStatusOk";
    case tarnStatusVectorSolveFailed: return "tarnStatusVectorSolveFailed";
    case tarnStatusBadSize: return "tarnStatusBadSize";
    case tarnStatusNullPointer: return "tarnStatusNullPointer";
    case tarnStatusDivideByZero: return "tarnStatusDivideByZero";
    case tarnStatusNotPositiveDefinite: return "tarnStatusNotPositiveDefinite";
    case tarnStatusBadStride: return "tarnStatusBadStride";
    case tarnStatusSingular: return "tarnStatusSingular";
    case tarnStatusBadRoiShift: return "tarnStatusBadRoiShift";
    case tarnStatusBadCount: return "tarnStatusBadCount";
    case tarnStatusShapeMismatch: return "tarnStatusShapeMismatch";
    case tarnStatusNoConvergence: return "tarnStatusNoConvergence";
    default: return nullptr;
  }
}

class error_category_impl final : public std::error_category {
 public:
  const char* name() const noexcept override { return "tarn"; }
  std::string message(int s) const override {
    const char* n = status_name(s);
    return n ? std::string(n) : "tarn status " + std::to_string(s);
  }
};

inline const std::error_category& category() noexcept {
  static const error_category_impl c;
  return c;
}

inline std::error_code make_error_code(errc e) noexcept { return {int(e), category()}; }

}  // namespace tarn

template <>
struct std::is_error_code_enum<tarn::errc> : std::true_type {};

namespace tarn {

class error : public std::system_error {
 public:
  explicit error(std::error_code ec) : std::system_error(ec) {}
  int32_t status() const noexcept { return code().value(); }
};

namespace detail {
inline std::error_code status(tarnStatus s) noexcept { return s ? std::error_code(s, category()) : std::error_code(); }
inline void raise(std::error_code ec) {
  if (ec) throw error(ec);
}
template <class T>
using elem = std::remove_const_t<T>;
template <class From, class To>
concept adds_const = std::is_same_v<const From, To> && !std::is_const_v<From>;
}  // namespace detail

// ---- Views -------------------------------------------------------------------------------------
// T is float or double for results, const float or const double for sources; a view of T
// converts to the view of const T. Every stride and shift is in bytes.

// One matrix, LayoutS: rows x cols elements, (r, c) at ptr + r*row + c*elem.
template <class T>
struct matrix {
  T* ptr = nullptr;
  int32_t rows = 0, cols = 0, row = 0, elem = int32_t(sizeof(T));
  matrix() = default;
  matrix(T* p, int32_t rows_, int32_t cols_)  // packed, row-major
      : ptr(p), rows(rows_), cols(cols_), row(int32_t(sizeof(T)) * cols_) {}
  matrix(T* p, int32_t rows_, int32_t cols_, int32_t rowStride, int32_t elemStride)
      : ptr(p), rows(rows_), cols(cols_), row(rowStride), elem(elemStride) {}
  template <size_t R, size_t C>
  matrix(T (&a)[R][C]) : matrix(&a[0][0], int32_t(R), int32_t(C)) {}
  template <class U>
    requires detail::adds_const<U, T>
  matrix(const matrix<U>& o) : ptr(o.ptr), rows(o.rows), cols(o.cols), row(o.row), elem(o.elem) {}
};

// count matrices, LayoutS: object n at ptr + n*obj.
template <class T>
struct matrix_array {
  T* ptr = nullptr;
  int32_t count = 0, rows = 0, cols = 0, obj = 0, row = 0, elem = int32_t(sizeof(T));
  matrix_array() = default;
  matrix_array(T* p, int32_t count_, int32_t rows_, int32_t cols_)  // packed
      : ptr(p), count(count_), rows(rows_), cols(cols_), obj(int32_t(sizeof(T)) * rows_ * cols_),
        row(int32_t(sizeof(T)) * cols_) {}
  matrix_array(T* p, int32_t count_, int32_t rows_, int32_t cols_, int32_t objStride, int32_t rowStride,
               int32_t elemStride)
      : ptr(p), count(count_), rows(rows_), cols(cols_), obj(objStride), row(rowStride), elem(elemStride) {}
  template <size_t R, size_t C>  // a span of packed R x C arrays
  matrix_array(std::span<std::array<std::array<detail::elem<T>, C>, R>> s)
      : matrix_array(&s.data()->front().front(), int32_t(s.size()), int32_t(R), int32_t(C)) {}
  template <class U>
    requires detail::adds_const<U, T>
  matrix_array(const matrix_array<U>& o)
      : ptr(o.ptr), count(o.count), rows(o.rows), cols(o.cols), obj(o.obj), row(o.row), elem(o.elem) {}
};

// count matrices, LayoutL: object n at table[n] + roi, strided within itself.
template <class T>
struct matrix_table {
  T* const* ptr = nullptr;
  int32_t count = 0, rows = 0, cols = 0, roi = 0, row = 0, elem = int32_t(sizeof(T));
  matrix_table() = default;
  matrix_table(T* const* table, int32_t count_, int32_t rows_, int32_t cols_, int32_t roiShift = 0)  // packed objects
      : ptr(table), count(count_), rows(rows_), cols(cols_), roi(roiShift), row(int32_t(sizeof(T)) * cols_) {}
  matrix_table(T* const* table, int32_t count_, int32_t rows_, int32_t cols_, int32_t roiShift, int32_t rowStride,
               int32_t elemStride)
      : ptr(table), count(count_), rows(rows_), cols(cols_), roi(roiShift), row(rowStride), elem(elemStride) {}
  template <class U>
    requires detail::adds_const<U, T>
  matrix_table(const matrix_table<U>& o)
      : ptr(o.ptr), count(o.count), rows(o.rows), cols(o.cols), roi(o.roi), row(o.row), elem(o.elem) {}
};

// One matrix, LayoutP: element (r, c) at table[r*cols + c] + roi.
template <class T>
struct matrix_elems {
  T* const* ptr = nullptr;
  int32_t rows = 0, cols = 0, roi = 0;
  matrix_elems() = default;
  matrix_elems(T* const* table, int32_t rows_, int32_t cols_, int32_t roiShift = 0)
      : ptr(table), rows(rows_), cols(cols_), roi(roiShift) {}
  template <class U>
    requires detail::adds_const<U, T>
  matrix_elems(const matrix_elems<U>& o) : ptr(o.ptr), rows(o.rows), cols(o.cols), roi(o.roi) {}
};

// count matrices, LayoutP: element (r, c) of object n at table[r*cols + c] + roi + n*obj.
template <class T>
struct matrix_elems_array {
  T* const* ptr = nullptr;
  int32_t count = 0, rows = 0, cols = 0, roi = 0, obj = int32_t(sizeof(T));
  matrix_elems_array() = default;
  matrix_elems_array(T* const* table, int32_t count_, int32_t rows_, int32_t cols_, int32_t roiShift = 0,
                     int32_t objStride = int32_t(sizeof(T)))  // default: one contiguous stream per element
      : ptr(table), count(count_), rows(rows_), cols(cols_), roi(roiShift), obj(objStride) {}
  template <class U>
    requires detail::adds_const<U, T>
  matrix_elems_array(const matrix_elems_array<U>& o)
      : ptr(o.ptr), count(o.count), rows(o.rows), cols(o.cols), roi(o.roi), obj(o.obj) {}
};

// One vector, LayoutS: element i at ptr + i*elem.
template <class T>
struct vector {
  T* ptr = nullptr;
  int32_t len = 0, elem = int32_t(sizeof(T));
  vector() = default;
  vector(T* p, int32_t len_, int32_t elemStride = int32_t(sizeof(T))) : ptr(p), len(len_), elem(elemStride) {}
  template <size_t N>
  vector(T (&a)[N]) : vector(a, int32_t(N)) {}
  template <class U>
    requires detail::adds_const<U, T>
  vector(const vector<U>& o) : ptr(o.ptr), len(o.len), elem(o.elem) {}
};

// count vectors, LayoutS: element i of object n at ptr + n*obj + i*elem.
template <class T>
struct vector_array {
  T* ptr = nullptr;
  int32_t count = 0, len = 0, obj = 0, elem = int32_t(sizeof(T));
  vector_array() = default;
  vector_array(T* p, int32_t count_, int32_t len_)  // packed
      : ptr(p), count(count_), len(len_), obj(int32_t(sizeof(T)) * len_) {}
  vector_array(T* p, int32_t count_, int32_t len_, int32_t objStride, int32_t elemStride)
      : ptr(p), count(count_), len(len_), obj(objStride), elem(elemStride) {}
  template <size_t N>  // a span of T[N], e.g. std::span<float[3]>
  vector_array(std::span<T[N]> s) : vector_array(s.data()[0], int32_t(s.size()), int32_t(N)) {}
  template <size_t N>
  vector_array(std::span<std::array<detail::elem<T>, N>> s)
      : vector_array(s.data()->data(), int32_t(s.size()), int32_t(N)) {}
  template <class U>
    requires detail::adds_const<U, T>
  vector_array(const vector_array<U>& o) : ptr(o.ptr), count(o.count), len(o.len), obj(o.obj), elem(o.elem) {}
};

// count vectors, LayoutL: object n at table[n] + roi.
template <class T>
struct vector_table {
  T* const* ptr = nullptr;
  int32_t count = 0, len = 0, roi = 0, elem = int32_t(sizeof(T));
  vector_table() = default;
  vector_table(T* const* table, int32_t count_, int32_t len_, int32_t roiShift = 0,
               int32_t elemStride = int32_t(sizeof(T)))
      : ptr(table), count(count_), len(len_), roi(roiShift), elem(elemStride) {}
  template <class U>
    requires detail::adds_const<U, T>
  vector_table(const vector_table<U>& o) : ptr(o.ptr), count(o.count), len(o.len), roi(o.roi), elem(o.elem) {}
};

// One vector, LayoutP: element i at table[i] + roi.
template <class T>
struct vector_elems {
  T* const* ptr = nullptr;
  int32_t len = 0, roi = 0;
  vector_elems() = default;
  vector_elems(T* const* table, int32_t len_, int32_t roiShift = 0) : ptr(table), len(len_), roi(roiShift) {}
  template <class U>
    requires detail::adds_const<U, T>
  vector_elems(const vector_elems<U>& o) : ptr(o.ptr), len(o.len), roi(o.roi) {}
};

// count vectors, LayoutP: element i of object n at table[i] + roi + n*obj.
template <class T>
struct vector_elems_array {
  T* const* ptr = nullptr;
  int32_t count = 0, len = 0, roi = 0, obj = int32_t(sizeof(T));
  vector_elems_array() = default;
  vector_elems_array(T* const* table, int32_t count_, int32_t len_, int32_t roiShift = 0,
                     int32_t objStride = int32_t(sizeof(T)))
      : ptr(table), count(count_), len(len_), roi(roiShift), obj(objStride) {}
  template <class U>
    requires detail::adds_const<U, T>
  vector_elems_array(const vector_elems_array<U>& o)
      : ptr(o.ptr), count(o.count), len(o.len), roi(o.roi), obj(o.obj) {}
};

// One constant per object: at ptr + n*obj (LayoutS and LayoutP members) ...
template <class T>
struct constant_array {
  T* ptr = nullptr;
  int32_t count = 0, obj = int32_t(sizeof(T));
  constant_array() = default;
  constant_array(T* p, int32_t count_, int32_t objStride = int32_t(sizeof(T))) : ptr(p), count(count_), obj(objStride) {}
  constant_array(std::span<T> s) : constant_array(s.data(), int32_t(s.size())) {}
  template <class U>
    requires detail::adds_const<U, T>
  constant_array(const constant_array<U>& o) : ptr(o.ptr), count(o.count), obj(o.obj) {}
};

// ... or at table[n] + roi (LayoutL members).
template <class T>
struct constant_table {
  T* const* ptr = nullptr;
  int32_t count = 0, roi = 0;
  constant_table() = default;
  constant_table(T* const* table, int32_t count_, int32_t roiShift = 0) : ptr(table), count(count_), roi(roiShift) {}
  template <class U>
    requires detail::adds_const<U, T>
  constant_table(const constant_table<U>& o) : ptr(o.ptr), count(o.count), roi(o.roi) {}
};

// A matrix view read as its transpose; its sizes and strides still describe it as stored.
template <class V>
struct transposed : V {
  transposed() = default;
  explicit transposed(const V& v) : V(v) {}
  template <class W>
    requires(!std::is_same_v<W, V> && std::is_convertible_v<const W&, V>)
  transposed(const transposed<W>& o) : V(static_cast<const W&>(o)) {}
};
template <class V>
transposed<V> t(const V& v) {
  return transposed<V>(v);
}

// Add: Element-wise sum of the two operands, one rounded addition per element.
/// tarnAdd_mam_32f
inline std::error_code add(const matrix_array<const float>& src1, const matrix<const float>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mam_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_mam_32f_L
inline std::error_code add(const matrix_table<const float>& src1, const matrix<const float>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mam_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_mam_32f_P
inline std::error_code add(const matrix_elems_array<const float>& src1, const matrix_elems<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mam_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_mam_64f
inline std::error_code add(const matrix_array<const double>& src1, const matrix<const double>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mam_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_mam_64f_L
inline std::error_code add(const matrix_table<const double>& src1, const matrix<const double>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mam_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_mam_64f_P
inline std::error_code add(const matrix_elems_array<const double>& src1, const matrix_elems<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mam_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_mama_32f
inline std::error_code add(const matrix_array<const float>& src1, const matrix_array<const float>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mama_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_mama_32f_L
inline std::error_code add(const matrix_table<const float>& src1, const matrix_table<const float>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mama_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_mama_32f_P
inline std::error_code add(const matrix_elems_array<const float>& src1, const matrix_elems_array<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mama_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_mama_64f
inline std::error_code add(const matrix_array<const double>& src1, const matrix_array<const double>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mama_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_mama_64f_L
inline std::error_code add(const matrix_table<const double>& src1, const matrix_table<const double>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mama_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_mama_64f_P
inline std::error_code add(const matrix_elems_array<const double>& src1, const matrix_elems_array<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mama_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_mat_32f
inline std::error_code add(const matrix_array<const float>& src1, const transposed<matrix<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mat_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_mat_32f_L
inline std::error_code add(const matrix_table<const float>& src1, const transposed<matrix<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mat_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_mat_32f_P
inline std::error_code add(const matrix_elems_array<const float>& src1, const transposed<matrix_elems<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mat_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_mat_64f
inline std::error_code add(const matrix_array<const double>& src1, const transposed<matrix<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mat_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_mat_64f_L
inline std::error_code add(const matrix_table<const double>& src1, const transposed<matrix<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mat_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_mat_64f_P
inline std::error_code add(const matrix_elems_array<const double>& src1, const transposed<matrix_elems<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mat_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_mm_32f
inline std::error_code add(const matrix<const float>& src1, const matrix<const float>& src2, const matrix<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mm_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnAdd_mm_32f_P
inline std::error_code add(const matrix_elems<const float>& src1, const matrix_elems<const float>& src2, const matrix_elems<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mm_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnAdd_mm_64f
inline std::error_code add(const matrix<const double>& src1, const matrix<const double>& src2, const matrix<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mm_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnAdd_mm_64f_P
inline std::error_code add(const matrix_elems<const double>& src1, const matrix_elems<const double>& src2, const matrix_elems<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_mm_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnAdd_tam_32f
inline std::error_code add(const transposed<matrix_array<const float>>& src1, const matrix<const float>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tam_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tam_32f_L
inline std::error_code add(const transposed<matrix_table<const float>>& src1, const matrix<const float>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tam_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tam_32f_P
inline std::error_code add(const transposed<matrix_elems_array<const float>>& src1, const matrix_elems<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tam_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_tam_64f
inline std::error_code add(const transposed<matrix_array<const double>>& src1, const matrix<const double>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tam_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tam_64f_L
inline std::error_code add(const transposed<matrix_table<const double>>& src1, const matrix<const double>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tam_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tam_64f_P
inline std::error_code add(const transposed<matrix_elems_array<const double>>& src1, const matrix_elems<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tam_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_tama_32f
inline std::error_code add(const transposed<matrix_array<const float>>& src1, const matrix_array<const float>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tama_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tama_32f_L
inline std::error_code add(const transposed<matrix_table<const float>>& src1, const matrix_table<const float>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tama_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tama_32f_P
inline std::error_code add(const transposed<matrix_elems_array<const float>>& src1, const matrix_elems_array<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tama_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_tama_64f
inline std::error_code add(const transposed<matrix_array<const double>>& src1, const matrix_array<const double>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tama_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tama_64f_L
inline std::error_code add(const transposed<matrix_table<const double>>& src1, const matrix_table<const double>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tama_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tama_64f_P
inline std::error_code add(const transposed<matrix_elems_array<const double>>& src1, const matrix_elems_array<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tama_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_tat_32f
inline std::error_code add(const transposed<matrix_array<const float>>& src1, const transposed<matrix<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tat_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tat_32f_L
inline std::error_code add(const transposed<matrix_table<const float>>& src1, const transposed<matrix<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tat_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tat_32f_P
inline std::error_code add(const transposed<matrix_elems_array<const float>>& src1, const transposed<matrix_elems<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tat_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_tat_64f
inline std::error_code add(const transposed<matrix_array<const double>>& src1, const transposed<matrix<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tat_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tat_64f_L
inline std::error_code add(const transposed<matrix_table<const double>>& src1, const transposed<matrix<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tat_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tat_64f_P
inline std::error_code add(const transposed<matrix_elems_array<const double>>& src1, const transposed<matrix_elems<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tat_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_tata_32f
inline std::error_code add(const transposed<matrix_array<const float>>& src1, const transposed<matrix_array<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tata_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tata_32f_L
inline std::error_code add(const transposed<matrix_table<const float>>& src1, const transposed<matrix_table<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tata_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tata_32f_P
inline std::error_code add(const transposed<matrix_elems_array<const float>>& src1, const transposed<matrix_elems_array<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tata_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_tata_64f
inline std::error_code add(const transposed<matrix_array<const double>>& src1, const transposed<matrix_array<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tata_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tata_64f_L
inline std::error_code add(const transposed<matrix_table<const double>>& src1, const transposed<matrix_table<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tata_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnAdd_tata_64f_P
inline std::error_code add(const transposed<matrix_elems_array<const double>>& src1, const transposed<matrix_elems_array<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tata_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnAdd_tm_32f
inline std::error_code add(const transposed<matrix<const float>>& src1, const matrix<const float>& src2, const matrix<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tm_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnAdd_tm_32f_P
inline std::error_code add(const transposed<matrix_elems<const float>>& src1, const matrix_elems<const float>& src2, const matrix_elems<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tm_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnAdd_tm_64f
inline std::error_code add(const transposed<matrix<const double>>& src1, const matrix<const double>& src2, const matrix<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tm_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnAdd_tm_64f_P
inline std::error_code add(const transposed<matrix_elems<const double>>& src1, const matrix_elems<const double>& src2, const matrix_elems<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tm_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnAdd_tt_32f
inline std::error_code add(const transposed<matrix<const float>>& src1, const transposed<matrix<const float>>& src2, const matrix<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tt_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnAdd_tt_32f_P
inline std::error_code add(const transposed<matrix_elems<const float>>& src1, const transposed<matrix_elems<const float>>& src2, const matrix_elems<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tt_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnAdd_tt_64f
inline std::error_code add(const transposed<matrix<const double>>& src1, const transposed<matrix<const double>>& src2, const matrix<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tt_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnAdd_tt_64f_P
inline std::error_code add(const transposed<matrix_elems<const double>>& src1, const transposed<matrix_elems<const double>>& src2, const matrix_elems<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_tt_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnAdd_vac_32f
inline std::error_code add(const vector_array<const float>& src, float val, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vac_32f(src.ptr, src.obj, src.elem, val, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnAdd_vac_32f_L
inline std::error_code add(const vector_table<const float>& src, float val, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vac_32f_L(src.ptr, src.roi, src.elem, val, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnAdd_vac_32f_P
inline std::error_code add(const vector_elems_array<const float>& src, float val, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vac_32f_P(src.ptr, src.roi, src.obj, val, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnAdd_vac_64f
inline std::error_code add(const vector_array<const double>& src, double val, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vac_64f(src.ptr, src.obj, src.elem, val, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnAdd_vac_64f_L
inline std::error_code add(const vector_table<const double>& src, double val, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vac_64f_L(src.ptr, src.roi, src.elem, val, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnAdd_vac_64f_P
inline std::error_code add(const vector_elems_array<const double>& src, double val, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vac_64f_P(src.ptr, src.roi, src.obj, val, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnAdd_vaca_32f
inline std::error_code add(const vector_array<const float>& src, const constant_array<const float>& val, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vaca_32f(src.ptr, src.obj, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnAdd_vaca_32f_L
inline std::error_code add(const vector_table<const float>& src, const constant_table<const float>& val, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vaca_32f_L(src.ptr, src.roi, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnAdd_vaca_32f_P
inline std::error_code add(const vector_elems_array<const float>& src, const constant_array<const float>& val, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vaca_32f_P(src.ptr, src.roi, src.obj, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnAdd_vaca_64f
inline std::error_code add(const vector_array<const double>& src, const constant_array<const double>& val, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vaca_64f(src.ptr, src.obj, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnAdd_vaca_64f_L
inline std::error_code add(const vector_table<const double>& src, const constant_table<const double>& val, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vaca_64f_L(src.ptr, src.roi, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnAdd_vaca_64f_P
inline std::error_code add(const vector_elems_array<const double>& src, const constant_array<const double>& val, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vaca_64f_P(src.ptr, src.roi, src.obj, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnAdd_vav_32f
inline std::error_code add(const vector_array<const float>& src1, const vector<const float>& src2, const vector_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vav_32f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnAdd_vav_32f_L
inline std::error_code add(const vector_table<const float>& src1, const vector<const float>& src2, const vector_table<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vav_32f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnAdd_vav_32f_P
inline std::error_code add(const vector_elems_array<const float>& src1, const vector_elems<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vav_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnAdd_vav_64f
inline std::error_code add(const vector_array<const double>& src1, const vector<const double>& src2, const vector_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vav_64f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnAdd_vav_64f_L
inline std::error_code add(const vector_table<const double>& src1, const vector<const double>& src2, const vector_table<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vav_64f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnAdd_vav_64f_P
inline std::error_code add(const vector_elems_array<const double>& src1, const vector_elems<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vav_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnAdd_vava_32f
inline std::error_code add(const vector_array<const float>& src1, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vava_32f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnAdd_vava_32f_L
inline std::error_code add(const vector_table<const float>& src1, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vava_32f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnAdd_vava_32f_P
inline std::error_code add(const vector_elems_array<const float>& src1, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vava_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnAdd_vava_64f
inline std::error_code add(const vector_array<const double>& src1, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vava_64f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnAdd_vava_64f_L
inline std::error_code add(const vector_table<const double>& src1, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vava_64f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnAdd_vava_64f_P
inline std::error_code add(const vector_elems_array<const double>& src1, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vava_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnAdd_vc_32f
inline std::error_code add(const vector<const float>& src, float val, const vector<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vc_32f(src.ptr, src.elem, val, dst.ptr, dst.elem, len));
}
/// tarnAdd_vc_32f_P
inline std::error_code add(const vector_elems<const float>& src, float val, const vector_elems<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vc_32f_P(src.ptr, src.roi, val, dst.ptr, dst.roi, len));
}
/// tarnAdd_vc_64f
inline std::error_code add(const vector<const double>& src, double val, const vector<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vc_64f(src.ptr, src.elem, val, dst.ptr, dst.elem, len));
}
/// tarnAdd_vc_64f_P
inline std::error_code add(const vector_elems<const double>& src, double val, const vector_elems<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vc_64f_P(src.ptr, src.roi, val, dst.ptr, dst.roi, len));
}
/// tarnAdd_vca_32f
inline std::error_code add(const vector<const float>& src, const constant_array<const float>& val, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vca_32f(src.ptr, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnAdd_vca_32f_L
inline std::error_code add(const vector<const float>& src, const constant_table<const float>& val, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vca_32f_L(src.ptr, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnAdd_vca_32f_P
inline std::error_code add(const vector_elems<const float>& src, const constant_array<const float>& val, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vca_32f_P(src.ptr, src.roi, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnAdd_vca_64f
inline std::error_code add(const vector<const double>& src, const constant_array<const double>& val, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vca_64f(src.ptr, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnAdd_vca_64f_L
inline std::error_code add(const vector<const double>& src, const constant_table<const double>& val, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vca_64f_L(src.ptr, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnAdd_vca_64f_P
inline std::error_code add(const vector_elems<const double>& src, const constant_array<const double>& val, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vca_64f_P(src.ptr, src.roi, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnAdd_vv_32f
inline std::error_code add(const vector<const float>& src1, const vector<const float>& src2, const vector<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vv_32f(src1.ptr, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.elem, len));
}
/// tarnAdd_vv_32f_P
inline std::error_code add(const vector_elems<const float>& src1, const vector_elems<const float>& src2, const vector_elems<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vv_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, len));
}
/// tarnAdd_vv_64f
inline std::error_code add(const vector<const double>& src1, const vector<const double>& src2, const vector<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vv_64f(src1.ptr, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.elem, len));
}
/// tarnAdd_vv_64f_P
inline std::error_code add(const vector_elems<const double>& src1, const vector_elems<const double>& src2, const vector_elems<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAdd_vv_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, len));
}

// AffineTransform3DH: 3D points as columns through a strided 4x4 matrix, divided by w'; a point with |w'| not above the smallest normal float gets the largest float and the status DivideByZero, and the walk goes on.
/// tarnAffineTransform3DH_mva_32f
inline std::error_code affine_transform_3dh(const matrix<const float>& src1, const vector_array<const float>& src2, const vector_array<float>& dst) {
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.rows == 4 &&
        src1.cols == 4 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnAffineTransform3DH_mva_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, count));
}

// CholeskyBackSubst: Solves A x = b from the factor of CholeskyDecomp (reciprocals on its diagonal), with multiplications and subtractions only.
/// tarnCholeskyBackSubst_mava_32f
inline std::error_code cholesky_back_subst(const matrix_array<const float>& src1, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mava_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, widthHeight, count));
}
/// tarnCholeskyBackSubst_mava_32f_L
inline std::error_code cholesky_back_subst(const matrix_table<const float>& src1, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mava_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, widthHeight, count));
}
/// tarnCholeskyBackSubst_mava_32f_P
inline std::error_code cholesky_back_subst(const matrix_elems_array<const float>& src1, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mava_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, widthHeight, count));
}
/// tarnCholeskyBackSubst_mava_64f
inline std::error_code cholesky_back_subst(const matrix_array<const double>& src1, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mava_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, widthHeight, count));
}
/// tarnCholeskyBackSubst_mava_64f_L
inline std::error_code cholesky_back_subst(const matrix_table<const double>& src1, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mava_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, widthHeight, count));
}
/// tarnCholeskyBackSubst_mava_64f_P
inline std::error_code cholesky_back_subst(const matrix_elems_array<const double>& src1, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mava_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, widthHeight, count));
}
/// tarnCholeskyBackSubst_mv_32f
inline std::error_code cholesky_back_subst(const matrix<const float>& src1, const vector<const float>& src2, const vector<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mv_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.elem, widthHeight));
}
/// tarnCholeskyBackSubst_mv_32f_P
inline std::error_code cholesky_back_subst(const matrix_elems<const float>& src1, const vector_elems<const float>& src2, const vector_elems<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mv_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, widthHeight));
}
/// tarnCholeskyBackSubst_mv_64f
inline std::error_code cholesky_back_subst(const matrix<const double>& src1, const vector<const double>& src2, const vector<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mv_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.elem, widthHeight));
}
/// tarnCholeskyBackSubst_mv_64f_P
inline std::error_code cholesky_back_subst(const matrix_elems<const double>& src1, const vector_elems<const double>& src2, const vector_elems<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mv_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, widthHeight));
}
/// tarnCholeskyBackSubst_mva_32f
inline std::error_code cholesky_back_subst(const matrix<const float>& src1, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mva_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, widthHeight, count));
}
/// tarnCholeskyBackSubst_mva_32f_L
inline std::error_code cholesky_back_subst(const matrix<const float>& src1, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mva_32f_L(src1.ptr, src1.row, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, widthHeight, count));
}
/// tarnCholeskyBackSubst_mva_32f_P
inline std::error_code cholesky_back_subst(const matrix_elems<const float>& src1, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mva_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, widthHeight, count));
}
/// tarnCholeskyBackSubst_mva_64f
inline std::error_code cholesky_back_subst(const matrix<const double>& src1, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mva_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, widthHeight, count));
}
/// tarnCholeskyBackSubst_mva_64f_L
inline std::error_code cholesky_back_subst(const matrix<const double>& src1, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mva_64f_L(src1.ptr, src1.row, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, widthHeight, count));
}
/// tarnCholeskyBackSubst_mva_64f_P
inline std::error_code cholesky_back_subst(const matrix_elems<const double>& src1, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.cols == widthHeight &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyBackSubst_mva_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, widthHeight, count));
}

// CholeskyDecomp: Cholesky factorisation A = L L^T of the lower triangle of src: dst holds L below the diagonal and 1/L(i,i) on it; the upper triangle is neither read nor written.
/// tarnCholeskyDecomp_m_32f
inline std::error_code cholesky_decomp(const matrix<const float>& src, const matrix<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyDecomp_m_32f(src.ptr, src.row, src.elem, dst.ptr, dst.row, dst.elem, widthHeight));
}
/// tarnCholeskyDecomp_m_32f_P
inline std::error_code cholesky_decomp(const matrix_elems<const float>& src, const matrix_elems<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyDecomp_m_32f_P(src.ptr, src.roi, dst.ptr, dst.roi, widthHeight));
}
/// tarnCholeskyDecomp_m_64f
inline std::error_code cholesky_decomp(const matrix<const double>& src, const matrix<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyDecomp_m_64f(src.ptr, src.row, src.elem, dst.ptr, dst.row, dst.elem, widthHeight));
}
/// tarnCholeskyDecomp_m_64f_P
inline std::error_code cholesky_decomp(const matrix_elems<const double>& src, const matrix_elems<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyDecomp_m_64f_P(src.ptr, src.roi, dst.ptr, dst.roi, widthHeight));
}
/// tarnCholeskyDecomp_ma_32f
inline std::error_code cholesky_decomp(const matrix_array<const float>& src, const matrix_array<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyDecomp_ma_32f(src.ptr, src.obj, src.row, src.elem, dst.ptr, dst.obj, dst.row, dst.elem, widthHeight, count));
}
/// tarnCholeskyDecomp_ma_32f_L
inline std::error_code cholesky_decomp(const matrix_table<const float>& src, const matrix_table<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyDecomp_ma_32f_L(src.ptr, src.roi, src.row, src.elem, dst.ptr, dst.roi, dst.row, dst.elem, widthHeight, count));
}
/// tarnCholeskyDecomp_ma_32f_P
inline std::error_code cholesky_decomp(const matrix_elems_array<const float>& src, const matrix_elems_array<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyDecomp_ma_32f_P(src.ptr, src.roi, src.obj, dst.ptr, dst.roi, dst.obj, widthHeight, count));
}
/// tarnCholeskyDecomp_ma_64f
inline std::error_code cholesky_decomp(const matrix_array<const double>& src, const matrix_array<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyDecomp_ma_64f(src.ptr, src.obj, src.row, src.elem, dst.ptr, dst.obj, dst.row, dst.elem, widthHeight, count));
}
/// tarnCholeskyDecomp_ma_64f_L
inline std::error_code cholesky_decomp(const matrix_table<const double>& src, const matrix_table<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyDecomp_ma_64f_L(src.ptr, src.roi, src.row, src.elem, dst.ptr, dst.roi, dst.row, dst.elem, widthHeight, count));
}
/// tarnCholeskyDecomp_ma_64f_P
inline std::error_code cholesky_decomp(const matrix_elems_array<const double>& src, const matrix_elems_array<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCholeskyDecomp_ma_64f_P(src.ptr, src.roi, src.obj, dst.ptr, dst.roi, dst.obj, widthHeight, count));
}

// Copy: Copies an array of matrices or vectors from one layout to another, element by element as raw bits.
/// tarnCopy_ma_32f_LL
inline std::error_code copy(const matrix_table<const float>& src, const matrix_table<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_32f_LL(src.ptr, src.roi, src.row, src.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnCopy_ma_32f_LP
inline std::error_code copy(const matrix_table<const float>& src, const matrix_elems_array<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_32f_LP(src.ptr, src.roi, src.row, src.elem, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnCopy_ma_32f_LS
inline std::error_code copy(const matrix_table<const float>& src, const matrix_array<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_32f_LS(src.ptr, src.roi, src.row, src.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnCopy_ma_32f_PL
inline std::error_code copy(const matrix_elems_array<const float>& src, const matrix_table<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_32f_PL(src.ptr, src.roi, src.obj, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnCopy_ma_32f_PP
inline std::error_code copy(const matrix_elems_array<const float>& src, const matrix_elems_array<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_32f_PP(src.ptr, src.roi, src.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnCopy_ma_32f_PS
inline std::error_code copy(const matrix_elems_array<const float>& src, const matrix_array<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_32f_PS(src.ptr, src.roi, src.obj, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnCopy_ma_32f_SL
inline std::error_code copy(const matrix_array<const float>& src, const matrix_table<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_32f_SL(src.ptr, src.obj, src.row, src.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnCopy_ma_32f_SP
inline std::error_code copy(const matrix_array<const float>& src, const matrix_elems_array<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_32f_SP(src.ptr, src.obj, src.row, src.elem, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnCopy_ma_32f_SS
inline std::error_code copy(const matrix_array<const float>& src, const matrix_array<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_32f_SS(src.ptr, src.obj, src.row, src.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnCopy_ma_64f_LL
inline std::error_code copy(const matrix_table<const double>& src, const matrix_table<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_64f_LL(src.ptr, src.roi, src.row, src.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnCopy_ma_64f_LP
inline std::error_code copy(const matrix_table<const double>& src, const matrix_elems_array<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_64f_LP(src.ptr, src.roi, src.row, src.elem, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnCopy_ma_64f_LS
inline std::error_code copy(const matrix_table<const double>& src, const matrix_array<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_64f_LS(src.ptr, src.roi, src.row, src.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnCopy_ma_64f_PL
inline std::error_code copy(const matrix_elems_array<const double>& src, const matrix_table<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_64f_PL(src.ptr, src.roi, src.obj, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnCopy_ma_64f_PP
inline std::error_code copy(const matrix_elems_array<const double>& src, const matrix_elems_array<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_64f_PP(src.ptr, src.roi, src.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnCopy_ma_64f_PS
inline std::error_code copy(const matrix_elems_array<const double>& src, const matrix_array<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_64f_PS(src.ptr, src.roi, src.obj, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnCopy_ma_64f_SL
inline std::error_code copy(const matrix_array<const double>& src, const matrix_table<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_64f_SL(src.ptr, src.obj, src.row, src.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnCopy_ma_64f_SP
inline std::error_code copy(const matrix_array<const double>& src, const matrix_elems_array<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_64f_SP(src.ptr, src.obj, src.row, src.elem, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnCopy_ma_64f_SS
inline std::error_code copy(const matrix_array<const double>& src, const matrix_array<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_ma_64f_SS(src.ptr, src.obj, src.row, src.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnCopy_va_32f_LL
inline std::error_code copy(const vector_table<const float>& src, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_32f_LL(src.ptr, src.roi, src.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnCopy_va_32f_LP
inline std::error_code copy(const vector_table<const float>& src, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_32f_LP(src.ptr, src.roi, src.elem, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnCopy_va_32f_LS
inline std::error_code copy(const vector_table<const float>& src, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_32f_LS(src.ptr, src.roi, src.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnCopy_va_32f_PL
inline std::error_code copy(const vector_elems_array<const float>& src, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_32f_PL(src.ptr, src.roi, src.obj, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnCopy_va_32f_PP
inline std::error_code copy(const vector_elems_array<const float>& src, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_32f_PP(src.ptr, src.roi, src.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnCopy_va_32f_PS
inline std::error_code copy(const vector_elems_array<const float>& src, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_32f_PS(src.ptr, src.roi, src.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnCopy_va_32f_SL
inline std::error_code copy(const vector_array<const float>& src, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_32f_SL(src.ptr, src.obj, src.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnCopy_va_32f_SP
inline std::error_code copy(const vector_array<const float>& src, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_32f_SP(src.ptr, src.obj, src.elem, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnCopy_va_32f_SS
inline std::error_code copy(const vector_array<const float>& src, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_32f_SS(src.ptr, src.obj, src.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnCopy_va_64f_LL
inline std::error_code copy(const vector_table<const double>& src, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_64f_LL(src.ptr, src.roi, src.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnCopy_va_64f_LP
inline std::error_code copy(const vector_table<const double>& src, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_64f_LP(src.ptr, src.roi, src.elem, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnCopy_va_64f_LS
inline std::error_code copy(const vector_table<const double>& src, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_64f_LS(src.ptr, src.roi, src.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnCopy_va_64f_PL
inline std::error_code copy(const vector_elems_array<const double>& src, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_64f_PL(src.ptr, src.roi, src.obj, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnCopy_va_64f_PP
inline std::error_code copy(const vector_elems_array<const double>& src, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_64f_PP(src.ptr, src.roi, src.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnCopy_va_64f_PS
inline std::error_code copy(const vector_elems_array<const double>& src, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_64f_PS(src.ptr, src.roi, src.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnCopy_va_64f_SL
inline std::error_code copy(const vector_array<const double>& src, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_64f_SL(src.ptr, src.obj, src.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnCopy_va_64f_SP
inline std::error_code copy(const vector_array<const double>& src, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_64f_SP(src.ptr, src.obj, src.elem, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnCopy_va_64f_SS
inline std::error_code copy(const vector_array<const double>& src, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCopy_va_64f_SS(src.ptr, src.obj, src.elem, dst.ptr, dst.obj, dst.elem, len, count));
}

// CrossProduct: dst = src1 x src2 of 3-element vectors: each product rounded, then the difference; an object is read whole before it is written. Fixed forms: x1*y2 - y1*x2 of 2-vectors, the vector product of 3-vectors, the vector orthogonal to three 4-vectors.
/// tarnCrossProduct_vav_32f
inline std::error_code cross_product(const vector_array<const float>& src1, const vector<const float>& src2, const vector_array<float>& dst) {
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vav_32f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnCrossProduct_vav_32f_L
inline std::error_code cross_product(const vector_table<const float>& src1, const vector<const float>& src2, const vector_table<float>& dst) {
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vav_32f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnCrossProduct_vav_32f_P
inline std::error_code cross_product(const vector_elems_array<const float>& src1, const vector_elems<const float>& src2, const vector_elems_array<float>& dst) {
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vav_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnCrossProduct_vav_64f
inline std::error_code cross_product(const vector_array<const double>& src1, const vector<const double>& src2, const vector_array<double>& dst) {
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vav_64f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnCrossProduct_vav_64f_L
inline std::error_code cross_product(const vector_table<const double>& src1, const vector<const double>& src2, const vector_table<double>& dst) {
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vav_64f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnCrossProduct_vav_64f_P
inline std::error_code cross_product(const vector_elems_array<const double>& src1, const vector_elems<const double>& src2, const vector_elems_array<double>& dst) {
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vav_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnCrossProduct_vava_32f
inline std::error_code cross_product(const vector_array<const float>& src1, const vector_array<const float>& src2, const vector_array<float>& dst) {
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vava_32f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnCrossProduct_vava_32f_L
inline std::error_code cross_product(const vector_table<const float>& src1, const vector_table<const float>& src2, const vector_table<float>& dst) {
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vava_32f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnCrossProduct_vava_32f_P
inline std::error_code cross_product(const vector_elems_array<const float>& src1, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vava_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnCrossProduct_vava_64f
inline std::error_code cross_product(const vector_array<const double>& src1, const vector_array<const double>& src2, const vector_array<double>& dst) {
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vava_64f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnCrossProduct_vava_64f_L
inline std::error_code cross_product(const vector_table<const double>& src1, const vector_table<const double>& src2, const vector_table<double>& dst) {
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vava_64f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnCrossProduct_vava_64f_P
inline std::error_code cross_product(const vector_elems_array<const double>& src1, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vava_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnCrossProduct_vv_32f
inline std::error_code cross_product(const vector<const float>& src1, const vector<const float>& src2, const vector<float>& dst) {
  [[maybe_unused]] const int32_t count = 1;
  if (!(src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vv_32f(src1.ptr, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.elem));
}
/// tarnCrossProduct_vv_32f_P
inline std::error_code cross_product(const vector_elems<const float>& src1, const vector_elems<const float>& src2, const vector_elems<float>& dst) {
  [[maybe_unused]] const int32_t count = 1;
  if (!(src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vv_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi));
}
/// tarnCrossProduct_vv_64f
inline std::error_code cross_product(const vector<const double>& src1, const vector<const double>& src2, const vector<double>& dst) {
  [[maybe_unused]] const int32_t count = 1;
  if (!(src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vv_64f(src1.ptr, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.elem));
}
/// tarnCrossProduct_vv_64f_P
inline std::error_code cross_product(const vector_elems<const double>& src1, const vector_elems<const double>& src2, const vector_elems<double>& dst) {
  [[maybe_unused]] const int32_t count = 1;
  if (!(src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vv_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi));
}
/// tarnCrossProduct_vva_32f
inline std::error_code cross_product(const vector<const float>& src1, const vector_array<const float>& src2, const vector_array<float>& dst) {
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vva_32f(src1.ptr, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnCrossProduct_vva_32f_L
inline std::error_code cross_product(const vector<const float>& src1, const vector_table<const float>& src2, const vector_table<float>& dst) {
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vva_32f_L(src1.ptr, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnCrossProduct_vva_32f_P
inline std::error_code cross_product(const vector_elems<const float>& src1, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vva_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnCrossProduct_vva_64f
inline std::error_code cross_product(const vector<const double>& src1, const vector_array<const double>& src2, const vector_array<double>& dst) {
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vva_64f(src1.ptr, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnCrossProduct_vva_64f_L
inline std::error_code cross_product(const vector<const double>& src1, const vector_table<const double>& src2, const vector_table<double>& dst) {
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vva_64f_L(src1.ptr, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnCrossProduct_vva_64f_P
inline std::error_code cross_product(const vector_elems<const double>& src1, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.len == 3 &&
        src2.len == 3 &&
        dst.len == 3))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnCrossProduct_vva_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, count));
}

// Det: Determinant of each square matrix; a matrix found singular gives 0, never a failure; buffer holds widthHeight*(widthHeight+1) elements.
/// tarnDet_m_32f
inline std::error_code det(const matrix<const float>& src, const std::span<float>& buffer, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDet_m_32f(src.ptr, src.row, src.elem, widthHeight, buffer.data(), dst.data()));
}
/// tarnDet_m_32f_P
inline std::error_code det(const matrix_elems<const float>& src, const std::span<float>& buffer, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDet_m_32f_P(src.ptr, src.roi, widthHeight, buffer.data(), dst.data()));
}
/// tarnDet_m_64f
inline std::error_code det(const matrix<const double>& src, const std::span<double>& buffer, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDet_m_64f(src.ptr, src.row, src.elem, widthHeight, buffer.data(), dst.data()));
}
/// tarnDet_m_64f_P
inline std::error_code det(const matrix_elems<const double>& src, const std::span<double>& buffer, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDet_m_64f_P(src.ptr, src.roi, widthHeight, buffer.data(), dst.data()));
}
/// tarnDet_ma_32f
inline std::error_code det(const matrix_array<const float>& src, const std::span<float>& buffer, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDet_ma_32f(src.ptr, src.obj, src.row, src.elem, widthHeight, buffer.data(), dst.data(), count));
}
/// tarnDet_ma_32f_L
inline std::error_code det(const matrix_table<const float>& src, const std::span<float>& buffer, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDet_ma_32f_L(src.ptr, src.roi, src.row, src.elem, widthHeight, buffer.data(), dst.data(), count));
}
/// tarnDet_ma_32f_P
inline std::error_code det(const matrix_elems_array<const float>& src, const std::span<float>& buffer, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDet_ma_32f_P(src.ptr, src.roi, src.obj, widthHeight, buffer.data(), dst.data(), count));
}
/// tarnDet_ma_64f
inline std::error_code det(const matrix_array<const double>& src, const std::span<double>& buffer, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDet_ma_64f(src.ptr, src.obj, src.row, src.elem, widthHeight, buffer.data(), dst.data(), count));
}
/// tarnDet_ma_64f_L
inline std::error_code det(const matrix_table<const double>& src, const std::span<double>& buffer, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDet_ma_64f_L(src.ptr, src.roi, src.row, src.elem, widthHeight, buffer.data(), dst.data(), count));
}
/// tarnDet_ma_64f_P
inline std::error_code det(const matrix_elems_array<const double>& src, const std::span<double>& buffer, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDet_ma_64f_P(src.ptr, src.roi, src.obj, widthHeight, buffer.data(), dst.data(), count));
}

// DotProduct: dst = sum of src1[k]*src2[k] per pair of vectors, one result element per object; the order of the additions depends on the length, the path and, for long contiguous vectors, the address of src2. The fixed 2-, 3- and 4-vector forms sum left to right from the first element.
/// tarnDotProduct_vav_32f
inline std::error_code dot_product(const vector_array<const float>& src1, const vector<const float>& src2, const std::span<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.len == len &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vav_32f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.elem, dst.data(), len, count));
}
/// tarnDotProduct_vav_32f_L
inline std::error_code dot_product(const vector_table<const float>& src1, const vector<const float>& src2, const std::span<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.len == len &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vav_32f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.elem, dst.data(), len, count));
}
/// tarnDotProduct_vav_32f_P
inline std::error_code dot_product(const vector_elems_array<const float>& src1, const vector_elems<const float>& src2, const std::span<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.len == len &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vav_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.data(), len, count));
}
/// tarnDotProduct_vav_64f
inline std::error_code dot_product(const vector_array<const double>& src1, const vector<const double>& src2, const std::span<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.len == len &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vav_64f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.elem, dst.data(), len, count));
}
/// tarnDotProduct_vav_64f_L
inline std::error_code dot_product(const vector_table<const double>& src1, const vector<const double>& src2, const std::span<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.len == len &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vav_64f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.elem, dst.data(), len, count));
}
/// tarnDotProduct_vav_64f_P
inline std::error_code dot_product(const vector_elems_array<const double>& src1, const vector_elems<const double>& src2, const std::span<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.len == len &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vav_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.data(), len, count));
}
/// tarnDotProduct_vava_32f
inline std::error_code dot_product(const vector_array<const float>& src1, const vector_array<const float>& src2, const std::span<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        src2.len == len &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vava_32f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.obj, src2.elem, dst.data(), len, count));
}
/// tarnDotProduct_vava_32f_L
inline std::error_code dot_product(const vector_table<const float>& src1, const vector_table<const float>& src2, const std::span<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        src2.len == len &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vava_32f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.roi, src2.elem, dst.data(), len, count));
}
/// tarnDotProduct_vava_32f_P
inline std::error_code dot_product(const vector_elems_array<const float>& src1, const vector_elems_array<const float>& src2, const std::span<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        src2.len == len &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vava_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.data(), len, count));
}
/// tarnDotProduct_vava_64f
inline std::error_code dot_product(const vector_array<const double>& src1, const vector_array<const double>& src2, const std::span<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        src2.len == len &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vava_64f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.obj, src2.elem, dst.data(), len, count));
}
/// tarnDotProduct_vava_64f_L
inline std::error_code dot_product(const vector_table<const double>& src1, const vector_table<const double>& src2, const std::span<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        src2.len == len &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vava_64f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.roi, src2.elem, dst.data(), len, count));
}
/// tarnDotProduct_vava_64f_P
inline std::error_code dot_product(const vector_elems_array<const double>& src1, const vector_elems_array<const double>& src2, const std::span<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        src2.len == len &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vava_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.data(), len, count));
}
/// tarnDotProduct_vv_32f
inline std::error_code dot_product(const vector<const float>& src1, const vector<const float>& src2, const std::span<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vv_32f(src1.ptr, src1.elem, src2.ptr, src2.elem, dst.data(), len));
}
/// tarnDotProduct_vv_32f_P
inline std::error_code dot_product(const vector_elems<const float>& src1, const vector_elems<const float>& src2, const std::span<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vv_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.data(), len));
}
/// tarnDotProduct_vv_64f
inline std::error_code dot_product(const vector<const double>& src1, const vector<const double>& src2, const std::span<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vv_64f(src1.ptr, src1.elem, src2.ptr, src2.elem, dst.data(), len));
}
/// tarnDotProduct_vv_64f_P
inline std::error_code dot_product(const vector_elems<const double>& src1, const vector_elems<const double>& src2, const std::span<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnDotProduct_vv_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.data(), len));
}

// EigenValuesGetBufSize: Bytes of scratch a general eigenvalue member needs for matrices of order widthHeight: widthHeight*(widthHeight+5)*esize.
template <class T> std::error_code eigen_values_get_buf_size(int32_t widthHeight, int32_t& bufSize);
/// tarnEigenValuesGetBufSize_32f
template <> inline std::error_code eigen_values_get_buf_size<float>(int32_t widthHeight, int32_t& bufSize) {
  [[maybe_unused]] const int32_t count = 1;
  return detail::status(::tarnEigenValuesGetBufSize_32f(widthHeight, &bufSize));
}
/// tarnEigenValuesGetBufSize_64f
template <> inline std::error_code eigen_values_get_buf_size<double>(int32_t widthHeight, int32_t& bufSize) {
  [[maybe_unused]] const int32_t count = 1;
  return detail::status(::tarnEigenValuesGetBufSize_64f(widthHeight, &bufSize));
}

// EigenValuesSym: All eigenvalues of each symmetric matrix, in descending order: Householder tridiagonalisation, then implicit QL or QR sweeps; scratch holds one widthHeight x widthHeight working matrix.
/// tarnEigenValuesSym_m_32f
inline std::error_code eigen_values_sym(const matrix<const float>& src, const std::span<float>& scratch, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dst.size() >= size_t(1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesSym_m_32f(src.ptr, src.row, src.elem, scratch.data(), dst.data(), widthHeight));
}
/// tarnEigenValuesSym_m_32f_P
inline std::error_code eigen_values_sym(const matrix_elems<const float>& src, const std::span<float>& scratch, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dst.size() >= size_t(1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesSym_m_32f_P(src.ptr, src.roi, scratch.data(), dst.data(), widthHeight));
}
/// tarnEigenValuesSym_m_64f
inline std::error_code eigen_values_sym(const matrix<const double>& src, const std::span<double>& scratch, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dst.size() >= size_t(1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesSym_m_64f(src.ptr, src.row, src.elem, scratch.data(), dst.data(), widthHeight));
}
/// tarnEigenValuesSym_m_64f_P
inline std::error_code eigen_values_sym(const matrix_elems<const double>& src, const std::span<double>& scratch, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dst.size() >= size_t(1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesSym_m_64f_P(src.ptr, src.roi, scratch.data(), dst.data(), widthHeight));
}
/// tarnEigenValuesSym_ma_32f
inline std::error_code eigen_values_sym(const matrix_array<const float>& src, const std::span<float>& scratch, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dst.size() >= size_t(count * 1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesSym_ma_32f(src.ptr, src.obj, src.row, src.elem, scratch.data(), dst.data(), widthHeight, count));
}
/// tarnEigenValuesSym_ma_32f_L
inline std::error_code eigen_values_sym(const matrix_table<const float>& src, const std::span<float>& scratch, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dst.size() >= size_t(count * 1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesSym_ma_32f_L(src.ptr, src.roi, src.row, src.elem, scratch.data(), dst.data(), widthHeight, count));
}
/// tarnEigenValuesSym_ma_32f_P
inline std::error_code eigen_values_sym(const matrix_elems_array<const float>& src, const std::span<float>& scratch, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dst.size() >= size_t(count * 1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesSym_ma_32f_P(src.ptr, src.roi, src.obj, scratch.data(), dst.data(), widthHeight, count));
}
/// tarnEigenValuesSym_ma_64f
inline std::error_code eigen_values_sym(const matrix_array<const double>& src, const std::span<double>& scratch, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dst.size() >= size_t(count * 1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesSym_ma_64f(src.ptr, src.obj, src.row, src.elem, scratch.data(), dst.data(), widthHeight, count));
}
/// tarnEigenValuesSym_ma_64f_L
inline std::error_code eigen_values_sym(const matrix_table<const double>& src, const std::span<double>& scratch, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dst.size() >= size_t(count * 1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesSym_ma_64f_L(src.ptr, src.roi, src.row, src.elem, scratch.data(), dst.data(), widthHeight, count));
}
/// tarnEigenValuesSym_ma_64f_P
inline std::error_code eigen_values_sym(const matrix_elems_array<const double>& src, const std::span<double>& scratch, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dst.size() >= size_t(count * 1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesSym_ma_64f_P(src.ptr, src.roi, src.obj, scratch.data(), dst.data(), widthHeight, count));
}

// EigenValuesVectorsGetBufSize: Bytes of scratch a general eigenvector member needs for matrices of order widthHeight: widthHeight*(3*widthHeight+5)*esize.
template <class T> std::error_code eigen_values_vectors_get_buf_size(int32_t widthHeight, int32_t& bufSize);
/// tarnEigenValuesVectorsGetBufSize_32f
template <> inline std::error_code eigen_values_vectors_get_buf_size<float>(int32_t widthHeight, int32_t& bufSize) {
  [[maybe_unused]] const int32_t count = 1;
  return detail::status(::tarnEigenValuesVectorsGetBufSize_32f(widthHeight, &bufSize));
}
/// tarnEigenValuesVectorsGetBufSize_64f
template <> inline std::error_code eigen_values_vectors_get_buf_size<double>(int32_t widthHeight, int32_t& bufSize) {
  [[maybe_unused]] const int32_t count = 1;
  return detail::status(::tarnEigenValuesVectorsGetBufSize_64f(widthHeight, &bufSize));
}

// EigenValuesVectorsLeft: Eigenvalues with the eigenvectors v of src v = lambda v in columns, as in EigenValuesVectors.
/// tarnEigenValuesVectorsLeft_m_32f
inline std::error_code eigen_values_vectors_left(const matrix<const float>& src, const matrix<float>& dstVectors, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsLeft_m_32f(src.ptr, src.row, src.elem, dstVectors.ptr, dstVectors.row, dstVectors.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValuesVectorsLeft_m_32f_P
inline std::error_code eigen_values_vectors_left(const matrix_elems<const float>& src, const matrix_elems<float>& dstVectors, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsLeft_m_32f_P(src.ptr, src.roi, dstVectors.ptr, dstVectors.roi, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValuesVectorsLeft_m_64f
inline std::error_code eigen_values_vectors_left(const matrix<const double>& src, const matrix<double>& dstVectors, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsLeft_m_64f(src.ptr, src.row, src.elem, dstVectors.ptr, dstVectors.row, dstVectors.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValuesVectorsLeft_m_64f_P
inline std::error_code eigen_values_vectors_left(const matrix_elems<const double>& src, const matrix_elems<double>& dstVectors, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsLeft_m_64f_P(src.ptr, src.roi, dstVectors.ptr, dstVectors.roi, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValuesVectorsLeft_ma_32f
inline std::error_code eigen_values_vectors_left(const matrix_array<const float>& src, const matrix_array<float>& dstVectors, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsLeft_ma_32f(src.ptr, src.obj, src.row, src.elem, dstVectors.ptr, dstVectors.obj, dstVectors.row, dstVectors.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectorsLeft_ma_32f_L
inline std::error_code eigen_values_vectors_left(const matrix_table<const float>& src, const matrix_table<float>& dstVectors, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsLeft_ma_32f_L(src.ptr, src.roi, src.row, src.elem, dstVectors.ptr, dstVectors.roi, dstVectors.row, dstVectors.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectorsLeft_ma_32f_P
inline std::error_code eigen_values_vectors_left(const matrix_elems_array<const float>& src, const matrix_elems_array<float>& dstVectors, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsLeft_ma_32f_P(src.ptr, src.roi, src.obj, dstVectors.ptr, dstVectors.roi, dstVectors.obj, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectorsLeft_ma_64f
inline std::error_code eigen_values_vectors_left(const matrix_array<const double>& src, const matrix_array<double>& dstVectors, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsLeft_ma_64f(src.ptr, src.obj, src.row, src.elem, dstVectors.ptr, dstVectors.obj, dstVectors.row, dstVectors.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectorsLeft_ma_64f_L
inline std::error_code eigen_values_vectors_left(const matrix_table<const double>& src, const matrix_table<double>& dstVectors, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsLeft_ma_64f_L(src.ptr, src.roi, src.row, src.elem, dstVectors.ptr, dstVectors.roi, dstVectors.row, dstVectors.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectorsLeft_ma_64f_P
inline std::error_code eigen_values_vectors_left(const matrix_elems_array<const double>& src, const matrix_elems_array<double>& dstVectors, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsLeft_ma_64f_P(src.ptr, src.roi, src.obj, dstVectors.ptr, dstVectors.roi, dstVectors.obj, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}

// EigenValuesVectorsRight: Eigenvalues with the eigenvectors v of transpose(src) v = lambda v in columns, as in EigenValuesVectors.
/// tarnEigenValuesVectorsRight_m_32f
inline std::error_code eigen_values_vectors_right(const matrix<const float>& src, const matrix<float>& dstVectors, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsRight_m_32f(src.ptr, src.row, src.elem, dstVectors.ptr, dstVectors.row, dstVectors.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValuesVectorsRight_m_32f_P
inline std::error_code eigen_values_vectors_right(const matrix_elems<const float>& src, const matrix_elems<float>& dstVectors, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsRight_m_32f_P(src.ptr, src.roi, dstVectors.ptr, dstVectors.roi, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValuesVectorsRight_m_64f
inline std::error_code eigen_values_vectors_right(const matrix<const double>& src, const matrix<double>& dstVectors, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsRight_m_64f(src.ptr, src.row, src.elem, dstVectors.ptr, dstVectors.row, dstVectors.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValuesVectorsRight_m_64f_P
inline std::error_code eigen_values_vectors_right(const matrix_elems<const double>& src, const matrix_elems<double>& dstVectors, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsRight_m_64f_P(src.ptr, src.roi, dstVectors.ptr, dstVectors.roi, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValuesVectorsRight_ma_32f
inline std::error_code eigen_values_vectors_right(const matrix_array<const float>& src, const matrix_array<float>& dstVectors, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsRight_ma_32f(src.ptr, src.obj, src.row, src.elem, dstVectors.ptr, dstVectors.obj, dstVectors.row, dstVectors.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectorsRight_ma_32f_L
inline std::error_code eigen_values_vectors_right(const matrix_table<const float>& src, const matrix_table<float>& dstVectors, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsRight_ma_32f_L(src.ptr, src.roi, src.row, src.elem, dstVectors.ptr, dstVectors.roi, dstVectors.row, dstVectors.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectorsRight_ma_32f_P
inline std::error_code eigen_values_vectors_right(const matrix_elems_array<const float>& src, const matrix_elems_array<float>& dstVectors, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsRight_ma_32f_P(src.ptr, src.roi, src.obj, dstVectors.ptr, dstVectors.roi, dstVectors.obj, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectorsRight_ma_64f
inline std::error_code eigen_values_vectors_right(const matrix_array<const double>& src, const matrix_array<double>& dstVectors, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsRight_ma_64f(src.ptr, src.obj, src.row, src.elem, dstVectors.ptr, dstVectors.obj, dstVectors.row, dstVectors.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectorsRight_ma_64f_L
inline std::error_code eigen_values_vectors_right(const matrix_table<const double>& src, const matrix_table<double>& dstVectors, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsRight_ma_64f_L(src.ptr, src.roi, src.row, src.elem, dstVectors.ptr, dstVectors.roi, dstVectors.row, dstVectors.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectorsRight_ma_64f_P
inline std::error_code eigen_values_vectors_right(const matrix_elems_array<const double>& src, const matrix_elems_array<double>& dstVectors, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsRight_ma_64f_P(src.ptr, src.roi, src.obj, dstVectors.ptr, dstVectors.roi, dstVectors.obj, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}

// EigenValuesVectorsSym: Eigenvalues of each symmetric matrix in descending order, with the eigenvector of value j in column j of dstVectors; scratch holds one widthHeight x widthHeight working matrix.
/// tarnEigenValuesVectorsSym_m_32f
inline std::error_code eigen_values_vectors_sym(const matrix<const float>& src, const std::span<float>& scratch, const matrix<float>& dstVectors, const std::span<float>& dstValues) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValues.size() >= size_t(1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsSym_m_32f(src.ptr, src.row, src.elem, scratch.data(), dstVectors.ptr, dstVectors.row, dstVectors.elem, dstValues.data(), widthHeight));
}
/// tarnEigenValuesVectorsSym_m_32f_P
inline std::error_code eigen_values_vectors_sym(const matrix_elems<const float>& src, const std::span<float>& scratch, const matrix_elems<float>& dstVectors, const std::span<float>& dstValues) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValues.size() >= size_t(1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsSym_m_32f_P(src.ptr, src.roi, scratch.data(), dstVectors.ptr, dstVectors.roi, dstValues.data(), widthHeight));
}
/// tarnEigenValuesVectorsSym_m_64f
inline std::error_code eigen_values_vectors_sym(const matrix<const double>& src, const std::span<double>& scratch, const matrix<double>& dstVectors, const std::span<double>& dstValues) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValues.size() >= size_t(1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsSym_m_64f(src.ptr, src.row, src.elem, scratch.data(), dstVectors.ptr, dstVectors.row, dstVectors.elem, dstValues.data(), widthHeight));
}
/// tarnEigenValuesVectorsSym_m_64f_P
inline std::error_code eigen_values_vectors_sym(const matrix_elems<const double>& src, const std::span<double>& scratch, const matrix_elems<double>& dstVectors, const std::span<double>& dstValues) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValues.size() >= size_t(1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsSym_m_64f_P(src.ptr, src.roi, scratch.data(), dstVectors.ptr, dstVectors.roi, dstValues.data(), widthHeight));
}
/// tarnEigenValuesVectorsSym_ma_32f
inline std::error_code eigen_values_vectors_sym(const matrix_array<const float>& src, const std::span<float>& scratch, const matrix_array<float>& dstVectors, const std::span<float>& dstValues) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValues.size() >= size_t(count * 1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsSym_ma_32f(src.ptr, src.obj, src.row, src.elem, scratch.data(), dstVectors.ptr, dstVectors.obj, dstVectors.row, dstVectors.elem, dstValues.data(), widthHeight, count));
}
/// tarnEigenValuesVectorsSym_ma_32f_L
inline std::error_code eigen_values_vectors_sym(const matrix_table<const float>& src, const std::span<float>& scratch, const matrix_table<float>& dstVectors, const std::span<float>& dstValues) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValues.size() >= size_t(count * 1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsSym_ma_32f_L(src.ptr, src.roi, src.row, src.elem, scratch.data(), dstVectors.ptr, dstVectors.roi, dstVectors.row, dstVectors.elem, dstValues.data(), widthHeight, count));
}
/// tarnEigenValuesVectorsSym_ma_32f_P
inline std::error_code eigen_values_vectors_sym(const matrix_elems_array<const float>& src, const std::span<float>& scratch, const matrix_elems_array<float>& dstVectors, const std::span<float>& dstValues) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValues.size() >= size_t(count * 1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsSym_ma_32f_P(src.ptr, src.roi, src.obj, scratch.data(), dstVectors.ptr, dstVectors.roi, dstVectors.obj, dstValues.data(), widthHeight, count));
}
/// tarnEigenValuesVectorsSym_ma_64f
inline std::error_code eigen_values_vectors_sym(const matrix_array<const double>& src, const std::span<double>& scratch, const matrix_array<double>& dstVectors, const std::span<double>& dstValues) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValues.size() >= size_t(count * 1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsSym_ma_64f(src.ptr, src.obj, src.row, src.elem, scratch.data(), dstVectors.ptr, dstVectors.obj, dstVectors.row, dstVectors.elem, dstValues.data(), widthHeight, count));
}
/// tarnEigenValuesVectorsSym_ma_64f_L
inline std::error_code eigen_values_vectors_sym(const matrix_table<const double>& src, const std::span<double>& scratch, const matrix_table<double>& dstVectors, const std::span<double>& dstValues) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValues.size() >= size_t(count * 1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsSym_ma_64f_L(src.ptr, src.roi, src.row, src.elem, scratch.data(), dstVectors.ptr, dstVectors.roi, dstVectors.row, dstVectors.elem, dstValues.data(), widthHeight, count));
}
/// tarnEigenValuesVectorsSym_ma_64f_P
inline std::error_code eigen_values_vectors_sym(const matrix_elems_array<const double>& src, const std::span<double>& scratch, const matrix_elems_array<double>& dstVectors, const std::span<double>& dstValues) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectors.count == count &&
        src.cols == widthHeight &&
        scratch.size() >= size_t(1 * (widthHeight*widthHeight*1)) &&
        dstVectors.rows == widthHeight &&
        dstVectors.cols == widthHeight &&
        dstValues.size() >= size_t(count * 1 * (widthHeight))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectorsSym_ma_64f_P(src.ptr, src.roi, src.obj, scratch.data(), dstVectors.ptr, dstVectors.roi, dstVectors.obj, dstValues.data(), widthHeight, count));
}

// EigenValuesVectors: Eigenvalues with right (transpose(src) v = lambda v) and left (src v = lambda v) eigenvectors in columns, of unit length; a conjugate pair stores the real part of its vector in column j, the imaginary part in column j+1 (a left pair's v solves src v = conj(lambda_j) v). scratch: tarnEigenValuesVectorsGetBufSize bytes.
/// tarnEigenValuesVectors_m_32f
inline std::error_code eigen_values_vectors(const matrix<const float>& src, const matrix<float>& dstVectorsRight, const matrix<float>& dstVectorsLeft, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstVectorsRight.rows == widthHeight &&
        dstVectorsRight.cols == widthHeight &&
        dstVectorsLeft.rows == widthHeight &&
        dstVectorsLeft.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectors_m_32f(src.ptr, src.row, src.elem, dstVectorsRight.ptr, dstVectorsRight.row, dstVectorsRight.elem, dstVectorsLeft.ptr, dstVectorsLeft.row, dstVectorsLeft.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValuesVectors_m_32f_P
inline std::error_code eigen_values_vectors(const matrix_elems<const float>& src, const matrix_elems<float>& dstVectorsRight, const matrix_elems<float>& dstVectorsLeft, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstVectorsRight.rows == widthHeight &&
        dstVectorsRight.cols == widthHeight &&
        dstVectorsLeft.rows == widthHeight &&
        dstVectorsLeft.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectors_m_32f_P(src.ptr, src.roi, dstVectorsRight.ptr, dstVectorsRight.roi, dstVectorsLeft.ptr, dstVectorsLeft.roi, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValuesVectors_m_64f
inline std::error_code eigen_values_vectors(const matrix<const double>& src, const matrix<double>& dstVectorsRight, const matrix<double>& dstVectorsLeft, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstVectorsRight.rows == widthHeight &&
        dstVectorsRight.cols == widthHeight &&
        dstVectorsLeft.rows == widthHeight &&
        dstVectorsLeft.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectors_m_64f(src.ptr, src.row, src.elem, dstVectorsRight.ptr, dstVectorsRight.row, dstVectorsRight.elem, dstVectorsLeft.ptr, dstVectorsLeft.row, dstVectorsLeft.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValuesVectors_m_64f_P
inline std::error_code eigen_values_vectors(const matrix_elems<const double>& src, const matrix_elems<double>& dstVectorsRight, const matrix_elems<double>& dstVectorsLeft, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstVectorsRight.rows == widthHeight &&
        dstVectorsRight.cols == widthHeight &&
        dstVectorsLeft.rows == widthHeight &&
        dstVectorsLeft.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectors_m_64f_P(src.ptr, src.roi, dstVectorsRight.ptr, dstVectorsRight.roi, dstVectorsLeft.ptr, dstVectorsLeft.roi, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValuesVectors_ma_32f
inline std::error_code eigen_values_vectors(const matrix_array<const float>& src, const matrix_array<float>& dstVectorsRight, const matrix_array<float>& dstVectorsLeft, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectorsRight.count == count &&
        dstVectorsLeft.count == count &&
        src.cols == widthHeight &&
        dstVectorsRight.rows == widthHeight &&
        dstVectorsRight.cols == widthHeight &&
        dstVectorsLeft.rows == widthHeight &&
        dstVectorsLeft.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectors_ma_32f(src.ptr, src.obj, src.row, src.elem, dstVectorsRight.ptr, dstVectorsRight.obj, dstVectorsRight.row, dstVectorsRight.elem, dstVectorsLeft.ptr, dstVectorsLeft.obj, dstVectorsLeft.row, dstVectorsLeft.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectors_ma_32f_L
inline std::error_code eigen_values_vectors(const matrix_table<const float>& src, const matrix_table<float>& dstVectorsRight, const matrix_table<float>& dstVectorsLeft, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectorsRight.count == count &&
        dstVectorsLeft.count == count &&
        src.cols == widthHeight &&
        dstVectorsRight.rows == widthHeight &&
        dstVectorsRight.cols == widthHeight &&
        dstVectorsLeft.rows == widthHeight &&
        dstVectorsLeft.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectors_ma_32f_L(src.ptr, src.roi, src.row, src.elem, dstVectorsRight.ptr, dstVectorsRight.roi, dstVectorsRight.row, dstVectorsRight.elem, dstVectorsLeft.ptr, dstVectorsLeft.roi, dstVectorsLeft.row, dstVectorsLeft.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectors_ma_32f_P
inline std::error_code eigen_values_vectors(const matrix_elems_array<const float>& src, const matrix_elems_array<float>& dstVectorsRight, const matrix_elems_array<float>& dstVectorsLeft, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectorsRight.count == count &&
        dstVectorsLeft.count == count &&
        src.cols == widthHeight &&
        dstVectorsRight.rows == widthHeight &&
        dstVectorsRight.cols == widthHeight &&
        dstVectorsLeft.rows == widthHeight &&
        dstVectorsLeft.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectors_ma_32f_P(src.ptr, src.roi, src.obj, dstVectorsRight.ptr, dstVectorsRight.roi, dstVectorsRight.obj, dstVectorsLeft.ptr, dstVectorsLeft.roi, dstVectorsLeft.obj, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectors_ma_64f
inline std::error_code eigen_values_vectors(const matrix_array<const double>& src, const matrix_array<double>& dstVectorsRight, const matrix_array<double>& dstVectorsLeft, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectorsRight.count == count &&
        dstVectorsLeft.count == count &&
        src.cols == widthHeight &&
        dstVectorsRight.rows == widthHeight &&
        dstVectorsRight.cols == widthHeight &&
        dstVectorsLeft.rows == widthHeight &&
        dstVectorsLeft.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectors_ma_64f(src.ptr, src.obj, src.row, src.elem, dstVectorsRight.ptr, dstVectorsRight.obj, dstVectorsRight.row, dstVectorsRight.elem, dstVectorsLeft.ptr, dstVectorsLeft.obj, dstVectorsLeft.row, dstVectorsLeft.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectors_ma_64f_L
inline std::error_code eigen_values_vectors(const matrix_table<const double>& src, const matrix_table<double>& dstVectorsRight, const matrix_table<double>& dstVectorsLeft, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectorsRight.count == count &&
        dstVectorsLeft.count == count &&
        src.cols == widthHeight &&
        dstVectorsRight.rows == widthHeight &&
        dstVectorsRight.cols == widthHeight &&
        dstVectorsLeft.rows == widthHeight &&
        dstVectorsLeft.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectors_ma_64f_L(src.ptr, src.roi, src.row, src.elem, dstVectorsRight.ptr, dstVectorsRight.roi, dstVectorsRight.row, dstVectorsRight.elem, dstVectorsLeft.ptr, dstVectorsLeft.roi, dstVectorsLeft.row, dstVectorsLeft.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValuesVectors_ma_64f_P
inline std::error_code eigen_values_vectors(const matrix_elems_array<const double>& src, const matrix_elems_array<double>& dstVectorsRight, const matrix_elems_array<double>& dstVectorsLeft, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dstVectorsRight.count == count &&
        dstVectorsLeft.count == count &&
        src.cols == widthHeight &&
        dstVectorsRight.rows == widthHeight &&
        dstVectorsRight.cols == widthHeight &&
        dstVectorsLeft.rows == widthHeight &&
        dstVectorsLeft.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValuesVectors_ma_64f_P(src.ptr, src.roi, src.obj, dstVectorsRight.ptr, dstVectorsRight.roi, dstVectorsRight.obj, dstVectorsLeft.ptr, dstVectorsLeft.roi, dstVectorsLeft.obj, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}

// EigenValues: Eigenvalues of general real matrices as real and imaginary parts, in diagonal order of the quasi-triangular form: a conjugate pair adjacent with its positive imaginary part first. scratch: tarnEigenValuesGetBufSize bytes.
/// tarnEigenValues_m_32f
inline std::error_code eigen_values(const matrix<const float>& src, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValues_m_32f(src.ptr, src.row, src.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValues_m_32f_P
inline std::error_code eigen_values(const matrix_elems<const float>& src, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValues_m_32f_P(src.ptr, src.roi, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValues_m_64f
inline std::error_code eigen_values(const matrix<const double>& src, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValues_m_64f(src.ptr, src.row, src.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValues_m_64f_P
inline std::error_code eigen_values(const matrix_elems<const double>& src, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dstValuesRe.size() >= size_t(1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValues_m_64f_P(src.ptr, src.roi, dstValuesRe.data(), dstValuesIm.data(), widthHeight, scratch.data()));
}
/// tarnEigenValues_ma_32f
inline std::error_code eigen_values(const matrix_array<const float>& src, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValues_ma_32f(src.ptr, src.obj, src.row, src.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValues_ma_32f_L
inline std::error_code eigen_values(const matrix_table<const float>& src, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValues_ma_32f_L(src.ptr, src.roi, src.row, src.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValues_ma_32f_P
inline std::error_code eigen_values(const matrix_elems_array<const float>& src, const std::span<float>& dstValuesRe, const std::span<float>& dstValuesIm, const std::span<float>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValues_ma_32f_P(src.ptr, src.roi, src.obj, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValues_ma_64f
inline std::error_code eigen_values(const matrix_array<const double>& src, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValues_ma_64f(src.ptr, src.obj, src.row, src.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValues_ma_64f_L
inline std::error_code eigen_values(const matrix_table<const double>& src, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValues_ma_64f_L(src.ptr, src.roi, src.row, src.elem, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}
/// tarnEigenValues_ma_64f_P
inline std::error_code eigen_values(const matrix_elems_array<const double>& src, const std::span<double>& dstValuesRe, const std::span<double>& dstValuesIm, const std::span<double>& scratch) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        dstValuesRe.size() >= size_t(count * 1 * (widthHeight)) &&
        dstValuesIm.size() >= size_t(count * 1 * (widthHeight)) &&
        scratch.size() >= size_t(1 * (widthHeight*(3*widthHeight+5)*1))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnEigenValues_ma_64f_P(src.ptr, src.roi, src.obj, dstValuesRe.data(), dstValuesIm.data(), widthHeight, count, scratch.data()));
}

// Extract: Gathers an operand into one dense buffer, row by row; a t operand arrives transposed.
/// tarnExtract_m_32f
inline std::error_code extract(const matrix<const float>& src, const std::span<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_m_32f(src.ptr, src.row, src.elem, dst.data(), width, height));
}
/// tarnExtract_m_32f_P
inline std::error_code extract(const matrix_elems<const float>& src, const std::span<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_m_32f_P(src.ptr, src.roi, dst.data(), width, height));
}
/// tarnExtract_m_64f
inline std::error_code extract(const matrix<const double>& src, const std::span<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_m_64f(src.ptr, src.row, src.elem, dst.data(), width, height));
}
/// tarnExtract_m_64f_P
inline std::error_code extract(const matrix_elems<const double>& src, const std::span<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_m_64f_P(src.ptr, src.roi, dst.data(), width, height));
}
/// tarnExtract_ma_32f
inline std::error_code extract(const matrix_array<const float>& src, const std::span<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_ma_32f(src.ptr, src.obj, src.row, src.elem, dst.data(), width, height, count));
}
/// tarnExtract_ma_32f_L
inline std::error_code extract(const matrix_table<const float>& src, const std::span<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_ma_32f_L(src.ptr, src.roi, src.row, src.elem, dst.data(), width, height, count));
}
/// tarnExtract_ma_32f_P
inline std::error_code extract(const matrix_elems_array<const float>& src, const std::span<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_ma_32f_P(src.ptr, src.roi, src.obj, dst.data(), width, height, count));
}
/// tarnExtract_ma_64f
inline std::error_code extract(const matrix_array<const double>& src, const std::span<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_ma_64f(src.ptr, src.obj, src.row, src.elem, dst.data(), width, height, count));
}
/// tarnExtract_ma_64f_L
inline std::error_code extract(const matrix_table<const double>& src, const std::span<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_ma_64f_L(src.ptr, src.roi, src.row, src.elem, dst.data(), width, height, count));
}
/// tarnExtract_ma_64f_P
inline std::error_code extract(const matrix_elems_array<const double>& src, const std::span<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_ma_64f_P(src.ptr, src.roi, src.obj, dst.data(), width, height, count));
}
/// tarnExtract_t_32f
inline std::error_code extract(const transposed<matrix<const float>>& src, const std::span<float>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_t_32f(src.ptr, src.row, src.elem, dst.data(), width, height));
}
/// tarnExtract_t_32f_P
inline std::error_code extract(const transposed<matrix_elems<const float>>& src, const std::span<float>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_t_32f_P(src.ptr, src.roi, dst.data(), width, height));
}
/// tarnExtract_t_64f
inline std::error_code extract(const transposed<matrix<const double>>& src, const std::span<double>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_t_64f(src.ptr, src.row, src.elem, dst.data(), width, height));
}
/// tarnExtract_t_64f_P
inline std::error_code extract(const transposed<matrix_elems<const double>>& src, const std::span<double>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_t_64f_P(src.ptr, src.roi, dst.data(), width, height));
}
/// tarnExtract_ta_32f
inline std::error_code extract(const transposed<matrix_array<const float>>& src, const std::span<float>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_ta_32f(src.ptr, src.obj, src.row, src.elem, dst.data(), width, height, count));
}
/// tarnExtract_ta_32f_L
inline std::error_code extract(const transposed<matrix_table<const float>>& src, const std::span<float>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_ta_32f_L(src.ptr, src.roi, src.row, src.elem, dst.data(), width, height, count));
}
/// tarnExtract_ta_32f_P
inline std::error_code extract(const transposed<matrix_elems_array<const float>>& src, const std::span<float>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_ta_32f_P(src.ptr, src.roi, src.obj, dst.data(), width, height, count));
}
/// tarnExtract_ta_64f
inline std::error_code extract(const transposed<matrix_array<const double>>& src, const std::span<double>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_ta_64f(src.ptr, src.obj, src.row, src.elem, dst.data(), width, height, count));
}
/// tarnExtract_ta_64f_L
inline std::error_code extract(const transposed<matrix_table<const double>>& src, const std::span<double>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_ta_64f_L(src.ptr, src.roi, src.row, src.elem, dst.data(), width, height, count));
}
/// tarnExtract_ta_64f_P
inline std::error_code extract(const transposed<matrix_elems_array<const double>>& src, const std::span<double>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (height) * (width))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_ta_64f_P(src.ptr, src.roi, src.obj, dst.data(), width, height, count));
}
/// tarnExtract_v_32f
inline std::error_code extract(const vector<const float>& src, const std::span<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1 * (len))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_v_32f(src.ptr, src.elem, dst.data(), len));
}
/// tarnExtract_v_32f_P
inline std::error_code extract(const vector_elems<const float>& src, const std::span<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1 * (len))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_v_32f_P(src.ptr, src.roi, dst.data(), len));
}
/// tarnExtract_v_64f
inline std::error_code extract(const vector<const double>& src, const std::span<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1 * (len))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_v_64f(src.ptr, src.elem, dst.data(), len));
}
/// tarnExtract_v_64f_P
inline std::error_code extract(const vector_elems<const double>& src, const std::span<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1 * (len))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_v_64f_P(src.ptr, src.roi, dst.data(), len));
}
/// tarnExtract_va_32f
inline std::error_code extract(const vector_array<const float>& src, const std::span<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (len))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_va_32f(src.ptr, src.obj, src.elem, dst.data(), len, count));
}
/// tarnExtract_va_32f_L
inline std::error_code extract(const vector_table<const float>& src, const std::span<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (len))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_va_32f_L(src.ptr, src.roi, src.elem, dst.data(), len, count));
}
/// tarnExtract_va_32f_P
inline std::error_code extract(const vector_elems_array<const float>& src, const std::span<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (len))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_va_32f_P(src.ptr, src.roi, src.obj, dst.data(), len, count));
}
/// tarnExtract_va_64f
inline std::error_code extract(const vector_array<const double>& src, const std::span<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (len))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_va_64f(src.ptr, src.obj, src.elem, dst.data(), len, count));
}
/// tarnExtract_va_64f_L
inline std::error_code extract(const vector_table<const double>& src, const std::span<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (len))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_va_64f_L(src.ptr, src.roi, src.elem, dst.data(), len, count));
}
/// tarnExtract_va_64f_P
inline std::error_code extract(const vector_elems_array<const double>& src, const std::span<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1 * (len))))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnExtract_va_64f_P(src.ptr, src.roi, src.obj, dst.data(), len, count));
}

// FrobNorm: dst = the square root of the sum of squares of the elements of each matrix, without scaling.
/// tarnFrobNorm_m_32f
inline std::error_code frob_norm(const matrix<const float>& src, const std::span<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnFrobNorm_m_32f(src.ptr, src.row, src.elem, width, height, dst.data()));
}
/// tarnFrobNorm_m_32f_P
inline std::error_code frob_norm(const matrix_elems<const float>& src, const std::span<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnFrobNorm_m_32f_P(src.ptr, src.roi, width, height, dst.data()));
}
/// tarnFrobNorm_m_64f
inline std::error_code frob_norm(const matrix<const double>& src, const std::span<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnFrobNorm_m_64f(src.ptr, src.row, src.elem, width, height, dst.data()));
}
/// tarnFrobNorm_m_64f_P
inline std::error_code frob_norm(const matrix_elems<const double>& src, const std::span<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnFrobNorm_m_64f_P(src.ptr, src.roi, width, height, dst.data()));
}
/// tarnFrobNorm_ma_32f
inline std::error_code frob_norm(const matrix_array<const float>& src, const std::span<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnFrobNorm_ma_32f(src.ptr, src.obj, src.row, src.elem, width, height, dst.data(), count));
}
/// tarnFrobNorm_ma_32f_L
inline std::error_code frob_norm(const matrix_table<const float>& src, const std::span<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnFrobNorm_ma_32f_L(src.ptr, src.roi, src.row, src.elem, width, height, dst.data(), count));
}
/// tarnFrobNorm_ma_32f_P
inline std::error_code frob_norm(const matrix_elems_array<const float>& src, const std::span<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnFrobNorm_ma_32f_P(src.ptr, src.roi, src.obj, width, height, dst.data(), count));
}
/// tarnFrobNorm_ma_64f
inline std::error_code frob_norm(const matrix_array<const double>& src, const std::span<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnFrobNorm_ma_64f(src.ptr, src.obj, src.row, src.elem, width, height, dst.data(), count));
}
/// tarnFrobNorm_ma_64f_L
inline std::error_code frob_norm(const matrix_table<const double>& src, const std::span<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnFrobNorm_ma_64f_L(src.ptr, src.roi, src.row, src.elem, width, height, dst.data(), count));
}
/// tarnFrobNorm_ma_64f_P
inline std::error_code frob_norm(const matrix_elems_array<const double>& src, const std::span<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnFrobNorm_ma_64f_P(src.ptr, src.roi, src.obj, width, height, dst.data(), count));
}

// Gaxpy: dst = src1 * src2 + src3 for a matrix read as stored: the products summed, then src3 added to the complete sum.
/// tarnGaxpy_mv_32f
inline std::error_code gaxpy(const matrix<const float>& src1, const vector<const float>& src2, const vector<const float>& src3, const vector<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mv_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, src3.ptr, src3.elem, src3Len, dst.ptr, dst.elem));
}
/// tarnGaxpy_mv_32f_P
inline std::error_code gaxpy(const matrix_elems<const float>& src1, const vector_elems<const float>& src2, const vector_elems<const float>& src3, const vector_elems<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mv_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Len, src3.ptr, src3.roi, src3Len, dst.ptr, dst.roi));
}
/// tarnGaxpy_mv_64f
inline std::error_code gaxpy(const matrix<const double>& src1, const vector<const double>& src2, const vector<const double>& src3, const vector<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mv_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, src3.ptr, src3.elem, src3Len, dst.ptr, dst.elem));
}
/// tarnGaxpy_mv_64f_P
inline std::error_code gaxpy(const matrix_elems<const double>& src1, const vector_elems<const double>& src2, const vector_elems<const double>& src3, const vector_elems<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mv_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Len, src3.ptr, src3.roi, src3Len, dst.ptr, dst.roi));
}
/// tarnGaxpy_mva_32f
inline std::error_code gaxpy(const matrix<const float>& src1, const vector_array<const float>& src2, const vector_array<const float>& src3, const vector_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(src3.count == count &&
        dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mva_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.elem, src2Len, src3.ptr, src3.obj, src3.elem, src3Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnGaxpy_mva_32f_L
inline std::error_code gaxpy(const matrix<const float>& src1, const vector_table<const float>& src2, const vector_table<const float>& src3, const vector_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(src3.count == count &&
        dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mva_32f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.elem, src2Len, src3.ptr, src3.roi, src3.elem, src3Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnGaxpy_mva_32f_P
inline std::error_code gaxpy(const matrix_elems<const float>& src1, const vector_elems_array<const float>& src2, const vector_elems_array<const float>& src3, const vector_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(src3.count == count &&
        dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mva_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Len, src3.ptr, src3.roi, src3.obj, src3Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnGaxpy_mva_64f
inline std::error_code gaxpy(const matrix<const double>& src1, const vector_array<const double>& src2, const vector_array<const double>& src3, const vector_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(src3.count == count &&
        dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mva_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.elem, src2Len, src3.ptr, src3.obj, src3.elem, src3Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnGaxpy_mva_64f_L
inline std::error_code gaxpy(const matrix<const double>& src1, const vector_table<const double>& src2, const vector_table<const double>& src3, const vector_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(src3.count == count &&
        dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mva_64f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.elem, src2Len, src3.ptr, src3.roi, src3.elem, src3Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnGaxpy_mva_64f_P
inline std::error_code gaxpy(const matrix_elems<const double>& src1, const vector_elems_array<const double>& src2, const vector_elems_array<const double>& src3, const vector_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(src3.count == count &&
        dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mva_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Len, src3.ptr, src3.roi, src3.obj, src3Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnGaxpy_mvav_32f
inline std::error_code gaxpy(const matrix<const float>& src1, const vector_array<const float>& src2, const vector<const float>& src3, const vector_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mvav_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.elem, src2Len, src3.ptr, src3.elem, src3Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnGaxpy_mvav_32f_L
inline std::error_code gaxpy(const matrix<const float>& src1, const vector_table<const float>& src2, const vector<const float>& src3, const vector_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mvav_32f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.elem, src2Len, src3.ptr, src3.elem, src3Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnGaxpy_mvav_32f_P
inline std::error_code gaxpy(const matrix_elems<const float>& src1, const vector_elems_array<const float>& src2, const vector_elems<const float>& src3, const vector_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mvav_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Len, src3.ptr, src3.roi, src3Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnGaxpy_mvav_64f
inline std::error_code gaxpy(const matrix<const double>& src1, const vector_array<const double>& src2, const vector<const double>& src3, const vector_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mvav_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.elem, src2Len, src3.ptr, src3.elem, src3Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnGaxpy_mvav_64f_L
inline std::error_code gaxpy(const matrix<const double>& src1, const vector_table<const double>& src2, const vector<const double>& src3, const vector_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mvav_64f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.elem, src2Len, src3.ptr, src3.elem, src3Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnGaxpy_mvav_64f_P
inline std::error_code gaxpy(const matrix_elems<const double>& src1, const vector_elems_array<const double>& src2, const vector_elems<const double>& src3, const vector_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  const int32_t src3Len = src3.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len &&
        src3Len == src1Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnGaxpy_mvav_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Len, src3.ptr, src3.roi, src3Len, dst.ptr, dst.roi, dst.obj, count));
}

// Invert: Inverse of each square matrix, or tarnStatusSingular; buffer holds widthHeight*(widthHeight+1) elements.
/// tarnInvert_m_32f
inline std::error_code invert(const matrix<const float>& src, const std::span<float>& buffer, const matrix<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnInvert_m_32f(src.ptr, src.row, src.elem, buffer.data(), dst.ptr, dst.row, dst.elem, widthHeight));
}
/// tarnInvert_m_32f_P
inline std::error_code invert(const matrix_elems<const float>& src, const std::span<float>& buffer, const matrix_elems<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnInvert_m_32f_P(src.ptr, src.roi, buffer.data(), dst.ptr, dst.roi, widthHeight));
}
/// tarnInvert_m_64f
inline std::error_code invert(const matrix<const double>& src, const std::span<double>& buffer, const matrix<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnInvert_m_64f(src.ptr, src.row, src.elem, buffer.data(), dst.ptr, dst.row, dst.elem, widthHeight));
}
/// tarnInvert_m_64f_P
inline std::error_code invert(const matrix_elems<const double>& src, const std::span<double>& buffer, const matrix_elems<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnInvert_m_64f_P(src.ptr, src.roi, buffer.data(), dst.ptr, dst.roi, widthHeight));
}
/// tarnInvert_ma_32f
inline std::error_code invert(const matrix_array<const float>& src, const std::span<float>& buffer, const matrix_array<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnInvert_ma_32f(src.ptr, src.obj, src.row, src.elem, buffer.data(), dst.ptr, dst.obj, dst.row, dst.elem, widthHeight, count));
}
/// tarnInvert_ma_32f_L
inline std::error_code invert(const matrix_table<const float>& src, const std::span<float>& buffer, const matrix_table<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnInvert_ma_32f_L(src.ptr, src.roi, src.row, src.elem, buffer.data(), dst.ptr, dst.roi, dst.row, dst.elem, widthHeight, count));
}
/// tarnInvert_ma_32f_P
inline std::error_code invert(const matrix_elems_array<const float>& src, const std::span<float>& buffer, const matrix_elems_array<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnInvert_ma_32f_P(src.ptr, src.roi, src.obj, buffer.data(), dst.ptr, dst.roi, dst.obj, widthHeight, count));
}
/// tarnInvert_ma_64f
inline std::error_code invert(const matrix_array<const double>& src, const std::span<double>& buffer, const matrix_array<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnInvert_ma_64f(src.ptr, src.obj, src.row, src.elem, buffer.data(), dst.ptr, dst.obj, dst.row, dst.elem, widthHeight, count));
}
/// tarnInvert_ma_64f_L
inline std::error_code invert(const matrix_table<const double>& src, const std::span<double>& buffer, const matrix_table<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnInvert_ma_64f_L(src.ptr, src.roi, src.row, src.elem, buffer.data(), dst.ptr, dst.roi, dst.row, dst.elem, widthHeight, count));
}
/// tarnInvert_ma_64f_P
inline std::error_code invert(const matrix_elems_array<const double>& src, const std::span<double>& buffer, const matrix_elems_array<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        buffer.size() >= size_t(1 * (widthHeight*(widthHeight+1)*1)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnInvert_ma_64f_P(src.ptr, src.roi, src.obj, buffer.data(), dst.ptr, dst.roi, dst.obj, widthHeight, count));
}

// L2Norm: dst = the square root of the sum of squares of each vector, without scaling: overflow gives infinity.
/// tarnL2Norm_v_32f
inline std::error_code l2_norm(const vector<const float>& src, const std::span<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnL2Norm_v_32f(src.ptr, src.elem, dst.data(), len));
}
/// tarnL2Norm_v_32f_P
inline std::error_code l2_norm(const vector_elems<const float>& src, const std::span<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnL2Norm_v_32f_P(src.ptr, src.roi, dst.data(), len));
}
/// tarnL2Norm_v_64f
inline std::error_code l2_norm(const vector<const double>& src, const std::span<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnL2Norm_v_64f(src.ptr, src.elem, dst.data(), len));
}
/// tarnL2Norm_v_64f_P
inline std::error_code l2_norm(const vector_elems<const double>& src, const std::span<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnL2Norm_v_64f_P(src.ptr, src.roi, dst.data(), len));
}
/// tarnL2Norm_va_32f
inline std::error_code l2_norm(const vector_array<const float>& src, const std::span<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnL2Norm_va_32f(src.ptr, src.obj, src.elem, dst.data(), len, count));
}
/// tarnL2Norm_va_32f_L
inline std::error_code l2_norm(const vector_table<const float>& src, const std::span<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnL2Norm_va_32f_L(src.ptr, src.roi, src.elem, dst.data(), len, count));
}
/// tarnL2Norm_va_32f_P
inline std::error_code l2_norm(const vector_elems_array<const float>& src, const std::span<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnL2Norm_va_32f_P(src.ptr, src.roi, src.obj, dst.data(), len, count));
}
/// tarnL2Norm_va_64f
inline std::error_code l2_norm(const vector_array<const double>& src, const std::span<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnL2Norm_va_64f(src.ptr, src.obj, src.elem, dst.data(), len, count));
}
/// tarnL2Norm_va_64f_L
inline std::error_code l2_norm(const vector_table<const double>& src, const std::span<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnL2Norm_va_64f_L(src.ptr, src.roi, src.elem, dst.data(), len, count));
}
/// tarnL2Norm_va_64f_P
inline std::error_code l2_norm(const vector_elems_array<const double>& src, const std::span<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnL2Norm_va_64f_P(src.ptr, src.roi, src.obj, dst.data(), len, count));
}

// LComb: dst = src1*val1 + src2*val2 per element: both products and the sum each rounded, never fused.
/// tarnLComb_vav_32f
inline std::error_code lcomb(const vector_array<const float>& src1, float val1, const vector<const float>& src2, float val2, const vector_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vav_32f(src1.ptr, src1.obj, src1.elem, val1, src2.ptr, src2.elem, val2, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnLComb_vav_32f_L
inline std::error_code lcomb(const vector_table<const float>& src1, float val1, const vector<const float>& src2, float val2, const vector_table<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vav_32f_L(src1.ptr, src1.roi, src1.elem, val1, src2.ptr, src2.elem, val2, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnLComb_vav_32f_P
inline std::error_code lcomb(const vector_elems_array<const float>& src1, float val1, const vector_elems<const float>& src2, float val2, const vector_elems_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vav_32f_P(src1.ptr, src1.roi, src1.obj, val1, src2.ptr, src2.roi, val2, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnLComb_vav_64f
inline std::error_code lcomb(const vector_array<const double>& src1, double val1, const vector<const double>& src2, double val2, const vector_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vav_64f(src1.ptr, src1.obj, src1.elem, val1, src2.ptr, src2.elem, val2, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnLComb_vav_64f_L
inline std::error_code lcomb(const vector_table<const double>& src1, double val1, const vector<const double>& src2, double val2, const vector_table<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vav_64f_L(src1.ptr, src1.roi, src1.elem, val1, src2.ptr, src2.elem, val2, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnLComb_vav_64f_P
inline std::error_code lcomb(const vector_elems_array<const double>& src1, double val1, const vector_elems<const double>& src2, double val2, const vector_elems_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vav_64f_P(src1.ptr, src1.roi, src1.obj, val1, src2.ptr, src2.roi, val2, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnLComb_vava_32f
inline std::error_code lcomb(const vector_array<const float>& src1, float val1, const vector_array<const float>& src2, float val2, const vector_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vava_32f(src1.ptr, src1.obj, src1.elem, val1, src2.ptr, src2.obj, src2.elem, val2, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnLComb_vava_32f_L
inline std::error_code lcomb(const vector_table<const float>& src1, float val1, const vector_table<const float>& src2, float val2, const vector_table<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vava_32f_L(src1.ptr, src1.roi, src1.elem, val1, src2.ptr, src2.roi, src2.elem, val2, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnLComb_vava_32f_P
inline std::error_code lcomb(const vector_elems_array<const float>& src1, float val1, const vector_elems_array<const float>& src2, float val2, const vector_elems_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vava_32f_P(src1.ptr, src1.roi, src1.obj, val1, src2.ptr, src2.roi, src2.obj, val2, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnLComb_vava_64f
inline std::error_code lcomb(const vector_array<const double>& src1, double val1, const vector_array<const double>& src2, double val2, const vector_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vava_64f(src1.ptr, src1.obj, src1.elem, val1, src2.ptr, src2.obj, src2.elem, val2, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnLComb_vava_64f_L
inline std::error_code lcomb(const vector_table<const double>& src1, double val1, const vector_table<const double>& src2, double val2, const vector_table<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vava_64f_L(src1.ptr, src1.roi, src1.elem, val1, src2.ptr, src2.roi, src2.elem, val2, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnLComb_vava_64f_P
inline std::error_code lcomb(const vector_elems_array<const double>& src1, double val1, const vector_elems_array<const double>& src2, double val2, const vector_elems_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vava_64f_P(src1.ptr, src1.roi, src1.obj, val1, src2.ptr, src2.roi, src2.obj, val2, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnLComb_vv_32f
inline std::error_code lcomb(const vector<const float>& src1, float val1, const vector<const float>& src2, float val2, const vector<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vv_32f(src1.ptr, src1.elem, val1, src2.ptr, src2.elem, val2, dst.ptr, dst.elem, len));
}
/// tarnLComb_vv_32f_P
inline std::error_code lcomb(const vector_elems<const float>& src1, float val1, const vector_elems<const float>& src2, float val2, const vector_elems<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vv_32f_P(src1.ptr, src1.roi, val1, src2.ptr, src2.roi, val2, dst.ptr, dst.roi, len));
}
/// tarnLComb_vv_64f
inline std::error_code lcomb(const vector<const double>& src1, double val1, const vector<const double>& src2, double val2, const vector<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vv_64f(src1.ptr, src1.elem, val1, src2.ptr, src2.elem, val2, dst.ptr, dst.elem, len));
}
/// tarnLComb_vv_64f_P
inline std::error_code lcomb(const vector_elems<const double>& src1, double val1, const vector_elems<const double>& src2, double val2, const vector_elems<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vv_64f_P(src1.ptr, src1.roi, val1, src2.ptr, src2.roi, val2, dst.ptr, dst.roi, len));
}

// LUBackSubst: Solves A x = b from the factors and pivot of LUDecomp: b is read through pivot, x is written by column.
/// tarnLUBackSubst_mava_32f
inline std::error_code lu_back_subst(const matrix_array<const float>& src1, const std::span<const int32_t>& pivot, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.cols == widthHeight &&
        pivot.size() >= size_t(count * 1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mava_32f(src1.ptr, src1.obj, src1.row, src1.elem, pivot.data(), src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, widthHeight, count));
}
/// tarnLUBackSubst_mava_32f_L
inline std::error_code lu_back_subst(const matrix_table<const float>& src1, const std::span<const int32_t>& pivot, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.cols == widthHeight &&
        pivot.size() >= size_t(count * 1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mava_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, pivot.data(), src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, widthHeight, count));
}
/// tarnLUBackSubst_mava_32f_P
inline std::error_code lu_back_subst(const matrix_elems_array<const float>& src1, const std::span<const int32_t>& pivot, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.cols == widthHeight &&
        pivot.size() >= size_t(count * 1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mava_32f_P(src1.ptr, src1.roi, src1.obj, pivot.data(), src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, widthHeight, count));
}
/// tarnLUBackSubst_mava_64f
inline std::error_code lu_back_subst(const matrix_array<const double>& src1, const std::span<const int32_t>& pivot, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.cols == widthHeight &&
        pivot.size() >= size_t(count * 1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mava_64f(src1.ptr, src1.obj, src1.row, src1.elem, pivot.data(), src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, widthHeight, count));
}
/// tarnLUBackSubst_mava_64f_L
inline std::error_code lu_back_subst(const matrix_table<const double>& src1, const std::span<const int32_t>& pivot, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.cols == widthHeight &&
        pivot.size() >= size_t(count * 1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mava_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, pivot.data(), src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, widthHeight, count));
}
/// tarnLUBackSubst_mava_64f_P
inline std::error_code lu_back_subst(const matrix_elems_array<const double>& src1, const std::span<const int32_t>& pivot, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src1.cols == widthHeight &&
        pivot.size() >= size_t(count * 1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mava_64f_P(src1.ptr, src1.roi, src1.obj, pivot.data(), src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, widthHeight, count));
}
/// tarnLUBackSubst_mv_32f
inline std::error_code lu_back_subst(const matrix<const float>& src1, const std::span<const int32_t>& pivot, const vector<const float>& src2, const vector<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src1.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mv_32f(src1.ptr, src1.row, src1.elem, pivot.data(), src2.ptr, src2.elem, dst.ptr, dst.elem, widthHeight));
}
/// tarnLUBackSubst_mv_32f_P
inline std::error_code lu_back_subst(const matrix_elems<const float>& src1, const std::span<const int32_t>& pivot, const vector_elems<const float>& src2, const vector_elems<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src1.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mv_32f_P(src1.ptr, src1.roi, pivot.data(), src2.ptr, src2.roi, dst.ptr, dst.roi, widthHeight));
}
/// tarnLUBackSubst_mv_64f
inline std::error_code lu_back_subst(const matrix<const double>& src1, const std::span<const int32_t>& pivot, const vector<const double>& src2, const vector<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src1.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mv_64f(src1.ptr, src1.row, src1.elem, pivot.data(), src2.ptr, src2.elem, dst.ptr, dst.elem, widthHeight));
}
/// tarnLUBackSubst_mv_64f_P
inline std::error_code lu_back_subst(const matrix_elems<const double>& src1, const std::span<const int32_t>& pivot, const vector_elems<const double>& src2, const vector_elems<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src1.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mv_64f_P(src1.ptr, src1.roi, pivot.data(), src2.ptr, src2.roi, dst.ptr, dst.roi, widthHeight));
}
/// tarnLUBackSubst_mva_32f
inline std::error_code lu_back_subst(const matrix<const float>& src1, const std::span<const int32_t>& pivot, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mva_32f(src1.ptr, src1.row, src1.elem, pivot.data(), src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, widthHeight, count));
}
/// tarnLUBackSubst_mva_32f_L
inline std::error_code lu_back_subst(const matrix<const float>& src1, const std::span<const int32_t>& pivot, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mva_32f_L(src1.ptr, src1.row, src1.elem, pivot.data(), src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, widthHeight, count));
}
/// tarnLUBackSubst_mva_32f_P
inline std::error_code lu_back_subst(const matrix_elems<const float>& src1, const std::span<const int32_t>& pivot, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mva_32f_P(src1.ptr, src1.roi, pivot.data(), src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, widthHeight, count));
}
/// tarnLUBackSubst_mva_64f
inline std::error_code lu_back_subst(const matrix<const double>& src1, const std::span<const int32_t>& pivot, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mva_64f(src1.ptr, src1.row, src1.elem, pivot.data(), src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, widthHeight, count));
}
/// tarnLUBackSubst_mva_64f_L
inline std::error_code lu_back_subst(const matrix<const double>& src1, const std::span<const int32_t>& pivot, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mva_64f_L(src1.ptr, src1.row, src1.elem, pivot.data(), src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, widthHeight, count));
}
/// tarnLUBackSubst_mva_64f_P
inline std::error_code lu_back_subst(const matrix_elems<const double>& src1, const std::span<const int32_t>& pivot, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t widthHeight = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src1.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        src2.len == widthHeight &&
        dst.len == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUBackSubst_mva_64f_P(src1.ptr, src1.roi, pivot.data(), src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, widthHeight, count));
}

// LUDecomp: LU factorisation with partial pivoting: dst holds L (unit diagonal, not stored) and U packed, row k of the factors in row pivot[k]; rows are never moved.
/// tarnLUDecomp_m_32f
inline std::error_code lu_decomp(const matrix<const float>& src, const std::span<int32_t>& pivot, const matrix<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUDecomp_m_32f(src.ptr, src.row, src.elem, pivot.data(), dst.ptr, dst.row, dst.elem, widthHeight));
}
/// tarnLUDecomp_m_32f_P
inline std::error_code lu_decomp(const matrix_elems<const float>& src, const std::span<int32_t>& pivot, const matrix_elems<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUDecomp_m_32f_P(src.ptr, src.roi, pivot.data(), dst.ptr, dst.roi, widthHeight));
}
/// tarnLUDecomp_m_64f
inline std::error_code lu_decomp(const matrix<const double>& src, const std::span<int32_t>& pivot, const matrix<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUDecomp_m_64f(src.ptr, src.row, src.elem, pivot.data(), dst.ptr, dst.row, dst.elem, widthHeight));
}
/// tarnLUDecomp_m_64f_P
inline std::error_code lu_decomp(const matrix_elems<const double>& src, const std::span<int32_t>& pivot, const matrix_elems<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        pivot.size() >= size_t(1 * (widthHeight)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUDecomp_m_64f_P(src.ptr, src.roi, pivot.data(), dst.ptr, dst.roi, widthHeight));
}
/// tarnLUDecomp_ma_32f
inline std::error_code lu_decomp(const matrix_array<const float>& src, const std::span<int32_t>& pivot, const matrix_array<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        pivot.size() >= size_t(count * 1 * (widthHeight)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUDecomp_ma_32f(src.ptr, src.obj, src.row, src.elem, pivot.data(), dst.ptr, dst.obj, dst.row, dst.elem, widthHeight, count));
}
/// tarnLUDecomp_ma_32f_L
inline std::error_code lu_decomp(const matrix_table<const float>& src, const std::span<int32_t>& pivot, const matrix_table<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        pivot.size() >= size_t(count * 1 * (widthHeight)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUDecomp_ma_32f_L(src.ptr, src.roi, src.row, src.elem, pivot.data(), dst.ptr, dst.roi, dst.row, dst.elem, widthHeight, count));
}
/// tarnLUDecomp_ma_32f_P
inline std::error_code lu_decomp(const matrix_elems_array<const float>& src, const std::span<int32_t>& pivot, const matrix_elems_array<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        pivot.size() >= size_t(count * 1 * (widthHeight)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUDecomp_ma_32f_P(src.ptr, src.roi, src.obj, pivot.data(), dst.ptr, dst.roi, dst.obj, widthHeight, count));
}
/// tarnLUDecomp_ma_64f
inline std::error_code lu_decomp(const matrix_array<const double>& src, const std::span<int32_t>& pivot, const matrix_array<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        pivot.size() >= size_t(count * 1 * (widthHeight)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUDecomp_ma_64f(src.ptr, src.obj, src.row, src.elem, pivot.data(), dst.ptr, dst.obj, dst.row, dst.elem, widthHeight, count));
}
/// tarnLUDecomp_ma_64f_L
inline std::error_code lu_decomp(const matrix_table<const double>& src, const std::span<int32_t>& pivot, const matrix_table<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        pivot.size() >= size_t(count * 1 * (widthHeight)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUDecomp_ma_64f_L(src.ptr, src.roi, src.row, src.elem, pivot.data(), dst.ptr, dst.roi, dst.row, dst.elem, widthHeight, count));
}
/// tarnLUDecomp_ma_64f_P
inline std::error_code lu_decomp(const matrix_elems_array<const double>& src, const std::span<int32_t>& pivot, const matrix_elems_array<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        src.cols == widthHeight &&
        pivot.size() >= size_t(count * 1 * (widthHeight)) &&
        dst.rows == widthHeight &&
        dst.cols == widthHeight))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLUDecomp_ma_64f_P(src.ptr, src.roi, src.obj, pivot.data(), dst.ptr, dst.roi, dst.obj, widthHeight, count));
}

// LoadIdentity: Fills every matrix of the array with ones on the main diagonal and zeros elsewhere.
/// tarnLoadIdentity_ma_32f
inline std::error_code load_identity(const matrix_array<float>& dst) {
  const int32_t width = dst.cols;
  const int32_t height = dst.rows;
  [[maybe_unused]] const int32_t count = dst.count;
  return detail::status(::tarnLoadIdentity_ma_32f(dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnLoadIdentity_ma_32f_L
inline std::error_code load_identity(const matrix_table<float>& dst) {
  const int32_t width = dst.cols;
  const int32_t height = dst.rows;
  [[maybe_unused]] const int32_t count = dst.count;
  return detail::status(::tarnLoadIdentity_ma_32f_L(dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnLoadIdentity_ma_32f_P
inline std::error_code load_identity(const matrix_elems_array<float>& dst) {
  const int32_t width = dst.cols;
  const int32_t height = dst.rows;
  [[maybe_unused]] const int32_t count = dst.count;
  return detail::status(::tarnLoadIdentity_ma_32f_P(dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnLoadIdentity_ma_64f
inline std::error_code load_identity(const matrix_array<double>& dst) {
  const int32_t width = dst.cols;
  const int32_t height = dst.rows;
  [[maybe_unused]] const int32_t count = dst.count;
  return detail::status(::tarnLoadIdentity_ma_64f(dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnLoadIdentity_ma_64f_L
inline std::error_code load_identity(const matrix_table<double>& dst) {
  const int32_t width = dst.cols;
  const int32_t height = dst.rows;
  [[maybe_unused]] const int32_t count = dst.count;
  return detail::status(::tarnLoadIdentity_ma_64f_L(dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnLoadIdentity_ma_64f_P
inline std::error_code load_identity(const matrix_elems_array<double>& dst) {
  const int32_t width = dst.cols;
  const int32_t height = dst.rows;
  [[maybe_unused]] const int32_t count = dst.count;
  return detail::status(::tarnLoadIdentity_ma_64f_P(dst.ptr, dst.roi, dst.obj, width, height, count));
}

// Mul: Products: dst = op(src1) * op(src2) of matrices and vectors, each matrix read as stored (m) or transposed (t), its sizes describing it as stored; or an operand times a constant.
/// tarnMul_mac_32f
inline std::error_code mul(const matrix_array<const float>& src, float val, const matrix_array<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mac_32f(src.ptr, src.obj, src.row, src.elem, val, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnMul_mac_32f_L
inline std::error_code mul(const matrix_table<const float>& src, float val, const matrix_table<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mac_32f_L(src.ptr, src.roi, src.row, src.elem, val, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnMul_mac_32f_P
inline std::error_code mul(const matrix_elems_array<const float>& src, float val, const matrix_elems_array<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mac_32f_P(src.ptr, src.roi, src.obj, val, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnMul_mac_64f
inline std::error_code mul(const matrix_array<const double>& src, double val, const matrix_array<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mac_64f(src.ptr, src.obj, src.row, src.elem, val, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnMul_mac_64f_L
inline std::error_code mul(const matrix_table<const double>& src, double val, const matrix_table<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mac_64f_L(src.ptr, src.roi, src.row, src.elem, val, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnMul_mac_64f_P
inline std::error_code mul(const matrix_elems_array<const double>& src, double val, const matrix_elems_array<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mac_64f_P(src.ptr, src.roi, src.obj, val, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnMul_mam_32f
inline std::error_code mul(const matrix_array<const float>& src1, const matrix<const float>& src2, const matrix_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mam_32f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_mam_32f_L
inline std::error_code mul(const matrix_table<const float>& src1, const matrix<const float>& src2, const matrix_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mam_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_mam_32f_P
inline std::error_code mul(const matrix_elems_array<const float>& src1, const matrix_elems<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mam_32f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mam_64f
inline std::error_code mul(const matrix_array<const double>& src1, const matrix<const double>& src2, const matrix_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mam_64f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_mam_64f_L
inline std::error_code mul(const matrix_table<const double>& src1, const matrix<const double>& src2, const matrix_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mam_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_mam_64f_P
inline std::error_code mul(const matrix_elems_array<const double>& src1, const matrix_elems<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mam_64f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mama_32f
inline std::error_code mul(const matrix_array<const float>& src1, const matrix_array<const float>& src2, const matrix_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mama_32f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_mama_32f_L
inline std::error_code mul(const matrix_table<const float>& src1, const matrix_table<const float>& src2, const matrix_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mama_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_mama_32f_P
inline std::error_code mul(const matrix_elems_array<const float>& src1, const matrix_elems_array<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mama_32f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mama_64f
inline std::error_code mul(const matrix_array<const double>& src1, const matrix_array<const double>& src2, const matrix_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mama_64f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_mama_64f_L
inline std::error_code mul(const matrix_table<const double>& src1, const matrix_table<const double>& src2, const matrix_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mama_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_mama_64f_P
inline std::error_code mul(const matrix_elems_array<const double>& src1, const matrix_elems_array<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mama_64f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mat_32f
inline std::error_code mul(const matrix_array<const float>& src1, const transposed<matrix<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mat_32f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_mat_32f_L
inline std::error_code mul(const matrix_table<const float>& src1, const transposed<matrix<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mat_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_mat_32f_P
inline std::error_code mul(const matrix_elems_array<const float>& src1, const transposed<matrix_elems<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mat_32f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mat_64f
inline std::error_code mul(const matrix_array<const double>& src1, const transposed<matrix<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mat_64f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_mat_64f_L
inline std::error_code mul(const matrix_table<const double>& src1, const transposed<matrix<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mat_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_mat_64f_P
inline std::error_code mul(const matrix_elems_array<const double>& src1, const transposed<matrix_elems<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mat_64f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mata_32f
inline std::error_code mul(const matrix_array<const float>& src1, const transposed<matrix_array<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mata_32f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_mata_32f_L
inline std::error_code mul(const matrix_table<const float>& src1, const transposed<matrix_table<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mata_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_mata_32f_P
inline std::error_code mul(const matrix_elems_array<const float>& src1, const transposed<matrix_elems_array<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mata_32f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mata_64f
inline std::error_code mul(const matrix_array<const double>& src1, const transposed<matrix_array<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mata_64f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_mata_64f_L
inline std::error_code mul(const matrix_table<const double>& src1, const transposed<matrix_table<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mata_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_mata_64f_P
inline std::error_code mul(const matrix_elems_array<const double>& src1, const transposed<matrix_elems_array<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mata_64f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mav_32f
inline std::error_code mul(const matrix_array<const float>& src1, const vector<const float>& src2, const vector_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mav_32f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnMul_mav_32f_L
inline std::error_code mul(const matrix_table<const float>& src1, const vector<const float>& src2, const vector_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mav_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnMul_mav_32f_P
inline std::error_code mul(const matrix_elems_array<const float>& src1, const vector_elems<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mav_32f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mav_64f
inline std::error_code mul(const matrix_array<const double>& src1, const vector<const double>& src2, const vector_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mav_64f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnMul_mav_64f_L
inline std::error_code mul(const matrix_table<const double>& src1, const vector<const double>& src2, const vector_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mav_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnMul_mav_64f_P
inline std::error_code mul(const matrix_elems_array<const double>& src1, const vector_elems<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mav_64f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mava_32f
inline std::error_code mul(const matrix_array<const float>& src1, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mava_32f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.elem, src2Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnMul_mava_32f_L
inline std::error_code mul(const matrix_table<const float>& src1, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mava_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.elem, src2Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnMul_mava_32f_P
inline std::error_code mul(const matrix_elems_array<const float>& src1, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mava_32f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mava_64f
inline std::error_code mul(const matrix_array<const double>& src1, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mava_64f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.elem, src2Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnMul_mava_64f_L
inline std::error_code mul(const matrix_table<const double>& src1, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mava_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.elem, src2Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnMul_mava_64f_P
inline std::error_code mul(const matrix_elems_array<const double>& src1, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mava_64f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mc_32f
inline std::error_code mul(const matrix<const float>& src, float val, const matrix<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mc_32f(src.ptr, src.row, src.elem, val, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnMul_mc_32f_P
inline std::error_code mul(const matrix_elems<const float>& src, float val, const matrix_elems<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mc_32f_P(src.ptr, src.roi, val, dst.ptr, dst.roi, width, height));
}
/// tarnMul_mc_64f
inline std::error_code mul(const matrix<const double>& src, double val, const matrix<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mc_64f(src.ptr, src.row, src.elem, val, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnMul_mc_64f_P
inline std::error_code mul(const matrix_elems<const double>& src, double val, const matrix_elems<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mc_64f_P(src.ptr, src.roi, val, dst.ptr, dst.roi, width, height));
}
/// tarnMul_mm_32f
inline std::error_code mul(const matrix<const float>& src1, const matrix<const float>& src2, const matrix<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mm_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.row, dst.elem));
}
/// tarnMul_mm_32f_P
inline std::error_code mul(const matrix_elems<const float>& src1, const matrix_elems<const float>& src2, const matrix_elems<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mm_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi));
}
/// tarnMul_mm_64f
inline std::error_code mul(const matrix<const double>& src1, const matrix<const double>& src2, const matrix<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mm_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.row, dst.elem));
}
/// tarnMul_mm_64f_P
inline std::error_code mul(const matrix_elems<const double>& src1, const matrix_elems<const double>& src2, const matrix_elems<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mm_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi));
}
/// tarnMul_mma_32f
inline std::error_code mul(const matrix<const float>& src1, const matrix_array<const float>& src2, const matrix_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mma_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_mma_32f_L
inline std::error_code mul(const matrix<const float>& src1, const matrix_table<const float>& src2, const matrix_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mma_32f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_mma_32f_P
inline std::error_code mul(const matrix_elems<const float>& src1, const matrix_elems_array<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mma_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mma_64f
inline std::error_code mul(const matrix<const double>& src1, const matrix_array<const double>& src2, const matrix_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mma_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_mma_64f_L
inline std::error_code mul(const matrix<const double>& src1, const matrix_table<const double>& src2, const matrix_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mma_64f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_mma_64f_P
inline std::error_code mul(const matrix_elems<const double>& src1, const matrix_elems_array<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Width &&
        src1Width == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mma_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mt_32f
inline std::error_code mul(const matrix<const float>& src1, const transposed<matrix<const float>>& src2, const matrix<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mt_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.row, dst.elem));
}
/// tarnMul_mt_32f_P
inline std::error_code mul(const matrix_elems<const float>& src1, const transposed<matrix_elems<const float>>& src2, const matrix_elems<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mt_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi));
}
/// tarnMul_mt_64f
inline std::error_code mul(const matrix<const double>& src1, const transposed<matrix<const double>>& src2, const matrix<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mt_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.row, dst.elem));
}
/// tarnMul_mt_64f_P
inline std::error_code mul(const matrix_elems<const double>& src1, const transposed<matrix_elems<const double>>& src2, const matrix_elems<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mt_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi));
}
/// tarnMul_mta_32f
inline std::error_code mul(const matrix<const float>& src1, const transposed<matrix_array<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mta_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_mta_32f_L
inline std::error_code mul(const matrix<const float>& src1, const transposed<matrix_table<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mta_32f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_mta_32f_P
inline std::error_code mul(const matrix_elems<const float>& src1, const transposed<matrix_elems_array<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mta_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mta_64f
inline std::error_code mul(const matrix<const double>& src1, const transposed<matrix_array<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mta_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_mta_64f_L
inline std::error_code mul(const matrix<const double>& src1, const transposed<matrix_table<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mta_64f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_mta_64f_P
inline std::error_code mul(const matrix_elems<const double>& src1, const transposed<matrix_elems_array<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Height &&
        dst.cols == src2Height &&
        src1Width == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mta_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mv_32f
inline std::error_code mul(const matrix<const float>& src1, const vector<const float>& src2, const vector<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mv_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, dst.ptr, dst.elem));
}
/// tarnMul_mv_32f_P
inline std::error_code mul(const matrix_elems<const float>& src1, const vector_elems<const float>& src2, const vector_elems<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mv_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Len, dst.ptr, dst.roi));
}
/// tarnMul_mv_64f
inline std::error_code mul(const matrix<const double>& src1, const vector<const double>& src2, const vector<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mv_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, dst.ptr, dst.elem));
}
/// tarnMul_mv_64f_P
inline std::error_code mul(const matrix_elems<const double>& src1, const vector_elems<const double>& src2, const vector_elems<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mv_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Len, dst.ptr, dst.roi));
}
/// tarnMul_mva_32f
inline std::error_code mul(const matrix<const float>& src1, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mva_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.elem, src2Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnMul_mva_32f_L
inline std::error_code mul(const matrix<const float>& src1, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mva_32f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.elem, src2Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnMul_mva_32f_P
inline std::error_code mul(const matrix_elems<const float>& src1, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mva_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_mva_64f
inline std::error_code mul(const matrix<const double>& src1, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mva_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.elem, src2Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnMul_mva_64f_L
inline std::error_code mul(const matrix<const double>& src1, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mva_64f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.elem, src2Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnMul_mva_64f_P
inline std::error_code mul(const matrix_elems<const double>& src1, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Height &&
        src1Width == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_mva_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tac_32f
inline std::error_code mul(const transposed<matrix_array<const float>>& src, float val, const matrix_array<float>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tac_32f(src.ptr, src.obj, src.row, src.elem, val, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnMul_tac_32f_L
inline std::error_code mul(const transposed<matrix_table<const float>>& src, float val, const matrix_table<float>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tac_32f_L(src.ptr, src.roi, src.row, src.elem, val, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnMul_tac_32f_P
inline std::error_code mul(const transposed<matrix_elems_array<const float>>& src, float val, const matrix_elems_array<float>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tac_32f_P(src.ptr, src.roi, src.obj, val, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnMul_tac_64f
inline std::error_code mul(const transposed<matrix_array<const double>>& src, double val, const matrix_array<double>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tac_64f(src.ptr, src.obj, src.row, src.elem, val, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnMul_tac_64f_L
inline std::error_code mul(const transposed<matrix_table<const double>>& src, double val, const matrix_table<double>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tac_64f_L(src.ptr, src.roi, src.row, src.elem, val, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnMul_tac_64f_P
inline std::error_code mul(const transposed<matrix_elems_array<const double>>& src, double val, const matrix_elems_array<double>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tac_64f_P(src.ptr, src.roi, src.obj, val, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnMul_tam_32f
inline std::error_code mul(const transposed<matrix_array<const float>>& src1, const matrix<const float>& src2, const matrix_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tam_32f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_tam_32f_L
inline std::error_code mul(const transposed<matrix_table<const float>>& src1, const matrix<const float>& src2, const matrix_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tam_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_tam_32f_P
inline std::error_code mul(const transposed<matrix_elems_array<const float>>& src1, const matrix_elems<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tam_32f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tam_64f
inline std::error_code mul(const transposed<matrix_array<const double>>& src1, const matrix<const double>& src2, const matrix_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tam_64f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_tam_64f_L
inline std::error_code mul(const transposed<matrix_table<const double>>& src1, const matrix<const double>& src2, const matrix_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tam_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_tam_64f_P
inline std::error_code mul(const transposed<matrix_elems_array<const double>>& src1, const matrix_elems<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tam_64f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tama_32f
inline std::error_code mul(const transposed<matrix_array<const float>>& src1, const matrix_array<const float>& src2, const matrix_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tama_32f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_tama_32f_L
inline std::error_code mul(const transposed<matrix_table<const float>>& src1, const matrix_table<const float>& src2, const matrix_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tama_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_tama_32f_P
inline std::error_code mul(const transposed<matrix_elems_array<const float>>& src1, const matrix_elems_array<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tama_32f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tama_64f
inline std::error_code mul(const transposed<matrix_array<const double>>& src1, const matrix_array<const double>& src2, const matrix_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tama_64f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_tama_64f_L
inline std::error_code mul(const transposed<matrix_table<const double>>& src1, const matrix_table<const double>& src2, const matrix_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tama_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_tama_64f_P
inline std::error_code mul(const transposed<matrix_elems_array<const double>>& src1, const matrix_elems_array<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tama_64f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tat_32f
inline std::error_code mul(const transposed<matrix_array<const float>>& src1, const transposed<matrix<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tat_32f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_tat_32f_L
inline std::error_code mul(const transposed<matrix_table<const float>>& src1, const transposed<matrix<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tat_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_tat_32f_P
inline std::error_code mul(const transposed<matrix_elems_array<const float>>& src1, const transposed<matrix_elems<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tat_32f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tat_64f
inline std::error_code mul(const transposed<matrix_array<const double>>& src1, const transposed<matrix<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tat_64f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_tat_64f_L
inline std::error_code mul(const transposed<matrix_table<const double>>& src1, const transposed<matrix<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tat_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_tat_64f_P
inline std::error_code mul(const transposed<matrix_elems_array<const double>>& src1, const transposed<matrix_elems<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tat_64f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tata_32f
inline std::error_code mul(const transposed<matrix_array<const float>>& src1, const transposed<matrix_array<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tata_32f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_tata_32f_L
inline std::error_code mul(const transposed<matrix_table<const float>>& src1, const transposed<matrix_table<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tata_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_tata_32f_P
inline std::error_code mul(const transposed<matrix_elems_array<const float>>& src1, const transposed<matrix_elems_array<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tata_32f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tata_64f
inline std::error_code mul(const transposed<matrix_array<const double>>& src1, const transposed<matrix_array<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tata_64f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_tata_64f_L
inline std::error_code mul(const transposed<matrix_table<const double>>& src1, const transposed<matrix_table<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tata_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_tata_64f_P
inline std::error_code mul(const transposed<matrix_elems_array<const double>>& src1, const transposed<matrix_elems_array<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tata_64f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tav_32f
inline std::error_code mul(const transposed<matrix_array<const float>>& src1, const vector<const float>& src2, const vector_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tav_32f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnMul_tav_32f_L
inline std::error_code mul(const transposed<matrix_table<const float>>& src1, const vector<const float>& src2, const vector_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tav_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnMul_tav_32f_P
inline std::error_code mul(const transposed<matrix_elems_array<const float>>& src1, const vector_elems<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tav_32f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tav_64f
inline std::error_code mul(const transposed<matrix_array<const double>>& src1, const vector<const double>& src2, const vector_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tav_64f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnMul_tav_64f_L
inline std::error_code mul(const transposed<matrix_table<const double>>& src1, const vector<const double>& src2, const vector_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tav_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnMul_tav_64f_P
inline std::error_code mul(const transposed<matrix_elems_array<const double>>& src1, const vector_elems<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tav_64f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tava_32f
inline std::error_code mul(const transposed<matrix_array<const float>>& src1, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tava_32f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.elem, src2Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnMul_tava_32f_L
inline std::error_code mul(const transposed<matrix_table<const float>>& src1, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tava_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.elem, src2Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnMul_tava_32f_P
inline std::error_code mul(const transposed<matrix_elems_array<const float>>& src1, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tava_32f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tava_64f
inline std::error_code mul(const transposed<matrix_array<const double>>& src1, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tava_64f(src1.ptr, src1.obj, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.elem, src2Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnMul_tava_64f_L
inline std::error_code mul(const transposed<matrix_table<const double>>& src1, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tava_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.elem, src2Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnMul_tava_64f_P
inline std::error_code mul(const transposed<matrix_elems_array<const double>>& src1, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tava_64f_P(src1.ptr, src1.roi, src1.obj, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tc_32f
inline std::error_code mul(const transposed<matrix<const float>>& src, float val, const matrix<float>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tc_32f(src.ptr, src.row, src.elem, val, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnMul_tc_32f_P
inline std::error_code mul(const transposed<matrix_elems<const float>>& src, float val, const matrix_elems<float>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tc_32f_P(src.ptr, src.roi, val, dst.ptr, dst.roi, width, height));
}
/// tarnMul_tc_64f
inline std::error_code mul(const transposed<matrix<const double>>& src, double val, const matrix<double>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tc_64f(src.ptr, src.row, src.elem, val, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnMul_tc_64f_P
inline std::error_code mul(const transposed<matrix_elems<const double>>& src, double val, const matrix_elems<double>& dst) {
  const int32_t width = src.rows;
  const int32_t height = src.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tc_64f_P(src.ptr, src.roi, val, dst.ptr, dst.roi, width, height));
}
/// tarnMul_tm_32f
inline std::error_code mul(const transposed<matrix<const float>>& src1, const matrix<const float>& src2, const matrix<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tm_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.row, dst.elem));
}
/// tarnMul_tm_32f_P
inline std::error_code mul(const transposed<matrix_elems<const float>>& src1, const matrix_elems<const float>& src2, const matrix_elems<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tm_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi));
}
/// tarnMul_tm_64f
inline std::error_code mul(const transposed<matrix<const double>>& src1, const matrix<const double>& src2, const matrix<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tm_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.row, dst.elem));
}
/// tarnMul_tm_64f_P
inline std::error_code mul(const transposed<matrix_elems<const double>>& src1, const matrix_elems<const double>& src2, const matrix_elems<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tm_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi));
}
/// tarnMul_tma_32f
inline std::error_code mul(const transposed<matrix<const float>>& src1, const matrix_array<const float>& src2, const matrix_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tma_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_tma_32f_L
inline std::error_code mul(const transposed<matrix<const float>>& src1, const matrix_table<const float>& src2, const matrix_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tma_32f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_tma_32f_P
inline std::error_code mul(const transposed<matrix_elems<const float>>& src1, const matrix_elems_array<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tma_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tma_64f
inline std::error_code mul(const transposed<matrix<const double>>& src1, const matrix_array<const double>& src2, const matrix_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tma_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_tma_64f_L
inline std::error_code mul(const transposed<matrix<const double>>& src1, const matrix_table<const double>& src2, const matrix_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tma_64f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_tma_64f_P
inline std::error_code mul(const transposed<matrix_elems<const double>>& src1, const matrix_elems_array<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Width &&
        src1Height == src2Height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tma_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tt_32f
inline std::error_code mul(const transposed<matrix<const float>>& src1, const transposed<matrix<const float>>& src2, const matrix<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tt_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.row, dst.elem));
}
/// tarnMul_tt_32f_P
inline std::error_code mul(const transposed<matrix_elems<const float>>& src1, const transposed<matrix_elems<const float>>& src2, const matrix_elems<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tt_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi));
}
/// tarnMul_tt_64f
inline std::error_code mul(const transposed<matrix<const double>>& src1, const transposed<matrix<const double>>& src2, const matrix<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tt_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.row, dst.elem));
}
/// tarnMul_tt_64f_P
inline std::error_code mul(const transposed<matrix_elems<const double>>& src1, const transposed<matrix_elems<const double>>& src2, const matrix_elems<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tt_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Width, src2Height, dst.ptr, dst.roi));
}
/// tarnMul_tta_32f
inline std::error_code mul(const transposed<matrix<const float>>& src1, const transposed<matrix_array<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tta_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_tta_32f_L
inline std::error_code mul(const transposed<matrix<const float>>& src1, const transposed<matrix_table<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tta_32f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_tta_32f_P
inline std::error_code mul(const transposed<matrix_elems<const float>>& src1, const transposed<matrix_elems_array<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tta_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tta_64f
inline std::error_code mul(const transposed<matrix<const double>>& src1, const transposed<matrix_array<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tta_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnMul_tta_64f_L
inline std::error_code mul(const transposed<matrix<const double>>& src1, const transposed<matrix_table<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tta_64f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.row, src2.elem, src2Width, src2Height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnMul_tta_64f_P
inline std::error_code mul(const transposed<matrix_elems<const double>>& src1, const transposed<matrix_elems_array<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Width = src2.cols;
  const int32_t src2Height = src2.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.rows == src1Width &&
        dst.cols == src2Height &&
        src1Height == src2Width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tta_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Width, src2Height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tv_32f
inline std::error_code mul(const transposed<matrix<const float>>& src1, const vector<const float>& src2, const vector<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tv_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, dst.ptr, dst.elem));
}
/// tarnMul_tv_32f_P
inline std::error_code mul(const transposed<matrix_elems<const float>>& src1, const vector_elems<const float>& src2, const vector_elems<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tv_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Len, dst.ptr, dst.roi));
}
/// tarnMul_tv_64f
inline std::error_code mul(const transposed<matrix<const double>>& src1, const vector<const double>& src2, const vector<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tv_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.elem, src2Len, dst.ptr, dst.elem));
}
/// tarnMul_tv_64f_P
inline std::error_code mul(const transposed<matrix_elems<const double>>& src1, const vector_elems<const double>& src2, const vector_elems<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tv_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2Len, dst.ptr, dst.roi));
}
/// tarnMul_tva_32f
inline std::error_code mul(const transposed<matrix<const float>>& src1, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tva_32f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.elem, src2Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnMul_tva_32f_L
inline std::error_code mul(const transposed<matrix<const float>>& src1, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tva_32f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.elem, src2Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnMul_tva_32f_P
inline std::error_code mul(const transposed<matrix_elems<const float>>& src1, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tva_32f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_tva_64f
inline std::error_code mul(const transposed<matrix<const double>>& src1, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tva_64f(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.obj, src2.elem, src2Len, dst.ptr, dst.obj, dst.elem, count));
}
/// tarnMul_tva_64f_L
inline std::error_code mul(const transposed<matrix<const double>>& src1, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tva_64f_L(src1.ptr, src1.row, src1.elem, src1Width, src1Height, src2.ptr, src2.roi, src2.elem, src2Len, dst.ptr, dst.roi, dst.elem, count));
}
/// tarnMul_tva_64f_P
inline std::error_code mul(const transposed<matrix_elems<const double>>& src1, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t src1Width = src1.cols;
  const int32_t src1Height = src1.rows;
  const int32_t src2Len = src2.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        dst.len == src1Width &&
        src1Height == src2Len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_tva_64f_P(src1.ptr, src1.roi, src1Width, src1Height, src2.ptr, src2.roi, src2.obj, src2Len, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnMul_vac_32f
inline std::error_code mul(const vector_array<const float>& src, float val, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vac_32f(src.ptr, src.obj, src.elem, val, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnMul_vac_32f_L
inline std::error_code mul(const vector_table<const float>& src, float val, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vac_32f_L(src.ptr, src.roi, src.elem, val, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnMul_vac_32f_P
inline std::error_code mul(const vector_elems_array<const float>& src, float val, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vac_32f_P(src.ptr, src.roi, src.obj, val, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnMul_vac_64f
inline std::error_code mul(const vector_array<const double>& src, double val, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vac_64f(src.ptr, src.obj, src.elem, val, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnMul_vac_64f_L
inline std::error_code mul(const vector_table<const double>& src, double val, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vac_64f_L(src.ptr, src.roi, src.elem, val, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnMul_vac_64f_P
inline std::error_code mul(const vector_elems_array<const double>& src, double val, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vac_64f_P(src.ptr, src.roi, src.obj, val, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnMul_vaca_32f
inline std::error_code mul(const vector_array<const float>& src, const constant_array<const float>& val, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vaca_32f(src.ptr, src.obj, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnMul_vaca_32f_L
inline std::error_code mul(const vector_table<const float>& src, const constant_table<const float>& val, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vaca_32f_L(src.ptr, src.roi, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnMul_vaca_32f_P
inline std::error_code mul(const vector_elems_array<const float>& src, const constant_array<const float>& val, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vaca_32f_P(src.ptr, src.roi, src.obj, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnMul_vaca_64f
inline std::error_code mul(const vector_array<const double>& src, const constant_array<const double>& val, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vaca_64f(src.ptr, src.obj, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnMul_vaca_64f_L
inline std::error_code mul(const vector_table<const double>& src, const constant_table<const double>& val, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vaca_64f_L(src.ptr, src.roi, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnMul_vaca_64f_P
inline std::error_code mul(const vector_elems_array<const double>& src, const constant_array<const double>& val, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vaca_64f_P(src.ptr, src.roi, src.obj, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnMul_vc_32f
inline std::error_code mul(const vector<const float>& src, float val, const vector<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vc_32f(src.ptr, src.elem, val, dst.ptr, dst.elem, len));
}
/// tarnMul_vc_32f_P
inline std::error_code mul(const vector_elems<const float>& src, float val, const vector_elems<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vc_32f_P(src.ptr, src.roi, val, dst.ptr, dst.roi, len));
}
/// tarnMul_vc_64f
inline std::error_code mul(const vector<const double>& src, double val, const vector<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vc_64f(src.ptr, src.elem, val, dst.ptr, dst.elem, len));
}
/// tarnMul_vc_64f_P
inline std::error_code mul(const vector_elems<const double>& src, double val, const vector_elems<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vc_64f_P(src.ptr, src.roi, val, dst.ptr, dst.roi, len));
}
/// tarnMul_vca_32f
inline std::error_code mul(const vector<const float>& src, const constant_array<const float>& val, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vca_32f(src.ptr, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnMul_vca_32f_L
inline std::error_code mul(const vector<const float>& src, const constant_table<const float>& val, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vca_32f_L(src.ptr, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnMul_vca_32f_P
inline std::error_code mul(const vector_elems<const float>& src, const constant_array<const float>& val, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vca_32f_P(src.ptr, src.roi, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnMul_vca_64f
inline std::error_code mul(const vector<const double>& src, const constant_array<const double>& val, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vca_64f(src.ptr, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnMul_vca_64f_L
inline std::error_code mul(const vector<const double>& src, const constant_table<const double>& val, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vca_64f_L(src.ptr, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnMul_vca_64f_P
inline std::error_code mul(const vector_elems<const double>& src, const constant_array<const double>& val, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnMul_vca_64f_P(src.ptr, src.roi, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}

// QRBackSubst: Solves R x = Q^T b (least squares for a tall matrix) from what QRDecomp stored; buffer holds height elements.
/// tarnQRBackSubst_mava_32f
inline std::error_code qr_back_subst(const matrix_array<const float>& src1, const std::span<float>& buffer, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mava_32f(src1.ptr, src1.obj, src1.row, src1.elem, buffer.data(), src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, width, height, count));
}
/// tarnQRBackSubst_mava_32f_L
inline std::error_code qr_back_subst(const matrix_table<const float>& src1, const std::span<float>& buffer, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mava_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, buffer.data(), src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, width, height, count));
}
/// tarnQRBackSubst_mava_32f_P
inline std::error_code qr_back_subst(const matrix_elems_array<const float>& src1, const std::span<float>& buffer, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mava_32f_P(src1.ptr, src1.roi, src1.obj, buffer.data(), src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnQRBackSubst_mava_64f
inline std::error_code qr_back_subst(const matrix_array<const double>& src1, const std::span<double>& buffer, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mava_64f(src1.ptr, src1.obj, src1.row, src1.elem, buffer.data(), src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, width, height, count));
}
/// tarnQRBackSubst_mava_64f_L
inline std::error_code qr_back_subst(const matrix_table<const double>& src1, const std::span<double>& buffer, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mava_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, buffer.data(), src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, width, height, count));
}
/// tarnQRBackSubst_mava_64f_P
inline std::error_code qr_back_subst(const matrix_elems_array<const double>& src1, const std::span<double>& buffer, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mava_64f_P(src1.ptr, src1.roi, src1.obj, buffer.data(), src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnQRBackSubst_mv_32f
inline std::error_code qr_back_subst(const matrix<const float>& src1, const std::span<float>& buffer, const vector<const float>& src2, const vector<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mv_32f(src1.ptr, src1.row, src1.elem, buffer.data(), src2.ptr, src2.elem, dst.ptr, dst.elem, width, height));
}
/// tarnQRBackSubst_mv_32f_P
inline std::error_code qr_back_subst(const matrix_elems<const float>& src1, const std::span<float>& buffer, const vector_elems<const float>& src2, const vector_elems<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mv_32f_P(src1.ptr, src1.roi, buffer.data(), src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnQRBackSubst_mv_64f
inline std::error_code qr_back_subst(const matrix<const double>& src1, const std::span<double>& buffer, const vector<const double>& src2, const vector<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mv_64f(src1.ptr, src1.row, src1.elem, buffer.data(), src2.ptr, src2.elem, dst.ptr, dst.elem, width, height));
}
/// tarnQRBackSubst_mv_64f_P
inline std::error_code qr_back_subst(const matrix_elems<const double>& src1, const std::span<double>& buffer, const vector_elems<const double>& src2, const vector_elems<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mv_64f_P(src1.ptr, src1.roi, buffer.data(), src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnQRBackSubst_mva_32f
inline std::error_code qr_back_subst(const matrix<const float>& src1, const std::span<float>& buffer, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mva_32f(src1.ptr, src1.row, src1.elem, buffer.data(), src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, width, height, count));
}
/// tarnQRBackSubst_mva_32f_L
inline std::error_code qr_back_subst(const matrix<const float>& src1, const std::span<float>& buffer, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mva_32f_L(src1.ptr, src1.row, src1.elem, buffer.data(), src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, width, height, count));
}
/// tarnQRBackSubst_mva_32f_P
inline std::error_code qr_back_subst(const matrix_elems<const float>& src1, const std::span<float>& buffer, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mva_32f_P(src1.ptr, src1.roi, buffer.data(), src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnQRBackSubst_mva_64f
inline std::error_code qr_back_subst(const matrix<const double>& src1, const std::span<double>& buffer, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mva_64f(src1.ptr, src1.row, src1.elem, buffer.data(), src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, width, height, count));
}
/// tarnQRBackSubst_mva_64f_L
inline std::error_code qr_back_subst(const matrix<const double>& src1, const std::span<double>& buffer, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mva_64f_L(src1.ptr, src1.row, src1.elem, buffer.data(), src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, width, height, count));
}
/// tarnQRBackSubst_mva_64f_P
inline std::error_code qr_back_subst(const matrix_elems<const double>& src1, const std::span<double>& buffer, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        src2.len == height &&
        dst.len == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRBackSubst_mva_64f_P(src1.ptr, src1.roi, buffer.data(), src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}

// QRDecomp: Householder QR of a matrix with width <= height: R on and above the diagonal, each reflector below the diagonal of its column, its leading 1 implied; buffer holds height elements.
/// tarnQRDecomp_m_32f
inline std::error_code qr_decomp(const matrix<const float>& src, const std::span<float>& buffer, const matrix<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(buffer.size() >= size_t(1 * (height*1)) &&
        dst.rows == height &&
        dst.cols == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRDecomp_m_32f(src.ptr, src.row, src.elem, buffer.data(), dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnQRDecomp_m_32f_P
inline std::error_code qr_decomp(const matrix_elems<const float>& src, const std::span<float>& buffer, const matrix_elems<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(buffer.size() >= size_t(1 * (height*1)) &&
        dst.rows == height &&
        dst.cols == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRDecomp_m_32f_P(src.ptr, src.roi, buffer.data(), dst.ptr, dst.roi, width, height));
}
/// tarnQRDecomp_m_64f
inline std::error_code qr_decomp(const matrix<const double>& src, const std::span<double>& buffer, const matrix<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(buffer.size() >= size_t(1 * (height*1)) &&
        dst.rows == height &&
        dst.cols == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRDecomp_m_64f(src.ptr, src.row, src.elem, buffer.data(), dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnQRDecomp_m_64f_P
inline std::error_code qr_decomp(const matrix_elems<const double>& src, const std::span<double>& buffer, const matrix_elems<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(buffer.size() >= size_t(1 * (height*1)) &&
        dst.rows == height &&
        dst.cols == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRDecomp_m_64f_P(src.ptr, src.roi, buffer.data(), dst.ptr, dst.roi, width, height));
}
/// tarnQRDecomp_ma_32f
inline std::error_code qr_decomp(const matrix_array<const float>& src, const std::span<float>& buffer, const matrix_array<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        dst.rows == height &&
        dst.cols == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRDecomp_ma_32f(src.ptr, src.obj, src.row, src.elem, buffer.data(), dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnQRDecomp_ma_32f_L
inline std::error_code qr_decomp(const matrix_table<const float>& src, const std::span<float>& buffer, const matrix_table<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        dst.rows == height &&
        dst.cols == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRDecomp_ma_32f_L(src.ptr, src.roi, src.row, src.elem, buffer.data(), dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnQRDecomp_ma_32f_P
inline std::error_code qr_decomp(const matrix_elems_array<const float>& src, const std::span<float>& buffer, const matrix_elems_array<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        dst.rows == height &&
        dst.cols == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRDecomp_ma_32f_P(src.ptr, src.roi, src.obj, buffer.data(), dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnQRDecomp_ma_64f
inline std::error_code qr_decomp(const matrix_array<const double>& src, const std::span<double>& buffer, const matrix_array<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        dst.rows == height &&
        dst.cols == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRDecomp_ma_64f(src.ptr, src.obj, src.row, src.elem, buffer.data(), dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnQRDecomp_ma_64f_L
inline std::error_code qr_decomp(const matrix_table<const double>& src, const std::span<double>& buffer, const matrix_table<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        dst.rows == height &&
        dst.cols == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRDecomp_ma_64f_L(src.ptr, src.roi, src.row, src.elem, buffer.data(), dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnQRDecomp_ma_64f_P
inline std::error_code qr_decomp(const matrix_elems_array<const double>& src, const std::span<double>& buffer, const matrix_elems_array<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        buffer.size() >= size_t(1 * (height*1)) &&
        dst.rows == height &&
        dst.cols == width &&
        width <= height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnQRDecomp_ma_64f_P(src.ptr, src.roi, src.obj, buffer.data(), dst.ptr, dst.roi, dst.obj, width, height, count));
}

// Saxpy: dst = src1*val + src2 per element: the product and the sum each rounded, never fused.
/// tarnSaxpy_vav_32f
inline std::error_code saxpy(const vector_array<const float>& src1, float val, const vector<const float>& src2, const vector_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vav_32f(src1.ptr, src1.obj, src1.elem, val, src2.ptr, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSaxpy_vav_32f_L
inline std::error_code saxpy(const vector_table<const float>& src1, float val, const vector<const float>& src2, const vector_table<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vav_32f_L(src1.ptr, src1.roi, src1.elem, val, src2.ptr, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSaxpy_vav_32f_P
inline std::error_code saxpy(const vector_elems_array<const float>& src1, float val, const vector_elems<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vav_32f_P(src1.ptr, src1.roi, src1.obj, val, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSaxpy_vav_64f
inline std::error_code saxpy(const vector_array<const double>& src1, double val, const vector<const double>& src2, const vector_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vav_64f(src1.ptr, src1.obj, src1.elem, val, src2.ptr, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSaxpy_vav_64f_L
inline std::error_code saxpy(const vector_table<const double>& src1, double val, const vector<const double>& src2, const vector_table<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vav_64f_L(src1.ptr, src1.roi, src1.elem, val, src2.ptr, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSaxpy_vav_64f_P
inline std::error_code saxpy(const vector_elems_array<const double>& src1, double val, const vector_elems<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vav_64f_P(src1.ptr, src1.roi, src1.obj, val, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSaxpy_vava_32f
inline std::error_code saxpy(const vector_array<const float>& src1, float val, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vava_32f(src1.ptr, src1.obj, src1.elem, val, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSaxpy_vava_32f_L
inline std::error_code saxpy(const vector_table<const float>& src1, float val, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vava_32f_L(src1.ptr, src1.roi, src1.elem, val, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSaxpy_vava_32f_P
inline std::error_code saxpy(const vector_elems_array<const float>& src1, float val, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vava_32f_P(src1.ptr, src1.roi, src1.obj, val, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSaxpy_vava_64f
inline std::error_code saxpy(const vector_array<const double>& src1, double val, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vava_64f(src1.ptr, src1.obj, src1.elem, val, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSaxpy_vava_64f_L
inline std::error_code saxpy(const vector_table<const double>& src1, double val, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vava_64f_L(src1.ptr, src1.roi, src1.elem, val, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSaxpy_vava_64f_P
inline std::error_code saxpy(const vector_elems_array<const double>& src1, double val, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vava_64f_P(src1.ptr, src1.roi, src1.obj, val, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSaxpy_vv_32f
inline std::error_code saxpy(const vector<const float>& src1, float val, const vector<const float>& src2, const vector<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vv_32f(src1.ptr, src1.elem, val, src2.ptr, src2.elem, dst.ptr, dst.elem, len));
}
/// tarnSaxpy_vv_32f_P
inline std::error_code saxpy(const vector_elems<const float>& src1, float val, const vector_elems<const float>& src2, const vector_elems<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vv_32f_P(src1.ptr, src1.roi, val, src2.ptr, src2.roi, dst.ptr, dst.roi, len));
}
/// tarnSaxpy_vv_64f
inline std::error_code saxpy(const vector<const double>& src1, double val, const vector<const double>& src2, const vector<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vv_64f(src1.ptr, src1.elem, val, src2.ptr, src2.elem, dst.ptr, dst.elem, len));
}
/// tarnSaxpy_vv_64f_P
inline std::error_code saxpy(const vector_elems<const double>& src1, double val, const vector_elems<const double>& src2, const vector_elems<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vv_64f_P(src1.ptr, src1.roi, val, src2.ptr, src2.roi, dst.ptr, dst.roi, len));
}
/// tarnSaxpy_vva_32f
inline std::error_code saxpy(const vector<const float>& src1, float val, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vva_32f(src1.ptr, src1.elem, val, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSaxpy_vva_32f_L
inline std::error_code saxpy(const vector<const float>& src1, float val, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vva_32f_L(src1.ptr, src1.elem, val, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSaxpy_vva_32f_P
inline std::error_code saxpy(const vector_elems<const float>& src1, float val, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vva_32f_P(src1.ptr, src1.roi, val, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSaxpy_vva_64f
inline std::error_code saxpy(const vector<const double>& src1, double val, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vva_64f(src1.ptr, src1.elem, val, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSaxpy_vva_64f_L
inline std::error_code saxpy(const vector<const double>& src1, double val, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vva_64f_L(src1.ptr, src1.elem, val, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSaxpy_vva_64f_P
inline std::error_code saxpy(const vector_elems<const double>& src1, double val, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSaxpy_vva_64f_P(src1.ptr, src1.roi, val, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, len, count));
}

// Sub: Element-wise difference, the operand named first minus the other, one rounded subtraction per element.
/// tarnSub_cav_32f
inline std::error_code sub(const constant_array<const float>& val, const vector<const float>& src, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cav_32f(src.ptr, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_cav_32f_L
inline std::error_code sub(const constant_table<const float>& val, const vector<const float>& src, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cav_32f_L(src.ptr, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_cav_32f_P
inline std::error_code sub(const constant_array<const float>& val, const vector_elems<const float>& src, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cav_32f_P(src.ptr, src.roi, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_cav_64f
inline std::error_code sub(const constant_array<const double>& val, const vector<const double>& src, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cav_64f(src.ptr, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_cav_64f_L
inline std::error_code sub(const constant_table<const double>& val, const vector<const double>& src, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cav_64f_L(src.ptr, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_cav_64f_P
inline std::error_code sub(const constant_array<const double>& val, const vector_elems<const double>& src, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cav_64f_P(src.ptr, src.roi, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_cava_32f
inline std::error_code sub(const constant_array<const float>& val, const vector_array<const float>& src, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cava_32f(src.ptr, src.obj, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_cava_32f_L
inline std::error_code sub(const constant_table<const float>& val, const vector_table<const float>& src, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cava_32f_L(src.ptr, src.roi, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_cava_32f_P
inline std::error_code sub(const constant_array<const float>& val, const vector_elems_array<const float>& src, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cava_32f_P(src.ptr, src.roi, src.obj, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_cava_64f
inline std::error_code sub(const constant_array<const double>& val, const vector_array<const double>& src, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cava_64f(src.ptr, src.obj, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_cava_64f_L
inline std::error_code sub(const constant_table<const double>& val, const vector_table<const double>& src, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cava_64f_L(src.ptr, src.roi, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_cava_64f_P
inline std::error_code sub(const constant_array<const double>& val, const vector_elems_array<const double>& src, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cava_64f_P(src.ptr, src.roi, src.obj, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_cv_32f
inline std::error_code sub(float val, const vector<const float>& src, const vector<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cv_32f(src.ptr, src.elem, val, dst.ptr, dst.elem, len));
}
/// tarnSub_cv_32f_P
inline std::error_code sub(float val, const vector_elems<const float>& src, const vector_elems<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cv_32f_P(src.ptr, src.roi, val, dst.ptr, dst.roi, len));
}
/// tarnSub_cv_64f
inline std::error_code sub(double val, const vector<const double>& src, const vector<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cv_64f(src.ptr, src.elem, val, dst.ptr, dst.elem, len));
}
/// tarnSub_cv_64f_P
inline std::error_code sub(double val, const vector_elems<const double>& src, const vector_elems<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cv_64f_P(src.ptr, src.roi, val, dst.ptr, dst.roi, len));
}
/// tarnSub_cva_32f
inline std::error_code sub(float val, const vector_array<const float>& src, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cva_32f(src.ptr, src.obj, src.elem, val, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_cva_32f_L
inline std::error_code sub(float val, const vector_table<const float>& src, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cva_32f_L(src.ptr, src.roi, src.elem, val, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_cva_32f_P
inline std::error_code sub(float val, const vector_elems_array<const float>& src, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cva_32f_P(src.ptr, src.roi, src.obj, val, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_cva_64f
inline std::error_code sub(double val, const vector_array<const double>& src, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cva_64f(src.ptr, src.obj, src.elem, val, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_cva_64f_L
inline std::error_code sub(double val, const vector_table<const double>& src, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cva_64f_L(src.ptr, src.roi, src.elem, val, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_cva_64f_P
inline std::error_code sub(double val, const vector_elems_array<const double>& src, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_cva_64f_P(src.ptr, src.roi, src.obj, val, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_mam_32f
inline std::error_code sub(const matrix_array<const float>& src1, const matrix<const float>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mam_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mam_32f_L
inline std::error_code sub(const matrix_table<const float>& src1, const matrix<const float>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mam_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mam_32f_P
inline std::error_code sub(const matrix_elems_array<const float>& src1, const matrix_elems<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mam_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_mam_64f
inline std::error_code sub(const matrix_array<const double>& src1, const matrix<const double>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mam_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mam_64f_L
inline std::error_code sub(const matrix_table<const double>& src1, const matrix<const double>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mam_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mam_64f_P
inline std::error_code sub(const matrix_elems_array<const double>& src1, const matrix_elems<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mam_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_mama_32f
inline std::error_code sub(const matrix_array<const float>& src1, const matrix_array<const float>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mama_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mama_32f_L
inline std::error_code sub(const matrix_table<const float>& src1, const matrix_table<const float>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mama_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mama_32f_P
inline std::error_code sub(const matrix_elems_array<const float>& src1, const matrix_elems_array<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mama_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_mama_64f
inline std::error_code sub(const matrix_array<const double>& src1, const matrix_array<const double>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mama_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mama_64f_L
inline std::error_code sub(const matrix_table<const double>& src1, const matrix_table<const double>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mama_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mama_64f_P
inline std::error_code sub(const matrix_elems_array<const double>& src1, const matrix_elems_array<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mama_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_mat_32f
inline std::error_code sub(const matrix_array<const float>& src1, const transposed<matrix<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mat_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mat_32f_L
inline std::error_code sub(const matrix_table<const float>& src1, const transposed<matrix<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mat_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mat_32f_P
inline std::error_code sub(const matrix_elems_array<const float>& src1, const transposed<matrix_elems<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mat_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_mat_64f
inline std::error_code sub(const matrix_array<const double>& src1, const transposed<matrix<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mat_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mat_64f_L
inline std::error_code sub(const matrix_table<const double>& src1, const transposed<matrix<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mat_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mat_64f_P
inline std::error_code sub(const matrix_elems_array<const double>& src1, const transposed<matrix_elems<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mat_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_mata_32f
inline std::error_code sub(const matrix_array<const float>& src1, const transposed<matrix_array<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mata_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mata_32f_L
inline std::error_code sub(const matrix_table<const float>& src1, const transposed<matrix_table<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mata_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mata_32f_P
inline std::error_code sub(const matrix_elems_array<const float>& src1, const transposed<matrix_elems_array<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mata_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_mata_64f
inline std::error_code sub(const matrix_array<const double>& src1, const transposed<matrix_array<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mata_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mata_64f_L
inline std::error_code sub(const matrix_table<const double>& src1, const transposed<matrix_table<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mata_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mata_64f_P
inline std::error_code sub(const matrix_elems_array<const double>& src1, const transposed<matrix_elems_array<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mata_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_mm_32f
inline std::error_code sub(const matrix<const float>& src1, const matrix<const float>& src2, const matrix<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mm_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnSub_mm_32f_P
inline std::error_code sub(const matrix_elems<const float>& src1, const matrix_elems<const float>& src2, const matrix_elems<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mm_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnSub_mm_64f
inline std::error_code sub(const matrix<const double>& src1, const matrix<const double>& src2, const matrix<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mm_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnSub_mm_64f_P
inline std::error_code sub(const matrix_elems<const double>& src1, const matrix_elems<const double>& src2, const matrix_elems<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mm_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnSub_mma_32f
inline std::error_code sub(const matrix<const float>& src1, const matrix_array<const float>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mma_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mma_32f_L
inline std::error_code sub(const matrix<const float>& src1, const matrix_table<const float>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mma_32f_L(src1.ptr, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mma_32f_P
inline std::error_code sub(const matrix_elems<const float>& src1, const matrix_elems_array<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mma_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_mma_64f
inline std::error_code sub(const matrix<const double>& src1, const matrix_array<const double>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mma_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mma_64f_L
inline std::error_code sub(const matrix<const double>& src1, const matrix_table<const double>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mma_64f_L(src1.ptr, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mma_64f_P
inline std::error_code sub(const matrix_elems<const double>& src1, const matrix_elems_array<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mma_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_mt_32f
inline std::error_code sub(const matrix<const float>& src1, const transposed<matrix<const float>>& src2, const matrix<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mt_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnSub_mt_32f_P
inline std::error_code sub(const matrix_elems<const float>& src1, const transposed<matrix_elems<const float>>& src2, const matrix_elems<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mt_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnSub_mt_64f
inline std::error_code sub(const matrix<const double>& src1, const transposed<matrix<const double>>& src2, const matrix<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mt_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnSub_mt_64f_P
inline std::error_code sub(const matrix_elems<const double>& src1, const transposed<matrix_elems<const double>>& src2, const matrix_elems<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mt_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnSub_mta_32f
inline std::error_code sub(const matrix<const float>& src1, const transposed<matrix_array<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mta_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mta_32f_L
inline std::error_code sub(const matrix<const float>& src1, const transposed<matrix_table<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mta_32f_L(src1.ptr, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mta_32f_P
inline std::error_code sub(const matrix_elems<const float>& src1, const transposed<matrix_elems_array<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mta_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_mta_64f
inline std::error_code sub(const matrix<const double>& src1, const transposed<matrix_array<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mta_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mta_64f_L
inline std::error_code sub(const matrix<const double>& src1, const transposed<matrix_table<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mta_64f_L(src1.ptr, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_mta_64f_P
inline std::error_code sub(const matrix_elems<const double>& src1, const transposed<matrix_elems_array<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.cols;
  const int32_t height = src1.rows;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_mta_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_tam_32f
inline std::error_code sub(const transposed<matrix_array<const float>>& src1, const matrix<const float>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tam_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tam_32f_L
inline std::error_code sub(const transposed<matrix_table<const float>>& src1, const matrix<const float>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tam_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tam_32f_P
inline std::error_code sub(const transposed<matrix_elems_array<const float>>& src1, const matrix_elems<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tam_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_tam_64f
inline std::error_code sub(const transposed<matrix_array<const double>>& src1, const matrix<const double>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tam_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tam_64f_L
inline std::error_code sub(const transposed<matrix_table<const double>>& src1, const matrix<const double>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tam_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tam_64f_P
inline std::error_code sub(const transposed<matrix_elems_array<const double>>& src1, const matrix_elems<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tam_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_tama_32f
inline std::error_code sub(const transposed<matrix_array<const float>>& src1, const matrix_array<const float>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tama_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tama_32f_L
inline std::error_code sub(const transposed<matrix_table<const float>>& src1, const matrix_table<const float>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tama_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tama_32f_P
inline std::error_code sub(const transposed<matrix_elems_array<const float>>& src1, const matrix_elems_array<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tama_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_tama_64f
inline std::error_code sub(const transposed<matrix_array<const double>>& src1, const matrix_array<const double>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tama_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tama_64f_L
inline std::error_code sub(const transposed<matrix_table<const double>>& src1, const matrix_table<const double>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tama_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tama_64f_P
inline std::error_code sub(const transposed<matrix_elems_array<const double>>& src1, const matrix_elems_array<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tama_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_tat_32f
inline std::error_code sub(const transposed<matrix_array<const float>>& src1, const transposed<matrix<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tat_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tat_32f_L
inline std::error_code sub(const transposed<matrix_table<const float>>& src1, const transposed<matrix<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tat_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tat_32f_P
inline std::error_code sub(const transposed<matrix_elems_array<const float>>& src1, const transposed<matrix_elems<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tat_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_tat_64f
inline std::error_code sub(const transposed<matrix_array<const double>>& src1, const transposed<matrix<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tat_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tat_64f_L
inline std::error_code sub(const transposed<matrix_table<const double>>& src1, const transposed<matrix<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tat_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tat_64f_P
inline std::error_code sub(const transposed<matrix_elems_array<const double>>& src1, const transposed<matrix_elems<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tat_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_tata_32f
inline std::error_code sub(const transposed<matrix_array<const float>>& src1, const transposed<matrix_array<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tata_32f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tata_32f_L
inline std::error_code sub(const transposed<matrix_table<const float>>& src1, const transposed<matrix_table<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tata_32f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tata_32f_P
inline std::error_code sub(const transposed<matrix_elems_array<const float>>& src1, const transposed<matrix_elems_array<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tata_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_tata_64f
inline std::error_code sub(const transposed<matrix_array<const double>>& src1, const transposed<matrix_array<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tata_64f(src1.ptr, src1.obj, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tata_64f_L
inline std::error_code sub(const transposed<matrix_table<const double>>& src1, const transposed<matrix_table<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tata_64f_L(src1.ptr, src1.roi, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tata_64f_P
inline std::error_code sub(const transposed<matrix_elems_array<const double>>& src1, const transposed<matrix_elems_array<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tata_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_tm_32f
inline std::error_code sub(const transposed<matrix<const float>>& src1, const matrix<const float>& src2, const matrix<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tm_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnSub_tm_32f_P
inline std::error_code sub(const transposed<matrix_elems<const float>>& src1, const matrix_elems<const float>& src2, const matrix_elems<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tm_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnSub_tm_64f
inline std::error_code sub(const transposed<matrix<const double>>& src1, const matrix<const double>& src2, const matrix<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tm_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnSub_tm_64f_P
inline std::error_code sub(const transposed<matrix_elems<const double>>& src1, const matrix_elems<const double>& src2, const matrix_elems<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tm_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnSub_tma_32f
inline std::error_code sub(const transposed<matrix<const float>>& src1, const matrix_array<const float>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tma_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tma_32f_L
inline std::error_code sub(const transposed<matrix<const float>>& src1, const matrix_table<const float>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tma_32f_L(src1.ptr, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tma_32f_P
inline std::error_code sub(const transposed<matrix_elems<const float>>& src1, const matrix_elems_array<const float>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tma_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_tma_64f
inline std::error_code sub(const transposed<matrix<const double>>& src1, const matrix_array<const double>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tma_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tma_64f_L
inline std::error_code sub(const transposed<matrix<const double>>& src1, const matrix_table<const double>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tma_64f_L(src1.ptr, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tma_64f_P
inline std::error_code sub(const transposed<matrix_elems<const double>>& src1, const matrix_elems_array<const double>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == height &&
        src2.cols == width &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tma_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_tt_32f
inline std::error_code sub(const transposed<matrix<const float>>& src1, const transposed<matrix<const float>>& src2, const matrix<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tt_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnSub_tt_32f_P
inline std::error_code sub(const transposed<matrix_elems<const float>>& src1, const transposed<matrix_elems<const float>>& src2, const matrix_elems<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tt_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnSub_tt_64f
inline std::error_code sub(const transposed<matrix<const double>>& src1, const transposed<matrix<const double>>& src2, const matrix<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tt_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.row, src2.elem, dst.ptr, dst.row, dst.elem, width, height));
}
/// tarnSub_tt_64f_P
inline std::error_code sub(const transposed<matrix_elems<const double>>& src1, const transposed<matrix_elems<const double>>& src2, const matrix_elems<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tt_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, width, height));
}
/// tarnSub_tta_32f
inline std::error_code sub(const transposed<matrix<const float>>& src1, const transposed<matrix_array<const float>>& src2, const matrix_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tta_32f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tta_32f_L
inline std::error_code sub(const transposed<matrix<const float>>& src1, const transposed<matrix_table<const float>>& src2, const matrix_table<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tta_32f_L(src1.ptr, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tta_32f_P
inline std::error_code sub(const transposed<matrix_elems<const float>>& src1, const transposed<matrix_elems_array<const float>>& src2, const matrix_elems_array<float>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tta_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_tta_64f
inline std::error_code sub(const transposed<matrix<const double>>& src1, const transposed<matrix_array<const double>>& src2, const matrix_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tta_64f(src1.ptr, src1.row, src1.elem, src2.ptr, src2.obj, src2.row, src2.elem, dst.ptr, dst.obj, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tta_64f_L
inline std::error_code sub(const transposed<matrix<const double>>& src1, const transposed<matrix_table<const double>>& src2, const matrix_table<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tta_64f_L(src1.ptr, src1.row, src1.elem, src2.ptr, src2.roi, src2.row, src2.elem, dst.ptr, dst.roi, dst.row, dst.elem, width, height, count));
}
/// tarnSub_tta_64f_P
inline std::error_code sub(const transposed<matrix_elems<const double>>& src1, const transposed<matrix_elems_array<const double>>& src2, const matrix_elems_array<double>& dst) {
  const int32_t width = src1.rows;
  const int32_t height = src1.cols;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.rows == width &&
        src2.cols == height &&
        dst.rows == height &&
        dst.cols == width))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_tta_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, width, height, count));
}
/// tarnSub_vac_32f
inline std::error_code sub(const vector_array<const float>& src, float val, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vac_32f(src.ptr, src.obj, src.elem, val, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_vac_32f_L
inline std::error_code sub(const vector_table<const float>& src, float val, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vac_32f_L(src.ptr, src.roi, src.elem, val, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_vac_32f_P
inline std::error_code sub(const vector_elems_array<const float>& src, float val, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vac_32f_P(src.ptr, src.roi, src.obj, val, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_vac_64f
inline std::error_code sub(const vector_array<const double>& src, double val, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vac_64f(src.ptr, src.obj, src.elem, val, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_vac_64f_L
inline std::error_code sub(const vector_table<const double>& src, double val, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vac_64f_L(src.ptr, src.roi, src.elem, val, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_vac_64f_P
inline std::error_code sub(const vector_elems_array<const double>& src, double val, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vac_64f_P(src.ptr, src.roi, src.obj, val, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_vaca_32f
inline std::error_code sub(const vector_array<const float>& src, const constant_array<const float>& val, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vaca_32f(src.ptr, src.obj, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_vaca_32f_L
inline std::error_code sub(const vector_table<const float>& src, const constant_table<const float>& val, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vaca_32f_L(src.ptr, src.roi, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_vaca_32f_P
inline std::error_code sub(const vector_elems_array<const float>& src, const constant_array<const float>& val, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vaca_32f_P(src.ptr, src.roi, src.obj, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_vaca_64f
inline std::error_code sub(const vector_array<const double>& src, const constant_array<const double>& val, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vaca_64f(src.ptr, src.obj, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_vaca_64f_L
inline std::error_code sub(const vector_table<const double>& src, const constant_table<const double>& val, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vaca_64f_L(src.ptr, src.roi, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_vaca_64f_P
inline std::error_code sub(const vector_elems_array<const double>& src, const constant_array<const double>& val, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(val.count == count &&
        dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vaca_64f_P(src.ptr, src.roi, src.obj, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_vav_32f
inline std::error_code sub(const vector_array<const float>& src1, const vector<const float>& src2, const vector_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vav_32f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_vav_32f_L
inline std::error_code sub(const vector_table<const float>& src1, const vector<const float>& src2, const vector_table<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vav_32f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_vav_32f_P
inline std::error_code sub(const vector_elems_array<const float>& src1, const vector_elems<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vav_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_vav_64f
inline std::error_code sub(const vector_array<const double>& src1, const vector<const double>& src2, const vector_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vav_64f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_vav_64f_L
inline std::error_code sub(const vector_table<const double>& src1, const vector<const double>& src2, const vector_table<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vav_64f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_vav_64f_P
inline std::error_code sub(const vector_elems_array<const double>& src1, const vector_elems<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vav_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_vava_32f
inline std::error_code sub(const vector_array<const float>& src1, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vava_32f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_vava_32f_L
inline std::error_code sub(const vector_table<const float>& src1, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vava_32f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_vava_32f_P
inline std::error_code sub(const vector_elems_array<const float>& src1, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vava_32f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_vava_64f
inline std::error_code sub(const vector_array<const double>& src1, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vava_64f(src1.ptr, src1.obj, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_vava_64f_L
inline std::error_code sub(const vector_table<const double>& src1, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vava_64f_L(src1.ptr, src1.roi, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_vava_64f_P
inline std::error_code sub(const vector_elems_array<const double>& src1, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(src2.count == count &&
        dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vava_64f_P(src1.ptr, src1.roi, src1.obj, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_vc_32f
inline std::error_code sub(const vector<const float>& src, float val, const vector<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vc_32f(src.ptr, src.elem, val, dst.ptr, dst.elem, len));
}
/// tarnSub_vc_32f_P
inline std::error_code sub(const vector_elems<const float>& src, float val, const vector_elems<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vc_32f_P(src.ptr, src.roi, val, dst.ptr, dst.roi, len));
}
/// tarnSub_vc_64f
inline std::error_code sub(const vector<const double>& src, double val, const vector<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vc_64f(src.ptr, src.elem, val, dst.ptr, dst.elem, len));
}
/// tarnSub_vc_64f_P
inline std::error_code sub(const vector_elems<const double>& src, double val, const vector_elems<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vc_64f_P(src.ptr, src.roi, val, dst.ptr, dst.roi, len));
}
/// tarnSub_vca_32f
inline std::error_code sub(const vector<const float>& src, const constant_array<const float>& val, const vector_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vca_32f(src.ptr, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_vca_32f_L
inline std::error_code sub(const vector<const float>& src, const constant_table<const float>& val, const vector_table<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vca_32f_L(src.ptr, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_vca_32f_P
inline std::error_code sub(const vector_elems<const float>& src, const constant_array<const float>& val, const vector_elems_array<float>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vca_32f_P(src.ptr, src.roi, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_vca_64f
inline std::error_code sub(const vector<const double>& src, const constant_array<const double>& val, const vector_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vca_64f(src.ptr, src.elem, val.ptr, val.obj, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_vca_64f_L
inline std::error_code sub(const vector<const double>& src, const constant_table<const double>& val, const vector_table<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vca_64f_L(src.ptr, src.elem, val.ptr, val.roi, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_vca_64f_P
inline std::error_code sub(const vector_elems<const double>& src, const constant_array<const double>& val, const vector_elems_array<double>& dst) {
  const int32_t len = src.len;
  [[maybe_unused]] const int32_t count = val.count;
  if (!(dst.count == count &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vca_64f_P(src.ptr, src.roi, val.ptr, val.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_vv_32f
inline std::error_code sub(const vector<const float>& src1, const vector<const float>& src2, const vector<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vv_32f(src1.ptr, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.elem, len));
}
/// tarnSub_vv_32f_P
inline std::error_code sub(const vector_elems<const float>& src1, const vector_elems<const float>& src2, const vector_elems<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vv_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, len));
}
/// tarnSub_vv_64f
inline std::error_code sub(const vector<const double>& src1, const vector<const double>& src2, const vector<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vv_64f(src1.ptr, src1.elem, src2.ptr, src2.elem, dst.ptr, dst.elem, len));
}
/// tarnSub_vv_64f_P
inline std::error_code sub(const vector_elems<const double>& src1, const vector_elems<const double>& src2, const vector_elems<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vv_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, dst.ptr, dst.roi, len));
}
/// tarnSub_vva_32f
inline std::error_code sub(const vector<const float>& src1, const vector_array<const float>& src2, const vector_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vva_32f(src1.ptr, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_vva_32f_L
inline std::error_code sub(const vector<const float>& src1, const vector_table<const float>& src2, const vector_table<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vva_32f_L(src1.ptr, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_vva_32f_P
inline std::error_code sub(const vector_elems<const float>& src1, const vector_elems_array<const float>& src2, const vector_elems_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vva_32f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnSub_vva_64f
inline std::error_code sub(const vector<const double>& src1, const vector_array<const double>& src2, const vector_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vva_64f(src1.ptr, src1.elem, src2.ptr, src2.obj, src2.elem, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnSub_vva_64f_L
inline std::error_code sub(const vector<const double>& src1, const vector_table<const double>& src2, const vector_table<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vva_64f_L(src1.ptr, src1.elem, src2.ptr, src2.roi, src2.elem, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnSub_vva_64f_P
inline std::error_code sub(const vector_elems<const double>& src1, const vector_elems_array<const double>& src2, const vector_elems_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src2.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnSub_vva_64f_P(src1.ptr, src1.roi, src2.ptr, src2.roi, src2.obj, dst.ptr, dst.roi, dst.obj, len, count));
}

// Trace: dst = the sum of the diagonal elements of each square matrix, diagonal element 0 first.
/// tarnTrace_m_32f
inline std::error_code trace(const matrix<const float>& src, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTrace_m_32f(src.ptr, src.row, src.elem, widthHeight, dst.data()));
}
/// tarnTrace_m_32f_P
inline std::error_code trace(const matrix_elems<const float>& src, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTrace_m_32f_P(src.ptr, src.roi, widthHeight, dst.data()));
}
/// tarnTrace_m_64f
inline std::error_code trace(const matrix<const double>& src, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTrace_m_64f(src.ptr, src.row, src.elem, widthHeight, dst.data()));
}
/// tarnTrace_m_64f_P
inline std::error_code trace(const matrix_elems<const double>& src, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src.cols == widthHeight &&
        dst.size() >= size_t(1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTrace_m_64f_P(src.ptr, src.roi, widthHeight, dst.data()));
}
/// tarnTrace_ma_32f
inline std::error_code trace(const matrix_array<const float>& src, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTrace_ma_32f(src.ptr, src.obj, src.row, src.elem, widthHeight, dst.data(), count));
}
/// tarnTrace_ma_32f_L
inline std::error_code trace(const matrix_table<const float>& src, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTrace_ma_32f_L(src.ptr, src.roi, src.row, src.elem, widthHeight, dst.data(), count));
}
/// tarnTrace_ma_32f_P
inline std::error_code trace(const matrix_elems_array<const float>& src, const std::span<float>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTrace_ma_32f_P(src.ptr, src.roi, src.obj, widthHeight, dst.data(), count));
}
/// tarnTrace_ma_64f
inline std::error_code trace(const matrix_array<const double>& src, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTrace_ma_64f(src.ptr, src.obj, src.row, src.elem, widthHeight, dst.data(), count));
}
/// tarnTrace_ma_64f_L
inline std::error_code trace(const matrix_table<const double>& src, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTrace_ma_64f_L(src.ptr, src.roi, src.row, src.elem, widthHeight, dst.data(), count));
}
/// tarnTrace_ma_64f_P
inline std::error_code trace(const matrix_elems_array<const double>& src, const std::span<double>& dst) {
  const int32_t widthHeight = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(src.cols == widthHeight &&
        dst.size() >= size_t(count * 1)))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTrace_ma_64f_P(src.ptr, src.roi, src.obj, widthHeight, dst.data(), count));
}

// Transpose: Writes the transpose of each matrix: dst has width rows and height columns.
/// tarnTranspose_m_32f
inline std::error_code transpose(const matrix<const float>& src, const matrix<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == width &&
        dst.cols == height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTranspose_m_32f(src.ptr, src.row, src.elem, width, height, dst.ptr, dst.row, dst.elem));
}
/// tarnTranspose_m_32f_P
inline std::error_code transpose(const matrix_elems<const float>& src, const matrix_elems<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == width &&
        dst.cols == height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTranspose_m_32f_P(src.ptr, src.roi, width, height, dst.ptr, dst.roi));
}
/// tarnTranspose_m_64f
inline std::error_code transpose(const matrix<const double>& src, const matrix<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == width &&
        dst.cols == height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTranspose_m_64f(src.ptr, src.row, src.elem, width, height, dst.ptr, dst.row, dst.elem));
}
/// tarnTranspose_m_64f_P
inline std::error_code transpose(const matrix_elems<const double>& src, const matrix_elems<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = 1;
  if (!(dst.rows == width &&
        dst.cols == height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTranspose_m_64f_P(src.ptr, src.roi, width, height, dst.ptr, dst.roi));
}
/// tarnTranspose_ma_32f
inline std::error_code transpose(const matrix_array<const float>& src, const matrix_array<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == width &&
        dst.cols == height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTranspose_ma_32f(src.ptr, src.obj, src.row, src.elem, width, height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnTranspose_ma_32f_L
inline std::error_code transpose(const matrix_table<const float>& src, const matrix_table<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == width &&
        dst.cols == height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTranspose_ma_32f_L(src.ptr, src.roi, src.row, src.elem, width, height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnTranspose_ma_32f_P
inline std::error_code transpose(const matrix_elems_array<const float>& src, const matrix_elems_array<float>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == width &&
        dst.cols == height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTranspose_ma_32f_P(src.ptr, src.roi, src.obj, width, height, dst.ptr, dst.roi, dst.obj, count));
}
/// tarnTranspose_ma_64f
inline std::error_code transpose(const matrix_array<const double>& src, const matrix_array<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == width &&
        dst.cols == height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTranspose_ma_64f(src.ptr, src.obj, src.row, src.elem, width, height, dst.ptr, dst.obj, dst.row, dst.elem, count));
}
/// tarnTranspose_ma_64f_L
inline std::error_code transpose(const matrix_table<const double>& src, const matrix_table<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == width &&
        dst.cols == height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTranspose_ma_64f_L(src.ptr, src.roi, src.row, src.elem, width, height, dst.ptr, dst.roi, dst.row, dst.elem, count));
}
/// tarnTranspose_ma_64f_P
inline std::error_code transpose(const matrix_elems_array<const double>& src, const matrix_elems_array<double>& dst) {
  const int32_t width = src.cols;
  const int32_t height = src.rows;
  [[maybe_unused]] const int32_t count = src.count;
  if (!(dst.count == count &&
        dst.rows == width &&
        dst.cols == height))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnTranspose_ma_64f_P(src.ptr, src.roi, src.obj, width, height, dst.ptr, dst.roi, dst.obj, count));
}

// Fixed-size members: their C parameter lists, named family_pattern.
inline std::error_code add_v2(const float* src1, const float* src2, float* dst) { return detail::status(::tarnAdd_v2_32f(src1, src2, dst)); }
inline std::error_code add_v3(const float* src1, const float* src2, float* dst) { return detail::status(::tarnAdd_v3_32f(src1, src2, dst)); }
inline std::error_code add_v4(const float* src1, const float* src2, float* dst) { return detail::status(::tarnAdd_v4_32f(src1, src2, dst)); }
inline std::error_code affine_transform_coord_m4v2(const float* matrix, const float* src, float* dst) { return detail::status(::tarnAffineTransformCoord_m4v2_32f(matrix, src, dst)); }
inline std::error_code affine_transform_coord_m4v2a(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count) { return detail::status(::tarnAffineTransformCoord_m4v2a_32f(matrix, src, srcStride, dst, dstStride, count)); }
inline std::error_code affine_transform_coord_m4v3(const float* matrix, const float* src, float* dst) { return detail::status(::tarnAffineTransformCoord_m4v3_32f(matrix, src, dst)); }
inline std::error_code affine_transform_coord_m4v3a(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count) { return detail::status(::tarnAffineTransformCoord_m4v3a_32f(matrix, src, srcStride, dst, dstStride, count)); }
inline std::error_code affine_transform_normal_m4v2(const float* matrix, const float* src, float* dst) { return detail::status(::tarnAffineTransformNormal_m4v2_32f(matrix, src, dst)); }
inline std::error_code affine_transform_normal_m4v2a(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count) { return detail::status(::tarnAffineTransformNormal_m4v2a_32f(matrix, src, srcStride, dst, dstStride, count)); }
inline std::error_code affine_transform_normal_m4v3(const float* matrix, const float* src, float* dst) { return detail::status(::tarnAffineTransformNormal_m4v3_32f(matrix, src, dst)); }
inline std::error_code affine_transform_normal_m4v3a(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count) { return detail::status(::tarnAffineTransformNormal_m4v3a_32f(matrix, src, srcStride, dst, dstStride, count)); }
inline std::error_code affine_transform_m4v2(const float* matrix, const float* src, float* dst) { return detail::status(::tarnAffineTransform_m4v2_32f(matrix, src, dst)); }
inline std::error_code affine_transform_m4v2a(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count) { return detail::status(::tarnAffineTransform_m4v2a_32f(matrix, src, srcStride, dst, dstStride, count)); }
inline std::error_code affine_transform_m4v3(const float* matrix, const float* src, float* dst) { return detail::status(::tarnAffineTransform_m4v3_32f(matrix, src, dst)); }
inline std::error_code affine_transform_m4v3a(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count) { return detail::status(::tarnAffineTransform_m4v3a_32f(matrix, src, srcStride, dst, dstStride, count)); }
inline std::error_code affine_transform_m4v4(const float* matrix, const float* src, float* dst) { return detail::status(::tarnAffineTransform_m4v4_32f(matrix, src, dst)); }
inline std::error_code affine_transform_m4v4a(const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count) { return detail::status(::tarnAffineTransform_m4v4a_32f(matrix, src, srcStride, dst, dstStride, count)); }
inline std::error_code barycentric_v2(const float* src1, const float* src2, const float* src3, float f, float g, float* dst) { return detail::status(::tarnBaryCentric_v2_32f(src1, src2, src3, f, g, dst)); }
inline std::error_code barycentric_v3(const float* src1, const float* src2, const float* src3, float f, float g, float* dst) { return detail::status(::tarnBaryCentric_v3_32f(src1, src2, src3, f, g, dst)); }
inline std::error_code barycentric_v4(const float* src1, const float* src2, const float* src3, float f, float g, float* dst) { return detail::status(::tarnBaryCentric_v4_32f(src1, src2, src3, f, g, dst)); }
inline std::error_code cross_product_v2(const float* src1, const float* src2, float* dst) { return detail::status(::tarnCrossProduct_v2_32f(src1, src2, dst)); }
inline std::error_code cross_product_v3(const float* src1, const float* src2, float* dst) { return detail::status(::tarnCrossProduct_v3_32f(src1, src2, dst)); }
inline std::error_code cross_product_v4(const float* src1, const float* src2, const float* src3, float* dst) { return detail::status(::tarnCrossProduct_v4_32f(src1, src2, src3, dst)); }
inline std::error_code det_m4(const float* src, float* dst) { return detail::status(::tarnDet_m4_32f(src, dst)); }
inline std::error_code dot_product_v2(const float* src1, const float* src2, float* dst) { return detail::status(::tarnDotProduct_v2_32f(src1, src2, dst)); }
inline std::error_code dot_product_v3(const float* src1, const float* src2, float* dst) { return detail::status(::tarnDotProduct_v3_32f(src1, src2, dst)); }
inline std::error_code dot_product_v4(const float* src1, const float* src2, float* dst) { return detail::status(::tarnDotProduct_v4_32f(src1, src2, dst)); }
inline std::error_code hermite_v2(const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst) { return detail::status(::tarnHermite_v2_32f(src1, src2, src3, src4, s, dst)); }
inline std::error_code hermite_v3(const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst) { return detail::status(::tarnHermite_v3_32f(src1, src2, src3, src4, s, dst)); }
inline std::error_code hermite_v4(const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst) { return detail::status(::tarnHermite_v4_32f(src1, src2, src3, src4, s, dst)); }
inline std::error_code identity_m4(float* dst) { return detail::status(::tarnIdentity_m4_32f(dst)); }
inline std::error_code interpolation_catmull_rom_v2(const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst) { return detail::status(::tarnInterpolationCatmullRom_v2_32f(src1, src2, src3, src4, s, dst)); }
inline std::error_code interpolation_catmull_rom_v3(const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst) { return detail::status(::tarnInterpolationCatmullRom_v3_32f(src1, src2, src3, src4, s, dst)); }
inline std::error_code interpolation_catmull_rom_v4(const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst) { return detail::status(::tarnInterpolationCatmullRom_v4_32f(src1, src2, src3, src4, s, dst)); }
inline std::error_code interpolation_linear_v2(const float* src1, const float* src2, float s, float* dst) { return detail::status(::tarnInterpolationLinear_v2_32f(src1, src2, s, dst)); }
inline std::error_code interpolation_linear_v3(const float* src1, const float* src2, float s, float* dst) { return detail::status(::tarnInterpolationLinear_v3_32f(src1, src2, s, dst)); }
inline std::error_code interpolation_linear_v4(const float* src1, const float* src2, float s, float* dst) { return detail::status(::tarnInterpolationLinear_v4_32f(src1, src2, s, dst)); }
inline std::error_code invert_m4(const float* src, float* det, float* dst) { return detail::status(::tarnInvert_m4_32f(src, det, dst)); }
inline std::error_code is_identity_m4(const float* src, int32_t* result) { return detail::status(::tarnIsIdentity_m4_32f(src, result)); }
inline std::error_code len_sqr_v2(const float* src, float* dst) { return detail::status(::tarnLenSqr_v2_32f(src, dst)); }
inline std::error_code len_sqr_v3(const float* src, float* dst) { return detail::status(::tarnLenSqr_v3_32f(src, dst)); }
inline std::error_code len_sqr_v4(const float* src, float* dst) { return detail::status(::tarnLenSqr_v4_32f(src, dst)); }
inline std::error_code len_v2(const float* src, float* dst) { return detail::status(::tarnLen_v2_32f(src, dst)); }
inline std::error_code len_v3(const float* src, float* dst) { return detail::status(::tarnLen_v3_32f(src, dst)); }
inline std::error_code len_v4(const float* src, float* dst) { return detail::status(::tarnLen_v4_32f(src, dst)); }
inline std::error_code look_at_lh_m4(const float* eye, const float* at, const float* up, float* dst) { return detail::status(::tarnLookAtLH_m4_32f(eye, at, up, dst)); }
inline std::error_code look_at_rh_m4(const float* eye, const float* at, const float* up, float* dst) { return detail::status(::tarnLookAtRH_m4_32f(eye, at, up, dst)); }
inline std::error_code max_v2(const float* src1, const float* src2, float* dst) { return detail::status(::tarnMax_v2_32f(src1, src2, dst)); }
inline std::error_code max_v3(const float* src1, const float* src2, float* dst) { return detail::status(::tarnMax_v3_32f(src1, src2, dst)); }
inline std::error_code max_v4(const float* src1, const float* src2, float* dst) { return detail::status(::tarnMax_v4_32f(src1, src2, dst)); }
inline std::error_code min_v2(const float* src1, const float* src2, float* dst) { return detail::status(::tarnMin_v2_32f(src1, src2, dst)); }
inline std::error_code min_v3(const float* src1, const float* src2, float* dst) { return detail::status(::tarnMin_v3_32f(src1, src2, dst)); }
inline std::error_code min_v4(const float* src1, const float* src2, float* dst) { return detail::status(::tarnMin_v4_32f(src1, src2, dst)); }
inline std::error_code mul_c_v2(const float* src, float c, float* dst) { return detail::status(::tarnMulC_v2_32f(src, c, dst)); }
inline std::error_code mul_c_v3(const float* src, float c, float* dst) { return detail::status(::tarnMulC_v3_32f(src, c, dst)); }
inline std::error_code mul_c_v4(const float* src, float c, float* dst) { return detail::status(::tarnMulC_v4_32f(src, c, dst)); }
inline std::error_code mul_transpose_m4(const float* src1, const float* src2, float* dst) { return detail::status(::tarnMulTranspose_m4_32f(src1, src2, dst)); }
inline std::error_code mul_mm4x4(const float* src1, const float* src2, float* dst) { return detail::status(::tarnMul_mm4x4_32f(src1, src2, dst)); }
inline std::error_code normalize_v2(const float* src, float* dst) { return detail::status(::tarnNormalize_v2_32f(src, dst)); }
inline std::error_code normalize_v3(const float* src, float* dst) { return detail::status(::tarnNormalize_v3_32f(src, dst)); }
inline std::error_code normalize_v4(const float* src, float* dst) { return detail::status(::tarnNormalize_v4_32f(src, dst)); }
inline std::error_code ortho_lh_m4(float viewWidth, float viewHeight, float zNear, float zFar, float* dst) { return detail::status(::tarnOrthoLH_m4_32f(viewWidth, viewHeight, zNear, zFar, dst)); }
inline std::error_code ortho_off_center_lh_m4(float left, float right, float bottom, float top, float zNear, float zFar, float* dst) { return detail::status(::tarnOrthoOffCenterLH_m4_32f(left, right, bottom, top, zNear, zFar, dst)); }
inline std::error_code ortho_off_center_rh_m4(float left, float right, float bottom, float top, float zNear, float zFar, float* dst) { return detail::status(::tarnOrthoOffCenterRH_m4_32f(left, right, bottom, top, zNear, zFar, dst)); }
inline std::error_code ortho_rh_m4(float viewWidth, float viewHeight, float zNear, float zFar, float* dst) { return detail::status(::tarnOrthoRH_m4_32f(viewWidth, viewHeight, zNear, zFar, dst)); }
inline std::error_code perspective_fov_lh_m4(float fovY, float aspect, float zNear, float zFar, float* dst) { return detail::status(::tarnPerspectiveFovLH_m4_32f(fovY, aspect, zNear, zFar, dst)); }
inline std::error_code perspective_fov_rh_m4(float fovY, float aspect, float zNear, float zFar, float* dst) { return detail::status(::tarnPerspectiveFovRH_m4_32f(fovY, aspect, zNear, zFar, dst)); }
inline std::error_code perspective_lh_m4(float viewWidth, float viewHeight, float zNear, float zFar, float* dst) { return detail::status(::tarnPerspectiveLH_m4_32f(viewWidth, viewHeight, zNear, zFar, dst)); }
inline std::error_code perspective_off_center_lh_m4(float left, float right, float bottom, float top, float zNear, float zFar, float* dst) { return detail::status(::tarnPerspectiveOffCenterLH_m4_32f(left, right, bottom, top, zNear, zFar, dst)); }
inline std::error_code perspective_off_center_rh_m4(float left, float right, float bottom, float top, float zNear, float zFar, float* dst) { return detail::status(::tarnPerspectiveOffCenterRH_m4_32f(left, right, bottom, top, zNear, zFar, dst)); }
inline std::error_code perspective_rh_m4(float viewWidth, float viewHeight, float zNear, float zFar, float* dst) { return detail::status(::tarnPerspectiveRH_m4_32f(viewWidth, viewHeight, zNear, zFar, dst)); }
inline std::error_code project_m4v3(const float* projection, const float* view, const float* world, const float* src, float viewportWidth, float viewportHeight, float minZ, float maxZ, float* dst) { return detail::status(::tarnProject_m4v3_32f(projection, view, world, src, viewportWidth, viewportHeight, minZ, maxZ, dst)); }
inline std::error_code project_m4v3a(const float* projection, const float* view, const float* world, const float* src, int32_t srcStride, float viewportWidth, float viewportHeight, float minZ, float maxZ, float* dst, int32_t dstStride, int32_t count) { return detail::status(::tarnProject_m4v3a_32f(projection, view, world, src, srcStride, viewportWidth, viewportHeight, minZ, maxZ, dst, dstStride, count)); }
inline std::error_code rotation_axis_v3m4(const float* axis, float angle, float* dst) { return detail::status(::tarnRotationAxis_v3m4_32f(axis, angle, dst)); }
inline std::error_code rotation_x_m4(float angle, float* dst) { return detail::status(::tarnRotationX_m4_32f(angle, dst)); }
inline std::error_code rotation_y_m4(float angle, float* dst) { return detail::status(::tarnRotationY_m4_32f(angle, dst)); }
inline std::error_code rotation_yaw_pitch_roll_m4(float yaw, float pitch, float roll, float* dst) { return detail::status(::tarnRotationYawPitchRoll_m4_32f(yaw, pitch, roll, dst)); }
inline std::error_code rotation_z_m4(float angle, float* dst) { return detail::status(::tarnRotationZ_m4_32f(angle, dst)); }
inline std::error_code scaling_m4(float sx, float sy, float sz, float* dst) { return detail::status(::tarnScaling_m4_32f(sx, sy, sz, dst)); }
inline std::error_code sub_v2(const float* src1, const float* src2, float* dst) { return detail::status(::tarnSub_v2_32f(src1, src2, dst)); }
inline std::error_code sub_v3(const float* src1, const float* src2, float* dst) { return detail::status(::tarnSub_v3_32f(src1, src2, dst)); }
inline std::error_code sub_v4(const float* src1, const float* src2, float* dst) { return detail::status(::tarnSub_v4_32f(src1, src2, dst)); }
inline std::error_code translation_m4(float tx, float ty, float tz, float* dst) { return detail::status(::tarnTranslation_m4_32f(tx, ty, tz, dst)); }
inline std::error_code transpose_m4(const float* src, float* dst) { return detail::status(::tarnTranspose_m4_32f(src, dst)); }
inline std::error_code unproject_m4v3(const float* projection, const float* view, const float* world, const float* src, float viewportWidth, float viewportHeight, float minZ, float maxZ, float* dst) { return detail::status(::tarnUnproject_m4v3_32f(projection, view, world, src, viewportWidth, viewportHeight, minZ, maxZ, dst)); }
inline std::error_code unproject_m4v3a(const float* projection, const float* view, const float* world, const float* src, int32_t srcStride, float viewportWidth, float viewportHeight, float minZ, float maxZ, float* dst, int32_t dstStride, int32_t count) { return detail::status(::tarnUnproject_m4v3a_32f(projection, view, world, src, srcStride, viewportWidth, viewportHeight, minZ, maxZ, dst, dstStride, count)); }

// Fixed-size members, typed: objects as spans of their length, named after the family.
/// tarnAdd_v2_32f
inline std::error_code add(std::span<const float, 2> src1, std::span<const float, 2> src2, std::span<float, 2> dst) { return detail::status(::tarnAdd_v2_32f(src1.data(), src2.data(), dst.data())); }
/// tarnAdd_v3_32f
inline std::error_code add(std::span<const float, 3> src1, std::span<const float, 3> src2, std::span<float, 3> dst) { return detail::status(::tarnAdd_v3_32f(src1.data(), src2.data(), dst.data())); }
/// tarnAdd_v4_32f
inline std::error_code add(std::span<const float, 4> src1, std::span<const float, 4> src2, std::span<float, 4> dst) { return detail::status(::tarnAdd_v4_32f(src1.data(), src2.data(), dst.data())); }
/// tarnAffineTransformCoord_m4v2_32f
inline std::error_code affine_transform_coord(std::span<const float, 16> matrix, std::span<const float, 2> src, std::span<float, 2> dst) { return detail::status(::tarnAffineTransformCoord_m4v2_32f(matrix.data(), src.data(), dst.data())); }
/// tarnAffineTransformCoord_m4v3_32f
inline std::error_code affine_transform_coord(std::span<const float, 16> matrix, std::span<const float, 3> src, std::span<float, 3> dst) { return detail::status(::tarnAffineTransformCoord_m4v3_32f(matrix.data(), src.data(), dst.data())); }
/// tarnAffineTransformNormal_m4v2_32f
inline std::error_code affine_transform_normal(std::span<const float, 16> matrix, std::span<const float, 2> src, std::span<float, 2> dst) { return detail::status(::tarnAffineTransformNormal_m4v2_32f(matrix.data(), src.data(), dst.data())); }
/// tarnAffineTransformNormal_m4v3_32f
inline std::error_code affine_transform_normal(std::span<const float, 16> matrix, std::span<const float, 3> src, std::span<float, 3> dst) { return detail::status(::tarnAffineTransformNormal_m4v3_32f(matrix.data(), src.data(), dst.data())); }
/// tarnAffineTransform_m4v2_32f
inline std::error_code affine_transform(std::span<const float, 16> matrix, std::span<const float, 2> src, std::span<float, 4> dst) { return detail::status(::tarnAffineTransform_m4v2_32f(matrix.data(), src.data(), dst.data())); }
/// tarnAffineTransform_m4v3_32f
inline std::error_code affine_transform(std::span<const float, 16> matrix, std::span<const float, 3> src, std::span<float, 4> dst) { return detail::status(::tarnAffineTransform_m4v3_32f(matrix.data(), src.data(), dst.data())); }
/// tarnAffineTransform_m4v4_32f
inline std::error_code affine_transform(std::span<const float, 16> matrix, std::span<const float, 4> src, std::span<float, 4> dst) { return detail::status(::tarnAffineTransform_m4v4_32f(matrix.data(), src.data(), dst.data())); }
/// tarnBaryCentric_v2_32f
inline std::error_code barycentric(std::span<const float, 2> src1, std::span<const float, 2> src2, std::span<const float, 2> src3, float f, float g, std::span<float, 2> dst) { return detail::status(::tarnBaryCentric_v2_32f(src1.data(), src2.data(), src3.data(), f, g, dst.data())); }
/// tarnBaryCentric_v3_32f
inline std::error_code barycentric(std::span<const float, 3> src1, std::span<const float, 3> src2, std::span<const float, 3> src3, float f, float g, std::span<float, 3> dst) { return detail::status(::tarnBaryCentric_v3_32f(src1.data(), src2.data(), src3.data(), f, g, dst.data())); }
/// tarnBaryCentric_v4_32f
inline std::error_code barycentric(std::span<const float, 4> src1, std::span<const float, 4> src2, std::span<const float, 4> src3, float f, float g, std::span<float, 4> dst) { return detail::status(::tarnBaryCentric_v4_32f(src1.data(), src2.data(), src3.data(), f, g, dst.data())); }
/// tarnCrossProduct_v2_32f
inline std::error_code cross_product(std::span<const float, 2> src1, std::span<const float, 2> src2, float& dst) { return detail::status(::tarnCrossProduct_v2_32f(src1.data(), src2.data(), &dst)); }
/// tarnCrossProduct_v3_32f
inline std::error_code cross_product(std::span<const float, 3> src1, std::span<const float, 3> src2, std::span<float, 3> dst) { return detail::status(::tarnCrossProduct_v3_32f(src1.data(), src2.data(), dst.data())); }
/// tarnCrossProduct_v4_32f
inline std::error_code cross_product(std::span<const float, 4> src1, std::span<const float, 4> src2, std::span<const float, 4> src3, std::span<float, 4> dst) { return detail::status(::tarnCrossProduct_v4_32f(src1.data(), src2.data(), src3.data(), dst.data())); }
/// tarnDet_m4_32f
inline std::error_code det(std::span<const float, 16> src, float& dst) { return detail::status(::tarnDet_m4_32f(src.data(), &dst)); }
/// tarnDotProduct_v2_32f
inline std::error_code dot_product(std::span<const float, 2> src1, std::span<const float, 2> src2, float& dst) { return detail::status(::tarnDotProduct_v2_32f(src1.data(), src2.data(), &dst)); }
/// tarnDotProduct_v3_32f
inline std::error_code dot_product(std::span<const float, 3> src1, std::span<const float, 3> src2, float& dst) { return detail::status(::tarnDotProduct_v3_32f(src1.data(), src2.data(), &dst)); }
/// tarnDotProduct_v4_32f
inline std::error_code dot_product(std::span<const float, 4> src1, std::span<const float, 4> src2, float& dst) { return detail::status(::tarnDotProduct_v4_32f(src1.data(), src2.data(), &dst)); }
/// tarnHermite_v2_32f
inline std::error_code hermite(std::span<const float, 2> src1, std::span<const float, 2> src2, std::span<const float, 2> src3, std::span<const float, 2> src4, float s, std::span<float, 2> dst) { return detail::status(::tarnHermite_v2_32f(src1.data(), src2.data(), src3.data(), src4.data(), s, dst.data())); }
/// tarnHermite_v3_32f
inline std::error_code hermite(std::span<const float, 3> src1, std::span<const float, 3> src2, std::span<const float, 3> src3, std::span<const float, 3> src4, float s, std::span<float, 3> dst) { return detail::status(::tarnHermite_v3_32f(src1.data(), src2.data(), src3.data(), src4.data(), s, dst.data())); }
/// tarnHermite_v4_32f
inline std::error_code hermite(std::span<const float, 4> src1, std::span<const float, 4> src2, std::span<const float, 4> src3, std::span<const float, 4> src4, float s, std::span<float, 4> dst) { return detail::status(::tarnHermite_v4_32f(src1.data(), src2.data(), src3.data(), src4.data(), s, dst.data())); }
/// tarnIdentity_m4_32f
inline std::error_code identity(std::span<float, 16> dst) { return detail::status(::tarnIdentity_m4_32f(dst.data())); }
/// tarnInterpolationCatmullRom_v2_32f
inline std::error_code interpolation_catmull_rom(std::span<const float, 2> src1, std::span<const float, 2> src2, std::span<const float, 2> src3, std::span<const float, 2> src4, float s, std::span<float, 2> dst) { return detail::status(::tarnInterpolationCatmullRom_v2_32f(src1.data(), src2.data(), src3.data(), src4.data(), s, dst.data())); }
/// tarnInterpolationCatmullRom_v3_32f
inline std::error_code interpolation_catmull_rom(std::span<const float, 3> src1, std::span<const float, 3> src2, std::span<const float, 3> src3, std::span<const float, 3> src4, float s, std::span<float, 3> dst) { return detail::status(::tarnInterpolationCatmullRom_v3_32f(src1.data(), src2.data(), src3.data(), src4.data(), s, dst.data())); }
/// tarnInterpolationCatmullRom_v4_32f
inline std::error_code interpolation_catmull_rom(std::span<const float, 4> src1, std::span<const float, 4> src2, std::span<const float, 4> src3, std::span<const float, 4> src4, float s, std::span<float, 4> dst) { return detail::status(::tarnInterpolationCatmullRom_v4_32f(src1.data(), src2.data(), src3.data(), src4.data(), s, dst.data())); }
/// tarnInterpolationLinear_v2_32f
inline std::error_code interpolation_linear(std::span<const float, 2> src1, std::span<const float, 2> src2, float s, std::span<float, 2> dst) { return detail::status(::tarnInterpolationLinear_v2_32f(src1.data(), src2.data(), s, dst.data())); }
/// tarnInterpolationLinear_v3_32f
inline std::error_code interpolation_linear(std::span<const float, 3> src1, std::span<const float, 3> src2, float s, std::span<float, 3> dst) { return detail::status(::tarnInterpolationLinear_v3_32f(src1.data(), src2.data(), s, dst.data())); }
/// tarnInterpolationLinear_v4_32f
inline std::error_code interpolation_linear(std::span<const float, 4> src1, std::span<const float, 4> src2, float s, std::span<float, 4> dst) { return detail::status(::tarnInterpolationLinear_v4_32f(src1.data(), src2.data(), s, dst.data())); }
/// tarnInvert_m4_32f
inline std::error_code invert(std::span<const float, 16> src, float& det, std::span<float, 16> dst) { return detail::status(::tarnInvert_m4_32f(src.data(), &det, dst.data())); }
/// tarnIsIdentity_m4_32f
inline std::error_code is_identity(std::span<const float, 16> src, int32_t& result) { return detail::status(::tarnIsIdentity_m4_32f(src.data(), &result)); }
/// tarnLenSqr_v2_32f
inline std::error_code len_sqr(std::span<const float, 2> src, float& dst) { return detail::status(::tarnLenSqr_v2_32f(src.data(), &dst)); }
/// tarnLenSqr_v3_32f
inline std::error_code len_sqr(std::span<const float, 3> src, float& dst) { return detail::status(::tarnLenSqr_v3_32f(src.data(), &dst)); }
/// tarnLenSqr_v4_32f
inline std::error_code len_sqr(std::span<const float, 4> src, float& dst) { return detail::status(::tarnLenSqr_v4_32f(src.data(), &dst)); }
/// tarnLen_v2_32f
inline std::error_code len(std::span<const float, 2> src, float& dst) { return detail::status(::tarnLen_v2_32f(src.data(), &dst)); }
/// tarnLen_v3_32f
inline std::error_code len(std::span<const float, 3> src, float& dst) { return detail::status(::tarnLen_v3_32f(src.data(), &dst)); }
/// tarnLen_v4_32f
inline std::error_code len(std::span<const float, 4> src, float& dst) { return detail::status(::tarnLen_v4_32f(src.data(), &dst)); }
/// tarnLookAtLH_m4_32f
inline std::error_code look_at_lh(std::span<const float, 3> eye, std::span<const float, 3> at, std::span<const float, 3> up, std::span<float, 16> dst) { return detail::status(::tarnLookAtLH_m4_32f(eye.data(), at.data(), up.data(), dst.data())); }
/// tarnLookAtRH_m4_32f
inline std::error_code look_at_rh(std::span<const float, 3> eye, std::span<const float, 3> at, std::span<const float, 3> up, std::span<float, 16> dst) { return detail::status(::tarnLookAtRH_m4_32f(eye.data(), at.data(), up.data(), dst.data())); }
/// tarnMax_v2_32f
inline std::error_code max(std::span<const float, 2> src1, std::span<const float, 2> src2, std::span<float, 2> dst) { return detail::status(::tarnMax_v2_32f(src1.data(), src2.data(), dst.data())); }
/// tarnMax_v3_32f
inline std::error_code max(std::span<const float, 3> src1, std::span<const float, 3> src2, std::span<float, 3> dst) { return detail::status(::tarnMax_v3_32f(src1.data(), src2.data(), dst.data())); }
/// tarnMax_v4_32f
inline std::error_code max(std::span<const float, 4> src1, std::span<const float, 4> src2, std::span<float, 4> dst) { return detail::status(::tarnMax_v4_32f(src1.data(), src2.data(), dst.data())); }
/// tarnMin_v2_32f
inline std::error_code min(std::span<const float, 2> src1, std::span<const float, 2> src2, std::span<float, 2> dst) { return detail::status(::tarnMin_v2_32f(src1.data(), src2.data(), dst.data())); }
/// tarnMin_v3_32f
inline std::error_code min(std::span<const float, 3> src1, std::span<const float, 3> src2, std::span<float, 3> dst) { return detail::status(::tarnMin_v3_32f(src1.data(), src2.data(), dst.data())); }
/// tarnMin_v4_32f
inline std::error_code min(std::span<const float, 4> src1, std::span<const float, 4> src2, std::span<float, 4> dst) { return detail::status(::tarnMin_v4_32f(src1.data(), src2.data(), dst.data())); }
/// tarnMulC_v2_32f
inline std::error_code mul_c(std::span<const float, 2> src, float c, std::span<float, 2> dst) { return detail::status(::tarnMulC_v2_32f(src.data(), c, dst.data())); }
/// tarnMulC_v3_32f
inline std::error_code mul_c(std::span<const float, 3> src, float c, std::span<float, 3> dst) { return detail::status(::tarnMulC_v3_32f(src.data(), c, dst.data())); }
/// tarnMulC_v4_32f
inline std::error_code mul_c(std::span<const float, 4> src, float c, std::span<float, 4> dst) { return detail::status(::tarnMulC_v4_32f(src.data(), c, dst.data())); }
/// tarnMulTranspose_m4_32f
inline std::error_code mul_transpose(std::span<const float, 16> src1, std::span<const float, 16> src2, std::span<float, 16> dst) { return detail::status(::tarnMulTranspose_m4_32f(src1.data(), src2.data(), dst.data())); }
/// tarnMul_mm4x4_32f
inline std::error_code mul(std::span<const float, 16> src1, std::span<const float, 16> src2, std::span<float, 16> dst) { return detail::status(::tarnMul_mm4x4_32f(src1.data(), src2.data(), dst.data())); }
/// tarnNormalize_v2_32f
inline std::error_code normalize(std::span<const float, 2> src, std::span<float, 2> dst) { return detail::status(::tarnNormalize_v2_32f(src.data(), dst.data())); }
/// tarnNormalize_v3_32f
inline std::error_code normalize(std::span<const float, 3> src, std::span<float, 3> dst) { return detail::status(::tarnNormalize_v3_32f(src.data(), dst.data())); }
/// tarnNormalize_v4_32f
inline std::error_code normalize(std::span<const float, 4> src, std::span<float, 4> dst) { return detail::status(::tarnNormalize_v4_32f(src.data(), dst.data())); }
/// tarnOrthoLH_m4_32f
inline std::error_code ortho_lh(float viewWidth, float viewHeight, float zNear, float zFar, std::span<float, 16> dst) { return detail::status(::tarnOrthoLH_m4_32f(viewWidth, viewHeight, zNear, zFar, dst.data())); }
/// tarnOrthoOffCenterLH_m4_32f
inline std::error_code ortho_off_center_lh(float left, float right, float bottom, float top, float zNear, float zFar, std::span<float, 16> dst) { return detail::status(::tarnOrthoOffCenterLH_m4_32f(left, right, bottom, top, zNear, zFar, dst.data())); }
/// tarnOrthoOffCenterRH_m4_32f
inline std::error_code ortho_off_center_rh(float left, float right, float bottom, float top, float zNear, float zFar, std::span<float, 16> dst) { return detail::status(::tarnOrthoOffCenterRH_m4_32f(left, right, bottom, top, zNear, zFar, dst.data())); }
/// tarnOrthoRH_m4_32f
inline std::error_code ortho_rh(float viewWidth, float viewHeight, float zNear, float zFar, std::span<float, 16> dst) { return detail::status(::tarnOrthoRH_m4_32f(viewWidth, viewHeight, zNear, zFar, dst.data())); }
/// tarnPerspectiveFovLH_m4_32f
inline std::error_code perspective_fov_lh(float fovY, float aspect, float zNear, float zFar, std::span<float, 16> dst) { return detail::status(::tarnPerspectiveFovLH_m4_32f(fovY, aspect, zNear, zFar, dst.data())); }
/// tarnPerspectiveFovRH_m4_32f
inline std::error_code perspective_fov_rh(float fovY, float aspect, float zNear, float zFar, std::span<float, 16> dst) { return detail::status(::tarnPerspectiveFovRH_m4_32f(fovY, aspect, zNear, zFar, dst.data())); }
/// tarnPerspectiveLH_m4_32f
inline std::error_code perspective_lh(float viewWidth, float viewHeight, float zNear, float zFar, std::span<float, 16> dst) { return detail::status(::tarnPerspectiveLH_m4_32f(viewWidth, viewHeight, zNear, zFar, dst.data())); }
/// tarnPerspectiveOffCenterLH_m4_32f
inline std::error_code perspective_off_center_lh(float left, float right, float bottom, float top, float zNear, float zFar, std::span<float, 16> dst) { return detail::status(::tarnPerspectiveOffCenterLH_m4_32f(left, right, bottom, top, zNear, zFar, dst.data())); }
/// tarnPerspectiveOffCenterRH_m4_32f
inline std::error_code perspective_off_center_rh(float left, float right, float bottom, float top, float zNear, float zFar, std::span<float, 16> dst) { return detail::status(::tarnPerspectiveOffCenterRH_m4_32f(left, right, bottom, top, zNear, zFar, dst.data())); }
/// tarnPerspectiveRH_m4_32f
inline std::error_code perspective_rh(float viewWidth, float viewHeight, float zNear, float zFar, std::span<float, 16> dst) { return detail::status(::tarnPerspectiveRH_m4_32f(viewWidth, viewHeight, zNear, zFar, dst.data())); }
/// tarnProject_m4v3_32f
inline std::error_code project(std::span<const float, 16> projection, std::span<const float, 16> view, std::span<const float, 16> world, std::span<const float, 3> src, float viewportWidth, float viewportHeight, float minZ, float maxZ, std::span<float, 3> dst) { return detail::status(::tarnProject_m4v3_32f(projection.data(), view.data(), world.data(), src.data(), viewportWidth, viewportHeight, minZ, maxZ, dst.data())); }
/// tarnRotationAxis_v3m4_32f
inline std::error_code rotation_axis(std::span<const float, 3> axis, float angle, std::span<float, 16> dst) { return detail::status(::tarnRotationAxis_v3m4_32f(axis.data(), angle, dst.data())); }
/// tarnRotationX_m4_32f
inline std::error_code rotation_x(float angle, std::span<float, 16> dst) { return detail::status(::tarnRotationX_m4_32f(angle, dst.data())); }
/// tarnRotationY_m4_32f
inline std::error_code rotation_y(float angle, std::span<float, 16> dst) { return detail::status(::tarnRotationY_m4_32f(angle, dst.data())); }
/// tarnRotationYawPitchRoll_m4_32f
inline std::error_code rotation_yaw_pitch_roll(float yaw, float pitch, float roll, std::span<float, 16> dst) { return detail::status(::tarnRotationYawPitchRoll_m4_32f(yaw, pitch, roll, dst.data())); }
/// tarnRotationZ_m4_32f
inline std::error_code rotation_z(float angle, std::span<float, 16> dst) { return detail::status(::tarnRotationZ_m4_32f(angle, dst.data())); }
/// tarnScaling_m4_32f
inline std::error_code scaling(float sx, float sy, float sz, std::span<float, 16> dst) { return detail::status(::tarnScaling_m4_32f(sx, sy, sz, dst.data())); }
/// tarnSub_v2_32f
inline std::error_code sub(std::span<const float, 2> src1, std::span<const float, 2> src2, std::span<float, 2> dst) { return detail::status(::tarnSub_v2_32f(src1.data(), src2.data(), dst.data())); }
/// tarnSub_v3_32f
inline std::error_code sub(std::span<const float, 3> src1, std::span<const float, 3> src2, std::span<float, 3> dst) { return detail::status(::tarnSub_v3_32f(src1.data(), src2.data(), dst.data())); }
/// tarnSub_v4_32f
inline std::error_code sub(std::span<const float, 4> src1, std::span<const float, 4> src2, std::span<float, 4> dst) { return detail::status(::tarnSub_v4_32f(src1.data(), src2.data(), dst.data())); }
/// tarnTranslation_m4_32f
inline std::error_code translation(float tx, float ty, float tz, std::span<float, 16> dst) { return detail::status(::tarnTranslation_m4_32f(tx, ty, tz, dst.data())); }
/// tarnTranspose_m4_32f
inline std::error_code transpose(std::span<const float, 16> src, std::span<float, 16> dst) { return detail::status(::tarnTranspose_m4_32f(src.data(), dst.data())); }
/// tarnUnproject_m4v3_32f
inline std::error_code unproject(std::span<const float, 16> projection, std::span<const float, 16> view, std::span<const float, 16> world, std::span<const float, 3> src, float viewportWidth, float viewportHeight, float minZ, float maxZ, std::span<float, 3> dst) { return detail::status(::tarnUnproject_m4v3_32f(projection.data(), view.data(), world.data(), src.data(), viewportWidth, viewportHeight, minZ, maxZ, dst.data())); }

inline const tarnLibraryVersion* get_lib_version() { return ::tarnGetLibVersion(); }

// The throwing forms: the same overloads, a status other than 0 thrown as tarn::error.
namespace throwing {
template <class... A>
auto add(A&&... a) -> decltype(void(tarn::add(std::forward<A>(a)...))) { detail::raise(tarn::add(std::forward<A>(a)...)); }
template <class... A>
auto add_v2(A&&... a) -> decltype(void(tarn::add_v2(std::forward<A>(a)...))) { detail::raise(tarn::add_v2(std::forward<A>(a)...)); }
template <class... A>
auto add_v3(A&&... a) -> decltype(void(tarn::add_v3(std::forward<A>(a)...))) { detail::raise(tarn::add_v3(std::forward<A>(a)...)); }
template <class... A>
auto add_v4(A&&... a) -> decltype(void(tarn::add_v4(std::forward<A>(a)...))) { detail::raise(tarn::add_v4(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform(A&&... a) -> decltype(void(tarn::affine_transform(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_3dh(A&&... a) -> decltype(void(tarn::affine_transform_3dh(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_3dh(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_coord(A&&... a) -> decltype(void(tarn::affine_transform_coord(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_coord(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_coord_m4v2(A&&... a) -> decltype(void(tarn::affine_transform_coord_m4v2(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_coord_m4v2(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_coord_m4v2a(A&&... a) -> decltype(void(tarn::affine_transform_coord_m4v2a(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_coord_m4v2a(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_coord_m4v3(A&&... a) -> decltype(void(tarn::affine_transform_coord_m4v3(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_coord_m4v3(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_coord_m4v3a(A&&... a) -> decltype(void(tarn::affine_transform_coord_m4v3a(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_coord_m4v3a(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_m4v2(A&&... a) -> decltype(void(tarn::affine_transform_m4v2(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_m4v2(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_m4v2a(A&&... a) -> decltype(void(tarn::affine_transform_m4v2a(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_m4v2a(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_m4v3(A&&... a) -> decltype(void(tarn::affine_transform_m4v3(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_m4v3(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_m4v3a(A&&... a) -> decltype(void(tarn::affine_transform_m4v3a(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_m4v3a(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_m4v4(A&&... a) -> decltype(void(tarn::affine_transform_m4v4(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_m4v4(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_m4v4a(A&&... a) -> decltype(void(tarn::affine_transform_m4v4a(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_m4v4a(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_normal(A&&... a) -> decltype(void(tarn::affine_transform_normal(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_normal(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_normal_m4v2(A&&... a) -> decltype(void(tarn::affine_transform_normal_m4v2(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_normal_m4v2(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_normal_m4v2a(A&&... a) -> decltype(void(tarn::affine_transform_normal_m4v2a(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_normal_m4v2a(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_normal_m4v3(A&&... a) -> decltype(void(tarn::affine_transform_normal_m4v3(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_normal_m4v3(std::forward<A>(a)...)); }
template <class... A>
auto affine_transform_normal_m4v3a(A&&... a) -> decltype(void(tarn::affine_transform_normal_m4v3a(std::forward<A>(a)...))) { detail::raise(tarn::affine_transform_normal_m4v3a(std::forward<A>(a)...)); }
template <class... A>
auto barycentric(A&&... a) -> decltype(void(tarn::barycentric(std::forward<A>(a)...))) { detail::raise(tarn::barycentric(std::forward<A>(a)...)); }
template <class... A>
auto barycentric_v2(A&&... a) -> decltype(void(tarn::barycentric_v2(std::forward<A>(a)...))) { detail::raise(tarn::barycentric_v2(std::forward<A>(a)...)); }
template <class... A>
auto barycentric_v3(A&&... a) -> decltype(void(tarn::barycentric_v3(std::forward<A>(a)...))) { detail::raise(tarn::barycentric_v3(std::forward<A>(a)...)); }
template <class... A>
auto barycentric_v4(A&&... a) -> decltype(void(tarn::barycentric_v4(std::forward<A>(a)...))) { detail::raise(tarn::barycentric_v4(std::forward<A>(a)...)); }
template <class... A>
auto cholesky_back_subst(A&&... a) -> decltype(void(tarn::cholesky_back_subst(std::forward<A>(a)...))) { detail::raise(tarn::cholesky_back_subst(std::forward<A>(a)...)); }
template <class... A>
auto cholesky_decomp(A&&... a) -> decltype(void(tarn::cholesky_decomp(std::forward<A>(a)...))) { detail::raise(tarn::cholesky_decomp(std::forward<A>(a)...)); }
template <class... A>
auto copy(A&&... a) -> decltype(void(tarn::copy(std::forward<A>(a)...))) { detail::raise(tarn::copy(std::forward<A>(a)...)); }
template <class... A>
auto cross_product(A&&... a) -> decltype(void(tarn::cross_product(std::forward<A>(a)...))) { detail::raise(tarn::cross_product(std::forward<A>(a)...)); }
template <class... A>
auto cross_product_v2(A&&... a) -> decltype(void(tarn::cross_product_v2(std::forward<A>(a)...))) { detail::raise(tarn::cross_product_v2(std::forward<A>(a)...)); }
template <class... A>
auto cross_product_v3(A&&... a) -> decltype(void(tarn::cross_product_v3(std::forward<A>(a)...))) { detail::raise(tarn::cross_product_v3(std::forward<A>(a)...)); }
template <class... A>
auto cross_product_v4(A&&... a) -> decltype(void(tarn::cross_product_v4(std::forward<A>(a)...))) { detail::raise(tarn::cross_product_v4(std::forward<A>(a)...)); }
template <class... A>
auto det(A&&... a) -> decltype(void(tarn::det(std::forward<A>(a)...))) { detail::raise(tarn::det(std::forward<A>(a)...)); }
template <class... A>
auto det_m4(A&&... a) -> decltype(void(tarn::det_m4(std::forward<A>(a)...))) { detail::raise(tarn::det_m4(std::forward<A>(a)...)); }
template <class... A>
auto dot_product(A&&... a) -> decltype(void(tarn::dot_product(std::forward<A>(a)...))) { detail::raise(tarn::dot_product(std::forward<A>(a)...)); }
template <class... A>
auto dot_product_v2(A&&... a) -> decltype(void(tarn::dot_product_v2(std::forward<A>(a)...))) { detail::raise(tarn::dot_product_v2(std::forward<A>(a)...)); }
template <class... A>
auto dot_product_v3(A&&... a) -> decltype(void(tarn::dot_product_v3(std::forward<A>(a)...))) { detail::raise(tarn::dot_product_v3(std::forward<A>(a)...)); }
template <class... A>
auto dot_product_v4(A&&... a) -> decltype(void(tarn::dot_product_v4(std::forward<A>(a)...))) { detail::raise(tarn::dot_product_v4(std::forward<A>(a)...)); }
template <class... A>
auto eigen_values(A&&... a) -> decltype(void(tarn::eigen_values(std::forward<A>(a)...))) { detail::raise(tarn::eigen_values(std::forward<A>(a)...)); }
template <class T, class... A>
void eigen_values_get_buf_size(A&&... a) { detail::raise(tarn::eigen_values_get_buf_size<T>(std::forward<A>(a)...)); }
template <class... A>
auto eigen_values_sym(A&&... a) -> decltype(void(tarn::eigen_values_sym(std::forward<A>(a)...))) { detail::raise(tarn::eigen_values_sym(std::forward<A>(a)...)); }
template <class... A>
auto eigen_values_vectors(A&&... a) -> decltype(void(tarn::eigen_values_vectors(std::forward<A>(a)...))) { detail::raise(tarn::eigen_values_vectors(std::forward<A>(a)...)); }
template <class T, class... A>
void eigen_values_vectors_get_buf_size(A&&... a) { detail::raise(tarn::eigen_values_vectors_get_buf_size<T>(std::forward<A>(a)...)); }
template <class... A>
auto eigen_values_vectors_left(A&&... a) -> decltype(void(tarn::eigen_values_vectors_left(std::forward<A>(a)...))) { detail::raise(tarn::eigen_values_vectors_left(std::forward<A>(a)...)); }
template <class... A>
auto eigen_values_vectors_right(A&&... a) -> decltype(void(tarn::eigen_values_vectors_right(std::forward<A>(a)...))) { detail::raise(tarn::eigen_values_vectors_right(std::forward<A>(a)...)); }
template <class... A>
auto eigen_values_vectors_sym(A&&... a) -> decltype(void(tarn::eigen_values_vectors_sym(std::forward<A>(a)...))) { detail::raise(tarn::eigen_values_vectors_sym(std::forward<A>(a)...)); }
template <class... A>
auto extract(A&&... a) -> decltype(void(tarn::extract(std::forward<A>(a)...))) { detail::raise(tarn::extract(std::forward<A>(a)...)); }
template <class... A>
auto frob_norm(A&&... a) -> decltype(void(tarn::frob_norm(std::forward<A>(a)...))) { detail::raise(tarn::frob_norm(std::forward<A>(a)...)); }
template <class... A>
auto gaxpy(A&&... a) -> decltype(void(tarn::gaxpy(std::forward<A>(a)...))) { detail::raise(tarn::gaxpy(std::forward<A>(a)...)); }
template <class... A>
auto hermite(A&&... a) -> decltype(void(tarn::hermite(std::forward<A>(a)...))) { detail::raise(tarn::hermite(std::forward<A>(a)...)); }
template <class... A>
auto hermite_v2(A&&... a) -> decltype(void(tarn::hermite_v2(std::forward<A>(a)...))) { detail::raise(tarn::hermite_v2(std::forward<A>(a)...)); }
template <class... A>
auto hermite_v3(A&&... a) -> decltype(void(tarn::hermite_v3(std::forward<A>(a)...))) { detail::raise(tarn::hermite_v3(std::forward<A>(a)...)); }
template <class... A>
auto hermite_v4(A&&... a) -> decltype(void(tarn::hermite_v4(std::forward<A>(a)...))) { detail::raise(tarn::hermite_v4(std::forward<A>(a)...)); }
template <class... A>
auto identity(A&&... a) -> decltype(void(tarn::identity(std::forward<A>(a)...))) { detail::raise(tarn::identity(std::forward<A>(a)...)); }
template <class... A>
auto identity_m4(A&&... a) -> decltype(void(tarn::identity_m4(std::forward<A>(a)...))) { detail::raise(tarn::identity_m4(std::forward<A>(a)...)); }
template <class... A>
auto interpolation_catmull_rom(A&&... a) -> decltype(void(tarn::interpolation_catmull_rom(std::forward<A>(a)...))) { detail::raise(tarn::interpolation_catmull_rom(std::forward<A>(a)...)); }
template <class... A>
auto interpolation_catmull_rom_v2(A&&... a) -> decltype(void(tarn::interpolation_catmull_rom_v2(std::forward<A>(a)...))) { detail::raise(tarn::interpolation_catmull_rom_v2(std::forward<A>(a)...)); }
template <class... A>
auto interpolation_catmull_rom_v3(A&&... a) -> decltype(void(tarn::interpolation_catmull_rom_v3(std::forward<A>(a)...))) { detail::raise(tarn::interpolation_catmull_rom_v3(std::forward<A>(a)...)); }
template <class... A>
auto interpolation_catmull_rom_v4(A&&... a) -> decltype(void(tarn::interpolation_catmull_rom_v4(std::forward<A>(a)...))) { detail::raise(tarn::interpolation_catmull_rom_v4(std::forward<A>(a)...)); }
template <class... A>
auto interpolation_linear(A&&... a) -> decltype(void(tarn::interpolation_linear(std::forward<A>(a)...))) { detail::raise(tarn::interpolation_linear(std::forward<A>(a)...)); }
template <class... A>
auto interpolation_linear_v2(A&&... a) -> decltype(void(tarn::interpolation_linear_v2(std::forward<A>(a)...))) { detail::raise(tarn::interpolation_linear_v2(std::forward<A>(a)...)); }
template <class... A>
auto interpolation_linear_v3(A&&... a) -> decltype(void(tarn::interpolation_linear_v3(std::forward<A>(a)...))) { detail::raise(tarn::interpolation_linear_v3(std::forward<A>(a)...)); }
template <class... A>
auto interpolation_linear_v4(A&&... a) -> decltype(void(tarn::interpolation_linear_v4(std::forward<A>(a)...))) { detail::raise(tarn::interpolation_linear_v4(std::forward<A>(a)...)); }
template <class... A>
auto invert(A&&... a) -> decltype(void(tarn::invert(std::forward<A>(a)...))) { detail::raise(tarn::invert(std::forward<A>(a)...)); }
template <class... A>
auto invert_m4(A&&... a) -> decltype(void(tarn::invert_m4(std::forward<A>(a)...))) { detail::raise(tarn::invert_m4(std::forward<A>(a)...)); }
template <class... A>
auto is_identity(A&&... a) -> decltype(void(tarn::is_identity(std::forward<A>(a)...))) { detail::raise(tarn::is_identity(std::forward<A>(a)...)); }
template <class... A>
auto is_identity_m4(A&&... a) -> decltype(void(tarn::is_identity_m4(std::forward<A>(a)...))) { detail::raise(tarn::is_identity_m4(std::forward<A>(a)...)); }
template <class... A>
auto l2_norm(A&&... a) -> decltype(void(tarn::l2_norm(std::forward<A>(a)...))) { detail::raise(tarn::l2_norm(std::forward<A>(a)...)); }
template <class... A>
auto lcomb(A&&... a) -> decltype(void(tarn::lcomb(std::forward<A>(a)...))) { detail::raise(tarn::lcomb(std::forward<A>(a)...)); }
template <class... A>
auto len(A&&... a) -> decltype(void(tarn::len(std::forward<A>(a)...))) { detail::raise(tarn::len(std::forward<A>(a)...)); }
template <class... A>
auto len_sqr(A&&... a) -> decltype(void(tarn::len_sqr(std::forward<A>(a)...))) { detail::raise(tarn::len_sqr(std::forward<A>(a)...)); }
template <class... A>
auto len_sqr_v2(A&&... a) -> decltype(void(tarn::len_sqr_v2(std::forward<A>(a)...))) { detail::raise(tarn::len_sqr_v2(std::forward<A>(a)...)); }
template <class... A>
auto len_sqr_v3(A&&... a) -> decltype(void(tarn::len_sqr_v3(std::forward<A>(a)...))) { detail::raise(tarn::len_sqr_v3(std::forward<A>(a)...)); }
template <class... A>
auto len_sqr_v4(A&&... a) -> decltype(void(tarn::len_sqr_v4(std::forward<A>(a)...))) { detail::raise(tarn::len_sqr_v4(std::forward<A>(a)...)); }
template <class... A>
auto len_v2(A&&... a) -> decltype(void(tarn::len_v2(std::forward<A>(a)...))) { detail::raise(tarn::len_v2(std::forward<A>(a)...)); }
template <class... A>
auto len_v3(A&&... a) -> decltype(void(tarn::len_v3(std::forward<A>(a)...))) { detail::raise(tarn::len_v3(std::forward<A>(a)...)); }
template <class... A>
auto len_v4(A&&... a) -> decltype(void(tarn::len_v4(std::forward<A>(a)...))) { detail::raise(tarn::len_v4(std::forward<A>(a)...)); }
template <class... A>
auto load_identity(A&&... a) -> decltype(void(tarn::load_identity(std::forward<A>(a)...))) { detail::raise(tarn::load_identity(std::forward<A>(a)...)); }
template <class... A>
auto look_at_lh(A&&... a) -> decltype(void(tarn::look_at_lh(std::forward<A>(a)...))) { detail::raise(tarn::look_at_lh(std::forward<A>(a)...)); }
template <class... A>
auto look_at_lh_m4(A&&... a) -> decltype(void(tarn::look_at_lh_m4(std::forward<A>(a)...))) { detail::raise(tarn::look_at_lh_m4(std::forward<A>(a)...)); }
template <class... A>
auto look_at_rh(A&&... a) -> decltype(void(tarn::look_at_rh(std::forward<A>(a)...))) { detail::raise(tarn::look_at_rh(std::forward<A>(a)...)); }
template <class... A>
auto look_at_rh_m4(A&&... a) -> decltype(void(tarn::look_at_rh_m4(std::forward<A>(a)...))) { detail::raise(tarn::look_at_rh_m4(std::forward<A>(a)...)); }
template <class... A>
auto lu_back_subst(A&&... a) -> decltype(void(tarn::lu_back_subst(std::forward<A>(a)...))) { detail::raise(tarn::lu_back_subst(std::forward<A>(a)...)); }
template <class... A>
auto lu_decomp(A&&... a) -> decltype(void(tarn::lu_decomp(std::forward<A>(a)...))) { detail::raise(tarn::lu_decomp(std::forward<A>(a)...)); }
template <class... A>
auto max(A&&... a) -> decltype(void(tarn::max(std::forward<A>(a)...))) { detail::raise(tarn::max(std::forward<A>(a)...)); }
template <class... A>
auto max_v2(A&&... a) -> decltype(void(tarn::max_v2(std::forward<A>(a)...))) { detail::raise(tarn::max_v2(std::forward<A>(a)...)); }
template <class... A>
auto max_v3(A&&... a) -> decltype(void(tarn::max_v3(std::forward<A>(a)...))) { detail::raise(tarn::max_v3(std::forward<A>(a)...)); }
template <class... A>
auto max_v4(A&&... a) -> decltype(void(tarn::max_v4(std::forward<A>(a)...))) { detail::raise(tarn::max_v4(std::forward<A>(a)...)); }
template <class... A>
auto min(A&&... a) -> decltype(void(tarn::min(std::forward<A>(a)...))) { detail::raise(tarn::min(std::forward<A>(a)...)); }
template <class... A>
auto min_v2(A&&... a) -> decltype(void(tarn::min_v2(std::forward<A>(a)...))) { detail::raise(tarn::min_v2(std::forward<A>(a)...)); }
template <class... A>
auto min_v3(A&&... a) -> decltype(void(tarn::min_v3(std::forward<A>(a)...))) { detail::raise(tarn::min_v3(std::forward<A>(a)...)); }
template <class... A>
auto min_v4(A&&... a) -> decltype(void(tarn::min_v4(std::forward<A>(a)...))) { detail::raise(tarn::min_v4(std::forward<A>(a)...)); }
template <class... A>
auto mul(A&&... a) -> decltype(void(tarn::mul(std::forward<A>(a)...))) { detail::raise(tarn::mul(std::forward<A>(a)...)); }
template <class... A>
auto mul_c(A&&... a) -> decltype(void(tarn::mul_c(std::forward<A>(a)...))) { detail::raise(tarn::mul_c(std::forward<A>(a)...)); }
template <class... A>
auto mul_c_v2(A&&... a) -> decltype(void(tarn::mul_c_v2(std::forward<A>(a)...))) { detail::raise(tarn::mul_c_v2(std::forward<A>(a)...)); }
template <class... A>
auto mul_c_v3(A&&... a) -> decltype(void(tarn::mul_c_v3(std::forward<A>(a)...))) { detail::raise(tarn::mul_c_v3(std::forward<A>(a)...)); }
template <class... A>
auto mul_c_v4(A&&... a) -> decltype(void(tarn::mul_c_v4(std::forward<A>(a)...))) { detail::raise(tarn::mul_c_v4(std::forward<A>(a)...)); }
template <class... A>
auto mul_mm4x4(A&&... a) -> decltype(void(tarn::mul_mm4x4(std::forward<A>(a)...))) { detail::raise(tarn::mul_mm4x4(std::forward<A>(a)...)); }
template <class... A>
auto mul_transpose(A&&... a) -> decltype(void(tarn::mul_transpose(std::forward<A>(a)...))) { detail::raise(tarn::mul_transpose(std::forward<A>(a)...)); }
template <class... A>
auto mul_transpose_m4(A&&... a) -> decltype(void(tarn::mul_transpose_m4(std::forward<A>(a)...))) { detail::raise(tarn::mul_transpose_m4(std::forward<A>(a)...)); }
template <class... A>
auto normalize(A&&... a) -> decltype(void(tarn::normalize(std::forward<A>(a)...))) { detail::raise(tarn::normalize(std::forward<A>(a)...)); }
template <class... A>
auto normalize_v2(A&&... a) -> decltype(void(tarn::normalize_v2(std::forward<A>(a)...))) { detail::raise(tarn::normalize_v2(std::forward<A>(a)...)); }
template <class... A>
auto normalize_v3(A&&... a) -> decltype(void(tarn::normalize_v3(std::forward<A>(a)...))) { detail::raise(tarn::normalize_v3(std::forward<A>(a)...)); }
template <class... A>
auto normalize_v4(A&&... a) -> decltype(void(tarn::normalize_v4(std::forward<A>(a)...))) { detail::raise(tarn::normalize_v4(std::forward<A>(a)...)); }
template <class... A>
auto ortho_lh(A&&... a) -> decltype(void(tarn::ortho_lh(std::forward<A>(a)...))) { detail::raise(tarn::ortho_lh(std::forward<A>(a)...)); }
template <class... A>
auto ortho_lh_m4(A&&... a) -> decltype(void(tarn::ortho_lh_m4(std::forward<A>(a)...))) { detail::raise(tarn::ortho_lh_m4(std::forward<A>(a)...)); }
template <class... A>
auto ortho_off_center_lh(A&&... a) -> decltype(void(tarn::ortho_off_center_lh(std::forward<A>(a)...))) { detail::raise(tarn::ortho_off_center_lh(std::forward<A>(a)...)); }
template <class... A>
auto ortho_off_center_lh_m4(A&&... a) -> decltype(void(tarn::ortho_off_center_lh_m4(std::forward<A>(a)...))) { detail::raise(tarn::ortho_off_center_lh_m4(std::forward<A>(a)...)); }
template <class... A>
auto ortho_off_center_rh(A&&... a) -> decltype(void(tarn::ortho_off_center_rh(std::forward<A>(a)...))) { detail::raise(tarn::ortho_off_center_rh(std::forward<A>(a)...)); }
template <class... A>
auto ortho_off_center_rh_m4(A&&... a) -> decltype(void(tarn::ortho_off_center_rh_m4(std::forward<A>(a)...))) { detail::raise(tarn::ortho_off_center_rh_m4(std::forward<A>(a)...)); }
template <class... A>
auto ortho_rh(A&&... a) -> decltype(void(tarn::ortho_rh(std::forward<A>(a)...))) { detail::raise(tarn::ortho_rh(std::forward<A>(a)...)); }
template <class... A>
auto ortho_rh_m4(A&&... a) -> decltype(void(tarn::ortho_rh_m4(std::forward<A>(a)...))) { detail::raise(tarn::ortho_rh_m4(std::forward<A>(a)...)); }
template <class... A>
auto perspective_fov_lh(A&&... a) -> decltype(void(tarn::perspective_fov_lh(std::forward<A>(a)...))) { detail::raise(tarn::perspective_fov_lh(std::forward<A>(a)...)); }
template <class... A>
auto perspective_fov_lh_m4(A&&... a) -> decltype(void(tarn::perspective_fov_lh_m4(std::forward<A>(a)...))) { detail::raise(tarn::perspective_fov_lh_m4(std::forward<A>(a)...)); }
template <class... A>
auto perspective_fov_rh(A&&... a) -> decltype(void(tarn::perspective_fov_rh(std::forward<A>(a)...))) { detail::raise(tarn::perspective_fov_rh(std::forward<A>(a)...)); }
template <class... A>
auto perspective_fov_rh_m4(A&&... a) -> decltype(void(tarn::perspective_fov_rh_m4(std::forward<A>(a)...))) { detail::raise(tarn::perspective_fov_rh_m4(std::forward<A>(a)...)); }
template <class... A>
auto perspective_lh(A&&... a) -> decltype(void(tarn::perspective_lh(std::forward<A>(a)...))) { detail::raise(tarn::perspective_lh(std::forward<A>(a)...)); }
template <class... A>
auto perspective_lh_m4(A&&... a) -> decltype(void(tarn::perspective_lh_m4(std::forward<A>(a)...))) { detail::raise(tarn::perspective_lh_m4(std::forward<A>(a)...)); }
template <class... A>
auto perspective_off_center_lh(A&&... a) -> decltype(void(tarn::perspective_off_center_lh(std::forward<A>(a)...))) { detail::raise(tarn::perspective_off_center_lh(std::forward<A>(a)...)); }
template <class... A>
auto perspective_off_center_lh_m4(A&&... a) -> decltype(void(tarn::perspective_off_center_lh_m4(std::forward<A>(a)...))) { detail::raise(tarn::perspective_off_center_lh_m4(std::forward<A>(a)...)); }
template <class... A>
auto perspective_off_center_rh(A&&... a) -> decltype(void(tarn::perspective_off_center_rh(std::forward<A>(a)...))) { detail::raise(tarn::perspective_off_center_rh(std::forward<A>(a)...)); }
template <class... A>
auto perspective_off_center_rh_m4(A&&... a) -> decltype(void(tarn::perspective_off_center_rh_m4(std::forward<A>(a)...))) { detail::raise(tarn::perspective_off_center_rh_m4(std::forward<A>(a)...)); }
template <class... A>
auto perspective_rh(A&&... a) -> decltype(void(tarn::perspective_rh(std::forward<A>(a)...))) { detail::raise(tarn::perspective_rh(std::forward<A>(a)...)); }
template <class... A>
auto perspective_rh_m4(A&&... a) -> decltype(void(tarn::perspective_rh_m4(std::forward<A>(a)...))) { detail::raise(tarn::perspective_rh_m4(std::forward<A>(a)...)); }
template <class... A>
auto project(A&&... a) -> decltype(void(tarn::project(std::forward<A>(a)...))) { detail::raise(tarn::project(std::forward<A>(a)...)); }
template <class... A>
auto project_m4v3(A&&... a) -> decltype(void(tarn::project_m4v3(std::forward<A>(a)...))) { detail::raise(tarn::project_m4v3(std::forward<A>(a)...)); }
template <class... A>
auto project_m4v3a(A&&... a) -> decltype(void(tarn::project_m4v3a(std::forward<A>(a)...))) { detail::raise(tarn::project_m4v3a(std::forward<A>(a)...)); }
template <class... A>
auto qr_back_subst(A&&... a) -> decltype(void(tarn::qr_back_subst(std::forward<A>(a)...))) { detail::raise(tarn::qr_back_subst(std::forward<A>(a)...)); }
template <class... A>
auto qr_decomp(A&&... a) -> decltype(void(tarn::qr_decomp(std::forward<A>(a)...))) { detail::raise(tarn::qr_decomp(std::forward<A>(a)...)); }
template <class... A>
auto rotation_axis(A&&... a) -> decltype(void(tarn::rotation_axis(std::forward<A>(a)...))) { detail::raise(tarn::rotation_axis(std::forward<A>(a)...)); }
template <class... A>
auto rotation_axis_v3m4(A&&... a) -> decltype(void(tarn::rotation_axis_v3m4(std::forward<A>(a)...))) { detail::raise(tarn::rotation_axis_v3m4(std::forward<A>(a)...)); }
template <class... A>
auto rotation_x(A&&... a) -> decltype(void(tarn::rotation_x(std::forward<A>(a)...))) { detail::raise(tarn::rotation_x(std::forward<A>(a)...)); }
template <class... A>
auto rotation_x_m4(A&&... a) -> decltype(void(tarn::rotation_x_m4(std::forward<A>(a)...))) { detail::raise(tarn::rotation_x_m4(std::forward<A>(a)...)); }
template <class... A>
auto rotation_y(A&&... a) -> decltype(void(tarn::rotation_y(std::forward<A>(a)...))) { detail::raise(tarn::rotation_y(std::forward<A>(a)...)); }
template <class... A>
auto rotation_y_m4(A&&... a) -> decltype(void(tarn::rotation_y_m4(std::forward<A>(a)...))) { detail::raise(tarn::rotation_y_m4(std::forward<A>(a)...)); }
template <class... A>
auto rotation_yaw_pitch_roll(A&&... a) -> decltype(void(tarn::rotation_yaw_pitch_roll(std::forward<A>(a)...))) { detail::raise(tarn::rotation_yaw_pitch_roll(std::forward<A>(a)...)); }
template <class... A>
auto rotation_yaw_pitch_roll_m4(A&&... a) -> decltype(void(tarn::rotation_yaw_pitch_roll_m4(std::forward<A>(a)...))) { detail::raise(tarn::rotation_yaw_pitch_roll_m4(std::forward<A>(a)...)); }
template <class... A>
auto rotation_z(A&&... a) -> decltype(void(tarn::rotation_z(std::forward<A>(a)...))) { detail::raise(tarn::rotation_z(std::forward<A>(a)...)); }
template <class... A>
auto rotation_z_m4(A&&... a) -> decltype(void(tarn::rotation_z_m4(std::forward<A>(a)...))) { detail::raise(tarn::rotation_z_m4(std::forward<A>(a)...)); }
template <class... A>
auto saxpy(A&&... a) -> decltype(void(tarn::saxpy(std::forward<A>(a)...))) { detail::raise(tarn::saxpy(std::forward<A>(a)...)); }
template <class... A>
auto scaling(A&&... a) -> decltype(void(tarn::scaling(std::forward<A>(a)...))) { detail::raise(tarn::scaling(std::forward<A>(a)...)); }
template <class... A>
auto scaling_m4(A&&... a) -> decltype(void(tarn::scaling_m4(std::forward<A>(a)...))) { detail::raise(tarn::scaling_m4(std::forward<A>(a)...)); }
template <class... A>
auto sub(A&&... a) -> decltype(void(tarn::sub(std::forward<A>(a)...))) { detail::raise(tarn::sub(std::forward<A>(a)...)); }
template <class... A>
auto sub_v2(A&&... a) -> decltype(void(tarn::sub_v2(std::forward<A>(a)...))) { detail::raise(tarn::sub_v2(std::forward<A>(a)...)); }
template <class... A>
auto sub_v3(A&&... a) -> decltype(void(tarn::sub_v3(std::forward<A>(a)...))) { detail::raise(tarn::sub_v3(std::forward<A>(a)...)); }
template <class... A>
auto sub_v4(A&&... a) -> decltype(void(tarn::sub_v4(std::forward<A>(a)...))) { detail::raise(tarn::sub_v4(std::forward<A>(a)...)); }
template <class... A>
auto trace(A&&... a) -> decltype(void(tarn::trace(std::forward<A>(a)...))) { detail::raise(tarn::trace(std::forward<A>(a)...)); }
template <class... A>
auto translation(A&&... a) -> decltype(void(tarn::translation(std::forward<A>(a)...))) { detail::raise(tarn::translation(std::forward<A>(a)...)); }
template <class... A>
auto translation_m4(A&&... a) -> decltype(void(tarn::translation_m4(std::forward<A>(a)...))) { detail::raise(tarn::translation_m4(std::forward<A>(a)...)); }
template <class... A>
auto transpose(A&&... a) -> decltype(void(tarn::transpose(std::forward<A>(a)...))) { detail::raise(tarn::transpose(std::forward<A>(a)...)); }
template <class... A>
auto transpose_m4(A&&... a) -> decltype(void(tarn::transpose_m4(std::forward<A>(a)...))) { detail::raise(tarn::transpose_m4(std::forward<A>(a)...)); }
template <class... A>
auto unproject(A&&... a) -> decltype(void(tarn::unproject(std::forward<A>(a)...))) { detail::raise(tarn::unproject(std::forward<A>(a)...)); }
template <class... A>
auto unproject_m4v3(A&&... a) -> decltype(void(tarn::unproject_m4v3(std::forward<A>(a)...))) { detail::raise(tarn::unproject_m4v3(std::forward<A>(a)...)); }
template <class... A>
auto unproject_m4v3a(A&&... a) -> decltype(void(tarn::unproject_m4v3a(std::forward<A>(a)...))) { detail::raise(tarn::unproject_m4v3a(std::forward<A>(a)...)); }
}  // namespace throwing

}  // namespace tarn

#endif  // TARN_HPP
