#include "frame/QuorvaneIns.h"

#include "dialogs/base/EditorRun.h"
#include "dialogs/printmode/DlgPrintMode.h"
#include "dialogs/scheme/DlgPrintSchemeFcty.h"
#include "dialogs/user/DlgPrintSchemeUser.h"
#include "frame/ModalRunner.h"

namespace
{
volatile LONG isEditorOpen = 0; // of any object, on any thread

class COpenEditor
{
public:
    COpenEditor() : m_bIsOnly(::InterlockedExchange(&isEditorOpen, 1) == 0) {}
    ~COpenEditor()
    {
        if (m_bIsOnly)
            ::InterlockedExchange(&isEditorOpen, 0);
    }
    COpenEditor(const COpenEditor&) = delete;
    COpenEditor& operator=(const COpenEditor&) = delete;

    bool IsOnly() const { return m_bIsOnly; }

private:
    bool m_bIsOnly;
};

template <class Dialog>
void RunEditor(IHostData& data, IHostControl& control, const wchar_t* languageDir)
{
    Dialog dialog;
    BeginEditorRun(data, control, languageDir);
    RunModal(&dialog, L"Quorvane.dll");
}

// The host cannot catch this library's exceptions, so none may leave. The host sees a run that was closed.
template <class Dialog>
std::int32_t Edit(IHostData* data, IHostControl* control, const wchar_t* languageDir)
{
    if (!data || !control)
        return 0;
    const COpenEditor open;
    if (!open.IsOnly())
        return 0;
    try
    {
        RunEditor<Dialog>(*data, *control, languageDir);
    }
    catch (...)
    {
        ::OutputDebugString(L"Quorvane: an exception ended the editor\n");
    }
    return 1;
}
} // namespace

void* CQuorvaneIns::Destroy(std::uint32_t flags)
{
    if (flags & 1)
        delete this;
    return this;
}

std::int32_t CQuorvaneIns::EditPrintModes(IHostData* data, IHostControl* control, const wchar_t* languageDir)
{
    return Edit<CDlgPrintMode>(data, control, languageDir);
}

std::int32_t CQuorvaneIns::EditFactorySchemes(IHostData* data, IHostControl* control, const wchar_t* languageDir)
{
    return Edit<CDlgPrintSchemeFcty>(data, control, languageDir);
}

std::int32_t CQuorvaneIns::EditUserSchemes(IHostData* data, IHostControl* control, const wchar_t* languageDir)
{
    return Edit<CDlgPrintSchemeUser>(data, control, languageDir);
}
