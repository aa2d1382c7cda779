/* A program built against an installed tarn: sums two batches of packed 3x3 float matrices and
 * prints the version of the library it runs with. */
#include <stdio.h>
#include <tarn.h>

int main(void) {
  enum { kCount = 4, kElems = kCount * 9 };
  float a[kElems], b[kElems], d[kElems];
  for (int i = 0; i < kElems; ++i) {
    a[i] = (float)i;
    b[i] = 0.5f * (float)i;
  }
  /* Objects 36 bytes apart, rows 12, elements 4. */
  const tarnStatus s = tarnAdd_mama_32f(a, 36, 12, 4, b, 36, 12, 4, d, 36, 12, 4, 3, 3, kCount);
  if (s != tarnStatusOk) {
    fprintf(stderr, "tarnAdd_mama_32f: status %d\n", (int)s);
    return 1;
  }
  for (int i = 0; i < kElems; ++i)
    if (d[i] != a[i] + b[i]) {
      fprintf(stderr, "element %d: %g, expected %g\n", i, d[i], a[i] + b[i]);
      return 1;
    }
  const tarnLibraryVersion* v = tarnGetLibVersion();
  printf("tarn %d.%d (%s): %d matrices summed\n", (int)v->major, (int)v->minor, v->name, kCount);
  return 0;
}
