#pragma once

#include "VelmoGuiExport.h"
#include "frame/oVIXDialog.h"

class QRadioButton;
class QVBoxLayout;

/// Asks whether the application may collect usage data: remind me later, yes, no. OK stores the answer and accepts;
/// closing the dialog otherwise stores nothing.
///
/// The answer is kept in the application's settings (`QSettings`), in the group "Telemetry": "Enabled" is 1 for a user
/// who has agreed, else 0; "RemenberDate", written as "yyyy-MM-dd", is the date after which to ask again, a month from
/// the answer, and is absent for a user who has decided. An application that has told `QCoreApplication` no
/// organisation has no settings: nothing is stored then, and the user counts as never asked.
class VELMO_GUI_EXPORT VelmoFeedbackConsentDialog : public oVIXDialog
{
    Q_OBJECT

public:
    /// Starts with the stored answer; with "no" when there is none.
    explicit VelmoFeedbackConsentDialog(QWidget *parent);
    ~VelmoFeedbackConsentDialog() override;

    /// Whether to show the dialog at the start of the application: never to a user who has agreed, from the day after
    /// the stored date to one who wants to be reminded, else always. Writes what it has read to the debug output.
    static bool isFeedbackRemeberNecessary();

private slots:
    void onOkButtonClicked();

private:
    void createDialogElements();
    void setupRadioButtons();
    void addText(QVBoxLayout *layout, const QString &text, const QString &sheet);
    void addLine(QVBoxLayout *layout);
    void addOptions(QVBoxLayout *layout, const QString &question);
    void addFooter(QVBoxLayout *layout);
    QRadioButton *createOption(const QString &text, QWidget *group);

    QRadioButton *m_remindLater = nullptr;
    QRadioButton *m_yes = nullptr;
    QRadioButton *m_no = nullptr;
};
