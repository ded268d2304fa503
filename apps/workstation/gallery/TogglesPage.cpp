#include "gallery/TogglesPage.h"

#include "oVIXToggle.h"

#include <QPropertyAnimation>

using namespace Qt::StringLiterals;

namespace {

/// Three states: a list, thumbnails and a warning.
oVIXToggle *createToggle(int states = 3)
{
    auto *toggle = new oVIXToggle;
    const QStringList names{u"arrow"_s, u"lock"_s, u"pictures"_s, u"warning"_s};
    const QStringList icons{u":/Windows/DownArrow"_s, u":/Design/Lock"_s, u":/Windows/Thumbnail"_s,
                            u":/Windows/Warning"_s};
    const QStringList checked{u":/Windows/DownArrow"_s, u":/Design/LockChecked"_s, u":/Windows/Thumbnail"_s,
                              u":/Windows/Warning"_s};
    for (int i = 0; i < states; ++i)
        toggle->addState(icons[i], checked[i], names[i], TogglesPage::tr("Show %1").arg(names[i]));
    toggle->setFixedHeight(oVIXToggle::StateWidth);
    return toggle;
}

oVIXToggle *inState(oVIXToggle *toggle, const QString &name)
{
    toggle->setState(name);
    // The page shows where the slide ends.
    auto *slide = toggle->findChild<QPropertyAnimation *>();
    slide->setCurrentTime(slide->totalDuration());
    return toggle;
}

} // namespace

TogglesPage::TogglesPage(QWidget *parent) : GalleryPage(tr("Toggles"), parent)
{
    addSection(tr("States"), tr("The highlight slides to the state that is clicked."))
        ->addRow({
            {createToggle(1), tr("one state")},
            {createToggle(), tr("first state")},
            {inState(createToggle(), u"lock"_s), tr("second state")},
            {inState(createToggle(4), u"warning"_s), tr("last of four")},
        });

    oVIXToggle *hidden = createToggle(4);
    hidden->setStateVisible(u"pictures"_s, false);
    oVIXToggle *disabledState = createToggle(4);
    disabledState->setStateEnabled(u"warning"_s, false);
    oVIXToggle *disabled = createToggle();
    disabled->setEnabled(false);
    addSection(tr("Hidden and disabled"), tr("Hidden states leave no gap."))
        ->addRow({
            {hidden, tr("third of four hidden")},
            {disabledState, tr("last one disabled")},
            {disabled, tr("all disabled")},
        });
}
