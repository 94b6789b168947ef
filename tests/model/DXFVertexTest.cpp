// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFVertex.h"

#include "tests/support/LoggedTest.h"

using namespace dxftest;

namespace
{

class DXFVertexTest : public LoggedTest
{
};

TEST_F(DXFVertexTest, EachValueIsReturnedAsGiven)
{
    const DXFVertex vertex(1.5, -2.5, 3.5, true, -0.5);

    EXPECT_EQ(vertex.x(), 1.5);
    EXPECT_EQ(vertex.y(), -2.5);
    EXPECT_EQ(vertex.z(), 3.5);
    EXPECT_EQ(vertex.bulge(), -0.5);
}

} // namespace
