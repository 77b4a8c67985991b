// Not part of the public interface. The widget of a dialog, from a form or empty.
#pragma once

#include <QtCore/QString>

class QDialog;
class QWidget;

namespace vx::detail {

struct BuiltDialog
{
    QDialog* pDialog; ///< owned by the caller until its parent takes it along; null on failure
    bool bShow;       ///< the style says that it is to be visible
};

/// The dialog that the form at @p strForm describes, with its styles applied, hidden; an empty one
/// where there is no such resource. A form that is no dialog fills one.
BuiltDialog buildDialog(const QString& strForm, QWidget* pParent);

} // namespace vx::detail
