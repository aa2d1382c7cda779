#include "members.hpp"

#include <cstdio>
#include <cstdlib>

namespace tt {

const std::vector<MemberFn>& allMembers() {
  static const std::vector<MemberFn> kAll = {
#include "invoke.inc"
  };
  return kAll;
}

const std::vector<std::string>& fixedMembers() {
  static const std::vector<std::string> kFixed = {
#include "fixed.inc"
  };
  return kFixed;
}

const std::vector<FixedFn>& fixedCalls() {
  static const std::vector<FixedFn> kCalls = {
#include "fixed_invoke.inc"
  };
  return kCalls;
}

const MemberFn& member(std::string_view name) {
  for (const auto& m : allMembers())
    if (name == m.name) return m;
  std::fprintf(stderr, "no export named %.*s\n", int(name.size()), name.data());
  std::abort();
}

std::vector<const MemberFn*> membersOf(std::string_view family) {
  const std::string prefix = "tarn" + std::string(family) + "_";
  std::vector<const MemberFn*> out;
  for (const auto& m : allMembers())
    if (std::string_view(m.name).starts_with(prefix)) out.push_back(&m);
  return out;
}

}  // namespace tt
