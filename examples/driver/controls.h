// Works the page that has a control of each class.
#pragma once

#include <QtCore/QString>

class Report;

/// Opens the page over @p window, uses each control, saves @p picture of it and closes it again.
bool useControls(Report& report, unsigned long window, const QString& picture);
