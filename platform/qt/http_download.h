#pragma once

#include <QNetworkReply>
#include <QTimer>

#include <chrono>
#include <functional>
#include <string>

#include "platform/http_socket.h"

class QNetworkAccessManager;

namespace tallyvane {

/// A fetch by Qt's network access: no redirect to another host, at most 64 KiB, within the time limit in all.
class HttpDownload : public Download {
public:
    HttpDownload(QNetworkAccessManager& network, const std::string& address, std::string path,
                 std::function<void(int status)> done, std::chrono::milliseconds timeLimit);
    ~HttpDownload() override;

private:
    void takeBytes();
    void finish();
    bool writeFile() const;

    std::string path_;
    std::function<void(int status)> done_;
    QByteArray body_;
    QTimer timeLimit_;
    QNetworkReply* reply_;
};

} // namespace tallyvane
