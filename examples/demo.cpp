// tarn at work on a realistic batch: a million 3x3 and 4x4 matrices and 3-vectors, summed in
// each layout on one thread and on all of them, and a million 4-vectors transformed by one
// matrix; each checked against a plain loop and timed.
#include <omp.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "tarn.h"

namespace {

constexpr int kN = 1'000'000;

struct Batch {
  // Packed objects of `elems` floats each: the form most callers hold.
  int elems;
  std::vector<float> a, b, d, expect;
  explicit Batch(int e) : elems(e), a(size_t(e) * kN), b(size_t(e) * kN), d(size_t(e) * kN), expect(size_t(e) * kN) {
    std::mt19937 rng(42);
    std::uniform_real_distribution<float> u(-100.0f, 100.0f);
    for (auto& x : a) x = u(rng);
    for (auto& x : b) x = u(rng);
  }
};

struct Row {
  std::string what;
  double bytesPerObject;
  std::function<void()> plain;    // the loop a caller would write
  std::function<int()> tarnCall;  // the same work through tarn
  std::function<bool()> check;    // tarn's result equals the loop's, bit for bit
};

double bestSeconds(const std::function<void()>& f) {
  double best = 1e30;
  for (int rep = 0; rep < 5; ++rep) {
    const auto t0 = std::chrono::steady_clock::now();
    f();
    const auto t1 = std::chrono::steady_clock::now();
    best = std::min(best, std::chrono::duration<double>(t1 - t0).count());
  }
  return best;
}

bool sameBits(const std::vector<float>& x, const std::vector<float>& y) {
  return std::memcmp(x.data(), y.data(), x.size() * sizeof(float)) == 0;
}

}  // namespace

int main() {
  const tarnLibraryVersion* v = tarnGetLibVersion();
  const int threads = omp_get_num_procs();
  std::printf("%s, version %s\n", v->name, v->version);
  std::printf("batch of %d objects, %d hardware threads\n\n", kN, threads);

  Batch m3(9), m4(16), v3(3), v4(4);
  // A LayoutL view of the 3x3 batch: one pointer per object.
  std::vector<const float*> aL(kN), bL(kN);
  std::vector<float*> dL(kN);
  for (int n = 0; n < kN; ++n) {
    aL[n] = &m3.a[size_t(n) * 9];
    bL[n] = &m3.b[size_t(n) * 9];
    dL[n] = &m3.d[size_t(n) * 9];
  }
  // A LayoutP batch: nine streams, one per matrix element, as a structure of arrays holds them.
  std::vector<float> aS(9 * size_t(kN)), bS(9 * size_t(kN)), dS(9 * size_t(kN));
  std::vector<const float*> aP(9), bP(9);
  std::vector<float*> dP(9);
  for (int e = 0; e < 9; ++e) {
    aP[e] = &aS[size_t(e) * kN];
    bP[e] = &bS[size_t(e) * kN];
    dP[e] = &dS[size_t(e) * kN];
    for (int n = 0; n < kN; ++n) {
      aS[size_t(e) * kN + n] = m3.a[size_t(n) * 9 + e];
      bS[size_t(e) * kN + n] = m3.b[size_t(n) * 9 + e];
    }
  }
  auto sumLoop = [](Batch& x) {
    for (int n = 0; n < kN; ++n)
      for (int e = 0; e < x.elems; ++e) x.expect[size_t(n) * x.elems + e] = x.a[size_t(n) * x.elems + e] + x.b[size_t(n) * x.elems + e];
  };
  // One fixed offset matrix added to every object.
  const float offset[9] = {0.5f, -1.25f, 2.0f, 3.5f, 0.0f, -7.0f, 1e-3f, 42.0f, -0.75f};
  // Scalars with many significant bits, so every product is rounded.
  const float kScale1 = 0.3f, kScale2 = -1.7f;
  // A rigid transform with a scale, in homogeneous coordinates, rows as stored.
  const float xf[4][4] = {{0.8f, -0.6f, 0.0f, 12.5f}, {0.6f, 0.8f, 0.0f, -3.25f}, {0.0f, 0.0f, 1.1f, 0.75f}, {0, 0, 0, 1}};

  const std::vector<Row> rows = {
      {"Add_mama 3x3, LayoutS", 36.0 * 3, [&] { sumLoop(m3); },
       [&] { return tarnAdd_mama_32f(m3.a.data(), 36, 12, 4, m3.b.data(), 36, 12, 4, m3.d.data(), 36, 12, 4, 3, 3, kN); },
       [&] { return sameBits(m3.d, m3.expect); }},
      {"Add_mama 3x3, LayoutL", 36.0 * 3, [&] { sumLoop(m3); },
       [&] { return tarnAdd_mama_32f_L(aL.data(), 0, 12, 4, bL.data(), 0, 12, 4, dL.data(), 0, 12, 4, 3, 3, kN); },
       [&] { return sameBits(m3.d, m3.expect); }},
      {"Add_mama 3x3, LayoutP", 36.0 * 3,
       [&] {
         for (int e = 0; e < 9; ++e)
           for (int n = 0; n < kN; ++n) dS[size_t(e) * kN + n] = aS[size_t(e) * kN + n] + bS[size_t(e) * kN + n];
       },
       [&] { return tarnAdd_mama_32f_P(aP.data(), 0, 4, bP.data(), 0, 4, dP.data(), 0, 4, 3, 3, kN); },
       [&] {
         for (int e = 0; e < 9; ++e)
           for (int n = 0; n < kN; ++n)
             if (dS[size_t(e) * kN + n] != m3.a[size_t(n) * 9 + e] + m3.b[size_t(n) * 9 + e]) return false;
         return true;
       }},
      {"Add_mam 3x3 + one, LayoutS", 36.0 * 2,
       [&] {
         for (int n = 0; n < kN; ++n)
           for (int e = 0; e < 9; ++e) m3.expect[size_t(n) * 9 + e] = m3.a[size_t(n) * 9 + e] + offset[e];
       },
       [&] { return tarnAdd_mam_32f(m3.a.data(), 36, 12, 4, offset, 12, 4, m3.d.data(), 36, 12, 4, 3, 3, kN); },
       [&] { return sameBits(m3.d, m3.expect); }},
      {"Add_mama 4x4, LayoutS", 64.0 * 3, [&] { sumLoop(m4); },
       [&] { return tarnAdd_mama_32f(m4.a.data(), 64, 16, 4, m4.b.data(), 64, 16, 4, m4.d.data(), 64, 16, 4, 4, 4, kN); },
       [&] { return sameBits(m4.d, m4.expect); }},
      {"Add_vava 3-vectors, LayoutS", 12.0 * 3, [&] { sumLoop(v3); },
       [&] { return tarnAdd_vava_32f(v3.a.data(), 12, 4, v3.b.data(), 12, 4, v3.d.data(), 12, 4, 3, kN); },
       [&] { return sameBits(v3.d, v3.expect); }},
      // Scaled sums: every product and the sum rounded on its own, as the loop below does it.
      {"Saxpy_vava 3-vectors, LayoutS", 12.0 * 3,
       [&] {
         for (size_t i = 0; i < v3.a.size(); ++i) {
           const float p = v3.a[i] * kScale1;
           v3.expect[i] = p + v3.b[i];
         }
       },
       [&] { return tarnSaxpy_vava_32f(v3.a.data(), 12, 4, kScale1, v3.b.data(), 12, 4, v3.d.data(), 12, 4, 3, kN); },
       [&] { return sameBits(v3.d, v3.expect); }},
      {"LComb_vav 3-vec + one, LayoutS", 12.0 * 2,
       [&] {
         for (int n = 0; n < kN; ++n)
           for (int i = 0; i < 3; ++i) {
             const float p = v3.a[size_t(n) * 3 + i] * kScale1, q = offset[i] * kScale2;
             v3.expect[size_t(n) * 3 + i] = p + q;
           }
       },
       [&] { return tarnLComb_vav_32f(v3.a.data(), 12, 4, kScale1, offset, 4, kScale2, v3.d.data(), 12, 4, 3, kN); },
       [&] { return sameBits(v3.d, v3.expect); }},
      // Layout conversion: the nine element streams of the LayoutP batch gathered into packed
      // 3x3 matrices, then scattered back into fresh streams.
      {"Copy 3x3 LayoutP -> LayoutS", 36.0 * 2,
       [&] {
         for (int n = 0; n < kN; ++n)
           for (int e = 0; e < 9; ++e) m3.expect[size_t(n) * 9 + e] = aS[size_t(e) * kN + n];
       },
       [&] { return tarnCopy_ma_32f_PS(aP.data(), 0, 4, m3.d.data(), 36, 12, 4, 3, 3, kN); },
       [&] { return sameBits(m3.d, m3.a); }},
      {"Copy 3x3 LayoutS -> LayoutP", 36.0 * 2,
       [&] {
         for (int e = 0; e < 9; ++e)
           for (int n = 0; n < kN; ++n) dS[size_t(e) * kN + n] = m3.a[size_t(n) * 9 + e];
       },
       [&] { return tarnCopy_ma_32f_SP(m3.a.data(), 36, 12, 4, dP.data(), 0, 4, 3, 3, kN); },
       [&] { return sameBits(dS, aS); }},
      // Transforms: one 4x4 matrix applied to a million 4-vectors, as a tracking loop does every
      // step, and its affine form with an offset per vector. tarn's float kernels sum the four
      // products of a row in the order of their registers, (p0 + p2) + (p1 + p3), the offset
      // last; the loops below do the same, so the results agree bit for bit.
      {"Mul_mva 4x4 * 4-vectors", 16.0 * 2,
       [&] {
         for (int n = 0; n < kN; ++n)
           for (int i = 0; i < 4; ++i) {
             const float* x = &v4.a[size_t(n) * 4];
             const float p0 = xf[i][0] * x[0], p1 = xf[i][1] * x[1], p2 = xf[i][2] * x[2], p3 = xf[i][3] * x[3];
             v4.expect[size_t(n) * 4 + i] = (p0 + p2) + (p1 + p3);
           }
       },
       [&] { return tarnMul_mva_32f(&xf[0][0], 16, 4, 4, 4, v4.a.data(), 16, 4, 4, v4.d.data(), 16, 4, kN); },
       [&] { return sameBits(v4.d, v4.expect); }},
      {"Gaxpy_mva 4x4 * v + b", 16.0 * 3,
       [&] {
         for (int n = 0; n < kN; ++n)
           for (int i = 0; i < 4; ++i) {
             const float* x = &v4.a[size_t(n) * 4];
             const float p0 = xf[i][0] * x[0], p1 = xf[i][1] * x[1], p2 = xf[i][2] * x[2], p3 = xf[i][3] * x[3];
             const float sum = (p0 + p2) + (p1 + p3);
             v4.expect[size_t(n) * 4 + i] = sum + v4.b[size_t(n) * 4 + i];
           }
       },
       [&] {
         return tarnGaxpy_mva_32f(&xf[0][0], 16, 4, 4, 4, v4.a.data(), 16, 4, 4, v4.b.data(), 16, 4, 4, v4.d.data(), 16,
                                  4, kN);
       },
       [&] { return sameBits(v4.d, v4.expect); }},
      // Every matrix of the batch scaled by one constant: one rounded product per element.
      {"Mul_mac 3x3 * constant", 36.0 * 2,
       [&] {
         for (size_t i = 0; i < m3.a.size(); ++i) m3.expect[i] = m3.a[i] * kScale1;
       },
       [&] { return tarnMul_mac_32f(m3.a.data(), 36, 12, 4, kScale1, m3.d.data(), 36, 12, 4, 3, 3, kN); },
       [&] { return sameBits(m3.d, m3.expect); }},
  };

  std::printf("%-30s %12s %14s %14s %14s %8s\n", "workload", "check", "plain loop", "tarn 1 thread",
              ("tarn " + std::to_string(threads) + " threads").c_str(), "speedup");
  std::printf("%-30s %12s %14s %14s %14s %8s\n", "", "", "ns/obj  GB/s", "ns/obj  GB/s", "ns/obj  GB/s", "");
  bool allGood = true;
  for (const Row& r : rows) {
    const double tLoop = bestSeconds(r.plain);
    omp_set_num_threads(1);
    int status = 0;
    const double t1 = bestSeconds([&] { status |= r.tarnCall(); });
    const bool ok1 = status == tarnStatusOk && r.check();
    omp_set_num_threads(threads);
    const double tN = bestSeconds([&] { status |= r.tarnCall(); });
    const bool okN = status == tarnStatusOk && r.check();
    allGood &= ok1 && okN;
    auto cell = [&](double t) {
      static char buf[2][32];
      static int k = 0;
      k ^= 1;
      std::snprintf(buf[k], sizeof buf[k], "%6.2f %6.1f", t * 1e9 / kN, r.bytesPerObject * kN / t / 1e9);
      return buf[k];
    };
    std::printf("%-30s %12s %14s", r.what.c_str(), ok1 && okN ? "bit-exact" : "MISMATCH", cell(tLoop));
    std::printf(" %14s", cell(t1));
    std::printf(" %14s %7.2fx\n", cell(tN), tLoop / std::min(t1, tN));
  }
  std::printf("\nGB/s counts bytes read plus bytes written; speedup is the plain loop's time over tarn's best.\n");
  std::printf("Copy converts between any two layouts with one element-by-element loop; a loop written for\n"
              "one fixed pair of layouts and one object size can beat it.\n");
  return allGood ? 0 : 1;
}
