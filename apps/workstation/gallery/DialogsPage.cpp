#include "gallery/DialogsPage.h"

#include "gallery/DialogSample.h"
#include "gallery/SampleDialog.h"
#include "oVIXWindowWait.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPixmap>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

void addBakeFields(SampleDialog *dialog)
{
    dialog->setupTitle(DialogsPage::tr("Bake"), DialogsPage::tr("Platform 4, morning"));
    dialog->addField(DialogsPage::tr("Length"), u"00:02:30"_s);
    dialog->addField(DialogsPage::tr("Frames a second"), u"25"_s);
    dialog->addField(DialogsPage::tr("Background"), u"Concourse"_s);
}

void addOkAndCancel(SampleDialog *dialog)
{
    QObject::connect(dialog->addButton(DialogsPage::tr("OK")), &QPushButton::clicked, dialog, &QDialog::accept);
    QObject::connect(dialog->addButton(DialogsPage::tr("Cancel")), &QPushButton::clicked, dialog, &QDialog::reject);
}

/// Words and a button that closes.
void setUpMessage(SampleDialog *dialog, const QString &title, const QString &subtitle, const QString &words)
{
    dialog->setupTitle(title, subtitle);
    dialog->addWords(words);
    QObject::connect(dialog->addButton(DialogsPage::tr("Close")), &QPushButton::clicked, dialog, &QDialog::accept);
}

void setUpBake(SampleDialog *dialog)
{
    addBakeFields(dialog);
    addOkAndCancel(dialog);
}

void setUpFixed(SampleDialog *dialog)
{
    setUpMessage(dialog, DialogsPage::tr("Licence"), DialogsPage::tr("Please read"),
                 DialogsPage::tr("Neither Escape nor the cross closes this dialog; its own button does."));
    dialog->setCloseEnabled(false);
}

void setUpDraggable(SampleDialog *dialog)
{
    setUpMessage(dialog, DialogsPage::tr("Statistics"), DialogsPage::tr("Platform 4, morning"),
                 DialogsPage::tr("The title strip moves this dialog, so that what lies under it can be seen."));
    dialog->setDragEnabled(true);
}

void setUpAsking(SampleDialog *dialog)
{
    addBakeFields(dialog);
    QPushButton *ask = dialog->addButton(DialogsPage::tr("Reset…"));
    QObject::connect(ask, &QPushButton::clicked, dialog, [dialog] {
        auto *question = new SampleDialog(dialog);
        question->setAttribute(Qt::WA_DeleteOnClose);
        question->setupTitle(DialogsPage::tr("Reset"), DialogsPage::tr("Are you sure?"));
        question->addWords(DialogsPage::tr("All fields get the values they had at first."));
        addOkAndCancel(question);
        question->open();
    });
    QObject::connect(dialog->addButton(DialogsPage::tr("Close")), &QPushButton::clicked, dialog, &QDialog::reject);
}

void setUpJob(SampleDialog *dialog, void (oVIXDialog::*startWait)())
{
    addBakeFields(dialog);
    QPushButton *bake = dialog->addButton(DialogsPage::tr("Bake"));
    QObject::connect(bake, &QPushButton::clicked, dialog, [dialog, startWait] { dialog->startJob(startWait); });
    QObject::connect(dialog->addButton(DialogsPage::tr("Close")), &QPushButton::clicked, dialog, &QDialog::reject);
}

/// The overlay on the first frame of its mark: nothing has started it.
void showStillWait(SampleDialog *dialog, const QString &text, int percent)
{
    oVIXWindowWait *wait = dialog->getWindowWait();
    wait->setText(text);
    wait->setTextVisible(!text.isEmpty());
    wait->setPercent(percent);
    wait->setPercentVisible(percent >= 0);
    wait->show();
}

} // namespace

DialogsPage::DialogsPage(QWidget *parent) : GalleryPage(tr("Dialogs"), parent)
{
    addClosing();
    addBlocked();
    addBusy();
}

void DialogsPage::addClosing()
{
    addSection(tr("Closing and moving"), tr("The buttons open the dialogs for real."))
        ->addRow({
            createSample(tr("with close button"), setUpBake),
            createSample(tr("closing disabled"), setUpFixed),
            createSample(tr("draggable"), setUpDraggable),
        });
}

void DialogsPage::addBlocked()
{
    const auto setUpLong = [](SampleDialog *dialog) {
        setUpMessage(dialog, tr("Statistics"), tr("every scene of the project, those never baked before included"),
                     tr("The texts of the strip are plain and stay on one line, whatever they hold."));
    };
    const auto setUpMarkup = [](SampleDialog *dialog) {
        setUpMessage(dialog, u"<b>bold</b> &amp;"_s, u"<img src=x> %1 %n"_s,
                     tr("The texts of the strip are plain and stay on one line, whatever they hold."));
    };
    const auto block = [](SampleDialog *dialog) {
        QEvent blocked(QEvent::WindowBlocked);
        QCoreApplication::sendEvent(dialog, &blocked);
    };
    addSection(tr("Blocked, and unusual titles"), tr("A dialog is dimmed while it waits for another one."))
        ->addRow({
            createSample(tr("blocked"), setUpAsking, block),
            createSample(tr("a long subtitle"), setUpLong),
            createSample(tr("markup characters"), setUpMarkup),
        });
}

void DialogsPage::addBusy()
{
    const auto job = [](void (oVIXDialog::*startWait)()) {
        return [startWait](SampleDialog *dialog) { setUpJob(dialog, startWait); };
    };
    addSection(tr("Busy"), tr("A busy dialog does not close. The mark turns in the real ones."))
        ->addRow({
            createSample(tr("mark only"), job(&oVIXDialog::startWait),
                         [](SampleDialog *dialog) { showStillWait(dialog, {}, -1); }),
            createSample(tr("text"), job(&oVIXDialog::startWaitWithText),
                         [](SampleDialog *dialog) { showStillWait(dialog, tr("Baking the motion"), -1); }),
            createSample(tr("percent"), job(&oVIXDialog::startWaitWithPercent),
                         [](SampleDialog *dialog) { showStillWait(dialog, {}, 42); }),
        });
}

/// @p stage brings the dialog of the picture into the state that the real one is in later.
Sample DialogsPage::createSample(const QString &caption, const SetUp &setUp, const SetUp &stage)
{
    SampleDialog dialog(this);
    dialog.setAttribute(Qt::WA_DontShowOnScreen);
    setUp(&dialog);
    dialog.show();
    if (stage)
        stage(&dialog);
    return {createDialogSample(dialog.grab(), caption, [this, setUp] { open(setUp); }), caption};
}

void DialogsPage::open(const SetUp &setUp)
{
    auto *dialog = new SampleDialog(window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    setUp(dialog);
    dialog->open();
}
