#include "frame/CommonControls.h"

#include <afxwin.h>

namespace
{
struct Activation
{
    HANDLE context = INVALID_HANDLE_VALUE;
    ULONG_PTR cookie = 0;
    bool isActive = false;
};

Activation Activate()
{
    wchar_t library[MAX_PATH + 1] = {};
    ::GetModuleFileName(AfxGetInstanceHandle(), library, MAX_PATH);
    ACTCTX details = {};
    details.cbSize = sizeof(details);
    details.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    details.lpSource = library;
    details.lpResourceName = MAKEINTRESOURCE(2); // the library's manifest
    details.hModule = AfxGetInstanceHandle();
    Activation activation;
    activation.context = ::CreateActCtx(&details);
    activation.isActive =
        activation.context != INVALID_HANDLE_VALUE && ::ActivateActCtx(activation.context, &activation.cookie);
    return activation;
}

// Also what was activated after it and has been cut off.
void Deactivate(const Activation& activation)
{
    if (activation.isActive)
        ::DeactivateActCtx(DEACTIVATE_ACTCTX_FLAG_FORCE_EARLY_DEACTIVATION, activation.cookie);
    if (activation.context != INVALID_HANDLE_VALUE)
        ::ReleaseActCtx(activation.context);
}
} // namespace

CCommonControls::CCommonControls() : m_deactivate([activation = Activate()] { Deactivate(activation); }) {}
