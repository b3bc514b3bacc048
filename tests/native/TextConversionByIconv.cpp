#include "refhost/TextConversion.h"

#include <iconv.h>
#include <map>
#include <memory>
#include <stdexcept>

#include "tests/native/Utf.h"

// The C library has the code pages that a machine can have.
namespace
{

class Conversion
{
public:
    Conversion(const std::string& from, const std::string& to) : m_handle(iconv_open(to.c_str(), from.c_str()))
    {
        if (m_handle == reinterpret_cast<iconv_t>(-1))
            throw std::runtime_error("no conversion from " + from + " to " + to);
    }
    ~Conversion() { iconv_close(m_handle); }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    std::optional<std::string> Convert(std::string_view text) const
    {
        std::string input(text);
        std::string output(4 * text.size() + 8, '\0');
        char* in = input.data();
        char* out = output.data();
        std::size_t inLeft = input.size();
        std::size_t outLeft = output.size();
        iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
        if (iconv(m_handle, &in, &inLeft, &out, &outLeft) != 0 ||
            iconv(m_handle, nullptr, nullptr, &out, &outLeft) != 0)
            return std::nullopt;
        output.resize(output.size() - outLeft);
        return output;
    }

private:
    iconv_t m_handle;
};

// Opening one takes far longer than converting a name.
const Conversion& ConversionOf(const std::string& from, const std::string& to)
{
    static std::map<std::string, std::unique_ptr<Conversion>> conversions;
    std::unique_ptr<Conversion>& conversion = conversions[from + ">" + to];
    if (!conversion)
        conversion = std::make_unique<Conversion>(from, to);
    return *conversion;
}

std::string NameOf(std::uint32_t codePage)
{
    return "CP" + std::to_string(codePage);
}

} // namespace

namespace refhost
{

std::optional<std::wstring> WideFromNarrow(std::string_view narrow, std::uint32_t codePage)
{
    const auto utf8 = ConversionOf(NameOf(codePage), "UTF-8").Convert(narrow);
    return utf8 ? std::optional(Utf16FromUtf8(*utf8)) : std::nullopt;
}

std::optional<std::string> NarrowFromWide(std::wstring_view wide, std::uint32_t codePage)
{
    return ConversionOf("UTF-8", NameOf(codePage)).Convert(Utf8FromUtf16(wide));
}

std::wstring WideFromUtf8(std::string_view utf8)
{
    return Utf16FromUtf8(utf8);
}

std::string Utf8FromWide(std::wstring_view wide)
{
    return Utf8FromUtf16(wide);
}

} // namespace refhost
