#pragma once

class IHostControl;
class IHostData;

// Begins the run of an editor: from here on its dialogs use these host objects, the language file "Quorvane.ini" of the
// folder, and the measurement unit of the host's project settings. All of it stays until the next run begins.
void BeginEditorRun(IHostData& data, IHostControl& control, const wchar_t* languageDir);
