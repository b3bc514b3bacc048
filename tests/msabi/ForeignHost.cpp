#include "tests/msabi/ForeignHost.h"

#include "tests/support/Library.h"

#include <gtest/gtest.h>
#include <sstream>

namespace
{
const HostApi& LoadedApi()
{
    static const HMODULE module = LoadLibraryW(L"MsAbiHost.dll");
    if (!module)
        throw std::runtime_error("MsAbiHost.dll cannot be loaded");
    const auto address = reinterpret_cast<void*>(GetProcAddress(module, "GetHostApi"));
    return *reinterpret_cast<GetHostApiFunction>(address)();
}

void* LibraryExport(const char* name)
{
    return reinterpret_cast<void*>(GetProcAddress(Library::Loaded().Module(), name));
}

Lines LinesOf(const char* text)
{
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}
} // namespace

ForeignHost::ForeignHost() : m_api(LoadedApi())
{
    m_api.Start(LibraryExport("NewInterface"), LibraryExport("ReleaseInterface"));
}

void ForeignHost::RunBy(int(__cdecl* edit)(Editor, const wchar_t*), Editor editor, const Script& script)
{
    EXPECT_EQ(RunEditor([&] { return edit(editor, m_language.Path().c_str()); }, script), 1);
    EXPECT_EQ(Faults(), Lines());
}

int ForeignHost::RunAndCatch(Editor editor, const Script& script)
{
    return RunEditor([&] { return m_api.EditAndCatch(editor, m_language.Path().c_str()); }, script);
}

Lines ForeignHost::Faults() const
{
    return LinesOf(m_api.Faults());
}

Lines ForeignHost::TakeChanges()
{
    const Lines changes = LinesOf(m_api.Changes());
    m_api.ForgetChanges();
    return changes;
}

Lines ForeignHost::Values() const
{
    return LinesOf(m_api.Values());
}

Lines ForeignHost::UncalledPositions() const
{
    Lines uncalled;
    for (unsigned i = 0; i < m_api.PositionCount(); ++i)
        if (m_api.PositionCalls(i) == 0)
            uncalled.push_back(m_api.PositionName(i));
    return uncalled;
}
