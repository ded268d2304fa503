#pragma once

#include <QImage>
#include <QTextBrowser>

/// The body of a message: text that may be rich, but follows no link and reads nothing that it names.
class MessageBrowser : public QTextBrowser
{
public:
    explicit MessageBrowser(QWidget *parent) : QTextBrowser(parent) { setOpenLinks(false); }

    QVariant loadResource(int type, const QUrl &) override
    {
        // A null answer would make the toolkit look for a file of that name itself.
        if (type != QTextDocument::ImageResource)
            return QByteArray("");
        QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        return nothing;
    }
};
