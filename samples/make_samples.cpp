// SPDX-License-Identifier: GPL-2.0-or-later

// Makes the sample drawings that are kept beside this file:
//   dxfviewer_make_samples FOLDER            writes all of them into the folder
//   dxfviewer_make_samples --compare FILE    fails if the file is not what would be written

#include "BearingHousing.h"
#include "BracketPart.h"
#include "ContourMap.h"
#include "FloorPlan.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace
{

using Maker = samples::Drawing (*)();

const std::map<std::string, Maker>& makers()
{
    static const std::map<std::string, Maker> all = {
        {"bearing-housing.dxf", samples::bearingHousing},
        {"bracket-part.dxf", samples::bracketPart},
        {"contour-map.dxf", samples::contourMap},
        {"floor-plan.dxf", samples::floorPlan},
    };
    return all;
}

bool writeAll(const std::string& folder)
{
    for (const auto& [name, make] : makers()) {
        const std::string path = std::string(folder).append("/").append(name);
        std::ofstream file(path, std::ios::binary);
        file << make().text() << std::flush;
        if (!file) {
            std::fprintf(stderr, "Cannot write %s\n", path.c_str());
            return false;
        }
    }
    return true;
}

bool isUpToDate(const std::string& path)
{
    const auto maker = makers().find(path.substr(path.find_last_of('/') + 1));
    std::ifstream file(path, std::ios::binary);
    const std::string kept((std::istreambuf_iterator<char>(file)),
                           std::istreambuf_iterator<char>());
    if (maker != makers().end() && file && kept == maker->second().text())
        return true;
    std::fprintf(stderr, "%s is not what the program makes\n", path.c_str());
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2)
        return writeAll(argv[1]) ? 0 : 1;
    if (argc == 3 && argv[1] == std::string("--compare"))
        return isUpToDate(argv[2]) ? 0 : 1;
    std::fprintf(stderr, "Usage: %s FOLDER | --compare FILE\n", argv[0]);
    return 2;
}
