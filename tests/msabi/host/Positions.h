#pragma once

#include "tables/Signatures.h"

using tables::InterfaceId;
using tables::Position;

constexpr unsigned kMaxPositions = 72;

// The operations of an interface that the library may call, and how often it has called each.
struct InterfaceTable
{
    const char* name;
    const Position* positions;
    unsigned positionCount;
    // The compiler's own table of the host's class.
    void* const* operations;
    unsigned calls[kMaxPositions];
};

InterfaceTable& TableOf(InterfaceId interface_);

// The library's promise of an operation's first argument, where 32 bits are a truth value.
bool TakesTruth(const InterfaceTable& table, const Position& position);
