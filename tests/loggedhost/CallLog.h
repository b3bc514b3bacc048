// Writes down every call that the host receives, in order, as text.
#pragma once

#include <mutex>
#include <string>
#include <vector>

// A call reads as `IPrintMode[0.2].SetPassCount(6)`. In brackets stands which object it is: the places of its
// parents and its own, counted in the order in which the objects came to be, so that no two objects of one list
// share a number even after removals. Text arguments stand in quotes with bytes outside printable ASCII as \xNN, a
// null pointer is `null`, an object is its place.
//
// The log may be read on another thread while an editor runs.
class CallLog
{
public:
    enum class Kind
    {
        Read,  // a getter
        Change // everything else
    };

    enum class Level
    {
        Nothing,
        Changes,
        Everything
    };

    void SetLevel(Level level) { m_level = level; }
    bool Wants(Kind kind) const;

    void Record(Kind kind, const std::string& call);

    // For a call that no host must ever receive, e.g. on an object that was removed. Recorded at every level.
    void RecordViolation(const std::string& what);

    std::vector<std::string> Changes() const;
    std::vector<std::string> Everything() const;
    std::vector<std::string> Violations() const;
    void Clear();

private:
    struct Call
    {
        Kind kind;
        std::string text;
    };

    mutable std::mutex m_mutex;
    Level m_level = Level::Everything;
    std::vector<Call> m_calls;
    std::vector<std::string> m_violations;
};
