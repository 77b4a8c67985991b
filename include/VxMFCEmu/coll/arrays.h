/// @file arrays.h
/// The ready arrays: of numbers, pointers, objects and strings.
///
/// An array owns its strings, but not what its pointers point to. Those whose elements mean nothing
/// outside the process are not serialised.
///
/// Threads: not guarded; one thread at a time.
#pragma once

#include <VxMFCEmu/coll/array.h>
#include <VxMFCEmu/coll/serial.h>
#include <VxMFCEmu/coll/unserialized.h>

class VXMFC_EXPORT CByteArray_E : public CArray_E<BYTE, BYTE>
{
    Q_OBJECT
    DECLARE_SERIAL_E(CByteArray_E)
};

class VXMFC_EXPORT CWordArray_E : public CArray_E<WORD, WORD>
{
    Q_OBJECT
    DECLARE_SERIAL_E(CWordArray_E)
};

class VXMFC_EXPORT CDWordArray_E : public CArray_E<DWORD, DWORD>
{
    Q_OBJECT
    DECLARE_SERIAL_E(CDWordArray_E)
};

class VXMFC_EXPORT CUIntArray_E : public vx::detail::Unserialized<CArray_E<UINT, UINT>>
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CUIntArray_E)
};

class VXMFC_EXPORT CPtrArray_E : public vx::detail::Unserialized<CArray_E<void*, void*>>
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(CPtrArray_E)
};

class VXMFC_EXPORT CObArray_E : public CArray_E<CObject_E*, CObject_E*>
{
    Q_OBJECT
    DECLARE_SERIAL_E(CObArray_E)
};

class VXMFC_EXPORT CStringArray_E : public CArray_E<CString_E, const CString_E&>
{
    Q_OBJECT
    DECLARE_SERIAL_E(CStringArray_E)
};
