#include "OwnerWindow.h"

namespace test
{
BEGIN_MESSAGE_MAP(Owner, TestDialog)
    ON_MESSAGE(WM_ENTERIDLE, &Owner::OnEnterIdle)
    ON_MESSAGE(kDestroyYourself, &Owner::OnDestroyYourself)
END_MESSAGE_MAP()
} // namespace test
