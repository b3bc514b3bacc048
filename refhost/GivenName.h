#pragma once

namespace refhost
{

// A name that a setter was given. Null stands for text that no code page could take.
inline const char* GivenName(const char* name)
{
    return name == nullptr ? "" : name;
}

} // namespace refhost
