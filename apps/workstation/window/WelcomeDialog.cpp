#include "window/WelcomeDialog.h"

#include "look/Sheets.h"

#include <VelmoVersion.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int welcomeWidth = 480;

} // namespace

WelcomeDialog::WelcomeDialog(const QString &projectsFolder, QWidget *window) : oVIXDialogModalBase(window)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setupTitle(tr("WELCOME"), QGuiApplication::applicationDisplayName());
    setWindowTitle(tr("Welcome"));
    setDragEnabled(true);
    setFixedWidth(welcomeWidth);
    setLogoImg(u":/Workstation/Logo"_s);
    addTitleLabel(
        tr("%1, release %2").arg(QGuiApplication::applicationDisplayName(), VelmoVersion::current().toString()));

    auto *page = new QLabel(tr("Open a scene, edit its crowd under Parameters and its tags under Tags, then bake and "
                               "play it. Baked frames stay until the crowd changes."));
    page->setWordWrap(true);
    page->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    page->setStyleSheet(Sheets::secondaryText());
    addWidget(page);
    addNewWebLink(tr("Show the folder of projects"), QUrl::fromLocalFile(projectsFolder).toString());
    addNewAppLink(tr("Open another window"), QCoreApplication::applicationFilePath());
    enableCloseButton(true);
    enableExitButton(true);
}

void WelcomeDialog::onExitButtonClicked()
{
    QWidget *window = parentWidget();
    reject();
    window->close(); // which keeps its layout, as a mere quit would not
}
