// SPDX-License-Identifier: GPL-2.0-or-later

#include "WindowMemory.h"

#include "Appearance.h"
#include "Navigation.h"
#include "Settings.h"
#include "ViewChoices.h"

#include <QMainWindow>
#include <QScreen>

namespace
{

// The largest share of the screen's free area for a new window.
constexpr double initialShare = 0.85;
constexpr QSize initialSize(1100, 800);

const QString geometryKey = QStringLiteral("window/geometry");
const QString groundKey = QStringLiteral("view/background");
const QString asStoredKey = QStringLiteral("view/asStored");
const QString textsKey = QStringLiteral("view/texts");
const QString onlyPolylinesKey = QStringLiteral("view/onlyPolylines");

/// A stored value that is neither true nor false counts as the one of the first run.
bool choiceIn(const Settings& settings, const QString& key, bool first)
{
    const QString stored = settings.value(key).toString();
    return stored == QLatin1String(first ? "false" : "true") ? !first : first;
}

} // namespace

WindowMemory::WindowMemory(QMainWindow& window, Navigation& navigation, Appearance& appearance,
                           ViewChoices& choices)
    : m_window(window)
    , m_navigation(navigation)
    , m_appearance(appearance)
    , m_choices(choices)
{
}

void WindowMemory::restore()
{
    const Settings settings;
    const QByteArray geometry = settings.value(geometryKey).toByteArray();
    if (!m_window.restoreGeometry(QByteArray::fromBase64(geometry)))
        m_window.resize(initialSize.boundedTo(m_window.screen()->availableSize() * initialShare));
    m_navigation.setAsStored(choiceIn(settings, asStoredKey, false));
    m_appearance.setGround(
        groundNamed(settings.value(groundKey).toString()).value_or(Ground::Dark));
    ReadingChoices choices;
    choices.showsTexts = choiceIn(settings, textsKey, choices.showsTexts);
    choices.onlyPolylines = choiceIn(settings, onlyPolylinesKey, choices.onlyPolylines);
    m_choices.setChoices(choices);
}

void WindowMemory::remember() const
{
    Settings settings;
    // The settings hold texts, no bytes.
    settings.setValue(geometryKey, QString::fromLatin1(m_window.saveGeometry().toBase64()));
    settings.setValue(asStoredKey, m_navigation.isAsStored());
    settings.setValue(groundKey, nameOf(m_appearance.ground()));
    settings.setValue(textsKey, m_choices.choices().showsTexts);
    settings.setValue(onlyPolylinesKey, m_choices.choices().onlyPolylines);
}
