#pragma once

#include "tests/msabi/host/Lists.h"

// The custom feathering definitions.

class EclosionElement final : public Object<IEclosionElement>
{
public:
    int GetWidth() override { return m_width; }
    void SetWidth(int width) override { Take(m_width, width); }
    int GetHeight() override { return m_height; }
    void SetHeight(int height) override { Take(m_height, height); }

private:
    static void Take(int& size, int value)
    {
        Require(value >= 1 && value <= 8, "the size is out of range");
        size = value;
    }

    int m_width = 3;
    int m_height = 5;
};

class EclosionMode final : public Object<IEclosionMode>
{
public:
    unsigned GetElementCount() override { return m_elements.Size(); }
    IEclosionElement* AddElement() override;
    IEclosionElement* GetElement(unsigned index) override { return ItemAt(m_elements, index); }
    void DeleteElement(unsigned index) override { RemoveItem(m_elements, index); }

private:
    HostArray<EclosionElement*> m_elements;
};

class CustomEclosion final : public Object<ICustomEclosion>
{
public:
    int GetCurrentMode() override { return m_currentMode; }
    void SetCurrentMode(int index) override;
    bool IsLocked() override { return locked; }
    void SetLocked(bool isLocked) override { locked = isLocked; }
    int GetRange() override { return range; }
    void SetRange(int value) override;
    unsigned GetModeCount() override { return m_modes.Size(); }
    IEclosionMode* AddMode() override;
    IEclosionMode* GetMode(unsigned index) override { return index < m_modes.Size() ? m_modes[index] : nullptr; }
    void DeleteMode(unsigned index) override { RemoveItem(m_modes, index); }

    bool locked = false;
    int range = 0;

private:
    int m_currentMode = 0;
    HostArray<EclosionMode*> m_modes;
};

class CustomEclosionSet final : public Object<ICustomEclosionSet>
{
public:
    int GetCurrentIndex() override { return currentIndex; }
    void SetCurrentIndex(int index) override;
    unsigned GetCount() override { return items.Size(); }
    ICustomEclosion* AddEclosion() override { return New("new eclosion"); }
    ICustomEclosion* GetEclosion(unsigned index) override { return ItemAt(items, index); }

    CustomEclosion* New(const char* label);

    int currentIndex = 0;
    HostArray<CustomEclosion*> items;
};
