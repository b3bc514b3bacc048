#pragma once

#include "refhost/Machine.h"
#include "tests/model/Diary.h"
#include "tests/model/Notice.h"
#include "tests/support/Chance.h"

#include <functional>

// What one run needs besides the editor and the model. It outlives the editor's windows.
struct SeededRun
{
    explicit SeededRun(unsigned seed) : chance(seed) {}

    Chance chance;
    Diary diary;
    NoticeTap tap;
    // The host's data as they are; on the editor's thread.
    std::function<refhost::Machine()> host;
};
