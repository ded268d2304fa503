#include "gallery/ComboSamples.h"

#include "gallery/ChoosersPage.h"
#include "look/Palette.h"
#include "oVIXCombo.h"

#include <QLayout>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

constexpr int comboWidth = 184;
constexpr int hoveredRow = 2;

Sample onPlate(oVIXCombo *combo, const QString &caption)
{
    return {createPlate(combo, Palette::window, 6), caption};
}

QString tr(const char *text)
{
    return ChoosersPage::tr(text);
}

oVIXCombo *createCombo(const QString &caption)
{
    auto *combo = new oVIXCombo;
    combo->setText(caption);
    combo->setFixedWidth(comboWidth);
    return combo;
}

oVIXCombo *createMotions()
{
    oVIXCombo *combo = createCombo(tr("Motion"));
    combo->addItems({tr("Walk"), tr("Run"), tr("Stand & wait"), tr("Follow the nearest vehicle at a distance"),
                     tr("Ride a bicycle")},
                    {u"walk"_s, u"run"_s, u"wait"_s, u"follow"_s, u"ride"_s});
    combo->setItemEnabled(1, false);
    combo->setCurrentIndex(0);
    return combo;
}

/// A part of the page with the look and the items of the menu that the combo would open.
QMenu *createCopyOfMenu(oVIXCombo *combo, QWidget *parent)
{
    auto *copy = new QMenu(parent);
    const auto copyMenu = [combo, copy] {
        auto *menu = combo->findChild<QMenu *>();
        copy->setStyleSheet(menu->styleSheet());
        copy->setFixedWidth(menu->width());
        for (const QAction *action : menu->actions())
            copy->addAction(action->text());
        delete menu; // before it opens
    };
    const QMetaObject::Connection opened = QObject::connect(combo, &oVIXCombo::menuOpened, copy, copyMenu);
    QMetaObject::invokeMethod(combo, "showMenu");
    QObject::disconnect(opened);

    copy->setWindowFlags(Qt::Widget);
    copy->setAttribute(Qt::WA_TransparentForMouseEvents);
    copy->setActiveAction(copy->actions().at(hoveredRow));
    copy->ensurePolished();
    copy->setFixedHeight(copy->sizeHint().height());
    copy->show();
    return copy;
}

} // namespace

QList<Sample> ComboSamples::states()
{
    oVIXCombo *disabled = createMotions();
    disabled->setEnabled(false);
    oVIXCombo *overridden = createMotions();
    overridden->setComboText(tr("Mixed"), QString());
    oVIXCombo *focused = createMotions();
    focused->setFocusPolicy(Qt::StrongFocus);
    focused->setFocus();
    oVIXCombo *yesNo = createCombo(QString());
    yesNo->setYesNo(tr("Loop the motion"));
    yesNo->setChecked(true);
    return {
        onPlate(createMotions(), tr("normal")),
        onPlate(disabled, tr("disabled")),
        onPlate(overridden, tr("override: the cross opens the menu")),
        onPlate(yesNo, tr("yes or no")),
        onPlate(focused, tr("with keyboard focus")),
    };
}

QList<Sample> ComboSamples::texts()
{
    oVIXCombo *allDisabled = createMotions();
    for (int i = 0; i < allDisabled->count(); ++i)
        allDisabled->setItemEnabled(i, false);
    oVIXCombo *longChoice = createMotions();
    longChoice->setCurrentIndex(3);
    oVIXCombo *longBoth = createMotions();
    longBoth->setText(tr("What the people in this area do all day"));
    longBoth->setCurrentIndex(3);
    oVIXCombo *bare = createMotions();
    bare->setText(QString());
    return {
        onPlate(createCombo(tr("Motion")), tr("empty")),
        onPlate(allDisabled, tr("all items disabled")),
        onPlate(longChoice, tr("long choice")),
        onPlate(longBoth, tr("long caption and choice")),
        onPlate(bare, tr("without caption")),
    };
}

QList<Sample> ComboSamples::alignments()
{
    QList<Sample> samples;
    for (const auto &[alignment, caption] :
         {std::pair(Qt::AlignLeft, tr("left")), std::pair(Qt::AlignRight, tr("right")),
          std::pair(Qt::AlignHCenter, tr("centred"))}) {
        oVIXCombo *combo = createMotions();
        combo->setAlignment(alignment);
        samples.append(onPlate(combo, caption));
    }
    return samples;
}

QWidget *ComboSamples::createOpen()
{
    auto *holder = new QWidget;
    oVIXCombo *combo = createMotions();
    combo->setParent(holder);
    combo->resize(comboWidth, combo->height());
    combo->layout()->activate();
    auto *choice = combo->findChild<QWidget *>(u"comboLabel"_s);
    choice->parentWidget()->layout()->activate();
    QMenu *menu = createCopyOfMenu(combo, holder);
    menu->move(choice->x(), combo->height());
    holder->setFixedSize(comboWidth, combo->height() + menu->height());
    return createPlate(holder, Palette::window, 6);
}
