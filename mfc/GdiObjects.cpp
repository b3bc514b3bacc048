#include "GdiObjects.h"

int CTextMeasure::Height() const
{
    TEXTMETRIC metric = {};
    ::GetTextMetrics(m_context.Get(), &metric);
    return metric.tmHeight;
}

int CTextMeasure::Width(const CString& text) const
{
    SIZE size = {};
    ::GetTextExtentPoint32(m_context.Get(), text, text.GetLength(), &size);
    return size.cx;
}

CDrawingBuffer::CDrawingBuffer(HDC target, int width, int height)
    : m_context(::CreateCompatibleDC(target)), m_bitmap(::CreateCompatibleBitmap(target, width, height)),
      m_selected(m_context.get(), m_bitmap.get())
{
}
