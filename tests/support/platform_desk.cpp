#include "support/platform_desk.h"

#include <fstream>
#include <iterator>

#include "platform/base/date.h"
#include "platform/files/folder_item.h"

namespace tallyvane {

void PlatformDesk::SetUp() {
    std::string pattern = (std::filesystem::temp_directory_path() / ("tallyvane-test-" + std::string(6, 'X'))).string();
    folder_ = ::mkdtemp(pattern.data());
    SpecialFolder::ApplicationData = GetFolderItem(folder_.string());
    SpecialFolder::UserHome = GetFolderItem(folder_.string());
    SpecialFolder::Temporary = GetFolderItem(folder_.string());
    SpecialFolder::State = GetFolderItem((folder_ / "state").string());
    DateSource::setShortPattern("M/d/yyyy");
    DateSource::now = [] { return Date(2026, 11, 22, 12 * 3600); };
}

void PlatformDesk::TearDown() { std::filesystem::remove_all(folder_); }

void PlatformDesk::write(const std::filesystem::path& path, const std::string& content) const {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

std::string PlatformDesk::read(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path << " can't be read";
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace tallyvane
