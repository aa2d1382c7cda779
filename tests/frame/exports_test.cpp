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

// The library's whole surface, typed from its naming rule: family, single patterns (LayoutS and
// LayoutP), array patterns (LayoutS, LayoutL and LayoutP), both types; fixed patterns once, 32f, no
// suffix; Copy with its nine layout pairs; and the five names outside the form.
struct SurfaceRow {
  const char* families;
  const char* single;
  const char* array;
  const char* fixed;
};
constexpr SurfaceRow kSurface[] = {
  {"Add", "mm tm tt vv vc", "mam tam mat tat mama tama tata vav vava vac vca vaca", "v2 v3 v4"},
  {"Sub", "mm mt tm tt vv vc cv",
   "mam tam mat tat mma mta tma tta mama mata tama tata vav vva vava vac vca vaca cav cva cava", "v2 v3 v4"},
  {"Mul", "mm mt tm tt mv tv mc tc vc",
   "mam mat tam tat mma mta tma tta mama mata tama tata mav tav mva tva mava tava mac tac vac vca vaca", "mm4x4"},
  {"Saxpy", "vv", "vav vva vava", ""},
  {"LComb", "vv", "vav vava", ""},
  {"Gaxpy", "mv", "mva mvav", ""},
  {"DotProduct", "vv", "vav vava", "v2 v3 v4"},
  {"CrossProduct", "vv", "vav vva vava", "v2 v3 v4"},
  {"L2Norm", "v", "va", ""},
  {"FrobNorm Trace", "m", "ma", ""},
  {"Det Invert Transpose", "m", "ma", "m4"},
  {"LUDecomp CholeskyDecomp QRDecomp", "m", "ma", ""},
  {"LUBackSubst CholeskyBackSubst QRBackSubst", "mv", "mva mava", ""},
  {"EigenValuesSym EigenValuesVectorsSym EigenValues EigenValuesVectors EigenValuesVectorsLeft "
   "EigenValuesVectorsRight",
   "m", "ma", ""},
  {"Extract", "m t v", "ma ta va", ""},
  {"LoadIdentity", "", "ma", ""},
  {"AffineTransform", "", "", "m4v2 m4v2a m4v3 m4v3a m4v4 m4v4a"},
  {"AffineTransformCoord AffineTransformNormal", "", "", "m4v2 m4v2a m4v3 m4v3a"},
  {"Project Unproject", "", "", "m4v3 m4v3a"},
  {"AffineTransform3DH", "", "", "mva"},
  {"BaryCentric Hermite InterpolationCatmullRom InterpolationLinear Len LenSqr Max Min MulC Normalize", "", "",
   "v2 v3 v4"},
  {"RotationAxis", "", "", "v3m4"},
  {"Identity IsIdentity LookAtLH LookAtRH MulTranspose OrthoLH OrthoRH OrthoOffCenterLH OrthoOffCenterRH "
   "PerspectiveFovLH PerspectiveFovRH PerspectiveLH PerspectiveRH PerspectiveOffCenterLH PerspectiveOffCenterRH "
   "RotationX RotationY RotationZ RotationYawPitchRoll Scaling Translation",
   "", "", "m4"},
};

std::vector<std::string> words(const char* s) {
  std::istringstream in(s);
  std::vector<std::string> out;
  for (std::string w; in >> w;) out.push_back(w);
  return out;
}

// The surface in groups: a family's general members (every pattern, type and layout) are one
// group, its fixed members another; the version and the buffer-size queries are groups of their own.
std::map<std::string, std::set<std::string>> surfaceGroups() {
  std::map<std::string, std::set<std::string>> g;
  for (const SurfaceRow& row : kSurface)
    for (const std::string& fam : words(row.families)) {
      for (const char* type : {"32f", "64f"}) {
        for (const std::string& p : words(row.single))
          for (const char* lay : {"", "_P"}) g[fam].insert("tarn" + fam + "_" + p + "_" + type + lay);
        for (const std::string& p : words(row.array))
          for (const char* lay : {"", "_L", "_P"}) g[fam].insert("tarn" + fam + "_" + p + "_" + type + lay);
      }
      for (const std::string& p : words(row.fixed)) g[fam + " fixed"].insert("tarn" + fam + "_" + p + "_32f");
    }
  for (const char* type : {"32f", "64f"})
    for (const char* p : {"ma", "va"})
      for (const char* from : {"S", "L", "P"})
        for (const char* to : {"S", "L", "P"})
          g["Copy"].insert(std::string("tarnCopy_") + p + "_" + type + "_" + from + to);
  g["version"] = {"tarnGetLibVersion"};
  g["buffer sizes"] = {"tarnEigenValuesGetBufSize_32f", "tarnEigenValuesGetBufSize_64f",
                       "tarnEigenValuesVectorsGetBufSize_32f", "tarnEigenValuesVectorsGetBufSize_64f"};
  return g;
}

// The export list is exactly the surface that the naming rule spells out, group by group.
TEST(Exports, ExportListIsTheWholeSurface) {
  const auto groups = surfaceGroups();
  std::set<std::string> surface;
  for (const auto& [group, names] : groups) surface.insert(names.begin(), names.end());
  EXPECT_EQ(surface.size(), 874u);
  const auto exported = tableNames();
  const std::set<std::string> have(exported.begin(), exported.end());
  for (const std::string& n : have) EXPECT_TRUE(surface.count(n)) << n << " is not a name of the surface";
  for (const auto& [group, names] : groups)
    for (const std::string& n : names) EXPECT_TRUE(have.count(n)) << group << ": " << n << " missing";
  EXPECT_EQ(exported.size(), 874u);
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
