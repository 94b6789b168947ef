// SPDX-License-Identifier: GPL-2.0-or-later

#include "tests/monkey/Step.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <algorithm>

using dxftest::Op;
using dxftest::Sequence;

namespace
{

constexpr int usualSeeds = 12;
constexpr int usualSteps = 3000;
constexpr int processTimeoutMs = 100000;
// Making a failing sequence shorter may take that many runs.
constexpr int shrinkingRuns = 150;
constexpr int longestReport = 4000;

int fromEnvironment(const char* name, int usual)
{
    const int value = qEnvironmentVariableIntValue(name);
    return value > 0 ? value : usual;
}

struct Outcome {
    bool survived;
    /// The number of steps performed, the one that failed included.
    int steps;
    QString report;
};

/// Walking up the stack at every allocation takes the sanitizers more time than all else together.
/// Their quick way does here, because the program tells them what is not its own.
QProcessEnvironment environment()
{
    const auto variable = QStringLiteral("ASAN_OPTIONS");
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(variable,
                       environment.value(variable) + QStringLiteral(":fast_unwind_on_malloc=1"));
    return environment;
}

/// Performs a sequence in a process of its own.
Outcome run(const Sequence& sequence)
{
    const QTemporaryDir folder;
    QFile steps(folder.filePath(QStringLiteral("steps")));
    QFile progress(folder.filePath(QStringLiteral("progress")));
    if (!steps.open(QIODevice::WriteOnly) || steps.write(dxftest::serialized(sequence)) < 0)
        return {false, 0, QStringLiteral("the steps cannot be handed over")};
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
        return {true, static_cast<int>(sequence.size()), QString()};

    const int last = progress.open(QIODevice::ReadOnly) ? progress.readAll().toInt() : -1;
    QString report = QString::fromUtf8(process.readAllStandardError()).left(longestReport);
    if (!ended)
        report.prepend(QStringLiteral("it does not end\n"));
    return {false, last + 1, report};
}

Sequence without(const Sequence& sequence, int begin, int length)
{
    return sequence.mid(0, begin) + sequence.mid(begin + length);
}

/// Drops steps as long as the rest still fails.
Sequence shrunk(Sequence failing, Outcome& outcome)
{
    failing = failing.mid(0, outcome.steps);
    int runs = 0;
    for (int length = int(failing.size()) / 2; length > 0; length /= 2) {
        for (int begin = 0; begin < failing.size() && runs < shrinkingRuns; ++runs) {
            const Sequence shorter = without(failing, begin, length);
            const Outcome shorterOutcome = run(shorter);
            if (shorterOutcome.survived) {
                begin += length;
                continue;
            }
            failing = shorter.mid(0, shorterOutcome.steps);
            outcome = shorterOutcome;
        }
    }
    return failing;
}

void expectSurvives(const Sequence& sequence)
{
    Outcome outcome = run(sequence);
    if (outcome.survived)
        return;
    const Sequence shortest = shrunk(sequence, outcome);
    ADD_FAILURE() << outcome.report.toStdString() << "\nThis fails alone:\n\n"
                  << dxftest::codeOf(shortest).toStdString();
}

class MonkeyTest : public ::testing::TestWithParam<int>
{
};

TEST_P(MonkeyTest, LeavesEverythingInOrder)
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

TEST(MonkeySequenceTest, SurvivesTheHandOver)
{
    const Sequence sequence = dxftest::randomSequence(7, 50);

    const Sequence handedOver = dxftest::deserialized(dxftest::serialized(sequence));

    EXPECT_EQ(dxftest::codeOf(handedOver).toStdString(), dxftest::codeOf(sequence).toStdString());
}

} // namespace
