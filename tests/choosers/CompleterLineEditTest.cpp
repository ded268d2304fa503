#include "support/Events.h"
#include "support/Gestures.h"
#include "support/TestCase.h"

#include "choosers/QMultiCompleterLineEdit.h"
#include "choosers/WordCompletion.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QHash>
#include <QPointer>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTest>
#include <QVBoxLayout>
#include <QValidator>

using namespace Qt::StringLiterals;

namespace {

/// A completing edit, another edit after it, and the candidates.
struct Shown : QWidget
{
    QStringListModel *model = new QStringListModel({u"apple"_s, u"apricot"_s, u"pineapple"_s, u"red car"_s}, this);
    QCompleter *completer = new QCompleter(model, this);
    QPointer<QMultiCompleterLineEdit> edit = new QMultiCompleterLineEdit;
    QLineEdit *next = new QLineEdit;

    Shown()
    {
        auto *column = new QVBoxLayout(this);
        column->addWidget(edit);
        column->addWidget(next);
        edit->setCompleter(completer);
        Gestures::show(this);
        Gestures::focus(edit);
    }

    bool isOpen() const { return completer->popup()->isVisible(); }
    /// Types the small letters; capitals stand for Down, Up, Return, Escape, Tab, Backspace, Left and Z for undo. Keys
    /// go to the open list first, as they do for a user.
    void keys(const QString &script)
    {
        static const QHash<QChar, Qt::Key> special = {
            {u'D', Qt::Key_Down}, {u'U', Qt::Key_Up},        {u'R', Qt::Key_Return}, {u'E', Qt::Key_Escape},
            {u'T', Qt::Key_Tab},  {u'B', Qt::Key_Backspace}, {u'L', Qt::Key_Left},   {u'Z', Qt::Key_Z}};
        for (const QChar key : script) {
            QWidget *list = QApplication::activePopupWidget();
            QWidget *target = list ? list : edit.data();
            if (special.contains(key))
                QTest::keyClick(target, special[key], key == u'Z' ? Qt::ControlModifier : Qt::NoModifier);
            else
                QTest::keyClick(target, key.toLatin1());
        }
    }
};

} // namespace

class CompleterLineEditTest : public TestCase
{
    Q_OBJECT

private slots:
    void replacesTheWordAtTheCursor_data()
    {
        QTest::addColumn<QString>("text"); // the bar is the cursor
        QTest::addColumn<bool>("eachWord");
        QTest::addColumn<QString>("accepted"); // with X as the candidate
        QTest::newRow("whole") << u"one two|"_s << false << u"X"_s;
        QTest::newRow("nothing") << u"|"_s << true << u"X"_s;
        QTest::newRow("last word") << u"one two|"_s << true << u"one X"_s;
        QTest::newRow("start of a word") << u"one,|two three"_s << true << u"one,X three"_s;
        QTest::newRow("middle of a word") << u"one t|wo,three"_s << true << u"one X,three"_s;
        QTest::newRow("end of a word") << u"one|, two"_s << true << u"X, two"_s;
        QTest::newRow("between separators") << u"one,| two"_s << true << u"one,X two"_s;
        QTest::newRow("other white space") << u"one\u00a0two|"_s << true << u"one\u00a0X"_s;
    }
    void replacesTheWordAtTheCursor()
    {
        QFETCH(QString, text);
        QFETCH(bool, eachWord);
        const int cursor = int(text.indexOf(u'|'));
        text.remove(cursor, 1);
        const auto word = WordCompletion::wordAt(text, cursor, eachWord);
        QTEST(WordCompletion::accepted(text, word, u"X"_s), "accepted");
        QCOMPARE(WordCompletion::wordAt(text, 99, eachWord).holds(int(text.size())), true);
    }

    void answersKeys_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<bool>("words"); // each on its own, matched anywhere
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("open");
        const auto row = [](const char *keys, bool words, const char *text, bool open) {
            QTest::addRow("%s %d", keys, words)
                << QString::fromLatin1(keys) << words << QString::fromLatin1(text) << open;
        };
        row("apD", false, "apple", true);
        row("apDDD", false, "ap", true);
        row("apDDDU", false, "apricot", true);
        row("apDDR", false, "apricot", false);
        row("apDDRZ", false, "ap", false);
        row("apDE", false, "apple", false);
        row("apDT", false, "apple", false);
        row("apDB", false, "appl", true);
        row("apDBR", false, "appl", false);
        row("x ap", false, "x ap", false);
        row("pine", false, "pine", true);
        row("x,carD", true, "x,red car", true);
        row("x,carDD", true, "x,car", true); // though the candidate was more than a word
        row("x,carDRZ", true, "x,car", false);
        row("apple ", true, "apple ", false);
        row("x aL", true, "x a", true);
        row("x aLL", true, "x a", false);
        row("x aLneD", true, "x pineapple", true);
    }
    void answersKeys()
    {
        QFETCH(QString, keys);
        QFETCH(bool, words);
        Shown shown;
        shown.edit->setCompleteEachWord(words);
        shown.edit->setMatchAnywhere(words);
        shown.keys(keys);
        QTEST(shown.edit->text(), "text");
        QTEST(shown.isOpen(), "open");
        QTRY_COMPARE(shown.next->hasFocus(), keys.contains(u'T'));
    }

    void tellsWhatALineEditTells()
    {
        Shown shown;
        shown.keys(u"ap"_s);
        QSignalSpy returned(shown.edit, &QLineEdit::returnPressed), changed(shown.edit, &QLineEdit::textChanged);
        QSignalSpy edited(shown.edit, &QLineEdit::textEdited);
        QSignalSpy activated(shown.completer, qOverload<const QString &>(&QCompleter::activated));
        shown.keys(u"DDR"_s);
        QCOMPARE(changed, QList<QVariantList>({{u"apple"_s}, {u"apricot"_s}}));
        QVERIFY(edited.isEmpty() && returned.size() == 1 && activated.size() == 1);
    }

    void leavesLimitsToTheEdit()
    {
        Shown shown;
        shown.edit->setMaxLength(4);
        shown.keys(u"apD"_s);
        QCOMPARE(shown.edit->text(), u"appl"_s);
        shown.edit->setMaxLength(40);
        QRegularExpressionValidator letters(QRegularExpression(u"[aple]*"_s));
        shown.edit->setValidator(&letters);
        shown.edit->clear();
        shown.keys(u"apDD"_s);
        QCOMPARE(shown.edit->text(), u"ap"_s);
        shown.keys(u"U"_s);
        QCOMPARE(shown.edit->text(), u"apple"_s);
    }

    void bearsATextThatIsSetAnew()
    {
        Shown shown;
        connect(shown.edit, &QLineEdit::textChanged, shown.edit, &QLineEdit::setText); // forgets the steps for undo
        shown.keys(u"apDD"_s);
        QCOMPARE(shown.edit->text(), u"apricot"_s);
    }

    void doesNotCompleteWhatCannotBeEdited()
    {
        Shown shown;
        const auto opens = [&shown](const auto &prepare) {
            shown.edit->clear();
            shown.keys(u"ap"_s);
            const bool opened = shown.isOpen();
            prepare();
            const bool closed = !shown.isOpen();
            QMetaObject::invokeMethod(shown.completer, "activated", Q_ARG(QString, u"apple"_s));
            return opened && closed && shown.edit->text() == u"ap"_s;
        };
        QVERIFY(opens([&] { shown.edit->setReadOnly(true); }));
        shown.edit->setReadOnly(false);
        QVERIFY(opens([&] { shown.edit->setEnabled(false); }));
        shown.edit->setEnabled(true);
        Gestures::focus(shown.edit);
        QVERIFY(opens([&] { shown.edit->setCompleter(nullptr); }));
        shown.edit->setCompleter(shown.completer);
        shown.edit->clear();
        shown.keys(u"ap"_s);
        shown.edit->hide();
        QVERIFY(!shown.isOpen());
    }

    void outlivesWhatItCompletesFrom()
    {
        Shown shown;
        shown.keys(u"ap"_s);
        delete shown.model;
        shown.keys(u"DRp"_s);
        QCOMPARE(shown.edit->text(), u"app"_s);
        shown.completer->setModel(new QStringListModel({u"apple"_s}, shown.completer));
        shown.keys(u"l"_s);
        QVERIFY(shown.isOpen());
        delete shown.completer;
        QVERIFY(!shown.edit->completer());
        shown.keys(u"e"_s);
        QCOMPARE(shown.edit->text(), u"apple"_s);

        QCompleter shared(QStringList{u"zebra"_s});
        shown.edit->setCompleter(&shared);
        QMultiCompleterLineEdit other(&shown);
        other.setCompleter(&shared);
        Gestures::focus(shown.edit);
        shown.edit->clear();
        shown.keys(u"zD"_s);
        QCOMPARE(shown.edit->text(), u"zebra"_s);
        QCOMPARE(other.text(), QString());
        connect(shown.edit, &QLineEdit::textChanged, &other, [&] {
            if (shown.edit->text() == u"zebra"_s)
                delete shown.edit;
        });
        shown.keys(u"BD"_s);
        QVERIFY(!shown.edit);
        QVERIFY(!shared.popup()->isVisible());
    }
};

VELMO_TEST_MAIN(CompleterLineEditTest)
#include "CompleterLineEditTest.moc"
