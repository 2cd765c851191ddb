#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/recording_toolkit.h"
#include "support/texts.h"

namespace tallyvane {

/// Gives each test a desktop of its own: a new folder in place of the user's, and noon of 22 November 2026.
class PlatformDesk : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    void write(const std::filesystem::path& path, const std::string& content) const;
    static std::string read(const std::filesystem::path& path);

    std::filesystem::path folder_;
    RecordingToolkit toolkit_;
};

} // namespace tallyvane
