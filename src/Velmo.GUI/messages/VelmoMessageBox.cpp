#include "messages/VelmoMessageBox.h"

#include "foundation/AccessibleWidgets.h"
#include "foundation/SheetOnChange.h"
#include "foundation/VelmoStyle.h"
#include "messages/MessageRules.h"

#include "ui_VelmoMessageWidget.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QSignalBlocker>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int tick = 1000; // ms
constexpr int otherWidth = 84;
constexpr int otherPadding = 30;
constexpr int bodyPadding = 10;
constexpr int tallest = 10000; // more than any screen, with room for the title strip

/// Until there is a body.
QString emptyBodySheet()
{
    return u"QTextBrowser {\n"
           "\tbackground-color:transparent;\n"
           "\tcolor:rgb(10, 10, 10);\n"
           "}"_s;
}

QString bodySheet()
{
    return u"QTextBrowser { "
           "\tcolor:rgb(219,219,219);"
           "\tbackground-color:rgb(39,39,39);"
           "\tpadding-left: 10px;"
           "\tpadding-right: 10px;}"_s;
}

QString otherSheet()
{
    return u"QLabel {\n"
           "\tborder:0px;\n"
           "\tborder-radius:4px;\n"
           "\tcolor:rgb(200,200,200);\n"
           "\tbackground-color:rgb(53,53,53);\n"
           "}\n"
           "\n"
           "QLabel:disabled {\n"
           "\tcolor:rgb(143,147,149);\n"
           "\tbackground-color:rgb(83,83,83);\n"
           "}"_s;
}

} // namespace

/// Boxes as the functions below build and run them.
class MessageBoxes
{
public:
    static VelmoMessageWidget *create(const QString &kind, const QString &title, const QString &text, bool stayOnTop,
                                      int height, QWidget *parent, QScreen *screen)
    {
        // A text follows at once. The sheet of an empty body would style the browser and its scroll bars for nothing.
        auto *box = new VelmoMessageWidget(kind, title, bodySheet(), stayOnTop, parent, screen);
        box->setText(text);
        if (height > 0)
            box->setFixedHeight(qMin(height, tallest));
        return box;
    }

    static VelmoMsgReturnCode run(VelmoMessageWidget *widget)
    {
        const QPointer<VelmoMessageWidget> box(widget); // of its own: whoever holds the box may go while it runs
        if (box->isVisible())
            return MsgRejected; // it runs already, and goes on
        box->startMinimumWaitTimer();
        const auto code = VelmoMsgReturnCode(box->exec());
        if (box)
            box->close();
        return code;
    }

    static VelmoMsgReturnCode runAndDelete(VelmoMessageWidget *widget)
    {
        const QPointer<VelmoMessageWidget> box(widget);
        const VelmoMsgReturnCode code = run(widget);
        delete box.data();
        return code;
    }
};

VelmoMessageWidget::VelmoMessageWidget(QString kind, QString title, bool stayOnTop, QWidget *parent, QScreen *screen)
    : VelmoMessageWidget(kind, title, emptyBodySheet(), stayOnTop, parent, screen)
{ }

VelmoMessageWidget::VelmoMessageWidget(const QString &kind, const QString &title, const QString &bodySheet,
                                       bool stayOnTop, QWidget *parent, QScreen *screen)
    : oVIXDialog(false, false, stayOnTop, parent, screen), m_ui(new Ui::VelmoMessageWidget)
{
    m_ui->setupUi(this);
    m_ui->textBrowser->setStyleSheet(bodySheet);
    m_ui->lnEdit->hide();
    m_ui->lbDont->setStyleSheet(otherSheet());
    m_ui->widgetYesNoButtons->setStyleSheet(u"background-color:rgb(167,172,175);"_s);

    connect(m_ui->lbDont, &oVIXButton::clicked, this, &VelmoMessageWidget::fnOther);
    connect(m_ui->widgetYesNoButtons, &VelmoYesNoWidget::accept, this, &VelmoMessageWidget::fnAccept);
    connect(m_ui->widgetYesNoButtons, &VelmoYesNoWidget::reject, this, &VelmoMessageWidget::fnReject);
    m_ui->widgetYesNoButtons->enableKeyboardShorcuts();
    setupTitle(kind, title);
    setAccessibleName(kind + u": "_s + title);
    m_ui->textBrowser->setAccessibleName(title);
    m_ui->lnEdit->setAccessibleName(title);
}

VelmoMessageWidget::~VelmoMessageWidget() = default;

void VelmoMessageWidget::setText(QString text)
{
    QTextBrowser *browser = m_ui->textBrowser;
    setSheetOnChange(browser, bodySheet());
    browser->ensurePolished(); // the text is measured in the font of the style sheets
    const QString shown = shownBody(text);
    QTextDocument *document = browser->document();
    document->setLayoutEnabled(false); // until all is set
    if (hasTooDeepTables(shown))
        browser->setPlainText(shown);
    else
        browser->setText(shown);
    browser->setAlignment(Qt::AlignVCenter);
    document->setLayoutEnabled(true);
    resize(width(), boxHeight(minimumHeight(), browser->minimumHeight(), browser->maximumHeight(), bodyHeight()));
    setAccessibleDescription(browser->toPlainText());
}

qreal VelmoMessageWidget::bodyHeight() const
{
    const QTextBrowser *browser = m_ui->textBrowser;
    QTextDocument *document = browser->document();
    const qreal shownWidth = document->textWidth();
    // A browser that was never shown has a narrow view, and would lay the text out for that one as soon as it heard of
    // another size. One that was shown has the text as wide as it is to stay.
    const QSignalBlocker unheard(document->documentLayout());
    const QMargins margins = layout()->contentsMargins();
    document->setTextWidth(width() - margins.left() - margins.right() - 2 * bodyPadding);
    const qreal height = document->size().height();
    if (browser->testAttribute(Qt::WA_WState_Created))
        document->setTextWidth(shownWidth);
    return height;
}

void VelmoMessageWidget::setEditText(QString text)
{
    m_ui->lnEdit->setText(text);
}

void VelmoMessageWidget::showEditable(bool show, QString *target)
{
    m_editTarget = nullptr; // an earlier one does not get the text of this one
    m_ui->textBrowser->setVisible(!show);
    m_ui->lnEdit->setVisible(show);
    m_ui->lnEdit->setText(target ? *target : QString());
    m_editTarget = target;
    connect(m_ui->lnEdit, &QLineEdit::textChanged, this, &VelmoMessageWidget::readFromEditable, Qt::UniqueConnection);
    m_ui->lnEdit->setFocus();
}

void VelmoMessageWidget::setButtonMode(VelmoButtonMode mode)
{
    switch (mode) {
    case QuestionButtons:
        setButtons(tr("YES"), false);
        break;
    case EditButtons:
    case InformationButtons:
        setButtons(tr("OK"), false);
        break;
    case ThreeOptionButtons:
        setButtons(tr("OK"), true);
        break;
    }
}

void VelmoMessageWidget::setButtonText(QString text)
{
    m_buttonText = text;
    m_ui->widgetYesNoButtons->setOkText(text);
}

void VelmoMessageWidget::setButtonMessage(QString text)
{
    m_ui->widgetYesNoButtons->setMsgText(text);
}

void VelmoMessageWidget::setMinimumWaitSeconds(int seconds)
{
    if (seconds <= 0)
        return;
    m_waitSeconds = seconds;
    updateButtonTextWithWait();
    startWait();
}

void VelmoMessageWidget::startMinimumWaitTimer()
{
    if (m_waitSeconds <= 0)
        return;
    if (!m_waitTimer) {
        m_waitTimer = new QTimer(this);
        m_waitTimer->setSingleShot(true);
        m_waitTimer->setInterval(tick);
        connect(m_waitTimer, &QTimer::timeout, this, &VelmoMessageWidget::singleSecondTriggered);
    }
    m_waitTimer->start();
}

int VelmoMessageWidget::exec()
{
    return returnCodeOf(oVIXDialog::exec());
}

void VelmoMessageWidget::singleSecondTriggered()
{
    --m_waitSeconds;
    if (m_waitSeconds < 1)
        finishWait();
    else
        startMinimumWaitTimer();
    updateButtonTextWithWait();
}

void VelmoMessageWidget::fnAccept()
{
    done(MsgAccepted);
}

void VelmoMessageWidget::fnReject()
{
    done(MsgRejected);
}

void VelmoMessageWidget::fnOther()
{
    done(MsgOther);
}

void VelmoMessageWidget::readFromEditable()
{
    if (m_editTarget)
        *m_editTarget = m_ui->lnEdit->text();
}

void VelmoMessageWidget::setOtherOption(QString otheroption)
{
    m_ui->lbDont->setText(otheroption);
    const int needed = VelmoStyle::styleDockTextWidth(otheroption) + otherPadding;
    m_ui->lbDont->setFixedWidth(qBound(otherWidth, needed, QWIDGETSIZE_MAX));
}

void VelmoMessageWidget::showEvent(QShowEvent *event)
{
    oVIXDialog::showEvent(event);
    if (!event->spontaneous())
        AccessibleWidgets::announceAlert(this);
}

void VelmoMessageWidget::hideEvent(QHideEvent *event)
{
    oVIXDialog::hideEvent(event);
    if (event->spontaneous())
        return;
    m_editTarget = nullptr; // the caller's string may go now
    if (m_waitTimer)
        m_waitTimer->stop();
}

void VelmoMessageWidget::startWait()
{
    setLocked(true);
}

void VelmoMessageWidget::finishWait()
{
    setLocked(false);
}

void VelmoMessageWidget::setLocked(bool locked)
{
    m_ui->lbDont->setEnabled(!locked);
    m_ui->widgetYesNoButtons->setEnabled(!locked);
    setCloseEnabled(!locked);
}

void VelmoMessageWidget::updateButtonTextWithWait()
{
    m_ui->widgetYesNoButtons->setOkText(countdownText(m_buttonText, m_waitSeconds));
}

void VelmoMessageWidget::setButtons(const QString &okText, bool otherVisible)
{
    if (!m_ui->widgetYesNoButtons->isVisibleTo(this))
        m_ui->widgetYesNoButtons->show();
    m_ui->widgetYesNoButtons->enableOkButtonAndColor(true); // before the text is measured, which polishes the sheet
    m_ui->widgetYesNoButtons->setOkText(okText);
    m_ui->lbDont->setVisible(otherVisible);
}

VelmoMessageClass::VelmoMessageClass(QString kind, QString title, QString text, bool stayOnTop, int height,
                                     QWidget *parent, QScreen *screen)
    : m_widget(MessageBoxes::create(kind, title, text, stayOnTop, height, parent, screen))
{ }

VelmoMessageClass::VelmoMessageClass(const VelmoMessageClass &other) = default;

VelmoMessageClass &VelmoMessageClass::operator=(const VelmoMessageClass &other) = default;

VelmoMessageClass::~VelmoMessageClass() = default;

void VelmoMessageClass::setButtonMode(VelmoButtonMode mode)
{
    if (m_widget)
        m_widget->setButtonMode(mode);
}

void VelmoMessageClass::setButtonText(QString text)
{
    if (m_widget)
        m_widget->setButtonText(text);
}

void VelmoMessageClass::setButtonMessage(QString text)
{
    if (m_widget)
        m_widget->setButtonMessage(text);
}

void VelmoMessageClass::setOtherOption(QString text)
{
    if (m_widget)
        m_widget->setOtherOption(text);
}

void VelmoMessageClass::showEditable(bool show, QString *target)
{
    if (m_widget)
        m_widget->showEditable(show, target);
}

void VelmoMessageClass::setMinimumWaitSeconds(int seconds)
{
    if (m_widget)
        m_widget->setMinimumWaitSeconds(seconds);
}

VelmoMsgReturnCode VelmoMessageClass::exec()
{
    return m_widget ? MessageBoxes::run(m_widget) : MsgRejected;
}

VelmoMsgReturnCode VelmoInfoMessage(QString title, QString text, QWidget *parent, QScreen *screen)
{
    auto *box = MessageBoxes::create(VelmoMessageWidget::tr("INFORMATION"), title, text, false, 0, parent, screen);
    box->setButtonMode(InformationButtons);
    return MessageBoxes::runAndDelete(box);
}

VelmoMsgReturnCode VelmoWarningMessage(QString title, QString text, int height, QWidget *parent, QScreen *screen)
{
    auto *box = MessageBoxes::create(VelmoMessageWidget::tr("WARNING"), title, text, false, height, parent, screen);
    box->setButtonMode(InformationButtons);
    return MessageBoxes::runAndDelete(box);
}

VelmoMsgReturnCode VelmoQuestionMessage(QString title, QString text, QWidget *parent, QScreen *screen)
{
    if (parent)
        QApplication::alert(parent->window(), 0);
    auto *box = MessageBoxes::create(VelmoMessageWidget::tr("QUESTION"), title, text, false, 0, parent, screen);
    box->setButtonMode(QuestionButtons);
    return MessageBoxes::runAndDelete(box);
}

VelmoMsgReturnCode VelmoEditMessage(QString kind, QString title, QString *edited, QWidget *parent, QScreen *screen)
{
    auto *box = MessageBoxes::create(kind, title, title, false, 0, parent, screen);
    box->setButtonMode(EditButtons);
    box->showEditable(true, edited);
    return MessageBoxes::runAndDelete(box);
}

VelmoMsgReturnCode VelmoThreeOptionMessage(QString kind, QString title, QString text, QString otherText,
                                           QWidget *parent, QScreen *screen)
{
    auto *box = MessageBoxes::create(kind, title, text, false, 0, parent, screen);
    box->setOtherOption(otherText);
    box->setButtonMode(ThreeOptionButtons);
    return MessageBoxes::runAndDelete(box);
}

VelmoMsgReturnCode VelmoCustomMessage(QString kind, QString title, QString text, QString buttonText,
                                      QString buttonMessage, bool stayOnTop, QWidget *parent, QScreen *screen)
{
    auto *box = MessageBoxes::create(kind, title, text, stayOnTop, 0, parent, screen);
    box->setButtonMode(QuestionButtons);
    box->setButtonText(buttonText);
    box->setButtonMessage(buttonMessage);
    return MessageBoxes::runAndDelete(box);
}

VelmoMsgReturnCode VelmoCustomThreeOptionMessage(QString kind, QString title, QString text, QString buttonText,
                                                 QString otherText, bool stayOnTop, int waitSeconds, QWidget *parent,
                                                 QScreen *screen)
{
    auto *box = MessageBoxes::create(kind, title, text, stayOnTop, 0, parent, screen);
    box->setOtherOption(otherText);
    box->setButtonMode(ThreeOptionButtons);
    box->setButtonText(buttonText);
    box->setMinimumWaitSeconds(waitSeconds);
    return MessageBoxes::runAndDelete(box);
}
