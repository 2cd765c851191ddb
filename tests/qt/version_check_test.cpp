/// The version check against a real server on the loopback.
#include <QScopedValueRollback>
#include <QTcpServer>
#include <QTcpSocket>

#include "platform/qt/http_download.h"
#include "qt/qt_desk.h"
#include "shell/version_check.h"

namespace tallyvane {

namespace {

/// Answers every request with bytes of the test's own, and then hangs up, waits, or goes on for ever.
class Server : public QTcpServer {
public:
    enum class End { hangsUp, waits, goesOn };

    Server(QByteArray answer, End end) : answer_(std::move(answer)), end_(end) {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { reply(*socket); });
            connect(socket, &QTcpSocket::disconnected, this, [this] { ++linesEnded; });
        });
    }
    std::string address(const char* path = "/VersionInfo/Tallyvane.txt") const {
        return "http://127.0.0.1:" + std::to_string(serverPort()) + path;
    }

    std::vector<std::string> requests;
    int linesEnded = 0;

private:
    void reply(QTcpSocket& socket) {
        requests.push_back(socket.readAll().toStdString());
        socket.write(answer_);
        if (end_ == End::hangsUp)
            socket.disconnectFromHost();
        if (end_ == End::goesOn)
            connect(&socket, &QTcpSocket::bytesWritten, this, [&socket] { socket.write(QByteArray(1000, 'x')); });
    }

    QByteArray answer_;
    End end_;
};

QByteArray page(const char* status, const QByteArray& body, const QByteArray& headers = {}) {
    return QByteArray("HTTP/1.1 ") + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n" +
           headers + "\r\n" + body;
}

class VersionCheckTest : public QtDesk {
protected:
    void SetUp() override {
        QtDesk::SetUp();
        SpecialFolder::Temporary = SpecialFolder::ApplicationData;
        qt_.downloads.timeLimit = std::chrono::milliseconds(400);
        Downloads::use(&qt_.downloads);
    }

    /// Hears what a check ends with.
    struct Socket : VersionCheckSocket {
        void Event_DownloadComplete(const std::string& address, int status, const FolderItem& file) override {
            ++ends;
            VersionCheckSocket::Event_DownloadComplete(address, status, file);
        }
        int ends = 0;
    };
};

TEST_F(VersionCheckTest, OnlyAWholeAnswerOfANewerVersionMakesAnOffer) {
    enum Outcome { offer, complete, namesNoProgram, nothing };
    const auto check = [](const char* name, const QByteArray& answer, Server::End end, Outcome want) {
        SCOPED_TRACE(name);
        Server server(answer, end);
        Socket socket;
        bool offered = false;
        socket.offer = [&offered](const std::function<void()>& done) {
            offered = true;
            done();
        };
        VersionCheck::doVersionCheck(socket, server.address());
        EXPECT_TRUE(server.requests.empty()) << "the start does not wait";
        EXPECT_TRUE(QTest::qWaitFor([&] { return (want == nothing ? server.linesEnded : socket.ends) > 0; }));
        QCoreApplication::processEvents(); // what the end of the line brings
        EXPECT_EQ(socket.ends, want == nothing ? 0 : 1);
        EXPECT_EQ(offered, want == offer);
        const FolderItem file = *SpecialFolder::Temporary->Child("Temporary Version File");
        EXPECT_EQ(file.Exists(), want == namesNoProgram);
        if (file.Exists())
            file.Delete();
        EXPECT_FALSE(server.requests.empty());
    };
    const QByteArray newer = "Tallyvane\n1.1.8\n";
    const QByteArray announced = "HTTP/1.1 200 OK\r\nContent-Length: 500\r\n\r\n";
    check("newer", page("200 OK", newer), Server::End::hangsUp, offer);
    check("newer, and the line stays open", page("200 OK", newer), Server::End::waits, offer);
    check("equal", page("200 OK", "Tallyvane\n1.1.7\n"), Server::End::hangsUp, complete);
    check("older", page("200 OK", "Tallyvane\n1.1\n"), Server::End::hangsUp, complete);
    check("empty", page("200 OK", ""), Server::End::hangsUp, namesNoProgram);
    check("an error page", page("404 Not Found", "<html>\n<p>not here\n"), Server::End::hangsUp, complete);
    check("an error page of a newer version", page("500 Oh no", newer), Server::End::hangsUp, offer);
    check("cut off", announced + newer, Server::End::hangsUp, nothing);
    check("slow", announced + newer, Server::End::waits, nothing);
    check("endless", "HTTP/1.1 200 OK\r\n\r\n" + newer, Server::End::goesOn, nothing);
    check("too long", page("200 OK", newer + QByteArray(70'000, 'x')), Server::End::hangsUp, nothing);
    check("no answer", "", Server::End::hangsUp, nothing);
}

TEST_F(VersionCheckTest, ARedirectOnTheSameServerIsFollowed) {
    Server server(page("302 Found", "", "Location: /elsewhere\r\n"), Server::End::hangsUp);
    Socket socket;
    VersionCheck::doVersionCheck(socket, server.address());
    EXPECT_TRUE(QTest::qWaitFor([&] { return server.requests.size() > 2; }));
    EXPECT_NE(server.requests[1].find("GET /elsewhere"), std::string::npos);
}

TEST_F(VersionCheckTest, AnotherHostOrPortIsNotAsked) {
    for (const char* host : {"localhost", "127.0.0.1"}) { // the server is asked at 127.0.0.1, and has another port
        Server other(page("200 OK", "Tallyvane\n9.9.9\n"), Server::End::hangsUp);
        const std::string elsewhere = std::string("http://") + host + ":" + std::to_string(other.serverPort()) + "/";
        Server server(page("302 Found", "", QByteArray("Location: ") + elsewhere.c_str() + "\r\n"),
                      Server::End::hangsUp);
        Socket socket;
        VersionCheck::doVersionCheck(socket, server.address());
        EXPECT_FALSE(QTest::qWaitFor([&] { return !other.requests.empty() || socket.ends > 0; }, 600)) << host;
        EXPECT_FALSE(server.requests.empty());
    }
}

TEST_F(VersionCheckTest, AnUnreachableServerIsIgnored) {
    const std::string address = Server({}, Server::End::waits).address();
    Socket socket;
    VersionCheck::doVersionCheck(socket, address);
    QTest::qWait(300);
    EXPECT_EQ(socket.ends, 0);
}

} // namespace

} // namespace tallyvane
