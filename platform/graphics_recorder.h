#pragma once

#include <string>
#include <vector>

#include "platform/graphics.h"

namespace tallyvane {

/// A surface that keeps what is drawn on it as plain data, so that a test can compare it.
class GraphicsRecorder : public Graphics {
public:
    struct Call {
        std::string operation; // "FillRect" or "DrawPicture"
        Color color = 0; // FillRect's
        std::string picture; // DrawPicture's file
        double x = 0;
        double y = 0;
        double width = 0;
        double height = 0;

        bool operator==(const Call&) const = default;
    };

    GraphicsRecorder(double width, double height) : width_(width), height_(height) {}

    double Width() const override { return width_; }
    double Height() const override { return height_; }
    void FillRect(double x, double y, double width, double height) override;
    void DrawPicture(const Picture& picture, double x, double y) override;

    const std::vector<Call>& calls() const { return calls_; }

private:
    double width_;
    double height_;
    std::vector<Call> calls_;
};

} // namespace tallyvane
