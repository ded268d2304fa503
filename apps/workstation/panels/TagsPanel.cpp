#include "panels/TagsPanel.h"

#include "look/Palette.h"
#include "look/Sheets.h"
#include "scenes/SceneTags.h"

#include <VelmoDropData.h>
#include <oVIXCombo.h>
#include <oVIXDragDropTags.h>

#include <QMainWindow>
#include <QMimeData>
#include <QVBoxLayout>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QSize smallestContent(280, 200);
constexpr auto everyone = "everyone"_L1;
constexpr auto tagPrefix = "tag:"_L1; // a tag may be called like the choice of everyone

/// The add tag has no text of its own.
QStringList sortedNames(QStringList names)
{
    names.removeAll(QString());
    names.sort();
    return names;
}

} // namespace

TagsPanel::TagsPanel(QMainWindow *window)
    : oVIXDock(window, u"tags"_s, false, false, false, window), m_editor(new oVIXDragDropTags(this)),
      m_filter(new oVIXCombo(this))
{
    setTitle(tr("Tags"), tr("Crowd"), u"Inter"_s, 11);
    m_editor->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding); // lists ask for more than they need
    m_editor->setLeftTitle(tr("Assigned"));
    m_editor->setRightTitle(tr("Available"));
    m_editor->setLeftTagColors(Palette::line, Palette::text);
    m_editor->setRightTagColors(Palette::raised, Palette::secondaryText);
    m_editor->setLeftShowAllButtons(true);
    m_editor->setRightShowAllButtons(false);
    m_editor->setDropType(VelmoDropData::Tags);
    m_filter->setText(tr("Filter by tag"));
    m_filter->setFocusPolicy(Qt::StrongFocus);
    fillFilter({});

    auto *content = new QWidget(this);
    content->setObjectName(u"panel"_s);
    content->setAttribute(Qt::WA_StyledBackground);
    content->setStyleSheet(Sheets::toolPanel());
    content->setMinimumSize(smallestContent);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(8);
    layout->addWidget(m_filter);
    layout->addWidget(m_editor, 1);
    setWidget(content);

    m_takeOver.setSingleShot(true);
    m_takeOver.setInterval(0ms);
    connect(&m_takeOver, &QTimer::timeout, this, &TagsPanel::takeOver);
    const auto takeOverSoon = [this] { m_takeOver.start(); };
    connect(m_editor, &oVIXDragDropTags::genericTagChanged, this, takeOverSoon);
    connect(m_editor, &oVIXDragDropTags::newItemAdded, this, takeOverSoon);
    connect(m_editor, &oVIXDragDropTags::itemRemoved, this, takeOverSoon);
    connect(m_filter, &oVIXCombo::currentIndexChanged, this, [this] { emit filterChanged(filter()); });
    connect(m_filter, &oVIXCombo::dropped, this, &TagsPanel::filterBy);
}

void TagsPanel::setScene(const Scene &scene)
{
    m_takeOver.stop();
    const QStringList assigned = SceneTags::assigned(scene);
    const QStringList available = SceneTags::available(scene);
    const auto fill = [this](const QStringList &names, const QStringList &shown, auto clear, auto add, auto addAll) {
        if (!shown.isEmpty() && sortedNames(names) == sortedNames(shown))
            return; // what is being typed stays
        (m_editor->*clear)();
        (m_editor->*add)(QString(), BUTTON_ADD);
        (m_editor->*addAll)(names, BUTTON_REMOVE);
    };
    fill(assigned, m_editor->getLeftTags(), &oVIXDragDropTags::clearLeft, &oVIXDragDropTags::addLeftItem,
         &oVIXDragDropTags::addLeftItems);
    fill(available, m_editor->getRightTags(), &oVIXDragDropTags::clearRight, &oVIXDragDropTags::addRightItem,
         &oVIXDragDropTags::addRightItems);

    const QString before = filter();
    fillFilter(assigned + available);
    m_filter->setComboMeta(tagPrefix + before);
    if (filter() != before)
        emit filterChanged(filter());
}

void TagsPanel::finishEdits()
{
    if (!m_takeOver.isActive())
        return;
    m_takeOver.stop();
    takeOver();
}

QString TagsPanel::filter() const
{
    const QString meta = m_filter->getCurrentComboMeta();
    return meta.startsWith(tagPrefix) ? meta.mid(tagPrefix.size()) : QString();
}

void TagsPanel::takeOver()
{
    emit tagsEdited(sortedNames(m_editor->getLeftTags()), sortedNames(m_editor->getRightTags()));
}

void TagsPanel::fillFilter(const QStringList &names)
{
    m_filter->clear();
    m_filter->addItem(tr("Everyone"), everyone);
    for (const QString &name : names)
        m_filter->addItem(name, tagPrefix + name);
    m_filter->setCurrentIndex(0);
}

void TagsPanel::filterBy(QMimeData *dropped)
{
    const VelmoDropData payload(dropped);
    if (payload.getType() != VelmoDropData::Tags)
        return;
    const QString before = filter();
    m_filter->setComboMeta(tagPrefix + payload.getItemNames().value(0));
    if (filter() != before)
        emit filterChanged(filter());
}
