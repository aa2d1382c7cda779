// The exported surface as data.
//
// One row per family pattern. The generator (gen/tarngen.cpp) expands every row over the two
// element types and the layouts the pattern exists in, sorts the names by bytes and writes the
// public header, the assembly stubs, EntrySlotTable and one binding per export. A member that
// departs from its row gets an override keyed by its full name, never a special case in code.
// Fixed-size members, outside the operand model, have a table of their own with their C
// parameter lists.
//
// Argument lists. `args` names every argument in order; a token is `name:slot` or a size:
//   name:opN     operand N of the pattern as its block in the member's layout (a single operand
//                of a LayoutL member in LayoutS form); a single constant is a scalar by value
//   name:mat     the result block, a matrix, an array when any operand is one
//   name:vec     the same, a vector
//   name:vsrc    a vector source shaped like the result (an array when any operand is one)
//   name:value   a scalar of the element type by value, outside the pattern
//   name:scalar  plain pointer to one result element per object
//   name:values  plain pointer to widthHeight result elements per object
//   name:pivot   plain int32_t pointer to widthHeight row numbers per object of operand 1,
//                written (pivotin: read)
//   name:buffer  the caller's work space; on the parallel path each thread gets its own
//   name:plain   a plain pointer of the element type, written, never sliced
//   name:size    a plain int32_t pointer to one result
//   width height len widthHeight count   sizes of the call (count only where an operand is an
//                array); <block>Width <block>Height <block>Len: an operand's own sizes
// A block's strides are named after it; `dstVectorsRight/dstRight:mat` names the pointer
// dstVectorsRight and its strides dstRightRowStride and so on.
//
// Check letters run left to right; the first failing one decides the status:
//   N null pointer   C count < 1   Z size < 1   H the row's shape rule
//   T every stride of the call (object, row, element, valObjStride)
//   E row and element strides only       O object strides only, and only when count > 1
//   R every roiShift
// A letter followed by `s` covers the blocks the member reads only, by `d` those it writes.
//
// Work estimate E: an expression over the size arguments (+, *, parentheses, integers), formed
// in wrapping 32-bit arithmetic, or `touched`: the elements of every operand, an array's count
// times, and count times the result's. Scratch: bytes of per-thread work space, an expression
// over the sizes and `esize`.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarn {

enum class Layout : uint8_t { S, L, P };

// The most pointer arguments a member has (the general eigenvectors: a source, two groups of
// vectors, two of values and the scratch).
inline constexpr int kMaxBlocks = 6;

// The shape rule of check H.
enum class Rule : uint8_t {
  None,
  Product,  // inner dimensions of the two factors agree; a third source (Gaxpy) has the result's length
  Tall,     // width <= height
};

// Which types and layouts a row exists in.
enum class Forms : uint8_t {
  Standard,   // 32f and 64f; LayoutS and LayoutP, and LayoutL when an operand is an array
  CopyPairs,  // 32f and 64f, all nine pairs of source and destination layout
  Float32S,   // 32f in LayoutS only, no suffix
  Version,    // tarnGetLibVersion: no arguments, returns the version record
};

// The smallest E that goes to the parallel wrapper, per path.
struct Thr {
  int32_t sC = 0, sG = 0;  // LayoutS contiguous / general
  int32_t lC = 0, lG = 0;  // LayoutL contiguous / general
  int32_t p = 0;           // LayoutP
};

constexpr Thr thr(int32_t s, int32_t l, int32_t p) { return {s, s, l, l, p}; }

struct Row {
  std::string_view family = {};
  std::string_view pattern = {};
  std::string_view impl = {};  // C++ namespace holding run<>() for this row
  std::string_view args = {};
  std::string_view checksS = {}, checksL = {}, checksP = {};
  std::string_view est = {};  // empty: no estimate, never a wrapper
  Thr t32{}, t64{};
  Rule rule = Rule::None;
  bool canFail = false;        // workers return statuses; the wrapper merges them
  std::string_view scratch = {};
  Forms forms = Forms::Standard;
};

// A fixed-size member: its whole C parameter list, and the C++ function that implements it,
// which other members call directly.
struct Fixed {
  std::string_view name;
  std::string_view params;
  std::string_view impl;  // namespace whose source holds the binding
  std::string_view fn;    // function in that namespace
};

// What each family computes, for the header's doc comments.
struct FamilyDoc {
  std::string_view family, doc;
};

struct Override {
  std::string_view name;
  std::string_view checks{};  // replaces the row's sequence when not empty
  bool serialOnly = false;    // the estimate is computed, the wrapper never runs
};

// What a binding hands to its family: the row resolved for one export.
struct Plan {
  const char* checks;
  int32_t thrC, thrG;  // equal where the path has one threshold
  bool parallel;
  bool canFail;
};

constexpr const Override* overrideOf(std::string_view name);

// The plan of one export, derived at compile time from its row.
constexpr Plan planOf(const Row& r, bool f64, Layout lay, const char* checks, std::string_view name) {
  const Thr& t = f64 ? r.t64 : r.t32;
  const Override* o = overrideOf(name);
  const bool serialOnly = o && o->serialOnly;
  return {checks, lay == Layout::S ? t.sC : lay == Layout::L ? t.lC : t.p,
          lay == Layout::S ? t.sG : lay == Layout::L ? t.lG : t.p, !r.est.empty() && !serialOnly, r.canFail};
}

// ---- Argument templates shared by rows ---------------------------------------------------------

inline constexpr std::string_view
    kArgs2M = "src1:op1 src2:op2 dst:mat width height count",
    kArgs2V = "src1:op1 src2:op2 dst:vec len count",
    kArgsVC = "src:op1 val:op2 dst:vec len count",  // a vector and its constant
    kArgsCV = "src:op2 val:op1 dst:vec len count",  // the same list with the constant first in the pattern
    kArgsSaxpy = "src1:op1 val:value src2:op2 dst:vec len count",
    kArgsLComb = "src1:op1 val1:value src2:op2 val2:value dst:vec len count",
    kArgsCopyM = "src:op1 dst:mat width height count",
    kArgsCopyV = "src:op1 dst:vec len count",
    kArgsExtractM = "src:op1 dst:plain width height count",
    kArgsExtractV = "src:op1 dst:plain len count",
    kArgsFill = "dst:mat width height count",
    kArgsTranspose = "src:op1 width height dst:mat count",
    kArgsMulMM = "src1:op1 src1Width src1Height src2:op2 src2Width src2Height dst:mat count",
    kArgsMulMV = "src1:op1 src1Width src1Height src2:op2 src2Len dst:vec count",
    kArgsGaxpy = "src1:op1 src1Width src1Height src2:op2 src2Len src3:vsrc src3Len dst:vec count",
    kArgsGaxpyV = "src1:op1 src1Width src1Height src2:op2 src2Len src3:op3 src3Len dst:vec count",
    kArgsMulC = "src:op1 val:op2 dst:mat width height count";

inline constexpr int32_t kElemMatS = 36864, kElemMatG = 18432, kElemMatP = 9216;
inline constexpr Thr kElemMat{kElemMatS, kElemMatG, kElemMatG, kElemMatG, kElemMatP};
inline constexpr Thr kElemVec32 = thr(20001, 40001, 20001), kElemVec64 = thr(20001, 20001, 20001);
inline constexpr Thr kSaxpy = thr(40001, 40001, 40001);
inline constexpr Thr kLComb32{20001, 20001, 40001, 20001, 20001}, kLComb64 = thr(20001, 20001, 20001);
inline constexpr Thr kMul{36865, 18433, 18433, 18433, 9217};

// clang-format off
inline constexpr Row kRows[] = {
  {.family = "GetLibVersion", .impl = "version", .forms = Forms::Version},

  // Add: element-wise sums. Matrix arrays choose their threshold after the contiguity test,
  // vector arrays test E first against one threshold; both end the same way here.
  {"Add", "mm", "add", kArgs2M, "NZT", "", "NZR"},
  {"Add", "tm", "add", kArgs2M, "NZT", "", "NZR"},
  {"Add", "tt", "add", kArgs2M, "NZT", "", "NZR"},
  {"Add", "vv", "add", kArgs2V, "NZT", "", "NZR"},
  {"Add", "vc", "add", kArgsVC, "NZT", "", "NZR"},
  {"Add", "mam", "add", kArgs2M, "NCTZ", "NCZTR", "NCZTR", "(2*count+1)*width*height", kElemMat, kElemMat},
  {"Add", "tam", "add", kArgs2M, "NCZT", "NCZTR", "NCZTR", "(2*count+1)*width*height", kElemMat, kElemMat},
  {"Add", "mat", "add", kArgs2M, "NCZT", "NCZTR", "NCZTR", "(2*count+1)*width*height", kElemMat, kElemMat},
  {"Add", "tat", "add", kArgs2M, "NCZT", "NCZTR", "NCZTR", "(2*count+1)*width*height", kElemMat, kElemMat},
  {"Add", "mama", "add", kArgs2M, "NCZT", "NCZTR", "NCZTR", "3*count*width*height", kElemMat, kElemMat},
  {"Add", "tama", "add", kArgs2M, "NCZT", "NCZTR", "NCZTR", "3*count*width*height", kElemMat, kElemMat},
  {"Add", "tata", "add", kArgs2M, "NCZT", "NCZTR", "NCZTR", "3*count*width*height", kElemMat, kElemMat},
  {"Add", "vav", "add", kArgs2V, "NZTC", "NZTRC", "NZTCR", "2*len*count+len", kElemVec32, kElemVec64},
  {"Add", "vava", "add", kArgs2V, "NCZT", "NCZTR", "NCZTR", "3*len*count", kElemVec32, kElemVec64},
  {"Add", "vac", "add", kArgsVC, "NCZT", "NCZTR", "NCZTR", "2*len*count+len", kElemVec32, kElemVec64},
  {"Add", "vca", "add", kArgsVC, "NCZT", "NCZTR", "NCZTR", "len*count+len+count", kElemVec32, kElemVec64},
  {"Add", "vaca", "add", kArgsVC, "NCZT", "NCZTR", "NCZTR", "2*len*count+count", kElemVec32, kElemVec64},

  // Sub: element-wise differences, the minuend first in the pattern. Add's rows plus the forms
  // addition leaves out; the constant-first forms share the argument list of their twins.
  {"Sub", "mm", "sub", kArgs2M, "NZT", "", "NZR"},
  {"Sub", "mt", "sub", kArgs2M, "NZT", "", "NZR"},
  {"Sub", "tm", "sub", kArgs2M, "NZT", "", "NZR"},
  {"Sub", "tt", "sub", kArgs2M, "NZT", "", "NZR"},
  {"Sub", "vv", "sub", kArgs2V, "NZT", "", "NZR"},
  {"Sub", "vc", "sub", kArgsVC, "NZT", "", "NZR"},
  {"Sub", "cv", "sub", kArgsCV, "NZT", "", "NZR"},
  {"Sub", "mam", "sub", kArgs2M, "NCTZ", "NCZTR", "NCZTR", "(2*count+1)*width*height", kElemMat, kElemMat},
  {"Sub", "tam", "sub", kArgs2M, "NCZT", "NCZTR", "NCZTR", "(2*count+1)*width*height", kElemMat, kElemMat},
  {"Sub", "mat", "sub", kArgs2M, "NCZT", "NCZTR", "NCZTR", "(2*count+1)*width*height", kElemMat, kElemMat},
  {"Sub", "tat", "sub", kArgs2M, "NCZT", "NCZTR", "NCZTR", "(2*count+1)*width*height", kElemMat, kElemMat},
  {"Sub", "mma", "sub", kArgs2M, "NCTZ", "NCZTR", "NCZTR", "(2*count+1)*width*height", kElemMat, kElemMat},
  {"Sub", "mta", "sub", kArgs2M, "NCZT", "NCZTR", "NCZTR", "(2*count+1)*width*height", kElemMat, kElemMat},
  {"Sub", "tma", "sub", kArgs2M, "NCZT", "NCZTR", "NCZTR", "(2*count+1)*width*height", kElemMat, kElemMat},
  {"Sub", "tta", "sub", kArgs2M, "NCZT", "NCZTR", "NCZTR", "(2*count+1)*width*height", kElemMat, kElemMat},
  {"Sub", "mama", "sub", kArgs2M, "NCZT", "NCZTR", "NCZTR", "3*count*width*height", kElemMat, kElemMat},
  {"Sub", "mata", "sub", kArgs2M, "NCZT", "NCZTR", "NCZTR", "3*count*width*height", kElemMat, kElemMat},
  {"Sub", "tama", "sub", kArgs2M, "NCZT", "NCZTR", "NCZTR", "3*count*width*height", kElemMat, kElemMat},
  {"Sub", "tata", "sub", kArgs2M, "NCZT", "NCZTR", "NCZTR", "3*count*width*height", kElemMat, kElemMat},
  {"Sub", "vav", "sub", kArgs2V, "NZTC", "NZTRC", "NZTCR", "2*len*count+len", kElemVec32, kElemVec64},
  {"Sub", "vva", "sub", kArgs2V, "NCZT", "NCZTR", "NCZTR", "2*len*count+len", kElemVec32, kElemVec64},
  {"Sub", "vava", "sub", kArgs2V, "NCZT", "NCZTR", "NCZTR", "3*len*count", kElemVec32, kElemVec64},
  {"Sub", "vac", "sub", kArgsVC, "NCZT", "NCZTR", "NCZTR", "2*len*count+len", kElemVec32, kElemVec64},
  {"Sub", "cva", "sub", kArgsCV, "NCZT", "NCZTR", "NCZTR", "2*count",
   thr(20000, 40000, 20000), thr(20000, 20000, 20000)},  // counts objects only, not their lengths
  {"Sub", "vca", "sub", kArgsVC, "NCZT", "NCZTR", "NCZTR", "len*count+len+count", kElemVec32, kElemVec64},
  {"Sub", "cav", "sub", kArgsCV, "NCZT", "NCZTR", "NCZTR", "len*count+len+count", kElemVec32, kElemVec64},
  {"Sub", "vaca", "sub", kArgsVC, "NCZT", "NCZTR", "NCZTR", "2*len*count+count", kElemVec32, kElemVec64},
  {"Sub", "cava", "sub", kArgsCV, "NCZT", "NCZTR", "NCZTR", "2*len*count+count", kElemVec32, kElemVec64},

  // Saxpy and LComb: a scalar by value right behind the operand it multiplies. Saxpy has one
  // threshold for every layout and path; LComb's LayoutL 32f contiguous path starts later.
  {"Saxpy", "vv", "saxpy", kArgsSaxpy, "NZT", "", "NZR"},
  {"Saxpy", "vav", "saxpy", kArgsSaxpy, "NCZT", "NCZTR", "NCZTR", "2*len*count+len", kSaxpy, kSaxpy},
  {"Saxpy", "vva", "saxpy", kArgsSaxpy, "NCZT", "NCZTR", "NCZTR", "2*len*count+len", kSaxpy, kSaxpy},
  {"Saxpy", "vava", "saxpy", kArgsSaxpy, "NCZT", "NCZTR", "NCZTR", "3*len*count", kSaxpy, kSaxpy},
  {"LComb", "vv", "lcomb", kArgsLComb, "NZT", "", "NZR"},
  {"LComb", "vav", "lcomb", kArgsLComb, "NCZT", "NCZTR", "NCZTR", "2*len*count+len", kLComb32, kLComb64},
  {"LComb", "vava", "lcomb", kArgsLComb, "NCZT", "NCZTR", "NCZTR", "3*len*count", kLComb32, kLComb64},

  // Data movement: layout conversion, gathering, identity fill, transposition. Always serial.
  // Copy checks sizes before count, and object strides only when count > 1, last.
  {"Copy", "ma", "copy", kArgsCopyM, "NZCERO", "NZCERO", "NZCERO", {}, {}, {}, Rule::None, false, {}, Forms::CopyPairs},
  {"Copy", "va", "copy", kArgsCopyV, "NZCERO", "NZCERO", "NZCERO", {}, {}, {}, Rule::None, false, {}, Forms::CopyPairs},
  {"Extract", "m", "extract", kArgsExtractM, "NZT", "", "ZNR"},
  {"Extract", "t", "extract", kArgsExtractM, "NZT", "", "ZNR"},
  {"Extract", "v", "extract", kArgsExtractV, "NZT", "", "ZNR"},
  {"Extract", "ma", "extract", kArgsExtractM, "NZCT", "NZCRT", "NZCRT"},
  {"Extract", "ta", "extract", kArgsExtractM, "NZCT", "NZCRT", "NZCRT"},
  {"Extract", "va", "extract", kArgsExtractV, "NZCT", "NZCRT", "NZCRT"},
  {"LoadIdentity", "ma", "load_identity", kArgsFill, "NZCEO", "NZCER", "NZCRO"},
  {"Transpose", "m", "transpose", kArgsTranspose, "NZT", "", "NZR"},
  {"Transpose", "ma", "transpose", kArgsTranspose, "NCZT", "NCZTR", "NCZTR"},

  // Mul with a matrix and a vector: each operand's sizes behind its block, the elements touched
  // as the estimate, Mul's thresholds.
  {"Mul", "mv", "mulv", kArgsMulMV, "NZHT", "", "NZHR", {}, {}, {}, Rule::Product},
  {"Mul", "tv", "mulv", kArgsMulMV, "NZHT", "", "NZHR", {}, {}, {}, Rule::Product},
  {"Mul", "mva", "mulv", kArgsMulMV, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "tva", "mulv", kArgsMulMV, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "mav", "mulv", kArgsMulMV, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "tav", "mulv", kArgsMulMV, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "mava", "mulv", kArgsMulMV, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "tava", "mulv", kArgsMulMV, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},

  // Gaxpy: the matrix times the vector plus src3, whose length the shape rule checks against
  // the matrix's rows in the same step. One threshold everywhere; the estimate leaves the matrix
  // out.
  {"Gaxpy", "mv", "gaxpy", kArgsGaxpy, "NZHT", "", "NZHR", {}, {}, {}, Rule::Product},
  {"Gaxpy", "mva", "gaxpy", kArgsGaxpy, "NCZHT", "NCZHTR", "NCZHTR", "(src2Len+2*src3Len)*count",
   thr(5001, 5001, 5001), thr(5001, 5001, 5001), Rule::Product},
  {"Gaxpy", "mvav", "gaxpy", kArgsGaxpyV, "NCZHT", "NCZHTR", "NCZHTR", "src2Len*count+src3Len*(count+1)",
   thr(5001, 5001, 5001), thr(5001, 5001, 5001), Rule::Product},

  // Mul with a constant: width and height are dst's (a t source is stored with width rows).
  // The matrix arrays' LayoutL float strided path goes parallel earlier, LayoutP from 17001;
  // vca and vaca have one threshold per layout, tested before contiguity.
  {"Mul", "mc", "mulc", kArgsMulC, "NZT", "", "NZR"},
  {"Mul", "tc", "mulc", kArgsMulC, "NZT", "", "NZR"},
  {"Mul", "vc", "mulc", kArgsVC, "NZT", "", "NZR"},
  {"Mul", "mac", "mulc", kArgsMulC, "NCZT", "NCZTR", "NCZTR", "2*width*height*count",
   Thr{35001, 35001, 35001, 15001, 17001}, Thr{35001, 35001, 35001, 35001, 17001}},
  {"Mul", "tac", "mulc", kArgsMulC, "NCZT", "NCZTR", "NCZTR", "2*width*height*count",
   Thr{35001, 35001, 35001, 15001, 17001}, Thr{35001, 35001, 35001, 35001, 17001}},
  {"Mul", "vac", "mulc", kArgsVC, "NCZT", "NCZTR", "NCZTR", "2*len*count", kMul, kMul},
  {"Mul", "vca", "mulc", kArgsVC, "NCZT", "NCZTR", "NCZTR", "len*(count+1)+count",
   Thr{36865, 36865, 18433, 18433, 9217}, Thr{36865, 36865, 18433, 18433, 9217}},
  {"Mul", "vaca", "mulc", kArgsVC, "NCZT", "NCZTR", "NCZTR", "count*(2*len+1)",
   Thr{36865, 36865, 18433, 18433, 9217}, Thr{36865, 36865, 18433, 18433, 9217}},
};

inline constexpr FamilyDoc kDocs[] = {
  {"GetLibVersion", "Returns the constant version record of the library."},
  {"Add", "Element-wise sum of the two operands, one rounded addition per element."},
  {"Sub", "Element-wise difference, the operand named first minus the other, one rounded subtraction per element."},
  {"Saxpy", "dst = src1*val + src2 per element: the product and the sum each rounded, never fused."},
  {"LComb", "dst = src1*val1 + src2*val2 per element: both products and the sum each rounded, never fused."},
  {"Mul", "Products: dst = op(src1) * op(src2) of matrices and vectors, each matrix read as stored (m) or transposed (t), its sizes describing it as stored; or an operand times a constant."},
  {"Copy", "Copies an array of matrices or vectors from one layout to another, element by element as raw bits."},
  {"Extract", "Gathers an operand into one dense buffer, row by row; a t operand arrives transposed."},
  {"LoadIdentity", "Fills every matrix of the array with ones on the main diagonal and zeros elsewhere."},
  {"Transpose", "Writes the transpose of each matrix: dst has width rows and height columns."},
  {"Gaxpy", "dst = src1 * src2 + src3 for a matrix read as stored: the products summed, then src3 added to the complete sum."},
};

inline constexpr Fixed kFixed[] = {
  {"tarnMul_mm4x4_32f", "const float* src1, const float* src2, float* dst", "mul", "mulMM4x4"},
};

inline constexpr Override kOverrides[] = {
  {"tarnAdd_vca_64f_P", "NCZT"},  // takes any roiShift as it is
  {"tarnSub_cav_32f_P", "NCZT"},  // takes any roiShift as it is
  {"tarnSub_vva_64f_P", {}, true},  // no wrapper: serial however large E is
  {"tarnCopy_va_32f_LP", "NZCREO"},  // shifts before strides, unlike the 64f twin
  {"tarnCopy_va_32f_SP", "NZCREO"},
  {"tarnExtract_v_32f_P", "NZR"},    // pointers before the size, unlike its siblings
  {"tarnLoadIdentity_ma_32f_P", "NZRCO"},  // the shift before the count, unlike the 64f twin
};
// clang-format on

constexpr const Override* overrideOf(std::string_view name) {
  for (const Override& o : kOverrides)
    if (o.name == name) return &o;
  return nullptr;
}

}  // namespace tarn
