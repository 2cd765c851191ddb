#pragma once

#include <QNetworkReply>
#include <QTimer>

#include <functional>
#include <string>

#include "platform/http_socket.h"

class QNetworkAccessManager;

namespace tallyvane {

/// A fetch by Qt's network access: no redirect to another host, at most 64 KiB, half a minute in all.
class HttpDownload : public Download {
public:
    HttpDownload(QNetworkAccessManager& network, const std::string& address, std::string path,
                 std::function<void(int status)> done);
    ~HttpDownload() override;

    /// Of the whole fetch. Tests shorten it.
    static inline int timeLimitMilliseconds = 30'000;

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
