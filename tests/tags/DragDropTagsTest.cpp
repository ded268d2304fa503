#include "support/Events.h"
#include "support/Gestures.h"
#include "support/ModalBox.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "messages/MessageRules.h"
#include "tags/oVIXDragDropListWidget.h"
#include "tags/oVIXDragDropTags.h"

#include <QAccessible>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>
#include <QTextBrowser>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

using List = oVIXDragDropListWidget;

/// With "a", "c" and "B", "d", and what it has told.
struct Editor : oVIXDragDropTags
{
    Editor()
    {
        addLeftItems({u"c"_s, u"a"_s}, BUTTON_REMOVE);
        addRightItems({u"d"_s, u"B"_s}, BUTTON_REMOVE_OPTIONAL);
    }
    List *left() const { return findChild<List *>(u"leftList"_s); }
    List *right() const { return findChild<List *>(u"rightList"_s); }
    void setShowAllButtons(bool show)
    {
        setLeftShowAllButtons(show);
        setRightShowAllButtons(show);
    }
    QString state() const { return getLeftTags().join(u' ') + u'|' + getRightTags().join(u' '); }

    Told told{static_cast<oVIXDragDropTags *>(this)};
};

oVIXDragTag *tagOf(const List *list, int row)
{
    return qobject_cast<oVIXDragTag *>(list->itemWidget(list->item(row)));
}

} // namespace

using Act = std::function<void(Editor *)>;
using Answer = std::function<void(Editor *, VelmoMessageWidget *)>;
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Answer)

class DragDropTagsTest : public TestCase
{
    Q_OBJECT

private slots:
    void movesTellsAndAdds_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("told");
        const auto row = [](const char *name, const Act &act, const QString &state, const QString &told) {
            QTest::newRow(name) << act << state << told;
        };
        const QString same = u"a c|B d"_s;
        row(
            "double click", [](Editor *e) { Gestures::doubleClick(tagOf(e->left(), 1)); }, u"a|B c d"_s,
            u"genericTagChanged 1"_s);
        row(
            "and back", [](Editor *e) { emit tagOf(e->right(), 0)->doubleClick(); }, u"a B c|d"_s,
            u"genericTagChanged 2"_s);
        row(
            "button", [](Editor *e) { emit tagOf(e->left(), 0)->tagClicked(); }, u"c|a B d"_s,
            u"genericTagChanged 1"_s);
        row("no such row", [](Editor *e) { e->fnLeftMove(2), e->fnRightMove(-1), e->fnLeftChange(7); }, same, {});
        row(
            "typed", [](Editor *e) { emit e->left()->addNewItem(u"b"_s); }, u"a b c|B d"_s, u"newItemAdded b"_s);
        row("typed, there in another case", [](Editor *e) { e->fnLeftAddNewItem(u"A"_s); }, same, {});
        row(
            "nothing typed", [](Editor *e) { e->fnRightAddNewItem({}); }, u"a c| B d"_s, u"newItemAdded "_s);
        row(
            "add tags",
            [](Editor *e) {
                e->addLeftItem(u"New"_s, BUTTON_ADD);
                e->addLeftItem(u"z"_s, BUTTON_NONE);
                e->fnLeftAddNewItem(u"new"_s);
                e->fnChangedList(e->left());
                e->fnChangedList(nullptr);
                e->setLeftShowAllButtons(false);
                e->fnChangedList(e->left());
            },
            u"a c z New|B d"_s, u"userTagChanged a c z"_s);
        row("cleared", [](Editor *e) { e->clearLeft(), e->clearRight(); }, u"|"_s, {});
    }
    void movesTellsAndAdds()
    {
        QFETCH(Act, act);
        Editor editor;
        Gestures::show(&editor);
        QVERIFY(Events::untilIdle());
        act(&editor);
        QTEST(editor.state(), "state");
        QTEST(editor.told.taken(), "told");
    }

    void keepsTheKindOfATag()
    {
        Editor editor;
        editor.fnLeftMove(0);
        editor.fnRightMove(2);
        QCOMPARE(tagOf(editor.right(), 0)->getButtonOptions(), BUTTON_REMOVE);
        QCOMPARE(tagOf(editor.left(), 1)->getButtonOptions(), BUTTON_REMOVE_OPTIONAL);
    }

    /// Real drops need a desktop.
    void refusesDropsFromNowhere()
    {
        Editor editor;
        for (const auto type : {VelmoDropData::Tags, VelmoDropData::Categories}) {
            const std::unique_ptr<QMimeData> mime(VelmoDropData({{u"B"_s, {}}}, type).getMimeData());
            QDropEvent event({5, 5}, Qt::CopyAction, mime.get(), Qt::LeftButton, {});
            emit editor.left()->dropTriggered(&event);
        }
        emit editor.left()->dropTriggered(nullptr);
        QCOMPARE(editor.state(), u"a c|B d"_s);
        QCOMPARE(editor.told.taken(), QString());
    }

    void asksBeforeItDeletes_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("told");
        const auto row = [](const char *name, const Answer &answer, const QString &state, const QString &told) {
            QTest::newRow(name) << answer << state << told;
        };
        using Box = VelmoMessageWidget;
        row(
            "yes", [](Editor *, Box *box) { box->fnAccept(); }, u"a|B d"_s, u"itemRemoved c"_s);
        row(
            "other", [](Editor *, Box *box) { box->fnOther(); }, u"a|B d"_s, u"itemRemoved c"_s);
        row("no", [](Editor *, Box *box) { box->fnReject(); }, u"a c|B d"_s, {});
        row("closed", [](Editor *, Box *box) { box->close(); }, u"a c|B d"_s, {});
        row(
            "rows have come",
            [](Editor *editor, Box *box) {
                editor->addLeftItems({u"aa"_s, u"C"_s}, BUTTON_REMOVE);
                box->fnAccept();
            },
            u"a aa C|B d"_s, u"itemRemoved c"_s);
        row("the row has gone",
            [](Editor *editor, Box *box) {
                editor->clearLeft();
                editor->addLeftItems({u"b"_s, u"c"_s}, BUTTON_REMOVE);
                box->fnAccept();
            },
            u"b c|B d"_s, {});
        row(
            "the owner takes the row itself",
            [](Editor *editor, Box *box) {
                connect(editor, &Editor::itemRemoved, editor, [editor] { editor->clearLeft(); });
                box->fnAccept();
            },
            u"|B d"_s, u"itemRemoved c"_s);
    }
    void asksBeforeItDeletes()
    {
        QFETCH(Answer, answer);
        Editor editor;
        editor.setShowAllButtons(false);
        onceModal<VelmoMessageWidget>([&](VelmoMessageWidget *box) { answer(&editor, box); });
        emit tagOf(editor.left(), 1)->tagClicked();
        QTEST(editor.state(), "state");
        QTEST(editor.told.taken(), "told");
    }

    void mayBeDeletedWhileItAsks()
    {
        const QPointer<Editor> editor = new Editor;
        editor->setShowAllButtons(false);
        onceModal<VelmoMessageWidget>([editor](VelmoMessageWidget *) { delete editor; });
        emit tagOf(editor->right(), 0)->tagClicked();
        QVERIFY(!editor);
    }

    void showsNamesAsTyped()
    {
        const QString name = u"<b>A &amp; B</b>  %1"_s;
        Editor editor;
        QString title;
        QString text;
        onceModal<VelmoMessageWidget>([&](VelmoMessageWidget *box) {
            title = box->accessibleName();
            text = box->findChild<QTextBrowser *>()->toPlainText();
            box->fnReject();
        });
        QCOMPARE(editor.promptDeleteQuestion(name), MsgRejected);
        QCOMPARE(title, u"QUESTION: Delete"_s);
        QCOMPARE(text, u"Delete tag or category "_s + name + u" question message."_s);
        QVERIFY(bodyNaming(u"%1"_s, u"x"_s.repeated(1 << 20)).size() < 2000);

        editor.setLeftTitle(u"R&D <i>tags</i>"_s);
        QCOMPARE(editor.findChild<QLabel *>(u"leftTextLabel"_s)->textFormat(), Qt::PlainText);
        QCOMPARE(QAccessible::queryAccessibleInterface(editor.left())->text(QAccessible::Name), u"R&D <i>tags</i>"_s);
        QVERIFY(!QAccessible::queryAccessibleInterface(editor.right())->text(QAccessible::Name).isEmpty());
    }

    void configuresItsLists()
    {
        Editor editor;
        editor.setRightTagColors(Qt::red, Qt::white);
        editor.fnLeftMove(0);
        editor.fnRightMove(1);
        const auto isRed = [](const oVIXDragTag *tag) { return tag->styleSheet().contains(u"rgb(255, 0, 0)"_s); };
        QVERIFY(isRed(tagOf(editor.right(), 0)) && isRed(tagOf(editor.right(), 1)));
        QVERIFY(!isRed(tagOf(editor.left(), 0)) && !isRed(tagOf(editor.left(), 1)));
        const QListWidgetItem *leftAdd = editor.addLeftItem(u"New"_s, BUTTON_ADD);
        const QListWidgetItem *rightAdd = editor.addRightItem(u"New"_s, BUTTON_ADD);
        editor.enableAddButton(false);
        QVERIFY(leftAdd->isHidden() && rightAdd->isHidden());
        editor.setEnabledRightItems({});
        QVERIFY(tagOf(editor.left(), 0)->isEnabled() && !tagOf(editor.right(), 0)->isEnabled());
    }

    /// The toolkit finds fault with the sheets of the two lists and with nothing else.
    void hasSheetsThatAreMeantToBeBroken()
    {
        for (const QString &name : {u"left"_s, u"right"_s}) {
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(u"^Could not parse stylesheet.*\"%1List\"\\)$"_s.arg(name)));
        }
        Editor editor;
        Gestures::show(&editor);
        QCOMPARE(editor.left()->styleSheet(), u"QListWidget {\tborder:0px;"_s);
        QCOMPARE(editor.left()->frameShape(), QFrame::NoFrame);
    }
};

VELMO_TEST_MAIN(DragDropTagsTest)
#include "DragDropTagsTest.moc"
