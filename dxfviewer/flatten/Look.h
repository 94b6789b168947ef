// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/model/SpecialValues.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace dxfviewer
{

class Record;

/// What a record says about the attributes of its entity.
struct Look {
    std::string layer = "0";
    int color = byLayerColor;
    int color24 = noTrueColor;
    int width = byLayerWidth;
    std::string lineType = "BYLAYER";
    double lineTypeScale = 1.0;
    bool isInPaperSpace = false;

    bool operator==(const Look& other) const;
    /// A text that is the same for the same look only.
    std::string key() const;
};

/// Whether a line type is that of the block's insert, in any case of its letters.
bool isByBlock(const std::string& lineType);
bool isByLayer(const std::string& lineType);

/// What decides, besides the shape, whether and how an entity is shown.
struct Appearance {
    Look look;
    bool isInvisible = false;
};

Appearance appearanceOf(const Record& record);

/// The looks of a drawing, each once.
class Looks
{
public:
    std::size_t idOf(const Look& look);
    const Look& operator[](std::size_t id) const { return m_looks[id]; }

private:
    std::vector<Look> m_looks;
    std::unordered_map<std::string, std::size_t> m_ids;
    // The id found last: neighbours in a drawing mostly look alike.
    std::size_t m_last = 0;
};

} // namespace dxfviewer
