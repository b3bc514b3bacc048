#include "tables/Forwarding.h"
#include "tables/Positions.h"

// Makes each call as it comes.
struct Direct
{
    template <class Interface, class Result, class... Arguments>
    Result Pass(const tables::Operation&, Interface* object, Result (Interface::*function)(Arguments...),
                Arguments... arguments)
    {
        return (object->*function)(arguments...);
    }
};

#define FORWARD(interface_) template class tables::CForwarding<interface_, Direct>;
HOST_INTERFACES(FORWARD)
