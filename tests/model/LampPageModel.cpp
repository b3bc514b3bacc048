#include "tests/model/LampPageModel.h"

#include "resources/resource.h"

LampPageModel::LampPageModel(ShownScheme& scheme)
    : SchemePageModel(scheme, IDD_SCHEME_UV), m_lamps{{{IDC_CHECK_LPRINT_LLIGHT, &refhost::SchemeValues::lampLL},
                                                       {IDC_CHECK_LPRINT_RLIGHT, &refhost::SchemeValues::lampLR},
                                                       {IDC_CHECK_RPRINT_LLIGHT, &refhost::SchemeValues::lampRL},
                                                       {IDC_CHECK_RPRINT_RLIGHT, &refhost::SchemeValues::lampRR}}}
{
}

// A flag is 0 or 1. The third state of a check box, 2, shows as ticked where a box has two; any other as clear.
void LampPageModel::Load()
{
    const refhost::SchemeValues* const values = Scheme().Values();
    if (!values)
        return;
    for (Lamp& lamp : m_lamps)
        lamp.isOn = values->*lamp.stored == BST_CHECKED || values->*lamp.stored == BST_INDETERMINATE;
}

bool LampPageModel::Save()
{
    refhost::SchemeValues* const values = Scheme().Values();
    if (Scheme().IsEditable() && values)
        for (const Lamp& lamp : m_lamps)
            values->*lamp.stored = lamp.isOn ? 1 : 0;
    return true;
}

void LampPageModel::Change(const Notice& notice)
{
    for (Lamp& lamp : m_lamps)
        if (notice.control == lamp.check && notice.code == BN_CLICKED)
            lamp.isOn = notice.state == BST_CHECKED;
}

void LampPageModel::AddTo(std::vector<Shown>& display) const
{
    for (const Lamp& lamp : m_lamps)
        display.push_back(Number(lamp.check, Aspect::Checked, lamp.isOn ? 1 : 0));
}
