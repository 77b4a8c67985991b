/// @file lists.h
/// The ready lists: of pointers, objects and strings.
///
/// A list owns its strings, but not what its pointers point to. The list of plain pointers is not
/// serialised.
///
/// Threads: not guarded; one thread at a time.
#pragma once

#include <VxMFCEmu/coll/list.h>
#include <VxMFCEmu/coll/serial.h>
#include <VxMFCEmu/coll/unserialized.h>

class VXMFC_EXPORT CPtrList_E : public vx::detail::Unserialized<CList_E<void*, void*>>
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CPtrList_E)
    using Unserialized::Unserialized;
};

class VXMFC_EXPORT CObList_E : public CList_E<CObject_E*, CObject_E*>
{
    Q_OBJECT
    DECLARE_SERIAL_E(CObList_E)
    using CList_E::CList_E;
};

class VXMFC_EXPORT CStringList_E : public CList_E<CString_E, const CString_E&>
{
    Q_OBJECT
    DECLARE_SERIAL_E(CStringList_E)
    using CList_E::CList_E;
};
