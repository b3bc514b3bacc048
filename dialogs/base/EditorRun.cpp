#include "dialogs/base/EditorRun.h"

#include "dialogs/base/Language.h"
#include "dialogs/data/HostRun.h"

void BeginEditorRun(IHostData& data, IHostControl& control, const wchar_t* languageDir)
{
    SetHost(data, control);
    SetLanguageFile(languageDir, L"Quorvane.ini");
}
