#include "TestResource.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{
class ResourceHandle : public testing::Test
{
protected:
    void TearDown() override { AfxSetResourceHandle(m_before); }

    static bool HasTemplates()
    {
        CMenu menu;
        return menu.LoadMenu(IDR_POPUP);
    }

    const HINSTANCE m_before = AfxGetResourceHandle();
};

TEST_F(ResourceHandle, IsTheOwnModuleAtFirst)
{
    EXPECT_EQ(::GetModuleHandle(nullptr), AfxGetInstanceHandle());
    EXPECT_EQ(AfxGetInstanceHandle(), AfxGetResourceHandle());
    EXPECT_TRUE(HasTemplates());
}

TEST_F(ResourceHandle, IsWhatWasSet)
{
    const HINSTANCE other = ::GetModuleHandle(L"kernel32");
    AfxSetResourceHandle(other);
    EXPECT_EQ(other, AfxGetResourceHandle());
    EXPECT_FALSE(HasTemplates());
    AfxSetResourceHandle(m_before);
    EXPECT_TRUE(HasTemplates());
}

TEST_F(ResourceHandle, NullStaysNullAndMeansTheProgram)
{
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(nullptr, AfxGetResourceHandle());
    EXPECT_TRUE(HasTemplates());
}
} // namespace
