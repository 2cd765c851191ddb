#pragma once

#include "platform/windows/window.h"

namespace tallyvane {

class QtWindowSystem : public WindowSystem {
public:
    std::unique_ptr<WindowPeer> show(Window& window) override;
    Rect placeFor(const Window& window) override;
};

} // namespace tallyvane
