#include <fstream>
#include <sstream>

#include "settings/globals.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

/// Real tables, brought into the diary's file and loaded by the window as at a start.
class RealReadingsTest : public DiaryDesk, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override {
        DiaryDesk::SetUp();
        Globals::gOver = 180;
        Globals::gCaution = 140;
        Globals::gLow = 80;
        Globals::gUnder = 60;
        std::ifstream file(std::string(TEST_DATA "/") + GetParam());
        std::string content;
        for (std::string line; std::getline(file, line);) {
            std::istringstream fields(line);
            Texts& day = days_.emplace_back(10);
            for (std::string& field : day)
                std::getline(fields, field, ',');
            for (std::size_t i = 0; i < day.size(); ++i)
                content += (i == 0 ? "" : "@#@") + day[i];
            content += "@#@\n";
        }
        write(applicationFile("7VXData"), content);
        open();
    }

    std::vector<Texts> days_;
};

/// An average of whole numbers in tenths, half rounded up, by integers alone: an own way to the same figures.
std::string tenths(long sum, long count) {
    const long rounded = (20 * sum + count) / (2 * count);
    return std::to_string(rounded / 10) + "." + std::to_string(rounded % 10);
}

TEST_P(RealReadingsTest, AveragesAgreeWithIntegerArithmetic) {
    ASSERT_GT(days_.size(), 100U);
    ASSERT_EQ(table_.ListCount(), static_cast<int>(days_.size()));
    long sums[8] = {};
    long counts[8] = {};
    for (std::size_t day = 0; day < days_.size(); ++day) {
        long sum = 0;
        long count = 0;
        for (std::size_t column = 1; column <= 7; ++column) {
            const long reading = days_[day][column].empty() ? 0 : std::stol(days_[day][column]);
            sum += reading;
            count += reading > 0 ? 1 : 0;
            sums[column] += reading;
            counts[column] += reading > 0 ? 1 : 0;
        }
        ASSERT_GT(count, 0);
        EXPECT_EQ(table_.Cell(static_cast<int>(day), 8), tenths(sum, count)) << days_[day][0];
    }
    for (std::size_t column = 1; column <= 7; ++column)
        EXPECT_EQ(strip()[column - 1], counts[column] == 0 ? "00.0" : tenths(sums[column], counts[column])) << column;
}

TEST_P(RealReadingsTest, EveryDateIsReadAndTheFileComesBackInDateOrder) {
    std::vector<Date> dates;
    for (const auto& day : days_)
        dates.push_back(ParseDate(day[0]).value());
    std::stable_sort(dates.begin(), dates.end(),
                     [](const Date& a, const Date& b) { return a.TotalSeconds() < b.TotalSeconds(); });
    window1_.ListBox1_HeaderPressed(0);
    for (std::size_t day = 0; day < dates.size(); ++day)
        EXPECT_EQ(ParseDate(table_.Cell(static_cast<int>(day), 0)), dates[day]);
    window1_.saveData();
    Window1 later(toolbar_, menuBar_);
    later.Open();
    ASSERT_EQ(later.ListBox1.ListCount(), table_.ListCount());
    for (int row = 0; row < table_.ListCount(); ++row)
        for (int column = 0; column < 20; ++column)
            EXPECT_EQ(later.ListBox1.Cell(row, column), table_.Cell(row, column)) << row << ", " << column;
}

INSTANTIATE_TEST_SUITE_P(Patients, RealReadingsTest,
                         ::testing::Values("patient-01.csv", "patient-20.csv", "patient-27.csv"));

} // namespace
} // namespace tallyvane
