#pragma once

#include "support/cells.h"
#include "support/platform_desk.h"

namespace tallyvane {

/// A desktop with the globals as at a first start.
class TestDesk : public PlatformDesk {
protected:
    void SetUp() override;

    /// Path of a file in the application's folder.
    std::filesystem::path applicationFile(const std::string& name) const { return folder_ / "Tallyvane" / name; }
    void makeApplicationFolder() const { std::filesystem::create_directory(folder_ / "Tallyvane"); }
    /// Makes it, and keeps the days there.
    void useApplicationFolder() const;
    /// The file of the table with so many whole days of January 2026, "5.5" before breakfast.
    static std::string wholeDays(int count);
    /// Lines of the table as the program would have saved them: with all fields, and the keys of their dates.
    static std::string asSaved(const std::string& lines);
};

} // namespace tallyvane
