#pragma once

// Gives a variable another value until the scope is left, by an exception too.
template <typename Value>
class CScopedValue
{
public:
    CScopedValue(Value& target, const Value& value) : m_target(target), m_old(target) { target = value; }
    ~CScopedValue() { m_target = m_old; }
    CScopedValue(const CScopedValue&) = delete;
    CScopedValue& operator=(const CScopedValue&) = delete;

private:
    Value& m_target;
    Value m_old;
};
