#pragma once

#include <stdexcept>

namespace refhost
{

// Why a machine file was not read or not written, in UTF-8, for the operator to read.
class CMachineFileError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace refhost
