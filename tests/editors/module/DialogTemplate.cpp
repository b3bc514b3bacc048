#include "tests/editors/module/DialogTemplate.h"

#include <cstring>
#include <stdexcept>

namespace
{
constexpr WORD kExtendedSignature = 0xFFFF;
constexpr WORD kOrdinal = 0xFFFF;

class Reader
{
public:
    explicit Reader(const void* bytes) : m_start(static_cast<const char*>(bytes)), m_at(m_start) {}

    template <class T>
    T Read()
    {
        T value;
        std::memcpy(&value, m_at, sizeof(value));
        m_at += sizeof(value);
        return value;
    }

    void Skip(std::size_t bytes) { m_at += bytes; }
    void Align() { m_at = m_start + ((m_at - m_start + 3) & ~std::ptrdiff_t{3}); }

    std::wstring ReadText()
    {
        std::wstring text;
        for (auto c = Read<wchar_t>(); c; c = Read<wchar_t>())
            text += c;
        return text;
    }

    // A name or "#" and the number.
    std::wstring ReadNameOrOrdinal()
    {
        const auto first = Read<wchar_t>();
        if (first == kOrdinal)
            return L"#" + std::to_wstring(Read<WORD>());
        return first ? first + ReadText() : std::wstring();
    }

    RECT ReadArea()
    {
        const LONG left = Read<short>();
        const LONG top = Read<short>();
        const LONG width = Read<short>();
        const LONG height = Read<short>();
        return {left, top, left + width, top + height};
    }

private:
    const char* m_start;
    const char* m_at;
};

// The resource compiler writes a class's number or its name in any case.
std::wstring ClassName(const std::wstring& name)
{
    static const std::wstring names[] = {L"Button", L"Edit", L"Static", L"ListBox", L"ScrollBar", L"ComboBox"};
    for (std::size_t i = 0; i < std::size(names); ++i)
        if (name == L"#" + std::to_wstring(0x80 + i) || lstrcmpiW(name.c_str(), names[i].c_str()) == 0)
            return names[i];
    return name;
}

TemplateControl ReadControl(Reader& reader)
{
    TemplateControl control{};
    reader.Align();
    reader.Skip(2 * sizeof(DWORD)); // help id, extended style
    control.style = reader.Read<DWORD>();
    control.area = reader.ReadArea();
    control.id = reader.Read<int>();
    control.className = ClassName(reader.ReadNameOrOrdinal());
    control.text = reader.ReadNameOrOrdinal();
    reader.Skip(reader.Read<WORD>());
    return control;
}

DialogTemplate ReadTemplate(int id, const void* bytes)
{
    Reader reader(bytes);
    DialogTemplate result{};
    result.id = id;
    if (reader.Read<WORD>() != 1 || reader.Read<WORD>() != kExtendedSignature)
        throw std::runtime_error("dialog " + std::to_string(id) + " is no extended template");
    reader.Skip(2 * sizeof(DWORD)); // help id, extended style
    result.style = reader.Read<DWORD>();
    const auto count = reader.Read<WORD>();
    const RECT area = reader.ReadArea();
    result.size = {area.right - area.left, area.bottom - area.top};
    reader.ReadNameOrOrdinal(); // menu
    reader.ReadNameOrOrdinal(); // class
    result.caption = reader.ReadText();
    if (result.style & DS_SETFONT)
    {
        result.fontSize = reader.Read<WORD>();
        reader.Skip(sizeof(WORD) + 2); // weight, italic, character set
        result.fontName = reader.ReadText();
    }
    for (WORD i = 0; i < count; ++i)
        result.controls.push_back(ReadControl(reader));
    return result;
}

HMODULE Resources()
{
    static const HMODULE module = LoadLibraryExW(L"Quorvane.dll", nullptr, LOAD_LIBRARY_AS_DATAFILE);
    return module;
}

BOOL CALLBACK AddTemplate(HMODULE module, LPCWSTR type, LPWSTR name, LONG_PTR templates)
{
    const HGLOBAL resource = LoadResource(module, FindResourceW(module, name, type));
    reinterpret_cast<std::vector<DialogTemplate>*>(templates)->push_back(
        ReadTemplate(static_cast<int>(reinterpret_cast<ULONG_PTR>(name)), LockResource(resource)));
    return TRUE;
}
} // namespace

const TemplateControl* DialogTemplate::Find(int controlId) const
{
    for (const TemplateControl& control : controls)
        if (control.id == controlId)
            return &control;
    return nullptr;
}

std::vector<DialogTemplate> AllDialogTemplates()
{
    std::vector<DialogTemplate> templates;
    EnumResourceNamesW(Resources(), reinterpret_cast<LPCWSTR>(RT_DIALOG), &AddTemplate,
                       reinterpret_cast<LONG_PTR>(&templates));
    return templates;
}

DialogTemplate FindDialogTemplate(int id)
{
    for (const DialogTemplate& dialog : AllDialogTemplates())
        if (dialog.id == id)
            return dialog;
    throw std::runtime_error("the DLL has no dialog " + std::to_string(id));
}
