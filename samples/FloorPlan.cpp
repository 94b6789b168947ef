// SPDX-License-Identifier: GPL-2.0-or-later

#include "FloorPlan.h"

#include "Shapes.h"

#include <array>
#include <cmath>

namespace samples
{

namespace
{

constexpr double houseWidth = 14000.0;
constexpr double houseDepth = 9600.0;
constexpr double outerWall = 300.0;
constexpr double innerWall = 150.0;

// All walls lie on a grid of this width.
constexpr int cell = 50;
constexpr int columns = static_cast<int>(houseWidth) / cell;
constexpr int rows = static_cast<int>(houseDepth) / cell;
constexpr int hatchEveryCells = 5;

/// The walls as cells of a grid. Walls and openings in the grid become outlines that join cleanly
/// at every corner.
class Walls
{
public:
    void build(double x, double y, double width, double depth) { set(x, y, width, depth, true); }
    void open(double x, double y, double width, double depth) { set(x, y, width, depth, false); }

    std::vector<Path> outlines() const
    {
        std::vector<Edge> edges;
        for (int i = 0; i < columns; ++i) {
            for (int j = 0; j < rows; ++j) {
                if (isWall(i, j))
                    addSides(i, j, edges);
            }
        }
        std::vector<Path> result;
        for (const Path& path : joined(edges))
            result.push_back(withoutCollinear(path));
        return result;
    }

    /// Diagonal lines through all cells that are wall.
    std::vector<Path> hatching() const
    {
        std::vector<Path> result;
        for (int diagonal = 0; diagonal < columns + rows; diagonal += hatchEveryCells) {
            int begin = 0;
            for (int i = 0; i <= columns; ++i) {
                if (isWall(i, diagonal - i))
                    continue;
                if (i > begin)
                    result.push_back(
                        line(corner(begin, diagonal - begin + 1), corner(i, diagonal - i + 1)));
                begin = i + 1;
            }
        }
        return result;
    }

private:
    static Point corner(int i, int j)
    {
        return {static_cast<double>(i * cell), static_cast<double>(j * cell)};
    }

    bool isWall(int i, int j) const
    {
        return i >= 0 && i < columns && j >= 0 && j < rows
               && m_cells[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
    }

    static std::size_t cellAt(double position) { return static_cast<std::size_t>(position / cell); }

    void set(double x, double y, double width, double depth, bool isBuilt)
    {
        for (std::size_t i = cellAt(x); i < cellAt(x + width); ++i) {
            for (std::size_t j = cellAt(y); j < cellAt(y + depth); ++j)
                m_cells[i][j] = isBuilt;
        }
    }

    /// The sides of the cell that face no other wall, with the wall always on the same side.
    void addSides(int i, int j, std::vector<Edge>& edges) const
    {
        if (!isWall(i, j - 1))
            edges.emplace_back(corner(i, j), corner(i + 1, j));
        if (!isWall(i + 1, j))
            edges.emplace_back(corner(i + 1, j), corner(i + 1, j + 1));
        if (!isWall(i, j + 1))
            edges.emplace_back(corner(i + 1, j + 1), corner(i, j + 1));
        if (!isWall(i - 1, j))
            edges.emplace_back(corner(i, j + 1), corner(i, j));
    }

    std::array<std::array<bool, rows>, columns> m_cells{};
};

std::vector<Layer> layers()
{
    return {
        {"0", 7, 0xC0C0C0, "CONTINUOUS"},
        {"WALLS", 7, 0xF5F1E6, "CONTINUOUS"},
        {"WALL-HATCH", 252, 0x7C93A8, "CONTINUOUS"},
        {"DOORS", 2, 0xF2B84B, "CONTINUOUS"},
        {"WINDOWS", 131, 0x77D7F5, "CONTINUOUS"},
        {"STAIRS", 23, 0xF0906A, "CONTINUOUS"},
        {"STAIRS-ABOVE", 23, 0xB0705A, "HIDDEN"},
        {"FURNITURE", 121, 0xA8D09B, "CONTINUOUS"},
        {"SANITARY", 4, 0x86C5DA, "CONTINUOUS"},
        {"TERRACE", 8, 0x8497A6, "CONTINUOUS"},
        {"GARDEN", 3, 0x6DBB78, "CONTINUOUS"},
        {"ROOF", 221, 0xD79BC4, "DASHED"},
        {"SECTION", 6, 0xE07A9A, "CENTER"},
        {"DIMENSIONS", 252, 0xAEB9C6, "CONTINUOUS"},
    };
}

/// An opening in an outer wall that runs along x, with its frame and its panes.
void addWindowAlongX(Drawing& drawing, Walls& walls, double x, double y, double width)
{
    walls.open(x, y, width, outerWall);
    drawing.add("WINDOWS", rectangle({x, y + 75}, width, 150));
    drawing.add("WINDOWS", line({x, y + 150}, {x + width, y + 150}));
    drawing.add("WINDOWS", line({x + width / 2, y + 75}, {x + width / 2, y + 225}));
}

void addWindowAlongY(Drawing& drawing, Walls& walls, double x, double y, double width)
{
    walls.open(x, y, outerWall, width);
    drawing.add("WINDOWS", rectangle({x + 75, y}, 150, width));
    drawing.add("WINDOWS", line({x + 150, y}, {x + 150, y + width}));
    drawing.add("WINDOWS", line({x + 75, y + width / 2}, {x + 225, y + width / 2}));
}

/// The leaf of a door, standing open, and the way it swings.
void addDoor(Drawing& drawing, Point hinge, double width, double closedAngle, double openAngle)
{
    constexpr double leafThickness = 45.0;
    drawing.add("DOORS",
                placed(rectangle({0, -leafThickness / 2}, width, leafThickness), openAngle, hinge));
    drawing.add("DOORS", arc(hinge, width, openAngle, closedAngle));
}

void addOuterWalls(Drawing& drawing, Walls& walls)
{
    walls.build(0, 0, houseWidth, houseDepth);
    walls.open(outerWall, outerWall, houseWidth - 2 * outerWall, houseDepth - 2 * outerWall);

    addWindowAlongX(drawing, walls, 1400, 0, 1800);
    addWindowAlongX(drawing, walls, 5100, 0, 900);
    addWindowAlongX(drawing, walls, 7900, 0, 1600);
    addWindowAlongX(drawing, walls, 11300, 0, 1800);
    addWindowAlongX(drawing, walls, 1800, 9300, 3600);
    addWindowAlongX(drawing, walls, 8800, 9300, 1800);
    addWindowAlongX(drawing, walls, 11600, 9300, 1400);
    addWindowAlongY(drawing, walls, 0, 6900, 1600);
    addWindowAlongY(drawing, walls, 13700, 4700, 800);
    addWindowAlongY(drawing, walls, 13700, 7000, 1600);
    addWindowAlongY(drawing, walls, 13700, 1500, 1500);
}

void addInnerWalls(Drawing& drawing, Walls& walls)
{
    constexpr double innerWidth = houseWidth - 2 * outerWall;
    walls.build(outerWall, 4200, innerWidth, innerWall);
    walls.build(outerWall, 5850, innerWidth, innerWall);
    for (const double x : {4300.0, 6850.0, 10350.0})
        walls.build(x, outerWall, innerWall, 3900);
    walls.build(7600, 6000, innerWall, 3300);

    // The wide opening between hall and living room, with the beam above it.
    walls.open(4200, 5850, 2000, innerWall);
    drawing.add("ROOF", line({4200, 5850}, {6200, 5850}));
    drawing.add("ROOF", line({4200, 6000}, {6200, 6000}));
}

void addDoors(Drawing& drawing, Walls& walls)
{
    walls.open(0, 4650, outerWall, 1000);
    addDoor(drawing, {300, 4650}, 1000, pi / 2, 0);
    walls.open(3200, 4200, 900, innerWall);
    addDoor(drawing, {4100, 4200}, 900, -pi, -pi / 2);
    walls.open(4700, 4200, 800, innerWall);
    addDoor(drawing, {4700, 4200}, 800, 0, -pi / 2);
    walls.open(7200, 4200, 900, innerWall);
    addDoor(drawing, {7200, 4200}, 900, 0, -pi / 2);
    walls.open(10700, 4200, 900, innerWall);
    addDoor(drawing, {10700, 4200}, 900, 0, -pi / 2);
    walls.open(8000, 5850, 900, innerWall);
    addDoor(drawing, {8000, 6000}, 900, 0, pi / 2);
    walls.open(7600, 6600, innerWall, 900);
    addDoor(drawing, {7600, 6600}, 900, pi / 2, pi);
}

void addStairs(Drawing& drawing)
{
    constexpr double top = 4350.0;
    constexpr double bottom = 5850.0;
    constexpr double tread = 270.0;
    constexpr double first = 10600.0;
    constexpr int steps = 11;
    constexpr int stepsBelowCut = 6;
    constexpr double middle = (top + bottom) / 2;

    for (int i = 0; i <= steps; ++i) {
        const double x = first + i * tread;
        drawing.add(i <= stepsBelowCut ? "STAIRS" : "STAIRS-ABOVE", line({x, top}, {x, bottom}));
    }
    const double cut = first + stepsBelowCut * tread;
    drawing.add("STAIRS", openPath({{cut + 60, bottom},
                                    {cut + 150, middle + 80},
                                    {cut + 60, middle + 30},
                                    {cut + 260, middle - 30},
                                    {cut + 170, middle - 80},
                                    {cut + 260, top}}));
    drawing.add("STAIRS", line({first, middle}, {cut - 40, middle}));
    drawing.add("STAIRS",
                openPath({{cut - 220, middle - 90}, {cut - 40, middle}, {cut - 220, middle + 90}}));
    drawing.add("STAIRS", circle({first, middle}, 50));
}

/// A bed with its head at the origin's side, x from 0 to the length.
std::vector<Path> bed(double length, double width)
{
    const double pillow = width > 1500 ? width / 2 - 200 : width - 300;
    std::vector<Path> result{rectangle({0, 0}, length, width), line({700, 0}, {700, width}),
                             line({700, width * 0.45}, {1250, 0}),
                             roundedRectangle({100, 130}, 450, pillow, 80)};
    if (width > 1500)
        result.push_back(roundedRectangle({100, width - 130 - pillow}, 450, pillow, 80));
    return result;
}

/// A wardrobe with clothes on its rail.
std::vector<Path> wardrobe(double width, double depth)
{
    std::vector<Path> result{rectangle({0, 0}, width, depth),
                             line({0, depth / 2}, {width, depth / 2})};
    for (double x = 120; x < width - 100; x += 180)
        result.push_back(line({x, depth * 0.13}, {x + 70, depth * 0.87}));
    return result;
}

std::vector<Path> chair()
{
    return {roundedRectangle({-220, -220}, 440, 440, 70),
            roundedRectangle({-240, -300}, 480, 90, 40)};
}

std::vector<Path> sofa(double length, int seats)
{
    const double seat = (length - 400) / seats;
    std::vector<Path> result{roundedRectangle({0, 0}, length, 950, 120),
                             roundedRectangle({0, 0}, length, 250, 100),
                             roundedRectangle({0, 120}, 200, 830, 90),
                             roundedRectangle({length - 200, 120}, 200, 830, 90)};
    for (int i = 0; i < seats; ++i)
        result.push_back(roundedRectangle({200 + i * seat, 250}, seat, 680, 80));
    return result;
}

void addPlaced(Drawing& drawing, const std::string& layer, const std::vector<Path>& paths,
               double angle, Point offset)
{
    for (const Path& path : paths)
        drawing.add(layer, placed(path, angle, offset));
}

void addFurniture(Drawing& drawing, const std::vector<Path>& paths, double angle, Point offset)
{
    addPlaced(drawing, "FURNITURE", paths, angle, offset);
}

/// A round thing with lobes, as trees and pot plants are drawn.
Path foliage(Point center, double radius, int lobes)
{
    const double half = pi / lobes;
    // Lobes of this size touch each other, and reach to the radius.
    const double lobeCenter = radius / (1.0 + std::sin(half));
    const double lobeRadius = radius - lobeCenter;
    Path path;
    for (int i = 0; i < lobes; ++i) {
        const double angle = 2 * half * i;
        Path lobe = arc(polar(center, lobeCenter, angle), lobeRadius, angle - half - pi / 2,
                        angle + half + pi / 2);
        // The next lobe begins where this one ends.
        lobe.vertices.pop_back();
        append(path, lobe);
    }
    return closed(path);
}

std::vector<Path> pottedPlant()
{
    return {foliage({0, 0}, 300, 7), circle({0, 0}, 90)};
}

std::vector<Path> nightstand()
{
    return {rectangle({0, 0}, 450, 450), circle({225, 225}, 120), circle({225, 225}, 40)};
}

void furnishBedrooms(Drawing& drawing)
{
    addFurniture(drawing, bed(2050, 1800), 0, {300, 1000});
    addFurniture(drawing, nightstand(), 0, {300, 480});
    addFurniture(drawing, nightstand(), 0, {300, 2870});
    addFurniture(drawing, wardrobe(2500, 600), 0, {350, 3570});
    addFurniture(drawing, {roundedRectangle({2500, 1250}, 800, 1300, 60)}, 0, {});

    addFurniture(drawing, bed(2050, 1400), pi, {10350, 2400});
    addFurniture(drawing, nightstand(), 0, {9900, 2470});
    addFurniture(drawing, wardrobe(1900, 600), 0, {8400, 3570});
    addFurniture(drawing, {rectangle({7000, 600}, 650, 1500), rectangle({7080, 1050}, 250, 400)}, 0,
                 {});
    addFurniture(drawing, chair(), pi / 2, {7850, 1300});
}

void furnishStudy(Drawing& drawing)
{
    addFurniture(drawing, {rectangle({11300, 330}, 1900, 800), rectangle({11950, 430}, 600, 60)}, 0,
                 {});
    addFurniture(drawing, chair(), pi, {12250, 1380});
    addFurniture(drawing, {rectangle({10500, 400}, 350, 2700)}, 0, {});
    for (double y = 850; y < 3000; y += 450)
        addFurniture(drawing, {line({10500, y}, {10850, y})}, 0, {});
    addFurniture(drawing, sofa(1000, 1), pi / 2, {13600, 3050});
    addFurniture(drawing, {circle({12350, 3350}, 320)}, 0, {});
    addFurniture(drawing, pottedPlant(), 0, {13350, 1500});
}

void equipBathroom(Drawing& drawing)
{
    // Tub, shower, basin and toilet.
    drawing.add("SANITARY", rectangle({4450, 300}, 780, 1750));
    drawing.add("SANITARY", roundedRectangle({4540, 390}, 600, 1570, 220));
    drawing.add("SANITARY", circle({4840, 620}, 45));
    drawing.add("SANITARY", rectangle({5900, 300}, 950, 950));
    drawing.add("SANITARY", line({5900, 300}, {6850, 1250}));
    drawing.add("SANITARY", line({5900, 1250}, {6850, 300}));
    drawing.add("SANITARY", circle({6375, 775}, 70));
    drawing.add("SANITARY", rectangle({6350, 1700}, 500, 1000));
    drawing.add("SANITARY", roundedRectangle({6430, 1850}, 340, 700, 150));
    drawing.add("SANITARY", circle({6780, 2200}, 35));
    drawing.add("SANITARY", rectangle({6650, 3150}, 200, 460));
    drawing.add("SANITARY", roundedRectangle({6120, 3190}, 530, 380, 185));
}

void furnishHall(Drawing& drawing)
{
    addFurniture(drawing, {rectangle({5620, 4350}, 1300, 350), line({6270, 4350}, {6270, 4700})}, 0,
                 {});
    addFurniture(drawing,
                 {roundedRectangle({1700, 4750}, 2300, 700, 80),
                  roundedRectangle({1780, 4830}, 2140, 540, 50)},
                 0, {});
    addFurniture(drawing, wardrobe(1100, 400), 0, {9150, 4350});
}

void furnishLivingRoom(Drawing& drawing)
{
    addFurniture(drawing,
                 {rectangle({1450, 6450}, 3000, 2350), rectangle({1550, 6550}, 2800, 2150)}, 0, {});
    addFurniture(drawing, sofa(2600, 3), -pi / 2, {450, 8950});
    addFurniture(drawing, {roundedRectangle({2200, 7050}, 750, 1250, 120)}, 0, {});
    addFurniture(drawing, sofa(1050, 1), pi / 2 + 0.35, {4950, 6500});
    addFurniture(drawing, sofa(1050, 1), pi / 2 - 0.35, {4650, 7900});
    addFurniture(drawing, {rectangle({7150, 7750}, 450, 1450), rectangle({7230, 7900}, 90, 1150)},
                 0, {});
    addFurniture(drawing, pottedPlant(), 0, {6800, 9000});
}

std::vector<Path> hob()
{
    return {roundedRectangle({0, 0}, 600, 500, 30), circle({160, 140}, 90), circle({440, 140}, 70),
            circle({160, 360}, 70), circle({440, 360}, 90)};
}

void equipKitchen(Drawing& drawing)
{
    addFurniture(drawing, {rectangle({7750, 8700}, 2950, 600), rectangle({9250, 6000}, 2400, 600)},
                 0, {});
    addPlaced(drawing, "SANITARY", hob(), 0, {9900, 6050});
    drawing.add("SANITARY", roundedRectangle({9100, 8790}, 520, 420, 70));
    drawing.add("SANITARY", roundedRectangle({9680, 8790}, 620, 420, 70));
    drawing.add("SANITARY", circle({9360, 9000}, 35));
    for (const double x : {9850.0, 10550.0, 11100.0})
        addFurniture(drawing, {line({x, 6500}, {x, 6600})}, 0, {});
    addFurniture(drawing, {rectangle({7750, 8000}, 650, 700), line({7750, 8000}, {8400, 8700})}, 0,
                 {});

    addFurniture(drawing, {roundedRectangle({11000, 7350}, 2000, 950, 60)}, 0, {});
    for (const double x : {11350.0, 12000.0, 12650.0}) {
        addFurniture(drawing, chair(), 0, {x, 7180});
        addFurniture(drawing, chair(), pi, {x, 8470});
    }
    addFurniture(drawing, pottedPlant(), 0, {13300, 6400});
}

void addTerrace(Drawing& drawing)
{
    constexpr double slab = 600.0;
    constexpr Point corner{1200, 9600};
    constexpr int slabColumns = 8;
    constexpr int slabRows = 4;
    drawing.add("TERRACE", rectangle(corner, slabColumns * slab, slabRows * slab));
    for (int j = 1; j < slabRows; ++j)
        drawing.add("TERRACE", line(corner + Point{0, j * slab},
                                    corner + Point{slabColumns * slab, j * slab}));
    // Every second row is laid half a slab further.
    for (int j = 0; j < slabRows; ++j) {
        for (double x = j % 2 == 0 ? slab : slab / 2; x < slabColumns * slab; x += slab)
            drawing.add("TERRACE",
                        line(corner + Point{x, j * slab}, corner + Point{x, (j + 1) * slab}));
    }
    addFurniture(drawing, {circle({3600, 10850}, 550), circle({3600, 10850}, 60)}, 0, {});
    for (int i = 0; i < 4; ++i) {
        const double angle = pi / 4 + i * pi / 2;
        addFurniture(drawing, chair(), angle + pi / 2, polar({3600, 10850}, 760, angle));
    }
}

void addTree(Drawing& drawing, Point center, double radius)
{
    drawing.add("GARDEN", foliage(center, radius, 11));
    for (int i = 0; i < 5; ++i)
        drawing.add("GARDEN", line(polar(center, radius * 0.1, i * 1.2566),
                                   polar(center, radius * 0.6, i * 1.2566)));
    drawing.add("GARDEN", circle(center, radius * 0.1));
}

void addGarden(Drawing& drawing)
{
    addTree(drawing, {8300, 11000}, 900);
    addTree(drawing, {10700, 11450}, 700);
    addTree(drawing, {12900, 10950}, 1000);
    for (int i = 0; i < 5; ++i)
        drawing.add("GARDEN", foliage({-350.0, 6300.0 + i * 760}, 330, 6));
    // Stepping stones to the front door.
    for (int i = 0; i < 4; ++i)
        drawing.add("TERRACE", roundedRectangle({-850.0 - i * 620, 4800.0}, 480, 700, 60));
}

/// A chain of dimensions along x: extension lines, the line itself and a slanting tick at each end.
std::vector<Path> dimensionChain(const std::vector<double>& stations, double y, double extension)
{
    constexpr double overshoot = 150.0;
    constexpr double tick = 90.0;
    std::vector<Path> result{
        line({stations.front() - overshoot, y}, {stations.back() + overshoot, y})};
    for (const double x : stations) {
        result.push_back(line({x, y - overshoot}, {x, y + extension}));
        result.push_back(line({x - tick, y + tick}, {x + tick, y - tick}));
    }
    return result;
}

void addDimensions(Drawing& drawing)
{
    drawing.add("DIMENSIONS",
                dimensionChain({0, 1400, 3200, 5100, 6000, 7900, 9500, 11300, 13100, houseWidth},
                               -1100, 300));
    drawing.add("DIMENSIONS", dimensionChain({0, 4375, 6925, 10425, houseWidth}, -1600, 300));
    drawing.add("DIMENSIONS", dimensionChain({0, houseWidth}, -2100, 300));
    addPlaced(drawing, "DIMENSIONS",
              dimensionChain({0, 1500, 3000, 4700, 5500, 7000, 8600, houseDepth}, 0, 300), pi / 2,
              {15100, 0});
    addPlaced(drawing, "DIMENSIONS", dimensionChain({0, 4275, 5925, houseDepth}, 0, 300), pi / 2,
              {15600, 0});
    addPlaced(drawing, "DIMENSIONS", dimensionChain({0, houseDepth}, 0, 300), pi / 2, {16100, 0});
}

/// The line along which the house is cut, with a triangle at each end that tells where to look.
void addSection(Drawing& drawing)
{
    constexpr double y = 2600.0;
    drawing.add("SECTION", line({-1500, y}, {14750, y}));
    for (const double x : {-1500.0, 14750.0})
        drawing.add("SECTION", closedPath({{x - 150, y}, {x + 150, y}, {x, y + 260}}));
}

} // namespace

Drawing floorPlan()
{
    Drawing drawing(layers(), 120.0);
    Walls walls;
    addOuterWalls(drawing, walls);
    addInnerWalls(drawing, walls);
    addDoors(drawing, walls);
    drawing.add("WALL-HATCH", walls.hatching());
    drawing.add("WALLS", walls.outlines());
    drawing.add("ROOF", rectangle({-700, -700}, houseWidth + 1400, houseDepth + 1400));
    addStairs(drawing);
    furnishBedrooms(drawing);
    furnishStudy(drawing);
    equipBathroom(drawing);
    furnishHall(drawing);
    furnishLivingRoom(drawing);
    equipKitchen(drawing);
    addTerrace(drawing);
    addGarden(drawing);
    addDimensions(drawing);
    addSection(drawing);
    return drawing;
}

} // namespace samples
