// Linked into the test programs of a ThreadSanitizer build only. The OpenMP runtime is not
// instrumented: reports from inside it are dropped, and its barriers and locks reach the sanitizer
// through the runtime's tool library, which this program loads (see tests/CMakeLists.txt), so a
// region's hand-over of work is not reported as a race while a race in tarn's own code is.
extern "C" const char* __tsan_default_options() {
  return "ignore_noninstrumented_modules=1:halt_on_error=1:second_deadlock_stack=1";
}
