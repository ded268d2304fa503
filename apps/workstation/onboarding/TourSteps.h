#pragma once

#include <oVIXGuideStep.h>

#include <memory>
#include <vector>

class WorkstationWindow;

/// What the guided tour shows of the window. The window has to outlive the steps' last repaint.
namespace TourSteps {

using Steps = std::vector<std::unique_ptr<oVIXGuideStep>>;

Steps ofStartScreen(const WorkstationWindow *window);
Steps ofScene(WorkstationWindow *window);

} // namespace TourSteps
