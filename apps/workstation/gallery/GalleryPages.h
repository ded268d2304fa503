#pragma once

#include <QList>
#include <QString>

#include <functional>

class QWidget;

/// The list of all gallery pages.
namespace GalleryPages {

struct Page
{
    /// Names the page on the command line and its pictures.
    QString id;
    QString title;
    std::function<QWidget *()> create;
};

QList<Page> all();

/// The page's place in the list, or -1. Ids and titles are found whatever their case.
int find(const QString &name);

} // namespace GalleryPages
