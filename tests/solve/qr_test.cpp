// QRDecomp and QRBackSubst against their models, in every member, layout and placement; column
// norms at and around the limit; failing objects across thread slices; the per-thread scratch;
// least-squares round trips through both families.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "regions.hpp"
#include "scratch.hpp"
#include "solve.hpp"

namespace tt {
namespace {

struct Shape {
  int h, w;
};
// No reflector (1x1), the general loop, every shape with a body in locals, and beyond them.
const Shape kShapes[] = {{1, 1}, {2, 1}, {2, 2}, {3, 3}, {4, 3}, {4, 4}, {5, 2},
                         {5, 5}, {6, 3}, {6, 4}, {6, 6}, {7, 7}, {8, 5}};

// Blocks: QRDecomp src, buffer, dst; QRBackSubst src1, buffer, src2, dst.
Extent decompExtent(int b, Shape s) { return b == 1 ? Extent{1, s.h} : Extent{s.h, s.w}; }
Extent solveExtent(int b, Shape s) { return b == 0 ? Extent{s.h, s.w} : b == 3 ? Extent{1, s.w} : Extent{1, s.h}; }

bool isDecomp(const MemberFn& m) { return parseName(m.name).family == "QRDecomp"; }

struct QrRun {
  Shape s;
  int count = 7, threads = 1;
  bool parallel = false, specials = false, inPlace = false;
  unsigned seed = 1;
  int status = 1;  // a status typed by the test, beside the model's; 1: none
  std::function<void(CallFixture&)> prepare;
};

// Runs the member and compares dst, and after a serial walk the caller's buffer, with the model.
std::string check(const MemberFn& m, const Style& st, const QrRun& run) {
  const Shape s = run.s;
  const bool decomp = isDecomp(m);
  CallFixture fx(m, run.count, st, [&](int b) { return decomp ? decompExtent(b, s) : solveExtent(b, s); });
  fx.args.width = s.w;
  fx.args.height = s.h;
  std::mt19937 rng(run.seed);
  fx.fillSources(rng, run.specials);
  if (run.prepare) run.prepare(fx);
  // In place: QRDecomp's dst is its src, QRBackSubst's dst is its b.
  if (run.inPlace) fx.args.op[decomp ? 2 : 3] = fx.args.op[decomp ? 0 : 2];
  const int dst = run.inPlace ? (decomp ? 0 : 2) : (decomp ? 2 : 3);
  const tarnStatus got = fx.run(run.threads);
  int want = 0;
  std::string why = byType(fx.esize(), [&]<class T>() {
    // The buffer as the model leaves it: it carries over from object to object.
    std::vector<T> last(static_cast<size_t>(s.h));
    for (int i = 0; i < s.h; ++i) last[size_t(i)] = T(fx.before(1).get(0, 0, i));
    auto model = [&](int n) {
      Outcome o;
      if (decomp) {
        ref::Mat<T> a = matOf<T>(fx, 0, n, s.h, s.w);
        o.status = ref::qrDecomp(a, last);
        o.values.assign(a.e.begin(), a.e.end());
      } else {
        const ref::Mat<T> a = matOf<T>(fx, 0, fx.isArray(0) ? n : 0, s.h, s.w);
        const ref::Mat<T> b = matOf<T>(fx, 2, n, 1, s.h);
        std::vector<T> x, c;
        ref::qrSolve(a, b.e, x, c);
        o.values.assign(x.begin(), x.end());
        if (!(s.h == s.w && s.h >= 3 && s.h <= 6)) last = c;  // square orders 3 to 6 keep b in locals
      }
      return o;
    };
    const int per = decomp ? s.h * s.w : s.w;
    auto place = [&](int n, int k) { return decomp ? Place{n, k / s.w, k % s.w} : Place{n, 0, k}; };
    std::string w = compareWalk(fx, dst, per, run.threads, run.parallel, model, place, want);
    // The caller's buffer: on a serial walk as the model leaves it, on a parallel one untouched.
    for (int i = 0; i < s.h; ++i) {
      const uint64_t b = fx.block(1).bits(0, 0, i);
      const uint64_t want = run.parallel ? fx.before(1).bits(0, 0, i) : bitsOf(double(last[size_t(i)]), fx.esize());
      if (b != want && !(std::isnan(double(last[size_t(i)])) && std::isnan(fx.block(1).get(0, 0, i))))
        return w + "buffer element " + std::to_string(i) + " differs; ";
    }
    return w;
  });
  if (got != want || (run.status != 1 && got != run.status))
    why += "status " + std::to_string(got) + " want " + std::to_string(run.status != 1 ? run.status : want) + "; ";
  std::vector<int> writable = {1};
  if (run.inPlace) writable.push_back(dst);
  why += fx.untouched(writable);
  return why.empty() ? why
                     : std::string(m.name) + " " + std::to_string(s.h) + "x" + std::to_string(s.w) + " " + st.name +
                           " count " + std::to_string(run.count) + " threads " + std::to_string(run.threads) + ": " + why;
}

// Every member, every shape, the placements in turn; arrays of 7 objects (a short last group in
// both types), exceptional values in every other shape, and in place in some.
TEST(QR, EveryMemberMatchesTheModel) {
  int i = 0;
  for (const char* family : {"QRDecomp", "QRBackSubst"})
    for (const MemberFn* m : membersOf(family))
      for (const Shape s : kShapes) {
        const Style& st = styles()[size_t(i++) % styles().size()];
        QrRun r{s};
        r.specials = i % 2;
        r.seed = unsigned(i);
        r.inPlace = i % 5 == 0 && (isDecomp(*m) || s.h == s.w) && std::string(st.name) != "soa";
        EXPECT_EQ(check(*m, st, r), "");
      }
}

// A column fails when its squared norm from the diagonal down is strictly below 2^-23 (32f) or
// 2^-52 (64f); the last column of a square matrix is never tested. The status is typed here, the
// results come from the model.
TEST(QR, ColumnNormLimit) {
  struct Case {
    Shape s;
    double col32[2], col64[2];  // rows 0 and 1 of column 0; rows below are 0
    int status;
  };
  const double below32 = 0x1p-12 * (1 - 0x1p-24), below64 = 0x1p-26 * (1 - 0x1p-53);
  const Case cases[] = {
      {{2, 1}, {0x1p-12, 0x1p-12}, {0x1p-26, 0}, 0},  // exactly on the limit
      {{2, 1}, {0x1p-12, below32}, {below64, 0}, -10},  // one step below
      {{3, 2}, {0x1p-12, 0x1p-12}, {0x1p-26, 0}, 0},
      {{3, 2}, {below32, 0x1p-12}, {below64, 0}, -10},
      {{1, 1}, {0, 0}, {0, 0}, 0},  // no reflector at all
      {{2, 2}, {1, 0}, {1, 0}, 0},  // the last column, zero below the diagonal, is not tested
  };
  for (const char* name : {"tarnQRDecomp_m_32f", "tarnQRDecomp_m_64f_P", "tarnQRDecomp_ma_32f_L", "tarnQRDecomp_ma_64f"})
    for (const Case& c : cases) {
      const bool f64 = parseName(name).esize == 8;
      QrRun r{c.s};
      r.count = 3;
      r.status = c.status;
      r.prepare = [&](CallFixture& fx) {
        for (int n = 0; n < (fx.isArray(0) ? fx.count() : 1); ++n) {
          for (int i = 0; i < c.s.h; ++i) fx.block(0).set(n, i, 0, i < 2 ? (f64 ? c.col64 : c.col32)[i] : 0.0);
          if (c.s.w == 2 && c.s.h == 2) fx.block(0).set(n, 1, 1, 0.0);
        }
      };
      EXPECT_EQ(check(member(name), style("guarded"), r), "");
    }
}

// Objects with a zero column fail: every slice stops at its own first failure, later objects of
// the slice are untouched, the others finish; 1 to 4 threads.
TEST(QR, FailuresAcrossThreadSlices) {
  struct Case {
    const char* name;
    Shape s;
    int count;
    std::vector<int> failing;
    int column;  // zeroed column: 1 fails at stage 1 with stage 0 applied
  };
  const Case cases[] = {
      {"tarnQRDecomp_ma_32f", {4, 4}, 100, {10, 30, 60, 99}, 1},
      {"tarnQRDecomp_ma_64f_P", {5, 5}, 60, {0, 59}, 0},
      {"tarnQRDecomp_ma_32f_L", {7, 3}, 50, {24, 25}, 2},
  };
  for (const Case& c : cases)
    for (int threads = 1; threads <= 4; ++threads) {
      QrRun r{c.s};
      r.count = c.count;
      r.threads = threads;
      r.parallel = threads > 1;
      r.prepare = [&](CallFixture& fx) {
        for (int n : c.failing)
          for (int i = 0; i < c.s.h; ++i) fx.block(0).set(n, i, c.column, 0.0);
      };
      int regions = 0;
      std::string why;
      regions = regionsOpenedBy([&] { why = check(member(c.name), style("padded"), r); });
      EXPECT_EQ(why, "");
      EXPECT_EQ(regions, threads > 1 ? 1 : 0) << c.name;
    }
}

// On the parallel path each thread works in its own part of one block from the runtime's
// allocator, T times the per-thread size, and the caller's buffer is left alone. Thread t's part
// ends as the reference leaves the work vector after the last object of t's slice.
TEST(QR, PerThreadScratch) {
  const Shape s{5, 3};
  for (const char* name : {"tarnQRDecomp_ma_32f", "tarnQRDecomp_ma_64f_P", "tarnQRBackSubst_mava_32f_L",
                           "tarnQRBackSubst_mva_64f"})
    for (int threads : {2, 3}) {
      const MemberFn& m = member(name);
      const bool decomp = isDecomp(m);
      const int count = 400;
      CallFixture fx(m, count, style("packed"), [&](int b) { return decomp ? decompExtent(b, s) : solveExtent(b, s); });
      fx.args.width = s.w;
      fx.args.height = s.h;
      std::mt19937 rng(7);
      fx.fillSources(rng, false);
      const auto blocks = scratchDuring([&] { EXPECT_EQ(fx.run(threads), 0); });
      ASSERT_EQ(blocks.size(), 1u) << name;
      const ScratchBlock& b = blocks[0];
      const int es = fx.esize();
      EXPECT_TRUE(b.released);
      EXPECT_EQ(b.bytes, size_t(threads * s.h * es)) << name;
      for (size_t i = b.bytes; i < b.bytes + kScratchTail; ++i) ASSERT_EQ(b.content[i], kFill) << name << " past the block";
      for (int i = 0; i < s.h; ++i) EXPECT_EQ(fx.block(1).bits(0, 0, i), fx.before(1).bits(0, 0, i)) << name;
      const auto slices = slicesOf(count, threads, true);
      for (size_t id = 0; id < slices.size(); ++id) {
        const int last = slices[id].first + slices[id].second - 1;
        const size_t at = id * size_t(s.h * es);
        byType(es, [&]<class T>() {
          std::vector<T> want(static_cast<size_t>(s.h));
          if (decomp) {
            for (int i = 0; i < 3; ++i) want[size_t(i)] = 1;
            for (int i = 3; i < s.h; ++i) want[size_t(i)] = T(fx.block(2).get(last, i, 2));
          } else {
            std::vector<T> x;
            ref::qrSolve(matOf<T>(fx, 0, fx.isArray(0) ? last : 0, s.h, s.w), matOf<T>(fx, 2, last, 1, s.h).e, x, want);
          }
          for (int i = 0; i < s.h; ++i) {
            T got;
            std::memcpy(&got, b.content.data() + at + size_t(i * es), sizeof(T));
            EXPECT_EQ(got, want[size_t(i)]) << name << " thread block at " << at << " element " << i;
          }
          return 0;
        });
      }
    }
}

// Least squares through both families: x solves A x = b for a square system, and for a tall one
// the residual A x - b is orthogonal to every column of A.
TEST(QR, LeastSquaresRoundTrip) {
  auto solveBatch = [](auto zero, int h, int w) {
    using T = decltype(zero);
    constexpr bool f32 = sizeof(T) == 4;
    const int count = 9;
    std::mt19937 rng(unsigned(h * 10 + w));
    std::uniform_real_distribution<double> u(-1, 1);
    std::vector<T> a(static_cast<size_t>(count * h * w)), f(a.size()), b(static_cast<size_t>(count * h)),
        x(static_cast<size_t>(count * w)), buf(static_cast<size_t>(h));
    for (auto& e : a) e = T(u(rng));
    for (auto& e : b) e = T(u(rng));
    const int es = int(sizeof(T)), os = h * w * es;
    tarnStatus s1, s2;
    if constexpr (f32) {
      s1 = tarnQRDecomp_ma_32f(a.data(), os, w * es, es, buf.data(), f.data(), os, w * es, es, w, h, count);
      s2 = tarnQRBackSubst_mava_32f(f.data(), os, w * es, es, buf.data(), b.data(), h * es, es, x.data(), w * es, es, w, h, count);
    } else {
      s1 = tarnQRDecomp_ma_64f(a.data(), os, w * es, es, buf.data(), f.data(), os, w * es, es, w, h, count);
      s2 = tarnQRBackSubst_mava_64f(f.data(), os, w * es, es, buf.data(), b.data(), h * es, es, x.data(), w * es, es, w, h, count);
    }
    EXPECT_EQ(s1, 0);
    EXPECT_EQ(s2, 0);
    double worst = 0;
    for (int n = 0; n < count; ++n)
      for (int j = 0; j < w; ++j) {
        double g = 0;  // column j of A against the residual (the residual itself when square)
        for (int i = 0; i < h; ++i) {
          double r = -double(b[size_t(n * h + i)]);
          for (int k = 0; k < w; ++k) r += double(a[size_t((n * h + i) * w + k)]) * double(x[size_t(n * w + k)]);
          g += h == w ? (i == j ? r : 0) : double(a[size_t((n * h + i) * w + j)]) * r;
        }
        worst = std::max(worst, std::fabs(g));
      }
    EXPECT_LT(worst, f32 ? 2e-4 : 1e-12) << h << "x" << w << (f32 ? " 32f" : " 64f");
  };
  for (const Shape s : {Shape{3, 3}, Shape{4, 4}, Shape{6, 3}, Shape{8, 5}, Shape{12, 4}}) {
    solveBatch(0.0f, s.h, s.w);
    solveBatch(0.0, s.h, s.w);
  }
}

}  // namespace
}  // namespace tt
