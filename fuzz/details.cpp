/// The details of a day, which are only read.
#include "diary/day_details.h"
#include "fuzz/fuzz.h"
#include "settings/data_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    const Date day(2026, 11, 22);
    Fuzz::write(std::string(DataFiles::details) + "/" + day.ShortDate(), Fuzz::textOf(data, size));
    const DayDetails details = DayDetails::of(day);
    if (details.medications.size() + details.food.size() + details.exercise.size() > 12 * (size + 1))
        std::abort(); // ten blanks and a line end are the most that a line gets
    return 0;
}
