// Not part of the public interface. What the allocators throw, without the exception classes.
#pragma once

#include <VxMFCEmu/types.h>

[[noreturn]] VXMFC_EXPORT void AfxThrowMemoryException_E();
[[noreturn]] VXMFC_EXPORT void AfxThrowInvalidArgException_E();
