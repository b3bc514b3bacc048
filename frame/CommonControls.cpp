#include "frame/CommonControls.h"

#include <afxwin.h>

CCommonControls::CCommonControls()
{
    wchar_t library[MAX_PATH + 1] = {};
    ::GetModuleFileName(AfxGetInstanceHandle(), library, MAX_PATH);
    ACTCTX context = {};
    context.cbSize = sizeof(context);
    context.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    context.lpSource = library;
    context.lpResourceName = MAKEINTRESOURCE(2); // the library's manifest
    context.hModule = AfxGetInstanceHandle();
    m_hContext = ::CreateActCtx(&context);
    m_bActive = m_hContext != INVALID_HANDLE_VALUE && ::ActivateActCtx(m_hContext, &m_nCookie);
}

CCommonControls::~CCommonControls()
{
    if (m_bActive)
        ::DeactivateActCtx(0, m_nCookie);
    if (m_hContext != INVALID_HANDLE_VALUE)
        ::ReleaseActCtx(m_hContext);
}
