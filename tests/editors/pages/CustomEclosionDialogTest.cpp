#include "tests/editors/drivers/CustomEclosionDialog.h"
#include "tests/editors/fixtures/FactorySchemeFixture.h"

#include <commctrl.h>

namespace
{
constexpr int kElement1[] = {IDC_STATIC_ELEMENT1, IDC_STATIC_ELEMENT1_W, IDC_SLIDER_ELEMENT1_W, IDC_STATIC_ELEMENT1_H,
                             IDC_SLIDER_ELEMENT1_H};
constexpr int kElement2[] = {IDC_STATIC_ELEMENT2, IDC_STATIC_ELEMENT2_W, IDC_SLIDER_ELEMENT2_W, IDC_STATIC_ELEMENT2_H,
                             IDC_SLIDER_ELEMENT2_H};

refhost::EclosionMode ModeOf(const std::vector<refhost::EclosionElement>& elements)
{
    return {elements};
}

refhost::CustomEclosion Definition(const std::vector<refhost::EclosionMode>& modes, int currentMode = 0)
{
    refhost::CustomEclosion definition;
    definition.locked = true;
    definition.range = 50;
    definition.modes = modes;
    definition.currentMode = currentMode;
    return definition;
}

class CustomEclosion : public FactorySchemeFixture
{
protected:
    // Three more definitions, so that nothing is added.
    void UseDefinition(const refhost::CustomEclosion& definition)
    {
        m_machine.customEclosions.definitions.assign(4, definition);
    }

    using DialogScript = std::function<void(CustomEclosionDialog&)>;
    // The script ends the dialog.
    void RunDialog(const DialogScript& script)
    {
        Run([&](FactoryEditor& editor) {
            CustomEclosionDialog dialog(editor, editor.OpenCustomEclosion());
            script(dialog);
            editor.Cancel();
        });
    }

    // The two sizes of an element, 0 for the first mode's first one.
    refhost::EclosionElement Element(std::size_t mode, std::size_t element)
    {
        return Machine().customEclosions.definitions.at(0).modes.at(mode).elements.at(element);
    }
};

TEST_F(CustomEclosion, ShowsTheFirstDefinition)
{
    UseDefinition(Definition({ModeOf({{1, 2}, {3, 4}}), ModeOf({{5, 6}})}, 1));
    RunDialog([this](CustomEclosionDialog& dialog) {
        EXPECT_EQ(Changes(), Calls());
        EXPECT_EQ(dialog.Dialog().Text(), L"Custom");
        EXPECT_EQ(dialog.Range(), L"50");
        EXPECT_EQ(dialog.Slider(IDC_SLIDER_ECLO_RANGE).Position(), 50);
        EXPECT_EQ(dialog.ShownRadios(), 2);
        EXPECT_EQ(dialog.CheckedRadio(), 1);
        EXPECT_TRUE(dialog.AllShown(kElement1, true));
        EXPECT_TRUE(dialog.AllShown(kElement2, false));
        EXPECT_EQ(dialog.Element1(), (std::vector<int>{5, 6}));
        dialog.Cancel();
    });
}

TEST_F(CustomEclosion, TrackbarsHaveTheirRangesAndSteps)
{
    UseDefinition(Definition({ModeOf({{1, 1}, {1, 1}})}));
    RunDialog([](CustomEclosionDialog& dialog) {
        const auto isStepped = [&](int id, int lowest, int highest, int page) {
            const Trackbar slider = dialog.Slider(id);
            EXPECT_EQ(slider.Lowest(), lowest) << id;
            EXPECT_EQ(slider.Highest(), highest) << id;
            EXPECT_EQ(SendMessageW(slider.Handle(), TBM_GETLINESIZE, 0, 0), 1) << id;
            EXPECT_EQ(SendMessageW(slider.Handle(), TBM_GETPAGESIZE, 0, 0), page) << id;
        };
        isStepped(IDC_SLIDER_ECLO_RANGE, 0, 200, 10);
        for (int id : {IDC_SLIDER_ELEMENT1_W, IDC_SLIDER_ELEMENT1_H, IDC_SLIDER_ELEMENT2_W, IDC_SLIDER_ELEMENT2_H})
            isStepped(id, 1, 8, 1);
        dialog.Cancel();
    });
}

TEST_F(CustomEclosion, LabelsHaveTheKeysOfTheLanguageFile)
{
    const std::pair<int, std::string> labels[] = {{IDOK, "IDOK"},
                                                  {IDCANCEL, "IDCANCEL"},
                                                  {IDC_STATIC_ECLO_RANGE, "IDC_STATIC_ECLO_RANGE"},
                                                  {IDC_BTN_ADD_ECL_MODE, "IDC_BTN_ADD_MODE"},
                                                  {IDC_BTN_DEL_ECL_MODE, "IDC_BTN_DEL_MODE"},
                                                  {IDC_STATIC_GROUP_ECLO_MODE, "IDC_STATIC_GROUP_ECLO_MODE"},
                                                  {IDC_RADIO_MODE1, "IDC_RADIO_MODE1"},
                                                  {IDC_RADIO_MODE2, "IDC_RADIO_MODE2"},
                                                  {IDC_RADIO_MODE3, "IDC_RADIO_MODE3"},
                                                  {IDC_BTN_ADD_ELEMENT, "IDC_BTN_ADD_ELEMENT"},
                                                  {IDC_BTN_DEL_ELEMENT, "IDC_BTN_DEL_ELEMENT"},
                                                  {IDC_STATIC_GROUP_ECLO_ELEMENT, "IDC_STATIC_GROUP_ECLO_ELEMENT"},
                                                  {IDC_STATIC_ELEMENT1, "IDC_STATIC_ELEMENT1"},
                                                  {IDC_STATIC_ELEMENT1_W, "IDC_STATIC_ELEMENT1_W"},
                                                  {IDC_STATIC_ELEMENT1_H, "IDC_STATIC_ELEMENT1_H"},
                                                  {IDC_STATIC_ELEMENT2, "IDC_STATIC_ELEMENT2"},
                                                  {IDC_STATIC_ELEMENT2_W, "IDC_STATIC_ELEMENT2_W"},
                                                  {IDC_STATIC_ELEMENT2_H, "IDC_STATIC_ELEMENT2_H"}};
    std::string texts = "[DLG_CUSTOM_ECLOSION]\nTITLE=Of TITLE\n";
    for (const auto& [id, key] : labels)
        texts += key + "=Of " + key + "\n";
    m_language.WriteBytes(texts);
    RunDialog([&](CustomEclosionDialog& dialog) {
        EXPECT_EQ(dialog.Dialog().Text(), L"Of TITLE");
        for (const auto& [id, key] : labels)
            EXPECT_EQ(Utf8(dialog.Control(id).Text()), "Of " + key);
        dialog.Cancel();
    });
}

TEST_F(CustomEclosion, SetWithTwoDefinitionsGainsTwoOfTheDefaultShape)
{
    m_machine.customEclosions.definitions = {Definition({ModeOf({{8, 8}})}), Definition({})};
    m_machine.customEclosions.definitions[1].locked = false;
    RunDialog([this](CustomEclosionDialog& dialog) {
        Calls expected = {"ICustomEclosion[1].SetLocked(1)"};
        for (const std::string definition : {"2", "3"})
        {
            expected =
                expected + Calls{"ICustomEclosionSet.AddEclosion()", "ICustomEclosion[" + definition + "].SetLocked(1)",
                                 "ICustomEclosion[" + definition + "].SetCurrentMode(0)"};
            for (const std::string mode : {".0", ".1"})
            {
                expected.push_back("ICustomEclosion[" + definition + "].AddMode()");
                for (const std::string element : {".0", ".1"})
                {
                    const std::string place = definition + mode + element;
                    expected = expected + Calls{"IEclosionMode[" + definition + mode + "].AddElement()",
                                                "IEclosionElement[" + place + "].SetWidth(1)",
                                                "IEclosionElement[" + place + "].SetHeight(1)"};
                }
            }
        }
        EXPECT_EQ(Changes(), expected);
        EXPECT_EQ(dialog.Element1(), (std::vector<int>{8, 8}));
        dialog.Cancel();
    });
    EXPECT_EQ(Machine().customEclosions.definitions.size(), 4u);
}

TEST_F(CustomEclosion, EmptySetGainsFourDefinitionsAndShowsTheFirst)
{
    RunDialog([](CustomEclosionDialog& dialog) {
        EXPECT_EQ(dialog.ShownRadios(), 2);
        EXPECT_EQ(dialog.CheckedRadio(), 0);
        EXPECT_EQ(dialog.Element1(), (std::vector<int>{1, 1}));
        EXPECT_EQ(dialog.Element2(), (std::vector<int>{1, 1}));
        EXPECT_EQ(dialog.Range(), L"0");
        dialog.Cancel();
    });
    EXPECT_EQ(Machine().customEclosions.definitions.size(), 4u);
}

TEST_F(CustomEclosion, SetIsBroughtIntoShapeOnce)
{
    m_machine.customEclosions.currentIndex = 3;
    Run([this](FactoryEditor& editor) {
        editor.Confirm(editor.OpenCustomEclosion(), IDCANCEL);
        editor.Combo(SchemePage::Eclosion, IDC_CMB_ELC_TYPE).Pick(0);
        EXPECT_EQ(ChangesWith("AddEclosion").size(), 4u);
        NewChanges();
        editor.Confirm(editor.OpenCustomEclosion(), IDCANCEL);
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
}

TEST_F(CustomEclosion, ShowsARadioForEachMode)
{
    for (int modes = 0; modes <= 3; ++modes)
    {
        UseDefinition(
            Definition(std::vector<refhost::EclosionMode>(static_cast<std::size_t>(modes), ModeOf({{1, 1}}))));
        RunDialog([=](CustomEclosionDialog& dialog) {
            EXPECT_EQ(dialog.ShownRadios(), modes);
            EXPECT_EQ(dialog.IsEnabled(IDC_BTN_ADD_ECL_MODE), modes < 3);
            EXPECT_EQ(dialog.IsEnabled(IDC_BTN_DEL_ECL_MODE), modes > 0);
            EXPECT_EQ(dialog.IsEnabled(IDC_BTN_ADD_ELEMENT), modes > 0);
            EXPECT_EQ(dialog.IsEnabled(IDC_SLIDER_ELEMENT1_W), modes > 0);
            EXPECT_TRUE(dialog.IsEnabled(IDC_SLIDER_ECLO_RANGE));
            EXPECT_TRUE(dialog.IsEnabled(IDOK));
            dialog.Cancel();
        });
    }
}

TEST_F(CustomEclosion, ShowsAGroupForEachElement)
{
    for (int elements = 0; elements <= 2; ++elements)
    {
        UseDefinition(
            Definition({ModeOf(std::vector<refhost::EclosionElement>(static_cast<std::size_t>(elements), {2, 3}))}));
        RunDialog([=](CustomEclosionDialog& dialog) {
            EXPECT_TRUE(dialog.AllShown(kElement1, elements > 0));
            EXPECT_TRUE(dialog.AllShown(kElement2, elements > 1));
            EXPECT_EQ(dialog.IsEnabled(IDC_BTN_ADD_ELEMENT), elements < 2);
            EXPECT_EQ(dialog.IsEnabled(IDC_BTN_DEL_ELEMENT), elements > 0);
            dialog.Cancel();
        });
    }
}

TEST_F(CustomEclosion, AddedModeIsShownAndBecomesTheCurrentOne)
{
    UseDefinition(Definition({ModeOf({{1, 1}, {2, 2}}), ModeOf({{3, 3}})}));
    RunDialog([this](CustomEclosionDialog& dialog) {
        dialog.Press(IDC_BTN_ADD_ECL_MODE);
        EXPECT_EQ(Changes(), (Calls{"ICustomEclosion[0].AddMode()", "ICustomEclosion[0].SetCurrentMode(2)"}));
        EXPECT_EQ(dialog.ShownRadios(), 3);
        EXPECT_EQ(dialog.CheckedRadio(), 2);
        EXPECT_TRUE(dialog.AllShown(kElement1, false));
        EXPECT_TRUE(dialog.AllShown(kElement2, false));
        EXPECT_FALSE(dialog.IsEnabled(IDC_BTN_ADD_ECL_MODE));
        EXPECT_TRUE(dialog.Op().Focus().IsEnabled());
        dialog.Cancel();
    });
}

TEST_F(CustomEclosion, DeletingAModeShowsTheFirst)
{
    UseDefinition(Definition({ModeOf({{1, 1}}), ModeOf({{2, 2}}), ModeOf({{3, 3}})}, 1));
    RunDialog([this](CustomEclosionDialog& dialog) {
        dialog.Press(IDC_BTN_DEL_ECL_MODE);
        EXPECT_EQ(Changes(), (Calls{"ICustomEclosion[0].DeleteMode(1)", "ICustomEclosion[0].SetCurrentMode(0)"}));
        EXPECT_EQ(dialog.ShownRadios(), 2);
        EXPECT_EQ(dialog.CheckedRadio(), 0);
        EXPECT_EQ(dialog.Element1(), (std::vector<int>{1, 1}));
        dialog.Cancel();
    });
    EXPECT_EQ(Element(0, 0).width, 1);
    EXPECT_EQ(Element(1, 0).width, 3);
}

TEST_F(CustomEclosion, DeletingTheLastModeLeavesNothingToEdit)
{
    UseDefinition(Definition({ModeOf({{1, 1}})}));
    RunDialog([](CustomEclosionDialog& dialog) {
        dialog.Press(IDC_BTN_DEL_ECL_MODE);
        EXPECT_EQ(dialog.ShownRadios(), 0);
        EXPECT_TRUE(dialog.AllShown(kElement1, false));
        EXPECT_FALSE(dialog.IsEnabled(IDC_BTN_DEL_ECL_MODE));
        EXPECT_FALSE(dialog.IsEnabled(IDC_BTN_ADD_ELEMENT));
        EXPECT_TRUE(dialog.IsEnabled(IDC_BTN_ADD_ECL_MODE));
        EXPECT_TRUE(dialog.Op().Focus().IsEnabled());
        dialog.Op().Key(VK_ESCAPE);
        dialog.Op().ExpectClosed(dialog.Dialog());
    });
}

TEST_F(CustomEclosion, AddedElementIsShownWithTheHostsSize)
{
    UseDefinition(Definition({ModeOf({{4, 5}})}));
    RunDialog([this](CustomEclosionDialog& dialog) {
        dialog.Press(IDC_BTN_ADD_ELEMENT);
        EXPECT_EQ(Changes(), Calls{"IEclosionMode[0.0].AddElement()"});
        EXPECT_TRUE(dialog.AllShown(kElement2, true));
        EXPECT_EQ(dialog.Element1(), (std::vector<int>{4, 5}));
        EXPECT_EQ(dialog.Element2(), (std::vector<int>{1, 1}));
        EXPECT_FALSE(dialog.IsEnabled(IDC_BTN_ADD_ELEMENT));
        EXPECT_TRUE(dialog.Op().Focus().IsEnabled());
        dialog.Cancel();
    });
}

TEST_F(CustomEclosion, DeletingAnElementMovesTheSecondUp)
{
    UseDefinition(Definition({ModeOf({{1, 2}, {3, 4}})}));
    RunDialog([this](CustomEclosionDialog& dialog) {
        dialog.Press(IDC_BTN_DEL_ELEMENT);
        EXPECT_EQ(NewChanges(), Calls{"IEclosionMode[0.0].DeleteElement(0)"});
        EXPECT_EQ(dialog.Element1(), (std::vector<int>{3, 4}));
        EXPECT_TRUE(dialog.AllShown(kElement2, false));
        dialog.Slider(IDC_SLIDER_ELEMENT1_W).Press(VK_RIGHT);
        EXPECT_EQ(NewChanges(), Calls{"IEclosionElement[0.0.1].SetWidth(4)"});
        dialog.Press(IDC_BTN_DEL_ELEMENT);
        EXPECT_EQ(Changes(), Calls{"IEclosionMode[0.0].DeleteElement(0)"});
        EXPECT_TRUE(dialog.AllShown(kElement1, false));
        EXPECT_FALSE(dialog.IsEnabled(IDC_BTN_DEL_ELEMENT));
        EXPECT_TRUE(dialog.IsEnabled(IDC_BTN_ADD_ELEMENT));
        dialog.Cancel();
    });
}

TEST_F(CustomEclosion, ChosenModeBecomesTheCurrentOneAndIsShown)
{
    UseDefinition(Definition({ModeOf({{1, 2}}), ModeOf({{3, 4}, {5, 6}}), ModeOf({})}));
    RunDialog([this](CustomEclosionDialog& dialog) {
        dialog.Press(IDC_RADIO_MODE2);
        EXPECT_EQ(NewChanges(), Calls{"ICustomEclosion[0].SetCurrentMode(1)"});
        EXPECT_EQ(dialog.CheckedRadio(), 1);
        EXPECT_EQ(dialog.Element1(), (std::vector<int>{3, 4}));
        EXPECT_EQ(dialog.Element2(), (std::vector<int>{5, 6}));
        dialog.Slider(IDC_SLIDER_ELEMENT2_H).Press(VK_LEFT);
        EXPECT_EQ(NewChanges(), Calls{"IEclosionElement[0.1.1].SetHeight(5)"});
        dialog.Press(IDC_RADIO_MODE3);
        EXPECT_EQ(NewChanges(), Calls{"ICustomEclosion[0].SetCurrentMode(2)"});
        EXPECT_TRUE(dialog.AllShown(kElement1, false));
        dialog.Press(IDC_RADIO_MODE1);
        EXPECT_EQ(dialog.Element1(), (std::vector<int>{1, 2}));
        dialog.Cancel();
    });
}

TEST_F(CustomEclosion, CurrentModeThatDoesNotExistShowsNothingToEdit)
{
    for (int mode : {5, -1})
    {
        UseDefinition(Definition({ModeOf({{1, 2}})}, mode));
        RunDialog([this](CustomEclosionDialog& dialog) {
            EXPECT_EQ(dialog.ShownRadios(), 1);
            EXPECT_EQ(dialog.CheckedRadio(), kNone);
            EXPECT_TRUE(dialog.AllShown(kElement1, false));
            EXPECT_FALSE(dialog.IsEnabled(IDC_BTN_DEL_ECL_MODE));
            EXPECT_FALSE(dialog.IsEnabled(IDC_BTN_ADD_ELEMENT));
            EXPECT_TRUE(dialog.IsEnabled(IDC_BTN_ADD_ECL_MODE));
            EXPECT_EQ(Changes(), Calls());
            dialog.Cancel();
        });
    }
}

TEST_F(CustomEclosion, RangeFollowsItsTrackbarAndReachesTheHostAtOnce)
{
    UseDefinition(Definition({ModeOf({{1, 1}})}));
    RunDialog([this](CustomEclosionDialog& dialog) {
        const std::pair<int, int> keys[] = {{VK_RIGHT, 51}, {VK_LEFT, 50}, {VK_NEXT, 60}, {VK_PRIOR, 50}};
        for (const auto& [key, range] : keys)
        {
            dialog.Slider(IDC_SLIDER_ECLO_RANGE).Press(key);
            EXPECT_EQ(NewChanges(), Calls{"ICustomEclosion[0].SetRange(" + std::to_string(range) + ")"});
            EXPECT_EQ(dialog.Range(), std::to_wstring(range));
        }
        dialog.Slider(IDC_SLIDER_ECLO_RANGE).Track(123);
        EXPECT_EQ(NewChanges(), Calls{"ICustomEclosion[0].SetRange(123)"});
        EXPECT_EQ(dialog.Range(), L"123");
        dialog.Cancel();
    });
}

// The end of a drag, Home and End: the thumb moves, but nothing is taken over.
TEST_F(CustomEclosion, EndOfADragHomeAndEndWriteNothing)
{
    UseDefinition(Definition({ModeOf({{2, 3}, {4, 5}})}));
    RunDialog([this](CustomEclosionDialog& dialog) {
        for (int id : {IDC_SLIDER_ECLO_RANGE, IDC_SLIDER_ELEMENT1_W, IDC_SLIDER_ELEMENT1_H, IDC_SLIDER_ELEMENT2_W,
                       IDC_SLIDER_ELEMENT2_H})
        {
            const Trackbar slider = dialog.Slider(id);
            slider.Press(VK_HOME);
            EXPECT_EQ(slider.Position(), slider.Lowest());
            slider.Press(VK_END);
            EXPECT_EQ(slider.Position(), slider.Highest());
            slider.LetGo(6);
        }
        EXPECT_EQ(Changes(), Calls());
        EXPECT_EQ(dialog.Range(), L"50");
        dialog.Save();
    });
    EXPECT_EQ(ChangesWith("IEclosion"), Calls());
}

TEST_F(CustomEclosion, EachTrackbarWritesItsSizeOfItsElement)
{
    UseDefinition(Definition({ModeOf({{2, 3}, {4, 5}})}));
    RunDialog([this](CustomEclosionDialog& dialog) {
        dialog.Slider(IDC_SLIDER_ELEMENT1_W).Track(8);
        dialog.Slider(IDC_SLIDER_ELEMENT1_H).Press(VK_RIGHT);
        dialog.Slider(IDC_SLIDER_ELEMENT2_W).Press(VK_LEFT);
        dialog.Slider(IDC_SLIDER_ELEMENT2_H).Press(VK_NEXT);
        EXPECT_EQ(Changes(), (Calls{"IEclosionElement[0.0.0].SetWidth(8)", "IEclosionElement[0.0.0].SetHeight(4)",
                                    "IEclosionElement[0.0.1].SetWidth(3)", "IEclosionElement[0.0.1].SetHeight(6)"}));
        dialog.Cancel();
    });
}

TEST_F(CustomEclosion, CancelKeepsWhatWasMovedAndSavesNothing)
{
    UseDefinition(Definition({ModeOf({{2, 3}})}));
    RunDialog([](CustomEclosionDialog& dialog) {
        dialog.Slider(IDC_SLIDER_ELEMENT1_W).Track(8);
        dialog.Cancel();
    });
    EXPECT_EQ(Changes(), Calls{"IEclosionElement[0.0.0].SetWidth(8)"});
    EXPECT_EQ(Element(0, 0).width, 8);
}

TEST_F(CustomEclosion, SavesUnderTheWaitCursor)
{
    HCURSOR cursor = nullptr;
    UseDefinition(Definition({}));
    RunDialog([&](CustomEclosionDialog& dialog) {
        Host().OnSave([&](refhost::SaveRequest) { cursor = GetCursor(); });
        dialog.Save();
    });
    EXPECT_EQ(Changes(), (Calls{"IHostControl.SaveCustomEclosionSet()", "IPrintScheme[0].SetCustomEclosionId(0)"}));
    EXPECT_EQ(cursor, LoadCursorW(nullptr, IDC_WAIT));
}

// The host dispatches messages while it saves: a second Save, Cancel, and changes, arrive meanwhile.
TEST_F(CustomEclosion, NothingIsHandledWhileTheHostSaves)
{
    UseDefinition(Definition({ModeOf({{2, 3}, {4, 5}}), ModeOf({{6, 7}})}));
    RunDialog([this](CustomEclosionDialog& dialog) {
        const HWND window = dialog.Dialog().Handle();
        const HWND range = dialog.Control(IDC_SLIDER_ECLO_RANGE).Handle();
        Host().OnSave([=](refhost::SaveRequest) {
            for (int id : {IDOK, IDC_BTN_ADD_ECL_MODE, IDC_BTN_DEL_ELEMENT, IDC_RADIO_MODE2, IDCANCEL})
                SendMessageW(window, WM_COMMAND, static_cast<WPARAM>(id),
                             reinterpret_cast<LPARAM>(GetDlgItem(window, id)));
            SendMessageW(range, WM_KEYDOWN, VK_RIGHT, 0);
        });
        dialog.Save();
    });
    EXPECT_EQ(Changes(), (Calls{"IHostControl.SaveCustomEclosionSet()", "IPrintScheme[0].SetCustomEclosionId(0)"}));
}

TEST_F(CustomEclosion, WithoutASetNothingButCancelWorks)
{
    m_faults.failing = {"IHostData.GetCustomEclosionSet()"};
    RunDialog([](CustomEclosionDialog& dialog) {
        for (int id : {IDC_BTN_ADD_ECL_MODE, IDC_BTN_DEL_ECL_MODE, IDC_BTN_ADD_ELEMENT, IDC_BTN_DEL_ELEMENT,
                       IDC_SLIDER_ECLO_RANGE, IDOK})
            EXPECT_FALSE(dialog.IsEnabled(id)) << id;
        EXPECT_EQ(dialog.ShownRadios(), 0);
        EXPECT_TRUE(dialog.Op().Focus().IsEnabled());
        dialog.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(CustomEclosion, NullDefinitionModeAndElementShowNothing)
{
    UseDefinition(Definition({ModeOf({{2, 3}})}));
    for (const char* missing :
         {"ICustomEclosionSet.GetEclosion(*)", "ICustomEclosion[*].GetMode(*)", "IEclosionMode[*].GetElement(*)"})
    {
        m_faults.failing = {missing};
        RunDialog([](CustomEclosionDialog& dialog) {
            dialog.Slider(IDC_SLIDER_ECLO_RANGE).Track(60);
            if (dialog.Control(IDC_SLIDER_ELEMENT1_W).IsVisible())
                dialog.Slider(IDC_SLIDER_ELEMENT1_W).Track(6);
            dialog.Cancel();
        });
        EXPECT_EQ(ChangesWith("IEclosion"), Calls()) << missing;
    }
}

TEST_F(CustomEclosion, PreviewOfTheLargestElementIsASquareOfItsFramesHeight)
{
    UseDefinition(Definition({ModeOf({{8, 8}})}));
    RunDialog([](CustomEclosionDialog& dialog) {
        const RECT frame = dialog.Frame(IDC_STATIC_PREVIEW1);
        const LONG unit = std::min(frame.bottom - frame.top, frame.right - frame.left) / 8;
        const LONG left = (frame.left + frame.right) / 2 - 4 * unit;
        const LONG top = (frame.top + frame.bottom) / 2 - 4 * unit;
        const auto isBlack = [&](LONG x, LONG y) { return dialog.Pixel(x, y) == RGB(0, 0, 0); };
        EXPECT_TRUE(isBlack(left + 2, top + 2));
        EXPECT_TRUE(isBlack(left + 8 * unit - 3, top + 8 * unit - 3));
        EXPECT_FALSE(isBlack(left - 2, top + 4 * unit));
        EXPECT_FALSE(isBlack(left + 8 * unit + 1, top + 4 * unit));
        const RECT second = dialog.Frame(IDC_STATIC_PREVIEW2);
        EXPECT_EQ(dialog.Pixel((second.left + second.right) / 2, (second.top + second.bottom) / 2),
                  RGB(0xF0, 0xF0, 0xF0));
        dialog.Cancel();
    });
}

TEST_F(CustomEclosion, PreviewFollowsTheTrackbar)
{
    UseDefinition(Definition({ModeOf({{2, 8}, {8, 2}})}));
    RunDialog([](CustomEclosionDialog& dialog) {
        const RECT frame = dialog.Frame(IDC_STATIC_PREVIEW1);
        const LONG unit = (frame.bottom - frame.top) / 8;
        const LONG x = (frame.left + frame.right) / 2 - 2 * unit;
        const LONG y = (frame.top + frame.bottom) / 2;
        EXPECT_NE(dialog.Pixel(x, y), RGB(0, 0, 0));
        dialog.Slider(IDC_SLIDER_ELEMENT1_W).Track(6);
        EXPECT_EQ(dialog.Pixel(x, y), RGB(0, 0, 0));
        dialog.Slider(IDC_SLIDER_ELEMENT1_W).Track(2);
        EXPECT_NE(dialog.Pixel(x, y), RGB(0, 0, 0));
        dialog.Cancel();
    });
}

TEST_F(CustomEclosion, OnlyItsPreviewIsPaintedAnewForATrackbar)
{
    UseDefinition(Definition({ModeOf({{2, 3}, {4, 5}})}));
    RunDialog([](CustomEclosionDialog& dialog) {
        const std::pair<int, int> previews[] = {{IDC_SLIDER_ELEMENT1_W, IDC_STATIC_PREVIEW1},
                                                {IDC_SLIDER_ELEMENT1_H, IDC_STATIC_PREVIEW1},
                                                {IDC_SLIDER_ELEMENT2_W, IDC_STATIC_PREVIEW2},
                                                {IDC_SLIDER_ELEMENT2_H, IDC_STATIC_PREVIEW2}};
        for (const auto& [slider, frame] : previews)
        {
            const RECT invalid = dialog.InvalidAfterMoving(slider, 7);
            const RECT expected = dialog.Frame(frame);
            EXPECT_TRUE(EqualRect(&invalid, &expected)) << slider;
        }
        const RECT none = dialog.InvalidAfterMoving(IDC_SLIDER_ECLO_RANGE, 7);
        EXPECT_TRUE(IsRectEmpty(&none));
        dialog.Cancel();
    });
}
} // namespace
