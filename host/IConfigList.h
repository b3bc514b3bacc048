#pragma once

#include <cstdint>

class IPrintConfig;

/// The print configurations in the host's order. A configuration's index in this list is what schemes store
/// (SetConfigIndex, 8 bits), so a machine has room for 256.
///
/// Order of calls: read by GetCount and GetAt; a new configuration comes by IHostData::CreateConfig, its setters,
/// AddConfig, IHostData::DestroyConfig. After RemoveAt the library itself removes the schemes whose configuration index
/// is the removed one; it does not renumber those that refer to later configurations.
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

    /// The configuration at an index from 0 to GetCount() - 1. Owned by the host. Null where there is none; its row is
    /// kept on the screen and does nothing. Valid until RemoveAt of the same index.
    virtual IPrintConfig* GetAt(std::uint32_t index) = 0; // 15

    virtual void Reserved16() {} // 16
    virtual void Reserved17() {} // 17

    /// Appends a copy of source at the end. The source stays the library's and is destroyed right after; keep no
    /// pointer to it. Only its own fields are set; print modes are the host's to provide, as defaults or none. Returns
    /// non-zero when it was added (one byte is read); 0 refuses it, and the editor then shows no new row.
    virtual std::uint8_t AddConfig(IPrintConfig* source) = 0; // 18

    /// Removes the configuration at an index with its print modes; later ones move down by one.
    /// The index is below GetCount().
    virtual void RemoveAt(std::uint32_t index) = 0; // 19

protected:
    ~IConfigList() = default;
};
