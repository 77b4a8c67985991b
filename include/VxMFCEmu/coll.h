/// @file coll.h
/// Collections, files and archives.
#pragma once

#include <VxMFCEmu/coll/file.h>
#include <VxMFCEmu/coll/fileattributes.h>
#include <VxMFCEmu/coll/filefind.h>
#include <VxMFCEmu/coll/filefunctions.h>
#include <VxMFCEmu/coll/filehandle.h>
#include <VxMFCEmu/coll/memfile.h>
#include <VxMFCEmu/coll/stdiofile.h>
