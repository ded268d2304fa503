#pragma once

#include <oVIXDialogModalBase.h>

/// What the application is and how one begins, with ways to the projects. Deleted when closed.
class WelcomeDialog : public oVIXDialogModalBase
{
    Q_OBJECT

public:
    /// Its exit button closes @p window, which keeps it.
    WelcomeDialog(const QString &projectsFolder, QWidget *window);

protected slots:
    void onExitButtonClicked() override;
};
