// Not part of the public interface. How the sources of the combo boxes reach the items.
#pragma once

#include "ctrl/vxitems_p.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

namespace vx::detail {

inline bool hasRow(const QComboBox& combo, int nRow) { return nRow >= 0 && nRow < combo.count(); }

/// The result of @p ask when the control is a combo box that has the row.
template <typename Result, typename Ask>
Result askItem(const CWnd_E& control, int nRow, Result failure, Ask ask)
{
    return askWidget<QComboBox>(control, failure, [&](auto& combo) -> Result {
        return hasRow(combo, nRow) ? static_cast<Result>(ask(combo)) : failure;
    });
}

/// Keeps a combo box silent and its line edit as the user left it: the widget would show the text
/// of the current item anew each time when items change.
class QuietItems
{
public:
    explicit QuietItems(QComboBox& combo)
        : m_quiet(&combo), m_pEdit(combo.lineEdit()), m_quietEdit(m_pEdit)
    {
        if (!m_pEdit)
            return;
        m_strText = m_pEdit->text();
        m_bModified = m_pEdit->isModified();
        m_nCursor = m_nAnchor = m_pEdit->cursorPosition();
        if (m_pEdit->hasSelectedText())
            m_nAnchor += m_pEdit->selectionStart() == m_nCursor ? m_pEdit->selectionLength()
                                                                : -m_pEdit->selectionLength();
    }
    ~QuietItems()
    {
        if (!m_pEdit || m_pEdit->text() == m_strText)
            return;
        m_pEdit->setText(m_strText);
        m_pEdit->setSelection(m_nAnchor, m_nCursor - m_nAnchor);
        m_pEdit->setModified(m_bModified);
    }
    Q_DISABLE_COPY_MOVE(QuietItems)

private:
    const QSignalBlocker m_quiet;
    QLineEdit* const m_pEdit;
    const QSignalBlocker m_quietEdit;
    QString m_strText;
    int m_nCursor = 0;
    int m_nAnchor = 0;
    bool m_bModified = false;
};

} // namespace vx::detail
