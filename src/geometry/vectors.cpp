// Fixed float 2-, 3- and 4-vectors: the exports of the templates in vectors.hpp.
#include "vectors.hpp"

#define TARN_IMPL_vec
#include "bindings.hpp"
