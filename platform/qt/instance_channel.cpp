#include "platform/qt/instance_channel.h"

#include <QCryptographicHash>
#include <QLocalSocket>

#include "platform/files/folder_item.h"
#include "platform/qt/convert.h"

namespace tallyvane {

namespace {

constexpr int patienceMilliseconds = 2000;

/// One name for each folder of application data, so that two users, or two folders, do not meet.
QString channelName() {
    const std::string folder = SpecialFolder::ApplicationData ? SpecialFolder::ApplicationData->AbsolutePath() : "";
    const QByteArray hash = QCryptographicHash::hash(QByteArray::fromStdString(folder), QCryptographicHash::Sha1);
    return QStringLiteral("tallyvane-") + QString::fromLatin1(hash.toHex().left(16));
}

} // namespace

void InstanceChannel::listen(std::function<void(const std::string& message)> onCall) {
    server_ = std::make_unique<QLocalServer>();
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(channelName()); // left over from a program that was killed
    QObject::connect(server_.get(), &QLocalServer::newConnection, server_.get(), [this, onCall = std::move(onCall)] {
        while (QLocalSocket* caller = server_->nextPendingConnection()) {
            const auto takeMessage = [caller, onCall] {
                caller->deleteLater();
                onCall(caller->readAll().toStdString());
            };
            if (caller->state() == QLocalSocket::UnconnectedState)
                takeMessage();
            else
                QObject::connect(caller, &QLocalSocket::disconnected, caller, takeMessage);
        }
    });
    static_cast<void>(server_->listen(channelName())); // without it a second start still ends, it just can't call
}

void InstanceChannel::call(const std::string& message) {
    QLocalSocket socket;
    socket.connectToServer(channelName(), QLocalSocket::WriteOnly);
    if (!socket.waitForConnected(patienceMilliseconds))
        return;
    socket.write(QByteArray::fromStdString(message));
    socket.disconnectFromServer();
    if (socket.state() != QLocalSocket::UnconnectedState)
        static_cast<void>(socket.waitForDisconnected(patienceMilliseconds));
}

} // namespace tallyvane
