/// The check for a newer version of the program: a small file on the maker's server, whose first line is the program's
/// name and whose second line is its version.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/net/http_socket.h"

namespace tallyvane {

namespace VersionCheck {

/// Name and version, as the server has told them last.
extern std::string theAppName;
extern std::string theVersionString;

/// Starts the check on a socket, and returns at once.
void doVersionCheck(HTTPSocket& socket, const std::string& address);

/// A version as a number that compares: its digits without the points, filled up to three. "1.1.7" is 117 and "1.2" is
/// 120; but "1.1.10" is 1110.
double numberOf(std::string_view version);

} // namespace VersionCheck

/// Fetches the version file and compares.
class VersionCheckSocket : public HTTPSocket {
public:
    /// There is a newer version. `done` is to be called when the user has decided what to do about it.
    std::function<void(std::function<void()> done)> offer;

    void Event_DownloadComplete(const std::string& address, int status, const FolderItem& file) override;
};

} // namespace tallyvane
