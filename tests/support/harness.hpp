// Any member's arguments, placed from its argument description: every operand block becomes an
// Operand in the member's layout and the chosen placement, every plain pointer (scalar results,
// eigenvalues, pivots, work buffers) a guarded array. A family's test sets the sizes, fills the
// sources, runs the member on some number of threads and compares the results with its model;
// the fixture proves that the sources were not written and that no byte outside the results
// changed.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <system_error>
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

// A member's sizes by their names in the C prototype ("width", "src1Height", "len",
// "widthHeight", ...), and "count".
using Sizes = std::map<std::string, int>;

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
  const Extent& extent(int i) const { return ext_[size_t(i)]; }
  // Every element stride of the call is the element size.
  bool contiguous() const;

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

  // Every element of every result (work buffers left out), as bits in argument order.
  std::vector<uint64_t> results() const;
  // Empty when every element (n, r, c) of block `dst` has the bits of want(n, r, c) in the element
  // type (any NaN matching any NaN) and untouched(writable) holds; else the first differences. A
  // plain block is one object: element k of object n is column n * cols + k.
  std::string compare(int dst, const std::function<double(int n, int r, int c)>& want,
                      const std::vector<int>& writable = {}) const;

 private:
  const MemberFn& m_;
  Name nm_;
  int count_;
  std::vector<std::unique_ptr<Operand>> ops_, was_;
  std::vector<std::vector<uint8_t>> snap_;
  std::vector<bool> arrays_;
  std::vector<Extent> ext_;
};

// ---- Shapes: per member, from its argument description ----------------------------------------

struct MemberShape {
  const char* name;
  // Adds every missing size with a default (unequal ones: 3 for widths, 4 for heights, 5 for
  // lengths), then makes each equation of the shape rule hold by setting one side from the other.
  void (*sizes)(Sizes&);
  Extent (*extent)(const Sizes&, int block);
  std::error_code (*call)(const Args&, const Sizes&);  // through tarn.hpp
};
const MemberShape* shapeOf(const std::string& exportName);

// Member `m` with sizes `z` on `count` objects placed in `st`; the call's sizes and count are set,
// the sources filled from `seed`. Missing sizes take their defaults, then each equation of the
// shape rule sets one side from the other: give every size the rule ties to keep them all.
std::unique_ptr<CallFixture> placed(const MemberFn& m, Sizes z, int count, const Style& st, unsigned seed,
                                    bool specials = false);

// ---- Checks: a member's sequence as the member table spells it ---------------------------------

tarnStatus statusOf(char letter);
// A check of the sequence: its letter, and `s` or `d` when it covers only the blocks the member
// reads or only those it writes.
struct Check {
  char letter, scope;
};
std::vector<Check> checksOf(const char* seq);
// Whether pointer argument `i` of `m` is one the check covers.
inline bool inScope(const MemberFn& m, int i, char scope) { return scope == 0 || (scope == 'd') == m.blk[i].out; }
// The status the checks return on `a` (letters left to right, the first failing one decides), or
// tarnStatusOk when the call passes them; `shapeOk`: the sizes satisfy the shape rule.
tarnStatus expected(const MemberFn& m, const Args& a, int esize, bool shapeOk);
bool isCheckStatus(tarnStatus s);

// ---- Element-wise members: two operands, one result of the same shape --------------------------

// One result element from the two operands in the order of the arithmetic (the pattern's
// letters), the call's scalars and the element size.
using RefOp = std::function<double(double a, double b, const Args& args, int esize)>;
struct EwShape {
  int h, w;  // result rows and columns; vectors use h = 1, w = len
};
struct EwRun {
  std::vector<uint64_t> result;  // dst bits in (object, row, column) order
  std::string failure;           // empty when every check passed
};
// Runs member `m` on objects made from `seed`, in placement `st`, on `threads` threads, and
// compares every result element with `op` applied to the operands as they were. Exceptional
// values go into the first operand; every fourth seed makes the scalars (and constants) 0, which
// multiply NaN and infinity like any other value. With `inPlace` the result is written over the
// first operand (same description).
EwRun runElementwise(const MemberFn& m, const EwShape& shape, int count, const Style& st, int threads,
                     unsigned seed, const RefOp& op, bool inPlace = false);

// ---- Batches past the parallel thresholds ------------------------------------------------------
// One batch per family with a parallel wrapper, large enough that the call opens a region on any
// placement. A batch can carry failing objects; its results are then compared with the same
// batch without them, slice by slice: a failing object's slice stops there (or goes on, where the
// family does), every other object holds exactly what it holds in the clean batch.

// Sources: values with many significant bits, symmetric, or positive definite matrices, the
// matrix of the point transform; exact data: small integers, permutation matrices scaled by
// powers of two (every factor and inverse exact), or values with NaNs, infinities and denormals.
enum class Fill { Random, Symmetric, PosDef, Affine, Integers, ScaledPermutation, Specials };
// How an object is made to fail: a zero matrix, a NaN matrix, or a point whose w' is 0.
enum class Spoil { None, Zero, NaN, Point };

struct BatchRow {
  const char* member;
  int n;      // order of every square matrix, length of every vector
  int count;  // objects: E past every threshold of the member
  Fill fill = Fill::Random;
  Spoil spoil = Spoil::None;
  tarnStatus fails = 0;  // the status a batch with a failing object returns
  bool stops = true;     // a failing object ends the walk of its slice
};
const std::vector<BatchRow>& parallelBatches();

// Blocks of any member with every size n: matrices n x n, vectors n long, one constant per
// object; per-object plain results n elements (int32 pivots in the LU families), shared plain
// pointers room for any work space.
Extent extentOfOrder(const MemberFn& m, int block, int n);

// The batch of `row` on `st`, filled from `seed`, objects in `bad` spoilt, sizes and scalars
// set; row orders (pivots the member reads) are rotations of 0..n-1.
std::unique_ptr<CallFixture> makeBatch(const BatchRow& row, const Style& st, unsigned seed,
                                       const std::vector<int>& bad = {});

// Empty when every per-object result of `got`, which ran on a team of `team` threads (1: the
// serial walk), is what the slices make of `clean`, the same batch without failing objects run
// serially: objects behind a failing object in its slice untouched, the failing objects'
// results not looked at. Else what differs. Without `signedZeros`, -0 and +0 count as equal.
std::string compareBatch(const BatchRow& row, const CallFixture& got, const CallFixture& clean,
                         const std::vector<int>& bad, int team, bool signedZeros = true);

// The number of threads the environment asks for: OMP_NUM_THREADS, else the processors.
int envThreads();

}  // namespace tt
