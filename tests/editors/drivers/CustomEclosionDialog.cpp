#include "tests/editors/drivers/CustomEclosionDialog.h"

#include <commctrl.h>

namespace
{
constexpr int kRadios[] = {IDC_RADIO_MODE1, IDC_RADIO_MODE2, IDC_RADIO_MODE3};
}

int CustomEclosionDialog::ShownRadios() const
{
    int count = 0;
    for (int id : kRadios)
        count += Control(id).IsVisible() ? 1 : 0;
    return count;
}

int CustomEclosionDialog::CheckedRadio() const
{
    for (int i = 0; i < 3; ++i)
        if (m_dialog.Control<CheckBox>(kRadios[i]).IsChecked())
            return i;
    return kNone;
}

std::vector<int> CustomEclosionDialog::Sizes(int widthId, int heightId) const
{
    return {Slider(widthId).Position(), Slider(heightId).Position()};
}

RECT CustomEclosionDialog::Frame(int id) const
{
    RECT area{};
    GetWindowRect(Control(id).Handle(), &area);
    MapWindowPoints(nullptr, m_dialog.Handle(), reinterpret_cast<POINT*>(&area), 2);
    return area;
}

COLORREF CustomEclosionDialog::Pixel(LONG x, LONG y) const
{
    COLORREF color = CLR_INVALID;
    Op().OnUi([&] {
        UpdateWindow(m_dialog.Handle());
        const HDC dc = GetDC(m_dialog.Handle());
        color = GetPixel(dc, x, y);
        ReleaseDC(m_dialog.Handle(), dc);
    });
    return color;
}

RECT CustomEclosionDialog::InvalidAfterMoving(int sliderId, int position) const
{
    RECT invalid{};
    const HWND slider = Control(sliderId).Handle();
    Op().OnUi([&] {
        UpdateWindow(m_dialog.Handle());
        SendMessageW(slider, TBM_SETPOS, TRUE, position);
        SendMessageW(m_dialog.Handle(), WM_HSCROLL, MAKEWPARAM(TB_THUMBTRACK, position),
                     reinterpret_cast<LPARAM>(slider));
        GetUpdateRect(m_dialog.Handle(), &invalid, FALSE);
    });
    return invalid;
}
