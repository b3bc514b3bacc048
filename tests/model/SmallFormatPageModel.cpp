#include "tests/model/SmallFormatPageModel.h"

#include "resources/resource.h"
#include "tests/model/HostText.h"

SmallFormatPageModel::SmallFormatPageModel(ShownScheme& scheme) : SchemePageModel(scheme, IDD_SCHEME_SAPP) {}

void SmallFormatPageModel::Load()
{
    if (Scheme().Id() < 0)
        return;
    if (const refhost::FactoryScheme* const behind = Scheme().FactoryBehind())
    {
        m_modeRow = RowWithin(behind->smallFormatMode, 2);
        m_offset = behind->smallFormatOffset;
    }
    m_offsetText = std::to_wstring(m_offset);
}

// The controls are read even where there is no scheme to store in. In the user editor the mode is locked, and so it
// stays what it is, whether the list can show it or not; a preset does not change at all.
bool SmallFormatPageModel::Save()
{
    const std::optional<int> typed = ParseInteger(m_offsetText);
    m_offset = typed.value_or(m_offset);
    refhost::FactoryScheme* const behind = Scheme().FactoryBehind();
    if (Scheme().IsEditable() && behind)
    {
        if (!Scheme().IsUserEditor())
            behind->smallFormatMode = LowByte(m_modeRow);
        behind->smallFormatOffset = static_cast<std::uint16_t>(m_offset);
    }
    return typed.has_value();
}

void SmallFormatPageModel::Change(const Notice& notice)
{
    if (notice.control == IDC_CMB_SMALL_MODE && notice.code == CBN_SELCHANGE)
        m_modeRow = notice.state;
    else if (notice.control == IDC_EDIT_SMALL_OFFSET && notice.code == EN_CHANGE)
        m_offsetText = notice.text;
}

void SmallFormatPageModel::AddTo(std::vector<Shown>& display) const
{
    display.insert(display.end(), {Row(IDC_CMB_SMALL_MODE, m_modeRow), Text(IDC_EDIT_SMALL_OFFSET, m_offsetText)});
}
