#include "tests/support/FailurePictures.h"

#include "tests/support/Screenshot.h"

#include <cwchar>
#include <gtest/gtest.h>
#include <windows.h>

namespace
{
std::wstring FromEnvironment(const wchar_t* name)
{
    wchar_t value[MAX_PATH + 1]{};
    return {value, GetEnvironmentVariableW(name, value, MAX_PATH)};
}

class FailurePictures : public testing::EmptyTestEventListener
{
public:
    FailurePictures(const std::wstring& folder, int limit) : m_folder(folder), m_left(limit) {}

private:
    // Later nobody may ask for the test's name: who reports a failure holds GoogleTest's lock.
    void OnTestStart(const testing::TestInfo& test) override
    {
        m_test = std::string(test.test_suite_name()) + "." + test.name();
    }
    void OnTestEnd(const testing::TestInfo&) override { m_test.clear(); }

    void OnTestPartResult(const testing::TestPartResult& part) override
    {
        if (!part.failed() || m_test.empty() || m_left == 0)
            return;
        m_left -= SaveScreenshot(m_folder + L"\\" + PictureName(m_test));
        m_test.clear();
    }

    const std::wstring m_folder;
    std::string m_test; // empty once its picture is taken
    int m_left;
};
} // namespace

void SaveFailurePictures()
{
    const std::wstring folder = FromEnvironment(kPictureFolder);
    if (folder.empty())
        return;
    const int limit = static_cast<int>(std::wcstol(FromEnvironment(kPictureLimit).c_str(), nullptr, 10));
    testing::UnitTest::GetInstance()->listeners().Append(new FailurePictures(folder, limit));
}
