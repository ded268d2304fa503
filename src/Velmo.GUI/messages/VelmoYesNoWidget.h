#pragma once

#include "VelmoGuiExport.h"

#include <QLabel>

#include <memory>

class QShortcut;

namespace Ui {
class VelmoYesNoWidget;
}

/// The confirmation strip: a message on the left, on the right an OK half and a narrow cancel half with a cross.
///
/// OK answers only while it is enabled (at first it is not), cancel always. Whether OK is painted in the caption
/// colours or in grey is a switch of its own, so that callers can show that OK is available. 36 logical pixels high.
/// The strip's own label text is not used.
class VELMO_GUI_EXPORT VelmoYesNoWidget : public QLabel
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(QString okText READ getOkText WRITE setOkText)
    Q_PROPERTY(QString msgText READ getMsgText WRITE setMsgText)
    Q_PROPERTY(bool enableOkButton READ getEnableOkButton WRITE enableOkButton)

public:
    /// A strip without a message whose OK half does not answer.
    explicit VelmoYesNoWidget(QWidget *parent = nullptr);
    ~VelmoYesNoWidget() override;

    /// "OK" at first. The OK half stays as wide as it is; what is too long is wrapped.
    void setOkText(QString text);
    /// What the OK half says.
    QString getOkText() const;
    /// The message on the left, empty at first; rich text is shown as such.
    void setMsgText(QString text);
    /// The message, as it was given.
    QString getMsgText() const;
    /// The tool tip of the whole strip.
    void setOkTooltip(const QString &text);
    /// Width of the OK half in logical pixels, 84 at first; a negative one counts as 0.
    void setOkButtonWidth(int width);
    /// Shows or hides both halves; the message stays.
    void setButtonsVisible(bool visible);

    /// Background of the OK half while it is coloured; alpha is dropped.
    void setCaptionColor(QColor color);
    /// Text of the OK half while it is coloured; alpha is dropped.
    void setCaptionTextColor(QColor color);

    /// Whether OK answers. Disabling it turns the colours off too, enabling it does not bring them back.
    void enableOkButton(bool enable);
    /// Whether OK answers and is coloured.
    void enableOkButtonAndColor(bool enable);
    /// Whether OK answers.
    bool getEnableOkButton() const;

    /// Lets Return and Enter press OK and Escape press cancel, anywhere in the window. Every further call makes a key
    /// press once more.
    void enableKeyboardShorcuts();
    /// Leaves the keys that are enabled already as they are.
    void disableKeyboardShorcuts();

signals:
    /// The OK half has been pressed, or its key, while OK answers.
    void accept();
    /// The cancel half has been pressed, or its key.
    void reject();

private slots:
    void acceptTriggered();

protected:
    /// Whether the OK half is painted in the caption colours.
    void enableCaptionColor(bool enable);
    /// See `enableCaptionColor`.
    bool getEnableCaptionColor() const;

private:
    std::unique_ptr<Ui::VelmoYesNoWidget> m_ui;
    QShortcut *m_returnShortcut;
    QShortcut *m_enterShortcut;
    QShortcut *m_escapeShortcut;
    QString m_captionColorSheet;
    QString m_captionTextColorSheet;
    bool m_captionColorEnabled = false;
    bool m_okEnabled = false;
};
