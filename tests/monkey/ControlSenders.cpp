#include "monkey/SenderTables.h"

#include "OvixSvgButton.h"
#include "QAnimatedLabel.h"
#include "QAnimatedWebp.h"
#include "QClickableLabel.h"
#include "QClickableWidget.h"
#include "oVIXButton.h"
#include "oVIXCombo.h"

#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Senders {
namespace {

/// Opens the menu, moves to an item and chooses it.
void chooseInMenu(oVIXCombo *combo)
{
    QObject::connect(combo, &oVIXCombo::menuOpened, combo, [] {
        QTimer::singleShot(0, qApp, [] {
            const QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            const QPoint item = menu ? menu->actionGeometry(menu->actions().constLast()).center() : QPoint();
            if (menu)
                QTest::mouseMove(menu, item);
            if (menu)
                QTest::mouseClick(menu, Qt::LeftButton, {}, item);
            if (menu)
                menu->close();
        });
    });
    Gestures::click(partOf(combo, u"comboLabel"_s));
}

QString writtenPicture()
{
    static const QTemporaryDir folder;
    const QString name = folder.filePath(u"picture.png"_s);
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.save(name);
    return name;
}

QPixmap sheet()
{
    QPixmap sheet(40, 10);
    sheet.fill(Qt::red);
    return sheet;
}

} // namespace
} // namespace Senders

QList<Senders::Sender> Senders::ofFoundationAndChoosers()
{
    const Act rightClick = click({}, Qt::RightButton);
    return {
        {"OvixSvgButton",
         [](QWidget *host) {
             return placed(new OvixSvgButton(host), {20, 20});
         },
         {{"clicked()", click()},
          {"clicked()", pressKey()},
          {"clicked()", pressByTools()},
          {"doubleClicked()", doubleClick()},
          {"rightClicked(QPoint)", rightClick}}},
        {"QAnimatedLabel",
         [](QWidget *host) {
             auto *label = placed(new QAnimatedLabel(host), {10, 10});
             label->setStacksAndSlices(sheet(), 1, 4, 4);
             label->setSpeed(100);
             return label;
         },
         {{"frameUpdated()", with<QAnimatedLabel>([](QAnimatedLabel *label) { label->play(1); })}}},
        {"QAnimatedWebp",
         [](QWidget *) {
             auto *player = new QAnimatedWebp;
             player->setFileName(writtenPicture());
             return player;
         },
         {{"frameChanged(int)", with<QAnimatedWebp>([](QAnimatedWebp *player) { player->start(); })}}},
        {"QClickableLabel",
         [](QWidget *host) {
             return placed(new QClickableLabel(host), {40, 20});
         },
         {{"clicked()", click()},
          {"clicked()", pressKey()},
          {"clicked()", pressByTools()},
          {"clicked()", with<QClickableLabel>([](QClickableLabel *label) { label->click(); })},
          {"doubleClicked()", doubleClick()},
          {"clickReleased()", click()}}},
        {"QClickableWidget",
         [](QWidget *host) {
             return placed(new QClickableWidget(host), {40, 20});
         },
         {{"clicked()", click()}, {"clicked()", pressKey()}, {"clicked()", pressByTools()}}},
        {"oVIXButton",
         [](QWidget *host) {
             return placed(new oVIXButton(u"Save"_s, host), {60, 20});
         },
         {{"clicked()", click()}, {"doubleClicked()", doubleClick()}, {"rightClicked(QPoint)", rightClick}}},
        {"oVIXCombo",
         [](QWidget *host) {
             auto *combo = placed(new oVIXCombo(host), {200, 20});
             combo->addItems({u"walk"_s, u"run"_s}, {});
             return combo;
         },
         {{"hovered(int)", with<oVIXCombo>(chooseInMenu)},
          {"currentIndexChanged(int)", with<oVIXCombo>(chooseInMenu)},
          {"dropped(QMimeData*,QObject*)", with<QWidget>(dropTag)},
          {"resetCombo()", with<oVIXCombo>([](oVIXCombo *combo) {
               combo->clear();
               Gestures::click(partOf(combo, u"openButton"_s));
           })},
          {"menuOpened()", with<oVIXCombo>(chooseInMenu)},
          {"menuClosed()", with<oVIXCombo>(chooseInMenu)}}},
    };
}
