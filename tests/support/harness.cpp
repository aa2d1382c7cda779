#include "harness.hpp"

#include <omp.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <sstream>

#include "tarn.hpp"

namespace tt {

CallFixture::CallFixture(const MemberFn& m, int count, const Style& st, const std::function<Extent(int)>& extent)
    : m_(m), nm_(parseName(m.name)), count_(count) {
  for (int i = 0; i < m.nop; ++i) {
    const BlkInfo& b = m.blk[i];
    const Extent e = extent(i);
    arrays_.push_back(b.array);
    ext_.push_back(e);
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

bool CallFixture::contiguous() const {
  for (int i = 0; i < m_.nop; ++i)
    if ((m_.blk[i].has & kElem) && args.op[i].elem != nm_.esize) return false;
  return true;
}

std::vector<uint64_t> CallFixture::results() const {
  std::vector<uint64_t> out;
  for (int i = 0; i < m_.nop; ++i) {
    if (!m_.blk[i].out || (m_.blk[i].kind == 0 && !arrays_[size_t(i)])) continue;
    const Extent& e = ext_[size_t(i)];
    const int objs = m_.blk[i].kind == 0 ? 1 : arrays_[size_t(i)] ? count_ : 1;
    for (int n = 0; n < objs; ++n)
      for (int r = 0; r < e.rows; ++r)
        for (int c = 0; c < (m_.blk[i].kind == 0 ? e.cols * count_ : e.cols); ++c) out.push_back(ops_[size_t(i)]->bits(n, r, c));
  }
  return out;
}

std::string CallFixture::compare(int dst, const std::function<double(int, int, int)>& want,
                                 const std::vector<int>& writable) const {
  std::ostringstream why;
  // A plain result is one run of every object's elements.
  const bool plain = m_.blk[dst].kind == 0, array = arrays_[size_t(dst)];
  const int objs = array && !plain ? count_ : 1, cols = ext_[size_t(dst)].cols * (array && plain ? count_ : 1);
  int bad = 0;
  for (int n = 0; n < objs; ++n)
    for (int r = 0; r < ext_[size_t(dst)].rows; ++r)
      for (int c = 0; c < cols; ++c) {
        const uint64_t w = bitsOf(want(n, r, c), esize()), got = ops_[size_t(dst)]->bits(n, r, c);
        const bool nans = std::isnan(valueOf(w, esize())) && std::isnan(valueOf(got, esize()));
        if (w != got && !nans && bad++ < 3)
          why << "object " << n << " (" << r << "," << c << ") want " << std::hex << w << " got " << got << std::dec << "; ";
      }
  why << untouched(writable);
  return why.str();
}

// ---- Shapes ---------------------------------------------------------------------------------

namespace {

// Sizes chosen unequal, so a width passed as a height shows; the shape rule then fixes the
// sizes it ties together.
int defaultSize(const std::string& name) {
  if (name == "width" || name.ends_with("Width")) return 3;
  if (name == "height" || name.ends_with("Height")) return 4;
  if (name == "len" || name.ends_with("Len")) return 5;
  return 3;  // widthHeight
}

const MemberShape kShapes[] = {
#include "hppcalls.inc"
};

}  // namespace

const MemberShape* shapeOf(const std::string& exportName) {
  for (const auto& c : kShapes)
    if (exportName == c.name) return &c;
  return nullptr;
}

std::unique_ptr<CallFixture> placed(const MemberFn& m, Sizes z, int count, const Style& st, unsigned seed,
                                    bool specials) {
  const MemberShape* shape = shapeOf(m.name);
  shape->sizes(z);
  z["count"] = count;
  auto fx = std::make_unique<CallFixture>(m, m.hasCount ? count : 1, st, [&](int b) { return shape->extent(z, b); });
  auto get = [&](const char* k) { return z.count(k) ? z.at(k) : 0; };
  fx->args.width = get("width");
  fx->args.height = get("height");
  fx->args.len = get("len");
  fx->args.order = get("widthHeight");
  std::mt19937 rng(seed);
  fx->fillSources(rng, specials);
  return fx;
}

// ---- Checks ---------------------------------------------------------------------------------

tarnStatus statusOf(char letter) {
  switch (letter) {
    case 'N': return tarnStatusNullPointer;
    case 'C': return tarnStatusBadCount;
    case 'Z': return tarnStatusBadSize;
    case 'H': return tarnStatusShapeMismatch;
    case 'T': case 'E': case 'O': return tarnStatusBadStride;
    case 'R': return tarnStatusBadRoiShift;
  }
  return 1;
}

std::vector<Check> checksOf(const char* seq) {
  std::vector<Check> out;
  for (const char* p = seq; *p; ++p) out.push_back({*p, p[1] == 's' || p[1] == 'd' ? *++p : char(0)});
  return out;
}

namespace {

bool badStride(int32_t s, int esize) { return s < 1 || s % esize != 0; }

bool fails(const MemberFn& m, Check k, const Args& a, int esize, bool shapeOk) {
  switch (k.letter) {
    case 'C': return m.hasCount && a.count < 1;
    case 'H': return !shapeOk;
    case 'Z':
      if (((m.sizes & kSizeWidth) && a.width < 1) || ((m.sizes & kSizeHeight) && a.height < 1) ||
          ((m.sizes & kSizeLen) && a.len < 1) || ((m.sizes & kSizeOrder) && a.order < 1))
        return true;
      break;
    case 'O':
      if (a.count <= 1) return false;
      break;
  }
  const uint8_t strides = k.letter == 'T' ? (kObj | kRow | kElem) : k.letter == 'E' ? (kRow | kElem) : kObj;
  for (int i = 0; i < m.nop; ++i) {
    if (!inScope(m, i, k.scope)) continue;
    const ArgBlk& b = a.op[i];
    const uint8_t has = m.blk[i].has;
    switch (k.letter) {
      case 'N':
        if (!b.ptr) return true;
        break;
      case 'Z':
        if (((has & kWidth) && b.w < 1) || ((has & kHeight) && b.h < 1)) return true;
        break;
      case 'R':
        if ((has & kRoi) && (b.roi < 0 || b.roi % esize != 0)) return true;
        break;
      case 'T': case 'E': case 'O': {
        const uint8_t f = has & strides;
        if (((f & kObj) && badStride(b.obj, esize)) || ((f & kRow) && badStride(b.row, esize)) ||
            ((f & kElem) && badStride(b.elem, esize)))
          return true;
      }
    }
  }
  return false;
}

}  // namespace

tarnStatus expected(const MemberFn& m, const Args& a, int esize, bool shapeOk) {
  for (Check k : checksOf(m.checks))
    if (fails(m, k, a, esize, shapeOk)) return statusOf(k.letter);
  return tarnStatusOk;
}

bool isCheckStatus(tarnStatus s) {
  for (char l : {'N', 'C', 'Z', 'H', 'T', 'R'})
    if (s == statusOf(l)) return true;
  return false;
}

// ---- Element-wise members ---------------------------------------------------------------------

EwRun runElementwise(const MemberFn& m, const EwShape& shape, int count, const Style& st, int threads,
                     unsigned seed, const RefOp& op, bool inPlace) {
  const Name nm = parseName(m.name);
  // The pattern's operands (kind, array) in the order of the arithmetic; their blocks are the
  // matrices and vectors in that order, then an array of constants, then dst; a single constant
  // is a value.
  std::vector<std::pair<char, bool>> ops;
  for (size_t i = 0; i < nm.pattern.size(); ++i) {
    const bool array = i + 1 < nm.pattern.size() && nm.pattern[i + 1] == 'a';
    ops.push_back({nm.pattern[i], array});
    i += array;
  }
  std::vector<int> blockOf(ops.size(), -1);
  int blocks = 0;
  for (int pass : {0, 1})
    for (size_t i = 0; i < ops.size(); ++i)
      if ((ops[i].first == 'c') == (pass == 1) && (pass == 0 || ops[i].second)) blockOf[i] = blocks++;
  const int dst = inPlace ? blockOf[0] : blocks;
  auto fx = placed(m, {{"width", shape.w}, {"height", shape.h}, {"len", shape.w}}, count, st, seed);
  Args& args = fx->args;
  std::mt19937 rng(seed);
  const bool zeros = seed % 4 == 0;
  for (double& v : args.val) v = zeros ? 0.0 : randomValue(rng, nm.esize);
  for (size_t i = 0; i < ops.size(); ++i) {
    if (blockOf[i] < 0) continue;
    fx->block(blockOf[i]).fillRandom(rng, i == 0);  // exceptional values in one operand only
    if (zeros && ops[i].first == 'c')
      for (int n = 0; n < count; ++n) fx->block(blockOf[i]).set(n, 0, 0, 0.0);
  }
  if (inPlace) args.op[blocks] = args.op[blockOf[0]];
  const tarnStatus status = fx->run(threads);
  // The expected values come from the operands as they were before the call.
  auto seen = [&](size_t i, int n, int r, int c) {
    if (blockOf[i] < 0) return args.val[0];
    const Operand& was = fx->before(blockOf[i]);
    const int k = ops[i].second ? n : 0;
    return ops[i].first == 't' ? was.get(k, c, r) : ops[i].first == 'c' ? was.get(k, 0, 0) : was.get(k, r, c);
  };
  std::string why = fx->compare(
      dst, [&](int n, int r, int c) { return op(seen(0, n, r, c), ops.size() > 1 ? seen(1, n, r, c) : 0.0, args, nm.esize); },
      inPlace ? std::vector<int>{dst} : std::vector<int>{});
  if (status != tarnStatusOk) why += "status " + std::to_string(status);
  EwRun run{fx->results(), why};
  if (!why.empty())
    run.failure = std::string(m.name) + " " + std::to_string(shape.h) + "x" + std::to_string(shape.w) + " count " +
                  std::to_string(count) + " " + st.name + " threads " + std::to_string(threads) + ": " + why;
  return run;
}

// ---- Batches past the parallel thresholds ---------------------------------------------------

// Counts put E just past (1.02 to 1.35 times) the largest threshold of the member's paths.
const std::vector<BatchRow>& parallelBatches() {
  constexpr tarnStatus kSing = tarnStatusSingular, kDiv = tarnStatusDivideByZero;
  static const std::vector<BatchRow> kRows = {
      {"tarnAdd_mama_32f", 4, 1000},
      {"tarnSub_vava_64f_L", 3, 3000},
      {"tarnSaxpy_vava_32f_P", 4, 4000},
      {"tarnLComb_vav_64f", 4, 3000},
      {"tarnMul_mama_64f_L", 4, 500},
      {"tarnMul_mva_32f_P", 4, 1500},
      {"tarnMul_mac_32f", 4, 1200},
      {"tarnGaxpy_mvav_64f", 4, 800},
      {"tarnDotProduct_vava_32f_L", 4, 6000},
      {"tarnCrossProduct_vava_64f_P", 3, 7000},
      {"tarnL2Norm_va_64f", 4, 6000},
      {"tarnFrobNorm_ma_32f_P", 4, 1300},
      {"tarnTrace_ma_64f_L", 4, 5100},
      {"tarnDet_ma_32f", 4, 5100},
      {"tarnInvert_ma_64f", 4, 2600, Fill::Random, Spoil::Zero, kSing},
      {"tarnLUDecomp_ma_32f_L", 4, 2600, Fill::Random, Spoil::Zero, kSing},
      {"tarnLUBackSubst_mava_32f_P", 4, 80},
      {"tarnCholeskyDecomp_ma_64f", 4, 150, Fill::PosDef, Spoil::Zero, tarnStatusNotPositiveDefinite},
      {"tarnCholeskyBackSubst_mva_32f_L", 4, 100},
      {"tarnQRDecomp_ma_64f_P", 4, 60, Fill::Random, Spoil::Zero, kDiv},
      {"tarnQRBackSubst_mava_32f", 4, 130},
      {"tarnEigenValuesSym_ma_32f_L", 4, 2100, Fill::Symmetric, Spoil::Zero, kSing},
      {"tarnEigenValuesVectorsSym_ma_64f_P", 4, 60, Fill::Symmetric, Spoil::Zero, kSing},
      {"tarnEigenValues_ma_64f", 4, 520, Fill::Random, Spoil::NaN, tarnStatusNoConvergence},
      {"tarnEigenValuesVectors_ma_32f_L", 4, 140, Fill::Random, Spoil::NaN, tarnStatusNoConvergence},
      {"tarnEigenValuesVectorsLeft_ma_64f_P", 4, 140, Fill::Random, Spoil::NaN, tarnStatusNoConvergence},
      {"tarnEigenValuesVectorsRight_ma_32f", 4, 140, Fill::Random, Spoil::NaN, tarnStatusNoConvergence},
      // A failing point gets the largest float and the walk goes on.
      {"tarnAffineTransform3DH_mva_32f", 4, 400, Fill::Affine, Spoil::Point, kDiv, false},
  };
  return kRows;
}

Extent extentOfOrder(const MemberFn& m, int block, int n) {
  const BlkInfo& b = m.blk[block];
  if (b.kind == 'c') return {1, 1};
  if (b.kind == 'v') return {1, n};
  if (b.kind != 0) return {n, n};
  const bool pivots = std::string_view(m.name).starts_with("tarnLU");
  if (b.array) return {1, n, pivots ? 4 : 0};
  return {1, n * (3 * n + 5), pivots ? 4 : 0};
}

std::unique_ptr<CallFixture> makeBatch(const BatchRow& row, const Style& st, unsigned seed,
                                       const std::vector<int>& bad) {
  const MemberFn& m = member(row.member);
  const int n = row.n;
  auto fx = std::make_unique<CallFixture>(m, m.hasCount ? row.count : 1, st,
                                          [&](int b) { return extentOfOrder(m, b, n); });
  fx->args.width = fx->args.height = fx->args.len = fx->args.order = n;
  fx->args.val[0] = 0.75;
  fx->args.val[1] = -1.5;
  std::mt19937 rng(seed);
  fx->fillSources(rng, row.fill == Fill::Specials);
  Operand& src = fx->block(0);
  const int objs = fx->isArray(0) ? fx->count() : 1;
  std::uniform_int_distribution<int> small(-4, 4), order(0, n - 1);
  if (row.fill == Fill::Integers)
    for (int i = 0; i < m.nop; ++i)
      if (!m.blk[i].out && m.blk[i].kind != 0)
        for (int k = 0; k < (fx->isArray(i) ? fx->count() : 1); ++k)
          for (int r = 0; r < extentOfOrder(m, i, n).rows; ++r)
            for (int c = 0; c < extentOfOrder(m, i, n).cols; ++c) fx->block(i).set(k, r, c, small(rng));
  for (int k = 0; k < objs; ++k) {
    if (row.fill == Fill::ScaledPermutation) {
      const int shift = order(rng);
      for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) src.set(k, r, c, c == (r + shift) % n ? std::ldexp(1.0, small(rng)) : 0.0);
    }
    if (row.fill == Fill::Symmetric)
      for (int r = 0; r < n; ++r)
        for (int c = 0; c < r; ++c) src.set(k, c, r, src.get(k, r, c));
    if (row.fill == Fill::PosDef) {  // B B^T + n I
      std::vector<double> a(size_t(n * n));
      for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) a[size_t(r * n + c)] = src.get(k, r, c);
      for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) {
          double s = r == c ? n : 0;
          for (int j = 0; j < n; ++j) s += a[size_t(r * n + j)] * a[size_t(c * n + j)];
          src.set(k, r, c, s);
        }
    }
  }
  if (row.fill == Fill::Affine)  // w' = x + 1
    for (int c = 0; c < 4; ++c) src.set(0, 3, c, c == 0 || c == 3 ? 1.0 : 0.0);
  for (int i = 0; i < m.nop; ++i)
    if (m.blk[i].kind == 0 && !m.blk[i].out) {  // row orders: rotations of 0..n-1
      const int per = extentOfOrder(m, i, n).cols, objects = m.blk[i].array ? fx->count() : 1;
      for (int k = 0; k < objects; ++k)
        for (int r = 0; r < n; ++r) fx->block(i).setBits(0, 0, k * per + r, uint64_t((r + k) % n));
    }
  for (int k : bad) {
    if (row.spoil == Spoil::Point) {
      fx->block(1).set(k, 0, 0, -1.0);
      continue;
    }
    const double v = row.spoil == Spoil::NaN ? std::numeric_limits<double>::quiet_NaN() : 0.0;
    for (int r = 0; r < n; ++r)
      for (int c = 0; c < n; ++c) src.set(k, r, c, v);
  }
  return fx;
}

std::string compareBatch(const BatchRow& row, const CallFixture& got, const CallFixture& clean,
                         const std::vector<int>& bad, int team, bool signedZeros) {
  std::ostringstream why;
  int shown = 0;
  const MemberFn& m = got.member();
  const int count = got.count();
  // Thread id takes q + 1 objects if id < rem, else q, in order (one slice when serial).
  const int parts = team > 1 && count >= team ? team : 1, q = count / parts, rem = count % parts;
  for (int id = 0, first = 0, len = 0; id < parts; ++id, first += len) {
    len = id < rem ? q + 1 : q;
    int stop = first + len;  // objects from here on in the slice are untouched
    for (int k : bad)
      if (row.stops && k >= first && k < stop) stop = k + 1;
    for (int i = 0; i < m.nop; ++i) {
      if (!m.blk[i].out || !m.blk[i].array) continue;
      const Extent e = extentOfOrder(m, i, row.n);
      const bool plain = m.blk[i].kind == 0;
      for (int k = first; k < first + len; ++k) {
        bool failing = false;
        for (int b : bad) failing |= b == k;
        if (failing) continue;
        for (int r = 0; r < e.rows; ++r)
          for (int c = 0; c < e.cols; ++c) {
            const int on = plain ? 0 : k, oc = plain ? k * e.cols + c : c;
            const uint64_t want = k >= stop ? got.before(i).bits(on, r, oc) : clean.block(i).bits(on, r, oc);
            const uint64_t have = got.block(i).bits(on, r, oc);
            const uint64_t magnitude = got.block(i).esize() == 4 ? 0x7fffffffu : ~0ull >> 1;
            if (have != want && (signedZeros || ((have | want) & magnitude) != 0) && shown++ < 3)
              why << row.member << " argument " << i << " object " << k << " (" << r << "," << c << ")"
                  << (k >= stop ? " written behind a failing object" : " differs") << "; ";
          }
      }
    }
  }
  return why.str();
}

int envThreads() {
  const char* s = std::getenv("OMP_NUM_THREADS");
  const int t = s ? std::atoi(s) : 0;
  return t > 0 ? t : omp_get_num_procs();
}

}  // namespace tt
