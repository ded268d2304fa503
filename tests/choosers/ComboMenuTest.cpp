#include "support/Assistive.h"
#include "support/Gestures.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "choosers/oVIXCombo.h"

#include <QElapsedTimer>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// A combo in a window, with what it tells.
struct Shown : QWidget
{
    QPointer<oVIXCombo> combo = new oVIXCombo(this);
    Told told{combo.data()};

    Shown()
    {
        resize(300, 200);
        combo->setGeometry(10, 10, 200, 20);
        combo->setText(u"Motion"_s);
        combo->addItems({u"walk"_s, u"run"_s, u"stand"_s}, {});
        Gestures::show(this);
    }
    ~Shown() override { delete combo; }

    /// Does this while the menu is open, then closes the menu if it still is.
    void whileOpen(const std::function<void(QMenu *)> &act)
    {
        connect(combo, &oVIXCombo::menuOpened, this, [this, act] {
            QTimer::singleShot(0, this, [act] {
                const QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                act(menu);
                if (menu)
                    menu->close();
            });
        });
    }
    QWidget *part(const char *name) const { return combo->findChild<QWidget *>(QLatin1String(name)); }
};

void choose(QMenu *menu, int row)
{
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().at(row)).center());
}

} // namespace

using Act = std::function<void(Shown &)>;
Q_DECLARE_METATYPE(Act)

class ComboMenuTest : public TestCase
{
    Q_OBJECT

private slots:
    void tellsWhatIsChosen()
    {
        Shown shown;
        shown.combo->setItemEnabled(1, false);
        shown.combo->addItem(u"a & <i>b</i>\tc"_s, QString());
        QStringList texts;
        shown.whileOpen([&](QMenu *menu) {
            for (const QAction *action : menu->actions())
                texts << action->text();
            QCOMPARE(menu->pos(), shown.part("comboLabel")->mapToGlobal(QPoint()));
            QCOMPARE(menu->width(), 200 - shown.part("comboLabel")->x() - 12);
            QAccessibleInterface *accessible = Assistive::of(shown.combo);
            QVERIFY(accessible->state().expanded && accessible->childCount() == 1);
            QVERIFY(accessible->child(0) == Assistive::of(menu) && accessible->indexOfChild(Assistive::of(menu)) == 0);
            choose(menu, 1);
        });
        Gestures::click(shown.part("textLabel"));
        QCOMPARE(texts, QStringList({u"walk"_s, u"stand"_s, u"a && <i>b</i> c"_s}));
        QCOMPARE(shown.told.taken(), u"menuOpened, hovered 2, menuClosed, currentIndexChanged 2"_s);
        QCOMPARE(shown.combo->getCurrentComboMeta(), u"stand"_s);
    }

    void isChosenFromByAssistiveTools()
    {
        Shown shown;
        shown.whileOpen([](QMenu *menu) {
            Assistive::of(menu)->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            QVERIFY(!menu->isVisible());
        });
        QVERIFY(Assistive::act(shown.combo));
        QCOMPARE(shown.told.taken(), u"menuOpened, menuClosed, currentIndexChanged 1"_s);
        QVERIFY(!Assistive::of(shown.combo)->state().expanded);
    }

    void opensOnlyWhereItShould_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QByteArray>("part");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("told");
        const auto row = [](const char *state, const char *part, int key, const char *told) {
            QTest::addRow("%s, %s %d", state, part, key)
                << QString::fromLatin1(state) << QByteArray(part) << key << QString::fromLatin1(told);
        };
        row("normal", "comboLabel", 0, "menuOpened, menuClosed");
        row("normal", "openButton", 0, "menuOpened, menuClosed");
        for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Down})
            row("normal", "", key, "menuOpened, menuClosed");
        row("normal", "", Qt::Key_Up, "");
        row("override", "textLabel", 0, "");
        row("override", "comboLabel", 0, "");
        row("override", "openButton", 0, "menuOpened, menuClosed");
        row("empty", "comboLabel", 0, "");
        row("empty", "openButton", 0, "resetCombo");
        row("empty", "", Qt::Key_Down, "");
        row("no item enabled", "comboLabel", 0, "menuOpened, menuClosed");
        row("disabled", "openButton", 0, "");
    }
    void opensOnlyWhereItShould()
    {
        QFETCH(QString, state);
        QFETCH(QByteArray, part);
        QFETCH(int, key);
        Shown shown;
        shown.whileOpen([](QMenu *menu) { QVERIFY(menu); });
        if (state == u"override")
            shown.combo->setComboText(u"mixed"_s, QString());
        else if (state == u"empty")
            shown.combo->clear();
        for (int i = 0; i < shown.combo->count(); ++i)
            shown.combo->setItemEnabled(i, state != u"no item enabled");
        shown.combo->setEnabled(state != u"disabled");
        if (key) {
            Gestures::focus(shown.combo);
            QTest::keyClick(shown.combo, Qt::Key(key)); // not yet the application's wish
            shown.combo->setFocusPolicy(Qt::StrongFocus);
            Gestures::focus(shown.combo);
            QTest::keyClick(shown.combo, Qt::Key(key));
        } else {
            Gestures::click(shown.part(part));
        }
        QTEST(shown.told.taken(), "told");
    }

    void survivesWhatHappensWhileOpen_data()
    {
        QTest::addColumn<Act>("arm");
        QTest::addColumn<QString>("told");
        const auto row = [](const char *name, const char *told, const Act &arm) {
            QTest::newRow(name) << arm << QString::fromLatin1(told);
        };
        /// Then chooses the last item, if the menu is still there.
        const auto meanwhile = [](const Act &act) {
            return [act](Shown &shown) {
                shown.whileOpen([&shown, act](QMenu *menu) {
                    const QPointer<QMenu> open = menu;
                    act(shown);
                    if (open)
                        choose(open, 2);
                });
            };
        };
        row("cleared", "menuOpened, menuClosed", meanwhile([](Shown &shown) { shown.combo->clear(); }));
        row("item removed", "menuOpened, menuClosed", meanwhile([](Shown &shown) { shown.combo->removeItem(0); }));
        row("opened again", "menuOpened, hovered 2, menuClosed, currentIndexChanged 2",
            meanwhile([](Shown &shown) { QMetaObject::invokeMethod(shown.combo, "showMenu"); }));
        row("menu deleted", "menuOpened, menuClosed",
            meanwhile([](Shown &shown) { delete shown.combo->findChild<QMenu *>(); }));
        row("combo deleted", "menuOpened", meanwhile([](Shown &shown) { delete shown.combo; }));
    }
    void survivesWhatHappensWhileOpen()
    {
        QFETCH(Act, arm);
        Shown shown;
        arm(shown);
        Gestures::click(shown.part("comboLabel"));
        QTEST(shown.told.taken(), "told");
    }

    void sizesItselfWithoutRoom()
    {
        Shown shown;
        shown.combo->addItem(QString(5'000'000, u'x'), QString());
        shown.combo->resize(12, 20);
        int width = 0;
        QElapsedTimer timer;
        timer.start();
        shown.whileOpen([&](QMenu *menu) { width = menu->width(); });
        QMetaObject::invokeMethod(shown.combo, "showMenu");
        QVERIFY(timer.elapsed() < 1000);
        QVERIFY(width > 100 && width <= shown.screen()->size().width());
    }
};

VELMO_TEST_MAIN(ComboMenuTest)
#include "ComboMenuTest.moc"
