#pragma once

#include <ostream>

// What this process holds of the system's.
struct Resources
{
    static Resources Held();
    // More of anything but heap blocks than nothing.
    bool HasObjects() const { return gdiObjects > 0 || windows > 0 || menus > 0 || handles > 0; }

    long gdiObjects;
    long windows; // of this thread, those for messages alone included
    long menus;
    long handles; // of the kernel
    long heapBlocks;
};

// The lower of both numbers of each kind.
Resources Least(const Resources& left, const Resources& right);
Resources operator-(const Resources& left, const Resources& right);
std::ostream& operator<<(std::ostream& stream, const Resources& resources);
