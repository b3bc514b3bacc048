#pragma once

#include <cstdint>

class IPrintConfig;

/// The print configurations in the host's order. Schemes store the index of their configuration in 8 bits
/// (SetConfigIndex), so only the first 256 configurations can have schemes.
///
/// Order of calls: to add a configuration, the library calls IHostData::CreateConfig, the setters of the new object,
/// AddConfig and IHostData::DestroyConfig. After RemoveAt it removes the schemes that have the removed index from both
/// scheme lists. Renumbering the schemes of later configurations is up to the host.
class IConfigList
{
public:
    virtual void Reserved0() {}  // 0
    virtual void Reserved1() {}  // 1
    virtual void Reserved2() {}  // 2
    virtual void Reserved3() {}  // 3
    virtual void Reserved4() {}  // 4
    virtual void Reserved5() {}  // 5
    virtual void Reserved6() {}  // 6
    virtual void Reserved7() {}  // 7
    virtual void Reserved8() {}  // 8
    virtual void Reserved9() {}  // 9
    virtual void Reserved10() {} // 10
    virtual void Reserved11() {} // 11
    virtual void Reserved12() {} // 12
    virtual void Reserved13() {} // 13

    /// Number of configurations; 0 for none.
    virtual std::uint32_t GetCount() = 0; // 14

    /// The configuration at an index from 0 to GetCount() - 1, or null for none. Owned by the host, valid until
    /// RemoveAt of the same index. A null configuration keeps its row in the editor's list, and the row does nothing.
    virtual IPrintConfig* GetAt(std::uint32_t index) = 0; // 15

    virtual void Reserved16() {} // 16
    virtual void Reserved17() {} // 17

    /// Appends a copy of source. The library destroys source right after the call, so keep no pointer to it. The
    /// library has set the fields of source but no print modes; give the copy default modes or none. Returns non-zero
    /// if the configuration was added. 0 refuses it: the editor then shows no new row. One byte is read.
    virtual std::uint8_t AddConfig(IPrintConfig* source) = 0; // 18

    /// Removes the configuration at an index below GetCount(), with its print modes. Later ones move down by one.
    virtual void RemoveAt(std::uint32_t index) = 0; // 19

protected:
    ~IConfigList() = default;
};
