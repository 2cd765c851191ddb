#include "platform/qt/http_download.h"

#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QUrl>

#include <utility>

#include "platform/qt/convert.h"
#include "platform/qt/event_guard.h"

namespace tallyvane {

namespace {

constexpr qsizetype mostBytes = 65'536;

QNetworkRequest requestFor(const std::string& address) {
    constexpr int mostRedirects = 5;
    QNetworkRequest request{QUrl(toQt(address))};
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setRawHeader("Accept-Encoding", "identity"); // packed bytes could be many more than they look
    request.setRawHeader("Accept-Language", "en"); // the user's is nobody's business
    return request;
}

bool isOnTheSameServer(const QUrl& target, const QUrl& origin) {
    const int usualPort = origin.scheme() == QStringLiteral("https") ? 443 : 80;
    return target.scheme() == origin.scheme() && target.host() == origin.host() &&
           target.port(usualPort) == origin.port(usualPort);
}

/// The server has answered, with a page of whatever status; not so when the line broke down or the fetch was ended.
bool hasAnswered(const QNetworkReply& reply) {
    const bool isContent =
        reply.error() == QNetworkReply::NoError ||
        (reply.error() >= QNetworkReply::ContentAccessDenied && reply.error() != QNetworkReply::ProtocolUnknownError &&
         reply.error() != QNetworkReply::ProtocolInvalidOperationError &&
         reply.error() != QNetworkReply::ProtocolFailure);
    return isContent && reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
}

/// The desktop's own settings are not asked: finding them can hold up the program for seconds.
QNetworkProxy proxyOfEnvironment() {
    const QUrl proxy = QUrl::fromUserInput(qEnvironmentVariable("http_proxy"));
    if (proxy.host().isEmpty())
        return QNetworkProxy(QNetworkProxy::NoProxy);
    constexpr int usualPort = 80;
    return {QNetworkProxy::HttpCachingProxy, proxy.host(), static_cast<quint16>(proxy.port(usualPort)),
            proxy.userName(), proxy.password()};
}

} // namespace

HttpDownload::HttpDownload(QNetworkAccessManager& network, const std::string& address, std::string path,
                           std::function<void(int status)> done, std::chrono::milliseconds timeLimit)
    : path_(std::move(path)), done_(std::move(done)), reply_(network.get(requestFor(address))) {
    reply_->setReadBufferSize(mostBytes);
    QObject::connect(reply_, &QNetworkReply::readyRead, &timeLimit_, [this] { takeBytes(); });
    QObject::connect(reply_, &QNetworkReply::redirected, &timeLimit_, [this](const QUrl& target) {
        if (isOnTheSameServer(target, reply_->request().url()))
            Q_EMIT reply_->redirectAllowed();
        else
            reply_->abort();
    });
    QObject::connect(reply_, &QNetworkReply::finished, &timeLimit_, [this] { finish(); });
    QObject::connect(&timeLimit_, &QTimer::timeout, &timeLimit_, [this] { reply_->abort(); });
    timeLimit_.setSingleShot(true);
    timeLimit_.start(timeLimit);
}

HttpDownload::~HttpDownload() {
    timeLimit_.stop();
    reply_->disconnect(&timeLimit_);
    reply_->abort();
    reply_->deleteLater();
}

void HttpDownload::takeBytes() {
    body_ += reply_->readAll();
    if (body_.size() > mostBytes)
        reply_->abort();
}

void HttpDownload::finish() {
    timeLimit_.stop();
    if (!hasAnswered(*reply_))
        return;
    body_ += reply_->readAll();
    if (body_.size() > mostBytes || !writeFile())
        return;
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    deliverUnasked(&timeLimit_, [done = done_, status] { done(status); }); // which may end this download
}

bool HttpDownload::writeFile() const {
    QFile file(QFile::decodeName(QByteArray::fromStdString(path_)));
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(body_) == body_.size() && file.flush();
}

HttpDownloads::HttpDownloads() = default;

HttpDownloads::~HttpDownloads() = default;

std::unique_ptr<Download> HttpDownloads::start(const std::string& address, const std::string& path,
                                               std::function<void(int status)> done) {
    if (!network_) {
        network_ = std::make_unique<QNetworkAccessManager>();
        network_->setProxy(proxyOfEnvironment());
    }
    return std::make_unique<HttpDownload>(*network_, address, path, std::move(done), timeLimit);
}

} // namespace tallyvane
