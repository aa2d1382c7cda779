// The shared object's surface: exactly the member table's names, sorted by bytes into the slot
// table, each stub a frameless jump through its own slot to its own entry; and the version.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "members.hpp"

namespace tt {
namespace {

std::vector<std::string> lines(const std::string& cmd) {
  std::vector<std::string> out;
  FILE* p = popen(cmd.c_str(), "r");
  if (!p) return out;
  char buf[512];
  while (fgets(buf, sizeof buf, p)) {
    std::string s(buf);
    while (!s.empty() && (s.back() == '\n' || s.back() == '\r')) s.pop_back();
    out.push_back(s);
  }
  pclose(p);
  return out;
}

std::vector<std::string> tableNames() {
  std::vector<std::string> names;
  std::ifstream f(TARN_EXPORTS_TXT);
  for (std::string s; std::getline(f, s);) names.push_back(s);
  return names;
}

TEST(Exports, SharedObjectExportsExactlyTheMemberTable) {
  std::set<std::string> exported;
  for (const auto& l : lines("nm -D --defined-only " TARN_SO_PATH)) {
    std::istringstream in(l);
    std::string addr, type, name;
    in >> addr >> type >> name;
    if (type == "T" || type == "D" || type == "B" || type == "R" || type == "W" || type == "V") exported.insert(name);
  }
  const auto names = tableNames();
  ASSERT_FALSE(names.empty());
  EXPECT_EQ(exported, std::set<std::string>(names.begin(), names.end()));
  EXPECT_TRUE(std::is_sorted(names.begin(), names.end(),
                             [](const std::string& a, const std::string& b) { return std::strcmp(a.c_str(), b.c_str()) < 0; }));
  // Every export is invocable from an argument record, or a fixed-size member, or the version.
  EXPECT_EQ(names.size(), allMembers().size() + fixedMembers().size() + 1);
}

// Stub k is `jmp *EntrySlotTable+8k(%rip)` and slot k holds ownEntry_<name of export k>.
TEST(Exports, EveryStubJumpsThroughItsSlotToItsEntry) {
  std::map<std::string, uintptr_t> local;
  for (const auto& l : lines("nm --defined-only " TARN_SO_PATH)) {
    std::istringstream in(l);
    std::string addr, type, name;
    in >> addr >> type >> name;
    local[name] = std::stoull(addr, nullptr, 16);
  }
  ASSERT_TRUE(local.count("EntrySlotTable"));
  void* so = dlopen(TARN_SO_PATH, RTLD_NOW | RTLD_NOLOAD);
  ASSERT_NE(so, nullptr);
  const auto names = tableNames();
  for (size_t k = 0; k < names.size(); ++k) {
    const auto* stub = static_cast<const uint8_t*>(dlsym(so, names[k].c_str()));
    ASSERT_NE(stub, nullptr) << names[k];
    Dl_info info{};
    ASSERT_NE(dladdr(stub, &info), 0);
    const auto base = reinterpret_cast<uintptr_t>(info.dli_fbase);
    ASSERT_EQ(stub[0], 0xFF) << names[k];
    ASSERT_EQ(stub[1], 0x25) << names[k];
    int32_t disp;
    std::memcpy(&disp, stub + 2, 4);
    const uintptr_t slot = reinterpret_cast<uintptr_t>(stub) + 6 + disp;
    EXPECT_EQ(slot, base + local["EntrySlotTable"] + 8 * k) << names[k];
    const uintptr_t entry = *reinterpret_cast<const uintptr_t*>(slot);
    ASSERT_TRUE(local.count("ownEntry_" + names[k])) << names[k];
    EXPECT_EQ(entry, base + local["ownEntry_" + names[k]]) << names[k];
  }
  dlclose(so);
}

TEST(Version, ConstantRecord) {
  const tarnLibraryVersion* v = tarnGetLibVersion();
  ASSERT_NE(v, nullptr);
  EXPECT_EQ(v, tarnGetLibVersion());
  EXPECT_EQ(v->major, 7);
  EXPECT_EQ(v->minor, 1);
  EXPECT_EQ(v->majorBuild, 1);
  EXPECT_EQ(v->build, 37466);
  EXPECT_EQ(std::memcmp(v->targetCpu, "e2\0\0", 4), 0);
  EXPECT_STREQ(v->name, "tarn SSE3 (e2)");
  EXPECT_STREQ(v->version, "7.1.1 (r37466)");
  EXPECT_STREQ(v->buildDate, "Sep 24 2012");
}

}  // namespace
}  // namespace tt
