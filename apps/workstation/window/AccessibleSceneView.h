#pragma once

/// What assistive tools are told about the view of a scene: a canvas with the scene's name; pressing it picks whoever
/// is in its middle.
namespace AccessibleSceneView {

/// Makes the toolkit know it; the view calls this when it is constructed.
void install();

} // namespace AccessibleSceneView
