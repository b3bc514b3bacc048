// Owners of what the framework borrows or makes for drawing and measuring.
#pragma once

#include <afxstr.h>

#include <memory>

struct GdiObjectDeleter
{
    using pointer = HGDIOBJ;
    void operator()(HGDIOBJ object) const { ::DeleteObject(object); }
};
using CGdiObjectOwner = std::unique_ptr<void, GdiObjectDeleter>;

struct MemoryContextDeleter
{
    using pointer = HDC;
    void operator()(HDC context) const { ::DeleteDC(context); }
};
using CMemoryContextOwner = std::unique_ptr<void, MemoryContextDeleter>;

// An object is selected into a device context while it lives.
class CSelectedObject
{
public:
    CSelectedObject(HDC context, HGDIOBJ object) : m_hContext(context), m_hOld(::SelectObject(context, object)) {}
    ~CSelectedObject() { ::SelectObject(m_hContext, m_hOld); }
    CSelectedObject(const CSelectedObject&) = delete;
    CSelectedObject& operator=(const CSelectedObject&) = delete;

private:
    HDC m_hContext;
    HGDIOBJ m_hOld;
};

// The device context of a window's client area.
class CClientContext
{
public:
    explicit CClientContext(HWND window) : m_hWindow(window), m_hContext(::GetDC(window)) {}
    ~CClientContext() { ::ReleaseDC(m_hWindow, m_hContext); }
    CClientContext(const CClientContext&) = delete;
    CClientContext& operator=(const CClientContext&) = delete;

    HDC Get() const { return m_hContext; }

private:
    HWND m_hWindow;
    HDC m_hContext;
};

// How large text of a font is in a window.
class CTextMeasure
{
public:
    CTextMeasure(HWND window, HFONT font) : m_context(window), m_font(m_context.Get(), font) {}

    int Height() const;
    int Width(const CString& text) const;

private:
    CClientContext m_context;
    CSelectedObject m_font;
};

// A bitmap in memory to draw on, in the colours of a device context, for drawing that does not flicker.
class CDrawingBuffer
{
public:
    CDrawingBuffer(HDC target, int width, int height);

    HDC Get() const { return m_context.get(); }

private:
    CMemoryContextOwner m_context;
    CGdiObjectOwner m_bitmap;
    CSelectedObject m_selected;
};
