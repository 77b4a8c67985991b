/// @file handle.h
/// Handles of events, mutexes and semaphores: how they are named and closed.
///
/// Differs from Win32:
/// - A name is the address of its text. The text is never compared: two buffers with the same text
///   name two objects, and one buffer names the same object whatever it comes to hold.
/// - Objects without a name share the null address. A second one of the same kind made while the
///   first is open is the first, with the last error ERROR_ALREADY_EXISTS; one of another kind
///   takes its place, and the first can no longer be opened.
/// - Opening gives the handle that creating gave, and nothing is counted: one close ends it for
///   everybody.
/// - Creating never gives null. When it fails, the waits on the handle give WAIT_FAILED.
/// - After a new object was made, the last error is what the look-up of its name left, ENOENT or
///   ENXIO, and for a semaphore what the system left. Only ERROR_ALREADY_EXISTS is worth a test.
/// - Handles are not inherited, not duplicated and not shared with other processes; but
///   processes that name a semaphore alike share its units, which outlive a process that crashes.
/// - Functions that find no object of their kind behind a handle leave the last error as it was.
///   A closed handle, or one of a file, must not be used with them.
/// - Files have handles of their own kind, closed with CloseHandle_E().
///
/// Threads: any thread may use a handle. Creating, opening and closing share the map of names,
/// which has no lock: do these in one thread at a time.
#pragma once

#include <VxMFCEmu/sys/errorcodes.h>

#include <QtCore/QMap>

/// What the handle of an event, a mutex or a semaphore points to.
struct VxHandle;

/// The named objects by the address of the name; does not own them.
extern VXMFC_EXPORT QMap<const wchar_t*, VxHandle*> g_mapVxHandle;

/// Ends an event, a mutex or a semaphore. Threads that sleep in a wait for it sleep on: until their
/// time-out, or for good without one; of those that sleep for a semaphore one is woken. No thread
/// may begin to use the handle any more.
///
/// FALSE for null and for a handle whose creation failed, which stays as it is; a handle from a
/// failed `sem_open` can be closed. Otherwise TRUE, also when the object could not be destroyed,
/// such as a mutex that is locked or a semaphore that the system refused.
///
/// Differs from Win32: an object that could not be destroyed is freed all the same but keeps its
/// name, so that creating or opening under this name again uses freed memory. Release a mutex
/// before it is closed.
VXMFC_EXPORT BOOL VxCloseHandle(HANDLE hObject);
