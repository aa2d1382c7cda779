#include "validate.hpp"

namespace tarn {
namespace {

// Element sizes are powers of two (4, 8): whether a stride is a multiple is a test of its low
// bits, which spares every stride of every call an integer division.
bool notMultiple(int32_t s, int32_t esize) {
  return (esize & (esize - 1)) == 0 ? (s & (esize - 1)) != 0 : s % esize != 0;
}
bool badStride(int32_t s, int32_t esize) { return s < 1 || notMultiple(s, esize); }
bool badShift(int32_t s, int32_t esize) { return s < 0 || notMultiple(s, esize); }

// Rows and columns of an operand as the product sees it: sizes describe it as stored, a `t`
// operand is read transposed, a vector is a column.
int32_t seenRows(const Blk& b) { return b.kind == 't' ? b.w : b.kind == 'v' ? b.w : b.h; }
int32_t seenCols(const Blk& b) { return b.kind == 't' ? b.h : b.kind == 'v' ? 1 : b.w; }

// The factors' inner dimensions agree; a third source (Gaxpy's addend) has the product's rows.
bool shapeHolds(Rule rule, const Call& c) {
  switch (rule) {
    case Rule::None: return true;
    case Rule::Tall: return c.width <= c.height;
    case Rule::Product: {
      const Blk* src[3] = {};
      int n = 0;
      for (int i = 0; i < c.nop && n < 3; ++i)
        if (!c.op[i].out && c.op[i].kind != 0 && c.op[i].kind != 'c') src[n++] = &c.op[i];
      if (seenCols(*src[0]) != seenRows(*src[1])) return false;
      return n < 3 || seenRows(*src[0]) == src[2]->w;
    }
  }
  return true;
}

tarnStatus check(char letter, char scope, Rule rule, const Call& c, int32_t esize) {
  auto inScope = [&](const Blk& b) { return scope == 0 || (scope == 'd') == b.out; };
  switch (letter) {
    case 'N':
      for (int i = 0; i < c.nop; ++i)
        if (inScope(c.op[i]) && c.op[i].ptr == nullptr) return tarnStatusNullPointer;
      return tarnStatusOk;
    case 'C':
      return c.hasCount && c.count < 1 ? tarnStatusBadCount : tarnStatusOk;
    case 'Z':
      if (((c.sizes & kSizeWidth) && c.width < 1) || ((c.sizes & kSizeHeight) && c.height < 1) ||
          ((c.sizes & kSizeLen) && c.len < 1) || ((c.sizes & kSizeOrder) && c.order < 1))
        return tarnStatusBadSize;
      for (int i = 0; i < c.nop; ++i)
        if (((c.op[i].has & kWidth) && c.op[i].w < 1) || ((c.op[i].has & kHeight) && c.op[i].h < 1))
          return tarnStatusBadSize;
      return tarnStatusOk;
    case 'H':
      return shapeHolds(rule, c) ? tarnStatusOk : tarnStatusShapeMismatch;
    case 'T':
    case 'E':
    case 'O': {
      // T: every stride; E: row and element strides; O: object strides, which matter, and so
      // are checked, only when there is more than one object.
      if (letter == 'O' && c.count <= 1) return tarnStatusOk;
      const uint8_t fields = letter == 'T' ? (kObj | kRow | kElem) : letter == 'E' ? (kRow | kElem) : kObj;
      for (int i = 0; i < c.nop; ++i) {
        const Blk& b = c.op[i];
        const uint8_t f = inScope(b) ? b.has & fields : 0;
        if (((f & kObj) && badStride(b.obj, esize)) || ((f & kRow) && badStride(b.row, esize)) ||
            ((f & kElem) && badStride(b.elem, esize)))
          return tarnStatusBadStride;
      }
      return tarnStatusOk;
    }
    case 'R':
      for (int i = 0; i < c.nop; ++i)
        if (inScope(c.op[i]) && (c.op[i].has & kRoi) && badShift(c.op[i].roi, esize)) return tarnStatusBadRoiShift;
      return tarnStatusOk;
    default:
      return tarnStatusOk;  // the generator admits no other letter
  }
}

}  // namespace

tarnStatus validate(const char* checks, Rule rule, const Call& c, int32_t esize) {
  for (const char* p = checks; *p; ++p) {
    const char letter = *p;
    const char scope = p[1] == 's' || p[1] == 'd' ? *++p : 0;
    if (const tarnStatus s = check(letter, scope, rule, c, esize)) return s;
  }
  return tarnStatusOk;
}

}  // namespace tarn
