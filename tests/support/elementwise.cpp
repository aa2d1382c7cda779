#include "elementwise.hpp"

#include <sstream>

#include "harness.hpp"

namespace tt {

namespace {

struct PatOperand {
  char kind;  // m t v c
  bool array;
};

std::vector<PatOperand> operandsOf(const std::string& p) {
  std::vector<PatOperand> out;
  for (size_t i = 0; i < p.size(); ++i) {
    PatOperand o{p[i], i + 1 < p.size() && p[i + 1] == 'a'};
    if (o.array) ++i;
    out.push_back(o);
  }
  return out;
}

}  // namespace

EwRun runElementwise(const MemberFn& m, const EwShape& shape, int count, const Style& st, int threads,
                     unsigned seed, const RefOp& op, bool inPlace) {
  EwRun run;
  const Name nm = parseName(m.name);
  const auto ops = operandsOf(nm.pattern);
  bool anyArray = false, matrix = false;
  for (auto o : ops) {
    anyArray |= o.array;
    matrix |= o.kind == 'm' || o.kind == 't';
  }
  const int h = matrix ? shape.h : 1, w = shape.w, n = anyArray ? count : 1;

  // Argument blocks: the pattern's matrices and vectors, then an array of constants, then dst;
  // a single constant is a value.
  std::vector<int> blockOf(ops.size(), -1);
  int blocks = 0;
  for (size_t i = 0; i < ops.size(); ++i)
    if (ops[i].kind != 'c') blockOf[i] = blocks++;
  for (size_t i = 0; i < ops.size(); ++i)
    if (ops[i].kind == 'c' && ops[i].array) blockOf[i] = blocks++;
  const int dstBlock = blocks;
  CallFixture fx(m, count, st, [&](int b) -> Extent {
    for (size_t i = 0; i < ops.size(); ++i)
      if (blockOf[i] == b) return ops[i].kind == 'c' ? Extent{1, 1} : ops[i].kind == 't' ? Extent{w, h} : Extent{h, w};
    return {h, w};
  });
  std::mt19937 rng(seed);
  for (size_t i = 0; i < ops.size(); ++i)
    if (blockOf[i] >= 0) fx.block(blockOf[i]).fillRandom(rng, i == 0);  // exceptional values in one operand only
  Args& args = fx.args;
  args.width = w;
  args.height = h;
  args.len = w;
  args.val[0] = randomValue(rng, nm.esize);
  args.val[1] = randomValue(rng, nm.esize);
  if (inPlace) args.op[dstBlock] = args.op[blockOf[0]];
  const Operand& dst = fx.block(inPlace ? blockOf[0] : dstBlock);

  const tarnStatus status = fx.run(threads);

  std::ostringstream why;
  if (status != tarnStatusOk) why << "status " << status << "; ";
  // The expected values come from the operands as they were before the call.
  auto seen = [&](size_t i, int obj, int r, int c) {
    const PatOperand o = ops[i];
    if (blockOf[i] < 0) return args.val[0];
    const Operand& was = fx.before(blockOf[i]);
    const int k = o.array ? obj : 0;
    return o.kind == 't' ? was.get(k, c, r) : o.kind == 'c' ? was.get(k, 0, 0) : was.get(k, r, c);
  };
  int bad = 0;
  for (int k = 0; k < n; ++k)
    for (int r = 0; r < h; ++r)
      for (int c = 0; c < w; ++c) {
        const double a = seen(0, k, r, c), b = ops.size() > 1 ? seen(1, k, r, c) : 0.0;
        const uint64_t want = bitsOf(op(a, b, args, nm.esize), nm.esize), got = dst.bits(k, r, c);
        run.result.push_back(got);
        if (want != got && bad++ < 3)
          why << "object " << k << " (" << r << "," << c << ") want " << std::hex << want << " got " << got << std::dec
              << "; ";
      }
  why << fx.untouched(inPlace ? std::vector<int>{blockOf[0]} : std::vector<int>{});
  run.failure = why.str();
  if (!run.failure.empty())
    run.failure = std::string(m.name) + " " + std::to_string(h) + "x" + std::to_string(w) + " count " +
                  std::to_string(count) + " " + st.name + " threads " + std::to_string(threads) + ": " + run.failure;
  return run;
}

}  // namespace tt
