/// @file position.h
/// Where a walk through a collection stands.
#pragma once

struct VxPosition;

/// A place in a collection, made and moved on by it alone; null after the last element.
using POSITION = VxPosition*;
