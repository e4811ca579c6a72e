#ifndef TESTS_SUPPORT_PRECOMPILED_H
#define TESTS_SUPPORT_PRECOMPILED_H

// What nearly every test includes, compiled once.

#include "tests/support/FakeHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#endif // TESTS_SUPPORT_PRECOMPILED_H
