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

// CrossProduct: dst = src1 x src2 of 3-element vectors: each product rounded, then the difference; an object is read whole before it is written.
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

// DotProduct: dst = sum of src1[k]*src2[k] per pair of vectors, one result element per object; the order of the additions depends on the length, the path and, for long contiguous vectors, the address of src2.
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
inline std::error_code l_comb(const vector_array<const float>& src1, float val1, const vector<const float>& src2, float val2, const vector_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vav_32f(src1.ptr, src1.obj, src1.elem, val1, src2.ptr, src2.elem, val2, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnLComb_vav_32f_L
inline std::error_code l_comb(const vector_table<const float>& src1, float val1, const vector<const float>& src2, float val2, const vector_table<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vav_32f_L(src1.ptr, src1.roi, src1.elem, val1, src2.ptr, src2.elem, val2, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnLComb_vav_32f_P
inline std::error_code l_comb(const vector_elems_array<const float>& src1, float val1, const vector_elems<const float>& src2, float val2, const vector_elems_array<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vav_32f_P(src1.ptr, src1.roi, src1.obj, val1, src2.ptr, src2.roi, val2, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnLComb_vav_64f
inline std::error_code l_comb(const vector_array<const double>& src1, double val1, const vector<const double>& src2, double val2, const vector_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vav_64f(src1.ptr, src1.obj, src1.elem, val1, src2.ptr, src2.elem, val2, dst.ptr, dst.obj, dst.elem, len, count));
}
/// tarnLComb_vav_64f_L
inline std::error_code l_comb(const vector_table<const double>& src1, double val1, const vector<const double>& src2, double val2, const vector_table<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vav_64f_L(src1.ptr, src1.roi, src1.elem, val1, src2.ptr, src2.elem, val2, dst.ptr, dst.roi, dst.elem, len, count));
}
/// tarnLComb_vav_64f_P
inline std::error_code l_comb(const vector_elems_array<const double>& src1, double val1, const vector_elems<const double>& src2, double val2, const vector_elems_array<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = src1.count;
  if (!(dst.count == count &&
        src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vav_64f_P(src1.ptr, src1.roi, src1.obj, val1, src2.ptr, src2.roi, val2, dst.ptr, dst.roi, dst.obj, len, count));
}
/// tarnLComb_vava_32f
inline std::error_code l_comb(const vector_array<const float>& src1, float val1, const vector_array<const float>& src2, float val2, const vector_array<float>& dst) {
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
inline std::error_code l_comb(const vector_table<const float>& src1, float val1, const vector_table<const float>& src2, float val2, const vector_table<float>& dst) {
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
inline std::error_code l_comb(const vector_elems_array<const float>& src1, float val1, const vector_elems_array<const float>& src2, float val2, const vector_elems_array<float>& dst) {
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
inline std::error_code l_comb(const vector_array<const double>& src1, double val1, const vector_array<const double>& src2, double val2, const vector_array<double>& dst) {
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
inline std::error_code l_comb(const vector_table<const double>& src1, double val1, const vector_table<const double>& src2, double val2, const vector_table<double>& dst) {
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
inline std::error_code l_comb(const vector_elems_array<const double>& src1, double val1, const vector_elems_array<const double>& src2, double val2, const vector_elems_array<double>& dst) {
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
inline std::error_code l_comb(const vector<const float>& src1, float val1, const vector<const float>& src2, float val2, const vector<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vv_32f(src1.ptr, src1.elem, val1, src2.ptr, src2.elem, val2, dst.ptr, dst.elem, len));
}
/// tarnLComb_vv_32f_P
inline std::error_code l_comb(const vector_elems<const float>& src1, float val1, const vector_elems<const float>& src2, float val2, const vector_elems<float>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vv_32f_P(src1.ptr, src1.roi, val1, src2.ptr, src2.roi, val2, dst.ptr, dst.roi, len));
}
/// tarnLComb_vv_64f
inline std::error_code l_comb(const vector<const double>& src1, double val1, const vector<const double>& src2, double val2, const vector<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vv_64f(src1.ptr, src1.elem, val1, src2.ptr, src2.elem, val2, dst.ptr, dst.elem, len));
}
/// tarnLComb_vv_64f_P
inline std::error_code l_comb(const vector_elems<const double>& src1, double val1, const vector_elems<const double>& src2, double val2, const vector_elems<double>& dst) {
  const int32_t len = src1.len;
  [[maybe_unused]] const int32_t count = 1;
  if (!(src2.len == len &&
        dst.len == len))
    return make_error_code(errc::shape_mismatch);
  return detail::status(::tarnLComb_vv_64f_P(src1.ptr, src1.roi, val1, src2.ptr, src2.roi, val2, dst.ptr, dst.roi, len));
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
inline std::error_code mul_mm4x4(const float* src1, const float* src2, float* dst) { return detail::status(::tarnMul_mm4x4_32f(src1, src2, dst)); }

inline const tarnLibraryVersion* get_lib_version() { return ::tarnGetLibVersion(); }

// The throwing forms: the same overloads, a status other than 0 thrown as tarn::error.
namespace throwing {
template <class... A>
auto add(A&&... a) -> decltype(void(tarn::add(std::forward<A>(a)...))) { detail::raise(tarn::add(std::forward<A>(a)...)); }
template <class... A>
auto copy(A&&... a) -> decltype(void(tarn::copy(std::forward<A>(a)...))) { detail::raise(tarn::copy(std::forward<A>(a)...)); }
template <class... A>
auto cross_product(A&&... a) -> decltype(void(tarn::cross_product(std::forward<A>(a)...))) { detail::raise(tarn::cross_product(std::forward<A>(a)...)); }
template <class... A>
auto dot_product(A&&... a) -> decltype(void(tarn::dot_product(std::forward<A>(a)...))) { detail::raise(tarn::dot_product(std::forward<A>(a)...)); }
template <class... A>
auto extract(A&&... a) -> decltype(void(tarn::extract(std::forward<A>(a)...))) { detail::raise(tarn::extract(std::forward<A>(a)...)); }
template <class... A>
auto frob_norm(A&&... a) -> decltype(void(tarn::frob_norm(std::forward<A>(a)...))) { detail::raise(tarn::frob_norm(std::forward<A>(a)...)); }
template <class... A>
auto l2_norm(A&&... a) -> decltype(void(tarn::l2_norm(std::forward<A>(a)...))) { detail::raise(tarn::l2_norm(std::forward<A>(a)...)); }
template <class... A>
auto l_comb(A&&... a) -> decltype(void(tarn::l_comb(std::forward<A>(a)...))) { detail::raise(tarn::l_comb(std::forward<A>(a)...)); }
template <class... A>
auto load_identity(A&&... a) -> decltype(void(tarn::load_identity(std::forward<A>(a)...))) { detail::raise(tarn::load_identity(std::forward<A>(a)...)); }
template <class... A>
auto mul(A&&... a) -> decltype(void(tarn::mul(std::forward<A>(a)...))) { detail::raise(tarn::mul(std::forward<A>(a)...)); }
template <class... A>
auto mul_mm4x4(A&&... a) -> decltype(void(tarn::mul_mm4x4(std::forward<A>(a)...))) { detail::raise(tarn::mul_mm4x4(std::forward<A>(a)...)); }
template <class... A>
auto saxpy(A&&... a) -> decltype(void(tarn::saxpy(std::forward<A>(a)...))) { detail::raise(tarn::saxpy(std::forward<A>(a)...)); }
template <class... A>
auto sub(A&&... a) -> decltype(void(tarn::sub(std::forward<A>(a)...))) { detail::raise(tarn::sub(std::forward<A>(a)...)); }
template <class... A>
auto trace(A&&... a) -> decltype(void(tarn::trace(std::forward<A>(a)...))) { detail::raise(tarn::trace(std::forward<A>(a)...)); }
template <class... A>
auto transpose(A&&... a) -> decltype(void(tarn::transpose(std::forward<A>(a)...))) { detail::raise(tarn::transpose(std::forward<A>(a)...)); }
}  // namespace throwing

}  // namespace tarn

#endif  // TARN_HPP
