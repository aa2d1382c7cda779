// Linked into the test programs of a ThreadSanitizer build only. The OpenMP runtime is not
// instrumented: reports from inside it are dropped, and its barriers and locks reach the sanitizer
// through the runtime's tool library, which this program loads (see tests/CMakeLists.txt), so a
// region's hand-over of work is not reported as a race while a race in tarn's own code is.
#include <omp.h>

extern "C" const char* __tsan_default_options() {
  return "ignore_noninstrumented_modules=1:halt_on_error=1:second_deadlock_stack=1";
}

namespace {
// With a tool library loaded, the runtime (LLVM 14) reads runtime thread 0's record when any
// thread leaves a critical section. Thread 0 is whichever thread first calls the runtime: when
// that is an application thread that has ended (a test whose first OpenMP call comes from a
// std::thread), the record is gone and the read faults. The main thread takes number 0 here.
[[maybe_unused]] const int kMainThreadRegistered = omp_get_max_threads();
}  // namespace
