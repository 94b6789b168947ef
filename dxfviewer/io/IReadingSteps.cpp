// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/io/IReadingSteps.h"

IReadingSteps::IReadingSteps() = default;
IReadingSteps::~IReadingSteps() = default;

void IReadingSteps::goOn() {}

void IReadingSteps::readingFailed(const std::exception_ptr&) {}
