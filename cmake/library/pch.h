// Precompiled: what nearly every source of the library includes.
#pragma once
#include <QtCore/QtCore>
#include <QtGui/QtGui>
#include <QtWidgets/QtWidgets>
#include <map>
#include <memory>
#include <string>
#include <vector>
