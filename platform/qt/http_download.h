#pragma once

#include <QNetworkReply>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "platform/net/http_socket.h"

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

/// Fetches by Qt, by the proxy that the environment names.
class HttpDownloads : public Downloads {
public:
    HttpDownloads();
    ~HttpDownloads() override;

    std::unique_ptr<Download> start(const std::string& address, const std::string& path,
                                    std::function<void(int status)> done) override;

    /// Of a whole download.
    std::chrono::milliseconds timeLimit{30'000};

private:
    std::unique_ptr<QNetworkAccessManager> network_; // null until it is needed
};

} // namespace tallyvane
