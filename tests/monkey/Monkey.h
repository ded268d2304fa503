#pragma once

#include "monkey/Hands.h"

#include <QHash>
#include <QStringList>
#include <QTimer>

/// Uses a window as nobody would: lets its hands use pointer and keys, resizes, moves, hides, disables and deletes, all
/// at random, and looks now and then whether everything still holds together.
///
/// What is done follows from the seed. Timers and animations run by the clock, so a second run with the same seed is
/// much the same, not exactly. Whatever opens is closed again: menus, dialogs, drags and message boxes with event loops
/// of their own. GUI thread only.
class Monkey : public QObject
{
    Q_OBJECT

public:
    using Create = std::function<QWidget *()>;

    struct Rules
    {
        /// Names of classes whose objects the receivers of their signals delete; at once where that is true, else
        /// later.
        QHash<QString, bool> diesOfSignals;
        /// What has parts of its own, which are hidden, disabled and resized one by one: names of classes or objects.
        QStringList wholes = {QStringLiteral("GalleryPage"), QStringLiteral("SampleSection")};
        /// Whether these parts are deleted too; else only the window is and, while they show, objects of `mortals`.
        bool deletesParts = true;
        QStringList mortals;
    };

    Monkey(quint32 seed, Rules rules, QObject *parent = nullptr);
    ~Monkey() override;

    /// Plays until so many events have been sent: with one window after the other, each deleted before the next is
    /// made. Returns what is wrong, empty when nothing is.
    QString play(const Create &create, int events);

    /// Ends it here, with this for what is wrong.
    void stop(const QString &flaw);

    /// What has been done last, the latest at the end. Also in the middle of it.
    QStringList lastEvents() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void turn();
    void act();
    void endLife();
    void finish();
    void note(const QString &what);
    bool chance(int of) { return m_random.bounded(of) == 0; }

    // What to do it to.
    QWidget *guest() const;
    bool isWhole(const QWidget *widget) const;
    QList<QWidget *> ownParts() const;
    QList<QWidget *> mortals() const;
    QWidget *pickFrom(const QList<QWidget *> &widgets);

    // What is done besides the work of the hands.
    void resizeWindow();
    void changeScreen();
    void changeWindowState();
    void changePart();
    void sendChange();
    void deletePart();
    void deleteOnSignal();
    void wait();
    void closeGuest();

    QRandomGenerator m_random;
    const Rules m_rules;
    Hands m_hands;
    Create m_create;
    QPointer<QWidget> m_root;
    QTimer m_turn;
    int m_left = 0;
    int m_lifeLeft = 0;
    int m_sent = 0;
    int m_depth = 0;
    bool m_finished = true;
    QString m_flaw;
    QStringList m_log;
    int m_deletions = 0;
};
