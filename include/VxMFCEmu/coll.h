/// @file coll.h
/// Collections, files and archives.
#pragma once

#include <VxMFCEmu/coll/archive.h>
#include <VxMFCEmu/coll/array.h>
#include <VxMFCEmu/coll/arrays.h>
#include <VxMFCEmu/coll/elements.h>
#include <VxMFCEmu/coll/file.h>
#include <VxMFCEmu/coll/fileattributes.h>
#include <VxMFCEmu/coll/filefind.h>
#include <VxMFCEmu/coll/filefunctions.h>
#include <VxMFCEmu/coll/filehandle.h>
#include <VxMFCEmu/coll/list.h>
#include <VxMFCEmu/coll/lists.h>
#include <VxMFCEmu/coll/map.h>
#include <VxMFCEmu/coll/maps.h>
#include <VxMFCEmu/coll/memfile.h>
#include <VxMFCEmu/coll/serial.h>
#include <VxMFCEmu/coll/stdiofile.h>
#include <VxMFCEmu/coll/typedptr.h>
#include <VxMFCEmu/core/mapptrtoptr.h>
