#include <VxMFCEmu/wnd/cmdui.h>

#include <VxMFCEmu/text/vxqstring.h>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>

namespace {

template <typename Change>
void changeCommand(QObject* pObject, Change change)
{
    if (auto* const pAction = qobject_cast<QAction*>(pObject))
        change(*pAction);
    else if (auto* const pButton = qobject_cast<QAbstractButton*>(pObject))
        change(*pButton);
}

} // namespace

CCmdUI_E::~CCmdUI_E() = default;

void CCmdUI_E::Enable(BOOL bOn)
{
    changeCommand(m_pObject, [bOn](auto& object) { object.setEnabled(bOn == 1); });
}

void CCmdUI_E::SetCheck(int nCheck)
{
    changeCommand(m_pObject, [nCheck](auto& object) { object.setChecked(nCheck == 1); });
}

void CCmdUI_E::SetRadio(BOOL bOn) { SetCheck(bOn ? 1 : 0); }

void CCmdUI_E::SetText(const wchar_t* pszText)
{
    const VxQString text(pszText);
    changeCommand(m_pObject, [&text](auto& object) { object.setText(text); });
}
