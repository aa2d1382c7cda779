// Host program: expands the member table into everything that names an export.
//
//   tarngen OUTDIR
// writes OUTDIR/tarn.h (the public header; the committed include/tarn.h must equal it),
// OUTDIR/stubs.S (one frameless jump through its own slot per export), OUTDIR/slots.cpp
// (EntrySlotTable in ascending byte order of names, and a compile-time check that every binding
// has the type the header declares), OUTDIR/entries.inc (one binding per export, sections per
// family), OUTDIR/patterns.inc (the pattern vocabulary), OUTDIR/invoke.inc (one typed call per
// export, for the tests), OUTDIR/fixed.inc (the fixed-size members' names), OUTDIR/fixed_invoke.inc
// (a typed call of each fixed-size member with its operands' sizes, for the tests) and OUTDIR/exports.txt with
// OUTDIR/exports.map, the linker's list of global symbols; and the typed bindings (bindgen.inc):
// OUTDIR/tarn.hpp, OUTDIR/pymembers.py, OUTDIR/pythunks.inc and the tests' calls through
// tarn.hpp, OUTDIR/hppcalls.inc.
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "../members.hpp"

using namespace tarn;

namespace {

[[noreturn]] void fail(const std::string& what) {
  std::fprintf(stderr, "tarngen: %s\n", what.c_str());
  std::exit(1);
}

struct Param {
  std::string ctype;  // C type in the header
  std::string name;
  std::string field;  // where it lives in Call (and in the tests' mirror of it)
  std::string role;   // the bindings' view of it: ptr obj row elem roi w h, value, size, count
  int block = -1;     // the pointer argument it belongs to, for block fields
  int opnum = 0;      // a single constant: its operand number in the pattern
};

// One pointer argument as the binding describes it to the frame.
struct Block {
  std::string name, prefix;  // pointer name; name of its strides and sizes
  char kind = 0;             // m t v c, 0 for a plain pointer
  bool out = false;
  int has = 0;               // BlkField bits
  std::string slice = "Shared";
  std::string perObj;        // Slice::ByElems: bytes per object, as an expression over the sizes
  // For the C++ and Python bindings: the slot kind, the operand number of a pattern operand,
  // the layout the block is described in and whether it holds one object per object of the call.
  std::string slot;
  int opnum = 0;
  Layout lay = Layout::S;
  bool array = false;
};

struct Member {
  std::string name;
  const Row* row = nullptr;
  int rowIndex = -1;
  const Fixed* fixed = nullptr;
  bool f64 = false;
  Layout lay = Layout::S, lay2 = Layout::S;  // lay2 only for Copy's destination
  std::vector<Param> params;
  std::vector<Block> blocks;
  int sizeMask = 0;  // SizeField bits
  bool hasCount = false;
  std::string checks;
  bool serialOnly = false;
};

// Bits of call.hpp's BlkField and SizeField.
constexpr const char* kBlkBits[] = {"kObj", "kRow", "kElem", "kRoi", "kWidth", "kHeight"};
constexpr const char* kSizeBits[] = {"kSizeWidth", "kSizeHeight", "kSizeLen", "kSizeOrder"};

std::string maskExpr(int mask, const char* const* names, int bits) {
  std::string s;
  for (int b = 0; b < bits; ++b)
    if (mask & (1 << b)) s += (s.empty() ? "" : "|") + std::string(names[b]);
  return s.empty() ? "0" : s;
}

struct Opnd {
  char kind;  // m t v c
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

bool anyArrayIn(std::string_view p) {
  for (auto o : parsePattern(p))
    if (o.array) return true;
  return false;
}

std::vector<std::string> words(std::string_view s) {
  std::vector<std::string> out;
  std::istringstream in{std::string(s)};
  for (std::string w; in >> w;) out.push_back(w);
  return out;
}

const char* layoutSuffix(Layout l) { return l == Layout::S ? "" : l == Layout::L ? "_L" : "_P"; }
const char* layoutLetter(Layout l) { return l == Layout::S ? "S" : l == Layout::L ? "L" : "P"; }
const char* layoutEnum(Layout l) { return l == Layout::S ? "Layout::S" : l == Layout::L ? "Layout::L" : "Layout::P"; }

// ---- Argument lists --------------------------------------------------------------------------

class Builder {
 public:
  explicit Builder(Member& m) : m_(m), t_(m.f64 ? "double" : "float"), esize_(m.f64 ? "8" : "4") {}

  void token(const std::string& tok) {
    const auto colon = tok.find(':');
    if (colon == std::string::npos) return size(tok);
    std::string name = tok.substr(0, colon), prefix = name;
    const std::string slot = tok.substr(colon + 1);
    if (const auto slash = name.find('/'); slash != std::string::npos) {
      prefix = name.substr(slash + 1);
      name = name.substr(0, slash);
    }
    const auto ops = parsePattern(m_.row->pattern);
    const bool anyArray = anyArrayIn(m_.row->pattern);
    if (slot.rfind("op", 0) == 0) {
      const size_t i = size_t(std::atoi(slot.c_str() + 2));
      if (i < 1 || i > ops.size()) fail(m_.name + ": no operand " + slot);
      const Opnd o = ops[i - 1];
      if (o.kind == 'c' && !o.array) return scalar(name, int(i));
      block(name, prefix, o.kind, o.array, m_.lay, false);
      m_.blocks.back().slot = "op";
      m_.blocks.back().opnum = int(i);
      return;
    }
    if (slot == "mat" || slot == "vec") {
      block(name, prefix, slot == "mat" ? 'm' : 'v', anyArray, m_.row->forms == Forms::CopyPairs ? m_.lay2 : m_.lay, true);
      m_.blocks.back().slot = slot;
      return;
    }
    if (slot == "vsrc") {
      block(name, prefix, 'v', anyArray, m_.lay, false);
      m_.blocks.back().slot = slot;
      return;
    }
    if (slot == "value") return scalar(name);
    const bool firstIsArray = !ops.empty() && ops[0].array;
    plainSlot_ = slot;
    if (slot == "scalar") return plain(name, t_ + "*", true, anyArray ? esize_ : "");
    if (slot == "values") return plain(name, t_ + "*", true, anyArray ? esize_ + "*widthHeight" : "");
    if (slot == "pivot") return plain(name, "int32_t*", true, firstIsArray ? "4*widthHeight" : "");
    if (slot == "pivotin") return plain(name, "const int32_t*", false, firstIsArray ? "4*widthHeight" : "");
    if (slot == "buffer") return plain(name, t_ + "*", true, "", "Scratch");
    if (slot == "plain") {  // never sliced, but one object's elements per object of the call
      plain(name, t_ + "*", true, "");
      m_.blocks.back().array = anyArray;
      return;
    }
    if (slot == "size") return plain(name, "int32_t*", true, "");
    fail(m_.name + ": unknown slot " + tok);
  }

 private:
  int addBlock(Block b) {
    m_.blocks.push_back(std::move(b));
    return int(m_.blocks.size()) - 1;
  }

  // One operand block in the form its layout gives it.
  void block(const std::string& name, const std::string& prefix, char kind, bool array, Layout lay, bool write) {
    if (lay == Layout::L && !array) lay = Layout::S;  // a single operand of a LayoutL member is strided
    Block b{name, prefix, kind, write};
    const int i = int(m_.blocks.size());
    const std::string op = "op[" + std::to_string(i) + "]";
    const std::string cq = write ? "" : "const ";
    b.lay = lay;
    b.array = array;
    auto add = [&](const std::string& ctype, const std::string& pname, const char* field, int bit) {
      m_.params.push_back({ctype, pname, op + "." + field, field, i});
      b.has |= bit;
    };
    if (kind == 'c') {  // an array of constants; a single constant is passed by value
      if (lay == Layout::L) {
        add(cq + t_ + "* const*", name, "ptr", 0);
        add("int32_t", prefix + "RoiShift", "roi", 8);
        b.slice = "ByTable";
      } else {
        add(cq + t_ + "*", name, "ptr", 0);
        add("int32_t", prefix + "ObjStride", "obj", 1);
        b.slice = "ByObjStride";
      }
    } else {
      const bool matrix = kind == 'm' || kind == 't';
      const bool table = lay == Layout::P || lay == Layout::L;
      add(cq + t_ + (table ? "* const*" : "*"), name, "ptr", 0);
      if (lay == Layout::P) {
        add("int32_t", prefix + "RoiShift", "roi", 8);
        if (array) add("int32_t", prefix + "ObjStride", "obj", 1);
        if (array) b.slice = "ByRoi";
      } else {
        if (lay == Layout::L) add("int32_t", prefix + "RoiShift", "roi", 8);
        if (array && lay == Layout::S) add("int32_t", prefix + "ObjStride", "obj", 1);
        if (matrix) add("int32_t", prefix + "RowStride", "row", 2);
        add("int32_t", prefix + "ElemStride", "elem", 4);
        if (array) b.slice = lay == Layout::S ? "ByObjStride" : "ByTable";
      }
    }
    addBlock(std::move(b));
  }

  void plain(const std::string& name, const std::string& ctype, bool write, const std::string& perObj,
             const char* slice = nullptr) {
    const int i = int(m_.blocks.size());
    m_.params.push_back({ctype, name, "op[" + std::to_string(i) + "].ptr", "ptr", i});
    Block b{name, name, 0, write};
    b.perObj = perObj;
    b.slot = plainSlot_;
    b.array = !perObj.empty();
    b.slice = slice ? slice : perObj.empty() ? "Shared" : "ByElems";
    addBlock(std::move(b));
  }

  void scalar(const std::string& name, int opnum = 0) {
    if (scalars_ == 2) fail(m_.name + ": more than two scalars");
    m_.params.push_back({t_, name, "val[" + std::to_string(scalars_++) + "]", "value", -1, opnum});
  }

  void size(const std::string& s) {
    struct Global {
      const char* name;
      const char* field;
      int bit;
    };
    const Global globals[] = {{"width", "width", 1}, {"height", "height", 2}, {"len", "len", 4}, {"widthHeight", "order", 8}};
    if (s == "count") {
      if (!anyArrayIn(m_.row->pattern)) return;  // single-object members have no count
      m_.params.push_back({"int32_t", "count", "count", "count"});
      m_.hasCount = true;
      return;
    }
    for (const Global& g : globals)
      if (s == g.name) {
        m_.params.push_back({"int32_t", s, g.field, "size"});
        m_.sizeMask |= g.bit;
        return;
      }
    for (size_t i = 0; i < m_.blocks.size(); ++i) {
      Block& b = m_.blocks[i];
      const std::string op = "op[" + std::to_string(i) + "].";
      if (s == b.prefix + "Width" || s == b.prefix + "Len") {
        m_.params.push_back({"int32_t", s, op + "w", "size", int(i)});
        b.has |= 16;
        return;
      }
      if (s == b.prefix + "Height") {
        m_.params.push_back({"int32_t", s, op + "h", "size", int(i)});
        b.has |= 32;
        return;
      }
    }
    fail(m_.name + ": unknown argument " + s);
  }

  Member& m_;
  std::string t_, esize_, plainSlot_;
  int scalars_ = 0;
};

void buildParams(Member& m) {
  if (m.row->forms == Forms::Version) return;
  Builder b(m);
  for (const auto& tok : words(m.row->args)) b.token(tok);
  if (m.blocks.size() > size_t(kMaxBlocks)) fail(m.name + ": too many pointer arguments");
}

// ---- Expressions over the size arguments -------------------------------------------------------

// The C++ for an estimate or a size expression: every size a uint32_t, so the arithmetic wraps
// as 32-bit integers do, and the result taken back as signed.
std::string sizeExpr(const Member& m, const std::string& text) {
  std::map<std::string, std::string> fields = {{"esize", m.f64 ? "8" : "4"}};
  for (const auto& p : m.params)
    if (p.ctype == "int32_t") fields[p.name] = "c." + p.field;
  std::string out;
  int depth = 0;
  for (size_t i = 0; i < text.size();) {
    const char ch = text[i];
    if (std::isspace(static_cast<unsigned char>(ch))) {
      ++i;
    } else if (std::isalpha(static_cast<unsigned char>(ch))) {
      size_t j = i;
      while (j < text.size() && std::isalnum(static_cast<unsigned char>(text[j]))) ++j;
      const std::string id = text.substr(i, j - i);
      const auto it = fields.find(id);
      if (it == fields.end() || id.find("Stride") != std::string::npos || id.find("Shift") != std::string::npos)
        fail(m.name + ": the expression \"" + text + "\" names " + id + ", which is not a size of this member");
      out += "uint32_t(" + it->second + ")";
      i = j;
    } else if (std::isdigit(static_cast<unsigned char>(ch))) {
      size_t j = i;
      while (j < text.size() && std::isdigit(static_cast<unsigned char>(text[j]))) ++j;
      out += text.substr(i, j - i) + "u";
      i = j;
    } else if (ch == '+' || ch == '*' || ch == '(' || ch == ')') {
      depth += ch == '(' ? 1 : ch == ')' ? -1 : 0;
      if (depth < 0) fail(m.name + ": unbalanced \"" + text + "\"");
      out += std::string(" ") + ch + " ";
      ++i;
    } else {
      fail(m.name + ": unexpected '" + std::string(1, ch) + "' in \"" + text + "\"");
    }
  }
  if (depth != 0) fail(m.name + ": unbalanced \"" + text + "\"");
  return "int32_t(" + out + ")";
}

// Elements touched by a product: every source operand, an array's count times, and the result
// count times. A stored operand has its width times height elements, a vector its length, an
// array of constants one per object. The result has the rows of the left factor as seen and the
// columns of the right one.
std::string touched(const Member& m) {
  std::string e;
  const Block *left = nullptr, *right = nullptr;
  for (size_t i = 0; i < m.blocks.size(); ++i) {
    const Block& b = m.blocks[i];
    if (b.out || b.kind == 0) continue;
    const bool array = b.slice != "Shared";
    const std::string elems = b.kind == 'c' ? "1" : b.kind == 'v' ? b.prefix + "Len" : b.prefix + "Width*" + b.prefix + "Height";
    e += (e.empty() ? "" : "+") + elems + (array ? "*count" : "");
    if (!left) left = &b;
    else if (!right) right = &b;
  }
  if (!left || !right) fail(m.name + ": touched needs two factors");
  const std::string rows = left->kind == 't' ? left->prefix + "Width" : left->prefix + "Height";
  const std::string cols = right->kind == 'v' ? "1" : right->kind == 't' ? right->prefix + "Height" : right->prefix + "Width";
  return e + "+" + rows + "*" + cols + (m.hasCount ? "*count" : "");
}

// ---- Expansion -------------------------------------------------------------------------------

std::string familyOfName(const std::string& name) { return name.substr(4, name.find('_') - 4); }

std::vector<Member> expand() {
  std::vector<Member> out;
  int index = 0;
  for (const Row& r : kRows) {
    const int rowIndex = index++;
    if (r.forms == Forms::Version) {
      Member m;
      m.name = "tarn" + std::string(r.family);
      m.row = &r;
      m.rowIndex = rowIndex;
      out.push_back(m);
      continue;
    }
    std::vector<std::pair<Layout, Layout>> lays;
    std::vector<bool> types = {false, true};
    if (r.forms == Forms::CopyPairs) {
      for (Layout a : {Layout::S, Layout::L, Layout::P})
        for (Layout b : {Layout::S, Layout::L, Layout::P}) lays.push_back({a, b});
    } else if (r.forms == Forms::Float32S || r.pattern.empty()) {
      lays.push_back({Layout::S, Layout::S});
      if (r.forms == Forms::Float32S) types = {false};
    } else {
      lays.push_back({Layout::S, Layout::S});
      if (anyArrayIn(r.pattern)) lays.push_back({Layout::L, Layout::L});
      lays.push_back({Layout::P, Layout::P});
    }
    for (bool f64 : types)
      for (auto [a, b] : lays) {
        Member m;
        m.row = &r;
        m.rowIndex = rowIndex;
        m.f64 = f64;
        m.lay = a;
        m.lay2 = b;
        m.name = "tarn" + std::string(r.family) + (r.pattern.empty() ? "" : "_" + std::string(r.pattern)) +
                 (f64 ? "_64f" : "_32f");
        if (r.forms == Forms::CopyPairs) m.name += std::string("_") + layoutLetter(a) + layoutLetter(b);
        else m.name += layoutSuffix(a);
        m.checks = std::string(a == Layout::S ? r.checksS : a == Layout::L ? r.checksL : r.checksP);
        out.push_back(m);
      }
  }
  for (const Fixed& f : kFixed) {
    Member m;
    m.name = std::string(f.name);
    m.fixed = &f;
    out.push_back(m);
  }
  for (const Override& o : kOverrides) {
    auto it = std::find_if(out.begin(), out.end(), [&](const Member& m) { return m.name == o.name; });
    if (it == out.end()) fail("override for unknown member " + std::string(o.name));
    if (!o.checks.empty()) it->checks = std::string(o.checks);
    it->serialOnly = o.serialOnly;
  }
  for (auto& m : out) {
    if (m.fixed) continue;
    for (size_t i = 0; i < m.checks.size(); ++i) {
      const char ch = m.checks[i];
      const bool scope = (ch == 's' || ch == 'd') && i > 0 && std::isupper(static_cast<unsigned char>(m.checks[i - 1]));
      if (std::string_view("NCZHTEOR").find(ch) == std::string_view::npos && !scope)
        fail(m.name + " has an unknown check letter in \"" + m.checks + "\"");
    }
    if ((m.checks.find('H') != std::string::npos) != (m.row->rule != Rule::None))
      fail(m.name + ": a shape rule and the letter H go together");
    buildParams(m);
  }
  std::sort(out.begin(), out.end(), [](const Member& a, const Member& b) { return a.name < b.name; });
  for (size_t i = 1; i < out.size(); ++i)
    if (out[i].name == out[i - 1].name) fail("duplicate member " + out[i].name);
  return out;
}

// ---- Emitters --------------------------------------------------------------------------------

std::string paramList(const Member& m) {
  if (m.fixed) return std::string(m.fixed->params);
  if (m.params.empty()) return "void";
  std::string s;
  for (size_t i = 0; i < m.params.size(); ++i) s += (i ? ", " : "") + m.params[i].ctype + " " + m.params[i].name;
  return s;
}

// The parameter names of a fixed member's C list, to forward them.
std::string forwardedNames(const Member& m) {
  std::string s;
  std::istringstream in{std::string(m.fixed->params)};
  for (std::string piece; std::getline(in, piece, ',');) {
    size_t end = piece.find_last_not_of(" ");
    size_t start = end;
    while (start > 0 && (std::isalnum(static_cast<unsigned char>(piece[start - 1])) || piece[start - 1] == '_')) --start;
    s += (s.empty() ? "" : ", ") + piece.substr(start, end - start + 1);
  }
  return s;
}

bool isVersion(const Member& m) { return m.row && m.row->forms == Forms::Version; }

std::string returnType(const Member& m) { return isVersion(m) ? "const tarnLibraryVersion*" : "tarnStatus"; }

std::string entryName(const Member& m) { return "ownEntry_" + m.name; }

std::string_view docOf(const std::string& family) {
  for (const auto& d : kDocs)
    if (d.family == family) return d.doc;
  fail("no doc line for family " + family);
}

void writeFile(const std::string& path, const std::string& text) {
  std::ofstream f(path, std::ios::binary);
  f << text;
  if (!f) fail("cannot write " + path);
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
  std::string family;
  for (const auto& m : ms) {
    const std::string f = isVersion(m) ? std::string(m.row->family) : familyOfName(m.name);
    if (f != family) {
      family = f;
      h << "\n/** " << docOf(f) << " */\n";
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

void binding(std::ostream& s, const Member& m, const std::string& impl) {
  s << "extern \"C\" TARN_HIDDEN " << returnType(m) << " " << entryName(m) << "(" << paramList(m) << ") {\n";
  if (m.fixed) {
    s << "  return " << impl << "::" << m.fixed->fn << "(" << forwardedNames(m) << ");\n}\n";
    return;
  }
  if (isVersion(m)) {
    s << "  return " << impl << "::run();\n}\n";
    return;
  }
  const Row& r = *m.row;
  s << "  static constexpr Plan kPlan = planOf(kRows[" << m.rowIndex << "], " << (m.f64 ? "true" : "false") << ", "
    << layoutEnum(m.lay) << ", \"" << m.checks << "\", \"" << m.name << "\");\n";
  s << "  Call c;\n";
  for (size_t i = 0; i < m.blocks.size(); ++i) {
    const Block& b = m.blocks[i];
    const std::string op = "  c.op[" + std::to_string(i) + "].";
    s << op << "has = " << maskExpr(b.has, kBlkBits, 6) << ";\n"
      << op << "kind = " << (b.kind ? "'" + std::string(1, b.kind) + "'" : std::string("0")) << ";\n"
      << op << "out = " << (b.out ? "true" : "false") << ";\n"
      << op << "slice = Slice::" << b.slice << ";\n";
  }
  for (const auto& p : m.params) s << "  c." << p.field << " = " << p.name << ";\n";
  s << "  c.nop = " << m.blocks.size() << ";\n  c.sizes = " << maskExpr(m.sizeMask, kSizeBits, 4) << ";\n"
    << "  c.hasCount = " << (m.hasCount ? "true" : "false") << ";\n";
  if (!m.hasCount) s << "  c.count = 1;\n";
  s << "  if (const tarnStatus s = validate(kPlan.checks, Rule::" << (r.rule == Rule::Product ? "Product" : r.rule == Rule::Tall ? "Tall" : "None")
    << ", c, " << (m.f64 ? 8 : 4) << ")) return s;\n";
  const std::string est = r.est == "touched" ? touched(m) : std::string(r.est);
  s << "  c.est = " << (est.empty() ? "0" : sizeExpr(m, est)) << ";\n";
  s << "  c.scratch = " << (r.scratch.empty() ? "0" : sizeExpr(m, std::string(r.scratch))) << ";\n";
  for (size_t i = 0; i < m.blocks.size(); ++i)
    if (!m.blocks[i].perObj.empty()) s << "  c.op[" << i << "].perObj = " << sizeExpr(m, m.blocks[i].perObj) << ";\n";
  s << "  return " << impl << "::run<Pat::" << (r.pattern.empty() ? "none" : std::string(r.pattern)) << ", "
    << (m.f64 ? "double" : "float") << ", " << layoutEnum(m.lay);
  if (r.forms == Forms::CopyPairs) s << ", " << layoutEnum(m.lay2);
  s << ">(kPlan, c);\n}\n";
}

std::string entries(const std::vector<Member>& ms) {
  std::ostringstream s;
  s << "// Generated by tarngen: one binding per export. A family's source defines TARN_IMPL_<impl>\n"
       "// before including this file and gets the bindings of its own rows.\n";
  std::map<std::string, std::vector<const Member*>> byImpl;
  for (const auto& m : ms) byImpl[std::string(m.fixed ? m.fixed->impl : m.row->impl)].push_back(&m);
  for (const auto& [impl, list] : byImpl) {
    s << "\n#ifdef TARN_IMPL_" << impl << "\n";
    for (const Member* mp : list) binding(s, *mp, impl);
    s << "#endif\n";
  }
  return s.str();
}

std::string patterns() {
  std::set<std::string> ps;
  for (const Row& r : kRows) ps.insert(std::string(r.pattern));
  std::ostringstream s;
  s << "// Generated by tarngen: every pattern of the member table.\n";
  for (const auto& p : ps) s << "TARN_PATTERN(" << (p.empty() ? "none" : p) << ", \"" << p << "\")\n";
  return s.str();
}

std::string invokers(const std::vector<Member>& ms) {
  std::ostringstream s;
  s << "// Generated by tarngen: a typed call of every export from the tests' argument record.\n";
  for (const auto& m : ms) {
    if (isVersion(m) || m.fixed) continue;
    s << "{\"" << m.name << "\", [](const Args& a) -> tarnStatus { return " << m.name << "(";
    for (size_t i = 0; i < m.params.size(); ++i) {
      const auto& p = m.params[i];
      s << (i ? ", " : "") << "static_cast<" << p.ctype << ">(a." << p.field << ")";
    }
    s << "); }, \"" << m.checks << "\", " << (m.serialOnly ? "true" : "false") << ", " << m.blocks.size() << ", {";
    for (size_t i = 0; i < m.blocks.size(); ++i) {
      const Block& b = m.blocks[i];
      s << (i ? ", " : "") << "{" << b.has << ", " << (b.kind ? "'" + std::string(1, b.kind) + "'" : std::string("0"))
        << ", " << (b.out ? "true" : "false") << ", " << (b.slice == "Shared" || b.slice == "Scratch" ? "false" : "true") << "}";
    }
    s << "}, " << m.sizeMask << ", " << (m.hasCount ? "true" : "false") << "},\n";
  }
  return s.str();
}

// A typed call of every fixed-size member from the tests' FixedArgs: float pointers take the
// record's distinct areas in order, an int32_t pointer its integer area, floats its value,
// strides and count its own fields.
std::string fixedNames(const std::vector<Member>& ms) {
  std::ostringstream s;
  s << "// Generated by tarngen: the fixed-size members, outside the operand model.\n";
  for (const auto& m : ms)
    if (m.fixed) s << "\"" << m.name << "\",\n";
  return s.str();
}

#include "bindgen.inc"

// A typed call of every fixed-size member from the tests' FixedArgs, with what a test needs to
// place its operands: the floats of one object behind each float pointer, the pointers it
// writes, and the pointers that are arrays of `count` objects a byte stride apart.
std::string fixedInvokers(const std::vector<Member>& ms) {
  std::ostringstream s;
  s << "// Generated by tarngen: a typed call of every fixed-size member from the tests' FixedArgs,\n"
       "// the floats of one object behind each float pointer, the pointers it writes, its arrays and\n"
       "// whether it writes an int32_t.\n";
  for (const auto& m : ms) {
    if (!m.fixed) continue;
    std::string args, lens;
    std::map<std::string, int> index;  // float pointer name -> its place among the float pointers
    int floats = 0, strides = 0;
    unsigned out = 0, array = 0;
    bool ints = false;
    for (const FixedParam& p : fixedParams(m)) {
      std::string arg;
      if (p.kind == 'i' || p.kind == 'o') {
        int n = 1;
        for (const auto& d : p.dims) n *= std::stoi(d);
        if (p.kind == 'o') out |= 1u << floats;
        lens += (floats ? ", " : "") + std::to_string(n);
        index[p.name] = floats;
        arg = "a.floats[" + std::to_string(floats++) + "]";
      } else if (p.kind == 'r') {
        arg = "a.ints";
        ints = true;
      } else if (p.kind == 'f') {
        arg = "a.value";
      } else if (p.kind == 'c') {
        arg = "a.count";
      } else {
        if (!index.count(p.of)) fail(m.name + ": " + p.name + " follows no pointer of that name");
        array |= 1u << index[p.of];
        arg = "a.strides[" + std::to_string(strides++) + "]";
      }
      args += (args.empty() ? "" : ", ") + arg;
    }
    if (floats > 8) fail(m.name + ": more float pointers than FixedArgs has");
    if (strides > 2) fail(m.name + ": more strides than FixedArgs has");
    s << "{\"" << m.name << "\", [](const FixedArgs& a) -> tarnStatus { return " << m.name << "(" << args
      << "); }, {" << lens << "}, " << out << ", " << array << ", " << (ints ? "true" : "false") << "},\n";
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
  writeFile(dir + "/patterns.inc", patterns());
  writeFile(dir + "/invoke.inc", invokers(ms));
  writeFile(dir + "/fixed.inc", fixedNames(ms));
  writeFile(dir + "/fixed_invoke.inc", fixedInvokers(ms));
  writeFile(dir + "/tarn.hpp", hppHeader(ms,
#include "hpp_prologue.inc"
                                         ));
  writeFile(dir + "/pymembers.py", pyMembers(ms));
  writeFile(dir + "/pythunks.inc", pyThunks(ms));
  writeFile(dir + "/hppcalls.inc", hppCalls(ms));
  writeFile(dir + "/hppfixed.inc", hppFixedCalls(ms));
  std::string names;
  for (const auto& m : ms) names += m.name + "\n";
  writeFile(dir + "/exports.txt", names);
  // Only the exports are global in the shared object, whatever else the compiler or the
  // runtime's pragmas make global (the critical section's lock, for one).
  std::string map = "{\n  global:\n";
  for (const auto& m : ms) map += "    " + m.name + ";\n";
  writeFile(dir + "/exports.map", map + "  local: *;\n};\n");
  return 0;
}
