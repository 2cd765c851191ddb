#pragma once

namespace tallyvane {

/// Has assistive programs see a canvas that can be pressed as a button, and any other as a picture.
void installCanvasAccessibility();

} // namespace tallyvane
