#ifndef VARO_BENCH_HEAP_USE_HPP
#define VARO_BENCH_HEAP_USE_HPP

#include <cstddef>

namespace Bench {

/// How often the program has asked for memory so far, by whatever function: heap_use.cpp stands before the C library's.
std::size_t allocationCount();

/// Bytes on the heap that are in use.
std::size_t heapBytes();

}  // namespace Bench

#endif
