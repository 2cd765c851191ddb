/// The maker's version file.
#include "fuzz/fuzz.h"
#include "platform/base/number.h"
#include "shell/version_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    Fuzz::write("version", Fuzz::textOf(data, size));
    VersionCheckSocket socket;
    socket.offer = [](const std::function<void()>& done) { done(); };
    socket.Event_DownloadComplete("", 200, *GetFolderItem(Fuzz::path("version")));
    if (VersionCheck::theVersionString.find_first_of("\r\n") != std::string::npos)
        std::abort();
    return 0;
}
