#include "gallery/MessagesPage.h"

#include "VelmoMessageBox.h"
#include "VelmoYesNoWidget.h"
#include "gallery/DialogSample.h"
#include "oVIXDialogModalBase.h"

#include <QLabel>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace {

constexpr int barWidth = 460;

/// A dialog as the application makes them from the base.
class Information : public oVIXDialogModalBase
{
public:
    explicit Information(QWidget *parent) : oVIXDialogModalBase(parent)
    {
        setupTitle(MessagesPage::tr("About"), MessagesPage::tr("this application"));
        setLogoImg(u":/Workstation/Logo"_s);
        addTitleLabel(MessagesPage::tr("Workstation"));
        auto *page = new QLabel(MessagesPage::tr("A page of the application."));
        page->setAlignment(Qt::AlignCenter);
        addWidget(page);
        addNewWebLink(MessagesPage::tr("Manual"), u"https://www.example.org/manual"_s);
        addNewWebLink(MessagesPage::tr("Support"), u"https://www.example.org/support"_s);
        enableCloseButton(true);
        enableExitButton(true);
    }
};

VelmoYesNoWidget *createBar(const QString &message)
{
    auto *bar = new VelmoYesNoWidget;
    bar->setFixedWidth(barWidth);
    bar->setMsgText(message);
    return bar;
}

} // namespace

MessagesPage::MessagesPage(QWidget *parent) : GalleryPage(tr("Messages"), parent), m_name(tr("Platform 4, morning"))
{
    addBars();
    addKinds();
    addCustom();
    addTexts();
    addModal();
}

void MessagesPage::addBars()
{
    VelmoYesNoWidget *grey = createBar(tr("Choose a scene first"));
    VelmoYesNoWidget *coloured = createBar(tr("3 scenes chosen"));
    coloured->enableOkButtonAndColor(true);
    VelmoYesNoWidget *ownColours = createBar(tr("The scene is older than this version"));
    ownColours->setOkText(tr("Convert"));
    ownColours->setCaptionColor(QColor(249, 199, 26));
    ownColours->setCaptionTextColor(QColor(28, 28, 28));
    ownColours->enableOkButtonAndColor(true);
    VelmoYesNoWidget *disabled = createBar(tr("Busy"));
    disabled->setEnabled(false);
    SampleSection *section = addSection(tr("Yes/no bar"), tr("OK answers only where it is coloured here."));
    section->addRow({{grey, tr("grey")}, {coloured, tr("coloured")}});
    section->addRow({{ownColours, tr("other caption colours")}, {disabled, tr("disabled")}});
}

void MessagesPage::addKinds()
{
    const auto simple = [](VelmoButtonMode mode, const QString &text) {
        return [mode, text](VelmoMessageWidget *box) {
            box->setText(text);
            box->setButtonMode(mode);
        };
    };
    SampleSection *section = addSection(tr("Kinds"), tr("The buttons open the boxes for real."));
    section->addRow({
        createSample(tr("information"), tr("INFORMATION"), tr("Bake"),
                     simple(InformationButtons, tr("All scenes are baked."))),
        createSample(tr("warning"), tr("WARNING"), tr("Scene"),
                     simple(InformationButtons, tr("This scene was written by a newer version."))),
    });
    section->addRow({
        createSample(tr("question"), tr("QUESTION"), tr("Delete"),
                     simple(QuestionButtons, tr("Delete the scene <b>Platform 4, morning</b> for good?"))),
        createSample(tr("edit"), tr("RENAME"), tr("Scene"),
                     [this](VelmoMessageWidget *box) {
                         box->setText(tr("Scene"));
                         box->setButtonMode(EditButtons);
                         box->showEditable(true, &m_name);
                     }),
    });
}

void MessagesPage::addCustom()
{
    const auto threeOptions = [](VelmoMessageWidget *box) {
        box->setText(tr("The scene has a bake already."));
        box->setOtherOption(tr("Keep both of them"));
        box->setButtonMode(ThreeOptionButtons);
        box->setButtonText(tr("Replace"));
    };
    SampleSection *section = addSection(tr("Options"), tr("The count runs in the real box."));
    section->addRow({
        createSample(tr("three options"), tr("QUESTION"), tr("Bake"), threeOptions),
        createSample(tr("with a wait of three seconds"), tr("QUESTION"), tr("Bake"),
                     [threeOptions](VelmoMessageWidget *box) {
                         threeOptions(box);
                         box->setMinimumWaitSeconds(3);
                     }),
    });
}

void MessagesPage::addTexts()
{
    const QString sentence = tr("Every scene of the project is read again, and what was changed since is lost. ");
    const auto text = [](const QString &body, const QString &message) {
        return [body, message](VelmoMessageWidget *box) {
            box->setText(body);
            box->setButtonMode(QuestionButtons);
            box->setButtonText(tr("Go on"));
            box->setButtonMessage(message);
        };
    };
    addSection(tr("Long texts"), tr("A box grows with its text up to 600 pixels, then the text scrolls."))
        ->addRow({
            createSample(tr("some lines, and a message"), tr("WARNING"), tr("Reload"),
                         text(sentence.repeated(9), tr("Cannot be undone"))),
            createSample(tr("more than fits"), tr("WARNING"), tr("Reload"), text(sentence.repeated(60), {})),
        });
}

void MessagesPage::addModal()
{
    Information dialog(this);
    dialog.setAttribute(Qt::WA_DontShowOnScreen);
    dialog.show();
    const QString caption = tr("with a page, links and both buttons");
    const auto open = [this] {
        auto *shown = new Information(window());
        shown->setAttribute(Qt::WA_DeleteOnClose);
        shown->open();
    };
    addSection(tr("Modal base dialog"), tr("The right button of the real one quits the application."))
        ->addRow({{createDialogSample(dialog.grab(), caption, open), caption}});
}

/// The picture shows the box as it comes up.
Sample MessagesPage::createSample(const QString &caption, const QString &kind, const QString &title, const SetUp &setUp)
{
    VelmoMessageWidget box(kind, title, false, this, nullptr);
    box.setAttribute(Qt::WA_DontShowOnScreen);
    setUp(&box);
    box.show();
    const auto open = [this, kind, title, setUp] {
        auto *shown = new VelmoMessageWidget(kind, title, false, window(), nullptr);
        shown->setAttribute(Qt::WA_DeleteOnClose);
        setUp(shown);
        shown->startMinimumWaitTimer();
        shown->open();
    };
    return {createDialogSample(box.grab(), caption, open), caption};
}
