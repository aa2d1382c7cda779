// Points through a 4x4 matrix: every single and array form against the model of its own sums,
// arrays with byte strides of either sign ending at a guarded page and canaries between the
// points; Project and Unproject with singular products; AffineTransform3DH in every placement
// and on 1 to 4 threads with failing points mid-batch.
#include <algorithm>
#include <cfloat>

#include "fixed.hpp"
#include "harness.hpp"
#include "ref/geometry_ref.hpp"
#include "tarn.h"

namespace tt {
namespace {

// `count` points of n floats, `stride` bytes apart, the highest one ending at a guarded page.
struct Points {
  int n;
  int32_t stride;
  Storage mem;
  uint8_t* base;
  Points(int floats, int32_t s, int count)
      : n(floats),
        stride(s),
        mem(16 + size_t(std::abs(s)) * size_t(std::max(count - 1, 0)) + 4 * size_t(floats), true) {
    base = mem.data() + mem.size() - 4 * n - (s > 0 ? size_t(s) * size_t(std::max(count - 1, 0)) : 0);
  }
  float* at(int k) const { return reinterpret_cast<float*>(base + std::ptrdiff_t(k) * stride); }
  size_t offset(int k) const { return size_t(reinterpret_cast<uint8_t*>(at(k)) - mem.data()); }
  std::vector<uint8_t> bytes() const { return {mem.data(), mem.data() + mem.size()}; }
};

void fill(std::mt19937& rng, float* p, int n, bool specials = false) {
  for (int i = 0; i < n; ++i) p[i] = value(rng, specials);
}

using One = tarnStatus (*)(const float*, const float*, float*);
using Arr = tarnStatus (*)(const float*, const float*, int32_t, float*, int32_t, int32_t);
struct Form {
  const char* name;  // the single form; the array form adds `a`
  int n, out;
  void (*model)(const float* m, const float* v, float* d, int n, bool array);
};
const Form kForms[] = {
    {"tarnAffineTransform_m4v2", 2, 4, ref::affine},       {"tarnAffineTransform_m4v3", 3, 4, ref::affine},
    {"tarnAffineTransform_m4v4", 4, 4, ref::affine},       {"tarnAffineTransformCoord_m4v2", 2, 2, ref::coord},
    {"tarnAffineTransformCoord_m4v3", 3, 3, ref::coord},   {"tarnAffineTransformNormal_m4v2", 2, 2, ref::normal},
    {"tarnAffineTransformNormal_m4v3", 3, 3, ref::normal},
};
const int kCounts[] = {0, -2, 1, 3, 4, 6, 13};

TEST(GeometryTransforms, SingleAndArrayFormsAddInTheirOwnOrders) {
  std::mt19937 rng(74);
  Fixed m(16);
  for (const Form& f : kForms) {
    Fixed src(f.n), dst(f.out);
    for (int trial = 0; trial < 300; ++trial) {
      fill(rng, m.p, 16, trial % 5 == 4);
      fill(rng, src.p, f.n);
      float want[4];
      f.model(m.p, src.p, want, f.n, false);
      ASSERT_EQ(exported<One>(f.name + std::string("_32f"))(m.p, src.p, dst.p), tarnStatusOk);
      ASSERT_TRUE(sameFloats(dst.p, want, f.out)) << f.name << " trial " << trial;
    }
    EXPECT_TRUE(src.leadIntact() && dst.leadIntact() && m.leadIntact());
    for (int count : kCounts)
      for (int32_t ss : {4 * f.n, 4 * f.n + 8, -4 * f.n})
        for (int32_t ds : {4 * f.out, -4 * f.out - 4}) {
          Points src(f.n, ss, count), dst(f.out, ds, count);
          for (int k = 0; k < count; ++k) fill(rng, src.at(k), f.n, true);
          fill(rng, m.p, 16);
          const auto srcBefore = src.bytes();
          auto want = dst.bytes();
          auto wantAt = [&](int k) { return reinterpret_cast<float*>(want.data() + dst.offset(k)); };
          for (int k = 0; k < count; ++k) f.model(m.p, src.at(k), wantAt(k), f.n, true);
          ASSERT_EQ(exported<Arr>(f.name + std::string("a_32f"))(m.p, src.at(0), ss, dst.at(0), ds, count),
                    tarnStatusOk);
          EXPECT_EQ(src.bytes(), srcBefore) << f.name;
          for (int k = 0; k < count; ++k) {
            ASSERT_TRUE(sameFloats(dst.at(k), wantAt(k), f.out))
                << f.name << "a count " << count << " strides " << ss << " " << ds << " point " << k;
            std::memcpy(wantAt(k), dst.at(k), 4 * size_t(f.out));  // NaNs as they came
          }
          EXPECT_EQ(dst.bytes(), want) << f.name << "a wrote outside its points, count " << count;
        }
  }
}

TEST(GeometryTransforms, ProjectAndUnprojectSingleAndArray) {
  std::mt19937 rng(75);
  Fixed proj(16), view(16), world(16), src(3), dst(3);
  for (int trial = 0; trial < 200; ++trial) {
    for (Fixed* f : {&proj, &view, &world}) fill(rng, f->p, 16);
    if (trial % 4 == 3) std::fill(proj.p + 4, proj.p + 8, 0.0f);  // a zero row: the product is singular
    const ref::Viewport vp{std::fabs(value(rng)), std::fabs(value(rng)), value(rng), value(rng)};
    fill(rng, src.p, 3);
    float want[3], inv[16];
    ref::project(proj.p, view.p, world.p, src.p, vp, want);
    ASSERT_EQ(tarnProject_m4v3_32f(proj.p, view.p, world.p, src.p, vp.w, vp.h, vp.minZ, vp.maxZ, dst.p), tarnStatusOk);
    ASSERT_TRUE(sameFloats(dst.p, want, 3)) << "Project trial " << trial;
    // Unproject leaves the normalised point in dst when the product cannot be inverted.
    const int st = ref::unprojection(proj.p, view.p, world.p, inv);
    ref::normalised(src.p, vp, want);
    if (st == 0) ref::coord(inv, want, want, 3, false);
    ASSERT_EQ(tarnUnproject_m4v3_32f(proj.p, view.p, world.p, src.p, vp.w, vp.h, vp.minZ, vp.maxZ, dst.p), st);
    ASSERT_TRUE(sameFloats(dst.p, want, 3)) << "Unproject trial " << trial;
    // Arrays: the same points one by one; Unproject writes nothing when singular.
    for (bool un : {false, true}) {
      const int count = 1 + trial % 7;
      Points s(3, trial % 2 ? -16 : 12, count), d(3, trial % 3 ? 12 : -20, count);
      for (int k = 0; k < count; ++k) fill(rng, s.at(k), 3);
      const auto before = d.bytes();
      auto call = un ? tarnUnproject_m4v3a_32f : tarnProject_m4v3a_32f;
      ASSERT_EQ(
          call(proj.p, view.p, world.p, s.at(0), s.stride, vp.w, vp.h, vp.minZ, vp.maxZ, d.at(0), d.stride, count),
          un ? st : 0);
      for (int k = 0; k < count && !(un && st); ++k) {
        if (un)
          ref::normalised(s.at(k), vp, want), ref::coord(inv, want, want, 3, false);
        else
          ref::project(proj.p, view.p, world.p, s.at(k), vp, want);
        ASSERT_TRUE(sameFloats(d.at(k), want, 3))
            << (un ? "Unproject" : "Project") << "a trial " << trial << " point " << k;
      }
      if (un && st) EXPECT_EQ(d.bytes(), before);
    }
  }
}

// ---- AffineTransform3DH ---------------------------------------------------------------------

const MemberFn& h3d() { return member("tarnAffineTransform3DH_mva_32f"); }

// Runs the member on `count` points placed in `st`: a random matrix, or with `failing` a
// matrix whose w' is x itself and points whose x sits on both sides of the smallest normal.
std::string runH3d(int count, const Style& st, int threads, bool failing, unsigned seed) {
  CallFixture fx(h3d(), count, st, [](int b) { return b == 0 ? Extent{4, 4} : Extent{1, 3}; });
  std::mt19937 rng(seed);
  fx.fillSources(rng, !failing && seed % 3 == 0);
  const float edge[] = {FLT_MIN, -FLT_MIN, std::nextafter(FLT_MIN, 1.0f), 0.0f,
                        1e-40f,  NAN,      -std::nextafter(FLT_MIN, 1.0f)};
  if (failing) {
    for (int c = 0; c < 4; ++c) fx.block(0).set(0, 3, c, c == 0);
    for (int k = 0; k < count; k += 5) fx.block(1).set(k, 0, 0, edge[(k / 5) % 7]);
  }
  const tarnStatus got = fx.run(threads);
  float m[16];
  for (int i = 0; i < 16; ++i) m[i] = float(fx.before(0).get(0, i / 4, i % 4));
  bool ok = true;
  std::string why = fx.compare(2, [&](int k, int, int c) {
    float v[3], want[3];
    for (int i = 0; i < 3; ++i) v[i] = float(fx.before(1).get(k, 0, i));
    ok &= ref::h3d(m, v, want, fx.contiguous());
    return want[c];
  });
  if (got != (ok ? tarnStatusOk : tarnStatusDivideByZero)) why += "status " + std::to_string(got);
  return why.empty() ? why
                     : std::string(st.name) + " count " + std::to_string(count) + " threads " + std::to_string(threads) +
                           ": " + why;
}

TEST(GeometryTransform3DH, EveryPlacementAndThreadCount) {
  unsigned seed = 0;
  for (const Style& st : styles())
    for (int count : {1, 3, 5, 331, 1003})
      for (bool failing : {false, true}) {
        const std::string w = runH3d(count, st, 1, failing, ++seed);
        ASSERT_TRUE(w.empty()) << w;
      }
  for (int threads = 2; threads <= 4; ++threads)
    for (const char* st : {"packed", "strided"}) {
      const std::string w = runH3d(1003, style(st), threads, true, 99);
      ASSERT_TRUE(w.empty()) << w;
    }
}

}  // namespace
}  // namespace tt
