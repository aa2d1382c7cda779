// The Python module's one native entry point: a member's index in the generated thunk table and
// its C arguments as Python numbers (addresses for pointers), converted by the kinds the table
// records and passed with the interpreter lock released.
#include <pybind11/pybind11.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
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

// A fixed-size member over a batch: the member runs once per object of `shape` (C order), each
// argument moved by its own batch strides (0 repeats one object for all). Pointer arguments are
// (address, batch strides, element strides, object shape, written); an object whose elements
// are not consecutive is gathered into a local copy, or written there and scattered. Float
// values are (address of a float32, batch strides); int32 values are numbers. The first status
// other than 0 ends the walk and is returned.
constexpr size_t kFixedCount = sizeof(kFixedThunks) / sizeof(kFixedThunks[0]);

struct FixedArg {
  char kind = 'i';
  char* base = nullptr;
  std::vector<ptrdiff_t> batch;  // byte strides over the batch axes
  std::vector<ptrdiff_t> elem;   // byte strides over the object's axes
  std::vector<size_t> dims;
  bool out = false, packed = true;
  size_t elems = 1;
  int32_t value = 0;
};

std::vector<ptrdiff_t> strides(const py::handle& h) {
  std::vector<ptrdiff_t> v;
  for (auto x : py::reinterpret_borrow<py::tuple>(h)) v.push_back(x.cast<ptrdiff_t>());
  return v;
}

int fixed(size_t index, const py::tuple& shape, const py::tuple& args) {
  if (index >= kFixedCount) throw py::index_error("no fixed member " + std::to_string(index));
  const Thunk& t = kFixedThunks[index];
  const std::string kinds = t.kinds;
  if (args.size() != kinds.size())
    throw py::type_error(std::string(t.name) + " takes " + std::to_string(kinds.size()) + " arguments");
  std::vector<size_t> n;
  size_t count = 1;
  for (auto x : shape) {
    n.push_back(x.cast<size_t>());
    count *= n.back();
  }
  if (kinds.size() > 16) throw py::type_error(std::string(t.name) + ": more arguments than the local copies hold");
  std::vector<FixedArg> a(kinds.size());
  for (size_t i = 0; i < kinds.size(); ++i) {
    FixedArg& f = a[i];
    f.kind = kinds[i];
    if (f.kind == 'i') {
      const long long v = args[i].cast<long long>();
      if (v < INT32_MIN || v > INT32_MAX) throw py::value_error(std::string(t.name) + ": a stride or count beyond 32 bits");
      f.value = int32_t(v);
      continue;
    }
    const py::tuple desc = args[i].cast<py::tuple>();
    f.base = reinterpret_cast<char*>(desc[0].cast<uintptr_t>());
    f.batch = strides(desc[1]);
    if (f.batch.size() != n.size()) throw py::value_error(std::string(t.name) + ": batch strides do not match the shape");
    if (f.kind == 'f') continue;
    f.elem = strides(desc[2]);
    for (auto x : desc[3]) f.dims.push_back(x.cast<size_t>());
    f.out = desc[4].cast<bool>();
    if (f.elem.size() != f.dims.size()) throw py::value_error(std::string(t.name) + ": element strides do not match");
    ptrdiff_t want = 4;  // C order, 4-byte elements
    for (size_t k = f.dims.size(); k-- > 0;) {
      f.elems *= f.dims[k];
      if (f.dims[k] > 1 && f.elem[k] != want) f.packed = false;
      want *= ptrdiff_t(f.dims[k]);
    }
    if (f.elems > 16) throw py::value_error(std::string(t.name) + ": an object of more than 16 elements");
  }
  py::gil_scoped_release unlocked;
  std::vector<Word> w(a.size());
  std::vector<size_t> at(n.size(), 0);
  alignas(16) char local[16][64];
  for (size_t obj = 0; obj < count; ++obj) {
    for (size_t i = 0; i < a.size(); ++i) {
      const FixedArg& f = a[i];
      if (f.kind == 'i') {
        w[i].i = f.value;
        continue;
      }
      char* p = f.base;
      for (size_t k = 0; k < at.size(); ++k) p += ptrdiff_t(at[k]) * f.batch[k];
      if (f.kind == 'f') {
        std::memcpy(&w[i].f, p, 4);
        continue;
      }
      if (f.packed) {
        w[i].p = p;
        continue;
      }
      w[i].p = local[i];  // a result's old elements too: a failing member may leave them
      for (size_t e = 0; e < f.elems; ++e) {  // gathered in C order
        const char* q = p;
        for (size_t k = f.dims.size(), r = e; k-- > 0; r /= f.dims[k]) q += ptrdiff_t(r % f.dims[k]) * f.elem[k];
        std::memcpy(local[i] + 4 * e, q, 4);
      }
    }
    const tarnStatus st = t.fn(w.data());
    for (size_t i = 0; i < a.size(); ++i) {
      const FixedArg& f = a[i];
      if (f.kind == 'i' || f.kind == 'f' || f.packed || !f.out) continue;
      char* p = f.base;
      for (size_t k = 0; k < at.size(); ++k) p += ptrdiff_t(at[k]) * f.batch[k];
      for (size_t e = 0; e < f.elems; ++e) {
        char* q = p;
        for (size_t k = f.dims.size(), r = e; k-- > 0; r /= f.dims[k]) q += ptrdiff_t(r % f.dims[k]) * f.elem[k];
        std::memcpy(q, local[i] + 4 * e, 4);
      }
    }
    if (st != 0) return st;
    for (size_t k = at.size(); k-- > 0;) {  // the next object, last axis fastest
      if (++at[k] < n[k]) break;
      at[k] = 0;
    }
  }
  return 0;
}

}  // namespace

PYBIND11_MODULE(_native, m) {
  m.doc() = "tarn's native entry point; use the tarn package.";
  m.def("call", &call, "Calls member `index` with its C arguments, without the interpreter lock.");
  m.def("fixed", &fixed, "Calls fixed-size member `index` once per object of a batch, without the interpreter lock.");
  m.def("count", [] { return kCount; });
  m.def("name", [](size_t i) { return std::string(thunk(i).name); });
}
