// Host program: expands the member table into everything that names an export.
//
//   tarngen OUTDIR
// writes OUTDIR/tarn.h (the public header; the committed include/tarn.h must equal it),
// OUTDIR/stubs.S (one frameless jump through its own slot per export), OUTDIR/slots.cpp
// (EntrySlotTable in ascending byte order of names, and a compile-time check that every binding
// has the type the header declares), OUTDIR/entries.inc (one binding per export, sections per
// family), OUTDIR/invoke.inc (one typed call per export, for the tests) and OUTDIR/exports.txt.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "../members.hpp"

using namespace tarn;

namespace {

struct Param {
  std::string ctype;  // C type in the header
  std::string name;
  std::string field;  // where it lives in Call (and in the tests' mirror of it)
};

struct Member {
  std::string name;
  const Row* row;
  bool f64;
  Layout lay, lay2;  // lay2 only for Copy's destination
  std::vector<Param> params;
  std::vector<int> blkMask;  // per op index: the fields the block carries (BlkField bits)
  int sizeMask = 0;          // SizeField bits
  bool hasCount = false;
  std::string checks;
  bool serialOnly = false;
};

// Bits of call.hpp's BlkField and SizeField, by the Call field or size they stand for.
constexpr const char* kBlkFields[] = {"obj", "row", "elem", "roi"};
constexpr const char* kBlkBits[] = {"kObj", "kRow", "kElem", "kRoi"};
constexpr const char* kSizeBits[] = {"kWidth", "kHeight", "kLen"};

// A mask as the expression the bindings spell it in, e.g. "kObj|kRow|kElem".
std::string maskExpr(int mask, const char* const* names, int bits) {
  std::string s;
  for (int b = 0; b < bits; ++b)
    if (mask & (1 << b)) s += (s.empty() ? "" : "|") + std::string(names[b]);
  return s.empty() ? "0" : s;
}

struct Opnd {
  char kind;   // m t v c
  bool array;
};

std::vector<Opnd> parsePattern(std::string_view p) {
  std::vector<Opnd> out;
  for (size_t i = 0; i < p.size(); ++i) {
    Opnd o{p[i], false};
    if (i + 1 < p.size() && p[i + 1] == 'a') {
      o.array = true;
      ++i;
    }
    out.push_back(o);
  }
  return out;
}

const char* layoutSuffix(Layout l) { return l == Layout::S ? "" : l == Layout::L ? "_L" : "_P"; }
const char* layoutLetter(Layout l) { return l == Layout::S ? "S" : l == Layout::L ? "L" : "P"; }
const char* layoutEnum(Layout l) { return l == Layout::S ? "Layout::S" : l == Layout::L ? "Layout::L" : "Layout::P"; }

class Builder {
 public:
  explicit Builder(Member& m) : m_(m), t_(m.f64 ? "double" : "float") {}

  // One operand block in the form its layout gives it.
  void block(char kind, bool array, Layout lay, const std::string& name, bool write) {
    const int i = nop_++;
    const std::string op = "op[" + std::to_string(i) + "]";
    const std::string cq = write ? "" : "const ";
    int mask = 0;
    auto add = [&](const std::string& ctype, const std::string& pname, const std::string& field) {
      m_.params.push_back({ctype, pname, op + "." + field});
      for (int bit = 0; bit < 4; ++bit)
        if (field == kBlkFields[bit]) mask |= 1 << bit;
    };
    if (kind == 'c') {  // an array of constants; a single constant is passed by value
      if (lay == Layout::L) {
        add(cq + t_ + "* const*", name, "ptr");
        add("int32_t", name + "RoiShift", "roi");
      } else {
        add(cq + t_ + "*", name, "ptr");
        add("int32_t", name + "ObjStride", "obj");
      }
    } else {
      const bool matrix = kind == 'm' || kind == 't';
      const bool table = lay == Layout::P || (lay == Layout::L && array);
      add(cq + t_ + (table ? "* const*" : "*"), name, "ptr");
      if (lay == Layout::P) {
        add("int32_t", name + "RoiShift", "roi");
        if (array) add("int32_t", name + "ObjStride", "obj");
      } else {
        if (array && lay == Layout::L) add("int32_t", name + "RoiShift", "roi");
        if (array && lay == Layout::S) add("int32_t", name + "ObjStride", "obj");
        if (matrix) add("int32_t", name + "RowStride", "row");
        add("int32_t", name + "ElemStride", "elem");
      }
    }
    m_.blkMask.push_back(mask);
  }

  void plainPointer(const std::string& name) {
    const int i = nop_++;
    m_.params.push_back({t_ + "*", name, "op[" + std::to_string(i) + "].ptr"});
    m_.blkMask.push_back(0);
  }

  void scalar(const std::string& name, int slot) {
    m_.params.push_back({t_, name, "val[" + std::to_string(slot) + "]"});
  }

  void sizes(bool matrix) {
    if (matrix) {
      m_.params.push_back({"int32_t", "width", "width"});
      m_.params.push_back({"int32_t", "height", "height"});
      m_.sizeMask = 1 | 2;
    } else {
      m_.params.push_back({"int32_t", "len", "len"});
      m_.sizeMask = 4;
    }
  }

  void count() {
    m_.params.push_back({"int32_t", "count", "count"});
    m_.hasCount = true;
  }

 private:
  Member& m_;
  std::string t_;
  int nop_ = 0;
};

void buildParams(Member& m) {
  Builder b(m);
  const Row& r = *m.row;
  const auto ops = parsePattern(r.pattern);
  bool anyArray = false, anyMatrix = false;
  for (auto o : ops) {
    anyArray |= o.array;
    anyMatrix |= o.kind == 'm' || o.kind == 't';
  }
  switch (r.sig) {
    case Sig::Version:
      return;
    case Sig::Operands: {
      int nonConst = 0, scalars = 0;
      for (auto o : ops) nonConst += o.kind != 'c';
      int k = 0;
      for (auto o : ops)  // vectors and matrices first, in pattern order
        if (o.kind != 'c')
          b.block(o.kind, o.array, m.lay, nonConst == 1 ? "src" : "src" + std::to_string(++k), false);
      for (auto o : ops) {  // then the constant
        if (o.kind != 'c') continue;
        if (o.array) b.block('c', true, m.lay, "val", false);
        else b.scalar("val", scalars++);
      }
      b.block(anyMatrix ? 'm' : 'v', anyArray, m.lay, "dst", true);
      b.sizes(anyMatrix);
      if (anyArray) b.count();
      return;
    }
    case Sig::Scaled1:
    case Sig::Scaled2: {
      const bool two = r.sig == Sig::Scaled2;
      b.block('v', ops[0].array, m.lay, "src1", false);
      b.scalar(two ? "val1" : "val", 0);
      b.block('v', ops[1].array, m.lay, "src2", false);
      if (two) b.scalar("val2", 1);
      b.block('v', anyArray, m.lay, "dst", true);
      b.sizes(false);
      if (anyArray) b.count();  // the single-object vv has none
      return;
    }
    case Sig::Copy:
      b.block(ops[0].kind, true, m.lay, "src", false);
      b.block(ops[0].kind, true, m.lay2, "dst", true);
      b.sizes(anyMatrix);
      b.count();
      return;
    case Sig::Extract:
      b.block(ops[0].kind, anyArray, m.lay, "src", false);
      b.plainPointer("dst");
      b.sizes(anyMatrix);
      if (anyArray) b.count();
      return;
    case Sig::Fill:
      b.block('m', true, m.lay, "dst", true);
      b.sizes(true);
      b.count();
      return;
    case Sig::Transpose:
      b.block('m', anyArray, m.lay, "src", false);
      b.sizes(true);
      b.block('m', anyArray, m.lay, "dst", true);
      if (anyArray) b.count();
      return;
  }
}

std::vector<Member> expand() {
  std::vector<Member> out;
  for (const Row& r : kRows) {
    if (r.sig == Sig::Version) {
      Member m{"tarn" + std::string(r.family), &r, false, Layout::S, Layout::S};
      out.push_back(m);
      continue;
    }
    bool anyArray = false;
    for (auto o : parsePattern(r.pattern)) anyArray |= o.array;
    std::vector<std::pair<Layout, Layout>> lays;
    if (r.sig == Sig::Copy) {
      for (Layout a : {Layout::S, Layout::L, Layout::P})
        for (Layout b : {Layout::S, Layout::L, Layout::P}) lays.push_back({a, b});
    } else {
      lays.push_back({Layout::S, Layout::S});
      if (anyArray) lays.push_back({Layout::L, Layout::L});
      lays.push_back({Layout::P, Layout::P});
    }
    for (bool f64 : {false, true})
      for (auto [a, b] : lays) {
        Member m{};
        m.row = &r;
        m.f64 = f64;
        m.lay = a;
        m.lay2 = b;
        m.name = "tarn" + std::string(r.family) + "_" + std::string(r.pattern) + (f64 ? "_64f" : "_32f");
        if (r.sig == Sig::Copy) m.name += std::string("_") + layoutLetter(a) + layoutLetter(b);
        else m.name += layoutSuffix(a);
        m.checks = std::string(a == Layout::S ? r.checksS : a == Layout::L ? r.checksL : r.checksP);
        out.push_back(m);
      }
  }
  for (const Override& o : kOverrides) {
    auto it = std::find_if(out.begin(), out.end(), [&](const Member& m) { return m.name == o.name; });
    if (it == out.end()) {
      std::fprintf(stderr, "tarngen: override for unknown member %.*s\n", int(o.name.size()), o.name.data());
      std::exit(1);
    }
    if (!o.checks.empty()) it->checks = std::string(o.checks);
    it->serialOnly = o.serialOnly;
  }
  for (auto& m : out) {
    // Letters the validator knows; H joins with the first family that has a shape rule.
    if (m.checks.find_first_not_of("NCZTERO") != std::string::npos) {
      std::fprintf(stderr, "tarngen: %s has an unknown check letter in \"%s\"\n", m.name.c_str(), m.checks.c_str());
      std::exit(1);
    }
    buildParams(m);
  }
  std::sort(out.begin(), out.end(), [](const Member& a, const Member& b) { return a.name < b.name; });
  for (size_t i = 1; i < out.size(); ++i)
    if (out[i].name == out[i - 1].name) {
      std::fprintf(stderr, "tarngen: duplicate member %s\n", out[i].name.c_str());
      std::exit(1);
    }
  return out;
}

std::string paramList(const Member& m) {
  if (m.params.empty()) return "void";
  std::string s;
  for (size_t i = 0; i < m.params.size(); ++i)
    s += (i ? ", " : "") + m.params[i].ctype + " " + m.params[i].name;
  return s;
}

std::string returnType(const Member& m) {
  return m.row->sig == Sig::Version ? "const tarnLibraryVersion*" : "tarnStatus";
}

std::string entryName(const Member& m) { return "ownEntry_" + m.name; }

std::string_view docOf(const Member& m) {
  for (const auto& d : kDocs)
    if (d.family == m.row->family) return d.doc;
  std::fprintf(stderr, "tarngen: no doc line for family %.*s\n", int(m.row->family.size()),
               m.row->family.data());
  std::exit(1);
}

const char* estName(Est e) {
  switch (e) {
    case Est::None: return "Est::None";
    case Est::TwoCountPlusOneWH: return "Est::TwoCountPlusOneWH";
    case Est::ThreeCountWH: return "Est::ThreeCountWH";
    case Est::TwoLenCountPlusLen: return "Est::TwoLenCountPlusLen";
    case Est::TwoLenCountPlusCount: return "Est::TwoLenCountPlusCount";
    case Est::ThreeLenCount: return "Est::ThreeLenCount";
    case Est::LenCountPlusLenPlusCount: return "Est::LenCountPlusLenPlusCount";
    case Est::TwoCount: return "Est::TwoCount";
  }
  return "";
}

void writeFile(const std::string& path, const std::string& text) {
  std::ofstream f(path, std::ios::binary);
  f << text;
  if (!f) {
    std::fprintf(stderr, "tarngen: cannot write %s\n", path.c_str());
    std::exit(1);
  }
}

std::string header(const std::vector<Member>& ms) {
  std::ostringstream h;
  h << R"(/* tarn: batched kernels for small dense matrices and vectors.
 *
 * Generated from the member table by tarngen; do not edit by hand.
 * Strides and shifts are signed 32-bit byte counts. LayoutS (no suffix) takes a pointer and
 * strides, LayoutL (_L) a table of one pointer per object, LayoutP (_P) a table of one pointer
 * per element with a common object stride. */
#ifndef TARN_H
#define TARN_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Result of every member but tarnGetLibVersion: 0 on success, negative on failure. */
typedef int32_t tarnStatus;

enum {
  tarnStatusOk = 0,
  tarnStatusVectorSolveFailed = -2,
  tarnStatusBadSize = -6,
  tarnStatusNullPointer = -8,
  tarnStatusDivideByZero = -10,
  tarnStatusNotPositiveDefinite = -179,
  tarnStatusBadStride = -182,
  tarnStatusSingular = -195,
  tarnStatusBadRoiShift = -202,
  tarnStatusBadCount = -203,
  tarnStatusShapeMismatch = -204,
  tarnStatusNoConvergence = -205
};

/** The constant record returned by tarnGetLibVersion. */
typedef struct tarnLibraryVersion {
  int32_t major;         /* major version */
  int32_t minor;         /* minor version */
  int32_t majorBuild;    /* update number */
  int32_t build;         /* build number */
  char targetCpu[4];     /* processor-variant code, zero-filled */
  const char* name;      /* library and variant */
  const char* version;   /* version text */
  const char* buildDate; /* date of the build */
} tarnLibraryVersion;
)";
  std::string_view family;
  for (const auto& m : ms) {
    if (m.row->family != family) {
      family = m.row->family;
      h << "\n/** " << docOf(m) << " */\n";
    }
    h << returnType(m) << " " << m.name << "(" << paramList(m) << ");\n";
  }
  h << R"(
#ifdef __cplusplus
}
#endif

#endif /* TARN_H */
)";
  return h.str();
}

std::string stubs(const std::vector<Member>& ms) {
  std::ostringstream s;
  s << "# Generated by tarngen: one stub per export, in slot order. Each forms the address of its\n"
       "# own slot and jumps through it: arguments untouched, no stack frame, and the entry\n"
       "# returns straight to the caller.\n"
       "\t.text\n\t.hidden EntrySlotTable\n";
  for (size_t i = 0; i < ms.size(); ++i) {
    const auto& n = ms[i].name;
    s << "\t.globl " << n << "\n\t.type " << n << ", @function\n\t.p2align 4\n"
      << n << ":\n\tjmp *EntrySlotTable+" << 8 * i << "(%rip)\n"
      << "\t.size " << n << ", .-" << n << "\n";
  }
  s << "\t.section .note.GNU-stack,\"\",@progbits\n";
  return s.str();
}

std::string slots(const std::vector<Member>& ms) {
  std::ostringstream s;
  s << "// Generated by tarngen: the only place that binds a public name to its entry.\n"
       "#include <type_traits>\n\n#include \"tarn.h\"\n\n#define TARN_HIDDEN __attribute__((visibility(\"hidden\")))\n\n"
       "extern \"C\" {\n";
  for (const auto& m : ms) s << "TARN_HIDDEN " << returnType(m) << " " << entryName(m) << "(" << paramList(m) << ");\n";
  s << "\nusing tarnEntry = void (*)();\nTARN_HIDDEN tarnEntry EntrySlotTable[" << ms.size() << "] = {\n";
  for (const auto& m : ms) s << "    reinterpret_cast<tarnEntry>(&" << entryName(m) << "),\n";
  s << "};\n}\n\n// The header a caller compiles against declares exactly the bindings' types.\n";
  for (const auto& m : ms)
    s << "static_assert(std::is_same_v<decltype(" << m.name << "), decltype(" << entryName(m) << ")>);\n";
  return s.str();
}

std::string entries(const std::vector<Member>& ms) {
  std::ostringstream s;
  s << "// Generated by tarngen: one binding per export. A family's source defines TARN_IMPL_<impl>\n"
       "// before including this file and gets the bindings of its own rows.\n";
  std::map<std::string, std::vector<const Member*>> byImpl;
  for (const auto& m : ms) byImpl[std::string(m.row->impl)].push_back(&m);
  for (const auto& [impl, list] : byImpl) {
    s << "\n#ifdef TARN_IMPL_" << impl << "\n";
    for (const Member* mp : list) {
      const Member& m = *mp;
      s << "extern \"C\" TARN_HIDDEN " << returnType(m) << " " << entryName(m) << "(" << paramList(m) << ") {\n";
      if (m.row->sig == Sig::Version) {
        s << "  return " << impl << "::run();\n}\n";
        continue;
      }
      const Thr& t = m.f64 ? m.row->t64 : m.row->t32;
      const int32_t c = m.lay == Layout::S ? t.sC : m.lay == Layout::L ? t.lC : t.p;
      const int32_t g = m.lay == Layout::S ? t.sG : m.lay == Layout::L ? t.lG : t.p;
      const bool parallel = m.row->est != Est::None && !m.serialOnly;
      s << "  static constexpr Plan kPlan{\"" << m.checks << "\", " << estName(m.row->est) << ", " << c << ", " << g
        << ", " << (parallel ? "true" : "false") << "};\n";
      s << "  Call c{};\n";
      for (const auto& p : m.params) s << "  c." << p.field << " = " << p.name << ";\n";
      for (size_t i = 0; i < m.blkMask.size(); ++i)
        s << "  c.op[" << i << "].has = " << maskExpr(m.blkMask[i], kBlkBits, 4) << ";\n";
      s << "  c.nop = " << m.blkMask.size() << ";\n  c.sizes = " << maskExpr(m.sizeMask, kSizeBits, 3) << ";\n";
      if (m.hasCount) s << "  c.hasCount = true;\n";
      s << "  if (const tarnStatus s = validate(kPlan.checks, c, " << (m.f64 ? 8 : 4) << ")) return s;\n";
      s << "  return " << impl << "::run<Pat::" << (m.row->pattern.empty() ? "none" : std::string(m.row->pattern))
        << ", " << (m.f64 ? "double" : "float") << ", " << layoutEnum(m.lay);
      if (m.row->sig == Sig::Copy) s << ", " << layoutEnum(m.lay2);
      s << ">(kPlan, c);\n}\n";
    }
    s << "#endif\n";
  }
  return s.str();
}

std::string invokers(const std::vector<Member>& ms) {
  std::ostringstream s;
  s << "// Generated by tarngen: a typed call of every export from the tests' argument record.\n";
  for (const auto& m : ms) {
    if (m.row->sig == Sig::Version) continue;
    s << "{\"" << m.name << "\", [](const Args& a) -> tarnStatus { return " << m.name << "(";
    for (size_t i = 0; i < m.params.size(); ++i) {
      const auto& p = m.params[i];
      s << (i ? ", " : "") << "static_cast<" << p.ctype << ">(a." << p.field << ")";
    }
    s << "); }, \"" << m.checks << "\", " << (m.serialOnly ? "true" : "false") << ", " << m.blkMask.size() << ", {";
    for (size_t i = 0; i < m.blkMask.size(); ++i) s << (i ? ", " : "") << m.blkMask[i];
    s << "}, " << m.sizeMask << ", " << (m.hasCount ? "true" : "false") << "},\n";
  }
  return s.str();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: tarngen OUTDIR\n");
    return 2;
  }
  const std::string dir = argv[1];
  const auto ms = expand();
  writeFile(dir + "/tarn.h", header(ms));
  writeFile(dir + "/stubs.S", stubs(ms));
  writeFile(dir + "/slots.cpp", slots(ms));
  writeFile(dir + "/entries.inc", entries(ms));
  writeFile(dir + "/invoke.inc", invokers(ms));
  std::string names;
  for (const auto& m : ms) names += m.name + "\n";
  writeFile(dir + "/exports.txt", names);
  return 0;
}
