// Checks a member of the solving families against its model object by object: the walk of each
// thread's slice stops at the slice's first failing object, objects behind it keep their old
// contents, and every result element is compared bit for bit (any NaN matches any NaN).
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "harness.hpp"
#include "ref/solve_ref.hpp"

namespace tt {

// What the model makes of object n: its status and its result elements in row-major order;
// `kept` marks the elements a failing object leaves as they were (empty: none).
struct Outcome {
  int status = 0;
  std::vector<double> values;
  std::vector<bool> kept;
};

// Where result element k of object n lies in the result block: object, row and column.
struct Place {
  int n, r, c;
};

// The slices [first, first + n) a walk on `threads` threads takes (one slice when serial).
std::vector<std::pair<int, int>> slicesOf(int count, int threads, bool parallel);

// Compares the result block `dst` of a call that has run with the model; returns what differs,
// empty when all agrees, and the status the walk must have returned in `status`. With `pairs`
// each slice goes two objects at a time from its start: a pair with a failing object is left
// unwritten as a whole.
std::string compareWalk(const CallFixture& fx, int dst, int perObject, int threads, bool parallel,
                        const std::function<Outcome(int n)>& model, const std::function<Place(int n, int k)>& place,
                        int& status, bool pairs = false);

// Object n of a block as a model matrix, from the operands as they were before the call.
template <class T>
ref::Mat<T> matOf(const CallFixture& fx, int block, int n, int rows, int cols) {
  ref::Mat<T> m(rows, cols);
  for (int r = 0; r < rows; ++r)
    for (int c = 0; c < cols; ++c) m(r, c) = T(fx.before(block).get(n, r, c));
  return m;
}

// Calls f.template operator()<T>() with the element type of the member.
template <class F>
auto byType(int esize, F&& f) {
  return esize == 4 ? f.template operator()<float>() : f.template operator()<double>();
}

// Whether every element stride of the call equals the element size.
bool contiguousCall(const CallFixture& fx);

}  // namespace tt
