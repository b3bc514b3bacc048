#pragma once

// Calls the function. If an exception that is not a C++ one of this compiler takes the road out of it, all scopes of
// the call are undone on its way, as AfxUndoCutScopes does.
void AfxCallWatched(void (*function)(void*), void* context);
