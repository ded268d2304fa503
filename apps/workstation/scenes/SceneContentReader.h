#pragma once

#include "scenes/Scene.h"

#include <QCoreApplication>
#include <QSet>
#include <QXmlStreamReader>

#include <functional>

/// Reads a whole scene file. Safe in any thread; one object reads one file.
class SceneContentReader
{
    Q_DECLARE_TR_FUNCTIONS(SceneContentReader)

public:
    /// Called at every new kind of content, in words for the user, and at every percent.
    std::function<void(const QString &text)> onStep;
    std::function<void(int percent)> onPercent;
    /// Asked now and then; true ends the reading early.
    std::function<bool()> isCancelled;

    /// False when the file is missing, no scene, broken or cancelled; `problem` has the words for the user.
    bool read(const QString &path, Scene *scene);
    QString problem() const;
    static QString cancelledText(const QString &name);

private:
    void readElement();
    void readWall();
    void readCrowd();
    void readMover(QList<SceneMover> *movers);
    void skipElement();
    void report();
    double number(QLatin1String attribute, double otherwise = 0.0) const;
    QString text(QLatin1String attribute) const;
    QPointF point() const;

    QXmlStreamReader m_xml;
    Scene *m_scene = nullptr;
    /// Those that the file tells to be assigned or not.
    QSet<QString> m_settledTags;
    QString m_problem;
    qint64 m_size = 0;
    int m_percent = -1;
    bool m_cancelled = false;
};
