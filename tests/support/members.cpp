#include "members.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace tt {

const std::vector<MemberFn>& allMembers() {
  static const std::vector<MemberFn> kAll = {
#include "invoke.inc"
  };
  return kAll;
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

Name parseName(std::string_view s) {
  Name n;
  s.remove_prefix(4);  // "tarn"
  const auto u1 = s.find('_');
  n.family = std::string(s.substr(0, u1));
  s.remove_prefix(u1 + 1);
  const auto u2 = s.find('_');
  n.pattern = std::string(s.substr(0, u2));
  s.remove_prefix(u2 + 1);
  n.esize = s.starts_with("64f") ? 8 : 4;
  s.remove_prefix(3);
  if (s.starts_with("_")) {
    n.layout = s[1];
    n.layout2 = s.size() > 2 ? s[2] : s[1];
  }
  return n;
}

}  // namespace tt
