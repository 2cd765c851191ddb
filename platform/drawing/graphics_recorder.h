#pragma once

#include <string>
#include <vector>

#include "platform/drawing/null_graphics.h"

namespace tallyvane {

/// A surface that keeps what is drawn on it as plain data, so that a test can compare it.
class GraphicsRecorder : public NullGraphics {
public:
    struct Call {
        std::string operation; // "FillRect"
        Color color = 0; // ForeColor; 0 for pictures and shapes, which have their own
        std::string text = {}; // DrawString's text, DrawPicture's file
        std::vector<double> numbers = {}; // places and sizes, in the order of the arguments
        Group2D shapes = {}; // DrawPicture's and DrawObject's
        double pen = 1; // PenWidth of lines and outlines
        double penHeight = 1;
        double textSize = 0; // of DrawString
        FontName font = {};
        TextStyle style = {};

        bool operator==(const Call&) const = default;
    };

    using NullGraphics::NullGraphics;

    void DrawLine(double x1, double y1, double x2, double y2) override;
    void DrawRect(double x, double y, double width, double height) override;
    void FillRect(double x, double y, double width, double height) override;
    void DrawString(std::string_view text, double x, double y) override;
    void DrawPicture(const Picture& picture, double x, double y) override;
    void DrawObject(const Object2D& shape, double x, double y) override;
    void NextPage() override { calls_.push_back({"NextPage"}); }

    const std::vector<Call>& calls() const { return calls_; }

private:
    std::vector<Call> calls_;
};

} // namespace tallyvane
