#include "support/Assistive.h"
#include "support/Events.h"
#include "support/Gestures.h"
#include "support/OwnSettings.h"
#include "support/TestCase.h"

#include "OvixSvgButton.h"
#include "QClickableLabel.h"
#include "QMultiCompleterLineEdit.h"
#include "VelmoFeedbackConsentDialog.h"
#include "VelmoMessageBox.h"
#include "gallery/GalleryPages.h"
#include "gallery/GalleryWindow.h"
#include "oVIXDock.h"
#include "oVIXDockBar.h"
#include "oVIXDragTag.h"
#include "oVIXPieChartWidget.h"
#include "scenes/ShippedProjects.h"
#include "start/StartScreen.h"
#include "window/WorkstationWindow.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QDialog>
#include <QDirIterator>
#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// What a class of widgets does with a click, and so what assistive tools have to be able to do.
enum class Answer {
    None,
    Press,
    /// Sets a value.
    Value,
    Text,
    /// Every part of it is pressed by itself.
    Parts,
    /// Only drags, which move or resize windows: that is the window manager's with the keyboard.
    Drag
};

const QHash<QByteArray, Answer> &answers()
{
    static const QHash<QByteArray, Answer> answers{
        {"LinkLabel", Answer::Press},          {"OvixMovableLabel", Answer::Value},
        {"OvixSvgButton", Answer::Press},      {"QAbstractButton", Answer::Press},
        {"QAbstractItemView", Answer::Parts},  {"QAbstractSpinBox", Answer::Value},
        {"QClickableLabel", Answer::Press},    {"QClickableWidget", Answer::Press},
        {"QComboBox", Answer::Press},          {"QLineEdit", Answer::Text},
        {"QMenuBar", Answer::Parts},           {"QTabBar", Answer::Parts},
        {"QTextEdit", Answer::Text},           {"SceneView", Answer::Press},
        {"oVIXButton", Answer::Press},         {"oVIXCombo", Answer::Press},
        {"oVIXDialogTitle", Answer::Drag},     {"oVIXDockBar", Answer::Drag},
        {"oVIXDragTag", Answer::Press},        {"oVIXGrip", Answer::Drag},
        {"oVIXPieChartWidget", Answer::Parts}, {"oVIXProgressBar", Answer::Value},
        {"oVIXSliderBar", Answer::Value},      {"oVIXSliderWidget", Answer::Value},
        {"oVIXTagListWidget", Answer::Parts},  {"oVIXTagListWidgetItem", Answer::Press},
    };
    return answers;
}

Answer answerOf(const QWidget *widget)
{
    // What leaves clicks to its parent is only read.
    if (widget->testAttribute(Qt::WA_TransparentForMouseEvents))
        return Answer::None;
    if (const auto *label = qobject_cast<const QClickableLabel *>(widget); label && label->ignoresSingleClick())
        return Answer::None;
    if (const auto *icon = qobject_cast<const OvixSvgButton *>(widget); icon && icon->ignoresSingleClick())
        return Answer::None;
    for (const QMetaObject *type = widget->metaObject(); type; type = type->superClass()) {
        if (const auto known = answers().constFind(type->className()); known != answers().constEnd())
            return *known;
    }
    return Answer::None;
}

bool canBePressed(QAccessibleInterface *accessible)
{
    QAccessibleActionInterface *actions = accessible->actionInterface();
    const QStringList names = actions ? actions->actionNames() : QStringList();
    return names.contains(QAccessibleActionInterface::pressAction())
        || names.contains(QAccessibleActionInterface::toggleAction())
        || names.contains(QAccessibleActionInterface::showMenuAction());
}

/// The children that are there to be used.
QList<QAccessibleInterface *> partsOf(QAccessibleInterface *accessible)
{
    QList<QAccessibleInterface *> parts;
    for (int i = 0; i < accessible->childCount(); ++i) {
        QAccessibleInterface *part = accessible->child(i);
        if (!part || (!part->state().invisible && !part->state().disabled && part->role() != QAccessible::Separator))
            parts << part;
    }
    return parts;
}

bool isNamed(const QAccessibleInterface *accessible)
{
    return !accessible->text(QAccessible::Name).trimmed().isEmpty();
}

/// What assistive tools lack of @p accessible; empty when it is nothing.
QString faultOf(QAccessibleInterface *accessible, Answer answer)
{
    const QAccessible::Role role = accessible->role();
    if (role == QAccessible::NoRole || role == QAccessible::Client)
        return u"has no role"_s;
    if (!isNamed(accessible))
        return u"has no name"_s;
    switch (answer) {
    case Answer::Press:
        return canBePressed(accessible) ? QString() : u"cannot be pressed"_s;
    case Answer::Value: {
        QAccessibleValueInterface *value = accessible->valueInterface();
        return value && value->currentValue().isValid() ? QString() : u"has no value"_s;
    }
    case Answer::Text:
        return accessible->textInterface() ? QString() : u"has no text"_s;
    case Answer::Parts:
        for (QAccessibleInterface *part : partsOf(accessible)) {
            if (!part)
                return u"has a part that is none"_s;
            const auto *widget = qobject_cast<QWidget *>(part->object());
            if (widget && answerOf(widget) != Answer::None)
                continue; // looked at by itself
            if (part->role() != QAccessible::Client && (!isNamed(part) || !canBePressed(part)))
                return u"has a part without a name or a press: "_s + part->text(QAccessible::Name);
        }
        return {};
    case Answer::None:
    case Answer::Drag:
        break;
    }
    return {};
}

void collect(QAccessibleInterface *accessible, QSet<QObject *> *reached)
{
    if (!accessible)
        return;
    if (accessible->object())
        reached->insert(accessible->object());
    for (int i = 0; i < accessible->childCount(); ++i)
        collect(accessible->child(i), reached);
}

/// Whether something round @p widget does all that it does, and so leaves it out.
bool isPartOfOneControl(const QWidget *widget, const QSet<QObject *> &reached)
{
    QWidget *around = widget->parentWidget();
    while (around && !reached.contains(around))
        around = around->parentWidget();
    const Answer answer = around ? answerOf(around) : Answer::None;
    return answer == Answer::Press || answer == Answer::Value || answer == Answer::Text;
}

QString describe(const QWidget *widget, const QString &fault)
{
    return u"%1 \"%2\" in %3: %4"_s.arg(QString::fromLatin1(widget->metaObject()->className()), widget->objectName(),
                                        QString::fromLatin1(widget->parent()->metaObject()->className()), fault);
}

/// The signals that tell of a press, by class. Others open a menu or follow a link.
const QHash<QByteArray, QList<const char *>> &tellingSignals()
{
    static const QHash<QByteArray, QList<const char *>> tell{
        {"OvixSvgButton", {SIGNAL(clicked())}},   {"QAbstractButton", {SIGNAL(clicked(bool)), SIGNAL(toggled(bool))}},
        {"QClickableLabel", {SIGNAL(clicked())}}, {"QClickableWidget", {SIGNAL(clicked())}},
        {"oVIXButton", {SIGNAL(clicked())}},      {"SceneView", {SIGNAL(moverPicked(QString))}},
        {"oVIXDragTag", {SIGNAL(doubleClick())}},
    };
    return tell;
}

/// Whether a press by assistive tools is told by the widget itself. Nobody else hears of it: what windows do with their
/// buttons is not asked here. True for what tells in other ways.
bool isPressHeard(QWidget *widget)
{
    QList<const char *> tell;
    for (const QMetaObject *type = widget->metaObject(); type && tell.isEmpty(); type = type->superClass())
        tell = tellingSignals().value(type->className());
    const auto *tag = qobject_cast<const oVIXDragTag *>(widget);
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    if (tell.isEmpty() || (tag && tag->isAdd()) || (button && button->isCheckable() && button->isChecked()))
        return true;
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (const char *signal : std::as_const(tell)) {
        QObject::disconnect(widget, signal, nullptr, nullptr);
        spies.push_back(std::make_unique<QSignalSpy>(widget, signal));
    }
    const QStringList names = Assistive::of(widget)->actionInterface()->actionNames();
    Assistive::act(widget,
                   names.contains(QAccessibleActionInterface::pressAction())
                       ? QAccessibleActionInterface::pressAction()
                       : QAccessibleActionInterface::toggleAction());
    return QTest::qWaitFor(
        [&spies] { return std::any_of(spies.begin(), spies.end(), [](const auto &spy) { return !spy->isEmpty(); }); });
}

const oVIXPieChartWidget *pieAround(const QWidget *widget)
{
    while (widget && !qobject_cast<const oVIXPieChartWidget *>(widget))
        widget = widget->parentWidget();
    return static_cast<const oVIXPieChartWidget *>(widget);
}

/// Whether the widget is a share that no other slice can make up for.
bool isOnlyShare(const QWidget *widget)
{
    const oVIXPieChartWidget *pie = pieAround(widget);
    if (!pie)
        return false;
    int free = 0;
    for (int row = 0; row < pie->model()->rowCount(); ++row)
        free += pie->model()->index(row, 0).data(Qt::UserRole + 1).toBool() ? 0 : 1;
    return free < 2;
}

/// Whether a value that it does not have can be set and read back. Three are told at least: a frame that is picked need
/// not be there yet, and a bar of a range moves the handle that is nearer. A share becomes what the other slices leave.
bool takesValues(QWidget *widget)
{
    QAccessibleInterface *accessible = Assistive::of(widget);
    QAccessibleValueInterface *value = accessible->valueInterface();
    const double least = value->minimumValue().toDouble();
    const double most = value->maximumValue().toDouble();
    if (accessible->state().readOnly || most <= least || isOnlyShare(widget))
        return true; // shows what is
    std::unique_ptr<QSignalSpy> told;
    if (widget->inherits("OvixMovableLabel"))
        told = std::make_unique<QSignalSpy>(widget, SIGNAL(editingFinished()));
    else if (widget->inherits("oVIXProgressBar"))
        told = std::make_unique<QSignalSpy>(widget, SIGNAL(valuePicked()));
    else if (widget->inherits("oVIXSliderBar"))
        told = std::make_unique<QSignalSpy>(widget, SIGNAL(valueChanged(double)));
    const double before = value->currentValue().toDouble();
    const double middle = (least + most) / 2;
    for (const double other : {least, most, middle, std::round(middle)}) {
        if (std::abs(other - before) < 0.01)
            continue;
        value->setCurrentValue(other);
        const double now = value->currentValue().toDouble();
        const bool isMoved = pieAround(widget) && std::abs(now - before) > 0.01;
        if (std::abs(now - other) < 0.01 || isMoved || (told && !told->isEmpty()))
            return true;
    }
    return false;
}

/// What is wrong with everything that answers clicks in the window. Its buttons tell nobody of presses afterwards.
QStringList faultsIn(QWidget *window)
{
    QSet<QObject *> reached;
    collect(Assistive::of(window), &reached);
    QStringList faults;
    QList<QPointer<QWidget>> looked;
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const Answer answer = answerOf(widget);
        if (answer == Answer::None || answer == Answer::Drag || widget->window() != window || !widget->isVisible()
            || !widget->isEnabled())
            continue;
        if (!reached.contains(widget) && isPartOfOneControl(widget, reached))
            continue;
        const QString fault =
            reached.contains(widget) ? faultOf(Assistive::of(widget), answer) : u"cannot be reached"_s;
        if (!fault.isEmpty())
            faults << describe(widget, fault);
        else if (reached.contains(widget))
            looked << widget;
    }
    for (const QPointer<QWidget> &widget : std::as_const(looked)) {
        if (widget && answerOf(widget) == Answer::Value && !takesValues(widget))
            faults << describe(widget, u"does not take a value"_s);
    }
    for (const QPointer<QWidget> &widget : std::as_const(looked)) {
        if (widget && widget->isEnabled() && answerOf(widget) == Answer::Press && !isPressHeard(widget))
            faults << describe(widget, u"tells nobody of a press"_s);
    }
    return faults;
}

/// The sheet of the consent dialog's options has one brace too many.
void ignoreSheetOfOptions(int dialogs)
{
    for (int option = 0; option < 3 * dialogs; ++option)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Could not parse stylesheet of object QRadioButton"_s));
}

} // namespace

class EveryWidgetTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { keepSettingsIn(m_settings.path()); }

    /// So that no class that takes clicks is overlooked below.
    void everyClassThatTakesClicksIsKnown()
    {
        static const QRegularExpression declared(u"\\nclass (?:VELMO_GUI_EXPORT )?(\\w+)[^;{]*\\{(.*?)\\n\\};"_s,
                                                 QRegularExpression::DotMatchesEverythingOption);
        static const QRegularExpression takesClicks(u"\\bmouse(Press|Release|DoubleClick)Event\\(|\\bclicked\\("_s);
        int found = 0;
        for (const QString &folder : {u"" VELMO_SOURCES ""_s, u"" VELMO_APPLICATION ""_s}) {
            for (QDirIterator headers(folder, {u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
                 headers.hasNext();) {
                QFile header(headers.next());
                QVERIFY(header.open(QIODevice::ReadOnly));
                for (auto types = declared.globalMatch(QString::fromUtf8(header.readAll())); types.hasNext();) {
                    const QRegularExpressionMatch type = types.next();
                    if (!takesClicks.match(type.captured(2)).hasMatch())
                        continue;
                    ++found;
                    QVERIFY2(answers().contains(type.captured(1).toLatin1()), qPrintable(type.captured(1)));
                }
            }
        }
        QVERIFY(found > 10);
    }

    void isUsedByAssistiveToolsInTheGallery_data()
    {
        QTest::addColumn<int>("page");
        const QList<GalleryPages::Page> pages = GalleryPages::all();
        for (int page = 0; page < int(pages.size()); ++page)
            QTest::newRow(qPrintable(pages[page].id)) << page;
    }
    void isUsedByAssistiveToolsInTheGallery()
    {
        QFETCH(int, page);
        if (GalleryPages::all()[page].id == "consent"_L1)
            ignoreSheetOfOptions(3);
        const std::unique_ptr<QWidget> widget(GalleryPages::all()[page].create());
        Gestures::show(widget.get());
        QVERIFY(Events::untilIdle());
        const QStringList faults = faultsIn(widget.get());
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    /// The pointer that the header waits for does not come from such tools.
    void isReachedInAHeaderAtRest()
    {
        QMainWindow window;
        auto *panel = new oVIXDock(&window, u"panel"_s, false, true, false, &window);
        panel->setTitle(u"Library"_s, u"Kinds"_s, u"Inter"_s, 11);
        panel->setSearchEnabled(true);
        window.addDockWidget(Qt::LeftDockWidgetArea, panel);
        Gestures::show(&window);
        QCursor::setPos(window.geometry().bottomRight() + QPoint(50, 50));
        panel->setHideSearchUntilHover(true);
        QWidget *header = panel->getTitleWidget();
        QCOMPARE(Assistive::of(header)->text(QAccessible::Name), u"Library: Kinds"_s);
        QWidget *search = panel->getTitleWidget()->getSearchLabel();
        QVERIFY(!search->isVisible());
        QVERIFY(Assistive::act(header, u"Search"_s));
        QVERIFY(search->isVisible());
        QVERIFY(Assistive::act(header, u"Detach or dock"_s));
        QTRY_VERIFY(panel->isFloating());
        QVERIFY(Assistive::act(header, u"Close"_s));
        QTRY_VERIFY(!panel->isVisible());
        panel->showDetachCloseOptions(false);
        QVERIFY(!Assistive::act(header, u"Close"_s));
    }

    void isUsedByAssistiveToolsInTheWindows_data()
    {
        QTest::addColumn<QString>("shown");
        for (const char *shown : {"start screen", "tour", "consent", "about", "welcome", "scene", "scene facts",
                                  "question", "edit", "gallery"})
            QTest::newRow(shown) << QString::fromLatin1(shown);
    }
    void isUsedByAssistiveToolsInTheWindows()
    {
        QFETCH(QString, shown);
        WorkstationWindow window(ShippedProjects::folder());
        Gestures::show(&window);
        QTRY_VERIFY(!window.startScreen()->isReading());
        if (shown.startsWith("scene"_L1)) {
            window.startScreen()->openSelectedScene();
            QTRY_VERIFY(window.showsScene());
        }
        GalleryWindow gallery;
        VelmoMessageWidget box(u"QUESTION"_s, u"Bake"_s, false, &window, nullptr);
        QWidget *looked = &window;
        if (shown == "tour"_L1) {
            window.showTour();
        } else if (shown == "consent"_L1) {
            ignoreSheetOfOptions(1);
            window.showFeedbackConsent();
        } else if (shown == "about"_L1) {
            window.showAbout();
        } else if (shown == "welcome"_L1) {
            window.showWelcome();
        } else if (shown == "scene facts"_L1) {
            window.showSceneFacts();
        } else if (shown == "question"_L1) {
            box.setText(u"There is a bake already."_s);
            box.setOtherOption(u"Keep both"_s);
            box.setButtonMode(ThreeOptionButtons);
            box.open();
        } else if (shown == "edit"_L1) {
            box.setButtonMode(EditButtons);
            box.showEditable(true, nullptr);
            box.open();
        } else if (shown == "gallery"_L1) {
            Gestures::show(&gallery);
            looked = &gallery;
        }
        QVERIFY(Events::untilIdle());
        for (QDialog *dialog : window.findChildren<QDialog *>()) {
            if (dialog->isVisible())
                looked = dialog;
        }
        const QStringList faults = faultsIn(looked);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

private:
    QTemporaryDir m_settings;
};

VELMO_TEST_MAIN(EveryWidgetTest)
#include "EveryWidgetTest.moc"
