#include "page_server.h"

#include <QPointer>
#include <QTcpSocket>
#include <QTimer>

namespace velmora::test {

namespace {

void send(QTcpSocket* client, const Answer& answer) {
    if (answer.end == Answer::End::Silent) {
        return;
    }
    const bool whole = answer.end == Answer::End::Whole;
    const qsizetype announced = answer.body.size() + (whole ? 0 : 100000);
    client->write("HTTP/1.1 " + QByteArray::number(answer.status) + " Answer\r\nContent-Type: " +
                  answer.type + "\r\nContent-Length: " + QByteArray::number(announced) +
                  "\r\nConnection: close\r\n" + answer.extraHeaders + "\r\n" + answer.body);
    if (answer.end != Answer::End::Never) {
        client->disconnectFromHost();
    }
}

} // namespace

PageServer::PageServer() {
    connect(this, &QTcpServer::newConnection, this, &PageServer::acceptClients);
    listen(QHostAddress::LocalHost);
}

QString PageServer::host() const {
    return QStringLiteral("127.0.0.1:%1").arg(serverPort());
}

QUrl PageServer::url(const QString& path) const {
    return QUrl(QStringLiteral("http://") + host() + path);
}

void PageServer::acceptClients() {
    while (QTcpSocket* const client = nextPendingConnection()) {
        connect(client, &QTcpSocket::readyRead, this, [this, client] { readRequest(client); });
        connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    }
}

void PageServer::readRequest(QTcpSocket* client) {
    const QByteArray head = client->peek(65536);
    if (!head.contains("\r\n\r\n")) {
        return;
    }
    client->readAll();
    const QString target = QString::fromLatin1(head.split(' ').value(1));
    requests_.append(target);
    const Answer answer = answerTo(target);
    QTimer::singleShot(answer.delayMilliseconds, client, [client, answer] { send(client, answer); });
}

Answer PageServer::answerTo(const QString& target) const {
    const QString path = target.section(QLatin1Char('?'), 0, 0);
    const Answer unknown{.body = "<p>There is no such page.</p>", .status = 404};
    return answers_.value(target, answers_.value(path, unknown));
}

} // namespace velmora::test
