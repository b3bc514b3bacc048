#include "refhost/Machine.h"

namespace refhost
{

SchemeValues::SchemeValues()
{
    inkMultiple.fill(DEFAULT_INK_MULTIPLE);
    inkCut.fill(DEFAULT_INK_CUT);
}

} // namespace refhost
