#include "tests/model/SchemeOperator.h"

#include "tests/machines/CustomEclosionType.h"

namespace
{
const Texts kRanges = {L"0", L"7", L"200", L"201", L"9999999999", L"", L"12"};
const Texts kOffsets = {L"0", L"5", L"65535", L"65537", L"-1", L" 12 ", L"99999999999", L"x", L""};

int TemplateOf(SchemePage page)
{
    switch (page)
    {
    case SchemePage::Common:
        return IDD_SCHEME_CMMN;
    case SchemePage::Mode:
        return IDD_SCHEME_MODE;
    case SchemePage::Eclosion:
        return IDD_SCHEME_ELC;
    case SchemePage::InkMultiple:
        return IDD_SCHEME_INK_MUL;
    case SchemePage::InkCut:
        return IDD_SCHEME_INK_CUT;
    case SchemePage::UvLamps:
        return IDD_SCHEME_UV;
    case SchemePage::SmallFormat:
        break;
    }
    return IDD_SCHEME_SAPP;
}
} // namespace

SchemeOperator::SchemeOperator(const SchemeEditor& editor, SchemeEditorModel& model, SeededRun& run, int resourceId)
    : RandomOperator(editor, model, run), m_editor(editor), m_model(model)
{
    Watch(editor.Dialog(), resourceId);
    for (SchemePage page : editor.Pages())
        Watch(editor.Page(page), TemplateOf(page));
}

void SchemeOperator::Act()
{
    switch (Luck().Below(12))
    {
    case 0:
    case 1:
    case 2:
        return UseLists();
    case 3:
        return Press(m_editor.Dialog(), Luck().OneIn(3) ? IDC_BTN_DEL_SCHEME : IDC_BTN_ADD_SCHEME);
    case 4:
        return PressAnyKey();
    case 5:
        return ActBesides();
    default:
        return UsePage();
    }
}

void SchemeOperator::UseLists()
{
    if (Luck().OneIn(8))
        return DoubleClickRow(m_editor.Configs());
    UseList(Luck().OneIn(3) ? m_editor.Configs() : m_editor.Schemes());
}

void SchemeOperator::UsePage()
{
    const int tab = Luck().Below(static_cast<int>(m_editor.Pages().size()));
    const SchemePage page = m_editor.Pages()[static_cast<std::size_t>(tab)];
    if (!m_editor.Page(page).IsVisible())
        Do("opens tab " + std::to_string(tab), [&] { m_editor.Tab().ClickTab(tab); });
    for (int left = Luck().Between(1, 3); left > 0 && !HasEnded(); --left)
        UseControls(page);
}

void SchemeOperator::UseControls(SchemePage page)
{
    const auto combo = [&](const std::vector<int>& ids) { UseCombo(m_editor.Combo(page, Luck().OneOf(ids))); };
    switch (page)
    {
    case SchemePage::Common:
        if (Luck().OneIn(4))
            return Type(m_editor.Edit(page, IDC_EDIT_NAME), Luck().OneOf(Names()));
        return combo({IDC_CMB_ENABLE, IDC_CMB_SPEED, IDC_CMB_DIRECTION, IDC_CMB_MATERIAL, IDC_CMB_WAIT_STEP,
                      IDC_CMB_WAVE, IDC_CMB_LAYOUT, IDC_CMB_HEAD, IDC_CMB_CHANNEL});
    case SchemePage::Mode:
        return combo({IDC_CMB_PRINT_MODE});
    case SchemePage::Eclosion:
        return UseEclosionPage();
    case SchemePage::InkMultiple:
        return UseCombo(m_editor.Combo(page, IDC_CMB_INK_MUL_FIRST + Luck().Below(12)));
    case SchemePage::InkCut:
        return UseSlider(m_editor.Slider(page, IDC_SLIDER_INK_CUT_FIRST + 2 * Luck().Below(8)));
    case SchemePage::UvLamps:
        return ClickCheck(m_editor.Check(page, IDC_CHECK_LPRINT_LLIGHT + Luck().Below(4)));
    case SchemePage::SmallFormat:
        if (Luck().OneIn(3))
            return combo({IDC_CMB_SMALL_MODE});
        return Type(m_editor.Edit(page, IDC_EDIT_SMALL_OFFSET), Luck().OneOf(kOffsets));
    }
}

void SchemeOperator::UseEclosionPage()
{
    constexpr SchemePage kPage = SchemePage::Eclosion;
    switch (Luck().Below(6))
    {
    case 0:
        return UseSlider(m_editor.Slider(kPage, IDC_SLIDER_CUSTOM_RANGE));
    case 1:
    {
        const ComboBox types = m_editor.Combo(kPage, IDC_CMB_ELC_TYPE);
        return PickRow(types, types.RowWithData(kCustomEclosionType));
    }
    case 2:
        return Type(m_editor.Edit(kPage, IDC_EDIT_RANGE_SS + Luck().Below(4)), Luck().OneOf(kRanges));
    default:
        return UseCombo(m_editor.Combo(kPage, Luck().OneOf({IDC_CMB_ELC_TYPE, IDC_CMB_ELC_TYPE, IDC_CMB_ELC_LEVEL,
                                                            IDC_CMB_DOT_MODE, IDC_CMB_HEAD_ELC_TYPE})));
    }
}

void SchemeOperator::ClickCheck(const Window& check)
{
    if (CanUse(check))
        Do("clicks check box " + std::to_string(check.Id()), [&] { check.Click(); });
}

void SchemeOperator::UseSlider(const Trackbar& slider)
{
    if (CanUse(slider))
        Do("moves trackbar " + std::to_string(slider.Id()), [&] { Move(slider); });
}

void SchemeOperator::Move(const Trackbar& slider)
{
    static const std::vector<int> kKeys = {VK_LEFT, VK_RIGHT, VK_PRIOR, VK_NEXT, VK_HOME, VK_END};
    const int target = Luck().Between(slider.Lowest(), slider.Highest());
    switch (Luck().Below(3))
    {
    case 0:
        return slider.Press(Luck().OneOf(kKeys));
    case 1:
        return Op().TurnWheel(slider, Either(1, -2));
    default:
        slider.Track(target);
        if (Luck().OneIn(2))
            slider.LetGo(target);
    }
}

void SchemeOperator::WorkOn(int dialog)
{
    if (dialog == IDD_PRINT_MODE_ADD_CFG)
        ViewConfig();
    else if (dialog == IDD_CUSTOM_ECLOSION)
        DesignEclosion();
    else
        WorkOnOther(dialog);
}

void SchemeOperator::ViewConfig()
{
    const ConfigDialog dialog(Op().ExpectDialog(kAddConfigCaption));
    RequireFields(dialog, m_model.ViewedConfig());
    Note("closes the dialog");
    if (Luck().OneIn(2) && AcceptedConfig(m_model.ViewedConfig()))
    {
        dialog.Dialog().Control(IDOK).Click();
        Op().ExpectClosed(dialog.Dialog());
    }
    else
        CloseDialog(dialog.Dialog());
    m_model.EndViewing();
}

void SchemeOperator::DesignEclosion()
{
    const Window dialog = Op().ExpectDialogWith("the dialog for custom eclosions",
                                                [](const Window& window) { return window.Has(IDC_SLIDER_ECLO_RANGE); });
    Watch(dialog, IDD_CUSTOM_ECLOSION);
    Compare();
    for (int left = Luck().Between(2, 12); left > 0 && m_model.OpenDialog() != 0; --left)
        ActOnEclosion(dialog);
    if (m_model.OpenDialog() != 0)
    {
        Note("leaves the dialog");
        if (Luck().OneIn(2))
            dialog.Control(IDOK).Click();
        else
            CloseDialog(dialog);
        Listen();
    }
    Op().ExpectClosed(dialog);
}

void SchemeOperator::ActOnEclosion(const Window& dialog)
{
    static const std::vector<int> kSliders = {IDC_SLIDER_ECLO_RANGE, IDC_SLIDER_ELEMENT1_W, IDC_SLIDER_ELEMENT1_H,
                                              IDC_SLIDER_ELEMENT2_W, IDC_SLIDER_ELEMENT2_H};
    static const std::vector<int> kButtons = {IDC_BTN_ADD_ECL_MODE, IDC_BTN_DEL_ECL_MODE, IDC_BTN_ADD_ELEMENT,
                                              IDC_BTN_DEL_ELEMENT,  IDC_BTN_DEL_ELEMENT,  IDC_RADIO_MODE1,
                                              IDC_RADIO_MODE2,      IDC_RADIO_MODE3};
    const bool isSlider = Luck().OneIn(2);
    const int id = Luck().OneOf(isSlider ? kSliders : kButtons);
    const Window control = dialog.Control(id);
    if (!CanUse(control))
        return;
    Note((isSlider ? "moves trackbar " : "presses ") + std::to_string(id));
    if (isSlider)
        Move(dialog.Control<Trackbar>(id));
    else
        control.Click();
    Listen();
    Compare();
}
