// Parallel regions opened by the library, counted through the runtime's entry that every region
// with a requested team size passes through: __kmpc_push_num_threads for code clang compiled,
// GOMP_parallel for code GCC compiled (libomp serves both).
#pragma once

#include <functional>

namespace tt {

// Runs `fn` and returns how many regions the library opened meanwhile.
int regionsOpenedBy(const std::function<void()>& fn);

}  // namespace tt
