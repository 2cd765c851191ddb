#include "support/drawn.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <sstream>

namespace tallyvane {

namespace {

std::string joined(const std::string& word, const std::vector<double>& numbers) {
    std::ostringstream line;
    line << word;
    for (const double number : numbers)
        line << ' ' << number;
    return line.str();
}

std::string quoted(const std::string& text) { return " '" + text + "'"; }

struct Describe {
    std::string operator()(const RectShape& s) const { return joined("square", {s.X, s.Y, s.Width}); }
    std::string operator()(const OvalShape& s) const { return joined("oval", {s.X, s.Y, s.Width}); }
    std::string operator()(const ArcShape& s) const { return joined("arc", {s.StartAngle, s.ArcAngle, s.Width}); }
    std::string operator()(const CurveShape& s) const { return joined("curve", {s.X, s.Y, s.X2, s.Y2}); }
    std::string operator()(const FigureShape& s) const {
        std::string sides = "figure";
        for (const FigureShape::Side& side : s.sides)
            sides += joined(",", {side.x1, side.y1, side.x2, side.y2});
        return sides;
    }
    std::string operator()(const StringShape& s) const {
        const char* turned = s.Rotation == 0 ? "" : s.Rotation < 0 ? " up" : " down";
        return joined("string", {s.X, s.Y}) + quoted(s.Text) + turned;
    }
};

} // namespace

std::vector<std::string> drawn(const Group2D& shapes) {
    std::vector<std::string> lines;
    for (const Object2D& shape : shapes)
        lines.push_back(std::visit(Describe(), shape));
    return lines;
}

std::vector<std::string> drawn(const std::vector<GraphicsRecorder::Call>& calls) {
    static const std::map<std::string, std::string> words{
        {"DrawLine", "line"},       {"DrawRect", "rect"},     {"FillRect", "fill"}, {"DrawString", "text"},
        {"DrawPicture", "picture"}, {"DrawObject", "object"}, {"NextPage", "page"}};
    std::vector<std::string> lines;
    for (const GraphicsRecorder::Call& call : calls) {
        lines.push_back(joined(words.at(call.operation), call.numbers));
        if (call.operation == "DrawString")
            lines.back() += quoted(call.text);
        for (const std::string& shape : drawn(call.shapes))
            lines.push_back("  " + shape);
    }
    return lines;
}

std::vector<std::string> only(const std::string& beginning, const std::vector<std::string>& lines) {
    std::vector<std::string> chosen;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(chosen),
                 [&](const std::string& line) { return line.starts_with(beginning); });
    return chosen;
}

} // namespace tallyvane
