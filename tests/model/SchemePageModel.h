#pragma once

#include "tests/model/EditorModel.h"

constexpr int kNoScheme = -1;
constexpr int kFirstUserScheme = 1000;

// The scheme that the pages of an editor show, found anew whenever it is needed.
class ShownScheme
{
public:
    ShownScheme(refhost::Machine& machine, bool isUserEditor) : m_machine(machine), m_isUserEditor(isUserEditor) {}

    void Show(int id, int config);
    int Id() const { return m_id; }
    int Config() const { return m_config; }
    bool IsEditable() const { return m_id >= (m_isUserEditor ? kFirstUserScheme : 0); }
    bool IsUserEditor() const { return m_isUserEditor; }

    // Null where there is none.
    refhost::FactoryScheme* Factory() const;
    refhost::UserScheme* User() const;
    refhost::SchemeValues* Values() const;
    // Itself, or the one that a user scheme was made from.
    refhost::FactoryScheme* FactoryBehind() const;

    const refhost::Machine& Machine() const { return m_machine; }

private:
    refhost::FactoryScheme* FactoryAt(int index) const;

    refhost::Machine& m_machine;
    bool m_isUserEditor;
    int m_id = kNoScheme;
    int m_config = -1;
};

// A page of the scheme editors.
class SchemePageModel
{
public:
    virtual ~SchemePageModel() = default;

    int Template() const { return m_template; }

    virtual void Load() = 0;
    // False where a text is refused.
    [[nodiscard]] virtual bool Save() = 0;
    // What the operator has changed.
    virtual void Change(const Notice& notice) = 0;
    virtual void AddTo(std::vector<Shown>& display) const = 0;

protected:
    SchemePageModel(ShownScheme& scheme, int resourceId) : m_scheme(scheme), m_template(resourceId) {}

    ShownScheme& Scheme() const { return m_scheme; }
    const refhost::Machine& Machine() const { return m_scheme.Machine(); }
    // Null where the machine has no such table.
    const refhost::ParamTable* Table(std::uint32_t id) const;

    Shown Row(int control, int row) const { return ShownRow(m_template, control, row); }
    Shown Text(int control, const std::wstring& text) const { return ShownText(m_template, control, text); }
    Shown Number(int control, Aspect aspect, int number) const { return {m_template, control, aspect, number, {}}; }

private:
    ShownScheme& m_scheme;
    int m_template;
};

// A row that does not exist leaves a list without selection.
inline int RowWithin(int row, std::size_t count)
{
    return row >= 0 && static_cast<std::size_t>(row) < count ? row : -1;
}

// What a number that is no byte arrives as.
inline std::uint8_t LowByte(int value)
{
    return static_cast<std::uint8_t>(value);
}
