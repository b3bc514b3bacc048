#pragma once

#include "tests/editors/EditorTest.h"

// What a scheme of the small scheme machine receives when pages store it whose setters factory and user schemes have
// in common: each page's calls. The object is the scheme's name in the call log: "IPrintScheme[1]".
class StoredValues
{
public:
    StoredValues(std::string object, const refhost::SchemeValues& values)
        : m_object(std::move(object)), m_values(values)
    {
    }

    Calls Eclosion() const;
    Calls InkMultiples() const;
    Calls InkCuts() const;
    Calls Lamps() const;

protected:
    // Name, speed, direction and material, with which the common page begins.
    Calls General() const;
    std::string Call(const std::string& operation, const std::string& arguments) const;
    std::string Call(const std::string& operation, int argument) const;

private:
    std::string m_object;
    refhost::SchemeValues m_values;
};

// What a factory scheme receives from the factory editor: each page's calls, and all in tab order. The place is the
// scheme's in the call log: "1" for the second one.
class StoredScheme : public StoredValues
{
public:
    StoredScheme(const std::string& place, const refhost::FactoryScheme& values);

    Calls Common() const;
    Calls Mode() const;
    Calls SmallFormat() const;

    operator Calls() const;

private:
    refhost::FactoryScheme m_values;
};
