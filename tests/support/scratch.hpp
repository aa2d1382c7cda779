// The per-thread scratch of the parallel wrappers, seen from the runtime's allocator: the test
// executable stands in front of kmpc_malloc and kmpc_free, hands out blocks filled with canaries
// and a canary tail behind them, and keeps what each block holds when it is released.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace tt {

struct ScratchBlock {
  size_t bytes = 0;              // as asked for
  std::vector<uint8_t> content;  // the block and its tail of kScratchTail canaries, at release
  bool released = false;
};

inline constexpr size_t kScratchTail = 64;

// Runs fn and returns the blocks the library took meanwhile.
std::vector<ScratchBlock> scratchDuring(const std::function<void()>& fn);

}  // namespace tt
