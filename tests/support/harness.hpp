// Any member's arguments, placed from its argument description: every operand block becomes an
// Operand in the member's layout and the chosen placement, every plain pointer (scalar results,
// eigenvalues, pivots, work buffers) a guarded array. A family's test sets the sizes, fills the
// sources, runs the member on some number of threads and compares the results with its model;
// the fixture proves that the sources were not written and that no byte outside the results
// changed.
#pragma once

#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "members.hpp"
#include "operand.hpp"

namespace tt {

// The stored shape of one object of a pointer argument: rows and columns of an operand (a
// vector is one row, a constant 1 by 1), or for a plain pointer `cols` elements per object (of
// `elemBytes` bytes: 4 for pivots and sizes) and rows 1.
struct Extent {
  int rows = 1, cols = 1;
  int elemBytes = 0;  // 0: the member's element size
};

class CallFixture {
 public:
  // `count` objects of every array operand; single operands and shared plain pointers hold one.
  CallFixture(const MemberFn& m, int count, const Style& st, const std::function<Extent(int block)>& extent);

  const MemberFn& member() const { return m_; }
  const Name& name() const { return nm_; }
  int count() const { return count_; }
  int esize() const { return nm_.esize; }

  Operand& block(int i) { return *ops_[size_t(i)]; }
  const Operand& block(int i) const { return *ops_[size_t(i)]; }
  bool isArray(int i) const { return arrays_[size_t(i)]; }

  // Pointers, strides, shifts and the blocks' own sizes are filled; the caller sets the sizes of
  // the call, count and scalars.
  Args args;

  // Fills every operand the member reads from `rng` (see Operand::fillRandom); `specials` puts
  // exceptional values into the first source only.
  void fillSources(std::mt19937& rng, bool specials);

  // Runs the member on `threads` threads (then back to 1) and returns its status. The sources as
  // they were before the call stay readable through before(i).
  tarnStatus run(int threads);
  // The same, with the member reached some other way than its export (a binding over it).
  tarnStatus run(int threads, const std::function<tarnStatus(const Args&)>& call);
  const Operand& before(int i) const { return *was_[size_t(i)]; }

  // Empty when every source is unchanged (unless `writable`) and every byte that is not an
  // element of some block still holds its canary; else what went wrong.
  std::string untouched(const std::vector<int>& writable = {}) const;
  // Empty when no byte of any argument changed at all (a call that failed its checks).
  std::string unchanged() const;

 private:
  const MemberFn& m_;
  Name nm_;
  int count_;
  std::vector<std::unique_ptr<Operand>> ops_, was_;
  std::vector<std::vector<uint8_t>> snap_;
  std::vector<bool> arrays_;
};

}  // namespace tt
