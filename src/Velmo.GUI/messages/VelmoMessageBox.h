#pragma once

#include "VelmoGuiExport.h"
#include "frame/oVIXDialog.h"

#include <QPointer>
#include <QString>

#include <memory>

class MessageBoxes;
class QTimer;

namespace Ui {
class VelmoMessageWidget;
}

/// Which buttons a box has, and what OK says. The cancel half is there in every mode.
enum VelmoButtonMode : int {
    QuestionButtons = 0, ///< "YES" and cancel
    EditButtons = 1, ///< "OK" and cancel
    InformationButtons = 2, ///< the same
    ThreeOptionButtons = 3 ///< "OK", cancel and the other option
};

/// How a box was answered.
enum VelmoMsgReturnCode : int {
    MsgAccepted = 1, ///< OK, Return or Enter
    MsgRejected = 2, ///< the cancel half, Escape, the close button, or the box went with its parent
    MsgOther = 3 ///< the other option
};

/// The message box: a title of kind word and title, a text or a line to edit, and a row of buttons. It is built,
/// adjusted and run once.
///
/// 500 logical pixels wide and, by its text, 200 to 600 high before its first show, which adds the title strip. A box
/// may hold its buttons back for some seconds, which it counts down on the OK half. Neither wait nor block overlay.
class VELMO_GUI_EXPORT VelmoMessageWidget : public oVIXDialog
{
    Q_OBJECT

public:
    /// Kind word and title are plain text. @p screen, which may be null, is where a box without a parent goes.
    VelmoMessageWidget(QString kind, QString title, bool stayOnTop, QWidget *parent, QScreen *screen);
    ~VelmoMessageWidget() override;

    /// The body, plain or rich; sets the height of the box. What it names is not read, and its links lead nowhere.
    /// Callers escape names given by users. Of more than 20,000 characters the first are shown; a text with tables more
    /// than eight deep in tables is shown as it is written.
    void setText(QString text);
    /// The text of the line edit.
    void setEditText(QString text);
    /// Shows the line edit in place of the body, with the text that @p target has. What is typed is written to
    /// @p target at once, whatever the answer will be, until the box is hidden; the caller keeps it that long. With
    /// null the line starts empty and nothing is written.
    void showEditable(bool show, QString *target);
    /// Sets the buttons and OK's text, enables OK and gives it the caption colours. An unknown mode does nothing.
    void setButtonMode(VelmoButtonMode mode);
    /// OK's text, which the countdown shows too.
    void setButtonText(QString text);
    /// The message left of the buttons.
    void setButtonMessage(QString text);

    /// Holds the buttons and the close button back for @p seconds. Nothing for 0 and less. Without a text given by
    /// `setButtonText` OK shows the bare count, and nothing afterwards.
    void setMinimumWaitSeconds(int seconds);
    /// Starts to count, or goes on; nothing without a wait.
    void startMinimumWaitTimer();

    /// Returns a `VelmoMsgReturnCode`. The box may be gone then, with its parent.
    int exec() override;

private slots:
    void singleSecondTriggered();

public slots:
    /// Ends the run with `MsgAccepted`.
    void fnAccept();
    /// Ends the run with `MsgRejected`.
    void fnReject();
    /// Ends the run with `MsgOther`.
    void fnOther();
    /// Writes what is typed to the target of `showEditable`, if there is one.
    void readFromEditable();
    /// The text of the other option, which is 84 logical pixels wide or as wide as its text needs.
    void setOtherOption(QString otheroption);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    friend class MessageBoxes;

    VelmoMessageWidget(const QString &kind, const QString &title, const QString &bodySheet, bool stayOnTop,
                       QWidget *parent, QScreen *screen);

    void startWait();
    void finishWait();
    void setLocked(bool locked);
    void updateButtonTextWithWait();
    void setButtons(const QString &okText, bool otherVisible);
    qreal bodyHeight() const;

    std::unique_ptr<Ui::VelmoMessageWidget> m_ui;
    QString *m_editTarget = nullptr;
    int m_waitSeconds = 0;
    QTimer *m_waitTimer = nullptr;
    QString m_buttonText;
};

/// A box to adjust before it is run. Copies mean the same box.
///
/// The box belongs to the parent and lives on after the run. Once it is gone every operation does nothing, and `exec`
/// returns `MsgRejected`.
class VELMO_GUI_EXPORT VelmoMessageClass
{
public:
    /// Builds the box; the texts are those of `VelmoMessageWidget`. A @p height above 0 fixes its height, in logical
    /// pixels.
    VelmoMessageClass(QString kind, QString title, QString text, bool stayOnTop, int height, QWidget *parent,
                      QScreen *screen);
    /// The same box.
    VelmoMessageClass(const VelmoMessageClass &other);
    /// Means the box of @p other from now on; the one before goes on living with its parent.
    VelmoMessageClass &operator=(const VelmoMessageClass &other);
    ~VelmoMessageClass();

    /// See `VelmoMessageWidget::setButtonMode`.
    void setButtonMode(VelmoButtonMode mode);
    /// See `VelmoMessageWidget::setButtonText`.
    void setButtonText(QString text);
    /// See `VelmoMessageWidget::setButtonMessage`.
    void setButtonMessage(QString text);
    /// See `VelmoMessageWidget::setOtherOption`.
    void setOtherOption(QString text);
    /// See `VelmoMessageWidget::showEditable`.
    void showEditable(bool show, QString *target);
    /// See `VelmoMessageWidget::setMinimumWaitSeconds`.
    void setMinimumWaitSeconds(int seconds);

    /// Runs the box until it is answered, and closes it.
    VelmoMsgReturnCode exec();

private:
    QPointer<VelmoMessageWidget> m_widget;
};

/// @name Boxes in one call
/// Every one builds a box, runs it until it is answered and deletes it. The texts are those of `VelmoMessageWidget`;
/// parent and screen may be null. GUI thread only.
/// @{

/// Tells something: kind word "INFORMATION", buttons "OK" and cancel.
VELMO_GUI_EXPORT VelmoMsgReturnCode VelmoInfoMessage(QString title, QString text, QWidget *parent, QScreen *screen);
/// Warns: kind word "WARNING", buttons "OK" and cancel. A @p height above 0 fixes the height of the box, in logical
/// pixels.
VELMO_GUI_EXPORT VelmoMsgReturnCode VelmoWarningMessage(QString title, QString text, int height, QWidget *parent,
                                                        QScreen *screen);
/// Asks: kind word "QUESTION", buttons "YES" and cancel. Draws the user's attention to the parent's window too.
VELMO_GUI_EXPORT VelmoMsgReturnCode VelmoQuestionMessage(QString title, QString text, QWidget *parent, QScreen *screen);
/// Edits @p edited, which gets every change as it is typed, even when the box is rejected in the end. With null the
/// line starts empty and what is typed is lost.
VELMO_GUI_EXPORT VelmoMsgReturnCode VelmoEditMessage(QString kind, QString title, QString *edited, QWidget *parent,
                                                     QScreen *screen);
/// Asks with a third button, which says @p otherText.
VELMO_GUI_EXPORT VelmoMsgReturnCode VelmoThreeOptionMessage(QString kind, QString title, QString text,
                                                            QString otherText, QWidget *parent, QScreen *screen);
/// Asks with an OK half of these words and a message left of the buttons. @p stayOnTop keeps the box above the windows
/// of other programs.
VELMO_GUI_EXPORT VelmoMsgReturnCode VelmoCustomMessage(QString kind, QString title, QString text, QString buttonText,
                                                       QString buttonMessage, bool stayOnTop, QWidget *parent,
                                                       QScreen *screen);
/// Asks with an OK half and a third button of these words. Holds the buttons back for @p waitSeconds when that is above
/// 0. @p stayOnTop keeps the box above the windows of other programs.
VELMO_GUI_EXPORT VelmoMsgReturnCode VelmoCustomThreeOptionMessage(QString kind, QString title, QString text,
                                                                  QString buttonText, QString otherText, bool stayOnTop,
                                                                  int waitSeconds, QWidget *parent, QScreen *screen);

/// @}
