// The name parser on its own, so white-box tests can read names without the invoke table.
#include "members.hpp"

namespace tt {

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
