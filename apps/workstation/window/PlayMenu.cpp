#include "window/PlayMenu.h"

#include "window/ScenePage.h"

PlayMenu::PlayMenu(ScenePage *page, QWidget *parent) : QMenu(tr("Play"), parent)
{
    addAction(tr("Play or pause"), tr("Ctrl+P"), page, [page] { page->setPlaying(!page->isPlaying()); });
    addAction(tr("Next frame"), tr("Alt+Right"), page, [page] { page->step(1); });
    addAction(tr("Previous frame"), tr("Alt+Left"), page, [page] { page->step(-1); });
    addSeparator();
    addAction(tr("Set crop start here"), tr("Ctrl+["), page, &ScenePage::startCropHere);
    addAction(tr("Set crop end here"), tr("Ctrl+]"), page, &ScenePage::endCropHere);
    addAction(tr("Clear crop"), page, &ScenePage::clearCrop);
}
