// How much memory programs use.
#ifndef TEST_MEMORYUSE_H
#define TEST_MEMORYUSE_H

#include <cstddef>

// Bytes that this program has taken from the heap.
std::size_t heapInUse();

// Kibibytes of memory that a process has, by its number or "self"; 0 if it cannot be told.
std::size_t residentMemory(const char* process);

#endif
