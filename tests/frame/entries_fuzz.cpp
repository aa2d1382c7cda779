// Bytes become a call of any member: the member, its sizes and count, the placement of its
// operands (guarded ones among them), null pointers, and faulty sizes, counts, strides and shifts
// at the limits the checks look at, over elements with any bits. Every call must return. A call
// with a fault returns the status of the first failing check of the member's sequence and leaves
// every byte as it was; a call without one writes nothing but its results' elements, and writes
// the same bits on one thread as on two or three.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "harness.hpp"
#include "regions.hpp"

namespace tt {
namespace {

// The input read front to back; past its end every byte is 0.
class Bytes {
 public:
  Bytes(const uint8_t* d, size_t n) : d_(d), n_(n) {}
  uint32_t u8() { return i_ < n_ ? d_[i_++] : 0; }
  uint32_t u16() { return u8() | u8() << 8; }
  uint64_t u64() { return uint64_t(u16() | u16() << 16) | uint64_t(u16() | u16() << 16) << 32; }
  template <class T, size_t N>
  T pick(const T (&menu)[N]) { return menu[u8() % N]; }

 private:
  const uint8_t* d_;
  size_t n_, i_ = 0;
};

constexpr int32_t kMin = std::numeric_limits<int32_t>::min();

// One change to the arguments of a well-formed call: a fault (a null pointer, a size, count,
// stride or shift at or past the limit of its check), a legal shift, or an element's bits.
struct Change {
  enum Kind : uint8_t { Null, Count, Size, BlockSize, Stride, BadShift, Shift, Bits, Value } kind;
  uint32_t at;    // argument, size or element, reduced by what the member has
  uint32_t what;  // field or menu entry
  uint64_t raw;   // bits for Bits and Value
};

struct Plan {
  const MemberFn* m;
  const MemberShape* shape;
  Sizes z;
  int style, count, threads;
  uint32_t seed;
  bool specials;
  std::vector<Change> changes;
};

Plan read(Bytes& in) {
  static const std::vector<MemberFn>& all = allMembers();
  Plan p{};
  p.m = &all[in.u16() % all.size()];
  p.shape = shapeOf(p.m->name);
  if (!p.shape) return p;
  p.style = int(in.u8() % styles().size());
  // Half the calls have a fault (early in the input, where short inputs reach it).
  const uint32_t faults = in.u8();
  for (int k = faults < 128 ? 0 : faults < 224 ? 1 : 2; k > 0; --k)
    p.changes.push_back({Change::Kind(in.u8() % 6), in.u16(), in.u8(), 0});
  // Mostly a few objects; sometimes enough that the work passes any parallel threshold.
  const int big[] = {64, 257, 1000, 2049, 3000, 5001, 7001, 20001};
  const uint32_t c = in.u8();
  p.count = c < 224 ? int(1 + c % 12) : big[c % 8];
  p.threads = 2 + int(in.u8() % 2);
  p.shape->sizes(p.z);  // names every size
  for (auto& [name, v] : p.z) v = 1 + int(in.u8() % 7);
  const bool rule = in.u8() % 8 != 0;  // else the shape rule holds only by chance
  if (rule) {
    p.shape->sizes(p.z);
    const std::string fam = parseName(p.m->name).family;
    if (fam.starts_with("QR") && p.z["width"] > p.z["height"]) std::swap(p.z["width"], p.z["height"]);
  }
  p.seed = uint32_t(in.u16());
  p.specials = in.u8() % 2;
  for (uint32_t k = in.u8() % 16; k > 0; --k) {
    const uint32_t kind = in.u8() % 8;  // element bits most of the time
    p.changes.push_back({Change::Kind(kind == 0 ? Change::Shift : kind == 1 ? Change::Value : Change::Bits), in.u16(),
                         in.u8(), in.u64()});
  }
  return p;
}

// Two kernel choices look at sizes in a way that lets some shapes into a larger kernel, which then
// reads past the operands by design: the float mm and double tt products in LayoutP take the
// bitwise OR of the four sizes for 3 and 4, and the contiguous float mat takes a 4 by 4 src1
// with a src2 three rows high for order 4. Such calls are not generated.
bool largerKernel(const Plan& p) {
  const std::string n = p.m->name;
  if (n == "tarnMul_mm_32f_P" || n == "tarnMul_tt_64f_P") {
    const int w1 = p.z.at("src1Width"), h1 = p.z.at("src1Height"), w2 = p.z.at("src2Width"), h2 = p.z.at("src2Height");
    const int all = w1 | h1 | w2 | h2;
    return (all == 3 || all == 4) && !(w1 == all && h1 == all && w2 == all && h2 == all);
  }
  return n == "tarnMul_mat_32f" && p.z.at("src1Width") == 4 && p.z.at("src1Height") == 4 && p.z.at("src2Height") == 3;
}

// Where a batch's own results depend on where thread slices begin: the contiguous matrix-vector
// products of general shapes take objects in pairs, and an odd last object of a slice follows
// the single-object rule. Square matrices of 3 to 6 have kernels of their own; the strided and
// LayoutP paths and the float mva in LayoutS go object by object.
bool sliceDependent(const Plan& p, const Args& a) {
  const Name nm = parseName(p.m->name);
  if (nm.family != "Mul" || nm.pattern.find('v') == std::string::npos || nm.pattern.find('a') == std::string::npos ||
      !p.z.count("src1Width") || nm.layout == 'P' || (nm.pattern == "mva" && nm.esize == 4 && nm.layout == 'S'))
    return false;
  for (int i = 0; i < p.m->nop; ++i)
    if ((p.m->blk[i].has & kElem) && a.op[i].elem != nm.esize) return false;
  const int w = p.z.at("src1Width"), h = p.z.at("src1Height");
  return !(w == h && w >= 3 && w <= 6);
}

// The shape rule holds for the sizes: the product's inner sizes agree, a QR operand is not wider
// than tall.
bool shapeHolds(const Plan& p) {
  Sizes fixed = p.z;
  p.shape->sizes(fixed);
  const std::string fam = parseName(p.m->name).family;
  return fixed == p.z && !(fam.starts_with("QR") && p.z.at("width") > p.z.at("height"));
}

// Bits worth trying in an element: NaNs (quiet, signalling, negative), infinities, the largest
// and smallest normal numbers, denormals, a negative zero and huge and tiny powers of two.
uint64_t specialBits(uint32_t i, int esize, uint64_t raw) {
  static const uint32_t f[] = {0x7fc00000, 0xffc00001, 0x7f800001, 0x7f800000, 0xff800000, 0x7f7fffff, 0xff7fffff,
                               0x00800000, 0x00000001, 0x807fffff, 0x80000000, 0x5f000000, 0x1f800000};
  static const uint64_t d[] = {0x7ff8000000000000, 0xfff8000000000001, 0x7ff0000000000001, 0x7ff0000000000000,
                               0xfff0000000000000, 0x7fefffffffffffff, 0xffefffffffffffff, 0x0010000000000000,
                               0x0000000000000001, 0x800fffffffffffff, 0x8000000000000000, 0x43e0000000000000,
                               0x3bf0000000000000};
  if (i < 13) return esize == 4 ? f[i] : d[i];
  return esize == 4 ? raw & 0xffffffff : raw;
}

struct Built {
  std::unique_ptr<CallFixture> fx;
  tarnStatus want;
};

// The plan's call, placed and filled; the same plan builds the same call twice.
Built build(const Plan& p) {
  const MemberFn& m = *p.m;
  const Name nm = parseName(m.name);
  const int es = nm.esize;
  // Arrays stay within a few hundred kilobytes: enough elements for every threshold.
  Sizes z = p.z;
  z["count"] = 1;
  int most = 1;
  for (int b = 0; b < m.nop; ++b) {
    const Extent e = p.shape->extent(z, b);
    most = std::max(most, e.rows * e.cols);
  }
  // Interleaved objects in a table layout each span the whole array: keep those arrays short.
  const bool spread = styles()[size_t(p.style)].soa && (nm.layout == 'L' || nm.layout2 == 'L');
  const int count = std::max(1, std::min(p.count, spread ? 64 : 65536 / most));
  z["count"] = count;
  Built out;
  out.fx = std::make_unique<CallFixture>(m, count, styles()[size_t(p.style)], [&](int b) { return p.shape->extent(z, b); });
  CallFixture& fx = *out.fx;
  std::mt19937 rng(p.seed);
  fx.fillSources(rng, p.specials);
  // Row numbers a solve reads are a rotation of 0..n-1, as a factorisation writes them.
  for (int b = 0; b < m.nop; ++b)
    if (m.blk[b].kind == 0 && !m.blk[b].out) {
      const int n = p.shape->extent(z, b).cols, objs = fx.isArray(b) ? count : 1;
      for (int k = 0; k < n * objs; ++k) fx.block(b).setBits(0, 0, k, uint64_t((k % n + k / n) % n));
    }
  Args& a = fx.args;
  auto get = [&](const char* k) { return z.count(k) ? z.at(k) : 0; };
  a.width = get("width");
  a.height = get("height");
  a.len = get("len");
  a.order = get("widthHeight");
  a.val[0] = randomValue(rng, es);
  a.val[1] = randomValue(rng, es);

  const int32_t badSize[] = {0, -1, kMin};
  const int32_t badStride[] = {0, -es, es - 1, es / 2, es + 1, 1, -1, kMin};
  const int32_t shifts[] = {0, es, 2 * es, 16 * es, -es, -1, 1, es / 2, es + 1};  // legal, then not
  for (const Change& c : p.changes) {
    const int i = int(c.at % uint32_t(m.nop));
    ArgBlk& b = a.op[i];
    const uint8_t has = m.blk[i].has;
    switch (c.kind) {
      case Change::Null: b.ptr = nullptr; break;
      case Change::Count: a.count = badSize[c.what % 3]; break;
      case Change::Size: {
        int32_t* sizes[] = {&a.width, &a.height, &a.len, &a.order};
        *sizes[c.at % 4] = badSize[c.what % 3];
        break;
      }
      case Change::BlockSize: (c.what & 1 ? b.w : b.h) = badSize[(c.what >> 1) % 3]; break;
      case Change::Stride: {
        int32_t* f = (c.what & 3) == 0 && (has & kObj) ? &b.obj : (c.what & 3) == 1 && (has & kRow) ? &b.row : &b.elem;
        *f = badStride[(c.what >> 2) % 8];
        break;
      }
      case Change::BadShift: case Change::Shift: {
        // A table's entries move against the shift, so the shifted addresses are still the
        // elements' (a member that takes any shift reads them).
        if (!(has & kRoi) || !b.ptr) break;
        const int32_t to = c.kind == Change::Shift ? shifts[c.what % 4] : shifts[4 + c.what % 5], d = to - b.roi;
        char lay = m.blk[i].out ? nm.layout2 : nm.layout;
        const Extent e = p.shape->extent(z, i);
        const int entries = lay == 'P' ? e.rows * e.cols : count;
        auto** table = static_cast<uint8_t**>(b.ptr);
        for (int k = 0; k < entries; ++k) table[k] -= d;
        b.roi = to;
        break;
      }
      case Change::Bits: {
        if (m.blk[i].kind == 0 || m.blk[i].out) break;
        const Extent e = p.shape->extent(z, i);
        const int objs = fx.isArray(i) ? count : 1, n = int(c.raw % uint64_t(objs * e.rows * e.cols));
        fx.block(i).setBits(n / (e.rows * e.cols), n / e.cols % e.rows, n % e.cols, specialBits(c.what % 20, es, c.raw));
        break;
      }
      case Change::Value:
        a.val[c.at % 2] = valueOf(specialBits(c.what % 20, es, c.raw), es);
        break;
    }
  }
  out.want = expected(m, a, es, shapeHolds(p));
  return out;
}

void show(const Plan& p, const CallFixture& fx, const std::string& what) {
  const Args& a = fx.args;
  std::fprintf(stderr, "%s style %s count %d (args count %d) width %d height %d len %d order %d threads %d: %s\n",
               p.m->name, styles()[size_t(p.style)].name, fx.count(), a.count, a.width, a.height, a.len, a.order,
               p.threads, what.c_str());
  for (int i = 0; i < p.m->nop; ++i)
    std::fprintf(stderr, "  arg %d: ptr %p obj %d row %d elem %d roi %d w %d h %d\n", i, a.op[i].ptr, a.op[i].obj,
                 a.op[i].row, a.op[i].elem, a.op[i].roi, a.op[i].w, a.op[i].h);
}

[[noreturn]] void fail(const Plan& p, const CallFixture& fx, const std::string& what) {
  show(p, fx, what);
  std::abort();
}

// Every result element of every object, as bits. A work buffer is left out: on the parallel path
// each thread works in its own.
std::vector<uint64_t> results(const Plan& p, const CallFixture& fx) {
  std::vector<uint64_t> out;
  Sizes z = p.z;
  z["count"] = fx.count();
  for (int b = 0; b < p.m->nop; ++b) {
    if (!p.m->blk[b].out || (p.m->blk[b].kind == 0 && !fx.isArray(b))) continue;
    const Extent e = p.shape->extent(z, b);
    const int objs = fx.isArray(b) ? fx.count() : 1;
    for (int n = 0; n < objs; ++n)
      for (int r = 0; r < e.rows; ++r)
        for (int c = 0; c < e.cols; ++c)
          out.push_back(p.m->blk[b].kind == 0 ? fx.block(b).bits(0, 0, (n * e.rows + r) * e.cols + c) : fx.block(b).bits(n, r, c));
  }
  return out;
}

// What the calls did, printed at exit when TARN_FUZZ_STATS is set.
struct Stats {
  long calls = 0, faulty = 0, compared = 0, parallel = 0;
  ~Stats() {
    if (std::getenv("TARN_FUZZ_STATS"))
      std::fprintf(stderr, "calls %ld, failing a check %ld, compared across threads %ld, of them parallel %ld\n", calls,
                   faulty, compared, parallel);
  }
} stats;

}  // namespace
}  // namespace tt

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tt;
  Bytes in(data, size);
  const Plan p = read(in);
  if (!p.shape || largerKernel(p)) return 0;
  Built one = build(p);
  static const bool verbose = std::getenv("TARN_FUZZ_SHOW") != nullptr;  // each call before it runs
  if (verbose) show(p, *one.fx, "expecting " + std::to_string(one.want));
  const tarnStatus s = one.fx->run(1);
  ++stats.calls;
  if (one.want != tarnStatusOk) {
    if (s != one.want) fail(p, *one.fx, "status " + std::to_string(s) + ", the checks say " + std::to_string(one.want));
    if (const std::string w = one.fx->unchanged(); !w.empty()) fail(p, *one.fx, "a failed check wrote: " + w);
    ++stats.faulty;
    return 0;
  }
  if (isCheckStatus(s)) fail(p, *one.fx, "status " + std::to_string(s) + " from a call that passes every check");
  if (const std::string w = one.fx->untouched(); !w.empty()) fail(p, *one.fx, w);
  Built many = build(p);
  tarnStatus sm = 0;
  stats.parallel += regionsOpenedBy([&] { sm = many.fx->run(p.threads); }) > 0;
  if ((sm == tarnStatusOk) != (s == tarnStatusOk))
    fail(p, *many.fx, "status " + std::to_string(sm) + " on several threads, " + std::to_string(s) + " on one");
  if (const std::string w = many.fx->untouched(); !w.empty()) fail(p, *many.fx, "several threads: " + w);
  if (s != tarnStatusOk || sliceDependent(p, one.fx->args)) return 0;
  ++stats.compared;
  const auto r1 = results(p, *one.fx), rn = results(p, *many.fx);
  for (size_t k = 0; k < r1.size(); ++k)
    if (r1[k] != rn[k])
      fail(p, *many.fx, "result element " + std::to_string(k) + " of " + std::to_string(r1.size()) + ": bits " +
                            std::to_string(rn[k]) + ", on one thread " + std::to_string(r1[k]));
  return 0;
}
