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

// General eigenproblems.
inline constexpr std::string_view
    kArgsGeigValues = "src:op1 dstValuesRe:values dstValuesIm:values widthHeight count scratch:buffer",
    kArgsGeigOne = "src:op1 dstVectors/dst:mat dstValuesRe:values dstValuesIm:values widthHeight count scratch:buffer",
    kArgsGeigBoth = "src:op1 dstVectorsRight/dstRight:mat dstVectorsLeft/dstLeft:mat dstValuesRe:values "
                    "dstValuesIm:values widthHeight count scratch:buffer",
    kGeigVectorsEst = "widthHeight*(3*widthHeight+1)*count",
    kGeigScratch = "widthHeight*(3*widthHeight+5)*esize";  // the eigenvector size, in both families

inline constexpr int32_t kElemMatS = 36864, kElemMatG = 18432, kElemMatP = 9216;
inline constexpr Thr kElemMat{kElemMatS, kElemMatG, kElemMatG, kElemMatG, kElemMatP};
inline constexpr Thr kElemVec32 = thr(20001, 40001, 20001), kElemVec64 = thr(20001, 20001, 20001);
inline constexpr Thr kSaxpy = thr(40001, 40001, 40001);
inline constexpr Thr kLComb32{20001, 20001, 40001, 20001, 20001}, kLComb64 = thr(20001, 20001, 20001);
inline constexpr Thr kMul{36865, 18433, 18433, 18433, 9217};

// Reductions.
inline constexpr std::string_view
    kArgsDot = "src1:op1 src2:op2 dst:scalar len count",
    kArgsCross = "src1:op1 src2:op2 dst:vec count",
    kArgsL2 = "src:op1 dst:scalar len count",
    kArgsFrob = "src:op1 width height dst:scalar count",
    kArgsTrace = "src:op1 widthHeight dst:scalar count";
inline constexpr Thr kDot32{40001, 20001, 40001, 20001, 20001}, kDot64{40001, 20001, 40001, 20001, 40001};
inline constexpr Thr kCrossOne32 = thr(20000, 40000, 20000), kCrossOne64 = thr(20000, 20000, 20000);
inline constexpr Thr kCrossTwo32 = thr(20001, 40001, 20001), kCrossTwo64 = thr(20001, 20001, 20001);
// FrobNorm and Trace 32f start later on the contiguous LayoutL path only.
inline constexpr Thr kReduce = thr(20001, 20001, 20001), kReduceL32{20001, 20001, 40001, 20001, 20001};
// QR, Det, Invert.
inline constexpr std::string_view kArgsQR = "src:op1 buffer:buffer dst:mat width height count",
                                  kArgsQRSolve = "src1:op1 buffer:buffer src2:op2 dst:vec width height count",
                                  kArgsDet = "src:op1 widthHeight buffer:buffer dst:scalar count",
                                  kArgsInvert = "src:op1 buffer:buffer dst:mat widthHeight count",
                                  kScratchQR = "height*esize",
                                  kScratchSquare = "widthHeight*(widthHeight+1)*esize";
inline constexpr Thr kQR = thr(2801, 1801, 1801);
inline constexpr Thr kDetInv32{20001, 20001, 40001, 20001, 20001}, kDetInv64 = thr(20001, 20001, 20001);

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

  // Mul with two matrices: each operand's sizes describe it as stored, right behind its block.
  // The shape rule sits between the sizes and the strides; E counts the elements touched.
  {"Mul", "mm",   "mul", kArgsMulMM, "NZHT", "", "NZHR", {}, {}, {}, Rule::Product},
  {"Mul", "mt",   "mul", kArgsMulMM, "NZHT", "", "NZHR", {}, {}, {}, Rule::Product},
  {"Mul", "tm",   "mul", kArgsMulMM, "NZHT", "", "NZHR", {}, {}, {}, Rule::Product},
  {"Mul", "tt",   "mul", kArgsMulMM, "NZHT", "", "NZHR", {}, {}, {}, Rule::Product},
  {"Mul", "mam",  "mul", kArgsMulMM, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "mat",  "mul", kArgsMulMM, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "tam",  "mul", kArgsMulMM, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "tat",  "mul", kArgsMulMM, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "mma",  "mul", kArgsMulMM, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "mta",  "mul", kArgsMulMM, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "tma",  "mul", kArgsMulMM, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "tta",  "mul", kArgsMulMM, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "mama", "mul", kArgsMulMM, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "mata", "mul", kArgsMulMM, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "tama", "mul", kArgsMulMM, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},
  {"Mul", "tata", "mul", kArgsMulMM, "NCZHT", "NCZHTR", "NCZHTR", "touched", kMul, kMul, Rule::Product},

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

  // Reductions: one scalar per object in a plain result array (DotProduct, L2Norm, FrobNorm,
  // Trace), and CrossProduct, whose vectors always have 3 elements and which has no size to
  // check: its count and stride checks change places by operand form, and its estimate counts
  // objects only, tested before contiguity against one threshold.
  {"DotProduct", "vv", "dot_product", kArgsDot, "NZT", "", "NZR"},
  {"DotProduct", "vav", "dot_product", kArgsDot, "NCZT", "NCZTR", "NCZTR", "(count+1)*len", kDot32, kDot64},
  {"DotProduct", "vava", "dot_product", kArgsDot, "NCZT", "NCZTR", "NCZTR", "2*len*count", kDot32, kDot64},
  {"CrossProduct", "vv", "cross_product", kArgsCross, "NT", "", "NR"},
  {"CrossProduct", "vav", "cross_product", kArgsCross, "NTC", "NTRC", "NTCR", "2*count", kCrossOne32, kCrossOne64},
  {"CrossProduct", "vva", "cross_product", kArgsCross, "NCT", "NCTR", "NCTR", "2*count", kCrossOne32, kCrossOne64},
  {"CrossProduct", "vava", "cross_product", kArgsCross, "NCT", "NCTR", "NCTR", "3*count", kCrossTwo32, kCrossTwo64},
  {"L2Norm", "v", "l2_norm", kArgsL2, "NZT", "", "NZR"},
  {"L2Norm", "va", "l2_norm", kArgsL2, "NCZT", "NCZTR", "NCZTR", "len*count", kReduce, kReduce},
  {"FrobNorm", "m", "frob_norm", kArgsFrob, "NZT", "", "NZR"},
  {"FrobNorm", "ma", "frob_norm", kArgsFrob, "NCZT", "NCZTR", "NCZTR", "width*height*count", kReduceL32, kReduce},
  {"Trace", "m", "trace", kArgsTrace, "NZT", "", "NZR"},
  {"Trace", "ma", "trace", kArgsTrace, "NCZT", "NCZTR", "NCZTR", "widthHeight*count", kReduceL32, kReduce},
  // QR, its solver, determinant and inverse. `buffer` is the caller's work space, replaced on the
  // parallel path by a block per thread. QR checks the shape (width <= height) last.
  {"QRDecomp", "m", "qr_decomp", kArgsQR, "NZTH", "", "NZRH", {}, {}, {}, Rule::Tall, true, kScratchQR},
  {"QRDecomp", "ma", "qr_decomp", kArgsQR, "NCZTH", "NCZTRH", "NCZTRH", "2*width*height*count", kQR, kQR,
   Rule::Tall, true, kScratchQR},
  {"QRBackSubst", "mv", "qr_back_subst", kArgsQRSolve, "NZTH", "", "NZRH", {}, {}, {}, Rule::Tall, false, kScratchQR},
  {"QRBackSubst", "mva", "qr_back_subst", kArgsQRSolve, "NCZTH", "NCZTRH", "NCZTRH", "width*height+(width+height)*count",
   kQR, kQR, Rule::Tall, false, kScratchQR},
  {"QRBackSubst", "mava", "qr_back_subst", kArgsQRSolve, "NCZTH", "NCZTRH", "NCZTRH", "(width*(height+1)+height)*count",
   kQR, kQR, Rule::Tall, false, kScratchQR},
  {"Det", "m", "det", kArgsDet, "NZT", "", "NZR", {}, {}, {}, Rule::None, false, kScratchSquare},
  {"Det", "ma", "det", kArgsDet, "NCZT", "NCZTR", "NCZTR", "widthHeight*count", kDetInv32, kDetInv64, Rule::None,
   false, kScratchSquare},
  {"Invert", "m", "invert", kArgsInvert, "NZT", "", "NZR", {}, {}, {}, Rule::None, true, kScratchSquare},
  {"Invert", "ma", "invert", kArgsInvert, "NCZT", "NCZTR", "NCZTR", "2*widthHeight*count", kDetInv32, kDetInv64,
   Rule::None, true, kScratchSquare},
  // Geometry: the one fixed-shape member in the operand model. Points through a strided 4x4
  // matrix, divided by w'; it fails per point and goes on, so its workers return statuses. E is
  // tested before contiguity against one threshold.
  {"AffineTransform3DH", "mva", "transform3dh", "src1:op1 src2:op2 dst:vec count", "NCT", "", "", "6*count",
   Thr{1985, 1985, 0, 0, 0}, {}, Rule::None, true, {}, Forms::Float32S},
  // LUDecomp and LUBackSubst: partial pivoting, the row order in pivot; the decomposition fails
  // per object (a singular pivot), the substitution never.
  {"LUDecomp", "m", "lu_decomp", "src:op1 pivot:pivot dst:mat widthHeight count", "NZT", "", "NZR"},
  {"LUDecomp", "ma", "lu_decomp", "src:op1 pivot:pivot dst:mat widthHeight count", "NCZT", "NCZTR", "NCZTR",
   "widthHeight*widthHeight*count", Thr{20001, 20001, 40001, 20001, 20001}, thr(20001, 20001, 20001), Rule::None, true},
  {"LUBackSubst", "mv", "lu_back_subst", "src1:op1 pivot:pivotin src2:op2 dst:vec widthHeight count", "NZT", "", "NZR"},
  {"LUBackSubst", "mva", "lu_back_subst", "src1:op1 pivot:pivotin src2:op2 dst:vec widthHeight count", "NCZT", "NCZTR",
   "NCZTR", "(widthHeight+2*count)*widthHeight", thr(1701, 1701, 1701), thr(1701, 1701, 1701)},
  {"LUBackSubst", "mava", "lu_back_subst", "src1:op1 pivot:pivotin src2:op2 dst:vec widthHeight count", "NCZT", "NCZTR",
   "NCZTR", "(widthHeight+2)*widthHeight*count", thr(1701, 1701, 1701), thr(1701, 1701, 1701)},

  // CholeskyDecomp and CholeskyBackSubst: the lower factor with reciprocals on its diagonal; the
  // decomposition fails per object (a pivot not above zero), the substitution never.
  {"CholeskyDecomp", "m", "cholesky_decomp", "src:op1 dst:mat widthHeight count", "NZT", "", "NZR"},
  {"CholeskyDecomp", "ma", "cholesky_decomp", "src:op1 dst:mat widthHeight count", "NCZT", "NCZTR", "NCZTR",
   "widthHeight*widthHeight*count", Thr{7501, 7501, 2001, 2001, 2001}, Thr{2001, 2001, 721, 2001, 2001}, Rule::None, true},
  {"CholeskyBackSubst", "mv", "cholesky_back_subst", "src1:op1 src2:op2 dst:vec widthHeight count", "NZT", "", "NZR"},
  {"CholeskyBackSubst", "mva", "cholesky_back_subst", "src1:op1 src2:op2 dst:vec widthHeight count", "NCZT", "NCZTR",
   "NCZTR", "(widthHeight+2*count)*widthHeight", Thr{1201, 1201, 721, 721, 721}, thr(721, 721, 721)},
  {"CholeskyBackSubst", "mava", "cholesky_back_subst", "src1:op1 src2:op2 dst:vec widthHeight count", "NCZT", "NCZTR",
   "NCZTR", "(widthHeight+2)*widthHeight*count", Thr{2051, 1701, 1701, 1701, 1701}, Thr{1701, 1701, 1701, 1701, 2051}},
  // Symmetric eigenproblems: sizes before the count, a working matrix per thread on the
  // parallel path, and a status from every worker. Values go parallel above
  // widthHeight*(widthHeight+1)*count = 20000 (40000 for contiguous 32f LayoutL), vectors above
  // widthHeight*(2*widthHeight+1)*count = 1700.
  {.family = "EigenValuesSym", .pattern = "m", .impl = "eigen_values_sym",
   .args = "src:op1 scratch:buffer dst:values widthHeight count", .checksS = "NZT", .checksP = "NZR", .canFail = true},
  {"EigenValuesSym", "ma", "eigen_values_sym", "src:op1 scratch:buffer dst:values widthHeight count",
   "NZCT", "NZCRT", "NZCRT", "widthHeight*(widthHeight+1)*count", {20001, 20001, 40001, 20001, 20001},
   thr(20001, 20001, 20001), Rule::None, true, "widthHeight*widthHeight*esize"},
  {.family = "EigenValuesVectorsSym", .pattern = "m", .impl = "eigen_values_vectors_sym",
   .args = "src:op1 scratch:buffer dstVectors/dst:mat dstValues:values widthHeight count", .checksS = "NZT",
   .checksP = "NZR", .canFail = true},
  {"EigenValuesVectorsSym", "ma", "eigen_values_vectors_sym",
   "src:op1 scratch:buffer dstVectors/dst:mat dstValues:values widthHeight count", "NZCT", "NZCRT", "NZCRT",
   "widthHeight*(2*widthHeight+1)*count", thr(1701, 1701, 1701), thr(1701, 1701, 1701), Rule::None, true,
   "widthHeight*widthHeight*esize"},
  // General eigenproblems: eigenvalues, and eigenvectors of one or both sides, of real square
  // matrices. One serial worker per layout (no contiguous path), thresholds on n(n+1)count and
  // n(3n+1)count; the per-thread scratch is the eigenvector size in both. Arrays in LayoutL
  // and LayoutP check the source's shift and strides, then the destinations' shifts and strides.
  {.family = "EigenValues", .pattern = "m", .impl = "eigen_values", .args = kArgsGeigValues,
   .checksS = "NZT", .checksP = "NZR"},
  {.family = "EigenValues", .pattern = "ma", .impl = "eigen_values", .args = kArgsGeigValues,
   .checksS = "NZCT", .checksL = "NZCRT", .checksP = "NZCRT", .est = "widthHeight*(widthHeight+1)*count",
   .t32 = thr(10001, 10001, 10001), .t64 = thr(10001, 10001, 10001), .canFail = true, .scratch = kGeigScratch},
  {.family = "EigenValuesVectors", .pattern = "m", .impl = "eigen_vectors_both", .args = kArgsGeigBoth,
   .checksS = "NZT", .checksP = "NZR"},
  {.family = "EigenValuesVectors", .pattern = "ma", .impl = "eigen_vectors_both", .args = kArgsGeigBoth,
   .checksS = "NZCT", .checksL = "NZCRsTsRdTd", .checksP = "NZCRsTsRdTd", .est = kGeigVectorsEst,
   .t32 = thr(7001, 7001, 7001), .t64 = thr(7001, 7001, 7001), .canFail = true, .scratch = kGeigScratch},
  {.family = "EigenValuesVectorsLeft", .pattern = "m", .impl = "eigen_vectors_left", .args = kArgsGeigOne,
   .checksS = "NZT", .checksP = "NZR"},
  {.family = "EigenValuesVectorsLeft", .pattern = "ma", .impl = "eigen_vectors_left", .args = kArgsGeigOne,
   .checksS = "NZCT", .checksL = "NZCRsTsRdTd", .checksP = "NZCRsTsRdTd", .est = kGeigVectorsEst,
   .t32 = thr(7001, 7001, 7001), .t64 = thr(7001, 7001, 7001), .canFail = true, .scratch = kGeigScratch},
  {.family = "EigenValuesVectorsRight", .pattern = "m", .impl = "eigen_vectors_right", .args = kArgsGeigOne,
   .checksS = "NZT", .checksP = "NZR"},
  {.family = "EigenValuesVectorsRight", .pattern = "ma", .impl = "eigen_vectors_right", .args = kArgsGeigOne,
   .checksS = "NZCT", .checksL = "NZCRsTsRdTd", .checksP = "NZCRsTsRdTd", .est = kGeigVectorsEst,
   .t32 = thr(7001, 7001, 7001), .t64 = thr(7001, 7001, 7001), .canFail = true, .scratch = kGeigScratch},
  // Scratch sizes of the general eigenproblems: one member per type, named by the type alone.
  {.family = "EigenValuesGetBufSize", .impl = "eigen_buf_size_values", .args = "widthHeight bufSize:size", .checksS = "NZ"},
  {.family = "EigenValuesVectorsGetBufSize", .impl = "eigen_buf_size_vectors", .args = "widthHeight bufSize:size", .checksS = "NZ"},
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
  {"DotProduct", "dst = sum of src1[k]*src2[k] per pair of vectors, one result element per object; the order of the additions depends on the length, the path and, for long contiguous vectors, the address of src2. The fixed 2-, 3- and 4-vector forms sum left to right from the first element."},
  {"CrossProduct", "dst = src1 x src2 of 3-element vectors: each product rounded, then the difference; an object is read whole before it is written. Fixed forms: x1*y2 - y1*x2 of 2-vectors, the vector product of 3-vectors, the vector orthogonal to three 4-vectors."},
  {"L2Norm", "dst = the square root of the sum of squares of each vector, without scaling: overflow gives infinity."},
  {"FrobNorm", "dst = the square root of the sum of squares of the elements of each matrix, without scaling."},
  {"Trace", "dst = the sum of the diagonal elements of each square matrix, diagonal element 0 first."},
  {"QRDecomp", "Householder QR of a matrix with width <= height: R on and above the diagonal, each reflector below the diagonal of its column, its leading 1 implied; buffer holds height elements."},
  {"QRBackSubst", "Solves R x = Q^T b (least squares for a tall matrix) from what QRDecomp stored; buffer holds height elements."},
  {"Det", "Determinant of each square matrix; a matrix found singular gives 0, never a failure; buffer holds widthHeight*(widthHeight+1) elements."},
  {"Invert", "Inverse of each square matrix, or tarnStatusSingular; buffer holds widthHeight*(widthHeight+1) elements."},

  // Geometry
  {"AffineTransform", "Points through a 4x4 float matrix as row vectors (16 floats in row order), an implied w of 1 for 2- and 3-vectors; four floats out per point."},
  {"AffineTransform3DH", "3D points as columns through a strided 4x4 matrix, divided by w'; a point with |w'| not above the smallest normal float gets the largest float and the status DivideByZero, and the walk goes on."},
  {"AffineTransformCoord", "Points through a 4x4 float matrix, divided by the fourth coordinate, which is not tested."},
  {"AffineTransformNormal", "Directions through the upper rows of a 4x4 float matrix, without translation."},
  {"BaryCentric", "((src2 - src1)*f + src1) + (src3 - src1)*g per element."},
  {"Hermite", "The cubic Hermite curve through src1 and src3 with tangents src2 and src4 at s, its basis formed in double."},
  {"Identity", "Writes the 4x4 identity."},
  {"InterpolationCatmullRom", "The Catmull-Rom spline between src2 and src3 at s: Hermite with the half differences of the neighbours as tangents."},
  {"InterpolationLinear", "src1 + (src2 - src1)*s per element."},
  {"IsIdentity", "Stores 1 if the 4x4 matrix equals the identity exactly (-0.0 counts as zero, NaN never equals), else 0."},
  {"Len", "Euclidean length of the vector, by the correctly rounded square root."},
  {"LenSqr", "Sum of the squared elements, left to right."},
  {"LookAtLH", "Left-handed view matrix of a camera at eye looking at `at`, with up as the upward hint."},
  {"LookAtRH", "Right-handed view matrix of a camera at eye looking at `at`, with up as the upward hint."},
  {"Max", "Element-wise maximum a > b ? a : b: src2's element on NaN or equal zeros."},
  {"Min", "Element-wise minimum a < b ? a : b: src2's element on NaN or equal zeros."},
  {"MulC", "The vector times the constant c, element by element."},
  {"MulTranspose", "dst = transpose of (src1 * src2) for 4x4 floats; dst must not overlap a source."},
  {"Normalize", "The vector divided element by element by its length; a zero vector gives NaN."},
  {"OrthoLH", "Left-handed orthographic projection of a view volume of the given width and height, depth from zNear to zFar onto 0 to 1."},
  {"OrthoOffCenterLH", "Left-handed orthographic projection of the box left..right, bottom..top, zNear..zFar."},
  {"OrthoOffCenterRH", "Right-handed orthographic projection of the box left..right, bottom..top, zNear..zFar."},
  {"OrthoRH", "Right-handed orthographic projection of a view volume of the given width and height, depth from zNear to zFar onto 0 to 1."},
  {"PerspectiveFovLH", "Left-handed perspective projection from a vertical field of view in radians and an aspect ratio."},
  {"PerspectiveFovRH", "Right-handed perspective projection from a vertical field of view in radians and an aspect ratio."},
  {"PerspectiveLH", "Left-handed perspective projection with a near plane of the given width and height."},
  {"PerspectiveOffCenterLH", "Left-handed perspective projection of the near rectangle left..right, bottom..top."},
  {"PerspectiveOffCenterRH", "Right-handed perspective projection of the near rectangle left..right, bottom..top."},
  {"PerspectiveRH", "Right-handed perspective projection with a near plane of the given width and height."},
  {"Project", "Points through world, view and projection to viewport coordinates."},
  {"RotationAxis", "Rotation by angle radians about an axis of any nonzero length."},
  {"RotationX", "Rotation by angle radians about the x axis."},
  {"RotationY", "Rotation by angle radians about the y axis."},
  {"RotationYawPitchRoll", "Rotation by roll about z, then pitch about x, then yaw about y, in radians."},
  {"RotationZ", "Rotation by angle radians about the z axis: (1, 0, 0) goes to (cos, sin, 0)."},
  {"Scaling", "Scaling by sx, sy, sz."},
  {"Translation", "Translation by tx, ty, tz in the fourth row."},
  {"Unproject", "Viewport coordinates back through the inverse of (world * view) * projection; Singular when that product cannot be inverted."},
  {"LUDecomp", "LU factorisation with partial pivoting: dst holds L (unit diagonal, not stored) and U packed, row k of the factors in row pivot[k]; rows are never moved."},
  {"LUBackSubst", "Solves A x = b from the factors and pivot of LUDecomp: b is read through pivot, x is written by column."},
  {"CholeskyDecomp", "Cholesky factorisation A = L L^T of the lower triangle of src: dst holds L below the diagonal and 1/L(i,i) on it; the upper triangle is neither read nor written."},
  {"CholeskyBackSubst", "Solves A x = b from the factor of CholeskyDecomp (reciprocals on its diagonal), with multiplications and subtractions only."},
  {"EigenValuesSym", "All eigenvalues of each symmetric matrix, in descending order: Householder tridiagonalisation, then implicit QL or QR sweeps; scratch holds one widthHeight x widthHeight working matrix."},
  {"EigenValuesVectorsSym", "Eigenvalues of each symmetric matrix in descending order, with the eigenvector of value j in column j of dstVectors; scratch holds one widthHeight x widthHeight working matrix."},
  {"EigenValues", "Eigenvalues of general real matrices as real and imaginary parts, in diagonal order of the quasi-triangular form: a conjugate pair adjacent with its positive imaginary part first. scratch: tarnEigenValuesGetBufSize bytes."},
  {"EigenValuesVectors", "Eigenvalues with right (transpose(src) v = lambda v) and left (src v = lambda v) eigenvectors in columns, of unit length; a conjugate pair stores the real part of its vector in column j, the imaginary part in column j+1 (a left pair's v solves src v = conj(lambda_j) v). scratch: tarnEigenValuesVectorsGetBufSize bytes."},
  {"EigenValuesVectorsLeft", "Eigenvalues with the eigenvectors v of src v = lambda v in columns, as in EigenValuesVectors."},
  {"EigenValuesVectorsRight", "Eigenvalues with the eigenvectors v of transpose(src) v = lambda v in columns, as in EigenValuesVectors."},
  {"EigenValuesGetBufSize", "Bytes of scratch a general eigenvalue member needs for matrices of order widthHeight: widthHeight*(widthHeight+5)*esize."},
  {"EigenValuesVectorsGetBufSize", "Bytes of scratch a general eigenvector member needs for matrices of order widthHeight: widthHeight*(3*widthHeight+5)*esize."},
  {"Gaxpy", "dst = src1 * src2 + src3 for a matrix read as stored: the products summed, then src3 added to the complete sum."},
};

inline constexpr Fixed kFixed[] = {
  {"tarnMul_mm4x4_32f", "const float* src1, const float* src2, float* dst", "mul", "mulMM4x4"},

  // Geometry: fixed 2-, 3- and 4-vectors.
  {"tarnAdd_v2_32f", "const float* src1, const float* src2, float* dst", "vec", "add<2>"},
  {"tarnSub_v2_32f", "const float* src1, const float* src2, float* dst", "vec", "sub<2>"},
  {"tarnMin_v2_32f", "const float* src1, const float* src2, float* dst", "vec", "min<2>"},
  {"tarnMax_v2_32f", "const float* src1, const float* src2, float* dst", "vec", "max<2>"},
  {"tarnMulC_v2_32f", "const float* src, float c, float* dst", "vec", "mulC<2>"},
  {"tarnDotProduct_v2_32f", "const float* src1, const float* src2, float* dst", "vec", "dot<2>"},
  {"tarnCrossProduct_v2_32f", "const float* src1, const float* src2, float* dst", "vec", "cross2"},
  {"tarnLen_v2_32f", "const float* src, float* dst", "vec", "len<2>"},
  {"tarnLenSqr_v2_32f", "const float* src, float* dst", "vec", "lenSqr<2>"},
  {"tarnNormalize_v2_32f", "const float* src, float* dst", "vec", "normalize<2>"},
  {"tarnBaryCentric_v2_32f", "const float* src1, const float* src2, const float* src3, float f, float g, float* dst", "vec", "baryCentric<2>"},
  {"tarnHermite_v2_32f", "const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst", "vec", "hermite<2>"},
  {"tarnInterpolationCatmullRom_v2_32f", "const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst", "vec", "catmullRom<2>"},
  {"tarnInterpolationLinear_v2_32f", "const float* src1, const float* src2, float s, float* dst", "vec", "lerp<2>"},
  {"tarnAdd_v3_32f", "const float* src1, const float* src2, float* dst", "vec", "add<3>"},
  {"tarnSub_v3_32f", "const float* src1, const float* src2, float* dst", "vec", "sub<3>"},
  {"tarnMin_v3_32f", "const float* src1, const float* src2, float* dst", "vec", "min<3>"},
  {"tarnMax_v3_32f", "const float* src1, const float* src2, float* dst", "vec", "max<3>"},
  {"tarnMulC_v3_32f", "const float* src, float c, float* dst", "vec", "mulC<3>"},
  {"tarnDotProduct_v3_32f", "const float* src1, const float* src2, float* dst", "vec", "dot<3>"},
  {"tarnCrossProduct_v3_32f", "const float* src1, const float* src2, float* dst", "vec", "cross3"},
  {"tarnLen_v3_32f", "const float* src, float* dst", "vec", "len<3>"},
  {"tarnLenSqr_v3_32f", "const float* src, float* dst", "vec", "lenSqr<3>"},
  {"tarnNormalize_v3_32f", "const float* src, float* dst", "vec", "normalize<3>"},
  {"tarnBaryCentric_v3_32f", "const float* src1, const float* src2, const float* src3, float f, float g, float* dst", "vec", "baryCentric<3>"},
  {"tarnHermite_v3_32f", "const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst", "vec", "hermite<3>"},
  {"tarnInterpolationCatmullRom_v3_32f", "const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst", "vec", "catmullRom<3>"},
  {"tarnInterpolationLinear_v3_32f", "const float* src1, const float* src2, float s, float* dst", "vec", "lerp<3>"},
  {"tarnAdd_v4_32f", "const float* src1, const float* src2, float* dst", "vec", "add<4>"},
  {"tarnSub_v4_32f", "const float* src1, const float* src2, float* dst", "vec", "sub<4>"},
  {"tarnMin_v4_32f", "const float* src1, const float* src2, float* dst", "vec", "min<4>"},
  {"tarnMax_v4_32f", "const float* src1, const float* src2, float* dst", "vec", "max<4>"},
  {"tarnMulC_v4_32f", "const float* src, float c, float* dst", "vec", "mulC<4>"},
  {"tarnDotProduct_v4_32f", "const float* src1, const float* src2, float* dst", "vec", "dot<4>"},
  {"tarnCrossProduct_v4_32f", "const float* src1, const float* src2, const float* src3, float* dst", "vec", "cross4"},
  {"tarnLen_v4_32f", "const float* src, float* dst", "vec", "len<4>"},
  {"tarnLenSqr_v4_32f", "const float* src, float* dst", "vec", "lenSqr<4>"},
  {"tarnNormalize_v4_32f", "const float* src, float* dst", "vec", "normalize<4>"},
  {"tarnBaryCentric_v4_32f", "const float* src1, const float* src2, const float* src3, float f, float g, float* dst", "vec", "baryCentric<4>"},
  {"tarnHermite_v4_32f", "const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst", "vec", "hermite<4>"},
  {"tarnInterpolationCatmullRom_v4_32f", "const float* src1, const float* src2, const float* src3, const float* src4, float s, float* dst", "vec", "catmullRom<4>"},
  {"tarnInterpolationLinear_v4_32f", "const float* src1, const float* src2, float s, float* dst", "vec", "lerp<4>"},
  // Geometry: transform builders.
  {"tarnLookAtLH_m4_32f", "const float* eye, const float* at, const float* up, float* dst", "build", "lookAt<true>"},
  {"tarnOrthoLH_m4_32f", "float viewWidth, float viewHeight, float zNear, float zFar, float* dst", "build", "ortho<true>"},
  {"tarnOrthoOffCenterLH_m4_32f", "float left, float right, float bottom, float top, float zNear, float zFar, float* dst", "build", "orthoOffCenter<true>"},
  {"tarnPerspectiveLH_m4_32f", "float viewWidth, float viewHeight, float zNear, float zFar, float* dst", "build", "perspective<true>"},
  {"tarnPerspectiveOffCenterLH_m4_32f", "float left, float right, float bottom, float top, float zNear, float zFar, float* dst", "build", "perspectiveOffCenter<true>"},
  {"tarnPerspectiveFovLH_m4_32f", "float fovY, float aspect, float zNear, float zFar, float* dst", "build", "perspectiveFov<true>"},
  {"tarnLookAtRH_m4_32f", "const float* eye, const float* at, const float* up, float* dst", "build", "lookAt<false>"},
  {"tarnOrthoRH_m4_32f", "float viewWidth, float viewHeight, float zNear, float zFar, float* dst", "build", "ortho<false>"},
  {"tarnOrthoOffCenterRH_m4_32f", "float left, float right, float bottom, float top, float zNear, float zFar, float* dst", "build", "orthoOffCenter<false>"},
  {"tarnPerspectiveRH_m4_32f", "float viewWidth, float viewHeight, float zNear, float zFar, float* dst", "build", "perspective<false>"},
  {"tarnPerspectiveOffCenterRH_m4_32f", "float left, float right, float bottom, float top, float zNear, float zFar, float* dst", "build", "perspectiveOffCenter<false>"},
  {"tarnPerspectiveFovRH_m4_32f", "float fovY, float aspect, float zNear, float zFar, float* dst", "build", "perspectiveFov<false>"},
  {"tarnRotationX_m4_32f", "float angle, float* dst", "build", "rotationX"},
  {"tarnRotationY_m4_32f", "float angle, float* dst", "build", "rotationY"},
  {"tarnRotationZ_m4_32f", "float angle, float* dst", "build", "rotationZ"},
  {"tarnRotationAxis_v3m4_32f", "const float* axis, float angle, float* dst", "build", "rotationAxis"},
  {"tarnRotationYawPitchRoll_m4_32f", "float yaw, float pitch, float roll, float* dst", "build", "rotationYawPitchRoll"},
  {"tarnScaling_m4_32f", "float sx, float sy, float sz, float* dst", "build", "scaling"},
  {"tarnTranslation_m4_32f", "float tx, float ty, float tz, float* dst", "build", "translation"},
  // Geometry: fixed 4x4 operations.
  {"tarnIdentity_m4_32f", "float* dst", "m4", "identity"},
  {"tarnIsIdentity_m4_32f", "const float* src, int32_t* result", "m4", "isIdentity"},
  {"tarnTranspose_m4_32f", "const float* src, float* dst", "m4", "transpose"},
  {"tarnDet_m4_32f", "const float* src, float* dst", "m4", "det"},
  {"tarnInvert_m4_32f", "const float* src, float* det, float* dst", "m4", "invert"},
  {"tarnMulTranspose_m4_32f", "const float* src1, const float* src2, float* dst", "m4", "mulTranspose"},
  // Geometry: points and normals through a 4x4 matrix, projection.
  {"tarnAffineTransform_m4v2_32f", "const float* matrix, const float* src, float* dst", "xform", "affineOne<2>"},
  {"tarnAffineTransform_m4v2a_32f", "const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count", "xform", "affineArr<2>"},
  {"tarnAffineTransform_m4v3_32f", "const float* matrix, const float* src, float* dst", "xform", "affineOne<3>"},
  {"tarnAffineTransform_m4v3a_32f", "const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count", "xform", "affineArr<3>"},
  {"tarnAffineTransform_m4v4_32f", "const float* matrix, const float* src, float* dst", "xform", "affineOne<4>"},
  {"tarnAffineTransform_m4v4a_32f", "const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count", "xform", "affineArr<4>"},
  {"tarnAffineTransformCoord_m4v2_32f", "const float* matrix, const float* src, float* dst", "xform", "coordV2"},
  {"tarnAffineTransformCoord_m4v2a_32f", "const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count", "xform", "coordV2Arr"},
  {"tarnAffineTransformCoord_m4v3_32f", "const float* matrix, const float* src, float* dst", "xform", "coordV3"},
  {"tarnAffineTransformCoord_m4v3a_32f", "const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count", "xform", "coordV3Arr"},
  {"tarnAffineTransformNormal_m4v2_32f", "const float* matrix, const float* src, float* dst", "xform", "normalOne<2>"},
  {"tarnAffineTransformNormal_m4v2a_32f", "const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count", "xform", "normalArr<2>"},
  {"tarnAffineTransformNormal_m4v3_32f", "const float* matrix, const float* src, float* dst", "xform", "normalOne<3>"},
  {"tarnAffineTransformNormal_m4v3a_32f", "const float* matrix, const float* src, int32_t srcStride, float* dst, int32_t dstStride, int32_t count", "xform", "normalArr<3>"},
  {"tarnProject_m4v3_32f", "const float* projection, const float* view, const float* world, const float* src, float viewportWidth, float viewportHeight, float minZ, float maxZ, float* dst", "xform", "project"},
  {"tarnProject_m4v3a_32f", "const float* projection, const float* view, const float* world, const float* src, int32_t srcStride, float viewportWidth, float viewportHeight, float minZ, float maxZ, float* dst, int32_t dstStride, int32_t count", "xform", "projectArr"},
  {"tarnUnproject_m4v3_32f", "const float* projection, const float* view, const float* world, const float* src, float viewportWidth, float viewportHeight, float minZ, float maxZ, float* dst", "xform", "unproject"},
  {"tarnUnproject_m4v3a_32f", "const float* projection, const float* view, const float* world, const float* src, int32_t srcStride, float viewportWidth, float viewportHeight, float minZ, float maxZ, float* dst, int32_t dstStride, int32_t count", "xform", "unprojectArr"},
};

inline constexpr Override kOverrides[] = {
  {"tarnAdd_vca_64f_P", "NCZT"},  // takes any roiShift as it is
  {"tarnSub_cav_32f_P", "NCZT"},  // takes any roiShift as it is
  {"tarnSub_vva_64f_P", {}, true},  // no wrapper: serial however large E is
  {"tarnCopy_va_32f_LP", "NZCREO"},  // shifts before strides, unlike the 64f twin
  {"tarnCopy_va_32f_SP", "NZCREO"},
  {"tarnExtract_v_32f_P", "NZR"},    // pointers before the size, unlike its siblings
  {"tarnLoadIdentity_ma_32f_P", "NZRCO"},  // the shift before the count, unlike the 64f twin
  {"tarnCrossProduct_vva_64f_P", {}, true},  // no wrapper: serial however large E is
  {"tarnCholeskyBackSubst_mva_32f_L", "NTRZC"},  // strides and shifts before the sizes and the count
  {"tarnCholeskyBackSubst_mva_64f_L", "NTRZC"},
};
// clang-format on

constexpr const Override* overrideOf(std::string_view name) {
  for (const Override& o : kOverrides)
    if (o.name == name) return &o;
  return nullptr;
}

}  // namespace tarn

namespace tarn {

// ---- Shapes for the typed bindings -------------------------------------------------------------
// The C++ header and the Python module give every pointer argument a shape over the size
// arguments: a block with sizes of its own has them; a matrix has widthHeight x widthHeight, or
// height x width as the operation sees it; a vector has len, widthHeight or height elements; a
// product's result has the rows of its left factor and the columns of its right one. A family
// whose blocks are shaped otherwise names them here, by pointer name: `name=rows,cols` for a
// matrix, `name=len` for a vector, each an expression over the sizes.
struct BindShape {
  std::string_view family, shapes;
};

// clang-format off
inline constexpr BindShape kBindShapes[] = {
  {"Transpose", "dst=width,height"},
  {"CrossProduct", "src1=3 src2=3 dst=3"},
  {"QRBackSubst", "src2=height dst=width"},
  {"AffineTransform3DH", "src1=4,4 src2=3 dst=3"},
};
// clang-format on

// Names in the bindings: a family is its name in snake case (LUDecomp -> lu_decomp) unless it
// is named here, where the rule splits a word or a token that reads as one.
struct BindName {
  std::string_view family, name;
};

// clang-format off
inline constexpr BindName kBindNames[] = {
  {"LComb", "lcomb"},
  {"AffineTransform3DH", "affine_transform_3dh"},
  {"BaryCentric", "barycentric"},
};
// clang-format on

// Shapes of the fixed-size members' pointers, which their C lists leave unsaid. A pointer is
// what the pattern names: 4 x 4 where it has no vector (m4, mm4x4), else a vector of n, the
// digit after its first v (v3 -> 3, m4v2a -> 2). Departures are named here, by family or by
// member: `name=rows,cols`, `name=len`, or `name=` for a single element. In the array forms
// (pattern ending in a) `src` and `dst` are arrays of such objects with byte strides
// `srcStride` and `dstStride` and `count` objects.
struct FixedShape {
  std::string_view family, shapes;  // family, or a member's full name
};

// clang-format off
inline constexpr FixedShape kFixedShapes[] = {
  {"DotProduct", "dst="},
  {"Len", "dst="},
  {"LenSqr", "dst="},
  {"tarnCrossProduct_v2_32f", "dst="},
  {"LookAtLH", "eye=3 at=3 up=3"},
  {"LookAtRH", "eye=3 at=3 up=3"},
  {"RotationAxis", "dst=4,4"},
  {"Det", "dst="},
  {"Invert", "det="},
  {"IsIdentity", "result="},
  {"AffineTransform", "matrix=4,4 dst=4"},
  {"AffineTransformCoord", "matrix=4,4"},
  {"AffineTransformNormal", "matrix=4,4"},
  {"Project", "projection=4,4 view=4,4 world=4,4"},
  {"Unproject", "projection=4,4 view=4,4 world=4,4"},
};
// clang-format on

}  // namespace tarn
