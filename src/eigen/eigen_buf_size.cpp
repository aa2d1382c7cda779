// EigenValuesGetBufSize, EigenValuesVectorsGetBufSize: the bytes of scratch a general
// eigenproblem member needs for one matrix of order widthHeight, in wrapping 32-bit arithmetic.
// One size serves every object of an array call; nothing is written on failure.
#include "call.hpp"
#include "dispatch.hpp"

namespace tarn {
namespace {

// n (m n + 5) elements of T.
template <class T>
tarnStatus bufSize(const Call& c, uint32_t m) {
  const uint32_t n = uint32_t(c.order);
  *plainOf<int32_t>(c.op[0]) = int32_t(n * (m * n + 5u) * uint32_t(sizeof(T)));
  return tarnStatusOk;
}

}  // namespace

namespace eigen_buf_size_values {
// The working matrix, the reflector scalars and a work vector, and n elements to spare.
template <Pat, class T, Layout>
tarnStatus run(const Plan&, const Call& c) {
  return bufSize<T>(c, 1);
}
}  // namespace eigen_buf_size_values

namespace eigen_buf_size_vectors {
// The working matrix, two blocks of vectors and five work vectors.
template <Pat, class T, Layout>
tarnStatus run(const Plan&, const Call& c) {
  return bufSize<T>(c, 3);
}
}  // namespace eigen_buf_size_vectors

}  // namespace tarn

#define TARN_IMPL_eigen_buf_size_values
#define TARN_IMPL_eigen_buf_size_vectors
#include "bindings.hpp"
