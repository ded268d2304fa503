#pragma once

#include <oVIXDialog.h>

struct Scene;

/// What a scene consists of. Moved by its title; deleted when closed.
class SceneFactsDialog : public oVIXDialog
{
    Q_OBJECT

public:
    SceneFactsDialog(const Scene &scene, QWidget *parent);
};
