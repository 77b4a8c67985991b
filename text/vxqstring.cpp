#include <VxMFCEmu/text/vxqstring.h>

#include "text/vxtranscode_p.h"

QString VxQString::fromWide(const wchar_t* p)
{
    return vx::detail::wideToQString(vx::detail::orEmpty(p));
}

QString VxQString::fromWide(const CString_E& str)
{
    return vx::detail::wideToQString({str.GetString(), static_cast<std::size_t>(str.GetLength())});
}
