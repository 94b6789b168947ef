// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/edit/DeleteItems.h"
#include "dxfviewer/model/DXFDocument.h"
#include "dxfviewer/model/DXFPolyline.h"

#include "tests/edit/EditSession.h"
#include "tests/support/LoggedTest.h"

#include <QMap>
#include <QStringList>

using namespace dxftest;

namespace
{

using Entity = QSharedPointer<DXFEntity>;
using Polyline = QSharedPointer<DXFPolyline>;

/// A plain deletion to compare with: each redo clones every entity and cuts every polyline.
class PlainDeletion
{
public:
    PlainDeletion(QSharedPointer<DXFDocument> document, const QVector<int>& ids)
        : m_document(std::move(document))
        , m_ids(ids)
    {
    }

    void redo()
    {
        m_snapshot.clear();
        int nullKey = 0;
        for (const Entity& entity : m_document->entities()) {
            const Entity copy(entity ? entity->clone() : nullptr);
            m_snapshot.insert(entity ? entity->id() : --nullKey, copy);
        }
        for (const Entity& entity : m_document->entities()) {
            if (entity && entity->type() == 0)
                split(entity.staticCast<DXFPolyline>());
        }
    }

    void undo()
    {
        for (const Entity& entity : m_document->entities())
            m_document->deleteEntity(entity);
        for (const Entity& entity : qAsConst(m_snapshot))
            m_document->addEntity(entity);
        m_snapshot.clear();
    }

private:
    void split(const Polyline& polyline)
    {
        QVector<QVector<Segment>> pieces;
        QVector<Segment> run;
        for (const Segment& segment : polyline->segments()) {
            if (!m_ids.contains(segment.id())) {
                run.append(segment);
            } else if (!run.isEmpty()) {
                pieces.append(run);
                run.clear();
            }
        }
        if (!run.isEmpty())
            pieces.append(run);

        if (pieces.isEmpty()) {
            m_document->deleteEntity(polyline);
            return;
        }
        polyline->setSegments(pieces.first());
        for (int i = 1; i < pieces.size(); ++i) {
            const Polyline piece(polyline->clone());
            piece->setSegments(pieces.at(i));
            piece->setup();
            m_document->addEntity(piece);
        }
    }

    QSharedPointer<DXFDocument> m_document;
    QVector<int> m_ids;
    QMap<int, Entity> m_snapshot;
};

class SnapshotPropertyTest : public LoggedTest, public ::testing::WithParamInterface<unsigned>
{
};

/// What the session leaves after each step.
template <typename Command>
QList<QStringList> statesOf(unsigned seed)
{
    EditSession<Command> session(seed);
    QList<QStringList> states;
    for (int i = 0; i < 40; ++i) {
        session.step();
        states.append(session.state());
    }
    return states;
}

TEST_P(SnapshotPropertyTest, UndoRestoresWhatClonesOfAllEntitiesWouldRestore)
{
    for (unsigned round = 0; round < 10; ++round) {
        const unsigned seed = 1000 * GetParam() + round;
        const auto expected = statesOf<PlainDeletion>(seed);
        const auto states = statesOf<DeleteItems>(seed);

        for (int i = 0; i < expected.size(); ++i)
            ASSERT_EQ(states.at(i), expected.at(i)) << "seed " << seed << ", step " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SnapshotPropertyTest, ::testing::Range(0U, 20U));

} // namespace
