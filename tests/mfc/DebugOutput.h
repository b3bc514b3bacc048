#pragma once

#include <string>
#include <vector>

namespace test
{
// Keeps what is written for a debugger while it lives. One at a time.
class DebugOutput
{
public:
    DebugOutput();
    ~DebugOutput();
    DebugOutput(const DebugOutput&) = delete;
    DebugOutput& operator=(const DebugOutput&) = delete;

    std::vector<std::string> lines;

private:
    void* m_handler;
};
} // namespace test
