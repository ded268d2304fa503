#pragma once

#include "VelmoGuiExport.h"
#include "frame/oVIXDialog.h"

#include <memory>

class QTextBrowser;
class QUrl;

namespace Ui {
class VelmoAboutDialog;
}

/// Tells what the application is: logo, name, version and build date above three tabs with the credits, the end-user
/// terms and the third-party notices.
///
/// The tabs show the files "help/about_credits.html", "help/license.html" and "help/gcpp.html" beside the executable.
/// A file that is missing or cannot be read leaves its tab empty; what lies beyond its first 4 MiB is not shown. The
/// pages stand alone: pictures and style sheets that they name are not loaded. Links to "http" and "https" addresses
/// open in the system's browser, all others lead nowhere.
class VELMO_GUI_EXPORT VelmoAboutDialog : public oVIXDialog
{
    Q_OBJECT

public:
    /// @p folder is the one that holds the folder "help", for applications that keep it elsewhere; empty for that of
    /// the executable.
    explicit VelmoAboutDialog(QWidget *parent, const QString &folder = QString());
    ~VelmoAboutDialog() override;

private:
    void showPage(QTextBrowser *browser, const QString &path);
    void openLink(const QUrl &url);

    std::unique_ptr<Ui::VelmoAboutDialog> m_ui;
};
