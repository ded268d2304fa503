#pragma once

#include "gallery/GalleryPage.h"

/// Combos in each of their states.
namespace ComboSamples {

QList<Sample> states();
QList<Sample> texts();
QList<Sample> alignments();
/// A combo above its open menu, embedded so that it can be looked at in peace.
QWidget *createOpen();

} // namespace ComboSamples
