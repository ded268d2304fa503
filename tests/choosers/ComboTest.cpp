#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "choosers/oVIXCombo.h"
#include "foundation/OvixSvgButton.h"
#include "foundation/QClickableLabel.h"

#include <QAccessible>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QClickableLabel *label(const oVIXCombo &combo, const char *name)
{
    return combo.findChild<QClickableLabel *>(QLatin1String(name));
}

/// One operation written as a word, its number and its texts: "set 2", "text mixed M".
void operate(oVIXCombo &combo, const QString &operation)
{
    const QStringList words = operation.split(u' ');
    const QString verb = words[0], first = words.value(1), second = words.value(2);
    const int number = first.toInt();
    if (verb == u"set")
        combo.setCurrentIndex(number);
    else if (verb == u"text")
        combo.setComboText(first, second);
    else if (verb == u"meta")
        combo.setComboMeta(first);
    else if (verb == u"rename")
        combo.setItemText(number, second);
    else if (verb == u"remove")
        combo.removeItem(number);
    else if (verb == u"removeText")
        combo.removeItem(first);
    else if (verb == u"allow")
        combo.setAllowOverride(number);
    else if (verb == u"override")
        combo.setOverride(number);
    else if (verb == u"yesNo")
        combo.setYesNo(first);
    else if (verb == u"check")
        combo.setChecked(number);
    else if (verb == u"clear")
        combo.clear();
}

} // namespace

class ComboTest : public TestCase
{
    Q_OBJECT

private slots:
    void choosesAndOverrides_data()
    {
        QTest::addColumn<QString>("operations"); // on walk (W), run (R), stand (no meta) and a second run (R)
        QTest::addColumn<QString>("state"); // index, what is shown, meta, override mode
        const auto row = [](const char *operations, const char *state) {
            QTest::newRow(operations) << QString::fromLatin1(operations) << QString::fromLatin1(state);
        };
        row("", "-1 'walk' ''");
        row("set 2", "2 'stand' 'stand'");
        row("set 1, set 4, set -1, rename 4 x, remove -1, remove 4, removeText none, check 1", "1 'run' 'R'");
        row("meta R", "1 'run' 'R'");
        row("meta X", "-1 'walk' ''");
        row("text run W", "0 'run' 'W'");
        row("text run X", "1 'run' 'R'");
        row("text mixed", "-1 'mixed' 'mixed' override");
        row("set 2, text mixed M", "2 'mixed' 'M' override");
        row("text mixed M, set 1", "1 'run' 'R'");
        row("allow 0, set 0, text mixed M", "0 'mixed' 'W'");
        row("set 0, text mixed M, allow 0, override 0", "0 'mixed' 'W' override");
        row("set 1, rename 1 rush, rename 0 stroll", "1 'rush' 'R'");
        row("set 2, remove 0", "1 'stand' 'stand'");
        row("set 0, removeText run, remove 2", "0 'walk' 'W'");
        row("set 2, removeText stand", "0 'walk' 'W'");
        row("remove 0, remove 0, remove 0, remove 0", "-1 '' ''");
        row("text mixed M, remove 0, remove 0, remove 0, remove 0", "-1 'mixed' 'M' override");
        row("set 1, clear", "-1 '' ''");
        row("yesNo Loop", "-1 'YES' ''");
        row("yesNo Loop, check 1, check 0", "1 'NO' 'NO'");
    }
    void choosesAndOverrides()
    {
        QFETCH(QString, operations);
        oVIXCombo combo;
        QVERIFY(combo.isEmpty() && !combo.isOverride() && combo.itemText(0).isEmpty());
        QSignalSpy changed(&combo, &oVIXCombo::currentIndexChanged);
        combo.addItem(u"walk"_s, u"W"_s);
        combo.addItems({u"run"_s, u"stand"_s}, {u"R"_s});
        combo.addItem(u"run"_s, u"R"_s);
        for (const QString &operation : operations.split(u", "_s))
            operate(combo, operation);
        const QString state =
            u"%1 '%2' '%3'"_s.arg(combo.currentIndex()).arg(combo.getCurrentComboText(), combo.getCurrentComboMeta());
        QTEST(combo.isOverride() ? state + u" override"_s : state, "state");
        QCOMPARE(combo.isChecked(), combo.currentIndex() == 0);
        QCOMPARE(changed.size(), 0);
    }

    void alignsCaptionAndChoice()
    {
        oVIXCombo combo;
        QCOMPARE(label(combo, "textLabel")->text(), u"OVIX_COMBO_TEXT"_s);
        QCOMPARE(combo.findChild<OvixSvgButton *>(u"openButton"_s)->size(), QSize(12, 12));
        combo.setYesNo(u"Loop"_s);
        combo.resize(300, 20);
        Gestures::show(&combo);
        QCOMPARE(combo.height(), 20);
        QCOMPARE(label(combo, "comboLabel")->width(), 59);
        QVERIFY(label(combo, "textLabel")->width() > 200);
        const Qt::Alignment left = Qt::AlignVCenter | Qt::AlignLeft, right = Qt::AlignVCenter | Qt::AlignRight;
        struct Case
        {
            Qt::Alignment given, caption, choice;
        };
        for (const auto &[given, caption, choice] :
             {Case{Qt::AlignRight, right, left}, Case{Qt::AlignLeft, left, right},
              Case{Qt::AlignHCenter, Qt::AlignCenter, Qt::AlignCenter}}) {
            combo.setAlignment(given);
            QCOMPARE(label(combo, "textLabel")->alignment(), caption);
            QCOMPARE(label(combo, "comboLabel")->alignment(), choice);
        }
        QCOMPARE(label(combo, "comboLabel")->styleSheet(),
                 u"QClickableLabel {\tqproperty-alignment:'AlignVCenter | AlignCenter';\tcolor:rgb(219,219,219);"
                 "\tpadding-left:2px;\tpadding-right:10px;\tpadding-bottom:2px;\tfont-size:11px;}"
                 "QClickableLabel:disabled {\tcolor:rgb(105,105,105);}"_s);
        QCOMPARE(Picture::colourAt(&combo, {150, 0}), QColor(28, 28, 28));
        combo.setFocusPolicy(Qt::StrongFocus);
        Gestures::focus(&combo);
        QCOMPARE(Picture::colourAt(&combo, {150, 0}), QColor(116, 211, 252));
    }

    void showsTextsOnOneLine()
    {
        oVIXCombo combo;
        combo.resize(160, 20);
        const auto pictureOf = [&combo](const QString &text) {
            combo.setText(text);
            combo.setComboText(text, QString());
            return Picture::of(&combo);
        };
        QElapsedTimer timer;
        timer.start();
        const QImage endless = pictureOf(QString(5'000'000, u'x'));
        QVERIFY(combo.sizeHint().width() < 500);
        QVERIFY(combo.minimumSizeHint().width() < 150);
        QCOMPARE(pictureOf(QString(6'000'000, u'x')), endless); // with the same ellipsis
        QVERIFY(timer.elapsed() < 1000);
        QCOMPARE(combo.getCurrentComboText().size(), 6'000'000);
        QCOMPARE(pictureOf(u"a\nb\tc\u2028d"_s), pictureOf(u"a b c d"_s));
    }

    void takesThePayloadOfTheApplication()
    {
        oVIXCombo combo;
        QMimeData payload, other;
        payload.setData(u"application/x-velmodropdata"_s, "tags");
        other.setText(u"tags"_s);
        QList<QMimeData *> got;
        connect(&combo, &oVIXCombo::dropped, this, [&](QMimeData *data, QObject *) { got << data; });
        for (QMimeData *data : {&payload, &other}) {
            QDragEnterEvent enter({5, 5}, Qt::MoveAction, data, Qt::LeftButton, {});
            QDragMoveEvent move({5, 5}, Qt::MoveAction, data, Qt::LeftButton, {});
            QDropEvent drop({5, 5}, Qt::MoveAction, data, Qt::LeftButton, {});
            for (QDropEvent *event : {static_cast<QDropEvent *>(&enter), static_cast<QDropEvent *>(&move), &drop}) {
                QCoreApplication::sendEvent(&combo, event);
                QCOMPARE(event->isAccepted(), data == &payload);
            }
        }
        QCOMPARE(got, QList<QMimeData *>{&payload});
    }

    void isAComboBoxToAssistiveTools()
    {
        oVIXCombo combo;
        combo.setText(u"Motion"_s);
        combo.setComboText(u"mixed"_s, QString());
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&combo);
        QCOMPARE(accessible->role(), QAccessible::ComboBox);
        QCOMPARE(accessible->text(QAccessible::Name), u"Motion"_s);
        QCOMPARE(accessible->text(QAccessible::Value), u"mixed"_s);
        QAccessibleTextInterface *choice = accessible->textInterface();
        QCOMPARE(choice->text(0, choice->characterCount()), u"mixed"_s);
        QCOMPARE(choice->text(2, 4), u"xe"_s);
        combo.resize(200, 20);
        Gestures::show(&combo);
        const QPoint middle = accessible->rect().center();
        QVERIFY(accessible->childCount() == 0 && !accessible->child(0) && !accessible->childAt(middle.x(), middle.y()));
        QSignalSpy reset(&combo, &oVIXCombo::resetCombo);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(reset.size(), 1);
    }
};

VELMO_TEST_MAIN(ComboTest)
#include "ComboTest.moc"
