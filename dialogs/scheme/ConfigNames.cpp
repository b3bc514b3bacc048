#include "dialogs/scheme/ConfigNames.h"

#include "dialogs/base/HostContext.h"
#include "dialogs/base/HostCount.h"
#include "dialogs/base/HostText.h"
#include "dialogs/base/Rows.h"
#include "host/IConfigList.h"
#include "host/IHostData.h"
#include "host/IPrintConfig.h"

namespace
{
CString ConfigName(IPrintConfig& config)
{
    CString strName = HostText(config.GetName());
    if (strName.IsEmpty())
        strName.Format(L"[%dX%d][%dC][%db]", config.GetXResolution(), config.GetYResolution(), config.GetColorCount(),
                       config.GetDotBits());
    return strName;
}
} // namespace

void FillConfigNames(CListBox& list)
{
    Refill(list, [&] {
        IConfigList* pList = GetHostContext().pData->GetConfigList();
        const std::uint32_t nCount = HostCount(pList);
        for (std::uint32_t i = 0; i < nCount; ++i)
        {
            IPrintConfig* pConfig = pList->GetAt(i);
            const int nRow = list.AddString(pConfig ? ConfigName(*pConfig) : CString());
            if (nRow >= 0)
                list.SetItemData(nRow, reinterpret_cast<DWORD_PTR>(pConfig));
        }
    });
}
