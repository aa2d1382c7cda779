#include "validate.hpp"

namespace tarn {
namespace {

bool badStride(int32_t s, int32_t esize) { return s < 1 || s % esize != 0; }
bool badShift(int32_t s, int32_t esize) { return s < 0 || s % esize != 0; }

tarnStatus check(char letter, const Call& c, int32_t esize) {
  switch (letter) {
    case 'N':
      for (int i = 0; i < c.nop; ++i)
        if (c.op[i].ptr == nullptr) return tarnStatusNullPointer;
      return tarnStatusOk;
    case 'C':
      return c.hasCount && c.count < 1 ? tarnStatusBadCount : tarnStatusOk;
    case 'Z':
      if (((c.sizes & kWidth) && c.width < 1) || ((c.sizes & kHeight) && c.height < 1) ||
          ((c.sizes & kLen) && c.len < 1))
        return tarnStatusBadSize;
      return tarnStatusOk;
    case 'T':
    case 'E':
    case 'O': {
      // T: every stride; E: row and element strides; O: object strides, which matter, and so
      // are checked, only when there is more than one object.
      if (letter == 'O' && c.count <= 1) return tarnStatusOk;
      const uint8_t fields = letter == 'T' ? (kObj | kRow | kElem) : letter == 'E' ? (kRow | kElem) : kObj;
      for (int i = 0; i < c.nop; ++i) {
        const Blk& b = c.op[i];
        const uint8_t f = b.has & fields;
        if (((f & kObj) && badStride(b.obj, esize)) || ((f & kRow) && badStride(b.row, esize)) ||
            ((f & kElem) && badStride(b.elem, esize)))
          return tarnStatusBadStride;
      }
      return tarnStatusOk;
    }
    case 'R':
      for (int i = 0; i < c.nop; ++i)
        if ((c.op[i].has & kRoi) && badShift(c.op[i].roi, esize)) return tarnStatusBadRoiShift;
      return tarnStatusOk;
    default:
      return tarnStatusOk;  // the generator admits no other letter
  }
}

}  // namespace

tarnStatus validate(const char* checks, const Call& c, int32_t esize) {
  for (const char* p = checks; *p; ++p)
    if (const tarnStatus s = check(*p, c, esize)) return s;
  return tarnStatusOk;
}

}  // namespace tarn
