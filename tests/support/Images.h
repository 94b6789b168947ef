// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <gtest/gtest.h>

class QImage;

namespace dxftest
{

/**
 * Whether two pictures have the same size and no colour channel of a pixel differs by more than
 * the tolerance. The failure names the first pixel that does.
 */
::testing::AssertionResult picturesMatch(const QImage& actual, const QImage& expected,
                                         int tolerance = 0);

} // namespace dxftest
