#include "Undo.h"

#include "AfxState.h"
#include "ThreadBlock.h"

#include <utility>

namespace
{
bool LiesDeeper(const void* object, const void* frame)
{
    return object >= AfxThreadBlock().StackLimit && object < frame;
}

template <class Wanted>
int FindInnermost(Wanted isWanted)
{
    const std::vector<PendingUndo>& pending = AfxGetState().undos;
    int i = static_cast<int>(pending.size()) - 1;
    while (i >= 0 && !isWanted(pending[static_cast<size_t>(i)].scope))
        --i;
    return i;
}

int FindCut(const void* frame)
{
    return FindInnermost([frame](const CUndo* scope) { return LiesDeeper(scope, frame); });
}

void TakeAndRun(int index)
{
    std::vector<PendingUndo>& pending = AfxGetState().undos;
    PendingUndo undo = pending[static_cast<size_t>(index)];
    pending.erase(pending.begin() + index);
    undo.function(undo.data);
}

// Their windows live on, with the procedures that they had before there was an object.
std::vector<HWND> DetachLostObjects(const void* frame)
{
    std::vector<HWND> windows;
    for (const auto& [window, attached] : AfxGetState().permanent)
        if (LiesDeeper(attached.object, frame))
            windows.push_back(window);
    for (HWND window : windows)
        CWnd::Detach(window);
    return windows;
}
} // namespace

void CUndo::Register(void (*function)(UndoData&), const UndoData& data)
{
    AfxGetState().undos.push_back({this, function, data});
}

void CUndo::Run()
{
    const int own = FindInnermost([this](const CUndo* scope) { return scope == this; });
    if (own >= 0)
        TakeAndRun(own);
}

__attribute__((noinline)) void AfxUndoCutScopes()
{
    AfxUndoCutScopes(__builtin_frame_address(0));
}

// Objects first: what is undone sends messages. Windows last: their owners must be enabled by then.
void AfxUndoCutScopes(const void* frame)
{
    if (FindCut(frame) < 0)
        return;
    const void* const outer = std::exchange(AfxGetState().undoneBelow, frame);
    const std::vector<HWND> windows = DetachLostObjects(frame);
    for (int cut = FindCut(frame); cut >= 0; cut = FindCut(frame))
        TakeAndRun(cut);
    for (HWND window : windows)
        if (::IsWindow(window))
            ::DestroyWindow(window);
    AfxGetState().undoneBelow = outer;
}

bool AfxIsBeingUndone(const void* object)
{
    const void* const below = AfxGetState().undoneBelow;
    return below && LiesDeeper(object, below);
}
