#pragma once

#include "docking/oVIXFloatingWidget.h"

#include <QList>

#include <utility>

class FloatingOption;
class QVBoxLayout;

/// A pop-up with a column of options to check. It closes after a choice.
///
/// Each option has a key, by which it is reported, and a label. One option is highlighted: the checked one when the
/// pop-up shows (else the first), then the one under the pointer or that the up and down keys, Home and End reach.
/// Return and Space choose it; Escape closes the pop-up without a choice. Assistive tools see radio buttons where one
/// option excludes the others, else check boxes.
class VELMO_GUI_EXPORT oVIXFloatingSelectorWidget : public oVIXFloatingWidget
{
    Q_OBJECT

public:
    /// @p minimumWidth in logical pixels keeps pop-ups with short labels from getting too narrow; 0 (or less) for as
    /// wide as the labels, which end in an ellipsis beyond some 300 pixels. With @p exclusive a choice checks its
    /// option and unchecks the others; without it a choice turns its option round.
    oVIXFloatingSelectorWidget(int minimumWidth, bool exclusive, QWidget *parent);
    ~oVIXFloatingSelectorWidget() override;

    /// Removes all options.
    void clear();
    /// Adds an option at the bottom: its key and its label. Keys may repeat. With exclusive options the last one that
    /// is added @p checked stays so.
    void addButton(const std::pair<QString, QString> &keyAndLabel, bool checked);

signals:
    /// The user has chosen this option; the pop-up is hidden by then.
    void optionSelected(QString key);

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// By value: the option that holds the key may go with what follows.
    void choose(QString key);
    void setCurrent(FloatingOption *option);

    QVBoxLayout *m_column;
    QList<FloatingOption *> m_options;
    FloatingOption *m_current = nullptr;
    bool m_exclusive;
};
