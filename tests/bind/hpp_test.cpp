// tarn.hpp: every member called through its family's overload on views must do exactly what the
// C call with the same arguments does, in every layout and placement; views that do not fit
// together never reach the library; statuses arrive as named error codes or as exceptions.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "harness.hpp"
#include "tarn.hpp"

namespace {

using tt::Sizes;
using HppCall = tt::MemberShape;
const HppCall* hppCall(const std::string& name) { return tt::shapeOf(name); }

struct Placed {
  std::unique_ptr<tt::CallFixture> fx;
  tarnStatus status = 0;
};

// The member on `count` objects drawn from `seed`, called through the C export or through tarn.hpp.
Placed place(const tt::MemberFn& m, const HppCall& h, const Sizes& z, int count, const tt::Style& st) {
  Placed p;
  p.fx = std::make_unique<tt::CallFixture>(m, count, st, [&](int b) { return h.extent(z, b); });
  std::mt19937 rng(1234);
  p.fx->fillSources(rng, false);
  // A plain array the member reads is a row order from a factorisation: a rotation of 0..n-1.
  for (int b = 0; b < m.nop; ++b)
    if (m.blk[b].kind == 0 && !m.blk[b].out) {
      const tt::Extent e = h.extent(z, b);
      const int n = p.fx->isArray(b) ? count : 1;
      for (int o = 0; o < n; ++o)
        for (int k = 0; k < e.cols; ++k) p.fx->block(b).setBits(0, 0, o * e.cols + k, uint64_t((k + o) % e.cols));
    }
  auto& a = p.fx->args;
  auto get = [&](const char* k) { return z.count(k) ? z.at(k) : 0; };
  a.width = get("width");
  a.height = get("height");
  a.len = get("len");
  a.order = get("widthHeight");
  a.val[0] = 1.25;
  a.val[1] = -0.75;
  return p;
}

std::vector<uint64_t> results(const tt::CallFixture& fx, const tt::MemberFn& m, const HppCall& h, const Sizes& z) {
  std::vector<uint64_t> out;
  for (int b = 0; b < m.nop; ++b) {
    if (!m.blk[b].out) continue;
    const tt::Extent e = h.extent(z, b);
    const int n = fx.isArray(b) ? fx.count() : 1;
    if (m.blk[b].kind == 0) {
      for (int k = 0; k < e.cols * n; ++k) out.push_back(fx.block(b).bits(0, 0, k));
    } else {
      for (int o = 0; o < n; ++o)
        for (int r = 0; r < e.rows; ++r)
          for (int c = 0; c < e.cols; ++c) out.push_back(fx.block(b).bits(o, r, c));
    }
  }
  return out;
}

TEST(Hpp, EveryMemberThroughItsOverloadEqualsTheCCall) {
  int members = 0;
  for (const auto& m : tt::allMembers()) {
    const HppCall* h = hppCall(m.name);
    ASSERT_NE(h, nullptr) << m.name << " has no call through tarn.hpp";
    Sizes z{{"count", 5}};
    h->sizes(z);
    for (const char* style : {"packed", "strided", "guarded-padded"}) {
      const auto& st = tt::style(style);
      Placed viaC = place(m, *h, z, 5, st), viaHpp = place(m, *h, z, 5, st);
      viaC.status = viaC.fx->run(1);
      std::error_code ec;
      viaHpp.fx->run(1, [&](const tt::Args& a) { return (ec = h->call(a, z)).value(); });
      EXPECT_EQ(ec.value(), viaC.status) << m.name << " " << style;
      if (ec) EXPECT_EQ(&ec.category(), &tarn::category()) << m.name;
      EXPECT_EQ(results(*viaHpp.fx, m, *h, z), results(*viaC.fx, m, *h, z)) << m.name << " " << style;
      EXPECT_EQ(viaHpp.fx->untouched(), "") << m.name << " " << style;
    }
    ++members;
  }
  EXPECT_GT(members, 500);
}

struct HppFixedCall {
  const char* name;
  std::error_code (*call)(const tt::FixedArgs&);
};

const HppFixedCall kFixedCalls[] = {
#include "hppfixed.inc"
};

// Every fixed-size member but the array forms through its typed form, on the same random
// operands as the C call: the same status and the same bytes in every buffer.
TEST(Hpp, EveryFixedMemberThroughItsTypedFormEqualsTheCCall) {
  int typed = 0;
  for (const tt::FixedFn& f : tt::fixedCalls()) {
    const auto h = std::find_if(std::begin(kFixedCalls), std::end(kFixedCalls),
                                [&](const HppFixedCall& c) { return std::string(c.name) == f.name; });
    if (h == std::end(kFixedCalls)) continue;
    float buf[2][8][16];
    int32_t ints[2] = {7, 7};
    std::mt19937 rng(99);
    std::uniform_real_distribution<float> u(-2, 2);
    for (auto& v : buf[0]) for (float& x : v) x = u(rng);
    std::memcpy(buf[1], buf[0], sizeof buf[0]);
    tt::FixedArgs a[2];
    for (int k = 0; k < 2; ++k) {
      for (int i = 0; i < 8; ++i) a[k].floats[i] = buf[k][i];
      a[k].ints = &ints[k];
      a[k].value = 0.625f;
    }
    const tarnStatus st = f.call(a[0]);
    EXPECT_EQ(h->call(a[1]).value(), st) << f.name;
    EXPECT_EQ(std::memcmp(buf[0], buf[1], sizeof buf[0]), 0) << f.name;
    EXPECT_EQ(ints[0], ints[1]) << f.name;
    ++typed;
  }
  EXPECT_GT(typed, 70);
}

template <class... A>
concept CanNormalize = requires(A... a) { tarn::normalize(a...); };
static_assert(CanNormalize<float (&)[3], float (&)[3]>);
static_assert(CanNormalize<std::array<float, 4>&, std::array<float, 4>&>);
static_assert(!CanNormalize<float (&)[3], float (&)[4]>);  // lengths that no member pairs
static_assert(!CanNormalize<float (&)[5], float (&)[5]>);

template <class... A>
concept CanAdd = requires(A... a) { tarn::add(a...); };
template <class... A>
concept CanMul = requires(A... a) { tarn::mul(a...); };
using MC = tarn::matrix<const float>;
using MAC = tarn::matrix_array<const float>;
using MA = tarn::matrix_array<float>;
using MT = tarn::matrix_table<float>;

// Combinations the library has no member for do not compile.
static_assert(CanAdd<MAC, MC, MA>);                       // mam
static_assert(!CanAdd<MC, MAC, MA>);                      // no mma: addition has no swapped forms
static_assert(CanAdd<tarn::transposed<MAC>, MC, MA>);     // tam
static_assert(!CanAdd<MAC, MC, tarn::matrix_array<double>>);  // no mixed element types
static_assert(!CanAdd<MAC, MC, MT>);                      // no layouts mixed within a member
static_assert(CanMul<MAC, tarn::transposed<MAC>, MA>);    // mata
static_assert(CanAdd<MA, MC, MA>);                        // a result view serves as a source

// A status by the name tarn.h gives it.
TEST(Hpp, ErrorCategoryNamesEveryStatus) {
  const std::pair<tarn::errc, const char*> kNames[] = {
      {tarn::errc::vector_solve_failed, "tarnStatusVectorSolveFailed"},
      {tarn::errc::bad_size, "tarnStatusBadSize"},
      {tarn::errc::null_pointer, "tarnStatusNullPointer"},
      {tarn::errc::divide_by_zero, "tarnStatusDivideByZero"},
      {tarn::errc::not_positive_definite, "tarnStatusNotPositiveDefinite"},
      {tarn::errc::bad_stride, "tarnStatusBadStride"},
      {tarn::errc::singular, "tarnStatusSingular"},
      {tarn::errc::bad_roi_shift, "tarnStatusBadRoiShift"},
      {tarn::errc::bad_count, "tarnStatusBadCount"},
      {tarn::errc::shape_mismatch, "tarnStatusShapeMismatch"},
      {tarn::errc::no_convergence, "tarnStatusNoConvergence"},
  };
  const int kValues[] = {-2, -6, -8, -10, -179, -182, -195, -202, -203, -204, -205};
  for (size_t i = 0; i < std::size(kNames); ++i) {
    const std::error_code ec = make_error_code(kNames[i].first);
    EXPECT_EQ(ec.value(), kValues[i]);
    EXPECT_EQ(ec.message(), kNames[i].second);
    EXPECT_STREQ(ec.category().name(), "tarn");
  }
}

// Views that do not fit together give shape_mismatch and leave the result alone.
TEST(Hpp, MisfitViewsNeverReachTheLibrary) {
  float a[2][3][3] = {}, b[3][3] = {}, d[2][3][3], s[2];
  std::memset(d, 0x5a, sizeof d);
  std::memset(s, 0x5a, sizeof s);
  const auto before = std::vector<uint8_t>(reinterpret_cast<uint8_t*>(d), reinterpret_cast<uint8_t*>(d) + sizeof d);
  const MAC A(&a[0][0][0], 2, 3, 3);
  struct Case {
    const char* what;
    std::function<std::error_code()> call;
  };
  const Case kCases[] = {
      {"result count", [&] { return tarn::add(A, MC(&b[0][0], 3, 3), MA(&d[0][0][0], 1, 3, 3)); }},
      {"source rows", [&] { return tarn::add(A, MC(&b[0][0], 2, 3), MA(&d[0][0][0], 2, 3, 3)); }},
      {"inner sizes", [&] { return tarn::mul(A, MC(&b[0][0], 2, 3), MA(&d[0][0][0], 2, 3, 3)); }},
      {"product columns", [&] { return tarn::mul(A, MC(&b[0][0], 3, 2), MA(&d[0][0][0], 2, 3, 3)); }},
      {"short scalar span", [&] { return tarn::trace(A, std::span<float>(s, 1)); }},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(c.call(), tarn::errc::shape_mismatch) << c.what;
    EXPECT_EQ(std::memcmp(before.data(), d, sizeof d), 0) << c.what;
  }
  EXPECT_EQ(s[0], s[1]);
  EXPECT_FALSE(tarn::trace(A, std::span<float>(s, 2)));
  EXPECT_EQ(s[0], 0.0f);
}

// The throwing form carries the library's status.
TEST(Hpp, ThrowingFormRaisesTheStatus) {
  float a[9] = {}, d[9];
  try {
    tarn::throwing::add(MC(a, 3, 3, 12, 0), MC(a, 3, 3), tarn::matrix<float>(d, 3, 3));  // element stride 0
    FAIL() << "no exception";
  } catch (const tarn::error& e) {
    EXPECT_EQ(e.code(), tarn::errc::bad_stride);
    EXPECT_EQ(e.status(), tarnStatusBadStride);
  }
  EXPECT_NO_THROW(tarn::throwing::add(MC(a, 3, 3), MC(a, 3, 3), tarn::matrix<float>(d, 3, 3)));
}

}  // namespace
