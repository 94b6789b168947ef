// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/Files.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QFile>
#include <QString>

namespace dxftest
{

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << fileName.toStdString();
    return file.readAll();
}

QString fileWith(const QByteArray& content, const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << fileName.toStdString();
    EXPECT_EQ(file.write(content), content.size()) << fileName.toStdString();
    return fileName;
}

} // namespace dxftest
