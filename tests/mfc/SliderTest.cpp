#include "TestWindow.h"

#include <afxcmn.h>

#include <gtest/gtest.h>

namespace
{
using namespace test;

constexpr WORD kSliderId = 101;

const DialogTemplate kDialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 150, 40,
                                     {{TRACKBAR_CLASS, L"", WS_VISIBLE | TBS_AUTOTICKS, 5, 5, 120, 20, kSliderId}});

// A dialog that keeps the codes and positions of WM_HSCROLL.
class SliderDialog : public TestDialog
{
public:
    CSliderCtrl slider;
    std::vector<UINT> codes;
    std::vector<int> positions;

protected:
    DECLARE_MESSAGE_MAP()

    void OnHScroll(UINT code, UINT position, CScrollBar* sender)
    {
        EXPECT_EQ(slider.m_hWnd, sender->m_hWnd);
        codes.push_back(code);
        positions.push_back(slider.GetPos());
        TestDialog::OnHScroll(code, position, sender);
    }
};

BEGIN_MESSAGE_MAP(SliderDialog, TestDialog)
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

class Slider : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.Create(kDialogTemplate);
        slider.SubclassWindow(dialog.Item(kSliderId));
    }

    void Press(WPARAM key)
    {
        slider.SendMessage(WM_KEYDOWN, key, 1);
        slider.SendMessage(WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }

    SliderDialog dialog;
    CSliderCtrl& slider = dialog.slider;
};

TEST_F(Slider, GoesFromZeroToAHundredAtFirst)
{
    slider.SetPos(1000);
    EXPECT_EQ(100, slider.GetPos());
    slider.SetPos(-1);
    EXPECT_EQ(0, slider.GetPos());
}

TEST_F(Slider, RangeClampsThePosition)
{
    slider.SetPos(90);
    slider.SetRange(-10, 50);
    EXPECT_EQ(50, slider.GetPos());
    slider.SetPos(-100);
    EXPECT_EQ(-10, slider.GetPos());
}

TEST_F(Slider, PositionsHaveMoreThanSixteenBits)
{
    slider.SetRange(0, 1'000'000, TRUE);
    slider.SetPos(70'000);
    EXPECT_EQ(70'000, slider.GetPos());
}

TEST_F(Slider, KeysMoveByLineAndPage)
{
    slider.SetRange(0, 250);
    slider.SetLineSize(2);
    slider.SetPageSize(25);
    Press(VK_RIGHT);
    EXPECT_EQ(2, slider.GetPos());
    Press(VK_NEXT);
    EXPECT_EQ(27, slider.GetPos());
    Press(VK_LEFT);
    EXPECT_EQ(25, slider.GetPos());
    Press(VK_PRIOR);
    EXPECT_EQ(0, slider.GetPos());
}

TEST_F(Slider, SizesGiveTheOldOnes)
{
    EXPECT_EQ(1, slider.SetLineSize(3));
    EXPECT_EQ(3, slider.SetLineSize(1));
    EXPECT_EQ(20, slider.SetPageSize(5));
    EXPECT_EQ(5, slider.SetPageSize(20));
}

TEST_F(Slider, TicksStandAtTheFrequency)
{
    slider.SetRange(0, 100);
    slider.SetTicFreq(10);
    const LRESULT wide = slider.SendMessage(TBM_GETNUMTICS);
    slider.SetTicFreq(50);
    EXPECT_EQ(11, wide);
    EXPECT_EQ(3, slider.SendMessage(TBM_GETNUMTICS));
}

TEST_F(Slider, TellsItsParentOfKeysWithTheNewPosition)
{
    Press(VK_RIGHT);
    EXPECT_EQ((std::vector<UINT>{TB_LINEDOWN, TB_ENDTRACK}), dialog.codes);
    EXPECT_EQ((std::vector<int>{1, 1}), dialog.positions);
}

TEST_F(Slider, TellsEachKeyByItsCode)
{
    for (const WPARAM key : {VK_RIGHT, VK_LEFT, VK_NEXT, VK_PRIOR, VK_END, VK_HOME})
        Press(key);
    std::vector<UINT> moves;
    for (const UINT code : dialog.codes)
        if (code != TB_ENDTRACK)
            moves.push_back(code);
    EXPECT_EQ((std::vector<UINT>{TB_LINEDOWN, TB_LINEUP, TB_PAGEDOWN, TB_PAGEUP, TB_BOTTOM, TB_TOP}), moves);
}

TEST_F(Slider, TellsNothingOfTheProgramsChanges)
{
    slider.SetRange(0, 50, TRUE);
    slider.SetPos(10);
    EXPECT_TRUE(dialog.codes.empty());
}
} // namespace
