#pragma once

#include "VelmoGuiExport.h"

#include <QList>
#include <QString>
#include <QWidget>

class OvixSvgButton;
class QFrame;
class QPropertyAnimation;

/// A segmented switch: a row of square icon buttons, one a named state, with a translucent highlight that slides to the
/// state that is chosen.
///
/// The first state added is the current one from the start. Names should differ: of equal ones the first is found. A
/// name that no state has is ignored everywhere. Hidden states leave no gap, but the highlight stays where its state
/// would be if none were hidden. Assistive tools see a group of radio buttons.
class VELMO_GUI_EXPORT oVIXToggle : public QWidget
{
    Q_OBJECT

public:
    /// Side of a state's button, in logical pixels.
    static constexpr int StateWidth = 32;
    /// Room between two states, in logical pixels.
    static constexpr int StateSpacing = 0;
    /// How long the highlight slides, in milliseconds.
    static constexpr int StateChangeDurationMsecs = 100;

    /// A toggle without states.
    explicit oVIXToggle(QWidget *parent = nullptr);
    ~oVIXToggle() override;

    /// Appends a state. Its button shows @p icon, and @p checkedIcon while it is current; without a tool tip it shows
    /// the name as one.
    void addState(const QString &icon, const QString &checkedIcon, const QString &name, const QString &toolTip);

    /// Slides to a state; disabled and hidden ones too. Nothing for the current one.
    void setState(const QString &name);
    /// Empty without states. During a slide it is the state that the slide leads to.
    QString getCurrentState();

    /// Whether the user can choose the state.
    void setStateEnabled(const QString &name, bool enabled);
    /// What the state's button tells the pointer; empty for nothing.
    void setStateToolTip(const QString &name, const QString &toolTip);
    /// A state that is hidden stays current if it was.
    void setStateVisible(const QString &name, bool visible);

signals:
    /// The slide to another state has ended. When another change has interrupted it, only the last slide tells. The
    /// toggle may be deleted from here.
    void changed(QString name);

public slots:
    /// Slides to the state of the button that has sent the signal.
    void stateClicked();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct State
    {
        QString name;
        OvixSvgButton *button = nullptr;
    };

    int indexOf(const QString &name) const;
    void triggerStateChange(const QString &name, bool slide);
    void onVisibleStateCountChange();

    QFrame *m_highlight;
    QPropertyAnimation *m_slide;
    QList<State> m_states;
    int m_currentIndex = -1;
};
