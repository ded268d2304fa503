#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>

/// Which names a scene may have. A name becomes a file name, and projects move between systems, so the rules are the
/// same everywhere: what one system refuses, all refuse.
class SceneNames
{
    Q_DECLARE_TR_FUNCTIONS(SceneNames)

public:
    /// Why no scene can be called @p name, in words for the user; empty when it can.
    static QString problem(const QString &name);

    /// @p base, or the first of "base 2", "base 3" and so on that is not taken.
    static QString firstFree(const QString &base, const std::function<bool(const QString &)> &isTaken);
};
