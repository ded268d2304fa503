#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class QVBoxLayout;

/// A widget to look at and the words below it.
struct Sample
{
    QWidget *widget = nullptr;
    QString caption;
};

/// A titled block of samples on a gallery page.
class SampleSection : public QWidget
{
    Q_OBJECT

public:
    SampleSection(const QString &title, const QString &note, QWidget *parent);

    /// Samples side by side from the left, their captions on one line.
    void addRow(const QList<Sample> &samples);
    /// One widget over the whole width.
    void addWide(QWidget *widget);

private:
    QVBoxLayout *m_layout;
};

/// Base of the gallery's pages: a title above sections.
class GalleryPage : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryPage(const QString &title, QWidget *parent = nullptr);

protected:
    SampleSection *addSection(const QString &title, const QString &note = QString());

private:
    QVBoxLayout *m_layout;
};

/// Small words on a page: a caption, a column's title.
QWidget *createCaption(const QString &text, Qt::Alignment alignment = Qt::AlignCenter);
/// A plate of this colour round a widget.
QWidget *createPlate(QWidget *content, const QColor &colour, int margin = 12);
/// Widgets side by side without captions.
QWidget *createStrip(const QList<QWidget *> &widgets, int spacing = 8);
