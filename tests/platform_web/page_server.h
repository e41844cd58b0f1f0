#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>
#include <QTcpServer>
#include <QUrl>

class QTcpSocket;

namespace velmora::test {

/** What a PageServer says to a request. */
struct Answer {
    enum class End {
        /** Everything is sent, then the connection is closed. */
        Whole,
        /** More is announced than comes, and the connection stays open. */
        Never,
        /** More is announced than comes, and the connection is closed. */
        Broken,
        /** The request is taken and nothing is sent. */
        Silent,
    };

    QByteArray body = {};
    QByteArray type = "text/html; charset=utf-8";
    int status = 200;
    int delayMilliseconds = 0;
    End end = End::Whole;
    QByteArray extraHeaders = {};
};

/** A web server on this machine that answers with the pages of a test; "not found" with a page to all others.
   Lives in the thread's event loop. */
class PageServer : public QTcpServer {
    Q_OBJECT
public:
    PageServer();

    /** Sets the answer to requests for PATH. A query is looked at only when PATH has one. */
    void serve(const QString& path, const Answer& answer) { answers_.insert(path, answer); }
    void serve(const QString& path, const QByteArray& html) { serve(path, Answer{.body = html}); }
    void serve(const QString& path, const char* html) { serve(path, QByteArray(html)); }

    /** "127.0.0.1:port". */
    [[nodiscard]] QString host() const;
    [[nodiscard]] QUrl url(const QString& path) const;
    /** The paths, with queries, that were asked for, in order. */
    [[nodiscard]] QStringList requests() const { return requests_; }
    [[nodiscard]] bool wasAskedFor(const QString& path) const { return requests_.contains(path); }

private:
    void acceptClients();
    void readRequest(QTcpSocket* client);
    [[nodiscard]] Answer answerTo(const QString& target) const;

    QHash<QString, Answer> answers_;
    QStringList requests_;
};

} // namespace velmora::test
