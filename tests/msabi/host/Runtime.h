#pragma once

#include <stddef.h>
#include <stdint.h>

// What stands in for a run-time library: the host has a heap of its own, which no other module knows.

void* Allocate(size_t bytes);
// A block of another heap is a fault, and is left alone.
void Free(void* block);

unsigned Deletes();
void ForgetDeletes();
