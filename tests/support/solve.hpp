// Drives any member of the solving families from its name: places its blocks, lets the test fill
// the sources, runs it on some number of threads and walks a model of one object over dense
// row-major images the way the library walks an array: object after object, each thread's slice
// on its own when a region opens, every walk ending at its first failing object. Every written
// element (any NaN matching any NaN) and the status are compared, the fixture proves nothing else
// changed, and a parallel walk's scratch is watched through the runtime's allocator.
#pragma once

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "harness.hpp"

namespace tt {

// The slices [first, first + n) a walk on `threads` threads takes (one slice when serial).
std::vector<std::pair<int, int>> slicesOf(int count, int threads, bool parallel);

// One object's blocks by block index: elements of the member's type, or int32 for blocks whose
// extent names 4-byte elements (pivots). A result placed on a source shares its image.
template <class T>
struct Images {
  T* e[6] = {};
  int32_t* p[6] = {};
  bool contiguous = false;  // every element stride of the call is the element size
};
template <class T>
using SolveModel = std::function<tarnStatus(Images<T>&)>;

struct SolveCall {
  const MemberFn* m = nullptr;
  std::function<Extent(int block)> extent;
  int count = 1;  // array members only
  const Style* st = nullptr;
  int threads = 1;
  bool parallel = false;    // the test's own reading of E against the member's limit
  int onto = -1;            // source block the result is placed on, or -1
  bool pairs = false;       // each slice goes two objects at a time; a pair with a failure stays unwritten
  std::vector<int> opaque;  // written blocks the model does not follow (work space)
  int status = 1;           // a status typed by the test, beside the model's; 1: none
  unsigned seed = 1;
  bool specials = false;
  int order = 0, width = 0, height = 0;
  std::function<void(CallFixture&, std::mt19937&)> fill;  // none: fillSources
  std::function<std::string(const CallFixture&)> inspect;  // more checks of the results, typed by the test
};

// Empty when the member matches the model, else what differed.
std::string runSolve(const SolveCall& call, const SolveModel<float>& m32, const SolveModel<double>& m64);
template <class F>
std::string runSolve(const SolveCall& call, F model) {
  return runSolve(call, SolveModel<float>(model), SolveModel<double>(model));
}

// The blocks of an order-n member: n by n matrices, n-vectors, n int32 pivots, n elements of QR's
// work space; Det's result and the n(n+1) elements of Det's and Invert's work space.
Extent orderExtent(const MemberFn& m, int block, int n);

// Equal bits, or both NaN: where two NaNs meet in one operation the compiler may take either
// operand's payload, so NaN payloads are not part of any result.
bool sameValue(uint64_t a, uint64_t b, int esize);

}  // namespace tt
