#include "SceneRows.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "foundation/QClickableLabel.h"

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QLayout>
#include <QSignalSpy>
#include <QTextDocumentFragment>
#include <QToolTip>

#include <algorithm>
#include <limits>

using namespace SceneRows;

namespace {

const auto restColours = u"background-color:rgb(39,39,39);\tcolor:rgb(156,156,156)"_s;
const auto hoverColours = u"background-color:rgba(255,255,255,38);\tcolor:rgb(255,255,255)"_s;
const auto accentColours = u"background-color:rgba(116, 211, 252,48);\tcolor:rgb(116, 211, 252)"_s;
const auto chosenBorder = u"border:1px solid; border-color:rgb(22, 129, 189);"_s;

const char *const textLabels[] = {"nameLabel",     "lastModifiedLabel",  "bakeLabel",   "actorsLabel",
                                  "vehiclesLabel", "timeFramerateLabel", "versionLabel"};

QString sheetWith(const QString &colours, const QString &border = QString())
{
    const QString text = colours.section(u"\tcolor:"_s, 1);
    return u"#backgroundWidget {\tmargin:2px;"_s + border + u"\tborder-radius:3px;\t"_s + colours
        + u";}#backgroundWidget:disabled {\tbackground-color:rgb(59,59,59);\tborder-color:rgb(39,39,39);}"_s
        + u"QLabel { \tcolor:"_s + text + u"; \tbackground-color:transparent;}"_s;
}

QString elided(const QLabel *label, const QString &text)
{
    const int room = label->width() - std::max(label->indent(), 0);
    return label->fontMetrics().elidedText(text, Qt::ElideRight, room);
}

QString toolTipOver(QWidget *widget)
{
    const QPoint point = widget->rect().center();
    QHelpEvent help(QEvent::ToolTip, point, widget->mapToGlobal(point));
    QApplication::sendEvent(widget, &help);
    const QString text = QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    QToolTip::hideText();
    return text;
}

} // namespace

class VelmoSceneItemTest : public TestCase
{
    Q_OBJECT

private slots:
    void isBuiltAsDesigned();
    void hasItsColumns_data();
    void hasItsColumns();
    void stylesItsStates_data();
    void stylesItsStates();
    void looksLikeItsState_data();
    void looksLikeItsState();
    void showsWhatItIsGiven();
    void showsAWarningWhileThereIsOne();
    void elidesToTheWidthThatThereIs_data();
    void elidesToTheWidthThatThereIs();
    void keepsTextsInTheirColumns();
    void showsNamesAsTyped();
    void togglesOnAClick();
    void answersDoubleClicks_data();
    void answersDoubleClicks();
    void takesWidths();
    void showsEndlessTextsAsFastAsLongOnes();
    void speaksToAssistiveTools();
};

void VelmoSceneItemTest::isBuiltAsDesigned()
{
    const VelmoSceneItem row(nullptr);
    QCOMPARE(row.getItem(), nullptr);
    QCOMPARE(row.objectName(), u"VelmoSceneItem"_s);
    QCOMPARE(row.size(), QSize(707, 25));
    QCOMPARE(row.minimumSize(), QSize(0, 25));
    QCOMPARE(row.maximumSize(), QSize(QWIDGETSIZE_MAX, 25));
    QCOMPARE(row.styleSheet(),
             u"QLabel {\n\tbackground-color:transparent;\n}\n\n"
             "QLineEdit {\n\tbackground-color:transparent;\n\tcolor:rgb(10,10,10);\n}"_s);
    const auto *outer = part<QLayout>(&row, "horizontalLayout_2");
    QCOMPARE(outer->itemAt(0)->widget()->objectName(), u"backgroundWidget"_s);
    QCOMPARE(outer->contentsMargins(), QMargins());
    QCOMPARE(part<QLayout>(&row, "horizontalLayout")->contentsMargins(), QMargins(6, 0, 0, 0));
    QCOMPARE(part<QLayout>(&row, "horizontalLayout")->spacing(), 0);
    QVERIFY(!part<QLineEdit>(&row, "nameEdit")->hasFrame());

    QStringList methods;
    for (int i = row.metaObject()->methodOffset(); i < row.metaObject()->methodCount(); ++i)
        methods << QString::fromLatin1(row.metaObject()->method(i).methodSignature());
    QCOMPARE(methods.join(u' '),
             u"addChanged() renameRequested(QString,QString) addTriggered() renameTriggered() "
             "doubleClickNameTriggered() doubleClickOtherTriggered() editionFinished()"_s);
}

void VelmoSceneItemTest::hasItsColumns_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QList<int>>("widths"); // least and largest
    QTest::addColumn<QString>("text");
    const QByteArray icon = "OvixSvgLabel";
    const QByteArray label = "QClickableLabel";
    const int any = QWIDGETSIZE_MAX;
    QTest::newRow("addButton") << 0 << icon << QList{10, 50} << QString();
    QTest::newRow("nameLabel") << 1 << label << QList<int>() << QString();
    QTest::newRow("nameEdit") << 2 << QByteArray("QLineEdit") << QList{0, any} << QString();
    QTest::newRow("statusLabel") << 3 << icon << QList{30, 30} << QString();
    QTest::newRow("lastModifiedLabel") << 4 << label << QList{160, 160} << u"LAST MODIFIED"_s;
    QTest::newRow("bakeLabel") << 5 << label << QList{65, 65} << u"BAKE"_s;
    QTest::newRow("actorsLabel") << 6 << label << QList{50, 50} << u"ACTORS"_s;
    QTest::newRow("vehiclesLabel") << 7 << label << QList{50, any} << u"VEHICLES"_s;
    QTest::newRow("timeFramerateLabel") << 8 << label << QList{80, 80} << u"TIME | FPS"_s;
    QTest::newRow("versionLabel") << 9 << label << QList{65, 65} << u"VERSION"_s;
}

void VelmoSceneItemTest::hasItsColumns()
{
    QFETCH(int, position);
    QFETCH(QByteArray, type);
    QFETCH(QList<int>, widths);
    const QByteArray name = QTest::currentDataTag();
    const VelmoSceneItem row(nullptr);
    const QWidget *column = part<QLayout>(&row, "horizontalLayout")->itemAt(position)->widget();
    QCOMPARE(column->objectName(), QLatin1StringView(name));
    QVERIFY(column->inherits(type));
    QVERIFY(widths.isEmpty() || widths == QList({column->minimumWidth(), column->maximumWidth()}));
    QCOMPARE(column->isHidden(), name == "nameEdit");
    const auto policy = column->sizePolicy().horizontalPolicy();
    QCOMPARE(policy == QSizePolicy::MinimumExpanding, name.startsWith("name"));
    if (const auto *label = qobject_cast<const QLabel *>(column)) {
        QTEST(label->text(), "text");
        const bool left = name == "nameLabel" || name == "lastModifiedLabel";
        QCOMPARE(label->alignment(), left ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
    }
}

void VelmoSceneItemTest::stylesItsStates_data()
{
    QTest::addColumn<bool>("selected");
    QTest::addColumn<bool>("chosen");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("rest") << false << false << false << sheetWith(restColours);
    QTest::newRow("hovered") << false << false << true << sheetWith(hoverColours);
    QTest::newRow("selected") << true << false << false << sheetWith(accentColours);
    QTest::newRow("selected and hovered") << true << false << true << sheetWith(accentColours);
    QTest::newRow("chosen") << false << true << false << sheetWith(accentColours, chosenBorder);
    QTest::newRow("all") << true << true << true << sheetWith(accentColours, chosenBorder);
}

void VelmoSceneItemTest::stylesItsStates()
{
    QFETCH(bool, selected);
    QFETCH(bool, chosen);
    QFETCH(bool, hovered);
    QFETCH(QString, sheet);
    ShownRow shown;
    QSignalSpy changed(shown.row, &VelmoSceneItem::addChanged);
    shown.row->setSelected(selected);
    shown.row->setAddEnabled(chosen);
    if (hovered)
        Gestures::hover(shown.nameLabel());
    const QWidget *background = part(shown.row, "backgroundWidget");
    QCOMPARE(background->styleSheet(), sheet);
    QCOMPARE(part<OvixSvgButton>(shown.row, "addButton")->firstFilename(),
             chosen ? u":/Windows/ToggleOnChecked"_s : u":/Windows/ToggleOff"_s);

    Gestures::hover(shown.other);
    shown.row->setSelected(false);
    shown.row->setAddEnabled(false);
    QCOMPARE(background->styleSheet(), sheetWith(restColours));
    QCOMPARE(changed.count(), 0);
}

void VelmoSceneItemTest::looksLikeItsState_data()
{
    QTest::addColumn<bool>("selected");
    QTest::addColumn<bool>("chosen");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QColor>("surface");
    QTest::addColumn<QColor>("edge");
    const QColor accent(116, 211, 252, 48);
    const QColor rest(39, 39, 39);
    const QColor disabled(59, 59, 59);
    QTest::newRow("rest") << false << false << true << rest << rest;
    QTest::newRow("selected") << true << false << true << accent << accent;
    QTest::newRow("chosen") << false << true << true << accent << QColor(22, 129, 189);
    QTest::newRow("disabled") << false << false << false << disabled << disabled;
    QTest::newRow("disabled and chosen") << false << true << false << disabled << rest;
}

void VelmoSceneItemTest::looksLikeItsState()
{
    QFETCH(bool, selected);
    QFETCH(bool, chosen);
    QFETCH(bool, enabled);
    QFETCH(QColor, surface);
    QFETCH(QColor, edge);
    VelmoSceneItem row(nullptr);
    row.setSelected(selected);
    row.setAddEnabled(chosen);
    row.setEnabled(enabled);
    Gestures::leave();
    Gestures::show(&row);

    const auto looks = [&](QPoint point, const QColor &wanted) {
        constexpr int rounding = 3; // of colours multiplied by their opacity
        const QColor found = Picture::colourAt(&row, point, row.devicePixelRatioF());
        return qAbs(found.red() - wanted.red()) <= rounding && qAbs(found.green() - wanted.green()) <= rounding
            && qAbs(found.blue() - wanted.blue()) <= rounding && qAbs(found.alpha() - wanted.alpha()) <= 1;
    };
    QVERIFY(looks(QPoint(0, 12), Qt::transparent));
    QVERIFY(looks(QPoint(2, 12), edge));
    QVERIFY(looks(QPoint(200, 12), surface));
}

void VelmoSceneItemTest::showsWhatItIsGiven()
{
    VelmoSceneItem row(nullptr);
    row.set(u"Plaza"_s, true, u"today"_s, u"Baked"_s, u"12"_s, u"3"_s, u"10s/25"_s, u"2.5"_s);
    const auto texts = [&] {
        QStringList list;
        for (const char *label : textLabels)
            list << part<QLabel>(&row, label)->text();
        return list.join(u'|');
    };
    QCOMPARE(texts(), u"Plaza|today|Baked|12|3|10s/25|2.5"_s);
    QCOMPARE(row.getName(), u"Plaza"_s);
    QCOMPARE(part(&row, "nameLabel")->toolTip(), u"Plaza"_s);
    row.set({}, false, {}, {}, {}, {}, {}, {});
    QCOMPARE(texts(), u"||||||"_s);
    QCOMPARE(part(&row, "nameLabel")->toolTip(), QString());
}

void VelmoSceneItemTest::showsAWarningWhileThereIsOne()
{
    VelmoSceneItem row(nullptr);
    auto *status = part<OvixSvgButton>(&row, "statusLabel");
    Gestures::leave();
    Gestures::show(&row);
    for (const bool warns : {true, false, true, false}) {
        row.set(u"Plaza"_s, warns, {}, {}, {}, {}, {}, {});
        QCOMPARE(status->firstFilename(), warns ? u":/Windows/Warning"_s : QString());
        QCOMPARE(status->toolTip(), warns ? u"Scene version warning tooltip."_s : QString());
        QVERIFY(Events::untilIdle());
        const QRect inside(status->mapTo(&row, QPoint(7, 6)), QSize(16, 13));
        const QImage icon = Picture::of(&row).copy(inside);
        QImage plain = icon;
        plain.fill(icon.pixelColor(0, 0));
        QCOMPARE(icon != plain, warns);
    }
}

void VelmoSceneItemTest::elidesToTheWidthThatThereIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("short") << u"Plaza"_s;
    QTest::newRow("long") << u"A scene with a name that goes on for longer than its column "_s.repeated(5);
    QTest::newRow("longer than anyone looks") << QString(3000, u'w');
    QTest::newRow("right to left") << QString(300, QChar(0x05d0));
    QTest::newRow("surrogates") << u"\U0001F3DF"_s.repeated(200);
    QTest::newRow("nothing") << QString();
}

void VelmoSceneItemTest::elidesToTheWidthThatThereIs()
{
    QFETCH(QString, name);
    ShownRow shown;
    const QLabel *label = shown.nameLabel();
    shown.row->setName(name);
    for (const int width : {900, 720, 1200, 1199, 600, 900}) {
        shown.setWidth(width);
        QCOMPARE(label->text(), elided(label, name));
    }
    QCOMPARE(label->toolTip(), name);
    QCOMPARE(shown.row->getName(), name);

    // A label that was hidden during the change catches up.
    shown.startRenaming();
    shown.setWidth(700);
    shown.row->finishEditing();
    QVERIFY(Events::untilIdle());
    QCOMPARE(label->text(), elided(label, name));
}

/// Whatever the texts, and whenever the font becomes known.
void VelmoSceneItemTest::keepsTextsInTheirColumns()
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

void VelmoSceneItemTest::showsNamesAsTyped()
{
    ShownRow shown;
    const auto name = u"<b>x</b> &amp; &y"_s;
    shown.row->set(name, false, name, name, {}, {}, {}, {});
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

void VelmoSceneItemTest::togglesOnAClick()
{
    ShownRow shown;
    QSignalSpy changed(shown.row, &VelmoSceneItem::addChanged);
    auto *toggle = part(shown.row, "addButton");
    for (const bool selected : {false, true}) {
        shown.row->setSelected(selected);
        shown.row->setEditingEnabled(selected);
        Gestures::click(toggle);
        QVERIFY(shown.row->isAddEnabled());
        Gestures::click(toggle);
        QVERIFY(!shown.row->isAddEnabled());
    }
    QCOMPARE(changed.count(), 4);

    Gestures::click(toggle, Qt::RightButton);
    shown.row->setEnabled(false);
    Gestures::click(toggle);
    QCOMPARE(changed.count(), 4);
}

void VelmoSceneItemTest::answersDoubleClicks_data()
{
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<QByteArray>("answer");
    for (const char *label : {"statusLabel", "lastModifiedLabel", "bakeLabel", "actorsLabel", "vehiclesLabel",
                              "timeFramerateLabel", "versionLabel"}) {
        const auto row = [&](const char *state, const char *answer) {
            QTest::addRow("%s, %s", label, state) << QByteArray(label) << QByteArray(state) << QByteArray(answer);
        };
        row("selected, toggle, editing", "toggles");
        row("toggle, editing", "");
        row("selected, editing", "");
    }
    for (const auto &[state, answer] : {std::pair{"selected, toggle, editing", "renames"},
                                        {"selected, editing", "renames"},
                                        {"selected, toggle", "toggles"},
                                        {"selected", ""},
                                        {"toggle, editing", ""},
                                        {"toggle", ""}})
        QTest::addRow("nameLabel, %s", state) << QByteArray("nameLabel") << QByteArray(state) << QByteArray(answer);
}

void VelmoSceneItemTest::answersDoubleClicks()
{
    QFETCH(QByteArray, label);
    QFETCH(QByteArray, state);
    QFETCH(QByteArray, answer);
    ShownRow shown;
    shown.row->setSelected(state.contains("selected"));
    shown.row->setAddVisible(state.contains("toggle"));
    shown.row->setEditingEnabled(state.contains("editing"));
    QVERIFY(Events::untilIdle());
    QSignalSpy changed(shown.row, &VelmoSceneItem::addChanged);

    Gestures::doubleClick(part(shown.row, label), Qt::RightButton);
    QVERIFY(changed.isEmpty() && shown.nameEdit()->isHidden());
    Gestures::doubleClick(part(shown.row, label));
    QCOMPARE(changed.count(), int(answer == "toggles"));
    QCOMPARE(shown.row->isAddEnabled(), answer == "toggles");
    QCOMPARE(shown.nameEdit()->isVisible(), answer == "renames");
    QCOMPARE(shown.nameLabel()->isHidden(), answer == "renames");
}

void VelmoSceneItemTest::takesWidths()
{
    VelmoSceneItem row(nullptr);
    constexpr int huge = std::numeric_limits<int>::max();
    row.setWidths(-1, 0, huge, -huge, huge, -1);
    row.setWidths(1, 2, 3, 4, 5, 6);
    int width = 0;
    for (const char *name :
         {"statusLabel", "lastModifiedLabel", "bakeLabel", "actorsLabel", "timeFramerateLabel", "versionLabel"}) {
        ++width;
        QVERIFY2(part(&row, name)->minimumWidth() == width && part(&row, name)->maximumWidth() == width, name);
    }
    QCOMPARE(part(&row, "vehiclesLabel")->maximumWidth(), QWIDGETSIZE_MAX);
}

/// A file can hold texts of any length.
void VelmoSceneItemTest::showsEndlessTextsAsFastAsLongOnes()
{
    const auto timeOf = [](qsizetype length) {
        const QString text(length, u'8');
        qint64 best = std::numeric_limits<qint64>::max();
        for (int i = 0; i < 3; ++i) {
            VelmoSceneItem row(nullptr);
            QElapsedTimer timer;
            timer.start();
            row.set(u"Plaza"_s, false, text, text, text, text, text, text);
            best = std::min(best, timer.nsecsElapsed());
        }
        return best;
    };
    QVERIFY(timeOf(5'000'000) < 50 * timeOf(10'000));
}

void VelmoSceneItemTest::speaksToAssistiveTools()
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

    VelmoSceneItem lone(nullptr);
    QAccessible::queryAccessibleInterface(&lone)->actionInterface()->doAction(press);
    actions->doAction(press);
    QCOMPARE(list.selectedItems(), QList{list.item(1)});
    row->setSelected(true);
    actions->doAction(toggle);
    QVERIFY(spoken->state().selected && spoken->state().checked);
    QCOMPARE(changed.count(), 1);
    QVERIFY(!QAccessible::queryAccessibleInterface(part(row, "addButton"))->text(QAccessible::Name).isEmpty());
    row->setName(u"Market"_s);
    QCOMPARE(spoken->text(QAccessible::Name), u"Market"_s);

    row->setAddVisible(false);
    QVERIFY(!spoken->state().checkable && !actions->actionNames().contains(toggle));
    actions->doAction(toggle);
    row->setAddVisible(true);
    row->setEnabled(false);
    list.clearSelection();
    QVERIFY(spoken->state().disabled && !spoken->state().selectable);
    actions->doAction(toggle);
    actions->doAction(press);
    QCOMPARE(changed.count(), 1);
    QVERIFY(list.selectedItems().isEmpty());
}

VELMO_TEST_MAIN(VelmoSceneItemTest)
#include "VelmoSceneItemTest.moc"
