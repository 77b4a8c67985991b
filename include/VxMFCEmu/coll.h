/// @file coll.h
/// Collections, files and archives.
#pragma once

#include <VxMFCEmu/coll/archive.h>
#include <VxMFCEmu/coll/file.h>
#include <VxMFCEmu/coll/filehandle.h>
#include <VxMFCEmu/coll/serial.h>
