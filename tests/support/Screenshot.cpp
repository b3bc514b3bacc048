#include "tests/support/Screenshot.h"

#include <windows.h>

namespace
{
// A picture of the whole desktop.
class DesktopBitmap
{
public:
    DesktopBitmap()
    {
        const int width = GetSystemMetrics(SM_CXVIRTUALSCREEN);
        const int height = GetSystemMetrics(SM_CYVIRTUALSCREEN);
        const HDC screen = GetDC(nullptr);
        const HDC memory = CreateCompatibleDC(screen);
        m_bitmap = CreateCompatibleBitmap(screen, width, height);
        const HGDIOBJ before = SelectObject(memory, m_bitmap);
        BitBlt(memory, 0, 0, width, height, screen, GetSystemMetrics(SM_XVIRTUALSCREEN),
               GetSystemMetrics(SM_YVIRTUALSCREEN), SRCCOPY | CAPTUREBLT);
        SelectObject(memory, before);
        DeleteDC(memory);
        ReleaseDC(nullptr, screen);
    }
    ~DesktopBitmap() { DeleteObject(m_bitmap); }
    DesktopBitmap(const DesktopBitmap&) = delete;
    DesktopBitmap& operator=(const DesktopBitmap&) = delete;

    HBITMAP Get() const { return m_bitmap; }

private:
    HBITMAP m_bitmap;
};

struct StartupInput
{
    UINT32 version = 1;
    void* debugCallback = nullptr;
    BOOL suppressesThread = FALSE;
    BOOL suppressesCodecs = FALSE;
};

// The system's encoder of pictures, by its flat functions: 0 is success. It is loaded only where a picture is taken, so
// that a test that passes has no other modules in its process than without it.
class GdiPlus
{
public:
    GdiPlus()
    {
        const StartupInput input;
        const auto start = Get<int(WINAPI*)(ULONG_PTR*, const StartupInput*, void*)>("GdiplusStartup");
        m_hasStarted = start && start(&m_token, &input, nullptr) == 0;
    }
    ~GdiPlus()
    {
        if (m_hasStarted)
            Get<void(WINAPI*)(ULONG_PTR)>("GdiplusShutdown")(m_token);
        FreeLibrary(m_module);
    }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;

    bool Save(HBITMAP bitmap, const std::wstring& path) const
    {
        void* image = nullptr;
        if (!m_hasStarted ||
            Get<int(WINAPI*)(HBITMAP, HPALETTE, void**)>("GdipCreateBitmapFromHBITMAP")(bitmap, nullptr, &image) != 0)
            return false;
        const int status = Get<int(WINAPI*)(void*, const wchar_t*, const CLSID*, const void*)>("GdipSaveImageToFile")(
            image, path.c_str(), &kPngEncoder, nullptr);
        Get<int(WINAPI*)(void*)>("GdipDisposeImage")(image);
        return status == 0;
    }

private:
    static constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};

    template <class Function>
    Function Get(const char* name) const
    {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(m_module, name)));
    }

    HMODULE m_module = LoadLibraryW(L"gdiplus.dll");
    ULONG_PTR m_token = 0;
    bool m_hasStarted = false;
};
} // namespace

bool SaveScreenshot(const std::wstring& path)
{
    return GdiPlus().Save(DesktopBitmap().Get(), path);
}
