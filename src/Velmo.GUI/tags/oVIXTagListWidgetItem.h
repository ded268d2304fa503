#pragma once

#include "VelmoGuiExport.h"

#include <QLabel>

/// The chip of a row in an `oVIXTagListWidget`, whose style sheet colours it. 20 pixels high; the text is plain.
class VELMO_GUI_EXPORT oVIXTagListWidgetItem : public QLabel
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /// A chip without a text.
    explicit oVIXTagListWidgetItem(QWidget *parent = nullptr);
    ~oVIXTagListWidgetItem() override;

    /// Makes the chip as wide as the text asks for, too.
    void setText(const QString &text);
};
