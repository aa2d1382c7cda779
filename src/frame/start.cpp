#include "start.hpp"

#include "call.hpp"
#include "members.hpp"
#include "platform.hpp"

namespace tarn {

int32_t featuresFlag = 0;

int32_t featuresFlagOf(uint64_t mask) { return (mask & 0x10) && (mask & 0x20) ? 1 : 0; }

const tarnLibraryVersion tarnLibraryVersionRecord = {
    7, 1, 1, 37466, {'e', '2', 0, 0}, "tarn SSE3 (e2)", "7.1.1 (r37466)", "Sep 24 2012",
};

namespace {

// Runs when the shared object is attached to a process; there is no detach work. Loading
// cannot fail.
__attribute__((constructor)) void onProcessAttach() { featuresFlag = featuresFlagOf(ownGetEnabledCpuFeatures()); }

}  // namespace

namespace version {
const tarnLibraryVersion* run() { return &tarnLibraryVersionRecord; }
}  // namespace version

}  // namespace tarn

#define TARN_IMPL_version
#include "bindings.hpp"
