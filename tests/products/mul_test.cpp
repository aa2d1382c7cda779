// Mul with two matrices: every member over square and oblong shapes in every placement, each
// element against the model of the order its worker takes; the members whose size tests depart;
// the kernels over their own sources.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>

#include "harness.hpp"
#include "ref/mul_ref.hpp"

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

// Runs one product and compares every dst element with the model; "" when all is well. With
// `passed` the call gets those sizes (src1Width, src1Height, src2Width, src2Height) instead of the
// stored ones, and a kernel must run.
std::string checkProduct(const Product& p, int count, const Style& st, int threads, unsigned seed,
                         const int* passed = nullptr) {
  const int R = p.z.rows, K = p.z.inner, C = p.z.cols;
  auto placedFx = placed(*p.m, {{"src1Width", p.w1}, {"src1Height", p.h1}, {"src2Width", p.w2}, {"src2Height", p.h2}}, count, st, seed);
  CallFixture& fx = *placedFx;
  // Row 0 of src1 as seen is -0.0 and column 0 of src2 positive: element (0,0) sums only -0.0,
  // which a kernel keeps and the general paths, starting from +0.0, turn into +0.0.
  for (int o = 0; o < (fx.isArray(0) ? count : 1); ++o)
    for (int k = 0; k < K; ++k) p.l1 == 't' ? fx.block(0).set(o, k, 0, -0.0) : fx.block(0).set(o, 0, k, -0.0);
  for (int o = 0; o < (fx.isArray(1) ? count : 1); ++o)
    for (int k = 0; k < K; ++k) {
      const int r = p.l2 == 't' ? 0 : k, c = p.l2 == 't' ? k : 0;
      fx.block(1).set(o, r, c, std::fabs(fx.block(1).get(o, r, c)));
    }
  if (passed) fx.args.op[0].w = passed[0], fx.args.op[0].h = passed[1], fx.args.op[1].w = passed[2], fx.args.op[1].h = passed[3];
  const MulOrder order = passed ? MulOrder::Kernel : orderOf(p, fx.contiguous());
  const tarnStatus status = fx.run(threads);
  auto a = [&](int o, int i, int k) { return p.l1 == 't' ? fx.before(0).get(o, k, i) : fx.before(0).get(o, i, k); };
  auto b = [&](int o, int k, int j) { return p.l2 == 't' ? fx.before(1).get(o, j, k) : fx.before(1).get(o, k, j); };
  std::string why = fx.compare(2, [&](int o, int i, int j) {
    const int o1 = fx.isArray(0) ? o : 0, o2 = fx.isArray(1) ? o : 0;
    return p.nm.esize == 4 ? double(mulElement<float>(order, p.z, i, [&](int k) { return float(a(o1, i, k)) * float(b(o2, k, j)); }))
                           : mulElement<double>(order, p.z, i, [&](int k) { return a(o1, i, k) * b(o2, k, j); });
  });
  if (status != tarnStatusOk) why += "status " + std::to_string(status);
  if (why.empty()) return why;
  return std::string(p.m->name) + " R" + std::to_string(R) + " K" + std::to_string(K) + " C" + std::to_string(C) +
         " count " + std::to_string(count) + " " + st.name + " threads " + std::to_string(threads) +
         " order " + std::to_string(int(order)) + ": " + why;
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
    const int passed[4] = {c.w1, c.h1, c.w2, c.h2};
    EXPECT_EQ(checkProduct(productOf(member(c.name), c.R, c.K, c.C), 2, style("padded"), 1, 4, passed), "");
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
