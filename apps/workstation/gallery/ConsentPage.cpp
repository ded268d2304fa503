#include "gallery/ConsentPage.h"

#include "VelmoFeedbackConsentDialog.h"
#include "gallery/DialogSample.h"

#include <QPixmap>
#include <QRadioButton>

ConsentPage::ConsentPage(QWidget *parent) : GalleryPage(tr("Feedback consent"), parent)
{
    addSection(tr("Answers"), tr("The buttons open the dialog for real: it starts with the stored answer."))
        ->addRow({createSample(0, tr("remind me later"))});
    addSection(tr("Decided"))->addRow({createSample(1, tr("agreed"))});
    addSection(tr("Declined"))->addRow({createSample(2, tr("declined, and never asked"))});
}

Sample ConsentPage::createSample(int option, const QString &caption)
{
    VelmoFeedbackConsentDialog dialog(this);
    dialog.setAttribute(Qt::WA_DontShowOnScreen);
    dialog.findChildren<QRadioButton *>().at(option)->setChecked(true);
    dialog.show();
    const auto open = [this] {
        auto *shown = new VelmoFeedbackConsentDialog(window());
        shown->setAttribute(Qt::WA_DeleteOnClose);
        shown->open();
    };
    return {createDialogSample(dialog.grab(), caption, open), caption};
}
