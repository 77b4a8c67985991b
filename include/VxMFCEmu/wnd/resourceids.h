/// @file resourceids.h
/// Control ids and control names: the id map of the calling plug-in.
///
/// A plug-in carries the map as the INI-format Qt resource ":/R/RIDs", where R is its resource base
/// name (see GetMfyResourceName()). Each key is a decimal id, each value a Qt object name, in
/// UTF-8.
///
/// Threads: GUI thread only.
#pragma once

#include <VxMFCEmu/types.h>

#include <QtCore/QMap>
#include <QtCore/QString>

/// The id map of the calling plug-in, loaded on first use; tried again while it is empty.
VXMFC_EXPORT const QMap<UINT, QString>& GetResourceIDMap();
/// The object name of a control id; empty when the id is unknown.
VXMFC_EXPORT QString ToStringId(UINT nID);
/// The lowest id with this object name (case-sensitive); 0 when there is none.
VXMFC_EXPORT UINT ToCtrlId(const QString& strName);
