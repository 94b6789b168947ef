// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/monkey/Step.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <iostream>

using dxftest::Op;
using dxftest::Sequence;

namespace
{

constexpr int usualSeeds = 12;
constexpr int usualSteps = 3000;
// A sequence takes a few seconds. One that takes this long hangs, even on a slow machine.
constexpr int processTimeoutMs = 180000;
// After this time no shorter sequence is tried.
constexpr int shrinkingMs = 150000;
// The first sequence and the last one may take the whole time: together it is within the time limit
// of the test.
static_assert(processTimeoutMs + shrinkingMs + processTimeoutMs < DXFVIEWER_TEST_TIMEOUT_MS);
constexpr int longestReport = 4000;

int fromEnvironment(const char* name, int usual)
{
    const int value = qEnvironmentVariableIntValue(name);
    return value > 0 ? value : usual;
}

enum class End { Survived, Failed, Hung };

struct Outcome {
    End end;
    /// The number of performed steps, with the one that failed.
    int steps;
    QString report;
};

/// To unwind the stack at every allocation would take most of the time. The fast unwinder is enough
/// here: the program itself tells the sanitizer which leaks are not its own.
QProcessEnvironment environment()
{
    const auto variable = QStringLiteral("ASAN_OPTIONS");
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(variable,
                       environment.value(variable) + QStringLiteral(":fast_unwind_on_malloc=1"));
    return environment;
}

/// Performs a sequence in a separate process.
Outcome run(const Sequence& sequence)
{
    const QTemporaryDir folder;
    QFile steps(folder.filePath(QStringLiteral("steps")));
    QFile progress(folder.filePath(QStringLiteral("progress")));
    if (!steps.open(QIODevice::WriteOnly) || steps.write(dxftest::serialized(sequence)) < 0)
        return {End::Failed, 0, QStringLiteral("the steps cannot be handed over")};
    steps.close();

    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(QStringLiteral(DXFVIEWER_MONKEY), {steps.fileName(), progress.fileName()});
    const bool ended = process.waitForFinished(processTimeoutMs);
    if (!ended) {
        process.kill();
        process.waitForFinished();
    }
    if (ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return {End::Survived, static_cast<int>(sequence.size()), QString()};

    const int last = progress.open(QIODevice::ReadOnly) ? progress.readAll().toInt() : -1;
    return {ended ? End::Failed : End::Hung, last + 1,
            QString::fromUtf8(process.readAllStandardError()).left(longestReport)};
}

Sequence without(const Sequence& sequence, int begin, int length)
{
    return sequence.mid(0, begin) + sequence.mid(begin + length);
}

/// Drops steps while the rest still fails and time is left.
Sequence shrunk(Sequence failing)
{
    const QDeadlineTimer deadline(shrinkingMs);
    for (int length = int(failing.size()) / 2; length > 0; length /= 2) {
        for (int begin = 0; begin < failing.size() && !deadline.hasExpired();) {
            const Sequence shorter = without(failing, begin, length);
            const Outcome outcome = run(shorter);
            if (outcome.end == End::Failed)
                failing = shorter.mid(0, outcome.steps);
            else
                begin += length;
        }
    }
    return failing;
}

void expectSurvives(const Sequence& sequence)
{
    const Outcome outcome = run(sequence);
    if (outcome.end == End::Survived)
        return;
    // Printed first, because the test may reach its time limit while it makes the sequence shorter.
    const Sequence failing = sequence.mid(0, outcome.steps);
    std::cout << outcome.report.toStdString() << "\nAfter these steps:\n\n"
              << dxftest::codeOf(failing).toStdString() << std::endl;
    if (outcome.end == End::Hung)
        FAIL() << "it does not end";
    FAIL() << "this fails alone:\n\n" << dxftest::codeOf(shrunk(failing)).toStdString();
}

class MonkeyTest : public ::testing::TestWithParam<int>
{
};

TEST_P(MonkeyTest, RandomStepsKeepTheInvariants)
{
    const int steps = fromEnvironment("DXFVIEWER_MONKEY_STEPS", usualSteps);

    expectSurvives(dxftest::randomSequence(static_cast<unsigned>(GetParam()), steps));
}

INSTANTIATE_TEST_SUITE_P(
    Seeds, MonkeyTest,
    ::testing::Range(1, 1 + fromEnvironment("DXFVIEWER_MONKEY_SEEDS", usualSeeds)));

TEST(MonkeySequenceTest, IsTheSameForTheSameSeed)
{
    const auto first = dxftest::codeOf(dxftest::randomSequence(7, 50));

    EXPECT_EQ(first.toStdString(), dxftest::codeOf(dxftest::randomSequence(7, 50)).toStdString());
    EXPECT_NE(first.toStdString(), dxftest::codeOf(dxftest::randomSequence(8, 50)).toStdString());
}

TEST(MonkeySequenceTest, IsTheSameAfterSerializing)
{
    const Sequence sequence = dxftest::randomSequence(7, 50);

    const Sequence handedOver = dxftest::deserialized(dxftest::serialized(sequence));

    EXPECT_EQ(dxftest::codeOf(handedOver).toStdString(), dxftest::codeOf(sequence).toStdString());
}

} // namespace
