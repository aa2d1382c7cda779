// The bindings of one family's exports. A family's source ends with
//   #define TARN_IMPL_<impl>
//   #include "bindings.hpp"
// and so gets, from the member table, one entry per export of its rows: the flat C arguments
// turned into a call descriptor, the checks, E, and the call of the family's run<>().
#include "call.hpp"
#include "dispatch.hpp"
#include "members.hpp"
#include "validate.hpp"

#define TARN_HIDDEN __attribute__((visibility("hidden")))
using namespace tarn;
#include "entries.inc"
