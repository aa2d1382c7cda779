// Bytes become a call of any member: the member, its sizes and count, the placement of its
// operands (guarded ones among them), null pointers, and faulty sizes, counts, strides and shifts
// at the limits the checks look at, over elements with any bits. Every call must return. A call
// with a fault returns the status of the first failing check of the member's sequence and leaves
// every byte as it was; a call without one writes nothing but its results' elements, and writes
// the same bits on one thread as on two or three. The fixed-size members take the same bytes
// another way (see fuzzFixed).
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
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
  const FixedFn* fixed;  // a fixed-size member, whose arguments fuzzFixed reads
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
  static const std::vector<FixedFn>& fixed = fixedCalls();
  Plan p{};
  // A fifth of the calls go to the fixed-size members, which are cheap and have few arguments.
  const uint32_t k = in.u16();
  if (k % 5 == 0) {
    p.fixed = &fixed[k / 5 % fixed.size()];
    return p;
  }
  p.m = &all[k % all.size()];
  p.shape = shapeOf(p.m->name);
  if (!p.shape) return p;
  p.style = int(in.u8() % styles().size());
  // The eigen members ask for the element's own alignment.
  if (styles()[size_t(p.style)].misalignBytes && std::string_view(p.m->name).find("Eigen") != std::string_view::npos) p.style = 0;
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
  long calls = 0, faulty = 0, compared = 0, parallel = 0, fixed = 0, fixedCompared = 0;
  ~Stats() {
    if (std::getenv("TARN_FUZZ_STATS"))
      std::fprintf(stderr,
                   "calls %ld, failing a check %ld, compared across threads %ld, of them parallel %ld; "
                   "fixed-size calls %ld, arrays compared with one-vector calls %ld\n",
                   calls, faulty, compared, parallel, fixed, fixedCompared);
  }
} stats;


// ---- Fixed-size members -------------------------------------------------------------------------
// They check nothing but the 4x4 product's pointers, so every other pointer is real, and an array
// form takes any count and any byte strides, odd and negative ones included. Only that product
// (given a null pointer), the 4x4 inverse and the unprojections (of a singular matrix) return
// anything but success. A call writes nothing but its results' objects, and nothing at all with a
// count below 1 or a singular unprojection of an array; the array forms of the transforms, the
// normals and the projections give each vector the bits of the one-vector form.

// One float operand: its objects in an arena that ends right before an inaccessible page (or
// up to three bytes before it, where the last object does not end on a float boundary), behind
// a lead of canaries.
struct FixedOperand {
  static constexpr int64_t kLead = 16;
  std::unique_ptr<Storage> mem;
  float* p = nullptr;  // object 0
  int len = 0, objs = 0;
  int32_t stride = 0;
  std::vector<uint8_t> before;

  FixedOperand(int len_, int objs_, int32_t stride_) : len(len_), objs(objs_), stride(stride_) {
    const int64_t last = int64_t(objs - 1) * stride, lo = std::min<int64_t>(0, last);
    const int64_t hi = std::max<int64_t>(0, last) + 4 * len, tail = (4 - hi % 4) % 4;
    mem = std::make_unique<Storage>(size_t(kLead + hi - lo + tail), true);
    std::fill(mem->data(), mem->data() + mem->size(), kFill);
    p = reinterpret_cast<float*>(mem->data() + kLead - lo);
  }
  uint8_t* object(int k) const { return reinterpret_cast<uint8_t*>(p) + int64_t(k) * stride; }
  void fill(std::mt19937& rng, bool specials) {
    for (int k = 0; k < objs; ++k)
      for (int e = 0; e < len; ++e) {
        const uint64_t bits = specials && rng() % 6 == 0 ? specialBits(rng() % 13, 4, 0) : bitsOf(randomValue(rng, 4), 4);
        const uint32_t b = uint32_t(bits);
        std::memcpy(object(k) + 4 * e, &b, 4);
      }
    before.assign(mem->data(), mem->data() + mem->size());
  }
  // The first byte that changed although no object of the call covers it ("" if none); with
  // `written` false, the first byte that changed at all.
  std::string stray(bool written) const {
    std::vector<bool> mine(mem->size(), false);
    for (int k = 0; written && k < objs; ++k)
      for (int b = 0; b < 4 * len; ++b) mine[size_t(object(k) + b - mem->data())] = true;
    for (size_t b = 0; b < mem->size(); ++b)
      if (!mine[b] && mem->data()[b] != before[b])
        return "byte " + std::to_string(int64_t(b) - (reinterpret_cast<uint8_t*>(p) - mem->data())) + " of an operand";
    return "";
  }
};

const FixedFn* fixedNamed(const std::string& name) {
  for (const FixedFn& f : fixedCalls())
    if (name == f.name) return &f;
  return nullptr;
}

void fuzzFixed(const FixedFn& f, Bytes& in) {
  const std::string name = f.name;
  const int32_t counts[] = {kMin, -1, 0, 1, 1, 2, 3, 4, 7, 16, 33, 100};
  const int32_t strides[] = {16, 12, 8, 4, 0, 20, 64, -4, -12, -16, -64, 1, 2, 3, 6, 13, -1, -6};
  FixedArgs a;
  a.count = f.array ? in.pick(counts) : 0;
  for (int32_t& st : a.strides) st = in.pick(strides);
  const uint32_t nulls = in.u8();
  std::mt19937 rng(in.u16());
  const bool specials = in.u8() % 2;
  a.value = valueOf(specials && in.u8() % 4 == 0 ? specialBits(in.u8() % 13, 4, 0) : bitsOf(randomValue(rng, 4), 4), 4);

  int pointers = 0, strided = 0;
  while (pointers < 8 && f.len[pointers] > 0) ++pointers;
  std::vector<std::unique_ptr<FixedOperand>> ops;
  for (int i = 0; i < pointers; ++i) {
    const bool arr = f.array >> i & 1;
    const int32_t stride = arr ? a.strides[strided++] : 0;
    ops.push_back(std::make_unique<FixedOperand>(f.len[i], arr ? std::max(a.count, 1) : 1, stride));
    if (!(f.out >> i & 1)) ops.back()->fill(rng, specials);
    else ops.back()->before.assign(ops.back()->mem->data(), ops.back()->mem->data() + ops.back()->mem->size());
    a.floats[i] = ops.back()->p;
  }
  // The product's pointers are checked; the inverse's determinant may be left out.
  bool nulled = false;
  if (name == "tarnMul_mm4x4_32f" && nulls % 8 < 3) a.floats[nulls % 8] = nullptr, nulled = true;
  if (name == "tarnInvert_m4_32f" && nulls % 2) a.floats[1] = nullptr;
  Storage intArena(4, true);
  std::fill(intArena.data(), intArena.data() + 4, kFill);
  if (f.ints) a.ints = reinterpret_cast<int32_t*>(intArena.data());

  auto stop = [&](const std::string& what) {
    std::fprintf(stderr, "%s count %d strides %d %d value %a: %s\n", f.name, a.count, a.strides[0], a.strides[1],
                 double(a.value), what.c_str());
    std::abort();
  };
  static const bool verbose = std::getenv("TARN_FUZZ_SHOW") != nullptr;
  if (verbose)
    std::fprintf(stderr, "%s count %d strides %d %d value %a\n", f.name, a.count, a.strides[0], a.strides[1], double(a.value));
  const tarnStatus s = f.call(a);
  ++stats.fixed;
  const bool mayBeSingular = name == "tarnInvert_m4_32f" || name.starts_with("tarnUnproject_");
  if (nulled ? s != tarnStatusNullPointer : s != tarnStatusOk && !(mayBeSingular && s == tarnStatusSingular))
    stop("status " + std::to_string(s));
  // Nothing is written by a refused call, an array call of no vectors, or an array's singular
  // unprojection.
  const bool writes = !nulled && !(f.array && (a.count < 1 || s == tarnStatusSingular));
  for (int i = 0; i < pointers; ++i)
    if (const std::string w = ops[size_t(i)]->stray(writes && (f.out >> i & 1)); !w.empty())
      stop(w + " (pointer " + std::to_string(i) + ")");
  if (f.ints && writes) {
    int32_t r;
    std::memcpy(&r, intArena.data(), 4);
    if (r != 0 && r != 1) stop("result " + std::to_string(r));
  }
  if (!f.array || !writes) return;

  // Each vector of an array against the one-vector form, where results do not overlap (the sums
  // of AffineTransformCoord's two forms differ by design).
  const std::string single = name.substr(0, name.size() - 5) + "_32f";  // m4v3a_32f -> m4v3_32f
  const FixedFn* one = name.starts_with("tarnAffineTransformCoord_") ? nullptr : fixedNamed(single);
  const int src = std::countr_zero(unsigned(f.array)), dst = 31 - std::countl_zero(unsigned(f.array));
  if (!one || std::abs(int64_t(a.strides[1])) < 4 * f.len[dst]) return;
  ++stats.fixedCompared;
  for (int k = 0; k < a.count; ++k) {
    FixedArgs b = a;
    float in[4], out[4];  // the vector on its own, wherever the stride put it in the array
    std::memcpy(in, ops[size_t(src)]->object(k), size_t(4 * f.len[src]));
    b.floats[src] = in;
    b.floats[dst] = out;
    if (const tarnStatus s1 = one->call(b); s1 != s) stop("vector " + std::to_string(k) + ": status " + std::to_string(s1) + " alone");
    for (int e = 0; e < f.len[dst]; ++e) {
      float got;
      std::memcpy(&got, ops[size_t(dst)]->object(k) + 4 * e, 4);
      if (std::isnan(got) ? !std::isnan(out[e]) : bitsOf(got, 4) != bitsOf(out[e], 4))
        stop("vector " + std::to_string(k) + " element " + std::to_string(e) + ": " + std::to_string(got) + ", alone " +
             std::to_string(out[e]));
    }
  }
}

}  // namespace
}  // namespace tt

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tt;
  Bytes in(data, size);
  const Plan p = read(in);
  if (p.fixed) {
    fuzzFixed(*p.fixed, in);
    return 0;
  }
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
  // Equal bits, or NaN on both sides: where both operands of a sum or a product are NaNs, which
  // one's payload the result carries is the compiler's choice (it may swap the operands), and a
  // lane body and the scalar tail that ends a thread's slice may choose differently.
  const int es = parseName(p.m->name).esize;
  const auto r1 = results(p, *one.fx), rn = results(p, *many.fx);
  for (size_t k = 0; k < r1.size(); ++k)
    if (r1[k] != rn[k] && !(std::isnan(valueOf(r1[k], es)) && std::isnan(valueOf(rn[k], es))))
      fail(p, *many.fx, "result element " + std::to_string(k) + " of " + std::to_string(r1.size()) + ": bits " +
                            std::to_string(rn[k]) + ", on one thread " + std::to_string(r1[k]));
  return 0;
}
