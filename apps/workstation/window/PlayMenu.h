#pragma once

#include <QMenu>

class ScenePage;

/// What the player and its markers do with the pointer, for the keyboard.
class PlayMenu : public QMenu
{
    Q_OBJECT

public:
    /// @p page has to live longer.
    PlayMenu(ScenePage *page, QWidget *parent);
};
