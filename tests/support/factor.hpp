// Drives any factorisation or substitution member (LU, Cholesky) from its name: places its
// blocks (order-n matrices, n-vectors, n pivots per object), lets the test fill the sources,
// runs it on some number of threads and walks a per-object model the way the library walks an
// array: object after object, each thread's slice on its own when a region opens, every walk
// ending at its first failing object. Every written element and the status are compared, and
// the fixture proves nothing else changed.
#pragma once

#include <functional>
#include <random>
#include <string>

#include "harness.hpp"

namespace tt {

// Dense row-major images of one object's blocks, by block index: elements of the member's type
// for operands, int32 for pivots. A result placed on a source shares its image.
template <class T>
struct Images {
  T* e[6] = {};
  int32_t* p[6] = {};
};

struct SolveCall {
  const MemberFn* m = nullptr;
  int n = 3;         // widthHeight
  int count = 1;     // array members only
  const Style* st = nullptr;
  int threads = 1;
  bool parallel = false;  // the test's own reading of E against the member's limit
  int onto = -1;          // block the result is placed on (dst equal to that source), or -1
};

// The model of one object: reads and writes the images, returns the object's status.
template <class T>
using SolveModel = std::function<tarnStatus(Images<T>&)>;
using SolveFill = std::function<void(CallFixture&, std::mt19937&)>;

// Empty when the member matches the model, else what differed.
std::string runSolve(const SolveCall& call, const SolveFill& fill, const SolveModel<float>& m32,
                     const SolveModel<double>& m64, unsigned seed);

// Equal bits, or both NaN: where two NaNs meet in one operation the compiler may take either
// operand's payload, so NaN payloads are not part of any result.
bool sameValue(uint64_t a, uint64_t b, int esize);

// The blocks of the four families: an order-n matrix, n pivots, or an n-vector.
Extent solveExtent(const MemberFn& m, int block, int n);

}  // namespace tt
