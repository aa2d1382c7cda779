// Validation order of the data-movement members: the check sequence of every member, written
// here from the documented orders, must be the one the member runs; then every pair of faults
// reports the earlier check's status, and a failed call writes nothing.
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

// The operand blocks of a member, by position in Args, with their layout, and the number of
// pointer arguments (Extract's dst is a plain pointer behind its one block).
struct Blocks {
  std::vector<std::pair<int, Lay>> ops;
  int pointers;
  bool array, vector;
};
Blocks blocksOf(std::string_view name) {
  const Name nm = parse(name);
  const std::string_view family = name.substr(4, name.find('_') - 4);
  Blocks b{{}, 2, nm.pattern.size() == 2, nm.pattern[0] == 'v'};
  if (family == "Copy") b.ops = {{0, nm.lay}, {1, nm.lay2}};
  else if (family == "Extract") b.ops = {{0, nm.lay}};
  else if (family == "LoadIdentity") b.ops = {{0, nm.lay}}, b.pointers = 1;
  else b.ops = {{0, nm.lay}, {1, nm.lay}};
  return b;
}

enum Fault { kNull, kCount, kSize, kRowElem, kObj, kShift, kFaults };

// Applies one fault to a valid call, on the block chosen by `which`; false when the member has
// no field for it.
bool inject(Fault f, Args& a, const Blocks& b, int which) {
  std::vector<int> with;
  auto pick = [&](auto has) {
    with.clear();
    for (auto [i, lay] : b.ops)
      if (has(lay)) with.push_back(i);
    return with.empty() ? -1 : with[which % with.size()];
  };
  switch (f) {
    case kNull: a.op[which % b.pointers].ptr = nullptr; return true;
    case kCount: if (!b.array) return false; a.count = 0; return true;
    case kSize: a.width = 0; a.len = 0; return true;
    case kRowElem: {
      const int i = pick([](Lay l) { return l != Lay::P; });
      if (i < 0) return false;
      (which % 2 && !b.vector ? a.op[i].row : a.op[i].elem) = 2;
      return true;
    }
    case kObj: {
      const int i = b.array ? pick([](Lay l) { return l != Lay::L; }) : -1;
      if (i < 0) return false;
      a.op[i].obj = -8;
      return true;
    }
    case kShift: {
      const int i = pick([&](Lay l) { return l == Lay::P || (l == Lay::L && b.array); });
      if (i < 0) return false;
      a.op[i].roi = 6;
      return true;
    }
    default: return false;
  }
}

// Whether check `letter` fails on the faults in `set`.
bool catches(char letter, const bool* set) {
  switch (letter) {
    case 'N': return set[kNull];
    case 'C': return set[kCount];
    case 'Z': return set[kSize];
    case 'T': return set[kRowElem] || set[kObj];
    case 'E': return set[kRowElem];
    case 'O': return set[kObj];  // the valid call has two objects
    case 'R': return set[kShift];
  }
  return false;
}
tarnStatus statusOf(char letter) {
  switch (letter) {
    case 'N': return tarnStatusNullPointer;
    case 'C': return tarnStatusBadCount;
    case 'Z': return tarnStatusBadSize;
    case 'R': return tarnStatusBadRoiShift;
    default: return tarnStatusBadStride;
  }
}

TEST(MoveValidation, PairsOfFaultsReportTheEarlierCheck) {
  int pairs = 0;
  for (const char* f : kFamilies)
    for (const Entry& e : members(f)) {
      const Name nm = parse(e.name);
      const Blocks b = blocksOf(e.name);
      const std::string seq = documentedChecks(e.name);
      for (int x = 0; x < kFaults; ++x)
        for (int y = x; y < kFaults; ++y) {
          Arena ar(1 << 14);
          const int count = b.array ? 2 : 1;
          std::vector<Place> ps;
          Bound bl;
          Args a;
          for (auto [i, lay] : b.ops) {
            ps.push_back(place(ar, lay, 3, 3, count, nm.es, Form::Padded, b.array));
            a.op[i] = bl.bind(ps.back(), ar.lib());
          }
          if (std::string_view(f) == "tarnExtract_") a.op[1].ptr = ar.lib() + ar.take(9 * count * nm.es);
          a.width = a.height = a.len = 3;
          a.count = count;
          bool set[kFaults] = {};
          if (!inject(Fault(x), a, b, y) || !inject(Fault(y), a, b, x)) continue;
          set[x] = set[y] = true;
          tarnStatus want = tarnStatusOk;
          for (char l : seq)
            if (catches(l, set)) {
              want = statusOf(l);
              break;
            }
          ASSERT_NE(want, tarnStatusOk) << e.name << " faults " << x << "," << y;
          ar.snapshot();
          EXPECT_EQ(e.fn(a), want) << e.name << " faults " << x << "," << y;
          EXPECT_TRUE(ar.same()) << e.name << ": a failed call wrote";
          ++pairs;
        }
    }
  EXPECT_GT(pairs, 82 * 6);
}

}  // namespace
}  // namespace movetest
