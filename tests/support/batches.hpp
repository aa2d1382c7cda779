// One batch per family with a parallel wrapper, large enough that the call opens a region on
// any placement, and the sizes of any member's blocks from one order n. A batch can carry
// failing objects; its results are then compared with the same batch without them, slice by
// slice: a failing object's slice stops there (or goes on, where the family does), every other
// object holds exactly what it holds in the clean batch.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "harness.hpp"

namespace tt {

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
