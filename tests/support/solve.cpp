#include "solve.hpp"

#include "scratch.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <sstream>

namespace tt {

std::vector<std::pair<int, int>> slicesOf(int count, int threads, bool parallel) {
  if (!parallel) return {{0, count}};
  const int q = count / threads, r = count % threads;
  std::vector<std::pair<int, int>> out;
  for (int id = 0; id < threads; ++id)
    out.push_back(id < r ? std::pair{id * (q + 1), q + 1} : std::pair{(q + 1) * r + (id - r) * q, q});
  return out;
}

bool sameValue(uint64_t a, uint64_t b, int esize) {
  return a == b || (std::isnan(valueOf(a, esize)) && std::isnan(valueOf(b, esize)));
}

Extent orderExtent(const MemberFn& m, int block, int n) {
  const std::string f = parseName(m.name).family;
  if (m.blk[block].kind) return m.blk[block].kind == 'm' ? Extent{n, n} : Extent{1, n};
  if (f == "Det" || f == "Invert") return block == 1 ? Extent{1, n * (n + 1)} : Extent{1, 1};
  return {1, n, f.starts_with("LU") ? 4 : 0};  // pivots, or QR's work space
}

namespace {

template <class T>
std::string check(const SolveCall& call, CallFixture& fx, tarnStatus got, const SolveModel<T>& model,
                  const std::vector<ScratchBlock>& scratch) {
  const MemberFn& m = *call.m;
  const int count = m.hasCount ? fx.count() : 1, es = fx.esize();
  const bool region = call.parallel && call.threads >= 2 && count >= call.threads;
  auto ints = [&](int b) { return call.extent(b).elemBytes != 0; };
  auto home = [&](int b) { return call.onto >= 0 && m.blk[b].out && m.blk[b].kind ? call.onto : b; };
  auto objects = [&](int b) { return fx.isArray(b) ? count : 1; };
  auto buffer = [&](int b) { return m.blk[b].out && m.blk[b].kind == 0 && !fx.isArray(b); };  // shared work space
  auto bitsAt = [&](const Operand& o, int b, int k, int i) {
    const int cols = call.extent(b).cols;
    return m.blk[b].kind ? o.bits(k, i / cols, i % cols) : o.bits(0, 0, k * cols + i);
  };
  struct Block {
    std::vector<std::vector<T>> e;
    std::vector<std::vector<int32_t>> p;
  };
  std::vector<Block> img(size_t(m.nop));
  for (int b = 0; b < m.nop; ++b) {
    const Extent ex = call.extent(b);
    for (int k = 0; k < objects(b); ++k) {
      std::vector<T> e;
      std::vector<int32_t> p;
      for (int i = 0; i < ex.rows * ex.cols; ++i) {
        const uint64_t bits = bitsAt(fx.before(b), b, k, i);
        if (ints(b)) p.push_back(int32_t(uint32_t(bits)));
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
  Images<T> im;
  im.contiguous = true;
  for (int i = 0; i < m.nop; ++i)
    if ((m.blk[i].has & kElem) && fx.args.op[i].elem != es) im.contiguous = false;
  auto point = [&](int k) {
    for (int b = 0; b < m.nop; ++b) {
      const int at = home(b);
      const size_t obj = fx.isArray(at) ? size_t(k) : 0;
      im.e[b] = img[size_t(at)].e[obj].data();
      im.p[b] = img[size_t(at)].p[obj].data();
    }
  };
  // The walks. In a region each thread's work space starts as the allocator's canaries.
  tarnStatus want = tarnStatusOk;
  const auto slices = slicesOf(count, call.threads, region);
  const std::vector<Block> before = img;
  std::vector<std::vector<T>> parts;
  for (auto [first, len] : slices) {
    for (int b = 0; b < m.nop; ++b)
      if (region && buffer(b)) {
        std::vector<T> canaries(img[size_t(b)].e[0].size());
        std::memset(canaries.data(), kFill, canaries.size() * sizeof(T));
        img[size_t(b)].e[0] = canaries;
      }
    for (int k = first; k < first + len;) {
      const int step = call.pairs && k + 1 < first + len ? 2 : 1;
      std::vector<Block> keep(size_t(m.nop));
      for (int b = 0; b < m.nop && step == 2; ++b)
        for (int i = 0; i < (fx.isArray(b) ? 2 : 1); ++i) {
          keep[size_t(b)].e.push_back(img[size_t(b)].e[size_t(fx.isArray(b) ? k + i : 0)]);
          keep[size_t(b)].p.push_back(img[size_t(b)].p[size_t(fx.isArray(b) ? k + i : 0)]);
        }
      tarnStatus st = tarnStatusOk;
      for (int i = 0; i < step; ++i) {
        point(k + i);
        if (const tarnStatus s = model(im); s && !st) st = s;
      }
      if (st) {
        for (int b = 0; b < m.nop && step == 2; ++b)
          for (int i = 0; i < (fx.isArray(b) ? 2 : 1); ++i) {
            img[size_t(b)].e[size_t(fx.isArray(b) ? k + i : 0)] = keep[size_t(b)].e[size_t(i)];
            img[size_t(b)].p[size_t(fx.isArray(b) ? k + i : 0)] = keep[size_t(b)].p[size_t(i)];
          }
        if (!want) want = st;
        break;
      }
      k += step;
    }
    for (int b = 0; b < m.nop; ++b)
      if (region && buffer(b)) parts.push_back(img[size_t(b)].e[0]);
  }
  std::ostringstream why;
  if (got != want || (call.status != 1 && got != call.status))
    why << "status " << got << ", want " << (call.status != 1 ? call.status : want) << "; ";
  int bad = 0;
  std::vector<int> writable;
  bool hasBuffer = false;
  for (int b = 0; b < m.nop; ++b) {
    if (!m.blk[b].out) continue;
    const int at = home(b);
    writable.push_back(at);
    hasBuffer = hasBuffer || buffer(b);
    const bool opaque = std::find(call.opaque.begin(), call.opaque.end(), b) != call.opaque.end();
    if (opaque && !(region && buffer(b))) continue;
    const Block& w = region && buffer(b) ? before[size_t(b)] : img[size_t(at)];
    const int n = call.extent(b).rows * call.extent(b).cols;
    for (int k = 0; k < objects(at); ++k)
      for (int i = 0; i < n; ++i) {
        uint64_t want = 0;
        if (ints(b)) want = uint32_t(w.p[size_t(k)][size_t(i)]);
        else std::memcpy(&want, &w.e[size_t(k)][size_t(i)], sizeof(T));
        const uint64_t g = bitsAt(fx.block(at), b, k, i);
        if (!sameValue(g, want, ints(b) ? 4 : es) && bad++ < 4)
          why << "block " << at << " object " << k << " element " << i << " got " << std::hex << g << " want "
              << want << std::dec << "; ";
      }
  }
  // A region's work space: one block of a part per thread, each thread in its own part.
  if (scratch.size() != size_t(region && hasBuffer)) why << scratch.size() << " scratch blocks taken; ";
  for (const ScratchBlock& s : scratch) {
    const size_t per = parts.empty() ? 0 : parts[0].size() * sizeof(T);
    if (!s.released || s.bytes != per * size_t(call.threads)) why << "scratch of " << s.bytes << " bytes; ";
    if (std::any_of(s.content.begin() + std::ptrdiff_t(s.bytes), s.content.end(), [](uint8_t v) { return v != kFill; }))
      why << "scratch written past its end; ";
    for (size_t id = 0; id < parts.size() && s.released && call.opaque.empty(); ++id)
      if (std::memcmp(s.content.data() + id * per, parts[id].data(), per) != 0) why << "thread " << id << " part; ";
  }
  why << fx.untouched(writable);
  return why.str();
}

}  // namespace

std::string runSolve(const SolveCall& call, const SolveModel<float>& m32, const SolveModel<double>& m64) {
  const MemberFn& m = *call.m;
  CallFixture fx(m, call.count, *call.st, call.extent);
  fx.args.order = call.order;
  fx.args.width = call.width;
  fx.args.height = call.height;
  for (int b = 0; b < m.nop; ++b)
    if (call.onto >= 0 && m.blk[b].out && m.blk[b].kind) fx.args.op[b] = fx.args.op[call.onto];
  std::mt19937 rng(call.seed);
  if (call.fill) call.fill(fx, rng);
  else fx.fillSources(rng, call.specials);
  tarnStatus got = 0;
  const std::vector<ScratchBlock> scratch = scratchDuring([&] { got = fx.run(call.threads); });
  std::string why =
      fx.esize() == 4 ? check<float>(call, fx, got, m32, scratch) : check<double>(call, fx, got, m64, scratch);
  if (call.inspect) why += call.inspect(fx);
  if (!why.empty())
    why = std::string(m.name) + " order " + std::to_string(call.order) + " " + std::to_string(call.height) + "x" +
          std::to_string(call.width) + " count " + std::to_string(call.count) + " " + call.st->name + " threads " +
          std::to_string(call.threads) + (call.onto >= 0 ? " in place" : "") + ": " + why;
  return why;
}

}  // namespace tt
