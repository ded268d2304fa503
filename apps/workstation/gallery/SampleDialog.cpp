#include "gallery/SampleDialog.h"

#include "gallery/SampleJob.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// High enough for the wait overlay's text between the mark and the buttons.
constexpr QSize smallest(330, 270);

} // namespace

SampleDialog::SampleDialog(QWidget *parent)
    : oVIXDialog(true, true, false, parent, nullptr), m_job(new SampleJob(getWindowWait(), this)),
      m_fields(new QFormLayout), m_buttons(new QHBoxLayout)
{
    setMinimumSize(smallest);
    m_fields->setHorizontalSpacing(16);
    m_fields->setVerticalSpacing(10);
    m_buttons->setSpacing(8);
    m_buttons->addStretch();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(15, 15, 15, 15);
    layout->setSpacing(12);
    layout->addLayout(m_fields);
    layout->addStretch();
    layout->addLayout(m_buttons);
    connect(m_job, &SampleJob::finished, this, &SampleDialog::endWait);
}

void SampleDialog::addWords(const QString &text)
{
    auto *words = new QLabel(text);
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    m_fields->addRow(words);
}

void SampleDialog::addField(const QString &name, const QString &value)
{
    m_fields->addRow(name, new QLineEdit(value));
}

QPushButton *SampleDialog::addButton(const QString &text)
{
    auto *button = new QPushButton(text);
    m_buttons->addWidget(button);
    return button;
}

void SampleDialog::startJob(void (oVIXDialog::*wait)())
{
    m_job->start();
    (this->*wait)(); // processes events: the dialog may be gone afterwards
}
