#pragma once

#include "tests/editors/drivers/FactoryEditor.h"
#include "tests/editors/drivers/PrintModeEditor.h"
#include "tests/editors/drivers/UserEditor.h"
#include "tests/msabi/ForeignHostTest.h"

// Each road goes through one editor, so that together they call every operation of the host. To be gone in this order,
// over the same machine.
class ForeignHostRoads : public ForeignHostTest
{
protected:
    void FactorySchemes();
    void UserSchemes();
    void PrintModes();

private:
    void ChangeFactoryScheme(FactoryEditor& editor);
    void MakeCustomEclosion(FactoryEditor& editor);
    void AddCopyAndDelete(FactoryEditor& editor);

    void ChangeUserScheme(UserEditor& editor);
    void AddUserSchemes(UserEditor& editor);

    void ShowModes(PrintModeEditor& editor);
    void ChangeMode(PrintModeEditor& editor);
    void AddAndDeleteMode(PrintModeEditor& editor);
    void AddRenameAndDeleteConfig(PrintModeEditor& editor);

    // Every value that a page shows goes back when another scheme is selected: nothing may be lost on the way.
    void StoreWhatIsShown(const SchemeEditor& editor, std::initializer_list<int> rows);
    // Another value for everything that both scheme editors let an operator change.
    static void ChangeSharedPages(const SchemeEditor& editor);
    // What the host's own compiler made of the arguments: a line of its values.
    void ExpectValue(const std::string& line);
    // Ink cuts in such a line: one more each, until the last, which was changed.
    static std::string Cuts(int first);
};
