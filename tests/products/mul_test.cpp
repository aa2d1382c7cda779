// Mul with two matrices: every member over square and oblong shapes in every placement, each
// element against the model of the order its worker takes; the thread counts, the thresholds and
// the members whose size tests depart.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <sstream>
#include <string>
#include <tuple>

#include "harness.hpp"
#include "ref/mul_ref.hpp"
#include "regions.hpp"

namespace tt {
namespace {

// Orders 3 to 6 have a fixed kernel in every worker but these (pattern_type, by layout and path).
struct NoKernel {
  char layout;
  bool contig;
  const char* members;
  const char* orders;
};
const NoKernel kNoKernel[] = {
    {'S', true, "tm_32f", "6"},
    {'L', true, "mta_32f tta_32f tta_64f", "3456"},
    {'S', false, "mama_32f", "6"},
    {'S', false, "mat_32f tam_32f", "456"},
    {'L', false, "mam_32f mat_32f tam_32f tat_32f", "456"},
    {'P', false, "mam_32f mat_32f tam_32f", "456"},
};

bool listed(const char* list, const std::string& word) {
  return (" " + std::string(list) + " ").find(" " + word + " ") != std::string::npos;
}

struct Product {
  const MemberFn* m;
  Name nm;
  char l1, l2;  // m or t
  MulShape z;
  int w1, h1, w2, h2;  // stored sizes
};

Product productOf(const MemberFn& m, int R, int K, int C) {
  Product p{&m, parseName(m.name), 0, 0, {R, C, K}, 0, 0, 0, 0};
  p.l1 = p.nm.pattern[0];
  p.l2 = p.nm.pattern[p.nm.pattern[1] == 'a' ? 2 : 1];
  p.z.mt = p.l1 == 'm' && p.l2 == 't';
  p.z.tm = p.l1 == 't' && p.l2 == 'm';
  p.w1 = p.l1 == 't' ? R : K, p.h1 = p.l1 == 't' ? K : R;
  p.w2 = p.l2 == 't' ? K : C, p.h2 = p.l2 == 't' ? C : K;
  return p;
}

MulOrder orderOf(const Product& p, bool contig) {
  const std::string key = p.nm.pattern + (p.nm.esize == 4 ? "_32f" : "_64f");
  const char lay = p.nm.layout;
  const int n = p.z.rows;
  if (p.z.rows == p.z.cols && p.z.cols == p.z.inner && n >= 3 && n <= 6) {
    bool kernel = !(key == "mat_32f" && lay == 'S' && contig && n == 4);  // compares src2Height with 3
    for (const NoKernel& k : kNoKernel)
      if (k.layout == lay && k.contig == (contig && lay != 'P') && listed(k.members, key) &&
          std::strchr(k.orders, '0' + n))
        kernel = false;
    if (kernel) return MulOrder::Kernel;
  }
  if (!contig || lay == 'P' || (key == "mata_64f" && lay == 'S')) return MulOrder::Triple;
  return MulOrder::Tile;
}

// Runs one product and compares every dst element with the model; "" when all is well.
std::string checkProduct(const Product& p, int count, const Style& st, int threads, unsigned seed,
                         std::vector<uint64_t>* bits = nullptr) {
  const int R = p.z.rows, K = p.z.inner, C = p.z.cols;
  CallFixture fx(*p.m, count, st, [&](int b) -> Extent {
    return b == 0 ? Extent{p.h1, p.w1} : b == 1 ? Extent{p.h2, p.w2} : Extent{R, C};
  });
  std::mt19937 rng(seed);
  fx.fillSources(rng, false);
  // Row 0 of src1 as seen is -0.0 and column 0 of src2 positive: element (0,0) sums only -0.0,
  // which a kernel keeps and the general paths, starting from +0.0, turn into +0.0.
  for (int o = 0; o < (fx.isArray(0) ? count : 1); ++o)
    for (int k = 0; k < K; ++k) p.l1 == 't' ? fx.block(0).set(o, k, 0, -0.0) : fx.block(0).set(o, 0, k, -0.0);
  for (int o = 0; o < (fx.isArray(1) ? count : 1); ++o)
    for (int k = 0; k < K; ++k) {
      const int r = p.l2 == 't' ? 0 : k, c = p.l2 == 't' ? k : 0;
      fx.block(1).set(o, r, c, std::fabs(fx.block(1).get(o, r, c)));
    }
  bool contig = true;
  for (int b = 0; b < 3; ++b)
    if ((p.m->blk[b].has & kElem) && fx.args.op[b].elem != p.nm.esize) contig = false;
  const MulOrder order = orderOf(p, contig);
  const tarnStatus status = fx.run(threads);

  std::ostringstream why;
  if (status != tarnStatusOk) why << "status " << status << "; ";
  auto a = [&](int o, int i, int k) { return p.l1 == 't' ? fx.before(0).get(o, k, i) : fx.before(0).get(o, i, k); };
  auto b = [&](int o, int k, int j) { return p.l2 == 't' ? fx.before(1).get(o, j, k) : fx.before(1).get(o, k, j); };
  int bad = 0;
  for (int o = 0; o < (fx.isArray(2) ? count : 1); ++o)
    for (int i = 0; i < R; ++i)
      for (int j = 0; j < C; ++j) {
        const int o1 = fx.isArray(0) ? o : 0, o2 = fx.isArray(1) ? o : 0;
        const double want = p.nm.esize == 4
            ? double(mulElement<float>(order, p.z, i, [&](int k) { return float(a(o1, i, k)) * float(b(o2, k, j)); }))
            : mulElement<double>(order, p.z, i, [&](int k) { return a(o1, i, k) * b(o2, k, j); });
        const uint64_t got = fx.block(2).bits(o, i, j);
        if (bits) bits->push_back(got);
        if (got != bitsOf(want, p.nm.esize) && bad++ < 2)
          why << "object " << o << " (" << i << "," << j << ") want " << want << " got "
              << valueOf(got, p.nm.esize) << "; ";
      }
  why << fx.untouched();
  const std::string f = why.str();
  if (f.empty()) return f;
  return std::string(p.m->name) + " R" + std::to_string(R) + " K" + std::to_string(K) + " C" + std::to_string(C) +
         " count " + std::to_string(count) + " " + st.name + " threads " + std::to_string(threads) +
         " order " + std::to_string(int(order)) + ": " + f;
}

struct Rkc {
  int R, K, C;
};
// Squares reach every kernel and the general path either side of them; the oblong shapes reach
// 0 to 3 remaining rows, odd and even columns, K below 4, below 8 and from 8 on, odd and even.
const Rkc kShapes[] = {{1, 1, 1}, {2, 2, 2}, {3, 3, 3}, {4, 4, 4}, {5, 5, 5}, {6, 6, 6}, {7, 7, 7}, {8, 8, 8},
                       {3, 4, 5}, {5, 3, 4}, {4, 6, 2}, {2, 7, 3}, {7, 9, 5}, {1, 5, 1}, {6, 3, 6}, {3, 8, 2},
                       {5, 12, 3}, {9, 8, 7}, {2, 2, 9}, {4, 1, 4}, {6, 11, 1}};

// The products of two matrices; Mul with a vector or a constant has tests of its own.
std::vector<const MemberFn*> matrixProducts() {
  std::vector<const MemberFn*> out;
  for (const MemberFn* m : membersOf("Mul")) {
    const std::string p = parseName(m->name).pattern;
    if (p.find_first_of("vc") == std::string::npos) out.push_back(m);
  }
  return out;
}

TEST(Mul, EveryMemberShapeAndPlacementFollowsItsOrder) {
  const auto members = matrixProducts();
  int products = 0;
  for (const MemberFn* m : members) {
    if (std::string(m->name).find("4x4") != std::string::npos) continue;
    ++products;
    unsigned seed = 1;
    for (const Rkc& s : kShapes)
      for (const Style& st : styles())
        for (int count : {1, 3}) EXPECT_EQ(checkProduct(productOf(*m, s.R, s.K, s.C), count, st, 1, seed++), "");
  }
  EXPECT_EQ(products, 88);
}

// Past the thresholds every thread count gives the bits of one thread, in a kernel and on the
// general paths.
TEST(Mul, ThreadCountsGiveIdenticalBits) {
  for (const MemberFn* m : matrixProducts()) {
    const Name nm = parseName(m->name);
    if (nm.pattern.find('a') == std::string::npos) continue;
    // Counts past every path's threshold: 27*count >= 36865 for 3x3, 107*count >= 18433 for
    // a 5x7 times 7x6 product.
    for (const auto& [shape, style_, count] : {std::tuple{Rkc{3, 3, 3}, "packed", 1400}, std::tuple{Rkc{5, 7, 6}, "strided", 180}}) {
      const Product p = productOf(*m, shape.R, shape.K, shape.C);
      std::vector<uint64_t> one;
      EXPECT_EQ(checkProduct(p, count, style(style_), 1, 9, &one), "");
      for (int threads : {2, 3, 4}) {
        std::vector<uint64_t> many;
        EXPECT_EQ(checkProduct(p, count, style(style_), threads, 9, &many), "");
        EXPECT_TRUE(many == one) << m->name << " threads " << threads;
      }
    }
  }
}

// E counts the elements touched: each source once if single, count times if an array, and dst
// count times. A region opens from E = 36865 (LayoutS contiguous), 18433 (LayoutS strided and
// LayoutL), 9217 (LayoutP), for both types. With 1 by 1 matrices and one single source E = 1 +
// 2*count lands on every odd value; two arrays of 1 by 1 times 1 by 2 give E = 5*count.
TEST(Mul, RegionFromTheThresholdOfThePathOn) {
  int checked = 0;
  for (const MemberFn* m : matrixProducts()) {
    const Name nm = parseName(m->name);
    if (nm.pattern.find('a') == std::string::npos) continue;
    const bool both = nm.pattern.size() == 4;  // mama, mata, tama, tata
    for (bool contig : {true, false}) {
      if (nm.layout == 'P' && !contig) continue;
      const int32_t thr = nm.layout == 'P' ? 9217 : nm.layout == 'S' && contig ? 36865 : 18433;
      const Style& st = style(contig ? "packed" : "strided");
      // The count whose E is just below the threshold, and the first whose E reaches it.
      const Product p = productOf(*m, 1, 1, both ? 2 : 1);
      const int per = both ? 5 : 2, fixed = both ? 0 : 1;
      const int below = (thr - 1 - fixed) / per, at = (thr - fixed + per - 1) / per;
      if (!both) ASSERT_EQ(fixed + per * at, thr);
      const int regionsBelow = regionsOpenedBy([&] { checkProduct(p, below, st, 2, 1); });
      const int regionsAt = regionsOpenedBy([&] { checkProduct(p, at, st, 2, 1); });
      EXPECT_EQ(regionsBelow, 0) << m->name << (contig ? " contiguous" : " strided");
      EXPECT_EQ(regionsAt, 1) << m->name << (contig ? " contiguous" : " strided");
      ++checked;
    }
  }
  EXPECT_EQ(checked, 120);
}

// The float mat in contiguous LayoutS compares src2Height with 3 for order 4: a src2 4 wide and
// 3 high enters the 4x4 kernel, which reads a fourth row of src2 and writes a fourth column of
// dst. The float mm and double tt in LayoutP compare the OR of the four sizes with 3: a 1x2
// times 2x1 product enters the 3x3 kernel, reading and writing 3x3 through the tables.
TEST(Mul, DepartingSizeTestsAreKept) {
  struct Case {
    const char* name;
    int R, K, C;          // of the kernel that runs
    int w1, h1, w2, h2;   // the sizes passed
  };
  const Case cases[] = {
      {"tarnMul_mat_32f", 4, 4, 4, 4, 4, 4, 3},
      {"tarnMul_mm_32f_P", 3, 3, 3, 2, 1, 1, 2},
      {"tarnMul_tt_64f_P", 3, 3, 3, 1, 2, 2, 1},
      {"tarnMul_mm_32f_P", 3, 3, 3, 3, 1, 1, 3},
  };
  for (const Case& c : cases) {
    Product p = productOf(member(c.name), c.R, c.K, c.C);
    CallFixture fx(*p.m, 2, style("padded"), [&](int b) -> Extent {
      return b == 0 ? Extent{p.h1, p.w1} : b == 1 ? Extent{p.h2, p.w2} : Extent{c.R, c.C};
    });
    std::mt19937 rng(4);
    fx.fillSources(rng, false);
    fx.args.op[0].w = c.w1, fx.args.op[0].h = c.h1, fx.args.op[1].w = c.w2, fx.args.op[1].h = c.h2;
    ASSERT_EQ(fx.run(1), tarnStatusOk) << c.name;
    for (int o = 0; o < (fx.isArray(2) ? 2 : 1); ++o)
      for (int i = 0; i < c.R; ++i)
        for (int j = 0; j < c.C; ++j) {
          auto prod = [&](int k) -> double {
            const double a = p.l1 == 't' ? fx.before(0).get(fx.isArray(0) ? o : 0, k, i) : fx.before(0).get(fx.isArray(0) ? o : 0, i, k);
            const double b = p.l2 == 't' ? fx.before(1).get(0, j, k) : fx.before(1).get(0, k, j);
            return p.nm.esize == 4 ? double(float(a) * float(b)) : a * b;
          };
          const double want = p.nm.esize == 4
              ? double(mulElement<float>(MulOrder::Kernel, p.z, i, [&](int k) { return float(prod(k)); }))
              : mulElement<double>(MulOrder::Kernel, p.z, i, prod);
          EXPECT_EQ(fx.block(2).bits(o, i, j), bitsOf(want, p.nm.esize)) << c.name << " " << i << "," << j;
        }
  }
}

// The kernels store row i before they read row i+1 of the left factor and load the right factor
// before the first store: dst may be either source of a square product.
TEST(Mul, KernelOverItsOwnSource) {
  float a[16], b[16], want[16];
  std::mt19937 rng(3);
  for (int i = 0; i < 16; ++i) a[i] = float(randomValue(rng, 4)), b[i] = float(randomValue(rng, 4));
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j)
      want[4 * i + j] = ((a[4 * i] * b[j] + a[4 * i + 1] * b[4 + j]) + a[4 * i + 2] * b[8 + j]) + a[4 * i + 3] * b[12 + j];
  float x[16], y[16];
  std::memcpy(x, a, sizeof x);
  std::memcpy(y, b, sizeof y);
  ASSERT_EQ(tarnMul_mm_32f(x, 16, 4, 4, 4, b, 16, 4, 4, 4, x, 16, 4), tarnStatusOk);
  EXPECT_EQ(std::memcmp(x, want, sizeof x), 0);
  ASSERT_EQ(tarnMul_mam_32f(a, 64, 16, 4, 4, 4, y, 16, 4, 4, 4, y, 64, 16, 4, 1), tarnStatusOk);
  EXPECT_EQ(std::memcmp(y, want, sizeof y), 0);
}

}  // namespace
}  // namespace tt
