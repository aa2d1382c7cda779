// tarn at work on a realistic batch: a million 3x3 and 4x4 matrices and 3-vectors, summed in
// each layout, scaled, multiplied, a million 4-vectors transformed by one matrix, reduced to dot
// products and norms and converted between layouts, on one thread and on all of them, each
// checked against a plain loop and timed; then
// the determinants and inverses of the 4x4 batch, a least-squares fit per object, a camera
// projecting a point cloud to the screen and back, and a batch of small linear systems factored
// and solved, checked by their residuals, the surface normals of point neighbourhoods,
// and the eigenvalues of a batch of small dynamics matrices, with the stable ones counted.
#include <omp.h>

#include <algorithm>
#include <chrono>
#include <cmath>
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
  const char* checkName = "bit-exact";
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

// A camera (world, view and projection matrices for row vectors) and a cloud of points in front
// of it, with the loops a caller would write for each step, in the order of operations tarn
// documents.
struct Cloud {
  float world[16], view[16], proj[16], columns[16], inverse[16];
  std::vector<float> pts, screen, expect, back, backExpect;
  Cloud() : pts(3 * size_t(kN)), screen(pts.size()), expect(pts.size()), back(pts.size()), backExpect(pts.size()) {
    const float eye[3] = {4, 3, -20}, at[3] = {0, 0, 0}, up[3] = {0, 1, 0};
    tarnRotationY_m4_32f(0.3f, world);
    tarnLookAtLH_m4_32f(eye, at, up, view);
    tarnPerspectiveFovLH_m4_32f(0.9f, 16.0f / 9, 0.5f, 200.0f, proj);
    float wv[16], all[16];
    tarnMul_mm4x4_32f(world, view, wv);
    tarnMul_mm4x4_32f(wv, proj, all);
    tarnInvert_m4_32f(all, nullptr, inverse);
    for (int i = 0; i < 16; ++i) columns[i] = all[4 * (i % 4) + i / 4];  // the same transform for columns
    std::mt19937 rng(7);
    std::uniform_real_distribution<float> u(-8.0f, 8.0f);
    for (auto& x : pts) x = u(rng);
  }
  // Row vector through m, divided by its fourth coordinate.
  static void coord(const float* m, const float* v, float* d) {
    float t[4];
    for (int i = 0; i < 4; ++i) t[i] = (m[12 + i] + m[8 + i] * v[2]) + (m[i] * v[0] + m[4 + i] * v[1]);
    for (int i = 0; i < 3; ++i) d[i] = t[i] / t[3];
  }
  void plainProject() {
    for (size_t k = 0; k < size_t(kN); ++k) {
      float t[3];
      coord(world, &pts[3 * k], t);
      coord(view, t, t);
      coord(proj, t, t);
      float* d = &expect[3 * k];
      d[0] = ((t[0] + 1.0f) * 1920) * 0.5f;
      d[1] = ((1.0f - t[1]) * 1080) * 0.5f;
      d[2] = (1.0f - t[2]) * 0 + 1 * t[2];
    }
  }
  void plainUnproject() {
    for (size_t k = 0; k < size_t(kN); ++k) {
      const float* s = &expect[3 * k];
      const float n[3] = {(2.0f * s[0]) / 1920 - 1.0f, 1.0f + (-2.0f * s[1]) / 1080, (s[2] - 0) / (1.0f - 0)};
      coord(inverse, n, &backExpect[3 * k]);
    }
  }
  void plainColumns() {
    for (size_t k = 0; k < size_t(kN); ++k) {
      const float *p = &pts[3 * k], *m = columns;
      float t[4];
      for (int r = 0; r < 4; ++r) t[r] = (p[0] * m[4 * r] + p[1] * m[4 * r + 1]) + (p[2] * m[4 * r + 2] + m[4 * r + 3]);
      const bool ok = std::fabs(t[3]) > 1.1754944e-38f;
      const float inv = 1.0f / t[3];
      for (int i = 0; i < 3; ++i) expect[3 * k + i] = ok ? t[i] * inv : 3.4028235e38f;
    }
  }
  // The farthest any point lands from where it started after Project and Unproject.
  float roundTrip() const {
    float worst = 0;
    for (size_t i = 0; i < pts.size(); ++i) worst = std::max(worst, std::fabs(back[i] - pts[i]));
    return worst;
  }
};
// ---- Solving: many small systems at once -------------------------------------------------

// Largest |A x - b| / (|A| |x| + |b|) over a batch of packed n x n systems.
double worstResidual(const std::vector<float>& a, const std::vector<float>& b, const std::vector<float>& x, int n,
                     int count) {
  double worst = 0;
  for (int k = 0; k < count; ++k)
    for (int r = 0; r < n; ++r) {
      const float* row = &a[(size_t(k) * n + r) * n];
      double s = -double(b[size_t(k) * n + r]), scale = std::fabs(double(b[size_t(k) * n + r]));
      for (int c = 0; c < n; ++c) {
        s += double(row[c]) * x[size_t(k) * n + c];
        scale += std::fabs(double(row[c]) * x[size_t(k) * n + c]);
      }
      worst = std::max(worst, std::fabs(s) / scale);
    }
  return worst;
}

// Factors and solves a batch of 4x4 systems twice: general ones with LU (partial pivoting) and
// symmetric positive definite ones (information matrices of a filter, say) with Cholesky; then
// shows what a batch holding one singular system returns.
bool solvers(int threads) {
  constexpr int n = 4, count = kN / 4, mat = n * n * 4, vec = n * 4;
  std::mt19937 rng(7);
  std::uniform_real_distribution<float> u(-1.0f, 1.0f);
  std::vector<float> a(size_t(count) * n * n), spd(a.size()), f(a.size()), b(size_t(count) * n), x(b.size());
  std::vector<int32_t> piv(b.size());
  for (auto& v : a) v = u(rng);
  for (auto& v : b) v = u(rng);
  for (int k = 0; k < count; ++k)  // spd = a a^T + I
    for (int r = 0; r < n; ++r)
      for (int c = 0; c < n; ++c) {
        float s = r == c ? 1.0f : 0.0f;
        for (int j = 0; j < n; ++j) s += a[(size_t(k) * n + r) * n + j] * a[(size_t(k) * n + c) * n + j];
        spd[(size_t(k) * n + r) * n + c] = s;
      }
  auto lu = [&] {
    return tarnLUDecomp_ma_32f(a.data(), mat, vec, 4, piv.data(), f.data(), mat, vec, 4, n, count) |
           tarnLUBackSubst_mava_32f(f.data(), mat, vec, 4, piv.data(), b.data(), vec, 4, x.data(), vec, 4, n, count);
  };
  auto chol = [&] {
    return tarnCholeskyDecomp_ma_32f(spd.data(), mat, vec, 4, f.data(), mat, vec, 4, n, count) |
           tarnCholeskyBackSubst_mava_32f(f.data(), mat, vec, 4, b.data(), vec, 4, x.data(), vec, 4, n, count);
  };
  std::printf("\n%d systems 4x4 (32f), factor and solve:\n", count);
  std::printf("%-30s %8s %12s %14s %14s\n", "workload", "status", "residual", "ns/sys 1 thr",
              ("ns/sys " + std::to_string(threads) + " thr").c_str());
  bool good = true;
  struct Solver {
    const char* what;
    std::function<int()> run;
    const std::vector<float>* systems;
  };
  for (const Solver& s : {Solver{"LUDecomp + LUBackSubst", lu, &a}, Solver{"CholeskyDecomp + BackSubst", chol, &spd}}) {
    int status = 0;
    omp_set_num_threads(1);
    const double t1 = bestSeconds([&] { status |= s.run(); });
    omp_set_num_threads(threads);
    const double tN = bestSeconds([&] { status |= s.run(); });
    const double res = worstResidual(*s.systems, b, x, n, count);
    good &= status == tarnStatusOk && res < 1e-5;
    std::printf("%-30s %8d %12.2e %14.2f %14.2f\n", s.what, status, res, t1 * 1e9 / count, tN * 1e9 / count);
  }
  // One system of the batch made singular (a zero column): the call reports it, the systems
  // before it are factored and the ones after it are left as they were (one thread).
  const int bad = count / 2;
  for (int r = 0; r < n; ++r) a[(size_t(bad) * n + r) * n + 2] = 0.0f;
  std::fill(f.begin(), f.end(), -1.0f);
  omp_set_num_threads(1);
  const int st = tarnLUDecomp_ma_32f(a.data(), mat, vec, 4, piv.data(), f.data(), mat, vec, 4, n, count);
  const bool after = std::all_of(f.begin() + (size_t(bad) + 1) * n * n, f.end(), [](float v) { return v == -1.0f; });
  std::printf("a batch with system %d singular: status %d (tarnStatusSingular is %d); systems after it %s\n", bad, st,
              int(tarnStatusSingular), after ? "untouched" : "WRITTEN");
  return good && st == tarnStatusSingular && after;
}

// Surface normals of point neighbourhoods: the covariance of 16 points scattered over a plane
// (with a little noise across it) has its smallest eigenvalue across the plane, and the
// eigenvector of that value is the normal. Values come sorted descending, so the normal is
// column 2 of each 3x3 result.
bool principalAxes(int threads) {
  constexpr int kPatches = 200'000, kPoints = 16;
  std::vector<float> cov(size_t(kPatches) * 9), vecs(size_t(kPatches) * 9), vals(size_t(kPatches) * 3), scratch(9);
  std::vector<double> normal(size_t(kPatches) * 3);
  std::mt19937 rng(7);
  std::normal_distribution<double> g;
  std::uniform_real_distribution<double> u(-1.0, 1.0), noise(-0.02, 0.02);
  for (int k = 0; k < kPatches; ++k) {
    double n[3] = {g(rng), g(rng), g(rng)}, t1[3], t2[3];
    const double len = std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]);
    for (double& x : n) x /= len;
    // Two tangents: any vector not along n, made orthogonal, and their cross product.
    const double a[3] = {std::fabs(n[0]) < 0.9 ? 1.0 : 0.0, std::fabs(n[0]) < 0.9 ? 0.0 : 1.0, 0.0};
    const double an = a[0] * n[0] + a[1] * n[1];
    for (int i = 0; i < 3; ++i) t1[i] = a[i] - an * n[i];
    const double l1 = std::sqrt(t1[0] * t1[0] + t1[1] * t1[1] + t1[2] * t1[2]);
    for (double& x : t1) x /= l1;
    t2[0] = n[1] * t1[2] - n[2] * t1[1], t2[1] = n[2] * t1[0] - n[0] * t1[2], t2[2] = n[0] * t1[1] - n[1] * t1[0];
    double p[kPoints][3], mean[3] = {0, 0, 0};
    for (auto& q : p) {
      const double s = u(rng), t = u(rng), h = noise(rng);
      for (int i = 0; i < 3; ++i) mean[i] += (q[i] = s * t1[i] + t * t2[i] + h * n[i]) / kPoints;
    }
    for (int r = 0; r < 3; ++r)
      for (int c = 0; c < 3; ++c) {
        double acc = 0;
        for (auto& q : p) acc += (q[r] - mean[r]) * (q[c] - mean[c]);
        cov[size_t(k) * 9 + r * 3 + c] = float(acc / kPoints);
      }
    for (int i = 0; i < 3; ++i) normal[size_t(k) * 3 + i] = n[i];
  }
  // A batch call stops at the first matrix that does not converge within 30 sweeps for one
  // eigenvalue (a few in 100,000 here) and says only that one did. Its first value is written
  // last, so with the first values set to NaN beforehand the unwritten one is the matrix that
  // failed: it is set aside and the call resumes behind it. The batch goes in chunks of 4,000
  // (each still split among the threads), so a resumed call repeats at most one chunk's work.
  constexpr int kChunk = 4000;
  std::vector<char> failed(kPatches);
  auto solveAll = [&](bool withVectors) {
    std::fill(failed.begin(), failed.end(), 0);
    int status = tarnStatusOk;
    for (int chunk = 0; chunk < kPatches && status == tarnStatusOk; chunk += kChunk) {
      const int end = std::min(chunk + kChunk, kPatches);
      for (int start = chunk; start < end;) {
        for (int k = start; k < end; ++k) vals[size_t(k) * 3] = std::nanf("");
        const size_t at = size_t(start);
        status = withVectors ? tarnEigenValuesVectorsSym_ma_32f(&cov[at * 9], 36, 12, 4, scratch.data(), &vecs[at * 9], 36,
                                                                12, 4, &vals[at * 3], 3, end - start)
                             : tarnEigenValuesSym_ma_32f(&cov[at * 9], 36, 12, 4, scratch.data(), &vals[at * 3], 3, end - start);
        if (status != tarnStatusNoConvergence) break;
        while (!std::isnan(vals[size_t(start) * 3])) ++start;
        failed[size_t(start++)] = 1;
        status = tarnStatusOk;
      }
    }
    return status;
  };
  int status = 0;
  omp_set_num_threads(1);
  const double tv = bestSeconds([&] { status |= solveAll(false); });
  const double t1 = bestSeconds([&] { status |= solveAll(true); });
  omp_set_num_threads(threads);
  const double tN = bestSeconds([&] { status |= solveAll(true); });
  omp_set_num_threads(1);
  int found = 0, sorted = 0, left = 0;
  for (int k = 0; k < kPatches; ++k) {
    if (failed[size_t(k)]) {
      ++left;
      continue;
    }
    const float* z = &vecs[size_t(k) * 9];
    const float* v = &vals[size_t(k) * 3];
    const double* n = &normal[size_t(k) * 3];
    const double dot = z[2] * n[0] + z[5] * n[1] + z[8] * n[2];  // column 2 against the true normal
    found += std::fabs(dot) > std::cos(3.0 * 3.14159265358979 / 180);
    sorted += v[0] >= v[1] && v[1] >= v[2];
  }
  const bool ok = status == tarnStatusOk && found == kPatches - left && sorted == kPatches - left && left < kPatches / 1000;
  std::printf("\nPrincipal axes of %d point neighbourhoods (3x3 covariances, EigenValuesVectorsSym_ma_32f):\n", kPatches);
  std::printf("  %d set aside after 30 sweeps; of the others, normals within 3 degrees of the plane's: %d, values "
              "descending: %d\n",
              left, found, sorted);
  std::printf("  values and axes: %.1f ns/obj on 1 thread, %.1f ns/obj on %d threads; values alone "
              "(EigenValuesSym_ma_32f): %.1f ns/obj\n",
              t1 * 1e9 / kPatches, tN * 1e9 / kPatches, threads, tv * 1e9 / kPatches);
  return ok;
}

// Eigenvalues of linearised dynamics: two masses on springs with damping c, state (positions,
// velocities), x' = A x. The system is stable exactly when c > 0; tarn finds every eigenvalue of
// every A and the demo counts the systems whose eigenvalues all have negative real parts.
bool eigenSection(int threads) {
  constexpr int kSystems = 200'000;
  std::vector<float> a(size_t(kSystems) * 16, 0.0f), re(size_t(kSystems) * 4), im(size_t(kSystems) * 4);
  std::vector<float> damping(kSystems), scratch(4 * (3 * 4 + 5));
  std::mt19937 rng(7);
  std::uniform_real_distribution<float> k(0.5f, 4.0f), c(0.05f, 1.0f), sign(0.0f, 1.0f);
  int truth = 0;
  for (int n = 0; n < kSystems; ++n) {
    const float k1 = k(rng), k2 = k(rng), k12 = k(rng), cn = sign(rng) < 0.2f ? -0.3f * c(rng) : c(rng);
    float* m = &a[size_t(n) * 16];
    m[2] = m[7] = 1.0f;  // positions change with the velocities
    m[8] = -(k1 + k12), m[9] = k12, m[10] = -cn;
    m[12] = k12, m[13] = -(k2 + k12), m[15] = -cn;
    damping[size_t(n)] = cn;
    truth += cn > 0;
  }
  double best[2] = {1e30, 1e30};
  int status = 0;
  for (int pass = 0; pass < 2; ++pass) {
    omp_set_num_threads(pass ? threads : 1);
    for (int rep = 0; rep < 3; ++rep) {
      const auto t0 = std::chrono::steady_clock::now();
      status |= tarnEigenValues_ma_32f(a.data(), 64, 16, 4, re.data(), im.data(), 4, kSystems, scratch.data());
      const auto t1 = std::chrono::steady_clock::now();
      best[pass] = std::min(best[pass], std::chrono::duration<double>(t1 - t0).count());
    }
  }
  // Stable systems, and the eigenvalues of each summing to its trace, -2c.
  int stable = 0;
  bool traces = true;
  for (int n = 0; n < kSystems; ++n) {
    float worst = -1e30f, sumRe = 0, sumIm = 0;
    for (int i = 0; i < 4; ++i) {
      worst = std::max(worst, re[size_t(n) * 4 + i]);
      sumRe += re[size_t(n) * 4 + i];
      sumIm += im[size_t(n) * 4 + i];
    }
    stable += worst < 0;
    traces &= std::fabs(sumRe + 2 * damping[size_t(n)]) < 1e-4f && std::fabs(sumIm) < 1e-4f;
  }
  const bool ok = status == tarnStatusOk && stable == truth && traces;
  std::printf("\nEigenValues_ma 4x4: %d damped two-mass systems, %d stable (%d by construction), "
              "eigenvalue sums %s the traces: %s\n",
              kSystems, stable, truth, traces ? "equal" : "DIFFER FROM", ok ? "ok" : "MISMATCH");
  std::printf("  %.0f ns per system on 1 thread, %.0f ns on %d threads\n", best[0] * 1e9 / kSystems,
              best[1] * 1e9 / kSystems, threads);
  return ok;
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
  // dst[n] = a[n] * b[n], or a[n] * b[0] with one right factor for the whole batch.
  auto productLoop = [](Batch& x, int order, bool one) {
    const size_t nn = size_t(order) * order;
    for (int n = 0; n < kN; ++n) {
      const float* a = &x.a[n * nn];
      const float* b = &x.b[one ? 0 : n * nn];
      for (int i = 0; i < order; ++i)
        for (int j = 0; j < order; ++j) {
          float s = a[i * order] * b[j];
          for (int k = 1; k < order; ++k) s += a[i * order + k] * b[k * order + j];
          x.expect[n * nn + i * order + j] = s;
        }
    }
  };
  // One fixed offset matrix added to every object.
  const float offset[9] = {0.5f, -1.25f, 2.0f, 3.5f, 0.0f, -7.0f, 1e-3f, 42.0f, -0.75f};
  // One result per object for the reductions.
  std::vector<float> perObject(kN), perObjectExpect(kN);
  Cloud cloud;
  // Scalars with many significant bits, so every product is rounded.
  const float kScale1 = 0.3f, kScale2 = -1.7f;
  // A rigid transform with a scale, in homogeneous coordinates, rows as stored.
  const float xf[4][4] = {{0.8f, -0.6f, 0.0f, 12.5f}, {0.6f, 0.8f, 0.0f, -3.25f}, {0.0f, 0.0f, 1.1f, 0.75f}, {0, 0, 0, 1}};

  // Solving: the determinant and inverse of every 4x4 matrix of the batch, and a least-squares
  // fit per object: a quadratic through six noisy samples of a track, six rows and three columns.
  std::vector<float> det(kN), detLoop(kN), buffer(4 * 5), fit(size_t(18) * kN), factors(fit.size()), samples(6 * size_t(kN)),
      coef(3 * size_t(kN)), coefLoop(coef.size());
  {
    std::mt19937 rng(7);
    std::uniform_real_distribution<float> noise(-0.01f, 0.01f), c(-2.0f, 2.0f);
    for (int n = 0; n < kN; ++n) {
      const float c0 = c(rng), c1 = c(rng), c2 = c(rng);
      for (int i = 0; i < 6; ++i) {
        const float t = 0.2f * float(i) + 0.1f * float(n % 7);
        float* row = &fit[size_t(n) * 18 + size_t(i) * 3];
        row[0] = 1;
        row[1] = t;
        row[2] = t * t;
        samples[size_t(n) * 6 + i] = c0 + c1 * t + c2 * t * t + noise(rng);
      }
    }
  }
  // The determinant as tarn states it: the 2x2 minors of rows 0 and 1, the 3x3 minors with row 2
  // and the alternating sum on row 3, each left to right.
  auto det4Loop = [&](std::vector<float>& out) {
    for (int n = 0; n < kN; ++n) {
      const float* a = &m4.a[size_t(n) * 16];
      auto m = [&](int j, int k) { return a[j] * a[4 + k] - a[k] * a[4 + j]; };
      auto m3 = [&](int j, int k, int l) { return (a[8 + j] * m(k, l) - a[8 + k] * m(j, l)) + a[8 + l] * m(j, k); };
      out[size_t(n)] = ((a[13] * m3(0, 2, 3) - a[12] * m3(1, 2, 3)) - a[14] * m3(0, 1, 3)) + a[15] * m3(0, 1, 2);
    }
  };
  // A*X = I for every matrix of the batch, to within what float rounding allows for its
  // condition: a few units of the last place times |A| |X| (row-sum norms).
  auto inverseHolds = [&] {
    for (int n = 0; n < kN; ++n) {
      const float* a = &m4.a[size_t(n) * 16];
      const float* x = &m4.d[size_t(n) * 16];
      double na = 0, nx = 0, err = 0;
      for (int i = 0; i < 4; ++i) {
        double ra = 0, rx = 0;
        for (int j = 0; j < 4; ++j) {
          ra += std::fabs(a[i * 4 + j]);
          rx += std::fabs(x[i * 4 + j]);
          double s = 0;
          for (int k = 0; k < 4; ++k) s += double(a[i * 4 + k]) * x[k * 4 + j];
          err = std::max(err, std::fabs(s - (i == j)));
        }
        na = std::max(na, ra);
        nx = std::max(nx, rx);
      }
      if (err > 1e-5 * na * nx) return false;
    }
    return true;
  };
  // The normal equations (A^T A) x = A^T b in double precision: tarn's coefficients agree.
  auto fitLoop = [&] {
    for (int n = 0; n < kN; ++n) {
      double m[3][4] = {};
      for (int i = 0; i < 6; ++i)
        for (int j = 0; j < 3; ++j) {
          for (int k = 0; k < 3; ++k) m[j][k] += double(fit[size_t(n) * 18 + i * 3 + j]) * fit[size_t(n) * 18 + i * 3 + k];
          m[j][3] += double(fit[size_t(n) * 18 + i * 3 + j]) * samples[size_t(n) * 6 + i];
        }
      for (int k = 0; k < 3; ++k)
        for (int i = k + 1; i < 3; ++i)
          for (int j = 3; j >= k; --j) m[i][j] -= m[i][k] / m[k][k] * m[k][j];
      for (int i = 2; i >= 0; --i) {
        double s = m[i][3];
        for (int j = i + 1; j < 3; ++j) s -= m[i][j] * coefLoop[size_t(n) * 3 + j];
        coefLoop[size_t(n) * 3 + i] = float(s / m[i][i]);
      }
    }
  };
  auto fitAgrees = [&] {
    for (size_t i = 0; i < coef.size(); ++i)
      if (std::fabs(coef[i] - coefLoop[i]) > 1e-3f * (1 + std::fabs(coefLoop[i]))) return false;
    return true;
  };

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
      // Products: every element summed left to right from the first product, as tarn's fixed
      // kernels of orders 3 to 6 do.
      {"Mul_mama 3x3, LayoutS", 36.0 * 3, [&] { productLoop(m3, 3, false); },
       [&] { return tarnMul_mama_32f(m3.a.data(), 36, 12, 4, 3, 3, m3.b.data(), 36, 12, 4, 3, 3, m3.d.data(), 36, 12, 4, kN); },
       [&] { return sameBits(m3.d, m3.expect); }},
      {"Mul_mam 4x4 by one, LayoutS", 64.0 * 2, [&] { productLoop(m4, 4, true); },
       [&] { return tarnMul_mam_32f(m4.a.data(), 64, 16, 4, 4, 4, m4.b.data(), 16, 4, 4, 4, m4.d.data(), 64, 16, 4, kN); },
       [&] { return sameBits(m4.d, m4.expect); }},
      // Reductions of 3-vectors and 3x3 matrices, as a physics or point-cloud program runs them:
      // tarn puts four objects into the lanes of a register, each lane adding in the order the
      // loop below writes out.
      {"DotProduct_vava 3-vectors", 12.0 * 2 + 4,
       [&] {
         for (int n = 0; n < kN; ++n) {
           const float* x = &v3.a[size_t(n) * 3];
           const float* y = &v3.b[size_t(n) * 3];
           perObjectExpect[n] = (x[0] * y[0] + x[1] * y[1]) + x[2] * y[2];
         }
       },
       [&] { return tarnDotProduct_vava_32f(v3.a.data(), 12, 4, v3.b.data(), 12, 4, perObject.data(), 3, kN); },
       [&] { return sameBits(perObject, perObjectExpect); }},
      {"L2Norm_va 3-vectors", 12.0 + 4,
       [&] {
         for (int n = 0; n < kN; ++n) {
           const float* x = &v3.a[size_t(n) * 3];
           perObjectExpect[n] = std::sqrt((x[0] * x[0] + x[1] * x[1]) + x[2] * x[2]);
         }
       },
       [&] { return tarnL2Norm_va_32f(v3.a.data(), 12, 4, perObject.data(), 3, kN); },
       [&] { return sameBits(perObject, perObjectExpect); }},
      {"CrossProduct_vava 3-vectors", 12.0 * 3,
       [&] {
         for (int n = 0; n < kN; ++n) {
           const float* x = &v3.a[size_t(n) * 3];
           const float* y = &v3.b[size_t(n) * 3];
           float* z = &v3.expect[size_t(n) * 3];
           z[0] = x[1] * y[2] - x[2] * y[1];
           z[1] = x[2] * y[0] - x[0] * y[2];
           z[2] = x[0] * y[1] - x[1] * y[0];
         }
       },
       [&] { return tarnCrossProduct_vava_32f(v3.a.data(), 12, 4, v3.b.data(), 12, 4, v3.d.data(), 12, 4, kN); },
       [&] { return sameBits(v3.d, v3.expect); }},
      {"FrobNorm_ma 3x3", 36.0 + 4,
       [&] {
         for (int n = 0; n < kN; ++n) {
           float q[9];
           for (int e = 0; e < 9; ++e) q[e] = m3.a[size_t(n) * 9 + e] * m3.a[size_t(n) * 9 + e];
           perObjectExpect[n] = std::sqrt((((q[0] + q[1]) + q[8]) + (q[2] + q[3])) + ((q[4] + q[5]) + (q[6] + q[7])));
         }
       },
       [&] { return tarnFrobNorm_ma_32f(m3.a.data(), 36, 12, 4, 3, 3, perObject.data(), kN); },
       [&] { return sameBits(perObject, perObjectExpect); }},
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
      // Solving. Det follows its stated order, so the loop above gives the same bits; the
      // inverse (approximate reciprocal of the determinant with a Newton step) is checked by
      // A*X = I, the fit against the normal equations solved in double precision.
      {"Det_ma 4x4, LayoutS", 64.0 + 4, [&] { det4Loop(detLoop); },
       [&] { return tarnDet_ma_32f(m4.a.data(), 64, 16, 4, 4, buffer.data(), det.data(), kN); },
       [&] { return std::memcmp(det.data(), detLoop.data(), det.size() * 4) == 0; }},
      {"Invert_ma 4x4, LayoutS", 64.0 * 2,
       [&] {
         for (int n = 0; n < kN; ++n) {
           const float* a = &m4.a[size_t(n) * 16];
           float c[16];
           for (int i = 0; i < 4; ++i)
             for (int j = 0; j < 4; ++j) {
               int r[3], k[3];
               for (int t = 0, u = 0, v = 0; t < 4; ++t) {
                 if (t != i) r[u++] = t;
                 if (t != j) k[v++] = t;
               }
               auto e = [&](int x, int y) { return a[r[x] * 4 + k[y]]; };
               const float m = e(0, 0) * (e(1, 1) * e(2, 2) - e(1, 2) * e(2, 1)) -
                               e(0, 1) * (e(1, 0) * e(2, 2) - e(1, 2) * e(2, 0)) + e(0, 2) * (e(1, 0) * e(2, 1) - e(1, 1) * e(2, 0));
               c[i * 4 + j] = (i + j) % 2 ? -m : m;
             }
           const float d = a[0] * c[0] + a[1] * c[1] + a[2] * c[2] + a[3] * c[3];
           for (int i = 0; i < 4; ++i)
             for (int j = 0; j < 4; ++j) m4.expect[size_t(n) * 16 + i * 4 + j] = c[j * 4 + i] / d;
         }
       },
       [&] { return tarnInvert_ma_32f(m4.a.data(), 64, 16, 4, buffer.data(), m4.d.data(), 64, 16, 4, 4, kN); },
       inverseHolds, "A*X = I"},
      {"QR least squares 6x3", 4.0 * (18 * 3 + 6 + 3), fitLoop,
       [&] {
         const tarnStatus s = tarnQRDecomp_ma_32f(fit.data(), 72, 12, 4, buffer.data(), factors.data(), 72, 12, 4, 3, 6, kN);
         return s | tarnQRBackSubst_mava_32f(factors.data(), 72, 12, 4, buffer.data(), samples.data(), 24, 4, coef.data(), 12,
                                             4, 3, 6, kN);
       },
       fitAgrees, "normal eqs"},
      // Geometry: a camera looking at a cloud of points, the cloud projected to the screen and
      // back, and transformed as columns with the guarded division, on every thread.
      {"Project to a 1920x1080 screen", 12.0 * 2, [&] { cloud.plainProject(); },
       [&] {
         return tarnProject_m4v3a_32f(cloud.proj, cloud.view, cloud.world, cloud.pts.data(), 12, 1920, 1080, 0, 1,
                                      cloud.screen.data(), 12, kN);
       },
       [&] { return sameBits(cloud.screen, cloud.expect); }},
      {"Unproject back to the world", 12.0 * 2, [&] { cloud.plainUnproject(); },
       [&] {
         return tarnUnproject_m4v3a_32f(cloud.proj, cloud.view, cloud.world, cloud.expect.data(), 12, 1920, 1080, 0, 1,
                                        cloud.back.data(), 12, kN);
       },
       [&] { return sameBits(cloud.back, cloud.backExpect); }},
      {"AffineTransform3DH, columns", 12.0 * 2, [&] { cloud.plainColumns(); },
       [&] {
         return tarnAffineTransform3DH_mva_32f(cloud.columns, 16, 4, cloud.pts.data(), 12, 4, cloud.screen.data(), 12, 4, kN);
       },
       [&] { return sameBits(cloud.screen, cloud.expect); }},
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
    std::printf("%-30s %12s %14s", r.what.c_str(), ok1 && okN ? r.checkName : "MISMATCH", cell(tLoop));
    std::printf(" %14s", cell(t1));
    std::printf(" %14s %7.2fx\n", cell(tN), tLoop / std::min(t1, tN));
  }
  std::printf("\nGB/s counts bytes read plus bytes written; speedup is the plain loop's time over tarn's best.\n");
  std::printf("Project, then Unproject: every point of the cloud (coordinates within +-8) back within %.2g of where\n"
              "it started. Project and Unproject run on one thread; AffineTransform3DH on all of them.\n",
              cloud.roundTrip());
  std::printf("Copy moves elements in the member's order wherever overlapping operands could see it; operands\n"
              "apart from each other move whole objects, or a register of objects through LayoutP streams.\n");
  allGood &= solvers(threads);
  allGood &= principalAxes(threads);
  allGood &= eigenSection(threads);
  return allGood ? 0 : 1;
}
