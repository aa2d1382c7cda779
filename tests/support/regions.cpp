#include "regions.hpp"

#include <dlfcn.h>

#include <atomic>
#include <cstdint>

namespace {
std::atomic<int> regions{0};
}

// Code clang compiled asks for its team size before each region it opens.
extern "C" void __kmpc_push_num_threads(void* loc, int32_t gtid, int32_t n) {
  using Fn = void (*)(void*, int32_t, int32_t);
  static const Fn next = reinterpret_cast<Fn>(dlsym(RTLD_NEXT, "__kmpc_push_num_threads"));
  regions.fetch_add(1);
  next(loc, gtid, n);
}

// Code GCC compiled opens its regions here instead (libomp serves both).
extern "C" void GOMP_parallel(void (*fn)(void*), void* data, unsigned n, unsigned flags) {
  using Fn = void (*)(void (*)(void*), void*, unsigned, unsigned);
  static const Fn next = reinterpret_cast<Fn>(dlsym(RTLD_NEXT, "GOMP_parallel"));
  regions.fetch_add(1);
  next(fn, data, n, flags);
}

namespace tt {

int regionsOpenedBy(const std::function<void()>& fn) {
  const int before = regions.load();
  fn();
  return regions.load() - before;
}

}  // namespace tt
