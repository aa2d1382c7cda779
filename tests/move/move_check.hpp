// Runs one data-movement member on test operands and compares with the model: the destination's
// whole arena after the call must equal a copy of it taken before, on which the model wrote. That
// checks every result bit for bit and that nothing beside the destination's elements was written.
#pragma once

#include <optional>
#include <random>
#include <string>

#include "support/members.hpp"
#include "support/operand.hpp"
#include "ref/move_ref.hpp"

namespace movetest {

// Bit patterns a float path would disturb: signalling NaNs, negative zero, denormals.
inline void fillBits(tt::Operand& o, int rows, int cols, std::mt19937& rng) {
  const uint64_t f[] = {0x7f800001u, 0xffa00000u, 0x80000000u, 1u, 0x807fffffu};
  const uint64_t d[] = {0x7ff0000000000001u, 0xfff4000000000000u, 0x8000000000000000u, 1u, 0x800fffffffffffffu};
  for (int n = 0; n < o.count(); ++n)
    for (int r = 0; r < rows; ++r)
      for (int c = 0; c < cols; ++c) {
        const unsigned k = rng() % 8;
        const uint64_t high = uint64_t(rng()) << 32;  // drawn first, on any compiler
        const uint64_t any = high | rng();
        o.setBits(n, r, c, k < 5 ? (o.esize() == 4 ? f[k] : d[k]) : any);
      }
}

// Member `name` (called through `call`) on `count` objects of h x w (a vector: w elements),
// source placed as `ss`, destination as `ds`. Returns what went wrong, or nothing.
inline std::string runMove(tarnStatus (*call)(const tt::Args&), const char* name, int h, int w, int count,
                           const tt::Style& ss, const tt::Style& ds, std::mt19937& rng) {
  const tt::Name nm = tt::parseName(name);
  const bool array = nm.pattern.back() == 'a', t = nm.pattern[0] == 't';
  const int rows = nm.pattern[0] == 'v' ? 1 : h, n = array ? count : 1, es = nm.esize;
  const bool copy = nm.family == "Copy", extract = nm.family == "Extract", trans = nm.family == "Transpose";

  std::optional<tt::Operand> src;
  if (nm.family != "LoadIdentity") {
    src.emplace(nm.layout, es, t ? w : rows, t ? rows : w, n, array, ss);
    fillBits(*src, t ? w : rows, t ? rows : w, rng);
  }
  tt::Operand dst = extract ? tt::Operand('S', es, 1, n * rows * w, 1, false, ds)
                            : tt::Operand(copy ? nm.layout2 : nm.layout, es, trans ? w : rows, trans ? rows : w, n,
                                          array, ds);
  tt::Args a;
  if (src) a.op[0] = src->blk();
  a.op[src ? 1 : 0] = dst.blk();
  a.width = a.len = w;
  a.height = rows;
  a.count = count;

  tt::Operand model(dst);
  const auto srcBefore = src ? src->snapshot() : std::vector<uint8_t>();
  const tarnStatus st = call(a);
  if (copy) ref::copy(*src, model, n, rows, w);
  else if (extract) ref::extract(*src, model, t, n, rows, w);
  else if (trans) ref::transpose(*src, model, n, rows, w);
  else ref::identity(model, n, rows, w);

  std::string why;
  if (st != tarnStatusOk) why += " status " + std::to_string(st);
  if (!dst.unchangedSince(model.snapshot())) why += " destination differs from the model";
  if (src && !src->unchangedSince(srcBefore)) why += " source written";
  if (why.empty()) return why;
  return std::string(name) + " " + std::to_string(rows) + "x" + std::to_string(w) + " count " +
         std::to_string(count) + " " + ss.name + " -> " + ds.name + ":" + why;
}

}  // namespace movetest
