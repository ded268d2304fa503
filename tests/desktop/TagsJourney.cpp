#include "desktop/Journey.h"
#include "desktop/RealInput.h"

#include "QClickableLabel.h"
#include "VelmoMessageBox.h"
#include "oVIXCombo.h"
#include "oVIXDragDropListWidget.h"
#include "oVIXDragDropTags.h"
#include "oVIXDragTag.h"
#include "panels/TagsPanel.h"
#include "scenes/SceneTags.h"
#include "window/ScenePage.h"
#include "window/SceneView.h"
#include "window/WorkstationWindow.h"

#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

class TagsJourney : public Journey
{
    Q_OBJECT

private slots:
    void tagsAreDraggedTypedAndDeleted()
    {
        openScene(u"Central Station"_s, u"Platform 4 transfer"_s);
        QCOMPARE(tags(), u"luggage,transfer|commuter,staff"_s);
        keep(u"opened"_s);
        drag(u"luggage"_s, u"Available"_s);
        QTRY_COMPARE(tags(), u"transfer|commuter,luggage,staff"_s);
        QVERIFY(!shownTags(u"luggage"_s));
        drag(u"staff"_s, u"Assigned"_s);
        QTRY_COMPARE(tags(), u"staff,transfer|commuter,luggage"_s);
        QVERIFY(std::ranges::all_of(page()->scene().people, [](const SceneMover &person) { // as nobody had it
            return person.tags.contains(4);
        }));
        keep(u"dragged"_s);

        RealInput::doubleClick(middleOf(seen<oVIXDragTag>(u"luggage"_s, panel())));
        QTRY_COMPARE(tags(), u"luggage,staff,transfer|commuter"_s);
        QVERIFY(shownTags(u"luggage"_s)); // they have it again

        click(seen<QClickableLabel>(u"Add"_s, list(u"Available"_s)));
        QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        RealInput::type(u"delayed"_s);
        keep(u"typing"_s);
        RealInput::key(u"Return"_s);
        QTRY_COMPARE(tags(), u"luggage,staff,transfer|commuter,delayed"_s);

        onceOpen<VelmoMessageWidget>([this](VelmoMessageWidget *) {
            keep(u"question"_s);
            RealInput::key(u"Return"_s);
        });
        click(seen<QClickableLabel>(u"Remove"_s, seen<oVIXDragTag>(u"commuter"_s, panel())));
        QTRY_COMPARE(tags(), u"luggage,staff,transfer|delayed"_s);
        keep(u"deleted"_s);
    }

    void aTagIsDroppedOnTheFilter()
    {
        openScene(u"Central Station"_s, u"Platform 4 transfer"_s);
        const QImage before = page()->view()->grab().toImage();
        const auto *filter = seen<oVIXCombo>(u"Filter by tag"_s);
        RealInput::drag(middleOf(seen<oVIXDragTag>(u"luggage"_s, panel())), middleOf(filter));
        QTRY_COMPARE(page()->view()->options().highlightedTag, u"luggage"_s);
        QCOMPARE(filter->getCurrentComboText(), u"luggage"_s);
        QVERIFY(page()->view()->grab().toImage() != before);
        keep(u"filtered"_s);
        onceOpenChoose(u"Everyone"_s);
        click(filter);
        QTRY_COMPARE(page()->view()->options().highlightedTag, QString());
        QTRY_COMPARE(page()->view()->grab().toImage(), before);
    }

private:
    ScenePage *page() const { return window()->scenePage(); }
    TagsPanel *panel() const { return window()->tagsPanel(); }
    /// The scene's tags: assigned ones, then those that are available.
    QString tags() const
    {
        const auto sorted = [](QStringList names) {
            names.sort();
            return names.join(u',');
        };
        return sorted(SceneTags::assigned(page()->scene())) + u'|' + sorted(SceneTags::available(page()->scene()));
    }
    /// Whether the view counts the tag for anybody.
    bool shownTags(const QString &name) const
    {
        const Scene &scene = page()->view()->scene();
        const auto tag = std::ranges::find(scene.tags, name, &SceneTag::name);
        return tag->isAssigned && std::ranges::any_of(scene.people, [tag](const SceneMover &person) {
                   return person.tags.contains(tag->id);
               });
    }
    oVIXDragDropListWidget *list(const QString &name) { return seen<oVIXDragDropListWidget>(name, panel()); }
    void drag(const QString &tag, const QString &listName)
    {
        RealInput::drag(middleOf(seen<oVIXDragTag>(tag, panel())), middleOf(list(listName)->viewport()));
    }
};

VELMO_TEST_MAIN(TagsJourney)
#include "TagsJourney.moc"
