#include "elementwise.hpp"

#include <memory>
#include <sstream>

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
  std::mt19937 rng(seed);

  // Operands in argument order: matrices and vectors first, then an array of constants.
  Args args;
  std::vector<std::unique_ptr<Operand>> srcs(ops.size());
  int slot = 0;
  auto build = [&](size_t i) {
    const PatOperand o = ops[i];
    // The single operand of a LayoutL member is strided like LayoutS; an array of constants is
    // plain strided data in LayoutP too.
    char lay = nm.layout;
    if ((lay == 'L' && !o.array) || (lay == 'P' && o.kind == 'c')) lay = 'S';
    const int rows = o.kind == 'c' ? 1 : o.kind == 't' ? w : h;
    const int cols = o.kind == 'c' ? 1 : o.kind == 't' ? h : w;
    srcs[i] = std::make_unique<Operand>(lay, nm.esize, rows, cols, o.array ? count : 1, o.array, st);
    srcs[i]->fillRandom(rng, i == 0);  // exceptional values in one operand only
    args.op[slot++] = srcs[i]->blk();
  };
  for (size_t i = 0; i < ops.size(); ++i)
    if (ops[i].kind != 'c') build(i);
  for (size_t i = 0; i < ops.size(); ++i)
    if (ops[i].kind == 'c' && ops[i].array) build(i);
  Operand out(nm.layout, nm.esize, h, w, n, anyArray, st);
  Operand& dst = inPlace ? *srcs[0] : out;
  args.op[slot] = dst.blk();
  args.width = w;
  args.height = h;
  args.len = w;
  args.count = count;
  args.val[0] = randomValue(rng, nm.esize);
  args.val[1] = randomValue(rng, nm.esize);

  std::vector<std::vector<uint8_t>> before;
  for (auto& s : srcs)
    if (s) before.push_back(s->snapshot());
  // The expected values come from the operands as they were before the call.
  std::vector<std::unique_ptr<Operand>> was;
  for (auto& s : srcs) was.push_back(s ? std::make_unique<Operand>(*s) : nullptr);

  omp_set_num_threads(threads);
  const tarnStatus status = m.call(args);
  omp_set_num_threads(1);

  std::ostringstream why;
  if (status != tarnStatusOk) why << "status " << status << "; ";
  auto seen = [&](size_t i, int obj, int r, int c) {
    const PatOperand o = ops[i];
    if (o.kind == 'c' && !o.array) return args.val[0];
    const int k = o.array ? obj : 0;
    return o.kind == 't' ? was[i]->get(k, c, r) : o.kind == 'c' ? was[i]->get(k, 0, 0) : was[i]->get(k, r, c);
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
  if (!dst.canariesIntact()) why << "dst written outside its elements; ";
  size_t j = 0;
  for (auto& s : srcs)
    if (s && !s->unchangedSince(before[j++]) && s.get() != &dst) why << "a source was written; ";
  run.failure = why.str();
  if (!run.failure.empty())
    run.failure = std::string(m.name) + " " + std::to_string(h) + "x" + std::to_string(w) + " count " +
                  std::to_string(count) + " " + st.name + " threads " + std::to_string(threads) + ": " + run.failure;
  return run;
}

}  // namespace tt
