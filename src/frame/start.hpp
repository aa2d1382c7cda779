// Load-time start-up and the version record.
#pragma once

#include <cstdint>

#include "tarn.h"

namespace tarn {

// 1 when the processor reports both feature bits 0x10 and 0x20 at load, else 0. Written once by
// the load handler and read by nothing: no path of the library depends on it.
extern int32_t featuresFlag;

// The flag the load handler derives from a feature mask.
int32_t featuresFlagOf(uint64_t mask);

extern const tarnLibraryVersion tarnLibraryVersionRecord;

}  // namespace tarn
