#include "shell/version_check.h"

#include "platform/base/number.h"
#include "platform/base/text.h"

namespace tallyvane {

std::string VersionCheck::theAppName;
std::string VersionCheck::theVersionString;

void VersionCheck::doVersionCheck(HTTPSocket& socket, const std::string& address) {
    const std::optional<FolderItem> folder = SpecialFolder::Temporary;
    if (const std::optional<FolderItem> file = folder ? folder->Child("Temporary Version File") : std::nullopt)
        socket.Get(address, *file);
}

double VersionCheck::numberOf(std::string_view version) {
    std::string digits = ReplaceAll(version, ".", "");
    if (Len(digits) == 2)
        digits += "0";
    if (Len(digits) == 1)
        digits += "00";
    return Val(digits);
}

void VersionCheckSocket::Event_DownloadComplete(const std::string& /*address*/, int /*status*/,
                                                const FolderItem& file) {
    if (std::optional<TextInputStream> stream = file.OpenAsTextFile()) {
        VersionCheck::theAppName = stream->ReadLine();
        VersionCheck::theVersionString = stream->ReadLine();
        if (VersionCheck::theAppName.empty())
            return;
        const bool isNewer =
            VersionCheck::numberOf(VersionCheck::theVersionString) > VersionCheck::numberOf(TALLYVANE_VERSION);
        if (isNewer && offer) {
            offer([file] { file.Delete(); });
            return;
        }
    }
    file.Delete();
}

} // namespace tallyvane
