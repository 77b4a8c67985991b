#pragma once
#include <QtWidgets/QtWidgets>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <VxMFCEmu/VxMFCEmu.h>
