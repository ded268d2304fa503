#pragma once

#include "oVIXDialog.h"

class QFormLayout;
class QHBoxLayout;
class QPushButton;
class SampleJob;

/// A dialog of the application: words, fields and a row of buttons. It can be blocked and busy.
class SampleDialog : public oVIXDialog
{
    Q_OBJECT

public:
    explicit SampleDialog(QWidget *parent);

    void addWords(const QString &text);
    void addField(const QString &name, const QString &value);
    /// The first one is the default button.
    QPushButton *addButton(const QString &text);

    /// Keeps the dialog busy for some seconds, in the way of one of the wait operations.
    void startJob(void (oVIXDialog::*wait)());

private:
    SampleJob *m_job;
    QFormLayout *m_fields;
    QHBoxLayout *m_buttons;
};
