#include "SceneRows.h"
#include "support/Assistive.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "foundation/QClickableLabel.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QToolTip>

#include <algorithm>
#include <limits>

using namespace SceneRows;

namespace {

const char *const textLabels[] = {"nameLabel",     "lastModifiedLabel",  "bakeLabel",   "actorsLabel",
                                  "vehiclesLabel", "timeFramerateLabel", "versionLabel"};

} // namespace

class VelmoSceneItemTest : public TestCase
{
    Q_OBJECT

private slots:
    void isBuiltAsDesigned()
    {
        const VelmoSceneItem row(nullptr);
        QCOMPARE(row.maximumSize(), QSize(QWIDGETSIZE_MAX, 25));
        QCOMPARE(row.styleSheet(),
                 u"QLabel {\n\tbackground-color:transparent;\n}\n\n"
                 "QLineEdit {\n\tbackground-color:transparent;\n\tcolor:rgb(10,10,10);\n}"_s);
        const auto *layout = part<QLayout>(&row, "horizontalLayout");
        QStringList columns = columnsOf(layout);
        columns.removeAt(1); // the name's own width depends on the font
        QCOMPARE(columns,
                 QStringList({u"addButton, 10-50"_s, u"nameEdit, 0-, expands, hidden"_s, u"statusLabel, 30-30"_s,
                              u"lastModifiedLabel, 160-160, LAST MODIFIED, left"_s, u"bakeLabel, 65-65, BAKE"_s,
                              u"actorsLabel, 50-50, ACTORS"_s, u"vehiclesLabel, 50-, VEHICLES"_s,
                              u"timeFramerateLabel, 80-80, TIME | FPS"_s, u"versionLabel, 65-65, VERSION"_s}));
    }

    void showsItsState_data()
    {
        QTest::addColumn<QByteArray>("state");
        QTest::addColumn<QString>("border");
        QTest::addColumn<QString>("colours");
        QTest::addColumn<QColor>("surface");
        QTest::addColumn<QColor>("edge");
        const auto resting = u"background-color:rgb(39,39,39);\tcolor:rgb(156,156,156)"_s;
        const auto hovered = u"background-color:rgba(255,255,255,38);\tcolor:rgb(255,255,255)"_s;
        const auto accented = u"background-color:rgba(116, 211, 252,48);\tcolor:rgb(116, 211, 252)"_s;
        const auto framed = u"border:1px solid; border-color:rgb(22, 129, 189);"_s;
        const QColor rest(39, 39, 39);
        const QColor hover(255, 255, 255, 38);
        const QColor accent(116, 211, 252, 48);
        const QColor frame(22, 129, 189);
        const QColor disabled(59, 59, 59);
        const auto row = [](const char *state, const QString &border, const QString &colours, QColor surface,
                            QColor edge) {
            QTest::newRow(state) << QByteArray(state) << border << colours << surface << edge;
        };
        row("rest", {}, resting, rest, rest);
        row("hovered", {}, hovered, hover, hover);
        row("selected, hovered", {}, accented, accent, accent);
        row("selected, chosen, hovered", framed, accented, accent, frame);
        row("disabled", {}, resting, disabled, disabled);
        row("disabled, chosen", framed, accented, disabled, rest);
    }

    void showsItsState()
    {
        QFETCH(QByteArray, state);
        QFETCH(QString, border);
        QFETCH(QString, colours);
        QFETCH(QColor, surface);
        QFETCH(QColor, edge);
        ShownRow shown;
        QSignalSpy changed(shown.row, &VelmoSceneItem::addChanged);
        shown.row->setSelected(state.contains("selected"));
        shown.row->setAddEnabled(state.contains("chosen"));
        shown.row->setEnabled(!state.contains("disabled"));
        if (state.contains("hovered"))
            Gestures::hover(shown.nameLabel());
        const QString sheet = u"#backgroundWidget {\tmargin:2px;%1\tborder-radius:3px;\t%2;}#backgroundWidget:disabled "
                              "{\tbackground-color:rgb(59,59,59);\tborder-color:rgb(39,39,39);}QLabel { \tcolor:%3; "
                              "\tbackground-color:transparent;}"_s;
        QCOMPARE(part(shown.row, "backgroundWidget")->styleSheet(),
                 sheet.arg(border, colours, colours.section(u"\tcolor:"_s, 1)));
        QCOMPARE(part<OvixSvgButton>(shown.row, "addButton")->firstFilename(),
                 state.contains("chosen") ? u":/Windows/ToggleOnChecked"_s : u":/Windows/ToggleOff"_s);

        const auto looks = [&](QPoint point, const QColor &wanted) {
            constexpr int rounding = 3; // of colours multiplied by their opacity
            const QColor found = Picture::colourAt(shown.row, point, shown.row->devicePixelRatioF());
            return qAbs(found.red() - wanted.red()) <= rounding && qAbs(found.green() - wanted.green()) <= rounding
                && qAbs(found.blue() - wanted.blue()) <= rounding && qAbs(found.alpha() - wanted.alpha()) <= 1;
        };
        QVERIFY(looks(QPoint(0, 12), Qt::transparent));
        QVERIFY(looks(QPoint(2, 12), edge));
        QVERIFY(looks(QPoint(200, 12), surface));

        Gestures::hover(shown.other);
        shown.row->setSelected(false);
        shown.row->setAddEnabled(false);
        QVERIFY(part(shown.row, "backgroundWidget")->styleSheet().contains(u"color:rgb(156,156,156)"_s));
        QCOMPARE(changed.count(), 0);
    }

    void showsWhatItIsGiven()
    {
        VelmoSceneItem row(nullptr);
        constexpr int huge = std::numeric_limits<int>::max();
        row.setWidths(-1, 0, huge, -huge, huge, -1);
        row.setWidths(30, 160, 65, 50, 80, 65);
        auto *status = part<OvixSvgButton>(&row, "statusLabel");
        Gestures::leave();
        Gestures::show(&row);
        for (const bool warns : {true, false, true}) {
            row.set(u"Plaza"_s, warns, u"today"_s, u"Baked"_s, u"12"_s, u"3"_s, u"10s/25"_s, {});
            QStringList texts;
            for (const char *label : textLabels)
                texts << part<QLabel>(&row, label)->text();
            QCOMPARE(texts.join(u'|'), u"Plaza|today|Baked|12|3|10s/25|"_s);
            QCOMPARE(status->firstFilename(), warns ? u":/Windows/Warning"_s : QString());
            QCOMPARE(status->toolTip(), warns ? u"Scene version warning tooltip."_s : QString());
            QVERIFY(Events::untilIdle());
            const QImage icon = Picture::of(&row).copy(QRect(status->mapTo(&row, QPoint(7, 6)), QSize(16, 13)));
            QImage plain = icon;
            plain.fill(icon.pixelColor(0, 0));
            QCOMPARE(icon != plain, warns);
        }
    }

    void elidesToTheWidthThatThereIs()
    {
        ShownRow shown;
        const QLabel *label = shown.nameLabel();
        for (const QString &name :
             {u"Plaza"_s, QString(3000, u'w'), QString(300, QChar(0x05d0)), u"\U0001F3DF"_s.repeated(200), QString()}) {
            shown.row->setName(name);
            const auto elided = [&] {
                const int room = label->width() - std::max(label->indent(), 0);
                return label->fontMetrics().elidedText(name, Qt::ElideRight, room);
            };
            for (const int width : {900, 1200, 1199, 600}) {
                shown.setWidth(width);
                QCOMPARE(label->text(), elided());
            }
            QCOMPARE(label->toolTip(), name);
            QCOMPARE(QAccessible::queryAccessibleInterface(shown.nameLabel())->text(QAccessible::Name), name);
            QCOMPARE(shown.row->getName(), name);

            // A label that was hidden during the change catches up.
            startRenaming(shown.row);
            shown.setWidth(700);
            shown.row->finishEditing();
            QVERIFY(Events::untilIdle());
            QCOMPARE(label->text(), elided());
        }
    }

    /// Whatever the texts, and whenever the font becomes known.
    void keepsTextsInTheirColumns()
    {
        QWidget window;
        window.setStyleSheet(u"QLabel { font-size: 15px; }"_s);
        auto *plain = new VelmoSceneItem(nullptr, &window);
        auto *full = new VelmoSceneItem(nullptr, &window);
        const QString endless(200, u'8');
        plain->set({}, false, {}, {}, {}, {}, {}, {});
        full->set(endless, true, endless, endless, endless, endless, endless, endless);
        const int toggleWidth = part(plain, "addButton")->sizeHint().width();
        Gestures::show(&window);
        QCOMPARE(part(plain, "addButton")->width(), toggleWidth); // nothing moves at the first paint
        for (const int size : {15, 19}) {
            window.setStyleSheet(u"QLabel { font-size: %1px; }"_s.arg(size));
            for (const char *name : textLabels) {
                const auto *label = part<QLabel>(full, name);
                QVERIFY2(label->text().endsWith(QChar(0x2026)), name);
                QVERIFY2(label->fontMetrics().horizontalAdvance(label->text()) <= label->width(), name);
                QVERIFY2(label->geometry() == part(plain, name)->geometry(), name);
            }
        }
    }

    void showsNamesAsTyped()
    {
        ShownRow shown;
        const auto name = u"<b>x</b> &amp; &y"_s;
        shown.row->setName(name);
        const QList<QClickableLabel *> labels = shown.row->findChildren<QClickableLabel *>();
        for (const QClickableLabel *label : labels)
            QCOMPARE(label->textFormat(), Qt::PlainText);
        QCOMPARE(shown.nameLabel()->text(), name);
        QCOMPARE(toolTipOver(shown.nameLabel()), name);
        shown.row->setName(u"two\nlines"_s);
        QCOMPARE(shown.nameLabel()->text(), u"two lines"_s);

        // Without a name the label leaves the tool tip to its row.
        shown.row->setName(QString());
        shown.row->setToolTip(u"why"_s);
        QCOMPARE(toolTipOver(shown.nameLabel()), u"why"_s);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void answersClicks_data()
    {
        QTest::addColumn<QByteArray>("nameAnswer");
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("selected, toggle, editing") << QByteArray("renames") << QByteArray("toggles");
        QTest::newRow("selected, toggle") << QByteArray("toggles") << QByteArray("toggles");
        QTest::newRow("selected, editing") << QByteArray("renames") << QByteArray();
        QTest::newRow("selected") << QByteArray() << QByteArray();
        QTest::newRow("toggle, editing") << QByteArray() << QByteArray();
    }
    void answersClicks()
    {
        const QByteArray state = QTest::currentDataTag();
        for (const QByteArray name : {"nameLabel", "statusLabel", "lastModifiedLabel", "bakeLabel", "actorsLabel",
                                      "vehiclesLabel", "timeFramerateLabel", "versionLabel"}) {
            QFETCH(QByteArray, nameAnswer);
            QFETCH(QByteArray, answer);
            if (name == "nameLabel")
                answer = nameAnswer;
            ShownRow shown;
            shown.row->setSelected(state.contains("selected"));
            shown.row->setAddVisible(state.contains("toggle"));
            shown.row->setEditingEnabled(state.contains("editing"));
            QVERIFY(Events::untilIdle());
            QSignalSpy changed(shown.row, &VelmoSceneItem::addChanged);

            Gestures::doubleClick(part(shown.row, name), Qt::RightButton);
            QVERIFY2(changed.isEmpty() && shown.nameEdit()->isHidden(), name);
            Gestures::doubleClick(part(shown.row, name));
            QVERIFY2(changed.count() == int(answer == "toggles"), name);
            QVERIFY2(shown.row->isAddEnabled() == (answer == "toggles"), name);
            QVERIFY2(shown.nameEdit()->isVisible() == (answer == "renames"), name);
            QVERIFY2(shown.nameLabel()->isHidden() == (answer == "renames"), name);

            // The toggle takes a single click of the left button, in a row that is enabled.
            for (const auto button : {Qt::RightButton, Qt::LeftButton, Qt::LeftButton}) {
                if (state.contains("toggle"))
                    Gestures::click(part(shown.row, "addButton"), button);
                if (button == Qt::LeftButton)
                    shown.row->setEnabled(false);
            }
            QCOMPARE(shown.row->isAddEnabled(), state.contains("toggle") != (answer == "toggles"));
        }
    }

    void speaksToAssistiveTools()
    {
        QListWidget list;
        list.addItems({u"other"_s, QString()});
        auto *row = new VelmoSceneItem(list.item(1), list.viewport());
        list.setItemWidget(list.item(1), row);
        row->setName(u"Plaza"_s);
        QSignalSpy changed(row, &VelmoSceneItem::addChanged);

        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(row);
        QAccessibleActionInterface *actions = spoken->actionInterface();
        const QString press = QAccessibleActionInterface::pressAction();
        const QString toggle = QAccessibleActionInterface::toggleAction();
        QCOMPARE(spoken->role(), QAccessible::ListItem);
        QCOMPARE(spoken->text(QAccessible::Name), u"Plaza"_s);
        QCOMPARE(list.item(1)->data(Qt::AccessibleTextRole).toString(), u"Plaza"_s);
        QVERIFY(actions->actionNames().contains(press) && actions->actionNames().contains(toggle));
        QVERIFY(spoken->state().selectable && spoken->state().checkable);
        QVERIFY(!spoken->state().selected && !spoken->state().checked);
        QAccessibleInterface *box = QAccessible::queryAccessibleInterface(part(row, "addButton"));
        QCOMPARE(box->role(), QAccessible::CheckBox);
        QCOMPARE(box->text(QAccessible::Name), u"Choose scene"_s);
        QVERIFY(box->state().checkable && !box->state().checked);

        VelmoSceneItem lone(nullptr);
        Assistive::act(&lone);
        Assistive::act(row);
        QCOMPARE(list.selectedItems(), QList{list.item(1)});
        row->setSelected(true);
        Assistive::act(row, toggle);
        QVERIFY(spoken->state().selected && spoken->state().checked && box->state().checked);
        QCOMPARE(list.item(1)->data(Qt::AccessibleDescriptionRole).toString(), u"Chosen"_s);
        Assistive::act(box->object());
        QVERIFY(!row->isAddEnabled() && !box->state().checked);
        QCOMPARE(list.item(1)->data(Qt::AccessibleDescriptionRole).toString(), QString());

        row->setAddVisible(false);
        QVERIFY(!spoken->state().checkable && !actions->actionNames().contains(toggle));
        Assistive::act(row, toggle);
        row->setAddVisible(true);
        row->setEnabled(false);
        list.clearSelection();
        QVERIFY(spoken->state().disabled && !spoken->state().selectable);
        Assistive::act(row, toggle);
        Assistive::act(row);
        QCOMPARE(changed.count(), 2);
        QVERIFY(list.selectedItems().isEmpty());
    }

    void asksForTheNewName_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QByteArray>("end");
        QTest::addColumn<bool>("asks");
        QTest::newRow("unchanged") << u"Plaza"_s << QByteArray("Return") << false;
        QTest::newRow("only the case") << u"PLAZA"_s << QByteArray("Return") << true;
        QTest::newRow("blank at the end") << u"Plaza "_s << QByteArray("Return") << true;
        QTest::newRow("nothing left") << QString() << QByteArray("Return") << true;
        QTest::newRow("focus lost") << u"Market"_s << QByteArray("focus") << true;
        QTest::newRow("focus lost, unchanged") << u"Plaza"_s << QByteArray("focus") << false;
        QTest::newRow("Escape") << u"Market"_s << QByteArray("Escape") << false;
        QTest::newRow("finishEditing") << u"Market"_s << QByteArray("finish") << true;
    }

    void asksForTheNewName()
    {
        QFETCH(QString, typed);
        QFETCH(QByteArray, end);
        QFETCH(bool, asks);
        ShownRow shown;
        QSignalSpy renamed(shown.row, &VelmoSceneItem::renameRequested);
        QLineEdit *edit = startRenaming(shown.row);
        QVERIFY(edit->isVisible());
        QTest::keyClick(edit, Qt::Key_Backspace);
        QTest::keyClicks(edit, typed);
        if (end == "focus")
            shown.other->setFocus();
        else if (end == "finish")
            shown.row->finishEditing();
        else
            QTest::keyClick(edit, end == "Return" ? Qt::Key_Return : Qt::Key_Escape);

        QTRY_VERIFY(edit->isHidden());
        QVERIFY(Events::untilIdle());
        QVERIFY(!edit->hasFocus() && shown.nameLabel()->isVisible());
        QCOMPARE(renamed.count(), int(asks));
        if (asks)
            QCOMPARE(renamed.takeFirst(), QVariantList({u"Plaza"_s, typed}));

        // The owner has not answered: nothing has changed.
        QCOMPARE(shown.row->getName(), u"Plaza"_s);
        QCOMPARE(shown.nameLabel()->text(), u"Plaza"_s);
        QCOMPARE(startRenaming(shown.row)->text(), u"Plaza"_s);
    }

    void asksOnceForEachEdit()
    {
        ShownRow shown;
        shown.row->setName(QString(40'000, u'n')); // longer than a line edit takes by itself
        QSignalSpy renamed(shown.row, &VelmoSceneItem::renameRequested);
        connect(shown.row, &VelmoSceneItem::renameRequested, shown.row, [&](const QString &, const QString &wanted) {
            QVERIFY(shown.nameEdit()->isHidden());
            shown.row->setName(wanted);
        });
        for (int i = 0; i < 3; ++i) {
            QLineEdit *edit = startRenaming(shown.row);
            QCOMPARE(edit->selectedText(), shown.row->getName());
            QVERIFY(edit->hasFocus());
            if (i > 0)
                QTest::keyClicks(edit, u"Market %1"_s.arg(i));
            QTest::keyClick(edit, Qt::Key_Return);
            QVERIFY(edit->isVisible()); // the end waits for its turn
            QVERIFY(Events::untilIdle());
            QVERIFY(edit->isHidden());
            QCOMPARE(renamed.count(), i);
        }
        shown.row->finishEditing();
        QCOMPARE(renamed.count(), 2);
        QCOMPARE(shown.nameLabel()->text(), u"Market 2"_s);
    }
};

VELMO_TEST_MAIN(VelmoSceneItemTest)
#include "VelmoSceneItemTest.moc"
