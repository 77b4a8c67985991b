/// @file profile.h
/// Profile files: sections of keys and values in an INI file.
///
/// Each call opens the file as `QSettings` in its INI format, in UTF-8, and has written it when it
/// returns, or forgets what it could not write. What `QSettings` remembers of a file is used while
/// its size and time of writing stay the same. A null section, key, value or default is an empty
/// text.
///
/// Differs from Win32:
/// - The file name is the path itself: a relative one starts at the current directory, no folder is
///   searched. Writing never creates a file; a file that is missing reads as an empty one.
/// - Buffer sizes do not protect the buffer: what is written past them is said below.
/// - A null section or key lists nothing, a null key or value deletes nothing.
/// - Sections and keys are case-sensitive.
/// - Writing drops the comments of the file.
/// - Lines of a section are separated by a carriage return each, not by zeros.
/// - The syntax is that of `QSettings`. The keys before the first section and those of [General]
///   are in the section with the empty name; the name "General" is that of a section [%General]. A
///   backslash or "/" inside a name leads to a section within a section; other characters than
///   letters, digits and "_-." are written as "%XX" or "%UXXXX". A value with a comma stands in
///   double quotes, or it is a list; a backslash starts an escape sequence, ";" a comment; a "@"
///   that begins a text is doubled.
///
/// Threads: any; each call has settings of its own.
#pragma once

#include <VxMFCEmu/types.h>

/// Copies the value of a key, or @p lpDefault when there is none, into @p lpBuffer and returns its
/// length in UTF-16 units. Differs from Win32: @p nSize is not used, the whole value and its zero
/// are written; a list (see above) reads as an empty text; a null buffer is left out, which tells
/// the room that is needed.
VXMFC_EXPORT DWORD GetPrivateProfileString_E(LPCWSTR lpSection, LPCWSTR lpKey, LPCWSTR lpDefault,
                                             LPWSTR lpBuffer, DWORD nSize, LPCWSTR lpFileName);

/// The value of a key as a decimal number, @p nDefault when there is no such key. Differs from
/// Win32: a value that is not such a number as a whole gives 0; of one with more than 32 bits the
/// lower ones are taken, negative ones stay negative.
VXMFC_EXPORT INT GetPrivateProfileInt_E(LPCWSTR lpSection, LPCWSTR lpKey, INT nDefault,
                                        LPCWSTR lpFileName);

/// Writes the keys of a section in alphabetical order, each as "key=value" and a carriage return,
/// and returns the number of characters; 0 for a section that is not there. When they are more than
/// @p nSize characters, it stops behind the first line that crosses that limit, which is written as
/// a whole, and returns @p nSize - 2 (as unsigned number, for 0 and 1 too). Differs from Win32: no
/// zero is written, so clear the buffer before. A null buffer is left out, with the same result.
VXMFC_EXPORT DWORD GetPrivateProfileSection_E(LPCWSTR lpSection, LPWSTR lpBuffer, DWORD nSize,
                                              LPCWSTR lpFileName);

/// Writes the names of the sections in alphabetical order and returns the number of characters with
/// a zero for each name. It stops behind the first name with which they are more than @p nSize.
/// Differs from Win32: that name is written as a whole, so that the result may exceed @p nSize; the
/// zeros are those of clearing @p nSize bytes, a quarter of as many characters, beforehand, so
/// clear the buffer yourself; the section with the empty name is not listed. A null buffer is left
/// out, with the same result.
VXMFC_EXPORT DWORD GetPrivateProfileSectionNames_E(LPWSTR lpBuffer, DWORD nSize,
                                                   LPCWSTR lpFileName);

/// Copies @p nSize bytes of what WritePrivateProfileStruct_E() stored. FALSE, with @p lpStruct as
/// it was, when there is no such key, or nothing in it, and for a null @p lpStruct. Differs from
/// Win32: there is no checksum, and the stored size need not be @p nSize; behind the stored bytes
/// are zeros.
VXMFC_EXPORT BOOL GetPrivateProfileStruct_E(LPCWSTR lpSection, LPCWSTR lpKey, LPVOID lpStruct,
                                            UINT nSize, LPCWSTR lpFileName);

/// Sets a key. FALSE, with the reason as last error, when the file does not exist or its name has
/// 1024 bytes or no form in the present locale's encoding. Differs from Win32: TRUE also when the
/// file could not be written; this process may go on to read the new value then.
VXMFC_EXPORT BOOL WritePrivateProfileString_E(LPCWSTR lpSection, LPCWSTR lpKey, LPCWSTR lpValue,
                                              LPCWSTR lpFileName);

/// Sets the keys of @p lpLines, lines of "key=value" that end in a carriage return each, without
/// the double quotes of the values. Lines with no "=" or more than one are left out. Result as of
/// WritePrivateProfileString_E(). Differs from Win32: other keys of the section stay; a line feed
/// is part of the text.
VXMFC_EXPORT BOOL WritePrivateProfileSection_E(LPCWSTR lpSection, LPCWSTR lpLines,
                                               LPCWSTR lpFileName);

/// Sets a key to @p nSize bytes. Result as of WritePrivateProfileString_E(); FALSE also when there
/// is no data, or more than a byte array holds.
VXMFC_EXPORT BOOL WritePrivateProfileStruct_E(LPCWSTR lpSection, LPCWSTR lpKey, LPCVOID lpStruct,
                                              UINT nSize, LPCWSTR lpFileName);
