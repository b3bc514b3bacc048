#include "refhost/Machine.h"

namespace refhost
{

SchemeValues::SchemeValues()
{
    inkMultiple.fill(kDefaultInkMultiple);
    inkCut.fill(kDefaultInkCut);
}

} // namespace refhost
