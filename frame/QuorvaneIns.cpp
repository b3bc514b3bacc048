#include "frame/QuorvaneIns.h"

#include "dialogs/base/EditorRun.h"
#include "dialogs/printmode/DlgPrintMode.h"
#include "dialogs/scheme/DlgPrintSchemeFcty.h"
#include "dialogs/user/DlgPrintSchemeUser.h"
#include "frame/ModalRunner.h"
#include "mfc/WatchedCall.h"

#include <exception>
#include <memory>
#include <new>

namespace
{
// The run-time library keeps a record of exceptions for each thread. It ends the process where it has no memory for
// that record, so the thread gets it before anything can be thrown.
bool ProvideExceptionRecord()
{
    constexpr std::size_t PLENTY = 4096;
    if (!std::unique_ptr<char[]>(new (std::nothrow) char[PLENTY]))
        return false;
    (void)std::current_exception(); // looks into the record
    return true;
}

// The thread on which an editor is open, of whatever object; 0 for none.
volatile LONG editorThread = 0;

void ReleaseEditor()
{
    ::InterlockedExchange(&editorThread, 0);
}

// Only one editor can be open. One of this thread that was cut off is open no longer.
bool ClaimEditor()
{
    const auto thread = static_cast<LONG>(::GetCurrentThreadId());
    LONG holder = ::InterlockedCompareExchange(&editorThread, thread, 0);
    if (holder == thread)
    {
        AfxUndoCutScopes();
        holder = ::InterlockedCompareExchange(&editorThread, thread, 0);
    }
    return holder == 0;
}

struct EditorCall
{
    IHostData& data;
    IHostControl& control;
    const wchar_t* languageDir;
};

template <class Dialog>
void RunEditor(const EditorCall& call)
{
    const CUndo release(&ReleaseEditor);
    Dialog dialog;
    BeginEditorRun(call.data, call.control, call.languageDir);
    RunModal(&dialog, L"Quorvane.dll");
}

// The host cannot catch this library's exceptions, so none may leave. The host sees a run that was closed.
template <class Dialog>
void RunCall(void* call)
{
    try
    {
        RunEditor<Dialog>(*static_cast<const EditorCall*>(call));
    }
    catch (...)
    {
        ::OutputDebugString(L"Quorvane: an exception ended the editor\n");
    }
}

template <class Dialog>
std::int32_t Edit(IHostData* data, IHostControl* control, const wchar_t* languageDir)
{
    if (!data || !control)
        return 0;
    if (!ProvideExceptionRecord())
        return 1;
    if (!ClaimEditor())
        return 0;
    EditorCall call = {*data, *control, languageDir};
    AfxCallWatched(&RunCall<Dialog>, &call);
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
