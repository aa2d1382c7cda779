// The exported surface as data.
//
// One row per family pattern. The generator (gen/tarngen.cpp) expands every row over the two
// element types and the layouts the pattern exists in, sorts the names by bytes and writes the
// public header, the assembly stubs, EntrySlotTable and one binding per export. A member that
// departs from its row gets an override keyed by its full name, never a special case in code.
//
// Check letters run left to right; the first failing one decides the status:
//   N null pointer   C count < 1   Z size < 1   H shape
//   T every stride of the call (object, row, element, valObjStride)
//   E row and element strides only       O object strides only, and only when count > 1
//   R every roiShift
#pragma once

#include <cstdint>
#include <string_view>

namespace tarn {

enum class Layout : uint8_t { S, L, P };

// How the argument list of a member follows from its pattern.
enum class Sig : uint8_t {
  Operands,  // operand blocks in pattern order (vector before constant), dst, sizes, count
  Scaled1,   // src1, val, src2, dst, len, count: a scalar behind the operand it multiplies
  Scaled2,   // src1, val1, src2, val2, dst, len, count
  Copy,      // src block, dst block, sizes, count; two layout letters in the name
  Extract,   // src block, plain dst pointer, sizes, count
  Fill,      // dst block, sizes, count
  Transpose, // src block, width, height, dst block, count
  Version,   // no arguments, returns the version record
};

// Work estimate E, formed in wrapping 32-bit arithmetic.
enum class Est : uint8_t {
  None,
  TwoCountPlusOneWH,        // (2*count+1)*width*height
  ThreeCountWH,             // 3*count*width*height
  TwoLenCountPlusLen,       // 2*len*count+len
  TwoLenCountPlusCount,     // 2*len*count+count
  ThreeLenCount,            // 3*len*count
  LenCountPlusLenPlusCount, // len*count+len+count
  TwoCount,                 // 2*count
};

// The smallest E that goes to the parallel wrapper, per path.
struct Thr {
  int32_t sC = 0, sG = 0;  // LayoutS contiguous / general
  int32_t lC = 0, lG = 0;  // LayoutL contiguous / general
  int32_t p = 0;           // LayoutP
};

constexpr Thr thr(int32_t s, int32_t l, int32_t p) { return {s, s, l, l, p}; }

struct Row {
  std::string_view family;
  std::string_view pattern;
  std::string_view impl;  // C++ namespace holding run<>() for this row
  Sig sig;
  std::string_view checksS, checksL, checksP;
  Est est = Est::None;
  Thr t32{}, t64{};
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

// What a binding hands to its family: the resolved row for one export.
struct Plan {
  const char* checks;
  Est est;
  int32_t thrC, thrG;  // equal where the path has one threshold
  bool parallel;
};

inline constexpr int32_t kElemMatS = 36864, kElemMatG = 18432, kElemMatP = 9216;
inline constexpr Thr kElemMat{kElemMatS, kElemMatG, kElemMatG, kElemMatG, kElemMatP};
inline constexpr Thr kElemVec32 = thr(20001, 40001, 20001), kElemVec64 = thr(20001, 20001, 20001);
inline constexpr Thr kSaxpy = thr(40001, 40001, 40001);
inline constexpr Thr kLComb32{20001, 20001, 40001, 20001, 20001}, kLComb64 = thr(20001, 20001, 20001);

// clang-format off
inline constexpr Row kRows[] = {
  {"GetLibVersion", "", "version", Sig::Version, "", "", ""},

  // Add: element-wise sums. Matrix arrays choose their threshold after the contiguity test,
  // vector arrays test E first against one threshold; both end the same way here.
  {"Add", "mm",   "add", Sig::Operands, "NZT", "", "NZR"},
  {"Add", "tm",   "add", Sig::Operands, "NZT", "", "NZR"},
  {"Add", "tt",   "add", Sig::Operands, "NZT", "", "NZR"},
  {"Add", "vv",   "add", Sig::Operands, "NZT", "", "NZR"},
  {"Add", "vc",   "add", Sig::Operands, "NZT", "", "NZR"},
  {"Add", "mam",  "add", Sig::Operands, "NCTZ", "NCZTR", "NCZTR", Est::TwoCountPlusOneWH, kElemMat, kElemMat},
  {"Add", "tam",  "add", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoCountPlusOneWH, kElemMat, kElemMat},
  {"Add", "mat",  "add", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoCountPlusOneWH, kElemMat, kElemMat},
  {"Add", "tat",  "add", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoCountPlusOneWH, kElemMat, kElemMat},
  {"Add", "mama", "add", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::ThreeCountWH, kElemMat, kElemMat},
  {"Add", "tama", "add", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::ThreeCountWH, kElemMat, kElemMat},
  {"Add", "tata", "add", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::ThreeCountWH, kElemMat, kElemMat},
  {"Add", "vav",  "add", Sig::Operands, "NZTC", "NZTRC", "NZTCR", Est::TwoLenCountPlusLen, kElemVec32, kElemVec64},
  {"Add", "vava", "add", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::ThreeLenCount, kElemVec32, kElemVec64},
  {"Add", "vac",  "add", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoLenCountPlusLen, kElemVec32, kElemVec64},
  {"Add", "vca",  "add", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::LenCountPlusLenPlusCount, kElemVec32, kElemVec64},
  {"Add", "vaca", "add", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoLenCountPlusCount, kElemVec32, kElemVec64},

  // Sub: element-wise differences, the minuend first in the pattern. Add's rows plus the forms
  // addition leaves out; the constant-first forms share the argument list of their twins.
  {"Sub", "mm",   "sub", Sig::Operands, "NZT", "", "NZR"},
  {"Sub", "mt",   "sub", Sig::Operands, "NZT", "", "NZR"},
  {"Sub", "tm",   "sub", Sig::Operands, "NZT", "", "NZR"},
  {"Sub", "tt",   "sub", Sig::Operands, "NZT", "", "NZR"},
  {"Sub", "vv",   "sub", Sig::Operands, "NZT", "", "NZR"},
  {"Sub", "vc",   "sub", Sig::Operands, "NZT", "", "NZR"},
  {"Sub", "cv",   "sub", Sig::Operands, "NZT", "", "NZR"},
  {"Sub", "mam",  "sub", Sig::Operands, "NCTZ", "NCZTR", "NCZTR", Est::TwoCountPlusOneWH, kElemMat, kElemMat},
  {"Sub", "tam",  "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoCountPlusOneWH, kElemMat, kElemMat},
  {"Sub", "mat",  "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoCountPlusOneWH, kElemMat, kElemMat},
  {"Sub", "tat",  "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoCountPlusOneWH, kElemMat, kElemMat},
  {"Sub", "mma",  "sub", Sig::Operands, "NCTZ", "NCZTR", "NCZTR", Est::TwoCountPlusOneWH, kElemMat, kElemMat},
  {"Sub", "mta",  "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoCountPlusOneWH, kElemMat, kElemMat},
  {"Sub", "tma",  "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoCountPlusOneWH, kElemMat, kElemMat},
  {"Sub", "tta",  "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoCountPlusOneWH, kElemMat, kElemMat},
  {"Sub", "mama", "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::ThreeCountWH, kElemMat, kElemMat},
  {"Sub", "mata", "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::ThreeCountWH, kElemMat, kElemMat},
  {"Sub", "tama", "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::ThreeCountWH, kElemMat, kElemMat},
  {"Sub", "tata", "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::ThreeCountWH, kElemMat, kElemMat},
  {"Sub", "vav",  "sub", Sig::Operands, "NZTC", "NZTRC", "NZTCR", Est::TwoLenCountPlusLen, kElemVec32, kElemVec64},
  {"Sub", "vva",  "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoLenCountPlusLen, kElemVec32, kElemVec64},
  {"Sub", "vava", "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::ThreeLenCount, kElemVec32, kElemVec64},
  {"Sub", "vac",  "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoLenCountPlusLen, kElemVec32, kElemVec64},
  {"Sub", "cva",  "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoCount,
   thr(20000, 40000, 20000), thr(20000, 20000, 20000)},  // counts objects only, not their lengths
  {"Sub", "vca",  "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::LenCountPlusLenPlusCount, kElemVec32, kElemVec64},
  {"Sub", "cav",  "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::LenCountPlusLenPlusCount, kElemVec32, kElemVec64},
  {"Sub", "vaca", "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoLenCountPlusCount, kElemVec32, kElemVec64},
  {"Sub", "cava", "sub", Sig::Operands, "NCZT", "NCZTR", "NCZTR", Est::TwoLenCountPlusCount, kElemVec32, kElemVec64},

  // Saxpy and LComb: a scalar by value right behind the operand it multiplies. Saxpy has one
  // threshold for every layout and path; LComb's LayoutL 32f contiguous path starts later.
  {"Saxpy", "vv",   "saxpy", Sig::Scaled1, "NZT", "", "NZR"},
  {"Saxpy", "vav",  "saxpy", Sig::Scaled1, "NCZT", "NCZTR", "NCZTR", Est::TwoLenCountPlusLen, kSaxpy, kSaxpy},
  {"Saxpy", "vva",  "saxpy", Sig::Scaled1, "NCZT", "NCZTR", "NCZTR", Est::TwoLenCountPlusLen, kSaxpy, kSaxpy},
  {"Saxpy", "vava", "saxpy", Sig::Scaled1, "NCZT", "NCZTR", "NCZTR", Est::ThreeLenCount, kSaxpy, kSaxpy},
  {"LComb", "vv",   "lcomb", Sig::Scaled2, "NZT", "", "NZR"},
  {"LComb", "vav",  "lcomb", Sig::Scaled2, "NCZT", "NCZTR", "NCZTR", Est::TwoLenCountPlusLen, kLComb32, kLComb64},
  {"LComb", "vava", "lcomb", Sig::Scaled2, "NCZT", "NCZTR", "NCZTR", Est::ThreeLenCount, kLComb32, kLComb64},

  // Data movement: layout conversion, gathering, identity fill, transposition. Always serial.
  // Copy checks sizes before count, and object strides only when count > 1, last.
  {"Copy", "ma", "copy", Sig::Copy, "NZCERO", "NZCERO", "NZCERO"},
  {"Copy", "va", "copy", Sig::Copy, "NZCERO", "NZCERO", "NZCERO"},
  {"Extract", "m",  "extract", Sig::Extract, "NZT", "", "ZNR"},
  {"Extract", "t",  "extract", Sig::Extract, "NZT", "", "ZNR"},
  {"Extract", "v",  "extract", Sig::Extract, "NZT", "", "ZNR"},
  {"Extract", "ma", "extract", Sig::Extract, "NZCT", "NZCRT", "NZCRT"},
  {"Extract", "ta", "extract", Sig::Extract, "NZCT", "NZCRT", "NZCRT"},
  {"Extract", "va", "extract", Sig::Extract, "NZCT", "NZCRT", "NZCRT"},
  {"LoadIdentity", "ma", "load_identity", Sig::Fill, "NZCEO", "NZCER", "NZCRO"},
  {"Transpose", "m",  "transpose", Sig::Transpose, "NZT", "", "NZR"},
  {"Transpose", "ma", "transpose", Sig::Transpose, "NCZT", "NCZTR", "NCZTR"},
};

inline constexpr FamilyDoc kDocs[] = {
  {"GetLibVersion", "Returns the constant version record of the library."},
  {"Add", "Element-wise sum of the two operands, one rounded addition per element."},
  {"Sub", "Element-wise difference, the operand named first minus the other, one rounded subtraction per element."},
  {"Saxpy", "dst = src1*val + src2 per element: the product and the sum each rounded, never fused."},
  {"LComb", "dst = src1*val1 + src2*val2 per element: both products and the sum each rounded, never fused."},
  {"Copy", "Copies an array of matrices or vectors from one layout to another, element by element as raw bits."},
  {"Extract", "Gathers an operand into one dense buffer, row by row; a t operand arrives transposed."},
  {"LoadIdentity", "Fills every matrix of the array with ones on the main diagonal and zeros elsewhere."},
  {"Transpose", "Writes the transpose of each matrix: dst has width rows and height columns."},
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

}  // namespace tarn
