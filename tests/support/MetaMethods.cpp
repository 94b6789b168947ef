// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/support/MetaMethods.h"

#include <QMetaMethod>

namespace dxftest
{

namespace
{

const char* nameOf(QMetaMethod::Access access)
{
    switch (access) {
    case QMetaMethod::Private:
        return "private ";
    case QMetaMethod::Protected:
        return "protected ";
    case QMetaMethod::Public:
        break;
    }
    return "public ";
}

const char* nameOf(QMetaMethod::MethodType type)
{
    switch (type) {
    case QMetaMethod::Signal:
        return "signal ";
    case QMetaMethod::Slot:
        return "slot ";
    case QMetaMethod::Method:
    case QMetaMethod::Constructor:
        break;
    }
    return "method ";
}

} // namespace

std::vector<std::string> ownMethodsOf(const QMetaObject& meta)
{
    std::vector<std::string> methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        methods.push_back(std::string(nameOf(method.access())) + nameOf(method.methodType())
                          + method.typeName() + ' ' + method.methodSignature().constData());
    }
    return methods;
}

} // namespace dxftest
