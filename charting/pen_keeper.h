#pragma once

#include "platform/drawing/graphics.h"

namespace tallyvane {

/// Restores the colour and the pen of a surface on destruction.
class PenKeeper {
public:
    explicit PenKeeper(Graphics& g) : g_(g), color_(g.ForeColor()), width_(g.PenWidth()), height_(g.PenHeight()) {}
    ~PenKeeper() {
        g_.ForeColor(color_);
        g_.PenWidth(width_);
        g_.PenHeight(height_);
    }
    PenKeeper(const PenKeeper&) = delete;
    PenKeeper& operator=(const PenKeeper&) = delete;

private:
    Graphics& g_;
    Color color_;
    double width_;
    double height_;
};

} // namespace tallyvane
