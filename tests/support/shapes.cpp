#include "shapes.hpp"

#include "tarn.hpp"

namespace tt {

namespace {

// Sizes chosen unequal, so a width passed as a height shows; the shape rule then fixes the
// sizes it ties together.
int defaultSize(const std::string& name) {
  if (name == "width" || name.ends_with("Width")) return 3;
  if (name == "height" || name.ends_with("Height")) return 4;
  if (name == "len" || name.ends_with("Len")) return 5;
  return 3;  // widthHeight
}

using HppCall = MemberShape;
const MemberShape kShapes[] = {
#include "hppcalls.inc"
};

}  // namespace

const MemberShape* shapeOf(const std::string& exportName) {
  for (const auto& c : kShapes)
    if (exportName == c.name) return &c;
  return nullptr;
}

}  // namespace tt
