#include "platform/net/http_socket.h"

namespace tallyvane {

void HTTPSocket::Get(const std::string& address, const FolderItem& file) {
    download_ = Downloads::current().start(address, file.AbsolutePath(), [this, address, file](int status) {
        Event_DownloadComplete(address, status, file);
    });
}

} // namespace tallyvane
