// General eigenproblems: a batch of 4x4 matrices, tarn against the loops a caller would write.
//   eigen    Eigen's EigenSolver on each matrix, mapped onto the batch
//   lapacke  LAPACKE ?geev on each matrix (a copy, which geev overwrites; workspace allocated once)
// Every contender's eigenvalues are checked against tarn's to a tolerance, and eigenvectors by
// their residuals, before it is timed; tarn's own timed calls must repeat its first call's bits.
#include <lapacke.h>
#include <omp.h>
#include <tarn.h>

#include <Eigen/Eigenvalues>
#include <algorithm>
#include <complex>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "support.hpp"

namespace {

using tarnbench::Buf;

constexpr int kN = 4;
constexpr int32_t kCount = 20000;

template <class T>
struct Batch {
  Buf src, re, im, vec, scratch;
  std::vector<T> wantRe, wantIm;  // tarn's eigenvalues
  explicit Batch(bool vectors)
      : src(sizeof(T) * kN * kN * kCount), re(sizeof(T) * kN * kCount), im(sizeof(T) * kN * kCount),
        vec(vectors ? sizeof(T) * kN * kN * kCount : 0), scratch(sizeof(T) * kN * (3 * kN + 5)) {
    std::mt19937 rng(2024);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (int32_t i = 0; i < kN * kN * kCount; ++i) src.as<T>()[i] = T(u(rng));
  }
};

template <class T>
tarnStatus tarnValues(Batch<T>& b) {
  constexpr int32_t es = sizeof(T), os = kN * kN * es, rs = kN * es;
  if constexpr (sizeof(T) == 4)
    return tarnEigenValues_ma_32f(b.src.template as<T>(), os, rs, es, b.re.template as<T>(), b.im.template as<T>(), kN, kCount,
                                  b.scratch.template as<T>());
  else
    return tarnEigenValues_ma_64f(b.src.template as<T>(), os, rs, es, b.re.template as<T>(), b.im.template as<T>(), kN, kCount,
                                  b.scratch.template as<T>());
}
tarnStatus tarnRight(Batch<float>& b) {
  constexpr int32_t os = kN * kN * 4, rs = kN * 4;
  return tarnEigenValuesVectorsRight_ma_32f(b.src.as<float>(), os, rs, 4, b.vec.as<float>(), os, rs, 4, b.re.as<float>(),
                                            b.im.as<float>(), kN, kCount, b.scratch.as<float>());
}

// Eigen and LAPACKE see each matrix column-major, that is transpose(src), whose eigenvalues are
// src's and whose right eigenvectors are tarn's right vectors.
template <class T>
void eigenSolve(Batch<T>& b, bool vectors) {
  using M = Eigen::Matrix<T, kN, kN>;
  Eigen::EigenSolver<M> es;
  for (int32_t k = 0; k < kCount; ++k) {
    es.compute(Eigen::Map<const M>(b.src.template as<T>() + size_t(k) * kN * kN), vectors);
    for (int i = 0; i < kN; ++i) {
      b.re.template as<T>()[k * kN + i] = es.eigenvalues()[i].real();
      b.im.template as<T>()[k * kN + i] = es.eigenvalues()[i].imag();
    }
    if (vectors) {
      const auto v = es.eigenvectors();  // complex columns; stored like tarn's: re, im of a pair
      T* d = b.vec.template as<T>() + size_t(k) * kN * kN;
      for (int j = 0; j < kN; ++j)
        for (int i = 0; i < kN; ++i)
          d[i * kN + j] = b.im.template as<T>()[k * kN + j] < 0 && j > 0 ? v(i, j - 1).imag() : v(i, j).real();
    }
  }
}

template <class T>
void lapackeSolve(Batch<T>& b, bool vectors) {
  T a[kN * kN], vr[kN * kN], work[16 * kN], dummy[1];
  const lapack_int lwork = 16 * kN;
  for (int32_t k = 0; k < kCount; ++k) {
    std::memcpy(a, b.src.template as<T>() + size_t(k) * kN * kN, sizeof a);
    T* re = b.re.template as<T>() + k * kN;
    T* im = b.im.template as<T>() + k * kN;
    if constexpr (sizeof(T) == 4)
      LAPACKE_sgeev_work(LAPACK_COL_MAJOR, 'N', vectors ? 'V' : 'N', kN, a, kN, re, im, dummy, 1, vr, kN, work, lwork);
    else
      LAPACKE_dgeev_work(LAPACK_COL_MAJOR, 'N', vectors ? 'V' : 'N', kN, a, kN, re, im, dummy, 1, vr, kN, work, lwork);
    if (vectors) {
      T* d = b.vec.template as<T>() + size_t(k) * kN * kN;
      for (int j = 0; j < kN; ++j)
        for (int i = 0; i < kN; ++i) d[i * kN + j] = vr[j * kN + i];
    }
  }
}

// The eigenvalues as sorted sets, to a tolerance; vectors by transpose(src) v = lambda v.
template <class T>
bool sameValues(const Batch<T>& b) {
  const double tol = sizeof(T) == 4 ? 2e-3 : 1e-9;
  for (int32_t k = 0; k < kCount; ++k) {
    std::vector<std::complex<double>> x, y;
    for (int i = 0; i < kN; ++i) {
      x.emplace_back(b.re.template as<T>()[k * kN + i], b.im.template as<T>()[k * kN + i]);
      y.emplace_back(b.wantRe[size_t(k * kN + i)], b.wantIm[size_t(k * kN + i)]);
    }
    auto less = [](auto p, auto q) { return p.real() != q.real() ? p.real() < q.real() : p.imag() < q.imag(); };
    std::sort(x.begin(), x.end(), less);
    std::sort(y.begin(), y.end(), less);
    for (int i = 0; i < kN; ++i)
      if (std::abs(x[size_t(i)] - y[size_t(i)]) > tol * (1 + std::abs(y[size_t(i)]))) return false;
  }
  return true;
}
bool rightResiduals(const Batch<float>& b) {
  for (int32_t k = 0; k < kCount; ++k) {
    const float* a = b.src.as<float>() + size_t(k) * kN * kN;
    const float* v = b.vec.as<float>() + size_t(k) * kN * kN;
    for (int j = 0; j < kN;) {
      const double wi = b.im.as<float>()[k * kN + j];
      const std::complex<double> lam(b.re.as<float>()[k * kN + j], wi);
      const bool pair = wi != 0 && j + 1 < kN;
      double err = 0, len = 0;
      for (int i = 0; i < kN; ++i) {
        std::complex<double> s = 0;
        for (int c = 0; c < kN; ++c) s += double(a[c * kN + i]) * std::complex<double>(v[c * kN + j], pair ? v[c * kN + j + 1] : 0.0);
        const std::complex<double> vi(v[i * kN + j], pair ? v[i * kN + j + 1] : 0.0);
        err = std::max(err, std::abs(s - lam * vi));
        len += std::norm(vi);
      }
      if (err > 1e-3 * std::sqrt(len)) return false;
      j += pair ? 2 : 1;
    }
  }
  return true;
}

template <class T>
void timed(benchmark::State& st, Batch<T>& b, double bytes, int threads, const std::function<void()>& call,
           const std::function<bool()>& check) {
  std::memset(b.re.p, 0xff, b.re.bytes);
  std::memset(b.im.p, 0xff, b.im.bytes);
  const int saved = omp_get_max_threads();
  omp_set_num_threads(threads);
  call();
  if (!check()) {
    omp_set_num_threads(saved);
    st.SkipWithError("result differs from the reference");
    return;
  }
  tarnbench::timeCalls(st, kCount, bytes, call);
  omp_set_num_threads(saved);
}

template <class T>
void registerValues(const std::string& name) {
  static Batch<T> b(false);
  static bool ready = false;
  auto prepare = [] {
    if (ready) return;
    tarnValues(b);
    b.wantRe.assign(b.re.template as<T>(), b.re.template as<T>() + kN * kCount);
    b.wantIm.assign(b.im.template as<T>(), b.im.template as<T>() + kN * kCount);
    ready = true;
  };
  const double bytes = double(sizeof(T)) * (kN * kN + 2 * kN);
  const std::string wl = name + "/4x4/N:" + std::to_string(kCount) + "/";
  auto exact = [] {
    return std::memcmp(b.re.p, b.wantRe.data(), b.re.bytes) == 0 && std::memcmp(b.im.p, b.wantIm.data(), b.im.bytes) == 0;
  };
  for (int t : {1, 2})
    tarnbench::registerBench(wl + "tarn/T:" + std::to_string(t), [=](benchmark::State& st) {
      prepare();
      timed<T>(st, b, bytes, t, [] { tarnValues(b); }, exact);
    });
  tarnbench::registerBench(wl + "eigen/T:1", [=](benchmark::State& st) {
    prepare();
    timed<T>(st, b, bytes, 1, [] { eigenSolve(b, false); }, [] { return sameValues(b); });
  });
  tarnbench::registerBench(wl + "lapacke/T:1", [=](benchmark::State& st) {
    prepare();
    timed<T>(st, b, bytes, 1, [] { lapackeSolve(b, false); }, [] { return sameValues(b); });
  });
}

void registerRight() {
  static Batch<float> b(true);
  static bool ready = false;
  auto prepare = [] {
    if (ready) return;
    tarnRight(b);
    b.wantRe.assign(b.re.as<float>(), b.re.as<float>() + kN * kCount);
    b.wantIm.assign(b.im.as<float>(), b.im.as<float>() + kN * kCount);
    ready = true;
  };
  const double bytes = 4.0 * (2 * kN * kN + 2 * kN);
  const std::string wl = "tarnEigenValuesVectorsRight_ma_32f/4x4/N:" + std::to_string(kCount) + "/";
  auto check = [] { return sameValues(b) && rightResiduals(b); };
  for (int t : {1, 2})
    tarnbench::registerBench(wl + "tarn/T:" + std::to_string(t), [=](benchmark::State& st) {
      prepare();
      timed<float>(st, b, bytes, t, [] { tarnRight(b); }, check);
    });
  tarnbench::registerBench(wl + "eigen/T:1", [=](benchmark::State& st) {
    prepare();
    timed<float>(st, b, bytes, 1, [] { eigenSolve(b, true); }, check);
  });
  tarnbench::registerBench(wl + "lapacke/T:1", [=](benchmark::State& st) {
    prepare();
    timed<float>(st, b, bytes, 1, [] { lapackeSolve(b, true); }, check);
  });
}

const bool kRegistered = [] {
  registerValues<float>("tarnEigenValues_ma_32f");
  registerValues<double>("tarnEigenValues_ma_64f");
  registerRight();
  return true;
}();

}  // namespace
