#include "messages/VelmoYesNoWidget.h"

#include "foundation/SheetOnChange.h"

#include "ui_VelmoYesNoWidget.h"

#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

QString messageSheet()
{
    return u"background-color:rgb(39,39,39); color: rgb(156,156,156);"_s;
}

QString okSheet(const QString &background, const QString &text, const QString &hover)
{
    return u"QLabel {"
           "\tborder:0px;"
           "\tborder-top-left-radius:4px;"
           "\tborder-bottom-left-radius:4px;"
           "\tbackground:%1;"
           "\tcolor:%2;}"
           "QLabel:hover {"
           "\tbackground-color:%3;}"
           "QLabel:disabled {"
           "\tbackground-color:rgb(26, 79, 109);"
           "\tcolor:rgb(156,156,156);}"_s.arg(background, text, hover);
}

QString cancelSheet()
{
    return u"#cancelButton {\n"
           "\tborder:0px;\n"
           "\tborder-top-right-radius:4px;\n"
           "\tborder-bottom-right-radius:4px;\n"
           "\tbackground-color:rgb(81,81,81)\n"
           "}\n"
           "\n"
           "#cancelButton:disabled {\n"
           "\tbackground-color:rgb(39,39,39);\n"
           "}"_s;
}

QString colourText(const QColor &color)
{
    return u"rgb(%1,%2,%3)"_s.arg(QString::number(color.red()), QString::number(color.green()),
                                  QString::number(color.blue()));
}

} // namespace

VelmoYesNoWidget::VelmoYesNoWidget(QWidget *parent)
    : QLabel(parent), m_ui(new Ui::VelmoYesNoWidget), m_returnShortcut(new QShortcut(Qt::Key_Return, this)),
      m_enterShortcut(new QShortcut(Qt::Key_Enter, this)), m_escapeShortcut(new QShortcut(Qt::Key_Escape, this))
{
    m_ui->setupUi(this);
    m_ui->okButton->setText(text()); // not polished by measuring it: the sheets come first
    clear();
    m_ui->leftSpacer->setStyleSheet(messageSheet());
    m_ui->widgetButtons->setStyleSheet(u"background-color:rgb(40,40,40);"_s);
    m_ui->cancelButton->setStyleSheet(cancelSheet());
    m_ui->cancelButton->setAccessibleName(tr("Cancel"));
    m_ui->cancelLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_ui->cancelLabel->setFilename(u":/Windows/CancelCross"_s);
    m_ui->cancelLabel->paintEventUpdate(); // or its first paint would show the sheet of the buttons
    setCaptionColor(QColor(22, 129, 189));
    setCaptionTextColor(Qt::white);
    // Even one that leads nowhere would take its key from whoever has the focus.
    for (QShortcut *shortcut : {m_returnShortcut, m_enterShortcut, m_escapeShortcut})
        shortcut->setEnabled(false);

    connect(m_ui->okButton, &QClickableLabel::clicked, this, &VelmoYesNoWidget::acceptTriggered);
    connect(m_ui->cancelButton, &QClickableLabel::clicked, this, &VelmoYesNoWidget::reject);
}

VelmoYesNoWidget::~VelmoYesNoWidget() = default;

void VelmoYesNoWidget::setOkText(QString text)
{
    m_ui->okButton->setText(text);
    m_ui->okButton->adjustSize();
}

QString VelmoYesNoWidget::getOkText() const
{
    return m_ui->okButton->text();
}

void VelmoYesNoWidget::setMsgText(QString text)
{
    m_ui->leftSpacer->setText(text);
}

QString VelmoYesNoWidget::getMsgText() const
{
    return m_ui->leftSpacer->text();
}

void VelmoYesNoWidget::setOkTooltip(const QString &text)
{
    setToolTip(text);
}

void VelmoYesNoWidget::setOkButtonWidth(int width)
{
    m_ui->okButton->setFixedWidth(qBound(0, width, QWIDGETSIZE_MAX));
}

void VelmoYesNoWidget::setButtonsVisible(bool visible)
{
    m_ui->okButton->setVisible(visible);
    m_ui->cancelButton->setVisible(visible);
}

void VelmoYesNoWidget::setCaptionColor(QColor color)
{
    m_captionColorSheet = colourText(color);
    enableCaptionColor(m_captionColorEnabled);
}

void VelmoYesNoWidget::setCaptionTextColor(QColor color)
{
    m_captionTextColorSheet = colourText(color);
    enableCaptionColor(m_captionColorEnabled);
}

void VelmoYesNoWidget::enableOkButton(bool enable)
{
    m_okEnabled = enable;
    enableCaptionColor(enable && m_captionColorEnabled);
}

void VelmoYesNoWidget::enableOkButtonAndColor(bool enable)
{
    m_okEnabled = enable;
    enableCaptionColor(enable);
}

bool VelmoYesNoWidget::getEnableOkButton() const
{
    return m_okEnabled;
}

void VelmoYesNoWidget::enableKeyboardShorcuts()
{
    disableKeyboardShorcuts();
    for (QShortcut *shortcut : {m_returnShortcut, m_enterShortcut, m_escapeShortcut})
        shortcut->setEnabled(true);
    connect(m_returnShortcut, &QShortcut::activated, m_ui->okButton, &QClickableLabel::clicked);
    connect(m_enterShortcut, &QShortcut::activated, m_ui->okButton, &QClickableLabel::clicked);
    connect(m_escapeShortcut, &QShortcut::activated, m_ui->cancelButton, &QClickableLabel::clicked);
}

void VelmoYesNoWidget::disableKeyboardShorcuts()
{
    // The connections run the other way, from the shortcuts, and stay: callers count on the keys going on.
    for (const QShortcut *shortcut : {m_returnShortcut, m_enterShortcut, m_escapeShortcut})
        disconnect(this, nullptr, shortcut, nullptr);
}

void VelmoYesNoWidget::acceptTriggered()
{
    if (m_okEnabled)
        emit accept();
}

void VelmoYesNoWidget::enableCaptionColor(bool enable)
{
    m_captionColorEnabled = enable;
    setSheetOnChange(m_ui->okButton,
                     enable ? okSheet(m_captionColorSheet, m_captionTextColorSheet, u"rgb(23, 162, 223)"_s)
                            : okSheet(u"rgb(156,156,156)"_s, u"rgb(81,81,81)"_s, u"rgb(156,156,156)"_s));
}

bool VelmoYesNoWidget::getEnableCaptionColor() const
{
    return m_captionColorEnabled;
}
