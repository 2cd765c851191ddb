#pragma once

#include <forward_list>
#include <memory>
#include <string>
#include <vector>

#include "charting/range_tally.h"
#include "platform/drawing/picture.h"

namespace tallyvane {

/// One point of a series: a list of X values and a list of Y values, at least one in each, so that a point can be a
/// stacked or clustered column; and the text that labels it.
class GTDataPoint {
public:
    GTDataPoint(double x, double y) : myXValue{x, {}}, myYvalue{y, {}} {}
    GTDataPoint(const GTDataPoint&) = delete;
    GTDataPoint& operator=(const GTDataPoint&) = delete;

    // Values
    double XValue() const { return myXValue.first; }
    double YValue() const { return myYvalue.first; }
    /// Value i; 0.0 for one that is not there.
    double XValue(int i) const { return myXValue.at(i); }
    double YValue(int i) const { return myYvalue.at(i); }
    int XValueCount() const { return myXValue.count(); }
    int YValueCount() const { return myYvalue.count(); }
    /// The sum of the values that are finite.
    double XTotal() const { return myXValue.total(); }
    double YTotal() const { return myYvalue.total(); }
    /// Appends a value to the list.
    void extraXValue(double v);
    void extraYValue(double v);
    /// The two lists change places.
    void swapXY();

    // Label
    int Resolution() const { return myResolution; }
    void Resolution(int n) { myResolution = n; }
    /// Appends the label's text to a picture of shapes, by the place x, y of the point in it. The middle of the text
    /// comes to stand at x if the picture has room for the whole width right of there, else a whole width or half of
    /// one to the left; its baseline at y, or an ascent higher or lower. A label without a place is left out.
    void Render(Picture& p, int x, int y) const;

    FontName textFont;
    std::string text;
    int textSize = 10; // points
    Color textColor = RGB(0, 0, 0);

private:
    friend class GTSeries;

    /// Adds all present values, and each one added later, to the tally, until reportNoMoreTo is called for it.
    void reportTo(RangeTally& tally);
    void reportNoMoreTo(RangeTally& tally);

    /// The first value stands in the point itself: most points have no other, and there are thousands of them.
    struct Values {
        double first;
        std::unique_ptr<std::vector<double>> more;

        int count() const { return more ? static_cast<int>(more->size()) + 1 : 1; }
        void append(double v);
        double at(int i) const;
        double total() const;
    };

    template <class Report>
    void report(Report report) const {
        if (tally_ != nullptr)
            report(*tally_);
        for (RangeTally* tally : moreTallies_)
            report(*tally);
    }

    Values myXValue;
    Values myYvalue;
    int myResolution = 72; // dots per inch
    RangeTally* tally_ = nullptr; // of the series that has the point; seldom there are more
    std::forward_list<RangeTally*> moreTallies_;
};

using GTDataPoints = std::vector<std::shared_ptr<GTDataPoint>>;

} // namespace tallyvane
