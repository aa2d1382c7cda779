// Every export can be the very first call a process makes. For each name of the export list the
// build generates, a child of this process, which has loaded tarn and called nothing in it,
// calls that export on fresh inputs, then once more on the same fresh inputs: the child must
// live, and both calls must return the same status and leave the same bytes.
//
//   tarn_first_call EXPORTS_TXT
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "members.hpp"
#include "tarn.h"

namespace {

using namespace tt;

// Every pointer argument gets a region of its own, or a table of pointers into that region.
constexpr size_t kRegion = 16384;
constexpr int kRegions = 10;
struct Arena {
  alignas(64) uint8_t data[kRegions * kRegion];
  void* tables[kRegions][64];
  int32_t ints[64];
  void reset() {
    for (size_t i = 0; i < sizeof data / 4; ++i) {
      const float v = 0.5f + 0.25f * float(i % 7);  // small, varied, invertible enough
      std::memcpy(data + 4 * i, &v, 4);
    }
    for (int r = 0; r < kRegions; ++r)
      for (int j = 0; j < 64; ++j) tables[r][j] = data + r * kRegion + 256 * j;
    for (int i = 0; i < 64; ++i) ints[i] = i % 3;
  }
  std::vector<uint8_t> bytes() const {
    const auto* p = reinterpret_cast<const uint8_t*>(this);
    return {p, p + sizeof *this};
  }
};
Arena arena;

// A valid call: sizes 3, two objects, strides that keep every object inside its region.
tarnStatus callOnce(const std::string& name) {
  arena.reset();
  for (const FixedFn& f : fixedCalls())
    if (name == f.name) {
      FixedArgs a;
      for (int i = 0; i < 8; ++i) a.floats[i] = reinterpret_cast<float*>(arena.data + size_t(i) * kRegion);
      a.ints = arena.ints;
      a.value = 0.75f;
      a.strides[0] = a.strides[1] = 16;
      a.count = 2;
      return f.call(a);
    }
  const MemberFn& m = member(name);
  const int esize = parseName(name).esize;
  Args a;
  for (int i = 0; i < m.nop; ++i) {
    void* ptr = (m.blk[i].has & kRoi) ? static_cast<void*>(arena.tables[i]) : arena.data + size_t(i) * kRegion;
    // A plain pointer the member reads is a row order from a factorisation: indices 0, 1, 2.
    if (m.blk[i].kind == 0 && !m.blk[i].out) ptr = arena.ints;
    a.op[i] = {ptr, 256, 32, esize, 0, 3, 3};
  }
  a.width = a.height = a.len = a.order = 3;
  a.count = 2;
  a.val[0] = a.val[1] = 0.5;
  return m.call(a);
}

int child(const std::string& name) {
  if (name == "tarnGetLibVersion") {
    const tarnLibraryVersion* v = tarnGetLibVersion();
    return v && v == tarnGetLibVersion() && v->major == 7 ? 0 : 3;
  }
  const tarnStatus first = callOnce(name);
  const auto after = arena.bytes();
  const tarnStatus second = callOnce(name);
  return first == second && after == arena.bytes() ? 0 : 3;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: tarn_first_call EXPORTS_TXT\n");
    return 2;
  }
  std::vector<std::string> names;
  std::ifstream in(argv[1]);
  for (std::string s; std::getline(in, s);)
    if (!s.empty()) names.push_back(s);
  int failed = 0;
  for (const std::string& name : names) {
    std::fflush(nullptr);
    const pid_t pid = fork();
    if (pid == 0) _exit(child(name));
    int status = 0;
    if (pid < 0 || waitpid(pid, &status, 0) != pid) {
      std::fprintf(stderr, "%s: could not run a child\n", name.c_str());
      ++failed;
    } else if (WIFSIGNALED(status)) {
      std::fprintf(stderr, "%s: killed by signal %d as the first call\n", name.c_str(), WTERMSIG(status));
      ++failed;
    } else if (WEXITSTATUS(status) != 0) {
      std::fprintf(stderr, "%s: the first call and a later one differ\n", name.c_str());
      ++failed;
    }
  }
  std::printf("%zu exports, each the first call of a process: %d failed\n", names.size(), failed);
  return names.empty() || failed ? 1 : 0;
}
