#include "support/Gestures.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "choosers/QMultiCompleterLineEdit.h"
#include "docking/OvixThumbnailSizeWidget.h"
#include "docking/oVIXCloseDetachWidget.h"
#include "docking/oVIXDockBar.h"
#include "foundation/OvixSvgButton.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCompleter>
#include <QElapsedTimer>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

OvixSvgButton *button(const QWidget &parent, const QString &name)
{
    return parent.findChild<OvixSvgButton *>(name);
}

QLabel *titleOf(const QWidget &bar)
{
    const QList<QLabel *> labels = bar.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    return labels.value(0);
}

/// What shows of the header: title, search and buttons by their first letters.
QString shownIn(const oVIXDockBar &bar)
{
    QString shown;
    if (!titleOf(bar)->isHidden())
        shown += u"title "_s;
    if (bar.getSearchLabel()->isVisibleTo(&bar))
        shown += u"search "_s;
    for (const QString &name : {u"btThumbMode"_s, u"btDetach"_s, u"btClose"_s}) {
        if (button(bar, name)->isVisibleTo(&bar))
            shown += name.sliced(2, 1);
    }
    return shown.trimmed();
}

/// A header above something else that can have the focus, in a window on screen.
struct Panel
{
    QWidget window;
    oVIXDockBar bar{&window};
    QLineEdit other{&window};

    Panel()
    {
        window.setGeometry(100, 100, 400, 200);
        bar.setGeometry(0, 0, 400, 24);
        other.setGeometry(0, 100, 400, 30);
        Gestures::show(&window);
        Gestures::focus(&other);
        Gestures::hover(&other);
    }
};

} // namespace

class DockBarTest : public TestCase
{
    Q_OBJECT

private slots:
    void isAsWideAsItsButtons()
    {
        for (const auto &[calls, shown] :
             {std::pair{u""_s, u"DC"_s}, {u"t"_s, u"TDC"_s}, {u"c"_s, u"D"_s}, {u"ct"_s, u"TD"_s}, {u"dc"_s, u""_s}}) {
            oVIXDockBar bar(nullptr);
            for (const QChar call : calls)
                call == u't' ? bar.thumbAvailable() : call == u'c' ? bar.hideClose() : bar.hideDock();
            bar.setSearchEnabled(false);
            QCOMPARE(shownIn(bar), u"title"_s);
            bar.setHideSearchUntilHover(false);
            QCOMPARE(shownIn(bar), (u"title "_s + shown).trimmed());
            auto *group = bar.findChild<oVIXCloseDetachWidget *>();
            QCOMPARE(group->width(), 25 * shown.size());
            QCOMPARE(group->getIsDockAvailable(), shown.contains(u'D'));
            group->layout()->activate();
            if (calls == u"ct")
                QCOMPARE(button(bar, u"btDetach"_s)->x(), 25); // where close was
        }
    }

    void asksForTheThumbnailSize()
    {
        auto window = std::make_unique<QMainWindow>();
        window->setGeometry(50, 50, 600, 400);
        auto *bar = new oVIXDockBar(window.get());
        bar->setGeometry(100, 100, 300, 24);
        bar->thumbAvailable();
        bar->setParentWindow(window.get());
        bar->setThumbnailSize(150);
        Gestures::show(window.get());
        QSignalSpy chosen(bar, &oVIXDockBar::thumbClicked);
        OvixSvgButton *thumb = button(*bar, u"btThumbMode"_s);
        Gestures::click(thumb);
        const QPointer<OvixThumbnailSizeWidget> chooser = window->findChild<OvixThumbnailSizeWidget *>();
        QVERIFY(chooser && chooser->isVisible());
        QCOMPARE(chooser->pos(), thumb->mapToGlobal(QPoint(0, thumb->height())));
        const QList<QAbstractButton *> options = chooser->findChildren<QAbstractButton *>();
        QVERIFY(options.at(2)->isChecked());
        Gestures::click(options.at(3));
        QCOMPARE(chosen, QList<QVariantList>({{200}}));
        QCOMPARE(bar->getThumbnailSize(), 200);

        Gestures::click(thumb);
        QCOMPARE(window->findChildren<OvixThumbnailSizeWidget *>().size(), 1);
        delete bar;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!chooser);

        oVIXCloseDetachWidget group(nullptr);
        group.setParentWindow(window.get());
        button(group, u"btThumbMode"_s)->click();
        window.reset(); // and the pop-up with it
        button(group, u"btThumbMode"_s)->click(); // a new one, without a window
    }

    void showsWhatTheUserIsBusyWith()
    {
        Panel panel;
        oVIXDockBar &bar = panel.bar;
        QCOMPARE(shownIn(bar), u"title DC"_s);
        Gestures::hover(&bar);
        Gestures::hover(&panel.other);
        QCOMPARE(shownIn(bar), u"title"_s);

        bar.setSearchEnabled(true);
        Gestures::hover(&bar);
        QCOMPARE(shownIn(bar), u"search DC"_s);
        Gestures::click(bar.getSearchLabel());
        Gestures::hover(&panel.other);
        QCOMPARE(shownIn(bar), u"search DC"_s); // has the focus
        panel.other.setFocus();
        QCOMPARE(shownIn(bar), u"search DC"_s); // not in the middle of it
        QTRY_COMPARE(shownIn(bar), u"title"_s);
        bar.setSearch(u"chair"_s);
        QCOMPARE(shownIn(bar), u"search DC"_s);
        bar.setSearch({});
        QCOMPARE(shownIn(bar), u"title"_s);

        bar.setHideSearchUntilHover(false);
        QCOMPARE(shownIn(bar), u"search DC"_s);
        bar.setSearchEnabled(false);
        bar.setHideSearchUntilHover(false);
        bar.showDetachCloseOptions(false);
        QCOMPARE(shownIn(bar), u"title"_s);
    }

    void searches()
    {
        oVIXDockBar bar(nullptr);
        Told told(&bar);
        bar.setSearch(u"lamp"_s);
        bar.clearSearchText();
        bar.clearSearchText();
        QCOMPARE(told.taken(), u"s_search lamp, s_search , s_clearoptions, s_search , s_clearoptions, s_search "_s);
    }

    void suggests()
    {
        Panel panel;
        panel.bar.setHideSearchUntilHover(false);
        panel.bar.setSearchEnabled(true);
        panel.bar.setHideSearchUntilHover(false);
        QMultiCompleterLineEdit *edit = panel.bar.getSearchLabel();
        panel.bar.setSuggestionModel(nullptr);
        auto *first = new QStringListModel({u"Armchair"_s, u"chair"_s, u"Table"_s});
        QStringListModel second({u"Lamp"_s});
        panel.bar.setSuggestionModel(first);
        panel.bar.setSuggestionModel(&second);
        QCOMPARE(edit->completer()->model(), first);
        Gestures::focus(edit);
        QTest::keyClicks(edit, u"CHA"_s);
        QVERIFY(edit->completer()->popup()->isVisible());
        QCOMPARE(edit->completer()->completionCount(), 2);
        delete first; // while its list is open
        QVERIFY(!edit->completer());
        QTest::keyClicks(edit, u"ir"_s);

        panel.bar.setSuggestionModel(&second);
        const QPointer<QCompleter> completer = edit->completer();
        QCOMPARE(completer->model(), &second);
        panel.bar.setSuggestionModel(nullptr);
        QVERIFY(!edit->completer());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!completer);

        auto *third = new QStringListModel;
        panel.bar.setSuggestionModel(third);
        panel.bar.setSuggestionModel(nullptr);
        panel.bar.setSuggestionModel(&second);
        delete third; // before the event loop has deleted its completer
        QVERIFY(edit->completer() && edit->completer()->model() == &second);
    }

    void writesItsTitle()
    {
        oVIXDockBar bar(nullptr);
        const QString markup = u"<font color=\"#ffffff\"> %1</font><font color=\"#9c9c9c\"> %2</font>"_s;
        QCOMPARE(titleOf(bar)->text(), markup.arg(u"DOCK"_s, u"BAR"_s));
        bar.setTitle(u"a <b> & c"_s, u"d <e>"_s, u"Inter"_s, 12);
        QCOMPARE(titleOf(bar)->text(), markup.arg(u"A&nbsp;&lt;B&gt;&nbsp;&amp;&nbsp;C"_s, u"d&nbsp;&lt;e&gt;"_s));
        const int width = bar.minimumSizeHint().width();
        QElapsedTimer timer;
        timer.start();
        bar.setTitle(QString(5'000'000, u'W'), {}, {}, 0);
        QCOMPARE(bar.minimumSizeHint().width(), width);
        QVERIFY(!bar.grab().isNull() && timer.elapsed() < 1000);
    }

    void namesItsParts()
    {
        oVIXDockBar bar(nullptr);
        QCOMPARE(bar.getSearchLabel()->accessibleName(), u"Search"_s);
        const QList<OvixSvgButton *> buttons = bar.findChildren<OvixSvgButton *>();
        QCOMPARE(buttons.size(), 4);
        for (const OvixSvgButton *button : buttons)
            QVERIFY(!button->accessibleName().isEmpty());
    }
};

VELMO_TEST_MAIN(DockBarTest)
#include "DockBarTest.moc"
