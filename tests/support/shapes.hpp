// Per member, from its argument description: sizes that satisfy its shape rule, the stored extent
// of each pointer argument under given sizes, and the member's call through tarn.hpp.
#pragma once

#include <map>
#include <string>
#include <system_error>

#include "harness.hpp"

namespace tt {

// The member's sizes by their names in the C prototype ("width", "src1Height", "len",
// "widthHeight", ...), and "count".
using Sizes = std::map<std::string, int>;

struct MemberShape {
  const char* name;
  // Adds every missing size with a default (unequal ones: 3 for widths, 4 for heights, 5 for
  // lengths), then makes each equation of the shape rule hold by setting one side from the other.
  void (*sizes)(Sizes&);
  Extent (*extent)(const Sizes&, int block);
  std::error_code (*call)(const Args&, const Sizes&);
};

const MemberShape* shapeOf(const std::string& exportName);

}  // namespace tt
