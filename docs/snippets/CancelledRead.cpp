// SPDX-License-Identifier: GPL-2.0-or-later

#include "docs/snippets/Embedding.h"

// [cancel]
#include <dxfviewer/flatten/FlatteningReader.h>

#include <atomic>

class CancellableReader : public FlatteningReader
{
public:
    CancellableReader(DXFDocument& document, const std::atomic<bool>& isCancelled)
        : FlatteningReader(document)
        , m_isCancelled(isCancelled)
    {
    }

    void goOn() override
    {
        if (m_isCancelled)
            throw Cancelled();
    }

private:
    struct Cancelled {
    };

    const std::atomic<bool>& m_isCancelled;
};

bool readUnlessCancelled(DXFDocument& document, const QString& fileName,
                         const std::atomic<bool>& isCancelled)
{
    return CancellableReader(document, isCancelled).load(fileName);
}
// [cancel]
