#include "platform/http_socket.h"

#include "platform/toolkit.h"

namespace tallyvane {

void HTTPSocket::Get(const std::string& address, const FolderItem& file) {
    Toolkit* toolkit = Toolkit::inForce();
    if (toolkit == nullptr)
        return;
    download_ = toolkit->download(address, file.AbsolutePath(),
                                  [this, address, file](int status) { Event_DownloadComplete(address, status, file); });
}

} // namespace tallyvane
