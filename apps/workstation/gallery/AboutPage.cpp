#include "gallery/AboutPage.h"

#include "VelmoAboutDialog.h"
#include "gallery/DialogSample.h"

#include <QPixmap>
#include <QTabWidget>

using namespace Qt::StringLiterals;

AboutPage::AboutPage(QWidget *parent) : GalleryPage(tr("About"), parent)
{
    const QString own;
    const QString nowhere = u":/none"_s;
    addSection(tr("Tabs"), tr("Read from the files beside the program; links open in the browser."))
        ->addRow({createSample(0, own, tr("credits"))});
    addSection(tr("Links"))->addRow({createSample(2, own, tr("third-party notices"))});
    addSection(tr("Missing files"))->addRow({createSample(1, nowhere, tr("an empty tab"))});
}

Sample AboutPage::createSample(int tab, const QString &folder, const QString &caption)
{
    VelmoAboutDialog dialog(this, folder);
    dialog.setAttribute(Qt::WA_DontShowOnScreen);
    dialog.findChild<QTabWidget *>()->setCurrentIndex(tab);
    dialog.show();
    const auto open = [this, folder] {
        auto *shown = new VelmoAboutDialog(window(), folder);
        shown->setAttribute(Qt::WA_DeleteOnClose);
        shown->open();
    };
    return {createDialogSample(dialog.grab(), caption, open), caption};
}
