// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/Images.h"

#include "tests/support/Printers.h"

#include <QColor>
#include <QImage>

#include <algorithm>
#include <cstdlib>

namespace dxftest
{

namespace
{

int largestDifference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

} // namespace

::testing::AssertionResult picturesMatch(const QImage& actual, const QImage& expected,
                                         int tolerance)
{
    if (actual.size() != expected.size())
        return ::testing::AssertionFailure()
               << "the picture has " << actual.width() << " x " << actual.height()
               << " pixels instead of " << expected.width() << " x " << expected.height();

    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            const QColor found = actual.pixelColor(x, y);
            const QColor wanted = expected.pixelColor(x, y);
            if (largestDifference(found.rgba(), wanted.rgba()) > tolerance)
                return ::testing::AssertionFailure()
                       << "pixel (" << x << ", " << y << ") is " << ::testing::PrintToString(found)
                       << " instead of " << ::testing::PrintToString(wanted);
        }
    }
    return ::testing::AssertionSuccess();
}

} // namespace dxftest
