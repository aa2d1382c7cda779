// The Python module's one native entry point: a member's index in the generated thunk table and
// its C arguments as Python numbers (addresses for pointers), converted by the kinds the table
// records and passed with the interpreter lock released.
#include <pybind11/pybind11.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "tarn.h"

namespace py = pybind11;

namespace {

union Word {
  void* p;
  int32_t i;
  float f;
  double d;
};

struct Thunk {
  const char* name;
  const char* kinds;  // one letter per C argument: p pointer, i int32_t, f float, d double
  tarnStatus (*fn)(const Word*);
};

#include "pythunks.inc"

constexpr size_t kCount = sizeof(kThunks) / sizeof(kThunks[0]);

const Thunk& thunk(size_t index) {
  if (index >= kCount) throw py::index_error("no member " + std::to_string(index));
  return kThunks[index];
}

int call(size_t index, const py::tuple& args) {
  const Thunk& t = thunk(index);
  const std::string kinds = t.kinds;
  if (args.size() != kinds.size())
    throw py::type_error(std::string(t.name) + " takes " + std::to_string(kinds.size()) + " arguments");
  std::vector<Word> w(kinds.size());
  for (size_t i = 0; i < kinds.size(); ++i) {
    switch (kinds[i]) {
      case 'p': w[i].p = reinterpret_cast<void*>(args[i].cast<uintptr_t>()); break;
      case 'i': {
        const long long v = args[i].cast<long long>();
        if (v < INT32_MIN || v > INT32_MAX) throw py::value_error(std::string(t.name) + ": a size or stride beyond 32 bits");
        w[i].i = int32_t(v);
        break;
      }
      case 'f': w[i].f = float(args[i].cast<double>()); break;
      default: w[i].d = args[i].cast<double>(); break;
    }
  }
  py::gil_scoped_release unlocked;
  return t.fn(w.data());
}

}  // namespace

PYBIND11_MODULE(_native, m) {
  m.doc() = "tarn's native entry point; use the tarn package.";
  m.def("call", &call, "Calls member `index` with its C arguments, without the interpreter lock.");
  m.def("count", [] { return kCount; });
  m.def("name", [](size_t i) { return std::string(thunk(i).name); });
}
