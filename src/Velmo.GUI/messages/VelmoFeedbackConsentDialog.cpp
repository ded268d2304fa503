#include "messages/VelmoFeedbackConsentDialog.h"

#include "messages/FeedbackRules.h"

#include <QCoreApplication>
#include <QDebug>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize startSize(600, 350);
constexpr QSize okSize(84, 36);
constexpr int optionSpacing = 10;

constexpr auto product = "Velmo"_L1;
// The store reads the two slashes as one.
constexpr auto enabledKey = "Telemetry//Enabled"_L1;
constexpr auto reminderKey = "Telemetry//RemenberDate"_L1;

/// Without an organisation the toolkit would keep them under a made-up one.
bool hasSettings()
{
    return !QCoreApplication::organizationName().isEmpty() || !QCoreApplication::organizationDomain().isEmpty();
}

QString stored(QLatin1String key)
{
    return hasSettings() ? QSettings().value(key).toString() : QString();
}

QString headingSheet()
{
    return u"QLabel { color: rgb(219,219,219); font-family:Inter; font-size:15px; }"_s;
}

QString explanationSheet()
{
    return u"QLabel { color: rgb(156,156,156); font: Inter; font-size:11px }"_s;
}

QString questionSheet()
{
    return u"QWidget { color: rgb(156,156,156); font: Inter; font-size:11px }"_s;
}

QString optionsSheet()
{
    return u"QGroupBox { border:0px; margin:0px; padding:0px; }"
           "QRadioButton { color: rgb(219,219,219); font-size:11px; }"_s;
}

/// One brace too many: the toolkit says so, and takes the three rules.
QString optionSheet()
{
    return u"QRadioButton {"
           "    spacing: 8px;}"
           "QRadioButton::indicator {"
           "    width:8px;"
           "    height: 8px;"
           "    border-radius: 4px; "
           "    background-color: rgb(255,255,255);"
           "    border: 1px solid rgb(255,255,255);}"
           "QRadioButton::indicator:hover {"
           "    background-color: rgba(122, 183, 210,125);}"
           "QRadioButton::indicator:checked {"
           "    background-color: rgb(22, 129, 189);}}"_s;
}

QString lineSheet()
{
    return u"background-color:rgb(105,105,105); height: 1px;"_s;
}

QString footerSheet()
{
    return u"QLabel { color: rgb(156,156,156); font: Inter; font-size:9px;}"_s;
}

QString okButtonSheet()
{
    return u"QPushButton { border:1px solid rgb(22, 129, 189); border-radius:4px;"
           " background-color:rgb(22, 129, 189); color:rgb(255,255,255); }"
           "QPushButton:hover { border-color:rgb(23, 162, 223); background-color:rgb(23, 162, 223); }"
           "QPushButton:focus { border-color:rgb(255,255,255); }"_s;
}

} // namespace

VelmoFeedbackConsentDialog::VelmoFeedbackConsentDialog(QWidget *parent)
    : oVIXDialog(true, false, false, parent, nullptr)
{
    createDialogElements();
    setupRadioButtons();
    const QString kind = tr("%1").arg(product);
    const QString title = tr("Feedback Program Settings");
    setupTitle(kind, title);
    setWindowTitle(title);
    setAccessibleName(kind + u": "_s + title);
    resize(startSize);
}

VelmoFeedbackConsentDialog::~VelmoFeedbackConsentDialog() = default;

bool VelmoFeedbackConsentDialog::isFeedbackRemeberNecessary()
{
    if (FeedbackRules::hasAgreed(stored(enabledKey)))
        return false;
    const QDate reminder = FeedbackRules::reminderDate(stored(reminderKey));
    qDebug() << "Date is valid:" << reminder.isValid() << ", Date:" << reminder.toString(FeedbackRules::dateForm);
    return FeedbackRules::isTimeToAsk(reminder, QDate::currentDate());
}

void VelmoFeedbackConsentDialog::onOkButtonClicked()
{
    const bool chosen = m_remindLater->isChecked() || m_yes->isChecked() || m_no->isChecked();
    if (chosen && hasSettings()) {
        QSettings settings;
        settings.setValue(enabledKey, m_yes->isChecked() ? 1 : 0);
        if (m_remindLater->isChecked())
            settings.setValue(reminderKey, FeedbackRules::reminderAfter(QDate::currentDate()));
        else
            settings.remove(reminderKey);
    }
    accept();
}

void VelmoFeedbackConsentDialog::createDialogElements()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(35, 15, 35, 15);
    addText(layout, tr("Help us improve your experience with %1").arg(product), headingSheet());
    addText(layout,
            tr("Participate in the improvement decisions for the future versions of %1.\n"
               "Select 'Yes' to give us permission to learn how %1 is used and where to focus our development"
               " efforts.\n"
               "\n"
               "* No personally identifiable information would be collected\n"
               "* There are no additional emails regarding your participation\n"
               "* You can change your decision at any time from the 'Help' section of %1 Workstation\n")
                .arg(product),
            explanationSheet());
    addLine(layout);
    addOptions(layout, tr("Help us improve %1, by participating in our customer feedback program?").arg(product));
    addLine(layout);
    addFooter(layout);
}

void VelmoFeedbackConsentDialog::setupRadioButtons()
{
    QRadioButton *chosen = m_no;
    switch (FeedbackRules::choiceOf(stored(enabledKey), FeedbackRules::reminderDate(stored(reminderKey)))) {
    case FeedbackRules::Choice::Yes:
        chosen = m_yes;
        break;
    case FeedbackRules::Choice::RemindLater:
        chosen = m_remindLater;
        break;
    case FeedbackRules::Choice::No:
        break;
    }
    chosen->setChecked(true);
    chosen->setFocus(); // from any other one the arrow keys would not choose
}

void VelmoFeedbackConsentDialog::addText(QVBoxLayout *layout, const QString &text, const QString &sheet)
{
    auto *label = new QLabel(text, this);
    label->setWordWrap(true);
    label->setStyleSheet(sheet);
    layout->addWidget(label);
}

void VelmoFeedbackConsentDialog::addLine(QVBoxLayout *layout)
{
    auto *line = new QFrame(this);
    line->setFixedHeight(1);
    line->setStyleSheet(lineSheet());
    layout->addWidget(line);
}

void VelmoFeedbackConsentDialog::addOptions(QVBoxLayout *layout, const QString &question)
{
    addText(layout, question, questionSheet());
    auto *group = new QGroupBox(this);
    group->setAccessibleName(question);
    group->setStyleSheet(optionsSheet());
    m_remindLater = createOption(tr("Remind me later"), group);
    m_yes = createOption(tr("Yes, I am willing to participate and help improving %1").arg(product), group);
    m_no = createOption(tr("No, I do not want to participate"), group);
    auto *options = new QVBoxLayout(group);
    options->setContentsMargins(0, 0, 0, optionSpacing);
    options->setSpacing(optionSpacing);
    for (QRadioButton *option : {m_remindLater, m_yes, m_no})
        options->addWidget(option);
    layout->addWidget(group);
}

void VelmoFeedbackConsentDialog::addFooter(QVBoxLayout *layout)
{
    auto *footer = new QLabel(tr("Changes will take effect after restarting %1.").arg(product), this);
    footer->setStyleSheet(footerSheet());
    auto *ok = new QPushButton(tr("OK"), this);
    ok->setObjectName(u"okButton"_s);
    ok->setFixedSize(okSize);
    ok->setDefault(true);
    ok->setStyleSheet(okButtonSheet());
    connect(ok, &QPushButton::clicked, this, &VelmoFeedbackConsentDialog::onOkButtonClicked);
    auto *row = new QHBoxLayout;
    row->addWidget(footer, 1);
    row->addWidget(ok);
    layout->addLayout(row);
}

QRadioButton *VelmoFeedbackConsentDialog::createOption(const QString &text, QWidget *group)
{
    auto *option = new QRadioButton(text, group);
    option->setStyleSheet(optionSheet());
    return option;
}
