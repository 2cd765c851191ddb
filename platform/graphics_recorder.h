#pragma once

#include <string>
#include <vector>

#include "platform/graphics.h"

namespace tallyvane {

/// A surface that keeps what is drawn on it as plain data, so that a test can compare it. Its text is of fixed pitch:
/// of every font a character is half as wide as the text size, the ascent three quarters of it, the height all of it.
class GraphicsRecorder : public Graphics {
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

    GraphicsRecorder(double width, double height) : width_(width), height_(height) {}

    double Width() const override { return width_; }
    double Height() const override { return height_; }
    double TextAscent() const override { return 0.75 * static_cast<double>(TextSize()); }
    double TextHeight() const override { return TextSize(); }
    double StringWidth(std::string_view text) const override;
    void DrawLine(double x1, double y1, double x2, double y2) override;
    void DrawRect(double x, double y, double width, double height) override;
    void FillRect(double x, double y, double width, double height) override;
    void DrawString(std::string_view text, double x, double y) override;
    void DrawPicture(const Picture& picture, double x, double y) override;
    void DrawObject(const Object2D& shape, double x, double y) override;
    void NextPage() override { calls_.push_back({"NextPage"}); }
    void shrinkToFit(double width, double height) override;

    const std::vector<Call>& calls() const { return calls_; }

private:
    double width_;
    double height_;
    std::vector<Call> calls_;
};

/// What stands in for a bitmap where there are no pixels.
class RecordedBitmap : public Bitmap {
public:
    RecordedBitmap(int width, int height) : surface_(width, height) {}
    GraphicsRecorder& surface() override { return surface_; }
    void changePixels(const std::function<Pixel(Pixel)>& /*change*/) override {}

private:
    GraphicsRecorder surface_;
};

} // namespace tallyvane
