#pragma once

#include <QWidget>

class QListWidget;
class QStackedWidget;

/// The window of `--gallery`: the list of pages and the open one. A page is made when it is first opened.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    void openPage(int page);

private:
    void showPage(int page);

    QListWidget *m_list;
    QStackedWidget *m_pages;
};
