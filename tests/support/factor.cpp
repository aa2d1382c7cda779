#include "factor.hpp"

#include <cmath>
#include <cstring>
#include <sstream>
#include <vector>

namespace tt {

bool sameValue(uint64_t a, uint64_t b, int esize) {
  return a == b || (std::isnan(valueOf(a, esize)) && std::isnan(valueOf(b, esize)));
}

Extent solveExtent(const MemberFn& m, int block, int n) {
  const BlkInfo& b = m.blk[block];
  if (b.kind == 0) return {1, n, 4};  // pivots
  return b.kind == 'm' ? Extent{n, n} : Extent{1, n};
}

namespace {

// Plain pointers hold their objects one after the other in a single run.
uint64_t bitsAt(const Operand& o, bool plain, int k, int r, int c, int cols) {
  return plain ? o.bits(0, 0, k * cols + c) : o.bits(k, r, c);
}

template <class T>
std::string check(const SolveCall& call, CallFixture& fx, tarnStatus got, const SolveModel<T>& model) {
  const MemberFn& m = *call.m;
  const int count = fx.count();
  // Images before the call, per block and object; written blocks evolve as the model walks.
  struct Block {
    std::vector<std::vector<T>> e;
    std::vector<std::vector<int32_t>> p;
  };
  std::vector<Block> img(size_t(m.nop));
  for (int b = 0; b < m.nop; ++b) {
    const Operand& was = fx.before(b);
    const Extent ex = solveExtent(m, b, call.n);
    for (int k = 0; k < (fx.isArray(b) ? count : 1); ++k) {
      std::vector<T> e;
      std::vector<int32_t> p;
      for (int r = 0; r < ex.rows; ++r)
        for (int c = 0; c < ex.cols; ++c) {
          const uint64_t bits = bitsAt(was, m.blk[b].kind == 0, k, r, c, ex.cols);
          if (m.blk[b].kind == 0) p.push_back(int32_t(uint32_t(bits)));
          else {
            T v;
            std::memcpy(&v, &bits, sizeof v);
            e.push_back(v);
          }
        }
      img[size_t(b)].e.push_back(e);
      img[size_t(b)].p.push_back(p);
    }
  }
  // The walks: one slice, or the slices a region of `threads` gives.
  std::vector<std::pair<int, int>> slices;
  if (call.parallel && call.threads >= 2 && count >= call.threads) {
    const int q = count / call.threads, r = count % call.threads;
    for (int id = 0; id < call.threads; ++id)
      slices.push_back(id < r ? std::pair{id * (q + 1), q + 1} : std::pair{(q + 1) * r + (id - r) * q, q});
  } else {
    slices.push_back({0, count});
  }
  tarnStatus want = tarnStatusOk;
  for (auto [first, n] : slices)
    for (int k = first; k < first + n; ++k) {
      Images<T> im;
      for (int b = 0; b < m.nop; ++b) {
        const int src = call.onto >= 0 && m.blk[b].out && m.blk[b].kind ? call.onto : b;
        const size_t obj = fx.isArray(src) ? size_t(k) : 0;
        im.e[b] = img[size_t(src)].e[obj].data();
        im.p[b] = img[size_t(src)].p[obj].data();
      }
      if (const tarnStatus st = model(im)) {
        if (want == tarnStatusOk) want = st;
        break;
      }
    }
  std::ostringstream why;
  if (got != want) why << "status " << got << ", want " << want << "; ";
  int bad = 0;
  std::vector<int> writable;
  for (int b = 0; b < m.nop; ++b) {
    if (!m.blk[b].out) continue;
    const int at = call.onto >= 0 && m.blk[b].kind ? call.onto : b;
    writable.push_back(at);
    const Extent ex = solveExtent(m, b, call.n);
    const int esize = m.blk[b].kind ? fx.esize() : 4;
    for (int k = 0; k < (fx.isArray(at) ? count : 1); ++k)
      for (int r = 0; r < ex.rows; ++r)
        for (int c = 0; c < ex.cols; ++c) {
          const int i = r * ex.cols + c;
          uint64_t w = 0;
          if (m.blk[b].kind == 0) w = uint32_t(img[size_t(at)].p[size_t(k)][size_t(i)]);
          else std::memcpy(&w, &img[size_t(at)].e[size_t(k)][size_t(i)], sizeof(T));
          const uint64_t g = bitsAt(fx.block(at), m.blk[b].kind == 0, k, r, c, ex.cols);
          if (!sameValue(g, w, esize) && bad++ < 4)
            why << "block " << at << " object " << k << " (" << r << "," << c << ") got " << std::hex << g << " want "
                << w << std::dec << "; ";
        }
  }
  why << fx.untouched(writable);
  return why.str();
}

}  // namespace

std::string runSolve(const SolveCall& call, const SolveFill& fill, const SolveModel<float>& m32,
                     const SolveModel<double>& m64, unsigned seed) {
  const MemberFn& m = *call.m;
  CallFixture fx(m, call.count, *call.st, [&](int b) { return solveExtent(m, b, call.n); });
  fx.args.order = call.n;
  for (int b = 0; b < m.nop; ++b)
    if (call.onto >= 0 && m.blk[b].out && m.blk[b].kind) fx.args.op[b] = fx.args.op[call.onto];
  std::mt19937 rng(seed);
  fill(fx, rng);
  const tarnStatus got = fx.run(call.threads);
  std::string why = fx.esize() == 4 ? check<float>(call, fx, got, m32) : check<double>(call, fx, got, m64);
  if (!why.empty())
    why = std::string(m.name) + " n " + std::to_string(call.n) + " count " + std::to_string(call.count) + " " +
          call.st->name + " threads " + std::to_string(call.threads) + (call.onto >= 0 ? " in place" : "") + ": " + why;
  return why;
}

}  // namespace tt
