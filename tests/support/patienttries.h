#pragma once

#include "tests/support/patience.h"

#include <QTest>

// The five seconds of QtTest cannot be set otherwise. Every test has these, by the build.
#undef QTRY_VERIFY
#undef QTRY_VERIFY2
#undef QTRY_COMPARE
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT((condition), patienceMs)
#define QTRY_VERIFY2(condition, message)                                                           \
    QTRY_VERIFY2_WITH_TIMEOUT((condition), (message), patienceMs)
#define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT((actual), (expected), patienceMs)
