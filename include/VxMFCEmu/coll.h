/// @file coll.h
/// Collections, files and archives.
#pragma once

#include <VxMFCEmu/coll/file.h>
#include <VxMFCEmu/coll/filehandle.h>
