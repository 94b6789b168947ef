// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/FlatteningReader.h"

#include "tests/flatten/Records.h"
#include "tests/support/LoggedTest.h"

#include <limits>

using namespace dxftest;

namespace
{

constexpr int noEnd = std::numeric_limits<int>::max();

struct Cancelled {
};

/// Counts how often it is asked whether to go on, and says no after some times.
class AskedReader : public FlatteningReader
{
public:
    AskedReader(DXFDocument& document, const FlatteningOptions& options, int mostQuestions)
        : FlatteningReader(document, options)
        , m_mostQuestions(mostQuestions)
        , m_filled(document)
    {
    }

    void processCodeValuePair(unsigned int, const std::string&) override { ++groups; }

    bool finishReading() override
    {
        hasFinished = true;
        questionsBeforeFilling = questions;
        return FlatteningReader::finishReading();
    }

    void goOn() override
    {
        ++questions;
        if (questions > m_mostQuestions || (endsWhileFilling && !m_filled.entities().isEmpty()))
            throw Cancelled();
    }

    void readingFailed(const std::exception_ptr& reason) override
    {
        try {
            std::rethrow_exception(reason);
        } catch (const Cancelled&) {
            ++cancellations;
        }
    }

    int questions = 0;
    int questionsBeforeFilling = 0;
    int groups = 0;
    int cancellations = 0;
    bool hasFinished = false;
    bool endsWhileFilling = false;

private:
    int m_mostQuestions;
    const DXFDocument& m_filled;
};

QByteArray drawingWith(const std::string& entities, const std::string& blocks = {})
{
    Parts parts;
    parts.entities = entities.c_str();
    parts.blocks = blocks.c_str();
    return drawingOf(parts);
}

/// An entity with so few groups that reading them asks nothing.
std::string bendingSpline(int points, int degree)
{
    std::string spline = "SPLINE 71 " + std::to_string(degree);
    for (int i = 0; i < points; ++i)
        spline += " 10 " + std::to_string(i) + " 20 " + std::to_string(i % 2 * 9);
    return spline;
}

class CancelledReadTest : public LoggedTest
{
protected:
    /// Expects that the read ends where the reader says no.
    void expectEndAt(int mostQuestions, const QByteArray& text,
                     const FlatteningOptions& options = {})
    {
        DXFDocument document;
        AskedReader reader(document, options, mostQuestions);

        EXPECT_FALSE(reader.load(text));

        EXPECT_EQ(reader.questions, mostQuestions + 1);
        EXPECT_EQ(reader.cancellations, 1);
        EXPECT_FALSE(reader.hasFinished);
        EXPECT_FALSE(reader.isTooLarge());
        EXPECT_TRUE(document.entities().isEmpty());
        takeDebugMessages();
    }

    int questionsOf(const QByteArray& text, const FlatteningOptions& options = {})
    {
        DXFDocument document;
        AskedReader reader(document, options, noEnd);
        reader.load(text);
        takeDebugMessages();
        EXPECT_EQ(reader.cancellations, 0);
        return reader.questions;
    }
};

TEST_F(CancelledReadTest, SmallDrawingAsksNothing)
{
    EXPECT_EQ(questionsOf(drawingWith("LINE 11 1\nCIRCLE 40 1")), 0);
}

TEST_F(CancelledReadTest, LongRecordsEndInTheMiddle)
{
    FlatteningOptions options;
    options.showsTexts = true;
    options.maximalStepDegrees = 0.01;
    std::string bulges = "LWPOLYLINE";
    std::string fitPoints = "SPLINE 71 3";
    for (int i = 0; i < 400; ++i) {
        bulges += " 10 " + std::to_string(i) + " 20 0 42 1";
        fitPoints += " 11 " + std::to_string(i) + " 21 " + std::to_string(i % 2 * 9);
    }
    std::string text = "MTEXT 40 1 41 5";
    for (int i = 0; i < 100; ++i)
        text += " 3 " + std::string(200, 'H');
    for (const std::string& entity : {bendingSpline(300, 32), bulges, fitPoints, text}) {
        SCOPED_TRACE(entity.substr(0, 20));
        expectEndAt(1, drawingWith(entity), options);
    }
}

TEST_F(CancelledReadTest, VertexLimitEndsTheWorkOnASpline)
{
    FlatteningOptions options;
    options.maximalVertices = 100;
    const int questionsToTheLimit = questionsOf(drawingWith(bendingSpline(100, 32)), options);

    // Its groups are read in any case.
    EXPECT_LT(questionsOf(drawingWith(bendingSpline(900, 32)), options), questionsToTheLimit + 20);
    EXPECT_GT(questionsOf(drawingWith(bendingSpline(900, 32))), 10 * questionsToTheLimit);
}

TEST_F(CancelledReadTest, ArraysOfBlocksEndInTheMiddle)
{
    const QByteArray text =
        drawingWith("INSERT 2 B 70 300 44 1 71 300 45 1", "BLOCK 2 B\nLINE 11 1\nENDBLK");
    DXFDocument document;
    AskedReader reader(document, {}, noEnd);
    reader.endsWhileFilling = true;

    EXPECT_FALSE(reader.load(text));

    EXPECT_EQ(reader.questionsBeforeFilling, 0);
    EXPECT_EQ(reader.cancellations, 1);
    EXPECT_GT(document.entities().size(), 0);
    EXPECT_LT(document.entities().size(), 10000);
    EXPECT_EQ(takeDebugMessages().size(), 1);
}

TEST_F(CancelledReadTest, ManyInsertsThatShowNothingEndInTheMiddle)
{
    std::string blocks = "BLOCK 2 Empty\nENDBLK\nBLOCK 2 B\nPOINT\n";
    for (int i = 0; i < 5000; ++i)
        blocks += "INSERT 2 Empty\n";
    const QByteArray text = drawingWith("INSERT 2 B", blocks + "ENDBLK");
    DXFDocument document;
    AskedReader reader(document, {}, noEnd);
    ASSERT_TRUE(reader.load(text));
    ASSERT_GT(reader.questions, reader.questionsBeforeFilling);

    DXFDocument cancelled;
    AskedReader first(cancelled, {}, reader.questionsBeforeFilling);
    EXPECT_FALSE(first.load(text));

    EXPECT_TRUE(first.hasFinished);
    EXPECT_EQ(first.cancellations, 1);
    EXPECT_TRUE(cancelled.entities().isEmpty());
    takeDebugMessages();
}

/// Without removing them, each of 90,000 instances would go through all of them.
TEST_F(CancelledReadTest, InsertsThatShowNothingAreNotRepeated)
{
    constexpr int inserts = 20000;
    std::string blocks = "BLOCK 2 Empty\nENDBLK\nBLOCK 2 B\nPOINT\n";
    for (int i = 0; i < inserts; ++i)
        blocks += "INSERT 2 Empty 70 5\nINSERT 2 B\n";
    const QByteArray text = drawingWith("INSERT 2 B 70 300 71 300", blocks + "ENDBLK");
    DXFDocument document;
    AskedReader reader(document, {}, 10000);

    EXPECT_TRUE(reader.load(text));

    EXPECT_EQ(document.entities().size(), 90000);
    EXPECT_EQ(reader.cancellations, 0);
}

TEST_F(CancelledReadTest, DecodingATextEndsInTheMiddle)
{
    std::string lines;
    for (int i = 0; i < 5000; ++i)
        lines += "LINE 8 Fl\xFCgel\n";
    DXFDocument document;
    AskedReader reader(document, {}, 1);

    EXPECT_FALSE(reader.load(drawingWith(lines)));

    EXPECT_EQ(reader.questions, 2);
    EXPECT_EQ(reader.groups, 0);
    takeDebugMessages();
}

} // namespace
