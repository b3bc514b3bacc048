#pragma once

#include "tests/msabi/host/Lists.h"

constexpr unsigned kInkGroups = 3;
constexpr unsigned kHeads = 3;

// Print configurations and their modes.

class PrintMode final : public Object<IPrintMode>
{
public:
    void SetName(const char* text) override { name.Set(text); }
    void SetPassCount(int count) override { passCount = static_cast<unsigned short>(count); }
    void SetDisabled(bool isDisabled) override { disabled = isDisabled; }
    void SetXResolutionIndex(int index) override;
    void SetHeadDataMode(unsigned char dataMode, unsigned row) override;
    void SetSmallDotCompensation(float value, unsigned group) override { SetDot(small, value, group); }
    void SetMediumDotCompensation(float value, unsigned group) override { SetDot(medium, value, group); }
    void SetLargeDotCompensation(float value, unsigned group) override { SetDot(large, value, group); }
    void SetFrontCompensation(bool enabled, unsigned group) override { SetEdge(front, enabled, group); }
    void SetBackCompensation(bool enabled, unsigned group) override { SetEdge(back, enabled, group); }
    void SetResident(unsigned char isResident) override;
    const char* GetName() override { return name.Text(); }
    unsigned short GetPassCount() override { return passCount; }
    unsigned char GetDisabled() override { return disabled ? 1 : 0; }
    int GetXResolutionIndex() override { return xResolutionIndex; }
    unsigned char GetHeadDataMode(unsigned row) override;
    float GetSmallDotCompensation(unsigned group) override { return Dot(small, group); }
    float GetMediumDotCompensation(unsigned group) override { return Dot(medium, group); }
    float GetLargeDotCompensation(unsigned group) override { return Dot(large, group); }
    bool GetFrontCompensation(unsigned group) override { return Edge(front, group); }
    bool GetBackCompensation(unsigned group) override { return Edge(back, group); }
    unsigned char GetResident() override { return resident; }

    void Describe(TextBuffer& text) const;

    Name name;
    unsigned short passCount = 4;
    bool disabled = false;
    unsigned char resident = 0;
    int xResolutionIndex = 0;
    unsigned char headDataModes[kHeads] = {255, 255, 255};
    float small[kInkGroups] = {};
    float medium[kInkGroups] = {};
    float large[kInkGroups] = {};
    bool front[kInkGroups] = {};
    bool back[kInkGroups] = {};

private:
    static void SetDot(float (&dots)[kInkGroups], float value, unsigned group);
    static void SetEdge(bool (&edges)[kInkGroups], bool enabled, unsigned group);
    static float Dot(const float (&dots)[kInkGroups], unsigned group);
    static bool Edge(const bool (&edges)[kInkGroups], unsigned group);
};

class PrintConfig final : public Object<IPrintConfig>
{
public:
    void SetName(const char* text) override { name.Set(text); }
    void SetXResolution(int dpi) override { xResolution = static_cast<unsigned short>(dpi); }
    void SetYResolution(int dpi) override { yResolution = static_cast<unsigned short>(dpi); }
    void SetColorCount(int count) override { colorCount = static_cast<unsigned char>(count); }
    void SetDotBits(int bits) override { dotBits = static_cast<unsigned char>(bits); }
    void SetEnabled(int isEnabled) override { enabled = isEnabled; }
    const char* GetName() override { return name.Text(); }
    unsigned short GetXResolution() override { return xResolution; }
    unsigned short GetYResolution() override { return yResolution; }
    unsigned char GetColorCount() override { return colorCount; }
    unsigned char GetDotBits() override { return dotBits; }
    int GetEnabled() override { return enabled; }
    unsigned GetModeCount() override { return modes.Size(); }
    IPrintMode* GetMode(unsigned index) override { return ItemAt(modes, index); }
    IPrintMode* AddMode() override { return NewMode("new mode"); }
    void RemoveMode(unsigned index) override { RemoveItem(modes, index); }

    PrintMode* NewMode(const char* label);

    Name name;
    unsigned short xResolution = 0;
    unsigned short yResolution = 0;
    unsigned char colorCount = 0;
    unsigned char dotBits = 0;
    int enabled = 1;
    HostArray<PrintMode*> modes;
};

class ConfigList final : public Object<IConfigList>
{
public:
    unsigned GetCount() override { return items.Size(); }
    IPrintConfig* GetAt(unsigned index) override { return ItemAt(items, index); }
    bool AddConfig(IPrintConfig* source) override;
    void RemoveAt(unsigned index) override { RemoveItem(items, index); }

    HostArray<PrintConfig*> items;
};
