// Validation order of the data-movement members: the check sequence of every member, written
// here from the documented orders, must be the one the member runs. That the library runs a
// sequence as written, pair of faults by pair of faults, is swept for all members in
// tests/frame/validation_test.cpp.
#include "move_support.hpp"

namespace movetest {
namespace {

// Letters: N null, C count, Z size, T every stride, E row and element strides, O object strides
// when count > 1, R shifts. A letter that finds no field of its kind in a member passes.
std::string documentedChecks(std::string_view name) {
  const Name nm = parse(name);
  const std::string_view family = name.substr(4, name.find('_') - 4);
  const bool array = nm.pattern.size() == 2;
  if (family == "Copy") {
    // The float vector copies from S or L into P test the shifts before the strides.
    const bool early = nm.pattern == "va" && nm.es == 4 && nm.lay2 == Lay::P && nm.lay != Lay::P;
    return early ? "NZCREO" : "NZCERO";
  }
  if (family == "Extract") {
    if (!array) return nm.lay == Lay::S ? "NZT" : name == "tarnExtract_v_32f_P" ? "NZR" : "ZNR";
    return nm.lay == Lay::S ? "NZCT" : "NZCRT";
  }
  if (family == "LoadIdentity") {
    if (nm.lay == Lay::S) return "NZCEO";
    if (nm.lay == Lay::L) return "NZCER";
    return nm.es == 4 ? "NZRCO" : "NZCRO";
  }
  if (!array) return nm.lay == Lay::S ? "NZT" : "NZR";  // Transpose
  return nm.lay == Lay::S ? "NCZT" : "NCZTR";
}

const char* kFamilies[] = {"tarnCopy_", "tarnExtract_", "tarnLoadIdentity_", "tarnTranspose_"};

TEST(MoveValidation, SequencesAreTheDocumentedOnes) {
  int n = 0;
  for (const char* f : kFamilies)
    for (const Entry& e : members(f)) {
      EXPECT_EQ(std::string(e.checks), documentedChecks(e.name)) << e.name;
      ++n;
    }
  EXPECT_EQ(n, 82);
}

}  // namespace
}  // namespace movetest
