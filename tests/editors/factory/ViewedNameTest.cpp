#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
// Keeps the text that a field has when its dialog closes.
class LastText
{
public:
    LastText(Operator& op, const Window& field)
    {
        s_field = field;
        s_text.clear();
        op.OnUi([] {
            s_procedure = reinterpret_cast<WNDPROC>(
                SetWindowLongPtrW(s_field.Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Watch)));
        });
    }
    const std::wstring& Get() const { return s_text; }

private:
    static LRESULT CALLBACK Watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_DESTROY)
            s_text = s_field.Text();
        return CallWindowProcW(s_procedure, window, message, wParam, lParam);
    }

    static inline Window s_field;
    static inline WNDPROC s_procedure = nullptr;
    static inline std::wstring s_text;
};

class ViewedName : public FactorySchemeFixture
{
protected:
    void ExpectKept(const std::string& name)
    {
        m_machine.configurations[0].name = name;
        Run([&](FactoryEditor& editor) {
            const ConfigDialog dialog = editor.OpenConfig(0);
            NewChanges();
            const LastText last(editor.Op(), dialog.Field(IDC_EDIT_CFG_NAME));
            editor.Confirm(dialog);
            EXPECT_EQ(last.Get(), std::wstring(name.begin(), name.end()));
            EXPECT_EQ(Changes(), Calls());
            editor.Cancel();
        });
    }
};

TEST_F(ViewedName, IsNotTrimmed)
{
    ExpectKept("  Fast  ");
}

TEST_F(ViewedName, OfBlanksIsNotBuiltFromTheValues)
{
    ExpectKept("   ");
}
} // namespace
