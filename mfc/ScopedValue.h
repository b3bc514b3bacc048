#pragma once

#include "Undo.h"

// Gives a variable another value until the scope is left. One that was cut off together with the scope is let alone.
template <typename Value>
class CScopedValue
{
public:
    CScopedValue(Value& target, const Value& value)
        : m_restore([&target, old = target] {
              if (!AfxIsBeingUndone(&target))
                  target = old;
          })
    {
        target = value;
    }

private:
    CUndo m_restore;
};
