#include "harness.hpp"

#include <sstream>

#include <omp.h>

namespace tt {

CallFixture::CallFixture(const MemberFn& m, int count, const Style& st, const std::function<Extent(int)>& extent)
    : m_(m), nm_(parseName(m.name)), count_(count) {
  for (int i = 0; i < m.nop; ++i) {
    const BlkInfo& b = m.blk[i];
    const Extent e = extent(i);
    arrays_.push_back(b.array);
    const int n = b.array ? count : 1;
    if (b.kind == 0) {
      // A plain pointer: one dense run of elements ending right before an inaccessible page.
      const int eb = e.elemBytes ? e.elemBytes : nm_.esize;
      ops_.push_back(std::make_unique<Operand>('S', eb, 1, e.cols * n, 1, false, style("guarded")));
    } else {
      // A single operand of a LayoutL member is strided like LayoutS, and constants are plain
      // strided data in LayoutP too; Copy's destination has the second layout letter.
      char lay = b.out ? nm_.layout2 : nm_.layout;
      if ((lay == 'L' && !b.array) || (lay == 'P' && b.kind == 'c')) lay = 'S';
      ops_.push_back(std::make_unique<Operand>(lay, nm_.esize, e.rows, e.cols, n, b.array, st));
    }
    args.op[i] = ops_.back()->blk();
    args.op[i].w = e.cols;
    args.op[i].h = e.rows;
  }
  args.count = count;
}

void CallFixture::fillSources(std::mt19937& rng, bool specials) {
  bool first = true;
  for (int i = 0; i < m_.nop; ++i)
    if (!m_.blk[i].out && m_.blk[i].kind != 0) {
      ops_[size_t(i)]->fillRandom(rng, specials && first);
      first = false;
    }
}

tarnStatus CallFixture::run(int threads) { return run(threads, m_.call); }

tarnStatus CallFixture::run(int threads, const std::function<tarnStatus(const Args&)>& call) {
  snap_.clear();
  was_.clear();
  for (auto& o : ops_) {
    snap_.push_back(o->snapshot());
    was_.push_back(std::make_unique<Operand>(*o));
  }
  omp_set_num_threads(threads);
  const tarnStatus s = call(args);
  omp_set_num_threads(1);
  return s;
}

std::string CallFixture::untouched(const std::vector<int>& writable) const {
  std::ostringstream why;
  for (int i = 0; i < m_.nop; ++i) {
    bool mayWrite = m_.blk[i].out;
    for (int w : writable) mayWrite |= w == i;
    if (!mayWrite && !ops_[size_t(i)]->unchangedSince(snap_[size_t(i)])) why << "argument " << i << " was written; ";
    if (!ops_[size_t(i)]->canariesIntact()) why << "argument " << i << " written outside its elements; ";
  }
  return why.str();
}

std::string CallFixture::unchanged() const {
  std::ostringstream why;
  for (int i = 0; i < m_.nop; ++i)
    if (!ops_[size_t(i)]->unchangedSince(snap_[size_t(i)])) why << "argument " << i << " was written; ";
  return why.str();
}

}  // namespace tt
