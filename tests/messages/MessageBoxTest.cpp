#include "support/Events.h"
#include "support/Gestures.h"
#include "support/ModalBox.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "choosers/oVIXButton.h"
#include "foundation/OvixSvgButton.h"
#include "foundation/QClickableLabel.h"
#include "foundation/VelmoStyle.h"
#include "frame/oVIXDialogTitle.h"
#include "messages/MessageRules.h"
#include "messages/VelmoYesNoWidget.h"

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

#include <climits>
#include <ctime>
#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Box = VelmoMessageWidget;
using Code = VelmoMsgReturnCode;

template <class Widget> Widget *part(Box *box, const char *name)
{
    return box->findChild<Widget *>(QLatin1String(name));
}

/// The texts of a box, then accepts it.
std::function<void(Box *)> reading(QStringList *texts)
{
    return [texts](Box *box) {
        QString title;
        for (const QLabel *label : box->findChild<oVIXDialogTitle *>()->findChildren<QLabel *>())
            title += label->text();
        *texts << title.remove(QRegularExpression(u"<[^>]*>"_s)).replace(u"&nbsp;"_s, u" "_s).simplified();
        auto *line = part<QLineEdit>(box, "lnEdit");
        *texts << (line->isVisible() ? u"edit "_s + line->text()
                                     : part<QTextBrowser>(box, "textBrowser")->toPlainText());
        auto *other = part<oVIXButton>(box, "lbDont");
        *texts << (other->isVisible() ? other->text() : QString());
        auto *bar = part<VelmoYesNoWidget>(box, "widgetYesNoButtons");
        *texts << bar->getMsgText() << bar->getOkText();
        *texts << QString::number(box->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        box->fnAccept();
    };
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(Box *)>)

class MessageBoxTest : public TestCase
{
    Q_OBJECT

private slots:
    void hasRules()
    {
        QCOMPARE(boxHeight(200, 82, 482, 20.9), 200);
        QCOMPARE(boxHeight(200, 82, 482, 100.9), 218);
        QCOMPARE(boxHeight(200, 82, 482, 1000), 600);
        QCOMPARE(countdownText(u"Replace"_s, 3), u"Replace (3)"_s);
        QCOMPARE(countdownText(QString(), 1), u" (1)"_s);
        QCOMPARE(countdownText(u"Replace"_s, 0), u"Replace"_s);
        QCOMPARE(returnCodeOf(0), MsgRejected);
        QCOMPARE(returnCodeOf(7), MsgRejected);
        QCOMPARE(returnCodeOf(3), MsgOther);
        QVERIFY(!hasTooDeepTables(u"<table></table>"_s.repeated(20)));
        QVERIFY(hasTooDeepTables(u"<TABLE>"_s.repeated(9)));
    }

    void isAsHighAsItsText()
    {
        Box box(u"WARNING"_s, u"Title"_s, false, nullptr, nullptr);
        box.setText(u"Short"_s);
        QCOMPARE(box.size(), QSize(500, 200));
        box.setText(u"Two lines, <b>each of which would have to be broken often in a narrow view.</b><br>The other."_s);
        QCOMPARE(box.height(), 200);
        box.setText(u"words "_s.repeated(150));
        auto *browser = part<QTextBrowser>(&box, "textBrowser");
        const int needed = box.height();
        QVERIFY(needed > 210 && needed < 500);
        box.setText(u"line\n"_s.repeated(200));
        QCOMPARE(box.size(), QSize(500, 600));
        Gestures::show(&box);
        QCOMPARE(box.size(), QSize(500, 630));
        QVERIFY(browser->geometry().top() >= 50);
        browser->setText(u"words "_s.repeated(150));
        QVERIFY(Events::untilIdle());
        QCOMPARE(200 + int(browser->document()->size().height()) - 82, needed);
        box.setText(u"words "_s.repeated(800));
        QVERIFY(browser->verticalScrollBar()->maximum() > 0);
        QCOMPARE(browser->horizontalScrollBar()->maximum(), 0);

        onceModal<Box>([](Box *shown) {
            QCOMPARE(shown->height(), 330);
            shown->fnOther();
        });
        QCOMPARE(VelmoWarningMessage(u"t"_s, u"text"_s, 300, nullptr, nullptr), MsgOther);
        onceModal<Box>([](Box *shown) { shown->fnOther(); });
        QCOMPARE(VelmoWarningMessage(u"t"_s, u"text"_s, INT_MAX, nullptr, nullptr), MsgOther);
    }

    void takesAnyBody_data()
    {
        QTest::addColumn<QString>("piece");
        for (const char *piece :
             {"x", "word ", "\n", "<b>", "<ul><li>", "<table><tr><td>", "<p>&amp;",
              "<a href=\"file:///dev/zero\">link</a> ", "<img src=\"file:///dev/zero\" width=99999999 height=99999999>",
              "<link rel=stylesheet href=\"file:///dev/zero\">"})
            QTest::newRow(piece) << QString::fromLatin1(piece);
    }
    void takesAnyBody()
    {
        QFETCH(QString, piece);
        Box box(u"KIND"_s, u"t"_s, false, nullptr, nullptr);
        const std::clock_t before = std::clock(); // of the processor, which a busy machine does not change
        box.setText(piece.repeated(1000000 / piece.size()));
        Gestures::show(&box);
        const double seconds = double(std::clock() - before) / CLOCKS_PER_SEC;
        QVERIFY2(seconds < 10, qPrintable(QString::number(seconds))); // without limits it takes minutes
        QVERIFY(box.height() <= 630);
    }

    void setsItsButtons()
    {
        Box box(u"QUESTION"_s, u"Title"_s, false, nullptr, nullptr);
        Gestures::show(&box);
        auto *bar = part<VelmoYesNoWidget>(&box, "widgetYesNoButtons");
        auto *other = part<oVIXButton>(&box, "lbDont");
        box.setButtonMode(VelmoButtonMode(9));
        QVERIFY(other->isVisible() && !bar->getEnableOkButton());
        for (const auto &[mode, text] : {std::pair(QuestionButtons, u"YES"_s),
                                         {InformationButtons, u"OK"_s},
                                         {EditButtons, u"OK"_s},
                                         {ThreeOptionButtons, u"OK"_s}}) {
            box.setButtonMode(mode);
            QCOMPARE(bar->getOkText(), text);
            QCOMPARE(other->isVisible(), mode == ThreeOptionButtons);
            QVERIFY(bar->getEnableOkButton());
            QVERIFY(part<QClickableLabel>(&box, "okButton")->styleSheet().contains(u"background:rgb(22,129,189)"_s));
        }
        box.setOtherOption(u"No"_s);
        QCOMPARE(other->width(), 84);
        const QString text = u"Keep both of them for now"_s;
        box.setOtherOption(text);
        QVERIFY(Events::untilIdle());
        QCOMPARE(other->width(), VelmoStyle::styleDockTextWidth(text) + 30);
    }

    void returnsTheAnswer_data()
    {
        QTest::addColumn<std::function<void(Box *)>>("act");
        QTest::addColumn<Code>("code");
        const auto row = [](const char *name, Code code, const std::function<void(Box *)> &act) {
            QTest::newRow(name) << act << code;
        };
        const auto key = [](Qt::Key pressed) { return [pressed](Box *box) { QTest::keyClick(box, pressed); }; };
        const auto click = [](const char *name) {
            return [name](Box *box) { Gestures::click(part<QWidget>(box, name)); };
        };
        row("Return", MsgAccepted, key(Qt::Key_Return));
        row("Enter", MsgAccepted, key(Qt::Key_Enter));
        row("Escape", MsgRejected, key(Qt::Key_Escape));
        row("OK", MsgAccepted, click("okButton"));
        row("cancel", MsgRejected, click("cancelButton"));
        row("other", MsgOther, click("lbDont"));
        row("close button", MsgRejected,
            [](Box *box) { Gestures::click(box->findChild<oVIXDialogTitle *>()->findChild<OvixSvgButton *>()); });
        row("closed", MsgRejected, [](Box *box) { box->close(); });
        row("hidden", MsgRejected, [](Box *box) { box->hide(); });
        row("parent gone", MsgRejected, [](Box *box) { delete box->parentWidget(); });
    }
    void returnsTheAnswer()
    {
        QFETCH(std::function<void(Box *)>, act);
        const QPointer<QWidget> parent(new QWidget);
        onceModal<Box>(act);
        const Code code = VelmoThreeOptionMessage(u"KIND"_s, u"t"_s, u"text"_s, u"Other"_s, parent, nullptr);
        QTEST(code, "code");
        QVERIFY(!parent || parent->children().isEmpty());
        delete parent;
    }

    void saysWhatItIsGiven()
    {
        QStringList texts;
        const auto read = [&texts](const std::function<Code()> &run) {
            texts.clear();
            onceModal<Box>(reading(&texts));
            return run() == MsgAccepted ? texts.join(u'|') : QString();
        };
        const QString a = u"A"_s;
        const QString b = u"B"_s;
        QString edited = u"old"_s;
        QCOMPARE(read([&] { return VelmoInfoMessage(a, b, nullptr, nullptr); }), u"INFORMATION: A|B|||OK|0"_s);
        QCOMPARE(read([&] { return VelmoWarningMessage(a, b, 0, nullptr, nullptr); }), u"WARNING: A|B|||OK|0"_s);
        QCOMPARE(read([&] { return VelmoQuestionMessage(a, b, nullptr, nullptr); }), u"QUESTION: A|B|||YES|0"_s);
        QCOMPARE(read([&] { return VelmoEditMessage(a, b, &edited, nullptr, nullptr); }), u"A: B|edit old|||OK|0"_s);
        QCOMPARE(read([&] { return VelmoThreeOptionMessage(u"K"_s, a, b, u"No"_s, nullptr, nullptr); }),
                 u"K: A|B|No||OK|0"_s);
        QCOMPARE(read([&] { return VelmoCustomMessage(u"K"_s, a, b, u"Go"_s, u"Sure?"_s, true, nullptr, nullptr); }),
                 u"K: A|B||Sure?|Go|1"_s);
        QCOMPARE(read([&] {
                     return VelmoCustomThreeOptionMessage(u"K"_s, a, b, u"Go"_s, u"No"_s, true, -3, nullptr, nullptr);
                 }),
                 u"K: A|B|No||Go|1"_s);
    }

    void writesWhatIsTypedWhileItRuns()
    {
        QWidget parent;
        QString edited = u"Crowd"_s;
        VelmoMessageClass message(u"Rename"_s, u"Scene title"_s, u"Scene title"_s, false, 0, &parent, nullptr);
        message.setButtonMode(EditButtons);
        message.showEditable(true, &edited);
        onceModal<Box>([](Box *box) {
            QVERIFY(part<QLineEdit>(box, "lnEdit")->hasFocus());
            QTest::keyClicks(part<QLineEdit>(box, "lnEdit"), u"Crowd 2"_s);
            QTest::keyClick(part<QLineEdit>(box, "lnEdit"), Qt::Key_Escape);
        });
        QCOMPARE(message.exec(), MsgRejected);
        QCOMPARE(edited, u"Crowd 2"_s);
        auto *box = parent.findChild<Box *>();
        QVERIFY(box && !box->isVisible());
        box->setEditText(u"later"_s);
        QCOMPARE(edited, u"Crowd 2"_s);
        QString other = u"other"_s;
        box->showEditable(true, &edited);
        box->showEditable(true, &other);
        QCOMPARE(edited, u"Crowd 2"_s);
        box->showEditable(true, nullptr);
        box->setEditText(u"nowhere"_s);
        QCOMPARE(other, u"other"_s);

        VelmoMessageClass copy(message);
        delete box;
        copy.setButtonText(u"Go"_s);
        QCOMPARE(copy.exec(), MsgRejected);
    }

    void itsHolderMayGoOrAskAgainWhileItRuns()
    {
        QWidget parent;
        auto *holder = new VelmoMessageClass(u"K"_s, u"t"_s, u"text"_s, false, 0, &parent, nullptr);
        onceModal<Box>([&holder](Box *box) {
            QCOMPARE(holder->exec(), MsgRejected);
            QVERIFY(box->isVisible());
            delete std::exchange(holder, nullptr);
            box->fnAccept();
        });
        QCOMPARE(holder->exec(), MsgAccepted);
        QVERIFY(!holder);
    }

    void holdsItsButtonsBack()
    {
        QStringList shown;
        onceModal<Box>([&shown](Box *box) {
            auto *bar = part<VelmoYesNoWidget>(box, "widgetYesNoButtons");
            auto *close = box->findChild<oVIXDialogTitle *>()->findChild<OvixSvgButton *>();
            const auto isLocked = [box, bar, close] {
                return !bar->isEnabled() && !part<oVIXButton>(box, "lbDont")->isEnabled() && !close->isEnabled();
            };
            shown << bar->getOkText();
            QVERIFY(isLocked());
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape})
                QTest::keyClick(box, key);
            box->close();
            QVERIFY(box->isVisible());
            while (isLocked() && shown.size() < 9) {
                const QString before = bar->getOkText();
                QTRY_VERIFY(bar->getOkText() != before);
                shown << bar->getOkText();
            }
            QVERIFY(bar->isEnabled() && part<oVIXButton>(box, "lbDont")->isEnabled() && close->isEnabled());
            QTest::keyClick(box, Qt::Key_Return);
        });
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(
            VelmoCustomThreeOptionMessage(u"K"_s, u"t"_s, u"b"_s, u"Replace"_s, u"Keep"_s, false, 2, nullptr, nullptr),
            MsgAccepted);
        QVERIFY(timer.elapsed() >= 1900);
        QCOMPARE(shown.join(u','), u"Replace (2),Replace (1),Replace"_s);
    }

    void readsNothingThatItsBodyNames()
    {
        QTemporaryDir folder;
        QImage picture(100, 100, QImage::Format_RGB32);
        picture.fill(Qt::red);
        const QString file = folder.filePath(u"a.png"_s);
        QVERIFY(picture.save(file));
        Box box(u"KIND"_s, u"t"_s, false, nullptr, nullptr);
        box.setText(u"<img src=\"%1\"><img src=\"%2\"><br><a href=\"%2\">link</a>"_s.arg(
            file, QUrl::fromLocalFile(file).toString()));
        Gestures::show(&box);
        auto *browser = part<QTextBrowser>(&box, "textBrowser");
        const QImage image = Picture::of(browser);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                QVERIFY(image.pixelColor(x, y) != QColor(Qt::red));
        }
        const QString body = browser->toHtml();
        QTest::keyClick(browser, Qt::Key_Tab);
        QTest::keyClick(browser, Qt::Key_Return);
        QCOMPARE(browser->toHtml(), body);
        QVERIFY(browser->source().isEmpty());
    }

    void isAnnounced()
    {
        Box box(u"WARNING"_s, u"<Title>"_s, false, nullptr, nullptr);
        box.setText(u"<b>Body</b>"_s);
        QAccessibleInterface *dialog = QAccessible::queryAccessibleInterface(&box);
        QCOMPARE(dialog->role(), QAccessible::Dialog);
        QCOMPARE(dialog->text(QAccessible::Name), u"WARNING: <Title>"_s);
        QCOMPARE(dialog->text(QAccessible::Description), u"Body"_s);
    }

#ifdef __GLIBC__
    void leavesNoMemoryBehind()
    {
        QWidget parent;
        QString edited = u"name"_s;
        const QString a = u"a"_s;
        const QList<std::function<Code()>> functions{
            [&] { return VelmoInfoMessage(a, a, &parent, nullptr); },
            [&] { return VelmoWarningMessage(a, a, 300, &parent, nullptr); },
            [&] { return VelmoQuestionMessage(a, a, nullptr, nullptr); },
            [&] { return VelmoEditMessage(a, a, &edited, &parent, nullptr); },
            [&] { return VelmoThreeOptionMessage(a, a, a, a, &parent, nullptr); },
            [&] { return VelmoCustomMessage(a, a, a, a, a, true, &parent, nullptr); },
            [&] { return VelmoCustomThreeOptionMessage(a, a, a, a, a, false, 1, &parent, nullptr); },
        };
        const auto heapAfter = [&functions](int boxes) {
            for (int i = 0; i < boxes; ++i) {
                QTimer::singleShot(0, qApp, [] { qobject_cast<Box *>(QApplication::activeModalWidget())->fnAccept(); });
                functions[i % functions.size()]();
            }
            const struct mallinfo2 heap = mallinfo2();
            return qint64(heap.uordblks + heap.hblkhd);
        };
        const qint64 before = heapAfter(70);
        const qint64 growth = heapAfter(1000) - before;
        QVERIFY2(growth < 64 * 1024, qPrintable(QString::number(growth)));
    }
#endif
};

VELMO_TEST_MAIN(MessageBoxTest)
#include "MessageBoxTest.moc"
